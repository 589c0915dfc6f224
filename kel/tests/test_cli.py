"""The command line: its tables, --json, and exit codes."""

from __future__ import annotations

import contextlib
import io
import json
import os
import pathlib
import subprocess
import sys
import unittest
import unittest.mock

import kel
from kel import cli

from .support import ROOT, EngineTest, sim


def run(*args: str, **environment: str) -> subprocess.CompletedProcess[str]:
    env = {**os.environ, **environment}
    return subprocess.run([sys.executable, "-m", "kel", *args], cwd=ROOT, env=env, capture_output=True, text=True,
                          timeout=60)


class CommandLine(EngineTest):
    initialize = False  # the command line obtains its own engine in this process

    def main(self, *args: str) -> tuple[int, str, str]:
        out, err = io.StringIO(), io.StringIO()
        with contextlib.redirect_stderr(err):
            code = cli.main(list(args), out=out)
        return code, out.getvalue(), err.getvalue()

    def ok(self, *args: str) -> str:
        """What a command that must succeed prints."""
        code, out, err = self.main(*args)
        self.assertEqual(code, 0, err)
        return out

    def test_dtcs_prints_the_table_and_exits_3_for_the_silent_unit(self) -> None:
        done = run("dtcs")
        self.assertEqual(done.returncode, 3, done.stderr)
        lines = done.stdout.splitlines()
        self.assertEqual(lines[0].split(), ["ECU", "code", "status", "text", "status", "bits"])
        self.assertEqual(lines[1].split()[:3], ["ECM", "P0301", "0x2F"])
        # 0x2F, decoded through DtcStatus: bits 0, 1, 2, 3 and 5.
        self.assertRegex(lines[1], r"Cylinder 1 misfire detected +test failed, test failed this operation "
                                   r"cycle, pending, confirmed, test failed since last clear$")
        self.assertEqual(len({line.index("0x") for line in lines[1:-1]}), 1, "aligned")
        self.assertEqual(len(lines), 1 + 6 + 1, "six DTCs and the silent ECU")
        self.assertTrue(lines[-1].startswith("ACC  error 1010: The control unit does not respond"))
        self.assertNotIn("\x1b", done.stdout, "no colour into a pipe")

    def test_json_has_the_readable_names_and_an_unknown_target_exits_3(self) -> None:
        done = run("identify", "--json", "ECM", "NOPE")
        self.assertEqual(done.returncode, 3, done.stderr)
        results = json.loads(done.stdout)
        self.assertEqual(results[0]["variant"], "ECM_EDC17_CR_2L0_V3")
        self.assertEqual(results[1]["error"]["code"], 1011)
        first = json.loads(self.ok("--json", "dtcs", "ECM"))[0]["dtcs"][0]
        self.assertEqual((first["display_code"], first["status"]), ("P0301", 0x2F))

    def test_exec_raw_hex_decodes_the_response_then_its_bytes(self) -> None:
        rows = [line.split() for line in self.ok("exec", "ECM", "22F190").splitlines()]
        self.assertIn(["VIN", "WVWZZZ1KZ8W000417"], rows)
        self.assertEqual(rows[-1][:4], ["bytes", "62", "F1", "90"])
        code, out, _ = self.main("exec", "ECM", "22F1FF")  # an identifier the unit lacks: a negative response
        self.assertEqual(code, 3)
        self.assertIn("7F 22 31", out)
        self.assertEqual(self.main("exec", "ECM", "22F190", "A=1")[0], 2)

    def test_version_help_and_a_mask_that_is_no_number(self) -> None:
        done = run("--version")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertRegex(done.stdout, r"^kel \S+\nkel_c \S+ .*\nengine kel_cpp ")
        self.assertIn("3  some target answered with an error", run("--help").stdout)
        done = run("dtcs", "--mask", "zz")
        self.assertEqual(done.returncode, 2)
        self.assertIn("'zz' is not a status mask", done.stderr)
        self.assertNotIn("lambda", done.stderr)

    def test_colour_only_on_a_terminal_without_no_color(self) -> None:
        class Terminal(io.StringIO):
            def isatty(self) -> bool:
                return True

        for environment, coloured in (({}, True), ({"NO_COLOR": "1"}, False)):
            out = Terminal()
            with unittest.mock.patch.dict(os.environ, environment):
                os.environ.pop("NO_COLOR", None) if not environment else None
                cli._table(out, ["a"], [["x"], ["error 1: y"]])
            self.assertEqual("\x1b[" in out.getvalue(), coloured, environment)

    def test_an_engine_error_exits_1_with_code_and_message_on_stderr(self) -> None:
        sim.kelsim_failNext(b"getTargets", 1, 42, 0, "Werkstatt geschlossen", "")
        code, out, err = self.main("targets")
        self.assertEqual((code, out), (1, ""))
        self.assertEqual(err, "kel: error 42: Werkstatt geschlossen\n")

    def test_clear_then_read(self) -> None:
        self.assertEqual(self.ok("dtcs", "--clear", "ECM", "TCM").split(), ["ECU", "cleared", "ECM", "yes", "TCM", "yes"])
        out = self.ok("--json", "dtcs", "--mask", "0x01", "ECM", "ESP")
        self.assertEqual([(r["target"], len(r["dtcs"])) for r in json.loads(out)], [("ECM", 0), ("ESP", 1)])

    def test_ident_targets_events_info(self) -> None:
        self.assertIn("F190  VIN", self.ok("ident", "ECM"))
        out = self.ok("targets")
        self.assertEqual([line.split()[0] for line in out.splitlines()], ["name", "ECM", "TCM", "ESP", "BCM", "GW", "ACC"])
        out = self.ok("events")
        self.assertIn("EngineInitialized", out)
        header, first = out.splitlines()[:2]
        self.assertEqual(header.index("text"), first.index("The engine is initialized"), "events aligned")
        self.assertEqual(json.loads(self.ok("--json", "info"))["state"], 1)
        self.assertEqual(self.ok("info").splitlines()[1].split(), ["state", "initialized"], "no blank line first")

    def test_control_characters_that_engine_texts_echo_are_escaped_in_tables(self) -> None:
        code, out, _ = self.main("identify", "E\x1b[2J\nX")
        self.assertEqual(code, 3)  # no such target
        self.assertNotIn("\x1b", out)
        self.assertEqual(out.splitlines()[1].split()[0], "E\\x1b[2J\\x0aX")
        self.assertEqual(len(out.splitlines()), 2, "one line per row")

    def test_usage_errors_exit_2_and_a_library_not_found_1(self) -> None:
        self.assertEqual(run("nosuchcommand").returncode, 2)
        done = run("info", **{kel.ENVIRONMENT: "/nowhere/libkel_c.so"})
        self.assertEqual(done.returncode, 1)
        self.assertIn("/nowhere/libkel_c.so", done.stderr)
        # A library that loads but is not kel_c (here the engine beside it) is refused alike.
        engine = pathlib.Path(kel.load()._name).parent / ("kel_cpp.dll" if sys.platform == "win32" else "libkel_cpp.so")
        done = run("--library", str(engine), "info")
        self.assertEqual((done.returncode, len(done.stderr.splitlines())), (2, 1), done.stderr)
        self.assertIn("is not kel_c", done.stderr)


if __name__ == "__main__":
    unittest.main()
