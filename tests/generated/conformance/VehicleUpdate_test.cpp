// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family VehicleUpdate: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using VehicleUpdate = kc::ConformanceTest;
using VehicleUpdateByNumber = kc::ConformanceTest;
using VehicleUpdateAdmission = kc::AdmissionTest;

// ---- applyUpdatePackage (position 151, number 185) ----

const kc::Case kApplyUpdatePackageCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 151.1\"]",
     "[\"Pr\303\274fstand \342\202\254 151.1\"]", "null", nullptr,
     "140000005072c3bc667374616e6420e282ac203135312e31",
     "5072c3bc667374616e6420e282ac203135312e3100", "[\"Pr\303\274fstand \342\202\254 151.1\"]",
     "[\"Pr\303\274fstand \342\202\254 151.1\"]", "01", "", 0},
    {"sparse", "[\"\"]", "[\"\"]", "null", nullptr, "00000000", "00", "[\"\"]", "[\"\"]", "01", "",
     0},
};

struct ApplyUpdatePackageExport {
    static constexpr const char* operation = "applyUpdatePackage";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        static_cast<void>(out);
        kel_applyUpdatePackage(api, a0.get(), error);
    }
};

TEST_F(VehicleUpdate, applyUpdatePackage_Exchange) {
    kc::exchange<ApplyUpdatePackageExport>(api, kApplyUpdatePackageCases);
}
TEST_F(VehicleUpdate, applyUpdatePackage_Failure) {
    kc::failure<ApplyUpdatePackageExport>(api, kApplyUpdatePackageCases);
}
TEST_F(VehicleUpdateAdmission, applyUpdatePackage) {
    kc::admission<ApplyUpdatePackageExport>(callers(), kApplyUpdatePackageCases,
                                            kc::Needs::Administrator);
}

const char* const kApplyUpdatePackageNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 151.1\\ud800\"]",
};
TEST_F(VehicleUpdate, applyUpdatePackage_TextWithNoUtf8Form) {
    kc::noUtf8<ApplyUpdatePackageExport>(api, kApplyUpdatePackageNoUtf8);
}

const kc::Number kNumber185{185, "applyUpdatePackage", kApplyUpdatePackageCases};

TEST_F(VehicleUpdateByNumber, n185_applyUpdatePackage_KelCall) { kc::kelCall(api, kNumber185); }
TEST_F(VehicleUpdateByNumber, n185_applyUpdatePackage_PyCall) { kc::pyCall(api, kNumber185); }
TEST_F(VehicleUpdateByNumber, n185_applyUpdatePackage_Failure) {
    kc::numberFailure(api, kNumber185);
}
TEST_F(VehicleUpdateByNumber, n185_applyUpdatePackage_ShortInput) {
    kc::shortInput(api, kNumber185);
}

// ---- getUpdatePackages (position 154, number 184) ----

const kc::Case kGetUpdatePackagesCases[] = {
    {"full", "[]", "[]",
     "[{\"name\":\"Pr\303\274fstand \342\202\254 154.1\",\"version\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 154.2\",\"description\":\"K\303\274hler\\u0009\360\237"
     "\224\247 154.3\",\"kind\":4294967295,\"targets\":[\"say \\\"\303\251\\\" 154.4\",\"back"
     "\\\\slash \303\237 154.5\"],\"size\":9223372036854775809,\"checksum\":\"Z\303\274ndung "
     "\360\237\232\227 154.6\",\"location\":\"Pr\303\274fstand \342\202\254 154.7\",\"state\":"
     "-2147483648},{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 154.8\","
     "\"version\":\"K\303\274hler\\u0009\360\237\224\247 154.9\",\"description\":\"say \\\""
     "\303\251\\\" 154.10\",\"kind\":2147483648,\"targets\":[\"back\\\\slash \303\237 154.11\""
     ",\"Z\303\274ndung \360\237\232\227 154.12\"],\"size\":18446744073709551615,\"checksum\":"
     "\"Pr\303\274fstand \342\202\254 154.13\",\"location\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 154.14\",\"state\":2147483647}]",
     "[{\"name\":\"Pr\303\274fstand \342\202\254 154.1\",\"version\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 154.2\",\"description\":\"K\303\274hler\\u0009\360\237"
     "\224\247 154.3\",\"kind\":4294967295,\"targets\":[\"say \\\"\303\251\\\" 154.4\",\"back"
     "\\\\slash \303\237 154.5\"],\"targetCount\":2,\"size\":9223372036854775809,\"checksum\":"
     "\"Z\303\274ndung \360\237\232\227 154.6\",\"location\":\"Pr\303\274fstand \342\202\254 1"
     "54.7\",\"state\":-2147483648},{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 154.8\",\"version\":\"K\303\274hler\\u0009\360\237\224\247 154.9\",\"descriptio"
     "n\":\"say \\\"\303\251\\\" 154.10\",\"kind\":2147483648,\"targets\":[\"back\\\\slash "
     "\303\237 154.11\",\"Z\303\274ndung \360\237\232\227 154.12\"],\"targetCount\":2,\"size\""
     ":18446744073709551615,\"checksum\":\"Pr\303\274fstand \342\202\254 154.13\",\"location\""
     ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 154.14\",\"state\":2147483647}]",
     "", "", "[]", "[]",
     "010200000001140000005072c3bc667374616e6420e282ac203135342e3114000000e697a5e69cace8aa9e20"
     "f09d849e203135342e32120000004bc3bc686c657209f09f94a7203135342e33ffffffff020000000e000000"
     "7361792022c3a922203135342e34130000006261636b5c736c61736820c39f203135342e3501000000000000"
     "80130000005ac3bc6e64756e6720f09f9a97203135342e36140000005072c3bc667374616e6420e282ac2031"
     "35342e37000000800114000000e697a5e69cace8aa9e20f09d849e203135342e38120000004bc3bc686c6572"
     "09f09f94a7203135342e390f0000007361792022c3a922203135342e31300000008002000000140000006261"
     "636b5c736c61736820c39f203135342e3131140000005ac3bc6e64756e6720f09f9a97203135342e3132ffff"
     "ffffffffffff150000005072c3bc667374616e6420e282ac203135342e313315000000e697a5e69cace8aa9e"
     "20f09d849e203135342e3134ffffff7f",
     "0200000001140000005072c3bc667374616e6420e282ac203135342e3114000000e697a5e69cace8aa9e20f0"
     "9d849e203135342e32120000004bc3bc686c657209f09f94a7203135342e33ffffffff020000000e00000073"
     "61792022c3a922203135342e34130000006261636b5c736c61736820c39f203135342e350100000000000080"
     "130000005ac3bc6e64756e6720f09f9a97203135342e36140000005072c3bc667374616e6420e282ac203135"
     "342e37000000800114000000e697a5e69cace8aa9e20f09d849e203135342e38120000004bc3bc686c657209"
     "f09f94a7203135342e390f0000007361792022c3a922203135342e3130000000800200000014000000626163"
     "6b5c736c61736820c39f203135342e3131140000005ac3bc6e64756e6720f09f9a97203135342e3132ffffff"
     "ffffffffff150000005072c3bc667374616e6420e282ac203135342e313315000000e697a5e69cace8aa9e20"
     "f09d849e203135342e3134ffffff7f",
     0},
    {"sparse", "[]", "[]",
     "[{\"name\":\"\",\"version\":\"\",\"description\":\"\",\"kind\":4294967295,\"targets\":[]"
     ",\"size\":9223372036854775809,\"checksum\":\"\",\"location\":\"\",\"state\":-2147483648}"
     ",null]",
     "[{\"name\":\"\",\"version\":\"\",\"description\":\"\",\"kind\":4294967295,\"targets\":nu"
     "ll,\"targetCount\":0,\"size\":9223372036854775809,\"checksum\":\"\",\"location\":\"\",\""
     "state\":-2147483648},null]",
     "", "", "[]", "[]",
     "010200000001000000000000000000000000ffffffff00000000010000000000008000000000000000000000"
     "008000",
     "0200000001000000000000000000000000ffffffff0000000001000000000000800000000000000000000000"
     "8000",
     0},
    {"empty", "[]", "[]", "[]", "null", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct GetUpdatePackagesExport {
    static constexpr const char* operation = "getUpdatePackages";
    using Result = kc::ListResult<UpdatePackageInfo, release_UpdatePackageInfo_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getUpdatePackages(api, error, &out.data, &out.count);
    }
};

TEST_F(VehicleUpdate, getUpdatePackages_Exchange) {
    kc::exchange<GetUpdatePackagesExport>(api, kGetUpdatePackagesCases);
}
TEST_F(VehicleUpdate, getUpdatePackages_Failure) {
    kc::failure<GetUpdatePackagesExport>(api, kGetUpdatePackagesCases);
}
TEST_F(VehicleUpdateAdmission, getUpdatePackages) {
    kc::admission<GetUpdatePackagesExport>(callers(), kGetUpdatePackagesCases, kc::Needs::Operator);
}

const kc::Number kNumber184{184, "getUpdatePackages", kGetUpdatePackagesCases};

TEST_F(VehicleUpdateByNumber, n184_getUpdatePackages_KelCall) { kc::kelCall(api, kNumber184); }
TEST_F(VehicleUpdateByNumber, n184_getUpdatePackages_PyCall) { kc::pyCall(api, kNumber184); }
TEST_F(VehicleUpdateByNumber, n184_getUpdatePackages_Failure) {
    kc::numberFailure(api, kNumber184);
}

// ---- getPackagesFromBroker (position 155, number 164) ----

const kc::Case kGetPackagesFromBrokerCases[] = {
    {"full", "[]", "[]",
     "[{\"name\":\"Pr\303\274fstand \342\202\254 155.1\",\"version\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 155.2\",\"description\":\"K\303\274hler\\u0009\360\237"
     "\224\247 155.3\",\"kind\":4294967295,\"targets\":[\"say \\\"\303\251\\\" 155.4\",\"back"
     "\\\\slash \303\237 155.5\"],\"size\":9223372036854775809,\"checksum\":\"Z\303\274ndung "
     "\360\237\232\227 155.6\",\"location\":\"Pr\303\274fstand \342\202\254 155.7\",\"state\":"
     "-2147483648},{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 155.8\","
     "\"version\":\"K\303\274hler\\u0009\360\237\224\247 155.9\",\"description\":\"say \\\""
     "\303\251\\\" 155.10\",\"kind\":2147483648,\"targets\":[\"back\\\\slash \303\237 155.11\""
     ",\"Z\303\274ndung \360\237\232\227 155.12\"],\"size\":18446744073709551615,\"checksum\":"
     "\"Pr\303\274fstand \342\202\254 155.13\",\"location\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 155.14\",\"state\":2147483647}]",
     "[{\"name\":\"Pr\303\274fstand \342\202\254 155.1\",\"version\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 155.2\",\"description\":\"K\303\274hler\\u0009\360\237"
     "\224\247 155.3\",\"kind\":4294967295,\"targets\":[\"say \\\"\303\251\\\" 155.4\",\"back"
     "\\\\slash \303\237 155.5\"],\"targetCount\":2,\"size\":9223372036854775809,\"checksum\":"
     "\"Z\303\274ndung \360\237\232\227 155.6\",\"location\":\"Pr\303\274fstand \342\202\254 1"
     "55.7\",\"state\":-2147483648},{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 155.8\",\"version\":\"K\303\274hler\\u0009\360\237\224\247 155.9\",\"descriptio"
     "n\":\"say \\\"\303\251\\\" 155.10\",\"kind\":2147483648,\"targets\":[\"back\\\\slash "
     "\303\237 155.11\",\"Z\303\274ndung \360\237\232\227 155.12\"],\"targetCount\":2,\"size\""
     ":18446744073709551615,\"checksum\":\"Pr\303\274fstand \342\202\254 155.13\",\"location\""
     ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 155.14\",\"state\":2147483647}]",
     "", "", "[]", "[]",
     "010200000001140000005072c3bc667374616e6420e282ac203135352e3114000000e697a5e69cace8aa9e20"
     "f09d849e203135352e32120000004bc3bc686c657209f09f94a7203135352e33ffffffff020000000e000000"
     "7361792022c3a922203135352e34130000006261636b5c736c61736820c39f203135352e3501000000000000"
     "80130000005ac3bc6e64756e6720f09f9a97203135352e36140000005072c3bc667374616e6420e282ac2031"
     "35352e37000000800114000000e697a5e69cace8aa9e20f09d849e203135352e38120000004bc3bc686c6572"
     "09f09f94a7203135352e390f0000007361792022c3a922203135352e31300000008002000000140000006261"
     "636b5c736c61736820c39f203135352e3131140000005ac3bc6e64756e6720f09f9a97203135352e3132ffff"
     "ffffffffffff150000005072c3bc667374616e6420e282ac203135352e313315000000e697a5e69cace8aa9e"
     "20f09d849e203135352e3134ffffff7f",
     "0200000001140000005072c3bc667374616e6420e282ac203135352e3114000000e697a5e69cace8aa9e20f0"
     "9d849e203135352e32120000004bc3bc686c657209f09f94a7203135352e33ffffffff020000000e00000073"
     "61792022c3a922203135352e34130000006261636b5c736c61736820c39f203135352e350100000000000080"
     "130000005ac3bc6e64756e6720f09f9a97203135352e36140000005072c3bc667374616e6420e282ac203135"
     "352e37000000800114000000e697a5e69cace8aa9e20f09d849e203135352e38120000004bc3bc686c657209"
     "f09f94a7203135352e390f0000007361792022c3a922203135352e3130000000800200000014000000626163"
     "6b5c736c61736820c39f203135352e3131140000005ac3bc6e64756e6720f09f9a97203135352e3132ffffff"
     "ffffffffff150000005072c3bc667374616e6420e282ac203135352e313315000000e697a5e69cace8aa9e20"
     "f09d849e203135352e3134ffffff7f",
     0},
    {"sparse", "[]", "[]",
     "[{\"name\":\"\",\"version\":\"\",\"description\":\"\",\"kind\":4294967295,\"targets\":[]"
     ",\"size\":9223372036854775809,\"checksum\":\"\",\"location\":\"\",\"state\":-2147483648}"
     ",null]",
     "[{\"name\":\"\",\"version\":\"\",\"description\":\"\",\"kind\":4294967295,\"targets\":nu"
     "ll,\"targetCount\":0,\"size\":9223372036854775809,\"checksum\":\"\",\"location\":\"\",\""
     "state\":-2147483648},null]",
     "", "", "[]", "[]",
     "010200000001000000000000000000000000ffffffff00000000010000000000008000000000000000000000"
     "008000",
     "0200000001000000000000000000000000ffffffff0000000001000000000000800000000000000000000000"
     "8000",
     0},
    {"empty", "[]", "[]", "[]", "null", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct GetPackagesFromBrokerExport {
    static constexpr const char* operation = "getPackagesFromBroker";
    using Result = kc::ListResult<UpdatePackageInfo, release_UpdatePackageInfo_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getPackagesFromBroker(api, error, &out.data, &out.count);
    }
};

TEST_F(VehicleUpdate, getPackagesFromBroker_Exchange) {
    kc::exchange<GetPackagesFromBrokerExport>(api, kGetPackagesFromBrokerCases);
}
TEST_F(VehicleUpdate, getPackagesFromBroker_Failure) {
    kc::failure<GetPackagesFromBrokerExport>(api, kGetPackagesFromBrokerCases);
}
TEST_F(VehicleUpdateAdmission, getPackagesFromBroker) {
    kc::admission<GetPackagesFromBrokerExport>(callers(), kGetPackagesFromBrokerCases,
                                               kc::Needs::Operator);
}

const kc::Number kNumber164{164, "getPackagesFromBroker", kGetPackagesFromBrokerCases};

TEST_F(VehicleUpdateByNumber, n164_getPackagesFromBroker_KelCall) { kc::kelCall(api, kNumber164); }
TEST_F(VehicleUpdateByNumber, n164_getPackagesFromBroker_PyCall) { kc::pyCall(api, kNumber164); }
TEST_F(VehicleUpdateByNumber, n164_getPackagesFromBroker_Failure) {
    kc::numberFailure(api, kNumber164);
}

// ---- checkUpdatesOnBroker (position 156, number 174) ----

const kc::Case kCheckUpdatesOnBrokerCases[] = {
    {"full", "[]", "[]", "true", "true", "", "", "[]", "[]", "0101", "01", 0},
};

struct CheckUpdatesOnBrokerExport {
    static constexpr const char* operation = "checkUpdatesOnBroker";
    using Result = kc::ValueResult<bool>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_checkUpdatesOnBroker(api, error, &out.data);
    }
};

TEST_F(VehicleUpdate, checkUpdatesOnBroker_Exchange) {
    kc::exchange<CheckUpdatesOnBrokerExport>(api, kCheckUpdatesOnBrokerCases);
}
TEST_F(VehicleUpdate, checkUpdatesOnBroker_Failure) {
    kc::failure<CheckUpdatesOnBrokerExport>(api, kCheckUpdatesOnBrokerCases);
}
TEST_F(VehicleUpdateAdmission, checkUpdatesOnBroker) {
    kc::admission<CheckUpdatesOnBrokerExport>(callers(), kCheckUpdatesOnBrokerCases,
                                              kc::Needs::Operator);
}

const kc::Number kNumber174{174, "checkUpdatesOnBroker", kCheckUpdatesOnBrokerCases};

TEST_F(VehicleUpdateByNumber, n174_checkUpdatesOnBroker_KelCall) { kc::kelCall(api, kNumber174); }
TEST_F(VehicleUpdateByNumber, n174_checkUpdatesOnBroker_PyCall) { kc::pyCall(api, kNumber174); }
TEST_F(VehicleUpdateByNumber, n174_checkUpdatesOnBroker_Failure) {
    kc::numberFailure(api, kNumber174);
}

// ---- autoUpdate (position 157, number 175) ----

const kc::Case kAutoUpdateCases[] = {
    {"full", "[]", "[]", "true", "true", "", "", "[]", "[]", "0101", "01", 0},
};

struct AutoUpdateExport {
    static constexpr const char* operation = "autoUpdate";
    using Result = kc::ValueResult<bool>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_autoUpdate(api, error, &out.data);
    }
};

TEST_F(VehicleUpdate, autoUpdate_Exchange) {
    kc::exchange<AutoUpdateExport>(api, kAutoUpdateCases);
}
TEST_F(VehicleUpdate, autoUpdate_Failure) { kc::failure<AutoUpdateExport>(api, kAutoUpdateCases); }
TEST_F(VehicleUpdateAdmission, autoUpdate) {
    kc::admission<AutoUpdateExport>(callers(), kAutoUpdateCases, kc::Needs::Administrator);
}

const kc::Number kNumber175{175, "autoUpdate", kAutoUpdateCases};

TEST_F(VehicleUpdateByNumber, n175_autoUpdate_KelCall) { kc::kelCall(api, kNumber175); }
TEST_F(VehicleUpdateByNumber, n175_autoUpdate_PyCall) { kc::pyCall(api, kNumber175); }
TEST_F(VehicleUpdateByNumber, n175_autoUpdate_Failure) { kc::numberFailure(api, kNumber175); }

// ---- getCurrentVersions (position 163, number 191) ----

const kc::Case kGetCurrentVersionsCases[] = {
    {"full", "[]", "[]",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 163.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 163.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 163.3\",\"itemText4\":\"say \\\"\303\251\\\" 163.4\"},{\"itemText1\":\"back"
     "\\\\slash \303\237 163.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 163.6\",\"ite"
     "mText3\":\"Pr\303\274fstand \342\202\254 163.7\",\"itemText4\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 163.8\"}]",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 163.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 163.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 163.3\",\"itemText4\":\"say \\\"\303\251\\\" 163.4\"},{\"itemText1\":\"back"
     "\\\\slash \303\237 163.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 163.6\",\"ite"
     "mText3\":\"Pr\303\274fstand \342\202\254 163.7\",\"itemText4\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 163.8\"}]",
     "", "", "[]", "[]",
     "010200000001140000005072c3bc667374616e6420e282ac203136332e3114000000e697a5e69cace8aa9e20"
     "f09d849e203136332e32120000004bc3bc686c657209f09f94a7203136332e330e0000007361792022c3a922"
     "203136332e3401130000006261636b5c736c61736820c39f203136332e35130000005ac3bc6e64756e6720f0"
     "9f9a97203136332e36140000005072c3bc667374616e6420e282ac203136332e3714000000e697a5e69cace8"
     "aa9e20f09d849e203136332e38",
     "0200000001140000005072c3bc667374616e6420e282ac203136332e3114000000e697a5e69cace8aa9e20f0"
     "9d849e203136332e32120000004bc3bc686c657209f09f94a7203136332e330e0000007361792022c3a92220"
     "3136332e3401130000006261636b5c736c61736820c39f203136332e35130000005ac3bc6e64756e6720f09f"
     "9a97203136332e36140000005072c3bc667374616e6420e282ac203136332e3714000000e697a5e69cace8aa"
     "9e20f09d849e203136332e38",
     0},
    {"sparse", "[]", "[]",
     "[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\"},null]",
     "[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\"},null]", "", "",
     "[]", "[]", "0102000000010000000000000000000000000000000000",
     "02000000010000000000000000000000000000000000", 0},
    {"empty", "[]", "[]", "[]", "null", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct GetCurrentVersionsExport {
    static constexpr const char* operation = "getCurrentVersions";
    using Result = kc::ListResult<NamedItem, release_NamedItem_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getCurrentVersions(api, error, &out.data, &out.count);
    }
};

TEST_F(VehicleUpdate, getCurrentVersions_Exchange) {
    kc::exchange<GetCurrentVersionsExport>(api, kGetCurrentVersionsCases);
}
TEST_F(VehicleUpdate, getCurrentVersions_Failure) {
    kc::failure<GetCurrentVersionsExport>(api, kGetCurrentVersionsCases);
}
TEST_F(VehicleUpdateAdmission, getCurrentVersions) {
    kc::admission<GetCurrentVersionsExport>(callers(), kGetCurrentVersionsCases,
                                            kc::Needs::Operator);
}

const kc::Number kNumber191{191, "getCurrentVersions", kGetCurrentVersionsCases};

TEST_F(VehicleUpdateByNumber, n191_getCurrentVersions_KelCall) { kc::kelCall(api, kNumber191); }
TEST_F(VehicleUpdateByNumber, n191_getCurrentVersions_PyCall) { kc::pyCall(api, kNumber191); }
TEST_F(VehicleUpdateByNumber, n191_getCurrentVersions_Failure) {
    kc::numberFailure(api, kNumber191);
}

// ---- checkUpdateSuccess (position 164, number 193) ----

const kc::Case kCheckUpdateSuccessCases[] = {
    {"full", "[]", "[]", "true", "true", "", "", "[]", "[]", "0101", "01", 0},
};

struct CheckUpdateSuccessExport {
    static constexpr const char* operation = "checkUpdateSuccess";
    using Result = kc::ValueResult<bool>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_checkUpdateSuccess(api, error, &out.data);
    }
};

TEST_F(VehicleUpdate, checkUpdateSuccess_Exchange) {
    kc::exchange<CheckUpdateSuccessExport>(api, kCheckUpdateSuccessCases);
}
TEST_F(VehicleUpdate, checkUpdateSuccess_Failure) {
    kc::failure<CheckUpdateSuccessExport>(api, kCheckUpdateSuccessCases);
}
TEST_F(VehicleUpdateAdmission, checkUpdateSuccess) {
    kc::admission<CheckUpdateSuccessExport>(callers(), kCheckUpdateSuccessCases,
                                            kc::Needs::Operator);
}

const kc::Number kNumber193{193, "checkUpdateSuccess", kCheckUpdateSuccessCases};

TEST_F(VehicleUpdateByNumber, n193_checkUpdateSuccess_KelCall) { kc::kelCall(api, kNumber193); }
TEST_F(VehicleUpdateByNumber, n193_checkUpdateSuccess_PyCall) { kc::pyCall(api, kNumber193); }
TEST_F(VehicleUpdateByNumber, n193_checkUpdateSuccess_Failure) {
    kc::numberFailure(api, kNumber193);
}

// ---- cleanUpdateTmp (position 165, number 194) ----

const kc::Case kCleanUpdateTmpCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct CleanUpdateTmpExport {
    static constexpr const char* operation = "cleanUpdateTmp";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_cleanUpdateTmp(api, error);
    }
};

TEST_F(VehicleUpdate, cleanUpdateTmp_Exchange) {
    kc::exchange<CleanUpdateTmpExport>(api, kCleanUpdateTmpCases);
}
TEST_F(VehicleUpdate, cleanUpdateTmp_Failure) {
    kc::failure<CleanUpdateTmpExport>(api, kCleanUpdateTmpCases);
}
TEST_F(VehicleUpdateAdmission, cleanUpdateTmp) {
    kc::admission<CleanUpdateTmpExport>(callers(), kCleanUpdateTmpCases, kc::Needs::Administrator);
}

const kc::Number kNumber194{194, "cleanUpdateTmp", kCleanUpdateTmpCases};

TEST_F(VehicleUpdateByNumber, n194_cleanUpdateTmp_KelCall) { kc::kelCall(api, kNumber194); }
TEST_F(VehicleUpdateByNumber, n194_cleanUpdateTmp_PyCall) { kc::pyCall(api, kNumber194); }
TEST_F(VehicleUpdateByNumber, n194_cleanUpdateTmp_Failure) { kc::numberFailure(api, kNumber194); }

// ---- updateVehicle (position 177, number 211) ----

const kc::Case kUpdateVehicleCases[] = {
    {"full",
     "[{\"targets\":[\"Pr\303\274fstand \342\202\254 177.1\",\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 177.2\"],\"packages\":[{\"name\":\"K\303\274hler\\u0009\360"
     "\237\224\247 177.3\",\"version\":\"say \\\"\303\251\\\" 177.4\",\"description\":\"back\\"
     "\\slash \303\237 177.5\",\"kind\":4294967295,\"targets\":[\"Z\303\274ndung \360\237\232"
     "\227 177.6\",\"Pr\303\274fstand \342\202\254 177.7\"],\"size\":9223372036854775809,\"che"
     "cksum\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.8\",\"location\":\"K"
     "\303\274hler\\u0009\360\237\224\247 177.9\",\"state\":-2147483648},{\"name\":\"say \\\""
     "\303\251\\\" 177.10\",\"version\":\"back\\\\slash \303\237 177.11\",\"description\":\"Z"
     "\303\274ndung \360\237\232\227 177.12\",\"kind\":2147483648,\"targets\":[\"Pr\303\274fst"
     "and \342\202\254 177.13\",\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.14"
     "\"],\"size\":18446744073709551615,\"checksum\":\"K\303\274hler\\u0009\360\237\224\247 17"
     "7.15\",\"location\":\"say \\\"\303\251\\\" 177.16\",\"state\":2147483647}],\"stopOnError"
     "\":128,\"force\":0,\"blockLength\":2147483647}]",
     "[{\"targets\":[\"Pr\303\274fstand \342\202\254 177.1\",\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 177.2\"],\"packages\":[{\"name\":\"K\303\274hler\\u0009\360"
     "\237\224\247 177.3\",\"version\":\"say \\\"\303\251\\\" 177.4\",\"description\":\"back\\"
     "\\slash \303\237 177.5\",\"kind\":4294967295,\"targets\":[\"Z\303\274ndung \360\237\232"
     "\227 177.6\",\"Pr\303\274fstand \342\202\254 177.7\"],\"size\":9223372036854775809,\"che"
     "cksum\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.8\",\"location\":\"K"
     "\303\274hler\\u0009\360\237\224\247 177.9\",\"state\":-2147483648},{\"name\":\"say \\\""
     "\303\251\\\" 177.10\",\"version\":\"back\\\\slash \303\237 177.11\",\"description\":\"Z"
     "\303\274ndung \360\237\232\227 177.12\",\"kind\":2147483648,\"targets\":[\"Pr\303\274fst"
     "and \342\202\254 177.13\",\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.14"
     "\"],\"size\":18446744073709551615,\"checksum\":\"K\303\274hler\\u0009\360\237\224\247 17"
     "7.15\",\"location\":\"say \\\"\303\251\\\" 177.16\",\"state\":2147483647}],\"stopOnError"
     "\":true,\"force\":false,\"blockLength\":2147483647}]",
     "[{\"target\":\"back\\\\slash \303\237 177.17\",\"status\":-1,\"package\":\"Z\303\274ndun"
     "g \360\237\232\227 177.18\",\"versionBefore\":\"Pr\303\274fstand \342\202\254 177.19\","
     "\"versionAfter\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.20\",\"posi"
     "tion\":1528025373,\"progress\":2034977487,\"overallProgress\":394445955,\"duration\":901"
     "398069,\"error\":{\"code\":-65536,\"message\":\"K\303\274hler\\u0009\360\237\224\247 177"
     ".21\",\"details\":\"say \\\"\303\251\\\" 177.22\",\"subCode\":2034977487,\"mvciError\":{"
     "\"code\":-394445955,\"codeText\":\"back\\\\slash \303\237 177.23\",\"vendorCode\":901398"
     "069,\"vendorCodeText\":\"Z\303\274ndung \360\237\232\227 177.24\",\"extraText\":\"Pr\303"
     "\274fstand \342\202\254 177.25\",\"extraCode\":-1408350183},\"negativeResponse\":{\"code"
     "\":1915302297,\"text\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.26\","
     "\"value1\":4294967296,\"value2\":1528025373,\"bytes\":[0,255,255,128]}}},{\"target\":\"K"
     "\303\274hler\\u0009\360\237\224\247 177.27\",\"status\":-274770763,\"package\":\"say \\"
     "\"\303\251\\\" 177.28\",\"versionBefore\":\"back\\\\slash \303\237 177.29\",\"versionAft"
     "er\":\"Z\303\274ndung \360\237\232\227 177.30\",\"position\":1408350183,\"progress\":191"
     "5302297,\"overallProgress\":274770763,\"duration\":781722877,\"error\":null}]",
     "[{\"target\":\"back\\\\slash \303\237 177.17\",\"status\":-1,\"package\":\"Z\303\274ndun"
     "g \360\237\232\227 177.18\",\"versionBefore\":\"Pr\303\274fstand \342\202\254 177.19\","
     "\"versionAfter\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.20\",\"posi"
     "tion\":1528025373,\"progress\":2034977487,\"overallProgress\":394445955,\"duration\":901"
     "398069,\"error\":{\"code\":-65536,\"message\":\"K\303\274hler\\u0009\360\237\224\247 177"
     ".21\",\"details\":\"say \\\"\303\251\\\" 177.22\",\"subCode\":2034977487,\"mvciError\":{"
     "\"code\":-394445955,\"codeText\":\"back\\\\slash \303\237 177.23\",\"vendorCode\":901398"
     "069,\"vendorCodeText\":\"Z\303\274ndung \360\237\232\227 177.24\",\"extraText\":\"Pr\303"
     "\274fstand \342\202\254 177.25\",\"extraCode\":-1408350183},\"negativeResponse\":{\"code"
     "\":1915302297,\"text\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.26\","
     "\"value1\":4294967296,\"value2\":1528025373,\"bytes\":[0,255,255,128],\"byteCount\":4}}}"
     ",{\"target\":\"K\303\274hler\\u0009\360\237\224\247 177.27\",\"status\":-274770763,\"pac"
     "kage\":\"say \\\"\303\251\\\" 177.28\",\"versionBefore\":\"back\\\\slash \303\237 177.29"
     "\",\"versionAfter\":\"Z\303\274ndung \360\237\232\227 177.30\",\"position\":1408350183,"
     "\"progress\":1915302297,\"overallProgress\":274770763,\"duration\":781722877,\"error\":n"
     "ull}]",
     "02000000140000005072c3bc667374616e6420e282ac203137372e3114000000e697a5e69cace8aa9e20f09d"
     "849e203137372e3202000000120000004bc3bc686c657209f09f94a7203137372e330e0000007361792022c3"
     "a922203137372e34130000006261636b5c736c61736820c39f203137372e35ffffffff02000000130000005a"
     "c3bc6e64756e6720f09f9a97203137372e36140000005072c3bc667374616e6420e282ac203137372e370100"
     "00000000008014000000e697a5e69cace8aa9e20f09d849e203137372e38120000004bc3bc686c657209f09f"
     "94a7203137372e39000000800f0000007361792022c3a922203137372e3130140000006261636b5c736c6173"
     "6820c39f203137372e3131140000005ac3bc6e64756e6720f09f9a97203137372e3132000000800200000015"
     "0000005072c3bc667374616e6420e282ac203137372e313315000000e697a5e69cace8aa9e20f09d849e2031"
     "37372e3134ffffffffffffffff130000004bc3bc686c657209f09f94a7203137372e31350f00000073617920"
     "22c3a922203137372e3136ffffff7f0100ffffff7f",
     "01020000005072c3bc667374616e6420e282ac203137372e3100e697a5e69cace8aa9e20f09d849e20313737"
     "2e320002000000014bc3bc686c657209f09f94a7203137372e33007361792022c3a922203137372e34006261"
     "636b5c736c61736820c39f203137372e3500ffffffff020000005ac3bc6e64756e6720f09f9a97203137372e"
     "36005072c3bc667374616e6420e282ac203137372e37000100000000000080e697a5e69cace8aa9e20f09d84"
     "9e203137372e38004bc3bc686c657209f09f94a7203137372e390000000080017361792022c3a92220313737"
     "2e3130006261636b5c736c61736820c39f203137372e3131005ac3bc6e64756e6720f09f9a97203137372e31"
     "320000000080020000005072c3bc667374616e6420e282ac203137372e313300e697a5e69cace8aa9e20f09d"
     "849e203137372e313400ffffffffffffffff4bc3bc686c657209f09f94a7203137372e3135007361792022c3"
     "a922203137372e313600ffffff7f0100ffffff7f",
     "[{\"targets\":[\"Pr\303\274fstand \342\202\254 177.1\",\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 177.2\"],\"packages\":[{\"name\":\"K\303\274hler\\u0009\360"
     "\237\224\247 177.3\",\"version\":\"say \\\"\303\251\\\" 177.4\",\"description\":\"back\\"
     "\\slash \303\237 177.5\",\"kind\":4294967295,\"targets\":[\"Z\303\274ndung \360\237\232"
     "\227 177.6\",\"Pr\303\274fstand \342\202\254 177.7\"],\"size\":9223372036854775809,\"che"
     "cksum\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.8\",\"location\":\"K"
     "\303\274hler\\u0009\360\237\224\247 177.9\",\"state\":-2147483648},{\"name\":\"say \\\""
     "\303\251\\\" 177.10\",\"version\":\"back\\\\slash \303\237 177.11\",\"description\":\"Z"
     "\303\274ndung \360\237\232\227 177.12\",\"kind\":2147483648,\"targets\":[\"Pr\303\274fst"
     "and \342\202\254 177.13\",\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.14"
     "\"],\"size\":18446744073709551615,\"checksum\":\"K\303\274hler\\u0009\360\237\224\247 17"
     "7.15\",\"location\":\"say \\\"\303\251\\\" 177.16\",\"state\":2147483647}],\"stopOnError"
     "\":true,\"force\":false,\"blockLength\":2147483647}]",
     "[{\"targets\":[\"Pr\303\274fstand \342\202\254 177.1\",\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 177.2\"],\"packages\":[{\"name\":\"K\303\274hler\\u0009\360"
     "\237\224\247 177.3\",\"version\":\"say \\\"\303\251\\\" 177.4\",\"description\":\"back\\"
     "\\slash \303\237 177.5\",\"kind\":4294967295,\"targets\":[\"Z\303\274ndung \360\237\232"
     "\227 177.6\",\"Pr\303\274fstand \342\202\254 177.7\"],\"size\":9223372036854775809,\"che"
     "cksum\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.8\",\"location\":\"K"
     "\303\274hler\\u0009\360\237\224\247 177.9\",\"state\":-2147483648},{\"name\":\"say \\\""
     "\303\251\\\" 177.10\",\"version\":\"back\\\\slash \303\237 177.11\",\"description\":\"Z"
     "\303\274ndung \360\237\232\227 177.12\",\"kind\":2147483648,\"targets\":[\"Pr\303\274fst"
     "and \342\202\254 177.13\",\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.14"
     "\"],\"size\":18446744073709551615,\"checksum\":\"K\303\274hler\\u0009\360\237\224\247 17"
     "7.15\",\"location\":\"say \\\"\303\251\\\" 177.16\",\"state\":2147483647}],\"stopOnError"
     "\":true,\"force\":false,\"blockLength\":2147483647}]",
     "010200000001140000006261636b5c736c61736820c39f203137372e3137ffffffff140000005ac3bc6e6475"
     "6e6720f09f9a97203137372e3138150000005072c3bc667374616e6420e282ac203137372e313915000000e6"
     "97a5e69cace8aa9e20f09d849e203137372e32301dd1135bcf4a4b7983c48217353eba35010000ffff130000"
     "004bc3bc686c657209f09f94a7203137372e32310f0000007361792022c3a922203137372e3232cf4a4b7901"
     "7d3b7de8140000006261636b5c736c61736820c39f203137372e3233353eba35140000005ac3bc6e64756e67"
     "20f09f9a97203137372e3234150000005072c3bc667374616e6420e282ac203137372e323519480eac019931"
     "297215000000e697a5e69cace8aa9e20f09d849e203137372e323600000000010000001dd1135b0000000004"
     "00000000ffff8001130000004bc3bc686c657209f09f94a7203137372e3237b5549fef0f0000007361792022"
     "c3a922203137372e3238140000006261636b5c736c61736820c39f203137372e3239140000005ac3bc6e6475"
     "6e6720f09f9a97203137372e3330e7b7f153993129724bab6010fd24982e00",
     "0200000001140000006261636b5c736c61736820c39f203137372e3137ffffffff140000005ac3bc6e64756e"
     "6720f09f9a97203137372e3138150000005072c3bc667374616e6420e282ac203137372e313915000000e697"
     "a5e69cace8aa9e20f09d849e203137372e32301dd1135bcf4a4b7983c48217353eba35010000ffff13000000"
     "4bc3bc686c657209f09f94a7203137372e32310f0000007361792022c3a922203137372e3232cf4a4b79017d"
     "3b7de8140000006261636b5c736c61736820c39f203137372e3233353eba35140000005ac3bc6e64756e6720"
     "f09f9a97203137372e3234150000005072c3bc667374616e6420e282ac203137372e323519480eac01993129"
     "7215000000e697a5e69cace8aa9e20f09d849e203137372e323600000000010000001dd1135b000000000400"
     "000000ffff8001130000004bc3bc686c657209f09f94a7203137372e3237b5549fef0f0000007361792022c3"
     "a922203137372e3238140000006261636b5c736c61736820c39f203137372e3239140000005ac3bc6e64756e"
     "6720f09f9a97203137372e3330e7b7f153993129724bab6010fd24982e00",
     0},
    {"sparse", "[null]", "[null]",
     "[{\"target\":\"\",\"status\":-2147483648,\"package\":\"\",\"versionBefore\":\"\",\"versi"
     "onAfter\":\"\",\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":21474"
     "83647,\"duration\":1528025373,\"error\":{\"code\":2147483647,\"message\":\"\",\"details"
     "\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "[{\"target\":\"\",\"status\":-2147483648,\"package\":\"\",\"versionBefore\":\"\",\"versi"
     "onAfter\":\"\",\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":21474"
     "83647,\"duration\":1528025373,\"error\":{\"code\":2147483647,\"message\":\"\",\"details"
     "\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "0000000000000000000000000000", "00",
     "[{\"targets\":[],\"packages\":[],\"stopOnError\":false,\"force\":false,\"blockLength\":0"
     "}]",
     "[null]",
     "0102000000010000000000000080000000000000000000000000ffffffff00000080ffffff7f1dd1135b01ff"
     "ffff7f0000000000000000ffffffff000000",
     "02000000010000000000000080000000000000000000000000ffffffff00000080ffffff7f1dd1135b01ffff"
     "ff7f0000000000000000ffffffff000000",
     0},
    {"empty", "[null]", "[null]", "[]", "null", "0000000000000000000000000000", "00",
     "[{\"targets\":[],\"packages\":[],\"stopOnError\":false,\"force\":false,\"blockLength\":0"
     "}]",
     "[null]", "0100000000", "00000000", 0},
};

struct UpdateVehicleExport {
    static constexpr const char* operation = "updateVehicle";
    using Result = kc::ListResult<VehicleUpdateResult, release_VehicleUpdateResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kel_updateVehicle(api, kc::record<VehicleUpdateConfig>(in[0]), error, &out.data,
                          &out.count);
    }
};

TEST_F(VehicleUpdate, updateVehicle_Exchange) {
    kc::exchange<UpdateVehicleExport>(api, kUpdateVehicleCases);
}
TEST_F(VehicleUpdate, updateVehicle_Failure) {
    kc::failure<UpdateVehicleExport>(api, kUpdateVehicleCases);
}
TEST_F(VehicleUpdateAdmission, updateVehicle) {
    kc::admission<UpdateVehicleExport>(callers(), kUpdateVehicleCases, kc::Needs::Operator);
}

struct UpdateVehicleAsyncExport {
    static constexpr const char* operation = "updateVehicleAsync";
    using Reports = kc::Reports<VehicleUpdateResult, release_VehicleUpdateResult_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        return kel_updateVehicleAsync(api, kc::record<VehicleUpdateConfig>(in[0]), error,
                                      &Reports::onReport, &reports);
    }
};

TEST_F(VehicleUpdate, updateVehicleAsync_Exchange) {
    kc::asyncExchange<UpdateVehicleAsyncExport>(api, kUpdateVehicleCases);
}
TEST_F(VehicleUpdate, updateVehicleAsync_Failure) {
    kc::asyncFailure<UpdateVehicleAsyncExport>(api, kUpdateVehicleCases);
}
TEST_F(VehicleUpdateAdmission, updateVehicleAsync) {
    kc::asyncAdmission<UpdateVehicleAsyncExport>(callers(), kUpdateVehicleCases,
                                                 kc::Needs::Operator);
}

const char* const kUpdateVehicleNoUtf8[] = {
    "[{\"targets\":[\"\\udc00Pr\303\274fstand \342\202\254 177.1\\ud800\",\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 177.2\"],\"packages\":[{\"name\":\"K\303\274hler\\"
    "t\360\237\224\247 177.3\",\"version\":\"say \\\"\303\251\\\" 177.4\",\"description\":\"b"
    "ack\\\\slash \303\237 177.5\",\"kind\":4294967295,\"targets\":[\"Z\303\274ndung \360\237"
    "\232\227 177.6\",\"Pr\303\274fstand \342\202\254 177.7\"],\"size\":9223372036854775809,"
    "\"checksum\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.8\",\"location"
    "\":\"K\303\274hler\\t\360\237\224\247 177.9\",\"state\":-2147483648},{\"name\":\"say \\"
    "\"\303\251\\\" 177.10\",\"version\":\"back\\\\slash \303\237 177.11\",\"description\":\""
    "Z\303\274ndung \360\237\232\227 177.12\",\"kind\":2147483648,\"targets\":[\"Pr\303\274fs"
    "tand \342\202\254 177.13\",\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.1"
    "4\"],\"size\":18446744073709551615,\"checksum\":\"K\303\274hler\\t\360\237\224\247 177.1"
    "5\",\"location\":\"say \\\"\303\251\\\" 177.16\",\"state\":2147483647}],\"stopOnError\":"
    "128,\"force\":0,\"blockLength\":2147483647}]",
    "[{\"targets\":[\"Pr\303\274fstand \342\202\254 177.1\",\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 177.2\"],\"packages\":[{\"name\":\"\\udc00K\303\274hler\\t\360"
    "\237\224\247 177.3\\ud800\",\"version\":\"say \\\"\303\251\\\" 177.4\",\"description\":"
    "\"back\\\\slash \303\237 177.5\",\"kind\":4294967295,\"targets\":[\"Z\303\274ndung \360"
    "\237\232\227 177.6\",\"Pr\303\274fstand \342\202\254 177.7\"],\"size\":92233720368547758"
    "09,\"checksum\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.8\",\"locati"
    "on\":\"K\303\274hler\\t\360\237\224\247 177.9\",\"state\":-2147483648},{\"name\":\"say "
    "\\\"\303\251\\\" 177.10\",\"version\":\"back\\\\slash \303\237 177.11\",\"description\":"
    "\"Z\303\274ndung \360\237\232\227 177.12\",\"kind\":2147483648,\"targets\":[\"Pr\303\274"
    "fstand \342\202\254 177.13\",\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177"
    ".14\"],\"size\":18446744073709551615,\"checksum\":\"K\303\274hler\\t\360\237\224\247 177"
    ".15\",\"location\":\"say \\\"\303\251\\\" 177.16\",\"state\":2147483647}],\"stopOnError"
    "\":128,\"force\":0,\"blockLength\":2147483647}]",
    "[{\"targets\":[\"Pr\303\274fstand \342\202\254 177.1\",\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 177.2\"],\"packages\":[{\"name\":\"K\303\274hler\\t\360\237"
    "\224\247 177.3\",\"version\":\"\\udc00say \\\"\303\251\\\" 177.4\\ud800\",\"description"
    "\":\"back\\\\slash \303\237 177.5\",\"kind\":4294967295,\"targets\":[\"Z\303\274ndung "
    "\360\237\232\227 177.6\",\"Pr\303\274fstand \342\202\254 177.7\"],\"size\":9223372036854"
    "775809,\"checksum\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.8\",\"lo"
    "cation\":\"K\303\274hler\\t\360\237\224\247 177.9\",\"state\":-2147483648},{\"name\":\"s"
    "ay \\\"\303\251\\\" 177.10\",\"version\":\"back\\\\slash \303\237 177.11\",\"description"
    "\":\"Z\303\274ndung \360\237\232\227 177.12\",\"kind\":2147483648,\"targets\":[\"Pr\303"
    "\274fstand \342\202\254 177.13\",\"\346\227\245\346\234\254\350\252\236 \360\235\204\236"
    " 177.14\"],\"size\":18446744073709551615,\"checksum\":\"K\303\274hler\\t\360\237\224\247"
    " 177.15\",\"location\":\"say \\\"\303\251\\\" 177.16\",\"state\":2147483647}],\"stopOnEr"
    "ror\":128,\"force\":0,\"blockLength\":2147483647}]",
    "[{\"targets\":[\"Pr\303\274fstand \342\202\254 177.1\",\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 177.2\"],\"packages\":[{\"name\":\"K\303\274hler\\t\360\237"
    "\224\247 177.3\",\"version\":\"say \\\"\303\251\\\" 177.4\",\"description\":\"\\udc00bac"
    "k\\\\slash \303\237 177.5\\ud800\",\"kind\":4294967295,\"targets\":[\"Z\303\274ndung "
    "\360\237\232\227 177.6\",\"Pr\303\274fstand \342\202\254 177.7\"],\"size\":9223372036854"
    "775809,\"checksum\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.8\",\"lo"
    "cation\":\"K\303\274hler\\t\360\237\224\247 177.9\",\"state\":-2147483648},{\"name\":\"s"
    "ay \\\"\303\251\\\" 177.10\",\"version\":\"back\\\\slash \303\237 177.11\",\"description"
    "\":\"Z\303\274ndung \360\237\232\227 177.12\",\"kind\":2147483648,\"targets\":[\"Pr\303"
    "\274fstand \342\202\254 177.13\",\"\346\227\245\346\234\254\350\252\236 \360\235\204\236"
    " 177.14\"],\"size\":18446744073709551615,\"checksum\":\"K\303\274hler\\t\360\237\224\247"
    " 177.15\",\"location\":\"say \\\"\303\251\\\" 177.16\",\"state\":2147483647}],\"stopOnEr"
    "ror\":128,\"force\":0,\"blockLength\":2147483647}]",
    "[{\"targets\":[\"Pr\303\274fstand \342\202\254 177.1\",\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 177.2\"],\"packages\":[{\"name\":\"K\303\274hler\\t\360\237"
    "\224\247 177.3\",\"version\":\"say \\\"\303\251\\\" 177.4\",\"description\":\"back\\\\sl"
    "ash \303\237 177.5\",\"kind\":4294967295,\"targets\":[\"Z\303\274ndung \360\237\232\227 "
    "177.6\",\"Pr\303\274fstand \342\202\254 177.7\"],\"size\":9223372036854775809,\"checksum"
    "\":\"\\udc00\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.8\\ud800\",\"locat"
    "ion\":\"K\303\274hler\\t\360\237\224\247 177.9\",\"state\":-2147483648},{\"name\":\"say "
    "\\\"\303\251\\\" 177.10\",\"version\":\"back\\\\slash \303\237 177.11\",\"description\":"
    "\"Z\303\274ndung \360\237\232\227 177.12\",\"kind\":2147483648,\"targets\":[\"Pr\303\274"
    "fstand \342\202\254 177.13\",\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177"
    ".14\"],\"size\":18446744073709551615,\"checksum\":\"K\303\274hler\\t\360\237\224\247 177"
    ".15\",\"location\":\"say \\\"\303\251\\\" 177.16\",\"state\":2147483647}],\"stopOnError"
    "\":128,\"force\":0,\"blockLength\":2147483647}]",
    "[{\"targets\":[\"Pr\303\274fstand \342\202\254 177.1\",\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 177.2\"],\"packages\":[{\"name\":\"K\303\274hler\\t\360\237"
    "\224\247 177.3\",\"version\":\"say \\\"\303\251\\\" 177.4\",\"description\":\"back\\\\sl"
    "ash \303\237 177.5\",\"kind\":4294967295,\"targets\":[\"Z\303\274ndung \360\237\232\227 "
    "177.6\",\"Pr\303\274fstand \342\202\254 177.7\"],\"size\":9223372036854775809,\"checksum"
    "\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177.8\",\"location\":\"\\udc0"
    "0K\303\274hler\\t\360\237\224\247 177.9\\ud800\",\"state\":-2147483648},{\"name\":\"say "
    "\\\"\303\251\\\" 177.10\",\"version\":\"back\\\\slash \303\237 177.11\",\"description\":"
    "\"Z\303\274ndung \360\237\232\227 177.12\",\"kind\":2147483648,\"targets\":[\"Pr\303\274"
    "fstand \342\202\254 177.13\",\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 177"
    ".14\"],\"size\":18446744073709551615,\"checksum\":\"K\303\274hler\\t\360\237\224\247 177"
    ".15\",\"location\":\"say \\\"\303\251\\\" 177.16\",\"state\":2147483647}],\"stopOnError"
    "\":128,\"force\":0,\"blockLength\":2147483647}]",
};
TEST_F(VehicleUpdate, updateVehicle_TextWithNoUtf8Form) {
    kc::noUtf8<UpdateVehicleExport>(api, kUpdateVehicleNoUtf8);
}
TEST_F(VehicleUpdate, updateVehicleAsync_TextWithNoUtf8Form) {
    kc::asyncNoUtf8<UpdateVehicleAsyncExport>(api, kUpdateVehicleNoUtf8);
}

const kc::Number kNumber211{211, "updateVehicle", kUpdateVehicleCases};

TEST_F(VehicleUpdateByNumber, n211_updateVehicle_KelCall) { kc::kelCall(api, kNumber211); }
TEST_F(VehicleUpdateByNumber, n211_updateVehicle_PyCall) { kc::pyCall(api, kNumber211); }
TEST_F(VehicleUpdateByNumber, n211_updateVehicle_Failure) { kc::numberFailure(api, kNumber211); }
TEST_F(VehicleUpdateByNumber, n211_updateVehicle_ShortInput) { kc::shortInput(api, kNumber211); }

// ---- uploadReport (position 193, number 223) ----

const kc::Case kUploadReportCases[] = {
    {"full",
     "[{\"reportFile\":\"Pr\303\274fstand \342\202\254 193.1\",\"folder\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 193.2\",\"name\":\"K\303\274hler\\u0009\360\237"
     "\224\247 193.3\",\"vin\":\"say \\\"\303\251\\\" 193.4\",\"user\":\"back\\\\slash \303"
     "\237 193.5\",\"comment\":\"Z\303\274ndung \360\237\232\227 193.6\",\"overwrite\":128,\"w"
     "ithTwin\":0}]",
     "[{\"reportFile\":\"Pr\303\274fstand \342\202\254 193.1\",\"folder\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 193.2\",\"name\":\"K\303\274hler\\u0009\360\237"
     "\224\247 193.3\",\"vin\":\"say \\\"\303\251\\\" 193.4\",\"user\":\"back\\\\slash \303"
     "\237 193.5\",\"comment\":\"Z\303\274ndung \360\237\232\227 193.6\",\"overwrite\":true,\""
     "withTwin\":false}]",
     "null", nullptr,
     "140000005072c3bc667374616e6420e282ac203139332e3114000000e697a5e69cace8aa9e20f09d849e2031"
     "39332e32120000004bc3bc686c657209f09f94a7203139332e330e0000007361792022c3a922203139332e34"
     "130000006261636b5c736c61736820c39f203139332e35130000005ac3bc6e64756e6720f09f9a9720313933"
     "2e360100",
     "015072c3bc667374616e6420e282ac203139332e3100e697a5e69cace8aa9e20f09d849e203139332e32004b"
     "c3bc686c657209f09f94a7203139332e33007361792022c3a922203139332e34006261636b5c736c61736820"
     "c39f203139332e35005ac3bc6e64756e6720f09f9a97203139332e36000100",
     "[{\"reportFile\":\"Pr\303\274fstand \342\202\254 193.1\",\"folder\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 193.2\",\"name\":\"K\303\274hler\\u0009\360\237"
     "\224\247 193.3\",\"vin\":\"say \\\"\303\251\\\" 193.4\",\"user\":\"back\\\\slash \303"
     "\237 193.5\",\"comment\":\"Z\303\274ndung \360\237\232\227 193.6\",\"overwrite\":true,\""
     "withTwin\":false}]",
     "[{\"reportFile\":\"Pr\303\274fstand \342\202\254 193.1\",\"folder\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 193.2\",\"name\":\"K\303\274hler\\u0009\360\237"
     "\224\247 193.3\",\"vin\":\"say \\\"\303\251\\\" 193.4\",\"user\":\"back\\\\slash \303"
     "\237 193.5\",\"comment\":\"Z\303\274ndung \360\237\232\227 193.6\",\"overwrite\":true,\""
     "withTwin\":false}]",
     "01", "", 0},
    {"sparse", "[null]", "[null]", "null", nullptr,
     "0000000000000000000000000000000000000000000000000000", "00",
     "[{\"reportFile\":\"\",\"folder\":\"\",\"name\":\"\",\"vin\":\"\",\"user\":\"\",\"comment"
     "\":\"\",\"overwrite\":false,\"withTwin\":false}]",
     "[null]", "01", "", 0},
};

struct UploadReportExport {
    static constexpr const char* operation = "uploadReport";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_uploadReport(api, kc::record<UploadReportConfiguration>(in[0]), error);
    }
};

TEST_F(VehicleUpdate, uploadReport_Exchange) {
    kc::exchange<UploadReportExport>(api, kUploadReportCases);
}
TEST_F(VehicleUpdate, uploadReport_Failure) {
    kc::failure<UploadReportExport>(api, kUploadReportCases);
}
TEST_F(VehicleUpdateAdmission, uploadReport) {
    kc::admission<UploadReportExport>(callers(), kUploadReportCases, kc::Needs::Operator);
}

const char* const kUploadReportNoUtf8[] = {
    "[{\"reportFile\":\"\\udc00Pr\303\274fstand \342\202\254 193.1\\ud800\",\"folder\":\"\346"
    "\227\245\346\234\254\350\252\236 \360\235\204\236 193.2\",\"name\":\"K\303\274hler\\t"
    "\360\237\224\247 193.3\",\"vin\":\"say \\\"\303\251\\\" 193.4\",\"user\":\"back\\\\slash"
    " \303\237 193.5\",\"comment\":\"Z\303\274ndung \360\237\232\227 193.6\",\"overwrite\":12"
    "8,\"withTwin\":0}]",
    "[{\"reportFile\":\"Pr\303\274fstand \342\202\254 193.1\",\"folder\":\"\\udc00\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 193.2\\ud800\",\"name\":\"K\303\274hler\\t"
    "\360\237\224\247 193.3\",\"vin\":\"say \\\"\303\251\\\" 193.4\",\"user\":\"back\\\\slash"
    " \303\237 193.5\",\"comment\":\"Z\303\274ndung \360\237\232\227 193.6\",\"overwrite\":12"
    "8,\"withTwin\":0}]",
    "[{\"reportFile\":\"Pr\303\274fstand \342\202\254 193.1\",\"folder\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 193.2\",\"name\":\"\\udc00K\303\274hler\\t\360\237"
    "\224\247 193.3\\ud800\",\"vin\":\"say \\\"\303\251\\\" 193.4\",\"user\":\"back\\\\slash "
    "\303\237 193.5\",\"comment\":\"Z\303\274ndung \360\237\232\227 193.6\",\"overwrite\":128"
    ",\"withTwin\":0}]",
    "[{\"reportFile\":\"Pr\303\274fstand \342\202\254 193.1\",\"folder\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 193.2\",\"name\":\"K\303\274hler\\t\360\237\224"
    "\247 193.3\",\"vin\":\"\\udc00say \\\"\303\251\\\" 193.4\\ud800\",\"user\":\"back\\\\sla"
    "sh \303\237 193.5\",\"comment\":\"Z\303\274ndung \360\237\232\227 193.6\",\"overwrite\":"
    "128,\"withTwin\":0}]",
    "[{\"reportFile\":\"Pr\303\274fstand \342\202\254 193.1\",\"folder\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 193.2\",\"name\":\"K\303\274hler\\t\360\237\224"
    "\247 193.3\",\"vin\":\"say \\\"\303\251\\\" 193.4\",\"user\":\"\\udc00back\\\\slash \303"
    "\237 193.5\\ud800\",\"comment\":\"Z\303\274ndung \360\237\232\227 193.6\",\"overwrite\":"
    "128,\"withTwin\":0}]",
    "[{\"reportFile\":\"Pr\303\274fstand \342\202\254 193.1\",\"folder\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 193.2\",\"name\":\"K\303\274hler\\t\360\237\224"
    "\247 193.3\",\"vin\":\"say \\\"\303\251\\\" 193.4\",\"user\":\"back\\\\slash \303\237 19"
    "3.5\",\"comment\":\"\\udc00Z\303\274ndung \360\237\232\227 193.6\\ud800\",\"overwrite\":"
    "128,\"withTwin\":0}]",
};
TEST_F(VehicleUpdate, uploadReport_TextWithNoUtf8Form) {
    kc::noUtf8<UploadReportExport>(api, kUploadReportNoUtf8);
}

const kc::Number kNumber223{223, "uploadReport", kUploadReportCases};

TEST_F(VehicleUpdateByNumber, n223_uploadReport_KelCall) { kc::kelCall(api, kNumber223); }
TEST_F(VehicleUpdateByNumber, n223_uploadReport_PyCall) { kc::pyCall(api, kNumber223); }
TEST_F(VehicleUpdateByNumber, n223_uploadReport_Failure) { kc::numberFailure(api, kNumber223); }
TEST_F(VehicleUpdateByNumber, n223_uploadReport_ShortInput) { kc::shortInput(api, kNumber223); }

// ---- setBrokerUrl (position 206, number 237) ----

const kc::Case kSetBrokerUrlCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 206.1\"]",
     "[\"Pr\303\274fstand \342\202\254 206.1\"]", "null", nullptr,
     "140000005072c3bc667374616e6420e282ac203230362e31",
     "5072c3bc667374616e6420e282ac203230362e3100", "[\"Pr\303\274fstand \342\202\254 206.1\"]",
     "[\"Pr\303\274fstand \342\202\254 206.1\"]", "01", "", 0},
    {"sparse", "[\"\"]", "[\"\"]", "null", nullptr, "00000000", "00", "[\"\"]", "[\"\"]", "01", "",
     0},
};

struct SetBrokerUrlExport {
    static constexpr const char* operation = "setBrokerUrl";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        static_cast<void>(out);
        kel_setBrokerUrl(api, a0.get(), error);
    }
};

TEST_F(VehicleUpdate, setBrokerUrl_Exchange) {
    kc::exchange<SetBrokerUrlExport>(api, kSetBrokerUrlCases);
}
TEST_F(VehicleUpdate, setBrokerUrl_Failure) {
    kc::failure<SetBrokerUrlExport>(api, kSetBrokerUrlCases);
}
TEST_F(VehicleUpdateAdmission, setBrokerUrl) {
    kc::admission<SetBrokerUrlExport>(callers(), kSetBrokerUrlCases, kc::Needs::Administrator);
}

const char* const kSetBrokerUrlNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 206.1\\ud800\"]",
};
TEST_F(VehicleUpdate, setBrokerUrl_TextWithNoUtf8Form) {
    kc::noUtf8<SetBrokerUrlExport>(api, kSetBrokerUrlNoUtf8);
}

const kc::Number kNumber237{237, "setBrokerUrl", kSetBrokerUrlCases};

TEST_F(VehicleUpdateByNumber, n237_setBrokerUrl_KelCall) { kc::kelCall(api, kNumber237); }
TEST_F(VehicleUpdateByNumber, n237_setBrokerUrl_PyCall) { kc::pyCall(api, kNumber237); }
TEST_F(VehicleUpdateByNumber, n237_setBrokerUrl_Failure) { kc::numberFailure(api, kNumber237); }
TEST_F(VehicleUpdateByNumber, n237_setBrokerUrl_ShortInput) { kc::shortInput(api, kNumber237); }

// ---- clearUpdatePackages (position 214, number 245) ----

const kc::Case kClearUpdatePackagesCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct ClearUpdatePackagesExport {
    static constexpr const char* operation = "clearUpdatePackages";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_clearUpdatePackages(api, error);
    }
};

TEST_F(VehicleUpdate, clearUpdatePackages_Exchange) {
    kc::exchange<ClearUpdatePackagesExport>(api, kClearUpdatePackagesCases);
}
TEST_F(VehicleUpdate, clearUpdatePackages_Failure) {
    kc::failure<ClearUpdatePackagesExport>(api, kClearUpdatePackagesCases);
}
TEST_F(VehicleUpdateAdmission, clearUpdatePackages) {
    kc::admission<ClearUpdatePackagesExport>(callers(), kClearUpdatePackagesCases,
                                             kc::Needs::Administrator);
}

const kc::Number kNumber245{245, "clearUpdatePackages", kClearUpdatePackagesCases};

TEST_F(VehicleUpdateByNumber, n245_clearUpdatePackages_KelCall) { kc::kelCall(api, kNumber245); }
TEST_F(VehicleUpdateByNumber, n245_clearUpdatePackages_PyCall) { kc::pyCall(api, kNumber245); }
TEST_F(VehicleUpdateByNumber, n245_clearUpdatePackages_Failure) {
    kc::numberFailure(api, kNumber245);
}

// ---- performVehicleUpdate (position 225, number 257) ----

const kc::Case kPerformVehicleUpdateCases[] = {
    {"full",
     "[[{\"target\":\"Pr\303\274fstand \342\202\254 225.1\",\"bus\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 225.2\",\"address\":4294967295,\"gateway\":128,\"optional"
     "\":0},{\"target\":\"K\303\274hler\\u0009\360\237\224\247 225.3\",\"bus\":\"say \\\"\303"
     "\251\\\" 225.4\",\"address\":2147483648,\"gateway\":255,\"optional\":0}],{\"targets\":["
     "\"back\\\\slash \303\237 225.5\",\"Z\303\274ndung \360\237\232\227 225.6\"],\"packages\""
     ":[{\"name\":\"Pr\303\274fstand \342\202\254 225.7\",\"version\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 225.8\",\"description\":\"K\303\274hler\\u0009\360\237"
     "\224\247 225.9\",\"kind\":2147483647,\"targets\":[\"say \\\"\303\251\\\" 225.10\",\"back"
     "\\\\slash \303\237 225.11\"],\"size\":9223372036854775809,\"checksum\":\"Z\303\274ndung "
     "\360\237\232\227 225.12\",\"location\":\"Pr\303\274fstand \342\202\254 225.13\",\"state"
     "\":-2147483648},{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 225.14"
     "\",\"version\":\"K\303\274hler\\u0009\360\237\224\247 225.15\",\"description\":\"say \\"
     "\"\303\251\\\" 225.16\",\"kind\":1529969517,\"targets\":[\"back\\\\slash \303\237 225.17"
     "\",\"Z\303\274ndung \360\237\232\227 225.18\"],\"size\":18446744073709551615,\"checksum"
     "\":\"Pr\303\274fstand \342\202\254 225.19\",\"location\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 225.20\",\"state\":2147483647}],\"stopOnError\":2,\"force\":0,"
     "\"blockLength\":2036921631}]",
     "[[{\"target\":\"Pr\303\274fstand \342\202\254 225.1\",\"bus\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 225.2\",\"address\":4294967295,\"gateway\":true,\"optional"
     "\":false},{\"target\":\"K\303\274hler\\u0009\360\237\224\247 225.3\",\"bus\":\"say \\\""
     "\303\251\\\" 225.4\",\"address\":2147483648,\"gateway\":true,\"optional\":false}],{\"tar"
     "gets\":[\"back\\\\slash \303\237 225.5\",\"Z\303\274ndung \360\237\232\227 225.6\"],\"pa"
     "ckages\":[{\"name\":\"Pr\303\274fstand \342\202\254 225.7\",\"version\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 225.8\",\"description\":\"K\303\274hler\\u0009"
     "\360\237\224\247 225.9\",\"kind\":2147483647,\"targets\":[\"say \\\"\303\251\\\" 225.10"
     "\",\"back\\\\slash \303\237 225.11\"],\"size\":9223372036854775809,\"checksum\":\"Z\303"
     "\274ndung \360\237\232\227 225.12\",\"location\":\"Pr\303\274fstand \342\202\254 225.13"
     "\",\"state\":-2147483648},{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 225.14\",\"version\":\"K\303\274hler\\u0009\360\237\224\247 225.15\",\"description"
     "\":\"say \\\"\303\251\\\" 225.16\",\"kind\":1529969517,\"targets\":[\"back\\\\slash \303"
     "\237 225.17\",\"Z\303\274ndung \360\237\232\227 225.18\"],\"size\":18446744073709551615,"
     "\"checksum\":\"Pr\303\274fstand \342\202\254 225.19\",\"location\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 225.20\",\"state\":2147483647}],\"stopOnError\":tr"
     "ue,\"force\":false,\"blockLength\":2036921631}]",
     "[{\"target\":\"K\303\274hler\\u0009\360\237\224\247 225.21\",\"status\":-1,\"package\":"
     "\"say \\\"\303\251\\\" 225.22\",\"versionBefore\":\"back\\\\slash \303\237 225.23\",\"ve"
     "rsionAfter\":\"Z\303\274ndung \360\237\232\227 225.24\",\"position\":396390099,\"progres"
     "s\":903342213,\"overallProgress\":1410294327,\"duration\":1917246441,\"error\":{\"code\""
     ":-65536,\"message\":\"Pr\303\274fstand \342\202\254 225.25\",\"details\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 225.26\",\"subCode\":2036921631,\"mvciError\":"
     "{\"code\":-396390099,\"codeText\":\"K\303\274hler\\u0009\360\237\224\247 225.27\",\"vend"
     "orCode\":903342213,\"vendorCodeText\":\"say \\\"\303\251\\\" 225.28\",\"extraText\":\"ba"
     "ck\\\\slash \303\237 225.29\",\"extraCode\":-1410294327},\"negativeResponse\":{\"code\":"
     "1917246441,\"text\":\"Z\303\274ndung \360\237\232\227 225.30\",\"value1\":4294967296,\"v"
     "alue2\":1529969517,\"bytes\":[0,255,255,128]}}},{\"target\":\"Pr\303\274fstand \342\202"
     "\254 225.31\",\"status\":-276714907,\"package\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 225.32\",\"versionBefore\":\"K\303\274hler\\u0009\360\237\224\247 225.3"
     "3\",\"versionAfter\":\"say \\\"\303\251\\\" 225.34\",\"position\":276714907,\"progress\""
     ":783667021,\"overallProgress\":1290619135,\"duration\":1797571249,\"error\":null}]",
     "[{\"target\":\"K\303\274hler\\u0009\360\237\224\247 225.21\",\"status\":-1,\"package\":"
     "\"say \\\"\303\251\\\" 225.22\",\"versionBefore\":\"back\\\\slash \303\237 225.23\",\"ve"
     "rsionAfter\":\"Z\303\274ndung \360\237\232\227 225.24\",\"position\":396390099,\"progres"
     "s\":903342213,\"overallProgress\":1410294327,\"duration\":1917246441,\"error\":{\"code\""
     ":-65536,\"message\":\"Pr\303\274fstand \342\202\254 225.25\",\"details\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 225.26\",\"subCode\":2036921631,\"mvciError\":"
     "{\"code\":-396390099,\"codeText\":\"K\303\274hler\\u0009\360\237\224\247 225.27\",\"vend"
     "orCode\":903342213,\"vendorCodeText\":\"say \\\"\303\251\\\" 225.28\",\"extraText\":\"ba"
     "ck\\\\slash \303\237 225.29\",\"extraCode\":-1410294327},\"negativeResponse\":{\"code\":"
     "1917246441,\"text\":\"Z\303\274ndung \360\237\232\227 225.30\",\"value1\":4294967296,\"v"
     "alue2\":1529969517,\"bytes\":[0,255,255,128],\"byteCount\":4}}},{\"target\":\"Pr\303\274"
     "fstand \342\202\254 225.31\",\"status\":-276714907,\"package\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 225.32\",\"versionBefore\":\"K\303\274hler\\u0009\360"
     "\237\224\247 225.33\",\"versionAfter\":\"say \\\"\303\251\\\" 225.34\",\"position\":2767"
     "14907,\"progress\":783667021,\"overallProgress\":1290619135,\"duration\":1797571249,\"er"
     "ror\":null}]",
     "02000000140000005072c3bc667374616e6420e282ac203232352e3114000000e697a5e69cace8aa9e20f09d"
     "849e203232352e32ffffffff0100120000004bc3bc686c657209f09f94a7203232352e330e00000073617920"
     "22c3a922203232352e3400000080010002000000130000006261636b5c736c61736820c39f203232352e3513"
     "0000005ac3bc6e64756e6720f09f9a97203232352e3602000000140000005072c3bc667374616e6420e282ac"
     "203232352e3714000000e697a5e69cace8aa9e20f09d849e203232352e38120000004bc3bc686c657209f09f"
     "94a7203232352e39ffffff7f020000000f0000007361792022c3a922203232352e3130140000006261636b5c"
     "736c61736820c39f203232352e31310100000000000080140000005ac3bc6e64756e6720f09f9a9720323235"
     "2e3132150000005072c3bc667374616e6420e282ac203232352e31330000008015000000e697a5e69cace8aa"
     "9e20f09d849e203232352e3134130000004bc3bc686c657209f09f94a7203232352e31350f00000073617920"
     "22c3a922203232352e31366d7b315b02000000140000006261636b5c736c61736820c39f203232352e313714"
     "0000005ac3bc6e64756e6720f09f9a97203232352e3138ffffffffffffffff150000005072c3bc667374616e"
     "6420e282ac203232352e313915000000e697a5e69cace8aa9e20f09d849e203232352e3230ffffff7f01001f"
     "f56879",
     "02000000015072c3bc667374616e6420e282ac203232352e3100e697a5e69cace8aa9e20f09d849e20323235"
     "2e3200ffffffff0100014bc3bc686c657209f09f94a7203232352e33007361792022c3a922203232352e3400"
     "00000080010001020000006261636b5c736c61736820c39f203232352e35005ac3bc6e64756e6720f09f9a97"
     "203232352e360002000000015072c3bc667374616e6420e282ac203232352e3700e697a5e69cace8aa9e20f0"
     "9d849e203232352e38004bc3bc686c657209f09f94a7203232352e3900ffffff7f020000007361792022c3a9"
     "22203232352e3130006261636b5c736c61736820c39f203232352e31310001000000000000805ac3bc6e6475"
     "6e6720f09f9a97203232352e3132005072c3bc667374616e6420e282ac203232352e3133000000008001e697"
     "a5e69cace8aa9e20f09d849e203232352e3134004bc3bc686c657209f09f94a7203232352e31350073617920"
     "22c3a922203232352e3136006d7b315b020000006261636b5c736c61736820c39f203232352e3137005ac3bc"
     "6e64756e6720f09f9a97203232352e313800ffffffffffffffff5072c3bc667374616e6420e282ac20323235"
     "2e313900e697a5e69cace8aa9e20f09d849e203232352e323000ffffff7f01001ff56879",
     "[[{\"target\":\"Pr\303\274fstand \342\202\254 225.1\",\"bus\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 225.2\",\"address\":4294967295,\"gateway\":true,\"optional"
     "\":false},{\"target\":\"K\303\274hler\\u0009\360\237\224\247 225.3\",\"bus\":\"say \\\""
     "\303\251\\\" 225.4\",\"address\":2147483648,\"gateway\":true,\"optional\":false}],{\"tar"
     "gets\":[\"back\\\\slash \303\237 225.5\",\"Z\303\274ndung \360\237\232\227 225.6\"],\"pa"
     "ckages\":[{\"name\":\"Pr\303\274fstand \342\202\254 225.7\",\"version\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 225.8\",\"description\":\"K\303\274hler\\u0009"
     "\360\237\224\247 225.9\",\"kind\":2147483647,\"targets\":[\"say \\\"\303\251\\\" 225.10"
     "\",\"back\\\\slash \303\237 225.11\"],\"size\":9223372036854775809,\"checksum\":\"Z\303"
     "\274ndung \360\237\232\227 225.12\",\"location\":\"Pr\303\274fstand \342\202\254 225.13"
     "\",\"state\":-2147483648},{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 225.14\",\"version\":\"K\303\274hler\\u0009\360\237\224\247 225.15\",\"description"
     "\":\"say \\\"\303\251\\\" 225.16\",\"kind\":1529969517,\"targets\":[\"back\\\\slash \303"
     "\237 225.17\",\"Z\303\274ndung \360\237\232\227 225.18\"],\"size\":18446744073709551615,"
     "\"checksum\":\"Pr\303\274fstand \342\202\254 225.19\",\"location\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 225.20\",\"state\":2147483647}],\"stopOnError\":tr"
     "ue,\"force\":false,\"blockLength\":2036921631}]",
     "[[{\"target\":\"Pr\303\274fstand \342\202\254 225.1\",\"bus\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 225.2\",\"address\":4294967295,\"gateway\":true,\"optional"
     "\":false},{\"target\":\"K\303\274hler\\u0009\360\237\224\247 225.3\",\"bus\":\"say \\\""
     "\303\251\\\" 225.4\",\"address\":2147483648,\"gateway\":true,\"optional\":false}],{\"tar"
     "gets\":[\"back\\\\slash \303\237 225.5\",\"Z\303\274ndung \360\237\232\227 225.6\"],\"pa"
     "ckages\":[{\"name\":\"Pr\303\274fstand \342\202\254 225.7\",\"version\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 225.8\",\"description\":\"K\303\274hler\\u0009"
     "\360\237\224\247 225.9\",\"kind\":2147483647,\"targets\":[\"say \\\"\303\251\\\" 225.10"
     "\",\"back\\\\slash \303\237 225.11\"],\"size\":9223372036854775809,\"checksum\":\"Z\303"
     "\274ndung \360\237\232\227 225.12\",\"location\":\"Pr\303\274fstand \342\202\254 225.13"
     "\",\"state\":-2147483648},{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 225.14\",\"version\":\"K\303\274hler\\u0009\360\237\224\247 225.15\",\"description"
     "\":\"say \\\"\303\251\\\" 225.16\",\"kind\":1529969517,\"targets\":[\"back\\\\slash \303"
     "\237 225.17\",\"Z\303\274ndung \360\237\232\227 225.18\"],\"size\":18446744073709551615,"
     "\"checksum\":\"Pr\303\274fstand \342\202\254 225.19\",\"location\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 225.20\",\"state\":2147483647}],\"stopOnError\":tr"
     "ue,\"force\":false,\"blockLength\":2036921631}]",
     "010200000001130000004bc3bc686c657209f09f94a7203232352e3231ffffffff0f0000007361792022c3a9"
     "22203232352e3232140000006261636b5c736c61736820c39f203232352e3233140000005ac3bc6e64756e67"
     "20f09f9a97203232352e3234d36ea01785e8d73537620f54e9db4672010000ffff150000005072c3bc667374"
     "616e6420e282ac203232352e323515000000e697a5e69cace8aa9e20f09d849e203232352e32361ff5687901"
     "2d915fe8130000004bc3bc686c657209f09f94a7203232352e323785e8d7350f0000007361792022c3a92220"
     "3232352e3238140000006261636b5c736c61736820c39f203232352e3239c99df0ab01e9db4672140000005a"
     "c3bc6e64756e6720f09f9a97203232352e333000000000010000006d7b315b000000000400000000ffff8001"
     "150000005072c3bc667374616e6420e282ac203232352e333165aa81ef15000000e697a5e69cace8aa9e20f0"
     "9d849e203232352e3332130000004bc3bc686c657209f09f94a7203232352e33330f0000007361792022c3a9"
     "22203232352e33349b557e104dcfb52eff48ed4cb1c2246b00",
     "0200000001130000004bc3bc686c657209f09f94a7203232352e3231ffffffff0f0000007361792022c3a922"
     "203232352e3232140000006261636b5c736c61736820c39f203232352e3233140000005ac3bc6e64756e6720"
     "f09f9a97203232352e3234d36ea01785e8d73537620f54e9db4672010000ffff150000005072c3bc66737461"
     "6e6420e282ac203232352e323515000000e697a5e69cace8aa9e20f09d849e203232352e32361ff56879012d"
     "915fe8130000004bc3bc686c657209f09f94a7203232352e323785e8d7350f0000007361792022c3a9222032"
     "32352e3238140000006261636b5c736c61736820c39f203232352e3239c99df0ab01e9db4672140000005ac3"
     "bc6e64756e6720f09f9a97203232352e333000000000010000006d7b315b000000000400000000ffff800115"
     "0000005072c3bc667374616e6420e282ac203232352e333165aa81ef15000000e697a5e69cace8aa9e20f09d"
     "849e203232352e3332130000004bc3bc686c657209f09f94a7203232352e33330f0000007361792022c3a922"
     "203232352e33349b557e104dcfb52eff48ed4cb1c2246b00",
     0},
    {"sparse", "[[],null]", "[[],null]",
     "[{\"target\":\"\",\"status\":-2147483648,\"package\":\"\",\"versionBefore\":\"\",\"versi"
     "onAfter\":\"\",\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":21474"
     "83647,\"duration\":1529969517,\"error\":{\"code\":2147483647,\"message\":\"\",\"details"
     "\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "[{\"target\":\"\",\"status\":-2147483648,\"package\":\"\",\"versionBefore\":\"\",\"versi"
     "onAfter\":\"\",\"position\":4294967295,\"progress\":2147483648,\"overallProgress\":21474"
     "83647,\"duration\":1529969517,\"error\":{\"code\":2147483647,\"message\":\"\",\"details"
     "\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "000000000000000000000000000000000000", "0000000000",
     "[[],{\"targets\":[],\"packages\":[],\"stopOnError\":false,\"force\":false,\"blockLength"
     "\":0}]",
     "[[],null]",
     "0102000000010000000000000080000000000000000000000000ffffffff00000080ffffff7f6d7b315b01ff"
     "ffff7f0000000000000000ffffffff000000",
     "02000000010000000000000080000000000000000000000000ffffffff00000080ffffff7f6d7b315b01ffff"
     "ff7f0000000000000000ffffffff000000",
     0},
    {"empty", "[[],null]", "[[],null]", "[]", "null", "000000000000000000000000000000000000",
     "0000000000",
     "[[],{\"targets\":[],\"packages\":[],\"stopOnError\":false,\"force\":false,\"blockLength"
     "\":0}]",
     "[[],null]", "0100000000", "00000000", 0},
};

struct PerformVehicleUpdateExport {
    static constexpr const char* operation = "performVehicleUpdate";
    using Result = kc::ListResult<VehicleUpdateResult, release_VehicleUpdateResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::RecordList<EcuOrderEntry, release_EcuOrderEntry_array> a0(in[0]);
        kel_performVehicleUpdate(api, a0.data(), a0.count(), kc::record<VehicleUpdateConfig>(in[1]),
                                 error, &out.data, &out.count);
    }
};

TEST_F(VehicleUpdate, performVehicleUpdate_Exchange) {
    kc::exchange<PerformVehicleUpdateExport>(api, kPerformVehicleUpdateCases);
}
TEST_F(VehicleUpdate, performVehicleUpdate_Failure) {
    kc::failure<PerformVehicleUpdateExport>(api, kPerformVehicleUpdateCases);
}
TEST_F(VehicleUpdateAdmission, performVehicleUpdate) {
    kc::admission<PerformVehicleUpdateExport>(callers(), kPerformVehicleUpdateCases,
                                              kc::Needs::Operator);
}

struct PerformVehicleUpdateAsyncExport {
    static constexpr const char* operation = "performVehicleUpdateAsync";
    using Reports = kc::Reports<VehicleUpdateResult, release_VehicleUpdateResult_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        kc::RecordList<EcuOrderEntry, release_EcuOrderEntry_array> a0(in[0]);
        return kel_performVehicleUpdateAsync(api, a0.data(), a0.count(),
                                             kc::record<VehicleUpdateConfig>(in[1]), error,
                                             &Reports::onReport, &reports);
    }
};

TEST_F(VehicleUpdate, performVehicleUpdateAsync_Exchange) {
    kc::asyncExchange<PerformVehicleUpdateAsyncExport>(api, kPerformVehicleUpdateCases);
}
TEST_F(VehicleUpdate, performVehicleUpdateAsync_Failure) {
    kc::asyncFailure<PerformVehicleUpdateAsyncExport>(api, kPerformVehicleUpdateCases);
}
TEST_F(VehicleUpdateAdmission, performVehicleUpdateAsync) {
    kc::asyncAdmission<PerformVehicleUpdateAsyncExport>(callers(), kPerformVehicleUpdateCases,
                                                        kc::Needs::Operator);
}

const char* const kPerformVehicleUpdateNoUtf8[] = {
    "[[{\"target\":\"\\udc00Pr\303\274fstand \342\202\254 225.1\\ud800\",\"bus\":\"\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 225.2\",\"address\":4294967295,\"gateway\""
    ":128,\"optional\":0},{\"target\":\"K\303\274hler\\t\360\237\224\247 225.3\",\"bus\":\"sa"
    "y \\\"\303\251\\\" 225.4\",\"address\":2147483648,\"gateway\":255,\"optional\":0}],{\"ta"
    "rgets\":[\"back\\\\slash \303\237 225.5\",\"Z\303\274ndung \360\237\232\227 225.6\"],\"p"
    "ackages\":[{\"name\":\"Pr\303\274fstand \342\202\254 225.7\",\"version\":\"\346\227\245"
    "\346\234\254\350\252\236 \360\235\204\236 225.8\",\"description\":\"K\303\274hler\\t\360"
    "\237\224\247 225.9\",\"kind\":2147483647,\"targets\":[\"say \\\"\303\251\\\" 225.10\",\""
    "back\\\\slash \303\237 225.11\"],\"size\":9223372036854775809,\"checksum\":\"Z\303\274nd"
    "ung \360\237\232\227 225.12\",\"location\":\"Pr\303\274fstand \342\202\254 225.13\",\"st"
    "ate\":-2147483648},{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 225"
    ".14\",\"version\":\"K\303\274hler\\t\360\237\224\247 225.15\",\"description\":\"say \\\""
    "\303\251\\\" 225.16\",\"kind\":1529969517,\"targets\":[\"back\\\\slash \303\237 225.17\""
    ",\"Z\303\274ndung \360\237\232\227 225.18\"],\"size\":18446744073709551615,\"checksum\":"
    "\"Pr\303\274fstand \342\202\254 225.19\",\"location\":\"\346\227\245\346\234\254\350\252"
    "\236 \360\235\204\236 225.20\",\"state\":2147483647}],\"stopOnError\":2,\"force\":0,\"bl"
    "ockLength\":2036921631}]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 225.1\",\"bus\":\"\\udc00\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 225.2\\ud800\",\"address\":4294967295,\"gateway\":"
    "128,\"optional\":0},{\"target\":\"K\303\274hler\\t\360\237\224\247 225.3\",\"bus\":\"say"
    " \\\"\303\251\\\" 225.4\",\"address\":2147483648,\"gateway\":255,\"optional\":0}],{\"tar"
    "gets\":[\"back\\\\slash \303\237 225.5\",\"Z\303\274ndung \360\237\232\227 225.6\"],\"pa"
    "ckages\":[{\"name\":\"Pr\303\274fstand \342\202\254 225.7\",\"version\":\"\346\227\245"
    "\346\234\254\350\252\236 \360\235\204\236 225.8\",\"description\":\"K\303\274hler\\t\360"
    "\237\224\247 225.9\",\"kind\":2147483647,\"targets\":[\"say \\\"\303\251\\\" 225.10\",\""
    "back\\\\slash \303\237 225.11\"],\"size\":9223372036854775809,\"checksum\":\"Z\303\274nd"
    "ung \360\237\232\227 225.12\",\"location\":\"Pr\303\274fstand \342\202\254 225.13\",\"st"
    "ate\":-2147483648},{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 225"
    ".14\",\"version\":\"K\303\274hler\\t\360\237\224\247 225.15\",\"description\":\"say \\\""
    "\303\251\\\" 225.16\",\"kind\":1529969517,\"targets\":[\"back\\\\slash \303\237 225.17\""
    ",\"Z\303\274ndung \360\237\232\227 225.18\"],\"size\":18446744073709551615,\"checksum\":"
    "\"Pr\303\274fstand \342\202\254 225.19\",\"location\":\"\346\227\245\346\234\254\350\252"
    "\236 \360\235\204\236 225.20\",\"state\":2147483647}],\"stopOnError\":2,\"force\":0,\"bl"
    "ockLength\":2036921631}]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 225.1\",\"bus\":\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 225.2\",\"address\":4294967295,\"gateway\":128,\"optional"
    "\":0},{\"target\":\"K\303\274hler\\t\360\237\224\247 225.3\",\"bus\":\"say \\\"\303\251"
    "\\\" 225.4\",\"address\":2147483648,\"gateway\":255,\"optional\":0}],{\"targets\":[\"\\u"
    "dc00back\\\\slash \303\237 225.5\\ud800\",\"Z\303\274ndung \360\237\232\227 225.6\"],\"p"
    "ackages\":[{\"name\":\"Pr\303\274fstand \342\202\254 225.7\",\"version\":\"\346\227\245"
    "\346\234\254\350\252\236 \360\235\204\236 225.8\",\"description\":\"K\303\274hler\\t\360"
    "\237\224\247 225.9\",\"kind\":2147483647,\"targets\":[\"say \\\"\303\251\\\" 225.10\",\""
    "back\\\\slash \303\237 225.11\"],\"size\":9223372036854775809,\"checksum\":\"Z\303\274nd"
    "ung \360\237\232\227 225.12\",\"location\":\"Pr\303\274fstand \342\202\254 225.13\",\"st"
    "ate\":-2147483648},{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 225"
    ".14\",\"version\":\"K\303\274hler\\t\360\237\224\247 225.15\",\"description\":\"say \\\""
    "\303\251\\\" 225.16\",\"kind\":1529969517,\"targets\":[\"back\\\\slash \303\237 225.17\""
    ",\"Z\303\274ndung \360\237\232\227 225.18\"],\"size\":18446744073709551615,\"checksum\":"
    "\"Pr\303\274fstand \342\202\254 225.19\",\"location\":\"\346\227\245\346\234\254\350\252"
    "\236 \360\235\204\236 225.20\",\"state\":2147483647}],\"stopOnError\":2,\"force\":0,\"bl"
    "ockLength\":2036921631}]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 225.1\",\"bus\":\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 225.2\",\"address\":4294967295,\"gateway\":128,\"optional"
    "\":0},{\"target\":\"K\303\274hler\\t\360\237\224\247 225.3\",\"bus\":\"say \\\"\303\251"
    "\\\" 225.4\",\"address\":2147483648,\"gateway\":255,\"optional\":0}],{\"targets\":[\"bac"
    "k\\\\slash \303\237 225.5\",\"Z\303\274ndung \360\237\232\227 225.6\"],\"packages\":[{\""
    "name\":\"\\udc00Pr\303\274fstand \342\202\254 225.7\\ud800\",\"version\":\"\346\227\245"
    "\346\234\254\350\252\236 \360\235\204\236 225.8\",\"description\":\"K\303\274hler\\t\360"
    "\237\224\247 225.9\",\"kind\":2147483647,\"targets\":[\"say \\\"\303\251\\\" 225.10\",\""
    "back\\\\slash \303\237 225.11\"],\"size\":9223372036854775809,\"checksum\":\"Z\303\274nd"
    "ung \360\237\232\227 225.12\",\"location\":\"Pr\303\274fstand \342\202\254 225.13\",\"st"
    "ate\":-2147483648},{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 225"
    ".14\",\"version\":\"K\303\274hler\\t\360\237\224\247 225.15\",\"description\":\"say \\\""
    "\303\251\\\" 225.16\",\"kind\":1529969517,\"targets\":[\"back\\\\slash \303\237 225.17\""
    ",\"Z\303\274ndung \360\237\232\227 225.18\"],\"size\":18446744073709551615,\"checksum\":"
    "\"Pr\303\274fstand \342\202\254 225.19\",\"location\":\"\346\227\245\346\234\254\350\252"
    "\236 \360\235\204\236 225.20\",\"state\":2147483647}],\"stopOnError\":2,\"force\":0,\"bl"
    "ockLength\":2036921631}]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 225.1\",\"bus\":\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 225.2\",\"address\":4294967295,\"gateway\":128,\"optional"
    "\":0},{\"target\":\"K\303\274hler\\t\360\237\224\247 225.3\",\"bus\":\"say \\\"\303\251"
    "\\\" 225.4\",\"address\":2147483648,\"gateway\":255,\"optional\":0}],{\"targets\":[\"bac"
    "k\\\\slash \303\237 225.5\",\"Z\303\274ndung \360\237\232\227 225.6\"],\"packages\":[{\""
    "name\":\"Pr\303\274fstand \342\202\254 225.7\",\"version\":\"\\udc00\346\227\245\346\234"
    "\254\350\252\236 \360\235\204\236 225.8\\ud800\",\"description\":\"K\303\274hler\\t\360"
    "\237\224\247 225.9\",\"kind\":2147483647,\"targets\":[\"say \\\"\303\251\\\" 225.10\",\""
    "back\\\\slash \303\237 225.11\"],\"size\":9223372036854775809,\"checksum\":\"Z\303\274nd"
    "ung \360\237\232\227 225.12\",\"location\":\"Pr\303\274fstand \342\202\254 225.13\",\"st"
    "ate\":-2147483648},{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 225"
    ".14\",\"version\":\"K\303\274hler\\t\360\237\224\247 225.15\",\"description\":\"say \\\""
    "\303\251\\\" 225.16\",\"kind\":1529969517,\"targets\":[\"back\\\\slash \303\237 225.17\""
    ",\"Z\303\274ndung \360\237\232\227 225.18\"],\"size\":18446744073709551615,\"checksum\":"
    "\"Pr\303\274fstand \342\202\254 225.19\",\"location\":\"\346\227\245\346\234\254\350\252"
    "\236 \360\235\204\236 225.20\",\"state\":2147483647}],\"stopOnError\":2,\"force\":0,\"bl"
    "ockLength\":2036921631}]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 225.1\",\"bus\":\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 225.2\",\"address\":4294967295,\"gateway\":128,\"optional"
    "\":0},{\"target\":\"K\303\274hler\\t\360\237\224\247 225.3\",\"bus\":\"say \\\"\303\251"
    "\\\" 225.4\",\"address\":2147483648,\"gateway\":255,\"optional\":0}],{\"targets\":[\"bac"
    "k\\\\slash \303\237 225.5\",\"Z\303\274ndung \360\237\232\227 225.6\"],\"packages\":[{\""
    "name\":\"Pr\303\274fstand \342\202\254 225.7\",\"version\":\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 225.8\",\"description\":\"\\udc00K\303\274hler\\t\360\237"
    "\224\247 225.9\\ud800\",\"kind\":2147483647,\"targets\":[\"say \\\"\303\251\\\" 225.10\""
    ",\"back\\\\slash \303\237 225.11\"],\"size\":9223372036854775809,\"checksum\":\"Z\303"
    "\274ndung \360\237\232\227 225.12\",\"location\":\"Pr\303\274fstand \342\202\254 225.13"
    "\",\"state\":-2147483648},{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
    "\236 225.14\",\"version\":\"K\303\274hler\\t\360\237\224\247 225.15\",\"description\":\""
    "say \\\"\303\251\\\" 225.16\",\"kind\":1529969517,\"targets\":[\"back\\\\slash \303\237 "
    "225.17\",\"Z\303\274ndung \360\237\232\227 225.18\"],\"size\":18446744073709551615,\"che"
    "cksum\":\"Pr\303\274fstand \342\202\254 225.19\",\"location\":\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 225.20\",\"state\":2147483647}],\"stopOnError\":2,\"force"
    "\":0,\"blockLength\":2036921631}]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 225.1\",\"bus\":\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 225.2\",\"address\":4294967295,\"gateway\":128,\"optional"
    "\":0},{\"target\":\"K\303\274hler\\t\360\237\224\247 225.3\",\"bus\":\"say \\\"\303\251"
    "\\\" 225.4\",\"address\":2147483648,\"gateway\":255,\"optional\":0}],{\"targets\":[\"bac"
    "k\\\\slash \303\237 225.5\",\"Z\303\274ndung \360\237\232\227 225.6\"],\"packages\":[{\""
    "name\":\"Pr\303\274fstand \342\202\254 225.7\",\"version\":\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 225.8\",\"description\":\"K\303\274hler\\t\360\237\224\247"
    " 225.9\",\"kind\":2147483647,\"targets\":[\"say \\\"\303\251\\\" 225.10\",\"back\\\\slas"
    "h \303\237 225.11\"],\"size\":9223372036854775809,\"checksum\":\"\\udc00Z\303\274ndung "
    "\360\237\232\227 225.12\\ud800\",\"location\":\"Pr\303\274fstand \342\202\254 225.13\","
    "\"state\":-2147483648},{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236"
    " 225.14\",\"version\":\"K\303\274hler\\t\360\237\224\247 225.15\",\"description\":\"say "
    "\\\"\303\251\\\" 225.16\",\"kind\":1529969517,\"targets\":[\"back\\\\slash \303\237 225."
    "17\",\"Z\303\274ndung \360\237\232\227 225.18\"],\"size\":18446744073709551615,\"checksu"
    "m\":\"Pr\303\274fstand \342\202\254 225.19\",\"location\":\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 225.20\",\"state\":2147483647}],\"stopOnError\":2,\"force\":0,"
    "\"blockLength\":2036921631}]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 225.1\",\"bus\":\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 225.2\",\"address\":4294967295,\"gateway\":128,\"optional"
    "\":0},{\"target\":\"K\303\274hler\\t\360\237\224\247 225.3\",\"bus\":\"say \\\"\303\251"
    "\\\" 225.4\",\"address\":2147483648,\"gateway\":255,\"optional\":0}],{\"targets\":[\"bac"
    "k\\\\slash \303\237 225.5\",\"Z\303\274ndung \360\237\232\227 225.6\"],\"packages\":[{\""
    "name\":\"Pr\303\274fstand \342\202\254 225.7\",\"version\":\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 225.8\",\"description\":\"K\303\274hler\\t\360\237\224\247"
    " 225.9\",\"kind\":2147483647,\"targets\":[\"say \\\"\303\251\\\" 225.10\",\"back\\\\slas"
    "h \303\237 225.11\"],\"size\":9223372036854775809,\"checksum\":\"Z\303\274ndung \360\237"
    "\232\227 225.12\",\"location\":\"\\udc00Pr\303\274fstand \342\202\254 225.13\\ud800\",\""
    "state\":-2147483648},{\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 2"
    "25.14\",\"version\":\"K\303\274hler\\t\360\237\224\247 225.15\",\"description\":\"say \\"
    "\"\303\251\\\" 225.16\",\"kind\":1529969517,\"targets\":[\"back\\\\slash \303\237 225.17"
    "\",\"Z\303\274ndung \360\237\232\227 225.18\"],\"size\":18446744073709551615,\"checksum"
    "\":\"Pr\303\274fstand \342\202\254 225.19\",\"location\":\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 225.20\",\"state\":2147483647}],\"stopOnError\":2,\"force\":0,"
    "\"blockLength\":2036921631}]",
};
TEST_F(VehicleUpdate, performVehicleUpdate_TextWithNoUtf8Form) {
    kc::noUtf8<PerformVehicleUpdateExport>(api, kPerformVehicleUpdateNoUtf8);
}
TEST_F(VehicleUpdate, performVehicleUpdateAsync_TextWithNoUtf8Form) {
    kc::asyncNoUtf8<PerformVehicleUpdateAsyncExport>(api, kPerformVehicleUpdateNoUtf8);
}

const kc::Number kNumber257{257, "performVehicleUpdate", kPerformVehicleUpdateCases};

TEST_F(VehicleUpdateByNumber, n257_performVehicleUpdate_KelCall) { kc::kelCall(api, kNumber257); }
TEST_F(VehicleUpdateByNumber, n257_performVehicleUpdate_PyCall) { kc::pyCall(api, kNumber257); }
TEST_F(VehicleUpdateByNumber, n257_performVehicleUpdate_Failure) {
    kc::numberFailure(api, kNumber257);
}
TEST_F(VehicleUpdateByNumber, n257_performVehicleUpdate_ShortInput) {
    kc::shortInput(api, kNumber257);
}

// ---- createVehicleUpdateConfig (position 240, number 154) ----

const kc::Case kCreateVehicleUpdateConfigCases[] = {
    {"full",
     "[[\"Pr\303\274fstand \342\202\254 240.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 240.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 240.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 240.2\"]]",
     "{\"targets\":[\"K\303\274hler\\u0009\360\237\224\247 240.3\",\"say \\\"\303\251\\\" 240."
     "4\"],\"packages\":[{\"name\":\"back\\\\slash \303\237 240.5\",\"version\":\"Z\303\274ndu"
     "ng \360\237\232\227 240.6\",\"description\":\"Pr\303\274fstand \342\202\254 240.7\",\"ki"
     "nd\":4294967295,\"targets\":[\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 240"
     ".8\",\"K\303\274hler\\u0009\360\237\224\247 240.9\"],\"size\":9223372036854775809,\"chec"
     "ksum\":\"say \\\"\303\251\\\" 240.10\",\"location\":\"back\\\\slash \303\237 240.11\",\""
     "state\":-2147483648},{\"name\":\"Z\303\274ndung \360\237\232\227 240.12\",\"version\":\""
     "Pr\303\274fstand \342\202\254 240.13\",\"description\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 240.14\",\"kind\":2147483648,\"targets\":[\"K\303\274hler\\u00"
     "09\360\237\224\247 240.15\",\"say \\\"\303\251\\\" 240.16\"],\"size\":184467440737095516"
     "15,\"checksum\":\"back\\\\slash \303\237 240.17\",\"location\":\"Z\303\274ndung \360\237"
     "\232\227 240.18\",\"state\":2147483647}],\"stopOnError\":true,\"force\":false,\"blockLen"
     "gth\":2147483647}",
     "{\"targets\":[\"K\303\274hler\\u0009\360\237\224\247 240.3\",\"say \\\"\303\251\\\" 240."
     "4\"],\"targetCount\":2,\"packages\":[{\"name\":\"back\\\\slash \303\237 240.5\",\"versio"
     "n\":\"Z\303\274ndung \360\237\232\227 240.6\",\"description\":\"Pr\303\274fstand \342"
     "\202\254 240.7\",\"kind\":4294967295,\"targets\":[\"\346\227\245\346\234\254\350\252\236"
     " \360\235\204\236 240.8\",\"K\303\274hler\\u0009\360\237\224\247 240.9\"],\"targetCount"
     "\":2,\"size\":9223372036854775809,\"checksum\":\"say \\\"\303\251\\\" 240.10\",\"locatio"
     "n\":\"back\\\\slash \303\237 240.11\",\"state\":-2147483648},{\"name\":\"Z\303\274ndung "
     "\360\237\232\227 240.12\",\"version\":\"Pr\303\274fstand \342\202\254 240.13\",\"descrip"
     "tion\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 240.14\",\"kind\":2147483"
     "648,\"targets\":[\"K\303\274hler\\u0009\360\237\224\247 240.15\",\"say \\\"\303\251\\\" "
     "240.16\"],\"targetCount\":2,\"size\":18446744073709551615,\"checksum\":\"back\\\\slash "
     "\303\237 240.17\",\"location\":\"Z\303\274ndung \360\237\232\227 240.18\",\"state\":2147"
     "483647}],\"packageCount\":2,\"stopOnError\":1,\"force\":0,\"blockLength\":2147483647}",
     "03000000140000005072c3bc667374616e6420e282ac203234302e310000000014000000e697a5e69cace8aa"
     "9e20f09d849e203234302e32",
     "030000005072c3bc667374616e6420e282ac203234302e310000e697a5e69cace8aa9e20f09d849e20323430"
     "2e3200",
     "[[\"Pr\303\274fstand \342\202\254 240.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 240.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 240.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 240.2\"]]",
     "010102000000120000004bc3bc686c657209f09f94a7203234302e330e0000007361792022c3a92220323430"
     "2e340200000001130000006261636b5c736c61736820c39f203234302e35130000005ac3bc6e64756e6720f0"
     "9f9a97203234302e36140000005072c3bc667374616e6420e282ac203234302e37ffffffff02000000140000"
     "00e697a5e69cace8aa9e20f09d849e203234302e38120000004bc3bc686c657209f09f94a7203234302e3901"
     "000000000000800f0000007361792022c3a922203234302e3130140000006261636b5c736c61736820c39f20"
     "3234302e31310000008001140000005ac3bc6e64756e6720f09f9a97203234302e3132150000005072c3bc66"
     "7374616e6420e282ac203234302e313315000000e697a5e69cace8aa9e20f09d849e203234302e3134000000"
     "8002000000130000004bc3bc686c657209f09f94a7203234302e31350f0000007361792022c3a92220323430"
     "2e3136ffffffffffffffff140000006261636b5c736c61736820c39f203234302e3137140000005ac3bc6e64"
     "756e6720f09f9a97203234302e3138ffffff7f0100ffffff7f",
     "0102000000120000004bc3bc686c657209f09f94a7203234302e330e0000007361792022c3a922203234302e"
     "340200000001130000006261636b5c736c61736820c39f203234302e35130000005ac3bc6e64756e6720f09f"
     "9a97203234302e36140000005072c3bc667374616e6420e282ac203234302e37ffffffff0200000014000000"
     "e697a5e69cace8aa9e20f09d849e203234302e38120000004bc3bc686c657209f09f94a7203234302e390100"
     "0000000000800f0000007361792022c3a922203234302e3130140000006261636b5c736c61736820c39f2032"
     "34302e31310000008001140000005ac3bc6e64756e6720f09f9a97203234302e3132150000005072c3bc6673"
     "74616e6420e282ac203234302e313315000000e697a5e69cace8aa9e20f09d849e203234302e313400000080"
     "02000000130000004bc3bc686c657209f09f94a7203234302e31350f0000007361792022c3a922203234302e"
     "3136ffffffffffffffff140000006261636b5c736c61736820c39f203234302e3137140000005ac3bc6e6475"
     "6e6720f09f9a97203234302e3138ffffff7f0100ffffff7f",
     0},
    {"sparse", "[[]]", "[[]]",
     "{\"targets\":[],\"packages\":[{\"name\":\"\",\"version\":\"\",\"description\":\"\",\"kin"
     "d\":4294967295,\"targets\":[],\"size\":9223372036854775809,\"checksum\":\"\",\"location"
     "\":\"\",\"state\":-2147483648}],\"stopOnError\":true,\"force\":false,\"blockLength\":214"
     "7483648}",
     "{\"targets\":null,\"targetCount\":0,\"packages\":[{\"name\":\"\",\"version\":\"\",\"desc"
     "ription\":\"\",\"kind\":4294967295,\"targets\":null,\"targetCount\":0,\"size\":922337203"
     "6854775809,\"checksum\":\"\",\"location\":\"\",\"state\":-2147483648}],\"packageCount\":"
     "1,\"stopOnError\":1,\"force\":0,\"blockLength\":2147483648}",
     "00000000", "00000000", "[[]]", "[[]]",
     "0101000000000100000001000000000000000000000000ffffffff0000000001000000000000800000000000"
     "00000000000080010000000080",
     "01000000000100000001000000000000000000000000ffffffff000000000100000000000080000000000000"
     "000000000080010000000080",
     0},
    {"empty", "[[]]", "[[]]", "null", "null", "00000000", "00000000", "[[]]", "[[]]", "0100", "00",
     0},
};

struct CreateVehicleUpdateConfigExport {
    static constexpr const char* operation = "createVehicleUpdateConfig";
    using Result = kc::RecordResult<VehicleUpdateConfig, release_VehicleUpdateConfig>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::Texts a0(in[0]);
        kel_createVehicleUpdateConfig(api, a0.data(), a0.count(), error, &out.data);
    }
};

TEST_F(VehicleUpdate, createVehicleUpdateConfig_Exchange) {
    kc::exchange<CreateVehicleUpdateConfigExport>(api, kCreateVehicleUpdateConfigCases);
}
TEST_F(VehicleUpdate, createVehicleUpdateConfig_Failure) {
    kc::failure<CreateVehicleUpdateConfigExport>(api, kCreateVehicleUpdateConfigCases);
}
TEST_F(VehicleUpdateAdmission, createVehicleUpdateConfig) {
    kc::admission<CreateVehicleUpdateConfigExport>(callers(), kCreateVehicleUpdateConfigCases,
                                                   kc::Needs::Operator);
}

const char* const kCreateVehicleUpdateConfigNoUtf8[] = {
    "[[\"\\udc00Pr\303\274fstand \342\202\254 240.1\\ud800\",\"\",\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 240.2\"]]",
};
TEST_F(VehicleUpdate, createVehicleUpdateConfig_TextWithNoUtf8Form) {
    kc::noUtf8<CreateVehicleUpdateConfigExport>(api, kCreateVehicleUpdateConfigNoUtf8);
}

const kc::Number kNumber154{154, "createVehicleUpdateConfig", kCreateVehicleUpdateConfigCases};

TEST_F(VehicleUpdateByNumber, n154_createVehicleUpdateConfig_KelCall) {
    kc::kelCall(api, kNumber154);
}
TEST_F(VehicleUpdateByNumber, n154_createVehicleUpdateConfig_PyCall) {
    kc::pyCall(api, kNumber154);
}
TEST_F(VehicleUpdateByNumber, n154_createVehicleUpdateConfig_Failure) {
    kc::numberFailure(api, kNumber154);
}
TEST_F(VehicleUpdateByNumber, n154_createVehicleUpdateConfig_ShortInput) {
    kc::shortInput(api, kNumber154);
}

} // namespace
