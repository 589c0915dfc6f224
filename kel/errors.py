"""Exceptions: an engine error carries the engine's record; its class says the cause.

The class of a failed call is chosen from the error table of the interface description
(kel.ErrorCode; the README's table lists which code raises what): a failure that carries
a negative response, or code 1102, raises NegativeResponseError; a silent unit
NoResponseError; an unknown target UnknownTargetError; not logged in, a wrong password,
throttled logins or a missing administrator AccessDeniedError; a path the sandbox refuses
SandboxError; an operation the engine does not have NotSupportedError; a cancelled call
CallCancelledError, which is also a concurrent.futures.CancelledError; a remote
connection that has ended ConnectionEndedError, which is also a ConnectionError. Every other code
raises EngineError itself. Per-item errors inside results stay data (KelError records);
EngineError.of(record) raises one when a caller wants to."""

from __future__ import annotations

import concurrent.futures
from typing import Optional

from .generated.errors import RAISES, ErrorCode
from .generated.records import KelError, MvciServerError, NegativeResponse

# The library's own error codes, apart from the engine's.
MALFORMED_INPUT = ErrorCode.MALFORMED_INPUT
NOT_AVAILABLE = ErrorCode.NOT_AVAILABLE

# The names of ISO 14229 negative response codes a tester meets most.
NRC_NAMES = {0x10: "generalReject", 0x11: "serviceNotSupported", 0x12: "subFunctionNotSupported",
             0x13: "incorrectMessageLengthOrInvalidFormat", 0x14: "responseTooLong", 0x21: "busyRepeatRequest",
             0x22: "conditionsNotCorrect", 0x24: "requestSequenceError", 0x31: "requestOutOfRange",
             0x33: "securityAccessDenied", 0x35: "invalidKey", 0x36: "exceededNumberOfAttempts",
             0x37: "requiredTimeDelayNotExpired", 0x70: "uploadDownloadNotAccepted", 0x72: "generalProgrammingFailure",
             0x78: "requestCorrectlyReceivedResponsePending", 0x7E: "subFunctionNotSupportedInActiveSession",
             0x7F: "serviceNotSupportedInActiveSession"}


class EngineError(Exception):
    """The engine reported a failure. `record` is the error record as the engine gave it."""

    def __init__(self, record: KelError) -> None:
        super().__init__(f"error {record.code}: {record.message}" + (f" ({record.details})" if record.details else ""))
        self.record = record

    @property
    def code(self) -> int:
        return self.record.code

    @property
    def error_code(self) -> Optional[ErrorCode]:
        """The code as an ErrorCode, or None for a code the table does not have."""
        try:
            return ErrorCode(self.record.code)
        except ValueError:
            return None

    @property
    def sub_code(self) -> int:
        return self.record.sub_code

    @property
    def message(self) -> str:
        return self.record.message

    @property
    def details(self) -> str:
        return self.record.details

    @property
    def mvci_error(self) -> Optional[MvciServerError]:
        return self.record.mvci_error

    @property
    def negative_response(self) -> Optional[NegativeResponse]:
        return self.record.negative_response

    @staticmethod
    def of(record: KelError) -> EngineError:
        """The exception for an error record: a call's failure, or a per-item error that a
        caller wants to raise."""
        if record.negative_response is not None:
            return NegativeResponseError(record)
        kind = _KINDS.get(record.code)
        if kind is None:
            kind = _KINDS.get(RAISES.get(record.code, ""), EngineError)
        return kind(record)


class LibraryError(EngineError):
    """An error of kel_c itself rather than of the engine."""


class MalformedInputError(LibraryError):
    """The library found the input of a call short or malformed (code -1001)."""


class NotAvailableError(LibraryError):
    """The operation's records are not built in this version of the library (code -1002)."""


class NegativeResponseError(EngineError):
    """A control unit answered with a negative response. `nrc` is its code (from the
    attached NegativeResponse, else from the error's sub_code, where the engine puts it
    for a failed call), `nrc_name` its ISO 14229 name, `service_id` the refused service's
    id when the engine says it (None otherwise)."""

    @property
    def nrc(self) -> int:
        response = self.record.negative_response
        return response.code if response is not None else self.record.sub_code

    @property
    def nrc_name(self) -> str:
        response = self.record.negative_response
        if response is not None and response.name:
            return response.name
        return NRC_NAMES.get(self.nrc, f"0x{self.nrc:02X}")

    @property
    def service_id(self) -> Optional[int]:
        response = self.record.negative_response
        return response.service_id if response is not None and response.service_id else None


class NoResponseError(EngineError):
    """The control unit does not respond."""


class UnknownTargetError(EngineError):
    """No target of that name."""


class AccessDeniedError(EngineError):
    """Not logged in, a wrong user name or password, logins throttled, or the call needs
    an administrator."""


class SandboxError(EngineError):
    """The file system's sandbox refused the path; nothing was read, made or changed."""


class NotSupportedError(EngineError):
    """The engine does not have this operation (the simulated vehicle: not simulated yet)."""


class CallCancelledError(EngineError, concurrent.futures.CancelledError):
    """The call was cancelled; also a concurrent.futures.CancelledError, so code that
    waits on futures treats it as any cancellation."""


class ConnectionEndedError(EngineError, ConnectionError):
    """The remote connection has ended: the server went away, ended it or was stopped, or
    the socket broke. Also a ConnectionError; reconnect() renews it once a server listens."""


class LibraryNotFound(OSError):
    """The kel_c library could not be loaded from any of the places searched."""


_KINDS: dict[object, type[EngineError]] = {
    MALFORMED_INPUT: MalformedInputError, NOT_AVAILABLE: NotAvailableError,
    "NegativeResponse": NegativeResponseError, "NoResponse": NoResponseError, "UnknownTarget": UnknownTargetError,
    "AccessDenied": AccessDeniedError, "Sandbox": SandboxError, "NotSupported": NotSupportedError,
    "CallCancelled": CallCancelledError, "ConnectionEnded": ConnectionEndedError,
}
