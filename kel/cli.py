"""The command line for the bench: `python3 -m kel dtcs`, `kel identify --json`, ...

Readable tables by default, --json for scripts; colour only on a terminal, and never with
NO_COLOR set. A script can trust the exit code (EXIT_CODES, also in --help): 0 when every
target answered, 3 when some target answered with an error or a negative response (the
data is printed all the same), 1 when the call itself failed (the engine's code and
message on stderr; also a library that is missing or is not kel_c, or an operation this
build does not offer), 2 for a wrong command line. With --connect ADDRESS (before the
command) every command runs on the engine behind that server, logged in as --user NAME
with the password from $KEL_PASSWORD or asked for; never from the command line."""

from __future__ import annotations

import argparse
import dataclasses
import enum
import getpass
import json
import os
import re
import sys
import unicodedata
from typing import Any, Callable, Iterable, Optional, Sequence, TextIO

from . import _library
from .engine import Engine
from .errors import EngineError, LibraryNotFound
from .generated import records
from .generated.enums import DtcStatus, EventKind

OK, FAILED, USAGE, PARTLY = 0, 1, 2, 3
# Where --user finds its password: never on the command line, where other users of the
# machine and the shell's history see it.
PASSWORD_VARIABLE = "KEL_PASSWORD"
EXIT_CODES = """exit codes:
  0  every target answered
  3  some target answered with an error or a negative response (the data is still printed)
  1  the call itself failed (the error is on stderr), or no kel_c library was found
  2  usage: the command line is wrong, a --library that is missing or is not kel_c too"""


def _plain(value: Any) -> Any:
    """A value as JSON holds it: records as objects, bytes as hex."""
    if dataclasses.is_dataclass(value) and not isinstance(value, type):
        return {f.name: _plain(getattr(value, f.name)) for f in dataclasses.fields(value)}
    if isinstance(value, (list, tuple)):
        return [_plain(v) for v in value]
    if isinstance(value, bytes):
        return value.hex()
    if isinstance(value, (enum.IntEnum, enum.IntFlag)):
        return int(value)  # the number, as C and the engine give it
    return value


def _printable(text: str) -> str:
    """Engine texts may echo what a caller passed in: control characters (an escape
    sequence, a line break) are shown escaped, so that they cannot act on the terminal or
    break a table's lines."""
    def shown(c: str) -> str:
        if unicodedata.category(c) not in ("Cc", "Zl", "Zp"):
            return c
        return f"\\x{ord(c):02x}" if ord(c) < 0x100 else f"\\u{ord(c):04x}"
    return "".join(shown(c) for c in text)


class Style:
    """Colour on a terminal only: none when NO_COLOR is set (to anything) or the output is
    piped or redirected."""

    def __init__(self, out: TextIO) -> None:
        isatty = getattr(out, "isatty", None)
        self.on = bool(isatty and isatty()) and not os.environ.get("NO_COLOR")

    def __call__(self, text: str, code: str) -> str:
        return f"\x1b[{code}m{text}\x1b[0m" if self.on and text else text


BOLD, RED = "1", "31"


def _table(out: TextIO, header: Optional[Sequence[str]], rows: list[Sequence[Any]]) -> None:
    """Columns aligned on their widest cell; no header line without a header. A short row's
    last cell (an error in place of the columns) runs on unaligned, in red on a terminal."""
    style = Style(out)
    columns = len(header) if header else max((len(row) for row in rows), default=0)
    cells = ([[_printable(str(c)) for c in header]] if header else []) + [
        [_printable(str(c)) for c in row] for row in rows]
    widths = [max([len(row[i]) for row in cells if i < len(row) - (len(row) < columns)] or [0])
              for i in range(columns)]
    for n, row in enumerate(cells):
        padded = [c.ljust(w) for c, w in zip(row, widths)]
        if len(row) < columns:
            padded[-1] = style(row[-1], RED) if row[-1].startswith("error ") else row[-1]
        line = "  ".join(padded).rstrip()
        out.write((style(line, BOLD) if header and n == 0 else line) + "\n")


def _status_words(status: int) -> str:
    """Every ISO 14229 status bit that is set, in words (DtcStatus names all eight)."""
    return ", ".join(str(bit.name).lower().replace("_", " ") for bit in DtcStatus if bit in DtcStatus(status))


def _partly(errors: Iterable[Any]) -> int:
    """PARTLY when any per-target error is there, else OK."""
    return PARTLY if any(e is not None for e in errors) else OK


def _error_text(error: records.KelError) -> str:
    return f"error {error.code}: {error.message}" + (f" ({error.details})" if error.details else "")


class Output:
    def __init__(self, as_json: bool, out: TextIO) -> None:
        self.as_json = as_json
        self.out = out

    def emit(self, value: Any, show: Callable[[], None], code: int = OK) -> int:
        """Prints the value (JSON or the table `show` writes) and gives `code` back."""
        if self.as_json:
            json.dump(_plain(value), self.out, ensure_ascii=False, indent=2)
            self.out.write("\n")
        else:
            show()
        return code


def cmd_targets(engine: Engine, args: argparse.Namespace, o: Output) -> int:
    targets = [t for t in engine.get_targets() if t]
    return o.emit(targets, lambda: _table(o.out, ["name", "description", "variant", "address", "bus", "responds"], [
        [t.name, t.description, t.variant, f"0x{t.address:X}", t.bus, "yes" if t.responds else "no"]
        for t in targets]))


def cmd_identify(engine: Engine, args: argparse.Namespace, o: Output) -> int:
    results = [r for r in (engine.identify_targets(args.targets) if args.targets else engine.identify_all_targets())
               if r]
    return o.emit(results, lambda: _table(o.out, ["ECU", "variant"], [
        [r.target, _error_text(r.error) if r.error else r.variant] for r in results]), _partly(r.error for r in results))


def cmd_dtcs(engine: Engine, args: argparse.Namespace, o: Output) -> int:
    if args.clear:
        cleared = [r for r in engine.clear_all_dtcs(args.targets) if r]
        return o.emit(cleared, lambda: _table(o.out, ["ECU", "cleared"], [
            [r.target, _error_text(r.error) if r.error else "yes"] for r in cleared]), _partly(r.error for r in cleared))
    config = records.DtcReadConfig(status_mask=args.mask, with_snapshots=True, with_extended_data=True)
    results = [r for r in engine.read_dtcs(args.targets, config) if r]

    def show() -> None:
        rows: list[Sequence[Any]] = []
        for r in results:
            if r.error:
                rows.append([r.target, _error_text(r.error)])
            elif not r.dtcs:
                rows.append([r.target, "no DTCs stored"])
            for d in r.dtcs:
                if d:
                    rows.append([r.target, d.display_code, f"0x{int(d.status):02X}", d.description,
                                 _status_words(d.status)])
        _table(o.out, ["ECU", "code", "status", "text", "status bits"], rows)

    return o.emit(results, show, _partly(r.error for r in results))


def cmd_ident(engine: Engine, args: argparse.Namespace, o: Output) -> int:
    results = [r for r in engine.read_identification_values(args.targets) if r]

    def show() -> None:
        rows: list[Sequence[Any]] = []
        for r in results:
            if r.error:
                rows.append([r.target, _error_text(r.error)])
            for p in r.parameters:
                if p:
                    value = _error_text(p.error) if p.error else f"{p.value} {p.unit}".strip()
                    rows.append([r.target, p.description, p.name, value])
        _table(o.out, ["ECU", "id", "name", "value"], rows)

    return o.emit(results, show, _partly([r.error for r in results] + [p.error for r in results for p in r.parameters
                                                                        if p]))


def _offered(engine: Engine, method: str) -> Optional[Callable[..., Any]]:
    found: Optional[Callable[..., Any]] = getattr(engine, method, None)
    if found is None:
        sys.stderr.write(f"kel: {method} is not offered by this build: its family is not built yet\n")
    return found


def cmd_services(engine: Engine, args: argparse.Namespace, o: Output) -> int:
    describe = _offered(engine, "get_service_infos")
    if describe is None:
        return FAILED
    services = [s for s in describe(args.target, "", [], 0) if s]
    return o.emit(services, lambda: _table(o.out, ["service", "description"], [
        [s.name, s.description] for s in services]), _partly(s.error for s in services))


RAW = re.compile(r"(?:[0-9A-Fa-f]{2})+")


def _parameter_rows(parameters: Sequence[Optional[records.ParameterResult]], depth: int = 0) -> list[list[str]]:
    rows: list[list[str]] = []
    for p in parameters:
        if p:
            value = _error_text(p.error) if p.error else f"{p.value} {p.unit}".strip()
            rows.append(["  " * depth + p.name, value])
            rows += _parameter_rows(p.children, depth + 1)
    return rows


def cmd_exec(engine: Engine, args: argparse.Namespace, o: Output) -> int:
    """A service by name with NAME=VALUE parameters, or raw request bytes in hex
    (`kel exec ECM 22F190`): the decoded response parameters, then the bytes."""
    execute = _offered(engine, "execute_service")
    service_input = getattr(records, "ServiceInput", None)
    parameter_input = getattr(records, "ParameterInput", None)
    if execute is None or service_input is None or parameter_input is None:
        return FAILED
    raw = args.service.replace(" ", "")
    if RAW.fullmatch(raw):
        if args.parameters:
            sys.stderr.write("kel: raw request bytes take no NAME=VALUE parameters\n")
            return USAGE
        request = service_input(data=bytes.fromhex(raw))
    else:
        parameters = []
        for assignment in args.parameters:
            name, sep, value = assignment.partition("=")
            if not sep:
                sys.stderr.write(f"kel: parameters are NAME=VALUE, not {assignment!r}\n")
                return USAGE
            parameters.append(parameter_input(name=name, value=value))
        request = service_input(service=args.service, parameters=parameters)
    results = [r for r in execute(args.target, [request]) if r]

    def show() -> None:
        rows: list[Sequence[Any]] = []
        for r in results:
            rows.append([r.service, r.outcome])
            for response in r.responses:
                if response:
                    rows += [["", *row] for row in _parameter_rows(response.parameters)]
                    rows.append(["", "bytes", response.data.hex(" ").upper()])
            if r.error and not r.responses:
                rows.append(["", _error_text(r.error)])
        _table(o.out, ["service", "response", "value"], rows)

    return o.emit(results, show, _partly(r.error for r in results))


# The events table is written as the events come, so its widths are fixed: the longest
# name the engine gives a kind, and room for the numbers.
_EVENT_NAME = max(len(k.name.title().replace("_", "")) for k in EventKind)
_EVENT_TEXT = 36


def _event_line(kind: str, name: str, code: str, text: str, detail: str) -> str:
    return (f"{kind:>4}  {name:<{_EVENT_NAME}}  {code:>6}  {text:<{_EVENT_TEXT}}  {detail}").rstrip()


def cmd_events(engine: Engine, args: argparse.Namespace, o: Output) -> int:
    # The channel opens before the engine starts, so its start shows too.
    style = Style(o.out)
    with engine.events() as channel:
        if not args.connect:  # a remote engine is the server's, started there
            engine.initialize()
        events = channel.follow(timeout=args.seconds) if args.follow else iter(channel.poll())
        if not o.as_json:
            o.out.write(style(_event_line("kind", "name", "code", "text", "detail"), BOLD) + "\n")
        for event in events:
            if o.as_json:
                o.out.write(json.dumps(_plain(event), ensure_ascii=False) + "\n")
            else:
                error = f"  [{_error_text(event.error)}]" if event.error else ""
                o.out.write(_printable(_event_line(str(int(event.kind)), event.name, str(event.code), event.message,
                                                   event.detail + error)) + "\n")
            o.out.flush()
    return OK


def cmd_info(engine: Engine, args: argparse.Namespace, o: Output) -> int:
    info: dict[str, Any] = {"library": getattr(engine._lib, "_name", ""), "state": engine.get_state(),
                            "handle": engine.get_handle()}
    try:
        info["version"] = engine.get_version()
    except EngineError as e:
        info["version"] = None
        info["version_error"] = _error_text(e.record)
    return o.emit(info, lambda: _table(o.out, None, [
        [k, v.name.lower() if isinstance(v, enum.Enum) and v.name else v] for k, v in info.items()]))


def _binding_version(path: str) -> str:
    """The binding's version, from the name of the library file loaded (libkel_c.so.0.1.0)."""
    found = re.search(r"\.so\.(\d+\.\d+\.\d+)$", os.path.realpath(path))
    return found.group(1) if found else "unknown"


def versions(library: Optional[str]) -> str:
    """The package's, the binding's and the engine's versions, one per line; what cannot be
    loaded says why instead."""
    from . import __version__

    lines = [f"kel {__version__}"]
    try:
        with Engine(library=library) as engine:
            path = str(getattr(engine._lib, "_name", ""))
            lines.append(f"kel_c {_binding_version(path)} ({path})")
            lines.append(f"engine {engine.get_version()}")
    except (EngineError, LibraryNotFound) as e:
        lines.append(f"kel_c: {e}")
    return "\n".join(lines)


class _Version(argparse.Action):
    def __init__(self, option_strings: Sequence[str], dest: str, **kwargs: Any) -> None:
        super().__init__(option_strings, dest, nargs=0, help="print the package, binding and engine versions")

    def __call__(self, parser: argparse.ArgumentParser, namespace: argparse.Namespace, values: Any,
                 option: Optional[str] = None) -> None:
        sys.stdout.write(versions(getattr(namespace, "library", None)) + "\n")
        parser.exit(OK)


def status_mask(text: str) -> int:
    """--mask: a number, decimal or 0x hex, from 0 to 0xFF."""
    try:
        value = int(text, 0)
    except ValueError:
        raise argparse.ArgumentTypeError(f"{text!r} is not a status mask (a number such as 0x08)") from None
    if not 0 <= value <= 0xFF:
        raise argparse.ArgumentTypeError(f"{text} is not a status mask: it is one byte, 0 to 0xFF")
    return value


def parser() -> argparse.ArgumentParser:
    def options(parser: argparse.ArgumentParser, defaults: bool) -> argparse.ArgumentParser:
        # Accepted before and after the command; the command's copy only overrides.
        unset: dict[str, Any] = {} if defaults else {"default": argparse.SUPPRESS}
        parser.add_argument("--json", action="store_true", help="print JSON instead of tables", **unset)
        parser.add_argument("--library", help=f"the kel_c library to load (default: ${_library.ENVIRONMENT}, "
                                              "then the installed one, then a build tree)", **unset)
        return parser

    p = options(argparse.ArgumentParser(prog="kel", description="The kel_c diagnostics engine from the command line.",
                                        epilog=EXIT_CODES, formatter_class=argparse.RawDescriptionHelpFormatter), True)
    p.add_argument("--version", action=_Version)
    p.add_argument("--connect", metavar="ADDRESS",
                   help="run the command on the engine whose server listens at ADDRESS (kel://127.0.0.1:7400)")
    p.add_argument("--user", metavar="NAME", help=f"with --connect: log in as NAME; the password comes from "
                                                  f"${PASSWORD_VARIABLE}, else it is asked for")
    common = options(argparse.ArgumentParser(add_help=False), False)
    commands = p.add_subparsers(dest="command", required=True)

    class Sub:
        @staticmethod
        def add_parser(name: str, help: str) -> argparse.ArgumentParser:
            parser: argparse.ArgumentParser = commands.add_parser(
                name, help=help, parents=[common], epilog=EXIT_CODES, formatter_class=argparse.RawDescriptionHelpFormatter)
            return parser

    sub = Sub()
    s = sub.add_parser("targets", help="the control units of the project")
    s.set_defaults(run=cmd_targets)
    s = sub.add_parser("identify", help="identify the variants of the control units")
    s.add_argument("targets", nargs="*", help="targets (default: all)")
    s.set_defaults(run=cmd_identify)
    s = sub.add_parser("dtcs", help="read (or clear) the DTCs")
    s.add_argument("targets", nargs="*", help="targets (default: all)")
    s.add_argument("--clear", action="store_true", help="clear the DTCs instead of reading them")
    s.add_argument("--mask", type=status_mask, default=0,
                   help="status mask: only DTCs whose status shares a bit with it (default 0: all)")
    s.set_defaults(run=cmd_dtcs)
    s = sub.add_parser("ident", help="read the identification values")
    s.add_argument("targets", nargs="*", help="targets (default: all)")
    s.set_defaults(run=cmd_ident)
    s = sub.add_parser("services", help="the services that a target offers")
    s.add_argument("target")
    s.set_defaults(run=cmd_services)
    s = sub.add_parser("exec", help="execute a service, by name or as raw hex bytes (exec ECM 22F190)")
    s.add_argument("target")
    s.add_argument("service", help="the service's name, or the request's bytes in hex")
    s.add_argument("parameters", nargs="*", metavar="PARAM=VALUE")
    s.set_defaults(run=cmd_exec)
    s = sub.add_parser("events", help="the engine's events")
    s.add_argument("--follow", action="store_true", help="keep following new events")
    s.add_argument("--seconds", type=float, default=None, help="with --follow: stop after this many quiet seconds")
    s.set_defaults(run=cmd_events, initialize=False)
    s = sub.add_parser("info", help="the engine's state, handle and version")
    s.set_defaults(run=cmd_info)
    return p


def _engine(args: argparse.Namespace) -> Engine:
    """The local engine, or with --connect the remote one, logged in as --user."""
    if not args.connect:
        return Engine(library=args.library, initialize=getattr(args, "initialize", True))
    password = None
    if args.user is not None:
        password = os.environ.get(PASSWORD_VARIABLE)
        if password is None:
            password = getpass.getpass(f"password of {args.user} at {args.connect}: ")
    return Engine.connect(args.connect, args.user, password, library=args.library)


def main(argv: Optional[Sequence[str]] = None, out: TextIO = sys.stdout) -> int:
    p = parser()
    args = p.parse_args(argv)
    if args.user is not None and not args.connect:
        p.error("--user logs in to a server: give --connect ADDRESS too")
    try:
        with _engine(args) as engine:
            code: int = args.run(engine, args, Output(args.json, out))
            return code
    except EngineError as e:
        sys.stderr.write(f"kel: {_printable(_error_text(e.record))}\n")
        return FAILED
    except LibraryNotFound as e:
        sys.stderr.write(f"kel: {e}\n")
        # --library names the file on the command line: a wrong one is a usage error.
        return USAGE if args.library else FAILED
    except KeyboardInterrupt:
        return 130
    except BrokenPipeError:
        # A reader such as `head` went away; say nothing more on the closed pipe.
        try:
            sys.stdout = open(os.devnull, "w")
        except OSError:
            pass
        return 0
