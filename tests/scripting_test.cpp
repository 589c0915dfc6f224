// Scripted results: JSON read back into every engine record class exactly as it is
// described, mistakes refused with their place, and scripted results coming back
// through the exports (synchronous, void and asynchronous) in place of the vehicle's.
#include "support.h"

#include <DataRoot.h>
#include <Parse.h>
#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <fstream>
#include <limits>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace kel_test;
using Varno::Kel_cpp::Reference::describe;
using Varno::Kel_cpp::Reference::Json;
using Varno::Kel_cpp::Reference::parseText;
using Varno::Kel_cpp::Reference::pathFromWide;
using Varno::Kel_cpp::Reference::ScriptError;
using Varno::Kel_cpp::Reference::wideFromPath;
namespace engine = Varno::Kel_cpp;
using namespace std::chrono_literals;

std::string refusal(const std::string& text) {
    try {
        parseText<std::shared_ptr<engine::ReadDtcResult>>(text, "result");
    } catch (const ScriptError& e) {
        return e.what();
    }
    return "accepted";
}

std::string dtcs(const std::string& dtc) {
    return R"({"status":0,"target":"ECM","error":null,"dtcs":[)" + dtc + R"(],"value":1})";
}
const std::string goodDtc =
    R"({"code":1,"text1":"","text2":"","value1":0,"parameters1":[],"parameters2":[],)"
    R"("text3":"","text4":"","specialDataGroups":[],"value2":0})";

TEST(ScriptedJson, NamesThePlaceAndTheReasonOfAMistake) {
    ASSERT_EQ(refusal(dtcs(goodDtc)), "accepted");
    auto with = [&](const std::string& from, const std::string& to) {
        std::string dtc = goodDtc;
        dtc.replace(dtc.find(from), from.size(), to);
        return refusal(dtcs(dtc));
    };
    EXPECT_EQ(with(R"("code":1)", R"("code":2147483648)"),
              "result.dtcs[0].code: expected an integer from -2147483648 to 2147483647, got "
              "2147483648");
    EXPECT_EQ(with(R"("code":1)", R"("code":1.0)").substr(0, 19), "result.dtcs[0].code");
    EXPECT_EQ(with(R"("code":1)", R"("code":true)").substr(0, 19), "result.dtcs[0].code");
    EXPECT_EQ(with(R"("text1":"")", R"("text1":7)"),
              "result.dtcs[0].text1: expected a string, got 7");
    EXPECT_EQ(with(R"("text1":"",)", ""),
              R"(result.dtcs[0]: member "text2" where "text1" belongs)");
    EXPECT_EQ(with(R"(,"value2":0)", ""), R"(result.dtcs[0]: member "value2" is missing)");
    EXPECT_EQ(with(R"("parameters1":[])", R"("parameters1":{})"),
              "result.dtcs[0].parameters1: expected an array, got {}");
    EXPECT_EQ(refusal("[" + dtcs(goodDtc) + "]"), "result: expected an object or null, got [" +
                                                      Json::parse(dtcs(goodDtc)).dump() + "]");
    EXPECT_EQ(refusal(R"({"status":0)").substr(0, 18), "not valid JSON: [j");
    EXPECT_EQ(refusal("\"\xff\"").substr(0, 15), "not valid JSON:") << "invalid UTF-8";
}

TEST(ScriptedJson, KeepsEveryIntegerRangeExact) {
    EXPECT_EQ(parseText<uint64_t>("18446744073709551615", "r"),
              std::numeric_limits<uint64_t>::max());
    EXPECT_EQ(parseText<int64_t>("-9223372036854775808", "r"), std::numeric_limits<int64_t>::min());
    EXPECT_EQ(parseText<uint8_t>("255", "r"), 255);
    EXPECT_THROW(parseText<uint8_t>("256", "r"), ScriptError);
    EXPECT_THROW(parseText<uint32_t>("-1", "r"), ScriptError);
    EXPECT_THROW(parseText<int32_t>("-2147483649", "r"), ScriptError);
    EXPECT_THROW(parseText<uint64_t>("18446744073709551616", "r"), ScriptError) << "a float";
    EXPECT_THROW(parseText<bool>("1", "r"), ScriptError);
    using Values = std::array<uint32_t, 3>;
    EXPECT_EQ(parseText<Values>("[1,2,3]", "r"), (Values{1, 2, 3}));
    EXPECT_THROW(parseText<Values>("[1,2]", "r"), ScriptError);
    EXPECT_THROW(parseText<Values>("[1,2,3,4]", "r"), ScriptError);
}

// ---- through the exports ----------------------------------------------------------

std::string scriptError() {
    char buffer[512];
    kelsim_lastScriptError(buffer, sizeof buffer);
    return buffer;
}

int32_t state(TarnApi* api) {
    ErrorSlot error;
    int32_t value = -1;
    kel_getState(api, &error, &value);
    return error ? -error->code : value;
}

using ScriptedResults = EngineTest;

TEST_F(ScriptedResults, ReplaceTheVehiclesResultOncePerCallInOrderAfterAScriptedFailure) {
    ASSERT_EQ(kelsim_scriptResult("getState", "-7"), 0);
    ASSERT_EQ(kelsim_scriptResult("getState", "2147483647"), 0);
    EXPECT_EQ(state(api), -7);
    EXPECT_EQ(state(api), 2147483647);
    EXPECT_EQ(state(api), 1) << "the vehicle again once the scripted results are used";
    EXPECT_EQ(kelsim_callCount("getState"), 3U);

    ASSERT_EQ(kelsim_scriptResult("getState", "9"), 0);
    kelsim_reset();
    EXPECT_EQ(state(api), 1) << "reset forgets scripted results";

    // A scripted failure wins and leaves the result for the next call.
    ASSERT_EQ(kelsim_scriptResult("getState", "5"), 0);
    kelsim_failNext("getState", 1, 42, 0, L"failed", nullptr);
    EXPECT_EQ(state(api), -42);
    EXPECT_EQ(state(api), 5);
}

TEST_F(ScriptedResults, AVoidOperationReturnsAtOnceAndTheRestIsRefusedSayingWhy) {
    ASSERT_EQ(kelsim_scriptResult("end", "null"), 0);
    ASSERT_SUCCEEDS(ok, kel_end(api, &ok));
    EXPECT_EQ(state(api), 1) << "the engine was not ended";

    // What cannot be scripted is refused, saying why.
    EXPECT_EQ(kelsim_scriptResult("stopServer", "0"), -1);
    EXPECT_EQ(scriptError(),
              "stopServer: result: expected null (the operation returns nothing), got 0");
    EXPECT_EQ(kelsim_scriptResult("noSuchOperation", "null"), -1);
    EXPECT_EQ(scriptError(), "noSuchOperation: no such operation");
    EXPECT_EQ(kelsim_scriptResult("connectRemoteServer", "null"), -1);
    EXPECT_EQ(scriptError(),
              "connectRemoteServer: returns an engine object, which a scripted result cannot "
              "describe");
    EXPECT_EQ(kelsim_scriptResult("getState", "\"1\""), -1);
    EXPECT_EQ(scriptError(), "getState: result: expected an integer from -2147483648 to "
                             "2147483647, got \"1\"");
    EXPECT_EQ(kelsim_scriptResult("readDtcsAsync", dtcs(goodDtc).c_str()), -1)
        << "an asynchronous operation takes the list its callback receives";
    EXPECT_EQ(kelsim_scriptResult(nullptr, "null"), -1);
    EXPECT_EQ(kelsim_scriptResult("getState", nullptr), -1);
    EXPECT_EQ(kelsim_scriptResult("getState", "3"), 0);
    EXPECT_EQ(scriptError(), "");
    EXPECT_EQ(state(api), 3) << "refused scripts queue nothing";
    EXPECT_EQ(state(api), 1);
}

// Collects the reports of scripted asynchronous calls (named *Concurrency*: TSan runs it).
struct Reports {
    static void callback(ReadDtcResult** results, uint32_t count, bool isFinal, uint64_t callId,
                         KelError* error, void* context) {
        auto* self = static_cast<Reports*>(context);
        std::vector<std::wstring> targets;
        for (uint32_t i = 0; i < count; ++i) {
            targets.emplace_back(results[i]->target);
        }
        const bool errorless = error == nullptr;
        release_ReadDtcResult_array(results, count);
        release_KelError(error);
        const std::lock_guard lock(self->mutex);
        self->calls.push_back({callId, isFinal, errorless, std::this_thread::get_id(), targets});
        self->changed.notify_all();
    }
    bool waitFor(std::size_t n) {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, 10s, [&] { return calls.size() >= n; });
    }
    struct Call {
        uint64_t id;
        bool isFinal;
        bool errorless;
        std::thread::id thread;
        std::vector<std::wstring> targets;
    };
    std::mutex mutex;
    std::condition_variable changed;
    std::vector<Call> calls;
};

using ScriptedConcurrency = EngineTest;

TEST_F(ScriptedConcurrency, AsynchronousResultsArriveInOneFinalReportFromAnEngineThread) {
    kelsim_setAsyncReports("readDtcsAsync", 3); // the vehicle's slicing does not apply
    const std::string second = dtcs("").replace(dtcs("").find("ECM"), 3, "GW");
    ASSERT_EQ(kelsim_scriptResult("readDtcsAsync", ("[" + dtcs("") + "," + second + "]").c_str()),
              0);
    ASSERT_EQ(kelsim_scriptResult("readDtcsAsync", "[]"), 0);
    Reports reports;
    ErrorSlot error;
    const wchar_t* names[] = {L"ABS"};
    const uint64_t first = kel_readDtcsAsync(api, const_cast<wchar_t**>(names), 1, nullptr, &error,
                                             Reports::callback, &reports);
    const uint64_t next =
        kel_readDtcsAsync(api, nullptr, 0, nullptr, &error, Reports::callback, &reports);
    ASSERT_FALSE(error);
    EXPECT_NE(first, 0U);
    EXPECT_NE(first, next);
    ASSERT_TRUE(reports.waitFor(2));
    const std::lock_guard lock(reports.mutex);
    ASSERT_EQ(reports.calls.size(), 2U);
    EXPECT_EQ(reports.calls[0].id, first);
    EXPECT_TRUE(reports.calls[0].isFinal);
    EXPECT_TRUE(reports.calls[0].errorless);
    EXPECT_EQ(reports.calls[0].targets, (std::vector<std::wstring>{L"ECM", L"GW"}));
    EXPECT_NE(reports.calls[0].thread, std::this_thread::get_id());
    EXPECT_EQ(reports.calls[1].id, next);
    EXPECT_TRUE(reports.calls[1].targets.empty());
}

TEST_F(ScriptedConcurrency, ResetDeliversTheReportsStillOnTheirWay) {
    Reports reports;
    for (int i = 0; i < 5; ++i) {
        ASSERT_EQ(kelsim_scriptResult("readDtcsAsync", "[]"), 0);
        ErrorSlot error;
        EXPECT_NE(kel_readDtcsAsync(api, nullptr, 0, nullptr, &error, Reports::callback, &reports),
                  0U);
    }
    kelsim_reset(); // `reports` must have heard every call when this returns
    const std::lock_guard lock(reports.mutex);
    EXPECT_EQ(reports.calls.size(), 5U);
}

TEST_F(ScriptedConcurrency, ManyThreadsTakeEachScriptedResultOnce) {
    constexpr int threads = 4;
    constexpr int calls = 50;
    Reports reports;
    std::vector<std::thread> workers;
    std::mutex mutex;
    std::vector<int32_t> seen;
    for (int t = 0; t < threads; ++t) {
        workers.emplace_back([&, t] {
            for (int i = 0; i < calls; ++i) {
                const int32_t value = 1000 + t * calls + i;
                EXPECT_EQ(kelsim_scriptResult("getState", std::to_string(value).c_str()), 0);
                EXPECT_EQ(kelsim_scriptResult("readDtcsAsync", "[]"), 0);
                ErrorSlot error;
                kel_readDtcsAsync(api, nullptr, 0, nullptr, &error, Reports::callback, &reports);
                const int32_t got = state(api);
                const std::lock_guard lock(mutex);
                seen.push_back(got);
            }
        });
    }
    for (auto& w : workers) {
        w.join();
    }
    ASSERT_TRUE(reports.waitFor(threads * calls));
    std::sort(seen.begin(), seen.end());
    for (int i = 0; i < threads * calls; ++i) {
        EXPECT_EQ(seen[static_cast<std::size_t>(i)], 1000 + i);
    }
}

} // namespace

// The data root every persisting family builds on: the scripted folder wins, is created
// on first use, and reset goes back to a per-process folder that is a different one.
TEST(DataRoot, IsTheScriptedFolderCreatedOnFirstUseUntilReset) {
    const auto scratch = freshTempPath("kel_data_root_test");
    const auto chosen = scratch / pathFromWide(L"r\u00e9pertoire");
    kelsim_setDataRoot(wideFromPath(chosen).c_str());
    EXPECT_FALSE(std::filesystem::exists(chosen)) << "made before it was used";

    std::wstring root(512, L'\0');
    const int64_t length = kelsim_dataRoot(root.data(), root.size());
    ASSERT_GT(length, 0);
    root.resize(static_cast<size_t>(length));
    EXPECT_EQ(pathFromWide(root), chosen);
    EXPECT_TRUE(std::filesystem::is_directory(chosen));
    EXPECT_EQ(kelsim_dataRoot(nullptr, 0), length) << "the length alone";

    kelsim_reset();
    std::wstring fallback(512, L'\0');
    fallback.resize(static_cast<size_t>(kelsim_dataRoot(fallback.data(), fallback.size())));
    EXPECT_NE(pathFromWide(fallback), chosen);
    EXPECT_TRUE(std::filesystem::is_directory(pathFromWide(fallback)));

    // A root that cannot be made (below a regular file) is refused, not faked.
    std::filesystem::create_directories(scratch);
    { std::ofstream(scratch / "file") << "x"; }
    kelsim_setDataRoot(wideFromPath(scratch / "file" / "below").c_str());
    EXPECT_EQ(kelsim_dataRoot(nullptr, 0), -1);
    kelsim_reset();
    std::filesystem::remove_all(scratch);
}
