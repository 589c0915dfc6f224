#!/bin/sh
# The file family at scale (bench/files/files_scale.cpp): each scenario in a process of
# its own on a fresh data root, since peak memory only grows. Pass the build folder
# (default build/release) after `cmake --build --preset release --target files_scale`, and
# `smoke` after it for small sizes that only check every scenario runs.
set -eu
bin="${1:-build/release}/bin/files_scale"
printf '%-12s %11s %14s %14s\n' scenario time "peak before" "peak after"
for scenario in write write-whole read read-whole find copy; do
    folder=$(mktemp -d)
    "$bin" "$scenario" "$folder" ${2:+"$2"}
    rm -rf "$folder"
done
