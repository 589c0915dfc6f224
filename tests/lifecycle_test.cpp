// The lifecycle exports against the simulated engine: state, locks, handle and call
// duration.
#include "support.h"
#include "uds.h"

namespace {

using namespace kel_test;

class Lifecycle : public kel_test::EngineTest {
protected:
    int32_t state() {
        int32_t out = -1;
        EXPECT_ENGINE_ERROR(error, 0, kel_getState(api, &error, &out));
        return out;
    }
    bool locked() {
        bool out = false;
        EXPECT_ENGINE_ERROR(error, 0, kel_isLocked(api, &error, &out));
        return out;
    }
    uint64_t lock() {
        uint64_t id = 0;
        EXPECT_ENGINE_ERROR(error, 0, kel_lock(api, &error, &id));
        return id;
    }
};

TEST_F(Lifecycle, InitializeAndEndChangeTheStateNotTheHandle) {
    const uint64_t handle = handleOf(api);
    EXPECT_NE(handle, 0U);
    EXPECT_EQ(state(), 1);
    EXPECT_ENGINE_ERROR(error, 0, kel_end(api, &error));
    EXPECT_EQ(state(), 2);
    EXPECT_EQ(handleOf(api), handle);
    uint64_t lockId = 0;
    // An ended engine cannot be locked.
    EXPECT_ENGINE_ERROR(error, 1001, kel_lock(api, &error, &lockId));
}

TEST_F(Lifecycle, LockIssuesTheIdThatUnlockChecksAndBreakLockFrees) {
    EXPECT_FALSE(locked());
    const uint64_t lockId = lock();
    EXPECT_NE(lockId, 0U);
    EXPECT_TRUE(locked());
    uint64_t second = 0;
    EXPECT_ENGINE_ERROR(error, 1002, kel_lock(api, &error, &second));
    EXPECT_ENGINE_ERROR(error, 1004, kel_unlock(api, lockId + 1, &error));
    EXPECT_ENGINE_ERROR(error, 0, kel_unlock(api, lockId, &error));
    EXPECT_FALSE(locked());

    const uint64_t broken = lock();
    EXPECT_ENGINE_ERROR(error, 0, kel_breakLock(api, &error));
    EXPECT_FALSE(locked());
    // The broken lock's id is no longer valid.
    EXPECT_ENGINE_ERROR(error, 1003, kel_unlock(api, broken, &error));

    // The description sets the first lock id, and a reload starts there again.
    ASSERT_EQ(kelsim_setVehicleJson(R"({"ecus": [], "lifecycle": {"firstLockId": 77}})"), 0);
    for (const uint64_t expected : {77U, 78U}) {
        const uint64_t id = lock();
        EXPECT_EQ(id, expected);
        EXPECT_ENGINE_ERROR(error, 0, kel_unlock(api, id, &error));
    }
    kelsim_reloadVehicle();
    EXPECT_EQ(lock(), 77U);

    EXPECT_EQ(kelsim_setVehicleJson(R"({"ecus": [], "lifecycle": {"firstLockId": 0}})"), -1)
        << "0 means not locked";
    EXPECT_EQ(kelsim_setVehicleJson(R"({"ecus": [], "lifecycle": {"firstLockId": -5}})"), -1);
}

TEST_F(Lifecycle, CallDurationMeasuresThePreviousCall) {
    kelsim_setDelay("isLocked", 30);
    locked();
    uint64_t micros = 0;
    ErrorSlot error;
    kel_getCallDuration(api, &error, &micros);
    EXPECT_GE(micros, 30000U) << "isLocked waited 30 ms";
    kel_getCallDuration(api, &error, &micros);
    EXPECT_LT(micros, 30000U) << "now the previous call was getCallDuration itself";
    EXPECT_FALSE(error);
}

} // namespace
