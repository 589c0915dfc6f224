// The engine's servers, remote connections, users, logins and certificates through the
// C exports and the dispatchers, against the simulated engine, each test on a data root
// of its own.
#include "support.h"

#include <Kel_cpp/ServerHandler.h>
#include <Vutil/ErrorHandler.h>
#include <Vutil/TraceRecorder.h>

#include <nlohmann/json.hpp>

#include <ErrorCodes.h>
#include <Net.h>
#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <future>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

#include <families/servers/Frames.h>
#include <families/servers/PasswordHash.h>
#include <families/servers/Scram.h>

#if defined(_WIN32)
#include <windows.h>
#else
#include <cerrno>
#include <csignal>
#include <cstdio>

#include <sys/wait.h>
#endif

namespace {

using namespace kel_test;
namespace ref = Varno::Kel_cpp::Reference;

using enum ref::ErrorCode;
enum : uint32_t { Operator = 1, Administrator = 2 };

const wchar_t* const password = L"S3cret-P\u00e4ssw\u00f6rt-\u20ac";
const char* const passwordUtf8 = "S3cret-P\xc3\xa4ssw\xc3\xb6rt-\xe2\x82\xac";

std::string hex(const std::vector<uint8_t>& bytes) { return ref::toHex(bytes); }
std::span<const uint8_t> bytes(const char* text) {
    return {reinterpret_cast<const uint8_t*>(text), std::strlen(text)}; // NOLINT
}

// Published test vectors: FIPS 180-2 (SHA-256), RFC 4231 (HMAC), RFC 7914 section 11
// and the IETF draft's (PBKDF2-HMAC-SHA-256).
TEST(PasswordHash, MatchesThePublishedTestVectors) {
    const auto sha = [](const std::string& text) {
        const auto digest = ref::sha256(bytes(text.c_str()));
        return hex({digest.begin(), digest.end()});
    };
    EXPECT_EQ(sha(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(sha("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(sha("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
              "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
    EXPECT_EQ(sha(std::string(1000000, 'a')),
              "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");

    const auto mac = [](std::span<const uint8_t> key, const char* data) {
        const auto digest = ref::hmacSha256(key, bytes(data));
        return hex({digest.begin(), digest.end()});
    };
    EXPECT_EQ(mac(bytes("Jefe"), "what do ya want for nothing?"),
              "5bdcc146bf60754e6a042426089575c75a003f089d2739839dec58b964ec3843");
    const std::vector<uint8_t> longKey(131, 0xaa); // longer than a block: hashed first
    EXPECT_EQ(mac(longKey, "Test Using Larger Than Block-Size Key - Hash Key First"),
              "60e431591ee0b67f0d8a26aacbf5b77f8e0bc6213728c5140546040f0ee37f54");

    EXPECT_EQ(hex(ref::pbkdf2HmacSha256(bytes("passwd"), bytes("salt"), 1, 64)),
              "55ac046e56e3089fec1691c22544b605f94185216dde0465e68b9d57c20dacbc"
              "49ca9cccf179b645991664b39d77ef317c71b845b1e30bd509112041d3a19783");
    // The vectors of the IETF draft for PBKDF2-HMAC-SHA-256 (RFC 6070's inputs); the
    // last spans two blocks.
    EXPECT_EQ(hex(ref::pbkdf2HmacSha256(bytes("password"), bytes("salt"), 2, 32)),
              "ae4d0c95af6b46d32d0adff928f06dd02a303f8ef3c251dfd6e2d85a95474c43");
    EXPECT_EQ(hex(ref::pbkdf2HmacSha256(bytes("password"), bytes("salt"), 4096, 32)),
              "c5e478d59288c841aa530db6845c4c8d962893a001ce4e11a4963873aa98134a");
    EXPECT_EQ(hex(ref::pbkdf2HmacSha256(bytes("passwordPASSWORDpassword"),
                                        bytes("saltSALTsaltSALTsaltSALTsaltSALTsalt"), 4096, 40)),
              "348c89dbcbd32b2f32d814b8116e84cf2b17347ebc1800181c4e2a1fb8dd53e1c635518c7dac47e9");

    const auto stored = ref::PasswordHash::make(password, 1000);
    const auto again = ref::PasswordHash::make(password, 1000);
    EXPECT_NE(stored.salt, again.salt) << "every password gets a salt of its own";
    EXPECT_NE(stored.hash, again.hash);
    EXPECT_TRUE(stored.matches(password));
    EXPECT_FALSE(stored.matches(L"S3cret-P\u00e4ssw\u00f6rt-"));
}

namespace Scram = ref::Scram;

// The users the SCRAM tests know, at the least count the engine allows but for RFC 7677's.
Scram::Server::Lookup scramUsers() {
    return [](const std::wstring& user) -> std::optional<Scram::Keys> {
        if (user == L"user") {
            const auto salt = Scram::fromBase64("W22ZaJ0SNY7soEsUEjb6gQ==");
            return Scram::Keys::fromPasswordHash(
                {salt, 4096, ref::pbkdf2HmacSha256(bytes("pencil"), salt, 4096, 32)});
        }
        if (user == L"J\u00fcrgen, =admin") {
            return Scram::Keys::fromPasswordHash(ref::PasswordHash::make(password, 1000));
        }
        return std::nullopt;
    };
}

// RFC 7677's example, byte for byte (its strings; recomputed with Python's hashlib and hmac).
TEST(Scram, ReproducesThePublishedExchange) {
    Scram::Client client(L"user", L"pencil", "rOprNGfwEbeRWgbNEkqO");
    Scram::Server server("%hvYDpWUa2RaTCAfuxFIlj)hNlF$k0");
    const std::string clientFirst = client.first();
    EXPECT_EQ(clientFirst, "n,,n=user,r=rOprNGfwEbeRWgbNEkqO");
    const std::string serverFirst = server.first(clientFirst, scramUsers());
    EXPECT_EQ(serverFirst, "r=rOprNGfwEbeRWgbNEkqO%hvYDpWUa2RaTCAfuxFIlj)hNlF$k0,"
                           "s=W22ZaJ0SNY7soEsUEjb6gQ==,i=4096");
    const std::string clientFinal = client.final(serverFirst);
    EXPECT_EQ(clientFinal, "c=biws,r=rOprNGfwEbeRWgbNEkqO%hvYDpWUa2RaTCAfuxFIlj)hNlF$k0,"
                           "p=dHzbZapWIk4jUhN+Ute9ytag9zjfMHgsqmmiz7AndVQ=");
    const auto serverFinal = server.final(clientFinal);
    ASSERT_TRUE(serverFinal);
    EXPECT_EQ(*serverFinal, "v=6rriTRBi23WpRR/wtup+mMhUZUn/dB5nLTJRsjl95G4=");
    EXPECT_TRUE(client.verify(*serverFinal));
    EXPECT_FALSE(client.verify("v=" + Scram::base64(std::vector<uint8_t>(32))));
    EXPECT_FALSE(client.verify("e=invalid-proof"));

    // RFC 4648's vectors; decoding takes canonical Base64 only.
    const std::vector<std::pair<std::string, std::string>> vectors{
        {"", ""}, {"f", "Zg=="}, {"fo", "Zm8="}, {"foo", "Zm9v"}, {"foob", "Zm9vYg=="}};
    for (const auto& [text, encoded] : vectors) {
        EXPECT_EQ(Scram::base64(bytes(text.c_str())), encoded);
        EXPECT_EQ(Scram::fromBase64(encoded), std::vector<uint8_t>(text.begin(), text.end()));
    }
    for (const char* bad : {"Zg", "Zg=", "Zh==", "Zm9=", "Z===", "Zg==Zm9v", "Zm9v!A==", "Zm 9"}) {
        EXPECT_THROW(Scram::fromBase64(bad), Scram::Malformed) << bad;
    }
}

TEST(Scram, EscapesNamesTakesOneProofAndAnswersUnknownUsersAlike) {
    const std::wstring name = L"J\u00fcrgen, =admin";
    Scram::Client right(name, password);
    EXPECT_NE(right.first().find("n=J\xc3\xbcrgen=2C =3Dadmin,"), std::string::npos);
    Scram::Server server;
    const std::string serverFirst = server.first(right.first(), scramUsers());
    EXPECT_EQ(server.user(), name);
    const std::string recorded = right.final(serverFirst);
    const auto accepted = server.final(recorded);
    ASSERT_TRUE(accepted);
    EXPECT_TRUE(right.verify(*accepted));
    EXPECT_THROW(server.final(recorded), std::logic_error) << "one proof per exchange";

    // An unknown name gets a salt of its own, the same each time, and the count just seen.
    const auto answer = [](const std::wstring& user) {
        Scram::Client client(user, password, "abc");
        Scram::Server server("def");
        const std::string first = server.first(client.first(), scramUsers());
        EXPECT_FALSE(server.final(client.final(first)));
        return first;
    };
    const std::string unknown = answer(L"nobody");
    EXPECT_EQ(unknown, answer(L"nobody"));
    EXPECT_NE(unknown, answer(L"somebody"));
    const std::size_t salt = unknown.find(",s=") + 3;
    EXPECT_EQ(unknown.substr(0, salt), "r=abcdef,s=");
    EXPECT_EQ(Scram::fromBase64(unknown.substr(salt, unknown.find(",i=") - salt)).size(),
              ref::PasswordHash::saltLength);
    EXPECT_TRUE(unknown.ends_with(",i=1000"));
}

TEST(Scram, MalformedMessagesThrow) {
    for (const std::string& clientFirst : std::vector<std::string>{
             "", "n,,", "y,,n=user,r=abc", "p=tls-server-end-point,,n=user,r=abc",
             "n,a=admin,n=user,r=abc", "n,,r=abc", "n,,n=user", "n,,n=user,r=", "n,,n=us=2Ar,r=abc",
             "n,,n=,r=abc", "n,,m=ext,n=user,r=abc", "n,,n=user,r=a\x01z", "n,,n=\xff,r=abc",
             "n,,n=user,r=abc,,", std::string("n,,n=us\0er,r=abc", 16)}) {
        Scram::Server server;
        EXPECT_THROW(server.first(clientFirst, scramUsers()), Scram::Malformed) << clientFirst;
    }

    const std::string salt = ",s=W22ZaJ0SNY7soEsUEjb6gQ==";
    for (const std::string& serverFirst : std::vector<std::string>{
             "", "r=abcdef", "r=abcdef" + salt, "r=abcdef,i=4096", "r=abc" + salt + ",i=4096",
             "r=xyzdef" + salt + ",i=4096", "r=abcdef,s=W22ZaJ0,i=4096", "r=abcdef,s=,i=4096",
             "r=abcdef" + salt + ",i=999", "r=abcdef" + salt + ",i=04096",
             "r=abcdef" + salt + ",i=-4096", "r=abcdef" + salt + ",i=99999999999",
             "m=ext,r=abcdef" + salt + ",i=4096"}) {
        Scram::Client client(L"user", L"pencil", "abc");
        client.first();
        EXPECT_THROW(client.final(serverFirst), Scram::Malformed) << serverFirst;
    }

    const std::string proof = ",p=dHzbZapWIk4jUhN+Ute9ytag9zjfMHgsqmmiz7AndVQ=";
    for (const std::string& clientFinal : std::vector<std::string>{
             "", "c=biws,r=abcdef", "r=abcdef" + proof, "c=biws" + proof, "c=eSws,r=abcdef" + proof,
             "c=biws,r=abcdef,p=dHzb", "c=biws,r=abcdef,p=!!!!",
             "c=biws,r=abcdef,p=" + Scram::base64(std::vector<uint8_t>(31))}) {
        Scram::Client client(L"user", L"pencil", "abc");
        Scram::Server server("def");
        server.first(client.first(), scramUsers());
        EXPECT_THROW(server.final(clientFinal), Scram::Malformed) << clientFinal;
    }
}

// Fast hashing for the tests: 1000 iterations, the fewest the engine (and its SCRAM
// client) accepts (the default is 100000); three failures in a row throttle logins for a
// minute, doubling with each further failure; the failures of 50 names are kept (1000 by
// default). Vehicle time also runs in real time: the margins of the throttle test leave it
// a second.
const char* const vehicle = R"({"name": "servers test", "ecus": [{"name": "ECM"}],
    "servers": {"passwordIterations": 1000, "failedLogins": 3, "throttleMs": 60000,
                "failureNames": 50}})";

// Polls `done` until it holds, for 20 s at most (a hang guard); whether it held.
template <class Done>
bool eventually(Done done) {
    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!done()) {
        if (std::chrono::steady_clock::now() >= until) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

class RecordingHandler : public Varno::Kel_cpp::ServerHandler {
public:
    void onClientConnected(const std::wstring& client) override { add(L"+" + client); }
    void onClientDisconnected(const std::wstring& client) override { add(L"-" + client); }
    std::vector<std::wstring> heard() const {
        const std::lock_guard lock(mutex_);
        return heard_;
    }

private:
    void add(std::wstring text) {
        const std::lock_guard lock(mutex_);
        heard_.push_back(std::move(text));
    }
    mutable std::mutex mutex_;
    std::vector<std::wstring> heard_;
};

struct Event {
    int32_t kind;
    std::wstring text;
    std::wstring detail;
};

namespace asio = boost::asio;
using asio::ip::tcp;

void sendFrame(tcp::socket& socket, ref::Wire::Kind kind, uint16_t operation,
               const std::vector<uint8_t>& payload) {
    ref::Wire::Header header;
    header.kind = kind;
    header.operation = operation;
    header.callId = operation;
    asio::write(socket,
                asio::buffer(ref::Wire::frames(header, payload.data(), payload.size(), {})));
}
std::vector<uint8_t> readFrame(tcp::socket& socket) {
    std::array<uint8_t, 16> head{};
    asio::read(socket, asio::buffer(head));
    const auto header = ref::Wire::readHeader(head.data(), {});
    std::vector<uint8_t> payload(header ? header->length : 0);
    asio::read(socket, asio::buffer(payload));
    return payload;
}
// A socket of its own to a server on loopback, for what no client of the library sends.
struct RawSocket {
    explicit RawSocket(uint16_t port) {
        socket.connect({asio::ip::make_address("127.0.0.1"), port});
    }
    asio::io_context io;
    tcp::socket socket{io};
};

class Servers : public EngineTest {
protected:
    void SetUp() override {
        root_ = freshTempPath("kel_servers_test");
        EngineTest::SetUp();
        ASSERT_EQ(kelsim_setVehicleJson(vehicle), 0);
        restart();
    }
    void TearDown() override {
        for (TarnApi* remote : remotes_) {
            releaseTarnApi(remote);
        }
        EngineTest::TearDown(); // back to the default root and vehicle
        std::filesystem::remove_all(root_);
    }

    // A fresh engine on the same data root.
    void restart() {
        releaseTarnApi(api);
        kelsim_setDataRoot(root_.wstring().c_str());
        kelsim_restart();
        api = kel_getTarnApi();
        ASSERT_SUCCEEDS(error, kel_initialize(api, &error));
    }

    TarnApi* remote() {
        EXPECT_EQ(code([&](KelError** e) {
                      remotes_.push_back(kel_getRemoteConnectionByHandle(handleOf(api), e));
                  }),
                  0);
        return remotes_.back();
    }

    // kel_startServer's error code; the address it gave goes to address_.
    int32_t startServer(const wchar_t* name = L"") {
        wchar_t* address = nullptr;
        const int32_t failed = code([&](KelError** e) { kel_startServer(api, name, e, &address); });
        if (address != nullptr) {
            address_ = address;
            release_Memory(address);
        }
        return failed;
    }
    int32_t stopServer(const wchar_t* reason = L"") {
        return code([&](KelError** e) { kel_stopServer(api, reason, e); });
    }
    // A connection of its own, on a socket to the started server (remote() is one per
    // handle, in the process).
    TarnApi* connection() {
        if (address_.empty()) {
            EXPECT_EQ(startServer(), 0);
        }
        return connectTo(address_);
    }
    TarnApi* connectTo(const std::wstring& where) {
        TarnApi* client = nullptr;
        EXPECT_EQ(connectCode(where, &client), 0);
        return client;
    }
    // kel_connectRemoteServer's error code; a connection made is released at the end.
    int32_t connectCode(const std::wstring& where, TarnApi** client = nullptr) {
        uint64_t registered = 0;
        const int32_t failed = code(
            [&](KelError** e) { kel_connectRemoteServer(api, where.c_str(), e, &registered); });
        auto* made = reinterpret_cast<TarnApi*>(registered); // NOLINT(performance-no-int-to-ptr)
        if (made != nullptr) {
            remotes_.push_back(made);
        }
        if (client != nullptr) {
            *client = made;
        }
        return failed;
    }
    uint16_t port() const {
        return static_cast<uint16_t>(std::stoul(address_.substr(address_.rfind(L':') + 1)));
    }
    // What reconnectRemoteServer answered: 1 renewed, 0 not; an error's code, negated.
    static int32_t reconnect(TarnApi* client, uint64_t handle) {
        uint8_t renewed = 7;
        const int32_t failed =
            code([&](KelError** e) { kel_reconnectRemoteServer(client, handle, e, &renewed); });
        return failed != 0 ? -failed : renewed;
    }
    // getServerSettings: whether the server runs, and its connected clients.
    static std::pair<uint8_t, uint32_t> serverSettings(TarnApi* on) {
        const auto settings =
            kel_test::fetchRecord(release_ServerSettings, [&](KelError** e, auto** out) {
                kel_getServerSettings(on, e, out);
            });
        return settings ? std::pair<uint8_t, uint32_t>{settings->flag, settings->value1}
                        : std::pair<uint8_t, uint32_t>{};
    }

    static constexpr auto code = [](auto call) { return kel_test::errorCodeOf(call); };

    static std::vector<uint8_t> streamed(uint64_t on, int32_t number,
                                         const std::string& input = {}) {
        void* stream = nullptr;
        uint64_t size = 0;
        kel_call_checked(on, number, input.data(), input.size(), &stream, &size);
        std::vector<uint8_t> result(size);
        kel_call_result(stream, result.data());
        return result;
    }
    // The error code that a call of `number` without input streams back: 0 for success,
    // -1 for a failure without its error record.
    static int32_t streamedError(uint64_t on, int32_t number) {
        const auto result = streamed(on, number);
        int32_t failed = !result.empty() && result[0] == 1 ? 0 : -1;
        if (failed != 0 && result.size() >= 6 && result[1] == 1) {
            std::memcpy(&failed, result.data() + 2, 4);
        }
        return failed;
    }

    static LogInOutConfig* credentials(const wchar_t* user, const wchar_t* secret) {
        auto* config = static_cast<LogInOutConfig*>(allocate_Memory(sizeof(LogInOutConfig)));
        config->user = duplicate_WString(user);
        config->password = duplicate_WString(secret);
        return config;
    }
    static int32_t logIn(TarnApi* on, const wchar_t* user, const wchar_t* secret) {
        return code([&](KelError** e) { kel_logIn(on, credentials(user, secret), e); });
    }
    static int32_t logOut(TarnApi* on) {
        return code([&](KelError** e) { kel_logOut(on, credentials(L"", L""), e); });
    }
    static int32_t addUser(TarnApi* on, const wchar_t* user, const wchar_t* secret, uint32_t role) {
        return code([&](KelError** e) { kel_addUser(on, user, secret, role, e); });
    }
    static int32_t removeUser(TarnApi* on, const wchar_t* user) {
        return code([&](KelError** e) { kel_removeUser(on, user, e); });
    }
    static int32_t userManagement(TarnApi* on, bool enabled) {
        return code([&](KelError** e) { kel_setServerUserManagement(on, enabled ? 1 : 0, e); });
    }
    static uint8_t userManagement(TarnApi* on) {
        uint8_t enabled = 7;
        EXPECT_EQ(code([&](KelError** e) { kel_getServerUserManagement(on, e, &enabled); }), 0);
        return enabled;
    }
    // The DTCs read through `on`: target, then its codes as text; or the call's error code.
    static std::pair<int32_t, std::map<std::wstring, std::vector<std::wstring>>>
    readDtcs(TarnApi* on) {
        ErrorSlot error;
        kel_test::List<ReadDtcResult, release_ReadDtcResult_array> results;
        kel_readDtcs(on, nullptr, 0, nullptr, &error, &results.items, &results.count);
        std::map<std::wstring, std::vector<std::wstring>> dtcs;
        for (uint32_t i = 0; i < results.count; ++i) {
            auto& codes = dtcs[results.items[i]->target];
            for (uint32_t k = 0; k < results.items[i]->dtcCount; ++k) {
                codes.emplace_back(results.items[i]->dtcs[k]->text1);
            }
        }
        return {error ? error->code : 0, dtcs};
    }
    static int32_t getState(TarnApi* on) {
        int32_t state = -1;
        return code([&](KelError** e) { kel_getState(on, e, &state); });
    }

    using Users = std::vector<std::tuple<std::wstring, uint32_t, std::wstring>>;
    static Users users(TarnApi* on) {
        const auto list = kel_test::fetch<kel_test::List<UserInfo, release_UserInfo_array>>(
            [&](KelError** e, auto* items, auto* count) { kel_getUsers(on, e, items, count); });
        Users result;
        for (uint32_t i = 0; i < list->count; ++i) {
            result.emplace_back(list->items[i]->name, list->items[i]->value, list->items[i]->text);
        }
        return result;
    }
    static int32_t usersCode(TarnApi* on) {
        kel_test::List<UserInfo, release_UserInfo_array> list;
        return code([&](KelError** e) { kel_getUsers(on, e, &list.items, &list.count); });
    }

    uint64_t openChannel(TarnApi* on = nullptr) {
        uint64_t channel = 0;
        EXPECT_EQ(code([&](KelError** e) {
                      kel_openEventChannel(on != nullptr ? on : api, e, &channel);
                  }),
                  0);
        return channel;
    }
    std::vector<Event> events(uint64_t channel, TarnApi* on = nullptr) {
        const auto report =
            kel_test::fetchRecord(release_EventReport, [&](KelError** e, auto** out) {
                kel_getCurrentEvents(on != nullptr ? on : api, channel, 0, e, out);
            });
        std::vector<Event> result;
        for (uint32_t i = 0; report && i < report->eventCount; ++i) {
            result.push_back(
                {report->events[i]->kind, report->events[i]->text, report->events[i]->detail});
        }
        return result;
    }

    // Reads the channel until what came satisfies `enough`; all that came.
    template <class Enough>
    std::vector<Event> eventsUntil(uint64_t channel, Enough enough) {
        std::vector<Event> heard;
        eventually([&] {
            const auto more = events(channel);
            heard.insert(heard.end(), more.begin(), more.end());
            return enough(heard);
        });
        return heard;
    }
    // The details of the events of `kind` on the channel, once one came.
    std::vector<std::wstring> awaitDetails(uint64_t channel, int32_t kind) {
        std::vector<std::wstring> details;
        for (const auto& e :
             eventsUntil(channel, [&](const auto& seen) { return hasKind(seen, kind); })) {
            if (e.kind == kind) {
                details.push_back(e.detail);
            }
        }
        return details;
    }
    static bool hasKind(const std::vector<Event>& heard, int32_t kind) {
        return std::any_of(heard.begin(), heard.end(),
                           [&](const Event& e) { return e.kind == kind; });
    }

    std::string usersFile() const { return fileText(root_ / "users" / "users.json"); }
    static std::string fileText(const std::filesystem::path& path) {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    std::filesystem::path root_;
    std::wstring address_; // the server's, once connection() started it
    std::vector<TarnApi*> remotes_;
};

TEST_F(Servers, UserManagementRefusesARemoteConnectionThatHasNotLoggedInByPasswordOrCode) {
    TarnApi* client = remote();
    EXPECT_EQ(getState(client), 0) << "user management is off at first";
    ASSERT_EQ(addUser(api, L"admin", password, Administrator), 0);
    ASSERT_EQ(addUser(api, L"op", L"op-password", Operator), 0);
    ASSERT_EQ(userManagement(api, true), 0);

    EXPECT_EQ(getState(api), 0) << "the local engine object is the server's own";
    ErrorSlot refused;
    int32_t state = -1;
    kel_getState(client, &refused, &state);
    ASSERT_EQ(kel_test::codeIn(refused.error), NotLoggedIn);
    EXPECT_NE(std::wstring(refused->message).find(L"log in"), std::wstring::npos);
    EXPECT_EQ(usersCode(client), NotLoggedIn);
    EXPECT_EQ(streamedError(handleOf(api), 49), NotLoggedIn)
        << "kel_call with the local handle goes through the same remote connection";
    EXPECT_EQ(userManagement(client), 1) << "a client may find out that it must log in";
    EXPECT_EQ(logIn(client, L"admin", L"wrong"), LoginFailed);
    EXPECT_EQ(getState(client), NotLoggedIn);

    EXPECT_EQ(logIn(client, L"op", L"op-password"), 0);
    EXPECT_EQ(getState(client), 0);
    EXPECT_EQ(usersCode(client), NeedsAdministrator) << "the user list is the administrators'";
    EXPECT_EQ(addUser(client, L"eve", L"x", Operator), NeedsAdministrator);
    EXPECT_EQ(userManagement(client, false), NeedsAdministrator);

    EXPECT_EQ(logIn(client, L"admin", password), 0);
    EXPECT_EQ(addUser(client, L"eve", L"x", Operator), 0);
    EXPECT_EQ(logOut(client), 0);
    EXPECT_EQ(getState(client), NotLoggedIn);
    EXPECT_EQ(logOut(client), NotLoggedIn);
    // The identity provider logs a user in once with the code it issued.
    wchar_t* url = nullptr;
    EXPECT_EQ(code([&](KelError** e) { kel_getThirdPartyLoginUrl(client, L"elsewhere", e, &url); }),
              UnknownIdentityProvider);
    // The code the identity provider issues to `user`, on a login URL that `on` hands out.
    const auto signIn = [&](TarnApi* on, const wchar_t* provider, const wchar_t* user) {
        EXPECT_EQ(code([&](KelError** e) { kel_getThirdPartyLoginUrl(on, provider, e, &url); }), 0);
        const std::wstring login = url != nullptr ? url : L"";
        release_Memory(url);
        EXPECT_EQ(login.rfind(L"https://idp.kel-sim.invalid/authorize?client_id=kel_sim&state=", 0),
                  0U);
        std::wstring issued(64, L'\0');
        EXPECT_EQ(kelsim_signInAtIdentityProvider(login.c_str(), user, issued.data(), 64), 32);
        EXPECT_EQ(kelsim_signInAtIdentityProvider(login.c_str(), user, nullptr, 0), -1)
            << "a login state is used once";
        return issued.substr(0, 32);
    };
    const auto accepted = [&](TarnApi* on, const std::wstring& issued) {
        uint8_t accepted = 7;
        EXPECT_EQ(
            code([&](KelError** e) { kel_thirdPartyLogin(on, issued.c_str(), e, &accepted); }), 0);
        return accepted;
    };
    const std::wstring issued = signIn(client, L"", L"op");
    EXPECT_EQ(accepted(client, issued), 1);
    EXPECT_EQ(getState(client), 0);
    EXPECT_EQ(kel_test::lastArguments("thirdPartyLogin"), R"(["***"])");
    EXPECT_EQ(accepted(client, issued), 0) << "a code is used once";

    // A code expires, and one for a name that is no user of the server logs nobody in.
    const std::wstring late = signIn(api, L"kel-sim-idp", L"op");
    kelsim_advanceClock(5 * 60 * 1000);
    EXPECT_EQ(accepted(api, late), 0);
    EXPECT_EQ(accepted(api, signIn(api, L"", L"stranger")), 0);

    // Removing a user ends its logins.
    EXPECT_EQ(logIn(client, L"eve", L"x"), 0);
    EXPECT_EQ(removeUser(api, L"eve"), 0);
    EXPECT_EQ(getState(client), NotLoggedIn);
    EXPECT_EQ(userManagement(api, false), 0);
    EXPECT_EQ(getState(client), 0);

    // end on a remote connection ends that connection's session, never the server's engine.
    ASSERT_EQ(code([&](KelError** e) { kel_end(client, e); }), 0);
    EXPECT_EQ(code([&](KelError** e) { kel_getState(api, e, &state); }), 0);
    EXPECT_EQ(state, 1) << "the server's engine is still initialised";
    EXPECT_EQ(getState(client), ConnectionEnded);
    EXPECT_EQ(logIn(client, L"admin", password), ConnectionEnded);
}

// Names and passwords with no UTF-8 form (an unpaired surrogate) are stored with U+FFFD
// in their place, the engine's one rule for such text (they ended the process); the
// password given the same way still logs in.
TEST_F(Servers, UsersHaveRolesAreCheckedOnEveryChangeAndSurviveARestart) {
    EXPECT_TRUE(users(api).empty());
    EXPECT_EQ(addUser(api, L"J\u00fcrgen", L"one", Operator), 0);
    EXPECT_EQ(addUser(api, L"anna", L"two", Administrator), 0);
    EXPECT_EQ(addUser(api, L"anna", L"three", Operator), UserExists);
    EXPECT_EQ(addUser(api, L"bob", L"", Operator), BadServersArgument);
    EXPECT_EQ(addUser(api, L"", L"pw", Operator), BadServersArgument);
    EXPECT_EQ(addUser(api, L"bob", L"pw", 3), UnknownRole);
    EXPECT_EQ(users(api), (Users{{L"J\u00fcrgen", Operator, L"operator"},
                                 {L"anna", Administrator, L"administrator"}}));

    const auto update = [&](const std::wstring& name, const wchar_t* newName, const wchar_t* secret,
                            uint32_t role) {
        return code(
            [&](KelError** e) { kel_updateUser(api, name.c_str(), newName, secret, role, e); });
    };
    // A new name keeps the password; a new password replaces it.
    EXPECT_EQ(update(L"J\u00fcrgen", L"juergen", L"", Administrator), 0);
    EXPECT_EQ(logIn(api, L"juergen", L"one"), 0);
    EXPECT_EQ(update(L"juergen", L"", L"uno", Operator), 0);
    EXPECT_EQ(logIn(api, L"juergen", L"one"), LoginFailed);
    EXPECT_EQ(logIn(api, L"juergen", L"uno"), 0);
    EXPECT_EQ(update(L"juergen", L"anna", L"", Operator), UserExists);
    EXPECT_EQ(update(L"nobody", L"", L"", Operator), UnknownUser);
    EXPECT_EQ(update(L"juergen", L"", L"", 0), UnknownRole);
    EXPECT_EQ(removeUser(api, L"nobody"), UnknownUser);
    ASSERT_EQ(addUser(api, L"gone", L"pw", Operator), 0);
    ASSERT_EQ(removeUser(api, L"gone"), 0);
    const std::wstring name{L'A', static_cast<wchar_t>(0xD800), L'n'};
    const std::wstring secret{L'p', static_cast<wchar_t>(0xDC00)};
    ASSERT_EQ(addUser(api, name.c_str(), secret.c_str(), Administrator), 0);
    EXPECT_EQ(update(name, name.c_str(), secret.c_str(), Operator), 0);
    ASSERT_EQ(userManagement(api, true), 0);

    restart(); // the users file was written whole
    EXPECT_EQ(users(api), (Users{{L"A\uFFFDn", Operator, L"operator"},
                                 {L"anna", Administrator, L"administrator"},
                                 {L"juergen", Operator, L"operator"}}));
    EXPECT_EQ(userManagement(api), 1);
    TarnApi* client = remote();
    EXPECT_EQ(getState(client), NotLoggedIn);
    EXPECT_EQ(logIn(client, L"A\uFFFDn", secret.c_str()), 0);
    EXPECT_EQ(logIn(client, L"juergen", L"uno"), 0) << "the stored hash still matches";
    EXPECT_EQ(getState(client), 0);

    // A users file that cannot be read refuses, rather than opening the server to all.
    releaseTarnApi(client);
    remotes_.clear();
    std::ofstream(root_ / "users" / "users.json", std::ios::trunc) << "{ not json";
    restart();
    EXPECT_EQ(getState(remote()), UsersUnreadable);
    EXPECT_EQ(usersCode(api), UsersUnreadable);
}

TEST_F(Servers, NoPasswordAppearsInResultsEventsTracesRecordsOrFiles) {
    const uint64_t channel = openChannel();
    auto recorder = std::make_shared<Vutil::TraceRecorder>();
    Vutil::ErrorHandler::addListener(recorder);
    Vutil::ErrorHandler::setDebugTraceLevel(3);

    ASSERT_EQ(addUser(api, L"anna", password, Administrator), 0);
    EXPECT_EQ(logIn(api, L"anna", L"not-it"), LoginFailed);
    ASSERT_EQ(logIn(api, L"anna", password), 0);
    ASSERT_EQ(
        code([&](KelError** e) { kel_updateUser(api, L"anna", L"", password, Administrator, e); }),
        0);

    // logIn (number 216) through both dispatchers: a LogInOutConfig of two strings,
    // length-prefixed for kel_call, NUL-terminated after a presence byte for py_call.
    const std::string user = "anna";
    const std::string secret = passwordUtf8;
    std::string otxInput;
    for (const std::string* text : {&user, &secret}) {
        const auto length = static_cast<uint32_t>(text->size());
        otxInput.append(reinterpret_cast<const char*>(&length), 4).append(*text); // NOLINT
    }
    ASSERT_EQ(streamed(0, 216, otxInput), std::vector<uint8_t>{1}) << "logged in through kel_call";
    std::string pyInput = "\x01" + user + '\0' + secret + '\0';
    uint32_t pySize = 0;
    void* buffer = nullptr;
    EXPECT_EQ(py_call_checked(api, 216, 0, pyInput.data(), pyInput.size(), &pySize, &buffer), 0);
    py_result(nullptr, 0, buffer);
    // getServerConfiguration (181) and getUsers (160) hand out every user.
    for (const int32_t number : {160, 181}) {
        const auto result = streamed(0, number);
        const std::string text(result.begin(), result.end());
        EXPECT_EQ(result.at(0), 1);
        EXPECT_EQ(text.find(secret), std::string::npos) << "number " << number;
        EXPECT_NE(text.find(user), std::string::npos);
    }

    Vutil::ErrorHandler::setDebugTraceLevel(0);
    Vutil::ErrorHandler::removeListener(recorder);

    for (const char* operation : {"addUser", "logIn", "updateUser"}) {
        const std::string recorded = kel_test::lastArguments(operation);
        EXPECT_EQ(recorded.find(secret), std::string::npos) << operation;
        EXPECT_NE(recorded.find("\"***\""), std::string::npos) << recorded;
    }
    EXPECT_EQ(kel_test::lastArguments("logIn"), R"([{"user":"anna","password":"***"}])");
    for (const auto& line : recorder->lines()) {
        EXPECT_EQ(line.text.find(secret), std::string::npos) << line.text;
    }
    const auto seen = events(channel);
    EXPECT_GE(seen.size(), 4U) << "a failed login and three logins";
    for (const auto& e : seen) {
        EXPECT_EQ((e.text + e.detail).find(password), std::wstring::npos);
    }
    const std::string file = usersFile();
    ASSERT_NE(file.find("\"anna\""), std::string::npos);
    EXPECT_EQ(file.find(secret), std::string::npos);
    EXPECT_NE(file.find("\"iterations\": 1000"), std::string::npos);
}

// Logins that arrive together are counted before their passwords are checked: no more
// checks of one name run than the throttle allows. The failures of a flood of other names
// never push a throttled name out of the failure table.
TEST_F(Servers, RepeatedFailuresAreThrottledEvenWhenTheyArriveTogether) {
    ASSERT_EQ(addUser(api, L"anna", password, Administrator), 0);
    std::atomic<bool> go{false};
    std::atomic<int> checked{0};
    std::atomic<int> throttled{0};
    std::vector<std::thread> guesses;
    for (int i = 0; i < 40; ++i) {
        guesses.emplace_back([&, i] {
            while (!go) {
                std::this_thread::yield();
            }
            const int32_t result = logIn(api, L"anna", (L"guess-" + std::to_wstring(i)).c_str());
            checked += result == LoginFailed ? 1 : 0;
            throttled += result == LoginThrottled ? 1 : 0;
        });
    }
    go = true;
    for (auto& guess : guesses) {
        guess.join();
    }
    EXPECT_EQ(checked, 3) << "failedLogins is 3";
    EXPECT_EQ(throttled, 37);
    ErrorSlot error;
    kel_logIn(api, credentials(L"anna", password), &error);
    ASSERT_EQ(kel_test::codeIn(error.error), LoginThrottled) << "even the right password waits";
    EXPECT_NE(std::wstring(error->details).find(L"60 s"), std::wstring::npos) << error->details;

    // Clock steps and what a login gives after each: the fourth failure doubles the wait;
    // a success starts the count again.
    const std::vector<std::tuple<uint64_t, const wchar_t*, int32_t>> steps{
        {59000, password, LoginThrottled},
        {1000, L"d", LoginFailed},
        {61000, password, LoginThrottled},
        {60000, password, 0},
        {0, L"e", LoginFailed},
        {0, password, 0}};
    for (const auto& [advance, secret, expected] : steps) {
        kelsim_advanceClock(advance);
        EXPECT_EQ(logIn(api, L"anna", secret), expected) << advance;
    }

    // Names that are no users are throttled alike: failures do not tell who exists.
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(logIn(api, L"mallory", L"guess"), LoginFailed);
        EXPECT_EQ(logIn(api, L"anna", L"wrong"), LoginFailed);
    }
    EXPECT_EQ(logIn(api, L"mallory", L"guess"), LoginThrottled);
    for (int i = 0; i < 100; ++i) { // twice as many names as the table keeps
        ASSERT_EQ(logIn(api, (L"name-" + std::to_wstring(i)).c_str(), L"wrong"), LoginFailed);
    }
    EXPECT_EQ(logIn(api, L"anna", password), LoginThrottled) << "anna was pushed out";
}

// The reports of one DTC read on a socket, each reduced to its target.
struct Reports : kel_test::AsyncReports<ReadDtcResult, release_ReadDtcResult_array> {
    Reports() : AsyncReports([](const ReadDtcResult& r) { return std::wstring(r.target); }) {}
};

// On sockets an operator is refused what the table refuses; and call ids are the
// vehicle's and easily guessed: an operator's cancel reaches only the calls its own
// connection started, an administrator's reaches any.
TEST_F(Servers, AnOperatorCancelsOnlyItsOwnAsynchronousCalls) {
    ASSERT_EQ(addUser(api, L"root", password, Administrator), 0);
    ASSERT_EQ(addUser(api, L"anna", password, Operator), 0);
    ASSERT_EQ(addUser(api, L"bert", password, Operator), 0);
    ASSERT_EQ(userManagement(api, true), 0);
    TarnApi* anna = connection();
    TarnApi* bert = connection();
    TarnApi* root = connection();
    EXPECT_EQ(getState(anna), NotLoggedIn);
    ASSERT_EQ(logIn(anna, L"anna", password), 0);
    EXPECT_EQ(addUser(anna, L"eve", password, Administrator), NeedsAdministrator)
        << "on the socket too, the table refuses an operator";
    ASSERT_EQ(logIn(bert, L"bert", password), 0);
    ASSERT_EQ(logIn(root, L"root", password), 0);

    kelsim_setAsyncInterval("readSupportedDtcsAsync", 60000);
    std::array<Reports, 2> finals;
    uint64_t annas[2];
    for (std::size_t i = 0; i < 2; ++i) {
        ASSERT_SUCCEEDS(error,
                        annas[i] = kel_readSupportedDtcsAsync(anna, nullptr, 0, nullptr, &error,
                                                              Reports::callback, &finals[i]));
    }
    EXPECT_EQ(code([&](KelError** e) { kel_cancelAsyncCalls(bert, annas, 2, e); }), 0)
        << "another's ids are ignored as unknown ones are";
    EXPECT_EQ(code([&](KelError** e) { kel_triggerAsyncCancels(bert, annas, 2, e); }), 0);
    EXPECT_EQ(code([&](KelError** e) { kel_cancelAllAsyncCalls(bert, e); }), NeedsAdministrator);
    EXPECT_EQ(kelsim_runningAsyncCalls(handleOf(api)), 2);

    EXPECT_EQ(code([&](KelError** e) { kel_cancelAsyncCalls(anna, &annas[0], 1, e); }), 0);
    EXPECT_EQ(code([&](KelError** e) { kel_cancelAsyncCalls(root, &annas[1], 1, e); }), 0);
    for (auto& reports : finals) {
        ASSERT_TRUE(reports.wait());
        EXPECT_EQ(reports.errorCode, CallCancelled);
    }
}

// The server ends its sockets cleanly and a client fails its calls at once; one that
// vanishes mid-call is a broken connection.
TEST_F(Servers, ConnectionsTheServerEndsAreSeenByHandlersAndCanBeRenewed) {
    RecordingHandler handler;
    ErrorSlot error;
    kel_registerServerHandler(reinterpret_cast<uint64_t>(api), &handler, &error);
    const uint64_t channel = openChannel();
    EXPECT_EQ(connectCode(L"kel://127.0.0.1:1"), ServerNotRunning);

    ASSERT_EQ(startServer(), 0);
    EXPECT_EQ(address_.rfind(L"kel://127.0.0.1:", 0), 0U) << "on loopback, with the port given";
    EXPECT_EQ(startServer(L"other"), ServerRunning);
    TarnApi* client = connectTo(address_);
    const auto registered = reinterpret_cast<uint64_t>(client);
    const uint64_t clientHandle = handleOf(client);
    EXPECT_NE(clientHandle, handleOf(api));
    EXPECT_EQ(getState(client), 0) << "the handle reaches the remote engine object";
    ASSERT_EQ(handler.heard().size(), 1U);
    const std::wstring name = handler.heard()[0].substr(1);

    // connectRemoteServer hands out an address; reconnectRemoteServer takes the engine
    // handle that kel_getHandle reads from it, as getRemoteConnectionByHandle and kel_call
    // take engine handles. Each refuses the address.
    EXPECT_EQ(code([&](KelError** e) { kel_getRemoteConnectionByHandle(registered, e); }),
              UnknownHandle);
    EXPECT_EQ(reconnect(client, registered), -UnknownHandle);
    EXPECT_EQ(streamedError(registered, 49), UnknownHandle);
    EXPECT_EQ(serverSettings(client), (std::pair<uint8_t, uint32_t>{1, 1}))
        << "running, one client";

    ASSERT_EQ(stopServer(L"maintenance"), 0);
    EXPECT_EQ((handler.heard()), (std::vector<std::wstring>{L"+" + name, L"-" + name}));
    EXPECT_EQ(getState(client), ConnectionEnded);
    EXPECT_EQ(reconnect(client, clientHandle), 0) << "not while the server is stopped";
    EXPECT_EQ(stopServer(), ServerNotRunning);
    const std::wstring before = address_;
    ASSERT_EQ(startServer(), 0);
    EXPECT_EQ(address_, before) << "a server started again takes its port again";
    EXPECT_EQ(reconnect(client, clientHandle), 1);
    EXPECT_EQ(getState(client), 0);
    EXPECT_EQ(reconnect(api, 12345), -UnknownHandle);

    EXPECT_EQ(code([&](KelError** e) { kel_disconnectAllClients(api, e); }), 0);
    EXPECT_EQ(getState(client), ConnectionEnded);
    EXPECT_EQ(reconnect(client, clientHandle), 1);
    EXPECT_EQ(code([&](KelError** e) { kel_disconnect(client, e); }), 0);
    EXPECT_EQ(code([&](KelError** e) { kel_disconnect(api, e); }), NotARemoteConnection);
    releaseTarnApi(client);
    remotes_.clear();
    // Each renewal is a new socket, so a new engine object on the server; a connection
    // ended earlier is not reported again when it goes.
    std::wstring signs;
    for (const auto& heard : handler.heard()) {
        signs += heard[0];
    }
    EXPECT_EQ(signs, L"+-+-+-");

    // The client's goodbye after disconnect reaches the server's engine object as the
    // closed connection (ConnectionClosed), on the connection's own thread.
    std::vector<int32_t> kinds;
    for (const auto& e : eventsUntil(channel, [](const auto& heard) {
             return !heard.empty() && heard.back().kind == 10;
         })) {
        kinds.push_back(e.kind);
        if (e.kind == 31) {
            EXPECT_EQ(e.detail, L"maintenance");
        }
    }
    EXPECT_EQ(kinds, (std::vector<int32_t>{30, 11, 31, 12, 30, 11, 12, 11, 12, 10}));

    // A raw client that vanishes mid-call: the server's engine object hears of it.
    {
        RawSocket raw(port());
        sendFrame(raw.socket, ref::Wire::Kind::Hello, 0, ref::Wire::helloPayload());
        readFrame(raw.socket); // Welcome
        ref::Wire::Header header;
        header.kind = ref::Wire::Kind::Call;
        header.length = 100; // announced, never sent
        std::array<uint8_t, 16> half{};
        ref::Wire::writeHeader(header, half.data());
        asio::write(raw.socket, asio::buffer(half));
    }
    EXPECT_FALSE(awaitDetails(channel, 9).empty()) << "ConnectionBroken";
}

TEST_F(Servers, CertificatesComeFromTheStoreAndNoneIsMadeUp) {
    const auto chainOf = [&](const wchar_t* id) {
        ErrorSlot error;
        uint32_t count = 0;
        auto** chain = reinterpret_cast<wchar_t**>(&count); // NOLINT: must become NULL if empty
        kel_getCertificateChainById(api, id, L"", L"", &error, &chain, &count);
        EXPECT_FALSE(error);
        EXPECT_TRUE(count != 0 || chain == nullptr) << "no list for an empty chain";
        std::vector<std::wstring> pems(chain, chain + count);
        release_StringArray(chain, count);
        return pems;
    };
    const auto pems = chainOf(L"kel-sim-server");
    ASSERT_EQ(pems.size(), 3U) << "server, intermediate, root";
    const std::vector<std::wstring> ids{L"kel-sim-server", L"kel-sim-intermediate",
                                        L"kel-sim-root"};
    for (std::size_t i = 0; i < ids.size(); ++i) {
        const std::string file = fileText(root_ / "certificates" / (ids[i] + L".pem")); // ASCII
        EXPECT_EQ(pems[i], std::wstring(file.begin(), file.end())) << i;
    }
    EXPECT_EQ(pems[0].rfind(L"-----BEGIN CERTIFICATE-----\n", 0), 0U);
    EXPECT_TRUE(chainOf(L"no-such-id").empty());
    // A file of the store that holds no certificate is never handed out as one.
    std::ofstream(root_ / "certificates" / "broken.pem") << "-----BEGIN CERTIFICATE-----\nAAAA\n";
    EXPECT_TRUE(chainOf(L"broken").empty());

    const std::wstring serverKey =
        L"-----BEGIN PUBLIC KEY-----\n"
        L"MFkwEwYHKoZIzj0CAQYIKoZIzj0DAQcDQgAEAHisZTSLzZaVh4SCObjv7b3vP8np\n"
        L"Jf63T5iP9YGlFDgthdS1cd3SSLsPF56jAobG/qqY/GrMDBAoM11ChizQzw==\n"
        L"-----END PUBLIC KEY-----\n";
    wchar_t* found = nullptr;
    const auto byKey = [&](const std::wstring& key) {
        return code([&](KelError** e) {
            kel_getCertificateByPublicKey(api, key.c_str(), L"", L"", L"", e, &found);
        });
    };
    ASSERT_EQ(byKey(serverKey), 0);
    EXPECT_EQ(found, pems[0]);
    release_Memory(found);
    std::wstring otherKey = serverKey; // another key of the same shape
    otherKey[otherKey.find(L"AHis")] = L'B';
    EXPECT_EQ(byKey(otherKey), UnknownCertificate);
    EXPECT_EQ(byKey(L"-----BEGIN NONSENSE-----"), NotAPublicKey);
    EXPECT_EQ(code([&](KelError** e) {
                  kel_createCertificateFromCSR(api, L"csr", L"", L"", L"", L"", L"", e, &found);
              }),
              NeedsCryptography);
}

// A socket's engine object calls, reports and posts its events to the client; a client
// that breaks the protocol loses its own connection, and no other.
TEST_F(Servers, ARemoteObjectOnASocketCallsReportsAndReadsEvents) {
    TarnApi* client = connection();
    ASSERT_NE(client, nullptr);
    EXPECT_EQ(code([&](KelError** e) { kel_logOut(client, credentials(L"nobody", password), e); }),
              NotLoggedIn)
        << "an engine error comes back with its code";
    RecordingHandler handler;
    EXPECT_EQ(code([&](KelError** e) {
                  kel_registerServerHandler(reinterpret_cast<uint64_t>(client), &handler, e);
              }),
              NotRemotable)
        << "a handler of this process cannot be registered on the server";

    const uint64_t channel = openChannel(client);
    kelsim_setAsyncReports("readSupportedDtcsAsync", 3);
    Reports reports;
    reports.run([&](KelError** e, auto callback, void* context) {
        return kel_readSupportedDtcsAsync(client, nullptr, 0, nullptr, e, callback, context);
    });
    EXPECT_EQ(reports.finals, (std::vector<bool>{false, false, true}));
    EXPECT_EQ(reports.errorCode, 0);
    EXPECT_TRUE(hasKind(events(channel, client), 8))
        << "AsyncCompleted: the server's events reach the client's channel";

    RawSocket raw(port()); // no kind of the protocol, a length above the bound
    asio::write(raw.socket, asio::buffer(std::vector<uint8_t>(16, 0xEE)));
    boost::system::error_code closed;
    std::array<uint8_t, 64> answer{};
    std::size_t total = 0;
    while (!closed) {
        total += raw.socket.read_some(asio::buffer(answer), closed);
    }
    EXPECT_TRUE(closed == asio::error::eof || closed == asio::error::connection_reset)
        << "the server closed the socket: " << closed.message();
    EXPECT_EQ(total, 0U);
    EXPECT_EQ(getState(client), 0) << "the other connection still works";
}

// A server that dies mid-call: the client's call fails at once with 1301, and its local
// engine's channels carry the broken connection.
TEST_F(Servers, AServerThatDiesMidCallEndsTheCallAndIsPostedLocally) {
    asio::io_context io;
    tcp::acceptor acceptor(io, {asio::ip::make_address("127.0.0.1"), 0});
    std::thread server([&] {
        tcp::socket socket(io);
        acceptor.accept(socket);
        readFrame(socket); // Hello
        auto payload = ref::Wire::helloPayload();
        payload.resize(payload.size() + 8, 0x11);
        sendFrame(socket, ref::Wire::Kind::Welcome, 0, payload);
        readFrame(socket); // the call comes; no answer, no goodbye
    });
    const uint64_t channel = openChannel();
    const std::wstring where =
        L"kel://127.0.0.1:" + std::to_wstring(acceptor.local_endpoint().port());
    TarnApi* client = connectTo(where);
    EXPECT_EQ(getState(client), ConnectionEnded);
    server.join();
    EXPECT_EQ(awaitDetails(channel, 9), std::vector<std::wstring>{L"server " + where});
}

// A remote login through a relay that records what the client sends: neither the
// password nor its PBKDF2 hash is on the wire, and the recorded proof does not log in
// again on another socket.
TEST_F(Servers, ALoginOnTheWireCarriesNoPasswordAndCannotBeReplayed) {
    ASSERT_EQ(addUser(api, L"anna", password, Operator), 0);
    ASSERT_EQ(userManagement(api, true), 0);
    TarnApi* first = connection(); // starts the server
    asio::io_context io;
    tcp::acceptor relay(io, {asio::ip::make_address("127.0.0.1"), 0});
    std::vector<uint8_t> sent;
    const auto pump = [](tcp::socket& from, tcp::socket& to, std::vector<uint8_t>* record) {
        std::array<uint8_t, 4096> buffer{};
        boost::system::error_code error;
        for (std::size_t n; (n = from.read_some(asio::buffer(buffer), error)) != 0 || !error;) {
            if (record != nullptr) {
                record->insert(record->end(), buffer.data(), buffer.data() + n);
            }
            asio::write(to, asio::buffer(buffer.data(), n), error);
        }
        to.shutdown(tcp::socket::shutdown_send, error);
    };
    std::thread relaying([&] {
        tcp::socket client(io);
        relay.accept(client);
        RawSocket server(port());
        std::thread back([&] { pump(server.socket, client, nullptr); });
        pump(client, server.socket, &sent);
        back.join();
    });
    TarnApi* client =
        connectTo(L"kel://127.0.0.1:" + std::to_wstring(relay.local_endpoint().port()));
    EXPECT_EQ(logIn(client, L"anna", L"wrong"), LoginFailed);
    ASSERT_EQ(logIn(client, L"anna", password), 0);
    EXPECT_EQ(getState(client), 0) << "logged in";
    releaseTarnApi(client);
    std::erase(remotes_, client);
    relaying.join();

    // The password in UTF-8, UTF-16 and wchar_t, its hash in hex, raw and in Base64.
    const std::wstring wide = password;
    const std::u16string utf16(wide.begin(), wide.end());
    const auto hashHex =
        nlohmann::json::parse(usersFile()).at("users").at(0).at("hash").get<std::string>();
    const auto hash = ref::fromHex(hashHex);
    const std::vector<std::string> secrets{
        passwordUtf8,
        {reinterpret_cast<const char*>(utf16.data()), utf16.size() * 2},             // NOLINT
        {reinterpret_cast<const char*>(wide.data()), wide.size() * sizeof(wchar_t)}, // NOLINT
        hashHex,
        {hash.begin(), hash.end()},
        ref::Scram::base64(hash)};
    const std::string wire(sent.begin(), sent.end());
    for (std::size_t i = 0; i < secrets.size(); ++i) {
        EXPECT_EQ(wire.find(secrets[i]), std::string::npos) << "form " << i;
    }

    // The last login's two messages, sent again on a socket of their own.
    std::vector<std::vector<uint8_t>> login;
    ref::Wire::Assembler assembler({});
    for (std::size_t at = 0, used = 0; at < sent.size(); at += used) {
        ref::Wire::Assembler::Message message;
        ASSERT_EQ(assembler.feed(sent.data() + at, sent.size() - at, used, message),
                  ref::Wire::Assembler::Status::Complete);
        if (message.header.kind == ref::Wire::Kind::Login) {
            login.push_back(std::move(message.payload));
        }
    }
    ASSERT_EQ(login.size(), 4U) << "two exchanges of two messages";
    RawSocket replay(port());
    sendFrame(replay.socket, ref::Wire::Kind::Hello, 0, ref::Wire::helloPayload());
    readFrame(replay.socket); // Welcome
    sendFrame(replay.socket, ref::Wire::Kind::Login, 1, login[2]);
    ASSERT_EQ(readFrame(replay.socket).at(0), 1)
        << "a server-first message, with a nonce of its own";
    sendFrame(replay.socket, ref::Wire::Kind::Login, 2, login[3]);
    EXPECT_EQ(readFrame(replay.socket).at(0), 0) << "the recorded proof is refused";
    EXPECT_EQ(getState(first), NotLoggedIn);
}

using ServersConcurrency = Servers;

// Remote clients call, log in and renew their connections while the server ends them,
// restarts and turns user management on and off: every call either works or is refused
// for a reason of the moment, and each client's connections and disconnections reach
// the handler in turn, once each.
TEST_F(ServersConcurrency, ClientsRaceTheServerEndingTheirConnections) {
    RecordingHandler handler;
    ErrorSlot error;
    kel_registerServerHandler(reinterpret_cast<uint64_t>(api), &handler, &error);
    ASSERT_EQ(addUser(api, L"anna", password, Administrator), 0);
    ASSERT_EQ(startServer(L"race"), 0);
    std::atomic<int> unexpected{0};
    std::vector<std::thread> clients;
    for (int t = 0; t < 4; ++t) {
        clients.emplace_back([&] {
            uint64_t registered = 0;
            // The server may end a socket before its handshake is through: 1301.
            for (int tries = 0; registered == 0 && tries < 100; ++tries) {
                if (code([&](KelError** e) {
                        kel_connectRemoteServer(api, address_.c_str(), e, &registered);
                    }) != ConnectionEnded &&
                    registered == 0) {
                    ++unexpected;
                    return;
                }
            }
            auto* client = reinterpret_cast<TarnApi*>(registered); // NOLINT
            const uint64_t own = handleOf(client);
            for (int i = 0; i < 60; ++i) {
                switch (getState(client)) {
                case 0:
                    break;
                case NotLoggedIn:
                    // More logins of one name at once than failedLogins: the throttle
                    // counts each before its check.
                    if (const int32_t c = logIn(client, L"anna", password);
                        c != 0 && c != ConnectionEnded && c != LoginThrottled) {
                        ++unexpected;
                    }
                    break;
                case ConnectionEnded:
                    unexpected += reconnect(client, own) < 0 ? 1 : 0;
                    break;
                default:
                    ADD_FAILURE() << "getState: " << getState(client);
                    ++unexpected;
                }
            }
            releaseTarnApi(client);
        });
    }
    for (int i = 0; i < 30; ++i) {
        EXPECT_EQ(userManagement(api, i % 2 == 0), 0);
        EXPECT_EQ(code([&](KelError** e) { kel_disconnectAllClients(api, e); }), 0);
        EXPECT_EQ(code([&](KelError** e) { kel_restartServer(api, i % 3, e); }), 0);
    }
    for (auto& client : clients) {
        client.join();
    }
    EXPECT_EQ(unexpected.load(), 0);

    // The last sockets' ends reach the handler from the server's connection threads.
    std::map<std::wstring, std::wstring> byClient;
    eventually([&] {
        byClient.clear();
        for (const auto& heard : handler.heard()) {
            byClient[heard.substr(1)] += heard[0];
        }
        return std::none_of(byClient.begin(), byClient.end(),
                            [](const auto& entry) { return entry.second.size() % 2 != 0; });
    });
    EXPECT_GE(byClient.size(), 4U)
        << "each renewal after the server ended a socket is a new client";
    for (const auto& [client, signs] : byClient) {
        std::wstring inTurn; // every connection ended once, after it began
        for (std::size_t i = 0; i < (signs.size() + 1) / 2; ++i) {
            inTurn += L"+-";
        }
        EXPECT_EQ(signs, inTurn);
    }
}

// 50 clients on sockets of their own, 200 calls each (states, DTC reads, a service, a file
// read in parts), while the server serves them all: every call is answered right, and
// once the clients are gone the server holds no connection. The file, above one frame,
// travels both ways in continuation parts first. Time bounds are hang guards only (bench/
// measures).
TEST_F(ServersConcurrency, FiftyClientsOfTwoHundredCallsEach) {
    std::vector<TarnApi*> clients;
    for (int c = 0; c < 50; ++c) {
        clients.push_back(connection());
        ASSERT_NE(clients.back(), nullptr);
    }
    constexpr uint32_t part = 64 * 1024; // the file is read in parts of two of these
    std::vector<uint8_t> content(3 * 1024 * 1024 + 17);
    for (std::size_t i = 0; i < content.size(); ++i) {
        content[i] = static_cast<uint8_t>(i * 7 + i / 4096);
    }
    uint32_t size = 0;
    ASSERT_SUCCEEDS(error,
                    kel_writeFile(clients[0], L"exchange/load.bin", content.data(),
                                  static_cast<uint32_t>(content.size()), 0, 1, &error, &size));
    EXPECT_EQ(size, content.size());
    void* data = nullptr;
    ASSERT_SUCCEEDS(error,
                    kel_readFile(clients[0], L"exchange/load.bin", 0, 0, 0, &error, &data, &size));
    EXPECT_TRUE(size == content.size() && std::memcmp(data, content.data(), size) == 0);
    release_Memory(data);
    std::atomic<int> answered{0};
    std::vector<std::thread> threads;
    for (TarnApi* client : clients) {
        threads.emplace_back([&, client] {
            for (int i = 0; i < 200; ++i) {
                ErrorSlot error;
                bool right = true;
                switch (i % 4) {
                case 0: {
                    int32_t state = -1;
                    kel_getState(client, &error, &state);
                    right = state == 1;
                    break;
                }
                case 1: // the vehicle of these tests has one unit
                    right = readDtcs(client) == decltype(readDtcs(client)){0, {{L"ECM", {}}}};
                    break;
                case 2: {
                    uint8_t request[] = {0x3E, 0x00}; // TesterPresent
                    wchar_t unnamed[] = L"";
                    ServiceInput input{nullptr, 0, unnamed, request, sizeof request, 0};
                    ServiceInput* inputs[] = {&input};
                    kel_test::List<ServiceResult, release_ServiceResult_array> list;
                    kel_executeService(client, L"ECM", inputs, 1, &error, &list.items, &list.count);
                    right = list.count == 1;
                    break;
                }
                default: {
                    const uint64_t offset = static_cast<uint64_t>(i / 4 % 3) * part;
                    void* data = nullptr;
                    uint32_t size = 0;
                    kel_readFile(client, L"exchange/load.bin", offset, 2 * part, 1, &error, &data,
                                 &size);
                    right =
                        size == 2 * part && std::memcmp(data, content.data() + offset, size) == 0;
                    release_Memory(data);
                    break;
                }
                }
                answered += !error && right ? 1 : 0;
            }
        });
    }
    for (auto& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(answered.load(), 50 * 200);

    for (TarnApi* client : clients) {
        releaseTarnApi(client);
    }
    remotes_.clear();
    EXPECT_TRUE(eventually([&] { return serverSettings(api).second == 0; }))
        << "every released client's connection ended on the server";
}

// kel-sim-server started as a process of its own (path from the build, or KEL_SIM_SERVER),
// fed through a pipe on stdin so that it ends with the test even when the test does not
// get to stop it. The address is the first line it prints, into a file read here.
class ServerProcess {
public:
    explicit ServerProcess(const std::vector<std::string>& arguments) {
        const char* configured = std::getenv("KEL_SIM_SERVER");
        std::string command = quote(configured != nullptr ? configured : KEL_SIM_SERVER_PATH);
        for (const auto& argument : arguments) {
            command += " " + quote(argument);
        }
        start(command + " --until-stdin-closes");
        // A hang guard of 60 s on the first line.
        for (int i = 0; i < 6000 && address_.find('\n') == std::string::npos; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
            std::ifstream in(output_, std::ios::binary);
            address_.assign(std::istreambuf_iterator<char>(in), {});
        }
        address_.erase(std::min(address_.find_first_of("\r\n"), address_.size()));
    }
    ServerProcess(const ServerProcess&) = delete;
    ServerProcess& operator=(const ServerProcess&) = delete;
    ~ServerProcess() {
        kill();
        std::error_code ignored;
        std::filesystem::remove(output_, ignored);
        std::filesystem::remove(output_.string() + ".pid", ignored);
    }

    const std::string& address() const { return address_; }
    std::wstring wideAddress() const { return {address_.begin(), address_.end()}; } // ASCII
    std::string port() const { return address_.substr(address_.rfind(':') + 1); }

#if defined(_WIN32)
    void kill() {
        if (process_ != nullptr) {
            TerminateProcess(process_, 9);
            stop();
        }
    }
    // Closes its stdin and waits (30 s at most) for it to stop; its exit code.
    int stop() {
        CloseHandle(input_);
        DWORD code = 99;
        if (WaitForSingleObject(process_, 30000) == WAIT_OBJECT_0) {
            GetExitCodeProcess(process_, &code);
        }
        CloseHandle(process_);
        process_ = nullptr;
        return static_cast<int>(code);
    }

private:
    static std::string quote(const std::string& argument) { return "\"" + argument + "\""; }
    void start(const std::string& command) {
        SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
        HANDLE childInput = nullptr;
        ASSERT_TRUE(CreatePipe(&childInput, &input_, &inherited, 0));
        SetHandleInformation(input_, HANDLE_FLAG_INHERIT, 0); // only the child's end passes on
        HANDLE childOutput = CreateFileW(output_.wstring().c_str(), GENERIC_WRITE,
                                         FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                         &inherited, CREATE_ALWAYS, 0, nullptr);
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdInput = childInput;
        startup.hStdOutput = childOutput;
        startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
        PROCESS_INFORMATION started{};
        std::wstring line =
            std::filesystem::path(std::u8string(command.begin(), command.end())).wstring();
        const BOOL created = CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0,
                                            nullptr, nullptr, &startup, &started);
        CloseHandle(childInput);
        CloseHandle(childOutput);
        ASSERT_TRUE(created) << "cannot start " << command << ": error " << GetLastError();
        CloseHandle(started.hThread);
        process_ = started.hProcess;
    }

    HANDLE process_ = nullptr;
    HANDLE input_ = nullptr;
#else
    void kill() {
        if (input_ != nullptr) {
            if (const pid_t id = pid(); id > 0) { // never 0: that is the whole process group
                ::kill(id, SIGKILL);
            }
            stop();
        }
    }
    // Closes its stdin and waits for it to stop (ctest's timeout guards a hang); its exit
    // code.
    int stop() {
        const int status = pclose(input_);
        input_ = nullptr;
        return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }

private:
    static std::string quote(const std::string& argument) { return "'" + argument + "'"; }
    // The shell writes its process id, then execs the server with it. "e": no other child
    // of the test process holds the pipe open.
    void start(const std::string& command) {
        input_ = popen(("echo $$ > " + quote(output_.string() + ".pid") + "; exec " + command +
                        " > " + quote(output_.string()))
                           .c_str(),
                       "we");
        ASSERT_NE(input_, nullptr) << "cannot start " << command << ": " << std::strerror(errno);
    }
    pid_t pid() const {
        pid_t id = 0;
        std::ifstream(output_.string() + ".pid") >> id;
        return id;
    }

    FILE* input_ = nullptr;
#endif
    std::filesystem::path output_ = freshTempPath("kel_server_out");
    std::string address_;
};

// The ThreadSanitizer preset runs only the concurrency cases: a call in flight while the
// other process dies is one.
using CrossProcessConcurrency = Servers;

// The server process runs the bundled default vehicle (this one the one-unit vehicle of
// these tests), which is what a remote read must see. It dies with a call in flight: the
// call ends with 1301 at once rather than waiting, the client hears ConnectionBroken, and
// the connection is renewed once a server listens on the same port again; a server whose
// stdin closes stops cleanly.
TEST_F(CrossProcessConcurrency, ACallInFlightEndsWhenTheServerDiesAndTheConnectionIsRenewed) {
    std::unique_ptr<ServerProcess> server;
    // Starts (or starts again) the server process, on a data root inside this test's.
    const auto start = [&](std::vector<std::string> arguments) {
        server.reset(); // a server still there is killed first
        const auto root = (root_ / "server").u8string();
        arguments.insert(arguments.begin(), {"--data-root", std::string(root.begin(), root.end())});
        server = std::make_unique<ServerProcess>(arguments);
        return server->address().rfind("kel://127.0.0.1:", 0) == 0;
    };
    ASSERT_TRUE(start({"--delay", "readDtcs=20000"})) << "it printed: " << server->address();
    const auto port = server->port();
    TarnApi* client = connectTo(server->wideAddress());
    const uint64_t own = handleOf(client);
    const uint64_t channel = openChannel();

    auto call = std::async(std::launch::async, [&] { return readDtcs(client).first; });
    EXPECT_EQ(call.wait_for(std::chrono::milliseconds(300)), std::future_status::timeout)
        << "the delay holds the call in flight";
    server->kill();
    ASSERT_EQ(call.wait_for(std::chrono::seconds(15)), std::future_status::ready);
    EXPECT_EQ(call.get(), ConnectionEnded);

    EXPECT_EQ(awaitDetails(channel, 9),
              std::vector<std::wstring>{L"server " + server->wideAddress()})
        << "ConnectionBroken naming the server, on the engine object that connected";
    EXPECT_EQ(reconnect(client, own), 0) << "no server listens";

    ASSERT_TRUE(start({"--port", port})) << "it printed: " << server->address();
    EXPECT_EQ(reconnect(client, own), 1);
    const auto [failed, dtcs] = readDtcs(client);
    ASSERT_EQ(failed, 0);
    EXPECT_EQ(dtcs.size(), 6U);
    EXPECT_EQ(dtcs.at(L"ECM"), (std::vector<std::wstring>{L"P0301", L"P2463"}));
    EXPECT_EQ(dtcs.at(L"GW"), std::vector<std::wstring>{L"U0121"});
    EXPECT_TRUE(dtcs.at(L"ACC").empty()) << "silent: its error stays in its result";
    EXPECT_EQ(readDtcs(api).second.size(), 1U) << "the local vehicle is not the server's";
    EXPECT_EQ(server->stop(), 0) << "stdin closed: a clean stop";
    EXPECT_EQ(readDtcs(client).first, ConnectionEnded);
}

auto serverConfiguration(TarnApi* api) {
    return kel_test::fetchRecord(release_TarnApiServerConfig, [&](KelError** e, auto** out) {
        kel_getServerConfiguration(api, e, out);
    });
}
// The SOVD server's port, 0 unless it has an address on loopback.
uint16_t sovdPort(TarnApi* api) {
    const auto config = serverConfiguration(api);
    const std::wstring address = config ? config->text2 : L"";
    return address.rfind(L"http://127.0.0.1:", 0) == 0
               ? static_cast<uint16_t>(std::stoul(address.substr(17)))
               : 0;
}

// One GET over a plain socket: what came back before the server closed the connection,
// or why nothing could be sent.
std::string httpGet(uint16_t port, const std::string& path) {
    asio::io_context io;
    asio::ip::tcp::socket socket(io);
    boost::system::error_code error;
    socket.connect({asio::ip::make_address("127.0.0.1"), port}, error);
    if (error) {
        return "no connection";
    }
    const std::string request =
        "GET " + path + " HTTP/1.1\r\nHost: 127.0.0.1\r\nConnection: close\r\n\r\n";
    asio::write(socket, asio::buffer(request), error);
    std::string answer;
    std::array<char, 4096> chunk{};
    while (!error) {
        answer.append(chunk.data(), socket.read_some(asio::buffer(chunk), error));
    }
    return answer;
}

// Both servers listen on loopback only; the SOVD server serves HTTP, and the server
// configuration reports it.
TEST_F(Servers, ServersListenOnLoopbackOnlyAndReportTheirConfiguration) {
    ASSERT_EQ(kelsim_setVehicleJson(R"({"name": "open", "ecus": [{"name": "ECM"}],
        "servers": {"listenAddress": "0.0.0.0"}})"),
              0);
    restart();
    EXPECT_EQ(startServer(), NotLoopback);
    EXPECT_EQ(code([&](KelError** e) { kel_startSOVDServer(api, e); }), NotLoopback);
    EXPECT_EQ(sovdPort(api), 0) << "nothing listens";

    // The server takes at most maxConnections sockets; a place freed is taken again.
    ASSERT_EQ(kelsim_setVehicleJson(R"({"ecus": [{"name": "ECM"}],
        "servers": {"passwordIterations": 1000, "failedLogins": 3, "maxConnections": 2}})"),
              0);
    restart();
    TarnApi* first = connection();
    ASSERT_NE(connection(), nullptr);
    EXPECT_EQ(connectCode(address_), ServerBusy);
    releaseTarnApi(first);
    std::erase(remotes_, first);
    EXPECT_TRUE(eventually([&] { return connectCode(address_) == 0; }))
        << "the released connection's place is free again";
    ASSERT_EQ(stopServer(), 0);

    ASSERT_EQ(code([&](KelError** e) { kel_startSOVDServer(api, e); }), 0);
    const uint16_t port = sovdPort(api);
    ASSERT_NE(port, 0);
    const std::string answer = httpGet(port, "/sovd/v1/components");
    EXPECT_EQ(answer.rfind("HTTP/1.1 200", 0), 0U) << answer;
    EXPECT_NE(answer.find(R"("id":"ECM")"), std::string::npos) << answer;

    EXPECT_EQ(code([&](KelError** e) { kel_startSOVDServer(api, e); }), SovdServerRunning);
    ASSERT_EQ(addUser(api, L"anna", password, Administrator), 0);
    ASSERT_EQ(logIn(api, L"anna", password), 0);

    const auto config = serverConfiguration(api);
    ASSERT_TRUE(config);
    EXPECT_EQ(config->userCount, 1U);
    EXPECT_EQ(config->flag, 0);
    EXPECT_STREQ(config->text1, L"") << "the server is stopped";
    EXPECT_STREQ(config->text3, L"kel-sim-idp");
    EXPECT_EQ(config->filterCount, 0U);
    ASSERT_EQ(config->userCount2, 1U) << "the local object's login";
    EXPECT_STREQ(config->users2[0]->name, L"anna");
    EXPECT_EQ(config->value2, 3) << "failed logins before the throttle, from the description";

    EXPECT_EQ(code([&](KelError** e) { kel_stopSOVDServer(api, e); }), 0);
    EXPECT_EQ(code([&](KelError** e) { kel_stopSOVDServer(api, e); }), SovdServerNotRunning);
    EXPECT_EQ(code([&](KelError** e) { kel_restartServer(api, 0, e); }), ServerNotRunning);
    EXPECT_EQ(startServer(L"no spaces"), BadServersArgument);
    EXPECT_EQ(code([&](KelError** e) { kel_end(api, e); }), 0);
    EXPECT_EQ(code([&](KelError** e) { kel_startSOVDServer(api, e); }), NotInitialized);
}

// A request the engine is still serving when the server stops, or when the vehicle's
// last other reference goes (the request then ends the vehicle on the serving thread).
TEST_F(ServersConcurrency, TheSovdServerStopsAndEndsUnderARequestInFlight) {
    for (const bool endVehicle : {false, true}) {
        ASSERT_EQ(code([&](KelError** e) { kel_startSOVDServer(api, e); }), 0);
        const uint16_t port = sovdPort(api);
        ASSERT_NE(port, 0);
        kelsim_setDelay("getTargets", 300);
        const uint64_t before = kelsim_callCount("getTargets");
        std::string answer;
        std::thread client([&] { answer = httpGet(port, "/sovd/v1/components"); });
        eventually([&] { return kelsim_callCount("getTargets") != before; });
        if (endVehicle) {
            releaseTarnApi(api);
            api = nullptr;
            kelsim_restart();
        } else {
            EXPECT_EQ(code([&](KelError** e) { kel_stopSOVDServer(api, e); }), 0);
            EXPECT_EQ(sovdPort(api), 0) << "no address once stopped";
            EXPECT_EQ(httpGet(port, "/sovd/v1/components"), "no connection");
        }
        client.join();
        EXPECT_TRUE(answer.empty() || answer.rfind("HTTP/1.1 200", 0) == 0) << answer;
        kelsim_setDelay("getTargets", 0);
        if (endVehicle) {
            EXPECT_TRUE(eventually([&] { return httpGet(port, "/") == "no connection"; }))
                << "the server ended with the vehicle";
            restart();
        }
    }
}

} // namespace
