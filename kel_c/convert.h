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

#include <memory>
#include <tuple>
#include <vector>

namespace kel {

template <class C> C* toC(const EngineOf<C>* engine) {
    if (engine == nullptr) {
        return nullptr;
    }
    C* record = heap::zeroed<C>();
    std::apply([&](const auto&... f) { (f.toC(*record, *engine), ...); }, Record<C>::fields);
    return record;
}

template <class C> std::shared_ptr<EngineOf<C>> fromC(C* record, bool consume) {
    if (record == nullptr) {
        return {};
    }
    auto engine = std::make_shared<EngineOf<C>>();
    std::apply([&](const auto&... f) { (f.fromC(*engine, *record), ...); }, Record<C>::fields);
    if (consume) {
        release(record);
    }
    return engine;
}

template <class C> void release(C* record) {
    if (record == nullptr) {
        return;
    }
    std::apply([&](const auto&... f) { (f.release(*record), ...); }, Record<C>::fields);
    std::free(record);
}

template <class C> void releaseArray(C** records, uint64_t count) {
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
template <class C>
std::vector<std::shared_ptr<EngineOf<C>>> listFromC(C* const* block, uint32_t count) {
    std::vector<std::shared_ptr<EngineOf<C>>> engine;
    engine.reserve(count);
    for (uint32_t i = 0; i < count; ++i) {
        engine.push_back(fromC(block[i], false));
    }
    return engine;
}

} // namespace kel
