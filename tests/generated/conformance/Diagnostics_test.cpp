// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family Diagnostics: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using Diagnostics = kc::ConformanceTest;
using DiagnosticsByNumber = kc::ConformanceTest;
using DiagnosticsAdmission = kc::AdmissionTest;

// ---- identifyAllTargets (position 17, number 17) ----

const kc::Case kIdentifyAllTargetsCases[] = {
    {"full", "[]", "[]",
     "[{\"target\":\"Pr\303\274fstand \342\202\254 17.1\",\"status\":-2147483648,\"error\":{\""
     "code\":2147483647,\"message\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 17"
     ".2\",\"details\":\"K\303\274hler\\u0009\360\237\224\247 17.3\",\"subCode\":-1,\"mvciErro"
     "r\":{\"code\":-65536,\"codeText\":\"say \\\"\303\251\\\" 17.4\",\"vendorCode\":202849700"
     "7,\"vendorCodeText\":\"back\\\\slash \303\237 17.5\",\"extraText\":\"Z\303\274ndung \360"
     "\237\232\227 17.6\",\"extraCode\":-387965475},\"negativeResponse\":{\"code\":894917589,"
     "\"text\":\"Pr\303\274fstand \342\202\254 17.7\",\"value1\":9223372036854775809,\"value2"
     "\":18446744073709551615,\"bytes\":[0,255,255,128]}},\"variant\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 17.8\"},{\"target\":\"K\303\274hler\\u0009\360\237\224"
     "\247 17.9\",\"status\":-1401869703,\"error\":null,\"variant\":\"say \\\"\303\251\\\" 17."
     "10\"}]",
     "[{\"target\":\"Pr\303\274fstand \342\202\254 17.1\",\"status\":-2147483648,\"error\":{\""
     "code\":2147483647,\"message\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 17"
     ".2\",\"details\":\"K\303\274hler\\u0009\360\237\224\247 17.3\",\"subCode\":-1,\"mvciErro"
     "r\":{\"code\":-65536,\"codeText\":\"say \\\"\303\251\\\" 17.4\",\"vendorCode\":202849700"
     "7,\"vendorCodeText\":\"back\\\\slash \303\237 17.5\",\"extraText\":\"Z\303\274ndung \360"
     "\237\232\227 17.6\",\"extraCode\":-387965475},\"negativeResponse\":{\"code\":894917589,"
     "\"text\":\"Pr\303\274fstand \342\202\254 17.7\",\"value1\":9223372036854775809,\"value2"
     "\":18446744073709551615,\"bytes\":[0,255,255,128],\"byteCount\":4}},\"variant\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 17.8\"},{\"target\":\"K\303\274hler\\u"
     "0009\360\237\224\247 17.9\",\"status\":-1401869703,\"error\":null,\"variant\":\"say \\\""
     "\303\251\\\" 17.10\"}]",
     "", "", "[]", "[]",
     "010200000001130000005072c3bc667374616e6420e282ac2031372e310000008001ffffff7f13000000e697"
     "a5e69cace8aa9e20f09d849e2031372e32110000004bc3bc686c657209f09f94a72031372e33ffffffff0100"
     "00ffff0d0000007361792022c3a9222031372e346f68e878120000006261636b5c736c61736820c39f203137"
     "2e35120000005ac3bc6e64756e6720f09f9a972031372e36dd1de0e801d55b5735130000005072c3bc667374"
     "616e6420e282ac2031372e370100000000000080ffffffffffffffff0400000000ffff8013000000e697a5e6"
     "9cace8aa9e20f09d849e2031372e3801110000004bc3bc686c657209f09f94a72031372e39792a71ac000e00"
     "00007361792022c3a9222031372e3130",
     "0200000001130000005072c3bc667374616e6420e282ac2031372e310000008001ffffff7f13000000e697a5"
     "e69cace8aa9e20f09d849e2031372e32110000004bc3bc686c657209f09f94a72031372e33ffffffff010000"
     "ffff0d0000007361792022c3a9222031372e346f68e878120000006261636b5c736c61736820c39f2031372e"
     "35120000005ac3bc6e64756e6720f09f9a972031372e36dd1de0e801d55b5735130000005072c3bc66737461"
     "6e6420e282ac2031372e370100000000000080ffffffffffffffff0400000000ffff8013000000e697a5e69c"
     "ace8aa9e20f09d849e2031372e3801110000004bc3bc686c657209f09f94a72031372e39792a71ac000e0000"
     "007361792022c3a9222031372e3130",
     0},
    {"sparse", "[]", "[]",
     "[{\"target\":\"\",\"status\":-2147483648,\"error\":{\"code\":2147483647,\"message\":\"\""
     ",\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null},\"variant"
     "\":\"\"},null]",
     "[{\"target\":\"\",\"status\":-2147483648,\"error\":{\"code\":2147483647,\"message\":\"\""
     ",\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null},\"variant"
     "\":\"\"},null]",
     "", "", "[]", "[]",
     "010200000001000000000000008001ffffff7f0000000000000000ffffffff00000000000000",
     "0200000001000000000000008001ffffff7f0000000000000000ffffffff00000000000000", 0},
    {"empty", "[]", "[]", "[]", "null", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct IdentifyAllTargetsExport {
    static constexpr const char* operation = "identifyAllTargets";
    using Result = kc::ListResult<VariantIdentResult, release_VariantIdentResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_identifyAllTargets(api, error, &out.data, &out.count);
    }
};

TEST_F(Diagnostics, identifyAllTargets_Exchange) {
    kc::exchange<IdentifyAllTargetsExport>(api, kIdentifyAllTargetsCases);
}
TEST_F(Diagnostics, identifyAllTargets_Failure) {
    kc::failure<IdentifyAllTargetsExport>(api, kIdentifyAllTargetsCases);
}
TEST_F(DiagnosticsAdmission, identifyAllTargets) {
    kc::admission<IdentifyAllTargetsExport>(callers(), kIdentifyAllTargetsCases,
                                            kc::Needs::Operator);
}

struct IdentifyAllTargetsAsyncExport {
    static constexpr const char* operation = "identifyAllTargetsAsync";
    using Reports = kc::Reports<VariantIdentResult, release_VariantIdentResult_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        static_cast<void>(in);
        return kel_identifyAllTargetsAsync(api, error, &Reports::onReport, &reports);
    }
};

TEST_F(Diagnostics, identifyAllTargetsAsync_Exchange) {
    kc::asyncExchange<IdentifyAllTargetsAsyncExport>(api, kIdentifyAllTargetsCases);
}
TEST_F(Diagnostics, identifyAllTargetsAsync_Failure) {
    kc::asyncFailure<IdentifyAllTargetsAsyncExport>(api, kIdentifyAllTargetsCases);
}
TEST_F(DiagnosticsAdmission, identifyAllTargetsAsync) {
    kc::asyncAdmission<IdentifyAllTargetsAsyncExport>(callers(), kIdentifyAllTargetsCases,
                                                      kc::Needs::Operator);
}

const kc::Number kNumber17{17, "identifyAllTargets", kIdentifyAllTargetsCases};

TEST_F(DiagnosticsByNumber, n17_identifyAllTargets_KelCall) { kc::kelCall(api, kNumber17); }
TEST_F(DiagnosticsByNumber, n17_identifyAllTargets_PyCall) { kc::pyCall(api, kNumber17); }
TEST_F(DiagnosticsByNumber, n17_identifyAllTargets_Failure) { kc::numberFailure(api, kNumber17); }

// ---- readIdentificationValues (position 19, number 19) ----

const kc::Case kReadIdentificationValuesCases[] = {
    {"full",
     "[[\"Pr\303\274fstand \342\202\254 19.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 19.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 19.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 19.2\"]]",
     "[{\"target\":\"K\303\274hler\\u0009\360\237\224\247 19.3\",\"status\":-2147483648,\"text"
     "\":\"say \\\"\303\251\\\" 19.4\",\"error\":{\"code\":2147483647,\"message\":\"back\\\\sl"
     "ash \303\237 19.5\",\"details\":\"Z\303\274ndung \360\237\232\227 19.6\",\"subCode\":-1,"
     "\"mvciError\":{\"code\":-65536,\"codeText\":\"Pr\303\274fstand \342\202\254 19.7\",\"ven"
     "dorCode\":2028578013,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 19.8\",\"extraText\":\"K\303\274hler\\u0009\360\237\224\247 19.9\",\"extraCode"
     "\":-388046481},\"negativeResponse\":{\"code\":894998595,\"text\":\"say \\\"\303\251\\\" "
     "19.10\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,"
     "255,128]}},\"parameters\":[{\"itemText1\":\"back\\\\slash \303\237 19.11\",\"itemText2\""
     ":\"Z\303\274ndung \360\237\232\227 19.12\",\"itemText3\":\"Pr\303\274fstand \342\202\254"
     " 19.13\",\"itemText4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 19.14\","
     "\"text1\":\"K\303\274hler\\u0009\360\237\224\247 19.15\",\"text2\":\"say \\\"\303\251\\"
     "\" 19.16\",\"value1\":-1401950709,\"children\":[{\"itemText1\":\"back\\\\slash \303\237 "
     "19.17\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 19.18\",\"itemText3\":\"Pr\303"
     "\274fstand \342\202\254 19.19\",\"itemText4\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 19.20\",\"text1\":\"K\303\274hler\\u0009\360\237\224\247 19.21\",\"text"
     "2\":\"say \\\"\303\251\\\" 19.22\",\"value1\":1908902823,\"children\":[{\"itemText1\":\""
     "back\\\\slash \303\237 19.23\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 19.24\","
     "\"itemText3\":\"Pr\303\274fstand \342\202\254 19.25\",\"itemText4\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 19.26\",\"text1\":\"K\303\274hler\\u0009\360\237"
     "\224\247 19.27\",\"text2\":\"say \\\"\303\251\\\" 19.28\",\"value1\":-268371289,\"childr"
     "en\":[],\"text3\":\"back\\\\slash \303\237 19.29\",\"error\":{\"code\":775323403,\"messa"
     "ge\":\"Z\303\274ndung \360\237\232\227 19.30\",\"details\":\"Pr\303\274fstand \342\202"
     "\254 19.31\",\"subCode\":-1282275517,\"mvciError\":null,\"negativeResponse\":null},\"tex"
     "t4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 19.32\",\"value2\":17892276"
     "31,\"data\":[0,255,127,1],\"value3\":4294967295,\"flag\":227,\"value4\":-148696099},{\"i"
     "temText1\":\"K\303\274hler\\u0009\360\237\224\247 19.33\",\"itemText2\":\"say \\\"\303"
     "\251\\\" 19.34\",\"itemText3\":\"back\\\\slash \303\237 19.35\",\"itemText4\":\"Z\303"
     "\274ndung \360\237\232\227 19.36\",\"text1\":\"Pr\303\274fstand \342\202\254 19.37\",\"t"
     "ext2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 19.38\",\"value1\":655648"
     "213,\"children\":[],\"text3\":\"K\303\274hler\\u0009\360\237\224\247 19.39\",\"error\":n"
     "ull,\"text4\":\"say \\\"\303\251\\\" 19.40\",\"value2\":-1162600327,\"data\":[0,255,210,"
     "229],\"value3\":2147483648,\"flag\":212,\"value4\":1669552441}],\"text3\":\"back\\\\slas"
     "h \303\237 19.41\",\"error\":{\"code\":-29020907,\"message\":\"Z\303\274ndung \360\237"
     "\232\227 19.42\",\"details\":\"Pr\303\274fstand \342\202\254 19.43\",\"subCode\":5359730"
     "21,\"mvciError\":{\"code\":-1042925135,\"codeText\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 19.44\",\"vendorCode\":1549877249,\"vendorCodeText\":\"K\303\274hl"
     "er\\u0009\360\237\224\247 19.45\",\"extraText\":\"say \\\"\303\251\\\" 19.46\",\"extraCo"
     "de\":-2056829363},\"negativeResponse\":{\"code\":416297831,\"text\":\"back\\\\slash \303"
     "\237 19.47\",\"value1\":4294967296,\"value2\":1521625899,\"bytes\":[0,255,231,214]}},\"t"
     "ext4\":\"Z\303\274ndung \360\237\232\227 19.48\",\"value2\":-923249945,\"data\":[0,255,2"
     "33,216],\"value3\":2147483647,\"flag\":235,\"value4\":1430202059},{\"itemText1\":\"Pr"
     "\303\274fstand \342\202\254 19.49\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236"
     " \360\235\204\236 19.50\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 19.51\","
     "\"itemText4\":\"say \\\"\303\251\\\" 19.52\",\"text1\":\"back\\\\slash \303\237 19.53\","
     "\"text2\":\"Z\303\274ndung \360\237\232\227 19.54\",\"value1\":-1937154173,\"children\":"
     "[],\"text3\":\"Pr\303\274fstand \342\202\254 19.55\",\"error\":null,\"text4\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 19.56\",\"value2\":296622639,\"data\":[0,2"
     "55,218,237],\"value3\":1521625899,\"flag\":220,\"value4\":-803574753}],\"text3\":\"K\303"
     "\274hler\\u0009\360\237\224\247 19.57\",\"error\":{\"code\":1310526867,\"message\":\"say"
     " \\\"\303\251\\\" 19.58\",\"details\":\"back\\\\slash \303\237 19.59\",\"subCode\":-1817"
     "478981,\"mvciError\":{\"code\":176947449,\"codeText\":\"Z\303\274ndung \360\237\232\227 "
     "19.60\",\"vendorCode\":-683899563,\"vendorCodeText\":\"Pr\303\274fstand \342\202\254 19."
     "61\",\"extraText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 19.62\",\"ext"
     "raCode\":1190851677},\"negativeResponse\":{\"code\":-1697803791,\"text\":\"K\303\274hler"
     "\\u0009\360\237\224\247 19.63\",\"value1\":2028578013,\"value2\":388046481,\"bytes\":[0,"
     "255,239,222]}},\"text4\":\"say \\\"\303\251\\\" 19.64\",\"value2\":57272257,\"data\":[0,"
     "255,241,224],\"value3\":2028578013,\"flag\":243,\"value4\":-564224371},{\"itemText1\":\""
     "back\\\\slash \303\237 19.65\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 19.66\","
     "\"itemText3\":\"Pr\303\274fstand \342\202\254 19.67\",\"itemText4\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 19.68\",\"text1\":\"K\303\274hler\\u0009\360\237"
     "\224\247 19.69\",\"text2\":\"say \\\"\303\251\\\" 19.70\",\"value1\":1071176485,\"childr"
     "en\":[],\"text3\":\"back\\\\slash \303\237 19.71\",\"error\":null,\"text4\":\"Z\303\274n"
     "dung \360\237\232\227 19.72\",\"value2\":-1578128599,\"data\":[0,255,226,245],\"value3\""
     ":388046481,\"flag\":228,\"value4\":2085080713}]},{\"target\":\"Pr\303\274fstand \342\202"
     "\254 19.73\",\"status\":-444549181,\"text\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 19.74\",\"error\":null,\"parameters\":[]}]",
     "[{\"target\":\"K\303\274hler\\u0009\360\237\224\247 19.3\",\"status\":-2147483648,\"text"
     "\":\"say \\\"\303\251\\\" 19.4\",\"error\":{\"code\":2147483647,\"message\":\"back\\\\sl"
     "ash \303\237 19.5\",\"details\":\"Z\303\274ndung \360\237\232\227 19.6\",\"subCode\":-1,"
     "\"mvciError\":{\"code\":-65536,\"codeText\":\"Pr\303\274fstand \342\202\254 19.7\",\"ven"
     "dorCode\":2028578013,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 19.8\",\"extraText\":\"K\303\274hler\\u0009\360\237\224\247 19.9\",\"extraCode"
     "\":-388046481},\"negativeResponse\":{\"code\":894998595,\"text\":\"say \\\"\303\251\\\" "
     "19.10\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,"
     "255,128],\"byteCount\":4}},\"parameters\":[{\"itemText1\":\"back\\\\slash \303\237 19.11"
     "\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 19.12\",\"itemText3\":\"Pr\303\274fst"
     "and \342\202\254 19.13\",\"itemText4\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 19.14\",\"text1\":\"K\303\274hler\\u0009\360\237\224\247 19.15\",\"text2\":\"sa"
     "y \\\"\303\251\\\" 19.16\",\"value1\":-1401950709,\"children\":[{\"itemText1\":\"back\\"
     "\\slash \303\237 19.17\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 19.18\",\"itemT"
     "ext3\":\"Pr\303\274fstand \342\202\254 19.19\",\"itemText4\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 19.20\",\"text1\":\"K\303\274hler\\u0009\360\237\224\247 1"
     "9.21\",\"text2\":\"say \\\"\303\251\\\" 19.22\",\"value1\":1908902823,\"children\":[{\"i"
     "temText1\":\"back\\\\slash \303\237 19.23\",\"itemText2\":\"Z\303\274ndung \360\237\232"
     "\227 19.24\",\"itemText3\":\"Pr\303\274fstand \342\202\254 19.25\",\"itemText4\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 19.26\",\"text1\":\"K\303\274hler\\u00"
     "09\360\237\224\247 19.27\",\"text2\":\"say \\\"\303\251\\\" 19.28\",\"value1\":-26837128"
     "9,\"children\":null,\"childCount\":0,\"text3\":\"back\\\\slash \303\237 19.29\",\"error"
     "\":{\"code\":775323403,\"message\":\"Z\303\274ndung \360\237\232\227 19.30\",\"details\""
     ":\"Pr\303\274fstand \342\202\254 19.31\",\"subCode\":-1282275517,\"mvciError\":null,\"ne"
     "gativeResponse\":null},\"text4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236"
     " 19.32\",\"value2\":1789227631,\"data\":[0,255,127,1],\"dataLength\":4,\"value3\":429496"
     "7295,\"flag\":227,\"value4\":-148696099},{\"itemText1\":\"K\303\274hler\\u0009\360\237"
     "\224\247 19.33\",\"itemText2\":\"say \\\"\303\251\\\" 19.34\",\"itemText3\":\"back\\\\sl"
     "ash \303\237 19.35\",\"itemText4\":\"Z\303\274ndung \360\237\232\227 19.36\",\"text1\":"
     "\"Pr\303\274fstand \342\202\254 19.37\",\"text2\":\"\346\227\245\346\234\254\350\252\236"
     " \360\235\204\236 19.38\",\"value1\":655648213,\"children\":null,\"childCount\":0,\"text"
     "3\":\"K\303\274hler\\u0009\360\237\224\247 19.39\",\"error\":null,\"text4\":\"say \\\""
     "\303\251\\\" 19.40\",\"value2\":-1162600327,\"data\":[0,255,210,229],\"dataLength\":4,\""
     "value3\":2147483648,\"flag\":212,\"value4\":1669552441}],\"childCount\":2,\"text3\":\"ba"
     "ck\\\\slash \303\237 19.41\",\"error\":{\"code\":-29020907,\"message\":\"Z\303\274ndung "
     "\360\237\232\227 19.42\",\"details\":\"Pr\303\274fstand \342\202\254 19.43\",\"subCode\""
     ":535973021,\"mvciError\":{\"code\":-1042925135,\"codeText\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 19.44\",\"vendorCode\":1549877249,\"vendorCodeText\":\"K"
     "\303\274hler\\u0009\360\237\224\247 19.45\",\"extraText\":\"say \\\"\303\251\\\" 19.46\""
     ",\"extraCode\":-2056829363},\"negativeResponse\":{\"code\":416297831,\"text\":\"back\\\\"
     "slash \303\237 19.47\",\"value1\":4294967296,\"value2\":1521625899,\"bytes\":[0,255,231,"
     "214],\"byteCount\":4}},\"text4\":\"Z\303\274ndung \360\237\232\227 19.48\",\"value2\":-9"
     "23249945,\"data\":[0,255,233,216],\"dataLength\":4,\"value3\":2147483647,\"flag\":235,\""
     "value4\":1430202059},{\"itemText1\":\"Pr\303\274fstand \342\202\254 19.49\",\"itemText2"
     "\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 19.50\",\"itemText3\":\"K\303"
     "\274hler\\u0009\360\237\224\247 19.51\",\"itemText4\":\"say \\\"\303\251\\\" 19.52\",\"t"
     "ext1\":\"back\\\\slash \303\237 19.53\",\"text2\":\"Z\303\274ndung \360\237\232\227 19.5"
     "4\",\"value1\":-1937154173,\"children\":null,\"childCount\":0,\"text3\":\"Pr\303\274fsta"
     "nd \342\202\254 19.55\",\"error\":null,\"text4\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 19.56\",\"value2\":296622639,\"data\":[0,255,218,237],\"dataLength\":4,"
     "\"value3\":1521625899,\"flag\":220,\"value4\":-803574753}],\"childCount\":2,\"text3\":\""
     "K\303\274hler\\u0009\360\237\224\247 19.57\",\"error\":{\"code\":1310526867,\"message\":"
     "\"say \\\"\303\251\\\" 19.58\",\"details\":\"back\\\\slash \303\237 19.59\",\"subCode\":"
     "-1817478981,\"mvciError\":{\"code\":176947449,\"codeText\":\"Z\303\274ndung \360\237\232"
     "\227 19.60\",\"vendorCode\":-683899563,\"vendorCodeText\":\"Pr\303\274fstand \342\202"
     "\254 19.61\",\"extraText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 19.62"
     "\",\"extraCode\":1190851677},\"negativeResponse\":{\"code\":-1697803791,\"text\":\"K\303"
     "\274hler\\u0009\360\237\224\247 19.63\",\"value1\":2028578013,\"value2\":388046481,\"byt"
     "es\":[0,255,239,222],\"byteCount\":4}},\"text4\":\"say \\\"\303\251\\\" 19.64\",\"value2"
     "\":57272257,\"data\":[0,255,241,224],\"dataLength\":4,\"value3\":2028578013,\"flag\":243"
     ",\"value4\":-564224371},{\"itemText1\":\"back\\\\slash \303\237 19.65\",\"itemText2\":\""
     "Z\303\274ndung \360\237\232\227 19.66\",\"itemText3\":\"Pr\303\274fstand \342\202\254 19"
     ".67\",\"itemText4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 19.68\",\"te"
     "xt1\":\"K\303\274hler\\u0009\360\237\224\247 19.69\",\"text2\":\"say \\\"\303\251\\\" 19"
     ".70\",\"value1\":1071176485,\"children\":null,\"childCount\":0,\"text3\":\"back\\\\slash"
     " \303\237 19.71\",\"error\":null,\"text4\":\"Z\303\274ndung \360\237\232\227 19.72\",\"v"
     "alue2\":-1578128599,\"data\":[0,255,226,245],\"dataLength\":4,\"value3\":388046481,\"fla"
     "g\":228,\"value4\":2085080713}],\"parameterCount\":2},{\"target\":\"Pr\303\274fstand "
     "\342\202\254 19.73\",\"status\":-444549181,\"text\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 19.74\",\"error\":null,\"parameters\":null,\"parameterCount\":0}]",
     "03000000130000005072c3bc667374616e6420e282ac2031392e310000000013000000e697a5e69cace8aa9e"
     "20f09d849e2031392e32",
     "030000005072c3bc667374616e6420e282ac2031392e310000e697a5e69cace8aa9e20f09d849e2031392e32"
     "00",
     "[[\"Pr\303\274fstand \342\202\254 19.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 19.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 19.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 19.2\"]]",
     "010200000001110000004bc3bc686c657209f09f94a72031392e33000000800d0000007361792022c3a92220"
     "31392e3401ffffff7f120000006261636b5c736c61736820c39f2031392e35120000005ac3bc6e64756e6720"
     "f09f9a972031392e36ffffffff010000ffff130000005072c3bc667374616e6420e282ac2031392e37dda4e9"
     "7813000000e697a5e69cace8aa9e20f09d849e2031392e38110000004bc3bc686c657209f09f94a72031392e"
     "396fe1dee801439858350e0000007361792022c3a9222031392e31300100000000000080ffffffffffffffff"
     "0400000000ffff800200000001130000006261636b5c736c61736820c39f2031392e3131130000005ac3bc6e"
     "64756e6720f09f9a972031392e3132140000005072c3bc667374616e6420e282ac2031392e313314000000e6"
     "97a5e69cace8aa9e20f09d849e2031392e3134120000004bc3bc686c657209f09f94a72031392e31350e0000"
     "007361792022c3a9222031392e31360bee6fac0200000001130000006261636b5c736c61736820c39f203139"
     "2e3137130000005ac3bc6e64756e6720f09f9a972031392e3138140000005072c3bc667374616e6420e282ac"
     "2031392e313914000000e697a5e69cace8aa9e20f09d849e2031392e3230120000004bc3bc686c657209f09f"
     "94a72031392e32310e0000007361792022c3a9222031392e3232a78bc7710200000001130000006261636b5c"
     "736c61736820c39f2031392e3233130000005ac3bc6e64756e6720f09f9a972031392e3234140000005072c3"
     "bc667374616e6420e282ac2031392e323514000000e697a5e69cace8aa9e20f09d849e2031392e3236120000"
     "004bc3bc686c657209f09f94a72031392e32370e0000007361792022c3a9222031392e3238a7fa00f0000000"
     "00130000006261636b5c736c61736820c39f2031392e3239010b7f362e130000005ac3bc6e64756e6720f09f"
     "9a972031392e3330140000005072c3bc667374616e6420e282ac2031392e3331430792b3000014000000e697"
     "a5e69cace8aa9e20f09d849e2031392e33326f72a56a0400000000ff7f01ffffffffe3dd1323f70112000000"
     "4bc3bc686c657209f09f94a72031392e33330e0000007361792022c3a9222031392e3334130000006261636b"
     "5c736c61736820c39f2031392e3335130000005ac3bc6e64756e6720f09f9a972031392e3336140000005072"
     "c3bc667374616e6420e282ac2031392e333714000000e697a5e69cace8aa9e20f09d849e2031392e3338d565"
     "142700000000120000004bc3bc686c657209f09f94a72031392e3339000e0000007361792022c3a922203139"
     "2e34307920b4ba0400000000ffd2e500000080d439598363130000006261636b5c736c61736820c39f203139"
     "2e343101152d45fe130000005ac3bc6e64756e6720f09f9a972031392e3432140000005072c3bc667374616e"
     "6420e282ac2031392e34339d4cf21f01b139d6c114000000e697a5e69cace8aa9e20f09d849e2031392e3434"
     "0140615c120000004bc3bc686c657209f09f94a72031392e34350e0000007361792022c3a9222031392e3436"
     "4d466785016733d018130000006261636b5c736c61736820c39f2031392e343700000000010000002b2bb25a"
     "000000000400000000ffe7d6130000005ac3bc6e64756e6720f09f9a972031392e3438e752f8c80400000000"
     "ffe9d8ffffff7febcb263f5501140000005072c3bc667374616e6420e282ac2031392e343914000000e697a5"
     "e69cace8aa9e20f09d849e2031392e3530120000004bc3bc686c657209f09f94a72031392e35310e00000073"
     "61792022c3a9222031392e3532130000006261636b5c736c61736820c39f2031392e3533130000005ac3bc6e"
     "64756e6720f09f9a972031392e3534835f898c00000000140000005072c3bc667374616e6420e282ac203139"
     "2e35350014000000e697a5e69cace8aa9e20f09d849e2031392e35362f1aae110400000000ffdaed2b2bb25a"
     "dc1f6c1ad0120000004bc3bc686c657209f09f94a72031392e353701930d1d4e0e0000007361792022c3a922"
     "2031392e3538130000006261636b5c736c61736820c39f2031392e3539bb78ab9301f9008c0a130000005ac3"
     "bc6e64756e6720f09f9a972031392e363055853cd7140000005072c3bc667374616e6420e282ac2031392e36"
     "3114000000e697a5e69cace8aa9e20f09d849e2031392e36325df4fa4601f191cd9a120000004bc3bc686c65"
     "7209f09f94a72031392e3633dda4e97800000000911e2117000000000400000000ffefde0e00000073617920"
     "22c3a9222031392e3634c1e769030400000000fff1e0dda4e978f38d9e5ede01130000006261636b5c736c61"
     "736820c39f2031392e3635130000005ac3bc6e64756e6720f09f9a972031392e3636140000005072c3bc6673"
     "74616e6420e282ac2031392e363714000000e697a5e69cace8aa9e20f09d849e2031392e3638120000004bc3"
     "bc686c657209f09f94a72031392e36390e0000007361792022c3a9222031392e373025dbd83f000000001300"
     "00006261636b5c736c61736820c39f2031392e373100130000005ac3bc6e64756e6720f09f9a972031392e37"
     "3229abefa10400000000ffe2f5911e2117e489ce477c01140000005072c3bc667374616e6420e282ac203139"
     "2e3733c3b780e514000000e697a5e69cace8aa9e20f09d849e2031392e37340000000000",
     "0200000001110000004bc3bc686c657209f09f94a72031392e33000000800d0000007361792022c3a9222031"
     "392e3401ffffff7f120000006261636b5c736c61736820c39f2031392e35120000005ac3bc6e64756e6720f0"
     "9f9a972031392e36ffffffff010000ffff130000005072c3bc667374616e6420e282ac2031392e37dda4e978"
     "13000000e697a5e69cace8aa9e20f09d849e2031392e38110000004bc3bc686c657209f09f94a72031392e39"
     "6fe1dee801439858350e0000007361792022c3a9222031392e31300100000000000080ffffffffffffffff04"
     "00000000ffff800200000001130000006261636b5c736c61736820c39f2031392e3131130000005ac3bc6e64"
     "756e6720f09f9a972031392e3132140000005072c3bc667374616e6420e282ac2031392e313314000000e697"
     "a5e69cace8aa9e20f09d849e2031392e3134120000004bc3bc686c657209f09f94a72031392e31350e000000"
     "7361792022c3a9222031392e31360bee6fac0200000001130000006261636b5c736c61736820c39f2031392e"
     "3137130000005ac3bc6e64756e6720f09f9a972031392e3138140000005072c3bc667374616e6420e282ac20"
     "31392e313914000000e697a5e69cace8aa9e20f09d849e2031392e3230120000004bc3bc686c657209f09f94"
     "a72031392e32310e0000007361792022c3a9222031392e3232a78bc7710200000001130000006261636b5c73"
     "6c61736820c39f2031392e3233130000005ac3bc6e64756e6720f09f9a972031392e3234140000005072c3bc"
     "667374616e6420e282ac2031392e323514000000e697a5e69cace8aa9e20f09d849e2031392e323612000000"
     "4bc3bc686c657209f09f94a72031392e32370e0000007361792022c3a9222031392e3238a7fa00f000000000"
     "130000006261636b5c736c61736820c39f2031392e3239010b7f362e130000005ac3bc6e64756e6720f09f9a"
     "972031392e3330140000005072c3bc667374616e6420e282ac2031392e3331430792b3000014000000e697a5"
     "e69cace8aa9e20f09d849e2031392e33326f72a56a0400000000ff7f01ffffffffe3dd1323f701120000004b"
     "c3bc686c657209f09f94a72031392e33330e0000007361792022c3a9222031392e3334130000006261636b5c"
     "736c61736820c39f2031392e3335130000005ac3bc6e64756e6720f09f9a972031392e3336140000005072c3"
     "bc667374616e6420e282ac2031392e333714000000e697a5e69cace8aa9e20f09d849e2031392e3338d56514"
     "2700000000120000004bc3bc686c657209f09f94a72031392e3339000e0000007361792022c3a9222031392e"
     "34307920b4ba0400000000ffd2e500000080d439598363130000006261636b5c736c61736820c39f2031392e"
     "343101152d45fe130000005ac3bc6e64756e6720f09f9a972031392e3432140000005072c3bc667374616e64"
     "20e282ac2031392e34339d4cf21f01b139d6c114000000e697a5e69cace8aa9e20f09d849e2031392e343401"
     "40615c120000004bc3bc686c657209f09f94a72031392e34350e0000007361792022c3a9222031392e34364d"
     "466785016733d018130000006261636b5c736c61736820c39f2031392e343700000000010000002b2bb25a00"
     "0000000400000000ffe7d6130000005ac3bc6e64756e6720f09f9a972031392e3438e752f8c80400000000ff"
     "e9d8ffffff7febcb263f5501140000005072c3bc667374616e6420e282ac2031392e343914000000e697a5e6"
     "9cace8aa9e20f09d849e2031392e3530120000004bc3bc686c657209f09f94a72031392e35310e0000007361"
     "792022c3a9222031392e3532130000006261636b5c736c61736820c39f2031392e3533130000005ac3bc6e64"
     "756e6720f09f9a972031392e3534835f898c00000000140000005072c3bc667374616e6420e282ac2031392e"
     "35350014000000e697a5e69cace8aa9e20f09d849e2031392e35362f1aae110400000000ffdaed2b2bb25adc"
     "1f6c1ad0120000004bc3bc686c657209f09f94a72031392e353701930d1d4e0e0000007361792022c3a92220"
     "31392e3538130000006261636b5c736c61736820c39f2031392e3539bb78ab9301f9008c0a130000005ac3bc"
     "6e64756e6720f09f9a972031392e363055853cd7140000005072c3bc667374616e6420e282ac2031392e3631"
     "14000000e697a5e69cace8aa9e20f09d849e2031392e36325df4fa4601f191cd9a120000004bc3bc686c6572"
     "09f09f94a72031392e3633dda4e97800000000911e2117000000000400000000ffefde0e0000007361792022"
     "c3a9222031392e3634c1e769030400000000fff1e0dda4e978f38d9e5ede01130000006261636b5c736c6173"
     "6820c39f2031392e3635130000005ac3bc6e64756e6720f09f9a972031392e3636140000005072c3bc667374"
     "616e6420e282ac2031392e363714000000e697a5e69cace8aa9e20f09d849e2031392e3638120000004bc3bc"
     "686c657209f09f94a72031392e36390e0000007361792022c3a9222031392e373025dbd83f00000000130000"
     "006261636b5c736c61736820c39f2031392e373100130000005ac3bc6e64756e6720f09f9a972031392e3732"
     "29abefa10400000000ffe2f5911e2117e489ce477c01140000005072c3bc667374616e6420e282ac2031392e"
     "3733c3b780e514000000e697a5e69cace8aa9e20f09d849e2031392e37340000000000",
     0},
    {"sparse", "[[]]", "[[]]",
     "[{\"target\":\"\",\"status\":-2147483648,\"text\":\"\",\"error\":{\"code\":2147483647,\""
     "message\":\"\",\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":n"
     "ull},\"parameters\":[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemTex"
     "t4\":\"\",\"text1\":\"\",\"text2\":\"\",\"value1\":-65536,\"children\":[],\"text3\":\"\""
     ",\"error\":null,\"text4\":\"\",\"value2\":2028578013,\"data\":[],\"value3\":4294967295,"
     "\"flag\":255,\"value4\":-388046481}]},null]",
     "[{\"target\":\"\",\"status\":-2147483648,\"text\":\"\",\"error\":{\"code\":2147483647,\""
     "message\":\"\",\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":n"
     "ull},\"parameters\":[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemTex"
     "t4\":\"\",\"text1\":\"\",\"text2\":\"\",\"value1\":-65536,\"children\":null,\"childCount"
     "\":0,\"text3\":\"\",\"error\":null,\"text4\":\"\",\"value2\":2028578013,\"data\":null,\""
     "dataLength\":0,\"value3\":4294967295,\"flag\":255,\"value4\":-388046481}],\"parameterCou"
     "nt\":1},null]",
     "00000000", "00000000", "[[]]", "[[]]",
     "01020000000100000000000000800000000001ffffff7f0000000000000000ffffffff000001000000010000"
     "000000000000000000000000000000000000000000000000ffff00000000000000000000000000dda4e97800"
     "000000ffffffffff6fe1dee800",
     "020000000100000000000000800000000001ffffff7f0000000000000000ffffffff00000100000001000000"
     "0000000000000000000000000000000000000000000000ffff00000000000000000000000000dda4e9780000"
     "0000ffffffffff6fe1dee800",
     0},
    {"empty", "[[]]", "[[]]", "[]", "null", "00000000", "00000000", "[[]]", "[[]]", "0100000000",
     "00000000", 0},
};

struct ReadIdentificationValuesExport {
    static constexpr const char* operation = "readIdentificationValues";
    using Result = kc::ListResult<ReadDataResult, release_ReadDataResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::Texts a0(in[0]);
        kel_readIdentificationValues(api, a0.data(), a0.count(), error, &out.data, &out.count);
    }
};

TEST_F(Diagnostics, readIdentificationValues_Exchange) {
    kc::exchange<ReadIdentificationValuesExport>(api, kReadIdentificationValuesCases);
}
TEST_F(Diagnostics, readIdentificationValues_Failure) {
    kc::failure<ReadIdentificationValuesExport>(api, kReadIdentificationValuesCases);
}
TEST_F(DiagnosticsAdmission, readIdentificationValues) {
    kc::admission<ReadIdentificationValuesExport>(callers(), kReadIdentificationValuesCases,
                                                  kc::Needs::Operator);
}

struct ReadIdentificationValuesAsyncExport {
    static constexpr const char* operation = "readIdentificationValuesAsync";
    using Reports = kc::Reports<ReadDataResult, release_ReadDataResult_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        kc::Texts a0(in[0]);
        return kel_readIdentificationValuesAsync(api, a0.data(), a0.count(), error,
                                                 &Reports::onReport, &reports);
    }
};

TEST_F(Diagnostics, readIdentificationValuesAsync_Exchange) {
    kc::asyncExchange<ReadIdentificationValuesAsyncExport>(api, kReadIdentificationValuesCases);
}
TEST_F(Diagnostics, readIdentificationValuesAsync_Failure) {
    kc::asyncFailure<ReadIdentificationValuesAsyncExport>(api, kReadIdentificationValuesCases);
}
TEST_F(DiagnosticsAdmission, readIdentificationValuesAsync) {
    kc::asyncAdmission<ReadIdentificationValuesAsyncExport>(
        callers(), kReadIdentificationValuesCases, kc::Needs::Operator);
}

const char* const kReadIdentificationValuesNoUtf8[] = {
    "[[\"\\udc00Pr\303\274fstand \342\202\254 19.1\\ud800\",\"\",\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 19.2\"]]",
};
TEST_F(Diagnostics, readIdentificationValues_TextWithNoUtf8Form) {
    kc::noUtf8<ReadIdentificationValuesExport>(api, kReadIdentificationValuesNoUtf8);
}
TEST_F(Diagnostics, readIdentificationValuesAsync_TextWithNoUtf8Form) {
    kc::asyncNoUtf8<ReadIdentificationValuesAsyncExport>(api, kReadIdentificationValuesNoUtf8);
}

const kc::Number kNumber19{19, "readIdentificationValues", kReadIdentificationValuesCases};

TEST_F(DiagnosticsByNumber, n19_readIdentificationValues_KelCall) { kc::kelCall(api, kNumber19); }
TEST_F(DiagnosticsByNumber, n19_readIdentificationValues_PyCall) { kc::pyCall(api, kNumber19); }
TEST_F(DiagnosticsByNumber, n19_readIdentificationValues_Failure) {
    kc::numberFailure(api, kNumber19);
}
TEST_F(DiagnosticsByNumber, n19_readIdentificationValues_ShortInput) {
    kc::shortInput(api, kNumber19);
}

// ---- readDataByIdentifiers (position 21, number 21) ----

const kc::Case kReadDataByIdentifiersCases[] = {
    {"full",
     "[\"Pr\303\274fstand \342\202\254 21.1\",[\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 21.2\",\"\",\"K\303\274hler\\u0009\360\237\224\247 21.3\"]]",
     "[\"Pr\303\274fstand \342\202\254 21.1\",[\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 21.2\",\"\",\"K\303\274hler\\u0009\360\237\224\247 21.3\"]]",
     "[{\"target\":\"say \\\"\303\251\\\" 21.4\",\"status\":-2147483648,\"text\":\"back\\\\sla"
     "sh \303\237 21.5\",\"error\":{\"code\":2147483647,\"message\":\"Z\303\274ndung \360\237"
     "\232\227 21.6\",\"details\":\"Pr\303\274fstand \342\202\254 21.7\",\"subCode\":-1,\"mvci"
     "Error\":{\"code\":-65536,\"codeText\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 21.8\",\"vendorCode\":2028659019,\"vendorCodeText\":\"K\303\274hler\\u0009\360"
     "\237\224\247 21.9\",\"extraText\":\"say \\\"\303\251\\\" 21.10\",\"extraCode\":-38812748"
     "7},\"negativeResponse\":{\"code\":895079601,\"text\":\"back\\\\slash \303\237 21.11\",\""
     "value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128]}}"
     ",\"parameters\":[{\"itemText1\":\"Z\303\274ndung \360\237\232\227 21.12\",\"itemText2\":"
     "\"Pr\303\274fstand \342\202\254 21.13\",\"itemText3\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 21.14\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 21.15"
     "\",\"text1\":\"say \\\"\303\251\\\" 21.16\",\"text2\":\"back\\\\slash \303\237 21.17\","
     "\"value1\":-1402031715,\"children\":[{\"itemText1\":\"Z\303\274ndung \360\237\232\227 21"
     ".18\",\"itemText2\":\"Pr\303\274fstand \342\202\254 21.19\",\"itemText3\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 21.20\",\"itemText4\":\"K\303\274hler\\u0009"
     "\360\237\224\247 21.21\",\"text1\":\"say \\\"\303\251\\\" 21.22\",\"text2\":\"back\\\\sl"
     "ash \303\237 21.23\",\"value1\":1908983829,\"children\":[{\"itemText1\":\"Z\303\274ndung"
     " \360\237\232\227 21.24\",\"itemText2\":\"Pr\303\274fstand \342\202\254 21.25\",\"itemTe"
     "xt3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 21.26\",\"itemText4\":\"K"
     "\303\274hler\\u0009\360\237\224\247 21.27\",\"text1\":\"say \\\"\303\251\\\" 21.28\",\"t"
     "ext2\":\"back\\\\slash \303\237 21.29\",\"value1\":-268452295,\"children\":[],\"text3\":"
     "\"Z\303\274ndung \360\237\232\227 21.30\",\"error\":{\"code\":775404409,\"message\":\"Pr"
     "\303\274fstand \342\202\254 21.31\",\"details\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 21.32\",\"subCode\":-1282356523,\"mvciError\":null,\"negativeResponse\""
     ":null},\"text4\":\"K\303\274hler\\u0009\360\237\224\247 21.33\",\"value2\":1789308637,\""
     "data\":[0,255,127,1],\"value3\":4294967295,\"flag\":143,\"value4\":-148777105},{\"itemTe"
     "xt1\":\"say \\\"\303\251\\\" 21.34\",\"itemText2\":\"back\\\\slash \303\237 21.35\",\"it"
     "emText3\":\"Z\303\274ndung \360\237\232\227 21.36\",\"itemText4\":\"Pr\303\274fstand "
     "\342\202\254 21.37\",\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 2"
     "1.38\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 21.39\",\"value1\":655729219,\"c"
     "hildren\":[],\"text3\":\"say \\\"\303\251\\\" 21.40\",\"error\":null,\"text4\":\"back\\"
     "\\slash \303\237 21.41\",\"value2\":-1162681333,\"data\":[0,255,126,145],\"value3\":2147"
     "483648,\"flag\":111,\"value4\":1669633447}],\"text3\":\"Z\303\274ndung \360\237\232\227 "
     "21.42\",\"error\":{\"code\":-29101913,\"message\":\"Pr\303\274fstand \342\202\254 21.43"
     "\",\"details\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 21.44\",\"subCode"
     "\":536054027,\"mvciError\":{\"code\":-1043006141,\"codeText\":\"K\303\274hler\\u0009\360"
     "\237\224\247 21.45\",\"vendorCode\":1549958255,\"vendorCodeText\":\"say \\\"\303\251\\\""
     " 21.46\",\"extraText\":\"back\\\\slash \303\237 21.47\",\"extraCode\":-2056910369},\"neg"
     "ativeResponse\":{\"code\":416378837,\"text\":\"Z\303\274ndung \360\237\232\227 21.48\","
     "\"value1\":4294967296,\"value2\":1521706905,\"bytes\":[0,255,147,130]}},\"text4\":\"Pr"
     "\303\274fstand \342\202\254 21.49\",\"value2\":-923330951,\"data\":[0,255,149,132],\"val"
     "ue3\":2147483647,\"flag\":151,\"value4\":1430283065},{\"itemText1\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 21.50\",\"itemText2\":\"K\303\274hler\\u0009\360"
     "\237\224\247 21.51\",\"itemText3\":\"say \\\"\303\251\\\" 21.52\",\"itemText4\":\"back\\"
     "\\slash \303\237 21.53\",\"text1\":\"Z\303\274ndung \360\237\232\227 21.54\",\"text2\":"
     "\"Pr\303\274fstand \342\202\254 21.55\",\"value1\":-1937235179,\"children\":[],\"text3\""
     ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 21.56\",\"error\":null,\"text4"
     "\":\"K\303\274hler\\u0009\360\237\224\247 21.57\",\"value2\":296703645,\"data\":[0,255,1"
     "34,153],\"value3\":1521706905,\"flag\":136,\"value4\":-803655759}],\"text3\":\"say \\\""
     "\303\251\\\" 21.58\",\"error\":{\"code\":1310607873,\"message\":\"back\\\\slash \303\237"
     " 21.59\",\"details\":\"Z\303\274ndung \360\237\232\227 21.60\",\"subCode\":-1817559987,"
     "\"mvciError\":{\"code\":177028455,\"codeText\":\"Pr\303\274fstand \342\202\254 21.61\","
     "\"vendorCode\":-683980569,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 21.62\",\"extraText\":\"K\303\274hler\\u0009\360\237\224\247 21.63\",\"extr"
     "aCode\":1190932683},\"negativeResponse\":{\"code\":-1697884797,\"text\":\"say \\\"\303"
     "\251\\\" 21.64\",\"value1\":2028659019,\"value2\":388127487,\"bytes\":[0,255,155,138]}},"
     "\"text4\":\"back\\\\slash \303\237 21.65\",\"value2\":57353263,\"data\":[0,255,157,140],"
     "\"value3\":2028659019,\"flag\":159,\"value4\":-564305377},{\"itemText1\":\"Z\303\274ndun"
     "g \360\237\232\227 21.66\",\"itemText2\":\"Pr\303\274fstand \342\202\254 21.67\",\"itemT"
     "ext3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 21.68\",\"itemText4\":\"K"
     "\303\274hler\\u0009\360\237\224\247 21.69\",\"text1\":\"say \\\"\303\251\\\" 21.70\",\"t"
     "ext2\":\"back\\\\slash \303\237 21.71\",\"value1\":1071257491,\"children\":[],\"text3\":"
     "\"Z\303\274ndung \360\237\232\227 21.72\",\"error\":null,\"text4\":\"Pr\303\274fstand "
     "\342\202\254 21.73\",\"value2\":-1578209605,\"data\":[0,255,142,161],\"value3\":38812748"
     "7,\"flag\":144,\"value4\":2085161719}]},{\"target\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 21.74\",\"status\":-444630187,\"text\":\"K\303\274hler\\u0009\360"
     "\237\224\247 21.75\",\"error\":null,\"parameters\":[]}]",
     "[{\"target\":\"say \\\"\303\251\\\" 21.4\",\"status\":-2147483648,\"text\":\"back\\\\sla"
     "sh \303\237 21.5\",\"error\":{\"code\":2147483647,\"message\":\"Z\303\274ndung \360\237"
     "\232\227 21.6\",\"details\":\"Pr\303\274fstand \342\202\254 21.7\",\"subCode\":-1,\"mvci"
     "Error\":{\"code\":-65536,\"codeText\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 21.8\",\"vendorCode\":2028659019,\"vendorCodeText\":\"K\303\274hler\\u0009\360"
     "\237\224\247 21.9\",\"extraText\":\"say \\\"\303\251\\\" 21.10\",\"extraCode\":-38812748"
     "7},\"negativeResponse\":{\"code\":895079601,\"text\":\"back\\\\slash \303\237 21.11\",\""
     "value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128],"
     "\"byteCount\":4}},\"parameters\":[{\"itemText1\":\"Z\303\274ndung \360\237\232\227 21.12"
     "\",\"itemText2\":\"Pr\303\274fstand \342\202\254 21.13\",\"itemText3\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 21.14\",\"itemText4\":\"K\303\274hler\\u0009"
     "\360\237\224\247 21.15\",\"text1\":\"say \\\"\303\251\\\" 21.16\",\"text2\":\"back\\\\sl"
     "ash \303\237 21.17\",\"value1\":-1402031715,\"children\":[{\"itemText1\":\"Z\303\274ndun"
     "g \360\237\232\227 21.18\",\"itemText2\":\"Pr\303\274fstand \342\202\254 21.19\",\"itemT"
     "ext3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 21.20\",\"itemText4\":\"K"
     "\303\274hler\\u0009\360\237\224\247 21.21\",\"text1\":\"say \\\"\303\251\\\" 21.22\",\"t"
     "ext2\":\"back\\\\slash \303\237 21.23\",\"value1\":1908983829,\"children\":[{\"itemText1"
     "\":\"Z\303\274ndung \360\237\232\227 21.24\",\"itemText2\":\"Pr\303\274fstand \342\202"
     "\254 21.25\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 21.26"
     "\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 21.27\",\"text1\":\"say \\\"\303"
     "\251\\\" 21.28\",\"text2\":\"back\\\\slash \303\237 21.29\",\"value1\":-268452295,\"chil"
     "dren\":null,\"childCount\":0,\"text3\":\"Z\303\274ndung \360\237\232\227 21.30\",\"error"
     "\":{\"code\":775404409,\"message\":\"Pr\303\274fstand \342\202\254 21.31\",\"details\":"
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 21.32\",\"subCode\":-1282356523,"
     "\"mvciError\":null,\"negativeResponse\":null},\"text4\":\"K\303\274hler\\u0009\360\237"
     "\224\247 21.33\",\"value2\":1789308637,\"data\":[0,255,127,1],\"dataLength\":4,\"value3"
     "\":4294967295,\"flag\":143,\"value4\":-148777105},{\"itemText1\":\"say \\\"\303\251\\\" "
     "21.34\",\"itemText2\":\"back\\\\slash \303\237 21.35\",\"itemText3\":\"Z\303\274ndung "
     "\360\237\232\227 21.36\",\"itemText4\":\"Pr\303\274fstand \342\202\254 21.37\",\"text1\""
     ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 21.38\",\"text2\":\"K\303\274hl"
     "er\\u0009\360\237\224\247 21.39\",\"value1\":655729219,\"children\":null,\"childCount\":"
     "0,\"text3\":\"say \\\"\303\251\\\" 21.40\",\"error\":null,\"text4\":\"back\\\\slash \303"
     "\237 21.41\",\"value2\":-1162681333,\"data\":[0,255,126,145],\"dataLength\":4,\"value3\""
     ":2147483648,\"flag\":111,\"value4\":1669633447}],\"childCount\":2,\"text3\":\"Z\303\274n"
     "dung \360\237\232\227 21.42\",\"error\":{\"code\":-29101913,\"message\":\"Pr\303\274fsta"
     "nd \342\202\254 21.43\",\"details\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 21.44\",\"subCode\":536054027,\"mvciError\":{\"code\":-1043006141,\"codeText\":\"K"
     "\303\274hler\\u0009\360\237\224\247 21.45\",\"vendorCode\":1549958255,\"vendorCodeText\""
     ":\"say \\\"\303\251\\\" 21.46\",\"extraText\":\"back\\\\slash \303\237 21.47\",\"extraCo"
     "de\":-2056910369},\"negativeResponse\":{\"code\":416378837,\"text\":\"Z\303\274ndung "
     "\360\237\232\227 21.48\",\"value1\":4294967296,\"value2\":1521706905,\"bytes\":[0,255,14"
     "7,130],\"byteCount\":4}},\"text4\":\"Pr\303\274fstand \342\202\254 21.49\",\"value2\":-9"
     "23330951,\"data\":[0,255,149,132],\"dataLength\":4,\"value3\":2147483647,\"flag\":151,\""
     "value4\":1430283065},{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 21.50\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 21.51\",\"itemText3\":"
     "\"say \\\"\303\251\\\" 21.52\",\"itemText4\":\"back\\\\slash \303\237 21.53\",\"text1\":"
     "\"Z\303\274ndung \360\237\232\227 21.54\",\"text2\":\"Pr\303\274fstand \342\202\254 21.5"
     "5\",\"value1\":-1937235179,\"children\":null,\"childCount\":0,\"text3\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 21.56\",\"error\":null,\"text4\":\"K\303\274hl"
     "er\\u0009\360\237\224\247 21.57\",\"value2\":296703645,\"data\":[0,255,134,153],\"dataLe"
     "ngth\":4,\"value3\":1521706905,\"flag\":136,\"value4\":-803655759}],\"childCount\":2,\"t"
     "ext3\":\"say \\\"\303\251\\\" 21.58\",\"error\":{\"code\":1310607873,\"message\":\"back"
     "\\\\slash \303\237 21.59\",\"details\":\"Z\303\274ndung \360\237\232\227 21.60\",\"subCo"
     "de\":-1817559987,\"mvciError\":{\"code\":177028455,\"codeText\":\"Pr\303\274fstand \342"
     "\202\254 21.61\",\"vendorCode\":-683980569,\"vendorCodeText\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 21.62\",\"extraText\":\"K\303\274hler\\u0009\360\237\224"
     "\247 21.63\",\"extraCode\":1190932683},\"negativeResponse\":{\"code\":-1697884797,\"text"
     "\":\"say \\\"\303\251\\\" 21.64\",\"value1\":2028659019,\"value2\":388127487,\"bytes\":["
     "0,255,155,138],\"byteCount\":4}},\"text4\":\"back\\\\slash \303\237 21.65\",\"value2\":5"
     "7353263,\"data\":[0,255,157,140],\"dataLength\":4,\"value3\":2028659019,\"flag\":159,\"v"
     "alue4\":-564305377},{\"itemText1\":\"Z\303\274ndung \360\237\232\227 21.66\",\"itemText2"
     "\":\"Pr\303\274fstand \342\202\254 21.67\",\"itemText3\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 21.68\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 2"
     "1.69\",\"text1\":\"say \\\"\303\251\\\" 21.70\",\"text2\":\"back\\\\slash \303\237 21.71"
     "\",\"value1\":1071257491,\"children\":null,\"childCount\":0,\"text3\":\"Z\303\274ndung "
     "\360\237\232\227 21.72\",\"error\":null,\"text4\":\"Pr\303\274fstand \342\202\254 21.73"
     "\",\"value2\":-1578209605,\"data\":[0,255,142,161],\"dataLength\":4,\"value3\":388127487"
     ",\"flag\":144,\"value4\":2085161719}],\"parameterCount\":2},{\"target\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 21.74\",\"status\":-444630187,\"text\":\"K\303"
     "\274hler\\u0009\360\237\224\247 21.75\",\"error\":null,\"parameters\":null,\"parameterCo"
     "unt\":0}]",
     "130000005072c3bc667374616e6420e282ac2032312e310300000013000000e697a5e69cace8aa9e20f09d84"
     "9e2032312e3200000000110000004bc3bc686c657209f09f94a72032312e33",
     "5072c3bc667374616e6420e282ac2032312e310003000000e697a5e69cace8aa9e20f09d849e2032312e3200"
     "004bc3bc686c657209f09f94a72032312e3300",
     "[\"Pr\303\274fstand \342\202\254 21.1\",[\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 21.2\",\"\",\"K\303\274hler\\u0009\360\237\224\247 21.3\"]]",
     "[\"Pr\303\274fstand \342\202\254 21.1\",[\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 21.2\",\"\",\"K\303\274hler\\u0009\360\237\224\247 21.3\"]]",
     "0102000000010d0000007361792022c3a9222032312e3400000080120000006261636b5c736c61736820c39f"
     "2032312e3501ffffff7f120000005ac3bc6e64756e6720f09f9a972032312e36130000005072c3bc66737461"
     "6e6420e282ac2032312e37ffffffff010000ffff13000000e697a5e69cace8aa9e20f09d849e2032312e384b"
     "e1ea78110000004bc3bc686c657209f09f94a72032312e390e0000007361792022c3a9222032312e313001a5"
     "dde801b1d45935130000006261636b5c736c61736820c39f2032312e31310100000000000080ffffffffffff"
     "ffff0400000000ffff800200000001130000005ac3bc6e64756e6720f09f9a972032312e3132140000005072"
     "c3bc667374616e6420e282ac2032312e313314000000e697a5e69cace8aa9e20f09d849e2032312e31341200"
     "00004bc3bc686c657209f09f94a72032312e31350e0000007361792022c3a9222032312e3136130000006261"
     "636b5c736c61736820c39f2032312e31379db16eac0200000001130000005ac3bc6e64756e6720f09f9a9720"
     "32312e3138140000005072c3bc667374616e6420e282ac2032312e313914000000e697a5e69cace8aa9e20f0"
     "9d849e2032312e3230120000004bc3bc686c657209f09f94a72032312e32310e0000007361792022c3a92220"
     "32312e3232130000006261636b5c736c61736820c39f2032312e323315c8c8710200000001130000005ac3bc"
     "6e64756e6720f09f9a972032312e3234140000005072c3bc667374616e6420e282ac2032312e323514000000"
     "e697a5e69cace8aa9e20f09d849e2032312e3236120000004bc3bc686c657209f09f94a72032312e32370e00"
     "00007361792022c3a9222032312e3238130000006261636b5c736c61736820c39f2032312e323939beffef00"
     "000000130000005ac3bc6e64756e6720f09f9a972032312e33300179bb372e140000005072c3bc667374616e"
     "6420e282ac2032312e333114000000e697a5e69cace8aa9e20f09d849e2032312e3332d5ca90b30000120000"
     "004bc3bc686c657209f09f94a72032312e3333ddaea66a0400000000ff7f01ffffffff8f6fd721f7010e0000"
     "007361792022c3a9222032312e3334130000006261636b5c736c61736820c39f2032312e3335130000005ac3"
     "bc6e64756e6720f09f9a972032312e3336140000005072c3bc667374616e6420e282ac2032312e3337140000"
     "00e697a5e69cace8aa9e20f09d849e2032312e3338120000004bc3bc686c657209f09f94a72032312e333943"
     "a21527000000000e0000007361792022c3a9222032312e343000130000006261636b5c736c61736820c39f20"
     "32312e34310be4b2ba0400000000ff7e91000000806fa7958463130000005ac3bc6e64756e6720f09f9a9720"
     "32312e343201a7f043fe140000005072c3bc667374616e6420e282ac2032312e343314000000e697a5e69cac"
     "e8aa9e20f09d849e2032312e34340b89f31f0143fdd4c1120000004bc3bc686c657209f09f94a72032312e34"
     "356f7c625c0e0000007361792022c3a9222032312e3436130000006261636b5c736c61736820c39f2032312e"
     "3437df09668501d56fd118130000005ac3bc6e64756e6720f09f9a972032312e343800000000010000009967"
     "b35a000000000400000000ff9382140000005072c3bc667374616e6420e282ac2032312e34397916f7c80400"
     "000000ff9584ffffff7f97396340550114000000e697a5e69cace8aa9e20f09d849e2032312e353012000000"
     "4bc3bc686c657209f09f94a72032312e35310e0000007361792022c3a9222032312e3532130000006261636b"
     "5c736c61736820c39f2032312e3533130000005ac3bc6e64756e6720f09f9a972032312e3534140000005072"
     "c3bc667374616e6420e282ac2032312e35351523888c0000000014000000e697a5e69cace8aa9e20f09d849e"
     "2032312e353600120000004bc3bc686c657209f09f94a72032312e35379d56af110400000000ff86999967b3"
     "5a88b12f19d00e0000007361792022c3a9222032312e353801014a1e4e130000006261636b5c736c61736820"
     "c39f2032312e3539130000005ac3bc6e64756e6720f09f9a972032312e36304d3caa9301673d8d0a14000000"
     "5072c3bc667374616e6420e282ac2032312e3631e7483bd714000000e697a5e69cace8aa9e20f09d849e2032"
     "312e3632120000004bc3bc686c657209f09f94a72032312e3633cb30fc46018355cc9a0e0000007361792022"
     "c3a9222032312e36344be1ea7800000000ff5a2217000000000400000000ff9b8a130000006261636b5c736c"
     "61736820c39f2032312e36352f246b030400000000ff9d8c4be1ea789f1f625dde01130000005ac3bc6e6475"
     "6e6720f09f9a972032312e3636140000005072c3bc667374616e6420e282ac2032312e363714000000e697a5"
     "e69cace8aa9e20f09d849e2032312e3638120000004bc3bc686c657209f09f94a72032312e36390e00000073"
     "61792022c3a9222032312e3730130000006261636b5c736c61736820c39f2032312e37319317da3f00000000"
     "130000005ac3bc6e64756e6720f09f9a972032312e373200140000005072c3bc667374616e6420e282ac2032"
     "312e3733bb6eeea10400000000ff8ea1ff5a221790f70a497c0114000000e697a5e69cace8aa9e20f09d849e"
     "2032312e3734557b7fe5120000004bc3bc686c657209f09f94a72032312e37350000000000",
     "02000000010d0000007361792022c3a9222032312e3400000080120000006261636b5c736c61736820c39f20"
     "32312e3501ffffff7f120000005ac3bc6e64756e6720f09f9a972032312e36130000005072c3bc667374616e"
     "6420e282ac2032312e37ffffffff010000ffff13000000e697a5e69cace8aa9e20f09d849e2032312e384be1"
     "ea78110000004bc3bc686c657209f09f94a72032312e390e0000007361792022c3a9222032312e313001a5dd"
     "e801b1d45935130000006261636b5c736c61736820c39f2032312e31310100000000000080ffffffffffffff"
     "ff0400000000ffff800200000001130000005ac3bc6e64756e6720f09f9a972032312e3132140000005072c3"
     "bc667374616e6420e282ac2032312e313314000000e697a5e69cace8aa9e20f09d849e2032312e3134120000"
     "004bc3bc686c657209f09f94a72032312e31350e0000007361792022c3a9222032312e313613000000626163"
     "6b5c736c61736820c39f2032312e31379db16eac0200000001130000005ac3bc6e64756e6720f09f9a972032"
     "312e3138140000005072c3bc667374616e6420e282ac2032312e313914000000e697a5e69cace8aa9e20f09d"
     "849e2032312e3230120000004bc3bc686c657209f09f94a72032312e32310e0000007361792022c3a9222032"
     "312e3232130000006261636b5c736c61736820c39f2032312e323315c8c8710200000001130000005ac3bc6e"
     "64756e6720f09f9a972032312e3234140000005072c3bc667374616e6420e282ac2032312e323514000000e6"
     "97a5e69cace8aa9e20f09d849e2032312e3236120000004bc3bc686c657209f09f94a72032312e32370e0000"
     "007361792022c3a9222032312e3238130000006261636b5c736c61736820c39f2032312e323939beffef0000"
     "0000130000005ac3bc6e64756e6720f09f9a972032312e33300179bb372e140000005072c3bc667374616e64"
     "20e282ac2032312e333114000000e697a5e69cace8aa9e20f09d849e2032312e3332d5ca90b3000012000000"
     "4bc3bc686c657209f09f94a72032312e3333ddaea66a0400000000ff7f01ffffffff8f6fd721f7010e000000"
     "7361792022c3a9222032312e3334130000006261636b5c736c61736820c39f2032312e3335130000005ac3bc"
     "6e64756e6720f09f9a972032312e3336140000005072c3bc667374616e6420e282ac2032312e333714000000"
     "e697a5e69cace8aa9e20f09d849e2032312e3338120000004bc3bc686c657209f09f94a72032312e333943a2"
     "1527000000000e0000007361792022c3a9222032312e343000130000006261636b5c736c61736820c39f2032"
     "312e34310be4b2ba0400000000ff7e91000000806fa7958463130000005ac3bc6e64756e6720f09f9a972032"
     "312e343201a7f043fe140000005072c3bc667374616e6420e282ac2032312e343314000000e697a5e69cace8"
     "aa9e20f09d849e2032312e34340b89f31f0143fdd4c1120000004bc3bc686c657209f09f94a72032312e3435"
     "6f7c625c0e0000007361792022c3a9222032312e3436130000006261636b5c736c61736820c39f2032312e34"
     "37df09668501d56fd118130000005ac3bc6e64756e6720f09f9a972032312e343800000000010000009967b3"
     "5a000000000400000000ff9382140000005072c3bc667374616e6420e282ac2032312e34397916f7c8040000"
     "0000ff9584ffffff7f97396340550114000000e697a5e69cace8aa9e20f09d849e2032312e3530120000004b"
     "c3bc686c657209f09f94a72032312e35310e0000007361792022c3a9222032312e3532130000006261636b5c"
     "736c61736820c39f2032312e3533130000005ac3bc6e64756e6720f09f9a972032312e3534140000005072c3"
     "bc667374616e6420e282ac2032312e35351523888c0000000014000000e697a5e69cace8aa9e20f09d849e20"
     "32312e353600120000004bc3bc686c657209f09f94a72032312e35379d56af110400000000ff86999967b35a"
     "88b12f19d00e0000007361792022c3a9222032312e353801014a1e4e130000006261636b5c736c61736820c3"
     "9f2032312e3539130000005ac3bc6e64756e6720f09f9a972032312e36304d3caa9301673d8d0a1400000050"
     "72c3bc667374616e6420e282ac2032312e3631e7483bd714000000e697a5e69cace8aa9e20f09d849e203231"
     "2e3632120000004bc3bc686c657209f09f94a72032312e3633cb30fc46018355cc9a0e0000007361792022c3"
     "a9222032312e36344be1ea7800000000ff5a2217000000000400000000ff9b8a130000006261636b5c736c61"
     "736820c39f2032312e36352f246b030400000000ff9d8c4be1ea789f1f625dde01130000005ac3bc6e64756e"
     "6720f09f9a972032312e3636140000005072c3bc667374616e6420e282ac2032312e363714000000e697a5e6"
     "9cace8aa9e20f09d849e2032312e3638120000004bc3bc686c657209f09f94a72032312e36390e0000007361"
     "792022c3a9222032312e3730130000006261636b5c736c61736820c39f2032312e37319317da3f0000000013"
     "0000005ac3bc6e64756e6720f09f9a972032312e373200140000005072c3bc667374616e6420e282ac203231"
     "2e3733bb6eeea10400000000ff8ea1ff5a221790f70a497c0114000000e697a5e69cace8aa9e20f09d849e20"
     "32312e3734557b7fe5120000004bc3bc686c657209f09f94a72032312e37350000000000",
     0},
    {"sparse", "[\"\",[]]", "[\"\",[]]",
     "[{\"target\":\"\",\"status\":-2147483648,\"text\":\"\",\"error\":{\"code\":2147483647,\""
     "message\":\"\",\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":n"
     "ull},\"parameters\":[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemTex"
     "t4\":\"\",\"text1\":\"\",\"text2\":\"\",\"value1\":-65536,\"children\":[],\"text3\":\"\""
     ",\"error\":null,\"text4\":\"\",\"value2\":2028659019,\"data\":[],\"value3\":4294967295,"
     "\"flag\":255,\"value4\":-388127487}]},null]",
     "[{\"target\":\"\",\"status\":-2147483648,\"text\":\"\",\"error\":{\"code\":2147483647,\""
     "message\":\"\",\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":n"
     "ull},\"parameters\":[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemTex"
     "t4\":\"\",\"text1\":\"\",\"text2\":\"\",\"value1\":-65536,\"children\":null,\"childCount"
     "\":0,\"text3\":\"\",\"error\":null,\"text4\":\"\",\"value2\":2028659019,\"data\":null,\""
     "dataLength\":0,\"value3\":4294967295,\"flag\":255,\"value4\":-388127487}],\"parameterCou"
     "nt\":1},null]",
     "0000000000000000", "0000000000", "[\"\",[]]", "[\"\",[]]",
     "01020000000100000000000000800000000001ffffff7f0000000000000000ffffffff000001000000010000"
     "000000000000000000000000000000000000000000000000ffff000000000000000000000000004be1ea7800"
     "000000ffffffffff01a5dde800",
     "020000000100000000000000800000000001ffffff7f0000000000000000ffffffff00000100000001000000"
     "0000000000000000000000000000000000000000000000ffff000000000000000000000000004be1ea780000"
     "0000ffffffffff01a5dde800",
     0},
    {"empty", "[\"\",[]]", "[\"\",[]]", "[]", "null", "0000000000000000", "0000000000", "[\"\",[]]",
     "[\"\",[]]", "0100000000", "00000000", 0},
};

struct ReadDataByIdentifiersExport {
    static constexpr const char* operation = "readDataByIdentifiers";
    using Result = kc::ListResult<ReadDataResult, release_ReadDataResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kc::Texts a1(in[1]);
        kel_readDataByIdentifiers(api, a0.get(), a1.data(), a1.count(), error, &out.data,
                                  &out.count);
    }
};

TEST_F(Diagnostics, readDataByIdentifiers_Exchange) {
    kc::exchange<ReadDataByIdentifiersExport>(api, kReadDataByIdentifiersCases);
}
TEST_F(Diagnostics, readDataByIdentifiers_Failure) {
    kc::failure<ReadDataByIdentifiersExport>(api, kReadDataByIdentifiersCases);
}
TEST_F(DiagnosticsAdmission, readDataByIdentifiers) {
    kc::admission<ReadDataByIdentifiersExport>(callers(), kReadDataByIdentifiersCases,
                                               kc::Needs::Operator);
}

const char* const kReadDataByIdentifiersNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 21.1\\ud800\",[\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 21.2\",\"\",\"K\303\274hler\\t\360\237\224\247 21.3\"]]",
    "[\"Pr\303\274fstand \342\202\254 21.1\",[\"\\udc00\346\227\245\346\234\254\350\252\236 "
    "\360\235\204\236 21.2\\ud800\",\"\",\"K\303\274hler\\t\360\237\224\247 21.3\"]]",
};
TEST_F(Diagnostics, readDataByIdentifiers_TextWithNoUtf8Form) {
    kc::noUtf8<ReadDataByIdentifiersExport>(api, kReadDataByIdentifiersNoUtf8);
}

const kc::Number kNumber21{21, "readDataByIdentifiers", kReadDataByIdentifiersCases};

TEST_F(DiagnosticsByNumber, n21_readDataByIdentifiers_KelCall) { kc::kelCall(api, kNumber21); }
TEST_F(DiagnosticsByNumber, n21_readDataByIdentifiers_PyCall) { kc::pyCall(api, kNumber21); }
TEST_F(DiagnosticsByNumber, n21_readDataByIdentifiers_Failure) {
    kc::numberFailure(api, kNumber21);
}
TEST_F(DiagnosticsByNumber, n21_readDataByIdentifiers_ShortInput) {
    kc::shortInput(api, kNumber21);
}

// ---- identifyTarget (position 22, number 22) ----

const kc::Case kIdentifyTargetCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 22.1\"]", "[\"Pr\303\274fstand \342\202\254 22.1\"]",
     "{\"target\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 22.2\",\"status\":-2"
     "147483648,\"error\":{\"code\":2147483647,\"message\":\"K\303\274hler\\u0009\360\237\224"
     "\247 22.3\",\"details\":\"say \\\"\303\251\\\" 22.4\",\"subCode\":-1,\"mvciError\":{\"co"
     "de\":-65536,\"codeText\":\"back\\\\slash \303\237 22.5\",\"vendorCode\":2028699523,\"ven"
     "dorCodeText\":\"Z\303\274ndung \360\237\232\227 22.6\",\"extraText\":\"Pr\303\274fstand "
     "\342\202\254 22.7\",\"extraCode\":-388167989},\"negativeResponse\":{\"code\":895120103,"
     "\"text\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 22.8\",\"value1\":92233"
     "72036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128]}},\"variant\":"
     "\"K\303\274hler\\u0009\360\237\224\247 22.9\"}",
     "{\"target\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 22.2\",\"status\":-2"
     "147483648,\"error\":{\"code\":2147483647,\"message\":\"K\303\274hler\\u0009\360\237\224"
     "\247 22.3\",\"details\":\"say \\\"\303\251\\\" 22.4\",\"subCode\":-1,\"mvciError\":{\"co"
     "de\":-65536,\"codeText\":\"back\\\\slash \303\237 22.5\",\"vendorCode\":2028699523,\"ven"
     "dorCodeText\":\"Z\303\274ndung \360\237\232\227 22.6\",\"extraText\":\"Pr\303\274fstand "
     "\342\202\254 22.7\",\"extraCode\":-388167989},\"negativeResponse\":{\"code\":895120103,"
     "\"text\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 22.8\",\"value1\":92233"
     "72036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128],\"byteCount\":4"
     "}},\"variant\":\"K\303\274hler\\u0009\360\237\224\247 22.9\"}",
     "130000005072c3bc667374616e6420e282ac2032322e31", "5072c3bc667374616e6420e282ac2032322e3100",
     "[\"Pr\303\274fstand \342\202\254 22.1\"]", "[\"Pr\303\274fstand \342\202\254 22.1\"]",
     "010113000000e697a5e69cace8aa9e20f09d849e2032322e320000008001ffffff7f110000004bc3bc686c65"
     "7209f09f94a72032322e330d0000007361792022c3a9222032322e34ffffffff010000ffff12000000626163"
     "6b5c736c61736820c39f2032322e35837feb78120000005ac3bc6e64756e6720f09f9a972032322e36130000"
     "005072c3bc667374616e6420e282ac2032322e37cb06dde801e7725a3513000000e697a5e69cace8aa9e20f0"
     "9d849e2032322e380100000000000080ffffffffffffffff0400000000ffff80110000004bc3bc686c657209"
     "f09f94a72032322e39",
     "0113000000e697a5e69cace8aa9e20f09d849e2032322e320000008001ffffff7f110000004bc3bc686c6572"
     "09f09f94a72032322e330d0000007361792022c3a9222032322e34ffffffff010000ffff120000006261636b"
     "5c736c61736820c39f2032322e35837feb78120000005ac3bc6e64756e6720f09f9a972032322e3613000000"
     "5072c3bc667374616e6420e282ac2032322e37cb06dde801e7725a3513000000e697a5e69cace8aa9e20f09d"
     "849e2032322e380100000000000080ffffffffffffffff0400000000ffff80110000004bc3bc686c657209f0"
     "9f94a72032322e39",
     0},
    {"sparse", "[\"\"]", "[\"\"]",
     "{\"target\":\"\",\"status\":-2147483648,\"error\":{\"code\":2147483647,\"message\":\"\","
     "\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null},\"variant"
     "\":\"\"}",
     "{\"target\":\"\",\"status\":-2147483648,\"error\":{\"code\":2147483647,\"message\":\"\","
     "\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null},\"variant"
     "\":\"\"}",
     "00000000", "00", "[\"\"]", "[\"\"]",
     "0101000000000000008001ffffff7f0000000000000000ffffffff000000000000",
     "01000000000000008001ffffff7f0000000000000000ffffffff000000000000", 0},
    {"empty", "[\"\"]", "[\"\"]", "null", "null", "00000000", "00", "[\"\"]", "[\"\"]", "0100",
     "00", 0},
};

struct IdentifyTargetExport {
    static constexpr const char* operation = "identifyTarget";
    using Result = kc::RecordResult<VariantIdentResult, release_VariantIdentResult>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kel_identifyTarget(api, a0.get(), error, &out.data);
    }
};

TEST_F(Diagnostics, identifyTarget_Exchange) {
    kc::exchange<IdentifyTargetExport>(api, kIdentifyTargetCases);
}
TEST_F(Diagnostics, identifyTarget_Failure) {
    kc::failure<IdentifyTargetExport>(api, kIdentifyTargetCases);
}
TEST_F(DiagnosticsAdmission, identifyTarget) {
    kc::admission<IdentifyTargetExport>(callers(), kIdentifyTargetCases, kc::Needs::Operator);
}

const char* const kIdentifyTargetNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 22.1\\ud800\"]",
};
TEST_F(Diagnostics, identifyTarget_TextWithNoUtf8Form) {
    kc::noUtf8<IdentifyTargetExport>(api, kIdentifyTargetNoUtf8);
}

const kc::Number kNumber22{22, "identifyTarget", kIdentifyTargetCases};

TEST_F(DiagnosticsByNumber, n22_identifyTarget_KelCall) { kc::kelCall(api, kNumber22); }
TEST_F(DiagnosticsByNumber, n22_identifyTarget_PyCall) { kc::pyCall(api, kNumber22); }
TEST_F(DiagnosticsByNumber, n22_identifyTarget_Failure) { kc::numberFailure(api, kNumber22); }
TEST_F(DiagnosticsByNumber, n22_identifyTarget_ShortInput) { kc::shortInput(api, kNumber22); }

// ---- readDtcs (position 23, number 23) ----

const kc::Case kReadDtcsCases[] = {
    {"full",
     "[[\"Pr\303\274fstand \342\202\254 23.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 23.2\"],{\"value\":-2147483648,\"flag1\":255,\"flag2\":128,\"flag3\":12"
     "7}]",
     "[[\"Pr\303\274fstand \342\202\254 23.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 23.2\"],{\"value\":-2147483648,\"flag1\":255,\"flag2\":128,\"flag3\":12"
     "7}]",
     "[{\"status\":2147483647,\"target\":\"K\303\274hler\\u0009\360\237\224\247 23.3\",\"error"
     "\":{\"code\":-1,\"message\":\"say \\\"\303\251\\\" 23.4\",\"details\":\"back\\\\slash "
     "\303\237 23.5\",\"subCode\":-65536,\"mvciError\":{\"code\":2028740025,\"codeText\":\"Z"
     "\303\274ndung \360\237\232\227 23.6\",\"vendorCode\":-388208493,\"vendorCodeText\":\"Pr"
     "\303\274fstand \342\202\254 23.7\",\"extraText\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 23.8\",\"extraCode\":895160607},\"negativeResponse\":{\"code\":-1402112"
     "721,\"text\":\"K\303\274hler\\u0009\360\237\224\247 23.9\",\"value1\":922337203685477580"
     "9,\"value2\":18446744073709551615,\"bytes\":[0,255,1,59]}},\"dtcs\":[{\"code\":190906483"
     "5,\"text1\":\"say \\\"\303\251\\\" 23.10\",\"text2\":\"back\\\\slash \303\237 23.11\",\""
     "value1\":-268533301,\"parameters1\":[{\"itemText1\":\"Z\303\274ndung \360\237\232\227 23"
     ".12\",\"itemText2\":\"Pr\303\274fstand \342\202\254 23.13\",\"itemText3\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 23.14\",\"itemText4\":\"K\303\274hler\\u0009"
     "\360\237\224\247 23.15\",\"text1\":\"say \\\"\303\251\\\" 23.16\",\"text2\":\"back\\\\sl"
     "ash \303\237 23.17\",\"value1\":775485415,\"children\":[{\"itemText1\":\"Z\303\274ndung "
     "\360\237\232\227 23.18\",\"itemText2\":\"Pr\303\274fstand \342\202\254 23.19\",\"itemTex"
     "t3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23.20\",\"itemText4\":\"K"
     "\303\274hler\\u0009\360\237\224\247 23.21\",\"text1\":\"say \\\"\303\251\\\" 23.22\",\"t"
     "ext2\":\"back\\\\slash \303\237 23.23\",\"value1\":-1282437529,\"children\":[{\"itemText"
     "1\":\"Z\303\274ndung \360\237\232\227 23.24\",\"itemText2\":\"Pr\303\274fstand \342\202"
     "\254 23.25\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23.26"
     "\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 23.27\",\"text1\":\"say \\\"\303"
     "\251\\\" 23.28\",\"text2\":\"back\\\\slash \303\237 23.29\",\"value1\":1789389643,\"chil"
     "dren\":[],\"text3\":\"Z\303\274ndung \360\237\232\227 23.30\",\"error\":null,\"text4\":"
     "\"Pr\303\274fstand \342\202\254 23.31\",\"value2\":-148858111,\"data\":[0,255,42,61],\"v"
     "alue3\":4294967295,\"flag\":44,\"value4\":655810225},{\"itemText1\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 23.32\",\"itemText2\":\"K\303\274hler\\u0009\360"
     "\237\224\247 23.33\",\"itemText3\":\"say \\\"\303\251\\\" 23.34\",\"itemText4\":\"back\\"
     "\\slash \303\237 23.35\",\"text1\":\"Z\303\274ndung \360\237\232\227 23.36\",\"text2\":"
     "\"Pr\303\274fstand \342\202\254 23.37\",\"value1\":-1162762339,\"children\":[],\"text3\""
     ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23.38\",\"error\":null,\"text4"
     "\":\"K\303\274hler\\u0009\360\237\224\247 23.39\",\"value2\":1669714453,\"data\":[0,255,"
     "63,46],\"value3\":2147483648,\"flag\":65,\"value4\":-29182919}],\"text3\":\"say \\\"\303"
     "\251\\\" 23.40\",\"error\":{\"code\":536135033,\"message\":\"back\\\\slash \303\237 23.4"
     "1\",\"details\":\"Z\303\274ndung \360\237\232\227 23.42\",\"subCode\":-1043087147,\"mvci"
     "Error\":null,\"negativeResponse\":null},\"text4\":\"Pr\303\274fstand \342\202\254 23.43"
     "\",\"value2\":1550039261,\"data\":[0,255,48,67],\"value3\":2147483647,\"flag\":50,\"valu"
     "e4\":-2056991375},{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236"
     " 23.44\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 23.45\",\"itemText3\":\"sa"
     "y \\\"\303\251\\\" 23.46\",\"itemText4\":\"back\\\\slash \303\237 23.47\",\"text1\":\"Z"
     "\303\274ndung \360\237\232\227 23.48\",\"text2\":\"Pr\303\274fstand \342\202\254 23.49\""
     ",\"value1\":416459843,\"children\":[],\"text3\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 23.50\",\"error\":null,\"text4\":\"K\303\274hler\\u0009\360\237\224\247"
     " 23.51\",\"value2\":-923411957,\"data\":[0,255,69,52],\"value3\":1521787911,\"flag\":71,"
     "\"value4\":1430364071}],\"text3\":\"say \\\"\303\251\\\" 23.52\",\"error\":{\"code\":-19"
     "37316185,\"message\":\"back\\\\slash \303\237 23.53\",\"details\":\"Z\303\274ndung \360"
     "\237\232\227 23.54\",\"subCode\":296784651,\"mvciError\":{\"code\":-803736765,\"codeText"
     "\":\"Pr\303\274fstand \342\202\254 23.55\",\"vendorCode\":1310688879,\"vendorCodeText\":"
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23.56\",\"extraText\":\"K\303"
     "\274hler\\u0009\360\237\224\247 23.57\",\"extraCode\":-1817640993},\"negativeResponse\":"
     "{\"code\":177109461,\"text\":\"say \\\"\303\251\\\" 23.58\",\"value1\":4294967296,\"valu"
     "e2\":1521787911,\"bytes\":[0,255,54,73]}},\"text4\":\"back\\\\slash \303\237 23.59\",\"v"
     "alue2\":-684061575,\"data\":[0,255,56,75],\"value3\":2028740025,\"flag\":58,\"value4\":1"
     "191013689},{\"itemText1\":\"Z\303\274ndung \360\237\232\227 23.60\",\"itemText2\":\"Pr"
     "\303\274fstand \342\202\254 23.61\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236"
     " \360\235\204\236 23.62\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 23.63\","
     "\"text1\":\"say \\\"\303\251\\\" 23.64\",\"text2\":\"back\\\\slash \303\237 23.65\",\"va"
     "lue1\":-1697965803,\"children\":[],\"text3\":\"Z\303\274ndung \360\237\232\227 23.66\","
     "\"error\":null,\"text4\":\"Pr\303\274fstand \342\202\254 23.67\",\"value2\":57434269,\"d"
     "ata\":[0,255,77,60],\"value3\":388208493,\"flag\":79,\"value4\":-564386383}],\"parameter"
     "s2\":[{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23.68\",\"i"
     "temText2\":\"K\303\274hler\\u0009\360\237\224\247 23.69\",\"itemText3\":\"say \\\"\303"
     "\251\\\" 23.70\",\"itemText4\":\"back\\\\slash \303\237 23.71\",\"text1\":\"Z\303\274ndu"
     "ng \360\237\232\227 23.72\",\"text2\":\"Pr\303\274fstand \342\202\254 23.73\",\"value1\""
     ":1071338497,\"children\":[{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 23.74\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 23.75\",\"itemText"
     "3\":\"say \\\"\303\251\\\" 23.76\",\"itemText4\":\"back\\\\slash \303\237 23.77\",\"text"
     "1\":\"Z\303\274ndung \360\237\232\227 23.78\",\"text2\":\"Pr\303\274fstand \342\202\254 "
     "23.79\",\"value1\":-1578290611,\"children\":[{\"itemText1\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 23.80\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224"
     "\247 23.81\",\"itemText3\":\"say \\\"\303\251\\\" 23.82\",\"itemText4\":\"back\\\\slash "
     "\303\237 23.83\",\"text1\":\"Z\303\274ndung \360\237\232\227 23.84\",\"text2\":\"Pr\303"
     "\274fstand \342\202\254 23.85\",\"value1\":2085242725,\"children\":[],\"text3\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 23.86\",\"error\":null,\"text4\":\"K"
     "\303\274hler\\u0009\360\237\224\247 23.87\",\"value2\":-444711193,\"data\":[0,255,62,81]"
     ",\"value3\":895160607,\"flag\":64,\"value4\":951663307},{\"itemText1\":\"say \\\"\303"
     "\251\\\" 23.88\",\"itemText2\":\"back\\\\slash \303\237 23.89\",\"itemText3\":\"Z\303"
     "\274ndung \360\237\232\227 23.90\",\"itemText4\":\"Pr\303\274fstand \342\202\254 23.91\""
     ",\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23.92\",\"text2\":\"K"
     "\303\274hler\\u0009\360\237\224\247 23.93\",\"value1\":-1458615421,\"children\":[],\"tex"
     "t3\":\"say \\\"\303\251\\\" 23.94\",\"error\":null,\"text4\":\"back\\\\slash \303\237 23"
     ".95\",\"value2\":1965567535,\"data\":[0,255,83,66],\"value3\":1402112721,\"flag\":85,\"v"
     "alue4\":-325036001}],\"text3\":\"Z\303\274ndung \360\237\232\227 23.96\",\"error\":{\"co"
     "de\":831988115,\"message\":\"Pr\303\274fstand \342\202\254 23.97\",\"details\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 23.98\",\"subCode\":-1338940229,\"mvci"
     "Error\":null,\"negativeResponse\":null},\"text4\":\"K\303\274hler\\u0009\360\237\224\247"
     " 23.99\",\"value2\":1845892343,\"data\":[0,255,68,87],\"value3\":1909064835,\"flag\":70,"
     "\"value4\":-205360811},{\"itemText1\":\"say \\\"\303\251\\\" 23.100\",\"itemText2\":\"ba"
     "ck\\\\slash \303\237 23.101\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 23.102\","
     "\"itemText4\":\"Pr\303\274fstand \342\202\254 23.103\",\"text1\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 23.104\",\"text2\":\"K\303\274hler\\u0009\360\237\224"
     "\247 23.105\",\"value1\":712312925,\"children\":[],\"text3\":\"say \\\"\303\251\\\" 23.1"
     "06\",\"error\":null,\"text4\":\"back\\\\slash \303\237 23.107\",\"value2\":-1219265039,"
     "\"data\":[0,255,89,72],\"value3\":268533301,\"flag\":91,\"value4\":1726217153}],\"text3"
     "\":\"Z\303\274ndung \360\237\232\227 23.108\",\"error\":{\"code\":-85685619,\"message\":"
     "\"Pr\303\274fstand \342\202\254 23.109\",\"details\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 23.110\",\"subCode\":592637733,\"mvciError\":{\"code\":-1099589847"
     ",\"codeText\":\"K\303\274hler\\u0009\360\237\224\247 23.111\",\"vendorCode\":1606541961,"
     "\"vendorCodeText\":\"say \\\"\303\251\\\" 23.112\",\"extraText\":\"back\\\\slash \303"
     "\237 23.113\",\"extraCode\":-2113494075},\"negativeResponse\":{\"code\":472962543,\"text"
     "\":\"Z\303\274ndung \360\237\232\227 23.114\",\"value1\":2028740025,\"value2\":388208493"
     ",\"bytes\":[0,255,74,93]}},\"text4\":\"Pr\303\274fstand \342\202\254 23.115\",\"value2\""
     ":-979914657,\"data\":[0,255,76,95],\"value3\":775485415,\"flag\":78,\"value4\":148686677"
     "1},{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23.116\",\"ite"
     "mText2\":\"K\303\274hler\\u0009\360\237\224\247 23.117\",\"itemText3\":\"say \\\"\303"
     "\251\\\" 23.118\",\"itemText4\":\"back\\\\slash \303\237 23.119\",\"text1\":\"Z\303\274n"
     "dung \360\237\232\227 23.120\",\"text2\":\"Pr\303\274fstand \342\202\254 23.121\",\"valu"
     "e1\":-1993818885,\"children\":[],\"text3\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 23.122\",\"error\":null,\"text4\":\"K\303\274hler\\u0009\360\237\224\247 23"
     ".123\",\"value2\":353287351,\"data\":[0,255,97,80],\"value3\":1282437529,\"flag\":99,\"v"
     "alue4\":-860239465}],\"text3\":\"say \\\"\303\251\\\" 23.124\",\"text4\":\"back\\\\slash"
     " \303\237 23.125\",\"specialDataGroups\":[{\"items\":[{\"itemText1\":\"Z\303\274ndung "
     "\360\237\232\227 23.126\",\"itemText2\":\"Pr\303\274fstand \342\202\254 23.127\",\"itemT"
     "ext3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23.128\",\"itemText4\":\""
     "K\303\274hler\\u0009\360\237\224\247 23.129\"},{\"itemText1\":\"say \\\"\303\251\\\" 23."
     "130\",\"itemText2\":\"back\\\\slash \303\237 23.131\",\"itemText3\":\"Z\303\274ndung "
     "\360\237\232\227 23.132\",\"itemText4\":\"Pr\303\274fstand \342\202\254 23.133\"}]},{\"i"
     "tems\":[]}],\"value2\":1367191579},{\"code\":-1874143693,\"text1\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 23.134\",\"text2\":\"K\303\274hler\\u0009\360\237"
     "\224\247 23.135\",\"value1\":233612161,\"parameters1\":[],\"parameters2\":[],\"text3\":"
     "\"say \\\"\303\251\\\" 23.136\",\"text4\":\"back\\\\slash \303\237 23.137\",\"specialDat"
     "aGroups\":[],\"value2\":-740564275}],\"value\":1247516389},{\"status\":-1754468503,\"tar"
     "get\":\"Z\303\274ndung \360\237\232\227 23.138\",\"error\":null,\"dtcs\":[],\"value\":11"
     "3936969}]",
     "[{\"status\":2147483647,\"target\":\"K\303\274hler\\u0009\360\237\224\247 23.3\",\"error"
     "\":{\"code\":-1,\"message\":\"say \\\"\303\251\\\" 23.4\",\"details\":\"back\\\\slash "
     "\303\237 23.5\",\"subCode\":-65536,\"mvciError\":{\"code\":2028740025,\"codeText\":\"Z"
     "\303\274ndung \360\237\232\227 23.6\",\"vendorCode\":-388208493,\"vendorCodeText\":\"Pr"
     "\303\274fstand \342\202\254 23.7\",\"extraText\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 23.8\",\"extraCode\":895160607},\"negativeResponse\":{\"code\":-1402112"
     "721,\"text\":\"K\303\274hler\\u0009\360\237\224\247 23.9\",\"value1\":922337203685477580"
     "9,\"value2\":18446744073709551615,\"bytes\":[0,255,1,59],\"byteCount\":4}},\"dtcs\":[{\""
     "code\":1909064835,\"text1\":\"say \\\"\303\251\\\" 23.10\",\"text2\":\"back\\\\slash "
     "\303\237 23.11\",\"value1\":-268533301,\"parameters1\":[{\"itemText1\":\"Z\303\274ndung "
     "\360\237\232\227 23.12\",\"itemText2\":\"Pr\303\274fstand \342\202\254 23.13\",\"itemTex"
     "t3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23.14\",\"itemText4\":\"K"
     "\303\274hler\\u0009\360\237\224\247 23.15\",\"text1\":\"say \\\"\303\251\\\" 23.16\",\"t"
     "ext2\":\"back\\\\slash \303\237 23.17\",\"value1\":775485415,\"children\":[{\"itemText1"
     "\":\"Z\303\274ndung \360\237\232\227 23.18\",\"itemText2\":\"Pr\303\274fstand \342\202"
     "\254 23.19\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23.20"
     "\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 23.21\",\"text1\":\"say \\\"\303"
     "\251\\\" 23.22\",\"text2\":\"back\\\\slash \303\237 23.23\",\"value1\":-1282437529,\"chi"
     "ldren\":[{\"itemText1\":\"Z\303\274ndung \360\237\232\227 23.24\",\"itemText2\":\"Pr\303"
     "\274fstand \342\202\254 23.25\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 23.26\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 23.27\",\""
     "text1\":\"say \\\"\303\251\\\" 23.28\",\"text2\":\"back\\\\slash \303\237 23.29\",\"valu"
     "e1\":1789389643,\"children\":null,\"childCount\":0,\"text3\":\"Z\303\274ndung \360\237"
     "\232\227 23.30\",\"error\":null,\"text4\":\"Pr\303\274fstand \342\202\254 23.31\",\"valu"
     "e2\":-148858111,\"data\":[0,255,42,61],\"dataLength\":4,\"value3\":4294967295,\"flag\":4"
     "4,\"value4\":655810225},{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 23.32\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 23.33\",\"itemText"
     "3\":\"say \\\"\303\251\\\" 23.34\",\"itemText4\":\"back\\\\slash \303\237 23.35\",\"text"
     "1\":\"Z\303\274ndung \360\237\232\227 23.36\",\"text2\":\"Pr\303\274fstand \342\202\254 "
     "23.37\",\"value1\":-1162762339,\"children\":null,\"childCount\":0,\"text3\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 23.38\",\"error\":null,\"text4\":\"K\303"
     "\274hler\\u0009\360\237\224\247 23.39\",\"value2\":1669714453,\"data\":[0,255,63,46],\"d"
     "ataLength\":4,\"value3\":2147483648,\"flag\":65,\"value4\":-29182919}],\"childCount\":2,"
     "\"text3\":\"say \\\"\303\251\\\" 23.40\",\"error\":{\"code\":536135033,\"message\":\"bac"
     "k\\\\slash \303\237 23.41\",\"details\":\"Z\303\274ndung \360\237\232\227 23.42\",\"subC"
     "ode\":-1043087147,\"mvciError\":null,\"negativeResponse\":null},\"text4\":\"Pr\303\274fs"
     "tand \342\202\254 23.43\",\"value2\":1550039261,\"data\":[0,255,48,67],\"dataLength\":4,"
     "\"value3\":2147483647,\"flag\":50,\"value4\":-2056991375},{\"itemText1\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 23.44\",\"itemText2\":\"K\303\274hler\\u0009"
     "\360\237\224\247 23.45\",\"itemText3\":\"say \\\"\303\251\\\" 23.46\",\"itemText4\":\"ba"
     "ck\\\\slash \303\237 23.47\",\"text1\":\"Z\303\274ndung \360\237\232\227 23.48\",\"text2"
     "\":\"Pr\303\274fstand \342\202\254 23.49\",\"value1\":416459843,\"children\":null,\"chil"
     "dCount\":0,\"text3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23.50\",\"e"
     "rror\":null,\"text4\":\"K\303\274hler\\u0009\360\237\224\247 23.51\",\"value2\":-9234119"
     "57,\"data\":[0,255,69,52],\"dataLength\":4,\"value3\":1521787911,\"flag\":71,\"value4\":"
     "1430364071}],\"childCount\":2,\"text3\":\"say \\\"\303\251\\\" 23.52\",\"error\":{\"code"
     "\":-1937316185,\"message\":\"back\\\\slash \303\237 23.53\",\"details\":\"Z\303\274ndung"
     " \360\237\232\227 23.54\",\"subCode\":296784651,\"mvciError\":{\"code\":-803736765,\"cod"
     "eText\":\"Pr\303\274fstand \342\202\254 23.55\",\"vendorCode\":1310688879,\"vendorCodeTe"
     "xt\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23.56\",\"extraText\":\"K"
     "\303\274hler\\u0009\360\237\224\247 23.57\",\"extraCode\":-1817640993},\"negativeRespons"
     "e\":{\"code\":177109461,\"text\":\"say \\\"\303\251\\\" 23.58\",\"value1\":4294967296,\""
     "value2\":1521787911,\"bytes\":[0,255,54,73],\"byteCount\":4}},\"text4\":\"back\\\\slash "
     "\303\237 23.59\",\"value2\":-684061575,\"data\":[0,255,56,75],\"dataLength\":4,\"value3"
     "\":2028740025,\"flag\":58,\"value4\":1191013689},{\"itemText1\":\"Z\303\274ndung \360"
     "\237\232\227 23.60\",\"itemText2\":\"Pr\303\274fstand \342\202\254 23.61\",\"itemText3\""
     ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23.62\",\"itemText4\":\"K\303"
     "\274hler\\u0009\360\237\224\247 23.63\",\"text1\":\"say \\\"\303\251\\\" 23.64\",\"text2"
     "\":\"back\\\\slash \303\237 23.65\",\"value1\":-1697965803,\"children\":null,\"childCoun"
     "t\":0,\"text3\":\"Z\303\274ndung \360\237\232\227 23.66\",\"error\":null,\"text4\":\"Pr"
     "\303\274fstand \342\202\254 23.67\",\"value2\":57434269,\"data\":[0,255,77,60],\"dataLen"
     "gth\":4,\"value3\":388208493,\"flag\":79,\"value4\":-564386383}],\"parameterCount1\":2,"
     "\"parameters2\":[{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 "
     "23.68\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 23.69\",\"itemText3\":\"say"
     " \\\"\303\251\\\" 23.70\",\"itemText4\":\"back\\\\slash \303\237 23.71\",\"text1\":\"Z"
     "\303\274ndung \360\237\232\227 23.72\",\"text2\":\"Pr\303\274fstand \342\202\254 23.73\""
     ",\"value1\":1071338497,\"children\":[{\"itemText1\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 23.74\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 23.75"
     "\",\"itemText3\":\"say \\\"\303\251\\\" 23.76\",\"itemText4\":\"back\\\\slash \303\237 2"
     "3.77\",\"text1\":\"Z\303\274ndung \360\237\232\227 23.78\",\"text2\":\"Pr\303\274fstand "
     "\342\202\254 23.79\",\"value1\":-1578290611,\"children\":[{\"itemText1\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 23.80\",\"itemText2\":\"K\303\274hler\\u0009"
     "\360\237\224\247 23.81\",\"itemText3\":\"say \\\"\303\251\\\" 23.82\",\"itemText4\":\"ba"
     "ck\\\\slash \303\237 23.83\",\"text1\":\"Z\303\274ndung \360\237\232\227 23.84\",\"text2"
     "\":\"Pr\303\274fstand \342\202\254 23.85\",\"value1\":2085242725,\"children\":null,\"chi"
     "ldCount\":0,\"text3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23.86\",\""
     "error\":null,\"text4\":\"K\303\274hler\\u0009\360\237\224\247 23.87\",\"value2\":-444711"
     "193,\"data\":[0,255,62,81],\"dataLength\":4,\"value3\":895160607,\"flag\":64,\"value4\":"
     "951663307},{\"itemText1\":\"say \\\"\303\251\\\" 23.88\",\"itemText2\":\"back\\\\slash "
     "\303\237 23.89\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 23.90\",\"itemText4\":"
     "\"Pr\303\274fstand \342\202\254 23.91\",\"text1\":\"\346\227\245\346\234\254\350\252\236"
     " \360\235\204\236 23.92\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 23.93\",\"val"
     "ue1\":-1458615421,\"children\":null,\"childCount\":0,\"text3\":\"say \\\"\303\251\\\" 23"
     ".94\",\"error\":null,\"text4\":\"back\\\\slash \303\237 23.95\",\"value2\":1965567535,\""
     "data\":[0,255,83,66],\"dataLength\":4,\"value3\":1402112721,\"flag\":85,\"value4\":-3250"
     "36001}],\"childCount\":2,\"text3\":\"Z\303\274ndung \360\237\232\227 23.96\",\"error\":{"
     "\"code\":831988115,\"message\":\"Pr\303\274fstand \342\202\254 23.97\",\"details\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 23.98\",\"subCode\":-1338940229,\""
     "mvciError\":null,\"negativeResponse\":null},\"text4\":\"K\303\274hler\\u0009\360\237\224"
     "\247 23.99\",\"value2\":1845892343,\"data\":[0,255,68,87],\"dataLength\":4,\"value3\":19"
     "09064835,\"flag\":70,\"value4\":-205360811},{\"itemText1\":\"say \\\"\303\251\\\" 23.100"
     "\",\"itemText2\":\"back\\\\slash \303\237 23.101\",\"itemText3\":\"Z\303\274ndung \360"
     "\237\232\227 23.102\",\"itemText4\":\"Pr\303\274fstand \342\202\254 23.103\",\"text1\":"
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23.104\",\"text2\":\"K\303\274hl"
     "er\\u0009\360\237\224\247 23.105\",\"value1\":712312925,\"children\":null,\"childCount\""
     ":0,\"text3\":\"say \\\"\303\251\\\" 23.106\",\"error\":null,\"text4\":\"back\\\\slash "
     "\303\237 23.107\",\"value2\":-1219265039,\"data\":[0,255,89,72],\"dataLength\":4,\"value"
     "3\":268533301,\"flag\":91,\"value4\":1726217153}],\"childCount\":2,\"text3\":\"Z\303\274"
     "ndung \360\237\232\227 23.108\",\"error\":{\"code\":-85685619,\"message\":\"Pr\303\274fs"
     "tand \342\202\254 23.109\",\"details\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 23.110\",\"subCode\":592637733,\"mvciError\":{\"code\":-1099589847,\"codeText\""
     ":\"K\303\274hler\\u0009\360\237\224\247 23.111\",\"vendorCode\":1606541961,\"vendorCodeT"
     "ext\":\"say \\\"\303\251\\\" 23.112\",\"extraText\":\"back\\\\slash \303\237 23.113\",\""
     "extraCode\":-2113494075},\"negativeResponse\":{\"code\":472962543,\"text\":\"Z\303\274nd"
     "ung \360\237\232\227 23.114\",\"value1\":2028740025,\"value2\":388208493,\"bytes\":[0,25"
     "5,74,93],\"byteCount\":4}},\"text4\":\"Pr\303\274fstand \342\202\254 23.115\",\"value2\""
     ":-979914657,\"data\":[0,255,76,95],\"dataLength\":4,\"value3\":775485415,\"flag\":78,\"v"
     "alue4\":1486866771},{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 23.116\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 23.117\",\"itemText3"
     "\":\"say \\\"\303\251\\\" 23.118\",\"itemText4\":\"back\\\\slash \303\237 23.119\",\"tex"
     "t1\":\"Z\303\274ndung \360\237\232\227 23.120\",\"text2\":\"Pr\303\274fstand \342\202"
     "\254 23.121\",\"value1\":-1993818885,\"children\":null,\"childCount\":0,\"text3\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 23.122\",\"error\":null,\"text4\":\"K"
     "\303\274hler\\u0009\360\237\224\247 23.123\",\"value2\":353287351,\"data\":[0,255,97,80]"
     ",\"dataLength\":4,\"value3\":1282437529,\"flag\":99,\"value4\":-860239465}],\"parameterC"
     "ount2\":2,\"text3\":\"say \\\"\303\251\\\" 23.124\",\"text4\":\"back\\\\slash \303\237 2"
     "3.125\",\"specialDataGroups\":[{\"items\":[{\"itemText1\":\"Z\303\274ndung \360\237\232"
     "\227 23.126\",\"itemText2\":\"Pr\303\274fstand \342\202\254 23.127\",\"itemText3\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 23.128\",\"itemText4\":\"K\303\274"
     "hler\\u0009\360\237\224\247 23.129\"},{\"itemText1\":\"say \\\"\303\251\\\" 23.130\",\"i"
     "temText2\":\"back\\\\slash \303\237 23.131\",\"itemText3\":\"Z\303\274ndung \360\237\232"
     "\227 23.132\",\"itemText4\":\"Pr\303\274fstand \342\202\254 23.133\"}],\"itemCount\":2},"
     "{\"items\":null,\"itemCount\":0}],\"specialDataGroupCount\":2,\"value2\":1367191579},{\""
     "code\":-1874143693,\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23."
     "134\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 23.135\",\"value1\":233612161,\"p"
     "arameters1\":null,\"parameterCount1\":0,\"parameters2\":null,\"parameterCount2\":0,\"tex"
     "t3\":\"say \\\"\303\251\\\" 23.136\",\"text4\":\"back\\\\slash \303\237 23.137\",\"speci"
     "alDataGroups\":null,\"specialDataGroupCount\":0,\"value2\":-740564275}],\"dtcCount\":2,"
     "\"value\":1247516389},{\"status\":-1754468503,\"target\":\"Z\303\274ndung \360\237\232"
     "\227 23.138\",\"error\":null,\"dtcs\":null,\"dtcCount\":0,\"value\":113936969}]",
     "03000000130000005072c3bc667374616e6420e282ac2032332e310000000013000000e697a5e69cace8aa9e"
     "20f09d849e2032332e3200000080ff807f",
     "030000005072c3bc667374616e6420e282ac2032332e310000e697a5e69cace8aa9e20f09d849e2032332e32"
     "000100000080ff807f",
     "[[\"Pr\303\274fstand \342\202\254 23.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 23.2\"],{\"value\":-2147483648,\"flag1\":255,\"flag2\":128,\"flag3\":12"
     "7}]",
     "[[\"Pr\303\274fstand \342\202\254 23.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 23.2\"],{\"value\":-2147483648,\"flag1\":255,\"flag2\":128,\"flag3\":12"
     "7}]",
     "010200000001ffffff7f110000004bc3bc686c657209f09f94a72032332e3301ffffffff0d00000073617920"
     "22c3a9222032332e34120000006261636b5c736c61736820c39f2032332e350000ffff01b91dec7812000000"
     "5ac3bc6e64756e6720f09f9a972032332e369368dce8130000005072c3bc667374616e6420e282ac2032332e"
     "3713000000e697a5e69cace8aa9e20f09d849e2032332e381f115b35012f756dac110000004bc3bc686c6572"
     "09f09f94a72032332e390100000000000080ffffffffffffffff0400000000ff013b02000000018304ca710e"
     "0000007361792022c3a9222032332e3130130000006261636b5c736c61736820c39f2032332e3131cb81feef"
     "0200000001130000005ac3bc6e64756e6720f09f9a972032332e3132140000005072c3bc667374616e6420e2"
     "82ac2032332e313314000000e697a5e69cace8aa9e20f09d849e2032332e3134120000004bc3bc686c657209"
     "f09f94a72032332e31350e0000007361792022c3a9222032332e3136130000006261636b5c736c61736820c3"
     "9f2032332e3137e7f7382e0200000001130000005ac3bc6e64756e6720f09f9a972032332e31381400000050"
     "72c3bc667374616e6420e282ac2032332e313914000000e697a5e69cace8aa9e20f09d849e2032332e323012"
     "0000004bc3bc686c657209f09f94a72032332e32310e0000007361792022c3a9222032332e32321300000062"
     "61636b5c736c61736820c39f2032332e3233678e8fb30200000001130000005ac3bc6e64756e6720f09f9a97"
     "2032332e3234140000005072c3bc667374616e6420e282ac2032332e323514000000e697a5e69cace8aa9e20"
     "f09d849e2032332e3236120000004bc3bc686c657209f09f94a72032332e32370e0000007361792022c3a922"
     "2032332e3238130000006261636b5c736c61736820c39f2032332e32394beba76a00000000130000005ac3bc"
     "6e64756e6720f09f9a972032332e333000140000005072c3bc667374616e6420e282ac2032332e3331019b20"
     "f70400000000ff2a3dffffffff2cb1de16270114000000e697a5e69cace8aa9e20f09d849e2032332e333212"
     "0000004bc3bc686c657209f09f94a72032332e33330e0000007361792022c3a9222032332e33341300000062"
     "61636b5c736c61736820c39f2032332e3335130000005ac3bc6e64756e6720f09f9a972032332e3336140000"
     "005072c3bc667374616e6420e282ac2032332e33379da7b1ba0000000014000000e697a5e69cace8aa9e20f0"
     "9d849e2032332e333800120000004bc3bc686c657209f09f94a72032332e333915d285630400000000ff3f2e"
     "000000804139b442fe0e0000007361792022c3a9222032332e34300179c5f41f130000006261636b5c736c61"
     "736820c39f2032332e3431130000005ac3bc6e64756e6720f09f9a972032332e3432d5c0d3c1000014000000"
     "5072c3bc667374616e6420e282ac2032332e3433ddb8635c0400000000ff3043ffffff7f3271cd6485011400"
     "0000e697a5e69cace8aa9e20f09d849e2032332e3434120000004bc3bc686c657209f09f94a72032332e3435"
     "0e0000007361792022c3a9222032332e3436130000006261636b5c736c61736820c39f2032332e3437130000"
     "005ac3bc6e64756e6720f09f9a972032332e3438140000005072c3bc667374616e6420e282ac2032332e3439"
     "43acd2180000000014000000e697a5e69cace8aa9e20f09d849e2032332e353000120000004bc3bc686c6572"
     "09f09f94a72032332e35310bdaf5c80400000000ff453407a4b45a47a79f41550e0000007361792022c3a922"
     "2032332e353201a7e6868c130000006261636b5c736c61736820c39f2032332e3533130000005ac3bc6e6475"
     "6e6720f09f9a972032332e35340b93b0110143f317d0140000005072c3bc667374616e6420e282ac2032332e"
     "35356f861f4e14000000e697a5e69cace8aa9e20f09d849e2032332e3536120000004bc3bc686c657209f09f"
     "94a72032332e3537dfffa89301d5798e0a0e0000007361792022c3a9222032332e3538000000000100000007"
     "a4b45a000000000400000000ff3649130000006261636b5c736c61736820c39f2032332e3539790c3ad70400"
     "000000ff384bb91dec783a396dfd4601130000005ac3bc6e64756e6720f09f9a972032332e36301400000050"
     "72c3bc667374616e6420e282ac2032332e363114000000e697a5e69cace8aa9e20f09d849e2032332e363212"
     "0000004bc3bc686c657209f09f94a72032332e36330e0000007361792022c3a9222032332e36341300000062"
     "61636b5c736c61736820c39f2032332e36351519cb9a00000000130000005ac3bc6e64756e6720f09f9a9720"
     "32332e363600140000005072c3bc667374616e6420e282ac2032332e36379d606c030400000000ff4d3c6d97"
     "23174fb1255cde020000000114000000e697a5e69cace8aa9e20f09d849e2032332e3638120000004bc3bc68"
     "6c657209f09f94a72032332e36390e0000007361792022c3a9222032332e3730130000006261636b5c736c61"
     "736820c39f2032332e3731130000005ac3bc6e64756e6720f09f9a972032332e3732140000005072c3bc6673"
     "74616e6420e282ac2032332e37330154db3f020000000114000000e697a5e69cace8aa9e20f09d849e203233"
     "2e3734120000004bc3bc686c657209f09f94a72032332e37350e0000007361792022c3a9222032332e373613"
     "0000006261636b5c736c61736820c39f2032332e3737130000005ac3bc6e64756e6720f09f9a972032332e37"
     "38140000005072c3bc667374616e6420e282ac2032332e37394d32eda1020000000114000000e697a5e69cac"
     "e8aa9e20f09d849e2032332e3830120000004bc3bc686c657209f09f94a72032332e38310e00000073617920"
     "22c3a9222032332e3832130000006261636b5c736c61736820c39f2032332e3833130000005ac3bc6e64756e"
     "6720f09f9a972032332e3834140000005072c3bc667374616e6420e282ac2032332e383565474a7c00000000"
     "14000000e697a5e69cace8aa9e20f09d849e2032332e383600120000004bc3bc686c657209f09f94a7203233"
     "2e3837e73e7ee50400000000ff3e511f115b3540cb3ab938010e0000007361792022c3a9222032332e383813"
     "0000006261636b5c736c61736820c39f2032332e3839130000005ac3bc6e64756e6720f09f9a972032332e39"
     "30140000005072c3bc667374616e6420e282ac2032332e393114000000e697a5e69cace8aa9e20f09d849e20"
     "32332e3932120000004bc3bc686c657209f09f94a72032332e3933834b0fa9000000000e0000007361792022"
     "c3a9222032332e393400130000006261636b5c736c61736820c39f2032332e39352f2e28750400000000ff53"
     "42d18a9253551f58a0ec130000005ac3bc6e64756e6720f09f9a972032332e39360193219731140000005072"
     "c3bc667374616e6420e282ac2032332e393714000000e697a5e69cace8aa9e20f09d849e2032332e3938bb64"
     "31b00000120000004bc3bc686c657209f09f94a72032332e3939f714066e0400000000ff44578304ca714655"
     "71c2f3010f0000007361792022c3a9222032332e313030140000006261636b5c736c61736820c39f2032332e"
     "313031140000005ac3bc6e64756e6720f09f9a972032332e313032150000005072c3bc667374616e6420e282"
     "ac2032332e31303315000000e697a5e69cace8aa9e20f09d849e2032332e313034130000004bc3bc686c6572"
     "09f09f94a72032332e3130355d08752a000000000f0000007361792022c3a9222032332e3130360014000000"
     "6261636b5c736c61736820c39f2032332e313037f17d53b70400000000ff5948357e01105bc1fbe366140000"
     "005ac3bc6e64756e6720f09f9a972032332e313038018d8ae4fa150000005072c3bc667374616e6420e282ac"
     "2032332e31303915000000e697a5e69cace8aa9e20f09d849e2032332e31313025ef522301299775be130000"
     "004bc3bc686c657209f09f94a72032332e31313189e2c15f0f0000007361792022c3a9222032332e31313214"
     "0000006261636b5c736c61736820c39f2032332e313133c5a3068201efd5301c140000005ac3bc6e64756e67"
     "20f09f9a972032332e313134b91dec78000000006d972317000000000400000000ff4a5d150000005072c3bc"
     "667374616e6420e282ac2032332e3131355fb097c50400000000ff4c5fe7f7382e4e53c99f580115000000e6"
     "97a5e69cace8aa9e20f09d849e2032332e313136130000004bc3bc686c657209f09f94a72032332e3131370f"
     "0000007361792022c3a9222032332e313138140000006261636b5c736c61736820c39f2032332e3131391400"
     "00005ac3bc6e64756e6720f09f9a972032332e313230150000005072c3bc667374616e6420e282ac2032332e"
     "313231fbbc28890000000015000000e697a5e69cace8aa9e20f09d849e2032332e31323200130000004bc3bc"
     "686c657209f09f94a72032332e313233b7bc0e150400000000ff61509971704c6397c9b9cc0f000000736179"
     "2022c3a9222032332e313234140000006261636b5c736c61736820c39f2032332e3132350200000001020000"
     "0001140000005ac3bc6e64756e6720f09f9a972032332e313236150000005072c3bc667374616e6420e282ac"
     "2032332e31323715000000e697a5e69cace8aa9e20f09d849e2032332e313238130000004bc3bc686c657209"
     "f09f94a72032332e313239010f0000007361792022c3a9222032332e313330140000006261636b5c736c6173"
     "6820c39f2032332e313331140000005ac3bc6e64756e6720f09f9a972032332e313332150000005072c3bc66"
     "7374616e6420e282ac2032332e31333301000000001bb07d510133d64a9015000000e697a5e69cace8aa9e20"
     "f09d849e2032332e313334130000004bc3bc686c657209f09f94a72032332e31333581a3ec0d000000000000"
     "00000f0000007361792022c3a9222032332e313336140000006261636b5c736c61736820c39f2032332e3133"
     "3700000000cde2dbd3e5965b4a0169ef6c97140000005ac3bc6e64756e6720f09f9a972032332e3133380000"
     "000000498aca06",
     "0200000001ffffff7f110000004bc3bc686c657209f09f94a72032332e3301ffffffff0d0000007361792022"
     "c3a9222032332e34120000006261636b5c736c61736820c39f2032332e350000ffff01b91dec78120000005a"
     "c3bc6e64756e6720f09f9a972032332e369368dce8130000005072c3bc667374616e6420e282ac2032332e37"
     "13000000e697a5e69cace8aa9e20f09d849e2032332e381f115b35012f756dac110000004bc3bc686c657209"
     "f09f94a72032332e390100000000000080ffffffffffffffff0400000000ff013b02000000018304ca710e00"
     "00007361792022c3a9222032332e3130130000006261636b5c736c61736820c39f2032332e3131cb81feef02"
     "00000001130000005ac3bc6e64756e6720f09f9a972032332e3132140000005072c3bc667374616e6420e282"
     "ac2032332e313314000000e697a5e69cace8aa9e20f09d849e2032332e3134120000004bc3bc686c657209f0"
     "9f94a72032332e31350e0000007361792022c3a9222032332e3136130000006261636b5c736c61736820c39f"
     "2032332e3137e7f7382e0200000001130000005ac3bc6e64756e6720f09f9a972032332e3138140000005072"
     "c3bc667374616e6420e282ac2032332e313914000000e697a5e69cace8aa9e20f09d849e2032332e32301200"
     "00004bc3bc686c657209f09f94a72032332e32310e0000007361792022c3a9222032332e3232130000006261"
     "636b5c736c61736820c39f2032332e3233678e8fb30200000001130000005ac3bc6e64756e6720f09f9a9720"
     "32332e3234140000005072c3bc667374616e6420e282ac2032332e323514000000e697a5e69cace8aa9e20f0"
     "9d849e2032332e3236120000004bc3bc686c657209f09f94a72032332e32370e0000007361792022c3a92220"
     "32332e3238130000006261636b5c736c61736820c39f2032332e32394beba76a00000000130000005ac3bc6e"
     "64756e6720f09f9a972032332e333000140000005072c3bc667374616e6420e282ac2032332e3331019b20f7"
     "0400000000ff2a3dffffffff2cb1de16270114000000e697a5e69cace8aa9e20f09d849e2032332e33321200"
     "00004bc3bc686c657209f09f94a72032332e33330e0000007361792022c3a9222032332e3334130000006261"
     "636b5c736c61736820c39f2032332e3335130000005ac3bc6e64756e6720f09f9a972032332e333614000000"
     "5072c3bc667374616e6420e282ac2032332e33379da7b1ba0000000014000000e697a5e69cace8aa9e20f09d"
     "849e2032332e333800120000004bc3bc686c657209f09f94a72032332e333915d285630400000000ff3f2e00"
     "0000804139b442fe0e0000007361792022c3a9222032332e34300179c5f41f130000006261636b5c736c6173"
     "6820c39f2032332e3431130000005ac3bc6e64756e6720f09f9a972032332e3432d5c0d3c100001400000050"
     "72c3bc667374616e6420e282ac2032332e3433ddb8635c0400000000ff3043ffffff7f3271cd648501140000"
     "00e697a5e69cace8aa9e20f09d849e2032332e3434120000004bc3bc686c657209f09f94a72032332e34350e"
     "0000007361792022c3a9222032332e3436130000006261636b5c736c61736820c39f2032332e343713000000"
     "5ac3bc6e64756e6720f09f9a972032332e3438140000005072c3bc667374616e6420e282ac2032332e343943"
     "acd2180000000014000000e697a5e69cace8aa9e20f09d849e2032332e353000120000004bc3bc686c657209"
     "f09f94a72032332e35310bdaf5c80400000000ff453407a4b45a47a79f41550e0000007361792022c3a92220"
     "32332e353201a7e6868c130000006261636b5c736c61736820c39f2032332e3533130000005ac3bc6e64756e"
     "6720f09f9a972032332e35340b93b0110143f317d0140000005072c3bc667374616e6420e282ac2032332e35"
     "356f861f4e14000000e697a5e69cace8aa9e20f09d849e2032332e3536120000004bc3bc686c657209f09f94"
     "a72032332e3537dfffa89301d5798e0a0e0000007361792022c3a9222032332e3538000000000100000007a4"
     "b45a000000000400000000ff3649130000006261636b5c736c61736820c39f2032332e3539790c3ad7040000"
     "0000ff384bb91dec783a396dfd4601130000005ac3bc6e64756e6720f09f9a972032332e3630140000005072"
     "c3bc667374616e6420e282ac2032332e363114000000e697a5e69cace8aa9e20f09d849e2032332e36321200"
     "00004bc3bc686c657209f09f94a72032332e36330e0000007361792022c3a9222032332e3634130000006261"
     "636b5c736c61736820c39f2032332e36351519cb9a00000000130000005ac3bc6e64756e6720f09f9a972032"
     "332e363600140000005072c3bc667374616e6420e282ac2032332e36379d606c030400000000ff4d3c6d9723"
     "174fb1255cde020000000114000000e697a5e69cace8aa9e20f09d849e2032332e3638120000004bc3bc686c"
     "657209f09f94a72032332e36390e0000007361792022c3a9222032332e3730130000006261636b5c736c6173"
     "6820c39f2032332e3731130000005ac3bc6e64756e6720f09f9a972032332e3732140000005072c3bc667374"
     "616e6420e282ac2032332e37330154db3f020000000114000000e697a5e69cace8aa9e20f09d849e2032332e"
     "3734120000004bc3bc686c657209f09f94a72032332e37350e0000007361792022c3a9222032332e37361300"
     "00006261636b5c736c61736820c39f2032332e3737130000005ac3bc6e64756e6720f09f9a972032332e3738"
     "140000005072c3bc667374616e6420e282ac2032332e37394d32eda1020000000114000000e697a5e69cace8"
     "aa9e20f09d849e2032332e3830120000004bc3bc686c657209f09f94a72032332e38310e0000007361792022"
     "c3a9222032332e3832130000006261636b5c736c61736820c39f2032332e3833130000005ac3bc6e64756e67"
     "20f09f9a972032332e3834140000005072c3bc667374616e6420e282ac2032332e383565474a7c0000000014"
     "000000e697a5e69cace8aa9e20f09d849e2032332e383600120000004bc3bc686c657209f09f94a72032332e"
     "3837e73e7ee50400000000ff3e511f115b3540cb3ab938010e0000007361792022c3a9222032332e38381300"
     "00006261636b5c736c61736820c39f2032332e3839130000005ac3bc6e64756e6720f09f9a972032332e3930"
     "140000005072c3bc667374616e6420e282ac2032332e393114000000e697a5e69cace8aa9e20f09d849e2032"
     "332e3932120000004bc3bc686c657209f09f94a72032332e3933834b0fa9000000000e0000007361792022c3"
     "a9222032332e393400130000006261636b5c736c61736820c39f2032332e39352f2e28750400000000ff5342"
     "d18a9253551f58a0ec130000005ac3bc6e64756e6720f09f9a972032332e39360193219731140000005072c3"
     "bc667374616e6420e282ac2032332e393714000000e697a5e69cace8aa9e20f09d849e2032332e3938bb6431"
     "b00000120000004bc3bc686c657209f09f94a72032332e3939f714066e0400000000ff44578304ca71465571"
     "c2f3010f0000007361792022c3a9222032332e313030140000006261636b5c736c61736820c39f2032332e31"
     "3031140000005ac3bc6e64756e6720f09f9a972032332e313032150000005072c3bc667374616e6420e282ac"
     "2032332e31303315000000e697a5e69cace8aa9e20f09d849e2032332e313034130000004bc3bc686c657209"
     "f09f94a72032332e3130355d08752a000000000f0000007361792022c3a9222032332e313036001400000062"
     "61636b5c736c61736820c39f2032332e313037f17d53b70400000000ff5948357e01105bc1fbe36614000000"
     "5ac3bc6e64756e6720f09f9a972032332e313038018d8ae4fa150000005072c3bc667374616e6420e282ac20"
     "32332e31303915000000e697a5e69cace8aa9e20f09d849e2032332e31313025ef522301299775be13000000"
     "4bc3bc686c657209f09f94a72032332e31313189e2c15f0f0000007361792022c3a9222032332e3131321400"
     "00006261636b5c736c61736820c39f2032332e313133c5a3068201efd5301c140000005ac3bc6e64756e6720"
     "f09f9a972032332e313134b91dec78000000006d972317000000000400000000ff4a5d150000005072c3bc66"
     "7374616e6420e282ac2032332e3131355fb097c50400000000ff4c5fe7f7382e4e53c99f580115000000e697"
     "a5e69cace8aa9e20f09d849e2032332e313136130000004bc3bc686c657209f09f94a72032332e3131370f00"
     "00007361792022c3a9222032332e313138140000006261636b5c736c61736820c39f2032332e313139140000"
     "005ac3bc6e64756e6720f09f9a972032332e313230150000005072c3bc667374616e6420e282ac2032332e31"
     "3231fbbc28890000000015000000e697a5e69cace8aa9e20f09d849e2032332e31323200130000004bc3bc68"
     "6c657209f09f94a72032332e313233b7bc0e150400000000ff61509971704c6397c9b9cc0f00000073617920"
     "22c3a9222032332e313234140000006261636b5c736c61736820c39f2032332e313235020000000102000000"
     "01140000005ac3bc6e64756e6720f09f9a972032332e313236150000005072c3bc667374616e6420e282ac20"
     "32332e31323715000000e697a5e69cace8aa9e20f09d849e2032332e313238130000004bc3bc686c657209f0"
     "9f94a72032332e313239010f0000007361792022c3a9222032332e313330140000006261636b5c736c617368"
     "20c39f2032332e313331140000005ac3bc6e64756e6720f09f9a972032332e313332150000005072c3bc6673"
     "74616e6420e282ac2032332e31333301000000001bb07d510133d64a9015000000e697a5e69cace8aa9e20f0"
     "9d849e2032332e313334130000004bc3bc686c657209f09f94a72032332e31333581a3ec0d00000000000000"
     "000f0000007361792022c3a9222032332e313336140000006261636b5c736c61736820c39f2032332e313337"
     "00000000cde2dbd3e5965b4a0169ef6c97140000005ac3bc6e64756e6720f09f9a972032332e313338000000"
     "0000498aca06",
     0},
    {"sparse", "[[],null]", "[[],null]",
     "[{\"status\":-2147483648,\"target\":\"\",\"error\":{\"code\":2147483647,\"message\":\"\""
     ",\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null},\"dtcs\":"
     "[{\"code\":-65536,\"text1\":\"\",\"text2\":\"\",\"value1\":2028740025,\"parameters1\":[]"
     ",\"parameters2\":[],\"text3\":\"\",\"text4\":\"\",\"specialDataGroups\":[],\"value2\":-3"
     "88208493}],\"value\":895160607},null]",
     "[{\"status\":-2147483648,\"target\":\"\",\"error\":{\"code\":2147483647,\"message\":\"\""
     ",\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null},\"dtcs\":"
     "[{\"code\":-65536,\"text1\":\"\",\"text2\":\"\",\"value1\":2028740025,\"parameters1\":nu"
     "ll,\"parameterCount1\":0,\"parameters2\":null,\"parameterCount2\":0,\"text3\":\"\",\"tex"
     "t4\":\"\",\"specialDataGroups\":null,\"specialDataGroupCount\":0,\"value2\":-388208493}]"
     ",\"dtcCount\":1,\"value\":895160607},null]",
     "0000000000000000000000", "0000000000",
     "[[],{\"value\":0,\"flag1\":0,\"flag2\":0,\"flag3\":0}]", "[[],null]",
     "010200000001000000800000000001ffffff7f0000000000000000ffffffff000001000000010000ffff0000"
     "000000000000b91dec7800000000000000000000000000000000000000009368dce81f115b3500",
     "0200000001000000800000000001ffffff7f0000000000000000ffffffff000001000000010000ffff000000"
     "0000000000b91dec7800000000000000000000000000000000000000009368dce81f115b3500",
     0},
    {"empty", "[[],null]", "[[],null]", "[]", "null", "0000000000000000000000", "0000000000",
     "[[],{\"value\":0,\"flag1\":0,\"flag2\":0,\"flag3\":0}]", "[[],null]", "0100000000",
     "00000000", 0},
};

struct ReadDtcsExport {
    static constexpr const char* operation = "readDtcs";
    using Result = kc::ListResult<ReadDtcResult, release_ReadDtcResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::Texts a0(in[0]);
        kel_readDtcs(api, a0.data(), a0.count(), kc::record<DtcReadConfig>(in[1]), error, &out.data,
                     &out.count);
    }
};

TEST_F(Diagnostics, readDtcs_Exchange) { kc::exchange<ReadDtcsExport>(api, kReadDtcsCases); }
TEST_F(Diagnostics, readDtcs_Failure) { kc::failure<ReadDtcsExport>(api, kReadDtcsCases); }
TEST_F(DiagnosticsAdmission, readDtcs) {
    kc::admission<ReadDtcsExport>(callers(), kReadDtcsCases, kc::Needs::Operator);
}

struct ReadDtcsAsyncExport {
    static constexpr const char* operation = "readDtcsAsync";
    using Reports = kc::Reports<ReadDtcResult, release_ReadDtcResult_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        kc::Texts a0(in[0]);
        return kel_readDtcsAsync(api, a0.data(), a0.count(), kc::record<DtcReadConfig>(in[1]),
                                 error, &Reports::onReport, &reports);
    }
};

TEST_F(Diagnostics, readDtcsAsync_Exchange) {
    kc::asyncExchange<ReadDtcsAsyncExport>(api, kReadDtcsCases);
}
TEST_F(Diagnostics, readDtcsAsync_Failure) {
    kc::asyncFailure<ReadDtcsAsyncExport>(api, kReadDtcsCases);
}
TEST_F(DiagnosticsAdmission, readDtcsAsync) {
    kc::asyncAdmission<ReadDtcsAsyncExport>(callers(), kReadDtcsCases, kc::Needs::Operator);
}

const char* const kReadDtcsNoUtf8[] = {
    "[[\"\\udc00Pr\303\274fstand \342\202\254 23.1\\ud800\",\"\",\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 23.2\"],{\"value\":-2147483648,\"flag1\":255,\"flag2\":128"
    ",\"flag3\":127}]",
};
TEST_F(Diagnostics, readDtcs_TextWithNoUtf8Form) {
    kc::noUtf8<ReadDtcsExport>(api, kReadDtcsNoUtf8);
}
TEST_F(Diagnostics, readDtcsAsync_TextWithNoUtf8Form) {
    kc::asyncNoUtf8<ReadDtcsAsyncExport>(api, kReadDtcsNoUtf8);
}

const kc::Number kNumber23{23, "readDtcs", kReadDtcsCases};

TEST_F(DiagnosticsByNumber, n23_readDtcs_KelCall) { kc::kelCall(api, kNumber23); }
TEST_F(DiagnosticsByNumber, n23_readDtcs_PyCall) { kc::pyCall(api, kNumber23); }
TEST_F(DiagnosticsByNumber, n23_readDtcs_Failure) { kc::numberFailure(api, kNumber23); }
TEST_F(DiagnosticsByNumber, n23_readDtcs_ShortInput) { kc::shortInput(api, kNumber23); }

// ---- readSupportedDtcs (position 25, number 25) ----

const kc::Case kReadSupportedDtcsCases[] = {
    {"full",
     "[[\"Pr\303\274fstand \342\202\254 25.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 25.2\"],{\"value\":-2147483648,\"flag1\":255,\"flag2\":128,\"flag3\":12"
     "7}]",
     "[[\"Pr\303\274fstand \342\202\254 25.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 25.2\"],{\"value\":-2147483648,\"flag1\":255,\"flag2\":128,\"flag3\":12"
     "7}]",
     "[{\"status\":2147483647,\"target\":\"K\303\274hler\\u0009\360\237\224\247 25.3\",\"error"
     "\":{\"code\":-1,\"message\":\"say \\\"\303\251\\\" 25.4\",\"details\":\"back\\\\slash "
     "\303\237 25.5\",\"subCode\":-65536,\"mvciError\":{\"code\":2028821031,\"codeText\":\"Z"
     "\303\274ndung \360\237\232\227 25.6\",\"vendorCode\":-388289499,\"vendorCodeText\":\"Pr"
     "\303\274fstand \342\202\254 25.7\",\"extraText\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 25.8\",\"extraCode\":895241613},\"negativeResponse\":{\"code\":-1402193"
     "727,\"text\":\"K\303\274hler\\u0009\360\237\224\247 25.9\",\"value1\":922337203685477580"
     "9,\"value2\":18446744073709551615,\"bytes\":[0,255,1,229]}},\"dtcs\":[{\"code\":19091458"
     "41,\"text1\":\"say \\\"\303\251\\\" 25.10\",\"text2\":\"back\\\\slash \303\237 25.11\","
     "\"value1\":-268614307,\"parameters1\":[{\"itemText1\":\"Z\303\274ndung \360\237\232\227 "
     "25.12\",\"itemText2\":\"Pr\303\274fstand \342\202\254 25.13\",\"itemText3\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 25.14\",\"itemText4\":\"K\303\274hler\\u00"
     "09\360\237\224\247 25.15\",\"text1\":\"say \\\"\303\251\\\" 25.16\",\"text2\":\"back\\\\"
     "slash \303\237 25.17\",\"value1\":775566421,\"children\":[{\"itemText1\":\"Z\303\274ndun"
     "g \360\237\232\227 25.18\",\"itemText2\":\"Pr\303\274fstand \342\202\254 25.19\",\"itemT"
     "ext3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.20\",\"itemText4\":\"K"
     "\303\274hler\\u0009\360\237\224\247 25.21\",\"text1\":\"say \\\"\303\251\\\" 25.22\",\"t"
     "ext2\":\"back\\\\slash \303\237 25.23\",\"value1\":-1282518535,\"children\":[{\"itemText"
     "1\":\"Z\303\274ndung \360\237\232\227 25.24\",\"itemText2\":\"Pr\303\274fstand \342\202"
     "\254 25.25\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.26"
     "\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 25.27\",\"text1\":\"say \\\"\303"
     "\251\\\" 25.28\",\"text2\":\"back\\\\slash \303\237 25.29\",\"value1\":1789470649,\"chil"
     "dren\":[],\"text3\":\"Z\303\274ndung \360\237\232\227 25.30\",\"error\":null,\"text4\":"
     "\"Pr\303\274fstand \342\202\254 25.31\",\"value2\":-148939117,\"data\":[0,255,231,214],"
     "\"value3\":4294967295,\"flag\":233,\"value4\":655891231},{\"itemText1\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 25.32\",\"itemText2\":\"K\303\274hler\\u0009"
     "\360\237\224\247 25.33\",\"itemText3\":\"say \\\"\303\251\\\" 25.34\",\"itemText4\":\"ba"
     "ck\\\\slash \303\237 25.35\",\"text1\":\"Z\303\274ndung \360\237\232\227 25.36\",\"text2"
     "\":\"Pr\303\274fstand \342\202\254 25.37\",\"value1\":-1162843345,\"children\":[],\"text"
     "3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.38\",\"error\":null,\"tex"
     "t4\":\"K\303\274hler\\u0009\360\237\224\247 25.39\",\"value2\":1669795459,\"data\":[0,25"
     "5,216,235],\"value3\":2147483648,\"flag\":218,\"value4\":-29263925}],\"text3\":\"say \\"
     "\"\303\251\\\" 25.40\",\"error\":{\"code\":536216039,\"message\":\"back\\\\slash \303"
     "\237 25.41\",\"details\":\"Z\303\274ndung \360\237\232\227 25.42\",\"subCode\":-10431681"
     "53,\"mvciError\":null,\"negativeResponse\":null},\"text4\":\"Pr\303\274fstand \342\202"
     "\254 25.43\",\"value2\":1550120267,\"data\":[0,255,237,220],\"value3\":2147483647,\"flag"
     "\":239,\"value4\":-2057072381},{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 25.44\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 25.45\",\""
     "itemText3\":\"say \\\"\303\251\\\" 25.46\",\"itemText4\":\"back\\\\slash \303\237 25.47"
     "\",\"text1\":\"Z\303\274ndung \360\237\232\227 25.48\",\"text2\":\"Pr\303\274fstand \342"
     "\202\254 25.49\",\"value1\":416540849,\"children\":[],\"text3\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 25.50\",\"error\":null,\"text4\":\"K\303\274hler\\u000"
     "9\360\237\224\247 25.51\",\"value2\":-923492963,\"data\":[0,255,222,241],\"value3\":1521"
     "868917,\"flag\":224,\"value4\":1430445077}],\"text3\":\"say \\\"\303\251\\\" 25.52\",\"e"
     "rror\":{\"code\":-1937397191,\"message\":\"back\\\\slash \303\237 25.53\",\"details\":\""
     "Z\303\274ndung \360\237\232\227 25.54\",\"subCode\":296865657,\"mvciError\":{\"code\":-8"
     "03817771,\"codeText\":\"Pr\303\274fstand \342\202\254 25.55\",\"vendorCode\":1310769885,"
     "\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.56\",\"ext"
     "raText\":\"K\303\274hler\\u0009\360\237\224\247 25.57\",\"extraCode\":-1817721999},\"neg"
     "ativeResponse\":{\"code\":177190467,\"text\":\"say \\\"\303\251\\\" 25.58\",\"value1\":4"
     "294967296,\"value2\":1521868917,\"bytes\":[0,255,243,226]}},\"text4\":\"back\\\\slash "
     "\303\237 25.59\",\"value2\":-684142581,\"data\":[0,255,245,228],\"value3\":2028821031,\""
     "flag\":247,\"value4\":1191094695},{\"itemText1\":\"Z\303\274ndung \360\237\232\227 25.60"
     "\",\"itemText2\":\"Pr\303\274fstand \342\202\254 25.61\",\"itemText3\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 25.62\",\"itemText4\":\"K\303\274hler\\u0009"
     "\360\237\224\247 25.63\",\"text1\":\"say \\\"\303\251\\\" 25.64\",\"text2\":\"back\\\\sl"
     "ash \303\237 25.65\",\"value1\":-1698046809,\"children\":[],\"text3\":\"Z\303\274ndung "
     "\360\237\232\227 25.66\",\"error\":null,\"text4\":\"Pr\303\274fstand \342\202\254 25.67"
     "\",\"value2\":57515275,\"data\":[0,255,230,249],\"value3\":388289499,\"flag\":232,\"valu"
     "e4\":-564467389}],\"parameters2\":[{\"itemText1\":\"\346\227\245\346\234\254\350\252\236"
     " \360\235\204\236 25.68\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 25.69\","
     "\"itemText3\":\"say \\\"\303\251\\\" 25.70\",\"itemText4\":\"back\\\\slash \303\237 25.7"
     "1\",\"text1\":\"Z\303\274ndung \360\237\232\227 25.72\",\"text2\":\"Pr\303\274fstand "
     "\342\202\254 25.73\",\"value1\":1071419503,\"children\":[{\"itemText1\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 25.74\",\"itemText2\":\"K\303\274hler\\u0009"
     "\360\237\224\247 25.75\",\"itemText3\":\"say \\\"\303\251\\\" 25.76\",\"itemText4\":\"ba"
     "ck\\\\slash \303\237 25.77\",\"text1\":\"Z\303\274ndung \360\237\232\227 25.78\",\"text2"
     "\":\"Pr\303\274fstand \342\202\254 25.79\",\"value1\":-1578371617,\"children\":[{\"itemT"
     "ext1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.80\",\"itemText2\":\"K"
     "\303\274hler\\u0009\360\237\224\247 25.81\",\"itemText3\":\"say \\\"\303\251\\\" 25.82\""
     ",\"itemText4\":\"back\\\\slash \303\237 25.83\",\"text1\":\"Z\303\274ndung \360\237\232"
     "\227 25.84\",\"text2\":\"Pr\303\274fstand \342\202\254 25.85\",\"value1\":2085323731,\"c"
     "hildren\":[],\"text3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.86\","
     "\"error\":null,\"text4\":\"K\303\274hler\\u0009\360\237\224\247 25.87\",\"value2\":-4447"
     "92199,\"data\":[0,255,251,234],\"value3\":895241613,\"flag\":253,\"value4\":951744313},{"
     "\"itemText1\":\"say \\\"\303\251\\\" 25.88\",\"itemText2\":\"back\\\\slash \303\237 25.8"
     "9\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 25.90\",\"itemText4\":\"Pr\303\274fs"
     "tand \342\202\254 25.91\",\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 25.92\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 25.93\",\"value1\":-145869"
     "6427,\"children\":[],\"text3\":\"say \\\"\303\251\\\" 25.94\",\"error\":null,\"text4\":"
     "\"back\\\\slash \303\237 25.95\",\"value2\":1965648541,\"data\":[0,255,236,238],\"value3"
     "\":1402193727,\"flag\":240,\"value4\":-325117007}],\"text3\":\"Z\303\274ndung \360\237"
     "\232\227 25.96\",\"error\":{\"code\":832069121,\"message\":\"Pr\303\274fstand \342\202"
     "\254 25.97\",\"details\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.98\""
     ",\"subCode\":-1339021235,\"mvciError\":null,\"negativeResponse\":null},\"text4\":\"K\303"
     "\274hler\\u0009\360\237\224\247 25.99\",\"value2\":1845973349,\"data\":[0,255,223,3],\"v"
     "alue3\":1909145841,\"flag\":242,\"value4\":-205441817},{\"itemText1\":\"say \\\"\303\251"
     "\\\" 25.100\",\"itemText2\":\"back\\\\slash \303\237 25.101\",\"itemText3\":\"Z\303\274n"
     "dung \360\237\232\227 25.102\",\"itemText4\":\"Pr\303\274fstand \342\202\254 25.103\",\""
     "text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.104\",\"text2\":\"K"
     "\303\274hler\\u0009\360\237\224\247 25.105\",\"value1\":712393931,\"children\":[],\"text"
     "3\":\"say \\\"\303\251\\\" 25.106\",\"error\":null,\"text4\":\"back\\\\slash \303\237 25"
     ".107\",\"value2\":-1219346045,\"data\":[0,255,5,244],\"value3\":268614307,\"flag\":7,\"v"
     "alue4\":1726298159}],\"text3\":\"Z\303\274ndung \360\237\232\227 25.108\",\"error\":{\"c"
     "ode\":-85766625,\"message\":\"Pr\303\274fstand \342\202\254 25.109\",\"details\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 25.110\",\"subCode\":592718739,\"mvciE"
     "rror\":{\"code\":-1099670853,\"codeText\":\"K\303\274hler\\u0009\360\237\224\247 25.111"
     "\",\"vendorCode\":1606622967,\"vendorCodeText\":\"say \\\"\303\251\\\" 25.112\",\"extraT"
     "ext\":\"back\\\\slash \303\237 25.113\",\"extraCode\":-2113575081},\"negativeResponse\":"
     "{\"code\":473043549,\"text\":\"Z\303\274ndung \360\237\232\227 25.114\",\"value1\":20288"
     "21031,\"value2\":388289499,\"bytes\":[0,255,246,9]}},\"text4\":\"Pr\303\274fstand \342"
     "\202\254 25.115\",\"value2\":-979995663,\"data\":[0,255,248,11],\"value3\":775566421,\"f"
     "lag\":250,\"value4\":1486947777},{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 25.116\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 25.117\","
     "\"itemText3\":\"say \\\"\303\251\\\" 25.118\",\"itemText4\":\"back\\\\slash \303\237 25."
     "119\",\"text1\":\"Z\303\274ndung \360\237\232\227 25.120\",\"text2\":\"Pr\303\274fstand "
     "\342\202\254 25.121\",\"value1\":-1993899891,\"children\":[],\"text3\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 25.122\",\"error\":null,\"text4\":\"K\303\274h"
     "ler\\u0009\360\237\224\247 25.123\",\"value2\":353368357,\"data\":[0,255,13,252],\"value"
     "3\":1282518535,\"flag\":15,\"value4\":-860320471}],\"text3\":\"say \\\"\303\251\\\" 25.1"
     "24\",\"text4\":\"back\\\\slash \303\237 25.125\",\"specialDataGroups\":[{\"items\":[{\"i"
     "temText1\":\"Z\303\274ndung \360\237\232\227 25.126\",\"itemText2\":\"Pr\303\274fstand "
     "\342\202\254 25.127\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 25.128\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 25.129\"},{\"itemText"
     "1\":\"say \\\"\303\251\\\" 25.130\",\"itemText2\":\"back\\\\slash \303\237 25.131\",\"it"
     "emText3\":\"Z\303\274ndung \360\237\232\227 25.132\",\"itemText4\":\"Pr\303\274fstand "
     "\342\202\254 25.133\"}]},{\"items\":[]}],\"value2\":1367272585},{\"code\":-1874224699,\""
     "text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.134\",\"text2\":\"K"
     "\303\274hler\\u0009\360\237\224\247 25.135\",\"value1\":233693167,\"parameters1\":[],\"p"
     "arameters2\":[],\"text3\":\"say \\\"\303\251\\\" 25.136\",\"text4\":\"back\\\\slash \303"
     "\237 25.137\",\"specialDataGroups\":[],\"value2\":-740645281}]},{\"status\":1247597395,"
     "\"target\":\"Z\303\274ndung \360\237\232\227 25.138\",\"error\":null,\"dtcs\":[]}]",
     "[{\"status\":2147483647,\"target\":\"K\303\274hler\\u0009\360\237\224\247 25.3\",\"error"
     "\":{\"code\":-1,\"message\":\"say \\\"\303\251\\\" 25.4\",\"details\":\"back\\\\slash "
     "\303\237 25.5\",\"subCode\":-65536,\"mvciError\":{\"code\":2028821031,\"codeText\":\"Z"
     "\303\274ndung \360\237\232\227 25.6\",\"vendorCode\":-388289499,\"vendorCodeText\":\"Pr"
     "\303\274fstand \342\202\254 25.7\",\"extraText\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 25.8\",\"extraCode\":895241613},\"negativeResponse\":{\"code\":-1402193"
     "727,\"text\":\"K\303\274hler\\u0009\360\237\224\247 25.9\",\"value1\":922337203685477580"
     "9,\"value2\":18446744073709551615,\"bytes\":[0,255,1,229],\"byteCount\":4}},\"dtcs\":[{"
     "\"code\":1909145841,\"text1\":\"say \\\"\303\251\\\" 25.10\",\"text2\":\"back\\\\slash "
     "\303\237 25.11\",\"value1\":-268614307,\"parameters1\":[{\"itemText1\":\"Z\303\274ndung "
     "\360\237\232\227 25.12\",\"itemText2\":\"Pr\303\274fstand \342\202\254 25.13\",\"itemTex"
     "t3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.14\",\"itemText4\":\"K"
     "\303\274hler\\u0009\360\237\224\247 25.15\",\"text1\":\"say \\\"\303\251\\\" 25.16\",\"t"
     "ext2\":\"back\\\\slash \303\237 25.17\",\"value1\":775566421,\"children\":[{\"itemText1"
     "\":\"Z\303\274ndung \360\237\232\227 25.18\",\"itemText2\":\"Pr\303\274fstand \342\202"
     "\254 25.19\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.20"
     "\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 25.21\",\"text1\":\"say \\\"\303"
     "\251\\\" 25.22\",\"text2\":\"back\\\\slash \303\237 25.23\",\"value1\":-1282518535,\"chi"
     "ldren\":[{\"itemText1\":\"Z\303\274ndung \360\237\232\227 25.24\",\"itemText2\":\"Pr\303"
     "\274fstand \342\202\254 25.25\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 25.26\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 25.27\",\""
     "text1\":\"say \\\"\303\251\\\" 25.28\",\"text2\":\"back\\\\slash \303\237 25.29\",\"valu"
     "e1\":1789470649,\"children\":null,\"childCount\":0,\"text3\":\"Z\303\274ndung \360\237"
     "\232\227 25.30\",\"error\":null,\"text4\":\"Pr\303\274fstand \342\202\254 25.31\",\"valu"
     "e2\":-148939117,\"data\":[0,255,231,214],\"dataLength\":4,\"value3\":4294967295,\"flag\""
     ":233,\"value4\":655891231},{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 25.32\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 25.33\",\"item"
     "Text3\":\"say \\\"\303\251\\\" 25.34\",\"itemText4\":\"back\\\\slash \303\237 25.35\",\""
     "text1\":\"Z\303\274ndung \360\237\232\227 25.36\",\"text2\":\"Pr\303\274fstand \342\202"
     "\254 25.37\",\"value1\":-1162843345,\"children\":null,\"childCount\":0,\"text3\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 25.38\",\"error\":null,\"text4\":\"K"
     "\303\274hler\\u0009\360\237\224\247 25.39\",\"value2\":1669795459,\"data\":[0,255,216,23"
     "5],\"dataLength\":4,\"value3\":2147483648,\"flag\":218,\"value4\":-29263925}],\"childCou"
     "nt\":2,\"text3\":\"say \\\"\303\251\\\" 25.40\",\"error\":{\"code\":536216039,\"message"
     "\":\"back\\\\slash \303\237 25.41\",\"details\":\"Z\303\274ndung \360\237\232\227 25.42"
     "\",\"subCode\":-1043168153,\"mvciError\":null,\"negativeResponse\":null},\"text4\":\"Pr"
     "\303\274fstand \342\202\254 25.43\",\"value2\":1550120267,\"data\":[0,255,237,220],\"dat"
     "aLength\":4,\"value3\":2147483647,\"flag\":239,\"value4\":-2057072381},{\"itemText1\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.44\",\"itemText2\":\"K\303\274h"
     "ler\\u0009\360\237\224\247 25.45\",\"itemText3\":\"say \\\"\303\251\\\" 25.46\",\"itemTe"
     "xt4\":\"back\\\\slash \303\237 25.47\",\"text1\":\"Z\303\274ndung \360\237\232\227 25.48"
     "\",\"text2\":\"Pr\303\274fstand \342\202\254 25.49\",\"value1\":416540849,\"children\":n"
     "ull,\"childCount\":0,\"text3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 2"
     "5.50\",\"error\":null,\"text4\":\"K\303\274hler\\u0009\360\237\224\247 25.51\",\"value2"
     "\":-923492963,\"data\":[0,255,222,241],\"dataLength\":4,\"value3\":1521868917,\"flag\":2"
     "24,\"value4\":1430445077}],\"childCount\":2,\"text3\":\"say \\\"\303\251\\\" 25.52\",\"e"
     "rror\":{\"code\":-1937397191,\"message\":\"back\\\\slash \303\237 25.53\",\"details\":\""
     "Z\303\274ndung \360\237\232\227 25.54\",\"subCode\":296865657,\"mvciError\":{\"code\":-8"
     "03817771,\"codeText\":\"Pr\303\274fstand \342\202\254 25.55\",\"vendorCode\":1310769885,"
     "\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.56\",\"ext"
     "raText\":\"K\303\274hler\\u0009\360\237\224\247 25.57\",\"extraCode\":-1817721999},\"neg"
     "ativeResponse\":{\"code\":177190467,\"text\":\"say \\\"\303\251\\\" 25.58\",\"value1\":4"
     "294967296,\"value2\":1521868917,\"bytes\":[0,255,243,226],\"byteCount\":4}},\"text4\":\""
     "back\\\\slash \303\237 25.59\",\"value2\":-684142581,\"data\":[0,255,245,228],\"dataLeng"
     "th\":4,\"value3\":2028821031,\"flag\":247,\"value4\":1191094695},{\"itemText1\":\"Z\303"
     "\274ndung \360\237\232\227 25.60\",\"itemText2\":\"Pr\303\274fstand \342\202\254 25.61\""
     ",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.62\",\"itemTex"
     "t4\":\"K\303\274hler\\u0009\360\237\224\247 25.63\",\"text1\":\"say \\\"\303\251\\\" 25."
     "64\",\"text2\":\"back\\\\slash \303\237 25.65\",\"value1\":-1698046809,\"children\":null"
     ",\"childCount\":0,\"text3\":\"Z\303\274ndung \360\237\232\227 25.66\",\"error\":null,\"t"
     "ext4\":\"Pr\303\274fstand \342\202\254 25.67\",\"value2\":57515275,\"data\":[0,255,230,2"
     "49],\"dataLength\":4,\"value3\":388289499,\"flag\":232,\"value4\":-564467389}],\"paramet"
     "erCount1\":2,\"parameters2\":[{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 25.68\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 25.69\",\"item"
     "Text3\":\"say \\\"\303\251\\\" 25.70\",\"itemText4\":\"back\\\\slash \303\237 25.71\",\""
     "text1\":\"Z\303\274ndung \360\237\232\227 25.72\",\"text2\":\"Pr\303\274fstand \342\202"
     "\254 25.73\",\"value1\":1071419503,\"children\":[{\"itemText1\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 25.74\",\"itemText2\":\"K\303\274hler\\u0009\360\237"
     "\224\247 25.75\",\"itemText3\":\"say \\\"\303\251\\\" 25.76\",\"itemText4\":\"back\\\\sl"
     "ash \303\237 25.77\",\"text1\":\"Z\303\274ndung \360\237\232\227 25.78\",\"text2\":\"Pr"
     "\303\274fstand \342\202\254 25.79\",\"value1\":-1578371617,\"children\":[{\"itemText1\":"
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.80\",\"itemText2\":\"K\303"
     "\274hler\\u0009\360\237\224\247 25.81\",\"itemText3\":\"say \\\"\303\251\\\" 25.82\",\"i"
     "temText4\":\"back\\\\slash \303\237 25.83\",\"text1\":\"Z\303\274ndung \360\237\232\227 "
     "25.84\",\"text2\":\"Pr\303\274fstand \342\202\254 25.85\",\"value1\":2085323731,\"childr"
     "en\":null,\"childCount\":0,\"text3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 25.86\",\"error\":null,\"text4\":\"K\303\274hler\\u0009\360\237\224\247 25.87\",\"v"
     "alue2\":-444792199,\"data\":[0,255,251,234],\"dataLength\":4,\"value3\":895241613,\"flag"
     "\":253,\"value4\":951744313},{\"itemText1\":\"say \\\"\303\251\\\" 25.88\",\"itemText2\""
     ":\"back\\\\slash \303\237 25.89\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 25.90"
     "\",\"itemText4\":\"Pr\303\274fstand \342\202\254 25.91\",\"text1\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 25.92\",\"text2\":\"K\303\274hler\\u0009\360\237"
     "\224\247 25.93\",\"value1\":-1458696427,\"children\":null,\"childCount\":0,\"text3\":\"s"
     "ay \\\"\303\251\\\" 25.94\",\"error\":null,\"text4\":\"back\\\\slash \303\237 25.95\",\""
     "value2\":1965648541,\"data\":[0,255,236,238],\"dataLength\":4,\"value3\":1402193727,\"fl"
     "ag\":240,\"value4\":-325117007}],\"childCount\":2,\"text3\":\"Z\303\274ndung \360\237"
     "\232\227 25.96\",\"error\":{\"code\":832069121,\"message\":\"Pr\303\274fstand \342\202"
     "\254 25.97\",\"details\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.98\""
     ",\"subCode\":-1339021235,\"mvciError\":null,\"negativeResponse\":null},\"text4\":\"K\303"
     "\274hler\\u0009\360\237\224\247 25.99\",\"value2\":1845973349,\"data\":[0,255,223,3],\"d"
     "ataLength\":4,\"value3\":1909145841,\"flag\":242,\"value4\":-205441817},{\"itemText1\":"
     "\"say \\\"\303\251\\\" 25.100\",\"itemText2\":\"back\\\\slash \303\237 25.101\",\"itemTe"
     "xt3\":\"Z\303\274ndung \360\237\232\227 25.102\",\"itemText4\":\"Pr\303\274fstand \342"
     "\202\254 25.103\",\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.1"
     "04\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 25.105\",\"value1\":712393931,\"ch"
     "ildren\":null,\"childCount\":0,\"text3\":\"say \\\"\303\251\\\" 25.106\",\"error\":null,"
     "\"text4\":\"back\\\\slash \303\237 25.107\",\"value2\":-1219346045,\"data\":[0,255,5,244"
     "],\"dataLength\":4,\"value3\":268614307,\"flag\":7,\"value4\":1726298159}],\"childCount"
     "\":2,\"text3\":\"Z\303\274ndung \360\237\232\227 25.108\",\"error\":{\"code\":-85766625,"
     "\"message\":\"Pr\303\274fstand \342\202\254 25.109\",\"details\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 25.110\",\"subCode\":592718739,\"mvciError\":{\"code\""
     ":-1099670853,\"codeText\":\"K\303\274hler\\u0009\360\237\224\247 25.111\",\"vendorCode\""
     ":1606622967,\"vendorCodeText\":\"say \\\"\303\251\\\" 25.112\",\"extraText\":\"back\\\\s"
     "lash \303\237 25.113\",\"extraCode\":-2113575081},\"negativeResponse\":{\"code\":4730435"
     "49,\"text\":\"Z\303\274ndung \360\237\232\227 25.114\",\"value1\":2028821031,\"value2\":"
     "388289499,\"bytes\":[0,255,246,9],\"byteCount\":4}},\"text4\":\"Pr\303\274fstand \342"
     "\202\254 25.115\",\"value2\":-979995663,\"data\":[0,255,248,11],\"dataLength\":4,\"value"
     "3\":775566421,\"flag\":250,\"value4\":1486947777},{\"itemText1\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 25.116\",\"itemText2\":\"K\303\274hler\\u0009\360\237"
     "\224\247 25.117\",\"itemText3\":\"say \\\"\303\251\\\" 25.118\",\"itemText4\":\"back\\\\"
     "slash \303\237 25.119\",\"text1\":\"Z\303\274ndung \360\237\232\227 25.120\",\"text2\":"
     "\"Pr\303\274fstand \342\202\254 25.121\",\"value1\":-1993899891,\"children\":null,\"chil"
     "dCount\":0,\"text3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.122\",\""
     "error\":null,\"text4\":\"K\303\274hler\\u0009\360\237\224\247 25.123\",\"value2\":353368"
     "357,\"data\":[0,255,13,252],\"dataLength\":4,\"value3\":1282518535,\"flag\":15,\"value4"
     "\":-860320471}],\"parameterCount2\":2,\"text3\":\"say \\\"\303\251\\\" 25.124\",\"text4"
     "\":\"back\\\\slash \303\237 25.125\",\"specialDataGroups\":[{\"items\":[{\"itemText1\":"
     "\"Z\303\274ndung \360\237\232\227 25.126\",\"itemText2\":\"Pr\303\274fstand \342\202\254"
     " 25.127\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25.128\""
     ",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 25.129\"},{\"itemText1\":\"say \\"
     "\"\303\251\\\" 25.130\",\"itemText2\":\"back\\\\slash \303\237 25.131\",\"itemText3\":\""
     "Z\303\274ndung \360\237\232\227 25.132\",\"itemText4\":\"Pr\303\274fstand \342\202\254 2"
     "5.133\"}],\"itemCount\":2},{\"items\":null,\"itemCount\":0}],\"specialDataGroupCount\":2"
     ",\"value2\":1367272585},{\"code\":-1874224699,\"text1\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 25.134\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 25.1"
     "35\",\"value1\":233693167,\"parameters1\":null,\"parameterCount1\":0,\"parameters2\":nul"
     "l,\"parameterCount2\":0,\"text3\":\"say \\\"\303\251\\\" 25.136\",\"text4\":\"back\\\\sl"
     "ash \303\237 25.137\",\"specialDataGroups\":null,\"specialDataGroupCount\":0,\"value2\":"
     "-740645281}],\"dtcCount\":2,\"value\":0},{\"status\":1247597395,\"target\":\"Z\303\274nd"
     "ung \360\237\232\227 25.138\",\"error\":null,\"dtcs\":null,\"dtcCount\":0,\"value\":0}]",
     "03000000130000005072c3bc667374616e6420e282ac2032352e310000000013000000e697a5e69cace8aa9e"
     "20f09d849e2032352e3200000080ff807f",
     "030000005072c3bc667374616e6420e282ac2032352e310000e697a5e69cace8aa9e20f09d849e2032352e32"
     "000100000080ff807f",
     "[[\"Pr\303\274fstand \342\202\254 25.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 25.2\"],{\"value\":-2147483648,\"flag1\":255,\"flag2\":128,\"flag3\":12"
     "7}]",
     "[[\"Pr\303\274fstand \342\202\254 25.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 25.2\"],{\"value\":-2147483648,\"flag1\":255,\"flag2\":128,\"flag3\":12"
     "7}]",
     "010200000001ffffff7f110000004bc3bc686c657209f09f94a72032352e3301ffffffff0d00000073617920"
     "22c3a9222032352e34120000006261636b5c736c61736820c39f2032352e350000ffff01275aed7812000000"
     "5ac3bc6e64756e6720f09f9a972032352e36252cdbe8130000005072c3bc667374616e6420e282ac2032352e"
     "3713000000e697a5e69cace8aa9e20f09d849e2032352e388d4d5c3501c1386cac110000004bc3bc686c6572"
     "09f09f94a72032352e390100000000000080ffffffffffffffff0400000000ff01e50200000001f140cb710e"
     "0000007361792022c3a9222032352e3130130000006261636b5c736c61736820c39f2032352e31315d45fdef"
     "0200000001130000005ac3bc6e64756e6720f09f9a972032352e3132140000005072c3bc667374616e6420e2"
     "82ac2032352e313314000000e697a5e69cace8aa9e20f09d849e2032352e3134120000004bc3bc686c657209"
     "f09f94a72032352e31350e0000007361792022c3a9222032352e3136130000006261636b5c736c61736820c3"
     "9f2032352e313755343a2e0200000001130000005ac3bc6e64756e6720f09f9a972032352e31381400000050"
     "72c3bc667374616e6420e282ac2032352e313914000000e697a5e69cace8aa9e20f09d849e2032352e323012"
     "0000004bc3bc686c657209f09f94a72032352e32310e0000007361792022c3a9222032352e32321300000062"
     "61636b5c736c61736820c39f2032352e3233f9518eb30200000001130000005ac3bc6e64756e6720f09f9a97"
     "2032352e3234140000005072c3bc667374616e6420e282ac2032352e323514000000e697a5e69cace8aa9e20"
     "f09d849e2032352e3236120000004bc3bc686c657209f09f94a72032352e32370e0000007361792022c3a922"
     "2032352e3238130000006261636b5c736c61736820c39f2032352e3239b927a96a00000000130000005ac3bc"
     "6e64756e6720f09f9a972032352e333000140000005072c3bc667374616e6420e282ac2032352e3331935e1f"
     "f70400000000ffe7d6ffffffffe91f1b18270114000000e697a5e69cace8aa9e20f09d849e2032352e333212"
     "0000004bc3bc686c657209f09f94a72032352e33330e0000007361792022c3a9222032352e33341300000062"
     "61636b5c736c61736820c39f2032352e3335130000005ac3bc6e64756e6720f09f9a972032352e3336140000"
     "005072c3bc667374616e6420e282ac2032352e33372f6bb0ba0000000014000000e697a5e69cace8aa9e20f0"
     "9d849e2032352e333800120000004bc3bc686c657209f09f94a72032352e3339830e87630400000000ffd8eb"
     "00000080dacb7741fe0e0000007361792022c3a9222032352e343001e701f61f130000006261636b5c736c61"
     "736820c39f2032352e3431130000005ac3bc6e64756e6720f09f9a972032352e34326784d2c1000014000000"
     "5072c3bc667374616e6420e282ac2032352e34334bf5645c0400000000ffeddcffffff7fef03916385011400"
     "0000e697a5e69cace8aa9e20f09d849e2032352e3434120000004bc3bc686c657209f09f94a72032352e3435"
     "0e0000007361792022c3a9222032352e3436130000006261636b5c736c61736820c39f2032352e3437130000"
     "005ac3bc6e64756e6720f09f9a972032352e3438140000005072c3bc667374616e6420e282ac2032352e3439"
     "b1e8d3180000000014000000e697a5e69cace8aa9e20f09d849e2032352e353000120000004bc3bc686c6572"
     "09f09f94a72032352e35319d9df4c80400000000ffdef175e0b55ae015dc42550e0000007361792022c3a922"
     "2032352e35320139aa858c130000006261636b5c736c61736820c39f2032352e3533130000005ac3bc6e6475"
     "6e6720f09f9a972032352e353479cfb11101d5b616d0140000005072c3bc667374616e6420e282ac2032352e"
     "3535ddc2204e14000000e697a5e69cace8aa9e20f09d849e2032352e3536120000004bc3bc686c657209f09f"
     "94a72032352e353771c3a7930143b68f0a0e0000007361792022c3a9222032352e3538000000000100000075"
     "e0b55a000000000400000000fff3e2130000006261636b5c736c61736820c39f2032352e35390bd038d70400"
     "000000fff5e4275aed78f7a7a9fe4601130000005ac3bc6e64756e6720f09f9a972032352e36301400000050"
     "72c3bc667374616e6420e282ac2032352e363114000000e697a5e69cace8aa9e20f09d849e2032352e363212"
     "0000004bc3bc686c657209f09f94a72032352e36330e0000007361792022c3a9222032352e36341300000062"
     "61636b5c736c61736820c39f2032352e3635a7dcc99a00000000130000005ac3bc6e64756e6720f09f9a9720"
     "32352e363600140000005072c3bc667374616e6420e282ac2032352e36370b9d6d030400000000ffe6f9dbd3"
     "2417e843e95ade020000000114000000e697a5e69cace8aa9e20f09d849e2032352e3638120000004bc3bc68"
     "6c657209f09f94a72032352e36390e0000007361792022c3a9222032352e3730130000006261636b5c736c61"
     "736820c39f2032352e3731130000005ac3bc6e64756e6720f09f9a972032352e3732140000005072c3bc6673"
     "74616e6420e282ac2032352e37336f90dc3f020000000114000000e697a5e69cace8aa9e20f09d849e203235"
     "2e3734120000004bc3bc686c657209f09f94a72032352e37350e0000007361792022c3a9222032352e373613"
     "0000006261636b5c736c61736820c39f2032352e3737130000005ac3bc6e64756e6720f09f9a972032352e37"
     "38140000005072c3bc667374616e6420e282ac2032352e3739dff5eba1020000000114000000e697a5e69cac"
     "e8aa9e20f09d849e2032352e3830120000004bc3bc686c657209f09f94a72032352e38310e00000073617920"
     "22c3a9222032352e3832130000006261636b5c736c61736820c39f2032352e3833130000005ac3bc6e64756e"
     "6720f09f9a972032352e3834140000005072c3bc667374616e6420e282ac2032352e3835d3834b7c00000000"
     "14000000e697a5e69cace8aa9e20f09d849e2032352e383600120000004bc3bc686c657209f09f94a7203235"
     "2e383779027de50400000000fffbea8d4d5c35fd3977ba38010e0000007361792022c3a9222032352e383813"
     "0000006261636b5c736c61736820c39f2032352e3839130000005ac3bc6e64756e6720f09f9a972032352e39"
     "30140000005072c3bc667374616e6420e282ac2032352e393114000000e697a5e69cace8aa9e20f09d849e20"
     "32352e3932120000004bc3bc686c657209f09f94a72032352e3933150f0ea9000000000e0000007361792022"
     "c3a9222032352e393400130000006261636b5c736c61736820c39f2032352e39359d6a29750400000000ffec"
     "ee3fc79353f0b11b9fec130000005ac3bc6e64756e6720f09f9a972032352e393601015e9831140000005072"
     "c3bc667374616e6420e282ac2032352e393714000000e697a5e69cace8aa9e20f09d849e2032352e39384d28"
     "30b00000120000004bc3bc686c657209f09f94a72032352e39396551076e0400000000ffdf03f140cb71f2e7"
     "34c1f3010f0000007361792022c3a9222032352e313030140000006261636b5c736c61736820c39f2032352e"
     "313031140000005ac3bc6e64756e6720f09f9a972032352e313032150000005072c3bc667374616e6420e282"
     "ac2032352e31303315000000e697a5e69cace8aa9e20f09d849e2032352e313034130000004bc3bc686c6572"
     "09f09f94a72032352e313035cb44762a000000000f0000007361792022c3a9222032352e3130360014000000"
     "6261636b5c736c61736820c39f2032352e313037834152b70400000000ff05f4a3ba0210072f38e566140000"
     "005ac3bc6e64756e6720f09f9a972032352e313038011f4ee3fa150000005072c3bc667374616e6420e282ac"
     "2032352e31303915000000e697a5e69cace8aa9e20f09d849e2032352e313130932b542301bb5a74be130000"
     "004bc3bc686c657209f09f94a72032352e313131f71ec35f0f0000007361792022c3a9222032352e31313214"
     "0000006261636b5c736c61736820c39f2032352e31313357670582015d12321c140000005ac3bc6e64756e67"
     "20f09f9a972032352e313134275aed7800000000dbd32417000000000400000000fff609150000005072c3bc"
     "667374616e6420e282ac2032352e313135f17396c50400000000fff80b55343a2efac105a1580115000000e6"
     "97a5e69cace8aa9e20f09d849e2032352e313136130000004bc3bc686c657209f09f94a72032352e3131370f"
     "0000007361792022c3a9222032352e313138140000006261636b5c736c61736820c39f2032352e3131391400"
     "00005ac3bc6e64756e6720f09f9a972032352e313230150000005072c3bc667374616e6420e282ac2032352e"
     "3132318d8027890000000015000000e697a5e69cace8aa9e20f09d849e2032352e31323200130000004bc3bc"
     "686c657209f09f94a72032352e31323325f90f150400000000ff0dfc07ae714c0f298db8cc0f000000736179"
     "2022c3a9222032352e313234140000006261636b5c736c61736820c39f2032352e3132350200000001020000"
     "0001140000005ac3bc6e64756e6720f09f9a972032352e313236150000005072c3bc667374616e6420e282ac"
     "2032352e31323715000000e697a5e69cace8aa9e20f09d849e2032352e313238130000004bc3bc686c657209"
     "f09f94a72032352e313239010f0000007361792022c3a9222032352e313330140000006261636b5c736c6173"
     "6820c39f2032352e313331140000005ac3bc6e64756e6720f09f9a972032352e313332150000005072c3bc66"
     "7374616e6420e282ac2032352e313333010000000089ec7e5101c599499015000000e697a5e69cace8aa9e20"
     "f09d849e2032352e313334130000004bc3bc686c657209f09f94a72032352e313335efdfed0d000000000000"
     "00000f0000007361792022c3a9222032352e313336140000006261636b5c736c61736820c39f2032352e3133"
     "37000000005fa6dad30153d35c4a140000005ac3bc6e64756e6720f09f9a972032352e3133380000000000",
     "0200000001ffffff7f110000004bc3bc686c657209f09f94a72032352e3301ffffffff0d0000007361792022"
     "c3a9222032352e34120000006261636b5c736c61736820c39f2032352e350000ffff01275aed78120000005a"
     "c3bc6e64756e6720f09f9a972032352e36252cdbe8130000005072c3bc667374616e6420e282ac2032352e37"
     "13000000e697a5e69cace8aa9e20f09d849e2032352e388d4d5c3501c1386cac110000004bc3bc686c657209"
     "f09f94a72032352e390100000000000080ffffffffffffffff0400000000ff01e50200000001f140cb710e00"
     "00007361792022c3a9222032352e3130130000006261636b5c736c61736820c39f2032352e31315d45fdef02"
     "00000001130000005ac3bc6e64756e6720f09f9a972032352e3132140000005072c3bc667374616e6420e282"
     "ac2032352e313314000000e697a5e69cace8aa9e20f09d849e2032352e3134120000004bc3bc686c657209f0"
     "9f94a72032352e31350e0000007361792022c3a9222032352e3136130000006261636b5c736c61736820c39f"
     "2032352e313755343a2e0200000001130000005ac3bc6e64756e6720f09f9a972032352e3138140000005072"
     "c3bc667374616e6420e282ac2032352e313914000000e697a5e69cace8aa9e20f09d849e2032352e32301200"
     "00004bc3bc686c657209f09f94a72032352e32310e0000007361792022c3a9222032352e3232130000006261"
     "636b5c736c61736820c39f2032352e3233f9518eb30200000001130000005ac3bc6e64756e6720f09f9a9720"
     "32352e3234140000005072c3bc667374616e6420e282ac2032352e323514000000e697a5e69cace8aa9e20f0"
     "9d849e2032352e3236120000004bc3bc686c657209f09f94a72032352e32370e0000007361792022c3a92220"
     "32352e3238130000006261636b5c736c61736820c39f2032352e3239b927a96a00000000130000005ac3bc6e"
     "64756e6720f09f9a972032352e333000140000005072c3bc667374616e6420e282ac2032352e3331935e1ff7"
     "0400000000ffe7d6ffffffffe91f1b18270114000000e697a5e69cace8aa9e20f09d849e2032352e33321200"
     "00004bc3bc686c657209f09f94a72032352e33330e0000007361792022c3a9222032352e3334130000006261"
     "636b5c736c61736820c39f2032352e3335130000005ac3bc6e64756e6720f09f9a972032352e333614000000"
     "5072c3bc667374616e6420e282ac2032352e33372f6bb0ba0000000014000000e697a5e69cace8aa9e20f09d"
     "849e2032352e333800120000004bc3bc686c657209f09f94a72032352e3339830e87630400000000ffd8eb00"
     "000080dacb7741fe0e0000007361792022c3a9222032352e343001e701f61f130000006261636b5c736c6173"
     "6820c39f2032352e3431130000005ac3bc6e64756e6720f09f9a972032352e34326784d2c100001400000050"
     "72c3bc667374616e6420e282ac2032352e34334bf5645c0400000000ffeddcffffff7fef0391638501140000"
     "00e697a5e69cace8aa9e20f09d849e2032352e3434120000004bc3bc686c657209f09f94a72032352e34350e"
     "0000007361792022c3a9222032352e3436130000006261636b5c736c61736820c39f2032352e343713000000"
     "5ac3bc6e64756e6720f09f9a972032352e3438140000005072c3bc667374616e6420e282ac2032352e3439b1"
     "e8d3180000000014000000e697a5e69cace8aa9e20f09d849e2032352e353000120000004bc3bc686c657209"
     "f09f94a72032352e35319d9df4c80400000000ffdef175e0b55ae015dc42550e0000007361792022c3a92220"
     "32352e35320139aa858c130000006261636b5c736c61736820c39f2032352e3533130000005ac3bc6e64756e"
     "6720f09f9a972032352e353479cfb11101d5b616d0140000005072c3bc667374616e6420e282ac2032352e35"
     "35ddc2204e14000000e697a5e69cace8aa9e20f09d849e2032352e3536120000004bc3bc686c657209f09f94"
     "a72032352e353771c3a7930143b68f0a0e0000007361792022c3a9222032352e3538000000000100000075e0"
     "b55a000000000400000000fff3e2130000006261636b5c736c61736820c39f2032352e35390bd038d7040000"
     "0000fff5e4275aed78f7a7a9fe4601130000005ac3bc6e64756e6720f09f9a972032352e3630140000005072"
     "c3bc667374616e6420e282ac2032352e363114000000e697a5e69cace8aa9e20f09d849e2032352e36321200"
     "00004bc3bc686c657209f09f94a72032352e36330e0000007361792022c3a9222032352e3634130000006261"
     "636b5c736c61736820c39f2032352e3635a7dcc99a00000000130000005ac3bc6e64756e6720f09f9a972032"
     "352e363600140000005072c3bc667374616e6420e282ac2032352e36370b9d6d030400000000ffe6f9dbd324"
     "17e843e95ade020000000114000000e697a5e69cace8aa9e20f09d849e2032352e3638120000004bc3bc686c"
     "657209f09f94a72032352e36390e0000007361792022c3a9222032352e3730130000006261636b5c736c6173"
     "6820c39f2032352e3731130000005ac3bc6e64756e6720f09f9a972032352e3732140000005072c3bc667374"
     "616e6420e282ac2032352e37336f90dc3f020000000114000000e697a5e69cace8aa9e20f09d849e2032352e"
     "3734120000004bc3bc686c657209f09f94a72032352e37350e0000007361792022c3a9222032352e37361300"
     "00006261636b5c736c61736820c39f2032352e3737130000005ac3bc6e64756e6720f09f9a972032352e3738"
     "140000005072c3bc667374616e6420e282ac2032352e3739dff5eba1020000000114000000e697a5e69cace8"
     "aa9e20f09d849e2032352e3830120000004bc3bc686c657209f09f94a72032352e38310e0000007361792022"
     "c3a9222032352e3832130000006261636b5c736c61736820c39f2032352e3833130000005ac3bc6e64756e67"
     "20f09f9a972032352e3834140000005072c3bc667374616e6420e282ac2032352e3835d3834b7c0000000014"
     "000000e697a5e69cace8aa9e20f09d849e2032352e383600120000004bc3bc686c657209f09f94a72032352e"
     "383779027de50400000000fffbea8d4d5c35fd3977ba38010e0000007361792022c3a9222032352e38381300"
     "00006261636b5c736c61736820c39f2032352e3839130000005ac3bc6e64756e6720f09f9a972032352e3930"
     "140000005072c3bc667374616e6420e282ac2032352e393114000000e697a5e69cace8aa9e20f09d849e2032"
     "352e3932120000004bc3bc686c657209f09f94a72032352e3933150f0ea9000000000e0000007361792022c3"
     "a9222032352e393400130000006261636b5c736c61736820c39f2032352e39359d6a29750400000000ffecee"
     "3fc79353f0b11b9fec130000005ac3bc6e64756e6720f09f9a972032352e393601015e9831140000005072c3"
     "bc667374616e6420e282ac2032352e393714000000e697a5e69cace8aa9e20f09d849e2032352e39384d2830"
     "b00000120000004bc3bc686c657209f09f94a72032352e39396551076e0400000000ffdf03f140cb71f2e734"
     "c1f3010f0000007361792022c3a9222032352e313030140000006261636b5c736c61736820c39f2032352e31"
     "3031140000005ac3bc6e64756e6720f09f9a972032352e313032150000005072c3bc667374616e6420e282ac"
     "2032352e31303315000000e697a5e69cace8aa9e20f09d849e2032352e313034130000004bc3bc686c657209"
     "f09f94a72032352e313035cb44762a000000000f0000007361792022c3a9222032352e313036001400000062"
     "61636b5c736c61736820c39f2032352e313037834152b70400000000ff05f4a3ba0210072f38e56614000000"
     "5ac3bc6e64756e6720f09f9a972032352e313038011f4ee3fa150000005072c3bc667374616e6420e282ac20"
     "32352e31303915000000e697a5e69cace8aa9e20f09d849e2032352e313130932b542301bb5a74be13000000"
     "4bc3bc686c657209f09f94a72032352e313131f71ec35f0f0000007361792022c3a9222032352e3131321400"
     "00006261636b5c736c61736820c39f2032352e31313357670582015d12321c140000005ac3bc6e64756e6720"
     "f09f9a972032352e313134275aed7800000000dbd32417000000000400000000fff609150000005072c3bc66"
     "7374616e6420e282ac2032352e313135f17396c50400000000fff80b55343a2efac105a1580115000000e697"
     "a5e69cace8aa9e20f09d849e2032352e313136130000004bc3bc686c657209f09f94a72032352e3131370f00"
     "00007361792022c3a9222032352e313138140000006261636b5c736c61736820c39f2032352e313139140000"
     "005ac3bc6e64756e6720f09f9a972032352e313230150000005072c3bc667374616e6420e282ac2032352e31"
     "32318d8027890000000015000000e697a5e69cace8aa9e20f09d849e2032352e31323200130000004bc3bc68"
     "6c657209f09f94a72032352e31323325f90f150400000000ff0dfc07ae714c0f298db8cc0f00000073617920"
     "22c3a9222032352e313234140000006261636b5c736c61736820c39f2032352e313235020000000102000000"
     "01140000005ac3bc6e64756e6720f09f9a972032352e313236150000005072c3bc667374616e6420e282ac20"
     "32352e31323715000000e697a5e69cace8aa9e20f09d849e2032352e313238130000004bc3bc686c657209f0"
     "9f94a72032352e313239010f0000007361792022c3a9222032352e313330140000006261636b5c736c617368"
     "20c39f2032352e313331140000005ac3bc6e64756e6720f09f9a972032352e313332150000005072c3bc6673"
     "74616e6420e282ac2032352e313333010000000089ec7e5101c599499015000000e697a5e69cace8aa9e20f0"
     "9d849e2032352e313334130000004bc3bc686c657209f09f94a72032352e313335efdfed0d00000000000000"
     "000f0000007361792022c3a9222032352e313336140000006261636b5c736c61736820c39f2032352e313337"
     "000000005fa6dad30153d35c4a140000005ac3bc6e64756e6720f09f9a972032352e3133380000000000",
     0},
    {"sparse", "[[],null]", "[[],null]",
     "[{\"status\":-2147483648,\"target\":\"\",\"error\":{\"code\":2147483647,\"message\":\"\""
     ",\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null},\"dtcs\":"
     "[{\"code\":-65536,\"text1\":\"\",\"text2\":\"\",\"value1\":2028821031,\"parameters1\":[]"
     ",\"parameters2\":[],\"text3\":\"\",\"text4\":\"\",\"specialDataGroups\":[],\"value2\":-3"
     "88289499}]},null]",
     "[{\"status\":-2147483648,\"target\":\"\",\"error\":{\"code\":2147483647,\"message\":\"\""
     ",\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null},\"dtcs\":"
     "[{\"code\":-65536,\"text1\":\"\",\"text2\":\"\",\"value1\":2028821031,\"parameters1\":nu"
     "ll,\"parameterCount1\":0,\"parameters2\":null,\"parameterCount2\":0,\"text3\":\"\",\"tex"
     "t4\":\"\",\"specialDataGroups\":null,\"specialDataGroupCount\":0,\"value2\":-388289499}]"
     ",\"dtcCount\":1,\"value\":0},null]",
     "0000000000000000000000", "0000000000",
     "[[],{\"value\":0,\"flag1\":0,\"flag2\":0,\"flag3\":0}]", "[[],null]",
     "010200000001000000800000000001ffffff7f0000000000000000ffffffff000001000000010000ffff0000"
     "000000000000275aed780000000000000000000000000000000000000000252cdbe800",
     "0200000001000000800000000001ffffff7f0000000000000000ffffffff000001000000010000ffff000000"
     "0000000000275aed780000000000000000000000000000000000000000252cdbe800",
     0},
    {"empty", "[[],null]", "[[],null]", "[]", "null", "0000000000000000000000", "0000000000",
     "[[],{\"value\":0,\"flag1\":0,\"flag2\":0,\"flag3\":0}]", "[[],null]", "0100000000",
     "00000000", 0},
};

struct ReadSupportedDtcsExport {
    static constexpr const char* operation = "readSupportedDtcs";
    using Result = kc::ListResult<ReadDtcResult, release_ReadDtcResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::Texts a0(in[0]);
        kel_readSupportedDtcs(api, a0.data(), a0.count(), kc::record<DtcReadConfig>(in[1]), error,
                              &out.data, &out.count);
    }
};

TEST_F(Diagnostics, readSupportedDtcs_Exchange) {
    kc::exchange<ReadSupportedDtcsExport>(api, kReadSupportedDtcsCases);
}
TEST_F(Diagnostics, readSupportedDtcs_Failure) {
    kc::failure<ReadSupportedDtcsExport>(api, kReadSupportedDtcsCases);
}
TEST_F(DiagnosticsAdmission, readSupportedDtcs) {
    kc::admission<ReadSupportedDtcsExport>(callers(), kReadSupportedDtcsCases, kc::Needs::Operator);
}

struct ReadSupportedDtcsAsyncExport {
    static constexpr const char* operation = "readSupportedDtcsAsync";
    using Reports = kc::Reports<ReadDtcResult, release_ReadDtcResult_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        kc::Texts a0(in[0]);
        return kel_readSupportedDtcsAsync(api, a0.data(), a0.count(),
                                          kc::record<DtcReadConfig>(in[1]), error,
                                          &Reports::onReport, &reports);
    }
};

TEST_F(Diagnostics, readSupportedDtcsAsync_Exchange) {
    kc::asyncExchange<ReadSupportedDtcsAsyncExport>(api, kReadSupportedDtcsCases);
}
TEST_F(Diagnostics, readSupportedDtcsAsync_Failure) {
    kc::asyncFailure<ReadSupportedDtcsAsyncExport>(api, kReadSupportedDtcsCases);
}
TEST_F(DiagnosticsAdmission, readSupportedDtcsAsync) {
    kc::asyncAdmission<ReadSupportedDtcsAsyncExport>(callers(), kReadSupportedDtcsCases,
                                                     kc::Needs::Operator);
}

const char* const kReadSupportedDtcsNoUtf8[] = {
    "[[\"\\udc00Pr\303\274fstand \342\202\254 25.1\\ud800\",\"\",\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 25.2\"],{\"value\":-2147483648,\"flag1\":255,\"flag2\":128"
    ",\"flag3\":127}]",
};
TEST_F(Diagnostics, readSupportedDtcs_TextWithNoUtf8Form) {
    kc::noUtf8<ReadSupportedDtcsExport>(api, kReadSupportedDtcsNoUtf8);
}
TEST_F(Diagnostics, readSupportedDtcsAsync_TextWithNoUtf8Form) {
    kc::asyncNoUtf8<ReadSupportedDtcsAsyncExport>(api, kReadSupportedDtcsNoUtf8);
}

const kc::Number kNumber25{25, "readSupportedDtcs", kReadSupportedDtcsCases};

TEST_F(DiagnosticsByNumber, n25_readSupportedDtcs_KelCall) { kc::kelCall(api, kNumber25); }
TEST_F(DiagnosticsByNumber, n25_readSupportedDtcs_PyCall) { kc::pyCall(api, kNumber25); }
TEST_F(DiagnosticsByNumber, n25_readSupportedDtcs_Failure) { kc::numberFailure(api, kNumber25); }
TEST_F(DiagnosticsByNumber, n25_readSupportedDtcs_ShortInput) { kc::shortInput(api, kNumber25); }

// ---- clearAllDtcs (position 27, number 27) ----

const kc::Case kClearAllDtcsCases[] = {
    {"full",
     "[[\"Pr\303\274fstand \342\202\254 27.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 27.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 27.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 27.2\"]]",
     "[{\"status\":-2147483648,\"target\":\"K\303\274hler\\u0009\360\237\224\247 27.3\",\"erro"
     "r\":{\"code\":2147483647,\"message\":\"say \\\"\303\251\\\" 27.4\",\"details\":\"back\\"
     "\\slash \303\237 27.5\",\"subCode\":-1,\"mvciError\":{\"code\":-65536,\"codeText\":\"Z"
     "\303\274ndung \360\237\232\227 27.6\",\"vendorCode\":2028902037,\"vendorCodeText\":\"Pr"
     "\303\274fstand \342\202\254 27.7\",\"extraText\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 27.8\",\"extraCode\":-388370505},\"negativeResponse\":{\"code\":8953226"
     "19,\"text\":\"K\303\274hler\\u0009\360\237\224\247 27.9\",\"value1\":9223372036854775809"
     ",\"value2\":18446744073709551615,\"bytes\":[0,255,255,128]}}},{\"status\":-1402274733,\""
     "target\":\"say \\\"\303\251\\\" 27.10\",\"error\":null}]",
     "[{\"status\":-2147483648,\"target\":\"K\303\274hler\\u0009\360\237\224\247 27.3\",\"erro"
     "r\":{\"code\":2147483647,\"message\":\"say \\\"\303\251\\\" 27.4\",\"details\":\"back\\"
     "\\slash \303\237 27.5\",\"subCode\":-1,\"mvciError\":{\"code\":-65536,\"codeText\":\"Z"
     "\303\274ndung \360\237\232\227 27.6\",\"vendorCode\":2028902037,\"vendorCodeText\":\"Pr"
     "\303\274fstand \342\202\254 27.7\",\"extraText\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 27.8\",\"extraCode\":-388370505},\"negativeResponse\":{\"code\":8953226"
     "19,\"text\":\"K\303\274hler\\u0009\360\237\224\247 27.9\",\"value1\":9223372036854775809"
     ",\"value2\":18446744073709551615,\"bytes\":[0,255,255,128],\"byteCount\":4}}},{\"status"
     "\":-1402274733,\"target\":\"say \\\"\303\251\\\" 27.10\",\"error\":null}]",
     "03000000130000005072c3bc667374616e6420e282ac2032372e310000000013000000e697a5e69cace8aa9e"
     "20f09d849e2032372e32",
     "030000005072c3bc667374616e6420e282ac2032372e310000e697a5e69cace8aa9e20f09d849e2032372e32"
     "00",
     "[[\"Pr\303\274fstand \342\202\254 27.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 27.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 27.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 27.2\"]]",
     "01020000000100000080110000004bc3bc686c657209f09f94a72032372e3301ffffff7f0d00000073617920"
     "22c3a9222032372e34120000006261636b5c736c61736820c39f2032372e35ffffffff010000ffff12000000"
     "5ac3bc6e64756e6720f09f9a972032372e369596ee78130000005072c3bc667374616e6420e282ac2032372e"
     "3713000000e697a5e69cace8aa9e20f09d849e2032372e38b7efd9e801fb895d35110000004bc3bc686c6572"
     "09f09f94a72032372e390100000000000080ffffffffffffffff0400000000ffff800153fc6aac0e00000073"
     "61792022c3a9222032372e313000",
     "020000000100000080110000004bc3bc686c657209f09f94a72032372e3301ffffff7f0d0000007361792022"
     "c3a9222032372e34120000006261636b5c736c61736820c39f2032372e35ffffffff010000ffff120000005a"
     "c3bc6e64756e6720f09f9a972032372e369596ee78130000005072c3bc667374616e6420e282ac2032372e37"
     "13000000e697a5e69cace8aa9e20f09d849e2032372e38b7efd9e801fb895d35110000004bc3bc686c657209"
     "f09f94a72032372e390100000000000080ffffffffffffffff0400000000ffff800153fc6aac0e0000007361"
     "792022c3a9222032372e313000",
     0},
    {"sparse", "[[]]", "[[]]",
     "[{\"status\":-2147483648,\"target\":\"\",\"error\":{\"code\":2147483647,\"message\":\"\""
     ",\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "[{\"status\":-2147483648,\"target\":\"\",\"error\":{\"code\":2147483647,\"message\":\"\""
     ",\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "00000000", "00000000", "[[]]", "[[]]",
     "010200000001000000800000000001ffffff7f0000000000000000ffffffff000000",
     "0200000001000000800000000001ffffff7f0000000000000000ffffffff000000", 0},
    {"empty", "[[]]", "[[]]", "[]", "null", "00000000", "00000000", "[[]]", "[[]]", "0100000000",
     "00000000", 0},
};

struct ClearAllDtcsExport {
    static constexpr const char* operation = "clearAllDtcs";
    using Result = kc::ListResult<ClearDtcResult, release_ClearDtcResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::Texts a0(in[0]);
        kel_clearAllDtcs(api, a0.data(), a0.count(), error, &out.data, &out.count);
    }
};

TEST_F(Diagnostics, clearAllDtcs_Exchange) {
    kc::exchange<ClearAllDtcsExport>(api, kClearAllDtcsCases);
}
TEST_F(Diagnostics, clearAllDtcs_Failure) {
    kc::failure<ClearAllDtcsExport>(api, kClearAllDtcsCases);
}
TEST_F(DiagnosticsAdmission, clearAllDtcs) {
    kc::admission<ClearAllDtcsExport>(callers(), kClearAllDtcsCases, kc::Needs::Operator);
}

struct ClearAllDtcsAsyncExport {
    static constexpr const char* operation = "clearAllDtcsAsync";
    using Reports = kc::Reports<ClearDtcResult, release_ClearDtcResult_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        kc::Texts a0(in[0]);
        return kel_clearAllDtcsAsync(api, a0.data(), a0.count(), error, &Reports::onReport,
                                     &reports);
    }
};

TEST_F(Diagnostics, clearAllDtcsAsync_Exchange) {
    kc::asyncExchange<ClearAllDtcsAsyncExport>(api, kClearAllDtcsCases);
}
TEST_F(Diagnostics, clearAllDtcsAsync_Failure) {
    kc::asyncFailure<ClearAllDtcsAsyncExport>(api, kClearAllDtcsCases);
}
TEST_F(DiagnosticsAdmission, clearAllDtcsAsync) {
    kc::asyncAdmission<ClearAllDtcsAsyncExport>(callers(), kClearAllDtcsCases, kc::Needs::Operator);
}

const char* const kClearAllDtcsNoUtf8[] = {
    "[[\"\\udc00Pr\303\274fstand \342\202\254 27.1\\ud800\",\"\",\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 27.2\"]]",
};
TEST_F(Diagnostics, clearAllDtcs_TextWithNoUtf8Form) {
    kc::noUtf8<ClearAllDtcsExport>(api, kClearAllDtcsNoUtf8);
}
TEST_F(Diagnostics, clearAllDtcsAsync_TextWithNoUtf8Form) {
    kc::asyncNoUtf8<ClearAllDtcsAsyncExport>(api, kClearAllDtcsNoUtf8);
}

const kc::Number kNumber27{27, "clearAllDtcs", kClearAllDtcsCases};

TEST_F(DiagnosticsByNumber, n27_clearAllDtcs_KelCall) { kc::kelCall(api, kNumber27); }
TEST_F(DiagnosticsByNumber, n27_clearAllDtcs_PyCall) { kc::pyCall(api, kNumber27); }
TEST_F(DiagnosticsByNumber, n27_clearAllDtcs_Failure) { kc::numberFailure(api, kNumber27); }
TEST_F(DiagnosticsByNumber, n27_clearAllDtcs_ShortInput) { kc::shortInput(api, kNumber27); }

// ---- performQuickTest (position 35, number 34) ----

const kc::Case kPerformQuickTestCases[] = {
    {"full",
     "[[\"Pr\303\274fstand \342\202\254 35.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 35.2\"],{\"value\":-2147483648,\"flag1\":255,\"flag2\":128,\"flag3\":12"
     "7}]",
     "[[\"Pr\303\274fstand \342\202\254 35.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 35.2\"],{\"value\":-2147483648,\"flag1\":255,\"flag2\":128,\"flag3\":12"
     "7}]",
     "[{\"target\":\"K\303\274hler\\u0009\360\237\224\247 35.3\",\"status\":2147483647,\"varia"
     "nt\":\"say \\\"\303\251\\\" 35.4\",\"identified\":true,\"dtcs\":[{\"code\":-1,\"text1\":"
     "\"back\\\\slash \303\237 35.5\",\"text2\":\"Z\303\274ndung \360\237\232\227 35.6\",\"val"
     "ue1\":-65536,\"parameters1\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 35.7\",\"it"
     "emText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 35.8\",\"itemText3\":"
     "\"K\303\274hler\\u0009\360\237\224\247 35.9\",\"itemText4\":\"say \\\"\303\251\\\" 35.10"
     "\",\"text1\":\"back\\\\slash \303\237 35.11\",\"text2\":\"Z\303\274ndung \360\237\232"
     "\227 35.12\",\"value1\":2029226061,\"children\":[{\"itemText1\":\"Pr\303\274fstand \342"
     "\202\254 35.13\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 3"
     "5.14\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 35.15\",\"itemText4\":\"say "
     "\\\"\303\251\\\" 35.16\",\"text1\":\"back\\\\slash \303\237 35.17\",\"text2\":\"Z\303"
     "\274ndung \360\237\232\227 35.18\",\"value1\":-388694529,\"children\":[{\"itemText1\":\""
     "Pr\303\274fstand \342\202\254 35.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 35.20\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 35.21"
     "\",\"itemText4\":\"say \\\"\303\251\\\" 35.22\",\"text1\":\"back\\\\slash \303\237 35.23"
     "\",\"text2\":\"Z\303\274ndung \360\237\232\227 35.24\",\"value1\":895646643,\"children\""
     ":[],\"text3\":\"Pr\303\274fstand \342\202\254 35.25\",\"error\":null,\"text4\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 35.26\",\"value2\":-1402598757,\"data"
     "\":[0,255,1,65],\"value3\":4294967295,\"flag\":48,\"value4\":1909550871},{\"itemText1\":"
     "\"K\303\274hler\\u0009\360\237\224\247 35.27\",\"itemText2\":\"say \\\"\303\251\\\" 35.2"
     "8\",\"itemText3\":\"back\\\\slash \303\237 35.29\",\"itemText4\":\"Z\303\274ndung \360"
     "\237\232\227 35.30\",\"text1\":\"Pr\303\274fstand \342\202\254 35.31\",\"text2\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 35.32\",\"value1\":-269019337,\"childr"
     "en\":[],\"text3\":\"K\303\274hler\\u0009\360\237\224\247 35.33\",\"error\":null,\"text4"
     "\":\"say \\\"\303\251\\\" 35.34\",\"value2\":775971451,\"data\":[0,255,67,50],\"value3\""
     ":2147483648,\"flag\":69,\"value4\":-1282923565}],\"text3\":\"back\\\\slash \303\237 35.3"
     "5\",\"error\":{\"code\":1789875679,\"message\":\"Z\303\274ndung \360\237\232\227 35.36\""
     ",\"details\":\"Pr\303\274fstand \342\202\254 35.37\",\"subCode\":-149344147,\"mvciError"
     "\":null,\"negativeResponse\":null},\"text4\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 35.38\",\"value2\":656296261,\"data\":[0,255,52,71],\"value3\":2147483647,"
     "\"flag\":54,\"value4\":-1163248375},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224"
     "\247 35.39\",\"itemText2\":\"say \\\"\303\251\\\" 35.40\",\"itemText3\":\"back\\\\slash "
     "\303\237 35.41\",\"itemText4\":\"Z\303\274ndung \360\237\232\227 35.42\",\"text1\":\"Pr"
     "\303\274fstand \342\202\254 35.43\",\"text2\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 35.44\",\"value1\":1670200489,\"children\":[],\"text3\":\"K\303\274hler"
     "\\u0009\360\237\224\247 35.45\",\"error\":null,\"text4\":\"say \\\"\303\251\\\" 35.46\","
     "\"value2\":-29668955,\"data\":[0,255,73,56],\"value3\":1522273947,\"flag\":75,\"value4\""
     ":536621069}],\"text3\":\"back\\\\slash \303\237 35.47\",\"error\":{\"code\":-1043573183,"
     "\"message\":\"Z\303\274ndung \360\237\232\227 35.48\",\"details\":\"Pr\303\274fstand "
     "\342\202\254 35.49\",\"subCode\":1550525297,\"mvciError\":{\"code\":-2057477411,\"codeTe"
     "xt\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 35.50\",\"vendorCode\":4169"
     "45879,\"vendorCodeText\":\"K\303\274hler\\u0009\360\237\224\247 35.51\",\"extraText\":\""
     "say \\\"\303\251\\\" 35.52\",\"extraCode\":-923897993},\"negativeResponse\":{\"code\":14"
     "30850107,\"text\":\"back\\\\slash \303\237 35.53\",\"value1\":9223372036854775809,\"valu"
     "e2\":18446744073709551615,\"bytes\":[0,255,58,77]}},\"text4\":\"Z\303\274ndung \360\237"
     "\232\227 35.54\",\"value2\":-1937802221,\"data\":[0,255,60,79],\"value3\":2029226061,\"f"
     "lag\":62,\"value4\":297270687},{\"itemText1\":\"Pr\303\274fstand \342\202\254 35.55\",\""
     "itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 35.56\",\"itemText3"
     "\":\"K\303\274hler\\u0009\360\237\224\247 35.57\",\"itemText4\":\"say \\\"\303\251\\\" 3"
     "5.58\",\"text1\":\"back\\\\slash \303\237 35.59\",\"text2\":\"Z\303\274ndung \360\237"
     "\232\227 35.60\",\"value1\":-804222801,\"children\":[],\"text3\":\"Pr\303\274fstand \342"
     "\202\254 35.61\",\"error\":null,\"text4\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 35.62\",\"value2\":1311174915,\"data\":[0,255,81,64],\"value3\":388694529,"
     "\"flag\":83,\"value4\":-1818127029}],\"parameters2\":[{\"itemText1\":\"K\303\274hler\\u0"
     "009\360\237\224\247 35.63\",\"itemText2\":\"say \\\"\303\251\\\" 35.64\",\"itemText3\":"
     "\"back\\\\slash \303\237 35.65\",\"itemText4\":\"Z\303\274ndung \360\237\232\227 35.66\""
     ",\"text1\":\"Pr\303\274fstand \342\202\254 35.67\",\"text2\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 35.68\",\"value1\":177595497,\"children\":[{\"itemText1\":"
     "\"K\303\274hler\\u0009\360\237\224\247 35.69\",\"itemText2\":\"say \\\"\303\251\\\" 35.7"
     "0\",\"itemText3\":\"back\\\\slash \303\237 35.71\",\"itemText4\":\"Z\303\274ndung \360"
     "\237\232\227 35.72\",\"text1\":\"Pr\303\274fstand \342\202\254 35.73\",\"text2\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 35.74\",\"value1\":-684547611,\"childr"
     "en\":[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 35.75\",\"itemText2\":\"say "
     "\\\"\303\251\\\" 35.76\",\"itemText3\":\"back\\\\slash \303\237 35.77\",\"itemText4\":\""
     "Z\303\274ndung \360\237\232\227 35.78\",\"text1\":\"Pr\303\274fstand \342\202\254 35.79"
     "\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 35.80\",\"value1\":"
     "1191499725,\"children\":[],\"text3\":\"K\303\274hler\\u0009\360\237\224\247 35.81\",\"er"
     "ror\":null,\"text4\":\"say \\\"\303\251\\\" 35.82\",\"value2\":-1698451839,\"data\":[0,2"
     "55,66,85],\"value3\":895646643,\"flag\":68,\"value4\":57920305},{\"itemText1\":\"back\\"
     "\\slash \303\237 35.83\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 35.84\",\"itemT"
     "ext3\":\"Pr\303\274fstand \342\202\254 35.85\",\"itemText4\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 35.86\",\"text1\":\"K\303\274hler\\u0009\360\237\224\247 3"
     "5.87\",\"text2\":\"say \\\"\303\251\\\" 35.88\",\"value1\":-564872419,\"children\":[],\""
     "text3\":\"back\\\\slash \303\237 35.89\",\"error\":null,\"text4\":\"Z\303\274ndung \360"
     "\237\232\227 35.90\",\"value2\":1071824533,\"data\":[0,255,87,70],\"value3\":1402598757,"
     "\"flag\":89,\"value4\":-1578776647}],\"text3\":\"Pr\303\274fstand \342\202\254 35.91\","
     "\"error\":{\"code\":2085728761,\"message\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 35.92\",\"details\":\"K\303\274hler\\u0009\360\237\224\247 35.93\",\"subCod"
     "e\":-445197229,\"mvciError\":null,\"negativeResponse\":null},\"text4\":\"say \\\"\303"
     "\251\\\" 35.94\",\"value2\":952149343,\"data\":[0,255,72,91],\"value3\":1909550871,\"fla"
     "g\":74,\"value4\":-1459101457},{\"itemText1\":\"back\\\\slash \303\237 35.95\",\"itemTex"
     "t2\":\"Z\303\274ndung \360\237\232\227 35.96\",\"itemText3\":\"Pr\303\274fstand \342\202"
     "\254 35.97\",\"itemText4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 35.98"
     "\",\"text1\":\"K\303\274hler\\u0009\360\237\224\247 35.99\",\"text2\":\"say \\\"\303\251"
     "\\\" 35.100\",\"value1\":1966053571,\"children\":[],\"text3\":\"back\\\\slash \303\237 3"
     "5.101\",\"error\":null,\"text4\":\"Z\303\274ndung \360\237\232\227 35.102\",\"value2\":-"
     "325522037,\"data\":[0,255,93,76],\"value3\":269019337,\"flag\":95,\"value4\":832474151}]"
     ",\"text3\":\"Pr\303\274fstand \342\202\254 35.103\",\"error\":{\"code\":-1339426265,\"me"
     "ssage\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 35.104\",\"details\":\"K"
     "\303\274hler\\u0009\360\237\224\247 35.105\",\"subCode\":1846378379,\"mvciError\":{\"cod"
     "e\":-205846847,\"codeText\":\"say \\\"\303\251\\\" 35.106\",\"vendorCode\":712798961,\"v"
     "endorCodeText\":\"back\\\\slash \303\237 35.107\",\"extraText\":\"Z\303\274ndung \360"
     "\237\232\227 35.108\",\"extraCode\":-1219751075},\"negativeResponse\":{\"code\":17267031"
     "89,\"text\":\"Pr\303\274fstand \342\202\254 35.109\",\"value1\":4294967296,\"value2\":15"
     "22273947,\"bytes\":[0,255,78,97]}},\"text4\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 35.110\",\"value2\":-86171655,\"data\":[0,255,80,99],\"value3\":775971451,"
     "\"flag\":82,\"value4\":593123769},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 "
     "35.111\",\"itemText2\":\"say \\\"\303\251\\\" 35.112\",\"itemText3\":\"back\\\\slash "
     "\303\237 35.113\",\"itemText4\":\"Z\303\274ndung \360\237\232\227 35.114\",\"text1\":\"P"
     "r\303\274fstand \342\202\254 35.115\",\"text2\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 35.116\",\"value1\":-1100075883,\"children\":[],\"text3\":\"K\303\274hl"
     "er\\u0009\360\237\224\247 35.117\",\"error\":null,\"text4\":\"say \\\"\303\251\\\" 35.11"
     "8\",\"value2\":1607027997,\"data\":[0,255,101,84],\"value3\":1282923565,\"flag\":103,\"v"
     "alue4\":-2113980111}],\"text3\":\"back\\\\slash \303\237 35.119\",\"text4\":\"Z\303\274n"
     "dung \360\237\232\227 35.120\",\"specialDataGroups\":[{\"items\":[{\"itemText1\":\"Pr"
     "\303\274fstand \342\202\254 35.121\",\"itemText2\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 35.122\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 35.1"
     "23\",\"itemText4\":\"say \\\"\303\251\\\" 35.124\"},{\"itemText1\":\"back\\\\slash \303"
     "\237 35.125\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 35.126\",\"itemText3\":\"P"
     "r\303\274fstand \342\202\254 35.127\",\"itemText4\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 35.128\"}]},{\"items\":[]}],\"value2\":473448579},{\"code\":-98040"
     "0693,\"text1\":\"K\303\274hler\\u0009\360\237\224\247 35.129\",\"text2\":\"say \\\"\303"
     "\251\\\" 35.130\",\"value1\":1487352807,\"parameters1\":[],\"parameters2\":[],\"text3\":"
     "\"back\\\\slash \303\237 35.131\",\"text4\":\"Z\303\274ndung \360\237\232\227 35.132\","
     "\"specialDataGroups\":[],\"value2\":-1994304921}],\"error\":{\"code\":353773387,\"messag"
     "e\":\"Pr\303\274fstand \342\202\254 35.133\",\"details\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 35.134\",\"subCode\":-860725501,\"mvciError\":{\"code\":136767"
     "7615,\"codeText\":\"K\303\274hler\\u0009\360\237\224\247 35.135\",\"vendorCode\":-187462"
     "9729,\"vendorCodeText\":\"say \\\"\303\251\\\" 35.136\",\"extraText\":\"back\\\\slash "
     "\303\237 35.137\",\"extraCode\":234098197},\"negativeResponse\":{\"code\":-741050311,\"t"
     "ext\":\"Z\303\274ndung \360\237\232\227 35.138\",\"value1\":2029226061,\"value2\":388694"
     "529,\"bytes\":[0,255,86,105]}}},{\"target\":\"Pr\303\274fstand \342\202\254 35.139\",\"s"
     "tatus\":1248002425,\"variant\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 3"
     "5.140\",\"identified\":false,\"dtcs\":[],\"error\":null}]",
     "[{\"target\":\"K\303\274hler\\u0009\360\237\224\247 35.3\",\"status\":2147483647,\"varia"
     "nt\":\"say \\\"\303\251\\\" 35.4\",\"identified\":1,\"dtcs\":[{\"code\":-1,\"text1\":\"b"
     "ack\\\\slash \303\237 35.5\",\"text2\":\"Z\303\274ndung \360\237\232\227 35.6\",\"value1"
     "\":-65536,\"parameters1\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 35.7\",\"itemT"
     "ext2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 35.8\",\"itemText3\":\"K"
     "\303\274hler\\u0009\360\237\224\247 35.9\",\"itemText4\":\"say \\\"\303\251\\\" 35.10\","
     "\"text1\":\"back\\\\slash \303\237 35.11\",\"text2\":\"Z\303\274ndung \360\237\232\227 3"
     "5.12\",\"value1\":2029226061,\"children\":[{\"itemText1\":\"Pr\303\274fstand \342\202"
     "\254 35.13\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 35.14"
     "\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 35.15\",\"itemText4\":\"say \\\""
     "\303\251\\\" 35.16\",\"text1\":\"back\\\\slash \303\237 35.17\",\"text2\":\"Z\303\274ndu"
     "ng \360\237\232\227 35.18\",\"value1\":-388694529,\"children\":[{\"itemText1\":\"Pr\303"
     "\274fstand \342\202\254 35.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 35.20\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 35.21\",\""
     "itemText4\":\"say \\\"\303\251\\\" 35.22\",\"text1\":\"back\\\\slash \303\237 35.23\",\""
     "text2\":\"Z\303\274ndung \360\237\232\227 35.24\",\"value1\":895646643,\"children\":null"
     ",\"childCount\":0,\"text3\":\"Pr\303\274fstand \342\202\254 35.25\",\"error\":null,\"tex"
     "t4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 35.26\",\"value2\":-1402598"
     "757,\"data\":[0,255,1,65],\"dataLength\":4,\"value3\":4294967295,\"flag\":48,\"value4\":"
     "1909550871},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 35.27\",\"itemText2\":"
     "\"say \\\"\303\251\\\" 35.28\",\"itemText3\":\"back\\\\slash \303\237 35.29\",\"itemText"
     "4\":\"Z\303\274ndung \360\237\232\227 35.30\",\"text1\":\"Pr\303\274fstand \342\202\254 "
     "35.31\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 35.32\",\"valu"
     "e1\":-269019337,\"children\":null,\"childCount\":0,\"text3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 35.33\",\"error\":null,\"text4\":\"say \\\"\303\251\\\" 35.34\",\"value2\":"
     "775971451,\"data\":[0,255,67,50],\"dataLength\":4,\"value3\":2147483648,\"flag\":69,\"va"
     "lue4\":-1282923565}],\"childCount\":2,\"text3\":\"back\\\\slash \303\237 35.35\",\"error"
     "\":{\"code\":1789875679,\"message\":\"Z\303\274ndung \360\237\232\227 35.36\",\"details"
     "\":\"Pr\303\274fstand \342\202\254 35.37\",\"subCode\":-149344147,\"mvciError\":null,\"n"
     "egativeResponse\":null},\"text4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 35.38\",\"value2\":656296261,\"data\":[0,255,52,71],\"dataLength\":4,\"value3\":214"
     "7483647,\"flag\":54,\"value4\":-1163248375},{\"itemText1\":\"K\303\274hler\\u0009\360"
     "\237\224\247 35.39\",\"itemText2\":\"say \\\"\303\251\\\" 35.40\",\"itemText3\":\"back\\"
     "\\slash \303\237 35.41\",\"itemText4\":\"Z\303\274ndung \360\237\232\227 35.42\",\"text1"
     "\":\"Pr\303\274fstand \342\202\254 35.43\",\"text2\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 35.44\",\"value1\":1670200489,\"children\":null,\"childCount\":0,"
     "\"text3\":\"K\303\274hler\\u0009\360\237\224\247 35.45\",\"error\":null,\"text4\":\"say "
     "\\\"\303\251\\\" 35.46\",\"value2\":-29668955,\"data\":[0,255,73,56],\"dataLength\":4,\""
     "value3\":1522273947,\"flag\":75,\"value4\":536621069}],\"childCount\":2,\"text3\":\"back"
     "\\\\slash \303\237 35.47\",\"error\":{\"code\":-1043573183,\"message\":\"Z\303\274ndung "
     "\360\237\232\227 35.48\",\"details\":\"Pr\303\274fstand \342\202\254 35.49\",\"subCode\""
     ":1550525297,\"mvciError\":{\"code\":-2057477411,\"codeText\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 35.50\",\"vendorCode\":416945879,\"vendorCodeText\":\"K"
     "\303\274hler\\u0009\360\237\224\247 35.51\",\"extraText\":\"say \\\"\303\251\\\" 35.52\""
     ",\"extraCode\":-923897993},\"negativeResponse\":{\"code\":1430850107,\"text\":\"back\\\\"
     "slash \303\237 35.53\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,\""
     "bytes\":[0,255,58,77],\"byteCount\":4}},\"text4\":\"Z\303\274ndung \360\237\232\227 35.5"
     "4\",\"value2\":-1937802221,\"data\":[0,255,60,79],\"dataLength\":4,\"value3\":2029226061"
     ",\"flag\":62,\"value4\":297270687},{\"itemText1\":\"Pr\303\274fstand \342\202\254 35.55"
     "\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 35.56\",\"itemT"
     "ext3\":\"K\303\274hler\\u0009\360\237\224\247 35.57\",\"itemText4\":\"say \\\"\303\251\\"
     "\" 35.58\",\"text1\":\"back\\\\slash \303\237 35.59\",\"text2\":\"Z\303\274ndung \360"
     "\237\232\227 35.60\",\"value1\":-804222801,\"children\":null,\"childCount\":0,\"text3\":"
     "\"Pr\303\274fstand \342\202\254 35.61\",\"error\":null,\"text4\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 35.62\",\"value2\":1311174915,\"data\":[0,255,81,64],"
     "\"dataLength\":4,\"value3\":388694529,\"flag\":83,\"value4\":-1818127029}],\"parameterCo"
     "unt1\":2,\"parameters2\":[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 35.63\","
     "\"itemText2\":\"say \\\"\303\251\\\" 35.64\",\"itemText3\":\"back\\\\slash \303\237 35.6"
     "5\",\"itemText4\":\"Z\303\274ndung \360\237\232\227 35.66\",\"text1\":\"Pr\303\274fstand"
     " \342\202\254 35.67\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 "
     "35.68\",\"value1\":177595497,\"children\":[{\"itemText1\":\"K\303\274hler\\u0009\360\237"
     "\224\247 35.69\",\"itemText2\":\"say \\\"\303\251\\\" 35.70\",\"itemText3\":\"back\\\\sl"
     "ash \303\237 35.71\",\"itemText4\":\"Z\303\274ndung \360\237\232\227 35.72\",\"text1\":"
     "\"Pr\303\274fstand \342\202\254 35.73\",\"text2\":\"\346\227\245\346\234\254\350\252\236"
     " \360\235\204\236 35.74\",\"value1\":-684547611,\"children\":[{\"itemText1\":\"K\303\274"
     "hler\\u0009\360\237\224\247 35.75\",\"itemText2\":\"say \\\"\303\251\\\" 35.76\",\"itemT"
     "ext3\":\"back\\\\slash \303\237 35.77\",\"itemText4\":\"Z\303\274ndung \360\237\232\227 "
     "35.78\",\"text1\":\"Pr\303\274fstand \342\202\254 35.79\",\"text2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 35.80\",\"value1\":1191499725,\"children\":null,\""
     "childCount\":0,\"text3\":\"K\303\274hler\\u0009\360\237\224\247 35.81\",\"error\":null,"
     "\"text4\":\"say \\\"\303\251\\\" 35.82\",\"value2\":-1698451839,\"data\":[0,255,66,85],"
     "\"dataLength\":4,\"value3\":895646643,\"flag\":68,\"value4\":57920305},{\"itemText1\":\""
     "back\\\\slash \303\237 35.83\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 35.84\","
     "\"itemText3\":\"Pr\303\274fstand \342\202\254 35.85\",\"itemText4\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 35.86\",\"text1\":\"K\303\274hler\\u0009\360\237"
     "\224\247 35.87\",\"text2\":\"say \\\"\303\251\\\" 35.88\",\"value1\":-564872419,\"childr"
     "en\":null,\"childCount\":0,\"text3\":\"back\\\\slash \303\237 35.89\",\"error\":null,\"t"
     "ext4\":\"Z\303\274ndung \360\237\232\227 35.90\",\"value2\":1071824533,\"data\":[0,255,8"
     "7,70],\"dataLength\":4,\"value3\":1402598757,\"flag\":89,\"value4\":-1578776647}],\"chil"
     "dCount\":2,\"text3\":\"Pr\303\274fstand \342\202\254 35.91\",\"error\":{\"code\":2085728"
     "761,\"message\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 35.92\",\"detail"
     "s\":\"K\303\274hler\\u0009\360\237\224\247 35.93\",\"subCode\":-445197229,\"mvciError\":"
     "null,\"negativeResponse\":null},\"text4\":\"say \\\"\303\251\\\" 35.94\",\"value2\":9521"
     "49343,\"data\":[0,255,72,91],\"dataLength\":4,\"value3\":1909550871,\"flag\":74,\"value4"
     "\":-1459101457},{\"itemText1\":\"back\\\\slash \303\237 35.95\",\"itemText2\":\"Z\303"
     "\274ndung \360\237\232\227 35.96\",\"itemText3\":\"Pr\303\274fstand \342\202\254 35.97\""
     ",\"itemText4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 35.98\",\"text1\""
     ":\"K\303\274hler\\u0009\360\237\224\247 35.99\",\"text2\":\"say \\\"\303\251\\\" 35.100"
     "\",\"value1\":1966053571,\"children\":null,\"childCount\":0,\"text3\":\"back\\\\slash "
     "\303\237 35.101\",\"error\":null,\"text4\":\"Z\303\274ndung \360\237\232\227 35.102\",\""
     "value2\":-325522037,\"data\":[0,255,93,76],\"dataLength\":4,\"value3\":269019337,\"flag"
     "\":95,\"value4\":832474151}],\"childCount\":2,\"text3\":\"Pr\303\274fstand \342\202\254 "
     "35.103\",\"error\":{\"code\":-1339426265,\"message\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 35.104\",\"details\":\"K\303\274hler\\u0009\360\237\224\247 35.105"
     "\",\"subCode\":1846378379,\"mvciError\":{\"code\":-205846847,\"codeText\":\"say \\\"\303"
     "\251\\\" 35.106\",\"vendorCode\":712798961,\"vendorCodeText\":\"back\\\\slash \303\237 3"
     "5.107\",\"extraText\":\"Z\303\274ndung \360\237\232\227 35.108\",\"extraCode\":-12197510"
     "75},\"negativeResponse\":{\"code\":1726703189,\"text\":\"Pr\303\274fstand \342\202\254 3"
     "5.109\",\"value1\":4294967296,\"value2\":1522273947,\"bytes\":[0,255,78,97],\"byteCount"
     "\":4}},\"text4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 35.110\",\"valu"
     "e2\":-86171655,\"data\":[0,255,80,99],\"dataLength\":4,\"value3\":775971451,\"flag\":82,"
     "\"value4\":593123769},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 35.111\",\"i"
     "temText2\":\"say \\\"\303\251\\\" 35.112\",\"itemText3\":\"back\\\\slash \303\237 35.113"
     "\",\"itemText4\":\"Z\303\274ndung \360\237\232\227 35.114\",\"text1\":\"Pr\303\274fstand"
     " \342\202\254 35.115\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236"
     " 35.116\",\"value1\":-1100075883,\"children\":null,\"childCount\":0,\"text3\":\"K\303"
     "\274hler\\u0009\360\237\224\247 35.117\",\"error\":null,\"text4\":\"say \\\"\303\251\\\""
     " 35.118\",\"value2\":1607027997,\"data\":[0,255,101,84],\"dataLength\":4,\"value3\":1282"
     "923565,\"flag\":103,\"value4\":-2113980111}],\"parameterCount2\":2,\"text3\":\"back\\\\s"
     "lash \303\237 35.119\",\"text4\":\"Z\303\274ndung \360\237\232\227 35.120\",\"specialDat"
     "aGroups\":[{\"items\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 35.121\",\"itemTex"
     "t2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 35.122\",\"itemText3\":\"K"
     "\303\274hler\\u0009\360\237\224\247 35.123\",\"itemText4\":\"say \\\"\303\251\\\" 35.124"
     "\"},{\"itemText1\":\"back\\\\slash \303\237 35.125\",\"itemText2\":\"Z\303\274ndung \360"
     "\237\232\227 35.126\",\"itemText3\":\"Pr\303\274fstand \342\202\254 35.127\",\"itemText4"
     "\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 35.128\"}],\"itemCount\":2},{"
     "\"items\":null,\"itemCount\":0}],\"specialDataGroupCount\":2,\"value2\":473448579},{\"co"
     "de\":-980400693,\"text1\":\"K\303\274hler\\u0009\360\237\224\247 35.129\",\"text2\":\"sa"
     "y \\\"\303\251\\\" 35.130\",\"value1\":1487352807,\"parameters1\":null,\"parameterCount1"
     "\":0,\"parameters2\":null,\"parameterCount2\":0,\"text3\":\"back\\\\slash \303\237 35.13"
     "1\",\"text4\":\"Z\303\274ndung \360\237\232\227 35.132\",\"specialDataGroups\":null,\"sp"
     "ecialDataGroupCount\":0,\"value2\":-1994304921}],\"dtcCount\":2,\"error\":{\"code\":3537"
     "73387,\"message\":\"Pr\303\274fstand \342\202\254 35.133\",\"details\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 35.134\",\"subCode\":-860725501,\"mvciError\":"
     "{\"code\":1367677615,\"codeText\":\"K\303\274hler\\u0009\360\237\224\247 35.135\",\"vend"
     "orCode\":-1874629729,\"vendorCodeText\":\"say \\\"\303\251\\\" 35.136\",\"extraText\":\""
     "back\\\\slash \303\237 35.137\",\"extraCode\":234098197},\"negativeResponse\":{\"code\":"
     "-741050311,\"text\":\"Z\303\274ndung \360\237\232\227 35.138\",\"value1\":2029226061,\"v"
     "alue2\":388694529,\"bytes\":[0,255,86,105],\"byteCount\":4}}},{\"target\":\"Pr\303\274fs"
     "tand \342\202\254 35.139\",\"status\":1248002425,\"variant\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 35.140\",\"identified\":0,\"dtcs\":null,\"dtcCount\":0,\"e"
     "rror\":null}]",
     "03000000130000005072c3bc667374616e6420e282ac2033352e310000000013000000e697a5e69cace8aa9e"
     "20f09d849e2033352e3200000080ff807f",
     "030000005072c3bc667374616e6420e282ac2033352e310000e697a5e69cace8aa9e20f09d849e2033352e32"
     "000100000080ff807f",
     "[[\"Pr\303\274fstand \342\202\254 35.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 35.2\"],{\"value\":-2147483648,\"flag1\":255,\"flag2\":128,\"flag3\":12"
     "7}]",
     "[[\"Pr\303\274fstand \342\202\254 35.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 35.2\"],{\"value\":-2147483648,\"flag1\":255,\"flag2\":128,\"flag3\":12"
     "7}]",
     "010200000001110000004bc3bc686c657209f09f94a72033352e33ffffff7f0d0000007361792022c3a92220"
     "33352e34010200000001ffffffff120000006261636b5c736c61736820c39f2033352e35120000005ac3bc6e"
     "64756e6720f09f9a972033352e360000ffff0200000001130000005072c3bc667374616e6420e282ac203335"
     "2e3713000000e697a5e69cace8aa9e20f09d849e2033352e38110000004bc3bc686c657209f09f94a7203335"
     "2e390e0000007361792022c3a9222033352e3130130000006261636b5c736c61736820c39f2033352e313113"
     "0000005ac3bc6e64756e6720f09f9a972033352e31324d88f3780200000001140000005072c3bc667374616e"
     "6420e282ac2033352e313314000000e697a5e69cace8aa9e20f09d849e2033352e3134120000004bc3bc686c"
     "657209f09f94a72033352e31350e0000007361792022c3a9222033352e3136130000006261636b5c736c6173"
     "6820c39f2033352e3137130000005ac3bc6e64756e6720f09f9a972033352e3138fffdd4e802000000011400"
     "00005072c3bc667374616e6420e282ac2033352e313914000000e697a5e69cace8aa9e20f09d849e2033352e"
     "3230120000004bc3bc686c657209f09f94a72033352e32310e0000007361792022c3a9222033352e32321300"
     "00006261636b5c736c61736820c39f2033352e3233130000005ac3bc6e64756e6720f09f9a972033352e3234"
     "b37b623500000000140000005072c3bc667374616e6420e282ac2033352e32350014000000e697a5e69cace8"
     "aa9e20f09d849e2033352e32369b0a66ac0400000000ff0141ffffffff30176fd17101120000004bc3bc686c"
     "657209f09f94a72033352e32370e0000007361792022c3a9222033352e3238130000006261636b5c736c6173"
     "6820c39f2033352e3239130000005ac3bc6e64756e6720f09f9a972033352e3330140000005072c3bc667374"
     "616e6420e282ac2033352e333114000000e697a5e69cace8aa9e20f09d849e2033352e33323717f7ef000000"
     "00120000004bc3bc686c657209f09f94a72033352e3333000e0000007361792022c3a9222033352e33347b62"
     "402e0400000000ff43320000008045d32388b3130000006261636b5c736c61736820c39f2033352e333501df"
     "55af6a130000005ac3bc6e64756e6720f09f9a972033352e3336140000005072c3bc667374616e6420e282ac"
     "2033352e33376d3019f7000014000000e697a5e69cace8aa9e20f09d849e2033352e333845491e2704000000"
     "00ff3447ffffff7f36093daaba01120000004bc3bc686c657209f09f94a72033352e33390e00000073617920"
     "22c3a9222033352e3430130000006261636b5c736c61736820c39f2033352e3431130000005ac3bc6e64756e"
     "6720f09f9a972033352e3432140000005072c3bc667374616e6420e282ac2033352e343314000000e697a5e6"
     "9cace8aa9e20f09d849e2033352e3434a93c8d6300000000120000004bc3bc686c657209f09f94a72033352e"
     "3435000e0000007361792022c3a9222033352e3436a5493bfe0400000000ff49389b0ebc5a4b0d30fc1f1300"
     "00006261636b5c736c61736820c39f2033352e3437014156ccc1130000005ac3bc6e64756e6720f09f9a9720"
     "33352e3438140000005072c3bc667374616e6420e282ac2033352e343971236b5c01dd625d8514000000e697"
     "a5e69cace8aa9e20f09d849e2033352e3530d716da18120000004bc3bc686c657209f09f94a72033352e3531"
     "0e0000007361792022c3a9222033352e3532776feec8013b0a4955130000006261636b5c736c61736820c39f"
     "2033352e35330100000000000080ffffffffffffffff0400000000ff3a4d130000005ac3bc6e64756e6720f0"
     "9f9a972033352e3534137c7f8c0400000000ff3c4f4d88f3783e9ffdb71101140000005072c3bc667374616e"
     "6420e282ac2033352e353514000000e697a5e69cace8aa9e20f09d849e2033352e3536120000004bc3bc686c"
     "657209f09f94a72033352e35370e0000007361792022c3a9222033352e3538130000006261636b5c736c6173"
     "6820c39f2033352e3539130000005ac3bc6e64756e6720f09f9a972033352e3630af8810d000000000140000"
     "005072c3bc667374616e6420e282ac2033352e36310014000000e697a5e69cace8aa9e20f09d849e2033352e"
     "363203f1264e0400000000ff514001022b17534b95a1930200000001120000004bc3bc686c657209f09f94a7"
     "2033352e36330e0000007361792022c3a9222033352e3634130000006261636b5c736c61736820c39f203335"
     "2e3635130000005ac3bc6e64756e6720f09f9a972033352e3636140000005072c3bc667374616e6420e282ac"
     "2033352e363714000000e697a5e69cace8aa9e20f09d849e2033352e363869e4950a0200000001120000004b"
     "c3bc686c657209f09f94a72033352e36390e0000007361792022c3a9222033352e3730130000006261636b5c"
     "736c61736820c39f2033352e3731130000005ac3bc6e64756e6720f09f9a972033352e3732140000005072c3"
     "bc667374616e6420e282ac2033352e373314000000e697a5e69cace8aa9e20f09d849e2033352e3734e5a132"
     "d70200000001120000004bc3bc686c657209f09f94a72033352e37350e0000007361792022c3a9222033352e"
     "3736130000006261636b5c736c61736820c39f2033352e3737130000005ac3bc6e64756e6720f09f9a972033"
     "352e3738140000005072c3bc667374616e6420e282ac2033352e373914000000e697a5e69cace8aa9e20f09d"
     "849e2033352e3830cdd7044700000000120000004bc3bc686c657209f09f94a72033352e3831000e00000073"
     "61792022c3a9222033352e383281aec39a0400000000ff4255b37b62354431cb730301130000006261636b5c"
     "736c61736820c39f2033352e3833130000005ac3bc6e64756e6720f09f9a972033352e3834140000005072c3"
     "bc667374616e6420e282ac2033352e383514000000e697a5e69cace8aa9e20f09d849e2033352e3836120000"
     "004bc3bc686c657209f09f94a72033352e38370e0000007361792022c3a9222033352e38381dbb54de000000"
     "00130000006261636b5c736c61736820c39f2033352e383900130000005ac3bc6e64756e6720f09f9a972033"
     "352e393095bee23f0400000000ff574665f5995359b9c7e5a1140000005072c3bc667374616e6420e282ac20"
     "33352e393101f9b1517c14000000e697a5e69cace8aa9e20f09d849e2033352e3932120000004bc3bc686c65"
     "7209f09f94a72033352e393353d476e500000e0000007361792022c3a9222033352e39345fa5c03804000000"
     "00ff485b176fd1714aefe007a901130000006261636b5c736c61736820c39f2033352e3935130000005ac3bc"
     "6e64756e6720f09f9a972033352e3936140000005072c3bc667374616e6420e282ac2033352e393714000000"
     "e697a5e69cace8aa9e20f09d849e2033352e3938120000004bc3bc686c657209f09f94a72033352e39390f00"
     "00007361792022c3a9222033352e313030c3982f7500000000140000006261636b5c736c61736820c39f2033"
     "352e31303100140000005ac3bc6e64756e6720f09f9a972033352e3130328bed98ec0400000000ff5d4cc9e8"
     "08105f278c9e31150000005072c3bc667374616e6420e282ac2033352e3130330127fa29b015000000e697a5"
     "e69cace8aa9e20f09d849e2033352e313034130000004bc3bc686c657209f09f94a72033352e3130358b7f0d"
     "6e01c106bbf30f0000007361792022c3a9222033352e313036f1727c2a140000006261636b5c736c61736820"
     "c39f2033352e313037140000005ac3bc6e64756e6720f09f9a972033352e3130385d134cb7015566eb661500"
     "00005072c3bc667374616e6420e282ac2033352e31303900000000010000009b0ebc5a000000000400000000"
     "ff4e6115000000e697a5e69cace8aa9e20f09d849e2033352e313130f91fddfa0400000000ff50637b62402e"
     "52b9595a2301130000004bc3bc686c657209f09f94a72033352e3131310f0000007361792022c3a922203335"
     "2e313132140000006261636b5c736c61736820c39f2033352e313133140000005ac3bc6e64756e6720f09f9a"
     "972033352e313134150000005072c3bc667374616e6420e282ac2033352e31313515000000e697a5e69cace8"
     "aa9e20f09d849e2033352e313136952c6ebe00000000130000004bc3bc686c657209f09f94a72033352e3131"
     "37000f0000007361792022c3a9222033352e3131381d4dc95f0400000000ff65542ddc774c673139ff811400"
     "00006261636b5c736c61736820c39f2033352e313139140000005ac3bc6e64756e6720f09f9a972033352e31"
     "323002000000010200000001150000005072c3bc667374616e6420e282ac2033352e31323115000000e697a5"
     "e69cace8aa9e20f09d849e2033352e313232130000004bc3bc686c657209f09f94a72033352e3132330f0000"
     "007361792022c3a9222033352e31323401140000006261636b5c736c61736820c39f2033352e313235140000"
     "005ac3bc6e64756e6720f09f9a972033352e313236150000005072c3bc667374616e6420e282ac2033352e31"
     "323715000000e697a5e69cace8aa9e20f09d849e2033352e31323801000000008340381c01cb4590c5130000"
     "004bc3bc686c657209f09f94a72033352e3132390f0000007361792022c3a9222033352e313330e733a75800"
     "00000000000000140000006261636b5c736c61736820c39f2033352e313331140000005ac3bc6e64756e6720"
     "f09f9a972033352e3133320000000067522189014b271615150000005072c3bc667374616e6420e282ac2033"
     "352e31333315000000e697a5e69cace8aa9e20f09d849e2033352e313334035fb2cc01af1a8551130000004b"
     "c3bc686c657209f09f94a72033352e3133359f6b43900f0000007361792022c3a9222033352e313336140000"
     "006261636b5c736c61736820c39f2033352e313337150ef40d013978d4d3140000005ac3bc6e64756e6720f0"
     "9f9a972033352e3133384d88f3780000000001022b17000000000400000000ff566901150000005072c3bc66"
     "7374616e6420e282ac2033352e3133397901634a15000000e697a5e69cace8aa9e20f09d849e2033352e3134"
     "30000000000000",
     "0200000001110000004bc3bc686c657209f09f94a72033352e33ffffff7f0d0000007361792022c3a9222033"
     "352e34010200000001ffffffff120000006261636b5c736c61736820c39f2033352e35120000005ac3bc6e64"
     "756e6720f09f9a972033352e360000ffff0200000001130000005072c3bc667374616e6420e282ac2033352e"
     "3713000000e697a5e69cace8aa9e20f09d849e2033352e38110000004bc3bc686c657209f09f94a72033352e"
     "390e0000007361792022c3a9222033352e3130130000006261636b5c736c61736820c39f2033352e31311300"
     "00005ac3bc6e64756e6720f09f9a972033352e31324d88f3780200000001140000005072c3bc667374616e64"
     "20e282ac2033352e313314000000e697a5e69cace8aa9e20f09d849e2033352e3134120000004bc3bc686c65"
     "7209f09f94a72033352e31350e0000007361792022c3a9222033352e3136130000006261636b5c736c617368"
     "20c39f2033352e3137130000005ac3bc6e64756e6720f09f9a972033352e3138fffdd4e80200000001140000"
     "005072c3bc667374616e6420e282ac2033352e313914000000e697a5e69cace8aa9e20f09d849e2033352e32"
     "30120000004bc3bc686c657209f09f94a72033352e32310e0000007361792022c3a9222033352e3232130000"
     "006261636b5c736c61736820c39f2033352e3233130000005ac3bc6e64756e6720f09f9a972033352e3234b3"
     "7b623500000000140000005072c3bc667374616e6420e282ac2033352e32350014000000e697a5e69cace8aa"
     "9e20f09d849e2033352e32369b0a66ac0400000000ff0141ffffffff30176fd17101120000004bc3bc686c65"
     "7209f09f94a72033352e32370e0000007361792022c3a9222033352e3238130000006261636b5c736c617368"
     "20c39f2033352e3239130000005ac3bc6e64756e6720f09f9a972033352e3330140000005072c3bc66737461"
     "6e6420e282ac2033352e333114000000e697a5e69cace8aa9e20f09d849e2033352e33323717f7ef00000000"
     "120000004bc3bc686c657209f09f94a72033352e3333000e0000007361792022c3a9222033352e33347b6240"
     "2e0400000000ff43320000008045d32388b3130000006261636b5c736c61736820c39f2033352e333501df55"
     "af6a130000005ac3bc6e64756e6720f09f9a972033352e3336140000005072c3bc667374616e6420e282ac20"
     "33352e33376d3019f7000014000000e697a5e69cace8aa9e20f09d849e2033352e333845491e270400000000"
     "ff3447ffffff7f36093daaba01120000004bc3bc686c657209f09f94a72033352e33390e0000007361792022"
     "c3a9222033352e3430130000006261636b5c736c61736820c39f2033352e3431130000005ac3bc6e64756e67"
     "20f09f9a972033352e3432140000005072c3bc667374616e6420e282ac2033352e343314000000e697a5e69c"
     "ace8aa9e20f09d849e2033352e3434a93c8d6300000000120000004bc3bc686c657209f09f94a72033352e34"
     "35000e0000007361792022c3a9222033352e3436a5493bfe0400000000ff49389b0ebc5a4b0d30fc1f130000"
     "006261636b5c736c61736820c39f2033352e3437014156ccc1130000005ac3bc6e64756e6720f09f9a972033"
     "352e3438140000005072c3bc667374616e6420e282ac2033352e343971236b5c01dd625d8514000000e697a5"
     "e69cace8aa9e20f09d849e2033352e3530d716da18120000004bc3bc686c657209f09f94a72033352e35310e"
     "0000007361792022c3a9222033352e3532776feec8013b0a4955130000006261636b5c736c61736820c39f20"
     "33352e35330100000000000080ffffffffffffffff0400000000ff3a4d130000005ac3bc6e64756e6720f09f"
     "9a972033352e3534137c7f8c0400000000ff3c4f4d88f3783e9ffdb71101140000005072c3bc667374616e64"
     "20e282ac2033352e353514000000e697a5e69cace8aa9e20f09d849e2033352e3536120000004bc3bc686c65"
     "7209f09f94a72033352e35370e0000007361792022c3a9222033352e3538130000006261636b5c736c617368"
     "20c39f2033352e3539130000005ac3bc6e64756e6720f09f9a972033352e3630af8810d00000000014000000"
     "5072c3bc667374616e6420e282ac2033352e36310014000000e697a5e69cace8aa9e20f09d849e2033352e36"
     "3203f1264e0400000000ff514001022b17534b95a1930200000001120000004bc3bc686c657209f09f94a720"
     "33352e36330e0000007361792022c3a9222033352e3634130000006261636b5c736c61736820c39f2033352e"
     "3635130000005ac3bc6e64756e6720f09f9a972033352e3636140000005072c3bc667374616e6420e282ac20"
     "33352e363714000000e697a5e69cace8aa9e20f09d849e2033352e363869e4950a0200000001120000004bc3"
     "bc686c657209f09f94a72033352e36390e0000007361792022c3a9222033352e3730130000006261636b5c73"
     "6c61736820c39f2033352e3731130000005ac3bc6e64756e6720f09f9a972033352e3732140000005072c3bc"
     "667374616e6420e282ac2033352e373314000000e697a5e69cace8aa9e20f09d849e2033352e3734e5a132d7"
     "0200000001120000004bc3bc686c657209f09f94a72033352e37350e0000007361792022c3a9222033352e37"
     "36130000006261636b5c736c61736820c39f2033352e3737130000005ac3bc6e64756e6720f09f9a97203335"
     "2e3738140000005072c3bc667374616e6420e282ac2033352e373914000000e697a5e69cace8aa9e20f09d84"
     "9e2033352e3830cdd7044700000000120000004bc3bc686c657209f09f94a72033352e3831000e0000007361"
     "792022c3a9222033352e383281aec39a0400000000ff4255b37b62354431cb730301130000006261636b5c73"
     "6c61736820c39f2033352e3833130000005ac3bc6e64756e6720f09f9a972033352e3834140000005072c3bc"
     "667374616e6420e282ac2033352e383514000000e697a5e69cace8aa9e20f09d849e2033352e383612000000"
     "4bc3bc686c657209f09f94a72033352e38370e0000007361792022c3a9222033352e38381dbb54de00000000"
     "130000006261636b5c736c61736820c39f2033352e383900130000005ac3bc6e64756e6720f09f9a97203335"
     "2e393095bee23f0400000000ff574665f5995359b9c7e5a1140000005072c3bc667374616e6420e282ac2033"
     "352e393101f9b1517c14000000e697a5e69cace8aa9e20f09d849e2033352e3932120000004bc3bc686c6572"
     "09f09f94a72033352e393353d476e500000e0000007361792022c3a9222033352e39345fa5c0380400000000"
     "ff485b176fd1714aefe007a901130000006261636b5c736c61736820c39f2033352e3935130000005ac3bc6e"
     "64756e6720f09f9a972033352e3936140000005072c3bc667374616e6420e282ac2033352e393714000000e6"
     "97a5e69cace8aa9e20f09d849e2033352e3938120000004bc3bc686c657209f09f94a72033352e39390f0000"
     "007361792022c3a9222033352e313030c3982f7500000000140000006261636b5c736c61736820c39f203335"
     "2e31303100140000005ac3bc6e64756e6720f09f9a972033352e3130328bed98ec0400000000ff5d4cc9e808"
     "105f278c9e31150000005072c3bc667374616e6420e282ac2033352e3130330127fa29b015000000e697a5e6"
     "9cace8aa9e20f09d849e2033352e313034130000004bc3bc686c657209f09f94a72033352e3130358b7f0d6e"
     "01c106bbf30f0000007361792022c3a9222033352e313036f1727c2a140000006261636b5c736c61736820c3"
     "9f2033352e313037140000005ac3bc6e64756e6720f09f9a972033352e3130385d134cb7015566eb66150000"
     "005072c3bc667374616e6420e282ac2033352e31303900000000010000009b0ebc5a000000000400000000ff"
     "4e6115000000e697a5e69cace8aa9e20f09d849e2033352e313130f91fddfa0400000000ff50637b62402e52"
     "b9595a2301130000004bc3bc686c657209f09f94a72033352e3131310f0000007361792022c3a9222033352e"
     "313132140000006261636b5c736c61736820c39f2033352e313133140000005ac3bc6e64756e6720f09f9a97"
     "2033352e313134150000005072c3bc667374616e6420e282ac2033352e31313515000000e697a5e69cace8aa"
     "9e20f09d849e2033352e313136952c6ebe00000000130000004bc3bc686c657209f09f94a72033352e313137"
     "000f0000007361792022c3a9222033352e3131381d4dc95f0400000000ff65542ddc774c673139ff81140000"
     "006261636b5c736c61736820c39f2033352e313139140000005ac3bc6e64756e6720f09f9a972033352e3132"
     "3002000000010200000001150000005072c3bc667374616e6420e282ac2033352e31323115000000e697a5e6"
     "9cace8aa9e20f09d849e2033352e313232130000004bc3bc686c657209f09f94a72033352e3132330f000000"
     "7361792022c3a9222033352e31323401140000006261636b5c736c61736820c39f2033352e31323514000000"
     "5ac3bc6e64756e6720f09f9a972033352e313236150000005072c3bc667374616e6420e282ac2033352e3132"
     "3715000000e697a5e69cace8aa9e20f09d849e2033352e31323801000000008340381c01cb4590c513000000"
     "4bc3bc686c657209f09f94a72033352e3132390f0000007361792022c3a9222033352e313330e733a7580000"
     "000000000000140000006261636b5c736c61736820c39f2033352e313331140000005ac3bc6e64756e6720f0"
     "9f9a972033352e3133320000000067522189014b271615150000005072c3bc667374616e6420e282ac203335"
     "2e31333315000000e697a5e69cace8aa9e20f09d849e2033352e313334035fb2cc01af1a8551130000004bc3"
     "bc686c657209f09f94a72033352e3133359f6b43900f0000007361792022c3a9222033352e31333614000000"
     "6261636b5c736c61736820c39f2033352e313337150ef40d013978d4d3140000005ac3bc6e64756e6720f09f"
     "9a972033352e3133384d88f3780000000001022b17000000000400000000ff566901150000005072c3bc6673"
     "74616e6420e282ac2033352e3133397901634a15000000e697a5e69cace8aa9e20f09d849e2033352e313430"
     "000000000000",
     0},
    {"sparse", "[[],null]", "[[],null]",
     "[{\"target\":\"\",\"status\":-2147483648,\"variant\":\"\",\"identified\":true,\"dtcs\":["
     "{\"code\":2147483647,\"text1\":\"\",\"text2\":\"\",\"value1\":-1,\"parameters1\":[],\"pa"
     "rameters2\":[],\"text3\":\"\",\"text4\":\"\",\"specialDataGroups\":[],\"value2\":-65536}"
     "],\"error\":{\"code\":2029226061,\"message\":\"\",\"details\":\"\",\"subCode\":-38869452"
     "9,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "[{\"target\":\"\",\"status\":-2147483648,\"variant\":\"\",\"identified\":1,\"dtcs\":[{\""
     "code\":2147483647,\"text1\":\"\",\"text2\":\"\",\"value1\":-1,\"parameters1\":null,\"par"
     "ameterCount1\":0,\"parameters2\":null,\"parameterCount2\":0,\"text3\":\"\",\"text4\":\""
     "\",\"specialDataGroups\":null,\"specialDataGroupCount\":0,\"value2\":-65536}],\"dtcCount"
     "\":1,\"error\":{\"code\":2029226061,\"message\":\"\",\"details\":\"\",\"subCode\":-38869"
     "4529,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "0000000000000000000000", "0000000000",
     "[[],{\"value\":0,\"flag1\":0,\"flag2\":0,\"flag3\":0}]", "[[],null]",
     "010200000001000000000000008000000000010100000001ffffff7f0000000000000000ffffffff00000000"
     "000000000000000000000000000000000000ffff014d88f3780000000000000000fffdd4e8000000",
     "0200000001000000000000008000000000010100000001ffffff7f0000000000000000ffffffff0000000000"
     "0000000000000000000000000000000000ffff014d88f3780000000000000000fffdd4e8000000",
     0},
    {"empty", "[[],null]", "[[],null]", "[]", "null", "0000000000000000000000", "0000000000",
     "[[],{\"value\":0,\"flag1\":0,\"flag2\":0,\"flag3\":0}]", "[[],null]", "0100000000",
     "00000000", 0},
};

struct PerformQuickTestExport {
    static constexpr const char* operation = "performQuickTest";
    using Result = kc::ListResult<QuickTestResult, release_QuickTestResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::Texts a0(in[0]);
        kel_performQuickTest(api, a0.data(), a0.count(), kc::record<DtcReadConfig>(in[1]), error,
                             &out.data, &out.count);
    }
};

TEST_F(Diagnostics, performQuickTest_Exchange) {
    kc::exchange<PerformQuickTestExport>(api, kPerformQuickTestCases);
}
TEST_F(Diagnostics, performQuickTest_Failure) {
    kc::failure<PerformQuickTestExport>(api, kPerformQuickTestCases);
}
TEST_F(DiagnosticsAdmission, performQuickTest) {
    kc::admission<PerformQuickTestExport>(callers(), kPerformQuickTestCases, kc::Needs::Operator);
}

struct PerformQuickTestAsyncExport {
    static constexpr const char* operation = "performQuickTestAsync";
    using Reports = kc::Reports<QuickTestResult, release_QuickTestResult_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        kc::Texts a0(in[0]);
        return kel_performQuickTestAsync(api, a0.data(), a0.count(),
                                         kc::record<DtcReadConfig>(in[1]), error,
                                         &Reports::onReport, &reports);
    }
};

TEST_F(Diagnostics, performQuickTestAsync_Exchange) {
    kc::asyncExchange<PerformQuickTestAsyncExport>(api, kPerformQuickTestCases);
}
TEST_F(Diagnostics, performQuickTestAsync_Failure) {
    kc::asyncFailure<PerformQuickTestAsyncExport>(api, kPerformQuickTestCases);
}
TEST_F(DiagnosticsAdmission, performQuickTestAsync) {
    kc::asyncAdmission<PerformQuickTestAsyncExport>(callers(), kPerformQuickTestCases,
                                                    kc::Needs::Operator);
}

const char* const kPerformQuickTestNoUtf8[] = {
    "[[\"\\udc00Pr\303\274fstand \342\202\254 35.1\\ud800\",\"\",\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 35.2\"],{\"value\":-2147483648,\"flag1\":255,\"flag2\":128"
    ",\"flag3\":127}]",
};
TEST_F(Diagnostics, performQuickTest_TextWithNoUtf8Form) {
    kc::noUtf8<PerformQuickTestExport>(api, kPerformQuickTestNoUtf8);
}
TEST_F(Diagnostics, performQuickTestAsync_TextWithNoUtf8Form) {
    kc::asyncNoUtf8<PerformQuickTestAsyncExport>(api, kPerformQuickTestNoUtf8);
}

const kc::Number kNumber34{34, "performQuickTest", kPerformQuickTestCases};

TEST_F(DiagnosticsByNumber, n34_performQuickTest_KelCall) { kc::kelCall(api, kNumber34); }
TEST_F(DiagnosticsByNumber, n34_performQuickTest_PyCall) { kc::pyCall(api, kNumber34); }
TEST_F(DiagnosticsByNumber, n34_performQuickTest_Failure) { kc::numberFailure(api, kNumber34); }
TEST_F(DiagnosticsByNumber, n34_performQuickTest_ShortInput) { kc::shortInput(api, kNumber34); }

// ---- identifyTargets (position 65, number 86) ----

const kc::Case kIdentifyTargetsCases[] = {
    {"full",
     "[[\"Pr\303\274fstand \342\202\254 65.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 65.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 65.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 65.2\"]]",
     "[{\"target\":\"K\303\274hler\\u0009\360\237\224\247 65.3\",\"status\":-2147483648,\"erro"
     "r\":{\"code\":2147483647,\"message\":\"say \\\"\303\251\\\" 65.4\",\"details\":\"back\\"
     "\\slash \303\237 65.5\",\"subCode\":-1,\"mvciError\":{\"code\":-65536,\"codeText\":\"Z"
     "\303\274ndung \360\237\232\227 65.6\",\"vendorCode\":2030441151,\"vendorCodeText\":\"Pr"
     "\303\274fstand \342\202\254 65.7\",\"extraText\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 65.8\",\"extraCode\":-389909619},\"negativeResponse\":{\"code\":8968617"
     "33,\"text\":\"K\303\274hler\\u0009\360\237\224\247 65.9\",\"value1\":9223372036854775809"
     ",\"value2\":18446744073709551615,\"bytes\":[0,255,255,128]}},\"variant\":\"say \\\"\303"
     "\251\\\" 65.10\"},{\"target\":\"back\\\\slash \303\237 65.11\",\"status\":-1403813847,\""
     "error\":null,\"variant\":\"Z\303\274ndung \360\237\232\227 65.12\"}]",
     "[{\"target\":\"K\303\274hler\\u0009\360\237\224\247 65.3\",\"status\":-2147483648,\"erro"
     "r\":{\"code\":2147483647,\"message\":\"say \\\"\303\251\\\" 65.4\",\"details\":\"back\\"
     "\\slash \303\237 65.5\",\"subCode\":-1,\"mvciError\":{\"code\":-65536,\"codeText\":\"Z"
     "\303\274ndung \360\237\232\227 65.6\",\"vendorCode\":2030441151,\"vendorCodeText\":\"Pr"
     "\303\274fstand \342\202\254 65.7\",\"extraText\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 65.8\",\"extraCode\":-389909619},\"negativeResponse\":{\"code\":8968617"
     "33,\"text\":\"K\303\274hler\\u0009\360\237\224\247 65.9\",\"value1\":9223372036854775809"
     ",\"value2\":18446744073709551615,\"bytes\":[0,255,255,128],\"byteCount\":4}},\"variant\""
     ":\"say \\\"\303\251\\\" 65.10\"},{\"target\":\"back\\\\slash \303\237 65.11\",\"status\""
     ":-1403813847,\"error\":null,\"variant\":\"Z\303\274ndung \360\237\232\227 65.12\"}]",
     "03000000130000005072c3bc667374616e6420e282ac2036352e310000000013000000e697a5e69cace8aa9e"
     "20f09d849e2036352e32",
     "030000005072c3bc667374616e6420e282ac2036352e310000e697a5e69cace8aa9e20f09d849e2036352e32"
     "00",
     "[[\"Pr\303\274fstand \342\202\254 65.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 65.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 65.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 65.2\"]]",
     "010200000001110000004bc3bc686c657209f09f94a72036352e330000008001ffffff7f0d00000073617920"
     "22c3a9222036352e34120000006261636b5c736c61736820c39f2036352e35ffffffff010000ffff12000000"
     "5ac3bc6e64756e6720f09f9a972036352e36bf120679130000005072c3bc667374616e6420e282ac2036352e"
     "3713000000e697a5e69cace8aa9e20f09d849e2036352e388d73c2e80125067535110000004bc3bc686c6572"
     "09f09f94a72036352e390100000000000080ffffffffffffffff0400000000ffff800e0000007361792022c3"
     "a9222036352e313001130000006261636b5c736c61736820c39f2036352e3131298053ac00130000005ac3bc"
     "6e64756e6720f09f9a972036352e3132",
     "0200000001110000004bc3bc686c657209f09f94a72036352e330000008001ffffff7f0d0000007361792022"
     "c3a9222036352e34120000006261636b5c736c61736820c39f2036352e35ffffffff010000ffff120000005a"
     "c3bc6e64756e6720f09f9a972036352e36bf120679130000005072c3bc667374616e6420e282ac2036352e37"
     "13000000e697a5e69cace8aa9e20f09d849e2036352e388d73c2e80125067535110000004bc3bc686c657209"
     "f09f94a72036352e390100000000000080ffffffffffffffff0400000000ffff800e0000007361792022c3a9"
     "222036352e313001130000006261636b5c736c61736820c39f2036352e3131298053ac00130000005ac3bc6e"
     "64756e6720f09f9a972036352e3132",
     0},
    {"sparse", "[[]]", "[[]]",
     "[{\"target\":\"\",\"status\":-2147483648,\"error\":{\"code\":2147483647,\"message\":\"\""
     ",\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null},\"variant"
     "\":\"\"},null]",
     "[{\"target\":\"\",\"status\":-2147483648,\"error\":{\"code\":2147483647,\"message\":\"\""
     ",\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null},\"variant"
     "\":\"\"},null]",
     "00000000", "00000000", "[[]]", "[[]]",
     "010200000001000000000000008001ffffff7f0000000000000000ffffffff00000000000000",
     "0200000001000000000000008001ffffff7f0000000000000000ffffffff00000000000000", 0},
    {"empty", "[[]]", "[[]]", "[]", "null", "00000000", "00000000", "[[]]", "[[]]", "0100000000",
     "00000000", 0},
};

struct IdentifyTargetsExport {
    static constexpr const char* operation = "identifyTargets";
    using Result = kc::ListResult<VariantIdentResult, release_VariantIdentResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::Texts a0(in[0]);
        kel_identifyTargets(api, a0.data(), a0.count(), error, &out.data, &out.count);
    }
};

TEST_F(Diagnostics, identifyTargets_Exchange) {
    kc::exchange<IdentifyTargetsExport>(api, kIdentifyTargetsCases);
}
TEST_F(Diagnostics, identifyTargets_Failure) {
    kc::failure<IdentifyTargetsExport>(api, kIdentifyTargetsCases);
}
TEST_F(DiagnosticsAdmission, identifyTargets) {
    kc::admission<IdentifyTargetsExport>(callers(), kIdentifyTargetsCases, kc::Needs::Operator);
}

struct IdentifyTargetsAsyncExport {
    static constexpr const char* operation = "identifyTargetsAsync";
    using Reports = kc::Reports<VariantIdentResult, release_VariantIdentResult_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        kc::Texts a0(in[0]);
        return kel_identifyTargetsAsync(api, a0.data(), a0.count(), error, &Reports::onReport,
                                        &reports);
    }
};

TEST_F(Diagnostics, identifyTargetsAsync_Exchange) {
    kc::asyncExchange<IdentifyTargetsAsyncExport>(api, kIdentifyTargetsCases);
}
TEST_F(Diagnostics, identifyTargetsAsync_Failure) {
    kc::asyncFailure<IdentifyTargetsAsyncExport>(api, kIdentifyTargetsCases);
}
TEST_F(DiagnosticsAdmission, identifyTargetsAsync) {
    kc::asyncAdmission<IdentifyTargetsAsyncExport>(callers(), kIdentifyTargetsCases,
                                                   kc::Needs::Operator);
}

const char* const kIdentifyTargetsNoUtf8[] = {
    "[[\"\\udc00Pr\303\274fstand \342\202\254 65.1\\ud800\",\"\",\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 65.2\"]]",
};
TEST_F(Diagnostics, identifyTargets_TextWithNoUtf8Form) {
    kc::noUtf8<IdentifyTargetsExport>(api, kIdentifyTargetsNoUtf8);
}
TEST_F(Diagnostics, identifyTargetsAsync_TextWithNoUtf8Form) {
    kc::asyncNoUtf8<IdentifyTargetsAsyncExport>(api, kIdentifyTargetsNoUtf8);
}

const kc::Number kNumber86{86, "identifyTargets", kIdentifyTargetsCases};

TEST_F(DiagnosticsByNumber, n86_identifyTargets_KelCall) { kc::kelCall(api, kNumber86); }
TEST_F(DiagnosticsByNumber, n86_identifyTargets_PyCall) { kc::pyCall(api, kNumber86); }
TEST_F(DiagnosticsByNumber, n86_identifyTargets_Failure) { kc::numberFailure(api, kNumber86); }
TEST_F(DiagnosticsByNumber, n86_identifyTargets_ShortInput) { kc::shortInput(api, kNumber86); }

// ---- getFilteredTargets (position 74, number 97) ----

const kc::Case kGetFilteredTargetsCases[] = {
    {"full",
     "[[{\"pattern\":\"Pr\303\274fstand \342\202\254 74.1\",\"flag\":255,\"value\":-2147483648"
     "},{\"pattern\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 74.2\",\"flag\":1"
     "28,\"value\":2147483647}]]",
     "[[{\"pattern\":\"Pr\303\274fstand \342\202\254 74.1\",\"flag\":255,\"value\":-2147483648"
     "},{\"pattern\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 74.2\",\"flag\":1"
     "28,\"value\":2147483647}]]",
     "[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 74.3\",\"itemText2\":\"say \\\""
     "\303\251\\\" 74.4\",\"itemText3\":\"back\\\\slash \303\237 74.5\",\"itemText4\":\"Z\303"
     "\274ndung \360\237\232\227 74.6\",\"value1\":-1,\"text1\":\"Pr\303\274fstand \342\202"
     "\254 74.7\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 74.8\",\"i"
     "tems\":[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 74.9\",\"itemText2\":\"say"
     " \\\"\303\251\\\" 74.10\",\"itemText3\":\"back\\\\slash \303\237 74.11\",\"itemText4\":"
     "\"Z\303\274ndung \360\237\232\227 74.12\"},{\"itemText1\":\"Pr\303\274fstand \342\202"
     "\254 74.13\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 74.14"
     "\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 74.15\",\"itemText4\":\"say \\\""
     "\303\251\\\" 74.16\"}],\"names\":[\"back\\\\slash \303\237 74.17\",\"Z\303\274ndung \360"
     "\237\232\227 74.18\"],\"text3\":\"Pr\303\274fstand \342\202\254 74.19\",\"text4\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 74.20\",\"value2\":-65536,\"text5\":\""
     "K\303\274hler\\u0009\360\237\224\247 74.21\"},{\"itemText1\":\"say \\\"\303\251\\\" 74.2"
     "2\",\"itemText2\":\"back\\\\slash \303\237 74.23\",\"itemText3\":\"Z\303\274ndung \360"
     "\237\232\227 74.24\",\"itemText4\":\"Pr\303\274fstand \342\202\254 74.25\",\"value1\":20"
     "30805679,\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 74.26\",\"tex"
     "t2\":\"K\303\274hler\\u0009\360\237\224\247 74.27\",\"items\":[],\"names\":[\"say \\\""
     "\303\251\\\" 74.28\",\"back\\\\slash \303\237 74.29\"],\"text3\":\"Z\303\274ndung \360"
     "\237\232\227 74.30\",\"text4\":\"Pr\303\274fstand \342\202\254 74.31\",\"value2\":-39027"
     "4145,\"text5\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 74.32\"}]",
     "[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 74.3\",\"itemText2\":\"say \\\""
     "\303\251\\\" 74.4\",\"itemText3\":\"back\\\\slash \303\237 74.5\",\"itemText4\":\"Z\303"
     "\274ndung \360\237\232\227 74.6\",\"value1\":-1,\"text1\":\"Pr\303\274fstand \342\202"
     "\254 74.7\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 74.8\",\"i"
     "tems\":[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 74.9\",\"itemText2\":\"say"
     " \\\"\303\251\\\" 74.10\",\"itemText3\":\"back\\\\slash \303\237 74.11\",\"itemText4\":"
     "\"Z\303\274ndung \360\237\232\227 74.12\"},{\"itemText1\":\"Pr\303\274fstand \342\202"
     "\254 74.13\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 74.14"
     "\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 74.15\",\"itemText4\":\"say \\\""
     "\303\251\\\" 74.16\"}],\"itemCount\":2,\"names\":[\"back\\\\slash \303\237 74.17\",\"Z"
     "\303\274ndung \360\237\232\227 74.18\"],\"nameCount\":2,\"text3\":\"Pr\303\274fstand "
     "\342\202\254 74.19\",\"text4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 7"
     "4.20\",\"value2\":-65536,\"text5\":\"K\303\274hler\\u0009\360\237\224\247 74.21\"},{\"it"
     "emText1\":\"say \\\"\303\251\\\" 74.22\",\"itemText2\":\"back\\\\slash \303\237 74.23\","
     "\"itemText3\":\"Z\303\274ndung \360\237\232\227 74.24\",\"itemText4\":\"Pr\303\274fstand"
     " \342\202\254 74.25\",\"value1\":2030805679,\"text1\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 74.26\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 74.27\","
     "\"items\":null,\"itemCount\":0,\"names\":[\"say \\\"\303\251\\\" 74.28\",\"back\\\\slash"
     " \303\237 74.29\"],\"nameCount\":2,\"text3\":\"Z\303\274ndung \360\237\232\227 74.30\","
     "\"text4\":\"Pr\303\274fstand \342\202\254 74.31\",\"value2\":-390274145,\"text5\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 74.32\"}]",
     "02000000130000005072c3bc667374616e6420e282ac2037342e31ff0000008013000000e697a5e69cace8aa"
     "9e20f09d849e2037342e3280ffffff7f",
     "02000000015072c3bc667374616e6420e282ac2037342e3100ff0000008001e697a5e69cace8aa9e20f09d84"
     "9e2037342e320080ffffff7f",
     "[[{\"pattern\":\"Pr\303\274fstand \342\202\254 74.1\",\"flag\":255,\"value\":-2147483648"
     "},{\"pattern\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 74.2\",\"flag\":1"
     "28,\"value\":2147483647}]]",
     "[[{\"pattern\":\"Pr\303\274fstand \342\202\254 74.1\",\"flag\":255,\"value\":-2147483648"
     "},{\"pattern\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 74.2\",\"flag\":1"
     "28,\"value\":2147483647}]]",
     "010200000001110000004bc3bc686c657209f09f94a72037342e330d0000007361792022c3a9222037342e34"
     "120000006261636b5c736c61736820c39f2037342e35120000005ac3bc6e64756e6720f09f9a972037342e36"
     "ffffffff130000005072c3bc667374616e6420e282ac2037342e3713000000e697a5e69cace8aa9e20f09d84"
     "9e2037342e380200000001110000004bc3bc686c657209f09f94a72037342e390e0000007361792022c3a922"
     "2037342e3130130000006261636b5c736c61736820c39f2037342e3131130000005ac3bc6e64756e6720f09f"
     "9a972037342e313201140000005072c3bc667374616e6420e282ac2037342e313314000000e697a5e69cace8"
     "aa9e20f09d849e2037342e3134120000004bc3bc686c657209f09f94a72037342e31350e0000007361792022"
     "c3a9222037342e313602000000130000006261636b5c736c61736820c39f2037342e3137130000005ac3bc6e"
     "64756e6720f09f9a972037342e3138140000005072c3bc667374616e6420e282ac2037342e313914000000e6"
     "97a5e69cace8aa9e20f09d849e2037342e32300000ffff120000004bc3bc686c657209f09f94a72037342e32"
     "31010e0000007361792022c3a9222037342e3232130000006261636b5c736c61736820c39f2037342e323313"
     "0000005ac3bc6e64756e6720f09f9a972037342e3234140000005072c3bc667374616e6420e282ac2037342e"
     "3235afa20b7914000000e697a5e69cace8aa9e20f09d849e2037342e3236120000004bc3bc686c657209f09f"
     "94a72037342e323700000000020000000e0000007361792022c3a9222037342e3238130000006261636b5c73"
     "6c61736820c39f2037342e3239130000005ac3bc6e64756e6720f09f9a972037342e3330140000005072c3bc"
     "667374616e6420e282ac2037342e33319fe3bce814000000e697a5e69cace8aa9e20f09d849e2037342e3332",
     "0200000001110000004bc3bc686c657209f09f94a72037342e330d0000007361792022c3a9222037342e3412"
     "0000006261636b5c736c61736820c39f2037342e35120000005ac3bc6e64756e6720f09f9a972037342e36ff"
     "ffffff130000005072c3bc667374616e6420e282ac2037342e3713000000e697a5e69cace8aa9e20f09d849e"
     "2037342e380200000001110000004bc3bc686c657209f09f94a72037342e390e0000007361792022c3a92220"
     "37342e3130130000006261636b5c736c61736820c39f2037342e3131130000005ac3bc6e64756e6720f09f9a"
     "972037342e313201140000005072c3bc667374616e6420e282ac2037342e313314000000e697a5e69cace8aa"
     "9e20f09d849e2037342e3134120000004bc3bc686c657209f09f94a72037342e31350e0000007361792022c3"
     "a9222037342e313602000000130000006261636b5c736c61736820c39f2037342e3137130000005ac3bc6e64"
     "756e6720f09f9a972037342e3138140000005072c3bc667374616e6420e282ac2037342e313914000000e697"
     "a5e69cace8aa9e20f09d849e2037342e32300000ffff120000004bc3bc686c657209f09f94a72037342e3231"
     "010e0000007361792022c3a9222037342e3232130000006261636b5c736c61736820c39f2037342e32331300"
     "00005ac3bc6e64756e6720f09f9a972037342e3234140000005072c3bc667374616e6420e282ac2037342e32"
     "35afa20b7914000000e697a5e69cace8aa9e20f09d849e2037342e3236120000004bc3bc686c657209f09f94"
     "a72037342e323700000000020000000e0000007361792022c3a9222037342e3238130000006261636b5c736c"
     "61736820c39f2037342e3239130000005ac3bc6e64756e6720f09f9a972037342e3330140000005072c3bc66"
     "7374616e6420e282ac2037342e33319fe3bce814000000e697a5e69cace8aa9e20f09d849e2037342e3332",
     0},
    {"sparse", "[[]]", "[[]]",
     "[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"value1\""
     ":-2147483648,\"text1\":\"\",\"text2\":\"\",\"items\":[{\"itemText1\":\"\",\"itemText2\":"
     "\"\",\"itemText3\":\"\",\"itemText4\":\"\"}],\"names\":[],\"text3\":\"\",\"text4\":\"\","
     "\"value2\":2147483647,\"text5\":\"\"},null]",
     "[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"value1\""
     ":-2147483648,\"text1\":\"\",\"text2\":\"\",\"items\":[{\"itemText1\":\"\",\"itemText2\":"
     "\"\",\"itemText3\":\"\",\"itemText4\":\"\"}],\"itemCount\":1,\"names\":[],\"nameCount\":"
     "0,\"text3\":\"\",\"text4\":\"\",\"value2\":2147483647,\"text5\":\"\"},null]",
     "00000000", "00000000", "[[]]", "[[]]",
     "0102000000010000000000000000000000000000000000000080000000000000000001000000010000000000"
     "0000000000000000000000000000000000000000000000ffffff7f0000000000",
     "0200000001000000000000000000000000000000000000008000000000000000000100000001000000000000"
     "00000000000000000000000000000000000000000000ffffff7f0000000000",
     0},
    {"empty", "[[]]", "[[]]", "[]", "null", "00000000", "00000000", "[[]]", "[[]]", "0100000000",
     "00000000", 0},
};

struct GetFilteredTargetsExport {
    static constexpr const char* operation = "getFilteredTargets";
    using Result = kc::ListResult<Target, release_Target_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::RecordList<TargetFilter, release_TargetFilter_array> a0(in[0]);
        kel_getFilteredTargets(api, a0.data(), a0.count(), error, &out.data, &out.count);
    }
};

TEST_F(Diagnostics, getFilteredTargets_Exchange) {
    kc::exchange<GetFilteredTargetsExport>(api, kGetFilteredTargetsCases);
}
TEST_F(Diagnostics, getFilteredTargets_Failure) {
    kc::failure<GetFilteredTargetsExport>(api, kGetFilteredTargetsCases);
}
TEST_F(DiagnosticsAdmission, getFilteredTargets) {
    kc::admission<GetFilteredTargetsExport>(callers(), kGetFilteredTargetsCases,
                                            kc::Needs::Operator);
}

const char* const kGetFilteredTargetsNoUtf8[] = {
    "[[{\"pattern\":\"\\udc00Pr\303\274fstand \342\202\254 74.1\\ud800\",\"flag\":255,\"value"
    "\":-2147483648},{\"pattern\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 74."
    "2\",\"flag\":128,\"value\":2147483647}]]",
};
TEST_F(Diagnostics, getFilteredTargets_TextWithNoUtf8Form) {
    kc::noUtf8<GetFilteredTargetsExport>(api, kGetFilteredTargetsNoUtf8);
}

const kc::Number kNumber97{97, "getFilteredTargets", kGetFilteredTargetsCases};

TEST_F(DiagnosticsByNumber, n97_getFilteredTargets_KelCall) { kc::kelCall(api, kNumber97); }
TEST_F(DiagnosticsByNumber, n97_getFilteredTargets_PyCall) { kc::pyCall(api, kNumber97); }
TEST_F(DiagnosticsByNumber, n97_getFilteredTargets_Failure) { kc::numberFailure(api, kNumber97); }
TEST_F(DiagnosticsByNumber, n97_getFilteredTargets_ShortInput) { kc::shortInput(api, kNumber97); }

// ---- getTargetStatus (position 181, number 215) ----

const kc::Case kGetTargetStatusCases[] = {
    {"full",
     "[[\"Pr\303\274fstand \342\202\254 181.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 181.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 181.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 181.2\"]]",
     "[{\"target\":\"K\303\274hler\\u0009\360\237\224\247 181.3\",\"text\":\"say \\\"\303\251"
     "\\\" 181.4\",\"error\":{\"code\":-2147483648,\"message\":\"back\\\\slash \303\237 181.5"
     "\",\"details\":\"Z\303\274ndung \360\237\232\227 181.6\",\"subCode\":2147483647,\"mvciEr"
     "ror\":{\"code\":-1,\"codeText\":\"Pr\303\274fstand \342\202\254 181.7\",\"vendorCode\":-"
     "65536,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 181.8\""
     ",\"extraText\":\"K\303\274hler\\u0009\360\237\224\247 181.9\",\"extraCode\":2035139499},"
     "\"negativeResponse\":{\"code\":-394607967,\"text\":\"say \\\"\303\251\\\" 181.10\",\"val"
     "ue1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128]}},\""
     "values\":[4294967295,2147483648,2147483647,1528187385,2035139499],\"text2\":\"back\\\\sl"
     "ash \303\237 181.11\"},{\"target\":\"Z\303\274ndung \360\237\232\227 181.12\",\"text\":"
     "\"Pr\303\274fstand \342\202\254 181.13\",\"error\":null,\"values\":[394607967,901560081,"
     "1408512195,1915464309,274932775],\"text2\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 181.14\"}]",
     "[{\"target\":\"K\303\274hler\\u0009\360\237\224\247 181.3\",\"text\":\"say \\\"\303\251"
     "\\\" 181.4\",\"error\":{\"code\":-2147483648,\"message\":\"back\\\\slash \303\237 181.5"
     "\",\"details\":\"Z\303\274ndung \360\237\232\227 181.6\",\"subCode\":2147483647,\"mvciEr"
     "ror\":{\"code\":-1,\"codeText\":\"Pr\303\274fstand \342\202\254 181.7\",\"vendorCode\":-"
     "65536,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 181.8\""
     ",\"extraText\":\"K\303\274hler\\u0009\360\237\224\247 181.9\",\"extraCode\":2035139499},"
     "\"negativeResponse\":{\"code\":-394607967,\"text\":\"say \\\"\303\251\\\" 181.10\",\"val"
     "ue1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128],\"by"
     "teCount\":4}},\"values\":[4294967295,2147483648,2147483647,1528187385,2035139499],\"text"
     "2\":\"back\\\\slash \303\237 181.11\"},{\"target\":\"Z\303\274ndung \360\237\232\227 181"
     ".12\",\"text\":\"Pr\303\274fstand \342\202\254 181.13\",\"error\":null,\"values\":[39460"
     "7967,901560081,1408512195,1915464309,274932775],\"text2\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 181.14\"}]",
     "03000000140000005072c3bc667374616e6420e282ac203138312e310000000014000000e697a5e69cace8aa"
     "9e20f09d849e203138312e32",
     "030000005072c3bc667374616e6420e282ac203138312e310000e697a5e69cace8aa9e20f09d849e20313831"
     "2e3200",
     "[[\"Pr\303\274fstand \342\202\254 181.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 181.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 181.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 181.2\"]]",
     "010200000001120000004bc3bc686c657209f09f94a7203138312e330e0000007361792022c3a92220313831"
     "2e340100000080130000006261636b5c736c61736820c39f203138312e35130000005ac3bc6e64756e6720f0"
     "9f9a97203138312e36ffffff7f01ffffffff140000005072c3bc667374616e6420e282ac203138312e370000"
     "ffff14000000e697a5e69cace8aa9e20f09d849e203138312e38120000004bc3bc686c657209f09f94a72031"
     "38312e39abc34d7901a1c27ae80f0000007361792022c3a922203138312e31300100000000000080ffffffff"
     "ffffffff0400000000ffff80ffffffff00000080ffffff7ff949165babc34d79140000006261636b5c736c61"
     "736820c39f203138312e313101140000005ac3bc6e64756e6720f09f9a97203138312e3132150000005072c3"
     "bc667374616e6420e282ac203138312e3133005f3d851711b7bc35c330f45375aa2b722724631015000000e6"
     "97a5e69cace8aa9e20f09d849e203138312e3134",
     "0200000001120000004bc3bc686c657209f09f94a7203138312e330e0000007361792022c3a922203138312e"
     "340100000080130000006261636b5c736c61736820c39f203138312e35130000005ac3bc6e64756e6720f09f"
     "9a97203138312e36ffffff7f01ffffffff140000005072c3bc667374616e6420e282ac203138312e370000ff"
     "ff14000000e697a5e69cace8aa9e20f09d849e203138312e38120000004bc3bc686c657209f09f94a7203138"
     "312e39abc34d7901a1c27ae80f0000007361792022c3a922203138312e31300100000000000080ffffffffff"
     "ffffff0400000000ffff80ffffffff00000080ffffff7ff949165babc34d79140000006261636b5c736c6173"
     "6820c39f203138312e313101140000005ac3bc6e64756e6720f09f9a97203138312e3132150000005072c3bc"
     "667374616e6420e282ac203138312e3133005f3d851711b7bc35c330f45375aa2b722724631015000000e697"
     "a5e69cace8aa9e20f09d849e203138312e3134",
     0},
    {"sparse", "[[]]", "[[]]",
     "[{\"target\":\"\",\"text\":\"\",\"error\":{\"code\":-2147483648,\"message\":\"\",\"detai"
     "ls\":\"\",\"subCode\":2147483647,\"mvciError\":null,\"negativeResponse\":null},\"values"
     "\":[4294967295,2147483648,2147483647,1528187385,2035139499],\"text2\":\"\"},null]",
     "[{\"target\":\"\",\"text\":\"\",\"error\":{\"code\":-2147483648,\"message\":\"\",\"detai"
     "ls\":\"\",\"subCode\":2147483647,\"mvciError\":null,\"negativeResponse\":null},\"values"
     "\":[4294967295,2147483648,2147483647,1528187385,2035139499],\"text2\":\"\"},null]",
     "00000000", "00000000", "[[]]", "[[]]",
     "010200000001000000000000000001000000800000000000000000ffffff7f0000ffffffff00000080ffffff"
     "7ff949165babc34d790000000000",
     "0200000001000000000000000001000000800000000000000000ffffff7f0000ffffffff00000080ffffff7f"
     "f949165babc34d790000000000",
     0},
    {"empty", "[[]]", "[[]]", "[]", "null", "00000000", "00000000", "[[]]", "[[]]", "0100000000",
     "00000000", 0},
};

struct GetTargetStatusExport {
    static constexpr const char* operation = "getTargetStatus";
    using Result = kc::ListResult<TargetStatus, release_TargetStatus_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::Texts a0(in[0]);
        kel_getTargetStatus(api, a0.data(), a0.count(), error, &out.data, &out.count);
    }
};

TEST_F(Diagnostics, getTargetStatus_Exchange) {
    kc::exchange<GetTargetStatusExport>(api, kGetTargetStatusCases);
}
TEST_F(Diagnostics, getTargetStatus_Failure) {
    kc::failure<GetTargetStatusExport>(api, kGetTargetStatusCases);
}
TEST_F(DiagnosticsAdmission, getTargetStatus) {
    kc::admission<GetTargetStatusExport>(callers(), kGetTargetStatusCases, kc::Needs::Operator);
}

const char* const kGetTargetStatusNoUtf8[] = {
    "[[\"\\udc00Pr\303\274fstand \342\202\254 181.1\\ud800\",\"\",\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 181.2\"]]",
};
TEST_F(Diagnostics, getTargetStatus_TextWithNoUtf8Form) {
    kc::noUtf8<GetTargetStatusExport>(api, kGetTargetStatusNoUtf8);
}

const kc::Number kNumber215{215, "getTargetStatus", kGetTargetStatusCases};

TEST_F(DiagnosticsByNumber, n215_getTargetStatus_KelCall) { kc::kelCall(api, kNumber215); }
TEST_F(DiagnosticsByNumber, n215_getTargetStatus_PyCall) { kc::pyCall(api, kNumber215); }
TEST_F(DiagnosticsByNumber, n215_getTargetStatus_Failure) { kc::numberFailure(api, kNumber215); }
TEST_F(DiagnosticsByNumber, n215_getTargetStatus_ShortInput) { kc::shortInput(api, kNumber215); }

// ---- clearSpecificDtcs (position 235, number 268) ----

const kc::Case kClearSpecificDtcsCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 235.1\",[4294967295,0,2147483648]]",
     "[\"Pr\303\274fstand \342\202\254 235.1\",[4294967295,0,2147483648]]",
     "[{\"status\":-2147483648,\"target\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 235.2\",\"error\":{\"code\":2147483647,\"message\":\"K\303\274hler\\u0009\360\237"
     "\224\247 235.3\",\"details\":\"say \\\"\303\251\\\" 235.4\",\"subCode\":-1,\"mvciError\""
     ":{\"code\":-65536,\"codeText\":\"back\\\\slash \303\237 235.5\",\"vendorCode\":203732666"
     "1,\"vendorCodeText\":\"Z\303\274ndung \360\237\232\227 235.6\",\"extraText\":\"Pr\303"
     "\274fstand \342\202\254 235.7\",\"extraCode\":-396795129},\"negativeResponse\":{\"code\""
     ":903747243,\"text\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 235.8\",\"va"
     "lue1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128]}}},"
     "{\"status\":-1410699357,\"target\":\"K\303\274hler\\u0009\360\237\224\247 235.9\",\"erro"
     "r\":null}]",
     "[{\"status\":-2147483648,\"target\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 235.2\",\"error\":{\"code\":2147483647,\"message\":\"K\303\274hler\\u0009\360\237"
     "\224\247 235.3\",\"details\":\"say \\\"\303\251\\\" 235.4\",\"subCode\":-1,\"mvciError\""
     ":{\"code\":-65536,\"codeText\":\"back\\\\slash \303\237 235.5\",\"vendorCode\":203732666"
     "1,\"vendorCodeText\":\"Z\303\274ndung \360\237\232\227 235.6\",\"extraText\":\"Pr\303"
     "\274fstand \342\202\254 235.7\",\"extraCode\":-396795129},\"negativeResponse\":{\"code\""
     ":903747243,\"text\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 235.8\",\"va"
     "lue1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128],\"b"
     "yteCount\":4}}},{\"status\":-1410699357,\"target\":\"K\303\274hler\\u0009\360\237\224"
     "\247 235.9\",\"error\":null}]",
     "140000005072c3bc667374616e6420e282ac203233352e3103000000ffffffff0000000000000080",
     "5072c3bc667374616e6420e282ac203233352e310003000000ffffffff0000000000000080",
     "[\"Pr\303\274fstand \342\202\254 235.1\",[4294967295,0,2147483648]]",
     "[\"Pr\303\274fstand \342\202\254 235.1\",[4294967295,0,2147483648]]",
     "0102000000010000008014000000e697a5e69cace8aa9e20f09d849e203233352e3201ffffff7f120000004b"
     "c3bc686c657209f09f94a7203233352e330e0000007361792022c3a922203233352e34ffffffff010000ffff"
     "130000006261636b5c736c61736820c39f203233352e3545236f79130000005ac3bc6e64756e6720f09f9a97"
     "203233352e36140000005072c3bc667374616e6420e282ac203233352e37076359e801ab16de3514000000e6"
     "97a5e69cace8aa9e20f09d849e203233352e380100000000000080ffffffffffffffff0400000000ffff8001"
     "a36feaab120000004bc3bc686c657209f09f94a7203233352e3900",
     "02000000010000008014000000e697a5e69cace8aa9e20f09d849e203233352e3201ffffff7f120000004bc3"
     "bc686c657209f09f94a7203233352e330e0000007361792022c3a922203233352e34ffffffff010000ffff13"
     "0000006261636b5c736c61736820c39f203233352e3545236f79130000005ac3bc6e64756e6720f09f9a9720"
     "3233352e36140000005072c3bc667374616e6420e282ac203233352e37076359e801ab16de3514000000e697"
     "a5e69cace8aa9e20f09d849e203233352e380100000000000080ffffffffffffffff0400000000ffff8001a3"
     "6feaab120000004bc3bc686c657209f09f94a7203233352e3900",
     0},
    {"sparse", "[\"\",[]]", "[\"\",[]]",
     "[{\"status\":-2147483648,\"target\":\"\",\"error\":{\"code\":2147483647,\"message\":\"\""
     ",\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "[{\"status\":-2147483648,\"target\":\"\",\"error\":{\"code\":2147483647,\"message\":\"\""
     ",\"details\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "0000000000000000", "0000000000", "[\"\",[]]", "[\"\",[]]",
     "010200000001000000800000000001ffffff7f0000000000000000ffffffff000000",
     "0200000001000000800000000001ffffff7f0000000000000000ffffffff000000", 0},
    {"empty", "[\"\",[]]", "[\"\",[]]", "[]", "null", "0000000000000000", "0000000000", "[\"\",[]]",
     "[\"\",[]]", "0100000000", "00000000", 0},
};

struct ClearSpecificDtcsExport {
    static constexpr const char* operation = "clearSpecificDtcs";
    using Result = kc::ListResult<ClearDtcResult, release_ClearDtcResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        const kc::Values<uint32_t> a1(in[1]);
        kel_clearSpecificDtcs(api, a0.get(), a1.data(), a1.count(), error, &out.data, &out.count);
    }
};

TEST_F(Diagnostics, clearSpecificDtcs_Exchange) {
    kc::exchange<ClearSpecificDtcsExport>(api, kClearSpecificDtcsCases);
}
TEST_F(Diagnostics, clearSpecificDtcs_Failure) {
    kc::failure<ClearSpecificDtcsExport>(api, kClearSpecificDtcsCases);
}
TEST_F(DiagnosticsAdmission, clearSpecificDtcs) {
    kc::admission<ClearSpecificDtcsExport>(callers(), kClearSpecificDtcsCases, kc::Needs::Operator);
}

struct ClearSpecificDtcsAsyncExport {
    static constexpr const char* operation = "clearSpecificDtcsAsync";
    using Reports = kc::Reports<ClearDtcResult, release_ClearDtcResult_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        const kc::Text a0(in[0]);
        const kc::Values<uint32_t> a1(in[1]);
        return kel_clearSpecificDtcsAsync(api, a0.get(), a1.data(), a1.count(), error,
                                          &Reports::onReport, &reports);
    }
};

TEST_F(Diagnostics, clearSpecificDtcsAsync_Exchange) {
    kc::asyncExchange<ClearSpecificDtcsAsyncExport>(api, kClearSpecificDtcsCases);
}
TEST_F(Diagnostics, clearSpecificDtcsAsync_Failure) {
    kc::asyncFailure<ClearSpecificDtcsAsyncExport>(api, kClearSpecificDtcsCases);
}
TEST_F(DiagnosticsAdmission, clearSpecificDtcsAsync) {
    kc::asyncAdmission<ClearSpecificDtcsAsyncExport>(callers(), kClearSpecificDtcsCases,
                                                     kc::Needs::Operator);
}

const char* const kClearSpecificDtcsNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 235.1\\ud800\",[4294967295,0,2147483648]]",
};
TEST_F(Diagnostics, clearSpecificDtcs_TextWithNoUtf8Form) {
    kc::noUtf8<ClearSpecificDtcsExport>(api, kClearSpecificDtcsNoUtf8);
}
TEST_F(Diagnostics, clearSpecificDtcsAsync_TextWithNoUtf8Form) {
    kc::asyncNoUtf8<ClearSpecificDtcsAsyncExport>(api, kClearSpecificDtcsNoUtf8);
}

const kc::Number kNumber268{268, "clearSpecificDtcs", kClearSpecificDtcsCases};

TEST_F(DiagnosticsByNumber, n268_clearSpecificDtcs_KelCall) { kc::kelCall(api, kNumber268); }
TEST_F(DiagnosticsByNumber, n268_clearSpecificDtcs_PyCall) { kc::pyCall(api, kNumber268); }
TEST_F(DiagnosticsByNumber, n268_clearSpecificDtcs_Failure) { kc::numberFailure(api, kNumber268); }
TEST_F(DiagnosticsByNumber, n268_clearSpecificDtcs_ShortInput) { kc::shortInput(api, kNumber268); }

// ---- getTargets (position 251, number 58) ----

const kc::Case kGetTargetsCases[] = {
    {"full", "[]", "[]",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 251.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 251.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 251.3\",\"itemText4\":\"say \\\"\303\251\\\" 251.4\",\"value1\":-2147483648"
     ",\"text1\":\"back\\\\slash \303\237 251.5\",\"text2\":\"Z\303\274ndung \360\237\232\227 "
     "251.6\",\"items\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 251.7\",\"itemText2\":"
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 251.8\",\"itemText3\":\"K\303"
     "\274hler\\u0009\360\237\224\247 251.9\",\"itemText4\":\"say \\\"\303\251\\\" 251.10\"},{"
     "\"itemText1\":\"back\\\\slash \303\237 251.11\",\"itemText2\":\"Z\303\274ndung \360\237"
     "\232\227 251.12\",\"itemText3\":\"Pr\303\274fstand \342\202\254 251.13\",\"itemText4\":"
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 251.14\"}],\"names\":[\"K\303"
     "\274hler\\u0009\360\237\224\247 251.15\",\"say \\\"\303\251\\\" 251.16\"],\"text3\":\"ba"
     "ck\\\\slash \303\237 251.17\",\"text4\":\"Z\303\274ndung \360\237\232\227 251.18\",\"val"
     "ue2\":2147483647,\"text5\":\"Pr\303\274fstand \342\202\254 251.19\"},{\"itemText1\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 251.20\",\"itemText2\":\"K\303\274"
     "hler\\u0009\360\237\224\247 251.21\",\"itemText3\":\"say \\\"\303\251\\\" 251.22\",\"ite"
     "mText4\":\"back\\\\slash \303\237 251.23\",\"value1\":-1,\"text1\":\"Z\303\274ndung \360"
     "\237\232\227 251.24\",\"text2\":\"Pr\303\274fstand \342\202\254 251.25\",\"items\":[],\""
     "names\":[\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 251.26\",\"K\303\274hle"
     "r\\u0009\360\237\224\247 251.27\"],\"text3\":\"say \\\"\303\251\\\" 251.28\",\"text4\":"
     "\"back\\\\slash \303\237 251.29\",\"value2\":-65536,\"text5\":\"Z\303\274ndung \360\237"
     "\232\227 251.30\"}]",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 251.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 251.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 251.3\",\"itemText4\":\"say \\\"\303\251\\\" 251.4\",\"value1\":-2147483648"
     ",\"text1\":\"back\\\\slash \303\237 251.5\",\"text2\":\"Z\303\274ndung \360\237\232\227 "
     "251.6\",\"items\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 251.7\",\"itemText2\":"
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 251.8\",\"itemText3\":\"K\303"
     "\274hler\\u0009\360\237\224\247 251.9\",\"itemText4\":\"say \\\"\303\251\\\" 251.10\"},{"
     "\"itemText1\":\"back\\\\slash \303\237 251.11\",\"itemText2\":\"Z\303\274ndung \360\237"
     "\232\227 251.12\",\"itemText3\":\"Pr\303\274fstand \342\202\254 251.13\",\"itemText4\":"
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 251.14\"}],\"itemCount\":2,\"nam"
     "es\":[\"K\303\274hler\\u0009\360\237\224\247 251.15\",\"say \\\"\303\251\\\" 251.16\"],"
     "\"nameCount\":2,\"text3\":\"back\\\\slash \303\237 251.17\",\"text4\":\"Z\303\274ndung "
     "\360\237\232\227 251.18\",\"value2\":2147483647,\"text5\":\"Pr\303\274fstand \342\202"
     "\254 251.19\"},{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25"
     "1.20\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 251.21\",\"itemText3\":\"say"
     " \\\"\303\251\\\" 251.22\",\"itemText4\":\"back\\\\slash \303\237 251.23\",\"value1\":-1"
     ",\"text1\":\"Z\303\274ndung \360\237\232\227 251.24\",\"text2\":\"Pr\303\274fstand \342"
     "\202\254 251.25\",\"items\":null,\"itemCount\":0,\"names\":[\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 251.26\",\"K\303\274hler\\u0009\360\237\224\247 251.27\"],"
     "\"nameCount\":2,\"text3\":\"say \\\"\303\251\\\" 251.28\",\"text4\":\"back\\\\slash \303"
     "\237 251.29\",\"value2\":-65536,\"text5\":\"Z\303\274ndung \360\237\232\227 251.30\"}]",
     "", "", "[]", "[]",
     "010200000001140000005072c3bc667374616e6420e282ac203235312e3114000000e697a5e69cace8aa9e20"
     "f09d849e203235312e32120000004bc3bc686c657209f09f94a7203235312e330e0000007361792022c3a922"
     "203235312e3400000080130000006261636b5c736c61736820c39f203235312e35130000005ac3bc6e64756e"
     "6720f09f9a97203235312e360200000001140000005072c3bc667374616e6420e282ac203235312e37140000"
     "00e697a5e69cace8aa9e20f09d849e203235312e38120000004bc3bc686c657209f09f94a7203235312e390f"
     "0000007361792022c3a922203235312e313001140000006261636b5c736c61736820c39f203235312e313114"
     "0000005ac3bc6e64756e6720f09f9a97203235312e3132150000005072c3bc667374616e6420e282ac203235"
     "312e313315000000e697a5e69cace8aa9e20f09d849e203235312e313402000000130000004bc3bc686c6572"
     "09f09f94a7203235312e31350f0000007361792022c3a922203235312e3136140000006261636b5c736c6173"
     "6820c39f203235312e3137140000005ac3bc6e64756e6720f09f9a97203235312e3138ffffff7f1500000050"
     "72c3bc667374616e6420e282ac203235312e31390115000000e697a5e69cace8aa9e20f09d849e203235312e"
     "3230130000004bc3bc686c657209f09f94a7203235312e32310f0000007361792022c3a922203235312e3232"
     "140000006261636b5c736c61736820c39f203235312e3233ffffffff140000005ac3bc6e64756e6720f09f9a"
     "97203235312e3234150000005072c3bc667374616e6420e282ac203235312e32350000000002000000150000"
     "00e697a5e69cace8aa9e20f09d849e203235312e3236130000004bc3bc686c657209f09f94a7203235312e32"
     "370f0000007361792022c3a922203235312e3238140000006261636b5c736c61736820c39f203235312e3239"
     "0000ffff140000005ac3bc6e64756e6720f09f9a97203235312e3330",
     "0200000001140000005072c3bc667374616e6420e282ac203235312e3114000000e697a5e69cace8aa9e20f0"
     "9d849e203235312e32120000004bc3bc686c657209f09f94a7203235312e330e0000007361792022c3a92220"
     "3235312e3400000080130000006261636b5c736c61736820c39f203235312e35130000005ac3bc6e64756e67"
     "20f09f9a97203235312e360200000001140000005072c3bc667374616e6420e282ac203235312e3714000000"
     "e697a5e69cace8aa9e20f09d849e203235312e38120000004bc3bc686c657209f09f94a7203235312e390f00"
     "00007361792022c3a922203235312e313001140000006261636b5c736c61736820c39f203235312e31311400"
     "00005ac3bc6e64756e6720f09f9a97203235312e3132150000005072c3bc667374616e6420e282ac20323531"
     "2e313315000000e697a5e69cace8aa9e20f09d849e203235312e313402000000130000004bc3bc686c657209"
     "f09f94a7203235312e31350f0000007361792022c3a922203235312e3136140000006261636b5c736c617368"
     "20c39f203235312e3137140000005ac3bc6e64756e6720f09f9a97203235312e3138ffffff7f150000005072"
     "c3bc667374616e6420e282ac203235312e31390115000000e697a5e69cace8aa9e20f09d849e203235312e32"
     "30130000004bc3bc686c657209f09f94a7203235312e32310f0000007361792022c3a922203235312e323214"
     "0000006261636b5c736c61736820c39f203235312e3233ffffffff140000005ac3bc6e64756e6720f09f9a97"
     "203235312e3234150000005072c3bc667374616e6420e282ac203235312e3235000000000200000015000000"
     "e697a5e69cace8aa9e20f09d849e203235312e3236130000004bc3bc686c657209f09f94a7203235312e3237"
     "0f0000007361792022c3a922203235312e3238140000006261636b5c736c61736820c39f203235312e323900"
     "00ffff140000005ac3bc6e64756e6720f09f9a97203235312e3330",
     0},
    {"sparse", "[]", "[]",
     "[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"value1\""
     ":-2147483648,\"text1\":\"\",\"text2\":\"\",\"items\":[{\"itemText1\":\"\",\"itemText2\":"
     "\"\",\"itemText3\":\"\",\"itemText4\":\"\"}],\"names\":[],\"text3\":\"\",\"text4\":\"\","
     "\"value2\":2147483647,\"text5\":\"\"},null]",
     "[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"value1\""
     ":-2147483648,\"text1\":\"\",\"text2\":\"\",\"items\":[{\"itemText1\":\"\",\"itemText2\":"
     "\"\",\"itemText3\":\"\",\"itemText4\":\"\"}],\"itemCount\":1,\"names\":[],\"nameCount\":"
     "0,\"text3\":\"\",\"text4\":\"\",\"value2\":2147483647,\"text5\":\"\"},null]",
     "", "", "[]", "[]",
     "0102000000010000000000000000000000000000000000000080000000000000000001000000010000000000"
     "0000000000000000000000000000000000000000000000ffffff7f0000000000",
     "0200000001000000000000000000000000000000000000008000000000000000000100000001000000000000"
     "00000000000000000000000000000000000000000000ffffff7f0000000000",
     0},
    {"empty", "[]", "[]", "[]", "null", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct GetTargetsExport {
    static constexpr const char* operation = "getTargets";
    using Result = kc::ListResult<Target, release_Target_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getTargets(api, error, &out.data, &out.count);
    }
};

TEST_F(Diagnostics, getTargets_Exchange) { kc::exchange<GetTargetsExport>(api, kGetTargetsCases); }
TEST_F(Diagnostics, getTargets_Failure) { kc::failure<GetTargetsExport>(api, kGetTargetsCases); }
TEST_F(DiagnosticsAdmission, getTargets) {
    kc::admission<GetTargetsExport>(callers(), kGetTargetsCases, kc::Needs::Operator);
}

const kc::Number kNumber58{58, "getTargets", kGetTargetsCases};

TEST_F(DiagnosticsByNumber, n58_getTargets_KelCall) { kc::kelCall(api, kNumber58); }
TEST_F(DiagnosticsByNumber, n58_getTargets_PyCall) { kc::pyCall(api, kNumber58); }
TEST_F(DiagnosticsByNumber, n58_getTargets_Failure) { kc::numberFailure(api, kNumber58); }

// ---- getSessionTargetFilters (position 263, number 90) ----

const kc::Case kGetSessionTargetFiltersCases[] = {
    {"full", "[]", "[]",
     "[{\"pattern\":\"Pr\303\274fstand \342\202\254 263.1\",\"flag\":255,\"value\":-2147483648"
     "},{\"pattern\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 263.2\",\"flag\":"
     "128,\"value\":2147483647}]",
     "[{\"pattern\":\"Pr\303\274fstand \342\202\254 263.1\",\"flag\":255,\"value\":-2147483648"
     "},{\"pattern\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 263.2\",\"flag\":"
     "128,\"value\":2147483647}]",
     "", "", "[]", "[]",
     "010200000001140000005072c3bc667374616e6420e282ac203236332e31ff000000800114000000e697a5e6"
     "9cace8aa9e20f09d849e203236332e3280ffffff7f",
     "0200000001140000005072c3bc667374616e6420e282ac203236332e31ff000000800114000000e697a5e69c"
     "ace8aa9e20f09d849e203236332e3280ffffff7f",
     0},
    {"sparse", "[]", "[]", "[{\"pattern\":\"\",\"flag\":255,\"value\":-2147483648},null]",
     "[{\"pattern\":\"\",\"flag\":255,\"value\":-2147483648},null]", "", "", "[]", "[]",
     "01020000000100000000ff0000008000", "020000000100000000ff0000008000", 0},
    {"empty", "[]", "[]", "[]", "null", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct GetSessionTargetFiltersExport {
    static constexpr const char* operation = "getSessionTargetFilters";
    using Result = kc::ListResult<TargetFilter, release_TargetFilter_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getSessionTargetFilters(api, error, &out.data, &out.count);
    }
};

TEST_F(Diagnostics, getSessionTargetFilters_Exchange) {
    kc::exchange<GetSessionTargetFiltersExport>(api, kGetSessionTargetFiltersCases);
}
TEST_F(Diagnostics, getSessionTargetFilters_Failure) {
    kc::failure<GetSessionTargetFiltersExport>(api, kGetSessionTargetFiltersCases);
}
TEST_F(DiagnosticsAdmission, getSessionTargetFilters) {
    kc::admission<GetSessionTargetFiltersExport>(callers(), kGetSessionTargetFiltersCases,
                                                 kc::Needs::Operator);
}

const kc::Number kNumber90{90, "getSessionTargetFilters", kGetSessionTargetFiltersCases};

TEST_F(DiagnosticsByNumber, n90_getSessionTargetFilters_KelCall) { kc::kelCall(api, kNumber90); }
TEST_F(DiagnosticsByNumber, n90_getSessionTargetFilters_PyCall) { kc::pyCall(api, kNumber90); }
TEST_F(DiagnosticsByNumber, n90_getSessionTargetFilters_Failure) {
    kc::numberFailure(api, kNumber90);
}

// ---- setSessionTargetFilters (position 264, number 91) ----

const kc::Case kSetSessionTargetFiltersCases[] = {
    {"full",
     "[[{\"pattern\":\"Pr\303\274fstand \342\202\254 264.1\",\"flag\":255,\"value\":-214748364"
     "8},{\"pattern\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 264.2\",\"flag\""
     ":128,\"value\":2147483647}]]",
     "[[{\"pattern\":\"Pr\303\274fstand \342\202\254 264.1\",\"flag\":255,\"value\":-214748364"
     "8},{\"pattern\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 264.2\",\"flag\""
     ":128,\"value\":2147483647}]]",
     "null", nullptr,
     "02000000140000005072c3bc667374616e6420e282ac203236342e31ff0000008014000000e697a5e69cace8"
     "aa9e20f09d849e203236342e3280ffffff7f",
     "02000000015072c3bc667374616e6420e282ac203236342e3100ff0000008001e697a5e69cace8aa9e20f09d"
     "849e203236342e320080ffffff7f",
     "[[{\"pattern\":\"Pr\303\274fstand \342\202\254 264.1\",\"flag\":255,\"value\":-214748364"
     "8},{\"pattern\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 264.2\",\"flag\""
     ":128,\"value\":2147483647}]]",
     "[[{\"pattern\":\"Pr\303\274fstand \342\202\254 264.1\",\"flag\":255,\"value\":-214748364"
     "8},{\"pattern\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 264.2\",\"flag\""
     ":128,\"value\":2147483647}]]",
     "01", "", 0},
    {"sparse", "[[]]", "[[]]", "null", nullptr, "00000000", "00000000", "[[]]", "[[]]", "01", "",
     0},
};

struct SetSessionTargetFiltersExport {
    static constexpr const char* operation = "setSessionTargetFilters";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::RecordList<TargetFilter, release_TargetFilter_array> a0(in[0]);
        static_cast<void>(out);
        kel_setSessionTargetFilters(api, error, a0.data(), a0.count());
    }
};

TEST_F(Diagnostics, setSessionTargetFilters_Exchange) {
    kc::exchange<SetSessionTargetFiltersExport>(api, kSetSessionTargetFiltersCases);
}
TEST_F(Diagnostics, setSessionTargetFilters_Failure) {
    kc::failure<SetSessionTargetFiltersExport>(api, kSetSessionTargetFiltersCases);
}
TEST_F(DiagnosticsAdmission, setSessionTargetFilters) {
    kc::admission<SetSessionTargetFiltersExport>(callers(), kSetSessionTargetFiltersCases,
                                                 kc::Needs::Operator);
}

const char* const kSetSessionTargetFiltersNoUtf8[] = {
    "[[{\"pattern\":\"\\udc00Pr\303\274fstand \342\202\254 264.1\\ud800\",\"flag\":255,\"valu"
    "e\":-2147483648},{\"pattern\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 26"
    "4.2\",\"flag\":128,\"value\":2147483647}]]",
};
TEST_F(Diagnostics, setSessionTargetFilters_TextWithNoUtf8Form) {
    kc::noUtf8<SetSessionTargetFiltersExport>(api, kSetSessionTargetFiltersNoUtf8);
}

const kc::Number kNumber91{91, "setSessionTargetFilters", kSetSessionTargetFiltersCases};

TEST_F(DiagnosticsByNumber, n91_setSessionTargetFilters_KelCall) { kc::kelCall(api, kNumber91); }
TEST_F(DiagnosticsByNumber, n91_setSessionTargetFilters_PyCall) { kc::pyCall(api, kNumber91); }
TEST_F(DiagnosticsByNumber, n91_setSessionTargetFilters_Failure) {
    kc::numberFailure(api, kNumber91);
}
TEST_F(DiagnosticsByNumber, n91_setSessionTargetFilters_ShortInput) {
    kc::shortInput(api, kNumber91);
}

} // namespace
