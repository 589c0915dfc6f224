// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family Lifecycle: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using Lifecycle = kc::ConformanceTest;
using LifecycleByNumber = kc::ConformanceTest;
using LifecycleAdmission = kc::AdmissionTest;

// ---- initialize (position 2, number 2) ----

const kc::Case kInitializeCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct InitializeExport {
    static constexpr const char* operation = "initialize";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_initialize(api, error);
    }
};

TEST_F(Lifecycle, initialize_Exchange) { kc::exchange<InitializeExport>(api, kInitializeCases); }
TEST_F(Lifecycle, initialize_Failure) { kc::failure<InitializeExport>(api, kInitializeCases); }
TEST_F(LifecycleAdmission, initialize) {
    kc::admission<InitializeExport>(callers(), kInitializeCases, kc::Needs::Administrator);
}

const kc::Number kNumber2{2, "initialize", kInitializeCases};

TEST_F(LifecycleByNumber, n2_initialize_KelCall) { kc::kelCall(api, kNumber2); }
TEST_F(LifecycleByNumber, n2_initialize_PyCall) { kc::pyCall(api, kNumber2); }
TEST_F(LifecycleByNumber, n2_initialize_Failure) { kc::numberFailure(api, kNumber2); }

// ---- end (position 3, number 3) ----

const kc::Case kEndCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct EndExport {
    static constexpr const char* operation = "end";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_end(api, error);
    }
};

TEST_F(Lifecycle, end_Exchange) { kc::exchange<EndExport>(api, kEndCases); }
TEST_F(Lifecycle, end_Failure) { kc::failure<EndExport>(api, kEndCases); }
TEST_F(LifecycleAdmission, end) {
    kc::admission<EndExport>(callers(), kEndCases, kc::Needs::Operator);
}

const kc::Number kNumber3{3, "end", kEndCases};

TEST_F(LifecycleByNumber, n3_end_KelCall) { kc::kelCall(api, kNumber3); }
TEST_F(LifecycleByNumber, n3_end_PyCall) { kc::pyCall(api, kNumber3); }
TEST_F(LifecycleByNumber, n3_end_Failure) { kc::numberFailure(api, kNumber3); }

// ---- cancelAllAsyncCalls (position 43, number 128) ----

const kc::Case kCancelAllAsyncCallsCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct CancelAllAsyncCallsExport {
    static constexpr const char* operation = "cancelAllAsyncCalls";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_cancelAllAsyncCalls(api, error);
    }
};

TEST_F(Lifecycle, cancelAllAsyncCalls_Exchange) {
    kc::exchange<CancelAllAsyncCallsExport>(api, kCancelAllAsyncCallsCases);
}
TEST_F(Lifecycle, cancelAllAsyncCalls_Failure) {
    kc::failure<CancelAllAsyncCallsExport>(api, kCancelAllAsyncCallsCases);
}
TEST_F(LifecycleAdmission, cancelAllAsyncCalls) {
    kc::admission<CancelAllAsyncCallsExport>(callers(), kCancelAllAsyncCallsCases,
                                             kc::Needs::Administrator);
}

const kc::Number kNumber128{128, "cancelAllAsyncCalls", kCancelAllAsyncCallsCases};

TEST_F(LifecycleByNumber, n128_cancelAllAsyncCalls_KelCall) { kc::kelCall(api, kNumber128); }
TEST_F(LifecycleByNumber, n128_cancelAllAsyncCalls_PyCall) { kc::pyCall(api, kNumber128); }
TEST_F(LifecycleByNumber, n128_cancelAllAsyncCalls_Failure) { kc::numberFailure(api, kNumber128); }

// ---- cancelAsyncCalls (position 99, number 42) ----

const kc::Case kCancelAsyncCallsCases[] = {
    {"full", "[[9223372036854775809,18446744073709551615,0]]",
     "[[9223372036854775809,18446744073709551615,0]]", "null", nullptr,
     "030000000100000000000080ffffffffffffffff0000000000000000",
     "030000000100000000000080ffffffffffffffff0000000000000000",
     "[[9223372036854775809,18446744073709551615,0]]",
     "[[9223372036854775809,18446744073709551615,0]]", "01", "", 0},
    {"sparse", "[[]]", "[[]]", "null", nullptr, "00000000", "00000000", "[[]]", "[[]]", "01", "",
     0},
};

struct CancelAsyncCallsExport {
    static constexpr const char* operation = "cancelAsyncCalls";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Values<uint64_t> a0(in[0]);
        static_cast<void>(out);
        kel_cancelAsyncCalls(api, a0.data(), a0.count(), error);
    }
};

TEST_F(Lifecycle, cancelAsyncCalls_Exchange) {
    kc::exchange<CancelAsyncCallsExport>(api, kCancelAsyncCallsCases);
}
TEST_F(Lifecycle, cancelAsyncCalls_Failure) {
    kc::failure<CancelAsyncCallsExport>(api, kCancelAsyncCallsCases);
}
TEST_F(LifecycleAdmission, cancelAsyncCalls) {
    kc::admission<CancelAsyncCallsExport>(callers(), kCancelAsyncCallsCases, kc::Needs::Operator);
}

const kc::Number kNumber42{42, "cancelAsyncCalls", kCancelAsyncCallsCases};

TEST_F(LifecycleByNumber, n42_cancelAsyncCalls_KelCall) { kc::kelCall(api, kNumber42); }
TEST_F(LifecycleByNumber, n42_cancelAsyncCalls_PyCall) { kc::pyCall(api, kNumber42); }
TEST_F(LifecycleByNumber, n42_cancelAsyncCalls_Failure) { kc::numberFailure(api, kNumber42); }
TEST_F(LifecycleByNumber, n42_cancelAsyncCalls_ShortInput) { kc::shortInput(api, kNumber42); }

// ---- lock (position 115, number 147) ----

const kc::Case kLockCases[] = {
    {"full", "[]", "[]", "9223372036854775809", "9223372036854775809", "", "", "[]", "[]",
     "010100000000000080", "0100000000000080", 0},
};

struct LockExport {
    static constexpr const char* operation = "lock";
    using Result = kc::ValueResult<uint64_t>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_lock(api, error, &out.data);
    }
};

TEST_F(Lifecycle, lock_Exchange) { kc::exchange<LockExport>(api, kLockCases); }
TEST_F(Lifecycle, lock_Failure) { kc::failure<LockExport>(api, kLockCases); }
TEST_F(LifecycleAdmission, lock) {
    kc::admission<LockExport>(callers(), kLockCases, kc::Needs::Operator);
}

const kc::Number kNumber147{147, "lock", kLockCases};

TEST_F(LifecycleByNumber, n147_lock_KelCall) { kc::kelCall(api, kNumber147); }
TEST_F(LifecycleByNumber, n147_lock_PyCall) { kc::pyCall(api, kNumber147); }
TEST_F(LifecycleByNumber, n147_lock_Failure) { kc::numberFailure(api, kNumber147); }

// ---- unlock (position 116, number 148) ----

const kc::Case kUnlockCases[] = {
    {"full", "[9223372036854775809]", "[9223372036854775809]", "null", nullptr, "0100000000000080",
     "0100000000000080", "[9223372036854775809]", "[9223372036854775809]", "01", "", 0},
};

struct UnlockExport {
    static constexpr const char* operation = "unlock";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_unlock(api, kc::number<uint64_t>(in[0]), error);
    }
};

TEST_F(Lifecycle, unlock_Exchange) { kc::exchange<UnlockExport>(api, kUnlockCases); }
TEST_F(Lifecycle, unlock_Failure) { kc::failure<UnlockExport>(api, kUnlockCases); }
TEST_F(LifecycleAdmission, unlock) {
    kc::admission<UnlockExport>(callers(), kUnlockCases, kc::Needs::Operator);
}

const kc::Number kNumber148{148, "unlock", kUnlockCases};

TEST_F(LifecycleByNumber, n148_unlock_KelCall) { kc::kelCall(api, kNumber148); }
TEST_F(LifecycleByNumber, n148_unlock_PyCall) { kc::pyCall(api, kNumber148); }
TEST_F(LifecycleByNumber, n148_unlock_Failure) { kc::numberFailure(api, kNumber148); }
TEST_F(LifecycleByNumber, n148_unlock_ShortInput) { kc::shortInput(api, kNumber148); }

// ---- isLocked (position 117, number 149) ----

const kc::Case kIsLockedCases[] = {
    {"full", "[]", "[]", "true", "true", "", "", "[]", "[]", "0101", "01", 0},
};

struct IsLockedExport {
    static constexpr const char* operation = "isLocked";
    using Result = kc::ValueResult<bool>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_isLocked(api, error, &out.data);
    }
};

TEST_F(Lifecycle, isLocked_Exchange) { kc::exchange<IsLockedExport>(api, kIsLockedCases); }
TEST_F(Lifecycle, isLocked_Failure) { kc::failure<IsLockedExport>(api, kIsLockedCases); }
TEST_F(LifecycleAdmission, isLocked) {
    kc::admission<IsLockedExport>(callers(), kIsLockedCases, kc::Needs::Operator);
}

const kc::Number kNumber149{149, "isLocked", kIsLockedCases};

TEST_F(LifecycleByNumber, n149_isLocked_KelCall) { kc::kelCall(api, kNumber149); }
TEST_F(LifecycleByNumber, n149_isLocked_PyCall) { kc::pyCall(api, kNumber149); }
TEST_F(LifecycleByNumber, n149_isLocked_Failure) { kc::numberFailure(api, kNumber149); }

// ---- breakLock (position 118, number 150) ----

const kc::Case kBreakLockCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct BreakLockExport {
    static constexpr const char* operation = "breakLock";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_breakLock(api, error);
    }
};

TEST_F(Lifecycle, breakLock_Exchange) { kc::exchange<BreakLockExport>(api, kBreakLockCases); }
TEST_F(Lifecycle, breakLock_Failure) { kc::failure<BreakLockExport>(api, kBreakLockCases); }
TEST_F(LifecycleAdmission, breakLock) {
    kc::admission<BreakLockExport>(callers(), kBreakLockCases, kc::Needs::Administrator);
}

const kc::Number kNumber150{150, "breakLock", kBreakLockCases};

TEST_F(LifecycleByNumber, n150_breakLock_KelCall) { kc::kelCall(api, kNumber150); }
TEST_F(LifecycleByNumber, n150_breakLock_PyCall) { kc::pyCall(api, kNumber150); }
TEST_F(LifecycleByNumber, n150_breakLock_Failure) { kc::numberFailure(api, kNumber150); }

// ---- triggerAsyncCancels (position 227, number 260) ----

const kc::Case kTriggerAsyncCancelsCases[] = {
    {"full", "[[9223372036854775809,18446744073709551615,0]]",
     "[[9223372036854775809,18446744073709551615,0]]", "null", nullptr,
     "030000000100000000000080ffffffffffffffff0000000000000000",
     "030000000100000000000080ffffffffffffffff0000000000000000",
     "[[9223372036854775809,18446744073709551615,0]]",
     "[[9223372036854775809,18446744073709551615,0]]", "01", "", 0},
    {"sparse", "[[]]", "[[]]", "null", nullptr, "00000000", "00000000", "[[]]", "[[]]", "01", "",
     0},
};

struct TriggerAsyncCancelsExport {
    static constexpr const char* operation = "triggerAsyncCancels";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Values<uint64_t> a0(in[0]);
        static_cast<void>(out);
        kel_triggerAsyncCancels(api, a0.data(), a0.count(), error);
    }
};

TEST_F(Lifecycle, triggerAsyncCancels_Exchange) {
    kc::exchange<TriggerAsyncCancelsExport>(api, kTriggerAsyncCancelsCases);
}
TEST_F(Lifecycle, triggerAsyncCancels_Failure) {
    kc::failure<TriggerAsyncCancelsExport>(api, kTriggerAsyncCancelsCases);
}
TEST_F(LifecycleAdmission, triggerAsyncCancels) {
    kc::admission<TriggerAsyncCancelsExport>(callers(), kTriggerAsyncCancelsCases,
                                             kc::Needs::Operator);
}

const kc::Number kNumber260{260, "triggerAsyncCancels", kTriggerAsyncCancelsCases};

TEST_F(LifecycleByNumber, n260_triggerAsyncCancels_KelCall) { kc::kelCall(api, kNumber260); }
TEST_F(LifecycleByNumber, n260_triggerAsyncCancels_PyCall) { kc::pyCall(api, kNumber260); }
TEST_F(LifecycleByNumber, n260_triggerAsyncCancels_Failure) { kc::numberFailure(api, kNumber260); }
TEST_F(LifecycleByNumber, n260_triggerAsyncCancels_ShortInput) { kc::shortInput(api, kNumber260); }

// ---- getState (position 242, number 49) ----

const kc::Case kGetStateCases[] = {
    {"full", "[]", "[]", "-2147483648", "-2147483648", "", "", "[]", "[]", "0100000080", "00000080",
     -2147483648},
};

struct GetStateExport {
    static constexpr const char* operation = "getState";
    using Result = kc::ValueResult<int32_t>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getState(api, error, &out.data);
    }
};

TEST_F(Lifecycle, getState_Exchange) { kc::exchange<GetStateExport>(api, kGetStateCases); }
TEST_F(Lifecycle, getState_Failure) { kc::failure<GetStateExport>(api, kGetStateCases); }
TEST_F(LifecycleAdmission, getState) {
    kc::admission<GetStateExport>(callers(), kGetStateCases, kc::Needs::Operator);
}

const kc::Number kNumber49{49, "getState", kGetStateCases};

TEST_F(LifecycleByNumber, n49_getState_KelCall) { kc::kelCall(api, kNumber49); }
TEST_F(LifecycleByNumber, n49_getState_PyCall) { kc::pyCall(api, kNumber49); }
TEST_F(LifecycleByNumber, n49_getState_Failure) { kc::numberFailure(api, kNumber49); }

// ---- getHandle (position 254, number 61) ----

const kc::Case kGetHandleCases[] = {
    {"full", "[]", "[]", "9223372036854775809", "9223372036854775809", "", "", "[]", "[]",
     "010100000000000080", "0100000000000080", 0},
};

struct GetHandleExport {
    static constexpr const char* operation = "getHandle";
    using Result = kc::ValueResult<uint64_t>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getHandle(api, error, &out.data);
    }
};

TEST_F(Lifecycle, getHandle_Exchange) { kc::exchange<GetHandleExport>(api, kGetHandleCases); }
TEST_F(Lifecycle, getHandle_Failure) { kc::failure<GetHandleExport>(api, kGetHandleCases); }
TEST_F(LifecycleAdmission, getHandle) {
    kc::admission<GetHandleExport>(callers(), kGetHandleCases, kc::Needs::Anyone);
}

const kc::Number kNumber61{61, "getHandle", kGetHandleCases};

TEST_F(LifecycleByNumber, n61_getHandle_KelCall) { kc::kelCall(api, kNumber61); }
TEST_F(LifecycleByNumber, n61_getHandle_PyCall) { kc::pyCall(api, kNumber61); }
TEST_F(LifecycleByNumber, n61_getHandle_Failure) { kc::numberFailure(api, kNumber61); }

// ---- getCallDuration (position 270, number 187) ----

const kc::Case kGetCallDurationCases[] = {
    {"full", "[]", "[]", "9223372036854775809", "9223372036854775809", "", "", "[]", "[]",
     "010100000000000080", "0100000000000080", 0},
};

struct GetCallDurationExport {
    static constexpr const char* operation = "getCallDuration";
    using Result = kc::ValueResult<uint64_t>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getCallDuration(api, error, &out.data);
    }
};

TEST_F(Lifecycle, getCallDuration_Exchange) {
    kc::exchange<GetCallDurationExport>(api, kGetCallDurationCases);
}
TEST_F(Lifecycle, getCallDuration_Failure) {
    kc::failure<GetCallDurationExport>(api, kGetCallDurationCases);
}
TEST_F(LifecycleAdmission, getCallDuration) {
    kc::admission<GetCallDurationExport>(callers(), kGetCallDurationCases, kc::Needs::Operator);
}

const kc::Number kNumber187{187, "getCallDuration", kGetCallDurationCases};

TEST_F(LifecycleByNumber, n187_getCallDuration_KelCall) { kc::kelCall(api, kNumber187); }
TEST_F(LifecycleByNumber, n187_getCallDuration_PyCall) { kc::pyCall(api, kNumber187); }
TEST_F(LifecycleByNumber, n187_getCallDuration_Failure) { kc::numberFailure(api, kNumber187); }

} // namespace
