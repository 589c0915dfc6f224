"""Asynchronous calls: a handle over the engine's reports, fed by a ctypes callback."""

from __future__ import annotations

import asyncio
import concurrent.futures
import dataclasses
import threading
from typing import Any, Callable, Generator, Iterator, Optional

from ._owner import CallOwner
from .errors import CallCancelledError, EngineError
from .generated import c_records
from .generated.records import KelError

# Calls whose final report has not come yet: their callback must stay alive for C.
_running: set[AsyncCall] = set()
_running_lock = threading.Lock()


@dataclasses.dataclass
class AsyncReport:
    """One report of an asynchronous call."""

    results: list[Any]
    """The results of this report, decoded (None for a null entry)."""
    is_final: bool
    """The last report of the call."""
    call_id: int
    error: Optional[KelError]
    """The error of this report (a cancelled call ends with one), or None."""


class AsyncCall(concurrent.futures.Future[list[Any]]):
    """A running asynchronous operation, and a concurrent.futures.Future of its results.
    Iterate over it for the reports as they come; result() (or await, or
    asyncio.wrap_future) gives every result, add_done_callback() runs a function when the
    call has ended, cancel() asks the engine to cancel it.

    The future is done when the engine's final report has come, not before; done callbacks
    run on the engine's thread that brought it. A call that the engine cancelled is
    cancelled(), and its result() and exception() raise CallCancelledError (a
    concurrent.futures.CancelledError) with the engine's error; any other error of a report
    is the call's exception()."""

    def __init__(self, engine: CallOwner, convert: object, release: Callable[[Any, int], None]) -> None:
        super().__init__()
        self._engine = engine
        self._convert: Callable[[Optional[int]], Any] = convert  # type: ignore[assignment]
        self._release = release
        # Guards the reports; the future has a lock of its own.
        self._arrived = threading.Condition()
        self._reports: list[AsyncReport] = []
        self._cancelled_by: Optional[CallCancelledError] = None
        self.call_id = 0
        self.callback = c_records.CALLBACK(self._on_report)
        with _running_lock:
            _running.add(self)

    def started(self, call_id: int) -> None:
        with self._arrived:
            self.call_id = self.call_id or call_id

    def abandon(self) -> None:
        """The start failed: the engine never calls back."""
        with _running_lock:
            _running.discard(self)

    # Runs on a thread of the engine. It must never raise into C, and it frees what it is
    # given whatever happens.
    def _on_report(self, results: Optional[int], count: int, is_final: bool, call_id: int,
                   error: Optional[int], context: Optional[int]) -> None:
        values: list[Any] = []
        failure: Optional[KelError] = None
        try:
            values = c_records.from_c_list(results, count, self._convert)
        except BaseException as e:  # noqa: BLE001 - reported as the report's error
            failure = KelError(code=-1, message=f"the results could not be read: {e!r}")
        finally:
            self._release(results, count)
        try:
            failure = c_records.from_c_KelError(error) or failure
        except BaseException as e:  # noqa: BLE001
            failure = KelError(code=-1, message=f"the error could not be read: {e!r}")
        finally:
            if error:
                self._engine._lib.release_KelError(error)
        try:
            self._deliver(AsyncReport(values, bool(is_final), call_id, failure))
        except BaseException:  # noqa: BLE001 - nothing may reach C
            pass

    def _deliver(self, report: AsyncReport) -> None:
        with self._arrived:
            self.call_id = self.call_id or report.call_id
            self._reports.append(report)
            self._arrived.notify_all()
            reports = list(self._reports) if report.is_final else []
        if report.is_final:
            with _running_lock:
                _running.discard(self)
            self._settle(reports)

    def _settle(self, reports: list[AsyncReport]) -> None:
        """Completes the future with the outcome of the whole call: the first error of a
        report, or every result."""
        failure = next((r.error for r in reports if r.error is not None), None)
        if failure is None:
            self.set_result([value for report in reports for value in report.results])
            return
        error = EngineError.of(failure)
        if not isinstance(error, CallCancelledError):
            self.set_exception(error)
            return
        # The engine cancelled the call: the future's own cancellation, which runs the done
        # callbacks, then tells those waiting in concurrent.futures.wait and as_completed.
        self._cancelled_by = error
        super().cancel()
        super().set_running_or_notify_cancel()

    def reports(self, timeout: Optional[float] = None) -> Iterator[AsyncReport]:
        """The reports in order, waiting for each; ends after the final one, which comes
        once the future is done. TimeoutError when one does not come within `timeout`
        seconds."""
        seen = 0
        while True:
            with self._arrived:
                if not self._arrived.wait_for(lambda: len(self._reports) > seen, timeout):
                    raise TimeoutError(f"no report of call {self.call_id} within {timeout} s")
                report = self._reports[seen]
            seen += 1
            if report.is_final:
                # The engine's thread settles the future right after it has put the final
                # report here: wait for that, so that the caller finds the call done.
                try:
                    super().exception(timeout)
                except concurrent.futures.CancelledError:
                    pass
            yield report
            if report.is_final:
                return

    def __iter__(self) -> Iterator[AsyncReport]:
        return self.reports()

    def result(self, timeout: Optional[float] = None) -> list[Any]:
        """Every result of every report, in order, once the call has ended. Raises the
        error of a report as its EngineError (CallCancelledError when the engine cancelled
        the call), and TimeoutError when the call does not end within `timeout` seconds."""
        try:
            return super().result(timeout)
        except concurrent.futures.CancelledError as e:
            raise self._cancelled_by or e from None

    def exception(self, timeout: Optional[float] = None) -> Optional[BaseException]:
        """The EngineError that ended the call, or None; raises CallCancelledError when the
        engine cancelled it, as result() does."""
        try:
            return super().exception(timeout)
        except concurrent.futures.CancelledError as e:
            raise self._cancelled_by or e from None

    def cancel(self) -> bool:
        """Asks the engine to cancel the call (engine.cancel_async_calls). The call still
        ends with the engine's final report: cancelled(), with CallCancelledError, when the
        engine did cancel it, or with its results when it was done first. False when the
        call had ended already (True when it was cancelled)."""
        if self.done():
            return self.cancelled()
        self._engine.cancel_async_calls([self.call_id])
        return True

    def __await__(self) -> Generator[Any, None, list[Any]]:
        loop = asyncio.get_running_loop()
        waiter: asyncio.Future[None] = loop.create_future()
        self.add_done_callback(lambda _: _wake(loop, waiter))
        yield from waiter.__await__()
        return self.result()


def _wake(loop: asyncio.AbstractEventLoop, waiter: asyncio.Future[None]) -> None:
    try:
        loop.call_soon_threadsafe(_settle, waiter)
    except RuntimeError:  # the loop was closed: nobody awaits any more
        pass


def _settle(future: asyncio.Future[None]) -> None:
    if not future.done():
        future.set_result(None)
