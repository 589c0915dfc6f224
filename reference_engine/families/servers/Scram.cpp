#include "Scram.h"

#include "Describe.h"

#include <algorithm>
#include <atomic>
#include <cctype>
#include <charconv>
#include <random>
#include <stdexcept>

namespace Varno::Kel_cpp::Reference::Scram {
namespace {

constexpr std::string_view alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
// The GS2 header without channel binding, and its Base64 as "c=" carries it back.
constexpr std::string_view gs2Header = "n,,";
constexpr std::string_view gs2HeaderBase64 = "biws";
constexpr std::size_t nonceBytes = 24;
constexpr std::size_t fakeSaltLength = PasswordHash::saltLength;
// The engine's bounds for passwordIterations: fewer is too weak, more lets a server make
// the client spin.
constexpr uint32_t minIterations = 1000;
constexpr uint32_t maxIterations = 10000000;

std::span<const uint8_t> bytesOf(std::string_view text) {
    return {reinterpret_cast<const uint8_t*>(text.data()), text.size()}; // NOLINT
}

std::vector<uint8_t> randomBytes(std::size_t count) {
    std::random_device random;
    std::vector<uint8_t> bytes(count);
    for (auto& byte : bytes) {
        byte = static_cast<uint8_t>(random());
    }
    return bytes;
}

std::string randomNonce() { return base64(randomBytes(nonceBytes)); }

// RFC 5802's printable: %x21-7E but ','.
bool isNonce(std::string_view nonce) {
    return !nonce.empty() && std::all_of(nonce.begin(), nonce.end(),
                                         [](char c) { return c > 0x20 && c < 0x7F && c != ','; });
}

bool equalInConstantTime(std::span<const uint8_t> a, std::span<const uint8_t> b) {
    if (a.size() != b.size()) {
        return false;
    }
    uint8_t difference = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        difference |= static_cast<uint8_t>(a[i] ^ b[i]);
    }
    return difference == 0;
}

Sha256Digest clientKeyOf(std::span<const uint8_t> saltedPassword) {
    return hmacSha256(saltedPassword, bytesOf("Client Key"));
}

Sha256Digest serverKeyOf(std::span<const uint8_t> saltedPassword) {
    return hmacSha256(saltedPassword, bytesOf("Server Key"));
}

// A message's attributes, "a=value" separated by ','. Values never hold a ',' (names
// escape it, Base64 and nonces have none), so splitting is exact.
class Attributes {
public:
    explicit Attributes(std::string_view message) : rest_(message) {
        if (message.find('\0') != std::string_view::npos) {
            throw Malformed("SCRAM: a NUL character in the message");
        }
    }

    // The value of the next attribute, which must be `name`.
    std::string_view take(char name) {
        if (done_) {
            throw Malformed(std::string("SCRAM: attribute ") + name + " missing");
        }
        const std::size_t comma = rest_.find(',');
        const std::string_view field = rest_.substr(0, comma);
        if (comma == std::string_view::npos) {
            done_ = true;
        } else {
            rest_.remove_prefix(comma + 1);
        }
        if (field.size() < 2 || field[0] != name || field[1] != '=') {
            if (field.size() >= 2 && field[0] == 'm' && field[1] == '=') {
                throw Malformed("SCRAM: mandatory extensions are not supported");
            }
            throw Malformed(std::string("SCRAM: attribute ") + name + " expected");
        }
        return field.substr(2);
    }

    // Optional extensions ("x=value") may follow; they are ignored.
    void skipExtensions() {
        while (!done_) {
            const std::size_t comma = rest_.find(',');
            const std::string_view field = rest_.substr(0, comma);
            if (field.size() < 2 || field[1] != '=' ||
                !std::isalpha(static_cast<unsigned char>(field[0]))) {
                throw Malformed("SCRAM: not an attribute");
            }
            if (comma == std::string_view::npos) {
                done_ = true;
            } else {
                rest_.remove_prefix(comma + 1);
            }
        }
    }

private:
    std::string_view rest_;
    bool done_ = false;
};

std::string escapeName(std::string_view name) {
    std::string out;
    for (const char c : name) {
        if (c == ',') {
            out += "=2C";
        } else if (c == '=') {
            out += "=3D";
        } else {
            out += c;
        }
    }
    return out;
}

std::string unescapeName(std::string_view name) {
    std::string out;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (name[i] != '=') {
            out += name[i];
        } else if (name.substr(i, 3) == "=2C") {
            out += ',';
            i += 2;
        } else if (name.substr(i, 3) == "=3D") {
            out += '=';
            i += 2;
        } else {
            throw Malformed("SCRAM: '=' in a user name must be =2C or =3D");
        }
    }
    if (out.empty()) {
        throw Malformed("SCRAM: empty user name");
    }
    // Only valid UTF-8 survives the engine's conversion unchanged.
    if (toUtf8(fromUtf8(out)) != out) {
        throw Malformed("SCRAM: the user name is not UTF-8");
    }
    return out;
}

uint32_t iterationCount(std::string_view text) {
    uint32_t count = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
    if (text.empty() || text[0] == '0' || error != std::errc() ||
        end != text.data() + text.size()) {
        throw Malformed("SCRAM: the iteration count is not a number");
    }
    if (count < minIterations || count > maxIterations) {
        throw Malformed("SCRAM: the iteration count is out of range");
    }
    return count;
}

// Answers for unknown users are derived from the name under a key no client sees, and take
// the count of the users last looked up, so that they look like those of a real user.
const std::vector<uint8_t>& fakeSaltKey() {
    static const std::vector<uint8_t> key = randomBytes(32);
    return key;
}
std::atomic<uint32_t> lastIterations{100000};

} // namespace

Keys Keys::fromPasswordHash(const PasswordHash& stored) {
    if (stored.hash.size() != PasswordHash::hashLength) {
        throw std::invalid_argument("SCRAM needs a 32-byte PBKDF2-HMAC-SHA-256 hash");
    }
    Keys keys;
    keys.salt = stored.salt;
    keys.iterations = stored.iterations;
    keys.storedKey = sha256(clientKeyOf(stored.hash));
    keys.serverKey = serverKeyOf(stored.hash);
    return keys;
}

std::string base64(std::span<const uint8_t> bytes) {
    std::string out;
    out.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t n = std::min<std::size_t>(3, bytes.size() - i);
        uint32_t group = uint32_t{bytes[i]} << 16;
        if (n > 1) {
            group |= uint32_t{bytes[i + 1]} << 8;
        }
        if (n > 2) {
            group |= bytes[i + 2];
        }
        for (std::size_t k = 0; k < 4; ++k) {
            out += k <= n ? alphabet[(group >> (18 - 6 * k)) & 0x3F] : '=';
        }
    }
    return out;
}

std::vector<uint8_t> fromBase64(std::string_view text) {
    if (text.size() % 4 != 0) {
        throw Malformed("Base64: the length is not a multiple of 4");
    }
    const std::size_t padding = text.ends_with("==") ? 2 : text.ends_with('=') ? 1 : 0;
    std::vector<uint8_t> out;
    out.reserve(text.size() / 4 * 3);
    for (std::size_t i = 0; i < text.size(); i += 4) {
        const bool last = i + 4 == text.size();
        const std::size_t digits = last ? 4 - padding : 4;
        uint32_t group = 0;
        for (std::size_t k = 0; k < 4; ++k) {
            uint32_t value = 0;
            if (k < digits) {
                const std::size_t at = alphabet.find(text[i + k]);
                if (at == std::string_view::npos) {
                    throw Malformed("Base64: not a Base64 character");
                }
                value = static_cast<uint32_t>(at);
            }
            group = (group << 6) | value;
        }
        // Canonical: the bits the padding leaves over are zero.
        if ((digits == 2 && (group & 0xFFFF) != 0) || (digits == 3 && (group & 0xFF) != 0)) {
            throw Malformed("Base64: not canonical");
        }
        for (std::size_t k = 0; k + 1 < digits; ++k) {
            out.push_back(static_cast<uint8_t>(group >> (16 - 8 * k)));
        }
    }
    return out;
}

Client::Client(const std::wstring& user, const std::wstring& password, std::string nonce)
    : user_(toUtf8(user)), password_(toUtf8(password)),
      nonce_(nonce.empty() ? randomNonce() : std::move(nonce)) {
    if (user_.empty()) {
        throw std::invalid_argument("SCRAM: empty user name");
    }
    if (!isNonce(nonce_)) {
        throw std::invalid_argument("SCRAM: a nonce is printable characters without ','");
    }
}

std::string Client::first() {
    clientFirstBare_ = "n=" + escapeName(user_) + ",r=" + nonce_;
    return std::string(gs2Header) + clientFirstBare_;
}

std::string Client::final(std::string_view serverFirst) {
    if (clientFirstBare_.empty() || !authMessage_.empty()) {
        throw std::logic_error("SCRAM: final before first, or twice");
    }
    Attributes attributes(serverFirst);
    const std::string_view nonce = attributes.take('r');
    const std::string_view salt64 = attributes.take('s');
    const std::string_view count = attributes.take('i');
    attributes.skipExtensions();
    if (!isNonce(nonce) || nonce.size() <= nonce_.size() || !nonce.starts_with(nonce_)) {
        throw Malformed("SCRAM: the server's nonce does not extend the client's");
    }
    const auto salt = fromBase64(salt64);
    if (salt.empty()) {
        throw Malformed("SCRAM: empty salt");
    }
    const uint32_t iterations = iterationCount(count);

    const auto salted =
        pbkdf2HmacSha256(bytesOf(password_), salt, iterations, PasswordHash::hashLength);
    std::copy(salted.begin(), salted.end(), saltedPassword_.begin());
    // The password is not needed again.
    std::fill(password_.begin(), password_.end(), '\0');
    password_.clear();

    const std::string withoutProof =
        "c=" + std::string(gs2HeaderBase64) + ",r=" + std::string(nonce);
    authMessage_ = clientFirstBare_ + "," + std::string(serverFirst) + "," + withoutProof;
    const auto clientKey = clientKeyOf(saltedPassword_);
    const auto signature = hmacSha256(sha256(clientKey), bytesOf(authMessage_));
    Sha256Digest proof{};
    for (std::size_t i = 0; i < proof.size(); ++i) {
        proof[i] = static_cast<uint8_t>(clientKey[i] ^ signature[i]);
    }
    return withoutProof + ",p=" + base64(proof);
}

bool Client::verify(std::string_view serverFinal) const {
    if (authMessage_.empty()) {
        throw std::logic_error("SCRAM: verify before final");
    }
    if (serverFinal.starts_with("e=")) {
        return false;
    }
    Attributes attributes(serverFinal);
    const auto signature = fromBase64(attributes.take('v'));
    attributes.skipExtensions();
    const auto expected = hmacSha256(serverKeyOf(saltedPassword_), bytesOf(authMessage_));
    return equalInConstantTime(signature, expected);
}

Server::Server(std::string nonce) : nonce_(nonce.empty() ? randomNonce() : std::move(nonce)) {
    if (!isNonce(nonce_)) {
        throw std::invalid_argument("SCRAM: a nonce is printable characters without ','");
    }
}

std::string Server::first(std::string_view clientFirst, const Lookup& lookup) {
    if (!serverFirst_.empty() || !clientFirstBare_.empty()) {
        throw std::logic_error("SCRAM: the exchange has started already");
    }
    if (clientFirst.starts_with("y,") || clientFirst.starts_with("p=")) {
        throw Malformed("SCRAM: channel binding is not supported");
    }
    if (!clientFirst.starts_with(gs2Header)) {
        throw Malformed("SCRAM: the GS2 header must be \"n,,\"");
    }
    const std::string_view bare = clientFirst.substr(gs2Header.size());
    Attributes attributes(bare);
    const std::string name = unescapeName(attributes.take('n'));
    const std::string_view clientNonce = attributes.take('r');
    attributes.skipExtensions();
    if (!isNonce(clientNonce)) {
        throw Malformed("SCRAM: the client's nonce is not printable characters without ','");
    }

    user_ = fromUtf8(name);
    keys_ = lookup(user_);
    std::vector<uint8_t> salt;
    uint32_t iterations = 0;
    if (keys_) {
        salt = keys_->salt;
        iterations = keys_->iterations;
        lastIterations = iterations;
    } else {
        const auto derived = hmacSha256(fakeSaltKey(), bytesOf(name));
        salt.assign(derived.begin(), derived.begin() + fakeSaltLength);
        iterations = lastIterations;
    }
    clientFirstBare_ = bare;
    serverFirst_ = "r=" + std::string(clientNonce) + nonce_ + ",s=" + base64(salt) +
                   ",i=" + std::to_string(iterations);
    return serverFirst_;
}

std::optional<std::string> Server::final(std::string_view clientFinal) {
    if (serverFirst_.empty()) {
        throw std::logic_error("SCRAM: final without a first, or twice");
    }
    // One proof per exchange: a second final finds no exchange.
    const std::string serverFirst = std::move(serverFirst_);
    serverFirst_.clear();

    const std::size_t proofAt = clientFinal.rfind(",p=");
    if (proofAt == std::string_view::npos) {
        throw Malformed("SCRAM: attribute p missing");
    }
    // Extensions may stand between r and p; p is the last attribute.
    Attributes attributes(clientFinal.substr(0, proofAt));
    const std::string_view binding = attributes.take('c');
    const std::string_view nonce = attributes.take('r');
    attributes.skipExtensions();
    const auto proof = fromBase64(clientFinal.substr(proofAt + 3));
    if (fromBase64(binding) != std::vector<uint8_t>(gs2Header.begin(), gs2Header.end())) {
        throw Malformed("SCRAM: channel binding is not supported");
    }
    if (proof.size() != Sha256Digest().size()) {
        throw Malformed("SCRAM: the proof is not 32 bytes");
    }
    if (!isNonce(nonce)) {
        throw Malformed("SCRAM: the nonce is not printable characters without ','");
    }

    const std::string authMessage =
        clientFirstBare_ + "," + serverFirst + "," + std::string(clientFinal.substr(0, proofAt));
    // An unknown user is checked against keys nobody has, at the same cost.
    Keys unknown;
    if (!keys_) {
        const auto random = randomBytes(unknown.storedKey.size());
        std::copy(random.begin(), random.end(), unknown.storedKey.begin());
    }
    const Keys& keys = keys_ ? *keys_ : unknown;
    const auto signature = hmacSha256(keys.storedKey, bytesOf(authMessage));
    Sha256Digest clientKey{};
    for (std::size_t i = 0; i < clientKey.size(); ++i) {
        clientKey[i] = static_cast<uint8_t>(proof[i] ^ signature[i]);
    }
    const bool proven = equalInConstantTime(sha256(clientKey), keys.storedKey);
    // The nonce must be this exchange's, so that a recorded final cannot be replayed.
    const std::string expectedNonce = serverFirst.substr(2, serverFirst.find(',') - 2);
    if (!proven || nonce != expectedNonce || !keys_) {
        return std::nullopt;
    }
    return "v=" + base64(hmacSha256(keys.serverKey, bytesOf(authMessage)));
}

} // namespace Varno::Kel_cpp::Reference::Scram
