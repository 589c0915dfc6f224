// kel_call / kel_call_result: engine operations by number for OTX runtimes.
//
// Result streams are kept in a locked registry from kel_call until kel_call_result,
// which copies the bytes out and frees the stream; so a runtime that fetches every
// result leaks nothing, and a pointer that was never issued, or was fetched already,
// copies nothing.
#include "dispatch.h"

#include <Kel_cpp/Engine.h>
#include <Vutil/TraceHelper.h>
#include <kel_c.h>

#include <cstring>
#include <mutex>
#include <optional>
#include <set>

namespace {

using kel::OTXStream;
using Varno::Kel_cpp::TarnApi;
using Varno::Kel_cpp::TarnApiException;

struct ResultRegistry {
    std::mutex mutex;
    std::set<OTXStream*> streams;
};

ResultRegistry results; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void call(uint64_t handle, int32_t number, const void* input, const uint64_t* inputSize,
          void** outStream, uint64_t* outSize) {
    // The selected engine is held for the whole call. A handle the engine rejects
    // does not end the call: every recognised operation then answers with that error.
    std::shared_ptr<TarnApi> selected;
    std::optional<TarnApiException> rejected;
    try {
        selected = handle == 0 ? Varno::Kel_cpp::getTarnApi()
                               : Varno::Kel_cpp::getRemoteConnectionByHandle(handle);
    } catch (TarnApiException exception) { // NOLINT(misc-throw-by-value-catch-by-reference)
        rejected = std::move(exception);
    }
    if (Vutil::TraceHelper::enabled(3)) {
        Vutil::TraceHelper::trace("kel_otx", "kel_call operation %d", number);
    }
    OTXStream in(input, true, false, true);
    if (inputSize != nullptr) {
        in.bounded = true;
        in.size = static_cast<uint32_t>(std::min<uint64_t>(*inputSize, UINT32_MAX));
    }
    const kel::dispatch::Operation* operation = kel::dispatch::find(number);
    if (operation == nullptr) {
        return;
    }
    auto out = std::make_unique<OTXStream>(true, false, true);
    try {
        try {
            if (rejected) {
                throw *rejected;
            }
            if (operation->call == nullptr) {
                throw kel::dispatch::notAvailable(*operation);
            }
            // Operations not served by the selected engine fetch the local one afresh.
            const std::shared_ptr<TarnApi> engine =
                operation->selected ? selected : Varno::Kel_cpp::getTarnApi();
            operation->call(*engine, in, *out, {true, nullptr});
        } catch (const kel::MalformedInput& problem) {
            throw kel::dispatch::malformed(*operation, problem);
        }
    } catch (TarnApiException exception) { // NOLINT(misc-throw-by-value-catch-by-reference)
        out->position = 0;
        out->write(uint8_t{0});
        kel::dispatch::writeError(*out, exception);
    }
    *outSize = out->position;
    {
        const std::lock_guard lock(results.mutex);
        results.streams.insert(out.get());
    }
    *outStream = out.release();
}

} // namespace

extern "C" {

void kel_call(uint64_t handle, int32_t operation, const void* input, void** outStream,
              uint64_t* outSize) {
    call(handle, operation, input, nullptr, outStream, outSize);
}

void kel_call_checked(uint64_t handle, int32_t operation, const void* input, uint64_t inputSize,
                      void** outStream, uint64_t* outSize) {
    call(handle, operation, input, &inputSize, outStream, outSize);
}

void* kel_call_result(void* stream, void* destination) {
    std::unique_ptr<OTXStream> owned;
    {
        const std::lock_guard lock(results.mutex);
        const auto found = results.streams.find(static_cast<OTXStream*>(stream));
        if (found == results.streams.end()) {
            return destination;
        }
        owned.reset(*found);
        results.streams.erase(found);
    }
    if (owned->position != 0) {
        std::memcpy(destination, owned->buffer, owned->position);
    }
    return destination;
}

} // extern "C"
