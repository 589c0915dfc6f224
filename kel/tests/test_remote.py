"""Two processes, one vehicle: kel-sim-server runs the simulated vehicle in a process of its
own, and this one reaches it through Engine.connect and the command line's --connect."""

from __future__ import annotations

import contextlib
import io
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import threading
import unittest

import kel
from kel import cli
from kel.tests.support import ROOT, sim


def _program() -> str:
    """The build's kel-sim-server (ctest names it), else the one next to the loaded kel_c."""
    configured = os.environ.get("KEL_SIM_SERVER")
    if configured:
        return configured
    folder = pathlib.Path(kel.load()._name).parent
    return str(folder / ("kel-sim-server.exe" if sys.platform == "win32" else "kel-sim-server"))


class Server:
    """A kel-sim-server process. It stops when its stdin closes, so none outlives the test."""

    def __init__(self, root: str, *arguments: str) -> None:
        self.process = subprocess.Popen([_program(), "--until-stdin-closes", "--data-root", root, *arguments],
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        assert self.process.stdout is not None
        guard = threading.Timer(60, self.process.kill)  # a hang guard on its first line
        guard.start()
        try:
            self.address = self.process.stdout.readline().strip()
        finally:
            guard.cancel()

    def kill(self) -> None:
        self.process.kill()
        self.process.wait()
        self.close()

    def stop(self) -> int:
        """Closes its stdin: it stops its server and ends; its exit code."""
        self.close()
        return self.process.wait(timeout=30)

    def close(self) -> None:
        for stream in (self.process.stdin, self.process.stdout):
            if stream is not None and not stream.closed:
                stream.close()


class RemoteTest(unittest.TestCase):
    def setUp(self) -> None:
        sim.kelsim_reset()
        sim.kelsim_restart()
        self.root = tempfile.mkdtemp(prefix="kel_remote_test")
        self.addCleanup(sim.kelsim_reset)
        self.addCleanup(shutil.rmtree, self.root, ignore_errors=True)  # after the servers' kill

    def start(self, *arguments: str) -> Server:
        server = Server(self.root, *arguments)
        self.addCleanup(server.kill)
        self.assertRegex(server.address, r"^kel://127\.0\.0\.1:\d+$", "the line it printed")
        return server

    def cli(self, *arguments: str, password: str = "") -> subprocess.CompletedProcess[str]:
        env = dict(os.environ, KEL_PASSWORD=password)
        return subprocess.run([sys.executable, "-m", "kel", *arguments], cwd=ROOT, env=env, capture_output=True,
                              text=True, timeout=120, stdin=subprocess.DEVNULL)

    def test_the_command_line_reads_the_servers_vehicle_and_logs_in_with_the_password_from_the_environment(
            self) -> None:
        description = json.loads((ROOT / "reference_engine" / "vehicles" / "default.json").read_text("utf-8"))
        description["ecus"][0]["dtcs"][0]["text"] = "Misfire seen by the server process"
        vehicle = pathlib.Path(self.root) / "vehicle.json"
        vehicle.write_text(json.dumps(description), "utf-8")
        server = self.start("--vehicle", str(vehicle))
        here = io.StringIO()
        self.assertEqual(cli.main(["dtcs"], out=here), cli.PARTLY)
        there = self.cli("--connect", server.address, "dtcs")
        self.assertNotEqual(there.stdout, here.getvalue(), "this process runs the default vehicle")
        self.assertEqual(sim.kelsim_setVehicleJson(json.dumps(description).encode()), 0)
        here = io.StringIO()
        self.assertEqual(cli.main(["dtcs"], out=here), cli.PARTLY)
        self.assertEqual((there.returncode, there.stdout), (cli.PARTLY, here.getvalue()), there.stderr)

        with kel.Engine.connect(server.address) as admin:  # no user management yet: it administers
            admin.add_user("anna", "pw-of-Anna-1", 1)
            admin.set_server_user_management(1)
        self.assertEqual(self.cli("--connect", server.address, "--user", "anna", "dtcs",
                                  password="pw-of-Anna-1").returncode, cli.PARTLY)
        for arguments, password, code in (((), "", "error 1300"), (("--user", "anna"), "Wr0ng-9", "error 1306")):
            refused = self.cli("--connect", server.address, *arguments, "dtcs", password=password)
            self.assertEqual(refused.returncode, cli.FAILED)
            self.assertIn(code, refused.stderr)
            self.assertNotIn("Wr0ng-9", refused.stderr + refused.stdout)
        self.assertEqual(server.stop(), 0)

    def test_a_user_needs_a_server_and_a_password(self) -> None:
        with self.assertRaises(SystemExit) as usage, contextlib.redirect_stderr(io.StringIO()):
            cli.main(["--user", "anna", "dtcs"])
        self.assertEqual(usage.exception.code, cli.USAGE)
        with self.assertRaises(ValueError):
            kel.Engine.connect("kel://127.0.0.1:1", "anna")


if __name__ == "__main__":
    unittest.main()
