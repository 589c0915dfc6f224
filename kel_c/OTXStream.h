// The positional, untagged, little-endian byte stream of the two dispatchers.
//
// One stream reads a caller's buffer or writes a buffer it grows itself. Values
// follow one another with no tags, alignment or padding; both sides know from the
// operation number what comes next. Every engine record has one stream form: its
// fields in the one order of its field table (EngineFields.h), nested records and
// record vectors in the nullable-record form.
//
// Three flags select variants: `lengthPrefixedStrings` (strings are read with a u32
// byte count, otherwise up to a NUL that is consumed), `presenceBytes` (a record read
// is preceded by a presence byte) and `flagsAsList` (bit sets travel as a count and a
// list of single bits). The writer always writes string length prefixes and presence
// bytes: the first two flags govern reading only.
#pragma once

#include <Kel_cpp/TarnApi.h>

#include <EngineFields.h>
#include <array>
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

// The primitive writes are inlined wherever a record is written: out of line, a call
// costs more than the store it makes (compilers otherwise decide by the size of the unit).
#if defined(__GNUC__)
#define KEL_STREAM_INLINE __attribute__((always_inline))
#else
#define KEL_STREAM_INLINE
#endif

namespace kel {

// A bit set member or argument: travels as one u32, or under flagsAsList as a list.
struct Bits {
    uint32_t value = 0;
};

// Input that runs past the end of a bounds-checked stream, or is otherwise malformed.
class MalformedInput : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The deepest record nesting a bounds-checked stream accepts; a deeper record is
// malformed input. Reading a tree, the engine's work on it and its release each recurse
// once per level, and a few bytes of input make a level: without a bound a small input
// exhausts the stack (a Windows main thread has 1 MiB). At this depth a whole call,
// engine included, stays under a quarter of that stack even in a debug build (about
// 1 KB a level), while parameter and directory trees of real use stay far below it.
// kel_c.h states the figure to callers.
inline constexpr uint32_t maxRecordDepth = 256;

// Every block an output stream allocates has room for at least this many bytes, and a
// block of up to smallResultBlock bytes counts as small: one such block is kept between a
// result's release and the next stream, so that a trivial call allocates nothing.
inline constexpr uint32_t smallBlock = 64;
inline constexpr uint32_t smallResultBlock = 4 * smallBlock;
extern std::atomic<uint8_t*> keptBlock; // a small block with room for smallBlock bytes, or null

struct OTXStream {
    uint8_t* buffer = nullptr; // the caller's bytes (input) or a C-heap block (output)
    uint32_t capacity = 0;     // bytes allocated; 0 for a stream over a caller's buffer
    uint32_t position = 0;     // next byte; for output also the number of bytes written
    uint8_t lengthPrefixedStrings = 0;
    uint8_t presenceBytes = 0;
    uint8_t flagsAsList = 0;
    // Only for the bounds-checked entry points: the input's size. Reading past it throws
    // MalformedInput. The plain entry points get no size and read unchecked.
    bool bounded = false;
    uint32_t size = 0;
    // Records being read around the current position (1 inside a top-level record).
    uint32_t depth = 0;

    OTXStream(bool lengthPrefixed, bool presence, bool asList)
        : lengthPrefixedStrings(lengthPrefixed ? 1 : 0), presenceBytes(presence ? 1 : 0),
          flagsAsList(asList ? 1 : 0) {}
    OTXStream(const OTXStream&) = delete;
    OTXStream& operator=(const OTXStream&) = delete;
    // A stream with non-zero capacity owns its buffer.
    ~OTXStream() {
        if (capacity != 0) {
            std::free(buffer);
        }
    }

    // An input stream over a caller's buffer, which it never frees (capacity 0).
    OTXStream(const void* input, bool lengthPrefixed, bool presence, bool asList)
        : OTXStream(lengthPrefixed, presence, asList) {
        // Read only: with capacity 0 the stream never writes or frees the caller's buffer.
        buffer = static_cast<uint8_t*>(const_cast<void*>(input)); // NOLINT
    }

    // Hands the written buffer over: the stream is left empty and owns nothing.
    uint8_t* detach() {
        uint8_t* out = buffer;
        buffer = nullptr;
        capacity = 0;
        position = 0;
        return out;
    }

    // Starts an empty output stream in the kept small block, when there is one.
    void startInKeptBlock() {
        buffer = keptBlock.exchange(nullptr, std::memory_order_acquire);
        capacity = buffer != nullptr ? smallBlock : 0;
    }

    // True while the written buffer is a small block (see smallResultBlock).
    bool inSmallBlock() const { return capacity <= smallResultBlock; }

    // Frees a buffer that a stream handed over (detach) once its bytes are copied out.
    // A small block (the caller knows it was: inSmallBlock() when it was handed over) is
    // kept for the next stream instead, unless one is kept already.
    static void release(uint8_t* detached, bool small) {
        if (small && detached != nullptr) {
            uint8_t* none = nullptr;
            if (keptBlock.compare_exchange_strong(none, detached, std::memory_order_release,
                                                  std::memory_order_relaxed)) {
                return;
            }
        }
        std::free(detached);
    }

    // Copies a result out: up to 16 bytes (a trivial call's result) in two overlapping
    // fixed-size moves instead of a call to memcpy.
    static void copyOut(void* destination, const uint8_t* from, std::size_t count) {
        auto* to = static_cast<uint8_t*>(destination);
        if (count >= 8 && count <= 16) {
            std::memcpy(to, from, 8);
            std::memcpy(to + count - 8, from + count - 8, 8);
        } else if (count >= 4 && count < 8) {
            std::memcpy(to, from, 4);
            std::memcpy(to + count - 4, from + count - 4, 4);
        } else if (count > 16) {
            std::memcpy(to, from, count);
        } else {
            for (std::size_t i = 0; i < count; ++i) {
                to[i] = from[i];
            }
        }
    }

    // ---- writing ----
    // Primitives are copied as they lie in memory (the targets are little-endian), inline:
    // a capacity check and a store while the buffer has room.
    KEL_STREAM_INLINE OTXStream& write(bool value) {
        return write(static_cast<uint8_t>(value ? 1 : 0));
    }
    KEL_STREAM_INLINE OTXStream& write(uint8_t value) { return putValue(value); }
    KEL_STREAM_INLINE OTXStream& write(uint16_t value) { return putValue(value); }
    KEL_STREAM_INLINE OTXStream& write(int16_t value) { return putValue(value); }
    KEL_STREAM_INLINE OTXStream& write(int32_t value) { return putValue(value); }
    KEL_STREAM_INLINE OTXStream& write(uint32_t value) { return putValue(value); }
    KEL_STREAM_INLINE OTXStream& write(int64_t value) { return putValue(value); }
    KEL_STREAM_INLINE OTXStream& write(uint64_t value) { return putValue(value); }
    OTXStream& write(Bits value);
    OTXStream& write(const std::wstring& text);
    OTXStream& write(const std::vector<uint8_t>& bytes);
    template <class T>
    OTXStream& write(const std::vector<T>& values);
    template <class T, std::size_t N>
    OTXStream& write(const std::array<T, N>& values);
    template <class E>
    OTXStream& write(const std::shared_ptr<E>& record);

    // ---- reading ----
    OTXStream& read(bool& value) {
        uint8_t byte = 0;
        takeValue(byte);
        value = byte != 0;
        return *this;
    }
    OTXStream& read(uint8_t& value) { return takeValue(value); }
    OTXStream& read(uint16_t& value) { return takeValue(value); }
    OTXStream& read(int16_t& value) { return takeValue(value); }
    OTXStream& read(int32_t& value) { return takeValue(value); }
    OTXStream& read(uint32_t& value) { return takeValue(value); }
    OTXStream& read(int64_t& value) { return takeValue(value); }
    OTXStream& read(uint64_t& value) { return takeValue(value); }
    OTXStream& read(Bits& value);
    OTXStream& read(std::wstring& text);
    OTXStream& read(std::vector<uint8_t>& bytes);
    template <class T>
    OTXStream& read(std::vector<T>& values);
    template <class T, std::size_t N>
    OTXStream& read(std::array<T, N>& values);
    template <class E>
    OTXStream& read(std::shared_ptr<E>& record);

    // Raw bytes, as every primitive is written and read.
    void put(const void* bytes, std::size_t count) {
        if (count != 0) {
            std::memcpy(reserve(count), bytes, count);
            position += static_cast<uint32_t>(count);
        }
    }
    void take(void* bytes, std::size_t count) {
        if (bounded && count > std::size_t{size} - position) {
            endOfInput(count);
        }
        if (count != 0) {
            std::memcpy(bytes, buffer + position, count);
            position += static_cast<uint32_t>(count);
        }
    }

    // Room for `count` more bytes at the write position, which does not move: the one
    // growth policy of every write.
    uint8_t* reserve(std::size_t count) {
        if (count > std::size_t{capacity} - position) {
            grow(count);
        }
        return buffer + position;
    }

private:
    template <class T>
    KEL_STREAM_INLINE OTXStream& putValue(T value) {
        std::memcpy(reserve(sizeof value), &value, sizeof value);
        position += static_cast<uint32_t>(sizeof value);
        return *this;
    }
    template <class T>
    OTXStream& takeValue(T& value) {
        take(&value, sizeof value);
        return *this;
    }
    // Grows the buffer geometrically to hold `count` more bytes.
    void grow(std::size_t count);
    // Throws MalformedInput: `count` bytes are not there.
    [[noreturn]] void endOfInput(std::size_t count) const;

    // Holds one level of record nesting while a record's fields are read; throws
    // MalformedInput on a bounded stream past maxRecordDepth.
    class Nesting {
    public:
        explicit Nesting(OTXStream& stream);
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;
        ~Nesting() { --stream_.depth; }

    private:
        OTXStream& stream_;
    };

    uint32_t readCount(std::size_t elementSize);
    template <class E, class Member>
    void writeField(const E& record, const Member& field);
    template <class E, class Member>
    void readField(E& record, const Member& field);
};

template <class T>
OTXStream& OTXStream::write(const std::vector<T>& values) {
    write(static_cast<uint32_t>(values.size()));
    for (const auto& value : values) {
        write(value);
    }
    return *this;
}

template <class T, std::size_t N>
OTXStream& OTXStream::write(const std::array<T, N>& values) {
    for (const auto& value : values) {
        write(value);
    }
    return *this;
}

template <class E, class Member>
void OTXStream::writeField(const E& record, const Member& field) {
    if constexpr (Member::bits) {
        write(Bits{record.*(field.pointer)});
    } else {
        write(record.*(field.pointer));
    }
}

template <class E>
OTXStream& OTXStream::write(const std::shared_ptr<E>& record) {
    write(static_cast<uint8_t>(record ? 1 : 0));
    if (record) {
        std::apply([&](const auto&... field) { (writeField(*record, field), ...); },
                   Varno::Kel_cpp::Fields::Of<E>::list);
    }
    return *this;
}

template <class T>
OTXStream& OTXStream::read(std::vector<T>& values) {
    const uint32_t count = readCount(1);
    values.resize(count);
    for (auto& value : values) {
        read(value);
    }
    return *this;
}

template <class T, std::size_t N>
OTXStream& OTXStream::read(std::array<T, N>& values) {
    for (auto& value : values) {
        read(value);
    }
    return *this;
}

template <class E, class Member>
void OTXStream::readField(E& record, const Member& field) {
    if constexpr (Member::bits) {
        Bits bits;
        read(bits);
        record.*(field.pointer) |= bits.value;
    } else {
        read(record.*(field.pointer));
    }
}

// With presence bytes a 0 leaves the target as it was; without them a record is
// always created and its fields follow at once.
template <class E>
OTXStream& OTXStream::read(std::shared_ptr<E>& record) {
    if (presenceBytes != 0) {
        uint8_t present = 0;
        read(present);
        if (present == 0) {
            return *this;
        }
    }
    const Nesting level(*this);
    auto created = std::make_shared<E>();
    std::apply([&](const auto&... field) { (readField(*created, field), ...); },
               Varno::Kel_cpp::Fields::Of<E>::list);
    record = std::move(created);
    return *this;
}

} // namespace kel
