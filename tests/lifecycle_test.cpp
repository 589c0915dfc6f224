// The lifecycle exports against the simulated engine: state, locks, handle and call
// duration.
#include "support.h"

namespace {

using kel_test::EngineTest;
using kel_test::ErrorSlot;

using Lifecycle = EngineTest;

TEST_F(Lifecycle, InitializeAndEndChangeTheStateNotTheHandle) {
    ErrorSlot error;
    uint64_t handle = 0;
    kel_getHandle(api, &error, &handle);
    EXPECT_NE(handle, 0U);
    int32_t state = -1;
    kel_getState(api, &error, &state);
    EXPECT_EQ(state, 1);
    kel_end(api, &error);
    kel_getState(api, &error, &state);
    EXPECT_EQ(state, 2);
    EXPECT_FALSE(error);
    uint64_t same = 0;
    kel_getHandle(api, &error, &same);
    EXPECT_EQ(same, handle);

    uint64_t lockId = 0;
    kel_lock(api, &error, &lockId);
    ASSERT_TRUE(error) << "an ended engine cannot be locked";
    EXPECT_EQ(error->code, 1001);
}

TEST_F(Lifecycle, LockIssuesTheIdThatUnlockChecks) {
    ErrorSlot error;
    uint64_t lockId = 0;
    bool locked = true;
    kel_isLocked(api, &error, &locked);
    EXPECT_FALSE(locked);
    kel_lock(api, &error, &lockId);
    ASSERT_FALSE(error);
    EXPECT_NE(lockId, 0U);
    kel_isLocked(api, &error, &locked);
    EXPECT_TRUE(locked);

    uint64_t second = 0;
    kel_lock(api, &error, &second);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code, 1002);
    release_KelError(error.error);
    error.error = nullptr;

    kel_unlock(api, lockId + 1, &error);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code, 1004);
    release_KelError(error.error);
    error.error = nullptr;

    kel_unlock(api, lockId, &error);
    EXPECT_FALSE(error);
    kel_isLocked(api, &error, &locked);
    EXPECT_FALSE(locked);
}

TEST_F(Lifecycle, TheDescriptionSetsTheFirstLockIdAndAReloadStartsThereAgain) {
    ASSERT_EQ(kelsim_setVehicleJson(R"({"ecus": [], "lifecycle": {"firstLockId": 77}})"), 0);
    ErrorSlot error;
    uint64_t first = 0;
    uint64_t second = 0;
    kel_lock(api, &error, &first);
    kel_unlock(api, first, &error);
    kel_lock(api, &error, &second);
    kel_unlock(api, second, &error);
    ASSERT_FALSE(error);
    EXPECT_EQ(first, 77U);
    EXPECT_EQ(second, 78U);

    kelsim_reloadVehicle();
    uint64_t again = 0;
    kel_lock(api, &error, &again);
    ASSERT_FALSE(error);
    EXPECT_EQ(again, 77U);

    EXPECT_EQ(kelsim_setVehicleJson(R"({"ecus": [], "lifecycle": {"firstLockId": 0}})"), -1)
        << "0 means not locked";
    EXPECT_EQ(kelsim_setVehicleJson(R"({"ecus": [], "lifecycle": {"firstLockId": -5}})"), -1);
}

TEST_F(Lifecycle, BreakLockFreesTheLock) {
    ErrorSlot error;
    uint64_t lockId = 0;
    kel_lock(api, &error, &lockId);
    kel_breakLock(api, &error);
    bool locked = true;
    kel_isLocked(api, &error, &locked);
    EXPECT_FALSE(locked);
    kel_unlock(api, lockId, &error);
    ASSERT_TRUE(error) << "the broken lock's id is no longer valid";
    EXPECT_EQ(error->code, 1003);
}

TEST_F(Lifecycle, CallDurationMeasuresThePreviousCall) {
    kelsim_setDelay("isLocked", 30);
    ErrorSlot error;
    bool locked = false;
    kel_isLocked(api, &error, &locked);
    uint64_t micros = 0;
    kel_getCallDuration(api, &error, &micros);
    EXPECT_GE(micros, 30000U) << "isLocked waited 30 ms";
    kel_getCallDuration(api, &error, &micros);
    EXPECT_LT(micros, 30000U) << "now the previous call was getCallDuration itself";
    EXPECT_FALSE(error);
}

} // namespace
