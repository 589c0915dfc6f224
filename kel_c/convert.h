// Generic conversion between C records and engine records, and release of C records,
// driven by the field tables of generated/records.h.
//
// Engine to C: NULL for a null engine object; a record is allocated zero-filled at its
// exact size and filled member by member in table order. Lists hand out a block of
// pointers and a count; an empty list is NULL with count 0.
// C to engine: NULL gives a null engine object; a consumed record is released right
// after the copy, before the engine is called. Lists are never consumed.
#pragma once

#include "generated/records.h"
#include "heap.h"

#include <cstddef>
#include <memory>
#include <tuple>
#include <type_traits>
#include <vector>

namespace kel {

// The table that pairs C record C with engine class E. An alias may lack members of the
// C record; those stay zero in C and default in the engine record.
template <class C, class E>
constexpr const auto& fieldsOf() {
    if constexpr (std::is_same_v<E, EngineOf<C>>) {
        return Record<C>::fields;
    } else {
        return Alias<C, E>::fields;
    }
}

template <class C, class E>
C* toC(const E* engine) {
    if (engine == nullptr) {
        return nullptr;
    }
    C* record = heap::zeroed<C>();
    std::apply([&](const auto&... f) { (f.toC(*record, *engine), ...); }, fieldsOf<C, E>());
    return record;
}
template <class C>
C* toC(std::nullptr_t) {
    return nullptr;
}

template <class C, class E>
std::shared_ptr<E> fromC(C* record, bool consume) {
    if (record == nullptr) {
        return {};
    }
    auto engine = std::make_shared<E>();
    std::apply([&](const auto&... f) { (f.fromC(*engine, *record), ...); }, fieldsOf<C, E>());
    if (consume) {
        release(record);
    }
    return engine;
}

template <class C>
void release(C* record) {
    if (record == nullptr) {
        return;
    }
    std::apply([&](const auto&... f) { (f.release(*record), ...); }, Record<C>::fields);
    std::free(record);
}

template <class C>
void releaseArray(C** records, uint64_t count) {
    if (records == nullptr) {
        return;
    }
    for (uint64_t i = 0; i < count; ++i) {
        release(records[i]);
    }
    std::free(static_cast<void*>(records));
}

template <class C, class E>
void listToC(const std::vector<std::shared_ptr<E>>& engine, C**& block, uint32_t& count) {
    count = static_cast<uint32_t>(engine.size());
    if (engine.empty()) {
        block = nullptr;
        return;
    }
    block = heap::block<C*>(engine.size());
    for (std::size_t i = 0; i < engine.size(); ++i) {
        block[i] = toC<C>(engine[i].get());
    }
}

// A zero count gives an empty vector without reading the block; NULL entries become
// null engine pointers.
template <class C, class E>
std::vector<std::shared_ptr<E>> listFromC(C* const* block, uint32_t count) {
    std::vector<std::shared_ptr<E>> engine;
    engine.reserve(count);
    for (uint32_t i = 0; i < count; ++i) {
        engine.push_back(fromC<C, E>(block[i], false));
    }
    return engine;
}

} // namespace kel
