// Reading and clearing DTCs through the exports, against the bundled default vehicle:
// the records' conversion (trees, special data groups, the alias record), the inputs
// that reach the engine, and the fault memory's behaviour.
#include "support.h"

#include <OTXStream.h>
#include <algorithm>
#include <atomic>
#include <convert.h>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

using kel_test::EngineTest;
using kel_test::ErrorSlot;
using kel_test::lastArguments;
using kel_test::List;

using DtcLists = List<ReadDtcResult, release_ReadDtcResult_array>;
using ClearLists = List<ClearDtcResult, release_ClearDtcResult_array>;

DtcReadConfig* config(int32_t mask, bool snapshot, bool extended, bool special) {
    auto* c = static_cast<DtcReadConfig*>(allocate_Memory(sizeof(DtcReadConfig)));
    c->value = mask;
    c->flag1 = snapshot ? 1 : 0;
    c->flag2 = extended ? 1 : 0;
    c->flag3 = special ? 1 : 0;
    return c;
}

std::vector<std::wstring> codesOf(const ReadDtcResult& r) {
    std::vector<std::wstring> out;
    for (uint32_t i = 0; i < r.dtcCount; ++i) {
        out.emplace_back(r.dtcs[i]->text1);
    }
    return out;
}

const ReadDtcResult* find(const DtcLists& list, const wchar_t* target) {
    for (uint32_t i = 0; i < list.count; ++i) {
        if (std::wstring(list.items[i]->target) == target) {
            return list.items[i];
        }
    }
    return nullptr;
}

using Dtcs = EngineTest;

TEST_F(Dtcs, ReadGivesTheStoredDtcsWithTheirTrees) {
    ErrorSlot error;
    DtcLists out;
    const wchar_t* names[] = {L"ECM", L"GW"};
    kel_readDtcs(api, const_cast<wchar_t**>(names), 2, nullptr, &error, &out.items, &out.count);
    ASSERT_FALSE(error);
    ASSERT_EQ(out.count, 2U);
    const ReadDtcResult& ecm = *out.items[0];
    EXPECT_STREQ(ecm.target, L"ECM");
    EXPECT_EQ(ecm.error, nullptr);
    EXPECT_EQ(codesOf(ecm), (std::vector<std::wstring>{L"P0301", L"P2463"}));
    EXPECT_EQ(ecm.value, 2) << "a stored-DTC count, which only readDtcs has";

    const DtcResult& misfire = *ecm.dtcs[0];
    EXPECT_EQ(misfire.code, 0x030100) << "SAE code then failure type";
    EXPECT_STREQ(misfire.text2, L"Cylinder 1 misfire detected");
    EXPECT_EQ(misfire.value1, 0x2F);
    EXPECT_STREQ(misfire.text3, L"ECM");
    EXPECT_STREQ(misfire.text4, L"Irregular combustion");
    EXPECT_EQ(misfire.value2, 2);

    // Snapshot data: a tree whose structured member carries its children.
    ASSERT_EQ(misfire.parameterCount1, 3U);
    const ParameterResult& speed = *misfire.parameters1[0];
    EXPECT_STREQ(speed.itemText1, L"EngineSpeed");
    EXPECT_STREQ(speed.itemText2, L"Engine speed");
    EXPECT_STREQ(speed.itemText3, L"") << "empty engine strings are allocated empty strings";
    EXPECT_STREQ(speed.text1, L"812");
    EXPECT_STREQ(speed.text2, L"1/min");
    ASSERT_EQ(speed.dataLength, 2U);
    EXPECT_EQ(speed.data[0], 0x03);
    EXPECT_EQ(speed.data[1], 0x2C);
    EXPECT_EQ(speed.children, nullptr);
    EXPECT_EQ(speed.childCount, 0U);
    EXPECT_EQ(speed.error, nullptr);
    const ParameterResult& environment = *misfire.parameters1[2];
    EXPECT_EQ(environment.data, nullptr) << "no raw bytes: NULL and 0";
    EXPECT_EQ(environment.dataLength, 0U);
    ASSERT_EQ(environment.childCount, 2U);
    EXPECT_STREQ(environment.children[1]->itemText2, L"Supply voltage");
    EXPECT_EQ(environment.children[0]->dataLength, 3U);

    ASSERT_EQ(misfire.parameterCount2, 2U);
    EXPECT_STREQ(misfire.parameters2[0]->itemText1, L"OccurrenceCounter");

    // Special data groups hand out their SpecialData entries as NamedItem records.
    ASSERT_EQ(misfire.specialDataGroupCount, 2U);
    ASSERT_EQ(misfire.specialDataGroups[0]->itemCount, 2U);
    const NamedItem& count = *misfire.specialDataGroups[0]->items[0];
    EXPECT_STREQ(count.itemText1, L"Misfire count");
    EXPECT_STREQ(count.itemText2, L"23");
    EXPECT_STREQ(count.itemText4, L"");
    EXPECT_STREQ(misfire.specialDataGroups[1]->items[0]->itemText3, L"km");

    const DtcResult& soot = *ecm.dtcs[1];
    EXPECT_EQ(soot.specialDataGroups, nullptr) << "an empty list is NULL with count 0";
    EXPECT_EQ(soot.specialDataGroupCount, 0U);

    EXPECT_EQ(codesOf(*out.items[1]), (std::vector<std::wstring>{L"U0121"}));
}

TEST_F(Dtcs, ConfigReachesTheEngineAndIsConsumed) {
    ErrorSlot error;
    DtcLists out;
    const wchar_t* names[] = {L"ECM"};
    // Under ASan a config that the export did not free is reported as a leak.
    kel_readDtcs(api, const_cast<wchar_t**>(names), 1, config(0x01, true, false, false), &error,
                 &out.items, &out.count);
    ASSERT_FALSE(error);
    EXPECT_EQ(lastArguments("readDtcs"), R"([["ECM"],{"value":1,"flag1":1,"flag2":0,"flag3":0}])");
    ASSERT_EQ(out.count, 1U);
    EXPECT_EQ(codesOf(*out.items[0]), (std::vector<std::wstring>{L"P0301"}))
        << "status mask 0x01 keeps the DTC whose test fails now";
    EXPECT_EQ(out.items[0]->dtcs[0]->parameterCount1, 3U);
    EXPECT_EQ(out.items[0]->dtcs[0]->parameters2, nullptr) << "extended data not asked for";
    EXPECT_EQ(out.items[0]->dtcs[0]->specialDataGroups, nullptr);
}

TEST_F(Dtcs, ConsumedConfigIsFreedWhenTheEngineFails) {
    kelsim_failNext("readDtcs", 1, 77, 0, L"scripted", nullptr);
    ErrorSlot error;
    ReadDtcResult** items = reinterpret_cast<ReadDtcResult**>(0x1);
    uint32_t count = 99;
    const wchar_t* names[] = {L"ECM"};
    kel_readDtcs(api, const_cast<wchar_t**>(names), 1, config(0, true, true, true), &error, &items,
                 &count);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code, 77);
    EXPECT_EQ(items, reinterpret_cast<ReadDtcResult**>(0x1)) << "outputs untouched";
    EXPECT_EQ(count, 99U);

    kelsim_failNext("readSupportedDtcsAsync", 1, 78, 0, L"scripted", nullptr);
    ErrorSlot asyncError;
    const uint64_t id =
        kel_readSupportedDtcsAsync(api, const_cast<wchar_t**>(names), 1,
                                   config(0, false, false, false), &asyncError, nullptr, nullptr);
    EXPECT_EQ(id, 0U);
    ASSERT_TRUE(asyncError);
    EXPECT_EQ(asyncError->code, 78);
}

TEST_F(Dtcs, NullConfigAndEmptyTargetListReadEverything) {
    ErrorSlot error;
    DtcLists out;
    kel_readDtcs(api, nullptr, 0, nullptr, &error, &out.items, &out.count);
    ASSERT_FALSE(error);
    EXPECT_EQ(lastArguments("readDtcs"), "[[],null]");
    ASSERT_EQ(out.count, 6U);
    const ReadDtcResult* acc = find(out, L"ACC");
    ASSERT_NE(acc, nullptr);
    ASSERT_NE(acc->error, nullptr) << "the silent ECU fails on its own; the call succeeds";
    EXPECT_EQ(acc->error->code, 1010);
    ASSERT_NE(acc->error->mvciError, nullptr);
    EXPECT_STREQ(acc->error->mvciError->codeText, L"PDU_ERR_EVT_NOT_RESPONDING");
    EXPECT_EQ(acc->error->negativeResponse, nullptr);
    EXPECT_EQ(acc->dtcs, nullptr);
    EXPECT_EQ(acc->dtcCount, 0U);
    EXPECT_NE(acc->status, 0);
}

TEST_F(Dtcs, SupportedDtcsListEveryCodeAndLeaveValueZero) {
    ErrorSlot error;
    DtcLists out;
    const wchar_t* names[] = {L"ECM", L"Nope"};
    kel_readSupportedDtcs(api, const_cast<wchar_t**>(names), 2, config(0x01, false, false, false),
                          &error, &out.items, &out.count);
    ASSERT_FALSE(error);
    ASSERT_EQ(out.count, 2U);
    // P0602 comes with the ECM's programming: stored while an update is incomplete.
    EXPECT_EQ(codesOf(*out.items[0]),
              (std::vector<std::wstring>{L"P0301", L"P2463", L"P0087", L"P0401", L"P0602"}));
    EXPECT_EQ(out.items[0]->value, 0) << "SupportedDtcResult has no such member";
    EXPECT_EQ(out.items[0]->status, 0);
    ASSERT_NE(out.items[1]->error, nullptr);
    EXPECT_EQ(out.items[1]->error->code, 1011);
    EXPECT_STREQ(out.items[1]->target, L"Nope");
    EXPECT_EQ(out.items[1]->value, 0);
}

TEST_F(Dtcs, ClearAllEmptiesTheFaultMemoryOfTheGivenTargets) {
    ErrorSlot error;
    ClearLists cleared;
    const wchar_t* names[] = {L"ECM", L"ACC"};
    kel_clearAllDtcs(api, const_cast<wchar_t**>(names), 2, &error, &cleared.items, &cleared.count);
    ASSERT_FALSE(error);
    ASSERT_EQ(cleared.count, 2U);
    EXPECT_STREQ(cleared.items[0]->target, L"ECM");
    EXPECT_EQ(cleared.items[0]->status, 0);
    EXPECT_EQ(cleared.items[0]->error, nullptr);
    ASSERT_NE(cleared.items[1]->error, nullptr);
    EXPECT_EQ(cleared.items[1]->error->code, 1010);

    DtcLists after;
    kel_readDtcs(api, nullptr, 0, nullptr, &error, &after.items, &after.count);
    ASSERT_FALSE(error);
    EXPECT_EQ(find(after, L"ECM")->dtcCount, 0U);
    EXPECT_EQ(find(after, L"ECM")->dtcs, nullptr);
    EXPECT_EQ(find(after, L"TCM")->dtcCount, 1U) << "other targets keep their DTCs";

    DtcLists supported;
    kel_readSupportedDtcs(api, nullptr, 0, nullptr, &error, &supported.items, &supported.count);
    EXPECT_EQ(find(supported, L"ECM")->dtcCount, 5U)
        << "clearing does not change what is supported";
}

TEST_F(Dtcs, ClearSpecificRemovesOnlyTheGivenCodes) {
    ErrorSlot error;
    ClearLists cleared;
    const uint32_t codes[] = {0x030100, 0x123456};
    kel_clearSpecificDtcs(api, L"ECM", codes, 2, &error, &cleared.items, &cleared.count);
    ASSERT_FALSE(error);
    EXPECT_EQ(lastArguments("clearSpecificDtcs"), R"(["ECM",[196864,1193046]])");
    ASSERT_EQ(cleared.count, 1U);
    EXPECT_EQ(cleared.items[0]->error, nullptr);

    DtcLists after;
    const wchar_t* names[] = {L"ECM"};
    kel_readDtcs(api, const_cast<wchar_t**>(names), 1, nullptr, &error, &after.items, &after.count);
    EXPECT_EQ(codesOf(*after.items[0]), (std::vector<std::wstring>{L"P2463"}));

    ClearLists none;
    kel_clearSpecificDtcs(api, L"ECM", nullptr, 0, &error, &none.items, &none.count);
    ASSERT_FALSE(error);
    EXPECT_EQ(lastArguments("clearSpecificDtcs"), R"(["ECM",[]])") << "count 0: an empty list";
}

TEST_F(Dtcs, ReleasingAnArrayWithNullEntriesIsSafe) {
    ErrorSlot error;
    DtcLists out;
    kel_readDtcs(api, nullptr, 0, nullptr, &error, &out.items, &out.count);
    ASSERT_GE(out.count, 2U);
    release_ReadDtcResult(out.items[1]);
    out.items[1] = nullptr;
    release_DtcReadConfig(nullptr);
    release_ReadDtcResult_array(nullptr, 5);
}

// ---- the same read through kel_call and py_call ----
// The C export's records, turned back into engine records and streamed, must give the
// bytes the dispatchers hand out: the three ways in carry the same data.

std::vector<uint8_t> streamed(ReadDtcResult** items, uint32_t count) {
    const auto engine = kel::listFromC(items, count);
    kel::OTXStream out(true, false, true);
    out.write(engine);
    return {out.buffer, out.buffer + out.position};
}

TEST_F(Dtcs, KelCallAndPyCallCarryWhatTheExportHandsOut) {
    // Targets ECM and ACC (which does not answer), all DTCs with snapshot data.
    ErrorSlot error;
    DtcLists exported;
    wchar_t* targets[] = {const_cast<wchar_t*>(L"ECM"), const_cast<wchar_t*>(L"ACC")};
    kel_readDtcs(api, targets, 2, config(0xFF, true, true, true), &error, &exported.items,
                 &exported.count);
    ASSERT_FALSE(error);
    const std::vector<uint8_t> expected = streamed(exported.items, exported.count);

    // kel_call 23: targets as a counted list of length-prefixed strings, then the
    // config's fields with no presence byte.
    kel::OTXStream otx(true, false, true);
    otx.write(std::vector<std::wstring>{L"ECM", L"ACC"}).write(int32_t{0xFF});
    otx.write(uint8_t{1}).write(uint8_t{1}).write(uint8_t{1});
    void* stream = nullptr;
    uint64_t size = 0;
    kel_call_checked(0, 23, otx.buffer, otx.position, &stream, &size);
    std::vector<uint8_t> otxResult(size);
    kel_call_result(stream, otxResult.data());
    ASSERT_FALSE(otxResult.empty());
    EXPECT_EQ(otxResult[0], 1);
    EXPECT_EQ(std::vector<uint8_t>(otxResult.begin() + 1, otxResult.end()), expected);

    // py_call 23: NUL-terminated strings, a presence byte before the config.
    std::vector<uint8_t> py = {2,   0, 0, 0,    'E', 'C', 'M', 0, 'A', 'C',
                               'C', 0, 1, 0xFF, 0,   0,   0,   1, 1,   1};
    uint32_t pySize = 0;
    void* buffer = nullptr;
    EXPECT_EQ(py_call_checked(api, 23, 0, py.data(), py.size(), &pySize, &buffer), 0);
    std::vector<uint8_t> pyResult(pySize);
    py_result(pyResult.data(), static_cast<int32_t>(pySize), buffer);
    EXPECT_EQ(pyResult, expected);
}

using VehicleConcurrency = EngineTest;

// The families share one vehicle, each under its own lock, with the control units and
// the event channels beneath them. Lock traffic, channel traffic, DTC reads and clears,
// session filters and reloads of the description run at once from the local engine
// object and a remote connection; every answer must be one that some order of the
// calls explains.
TEST_F(VehicleConcurrency, FamiliesShareOneVehicleFromManyThreads) {
    constexpr int rounds = 150;
    ErrorSlot error;
    uint64_t self = 0;
    kel_getHandle(api, &error, &self);
    TarnApi* remote = kel_getRemoteConnectionByHandle(self, &error);
    ASSERT_NE(remote, nullptr);

    std::atomic<int> failures{0};
    const auto check = [&](KelError* e) {
        if (e != nullptr) {
            ++failures;
            release_KelError(e);
        }
    };
    const wchar_t* ecm[] = {L"ECM"};
    std::vector<std::thread> threads;
    threads.emplace_back([&] { // Lifecycle, through the remote connection
        for (int i = 0; i < rounds; ++i) {
            KelError* e = nullptr;
            uint64_t lockId = 0;
            kel_lock(remote, &e, &lockId);
            if (e == nullptr) {
                kel_unlock(remote, lockId, &e);
            }
            check(e);
        }
    });
    threads.emplace_back([&] { // Events
        for (int i = 0; i < rounds; ++i) {
            KelError* e = nullptr;
            uint64_t channel = 0;
            kel_openEventChannel(remote, &e, &channel);
            if (e == nullptr) {
                kel_closeEventChannel(api, channel, &e);
            }
            check(e);
        }
    });
    threads.emplace_back([&] { // Diagnostics: the fault memory is whole or cleared
        for (int i = 0; i < rounds; ++i) {
            KelError* e = nullptr;
            DtcLists read;
            kel_readDtcs(api, const_cast<wchar_t**>(ecm), 1, nullptr, &e, &read.items, &read.count);
            check(e);
            if (read.count != 1 || (read.items[0]->dtcCount != 2 && read.items[0]->dtcCount != 0)) {
                ++failures;
            }
        }
    });
    threads.emplace_back([&] { // clears and reloads of the description
        for (int i = 0; i < rounds / 3; ++i) {
            KelError* e = nullptr;
            ClearLists cleared;
            kel_clearAllDtcs(remote, const_cast<wchar_t**>(ecm), 1, &e, &cleared.items,
                             &cleared.count);
            check(e);
            kelsim_reloadVehicle();
        }
    });
    threads.emplace_back([&] { // session filters: set, or gone with a reload
        auto* filter = static_cast<TargetFilter*>(allocate_Memory(sizeof(TargetFilter)));
        filter->pattern = duplicate_WString(L"E*");
        filter->flag = 0;
        filter->value = 0;
        for (int i = 0; i < rounds; ++i) {
            KelError* e = nullptr;
            kel_setSessionTargetFilters(api, &e, &filter, 1);
            check(e);
            e = nullptr;
            List<Target, release_Target_array> targets;
            kel_getFilteredTargets(remote, nullptr, 0, &e, &targets.items, &targets.count);
            check(e);
            if (targets.count != 2 && targets.count != 6) {
                ++failures;
            }
        }
        release_TargetFilter(filter);
    });
    for (auto& t : threads) {
        t.join();
    }
    releaseTarnApi(remote);
    EXPECT_EQ(failures.load(), 0);
}

} // namespace
