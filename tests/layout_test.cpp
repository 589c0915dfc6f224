// Record layouts as a C caller compiled against the header sees them (64-bit targets).
#include <kel_c.h>

#include <gtest/gtest.h>

#include <cstddef>

namespace {

TEST(Layout, RecordsAndTextAsACCallerSeesThem) {
    static_assert(sizeof(void*) == 8, "the library is built for 64-bit targets only");
    EXPECT_EQ(offsetof(KelError, code), 0U);
    EXPECT_EQ(offsetof(KelError, message), 8U);
    EXPECT_EQ(offsetof(KelError, details), 16U);
    EXPECT_EQ(offsetof(KelError, subCode), 24U);
    EXPECT_EQ(offsetof(KelError, mvciError), 32U);
    EXPECT_EQ(offsetof(KelError, negativeResponse), 40U);
    EXPECT_EQ(sizeof(KelError), 48U);

    EXPECT_EQ(offsetof(MvciServerError, code), 0U);
    EXPECT_EQ(offsetof(MvciServerError, codeText), 8U);
    EXPECT_EQ(offsetof(MvciServerError, vendorCode), 16U);
    EXPECT_EQ(offsetof(MvciServerError, vendorCodeText), 24U);
    EXPECT_EQ(offsetof(MvciServerError, extraText), 32U);
    EXPECT_EQ(offsetof(MvciServerError, extraCode), 40U);
    EXPECT_EQ(sizeof(MvciServerError), 48U);

    EXPECT_EQ(offsetof(NegativeResponse, code), 0U);
    EXPECT_EQ(offsetof(NegativeResponse, text), 8U);
    EXPECT_EQ(offsetof(NegativeResponse, value1), 16U);
    EXPECT_EQ(offsetof(NegativeResponse, value2), 24U);
    EXPECT_EQ(offsetof(NegativeResponse, bytes), 32U);
    EXPECT_EQ(offsetof(NegativeResponse, byteCount), 40U);
    EXPECT_EQ(sizeof(NegativeResponse), 48U);

    EXPECT_EQ(offsetof(NamedItem, itemText1), 0U);
    EXPECT_EQ(offsetof(NamedItem, itemText4), 24U);
    EXPECT_EQ(sizeof(NamedItem), 32U);
#if defined(_WIN32)
    EXPECT_EQ(sizeof(wchar_t), 2U); // UTF-16
#else
    EXPECT_EQ(sizeof(wchar_t), 4U); // UTF-32
#endif
    EXPECT_EQ(sizeof(bool), 1U);
}

} // namespace
