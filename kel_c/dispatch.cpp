#include "dispatch.h"

#include "generated/dispatch_table.h"
#include "utf8.h"

#include <Kel_cpp/Engine.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <thread>

namespace kel::dispatch {

static_assert(operations.back().number == highestNumber);

constinit const std::array<const Operation*, highestNumber + 1> byNumber = [] {
    std::array<const Operation*, highestNumber + 1> out{};
    for (const auto& operation : operations) {
        out[static_cast<std::size_t>(operation.number)] = &operation;
    }
    return out;
}();

namespace {

// The weak reference is read and replaced under a flag that is held for a few
// instructions (a weak_ptr lock or assignment, never a call into the engine), so a spin
// costs less than any lock would.
class LocalEngineCache {
public:
    std::shared_ptr<TarnApi> get() {
        {
            const Hold hold(busy_);
            if (auto held = last_.lock()) {
                return held;
            }
        }
        auto fresh = Varno::Kel_cpp::getTarnApi();
        std::weak_ptr<TarnApi> previous = fresh;
        {
            const Hold hold(busy_);
            last_.swap(previous);
        }
        return fresh; // `previous`, maybe the last reference to a gone object, goes here
    }

private:
    class Hold {
    public:
        explicit Hold(std::atomic_flag& flag) : flag_(flag) {
            while (flag_.test_and_set(std::memory_order_acquire)) {
                std::this_thread::yield();
            }
        }
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;
        ~Hold() { flag_.clear(std::memory_order_release); }

    private:
        std::atomic_flag& flag_;
    };

    std::atomic_flag busy_;
    std::weak_ptr<TarnApi> last_;
};

LocalEngineCache localEngineCache; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

} // namespace

std::shared_ptr<TarnApi> localEngine() { return localEngineCache.get(); }

void writeError(OTXStream& out, const Varno::Kel_cpp::TarnApiException& exception) {
    auto error = std::make_shared<Varno::Kel_cpp::KelError>();
    error->code = exception.code;
    error->message = exception.message;
    error->details = exception.details;
    error->subCode = exception.subCode;
    error->mvciError = exception.mvciError;
    out.write(error);
}

Varno::Kel_cpp::TarnApiException notAvailable(const Operation& operation) {
    return {NotAvailableError,
            L"Operation " + std::to_wstring(operation.number) + L" (" +
                utf8::decode(operation.name) + L") cannot be called by number yet",
            L"its records are not built in this version of the library"};
}

Varno::Kel_cpp::TarnApiException malformed(const Operation& operation,
                                           const MalformedInput& problem) {
    return {MalformedInputError,
            L"Malformed input for operation " + std::to_wstring(operation.number) + L" (" +
                utf8::decode(operation.name) + L")",
            utf8::decode(problem.what())};
}

} // namespace kel::dispatch
