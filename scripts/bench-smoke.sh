#!/bin/sh
# Runs every benchmark of a release build for a moment. Not a measurement: a check that the
# benchmarks still build, start and finish, so that none of them rots unnoticed. CI runs it
# after building the release preset. Pass the build folder (default build/release).
set -eu
cd "$(dirname "$0")/.."
build="${1:-build/release}"
echo "== kel_bench (each benchmark briefly)"
"$build/bin/kel_bench" --benchmark_min_time=0.001 --benchmark_format=json >"$build/bench-smoke.json"
echo "   $(grep -c '"run_type"' "$build/bench-smoke.json") benchmarks ran ($build/bench-smoke.json)"
echo "== stream_growth"
"$build/bin/stream_growth" >/dev/null
echo "== files_scale (small sizes)"
scripts/files-scale.sh "$build" smoke >/dev/null
echo "== Python package"
KEL_C_LIBRARY="$build/bin" python3 bench/python/package_bench.py --calls 200 --dtcs 200 >/dev/null
echo "bench-smoke: every benchmark ran"
