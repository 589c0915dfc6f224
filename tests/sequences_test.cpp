// Sequences of the bundled default vehicle's engine control module (ECM): results in
// the order the services ran, parameter values bound into them, the stop rule after a
// failed service, the asynchronous form, and runs that report as events and cancel.
#include "support.h"
#include "uds.h"

#include <Kel_cpp/Records.h>

#include <chrono>
#include <condition_variable>
#include <cstring>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace kel_test;
using namespace std::chrono_literals;

using Results = List<ServiceResult, release_ServiceResult_array>;

// Parameter values for one call, freed at the end of the test.
struct Values {
    std::vector<ParameterInput*> items;
    Values(std::initializer_list<ParameterInput*> list) : items(list) {}
    Values(const Values&) = delete;
    Values& operator=(const Values&) = delete;
    ~Values() {
        for (auto* p : items) {
            release_ParameterInput(p);
        }
    }
};

struct Outcome {
    std::wstring service;
    int32_t status = 0;
    int32_t error = 0;
    bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& o) {
    return out << std::string(o.service.begin(), o.service.end()) << ' ' << o.status << ' '
               << o.error;
}

struct Event {
    int32_t kind = 0;
    int32_t code = 0;
    std::wstring text;
    std::wstring detail;
};

constexpr int32_t sequenceStep = 50;
constexpr int32_t sequenceEnded = 51;

class SequencesTest : public EngineTest {
protected:
    // The outcomes of a sequence; with `failed`, the call may fail, with its code there.
    std::vector<Outcome> execute(const wchar_t* sequence, Values& values,
                                 const wchar_t* target = L"ECM", int32_t* failed = nullptr) {
        Results out;
        ErrorSlot error;
        kel_executeSequence(api, target, sequence, values.items.data(),
                            static_cast<uint32_t>(values.items.size()), &error, &out.items,
                            &out.count);
        if (failed != nullptr) {
            *failed = error ? error->code : 0;
        } else {
            EXPECT_FALSE(error) << (error ? error->code : 0);
        }
        std::vector<Outcome> outcomes;
        for (uint32_t i = 0; i < out.count; ++i) {
            const ServiceResult& r = *out.items[i];
            outcomes.push_back({r.itemText1, r.status, r.error != nullptr ? r.error->code : 0});
            if (std::wstring(r.itemText1) == L"ReadDataByIdentifier_F190" && r.status == 0) {
                lastVin = r.responses[0]->parameters[1]->text1;
            }
        }
        return outcomes;
    }
    int32_t executeFails(const wchar_t* sequence, Values& values, const wchar_t* target = L"ECM") {
        int32_t failed = 0;
        execute(sequence, values, target, &failed);
        return failed;
    }
    uint64_t run(const wchar_t* sequence, std::vector<const wchar_t*> arguments = {},
                 int32_t* failed = nullptr) {
        std::vector<wchar_t*> list;
        for (const auto* a : arguments) {
            list.push_back(const_cast<wchar_t*>(a));
        }
        ErrorSlot error;
        uint64_t id = 0;
        kel_runSequence(api, sequence, list.data(), static_cast<uint32_t>(list.size()), &error,
                        &id);
        if (failed != nullptr) {
            *failed = error ? error->code : 0;
        } else {
            EXPECT_FALSE(error) << (error ? error->code : 0);
        }
        return id;
    }
    uint64_t openChannel() {
        ErrorSlot error;
        uint64_t channel = 0;
        kel_openEventChannel(api, &error, &channel);
        EXPECT_FALSE(error);
        return channel;
    }
    // Reads the channel until a SequenceEnded event of `run` arrives (10 s at most);
    // returns the sequence events of that run.
    // Moves vehicle time on by `advanceMs` at each look.
    std::vector<Event> eventsUntilEnded(uint64_t channel, uint64_t runId, uint64_t advanceMs = 0) {
        std::vector<Event> seen;
        const auto mine = L"run " + std::to_wstring(runId);
        const auto deadline = std::chrono::steady_clock::now() + 10s;
        while (std::chrono::steady_clock::now() < deadline) {
            ErrorSlot error;
            EventReport* report = nullptr;
            kel_getCurrentEvents(api, channel, 0, &error, &report);
            for (uint32_t i = 0; report != nullptr && i < report->eventCount; ++i) {
                const KelEvent& e = *report->events[i];
                const std::wstring detail = e.detail;
                if ((e.kind == sequenceStep || e.kind == sequenceEnded) &&
                    (detail == mine || detail.rfind(mine + L" ", 0) == 0)) {
                    seen.push_back({e.kind, e.code, e.text, detail});
                }
            }
            release_EventReport(report);
            if (!seen.empty() && seen.back().kind == sequenceEnded) {
                break;
            }
            kelsim_advanceClock(advanceMs);
            std::this_thread::sleep_for(1ms);
        }
        return seen;
    }
    std::wstring lastVin;
};

TEST_F(SequencesTest, ResultsComeInOrderAndAFailedServiceStopsTheRest) {
    Values vin{param(L"Vin", L"WVWZZZ1KZ8W000999")};
    // Writing the VIN needs security access: refused, the read after it is not sent.
    EXPECT_EQ(execute(L"WriteVin", vin),
              (std::vector<Outcome>{{L"DiagnosticSessionControl", 0, 0},
                                    {L"WriteDataByIdentifier_F190", 1, 1102},
                                    {L"ReadDataByIdentifier_F190", 3, 2003}}));

    kel_test::fetchRecord(release_UnlockResult,
                          [&](auto... out) { kel_unlockVehicle(api, L"ECM", nullptr, 0, out...); });
    EXPECT_EQ(execute(L"WriteVin", vin),
              (std::vector<Outcome>{{L"DiagnosticSessionControl", 0, 0},
                                    {L"WriteDataByIdentifier_F190", 0, 0},
                                    {L"ReadDataByIdentifier_F190", 0, 0}}));
    EXPECT_EQ(lastVin, L"WVWZZZ1KZ8W000999") << "the value given reached the unit";
}

TEST_F(SequencesTest, ParametersAreCheckedBeforeAnythingIsSent) {
    Values none{};
    EXPECT_EQ(executeFails(L"WriteVin", none), 2002) << "Vin has no default";
    Values unknown{param(L"Vin", L"X"), param(L"Colour", L"red")};
    EXPECT_EQ(executeFails(L"WriteVin", unknown), 2002);
    EXPECT_EQ(executeFails(L"NoSuchSequence", none), 2000);
    EXPECT_EQ(executeFails(L"ReadSoftwareInfo", none, L"Nope"), 1011);

    // A default can be given another value: an unknown session is refused by the unit.
    Values session{param(L"Vin", L"WVWZZZ1KZ8W000999"), param(L"Session", L"Programming")};
    const auto outcomes = execute(L"WriteVin", session);
    ASSERT_EQ(outcomes.size(), 3U);
    EXPECT_EQ(outcomes[0].status, 0);
    EXPECT_EQ(outcomes[1].status, 1) << "no VIN writing in the programming session";
}

TEST_F(SequencesTest, AStepMayBePassedOverWhenItFails) {
    ASSERT_EQ(kelsim_setVehicleJson(R"({"ecus": [{"name": "U", "address": 1}],
        "sequences": {"Tolerant": {"steps": [
          {"request": "22 00 00", "continueOnError": true},
          {"service": "TesterPresent"}, {"request": "22 00 00"}, {"service": "TesterPresent"}]}}})"),
              0);
    Values none{};
    EXPECT_EQ(execute(L"Tolerant", none, L"U"),
              (std::vector<Outcome>{{L"", 1, 1102},
                                    {L"TesterPresent", 0, 0},
                                    {L"", 1, 1102},
                                    {L"TesterPresent", 3, 2003}}));
    int32_t failed = 0;
    run(L"Tolerant", {}, &failed);
    EXPECT_EQ(failed, 2004) << "it names no target to run on";

    EXPECT_EQ(kelsim_setVehicleJson(R"({"ecus": [], "sequences": {"A": {"steps": [
        {"service": "X", "parameters": [{"name": "P", "value": "$Missing"}]}]}}})"),
              -1);
    EXPECT_EQ(kelsim_setVehicleJson(R"({"ecus": [], "sequences": {"A": {"steps": [{}]}}})"), -1);
}

TEST_F(SequencesTest, TheAsynchronousFormReportsEachService) {
    using Reports = kel_test::AsyncReports<ServiceResult, release_ServiceResult_array>;
    const auto service = [](const ServiceResult& r) { return std::wstring(r.itemText1); };
    Reports reports(service);
    reports.run([&](auto... call) {
        return kel_executeSequenceAsync(api, L"ECM", L"ReadSoftwareInfo", nullptr, 0, call...);
    });
    EXPECT_EQ(reports.texts, (std::vector<std::vector<std::wstring>>{
                                 {L"ReadDataByIdentifier_F190"}, {L"ReadDataByIdentifier_F189"}}));
    EXPECT_EQ(reports.errorCode, 0);

    Reports refused(service);
    EXPECT_ENGINE_ERROR(error, 2000,
                        EXPECT_EQ(kel_executeSequenceAsync(api, L"ECM", L"Nope", nullptr, 0, &error,
                                                           Reports::callback, &refused),
                                  0U));
}

// Runs go on the family's worker: these run under the thread sanitizer too.
using SequenceRunsConcurrency = SequencesTest;

TEST_F(SequenceRunsConcurrency, ARunReportsItsServicesAsEventsAndEnds) {
    const uint64_t channel = openChannel();
    const uint64_t id = run(L"WriteVin", {L"WVWZZZ1KZ8W000001"});
    ASSERT_NE(id, 0U);
    const auto events = eventsUntilEnded(channel, id);
    ASSERT_EQ(events.size(), 4U);
    EXPECT_EQ(events[0].text, L"DiagnosticSessionControl");
    EXPECT_EQ(events[0].detail, L"run " + std::to_wstring(id) + L" step 1/3");
    EXPECT_EQ(events[1].code, 1) << "the write was refused";
    EXPECT_EQ(events[2].code, 3) << "the read not sent";
    EXPECT_EQ(events[3].kind, sequenceEnded);
    EXPECT_EQ(events[3].code, 1) << "stopped by a failed service";

    EXPECT_ENGINE_ERROR(ended, 2001, kel_cancelSequence(api, id, &ended));
    int32_t failed = 0;
    run(L"WriteVin", {L"A", L"Extended", L"one too many"}, &failed);
    EXPECT_EQ(failed, 2002);
}

TEST_F(SequenceRunsConcurrency, ACancelStopsARunBetweenServices) {
    const uint64_t channel = openChannel();
    // The second read waits a minute of vehicle time.
    const uint64_t id = run(L"WarmUpCheck");
    ASSERT_NE(id, 0U);
    ASSERT_SUCCEEDS(ok, kel_cancelSequence(api, id, &ok));
    const auto events = eventsUntilEnded(channel, id);
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(events.back().kind, sequenceEnded);
    EXPECT_EQ(events.back().code, 2);
    EXPECT_LE(events.size(), 2U) << "at most the first read ran";

    // Left alone, the run goes on once vehicle time has passed.
    const uint64_t again = run(L"WarmUpCheck");
    const auto done = eventsUntilEnded(channel, again, 1000);
    ASSERT_EQ(done.size(), 4U);
    EXPECT_EQ(done[2].text, L"DiagnosticSessionControl") << "raw bytes, found in the catalogue";
    EXPECT_EQ(done[3].code, 0);
}

} // namespace
