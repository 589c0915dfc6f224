#include "Servers.h"

#include "Admission.h"
#include "Certificates.h"
#include "DataRoot.h"
#include "Describe.h"
#include "IdentityProvider.h"
#include "RemoteEngine.h"
#include "RemoteServer.h"
#include "SafeFiles.h"
#include "SimulatedVehicle.h"
#include "VehicleClock.h"
#include "VehicleDescription.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

std::wstring roleName(uint32_t role) {
    return role == Administrator ? L"administrator" : L"operator";
}

void checkRole(uint32_t role) {
    if (role != Operator && role != Administrator) {
        throw TarnApiException(UnknownRole, L"There is no such role",
                               L"role " + std::to_wstring(role) +
                                   L"; the roles are 1 (operator) and 2 (administrator)");
    }
}

void checkUserName(const std::wstring& name) {
    const bool control = std::any_of(name.begin(), name.end(), [](wchar_t c) { return c < 0x20; });
    if (name.empty() || name.size() > 128 || control) {
        throw TarnApiException(BadServersArgument, L"This is not a user name",
                               L"a user name has 1 to 128 characters and no control characters");
    }
}

void checkPassword(const std::wstring& password) {
    if (password.empty()) {
        throw TarnApiException(BadServersArgument, L"A user needs a password",
                               L"the password is empty");
    }
}

std::shared_ptr<UserInfo> userInfo(const std::wstring& name, uint32_t role) {
    auto info = std::make_shared<UserInfo>();
    info->name = name;
    info->text = roleName(role);
    info->value = role;
    return info;
}

TarnApiException usersUnreadable(const std::filesystem::path& file, const std::string& why) {
    return {UsersUnreadable, L"The engine's users file cannot be used",
            wideFromPath(file) + L": " + fromUtf8(why)};
}

} // namespace

std::chrono::steady_clock::time_point loginClock() {
    return std::chrono::steady_clock::time_point(std::chrono::milliseconds(VehicleClock::nowMs()));
}

ServersSettings ServersSettings::parse(const nlohmann::json& section) {
    try {
        ServersSettings settings;
        settings.passwordIterations = static_cast<uint32_t>(wholeNumber(
            section, "passwordIterations", settings.passwordIterations, 1000, 10000000));
        settings.failedLogins = static_cast<uint32_t>(
            wholeNumber(section, "failedLogins", settings.failedLogins, 1, UINT16_MAX));
        settings.throttleMs = static_cast<uint32_t>(
            wholeNumber(section, "throttleMs", settings.throttleMs, 1, 3600000));
        settings.failureNames = static_cast<uint32_t>(
            wholeNumber(section, "failureNames", settings.failureNames, 1, 1000000));
        settings.port = static_cast<uint16_t>(wholeNumber(section, "port", 0, 0, UINT16_MAX));
        settings.sovdPort =
            static_cast<uint16_t>(wholeNumber(section, "sovdPort", 0, 0, UINT16_MAX));
        settings.maxConnections = static_cast<uint32_t>(
            wholeNumber(section, "maxConnections", settings.maxConnections, 1, 10000));
        settings.maxPendingCalls = static_cast<uint32_t>(
            wholeNumber(section, "maxPendingCalls", settings.maxPendingCalls, 1, 100000));
        settings.idleTimeoutMs = static_cast<uint32_t>(
            wholeNumber(section, "idleTimeoutMs", settings.idleTimeoutMs, 100, 86400000));
        settings.readTimeoutMs = static_cast<uint32_t>(
            wholeNumber(section, "readTimeoutMs", settings.readTimeoutMs, 100, 3600000));
        settings.maxMessageBytes = static_cast<uint32_t>(
            wholeNumber(section, "maxMessageBytes", settings.maxMessageBytes, 1U << 20, 1U << 30));
        if (section.contains("listenAddress")) {
            settings.listenAddress = section.at("listenAddress").get<std::string>();
        }
        return settings;
    } catch (const std::exception& e) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               fromUtf8(e.what()));
    }
}

std::string listenAddress(const ServersSettings& settings) {
    const std::string& address = settings.listenAddress;
    // 127.0.0.0/8 in dotted form, or the one IPv6 loopback address.
    const auto loopbackV4 = [](const std::string& text) {
        unsigned a = 0, b = 0, c = 0, d = 0;
        char end = 0;
        const int read = std::sscanf(text.c_str(), "%3u.%3u.%3u.%3u%c", &a, &b, &c, &d, &end);
        return read == 4 && a == 127 && b <= 255 && c <= 255 && d <= 255 &&
               std::count(text.begin(), text.end(), '.') == 3;
    };
    if (loopbackV4(address) || address == "::1") {
        return address;
    }
    throw TarnApiException(NotLoopback, L"The servers listen on the loopback interface only",
                           L"listenAddress " + fromUtf8(address) +
                               L" is not 127.0.0.0/8 or ::1; no setting opens the "
                               L"simulated vehicle to a network");
}

void ServersState::load(const ServersSettings& settings) {
    const std::lock_guard lock(mutex_);
    settings_ = settings;
}

void ServersState::admit(uint64_t handle, std::string_view operation) {
    const std::lock_guard lock(mutex_);
    const auto session = sessions_.find(handle);
    if (session == sessions_.end() || session->second.ended) {
        if (operation == "reconnectRemoteServer" || operation == "getHandle") {
            return;
        }
        throw TarnApiException(ConnectionEnded, L"This remote connection has ended",
                               L"reconnectRemoteServer renews it while the server runs");
    }
    // A name the table lacks needs the most: admission fails closed.
    const Admission needs = admission(operation).value_or(Admission::Administrator);
    if (needs == Admission::Anyone) {
        return;
    }
    readUsersLocked();
    if (!userManagement_) {
        return; // no roles while user management is off
    }
    const std::wstring& user = session->second.user;
    const std::wstring name = fromUtf8(std::string(operation));
    if (user.empty()) {
        throw TarnApiException(NotLoggedIn, L"The server's user management is on: log in first",
                               session->second.client + L" has not logged in and may not call " +
                                   name);
    }
    if (needs == Admission::Administrator && !administratorLocked(user)) {
        throw TarnApiException(NeedsAdministrator, L"Only an administrator may do this",
                               session->second.client + L" is logged in as " + user +
                                   L", not an administrator, and may not call " + name);
    }
}

bool ServersState::administratorLocked(const std::wstring& user) const {
    const auto found = users_.find(user);
    return found != users_.end() && found->second.role == Administrator;
}

bool ServersState::administers(uint64_t handle) {
    const std::lock_guard lock(mutex_);
    const auto session = sessions_.find(handle);
    if (session == sessions_.end() || session->second.client.empty()) {
        return true; // the local engine object
    }
    readUsersLocked();
    return !userManagement_ ||
           (!session->second.ended && administratorLocked(session->second.user));
}

void ServersState::endSession(SimulatedVehicle& vehicle, uint64_t handle) {
    {
        const std::lock_guard lock(mutex_);
        const auto session = sessions_.find(handle);
        if (session != sessions_.end() && !session->second.client.empty() &&
            !session->second.ended) {
            session->second.ended = true;
            session->second.user.clear();
            announcements_.emplace_back(session->second.client, false);
        }
    }
    announce(vehicle);
}

// {"userManagement": false, "users": [{"name", "role", "salt", "iterations", "hash"}]},
// salt and hash in hex. A file that cannot be read is an error, never an empty list:
// that would open the server to everybody.
void ServersState::readUsersLocked() {
    if (usersRead_) {
        return;
    }
    const auto file = dataFolder("users") / "users.json";
    std::map<std::wstring, User> users;
    bool management = false;
    if (std::filesystem::exists(file)) {
        try {
            std::ifstream in(file, std::ios::binary);
            const auto json = nlohmann::json::parse(in);
            management = json.at("userManagement").get<bool>();
            for (const auto& entry : json.at("users")) {
                User user;
                user.role = entry.at("role").get<uint32_t>();
                user.password.salt = fromHex(entry.at("salt").get<std::string>());
                user.password.iterations = entry.at("iterations").get<uint32_t>();
                user.password.hash = fromHex(entry.at("hash").get<std::string>());
                if (user.password.iterations == 0 || user.password.hash.empty()) {
                    throw std::invalid_argument("a user without a password hash");
                }
                users[fromUtf8(entry.at("name").get<std::string>())] = std::move(user);
            }
        } catch (const std::exception& e) {
            throw usersUnreadable(file, e.what());
        }
    }
    usersFile_ = file;
    users_ = std::move(users);
    userManagement_ = management;
    usersRead_ = true;
}

void ServersState::saveUsersLocked() {
    nlohmann::json users = nlohmann::json::array();
    for (const auto& [name, user] : users_) {
        users.push_back({{"name", toUtf8(name)},
                         {"role", user.role},
                         {"salt", toHex(user.password.salt)},
                         {"iterations", user.password.iterations},
                         {"hash", toHex(user.password.hash)}});
    }
    const nlohmann::json json{{"userManagement", userManagement_}, {"users", users}};
    const std::error_code error = writeWhole(usersFile_, json.dump(2) + "\n");
    if (error) {
        throw usersUnreadable(usersFile_, error.message());
    }
}

Servers::Servers(std::shared_ptr<SimulatedVehicle> vehicle, const EngineObject& object)
    : vehicle_(std::move(vehicle)), state_(vehicle_->servers), handle_(object.handle),
      remoteClient_(object.remoteClient) {
    if (remoteClient_.empty()) {
        return;
    }
    {
        // The connection is announced in turn with every end and renewal, so that one the
        // server ends at once is never heard of as ended before it is heard of at all.
        const std::lock_guard lock(state_.mutex_);
        state_.sessions_[handle_].client = remoteClient_;
        state_.announcements_.emplace_back(remoteClient_, true);
    }
    // Every call of the connection passes here first.
    object.clock->admit = [vehicle = std::weak_ptr<SimulatedVehicle>(vehicle_),
                           handle = handle_](std::string_view operation) {
        if (const auto live = vehicle.lock()) {
            live->servers.admit(handle, operation);
        }
    };
}

Servers::~Servers() {
    const std::lock_guard lock(state_.mutex_);
    state_.sessions_.erase(handle_);
}

template <class Which>
std::vector<std::wstring> Servers::endSessionsLocked(Which which) {
    std::vector<std::wstring> ended;
    for (auto& [handle, session] : state_.sessions_) {
        if (!session.client.empty() && !session.ended && which(handle)) {
            session.ended = true;
            session.user.clear();
            ended.push_back(session.client);
            state_.announcements_.emplace_back(session.client, false);
        }
    }
    return ended;
}

// Outside the state's lock, as the handlers may call the engine; in the order of the
// changes, which one thread at a time announces (a thread that finds another at it
// leaves its own to that one), so that a renewal never overtakes the end before it.
void ServersState::announce(SimulatedVehicle& vehicle) {
    std::unique_lock lock(mutex_);
    if (announcing_) {
        return;
    }
    announcing_ = true;
    while (!announcements_.empty()) {
        const auto [client, connected] = std::move(announcements_.front());
        announcements_.pop_front();
        lock.unlock();
        if (connected) {
            clientConnected(vehicle, client);
        } else {
            clientDisconnected(vehicle, client);
        }
        lock.lock();
    }
    announcing_ = false;
}

void ServersState::connectionGone(SimulatedVehicle& vehicle, const std::wstring& client) {
    {
        const std::lock_guard lock(mutex_);
        announcements_.emplace_back(client, false);
    }
    announce(vehicle);
}

std::wstring Servers::startServer(const std::wstring& name) {
    vehicle_->lifecycle.requireInitialized();
    const std::wstring server = name.empty() ? L"server" : name;
    const bool usable =
        server.size() <= 64 && std::all_of(server.begin(), server.end(), [](wchar_t c) {
            return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') ||
                   (c >= L'0' && c <= L'9') || c == L'.' || c == L'-' || c == L'_';
        });
    if (!usable) {
        throw TarnApiException(BadServersArgument, L"This is not a server name",
                               L"up to 64 letters, digits, '.', '-' and '_'");
    }
    const std::lock_guard lock(state_.mutex_);
    state_.readUsersLocked(); // admitted by ServersState::admit
    if (!state_.serverAddress_.empty()) {
        throw TarnApiException(ServerRunning, L"The server runs already",
                               L"it listens at " + state_.serverAddress_);
    }
    // Opening a socket calls nothing of the engine: safe under the lock.
    // A server started again listens where it did, so that its clients reconnect.
    auto settings = state_.settings_;
    if (settings.port == 0 && state_.lastPort_ != 0) {
        settings.port = state_.lastPort_;
        try {
            state_.server_ = std::make_shared<Remote::RemoteServer>(vehicle_, settings);
        } catch (const TarnApiException& e) {
            if (e.code != ServerRunning) {
                throw;
            }
            settings.port = 0; // taken meanwhile
        }
    }
    if (!state_.server_) {
        state_.server_ = std::make_shared<Remote::RemoteServer>(vehicle_, settings);
    }
    state_.lastPort_ = state_.server_->port();
    const std::wstring address = state_.server_->address();
    state_.serverAddress_ = address;
    post(*vehicle_, EventKind::ServerStarted, 0, L"The server started", address);
    return address;
}

void Servers::stopServer(const std::wstring& reason) {
    vehicle_->lifecycle.requireInitialized();
    std::vector<std::wstring> ended;
    std::shared_ptr<Remote::RemoteServer> listener;
    {
        const std::lock_guard lock(state_.mutex_);
        state_.readUsersLocked(); // admitted by ServersState::admit
        if (state_.serverAddress_.empty()) {
            throw TarnApiException(ServerNotRunning, L"The server is not running");
        }
        state_.serverAddress_.clear();
        listener = std::move(state_.server_);
        ended = endSessionsLocked([](uint64_t) { return true; });
        post(*vehicle_, EventKind::ServerStopped, static_cast<int32_t>(ended.size()),
             L"The server stopped", reason);
    }
    announce();
    // Its connections' workers may be waiting for the lock: stopped outside it.
    listener->stop();
}

void Servers::restartServer(int32_t endClients) {
    vehicle_->lifecycle.requireInitialized();
    std::vector<std::wstring> ended;
    std::shared_ptr<Remote::RemoteServer> listener;
    {
        const std::lock_guard lock(state_.mutex_);
        state_.readUsersLocked(); // admitted by ServersState::admit
        if (state_.serverAddress_.empty()) {
            throw TarnApiException(ServerNotRunning, L"The server is not running");
        }
        if (endClients != 0) {
            ended = endSessionsLocked([](uint64_t) { return true; });
            listener = state_.server_;
        }
        post(*vehicle_, EventKind::ServerStopped, static_cast<int32_t>(ended.size()),
             L"The server stopped", L"restart");
        post(*vehicle_, EventKind::ServerStarted, 0, L"The server started", state_.serverAddress_);
    }
    announce();
    if (listener) {
        listener->endAll();
    }
}

std::shared_ptr<TarnApi> Servers::connectRemoteServer(const std::wstring& address) {
    vehicle_->lifecycle.requireInitialized();
    // A broken connection is posted on this engine's vehicle.
    return std::make_shared<RemoteEngine>(
        std::make_shared<Remote::RemoteClient>(address, vehicle_));
}

void Servers::disconnect() {
    vehicle_->lifecycle.requireInitialized();
    if (remoteClient_.empty()) {
        throw TarnApiException(
            NotARemoteConnection, L"This engine object is not a remote connection",
            L"disconnect ends a remote connection; the local engine ends with end");
    }
    state_.endSession(*vehicle_, handle_);
}

void Servers::disconnectAllClients() {
    vehicle_->lifecycle.requireInitialized();
    std::vector<std::wstring> ended;
    std::shared_ptr<Remote::RemoteServer> listener;
    {
        const std::lock_guard lock(state_.mutex_);
        state_.readUsersLocked(); // admitted by ServersState::admit
        ended = endSessionsLocked([](uint64_t) { return true; });
        listener = state_.server_;
    }
    announce();
    if (listener) {
        listener->endAll();
    }
}

bool Servers::reconnectRemoteServer(uint64_t handle) {
    vehicle_->lifecycle.requireInitialized();
    {
        const std::lock_guard lock(state_.mutex_);
        const auto session = state_.sessions_.find(handle);
        if (session == state_.sessions_.end() || session->second.client.empty()) {
            throw TarnApiException(UnknownHandle, L"No remote connection has this handle",
                                   L"handle " + std::to_wstring(handle));
        }
        if (state_.serverAddress_.empty()) {
            return false;
        }
        if (!session->second.ended) {
            return true;
        }
        session->second.ended = false;
        session->second.user.clear(); // a renewed connection logs in again
        state_.announcements_.emplace_back(session->second.client, true);
    }
    announce();
    return true;
}

void Servers::addUser(const std::wstring& name, const std::wstring& password, uint32_t role) {
    vehicle_->lifecycle.requireInitialized();
    checkUserName(name);
    checkPassword(password);
    checkRole(role);
    uint32_t iterations = 0;
    {
        const std::lock_guard lock(state_.mutex_);
        state_.readUsersLocked(); // admitted by ServersState::admit
        if (state_.users_.contains(name)) {
            throw TarnApiException(UserExists, L"The user exists already", name);
        }
        iterations = state_.settings_.passwordIterations;
    }
    // Hashing takes a while: not under the lock that every remote call passes.
    auto stored = PasswordHash::make(password, iterations);
    const std::lock_guard lock(state_.mutex_);
    if (state_.users_.contains(name)) {
        throw TarnApiException(UserExists, L"The user exists already", name);
    }
    state_.users_[name] = {role, std::move(stored)};
    try {
        state_.saveUsersLocked();
    } catch (...) {
        state_.users_.erase(name);
        throw;
    }
}

void Servers::removeUser(const std::wstring& name) {
    vehicle_->lifecycle.requireInitialized();
    const std::lock_guard lock(state_.mutex_);
    state_.readUsersLocked(); // admitted by ServersState::admit
    const auto user = state_.users_.find(name);
    if (user == state_.users_.end()) {
        throw TarnApiException(UnknownUser, L"There is no such user", name);
    }
    const auto removed = *user;
    state_.users_.erase(user);
    try {
        state_.saveUsersLocked();
    } catch (...) {
        state_.users_.insert(removed);
        throw;
    }
    for (auto& [handle, session] : state_.sessions_) {
        if (session.user == name) {
            session.user.clear();
            post(*vehicle_, EventKind::UserLoggedOut, static_cast<int32_t>(removed.second.role),
                 L"A user was logged out: the user was removed", name);
        }
    }
}

void Servers::updateUser(const std::wstring& name, const std::wstring& newName,
                         const std::wstring& newPassword, uint32_t role) {
    vehicle_->lifecycle.requireInitialized();
    const std::wstring renamed = newName.empty() ? name : newName;
    checkUserName(renamed);
    checkRole(role);
    uint32_t iterations = 0;
    {
        const std::lock_guard lock(state_.mutex_);
        state_.readUsersLocked(); // admitted by ServersState::admit
        if (!state_.users_.contains(name)) {
            throw TarnApiException(UnknownUser, L"There is no such user", name);
        }
        iterations = state_.settings_.passwordIterations;
    }
    std::optional<PasswordHash> stored;
    if (!newPassword.empty()) {
        stored = PasswordHash::make(newPassword, iterations);
    }
    const std::lock_guard lock(state_.mutex_);
    const auto user = state_.users_.find(name);
    if (user == state_.users_.end()) {
        throw TarnApiException(UnknownUser, L"There is no such user", name);
    }
    if (renamed != name && state_.users_.contains(renamed)) {
        throw TarnApiException(UserExists, L"The user exists already", renamed);
    }
    const auto before = state_.users_;
    ServersState::User changed{role, stored ? std::move(*stored) : user->second.password};
    state_.users_.erase(user);
    state_.users_[renamed] = std::move(changed);
    try {
        state_.saveUsersLocked();
    } catch (...) {
        state_.users_ = before;
        throw;
    }
    for (auto& [handle, session] : state_.sessions_) {
        if (session.user == name) {
            session.user = renamed;
        }
    }
}

std::vector<std::shared_ptr<UserInfo>> Servers::getUsers() {
    vehicle_->lifecycle.requireInitialized();
    const std::lock_guard lock(state_.mutex_);
    state_.readUsersLocked();
    std::vector<std::shared_ptr<UserInfo>> users;
    for (const auto& [name, user] : state_.users_) {
        users.push_back(userInfo(name, user.role));
    }
    return users;
}

bool Servers::getServerUserManagement() {
    vehicle_->lifecycle.requireInitialized();
    const std::lock_guard lock(state_.mutex_);
    state_.readUsersLocked();
    return state_.userManagement_;
}

void Servers::setServerUserManagement(bool enabled) {
    vehicle_->lifecycle.requireInitialized();
    const std::lock_guard lock(state_.mutex_);
    state_.readUsersLocked(); // admitted by ServersState::admit
    const bool before = state_.userManagement_;
    state_.userManagement_ = enabled;
    try {
        state_.saveUsersLocked();
    } catch (...) {
        state_.userManagement_ = before;
        throw;
    }
}

void Servers::loggedIn(const std::wstring& user, const std::wstring& how) {
    auto& session = state_.sessions_[handle_];
    if (session.ended) { // ended by the server while the password was checked
        throw TarnApiException(ConnectionEnded, L"This remote connection has ended",
                               L"reconnectRemoteServer renews it while the server runs");
    }
    session.user = user;
    post(*vehicle_, EventKind::UserLoggedIn, static_cast<int32_t>(state_.users_.at(user).role), how,
         user);
}

void Servers::logIn(std::shared_ptr<LogInOutConfig> config) {
    vehicle_->lifecycle.requireInitialized();
    if (!config || config->user.empty()) {
        throw TarnApiException(BadServersArgument, L"A login needs a user name");
    }
    const std::wstring& name = config->user;
    std::optional<PasswordHash> stored;
    uint32_t iterations = 0;
    uint32_t attempt = 0;
    {
        const std::lock_guard lock(state_.mutex_);
        state_.readUsersLocked();
        // Counted as a failure before the check, so that logins arriving together can
        // run no more checks of one name than the throttle allows; a success forgets it.
        attempt = state_.countAttemptLocked(name, loginClock());
        const auto user = state_.users_.find(name);
        if (user != state_.users_.end()) {
            stored = user->second.password;
        }
        iterations = state_.settings_.passwordIterations;
    }
    // Outside the lock. An unknown name costs as much as a known one, so the time a
    // login takes does not tell which names exist.
    const bool matches = stored ? stored->matches(config->password)
                                : (PasswordHash::make(config->password, iterations), false);
    const std::lock_guard lock(state_.mutex_);
    if (matches && state_.users_.contains(name)) {
        state_.failures_.erase(name);
        loggedIn(name, L"A user logged in");
        return;
    }
    post(*vehicle_, EventKind::LoginFailed, static_cast<int32_t>(attempt), L"A login failed", name);
    throw TarnApiException(LoginFailed, L"The user name or the password is wrong", name);
}

std::optional<Scram::Keys> ServersState::scramKeys(const std::wstring& user, uint32_t& attempt) {
    const std::lock_guard lock(mutex_);
    readUsersLocked();
    attempt = countAttemptLocked(user, loginClock());
    const auto found = users_.find(user);
    if (found == users_.end()) {
        return std::nullopt;
    }
    return Scram::Keys::fromPasswordHash(found->second.password);
}

void ServersState::scramOutcome(SimulatedVehicle& vehicle, uint64_t handle,
                                const std::wstring& user, bool proved, uint32_t attempt) {
    const std::lock_guard lock(mutex_);
    const auto known = users_.find(user);
    if (!proved || known == users_.end()) {
        post(vehicle, EventKind::LoginFailed, static_cast<int32_t>(attempt), L"A login failed",
             user);
        throw TarnApiException(LoginFailed, L"The user name or the password is wrong", user);
    }
    failures_.erase(user);
    auto& session = sessions_[handle];
    if (session.ended) {
        throw TarnApiException(ConnectionEnded, L"This remote connection has ended",
                               L"reconnectRemoteServer renews it while the server runs");
    }
    session.user = user;
    post(vehicle, EventKind::UserLoggedIn, static_cast<int32_t>(known->second.role),
         L"A user logged in", user);
}

uint32_t ServersState::countAttemptLocked(const std::wstring& name,
                                          std::chrono::steady_clock::time_point now) {
    auto found = failures_.find(name);
    if (found != failures_.end() && found->second.until > now) {
        const auto wait =
            std::chrono::ceil<std::chrono::seconds>(found->second.until - now).count();
        throw TarnApiException(LoginThrottled, L"Too many failed logins: try again later",
                               name + L" may try again in " + std::to_wstring(wait) + L" s");
    }
    if (found == failures_.end()) {
        // Names that are not users count too, so the table is bounded: a new name takes
        // the place of one that is not throttled, never of one that is.
        if (failures_.size() >= settings_.failureNames) {
            const auto free =
                std::find_if(failures_.begin(), failures_.end(),
                             [now](const auto& entry) { return entry.second.until <= now; });
            if (free == failures_.end()) {
                throw TarnApiException(LoginThrottled, L"Too many failed logins: try again later",
                                       L"logins of " + std::to_wstring(failures_.size()) +
                                           L" names are throttled");
            }
            failures_.erase(free);
        }
        found = failures_.emplace(name, Failures{}).first;
    }
    auto& failures = found->second;
    ++failures.count;
    if (failures.count >= settings_.failedLogins) {
        const auto doublings = std::min<uint32_t>(failures.count - settings_.failedLogins, 8);
        failures.until =
            now + std::chrono::milliseconds(uint64_t{settings_.throttleMs} << doublings);
    }
    return failures.count;
}

void Servers::logOut(std::shared_ptr<LogInOutConfig> config) {
    vehicle_->lifecycle.requireInitialized();
    const std::wstring name = config ? config->user : std::wstring();
    const std::lock_guard lock(state_.mutex_);
    const auto session = state_.sessions_.find(handle_);
    if (session == state_.sessions_.end() || session->second.user.empty() ||
        (!name.empty() && name != session->second.user)) {
        throw TarnApiException(NotLoggedIn, L"This user is not logged in on this engine object",
                               name.empty() ? L"nobody is logged in" : name);
    }
    const std::wstring user = session->second.user;
    if (remoteClient_.empty()) {
        state_.sessions_.erase(session);
    } else {
        session->second.user.clear();
    }
    const auto known = state_.users_.find(user);
    post(*vehicle_, EventKind::UserLoggedOut,
         static_cast<int32_t>(known != state_.users_.end() ? known->second.role : 0),
         L"A user logged out", user);
}

bool Servers::thirdPartyLogin(const std::wstring& code) {
    vehicle_->lifecycle.requireInitialized();
    const auto user = IdentityProvider::redeem(code); // the provider's lock, taken alone
    if (!user) {
        return false;
    }
    const std::lock_guard lock(state_.mutex_);
    state_.readUsersLocked();
    if (!state_.users_.contains(*user)) {
        return false;
    }
    loggedIn(*user, L"A user logged in through the identity provider");
    return true;
}

std::wstring Servers::getThirdPartyLoginUrl(const std::wstring& provider) {
    vehicle_->lifecycle.requireInitialized();
    if (!provider.empty() && provider != IdentityProvider::name) {
        throw TarnApiException(UnknownIdentityProvider,
                               L"The engine knows no such identity provider",
                               provider + L"; the engine's is " + IdentityProvider::name);
    }
    return IdentityProvider::newLoginUrl();
}

std::wstring Servers::getCertificateByPublicKey(const std::wstring& publicKey,
                                                const std::wstring& /*text2*/,
                                                const std::wstring& /*text3*/,
                                                const std::wstring& /*text4*/) {
    vehicle_->lifecycle.requireInitialized();
    std::vector<uint8_t> key;
    try {
        key = pemBody(toUtf8(publicKey), "PUBLIC KEY");
    } catch (const std::invalid_argument& e) {
        throw TarnApiException(NotAPublicKey, L"This is not a public key", fromUtf8(e.what()));
    }
    const std::lock_guard lock(state_.mutex_); // one reader of the store's folder at a time
    for (const auto& certificate : readCertificateStore(dataFolder("certificates"))) {
        if (certificate.publicKey == key) {
            return certificate.pem;
        }
    }
    throw TarnApiException(UnknownCertificate, L"No certificate of the store has this public key");
}

std::wstring
Servers::createCertificateFromCSR(const std::wstring& /*text1*/, const std::wstring& /*text2*/,
                                  const std::wstring& /*text3*/, const std::wstring& /*text4*/,
                                  const std::wstring& /*text5*/, const std::wstring& /*text6*/) {
    vehicle_->lifecycle.requireInitialized();
    throw TarnApiException(NeedsCryptography, L"The simulated engine cannot issue certificates",
                           L"issuing a certificate means signing it, which needs a cryptographic "
                           L"library the simulated engine does not have");
}

std::vector<std::wstring> Servers::getCertificateChainById(const std::wstring& id,
                                                           const std::wstring& /*text2*/,
                                                           const std::wstring& /*text3*/) {
    vehicle_->lifecycle.requireInitialized();
    const std::lock_guard lock(state_.mutex_);
    return certificateChain(readCertificateStore(dataFolder("certificates")), id);
}

void Servers::startSOVDServer() {
    vehicle_->lifecycle.requireInitialized();
    const std::lock_guard lock(state_.mutex_);
    state_.readUsersLocked(); // admitted by ServersState::admit
    if (!state_.sovdAddress_.empty()) {
        throw TarnApiException(SovdServerRunning, L"The SOVD server runs already",
                               state_.sovdAddress_);
    }
    state_.sovdAddress_ = L"kel-sim://sovd";
    post(*vehicle_, EventKind::SovdServerStarted, 0, L"The SOVD server started",
         state_.sovdAddress_);
}

void Servers::stopSOVDServer() {
    vehicle_->lifecycle.requireInitialized();
    const std::lock_guard lock(state_.mutex_);
    state_.readUsersLocked(); // admitted by ServersState::admit
    if (state_.sovdAddress_.empty()) {
        throw TarnApiException(SovdServerNotRunning, L"The SOVD server is not running");
    }
    state_.sovdAddress_.clear();
    post(*vehicle_, EventKind::SovdServerStopped, 0, L"The SOVD server stopped", L"");
}

std::shared_ptr<ServerSettings> Servers::getServerSettings() {
    vehicle_->lifecycle.requireInitialized();
    const std::lock_guard lock(state_.mutex_);
    state_.readUsersLocked();
    auto settings = std::make_shared<ServerSettings>();
    settings->flag = !state_.serverAddress_.empty();
    settings->value1 = static_cast<uint32_t>(
        std::count_if(state_.sessions_.begin(), state_.sessions_.end(), [](const auto& entry) {
            return !entry.second.client.empty() && !entry.second.ended;
        }));
    settings->value2 = static_cast<uint32_t>(state_.users_.size());
    settings->value3 = state_.sovdAddress_.empty() ? 0 : 1;
    return settings;
}

std::shared_ptr<TarnApiServerConfig> Servers::getServerConfiguration() {
    const auto settings = getServerSettings();
    const std::lock_guard lock(state_.mutex_);
    auto config = std::make_shared<TarnApiServerConfig>();
    for (const auto& [name, user] : state_.users_) {
        config->users.push_back(userInfo(name, user.role));
    }
    config->flag = state_.userManagement_;
    config->value1 = settings->value1;
    config->text1 = state_.serverAddress_;
    config->text2 = state_.sovdAddress_;
    config->text3 = IdentityProvider::name;
    config->text4 = IdentityProvider::loginAddress;
    for (const auto& [handle, session] : state_.sessions_) {
        const auto user = state_.users_.find(session.user);
        if (user != state_.users_.end()) {
            config->users2.push_back(userInfo(user->first, user->second.role));
        }
    }
    config->value2 = static_cast<uint16_t>(state_.settings_.failedLogins);
    return config;
}

} // namespace Varno::Kel_cpp::Reference
