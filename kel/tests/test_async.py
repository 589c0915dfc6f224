"""Asynchronous calls through the C exports: reports, cancelling, asyncio, failures."""

from __future__ import annotations

import asyncio
import concurrent.futures
import threading
import time
import unittest
from typing import Any, Optional

import kel
from kel import asynccall
from kel.generated import c_records

from .support import EngineTest, sim


class AsyncCalls(EngineTest):
    def test_a_read_reports_each_target_and_ends_with_the_final_report(self) -> None:
        call = self.engine.read_dtcs_async(config=kel.DtcReadConfig(with_snapshots=True))
        reports = list(call.reports(timeout=10))
        self.assertEqual([r.is_final for r in reports], [False] * 5 + [True])
        self.assertTrue(all(r.call_id == call.call_id != 0 for r in reports))
        self.assertTrue(all(r.error is None for r in reports))
        # The pieces together are what the synchronous read gives.
        self.assertEqual(call.result(), self.engine.read_dtcs(config=kel.DtcReadConfig(with_snapshots=True)))
        self.assertTrue(call.done())
        self.assertNotIn(call, asynccall._running)

    def test_progress_comes_while_the_call_runs(self) -> None:
        sim.kelsim_setAsyncInterval(b"identifyAllTargetsAsync", 100)
        call = self.engine.identify_all_targets_async()
        first = next(iter(call))
        self.assertFalse(first.is_final)
        self.assertFalse(call.done(), "the first report came before the call ended")
        self.assertEqual(len(call.result(timeout=10)), 6)

    def test_cancel_ends_the_call_with_the_engines_error(self) -> None:
        sim.kelsim_setAsyncInterval(b"readDtcsAsync", 2000)
        started = time.monotonic()
        call = self.engine.read_dtcs_async()
        self.assertTrue(call.cancel())
        with self.assertRaises(kel.CallCancelledError) as raised:
            call.result(timeout=10)
        self.assertEqual(raised.exception.code, 1012)
        self.assertLess(time.monotonic() - started, 1.5, "the call did not wait for its first report")
        # The future's cancelled state, seen by the standard waiting too.
        self.assertTrue(call.cancelled())
        self.assertRaises(kel.CallCancelledError, call.exception)
        self.assertEqual(concurrent.futures.wait([call], timeout=1).done, {call})
        final = list(call.reports())[-1]
        self.assertTrue(final.is_final)
        self.assertEqual(final.results, [])

    def test_a_call_is_a_future_that_ends_with_the_final_report(self) -> None:
        sim.kelsim_setAsyncInterval(b"identifyAllTargetsAsync", 20)
        ended = threading.Event()
        seen: list[tuple[Any, bool, bool]] = []

        def on_done(future: concurrent.futures.Future[list[Any]]) -> None:
            seen.append((future.result(), call._reports[-1].is_final, threading.current_thread() is main))
            ended.set()

        main = threading.current_thread()
        call = self.engine.identify_all_targets_async()
        call.add_done_callback(on_done)
        self.assertTrue(ended.wait(10))
        time.sleep(0.05)
        self.assertEqual(seen, [(call.result(), True, False)], "once, on the engine's thread, after the final report")
        self.assertEqual(len(call.result()), 6)

        async def wrapped() -> list[Any]:
            return await asyncio.wrap_future(self.engine.identify_targets_async(["ECM"]))

        self.assertEqual([r.target for r in asyncio.run(wrapped()) if r], ["ECM"])

    def test_a_failed_start_raises_and_leaves_no_call_behind(self) -> None:
        sim.kelsim_failNext(b"clearAllDtcsAsync", 1, 77, 0, "not now", "")
        before = len(asynccall._running)
        with self.assertRaises(kel.EngineError) as raised:
            self.engine.clear_all_dtcs_async(["ECM"])
        self.assertEqual(raised.exception.code, 77)
        self.assertEqual(len(asynccall._running), before)

    def test_an_error_ending_the_call_raises_from_result(self) -> None:
        sim.kelsim_failAsync(b"readIdentificationValuesAsync", 1, 1013, "bad description", "")
        call = self.engine.read_identification_values_async(["ECM"])
        with self.assertRaises(kel.EngineError) as raised:
            call.result(timeout=10)
        self.assertEqual((raised.exception.code, raised.exception.message), (1013, "bad description"))
        self.assertIs(call.exception(), raised.exception)

    def test_a_conversion_that_fails_in_the_callback_becomes_the_reports_error(self) -> None:
        def broken(address: Optional[int]) -> Any:
            raise RuntimeError("broken")

        call = self.engine._start(c_records.start_identifyAllTargetsAsync, broken,
                                  "release_VariantIdentResult_array")
        with self.assertRaises(kel.EngineError) as raised:
            call.result(timeout=10)
        self.assertIn("could not be read", raised.exception.message)
        self.assertTrue(call.done())

    def test_awaiting_does_not_block_the_event_loop(self) -> None:
        sim.kelsim_setAsyncInterval(b"identifyAllTargetsAsync", 50)

        async def main() -> tuple[int, int]:
            ticks = 0
            stop = asyncio.Event()

            async def tick() -> None:
                nonlocal ticks
                while not stop.is_set():
                    ticks += 1
                    await asyncio.sleep(0.005)

            ticker = asyncio.ensure_future(tick())
            results = await self.engine.identify_all_targets_async()
            stop.set()
            await ticker
            return len(results), ticks

        count, ticks = asyncio.run(main())
        self.assertEqual(count, 6)
        # A blocked loop would tick once, before the call; a free one ticks on while it runs.
        self.assertGreater(ticks, 3, "the loop ran while the call was on its way")

    def test_many_calls_at_once(self) -> None:
        calls = [self.engine.identify_targets_async([name]) for name in ["ECM", "TCM", "GW"] * 10]
        for call, name in zip(calls, ["ECM", "TCM", "GW"] * 10):
            result = call.result(timeout=10)
            self.assertEqual([r.target for r in result if r], [name])


if __name__ == "__main__":
    unittest.main()
