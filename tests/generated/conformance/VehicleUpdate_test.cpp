// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family VehicleUpdate: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using VehicleUpdate = kc::ConformanceTest;
using VehicleUpdateByNumber = kc::ConformanceTest;

TEST_F(VehicleUpdateByNumber, n146_createVehicleReport_NotAvailable) {
    kc::notAvailable(api, 146, "createVehicleReport");
}

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

const kc::Number kNumber185{185, "applyUpdatePackage", kApplyUpdatePackageCases};

TEST_F(VehicleUpdateByNumber, n185_applyUpdatePackage_KelCall) { kc::kelCall(api, kNumber185); }
TEST_F(VehicleUpdateByNumber, n185_applyUpdatePackage_PyCall) { kc::pyCall(api, kNumber185); }
TEST_F(VehicleUpdateByNumber, n185_applyUpdatePackage_Failure) {
    kc::numberFailure(api, kNumber185);
}
TEST_F(VehicleUpdateByNumber, n185_applyUpdatePackage_ShortInput) {
    kc::shortInput(api, kNumber185);
}

TEST_F(VehicleUpdateByNumber, n184_getUpdatePackages_NotAvailable) {
    kc::notAvailable(api, 184, "getUpdatePackages");
}

TEST_F(VehicleUpdateByNumber, n164_getPackagesFromBroker_NotAvailable) {
    kc::notAvailable(api, 164, "getPackagesFromBroker");
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

const kc::Number kNumber194{194, "cleanUpdateTmp", kCleanUpdateTmpCases};

TEST_F(VehicleUpdateByNumber, n194_cleanUpdateTmp_KelCall) { kc::kelCall(api, kNumber194); }
TEST_F(VehicleUpdateByNumber, n194_cleanUpdateTmp_PyCall) { kc::pyCall(api, kNumber194); }
TEST_F(VehicleUpdateByNumber, n194_cleanUpdateTmp_Failure) { kc::numberFailure(api, kNumber194); }

TEST_F(VehicleUpdateByNumber, n211_updateVehicle_NotAvailable) {
    kc::notAvailable(api, 211, "updateVehicle");
}

TEST_F(VehicleUpdateByNumber, n202_getVehicleData_NotAvailable) {
    kc::notAvailable(api, 202, "getVehicleData");
}

TEST_F(VehicleUpdateByNumber, n223_uploadReport_NotAvailable) {
    kc::notAvailable(api, 223, "uploadReport");
}

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

const kc::Number kNumber245{245, "clearUpdatePackages", kClearUpdatePackagesCases};

TEST_F(VehicleUpdateByNumber, n245_clearUpdatePackages_KelCall) { kc::kelCall(api, kNumber245); }
TEST_F(VehicleUpdateByNumber, n245_clearUpdatePackages_PyCall) { kc::pyCall(api, kNumber245); }
TEST_F(VehicleUpdateByNumber, n245_clearUpdatePackages_Failure) {
    kc::numberFailure(api, kNumber245);
}

TEST_F(VehicleUpdateByNumber, n257_performVehicleUpdate_NotAvailable) {
    kc::notAvailable(api, 257, "performVehicleUpdate");
}

TEST_F(VehicleUpdateByNumber, n264_createVehicleUpdateReport_NotAvailable) {
    kc::notAvailable(api, 264, "createVehicleUpdateReport");
}

TEST_F(VehicleUpdateByNumber, n154_createVehicleUpdateConfig_NotAvailable) {
    kc::notAvailable(api, 154, "createVehicleUpdateConfig");
}

TEST_F(VehicleUpdateByNumber, n56_getSelectedVehicleInformation_NotAvailable) {
    kc::notAvailable(api, 56, "getSelectedVehicleInformation");
}

TEST_F(VehicleUpdateByNumber, n57_setSelectedVehicleInformation_NotAvailable) {
    kc::notAvailable(api, 57, "setSelectedVehicleInformation");
}

} // namespace
