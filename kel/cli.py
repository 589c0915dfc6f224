"""The command line for the bench: `python3 -m kel dtcs`, `kel identify --json`, ...

Readable tables by default, --json for scripts. Exit code 0 on success, 1 when the
engine reports an error (its code and message on stderr), 2 for a wrong command line,
a library that is missing or is not kel_c, or an operation this build does not offer."""

from __future__ import annotations

import argparse
import dataclasses
import json
import os
import sys
import unicodedata
from typing import Any, Callable, Optional, Sequence, TextIO

from . import _library
from .engine import Engine
from .errors import EngineError, LibraryNotFound
from .generated import records


def _plain(value: Any) -> Any:
    """A value as JSON holds it: records as objects, bytes as hex."""
    if dataclasses.is_dataclass(value) and not isinstance(value, type):
        return {f.name: _plain(getattr(value, f.name)) for f in dataclasses.fields(value)}
    if isinstance(value, (list, tuple)):
        return [_plain(v) for v in value]
    if isinstance(value, bytes):
        return value.hex()
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


def _table(out: TextIO, header: Sequence[str], rows: list[Sequence[Any]]) -> None:
    cells = [[_printable(str(c)) for c in header]] + [[_printable(str(c)) for c in row] for row in rows]
    # A short row's last cell (an error in place of the columns) runs on unaligned.
    widths = [max([len(row[i]) for row in cells if i < len(row) - (len(row) < len(header))] or [0])
              for i in range(len(header))]
    for row in cells:
        out.write("  ".join(c.ljust(w) for c, w in zip(row, widths)).rstrip() + "\n")


def _status_words(status: int) -> str:
    """The ISO 14229 status bits a reader looks at first."""
    if status & 0x01:
        return "active, confirmed" if status & 0x08 else "active"
    if status & 0x08:
        return "confirmed"
    return "pending" if status & 0x04 else "stored"


def _error_text(error: records.KelError) -> str:
    return f"error {error.code}: {error.message}" + (f" ({error.details})" if error.details else "")


class Output:
    def __init__(self, as_json: bool, out: TextIO) -> None:
        self.as_json = as_json
        self.out = out

    def emit(self, value: Any, show: Callable[[], None]) -> None:
        if self.as_json:
            json.dump(_plain(value), self.out, ensure_ascii=False, indent=2)
            self.out.write("\n")
        else:
            show()


def cmd_targets(engine: Engine, args: argparse.Namespace, o: Output) -> int:
    targets = [t for t in engine.get_targets() if t]
    o.emit(targets, lambda: _table(o.out, ["name", "description", "variant", "address", "bus", "responds"], [
        [t.name, t.description, t.variant, f"0x{t.address:X}", t.bus, "yes" if t.responds else "no"]
        for t in targets]))
    return 0


def cmd_identify(engine: Engine, args: argparse.Namespace, o: Output) -> int:
    results = [r for r in (engine.identify_targets(args.targets) if args.targets else engine.identify_all_targets())
               if r]
    o.emit(results, lambda: _table(o.out, ["ECU", "variant"], [
        [r.target, _error_text(r.error) if r.error else r.variant] for r in results]))
    return 0


def cmd_dtcs(engine: Engine, args: argparse.Namespace, o: Output) -> int:
    if args.clear:
        cleared = [r for r in engine.clear_all_dtcs(args.targets) if r]
        o.emit(cleared, lambda: _table(o.out, ["ECU", "cleared"], [
            [r.target, _error_text(r.error) if r.error else "yes"] for r in cleared]))
        return 0
    config = records.DtcReadConfig(status_mask=args.mask, with_snapshots=1, with_extended_data=1)
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
                    rows.append([r.target, d.display_code, f"0x{d.status:02X}", _status_words(d.status), d.description])
        _table(o.out, ["ECU", "code", "status", "", "text"], rows)

    o.emit(results, show)
    return 0


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

    o.emit(results, show)
    return 0


def _offered(engine: Engine, method: str) -> Optional[Callable[..., Any]]:
    found: Optional[Callable[..., Any]] = getattr(engine, method, None)
    if found is None:
        sys.stderr.write(f"kel: {method} is not offered by this build: its family is not built yet\n")
    return found


def cmd_services(engine: Engine, args: argparse.Namespace, o: Output) -> int:
    describe = _offered(engine, "get_service_infos")
    if describe is None:
        return 2
    services = [s for s in describe(args.target, "", [], 0) if s]
    o.emit(services, lambda: _table(o.out, ["service", "description"], [
        [s.name, s.description] for s in services]))
    return 0


def cmd_exec(engine: Engine, args: argparse.Namespace, o: Output) -> int:
    execute = _offered(engine, "execute_service")
    service_input = getattr(records, "ServiceInput", None)
    parameter_input = getattr(records, "ParameterInput", None)
    if execute is None or service_input is None or parameter_input is None:
        return 2
    parameters = []
    for assignment in args.parameters:
        name, sep, value = assignment.partition("=")
        if not sep:
            sys.stderr.write(f"kel: parameters are NAME=VALUE, not {assignment!r}\n")
            return 2
        parameters.append(parameter_input(name=name, value=value))
    results = [r for r in execute(args.target, [service_input(service=args.service, parameters=parameters)]) if r]

    def show() -> None:
        rows: list[Sequence[Any]] = []
        for r in results:
            if r.error:
                rows.append([r.service, _error_text(r.error), ""])
            for response in r.responses:
                if response:
                    rows.append([r.service, response.kind, response.data.hex(" ")])
        _table(o.out, ["service", "response", "bytes"], rows)

    o.emit(results, show)
    return 0


def cmd_events(engine: Engine, args: argparse.Namespace, o: Output) -> int:
    # The channel opens before the engine starts, so its start shows too.
    with engine.events() as channel:
        engine.initialize()
        events = channel.follow(timeout=args.seconds) if args.follow else iter(channel.poll())
        if not o.as_json:
            o.out.write(f"{'kind':<4}  {'name':<18}  {'code':<4}  text  detail\n")
        for event in events:
            if o.as_json:
                o.out.write(json.dumps(_plain(event), ensure_ascii=False) + "\n")
            else:
                error = f"  [{_error_text(event.error)}]" if event.error else ""
                o.out.write(_printable(f"{event.kind:<4}  {event.name:<18}  {event.code:<4}  {event.text}  "
                                       f"{event.detail}{error}") + "\n")
            o.out.flush()
    return 0


def cmd_info(engine: Engine, args: argparse.Namespace, o: Output) -> int:
    info: dict[str, Any] = {"library": getattr(engine._lib, "_name", ""), "state": engine.get_state(),
                            "handle": engine.get_handle()}
    try:
        info["version"] = engine.get_version()
    except EngineError as e:
        info["version"] = None
        info["version_error"] = _error_text(e.record)
    o.emit(info, lambda: _table(o.out, ["", ""], [[k, v] for k, v in info.items()]))
    return 0


def parser() -> argparse.ArgumentParser:
    def options(parser: argparse.ArgumentParser, defaults: bool) -> argparse.ArgumentParser:
        # Accepted before and after the command; the command's copy only overrides.
        unset: dict[str, Any] = {} if defaults else {"default": argparse.SUPPRESS}
        parser.add_argument("--json", action="store_true", help="print JSON instead of tables", **unset)
        parser.add_argument("--library", help=f"the kel_c library to load (default: ${_library.ENVIRONMENT}, "
                                              "then the installed one, then a build tree)", **unset)
        return parser

    p = options(argparse.ArgumentParser(prog="kel", description="The kel_c diagnostics engine from the command line."),
                True)
    common = options(argparse.ArgumentParser(add_help=False), False)
    commands = p.add_subparsers(dest="command", required=True)

    class Sub:
        @staticmethod
        def add_parser(name: str, help: str) -> argparse.ArgumentParser:
            parser: argparse.ArgumentParser = commands.add_parser(name, help=help, parents=[common])
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
    s.add_argument("--mask", type=lambda t: int(t, 0), default=0,
                   help="status mask: only DTCs whose status shares a bit with it (default 0: all)")
    s.set_defaults(run=cmd_dtcs)
    s = sub.add_parser("ident", help="read the identification values")
    s.add_argument("targets", nargs="*", help="targets (default: all)")
    s.set_defaults(run=cmd_ident)
    s = sub.add_parser("services", help="the services that a target offers")
    s.add_argument("target")
    s.set_defaults(run=cmd_services)
    s = sub.add_parser("exec", help="execute a service")
    s.add_argument("target")
    s.add_argument("service")
    s.add_argument("parameters", nargs="*", metavar="PARAM=VALUE")
    s.set_defaults(run=cmd_exec)
    s = sub.add_parser("events", help="the engine's events")
    s.add_argument("--follow", action="store_true", help="keep following new events")
    s.add_argument("--seconds", type=float, default=None, help="with --follow: stop after this many quiet seconds")
    s.set_defaults(run=cmd_events, initialize=False)
    s = sub.add_parser("info", help="the engine's state, handle and version")
    s.set_defaults(run=cmd_info)
    return p


def main(argv: Optional[Sequence[str]] = None, out: TextIO = sys.stdout) -> int:
    args = parser().parse_args(argv)
    try:
        with Engine(library=args.library, initialize=getattr(args, "initialize", True)) as engine:
            code: int = args.run(engine, args, Output(args.json, out))
            return code
    except EngineError as e:
        sys.stderr.write(f"kel: {_printable(_error_text(e.record))}\n")
        return 1
    except LibraryNotFound as e:
        sys.stderr.write(f"kel: {e}\n")
        return 2
    except KeyboardInterrupt:
        return 130
    except BrokenPipeError:
        # A reader such as `head` went away; say nothing more on the closed pipe.
        try:
            sys.stdout = open(os.devnull, "w")
        except OSError:
            pass
        return 0
