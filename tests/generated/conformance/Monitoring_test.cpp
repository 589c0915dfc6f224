// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family Monitoring: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using Monitoring = kc::ConformanceTest;
using MonitoringByNumber = kc::ConformanceTest;
using MonitoringAdmission = kc::AdmissionTest;

// ---- createMonitoringLink (position 10, number 10) ----

const kc::Case kCreateMonitoringLinkCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 10.1\"]", "[\"Pr\303\274fstand \342\202\254 10.1\"]",
     "9223372036854775809", "9223372036854775809", "130000005072c3bc667374616e6420e282ac2031302e31",
     "5072c3bc667374616e6420e282ac2031302e3100", "[\"Pr\303\274fstand \342\202\254 10.1\"]",
     "[\"Pr\303\274fstand \342\202\254 10.1\"]", "010100000000000080", "0100000000000080", 0},
    {"sparse", "[\"\"]", "[\"\"]", "9223372036854775809", "9223372036854775809", "00000000", "00",
     "[\"\"]", "[\"\"]", "010100000000000080", "0100000000000080", 0},
};

struct CreateMonitoringLinkExport {
    static constexpr const char* operation = "createMonitoringLink";
    using Result = kc::ValueResult<uint64_t>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kel_createMonitoringLink(api, a0.get(), error, &out.data);
    }
};

TEST_F(Monitoring, createMonitoringLink_Exchange) {
    kc::exchange<CreateMonitoringLinkExport>(api, kCreateMonitoringLinkCases);
}
TEST_F(Monitoring, createMonitoringLink_Failure) {
    kc::failure<CreateMonitoringLinkExport>(api, kCreateMonitoringLinkCases);
}
TEST_F(MonitoringAdmission, createMonitoringLink) {
    kc::admission<CreateMonitoringLinkExport>(callers(), kCreateMonitoringLinkCases,
                                              kc::Needs::Operator);
}

const char* const kCreateMonitoringLinkNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 10.1\\ud800\"]",
};
TEST_F(Monitoring, createMonitoringLink_TextWithNoUtf8Form) {
    kc::noUtf8<CreateMonitoringLinkExport>(api, kCreateMonitoringLinkNoUtf8);
}

const kc::Number kNumber10{10, "createMonitoringLink", kCreateMonitoringLinkCases};

TEST_F(MonitoringByNumber, n10_createMonitoringLink_KelCall) { kc::kelCall(api, kNumber10); }
TEST_F(MonitoringByNumber, n10_createMonitoringLink_PyCall) { kc::pyCall(api, kNumber10); }
TEST_F(MonitoringByNumber, n10_createMonitoringLink_Failure) { kc::numberFailure(api, kNumber10); }
TEST_F(MonitoringByNumber, n10_createMonitoringLink_ShortInput) { kc::shortInput(api, kNumber10); }

// ---- getMonitoringItems (position 11, number 11) ----

const kc::Case kGetMonitoringItemsCases[] = {
    {"full", "[9223372036854775809,4294967295,-2147483648]",
     "[9223372036854775809,4294967295,-2147483648]",
     "[{\"text1\":\"Pr\303\274fstand \342\202\254 11.1\",\"data\":[0,255,255,128],\"value1\":1"
     "8446744073709551615,\"value2\":2147483648,\"flag1\":true,\"flag2\":false,\"flag3\":true,"
     "\"value3\":2147483647,\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 "
     "11.2\",\"value4\":1521301875,\"detail\":{\"response\":[0,255,127,1],\"text\":\"K\303\274"
     "hler\\u0009\360\237\224\247 11.3\"}},{\"text1\":\"say \\\"\303\251\\\" 11.4\",\"data\":["
     "0,255,53,36],\"value1\":4294967296,\"value2\":2028253989,\"flag1\":false,\"flag2\":true,"
     "\"flag3\":false,\"value3\":387722457,\"text2\":\"back\\\\slash \303\237 11.5\",\"value4"
     "\":894674571,\"detail\":null}]",
     "[{\"text1\":\"Pr\303\274fstand \342\202\254 11.1\",\"data\":[0,255,255,128],\"dataLength"
     "\":4,\"value1\":18446744073709551615,\"value2\":2147483648,\"flag1\":1,\"flag2\":0,\"fla"
     "g3\":1,\"value3\":2147483647,\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 11.2\",\"value4\":1521301875,\"detail\":{\"response\":[0,255,127,1],\"responseL"
     "ength\":4,\"text\":\"K\303\274hler\\u0009\360\237\224\247 11.3\"}},{\"text1\":\"say \\\""
     "\303\251\\\" 11.4\",\"data\":[0,255,53,36],\"dataLength\":4,\"value1\":4294967296,\"valu"
     "e2\":2028253989,\"flag1\":0,\"flag2\":1,\"flag3\":0,\"value3\":387722457,\"text2\":\"bac"
     "k\\\\slash \303\237 11.5\",\"value4\":894674571,\"detail\":null}]",
     "0100000000000080ffffffff00000080", "0100000000000080ffffffff00000080",
     "[9223372036854775809,4294967295,-2147483648]", "[9223372036854775809,4294967295,-2147483648]",
     "010200000001130000005072c3bc667374616e6420e282ac2031312e310400000000ffff80ffffffffffffff"
     "ff00000080010001ffffff7f13000000e697a5e69cace8aa9e20f09d849e2031312e327339ad5a0104000000"
     "00ff7f01110000004bc3bc686c657209f09f94a72031312e33010d0000007361792022c3a9222031312e3404"
     "00000000ff3524000000000100000025b3e478000100d92c1c17120000006261636b5c736c61736820c39f20"
     "31312e358ba6533500",
     "0200000001130000005072c3bc667374616e6420e282ac2031312e310400000000ffff80ffffffffffffffff"
     "00000080010001ffffff7f13000000e697a5e69cace8aa9e20f09d849e2031312e327339ad5a010400000000"
     "ff7f01110000004bc3bc686c657209f09f94a72031312e33010d0000007361792022c3a9222031312e340400"
     "000000ff3524000000000100000025b3e478000100d92c1c17120000006261636b5c736c61736820c39f2031"
     "312e358ba6533500",
     0},
    {"sparse", "[9223372036854775809,4294967295,-2147483648]",
     "[9223372036854775809,4294967295,-2147483648]",
     "[{\"text1\":\"\",\"data\":[],\"value1\":18446744073709551615,\"value2\":2147483648,\"fla"
     "g1\":true,\"flag2\":false,\"flag3\":true,\"value3\":2147483647,\"text2\":\"\",\"value4\""
     ":1521301875,\"detail\":{\"response\":[],\"text\":\"\"}},null]",
     "[{\"text1\":\"\",\"data\":null,\"dataLength\":0,\"value1\":18446744073709551615,\"value2"
     "\":2147483648,\"flag1\":1,\"flag2\":0,\"flag3\":1,\"value3\":2147483647,\"text2\":\"\","
     "\"value4\":1521301875,\"detail\":{\"response\":null,\"responseLength\":0,\"text\":\"\"}}"
     ",null]",
     "0100000000000080ffffffff00000080", "0100000000000080ffffffff00000080",
     "[9223372036854775809,4294967295,-2147483648]", "[9223372036854775809,4294967295,-2147483648]",
     "0102000000010000000000000000ffffffffffffffff00000080010001ffffff7f000000007339ad5a010000"
     "00000000000000",
     "02000000010000000000000000ffffffffffffffff00000080010001ffffff7f000000007339ad5a01000000"
     "000000000000",
     0},
    {"empty", "[9223372036854775809,4294967295,-2147483648]",
     "[9223372036854775809,4294967295,-2147483648]", "[]", "null",
     "0100000000000080ffffffff00000080", "0100000000000080ffffffff00000080",
     "[9223372036854775809,4294967295,-2147483648]", "[9223372036854775809,4294967295,-2147483648]",
     "0100000000", "00000000", 0},
};

struct GetMonitoringItemsExport {
    static constexpr const char* operation = "getMonitoringItems";
    using Result = kc::ListResult<MonitoringItem, release_MonitoringItem_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kel_getMonitoringItems(api, kc::number<uint64_t>(in[0]), kc::number<uint32_t>(in[1]),
                               kc::number<int32_t>(in[2]), error, &out.data, &out.count);
    }
};

TEST_F(Monitoring, getMonitoringItems_Exchange) {
    kc::exchange<GetMonitoringItemsExport>(api, kGetMonitoringItemsCases);
}
TEST_F(Monitoring, getMonitoringItems_Failure) {
    kc::failure<GetMonitoringItemsExport>(api, kGetMonitoringItemsCases);
}
TEST_F(MonitoringAdmission, getMonitoringItems) {
    kc::admission<GetMonitoringItemsExport>(callers(), kGetMonitoringItemsCases,
                                            kc::Needs::Operator);
}

const kc::Number kNumber11{11, "getMonitoringItems", kGetMonitoringItemsCases};

TEST_F(MonitoringByNumber, n11_getMonitoringItems_KelCall) { kc::kelCall(api, kNumber11); }
TEST_F(MonitoringByNumber, n11_getMonitoringItems_PyCall) { kc::pyCall(api, kNumber11); }
TEST_F(MonitoringByNumber, n11_getMonitoringItems_Failure) { kc::numberFailure(api, kNumber11); }
TEST_F(MonitoringByNumber, n11_getMonitoringItems_ShortInput) { kc::shortInput(api, kNumber11); }

// ---- releaseMonitoringLink (position 12, number 12) ----

const kc::Case kReleaseMonitoringLinkCases[] = {
    {"full", "[9223372036854775809]", "[9223372036854775809]", "null", nullptr, "0100000000000080",
     "0100000000000080", "[9223372036854775809]", "[9223372036854775809]", "01", "", 0},
};

struct ReleaseMonitoringLinkExport {
    static constexpr const char* operation = "releaseMonitoringLink";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_releaseMonitoringLink(api, kc::number<uint64_t>(in[0]), error);
    }
};

TEST_F(Monitoring, releaseMonitoringLink_Exchange) {
    kc::exchange<ReleaseMonitoringLinkExport>(api, kReleaseMonitoringLinkCases);
}
TEST_F(Monitoring, releaseMonitoringLink_Failure) {
    kc::failure<ReleaseMonitoringLinkExport>(api, kReleaseMonitoringLinkCases);
}
TEST_F(MonitoringAdmission, releaseMonitoringLink) {
    kc::admission<ReleaseMonitoringLinkExport>(callers(), kReleaseMonitoringLinkCases,
                                               kc::Needs::Operator);
}

const kc::Number kNumber12{12, "releaseMonitoringLink", kReleaseMonitoringLinkCases};

TEST_F(MonitoringByNumber, n12_releaseMonitoringLink_KelCall) { kc::kelCall(api, kNumber12); }
TEST_F(MonitoringByNumber, n12_releaseMonitoringLink_PyCall) { kc::pyCall(api, kNumber12); }
TEST_F(MonitoringByNumber, n12_releaseMonitoringLink_Failure) { kc::numberFailure(api, kNumber12); }
TEST_F(MonitoringByNumber, n12_releaseMonitoringLink_ShortInput) { kc::shortInput(api, kNumber12); }

// ---- getPduMonitoringItems (position 13, number 13) ----

const kc::Case kGetPduMonitoringItemsCases[] = {
    {"full", "[9223372036854775809,4294967295,-2147483648]",
     "[9223372036854775809,4294967295,-2147483648]",
     "[{\"value1\":2147483648,\"data\":[0,255,255,128],\"detail\":{\"sequence\":18446744073709"
     "551615,\"exchange\":4294967296},\"text1\":\"Pr\303\274fstand \342\202\254 13.1\",\"text2"
     "\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 13.2\",\"value2\":1521382881,"
     "\"text3\":\"K\303\274hler\\u0009\360\237\224\247 13.3\"},{\"value1\":2147483647,\"data\""
     ":[0,255,127,1],\"detail\":null,\"text1\":\"say \\\"\303\251\\\" 13.4\",\"text2\":\"back"
     "\\\\slash \303\237 13.5\",\"value2\":2028334995,\"text3\":\"Z\303\274ndung \360\237\232"
     "\227 13.6\"}]",
     "[{\"value1\":2147483648,\"data\":[0,255,255,128],\"dataLength\":4,\"detail\":{\"sequence"
     "\":18446744073709551615,\"exchange\":4294967296},\"text1\":\"Pr\303\274fstand \342\202"
     "\254 13.1\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 13.2\",\"v"
     "alue2\":1521382881,\"text3\":\"K\303\274hler\\u0009\360\237\224\247 13.3\"},{\"value1\":"
     "2147483647,\"data\":[0,255,127,1],\"dataLength\":4,\"detail\":null,\"text1\":\"say \\\""
     "\303\251\\\" 13.4\",\"text2\":\"back\\\\slash \303\237 13.5\",\"value2\":2028334995,\"te"
     "xt3\":\"Z\303\274ndung \360\237\232\227 13.6\"}]",
     "0100000000000080ffffffff00000080", "0100000000000080ffffffff00000080",
     "[9223372036854775809,4294967295,-2147483648]", "[9223372036854775809,4294967295,-2147483648]",
     "010200000001000000800400000000ffff8001ffffffffffffffff0000000001000000130000005072c3bc66"
     "7374616e6420e282ac2031332e3113000000e697a5e69cace8aa9e20f09d849e2031332e32e175ae5a000000"
     "00110000004bc3bc686c657209f09f94a72031332e3301ffffff7f0400000000ff7f01000d00000073617920"
     "22c3a9222031332e34120000006261636b5c736c61736820c39f2031332e3593efe57800000000120000005a"
     "c3bc6e64756e6720f09f9a972031332e36",
     "0200000001000000800400000000ffff8001ffffffffffffffff0000000001000000130000005072c3bc6673"
     "74616e6420e282ac2031332e3113000000e697a5e69cace8aa9e20f09d849e2031332e32e175ae5a00000000"
     "110000004bc3bc686c657209f09f94a72031332e3301ffffff7f0400000000ff7f01000d0000007361792022"
     "c3a9222031332e34120000006261636b5c736c61736820c39f2031332e3593efe57800000000120000005ac3"
     "bc6e64756e6720f09f9a972031332e36",
     0},
    {"sparse", "[9223372036854775809,4294967295,-2147483648]",
     "[9223372036854775809,4294967295,-2147483648]",
     "[{\"value1\":2147483648,\"data\":[],\"detail\":{\"sequence\":18446744073709551615,\"exch"
     "ange\":4294967296},\"text1\":\"\",\"text2\":\"\",\"value2\":1521382881,\"text3\":\"\"},n"
     "ull]",
     "[{\"value1\":2147483648,\"data\":null,\"dataLength\":0,\"detail\":{\"sequence\":18446744"
     "073709551615,\"exchange\":4294967296},\"text1\":\"\",\"text2\":\"\",\"value2\":152138288"
     "1,\"text3\":\"\"},null]",
     "0100000000000080ffffffff00000080", "0100000000000080ffffffff00000080",
     "[9223372036854775809,4294967295,-2147483648]", "[9223372036854775809,4294967295,-2147483648]",
     "010200000001000000800000000001ffffffffffffffff00000000010000000000000000000000e175ae5a00"
     "0000000000000000",
     "0200000001000000800000000001ffffffffffffffff00000000010000000000000000000000e175ae5a0000"
     "00000000000000",
     0},
    {"empty", "[9223372036854775809,4294967295,-2147483648]",
     "[9223372036854775809,4294967295,-2147483648]", "[]", "null",
     "0100000000000080ffffffff00000080", "0100000000000080ffffffff00000080",
     "[9223372036854775809,4294967295,-2147483648]", "[9223372036854775809,4294967295,-2147483648]",
     "0100000000", "00000000", 0},
};

struct GetPduMonitoringItemsExport {
    static constexpr const char* operation = "getPduMonitoringItems";
    using Result = kc::ListResult<PduMonitoringItem, release_PduMonitoringItem_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kel_getPduMonitoringItems(api, kc::number<uint64_t>(in[0]), kc::number<uint32_t>(in[1]),
                                  kc::number<int32_t>(in[2]), error, &out.data, &out.count);
    }
};

TEST_F(Monitoring, getPduMonitoringItems_Exchange) {
    kc::exchange<GetPduMonitoringItemsExport>(api, kGetPduMonitoringItemsCases);
}
TEST_F(Monitoring, getPduMonitoringItems_Failure) {
    kc::failure<GetPduMonitoringItemsExport>(api, kGetPduMonitoringItemsCases);
}
TEST_F(MonitoringAdmission, getPduMonitoringItems) {
    kc::admission<GetPduMonitoringItemsExport>(callers(), kGetPduMonitoringItemsCases,
                                               kc::Needs::Operator);
}

const kc::Number kNumber13{13, "getPduMonitoringItems", kGetPduMonitoringItemsCases};

TEST_F(MonitoringByNumber, n13_getPduMonitoringItems_KelCall) { kc::kelCall(api, kNumber13); }
TEST_F(MonitoringByNumber, n13_getPduMonitoringItems_PyCall) { kc::pyCall(api, kNumber13); }
TEST_F(MonitoringByNumber, n13_getPduMonitoringItems_Failure) { kc::numberFailure(api, kNumber13); }
TEST_F(MonitoringByNumber, n13_getPduMonitoringItems_ShortInput) { kc::shortInput(api, kNumber13); }

// ---- createPduMonitor (position 14, number 14) ----

const kc::Case kCreatePduMonitorCases[] = {
    {"full", "[]", "[]", "9223372036854775809", "9223372036854775809", "", "", "[]", "[]",
     "010100000000000080", "0100000000000080", 0},
};

struct CreatePduMonitorExport {
    static constexpr const char* operation = "createPduMonitor";
    using Result = kc::ValueResult<uint64_t>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_createPduMonitor(api, error, &out.data);
    }
};

TEST_F(Monitoring, createPduMonitor_Exchange) {
    kc::exchange<CreatePduMonitorExport>(api, kCreatePduMonitorCases);
}
TEST_F(Monitoring, createPduMonitor_Failure) {
    kc::failure<CreatePduMonitorExport>(api, kCreatePduMonitorCases);
}
TEST_F(MonitoringAdmission, createPduMonitor) {
    kc::admission<CreatePduMonitorExport>(callers(), kCreatePduMonitorCases, kc::Needs::Operator);
}

const kc::Number kNumber14{14, "createPduMonitor", kCreatePduMonitorCases};

TEST_F(MonitoringByNumber, n14_createPduMonitor_KelCall) { kc::kelCall(api, kNumber14); }
TEST_F(MonitoringByNumber, n14_createPduMonitor_PyCall) { kc::pyCall(api, kNumber14); }
TEST_F(MonitoringByNumber, n14_createPduMonitor_Failure) { kc::numberFailure(api, kNumber14); }

// ---- releasePduMonitor (position 16, number 16) ----

const kc::Case kReleasePduMonitorCases[] = {
    {"full", "[9223372036854775809]", "[9223372036854775809]", "null", nullptr, "0100000000000080",
     "0100000000000080", "[9223372036854775809]", "[9223372036854775809]", "01", "", 0},
};

struct ReleasePduMonitorExport {
    static constexpr const char* operation = "releasePduMonitor";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_releasePduMonitor(api, kc::number<uint64_t>(in[0]), error);
    }
};

TEST_F(Monitoring, releasePduMonitor_Exchange) {
    kc::exchange<ReleasePduMonitorExport>(api, kReleasePduMonitorCases);
}
TEST_F(Monitoring, releasePduMonitor_Failure) {
    kc::failure<ReleasePduMonitorExport>(api, kReleasePduMonitorCases);
}
TEST_F(MonitoringAdmission, releasePduMonitor) {
    kc::admission<ReleasePduMonitorExport>(callers(), kReleasePduMonitorCases, kc::Needs::Operator);
}

const kc::Number kNumber16{16, "releasePduMonitor", kReleasePduMonitorCases};

TEST_F(MonitoringByNumber, n16_releasePduMonitor_KelCall) { kc::kelCall(api, kNumber16); }
TEST_F(MonitoringByNumber, n16_releasePduMonitor_PyCall) { kc::pyCall(api, kNumber16); }
TEST_F(MonitoringByNumber, n16_releasePduMonitor_Failure) { kc::numberFailure(api, kNumber16); }
TEST_F(MonitoringByNumber, n16_releasePduMonitor_ShortInput) { kc::shortInput(api, kNumber16); }

// ---- openTraceFileMonitoringLink (position 49, number 67) ----

const kc::Case kOpenTraceFileMonitoringLinkCases[] = {
    {"full", "[9223372036854775809,\"Pr\303\274fstand \342\202\254 49.1\"]",
     "[9223372036854775809,\"Pr\303\274fstand \342\202\254 49.1\"]", "null", nullptr,
     "0100000000000080130000005072c3bc667374616e6420e282ac2034392e31",
     "01000000000000805072c3bc667374616e6420e282ac2034392e3100",
     "[9223372036854775809,\"Pr\303\274fstand \342\202\254 49.1\"]",
     "[9223372036854775809,\"Pr\303\274fstand \342\202\254 49.1\"]", "01", "", 0},
    {"sparse", "[9223372036854775809,\"\"]", "[9223372036854775809,\"\"]", "null", nullptr,
     "010000000000008000000000", "010000000000008000", "[9223372036854775809,\"\"]",
     "[9223372036854775809,\"\"]", "01", "", 0},
};

struct OpenTraceFileMonitoringLinkExport {
    static constexpr const char* operation = "openTraceFileMonitoringLink";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a1(in[1]);
        static_cast<void>(out);
        kel_openTraceFileMonitoringLink(api, kc::number<uint64_t>(in[0]), a1.get(), error);
    }
};

TEST_F(Monitoring, openTraceFileMonitoringLink_Exchange) {
    kc::exchange<OpenTraceFileMonitoringLinkExport>(api, kOpenTraceFileMonitoringLinkCases);
}
TEST_F(Monitoring, openTraceFileMonitoringLink_Failure) {
    kc::failure<OpenTraceFileMonitoringLinkExport>(api, kOpenTraceFileMonitoringLinkCases);
}
TEST_F(MonitoringAdmission, openTraceFileMonitoringLink) {
    kc::admission<OpenTraceFileMonitoringLinkExport>(callers(), kOpenTraceFileMonitoringLinkCases,
                                                     kc::Needs::Operator);
}

const char* const kOpenTraceFileMonitoringLinkNoUtf8[] = {
    "[9223372036854775809,\"\\udc00Pr\303\274fstand \342\202\254 49.1\\ud800\"]",
};
TEST_F(Monitoring, openTraceFileMonitoringLink_TextWithNoUtf8Form) {
    kc::noUtf8<OpenTraceFileMonitoringLinkExport>(api, kOpenTraceFileMonitoringLinkNoUtf8);
}

const kc::Number kNumber67{67, "openTraceFileMonitoringLink", kOpenTraceFileMonitoringLinkCases};

TEST_F(MonitoringByNumber, n67_openTraceFileMonitoringLink_KelCall) { kc::kelCall(api, kNumber67); }
TEST_F(MonitoringByNumber, n67_openTraceFileMonitoringLink_PyCall) { kc::pyCall(api, kNumber67); }
TEST_F(MonitoringByNumber, n67_openTraceFileMonitoringLink_Failure) {
    kc::numberFailure(api, kNumber67);
}
TEST_F(MonitoringByNumber, n67_openTraceFileMonitoringLink_ShortInput) {
    kc::shortInput(api, kNumber67);
}

// ---- startTraceFileMonitoringLink (position 50, number 68) ----

const kc::Case kStartTraceFileMonitoringLinkCases[] = {
    {"full", "[9223372036854775809]", "[9223372036854775809]", "null", nullptr, "0100000000000080",
     "0100000000000080", "[9223372036854775809]", "[9223372036854775809]", "01", "", 0},
};

struct StartTraceFileMonitoringLinkExport {
    static constexpr const char* operation = "startTraceFileMonitoringLink";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_startTraceFileMonitoringLink(api, kc::number<uint64_t>(in[0]), error);
    }
};

TEST_F(Monitoring, startTraceFileMonitoringLink_Exchange) {
    kc::exchange<StartTraceFileMonitoringLinkExport>(api, kStartTraceFileMonitoringLinkCases);
}
TEST_F(Monitoring, startTraceFileMonitoringLink_Failure) {
    kc::failure<StartTraceFileMonitoringLinkExport>(api, kStartTraceFileMonitoringLinkCases);
}
TEST_F(MonitoringAdmission, startTraceFileMonitoringLink) {
    kc::admission<StartTraceFileMonitoringLinkExport>(callers(), kStartTraceFileMonitoringLinkCases,
                                                      kc::Needs::Operator);
}

const kc::Number kNumber68{68, "startTraceFileMonitoringLink", kStartTraceFileMonitoringLinkCases};

TEST_F(MonitoringByNumber, n68_startTraceFileMonitoringLink_KelCall) {
    kc::kelCall(api, kNumber68);
}
TEST_F(MonitoringByNumber, n68_startTraceFileMonitoringLink_PyCall) { kc::pyCall(api, kNumber68); }
TEST_F(MonitoringByNumber, n68_startTraceFileMonitoringLink_Failure) {
    kc::numberFailure(api, kNumber68);
}
TEST_F(MonitoringByNumber, n68_startTraceFileMonitoringLink_ShortInput) {
    kc::shortInput(api, kNumber68);
}

// ---- stopTraceFileMonitoringLink (position 51, number 69) ----

const kc::Case kStopTraceFileMonitoringLinkCases[] = {
    {"full", "[9223372036854775809]", "[9223372036854775809]", "null", nullptr, "0100000000000080",
     "0100000000000080", "[9223372036854775809]", "[9223372036854775809]", "01", "", 0},
};

struct StopTraceFileMonitoringLinkExport {
    static constexpr const char* operation = "stopTraceFileMonitoringLink";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_stopTraceFileMonitoringLink(api, kc::number<uint64_t>(in[0]), error);
    }
};

TEST_F(Monitoring, stopTraceFileMonitoringLink_Exchange) {
    kc::exchange<StopTraceFileMonitoringLinkExport>(api, kStopTraceFileMonitoringLinkCases);
}
TEST_F(Monitoring, stopTraceFileMonitoringLink_Failure) {
    kc::failure<StopTraceFileMonitoringLinkExport>(api, kStopTraceFileMonitoringLinkCases);
}
TEST_F(MonitoringAdmission, stopTraceFileMonitoringLink) {
    kc::admission<StopTraceFileMonitoringLinkExport>(callers(), kStopTraceFileMonitoringLinkCases,
                                                     kc::Needs::Operator);
}

const kc::Number kNumber69{69, "stopTraceFileMonitoringLink", kStopTraceFileMonitoringLinkCases};

TEST_F(MonitoringByNumber, n69_stopTraceFileMonitoringLink_KelCall) { kc::kelCall(api, kNumber69); }
TEST_F(MonitoringByNumber, n69_stopTraceFileMonitoringLink_PyCall) { kc::pyCall(api, kNumber69); }
TEST_F(MonitoringByNumber, n69_stopTraceFileMonitoringLink_Failure) {
    kc::numberFailure(api, kNumber69);
}
TEST_F(MonitoringByNumber, n69_stopTraceFileMonitoringLink_ShortInput) {
    kc::shortInput(api, kNumber69);
}

// ---- closeTraceFileMonitoringLink (position 52, number 66) ----

const kc::Case kCloseTraceFileMonitoringLinkCases[] = {
    {"full", "[9223372036854775809]", "[9223372036854775809]", "null", nullptr, "0100000000000080",
     "0100000000000080", "[9223372036854775809]", "[9223372036854775809]", "01", "", 0},
};

struct CloseTraceFileMonitoringLinkExport {
    static constexpr const char* operation = "closeTraceFileMonitoringLink";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_closeTraceFileMonitoringLink(api, kc::number<uint64_t>(in[0]), error);
    }
};

TEST_F(Monitoring, closeTraceFileMonitoringLink_Exchange) {
    kc::exchange<CloseTraceFileMonitoringLinkExport>(api, kCloseTraceFileMonitoringLinkCases);
}
TEST_F(Monitoring, closeTraceFileMonitoringLink_Failure) {
    kc::failure<CloseTraceFileMonitoringLinkExport>(api, kCloseTraceFileMonitoringLinkCases);
}
TEST_F(MonitoringAdmission, closeTraceFileMonitoringLink) {
    kc::admission<CloseTraceFileMonitoringLinkExport>(callers(), kCloseTraceFileMonitoringLinkCases,
                                                      kc::Needs::Operator);
}

const kc::Number kNumber66{66, "closeTraceFileMonitoringLink", kCloseTraceFileMonitoringLinkCases};

TEST_F(MonitoringByNumber, n66_closeTraceFileMonitoringLink_KelCall) {
    kc::kelCall(api, kNumber66);
}
TEST_F(MonitoringByNumber, n66_closeTraceFileMonitoringLink_PyCall) { kc::pyCall(api, kNumber66); }
TEST_F(MonitoringByNumber, n66_closeTraceFileMonitoringLink_Failure) {
    kc::numberFailure(api, kNumber66);
}
TEST_F(MonitoringByNumber, n66_closeTraceFileMonitoringLink_ShortInput) {
    kc::shortInput(api, kNumber66);
}

// ---- createApiTraceMonitor (position 160, number 189) ----

const kc::Case kCreateApiTraceMonitorCases[] = {
    {"full", "[]", "[]", "9223372036854775809", "9223372036854775809", "", "", "[]", "[]",
     "010100000000000080", "0100000000000080", 0},
};

struct CreateApiTraceMonitorExport {
    static constexpr const char* operation = "createApiTraceMonitor";
    using Result = kc::ValueResult<uint64_t>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_createApiTraceMonitor(api, error, &out.data);
    }
};

TEST_F(Monitoring, createApiTraceMonitor_Exchange) {
    kc::exchange<CreateApiTraceMonitorExport>(api, kCreateApiTraceMonitorCases);
}
TEST_F(Monitoring, createApiTraceMonitor_Failure) {
    kc::failure<CreateApiTraceMonitorExport>(api, kCreateApiTraceMonitorCases);
}
TEST_F(MonitoringAdmission, createApiTraceMonitor) {
    kc::admission<CreateApiTraceMonitorExport>(callers(), kCreateApiTraceMonitorCases,
                                               kc::Needs::Operator);
}

const kc::Number kNumber189{189, "createApiTraceMonitor", kCreateApiTraceMonitorCases};

TEST_F(MonitoringByNumber, n189_createApiTraceMonitor_KelCall) { kc::kelCall(api, kNumber189); }
TEST_F(MonitoringByNumber, n189_createApiTraceMonitor_PyCall) { kc::pyCall(api, kNumber189); }
TEST_F(MonitoringByNumber, n189_createApiTraceMonitor_Failure) {
    kc::numberFailure(api, kNumber189);
}

// ---- getApiTraceContent (position 161, number 190) ----

const kc::Case kGetApiTraceContentCases[] = {
    {"full", "[9223372036854775809,4294967295,-2147483648]",
     "[9223372036854775809,4294967295,-2147483648]", "[0,255,255,128,127,1,110]",
     "[0,255,255,128,127,1,110]", "0100000000000080ffffffff00000080",
     "0100000000000080ffffffff00000080", "[9223372036854775809,4294967295,-2147483648]",
     "[9223372036854775809,4294967295,-2147483648]", "010700000000ffff807f016e",
     "0700000000ffff807f016e", 0},
    {"empty", "[9223372036854775809,4294967295,-2147483648]",
     "[9223372036854775809,4294967295,-2147483648]", "[]", "[]", "0100000000000080ffffffff00000080",
     "0100000000000080ffffffff00000080", "[9223372036854775809,4294967295,-2147483648]",
     "[9223372036854775809,4294967295,-2147483648]", "0100000000", "00000000", 0},
};

struct GetApiTraceContentExport {
    static constexpr const char* operation = "getApiTraceContent";
    using Result = kc::BufferResult<void>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kel_getApiTraceContent(api, kc::number<uint64_t>(in[0]), kc::number<uint32_t>(in[1]),
                               kc::number<int32_t>(in[2]), error, &out.data, &out.count);
    }
};

TEST_F(Monitoring, getApiTraceContent_Exchange) {
    kc::exchange<GetApiTraceContentExport>(api, kGetApiTraceContentCases);
}
TEST_F(Monitoring, getApiTraceContent_Failure) {
    kc::failure<GetApiTraceContentExport>(api, kGetApiTraceContentCases);
}
TEST_F(MonitoringAdmission, getApiTraceContent) {
    kc::admission<GetApiTraceContentExport>(callers(), kGetApiTraceContentCases,
                                            kc::Needs::Operator);
}

const kc::Number kNumber190{190, "getApiTraceContent", kGetApiTraceContentCases};

TEST_F(MonitoringByNumber, n190_getApiTraceContent_KelCall) { kc::kelCall(api, kNumber190); }
TEST_F(MonitoringByNumber, n190_getApiTraceContent_PyCall) { kc::pyCall(api, kNumber190); }
TEST_F(MonitoringByNumber, n190_getApiTraceContent_Failure) { kc::numberFailure(api, kNumber190); }
TEST_F(MonitoringByNumber, n190_getApiTraceContent_ShortInput) { kc::shortInput(api, kNumber190); }

// ---- releaseApiTraceMonitor (position 162, number 192) ----

const kc::Case kReleaseApiTraceMonitorCases[] = {
    {"full", "[9223372036854775809]", "[9223372036854775809]", "null", nullptr, "0100000000000080",
     "0100000000000080", "[9223372036854775809]", "[9223372036854775809]", "01", "", 0},
};

struct ReleaseApiTraceMonitorExport {
    static constexpr const char* operation = "releaseApiTraceMonitor";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_releaseApiTraceMonitor(api, kc::number<uint64_t>(in[0]), error);
    }
};

TEST_F(Monitoring, releaseApiTraceMonitor_Exchange) {
    kc::exchange<ReleaseApiTraceMonitorExport>(api, kReleaseApiTraceMonitorCases);
}
TEST_F(Monitoring, releaseApiTraceMonitor_Failure) {
    kc::failure<ReleaseApiTraceMonitorExport>(api, kReleaseApiTraceMonitorCases);
}
TEST_F(MonitoringAdmission, releaseApiTraceMonitor) {
    kc::admission<ReleaseApiTraceMonitorExport>(callers(), kReleaseApiTraceMonitorCases,
                                                kc::Needs::Operator);
}

const kc::Number kNumber192{192, "releaseApiTraceMonitor", kReleaseApiTraceMonitorCases};

TEST_F(MonitoringByNumber, n192_releaseApiTraceMonitor_KelCall) { kc::kelCall(api, kNumber192); }
TEST_F(MonitoringByNumber, n192_releaseApiTraceMonitor_PyCall) { kc::pyCall(api, kNumber192); }
TEST_F(MonitoringByNumber, n192_releaseApiTraceMonitor_Failure) {
    kc::numberFailure(api, kNumber192);
}
TEST_F(MonitoringByNumber, n192_releaseApiTraceMonitor_ShortInput) {
    kc::shortInput(api, kNumber192);
}

// ---- getMonitoringLinks (position 259, number 65) ----

const kc::Case kGetMonitoringLinksCases[] = {
    {"full", "[]", "[]",
     "[\"Pr\303\274fstand \342\202\254 259.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 259.2\"]",
     "[\"Pr\303\274fstand \342\202\254 259.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 259.2\"]",
     "", "", "[]", "[]",
     "0103000000140000005072c3bc667374616e6420e282ac203235392e310000000014000000e697a5e69cace8"
     "aa9e20f09d849e203235392e32",
     "03000000140000005072c3bc667374616e6420e282ac203235392e310000000014000000e697a5e69cace8aa"
     "9e20f09d849e203235392e32",
     0},
    {"empty", "[]", "[]", "[]", "null", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct GetMonitoringLinksExport {
    static constexpr const char* operation = "getMonitoringLinks";
    using Result = kc::TextsResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getMonitoringLinks(api, error, &out.data, &out.count);
    }
};

TEST_F(Monitoring, getMonitoringLinks_Exchange) {
    kc::exchange<GetMonitoringLinksExport>(api, kGetMonitoringLinksCases);
}
TEST_F(Monitoring, getMonitoringLinks_Failure) {
    kc::failure<GetMonitoringLinksExport>(api, kGetMonitoringLinksCases);
}
TEST_F(MonitoringAdmission, getMonitoringLinks) {
    kc::admission<GetMonitoringLinksExport>(callers(), kGetMonitoringLinksCases,
                                            kc::Needs::Operator);
}

const kc::Number kNumber65{65, "getMonitoringLinks", kGetMonitoringLinksCases};

TEST_F(MonitoringByNumber, n65_getMonitoringLinks_KelCall) { kc::kelCall(api, kNumber65); }
TEST_F(MonitoringByNumber, n65_getMonitoringLinks_PyCall) { kc::pyCall(api, kNumber65); }
TEST_F(MonitoringByNumber, n65_getMonitoringLinks_Failure) { kc::numberFailure(api, kNumber65); }

} // namespace
