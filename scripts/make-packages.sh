#!/bin/sh
# Makes the Debian packages from the release preset (optimised, built with -g so that the
# -dbgsym packages carry the debug information CPack strips off), checks them as a user
# gets them (tests/consumer/check_install.py) and lists them with their sizes.
#
#   scripts/make-packages.sh            # configure and build build/release if needed
#   scripts/make-packages.sh --no-build # package an existing build/release as it is
#
# The packages land in build/release/packages. JOBS (default 2) sets the build parallelism.
set -eu
cd "$(dirname "$0")/.."
# CPack finds the libraries by `file` and their dependencies by dpkg-shlibdeps.
scripts/ensure-packages.sh dpkg-dev file
build=build/release
if [ "${1:-}" != "--no-build" ]; then
    [ -f "$build/CMakeCache.txt" ] || cmake --preset release
    cmake --build "$build" --target kel_c kel_cpp vutil kel-sim-server -j "${JOBS:-2}"
fi
started=$(date +%s)
rm -rf "$build/packages"
cpack --config "$build/CPackConfig.cmake" -B "$build/packages" >"$build/cpack.log"
echo "cpack: $(($(date +%s) - started)) s"
# The runtime package of a release build installs in under 2 MB.
python3 tests/consumer/check_install.py --build "$build" --packages "$build/packages" --max-runtime-kb 2048
