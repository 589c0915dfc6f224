// Password hashing with the standard library only: SHA-256 (FIPS 180-4), HMAC-SHA-256
// (RFC 2104) and PBKDF2-HMAC-SHA-256 (RFC 8018). The engine keeps a user's password only
// as PBKDF2 of it under a random salt of the user's own.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

using Sha256Digest = std::array<uint8_t, 32>;

Sha256Digest sha256(std::span<const uint8_t> data);
Sha256Digest hmacSha256(std::span<const uint8_t> key, std::span<const uint8_t> data);
std::vector<uint8_t> pbkdf2HmacSha256(std::span<const uint8_t> password,
                                      std::span<const uint8_t> salt, uint32_t iterations,
                                      std::size_t length);

// A stored password: PBKDF2-HMAC-SHA-256 of its UTF-8 bytes.
struct PasswordHash {
    static constexpr std::size_t saltLength = 16;
    static constexpr std::size_t hashLength = 32;

    std::vector<uint8_t> salt;
    uint32_t iterations = 0;
    std::vector<uint8_t> hash;

    // A fresh random salt from std::random_device.
    static PasswordHash make(const std::wstring& password, uint32_t iterations);
    // Compares in time that does not depend on where the hashes differ.
    bool matches(const std::wstring& password) const;
};

std::string toHex(std::span<const uint8_t> bytes);
// Throws std::invalid_argument for anything but an even count of hex digits.
std::vector<uint8_t> fromHex(const std::string& text);

} // namespace Varno::Kel_cpp::Reference
