// The export frame beyond the generated suite's error and output checks: success never
// touches *error, a second failure leaves the first record to its caller, an operation
// the engine lacks names itself; and the memory exports.
#include "support.h"

#include <cstring>

namespace {

using namespace kel_test;

using Frame = EngineTest;

TEST_F(Frame, SuccessNeverWritesTheErrorParameter) {
    auto* const sentinel = reinterpret_cast<KelError*>(static_cast<uintptr_t>(0x5A5A));
    KelError* error = sentinel;
    int32_t state = 0;
    kel_getState(api, &error, &state);
    kel_breakLock(api, &error);
    EXPECT_EQ(error, sentinel);
}

TEST_F(Frame, SecondFailureOverwritesWithoutFreeingTheFirst) {
    kelsim_failNext("isLocked", 2, 1, 0, L"first", L"");
    KelError* error = nullptr;
    bool locked = false;
    kel_isLocked(api, &error, &locked);
    KelError* first = error;
    kel_isLocked(api, &error, &locked);
    ASSERT_NE(first, nullptr);
    ASSERT_NE(error, nullptr);
    EXPECT_NE(error, first);
    EXPECT_STREQ(first->message, L"first") << "the first record is still the caller's to free";
    release_KelError(first);
    release_KelError(error);
}

TEST_F(Frame, UnsupportedOperationNamesItself) {
    ErrorSlot error;
    kel_selectDynamicProject(api, L"Dynamic", nullptr, 0, &error);
    ASSERT_EQ(kel_test::codeIn(error.error), 1000);
    EXPECT_STREQ(
        error->message,
        L"selectDynamicProject: the simulated vehicle does not support this operation yet");
}

// The leak checker proves that every block went back.
TEST(MemoryExports, NullSafeAndOnTheLibrarysHeap) {
    release_KelError(nullptr);
    release_KelError_array(nullptr, 3);
    release_Memory(nullptr);
    release_StringArray(nullptr, 2);
    EXPECT_EQ(duplicate_WString(nullptr), nullptr);
    EXPECT_EQ(duplicate_String(nullptr), nullptr);
    char* narrow = duplicate_String("ECU");
    EXPECT_STREQ(narrow, "ECU");
    release_Memory(narrow);

    // A list of strings built by the caller goes back with release_StringArray; NULL
    // entries are harmless.
    auto** texts = static_cast<wchar_t**>(allocate_Memory(3 * sizeof(wchar_t*)));
    texts[0] = duplicate_WString(L"Steuergerät \U0001F697");
    EXPECT_STREQ(texts[0], L"Steuergerät \U0001F697");
    texts[1] = nullptr;
    texts[2] = duplicate_WString(L"");
    release_StringArray(texts, 3);

    // An error array releases every entry, nested records too, and skips NULLs.
    auto** errors = static_cast<KelError**>(allocate_Memory(3 * sizeof(KelError*)));
    for (int i = 0; i < 3; ++i) {
        errors[i] = static_cast<KelError*>(allocate_Memory(sizeof(KelError)));
        std::memset(errors[i], 0, sizeof(KelError));
        errors[i]->message = duplicate_WString(L"m");
    }
    release_KelError(errors[1]);
    errors[1] = nullptr;
    errors[2]->mvciError = static_cast<MvciServerError*>(allocate_Memory(sizeof(MvciServerError)));
    std::memset(errors[2]->mvciError, 0, sizeof(MvciServerError));
    errors[2]->mvciError->codeText = duplicate_WString(L"nested");
    release_KelError_array(errors, 3);
}

} // namespace
