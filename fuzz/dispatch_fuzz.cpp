// libFuzzer target for the bounds-checked dispatchers.
//
// Input: byte 0 picks the dispatcher (even: kel_call_checked, odd: py_call_checked),
// bytes 1..4 the operation number (little-endian, folded into 0..285), the rest is
// the argument stream. Whatever the bytes, a call must answer (a result or an error
// record) without reading outside the input and without leaking.
#include <kel_c.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <kel_sim.h>
#include <vector>

namespace {

TarnApi* engine() {
    static TarnApi* const api = [] {
        TarnApi* local = kel_getTarnApi();
        KelError* error = nullptr;
        kel_initialize(local, &error);
        release_KelError(error);
        return local;
    }();
    return api;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 5) {
        return 0;
    }
    uint32_t raw = 0;
    std::memcpy(&raw, data + 1, 4);
    const auto operation = static_cast<int32_t>(raw % 286);
    // The arguments get a buffer of their own, exactly as long as the input, so the
    // sanitizer sees any read past its end.
    const std::vector<uint8_t> input(data + 5, data + size);
    if ((data[0] & 1) == 0) {
        void* stream = nullptr;
        uint64_t resultSize = 0;
        kel_call_checked(0, operation, input.data(), input.size(), &stream, &resultSize);
        if (stream != nullptr) {
            std::vector<uint8_t> result(resultSize + 1);
            kel_call_result(stream, result.data());
        }
    } else {
        uint32_t resultSize = 0;
        void* buffer = nullptr;
        py_call_checked(engine(), operation, 0, input.data(), input.size(), &resultSize, &buffer);
        std::vector<uint8_t> result(resultSize + 1);
        py_result(result.data(), static_cast<int32_t>(resultSize), buffer);
    }
    return 0;
}
