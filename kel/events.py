"""Event channels: the engine queues its events on channels that the caller polls."""

from __future__ import annotations

import time
from types import TracebackType
from typing import Iterator, Optional, Type

from ._owner import ChannelOwner
from .generated.records import KelEvent


class EventChannel:
    """`with engine.events() as channel:` opens a channel and closes it at the end. A
    channel sees what happens after it was opened."""

    def __init__(self, engine: ChannelOwner) -> None:
        self._engine = engine
        self.channel: Optional[int] = None

    def __enter__(self) -> EventChannel:
        self.channel = self._engine.open_event_channel()
        return self

    def __exit__(self, kind: Optional[Type[BaseException]], value: Optional[BaseException],
                 trace: Optional[TracebackType]) -> None:
        if self.channel is not None:
            channel, self.channel = self.channel, None
            self._engine.close_event_channel(channel)

    def poll(self, limit: int = 64) -> list[KelEvent]:
        """The events waiting, oldest first, at most `limit`; they leave the channel."""
        if self.channel is None:
            raise RuntimeError("the event channel is not open; use it in a with block")
        report = self._engine.get_current_events(self.channel, limit)
        return [event for event in report.events if event is not None] if report else []

    def follow(self, interval: float = 0.05, timeout: Optional[float] = None) -> Iterator[KelEvent]:
        """Every new event as it comes, polling every `interval` seconds; ends when
        `timeout` seconds pass without one (never without a timeout)."""
        quiet_since = time.monotonic()
        while True:
            events = self.poll()
            for event in events:
                yield event
            if events:
                quiet_since = time.monotonic()
            elif timeout is not None and time.monotonic() - quiet_since >= timeout:
                return
            else:
                time.sleep(interval)

    def __iter__(self) -> Iterator[KelEvent]:
        return self.follow()
