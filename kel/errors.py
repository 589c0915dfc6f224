"""Exceptions: an engine error carries the engine's record; the library's own errors
(malformed input, an operation not built yet) are a subclass of it."""

from __future__ import annotations

from typing import Optional

from .generated.records import KelError, MvciServerError, NegativeResponse

# The library's own error codes, apart from the engine's.
MALFORMED_INPUT = -1001
NOT_AVAILABLE = -1002


class EngineError(Exception):
    """The engine reported a failure. `record` is the error record as the engine gave it."""

    def __init__(self, record: KelError) -> None:
        super().__init__(f"error {record.code}: {record.message}" + (f" ({record.details})" if record.details else ""))
        self.record = record

    @property
    def code(self) -> int:
        return self.record.code

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
        kind = {MALFORMED_INPUT: MalformedInputError, NOT_AVAILABLE: NotAvailableError}.get(record.code, EngineError)
        return kind(record)


class LibraryError(EngineError):
    """An error of kel_c itself rather than of the engine."""


class MalformedInputError(LibraryError):
    """The library found the input of a call short or malformed (code -1001)."""


class NotAvailableError(LibraryError):
    """The operation's records are not built in this version of the library (code -1002)."""


class LibraryNotFound(OSError):
    """The kel_c library could not be loaded from any of the places searched."""
