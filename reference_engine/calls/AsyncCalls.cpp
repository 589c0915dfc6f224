#include "AsyncCalls.h"

#include "Describe.h"
#include "ErrorCodes.h"
#include "Script.h"

#include <Kel_cpp/TarnApiException.h>

#include <algorithm>
#include <atomic>
#include <stdexcept>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

constexpr unsigned workerCount = 4;

struct Scripts {
    std::mutex mutex;
    std::map<std::string, AsyncScript, std::less<>> byOperation;
};

Scripts& scripts() {
    static Scripts instance;
    return instance;
}

// The script for one new call; takes one scripted failure.
AsyncScript scriptFor(const std::string& operation) {
    auto& s = scripts();
    const std::lock_guard lock(s.mutex);
    auto& entry = s.byOperation[operation];
    AsyncScript script = entry;
    if (entry.failures > 0) {
        --entry.failures;
        script.failures = 1;
    } else {
        script.failures = 0;
        script.failure.reset();
    }
    script.faults = entry.faults > 0 ? 1 : 0;
    entry.faults -= script.faults;
    return script;
}

uint64_t newCallId() {
    static std::atomic<uint64_t> next{0xA5C0000000000001ULL};
    return next++;
}

std::shared_ptr<KelError> cancelledError(const std::string& operation, uint64_t id) {
    auto e = std::make_shared<KelError>();
    e->code = CallCancelled;
    e->message = L"The call was cancelled";
    e->details = fromUtf8(operation) + L" call " + std::to_wstring(id);
    return e;
}

std::wstring callDetail(const std::string& operation, uint64_t id) {
    return fromUtf8(operation) + L" call " + std::to_wstring(id);
}

} // namespace

void scriptAsyncReports(const std::string& operation, uint32_t reports) {
    auto& s = scripts();
    const std::lock_guard lock(s.mutex);
    s.byOperation[operation].reports = reports;
}

void scriptAsyncInterval(const std::string& operation, uint32_t milliseconds) {
    auto& s = scripts();
    const std::lock_guard lock(s.mutex);
    s.byOperation[operation].intervalMs = milliseconds;
}

void scriptAsyncFailure(const std::string& operation, uint32_t count,
                        std::shared_ptr<KelError> error) {
    auto& s = scripts();
    const std::lock_guard lock(s.mutex);
    auto& entry = s.byOperation[operation];
    entry.failures = count;
    entry.failure = std::move(error);
}

void scriptAsyncFault(const std::string& operation, uint32_t count, std::string what) {
    auto& s = scripts();
    const std::lock_guard lock(s.mutex);
    auto& entry = s.byOperation[operation];
    entry.faults = count;
    entry.fault = std::move(what);
}

void resetAsyncScripts() {
    auto& s = scripts();
    const std::lock_guard lock(s.mutex);
    s.byOperation.clear();
}

AsyncCalls::AsyncCalls(AsyncListener listener) : state_(std::make_shared<State>()) {
    state_->listener = std::move(listener);
    for (unsigned i = 0; i < workerCount; ++i) {
        workers_.emplace_back([state = state_] { work(state); });
    }
}

// Neither joins the workers nor waits for a report in progress: at process exit (when
// the engine's static hold on its local object goes) Windows has already stopped them,
// and any wait could last forever; and a callback that lets go of the last engine
// object runs this on a worker. Nothing needs the wait: a worker touches only the
// shared state and its call, tells nobody once the listener is gone, and ends a call
// still in progress with the cancelled report itself. The workers leave once the state
// is closed and empty.
AsyncCalls::~AsyncCalls() {
    std::vector<std::shared_ptr<Call>> waiting;
    {
        const std::lock_guard lock(state_->mutex);
        state_->closing = true;
        state_->listener = nullptr;
        for (auto it = state_->calls.begin(); it != state_->calls.end();) {
            it->second->cancelled = true;
            it->second->due = std::chrono::steady_clock::now();
            if (it->second->busy) {
                ++it; // its worker ends it after the report in progress
            } else {
                waiting.push_back(it->second);
                it = state_->calls.erase(it);
            }
        }
    }
    state_->wake.notify_all();
    for (const auto& call : waiting) {
        deliverFinal(*call, cancelledError(call->operation, call->id));
    }
    for (auto& worker : workers_) {
        worker.detach();
    }
}

// A callback that throws has nobody left to tell; the worker must go on for the others.
void AsyncCalls::hand(Call& call, bool isFinal, std::shared_ptr<KelError> error) {
    try {
        call.hand(isFinal, std::move(error));
    } catch (...) { // NOLINT(bugprone-empty-catch)
    }
}

void AsyncCalls::deliverFinal(Call& call, std::shared_ptr<KelError> error) {
    try {
        call.collect(0, 0, false);
    } catch (...) { // NOLINT(bugprone-empty-catch): nothing to collect, nothing to throw
    }
    hand(call, true, std::move(error));
}

uint64_t AsyncCalls::enqueue(const char* operation, std::shared_ptr<Call> call) {
    call->id = newCallId();
    call->startedBy = Script::Call::caller();
    call->operation = operation;
    call->script = scriptFor(operation);
    call->due =
        std::chrono::steady_clock::now() + std::chrono::milliseconds(call->script.intervalMs);
    const uint64_t id = call->id;
    {
        const std::lock_guard lock(state_->mutex);
        state_->calls.emplace(id, std::move(call));
    }
    state_->wake.notify_all();
    return id;
}

void AsyncCalls::cancel(const std::vector<uint64_t>& ids, bool now,
                        std::optional<uint64_t> startedBy) {
    {
        const std::lock_guard lock(state_->mutex);
        for (const uint64_t id : ids) {
            const auto found = state_->calls.find(id);
            if (found == state_->calls.end() ||
                (startedBy && found->second->startedBy != *startedBy)) {
                continue;
            }
            found->second->cancelled = true;
            if (now) {
                found->second->due = std::chrono::steady_clock::now();
            }
        }
    }
    state_->wake.notify_all();
}

void AsyncCalls::cancelAll() {
    std::vector<uint64_t> ids;
    {
        const std::lock_guard lock(state_->mutex);
        for (const auto& [id, call] : state_->calls) {
            ids.push_back(id);
        }
    }
    cancel(ids, true);
}

std::size_t AsyncCalls::running() const {
    const std::lock_guard lock(state_->mutex);
    return state_->calls.size();
}

void AsyncCalls::work(const std::shared_ptr<State>& state) {
    std::unique_lock lock(state->mutex);
    for (;;) {
        std::shared_ptr<Call> earliest;
        for (const auto& [id, call] : state->calls) {
            if (!call->busy && (!earliest || call->due < earliest->due)) {
                earliest = call;
            }
        }
        if (!earliest) {
            if (state->closing) {
                return;
            }
            state->wake.wait(lock);
            continue;
        }
        if (earliest->due > std::chrono::steady_clock::now()) {
            state->wake.wait_until(lock, earliest->due);
            continue;
        }
        earliest->busy = true;
        step(*state, *earliest, lock);
        earliest->busy = false;
        state->wake.notify_all();
    }
}

// One report of `call`. Runs with the lock held and releases it while the work and the
// callback run. Events are posted before the callback, which may end the engine.
void AsyncCalls::step(State& state, Call& call, std::unique_lock<std::mutex>& lock) {
    std::shared_ptr<KelError> failure;
    bool cancelled = false;
    if (call.cancelled) {
        failure = cancelledError(call.operation, call.id);
        cancelled = true;
    } else if (!call.prepared) {
        lock.unlock();
        std::size_t results = 0;
        try {
            results = call.prepare();
        } catch (...) {
            failure = errorOf(currentEngineError());
        }
        lock.lock();
        call.prepared = true;
        call.results = results;
        call.reports = call.script.reports != 0
                           ? call.script.reports
                           : static_cast<uint32_t>(std::max<std::size_t>(results, 1));
        if (!failure && call.script.failures > 0) {
            failure = call.script.failure;
        }
        if (call.cancelled) { // cancelled while the work ran
            failure = cancelledError(call.operation, call.id);
            cancelled = true;
        }
    }

    std::size_t from = 0;
    std::size_t to = 0;
    bool isFinal = true;
    if (!failure) {
        const uint32_t k = call.next;
        from = call.results * k / call.reports;
        to = call.results * (k + 1) / call.reports;
        isFinal = k + 1 == call.reports;
    }
    // The steps run outside the lock; one that throws ends the call with its error, and
    // the results of the steps before it go along.
    lock.unlock();
    try {
        if (call.script.faults > 0 && !failure) {
            throw std::runtime_error(call.script.fault); // kelsim_throwAsync
        }
        call.collect(from, to, cancelled && call.prepared);
    } catch (...) {
        if (!failure) {
            failure = errorOf(currentEngineError());
        }
        isFinal = true;
    }
    lock.lock();
    if (state.listener) {
        auto detail = callDetail(call.operation, call.id);
        if (isFinal) {
            state.listener(true, failure ? failure->code : 0,
                           failure ? L"An asynchronous call ended with an error"
                                   : L"An asynchronous call completed",
                           std::move(detail), failure);
        } else {
            state.listener(false, static_cast<int32_t>(100 * (call.next + 1) / call.reports),
                           L"An asynchronous call made progress", std::move(detail), nullptr);
        }
    }
    const uint64_t id = call.id;
    lock.unlock();
    hand(call, isFinal, failure);
    lock.lock();
    if (isFinal) {
        state.calls.erase(id);
        return;
    }
    ++call.next;
    call.due = std::chrono::steady_clock::now() + std::chrono::milliseconds(call.script.intervalMs);
}

} // namespace Varno::Kel_cpp::Reference
