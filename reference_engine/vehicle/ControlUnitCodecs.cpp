// Values and their bytes: how a codec writes and reads a value, which sessions an access
// allows, the fixed part of a service's request, and bytes as hex text.
#include "ControlUnits.h"
#include "Describe.h"
#include "ErrorCodes.h"
#include "UnitBytes.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <stdexcept>
#include <string>

namespace Varno::Kel_cpp::Reference {
namespace {

using UnitBytes::bigEndian;
using UnitBytes::hexBytes;

std::string narrow(const std::wstring& text) {
    std::string out;
    for (const wchar_t c : text) {
        if (c < 0x20 || c > 0x7E) {
            throw std::invalid_argument("only printable ASCII characters: \"" + toUtf8(text) +
                                        "\"");
        }
        out += static_cast<char>(c);
    }
    return out;
}

std::optional<double> number(const std::wstring& text) {
    try {
        std::size_t used = 0;
        const auto s = narrow(text);
        const double v = std::stod(s, &used);
        return used == s.size() ? std::optional<double>(v) : std::nullopt;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

} // namespace

// ---- codecs ---------------------------------------------------------------------------

Bytes Codec::encode(const std::wstring& text) const {
    switch (kind) {
    case Kind::Ascii: {
        const auto s = narrow(text);
        if (length != 0 && s.size() != length) {
            throw std::invalid_argument("needs " + std::to_string(length) + " characters: \"" + s +
                                        "\"");
        }
        return {s.begin(), s.end()};
    }
    case Kind::Bytes: {
        auto bytes = hexBytes(text);
        if (length != 0 && bytes.size() != length) {
            throw std::invalid_argument("needs " + std::to_string(length) +
                                        " bytes: " + toUtf8(text));
        }
        return bytes;
    }
    case Kind::Enumeration:
        for (const auto& [raw, name] : names) {
            if (name == text) {
                return bigEndian(raw, length);
            }
        }
        [[fallthrough]];
    case Kind::Unsigned: {
        const auto physical = number(text);
        if (!physical) {
            throw std::invalid_argument(kind == Kind::Enumeration
                                            ? "not one of the enumeration's names: " + toUtf8(text)
                                            : "not a number: " + toUtf8(text));
        }
        const double raw = kind == Kind::Unsigned ? (*physical - offset) / scale : *physical;
        const double top = std::ldexp(1.0, static_cast<int>(8 * length)) - 1;
        if (!(raw >= -0.5 && raw <= top + 0.5)) {
            throw std::invalid_argument(toUtf8(text) + " does not fit in " +
                                        std::to_string(length) + " byte(s)");
        }
        return bigEndian(static_cast<uint64_t>(std::llround(raw)), length);
    }
    }
    return {};
}

std::wstring Codec::decode(const Bytes& bytes) const {
    switch (kind) {
    case Kind::Ascii:
        return {bytes.begin(), bytes.end()};
    case Kind::Bytes:
        return hexText(bytes, false);
    case Kind::Enumeration:
        for (const auto& [raw, name] : names) {
            if (raw == bigEndian(bytes)) {
                return name;
            }
        }
        return std::to_wstring(bigEndian(bytes));
    case Kind::Unsigned: {
        char text[64];
        std::snprintf(text, sizeof text, "%.10g", bigEndian(bytes) * scale + offset);
        return fromUtf8(text);
    }
    }
    return {};
}

bool Codec::accepts(const Bytes& bytes) const {
    if (length != 0 ? bytes.size() != length : bytes.empty()) {
        return false;
    }
    switch (kind) {
    case Kind::Ascii:
        return std::all_of(bytes.begin(), bytes.end(),
                           [](uint8_t b) { return b >= 0x20 && b <= 0x7E; });
    case Kind::Bytes:
        return true;
    case Kind::Enumeration:
        return std::any_of(names.begin(), names.end(),
                           [&](const auto& n) { return n.first == bigEndian(bytes); });
    case Kind::Unsigned: {
        const double physical = bigEndian(bytes) * scale + offset;
        return (!min || physical >= *min) && (!max || physical <= *max);
    }
    }
    return false;
}

const wchar_t* Codec::kindName() const {
    switch (kind) {
    case Kind::Ascii:
        return L"ascii";
    case Kind::Unsigned:
        return L"unsigned";
    case Kind::Enumeration:
        return L"enumeration";
    case Kind::Bytes:
        return L"bytes";
    }
    return L"";
}

bool Access::allowsSession(uint8_t session) const {
    return sessions.empty() ||
           std::find(sessions.begin(), sessions.end(), session) != sessions.end();
}

std::optional<std::size_t> ParameterSpec::fixedLength() const {
    switch (kind) {
    case Kind::Constant:
        return constant.size();
    case Kind::Value:
        return codec.length != 0 ? std::optional<std::size_t>(codec.length) : std::nullopt;
    case Kind::Structure: {
        if (repeated) {
            return std::nullopt;
        }
        std::size_t total = 0;
        for (const auto& c : children) {
            const auto n = c.fixedLength();
            if (!n) {
                return std::nullopt;
            }
            total += *n;
        }
        return total;
    }
    }
    return std::nullopt;
}

Bytes ServiceSpec::key() const {
    Bytes out;
    for (const auto& p : request) {
        if (p.kind != ParameterSpec::Kind::Constant) {
            break;
        }
        out.insert(out.end(), p.constant.begin(), p.constant.end());
    }
    return out;
}
std::wstring hexId(uint16_t id) { return hexText(bigEndian(id, 2), false); }

std::wstring hexText(const Bytes& bytes, bool spaced) {
    static const wchar_t digits[] = L"0123456789ABCDEF";
    std::wstring out;
    for (const auto b : bytes) {
        if (spaced && !out.empty()) {
            out += L' ';
        }
        out += digits[b >> 4];
        out += digits[b & 0xF];
    }
    return out;
}

} // namespace Varno::Kel_cpp::Reference
