// kel_call and py_call beyond what the generated conformance suite checks per number:
// the description's numbering against the fixed list, engine selection by
// handle, the result registry, the trace and calls from many threads.
#include "generated/conformance/records.h"
#include "support.h"

#include <Vutil/ErrorHandler.h>
#include <Vutil/TraceRecorder.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <set>
#include <thread>

namespace {

using namespace kel_test;
using Bytes = std::vector<uint8_t>;

// One kel_call_checked and its fetched result (empty for a number that names nothing).
Bytes otxCall(int32_t operation, const Bytes& input = {}, uint64_t handle = 0) {
    void* stream = nullptr;
    uint64_t size = 0;
    kel_call_checked(handle, operation, input.data(), input.size(), &stream, &size);
    Bytes result(size);
    kel_call_result(stream, result.data());
    return result;
}

// The numbers that name no operation, as the dispatchers' numbering defines them.
bool namesNoOperation(int n) {
    static const std::set<int> none = {18,  20,  24,  26,  28,  31,  33,  35,  72,  76,  84,
                                       87,  94,  95,  98,  122, 124, 163, 167, 168, 170, 171,
                                       172, 173, 176, 197, 200, 205, 207, 212, 214, 221, 222,
                                       229, 230, 239, 240, 241, 242, 243, 252, 258, 263, 266,
                                       269, 270, 271, 272, 273, 274, 275, 276, 277, 278, 279};
    return n < 2 || n > 280 || none.count(n) != 0;
}

using Dispatch = EngineTest;

// The numbers are an interface of their own, kept here apart from the description: the
// conformance suite holds both dispatchers to the description, this holds the
// description to the numbers callers were given.
TEST(DispatchNumbering, TheDescriptionNamesExactlyTheFixedNumbers) {
    const auto named = kel_conformance::namedNumbers();
    std::vector<int> wrong;
    for (int n = -5; n <= 285; ++n) {
        if ((std::find(named.begin(), named.end(), n) != named.end()) == namesNoOperation(n)) {
            wrong.push_back(n);
        }
    }
    EXPECT_TRUE(wrong.empty()) << "the numbering differs for " << ::testing::PrintToString(wrong);
}

TEST_F(Dispatch, HandleSelectsTheEngineOnlyForItsOperations) {
    const uint64_t handle = kel_test::handleOf(api);
    // 61 getHandle is served by the engine that `handle` selects: a remote connection.
    const Bytes remote = otxCall(61, {}, handle);
    ASSERT_EQ(remote.size(), 9U);
    uint64_t remoteHandle = 0;
    std::memcpy(&remoteHandle, remote.data() + 1, 8);
    EXPECT_NE(remoteHandle, handle);
    EXPECT_NE(remoteHandle, 0U);

    // 4 startServer ignores `handle` and runs on the local engine.
    kelsim_reset();
    otxCall(4, Bytes{0, 0, 0, 0}, handle);
    EXPECT_EQ(kelsim_callCount("startServer"), 1U);

    // A handle the engine rejects: every recognised operation reports the engine's error.
    // Failed, an error record, code 1005.
    const Bytes rejected = otxCall(4, Bytes{0, 0, 0, 0}, 0xBADBADULL);
    ASSERT_GE(rejected.size(), 6U);
    EXPECT_EQ(Bytes(rejected.begin(), rejected.begin() + 6), (Bytes{0, 1, 0xED, 0x03, 0, 0}));
    EXPECT_EQ(kelsim_callCount("startServer"), 1U) << "nothing ran";
}

TEST_F(Dispatch, EveryResultIsFetchedOnceAndFreed) {
    void* stream = nullptr;
    uint64_t size = 0;
    kel_call(0, 2, nullptr, &stream, &size);
    ASSERT_EQ(size, 1U);
    uint8_t first[4] = {9, 9, 9, 9};
    kel_call_result(stream, first);
    EXPECT_EQ(first[0], 1);
    uint8_t second[4] = {9, 9, 9, 9};
    EXPECT_EQ(kel_call_result(stream, second), second);
    EXPECT_EQ(second[0], 9) << "a second fetch copies nothing";
    EXPECT_EQ(kel_call_result(second, first), first) << "an unknown pointer copies nothing";
    // A loop of calls leaves nothing behind: the leak checker of the sanitizer build
    // would report every stream not freed.
    for (int i = 0; i < 2000; ++i) {
        kel_call(0, 49, nullptr, &stream, &size);
        uint8_t bytes[8];
        kel_call_result(stream, bytes);
    }
}

TEST_F(Dispatch, TraceNamesTheOperationAndTheResultAddress) {
    auto recorder = std::make_shared<Vutil::TraceRecorder>();
    Vutil::ErrorHandler::addListener(recorder);
    Vutil::ErrorHandler::setDebugTraceLevel(3);
    otxCall(1); // unknown numbers are traced too
    otxCall(49);
    uint32_t size = 0;
    void* buffer = nullptr;
    py_call(api, 49, 0, nullptr, &size, &buffer);
    const void* const address = buffer;
    int32_t state = 0;
    py_result(&state, static_cast<int32_t>(size), buffer);
    Vutil::ErrorHandler::setDebugTraceLevel(0);
    Vutil::ErrorHandler::removeListener(recorder);

    std::vector<std::string> seen;
    for (const auto& line : recorder->lines()) {
        seen.push_back(line.source + ": " + line.text);
    }
    EXPECT_NE(std::find(seen.begin(), seen.end(), "kel_otx: kel_call operation 1"), seen.end());
    EXPECT_NE(std::find(seen.begin(), seen.end(), "kel_otx: kel_call operation 49"), seen.end());
    // %p is printed differently by each C runtime: compare the number, not the text.
    const std::string prefix = "kel_py: result address = ";
    const auto line = std::find_if(seen.begin(), seen.end(),
                                   [&](const std::string& l) { return l.rfind(prefix, 0) == 0; });
    ASSERT_NE(line, seen.end());
    EXPECT_EQ(std::strtoull(line->c_str() + prefix.size(), nullptr, 16),
              reinterpret_cast<uintptr_t>(address));
}

using DispatchConcurrency = EngineTest;

TEST_F(DispatchConcurrency, CallsFromManyThreadsEachGetTheirOwnResult) {
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < 6; ++t) {
        threads.emplace_back([&] {
            for (int i = 0; i < 300; ++i) {
                void* stream = nullptr;
                uint64_t size = 0;
                kel_call(0, 49, nullptr, &stream, &size);
                uint8_t bytes[5] = {};
                kel_call_result(stream, bytes);
                wrong += size != 5 || bytes[0] != 1 || bytes[1] != 1 ? 1 : 0;
            }
        });
    }
    for (auto& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(wrong.load(), 0);
}

} // namespace
