// Servers: the engine's server and SOVD server, remote connections, users and their
// logins, the outside identity provider and the certificate store.
#pragma once

#include "Families.h"
#include "PasswordHash.h"
#include "Scram.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Varno::Kel_cpp::Reference {

class SimulatedVehicle;
struct EngineObject;
namespace Remote {
class RemoteServer;
}

// Roles of the server's users (UserInfo::value).
enum UserRole : uint32_t {
    Operator = 1,
    Administrator = 2,
};

// The clock of logins and identity provider codes: vehicle time (VehicleClock.h), which
// tests move on with kelsim_advanceClock, so that no test sleeps through a throttle.
std::chrono::steady_clock::time_point loginClock();

// The "servers" section of the vehicle description.
struct ServersSettings {
    uint32_t passwordIterations = 100000; // PBKDF2 iterations for a new password
    uint32_t failedLogins = 3;            // failures in a row before logins are throttled
    uint32_t throttleMs = 1000;           // the first wait; it doubles with each failure
    uint32_t failureNames = 1000;         // names whose failures are kept at most
    // Where the engine's server and the SOVD server listen. Loopback only: a description
    // that names any other address is refused when a server starts (listenAddress()).
    std::string listenAddress = "127.0.0.1";
    uint16_t port = 0;     // the engine's server; 0 lets the system choose
    uint16_t sovdPort = 0; // the SOVD server; 0 lets the system choose
    // The engine's server's bounds (reference_engine/README.md, "The server on loopback").
    uint32_t maxConnections = 64;
    uint32_t maxPendingCalls = 64;        // per connection, received and not yet answered
    uint32_t idleTimeoutMs = 600000;      // no message from a client: the server ends it
    uint32_t readTimeoutMs = 30000;       // a message begun must be whole within this
    uint32_t maxMessageBytes = 64U << 20; // a call's arguments or result, all parts told

    // Throws TarnApiException BadVehicleDescription.
    static ServersSettings parse(const nlohmann::json& section);
};

// The address the servers bind to: `settings.listenAddress` when it is a loopback address
// (127.0.0.0/8 or ::1), else TarnApiException NotLoopback. No setting opens the simulated
// vehicle to a network.
std::string listenAddress(const ServersSettings& settings);

// Per vehicle, under its own lock. Users and the user management switch live in the
// data root's "users" folder, read on first use.
class ServersState {
public:
    void load(const ServersSettings& settings);

    // The check every call of a remote client's connection passes (CallClock::admit): the
    // admission table of the description (generated/Admission.h) against its login.
    void admit(uint64_t handle, std::string_view operation);
    // The engine object may do what an administrator may: the local one, or a remote
    // connection logged in as an administrator (any while user management is off).
    bool administers(uint64_t handle);
    // Ends a remote connection's session (disconnect, and end on a remote connection)
    // and announces it; nothing for the local engine object.
    void endSession(SimulatedVehicle& vehicle, uint64_t handle);

    // A remote client's engine object is gone: its end is announced in turn with the
    // ends and renewals before it, never ahead of them.
    void connectionGone(SimulatedVehicle& vehicle, const std::wstring& client);
    // Announces the queued ends and renewals, outside the lock (see Servers.cpp).
    void announce(SimulatedVehicle& vehicle);

    // A remote connection's login by SCRAM-SHA-256 (RemoteServer.cpp), with the throttle
    // and events of logIn: the keys of `user` (none for an unknown name), counted as an
    // attempt first (throws LoginThrottled); then the exchange's outcome, which throws
    // LoginFailed for a wrong proof and ConnectionEnded for a session ended meanwhile.
    std::optional<Scram::Keys> scramKeys(const std::wstring& user, uint32_t& attempt);
    void scramOutcome(SimulatedVehicle& vehicle, uint64_t handle, const std::wstring& user,
                      bool proved, uint32_t attempt);

private:
    friend class Servers;

    struct User {
        uint32_t role = Operator;
        PasswordHash password;
    };
    // One per remote connection, and one for a local engine object that logged in.
    struct Session {
        std::wstring client; // empty for a local engine object
        bool ended = false;  // ended by the server or by the client; calls are refused
        std::wstring user;   // logged in as; empty when not logged in
    };
    struct Failures {
        uint32_t count = 0;
        std::chrono::steady_clock::time_point until; // throttled until then
    };

    // Callers hold mutex_.
    void readUsersLocked();
    bool administratorLocked(const std::wstring& user) const;
    // Counts a login attempt of `name` as a failure and returns the failures in a row;
    // throws LoginThrottled instead while the name is throttled.
    uint32_t countAttemptLocked(const std::wstring& name,
                                std::chrono::steady_clock::time_point now);
    void saveUsersLocked();

    std::mutex mutex_;
    ServersSettings settings_;
    bool usersRead_ = false;
    std::filesystem::path usersFile_;
    std::map<std::wstring, User> users_;
    bool userManagement_ = false;
    std::map<uint64_t, Session> sessions_;         // by engine handle
    std::map<std::wstring, Failures> failures_;    // by user name, known or not
    std::wstring serverAddress_;                   // empty while the server is stopped
    std::shared_ptr<Remote::RemoteServer> server_; // its listener while it runs
    uint16_t lastPort_ = 0;    // a server started again takes its port again, when free
    std::wstring sovdAddress_; // empty while the SOVD server is stopped
    // Connections ended (false) and renewed (true), in order, for the handlers.
    std::deque<std::pair<std::wstring, bool>> announcements_;
    bool announcing_ = false;
};

class Servers final : public ServersFamily {
public:
    Servers(std::shared_ptr<SimulatedVehicle> vehicle, const EngineObject& object);
    Servers(const Servers&) = delete;
    Servers& operator=(const Servers&) = delete;
    ~Servers() override;

    std::wstring startServer(const std::wstring& name) override;
    void stopServer(const std::wstring& reason) override;
    void restartServer(int32_t endClients) override;
    std::shared_ptr<TarnApi> connectRemoteServer(const std::wstring& address) override;
    void disconnect() override;
    void addUser(const std::wstring& name, const std::wstring& password, uint32_t role) override;
    void removeUser(const std::wstring& name) override;
    std::vector<std::shared_ptr<UserInfo>> getUsers() override;
    void logOut(std::shared_ptr<LogInOutConfig> config) override;
    void updateUser(const std::wstring& name, const std::wstring& newName,
                    const std::wstring& newPassword, uint32_t role) override;
    bool getServerUserManagement() override;
    void setServerUserManagement(bool enabled) override;
    void disconnectAllClients() override;
    bool reconnectRemoteServer(uint64_t handle) override;
    bool thirdPartyLogin(const std::wstring& code) override;
    std::wstring getThirdPartyLoginUrl(const std::wstring& provider) override;
    std::wstring getCertificateByPublicKey(const std::wstring& publicKey, const std::wstring& text2,
                                           const std::wstring& text3,
                                           const std::wstring& text4) override;
    std::wstring createCertificateFromCSR(const std::wstring& text1, const std::wstring& text2,
                                          const std::wstring& text3, const std::wstring& text4,
                                          const std::wstring& text5,
                                          const std::wstring& text6) override;
    std::vector<std::wstring> getCertificateChainById(const std::wstring& id,
                                                      const std::wstring& text2,
                                                      const std::wstring& text3) override;
    void startSOVDServer() override;
    void stopSOVDServer() override;
    void logIn(std::shared_ptr<LogInOutConfig> config) override;
    std::shared_ptr<ServerSettings> getServerSettings() override;
    std::shared_ptr<TarnApiServerConfig> getServerConfiguration() override;

private:
    // Ends the sessions `which` selects and queues their announcement, which the caller
    // makes once the lock is let go (announce).
    template <class Which>
    std::vector<std::wstring> endSessionsLocked(Which which);
    void announce() { state_.announce(*vehicle_); }
    void loggedIn(const std::wstring& user, const std::wstring& how);

    std::shared_ptr<SimulatedVehicle> vehicle_;
    ServersState& state_;
    uint64_t handle_;
    std::wstring remoteClient_; // empty for the local engine object
};

} // namespace Varno::Kel_cpp::Reference
