// Reading and clearing DTCs against the bundled default vehicle: what its fault memory
// holds, how the read config filters it, and what a clear changes. The records'
// conversion and the dispatchers are the conformance suite's.
#include "support.h"

#include <algorithm>
#include <atomic>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace kel_test;

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

std::unique_ptr<DtcLists> read(TarnApi* api, std::vector<const wchar_t*> names,
                               DtcReadConfig* filter = nullptr, bool supported = false) {
    auto* const call = supported ? kel_readSupportedDtcs : kel_readDtcs;
    return fetch<DtcLists>([&](auto... out) {
        call(api, const_cast<wchar_t**>(names.data()), static_cast<uint32_t>(names.size()), filter,
             out...);
    });
}

TEST_F(Dtcs, ReadGivesTheStoredDtcsWithTheirTrees) {
    const auto out = read(api, {L"ECM", L"GW"});
    ASSERT_EQ(out->count, 2U);
    const ReadDtcResult& ecm = *out->items[0];
    EXPECT_EQ(codesOf(ecm), (std::vector<std::wstring>{L"P0301", L"P2463"}));
    EXPECT_EQ(ecm.value, 2) << "a stored-DTC count, which only readDtcs has";
    const DtcResult& misfire = *ecm.dtcs[0];
    EXPECT_EQ(misfire.code, 0x030100) << "SAE code then failure type";
    EXPECT_EQ(misfire.value1, 0x2F);
    EXPECT_STREQ(misfire.text4, L"Irregular combustion");
    // Snapshot data is a tree; extended data and special data groups come along.
    ASSERT_EQ(misfire.parameterCount1, 3U);
    EXPECT_STREQ(misfire.parameters1[0]->text1, L"812");
    EXPECT_EQ(misfire.parameters1[2]->childCount, 2U);
    EXPECT_EQ(misfire.parameterCount2, 2U);
    ASSERT_EQ(misfire.specialDataGroupCount, 2U);
    EXPECT_STREQ(misfire.specialDataGroups[0]->items[0]->itemText2, L"23");
    EXPECT_EQ(ecm.dtcs[1]->specialDataGroupCount, 0U);
    EXPECT_EQ(codesOf(*out->items[1]), (std::vector<std::wstring>{L"U0121"}));

    // A config filters by status mask and leaves out the data not asked for.
    const auto masked = read(api, {L"ECM"}, config(0x01, true, false, false));
    ASSERT_EQ(masked->count, 1U);
    EXPECT_EQ(codesOf(*masked->items[0]), (std::vector<std::wstring>{L"P0301"}))
        << "status mask 0x01 keeps the DTC whose test fails now";
    EXPECT_EQ(masked->items[0]->dtcs[0]->parameterCount1, 3U);
    EXPECT_EQ(masked->items[0]->dtcs[0]->parameterCount2, 0U) << "extended data not asked for";
    EXPECT_EQ(masked->items[0]->dtcs[0]->specialDataGroupCount, 0U);

    // No targets: every unit; the silent one fails on its own and the call succeeds.
    const auto all = read(api, {});
    ASSERT_EQ(all->count, 6U);
    const ReadDtcResult* acc = find(*all, L"ACC");
    ASSERT_NE(acc, nullptr);
    ASSERT_EQ(codeIn(acc->error), 1010);
    ASSERT_NE(acc->error->mvciError, nullptr);
    EXPECT_STREQ(acc->error->mvciError->codeText, L"PDU_ERR_EVT_NOT_RESPONDING");
    EXPECT_EQ(acc->dtcCount, 0U);
    EXPECT_NE(acc->status, 0);

    // Supported DTCs list every code, the mask aside, and leave the count 0. P0602 comes
    // with the ECM's programming: stored while an update is incomplete.
    const auto supported = read(api, {L"ECM", L"Nope"}, config(0x01, false, false, false), true);
    ASSERT_EQ(supported->count, 2U);
    EXPECT_EQ(codesOf(*supported->items[0]),
              (std::vector<std::wstring>{L"P0301", L"P2463", L"P0087", L"P0401", L"P0602"}));
    EXPECT_EQ(supported->items[0]->status, 0);
    ASSERT_EQ(codeIn(supported->items[1]->error), 1011);
}

TEST_F(Dtcs, ClearsEmptyTheFaultMemoryOfTheGivenTargetsOrCodes) {
    const wchar_t* names[] = {L"ECM", L"ACC"};
    const auto cleared = fetch<ClearLists>(
        [&](auto... out) { kel_clearAllDtcs(api, const_cast<wchar_t**>(names), 2, out...); });
    ASSERT_EQ(cleared->count, 2U);
    EXPECT_STREQ(cleared->items[0]->target, L"ECM");
    EXPECT_EQ(cleared->items[0]->status, 0);
    EXPECT_EQ(cleared->items[0]->error, nullptr);
    ASSERT_EQ(codeIn(cleared->items[1]->error), 1010);

    const auto after = read(api, {});
    EXPECT_EQ(find(*after, L"ECM")->dtcCount, 0U);
    EXPECT_EQ(find(*after, L"ECM")->dtcs, nullptr);
    EXPECT_EQ(find(*after, L"TCM")->dtcCount, 1U) << "other targets keep their DTCs";
    EXPECT_EQ(find(*read(api, {}, nullptr, true), L"ECM")->dtcCount, 5U)
        << "clearing does not change what is supported";

    // A specific clear removes only the given codes; an unknown one is no error.
    kelsim_reloadVehicle();
    const uint32_t codes[] = {0x030100, 0x123456};
    const auto specific = fetch<ClearLists>(
        [&](auto... out) { kel_clearSpecificDtcs(api, L"ECM", codes, 2, out...); });
    ASSERT_EQ(specific->count, 1U);
    EXPECT_EQ(specific->items[0]->error, nullptr);
    EXPECT_EQ(codesOf(*read(api, {L"ECM"})->items[0]), (std::vector<std::wstring>{L"P2463"}));
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
    TarnApi* remote = kel_getRemoteConnectionByHandle(kel_test::handleOf(api), &error);
    ASSERT_NE(remote, nullptr);

    std::atomic<int> failures{0};
    std::vector<std::thread> threads;
    // Runs `round` `times` on a thread of its own; a round that fails, or whose answer no
    // order of the calls explains, is a failure.
    const auto spawn = [&](int times, auto round) {
        threads.emplace_back([&failures, times, round] {
            for (int i = 0; i < times; ++i) {
                ErrorSlot e;
                failures += round(&e) && !e ? 0 : 1;
            }
        });
    };
    wchar_t* ecm[] = {const_cast<wchar_t*>(L"ECM")};
    spawn(rounds, [&](KelError** e) { // Lifecycle, through the remote connection
        uint64_t lockId = 0;
        kel_lock(remote, e, &lockId);
        if (*e == nullptr) {
            kel_unlock(remote, lockId, e);
        }
        return true;
    });
    spawn(rounds, [&](KelError** e) { // Events
        uint64_t channel = 0;
        kel_openEventChannel(remote, e, &channel);
        if (*e == nullptr) {
            kel_closeEventChannel(api, channel, e);
        }
        return true;
    });
    spawn(rounds, [&](KelError** e) { // Diagnostics: the fault memory is whole or cleared
        DtcLists read;
        kel_readDtcs(api, ecm, 1, nullptr, e, &read.items, &read.count);
        return read.count == 1 && (read.items[0]->dtcCount == 2 || read.items[0]->dtcCount == 0);
    });
    spawn(rounds / 3, [&](KelError** e) { // clears and reloads of the description
        ClearLists cleared;
        kel_clearAllDtcs(remote, ecm, 1, e, &cleared.items, &cleared.count);
        kelsim_reloadVehicle();
        return true;
    });
    auto* filter = static_cast<TargetFilter*>(allocate_Memory(sizeof(TargetFilter)));
    filter->pattern = duplicate_WString(L"E*");
    filter->flag = 0;
    filter->value = 0;
    spawn(rounds, [&](KelError** e) { // session filters: set, or gone with a reload
        List<Target, release_Target_array> targets;
        kel_setSessionTargetFilters(api, e, &filter, 1);
        if (*e == nullptr) {
            kel_getFilteredTargets(remote, nullptr, 0, e, &targets.items, &targets.count);
        }
        return targets.count == 2 || targets.count == 6;
    });
    for (auto& t : threads) {
        t.join();
    }
    release_TargetFilter(filter);
    releaseTarnApi(remote);
    EXPECT_EQ(failures.load(), 0);
}

} // namespace
