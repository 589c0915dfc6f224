#!/usr/bin/env python3
"""What the Python package costs over the C library, measured against the simulated
vehicle:

1. a trivial call, get_state(), through the package (py_call, stream, decode) against a
   bare ctypes call of the C export kel_getState: the package's overhead as a ratio;
2. a large DTC read (one scripted result of many DTCs with snapshot data) decoded into
   dataclasses, in microseconds per DTC, with the share of the decoding alone, against a
   hand-written struct.unpack_from loop that decodes the same bytes into the same
   dataclasses (written for this data: no error records, children or special data).

Run against an optimised library: build the `release` preset, then
    KEL_C_LIBRARY=build/release/bin/libkel_c.so python3 bench/python/package_bench.py
Standard library only.
"""

from __future__ import annotations

import argparse
import ctypes
import json
import pathlib
import struct
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


def hand_decode(b: bytes) -> list[Any]:
    """The anchor: the readDtcs stream of this data set decoded by a plain loop, as one would
    write it by hand for exactly these records."""
    from kel.generated.records import DtcResult, ParameterResult, ReadDtcResult

    u32 = struct.Struct("<I").unpack_from
    i32 = struct.Struct("<i").unpack_from

    def text(p: int) -> tuple[str, int]:
        (n,) = u32(b, p)
        return b[p + 4:p + 4 + n].decode(), p + 4 + n

    def param(p: int) -> tuple[Any, int]:
        p += 1
        t = []
        for _ in range(6):
            s, p = text(p)
            t.append(s)
        (v1,) = i32(b, p)
        p += 8  # value1, no children
        t3, p = text(p)
        p += 1  # no error
        t4, p = text(p)
        (v2, n) = struct.unpack_from("<iI", b, p)
        data = b[p + 8:p + 8 + n]
        p += 8 + n
        (v3, flag, v4) = struct.unpack_from("<IBi", b, p)
        return ParameterResult(name=t[0], description=t[1], codec=t[2], item_text4=t[3], value=t[4],
                               unit=t[5], child_count=v1, children=[], text3=t3, error=None, text4=t4,
                               byte_position=v2, data=data, data_length=v3, flag=flag, value4=v4), p + 9

    (count,) = u32(b, 0)
    p = 4
    out = []
    for _ in range(count):
        (status,) = i32(b, p + 1)
        target, p = text(p + 5)
        p += 1  # no error
        (n,) = u32(b, p)
        p += 4
        dtcs = []
        for _ in range(n):
            (code,) = i32(b, p + 1)
            t1, p = text(p + 5)
            t2, p = text(p)
            (v1, k) = struct.unpack_from("<iI", b, p)
            p += 8
            params = []
            for _ in range(k):
                q, p = param(p)
                params.append(q)
            p += 4  # no second parameters
            t3, p = text(p)
            t4, p = text(p)
            (v2,) = i32(b, p + 4)  # after the empty special data groups
            p += 8
            dtcs.append(DtcResult(code=code, display_code=t1, description=t2, status=v1, snapshots=params,
                                  extended_data=[], ecu=t3, symptom=t4, special_data_groups=[], severity=v2))
        (value,) = i32(b, p)
        p += 4
        out.append(ReadDtcResult(status=status, target=target, error=None, dtcs=dtcs, dtc_total=value))
    return out


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
            with engine._decoding(data):  # as the package decodes a large result
                stream.read_ReadDtcResult(data, 4)
            return time.perf_counter() - start

        def decode_by_hand() -> float:
            start = time.perf_counter()
            hand_decode(data)
            return time.perf_counter() - start

        assert hand_decode(data) == [stream.read_ReadDtcResult(data, 4)[0]], "the anchor decodes what the package does"
        decode_time = best_of(3, decode_only)
        hand_time = best_of(3, decode_by_hand)
        print(f"large read: {args.dtcs} DTCs with two snapshot parameters each, {len(data) / 1e6:.1f} MB on the stream: "
              f"{read_time / args.dtcs * 1e6:.2f} us per DTC in all, of which decoding into dataclasses "
              f"{decode_time / args.dtcs * 1e6:.2f} us")
        print(f"hand-written struct loop: {hand_time / args.dtcs * 1e6:.2f} us per DTC; "
              f"the package's read in all is {read_time / hand_time:.2f}x it")
    return 0


if __name__ == "__main__":
    sys.exit(main())
