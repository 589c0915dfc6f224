// py_call / py_result: engine operations by number for a Python extension.
#include "dispatch.h"
#include "trace.h"

#include <Kel_cpp/Engine.h>
#include <Vutil/TraceHelper.h>
#include <kel_c.h>

#include <cstdlib>
#include <cstring>

namespace {

using kel::OTXStream;
using Varno::Kel_cpp::TarnApi;
using Varno::Kel_cpp::TarnApiException;

int32_t call(TarnApi* api, int32_t number, const void* input, const uint64_t* inputSize,
             uint32_t* outSize, void** outBuffer) {
    // The local engine is held for the whole call: the engine may let go of it meanwhile
    // (a restart on another thread), and the call must not outlive the object it uses.
    std::shared_ptr<TarnApi> local;
    if (api == nullptr) {
        local = Varno::Kel_cpp::getTarnApi();
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
    int32_t returned = 0;
    try {
        try {
            if (operation->call == nullptr) {
                throw kel::dispatch::notAvailable(*operation);
            }
            operation->call(*api, in, out, {false, operation->returnsValue ? &returned : nullptr});
        } catch (const kel::MalformedInput& problem) {
            throw kel::dispatch::malformed(*operation, problem);
        }
    } catch (TarnApiException exception) { // NOLINT(misc-throw-by-value-catch-by-reference)
        out.position = 0;
        kel::dispatch::writeError(out, exception);
        returned = -1;
    }
    *outSize = out.position;
    *outBuffer = out.detach();
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
    OTXStream::release(static_cast<uint8_t*>(buffer));
}

} // extern "C"
