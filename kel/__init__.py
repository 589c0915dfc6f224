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

import logging
from typing import Optional, TextIO

from . import sim
from ._library import ENVIRONMENT, candidates, load
from .asynccall import AsyncCall, AsyncReport
from .engine import Engine
from .errors import (AccessDeniedError, CallCancelledError, ConnectionEndedError, EngineError, LibraryError,
                     LibraryNotFound, MalformedInputError, NegativeResponseError, NoResponseError, NotAvailableError,
                     NotSupportedError, SandboxError, UnknownTargetError)
from .generated.enums import *  # noqa: F401,F403
from .generated.enums import __all__ as _enums
from .generated.errors import ErrorCode
from .events import EventChannel
from .generated.records import *  # noqa: F401,F403
from .generated.records import __all__ as _records

__version__ = "0.1.0"


def setup_logging(level: int = logging.DEBUG, stream: Optional[TextIO] = None) -> logging.Handler:
    """Shows the package's log (logger "kel") on stderr, or on `stream`: at DEBUG one line per
    call with the operation, its arguments (secrets as ***), its duration and its error code.
    A one-liner for scripts; gives the handler, so that a caller may remove it again."""
    handler = logging.StreamHandler(stream)
    handler.setFormatter(logging.Formatter("%(asctime)s %(name)s %(levelname)s %(message)s"))
    logger = logging.getLogger("kel")
    logger.addHandler(handler)
    logger.setLevel(level)
    return handler


__all__ = ["ENVIRONMENT", "AccessDeniedError", "AsyncCall", "AsyncReport", "CallCancelledError",
           "ConnectionEndedError", "Engine", "EngineError", "ErrorCode", "EventChannel", "LibraryError",
           "LibraryNotFound", "MalformedInputError", "NegativeResponseError", "NoResponseError", "NotAvailableError", "NotSupportedError", "SandboxError",
           "UnknownTargetError", "candidates", "load", "setup_logging", "sim", *_enums, *_records]
