"""Event channels: polling, following, closing."""

from __future__ import annotations

import threading
import time
import unittest

import kel

from .support import EngineTest, sim


class Events(EngineTest):
    def test_poll_gives_what_happened_since_the_channel_opened_up_to_its_limit(self) -> None:
        with self.engine.events() as channel:
            with self.engine.locked() as lock_id:
                pass
            events = channel.poll()
            self.assertEqual([(e.kind, e.name) for e in events], [(3, "LockTaken"), (4, "LockReleased")])
            self.assertEqual(events[0].detail, f"lock id {lock_id}")
            self.assertEqual(channel.poll(), [], "events read leave the channel")
            # A limit caps one poll; the next poll gives the rest.
            for _ in range(3):
                with self.engine.locked():
                    pass
            self.assertEqual(len(channel.poll(limit=4)), 4)
            self.assertEqual(len(channel.poll()), 2)

    def test_follow_yields_events_as_they_come_and_stops_when_quiet(self) -> None:
        handle = self.engine.get_handle()

        def later() -> None:
            time.sleep(0.1)
            sim.kelsim_postEvent(handle, 100, 5, "from the bench", "detail", 55, "with an error")

        with self.engine.events() as channel:
            poster = threading.Thread(target=later)
            poster.start()
            events = list(channel.follow(interval=0.01, timeout=1.0))
            poster.join()
        self.assertEqual(len(events), 1)
        event = events[0]
        self.assertEqual((event.kind, event.code, event.text, event.detail), (100, 5, "from the bench", "detail"))
        assert event.error is not None
        self.assertEqual((event.error.code, event.error.message), (55, "with an error"))

    def test_the_channel_is_closed_after_the_block(self) -> None:
        with self.engine.events() as channel:
            number = channel.channel
        assert number is not None
        with self.assertRaises(RuntimeError):
            channel.poll()
        with self.assertRaises(kel.EngineError) as raised:
            self.engine.get_current_events(number, 1)
        self.assertEqual(raised.exception.code, 1006)


if __name__ == "__main__":
    unittest.main()
