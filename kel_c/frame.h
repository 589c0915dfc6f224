// The frame every export follows: convert the inputs, make one engine call, and only
// after it returns convert the result into the caller's out-parameters. A
// TarnApiException becomes a KelError stored through `error`; the outputs then keep
// the caller's values. Success never writes *error.
#pragma once

#include "convert.h"
#include "registry.h"

#include <Kel_cpp/TarnApi.h>
#include <kel_c.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace kel {

namespace engine_ns = Varno::Kel_cpp;

// The KelError record is stored through `error` first and filled afterwards, so that a
// failure while filling it still leaves the caller a record to free.
void capture(KelError** error, const engine_ns::TarnApiException& exception);

template <class Call, class... Out>
void invoke(KelError** error, Call&& call, Out&&... out) {
    try {
        if constexpr (sizeof...(Out) == 0) {
            call();
        } else {
            auto result = call();
            (out.store(result), ...);
        }
    } catch (
        engine_ns::TarnApiException exception) { // NOLINT(misc-throw-by-value-catch-by-reference)
        capture(error, exception);
    }
}

// The engine object of the one export that takes it as a 64-bit number.
inline engine_ns::TarnApi* engine(uint64_t address) {
    return reinterpret_cast<engine_ns::TarnApi*>(static_cast<uintptr_t>(address)); // NOLINT
}

namespace in {

inline std::wstring text(const wchar_t* value) { return value; }

inline std::vector<std::wstring> texts(wchar_t* const* values, uint32_t count) {
    std::vector<std::wstring> out;
    out.reserve(count);
    for (uint32_t i = 0; i < count; ++i) {
        out.emplace_back(values[i]);
    }
    return out;
}

// Copied as one block of `count` elements; the caller keeps its array.
template <class T>
std::vector<T> values(const T* block, uint32_t count) {
    return count == 0 ? std::vector<T>{} : std::vector<T>(block, block + count);
}

// A single input record passes into the export's ownership. E is the engine class the
// operation takes: the C record's own, or an `as=` class handed in as C.
template <class C, class E = EngineOf<C>>
std::shared_ptr<E> record(C* value) {
    return fromC<C, E>(value, true);
}

template <class C, class E = EngineOf<C>>
std::vector<std::shared_ptr<E>> records(C* const* block, uint32_t count) {
    return listFromC<C, E>(block, count);
}

// The caller keeps its handler: neither the engine nor the library ever deletes it.
inline std::shared_ptr<engine_ns::ServerHandler> handler(void* value) {
    return {static_cast<engine_ns::ServerHandler*>(value), [](engine_ns::ServerHandler*) {}};
}

} // namespace in

namespace out {

template <class T>
struct Value {
    T* to;
    template <class R>
    void store(const R& result) const {
        *to = static_cast<T>(result);
    }
};
template <class T>
Value<T> value(T* to) {
    return {to};
}

struct Text {
    wchar_t** to;
    void store(const std::wstring& result) const { *to = heap::copy(result); }
};
inline Text text(wchar_t** to) { return {to}; }

// A result list of strings: count first; NULL for an empty list.
struct Texts {
    wchar_t*** to;
    uint32_t* count;
    void store(const std::vector<std::wstring>& result) const {
        *count = static_cast<uint32_t>(result.size());
        if (result.empty()) {
            *to = nullptr;
            return;
        }
        auto** block = heap::block<wchar_t*>(result.size());
        for (std::size_t i = 0; i < result.size(); ++i) {
            block[i] = heap::copy(result[i]);
        }
        *to = block;
    }
};
inline Texts texts(wchar_t*** to, uint32_t* count) { return {to, count}; }

// A byte buffer handed out directly is always allocated, also for zero bytes.
template <class P>
struct Buffer {
    P** to;
    uint32_t* count;
    void store(const std::vector<uint8_t>& result) const {
        *to = reinterpret_cast<P*>(heap::copyBytes(result.data(), result.size())); // NOLINT
        *count = static_cast<uint32_t>(result.size());
    }
};
template <class P>
Buffer<P> buffer(P** to, uint32_t* count) {
    return {to, count};
}

template <class C>
struct One {
    C** to;
    template <class E>
    void store(const std::shared_ptr<E>& result) const {
        *to = toC<C>(result.get());
    }
};
template <class C>
One<C> record(C** to) {
    return {to};
}

template <class C>
struct List {
    C*** to;
    uint32_t* count;
    template <class E>
    void store(const std::vector<std::shared_ptr<E>>& result) const {
        C** block = nullptr;
        uint32_t n = 0;
        listToC<C>(result, block, n);
        *count = n;
        *to = block;
    }
};
template <class C>
List<C> records(C*** to, uint32_t* count) {
    return {to, count};
}

// An engine object handed out by the engine joins the registry; the caller receives
// its address (and gives it back with releaseTarnApi).
struct Registered {
    engine_ns::TarnApi** to;
    void store(const std::shared_ptr<engine_ns::TarnApi>& result) const {
        *to = registry().add(result);
    }
};

// The same for an operation whose result is an engine object: the address travels as
// a 64-bit handle.
struct Engine {
    uint64_t* to;
    void store(const std::shared_ptr<engine_ns::TarnApi>& result) const {
        *to = reinterpret_cast<uintptr_t>(registry().add(result)); // NOLINT
    }
};
inline Engine engine(uint64_t* to) { return {to}; }

} // namespace out
} // namespace kel
