"""kel: the kel_c vehicle-diagnostics binding for Python.

    import kel

    with kel.Engine() as engine:
        for result in engine.read_dtcs():
            ...

Every operation of the engine interface is a method of kel.Engine, every record a
dataclass of kel (kel.ReadDtcResult); both are generated from the interface description.
Standard library only, over ctypes.
"""

from __future__ import annotations

from ._library import ENVIRONMENT, candidates, load
from .asynccall import AsyncCall, AsyncReport
from .engine import Engine
from .errors import (AccessDeniedError, CallCancelledError, EngineError, LibraryError, LibraryNotFound,
                     MalformedInputError, NegativeResponseError, NoResponseError, NotAvailableError, NotSupportedError,
                     SandboxError, UnknownTargetError)
from .generated.enums import *  # noqa: F401,F403
from .generated.enums import __all__ as _enums
from .generated.errors import ErrorCode
from .events import EventChannel
from .generated.records import *  # noqa: F401,F403
from .generated.records import __all__ as _records

__version__ = "0.1.0"

__all__ = ["ENVIRONMENT", "AccessDeniedError", "AsyncCall", "AsyncReport", "CallCancelledError", "Engine",
           "EngineError", "ErrorCode", "EventChannel", "LibraryError", "LibraryNotFound", "MalformedInputError",
           "NegativeResponseError", "NoResponseError", "NotAvailableError", "NotSupportedError", "SandboxError",
           "UnknownTargetError", "candidates", "load", *_enums, *_records]
