#include "utf8.h"

#include <cstdint>
#include <cstring>

#if defined(_WIN32)
#include <windows.h>
#endif

#if defined(__GNUC__)
#define KEL_ALWAYS_INLINE inline __attribute__((always_inline))
#else
#define KEL_ALWAYS_INLINE inline
#endif

namespace kel::utf8 {
namespace {

constexpr uint64_t highBits = 0x8080808080808080ULL;

// Copies the ASCII run at the start of bytes[0..length) to out, 8 bytes at a time; returns
// its length, a multiple of 8 (the caller's loop takes the rest).
KEL_ALWAYS_INLINE std::size_t asciiRun(const unsigned char* bytes, std::size_t length,
                                       wchar_t* out) {
    std::size_t i = 0;
    while (length - i >= 8) {
        uint64_t word = 0;
        std::memcpy(&word, bytes + i, 8);
        if ((word & highBits) != 0) {
            break;
        }
        for (std::size_t k = 0; k < 8; ++k) {
            out[i + k] = static_cast<wchar_t>(bytes[i + k]);
        }
        i += 8;
    }
    return i;
}

#if !defined(_WIN32)

constexpr char32_t replacement = 0xFFFD;

KEL_ALWAYS_INLINE std::size_t put(char32_t c, unsigned char* out) {
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

// Decodes the character at bytes[i], a lead byte 0x80 or above; a malformed sequence
// yields U+FFFD and consumes its maximal subpart: the bytes that could still begin a
// well-formed sequence (lead bytes restrict their second byte), at least one. Inlined
// into the decoding loop: a call per character costs more than the decoding.
KEL_ALWAYS_INLINE char32_t next(const unsigned char* bytes, std::size_t length, std::size_t& i) {
    const unsigned char lead = bytes[i++];
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

// The system's converter, straight into the caller's room (a surrogate pair of two units
// becomes 4 bytes, every other unit at most 3).
std::size_t encodeTo(const wchar_t* text, std::size_t length, unsigned char* out) {
    if (length == 0) {
        return 0;
    }
    return static_cast<std::size_t>(WideCharToMultiByte(
        CP_UTF8, 0, text, static_cast<int>(length), reinterpret_cast<char*>(out), // NOLINT
        static_cast<int>(maxBytes(length)), nullptr, nullptr));
}

std::size_t decodeTo(const unsigned char* bytes, std::size_t length, wchar_t* out) {
    // ASCII needs no converter call: most texts on the stream are ASCII.
    std::size_t i = asciiRun(bytes, length, out);
    while (i < length && bytes[i] < 0x80) {
        out[i] = static_cast<wchar_t>(bytes[i]);
        ++i;
    }
    if (i == length) {
        return length;
    }
    return i + static_cast<std::size_t>(MultiByteToWideChar(
                   CP_UTF8, 0, reinterpret_cast<const char*>(bytes + i), // NOLINT
                   static_cast<int>(length - i), out + i, static_cast<int>(length - i)));
}

#else

// ASCII goes a block at a time. Where a block attempt fails (a character outside ASCII
// is near), the next attempt waits a few characters: in text that mixes the two, failed
// attempts would cost more than the blocks save.
constexpr std::size_t retryAfter = 16;

std::size_t encodeTo(const wchar_t* text, std::size_t length, unsigned char* out) {
    std::size_t n = 0;
    std::size_t i = 0;
    std::size_t nextTry = 0;
    while (i < length) {
        auto c = static_cast<char32_t>(text[i]);
        if (c < 0x80) {
            if (i >= nextTry) {
                const std::size_t start = i;
                while (length - i >= 4) {
                    const auto a = static_cast<uint32_t>(text[i]);
                    const auto b = static_cast<uint32_t>(text[i + 1]);
                    const auto d = static_cast<uint32_t>(text[i + 2]);
                    const auto e = static_cast<uint32_t>(text[i + 3]);
                    if ((a | b | d | e) >= 0x80) {
                        break;
                    }
                    out[n] = static_cast<unsigned char>(a);
                    out[n + 1] = static_cast<unsigned char>(b);
                    out[n + 2] = static_cast<unsigned char>(d);
                    out[n + 3] = static_cast<unsigned char>(e);
                    n += 4;
                    i += 4;
                }
                if (i == start) {
                    nextTry = i + retryAfter;
                }
                if (i == length) {
                    break;
                }
                c = static_cast<char32_t>(text[i]);
                if (c >= 0x80) {
                    continue;
                }
            }
            out[n++] = static_cast<unsigned char>(c);
            ++i;
            continue;
        }
        ++i;
        if ((c >= 0xD800 && c <= 0xDFFF) || c > 0x10FFFF) {
            c = replacement; // not a character: the Windows converter substitutes too
        }
        n += put(c, out + n);
    }
    return n;
}

std::size_t decodeTo(const unsigned char* bytes, std::size_t length, wchar_t* out) {
    std::size_t n = 0;
    std::size_t i = 0;
    std::size_t nextTry = 0;
    while (i < length) {
        if (bytes[i] < 0x80) {
            if (i >= nextTry) {
                const std::size_t run = asciiRun(bytes + i, length - i, out + n);
                if (run == 0) {
                    nextTry = i + retryAfter;
                }
                i += run;
                n += run;
                if (i == length) {
                    break;
                }
                if (bytes[i] >= 0x80) {
                    continue;
                }
            }
            do {
                out[n++] = static_cast<wchar_t>(bytes[i++]);
            } while (i < length && bytes[i] < 0x80 && i < nextTry);
            continue;
        }
        // Two- and three-byte characters whose bytes need no range check beyond the
        // continuation bits take a short path; everything else the full decoder.
        const unsigned char lead = bytes[i];
        if (lead >= 0xC2 && lead <= 0xDF && length - i >= 2 && (bytes[i + 1] & 0xC0) == 0x80) {
            out[n++] = static_cast<wchar_t>(((lead & 0x1FU) << 6) | (bytes[i + 1] & 0x3FU));
            i += 2;
            continue;
        }
        if (lead >= 0xE1 && lead <= 0xEF && lead != 0xED && length - i >= 3 &&
            (bytes[i + 1] & 0xC0) == 0x80 && (bytes[i + 2] & 0xC0) == 0x80) {
            out[n++] = static_cast<wchar_t>(((lead & 0x0FU) << 12) | ((bytes[i + 1] & 0x3FU) << 6) |
                                            (bytes[i + 2] & 0x3FU));
            i += 3;
            continue;
        }
        out[n++] = static_cast<wchar_t>(next(bytes, length, i));
    }
    return n;
}

#endif

void encode(const wchar_t* text, std::size_t length, std::string& out) {
    const std::size_t start = out.size();
    out.resize(start + maxBytes(length));
    const std::size_t n =
        encodeTo(text, length, reinterpret_cast<unsigned char*>(out.data() + start)); // NOLINT
    out.resize(start + n);
}

void decode(const char* bytes, std::size_t length, std::wstring& out) {
    out.resize(length);
    out.resize(decodeTo(reinterpret_cast<const unsigned char*>(bytes), length, // NOLINT
                        out.data()));
}

} // namespace kel::utf8
