#!/bin/sh
# The table of ratios of the call paths against their anchors, from one run of kel_bench
# (each path and its anchor in the same process, so machine load shifts both alike).
#
#   scripts/bench-ratios.sh [build]                 time ratios (default build/release)
#   scripts/bench-ratios.sh --instructions [build]  instructions per call and per DTC,
#       counted by callgrind only inside the exports named (--toggle-collect), so that
#       neither the benchmark loop nor the scripting of the engine's result is counted.
#
# Build the release preset first. Time mode takes about a minute; instruction mode a few.
set -eu
cd "$(dirname "$0")/.."
mode=time
if [ "${1:-}" = "--instructions" ]; then
    mode=instructions
    shift
fi
build="${1:-build/release}"
bench="$build/bin/kel_bench"
[ -x "$bench" ] || { echo "no $bench: build the release preset first" >&2; exit 1; }

if [ "$mode" = time ]; then
    json="$build/bench-ratios.json"
    "$bench" --benchmark_min_time="${KEL_BENCH_MIN_TIME:-0.5}" --benchmark_format=json \
        --benchmark_filter='GetState|ReadDtcs|Text/|Iconv|Dtcs$|DtcBytes|Bytes64' >"$json"
    python3 - "$json" <<'EOF'
import json, sys
times = {b["name"]: b["cpu_time"] * {"ns": 1, "us": 1e3, "ms": 1e6}[b["time_unit"]]
         for b in json.load(open(sys.argv[1]))["benchmarks"] if "error_occurred" not in b}
rows = [("py_call+py_result, getState", "PyCallGetState", "DirectGetState", "the export"),
        ("kel_call+kel_call_result, getState", "KelCallGetState", "DirectGetState", "the export"),
        ("py_call readDtcs, 10,000 DTCs", "PyCallReadDtcs", "ExportReadDtcs", "the export + release"),
        ("kel_call readDtcs, 10,000 DTCs", "KelCallReadDtcs", "ExportReadDtcs", "the export + release")]
for text in ("short_string", "long_ascii", "long_non_ascii"):
    rows.append((f"string write, {text}", f"StreamWriteText/{text}", f"IconvEncode/{text}", "iconv"))
    rows.append((f"string read, {text}", f"StreamReadText/{text}", f"IconvDecode/{text}", "iconv"))
rows += [("write 100k DTC records", "StreamWriteDtcs", "MemcpyDtcBytes", "memcpy"),
         ("read 100k DTC records", "StreamReadDtcs", "MemcpyDtcBytes", "memcpy"),
         ("write 64-byte vectors", "StreamWriteBytes64", "MemcpyBytes64", "memcpy"),
         ("read 64-byte vectors", "StreamReadBytes64", "MemcpyBytes64", "memcpy")]
print(f"| {'path':38} | {'anchor':22} | ratio |")
print(f"|{'-' * 40}|{'-' * 24}|-------|")
for text, path, anchor, name in rows:
    if path in times and anchor in times:
        print(f"| {text:38} | {name:22} | {times[path] / times[anchor]:5.2f} |")
EOF
    exit 0
fi

# Instruction mode: total instructions inside the toggled functions over a fixed number of
# iterations, divided by the iterations (and by the DTCs for the readDtcs paths).
# For getState, the engine's own getState (about 1,050, and some tens more or less from one
# process to the next with where its blocks lie) is also counted in each run, so that the
# binding's share comes out exactly: the "binding" column is the total less the engine's.
engine_getstate='Varno::Kel_cpp::Reference::EngineFront::getState()'
count() { # benchmark iterations divisor functions...
    name=$1 iterations=$2 divisor=$3
    shift 3
    toggles=""
    for f in "$@"; do toggles="$toggles --toggle-collect=$f"; done
    out=$(mktemp)
    # shellcheck disable=SC2086
    KEL_BENCH_ITERATIONS=$iterations valgrind --tool=callgrind --collect-atstart=no $toggles \
        --callgrind-out-file="$out" "$bench" --benchmark_filter="^$name(/|\$)" >/dev/null 2>&1
    total=$(sed -n 's/^totals: *\([0-9]*\).*/\1/p' "$out")
    engine=$(callgrind_annotate --inclusive=yes "$out" 2>/dev/null |
        awk -v f="$engine_getstate" 'index($0, f) { gsub(",", "", $1); print $1; exit }')
    rm -f "$out"
    echo "$((total / iterations / divisor)) $(((total - ${engine:-0}) / iterations / divisor))"
}
read -r direct direct_binding <<EOF
$(count DirectGetState 20000 1 kel_getState)
EOF
read -r py py_binding <<EOF
$(count PyCallGetState 20000 1 py_call py_result)
EOF
read -r otx otx_binding <<EOF
$(count KelCallGetState 20000 1 kel_call kel_call_result)
EOF
read -r export_dtc _ <<EOF
$(count ExportReadDtcs 2 10000 kel_readDtcs release_ReadDtcResult_array)
EOF
read -r py_dtc _ <<EOF
$(count PyCallReadDtcs 2 10000 py_call py_result)
EOF
read -r otx_dtc _ <<EOF
$(count KelCallReadDtcs 2 10000 kel_call kel_call_result)
EOF
echo "| path | instructions | binding (less the engine's getState) | over the export |"
echo "|---|---|---|---|"
echo "| kel_getState (the export) | $direct | $direct_binding | |"
echo "| py_call+py_result, getState | $py | $py_binding | $((py_binding - direct_binding)) |"
echo "| kel_call+kel_call_result, getState | $otx | $otx_binding | $((otx_binding - direct_binding)) |"
echo
echo "| path, readDtcs of 10,000 DTCs | instructions per DTC |"
echo "|---|---|"
echo "| export+release | $export_dtc |"
echo "| py_call+py_result | $py_dtc |"
echo "| kel_call+kel_call_result | $otx_dtc |"
