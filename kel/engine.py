"""The engine object: lifetimes, the call frame over py_call, and asynchronous starts."""

from __future__ import annotations

import contextlib
import ctypes
import weakref
from types import TracebackType
from typing import Any, Callable, Iterator, Optional, Type

from .asynccall import AsyncCall
from .errors import EngineError
from .events import EventChannel
from .generated import stream
from .generated.operations import Operations
from .generated.records import KelError
from . import _library


class Engine(Operations):
    """An engine object of kel_c. `with Engine() as engine:` obtains the local engine,
    initialises it, and at the end ends and releases it; every operation of the engine
    interface is a method (engine.read_dtcs(targets, config))."""

    def __init__(self, *, initialize: bool = True, library: Optional[str] = None) -> None:
        lib = _library.load(library)
        self._init(lib, lib.kel_getTarnApi(), initialize)

    def _init(self, lib: Any, api: Optional[int], initialize: bool) -> None:
        if not api:
            raise RuntimeError("kel_c handed out no engine object")
        self._lib = lib
        self._api: int = api
        self._initialize = initialize
        # Each engine object handed out counts one use in the library's registry; this
        # gives it back also when the caller forgets release().
        self._release = weakref.finalize(self, lib.releaseTarnApi, api)

    @classmethod
    def remote(cls, handle: int, *, library: Optional[str] = None) -> Engine:
        """The remote connection to the engine object whose engine handle is `handle`
        (its `get_handle()`, not its `address`): an engine of its own, released at the end
        of its `with` block; it is not initialised or ended."""
        lib = _library.load(library)
        error = ctypes.c_void_p()
        api = lib.kel_getRemoteConnectionByHandle(handle, ctypes.byref(error))
        if error.value:
            raise EngineError.of(_take_error(lib, error.value))
        engine = cls.__new__(cls)
        engine._init(lib, api, False)
        return engine

    def _adopt(self, address: int) -> Engine:
        """An engine object that an operation handed out (already registered)."""
        engine = type(self).__new__(type(self))
        engine._init(self._lib, address, False)
        return engine

    @property
    def address(self) -> int:
        """The engine object's address: the `api` of the C exports."""
        return self._api

    def release(self) -> None:
        """Gives the engine object back; the engine is not used afterwards."""
        self._release()

    def __enter__(self) -> Engine:
        if self._initialize:
            self.initialize()
        return self

    def __exit__(self, kind: Optional[Type[BaseException]], value: Optional[BaseException],
                 trace: Optional[TracebackType]) -> None:
        try:
            if self._initialize:
                self.end()
        finally:
            self.release()

    @contextlib.contextmanager
    def locked(self) -> Iterator[int]:
        """Holds the engine's lock for the `with` block; gives the lock id."""
        lock_id = self.lock()
        try:
            yield lock_id
        finally:
            self.unlock(lock_id)

    def events(self) -> EventChannel:
        """An event channel: `with engine.events() as channel: channel.poll()`."""
        return EventChannel(self)

    # ---- the frame of every synchronous call ----

    def _call(self, number: int, data: bytes) -> bytes:
        if not self._release.alive:
            raise RuntimeError("the engine object was released")
        size = ctypes.c_uint32()
        out = ctypes.c_void_p()
        returned = self._lib.py_call_checked(self._api, number, 0, data, len(data), ctypes.byref(size),
                                             ctypes.byref(out))
        n = size.value
        if n:
            buffer = ctypes.create_string_buffer(n)
            self._lib.py_result(buffer, n, out)
            result = buffer.raw
        else:
            self._lib.py_result(None, 0, out)
            result = b""
        # -1 is also a legitimate 32-bit result (getState), which comes as exactly four
        # bytes; an error record never is that short.
        if returned == -1 and n != 4:
            error = stream.read_KelError(result, 0)[0]
            raise EngineError.of(error or KelError(code=-1, message="engine error without a record"))
        return result

    def _start(self, start: object, convert: object, release: str, *args: object) -> AsyncCall:
        call = AsyncCall(self, convert, getattr(self._lib, release))
        begin: Callable[..., tuple[int, Optional[KelError]]] = start  # type: ignore[assignment]
        try:
            call_id, failure = begin(self._lib, self._api, call.callback, *args)
        except BaseException:
            call.abandon()
            raise
        if failure is not None:
            call.abandon()
            raise EngineError.of(failure)
        call.started(call_id)
        return call


def _take_error(lib: Any, address: int) -> KelError:
    from .generated.c_records import from_c_KelError

    try:
        record = from_c_KelError(address)
    finally:
        lib.release_KelError(address)
    return record or KelError()


