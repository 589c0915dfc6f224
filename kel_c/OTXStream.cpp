#include "OTXStream.h"

#include "utf8.h"

#include <Vutil/TraceHelper.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>

namespace kel {

OTXStream::OTXStream(bool lengthPrefixed, bool presence, bool asList)
    : lengthPrefixedStrings(lengthPrefixed ? 1 : 0), presenceBytes(presence ? 1 : 0),
      flagsAsList(asList ? 1 : 0) {}

OTXStream::~OTXStream() {
    if (capacity != 0) {
        std::free(buffer);
    }
}

OTXStream::OTXStream(const void* input, bool lengthPrefixed, bool presence, bool asList)
    : OTXStream(lengthPrefixed, presence, asList) {
    // Read only: with capacity 0 the stream never writes or frees the caller's buffer.
    buffer = static_cast<uint8_t*>(const_cast<void*>(input)); // NOLINT
}

uint8_t* OTXStream::detach() {
    uint8_t* out = buffer;
    buffer = nullptr;
    capacity = 0;
    position = 0;
    return out;
}

// Geometric growth: writing many small values costs amortised constant time on every
// heap (an exact-size realloc per write is quadratic on the Windows heap).
void OTXStream::put(const void* bytes, std::size_t count) {
    const std::size_t needed = std::size_t{position} + count;
    if (needed > UINT32_MAX) {
        throw std::length_error("OTXStream: a result stream is limited to 4 GiB");
    }
    if (needed > capacity) {
        const std::size_t grown = std::min<std::size_t>(
            UINT32_MAX, std::max<std::size_t>({needed, std::size_t{capacity} * 2, 64}));
        void* block = buffer != nullptr ? std::realloc(buffer, grown) : std::malloc(grown);
        if (block == nullptr) {
            throw std::bad_alloc();
        }
        buffer = static_cast<uint8_t*>(block);
        capacity = static_cast<uint32_t>(grown);
    }
    if (count != 0) {
        std::memcpy(buffer + position, bytes, count);
    }
    position = static_cast<uint32_t>(needed);
}

void OTXStream::take(void* bytes, std::size_t count) {
    if (count == 0) {
        return;
    }
    if (bounded && count > std::size_t{size} - position) {
        throw MalformedInput("the input ends after " + std::to_string(size) + " bytes, but " +
                             std::to_string(count) + " more were needed at offset " +
                             std::to_string(position));
    }
    std::memcpy(bytes, buffer + position, count);
    position += static_cast<uint32_t>(count);
}

OTXStream::Nesting::Nesting(OTXStream& stream) : stream_(stream) {
    if (stream.bounded && stream.depth >= maxRecordDepth) {
        throw MalformedInput("records nest deeper than " + std::to_string(maxRecordDepth) +
                             " levels at offset " + std::to_string(stream.position));
    }
    ++stream.depth;
}

uint32_t OTXStream::readCount(std::size_t elementSize) {
    uint32_t count = 0;
    read(count);
    if (bounded && std::size_t{count} * elementSize > std::size_t{size} - position) {
        throw MalformedInput("a count of " + std::to_string(count) + " at offset " +
                             std::to_string(position - 4) + " runs past the end of the input");
    }
    return count;
}

// Primitives are copied as they lie in memory: the targets are little-endian.
// NOLINTBEGIN(bugprone-macro-parentheses): T is a type
#define KEL_STREAM_PRIMITIVE(T)                                                                    \
    OTXStream& OTXStream::write(T value) {                                                         \
        put(&value, sizeof value);                                                                 \
        return *this;                                                                              \
    }                                                                                              \
    OTXStream& OTXStream::read(T& value) {                                                         \
        take(&value, sizeof value);                                                                \
        return *this;                                                                              \
    }
KEL_STREAM_PRIMITIVE(uint8_t)
KEL_STREAM_PRIMITIVE(uint16_t)
KEL_STREAM_PRIMITIVE(int16_t)
KEL_STREAM_PRIMITIVE(int32_t)
KEL_STREAM_PRIMITIVE(uint32_t)
KEL_STREAM_PRIMITIVE(int64_t)
KEL_STREAM_PRIMITIVE(uint64_t)
#undef KEL_STREAM_PRIMITIVE
// NOLINTEND(bugprone-macro-parentheses)

OTXStream& OTXStream::write(bool value) { return write(static_cast<uint8_t>(value ? 1 : 0)); }

OTXStream& OTXStream::read(bool& value) {
    uint8_t byte = 0;
    read(byte);
    value = byte != 0;
    return *this;
}

// Under flagsAsList only the unbroken run of set bits from bit 0 is written, on
// purpose: 0x7 is {1, 2, 4}, 0x6 is the empty list and 0xB is {1, 2}.
OTXStream& OTXStream::write(Bits bits) {
    if (flagsAsList == 0) {
        return write(bits.value);
    }
    uint32_t run = 0;
    while (run < 32 && (bits.value & (1U << run)) != 0) {
        ++run;
    }
    write(run);
    for (uint32_t bit = 0; bit < run; ++bit) {
        write(1U << bit);
    }
    return *this;
}

OTXStream& OTXStream::read(Bits& bits) {
    if (flagsAsList == 0) {
        return read(bits.value);
    }
    const uint32_t count = readCount(4);
    for (uint32_t i = 0; i < count; ++i) {
        uint32_t bit = 0;
        read(bit);
        bits.value |= bit;
    }
    return *this;
}

OTXStream& OTXStream::write(const std::wstring& text) {
    const std::string bytes = utf8::encode(text);
    if (Vutil::TraceHelper::enabled(3)) {
        Vutil::TraceHelper::trace("OTXStream", "Streaming a string with size %d c = %s",
                                  static_cast<int>(bytes.size()), bytes.c_str());
    }
    write(static_cast<uint32_t>(bytes.size()));
    put(bytes.data(), bytes.size());
    return *this;
}

OTXStream& OTXStream::read(std::wstring& text) {
    std::size_t length = 0;
    bool terminated = false;
    if (lengthPrefixedStrings != 0) {
        length = readCount(1);
    } else {
        const auto* start = reinterpret_cast<const char*>(buffer + position); // NOLINT
        if (bounded) {
            const void* nul = position < size ? std::memchr(start, 0, size - position) : nullptr;
            if (nul == nullptr) {
                throw MalformedInput("a string at offset " + std::to_string(position) +
                                     " has no NUL before the end of the input");
            }
            length = static_cast<std::size_t>(static_cast<const char*>(nul) - start);
        } else {
            length = std::strlen(start);
        }
        terminated = true;
    }
    utf8::decode(reinterpret_cast<const char*>(buffer + position), length, text); // NOLINT
    position += static_cast<uint32_t>(length + (terminated ? 1 : 0));
    return *this;
}

OTXStream& OTXStream::write(const std::vector<uint8_t>& bytes) {
    write(static_cast<uint32_t>(bytes.size()));
    put(bytes.data(), bytes.size());
    return *this;
}

OTXStream& OTXStream::read(std::vector<uint8_t>& bytes) {
    bytes.resize(readCount(1));
    take(bytes.data(), bytes.size());
    return *this;
}

} // namespace kel
