#!/usr/bin/env bash
# Builds the Linux preset and runs the example that walks the typical path through the binding.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
JOBS=${JOBS:-2}

scripts/ensure-packages.sh cmake ninja-build g++ libgtest-dev libgmock-dev nlohmann-json3-dev

cmake --preset linux
cmake --build --preset linux -j "$JOBS" --target typical_path
echo "== build/linux/bin/typical_path"
exec build/linux/bin/typical_path "$@"
