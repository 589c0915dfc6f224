#!/usr/bin/env bash
# Builds the libFuzzer targets (preset 'fuzz', clang) and runs them side by side for a bounded
# time: the bounds-checked dispatchers, seeded from the golden vectors and from well-formed
# arguments of every numbered operation (fuzz/seeds.py), record trees nested deep among them;
# and the server protocol's frame parser.
#
#   scripts/fuzz.sh [seconds]    # default 60
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
seconds=${1:-60}
JOBS=${JOBS:-2}

scripts/ensure-packages.sh clang clang-14 libclang-rt-14-dev cmake ninja-build nlohmann-json3-dev libboost-dev

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz -j "$JOBS" --target dispatch_fuzz frame_fuzz

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

# The server protocol's frame parser: seeded with a handshake, a call and a result split
# into continuation parts.
frames=build/fuzz/frames-corpus
mkdir -p "$frames"
python3 - "$frames" <<'PY'
import pathlib, struct, sys
corpus = pathlib.Path(sys.argv[1])
def frame(kind, payload, flags=0, op=0, call=0):
    return struct.pack("<IBBHQ", len(payload), kind, flags, op, call) + payload
hello = struct.pack("<IH", 0x574C454B, 1)
(corpus / "hello").write_bytes(bytes([255]) + frame(1, hello))
(corpus / "call").write_bytes(bytes([7]) + frame(1, hello) + frame(3, b"", op=49, call=1))
error = bytes([0, 1]) + struct.pack("<i", 1301) + struct.pack("<I", 3) + b"end" + struct.pack("<I", 0)
(corpus / "parts").write_bytes(bytes([0]) + frame(4, error[:5], flags=1, call=2) + frame(4, error[5:], call=2))
PY

# The two fuzzers run side by side, one a core, each for the whole time.
# Dispatchers: inputs up to 256 KiB, as deeply nested records need room (a level takes 6 to
# 100 bytes). The stack is 1 MiB, as a Windows main thread has: what overflows there fails
# here too.
echo "== fuzzing the checked dispatchers and the server protocol's frames for ${seconds} s"
ulimit -s 1024
build/fuzz/bin/dispatch_fuzz -max_total_time="$seconds" -max_len=262144 -rss_limit_mb=2048 -timeout=10 \
    -print_final_stats=1 "$corpus" >build/fuzz/dispatch_fuzz.log 2>&1 &
dispatch_pid=$!
frame_status=0
build/fuzz/bin/frame_fuzz -max_total_time="$seconds" -max_len=65536 -rss_limit_mb=2048 -timeout=10 \
    -print_final_stats=1 "$frames" >build/fuzz/frame_fuzz.log 2>&1 || frame_status=$?
dispatch_status=0
wait "$dispatch_pid" || dispatch_status=$?
echo "== the checked dispatchers (exit $dispatch_status)"
tail -n 25 build/fuzz/dispatch_fuzz.log
echo "== the server protocol's frames (exit $frame_status)"
tail -n 12 build/fuzz/frame_fuzz.log
[[ $dispatch_status -eq 0 && $frame_status -eq 0 ]]
