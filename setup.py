"""Builds the package with the library inside it: kel/_lib/ holds libkel_c.so and the
libraries it links (the simulated engine libkel_cpp.so and libvutil.so), which find one
another through their RUNPATH $ORIGIN; kel finds them with importlib.resources.

Where the libraries come from, first match:
  1. KEL_C_BUILD_DIR: a CMake build tree (or its bin/ folder), as the CMake target
     python_wheel passes it;
  2. the build tree of this checkout (build/release, then build/linux);
  3. a build of its own: CMake configures build/wheel (no tests, examples or benchmarks)
     and builds kel_c, so `pip install <checkout>` works on a machine that has the C++
     tools (cmake, ninja, g++, nlohmann-json3-dev) but no build yet.
Linux only: on Windows, install the zip and point KEL_C_LIBRARY at kel_c.dll."""

from __future__ import annotations

import os
import pathlib
import shutil
import subprocess

from setuptools import setup
from setuptools.command.build_py import build_py
from setuptools.dist import Distribution

ROOT = pathlib.Path(__file__).resolve().parent
LIBRARIES = ("libkel_c.so", "libkel_cpp.so", "libvutil.so")


def _bin(folder: pathlib.Path) -> pathlib.Path | None:
    for candidate in (folder / "bin", folder):
        if all((candidate / name).exists() for name in LIBRARIES):
            return candidate
    return None


def library_folder() -> pathlib.Path:
    given = os.environ.get("KEL_C_BUILD_DIR")
    if given:
        found = _bin(pathlib.Path(given))
        if found is None:
            raise SystemExit(f"KEL_C_BUILD_DIR={given} holds no built {', '.join(LIBRARIES)}")
        return found
    for preset in ("release", "linux"):
        found = _bin(ROOT / "build" / preset)
        if found is not None:
            return found
    build = ROOT / "build" / "wheel"
    subprocess.run(["cmake", "-S", str(ROOT), "-B", str(build), "-DCMAKE_BUILD_TYPE=Release", "-DKEL_BUILD_TESTS=OFF",
                    "-DKEL_BUILD_EXAMPLES=OFF", "-DKEL_BUILD_BENCH=OFF"], check=True)
    subprocess.run(["cmake", "--build", str(build), "--target", "kel_c", "kel_cpp"], check=True)
    found = _bin(build)
    if found is None:
        raise SystemExit(f"the build in {build} made no {', '.join(LIBRARIES)}")
    return found


class BuildWithLibrary(build_py):
    def run(self) -> None:
        super().run()
        target = pathlib.Path(self.build_lib) / "kel" / "_lib"
        target.mkdir(parents=True, exist_ok=True)
        source = library_folder()
        for name in LIBRARIES:
            # The real file under the plain name: the package loads libkel_c.so by path.
            shutil.copyfile((source / name).resolve(), target / name)


class WithLibrary(Distribution):
    """The wheel carries a native library, so it is tagged for this platform."""

    def has_ext_modules(self) -> bool:
        return True


setup(cmdclass={"build_py": BuildWithLibrary}, distclass=WithLibrary)
