// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family Coding: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using Coding = kc::ConformanceTest;
using CodingByNumber = kc::ConformanceTest;

TEST_F(CodingByNumber, n32_readCodingStrings_NotAvailable) {
    kc::notAvailable(api, 32, "readCodingStrings");
}

// ---- calculateChecksum (position 140, number 169) ----

const kc::Case kCalculateChecksumCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 140.1\",-2147483648]",
     "[\"Pr\303\274fstand \342\202\254 140.1\",-2147483648]",
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 140.2\"",
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 140.2\"",
     "140000005072c3bc667374616e6420e282ac203134302e3100000080",
     "5072c3bc667374616e6420e282ac203134302e310000000080",
     "[\"Pr\303\274fstand \342\202\254 140.1\",-2147483648]",
     "[\"Pr\303\274fstand \342\202\254 140.1\",-2147483648]",
     "0114000000e697a5e69cace8aa9e20f09d849e203134302e32",
     "14000000e697a5e69cace8aa9e20f09d849e203134302e32", 0},
    {"sparse", "[\"\",-2147483648]", "[\"\",-2147483648]", "\"\"", "\"\"", "0000000000000080",
     "0000000080", "[\"\",-2147483648]", "[\"\",-2147483648]", "0100000000", "00000000", 0},
};

struct CalculateChecksumExport {
    static constexpr const char* operation = "calculateChecksum";
    using Result = kc::TextResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kel_calculateChecksum(api, a0.get(), kc::number<int32_t>(in[1]), error, &out.data);
    }
};

TEST_F(Coding, calculateChecksum_Exchange) {
    kc::exchange<CalculateChecksumExport>(api, kCalculateChecksumCases);
}
TEST_F(Coding, calculateChecksum_Failure) {
    kc::failure<CalculateChecksumExport>(api, kCalculateChecksumCases);
}

const kc::Number kNumber169{169, "calculateChecksum", kCalculateChecksumCases};

TEST_F(CodingByNumber, n169_calculateChecksum_KelCall) { kc::kelCall(api, kNumber169); }
TEST_F(CodingByNumber, n169_calculateChecksum_PyCall) { kc::pyCall(api, kNumber169); }
TEST_F(CodingByNumber, n169_calculateChecksum_Failure) { kc::numberFailure(api, kNumber169); }
TEST_F(CodingByNumber, n169_calculateChecksum_ShortInput) { kc::shortInput(api, kNumber169); }

TEST_F(CodingByNumber, n251_writeCodingFile_NotAvailable) {
    kc::notAvailable(api, 251, "writeCodingFile");
}

TEST_F(CodingByNumber, n267_performEcuConfiguration_NotAvailable) {
    kc::notAvailable(api, 267, "performEcuConfiguration");
}

} // namespace
