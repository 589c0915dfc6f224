#include "PasswordHash.h"

#include "Describe.h"

#include <algorithm>
#include <random>
#include <stdexcept>

namespace Varno::Kel_cpp::Reference {
namespace {

constexpr std::array<uint32_t, 64> roundConstants{
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

constexpr uint32_t rotr(uint32_t x, int n) { return (x >> n) | (x << (32 - n)); }

// Incremental SHA-256; HMAC keeps the states after the key blocks and copies them.
class Sha256 {
public:
    void update(std::span<const uint8_t> data) {
        for (const uint8_t byte : data) {
            block_[used_++] = byte;
            if (used_ == block_.size()) {
                compress();
                used_ = 0;
            }
        }
        length_ += data.size();
    }

    Sha256Digest finish() {
        const uint64_t bits = length_ * 8;
        const uint8_t one = 0x80;
        update({&one, 1});
        const uint8_t zero = 0;
        while (used_ != 56) {
            update({&zero, 1});
        }
        for (int shift = 56; shift >= 0; shift -= 8) {
            const auto byte = static_cast<uint8_t>(bits >> shift);
            update({&byte, 1});
        }
        Sha256Digest digest{};
        for (std::size_t i = 0; i < 8; ++i) {
            for (std::size_t k = 0; k < 4; ++k) {
                digest[i * 4 + k] = static_cast<uint8_t>(state_[i] >> (24 - 8 * k));
            }
        }
        return digest;
    }

private:
    void compress() {
        std::array<uint32_t, 64> w{};
        for (std::size_t i = 0; i < 16; ++i) {
            w[i] = (uint32_t{block_[i * 4]} << 24) | (uint32_t{block_[i * 4 + 1]} << 16) |
                   (uint32_t{block_[i * 4 + 2]} << 8) | uint32_t{block_[i * 4 + 3]};
        }
        for (std::size_t i = 16; i < 64; ++i) {
            const uint32_t s0 = rotr(w[i - 15], 7) ^ rotr(w[i - 15], 18) ^ (w[i - 15] >> 3);
            const uint32_t s1 = rotr(w[i - 2], 17) ^ rotr(w[i - 2], 19) ^ (w[i - 2] >> 10);
            w[i] = w[i - 16] + s0 + w[i - 7] + s1;
        }
        auto [a, b, c, d, e, f, g, h] = state_;
        for (std::size_t i = 0; i < 64; ++i) {
            const uint32_t t1 = h + (rotr(e, 6) ^ rotr(e, 11) ^ rotr(e, 25)) +
                                ((e & f) ^ (~e & g)) + roundConstants[i] + w[i];
            const uint32_t t2 =
                (rotr(a, 2) ^ rotr(a, 13) ^ rotr(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
            h = g;
            g = f;
            f = e;
            e = d + t1;
            d = c;
            c = b;
            b = a;
            a = t1 + t2;
        }
        const std::array<uint32_t, 8> add{a, b, c, d, e, f, g, h};
        for (std::size_t i = 0; i < 8; ++i) {
            state_[i] += add[i];
        }
    }

    std::array<uint32_t, 8> state_{0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                   0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    std::array<uint8_t, 64> block_{};
    std::size_t used_ = 0;
    uint64_t length_ = 0;
};

// HMAC with the key's inner and outer states computed once, which PBKDF2 reuses for
// every iteration.
class Hmac {
public:
    explicit Hmac(std::span<const uint8_t> key) {
        std::array<uint8_t, 64> block{};
        if (key.size() > block.size()) {
            const auto digest = sha256(key);
            std::copy(digest.begin(), digest.end(), block.begin());
        } else {
            std::copy(key.begin(), key.end(), block.begin());
        }
        auto pad = block;
        for (auto& byte : pad) {
            byte ^= 0x36;
        }
        inner_.update(pad);
        pad = block;
        for (auto& byte : pad) {
            byte ^= 0x5c;
        }
        outer_.update(pad);
    }

    template <class... Parts>
    Sha256Digest operator()(const Parts&... parts) const {
        Sha256 inner = inner_;
        (inner.update(parts), ...);
        const auto innerDigest = inner.finish();
        Sha256 outer = outer_;
        outer.update(innerDigest);
        return outer.finish();
    }

private:
    Sha256 inner_;
    Sha256 outer_;
};

std::string utf8Bytes(const std::wstring& text) { return toUtf8(text); }

std::span<const uint8_t> bytesOf(const std::string& text) {
    return {reinterpret_cast<const uint8_t*>(text.data()), text.size()}; // NOLINT
}

} // namespace

Sha256Digest sha256(std::span<const uint8_t> data) {
    Sha256 hash;
    hash.update(data);
    return hash.finish();
}

Sha256Digest hmacSha256(std::span<const uint8_t> key, std::span<const uint8_t> data) {
    return Hmac(key)(data);
}

std::vector<uint8_t> pbkdf2HmacSha256(std::span<const uint8_t> password,
                                      std::span<const uint8_t> salt, uint32_t iterations,
                                      std::size_t length) {
    const Hmac prf(password);
    std::vector<uint8_t> out;
    out.reserve(length);
    for (uint32_t blockIndex = 1; out.size() < length; ++blockIndex) {
        const std::array<uint8_t, 4> index{
            static_cast<uint8_t>(blockIndex >> 24), static_cast<uint8_t>(blockIndex >> 16),
            static_cast<uint8_t>(blockIndex >> 8), static_cast<uint8_t>(blockIndex)};
        auto u = prf(salt, index);
        auto t = u;
        for (uint32_t i = 1; i < iterations; ++i) {
            u = prf(u);
            for (std::size_t k = 0; k < t.size(); ++k) {
                t[k] ^= u[k];
            }
        }
        const std::size_t take = std::min(t.size(), length - out.size());
        out.insert(out.end(), t.begin(), t.begin() + static_cast<std::ptrdiff_t>(take));
    }
    return out;
}

PasswordHash PasswordHash::make(const std::wstring& password, uint32_t iterations) {
    PasswordHash stored;
    std::random_device random;
    stored.salt.resize(saltLength);
    for (auto& byte : stored.salt) {
        byte = static_cast<uint8_t>(random());
    }
    stored.iterations = iterations;
    const std::string bytes = utf8Bytes(password);
    stored.hash = pbkdf2HmacSha256(bytesOf(bytes), stored.salt, iterations, hashLength);
    return stored;
}

bool PasswordHash::matches(const std::wstring& password) const {
    const std::string bytes = utf8Bytes(password);
    const auto computed = pbkdf2HmacSha256(bytesOf(bytes), salt, iterations, hash.size());
    uint8_t difference = computed.size() == hash.size() ? 0 : 1;
    for (std::size_t i = 0; i < computed.size() && i < hash.size(); ++i) {
        difference |= static_cast<uint8_t>(computed[i] ^ hash[i]);
    }
    return difference == 0;
}

std::string toHex(std::span<const uint8_t> bytes) {
    std::string text;
    for (const uint8_t byte : bytes) {
        text += "0123456789abcdef"[byte >> 4];
        text += "0123456789abcdef"[byte & 0xF];
    }
    return text;
}

std::vector<uint8_t> fromHex(const std::string& text) {
    const auto digit = [](char c) -> int {
        if (c >= '0' && c <= '9') {
            return c - '0';
        }
        if (c >= 'a' && c <= 'f') {
            return c - 'a' + 10;
        }
        if (c >= 'A' && c <= 'F') {
            return c - 'A' + 10;
        }
        throw std::invalid_argument("not a hex digit");
    };
    if (text.size() % 2 != 0) {
        throw std::invalid_argument("an odd count of hex digits");
    }
    std::vector<uint8_t> bytes;
    for (std::size_t i = 0; i < text.size(); i += 2) {
        bytes.push_back(static_cast<uint8_t>(digit(text[i]) * 16 + digit(text[i + 1])));
    }
    return bytes;
}

} // namespace Varno::Kel_cpp::Reference
