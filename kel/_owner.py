"""What an asynchronous call and an event channel need of the engine object that made
them. Typed here rather than by the engine's own class, so that the engine module imports
them and not the other way round."""

from __future__ import annotations

from typing import Any, Optional, Protocol, Sequence

from .generated.records import EventReport


class CallOwner(Protocol):
    """The engine as an asynchronous call sees it."""

    _lib: Any  # the loaded kel_c: frees the error a report carries

    def cancel_async_calls(self, call_ids: Sequence[int] = ()) -> None: ...


class ChannelOwner(Protocol):
    """The engine as an event channel sees it."""

    def open_event_channel(self) -> int: ...

    def close_event_channel(self, channel: int) -> None: ...

    def get_current_events(self, channel: int, limit: int) -> Optional[EventReport]: ...
