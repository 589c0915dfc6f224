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

    def test_dtcs_prints_the_table(self) -> None:
        done = run("dtcs")
        self.assertEqual(done.returncode, 0, done.stderr)
        lines = done.stdout.splitlines()
        self.assertEqual(lines[0].split(), ["ECU", "code", "status", "text"])
        self.assertEqual(lines[1].split()[:3], ["ECM", "P0301", "0x2F"])
        self.assertTrue(lines[1].endswith("active, confirmed  Cylinder 1 misfire detected"))
        self.assertEqual(len(lines), 1 + 6 + 1, "six DTCs and the silent ECU")
        self.assertTrue(lines[-1].startswith("ACC  error 1010: The control unit does not respond"))

    def test_json_is_the_records(self) -> None:
        done = run("identify", "--json", "ECM", "NOPE")
        self.assertEqual(done.returncode, 0, done.stderr)
        results = json.loads(done.stdout)
        self.assertEqual(results[0]["variant"], "ECM_EDC17_CR_2L0_V3")
        self.assertEqual(results[1]["error"]["code"], 1011)

    def test_an_engine_error_exits_1_with_code_and_message_on_stderr(self) -> None:
        sim.kelsim_failNext(b"getTargets", 1, 42, 0, "Werkstatt geschlossen", "")
        code, out, err = self.main("targets")
        self.assertEqual((code, out), (1, ""))
        self.assertEqual(err, "kel: error 42: Werkstatt geschlossen\n")

    def test_clear_then_read(self) -> None:
        code, out, _ = self.main("dtcs", "--clear", "ECM", "TCM")
        self.assertEqual(code, 0)
        self.assertEqual(out.split(), ["ECU", "cleared", "ECM", "yes", "TCM", "yes"])
        code, out, _ = self.main("--json", "dtcs", "--mask", "0x01", "ECM", "ESP")
        self.assertEqual(code, 0)
        self.assertEqual([(r["target"], len(r["dtcs"])) for r in json.loads(out)], [("ECM", 0), ("ESP", 1)])

    def test_ident_targets_events_info(self) -> None:
        code, out, _ = self.main("ident", "ECM")
        self.assertEqual(code, 0)
        self.assertIn("F190  VIN", out)
        code, out, _ = self.main("targets")
        self.assertEqual([line.split()[0] for line in out.splitlines()], ["name", "ECM", "TCM", "ESP", "BCM", "GW", "ACC"])
        code, out, _ = self.main("events")
        self.assertEqual(code, 0)
        self.assertIn("EngineInitialized", out)
        code, out, _ = self.main("--json", "info")
        self.assertEqual((code, json.loads(out)["state"]), (0, 1))

    def test_control_characters_that_engine_texts_echo_are_escaped_in_tables(self) -> None:
        code, out, _ = self.main("identify", "E\x1b[2J\nX")
        self.assertEqual(code, 0)
        self.assertNotIn("\x1b", out)
        self.assertEqual(out.splitlines()[1].split()[0], "E\\x1b[2J\\x0aX")
        self.assertEqual(len(out.splitlines()), 2, "one line per row")

    def test_operations_of_families_not_built_exit_2(self) -> None:
        if hasattr(kel.Engine, "get_service_infos"):
            self.skipTest("the Services family is built")
        code, _, err = self.main("services", "ECM")
        self.assertEqual(code, 2)
        self.assertIn("not offered", err)

    def test_usage_errors_and_a_missing_library_exit_2(self) -> None:
        self.assertEqual(run("nosuchcommand").returncode, 2)
        done = run("info", **{kel.ENVIRONMENT: "/nowhere/libkel_c.so"})
        self.assertEqual(done.returncode, 2)
        self.assertIn("/nowhere/libkel_c.so", done.stderr)
        # A library that loads but is not kel_c (here the engine beside it) is refused alike.
        engine = pathlib.Path(kel.load()._name).parent / ("kel_cpp.dll" if sys.platform == "win32" else "libkel_cpp.so")
        done = run("--library", str(engine), "info")
        self.assertEqual((done.returncode, len(done.stderr.splitlines())), (2, 1), done.stderr)
        self.assertIn("is not kel_c", done.stderr)


if __name__ == "__main__":
    unittest.main()
