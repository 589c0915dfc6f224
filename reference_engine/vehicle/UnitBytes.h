// Bytes as the control units write them: hex text and big-endian numbers. Shared by the
// files of the unit model only (reading descriptions, codecs, the unit's answers).
#pragma once

#include "ControlUnits.h"
#include "Describe.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>

namespace Varno::Kel_cpp::Reference::UnitBytes {

inline int hexDigit(wchar_t c) {
    if (c >= L'0' && c <= L'9') {
        return c - L'0';
    }
    if (c >= L'a' && c <= L'f') {
        return c - L'a' + 10;
    }
    if (c >= L'A' && c <= L'F') {
        return c - L'A' + 10;
    }
    return -1;
}

// Hex digits, spaces between bytes allowed: "0A0B", "0A 0B".
inline Bytes hexBytes(const std::wstring& hex) {
    std::wstring digits;
    for (const wchar_t c : hex) {
        if (c == L' ') {
            continue;
        }
        if (hexDigit(c) < 0) {
            throw std::invalid_argument("not a hex digit in \"" + toUtf8(hex) + "\"");
        }
        digits += c;
    }
    if (digits.size() % 2 != 0) {
        throw std::invalid_argument("bytes need an even number of hex digits: " + toUtf8(hex));
    }
    Bytes out;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        out.push_back(static_cast<uint8_t>(hexDigit(digits[i]) * 16 + hexDigit(digits[i + 1])));
    }
    return out;
}

inline uint32_t bigEndian(std::span<const uint8_t> bytes) {
    uint32_t v = 0;
    for (const auto b : bytes) {
        v = v << 8 | b;
    }
    return v;
}

inline Bytes bigEndian(uint64_t v, uint32_t length) {
    Bytes out(length);
    for (uint32_t i = 0; i < length; ++i) {
        out[length - 1 - i] = static_cast<uint8_t>(v >> (8 * i));
    }
    return out;
}

} // namespace Varno::Kel_cpp::Reference::UnitBytes
