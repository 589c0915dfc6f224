// UTF-8 <-> wide text for the call stream.
//
// Well-formed text is converted by this codec on every platform (surrogate pairs in UTF-16
// wchar_t, single code points in UTF-32 wchar_t). What is not well-formed goes, on Windows,
// to the system's converter (code page 65001) from there on, so that such text comes out
// exactly as the system makes it; elsewhere the codec behaves the same way itself:
// malformed input becomes U+FFFD instead of failing.
//
// Invalid bytes: each maximal subpart (the longest prefix of a well-formed sequence, or
// else one byte) becomes one U+FFFD, as the Unicode standard recommends and Windows
// does. So an encoded surrogate ED A0 80 gives three, F4 90 80 80 (above U+10FFFF)
// four, a truncated E2 82 one. Wine's converter differs where a second byte cannot
// follow its lead (E0 80..9F, ED A0..BF, F0 80..8F, F4 90..BF): it takes both bytes as
// one subpart and gives one U+FFFD fewer. Unpaired surrogates (and, in UTF-32, values
// above U+10FFFF) encode as U+FFFD on every platform.
#pragma once

#include <cstddef>
#include <string>

namespace kel::utf8 {

// The most UTF-8 bytes that `length` wide units encode to: a UTF-16 unit gives at most 3
// (a surrogate pair 4 for its two units), a UTF-32 unit at most 4.
constexpr std::size_t maxBytes(std::size_t length) {
    return length * (sizeof(wchar_t) == 2 ? 3 : 4);
}

// Writes the UTF-8 form of text[0..length) to out, which has room for maxBytes(length)
// bytes; returns the bytes written.
std::size_t encodeTo(const wchar_t* text, std::size_t length, unsigned char* out);
// Decodes bytes[0..length) to out, which has room for `length` wide units (no character
// needs more units than bytes); returns the units written.
std::size_t decodeTo(const unsigned char* bytes, std::size_t length, wchar_t* out);

// Appends the UTF-8 form of text[0..length) to out.
void encode(const wchar_t* text, std::size_t length, std::string& out);
// Decodes bytes[0..length) into out (replacing its contents).
void decode(const char* bytes, std::size_t length, std::wstring& out);

inline std::string encode(const std::wstring& text) {
    std::string out;
    encode(text.data(), text.size(), out);
    return out;
}

inline std::wstring decode(const std::string& bytes) {
    std::wstring out;
    decode(bytes.data(), bytes.size(), out);
    return out;
}

} // namespace kel::utf8
