// Flashing the default vehicle's engine control module (ECM) as a workshop does it: the
// programming session and security level first, then the download, the new version as
// identification reads it; a cancelled or rejected download leaves the unit with an
// incomplete update that a new flash repairs. Also the quick test, which reads every
// unit's variant and DTCs in one pass.
#include "support.h"
#include "uds.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstring>
#include <mutex>
#include <string>
#include <vector>

namespace {

using namespace kel_test;
using namespace std::chrono_literals;

using Bytes = std::vector<uint8_t>;
using Results = List<FlashSessionResult, release_FlashSessionResult_array>;
using Infos = List<FlashSessionInfo, release_FlashSessionInfo_array>;
using QuickTests = List<QuickTestResult, release_QuickTestResult_array>;

using Texts = std::vector<std::string>;

std::string narrow(const wchar_t* text) {
    const std::wstring wide = text != nullptr ? text : L"";
    return {wide.begin(), wide.end()};
}

// Each session's result as "<status> <error code> <version before>-><version after>".
Texts outcomes(const Results& list) {
    Texts out;
    for (uint32_t i = 0; i < list.count; ++i) {
        const FlashSessionResult& r = *list.items[i];
        out.push_back(std::to_string(r.status) + " " + std::to_string(codeIn(r.error)) + " " +
                      narrow(r.versionBefore) + "->" + narrow(r.versionAfter));
    }
    return out;
}

class FlashTest : public EngineTest {
protected:
    Bytes send(const wchar_t* target, const Bytes& request) {
        return kel_test::sendRaw(api, target, request);
    }

    // The ECM in its programming session with level 2 unlocked, as a flash needs it.
    void enterProgramming() { kel_test::enterEcmProgramming(api); }

    std::unique_ptr<Results> flash(std::vector<const wchar_t*> sessions,
                                   const wchar_t* target = L"ECM") {
        auto out = std::make_unique<Results>();
        ErrorSlot error;
        kel_executeFlashSessions(api, target, const_cast<wchar_t**>(sessions.data()),
                                 static_cast<uint32_t>(sessions.size()), &error, &out->items,
                                 &out->count);
        EXPECT_FALSE(error) << (error ? error->code : 0);
        EXPECT_EQ(out->count, sessions.size()) << "one result per session";
        return out;
    }

    // The software version as identification reads it from the unit (F189).
    std::wstring identifiedVersion() {
        const auto out = fetch<List<ReadDataResult, release_ReadDataResult_array>>(
            [&](auto... o) { kel_readIdentificationValues(api, ecm, 1, o...); });
        for (uint32_t i = 0; out->count == 1 && i < out->items[0]->parameterCount; ++i) {
            const ParameterResult& p = *out->items[0]->parameters[i];
            if (std::wstring(p.itemText2) == L"F189") {
                return p.text1;
            }
        }
        return L"<no F189>";
    }

    bool programmingDtcStored() {
        const auto out = fetch<List<ReadDtcResult, release_ReadDtcResult_array>>(
            [&](auto... o) { kel_readDtcs(api, ecm, 1, nullptr, o...); });
        for (uint32_t i = 0; out->count == 1 && i < out->items[0]->dtcCount; ++i) {
            if (std::wstring(out->items[0]->dtcs[i]->text1) == L"P0602") {
                return true;
            }
        }
        return false;
    }
    std::unique_ptr<Infos> sessionInfos(const wchar_t* target) {
        return fetch<Infos>([&](auto... out) { kel_getFlashSessionInfos(api, target, out...); });
    }
    wchar_t* ecm[1] = {const_cast<wchar_t*>(L"ECM")};
};

TEST_F(FlashTest, SessionsAreListedFromTheDescription) {
    const auto sessions = sessionInfos(L"ECM");
    ASSERT_EQ(sessions->count, 2U);
    const FlashSessionInfo& first = *sessions->items[0];
    EXPECT_STREQ(first.name, L"ECM_SW_5430");
    EXPECT_STREQ(first.target, L"ECM");
    EXPECT_STREQ(first.version, L"5430");
    EXPECT_EQ(first.size, 65536U);
    EXPECT_EQ(first.duration, 45000U);
    EXPECT_EQ(first.level, 2U);
    EXPECT_STREQ(sessions->items[1]->name, L"ECM_SW_5431");
    EXPECT_EQ(sessionInfos(L"TCM")->count, 0U) << "a unit without programming offers nothing";
    Infos none;
    EXPECT_ENGINE_ERROR(
        unknown, 1011,
        kel_getFlashSessionInfos(api, L"NoSuchUnit", &unknown, &none.items, &none.count));
}

TEST_F(FlashTest, WithoutProgrammingSessionOrSecurityTheUnitRefusesAndKeepsItsSoftware) {
    // Default session: the erase routine is not available there.
    auto refused = flash({L"ECM_SW_5430"});
    ASSERT_EQ(outcomes(*refused), Texts{"2 1700 5428->"});
    ASSERT_NE(refused->items[0]->error->negativeResponse, nullptr);
    EXPECT_EQ(refused->items[0]->error->negativeResponse->code, 0x7F); // not in this session

    // Programming session, but level 2 still locked.
    ASSERT_EQ(send(L"ECM", {0x10, 0x02}).at(0), 0x50);
    auto locked = flash({L"ECM_SW_5430"});
    ASSERT_NE(locked->items[0]->error, nullptr);
    ASSERT_NE(locked->items[0]->error->negativeResponse, nullptr);
    EXPECT_EQ(locked->items[0]->error->negativeResponse->code, 0x33); // securityAccessDenied

    // Nothing was erased: the old software still runs and no DTC was stored.
    EXPECT_EQ(identifiedVersion(), L"5428");
    EXPECT_FALSE(programmingDtcStored());
}

TEST_F(FlashTest, AFlashChangesTheVersionIdentificationReadsAndTakesVehicleTime) {
    enterProgramming();
    const int64_t before = kelsim_clockMs();
    auto out = flash({L"ECM_SW_5430"});
    const int64_t after = kelsim_clockMs();
    EXPECT_EQ(outcomes(*out), Texts{"0 0 5428->5430"});
    const FlashSessionResult& r = *out->items[0];
    EXPECT_EQ(r.size, 65536U);
    EXPECT_EQ(r.transferred, 65536U);
    EXPECT_EQ(r.progress, 100U);
    // The download spends its expected duration on the vehicle clock, not in real time.
    EXPECT_GE(r.duration, 45000U);
    EXPECT_GE(after - before, 45000);
    EXPECT_EQ(identifiedVersion(), L"5430");
    EXPECT_FALSE(programmingDtcStored());

    // The run ended with a reset: the unit is back in its default session, locked.
    const auto again = flash({L"ECM_SW_5431"});
    ASSERT_NE(again->items[0]->error, nullptr);
    EXPECT_EQ(again->items[0]->error->negativeResponse->code, 0x7F);
}

TEST_F(FlashTest, SessionsRunInOrderAndAFailureStopsTheRestUnlessConfiguredOtherwise) {
    enterProgramming();
    EXPECT_EQ(outcomes(*flash({L"NoSuchSession", L"ECM_SW_5430"})),
              (Texts{"2 1701 ->", "3 1702 ->"}));
    EXPECT_EQ(identifiedVersion(), L"5428") << "nothing was flashed";

    enterProgramming();
    auto* config = zeroed<FlashSessionsConfig>();
    config->target = duplicate_WString(L"ECM");
    const wchar_t* names[] = {L"NoSuchSession", L"ECM_SW_5430", L"ECM_SW_5431"};
    config->sessions = static_cast<wchar_t**>(allocate_Memory(sizeof names));
    for (int i = 0; i < 3; ++i) {
        config->sessions[i] = duplicate_WString(names[i]);
    }
    config->sessionCount = 3;
    config->blockLength = 256;
    config->stopOnError = 0;
    ErrorSlot error;
    Results out;
    ASSERT_SUCCEEDS(ok, kel_executeFlashSessionsConfig(api, config, &ok, &out.items, &out.count));
    // The second session runs in the same programming session, on the first one's result.
    EXPECT_EQ(outcomes(out), (Texts{"2 1701 ->", "0 0 5428->5430", "0 0 5430->5431"}));
    EXPECT_EQ(identifiedVersion(), L"5431");
}

TEST_F(FlashTest, CallsThatCannotStartAreRefusedWhole) {
    Results out;
    const wchar_t* names[] = {L"ECM_SW_5430"};
    EXPECT_ENGINE_ERROR(noTarget, 1011,
                        kel_executeFlashSessions(api, L"Nope", const_cast<wchar_t**>(names), 1,
                                                 &noTarget, &out.items, &out.count));
    EXPECT_ENGINE_ERROR(
        noSessions, 1704,
        kel_executeFlashSessions(api, L"ECM", nullptr, 0, &noSessions, &out.items, &out.count));
    EXPECT_ENGINE_ERROR(
        noConfig, 1704,
        kel_executeFlashSessionsConfig(api, nullptr, &noConfig, &out.items, &out.count));
}

// What an asynchronous flash reports, and the cancel it may trigger.
struct FlashWatch : AsyncWatch {
    uint32_t cancelAt = 101;         // cancel the call once a report shows this much progress
    std::vector<uint32_t> progress;  // of every running report, in order
    std::vector<int32_t> finals;     // statuses of the sessions' last results
    std::vector<std::wstring> after; // their versions after

    static void callback(FlashSessionResult** results, uint32_t count, bool isFinal,
                         uint64_t callId, KelError* error, void* context) {
        auto* self = static_cast<FlashWatch*>(context);
        bool cancel = false;
        {
            const std::lock_guard lock(self->mutex);
            for (uint32_t i = 0; i < count; ++i) {
                if (results[i]->status == 1) {
                    self->progress.push_back(results[i]->progress);
                    cancel = cancel || results[i]->progress >= self->cancelAt;
                } else {
                    self->finals.push_back(results[i]->status);
                    self->after.emplace_back(results[i]->versionAfter);
                }
            }
            self->errorCode = error != nullptr ? error->code : self->errorCode;
        }
        release_FlashSessionResult_array(results, count);
        release_KelError(error);
        self->reported(callId, cancel, isFinal);
    }
};

TEST_F(FlashTest, AsynchronousFlashReportsRisingProgressThenTheResult) {
    kelsim_setAsyncInterval("executeFlashSessionsAsync", 0);
    enterProgramming();
    FlashWatch watch;
    watch.api = api;
    const wchar_t* names[] = {L"ECM_SW_5430"};
    ErrorSlot error;
    const uint64_t id = kel_executeFlashSessionsAsync(api, L"ECM", const_cast<wchar_t**>(names), 1,
                                                      &error, FlashWatch::callback, &watch);
    ASSERT_FALSE(error);
    ASSERT_NE(id, 0U);
    ASSERT_TRUE(watch.wait());
    const std::lock_guard lock(watch.mutex);
    EXPECT_EQ(watch.errorCode, 0);
    EXPECT_EQ(watch.finals, (std::vector<int32_t>{0}));
    EXPECT_EQ(watch.after, (std::vector<std::wstring>{L"5430"}));
    // Per cent of the image sent: 0 after the erase, then each tenth.
    EXPECT_EQ(watch.progress, (std::vector<uint32_t>{0, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100}));
}

TEST_F(FlashTest, ACancelledFlashLeavesAnIncompleteUpdateThatANewFlashRepairs) {
    kelsim_setAsyncInterval("executeFlashSessionsAsync", 0);
    enterProgramming();
    FlashWatch watch;
    watch.api = api;
    watch.cancelAt = 30;
    const wchar_t* names[] = {L"ECM_SW_5430"};
    ASSERT_SUCCEEDS(ok, kel_executeFlashSessionsAsync(api, L"ECM", const_cast<wchar_t**>(names), 1,
                                                      &ok, FlashWatch::callback, &watch));
    ASSERT_TRUE(watch.wait());
    {
        const std::lock_guard lock(watch.mutex);
        EXPECT_EQ(watch.errorCode, 1012);
        EXPECT_TRUE(watch.finals.empty()) << "the session never ended";
        EXPECT_EQ(watch.progress.back(), 30U);
    }
    // The old software is gone and the unit says so.
    EXPECT_EQ(identifiedVersion(), L"");
    EXPECT_TRUE(programmingDtcStored());

    // The unit was left in its programming session; a new flash from the start repairs it.
    enterProgramming();
    EXPECT_EQ(outcomes(*flash({L"ECM_SW_5430"})), Texts{"0 0 ->5430"});
    EXPECT_EQ(identifiedVersion(), L"5430");
    EXPECT_FALSE(programmingDtcStored());
}

// A unit whose session declares a checksum its image does not have, and a silent one.
constexpr const char* corruptVehicle = R"({"ecus": [
    {"name": "PCM", "address": 1,
     "identification": [{"id": "F189", "name": "Software version", "value": "A1"}],
     "security": [{"level": 1, "keyMask": "00000000", "sessions": ["Programming"]}],
     "programming": {"level": 1}},
    {"name": "MUTE", "address": 2, "responds": false,
     "identification": [{"id": "F189", "name": "Software version", "value": "Z9"}],
     "security": [{"level": 1, "keyMask": "00000000", "sessions": ["Programming"]}],
     "programming": {"level": 1}}],
  "flash": {"sessions": [
    {"name": "Bad", "target": "PCM", "version": "B2", "size": 4000, "durationMs": 10,
     "checksum": "12345678"},
    {"name": "Good", "target": "PCM", "version": "B3", "size": 4000, "durationMs": 10},
    {"name": "Mute", "target": "MUTE", "version": "Y8", "size": 100}]}})";

TEST_F(FlashTest, AnImageTheUnitRejectsLeavesItIncompleteAndASilentUnitIsReported) {
    ASSERT_EQ(kelsim_setVehicleJson(corruptVehicle), 0);
    const auto unlock = [&] {
        ASSERT_EQ(send(L"PCM", {0x10, 0x02}).at(0), 0x50);
        const auto seed = send(L"PCM", {0x27, 0x01});
        Bytes key = {0x27, 0x02};
        const auto k = kel_test::keyFor(seed.data() + 2, 0);
        key.insert(key.end(), k.begin(), k.end());
        ASSERT_EQ(send(L"PCM", key), (Bytes{0x67, 0x02}));
    };
    unlock();
    auto bad = flash({L"Bad"}, L"PCM");
    EXPECT_EQ(outcomes(*bad), Texts{"2 1703 A1->"}) << "the update is incomplete";
    EXPECT_EQ(bad->items[0]->transferred, 4000U) << "the whole image went over";
    unlock();
    EXPECT_EQ(outcomes(*flash({L"Good"}, L"PCM")), Texts{"0 0 ->B3"});
    EXPECT_EQ(outcomes(*flash({L"Mute"}, L"MUTE")), Texts{"2 1010 ->"});
}

TEST_F(FlashTest, ADescriptionWhoseSessionsCannotBeFlashedIsRefused) {
    // A unit that can be programmed, with sessions; only the last description is whole.
    const auto with = [](const std::string& unit, const std::string& sessions) {
        return R"({"ecus": [{"name": "A")" + unit + R"(}], "flash": {"sessions": [)" + sessions +
               "]}}";
    };
    const std::string programmable = R"(, "programming": {},
        "identification": [{"id": "F189", "value": "0"}])";
    const std::string session = R"({"name": "S", "target": "A", "version": "1")";
    const std::vector<std::pair<std::string, int>> cases = {
        {with("", session + "}"), -1},                            // no programming on the unit
        {with(R"(, "programming": {})", ""), -1},                 // nothing reports its version
        {with(programmable, session + R"(, "size": 1})"), -1},    // the header does not fit
        {with(programmable, session + "}," + session + "}"), -1}, // a session twice
        {with(programmable, session + "}"), 0}};
    for (const auto& [description, expected] : cases) {
        EXPECT_EQ(kelsim_setVehicleJson(description.c_str()), expected) << description;
    }
}

// ---- the quick test ----------------------------------------------------------------------

TEST_F(FlashTest, QuickTestIdentifiesAndReadsEveryUnitInOnePass) {
    const auto allTests = fetch<QuickTests>(
        [&](auto... out) { kel_performQuickTest(api, nullptr, 0, nullptr, out...); });
    const QuickTests& all = *allTests;
    ASSERT_EQ(all.count, 6U) << "every unit of the vehicle";
    const auto dtcs = fetch<List<ReadDtcResult, release_ReadDtcResult_array>>(
        [&](auto... out) { kel_readDtcs(api, nullptr, 0, nullptr, out...); });
    ASSERT_EQ(dtcs->count, all.count);
    for (uint32_t i = 0; i < all.count; ++i) {
        const QuickTestResult& r = *all.items[i];
        EXPECT_STREQ(r.target, dtcs->items[i]->target);
        EXPECT_EQ(r.dtcCount, dtcs->items[i]->dtcCount) << "the same fault memory as readDtcs";
        if (std::wstring(r.target) == L"ACC") {
            EXPECT_EQ(r.status, 1);
            EXPECT_EQ(r.identified, 0);
            ASSERT_EQ(codeIn(r.error), 1010);
        } else {
            EXPECT_EQ(r.status, 0) << r.target;
            EXPECT_EQ(r.identified, 1) << r.target;
        }
    }
    EXPECT_STREQ(all.items[0]->variant, L"ECM_EDC17_CR_2L0_V3");
    EXPECT_GT(all.items[0]->dtcCount, 0U);
    EXPECT_STREQ(all.items[0]->dtcs[0]->text3, L"ECM");

    // A status mask applies as in readDtcs; an unknown name has its own error.
    auto* config = zeroed<DtcReadConfig>();
    config->value = 0x01; // testFailed
    const wchar_t* names[] = {L"ECM", L"Nope"};
    const auto some = fetch<QuickTests>([&](auto... out) {
        kel_performQuickTest(api, const_cast<wchar_t**>(names), 2, config, out...);
    });
    ASSERT_EQ(some->count, 2U);
    for (uint32_t i = 0; i < some->items[0]->dtcCount; ++i) {
        EXPECT_NE(some->items[0]->dtcs[i]->value1 & 0x01, 0);
    }
    EXPECT_LT(some->items[0]->dtcCount, all.items[0]->dtcCount);
    EXPECT_EQ(some->items[1]->status, 2);
    EXPECT_EQ(some->items[1]->error->code, 1011);
}

TEST_F(FlashTest, AsynchronousQuickTestReportsOneUnitAtATime) {
    kelsim_setAsyncInterval("performQuickTestAsync", 0);
    kel_test::AsyncReports<QuickTestResult, release_QuickTestResult_array> reports(
        [](const QuickTestResult& r) { return std::wstring(r.target); });
    reports.run(
        [&](auto... call) { return kel_performQuickTestAsync(api, nullptr, 0, nullptr, call...); });
    EXPECT_EQ(reports.texts, (std::vector<std::vector<std::wstring>>{
                                 {L"ECM"}, {L"TCM"}, {L"ESP"}, {L"BCM"}, {L"GW"}, {L"ACC"}}));
}

} // namespace
