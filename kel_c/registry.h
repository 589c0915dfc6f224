// Keeps engine objects alive while C callers hold their raw addresses.
//
// One entry per distinct engine object, ordered by address. Obtaining an object that
// is already registered counts one more use; releasing counts one down and drops the
// registry's reference at zero. Exported operations never consult the registry: they
// call straight through the address they are given.
#pragma once

#include <Kel_cpp/TarnApi.h>

#include <cstdint>
#include <memory>
#include <mutex>
#include <set>

namespace kel {

struct ApiRegistryEntry {
    mutable uint64_t useCount = 1;                  // touched only under the registry mutex
    Varno::Kel_cpp::TarnApi* address = nullptr;     // set in lookup probes only
    std::shared_ptr<Varno::Kel_cpp::TarnApi> owner; // set in stored entries only

    uint64_t key() const {
        return reinterpret_cast<uintptr_t>(address != nullptr ? address : owner.get()); // NOLINT
    }
};

struct ByAddress {
    bool operator()(const ApiRegistryEntry& a, const ApiRegistryEntry& b) const {
        return a.key() < b.key();
    }
};

class ApiRegistry {
public:
    // Registers one use of the object and returns its address.
    Varno::Kel_cpp::TarnApi* add(const std::shared_ptr<Varno::Kel_cpp::TarnApi>& api);
    // Gives back one use; unknown and null addresses are ignored.
    void release(Varno::Kel_cpp::TarnApi* api);

private:
    std::set<ApiRegistryEntry, ByAddress> entries_;
    std::mutex mutex_;
};

ApiRegistry& registry();

} // namespace kel
