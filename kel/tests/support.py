"""What the tests share: the simulated vehicle's scripting interface (kel_sim.h) through
ctypes, and a test case that starts each test on a fresh engine."""

from __future__ import annotations

import ctypes
import json
import pathlib
import sys
import unittest
from typing import Any

import kel

ROOT = pathlib.Path(__file__).resolve().parents[2]
# The description and the conformance model, read by the tests that compare with C.
sys.path.insert(0, str(ROOT / "tools"))

_wstr, _str, _u32, _i32 = ctypes.c_wchar_p, ctypes.c_char_p, ctypes.c_uint32, ctypes.c_int32
_SIM = {
    "kelsim_failNext": (None, [_str, _u32, _i32, _i32, _wstr, _wstr]),
    "kelsim_failNextWithMvci": (None, [_str, _u32, _i32, _i32, _wstr, _wstr, _i32, _wstr, _i32, _wstr, _wstr, _i32]),
    "kelsim_setDelay": (None, [_str, _u32]),
    "kelsim_lastArguments": (ctypes.c_int64, [_str, ctypes.c_char_p, ctypes.c_size_t]),
    "kelsim_scriptResult": (_i32, [_str, _str]),
    "kelsim_lastScriptError": (ctypes.c_int64, [ctypes.c_char_p, ctypes.c_size_t]),
    "kelsim_callCount": (ctypes.c_uint64, [_str]),
    "kelsim_postEvent": (_i32, [ctypes.c_uint64, _i32, _i32, _wstr, _wstr, _i32, _wstr]),
    "kelsim_restart": (None, []),
    "kelsim_setAsyncReports": (None, [_str, _u32]),
    "kelsim_setAsyncInterval": (None, [_str, _u32]),
    "kelsim_failAsync": (None, [_str, _u32, _i32, _wstr, _wstr]),
    "kelsim_reset": (None, []),
    "kelsim_setVehicleJson": (_i32, [_str]),
}


def _load_sim() -> Any:
    """kel_cpp, the reference engine, lies next to the kel_c that the package loaded."""
    folder = pathlib.Path(kel.load()._name).parent
    name = "kel_cpp.dll" if sys.platform == "win32" else "libkel_cpp.so"
    lib = ctypes.CDLL(str(folder / name))
    for function, (result, arguments) in _SIM.items():
        getattr(lib, function).restype = result
        getattr(lib, function).argtypes = arguments
    return lib


sim = _load_sim()


def last_arguments(operation: str) -> Any:
    """What the engine received in the last call of `operation`, parsed."""
    size = sim.kelsim_lastArguments(operation.encode(), None, 0)
    if size < 0:
        raise AssertionError(f"{operation} was never called")
    buffer = ctypes.create_string_buffer(size + 1)
    sim.kelsim_lastArguments(operation.encode(), buffer, size + 1)
    return json.loads(buffer.value.decode())


def script(operation: str, result_json: str) -> None:
    if sim.kelsim_scriptResult(operation.encode(), result_json.encode()) != 0:
        buffer = ctypes.create_string_buffer(4096)
        sim.kelsim_lastScriptError(buffer, len(buffer))
        raise AssertionError(f"cannot script {operation}: {buffer.value.decode()}")


class EngineTest(unittest.TestCase):
    """Each test gets an initialised engine on a fresh vehicle, ended and released after."""

    initialize = True

    def setUp(self) -> None:
        sim.kelsim_reset()
        sim.kelsim_restart()
        self.engine = kel.Engine(initialize=self.initialize)
        self.engine.__enter__()

    def tearDown(self) -> None:
        self.engine.__exit__(None, None, None)
        sim.kelsim_reset()
