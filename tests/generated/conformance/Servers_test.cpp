// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family Servers: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using Servers = kc::ConformanceTest;
using ServersByNumber = kc::ConformanceTest;
using ServersAdmission = kc::AdmissionTest;

// ---- startServer (position 4, number 4) ----

const kc::Case kStartServerCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 4.1\"]", "[\"Pr\303\274fstand \342\202\254 4.1\"]",
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 4.2\"",
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 4.2\"",
     "120000005072c3bc667374616e6420e282ac20342e31", "5072c3bc667374616e6420e282ac20342e3100",
     "[\"Pr\303\274fstand \342\202\254 4.1\"]", "[\"Pr\303\274fstand \342\202\254 4.1\"]",
     "0112000000e697a5e69cace8aa9e20f09d849e20342e32",
     "12000000e697a5e69cace8aa9e20f09d849e20342e32", 0},
    {"sparse", "[\"\"]", "[\"\"]", "\"\"", "\"\"", "00000000", "00", "[\"\"]", "[\"\"]",
     "0100000000", "00000000", 0},
};

struct StartServerExport {
    static constexpr const char* operation = "startServer";
    using Result = kc::TextResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kel_startServer(api, a0.get(), error, &out.data);
    }
};

TEST_F(Servers, startServer_Exchange) { kc::exchange<StartServerExport>(api, kStartServerCases); }
TEST_F(Servers, startServer_Failure) { kc::failure<StartServerExport>(api, kStartServerCases); }
TEST_F(ServersAdmission, startServer) {
    kc::admission<StartServerExport>(callers(), kStartServerCases, kc::Needs::Administrator);
}

const char* const kStartServerNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 4.1\\ud800\"]",
};
TEST_F(Servers, startServer_TextWithNoUtf8Form) {
    kc::noUtf8<StartServerExport>(api, kStartServerNoUtf8);
}

const kc::Number kNumber4{4, "startServer", kStartServerCases};

TEST_F(ServersByNumber, n4_startServer_KelCall) { kc::kelCall(api, kNumber4); }
TEST_F(ServersByNumber, n4_startServer_PyCall) { kc::pyCall(api, kNumber4); }
TEST_F(ServersByNumber, n4_startServer_Failure) { kc::numberFailure(api, kNumber4); }
TEST_F(ServersByNumber, n4_startServer_ShortInput) { kc::shortInput(api, kNumber4); }

// ---- stopServer (position 5, number 5) ----

const kc::Case kStopServerCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 5.1\"]", "[\"Pr\303\274fstand \342\202\254 5.1\"]",
     "null", nullptr, "120000005072c3bc667374616e6420e282ac20352e31",
     "5072c3bc667374616e6420e282ac20352e3100", "[\"Pr\303\274fstand \342\202\254 5.1\"]",
     "[\"Pr\303\274fstand \342\202\254 5.1\"]", "01", "", 0},
    {"sparse", "[\"\"]", "[\"\"]", "null", nullptr, "00000000", "00", "[\"\"]", "[\"\"]", "01", "",
     0},
};

struct StopServerExport {
    static constexpr const char* operation = "stopServer";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        static_cast<void>(out);
        kel_stopServer(api, a0.get(), error);
    }
};

TEST_F(Servers, stopServer_Exchange) { kc::exchange<StopServerExport>(api, kStopServerCases); }
TEST_F(Servers, stopServer_Failure) { kc::failure<StopServerExport>(api, kStopServerCases); }
TEST_F(ServersAdmission, stopServer) {
    kc::admission<StopServerExport>(callers(), kStopServerCases, kc::Needs::Administrator);
}

const char* const kStopServerNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 5.1\\ud800\"]",
};
TEST_F(Servers, stopServer_TextWithNoUtf8Form) {
    kc::noUtf8<StopServerExport>(api, kStopServerNoUtf8);
}

const kc::Number kNumber5{5, "stopServer", kStopServerCases};

TEST_F(ServersByNumber, n5_stopServer_KelCall) { kc::kelCall(api, kNumber5); }
TEST_F(ServersByNumber, n5_stopServer_PyCall) { kc::pyCall(api, kNumber5); }
TEST_F(ServersByNumber, n5_stopServer_Failure) { kc::numberFailure(api, kNumber5); }
TEST_F(ServersByNumber, n5_stopServer_ShortInput) { kc::shortInput(api, kNumber5); }

// ---- restartServer (position 6, number 6) ----

const kc::Case kRestartServerCases[] = {
    {"full", "[-2147483648]", "[-2147483648]", "null", nullptr, "00000080", "00000080",
     "[-2147483648]", "[-2147483648]", "01", "", 0},
};

struct RestartServerExport {
    static constexpr const char* operation = "restartServer";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_restartServer(api, kc::number<int32_t>(in[0]), error);
    }
};

TEST_F(Servers, restartServer_Exchange) {
    kc::exchange<RestartServerExport>(api, kRestartServerCases);
}
TEST_F(Servers, restartServer_Failure) {
    kc::failure<RestartServerExport>(api, kRestartServerCases);
}
TEST_F(ServersAdmission, restartServer) {
    kc::admission<RestartServerExport>(callers(), kRestartServerCases, kc::Needs::Administrator);
}

const kc::Number kNumber6{6, "restartServer", kRestartServerCases};

TEST_F(ServersByNumber, n6_restartServer_KelCall) { kc::kelCall(api, kNumber6); }
TEST_F(ServersByNumber, n6_restartServer_PyCall) { kc::pyCall(api, kNumber6); }
TEST_F(ServersByNumber, n6_restartServer_Failure) { kc::numberFailure(api, kNumber6); }
TEST_F(ServersByNumber, n6_restartServer_ShortInput) { kc::shortInput(api, kNumber6); }

// ---- connectRemoteServer (position 37, number 36) ----

const kc::Case kConnectRemoteServerCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 37.1\"]", "[\"Pr\303\274fstand \342\202\254 37.1\"]",
     nullptr, nullptr, "130000005072c3bc667374616e6420e282ac2033372e31",
     "5072c3bc667374616e6420e282ac2033372e3100", "[\"Pr\303\274fstand \342\202\254 37.1\"]",
     "[\"Pr\303\274fstand \342\202\254 37.1\"]", "01", "", 0},
    {"sparse", "[\"\"]", "[\"\"]", nullptr, nullptr, "00000000", "00", "[\"\"]", "[\"\"]", "01", "",
     0},
};

struct ConnectRemoteServerExport {
    static constexpr const char* operation = "connectRemoteServer";
    using Result = kc::EngineResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kel_connectRemoteServer(api, a0.get(), error, &out.data);
    }
};

TEST_F(Servers, connectRemoteServer_Failure) {
    kc::failure<ConnectRemoteServerExport>(api, kConnectRemoteServerCases);
}
TEST_F(ServersAdmission, connectRemoteServer) {
    kc::admission<ConnectRemoteServerExport>(callers(), kConnectRemoteServerCases,
                                             kc::Needs::Operator);
}

const char* const kConnectRemoteServerNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 37.1\\ud800\"]",
};
TEST_F(Servers, connectRemoteServer_TextWithNoUtf8Form) {
    kc::noUtf8<ConnectRemoteServerExport>(api, kConnectRemoteServerNoUtf8);
}

const kc::Number kNumber36{36, "connectRemoteServer", kConnectRemoteServerCases};

TEST_F(ServersByNumber, n36_connectRemoteServer_Failure) { kc::numberFailure(api, kNumber36); }
TEST_F(ServersByNumber, n36_connectRemoteServer_ShortInput) { kc::shortInput(api, kNumber36); }

// ---- disconnect (position 56, number 74) ----

const kc::Case kDisconnectCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct DisconnectExport {
    static constexpr const char* operation = "disconnect";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_disconnect(api, error);
    }
};

TEST_F(Servers, disconnect_Exchange) { kc::exchange<DisconnectExport>(api, kDisconnectCases); }
TEST_F(Servers, disconnect_Failure) { kc::failure<DisconnectExport>(api, kDisconnectCases); }
TEST_F(ServersAdmission, disconnect) {
    kc::admission<DisconnectExport>(callers(), kDisconnectCases, kc::Needs::Operator);
}

const kc::Number kNumber74{74, "disconnect", kDisconnectCases};

TEST_F(ServersByNumber, n74_disconnect_KelCall) { kc::kelCall(api, kNumber74); }
TEST_F(ServersByNumber, n74_disconnect_PyCall) { kc::pyCall(api, kNumber74); }
TEST_F(ServersByNumber, n74_disconnect_Failure) { kc::numberFailure(api, kNumber74); }

// ---- addUser (position 124, number 155) ----

const kc::Case kAddUserCases[] = {
    {"full",
     "[\"Pr\303\274fstand \342\202\254 124.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 124.2\",4294967295]",
     "[\"Pr\303\274fstand \342\202\254 124.1\",\"***\",4294967295]", "null", nullptr,
     "140000005072c3bc667374616e6420e282ac203132342e3114000000e697a5e69cace8aa9e20f09d849e2031"
     "32342e32ffffffff",
     "5072c3bc667374616e6420e282ac203132342e3100e697a5e69cace8aa9e20f09d849e203132342e3200ffff"
     "ffff",
     "[\"Pr\303\274fstand \342\202\254 124.1\",\"***\",4294967295]",
     "[\"Pr\303\274fstand \342\202\254 124.1\",\"***\",4294967295]", "01", "", 0},
    {"sparse", "[\"\",\"\",4294967295]", "[\"\",\"***\",4294967295]", "null", nullptr,
     "0000000000000000ffffffff", "0000ffffffff", "[\"\",\"***\",4294967295]",
     "[\"\",\"***\",4294967295]", "01", "", 0},
};

struct AddUserExport {
    static constexpr const char* operation = "addUser";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        const kc::Text a1(in[1]);
        static_cast<void>(out);
        kel_addUser(api, a0.get(), a1.get(), kc::number<uint32_t>(in[2]), error);
    }
};

TEST_F(Servers, addUser_Exchange) { kc::exchange<AddUserExport>(api, kAddUserCases); }
TEST_F(Servers, addUser_Failure) { kc::failure<AddUserExport>(api, kAddUserCases); }
TEST_F(ServersAdmission, addUser) {
    kc::admission<AddUserExport>(callers(), kAddUserCases, kc::Needs::Administrator);
}

const char* const kAddUserNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 124.1\\ud800\",\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 124.2\",4294967295]",
    "[\"Pr\303\274fstand \342\202\254 124.1\",\"\\udc00\346\227\245\346\234\254\350\252\236 "
    "\360\235\204\236 124.2\\ud800\",4294967295]",
};
TEST_F(Servers, addUser_TextWithNoUtf8Form) { kc::noUtf8<AddUserExport>(api, kAddUserNoUtf8); }

const kc::Number kNumber155{155, "addUser", kAddUserCases};

TEST_F(ServersByNumber, n155_addUser_KelCall) { kc::kelCall(api, kNumber155); }
TEST_F(ServersByNumber, n155_addUser_PyCall) { kc::pyCall(api, kNumber155); }
TEST_F(ServersByNumber, n155_addUser_Failure) { kc::numberFailure(api, kNumber155); }
TEST_F(ServersByNumber, n155_addUser_ShortInput) { kc::shortInput(api, kNumber155); }

// ---- removeUser (position 125, number 158) ----

const kc::Case kRemoveUserCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 125.1\"]",
     "[\"Pr\303\274fstand \342\202\254 125.1\"]", "null", nullptr,
     "140000005072c3bc667374616e6420e282ac203132352e31",
     "5072c3bc667374616e6420e282ac203132352e3100", "[\"Pr\303\274fstand \342\202\254 125.1\"]",
     "[\"Pr\303\274fstand \342\202\254 125.1\"]", "01", "", 0},
    {"sparse", "[\"\"]", "[\"\"]", "null", nullptr, "00000000", "00", "[\"\"]", "[\"\"]", "01", "",
     0},
};

struct RemoveUserExport {
    static constexpr const char* operation = "removeUser";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        static_cast<void>(out);
        kel_removeUser(api, a0.get(), error);
    }
};

TEST_F(Servers, removeUser_Exchange) { kc::exchange<RemoveUserExport>(api, kRemoveUserCases); }
TEST_F(Servers, removeUser_Failure) { kc::failure<RemoveUserExport>(api, kRemoveUserCases); }
TEST_F(ServersAdmission, removeUser) {
    kc::admission<RemoveUserExport>(callers(), kRemoveUserCases, kc::Needs::Administrator);
}

const char* const kRemoveUserNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 125.1\\ud800\"]",
};
TEST_F(Servers, removeUser_TextWithNoUtf8Form) {
    kc::noUtf8<RemoveUserExport>(api, kRemoveUserNoUtf8);
}

const kc::Number kNumber158{158, "removeUser", kRemoveUserCases};

TEST_F(ServersByNumber, n158_removeUser_KelCall) { kc::kelCall(api, kNumber158); }
TEST_F(ServersByNumber, n158_removeUser_PyCall) { kc::pyCall(api, kNumber158); }
TEST_F(ServersByNumber, n158_removeUser_Failure) { kc::numberFailure(api, kNumber158); }
TEST_F(ServersByNumber, n158_removeUser_ShortInput) { kc::shortInput(api, kNumber158); }

// ---- getUsers (position 126, number 160) ----

const kc::Case kGetUsersCases[] = {
    {"full", "[]", "[]",
     "[{\"name\":\"Pr\303\274fstand \342\202\254 126.1\",\"text\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 126.2\",\"value\":4294967295},{\"name\":\"K\303\274hler\\u"
     "0009\360\237\224\247 126.3\",\"text\":\"say \\\"\303\251\\\" 126.4\",\"value\":214748364"
     "8}]",
     "[{\"name\":\"Pr\303\274fstand \342\202\254 126.1\",\"text\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 126.2\",\"value\":4294967295},{\"name\":\"K\303\274hler\\u"
     "0009\360\237\224\247 126.3\",\"text\":\"say \\\"\303\251\\\" 126.4\",\"value\":214748364"
     "8}]",
     "", "", "[]", "[]",
     "010200000001140000005072c3bc667374616e6420e282ac203132362e3114000000e697a5e69cace8aa9e20"
     "f09d849e203132362e32ffffffff01120000004bc3bc686c657209f09f94a7203132362e330e000000736179"
     "2022c3a922203132362e3400000080",
     "0200000001140000005072c3bc667374616e6420e282ac203132362e3114000000e697a5e69cace8aa9e20f0"
     "9d849e203132362e32ffffffff01120000004bc3bc686c657209f09f94a7203132362e330e00000073617920"
     "22c3a922203132362e3400000080",
     0},
    {"sparse", "[]", "[]", "[{\"name\":\"\",\"text\":\"\",\"value\":4294967295},null]",
     "[{\"name\":\"\",\"text\":\"\",\"value\":4294967295},null]", "", "", "[]", "[]",
     "0102000000010000000000000000ffffffff00", "02000000010000000000000000ffffffff00", 0},
    {"empty", "[]", "[]", "[]", "null", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct GetUsersExport {
    static constexpr const char* operation = "getUsers";
    using Result = kc::ListResult<UserInfo, release_UserInfo_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getUsers(api, error, &out.data, &out.count);
    }
};

TEST_F(Servers, getUsers_Exchange) { kc::exchange<GetUsersExport>(api, kGetUsersCases); }
TEST_F(Servers, getUsers_Failure) { kc::failure<GetUsersExport>(api, kGetUsersCases); }
TEST_F(ServersAdmission, getUsers) {
    kc::admission<GetUsersExport>(callers(), kGetUsersCases, kc::Needs::Administrator);
}

const kc::Number kNumber160{160, "getUsers", kGetUsersCases};

TEST_F(ServersByNumber, n160_getUsers_KelCall) { kc::kelCall(api, kNumber160); }
TEST_F(ServersByNumber, n160_getUsers_PyCall) { kc::pyCall(api, kNumber160); }
TEST_F(ServersByNumber, n160_getUsers_Failure) { kc::numberFailure(api, kNumber160); }

// ---- logOut (position 127, number 159) ----

const kc::Case kLogOutCases[] = {
    {"full",
     "[{\"user\":\"Pr\303\274fstand \342\202\254 127.1\",\"password\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 127.2\"}]",
     "[{\"user\":\"Pr\303\274fstand \342\202\254 127.1\",\"password\":\"***\"}]", "null", nullptr,
     "140000005072c3bc667374616e6420e282ac203132372e3114000000e697a5e69cace8aa9e20f09d849e2031"
     "32372e32",
     "015072c3bc667374616e6420e282ac203132372e3100e697a5e69cace8aa9e20f09d849e203132372e3200",
     "[{\"user\":\"Pr\303\274fstand \342\202\254 127.1\",\"password\":\"***\"}]",
     "[{\"user\":\"Pr\303\274fstand \342\202\254 127.1\",\"password\":\"***\"}]", "01", "", 0},
    {"sparse", "[null]", "[null]", "null", nullptr, "0000000000000000", "00",
     "[{\"user\":\"\",\"password\":\"***\"}]", "[null]", "01", "", 0},
};

struct LogOutExport {
    static constexpr const char* operation = "logOut";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_logOut(api, kc::record<LogInOutConfig>(in[0]), error);
    }
};

TEST_F(Servers, logOut_Exchange) { kc::exchange<LogOutExport>(api, kLogOutCases); }
TEST_F(Servers, logOut_Failure) { kc::failure<LogOutExport>(api, kLogOutCases); }
TEST_F(ServersAdmission, logOut) {
    kc::admission<LogOutExport>(callers(), kLogOutCases, kc::Needs::Operator);
}

const char* const kLogOutNoUtf8[] = {
    "[{\"user\":\"\\udc00Pr\303\274fstand \342\202\254 127.1\\ud800\",\"password\":\"\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 127.2\"}]",
    "[{\"user\":\"Pr\303\274fstand \342\202\254 127.1\",\"password\":\"\\udc00\346\227\245"
    "\346\234\254\350\252\236 \360\235\204\236 127.2\\ud800\"}]",
};
TEST_F(Servers, logOut_TextWithNoUtf8Form) { kc::noUtf8<LogOutExport>(api, kLogOutNoUtf8); }

const kc::Number kNumber159{159, "logOut", kLogOutCases};

TEST_F(ServersByNumber, n159_logOut_KelCall) { kc::kelCall(api, kNumber159); }
TEST_F(ServersByNumber, n159_logOut_PyCall) { kc::pyCall(api, kNumber159); }
TEST_F(ServersByNumber, n159_logOut_Failure) { kc::numberFailure(api, kNumber159); }
TEST_F(ServersByNumber, n159_logOut_ShortInput) { kc::shortInput(api, kNumber159); }

// ---- updateUser (position 128, number 161) ----

const kc::Case kUpdateUserCases[] = {
    {"full",
     "[\"Pr\303\274fstand \342\202\254 128.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 128.2\",\"K\303\274hler\\u0009\360\237\224\247 128.3\",4294967295]",
     "[\"Pr\303\274fstand \342\202\254 128.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 128.2\",\"***\",4294967295]",
     "null", nullptr,
     "140000005072c3bc667374616e6420e282ac203132382e3114000000e697a5e69cace8aa9e20f09d849e2031"
     "32382e32120000004bc3bc686c657209f09f94a7203132382e33ffffffff",
     "5072c3bc667374616e6420e282ac203132382e3100e697a5e69cace8aa9e20f09d849e203132382e32004bc3"
     "bc686c657209f09f94a7203132382e3300ffffffff",
     "[\"Pr\303\274fstand \342\202\254 128.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 128.2\",\"***\",4294967295]",
     "[\"Pr\303\274fstand \342\202\254 128.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 128.2\",\"***\",4294967295]",
     "01", "", 0},
    {"sparse", "[\"\",\"\",\"\",4294967295]", "[\"\",\"\",\"***\",4294967295]", "null", nullptr,
     "000000000000000000000000ffffffff", "000000ffffffff", "[\"\",\"\",\"***\",4294967295]",
     "[\"\",\"\",\"***\",4294967295]", "01", "", 0},
};

struct UpdateUserExport {
    static constexpr const char* operation = "updateUser";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        const kc::Text a1(in[1]);
        const kc::Text a2(in[2]);
        static_cast<void>(out);
        kel_updateUser(api, a0.get(), a1.get(), a2.get(), kc::number<uint32_t>(in[3]), error);
    }
};

TEST_F(Servers, updateUser_Exchange) { kc::exchange<UpdateUserExport>(api, kUpdateUserCases); }
TEST_F(Servers, updateUser_Failure) { kc::failure<UpdateUserExport>(api, kUpdateUserCases); }
TEST_F(ServersAdmission, updateUser) {
    kc::admission<UpdateUserExport>(callers(), kUpdateUserCases, kc::Needs::Administrator);
}

const char* const kUpdateUserNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 128.1\\ud800\",\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 128.2\",\"K\303\274hler\\t\360\237\224\247 128.3\",4294967295]",
    "[\"Pr\303\274fstand \342\202\254 128.1\",\"\\udc00\346\227\245\346\234\254\350\252\236 "
    "\360\235\204\236 128.2\\ud800\",\"K\303\274hler\\t\360\237\224\247 128.3\",4294967295]",
    "[\"Pr\303\274fstand \342\202\254 128.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
    "\204\236 128.2\",\"\\udc00K\303\274hler\\t\360\237\224\247 128.3\\ud800\",4294967295]",
};
TEST_F(Servers, updateUser_TextWithNoUtf8Form) {
    kc::noUtf8<UpdateUserExport>(api, kUpdateUserNoUtf8);
}

const kc::Number kNumber161{161, "updateUser", kUpdateUserCases};

TEST_F(ServersByNumber, n161_updateUser_KelCall) { kc::kelCall(api, kNumber161); }
TEST_F(ServersByNumber, n161_updateUser_PyCall) { kc::pyCall(api, kNumber161); }
TEST_F(ServersByNumber, n161_updateUser_Failure) { kc::numberFailure(api, kNumber161); }
TEST_F(ServersByNumber, n161_updateUser_ShortInput) { kc::shortInput(api, kNumber161); }

// ---- getServerUserManagement (position 129, number 138) ----

const kc::Case kGetServerUserManagementCases[] = {
    {"full", "[]", "[]", "true", "1", "", "", "[]", "[]", "0101", "01", 0},
};

struct GetServerUserManagementExport {
    static constexpr const char* operation = "getServerUserManagement";
    using Result = kc::ValueResult<uint8_t>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getServerUserManagement(api, error, &out.data);
    }
};

TEST_F(Servers, getServerUserManagement_Exchange) {
    kc::exchange<GetServerUserManagementExport>(api, kGetServerUserManagementCases);
}
TEST_F(Servers, getServerUserManagement_Failure) {
    kc::failure<GetServerUserManagementExport>(api, kGetServerUserManagementCases);
}
TEST_F(ServersAdmission, getServerUserManagement) {
    kc::admission<GetServerUserManagementExport>(callers(), kGetServerUserManagementCases,
                                                 kc::Needs::Anyone);
}

const kc::Number kNumber138{138, "getServerUserManagement", kGetServerUserManagementCases};

TEST_F(ServersByNumber, n138_getServerUserManagement_KelCall) { kc::kelCall(api, kNumber138); }
TEST_F(ServersByNumber, n138_getServerUserManagement_PyCall) { kc::pyCall(api, kNumber138); }
TEST_F(ServersByNumber, n138_getServerUserManagement_Failure) {
    kc::numberFailure(api, kNumber138);
}

// ---- setServerUserManagement (position 130, number 156) ----

const kc::Case kSetServerUserManagementCases[] = {
    {"full", "[128]", "[true]", "null", nullptr, "01", "01", "[true]", "[true]", "01", "", 0},
};

struct SetServerUserManagementExport {
    static constexpr const char* operation = "setServerUserManagement";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_setServerUserManagement(api, kc::number<uint8_t>(in[0]), error);
    }
};

TEST_F(Servers, setServerUserManagement_Exchange) {
    kc::exchange<SetServerUserManagementExport>(api, kSetServerUserManagementCases);
}
TEST_F(Servers, setServerUserManagement_Failure) {
    kc::failure<SetServerUserManagementExport>(api, kSetServerUserManagementCases);
}
TEST_F(ServersAdmission, setServerUserManagement) {
    kc::admission<SetServerUserManagementExport>(callers(), kSetServerUserManagementCases,
                                                 kc::Needs::Administrator);
}

const kc::Number kNumber156{156, "setServerUserManagement", kSetServerUserManagementCases};

TEST_F(ServersByNumber, n156_setServerUserManagement_KelCall) { kc::kelCall(api, kNumber156); }
TEST_F(ServersByNumber, n156_setServerUserManagement_PyCall) { kc::pyCall(api, kNumber156); }
TEST_F(ServersByNumber, n156_setServerUserManagement_Failure) {
    kc::numberFailure(api, kNumber156);
}
TEST_F(ServersByNumber, n156_setServerUserManagement_ShortInput) {
    kc::shortInput(api, kNumber156);
}

// ---- disconnectAllClients (position 133, number 162) ----

const kc::Case kDisconnectAllClientsCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct DisconnectAllClientsExport {
    static constexpr const char* operation = "disconnectAllClients";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_disconnectAllClients(api, error);
    }
};

TEST_F(Servers, disconnectAllClients_Exchange) {
    kc::exchange<DisconnectAllClientsExport>(api, kDisconnectAllClientsCases);
}
TEST_F(Servers, disconnectAllClients_Failure) {
    kc::failure<DisconnectAllClientsExport>(api, kDisconnectAllClientsCases);
}
TEST_F(ServersAdmission, disconnectAllClients) {
    kc::admission<DisconnectAllClientsExport>(callers(), kDisconnectAllClientsCases,
                                              kc::Needs::Administrator);
}

const kc::Number kNumber162{162, "disconnectAllClients", kDisconnectAllClientsCases};

TEST_F(ServersByNumber, n162_disconnectAllClients_KelCall) { kc::kelCall(api, kNumber162); }
TEST_F(ServersByNumber, n162_disconnectAllClients_PyCall) { kc::pyCall(api, kNumber162); }
TEST_F(ServersByNumber, n162_disconnectAllClients_Failure) { kc::numberFailure(api, kNumber162); }

// ---- reconnectRemoteServer (position 172, number 199) ----

const kc::Case kReconnectRemoteServerCases[] = {
    {"full", "[9223372036854775809]", "[9223372036854775809]", "true", "1", "0100000000000080",
     "0100000000000080", "[9223372036854775809]", "[9223372036854775809]", "0101", "01", 0},
};

struct ReconnectRemoteServerExport {
    static constexpr const char* operation = "reconnectRemoteServer";
    using Result = kc::ValueResult<uint8_t>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kel_reconnectRemoteServer(api, kc::number<uint64_t>(in[0]), error, &out.data);
    }
};

TEST_F(Servers, reconnectRemoteServer_Exchange) {
    kc::exchange<ReconnectRemoteServerExport>(api, kReconnectRemoteServerCases);
}
TEST_F(Servers, reconnectRemoteServer_Failure) {
    kc::failure<ReconnectRemoteServerExport>(api, kReconnectRemoteServerCases);
}
TEST_F(ServersAdmission, reconnectRemoteServer) {
    kc::admission<ReconnectRemoteServerExport>(callers(), kReconnectRemoteServerCases,
                                               kc::Needs::Operator);
}

const kc::Number kNumber199{199, "reconnectRemoteServer", kReconnectRemoteServerCases};

TEST_F(ServersByNumber, n199_reconnectRemoteServer_KelCall) { kc::kelCall(api, kNumber199); }
TEST_F(ServersByNumber, n199_reconnectRemoteServer_PyCall) { kc::pyCall(api, kNumber199); }
TEST_F(ServersByNumber, n199_reconnectRemoteServer_Failure) { kc::numberFailure(api, kNumber199); }
TEST_F(ServersByNumber, n199_reconnectRemoteServer_ShortInput) { kc::shortInput(api, kNumber199); }

// ---- thirdPartyLogin (position 213, number 244) ----

const kc::Case kThirdPartyLoginCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 213.1\"]", "[\"***\"]", "true", "1",
     "140000005072c3bc667374616e6420e282ac203231332e31",
     "5072c3bc667374616e6420e282ac203231332e3100", "[\"***\"]", "[\"***\"]", "0101", "01", 0},
    {"sparse", "[\"\"]", "[\"***\"]", "true", "1", "00000000", "00", "[\"***\"]", "[\"***\"]",
     "0101", "01", 0},
};

struct ThirdPartyLoginExport {
    static constexpr const char* operation = "thirdPartyLogin";
    using Result = kc::ValueResult<uint8_t>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kel_thirdPartyLogin(api, a0.get(), error, &out.data);
    }
};

TEST_F(Servers, thirdPartyLogin_Exchange) {
    kc::exchange<ThirdPartyLoginExport>(api, kThirdPartyLoginCases);
}
TEST_F(Servers, thirdPartyLogin_Failure) {
    kc::failure<ThirdPartyLoginExport>(api, kThirdPartyLoginCases);
}
TEST_F(ServersAdmission, thirdPartyLogin) {
    kc::admission<ThirdPartyLoginExport>(callers(), kThirdPartyLoginCases, kc::Needs::Anyone);
}

const char* const kThirdPartyLoginNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 213.1\\ud800\"]",
};
TEST_F(Servers, thirdPartyLogin_TextWithNoUtf8Form) {
    kc::noUtf8<ThirdPartyLoginExport>(api, kThirdPartyLoginNoUtf8);
}

const kc::Number kNumber244{244, "thirdPartyLogin", kThirdPartyLoginCases};

TEST_F(ServersByNumber, n244_thirdPartyLogin_KelCall) { kc::kelCall(api, kNumber244); }
TEST_F(ServersByNumber, n244_thirdPartyLogin_PyCall) { kc::pyCall(api, kNumber244); }
TEST_F(ServersByNumber, n244_thirdPartyLogin_Failure) { kc::numberFailure(api, kNumber244); }
TEST_F(ServersByNumber, n244_thirdPartyLogin_ShortInput) { kc::shortInput(api, kNumber244); }

// ---- getThirdPartyLoginUrl (position 215, number 253) ----

const kc::Case kGetThirdPartyLoginUrlCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 215.1\"]",
     "[\"Pr\303\274fstand \342\202\254 215.1\"]",
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 215.2\"",
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 215.2\"",
     "140000005072c3bc667374616e6420e282ac203231352e31",
     "5072c3bc667374616e6420e282ac203231352e3100", "[\"Pr\303\274fstand \342\202\254 215.1\"]",
     "[\"Pr\303\274fstand \342\202\254 215.1\"]",
     "0114000000e697a5e69cace8aa9e20f09d849e203231352e32",
     "14000000e697a5e69cace8aa9e20f09d849e203231352e32", 0},
    {"sparse", "[\"\"]", "[\"\"]", "\"\"", "\"\"", "00000000", "00", "[\"\"]", "[\"\"]",
     "0100000000", "00000000", 0},
};

struct GetThirdPartyLoginUrlExport {
    static constexpr const char* operation = "getThirdPartyLoginUrl";
    using Result = kc::TextResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kel_getThirdPartyLoginUrl(api, a0.get(), error, &out.data);
    }
};

TEST_F(Servers, getThirdPartyLoginUrl_Exchange) {
    kc::exchange<GetThirdPartyLoginUrlExport>(api, kGetThirdPartyLoginUrlCases);
}
TEST_F(Servers, getThirdPartyLoginUrl_Failure) {
    kc::failure<GetThirdPartyLoginUrlExport>(api, kGetThirdPartyLoginUrlCases);
}
TEST_F(ServersAdmission, getThirdPartyLoginUrl) {
    kc::admission<GetThirdPartyLoginUrlExport>(callers(), kGetThirdPartyLoginUrlCases,
                                               kc::Needs::Anyone);
}

const char* const kGetThirdPartyLoginUrlNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 215.1\\ud800\"]",
};
TEST_F(Servers, getThirdPartyLoginUrl_TextWithNoUtf8Form) {
    kc::noUtf8<GetThirdPartyLoginUrlExport>(api, kGetThirdPartyLoginUrlNoUtf8);
}

const kc::Number kNumber253{253, "getThirdPartyLoginUrl", kGetThirdPartyLoginUrlCases};

TEST_F(ServersByNumber, n253_getThirdPartyLoginUrl_KelCall) { kc::kelCall(api, kNumber253); }
TEST_F(ServersByNumber, n253_getThirdPartyLoginUrl_PyCall) { kc::pyCall(api, kNumber253); }
TEST_F(ServersByNumber, n253_getThirdPartyLoginUrl_Failure) { kc::numberFailure(api, kNumber253); }
TEST_F(ServersByNumber, n253_getThirdPartyLoginUrl_ShortInput) { kc::shortInput(api, kNumber253); }

// ---- getCertificateByPublicKey (position 217, number 247) ----

const kc::Case kGetCertificateByPublicKeyCases[] = {
    {"full",
     "[\"Pr\303\274fstand \342\202\254 217.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 217.2\",\"K\303\274hler\\u0009\360\237\224\247 217.3\",\"say \\\"\303\251\\\" 2"
     "17.4\"]",
     "[\"Pr\303\274fstand \342\202\254 217.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 217.2\",\"K\303\274hler\\u0009\360\237\224\247 217.3\",\"say \\\"\303\251\\\" 2"
     "17.4\"]",
     "\"back\\\\slash \303\237 217.5\"", "\"back\\\\slash \303\237 217.5\"",
     "140000005072c3bc667374616e6420e282ac203231372e3114000000e697a5e69cace8aa9e20f09d849e2032"
     "31372e32120000004bc3bc686c657209f09f94a7203231372e330e0000007361792022c3a922203231372e34",
     "5072c3bc667374616e6420e282ac203231372e3100e697a5e69cace8aa9e20f09d849e203231372e32004bc3"
     "bc686c657209f09f94a7203231372e33007361792022c3a922203231372e3400",
     "[\"Pr\303\274fstand \342\202\254 217.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 217.2\",\"K\303\274hler\\u0009\360\237\224\247 217.3\",\"say \\\"\303\251\\\" 2"
     "17.4\"]",
     "[\"Pr\303\274fstand \342\202\254 217.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 217.2\",\"K\303\274hler\\u0009\360\237\224\247 217.3\",\"say \\\"\303\251\\\" 2"
     "17.4\"]",
     "01130000006261636b5c736c61736820c39f203231372e35",
     "130000006261636b5c736c61736820c39f203231372e35", 0},
    {"sparse", "[\"\",\"\",\"\",\"\"]", "[\"\",\"\",\"\",\"\"]", "\"\"", "\"\"",
     "00000000000000000000000000000000", "00000000", "[\"\",\"\",\"\",\"\"]",
     "[\"\",\"\",\"\",\"\"]", "0100000000", "00000000", 0},
};

struct GetCertificateByPublicKeyExport {
    static constexpr const char* operation = "getCertificateByPublicKey";
    using Result = kc::TextResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        const kc::Text a1(in[1]);
        const kc::Text a2(in[2]);
        const kc::Text a3(in[3]);
        kel_getCertificateByPublicKey(api, a0.get(), a1.get(), a2.get(), a3.get(), error,
                                      &out.data);
    }
};

TEST_F(Servers, getCertificateByPublicKey_Exchange) {
    kc::exchange<GetCertificateByPublicKeyExport>(api, kGetCertificateByPublicKeyCases);
}
TEST_F(Servers, getCertificateByPublicKey_Failure) {
    kc::failure<GetCertificateByPublicKeyExport>(api, kGetCertificateByPublicKeyCases);
}
TEST_F(ServersAdmission, getCertificateByPublicKey) {
    kc::admission<GetCertificateByPublicKeyExport>(callers(), kGetCertificateByPublicKeyCases,
                                                   kc::Needs::Operator);
}

const char* const kGetCertificateByPublicKeyNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 217.1\\ud800\",\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 217.2\",\"K\303\274hler\\t\360\237\224\247 217.3\",\"say \\\""
    "\303\251\\\" 217.4\"]",
    "[\"Pr\303\274fstand \342\202\254 217.1\",\"\\udc00\346\227\245\346\234\254\350\252\236 "
    "\360\235\204\236 217.2\\ud800\",\"K\303\274hler\\t\360\237\224\247 217.3\",\"say \\\""
    "\303\251\\\" 217.4\"]",
    "[\"Pr\303\274fstand \342\202\254 217.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
    "\204\236 217.2\",\"\\udc00K\303\274hler\\t\360\237\224\247 217.3\\ud800\",\"say \\\"\303"
    "\251\\\" 217.4\"]",
    "[\"Pr\303\274fstand \342\202\254 217.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
    "\204\236 217.2\",\"K\303\274hler\\t\360\237\224\247 217.3\",\"\\udc00say \\\"\303\251\\"
    "\" 217.4\\ud800\"]",
};
TEST_F(Servers, getCertificateByPublicKey_TextWithNoUtf8Form) {
    kc::noUtf8<GetCertificateByPublicKeyExport>(api, kGetCertificateByPublicKeyNoUtf8);
}

const kc::Number kNumber247{247, "getCertificateByPublicKey", kGetCertificateByPublicKeyCases};

TEST_F(ServersByNumber, n247_getCertificateByPublicKey_KelCall) { kc::kelCall(api, kNumber247); }
TEST_F(ServersByNumber, n247_getCertificateByPublicKey_PyCall) { kc::pyCall(api, kNumber247); }
TEST_F(ServersByNumber, n247_getCertificateByPublicKey_Failure) {
    kc::numberFailure(api, kNumber247);
}
TEST_F(ServersByNumber, n247_getCertificateByPublicKey_ShortInput) {
    kc::shortInput(api, kNumber247);
}

// ---- createCertificateFromCSR (position 218, number 248) ----

const kc::Case kCreateCertificateFromCSRCases[] = {
    {"full",
     "[\"Pr\303\274fstand \342\202\254 218.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 218.2\",\"K\303\274hler\\u0009\360\237\224\247 218.3\",\"say \\\"\303\251\\\" 2"
     "18.4\",\"back\\\\slash \303\237 218.5\",\"Z\303\274ndung \360\237\232\227 218.6\"]",
     "[\"Pr\303\274fstand \342\202\254 218.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 218.2\",\"K\303\274hler\\u0009\360\237\224\247 218.3\",\"say \\\"\303\251\\\" 2"
     "18.4\",\"back\\\\slash \303\237 218.5\",\"Z\303\274ndung \360\237\232\227 218.6\"]",
     "\"Pr\303\274fstand \342\202\254 218.7\"", "\"Pr\303\274fstand \342\202\254 218.7\"",
     "140000005072c3bc667374616e6420e282ac203231382e3114000000e697a5e69cace8aa9e20f09d849e2032"
     "31382e32120000004bc3bc686c657209f09f94a7203231382e330e0000007361792022c3a922203231382e34"
     "130000006261636b5c736c61736820c39f203231382e35130000005ac3bc6e64756e6720f09f9a9720323138"
     "2e36",
     "5072c3bc667374616e6420e282ac203231382e3100e697a5e69cace8aa9e20f09d849e203231382e32004bc3"
     "bc686c657209f09f94a7203231382e33007361792022c3a922203231382e34006261636b5c736c61736820c3"
     "9f203231382e35005ac3bc6e64756e6720f09f9a97203231382e3600",
     "[\"Pr\303\274fstand \342\202\254 218.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 218.2\",\"K\303\274hler\\u0009\360\237\224\247 218.3\",\"say \\\"\303\251\\\" 2"
     "18.4\",\"back\\\\slash \303\237 218.5\",\"Z\303\274ndung \360\237\232\227 218.6\"]",
     "[\"Pr\303\274fstand \342\202\254 218.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 218.2\",\"K\303\274hler\\u0009\360\237\224\247 218.3\",\"say \\\"\303\251\\\" 2"
     "18.4\",\"back\\\\slash \303\237 218.5\",\"Z\303\274ndung \360\237\232\227 218.6\"]",
     "01140000005072c3bc667374616e6420e282ac203231382e37",
     "140000005072c3bc667374616e6420e282ac203231382e37", 0},
    {"sparse", "[\"\",\"\",\"\",\"\",\"\",\"\"]", "[\"\",\"\",\"\",\"\",\"\",\"\"]", "\"\"", "\"\"",
     "000000000000000000000000000000000000000000000000", "000000000000",
     "[\"\",\"\",\"\",\"\",\"\",\"\"]", "[\"\",\"\",\"\",\"\",\"\",\"\"]", "0100000000", "00000000",
     0},
};

struct CreateCertificateFromCSRExport {
    static constexpr const char* operation = "createCertificateFromCSR";
    using Result = kc::TextResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        const kc::Text a1(in[1]);
        const kc::Text a2(in[2]);
        const kc::Text a3(in[3]);
        const kc::Text a4(in[4]);
        const kc::Text a5(in[5]);
        kel_createCertificateFromCSR(api, a0.get(), a1.get(), a2.get(), a3.get(), a4.get(),
                                     a5.get(), error, &out.data);
    }
};

TEST_F(Servers, createCertificateFromCSR_Exchange) {
    kc::exchange<CreateCertificateFromCSRExport>(api, kCreateCertificateFromCSRCases);
}
TEST_F(Servers, createCertificateFromCSR_Failure) {
    kc::failure<CreateCertificateFromCSRExport>(api, kCreateCertificateFromCSRCases);
}
TEST_F(ServersAdmission, createCertificateFromCSR) {
    kc::admission<CreateCertificateFromCSRExport>(callers(), kCreateCertificateFromCSRCases,
                                                  kc::Needs::Administrator);
}

const char* const kCreateCertificateFromCSRNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 218.1\\ud800\",\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 218.2\",\"K\303\274hler\\t\360\237\224\247 218.3\",\"say \\\""
    "\303\251\\\" 218.4\",\"back\\\\slash \303\237 218.5\",\"Z\303\274ndung \360\237\232\227 "
    "218.6\"]",
    "[\"Pr\303\274fstand \342\202\254 218.1\",\"\\udc00\346\227\245\346\234\254\350\252\236 "
    "\360\235\204\236 218.2\\ud800\",\"K\303\274hler\\t\360\237\224\247 218.3\",\"say \\\""
    "\303\251\\\" 218.4\",\"back\\\\slash \303\237 218.5\",\"Z\303\274ndung \360\237\232\227 "
    "218.6\"]",
    "[\"Pr\303\274fstand \342\202\254 218.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
    "\204\236 218.2\",\"\\udc00K\303\274hler\\t\360\237\224\247 218.3\\ud800\",\"say \\\"\303"
    "\251\\\" 218.4\",\"back\\\\slash \303\237 218.5\",\"Z\303\274ndung \360\237\232\227 218."
    "6\"]",
    "[\"Pr\303\274fstand \342\202\254 218.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
    "\204\236 218.2\",\"K\303\274hler\\t\360\237\224\247 218.3\",\"\\udc00say \\\"\303\251\\"
    "\" 218.4\\ud800\",\"back\\\\slash \303\237 218.5\",\"Z\303\274ndung \360\237\232\227 218"
    ".6\"]",
    "[\"Pr\303\274fstand \342\202\254 218.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
    "\204\236 218.2\",\"K\303\274hler\\t\360\237\224\247 218.3\",\"say \\\"\303\251\\\" 218.4"
    "\",\"\\udc00back\\\\slash \303\237 218.5\\ud800\",\"Z\303\274ndung \360\237\232\227 218."
    "6\"]",
    "[\"Pr\303\274fstand \342\202\254 218.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
    "\204\236 218.2\",\"K\303\274hler\\t\360\237\224\247 218.3\",\"say \\\"\303\251\\\" 218.4"
    "\",\"back\\\\slash \303\237 218.5\",\"\\udc00Z\303\274ndung \360\237\232\227 218.6\\ud80"
    "0\"]",
};
TEST_F(Servers, createCertificateFromCSR_TextWithNoUtf8Form) {
    kc::noUtf8<CreateCertificateFromCSRExport>(api, kCreateCertificateFromCSRNoUtf8);
}

const kc::Number kNumber248{248, "createCertificateFromCSR", kCreateCertificateFromCSRCases};

TEST_F(ServersByNumber, n248_createCertificateFromCSR_KelCall) { kc::kelCall(api, kNumber248); }
TEST_F(ServersByNumber, n248_createCertificateFromCSR_PyCall) { kc::pyCall(api, kNumber248); }
TEST_F(ServersByNumber, n248_createCertificateFromCSR_Failure) {
    kc::numberFailure(api, kNumber248);
}
TEST_F(ServersByNumber, n248_createCertificateFromCSR_ShortInput) {
    kc::shortInput(api, kNumber248);
}

// ---- getCertificateChainById (position 219, number 249) ----

const kc::Case kGetCertificateChainByIdCases[] = {
    {"full",
     "[\"Pr\303\274fstand \342\202\254 219.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 219.2\",\"K\303\274hler\\u0009\360\237\224\247 219.3\"]",
     "[\"Pr\303\274fstand \342\202\254 219.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 219.2\",\"K\303\274hler\\u0009\360\237\224\247 219.3\"]",
     "[\"say \\\"\303\251\\\" 219.4\",\"\",\"back\\\\slash \303\237 219.5\"]",
     "[\"say \\\"\303\251\\\" 219.4\",\"\",\"back\\\\slash \303\237 219.5\"]",
     "140000005072c3bc667374616e6420e282ac203231392e3114000000e697a5e69cace8aa9e20f09d849e2032"
     "31392e32120000004bc3bc686c657209f09f94a7203231392e33",
     "5072c3bc667374616e6420e282ac203231392e3100e697a5e69cace8aa9e20f09d849e203231392e32004bc3"
     "bc686c657209f09f94a7203231392e3300",
     "[\"Pr\303\274fstand \342\202\254 219.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 219.2\",\"K\303\274hler\\u0009\360\237\224\247 219.3\"]",
     "[\"Pr\303\274fstand \342\202\254 219.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 219.2\",\"K\303\274hler\\u0009\360\237\224\247 219.3\"]",
     "01030000000e0000007361792022c3a922203231392e3400000000130000006261636b5c736c61736820c39f"
     "203231392e35",
     "030000000e0000007361792022c3a922203231392e3400000000130000006261636b5c736c61736820c39f20"
     "3231392e35",
     0},
    {"sparse", "[\"\",\"\",\"\"]", "[\"\",\"\",\"\"]",
     "[\"Pr\303\274fstand \342\202\254 219.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 219.2\"]",
     "[\"Pr\303\274fstand \342\202\254 219.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 219.2\"]",
     "000000000000000000000000", "000000", "[\"\",\"\",\"\"]", "[\"\",\"\",\"\"]",
     "0103000000140000005072c3bc667374616e6420e282ac203231392e310000000014000000e697a5e69cace8"
     "aa9e20f09d849e203231392e32",
     "03000000140000005072c3bc667374616e6420e282ac203231392e310000000014000000e697a5e69cace8aa"
     "9e20f09d849e203231392e32",
     0},
    {"empty", "[\"\",\"\",\"\"]", "[\"\",\"\",\"\"]", "[]", "null", "000000000000000000000000",
     "000000", "[\"\",\"\",\"\"]", "[\"\",\"\",\"\"]", "0100000000", "00000000", 0},
};

struct GetCertificateChainByIdExport {
    static constexpr const char* operation = "getCertificateChainById";
    using Result = kc::TextsResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        const kc::Text a1(in[1]);
        const kc::Text a2(in[2]);
        kel_getCertificateChainById(api, a0.get(), a1.get(), a2.get(), error, &out.data,
                                    &out.count);
    }
};

TEST_F(Servers, getCertificateChainById_Exchange) {
    kc::exchange<GetCertificateChainByIdExport>(api, kGetCertificateChainByIdCases);
}
TEST_F(Servers, getCertificateChainById_Failure) {
    kc::failure<GetCertificateChainByIdExport>(api, kGetCertificateChainByIdCases);
}
TEST_F(ServersAdmission, getCertificateChainById) {
    kc::admission<GetCertificateChainByIdExport>(callers(), kGetCertificateChainByIdCases,
                                                 kc::Needs::Operator);
}

const char* const kGetCertificateChainByIdNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 219.1\\ud800\",\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 219.2\",\"K\303\274hler\\t\360\237\224\247 219.3\"]",
    "[\"Pr\303\274fstand \342\202\254 219.1\",\"\\udc00\346\227\245\346\234\254\350\252\236 "
    "\360\235\204\236 219.2\\ud800\",\"K\303\274hler\\t\360\237\224\247 219.3\"]",
    "[\"Pr\303\274fstand \342\202\254 219.1\",\"\346\227\245\346\234\254\350\252\236 \360\235"
    "\204\236 219.2\",\"\\udc00K\303\274hler\\t\360\237\224\247 219.3\\ud800\"]",
};
TEST_F(Servers, getCertificateChainById_TextWithNoUtf8Form) {
    kc::noUtf8<GetCertificateChainByIdExport>(api, kGetCertificateChainByIdNoUtf8);
}

const kc::Number kNumber249{249, "getCertificateChainById", kGetCertificateChainByIdCases};

TEST_F(ServersByNumber, n249_getCertificateChainById_KelCall) { kc::kelCall(api, kNumber249); }
TEST_F(ServersByNumber, n249_getCertificateChainById_PyCall) { kc::pyCall(api, kNumber249); }
TEST_F(ServersByNumber, n249_getCertificateChainById_Failure) {
    kc::numberFailure(api, kNumber249);
}
TEST_F(ServersByNumber, n249_getCertificateChainById_ShortInput) {
    kc::shortInput(api, kNumber249);
}

// ---- startSOVDServer (position 237, number 259) ----

const kc::Case kStartSOVDServerCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct StartSOVDServerExport {
    static constexpr const char* operation = "startSOVDServer";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_startSOVDServer(api, error);
    }
};

TEST_F(Servers, startSOVDServer_Exchange) {
    kc::exchange<StartSOVDServerExport>(api, kStartSOVDServerCases);
}
TEST_F(Servers, startSOVDServer_Failure) {
    kc::failure<StartSOVDServerExport>(api, kStartSOVDServerCases);
}
TEST_F(ServersAdmission, startSOVDServer) {
    kc::admission<StartSOVDServerExport>(callers(), kStartSOVDServerCases,
                                         kc::Needs::Administrator);
}

const kc::Number kNumber259{259, "startSOVDServer", kStartSOVDServerCases};

TEST_F(ServersByNumber, n259_startSOVDServer_KelCall) { kc::kelCall(api, kNumber259); }
TEST_F(ServersByNumber, n259_startSOVDServer_PyCall) { kc::pyCall(api, kNumber259); }
TEST_F(ServersByNumber, n259_startSOVDServer_Failure) { kc::numberFailure(api, kNumber259); }

// ---- stopSOVDServer (position 238, number 280) ----

const kc::Case kStopSOVDServerCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct StopSOVDServerExport {
    static constexpr const char* operation = "stopSOVDServer";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_stopSOVDServer(api, error);
    }
};

TEST_F(Servers, stopSOVDServer_Exchange) {
    kc::exchange<StopSOVDServerExport>(api, kStopSOVDServerCases);
}
TEST_F(Servers, stopSOVDServer_Failure) {
    kc::failure<StopSOVDServerExport>(api, kStopSOVDServerCases);
}
TEST_F(ServersAdmission, stopSOVDServer) {
    kc::admission<StopSOVDServerExport>(callers(), kStopSOVDServerCases, kc::Needs::Administrator);
}

const kc::Number kNumber280{280, "stopSOVDServer", kStopSOVDServerCases};

TEST_F(ServersByNumber, n280_stopSOVDServer_KelCall) { kc::kelCall(api, kNumber280); }
TEST_F(ServersByNumber, n280_stopSOVDServer_PyCall) { kc::pyCall(api, kNumber280); }
TEST_F(ServersByNumber, n280_stopSOVDServer_Failure) { kc::numberFailure(api, kNumber280); }

// ---- logIn (position 239, number 216) ----

const kc::Case kLogInCases[] = {
    {"full",
     "[{\"user\":\"Pr\303\274fstand \342\202\254 239.1\",\"password\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 239.2\"}]",
     "[{\"user\":\"Pr\303\274fstand \342\202\254 239.1\",\"password\":\"***\"}]", "null", nullptr,
     "140000005072c3bc667374616e6420e282ac203233392e3114000000e697a5e69cace8aa9e20f09d849e2032"
     "33392e32",
     "015072c3bc667374616e6420e282ac203233392e3100e697a5e69cace8aa9e20f09d849e203233392e3200",
     "[{\"user\":\"Pr\303\274fstand \342\202\254 239.1\",\"password\":\"***\"}]",
     "[{\"user\":\"Pr\303\274fstand \342\202\254 239.1\",\"password\":\"***\"}]", "01", "", 0},
    {"sparse", "[null]", "[null]", "null", nullptr, "0000000000000000", "00",
     "[{\"user\":\"\",\"password\":\"***\"}]", "[null]", "01", "", 0},
};

struct LogInExport {
    static constexpr const char* operation = "logIn";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_logIn(api, kc::record<LogInOutConfig>(in[0]), error);
    }
};

TEST_F(Servers, logIn_Exchange) { kc::exchange<LogInExport>(api, kLogInCases); }
TEST_F(Servers, logIn_Failure) { kc::failure<LogInExport>(api, kLogInCases); }
TEST_F(ServersAdmission, logIn) {
    kc::admission<LogInExport>(callers(), kLogInCases, kc::Needs::Anyone);
}

const char* const kLogInNoUtf8[] = {
    "[{\"user\":\"\\udc00Pr\303\274fstand \342\202\254 239.1\\ud800\",\"password\":\"\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 239.2\"}]",
    "[{\"user\":\"Pr\303\274fstand \342\202\254 239.1\",\"password\":\"\\udc00\346\227\245"
    "\346\234\254\350\252\236 \360\235\204\236 239.2\\ud800\"}]",
};
TEST_F(Servers, logIn_TextWithNoUtf8Form) { kc::noUtf8<LogInExport>(api, kLogInNoUtf8); }

const kc::Number kNumber216{216, "logIn", kLogInCases};

TEST_F(ServersByNumber, n216_logIn_KelCall) { kc::kelCall(api, kNumber216); }
TEST_F(ServersByNumber, n216_logIn_PyCall) { kc::pyCall(api, kNumber216); }
TEST_F(ServersByNumber, n216_logIn_Failure) { kc::numberFailure(api, kNumber216); }
TEST_F(ServersByNumber, n216_logIn_ShortInput) { kc::shortInput(api, kNumber216); }

// ---- getServerSettings (position 248, number 55) ----

const kc::Case kGetServerSettingsCases[] = {
    {"full", "[]", "[]",
     "{\"flag\":true,\"value1\":4294967295,\"value2\":2147483648,\"value3\":2147483647}",
     "{\"flag\":1,\"value1\":4294967295,\"value2\":2147483648,\"value3\":2147483647}", "", "", "[]",
     "[]", "010101ffffffff00000080ffffff7f", "0101ffffffff00000080ffffff7f", 0},
    {"empty", "[]", "[]", "null", "null", "", "", "[]", "[]", "0100", "00", 0},
};

struct GetServerSettingsExport {
    static constexpr const char* operation = "getServerSettings";
    using Result = kc::RecordResult<ServerSettings, release_ServerSettings>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getServerSettings(api, error, &out.data);
    }
};

TEST_F(Servers, getServerSettings_Exchange) {
    kc::exchange<GetServerSettingsExport>(api, kGetServerSettingsCases);
}
TEST_F(Servers, getServerSettings_Failure) {
    kc::failure<GetServerSettingsExport>(api, kGetServerSettingsCases);
}
TEST_F(ServersAdmission, getServerSettings) {
    kc::admission<GetServerSettingsExport>(callers(), kGetServerSettingsCases, kc::Needs::Operator);
}

const kc::Number kNumber55{55, "getServerSettings", kGetServerSettingsCases};

TEST_F(ServersByNumber, n55_getServerSettings_KelCall) { kc::kelCall(api, kNumber55); }
TEST_F(ServersByNumber, n55_getServerSettings_PyCall) { kc::pyCall(api, kNumber55); }
TEST_F(ServersByNumber, n55_getServerSettings_Failure) { kc::numberFailure(api, kNumber55); }

// ---- getServerConfiguration (position 269, number 181) ----

const kc::Case kGetServerConfigurationCases[] = {
    {"full", "[]", "[]",
     "{\"users\":[{\"name\":\"Pr\303\274fstand \342\202\254 269.1\",\"text\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 269.2\",\"value\":4294967295},{\"name\":\"K"
     "\303\274hler\\u0009\360\237\224\247 269.3\",\"text\":\"say \\\"\303\251\\\" 269.4\",\"va"
     "lue\":2147483648}],\"flag\":true,\"value1\":2147483647,\"text1\":\"back\\\\slash \303"
     "\237 269.5\",\"text2\":\"Z\303\274ndung \360\237\232\227 269.6\",\"filters\":[{\"pattern"
     "\":\"Pr\303\274fstand \342\202\254 269.7\",\"flag\":false,\"value\":1531751649},{\"patte"
     "rn\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 269.8\",\"flag\":true,\"val"
     "ue\":2038703763}],\"text3\":\"K\303\274hler\\u0009\360\237\224\247 269.9\",\"text4\":\"s"
     "ay \\\"\303\251\\\" 269.10\",\"users2\":[{\"name\":\"back\\\\slash \303\237 269.11\",\"t"
     "ext\":\"Z\303\274ndung \360\237\232\227 269.12\",\"value\":398172231},{\"name\":\"Pr\303"
     "\274fstand \342\202\254 269.13\",\"text\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 269.14\",\"value\":905124345}],\"value2\":65535}",
     "{\"users\":[{\"name\":\"Pr\303\274fstand \342\202\254 269.1\",\"text\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 269.2\",\"value\":4294967295},{\"name\":\"K"
     "\303\274hler\\u0009\360\237\224\247 269.3\",\"text\":\"say \\\"\303\251\\\" 269.4\",\"va"
     "lue\":2147483648}],\"userCount\":2,\"flag\":1,\"value1\":2147483647,\"text1\":\"back\\\\"
     "slash \303\237 269.5\",\"text2\":\"Z\303\274ndung \360\237\232\227 269.6\",\"filters\":["
     "{\"pattern\":\"Pr\303\274fstand \342\202\254 269.7\",\"flag\":0,\"value\":1531751649},{"
     "\"pattern\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 269.8\",\"flag\":1,"
     "\"value\":2038703763}],\"filterCount\":2,\"text3\":\"K\303\274hler\\u0009\360\237\224"
     "\247 269.9\",\"text4\":\"say \\\"\303\251\\\" 269.10\",\"users2\":[{\"name\":\"back\\\\s"
     "lash \303\237 269.11\",\"text\":\"Z\303\274ndung \360\237\232\227 269.12\",\"value\":398"
     "172231},{\"name\":\"Pr\303\274fstand \342\202\254 269.13\",\"text\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 269.14\",\"value\":905124345}],\"userCount2\":2,\""
     "value2\":65535}",
     "", "", "[]", "[]",
     "01010200000001140000005072c3bc667374616e6420e282ac203236392e3114000000e697a5e69cace8aa9e"
     "20f09d849e203236392e32ffffffff01120000004bc3bc686c657209f09f94a7203236392e330e0000007361"
     "792022c3a922203236392e340000008001ffffff7f130000006261636b5c736c61736820c39f203236392e35"
     "130000005ac3bc6e64756e6720f09f9a97203236392e360200000001140000005072c3bc667374616e6420e2"
     "82ac203236392e3700e1ac4c5b0114000000e697a5e69cace8aa9e20f09d849e203236392e38019326847912"
     "0000004bc3bc686c657209f09f94a7203236392e390f0000007361792022c3a922203236392e313002000000"
     "01140000006261636b5c736c61736820c39f203236392e3131140000005ac3bc6e64756e6720f09f9a972032"
     "36392e313247a0bb1701150000005072c3bc667374616e6420e282ac203236392e313315000000e697a5e69c"
     "ace8aa9e20f09d849e203236392e3134f919f335ffff",
     "010200000001140000005072c3bc667374616e6420e282ac203236392e3114000000e697a5e69cace8aa9e20"
     "f09d849e203236392e32ffffffff01120000004bc3bc686c657209f09f94a7203236392e330e000000736179"
     "2022c3a922203236392e340000008001ffffff7f130000006261636b5c736c61736820c39f203236392e3513"
     "0000005ac3bc6e64756e6720f09f9a97203236392e360200000001140000005072c3bc667374616e6420e282"
     "ac203236392e3700e1ac4c5b0114000000e697a5e69cace8aa9e20f09d849e203236392e3801932684791200"
     "00004bc3bc686c657209f09f94a7203236392e390f0000007361792022c3a922203236392e31300200000001"
     "140000006261636b5c736c61736820c39f203236392e3131140000005ac3bc6e64756e6720f09f9a97203236"
     "392e313247a0bb1701150000005072c3bc667374616e6420e282ac203236392e313315000000e697a5e69cac"
     "e8aa9e20f09d849e203236392e3134f919f335ffff",
     0},
    {"sparse", "[]", "[]",
     "{\"users\":[{\"name\":\"\",\"text\":\"\",\"value\":4294967295}],\"flag\":true,\"value1\""
     ":2147483648,\"text1\":\"\",\"text2\":\"\",\"filters\":[{\"pattern\":\"\",\"flag\":false,"
     "\"value\":2147483647}],\"text3\":\"\",\"text4\":\"\",\"users2\":[{\"name\":\"\",\"text\""
     ":\"\",\"value\":1531751649}],\"value2\":65535}",
     "{\"users\":[{\"name\":\"\",\"text\":\"\",\"value\":4294967295}],\"userCount\":1,\"flag\""
     ":1,\"value1\":2147483648,\"text1\":\"\",\"text2\":\"\",\"filters\":[{\"pattern\":\"\",\""
     "flag\":0,\"value\":2147483647}],\"filterCount\":1,\"text3\":\"\",\"text4\":\"\",\"users2"
     "\":[{\"name\":\"\",\"text\":\"\",\"value\":1531751649}],\"userCount2\":1,\"value2\":6553"
     "5}",
     "", "", "[]", "[]",
     "010101000000010000000000000000ffffffff0100000080000000000000000001000000010000000000ffff"
     "ff7f000000000000000001000000010000000000000000e1ac4c5bffff",
     "0101000000010000000000000000ffffffff0100000080000000000000000001000000010000000000ffffff"
     "7f000000000000000001000000010000000000000000e1ac4c5bffff",
     0},
    {"empty", "[]", "[]", "null", "null", "", "", "[]", "[]", "0100", "00", 0},
};

struct GetServerConfigurationExport {
    static constexpr const char* operation = "getServerConfiguration";
    using Result = kc::RecordResult<TarnApiServerConfig, release_TarnApiServerConfig>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getServerConfiguration(api, error, &out.data);
    }
};

TEST_F(Servers, getServerConfiguration_Exchange) {
    kc::exchange<GetServerConfigurationExport>(api, kGetServerConfigurationCases);
}
TEST_F(Servers, getServerConfiguration_Failure) {
    kc::failure<GetServerConfigurationExport>(api, kGetServerConfigurationCases);
}
TEST_F(ServersAdmission, getServerConfiguration) {
    kc::admission<GetServerConfigurationExport>(callers(), kGetServerConfigurationCases,
                                                kc::Needs::Administrator);
}

const kc::Number kNumber181{181, "getServerConfiguration", kGetServerConfigurationCases};

TEST_F(ServersByNumber, n181_getServerConfiguration_KelCall) { kc::kelCall(api, kNumber181); }
TEST_F(ServersByNumber, n181_getServerConfiguration_PyCall) { kc::pyCall(api, kNumber181); }
TEST_F(ServersByNumber, n181_getServerConfiguration_Failure) { kc::numberFailure(api, kNumber181); }

} // namespace
