#!/usr/bin/env bash
# Runs every test of the project: configures, builds and tests each CMake preset in turn
# (Linux, Linux with AddressSanitizer + UBSan, Linux with ThreadSanitizer, and the Windows
# build under wine), builds the optimised 'release' preset, runs each benchmark for a
# moment and makes and checks the packages from it (scripts/make-packages.sh), fuzzes the
# checked dispatchers for a bounded time ('fuzz', FUZZ_SECONDS), then prints a summary.
# Exits non-zero if any step of any preset fails.
#
#   scripts/test-all.sh                 # all presets
#   scripts/test-all.sh linux windows   # only these (presets, or fuzz)
#
# JOBS (default 2) sets the build parallelism.
set -uo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1
JOBS=${JOBS:-2}

if [[ $# -gt 0 ]]; then
    presets=("$@")
else
    presets=(linux linux-asan linux-tsan windows release fuzz)
fi

# --- Tools -----------------------------------------------------------------------------------
packages=(cmake ninja-build g++ libgtest-dev libgmock-dev nlohmann-json3-dev libboost-dev pkg-config dpkg-dev file)
for preset in "${presets[@]}"; do
    if [[ $preset == windows ]]; then
        packages+=(g++-mingw-w64-x86-64-posix wine wine64)
    fi
    if [[ $preset == fuzz ]]; then
        packages+=(clang clang-14 libclang-rt-14-dev)
    fi
done
command -v python3 >/dev/null 2>&1 || packages+=(python3)
if ! scripts/ensure-packages.sh "${packages[@]}"; then
    echo "test-all: could not install the required packages" >&2
    exit 1
fi
# mypy type-checks the Python package (ctest python_types) where Debian offers it.
scripts/ensure-packages.sh python3-mypy || echo "test-all: python3-mypy is not installable; the Python package is not type-checked"
# ctest python_install makes a venv and pip-installs the checkout offline: venv and pip, with
# setuptools and wheel as wheels to install from (/usr/share/python-wheels).
scripts/ensure-packages.sh python3-venv python3-setuptools python3-wheel-whl \
    || echo "test-all: python3-venv or python3-wheel-whl is not installable; python_install is skipped"

echo "== Tools"
cmake --version | head -n 1
g++ --version | head -n 1
python3 --version
for preset in "${presets[@]}"; do
    if [[ $preset == windows ]]; then
        x86_64-w64-mingw32-g++-posix --version | head -n 1
        wine --version
    fi
done

# --- Presets ---------------------------------------------------------------------------------
declare -A result seconds
failed=0

prepare_wine() {
    export WINEDEBUG=-all
    export WINEDLLOVERRIDES="mscoree,mshtml="
    : "${HOME:=$(getent passwd "$(id -u)" | cut -d: -f6)}"
    export HOME
    local prefix=${WINEPREFIX:-$HOME/.wine}
    if [[ ! -f $prefix/system.reg ]]; then
        # The first start of wine creates its prefix; do it here rather than inside a timed test.
        echo "== Creating the wine prefix $prefix"
        local start=$SECONDS
        wineboot --init >/dev/null 2>&1 || true
        wineserver -w || true
        echo "   took $((SECONDS - start)) s"
    fi
}

run_preset() {
    local preset=$1
    local start=$SECONDS
    echo
    echo "==================== $preset ===================="
    if [[ $preset == windows ]]; then
        prepare_wine
    fi
    if [[ $preset == fuzz ]]; then
        # The checked dispatchers under libFuzzer for a bounded time (FUZZ_SECONDS, default 60).
        if scripts/fuzz.sh "${FUZZ_SECONDS:-60}"; then
            result[$preset]="passed"
        else
            result[$preset]="fuzzing FAILED"
        fi
    elif ! cmake --preset "$preset"; then
        result[$preset]="configure FAILED"
    elif ! cmake --build --preset "$preset" -j "$JOBS"; then
        result[$preset]="build FAILED"
    elif [[ $preset == release ]]; then
        # The optimised build has no tests of its own: its benchmarks run briefly instead,
        # and the packages are made from it and checked.
        if ! scripts/bench-smoke.sh "build/$preset"; then
            result[$preset]="benchmarks FAILED"
        elif ! scripts/make-packages.sh --no-build; then
            result[$preset]="packages FAILED"
        else
            result[$preset]="passed"
        fi
    elif ! ctest --preset "$preset"; then
        result[$preset]="tests FAILED"
    else
        result[$preset]="passed"
    fi
    if [[ $preset == windows ]]; then
        # Let the wine server finish before moving on, so no process outlives the run.
        wineserver -w >/dev/null 2>&1 || true
    fi
    seconds[$preset]=$((SECONDS - start))
    [[ ${result[$preset]} == passed ]] || failed=1
}

total_start=$SECONDS
for preset in "${presets[@]}"; do
    run_preset "$preset"
done

echo
echo "==================== summary ===================="
for preset in "${presets[@]}"; do
    printf '  %-12s %-18s %5d s\n' "$preset" "${result[$preset]}" "${seconds[$preset]}"
done
printf '  %-12s %-18s %5d s\n' "total" "" $((SECONDS - total_start))
passed_count=0
for preset in "${presets[@]}"; do
    [[ ${result[$preset]} == passed ]] && passed_count=$((passed_count + 1))
done
if [[ $failed -ne 0 ]]; then
    echo "test-all: FAILED"
else
    echo "test-all: all presets passed"
fi
# The closing line, in the form CI reads.
echo "presets: ${passed_count} passed, $((${#presets[@]} - passed_count)) failed"
exit "$failed"
