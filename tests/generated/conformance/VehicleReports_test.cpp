// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family VehicleReports: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using VehicleReports = kc::ConformanceTest;
using VehicleReportsByNumber = kc::ConformanceTest;
using VehicleReportsAdmission = kc::AdmissionTest;

// ---- createVehicleReport (position 111, number 146) ----

const kc::Case kCreateVehicleReportCases[] = {
    {"full",
     "[{\"name\":\"Pr\303\274fstand \342\202\254 111.1\",\"title\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 111.2\",\"comment\":\"K\303\274hler\\u0009\360\237\224\247"
     " 111.3\",\"targets\":[\"say \\\"\303\251\\\" 111.4\",\"back\\\\slash \303\237 111.5\"],"
     "\"identification\":128,\"dtcs\":0}]",
     "[{\"name\":\"Pr\303\274fstand \342\202\254 111.1\",\"title\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 111.2\",\"comment\":\"K\303\274hler\\u0009\360\237\224\247"
     " 111.3\",\"targets\":[\"say \\\"\303\251\\\" 111.4\",\"back\\\\slash \303\237 111.5\"],"
     "\"identification\":true,\"dtcs\":false}]",
     "\"Z\303\274ndung \360\237\232\227 111.6\"", "\"Z\303\274ndung \360\237\232\227 111.6\"",
     "140000005072c3bc667374616e6420e282ac203131312e3114000000e697a5e69cace8aa9e20f09d849e2031"
     "31312e32120000004bc3bc686c657209f09f94a7203131312e33020000000e0000007361792022c3a9222031"
     "31312e34130000006261636b5c736c61736820c39f203131312e350100",
     "015072c3bc667374616e6420e282ac203131312e3100e697a5e69cace8aa9e20f09d849e203131312e32004b"
     "c3bc686c657209f09f94a7203131312e3300020000007361792022c3a922203131312e34006261636b5c736c"
     "61736820c39f203131312e35000100",
     "[{\"name\":\"Pr\303\274fstand \342\202\254 111.1\",\"title\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 111.2\",\"comment\":\"K\303\274hler\\u0009\360\237\224\247"
     " 111.3\",\"targets\":[\"say \\\"\303\251\\\" 111.4\",\"back\\\\slash \303\237 111.5\"],"
     "\"identification\":true,\"dtcs\":false}]",
     "[{\"name\":\"Pr\303\274fstand \342\202\254 111.1\",\"title\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 111.2\",\"comment\":\"K\303\274hler\\u0009\360\237\224\247"
     " 111.3\",\"targets\":[\"say \\\"\303\251\\\" 111.4\",\"back\\\\slash \303\237 111.5\"],"
     "\"identification\":true,\"dtcs\":false}]",
     "01130000005ac3bc6e64756e6720f09f9a97203131312e36",
     "130000005ac3bc6e64756e6720f09f9a97203131312e36", 0},
    {"sparse", "[null]", "[null]", "\"\"", "\"\"", "000000000000000000000000000000000000", "00",
     "[{\"name\":\"\",\"title\":\"\",\"comment\":\"\",\"targets\":[],\"identification\":false,"
     "\"dtcs\":false}]",
     "[null]", "0100000000", "00000000", 0},
};

struct CreateVehicleReportExport {
    static constexpr const char* operation = "createVehicleReport";
    using Result = kc::TextResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kel_createVehicleReport(api, kc::record<VehicleReportConfig>(in[0]), error, &out.data);
    }
};

TEST_F(VehicleReports, createVehicleReport_Exchange) {
    kc::exchange<CreateVehicleReportExport>(api, kCreateVehicleReportCases);
}
TEST_F(VehicleReports, createVehicleReport_Failure) {
    kc::failure<CreateVehicleReportExport>(api, kCreateVehicleReportCases);
}
TEST_F(VehicleReportsAdmission, createVehicleReport) {
    kc::admission<CreateVehicleReportExport>(callers(), kCreateVehicleReportCases,
                                             kc::Needs::Operator);
}

const char* const kCreateVehicleReportNoUtf8[] = {
    "[{\"name\":\"\\udc00Pr\303\274fstand \342\202\254 111.1\\ud800\",\"title\":\"\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 111.2\",\"comment\":\"K\303\274hler\\t\360"
    "\237\224\247 111.3\",\"targets\":[\"say \\\"\303\251\\\" 111.4\",\"back\\\\slash \303"
    "\237 111.5\"],\"identification\":128,\"dtcs\":0}]",
    "[{\"name\":\"Pr\303\274fstand \342\202\254 111.1\",\"title\":\"\\udc00\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 111.2\\ud800\",\"comment\":\"K\303\274hler\\t\360"
    "\237\224\247 111.3\",\"targets\":[\"say \\\"\303\251\\\" 111.4\",\"back\\\\slash \303"
    "\237 111.5\"],\"identification\":128,\"dtcs\":0}]",
    "[{\"name\":\"Pr\303\274fstand \342\202\254 111.1\",\"title\":\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 111.2\",\"comment\":\"\\udc00K\303\274hler\\t\360\237\224"
    "\247 111.3\\ud800\",\"targets\":[\"say \\\"\303\251\\\" 111.4\",\"back\\\\slash \303\237"
    " 111.5\"],\"identification\":128,\"dtcs\":0}]",
    "[{\"name\":\"Pr\303\274fstand \342\202\254 111.1\",\"title\":\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 111.2\",\"comment\":\"K\303\274hler\\t\360\237\224\247 111"
    ".3\",\"targets\":[\"\\udc00say \\\"\303\251\\\" 111.4\\ud800\",\"back\\\\slash \303\237 "
    "111.5\"],\"identification\":128,\"dtcs\":0}]",
};
TEST_F(VehicleReports, createVehicleReport_TextWithNoUtf8Form) {
    kc::noUtf8<CreateVehicleReportExport>(api, kCreateVehicleReportNoUtf8);
}

const kc::Number kNumber146{146, "createVehicleReport", kCreateVehicleReportCases};

TEST_F(VehicleReportsByNumber, n146_createVehicleReport_KelCall) { kc::kelCall(api, kNumber146); }
TEST_F(VehicleReportsByNumber, n146_createVehicleReport_PyCall) { kc::pyCall(api, kNumber146); }
TEST_F(VehicleReportsByNumber, n146_createVehicleReport_Failure) {
    kc::numberFailure(api, kNumber146);
}
TEST_F(VehicleReportsByNumber, n146_createVehicleReport_ShortInput) {
    kc::shortInput(api, kNumber146);
}

// ---- getVehicleData (position 191, number 202) ----

const kc::Case kGetVehicleDataCases[] = {
    {"full", "[]", "[]",
     "[{\"vin\":\"Pr\303\274fstand \342\202\254 191.1\",\"model\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 191.2\",\"target\":\"K\303\274hler\\u0009\360\237\224\247 "
     "191.3\",\"variant\":\"say \\\"\303\251\\\" 191.4\",\"softwareVersion\":\"back\\\\slash "
     "\303\237 191.5\",\"bus\":\"Z\303\274ndung \360\237\232\227 191.6\",\"address\":429496729"
     "5,\"status\":-2147483648,\"dtcCount\":2147483648},{\"vin\":\"Pr\303\274fstand \342\202"
     "\254 191.7\",\"model\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 191.8\","
     "\"target\":\"K\303\274hler\\u0009\360\237\224\247 191.9\",\"variant\":\"say \\\"\303\251"
     "\\\" 191.10\",\"softwareVersion\":\"back\\\\slash \303\237 191.11\",\"bus\":\"Z\303\274n"
     "dung \360\237\232\227 191.12\",\"address\":2147483647,\"status\":2147483647,\"dtcCount\""
     ":1528592415}]",
     "[{\"vin\":\"Pr\303\274fstand \342\202\254 191.1\",\"model\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 191.2\",\"target\":\"K\303\274hler\\u0009\360\237\224\247 "
     "191.3\",\"variant\":\"say \\\"\303\251\\\" 191.4\",\"softwareVersion\":\"back\\\\slash "
     "\303\237 191.5\",\"bus\":\"Z\303\274ndung \360\237\232\227 191.6\",\"address\":429496729"
     "5,\"status\":-2147483648,\"dtcCount\":2147483648},{\"vin\":\"Pr\303\274fstand \342\202"
     "\254 191.7\",\"model\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 191.8\","
     "\"target\":\"K\303\274hler\\u0009\360\237\224\247 191.9\",\"variant\":\"say \\\"\303\251"
     "\\\" 191.10\",\"softwareVersion\":\"back\\\\slash \303\237 191.11\",\"bus\":\"Z\303\274n"
     "dung \360\237\232\227 191.12\",\"address\":2147483647,\"status\":2147483647,\"dtcCount\""
     ":1528592415}]",
     "", "", "[]", "[]",
     "010200000001140000005072c3bc667374616e6420e282ac203139312e3114000000e697a5e69cace8aa9e20"
     "f09d849e203139312e32120000004bc3bc686c657209f09f94a7203139312e330e0000007361792022c3a922"
     "203139312e34130000006261636b5c736c61736820c39f203139312e35130000005ac3bc6e64756e6720f09f"
     "9a97203139312e36ffffffff000000800000008001140000005072c3bc667374616e6420e282ac203139312e"
     "3714000000e697a5e69cace8aa9e20f09d849e203139312e38120000004bc3bc686c657209f09f94a7203139"
     "312e390f0000007361792022c3a922203139312e3130140000006261636b5c736c61736820c39f203139312e"
     "3131140000005ac3bc6e64756e6720f09f9a97203139312e3132ffffff7fffffff7f1f781c5b",
     "0200000001140000005072c3bc667374616e6420e282ac203139312e3114000000e697a5e69cace8aa9e20f0"
     "9d849e203139312e32120000004bc3bc686c657209f09f94a7203139312e330e0000007361792022c3a92220"
     "3139312e34130000006261636b5c736c61736820c39f203139312e35130000005ac3bc6e64756e6720f09f9a"
     "97203139312e36ffffffff000000800000008001140000005072c3bc667374616e6420e282ac203139312e37"
     "14000000e697a5e69cace8aa9e20f09d849e203139312e38120000004bc3bc686c657209f09f94a720313931"
     "2e390f0000007361792022c3a922203139312e3130140000006261636b5c736c61736820c39f203139312e31"
     "31140000005ac3bc6e64756e6720f09f9a97203139312e3132ffffff7fffffff7f1f781c5b",
     0},
    {"sparse", "[]", "[]",
     "[{\"vin\":\"\",\"model\":\"\",\"target\":\"\",\"variant\":\"\",\"softwareVersion\":\"\","
     "\"bus\":\"\",\"address\":4294967295,\"status\":-2147483648,\"dtcCount\":2147483648},null"
     "]",
     "[{\"vin\":\"\",\"model\":\"\",\"target\":\"\",\"variant\":\"\",\"softwareVersion\":\"\","
     "\"bus\":\"\",\"address\":4294967295,\"status\":-2147483648,\"dtcCount\":2147483648},null"
     "]",
     "", "", "[]", "[]",
     "010200000001000000000000000000000000000000000000000000000000ffffffff000000800000008000",
     "0200000001000000000000000000000000000000000000000000000000ffffffff000000800000008000", 0},
    {"empty", "[]", "[]", "[]", "null", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct GetVehicleDataExport {
    static constexpr const char* operation = "getVehicleData";
    using Result = kc::ListResult<VehicleData, release_VehicleData_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getVehicleData(api, error, &out.data, &out.count);
    }
};

TEST_F(VehicleReports, getVehicleData_Exchange) {
    kc::exchange<GetVehicleDataExport>(api, kGetVehicleDataCases);
}
TEST_F(VehicleReports, getVehicleData_Failure) {
    kc::failure<GetVehicleDataExport>(api, kGetVehicleDataCases);
}
TEST_F(VehicleReportsAdmission, getVehicleData) {
    kc::admission<GetVehicleDataExport>(callers(), kGetVehicleDataCases, kc::Needs::Operator);
}

const kc::Number kNumber202{202, "getVehicleData", kGetVehicleDataCases};

TEST_F(VehicleReportsByNumber, n202_getVehicleData_KelCall) { kc::kelCall(api, kNumber202); }
TEST_F(VehicleReportsByNumber, n202_getVehicleData_PyCall) { kc::pyCall(api, kNumber202); }
TEST_F(VehicleReportsByNumber, n202_getVehicleData_Failure) { kc::numberFailure(api, kNumber202); }

// ---- createVehicleUpdateReport (position 231, number 264) ----

const kc::Case kCreateVehicleUpdateReportCases[] = {
    {"full",
     "[[{\"target\":\"Pr\303\274fstand \342\202\254 231.1\",\"status\":-2147483648,\"package\""
     ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 231.2\",\"versionBefore\":\"K"
     "\303\274hler\\u0009\360\237\224\247 231.3\",\"versionAfter\":\"say \\\"\303\251\\\" 231."
     "4\",\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":2147483647,\"dur"
     "ation\":1530212535,\"error\":{\"code\":2147483647,\"message\":\"back\\\\slash \303\237 2"
     "31.5\",\"details\":\"Z\303\274ndung \360\237\232\227 231.6\",\"subCode\":-1,\"mvciError"
     "\":{\"code\":-65536,\"codeText\":\"Pr\303\274fstand \342\202\254 231.7\",\"vendorCode\":"
     "2037164649,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23"
     "1.8\",\"extraText\":\"K\303\274hler\\u0009\360\237\224\247 231.9\",\"extraCode\":-396633"
     "117},\"negativeResponse\":{\"code\":903585231,\"text\":\"say \\\"\303\251\\\" 231.10\","
     "\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128]"
     "}}},{\"target\":\"back\\\\slash \303\237 231.11\",\"status\":-1410537345,\"package\":\"Z"
     "\303\274ndung \360\237\232\227 231.12\",\"versionBefore\":\"Pr\303\274fstand \342\202"
     "\254 231.13\",\"versionAfter\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 2"
     "31.14\",\"position\":2037164649,\"progress\":396633117,\"overallProgress\":903585231,\"d"
     "uration\":1410537345,\"error\":null}]]",
     "[[{\"target\":\"Pr\303\274fstand \342\202\254 231.1\",\"status\":-2147483648,\"package\""
     ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 231.2\",\"versionBefore\":\"K"
     "\303\274hler\\u0009\360\237\224\247 231.3\",\"versionAfter\":\"say \\\"\303\251\\\" 231."
     "4\",\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":2147483647,\"dur"
     "ation\":1530212535,\"error\":{\"code\":2147483647,\"message\":\"back\\\\slash \303\237 2"
     "31.5\",\"details\":\"Z\303\274ndung \360\237\232\227 231.6\",\"subCode\":-1,\"mvciError"
     "\":{\"code\":-65536,\"codeText\":\"Pr\303\274fstand \342\202\254 231.7\",\"vendorCode\":"
     "2037164649,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23"
     "1.8\",\"extraText\":\"K\303\274hler\\u0009\360\237\224\247 231.9\",\"extraCode\":-396633"
     "117},\"negativeResponse\":{\"code\":903585231,\"text\":\"say \\\"\303\251\\\" 231.10\","
     "\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128]"
     "}}},{\"target\":\"back\\\\slash \303\237 231.11\",\"status\":-1410537345,\"package\":\"Z"
     "\303\274ndung \360\237\232\227 231.12\",\"versionBefore\":\"Pr\303\274fstand \342\202"
     "\254 231.13\",\"versionAfter\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 2"
     "31.14\",\"position\":2037164649,\"progress\":396633117,\"overallProgress\":903585231,\"d"
     "uration\":1410537345,\"error\":null}]]",
     "\"K\303\274hler\\u0009\360\237\224\247 231.15\"",
     "\"K\303\274hler\\u0009\360\237\224\247 231.15\"",
     "02000000140000005072c3bc667374616e6420e282ac203233312e310000008014000000e697a5e69cace8aa"
     "9e20f09d849e203233312e32120000004bc3bc686c657209f09f94a7203233312e330e0000007361792022c3"
     "a922203233312e34ffffffff00000080ffffff7fb730355bffffff7f130000006261636b5c736c61736820c3"
     "9f203233312e35130000005ac3bc6e64756e6720f09f9a97203233312e36ffffffff0000ffff140000005072"
     "c3bc667374616e6420e282ac203233312e3769aa6c7914000000e697a5e69cace8aa9e20f09d849e20323331"
     "2e38120000004bc3bc686c657209f09f94a7203233312e39e3db5be8cf9ddb350f0000007361792022c3a922"
     "203233312e31300100000000000080ffffffffffffffff0400000000ffff80140000006261636b5c736c6173"
     "6820c39f203233312e31317fe8ecab140000005ac3bc6e64756e6720f09f9a97203233312e31321500000050"
     "72c3bc667374616e6420e282ac203233312e313315000000e697a5e69cace8aa9e20f09d849e203233312e31"
     "3469aa6c791d24a417cf9ddb3581171354000000000000000000000000000000000000000000000000000000"
     "0000000000000000000000000000000000000000000000000000000000000000000000000000000000",
     "02000000015072c3bc667374616e6420e282ac203233312e310000000080e697a5e69cace8aa9e20f09d849e"
     "203233312e32004bc3bc686c657209f09f94a7203233312e33007361792022c3a922203233312e3400ffffff"
     "ff00000080ffffff7fb730355b01ffffff7f6261636b5c736c61736820c39f203233312e35005ac3bc6e6475"
     "6e6720f09f9a97203233312e3600ffffffff010000ffff5072c3bc667374616e6420e282ac203233312e3700"
     "69aa6c79e697a5e69cace8aa9e20f09d849e203233312e38004bc3bc686c657209f09f94a7203233312e3900"
     "e3db5be801cf9ddb357361792022c3a922203233312e3130000100000000000080ffffffffffffffff040000"
     "0000ffff80016261636b5c736c61736820c39f203233312e3131007fe8ecab5ac3bc6e64756e6720f09f9a97"
     "203233312e3132005072c3bc667374616e6420e282ac203233312e313300e697a5e69cace8aa9e20f09d849e"
     "203233312e31340069aa6c791d24a417cf9ddb358117135400",
     "[[{\"target\":\"Pr\303\274fstand \342\202\254 231.1\",\"status\":-2147483648,\"package\""
     ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 231.2\",\"versionBefore\":\"K"
     "\303\274hler\\u0009\360\237\224\247 231.3\",\"versionAfter\":\"say \\\"\303\251\\\" 231."
     "4\",\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":2147483647,\"dur"
     "ation\":1530212535,\"error\":{\"code\":2147483647,\"message\":\"back\\\\slash \303\237 2"
     "31.5\",\"details\":\"Z\303\274ndung \360\237\232\227 231.6\",\"subCode\":-1,\"mvciError"
     "\":{\"code\":-65536,\"codeText\":\"Pr\303\274fstand \342\202\254 231.7\",\"vendorCode\":"
     "2037164649,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23"
     "1.8\",\"extraText\":\"K\303\274hler\\u0009\360\237\224\247 231.9\",\"extraCode\":-396633"
     "117},\"negativeResponse\":{\"code\":903585231,\"text\":\"say \\\"\303\251\\\" 231.10\","
     "\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128]"
     "}}},{\"target\":\"back\\\\slash \303\237 231.11\",\"status\":-1410537345,\"package\":\"Z"
     "\303\274ndung \360\237\232\227 231.12\",\"versionBefore\":\"Pr\303\274fstand \342\202"
     "\254 231.13\",\"versionAfter\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 2"
     "31.14\",\"position\":2037164649,\"progress\":396633117,\"overallProgress\":903585231,\"d"
     "uration\":1410537345,\"error\":{\"code\":0,\"message\":\"\",\"details\":\"\",\"subCode\""
     ":0,\"mvciError\":{\"code\":0,\"codeText\":\"\",\"vendorCode\":0,\"vendorCodeText\":\"\","
     "\"extraText\":\"\",\"extraCode\":0},\"negativeResponse\":{\"code\":0,\"text\":\"\",\"val"
     "ue1\":0,\"value2\":0,\"bytes\":[]}}}]]",
     "[[{\"target\":\"Pr\303\274fstand \342\202\254 231.1\",\"status\":-2147483648,\"package\""
     ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 231.2\",\"versionBefore\":\"K"
     "\303\274hler\\u0009\360\237\224\247 231.3\",\"versionAfter\":\"say \\\"\303\251\\\" 231."
     "4\",\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":2147483647,\"dur"
     "ation\":1530212535,\"error\":{\"code\":2147483647,\"message\":\"back\\\\slash \303\237 2"
     "31.5\",\"details\":\"Z\303\274ndung \360\237\232\227 231.6\",\"subCode\":-1,\"mvciError"
     "\":{\"code\":-65536,\"codeText\":\"Pr\303\274fstand \342\202\254 231.7\",\"vendorCode\":"
     "2037164649,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 23"
     "1.8\",\"extraText\":\"K\303\274hler\\u0009\360\237\224\247 231.9\",\"extraCode\":-396633"
     "117},\"negativeResponse\":{\"code\":903585231,\"text\":\"say \\\"\303\251\\\" 231.10\","
     "\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128]"
     "}}},{\"target\":\"back\\\\slash \303\237 231.11\",\"status\":-1410537345,\"package\":\"Z"
     "\303\274ndung \360\237\232\227 231.12\",\"versionBefore\":\"Pr\303\274fstand \342\202"
     "\254 231.13\",\"versionAfter\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 2"
     "31.14\",\"position\":2037164649,\"progress\":396633117,\"overallProgress\":903585231,\"d"
     "uration\":1410537345,\"error\":null}]]",
     "01130000004bc3bc686c657209f09f94a7203233312e3135",
     "130000004bc3bc686c657209f09f94a7203233312e3135", 0},
    {"sparse", "[[]]", "[[]]", "\"\"", "\"\"", "00000000", "00000000", "[[]]", "[[]]", "0100000000",
     "00000000", 0},
};

struct CreateVehicleUpdateReportExport {
    static constexpr const char* operation = "createVehicleUpdateReport";
    using Result = kc::TextResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::RecordList<VehicleUpdateResult, release_VehicleUpdateResult_array> a0(in[0]);
        kel_createVehicleUpdateReport(api, a0.data(), a0.count(), error, &out.data);
    }
};

TEST_F(VehicleReports, createVehicleUpdateReport_Exchange) {
    kc::exchange<CreateVehicleUpdateReportExport>(api, kCreateVehicleUpdateReportCases);
}
TEST_F(VehicleReports, createVehicleUpdateReport_Failure) {
    kc::failure<CreateVehicleUpdateReportExport>(api, kCreateVehicleUpdateReportCases);
}
TEST_F(VehicleReportsAdmission, createVehicleUpdateReport) {
    kc::admission<CreateVehicleUpdateReportExport>(callers(), kCreateVehicleUpdateReportCases,
                                                   kc::Needs::Operator);
}

const char* const kCreateVehicleUpdateReportNoUtf8[] = {
    "[[{\"target\":\"\\udc00Pr\303\274fstand \342\202\254 231.1\\ud800\",\"status\":-21474836"
    "48,\"package\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 231.2\",\"version"
    "Before\":\"K\303\274hler\\t\360\237\224\247 231.3\",\"versionAfter\":\"say \\\"\303\251"
    "\\\" 231.4\",\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":2147483"
    "647,\"duration\":1530212535,\"error\":{\"code\":2147483647,\"message\":\"back\\\\slash "
    "\303\237 231.5\",\"details\":\"Z\303\274ndung \360\237\232\227 231.6\",\"subCode\":-1,\""
    "mvciError\":{\"code\":-65536,\"codeText\":\"Pr\303\274fstand \342\202\254 231.7\",\"vend"
    "orCode\":2037164649,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235"
    "\204\236 231.8\",\"extraText\":\"K\303\274hler\\t\360\237\224\247 231.9\",\"extraCode\":"
    "-396633117},\"negativeResponse\":{\"code\":903585231,\"text\":\"say \\\"\303\251\\\" 231"
    ".10\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,25"
    "5,128]}}},{\"target\":\"back\\\\slash \303\237 231.11\",\"status\":-1410537345,\"package"
    "\":\"Z\303\274ndung \360\237\232\227 231.12\",\"versionBefore\":\"Pr\303\274fstand \342"
    "\202\254 231.13\",\"versionAfter\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
    "\236 231.14\",\"position\":2037164649,\"progress\":396633117,\"overallProgress\":9035852"
    "31,\"duration\":1410537345,\"error\":null}]]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 231.1\",\"status\":-2147483648,\"package\""
    ":\"\\udc00\346\227\245\346\234\254\350\252\236 \360\235\204\236 231.2\\ud800\",\"version"
    "Before\":\"K\303\274hler\\t\360\237\224\247 231.3\",\"versionAfter\":\"say \\\"\303\251"
    "\\\" 231.4\",\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":2147483"
    "647,\"duration\":1530212535,\"error\":{\"code\":2147483647,\"message\":\"back\\\\slash "
    "\303\237 231.5\",\"details\":\"Z\303\274ndung \360\237\232\227 231.6\",\"subCode\":-1,\""
    "mvciError\":{\"code\":-65536,\"codeText\":\"Pr\303\274fstand \342\202\254 231.7\",\"vend"
    "orCode\":2037164649,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235"
    "\204\236 231.8\",\"extraText\":\"K\303\274hler\\t\360\237\224\247 231.9\",\"extraCode\":"
    "-396633117},\"negativeResponse\":{\"code\":903585231,\"text\":\"say \\\"\303\251\\\" 231"
    ".10\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,25"
    "5,128]}}},{\"target\":\"back\\\\slash \303\237 231.11\",\"status\":-1410537345,\"package"
    "\":\"Z\303\274ndung \360\237\232\227 231.12\",\"versionBefore\":\"Pr\303\274fstand \342"
    "\202\254 231.13\",\"versionAfter\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
    "\236 231.14\",\"position\":2037164649,\"progress\":396633117,\"overallProgress\":9035852"
    "31,\"duration\":1410537345,\"error\":null}]]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 231.1\",\"status\":-2147483648,\"package\""
    ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 231.2\",\"versionBefore\":\"\\u"
    "dc00K\303\274hler\\t\360\237\224\247 231.3\\ud800\",\"versionAfter\":\"say \\\"\303\251"
    "\\\" 231.4\",\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":2147483"
    "647,\"duration\":1530212535,\"error\":{\"code\":2147483647,\"message\":\"back\\\\slash "
    "\303\237 231.5\",\"details\":\"Z\303\274ndung \360\237\232\227 231.6\",\"subCode\":-1,\""
    "mvciError\":{\"code\":-65536,\"codeText\":\"Pr\303\274fstand \342\202\254 231.7\",\"vend"
    "orCode\":2037164649,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235"
    "\204\236 231.8\",\"extraText\":\"K\303\274hler\\t\360\237\224\247 231.9\",\"extraCode\":"
    "-396633117},\"negativeResponse\":{\"code\":903585231,\"text\":\"say \\\"\303\251\\\" 231"
    ".10\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,25"
    "5,128]}}},{\"target\":\"back\\\\slash \303\237 231.11\",\"status\":-1410537345,\"package"
    "\":\"Z\303\274ndung \360\237\232\227 231.12\",\"versionBefore\":\"Pr\303\274fstand \342"
    "\202\254 231.13\",\"versionAfter\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
    "\236 231.14\",\"position\":2037164649,\"progress\":396633117,\"overallProgress\":9035852"
    "31,\"duration\":1410537345,\"error\":null}]]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 231.1\",\"status\":-2147483648,\"package\""
    ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 231.2\",\"versionBefore\":\"K"
    "\303\274hler\\t\360\237\224\247 231.3\",\"versionAfter\":\"\\udc00say \\\"\303\251\\\" 2"
    "31.4\\ud800\",\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":214748"
    "3647,\"duration\":1530212535,\"error\":{\"code\":2147483647,\"message\":\"back\\\\slash "
    "\303\237 231.5\",\"details\":\"Z\303\274ndung \360\237\232\227 231.6\",\"subCode\":-1,\""
    "mvciError\":{\"code\":-65536,\"codeText\":\"Pr\303\274fstand \342\202\254 231.7\",\"vend"
    "orCode\":2037164649,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235"
    "\204\236 231.8\",\"extraText\":\"K\303\274hler\\t\360\237\224\247 231.9\",\"extraCode\":"
    "-396633117},\"negativeResponse\":{\"code\":903585231,\"text\":\"say \\\"\303\251\\\" 231"
    ".10\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,25"
    "5,128]}}},{\"target\":\"back\\\\slash \303\237 231.11\",\"status\":-1410537345,\"package"
    "\":\"Z\303\274ndung \360\237\232\227 231.12\",\"versionBefore\":\"Pr\303\274fstand \342"
    "\202\254 231.13\",\"versionAfter\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
    "\236 231.14\",\"position\":2037164649,\"progress\":396633117,\"overallProgress\":9035852"
    "31,\"duration\":1410537345,\"error\":null}]]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 231.1\",\"status\":-2147483648,\"package\""
    ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 231.2\",\"versionBefore\":\"K"
    "\303\274hler\\t\360\237\224\247 231.3\",\"versionAfter\":\"say \\\"\303\251\\\" 231.4\","
    "\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":2147483647,\"duratio"
    "n\":1530212535,\"error\":{\"code\":2147483647,\"message\":\"\\udc00back\\\\slash \303"
    "\237 231.5\\ud800\",\"details\":\"Z\303\274ndung \360\237\232\227 231.6\",\"subCode\":-1"
    ",\"mvciError\":{\"code\":-65536,\"codeText\":\"Pr\303\274fstand \342\202\254 231.7\",\"v"
    "endorCode\":2037164649,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360"
    "\235\204\236 231.8\",\"extraText\":\"K\303\274hler\\t\360\237\224\247 231.9\",\"extraCod"
    "e\":-396633117},\"negativeResponse\":{\"code\":903585231,\"text\":\"say \\\"\303\251\\\""
    " 231.10\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,25"
    "5,255,128]}}},{\"target\":\"back\\\\slash \303\237 231.11\",\"status\":-1410537345,\"pac"
    "kage\":\"Z\303\274ndung \360\237\232\227 231.12\",\"versionBefore\":\"Pr\303\274fstand "
    "\342\202\254 231.13\",\"versionAfter\":\"\346\227\245\346\234\254\350\252\236 \360\235"
    "\204\236 231.14\",\"position\":2037164649,\"progress\":396633117,\"overallProgress\":903"
    "585231,\"duration\":1410537345,\"error\":null}]]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 231.1\",\"status\":-2147483648,\"package\""
    ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 231.2\",\"versionBefore\":\"K"
    "\303\274hler\\t\360\237\224\247 231.3\",\"versionAfter\":\"say \\\"\303\251\\\" 231.4\","
    "\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":2147483647,\"duratio"
    "n\":1530212535,\"error\":{\"code\":2147483647,\"message\":\"back\\\\slash \303\237 231.5"
    "\",\"details\":\"\\udc00Z\303\274ndung \360\237\232\227 231.6\\ud800\",\"subCode\":-1,\""
    "mvciError\":{\"code\":-65536,\"codeText\":\"Pr\303\274fstand \342\202\254 231.7\",\"vend"
    "orCode\":2037164649,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235"
    "\204\236 231.8\",\"extraText\":\"K\303\274hler\\t\360\237\224\247 231.9\",\"extraCode\":"
    "-396633117},\"negativeResponse\":{\"code\":903585231,\"text\":\"say \\\"\303\251\\\" 231"
    ".10\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,25"
    "5,128]}}},{\"target\":\"back\\\\slash \303\237 231.11\",\"status\":-1410537345,\"package"
    "\":\"Z\303\274ndung \360\237\232\227 231.12\",\"versionBefore\":\"Pr\303\274fstand \342"
    "\202\254 231.13\",\"versionAfter\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
    "\236 231.14\",\"position\":2037164649,\"progress\":396633117,\"overallProgress\":9035852"
    "31,\"duration\":1410537345,\"error\":null}]]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 231.1\",\"status\":-2147483648,\"package\""
    ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 231.2\",\"versionBefore\":\"K"
    "\303\274hler\\t\360\237\224\247 231.3\",\"versionAfter\":\"say \\\"\303\251\\\" 231.4\","
    "\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":2147483647,\"duratio"
    "n\":1530212535,\"error\":{\"code\":2147483647,\"message\":\"back\\\\slash \303\237 231.5"
    "\",\"details\":\"Z\303\274ndung \360\237\232\227 231.6\",\"subCode\":-1,\"mvciError\":{"
    "\"code\":-65536,\"codeText\":\"\\udc00Pr\303\274fstand \342\202\254 231.7\\ud800\",\"ven"
    "dorCode\":2037164649,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235"
    "\204\236 231.8\",\"extraText\":\"K\303\274hler\\t\360\237\224\247 231.9\",\"extraCode\":"
    "-396633117},\"negativeResponse\":{\"code\":903585231,\"text\":\"say \\\"\303\251\\\" 231"
    ".10\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,25"
    "5,128]}}},{\"target\":\"back\\\\slash \303\237 231.11\",\"status\":-1410537345,\"package"
    "\":\"Z\303\274ndung \360\237\232\227 231.12\",\"versionBefore\":\"Pr\303\274fstand \342"
    "\202\254 231.13\",\"versionAfter\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
    "\236 231.14\",\"position\":2037164649,\"progress\":396633117,\"overallProgress\":9035852"
    "31,\"duration\":1410537345,\"error\":null}]]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 231.1\",\"status\":-2147483648,\"package\""
    ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 231.2\",\"versionBefore\":\"K"
    "\303\274hler\\t\360\237\224\247 231.3\",\"versionAfter\":\"say \\\"\303\251\\\" 231.4\","
    "\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":2147483647,\"duratio"
    "n\":1530212535,\"error\":{\"code\":2147483647,\"message\":\"back\\\\slash \303\237 231.5"
    "\",\"details\":\"Z\303\274ndung \360\237\232\227 231.6\",\"subCode\":-1,\"mvciError\":{"
    "\"code\":-65536,\"codeText\":\"Pr\303\274fstand \342\202\254 231.7\",\"vendorCode\":2037"
    "164649,\"vendorCodeText\":\"\\udc00\346\227\245\346\234\254\350\252\236 \360\235\204\236"
    " 231.8\\ud800\",\"extraText\":\"K\303\274hler\\t\360\237\224\247 231.9\",\"extraCode\":-"
    "396633117},\"negativeResponse\":{\"code\":903585231,\"text\":\"say \\\"\303\251\\\" 231."
    "10\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,255"
    ",128]}}},{\"target\":\"back\\\\slash \303\237 231.11\",\"status\":-1410537345,\"package"
    "\":\"Z\303\274ndung \360\237\232\227 231.12\",\"versionBefore\":\"Pr\303\274fstand \342"
    "\202\254 231.13\",\"versionAfter\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
    "\236 231.14\",\"position\":2037164649,\"progress\":396633117,\"overallProgress\":9035852"
    "31,\"duration\":1410537345,\"error\":null}]]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 231.1\",\"status\":-2147483648,\"package\""
    ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 231.2\",\"versionBefore\":\"K"
    "\303\274hler\\t\360\237\224\247 231.3\",\"versionAfter\":\"say \\\"\303\251\\\" 231.4\","
    "\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":2147483647,\"duratio"
    "n\":1530212535,\"error\":{\"code\":2147483647,\"message\":\"back\\\\slash \303\237 231.5"
    "\",\"details\":\"Z\303\274ndung \360\237\232\227 231.6\",\"subCode\":-1,\"mvciError\":{"
    "\"code\":-65536,\"codeText\":\"Pr\303\274fstand \342\202\254 231.7\",\"vendorCode\":2037"
    "164649,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 231.8"
    "\",\"extraText\":\"\\udc00K\303\274hler\\t\360\237\224\247 231.9\\ud800\",\"extraCode\":"
    "-396633117},\"negativeResponse\":{\"code\":903585231,\"text\":\"say \\\"\303\251\\\" 231"
    ".10\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,25"
    "5,128]}}},{\"target\":\"back\\\\slash \303\237 231.11\",\"status\":-1410537345,\"package"
    "\":\"Z\303\274ndung \360\237\232\227 231.12\",\"versionBefore\":\"Pr\303\274fstand \342"
    "\202\254 231.13\",\"versionAfter\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
    "\236 231.14\",\"position\":2037164649,\"progress\":396633117,\"overallProgress\":9035852"
    "31,\"duration\":1410537345,\"error\":null}]]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 231.1\",\"status\":-2147483648,\"package\""
    ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 231.2\",\"versionBefore\":\"K"
    "\303\274hler\\t\360\237\224\247 231.3\",\"versionAfter\":\"say \\\"\303\251\\\" 231.4\","
    "\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":2147483647,\"duratio"
    "n\":1530212535,\"error\":{\"code\":2147483647,\"message\":\"back\\\\slash \303\237 231.5"
    "\",\"details\":\"Z\303\274ndung \360\237\232\227 231.6\",\"subCode\":-1,\"mvciError\":{"
    "\"code\":-65536,\"codeText\":\"Pr\303\274fstand \342\202\254 231.7\",\"vendorCode\":2037"
    "164649,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 231.8"
    "\",\"extraText\":\"K\303\274hler\\t\360\237\224\247 231.9\",\"extraCode\":-396633117},\""
    "negativeResponse\":{\"code\":903585231,\"text\":\"\\udc00say \\\"\303\251\\\" 231.10\\ud"
    "800\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,25"
    "5,128]}}},{\"target\":\"back\\\\slash \303\237 231.11\",\"status\":-1410537345,\"package"
    "\":\"Z\303\274ndung \360\237\232\227 231.12\",\"versionBefore\":\"Pr\303\274fstand \342"
    "\202\254 231.13\",\"versionAfter\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
    "\236 231.14\",\"position\":2037164649,\"progress\":396633117,\"overallProgress\":9035852"
    "31,\"duration\":1410537345,\"error\":null}]]",
};
TEST_F(VehicleReports, createVehicleUpdateReport_TextWithNoUtf8Form) {
    kc::noUtf8<CreateVehicleUpdateReportExport>(api, kCreateVehicleUpdateReportNoUtf8);
}

const kc::Number kNumber264{264, "createVehicleUpdateReport", kCreateVehicleUpdateReportCases};

TEST_F(VehicleReportsByNumber, n264_createVehicleUpdateReport_KelCall) {
    kc::kelCall(api, kNumber264);
}
TEST_F(VehicleReportsByNumber, n264_createVehicleUpdateReport_PyCall) {
    kc::pyCall(api, kNumber264);
}
TEST_F(VehicleReportsByNumber, n264_createVehicleUpdateReport_Failure) {
    kc::numberFailure(api, kNumber264);
}
TEST_F(VehicleReportsByNumber, n264_createVehicleUpdateReport_ShortInput) {
    kc::shortInput(api, kNumber264);
}

// ---- getSelectedVehicleInformation (position 249, number 56) ----

const kc::Case kGetSelectedVehicleInformationCases[] = {
    {"full", "[]", "[]",
     "{\"vin\":\"Pr\303\274fstand \342\202\254 249.1\",\"model\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 249.2\",\"modelYear\":4294967295,\"mileage\":2147483648,\""
     "licensePlate\":\"K\303\274hler\\u0009\360\237\224\247 249.3\",\"equipment\":[\"say \\\""
     "\303\251\\\" 249.4\",\"back\\\\slash \303\237 249.5\"]}",
     "{\"vin\":\"Pr\303\274fstand \342\202\254 249.1\",\"model\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 249.2\",\"modelYear\":4294967295,\"mileage\":2147483648,\""
     "licensePlate\":\"K\303\274hler\\u0009\360\237\224\247 249.3\",\"equipment\":[\"say \\\""
     "\303\251\\\" 249.4\",\"back\\\\slash \303\237 249.5\"],\"equipmentCount\":2}",
     "", "", "[]", "[]",
     "0101140000005072c3bc667374616e6420e282ac203234392e3114000000e697a5e69cace8aa9e20f09d849e"
     "203234392e32ffffffff00000080120000004bc3bc686c657209f09f94a7203234392e33020000000e000000"
     "7361792022c3a922203234392e34130000006261636b5c736c61736820c39f203234392e35",
     "01140000005072c3bc667374616e6420e282ac203234392e3114000000e697a5e69cace8aa9e20f09d849e20"
     "3234392e32ffffffff00000080120000004bc3bc686c657209f09f94a7203234392e33020000000e00000073"
     "61792022c3a922203234392e34130000006261636b5c736c61736820c39f203234392e35",
     0},
    {"sparse", "[]", "[]",
     "{\"vin\":\"\",\"model\":\"\",\"modelYear\":4294967295,\"mileage\":2147483648,\"licensePl"
     "ate\":\"\",\"equipment\":[]}",
     "{\"vin\":\"\",\"model\":\"\",\"modelYear\":4294967295,\"mileage\":2147483648,\"licensePl"
     "ate\":\"\",\"equipment\":null,\"equipmentCount\":0}",
     "", "", "[]", "[]", "01010000000000000000ffffffff000000800000000000000000",
     "010000000000000000ffffffff000000800000000000000000", 0},
    {"empty", "[]", "[]", "null", "null", "", "", "[]", "[]", "0100", "00", 0},
};

struct GetSelectedVehicleInformationExport {
    static constexpr const char* operation = "getSelectedVehicleInformation";
    using Result = kc::RecordResult<VehicleInformation, release_VehicleInformation>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getSelectedVehicleInformation(api, error, &out.data);
    }
};

TEST_F(VehicleReports, getSelectedVehicleInformation_Exchange) {
    kc::exchange<GetSelectedVehicleInformationExport>(api, kGetSelectedVehicleInformationCases);
}
TEST_F(VehicleReports, getSelectedVehicleInformation_Failure) {
    kc::failure<GetSelectedVehicleInformationExport>(api, kGetSelectedVehicleInformationCases);
}
TEST_F(VehicleReportsAdmission, getSelectedVehicleInformation) {
    kc::admission<GetSelectedVehicleInformationExport>(
        callers(), kGetSelectedVehicleInformationCases, kc::Needs::Operator);
}

const kc::Number kNumber56{56, "getSelectedVehicleInformation",
                           kGetSelectedVehicleInformationCases};

TEST_F(VehicleReportsByNumber, n56_getSelectedVehicleInformation_KelCall) {
    kc::kelCall(api, kNumber56);
}
TEST_F(VehicleReportsByNumber, n56_getSelectedVehicleInformation_PyCall) {
    kc::pyCall(api, kNumber56);
}
TEST_F(VehicleReportsByNumber, n56_getSelectedVehicleInformation_Failure) {
    kc::numberFailure(api, kNumber56);
}

// ---- setSelectedVehicleInformation (position 250, number 57) ----

const kc::Case kSetSelectedVehicleInformationCases[] = {
    {"full",
     "[{\"vin\":\"Pr\303\274fstand \342\202\254 250.1\",\"model\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 250.2\",\"modelYear\":4294967295,\"mileage\":2147483648,\""
     "licensePlate\":\"K\303\274hler\\u0009\360\237\224\247 250.3\",\"equipment\":[\"say \\\""
     "\303\251\\\" 250.4\",\"back\\\\slash \303\237 250.5\"]}]",
     "[{\"vin\":\"Pr\303\274fstand \342\202\254 250.1\",\"model\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 250.2\",\"modelYear\":4294967295,\"mileage\":2147483648,\""
     "licensePlate\":\"K\303\274hler\\u0009\360\237\224\247 250.3\",\"equipment\":[\"say \\\""
     "\303\251\\\" 250.4\",\"back\\\\slash \303\237 250.5\"]}]",
     "null", nullptr,
     "140000005072c3bc667374616e6420e282ac203235302e3114000000e697a5e69cace8aa9e20f09d849e2032"
     "35302e32ffffffff00000080120000004bc3bc686c657209f09f94a7203235302e33020000000e0000007361"
     "792022c3a922203235302e34130000006261636b5c736c61736820c39f203235302e35",
     "015072c3bc667374616e6420e282ac203235302e3100e697a5e69cace8aa9e20f09d849e203235302e3200ff"
     "ffffff000000804bc3bc686c657209f09f94a7203235302e3300020000007361792022c3a922203235302e34"
     "006261636b5c736c61736820c39f203235302e3500",
     "[{\"vin\":\"Pr\303\274fstand \342\202\254 250.1\",\"model\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 250.2\",\"modelYear\":4294967295,\"mileage\":2147483648,\""
     "licensePlate\":\"K\303\274hler\\u0009\360\237\224\247 250.3\",\"equipment\":[\"say \\\""
     "\303\251\\\" 250.4\",\"back\\\\slash \303\237 250.5\"]}]",
     "[{\"vin\":\"Pr\303\274fstand \342\202\254 250.1\",\"model\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 250.2\",\"modelYear\":4294967295,\"mileage\":2147483648,\""
     "licensePlate\":\"K\303\274hler\\u0009\360\237\224\247 250.3\",\"equipment\":[\"say \\\""
     "\303\251\\\" 250.4\",\"back\\\\slash \303\237 250.5\"]}]",
     "01", "", 0},
    {"sparse", "[null]", "[null]", "null", nullptr,
     "000000000000000000000000000000000000000000000000", "00",
     "[{\"vin\":\"\",\"model\":\"\",\"modelYear\":0,\"mileage\":0,\"licensePlate\":\"\",\"equi"
     "pment\":[]}]",
     "[null]", "01", "", 0},
};

struct SetSelectedVehicleInformationExport {
    static constexpr const char* operation = "setSelectedVehicleInformation";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_setSelectedVehicleInformation(api, error, kc::record<VehicleInformation>(in[0]));
    }
};

TEST_F(VehicleReports, setSelectedVehicleInformation_Exchange) {
    kc::exchange<SetSelectedVehicleInformationExport>(api, kSetSelectedVehicleInformationCases);
}
TEST_F(VehicleReports, setSelectedVehicleInformation_Failure) {
    kc::failure<SetSelectedVehicleInformationExport>(api, kSetSelectedVehicleInformationCases);
}
TEST_F(VehicleReportsAdmission, setSelectedVehicleInformation) {
    kc::admission<SetSelectedVehicleInformationExport>(
        callers(), kSetSelectedVehicleInformationCases, kc::Needs::Operator);
}

const char* const kSetSelectedVehicleInformationNoUtf8[] = {
    "[{\"vin\":\"\\udc00Pr\303\274fstand \342\202\254 250.1\\ud800\",\"model\":\"\346\227\245"
    "\346\234\254\350\252\236 \360\235\204\236 250.2\",\"modelYear\":4294967295,\"mileage\":2"
    "147483648,\"licensePlate\":\"K\303\274hler\\t\360\237\224\247 250.3\",\"equipment\":[\"s"
    "ay \\\"\303\251\\\" 250.4\",\"back\\\\slash \303\237 250.5\"]}]",
    "[{\"vin\":\"Pr\303\274fstand \342\202\254 250.1\",\"model\":\"\\udc00\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 250.2\\ud800\",\"modelYear\":4294967295,\"mileage"
    "\":2147483648,\"licensePlate\":\"K\303\274hler\\t\360\237\224\247 250.3\",\"equipment\":"
    "[\"say \\\"\303\251\\\" 250.4\",\"back\\\\slash \303\237 250.5\"]}]",
    "[{\"vin\":\"Pr\303\274fstand \342\202\254 250.1\",\"model\":\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 250.2\",\"modelYear\":4294967295,\"mileage\":2147483648,\""
    "licensePlate\":\"\\udc00K\303\274hler\\t\360\237\224\247 250.3\\ud800\",\"equipment\":["
    "\"say \\\"\303\251\\\" 250.4\",\"back\\\\slash \303\237 250.5\"]}]",
    "[{\"vin\":\"Pr\303\274fstand \342\202\254 250.1\",\"model\":\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 250.2\",\"modelYear\":4294967295,\"mileage\":2147483648,\""
    "licensePlate\":\"K\303\274hler\\t\360\237\224\247 250.3\",\"equipment\":[\"\\udc00say \\"
    "\"\303\251\\\" 250.4\\ud800\",\"back\\\\slash \303\237 250.5\"]}]",
};
TEST_F(VehicleReports, setSelectedVehicleInformation_TextWithNoUtf8Form) {
    kc::noUtf8<SetSelectedVehicleInformationExport>(api, kSetSelectedVehicleInformationNoUtf8);
}

const kc::Number kNumber57{57, "setSelectedVehicleInformation",
                           kSetSelectedVehicleInformationCases};

TEST_F(VehicleReportsByNumber, n57_setSelectedVehicleInformation_KelCall) {
    kc::kelCall(api, kNumber57);
}
TEST_F(VehicleReportsByNumber, n57_setSelectedVehicleInformation_PyCall) {
    kc::pyCall(api, kNumber57);
}
TEST_F(VehicleReportsByNumber, n57_setSelectedVehicleInformation_Failure) {
    kc::numberFailure(api, kNumber57);
}
TEST_F(VehicleReportsByNumber, n57_setSelectedVehicleInformation_ShortInput) {
    kc::shortInput(api, kNumber57);
}

} // namespace
