#!/usr/bin/env python3
"""Checks kel_c as its users get it. First `cmake --install` of a build into a scratch
prefix: the installed examples built there through find_package and pkg-config, the
installed `kel` command and kel-sim-server. Then the Debian packages CPack makes, unpacked
with dpkg-deb -x: the runtime and development packages alone serve a program against an
engine of the system (a copy of the simulated one stands in for a vendor's), and refuse the
examples that script the simulator, naming its package; with the simulator and Python
packages added, every example builds and runs. Standard library only."""

from __future__ import annotations

import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys

# A line of typical_path's table: the simulated vehicle's first DTC.
EXPECTED_LINE = re.compile(r"^ECM\s+P0301\s", re.MULTILINE)
PACKAGES = {"runtime": "libkel-c0", "development": "libkel-c-dev", "python": "python3-kel", "sim": "kel-c-sim"}
WITH_PROGRAMS = ("runtime", "sim")  # the packages whose debug information goes to -dbgsym


def run(*command: object, cwd: pathlib.Path | None = None, env: dict[str, str] | None = None,
        expect: int | None = 0) -> str:
    done = subprocess.run([str(c) for c in command], cwd=cwd, env=env, capture_output=True, text=True,
                          timeout=300)
    if expect is None and done.returncode == 0:
        raise SystemExit(f"SUCCEEDED, expected to fail: {' '.join(map(str, command))}\n{done.stdout}{done.stderr}")
    if expect is not None and done.returncode != expect:
        raise SystemExit(f"FAILED ({done.returncode}): {' '.join(map(str, command))}\n{done.stdout}{done.stderr}")
    return done.stdout + done.stderr if expect is None else done.stdout


def clean_environment(**extra: str) -> dict[str, str]:
    """No hint of the build tree: the installed tree must serve by itself."""
    env = {k: v for k, v in os.environ.items()
           if k not in ("KEL_C_LIBRARY", "PYTHONPATH", "LD_LIBRARY_PATH", "PKG_CONFIG_PATH", "CMAKE_PREFIX_PATH")}
    env["PYTHONDONTWRITEBYTECODE"] = "1"
    env.update(extra)
    return env


def example_names(examples: pathlib.Path) -> tuple[list[str], list[str]]:
    """The examples that need only kel_c, and those that script the simulator."""
    plain, scripted = [], []
    for source in sorted(examples.glob("*.c")):
        (scripted if "#include <kel_sim.h>" in source.read_text() else plain).append(source.stem)
    if not plain or not scripted:
        raise SystemExit(f"{examples}: expected examples with and without kel_sim.h")
    return plain, scripted


class Tree:
    """An installed tree: a `cmake --install` prefix or an unpacked Debian root's usr/."""

    def __init__(self, prefix: pathlib.Path, work: pathlib.Path, label: str) -> None:
        self.prefix, self.work, self.label = prefix, work, label
        pcs = list(prefix.glob("lib*/**/pkgconfig/kel_c.pc"))
        if len(pcs) != 1:
            raise SystemExit(f"{label}: no single kel_c.pc under {prefix}: {pcs}")
        self.pkgconfig = pcs[0].parent
        self.libdir = self.pkgconfig.parent
        self.simdir = self.libdir / "kel_c" / "sim"
        self.examples = prefix / "share" / "doc" / "kel_c" / "examples"

    def fail(self, what: str) -> None:
        raise SystemExit(f"{self.label}: {what}")

    def build_examples(self, names: list[str], env: dict[str, str], tag: str, expect: int | None = 0) -> str:
        build = self.work / f"{self.label}-{tag}"
        shutil.rmtree(build, ignore_errors=True)
        out = run("cmake", "-S", self.examples, "-B", build, "-G", "Ninja", f"-DCMAKE_PREFIX_PATH={self.prefix}",
                  f"-DKEL_EXAMPLES={';'.join(names)}", env=env, expect=expect)
        if expect is None:
            return out
        run("cmake", "--build", build, env=env)
        for name in names:
            printed = run(build / name, cwd=self.work, env=env)
            if name == "typical_path" and not EXPECTED_LINE.search(printed):
                self.fail(f"the find_package build of typical_path printed:\n{printed}")
        return ""

    def build_pkgconfig(self, name: str, module: str, env: dict[str, str]) -> str:
        pc_env = {**env, "PKG_CONFIG_PATH": str(self.pkgconfig)}
        flags = run("pkg-config", "--cflags", "--libs", module, env=pc_env).split()
        libdir = run("pkg-config", "--variable=libdir", "kel_c", env=pc_env).strip()
        program = self.work / f"{self.label}-pkgconfig-{name}"
        # kel_c is not in a system folder here: the program carries its folder (README).
        run("cc", "-std=c99", self.examples / f"{name}.c", *flags, f"-Wl,-rpath,{libdir}", "-o", program, env=env)
        return run(program, cwd=self.work, env=env)

    def check_soname(self) -> None:
        library = next(self.libdir.glob("libkel_c.so.*.*"))
        if "SONAME               libkel_c.so.0" not in run("objdump", "-p", library):
            self.fail(f"{library} has no versioned SONAME")

    def check_with_simulator(self) -> None:
        """Everything installed: every example through find_package, the scripted ones
        through pkg-config kel_sim, `kel` and kel-sim-server."""
        env = clean_environment()
        plain, scripted = example_names(self.examples)
        self.build_examples(plain + scripted, env, "all")
        printed = self.build_pkgconfig(scripted[0], "kel_sim", env)
        if not printed.strip():
            self.fail(f"{scripted[0]} built with pkg-config kel_sim printed nothing")
        # Python programs load kel_c into the interpreter: the simulator comes through the
        # loader's path, as for any program that does not link it. Exit code 3: the
        # simulated ACC is silent.
        kel_env = clean_environment(LD_LIBRARY_PATH=str(self.simdir))
        out = run(sys.executable, self.prefix / "bin" / "kel", "dtcs", cwd=self.work, env=kel_env, expect=3)
        if "P0301" not in out:
            self.fail(f"kel dtcs printed:\n{out}")
        info = run(sys.executable, self.prefix / "bin" / "kel", "--json", "info", cwd=self.work, env=kel_env)
        if str(self.prefix.resolve()) not in info:
            self.fail(f"kel did not load the installed library:\n{info}")
        # The installed server program finds the simulator (its RPATH) and stops when its
        # stdin ends.
        server = subprocess.run([str(self.prefix / "bin" / "kel-sim-server"), "--until-stdin-closes", "--data-root",
                                 str(self.work / f"{self.label}-server")], env=env, input="", capture_output=True,
                                text=True, timeout=120)
        if server.returncode != 0 or server.stdout.count("\n") != 1:
            self.fail(f"kel-sim-server exited with {server.returncode}:\n{server.stdout}{server.stderr}")
        print(f"{self.label}: {len(plain + scripted)} examples (find_package), {scripted[0]} (pkg-config kel_sim), "
              f"kel and kel-sim-server serve from {self.prefix}")

    def check_without_simulator(self, vendor: pathlib.Path) -> None:
        """kel_c alone, with an engine on the loader's path as a vendor's would be."""
        strays = [p for p in self.prefix.parent.rglob("*") if p.name.startswith("libkel_cpp") or p.name == "kel_sim.h"]
        if strays:
            self.fail(f"the simulator came without its package: {strays}")
        env = clean_environment(LD_LIBRARY_PATH=str(vendor))
        plain, scripted = example_names(self.examples)
        self.build_examples(plain, env, "plain")
        if not EXPECTED_LINE.search(self.build_pkgconfig("typical_path", "kel_c", env)):
            self.fail("typical_path built with pkg-config kel_c printed no DTC table")
        refused = self.build_examples(scripted[:1], env, "scripted", expect=None)
        if "kel_c::kel_sim needs the kel-c-sim package" not in " ".join(refused.split()):
            self.fail(f"the example {scripted[0]} without the simulator did not name its package:\n{refused}")
        run("pkg-config", "--cflags", "kel_sim", env={**env, "PKG_CONFIG_PATH": str(self.pkgconfig)}, expect=None)
        print(f"{self.label}: {len(plain)} examples (find_package) and typical_path (pkg-config) against a system "
              f"engine; {scripted[0]} refused without kel-c-sim")


def check_debs(packages: pathlib.Path, build: pathlib.Path, work: pathlib.Path, max_runtime_kb: int | None) -> None:
    debs = {}
    for deb in sorted(packages.glob("*.deb")) + sorted(packages.glob("*.ddeb")):
        debs[run("dpkg-deb", "--field", deb, "Package").strip()] = deb
    missing = [p for p in PACKAGES.values() if p not in debs]
    missing += [f"{PACKAGES[c]}-dbgsym" for c in WITH_PROGRAMS if f"{PACKAGES[c]}-dbgsym" not in debs]
    if missing:
        raise SystemExit(f"packages missing: {missing} (made: {sorted(debs)})")
    for component in WITH_PROGRAMS:
        package = PACKAGES[component]
        if "./usr/lib/debug/.build-id/" not in run("dpkg-deb", "-c", debs[f"{package}-dbgsym"]):
            raise SystemExit(f"{package}-dbgsym holds no debug information by build ID")
        for line in run("dpkg-deb", "-c", debs[package]).splitlines():
            path = line.split()[-1]
            if line.startswith("-") and (".so" in path or "/bin/" in path):
                unpacked = work / "elf" / pathlib.Path(path).name
                unpacked.parent.mkdir(exist_ok=True)
                if ".debug_info" in run("objdump", "-h", extract(debs[package], path, unpacked)):
                    raise SystemExit(f"{package}: {path} is not stripped")
    runtime = run("dpkg-deb", "--field", debs[PACKAGES["runtime"]], "Depends", "Installed-Size")
    if "libc6 (>=" not in runtime or "kel-c-sim" in runtime:
        raise SystemExit(f"{PACKAGES['runtime']}: Depends not from the libraries' needs:\n{runtime}")
    size = int(re.search(r"Installed-Size: (\d+)", runtime).group(1))  # type: ignore[union-attr]
    if max_runtime_kb is not None and size > max_runtime_kb:
        raise SystemExit(f"{PACKAGES['runtime']} installs {size} kB, more than {max_runtime_kb} kB")

    # A vendor's engine stands in as a copy of the simulated one, outside the unpacked root.
    vendor = work / "vendor-engine"
    vendor.mkdir()
    shutil.copy2(next(build.glob("bin/libkel_cpp.so")), vendor)
    root = work / "root"
    for component in ("runtime", "development"):
        run("dpkg-deb", "-x", debs[PACKAGES[component]], root)
    tree = Tree(root / "usr", work, "deb")
    tree.check_soname()
    tree.check_without_simulator(vendor)
    for component in ("sim", "python"):
        run("dpkg-deb", "-x", debs[PACKAGES[component]], root)
    # The system's interpreter, the one the package serves, searches where it went.
    system_python = pathlib.Path("/usr/bin/python3")
    if system_python.exists():
        searched = run(system_python, "-c", "import sys; print('\\n'.join(sys.path))").split()
        places = [str(p.parent.parent.relative_to(root).as_posix()) for p in root.glob("usr/lib/**/kel/__init__.py")]
        if not any(f"/{place}" in searched for place in places):
            raise SystemExit(f"{PACKAGES['python']}: the package in {places} is not on {system_python}'s path")
    Tree(root / "usr", work, "deb+sim").check_with_simulator()
    for name, deb in debs.items():
        fields = run("dpkg-deb", "--field", deb, "Installed-Size", "Depends")
        print(f"{name}: {deb.stat().st_size // 1024} kB, {' '.join(fields.split())}")


def extract(deb: pathlib.Path, member: str, to: pathlib.Path) -> pathlib.Path:
    with subprocess.Popen(["dpkg-deb", "--fsys-tarfile", str(deb)], stdout=subprocess.PIPE) as tar:
        data = subprocess.run(["tar", "-xO", member], stdin=tar.stdout, capture_output=True, check=True).stdout
    to.write_bytes(data)
    return to


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", type=pathlib.Path, required=True, help="the build folder to install")
    parser.add_argument("--packages", type=pathlib.Path, help="the Debian packages made from it (default: run CPack)")
    parser.add_argument("--max-runtime-kb", type=int, help="the most the runtime package may install")
    args = parser.parse_args()
    work = args.build.resolve() / "consumer-check"
    shutil.rmtree(work, ignore_errors=True)
    work.mkdir(parents=True)

    prefix = work / "prefix"
    run("cmake", "--install", args.build, "--prefix", prefix)
    installed = Tree(prefix, work, "installed")
    installed.check_soname()
    installed.check_with_simulator()

    packages = args.packages
    if packages is None:
        packages = work / "packages"
        run("cpack", "-G", "DEB", "--config", args.build / "CPackConfig.cmake", "-B", packages)
    check_debs(packages, args.build, work, args.max_runtime_kb)
    return 0


if __name__ == "__main__":
    sys.exit(main())
