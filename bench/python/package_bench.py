#!/usr/bin/env python3
"""What the Python package costs over the C library, measured against the simulated
vehicle:

1. a trivial call, get_state(), through the package (py_call, stream, decode) against a
   bare ctypes call of the C export kel_getState: the package's overhead as a ratio;
2. a large DTC read (one scripted result of many DTCs with snapshot data) decoded into
   dataclasses, in microseconds per DTC, with the share of the decoding alone.

Run against an optimised library: build the `release` preset, then
    KEL_C_LIBRARY=build/release/bin/libkel_c.so python3 bench/python/package_bench.py
Standard library only.
"""

from __future__ import annotations

import argparse
import ctypes
import json
import pathlib
import sys
import time
from typing import Any, Callable

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2]))

import kel  # noqa: E402
from kel.generated import stream  # noqa: E402


def best_of(repeat: int, run: Callable[[], float]) -> float:
    return min(run() for _ in range(repeat))


def per_call(count: int, call: Callable[[], Any]) -> float:
    start = time.perf_counter()
    for _ in range(count):
        call()
    return (time.perf_counter() - start) / count


def simulated_vehicle() -> Any:
    folder = pathlib.Path(kel.load()._name).parent
    sim = ctypes.CDLL(str(folder / ("kel_cpp.dll" if sys.platform == "win32" else "libkel_cpp.so")))
    sim.kelsim_scriptResult.argtypes = [ctypes.c_char_p, ctypes.c_char_p]
    sim.kelsim_scriptResult.restype = ctypes.c_int32
    return sim


def parameter(name: str, value: str, unit: str) -> dict[str, Any]:
    return {"itemText1": name, "itemText2": "", "itemText3": "", "itemText4": "", "text1": value, "text2": unit,
            "value1": 0, "children": [], "text3": "", "error": None, "text4": "", "value2": 0, "data": [0x12, 0x34],
            "value3": 2, "flag": 0, "value4": 0}


def dtc(i: int) -> dict[str, Any]:
    return {"code": 0x030100 + i, "text1": f"P{i % 10000:04d}", "text2": "Cylinder 1 misfire detected",
            "value1": 0x2F, "parameters1": [parameter("Engine speed", "812", "1/min"),
                                            parameter("Coolant temperature", "87", "\u00b0C")],
            "parameters2": [], "text3": "ECM", "text4": "", "specialDataGroups": [], "value2": 2}


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--calls", type=int, default=20000, help="get_state calls per round")
    parser.add_argument("--dtcs", type=int, default=20000, help="DTCs in the large read")
    args = parser.parse_args()
    sim = simulated_vehicle()
    print(f"library: {kel.load()._name}")
    with kel.Engine() as engine:
        lib = kel.load()
        lib.kel_getState.argtypes = [ctypes.c_void_p, ctypes.POINTER(ctypes.c_void_p), ctypes.POINTER(ctypes.c_int32)]
        lib.kel_getState.restype = None
        error, state = ctypes.c_void_p(), ctypes.c_int32()
        api, error_ref, state_ref = engine.address, ctypes.byref(error), ctypes.byref(state)

        def bare() -> None:
            lib.kel_getState(api, error_ref, state_ref)

        bare_time = best_of(5, lambda: per_call(args.calls, bare))
        package_time = best_of(5, lambda: per_call(args.calls, engine.get_state))
        assert state.value == engine.get_state() == 1
        print(f"get_state: package {package_time * 1e6:.2f} us, bare ctypes {bare_time * 1e6:.2f} us, "
              f"ratio {package_time / bare_time:.1f}")

        result = json.dumps([{"status": 0, "target": "ECM", "error": None, "dtcs": [dtc(i) for i in range(args.dtcs)],
                              "value": args.dtcs}])

        def large_read() -> float:
            if sim.kelsim_scriptResult(b"readDtcs", result.encode()) != 0:
                raise SystemExit("cannot script readDtcs")
            start = time.perf_counter()
            results = engine.read_dtcs(["ECM"])
            elapsed = time.perf_counter() - start
            first = results[0]
            assert first is not None and len(first.dtcs) == args.dtcs
            return elapsed

        read_time = best_of(3, large_read)
        sim.kelsim_scriptResult(b"readDtcs", result.encode())
        data = engine._call(23, b"\x01\x00\x00\x00ECM\x00\x00")

        def decode_only() -> float:
            start = time.perf_counter()
            stream.read_ReadDtcResult(data, 4)
            return time.perf_counter() - start

        decode_time = best_of(3, decode_only)
        print(f"large read: {args.dtcs} DTCs with two snapshot parameters each, {len(data) / 1e6:.1f} MB on the stream: "
              f"{read_time / args.dtcs * 1e6:.2f} us per DTC in all, of which decoding into dataclasses "
              f"{decode_time / args.dtcs * 1e6:.2f} us")
    return 0


if __name__ == "__main__":
    sys.exit(main())
