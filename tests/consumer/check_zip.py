#!/usr/bin/env python3
"""Checks the Windows zips that CPack makes: kel_c's holds the DLLs, the header, the import
library, the CMake and pkg-config files, the Python package and the examples, and nothing
of the simulated engine, which comes in a zip of its own that unpacks into the same
folder; every DLL imports only Windows system DLLs and DLLs of the two zips (no compiler
runtime left behind); and kel_c.dll carries its version resource. Standard library only."""

from __future__ import annotations

import argparse
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import zipfile

# DLLs every Windows has; anything else must come in the zip.
SYSTEM_DLLS = {"kernel32.dll", "msvcrt.dll", "user32.dll", "advapi32.dll", "ws2_32.dll", "shell32.dll", "ole32.dll",
               "bcrypt.dll", "ntdll.dll", "crypt32.dll", "iphlpapi.dll", "userenv.dll", "secur32.dll", "mswsock.dll"}
REQUIRED = {
    "kel_c": ["bin/kel_c.dll", "bin/vutil.dll", "include/kel_c.h", "lib/libkel_c.dll.a",
              "lib/cmake/kel_c/kel_c-config.cmake", "lib/cmake/kel_c/kel_c-config-version.cmake",
              "lib/pkgconfig/kel_c.pc", "python/kel/__init__.py", "python/kel/_installed.py",
              "python/kel/generated/operations.py", "share/doc/kel_c/README.md",
              "share/doc/kel_c/examples/CMakeLists.txt"],
    "kel_c-sim": ["bin/kel_cpp.dll", "bin/kel-sim-server.exe", "include/kel_sim.h", "lib/libkel_cpp.dll.a",
                  "lib/pkgconfig/kel_sim.pc"],
}
# What only the simulator's zip may hold.
SIMULATOR = re.compile(r"kel_cpp|kel_sim|kel-sim-server", re.IGNORECASE)


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", type=pathlib.Path, required=True)
    parser.add_argument("--objdump", required=True)
    parser.add_argument("--version", default=None, help="the version the DLL must carry")
    args = parser.parse_args()
    out = args.build / "zip-check"
    shutil.rmtree(out, ignore_errors=True)
    subprocess.run(["cpack", "-G", "ZIP", "--config", str(args.build / "CPackConfig.cmake"), "-B", str(out)],
                   check=True, capture_output=True)
    archives = {re.sub(r"-[0-9.]+-win64\.zip$", "", a.name): a for a in out.glob("*.zip")}
    if sorted(archives) != sorted(REQUIRED):
        print(f"FAULT: zips {sorted(archives)}, expected {sorted(REQUIRED)}", file=sys.stderr)
        return 1
    faults = []
    with tempfile.TemporaryDirectory() as scratch:
        contents = {}
        tops = set()
        for name, archive in archives.items():
            with zipfile.ZipFile(archive) as z:
                names = z.namelist()
                z.extractall(pathlib.Path(scratch) / name)
            tops |= {n.split("/", 1)[0] for n in names}
            contents[name] = {n.split("/", 1)[1]: pathlib.Path(scratch) / name / n for n in names if "/" in n}
            faults += [f"{archive.name}: missing {r}" for r in REQUIRED[name] if r not in contents[name]]
            print(f"{archive.name}: {len(names)} entries")
        if len(tops) != 1:
            faults.append(f"the zips do not unpack into one folder: {sorted(tops)}")
        faults += [f"the kel_c zip holds the simulator's {n}" for n in contents["kel_c"] if SIMULATOR.search(n)
                   and not n.startswith(("python/", "share/doc/"))]
        dlls = [path for files in contents.values() for n, path in files.items() if n.lower().endswith(".dll")]
        shipped = {path.name.lower() for path in dlls}
        for path in dlls:
            dump = subprocess.run([args.objdump, "-p", str(path)], check=True, capture_output=True, text=True).stdout
            imports = re.findall(r"DLL Name: (\S+)", dump)
            stray = [i for i in imports if i.lower() not in SYSTEM_DLLS | shipped]
            if stray:
                faults.append(f"{path.name} imports {', '.join(stray)}, which the zips do not hold")
            print(f"{path.name}: imports {', '.join(imports)}")
        kel_c = contents["kel_c"]["bin/kel_c.dll"].read_bytes()
        version = args.version or re.search(r"-([0-9.]+)-win64", archives["kel_c"].name).group(1)  # type: ignore[union-attr]
        for text in ("FileVersion", "ProductVersion", version):
            if text.encode("utf-16-le") not in kel_c:
                faults.append(f"kel_c.dll has no version resource with {text!r}")
        installed = contents["kel_c"]["python/kel/_installed.py"].read_text()
        if '"../../bin"' not in installed:
            faults.append(f"the Python package does not point at bin/: {installed}")
    for fault in faults:
        print(f"FAULT: {fault}", file=sys.stderr)
    print(f"{len(dlls)} DLLs, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
