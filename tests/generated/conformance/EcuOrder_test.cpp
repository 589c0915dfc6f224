// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family EcuOrder: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using EcuOrder = kc::ConformanceTest;
using EcuOrderByNumber = kc::ConformanceTest;

TEST_F(EcuOrderByNumber, n143_readEcuOrder_NotAvailable) {
    kc::notAvailable(api, 143, "readEcuOrder");
}

TEST_F(EcuOrderByNumber, n144_filterEcuOrder_NotAvailable) {
    kc::notAvailable(api, 144, "filterEcuOrder");
}

TEST_F(EcuOrderByNumber, n145_addMissingTargetsToEcuOrder_NotAvailable) {
    kc::notAvailable(api, 145, "addMissingTargetsToEcuOrder");
}

TEST_F(EcuOrderByNumber, n250_createDefaultECUOrder_NotAvailable) {
    kc::notAvailable(api, 250, "createDefaultECUOrder");
}

TEST_F(EcuOrderByNumber, n255_writeEcuOrder_NotAvailable) {
    kc::notAvailable(api, 255, "writeEcuOrder");
}

// ---- getEcuOrderFilePath (position 224, number 256) ----

const kc::Case kGetEcuOrderFilePathCases[] = {
    {"full", "[]", "[]", "\"Pr\303\274fstand \342\202\254 224.1\"",
     "\"Pr\303\274fstand \342\202\254 224.1\"", "", "", "[]", "[]",
     "01140000005072c3bc667374616e6420e282ac203232342e31",
     "140000005072c3bc667374616e6420e282ac203232342e31", 0},
    {"sparse", "[]", "[]", "\"\"", "\"\"", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct GetEcuOrderFilePathExport {
    static constexpr const char* operation = "getEcuOrderFilePath";
    using Result = kc::TextResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getEcuOrderFilePath(api, error, &out.data);
    }
};

TEST_F(EcuOrder, getEcuOrderFilePath_Exchange) {
    kc::exchange<GetEcuOrderFilePathExport>(api, kGetEcuOrderFilePathCases);
}
TEST_F(EcuOrder, getEcuOrderFilePath_Failure) {
    kc::failure<GetEcuOrderFilePathExport>(api, kGetEcuOrderFilePathCases);
}

const kc::Number kNumber256{256, "getEcuOrderFilePath", kGetEcuOrderFilePathCases};

TEST_F(EcuOrderByNumber, n256_getEcuOrderFilePath_KelCall) { kc::kelCall(api, kNumber256); }
TEST_F(EcuOrderByNumber, n256_getEcuOrderFilePath_PyCall) { kc::pyCall(api, kNumber256); }
TEST_F(EcuOrderByNumber, n256_getEcuOrderFilePath_Failure) { kc::numberFailure(api, kNumber256); }

} // namespace
