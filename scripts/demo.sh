#!/usr/bin/env bash
# Builds the Linux preset and runs the example that walks the typical path through the binding.
# The build's own output goes to build/demo-build.log; it is shown only when the build fails.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
JOBS=${JOBS:-2}

scripts/ensure-packages.sh cmake ninja-build g++ libgtest-dev libgmock-dev nlohmann-json3-dev libboost-dev python3

mkdir -p build
log=build/demo-build.log
echo "== building (preset linux; log in $log)"
if ! { cmake --preset linux && cmake --build --preset linux -j "$JOBS" --target typical_path; } >"$log" 2>&1; then
    cat "$log"
    exit 1
fi
echo "== build/linux/bin/typical_path"
exec build/linux/bin/typical_path "$@"
