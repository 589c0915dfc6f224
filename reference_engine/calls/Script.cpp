#include "Script.h"

#include "Parse.h"

#include <algorithm>
#include <condition_variable>
#include <stdexcept>
#include <thread>
#include <utility>

namespace Varno::Kel_cpp::Reference {

TarnApiException unsupported(const char* operation) {
    const std::wstring name = fromUtf8(operation);
    return {NotSupported, name + L": the simulated vehicle does not support this operation yet",
            L"operation " + name + L" belongs to a family the reference engine has not built"};
}

TarnApiException currentEngineError() {
    try {
        throw;
    } catch (const TarnApiException& failure) {
        return failure;
    } catch (const std::exception& fault) {
        return {InternalError, L"Internal error", fromUtf8(fault.what())};
    } catch (...) {
        return {InternalError, L"Internal error", L"an exception of an unknown type"};
    }
}

void Script::Call::rethrow() {
    TarnApiException failure = currentEngineError();
    code_ = failure.code;
    throw failure;
}

const std::shared_ptr<Script>& Script::global() {
    static const auto instance = std::make_shared<Script>();
    return instance;
}

Script::Call::Call(CallClock& clock, Script& script, const char* operation, std::string arguments)
    : clock_(clock), start_(std::chrono::steady_clock::now()), operation_(operation),
      outerCaller_(std::exchange(caller_, clock.handle)) {
    if (clock.listener) {
        ticket_ = clock.listener->begin();
        if (ticket_ != 0) {
            arguments_ = arguments;
        }
    }
    try {
        script.record(operation, std::move(arguments));
        if (clock.admit) {
            clock.admit(operation);
        }
    } catch (...) {
        const TarnApiException failure = currentEngineError();
        code_ = failure.code;
        finish(true); // a failed call is still the previous call
        throw failure;
    }
}

thread_local uint64_t Script::Call::caller_ = 0;

void Script::Call::finish(bool failed) {
    caller_ = outerCaller_;
    const auto elapsed = std::chrono::steady_clock::now() - start_;
    const auto micros = static_cast<uint64_t>(
        std::chrono::duration_cast<std::chrono::microseconds>(elapsed).count());
    clock_.finished(micros, failed);
    if (ticket_ != 0) {
        clock_.listener->finished(ticket_, clock_.handle, operation_, arguments_, micros, failed,
                                  code_);
    }
}

void Script::record(const char* operation, std::string arguments) {
    std::chrono::milliseconds delay{0};
    std::optional<TarnApiException> failure;
    {
        const std::lock_guard lock(mutex_);
        auto& entry = entries_[operation];
        ++entry.calls;
        entry.lastArguments = std::move(arguments);
        delay = entry.delay;
        if (entry.failures > 0) {
            --entry.failures;
            failure = entry.failure;
        }
    }
    if (delay.count() > 0) {
        std::this_thread::sleep_for(delay);
    }
    if (failure) {
        throw *failure;
    }
}

void Script::failNext(const std::string& operation, uint32_t count,
                      const TarnApiException& exception) {
    const std::lock_guard lock(mutex_);
    auto& entry = entries_[operation];
    entry.failures = count;
    entry.failure = exception;
}

void Script::throwNext(const std::string& operation, uint32_t count, std::string what) {
    const std::lock_guard lock(mutex_);
    auto& entry = entries_[operation];
    entry.faults = count;
    entry.fault = std::move(what);
}

void Script::setDelay(const std::string& operation, std::chrono::milliseconds delay) {
    const std::lock_guard lock(mutex_);
    entries_[operation].delay = delay;
}

std::optional<std::string> Script::lastArguments(const std::string& operation) const {
    const std::lock_guard lock(mutex_);
    const auto found = entries_.find(operation);
    if (found == entries_.end() || found->second.calls == 0) {
        return std::nullopt;
    }
    return found->second.lastArguments;
}

uint64_t Script::callCount(const std::string& operation) const {
    const std::lock_guard lock(mutex_);
    const auto found = entries_.find(operation);
    return found == entries_.end() ? 0 : found->second.calls;
}

void Script::reset() {
    deliverNow(); // no report of a test runs after it
    const std::lock_guard lock(mutex_);
    entries_.clear();
    scriptError_.clear();
}

bool Script::scriptResult(const std::string& operation, std::string_view json) {
    std::string error;
    std::any result;
    const auto operations = scriptedOperations();
    const auto found = std::find_if(operations.begin(), operations.end(),
                                    [&](const auto& entry) { return entry.name == operation; });
    if (found == operations.end()) {
        error = operation + ": no such operation";
    } else if (found->parse == nullptr) {
        error = operation + ": returns an engine object, which a scripted result cannot describe";
    } else {
        try {
            result = found->parse(json);
        } catch (const ScriptError& e) {
            error = operation + ": " + e.what();
        }
    }
    const std::lock_guard lock(mutex_);
    scriptError_ = error;
    if (!error.empty()) {
        return false;
    }
    entries_[operation].results.push_back(std::move(result));
    return true;
}

std::string Script::lastScriptError() const {
    const std::lock_guard lock(mutex_);
    return scriptError_;
}

std::optional<std::any> Script::takeResult(const char* operation) {
    const std::lock_guard lock(mutex_);
    const auto found = entries_.find(std::string_view(operation));
    if (found != entries_.end() && found->second.faults > 0) {
        --found->second.faults;
        throw std::runtime_error(found->second.fault);
    }
    if (found == entries_.end() || found->second.results.empty()) {
        return std::nullopt;
    }
    std::any result = std::move(found->second.results.front());
    found->second.results.pop_front();
    return result;
}

// Apart from the vehicle's own call ids, so the two are never confused.
uint64_t Script::newScriptedCallId() {
    static std::atomic<uint64_t> next{0x5C00000000000001ULL};
    return next++;
}

namespace {

// One thread delivers the scripted reports. Neither it nor its queue is ever destroyed:
// on Windows the thread is already gone when a DLL's statics are destroyed, and waiting
// for it, or destroying a queue it may have held locked, could hang the exit.
class Deliveries {
public:
    void add(std::function<void()> report) {
        {
            const std::lock_guard lock(mutex_);
            queue_.push_back({std::chrono::steady_clock::now() + delay, std::move(report)});
            if (!started_) {
                started_ = true;
                std::thread([this] { run(); }).detach();
            }
        }
        wake_.notify_all();
    }

    void drain() {
        std::unique_lock lock(mutex_);
        if (std::this_thread::get_id() == worker_) {
            return; // a report resetting the script: the rest follows when it returns
        }
        ++draining_;
        wake_.notify_all();
        idle_.wait(lock, [&] { return queue_.empty() && !busy_; });
        --draining_;
    }

private:
    // Time between the engine call and its report: the call has returned by then.
    static constexpr std::chrono::milliseconds delay{5};

    struct Report {
        std::chrono::steady_clock::time_point due;
        std::function<void()> run;
    };

    void run() {
        std::unique_lock lock(mutex_);
        worker_ = std::this_thread::get_id();
        for (;;) {
            if (queue_.empty()) {
                idle_.notify_all();
                wake_.wait(lock);
                continue;
            }
            if (draining_ == 0 && queue_.front().due > std::chrono::steady_clock::now()) {
                wake_.wait_until(lock, queue_.front().due);
                continue;
            }
            auto report = std::move(queue_.front().run);
            queue_.pop_front();
            busy_ = true;
            lock.unlock();
            try {
                report();
            } catch (...) { // a callback's exception must not end the delivery thread
            }
            report = nullptr; // the results go before the next report
            lock.lock();
            busy_ = false;
        }
    }

    std::mutex mutex_;
    std::condition_variable wake_;
    std::condition_variable idle_;
    std::deque<Report> queue_;
    bool started_ = false;
    bool busy_ = false;
    unsigned draining_ = 0;
    std::thread::id worker_;
};

Deliveries& deliveries() {
    static Deliveries* const instance = new Deliveries; // never destroyed, see above
    return *instance;
}

} // namespace

void deliverLater(std::function<void()> report) { deliveries().add(std::move(report)); }

void deliverNow() { deliveries().drain(); }

} // namespace Varno::Kel_cpp::Reference
