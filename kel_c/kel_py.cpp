// py_call / py_result: engine operations by number for a Python extension.
#include "dispatch.h"
#include "trace.h"

#include <Vutil/TraceHelper.h>
#include <kel_c.h>

#include <atomic>
#include <cstdlib>
#include <cstring>

namespace {

using kel::OTXStream;
using Varno::Kel_cpp::TarnApi;
using Varno::Kel_cpp::TarnApiException;

// The last small block handed to a caller. py_result recognises it by its address, so it
// knows the block's size without asking the heap and keeps it for the next result; every
// other block it frees. (Every block py_call hands out has room for smallBlock bytes, so
// even a block that reaches py_result by some other way is never too small to keep.)
std::atomic<uint8_t*> lent{nullptr}; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

int32_t call(TarnApi* api, int32_t number, const void* input, const uint64_t* inputSize,
             uint32_t* outSize, void** outBuffer) {
    // The local engine is held for the whole call: the engine may let go of it meanwhile
    // (a restart on another thread), and the call must not outlive the object it uses.
    std::shared_ptr<TarnApi> local;
    if (api == nullptr) {
        local = kel::dispatch::localEngine();
        api = local.get();
    }
    OTXStream in(input, false, true, false);
    if (inputSize != nullptr) {
        in.bounded = true;
        in.size = static_cast<uint32_t>(std::min<uint64_t>(*inputSize, UINT32_MAX));
    }
    const kel::dispatch::Operation* operation = kel::dispatch::find(number);
    if (operation == nullptr) {
        return 0;
    }
    OTXStream out(true, false, false);
    out.startInKeptBlock();
    int32_t returned = 0;
    try {
        try {
            if (operation->call == nullptr) {
                throw kel::dispatch::notAvailable(*operation);
            }
            operation->call(*api, in, out, operation->returnsValue ? &returned : nullptr);
        } catch (const kel::MalformedInput& problem) {
            throw kel::dispatch::malformed(*operation, problem);
        }
    } catch (TarnApiException exception) { // NOLINT(misc-throw-by-value-catch-by-reference)
        out.position = 0;
        kel::dispatch::writeError(out, exception);
        returned = -1;
    }
    *outSize = out.position;
    const bool small = out.inSmallBlock();
    if (out.position == 0) {
        // Nothing to hand over: as before, no buffer.
        OTXStream::release(out.detach(), small);
        *outBuffer = nullptr;
        return returned;
    }
    uint8_t* block = out.detach();
    if (small) {
        lent.store(block, std::memory_order_relaxed);
    }
    *outBuffer = block;
    return returned;
}

} // namespace

extern "C" {

int32_t py_call(TarnApi* api, int32_t operation, uint64_t /*reserved*/, const void* input,
                uint32_t* outSize, void** outBuffer) {
    return call(api, operation, input, nullptr, outSize, outBuffer);
}

int32_t py_call_checked(TarnApi* api, int32_t operation, uint64_t /*reserved*/, const void* input,
                        uint64_t inputSize, uint32_t* outSize, void** outBuffer) {
    return call(api, operation, input, &inputSize, outSize, outBuffer);
}

void py_result(void* destination, int32_t size, void* buffer) {
    if (kel::trace::enabled()) {
        Vutil::TraceHelper::trace("kel_py", "result address = %p", buffer);
    }
    if (size > 0) {
        OTXStream::copyOut(destination, static_cast<const uint8_t*>(buffer),
                           static_cast<std::size_t>(size));
    }
    auto* block = static_cast<uint8_t*>(buffer);
    uint8_t* expected = block;
    const bool small = block != nullptr &&
                       lent.compare_exchange_strong(expected, nullptr, std::memory_order_relaxed);
    OTXStream::release(block, small);
}

} // extern "C"
