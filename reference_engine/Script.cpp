#include "Script.h"

#include <thread>

namespace Varno::Kel_cpp::Reference {

TarnApiException unsupported(const char* operation) {
    const std::wstring name = fromUtf8(operation);
    return {NotSupported, name + L": the simulated vehicle does not support this operation yet",
            L"operation " + name + L" belongs to a family the reference engine has not built"};
}

const std::shared_ptr<Script>& Script::global() {
    static const auto instance = std::make_shared<Script>();
    return instance;
}

Script::Call::Call(CallClock& clock, Script& script, const char* operation, std::string arguments)
    : clock_(clock), start_(std::chrono::steady_clock::now()) {
    try {
        script.record(operation, std::move(arguments));
    } catch (...) {
        finish(); // a failed call is still the previous call
        throw;
    }
}

void Script::Call::finish() {
    const auto elapsed = std::chrono::steady_clock::now() - start_;
    clock_.finished(static_cast<uint64_t>(
        std::chrono::duration_cast<std::chrono::microseconds>(elapsed).count()));
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
    const std::lock_guard lock(mutex_);
    entries_.clear();
}

} // namespace Varno::Kel_cpp::Reference
