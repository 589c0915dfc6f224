// Measurement values: live values that a unit computes from vehicle time. The tests move
// the vehicle clock instead of waiting, and read each value in the middle of a long
// sample, so that the value read is the one the clock says, however slow the machine.
#include "support.h"
#include "uds.h"

#include <Kel_cpp/Records.h>

#include <chrono>
#include <cmath>
#include <condition_variable>
#include <cstdlib>
#include <mutex>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace kel_test;
using namespace std::chrono_literals;

using Infos = List<ParameterInfo, release_ParameterInfo_array>;
using Reads = List<ReadDataResult, release_ReadDataResult_array>;

constexpr int64_t sampleMs = 10000;

// One unit whose values take a sample every 10 s, and a silent one.
const char* const vehicle = R"({"ecus": [
  {"name": "PCM", "variant": "PCM_1", "address": 1,
   "measurements": [
     {"id": "2001", "name": "Speed", "unit": "1/min", "length": 2, "scale": 0.25,
      "min": 0, "max": 6000, "sampleMs": 10000,
      "motion": {"kind": "sine", "mean": 2000, "amplitude": 1500, "periodMs": 120000,
                 "phase": 30}},
     {"id": "2002", "name": "Coolant", "unit": "degC", "length": 1, "offset": -40,
      "min": -40, "max": 120, "sampleMs": 10000,
      "motion": {"kind": "ramp", "from": -40, "perSecond": 0.2}},
     {"id": "2003", "name": "Load", "unit": "%", "length": 1, "scale": 0.5,
      "min": 0, "max": 100, "sampleMs": 10000,
      "motion": {"kind": "derived", "source": "Speed", "factor": 0.02, "offset": 10}},
     {"id": "2004", "name": "Walk", "unit": "km/h", "length": 1, "min": 0, "max": 250,
      "sampleMs": 10000, "motion": {"kind": "randomWalk", "start": 120, "step": 4, "seed": 5}},
     {"id": "2005", "name": "Voltage", "unit": "V", "length": 2, "scale": 0.001,
      "min": 0, "max": 16, "motion": {"kind": "constant", "value": 12.6}}]},
  {"name": "MUTE", "address": 2, "responds": false,
   "measurements": [{"id": "2001", "name": "Speed", "min": 0, "max": 100}]}]})";

// Moves vehicle time to the middle of the next sample and returns that sample's start.
int64_t middleOfNextSample() {
    const int64_t now = kelsim_clockMs();
    const int64_t start = (now / sampleMs + 1) * sampleMs;
    kelsim_advanceClock(static_cast<uint64_t>(start + sampleMs / 2 - now));
    return start;
}

double sine(int64_t t) {
    return 2000 + 1500 * std::sin(2 * std::numbers::pi * static_cast<double>(t) / 120000 +
                                  30 * std::numbers::pi / 180);
}

double ramp(int64_t t) {
    const double x = 0.2 * static_cast<double>(t) / 1000;
    return -40 + (x - std::floor(x / 160) * 160);
}

std::vector<wchar_t*> names(std::vector<const wchar_t*> list) {
    std::vector<wchar_t*> out;
    for (const auto* n : list) {
        out.push_back(const_cast<wchar_t*>(n));
    }
    return out;
}

class MeasurementTest : public EngineTest {
protected:
    void SetUp() override {
        EngineTest::SetUp();
        ASSERT_EQ(kelsim_setVehicleJson(vehicle), 0);
    }

    // The values read now, by name; the read itself must succeed.
    std::vector<std::wstring> read(std::vector<const wchar_t*> which,
                                   const wchar_t* target = L"PCM") {
        auto list = names(std::move(which));
        Reads out;
        ErrorSlot error;
        kel_readMeasurementValues(api, target, list.data(), static_cast<uint32_t>(list.size()),
                                  &error, &out.items, &out.count);
        EXPECT_FALSE(error) << (error ? error->code : 0);
        std::vector<std::wstring> values;
        if (out.count == 1) {
            for (uint32_t i = 0; i < out.items[0]->parameterCount; ++i) {
                values.emplace_back(out.items[0]->parameters[i]->text1);
            }
        }
        return values;
    }
};

double number(const std::wstring& text) { return std::wcstod(text.c_str(), nullptr); }

TEST_F(MeasurementTest, ValuesFollowTheirMotionAtTheClockTimeRead) {
    const int64_t t = middleOfNextSample();
    const auto now = read({L"Speed", L"Coolant", L"Load", L"Voltage"});
    ASSERT_EQ(now.size(), 4U);
    // Within half a step of each codec: what the bytes can carry.
    EXPECT_NEAR(number(now[0]), sine(t), 0.125) << "sine at " << t;
    EXPECT_NEAR(number(now[1]), ramp(t), 0.5) << "ramp at " << t;
    EXPECT_NEAR(number(now[2]), std::clamp(0.02 * sine(t) + 10, 0.0, 100.0), 0.25)
        << "derived from the sine at the same time";
    EXPECT_NEAR(number(now[3]), 12.6, 0.0005);

    // A read later in the same sample sees the same sample; the next sample moves on.
    kelsim_advanceClock(1000);
    EXPECT_EQ(read({L"Speed", L"Coolant"}), (std::vector<std::wstring>{now[0], now[1]}));
    const int64_t next = middleOfNextSample();
    ASSERT_EQ(next, t + sampleMs);
    const auto later = read({L"Speed", L"Coolant"});
    EXPECT_NEAR(number(later[0]), sine(next), 0.125);
    EXPECT_NEAR(number(later[1]), ramp(next), 0.5);
    EXPECT_NE(later[0], now[0]) << "the sine moved";
}

TEST_F(MeasurementTest, ARandomWalkIsReproducibleAndStaysWithinItsRange) {
    middleOfNextSample();
    const auto first = number(read({L"Walk"}).at(0));
    // A reload starts the units afresh: the walk is taken again from its seed.
    kelsim_reloadVehicle();
    EXPECT_EQ(number(read({L"Walk"}).at(0)), first) << "same seed, same clock, same value";

    double previous = first;
    bool moved = false;
    for (int i = 0; i < 20; ++i) {
        kelsim_advanceClock(sampleMs);
        const double v = number(read({L"Walk"}).at(0));
        EXPECT_GE(v, 0);
        EXPECT_LE(v, 250);
        EXPECT_LE(std::abs(v - previous), 4.5) << "at most one step per sample";
        moved = moved || v != previous;
        previous = v;
    }
    EXPECT_TRUE(moved);
}

TEST_F(MeasurementTest, DescriptionsGiveUnitAndRange) {
    Infos all;
    ASSERT_SUCCEEDS(ok, kel_getMeasurementValueInfos(api, L"PCM", &ok, &all.items, &all.count));
    ASSERT_EQ(all.count, 5U);
    const ParameterInfo& coolant = *all.items[1];
    EXPECT_STREQ(coolant.itemText1, L"Coolant");
    EXPECT_STREQ(coolant.itemText2, L"2002") << "its identifier";
    EXPECT_STREQ(coolant.text2, L"degC");
    EXPECT_STREQ(coolant.text6, L"-40");
    EXPECT_STREQ(coolant.text7, L"120");
    ASSERT_NE(coolant.constraint1, nullptr);
    ASSERT_EQ(coolant.constraint1->scaleCount, 1U);
    EXPECT_STREQ(coolant.constraint1->scales[0]->text1, L"-40");
    EXPECT_STREQ(coolant.constraint1->scales[0]->text2, L"120");
    EXPECT_EQ(coolant.values[5], 10000U) << "the sample time";

    auto which = names({L"Load", L"Nope"});
    Infos some;
    ASSERT_SUCCEEDS(ok, kel_getSingleMeasurementValueInfos(api, L"PCM", which.data(), 2, &ok,
                                                           &some.items, &some.count));
    ASSERT_EQ(some.count, 2U);
    EXPECT_STREQ(some.items[0]->text2, L"%");
    EXPECT_EQ(some.items[0]->error, nullptr);
    ASSERT_EQ(codeIn(some.items[1]->error), 1900);

    Infos none;
    EXPECT_ENGINE_ERROR(
        unknown, 1011,
        kel_getMeasurementValueInfos(api, L"Nope", &unknown, &none.items, &none.count));
}

TEST_F(MeasurementTest, ReadsGoOverTheBusWithPerValueAndPerTargetErrors) {
    const auto requestsSent = [&] {
        return kel_test::fetchRecord(release_TransmissionInfo,
                                     [&](auto... out) { kel_getTransmissionInfo(api, out...); })
            ->value1;
    };
    const uint64_t before = requestsSent();

    auto which = names({L"Coolant", L"Nope"});
    Reads out;
    ASSERT_SUCCEEDS(
        ok, kel_readMeasurementValues(api, L"PCM", which.data(), 2, &ok, &out.items, &out.count));
    ASSERT_EQ(out.count, 1U);
    EXPECT_EQ(out.items[0]->status, 0);
    ASSERT_EQ(out.items[0]->parameterCount, 2U);
    EXPECT_STREQ(out.items[0]->parameters[0]->text2, L"degC");
    ASSERT_EQ(out.items[0]->parameters[0]->dataLength, 1U);
    ASSERT_EQ(codeIn(out.items[0]->parameters[1]->error), 1900);

    EXPECT_EQ(requestsSent() - before, 1U) << "one ReadDataByIdentifier, none for Nope";

    Reads silent;
    ASSERT_SUCCEEDS(
        ok, kel_readMeasurementValues(api, L"MUTE", nullptr, 0, &ok, &silent.items, &silent.count));
    ASSERT_EQ(silent.count, 1U);
    EXPECT_EQ(silent.items[0]->status, 1);
    ASSERT_EQ(codeIn(silent.items[0]->error), 1010);

    EXPECT_EQ(read({}).size(), 5U) << "no names: every value";
}

TEST_F(MeasurementTest, ARegistrationShowsValuesMovingUntilItEnds) {
    auto which = names({L"Coolant", L"Speed"});
    uint64_t registration = 0;
    ASSERT_SUCCEEDS(
        ok, kel_registerMeasurementValues(api, L"PCM", which.data(), 2, &ok, &registration));
    ASSERT_NE(registration, 0U);

    const auto fetch = [&] {
        Reads out;
        ErrorSlot e;
        kel_getMeasurementValues(api, registration, &e, &out.items, &out.count);
        EXPECT_FALSE(e);
        std::vector<double> values;
        for (uint32_t i = 0; out.count == 1 && i < out.items[0]->parameterCount; ++i) {
            values.push_back(number(out.items[0]->parameters[i]->text1));
        }
        return values;
    };
    const int64_t t = middleOfNextSample();
    const auto first = fetch();
    ASSERT_EQ(first.size(), 2U);
    EXPECT_NEAR(first[0], ramp(t), 0.5);
    kelsim_advanceClock(3 * sampleMs);
    const auto later = fetch();
    ASSERT_EQ(later.size(), 2U);
    EXPECT_NEAR(later[0], ramp(t + 3 * sampleMs), 0.5);
    EXPECT_NEAR(later[1], sine(t + 3 * sampleMs), 0.125);

    const auto gone = [&] {
        Reads none;
        return kel_test::errorCodeOf([&](KelError** e) {
            kel_getMeasurementValues(api, registration, e, &none.items, &none.count);
        });
    };
    ASSERT_SUCCEEDS(ok, kel_unregisterMeasurementValues(api, registration, &ok));
    EXPECT_EQ(gone(), 1901);
    EXPECT_ENGINE_ERROR(again, 1901, kel_unregisterMeasurementValues(api, registration, &again));
    auto wrong = names({L"Speed", L"Nope"});
    uint64_t none = 0;
    EXPECT_ENGINE_ERROR(
        refused, 1900,
        kel_registerMeasurementValues(api, L"PCM", wrong.data(), 2, &refused, &none));

    // A reload ends registrations.
    ASSERT_SUCCEEDS(ok, kel_registerMeasurementValues(api, L"PCM", nullptr, 0, &ok, &registration));
    kelsim_reloadVehicle();
    EXPECT_EQ(gone(), 1901);
}

TEST_F(MeasurementTest, AsynchronousReadsGiveWhatTheSynchronousOneGives) {
    middleOfNextSample();
    auto which = names({L"Speed", L"Coolant"});
    kel_test::AsyncReports<ReadDataResult, release_ReadDataResult_array> reports(
        [](const ReadDataResult& r) {
            std::wstring values;
            for (uint32_t k = 0; k < r.parameterCount; ++k) {
                values += (k == 0 ? L"" : L",") + std::wstring(r.parameters[k]->text1);
            }
            return values;
        });
    reports.run([&](auto... call) {
        return kel_readMeasurementValuesAsync(api, L"PCM", which.data(), 2, call...);
    });
    const auto now = read({L"Speed", L"Coolant"});
    EXPECT_EQ(reports.all(), std::vector<std::wstring>{now.at(0) + L"," + now.at(1)});
}

TEST(MeasurementDescription, BadMeasurementsAreRefused) {
    const std::string ranged = R"("id": "2001", "name": "A", "min": 0, "max": 9, "motion": )";
    const std::vector<std::pair<std::string, int>> cases = {
        {R"("id": "2001", "name": "A")", -1},                       // no range
        {R"("id": "2001", "name": "A", "min": 0, "max": 300)", -1}, // 300 does not fit one byte
        {ranged + R"({"kind": "derived", "source": "B"})", -1},     // a source that comes later
        {ranged + R"({"kind": "jump"})", -1},                       // no such motion
        {ranged + R"({"kind": "sine", "amplitude": 1, "periodMs": 0})", -1},
        {ranged + R"({"kind": "constant", "value": 1})", 0}};
    for (const auto& [measurement, expected] : cases) {
        const auto description =
            R"({"ecus": [{"name": "X", "measurements": [{)" + measurement + "}]}]}";
        EXPECT_EQ(kelsim_setVehicleJson(description.c_str()), expected) << measurement;
    }
    kelsim_reset();
}

} // namespace
