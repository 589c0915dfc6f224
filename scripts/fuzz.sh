#!/usr/bin/env bash
# Builds the libFuzzer target for the bounds-checked dispatchers (preset 'fuzz', clang) and
# runs it for a bounded time, seeded from the golden vectors and from well-formed arguments
# of every numbered operation (fuzz/seeds.py), record trees nested deep among them.
#
#   scripts/fuzz.sh [seconds]    # default 60
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
seconds=${1:-60}
JOBS=${JOBS:-2}

scripts/ensure-packages.sh clang clang-14 libclang-rt-14-dev cmake ninja-build nlohmann-json3-dev libboost-dev

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz -j "$JOBS" --target dispatch_fuzz

# Seeds: every golden stream as the arguments of a few operations, for both dispatchers.
# A seed is: dispatcher byte, operation number (u32 LE), argument bytes.
corpus=build/fuzz/corpus
mkdir -p "$corpus"
python3 - "$corpus" tests/golden/*.hex <<'PY'
import pathlib, struct, sys
corpus = pathlib.Path(sys.argv[1])
for path in sys.argv[2:]:
    data = bytes(int(w, 16) for line in open(path) if not line.startswith("#") for w in line.split())
    for dispatcher in (0, 1):
        for operation in (2, 4, 49, 91, 97, 148, 155, 196, 216):
            name = f"{pathlib.Path(path).stem}-{dispatcher}-{operation}"
            (corpus / name).write_bytes(bytes([dispatcher]) + struct.pack("<I", operation) + data)
PY
python3 fuzz/seeds.py "$corpus"

echo "== fuzzing the checked dispatchers for ${seconds} s"
# Inputs up to 256 KiB: deeply nested records need room (a level takes 6 to 100 bytes).
# The stack is 1 MiB, as a Windows main thread has: what overflows there fails here too.
ulimit -s 1024
build/fuzz/bin/dispatch_fuzz -max_total_time="$seconds" -max_len=262144 -rss_limit_mb=2048 -timeout=10 \
    -print_final_stats=1 "$corpus" 2>&1 | tail -n 25
