#!/usr/bin/env python3
"""Checks that a built kel_c library exports exactly the expected symbols.

Linux: `nm -D --defined-only` on the .so. Windows: the export table that
`objdump -p` prints for the DLL. Exits 1 and lists the difference otherwise.
"""

import argparse
import re
import subprocess
import sys


# The linker's own markers are not part of the interface.
LINKER_MARKERS = {"_init", "_fini", "_edata", "_end", "__bss_start"}


def exported(library: str, tool: str) -> set[str]:
    if "objdump" not in tool:  # nm: text, data and read-only symbols
        text = subprocess.run([tool, "-D", "--defined-only", library], capture_output=True, text=True,
                              check=True).stdout
        return {p[2] for p in map(str.split, text.splitlines())
                if len(p) == 3 and p[1] in "TDBRW" and p[2] not in LINKER_MARKERS}
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


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--library", required=True)
    parser.add_argument("--expected", required=True, help="one symbol per line")
    parser.add_argument("--tool", required=True, help="nm, or objdump for a Windows DLL")
    args = parser.parse_args()
    expected = {line.strip() for line in open(args.expected) if line.strip()}
    actual = exported(args.library, args.tool)
    for name in sorted(expected - actual):
        print(f"missing export: {name}")
    for name in sorted(actual - expected):
        print(f"unexpected export: {name}")
    print(f"{len(actual)} exports, {len(expected)} expected")
    return 1 if expected != actual else 0


if __name__ == "__main__":
    sys.exit(main())
