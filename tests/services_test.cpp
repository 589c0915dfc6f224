// Services against the bundled default vehicle's engine control module (ECM): what a
// tester relies on when developing a diagnostic sequence against the simulated unit.
// Parameter trees, negative responses, session and security rules, the lockout, one
// state for services and identification, vehicle unlock, descriptions and cancelling.
#include "support.h"
#include "uds.h"

#include <Kel_cpp/Records.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstring>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace kel_test;
using namespace std::chrono_literals;

using Results = List<ServiceResult, release_ServiceResult_array>;
using Infos = List<ParameterInfo, release_ParameterInfo_array>;
using ServiceInfos = List<ServiceInfo, release_ServiceInfo_array>;
using Bytes = std::vector<uint8_t>;

constexpr uint32_t ecmAddress = 2016;
constexpr uint32_t ecmKeyMask = 0x5A3C96E1;

// A list of services to send, freed at the end of the test.
struct Inputs {
    std::vector<ServiceInput*> items;
    Inputs() = default;
    Inputs(const Inputs&) = delete;
    Inputs& operator=(const Inputs&) = delete;
    ~Inputs() {
        for (auto* s : items) {
            release_ServiceInput(s);
        }
    }
    Inputs& add(const wchar_t* service, std::vector<ParameterInput*> params = {}) {
        auto* s = zeroed<ServiceInput>();
        s->service = duplicate_WString(service);
        if (!params.empty()) {
            s->parameters = static_cast<ParameterInput**>(
                allocate_Memory(params.size() * sizeof(ParameterInput*)));
            std::copy(params.begin(), params.end(), s->parameters);
            s->parameterCount = static_cast<uint32_t>(params.size());
        }
        items.push_back(s);
        return *this;
    }
    Inputs& raw(const Bytes& bytes) {
        add(L"");
        items.back()->data = static_cast<uint8_t*>(allocate_Memory(bytes.size()));
        std::memcpy(items.back()->data, bytes.data(), bytes.size());
        items.back()->dataLength = static_cast<uint32_t>(bytes.size());
        return *this;
    }
    ServiceInput** list() { return items.data(); }
    uint32_t count() const { return static_cast<uint32_t>(items.size()); }
};

Bytes bytesOf(const uint8_t* data, uint32_t length) {
    return data == nullptr ? Bytes{} : Bytes(data, data + length);
}

Bytes requestOf(const ServiceResult& r) {
    return r.request ? bytesOf(r.request->data, r.request->dataLength) : Bytes{};
}

Bytes responseOf(const ServiceResult& r) {
    return r.responseCount == 0 ? Bytes{}
                                : bytesOf(r.responses[0]->data, r.responses[0]->dataLength);
}

// "name=value" or "name{child,child}" for a decoded parameter tree.
std::wstring shape(ParameterResult** list, uint32_t count) {
    std::wstring out;
    for (uint32_t i = 0; i < count; ++i) {
        const ParameterResult& p = *list[i];
        out += (i == 0 ? L"" : L",") + std::wstring(p.itemText1);
        out += p.childCount > 0 ? L"{" + shape(p.children, p.childCount) + L"}"
                                : L"=" + std::wstring(p.text1);
    }
    return out;
}

std::wstring responseShape(const ServiceResult& r) {
    return r.responseCount == 0 ? L"<none>"
                                : shape(r.responses[0]->parameters, r.responses[0]->parameterCount);
}

class ServicesTest : public EngineTest {
protected:
    // Runs `in` on `target` and returns its results; the call itself must succeed.
    std::unique_ptr<Results> run(Inputs& in, const wchar_t* target = L"ECM",
                                 bool inDefaultSession = false) {
        auto out = std::make_unique<Results>();
        ErrorSlot error;
        if (inDefaultSession) {
            kel_executeServiceInDefaultSession(api, target, in.list(), in.count(), &error,
                                               &out->items, &out->count);
        } else {
            kel_executeService(api, target, in.list(), in.count(), &error, &out->items,
                               &out->count);
        }
        EXPECT_FALSE(error) << (error ? error->code : 0);
        EXPECT_EQ(out->count, in.count()) << "one result per service";
        return out;
    }
    // One service; its result's status (0 positive, 1 negative, 2 silent, 3 not sent) and
    // its negative response code.
    std::pair<int32_t, int32_t> one(const wchar_t* service,
                                    std::vector<ParameterInput*> params = {}) {
        Inputs in;
        in.add(service, std::move(params));
        const auto out = run(in);
        const ServiceResult& r = *out->items[0];
        return {r.status, r.error != nullptr ? r.error->subCode : 0};
    }
    void enterSession(const wchar_t* session) {
        ASSERT_EQ(one(L"DiagnosticSessionControl", {param(L"Session", session)}).first, 0);
    }
    uint64_t unlock() {
        const auto result = kel_test::fetchRecord(release_UnlockResult, [&](auto... out) {
            kel_unlockVehicle(api, L"ECM", nullptr, 0, out...);
        });
        const uint64_t value = result != nullptr ? result->value : 0;
        EXPECT_NE(value, 0U);
        return value;
    }
    Bytes seed(ErrorSlot& error, uint32_t level = 1) {
        uint8_t* bytes = nullptr;
        uint32_t length = 0;
        kel_createSeed(api, ecmAddress, level, &error, &bytes, &length);
        Bytes out = bytesOf(bytes, length);
        release_Memory(bytes);
        return out;
    }
};

TEST_F(ServicesTest, AParameterTreeReachesTheUnitWithItsShape) {
    unlock();
    Inputs in;
    in.add(L"RoutineControl_0203",
           {param(L"Settings", L"",
                  {param(L"Channel", L"", {param(L"Cylinder", L"2"), param(L"Mode", L"Hold")}),
                   param(L"Duration", L"250")}),
            param(L"Repeat", L"3")});
    const auto out = run(in);
    const ServiceResult& r = *out->items[0];
    ASSERT_EQ(r.status, 0) << r.text1;
    EXPECT_EQ(r.value1, 0x31);
    // The tree flattened in layout order: routine start, id, cylinder, mode, 25 * 10 ms, repeat.
    EXPECT_EQ(requestOf(r), (Bytes{0x31, 0x01, 0x02, 0x03, 0x02, 0x02, 0x00, 0x19, 0x03}));
    const std::wstring tree = L"RoutineControlType=01,RoutineIdentifier=0203,"
                              L"Settings{Channel{Cylinder=2,Mode=Hold},Duration=250},Repeat=3";
    EXPECT_EQ(shape(r.request->parameters, r.request->parameterCount), tree);
    // The unit reports the options it ran with, so the response reads back the same tree.
    EXPECT_EQ(responseShape(r), tree);
    const ParameterResult& duration = *r.responses[0]->parameters[2]->children[1];
    EXPECT_STREQ(duration.text2, L"ms");
    EXPECT_EQ(bytesOf(duration.data, duration.dataLength), (Bytes{0x00, 0x19}));

    // A value left out takes its default; one the layout lacks is refused before sending.
    Inputs more;
    more.add(L"RoutineControl_0203",
             {param(L"Settings", L"",
                    {param(L"Channel", L"", {param(L"Cylinder", L"1"), param(L"Mode", L"Pulse")}),
                     param(L"Duration", L"10")})});
    more.add(L"RoutineControl_0203", {param(L"Settings", L"", {param(L"Speed", L"1")})});
    more.add(L"RoutineControl_0203",
             {param(L"Settings", L"", {param(L"Channel", L"", {param(L"Mode", L"Spin")})})});
    const auto results = run(more);
    EXPECT_EQ(requestOf(*results->items[0]).back(), 0x01) << "Repeat's default";
    for (uint32_t i = 1; i < 3; ++i) {
        const ServiceResult& refused = *results->items[i];
        EXPECT_EQ(refused.status, 3);
        ASSERT_EQ(codeIn(refused.error), 1101);
        EXPECT_EQ(refused.request, nullptr) << "nothing was sent";
    }
    EXPECT_NE(std::wstring(results->items[1]->error->details).find(L"Settings.Speed"),
              std::wstring::npos);
}

TEST_F(ServicesTest, NegativeResponsesCarryTheirBytes) {
    Inputs in;
    in.add(L"WriteDataByIdentifier_F190", {param(L"VIN", L"WVWZZZ1KZ8W000001")});
    in.raw({0x22, 0x12, 0x34});
    in.raw({0xAA, 0x01});
    in.raw({0x22, 0xF1});
    in.add(L"NoSuchService");
    const auto out = run(in);

    const ServiceResult& write = *out->items[0];
    EXPECT_EQ(write.status, 1);
    EXPECT_STREQ(write.text1, L"serviceNotSupportedInActiveSession");
    EXPECT_EQ(responseOf(write), (Bytes{0x7F, 0x2E, 0x7F}));
    ASSERT_EQ(codeIn(write.error), 1102) << "the service's error is its response's";
    ASSERT_NE(write.error->negativeResponse, nullptr);
    EXPECT_EQ(write.error->negativeResponse->value1, 0x2EU) << "the service id";
    EXPECT_EQ(responseShape(write), L"SIDRQ=2E,NRC=serviceNotSupportedInActiveSession");

    EXPECT_EQ(responseOf(*out->items[1]), (Bytes{0x7F, 0x22, 0x31})) << "unknown identifier";
    EXPECT_EQ(responseOf(*out->items[2]), (Bytes{0x7F, 0xAA, 0x11})) << "unknown service id";
    EXPECT_EQ(responseOf(*out->items[3]), (Bytes{0x7F, 0x22, 0x13})) << "too short";
    EXPECT_EQ(out->items[4]->status, 3);
    EXPECT_EQ(out->items[4]->error->code, 1100);

    // A silent unit answers nothing: its per-target error, no response.
    Inputs silent;
    silent.add(L"TesterPresent");
    const auto acc = run(silent, L"ACC");
    EXPECT_EQ(acc->items[0]->status, 2);
    EXPECT_EQ(acc->items[0]->error->code, 1010);
    EXPECT_EQ(acc->items[0]->responseCount, 0U);
    Results none;
    EXPECT_ENGINE_ERROR(unknown, 1011,
                        kel_executeService(api, L"Nope", silent.list(), silent.count(), &unknown,
                                           &none.items, &none.count));
}

TEST_F(ServicesTest, SessionAndSecurityRulesHold) {
    EXPECT_EQ(one(L"WriteDataByIdentifier_0102", {param(L"DrivingMode", L"Sport")}),
              std::make_pair(1, 0x7F))
        << "only in the extended session";
    enterSession(L"Extended");
    EXPECT_EQ(one(L"WriteDataByIdentifier_0102", {param(L"DrivingMode", L"Sport")}).first, 0);
    EXPECT_EQ(one(L"WriteDataByIdentifier_F190", {param(L"VIN", L"WVWZZZ1KZ8W000001")}),
              std::make_pair(1, 0x33))
        << "needs security level 1";
    EXPECT_EQ(one(L"ReadDataByIdentifier_F190").first, 0) << "reading needs nothing";

    // The session falls back to default after 5 s without a request...
    kelsim_advanceClock(5001);
    EXPECT_EQ(one(L"WriteDataByIdentifier_0102", {param(L"DrivingMode", L"Eco")}).second, 0x7F);
    // ... unless something keeps it alive.
    enterSession(L"Extended");
    kelsim_advanceClock(4000);
    EXPECT_EQ(one(L"TesterPresent").first, 0);
    kelsim_advanceClock(4000);
    EXPECT_EQ(one(L"WriteDataByIdentifier_0102", {param(L"DrivingMode", L"Eco")}).first, 0);

    // In the default session whatever session the unit was in.
    Inputs write;
    write.add(L"WriteDataByIdentifier_0102", {param(L"DrivingMode", L"Off")});
    const auto inDefault = run(write, L"ECM", true);
    EXPECT_EQ(inDefault->items[0]->error->subCode, 0x7F);
    EXPECT_STREQ(inDefault->items[0]->itemText4, L"Default");

    // A reset, too, starts the unit again in the default session and locked.
    unlock();
    EXPECT_EQ(one(L"EcuReset", {param(L"ResetType", L"SoftReset")}).first, 0);
    EXPECT_EQ(one(L"WriteDataByIdentifier_0102", {param(L"DrivingMode", L"Eco")}).second, 0x7F);
    enterSession(L"Extended");
    EXPECT_EQ(one(L"WriteDataByIdentifier_F190", {param(L"VIN", L"WVWZZZ1KZ8W000001")}).second,
              0x33);
    EXPECT_EQ(one(L"DiagnosticSessionControl", {param(L"Session", L"Sleep")}).first, 3)
        << "a session the unit does not have is not sent";
}

TEST_F(ServicesTest, ThreeWrongKeysLockTheLevelForTheDelay) {
    ErrorSlot error;
    seed(error);
    ASSERT_TRUE(error) << "security access needs the extended session";
    EXPECT_EQ(error->code, 1102);
    EXPECT_EQ(error->subCode, 0x7F);
    EXPECT_EQ(error->negativeResponse, nullptr) << "a failed call carries no record of it";

    enterSession(L"Extended");
    const Bytes wrong = {0, 0, 0, 0};
    for (const int32_t expected : {0x35, 0x35, 0x36}) {
        ErrorSlot e;
        const Bytes s = seed(e);
        ASSERT_FALSE(e);
        ASSERT_EQ(s.size(), 4U);
        ASSERT_NE(s, Bytes(4, 0));
        ErrorSlot keyError;
        kel_sendKey(api, wrong.data(), 4, &keyError);
        EXPECT_EQ(keyError ? std::make_pair(keyError->code, keyError->subCode)
                           : std::make_pair(0, 0),
                  std::make_pair(1102, expected));
    }
    const auto seedRefusal = [&] {
        ErrorSlot e;
        seed(e);
        return e ? e->subCode : 0;
    };
    EXPECT_EQ(seedRefusal(), 0x37) << "requiredTimeDelayNotExpired";
    kelsim_advanceClock(9000);
    enterSession(L"Extended"); // keeps the session: it is not the lockout that ends
    EXPECT_EQ(seedRefusal(), 0x37);

    kelsim_advanceClock(1001);
    ErrorSlot fine;
    enterSession(L"Extended");
    const Bytes s = seed(fine);
    ASSERT_FALSE(fine);
    const Bytes key = keyFor(s.data(), ecmKeyMask);
    kel_sendKey(api, key.data(), 4, &fine);
    ASSERT_FALSE(fine) << fine->message;
    EXPECT_EQ(one(L"WriteDataByIdentifier_F190", {param(L"VIN", L"WVWZZZ1KZ8W000001")}).first, 0);
    EXPECT_EQ(seed(fine), Bytes(4, 0)) << "an unlocked level answers the zero seed";

    EXPECT_ENGINE_ERROR(noSeed, 1103, kel_sendKey(api, key.data(), 4, &noSeed));
    uint8_t* bytes = nullptr;
    uint32_t length = 0;
    EXPECT_ENGINE_ERROR(nowhere, 1011, kel_createSeed(api, 4242, 1, &nowhere, &bytes, &length));
}

TEST_F(ServicesTest, SecurityAccessByServicesUsesTheSameUnit) {
    enterSession(L"Extended");
    Inputs ask;
    ask.add(L"SecurityAccess_RequestSeed_Level1");
    const auto asked = run(ask);
    ASSERT_EQ(asked->items[0]->status, 0);
    const ResponseResult& r = *asked->items[0]->responses[0];
    ASSERT_EQ(r.parameterCount, 2U);
    EXPECT_STREQ(r.parameters[1]->itemText1, L"Seed");
    const Bytes key = keyFor(r.parameters[1]->data, ecmKeyMask);
    std::wstring hex;
    for (const uint8_t b : key) {
        hex += L"0123456789ABCDEF"[b >> 4];
        hex += L"0123456789ABCDEF"[b & 0xF];
    }
    EXPECT_EQ(one(L"SecurityAccess_SendKey_Level1", {param(L"Key", hex.c_str())}).first, 0);
    EXPECT_EQ(one(L"RoutineControl_0204").first, 0);
    Inputs run0203;
    run0203.raw({0x31, 0x01, 0x02, 0x03, 0x01, 0x01, 0x00, 0x01, 0x01});
    EXPECT_EQ(run(run0203)->items[0]->status, 0) << "the level is unlocked for raw requests too";
}

TEST_F(ServicesTest, AWrittenValueIsReadBackByServiceAndIdentification) {
    unlock();
    EXPECT_EQ(one(L"WriteDataByIdentifier_F190", {param(L"VIN", L"WVWZZZ1KZ8W999999")}).first, 0);
    Inputs read;
    read.add(L"ReadDataByIdentifier_F190");
    const auto byService = run(read);
    EXPECT_EQ(responseShape(*byService->items[0]), L"Identifier=F190,VIN=WVWZZZ1KZ8W999999");

    using Data = List<ReadDataResult, release_ReadDataResult_array>;
    wchar_t* ecm[] = {const_cast<wchar_t*>(L"ECM")};
    const auto values =
        fetch<Data>([&](auto... out) { kel_readIdentificationValues(api, ecm, 1, out...); });
    ASSERT_GE(values->items[0]->parameterCount, 1U);
    EXPECT_STREQ(values->items[0]->parameters[0]->text1, L"WVWZZZ1KZ8W999999");
    const wchar_t* ids[] = {L"VIN", L"IdleSpeedTarget"};
    const auto byName = fetch<Data>([&](auto... out) {
        kel_readDataByIdentifiers(api, L"ECM", const_cast<wchar_t**>(ids), 2, out...);
    });
    EXPECT_STREQ(byName->items[0]->parameters[0]->text1, L"WVWZZZ1KZ8W999999");
    EXPECT_STREQ(byName->items[0]->parameters[1]->text1, L"800");
    EXPECT_STREQ(byName->items[0]->parameters[1]->text2, L"1/min");

    // A scaled value: 900 1/min at 0.25 per bit is 3600; the unit refuses one out of range.
    Inputs idle;
    idle.add(L"WriteDataByIdentifier_0100", {param(L"IdleSpeedTarget", L"900")});
    idle.add(L"WriteDataByIdentifier_0100", {param(L"IdleSpeedTarget", L"1200")});
    idle.add(L"WriteDataByIdentifier_0100", {param(L"IdleSpeedTarget", L"fast")});
    idle.add(L"ReadDataByIdentifier_0100");
    const auto written = run(idle);
    EXPECT_EQ(requestOf(*written->items[0]), (Bytes{0x2E, 0x01, 0x00, 0x0E, 0x10}));
    EXPECT_EQ(responseOf(*written->items[1]), (Bytes{0x7F, 0x2E, 0x31})) << "above 1000";
    EXPECT_EQ(written->items[2]->error->code, 1101) << "not a number: not sent";
    EXPECT_EQ(responseShape(*written->items[3]), L"Identifier=0100,IdleSpeedTarget=900");

    // The fault memory is the same too: cleared by service, gone for readDtcs.
    EXPECT_EQ(one(L"ClearDiagnosticInformation").first, 0);
    const auto dtcs = fetch<List<ReadDtcResult, release_ReadDtcResult_array>>(
        [&](auto... out) { kel_readDtcs(api, ecm, 1, nullptr, out...); });
    EXPECT_EQ(dtcs->items[0]->dtcCount, 0U);
}

TEST_F(ServicesTest, AnUnlockHoldsTheSessionUntilItIsReleased) {
    ErrorSlot error;
    UnlockResult* result = nullptr;
    ASSERT_SUCCEEDS(ok, kel_unlockVehicle(api, L"ECM", nullptr, 0, &ok, &result));
    ASSERT_NE(result, nullptr);
    const uint64_t value = result->value;
    EXPECT_NE(value, 0U);
    ASSERT_EQ(result->serviceCount, 3U) << "session, seed, key";
    EXPECT_EQ(requestOf(*result->services[0]), (Bytes{0x10, 0x03}));
    EXPECT_EQ(responseOf(*result->services[2]), (Bytes{0x67, 0x02}));
    release_UnlockResult(result);

    kelsim_advanceClock(60000);
    EXPECT_EQ(one(L"WriteDataByIdentifier_F190", {param(L"VIN", L"WVWZZZ1KZ8W000002")}).first, 0)
        << "no timeout while unlocked";
    ASSERT_SUCCEEDS(ok, kel_releaseVehicleUnlock(api, value, &ok));
    EXPECT_EQ(one(L"WriteDataByIdentifier_F190", {param(L"VIN", L"WVWZZZ1KZ8W000003")}).second,
              0x7F)
        << "released: back in the default session";
    EXPECT_ENGINE_ERROR(twice, 1104, kel_releaseVehicleUnlock(api, value, &twice));

    // With services given, those run; a failing one gives no unlock.
    Inputs given;
    given.add(L"DiagnosticSessionControl", {param(L"Session", L"Extended")});
    given.add(L"WriteDataByIdentifier_F190", {param(L"VIN", L"WVWZZZ1KZ8W000004")});
    UnlockResult* failed = nullptr;
    ASSERT_SUCCEEDS(ok, kel_unlockVehicle(api, L"ECM", given.list(), given.count(), &ok, &failed));
    ASSERT_NE(failed, nullptr);
    EXPECT_EQ(failed->value, 0U);
    ASSERT_EQ(failed->serviceCount, 2U);
    EXPECT_EQ(failed->services[1]->error->subCode, 0x33);
    release_UnlockResult(failed);
}

TEST_F(ServicesTest, DescriptionsDescribeTheCatalogueThatRuns) {
    const auto infos = [&](const wchar_t* pattern, std::vector<const wchar_t*> names, int32_t sid) {
        return fetch<ServiceInfos>([&](auto... out) {
            kel_getServiceInfos(api, L"ECM", pattern, const_cast<wchar_t**>(names.data()),
                                static_cast<uint32_t>(names.size()), sid, out...);
        });
    };
    const auto writes = infos(L"WriteDataByIdentifier_*", {}, 0);
    ASSERT_EQ(writes->count, 3U) << "F190, 0100, 0102";
    const ServiceInfo& idle = *writes->items[1];
    EXPECT_EQ(idle.flag, 0) << "not allowed in the default session";
    EXPECT_EQ(idle.values[0], 0x2EU);
    EXPECT_EQ(idle.values[1], 1U) << "security level";
    ASSERT_EQ(idle.itemCount, 1U);
    EXPECT_STREQ(idle.items[0]->itemText1, L"Extended");
    ASSERT_EQ(idle.parameterCount, 2U);
    const ParameterInfo& speed = *idle.parameters[1];
    EXPECT_STREQ(speed.text2, L"1/min");
    EXPECT_EQ(speed.value1, 3) << "byte position";
    EXPECT_EQ(speed.value2, 2) << "byte length";
    ASSERT_NE(speed.constraint1, nullptr);
    ASSERT_EQ(speed.constraint1->scaleCount, 1U);
    EXPECT_STREQ(speed.constraint1->scales[0]->text1, L"600");
    EXPECT_STREQ(speed.constraint1->scales[0]->text2, L"1000");
    ASSERT_NE(speed.unit, nullptr);
    EXPECT_EQ(static_cast<int32_t>(speed.unit->values[2]), -1) << "per second";
    EXPECT_EQ(idle.responseCount, 2U);

    // The described limits are the unit's: within them accepted, beyond refused.
    unlock();
    EXPECT_EQ(one(L"WriteDataByIdentifier_0100", {param(L"IdleSpeedTarget", L"1000")}).first, 0);
    EXPECT_EQ(one(L"WriteDataByIdentifier_0100", {param(L"IdleSpeedTarget", L"1000.25")}).second,
              0x31);

    const auto picked = infos(L"", {L"TesterPresent", L"Missing"}, 0);
    ASSERT_EQ(picked->count, 2U);
    EXPECT_EQ(picked->items[0]->flag, 1);
    EXPECT_EQ(picked->items[1]->error->code, 1100);
    EXPECT_EQ(infos(L"", {}, 0x31)->count, 4U)
        << "InjectorTest, SelfTest, and the erase and check of programming";

    const auto actuators =
        fetch<Infos>([&](auto... out) { kel_getActuatorServiceInfos(api, L"ECM", L"", out...); });
    ASSERT_EQ(actuators->count, 1U);
    EXPECT_STREQ(actuators->items[0]->itemText1, L"RoutineControl_0203");
    const ParameterInfo& settings = *actuators->items[0]->children[2];
    ASSERT_EQ(settings.childCount, 2U);
    EXPECT_EQ(settings.children[0]->childCount, 2U) << "Channel: Cylinder and Mode";

    auto* config = zeroed<ParameterInfoConfig>();
    config->text1 = duplicate_WString(L"ECM");
    config->text2 = duplicate_WString(L"RoutineControl_0203");
    config->text3 = duplicate_WString(L"Settings.Channel.Mode");
    config->text4 = duplicate_WString(L"");
    const auto mode = kel_test::fetchRecord(
        release_ParameterInfo, [&](auto... out) { kel_getParameterInfo(api, config, out...); });
    ASSERT_NE(mode.get(), nullptr);
    ASSERT_EQ(mode->nameCount, 2U);
    EXPECT_STREQ(mode->names[1], L"Hold");
    ParameterInfo* none = nullptr;
    EXPECT_ENGINE_ERROR(null, 1101, kel_getParameterInfo(api, nullptr, &null, &none));

    const auto ident =
        fetch<Infos>([&](auto... out) { kel_getIdentificationValueInfos(api, L"ECM", out...); });
    ASSERT_EQ(ident->count, 5U);
    EXPECT_STREQ(ident->items[0]->itemText2, L"F190");
    EXPECT_EQ(ident->items[0]->value2, 17);
}

// Each result of an asynchronous call of services as "<service> <status>".
using ServiceReports = kel_test::AsyncReports<ServiceResult, release_ServiceResult_array>;
std::wstring serviceAndStatus(const ServiceResult& r) {
    return std::wstring(r.itemText1) + L" " + std::to_wstring(r.status);
}

TEST_F(ServicesTest, AsynchronousExecutionReportsPerService) {
    Inputs in;
    in.add(L"TesterPresent")
        .add(L"ReadDataByIdentifier_F190")
        .add(L"WriteDataByIdentifier_F190", {param(L"VIN", L"X")});
    ServiceReports all(serviceAndStatus);
    all.run([&](auto... call) {
        return kel_executeServiceInDefaultSessionAsync(api, L"ECM", in.list(), in.count(), call...);
    });
    EXPECT_EQ(all.texts,
              (std::vector<std::vector<std::wstring>>{{L"TesterPresent 0"},
                                                      {L"ReadDataByIdentifier_F190 0"},
                                                      {L"WriteDataByIdentifier_F190 3"}}))
        << "one report per service";
    EXPECT_EQ(all.errorCode, 0);

    ServiceReports never(serviceAndStatus);
    EXPECT_ENGINE_ERROR(unknown, 1011,
                        kel_executeServiceAsync(api, L"Nope", in.list(), in.count(), &unknown,
                                                ServiceReports::callback, &never));
}

} // namespace

// ---- cyclic services ----------------------------------------------------------------------

namespace {

// Polls `condition` until it holds or `limit` passes: cyclic jobs run on real time.
template <class Condition>
bool eventually(Condition condition, std::chrono::milliseconds limit = 10s) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (std::chrono::steady_clock::now() < deadline) {
        if (condition()) {
            return true;
        }
        std::this_thread::sleep_for(1ms);
    }
    return condition();
}

struct Cyclic {
    std::wstring service;
    uint64_t cycle = 0;
    int32_t status = 0;
};

class CyclicServicesConcurrency : public ServicesTest {
protected:
    uint64_t start(Inputs& in, uint32_t cycleMs = 1, const wchar_t* target = L"ECM") {
        ErrorSlot error;
        uint64_t job = 0;
        kel_startCyclicServices(api, target, in.list(), in.count(), cycleMs, &error, &job);
        EXPECT_FALSE(error) << (error ? error->code : 0);
        EXPECT_NE(job, 0U);
        return job;
    }
    std::vector<Cyclic> fetch(uint64_t job) {
        const auto out =
            kel_test::fetch<Results>([&](auto... o) { kel_getCyclicResults(api, job, o...); });
        std::vector<Cyclic> results;
        for (uint32_t i = 0; i < out->count; ++i) {
            const ServiceResult& r = *out->items[i];
            results.push_back(
                {r.itemText1, r.request != nullptr ? r.request->value2 : 0, r.status});
        }
        return results;
    }
    // Fetches until at least `count` results came together.
    std::vector<Cyclic> collect(uint64_t job, std::size_t count) {
        std::vector<Cyclic> all;
        EXPECT_TRUE(eventually([&] {
            const auto more = fetch(job);
            all.insert(all.end(), more.begin(), more.end());
            return all.size() >= count;
        }));
        return all;
    }
    uint64_t requestsSent() {
        return kel_test::fetchRecord(release_TransmissionInfo,
                                     [&](auto... out) { kel_getTransmissionInfo(api, out...); })
            ->value1;
    }
    int32_t failure(void (*call)(TarnApi*, uint64_t, KelError**), uint64_t job) {
        ErrorSlot error;
        call(api, job, &error);
        return error ? error->code : 0;
    }
};

TEST_F(CyclicServicesConcurrency, ResultsAccumulateInCycleOrderUntilTheJobStops) {
    Inputs in;
    in.add(L"TesterPresent").add(L"ReadDataByIdentifier_F405");
    const uint64_t job = start(in);
    const auto results = collect(job, 8);
    ASSERT_GE(results.size(), 8U);
    for (std::size_t i = 0; i < results.size(); ++i) {
        EXPECT_EQ(results[i].service, i % 2 == 0 ? L"TesterPresent" : L"ReadDataByIdentifier_F405");
        EXPECT_EQ(results[i].status, 0);
        EXPECT_EQ(results[i].cycle, i / 2 + 1) << "every cycle, none lost, in order";
    }

    ASSERT_EQ(failure(kel_stopCyclicServices, job), 0);
    // Once stopped, the job sends nothing more: the bus carries only what is sent here.
    const uint64_t before = requestsSent();
    for (int i = 0; i < 20; ++i) {
        one(L"TesterPresent");
    }
    EXPECT_EQ(requestsSent() - before, 20U);

    Results gone;
    EXPECT_ENGINE_ERROR(error, 1106,
                        kel_getCyclicResults(api, job, &error, &gone.items, &gone.count));
    EXPECT_EQ(failure(kel_stopCyclicServices, job), 1106);
}

TEST_F(CyclicServicesConcurrency, PastTheBoundTheOldestResultsGo) {
    ASSERT_EQ(kelsim_setVehicleJson(R"({"ecus": [{"name": "U", "address": 1}],
                                        "services": {"cyclicResults": 5}})"),
              0);
    Inputs in;
    in.add(L"TesterPresent");
    const uint64_t sent = requestsSent();
    const uint64_t job = start(in, 1, L"U");
    // The job stores a cycle's result before it sends the next cycle's request, so once the
    // 13th request is on the bus, the 12th result is stored.
    ASSERT_TRUE(eventually([&] { return requestsSent() - sent >= 13; }));
    const auto kept = fetch(job);
    ASSERT_EQ(kept.size(), 5U);
    EXPECT_GE(kept.back().cycle, 12U);
    for (std::size_t i = 1; i < kept.size(); ++i) {
        EXPECT_EQ(kept[i].cycle, kept[i - 1].cycle + 1) << "the newest, together";
    }
    EXPECT_EQ(failure(kel_stopCyclicServices, job), 0);
    EXPECT_EQ(kelsim_setVehicleJson(R"({"ecus": [], "services": {"cyclicResults": 0}})"), -1);
}

TEST_F(CyclicServicesConcurrency, AnUpdateReplacesTheServicesFromTheNextCycle) {
    Inputs first;
    first.add(L"TesterPresent");
    const uint64_t job = start(first);
    ASSERT_FALSE(collect(job, 1).empty());

    Inputs second;
    second.add(L"ReadDataByIdentifier_F190").add(L"NoSuchService");
    ASSERT_SUCCEEDS(ok, kel_updateCyclicServices(api, job, second.list(), second.count(), &ok));
    std::vector<Cyclic> seen;
    ASSERT_TRUE(eventually([&] {
        const auto more = fetch(job);
        seen.insert(seen.end(), more.begin(), more.end());
        return !seen.empty() && seen.back().service == L"NoSuchService";
    }));
    uint64_t firstUpdated = 0;
    for (const auto& r : seen) {
        if (r.service == L"TesterPresent") {
            EXPECT_EQ(firstUpdated, 0U) << "no old service after the new ones began";
        } else if (firstUpdated == 0) {
            firstUpdated = r.cycle;
        }
    }
    EXPECT_EQ(seen.back().status, 3) << "an unknown service is reported, not sent, each cycle";
    EXPECT_EQ(failure(kel_stopCyclicServices, job), 0);

    EXPECT_ENGINE_ERROR(
        stopped, 1106, kel_updateCyclicServices(api, job, second.list(), second.count(), &stopped));
}

TEST_F(CyclicServicesConcurrency, BadJobsAreRefusedAndARunningJobEndsWithItsVehicle) {
    Inputs in;
    in.add(L"TesterPresent");
    uint64_t job = 0;
    EXPECT_ENGINE_ERROR(
        zero, 1101, kel_startCyclicServices(api, L"ECM", in.list(), in.count(), 0, &zero, &job));
    EXPECT_ENGINE_ERROR(none, 1101,
                        kel_startCyclicServices(api, L"ECM", nullptr, 0, 10, &none, &job));
    EXPECT_ENGINE_ERROR(
        unknown, 1011,
        kel_startCyclicServices(api, L"Nope", in.list(), in.count(), 10, &unknown, &job));

    // Left running: the vehicle's end (kelsim_restart of the next test) joins the worker,
    // as a reload ends the job.
    job = start(in);
    ASSERT_FALSE(collect(job, 1).empty());
    kelsim_reloadVehicle();
    EXPECT_EQ(failure(kel_stopCyclicServices, job), 1106);
    start(in);
}

} // namespace
