// UTF-8 <-> wide text for the call stream.
//
// On Windows the conversion is the system's (code page 65001); elsewhere a portable
// codec behaves the same way: malformed input becomes U+FFFD instead of failing, and
// characters outside the Basic Multilingual Plane survive a round trip (surrogate pairs
// in UTF-16 wchar_t, single code points in UTF-32 wchar_t).
#pragma once

#include <cstddef>
#include <string>

namespace kel::utf8 {

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
