// Allocation on the library's C heap: everything handed to C callers comes from here
// and goes back through free(), so that release_* and release_Memory can free it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <type_traits>

namespace kel::heap {

// A block of exactly `bytes` bytes; never NULL for a zero-byte request, since callers
// tell an allocated empty block from a missing one.
inline void* allocate(std::size_t bytes) {
    void* block = std::malloc(bytes);
    if (block == nullptr && bytes == 0) {
        block = std::malloc(1);
    }
    return block;
}

// One record of type T, zero-filled, so that every member not written stays 0/NULL.
template <class T>
T* zeroed() {
    void* block = allocate(sizeof(T));
    std::memset(block, 0, sizeof(T));
    return static_cast<T*>(block);
}

// A zero-filled block of `count` elements.
template <class T>
T* block(std::size_t count) {
    void* memory = allocate(count * sizeof(T));
    std::memset(memory, 0, count * sizeof(T));
    return static_cast<T*>(memory);
}

inline wchar_t* copy(const wchar_t* text, std::size_t length) {
    if (length >= SIZE_MAX / sizeof(wchar_t)) {
        std::abort(); // no string can be this long; the check keeps the size arithmetic exact
    }
    auto* out = static_cast<wchar_t*>(allocate((length + 1) * sizeof(wchar_t)));
    std::memcpy(out, text, length * sizeof(wchar_t));
    out[length] = L'\0';
    return out;
}

// An empty engine string becomes an allocated empty C string, never NULL.
inline wchar_t* copy(const std::wstring& text) { return copy(text.c_str(), text.size()); }

inline uint8_t* copyBytes(const uint8_t* bytes, std::size_t count) {
    auto* out = static_cast<uint8_t*>(allocate(count));
    if (count != 0) {
        std::memcpy(out, bytes, count);
    }
    return out;
}

template <class T>
void free(T*& pointer) {
    std::free(pointer);
    pointer = nullptr;
}

inline void freeTexts(wchar_t**& texts, uint64_t count) {
    if (texts == nullptr) {
        return;
    }
    for (uint64_t i = 0; i < count; ++i) {
        std::free(texts[i]);
    }
    std::free(texts);
    texts = nullptr;
}

} // namespace kel::heap
