#include "Checksums.h"

#include <algorithm>
#include <array>

namespace Varno::Kel_cpp::Reference {
namespace {

std::array<uint32_t, 256> crc32Table() {
    std::array<uint32_t, 256> table{};
    for (uint32_t i = 0; i < 256; ++i) {
        uint32_t c = i;
        for (int k = 0; k < 8; ++k) {
            c = (c & 1) != 0 ? 0xEDB88320U ^ (c >> 1) : c >> 1;
        }
        table[i] = c;
    }
    return table;
}

std::array<uint16_t, 256> crc16Table() {
    std::array<uint16_t, 256> table{};
    for (uint32_t i = 0; i < 256; ++i) {
        auto c = static_cast<uint16_t>(i << 8);
        for (int k = 0; k < 8; ++k) {
            c = static_cast<uint16_t>((c & 0x8000) != 0 ? (c << 1) ^ 0x1021 : c << 1);
        }
        table[i] = c;
    }
    return table;
}

} // namespace

void Crc32::update(std::span<const uint8_t> bytes) {
    static const auto table = crc32Table();
    for (const uint8_t b : bytes) {
        state_ = table[(state_ ^ b) & 0xFF] ^ (state_ >> 8);
    }
}

void Crc16Ccitt::update(std::span<const uint8_t> bytes) {
    static const auto table = crc16Table();
    for (const uint8_t b : bytes) {
        state_ = static_cast<uint16_t>(table[((state_ >> 8) ^ b) & 0xFF] ^ (state_ << 8));
    }
}

void Adler32::update(std::span<const uint8_t> bytes) {
    constexpr uint32_t modulus = 65521;
    // 5552 bytes is the most that cannot overflow b before the modulo.
    std::size_t done = 0;
    while (done < bytes.size()) {
        const std::size_t n = std::min<std::size_t>(5552, bytes.size() - done);
        for (std::size_t i = 0; i < n; ++i) {
            a_ += bytes[done + i];
            b_ += a_;
        }
        a_ %= modulus;
        b_ %= modulus;
        done += n;
    }
}

} // namespace Varno::Kel_cpp::Reference
