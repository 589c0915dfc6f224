# Generated from the interface description by tools/generate.py. Do not edit.
"""Names for the numbers that mean something: an IntEnum per enum of the description, an
IntFlag per `flags` enum (with a boolean property per bit). Each is still the plain
integer the engine and C see."""

from __future__ import annotations

import enum
from typing import Any


def _unnamed(cls: Any, value: object) -> Any:
    """A value the enum does not name still arrives: as a member without a name of its own
    (an engine may report numbers this version of the package does not know)."""
    if not isinstance(value, int):
        return None
    member = int.__new__(cls, value)
    member._name_ = f"{cls.__name__}_{value}"
    member._value_ = value
    return member


class DtcStatus(enum.IntFlag):
    """The ISO 14229 status byte of a DTC: eight independent bits.

    Each bit is also a property: status.confirmed, status.test_failed ...

    Members:
        TEST_FAILED = 0x01: the last test of the DTC failed
        TEST_FAILED_THIS_OPERATION_CYCLE = 0x02: a test failed during the current
            operation cycle
        PENDING = 0x04: failed in the current or the last operation cycle (pendingDTC)
        CONFIRMED = 0x08: confirmed: stored in the fault memory (confirmedDTC)
        TEST_NOT_COMPLETED_SINCE_LAST_CLEAR = 0x10: not tested to the end since the
            fault memory was last cleared
        TEST_FAILED_SINCE_LAST_CLEAR = 0x20: a test failed since the fault memory was
            last cleared
        TEST_NOT_COMPLETED_THIS_OPERATION_CYCLE = 0x40: not tested to the end during the
            current operation cycle
        WARNING_INDICATOR_REQUESTED = 0x80: the unit asks for its warning lamp
    """

    TEST_FAILED = 0x01
    """The last test of the DTC failed."""
    TEST_FAILED_THIS_OPERATION_CYCLE = 0x02
    """A test failed during the current operation cycle."""
    PENDING = 0x04
    """Failed in the current or the last operation cycle (pendingDTC)."""
    CONFIRMED = 0x08
    """Confirmed: stored in the fault memory (confirmedDTC)."""
    TEST_NOT_COMPLETED_SINCE_LAST_CLEAR = 0x10
    """Not tested to the end since the fault memory was last cleared."""
    TEST_FAILED_SINCE_LAST_CLEAR = 0x20
    """A test failed since the fault memory was last cleared."""
    TEST_NOT_COMPLETED_THIS_OPERATION_CYCLE = 0x40
    """Not tested to the end during the current operation cycle."""
    WARNING_INDICATOR_REQUESTED = 0x80
    """The unit asks for its warning lamp."""

    @property
    def test_failed(self) -> bool:
        """True when TEST_FAILED is set: the last test of the DTC failed."""
        return bool(self & 0x01)

    @property
    def test_failed_this_operation_cycle(self) -> bool:
        """
        True when TEST_FAILED_THIS_OPERATION_CYCLE is set: a test failed during the
        current operation cycle.
        """
        return bool(self & 0x02)

    @property
    def pending(self) -> bool:
        """
        True when PENDING is set: failed in the current or the last operation cycle
        (pendingDTC).
        """
        return bool(self & 0x04)

    @property
    def confirmed(self) -> bool:
        """True when CONFIRMED is set: confirmed: stored in the fault memory (confirmedDTC)."""
        return bool(self & 0x08)

    @property
    def test_not_completed_since_last_clear(self) -> bool:
        """
        True when TEST_NOT_COMPLETED_SINCE_LAST_CLEAR is set: not tested to the end
        since the fault memory was last cleared.
        """
        return bool(self & 0x10)

    @property
    def test_failed_since_last_clear(self) -> bool:
        """
        True when TEST_FAILED_SINCE_LAST_CLEAR is set: a test failed since the fault
        memory was last cleared.
        """
        return bool(self & 0x20)

    @property
    def test_not_completed_this_operation_cycle(self) -> bool:
        """
        True when TEST_NOT_COMPLETED_THIS_OPERATION_CYCLE is set: not tested to the
        end during the current operation cycle.
        """
        return bool(self & 0x40)

    @property
    def warning_indicator_requested(self) -> bool:
        """True when WARNING_INDICATOR_REQUESTED is set: the unit asks for its warning lamp."""
        return bool(self & 0x80)

    @classmethod
    def _missing_(cls, value: object) -> Any:
        if isinstance(value, int) and value < 0:
            return _unnamed(cls, value)
        return super()._missing_(value)


class EngineState(enum.IntEnum):
    """The engine's state, as getState reports it.

    Members:
        CREATED = 0: obtained, not initialised yet
        INITIALIZED = 1: initialised: every operation may run
        ENDED = 2: ended; initialize starts it again
    """

    CREATED = 0
    """Obtained, not initialised yet."""
    INITIALIZED = 1
    """Initialised: every operation may run."""
    ENDED = 2
    """Ended; initialize starts it again."""

    @classmethod
    def _missing_(cls, value: object) -> Any:
        return _unnamed(cls, value)


class TargetResultStatus(enum.IntEnum):
    """How one target fared in a call on several targets (the status of the per-target
    results).

    Members:
        OK = 0: the target answered
        NO_RESPONSE = 1: the unit is silent (error 1010)
        UNKNOWN_TARGET = 2: no target of that name (error 1011)
        REFUSED = 3: it answered but refused, or was not part of the call (what exactly,
            the record's doc says)
    """

    OK = 0
    """The target answered."""
    NO_RESPONSE = 1
    """The unit is silent (error 1010)."""
    UNKNOWN_TARGET = 2
    """No target of that name (error 1011)."""
    REFUSED = 3
    """
    It answered but refused, or was not part of the call (what exactly, the record's doc
    says).
    """

    @classmethod
    def _missing_(cls, value: object) -> Any:
        return _unnamed(cls, value)


class ServiceStatus(enum.IntEnum):
    """The outcome of one executed service.

    Members:
        POSITIVE = 0: a positive response
        NEGATIVE_RESPONSE = 1: a negative response; its code is in the error's
            negativeResponse
        NO_RESPONSE = 2: no response (error 1010)
        NOT_SENT = 3: not sent (error 1100 or 1101; no request)
    """

    POSITIVE = 0
    """A positive response."""
    NEGATIVE_RESPONSE = 1
    """A negative response; its code is in the error's negativeResponse."""
    NO_RESPONSE = 2
    """No response (error 1010)."""
    NOT_SENT = 3
    """Not sent (error 1100 or 1101; no request)."""

    @classmethod
    def _missing_(cls, value: object) -> Any:
        return _unnamed(cls, value)


class FlashStatus(enum.IntEnum):
    """The state of one flash session.

    Members:
        FLASHED = 0: flashed and checked
        RUNNING = 1: still running (a report before the end)
        FAILED = 2: failed; the error says why
        NOT_RUN = 3: not run (an earlier session failed, or the call was cancelled)
    """

    FLASHED = 0
    """Flashed and checked."""
    RUNNING = 1
    """Still running (a report before the end)."""
    FAILED = 2
    """Failed; the error says why."""
    NOT_RUN = 3
    """Not run (an earlier session failed, or the call was cancelled)."""

    @classmethod
    def _missing_(cls, value: object) -> Any:
        return _unnamed(cls, value)


class EventKind(enum.IntEnum):
    """What an event reports: the kind of a KelEvent.

    Members:
        ENGINE_INITIALIZED = 1: initialize ran
        ENGINE_ENDED = 2: end ran
        LOCK_TAKEN = 3: lock succeeded (detail: the lock id)
        LOCK_RELEASED = 4: unlock, or end while locked
        LOCK_BROKEN = 5: breakLock while locked
        DTCS_CLEARED = 6: DTCs were cleared (code: how many targets)
        ASYNC_PROGRESS = 7: an asynchronous call progressed (code: per cent)
        ASYNC_COMPLETED = 8: an asynchronous call completed (code: 0 or its error code)
        CONNECTION_BROKEN = 9: a remote connection broke (error 1007)
        CONNECTION_CLOSED = 10: a remote connection was closed
        CLIENT_CONNECTED = 11: a remote client connected (code: remote clients now)
        CLIENT_DISCONNECTED = 12: a remote client went away (code: remote clients now)
        EVENTS_LOST = 13: the channel overflowed (code: events dropped)
        STATUS_TEXT = 14: the status text was set (text: the new text)
        SERVER_STARTED = 30: the server started
        SERVER_STOPPED = 31: the server stopped (code: connections ended)
        SOVD_SERVER_STARTED = 32: the SOVD server started
        SOVD_SERVER_STOPPED = 33: the SOVD server stopped
        USER_LOGGED_IN = 34: a user logged in (code: the role)
        USER_LOGGED_OUT = 35: a user logged out (code: the role)
        LOGIN_FAILED = 36: a wrong user name or password (code: failures in a row)
        SEQUENCE_STEP = 50: a service of a sequence run (code: its status)
        SEQUENCE_ENDED = 51: a sequence run ended (code: 0 done, 1 stopped by a failure,
            2 cancelled)
        UPDATE_PACKAGE_SKIPPED = 60: an update package was left out or not installed
            (code: the error)
        SCRIPTED = 100: posted by a test through the simulated vehicle (kelsim_postEvent
            takes any kind from 100 on; those above 100 stay unnamed)
    """

    ENGINE_INITIALIZED = 1
    """Initialize ran."""
    ENGINE_ENDED = 2
    """End ran."""
    LOCK_TAKEN = 3
    """Lock succeeded (detail: the lock id)."""
    LOCK_RELEASED = 4
    """Unlock, or end while locked."""
    LOCK_BROKEN = 5
    """BreakLock while locked."""
    DTCS_CLEARED = 6
    """DTCs were cleared (code: how many targets)."""
    ASYNC_PROGRESS = 7
    """An asynchronous call progressed (code: per cent)."""
    ASYNC_COMPLETED = 8
    """An asynchronous call completed (code: 0 or its error code)."""
    CONNECTION_BROKEN = 9
    """A remote connection broke (error 1007)."""
    CONNECTION_CLOSED = 10
    """A remote connection was closed."""
    CLIENT_CONNECTED = 11
    """A remote client connected (code: remote clients now)."""
    CLIENT_DISCONNECTED = 12
    """A remote client went away (code: remote clients now)."""
    EVENTS_LOST = 13
    """The channel overflowed (code: events dropped)."""
    STATUS_TEXT = 14
    """The status text was set (text: the new text)."""
    SERVER_STARTED = 30
    """The server started."""
    SERVER_STOPPED = 31
    """The server stopped (code: connections ended)."""
    SOVD_SERVER_STARTED = 32
    """The SOVD server started."""
    SOVD_SERVER_STOPPED = 33
    """The SOVD server stopped."""
    USER_LOGGED_IN = 34
    """A user logged in (code: the role)."""
    USER_LOGGED_OUT = 35
    """A user logged out (code: the role)."""
    LOGIN_FAILED = 36
    """A wrong user name or password (code: failures in a row)."""
    SEQUENCE_STEP = 50
    """A service of a sequence run (code: its status)."""
    SEQUENCE_ENDED = 51
    """A sequence run ended (code: 0 done, 1 stopped by a failure, 2 cancelled)."""
    UPDATE_PACKAGE_SKIPPED = 60
    """An update package was left out or not installed (code: the error)."""
    SCRIPTED = 100
    """
    Posted by a test through the simulated vehicle (kelsim_postEvent takes any kind from
    100 on; those above 100 stay unnamed).
    """

    @classmethod
    def _missing_(cls, value: object) -> Any:
        return _unnamed(cls, value)


__all__ = ["DtcStatus", "EngineState", "TargetResultStatus", "ServiceStatus", "FlashStatus", "EventKind"]
