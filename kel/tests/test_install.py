"""Installing like any Python package: `pip install <checkout>` into a fresh venv, offline
(--no-index --no-build-isolation, setuptools and wheel from Debian), gives the package and
the `kel` command, which find the library the package carries, away from the checkout.

Slow (a venv and a build of the package), so it runs as its own ctest, python_install:
`python -m kel.tests.test_install` with KEL_INSTALL_TEST naming the interpreter whose venv
to make; exit code 77 (skipped) when that interpreter cannot make one offline. The
library comes from the build tree of KEL_C_LIBRARY (setup.py's KEL_C_BUILD_DIR)."""

from __future__ import annotations

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
PYTHON = os.environ.get("KEL_INSTALL_TEST", "")
WHEELS = pathlib.Path("/usr/share/python-wheels")  # Debian's python3-*-whl
DONE_WHEN = """
import kel
with kel.Engine() as e:
    for r in e.read_dtcs(["ECM"], kel.DtcReadConfig(status_mask=0xFF, with_snapshots=True)):
        for d in r.dtcs:
            print(d.display_code, d.description, d.status.confirmed, [(p.name, p.value, p.unit) for p in d.snapshots])
print(kel.candidates()[0])
"""


def missing() -> str:
    """Why this machine cannot run the test, or ""."""
    if not PYTHON:
        return "KEL_INSTALL_TEST is not set (ctest python_install sets it)"
    probe = subprocess.run([PYTHON, "-c", "import ensurepip, venv"], capture_output=True)
    if probe.returncode:
        return f"{PYTHON} cannot make a venv (Debian: python3-venv)"
    if not list(WHEELS.glob("wheel-*.whl")):
        return f"no wheel in {WHEELS} to build with offline (Debian: python3-wheel-whl)"
    return ""


@unittest.skipIf(missing(), missing())
class PipInstall(unittest.TestCase):
    def run_in(self, *command: object, **env: str) -> subprocess.CompletedProcess[str]:
        clean = {k: v for k, v in os.environ.items() if k not in ("KEL_C_LIBRARY", "PYTHONPATH", "LD_LIBRARY_PATH")}
        return subprocess.run([str(c) for c in command], cwd=self.work, env={**clean, **env}, capture_output=True,
                              text=True, timeout=600)

    def test_pip_install_of_the_checkout_in_a_fresh_venv(self) -> None:
        with tempfile.TemporaryDirectory() as work:
            self.work = pathlib.Path(work)
            venv = self.work / "venv"
            bin_ = venv / "bin"
            self.assertEqual(self.run_in(PYTHON, "-m", "venv", venv).returncode, 0)
            done = self.run_in(bin_ / "pip", "install", "--no-index", "--find-links", WHEELS, "wheel")
            self.assertEqual(done.returncode, 0, done.stderr)
            build = pathlib.Path(os.environ["KEL_C_LIBRARY"]).resolve().parent
            done = self.run_in(bin_ / "pip", "install", "--no-index", "--no-build-isolation", ROOT,
                               KEL_C_BUILD_DIR=str(build))
            self.assertEqual(done.returncode, 0, done.stdout + done.stderr)

            # The command: the table, and 3 because ACC is silent.
            done = self.run_in(bin_ / "kel", "dtcs")
            self.assertEqual(done.returncode, 3, done.stderr)
            self.assertIn("P0301", done.stdout)
            self.assertTrue(done.stdout.splitlines()[-1].startswith("ACC  error 1010"))

            # The package, with the library it carries, from a folder that is not the checkout.
            done = self.run_in(bin_ / "python", "-c", DONE_WHEN)
            self.assertEqual(done.returncode, 0, done.stderr)
            lines = done.stdout.splitlines()
            self.assertTrue(lines[0].startswith("P0301 Cylinder 1 misfire detected True [('EngineSpeed', "), lines[0])
            self.assertTrue(lines[-1].startswith(str(venv)), lines[-1])
            self.assertTrue(lines[-1].endswith("/kel/_lib/libkel_c.so"), lines[-1])


if __name__ == "__main__":
    reason = missing()
    if reason:
        print(f"skipped: {reason}")
        sys.exit(77)
    unittest.main()
