// Shared by the tests of the vehicle: an expected engine error, raw UDS request bytes
// sent to a unit through executeService, and the documented key rule, written out again
// so that the engine's is checked.
#pragma once

#include "support.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

namespace kel_test {

using Bytes = std::vector<uint8_t>;

// Runs `call`, which reports into the error slot `slot` it names, and expects the engine
// error `expected` from it.
#define EXPECT_ENGINE_ERROR(slot, expected, call)                                                  \
    do {                                                                                           \
        ::kel_test::ErrorSlot slot;                                                                \
        call;                                                                                      \
        EXPECT_EQ((slot) ? (slot)->code : 0, expected) << #call;                                   \
    } while (false)

// The default vehicle's ECM: the mask of its security level 2, which programming needs.
constexpr uint32_t ecmProgrammingMask = 0xC3A5179E;

// key = rotate_left_32(seed ^ mask, 3), the seed's first four bytes big-endian.
inline Bytes keyFor(const uint8_t* seed, uint32_t mask) {
    uint32_t s = 0;
    for (int i = 0; i < 4; ++i) {
        s = s << 8 | seed[i];
    }
    const uint32_t x = s ^ mask;
    const uint32_t k = x << 3 | x >> 29;
    return {static_cast<uint8_t>(k >> 24), static_cast<uint8_t>(k >> 16),
            static_cast<uint8_t>(k >> 8), static_cast<uint8_t>(k)};
}

// A record on the library's heap with every member 0 or NULL, as a caller builds an input.
template <class R>
R* zeroed() {
    return static_cast<R*>(std::memset(allocate_Memory(sizeof(R)), 0, sizeof(R)));
}

// A parameter value as a caller hands one in, with its children.
inline ParameterInput* param(const wchar_t* name, const wchar_t* value,
                             std::vector<ParameterInput*> children = {}) {
    auto* p = zeroed<ParameterInput>();
    p->name = duplicate_WString(name);
    p->value = duplicate_WString(value);
    if (!children.empty()) {
        p->children = static_cast<ParameterInput**>(
            allocate_Memory(children.size() * sizeof(ParameterInput*)));
        std::copy(children.begin(), children.end(), p->children);
        p->childCount = static_cast<uint32_t>(children.size());
    }
    return p;
}

// Sends raw request bytes to a unit; its response bytes, empty when it stayed silent.
inline Bytes sendRaw(TarnApi* api, const wchar_t* target, const Bytes& request) {
    auto* input = zeroed<ServiceInput>();
    input->service = duplicate_WString(L"");
    input->data = static_cast<uint8_t*>(allocate_Memory(request.size()));
    std::memcpy(input->data, request.data(), request.size());
    input->dataLength = static_cast<uint32_t>(request.size());
    ErrorSlot error;
    List<ServiceResult, release_ServiceResult_array> out;
    kel_executeService(api, target, &input, 1, &error, &out.items, &out.count);
    release_ServiceInput(input);
    EXPECT_FALSE(error);
    if (out.count == 0 || out.items[0]->responseCount == 0) {
        return {};
    }
    const ResponseResult& r = *out.items[0]->responses[0];
    return r.data == nullptr ? Bytes{} : Bytes(r.data, r.data + r.dataLength);
}

// The default vehicle's ECM in its programming session with level 2 unlocked, as a flash
// needs it.
inline void enterEcmProgramming(TarnApi* api) {
    ASSERT_EQ(sendRaw(api, L"ECM", {0x10, 0x02}).at(0), 0x50);
    const auto seed = sendRaw(api, L"ECM", {0x27, 0x03});
    ASSERT_EQ(seed.size(), 6U);
    if (std::all_of(seed.begin() + 2, seed.end(), [](uint8_t b) { return b == 0; })) {
        return; // still unlocked
    }
    Bytes key = {0x27, 0x04};
    const auto computed = keyFor(seed.data() + 2, ecmProgrammingMask);
    key.insert(key.end(), computed.begin(), computed.end());
    ASSERT_EQ(sendRaw(api, L"ECM", key), (Bytes{0x67, 0x04}));
}

} // namespace kel_test
