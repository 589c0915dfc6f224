#include "utf8.h"

#include <bit>
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

static_assert(std::endian::native == std::endian::little, "the ASCII blocks read words");

// Widens the 8 bytes at `bytes` to out[0..8), whatever they are; the caller keeps the
// ASCII ones and overwrites the rest. A plain copy through a local block, which the
// compiler turns into vector unpacks and stores: no call and no byte loop.
KEL_ALWAYS_INLINE void widen8(const unsigned char* bytes, wchar_t* out) {
    unsigned char block[8];
    std::memcpy(block, bytes, 8);
    for (std::size_t k = 0; k < 8; ++k) {
        out[k] = static_cast<wchar_t>(block[k]);
    }
}

// The code units of character c at out; returns how many (a surrogate pair in UTF-16).
KEL_ALWAYS_INLINE std::size_t putWide(char32_t c, wchar_t* out) {
    if constexpr (sizeof(wchar_t) == 2) {
        if (c >= 0x10000) {
            out[0] = static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
            out[1] = static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
            return 2;
        }
    }
    out[0] = static_cast<wchar_t>(c);
    return 1;
}

// Decodes the well-formed character at bytes[i] (a lead byte 0x80 or above) to out[n],
// advancing both; false, with nothing consumed, when the bytes there are not a complete
// well-formed character. Each form checks exactly the ranges the standard allows, so a
// character taken here decodes alike on every converter. Unchecked, the caller promises
// 4 readable bytes at bytes[i].
template <bool Checked>
KEL_ALWAYS_INLINE bool wellFormed(const unsigned char* bytes, std::size_t length, std::size_t& i,
                                  wchar_t* out, std::size_t& n) {
    const unsigned char lead = bytes[i];
    const std::size_t left = Checked ? length - i : 4;
    if (lead >= 0xC2 && lead <= 0xDF) {
        if (left >= 2 && (bytes[i + 1] & 0xC0) == 0x80) {
            out[n++] = static_cast<wchar_t>(((lead & 0x1FU) << 6) | (bytes[i + 1] & 0x3FU));
            i += 2;
            return true;
        }
        return false;
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        if (left < 3 || (bytes[i + 2] & 0xC0) != 0x80) {
            return false;
        }
        const unsigned char second = bytes[i + 1];
        const unsigned char low = lead == 0xE0 ? 0xA0 : 0x80;  // no overlong forms
        const unsigned char high = lead == 0xED ? 0x9F : 0xBF; // no encoded surrogates
        if (second < low || second > high) {
            return false;
        }
        out[n++] = static_cast<wchar_t>(((lead & 0x0FU) << 12) | ((second & 0x3FU) << 6) |
                                        (bytes[i + 2] & 0x3FU));
        i += 3;
        return true;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        if (left < 4 || (bytes[i + 2] & 0xC0) != 0x80 || (bytes[i + 3] & 0xC0) != 0x80) {
            return false;
        }
        const unsigned char second = bytes[i + 1];
        const unsigned char low = lead == 0xF0 ? 0x90 : 0x80;
        const unsigned char high = lead == 0xF4 ? 0x8F : 0xBF; // nothing above U+10FFFF
        if (second < low || second > high) {
            return false;
        }
        const char32_t c = ((lead & 0x07U) << 18) | ((second & 0x3FU) << 12) |
                           ((bytes[i + 2] & 0x3FU) << 6) | (bytes[i + 3] & 0x3FU);
        n += putWide(c, out + n);
        i += 4;
        return true;
    }
    return false;
}

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

#if !defined(_WIN32)

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
        if (c >= 0xD800 && c <= 0xDFFF) {
            if (sizeof(wchar_t) == 2 && c <= 0xDBFF && i < length &&
                (static_cast<char32_t>(text[i]) & 0xFC00U) == 0xDC00) {
                c = 0x10000 + ((c - 0xD800) << 10) + (static_cast<char32_t>(text[i]) - 0xDC00);
                ++i;
            } else {
#if defined(_WIN32)
                // An unpaired surrogate: the system's converter takes the rest, so that
                // what it makes of such text stays exactly its own.
                --i;
                return n + static_cast<std::size_t>(WideCharToMultiByte(
                               CP_UTF8, 0, text + i, static_cast<int>(length - i),
                               reinterpret_cast<char*>(out + n), // NOLINT
                               static_cast<int>(maxBytes(length - i)), nullptr, nullptr));
#else
                c = replacement; // not a character: the Windows converter substitutes too
#endif
            }
        } else if (c > 0x10FFFF) {
            c = replacement;
        }
        n += put(c, out + n);
    }
    return n;
}

// Not well-formed: on Windows the system's converter takes the rest (the units it wrote
// are returned), elsewhere the full decoder replaces the character at bytes[i].
KEL_ALWAYS_INLINE bool malformed(const unsigned char* bytes, std::size_t length, std::size_t& i,
                                 wchar_t* out, std::size_t& n) {
#if defined(_WIN32)
    n += static_cast<std::size_t>(
        MultiByteToWideChar(CP_UTF8, 0, reinterpret_cast<const char*>(bytes + i), // NOLINT
                            static_cast<int>(length - i), out + n, static_cast<int>(length - i)));
    i = length;
    return true;
#else
    out[n++] = static_cast<wchar_t>(next(bytes, length, i));
    return false;
#endif
}

// Decoding position in one run of bytes.
struct Cursor {
    const unsigned char* bytes;
    std::size_t length;
    wchar_t* out;
    std::size_t i = 0;
    std::size_t n = 0;
    bool done = false; // the system's converter took the rest
};

// One step, while 16 bytes or more are left (so it needs no bounds check): the ASCII run
// in the next 8 bytes (all 8 are widened to out at once; the run is kept and the rest
// overwritten), then the non-ASCII characters that follow it, each at most 4 bytes.
KEL_ALWAYS_INLINE void step(Cursor& c) {
    uint64_t word = 0;
    std::memcpy(&word, c.bytes + c.i, 8);
    const uint64_t nonAscii = word & highBits;
    widen8(c.bytes + c.i, c.out + c.n);
    if (nonAscii == 0) {
        c.i += 8;
        c.n += 8;
        return;
    }
    const auto run = static_cast<std::size_t>(std::countr_zero(nonAscii)) / 8;
    c.i += run;
    c.n += run;
    do {
        if (!wellFormed<false>(c.bytes, c.length, c.i, c.out, c.n) &&
            malformed(c.bytes, c.length, c.i, c.out, c.n)) {
            c.done = true;
            return;
        }
    } while (c.length - c.i >= 16 && c.bytes[c.i] >= 0x80);
}

// Steps while they can, then the last bytes one by one, with checks.
KEL_ALWAYS_INLINE void finish(Cursor& c) {
    while (!c.done && c.length - c.i >= 16) {
        step(c);
    }
    while (!c.done && c.i < c.length) {
        if (c.bytes[c.i] < 0x80) {
            c.out[c.n++] = static_cast<wchar_t>(c.bytes[c.i++]);
        } else if (!wellFormed<true>(c.bytes, c.length, c.i, c.out, c.n) &&
                   malformed(c.bytes, c.length, c.i, c.out, c.n)) {
            c.done = true;
        }
    }
}

// From this length on, text is decoded as two halves at once.
constexpr std::size_t halvesFrom = 4096;

// Each step waits for the load that finds the end of its ASCII run, so one run of steps
// keeps the processor far from busy. Long text is therefore cut in two at a character's
// start (a byte that is not a continuation byte, so that no sequence, well-formed or
// not, spans the cut) and both halves are decoded in one loop, their steps overlapping;
// the second half is decoded behind room for the first's most units and moved down.
std::size_t decodeTo(const unsigned char* bytes, std::size_t length, wchar_t* out) {
    if (length >= halvesFrom) {
        std::size_t mid = length / 2;
        for (int k = 0; k < 3 && (bytes[mid] & 0xC0U) == 0x80; ++k) {
            ++mid;
        }
        if ((bytes[mid] & 0xC0U) != 0x80) {
            Cursor first{bytes, mid, out};
            Cursor second{bytes + mid, length - mid, out + mid};
            while (!first.done && !second.done && first.length - first.i >= 16 &&
                   second.length - second.i >= 16) {
                step(first);
                step(second);
            }
            finish(first);
            finish(second);
            std::memmove(out + first.n, out + mid, second.n * sizeof(wchar_t));
            return first.n + second.n;
        }
    }
    Cursor whole{bytes, length, out};
    finish(whole);
    return whole.n;
}

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
