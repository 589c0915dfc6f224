// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family Events: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using Events = kc::ConformanceTest;
using EventsByNumber = kc::ConformanceTest;
using EventsAdmission = kc::AdmissionTest;

// ---- openEventChannel (position 46, number 45) ----

const kc::Case kOpenEventChannelCases[] = {
    {"full", "[]", "[]", "9223372036854775809", "9223372036854775809", "", "", "[]", "[]",
     "010100000000000080", "0100000000000080", 0},
};

struct OpenEventChannelExport {
    static constexpr const char* operation = "openEventChannel";
    using Result = kc::ValueResult<uint64_t>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_openEventChannel(api, error, &out.data);
    }
};

TEST_F(Events, openEventChannel_Exchange) {
    kc::exchange<OpenEventChannelExport>(api, kOpenEventChannelCases);
}
TEST_F(Events, openEventChannel_Failure) {
    kc::failure<OpenEventChannelExport>(api, kOpenEventChannelCases);
}
TEST_F(EventsAdmission, openEventChannel) {
    kc::admission<OpenEventChannelExport>(callers(), kOpenEventChannelCases, kc::Needs::Operator);
}

const kc::Number kNumber45{45, "openEventChannel", kOpenEventChannelCases};

TEST_F(EventsByNumber, n45_openEventChannel_KelCall) { kc::kelCall(api, kNumber45); }
TEST_F(EventsByNumber, n45_openEventChannel_PyCall) { kc::pyCall(api, kNumber45); }
TEST_F(EventsByNumber, n45_openEventChannel_Failure) { kc::numberFailure(api, kNumber45); }

// ---- closeEventChannel (position 47, number 46) ----

const kc::Case kCloseEventChannelCases[] = {
    {"full", "[9223372036854775809]", "[9223372036854775809]", "null", nullptr, "0100000000000080",
     "0100000000000080", "[9223372036854775809]", "[9223372036854775809]", "01", "", 0},
};

struct CloseEventChannelExport {
    static constexpr const char* operation = "closeEventChannel";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_closeEventChannel(api, kc::number<uint64_t>(in[0]), error);
    }
};

TEST_F(Events, closeEventChannel_Exchange) {
    kc::exchange<CloseEventChannelExport>(api, kCloseEventChannelCases);
}
TEST_F(Events, closeEventChannel_Failure) {
    kc::failure<CloseEventChannelExport>(api, kCloseEventChannelCases);
}
TEST_F(EventsAdmission, closeEventChannel) {
    kc::admission<CloseEventChannelExport>(callers(), kCloseEventChannelCases, kc::Needs::Operator);
}

const kc::Number kNumber46{46, "closeEventChannel", kCloseEventChannelCases};

TEST_F(EventsByNumber, n46_closeEventChannel_KelCall) { kc::kelCall(api, kNumber46); }
TEST_F(EventsByNumber, n46_closeEventChannel_PyCall) { kc::pyCall(api, kNumber46); }
TEST_F(EventsByNumber, n46_closeEventChannel_Failure) { kc::numberFailure(api, kNumber46); }
TEST_F(EventsByNumber, n46_closeEventChannel_ShortInput) { kc::shortInput(api, kNumber46); }

// ---- getCurrentEvents (position 48, number 47) ----

const kc::Case kGetCurrentEventsCases[] = {
    {"full", "[9223372036854775809,4294967295]", "[9223372036854775809,4294967295]",
     "{\"events\":[{\"name\":\"Pr\303\274fstand \342\202\254 48.1\",\"kind\":-2147483648,\"cod"
     "e\":2147483647,\"text\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 48.2\","
     "\"error\":{\"code\":-1,\"message\":\"K\303\274hler\\u0009\360\237\224\247 48.3\",\"detai"
     "ls\":\"say \\\"\303\251\\\" 48.4\",\"subCode\":-65536,\"mvciError\":{\"code\":2029752601"
     ",\"codeText\":\"back\\\\slash \303\237 48.5\",\"vendorCode\":-389221067,\"vendorCodeText"
     "\":\"Z\303\274ndung \360\237\232\227 48.6\",\"extraText\":\"Pr\303\274fstand \342\202"
     "\254 48.7\",\"extraCode\":896173181},\"negativeResponse\":{\"code\":-1403125295,\"text\""
     ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 48.8\",\"value1\":1844674407370"
     "9551615,\"value2\":4294967296,\"bytes\":[0,255,255,128]}},\"detail\":\"K\303\274hler\\u0"
     "009\360\237\224\247 48.9\"},{\"name\":\"say \\\"\303\251\\\" 48.10\",\"kind\":1910077409"
     ",\"code\":-269545877,\"text\":\"back\\\\slash \303\237 48.11\",\"error\":null,\"detail\""
     ":\"Z\303\274ndung \360\237\232\227 48.12\"}]}",
     "{\"events\":[{\"name\":\"Pr\303\274fstand \342\202\254 48.1\",\"kind\":-2147483648,\"cod"
     "e\":2147483647,\"text\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 48.2\","
     "\"error\":{\"code\":-1,\"message\":\"K\303\274hler\\u0009\360\237\224\247 48.3\",\"detai"
     "ls\":\"say \\\"\303\251\\\" 48.4\",\"subCode\":-65536,\"mvciError\":{\"code\":2029752601"
     ",\"codeText\":\"back\\\\slash \303\237 48.5\",\"vendorCode\":-389221067,\"vendorCodeText"
     "\":\"Z\303\274ndung \360\237\232\227 48.6\",\"extraText\":\"Pr\303\274fstand \342\202"
     "\254 48.7\",\"extraCode\":896173181},\"negativeResponse\":{\"code\":-1403125295,\"text\""
     ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 48.8\",\"value1\":1844674407370"
     "9551615,\"value2\":4294967296,\"bytes\":[0,255,255,128],\"byteCount\":4}},\"detail\":\"K"
     "\303\274hler\\u0009\360\237\224\247 48.9\"},{\"name\":\"say \\\"\303\251\\\" 48.10\",\"k"
     "ind\":1910077409,\"code\":-269545877,\"text\":\"back\\\\slash \303\237 48.11\",\"error\""
     ":null,\"detail\":\"Z\303\274ndung \360\237\232\227 48.12\"}],\"eventCount\":2}",
     "0100000000000080ffffffff", "0100000000000080ffffffff", "[9223372036854775809,4294967295]",
     "[9223372036854775809,4294967295]",
     "01010200000001130000005072c3bc667374616e6420e282ac2034382e3100000080ffffff7f13000000e697"
     "a5e69cace8aa9e20f09d849e2034382e3201ffffffff110000004bc3bc686c657209f09f94a72034382e330d"
     "0000007361792022c3a9222034382e340000ffff011991fb78120000006261636b5c736c61736820c39f2034"
     "382e3535f5cce8120000005ac3bc6e64756e6720f09f9a972034382e36130000005072c3bc667374616e6420"
     "e282ac2034382e377d846a3501d1015eac13000000e697a5e69cace8aa9e20f09d849e2034382e38ffffffff"
     "ffffffff00000000010000000400000000ffff80110000004bc3bc686c657209f09f94a72034382e39010e00"
     "00007361792022c3a9222034382e3130e177d9716b0eefef130000006261636b5c736c61736820c39f203438"
     "2e313100130000005ac3bc6e64756e6720f09f9a972034382e3132",
     "010200000001130000005072c3bc667374616e6420e282ac2034382e3100000080ffffff7f13000000e697a5"
     "e69cace8aa9e20f09d849e2034382e3201ffffffff110000004bc3bc686c657209f09f94a72034382e330d00"
     "00007361792022c3a9222034382e340000ffff011991fb78120000006261636b5c736c61736820c39f203438"
     "2e3535f5cce8120000005ac3bc6e64756e6720f09f9a972034382e36130000005072c3bc667374616e6420e2"
     "82ac2034382e377d846a3501d1015eac13000000e697a5e69cace8aa9e20f09d849e2034382e38ffffffffff"
     "ffffff00000000010000000400000000ffff80110000004bc3bc686c657209f09f94a72034382e39010e0000"
     "007361792022c3a9222034382e3130e177d9716b0eefef130000006261636b5c736c61736820c39f2034382e"
     "313100130000005ac3bc6e64756e6720f09f9a972034382e3132",
     0},
    {"sparse", "[9223372036854775809,4294967295]", "[9223372036854775809,4294967295]",
     "{\"events\":[{\"name\":\"\",\"kind\":-2147483648,\"code\":2147483647,\"text\":\"\",\"err"
     "or\":null,\"detail\":\"\"}]}",
     "{\"events\":[{\"name\":\"\",\"kind\":-2147483648,\"code\":2147483647,\"text\":\"\",\"err"
     "or\":null,\"detail\":\"\"}],\"eventCount\":1}",
     "0100000000000080ffffffff", "0100000000000080ffffffff", "[9223372036854775809,4294967295]",
     "[9223372036854775809,4294967295]", "010101000000010000000000000080ffffff7f000000000000000000",
     "0101000000010000000000000080ffffff7f000000000000000000", 0},
    {"empty", "[9223372036854775809,4294967295]", "[9223372036854775809,4294967295]", "null",
     "null", "0100000000000080ffffffff", "0100000000000080ffffffff",
     "[9223372036854775809,4294967295]", "[9223372036854775809,4294967295]", "0100", "00", 0},
};

struct GetCurrentEventsExport {
    static constexpr const char* operation = "getCurrentEvents";
    using Result = kc::RecordResult<EventReport, release_EventReport>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kel_getCurrentEvents(api, kc::number<uint64_t>(in[0]), kc::number<uint32_t>(in[1]), error,
                             &out.data);
    }
};

TEST_F(Events, getCurrentEvents_Exchange) {
    kc::exchange<GetCurrentEventsExport>(api, kGetCurrentEventsCases);
}
TEST_F(Events, getCurrentEvents_Failure) {
    kc::failure<GetCurrentEventsExport>(api, kGetCurrentEventsCases);
}
TEST_F(EventsAdmission, getCurrentEvents) {
    kc::admission<GetCurrentEventsExport>(callers(), kGetCurrentEventsCases, kc::Needs::Operator);
}

const kc::Number kNumber47{47, "getCurrentEvents", kGetCurrentEventsCases};

TEST_F(EventsByNumber, n47_getCurrentEvents_KelCall) { kc::kelCall(api, kNumber47); }
TEST_F(EventsByNumber, n47_getCurrentEvents_PyCall) { kc::pyCall(api, kNumber47); }
TEST_F(EventsByNumber, n47_getCurrentEvents_Failure) { kc::numberFailure(api, kNumber47); }
TEST_F(EventsByNumber, n47_getCurrentEvents_ShortInput) { kc::shortInput(api, kNumber47); }

// ---- registerServerHandler (position 131, number 254) ----

const kc::Case kRegisterServerHandlerCases[] = {
    {"full", "[null]", "[\"@handler\"]", "null", nullptr, "", "", "[\"@nohandler\"]",
     "[\"@nohandler\"]", "01", "", 0},
};

struct RegisterServerHandlerExport {
    static constexpr const char* operation = "registerServerHandler";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_registerServerHandler(reinterpret_cast<uintptr_t>(api), kc::handlerAddress(), error);
    }
};

TEST_F(Events, registerServerHandler_Exchange) {
    kc::exchange<RegisterServerHandlerExport>(api, kRegisterServerHandlerCases);
}
TEST_F(Events, registerServerHandler_Failure) {
    kc::failure<RegisterServerHandlerExport>(api, kRegisterServerHandlerCases);
}
TEST_F(EventsAdmission, registerServerHandler) {
    kc::admission<RegisterServerHandlerExport>(callers(), kRegisterServerHandlerCases,
                                               kc::Needs::Administrator);
}

const kc::Number kNumber254{254, "registerServerHandler", kRegisterServerHandlerCases};

TEST_F(EventsByNumber, n254_registerServerHandler_KelCall) { kc::kelCall(api, kNumber254); }
TEST_F(EventsByNumber, n254_registerServerHandler_PyCall) { kc::pyCall(api, kNumber254); }
TEST_F(EventsByNumber, n254_registerServerHandler_Failure) { kc::numberFailure(api, kNumber254); }

// ---- onConnectionBroken (position 153, number 188) ----

const kc::Case kOnConnectionBrokenCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct OnConnectionBrokenExport {
    static constexpr const char* operation = "onConnectionBroken";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_onConnectionBroken(api, error);
    }
};

TEST_F(Events, onConnectionBroken_Exchange) {
    kc::exchange<OnConnectionBrokenExport>(api, kOnConnectionBrokenCases);
}
TEST_F(Events, onConnectionBroken_Failure) {
    kc::failure<OnConnectionBrokenExport>(api, kOnConnectionBrokenCases);
}
TEST_F(EventsAdmission, onConnectionBroken) {
    kc::admission<OnConnectionBrokenExport>(callers(), kOnConnectionBrokenCases,
                                            kc::Needs::Operator);
}

const kc::Number kNumber188{188, "onConnectionBroken", kOnConnectionBrokenCases};

TEST_F(EventsByNumber, n188_onConnectionBroken_KelCall) { kc::kelCall(api, kNumber188); }
TEST_F(EventsByNumber, n188_onConnectionBroken_PyCall) { kc::pyCall(api, kNumber188); }
TEST_F(EventsByNumber, n188_onConnectionBroken_Failure) { kc::numberFailure(api, kNumber188); }

// ---- onConnectionClosed (position 195, number 226) ----

const kc::Case kOnConnectionClosedCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct OnConnectionClosedExport {
    static constexpr const char* operation = "onConnectionClosed";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_onConnectionClosed(api, error);
    }
};

TEST_F(Events, onConnectionClosed_Exchange) {
    kc::exchange<OnConnectionClosedExport>(api, kOnConnectionClosedCases);
}
TEST_F(Events, onConnectionClosed_Failure) {
    kc::failure<OnConnectionClosedExport>(api, kOnConnectionClosedCases);
}
TEST_F(EventsAdmission, onConnectionClosed) {
    kc::admission<OnConnectionClosedExport>(callers(), kOnConnectionClosedCases,
                                            kc::Needs::Operator);
}

const kc::Number kNumber226{226, "onConnectionClosed", kOnConnectionClosedCases};

TEST_F(EventsByNumber, n226_onConnectionClosed_KelCall) { kc::kelCall(api, kNumber226); }
TEST_F(EventsByNumber, n226_onConnectionClosed_PyCall) { kc::pyCall(api, kNumber226); }
TEST_F(EventsByNumber, n226_onConnectionClosed_Failure) { kc::numberFailure(api, kNumber226); }

} // namespace
