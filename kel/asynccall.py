"""Asynchronous calls: a handle over the engine's reports, fed by a ctypes callback."""

from __future__ import annotations

import asyncio
import dataclasses
import threading
from typing import TYPE_CHECKING, Any, Callable, Generator, Iterator, Optional

from .errors import EngineError
from .generated import c_records
from .generated.records import KelError

if TYPE_CHECKING:
    from .engine import Engine

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


class AsyncCall:
    """A running asynchronous operation. Iterate over it for the reports as they come,
    call result() (or await it) for every result, cancel() to cancel it."""

    def __init__(self, engine: Engine, convert: object, release: Callable[[Any, int], None]) -> None:
        self._engine = engine
        self._convert: Callable[[Optional[int]], Any] = convert  # type: ignore[assignment]
        self._release = release
        self._condition = threading.Condition()
        self._reports: list[AsyncReport] = []
        self._final = False
        self._waiters: list[tuple[asyncio.AbstractEventLoop, asyncio.Future[None]]] = []
        self.call_id = 0
        self.callback = c_records.CALLBACK(self._on_report)
        with _running_lock:
            _running.add(self)

    def started(self, call_id: int) -> None:
        with self._condition:
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
        with self._condition:
            self.call_id = self.call_id or report.call_id
            self._reports.append(report)
            self._final = self._final or report.is_final
            self._condition.notify_all()
            waiters = list(self._waiters) if report.is_final else []
        for loop, future in waiters:
            loop.call_soon_threadsafe(_settle, future)
        if report.is_final:
            with _running_lock:
                _running.discard(self)

    def done(self) -> bool:
        with self._condition:
            return self._final

    def reports(self, timeout: Optional[float] = None) -> Iterator[AsyncReport]:
        """The reports in order, waiting for each; ends after the final one. TimeoutError
        when one does not come within `timeout` seconds."""
        seen = 0
        while True:
            with self._condition:
                if not self._condition.wait_for(lambda: len(self._reports) > seen, timeout):
                    raise TimeoutError(f"no report of call {self.call_id} within {timeout} s")
                report = self._reports[seen]
            seen += 1
            yield report
            if report.is_final:
                return

    def __iter__(self) -> Iterator[AsyncReport]:
        return self.reports()

    def result(self, timeout: Optional[float] = None) -> list[Any]:
        """Every result of every report, in order, once the call has ended; EngineError when
        a report carried an error (a cancelled call: code 1012 with the simulated vehicle)."""
        with self._condition:
            if not self._condition.wait_for(lambda: self._final, timeout):
                raise TimeoutError(f"call {self.call_id} did not end within {timeout} s")
            reports = list(self._reports)
        for report in reports:
            if report.error is not None:
                raise EngineError.of(report.error)
        return [value for report in reports for value in report.results]

    def cancel(self) -> None:
        """Asks the engine to cancel the call; it still ends with a final report."""
        self._engine.cancel_async_calls([self.call_id])

    def __await__(self) -> Generator[Any, None, list[Any]]:
        loop = asyncio.get_running_loop()
        future: asyncio.Future[None] = loop.create_future()
        with self._condition:
            if self._final:
                future.set_result(None)
            else:
                self._waiters.append((loop, future))
        yield from future.__await__()
        return self.result()


def _settle(future: asyncio.Future[None]) -> None:
    if not future.done():
        future.set_result(None)
