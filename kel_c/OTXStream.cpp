#include "OTXStream.h"

#include "trace.h"
#include "utf8.h"

#include <Vutil/TraceHelper.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <new>

namespace kel {

std::atomic<uint8_t*> keptBlock{nullptr};

// Geometric growth: writing many small values costs amortised constant time on every
// heap (an exact-size realloc per write is quadratic on the Windows heap).
void OTXStream::grow(std::size_t count) {
    const std::size_t needed = std::size_t{position} + count;
    if (needed > UINT32_MAX) {
        throw std::length_error("OTXStream: a result stream is limited to 4 GiB");
    }
    if (buffer == nullptr && needed <= smallBlock) {
        startInKeptBlock();
        if (buffer != nullptr) {
            return;
        }
    }
    const std::size_t grown = std::min<std::size_t>(
        UINT32_MAX, std::max<std::size_t>({needed, std::size_t{capacity} * 2, smallBlock}));
    void* block = buffer != nullptr ? std::realloc(buffer, grown) : std::malloc(grown);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    buffer = static_cast<uint8_t*>(block);
    capacity = static_cast<uint32_t>(grown);
}

void OTXStream::endOfInput(std::size_t count) const {
    throw MalformedInput("the input ends after " + std::to_string(size) + " bytes, but " +
                         std::to_string(count) + " more were needed at offset " +
                         std::to_string(position));
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

// The UTF-8 is encoded straight into the buffer behind room for its length, which is
// filled in afterwards: no temporary block and no copy.
OTXStream& OTXStream::write(const std::wstring& text) {
    uint8_t* at = reserve(4 + utf8::maxBytes(text.size()));
    const std::size_t bytes = utf8::encodeTo(text.data(), text.size(), at + 4);
    const auto length = static_cast<uint32_t>(bytes);
    std::memcpy(at, &length, 4);
    position += 4 + length;
    if (trace::enabled()) {
        const std::string copy(reinterpret_cast<const char*>(at + 4), bytes); // NOLINT
        Vutil::TraceHelper::trace("OTXStream", "Streaming a string with size %d c = %s",
                                  static_cast<int>(bytes), copy.c_str());
    }
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
    // Decoded straight into the target, sized once for the most characters the bytes
    // can hold and cut to the ones decoded.
    text.resize(length);
    text.resize(utf8::decodeTo(buffer + position, length, text.data()));
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
