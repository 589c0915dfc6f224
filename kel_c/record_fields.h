// The member kinds of C records and how each crosses to its engine member and back.
//
// A record's table (generated/records.h) is a tuple of these descriptors in field
// order; the generic converters walk it. Each descriptor knows three things about its
// member: copy from the engine (toC), copy to the engine (fromC) and free (release).
#pragma once

#include "heap.h"

#include <Kel_cpp/Records.h>
#include <kel_c.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

namespace kel {

// Names T through V: the tables in generated/records.h are partial specialisations whose
// members depend on V, so the compiler builds a table only for the records a translation
// unit uses (built eagerly, the tables cost every includer about 2 s and 450 MB).
template <class V, class T>
struct Deferred {
    using type = T;
};

// Specialised for every C record in generated/records.h: `Engine` is the engine class,
// `fields` the descriptor tuple.
template <class C, class = void>
struct Record;

template <class C>
using EngineOf = typename Record<C>::Engine;

// Specialised in generated/records.h for each further engine class E that is handed out
// as the C record C (`as=` in the description): `fields` pairs E's members with C's.
template <class C, class E, class = void>
struct Alias;

// The one-record and list converters, defined in convert.h. E is the engine class: the
// C record's own, or one of its aliases.
template <class C, class E>
C* toC(const E* engine);
template <class C, class E = EngineOf<C>>
std::shared_ptr<E> fromC(C* record, bool consume);
template <class C>
void release(C* record);
template <class C>
void releaseArray(C** records, uint64_t count);
template <class C, class E>
void listToC(const std::vector<std::shared_ptr<E>>& engine, C**& block, uint32_t& count);
template <class C, class E = EngineOf<C>>
std::vector<std::shared_ptr<E>> listFromC(C* const* block, uint32_t count);

// Marks a string list whose block is allocated even when it is empty.
struct Always {};
inline constexpr Always always{};

// A value as a C caller wrote it. A C bool is read as its byte: a caller's byte other
// than 0 or 1 is then true rather than an invalid bool.
template <class T>
T readC(const T& value) {
    if constexpr (std::is_same_v<T, bool>) {
        return *reinterpret_cast<const unsigned char*>(&value) != 0; // NOLINT
    } else {
        return value;
    }
}

template <class CM, class EM, class C, class E>
struct ValueField {
    CM C::*c;
    EM E::*e;
    // Engine true is 1 in a C flag byte; any non-zero byte is engine true.
    template <class CR, class ER>
    void toC(CR& to, const ER& from) const {
        to.*c = static_cast<CM>(from.*e);
    }
    template <class ER, class CR>
    void fromC(ER& to, const CR& from) const {
        if constexpr (std::is_same_v<EM, bool>) {
            to.*e = readC(from.*c) != 0;
        } else {
            to.*e = static_cast<EM>(from.*c);
        }
    }
    template <class CR>
    void release(CR& /*record*/) const {}
};

template <class T, std::size_t N, class C, class E>
struct ArrayField {
    T (C::*c)[N];
    std::array<T, N> E::*e;
    template <class CR, class ER>
    void toC(CR& to, const ER& from) const {
        for (std::size_t i = 0; i < N; ++i) {
            (to.*c)[i] = (from.*e)[i];
        }
    }
    template <class ER, class CR>
    void fromC(ER& to, const CR& from) const {
        for (std::size_t i = 0; i < N; ++i) {
            (to.*e)[i] = readC((from.*c)[i]);
        }
    }
    template <class CR>
    void release(CR& /*record*/) const {}
};

template <class C, class E>
struct TextField {
    wchar_t* C::*c;
    std::wstring E::*e;
    template <class CR, class ER>
    void toC(CR& to, const ER& from) const {
        to.*c = heap::copy(from.*e);
    }
    // A string member of an input record must not be NULL: an empty string is how a
    // caller passes an absent value.
    template <class ER, class CR>
    void fromC(ER& to, const CR& from) const {
        to.*e = from.*c;
    }
    template <class CR>
    void release(CR& record) const {
        heap::free(record.*c);
    }
};

template <class C, class E>
struct TextListField {
    wchar_t** C::*c;
    uint32_t C::*count;
    std::vector<std::wstring> E::*e;
    bool allocateEmpty;
    template <class CR, class ER>
    void toC(CR& to, const ER& from) const {
        const auto& texts = from.*e;
        to.*count = static_cast<uint32_t>(texts.size());
        if (texts.empty() && !allocateEmpty) {
            return;
        }
        to.*c = heap::block<wchar_t*>(texts.size());
        for (std::size_t i = 0; i < texts.size(); ++i) {
            (to.*c)[i] = heap::copy(texts[i]);
        }
    }
    template <class ER, class CR>
    void fromC(ER& to, const CR& from) const {
        auto& texts = to.*e;
        texts.reserve(from.*count);
        for (uint32_t i = 0; i < from.*count; ++i) {
            texts.emplace_back((from.*c)[i]);
        }
    }
    template <class CR>
    void release(CR& record) const {
        heap::freeTexts(record.*c, record.*count);
        record.*count = 0;
    }
};

template <class C, class E>
struct BytesField {
    uint8_t* C::*c;
    uint32_t C::*count;
    std::vector<uint8_t> E::*e;
    // An empty vector gives NULL and 0.
    template <class CR, class ER>
    void toC(CR& to, const ER& from) const {
        const auto& bytes = from.*e;
        to.*count = static_cast<uint32_t>(bytes.size());
        to.*c = bytes.empty() ? nullptr : heap::copyBytes(bytes.data(), bytes.size());
    }
    template <class ER, class CR>
    void fromC(ER& to, const CR& from) const {
        const uint8_t* bytes = from.*c;
        (to.*e).assign(bytes, bytes + (bytes != nullptr ? from.*count : 0));
    }
    template <class CR>
    void release(CR& record) const {
        heap::free(record.*c);
        record.*count = 0;
    }
};

template <class CR, class ER, class C, class E>
struct NestedField {
    CR* C::*c;
    std::shared_ptr<ER> E::*e;
    template <class CO, class EO>
    void toC(CO& to, const EO& from) const {
        to.*c = kel::toC<CR>((from.*e).get());
    }
    template <class EO, class CO>
    void fromC(EO& to, const CO& from) const {
        to.*e = kel::fromC<CR, ER>(from.*c, false);
    }
    template <class CO>
    void release(CO& record) const {
        kel::release(record.*c);
        record.*c = nullptr;
    }
};

template <class CR, class ER, class C, class E>
struct ListField {
    CR** C::*c;
    uint32_t C::*count;
    std::vector<std::shared_ptr<ER>> E::*e;
    template <class CO, class EO>
    void toC(CO& to, const EO& from) const {
        kel::listToC<CR>(from.*e, to.*c, to.*count);
    }
    template <class EO, class CO>
    void fromC(EO& to, const CO& from) const {
        to.*e = kel::listFromC<CR, ER>(from.*c, from.*count);
    }
    template <class CO>
    void release(CO& record) const {
        kel::releaseArray(record.*c, record.*count);
        record.*c = nullptr;
        record.*count = 0;
    }
};

// A field that travels one way only. Release still frees whatever the C member holds,
// whichever side filled it.
template <class F>
struct InOnly : F { // C to engine: toC leaves the C member zero/NULL
    template <class CR, class ER>
    void toC(CR& /*to*/, const ER& /*from*/) const {}
};
template <class F>
struct OutOnly : F { // engine to C: fromC leaves the engine member at its default
    template <class ER, class CR>
    void fromC(ER& /*to*/, const CR& /*from*/) const {}
};
template <class F>
constexpr InOnly<F> inOnly(F field) {
    return {field};
}
template <class F>
constexpr OutOnly<F> outOnly(F field) {
    return {field};
}

// field(...) picks the descriptor from the member types, so the generated tables read
// as plain lists of member pairs.
template <class CM, class EM, class C, class E>
requires std::is_arithmetic_v<CM> && std::is_arithmetic_v<EM>
constexpr auto field(CM C::*c, EM E::*e) { return ValueField<CM, EM, C, E>{c, e}; }
template <class T, std::size_t N, class C, class E>
constexpr auto field(T (C::*c)[N], std::array<T, N> E::*e) {
    return ArrayField<T, N, C, E>{c, e};
}
template <class C, class E>
constexpr auto field(wchar_t* C::*c, std::wstring E::*e) {
    return TextField<C, E>{c, e};
}
template <class CR, class ER, class C, class E>
constexpr auto field(CR* C::*c, std::shared_ptr<ER> E::*e) {
    return NestedField<CR, ER, C, E>{c, e};
}
template <class C, class E>
constexpr auto field(wchar_t** C::*c, uint32_t C::*count, std::vector<std::wstring> E::*e) {
    return TextListField<C, E>{c, count, e, false};
}
template <class C, class E>
constexpr auto field(wchar_t** C::*c, uint32_t C::*count, std::vector<std::wstring> E::*e, Always) {
    return TextListField<C, E>{c, count, e, true};
}
template <class C, class E>
constexpr auto field(uint8_t* C::*c, uint32_t C::*count, std::vector<uint8_t> E::*e) {
    return BytesField<C, E>{c, count, e};
}
template <class CR, class ER, class C, class E>
constexpr auto field(CR** C::*c, uint32_t C::*count, std::vector<std::shared_ptr<ER>> E::*e) {
    return ListField<CR, ER, C, E>{c, count, e};
}

} // namespace kel
