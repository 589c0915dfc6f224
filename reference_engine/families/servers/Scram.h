// SCRAM-SHA-256 (RFC 5802, RFC 7677): a login that proves the password without sending it.
// The server needs no more than the PBKDF2 record it keeps already (PasswordHash): its hash
// is SCRAM's SaltedPassword, from which StoredKey and ServerKey derive. Channel binding is
// not offered ("n,,"). Names and passwords travel as UTF-8, not SASLprep-normalised.
#pragma once

#include "PasswordHash.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace Varno::Kel_cpp::Reference::Scram {

// Thrown for a message that is not what the exchange expects at this step.
struct Malformed : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// What the server keeps of a user's password, derived from its PBKDF2 record.
struct Keys {
    std::vector<uint8_t> salt;
    uint32_t iterations = 0;
    Sha256Digest storedKey{}; // H(HMAC(SaltedPassword, "Client Key"))
    Sha256Digest serverKey{}; // HMAC(SaltedPassword, "Server Key")

    static Keys fromPasswordHash(const PasswordHash& stored);
};

std::string base64(std::span<const uint8_t> bytes);
// Throws Malformed for anything but canonical Base64.
std::vector<uint8_t> fromBase64(std::string_view text);

class Client {
public:
    // `nonce` empty: 24 random bytes from std::random_device, in Base64.
    Client(const std::wstring& user, const std::wstring& password, std::string nonce = {});
    // client-first-message: "n,,n=<user>,r=<nonce>".
    std::string first();
    // client-final-message, with the proof, from the server-first-message. Refuses fewer
    // than 1000 iterations (the engine's least passwordIterations) or more than 10000000,
    // and a server nonce that does not extend the client's.
    std::string final(std::string_view serverFirst);
    // True when the server-final-message carries the server's signature ("v="), proving
    // the server knows the keys; false for "e=" or a wrong signature.
    bool verify(std::string_view serverFinal) const;

private:
    std::string user_, password_, nonce_, clientFirstBare_, authMessage_;
    Sha256Digest saltedPassword_{};
};

class Server {
public:
    using Lookup = std::function<std::optional<Keys>(const std::wstring& user)>;

    // `nonce` empty: 24 random bytes from std::random_device, in Base64.
    explicit Server(std::string nonce = {});
    // server-first-message from the client-first-message. A user `lookup` does not know
    // gets a salt and count derived from the name, so that the answer does not tell
    // whether the user exists.
    std::string first(std::string_view clientFirst, const Lookup& lookup);
    // The user named by the client-first-message.
    const std::wstring& user() const { return user_; }
    // The server-final-message "v=<signature>" when the proof is right; nullopt when the
    // password is wrong or the user unknown.
    std::optional<std::string> final(std::string_view clientFinal);

private:
    std::wstring user_;
    std::optional<Keys> keys_;
    std::string nonce_, clientFirstBare_, serverFirst_;
};

} // namespace Varno::Kel_cpp::Reference::Scram
