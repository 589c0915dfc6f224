#include "utf8.h"

#include <Vutil/Memory.h>

#include <cstdint>
#include <cstring>
#include <memory>

#if defined(_WIN32)
#include <windows.h>
#endif

namespace kel::utf8 {
namespace {

// Temporary conversion blocks come from the utility library and go back on every
// path, also when the assignment to the target throws.
struct Block {
    explicit Block(std::size_t bytes) : data(f_malloc(bytes)) {
        if (data == nullptr) {
            throw std::bad_alloc();
        }
    }
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;
    ~Block() { f_free(data); }
    void* data;
};

#if !defined(_WIN32)

constexpr char32_t replacement = 0xFFFD;

std::size_t put(char32_t c, unsigned char* out) {
    if (c < 0x80) {
        out[0] = static_cast<unsigned char>(c);
        return 1;
    }
    if (c < 0x800) {
        out[0] = static_cast<unsigned char>(0xC0 | (c >> 6));
        out[1] = static_cast<unsigned char>(0x80 | (c & 0x3F));
        return 2;
    }
    if (c < 0x10000) {
        out[0] = static_cast<unsigned char>(0xE0 | (c >> 12));
        out[1] = static_cast<unsigned char>(0x80 | ((c >> 6) & 0x3F));
        out[2] = static_cast<unsigned char>(0x80 | (c & 0x3F));
        return 3;
    }
    out[0] = static_cast<unsigned char>(0xF0 | (c >> 18));
    out[1] = static_cast<unsigned char>(0x80 | ((c >> 12) & 0x3F));
    out[2] = static_cast<unsigned char>(0x80 | ((c >> 6) & 0x3F));
    out[3] = static_cast<unsigned char>(0x80 | (c & 0x3F));
    return 4;
}

// Decodes one character at bytes[i]; a malformed sequence yields U+FFFD and consumes
// its maximal subpart: the bytes that could still begin a well-formed sequence (lead
// bytes restrict their second byte), at least one.
char32_t next(const unsigned char* bytes, std::size_t length, std::size_t& i) {
    const unsigned char lead = bytes[i++];
    if (lead < 0x80) {
        return lead;
    }
    int extra = 0;
    char32_t c = 0;
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        extra = 1;
        c = lead & 0x1F;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        extra = 2;
        c = lead & 0x0F;
        low = lead == 0xE0 ? 0xA0 : 0x80;  // no overlong forms
        high = lead == 0xED ? 0x9F : 0xBF; // no encoded surrogates
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        extra = 3;
        c = lead & 0x07;
        low = lead == 0xF0 ? 0x90 : 0x80;
        high = lead == 0xF4 ? 0x8F : 0xBF; // nothing above U+10FFFF
    } else {
        return replacement;
    }
    for (int k = 0; k < extra; ++k) {
        if (i >= length) {
            return replacement;
        }
        const unsigned char b = bytes[i];
        if (b < low || b > high) {
            return replacement;
        }
        low = 0x80;
        high = 0xBF;
        c = (c << 6) | (b & 0x3F);
        ++i;
    }
    return c;
}

#endif

} // namespace

#if defined(_WIN32)

void encode(const wchar_t* text, std::size_t length, std::string& out) {
    if (length == 0) {
        return;
    }
    const int wide = static_cast<int>(length);
    const int bytes = WideCharToMultiByte(CP_UTF8, 0, text, wide, nullptr, 0, nullptr, nullptr);
    const Block block(static_cast<std::size_t>(bytes) + 1);
    auto* utf8 = static_cast<char*>(block.data);
    WideCharToMultiByte(CP_UTF8, 0, text, wide, utf8, bytes, nullptr, nullptr);
    out.append(utf8, static_cast<std::size_t>(bytes));
}

void decode(const char* bytes, std::size_t length, std::wstring& out) {
    if (length == 0) {
        out.clear();
        return;
    }
    const int count = static_cast<int>(length);
    const int wide = MultiByteToWideChar(CP_UTF8, 0, bytes, count, nullptr, 0);
    const Block block((static_cast<std::size_t>(wide) + 1) * sizeof(wchar_t));
    auto* text = static_cast<wchar_t*>(block.data);
    MultiByteToWideChar(CP_UTF8, 0, bytes, count, text, wide);
    text[wide] = L'\0';
    out.assign(text, static_cast<std::size_t>(wide));
}

#else

void encode(const wchar_t* text, std::size_t length, std::string& out) {
    if (length == 0) {
        return;
    }
    const Block block(length * 4);
    auto* utf8 = static_cast<unsigned char*>(block.data);
    std::size_t n = 0;
    for (std::size_t i = 0; i < length; ++i) {
        auto c = static_cast<char32_t>(text[i]);
        if ((c >= 0xD800 && c <= 0xDFFF) || c > 0x10FFFF) {
            c = replacement; // not a character: the Windows converter substitutes too
        }
        n += put(c, utf8 + n);
    }
    out.append(reinterpret_cast<const char*>(utf8), n); // NOLINT
}

void decode(const char* bytes, std::size_t length, std::wstring& out) {
    if (length == 0) {
        out.clear();
        return;
    }
    const Block block((length + 1) * sizeof(wchar_t));
    auto* text = static_cast<wchar_t*>(block.data);
    const auto* in = reinterpret_cast<const unsigned char*>(bytes); // NOLINT
    std::size_t n = 0;
    for (std::size_t i = 0; i < length;) {
        text[n++] = static_cast<wchar_t>(next(in, length, i));
    }
    text[n] = L'\0';
    out.assign(text, n);
}

#endif

} // namespace kel::utf8
