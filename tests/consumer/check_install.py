#!/usr/bin/env python3
"""Checks kel_c as its users get it: `cmake --install` of a build into a scratch prefix,
then the consumer project built against it through find_package and through
pkg-config, and the installed `kel` command; then the same from the Debian package that
CPack makes, unpacked with dpkg-deb -x. Standard library only."""

from __future__ import annotations

import argparse
import glob
import os
import pathlib
import shutil
import subprocess
import sys

# What the consumer prints for the simulated vehicle's first DTC.
EXPECTED_LINE = "ECM P0301"


def run(*command: object, cwd: pathlib.Path | None = None, env: dict[str, str] | None = None,
        expect: int = 0) -> str:
    done = subprocess.run([str(c) for c in command], cwd=cwd, env=env, capture_output=True, text=True)
    if done.returncode != expect:
        raise SystemExit(f"FAILED ({done.returncode}): {' '.join(map(str, command))}\n{done.stdout}{done.stderr}")
    return done.stdout


def clean_environment() -> dict[str, str]:
    """No hint of the build tree: the installed tree must serve by itself."""
    env = {k: v for k, v in os.environ.items() if k not in ("KEL_C_LIBRARY", "PYTHONPATH", "LD_LIBRARY_PATH")}
    env["PYTHONDONTWRITEBYTECODE"] = "1"
    return env


def check_prefix(prefix: pathlib.Path, source: pathlib.Path, work: pathlib.Path, label: str) -> None:
    env = clean_environment()
    libdir = pathlib.Path(glob.glob(str(prefix / "lib*/pkgconfig/kel_c.pc"))[0]).parent.parent

    # The versioned SONAME with its links.
    library = next(libdir.glob("libkel_c.so.*.*"))
    soname = run("objdump", "-p", library)
    if "SONAME               libkel_c.so.0" not in soname:
        raise SystemExit(f"{label}: {library} has no versioned SONAME:\n{soname}")

    # find_package(kel_c CONFIG) and kel_c::kel_c.
    build = work / f"{label}-cmake"
    run("cmake", "-S", source, "-B", build, "-G", "Ninja", f"-DCMAKE_PREFIX_PATH={prefix}", env=env)
    run("cmake", "--build", build, env=env)
    out = run(build / "consumer", env=env)
    if EXPECTED_LINE not in out.splitlines():
        raise SystemExit(f"{label}: the find_package consumer printed:\n{out}")

    # pkg-config.
    pc_env = {**env, "PKG_CONFIG_PATH": str(libdir / "pkgconfig")}
    version = run("pkg-config", "--modversion", "kel_c", env=pc_env).strip()
    flags = run("pkg-config", "--cflags", "--libs", "kel_c", env=pc_env).split()
    library_dir = run("pkg-config", "--variable=libdir", "kel_c", env=pc_env).strip()
    program = work / f"{label}-pkgconfig"
    run("cc", "-std=c99", source / "consumer.c", *flags, f"-Wl,-rpath,{library_dir}", "-o", program, env=env)
    out = run(program, env=env)
    if EXPECTED_LINE not in out.splitlines():
        raise SystemExit(f"{label}: the pkg-config consumer printed:\n{out}")

    # The installed command finds the installed library by itself, away from the sources.
    # Exit code 3: the simulated ACC is silent.
    out = run(sys.executable, prefix / "bin" / "kel", "dtcs", cwd=work, env=env, expect=3)
    if "P0301" not in out:
        raise SystemExit(f"{label}: kel dtcs printed:\n{out}")
    info = run(sys.executable, prefix / "bin" / "kel", "--json", "info", cwd=work, env=env)
    if str(prefix.resolve()) not in info:
        raise SystemExit(f"{label}: kel did not load the installed library:\n{info}")
    # The installed server program finds the installed engine (its RPATH) and stops when its
    # stdin ends.
    server = subprocess.run([str(prefix / "bin" / "kel-sim-server"), "--until-stdin-closes", "--data-root",
                             str(work / f"{label}-server")], env=env, input="", capture_output=True, text=True,
                            timeout=120)
    if server.returncode != 0 or server.stdout.count("\n") != 1:
        raise SystemExit(f"{label}: kel-sim-server exited with {server.returncode}:\n{server.stdout}{server.stderr}")
    print(f"{label}: find_package, pkg-config {version}, kel and kel-sim-server serve from {prefix}")


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", type=pathlib.Path, required=True, help="the build folder to install")
    parser.add_argument("--source", type=pathlib.Path, required=True, help="the consumer project")
    args = parser.parse_args()
    work = args.build / "consumer-check"
    shutil.rmtree(work, ignore_errors=True)
    work.mkdir(parents=True)

    prefix = work / "prefix"
    run("cmake", "--install", args.build, "--prefix", prefix)
    check_prefix(prefix, args.source, work, "installed")

    packages = work / "packages"
    run("cpack", "-G", "DEB", "--config", args.build / "CPackConfig.cmake", "-B", packages)
    deb = next(packages.glob("*.deb"))
    fields = run("dpkg-deb", "--field", deb, "Package", "Version", "Depends")
    if "Package: kel-c" not in fields:
        raise SystemExit(f"unexpected package fields:\n{fields}")
    unpacked = work / "deb"
    run("dpkg-deb", "-x", deb, unpacked)
    check_prefix(unpacked / "usr", args.source, work, "deb")
    print(f"{deb.name}: {' '.join(fields.split())}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
