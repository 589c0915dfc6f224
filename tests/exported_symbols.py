#!/usr/bin/env python3
"""Checks that a built kel_c library exports exactly the expected symbols.

Linux: `nm -D --defined-only` on the .so. Windows: the export table that
`objdump -p` prints for the DLL. Exits 1 and lists the difference otherwise.
"""

import argparse
import re
import subprocess
import sys


def exported(library: str, tool: str) -> set[str]:
    if "objdump" in tool:
        text = subprocess.run([tool, "-p", library], capture_output=True, text=True, check=True).stdout
        table = text.split("[Ordinal/Name Pointer] Table", 1)
        if len(table) != 2:
            raise SystemExit(f"no export table in {library}")
        names = set()
        for line in table[1].splitlines():
            m = re.match(r"\s*\[\s*\d+\]\s+(\S+)\s*$", line)
            if m:
                names.add(m.group(1))
            elif names and not line.strip():
                break
        return names
    text = subprocess.run([tool, "-D", "--defined-only", library], capture_output=True, text=True,
                          check=True).stdout
    names = set()
    for line in text.splitlines():
        parts = line.split()
        # Text, data and read-only symbols; the linker's own markers (_init, _fini, the
        # end-of-section symbols) are not part of the interface.
        if len(parts) == 3 and parts[1] in "TDBRW" and parts[2] not in ("_init", "_fini", "_edata", "_end", "__bss_start"):
            names.add(parts[2])
    return names


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--library", required=True)
    parser.add_argument("--expected", required=True, help="one symbol per line")
    parser.add_argument("--tool", required=True, help="nm, or objdump for a Windows DLL")
    args = parser.parse_args()
    expected = {line.strip() for line in open(args.expected) if line.strip()}
    actual = exported(args.library, args.tool)
    missing = sorted(expected - actual)
    extra = sorted(actual - expected)
    for name in missing:
        print(f"missing export: {name}")
    for name in extra:
        print(f"unexpected export: {name}")
    print(f"{len(actual)} exports, {len(expected)} expected")
    return 1 if missing or extra else 0


if __name__ == "__main__":
    sys.exit(main())
