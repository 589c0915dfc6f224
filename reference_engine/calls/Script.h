// What tests can observe and steer in the reference engine without recompiling: every
// call's arguments, scripted failures, scripted results for the next calls of an
// operation, and delays. Reached from C through kel_sim.h.
#pragma once

#include "Describe.h"
#include "ErrorCodes.h"

#include <Kel_cpp/TarnApiException.h>

#include <any>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <deque>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Varno::Kel_cpp::Reference {

// The exception an operation of a family the simulated vehicle does not have yet throws.
TarnApiException unsupported(const char* operation);

// The exception in flight (call it inside a catch block) as an engine error. Callers
// catch TarnApiException alone (the binding converts nothing else), so anything else a
// family throws becomes InternalError with its text in the details: the process survives
// the fault, and the call says what it was.
TarnApiException currentEngineError();

// Copies as much of `value` as fits into `buffer` (`size` bytes with the NUL), as the
// text hooks of kel_sim.h do; returns its full length.
int64_t copyOut(const std::string& value, char* buffer, size_t size);

// How the scripted result of one operation is read: the generated table has one entry
// per operation. `parse` turns the JSON text into the value the operation returns (for
// an asynchronous operation: the results its callback receives; for a void one: an
// empty any) or throws ScriptError; it is null where no JSON can describe the result.
struct ScriptedOperation {
    std::string_view name;
    std::any (*parse)(std::string_view json);
};
std::span<const ScriptedOperation> scriptedOperations();

// Hands `report` to the engine's delivery thread, which runs it shortly after (so after
// the engine call that asked for it has returned). Reports run one at a time, in order.
void deliverLater(std::function<void()> report);
// Runs every report still waiting and returns once none is left (at once when called
// from a report itself).
void deliverNow();

// Hears the calls of the engine objects on one vehicle (the API trace monitors), with
// the arguments as the call recorder describes them (secrets masked).
class CallListener {
public:
    virtual ~CallListener() = default;
    // Before a call: a ticket for finished(), or 0 when nobody listens (then the call's
    // arguments are not kept for it).
    virtual uint64_t begin() = 0;
    // After it, also after a failure, with the handle of the engine object that made it
    // and the engine's error code when the call ended with one (empty when it failed
    // otherwise). Must not throw.
    virtual void finished(uint64_t ticket, uint64_t caller, std::string_view operation,
                          const std::string& arguments, uint64_t micros, bool failed,
                          std::optional<int32_t> code) noexcept = 0;
};

// What every call through one engine object passes: the check whether the object may
// make a call at all, and the duration of its calls in microseconds, with how many were
// made and failed (getStatusInfo).
class CallClock {
public:
    // Hears every call of the object. Set, as `admit`, before the object is handed out.
    std::shared_ptr<CallListener> listener;
    // The object's handle, which the listener hears with each call.
    uint64_t handle = 0;

    // Throws TarnApiException to refuse `operation` (a remote client's connection that
    // has not logged in, or that the server ended). Set before the object is handed
    // out and never changed afterwards; empty for an object that may make every call.
    std::function<void(std::string_view operation)> admit;

    void finished(uint64_t micros, bool failed) {
        last_.store(micros);
        calls_.fetch_add(1);
        total_.fetch_add(micros);
        if (failed) {
            failed_.fetch_add(1);
        }
    }
    // Read by getCallDuration while it runs, so it sees the call before it.
    uint64_t previous() const { return last_.load(); }
    uint64_t calls() const { return calls_.load(); }
    uint64_t failed() const { return failed_.load(); }
    uint64_t totalMicros() const { return total_.load(); }

private:
    std::atomic<uint64_t> last_{0};
    std::atomic<uint64_t> calls_{0};
    std::atomic<uint64_t> failed_{0};
    std::atomic<uint64_t> total_{0};
};

class Script {
public:
    static const std::shared_ptr<Script>& global();

    // Lives for one call: measures it and hands the time to the engine object's clock.
    class Call {
    public:
        Call(CallClock& clock, Script& script, const char* operation, std::string arguments);
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;
        ~Call() { finish(std::uncaught_exceptions() > unwinding_); }

        // The call is ending with the engine error `code` (the exception is on its way).
        void failedWith(int32_t code) { code_ = code; }
        // Ends the call with the exception in flight (inside a catch block), as an engine
        // error: currentEngineError().
        [[noreturn]] void rethrow();

        // The handle of the engine object whose call runs on this thread, 0 outside any
        // call: what an asynchronous call records as the object that started it.
        static uint64_t caller() { return caller_; }

    private:
        void finish(bool failed);
        CallClock& clock_;
        std::chrono::steady_clock::time_point start_;
        const char* operation_;
        uint64_t ticket_ = 0;                        // the listener's, 0 when nobody listens
        std::string arguments_;                      // kept for the listener only
        int unwinding_ = std::uncaught_exceptions(); // more at the end: the call failed
        std::optional<int32_t> code_;                // the engine error it failed with
        uint64_t outerCaller_;                       // caller() before this call began
        static thread_local uint64_t caller_;
    };

    // Records the call and applies what is scripted for it (delay, failure).
    template <class... A>
    Call enter(CallClock& clock, const char* operation, const A&... arguments) {
        return Call(clock, *this, operation, describeArguments(arguments...));
    }

    // The next `count` calls of `operation` throw `exception` before reaching the vehicle.
    void failNext(const std::string& operation, uint32_t count, const TarnApiException& exception);
    // The next `count` calls of `operation` throw a std::runtime_error with `what` where the
    // vehicle would be called, as a fault in a family would.
    void throwNext(const std::string& operation, uint32_t count, std::string what);
    // Every call of `operation` first waits this long.
    void setDelay(const std::string& operation, std::chrono::milliseconds delay);
    std::optional<std::string> lastArguments(const std::string& operation) const;
    uint64_t callCount(const std::string& operation) const;

    // Queues the result described by `json` for the next call of `operation`. Returns
    // false, with the reason in lastScriptError(), when the operation is unknown, its
    // result cannot be scripted, or the JSON does not describe a value of its type.
    bool scriptResult(const std::string& operation, std::string_view json);
    std::string lastScriptError() const;

    // The result scripted for this call of `operation`, if any; consumes it. Called after
    // enter(), so a scripted failure wins and leaves the result for the next call.
    template <class T>
    std::optional<T> scripted(const char* operation) {
        auto result = takeResult(operation);
        if (!result) {
            return std::nullopt;
        }
        return std::any_cast<T>(std::move(*result));
    }
    bool scriptedVoid(const char* operation) { return takeResult(operation).has_value(); }

    // Delivers scripted results of an asynchronous call: one final report without error,
    // from the delivery thread. Returns the call id.
    template <class Callback, class Results>
    uint64_t deliver(Callback* callback, Results results) {
        const uint64_t id = newScriptedCallId();
        deliverLater([callback, id, results = std::move(results)]() mutable {
            callback->onCompleted(std::move(results), id, nullptr, true);
        });
        return id;
    }

    // Forgets every scripted failure, result, delay and recorded call, after the scripted
    // reports still waiting have been delivered.
    void reset();

private:
    struct Entry {
        uint64_t calls = 0;
        std::string lastArguments;
        uint32_t failures = 0;
        TarnApiException failure;
        uint32_t faults = 0; // throwNext
        std::string fault;
        std::chrono::milliseconds delay{0};
        std::deque<std::any> results; // scripted, oldest first
    };
    void record(const char* operation, std::string arguments);
    std::optional<std::any> takeResult(const char* operation);
    static uint64_t newScriptedCallId();

    mutable std::mutex mutex_;
    std::map<std::string, Entry, std::less<>> entries_;
    std::string scriptError_;
};

} // namespace Varno::Kel_cpp::Reference
