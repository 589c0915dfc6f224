// What tests can observe and steer in the reference engine without recompiling: every
// call's arguments, scripted failures for the next calls of an operation, and delays.
// Reached from C through kel_sim.h.
#pragma once

#include "Describe.h"
#include "ErrorCodes.h"

#include <Kel_cpp/TarnApiException.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace Varno::Kel_cpp::Reference {

// The exception an operation of a family the simulated vehicle does not have yet throws.
TarnApiException unsupported(const char* operation);

// Duration of the calls made through one engine object, in microseconds.
class CallClock {
public:
    void finished(uint64_t micros) { last_.store(micros); }
    // Read by getCallDuration while it runs, so it sees the call before it.
    uint64_t previous() const { return last_.load(); }

private:
    std::atomic<uint64_t> last_{0};
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
        ~Call() { finish(); }

    private:
        void finish();
        CallClock& clock_;
        std::chrono::steady_clock::time_point start_;
    };

    // Records the call and applies what is scripted for it (delay, failure).
    template <class... A>
    Call enter(CallClock& clock, const char* operation, const A&... arguments) {
        return Call(clock, *this, operation, describeArguments(arguments...));
    }

    // The next `count` calls of `operation` throw `exception` before reaching the vehicle.
    void failNext(const std::string& operation, uint32_t count, const TarnApiException& exception);
    // Every call of `operation` first waits this long.
    void setDelay(const std::string& operation, std::chrono::milliseconds delay);
    std::optional<std::string> lastArguments(const std::string& operation) const;
    uint64_t callCount(const std::string& operation) const;
    // Forgets every scripted failure, delay and recorded call.
    void reset();

private:
    struct Entry {
        uint64_t calls = 0;
        std::string lastArguments;
        uint32_t failures = 0;
        TarnApiException failure;
        std::chrono::milliseconds delay{0};
    };
    void record(const char* operation, std::string arguments);

    mutable std::mutex mutex_;
    std::map<std::string, Entry, std::less<>> entries_;
};

} // namespace Varno::Kel_cpp::Reference
