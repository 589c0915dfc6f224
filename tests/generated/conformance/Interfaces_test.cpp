// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family Interfaces: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using Interfaces = kc::ConformanceTest;
using InterfacesByNumber = kc::ConformanceTest;
using InterfacesAdmission = kc::AdmissionTest;

// ---- saveInterfaceConfiguration (position 53, number 70) ----

const kc::Case kSaveInterfaceConfigurationCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct SaveInterfaceConfigurationExport {
    static constexpr const char* operation = "saveInterfaceConfiguration";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_saveInterfaceConfiguration(api, error);
    }
};

TEST_F(Interfaces, saveInterfaceConfiguration_Exchange) {
    kc::exchange<SaveInterfaceConfigurationExport>(api, kSaveInterfaceConfigurationCases);
}
TEST_F(Interfaces, saveInterfaceConfiguration_Failure) {
    kc::failure<SaveInterfaceConfigurationExport>(api, kSaveInterfaceConfigurationCases);
}
TEST_F(InterfacesAdmission, saveInterfaceConfiguration) {
    kc::admission<SaveInterfaceConfigurationExport>(callers(), kSaveInterfaceConfigurationCases,
                                                    kc::Needs::Administrator);
}

const kc::Number kNumber70{70, "saveInterfaceConfiguration", kSaveInterfaceConfigurationCases};

TEST_F(InterfacesByNumber, n70_saveInterfaceConfiguration_KelCall) { kc::kelCall(api, kNumber70); }
TEST_F(InterfacesByNumber, n70_saveInterfaceConfiguration_PyCall) { kc::pyCall(api, kNumber70); }
TEST_F(InterfacesByNumber, n70_saveInterfaceConfiguration_Failure) {
    kc::numberFailure(api, kNumber70);
}

// ---- scanInterfaceConnection (position 54, number 71) ----

const kc::Case kScanInterfaceConnectionCases[] = {
    {"full",
     "[[\"Pr\303\274fstand \342\202\254 54.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 54.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 54.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 54.2\"]]",
     "[{\"interfaceInfo\":{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 54.3\",\"itemT"
     "ext2\":\"say \\\"\303\251\\\" 54.4\",\"itemText3\":\"back\\\\slash \303\237 54.5\",\"ite"
     "mText4\":\"Z\303\274ndung \360\237\232\227 54.6\",\"resources\":[{\"itemText1\":\"Pr\303"
     "\274fstand \342\202\254 54.7\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 54.8\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 54.9\",\"itemTe"
     "xt4\":\"say \\\"\303\251\\\" 54.10\",\"id\":4294967295,\"pin\":2147483648,\"inUse\":true"
     "},{\"itemText1\":\"back\\\\slash \303\237 54.11\",\"itemText2\":\"Z\303\274ndung \360"
     "\237\232\227 54.12\",\"itemText3\":\"Pr\303\274fstand \342\202\254 54.13\",\"itemText4\""
     ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 54.14\",\"id\":2147483647,\"pin"
     "\":1523043505,\"inUse\":false}],\"flag1\":true,\"flag2\":false,\"text1\":\"K\303\274hler"
     "\\u0009\360\237\224\247 54.15\",\"text2\":\"say \\\"\303\251\\\" 54.16\",\"flag3\":true,"
     "\"items\":[{\"itemText1\":\"back\\\\slash \303\237 54.17\",\"itemText2\":\"Z\303\274ndun"
     "g \360\237\232\227 54.18\",\"itemText3\":\"Pr\303\274fstand \342\202\254 54.19\",\"itemT"
     "ext4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 54.20\"},{\"itemText1\":"
     "\"K\303\274hler\\u0009\360\237\224\247 54.21\",\"itemText2\":\"say \\\"\303\251\\\" 54.2"
     "2\",\"itemText3\":\"back\\\\slash \303\237 54.23\",\"itemText4\":\"Z\303\274ndung \360"
     "\237\232\227 54.24\"}],\"value\":9223372036854775809},\"error\":{\"code\":-2147483648,\""
     "message\":\"Pr\303\274fstand \342\202\254 54.25\",\"details\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 54.26\",\"subCode\":2147483647,\"mvciError\":{\"code\":-1,"
     "\"codeText\":\"K\303\274hler\\u0009\360\237\224\247 54.27\",\"vendorCode\":-65536,\"vend"
     "orCodeText\":\"say \\\"\303\251\\\" 54.28\",\"extraText\":\"back\\\\slash \303\237 54.29"
     "\",\"extraCode\":2029995619},\"negativeResponse\":{\"code\":-389464085,\"text\":\"Z\303"
     "\274ndung \360\237\232\227 54.30\",\"value1\":18446744073709551615,\"value2\":4294967296"
     ",\"bytes\":[0,255,255,128]}}},{\"interfaceInfo\":null,\"error\":null}]",
     "[{\"interfaceInfo\":{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 54.3\",\"itemT"
     "ext2\":\"say \\\"\303\251\\\" 54.4\",\"itemText3\":\"back\\\\slash \303\237 54.5\",\"ite"
     "mText4\":\"Z\303\274ndung \360\237\232\227 54.6\",\"resources\":[{\"itemText1\":\"Pr\303"
     "\274fstand \342\202\254 54.7\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 54.8\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 54.9\",\"itemTe"
     "xt4\":\"say \\\"\303\251\\\" 54.10\",\"id\":4294967295,\"pin\":2147483648,\"inUse\":1},{"
     "\"itemText1\":\"back\\\\slash \303\237 54.11\",\"itemText2\":\"Z\303\274ndung \360\237"
     "\232\227 54.12\",\"itemText3\":\"Pr\303\274fstand \342\202\254 54.13\",\"itemText4\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 54.14\",\"id\":2147483647,\"pin\":"
     "1523043505,\"inUse\":0}],\"resourceCount\":2,\"flag1\":1,\"flag2\":0,\"text1\":\"K\303"
     "\274hler\\u0009\360\237\224\247 54.15\",\"text2\":\"say \\\"\303\251\\\" 54.16\",\"flag3"
     "\":1,\"items\":[{\"itemText1\":\"back\\\\slash \303\237 54.17\",\"itemText2\":\"Z\303"
     "\274ndung \360\237\232\227 54.18\",\"itemText3\":\"Pr\303\274fstand \342\202\254 54.19\""
     ",\"itemText4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 54.20\"},{\"itemT"
     "ext1\":\"K\303\274hler\\u0009\360\237\224\247 54.21\",\"itemText2\":\"say \\\"\303\251\\"
     "\" 54.22\",\"itemText3\":\"back\\\\slash \303\237 54.23\",\"itemText4\":\"Z\303\274ndung"
     " \360\237\232\227 54.24\"}],\"itemCount\":2,\"value\":9223372036854775809},\"error\":{\""
     "code\":-2147483648,\"message\":\"Pr\303\274fstand \342\202\254 54.25\",\"details\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 54.26\",\"subCode\":2147483647,\"m"
     "vciError\":{\"code\":-1,\"codeText\":\"K\303\274hler\\u0009\360\237\224\247 54.27\",\"ve"
     "ndorCode\":-65536,\"vendorCodeText\":\"say \\\"\303\251\\\" 54.28\",\"extraText\":\"back"
     "\\\\slash \303\237 54.29\",\"extraCode\":2029995619},\"negativeResponse\":{\"code\":-389"
     "464085,\"text\":\"Z\303\274ndung \360\237\232\227 54.30\",\"value1\":1844674407370955161"
     "5,\"value2\":4294967296,\"bytes\":[0,255,255,128],\"byteCount\":4}}},{\"interfaceInfo\":"
     "null,\"error\":null}]",
     "03000000130000005072c3bc667374616e6420e282ac2035342e310000000013000000e697a5e69cace8aa9e"
     "20f09d849e2035342e32",
     "030000005072c3bc667374616e6420e282ac2035342e310000e697a5e69cace8aa9e20f09d849e2035342e32"
     "00",
     "[[\"Pr\303\274fstand \342\202\254 54.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 54.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 54.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 54.2\"]]",
     "01020000000101110000004bc3bc686c657209f09f94a72035342e330d0000007361792022c3a9222035342e"
     "34120000006261636b5c736c61736820c39f2035342e35120000005ac3bc6e64756e6720f09f9a972035342e"
     "360200000001130000005072c3bc667374616e6420e282ac2035342e3713000000e697a5e69cace8aa9e20f0"
     "9d849e2035342e38110000004bc3bc686c657209f09f94a72035342e390e0000007361792022c3a922203534"
     "2e3130ffffffff000000800101130000006261636b5c736c61736820c39f2035342e3131130000005ac3bc6e"
     "64756e6720f09f9a972035342e3132140000005072c3bc667374616e6420e282ac2035342e313314000000e6"
     "97a5e69cace8aa9e20f09d849e2035342e3134ffffff7fb1ccc75a000100120000004bc3bc686c657209f09f"
     "94a72035342e31350e0000007361792022c3a9222035342e3136010200000001130000006261636b5c736c61"
     "736820c39f2035342e3137130000005ac3bc6e64756e6720f09f9a972035342e3138140000005072c3bc6673"
     "74616e6420e282ac2035342e313914000000e697a5e69cace8aa9e20f09d849e2035342e323001120000004b"
     "c3bc686c657209f09f94a72035342e32310e0000007361792022c3a9222035342e3232130000006261636b5c"
     "736c61736820c39f2035342e3233130000005ac3bc6e64756e6720f09f9a972035342e323401000000000000"
     "800100000080140000005072c3bc667374616e6420e282ac2035342e323514000000e697a5e69cace8aa9e20"
     "f09d849e2035342e3236ffffff7f01ffffffff120000004bc3bc686c657209f09f94a72035342e32370000ff"
     "ff0e0000007361792022c3a9222035342e3238130000006261636b5c736c61736820c39f2035342e32396346"
     "ff7801eb3fc9e8130000005ac3bc6e64756e6720f09f9a972035342e3330ffffffffffffffff000000000100"
     "00000400000000ffff80010000",
     "020000000101110000004bc3bc686c657209f09f94a72035342e330d0000007361792022c3a9222035342e34"
     "120000006261636b5c736c61736820c39f2035342e35120000005ac3bc6e64756e6720f09f9a972035342e36"
     "0200000001130000005072c3bc667374616e6420e282ac2035342e3713000000e697a5e69cace8aa9e20f09d"
     "849e2035342e38110000004bc3bc686c657209f09f94a72035342e390e0000007361792022c3a9222035342e"
     "3130ffffffff000000800101130000006261636b5c736c61736820c39f2035342e3131130000005ac3bc6e64"
     "756e6720f09f9a972035342e3132140000005072c3bc667374616e6420e282ac2035342e313314000000e697"
     "a5e69cace8aa9e20f09d849e2035342e3134ffffff7fb1ccc75a000100120000004bc3bc686c657209f09f94"
     "a72035342e31350e0000007361792022c3a9222035342e3136010200000001130000006261636b5c736c6173"
     "6820c39f2035342e3137130000005ac3bc6e64756e6720f09f9a972035342e3138140000005072c3bc667374"
     "616e6420e282ac2035342e313914000000e697a5e69cace8aa9e20f09d849e2035342e323001120000004bc3"
     "bc686c657209f09f94a72035342e32310e0000007361792022c3a9222035342e3232130000006261636b5c73"
     "6c61736820c39f2035342e3233130000005ac3bc6e64756e6720f09f9a972035342e32340100000000000080"
     "0100000080140000005072c3bc667374616e6420e282ac2035342e323514000000e697a5e69cace8aa9e20f0"
     "9d849e2035342e3236ffffff7f01ffffffff120000004bc3bc686c657209f09f94a72035342e32370000ffff"
     "0e0000007361792022c3a9222035342e3238130000006261636b5c736c61736820c39f2035342e32396346ff"
     "7801eb3fc9e8130000005ac3bc6e64756e6720f09f9a972035342e3330ffffffffffffffff00000000010000"
     "000400000000ffff80010000",
     0},
    {"sparse", "[[]]", "[[]]",
     "[{\"interfaceInfo\":{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText"
     "4\":\"\",\"resources\":[],\"flag1\":true,\"flag2\":false,\"text1\":\"\",\"text2\":\"\","
     "\"flag3\":true,\"items\":[],\"value\":9223372036854775809},\"error\":{\"code\":-21474836"
     "48,\"message\":\"\",\"details\":\"\",\"subCode\":2147483647,\"mvciError\":null,\"negativ"
     "eResponse\":null}},null]",
     "[{\"interfaceInfo\":{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText"
     "4\":\"\",\"resources\":null,\"resourceCount\":0,\"flag1\":1,\"flag2\":0,\"text1\":\"\","
     "\"text2\":\"\",\"flag3\":1,\"items\":null,\"itemCount\":0,\"value\":9223372036854775809}"
     ",\"error\":{\"code\":-2147483648,\"message\":\"\",\"details\":\"\",\"subCode\":214748364"
     "7,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "00000000", "00000000", "[[]]", "[[]]",
     "0102000000010100000000000000000000000000000000000000000100000000000000000001000000000100"
     "00000000008001000000800000000000000000ffffff7f000000",
     "0200000001010000000000000000000000000000000000000000010000000000000000000100000000010000"
     "000000008001000000800000000000000000ffffff7f000000",
     0},
    {"empty", "[[]]", "[[]]", "[]", "null", "00000000", "00000000", "[[]]", "[[]]", "0100000000",
     "00000000", 0},
};

struct ScanInterfaceConnectionExport {
    static constexpr const char* operation = "scanInterfaceConnection";
    using Result = kc::ListResult<ScanInterfaceResult, release_ScanInterfaceResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::Texts a0(in[0]);
        kel_scanInterfaceConnection(api, a0.data(), a0.count(), error, &out.data, &out.count);
    }
};

TEST_F(Interfaces, scanInterfaceConnection_Exchange) {
    kc::exchange<ScanInterfaceConnectionExport>(api, kScanInterfaceConnectionCases);
}
TEST_F(Interfaces, scanInterfaceConnection_Failure) {
    kc::failure<ScanInterfaceConnectionExport>(api, kScanInterfaceConnectionCases);
}
TEST_F(InterfacesAdmission, scanInterfaceConnection) {
    kc::admission<ScanInterfaceConnectionExport>(callers(), kScanInterfaceConnectionCases,
                                                 kc::Needs::Operator);
}

struct ScanInterfaceConnectionAsyncExport {
    static constexpr const char* operation = "scanInterfaceConnectionAsync";
    using Reports = kc::Reports<ScanInterfaceResult, release_ScanInterfaceResult_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        kc::Texts a0(in[0]);
        return kel_scanInterfaceConnectionAsync(api, a0.data(), a0.count(), error,
                                                &Reports::onReport, &reports);
    }
};

TEST_F(Interfaces, scanInterfaceConnectionAsync_Exchange) {
    kc::asyncExchange<ScanInterfaceConnectionAsyncExport>(api, kScanInterfaceConnectionCases);
}
TEST_F(Interfaces, scanInterfaceConnectionAsync_Failure) {
    kc::asyncFailure<ScanInterfaceConnectionAsyncExport>(api, kScanInterfaceConnectionCases);
}
TEST_F(InterfacesAdmission, scanInterfaceConnectionAsync) {
    kc::asyncAdmission<ScanInterfaceConnectionAsyncExport>(callers(), kScanInterfaceConnectionCases,
                                                           kc::Needs::Operator);
}

const char* const kScanInterfaceConnectionNoUtf8[] = {
    "[[\"\\udc00Pr\303\274fstand \342\202\254 54.1\\ud800\",\"\",\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 54.2\"]]",
};
TEST_F(Interfaces, scanInterfaceConnection_TextWithNoUtf8Form) {
    kc::noUtf8<ScanInterfaceConnectionExport>(api, kScanInterfaceConnectionNoUtf8);
}
TEST_F(Interfaces, scanInterfaceConnectionAsync_TextWithNoUtf8Form) {
    kc::asyncNoUtf8<ScanInterfaceConnectionAsyncExport>(api, kScanInterfaceConnectionNoUtf8);
}

const kc::Number kNumber71{71, "scanInterfaceConnection", kScanInterfaceConnectionCases};

TEST_F(InterfacesByNumber, n71_scanInterfaceConnection_KelCall) { kc::kelCall(api, kNumber71); }
TEST_F(InterfacesByNumber, n71_scanInterfaceConnection_PyCall) { kc::pyCall(api, kNumber71); }
TEST_F(InterfacesByNumber, n71_scanInterfaceConnection_Failure) {
    kc::numberFailure(api, kNumber71);
}
TEST_F(InterfacesByNumber, n71_scanInterfaceConnection_ShortInput) {
    kc::shortInput(api, kNumber71);
}

// ---- getInterfaceLongName (position 57, number 73) ----

const kc::Case kGetInterfaceLongNameCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 57.1\"]", "[\"Pr\303\274fstand \342\202\254 57.1\"]",
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 57.2\"",
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 57.2\"",
     "130000005072c3bc667374616e6420e282ac2035372e31", "5072c3bc667374616e6420e282ac2035372e3100",
     "[\"Pr\303\274fstand \342\202\254 57.1\"]", "[\"Pr\303\274fstand \342\202\254 57.1\"]",
     "0113000000e697a5e69cace8aa9e20f09d849e2035372e32",
     "13000000e697a5e69cace8aa9e20f09d849e2035372e32", 0},
    {"sparse", "[\"\"]", "[\"\"]", "\"\"", "\"\"", "00000000", "00", "[\"\"]", "[\"\"]",
     "0100000000", "00000000", 0},
};

struct GetInterfaceLongNameExport {
    static constexpr const char* operation = "getInterfaceLongName";
    using Result = kc::TextResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kel_getInterfaceLongName(api, a0.get(), error, &out.data);
    }
};

TEST_F(Interfaces, getInterfaceLongName_Exchange) {
    kc::exchange<GetInterfaceLongNameExport>(api, kGetInterfaceLongNameCases);
}
TEST_F(Interfaces, getInterfaceLongName_Failure) {
    kc::failure<GetInterfaceLongNameExport>(api, kGetInterfaceLongNameCases);
}
TEST_F(InterfacesAdmission, getInterfaceLongName) {
    kc::admission<GetInterfaceLongNameExport>(callers(), kGetInterfaceLongNameCases,
                                              kc::Needs::Operator);
}

const char* const kGetInterfaceLongNameNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 57.1\\ud800\"]",
};
TEST_F(Interfaces, getInterfaceLongName_TextWithNoUtf8Form) {
    kc::noUtf8<GetInterfaceLongNameExport>(api, kGetInterfaceLongNameNoUtf8);
}

const kc::Number kNumber73{73, "getInterfaceLongName", kGetInterfaceLongNameCases};

TEST_F(InterfacesByNumber, n73_getInterfaceLongName_KelCall) { kc::kelCall(api, kNumber73); }
TEST_F(InterfacesByNumber, n73_getInterfaceLongName_PyCall) { kc::pyCall(api, kNumber73); }
TEST_F(InterfacesByNumber, n73_getInterfaceLongName_Failure) { kc::numberFailure(api, kNumber73); }
TEST_F(InterfacesByNumber, n73_getInterfaceLongName_ShortInput) { kc::shortInput(api, kNumber73); }

// ---- connectInterfaces (position 61, number 80) ----

const kc::Case kConnectInterfacesCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct ConnectInterfacesExport {
    static constexpr const char* operation = "connectInterfaces";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_connectInterfaces(api, error);
    }
};

TEST_F(Interfaces, connectInterfaces_Exchange) {
    kc::exchange<ConnectInterfacesExport>(api, kConnectInterfacesCases);
}
TEST_F(Interfaces, connectInterfaces_Failure) {
    kc::failure<ConnectInterfacesExport>(api, kConnectInterfacesCases);
}
TEST_F(InterfacesAdmission, connectInterfaces) {
    kc::admission<ConnectInterfacesExport>(callers(), kConnectInterfacesCases, kc::Needs::Operator);
}

const kc::Number kNumber80{80, "connectInterfaces", kConnectInterfacesCases};

TEST_F(InterfacesByNumber, n80_connectInterfaces_KelCall) { kc::kelCall(api, kNumber80); }
TEST_F(InterfacesByNumber, n80_connectInterfaces_PyCall) { kc::pyCall(api, kNumber80); }
TEST_F(InterfacesByNumber, n80_connectInterfaces_Failure) { kc::numberFailure(api, kNumber80); }

// ---- disconnectInterfaces (position 62, number 81) ----

const kc::Case kDisconnectInterfacesCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct DisconnectInterfacesExport {
    static constexpr const char* operation = "disconnectInterfaces";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_disconnectInterfaces(api, error);
    }
};

TEST_F(Interfaces, disconnectInterfaces_Exchange) {
    kc::exchange<DisconnectInterfacesExport>(api, kDisconnectInterfacesCases);
}
TEST_F(Interfaces, disconnectInterfaces_Failure) {
    kc::failure<DisconnectInterfacesExport>(api, kDisconnectInterfacesCases);
}
TEST_F(InterfacesAdmission, disconnectInterfaces) {
    kc::admission<DisconnectInterfacesExport>(callers(), kDisconnectInterfacesCases,
                                              kc::Needs::Operator);
}

const kc::Number kNumber81{81, "disconnectInterfaces", kDisconnectInterfacesCases};

TEST_F(InterfacesByNumber, n81_disconnectInterfaces_KelCall) { kc::kelCall(api, kNumber81); }
TEST_F(InterfacesByNumber, n81_disconnectInterfaces_PyCall) { kc::pyCall(api, kNumber81); }
TEST_F(InterfacesByNumber, n81_disconnectInterfaces_Failure) { kc::numberFailure(api, kNumber81); }

// ---- executeDoIPBroadcast (position 63, number 82) ----

const kc::Case kExecuteDoIPBroadcastCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct ExecuteDoIPBroadcastExport {
    static constexpr const char* operation = "executeDoIPBroadcast";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_executeDoIPBroadcast(api, error);
    }
};

TEST_F(Interfaces, executeDoIPBroadcast_Exchange) {
    kc::exchange<ExecuteDoIPBroadcastExport>(api, kExecuteDoIPBroadcastCases);
}
TEST_F(Interfaces, executeDoIPBroadcast_Failure) {
    kc::failure<ExecuteDoIPBroadcastExport>(api, kExecuteDoIPBroadcastCases);
}
TEST_F(InterfacesAdmission, executeDoIPBroadcast) {
    kc::admission<ExecuteDoIPBroadcastExport>(callers(), kExecuteDoIPBroadcastCases,
                                              kc::Needs::Operator);
}

const kc::Number kNumber82{82, "executeDoIPBroadcast", kExecuteDoIPBroadcastCases};

TEST_F(InterfacesByNumber, n82_executeDoIPBroadcast_KelCall) { kc::kelCall(api, kNumber82); }
TEST_F(InterfacesByNumber, n82_executeDoIPBroadcast_PyCall) { kc::pyCall(api, kNumber82); }
TEST_F(InterfacesByNumber, n82_executeDoIPBroadcast_Failure) { kc::numberFailure(api, kNumber82); }

// ---- releaseSocketBridge (position 68, number 93) ----

const kc::Case kReleaseSocketBridgeCases[] = {
    {"full", "[9223372036854775809]", "[9223372036854775809]", "null", nullptr, "0100000000000080",
     "0100000000000080", "[9223372036854775809]", "[9223372036854775809]", "01", "", 0},
};

struct ReleaseSocketBridgeExport {
    static constexpr const char* operation = "releaseSocketBridge";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_releaseSocketBridge(api, kc::number<uint64_t>(in[0]), error);
    }
};

TEST_F(Interfaces, releaseSocketBridge_Exchange) {
    kc::exchange<ReleaseSocketBridgeExport>(api, kReleaseSocketBridgeCases);
}
TEST_F(Interfaces, releaseSocketBridge_Failure) {
    kc::failure<ReleaseSocketBridgeExport>(api, kReleaseSocketBridgeCases);
}
TEST_F(InterfacesAdmission, releaseSocketBridge) {
    kc::admission<ReleaseSocketBridgeExport>(callers(), kReleaseSocketBridgeCases,
                                             kc::Needs::Operator);
}

const kc::Number kNumber93{93, "releaseSocketBridge", kReleaseSocketBridgeCases};

TEST_F(InterfacesByNumber, n93_releaseSocketBridge_KelCall) { kc::kelCall(api, kNumber93); }
TEST_F(InterfacesByNumber, n93_releaseSocketBridge_PyCall) { kc::pyCall(api, kNumber93); }
TEST_F(InterfacesByNumber, n93_releaseSocketBridge_Failure) { kc::numberFailure(api, kNumber93); }
TEST_F(InterfacesByNumber, n93_releaseSocketBridge_ShortInput) { kc::shortInput(api, kNumber93); }

// ---- createSocketBridge (position 69, number 92) ----

const kc::Case kCreateSocketBridgeCases[] = {
    {"full", "[4294967295,2147483648]", "[4294967295,2147483648]", "9223372036854775809",
     "9223372036854775809", "ffffffff00000080", "ffffffff00000080", "[4294967295,2147483648]",
     "[4294967295,2147483648]", "010100000000000080", "0100000000000080", 0},
};

struct CreateSocketBridgeExport {
    static constexpr const char* operation = "createSocketBridge";
    using Result = kc::ValueResult<uint64_t>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kel_createSocketBridge(api, kc::number<uint32_t>(in[0]), kc::number<uint32_t>(in[1]), error,
                               &out.data);
    }
};

TEST_F(Interfaces, createSocketBridge_Exchange) {
    kc::exchange<CreateSocketBridgeExport>(api, kCreateSocketBridgeCases);
}
TEST_F(Interfaces, createSocketBridge_Failure) {
    kc::failure<CreateSocketBridgeExport>(api, kCreateSocketBridgeCases);
}
TEST_F(InterfacesAdmission, createSocketBridge) {
    kc::admission<CreateSocketBridgeExport>(callers(), kCreateSocketBridgeCases,
                                            kc::Needs::Operator);
}

const kc::Number kNumber92{92, "createSocketBridge", kCreateSocketBridgeCases};

TEST_F(InterfacesByNumber, n92_createSocketBridge_KelCall) { kc::kelCall(api, kNumber92); }
TEST_F(InterfacesByNumber, n92_createSocketBridge_PyCall) { kc::pyCall(api, kNumber92); }
TEST_F(InterfacesByNumber, n92_createSocketBridge_Failure) { kc::numberFailure(api, kNumber92); }
TEST_F(InterfacesByNumber, n92_createSocketBridge_ShortInput) { kc::shortInput(api, kNumber92); }

// ---- clearLinkCache (position 82, number 107) ----

const kc::Case kClearLinkCacheCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct ClearLinkCacheExport {
    static constexpr const char* operation = "clearLinkCache";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_clearLinkCache(api, error);
    }
};

TEST_F(Interfaces, clearLinkCache_Exchange) {
    kc::exchange<ClearLinkCacheExport>(api, kClearLinkCacheCases);
}
TEST_F(Interfaces, clearLinkCache_Failure) {
    kc::failure<ClearLinkCacheExport>(api, kClearLinkCacheCases);
}
TEST_F(InterfacesAdmission, clearLinkCache) {
    kc::admission<ClearLinkCacheExport>(callers(), kClearLinkCacheCases, kc::Needs::Operator);
}

const kc::Number kNumber107{107, "clearLinkCache", kClearLinkCacheCases};

TEST_F(InterfacesByNumber, n107_clearLinkCache_KelCall) { kc::kelCall(api, kNumber107); }
TEST_F(InterfacesByNumber, n107_clearLinkCache_PyCall) { kc::pyCall(api, kNumber107); }
TEST_F(InterfacesByNumber, n107_clearLinkCache_Failure) { kc::numberFailure(api, kNumber107); }

// ---- addResource (position 83, number 109) ----

const kc::Case kAddResourceCases[] = {
    {"full",
     "[\"Pr\303\274fstand \342\202\254 83.1\",{\"itemText1\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 83.2\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 83"
     ".3\",\"itemText3\":\"say \\\"\303\251\\\" 83.4\",\"itemText4\":\"back\\\\slash \303\237 "
     "83.5\",\"id\":4294967295,\"pin\":2147483648,\"inUse\":128},65535]",
     "[\"Pr\303\274fstand \342\202\254 83.1\",{\"itemText1\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 83.2\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 83"
     ".3\",\"itemText3\":\"say \\\"\303\251\\\" 83.4\",\"itemText4\":\"back\\\\slash \303\237 "
     "83.5\",\"id\":4294967295,\"pin\":2147483648,\"inUse\":true},65535]",
     "null", nullptr,
     "130000005072c3bc667374616e6420e282ac2038332e3113000000e697a5e69cace8aa9e20f09d849e203833"
     "2e32110000004bc3bc686c657209f09f94a72038332e330d0000007361792022c3a9222038332e3412000000"
     "6261636b5c736c61736820c39f2038332e35ffffffff0000008001ffff",
     "5072c3bc667374616e6420e282ac2038332e310001e697a5e69cace8aa9e20f09d849e2038332e32004bc3bc"
     "686c657209f09f94a72038332e33007361792022c3a9222038332e34006261636b5c736c61736820c39f2038"
     "332e3500ffffffff0000008001ffff",
     "[\"Pr\303\274fstand \342\202\254 83.1\",{\"itemText1\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 83.2\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 83"
     ".3\",\"itemText3\":\"say \\\"\303\251\\\" 83.4\",\"itemText4\":\"back\\\\slash \303\237 "
     "83.5\",\"id\":4294967295,\"pin\":2147483648,\"inUse\":true},65535]",
     "[\"Pr\303\274fstand \342\202\254 83.1\",{\"itemText1\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 83.2\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 83"
     ".3\",\"itemText3\":\"say \\\"\303\251\\\" 83.4\",\"itemText4\":\"back\\\\slash \303\237 "
     "83.5\",\"id\":4294967295,\"pin\":2147483648,\"inUse\":true},65535]",
     "01", "", 0},
    {"sparse", "[\"\",null,65535]", "[\"\",null,65535]", "null", nullptr,
     "0000000000000000000000000000000000000000000000000000000000ffff", "0000ffff",
     "[\"\",{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"id"
     "\":0,\"pin\":0,\"inUse\":false},65535]",
     "[\"\",null,65535]", "01", "", 0},
};

struct AddResourceExport {
    static constexpr const char* operation = "addResource";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        static_cast<void>(out);
        kel_addResource(api, a0.get(), kc::record<ResourceInformation>(in[1]),
                        kc::number<uint16_t>(in[2]), error);
    }
};

TEST_F(Interfaces, addResource_Exchange) {
    kc::exchange<AddResourceExport>(api, kAddResourceCases);
}
TEST_F(Interfaces, addResource_Failure) { kc::failure<AddResourceExport>(api, kAddResourceCases); }
TEST_F(InterfacesAdmission, addResource) {
    kc::admission<AddResourceExport>(callers(), kAddResourceCases, kc::Needs::Administrator);
}

const char* const kAddResourceNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 83.1\\ud800\",{\"itemText1\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 83.2\",\"itemText2\":\"K\303\274hler\\t\360\237"
    "\224\247 83.3\",\"itemText3\":\"say \\\"\303\251\\\" 83.4\",\"itemText4\":\"back\\\\slas"
    "h \303\237 83.5\",\"id\":4294967295,\"pin\":2147483648,\"inUse\":128},65535]",
    "[\"Pr\303\274fstand \342\202\254 83.1\",{\"itemText1\":\"\\udc00\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 83.2\\ud800\",\"itemText2\":\"K\303\274hler\\t\360\237\224"
    "\247 83.3\",\"itemText3\":\"say \\\"\303\251\\\" 83.4\",\"itemText4\":\"back\\\\slash "
    "\303\237 83.5\",\"id\":4294967295,\"pin\":2147483648,\"inUse\":128},65535]",
    "[\"Pr\303\274fstand \342\202\254 83.1\",{\"itemText1\":\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 83.2\",\"itemText2\":\"\\udc00K\303\274hler\\t\360\237\224\247"
    " 83.3\\ud800\",\"itemText3\":\"say \\\"\303\251\\\" 83.4\",\"itemText4\":\"back\\\\slash"
    " \303\237 83.5\",\"id\":4294967295,\"pin\":2147483648,\"inUse\":128},65535]",
    "[\"Pr\303\274fstand \342\202\254 83.1\",{\"itemText1\":\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 83.2\",\"itemText2\":\"K\303\274hler\\t\360\237\224\247 83.3\""
    ",\"itemText3\":\"\\udc00say \\\"\303\251\\\" 83.4\\ud800\",\"itemText4\":\"back\\\\slash"
    " \303\237 83.5\",\"id\":4294967295,\"pin\":2147483648,\"inUse\":128},65535]",
    "[\"Pr\303\274fstand \342\202\254 83.1\",{\"itemText1\":\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 83.2\",\"itemText2\":\"K\303\274hler\\t\360\237\224\247 83.3\""
    ",\"itemText3\":\"say \\\"\303\251\\\" 83.4\",\"itemText4\":\"\\udc00back\\\\slash \303"
    "\237 83.5\\ud800\",\"id\":4294967295,\"pin\":2147483648,\"inUse\":128},65535]",
};
TEST_F(Interfaces, addResource_TextWithNoUtf8Form) {
    kc::noUtf8<AddResourceExport>(api, kAddResourceNoUtf8);
}

const kc::Number kNumber109{109, "addResource", kAddResourceCases};

TEST_F(InterfacesByNumber, n109_addResource_KelCall) { kc::kelCall(api, kNumber109); }
TEST_F(InterfacesByNumber, n109_addResource_PyCall) { kc::pyCall(api, kNumber109); }
TEST_F(InterfacesByNumber, n109_addResource_Failure) { kc::numberFailure(api, kNumber109); }
TEST_F(InterfacesByNumber, n109_addResource_ShortInput) { kc::shortInput(api, kNumber109); }

// ---- removeInterface (position 84, number 110) ----

const kc::Case kRemoveInterfaceCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 84.1\"]", "[\"Pr\303\274fstand \342\202\254 84.1\"]",
     "null", nullptr, "130000005072c3bc667374616e6420e282ac2038342e31",
     "5072c3bc667374616e6420e282ac2038342e3100", "[\"Pr\303\274fstand \342\202\254 84.1\"]",
     "[\"Pr\303\274fstand \342\202\254 84.1\"]", "01", "", 0},
    {"sparse", "[\"\"]", "[\"\"]", "null", nullptr, "00000000", "00", "[\"\"]", "[\"\"]", "01", "",
     0},
};

struct RemoveInterfaceExport {
    static constexpr const char* operation = "removeInterface";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        static_cast<void>(out);
        kel_removeInterface(api, a0.get(), error);
    }
};

TEST_F(Interfaces, removeInterface_Exchange) {
    kc::exchange<RemoveInterfaceExport>(api, kRemoveInterfaceCases);
}
TEST_F(Interfaces, removeInterface_Failure) {
    kc::failure<RemoveInterfaceExport>(api, kRemoveInterfaceCases);
}
TEST_F(InterfacesAdmission, removeInterface) {
    kc::admission<RemoveInterfaceExport>(callers(), kRemoveInterfaceCases,
                                         kc::Needs::Administrator);
}

const char* const kRemoveInterfaceNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 84.1\\ud800\"]",
};
TEST_F(Interfaces, removeInterface_TextWithNoUtf8Form) {
    kc::noUtf8<RemoveInterfaceExport>(api, kRemoveInterfaceNoUtf8);
}

const kc::Number kNumber110{110, "removeInterface", kRemoveInterfaceCases};

TEST_F(InterfacesByNumber, n110_removeInterface_KelCall) { kc::kelCall(api, kNumber110); }
TEST_F(InterfacesByNumber, n110_removeInterface_PyCall) { kc::pyCall(api, kNumber110); }
TEST_F(InterfacesByNumber, n110_removeInterface_Failure) { kc::numberFailure(api, kNumber110); }
TEST_F(InterfacesByNumber, n110_removeInterface_ShortInput) { kc::shortInput(api, kNumber110); }

// ---- addInterface (position 85, number 108) ----

const kc::Case kAddInterfaceCases[] = {
    {"full",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 85.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 85.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 85.3\",\"itemText4\":\"say \\\"\303\251\\\" 85.4\",\"resources\":[{\"itemTe"
     "xt1\":\"back\\\\slash \303\237 85.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 85"
     ".6\",\"itemText3\":\"Pr\303\274fstand \342\202\254 85.7\",\"itemText4\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 85.8\",\"id\":4294967295,\"pin\":2147483648,\""
     "inUse\":128},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 85.9\",\"itemText2\":"
     "\"say \\\"\303\251\\\" 85.10\",\"itemText3\":\"back\\\\slash \303\237 85.11\",\"itemText"
     "4\":\"Z\303\274ndung \360\237\232\227 85.12\",\"id\":2147483647,\"pin\":1524299097,\"inU"
     "se\":0}],\"flag1\":255,\"flag2\":0,\"text1\":\"Pr\303\274fstand \342\202\254 85.13\",\"t"
     "ext2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.14\",\"flag3\":2,\"ite"
     "ms\":[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 85.15\",\"itemText2\":\"say "
     "\\\"\303\251\\\" 85.16\",\"itemText3\":\"back\\\\slash \303\237 85.17\",\"itemText4\":\""
     "Z\303\274ndung \360\237\232\227 85.18\"},{\"itemText1\":\"Pr\303\274fstand \342\202\254 "
     "85.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.20\",\""
     "itemText3\":\"K\303\274hler\\u0009\360\237\224\247 85.21\",\"itemText4\":\"say \\\"\303"
     "\251\\\" 85.22\"}],\"value\":9223372036854775809},\"back\\\\slash \303\237 85.23\",\"Z"
     "\303\274ndung \360\237\232\227 85.24\",\"Pr\303\274fstand \342\202\254 85.25\"]",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 85.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 85.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 85.3\",\"itemText4\":\"say \\\"\303\251\\\" 85.4\",\"resources\":[{\"itemTe"
     "xt1\":\"back\\\\slash \303\237 85.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 85"
     ".6\",\"itemText3\":\"Pr\303\274fstand \342\202\254 85.7\",\"itemText4\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 85.8\",\"id\":4294967295,\"pin\":2147483648,\""
     "inUse\":true},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 85.9\",\"itemText2\""
     ":\"say \\\"\303\251\\\" 85.10\",\"itemText3\":\"back\\\\slash \303\237 85.11\",\"itemTex"
     "t4\":\"Z\303\274ndung \360\237\232\227 85.12\",\"id\":2147483647,\"pin\":1524299097,\"in"
     "Use\":false}],\"flag1\":true,\"flag2\":false,\"text1\":\"Pr\303\274fstand \342\202\254 8"
     "5.13\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.14\",\"flag3"
     "\":true,\"items\":[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 85.15\",\"itemT"
     "ext2\":\"say \\\"\303\251\\\" 85.16\",\"itemText3\":\"back\\\\slash \303\237 85.17\",\"i"
     "temText4\":\"Z\303\274ndung \360\237\232\227 85.18\"},{\"itemText1\":\"Pr\303\274fstand "
     "\342\202\254 85.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 85.20\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 85.21\",\"itemText4\":"
     "\"say \\\"\303\251\\\" 85.22\"}],\"value\":9223372036854775809},\"back\\\\slash \303\237"
     " 85.23\",\"Z\303\274ndung \360\237\232\227 85.24\",\"Pr\303\274fstand \342\202\254 85.25"
     "\"]",
     "{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.26\",\"itemTex"
     "t2\":\"K\303\274hler\\u0009\360\237\224\247 85.27\",\"itemText3\":\"say \\\"\303\251\\\""
     " 85.28\",\"itemText4\":\"back\\\\slash \303\237 85.29\",\"resources\":[{\"itemText1\":\""
     "Z\303\274ndung \360\237\232\227 85.30\",\"itemText2\":\"Pr\303\274fstand \342\202\254 85"
     ".31\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.32\",\"it"
     "emText4\":\"K\303\274hler\\u0009\360\237\224\247 85.33\",\"id\":2031251211,\"pin\":39071"
     "9679,\"inUse\":false},{\"itemText1\":\"say \\\"\303\251\\\" 85.34\",\"itemText2\":\"back"
     "\\\\slash \303\237 85.35\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 85.36\",\"ite"
     "mText4\":\"Pr\303\274fstand \342\202\254 85.37\",\"id\":897671793,\"pin\":1404623907,\"i"
     "nUse\":true}],\"flag1\":false,\"flag2\":true,\"text1\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 85.38\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 85.39"
     "\",\"flag3\":false,\"items\":[{\"itemText1\":\"say \\\"\303\251\\\" 85.40\",\"itemText2"
     "\":\"back\\\\slash \303\237 85.41\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 85.4"
     "2\",\"itemText4\":\"Pr\303\274fstand \342\202\254 85.43\"},{\"itemText1\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 85.44\",\"itemText2\":\"K\303\274hler\\u0009"
     "\360\237\224\247 85.45\",\"itemText3\":\"say \\\"\303\251\\\" 85.46\",\"itemText4\":\"ba"
     "ck\\\\slash \303\237 85.47\"}],\"value\":18446744073709551615}",
     "{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.26\",\"itemTex"
     "t2\":\"K\303\274hler\\u0009\360\237\224\247 85.27\",\"itemText3\":\"say \\\"\303\251\\\""
     " 85.28\",\"itemText4\":\"back\\\\slash \303\237 85.29\",\"resources\":[{\"itemText1\":\""
     "Z\303\274ndung \360\237\232\227 85.30\",\"itemText2\":\"Pr\303\274fstand \342\202\254 85"
     ".31\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.32\",\"it"
     "emText4\":\"K\303\274hler\\u0009\360\237\224\247 85.33\",\"id\":2031251211,\"pin\":39071"
     "9679,\"inUse\":0},{\"itemText1\":\"say \\\"\303\251\\\" 85.34\",\"itemText2\":\"back\\\\"
     "slash \303\237 85.35\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 85.36\",\"itemTex"
     "t4\":\"Pr\303\274fstand \342\202\254 85.37\",\"id\":897671793,\"pin\":1404623907,\"inUse"
     "\":1}],\"resourceCount\":2,\"flag1\":0,\"flag2\":1,\"text1\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 85.38\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 8"
     "5.39\",\"flag3\":0,\"items\":[{\"itemText1\":\"say \\\"\303\251\\\" 85.40\",\"itemText2"
     "\":\"back\\\\slash \303\237 85.41\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 85.4"
     "2\",\"itemText4\":\"Pr\303\274fstand \342\202\254 85.43\"},{\"itemText1\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 85.44\",\"itemText2\":\"K\303\274hler\\u0009"
     "\360\237\224\247 85.45\",\"itemText3\":\"say \\\"\303\251\\\" 85.46\",\"itemText4\":\"ba"
     "ck\\\\slash \303\237 85.47\"}],\"itemCount\":2,\"value\":18446744073709551615}",
     "130000005072c3bc667374616e6420e282ac2038352e3113000000e697a5e69cace8aa9e20f09d849e203835"
     "2e32110000004bc3bc686c657209f09f94a72038352e330d0000007361792022c3a9222038352e3402000000"
     "120000006261636b5c736c61736820c39f2038352e35120000005ac3bc6e64756e6720f09f9a972038352e36"
     "130000005072c3bc667374616e6420e282ac2038352e3713000000e697a5e69cace8aa9e20f09d849e203835"
     "2e38ffffffff0000008001110000004bc3bc686c657209f09f94a72038352e390e0000007361792022c3a922"
     "2038352e3130130000006261636b5c736c61736820c39f2038352e3131130000005ac3bc6e64756e6720f09f"
     "9a972038352e3132ffffff7f59f5da5a000100140000005072c3bc667374616e6420e282ac2038352e313314"
     "000000e697a5e69cace8aa9e20f09d849e2038352e31340102000000120000004bc3bc686c657209f09f94a7"
     "2038352e31350e0000007361792022c3a9222038352e3136130000006261636b5c736c61736820c39f203835"
     "2e3137130000005ac3bc6e64756e6720f09f9a972038352e3138140000005072c3bc667374616e6420e282ac"
     "2038352e313914000000e697a5e69cace8aa9e20f09d849e2038352e3230120000004bc3bc686c657209f09f"
     "94a72038352e32310e0000007361792022c3a9222038352e32320100000000000080130000006261636b5c73"
     "6c61736820c39f2038352e3233130000005ac3bc6e64756e6720f09f9a972038352e3234140000005072c3bc"
     "667374616e6420e282ac2038352e3235",
     "015072c3bc667374616e6420e282ac2038352e3100e697a5e69cace8aa9e20f09d849e2038352e32004bc3bc"
     "686c657209f09f94a72038352e33007361792022c3a9222038352e340002000000016261636b5c736c617368"
     "20c39f2038352e35005ac3bc6e64756e6720f09f9a972038352e36005072c3bc667374616e6420e282ac2038"
     "352e3700e697a5e69cace8aa9e20f09d849e2038352e3800ffffffff0000008001014bc3bc686c657209f09f"
     "94a72038352e39007361792022c3a9222038352e3130006261636b5c736c61736820c39f2038352e3131005a"
     "c3bc6e64756e6720f09f9a972038352e313200ffffff7f59f5da5a0001005072c3bc667374616e6420e282ac"
     "2038352e313300e697a5e69cace8aa9e20f09d849e2038352e3134000102000000014bc3bc686c657209f09f"
     "94a72038352e3135007361792022c3a9222038352e3136006261636b5c736c61736820c39f2038352e313700"
     "5ac3bc6e64756e6720f09f9a972038352e313800015072c3bc667374616e6420e282ac2038352e313900e697"
     "a5e69cace8aa9e20f09d849e2038352e3230004bc3bc686c657209f09f94a72038352e3231007361792022c3"
     "a9222038352e32320001000000000000806261636b5c736c61736820c39f2038352e3233005ac3bc6e64756e"
     "6720f09f9a972038352e3234005072c3bc667374616e6420e282ac2038352e323500",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 85.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 85.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 85.3\",\"itemText4\":\"say \\\"\303\251\\\" 85.4\",\"resources\":[{\"itemTe"
     "xt1\":\"back\\\\slash \303\237 85.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 85"
     ".6\",\"itemText3\":\"Pr\303\274fstand \342\202\254 85.7\",\"itemText4\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 85.8\",\"id\":4294967295,\"pin\":2147483648,\""
     "inUse\":true},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 85.9\",\"itemText2\""
     ":\"say \\\"\303\251\\\" 85.10\",\"itemText3\":\"back\\\\slash \303\237 85.11\",\"itemTex"
     "t4\":\"Z\303\274ndung \360\237\232\227 85.12\",\"id\":2147483647,\"pin\":1524299097,\"in"
     "Use\":false}],\"flag1\":true,\"flag2\":false,\"text1\":\"Pr\303\274fstand \342\202\254 8"
     "5.13\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.14\",\"flag3"
     "\":true,\"items\":[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 85.15\",\"itemT"
     "ext2\":\"say \\\"\303\251\\\" 85.16\",\"itemText3\":\"back\\\\slash \303\237 85.17\",\"i"
     "temText4\":\"Z\303\274ndung \360\237\232\227 85.18\"},{\"itemText1\":\"Pr\303\274fstand "
     "\342\202\254 85.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 85.20\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 85.21\",\"itemText4\":"
     "\"say \\\"\303\251\\\" 85.22\"}],\"value\":9223372036854775809},\"back\\\\slash \303\237"
     " 85.23\",\"Z\303\274ndung \360\237\232\227 85.24\",\"Pr\303\274fstand \342\202\254 85.25"
     "\"]",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 85.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 85.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 85.3\",\"itemText4\":\"say \\\"\303\251\\\" 85.4\",\"resources\":[{\"itemTe"
     "xt1\":\"back\\\\slash \303\237 85.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 85"
     ".6\",\"itemText3\":\"Pr\303\274fstand \342\202\254 85.7\",\"itemText4\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 85.8\",\"id\":4294967295,\"pin\":2147483648,\""
     "inUse\":true},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 85.9\",\"itemText2\""
     ":\"say \\\"\303\251\\\" 85.10\",\"itemText3\":\"back\\\\slash \303\237 85.11\",\"itemTex"
     "t4\":\"Z\303\274ndung \360\237\232\227 85.12\",\"id\":2147483647,\"pin\":1524299097,\"in"
     "Use\":false}],\"flag1\":true,\"flag2\":false,\"text1\":\"Pr\303\274fstand \342\202\254 8"
     "5.13\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.14\",\"flag3"
     "\":true,\"items\":[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 85.15\",\"itemT"
     "ext2\":\"say \\\"\303\251\\\" 85.16\",\"itemText3\":\"back\\\\slash \303\237 85.17\",\"i"
     "temText4\":\"Z\303\274ndung \360\237\232\227 85.18\"},{\"itemText1\":\"Pr\303\274fstand "
     "\342\202\254 85.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 85.20\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 85.21\",\"itemText4\":"
     "\"say \\\"\303\251\\\" 85.22\"}],\"value\":9223372036854775809},\"back\\\\slash \303\237"
     " 85.23\",\"Z\303\274ndung \360\237\232\227 85.24\",\"Pr\303\274fstand \342\202\254 85.25"
     "\"]",
     "010114000000e697a5e69cace8aa9e20f09d849e2038352e3236120000004bc3bc686c657209f09f94a72038"
     "352e32370e0000007361792022c3a9222038352e3238130000006261636b5c736c61736820c39f2038352e32"
     "390200000001130000005ac3bc6e64756e6720f09f9a972038352e3330140000005072c3bc667374616e6420"
     "e282ac2038352e333114000000e697a5e69cace8aa9e20f09d849e2038352e3332120000004bc3bc686c6572"
     "09f09f94a72038352e33330b6f1279bfe8491700010e0000007361792022c3a9222038352e33341300000062"
     "61636b5c736c61736820c39f2038352e3335130000005ac3bc6e64756e6720f09f9a972038352e3336140000"
     "005072c3bc667374616e6420e282ac2038352e33377162813523dcb85301000114000000e697a5e69cace8aa"
     "9e20f09d849e2038352e3338120000004bc3bc686c657209f09f94a72038352e33390002000000010e000000"
     "7361792022c3a9222038352e3430130000006261636b5c736c61736820c39f2038352e3431130000005ac3bc"
     "6e64756e6720f09f9a972038352e3432140000005072c3bc667374616e6420e282ac2038352e343301140000"
     "00e697a5e69cace8aa9e20f09d849e2038352e3434120000004bc3bc686c657209f09f94a72038352e34350e"
     "0000007361792022c3a9222038352e3436130000006261636b5c736c61736820c39f2038352e3437ffffffff"
     "ffffffff",
     "0114000000e697a5e69cace8aa9e20f09d849e2038352e3236120000004bc3bc686c657209f09f94a7203835"
     "2e32370e0000007361792022c3a9222038352e3238130000006261636b5c736c61736820c39f2038352e3239"
     "0200000001130000005ac3bc6e64756e6720f09f9a972038352e3330140000005072c3bc667374616e6420e2"
     "82ac2038352e333114000000e697a5e69cace8aa9e20f09d849e2038352e3332120000004bc3bc686c657209"
     "f09f94a72038352e33330b6f1279bfe8491700010e0000007361792022c3a9222038352e3334130000006261"
     "636b5c736c61736820c39f2038352e3335130000005ac3bc6e64756e6720f09f9a972038352e333614000000"
     "5072c3bc667374616e6420e282ac2038352e33377162813523dcb85301000114000000e697a5e69cace8aa9e"
     "20f09d849e2038352e3338120000004bc3bc686c657209f09f94a72038352e33390002000000010e00000073"
     "61792022c3a9222038352e3430130000006261636b5c736c61736820c39f2038352e3431130000005ac3bc6e"
     "64756e6720f09f9a972038352e3432140000005072c3bc667374616e6420e282ac2038352e34330114000000"
     "e697a5e69cace8aa9e20f09d849e2038352e3434120000004bc3bc686c657209f09f94a72038352e34350e00"
     "00007361792022c3a9222038352e3436130000006261636b5c736c61736820c39f2038352e3437ffffffffff"
     "ffffff",
     0},
    {"sparse", "[null,\"\",\"\",\"\"]", "[null,\"\",\"\",\"\"]",
     "{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"resources"
     "\":[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"id\":"
     "4294967295,\"pin\":2147483648,\"inUse\":true}],\"flag1\":false,\"flag2\":true,\"text1\":"
     "\"\",\"text2\":\"\",\"flag3\":false,\"items\":[{\"itemText1\":\"\",\"itemText2\":\"\",\""
     "itemText3\":\"\",\"itemText4\":\"\"}],\"value\":9223372036854775809}",
     "{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"resources"
     "\":[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"id\":"
     "4294967295,\"pin\":2147483648,\"inUse\":1}],\"resourceCount\":1,\"flag1\":0,\"flag2\":1,"
     "\"text1\":\"\",\"text2\":\"\",\"flag3\":0,\"items\":[{\"itemText1\":\"\",\"itemText2\":"
     "\"\",\"itemText3\":\"\",\"itemText4\":\"\"}],\"itemCount\":1,\"value\":92233720368547758"
     "09}",
     "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
     "0000000000000000000000",
     "00000000",
     "[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"resource"
     "s\":[],\"flag1\":false,\"flag2\":false,\"text1\":\"\",\"text2\":\"\",\"flag3\":false,\"i"
     "tems\":[],\"value\":0},\"\",\"\",\"\"]",
     "[null,\"\",\"\",\"\"]",
     "010100000000000000000000000000000000010000000100000000000000000000000000000000ffffffff00"
     "0000800100010000000000000000000100000001000000000000000000000000000000000100000000000080",
     "0100000000000000000000000000000000010000000100000000000000000000000000000000ffffffff0000"
     "00800100010000000000000000000100000001000000000000000000000000000000000100000000000080",
     0},
    {"empty", "[null,\"\",\"\",\"\"]", "[null,\"\",\"\",\"\"]", "null", "null",
     "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
     "0000000000000000000000",
     "00000000",
     "[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"resource"
     "s\":[],\"flag1\":false,\"flag2\":false,\"text1\":\"\",\"text2\":\"\",\"flag3\":false,\"i"
     "tems\":[],\"value\":0},\"\",\"\",\"\"]",
     "[null,\"\",\"\",\"\"]", "0100", "00", 0},
};

struct AddInterfaceExport {
    static constexpr const char* operation = "addInterface";
    using Result = kc::RecordResult<InterfaceInformation, release_InterfaceInformation>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a1(in[1]);
        const kc::Text a2(in[2]);
        const kc::Text a3(in[3]);
        kel_addInterface(api, kc::record<InterfaceInformation>(in[0]), a1.get(), a2.get(), a3.get(),
                         error, &out.data);
    }
};

TEST_F(Interfaces, addInterface_Exchange) {
    kc::exchange<AddInterfaceExport>(api, kAddInterfaceCases);
}
TEST_F(Interfaces, addInterface_Failure) {
    kc::failure<AddInterfaceExport>(api, kAddInterfaceCases);
}
TEST_F(InterfacesAdmission, addInterface) {
    kc::admission<AddInterfaceExport>(callers(), kAddInterfaceCases, kc::Needs::Administrator);
}

const char* const kAddInterfaceNoUtf8[] = {
    "[{\"itemText1\":\"\\udc00Pr\303\274fstand \342\202\254 85.1\\ud800\",\"itemText2\":\""
    "\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.2\",\"itemText3\":\"K\303\274hl"
    "er\\t\360\237\224\247 85.3\",\"itemText4\":\"say \\\"\303\251\\\" 85.4\",\"resources\":["
    "{\"itemText1\":\"back\\\\slash \303\237 85.5\",\"itemText2\":\"Z\303\274ndung \360\237"
    "\232\227 85.6\",\"itemText3\":\"Pr\303\274fstand \342\202\254 85.7\",\"itemText4\":\""
    "\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.8\",\"id\":4294967295,\"pin\":2"
    "147483648,\"inUse\":128},{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.9\",\"item"
    "Text2\":\"say \\\"\303\251\\\" 85.10\",\"itemText3\":\"back\\\\slash \303\237 85.11\",\""
    "itemText4\":\"Z\303\274ndung \360\237\232\227 85.12\",\"id\":2147483647,\"pin\":15242990"
    "97,\"inUse\":0}],\"flag1\":255,\"flag2\":0,\"text1\":\"Pr\303\274fstand \342\202\254 85."
    "13\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.14\",\"flag3\""
    ":2,\"items\":[{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.15\",\"itemText2\":\""
    "say \\\"\303\251\\\" 85.16\",\"itemText3\":\"back\\\\slash \303\237 85.17\",\"itemText4"
    "\":\"Z\303\274ndung \360\237\232\227 85.18\"},{\"itemText1\":\"Pr\303\274fstand \342\202"
    "\254 85.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.20"
    "\",\"itemText3\":\"K\303\274hler\\t\360\237\224\247 85.21\",\"itemText4\":\"say \\\"\303"
    "\251\\\" 85.22\"}],\"value\":9223372036854775809},\"back\\\\slash \303\237 85.23\",\"Z"
    "\303\274ndung \360\237\232\227 85.24\",\"Pr\303\274fstand \342\202\254 85.25\"]",
    "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 85.1\",\"itemText2\":\"\\udc00\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 85.2\\ud800\",\"itemText3\":\"K\303\274hle"
    "r\\t\360\237\224\247 85.3\",\"itemText4\":\"say \\\"\303\251\\\" 85.4\",\"resources\":[{"
    "\"itemText1\":\"back\\\\slash \303\237 85.5\",\"itemText2\":\"Z\303\274ndung \360\237"
    "\232\227 85.6\",\"itemText3\":\"Pr\303\274fstand \342\202\254 85.7\",\"itemText4\":\""
    "\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.8\",\"id\":4294967295,\"pin\":2"
    "147483648,\"inUse\":128},{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.9\",\"item"
    "Text2\":\"say \\\"\303\251\\\" 85.10\",\"itemText3\":\"back\\\\slash \303\237 85.11\",\""
    "itemText4\":\"Z\303\274ndung \360\237\232\227 85.12\",\"id\":2147483647,\"pin\":15242990"
    "97,\"inUse\":0}],\"flag1\":255,\"flag2\":0,\"text1\":\"Pr\303\274fstand \342\202\254 85."
    "13\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.14\",\"flag3\""
    ":2,\"items\":[{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.15\",\"itemText2\":\""
    "say \\\"\303\251\\\" 85.16\",\"itemText3\":\"back\\\\slash \303\237 85.17\",\"itemText4"
    "\":\"Z\303\274ndung \360\237\232\227 85.18\"},{\"itemText1\":\"Pr\303\274fstand \342\202"
    "\254 85.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.20"
    "\",\"itemText3\":\"K\303\274hler\\t\360\237\224\247 85.21\",\"itemText4\":\"say \\\"\303"
    "\251\\\" 85.22\"}],\"value\":9223372036854775809},\"back\\\\slash \303\237 85.23\",\"Z"
    "\303\274ndung \360\237\232\227 85.24\",\"Pr\303\274fstand \342\202\254 85.25\"]",
    "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 85.1\",\"itemText2\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 85.2\",\"itemText3\":\"\\udc00K\303\274hler\\t\360"
    "\237\224\247 85.3\\ud800\",\"itemText4\":\"say \\\"\303\251\\\" 85.4\",\"resources\":[{"
    "\"itemText1\":\"back\\\\slash \303\237 85.5\",\"itemText2\":\"Z\303\274ndung \360\237"
    "\232\227 85.6\",\"itemText3\":\"Pr\303\274fstand \342\202\254 85.7\",\"itemText4\":\""
    "\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.8\",\"id\":4294967295,\"pin\":2"
    "147483648,\"inUse\":128},{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.9\",\"item"
    "Text2\":\"say \\\"\303\251\\\" 85.10\",\"itemText3\":\"back\\\\slash \303\237 85.11\",\""
    "itemText4\":\"Z\303\274ndung \360\237\232\227 85.12\",\"id\":2147483647,\"pin\":15242990"
    "97,\"inUse\":0}],\"flag1\":255,\"flag2\":0,\"text1\":\"Pr\303\274fstand \342\202\254 85."
    "13\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.14\",\"flag3\""
    ":2,\"items\":[{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.15\",\"itemText2\":\""
    "say \\\"\303\251\\\" 85.16\",\"itemText3\":\"back\\\\slash \303\237 85.17\",\"itemText4"
    "\":\"Z\303\274ndung \360\237\232\227 85.18\"},{\"itemText1\":\"Pr\303\274fstand \342\202"
    "\254 85.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.20"
    "\",\"itemText3\":\"K\303\274hler\\t\360\237\224\247 85.21\",\"itemText4\":\"say \\\"\303"
    "\251\\\" 85.22\"}],\"value\":9223372036854775809},\"back\\\\slash \303\237 85.23\",\"Z"
    "\303\274ndung \360\237\232\227 85.24\",\"Pr\303\274fstand \342\202\254 85.25\"]",
    "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 85.1\",\"itemText2\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 85.2\",\"itemText3\":\"K\303\274hler\\t\360\237"
    "\224\247 85.3\",\"itemText4\":\"\\udc00say \\\"\303\251\\\" 85.4\\ud800\",\"resources\":"
    "[{\"itemText1\":\"back\\\\slash \303\237 85.5\",\"itemText2\":\"Z\303\274ndung \360\237"
    "\232\227 85.6\",\"itemText3\":\"Pr\303\274fstand \342\202\254 85.7\",\"itemText4\":\""
    "\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.8\",\"id\":4294967295,\"pin\":2"
    "147483648,\"inUse\":128},{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.9\",\"item"
    "Text2\":\"say \\\"\303\251\\\" 85.10\",\"itemText3\":\"back\\\\slash \303\237 85.11\",\""
    "itemText4\":\"Z\303\274ndung \360\237\232\227 85.12\",\"id\":2147483647,\"pin\":15242990"
    "97,\"inUse\":0}],\"flag1\":255,\"flag2\":0,\"text1\":\"Pr\303\274fstand \342\202\254 85."
    "13\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.14\",\"flag3\""
    ":2,\"items\":[{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.15\",\"itemText2\":\""
    "say \\\"\303\251\\\" 85.16\",\"itemText3\":\"back\\\\slash \303\237 85.17\",\"itemText4"
    "\":\"Z\303\274ndung \360\237\232\227 85.18\"},{\"itemText1\":\"Pr\303\274fstand \342\202"
    "\254 85.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.20"
    "\",\"itemText3\":\"K\303\274hler\\t\360\237\224\247 85.21\",\"itemText4\":\"say \\\"\303"
    "\251\\\" 85.22\"}],\"value\":9223372036854775809},\"back\\\\slash \303\237 85.23\",\"Z"
    "\303\274ndung \360\237\232\227 85.24\",\"Pr\303\274fstand \342\202\254 85.25\"]",
    "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 85.1\",\"itemText2\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 85.2\",\"itemText3\":\"K\303\274hler\\t\360\237"
    "\224\247 85.3\",\"itemText4\":\"say \\\"\303\251\\\" 85.4\",\"resources\":[{\"itemText1"
    "\":\"back\\\\slash \303\237 85.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 85.6"
    "\",\"itemText3\":\"Pr\303\274fstand \342\202\254 85.7\",\"itemText4\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 85.8\",\"id\":4294967295,\"pin\":2147483648,\"inUs"
    "e\":128},{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.9\",\"itemText2\":\"say \\"
    "\"\303\251\\\" 85.10\",\"itemText3\":\"back\\\\slash \303\237 85.11\",\"itemText4\":\"Z"
    "\303\274ndung \360\237\232\227 85.12\",\"id\":2147483647,\"pin\":1524299097,\"inUse\":0}"
    "],\"flag1\":255,\"flag2\":0,\"text1\":\"\\udc00Pr\303\274fstand \342\202\254 85.13\\ud80"
    "0\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.14\",\"flag3\":"
    "2,\"items\":[{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.15\",\"itemText2\":\"s"
    "ay \\\"\303\251\\\" 85.16\",\"itemText3\":\"back\\\\slash \303\237 85.17\",\"itemText4\""
    ":\"Z\303\274ndung \360\237\232\227 85.18\"},{\"itemText1\":\"Pr\303\274fstand \342\202"
    "\254 85.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.20"
    "\",\"itemText3\":\"K\303\274hler\\t\360\237\224\247 85.21\",\"itemText4\":\"say \\\"\303"
    "\251\\\" 85.22\"}],\"value\":9223372036854775809},\"back\\\\slash \303\237 85.23\",\"Z"
    "\303\274ndung \360\237\232\227 85.24\",\"Pr\303\274fstand \342\202\254 85.25\"]",
    "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 85.1\",\"itemText2\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 85.2\",\"itemText3\":\"K\303\274hler\\t\360\237"
    "\224\247 85.3\",\"itemText4\":\"say \\\"\303\251\\\" 85.4\",\"resources\":[{\"itemText1"
    "\":\"back\\\\slash \303\237 85.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 85.6"
    "\",\"itemText3\":\"Pr\303\274fstand \342\202\254 85.7\",\"itemText4\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 85.8\",\"id\":4294967295,\"pin\":2147483648,\"inUs"
    "e\":128},{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.9\",\"itemText2\":\"say \\"
    "\"\303\251\\\" 85.10\",\"itemText3\":\"back\\\\slash \303\237 85.11\",\"itemText4\":\"Z"
    "\303\274ndung \360\237\232\227 85.12\",\"id\":2147483647,\"pin\":1524299097,\"inUse\":0}"
    "],\"flag1\":255,\"flag2\":0,\"text1\":\"Pr\303\274fstand \342\202\254 85.13\",\"text2\":"
    "\"\\udc00\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.14\\ud800\",\"flag3\":"
    "2,\"items\":[{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.15\",\"itemText2\":\"s"
    "ay \\\"\303\251\\\" 85.16\",\"itemText3\":\"back\\\\slash \303\237 85.17\",\"itemText4\""
    ":\"Z\303\274ndung \360\237\232\227 85.18\"},{\"itemText1\":\"Pr\303\274fstand \342\202"
    "\254 85.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.20"
    "\",\"itemText3\":\"K\303\274hler\\t\360\237\224\247 85.21\",\"itemText4\":\"say \\\"\303"
    "\251\\\" 85.22\"}],\"value\":9223372036854775809},\"back\\\\slash \303\237 85.23\",\"Z"
    "\303\274ndung \360\237\232\227 85.24\",\"Pr\303\274fstand \342\202\254 85.25\"]",
    "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 85.1\",\"itemText2\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 85.2\",\"itemText3\":\"K\303\274hler\\t\360\237"
    "\224\247 85.3\",\"itemText4\":\"say \\\"\303\251\\\" 85.4\",\"resources\":[{\"itemText1"
    "\":\"back\\\\slash \303\237 85.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 85.6"
    "\",\"itemText3\":\"Pr\303\274fstand \342\202\254 85.7\",\"itemText4\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 85.8\",\"id\":4294967295,\"pin\":2147483648,\"inUs"
    "e\":128},{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.9\",\"itemText2\":\"say \\"
    "\"\303\251\\\" 85.10\",\"itemText3\":\"back\\\\slash \303\237 85.11\",\"itemText4\":\"Z"
    "\303\274ndung \360\237\232\227 85.12\",\"id\":2147483647,\"pin\":1524299097,\"inUse\":0}"
    "],\"flag1\":255,\"flag2\":0,\"text1\":\"Pr\303\274fstand \342\202\254 85.13\",\"text2\":"
    "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.14\",\"flag3\":2,\"items\":[{"
    "\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.15\",\"itemText2\":\"say \\\"\303"
    "\251\\\" 85.16\",\"itemText3\":\"back\\\\slash \303\237 85.17\",\"itemText4\":\"Z\303"
    "\274ndung \360\237\232\227 85.18\"},{\"itemText1\":\"Pr\303\274fstand \342\202\254 85.19"
    "\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.20\",\"itemT"
    "ext3\":\"K\303\274hler\\t\360\237\224\247 85.21\",\"itemText4\":\"say \\\"\303\251\\\" 8"
    "5.22\"}],\"value\":9223372036854775809},\"\\udc00back\\\\slash \303\237 85.23\\ud800\","
    "\"Z\303\274ndung \360\237\232\227 85.24\",\"Pr\303\274fstand \342\202\254 85.25\"]",
    "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 85.1\",\"itemText2\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 85.2\",\"itemText3\":\"K\303\274hler\\t\360\237"
    "\224\247 85.3\",\"itemText4\":\"say \\\"\303\251\\\" 85.4\",\"resources\":[{\"itemText1"
    "\":\"back\\\\slash \303\237 85.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 85.6"
    "\",\"itemText3\":\"Pr\303\274fstand \342\202\254 85.7\",\"itemText4\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 85.8\",\"id\":4294967295,\"pin\":2147483648,\"inUs"
    "e\":128},{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.9\",\"itemText2\":\"say \\"
    "\"\303\251\\\" 85.10\",\"itemText3\":\"back\\\\slash \303\237 85.11\",\"itemText4\":\"Z"
    "\303\274ndung \360\237\232\227 85.12\",\"id\":2147483647,\"pin\":1524299097,\"inUse\":0}"
    "],\"flag1\":255,\"flag2\":0,\"text1\":\"Pr\303\274fstand \342\202\254 85.13\",\"text2\":"
    "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.14\",\"flag3\":2,\"items\":[{"
    "\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.15\",\"itemText2\":\"say \\\"\303"
    "\251\\\" 85.16\",\"itemText3\":\"back\\\\slash \303\237 85.17\",\"itemText4\":\"Z\303"
    "\274ndung \360\237\232\227 85.18\"},{\"itemText1\":\"Pr\303\274fstand \342\202\254 85.19"
    "\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.20\",\"itemT"
    "ext3\":\"K\303\274hler\\t\360\237\224\247 85.21\",\"itemText4\":\"say \\\"\303\251\\\" 8"
    "5.22\"}],\"value\":9223372036854775809},\"back\\\\slash \303\237 85.23\",\"\\udc00Z\303"
    "\274ndung \360\237\232\227 85.24\\ud800\",\"Pr\303\274fstand \342\202\254 85.25\"]",
    "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 85.1\",\"itemText2\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 85.2\",\"itemText3\":\"K\303\274hler\\t\360\237"
    "\224\247 85.3\",\"itemText4\":\"say \\\"\303\251\\\" 85.4\",\"resources\":[{\"itemText1"
    "\":\"back\\\\slash \303\237 85.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 85.6"
    "\",\"itemText3\":\"Pr\303\274fstand \342\202\254 85.7\",\"itemText4\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 85.8\",\"id\":4294967295,\"pin\":2147483648,\"inUs"
    "e\":128},{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.9\",\"itemText2\":\"say \\"
    "\"\303\251\\\" 85.10\",\"itemText3\":\"back\\\\slash \303\237 85.11\",\"itemText4\":\"Z"
    "\303\274ndung \360\237\232\227 85.12\",\"id\":2147483647,\"pin\":1524299097,\"inUse\":0}"
    "],\"flag1\":255,\"flag2\":0,\"text1\":\"Pr\303\274fstand \342\202\254 85.13\",\"text2\":"
    "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.14\",\"flag3\":2,\"items\":[{"
    "\"itemText1\":\"K\303\274hler\\t\360\237\224\247 85.15\",\"itemText2\":\"say \\\"\303"
    "\251\\\" 85.16\",\"itemText3\":\"back\\\\slash \303\237 85.17\",\"itemText4\":\"Z\303"
    "\274ndung \360\237\232\227 85.18\"},{\"itemText1\":\"Pr\303\274fstand \342\202\254 85.19"
    "\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 85.20\",\"itemT"
    "ext3\":\"K\303\274hler\\t\360\237\224\247 85.21\",\"itemText4\":\"say \\\"\303\251\\\" 8"
    "5.22\"}],\"value\":9223372036854775809},\"back\\\\slash \303\237 85.23\",\"Z\303\274ndun"
    "g \360\237\232\227 85.24\",\"\\udc00Pr\303\274fstand \342\202\254 85.25\\ud800\"]",
};
TEST_F(Interfaces, addInterface_TextWithNoUtf8Form) {
    kc::noUtf8<AddInterfaceExport>(api, kAddInterfaceNoUtf8);
}

const kc::Number kNumber108{108, "addInterface", kAddInterfaceCases};

TEST_F(InterfacesByNumber, n108_addInterface_KelCall) { kc::kelCall(api, kNumber108); }
TEST_F(InterfacesByNumber, n108_addInterface_PyCall) { kc::pyCall(api, kNumber108); }
TEST_F(InterfacesByNumber, n108_addInterface_Failure) { kc::numberFailure(api, kNumber108); }
TEST_F(InterfacesByNumber, n108_addInterface_ShortInput) { kc::shortInput(api, kNumber108); }

// ---- removeResource (position 86, number 112) ----

const kc::Case kRemoveResourceCases[] = {
    {"full",
     "[\"Pr\303\274fstand \342\202\254 86.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 86.2\"]",
     "[\"Pr\303\274fstand \342\202\254 86.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 86.2\"]",
     "null", nullptr,
     "130000005072c3bc667374616e6420e282ac2038362e3113000000e697a5e69cace8aa9e20f09d849e203836"
     "2e32",
     "5072c3bc667374616e6420e282ac2038362e3100e697a5e69cace8aa9e20f09d849e2038362e3200",
     "[\"Pr\303\274fstand \342\202\254 86.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 86.2\"]",
     "[\"Pr\303\274fstand \342\202\254 86.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 86.2\"]",
     "01", "", 0},
    {"sparse", "[\"\",\"\"]", "[\"\",\"\"]", "null", nullptr, "0000000000000000", "0000",
     "[\"\",\"\"]", "[\"\",\"\"]", "01", "", 0},
};

struct RemoveResourceExport {
    static constexpr const char* operation = "removeResource";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        const kc::Text a1(in[1]);
        static_cast<void>(out);
        kel_removeResource(api, a0.get(), a1.get(), error);
    }
};

TEST_F(Interfaces, removeResource_Exchange) {
    kc::exchange<RemoveResourceExport>(api, kRemoveResourceCases);
}
TEST_F(Interfaces, removeResource_Failure) {
    kc::failure<RemoveResourceExport>(api, kRemoveResourceCases);
}
TEST_F(InterfacesAdmission, removeResource) {
    kc::admission<RemoveResourceExport>(callers(), kRemoveResourceCases, kc::Needs::Administrator);
}

const char* const kRemoveResourceNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 86.1\\ud800\",\"\346\227\245\346\234\254\350\252"
    "\236 \360\235\204\236 86.2\"]",
    "[\"Pr\303\274fstand \342\202\254 86.1\",\"\\udc00\346\227\245\346\234\254\350\252\236 "
    "\360\235\204\236 86.2\\ud800\"]",
};
TEST_F(Interfaces, removeResource_TextWithNoUtf8Form) {
    kc::noUtf8<RemoveResourceExport>(api, kRemoveResourceNoUtf8);
}

const kc::Number kNumber112{112, "removeResource", kRemoveResourceCases};

TEST_F(InterfacesByNumber, n112_removeResource_KelCall) { kc::kelCall(api, kNumber112); }
TEST_F(InterfacesByNumber, n112_removeResource_PyCall) { kc::pyCall(api, kNumber112); }
TEST_F(InterfacesByNumber, n112_removeResource_Failure) { kc::numberFailure(api, kNumber112); }
TEST_F(InterfacesByNumber, n112_removeResource_ShortInput) { kc::shortInput(api, kNumber112); }

// ---- getVendorModuleNames (position 90, number 120) ----

const kc::Case kGetVendorModuleNamesCases[] = {
    {"full",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 90.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 90.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 90.3\",\"itemText4\":\"say \\\"\303\251\\\" 90.4\",\"resources\":[{\"itemTe"
     "xt1\":\"back\\\\slash \303\237 90.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 90"
     ".6\",\"itemText3\":\"Pr\303\274fstand \342\202\254 90.7\",\"itemText4\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 90.8\",\"id\":4294967295,\"pin\":2147483648,\""
     "inUse\":128},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 90.9\",\"itemText2\":"
     "\"say \\\"\303\251\\\" 90.10\",\"itemText3\":\"back\\\\slash \303\237 90.11\",\"itemText"
     "4\":\"Z\303\274ndung \360\237\232\227 90.12\",\"id\":2147483647,\"pin\":1524501613,\"inU"
     "se\":0}],\"flag1\":255,\"flag2\":0,\"text1\":\"Pr\303\274fstand \342\202\254 90.13\",\"t"
     "ext2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.14\",\"flag3\":2,\"ite"
     "ms\":[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 90.15\",\"itemText2\":\"say "
     "\\\"\303\251\\\" 90.16\",\"itemText3\":\"back\\\\slash \303\237 90.17\",\"itemText4\":\""
     "Z\303\274ndung \360\237\232\227 90.18\"},{\"itemText1\":\"Pr\303\274fstand \342\202\254 "
     "90.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.20\",\""
     "itemText3\":\"K\303\274hler\\u0009\360\237\224\247 90.21\",\"itemText4\":\"say \\\"\303"
     "\251\\\" 90.22\"}],\"value\":9223372036854775809}]",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 90.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 90.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 90.3\",\"itemText4\":\"say \\\"\303\251\\\" 90.4\",\"resources\":[{\"itemTe"
     "xt1\":\"back\\\\slash \303\237 90.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 90"
     ".6\",\"itemText3\":\"Pr\303\274fstand \342\202\254 90.7\",\"itemText4\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 90.8\",\"id\":4294967295,\"pin\":2147483648,\""
     "inUse\":true},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 90.9\",\"itemText2\""
     ":\"say \\\"\303\251\\\" 90.10\",\"itemText3\":\"back\\\\slash \303\237 90.11\",\"itemTex"
     "t4\":\"Z\303\274ndung \360\237\232\227 90.12\",\"id\":2147483647,\"pin\":1524501613,\"in"
     "Use\":false}],\"flag1\":true,\"flag2\":false,\"text1\":\"Pr\303\274fstand \342\202\254 9"
     "0.13\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.14\",\"flag3"
     "\":true,\"items\":[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 90.15\",\"itemT"
     "ext2\":\"say \\\"\303\251\\\" 90.16\",\"itemText3\":\"back\\\\slash \303\237 90.17\",\"i"
     "temText4\":\"Z\303\274ndung \360\237\232\227 90.18\"},{\"itemText1\":\"Pr\303\274fstand "
     "\342\202\254 90.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 90.20\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 90.21\",\"itemText4\":"
     "\"say \\\"\303\251\\\" 90.22\"}],\"value\":9223372036854775809}]",
     "[\"back\\\\slash \303\237 90.23\",\"\",\"Z\303\274ndung \360\237\232\227 90.24\"]",
     "[\"back\\\\slash \303\237 90.23\",\"\",\"Z\303\274ndung \360\237\232\227 90.24\"]",
     "130000005072c3bc667374616e6420e282ac2039302e3113000000e697a5e69cace8aa9e20f09d849e203930"
     "2e32110000004bc3bc686c657209f09f94a72039302e330d0000007361792022c3a9222039302e3402000000"
     "120000006261636b5c736c61736820c39f2039302e35120000005ac3bc6e64756e6720f09f9a972039302e36"
     "130000005072c3bc667374616e6420e282ac2039302e3713000000e697a5e69cace8aa9e20f09d849e203930"
     "2e38ffffffff0000008001110000004bc3bc686c657209f09f94a72039302e390e0000007361792022c3a922"
     "2039302e3130130000006261636b5c736c61736820c39f2039302e3131130000005ac3bc6e64756e6720f09f"
     "9a972039302e3132ffffff7f6d0cde5a000100140000005072c3bc667374616e6420e282ac2039302e313314"
     "000000e697a5e69cace8aa9e20f09d849e2039302e31340102000000120000004bc3bc686c657209f09f94a7"
     "2039302e31350e0000007361792022c3a9222039302e3136130000006261636b5c736c61736820c39f203930"
     "2e3137130000005ac3bc6e64756e6720f09f9a972039302e3138140000005072c3bc667374616e6420e282ac"
     "2039302e313914000000e697a5e69cace8aa9e20f09d849e2039302e3230120000004bc3bc686c657209f09f"
     "94a72039302e32310e0000007361792022c3a9222039302e32320100000000000080",
     "015072c3bc667374616e6420e282ac2039302e3100e697a5e69cace8aa9e20f09d849e2039302e32004bc3bc"
     "686c657209f09f94a72039302e33007361792022c3a9222039302e340002000000016261636b5c736c617368"
     "20c39f2039302e35005ac3bc6e64756e6720f09f9a972039302e36005072c3bc667374616e6420e282ac2039"
     "302e3700e697a5e69cace8aa9e20f09d849e2039302e3800ffffffff0000008001014bc3bc686c657209f09f"
     "94a72039302e39007361792022c3a9222039302e3130006261636b5c736c61736820c39f2039302e3131005a"
     "c3bc6e64756e6720f09f9a972039302e313200ffffff7f6d0cde5a0001005072c3bc667374616e6420e282ac"
     "2039302e313300e697a5e69cace8aa9e20f09d849e2039302e3134000102000000014bc3bc686c657209f09f"
     "94a72039302e3135007361792022c3a9222039302e3136006261636b5c736c61736820c39f2039302e313700"
     "5ac3bc6e64756e6720f09f9a972039302e313800015072c3bc667374616e6420e282ac2039302e313900e697"
     "a5e69cace8aa9e20f09d849e2039302e3230004bc3bc686c657209f09f94a72039302e3231007361792022c3"
     "a9222039302e3232000100000000000080",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 90.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 90.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 90.3\",\"itemText4\":\"say \\\"\303\251\\\" 90.4\",\"resources\":[{\"itemTe"
     "xt1\":\"back\\\\slash \303\237 90.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 90"
     ".6\",\"itemText3\":\"Pr\303\274fstand \342\202\254 90.7\",\"itemText4\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 90.8\",\"id\":4294967295,\"pin\":2147483648,\""
     "inUse\":true},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 90.9\",\"itemText2\""
     ":\"say \\\"\303\251\\\" 90.10\",\"itemText3\":\"back\\\\slash \303\237 90.11\",\"itemTex"
     "t4\":\"Z\303\274ndung \360\237\232\227 90.12\",\"id\":2147483647,\"pin\":1524501613,\"in"
     "Use\":false}],\"flag1\":true,\"flag2\":false,\"text1\":\"Pr\303\274fstand \342\202\254 9"
     "0.13\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.14\",\"flag3"
     "\":true,\"items\":[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 90.15\",\"itemT"
     "ext2\":\"say \\\"\303\251\\\" 90.16\",\"itemText3\":\"back\\\\slash \303\237 90.17\",\"i"
     "temText4\":\"Z\303\274ndung \360\237\232\227 90.18\"},{\"itemText1\":\"Pr\303\274fstand "
     "\342\202\254 90.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 90.20\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 90.21\",\"itemText4\":"
     "\"say \\\"\303\251\\\" 90.22\"}],\"value\":9223372036854775809}]",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 90.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 90.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 90.3\",\"itemText4\":\"say \\\"\303\251\\\" 90.4\",\"resources\":[{\"itemTe"
     "xt1\":\"back\\\\slash \303\237 90.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 90"
     ".6\",\"itemText3\":\"Pr\303\274fstand \342\202\254 90.7\",\"itemText4\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 90.8\",\"id\":4294967295,\"pin\":2147483648,\""
     "inUse\":true},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 90.9\",\"itemText2\""
     ":\"say \\\"\303\251\\\" 90.10\",\"itemText3\":\"back\\\\slash \303\237 90.11\",\"itemTex"
     "t4\":\"Z\303\274ndung \360\237\232\227 90.12\",\"id\":2147483647,\"pin\":1524501613,\"in"
     "Use\":false}],\"flag1\":true,\"flag2\":false,\"text1\":\"Pr\303\274fstand \342\202\254 9"
     "0.13\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.14\",\"flag3"
     "\":true,\"items\":[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 90.15\",\"itemT"
     "ext2\":\"say \\\"\303\251\\\" 90.16\",\"itemText3\":\"back\\\\slash \303\237 90.17\",\"i"
     "temText4\":\"Z\303\274ndung \360\237\232\227 90.18\"},{\"itemText1\":\"Pr\303\274fstand "
     "\342\202\254 90.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 90.20\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 90.21\",\"itemText4\":"
     "\"say \\\"\303\251\\\" 90.22\"}],\"value\":9223372036854775809}]",
     "0103000000130000006261636b5c736c61736820c39f2039302e323300000000130000005ac3bc6e64756e67"
     "20f09f9a972039302e3234",
     "03000000130000006261636b5c736c61736820c39f2039302e323300000000130000005ac3bc6e64756e6720"
     "f09f9a972039302e3234",
     0},
    {"sparse", "[null]", "[null]",
     "[\"Pr\303\274fstand \342\202\254 90.1\",\"\",\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 90.2\"]",
     "[\"Pr\303\274fstand \342\202\254 90.1\",\"\",\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 90.2\"]",
     "00000000000000000000000000000000000000000000000000000000000000000000000000000000000000", "00",
     "[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"resource"
     "s\":[],\"flag1\":false,\"flag2\":false,\"text1\":\"\",\"text2\":\"\",\"flag3\":false,\"i"
     "tems\":[],\"value\":0}]",
     "[null]",
     "0103000000130000005072c3bc667374616e6420e282ac2039302e310000000013000000e697a5e69cace8aa"
     "9e20f09d849e2039302e32",
     "03000000130000005072c3bc667374616e6420e282ac2039302e310000000013000000e697a5e69cace8aa9e"
     "20f09d849e2039302e32",
     0},
    {"empty", "[null]", "[null]", "[]", "null",
     "00000000000000000000000000000000000000000000000000000000000000000000000000000000000000", "00",
     "[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"resource"
     "s\":[],\"flag1\":false,\"flag2\":false,\"text1\":\"\",\"text2\":\"\",\"flag3\":false,\"i"
     "tems\":[],\"value\":0}]",
     "[null]", "0100000000", "00000000", 0},
};

struct GetVendorModuleNamesExport {
    static constexpr const char* operation = "getVendorModuleNames";
    using Result = kc::TextsResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kel_getVendorModuleNames(api, kc::record<InterfaceInformation>(in[0]), error, &out.data,
                                 &out.count);
    }
};

TEST_F(Interfaces, getVendorModuleNames_Exchange) {
    kc::exchange<GetVendorModuleNamesExport>(api, kGetVendorModuleNamesCases);
}
TEST_F(Interfaces, getVendorModuleNames_Failure) {
    kc::failure<GetVendorModuleNamesExport>(api, kGetVendorModuleNamesCases);
}
TEST_F(InterfacesAdmission, getVendorModuleNames) {
    kc::admission<GetVendorModuleNamesExport>(callers(), kGetVendorModuleNamesCases,
                                              kc::Needs::Operator);
}

const char* const kGetVendorModuleNamesNoUtf8[] = {
    "[{\"itemText1\":\"\\udc00Pr\303\274fstand \342\202\254 90.1\\ud800\",\"itemText2\":\""
    "\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.2\",\"itemText3\":\"K\303\274hl"
    "er\\t\360\237\224\247 90.3\",\"itemText4\":\"say \\\"\303\251\\\" 90.4\",\"resources\":["
    "{\"itemText1\":\"back\\\\slash \303\237 90.5\",\"itemText2\":\"Z\303\274ndung \360\237"
    "\232\227 90.6\",\"itemText3\":\"Pr\303\274fstand \342\202\254 90.7\",\"itemText4\":\""
    "\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.8\",\"id\":4294967295,\"pin\":2"
    "147483648,\"inUse\":128},{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 90.9\",\"item"
    "Text2\":\"say \\\"\303\251\\\" 90.10\",\"itemText3\":\"back\\\\slash \303\237 90.11\",\""
    "itemText4\":\"Z\303\274ndung \360\237\232\227 90.12\",\"id\":2147483647,\"pin\":15245016"
    "13,\"inUse\":0}],\"flag1\":255,\"flag2\":0,\"text1\":\"Pr\303\274fstand \342\202\254 90."
    "13\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.14\",\"flag3\""
    ":2,\"items\":[{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 90.15\",\"itemText2\":\""
    "say \\\"\303\251\\\" 90.16\",\"itemText3\":\"back\\\\slash \303\237 90.17\",\"itemText4"
    "\":\"Z\303\274ndung \360\237\232\227 90.18\"},{\"itemText1\":\"Pr\303\274fstand \342\202"
    "\254 90.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.20"
    "\",\"itemText3\":\"K\303\274hler\\t\360\237\224\247 90.21\",\"itemText4\":\"say \\\"\303"
    "\251\\\" 90.22\"}],\"value\":9223372036854775809}]",
    "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 90.1\",\"itemText2\":\"\\udc00\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 90.2\\ud800\",\"itemText3\":\"K\303\274hle"
    "r\\t\360\237\224\247 90.3\",\"itemText4\":\"say \\\"\303\251\\\" 90.4\",\"resources\":[{"
    "\"itemText1\":\"back\\\\slash \303\237 90.5\",\"itemText2\":\"Z\303\274ndung \360\237"
    "\232\227 90.6\",\"itemText3\":\"Pr\303\274fstand \342\202\254 90.7\",\"itemText4\":\""
    "\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.8\",\"id\":4294967295,\"pin\":2"
    "147483648,\"inUse\":128},{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 90.9\",\"item"
    "Text2\":\"say \\\"\303\251\\\" 90.10\",\"itemText3\":\"back\\\\slash \303\237 90.11\",\""
    "itemText4\":\"Z\303\274ndung \360\237\232\227 90.12\",\"id\":2147483647,\"pin\":15245016"
    "13,\"inUse\":0}],\"flag1\":255,\"flag2\":0,\"text1\":\"Pr\303\274fstand \342\202\254 90."
    "13\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.14\",\"flag3\""
    ":2,\"items\":[{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 90.15\",\"itemText2\":\""
    "say \\\"\303\251\\\" 90.16\",\"itemText3\":\"back\\\\slash \303\237 90.17\",\"itemText4"
    "\":\"Z\303\274ndung \360\237\232\227 90.18\"},{\"itemText1\":\"Pr\303\274fstand \342\202"
    "\254 90.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.20"
    "\",\"itemText3\":\"K\303\274hler\\t\360\237\224\247 90.21\",\"itemText4\":\"say \\\"\303"
    "\251\\\" 90.22\"}],\"value\":9223372036854775809}]",
    "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 90.1\",\"itemText2\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 90.2\",\"itemText3\":\"\\udc00K\303\274hler\\t\360"
    "\237\224\247 90.3\\ud800\",\"itemText4\":\"say \\\"\303\251\\\" 90.4\",\"resources\":[{"
    "\"itemText1\":\"back\\\\slash \303\237 90.5\",\"itemText2\":\"Z\303\274ndung \360\237"
    "\232\227 90.6\",\"itemText3\":\"Pr\303\274fstand \342\202\254 90.7\",\"itemText4\":\""
    "\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.8\",\"id\":4294967295,\"pin\":2"
    "147483648,\"inUse\":128},{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 90.9\",\"item"
    "Text2\":\"say \\\"\303\251\\\" 90.10\",\"itemText3\":\"back\\\\slash \303\237 90.11\",\""
    "itemText4\":\"Z\303\274ndung \360\237\232\227 90.12\",\"id\":2147483647,\"pin\":15245016"
    "13,\"inUse\":0}],\"flag1\":255,\"flag2\":0,\"text1\":\"Pr\303\274fstand \342\202\254 90."
    "13\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.14\",\"flag3\""
    ":2,\"items\":[{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 90.15\",\"itemText2\":\""
    "say \\\"\303\251\\\" 90.16\",\"itemText3\":\"back\\\\slash \303\237 90.17\",\"itemText4"
    "\":\"Z\303\274ndung \360\237\232\227 90.18\"},{\"itemText1\":\"Pr\303\274fstand \342\202"
    "\254 90.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.20"
    "\",\"itemText3\":\"K\303\274hler\\t\360\237\224\247 90.21\",\"itemText4\":\"say \\\"\303"
    "\251\\\" 90.22\"}],\"value\":9223372036854775809}]",
    "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 90.1\",\"itemText2\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 90.2\",\"itemText3\":\"K\303\274hler\\t\360\237"
    "\224\247 90.3\",\"itemText4\":\"\\udc00say \\\"\303\251\\\" 90.4\\ud800\",\"resources\":"
    "[{\"itemText1\":\"back\\\\slash \303\237 90.5\",\"itemText2\":\"Z\303\274ndung \360\237"
    "\232\227 90.6\",\"itemText3\":\"Pr\303\274fstand \342\202\254 90.7\",\"itemText4\":\""
    "\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.8\",\"id\":4294967295,\"pin\":2"
    "147483648,\"inUse\":128},{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 90.9\",\"item"
    "Text2\":\"say \\\"\303\251\\\" 90.10\",\"itemText3\":\"back\\\\slash \303\237 90.11\",\""
    "itemText4\":\"Z\303\274ndung \360\237\232\227 90.12\",\"id\":2147483647,\"pin\":15245016"
    "13,\"inUse\":0}],\"flag1\":255,\"flag2\":0,\"text1\":\"Pr\303\274fstand \342\202\254 90."
    "13\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.14\",\"flag3\""
    ":2,\"items\":[{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 90.15\",\"itemText2\":\""
    "say \\\"\303\251\\\" 90.16\",\"itemText3\":\"back\\\\slash \303\237 90.17\",\"itemText4"
    "\":\"Z\303\274ndung \360\237\232\227 90.18\"},{\"itemText1\":\"Pr\303\274fstand \342\202"
    "\254 90.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.20"
    "\",\"itemText3\":\"K\303\274hler\\t\360\237\224\247 90.21\",\"itemText4\":\"say \\\"\303"
    "\251\\\" 90.22\"}],\"value\":9223372036854775809}]",
    "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 90.1\",\"itemText2\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 90.2\",\"itemText3\":\"K\303\274hler\\t\360\237"
    "\224\247 90.3\",\"itemText4\":\"say \\\"\303\251\\\" 90.4\",\"resources\":[{\"itemText1"
    "\":\"back\\\\slash \303\237 90.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 90.6"
    "\",\"itemText3\":\"Pr\303\274fstand \342\202\254 90.7\",\"itemText4\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 90.8\",\"id\":4294967295,\"pin\":2147483648,\"inUs"
    "e\":128},{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 90.9\",\"itemText2\":\"say \\"
    "\"\303\251\\\" 90.10\",\"itemText3\":\"back\\\\slash \303\237 90.11\",\"itemText4\":\"Z"
    "\303\274ndung \360\237\232\227 90.12\",\"id\":2147483647,\"pin\":1524501613,\"inUse\":0}"
    "],\"flag1\":255,\"flag2\":0,\"text1\":\"\\udc00Pr\303\274fstand \342\202\254 90.13\\ud80"
    "0\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.14\",\"flag3\":"
    "2,\"items\":[{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 90.15\",\"itemText2\":\"s"
    "ay \\\"\303\251\\\" 90.16\",\"itemText3\":\"back\\\\slash \303\237 90.17\",\"itemText4\""
    ":\"Z\303\274ndung \360\237\232\227 90.18\"},{\"itemText1\":\"Pr\303\274fstand \342\202"
    "\254 90.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.20"
    "\",\"itemText3\":\"K\303\274hler\\t\360\237\224\247 90.21\",\"itemText4\":\"say \\\"\303"
    "\251\\\" 90.22\"}],\"value\":9223372036854775809}]",
    "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 90.1\",\"itemText2\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 90.2\",\"itemText3\":\"K\303\274hler\\t\360\237"
    "\224\247 90.3\",\"itemText4\":\"say \\\"\303\251\\\" 90.4\",\"resources\":[{\"itemText1"
    "\":\"back\\\\slash \303\237 90.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 90.6"
    "\",\"itemText3\":\"Pr\303\274fstand \342\202\254 90.7\",\"itemText4\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 90.8\",\"id\":4294967295,\"pin\":2147483648,\"inUs"
    "e\":128},{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 90.9\",\"itemText2\":\"say \\"
    "\"\303\251\\\" 90.10\",\"itemText3\":\"back\\\\slash \303\237 90.11\",\"itemText4\":\"Z"
    "\303\274ndung \360\237\232\227 90.12\",\"id\":2147483647,\"pin\":1524501613,\"inUse\":0}"
    "],\"flag1\":255,\"flag2\":0,\"text1\":\"Pr\303\274fstand \342\202\254 90.13\",\"text2\":"
    "\"\\udc00\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.14\\ud800\",\"flag3\":"
    "2,\"items\":[{\"itemText1\":\"K\303\274hler\\t\360\237\224\247 90.15\",\"itemText2\":\"s"
    "ay \\\"\303\251\\\" 90.16\",\"itemText3\":\"back\\\\slash \303\237 90.17\",\"itemText4\""
    ":\"Z\303\274ndung \360\237\232\227 90.18\"},{\"itemText1\":\"Pr\303\274fstand \342\202"
    "\254 90.19\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 90.20"
    "\",\"itemText3\":\"K\303\274hler\\t\360\237\224\247 90.21\",\"itemText4\":\"say \\\"\303"
    "\251\\\" 90.22\"}],\"value\":9223372036854775809}]",
};
TEST_F(Interfaces, getVendorModuleNames_TextWithNoUtf8Form) {
    kc::noUtf8<GetVendorModuleNamesExport>(api, kGetVendorModuleNamesNoUtf8);
}

const kc::Number kNumber120{120, "getVendorModuleNames", kGetVendorModuleNamesCases};

TEST_F(InterfacesByNumber, n120_getVendorModuleNames_KelCall) { kc::kelCall(api, kNumber120); }
TEST_F(InterfacesByNumber, n120_getVendorModuleNames_PyCall) { kc::pyCall(api, kNumber120); }
TEST_F(InterfacesByNumber, n120_getVendorModuleNames_Failure) {
    kc::numberFailure(api, kNumber120);
}
TEST_F(InterfacesByNumber, n120_getVendorModuleNames_ShortInput) {
    kc::shortInput(api, kNumber120);
}

// ---- getVendorModuleNamesEx (position 91, number 121) ----

const kc::Case kGetVendorModuleNamesExCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 91.1\"]", "[\"Pr\303\274fstand \342\202\254 91.1\"]",
     "[\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 91.2\",\"\",\"K\303\274hler\\u0"
     "009\360\237\224\247 91.3\"]",
     "[\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 91.2\",\"\",\"K\303\274hler\\u0"
     "009\360\237\224\247 91.3\"]",
     "130000005072c3bc667374616e6420e282ac2039312e31", "5072c3bc667374616e6420e282ac2039312e3100",
     "[\"Pr\303\274fstand \342\202\254 91.1\"]", "[\"Pr\303\274fstand \342\202\254 91.1\"]",
     "010300000013000000e697a5e69cace8aa9e20f09d849e2039312e3200000000110000004bc3bc686c657209"
     "f09f94a72039312e33",
     "0300000013000000e697a5e69cace8aa9e20f09d849e2039312e3200000000110000004bc3bc686c657209f0"
     "9f94a72039312e33",
     0},
    {"sparse", "[\"\"]", "[\"\"]",
     "[\"Pr\303\274fstand \342\202\254 91.1\",\"\",\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 91.2\"]",
     "[\"Pr\303\274fstand \342\202\254 91.1\",\"\",\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 91.2\"]",
     "00000000", "00", "[\"\"]", "[\"\"]",
     "0103000000130000005072c3bc667374616e6420e282ac2039312e310000000013000000e697a5e69cace8aa"
     "9e20f09d849e2039312e32",
     "03000000130000005072c3bc667374616e6420e282ac2039312e310000000013000000e697a5e69cace8aa9e"
     "20f09d849e2039312e32",
     0},
    {"empty", "[\"\"]", "[\"\"]", "[]", "null", "00000000", "00", "[\"\"]", "[\"\"]", "0100000000",
     "00000000", 0},
};

struct GetVendorModuleNamesExExport {
    static constexpr const char* operation = "getVendorModuleNamesEx";
    using Result = kc::TextsResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kel_getVendorModuleNamesEx(api, a0.get(), error, &out.data, &out.count);
    }
};

TEST_F(Interfaces, getVendorModuleNamesEx_Exchange) {
    kc::exchange<GetVendorModuleNamesExExport>(api, kGetVendorModuleNamesExCases);
}
TEST_F(Interfaces, getVendorModuleNamesEx_Failure) {
    kc::failure<GetVendorModuleNamesExExport>(api, kGetVendorModuleNamesExCases);
}
TEST_F(InterfacesAdmission, getVendorModuleNamesEx) {
    kc::admission<GetVendorModuleNamesExExport>(callers(), kGetVendorModuleNamesExCases,
                                                kc::Needs::Operator);
}

const char* const kGetVendorModuleNamesExNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 91.1\\ud800\"]",
};
TEST_F(Interfaces, getVendorModuleNamesEx_TextWithNoUtf8Form) {
    kc::noUtf8<GetVendorModuleNamesExExport>(api, kGetVendorModuleNamesExNoUtf8);
}

const kc::Number kNumber121{121, "getVendorModuleNamesEx", kGetVendorModuleNamesExCases};

TEST_F(InterfacesByNumber, n121_getVendorModuleNamesEx_KelCall) { kc::kelCall(api, kNumber121); }
TEST_F(InterfacesByNumber, n121_getVendorModuleNamesEx_PyCall) { kc::pyCall(api, kNumber121); }
TEST_F(InterfacesByNumber, n121_getVendorModuleNamesEx_Failure) {
    kc::numberFailure(api, kNumber121);
}
TEST_F(InterfacesByNumber, n121_getVendorModuleNamesEx_ShortInput) {
    kc::shortInput(api, kNumber121);
}

// ---- detectDynInterfaces (position 94, number 123) ----

const kc::Case kDetectDynInterfacesCases[] = {
    {"full",
     "[4294967295,{\"namePattern\":\"Pr\303\274fstand \342\202\254 94.1\",\"kind\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 94.2\",\"onlyFree\":128}]",
     "[4294967295,{\"namePattern\":\"Pr\303\274fstand \342\202\254 94.1\",\"kind\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 94.2\",\"onlyFree\":true}]",
     "[{\"name\":\"K\303\274hler\\u0009\360\237\224\247 94.3\",\"longName\":\"say \\\"\303\251"
     "\\\" 94.4\",\"vendor\":\"back\\\\slash \303\237 94.5\",\"kind\":\"Z\303\274ndung \360"
     "\237\232\227 94.6\",\"address\":\"Pr\303\274fstand \342\202\254 94.7\",\"vendorModule\":"
     "{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 94.8\",\"itemText"
     "2\":\"K\303\274hler\\u0009\360\237\224\247 94.9\",\"itemText3\":\"say \\\"\303\251\\\" 9"
     "4.10\",\"itemText4\":\"back\\\\slash \303\237 94.11\"},\"flag1\":false,\"serialNumber\":"
     "\"Z\303\274ndung \360\237\232\227 94.12\",\"firmware\":\"Pr\303\274fstand \342\202\254 9"
     "4.13\",\"network\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 94.14\",\"res"
     "ources\":[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 94.15\",\"itemText2\":\""
     "say \\\"\303\251\\\" 94.16\",\"itemText3\":\"back\\\\slash \303\237 94.17\",\"itemText4"
     "\":\"Z\303\274ndung \360\237\232\227 94.18\",\"id\":2147483648,\"pin\":2147483647,\"inUs"
     "e\":true},{\"itemText1\":\"Pr\303\274fstand \342\202\254 94.19\",\"itemText2\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 94.20\",\"itemText3\":\"K\303\274hler"
     "\\u0009\360\237\224\247 94.21\",\"itemText4\":\"say \\\"\303\251\\\" 94.22\",\"id\":1524"
     "663625,\"pin\":2031615739,\"inUse\":false}],\"port\":391084205,\"flag2\":true,\"handle\""
     ":9223372036854775809},{\"name\":\"back\\\\slash \303\237 94.23\",\"longName\":\"Z\303"
     "\274ndung \360\237\232\227 94.24\",\"vendor\":\"Pr\303\274fstand \342\202\254 94.25\",\""
     "kind\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 94.26\",\"address\":\"K"
     "\303\274hler\\u0009\360\237\224\247 94.27\",\"vendorModule\":null,\"flag1\":false,\"seri"
     "alNumber\":\"say \\\"\303\251\\\" 94.28\",\"firmware\":\"back\\\\slash \303\237 94.29\","
     "\"network\":\"Z\303\274ndung \360\237\232\227 94.30\",\"resources\":[],\"port\":89803631"
     "9,\"flag2\":true,\"handle\":18446744073709551615}]",
     "[{\"name\":\"K\303\274hler\\u0009\360\237\224\247 94.3\",\"longName\":\"say \\\"\303\251"
     "\\\" 94.4\",\"vendor\":\"back\\\\slash \303\237 94.5\",\"kind\":\"Z\303\274ndung \360"
     "\237\232\227 94.6\",\"address\":\"Pr\303\274fstand \342\202\254 94.7\",\"vendorModule\":"
     "{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 94.8\",\"itemText"
     "2\":\"K\303\274hler\\u0009\360\237\224\247 94.9\",\"itemText3\":\"say \\\"\303\251\\\" 9"
     "4.10\",\"itemText4\":\"back\\\\slash \303\237 94.11\"},\"flag1\":0,\"serialNumber\":\"Z"
     "\303\274ndung \360\237\232\227 94.12\",\"firmware\":\"Pr\303\274fstand \342\202\254 94.1"
     "3\",\"network\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 94.14\",\"resour"
     "ces\":[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 94.15\",\"itemText2\":\"say"
     " \\\"\303\251\\\" 94.16\",\"itemText3\":\"back\\\\slash \303\237 94.17\",\"itemText4\":"
     "\"Z\303\274ndung \360\237\232\227 94.18\",\"id\":2147483648,\"pin\":2147483647,\"inUse\""
     ":1},{\"itemText1\":\"Pr\303\274fstand \342\202\254 94.19\",\"itemText2\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 94.20\",\"itemText3\":\"K\303\274hler\\u0009"
     "\360\237\224\247 94.21\",\"itemText4\":\"say \\\"\303\251\\\" 94.22\",\"id\":1524663625,"
     "\"pin\":2031615739,\"inUse\":0}],\"resourceCount\":2,\"port\":391084205,\"flag2\":1,\"ha"
     "ndle\":9223372036854775809},{\"name\":\"back\\\\slash \303\237 94.23\",\"longName\":\"Z"
     "\303\274ndung \360\237\232\227 94.24\",\"vendor\":\"Pr\303\274fstand \342\202\254 94.25"
     "\",\"kind\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 94.26\",\"address\":"
     "\"K\303\274hler\\u0009\360\237\224\247 94.27\",\"vendorModule\":null,\"flag1\":0,\"seria"
     "lNumber\":\"say \\\"\303\251\\\" 94.28\",\"firmware\":\"back\\\\slash \303\237 94.29\","
     "\"network\":\"Z\303\274ndung \360\237\232\227 94.30\",\"resources\":null,\"resourceCount"
     "\":0,\"port\":898036319,\"flag2\":1,\"handle\":18446744073709551615}]",
     "ffffffff130000005072c3bc667374616e6420e282ac2039342e3113000000e697a5e69cace8aa9e20f09d84"
     "9e2039342e3201",
     "ffffffff015072c3bc667374616e6420e282ac2039342e3100e697a5e69cace8aa9e20f09d849e2039342e32"
     "0001",
     "[4294967295,{\"namePattern\":\"Pr\303\274fstand \342\202\254 94.1\",\"kind\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 94.2\",\"onlyFree\":true}]",
     "[4294967295,{\"namePattern\":\"Pr\303\274fstand \342\202\254 94.1\",\"kind\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 94.2\",\"onlyFree\":true}]",
     "010200000001110000004bc3bc686c657209f09f94a72039342e330d0000007361792022c3a9222039342e34"
     "120000006261636b5c736c61736820c39f2039342e35120000005ac3bc6e64756e6720f09f9a972039342e36"
     "130000005072c3bc667374616e6420e282ac2039342e370113000000e697a5e69cace8aa9e20f09d849e2039"
     "342e38110000004bc3bc686c657209f09f94a72039342e390e0000007361792022c3a9222039342e31301300"
     "00006261636b5c736c61736820c39f2039342e313100130000005ac3bc6e64756e6720f09f9a972039342e31"
     "32140000005072c3bc667374616e6420e282ac2039342e313314000000e697a5e69cace8aa9e20f09d849e20"
     "39342e31340200000001120000004bc3bc686c657209f09f94a72039342e31350e0000007361792022c3a922"
     "2039342e3136130000006261636b5c736c61736820c39f2039342e3137130000005ac3bc6e64756e6720f09f"
     "9a972039342e313800000080ffffff7f0101140000005072c3bc667374616e6420e282ac2039342e31391400"
     "0000e697a5e69cace8aa9e20f09d849e2039342e3230120000004bc3bc686c657209f09f94a72039342e3231"
     "0e0000007361792022c3a9222039342e32324985e05afbfe177900ad784f1701010000000000008001130000"
     "006261636b5c736c61736820c39f2039342e3233130000005ac3bc6e64756e6720f09f9a972039342e323414"
     "0000005072c3bc667374616e6420e282ac2039342e323514000000e697a5e69cace8aa9e20f09d849e203934"
     "2e3236120000004bc3bc686c657209f09f94a72039342e323700000e0000007361792022c3a9222039342e32"
     "38130000006261636b5c736c61736820c39f2039342e3239130000005ac3bc6e64756e6720f09f9a97203934"
     "2e3330000000005ff2863501ffffffffffffffff",
     "0200000001110000004bc3bc686c657209f09f94a72039342e330d0000007361792022c3a9222039342e3412"
     "0000006261636b5c736c61736820c39f2039342e35120000005ac3bc6e64756e6720f09f9a972039342e3613"
     "0000005072c3bc667374616e6420e282ac2039342e370113000000e697a5e69cace8aa9e20f09d849e203934"
     "2e38110000004bc3bc686c657209f09f94a72039342e390e0000007361792022c3a9222039342e3130130000"
     "006261636b5c736c61736820c39f2039342e313100130000005ac3bc6e64756e6720f09f9a972039342e3132"
     "140000005072c3bc667374616e6420e282ac2039342e313314000000e697a5e69cace8aa9e20f09d849e2039"
     "342e31340200000001120000004bc3bc686c657209f09f94a72039342e31350e0000007361792022c3a92220"
     "39342e3136130000006261636b5c736c61736820c39f2039342e3137130000005ac3bc6e64756e6720f09f9a"
     "972039342e313800000080ffffff7f0101140000005072c3bc667374616e6420e282ac2039342e3139140000"
     "00e697a5e69cace8aa9e20f09d849e2039342e3230120000004bc3bc686c657209f09f94a72039342e32310e"
     "0000007361792022c3a9222039342e32324985e05afbfe177900ad784f170101000000000000800113000000"
     "6261636b5c736c61736820c39f2039342e3233130000005ac3bc6e64756e6720f09f9a972039342e32341400"
     "00005072c3bc667374616e6420e282ac2039342e323514000000e697a5e69cace8aa9e20f09d849e2039342e"
     "3236120000004bc3bc686c657209f09f94a72039342e323700000e0000007361792022c3a9222039342e3238"
     "130000006261636b5c736c61736820c39f2039342e3239130000005ac3bc6e64756e6720f09f9a972039342e"
     "3330000000005ff2863501ffffffffffffffff",
     0},
    {"sparse", "[4294967295,null]", "[4294967295,null]",
     "[{\"name\":\"\",\"longName\":\"\",\"vendor\":\"\",\"kind\":\"\",\"address\":\"\",\"vendo"
     "rModule\":{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\"},"
     "\"flag1\":true,\"serialNumber\":\"\",\"firmware\":\"\",\"network\":\"\",\"resources\":[{"
     "\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"id\":21474"
     "83648,\"pin\":2147483647,\"inUse\":false}],\"port\":1524663625,\"flag2\":true,\"handle\""
     ":9223372036854775809},null]",
     "[{\"name\":\"\",\"longName\":\"\",\"vendor\":\"\",\"kind\":\"\",\"address\":\"\",\"vendo"
     "rModule\":{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\"},"
     "\"flag1\":1,\"serialNumber\":\"\",\"firmware\":\"\",\"network\":\"\",\"resources\":[{\"i"
     "temText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"id\":21474836"
     "48,\"pin\":2147483647,\"inUse\":0}],\"resourceCount\":1,\"port\":1524663625,\"flag2\":1,"
     "\"handle\":9223372036854775809},null]",
     "ffffffff000000000000000000", "ffffffff00",
     "[4294967295,{\"namePattern\":\"\",\"kind\":\"\",\"onlyFree\":false}]", "[4294967295,null]",
     "0102000000010000000000000000000000000000000000000000010000000000000000000000000000000001"
     "00000000000000000000000001000000010000000000000000000000000000000000000080ffffff7f004985"
     "e05a01010000000000008000",
     "0200000001000000000000000000000000000000000000000001000000000000000000000000000000000100"
     "000000000000000000000001000000010000000000000000000000000000000000000080ffffff7f004985e0"
     "5a01010000000000008000",
     0},
    {"empty", "[4294967295,null]", "[4294967295,null]", "[]", "null", "ffffffff000000000000000000",
     "ffffffff00", "[4294967295,{\"namePattern\":\"\",\"kind\":\"\",\"onlyFree\":false}]",
     "[4294967295,null]", "0100000000", "00000000", 0},
};

struct DetectDynInterfacesExport {
    static constexpr const char* operation = "detectDynInterfaces";
    using Result = kc::ListResult<ModuleDyn, release_ModuleDyn_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kel_detectDynInterfaces(api, kc::number<uint32_t>(in[0]),
                                kc::record<DynInterfaceDetection>(in[1]), error, &out.data,
                                &out.count);
    }
};

TEST_F(Interfaces, detectDynInterfaces_Exchange) {
    kc::exchange<DetectDynInterfacesExport>(api, kDetectDynInterfacesCases);
}
TEST_F(Interfaces, detectDynInterfaces_Failure) {
    kc::failure<DetectDynInterfacesExport>(api, kDetectDynInterfacesCases);
}
TEST_F(InterfacesAdmission, detectDynInterfaces) {
    kc::admission<DetectDynInterfacesExport>(callers(), kDetectDynInterfacesCases,
                                             kc::Needs::Operator);
}

struct DetectDynInterfacesAsyncExport {
    static constexpr const char* operation = "detectDynInterfacesAsync";
    using Reports = kc::Reports<ModuleDyn, release_ModuleDyn_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        return kel_detectDynInterfacesAsync(api, kc::number<uint32_t>(in[0]),
                                            kc::record<DynInterfaceDetection>(in[1]), error,
                                            &Reports::onReport, &reports);
    }
};

TEST_F(Interfaces, detectDynInterfacesAsync_Exchange) {
    kc::asyncExchange<DetectDynInterfacesAsyncExport>(api, kDetectDynInterfacesCases);
}
TEST_F(Interfaces, detectDynInterfacesAsync_Failure) {
    kc::asyncFailure<DetectDynInterfacesAsyncExport>(api, kDetectDynInterfacesCases);
}
TEST_F(InterfacesAdmission, detectDynInterfacesAsync) {
    kc::asyncAdmission<DetectDynInterfacesAsyncExport>(callers(), kDetectDynInterfacesCases,
                                                       kc::Needs::Operator);
}

const char* const kDetectDynInterfacesNoUtf8[] = {
    "[4294967295,{\"namePattern\":\"\\udc00Pr\303\274fstand \342\202\254 94.1\\ud800\",\"kind"
    "\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 94.2\",\"onlyFree\":128}]",
    "[4294967295,{\"namePattern\":\"Pr\303\274fstand \342\202\254 94.1\",\"kind\":\"\\udc00"
    "\346\227\245\346\234\254\350\252\236 \360\235\204\236 94.2\\ud800\",\"onlyFree\":128}]",
};
TEST_F(Interfaces, detectDynInterfaces_TextWithNoUtf8Form) {
    kc::noUtf8<DetectDynInterfacesExport>(api, kDetectDynInterfacesNoUtf8);
}
TEST_F(Interfaces, detectDynInterfacesAsync_TextWithNoUtf8Form) {
    kc::asyncNoUtf8<DetectDynInterfacesAsyncExport>(api, kDetectDynInterfacesNoUtf8);
}

const kc::Number kNumber123{123, "detectDynInterfaces", kDetectDynInterfacesCases};

TEST_F(InterfacesByNumber, n123_detectDynInterfaces_KelCall) { kc::kelCall(api, kNumber123); }
TEST_F(InterfacesByNumber, n123_detectDynInterfaces_PyCall) { kc::pyCall(api, kNumber123); }
TEST_F(InterfacesByNumber, n123_detectDynInterfaces_Failure) { kc::numberFailure(api, kNumber123); }
TEST_F(InterfacesByNumber, n123_detectDynInterfaces_ShortInput) { kc::shortInput(api, kNumber123); }

// ---- connectDynInterface (position 96, number 125) ----

const kc::Case kConnectDynInterfaceCases[] = {
    {"full",
     "[\"Pr\303\274fstand \342\202\254 96.1\",128,{\"namePattern\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 96.2\",\"kind\":\"K\303\274hler\\u0009\360\237\224\247 96."
     "3\",\"onlyFree\":0}]",
     "[\"Pr\303\274fstand \342\202\254 96.1\",true,{\"namePattern\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 96.2\",\"kind\":\"K\303\274hler\\u0009\360\237\224\247 96."
     "3\",\"onlyFree\":false}]",
     "null", nullptr,
     "130000005072c3bc667374616e6420e282ac2039362e310113000000e697a5e69cace8aa9e20f09d849e2039"
     "362e32110000004bc3bc686c657209f09f94a72039362e3300",
     "5072c3bc667374616e6420e282ac2039362e31000101e697a5e69cace8aa9e20f09d849e2039362e32004bc3"
     "bc686c657209f09f94a72039362e330000",
     "[\"Pr\303\274fstand \342\202\254 96.1\",true,{\"namePattern\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 96.2\",\"kind\":\"K\303\274hler\\u0009\360\237\224\247 96."
     "3\",\"onlyFree\":false}]",
     "[\"Pr\303\274fstand \342\202\254 96.1\",true,{\"namePattern\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 96.2\",\"kind\":\"K\303\274hler\\u0009\360\237\224\247 96."
     "3\",\"onlyFree\":false}]",
     "01", "", 0},
    {"sparse", "[\"\",128,null]", "[\"\",true,null]", "null", nullptr,
     "0000000001000000000000000000", "000100",
     "[\"\",true,{\"namePattern\":\"\",\"kind\":\"\",\"onlyFree\":false}]", "[\"\",true,null]",
     "01", "", 0},
};

struct ConnectDynInterfaceExport {
    static constexpr const char* operation = "connectDynInterface";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        static_cast<void>(out);
        kel_connectDynInterface(api, a0.get(), kc::number<uint8_t>(in[1]),
                                kc::record<DynInterfaceDetection>(in[2]), error);
    }
};

TEST_F(Interfaces, connectDynInterface_Exchange) {
    kc::exchange<ConnectDynInterfaceExport>(api, kConnectDynInterfaceCases);
}
TEST_F(Interfaces, connectDynInterface_Failure) {
    kc::failure<ConnectDynInterfaceExport>(api, kConnectDynInterfaceCases);
}
TEST_F(InterfacesAdmission, connectDynInterface) {
    kc::admission<ConnectDynInterfaceExport>(callers(), kConnectDynInterfaceCases,
                                             kc::Needs::Operator);
}

const char* const kConnectDynInterfaceNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 96.1\\ud800\",128,{\"namePattern\":\"\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 96.2\",\"kind\":\"K\303\274hler\\t\360\237"
    "\224\247 96.3\",\"onlyFree\":0}]",
    "[\"Pr\303\274fstand \342\202\254 96.1\",128,{\"namePattern\":\"\\udc00\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 96.2\\ud800\",\"kind\":\"K\303\274hler\\t\360\237"
    "\224\247 96.3\",\"onlyFree\":0}]",
    "[\"Pr\303\274fstand \342\202\254 96.1\",128,{\"namePattern\":\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 96.2\",\"kind\":\"\\udc00K\303\274hler\\t\360\237\224\247 "
    "96.3\\ud800\",\"onlyFree\":0}]",
};
TEST_F(Interfaces, connectDynInterface_TextWithNoUtf8Form) {
    kc::noUtf8<ConnectDynInterfaceExport>(api, kConnectDynInterfaceNoUtf8);
}

const kc::Number kNumber125{125, "connectDynInterface", kConnectDynInterfaceCases};

TEST_F(InterfacesByNumber, n125_connectDynInterface_KelCall) { kc::kelCall(api, kNumber125); }
TEST_F(InterfacesByNumber, n125_connectDynInterface_PyCall) { kc::pyCall(api, kNumber125); }
TEST_F(InterfacesByNumber, n125_connectDynInterface_Failure) { kc::numberFailure(api, kNumber125); }
TEST_F(InterfacesByNumber, n125_connectDynInterface_ShortInput) { kc::shortInput(api, kNumber125); }

// ---- disconnectDynInterfaces (position 97, number 126) ----

const kc::Case kDisconnectDynInterfacesCases[] = {
    {"full",
     "[[\"Pr\303\274fstand \342\202\254 97.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 97.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 97.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 97.2\"]]",
     "null", nullptr,
     "03000000130000005072c3bc667374616e6420e282ac2039372e310000000013000000e697a5e69cace8aa9e"
     "20f09d849e2039372e32",
     "030000005072c3bc667374616e6420e282ac2039372e310000e697a5e69cace8aa9e20f09d849e2039372e32"
     "00",
     "[[\"Pr\303\274fstand \342\202\254 97.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 97.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 97.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 97.2\"]]",
     "01", "", 0},
    {"sparse", "[[]]", "[[]]", "null", nullptr, "00000000", "00000000", "[[]]", "[[]]", "01", "",
     0},
};

struct DisconnectDynInterfacesExport {
    static constexpr const char* operation = "disconnectDynInterfaces";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::Texts a0(in[0]);
        static_cast<void>(out);
        kel_disconnectDynInterfaces(api, a0.data(), a0.count(), error);
    }
};

TEST_F(Interfaces, disconnectDynInterfaces_Exchange) {
    kc::exchange<DisconnectDynInterfacesExport>(api, kDisconnectDynInterfacesCases);
}
TEST_F(Interfaces, disconnectDynInterfaces_Failure) {
    kc::failure<DisconnectDynInterfacesExport>(api, kDisconnectDynInterfacesCases);
}
TEST_F(InterfacesAdmission, disconnectDynInterfaces) {
    kc::admission<DisconnectDynInterfacesExport>(callers(), kDisconnectDynInterfacesCases,
                                                 kc::Needs::Operator);
}

const char* const kDisconnectDynInterfacesNoUtf8[] = {
    "[[\"\\udc00Pr\303\274fstand \342\202\254 97.1\\ud800\",\"\",\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 97.2\"]]",
};
TEST_F(Interfaces, disconnectDynInterfaces_TextWithNoUtf8Form) {
    kc::noUtf8<DisconnectDynInterfacesExport>(api, kDisconnectDynInterfacesNoUtf8);
}

const kc::Number kNumber126{126, "disconnectDynInterfaces", kDisconnectDynInterfacesCases};

TEST_F(InterfacesByNumber, n126_disconnectDynInterfaces_KelCall) { kc::kelCall(api, kNumber126); }
TEST_F(InterfacesByNumber, n126_disconnectDynInterfaces_PyCall) { kc::pyCall(api, kNumber126); }
TEST_F(InterfacesByNumber, n126_disconnectDynInterfaces_Failure) {
    kc::numberFailure(api, kNumber126);
}
TEST_F(InterfacesByNumber, n126_disconnectDynInterfaces_ShortInput) {
    kc::shortInput(api, kNumber126);
}

// ---- setEthernetPinState (position 119, number 151) ----

const kc::Case kSetEthernetPinStateCases[] = {
    {"full",
     "[255,[\"Pr\303\274fstand \342\202\254 119.1\",\"\",\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 119.2\"]]",
     "[255,[\"Pr\303\274fstand \342\202\254 119.1\",\"\",\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 119.2\"]]",
     "null", nullptr,
     "ff03000000140000005072c3bc667374616e6420e282ac203131392e310000000014000000e697a5e69cace8"
     "aa9e20f09d849e203131392e32",
     "ff030000005072c3bc667374616e6420e282ac203131392e310000e697a5e69cace8aa9e20f09d849e203131"
     "392e3200",
     "[255,[\"Pr\303\274fstand \342\202\254 119.1\",\"\",\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 119.2\"]]",
     "[255,[\"Pr\303\274fstand \342\202\254 119.1\",\"\",\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 119.2\"]]",
     "01", "", 0},
    {"sparse", "[255,[]]", "[255,[]]", "null", nullptr, "ff00000000", "ff00000000", "[255,[]]",
     "[255,[]]", "01", "", 0},
};

struct SetEthernetPinStateExport {
    static constexpr const char* operation = "setEthernetPinState";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::Texts a1(in[1]);
        static_cast<void>(out);
        kel_setEthernetPinState(api, kc::number<uint8_t>(in[0]), a1.data(), a1.count(), error);
    }
};

TEST_F(Interfaces, setEthernetPinState_Exchange) {
    kc::exchange<SetEthernetPinStateExport>(api, kSetEthernetPinStateCases);
}
TEST_F(Interfaces, setEthernetPinState_Failure) {
    kc::failure<SetEthernetPinStateExport>(api, kSetEthernetPinStateCases);
}
TEST_F(InterfacesAdmission, setEthernetPinState) {
    kc::admission<SetEthernetPinStateExport>(callers(), kSetEthernetPinStateCases,
                                             kc::Needs::Operator);
}

const char* const kSetEthernetPinStateNoUtf8[] = {
    "[255,[\"\\udc00Pr\303\274fstand \342\202\254 119.1\\ud800\",\"\",\"\346\227\245\346\234"
    "\254\350\252\236 \360\235\204\236 119.2\"]]",
};
TEST_F(Interfaces, setEthernetPinState_TextWithNoUtf8Form) {
    kc::noUtf8<SetEthernetPinStateExport>(api, kSetEthernetPinStateNoUtf8);
}

const kc::Number kNumber151{151, "setEthernetPinState", kSetEthernetPinStateCases};

TEST_F(InterfacesByNumber, n151_setEthernetPinState_KelCall) { kc::kelCall(api, kNumber151); }
TEST_F(InterfacesByNumber, n151_setEthernetPinState_PyCall) { kc::pyCall(api, kNumber151); }
TEST_F(InterfacesByNumber, n151_setEthernetPinState_Failure) { kc::numberFailure(api, kNumber151); }
TEST_F(InterfacesByNumber, n151_setEthernetPinState_ShortInput) { kc::shortInput(api, kNumber151); }

// ---- getEthernetPinState (position 120, number 152) ----

const kc::Case kGetEthernetPinStateCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 120.1\"]",
     "[\"Pr\303\274fstand \342\202\254 120.1\"]", "4294967295", "4294967295",
     "140000005072c3bc667374616e6420e282ac203132302e31",
     "5072c3bc667374616e6420e282ac203132302e3100", "[\"Pr\303\274fstand \342\202\254 120.1\"]",
     "[\"Pr\303\274fstand \342\202\254 120.1\"]", "01ffffffff", "ffffffff", -1},
    {"sparse", "[\"\"]", "[\"\"]", "4294967295", "4294967295", "00000000", "00", "[\"\"]", "[\"\"]",
     "01ffffffff", "ffffffff", -1},
};

struct GetEthernetPinStateExport {
    static constexpr const char* operation = "getEthernetPinState";
    using Result = kc::ValueResult<uint32_t>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kel_getEthernetPinState(api, a0.get(), error, &out.data);
    }
};

TEST_F(Interfaces, getEthernetPinState_Exchange) {
    kc::exchange<GetEthernetPinStateExport>(api, kGetEthernetPinStateCases);
}
TEST_F(Interfaces, getEthernetPinState_Failure) {
    kc::failure<GetEthernetPinStateExport>(api, kGetEthernetPinStateCases);
}
TEST_F(InterfacesAdmission, getEthernetPinState) {
    kc::admission<GetEthernetPinStateExport>(callers(), kGetEthernetPinStateCases,
                                             kc::Needs::Operator);
}

const char* const kGetEthernetPinStateNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 120.1\\ud800\"]",
};
TEST_F(Interfaces, getEthernetPinState_TextWithNoUtf8Form) {
    kc::noUtf8<GetEthernetPinStateExport>(api, kGetEthernetPinStateNoUtf8);
}

const kc::Number kNumber152{152, "getEthernetPinState", kGetEthernetPinStateCases};

TEST_F(InterfacesByNumber, n152_getEthernetPinState_KelCall) { kc::kelCall(api, kNumber152); }
TEST_F(InterfacesByNumber, n152_getEthernetPinState_PyCall) { kc::pyCall(api, kNumber152); }
TEST_F(InterfacesByNumber, n152_getEthernetPinState_Failure) { kc::numberFailure(api, kNumber152); }
TEST_F(InterfacesByNumber, n152_getEthernetPinState_ShortInput) { kc::shortInput(api, kNumber152); }

// ---- detectDynInterfacesEx (position 121, number 83) ----

const kc::Case kDetectDynInterfacesExCases[] = {
    {"full", "[4294967295]", "[4294967295]",
     "[{\"name\":\"Pr\303\274fstand \342\202\254 121.1\",\"longName\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 121.2\",\"vendor\":\"K\303\274hler\\u0009\360\237\224"
     "\247 121.3\",\"kind\":\"say \\\"\303\251\\\" 121.4\",\"address\":\"back\\\\slash \303"
     "\237 121.5\",\"vendorModule\":{\"itemText1\":\"Z\303\274ndung \360\237\232\227 121.6\","
     "\"itemText2\":\"Pr\303\274fstand \342\202\254 121.7\",\"itemText3\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 121.8\",\"itemText4\":\"K\303\274hler\\u0009\360"
     "\237\224\247 121.9\"},\"flag1\":true,\"serialNumber\":\"say \\\"\303\251\\\" 121.10\",\""
     "firmware\":\"back\\\\slash \303\237 121.11\",\"network\":\"Z\303\274ndung \360\237\232"
     "\227 121.12\",\"resources\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 121.13\",\"i"
     "temText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 121.14\",\"itemText3"
     "\":\"K\303\274hler\\u0009\360\237\224\247 121.15\",\"itemText4\":\"say \\\"\303\251\\\" "
     "121.16\",\"id\":2147483648,\"pin\":2147483647,\"inUse\":false},{\"itemText1\":\"back\\\\"
     "slash \303\237 121.17\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 121.18\",\"itemT"
     "ext3\":\"Pr\303\274fstand \342\202\254 121.19\",\"itemText4\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 121.20\",\"id\":1525757205,\"pin\":2032709319,\"inUse\":tr"
     "ue}],\"port\":392177787,\"flag2\":false,\"handle\":9223372036854775809},{\"name\":\"K"
     "\303\274hler\\u0009\360\237\224\247 121.21\",\"longName\":\"say \\\"\303\251\\\" 121.22"
     "\",\"vendor\":\"back\\\\slash \303\237 121.23\",\"kind\":\"Z\303\274ndung \360\237\232"
     "\227 121.24\",\"address\":\"Pr\303\274fstand \342\202\254 121.25\",\"vendorModule\":null"
     ",\"flag1\":true,\"serialNumber\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236"
     " 121.26\",\"firmware\":\"K\303\274hler\\u0009\360\237\224\247 121.27\",\"network\":\"say"
     " \\\"\303\251\\\" 121.28\",\"resources\":[],\"port\":899129901,\"flag2\":false,\"handle"
     "\":18446744073709551615}]",
     "[{\"name\":\"Pr\303\274fstand \342\202\254 121.1\",\"longName\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 121.2\",\"vendor\":\"K\303\274hler\\u0009\360\237\224"
     "\247 121.3\",\"kind\":\"say \\\"\303\251\\\" 121.4\",\"address\":\"back\\\\slash \303"
     "\237 121.5\",\"vendorModule\":{\"itemText1\":\"Z\303\274ndung \360\237\232\227 121.6\","
     "\"itemText2\":\"Pr\303\274fstand \342\202\254 121.7\",\"itemText3\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 121.8\",\"itemText4\":\"K\303\274hler\\u0009\360"
     "\237\224\247 121.9\"},\"flag1\":1,\"serialNumber\":\"say \\\"\303\251\\\" 121.10\",\"fir"
     "mware\":\"back\\\\slash \303\237 121.11\",\"network\":\"Z\303\274ndung \360\237\232\227 "
     "121.12\",\"resources\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 121.13\",\"itemTe"
     "xt2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 121.14\",\"itemText3\":\"K"
     "\303\274hler\\u0009\360\237\224\247 121.15\",\"itemText4\":\"say \\\"\303\251\\\" 121.16"
     "\",\"id\":2147483648,\"pin\":2147483647,\"inUse\":0},{\"itemText1\":\"back\\\\slash \303"
     "\237 121.17\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 121.18\",\"itemText3\":\"P"
     "r\303\274fstand \342\202\254 121.19\",\"itemText4\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 121.20\",\"id\":1525757205,\"pin\":2032709319,\"inUse\":1}],\"reso"
     "urceCount\":2,\"port\":392177787,\"flag2\":0,\"handle\":9223372036854775809},{\"name\":"
     "\"K\303\274hler\\u0009\360\237\224\247 121.21\",\"longName\":\"say \\\"\303\251\\\" 121."
     "22\",\"vendor\":\"back\\\\slash \303\237 121.23\",\"kind\":\"Z\303\274ndung \360\237\232"
     "\227 121.24\",\"address\":\"Pr\303\274fstand \342\202\254 121.25\",\"vendorModule\":null"
     ",\"flag1\":1,\"serialNumber\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 12"
     "1.26\",\"firmware\":\"K\303\274hler\\u0009\360\237\224\247 121.27\",\"network\":\"say \\"
     "\"\303\251\\\" 121.28\",\"resources\":null,\"resourceCount\":0,\"port\":899129901,\"flag"
     "2\":0,\"handle\":18446744073709551615}]",
     "ffffffff", "ffffffff", "[4294967295]", "[4294967295]",
     "010200000001140000005072c3bc667374616e6420e282ac203132312e3114000000e697a5e69cace8aa9e20"
     "f09d849e203132312e32120000004bc3bc686c657209f09f94a7203132312e330e0000007361792022c3a922"
     "203132312e34130000006261636b5c736c61736820c39f203132312e3501130000005ac3bc6e64756e6720f0"
     "9f9a97203132312e36140000005072c3bc667374616e6420e282ac203132312e3714000000e697a5e69cace8"
     "aa9e20f09d849e203132312e38120000004bc3bc686c657209f09f94a7203132312e39010f00000073617920"
     "22c3a922203132312e3130140000006261636b5c736c61736820c39f203132312e3131140000005ac3bc6e64"
     "756e6720f09f9a97203132312e31320200000001150000005072c3bc667374616e6420e282ac203132312e31"
     "3315000000e697a5e69cace8aa9e20f09d849e203132312e3134130000004bc3bc686c657209f09f94a72031"
     "32312e31350f0000007361792022c3a922203132312e313600000080ffffff7f0001140000006261636b5c73"
     "6c61736820c39f203132312e3137140000005ac3bc6e64756e6720f09f9a97203132312e3138150000005072"
     "c3bc667374616e6420e282ac203132312e313915000000e697a5e69cace8aa9e20f09d849e203132312e3230"
     "1535f15ac7ae2879017b28601700010000000000008001130000004bc3bc686c657209f09f94a7203132312e"
     "32310f0000007361792022c3a922203132312e3232140000006261636b5c736c61736820c39f203132312e32"
     "33140000005ac3bc6e64756e6720f09f9a97203132312e3234150000005072c3bc667374616e6420e282ac20"
     "3132312e3235000115000000e697a5e69cace8aa9e20f09d849e203132312e3236130000004bc3bc686c6572"
     "09f09f94a7203132312e32370f0000007361792022c3a922203132312e3238000000002da2973500ffffffff"
     "ffffffff",
     "0200000001140000005072c3bc667374616e6420e282ac203132312e3114000000e697a5e69cace8aa9e20f0"
     "9d849e203132312e32120000004bc3bc686c657209f09f94a7203132312e330e0000007361792022c3a92220"
     "3132312e34130000006261636b5c736c61736820c39f203132312e3501130000005ac3bc6e64756e6720f09f"
     "9a97203132312e36140000005072c3bc667374616e6420e282ac203132312e3714000000e697a5e69cace8aa"
     "9e20f09d849e203132312e38120000004bc3bc686c657209f09f94a7203132312e39010f0000007361792022"
     "c3a922203132312e3130140000006261636b5c736c61736820c39f203132312e3131140000005ac3bc6e6475"
     "6e6720f09f9a97203132312e31320200000001150000005072c3bc667374616e6420e282ac203132312e3133"
     "15000000e697a5e69cace8aa9e20f09d849e203132312e3134130000004bc3bc686c657209f09f94a7203132"
     "312e31350f0000007361792022c3a922203132312e313600000080ffffff7f0001140000006261636b5c736c"
     "61736820c39f203132312e3137140000005ac3bc6e64756e6720f09f9a97203132312e3138150000005072c3"
     "bc667374616e6420e282ac203132312e313915000000e697a5e69cace8aa9e20f09d849e203132312e323015"
     "35f15ac7ae2879017b28601700010000000000008001130000004bc3bc686c657209f09f94a7203132312e32"
     "310f0000007361792022c3a922203132312e3232140000006261636b5c736c61736820c39f203132312e3233"
     "140000005ac3bc6e64756e6720f09f9a97203132312e3234150000005072c3bc667374616e6420e282ac2031"
     "32312e3235000115000000e697a5e69cace8aa9e20f09d849e203132312e3236130000004bc3bc686c657209"
     "f09f94a7203132312e32370f0000007361792022c3a922203132312e3238000000002da2973500ffffffffff"
     "ffffff",
     0},
    {"sparse", "[4294967295]", "[4294967295]",
     "[{\"name\":\"\",\"longName\":\"\",\"vendor\":\"\",\"kind\":\"\",\"address\":\"\",\"vendo"
     "rModule\":{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\"},"
     "\"flag1\":true,\"serialNumber\":\"\",\"firmware\":\"\",\"network\":\"\",\"resources\":[{"
     "\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"id\":21474"
     "83648,\"pin\":2147483647,\"inUse\":false}],\"port\":1525757205,\"flag2\":true,\"handle\""
     ":9223372036854775809},null]",
     "[{\"name\":\"\",\"longName\":\"\",\"vendor\":\"\",\"kind\":\"\",\"address\":\"\",\"vendo"
     "rModule\":{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\"},"
     "\"flag1\":1,\"serialNumber\":\"\",\"firmware\":\"\",\"network\":\"\",\"resources\":[{\"i"
     "temText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"id\":21474836"
     "48,\"pin\":2147483647,\"inUse\":0}],\"resourceCount\":1,\"port\":1525757205,\"flag2\":1,"
     "\"handle\":9223372036854775809},null]",
     "ffffffff", "ffffffff", "[4294967295]", "[4294967295]",
     "0102000000010000000000000000000000000000000000000000010000000000000000000000000000000001"
     "00000000000000000000000001000000010000000000000000000000000000000000000080ffffff7f001535"
     "f15a01010000000000008000",
     "0200000001000000000000000000000000000000000000000001000000000000000000000000000000000100"
     "000000000000000000000001000000010000000000000000000000000000000000000080ffffff7f001535f1"
     "5a01010000000000008000",
     0},
    {"empty", "[4294967295]", "[4294967295]", "[]", "null", "ffffffff", "ffffffff", "[4294967295]",
     "[4294967295]", "0100000000", "00000000", 0},
};

struct DetectDynInterfacesExExport {
    static constexpr const char* operation = "detectDynInterfacesEx";
    using Result = kc::ListResult<ModuleDyn, release_ModuleDyn_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kel_detectDynInterfacesEx(api, kc::number<uint32_t>(in[0]), error, &out.data, &out.count);
    }
};

TEST_F(Interfaces, detectDynInterfacesEx_Exchange) {
    kc::exchange<DetectDynInterfacesExExport>(api, kDetectDynInterfacesExCases);
}
TEST_F(Interfaces, detectDynInterfacesEx_Failure) {
    kc::failure<DetectDynInterfacesExExport>(api, kDetectDynInterfacesExCases);
}
TEST_F(InterfacesAdmission, detectDynInterfacesEx) {
    kc::admission<DetectDynInterfacesExExport>(callers(), kDetectDynInterfacesExCases,
                                               kc::Needs::Operator);
}

struct DetectDynInterfacesExAsyncExport {
    static constexpr const char* operation = "detectDynInterfacesExAsync";
    using Reports = kc::Reports<ModuleDyn, release_ModuleDyn_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        return kel_detectDynInterfacesExAsync(api, kc::number<uint32_t>(in[0]), error,
                                              &Reports::onReport, &reports);
    }
};

TEST_F(Interfaces, detectDynInterfacesExAsync_Exchange) {
    kc::asyncExchange<DetectDynInterfacesExAsyncExport>(api, kDetectDynInterfacesExCases);
}
TEST_F(Interfaces, detectDynInterfacesExAsync_Failure) {
    kc::asyncFailure<DetectDynInterfacesExAsyncExport>(api, kDetectDynInterfacesExCases);
}
TEST_F(InterfacesAdmission, detectDynInterfacesExAsync) {
    kc::asyncAdmission<DetectDynInterfacesExAsyncExport>(callers(), kDetectDynInterfacesExCases,
                                                         kc::Needs::Operator);
}

const kc::Number kNumber83{83, "detectDynInterfacesEx", kDetectDynInterfacesExCases};

TEST_F(InterfacesByNumber, n83_detectDynInterfacesEx_KelCall) { kc::kelCall(api, kNumber83); }
TEST_F(InterfacesByNumber, n83_detectDynInterfacesEx_PyCall) { kc::pyCall(api, kNumber83); }
TEST_F(InterfacesByNumber, n83_detectDynInterfacesEx_Failure) { kc::numberFailure(api, kNumber83); }
TEST_F(InterfacesByNumber, n83_detectDynInterfacesEx_ShortInput) { kc::shortInput(api, kNumber83); }

// ---- connectDynInterfaceEx (position 123, number 153) ----

const kc::Case kConnectDynInterfaceExCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 123.1\",128]",
     "[\"Pr\303\274fstand \342\202\254 123.1\",true]", "null", nullptr,
     "140000005072c3bc667374616e6420e282ac203132332e3101",
     "5072c3bc667374616e6420e282ac203132332e310001",
     "[\"Pr\303\274fstand \342\202\254 123.1\",true]",
     "[\"Pr\303\274fstand \342\202\254 123.1\",true]", "01", "", 0},
    {"sparse", "[\"\",128]", "[\"\",true]", "null", nullptr, "0000000001", "0001", "[\"\",true]",
     "[\"\",true]", "01", "", 0},
};

struct ConnectDynInterfaceExExport {
    static constexpr const char* operation = "connectDynInterfaceEx";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        static_cast<void>(out);
        kel_connectDynInterfaceEx(api, a0.get(), kc::number<uint8_t>(in[1]), error);
    }
};

TEST_F(Interfaces, connectDynInterfaceEx_Exchange) {
    kc::exchange<ConnectDynInterfaceExExport>(api, kConnectDynInterfaceExCases);
}
TEST_F(Interfaces, connectDynInterfaceEx_Failure) {
    kc::failure<ConnectDynInterfaceExExport>(api, kConnectDynInterfaceExCases);
}
TEST_F(InterfacesAdmission, connectDynInterfaceEx) {
    kc::admission<ConnectDynInterfaceExExport>(callers(), kConnectDynInterfaceExCases,
                                               kc::Needs::Operator);
}

const char* const kConnectDynInterfaceExNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 123.1\\ud800\",128]",
};
TEST_F(Interfaces, connectDynInterfaceEx_TextWithNoUtf8Form) {
    kc::noUtf8<ConnectDynInterfaceExExport>(api, kConnectDynInterfaceExNoUtf8);
}

const kc::Number kNumber153{153, "connectDynInterfaceEx", kConnectDynInterfaceExCases};

TEST_F(InterfacesByNumber, n153_connectDynInterfaceEx_KelCall) { kc::kelCall(api, kNumber153); }
TEST_F(InterfacesByNumber, n153_connectDynInterfaceEx_PyCall) { kc::pyCall(api, kNumber153); }
TEST_F(InterfacesByNumber, n153_connectDynInterfaceEx_Failure) {
    kc::numberFailure(api, kNumber153);
}
TEST_F(InterfacesByNumber, n153_connectDynInterfaceEx_ShortInput) {
    kc::shortInput(api, kNumber153);
}

// ---- testSocketBridge (position 134, number 157) ----

const kc::Case kTestSocketBridgeCases[] = {
    {"full", "[9223372036854775809]", "[9223372036854775809]", "true", "1", "0100000000000080",
     "0100000000000080", "[9223372036854775809]", "[9223372036854775809]", "0101", "01", 0},
};

struct TestSocketBridgeExport {
    static constexpr const char* operation = "testSocketBridge";
    using Result = kc::ValueResult<uint8_t>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kel_testSocketBridge(api, kc::number<uint64_t>(in[0]), error, &out.data);
    }
};

TEST_F(Interfaces, testSocketBridge_Exchange) {
    kc::exchange<TestSocketBridgeExport>(api, kTestSocketBridgeCases);
}
TEST_F(Interfaces, testSocketBridge_Failure) {
    kc::failure<TestSocketBridgeExport>(api, kTestSocketBridgeCases);
}
TEST_F(InterfacesAdmission, testSocketBridge) {
    kc::admission<TestSocketBridgeExport>(callers(), kTestSocketBridgeCases, kc::Needs::Operator);
}

const kc::Number kNumber157{157, "testSocketBridge", kTestSocketBridgeCases};

TEST_F(InterfacesByNumber, n157_testSocketBridge_KelCall) { kc::kelCall(api, kNumber157); }
TEST_F(InterfacesByNumber, n157_testSocketBridge_PyCall) { kc::pyCall(api, kNumber157); }
TEST_F(InterfacesByNumber, n157_testSocketBridge_Failure) { kc::numberFailure(api, kNumber157); }
TEST_F(InterfacesByNumber, n157_testSocketBridge_ShortInput) { kc::shortInput(api, kNumber157); }

// ---- getRegisteredDevices (position 149, number 182) ----

const kc::Case kGetRegisteredDevicesCases[] = {
    {"full", "[]", "[]",
     "[{\"text1\":\"Pr\303\274fstand \342\202\254 149.1\",\"value1\":4294967295,\"value2\":214"
     "7483648,\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 149.2\",\"text"
     "3\":\"K\303\274hler\\u0009\360\237\224\247 149.3\",\"value3\":2147483647,\"text4\":\"say"
     " \\\"\303\251\\\" 149.4\",\"text5\":\"back\\\\slash \303\237 149.5\",\"value4\":15268912"
     "89,\"value5\":2033843403,\"text6\":\"Z\303\274ndung \360\237\232\227 149.6\",\"protocols"
     "\":[\"Pr\303\274fstand \342\202\254 149.7\",\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 149.8\"],\"text7\":\"K\303\274hler\\u0009\360\237\224\247 149.9\",\"modules"
     "\":[\"say \\\"\303\251\\\" 149.10\",\"back\\\\slash \303\237 149.11\"],\"text8\":\"Z\303"
     "\274ndung \360\237\232\227 149.12\",\"flag\":true,\"handle\":9223372036854775809,\"value"
     "6\":393311871,\"value8\":18446744073709551615,\"value9\":4294967296,\"value10\":15268912"
     "89},{\"text1\":\"Pr\303\274fstand \342\202\254 149.13\",\"value1\":900263985,\"value2\":"
     "1407216099,\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 149.14\",\""
     "text3\":\"K\303\274hler\\u0009\360\237\224\247 149.15\",\"value3\":1914168213,\"text4\":"
     "\"say \\\"\303\251\\\" 149.16\",\"text5\":\"back\\\\slash \303\237 149.17\",\"value4\":2"
     "73636679,\"value5\":780588793,\"text6\":\"Z\303\274ndung \360\237\232\227 149.18\",\"pro"
     "tocols\":[\"Pr\303\274fstand \342\202\254 149.19\",\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 149.20\"],\"text7\":\"K\303\274hler\\u0009\360\237\224\247 149.21"
     "\",\"modules\":[\"say \\\"\303\251\\\" 149.22\",\"back\\\\slash \303\237 149.23\"],\"tex"
     "t8\":\"Z\303\274ndung \360\237\232\227 149.24\",\"flag\":false,\"handle\":2033843403,\"v"
     "alue6\":1287540907,\"value8\":393311871,\"value9\":900263985,\"value10\":1407216099}]",
     "[{\"text1\":\"Pr\303\274fstand \342\202\254 149.1\",\"value1\":4294967295,\"value2\":214"
     "7483648,\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 149.2\",\"text"
     "3\":\"K\303\274hler\\u0009\360\237\224\247 149.3\",\"value3\":2147483647,\"text4\":\"say"
     " \\\"\303\251\\\" 149.4\",\"text5\":\"back\\\\slash \303\237 149.5\",\"value4\":15268912"
     "89,\"value5\":2033843403,\"text6\":\"Z\303\274ndung \360\237\232\227 149.6\",\"protocols"
     "\":[\"Pr\303\274fstand \342\202\254 149.7\",\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 149.8\"],\"protocolCount\":2,\"text7\":\"K\303\274hler\\u0009\360\237\224"
     "\247 149.9\",\"modules\":[\"say \\\"\303\251\\\" 149.10\",\"back\\\\slash \303\237 149.1"
     "1\"],\"moduleCount\":2,\"text8\":\"Z\303\274ndung \360\237\232\227 149.12\",\"flag\":1,"
     "\"handle\":9223372036854775809,\"value6\":393311871,\"value8\":18446744073709551615,\"va"
     "lue9\":4294967296,\"value10\":1526891289},{\"text1\":\"Pr\303\274fstand \342\202\254 149"
     ".13\",\"value1\":900263985,\"value2\":1407216099,\"text2\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 149.14\",\"text3\":\"K\303\274hler\\u0009\360\237\224\247 "
     "149.15\",\"value3\":1914168213,\"text4\":\"say \\\"\303\251\\\" 149.16\",\"text5\":\"bac"
     "k\\\\slash \303\237 149.17\",\"value4\":273636679,\"value5\":780588793,\"text6\":\"Z\303"
     "\274ndung \360\237\232\227 149.18\",\"protocols\":[\"Pr\303\274fstand \342\202\254 149.1"
     "9\",\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 149.20\"],\"protocolCount\":"
     "2,\"text7\":\"K\303\274hler\\u0009\360\237\224\247 149.21\",\"modules\":[\"say \\\"\303"
     "\251\\\" 149.22\",\"back\\\\slash \303\237 149.23\"],\"moduleCount\":2,\"text8\":\"Z\303"
     "\274ndung \360\237\232\227 149.24\",\"flag\":0,\"handle\":2033843403,\"value6\":12875409"
     "07,\"value8\":393311871,\"value9\":900263985,\"value10\":1407216099}]",
     "", "", "[]", "[]",
     "010200000001140000005072c3bc667374616e6420e282ac203134392e31ffffffff0000008014000000e697"
     "a5e69cace8aa9e20f09d849e203134392e32120000004bc3bc686c657209f09f94a7203134392e33ffffff7f"
     "0e0000007361792022c3a922203134392e34130000006261636b5c736c61736820c39f203134392e35198302"
     "5bcbfc3979130000005ac3bc6e64756e6720f09f9a97203134392e3602000000140000005072c3bc66737461"
     "6e6420e282ac203134392e3714000000e697a5e69cace8aa9e20f09d849e203134392e38120000004bc3bc68"
     "6c657209f09f94a7203134392e39020000000f0000007361792022c3a922203134392e313014000000626163"
     "6b5c736c61736820c39f203134392e3131140000005ac3bc6e64756e6720f09f9a97203134392e3132010100"
     "0000000000807f767117ffffffffffffffff00000000010000001983025b0000000001150000005072c3bc66"
     "7374616e6420e282ac203134392e313331f0a835e369e05315000000e697a5e69cace8aa9e20f09d849e2031"
     "34392e3134130000004bc3bc686c657209f09f94a7203134392e313595e317720f0000007361792022c3a922"
     "203134392e3136140000006261636b5c736c61736820c39f203134392e3137475d4f10f9d6862e140000005a"
     "c3bc6e64756e6720f09f9a97203134392e313802000000150000005072c3bc667374616e6420e282ac203134"
     "392e313915000000e697a5e69cace8aa9e20f09d849e203134392e3230130000004bc3bc686c657209f09f94"
     "a7203134392e3231020000000f0000007361792022c3a922203134392e3232140000006261636b5c736c6173"
     "6820c39f203134392e3233140000005ac3bc6e64756e6720f09f9a97203134392e323400cbfc397900000000"
     "ab50be4c7f7671170000000031f0a83500000000e369e05300000000",
     "0200000001140000005072c3bc667374616e6420e282ac203134392e31ffffffff0000008014000000e697a5"
     "e69cace8aa9e20f09d849e203134392e32120000004bc3bc686c657209f09f94a7203134392e33ffffff7f0e"
     "0000007361792022c3a922203134392e34130000006261636b5c736c61736820c39f203134392e351983025b"
     "cbfc3979130000005ac3bc6e64756e6720f09f9a97203134392e3602000000140000005072c3bc667374616e"
     "6420e282ac203134392e3714000000e697a5e69cace8aa9e20f09d849e203134392e38120000004bc3bc686c"
     "657209f09f94a7203134392e39020000000f0000007361792022c3a922203134392e3130140000006261636b"
     "5c736c61736820c39f203134392e3131140000005ac3bc6e64756e6720f09f9a97203134392e313201010000"
     "00000000807f767117ffffffffffffffff00000000010000001983025b0000000001150000005072c3bc6673"
     "74616e6420e282ac203134392e313331f0a835e369e05315000000e697a5e69cace8aa9e20f09d849e203134"
     "392e3134130000004bc3bc686c657209f09f94a7203134392e313595e317720f0000007361792022c3a92220"
     "3134392e3136140000006261636b5c736c61736820c39f203134392e3137475d4f10f9d6862e140000005ac3"
     "bc6e64756e6720f09f9a97203134392e313802000000150000005072c3bc667374616e6420e282ac20313439"
     "2e313915000000e697a5e69cace8aa9e20f09d849e203134392e3230130000004bc3bc686c657209f09f94a7"
     "203134392e3231020000000f0000007361792022c3a922203134392e3232140000006261636b5c736c617368"
     "20c39f203134392e3233140000005ac3bc6e64756e6720f09f9a97203134392e323400cbfc397900000000ab"
     "50be4c7f7671170000000031f0a83500000000e369e05300000000",
     0},
    {"sparse", "[]", "[]",
     "[{\"text1\":\"\",\"value1\":4294967295,\"value2\":2147483648,\"text2\":\"\",\"text3\":\""
     "\",\"value3\":2147483647,\"text4\":\"\",\"text5\":\"\",\"value4\":1526891289,\"value5\":"
     "2033843403,\"text6\":\"\",\"protocols\":[],\"text7\":\"\",\"modules\":[],\"text8\":\"\","
     "\"flag\":true,\"handle\":9223372036854775809,\"value6\":393311871,\"value8\":18446744073"
     "709551615,\"value9\":4294967296,\"value10\":1526891289},null]",
     "[{\"text1\":\"\",\"value1\":4294967295,\"value2\":2147483648,\"text2\":\"\",\"text3\":\""
     "\",\"value3\":2147483647,\"text4\":\"\",\"text5\":\"\",\"value4\":1526891289,\"value5\":"
     "2033843403,\"text6\":\"\",\"protocols\":null,\"protocolCount\":0,\"text7\":\"\",\"module"
     "s\":null,\"moduleCount\":0,\"text8\":\"\",\"flag\":1,\"handle\":9223372036854775809,\"va"
     "lue6\":393311871,\"value8\":18446744073709551615,\"value9\":4294967296,\"value10\":15268"
     "91289},null]",
     "", "", "[]", "[]",
     "01020000000100000000ffffffff000000800000000000000000ffffff7f00000000000000001983025bcbfc"
     "397900000000000000000000000000000000000000000101000000000000807f767117ffffffffffffffff00"
     "000000010000001983025b0000000000",
     "020000000100000000ffffffff000000800000000000000000ffffff7f00000000000000001983025bcbfc39"
     "7900000000000000000000000000000000000000000101000000000000807f767117ffffffffffffffff0000"
     "0000010000001983025b0000000000",
     0},
    {"empty", "[]", "[]", "[]", "null", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct GetRegisteredDevicesExport {
    static constexpr const char* operation = "getRegisteredDevices";
    using Result = kc::ListResult<DeviceInfo, release_DeviceInfo_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getRegisteredDevices(api, error, &out.data, &out.count);
    }
};

TEST_F(Interfaces, getRegisteredDevices_Exchange) {
    kc::exchange<GetRegisteredDevicesExport>(api, kGetRegisteredDevicesCases);
}
TEST_F(Interfaces, getRegisteredDevices_Failure) {
    kc::failure<GetRegisteredDevicesExport>(api, kGetRegisteredDevicesCases);
}
TEST_F(InterfacesAdmission, getRegisteredDevices) {
    kc::admission<GetRegisteredDevicesExport>(callers(), kGetRegisteredDevicesCases,
                                              kc::Needs::Operator);
}

const kc::Number kNumber182{182, "getRegisteredDevices", kGetRegisteredDevicesCases};

TEST_F(InterfacesByNumber, n182_getRegisteredDevices_KelCall) { kc::kelCall(api, kNumber182); }
TEST_F(InterfacesByNumber, n182_getRegisteredDevices_PyCall) { kc::pyCall(api, kNumber182); }
TEST_F(InterfacesByNumber, n182_getRegisteredDevices_Failure) {
    kc::numberFailure(api, kNumber182);
}

// ---- getPhysicalLinks (position 182, number 217) ----

const kc::Case kGetPhysicalLinksCases[] = {
    {"full",
     "[[\"Pr\303\274fstand \342\202\254 182.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 182.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 182.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 182.2\"]]",
     "[{\"module\":\"K\303\274hler\\u0009\360\237\224\247 182.3\",\"links\":[{\"itemText1\":\""
     "say \\\"\303\251\\\" 182.4\",\"itemText2\":\"back\\\\slash \303\237 182.5\",\"itemText3"
     "\":\"Z\303\274ndung \360\237\232\227 182.6\",\"itemText4\":\"Pr\303\274fstand \342\202"
     "\254 182.7\",\"baudrate\":4294967295,\"enabled\":true},{\"itemText1\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 182.8\",\"itemText2\":\"K\303\274hler\\u0009\360"
     "\237\224\247 182.9\",\"itemText3\":\"say \\\"\303\251\\\" 182.10\",\"itemText4\":\"back"
     "\\\\slash \303\237 182.11\",\"baudrate\":2147483648,\"enabled\":false}]},{\"module\":\"Z"
     "\303\274ndung \360\237\232\227 182.12\",\"links\":[]}]",
     "[{\"module\":\"K\303\274hler\\u0009\360\237\224\247 182.3\",\"links\":[{\"itemText1\":\""
     "say \\\"\303\251\\\" 182.4\",\"itemText2\":\"back\\\\slash \303\237 182.5\",\"itemText3"
     "\":\"Z\303\274ndung \360\237\232\227 182.6\",\"itemText4\":\"Pr\303\274fstand \342\202"
     "\254 182.7\",\"baudrate\":4294967295,\"enabled\":1},{\"itemText1\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 182.8\",\"itemText2\":\"K\303\274hler\\u0009\360"
     "\237\224\247 182.9\",\"itemText3\":\"say \\\"\303\251\\\" 182.10\",\"itemText4\":\"back"
     "\\\\slash \303\237 182.11\",\"baudrate\":2147483648,\"enabled\":0}],\"linkCount\":2},{\""
     "module\":\"Z\303\274ndung \360\237\232\227 182.12\",\"links\":null,\"linkCount\":0}]",
     "03000000140000005072c3bc667374616e6420e282ac203138322e310000000014000000e697a5e69cace8aa"
     "9e20f09d849e203138322e32",
     "030000005072c3bc667374616e6420e282ac203138322e310000e697a5e69cace8aa9e20f09d849e20313832"
     "2e3200",
     "[[\"Pr\303\274fstand \342\202\254 182.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 182.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 182.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 182.2\"]]",
     "010200000001120000004bc3bc686c657209f09f94a7203138322e3302000000010e0000007361792022c3a9"
     "22203138322e34130000006261636b5c736c61736820c39f203138322e35130000005ac3bc6e64756e6720f0"
     "9f9a97203138322e36140000005072c3bc667374616e6420e282ac203138322e37ffffffff010114000000e6"
     "97a5e69cace8aa9e20f09d849e203138322e38120000004bc3bc686c657209f09f94a7203138322e390f0000"
     "007361792022c3a922203138322e3130140000006261636b5c736c61736820c39f203138322e313100000080"
     "0001140000005ac3bc6e64756e6720f09f9a97203138322e313200000000",
     "0200000001120000004bc3bc686c657209f09f94a7203138322e3302000000010e0000007361792022c3a922"
     "203138322e34130000006261636b5c736c61736820c39f203138322e35130000005ac3bc6e64756e6720f09f"
     "9a97203138322e36140000005072c3bc667374616e6420e282ac203138322e37ffffffff010114000000e697"
     "a5e69cace8aa9e20f09d849e203138322e38120000004bc3bc686c657209f09f94a7203138322e390f000000"
     "7361792022c3a922203138322e3130140000006261636b5c736c61736820c39f203138322e31310000008000"
     "01140000005ac3bc6e64756e6720f09f9a97203138322e313200000000",
     0},
    {"sparse", "[[]]", "[[]]",
     "[{\"module\":\"\",\"links\":[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\","
     "\"itemText4\":\"\",\"baudrate\":4294967295,\"enabled\":true}]},null]",
     "[{\"module\":\"\",\"links\":[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\","
     "\"itemText4\":\"\",\"baudrate\":4294967295,\"enabled\":1}],\"linkCount\":1},null]",
     "00000000", "00000000", "[[]]", "[[]]",
     "01020000000100000000010000000100000000000000000000000000000000ffffffff0100",
     "020000000100000000010000000100000000000000000000000000000000ffffffff0100", 0},
    {"empty", "[[]]", "[[]]", "[]", "null", "00000000", "00000000", "[[]]", "[[]]", "0100000000",
     "00000000", 0},
};

struct GetPhysicalLinksExport {
    static constexpr const char* operation = "getPhysicalLinks";
    using Result = kc::ListResult<PhysicalLinksOnModule, release_PhysicalLinksOnModule_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::Texts a0(in[0]);
        kel_getPhysicalLinks(api, a0.data(), a0.count(), error, &out.data, &out.count);
    }
};

TEST_F(Interfaces, getPhysicalLinks_Exchange) {
    kc::exchange<GetPhysicalLinksExport>(api, kGetPhysicalLinksCases);
}
TEST_F(Interfaces, getPhysicalLinks_Failure) {
    kc::failure<GetPhysicalLinksExport>(api, kGetPhysicalLinksCases);
}
TEST_F(InterfacesAdmission, getPhysicalLinks) {
    kc::admission<GetPhysicalLinksExport>(callers(), kGetPhysicalLinksCases, kc::Needs::Operator);
}

const char* const kGetPhysicalLinksNoUtf8[] = {
    "[[\"\\udc00Pr\303\274fstand \342\202\254 182.1\\ud800\",\"\",\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 182.2\"]]",
};
TEST_F(Interfaces, getPhysicalLinks_TextWithNoUtf8Form) {
    kc::noUtf8<GetPhysicalLinksExport>(api, kGetPhysicalLinksNoUtf8);
}

const kc::Number kNumber217{217, "getPhysicalLinks", kGetPhysicalLinksCases};

TEST_F(InterfacesByNumber, n217_getPhysicalLinks_KelCall) { kc::kelCall(api, kNumber217); }
TEST_F(InterfacesByNumber, n217_getPhysicalLinks_PyCall) { kc::pyCall(api, kNumber217); }
TEST_F(InterfacesByNumber, n217_getPhysicalLinks_Failure) { kc::numberFailure(api, kNumber217); }
TEST_F(InterfacesByNumber, n217_getPhysicalLinks_ShortInput) { kc::shortInput(api, kNumber217); }

// ---- setPhysicalLinks (position 183, number 218) ----

const kc::Case kSetPhysicalLinksCases[] = {
    {"full",
     "[[{\"module\":\"Pr\303\274fstand \342\202\254 183.1\",\"links\":[{\"itemText1\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 183.2\",\"itemText2\":\"K\303\274hler"
     "\\u0009\360\237\224\247 183.3\",\"itemText3\":\"say \\\"\303\251\\\" 183.4\",\"itemText4"
     "\":\"back\\\\slash \303\237 183.5\",\"baudrate\":4294967295,\"enabled\":128},{\"itemText"
     "1\":\"Z\303\274ndung \360\237\232\227 183.6\",\"itemText2\":\"Pr\303\274fstand \342\202"
     "\254 183.7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 183.8"
     "\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 183.9\",\"baudrate\":2147483648,"
     "\"enabled\":0}]},{\"module\":\"say \\\"\303\251\\\" 183.10\",\"links\":[]}]]",
     "[[{\"module\":\"Pr\303\274fstand \342\202\254 183.1\",\"links\":[{\"itemText1\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 183.2\",\"itemText2\":\"K\303\274hler"
     "\\u0009\360\237\224\247 183.3\",\"itemText3\":\"say \\\"\303\251\\\" 183.4\",\"itemText4"
     "\":\"back\\\\slash \303\237 183.5\",\"baudrate\":4294967295,\"enabled\":true},{\"itemTex"
     "t1\":\"Z\303\274ndung \360\237\232\227 183.6\",\"itemText2\":\"Pr\303\274fstand \342\202"
     "\254 183.7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 183.8"
     "\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 183.9\",\"baudrate\":2147483648,"
     "\"enabled\":false}]},{\"module\":\"say \\\"\303\251\\\" 183.10\",\"links\":[]}]]",
     "[{\"module\":\"back\\\\slash \303\237 183.11\",\"links\":[{\"itemText1\":\"Z\303\274ndun"
     "g \360\237\232\227 183.12\",\"itemText2\":\"Pr\303\274fstand \342\202\254 183.13\",\"ite"
     "mText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 183.14\",\"itemText4\":"
     "\"K\303\274hler\\u0009\360\237\224\247 183.15\",\"baudrate\":2147483647,\"enabled\":true"
     "},{\"itemText1\":\"say \\\"\303\251\\\" 183.16\",\"itemText2\":\"back\\\\slash \303\237 "
     "183.17\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 183.18\",\"itemText4\":\"Pr\303"
     "\274fstand \342\202\254 183.19\",\"baudrate\":1528268391,\"enabled\":false}]},{\"module"
     "\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 183.20\",\"links\":[]}]",
     "[{\"module\":\"back\\\\slash \303\237 183.11\",\"links\":[{\"itemText1\":\"Z\303\274ndun"
     "g \360\237\232\227 183.12\",\"itemText2\":\"Pr\303\274fstand \342\202\254 183.13\",\"ite"
     "mText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 183.14\",\"itemText4\":"
     "\"K\303\274hler\\u0009\360\237\224\247 183.15\",\"baudrate\":2147483647,\"enabled\":1},{"
     "\"itemText1\":\"say \\\"\303\251\\\" 183.16\",\"itemText2\":\"back\\\\slash \303\237 183"
     ".17\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 183.18\",\"itemText4\":\"Pr\303"
     "\274fstand \342\202\254 183.19\",\"baudrate\":1528268391,\"enabled\":0}],\"linkCount\":2"
     "},{\"module\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 183.20\",\"links\""
     ":null,\"linkCount\":0}]",
     "02000000140000005072c3bc667374616e6420e282ac203138332e310200000014000000e697a5e69cace8aa"
     "9e20f09d849e203138332e32120000004bc3bc686c657209f09f94a7203138332e330e0000007361792022c3"
     "a922203138332e34130000006261636b5c736c61736820c39f203138332e35ffffffff01130000005ac3bc6e"
     "64756e6720f09f9a97203138332e36140000005072c3bc667374616e6420e282ac203138332e3714000000e6"
     "97a5e69cace8aa9e20f09d849e203138332e38120000004bc3bc686c657209f09f94a7203138332e39000000"
     "80000f0000007361792022c3a922203138332e313000000000",
     "02000000015072c3bc667374616e6420e282ac203138332e31000200000001e697a5e69cace8aa9e20f09d84"
     "9e203138332e32004bc3bc686c657209f09f94a7203138332e33007361792022c3a922203138332e34006261"
     "636b5c736c61736820c39f203138332e3500ffffffff01015ac3bc6e64756e6720f09f9a97203138332e3600"
     "5072c3bc667374616e6420e282ac203138332e3700e697a5e69cace8aa9e20f09d849e203138332e38004bc3"
     "bc686c657209f09f94a7203138332e39000000008000017361792022c3a922203138332e31300000000000",
     "[[{\"module\":\"Pr\303\274fstand \342\202\254 183.1\",\"links\":[{\"itemText1\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 183.2\",\"itemText2\":\"K\303\274hler"
     "\\u0009\360\237\224\247 183.3\",\"itemText3\":\"say \\\"\303\251\\\" 183.4\",\"itemText4"
     "\":\"back\\\\slash \303\237 183.5\",\"baudrate\":4294967295,\"enabled\":true},{\"itemTex"
     "t1\":\"Z\303\274ndung \360\237\232\227 183.6\",\"itemText2\":\"Pr\303\274fstand \342\202"
     "\254 183.7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 183.8"
     "\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 183.9\",\"baudrate\":2147483648,"
     "\"enabled\":false}]},{\"module\":\"say \\\"\303\251\\\" 183.10\",\"links\":[]}]]",
     "[[{\"module\":\"Pr\303\274fstand \342\202\254 183.1\",\"links\":[{\"itemText1\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 183.2\",\"itemText2\":\"K\303\274hler"
     "\\u0009\360\237\224\247 183.3\",\"itemText3\":\"say \\\"\303\251\\\" 183.4\",\"itemText4"
     "\":\"back\\\\slash \303\237 183.5\",\"baudrate\":4294967295,\"enabled\":true},{\"itemTex"
     "t1\":\"Z\303\274ndung \360\237\232\227 183.6\",\"itemText2\":\"Pr\303\274fstand \342\202"
     "\254 183.7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 183.8"
     "\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 183.9\",\"baudrate\":2147483648,"
     "\"enabled\":false}]},{\"module\":\"say \\\"\303\251\\\" 183.10\",\"links\":[]}]]",
     "010200000001140000006261636b5c736c61736820c39f203138332e31310200000001140000005ac3bc6e64"
     "756e6720f09f9a97203138332e3132150000005072c3bc667374616e6420e282ac203138332e313315000000"
     "e697a5e69cace8aa9e20f09d849e203138332e3134130000004bc3bc686c657209f09f94a7203138332e3135"
     "ffffff7f01010f0000007361792022c3a922203138332e3136140000006261636b5c736c61736820c39f2031"
     "38332e3137140000005ac3bc6e64756e6720f09f9a97203138332e3138150000005072c3bc667374616e6420"
     "e282ac203138332e31396786175b000115000000e697a5e69cace8aa9e20f09d849e203138332e3230000000"
     "00",
     "0200000001140000006261636b5c736c61736820c39f203138332e31310200000001140000005ac3bc6e6475"
     "6e6720f09f9a97203138332e3132150000005072c3bc667374616e6420e282ac203138332e313315000000e6"
     "97a5e69cace8aa9e20f09d849e203138332e3134130000004bc3bc686c657209f09f94a7203138332e3135ff"
     "ffff7f01010f0000007361792022c3a922203138332e3136140000006261636b5c736c61736820c39f203138"
     "332e3137140000005ac3bc6e64756e6720f09f9a97203138332e3138150000005072c3bc667374616e6420e2"
     "82ac203138332e31396786175b000115000000e697a5e69cace8aa9e20f09d849e203138332e323000000000",
     0},
    {"sparse", "[[]]", "[[]]",
     "[{\"module\":\"\",\"links\":[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\","
     "\"itemText4\":\"\",\"baudrate\":4294967295,\"enabled\":true}]},null]",
     "[{\"module\":\"\",\"links\":[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\","
     "\"itemText4\":\"\",\"baudrate\":4294967295,\"enabled\":1}],\"linkCount\":1},null]",
     "00000000", "00000000", "[[]]", "[[]]",
     "01020000000100000000010000000100000000000000000000000000000000ffffffff0100",
     "020000000100000000010000000100000000000000000000000000000000ffffffff0100", 0},
    {"empty", "[[]]", "[[]]", "[]", "null", "00000000", "00000000", "[[]]", "[[]]", "0100000000",
     "00000000", 0},
};

struct SetPhysicalLinksExport {
    static constexpr const char* operation = "setPhysicalLinks";
    using Result = kc::ListResult<PhysicalLinksOnModule, release_PhysicalLinksOnModule_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::RecordList<PhysicalLinksOnModule, release_PhysicalLinksOnModule_array> a0(in[0]);
        kel_setPhysicalLinks(api, a0.data(), a0.count(), error, &out.data, &out.count);
    }
};

TEST_F(Interfaces, setPhysicalLinks_Exchange) {
    kc::exchange<SetPhysicalLinksExport>(api, kSetPhysicalLinksCases);
}
TEST_F(Interfaces, setPhysicalLinks_Failure) {
    kc::failure<SetPhysicalLinksExport>(api, kSetPhysicalLinksCases);
}
TEST_F(InterfacesAdmission, setPhysicalLinks) {
    kc::admission<SetPhysicalLinksExport>(callers(), kSetPhysicalLinksCases, kc::Needs::Operator);
}

const char* const kSetPhysicalLinksNoUtf8[] = {
    "[[{\"module\":\"\\udc00Pr\303\274fstand \342\202\254 183.1\\ud800\",\"links\":[{\"itemTe"
    "xt1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 183.2\",\"itemText2\":\"K"
    "\303\274hler\\t\360\237\224\247 183.3\",\"itemText3\":\"say \\\"\303\251\\\" 183.4\",\"i"
    "temText4\":\"back\\\\slash \303\237 183.5\",\"baudrate\":4294967295,\"enabled\":128},{\""
    "itemText1\":\"Z\303\274ndung \360\237\232\227 183.6\",\"itemText2\":\"Pr\303\274fstand "
    "\342\202\254 183.7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
    "\236 183.8\",\"itemText4\":\"K\303\274hler\\t\360\237\224\247 183.9\",\"baudrate\":21474"
    "83648,\"enabled\":0}]},{\"module\":\"say \\\"\303\251\\\" 183.10\",\"links\":[]}]]",
    "[[{\"module\":\"Pr\303\274fstand \342\202\254 183.1\",\"links\":[{\"itemText1\":\"\\udc0"
    "0\346\227\245\346\234\254\350\252\236 \360\235\204\236 183.2\\ud800\",\"itemText2\":\"K"
    "\303\274hler\\t\360\237\224\247 183.3\",\"itemText3\":\"say \\\"\303\251\\\" 183.4\",\"i"
    "temText4\":\"back\\\\slash \303\237 183.5\",\"baudrate\":4294967295,\"enabled\":128},{\""
    "itemText1\":\"Z\303\274ndung \360\237\232\227 183.6\",\"itemText2\":\"Pr\303\274fstand "
    "\342\202\254 183.7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
    "\236 183.8\",\"itemText4\":\"K\303\274hler\\t\360\237\224\247 183.9\",\"baudrate\":21474"
    "83648,\"enabled\":0}]},{\"module\":\"say \\\"\303\251\\\" 183.10\",\"links\":[]}]]",
    "[[{\"module\":\"Pr\303\274fstand \342\202\254 183.1\",\"links\":[{\"itemText1\":\"\346"
    "\227\245\346\234\254\350\252\236 \360\235\204\236 183.2\",\"itemText2\":\"\\udc00K\303"
    "\274hler\\t\360\237\224\247 183.3\\ud800\",\"itemText3\":\"say \\\"\303\251\\\" 183.4\","
    "\"itemText4\":\"back\\\\slash \303\237 183.5\",\"baudrate\":4294967295,\"enabled\":128},"
    "{\"itemText1\":\"Z\303\274ndung \360\237\232\227 183.6\",\"itemText2\":\"Pr\303\274fstan"
    "d \342\202\254 183.7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
    "\236 183.8\",\"itemText4\":\"K\303\274hler\\t\360\237\224\247 183.9\",\"baudrate\":21474"
    "83648,\"enabled\":0}]},{\"module\":\"say \\\"\303\251\\\" 183.10\",\"links\":[]}]]",
    "[[{\"module\":\"Pr\303\274fstand \342\202\254 183.1\",\"links\":[{\"itemText1\":\"\346"
    "\227\245\346\234\254\350\252\236 \360\235\204\236 183.2\",\"itemText2\":\"K\303\274hler"
    "\\t\360\237\224\247 183.3\",\"itemText3\":\"\\udc00say \\\"\303\251\\\" 183.4\\ud800\","
    "\"itemText4\":\"back\\\\slash \303\237 183.5\",\"baudrate\":4294967295,\"enabled\":128},"
    "{\"itemText1\":\"Z\303\274ndung \360\237\232\227 183.6\",\"itemText2\":\"Pr\303\274fstan"
    "d \342\202\254 183.7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
    "\236 183.8\",\"itemText4\":\"K\303\274hler\\t\360\237\224\247 183.9\",\"baudrate\":21474"
    "83648,\"enabled\":0}]},{\"module\":\"say \\\"\303\251\\\" 183.10\",\"links\":[]}]]",
    "[[{\"module\":\"Pr\303\274fstand \342\202\254 183.1\",\"links\":[{\"itemText1\":\"\346"
    "\227\245\346\234\254\350\252\236 \360\235\204\236 183.2\",\"itemText2\":\"K\303\274hler"
    "\\t\360\237\224\247 183.3\",\"itemText3\":\"say \\\"\303\251\\\" 183.4\",\"itemText4\":"
    "\"\\udc00back\\\\slash \303\237 183.5\\ud800\",\"baudrate\":4294967295,\"enabled\":128},"
    "{\"itemText1\":\"Z\303\274ndung \360\237\232\227 183.6\",\"itemText2\":\"Pr\303\274fstan"
    "d \342\202\254 183.7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
    "\236 183.8\",\"itemText4\":\"K\303\274hler\\t\360\237\224\247 183.9\",\"baudrate\":21474"
    "83648,\"enabled\":0}]},{\"module\":\"say \\\"\303\251\\\" 183.10\",\"links\":[]}]]",
};
TEST_F(Interfaces, setPhysicalLinks_TextWithNoUtf8Form) {
    kc::noUtf8<SetPhysicalLinksExport>(api, kSetPhysicalLinksNoUtf8);
}

const kc::Number kNumber218{218, "setPhysicalLinks", kSetPhysicalLinksCases};

TEST_F(InterfacesByNumber, n218_setPhysicalLinks_KelCall) { kc::kelCall(api, kNumber218); }
TEST_F(InterfacesByNumber, n218_setPhysicalLinks_PyCall) { kc::pyCall(api, kNumber218); }
TEST_F(InterfacesByNumber, n218_setPhysicalLinks_Failure) { kc::numberFailure(api, kNumber218); }
TEST_F(InterfacesByNumber, n218_setPhysicalLinks_ShortInput) { kc::shortInput(api, kNumber218); }

// ---- openTerminal (position 196, number 227) ----

const kc::Case kOpenTerminalCases[] = {
    {"full", "[]", "[]", "true", "1", "", "", "[]", "[]", "0101", "01", 0},
};

struct OpenTerminalExport {
    static constexpr const char* operation = "openTerminal";
    using Result = kc::ValueResult<uint8_t>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_openTerminal(api, error, &out.data);
    }
};

TEST_F(Interfaces, openTerminal_Exchange) {
    kc::exchange<OpenTerminalExport>(api, kOpenTerminalCases);
}
TEST_F(Interfaces, openTerminal_Failure) {
    kc::failure<OpenTerminalExport>(api, kOpenTerminalCases);
}
TEST_F(InterfacesAdmission, openTerminal) {
    kc::admission<OpenTerminalExport>(callers(), kOpenTerminalCases, kc::Needs::Operator);
}

const kc::Number kNumber227{227, "openTerminal", kOpenTerminalCases};

TEST_F(InterfacesByNumber, n227_openTerminal_KelCall) { kc::kelCall(api, kNumber227); }
TEST_F(InterfacesByNumber, n227_openTerminal_PyCall) { kc::pyCall(api, kNumber227); }
TEST_F(InterfacesByNumber, n227_openTerminal_Failure) { kc::numberFailure(api, kNumber227); }

// ---- closeTerminal (position 197, number 228) ----

const kc::Case kCloseTerminalCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct CloseTerminalExport {
    static constexpr const char* operation = "closeTerminal";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_closeTerminal(api, error);
    }
};

TEST_F(Interfaces, closeTerminal_Exchange) {
    kc::exchange<CloseTerminalExport>(api, kCloseTerminalCases);
}
TEST_F(Interfaces, closeTerminal_Failure) {
    kc::failure<CloseTerminalExport>(api, kCloseTerminalCases);
}
TEST_F(InterfacesAdmission, closeTerminal) {
    kc::admission<CloseTerminalExport>(callers(), kCloseTerminalCases, kc::Needs::Operator);
}

const kc::Number kNumber228{228, "closeTerminal", kCloseTerminalCases};

TEST_F(InterfacesByNumber, n228_closeTerminal_KelCall) { kc::kelCall(api, kNumber228); }
TEST_F(InterfacesByNumber, n228_closeTerminal_PyCall) { kc::pyCall(api, kNumber228); }
TEST_F(InterfacesByNumber, n228_closeTerminal_Failure) { kc::numberFailure(api, kNumber228); }

// ---- getWLanSignalData (position 204, number 235) ----

const kc::Case kGetWLanSignalDataCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 204.1\"]",
     "[\"Pr\303\274fstand \342\202\254 204.1\"]",
     "{\"value1\":4294967295,\"value2\":2147483648,\"value3\":2147483647,\"value4\":1529118955"
     ",\"value5\":2036071069,\"value6\":9223372036854775809,\"value7\":395539535,\"value8\":90"
     "2491649,\"value9\":1409443763,\"value10\":1916395877,\"value11\":65535,\"text\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 204.2\"}",
     "{\"value1\":4294967295,\"value2\":2147483648,\"value3\":2147483647,\"value4\":1529118955"
     ",\"value5\":2036071069,\"value6\":9223372036854775809,\"value7\":395539535,\"value8\":90"
     "2491649,\"value9\":1409443763,\"value10\":1916395877,\"value11\":65535,\"text\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 204.2\"}",
     "140000005072c3bc667374616e6420e282ac203230342e31",
     "5072c3bc667374616e6420e282ac203230342e3100", "[\"Pr\303\274fstand \342\202\254 204.1\"]",
     "[\"Pr\303\274fstand \342\202\254 204.1\"]",
     "0101ffffffff00000080ffffff7feb80245b9dfa5b7901000000000000804f74931701eeca35b367025465e1"
     "3972ffff14000000e697a5e69cace8aa9e20f09d849e203230342e32",
     "01ffffffff00000080ffffff7feb80245b9dfa5b7901000000000000804f74931701eeca35b367025465e139"
     "72ffff14000000e697a5e69cace8aa9e20f09d849e203230342e32",
     0},
    {"sparse", "[\"\"]", "[\"\"]",
     "{\"value1\":4294967295,\"value2\":2147483648,\"value3\":2147483647,\"value4\":1529118955"
     ",\"value5\":2036071069,\"value6\":9223372036854775809,\"value7\":395539535,\"value8\":90"
     "2491649,\"value9\":1409443763,\"value10\":1916395877,\"value11\":65535,\"text\":\"\"}",
     "{\"value1\":4294967295,\"value2\":2147483648,\"value3\":2147483647,\"value4\":1529118955"
     ",\"value5\":2036071069,\"value6\":9223372036854775809,\"value7\":395539535,\"value8\":90"
     "2491649,\"value9\":1409443763,\"value10\":1916395877,\"value11\":65535,\"text\":\"\"}",
     "00000000", "00", "[\"\"]", "[\"\"]",
     "0101ffffffff00000080ffffff7feb80245b9dfa5b7901000000000000804f74931701eeca35b367025465e1"
     "3972ffff00000000",
     "01ffffffff00000080ffffff7feb80245b9dfa5b7901000000000000804f74931701eeca35b367025465e139"
     "72ffff00000000",
     0},
    {"empty", "[\"\"]", "[\"\"]", "null", "null", "00000000", "00", "[\"\"]", "[\"\"]", "0100",
     "00", 0},
};

struct GetWLanSignalDataExport {
    static constexpr const char* operation = "getWLanSignalData";
    using Result = kc::RecordResult<WLanSignalData, release_WLanSignalData>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kel_getWLanSignalData(api, a0.get(), error, &out.data);
    }
};

TEST_F(Interfaces, getWLanSignalData_Exchange) {
    kc::exchange<GetWLanSignalDataExport>(api, kGetWLanSignalDataCases);
}
TEST_F(Interfaces, getWLanSignalData_Failure) {
    kc::failure<GetWLanSignalDataExport>(api, kGetWLanSignalDataCases);
}
TEST_F(InterfacesAdmission, getWLanSignalData) {
    kc::admission<GetWLanSignalDataExport>(callers(), kGetWLanSignalDataCases, kc::Needs::Operator);
}

const char* const kGetWLanSignalDataNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 204.1\\ud800\"]",
};
TEST_F(Interfaces, getWLanSignalData_TextWithNoUtf8Form) {
    kc::noUtf8<GetWLanSignalDataExport>(api, kGetWLanSignalDataNoUtf8);
}

const kc::Number kNumber235{235, "getWLanSignalData", kGetWLanSignalDataCases};

TEST_F(InterfacesByNumber, n235_getWLanSignalData_KelCall) { kc::kelCall(api, kNumber235); }
TEST_F(InterfacesByNumber, n235_getWLanSignalData_PyCall) { kc::pyCall(api, kNumber235); }
TEST_F(InterfacesByNumber, n235_getWLanSignalData_Failure) { kc::numberFailure(api, kNumber235); }
TEST_F(InterfacesByNumber, n235_getWLanSignalData_ShortInput) { kc::shortInput(api, kNumber235); }

// ---- clearDoIPEcuCollection (position 205, number 236) ----

const kc::Case kClearDoIPEcuCollectionCases[] = {
    {"full", "[]", "[]",
     "[{\"code\":-2147483648,\"message\":\"Pr\303\274fstand \342\202\254 205.1\",\"details\":"
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 205.2\",\"subCode\":2147483647,"
     "\"mvciError\":{\"code\":-1,\"codeText\":\"K\303\274hler\\u0009\360\237\224\247 205.3\","
     "\"vendorCode\":-65536,\"vendorCodeText\":\"say \\\"\303\251\\\" 205.4\",\"extraText\":\""
     "back\\\\slash \303\237 205.5\",\"extraCode\":2036111571},\"negativeResponse\":{\"code\":"
     "-395580039,\"text\":\"Z\303\274ndung \360\237\232\227 205.6\",\"value1\":922337203685477"
     "5809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128]}},{\"code\":902532153,\"m"
     "essage\":\"Pr\303\274fstand \342\202\254 205.7\",\"details\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 205.8\",\"subCode\":-1409484267,\"mvciError\":null,\"negat"
     "iveResponse\":null}]",
     "[{\"code\":-2147483648,\"message\":\"Pr\303\274fstand \342\202\254 205.1\",\"details\":"
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 205.2\",\"subCode\":2147483647,"
     "\"mvciError\":{\"code\":-1,\"codeText\":\"K\303\274hler\\u0009\360\237\224\247 205.3\","
     "\"vendorCode\":-65536,\"vendorCodeText\":\"say \\\"\303\251\\\" 205.4\",\"extraText\":\""
     "back\\\\slash \303\237 205.5\",\"extraCode\":2036111571},\"negativeResponse\":{\"code\":"
     "-395580039,\"text\":\"Z\303\274ndung \360\237\232\227 205.6\",\"value1\":922337203685477"
     "5809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128],\"byteCount\":4}},{\"code"
     "\":902532153,\"message\":\"Pr\303\274fstand \342\202\254 205.7\",\"details\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 205.8\",\"subCode\":-1409484267,\"mvciErro"
     "r\":null,\"negativeResponse\":null}]",
     "", "", "[]", "[]",
     "01020000000100000080140000005072c3bc667374616e6420e282ac203230352e3114000000e697a5e69cac"
     "e8aa9e20f09d849e203230352e32ffffff7f01ffffffff120000004bc3bc686c657209f09f94a7203230352e"
     "330000ffff0e0000007361792022c3a922203230352e34130000006261636b5c736c61736820c39f20323035"
     "2e35d3985c790179ed6be8130000005ac3bc6e64756e6720f09f9a97203230352e360100000000000080ffff"
     "ffffffffffff0400000000ffff8001398ccb35140000005072c3bc667374616e6420e282ac203230352e3714"
     "000000e697a5e69cace8aa9e20f09d849e203230352e3815fafcab0000",
     "020000000100000080140000005072c3bc667374616e6420e282ac203230352e3114000000e697a5e69cace8"
     "aa9e20f09d849e203230352e32ffffff7f01ffffffff120000004bc3bc686c657209f09f94a7203230352e33"
     "0000ffff0e0000007361792022c3a922203230352e34130000006261636b5c736c61736820c39f203230352e"
     "35d3985c790179ed6be8130000005ac3bc6e64756e6720f09f9a97203230352e360100000000000080ffffff"
     "ffffffffff0400000000ffff8001398ccb35140000005072c3bc667374616e6420e282ac203230352e371400"
     "0000e697a5e69cace8aa9e20f09d849e203230352e3815fafcab0000",
     0},
    {"sparse", "[]", "[]",
     "[{\"code\":-2147483648,\"message\":\"\",\"details\":\"\",\"subCode\":2147483647,\"mvciEr"
     "ror\":{\"code\":-1,\"codeText\":\"\",\"vendorCode\":-65536,\"vendorCodeText\":\"\",\"ext"
     "raText\":\"\",\"extraCode\":2036111571},\"negativeResponse\":{\"code\":-395580039,\"text"
     "\":\"\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[]}},nu"
     "ll]",
     "[{\"code\":-2147483648,\"message\":\"\",\"details\":\"\",\"subCode\":2147483647,\"mvciEr"
     "ror\":{\"code\":-1,\"codeText\":\"\",\"vendorCode\":-65536,\"vendorCodeText\":\"\",\"ext"
     "raText\":\"\",\"extraCode\":2036111571},\"negativeResponse\":{\"code\":-395580039,\"text"
     "\":\"\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":null,\""
     "byteCount\":0}},null]",
     "", "", "[]", "[]",
     "010200000001000000800000000000000000ffffff7f01ffffffff000000000000ffff0000000000000000d3"
     "985c790179ed6be8000000000100000000000080ffffffffffffffff0000000000",
     "0200000001000000800000000000000000ffffff7f01ffffffff000000000000ffff0000000000000000d398"
     "5c790179ed6be8000000000100000000000080ffffffffffffffff0000000000",
     0},
    {"empty", "[]", "[]", "[]", "null", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct ClearDoIPEcuCollectionExport {
    static constexpr const char* operation = "clearDoIPEcuCollection";
    using Result = kc::ListResult<KelError, release_KelError_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_clearDoIPEcuCollection(api, error, &out.data, &out.count);
    }
};

TEST_F(Interfaces, clearDoIPEcuCollection_Exchange) {
    kc::exchange<ClearDoIPEcuCollectionExport>(api, kClearDoIPEcuCollectionCases);
}
TEST_F(Interfaces, clearDoIPEcuCollection_Failure) {
    kc::failure<ClearDoIPEcuCollectionExport>(api, kClearDoIPEcuCollectionCases);
}
TEST_F(InterfacesAdmission, clearDoIPEcuCollection) {
    kc::admission<ClearDoIPEcuCollectionExport>(callers(), kClearDoIPEcuCollectionCases,
                                                kc::Needs::Operator);
}

const kc::Number kNumber236{236, "clearDoIPEcuCollection", kClearDoIPEcuCollectionCases};

TEST_F(InterfacesByNumber, n236_clearDoIPEcuCollection_KelCall) { kc::kelCall(api, kNumber236); }
TEST_F(InterfacesByNumber, n236_clearDoIPEcuCollection_PyCall) { kc::pyCall(api, kNumber236); }
TEST_F(InterfacesByNumber, n236_clearDoIPEcuCollection_Failure) {
    kc::numberFailure(api, kNumber236);
}

// ---- getInterfaceConfiguration (position 257, number 63) ----

const kc::Case kGetInterfaceConfigurationCases[] = {
    {"full", "[]", "[]",
     "{\"entries\":[{\"text1\":\"Pr\303\274fstand \342\202\254 257.1\",\"text2\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 257.2\",\"text3\":\"K\303\274hler\\u0009"
     "\360\237\224\247 257.3\",\"text4\":\"say \\\"\303\251\\\" 257.4\",\"text5\":\"back\\\\sl"
     "ash \303\237 257.5\",\"value\":4294967295,\"flag\":true,\"items\":[{\"itemText1\":\"Z"
     "\303\274ndung \360\237\232\227 257.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 257"
     ".7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 257.8\",\"ite"
     "mText4\":\"K\303\274hler\\u0009\360\237\224\247 257.9\",\"id\":2147483648,\"pin\":214748"
     "3647,\"inUse\":false},{\"itemText1\":\"say \\\"\303\251\\\" 257.10\",\"itemText2\":\"bac"
     "k\\\\slash \303\237 257.11\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 257.12\",\""
     "itemText4\":\"Pr\303\274fstand \342\202\254 257.13\",\"id\":1531265613,\"pin\":203821772"
     "7,\"inUse\":true}]},{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 2"
     "57.14\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 257.15\",\"text3\":\"say \\\""
     "\303\251\\\" 257.16\",\"text4\":\"back\\\\slash \303\237 257.17\",\"text5\":\"Z\303\274n"
     "dung \360\237\232\227 257.18\",\"value\":397686195,\"flag\":false,\"items\":[]}]}",
     "{\"entries\":[{\"text1\":\"Pr\303\274fstand \342\202\254 257.1\",\"text2\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 257.2\",\"text3\":\"K\303\274hler\\u0009"
     "\360\237\224\247 257.3\",\"text4\":\"say \\\"\303\251\\\" 257.4\",\"text5\":\"back\\\\sl"
     "ash \303\237 257.5\",\"value\":4294967295,\"flag\":1,\"items\":[{\"itemText1\":\"Z\303"
     "\274ndung \360\237\232\227 257.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 257.7\""
     ",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 257.8\",\"itemTex"
     "t4\":\"K\303\274hler\\u0009\360\237\224\247 257.9\",\"id\":2147483648,\"pin\":2147483647"
     ",\"inUse\":0},{\"itemText1\":\"say \\\"\303\251\\\" 257.10\",\"itemText2\":\"back\\\\sla"
     "sh \303\237 257.11\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 257.12\",\"itemText"
     "4\":\"Pr\303\274fstand \342\202\254 257.13\",\"id\":1531265613,\"pin\":2038217727,\"inUs"
     "e\":1}],\"itemCount\":2},{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 257.14\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 257.15\",\"text3\":\"say "
     "\\\"\303\251\\\" 257.16\",\"text4\":\"back\\\\slash \303\237 257.17\",\"text5\":\"Z\303"
     "\274ndung \360\237\232\227 257.18\",\"value\":397686195,\"flag\":0,\"items\":null,\"item"
     "Count\":0}],\"entryCount\":2}",
     "", "", "[]", "[]",
     "01010200000001140000005072c3bc667374616e6420e282ac203235372e3114000000e697a5e69cace8aa9e"
     "20f09d849e203235372e32120000004bc3bc686c657209f09f94a7203235372e330e0000007361792022c3a9"
     "22203235372e34130000006261636b5c736c61736820c39f203235372e35ffffffff01020000000113000000"
     "5ac3bc6e64756e6720f09f9a97203235372e36140000005072c3bc667374616e6420e282ac203235372e3714"
     "000000e697a5e69cace8aa9e20f09d849e203235372e38120000004bc3bc686c657209f09f94a7203235372e"
     "3900000080ffffff7f00010f0000007361792022c3a922203235372e3130140000006261636b5c736c617368"
     "20c39f203235372e3131140000005ac3bc6e64756e6720f09f9a97203235372e3132150000005072c3bc6673"
     "74616e6420e282ac203235372e31334d42455bffbb7c79010115000000e697a5e69cace8aa9e20f09d849e20"
     "3235372e3134130000004bc3bc686c657209f09f94a7203235372e31350f0000007361792022c3a922203235"
     "372e3136140000006261636b5c736c61736820c39f203235372e3137140000005ac3bc6e64756e6720f09f9a"
     "97203235372e3138b335b4170000000000",
     "010200000001140000005072c3bc667374616e6420e282ac203235372e3114000000e697a5e69cace8aa9e20"
     "f09d849e203235372e32120000004bc3bc686c657209f09f94a7203235372e330e0000007361792022c3a922"
     "203235372e34130000006261636b5c736c61736820c39f203235372e35ffffffff010200000001130000005a"
     "c3bc6e64756e6720f09f9a97203235372e36140000005072c3bc667374616e6420e282ac203235372e371400"
     "0000e697a5e69cace8aa9e20f09d849e203235372e38120000004bc3bc686c657209f09f94a7203235372e39"
     "00000080ffffff7f00010f0000007361792022c3a922203235372e3130140000006261636b5c736c61736820"
     "c39f203235372e3131140000005ac3bc6e64756e6720f09f9a97203235372e3132150000005072c3bc667374"
     "616e6420e282ac203235372e31334d42455bffbb7c79010115000000e697a5e69cace8aa9e20f09d849e2032"
     "35372e3134130000004bc3bc686c657209f09f94a7203235372e31350f0000007361792022c3a92220323537"
     "2e3136140000006261636b5c736c61736820c39f203235372e3137140000005ac3bc6e64756e6720f09f9a97"
     "203235372e3138b335b4170000000000",
     0},
    {"sparse", "[]", "[]",
     "{\"entries\":[{\"text1\":\"\",\"text2\":\"\",\"text3\":\"\",\"text4\":\"\",\"text5\":\""
     "\",\"value\":4294967295,\"flag\":true,\"items\":[]}]}",
     "{\"entries\":[{\"text1\":\"\",\"text2\":\"\",\"text3\":\"\",\"text4\":\"\",\"text5\":\""
     "\",\"value\":4294967295,\"flag\":1,\"items\":null,\"itemCount\":0}],\"entryCount\":1}",
     "", "", "[]", "[]", "010101000000010000000000000000000000000000000000000000ffffffff0100000000",
     "0101000000010000000000000000000000000000000000000000ffffffff0100000000", 0},
    {"empty", "[]", "[]", "null", "null", "", "", "[]", "[]", "0100", "00", 0},
};

struct GetInterfaceConfigurationExport {
    static constexpr const char* operation = "getInterfaceConfiguration";
    using Result = kc::RecordResult<InterfaceConfiguration, release_InterfaceConfiguration>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getInterfaceConfiguration(api, error, &out.data);
    }
};

TEST_F(Interfaces, getInterfaceConfiguration_Exchange) {
    kc::exchange<GetInterfaceConfigurationExport>(api, kGetInterfaceConfigurationCases);
}
TEST_F(Interfaces, getInterfaceConfiguration_Failure) {
    kc::failure<GetInterfaceConfigurationExport>(api, kGetInterfaceConfigurationCases);
}
TEST_F(InterfacesAdmission, getInterfaceConfiguration) {
    kc::admission<GetInterfaceConfigurationExport>(callers(), kGetInterfaceConfigurationCases,
                                                   kc::Needs::Operator);
}

const kc::Number kNumber63{63, "getInterfaceConfiguration", kGetInterfaceConfigurationCases};

TEST_F(InterfacesByNumber, n63_getInterfaceConfiguration_KelCall) { kc::kelCall(api, kNumber63); }
TEST_F(InterfacesByNumber, n63_getInterfaceConfiguration_PyCall) { kc::pyCall(api, kNumber63); }
TEST_F(InterfacesByNumber, n63_getInterfaceConfiguration_Failure) {
    kc::numberFailure(api, kNumber63);
}

// ---- setInterfaceConfiguration (position 258, number 64) ----

const kc::Case kSetInterfaceConfigurationCases[] = {
    {"full",
     "[{\"entries\":[{\"text1\":\"Pr\303\274fstand \342\202\254 258.1\",\"text2\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 258.2\",\"text3\":\"K\303\274hler\\u0009"
     "\360\237\224\247 258.3\",\"text4\":\"say \\\"\303\251\\\" 258.4\",\"text5\":\"back\\\\sl"
     "ash \303\237 258.5\",\"value\":4294967295,\"flag\":128,\"items\":[{\"itemText1\":\"Z\303"
     "\274ndung \360\237\232\227 258.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 258.7\""
     ",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258.8\",\"itemTex"
     "t4\":\"K\303\274hler\\u0009\360\237\224\247 258.9\",\"id\":2147483648,\"pin\":2147483647"
     ",\"inUse\":0},{\"itemText1\":\"say \\\"\303\251\\\" 258.10\",\"itemText2\":\"back\\\\sla"
     "sh \303\237 258.11\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 258.12\",\"itemText"
     "4\":\"Pr\303\274fstand \342\202\254 258.13\",\"id\":1531306117,\"pin\":2038258231,\"inUs"
     "e\":255}]},{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258.14\","
     "\"text2\":\"K\303\274hler\\u0009\360\237\224\247 258.15\",\"text3\":\"say \\\"\303\251\\"
     "\" 258.16\",\"text4\":\"back\\\\slash \303\237 258.17\",\"text5\":\"Z\303\274ndung \360"
     "\237\232\227 258.18\",\"value\":397726697,\"flag\":0,\"items\":[]}]}]",
     "[{\"entries\":[{\"text1\":\"Pr\303\274fstand \342\202\254 258.1\",\"text2\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 258.2\",\"text3\":\"K\303\274hler\\u0009"
     "\360\237\224\247 258.3\",\"text4\":\"say \\\"\303\251\\\" 258.4\",\"text5\":\"back\\\\sl"
     "ash \303\237 258.5\",\"value\":4294967295,\"flag\":true,\"items\":[{\"itemText1\":\"Z"
     "\303\274ndung \360\237\232\227 258.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 258"
     ".7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258.8\",\"ite"
     "mText4\":\"K\303\274hler\\u0009\360\237\224\247 258.9\",\"id\":2147483648,\"pin\":214748"
     "3647,\"inUse\":false},{\"itemText1\":\"say \\\"\303\251\\\" 258.10\",\"itemText2\":\"bac"
     "k\\\\slash \303\237 258.11\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 258.12\",\""
     "itemText4\":\"Pr\303\274fstand \342\202\254 258.13\",\"id\":1531306117,\"pin\":203825823"
     "1,\"inUse\":true}]},{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 2"
     "58.14\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 258.15\",\"text3\":\"say \\\""
     "\303\251\\\" 258.16\",\"text4\":\"back\\\\slash \303\237 258.17\",\"text5\":\"Z\303\274n"
     "dung \360\237\232\227 258.18\",\"value\":397726697,\"flag\":false,\"items\":[]}]}]",
     "null", nullptr,
     "02000000140000005072c3bc667374616e6420e282ac203235382e3114000000e697a5e69cace8aa9e20f09d"
     "849e203235382e32120000004bc3bc686c657209f09f94a7203235382e330e0000007361792022c3a9222032"
     "35382e34130000006261636b5c736c61736820c39f203235382e35ffffffff0102000000130000005ac3bc6e"
     "64756e6720f09f9a97203235382e36140000005072c3bc667374616e6420e282ac203235382e3714000000e6"
     "97a5e69cace8aa9e20f09d849e203235382e38120000004bc3bc686c657209f09f94a7203235382e39000000"
     "80ffffff7f000f0000007361792022c3a922203235382e3130140000006261636b5c736c61736820c39f2032"
     "35382e3131140000005ac3bc6e64756e6720f09f9a97203235382e3132150000005072c3bc667374616e6420"
     "e282ac203235382e313385e0455b375a7d790115000000e697a5e69cace8aa9e20f09d849e203235382e3134"
     "130000004bc3bc686c657209f09f94a7203235382e31350f0000007361792022c3a922203235382e31361400"
     "00006261636b5c736c61736820c39f203235382e3137140000005ac3bc6e64756e6720f09f9a97203235382e"
     "3138e9d3b4170000000000",
     "0102000000015072c3bc667374616e6420e282ac203235382e3100e697a5e69cace8aa9e20f09d849e203235"
     "382e32004bc3bc686c657209f09f94a7203235382e33007361792022c3a922203235382e34006261636b5c73"
     "6c61736820c39f203235382e3500ffffffff0102000000015ac3bc6e64756e6720f09f9a97203235382e3600"
     "5072c3bc667374616e6420e282ac203235382e3700e697a5e69cace8aa9e20f09d849e203235382e38004bc3"
     "bc686c657209f09f94a7203235382e390000000080ffffff7f00017361792022c3a922203235382e31300062"
     "61636b5c736c61736820c39f203235382e3131005ac3bc6e64756e6720f09f9a97203235382e3132005072c3"
     "bc667374616e6420e282ac203235382e31330085e0455b375a7d790101e697a5e69cace8aa9e20f09d849e20"
     "3235382e3134004bc3bc686c657209f09f94a7203235382e3135007361792022c3a922203235382e31360062"
     "61636b5c736c61736820c39f203235382e3137005ac3bc6e64756e6720f09f9a97203235382e313800e9d3b4"
     "170000000000",
     "[{\"entries\":[{\"text1\":\"Pr\303\274fstand \342\202\254 258.1\",\"text2\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 258.2\",\"text3\":\"K\303\274hler\\u0009"
     "\360\237\224\247 258.3\",\"text4\":\"say \\\"\303\251\\\" 258.4\",\"text5\":\"back\\\\sl"
     "ash \303\237 258.5\",\"value\":4294967295,\"flag\":true,\"items\":[{\"itemText1\":\"Z"
     "\303\274ndung \360\237\232\227 258.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 258"
     ".7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258.8\",\"ite"
     "mText4\":\"K\303\274hler\\u0009\360\237\224\247 258.9\",\"id\":2147483648,\"pin\":214748"
     "3647,\"inUse\":false},{\"itemText1\":\"say \\\"\303\251\\\" 258.10\",\"itemText2\":\"bac"
     "k\\\\slash \303\237 258.11\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 258.12\",\""
     "itemText4\":\"Pr\303\274fstand \342\202\254 258.13\",\"id\":1531306117,\"pin\":203825823"
     "1,\"inUse\":true}]},{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 2"
     "58.14\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 258.15\",\"text3\":\"say \\\""
     "\303\251\\\" 258.16\",\"text4\":\"back\\\\slash \303\237 258.17\",\"text5\":\"Z\303\274n"
     "dung \360\237\232\227 258.18\",\"value\":397726697,\"flag\":false,\"items\":[]}]}]",
     "[{\"entries\":[{\"text1\":\"Pr\303\274fstand \342\202\254 258.1\",\"text2\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 258.2\",\"text3\":\"K\303\274hler\\u0009"
     "\360\237\224\247 258.3\",\"text4\":\"say \\\"\303\251\\\" 258.4\",\"text5\":\"back\\\\sl"
     "ash \303\237 258.5\",\"value\":4294967295,\"flag\":true,\"items\":[{\"itemText1\":\"Z"
     "\303\274ndung \360\237\232\227 258.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 258"
     ".7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258.8\",\"ite"
     "mText4\":\"K\303\274hler\\u0009\360\237\224\247 258.9\",\"id\":2147483648,\"pin\":214748"
     "3647,\"inUse\":false},{\"itemText1\":\"say \\\"\303\251\\\" 258.10\",\"itemText2\":\"bac"
     "k\\\\slash \303\237 258.11\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 258.12\",\""
     "itemText4\":\"Pr\303\274fstand \342\202\254 258.13\",\"id\":1531306117,\"pin\":203825823"
     "1,\"inUse\":true}]},{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 2"
     "58.14\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 258.15\",\"text3\":\"say \\\""
     "\303\251\\\" 258.16\",\"text4\":\"back\\\\slash \303\237 258.17\",\"text5\":\"Z\303\274n"
     "dung \360\237\232\227 258.18\",\"value\":397726697,\"flag\":false,\"items\":[]}]}]",
     "01", "", 0},
    {"sparse", "[null]", "[null]", "null", nullptr, "00000000", "00", "[{\"entries\":[]}]",
     "[null]", "01", "", 0},
};

struct SetInterfaceConfigurationExport {
    static constexpr const char* operation = "setInterfaceConfiguration";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_setInterfaceConfiguration(api, error, kc::record<InterfaceConfiguration>(in[0]));
    }
};

TEST_F(Interfaces, setInterfaceConfiguration_Exchange) {
    kc::exchange<SetInterfaceConfigurationExport>(api, kSetInterfaceConfigurationCases);
}
TEST_F(Interfaces, setInterfaceConfiguration_Failure) {
    kc::failure<SetInterfaceConfigurationExport>(api, kSetInterfaceConfigurationCases);
}
TEST_F(InterfacesAdmission, setInterfaceConfiguration) {
    kc::admission<SetInterfaceConfigurationExport>(callers(), kSetInterfaceConfigurationCases,
                                                   kc::Needs::Administrator);
}

const char* const kSetInterfaceConfigurationNoUtf8[] = {
    "[{\"entries\":[{\"text1\":\"\\udc00Pr\303\274fstand \342\202\254 258.1\\ud800\",\"text2"
    "\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258.2\",\"text3\":\"K\303\274"
    "hler\\t\360\237\224\247 258.3\",\"text4\":\"say \\\"\303\251\\\" 258.4\",\"text5\":\"bac"
    "k\\\\slash \303\237 258.5\",\"value\":4294967295,\"flag\":128,\"items\":[{\"itemText1\":"
    "\"Z\303\274ndung \360\237\232\227 258.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 "
    "258.7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258.8\",\""
    "itemText4\":\"K\303\274hler\\t\360\237\224\247 258.9\",\"id\":2147483648,\"pin\":2147483"
    "647,\"inUse\":0},{\"itemText1\":\"say \\\"\303\251\\\" 258.10\",\"itemText2\":\"back\\\\"
    "slash \303\237 258.11\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 258.12\",\"itemT"
    "ext4\":\"Pr\303\274fstand \342\202\254 258.13\",\"id\":1531306117,\"pin\":2038258231,\"i"
    "nUse\":255}]},{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258.14"
    "\",\"text2\":\"K\303\274hler\\t\360\237\224\247 258.15\",\"text3\":\"say \\\"\303\251\\"
    "\" 258.16\",\"text4\":\"back\\\\slash \303\237 258.17\",\"text5\":\"Z\303\274ndung \360"
    "\237\232\227 258.18\",\"value\":397726697,\"flag\":0,\"items\":[]}]}]",
    "[{\"entries\":[{\"text1\":\"Pr\303\274fstand \342\202\254 258.1\",\"text2\":\"\\udc00"
    "\346\227\245\346\234\254\350\252\236 \360\235\204\236 258.2\\ud800\",\"text3\":\"K\303"
    "\274hler\\t\360\237\224\247 258.3\",\"text4\":\"say \\\"\303\251\\\" 258.4\",\"text5\":"
    "\"back\\\\slash \303\237 258.5\",\"value\":4294967295,\"flag\":128,\"items\":[{\"itemTex"
    "t1\":\"Z\303\274ndung \360\237\232\227 258.6\",\"itemText2\":\"Pr\303\274fstand \342\202"
    "\254 258.7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258.8"
    "\",\"itemText4\":\"K\303\274hler\\t\360\237\224\247 258.9\",\"id\":2147483648,\"pin\":21"
    "47483647,\"inUse\":0},{\"itemText1\":\"say \\\"\303\251\\\" 258.10\",\"itemText2\":\"bac"
    "k\\\\slash \303\237 258.11\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 258.12\",\""
    "itemText4\":\"Pr\303\274fstand \342\202\254 258.13\",\"id\":1531306117,\"pin\":203825823"
    "1,\"inUse\":255}]},{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25"
    "8.14\",\"text2\":\"K\303\274hler\\t\360\237\224\247 258.15\",\"text3\":\"say \\\"\303"
    "\251\\\" 258.16\",\"text4\":\"back\\\\slash \303\237 258.17\",\"text5\":\"Z\303\274ndung"
    " \360\237\232\227 258.18\",\"value\":397726697,\"flag\":0,\"items\":[]}]}]",
    "[{\"entries\":[{\"text1\":\"Pr\303\274fstand \342\202\254 258.1\",\"text2\":\"\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 258.2\",\"text3\":\"\\udc00K\303\274hler\\"
    "t\360\237\224\247 258.3\\ud800\",\"text4\":\"say \\\"\303\251\\\" 258.4\",\"text5\":\"ba"
    "ck\\\\slash \303\237 258.5\",\"value\":4294967295,\"flag\":128,\"items\":[{\"itemText1\""
    ":\"Z\303\274ndung \360\237\232\227 258.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254"
    " 258.7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258.8\","
    "\"itemText4\":\"K\303\274hler\\t\360\237\224\247 258.9\",\"id\":2147483648,\"pin\":21474"
    "83647,\"inUse\":0},{\"itemText1\":\"say \\\"\303\251\\\" 258.10\",\"itemText2\":\"back\\"
    "\\slash \303\237 258.11\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 258.12\",\"ite"
    "mText4\":\"Pr\303\274fstand \342\202\254 258.13\",\"id\":1531306117,\"pin\":2038258231,"
    "\"inUse\":255}]},{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258."
    "14\",\"text2\":\"K\303\274hler\\t\360\237\224\247 258.15\",\"text3\":\"say \\\"\303\251"
    "\\\" 258.16\",\"text4\":\"back\\\\slash \303\237 258.17\",\"text5\":\"Z\303\274ndung "
    "\360\237\232\227 258.18\",\"value\":397726697,\"flag\":0,\"items\":[]}]}]",
    "[{\"entries\":[{\"text1\":\"Pr\303\274fstand \342\202\254 258.1\",\"text2\":\"\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 258.2\",\"text3\":\"K\303\274hler\\t\360"
    "\237\224\247 258.3\",\"text4\":\"\\udc00say \\\"\303\251\\\" 258.4\\ud800\",\"text5\":\""
    "back\\\\slash \303\237 258.5\",\"value\":4294967295,\"flag\":128,\"items\":[{\"itemText1"
    "\":\"Z\303\274ndung \360\237\232\227 258.6\",\"itemText2\":\"Pr\303\274fstand \342\202"
    "\254 258.7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258.8"
    "\",\"itemText4\":\"K\303\274hler\\t\360\237\224\247 258.9\",\"id\":2147483648,\"pin\":21"
    "47483647,\"inUse\":0},{\"itemText1\":\"say \\\"\303\251\\\" 258.10\",\"itemText2\":\"bac"
    "k\\\\slash \303\237 258.11\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 258.12\",\""
    "itemText4\":\"Pr\303\274fstand \342\202\254 258.13\",\"id\":1531306117,\"pin\":203825823"
    "1,\"inUse\":255}]},{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25"
    "8.14\",\"text2\":\"K\303\274hler\\t\360\237\224\247 258.15\",\"text3\":\"say \\\"\303"
    "\251\\\" 258.16\",\"text4\":\"back\\\\slash \303\237 258.17\",\"text5\":\"Z\303\274ndung"
    " \360\237\232\227 258.18\",\"value\":397726697,\"flag\":0,\"items\":[]}]}]",
    "[{\"entries\":[{\"text1\":\"Pr\303\274fstand \342\202\254 258.1\",\"text2\":\"\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 258.2\",\"text3\":\"K\303\274hler\\t\360"
    "\237\224\247 258.3\",\"text4\":\"say \\\"\303\251\\\" 258.4\",\"text5\":\"\\udc00back\\"
    "\\slash \303\237 258.5\\ud800\",\"value\":4294967295,\"flag\":128,\"items\":[{\"itemText"
    "1\":\"Z\303\274ndung \360\237\232\227 258.6\",\"itemText2\":\"Pr\303\274fstand \342\202"
    "\254 258.7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258.8"
    "\",\"itemText4\":\"K\303\274hler\\t\360\237\224\247 258.9\",\"id\":2147483648,\"pin\":21"
    "47483647,\"inUse\":0},{\"itemText1\":\"say \\\"\303\251\\\" 258.10\",\"itemText2\":\"bac"
    "k\\\\slash \303\237 258.11\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 258.12\",\""
    "itemText4\":\"Pr\303\274fstand \342\202\254 258.13\",\"id\":1531306117,\"pin\":203825823"
    "1,\"inUse\":255}]},{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25"
    "8.14\",\"text2\":\"K\303\274hler\\t\360\237\224\247 258.15\",\"text3\":\"say \\\"\303"
    "\251\\\" 258.16\",\"text4\":\"back\\\\slash \303\237 258.17\",\"text5\":\"Z\303\274ndung"
    " \360\237\232\227 258.18\",\"value\":397726697,\"flag\":0,\"items\":[]}]}]",
    "[{\"entries\":[{\"text1\":\"Pr\303\274fstand \342\202\254 258.1\",\"text2\":\"\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 258.2\",\"text3\":\"K\303\274hler\\t\360"
    "\237\224\247 258.3\",\"text4\":\"say \\\"\303\251\\\" 258.4\",\"text5\":\"back\\\\slash "
    "\303\237 258.5\",\"value\":4294967295,\"flag\":128,\"items\":[{\"itemText1\":\"\\udc00Z"
    "\303\274ndung \360\237\232\227 258.6\\ud800\",\"itemText2\":\"Pr\303\274fstand \342\202"
    "\254 258.7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258.8"
    "\",\"itemText4\":\"K\303\274hler\\t\360\237\224\247 258.9\",\"id\":2147483648,\"pin\":21"
    "47483647,\"inUse\":0},{\"itemText1\":\"say \\\"\303\251\\\" 258.10\",\"itemText2\":\"bac"
    "k\\\\slash \303\237 258.11\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 258.12\",\""
    "itemText4\":\"Pr\303\274fstand \342\202\254 258.13\",\"id\":1531306117,\"pin\":203825823"
    "1,\"inUse\":255}]},{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 25"
    "8.14\",\"text2\":\"K\303\274hler\\t\360\237\224\247 258.15\",\"text3\":\"say \\\"\303"
    "\251\\\" 258.16\",\"text4\":\"back\\\\slash \303\237 258.17\",\"text5\":\"Z\303\274ndung"
    " \360\237\232\227 258.18\",\"value\":397726697,\"flag\":0,\"items\":[]}]}]",
    "[{\"entries\":[{\"text1\":\"Pr\303\274fstand \342\202\254 258.1\",\"text2\":\"\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 258.2\",\"text3\":\"K\303\274hler\\t\360"
    "\237\224\247 258.3\",\"text4\":\"say \\\"\303\251\\\" 258.4\",\"text5\":\"back\\\\slash "
    "\303\237 258.5\",\"value\":4294967295,\"flag\":128,\"items\":[{\"itemText1\":\"Z\303\274"
    "ndung \360\237\232\227 258.6\",\"itemText2\":\"\\udc00Pr\303\274fstand \342\202\254 258."
    "7\\ud800\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258.8\""
    ",\"itemText4\":\"K\303\274hler\\t\360\237\224\247 258.9\",\"id\":2147483648,\"pin\":2147"
    "483647,\"inUse\":0},{\"itemText1\":\"say \\\"\303\251\\\" 258.10\",\"itemText2\":\"back"
    "\\\\slash \303\237 258.11\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 258.12\",\"i"
    "temText4\":\"Pr\303\274fstand \342\202\254 258.13\",\"id\":1531306117,\"pin\":2038258231"
    ",\"inUse\":255}]},{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258"
    ".14\",\"text2\":\"K\303\274hler\\t\360\237\224\247 258.15\",\"text3\":\"say \\\"\303\251"
    "\\\" 258.16\",\"text4\":\"back\\\\slash \303\237 258.17\",\"text5\":\"Z\303\274ndung "
    "\360\237\232\227 258.18\",\"value\":397726697,\"flag\":0,\"items\":[]}]}]",
    "[{\"entries\":[{\"text1\":\"Pr\303\274fstand \342\202\254 258.1\",\"text2\":\"\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 258.2\",\"text3\":\"K\303\274hler\\t\360"
    "\237\224\247 258.3\",\"text4\":\"say \\\"\303\251\\\" 258.4\",\"text5\":\"back\\\\slash "
    "\303\237 258.5\",\"value\":4294967295,\"flag\":128,\"items\":[{\"itemText1\":\"Z\303\274"
    "ndung \360\237\232\227 258.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 258.7\",\"i"
    "temText3\":\"\\udc00\346\227\245\346\234\254\350\252\236 \360\235\204\236 258.8\\ud800\""
    ",\"itemText4\":\"K\303\274hler\\t\360\237\224\247 258.9\",\"id\":2147483648,\"pin\":2147"
    "483647,\"inUse\":0},{\"itemText1\":\"say \\\"\303\251\\\" 258.10\",\"itemText2\":\"back"
    "\\\\slash \303\237 258.11\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 258.12\",\"i"
    "temText4\":\"Pr\303\274fstand \342\202\254 258.13\",\"id\":1531306117,\"pin\":2038258231"
    ",\"inUse\":255}]},{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258"
    ".14\",\"text2\":\"K\303\274hler\\t\360\237\224\247 258.15\",\"text3\":\"say \\\"\303\251"
    "\\\" 258.16\",\"text4\":\"back\\\\slash \303\237 258.17\",\"text5\":\"Z\303\274ndung "
    "\360\237\232\227 258.18\",\"value\":397726697,\"flag\":0,\"items\":[]}]}]",
    "[{\"entries\":[{\"text1\":\"Pr\303\274fstand \342\202\254 258.1\",\"text2\":\"\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 258.2\",\"text3\":\"K\303\274hler\\t\360"
    "\237\224\247 258.3\",\"text4\":\"say \\\"\303\251\\\" 258.4\",\"text5\":\"back\\\\slash "
    "\303\237 258.5\",\"value\":4294967295,\"flag\":128,\"items\":[{\"itemText1\":\"Z\303\274"
    "ndung \360\237\232\227 258.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 258.7\",\"i"
    "temText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258.8\",\"itemText4\""
    ":\"\\udc00K\303\274hler\\t\360\237\224\247 258.9\\ud800\",\"id\":2147483648,\"pin\":2147"
    "483647,\"inUse\":0},{\"itemText1\":\"say \\\"\303\251\\\" 258.10\",\"itemText2\":\"back"
    "\\\\slash \303\237 258.11\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 258.12\",\"i"
    "temText4\":\"Pr\303\274fstand \342\202\254 258.13\",\"id\":1531306117,\"pin\":2038258231"
    ",\"inUse\":255}]},{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 258"
    ".14\",\"text2\":\"K\303\274hler\\t\360\237\224\247 258.15\",\"text3\":\"say \\\"\303\251"
    "\\\" 258.16\",\"text4\":\"back\\\\slash \303\237 258.17\",\"text5\":\"Z\303\274ndung "
    "\360\237\232\227 258.18\",\"value\":397726697,\"flag\":0,\"items\":[]}]}]",
};
TEST_F(Interfaces, setInterfaceConfiguration_TextWithNoUtf8Form) {
    kc::noUtf8<SetInterfaceConfigurationExport>(api, kSetInterfaceConfigurationNoUtf8);
}

const kc::Number kNumber64{64, "setInterfaceConfiguration", kSetInterfaceConfigurationCases};

TEST_F(InterfacesByNumber, n64_setInterfaceConfiguration_KelCall) { kc::kelCall(api, kNumber64); }
TEST_F(InterfacesByNumber, n64_setInterfaceConfiguration_PyCall) { kc::pyCall(api, kNumber64); }
TEST_F(InterfacesByNumber, n64_setInterfaceConfiguration_Failure) {
    kc::numberFailure(api, kNumber64);
}
TEST_F(InterfacesByNumber, n64_setInterfaceConfiguration_ShortInput) {
    kc::shortInput(api, kNumber64);
}

// ---- getSupportedInterfaces (position 265, number 111) ----

const kc::Case kGetSupportedInterfacesCases[] = {
    {"full", "[]", "[]",
     "[{\"text1\":\"Pr\303\274fstand \342\202\254 265.1\",\"text2\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 265.2\",\"names\":[\"K\303\274hler\\u0009\360\237\224\247 "
     "265.3\",\"say \\\"\303\251\\\" 265.4\"],\"value\":4294967295,\"text3\":\"back\\\\slash "
     "\303\237 265.5\"},{\"text1\":\"Z\303\274ndung \360\237\232\227 265.6\",\"text2\":\"Pr"
     "\303\274fstand \342\202\254 265.7\",\"names\":[\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 265.8\",\"K\303\274hler\\u0009\360\237\224\247 265.9\"],\"value\":21474"
     "83648,\"text3\":\"say \\\"\303\251\\\" 265.10\"}]",
     "[{\"text1\":\"Pr\303\274fstand \342\202\254 265.1\",\"text2\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 265.2\",\"names\":[\"K\303\274hler\\u0009\360\237\224\247 "
     "265.3\",\"say \\\"\303\251\\\" 265.4\"],\"nameCount\":2,\"value\":4294967295,\"text3\":"
     "\"back\\\\slash \303\237 265.5\"},{\"text1\":\"Z\303\274ndung \360\237\232\227 265.6\","
     "\"text2\":\"Pr\303\274fstand \342\202\254 265.7\",\"names\":[\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 265.8\",\"K\303\274hler\\u0009\360\237\224\247 265.9\"],\""
     "nameCount\":2,\"value\":2147483648,\"text3\":\"say \\\"\303\251\\\" 265.10\"}]",
     "", "", "[]", "[]",
     "010200000001140000005072c3bc667374616e6420e282ac203236352e3114000000e697a5e69cace8aa9e20"
     "f09d849e203236352e3202000000120000004bc3bc686c657209f09f94a7203236352e330e00000073617920"
     "22c3a922203236352e34ffffffff130000006261636b5c736c61736820c39f203236352e3501130000005ac3"
     "bc6e64756e6720f09f9a97203236352e36140000005072c3bc667374616e6420e282ac203236352e37020000"
     "0014000000e697a5e69cace8aa9e20f09d849e203236352e38120000004bc3bc686c657209f09f94a7203236"
     "352e39000000800f0000007361792022c3a922203236352e3130",
     "0200000001140000005072c3bc667374616e6420e282ac203236352e3114000000e697a5e69cace8aa9e20f0"
     "9d849e203236352e3202000000120000004bc3bc686c657209f09f94a7203236352e330e0000007361792022"
     "c3a922203236352e34ffffffff130000006261636b5c736c61736820c39f203236352e3501130000005ac3bc"
     "6e64756e6720f09f9a97203236352e36140000005072c3bc667374616e6420e282ac203236352e3702000000"
     "14000000e697a5e69cace8aa9e20f09d849e203236352e38120000004bc3bc686c657209f09f94a720323635"
     "2e39000000800f0000007361792022c3a922203236352e3130",
     0},
    {"sparse", "[]", "[]",
     "[{\"text1\":\"\",\"text2\":\"\",\"names\":[],\"value\":4294967295,\"text3\":\"\"},null]",
     "[{\"text1\":\"\",\"text2\":\"\",\"names\":null,\"nameCount\":0,\"value\":4294967295,\"te"
     "xt3\":\"\"},null]",
     "", "", "[]", "[]", "010200000001000000000000000000000000ffffffff0000000000",
     "0200000001000000000000000000000000ffffffff0000000000", 0},
    {"empty", "[]", "[]", "[]", "null", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct GetSupportedInterfacesExport {
    static constexpr const char* operation = "getSupportedInterfaces";
    using Result = kc::ListResult<SupportedInterface, release_SupportedInterface_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getSupportedInterfaces(api, error, &out.data, &out.count);
    }
};

TEST_F(Interfaces, getSupportedInterfaces_Exchange) {
    kc::exchange<GetSupportedInterfacesExport>(api, kGetSupportedInterfacesCases);
}
TEST_F(Interfaces, getSupportedInterfaces_Failure) {
    kc::failure<GetSupportedInterfacesExport>(api, kGetSupportedInterfacesCases);
}
TEST_F(InterfacesAdmission, getSupportedInterfaces) {
    kc::admission<GetSupportedInterfacesExport>(callers(), kGetSupportedInterfacesCases,
                                                kc::Needs::Operator);
}

const kc::Number kNumber111{111, "getSupportedInterfaces", kGetSupportedInterfacesCases};

TEST_F(InterfacesByNumber, n111_getSupportedInterfaces_KelCall) { kc::kelCall(api, kNumber111); }
TEST_F(InterfacesByNumber, n111_getSupportedInterfaces_PyCall) { kc::pyCall(api, kNumber111); }
TEST_F(InterfacesByNumber, n111_getSupportedInterfaces_Failure) {
    kc::numberFailure(api, kNumber111);
}

// ---- getInterfaceProviders (position 266, number 118) ----

const kc::Case kGetInterfaceProvidersCases[] = {
    {"full", "[]", "[]",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 266.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 266.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 266.3\",\"itemText4\":\"say \\\"\303\251\\\" 266.4\",\"text\":\"back\\\\sla"
     "sh \303\237 266.5\",\"value\":4294967295,\"flag\":true},{\"itemText1\":\"Z\303\274ndung "
     "\360\237\232\227 266.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 266.7\",\"itemTex"
     "t3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 266.8\",\"itemText4\":\"K"
     "\303\274hler\\u0009\360\237\224\247 266.9\",\"text\":\"say \\\"\303\251\\\" 266.10\",\"v"
     "alue\":2147483648,\"flag\":false}]",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 266.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 266.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 266.3\",\"itemText4\":\"say \\\"\303\251\\\" 266.4\",\"text\":\"back\\\\sla"
     "sh \303\237 266.5\",\"value\":4294967295,\"flag\":1},{\"itemText1\":\"Z\303\274ndung "
     "\360\237\232\227 266.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 266.7\",\"itemTex"
     "t3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 266.8\",\"itemText4\":\"K"
     "\303\274hler\\u0009\360\237\224\247 266.9\",\"text\":\"say \\\"\303\251\\\" 266.10\",\"v"
     "alue\":2147483648,\"flag\":0}]",
     "", "", "[]", "[]",
     "010200000001140000005072c3bc667374616e6420e282ac203236362e3114000000e697a5e69cace8aa9e20"
     "f09d849e203236362e32120000004bc3bc686c657209f09f94a7203236362e330e0000007361792022c3a922"
     "203236362e34130000006261636b5c736c61736820c39f203236362e35ffffffff0101130000005ac3bc6e64"
     "756e6720f09f9a97203236362e36140000005072c3bc667374616e6420e282ac203236362e3714000000e697"
     "a5e69cace8aa9e20f09d849e203236362e38120000004bc3bc686c657209f09f94a7203236362e390f000000"
     "7361792022c3a922203236362e31300000008000",
     "0200000001140000005072c3bc667374616e6420e282ac203236362e3114000000e697a5e69cace8aa9e20f0"
     "9d849e203236362e32120000004bc3bc686c657209f09f94a7203236362e330e0000007361792022c3a92220"
     "3236362e34130000006261636b5c736c61736820c39f203236362e35ffffffff0101130000005ac3bc6e6475"
     "6e6720f09f9a97203236362e36140000005072c3bc667374616e6420e282ac203236362e3714000000e697a5"
     "e69cace8aa9e20f09d849e203236362e38120000004bc3bc686c657209f09f94a7203236362e390f00000073"
     "61792022c3a922203236362e31300000008000",
     0},
    {"sparse", "[]", "[]",
     "[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"text\":"
     "\"\",\"value\":4294967295,\"flag\":true},null]",
     "[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"text\":"
     "\"\",\"value\":4294967295,\"flag\":1},null]",
     "", "", "[]", "[]", "0102000000010000000000000000000000000000000000000000ffffffff0100",
     "02000000010000000000000000000000000000000000000000ffffffff0100", 0},
    {"empty", "[]", "[]", "[]", "null", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct GetInterfaceProvidersExport {
    static constexpr const char* operation = "getInterfaceProviders";
    using Result = kc::ListResult<InterfaceProvider, release_InterfaceProvider_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getInterfaceProviders(api, error, &out.data, &out.count);
    }
};

TEST_F(Interfaces, getInterfaceProviders_Exchange) {
    kc::exchange<GetInterfaceProvidersExport>(api, kGetInterfaceProvidersCases);
}
TEST_F(Interfaces, getInterfaceProviders_Failure) {
    kc::failure<GetInterfaceProvidersExport>(api, kGetInterfaceProvidersCases);
}
TEST_F(InterfacesAdmission, getInterfaceProviders) {
    kc::admission<GetInterfaceProvidersExport>(callers(), kGetInterfaceProvidersCases,
                                               kc::Needs::Operator);
}

const kc::Number kNumber118{118, "getInterfaceProviders", kGetInterfaceProvidersCases};

TEST_F(InterfacesByNumber, n118_getInterfaceProviders_KelCall) { kc::kelCall(api, kNumber118); }
TEST_F(InterfacesByNumber, n118_getInterfaceProviders_PyCall) { kc::pyCall(api, kNumber118); }
TEST_F(InterfacesByNumber, n118_getInterfaceProviders_Failure) {
    kc::numberFailure(api, kNumber118);
}

// ---- setInterfaceProviders (position 267, number 119) ----

const kc::Case kSetInterfaceProvidersCases[] = {
    {"full",
     "[[{\"itemText1\":\"Pr\303\274fstand \342\202\254 267.1\",\"itemText2\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 267.2\",\"itemText3\":\"K\303\274hler\\u0009"
     "\360\237\224\247 267.3\",\"itemText4\":\"say \\\"\303\251\\\" 267.4\",\"text\":\"back\\"
     "\\slash \303\237 267.5\",\"value\":4294967295,\"flag\":128},{\"itemText1\":\"Z\303\274nd"
     "ung \360\237\232\227 267.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 267.7\",\"ite"
     "mText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 267.8\",\"itemText4\":"
     "\"K\303\274hler\\u0009\360\237\224\247 267.9\",\"text\":\"say \\\"\303\251\\\" 267.10\","
     "\"value\":2147483648,\"flag\":0}]]",
     "[[{\"itemText1\":\"Pr\303\274fstand \342\202\254 267.1\",\"itemText2\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 267.2\",\"itemText3\":\"K\303\274hler\\u0009"
     "\360\237\224\247 267.3\",\"itemText4\":\"say \\\"\303\251\\\" 267.4\",\"text\":\"back\\"
     "\\slash \303\237 267.5\",\"value\":4294967295,\"flag\":true},{\"itemText1\":\"Z\303\274n"
     "dung \360\237\232\227 267.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 267.7\",\"it"
     "emText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 267.8\",\"itemText4\":"
     "\"K\303\274hler\\u0009\360\237\224\247 267.9\",\"text\":\"say \\\"\303\251\\\" 267.10\","
     "\"value\":2147483648,\"flag\":false}]]",
     "null", nullptr,
     "02000000140000005072c3bc667374616e6420e282ac203236372e3114000000e697a5e69cace8aa9e20f09d"
     "849e203236372e32120000004bc3bc686c657209f09f94a7203236372e330e0000007361792022c3a9222032"
     "36372e34130000006261636b5c736c61736820c39f203236372e35ffffffff01130000005ac3bc6e64756e67"
     "20f09f9a97203236372e36140000005072c3bc667374616e6420e282ac203236372e3714000000e697a5e69c"
     "ace8aa9e20f09d849e203236372e38120000004bc3bc686c657209f09f94a7203236372e390f000000736179"
     "2022c3a922203236372e31300000008000",
     "02000000015072c3bc667374616e6420e282ac203236372e3100e697a5e69cace8aa9e20f09d849e20323637"
     "2e32004bc3bc686c657209f09f94a7203236372e33007361792022c3a922203236372e34006261636b5c736c"
     "61736820c39f203236372e3500ffffffff01015ac3bc6e64756e6720f09f9a97203236372e36005072c3bc66"
     "7374616e6420e282ac203236372e3700e697a5e69cace8aa9e20f09d849e203236372e38004bc3bc686c6572"
     "09f09f94a7203236372e39007361792022c3a922203236372e3130000000008000",
     "[[{\"itemText1\":\"Pr\303\274fstand \342\202\254 267.1\",\"itemText2\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 267.2\",\"itemText3\":\"K\303\274hler\\u0009"
     "\360\237\224\247 267.3\",\"itemText4\":\"say \\\"\303\251\\\" 267.4\",\"text\":\"back\\"
     "\\slash \303\237 267.5\",\"value\":4294967295,\"flag\":true},{\"itemText1\":\"Z\303\274n"
     "dung \360\237\232\227 267.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 267.7\",\"it"
     "emText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 267.8\",\"itemText4\":"
     "\"K\303\274hler\\u0009\360\237\224\247 267.9\",\"text\":\"say \\\"\303\251\\\" 267.10\","
     "\"value\":2147483648,\"flag\":false}]]",
     "[[{\"itemText1\":\"Pr\303\274fstand \342\202\254 267.1\",\"itemText2\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 267.2\",\"itemText3\":\"K\303\274hler\\u0009"
     "\360\237\224\247 267.3\",\"itemText4\":\"say \\\"\303\251\\\" 267.4\",\"text\":\"back\\"
     "\\slash \303\237 267.5\",\"value\":4294967295,\"flag\":true},{\"itemText1\":\"Z\303\274n"
     "dung \360\237\232\227 267.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 267.7\",\"it"
     "emText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 267.8\",\"itemText4\":"
     "\"K\303\274hler\\u0009\360\237\224\247 267.9\",\"text\":\"say \\\"\303\251\\\" 267.10\","
     "\"value\":2147483648,\"flag\":false}]]",
     "01", "", 0},
    {"sparse", "[[]]", "[[]]", "null", nullptr, "00000000", "00000000", "[[]]", "[[]]", "01", "",
     0},
};

struct SetInterfaceProvidersExport {
    static constexpr const char* operation = "setInterfaceProviders";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::RecordList<InterfaceProvider, release_InterfaceProvider_array> a0(in[0]);
        static_cast<void>(out);
        kel_setInterfaceProviders(api, error, a0.data(), a0.count());
    }
};

TEST_F(Interfaces, setInterfaceProviders_Exchange) {
    kc::exchange<SetInterfaceProvidersExport>(api, kSetInterfaceProvidersCases);
}
TEST_F(Interfaces, setInterfaceProviders_Failure) {
    kc::failure<SetInterfaceProvidersExport>(api, kSetInterfaceProvidersCases);
}
TEST_F(InterfacesAdmission, setInterfaceProviders) {
    kc::admission<SetInterfaceProvidersExport>(callers(), kSetInterfaceProvidersCases,
                                               kc::Needs::Administrator);
}

const char* const kSetInterfaceProvidersNoUtf8[] = {
    "[[{\"itemText1\":\"\\udc00Pr\303\274fstand \342\202\254 267.1\\ud800\",\"itemText2\":\""
    "\346\227\245\346\234\254\350\252\236 \360\235\204\236 267.2\",\"itemText3\":\"K\303\274h"
    "ler\\t\360\237\224\247 267.3\",\"itemText4\":\"say \\\"\303\251\\\" 267.4\",\"text\":\"b"
    "ack\\\\slash \303\237 267.5\",\"value\":4294967295,\"flag\":128},{\"itemText1\":\"Z\303"
    "\274ndung \360\237\232\227 267.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 267.7\""
    ",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 267.8\",\"itemTex"
    "t4\":\"K\303\274hler\\t\360\237\224\247 267.9\",\"text\":\"say \\\"\303\251\\\" 267.10\""
    ",\"value\":2147483648,\"flag\":0}]]",
    "[[{\"itemText1\":\"Pr\303\274fstand \342\202\254 267.1\",\"itemText2\":\"\\udc00\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 267.2\\ud800\",\"itemText3\":\"K\303\274hl"
    "er\\t\360\237\224\247 267.3\",\"itemText4\":\"say \\\"\303\251\\\" 267.4\",\"text\":\"ba"
    "ck\\\\slash \303\237 267.5\",\"value\":4294967295,\"flag\":128},{\"itemText1\":\"Z\303"
    "\274ndung \360\237\232\227 267.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 267.7\""
    ",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 267.8\",\"itemTex"
    "t4\":\"K\303\274hler\\t\360\237\224\247 267.9\",\"text\":\"say \\\"\303\251\\\" 267.10\""
    ",\"value\":2147483648,\"flag\":0}]]",
    "[[{\"itemText1\":\"Pr\303\274fstand \342\202\254 267.1\",\"itemText2\":\"\346\227\245"
    "\346\234\254\350\252\236 \360\235\204\236 267.2\",\"itemText3\":\"\\udc00K\303\274hler\\"
    "t\360\237\224\247 267.3\\ud800\",\"itemText4\":\"say \\\"\303\251\\\" 267.4\",\"text\":"
    "\"back\\\\slash \303\237 267.5\",\"value\":4294967295,\"flag\":128},{\"itemText1\":\"Z"
    "\303\274ndung \360\237\232\227 267.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 267"
    ".7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 267.8\",\"ite"
    "mText4\":\"K\303\274hler\\t\360\237\224\247 267.9\",\"text\":\"say \\\"\303\251\\\" 267."
    "10\",\"value\":2147483648,\"flag\":0}]]",
    "[[{\"itemText1\":\"Pr\303\274fstand \342\202\254 267.1\",\"itemText2\":\"\346\227\245"
    "\346\234\254\350\252\236 \360\235\204\236 267.2\",\"itemText3\":\"K\303\274hler\\t\360"
    "\237\224\247 267.3\",\"itemText4\":\"\\udc00say \\\"\303\251\\\" 267.4\\ud800\",\"text\""
    ":\"back\\\\slash \303\237 267.5\",\"value\":4294967295,\"flag\":128},{\"itemText1\":\"Z"
    "\303\274ndung \360\237\232\227 267.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 267"
    ".7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 267.8\",\"ite"
    "mText4\":\"K\303\274hler\\t\360\237\224\247 267.9\",\"text\":\"say \\\"\303\251\\\" 267."
    "10\",\"value\":2147483648,\"flag\":0}]]",
    "[[{\"itemText1\":\"Pr\303\274fstand \342\202\254 267.1\",\"itemText2\":\"\346\227\245"
    "\346\234\254\350\252\236 \360\235\204\236 267.2\",\"itemText3\":\"K\303\274hler\\t\360"
    "\237\224\247 267.3\",\"itemText4\":\"say \\\"\303\251\\\" 267.4\",\"text\":\"\\udc00back"
    "\\\\slash \303\237 267.5\\ud800\",\"value\":4294967295,\"flag\":128},{\"itemText1\":\"Z"
    "\303\274ndung \360\237\232\227 267.6\",\"itemText2\":\"Pr\303\274fstand \342\202\254 267"
    ".7\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 267.8\",\"ite"
    "mText4\":\"K\303\274hler\\t\360\237\224\247 267.9\",\"text\":\"say \\\"\303\251\\\" 267."
    "10\",\"value\":2147483648,\"flag\":0}]]",
};
TEST_F(Interfaces, setInterfaceProviders_TextWithNoUtf8Form) {
    kc::noUtf8<SetInterfaceProvidersExport>(api, kSetInterfaceProvidersNoUtf8);
}

const kc::Number kNumber119{119, "setInterfaceProviders", kSetInterfaceProvidersCases};

TEST_F(InterfacesByNumber, n119_setInterfaceProviders_KelCall) { kc::kelCall(api, kNumber119); }
TEST_F(InterfacesByNumber, n119_setInterfaceProviders_PyCall) { kc::pyCall(api, kNumber119); }
TEST_F(InterfacesByNumber, n119_setInterfaceProviders_Failure) {
    kc::numberFailure(api, kNumber119);
}
TEST_F(InterfacesByNumber, n119_setInterfaceProviders_ShortInput) {
    kc::shortInput(api, kNumber119);
}

// ---- getDefaultDoIPParameter (position 272, number 208) ----

const kc::Case kGetDefaultDoIPParameterCases[] = {
    {"full", "[]", "[]",
     "{\"value1\":4294967295,\"value2\":2147483648,\"text\":\"Pr\303\274fstand \342\202\254 27"
     "2.1\",\"value3\":2147483647,\"strings\":[\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 272.2\",\"K\303\274hler\\u0009\360\237\224\247 272.3\"]}",
     "{\"value1\":4294967295,\"value2\":2147483648,\"text\":\"Pr\303\274fstand \342\202\254 27"
     "2.1\",\"value3\":2147483647,\"strings\":[\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 272.2\",\"K\303\274hler\\u0009\360\237\224\247 272.3\"],\"stringCount\":2}",
     "", "", "[]", "[]",
     "0101ffffffff00000080140000005072c3bc667374616e6420e282ac203237322e31ffffff7f020000001400"
     "0000e697a5e69cace8aa9e20f09d849e203237322e32120000004bc3bc686c657209f09f94a7203237322e33",
     "01ffffffff00000080140000005072c3bc667374616e6420e282ac203237322e31ffffff7f02000000140000"
     "00e697a5e69cace8aa9e20f09d849e203237322e32120000004bc3bc686c657209f09f94a7203237322e33",
     0},
    {"sparse", "[]", "[]",
     "{\"value1\":4294967295,\"value2\":2147483648,\"text\":\"\",\"value3\":2147483647,\"strin"
     "gs\":[]}",
     "{\"value1\":4294967295,\"value2\":2147483648,\"text\":\"\",\"value3\":2147483647,\"strin"
     "gs\":null,\"stringCount\":0}",
     "", "", "[]", "[]", "0101ffffffff0000008000000000ffffff7f00000000",
     "01ffffffff0000008000000000ffffff7f00000000", 0},
    {"empty", "[]", "[]", "null", "null", "", "", "[]", "[]", "0100", "00", 0},
};

struct GetDefaultDoIPParameterExport {
    static constexpr const char* operation = "getDefaultDoIPParameter";
    using Result = kc::RecordResult<DoIPParameter, release_DoIPParameter>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getDefaultDoIPParameter(api, error, &out.data);
    }
};

TEST_F(Interfaces, getDefaultDoIPParameter_Exchange) {
    kc::exchange<GetDefaultDoIPParameterExport>(api, kGetDefaultDoIPParameterCases);
}
TEST_F(Interfaces, getDefaultDoIPParameter_Failure) {
    kc::failure<GetDefaultDoIPParameterExport>(api, kGetDefaultDoIPParameterCases);
}
TEST_F(InterfacesAdmission, getDefaultDoIPParameter) {
    kc::admission<GetDefaultDoIPParameterExport>(callers(), kGetDefaultDoIPParameterCases,
                                                 kc::Needs::Operator);
}

const kc::Number kNumber208{208, "getDefaultDoIPParameter", kGetDefaultDoIPParameterCases};

TEST_F(InterfacesByNumber, n208_getDefaultDoIPParameter_KelCall) { kc::kelCall(api, kNumber208); }
TEST_F(InterfacesByNumber, n208_getDefaultDoIPParameter_PyCall) { kc::pyCall(api, kNumber208); }
TEST_F(InterfacesByNumber, n208_getDefaultDoIPParameter_Failure) {
    kc::numberFailure(api, kNumber208);
}

} // namespace
