"""The engine object: lifetimes, the call frame over py_call, and asynchronous starts."""

from __future__ import annotations

import contextlib
import ctypes
import gc
import logging
import time
import weakref
from types import TracebackType
from typing import Any, Callable, Iterator, Optional, Type, Union

from .asynccall import AsyncCall
from .errors import EngineError
from .events import EventChannel
from .generated import stream
from .generated.enums import EngineState
from .generated.errors import ErrorCode
from .generated.operations import Operations
from .generated.records import KelError
from . import _library

# One DEBUG record per call: the operation, its arguments (secrets as ***), its duration and
# its error code (0: none); the record also carries them as the attributes operation,
# duration (seconds) and error_code. For an asynchronous call the record is its start: the
# time the engine took to take it, and the error of a start that failed. kel.setup_logging()
# shows them.
_log = logging.getLogger("kel")
# The engine states by number, for get_state (an unnamed number still goes through the enum).
_states: dict[int, EngineState] = {member.value: member for member in EngineState}


@contextlib.contextmanager
def _logged(name: str, arguments: tuple[tuple[str, object], ...]) -> Iterator[None]:
    """Writes the DEBUG record of the call made inside the `with` block."""
    start = time.perf_counter()
    code = 0
    try:
        yield
    except EngineError as e:
        code = e.code
        raise
    finally:
        duration = time.perf_counter() - start
        _log.debug("%s(%s): %.3f ms, %s", name, ", ".join(f"{key}={value!r}" for key, value in arguments),
                   duration * 1000, f"error {code}" if code else "ok",
                   extra={"operation": name, "duration": duration, "error_code": code})


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
        # The output arguments of py_call, made once and reused; a call takes a set from
        # this list and puts it back (list.pop/append are atomic), so that threads calling
        # at once each use their own.
        self._frames: list[tuple[ctypes.c_uint32, ctypes.c_void_p, Any, Any]] = []
        self._scalars: list[tuple[ctypes.c_void_p, ctypes.c_int32, Any, Any]] = []
        self._initialize = initialize
        # Each engine object handed out counts one use in the library's registry; this
        # gives it back also when the caller forgets release().
        self._release = weakref.finalize(self, lib.releaseTarnApi, api)
        self._released = False  # release() was called (a plain flag: read on every call)
        # Made by connect(): disconnected at the end of its block; the local engine object
        # it connected through (ended then too when connect() initialised it), and its
        # engine handle, which reconnect() needs after the server has gone.
        self._connected = False
        self._local: Optional[Engine] = None
        self._ends_local = False
        self._remote_handle = 0

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

    @classmethod
    def connect(cls, address: str, user: Optional[str] = None, password: Optional[str] = None, *,
                library: Optional[str] = None) -> Engine:
        """A remote engine object: connects to the engine's server at `address` (what
        start_server returned there, such as "kel://127.0.0.1:7400", also from another
        process: `kel-sim-server` prints it) and, when `user` is given, logs in with
        `password`. Its calls travel to the server; the `with` block disconnects and
        releases it (it is not initialised or ended: the server's engine is). A connection
        that ended (the server stopped or went away) raises EngineError with code
        ErrorCode.CONNECTION_ENDED on every call; reconnect() renews it.

        Raises EngineError when the server cannot be reached or the login fails
        (AccessDeniedError for a wrong user name or password), ValueError for a user
        without a password.
        """
        if user is not None and password is None:
            raise ValueError("a user logs in with a password")
        # The local engine object connects; it must be initialised for that, and it hears
        # ConnectionBroken when the server goes away (connection.local.events()).
        local = cls(initialize=False, library=library)
        engine: Optional[Engine] = None
        try:
            ends_local = local.get_state() != EngineState.INITIALIZED
            if ends_local:
                local.initialize()
            engine = local.connect_remote_server(address)
            engine._connected = True
            engine._local, engine._ends_local = local, ends_local
            engine._remote_handle = engine.get_handle()
            if user is not None:
                from .generated.records import LogInOutConfig

                engine.log_in(LogInOutConfig(user=user, password=password or ""))
        except BaseException as failure:
            if engine is not None:  # disconnects, and lets the local one go
                engine.__exit__(type(failure), failure, failure.__traceback__)
            else:
                local.release()
            raise
        return engine

    @property
    def local(self) -> Optional[Engine]:
        """For an engine from connect(): the local engine object it connected through,
        whose event channels hear ConnectionBroken (kind 9) when the server goes away."""
        return self._local

    def reconnect(self) -> bool:
        """Renews this remote connection after it ended (reconnect_remote_server with its
        engine handle): True when it is connected again, False while no server listens at
        its address. A renewed connection is logged out."""
        return self.reconnect_remote_server(self._remote_handle or self.get_handle())

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
        self._released = True
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
            elif self._connected:
                self._disconnect(quietly=kind is not None)
        finally:
            self.release()
            if self._local is not None:
                local, self._local = self._local, None
                try:
                    if self._ends_local:
                        local.end()
                finally:
                    local.release()

    def _disconnect(self, quietly: bool) -> None:
        try:
            self.disconnect()
        except EngineError as e:
            # Ended already (by the server, or the server is gone), or not logged in to a
            # server that manages users: releasing it ends what is left. An error of the
            # block goes on rather than this one.
            if not quietly and e.code not in (ErrorCode.CONNECTION_ENDED, ErrorCode.NOT_LOGGED_IN):
                raise

    @contextlib.contextmanager
    def locked(self) -> Iterator[int]:
        """Holds the engine's lock for the `with` block; gives the lock id."""
        lock_id = self.lock()
        try:
            yield lock_id
        finally:
            self.unlock(lock_id)

    def unlock_security(self, target: str, level: int, key: Callable[[bytes, int], bytes],
                        session: Union[str, int] = "Extended") -> bool:
        """Unlocks a security level of a target: enters `session` (a name of ISO 14229,
        "Default", "Programming", "Extended" or "SafetySystem", or the session's number),
        asks for the seed of `level` and sends `key(seed, level)`, the caller's algorithm
        (kel.sim.key_for for the simulated vehicle). Gives False when the level was unlocked
        already (the unit answers the seed 00 00 00 00, and no key is sent), True otherwise.

        Raises UnknownTargetError for a target the project does not have, NegativeResponseError
        when the unit refuses the session, the seed or the key (a wrong key: nrc 0x35), and
        EngineError for any other failure.
        """
        found = next((t for t in self.get_targets() if t is not None and t.name == target), None)
        if found is None:
            raise EngineError.of(KelError(code=ErrorCode.UNKNOWN_TARGET, message=f"The vehicle has no such control "
                                          f"unit (target {target})"))
        number = session if isinstance(session, int) else _SESSIONS.get(session)
        if number is None:
            raise ValueError(f"unknown session {session!r}: give one of {', '.join(_SESSIONS)} or its number")
        from .generated.records import ServiceInput

        for result in self.execute_service(target, [ServiceInput(data=bytes([0x10, number]))]):
            if result is not None and result.error is not None:
                raise EngineError.of(result.error)
        seed = self.create_seed(found.address, level)
        if seed and not any(seed):
            return False
        self.send_key(key(seed, level))
        return True

    def events(self) -> EventChannel:
        """An event channel: `with engine.events() as channel: channel.poll()`."""
        return EventChannel(self)

    # ---- the frame of every synchronous call ----

    def _call(self, number: int, data: bytes, name: str = "", arguments: tuple[tuple[str, object], ...] = ()) -> bytes:
        if not _log.isEnabledFor(logging.DEBUG):
            return self._dispatch(number, data)
        with _logged(name or f"operation {number}", arguments):
            return self._dispatch(number, data)

    def _dispatch(self, number: int, data: bytes) -> bytes:
        if self._released:
            raise RuntimeError("the engine object was released")
        try:
            frame = self._frames.pop()
        except IndexError:
            size, out = ctypes.c_uint32(), ctypes.c_void_p()
            frame = (size, out, ctypes.byref(size), ctypes.byref(out))
        returned = self._lib.py_call_checked(self._api, number, 0, data, len(data), frame[2], frame[3])
        n = frame[0].value
        address = frame[1].value or 0
        self._frames.append(frame)
        # One copy: the bytes object is made straight from the library's buffer, which
        # py_result then frees.
        result = (ctypes.c_char * n).from_address(address).raw if n else b""
        self._lib.py_result(None, 0, address)
        # -1 is also a legitimate 32-bit result (getState), which comes as exactly four
        # bytes; an error record never is that short.
        if returned == -1 and n != 4:
            error = stream.read_KelError(result, 0)[0]
            raise EngineError.of(error or KelError(code=-1, message="engine error without a record"))
        return result

    def get_state(self) -> EngineState:
        """Reads the engine's state: EngineState.CREATED, INITIALIZED or ENDED.

        Raises EngineError when the engine reports a failure.
        """
        if not _log.isEnabledFor(logging.DEBUG):
            return self._get_state()
        with _logged("get_state", ()):
            return self._get_state()

    def _get_state(self) -> EngineState:
        # An internal route: a fixed-size result taken from the C export kel_getState in
        # one foreign call instead of py_call and py_result (the stream route costs about
        # twice a bare call, this one hardly more). The engine's error is the same record
        # either way, so callers see the same EngineError.
        if self._released:
            raise RuntimeError("the engine object was released")
        try:
            scalar = self._scalars.pop()
        except IndexError:
            error, value = ctypes.c_void_p(), ctypes.c_int32()
            scalar = (error, value, ctypes.byref(error), ctypes.byref(value))
        scalar[0].value = None
        self._lib.kel_getState(self._api, scalar[2], scalar[3])
        failed, state = scalar[0].value, scalar[1].value
        self._scalars.append(scalar)
        if failed:
            raise EngineError.of(_take_error(self._lib, failed))
        member = _states.get(state)  # the enum's call costs several times this lookup
        return member if member is not None else EngineState(state)

    def _decoding(self, data: bytes) -> contextlib.AbstractContextManager[None]:
        if len(data) >= _LARGE_RESULT:
            return _CollectorPaused()
        return _NOTHING

    def _start(self, start: object, convert: object, release: str, *args: object, name: str = "",
               arguments: tuple[tuple[str, object], ...] = ()) -> AsyncCall:
        if not _log.isEnabledFor(logging.DEBUG):
            return self._begin(start, convert, release, args)
        with _logged(name or "asynchronous call", arguments):
            return self._begin(start, convert, release, args)

    def _begin(self, start: object, convert: object, release: str, args: tuple[object, ...]) -> AsyncCall:
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


# The diagnostic sessions of ISO 14229 by name (DiagnosticSessionControl, 10 xx).
_SESSIONS = {"Default": 0x01, "Programming": 0x02, "Extended": 0x03, "SafetySystem": 0x04}

# From this size on, a result is decoded with the cyclic collector suspended: decoding
# makes tens of thousands of containers, and every collection pass in between would scan
# them all again (half of the decoding time of a 20,000-DTC read). Small results are not
# worth the switch.
_LARGE_RESULT = 64 * 1024
_NOTHING: contextlib.AbstractContextManager[None] = contextlib.nullcontext()


class _CollectorPaused(contextlib.AbstractContextManager[None]):
    """Suspends the cyclic garbage collector for a `with` block and restores the state the
    caller had. The decoded tree holds no cycles, so nothing is left for it to find. While
    threads decode at once, the collector is back on when the first that turned it off is
    done."""

    __slots__ = ("_was_enabled",)

    def __enter__(self) -> None:
        self._was_enabled = gc.isenabled()
        gc.disable()

    def __exit__(self, *exc: object) -> None:
        if self._was_enabled:
            gc.enable()


def _take_error(lib: Any, address: int) -> KelError:
    from .generated.c_records import from_c_KelError

    try:
        record = from_c_KelError(address)
    finally:
        lib.release_KelError(address)
    return record or KelError()


