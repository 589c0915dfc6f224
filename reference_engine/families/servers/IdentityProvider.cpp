#include "IdentityProvider.h"

#include "PasswordHash.h"
#include "Servers.h"

#include <array>
#include <chrono>
#include <map>
#include <mutex>
#include <random>
#include <set>

namespace Varno::Kel_cpp::Reference::IdentityProvider {
namespace {

constexpr std::chrono::minutes codeLifetime{5};
// Bounds what callers who ask for addresses and never sign in leave behind.
constexpr std::size_t maxPending = 1000;

struct Code {
    std::wstring user;
    std::chrono::steady_clock::time_point expires;
};

struct Provider {
    std::mutex mutex;
    std::set<std::wstring> states;
    std::map<std::wstring, Code> codes;
};

Provider& provider() {
    static auto* instance =
        new Provider; // NOLINT(cppcoreguidelines-owning-memory): lives past exit
    return *instance;
}

std::wstring randomHex() {
    std::random_device random;
    std::array<uint8_t, 16> bytes{};
    for (auto& byte : bytes) {
        byte = static_cast<uint8_t>(random());
    }
    const std::string hex = toHex(bytes);
    return {hex.begin(), hex.end()};
}

} // namespace

std::wstring newLoginUrl() {
    const std::wstring state = randomHex();
    auto& p = provider();
    const std::lock_guard lock(p.mutex);
    if (p.states.size() >= maxPending) {
        p.states.erase(p.states.begin());
    }
    p.states.insert(state);
    return std::wstring(loginAddress) + L"?client_id=kel_sim&state=" + state;
}

std::wstring signIn(const std::wstring& url, const std::wstring& user) {
    const auto at = url.find(L"&state=");
    if (url.rfind(loginAddress, 0) != 0 || at == std::wstring::npos) {
        return {};
    }
    const std::wstring state = url.substr(at + 7);
    const std::wstring code = randomHex();
    auto& p = provider();
    const std::lock_guard lock(p.mutex);
    if (p.states.erase(state) == 0) {
        return {};
    }
    std::erase_if(p.codes, [](const auto& c) { return c.second.expires <= loginClock(); });
    p.codes[code] = {user, loginClock() + codeLifetime};
    return code;
}

std::optional<std::wstring> redeem(const std::wstring& code) {
    auto& p = provider();
    const std::lock_guard lock(p.mutex);
    const auto found = p.codes.find(code);
    if (found == p.codes.end()) {
        return std::nullopt;
    }
    const Code issued = found->second;
    p.codes.erase(found);
    if (issued.expires <= loginClock()) {
        return std::nullopt;
    }
    return issued.user;
}

} // namespace Varno::Kel_cpp::Reference::IdentityProvider
