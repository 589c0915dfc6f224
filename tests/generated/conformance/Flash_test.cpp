// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family Flash: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using Flash = kc::ConformanceTest;
using FlashByNumber = kc::ConformanceTest;
using FlashAdmission = kc::AdmissionTest;

// ---- getFlashSessionInfos (position 30, number 113) ----

const kc::Case kGetFlashSessionInfosCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 30.1\"]", "[\"Pr\303\274fstand \342\202\254 30.1\"]",
     "[{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 30.2\",\"target\":\"K"
     "\303\274hler\\u0009\360\237\224\247 30.3\",\"description\":\"say \\\"\303\251\\\" 30.4\""
     ",\"version\":\"back\\\\slash \303\237 30.5\",\"size\":9223372036854775809,\"duration\":4"
     "294967295,\"level\":2147483648},{\"name\":\"Z\303\274ndung \360\237\232\227 30.6\",\"tar"
     "get\":\"Pr\303\274fstand \342\202\254 30.7\",\"description\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 30.8\",\"version\":\"K\303\274hler\\u0009\360\237\224\247 "
     "30.9\",\"size\":18446744073709551615,\"duration\":2147483647,\"level\":1522071433}]",
     "[{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 30.2\",\"target\":\"K"
     "\303\274hler\\u0009\360\237\224\247 30.3\",\"description\":\"say \\\"\303\251\\\" 30.4\""
     ",\"version\":\"back\\\\slash \303\237 30.5\",\"size\":9223372036854775809,\"duration\":4"
     "294967295,\"level\":2147483648},{\"name\":\"Z\303\274ndung \360\237\232\227 30.6\",\"tar"
     "get\":\"Pr\303\274fstand \342\202\254 30.7\",\"description\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 30.8\",\"version\":\"K\303\274hler\\u0009\360\237\224\247 "
     "30.9\",\"size\":18446744073709551615,\"duration\":2147483647,\"level\":1522071433}]",
     "130000005072c3bc667374616e6420e282ac2033302e31", "5072c3bc667374616e6420e282ac2033302e3100",
     "[\"Pr\303\274fstand \342\202\254 30.1\"]", "[\"Pr\303\274fstand \342\202\254 30.1\"]",
     "01020000000113000000e697a5e69cace8aa9e20f09d849e2033302e32110000004bc3bc686c657209f09f94"
     "a72033302e330d0000007361792022c3a9222033302e34120000006261636b5c736c61736820c39f2033302e"
     "350100000000000080ffffffff0000008001120000005ac3bc6e64756e6720f09f9a972033302e3613000000"
     "5072c3bc667374616e6420e282ac2033302e3713000000e697a5e69cace8aa9e20f09d849e2033302e381100"
     "00004bc3bc686c657209f09f94a72033302e39ffffffffffffffffffffff7f89f7b85a",
     "020000000113000000e697a5e69cace8aa9e20f09d849e2033302e32110000004bc3bc686c657209f09f94a7"
     "2033302e330d0000007361792022c3a9222033302e34120000006261636b5c736c61736820c39f2033302e35"
     "0100000000000080ffffffff0000008001120000005ac3bc6e64756e6720f09f9a972033302e361300000050"
     "72c3bc667374616e6420e282ac2033302e3713000000e697a5e69cace8aa9e20f09d849e2033302e38110000"
     "004bc3bc686c657209f09f94a72033302e39ffffffffffffffffffffff7f89f7b85a",
     0},
    {"sparse", "[\"\"]", "[\"\"]",
     "[{\"name\":\"\",\"target\":\"\",\"description\":\"\",\"version\":\"\",\"size\":922337203"
     "6854775809,\"duration\":4294967295,\"level\":2147483648},null]",
     "[{\"name\":\"\",\"target\":\"\",\"description\":\"\",\"version\":\"\",\"size\":922337203"
     "6854775809,\"duration\":4294967295,\"level\":2147483648},null]",
     "00000000", "00", "[\"\"]", "[\"\"]",
     "010200000001000000000000000000000000000000000100000000000080ffffffff0000008000",
     "0200000001000000000000000000000000000000000100000000000080ffffffff0000008000", 0},
    {"empty", "[\"\"]", "[\"\"]", "[]", "null", "00000000", "00", "[\"\"]", "[\"\"]", "0100000000",
     "00000000", 0},
};

struct GetFlashSessionInfosExport {
    static constexpr const char* operation = "getFlashSessionInfos";
    using Result = kc::ListResult<FlashSessionInfo, release_FlashSessionInfo_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kel_getFlashSessionInfos(api, a0.get(), error, &out.data, &out.count);
    }
};

TEST_F(Flash, getFlashSessionInfos_Exchange) {
    kc::exchange<GetFlashSessionInfosExport>(api, kGetFlashSessionInfosCases);
}
TEST_F(Flash, getFlashSessionInfos_Failure) {
    kc::failure<GetFlashSessionInfosExport>(api, kGetFlashSessionInfosCases);
}
TEST_F(FlashAdmission, getFlashSessionInfos) {
    kc::admission<GetFlashSessionInfosExport>(callers(), kGetFlashSessionInfosCases,
                                              kc::Needs::Operator);
}

const char* const kGetFlashSessionInfosNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 30.1\\ud800\"]",
};
TEST_F(Flash, getFlashSessionInfos_TextWithNoUtf8Form) {
    kc::noUtf8<GetFlashSessionInfosExport>(api, kGetFlashSessionInfosNoUtf8);
}

const kc::Number kNumber113{113, "getFlashSessionInfos", kGetFlashSessionInfosCases};

TEST_F(FlashByNumber, n113_getFlashSessionInfos_KelCall) { kc::kelCall(api, kNumber113); }
TEST_F(FlashByNumber, n113_getFlashSessionInfos_PyCall) { kc::pyCall(api, kNumber113); }
TEST_F(FlashByNumber, n113_getFlashSessionInfos_Failure) { kc::numberFailure(api, kNumber113); }
TEST_F(FlashByNumber, n113_getFlashSessionInfos_ShortInput) { kc::shortInput(api, kNumber113); }

// ---- executeFlashSessions (position 31, number 117) ----

const kc::Case kExecuteFlashSessionsCases[] = {
    {"full",
     "[\"Pr\303\274fstand \342\202\254 31.1\",[\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 31.2\",\"\",\"K\303\274hler\\u0009\360\237\224\247 31.3\"]]",
     "[\"Pr\303\274fstand \342\202\254 31.1\",[\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 31.2\",\"\",\"K\303\274hler\\u0009\360\237\224\247 31.3\"]]",
     "[{\"name\":\"say \\\"\303\251\\\" 31.4\",\"target\":\"back\\\\slash \303\237 31.5\",\"st"
     "atus\":-2147483648,\"versionBefore\":\"Z\303\274ndung \360\237\232\227 31.6\",\"versionA"
     "fter\":\"Pr\303\274fstand \342\202\254 31.7\",\"size\":9223372036854775809,\"transferred"
     "\":18446744073709551615,\"progress\":4294967295,\"duration\":2147483648,\"error\":{\"cod"
     "e\":2147483647,\"message\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 31.8"
     "\",\"details\":\"K\303\274hler\\u0009\360\237\224\247 31.9\",\"subCode\":-1,\"mvciError"
     "\":{\"code\":-65536,\"codeText\":\"say \\\"\303\251\\\" 31.10\",\"vendorCode\":202906404"
     "9,\"vendorCodeText\":\"back\\\\slash \303\237 31.11\",\"extraText\":\"Z\303\274ndung "
     "\360\237\232\227 31.12\",\"extraCode\":-388532517},\"negativeResponse\":{\"code\":895484"
     "631,\"text\":\"Pr\303\274fstand \342\202\254 31.13\",\"value1\":4294967296,\"value2\":15"
     "22111935,\"bytes\":[0,255,255,128]}}},{\"name\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 31.14\",\"target\":\"K\303\274hler\\u0009\360\237\224\247 31.15\",\"sta"
     "tus\":-1402436745,\"versionBefore\":\"say \\\"\303\251\\\" 31.16\",\"versionAfter\":\"ba"
     "ck\\\\slash \303\237 31.17\",\"size\":2029064049,\"transferred\":388532517,\"progress\":"
     "2147483647,\"duration\":1522111935,\"error\":null}]",
     "[{\"name\":\"say \\\"\303\251\\\" 31.4\",\"target\":\"back\\\\slash \303\237 31.5\",\"st"
     "atus\":-2147483648,\"versionBefore\":\"Z\303\274ndung \360\237\232\227 31.6\",\"versionA"
     "fter\":\"Pr\303\274fstand \342\202\254 31.7\",\"size\":9223372036854775809,\"transferred"
     "\":18446744073709551615,\"progress\":4294967295,\"duration\":2147483648,\"error\":{\"cod"
     "e\":2147483647,\"message\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 31.8"
     "\",\"details\":\"K\303\274hler\\u0009\360\237\224\247 31.9\",\"subCode\":-1,\"mvciError"
     "\":{\"code\":-65536,\"codeText\":\"say \\\"\303\251\\\" 31.10\",\"vendorCode\":202906404"
     "9,\"vendorCodeText\":\"back\\\\slash \303\237 31.11\",\"extraText\":\"Z\303\274ndung "
     "\360\237\232\227 31.12\",\"extraCode\":-388532517},\"negativeResponse\":{\"code\":895484"
     "631,\"text\":\"Pr\303\274fstand \342\202\254 31.13\",\"value1\":4294967296,\"value2\":15"
     "22111935,\"bytes\":[0,255,255,128],\"byteCount\":4}}},{\"name\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 31.14\",\"target\":\"K\303\274hler\\u0009\360\237\224"
     "\247 31.15\",\"status\":-1402436745,\"versionBefore\":\"say \\\"\303\251\\\" 31.16\",\"v"
     "ersionAfter\":\"back\\\\slash \303\237 31.17\",\"size\":2029064049,\"transferred\":38853"
     "2517,\"progress\":2147483647,\"duration\":1522111935,\"error\":null}]",
     "130000005072c3bc667374616e6420e282ac2033312e310300000013000000e697a5e69cace8aa9e20f09d84"
     "9e2033312e3200000000110000004bc3bc686c657209f09f94a72033312e33",
     "5072c3bc667374616e6420e282ac2033312e310003000000e697a5e69cace8aa9e20f09d849e2033312e3200"
     "004bc3bc686c657209f09f94a72033312e3300",
     "[\"Pr\303\274fstand \342\202\254 31.1\",[\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 31.2\",\"\",\"K\303\274hler\\u0009\360\237\224\247 31.3\"]]",
     "[\"Pr\303\274fstand \342\202\254 31.1\",[\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 31.2\",\"\",\"K\303\274hler\\u0009\360\237\224\247 31.3\"]]",
     "0102000000010d0000007361792022c3a9222033312e34120000006261636b5c736c61736820c39f2033312e"
     "3500000080120000005ac3bc6e64756e6720f09f9a972033312e36130000005072c3bc667374616e6420e282"
     "ac2033312e370100000000000080ffffffffffffffffffffffff0000008001ffffff7f13000000e697a5e69c"
     "ace8aa9e20f09d849e2033312e38110000004bc3bc686c657209f09f94a72033312e39ffffffff010000ffff"
     "0e0000007361792022c3a9222033312e3130710ff178130000006261636b5c736c61736820c39f2033312e31"
     "31130000005ac3bc6e64756e6720f09f9a972033312e3132db76d7e801d7026035140000005072c3bc667374"
     "616e6420e282ac2033312e31330000000001000000bf95b95a000000000400000000ffff800114000000e697"
     "a5e69cace8aa9e20f09d849e2033312e3134120000004bc3bc686c657209f09f94a72033312e3135778368ac"
     "0e0000007361792022c3a9222033312e3136130000006261636b5c736c61736820c39f2033312e3137710ff1"
     "78000000002589281700000000ffffff7fbf95b95a00",
     "02000000010d0000007361792022c3a9222033312e34120000006261636b5c736c61736820c39f2033312e35"
     "00000080120000005ac3bc6e64756e6720f09f9a972033312e36130000005072c3bc667374616e6420e282ac"
     "2033312e370100000000000080ffffffffffffffffffffffff0000008001ffffff7f13000000e697a5e69cac"
     "e8aa9e20f09d849e2033312e38110000004bc3bc686c657209f09f94a72033312e39ffffffff010000ffff0e"
     "0000007361792022c3a9222033312e3130710ff178130000006261636b5c736c61736820c39f2033312e3131"
     "130000005ac3bc6e64756e6720f09f9a972033312e3132db76d7e801d7026035140000005072c3bc66737461"
     "6e6420e282ac2033312e31330000000001000000bf95b95a000000000400000000ffff800114000000e697a5"
     "e69cace8aa9e20f09d849e2033312e3134120000004bc3bc686c657209f09f94a72033312e3135778368ac0e"
     "0000007361792022c3a9222033312e3136130000006261636b5c736c61736820c39f2033312e3137710ff178"
     "000000002589281700000000ffffff7fbf95b95a00",
     0},
    {"sparse", "[\"\",[]]", "[\"\",[]]",
     "[{\"name\":\"\",\"target\":\"\",\"status\":-2147483648,\"versionBefore\":\"\",\"versionA"
     "fter\":\"\",\"size\":9223372036854775809,\"transferred\":18446744073709551615,\"progress"
     "\":4294967295,\"duration\":2147483648,\"error\":{\"code\":2147483647,\"message\":\"\",\""
     "details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "[{\"name\":\"\",\"target\":\"\",\"status\":-2147483648,\"versionBefore\":\"\",\"versionA"
     "fter\":\"\",\"size\":9223372036854775809,\"transferred\":18446744073709551615,\"progress"
     "\":4294967295,\"duration\":2147483648,\"error\":{\"code\":2147483647,\"message\":\"\",\""
     "details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "0000000000000000", "0000000000", "[\"\",[]]", "[\"\",[]]",
     "01020000000100000000000000000000008000000000000000000100000000000080ffffffffffffffffffff"
     "ffff0000008001ffffff7f0000000000000000ffffffff000000",
     "020000000100000000000000000000008000000000000000000100000000000080ffffffffffffffffffffff"
     "ff0000008001ffffff7f0000000000000000ffffffff000000",
     0},
    {"empty", "[\"\",[]]", "[\"\",[]]", "[]", "null", "0000000000000000", "0000000000", "[\"\",[]]",
     "[\"\",[]]", "0100000000", "00000000", 0},
};

struct ExecuteFlashSessionsExport {
    static constexpr const char* operation = "executeFlashSessions";
    using Result = kc::ListResult<FlashSessionResult, release_FlashSessionResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kc::Texts a1(in[1]);
        kel_executeFlashSessions(api, a0.get(), a1.data(), a1.count(), error, &out.data,
                                 &out.count);
    }
};

TEST_F(Flash, executeFlashSessions_Exchange) {
    kc::exchange<ExecuteFlashSessionsExport>(api, kExecuteFlashSessionsCases);
}
TEST_F(Flash, executeFlashSessions_Failure) {
    kc::failure<ExecuteFlashSessionsExport>(api, kExecuteFlashSessionsCases);
}
TEST_F(FlashAdmission, executeFlashSessions) {
    kc::admission<ExecuteFlashSessionsExport>(callers(), kExecuteFlashSessionsCases,
                                              kc::Needs::Operator);
}

struct ExecuteFlashSessionsAsyncExport {
    static constexpr const char* operation = "executeFlashSessionsAsync";
    using Reports = kc::Reports<FlashSessionResult, release_FlashSessionResult_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        const kc::Text a0(in[0]);
        kc::Texts a1(in[1]);
        return kel_executeFlashSessionsAsync(api, a0.get(), a1.data(), a1.count(), error,
                                             &Reports::onReport, &reports);
    }
};

TEST_F(Flash, executeFlashSessionsAsync_Exchange) {
    kc::asyncExchange<ExecuteFlashSessionsAsyncExport>(api, kExecuteFlashSessionsCases);
}
TEST_F(Flash, executeFlashSessionsAsync_Failure) {
    kc::asyncFailure<ExecuteFlashSessionsAsyncExport>(api, kExecuteFlashSessionsCases);
}
TEST_F(FlashAdmission, executeFlashSessionsAsync) {
    kc::asyncAdmission<ExecuteFlashSessionsAsyncExport>(callers(), kExecuteFlashSessionsCases,
                                                        kc::Needs::Operator);
}

const char* const kExecuteFlashSessionsNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 31.1\\ud800\",[\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 31.2\",\"\",\"K\303\274hler\\t\360\237\224\247 31.3\"]]",
    "[\"Pr\303\274fstand \342\202\254 31.1\",[\"\\udc00\346\227\245\346\234\254\350\252\236 "
    "\360\235\204\236 31.2\\ud800\",\"\",\"K\303\274hler\\t\360\237\224\247 31.3\"]]",
};
TEST_F(Flash, executeFlashSessions_TextWithNoUtf8Form) {
    kc::noUtf8<ExecuteFlashSessionsExport>(api, kExecuteFlashSessionsNoUtf8);
}
TEST_F(Flash, executeFlashSessionsAsync_TextWithNoUtf8Form) {
    kc::asyncNoUtf8<ExecuteFlashSessionsAsyncExport>(api, kExecuteFlashSessionsNoUtf8);
}

const kc::Number kNumber117{117, "executeFlashSessions", kExecuteFlashSessionsCases};

TEST_F(FlashByNumber, n117_executeFlashSessions_KelCall) { kc::kelCall(api, kNumber117); }
TEST_F(FlashByNumber, n117_executeFlashSessions_PyCall) { kc::pyCall(api, kNumber117); }
TEST_F(FlashByNumber, n117_executeFlashSessions_Failure) { kc::numberFailure(api, kNumber117); }
TEST_F(FlashByNumber, n117_executeFlashSessions_ShortInput) { kc::shortInput(api, kNumber117); }

// ---- executeFlashSessionsConfig (position 166, number 195) ----

const kc::Case kExecuteFlashSessionsConfigCases[] = {
    {"full",
     "[{\"target\":\"Pr\303\274fstand \342\202\254 166.1\",\"sessions\":[\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 166.2\",\"K\303\274hler\\u0009\360\237\224\247 166"
     ".3\"],\"blockLength\":4294967295,\"stopOnError\":128}]",
     "[{\"target\":\"Pr\303\274fstand \342\202\254 166.1\",\"sessions\":[\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 166.2\",\"K\303\274hler\\u0009\360\237\224\247 166"
     ".3\"],\"blockLength\":4294967295,\"stopOnError\":true}]",
     "[{\"name\":\"say \\\"\303\251\\\" 166.4\",\"target\":\"back\\\\slash \303\237 166.5\",\""
     "status\":-2147483648,\"versionBefore\":\"Z\303\274ndung \360\237\232\227 166.6\",\"versi"
     "onAfter\":\"Pr\303\274fstand \342\202\254 166.7\",\"size\":9223372036854775809,\"transfe"
     "rred\":18446744073709551615,\"progress\":2147483648,\"duration\":2147483647,\"error\":{"
     "\"code\":2147483647,\"message\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 "
     "166.8\",\"details\":\"K\303\274hler\\u0009\360\237\224\247 166.9\",\"subCode\":-1,\"mvci"
     "Error\":{\"code\":-65536,\"codeText\":\"say \\\"\303\251\\\" 166.10\",\"vendorCode\":203"
     "4531955,\"vendorCodeText\":\"back\\\\slash \303\237 166.11\",\"extraText\":\"Z\303\274nd"
     "ung \360\237\232\227 166.12\",\"extraCode\":-394000421},\"negativeResponse\":{\"code\":9"
     "00952535,\"text\":\"Pr\303\274fstand \342\202\254 166.13\",\"value1\":4294967296,\"value"
     "2\":1527579841,\"bytes\":[0,255,255,128]}}},{\"name\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 166.14\",\"target\":\"K\303\274hler\\u0009\360\237\224\247 166.15"
     "\",\"status\":-1407904649,\"versionBefore\":\"say \\\"\303\251\\\" 166.16\",\"versionAft"
     "er\":\"back\\\\slash \303\237 166.17\",\"size\":2034531955,\"transferred\":394000421,\"p"
     "rogress\":1527579841,\"duration\":2034531955,\"error\":null}]",
     "[{\"name\":\"say \\\"\303\251\\\" 166.4\",\"target\":\"back\\\\slash \303\237 166.5\",\""
     "status\":-2147483648,\"versionBefore\":\"Z\303\274ndung \360\237\232\227 166.6\",\"versi"
     "onAfter\":\"Pr\303\274fstand \342\202\254 166.7\",\"size\":9223372036854775809,\"transfe"
     "rred\":18446744073709551615,\"progress\":2147483648,\"duration\":2147483647,\"error\":{"
     "\"code\":2147483647,\"message\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 "
     "166.8\",\"details\":\"K\303\274hler\\u0009\360\237\224\247 166.9\",\"subCode\":-1,\"mvci"
     "Error\":{\"code\":-65536,\"codeText\":\"say \\\"\303\251\\\" 166.10\",\"vendorCode\":203"
     "4531955,\"vendorCodeText\":\"back\\\\slash \303\237 166.11\",\"extraText\":\"Z\303\274nd"
     "ung \360\237\232\227 166.12\",\"extraCode\":-394000421},\"negativeResponse\":{\"code\":9"
     "00952535,\"text\":\"Pr\303\274fstand \342\202\254 166.13\",\"value1\":4294967296,\"value"
     "2\":1527579841,\"bytes\":[0,255,255,128],\"byteCount\":4}}},{\"name\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 166.14\",\"target\":\"K\303\274hler\\u0009\360\237"
     "\224\247 166.15\",\"status\":-1407904649,\"versionBefore\":\"say \\\"\303\251\\\" 166.16"
     "\",\"versionAfter\":\"back\\\\slash \303\237 166.17\",\"size\":2034531955,\"transferred"
     "\":394000421,\"progress\":1527579841,\"duration\":2034531955,\"error\":null}]",
     "140000005072c3bc667374616e6420e282ac203136362e310200000014000000e697a5e69cace8aa9e20f09d"
     "849e203136362e32120000004bc3bc686c657209f09f94a7203136362e33ffffffff01",
     "015072c3bc667374616e6420e282ac203136362e310002000000e697a5e69cace8aa9e20f09d849e20313636"
     "2e32004bc3bc686c657209f09f94a7203136362e3300ffffffff01",
     "[{\"target\":\"Pr\303\274fstand \342\202\254 166.1\",\"sessions\":[\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 166.2\",\"K\303\274hler\\u0009\360\237\224\247 166"
     ".3\"],\"blockLength\":4294967295,\"stopOnError\":true}]",
     "[{\"target\":\"Pr\303\274fstand \342\202\254 166.1\",\"sessions\":[\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 166.2\",\"K\303\274hler\\u0009\360\237\224\247 166"
     ".3\"],\"blockLength\":4294967295,\"stopOnError\":true}]",
     "0102000000010e0000007361792022c3a922203136362e34130000006261636b5c736c61736820c39f203136"
     "362e3500000080130000005ac3bc6e64756e6720f09f9a97203136362e36140000005072c3bc667374616e64"
     "20e282ac203136362e370100000000000080ffffffffffffffff00000080ffffff7f01ffffff7f14000000e6"
     "97a5e69cace8aa9e20f09d849e203136362e38120000004bc3bc686c657209f09f94a7203136362e39ffffff"
     "ff010000ffff0f0000007361792022c3a922203136362e3130737e4479140000006261636b5c736c61736820"
     "c39f203136362e3131140000005ac3bc6e64756e6720f09f9a97203136362e3132db0784e801d771b3351500"
     "00005072c3bc667374616e6420e282ac203136362e31330000000001000000c1040d5b000000000400000000"
     "ffff800115000000e697a5e69cace8aa9e20f09d849e203136362e3134130000004bc3bc686c657209f09f94"
     "a7203136362e3135771415ac0f0000007361792022c3a922203136362e3136140000006261636b5c736c6173"
     "6820c39f203136362e3137737e44790000000025f87b1700000000c1040d5b737e447900",
     "02000000010e0000007361792022c3a922203136362e34130000006261636b5c736c61736820c39f20313636"
     "2e3500000080130000005ac3bc6e64756e6720f09f9a97203136362e36140000005072c3bc667374616e6420"
     "e282ac203136362e370100000000000080ffffffffffffffff00000080ffffff7f01ffffff7f14000000e697"
     "a5e69cace8aa9e20f09d849e203136362e38120000004bc3bc686c657209f09f94a7203136362e39ffffffff"
     "010000ffff0f0000007361792022c3a922203136362e3130737e4479140000006261636b5c736c61736820c3"
     "9f203136362e3131140000005ac3bc6e64756e6720f09f9a97203136362e3132db0784e801d771b335150000"
     "005072c3bc667374616e6420e282ac203136362e31330000000001000000c1040d5b000000000400000000ff"
     "ff800115000000e697a5e69cace8aa9e20f09d849e203136362e3134130000004bc3bc686c657209f09f94a7"
     "203136362e3135771415ac0f0000007361792022c3a922203136362e3136140000006261636b5c736c617368"
     "20c39f203136362e3137737e44790000000025f87b1700000000c1040d5b737e447900",
     0},
    {"sparse", "[null]", "[null]",
     "[{\"name\":\"\",\"target\":\"\",\"status\":-2147483648,\"versionBefore\":\"\",\"versionA"
     "fter\":\"\",\"size\":9223372036854775809,\"transferred\":18446744073709551615,\"progress"
     "\":4294967295,\"duration\":2147483648,\"error\":{\"code\":2147483647,\"message\":\"\",\""
     "details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "[{\"name\":\"\",\"target\":\"\",\"status\":-2147483648,\"versionBefore\":\"\",\"versionA"
     "fter\":\"\",\"size\":9223372036854775809,\"transferred\":18446744073709551615,\"progress"
     "\":4294967295,\"duration\":2147483648,\"error\":{\"code\":2147483647,\"message\":\"\",\""
     "details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "00000000000000000000000000", "00",
     "[{\"target\":\"\",\"sessions\":[],\"blockLength\":0,\"stopOnError\":false}]", "[null]",
     "01020000000100000000000000000000008000000000000000000100000000000080ffffffffffffffffffff"
     "ffff0000008001ffffff7f0000000000000000ffffffff000000",
     "020000000100000000000000000000008000000000000000000100000000000080ffffffffffffffffffffff"
     "ff0000008001ffffff7f0000000000000000ffffffff000000",
     0},
    {"empty", "[null]", "[null]", "[]", "null", "00000000000000000000000000", "00",
     "[{\"target\":\"\",\"sessions\":[],\"blockLength\":0,\"stopOnError\":false}]", "[null]",
     "0100000000", "00000000", 0},
};

struct ExecuteFlashSessionsConfigExport {
    static constexpr const char* operation = "executeFlashSessionsConfig";
    using Result = kc::ListResult<FlashSessionResult, release_FlashSessionResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kel_executeFlashSessionsConfig(api, kc::record<FlashSessionsConfig>(in[0]), error,
                                       &out.data, &out.count);
    }
};

TEST_F(Flash, executeFlashSessionsConfig_Exchange) {
    kc::exchange<ExecuteFlashSessionsConfigExport>(api, kExecuteFlashSessionsConfigCases);
}
TEST_F(Flash, executeFlashSessionsConfig_Failure) {
    kc::failure<ExecuteFlashSessionsConfigExport>(api, kExecuteFlashSessionsConfigCases);
}
TEST_F(FlashAdmission, executeFlashSessionsConfig) {
    kc::admission<ExecuteFlashSessionsConfigExport>(callers(), kExecuteFlashSessionsConfigCases,
                                                    kc::Needs::Operator);
}

struct ExecuteFlashSessionsConfigAsyncExport {
    static constexpr const char* operation = "executeFlashSessionsConfigAsync";
    using Reports = kc::Reports<FlashSessionResult, release_FlashSessionResult_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        return kel_executeFlashSessionsConfigAsync(api, kc::record<FlashSessionsConfig>(in[0]),
                                                   error, &Reports::onReport, &reports);
    }
};

TEST_F(Flash, executeFlashSessionsConfigAsync_Exchange) {
    kc::asyncExchange<ExecuteFlashSessionsConfigAsyncExport>(api, kExecuteFlashSessionsConfigCases);
}
TEST_F(Flash, executeFlashSessionsConfigAsync_Failure) {
    kc::asyncFailure<ExecuteFlashSessionsConfigAsyncExport>(api, kExecuteFlashSessionsConfigCases);
}
TEST_F(FlashAdmission, executeFlashSessionsConfigAsync) {
    kc::asyncAdmission<ExecuteFlashSessionsConfigAsyncExport>(
        callers(), kExecuteFlashSessionsConfigCases, kc::Needs::Operator);
}

const char* const kExecuteFlashSessionsConfigNoUtf8[] = {
    "[{\"target\":\"\\udc00Pr\303\274fstand \342\202\254 166.1\\ud800\",\"sessions\":[\"\346"
    "\227\245\346\234\254\350\252\236 \360\235\204\236 166.2\",\"K\303\274hler\\t\360\237\224"
    "\247 166.3\"],\"blockLength\":4294967295,\"stopOnError\":128}]",
    "[{\"target\":\"Pr\303\274fstand \342\202\254 166.1\",\"sessions\":[\"\\udc00\346\227\245"
    "\346\234\254\350\252\236 \360\235\204\236 166.2\\ud800\",\"K\303\274hler\\t\360\237\224"
    "\247 166.3\"],\"blockLength\":4294967295,\"stopOnError\":128}]",
};
TEST_F(Flash, executeFlashSessionsConfig_TextWithNoUtf8Form) {
    kc::noUtf8<ExecuteFlashSessionsConfigExport>(api, kExecuteFlashSessionsConfigNoUtf8);
}
TEST_F(Flash, executeFlashSessionsConfigAsync_TextWithNoUtf8Form) {
    kc::asyncNoUtf8<ExecuteFlashSessionsConfigAsyncExport>(api, kExecuteFlashSessionsConfigNoUtf8);
}

const kc::Number kNumber195{195, "executeFlashSessionsConfig", kExecuteFlashSessionsConfigCases};

TEST_F(FlashByNumber, n195_executeFlashSessionsConfig_KelCall) { kc::kelCall(api, kNumber195); }
TEST_F(FlashByNumber, n195_executeFlashSessionsConfig_PyCall) { kc::pyCall(api, kNumber195); }
TEST_F(FlashByNumber, n195_executeFlashSessionsConfig_Failure) {
    kc::numberFailure(api, kNumber195);
}
TEST_F(FlashByNumber, n195_executeFlashSessionsConfig_ShortInput) {
    kc::shortInput(api, kNumber195);
}

} // namespace
