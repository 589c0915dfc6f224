// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family Interfaces: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using Interfaces = kc::ConformanceTest;
using InterfacesByNumber = kc::ConformanceTest;

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

const kc::Number kNumber70{70, "saveInterfaceConfiguration", kSaveInterfaceConfigurationCases};

TEST_F(InterfacesByNumber, n70_saveInterfaceConfiguration_KelCall) { kc::kelCall(api, kNumber70); }
TEST_F(InterfacesByNumber, n70_saveInterfaceConfiguration_PyCall) { kc::pyCall(api, kNumber70); }
TEST_F(InterfacesByNumber, n70_saveInterfaceConfiguration_Failure) {
    kc::numberFailure(api, kNumber70);
}

TEST_F(InterfacesByNumber, n71_scanInterfaceConnection_NotAvailable) {
    kc::notAvailable(api, 71, "scanInterfaceConnection");
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

const kc::Number kNumber107{107, "clearLinkCache", kClearLinkCacheCases};

TEST_F(InterfacesByNumber, n107_clearLinkCache_KelCall) { kc::kelCall(api, kNumber107); }
TEST_F(InterfacesByNumber, n107_clearLinkCache_PyCall) { kc::pyCall(api, kNumber107); }
TEST_F(InterfacesByNumber, n107_clearLinkCache_Failure) { kc::numberFailure(api, kNumber107); }

TEST_F(InterfacesByNumber, n109_addResource_NotAvailable) {
    kc::notAvailable(api, 109, "addResource");
}

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

const kc::Number kNumber110{110, "removeInterface", kRemoveInterfaceCases};

TEST_F(InterfacesByNumber, n110_removeInterface_KelCall) { kc::kelCall(api, kNumber110); }
TEST_F(InterfacesByNumber, n110_removeInterface_PyCall) { kc::pyCall(api, kNumber110); }
TEST_F(InterfacesByNumber, n110_removeInterface_Failure) { kc::numberFailure(api, kNumber110); }
TEST_F(InterfacesByNumber, n110_removeInterface_ShortInput) { kc::shortInput(api, kNumber110); }

TEST_F(InterfacesByNumber, n108_addInterface_NotAvailable) {
    kc::notAvailable(api, 108, "addInterface");
}

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

const kc::Number kNumber112{112, "removeResource", kRemoveResourceCases};

TEST_F(InterfacesByNumber, n112_removeResource_KelCall) { kc::kelCall(api, kNumber112); }
TEST_F(InterfacesByNumber, n112_removeResource_PyCall) { kc::pyCall(api, kNumber112); }
TEST_F(InterfacesByNumber, n112_removeResource_Failure) { kc::numberFailure(api, kNumber112); }
TEST_F(InterfacesByNumber, n112_removeResource_ShortInput) { kc::shortInput(api, kNumber112); }

TEST_F(InterfacesByNumber, n123_detectDynInterfaces_NotAvailable) {
    kc::notAvailable(api, 123, "detectDynInterfaces");
}

TEST_F(InterfacesByNumber, n125_connectDynInterface_NotAvailable) {
    kc::notAvailable(api, 125, "connectDynInterface");
}

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

const kc::Number kNumber152{152, "getEthernetPinState", kGetEthernetPinStateCases};

TEST_F(InterfacesByNumber, n152_getEthernetPinState_KelCall) { kc::kelCall(api, kNumber152); }
TEST_F(InterfacesByNumber, n152_getEthernetPinState_PyCall) { kc::pyCall(api, kNumber152); }
TEST_F(InterfacesByNumber, n152_getEthernetPinState_Failure) { kc::numberFailure(api, kNumber152); }
TEST_F(InterfacesByNumber, n152_getEthernetPinState_ShortInput) { kc::shortInput(api, kNumber152); }

TEST_F(InterfacesByNumber, n83_detectDynInterfacesEx_NotAvailable) {
    kc::notAvailable(api, 83, "detectDynInterfacesEx");
}

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

const kc::Number kNumber157{157, "testSocketBridge", kTestSocketBridgeCases};

TEST_F(InterfacesByNumber, n157_testSocketBridge_KelCall) { kc::kelCall(api, kNumber157); }
TEST_F(InterfacesByNumber, n157_testSocketBridge_PyCall) { kc::pyCall(api, kNumber157); }
TEST_F(InterfacesByNumber, n157_testSocketBridge_Failure) { kc::numberFailure(api, kNumber157); }
TEST_F(InterfacesByNumber, n157_testSocketBridge_ShortInput) { kc::shortInput(api, kNumber157); }

TEST_F(InterfacesByNumber, n182_getRegisteredDevices_NotAvailable) {
    kc::notAvailable(api, 182, "getRegisteredDevices");
}

TEST_F(InterfacesByNumber, n217_getPhysicalLinks_NotAvailable) {
    kc::notAvailable(api, 217, "getPhysicalLinks");
}

TEST_F(InterfacesByNumber, n218_setPhysicalLinks_NotAvailable) {
    kc::notAvailable(api, 218, "setPhysicalLinks");
}

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

const kc::Number kNumber236{236, "clearDoIPEcuCollection", kClearDoIPEcuCollectionCases};

TEST_F(InterfacesByNumber, n236_clearDoIPEcuCollection_KelCall) { kc::kelCall(api, kNumber236); }
TEST_F(InterfacesByNumber, n236_clearDoIPEcuCollection_PyCall) { kc::pyCall(api, kNumber236); }
TEST_F(InterfacesByNumber, n236_clearDoIPEcuCollection_Failure) {
    kc::numberFailure(api, kNumber236);
}

TEST_F(InterfacesByNumber, n63_getInterfaceConfiguration_NotAvailable) {
    kc::notAvailable(api, 63, "getInterfaceConfiguration");
}

TEST_F(InterfacesByNumber, n64_setInterfaceConfiguration_NotAvailable) {
    kc::notAvailable(api, 64, "setInterfaceConfiguration");
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

const kc::Number kNumber208{208, "getDefaultDoIPParameter", kGetDefaultDoIPParameterCases};

TEST_F(InterfacesByNumber, n208_getDefaultDoIPParameter_KelCall) { kc::kelCall(api, kNumber208); }
TEST_F(InterfacesByNumber, n208_getDefaultDoIPParameter_PyCall) { kc::pyCall(api, kNumber208); }
TEST_F(InterfacesByNumber, n208_getDefaultDoIPParameter_Failure) {
    kc::numberFailure(api, kNumber208);
}

} // namespace
