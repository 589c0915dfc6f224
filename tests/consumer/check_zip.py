#!/usr/bin/env python3
"""Checks the Windows zip that CPack makes: it holds the DLLs, the header, the import
library, the CMake and pkg-config files and the Python package; every DLL in it imports
only Windows system DLLs and DLLs of the zip (no compiler runtime left behind); and
kel_c.dll carries its version resource. Standard library only."""

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
REQUIRED = ["bin/kel_c.dll", "bin/kel_cpp.dll", "bin/vutil.dll", "include/kel_c.h", "include/kel_sim.h",
            "lib/libkel_c.dll.a", "lib/cmake/kel_c/kel_c-config.cmake", "lib/cmake/kel_c/kel_c-config-version.cmake",
            "lib/pkgconfig/kel_c.pc", "python/kel/__init__.py", "python/kel/_installed.py",
            "python/kel/generated/operations.py", "share/doc/kel_c/README.md"]


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
    archive = next(out.glob("*.zip"))
    faults = []
    with zipfile.ZipFile(archive) as z, tempfile.TemporaryDirectory() as scratch:
        names = z.namelist()
        top = names[0].split("/", 1)[0]
        inside = {n.split("/", 1)[1] for n in names if "/" in n}
        faults += [f"missing {r}" for r in REQUIRED if r not in inside]
        dlls = [n for n in names if n.lower().endswith(".dll")]
        shipped = {pathlib.PurePosixPath(n).name.lower() for n in dlls}
        for name in dlls:
            path = pathlib.Path(z.extract(name, scratch))
            dump = subprocess.run([args.objdump, "-p", str(path)], check=True, capture_output=True, text=True).stdout
            imports = re.findall(r"DLL Name: (\S+)", dump)
            stray = [i for i in imports if i.lower() not in SYSTEM_DLLS | shipped]
            if stray:
                faults.append(f"{name} imports {', '.join(stray)}, which the zip does not hold")
            print(f"{pathlib.PurePosixPath(name).name}: imports {', '.join(imports)}")
        kel_c = (pathlib.Path(scratch) / top / "bin" / "kel_c.dll").read_bytes()
        version = args.version or re.search(r"kel_c-([0-9.]+)-", archive.name).group(1)  # type: ignore[union-attr]
        for text in ("FileVersion", "ProductVersion", version):
            if text.encode("utf-16-le") not in kel_c:
                faults.append(f"kel_c.dll has no version resource with {text!r}")
        installed = z.read(f"{top}/python/kel/_installed.py").decode()
        if '"../../bin"' not in installed:
            faults.append(f"the Python package does not point at bin/: {installed}")
    for fault in faults:
        print(f"FAULT: {fault}", file=sys.stderr)
    print(f"{archive.name}: {len(names)} entries, {len(dlls)} DLLs")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
