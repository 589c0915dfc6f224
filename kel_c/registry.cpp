#include "registry.h"

#include "frame.h"

#include <Kel_cpp/Engine.h>
#include <kel_c.h>

namespace kel {
namespace {

// Built when the library loads; at unload it drops every remaining reference.
ApiRegistry theRegistry; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

} // namespace

ApiRegistry& registry() { return theRegistry; }

Varno::Kel_cpp::TarnApi* ApiRegistry::add(const std::shared_ptr<Varno::Kel_cpp::TarnApi>& api) {
    const std::lock_guard lock(mutex_);
    ApiRegistryEntry probe{1, nullptr, api};
    const auto found = entries_.lower_bound(probe);
    if (found != entries_.end() && !(probe.key() < found->key())) {
        ++found->useCount;
    } else {
        entries_.insert(found, std::move(probe));
    }
    return api.get();
}

void ApiRegistry::release(Varno::Kel_cpp::TarnApi* api) {
    // The last reference is dropped after the lock is let go: an engine object's
    // destructor may call back into code that obtains or releases engine objects.
    std::shared_ptr<Varno::Kel_cpp::TarnApi> last;
    {
        const std::lock_guard lock(mutex_);
        const ApiRegistryEntry probe{1, api, nullptr};
        const auto found = entries_.find(probe);
        if (found == entries_.end()) {
            return;
        }
        if (--found->useCount == 0) {
            last = found->owner;
            entries_.erase(probe);
        }
    }
}

} // namespace kel

extern "C" {

TarnApi* kel_getTarnApi(void) { return kel::registry().add(Varno::Kel_cpp::getTarnApi()); }

TarnApi* kel_getRemoteConnectionByHandle(uint64_t handle, KelError** error) {
    TarnApi* api = nullptr;
    kel::invoke(
        error, [&] { return Varno::Kel_cpp::getRemoteConnectionByHandle(handle); },
        kel::out::Registered{&api});
    return api;
}

void releaseTarnApi(TarnApi* api) { kel::registry().release(api); }

} // extern "C"
