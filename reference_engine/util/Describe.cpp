#include "Describe.h"

#include <cstdio>

namespace Varno::Kel_cpp::Reference {
namespace {

constexpr char32_t replacement = 0xFFFD;

bool isCharacter(char32_t c) { return c < 0xD800 || (c > 0xDFFF && c <= 0x10FFFF); }

void append(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

} // namespace

// wchar_t is UTF-16 on Windows (surrogate pairs joined) and UTF-32 elsewhere. Text with
// no UTF-8 form (an unpaired surrogate, a value above U+10FFFF) is replaced by U+FFFD, as
// the binding's stream codec does: every family converts here, so the same wide text
// gives the same UTF-8 whether it came through an export or a dispatcher, and nothing
// downstream (the JSON writer, a file name) ever sees a byte sequence that is not UTF-8.
std::string toUtf8(const std::wstring& text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        auto c = static_cast<char32_t>(text[i]);
        if constexpr (sizeof(wchar_t) == 2) {
            if (c >= 0xD800 && c < 0xDC00 && i + 1 < text.size()) {
                const auto low = static_cast<char32_t>(text[i + 1]);
                if (low >= 0xDC00 && low < 0xE000) {
                    c = 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
                    ++i;
                }
            }
        }
        append(out, isCharacter(c) ? c : replacement);
    }
    return out;
}

// Bad bytes, encoded surrogates, overlong forms and values above U+10FFFF become U+FFFD,
// so that what comes back from a file is always text toUtf8 writes back unchanged.
std::wstring fromUtf8(const std::string& text) {
    std::wstring out;
    for (std::size_t i = 0; i < text.size();) {
        const auto b = static_cast<unsigned char>(text[i]);
        const int extra = b < 0x80         ? 0
                          : (b >> 5) == 6  ? 1
                          : (b >> 4) == 14 ? 2
                          : (b >> 3) == 30 ? 3
                                           : -1;
        bool valid = extra >= 0 && i + static_cast<std::size_t>(extra) < text.size();
        for (int k = 1; valid && k <= extra; ++k) {
            valid =
                (static_cast<unsigned char>(text[i + static_cast<std::size_t>(k)]) & 0xC0) == 0x80;
        }
        if (!valid) {
            out += static_cast<wchar_t>(replacement);
            ++i;
            continue;
        }
        char32_t c = extra == 0 ? b : b & (0x3F >> extra);
        for (int k = 1; k <= extra; ++k) {
            c = (c << 6) |
                (static_cast<unsigned char>(text[i + static_cast<std::size_t>(k)]) & 0x3F);
        }
        i += static_cast<std::size_t>(extra) + 1;
        static constexpr char32_t shortest[] = {0, 0x80, 0x800, 0x10000};
        if (!isCharacter(c) || c < shortest[extra]) {
            c = replacement;
        }
        if constexpr (sizeof(wchar_t) == 2) {
            if (c >= 0x10000) {
                c -= 0x10000;
                out += static_cast<wchar_t>(0xD800 + (c >> 10));
                out += static_cast<wchar_t>(0xDC00 + (c & 0x3FF));
                continue;
            }
        }
        out += static_cast<wchar_t>(c);
    }
    return out;
}

std::filesystem::path pathFromWide(const std::wstring& text) {
#if defined(_WIN32)
    // The same name as on Linux: an unpaired surrogate is replaced here too.
    return std::filesystem::path(fromUtf8(toUtf8(text)));
#else
    const std::string utf8 = toUtf8(text);
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
#endif
}

std::wstring wideFromPath(const std::filesystem::path& path) {
#if defined(_WIN32)
    return path.wstring();
#else
    const std::u8string utf8 = path.u8string();
    return fromUtf8(std::string(utf8.begin(), utf8.end()));
#endif
}

void describe(std::string& out, const std::wstring& text) {
    out += '"';
    for (const char c : toUtf8(text)) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(c));
            out += escaped;
        } else {
            out += c;
        }
    }
    out += '"';
}

void describe(std::string& out, const Secret& /*secret*/) { out += "\"***\""; }

void describe(std::string& out, bool value) { out += value ? "true" : "false"; }

void describe(std::string& out, const std::shared_ptr<ServerHandler>& handler) {
    char text[32];
    std::snprintf(text, sizeof text, "\"%p\"", static_cast<const void*>(handler.get()));
    out += text;
}

void describe(std::string& out, const std::vector<uint8_t>& bytes) {
    if (bytes.size() > maxDescribedBytes) {
        out += "{\"size\":" + std::to_string(bytes.size()) + "}";
        return;
    }
    out += '[';
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        out += i == 0 ? "" : ",";
        out += std::to_string(bytes[i]);
    }
    out += ']';
}

std::shared_ptr<KelError> errorOf(const TarnApiException& exception) {
    auto e = std::make_shared<KelError>();
    e->code = exception.code;
    e->message = exception.message;
    e->details = exception.details;
    e->subCode = exception.subCode;
    e->mvciError = exception.mvciError;
    return e;
}

} // namespace Varno::Kel_cpp::Reference
