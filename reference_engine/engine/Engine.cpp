// The engine's entry points and its handle registry: every engine object is an
// EngineFront over a FamilyRouter over the family objects of its vehicle.
#include "EngineFront.h"
#include "SimulatedVehicle.h"

#include <Kel_cpp/Engine.h>

#include <atomic>
#include <map>
#include <string>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

// Handles are stable for an object's life and never 0, which callers use for "local".
uint64_t newHandle() {
    static std::atomic<uint64_t> next{0x4B454C0000000001ULL};
    return next++;
}

struct Registered {
    std::weak_ptr<FamilyRouter> object;
    std::weak_ptr<SimulatedVehicle> vehicle;
};

// Every live engine object by handle, so that remote connections can find them.
struct Handles {
    std::mutex mutex;
    std::map<uint64_t, Registered> objects;
    std::map<uint64_t, std::weak_ptr<EngineFront>> remotes; // by the handle they connect to
    std::weak_ptr<EngineFront> local;
    // The engine keeps its local object alive by itself, as the real engine does, so a
    // caller may use it without holding a reference; restartLocalEngine lets it go.
    std::shared_ptr<EngineFront> keptLocal;
};

// Never destroyed, so the local engine outlives process exit. On Windows the other
// threads are already killed when a DLL's statics go; one of them may have died holding
// a lock that the vehicle's teardown (its asynchronous workers' state) would wait on
// forever. Leaving it to the operating system is what exit wants anyway.
Handles& handles() {
    static auto* instance = new Handles; // NOLINT(cppcoreguidelines-owning-memory)
    return *instance;
}

// "remote 4B454C0000000003": the client by the handle of its connection.
std::wstring clientName(uint64_t handle) {
    std::wstring text = L"remote ";
    for (int shift = 60; shift >= 0; shift -= 4) {
        text += L"0123456789ABCDEF"[(handle >> shift) & 0xF];
    }
    return text;
}

// The object with `handle` and its vehicle, both null when it is gone. Callers hold
// h.mutex and let go of the object only after it: it may be the last reference.
std::pair<std::shared_ptr<FamilyRouter>, std::shared_ptr<SimulatedVehicle>>
findLocked(Handles& h, uint64_t handle) {
    const auto found = h.objects.find(handle);
    if (found == h.objects.end()) {
        return {};
    }
    auto object = found->second.object.lock();
    return {object, object ? found->second.vehicle.lock() : nullptr};
}

// Callers hold h.mutex. With `remoteClient`, the object is a remote client's connection
// and the client's name is stored there.
std::shared_ptr<EngineFront> makeEngineLocked(Handles& h,
                                              const std::shared_ptr<SimulatedVehicle>& vehicle,
                                              std::wstring* remoteClient = nullptr) {
    std::erase_if(h.objects, [](const auto& entry) { return entry.second.object.expired(); });
    EngineObject object;
    object.handle = newHandle();
    object.clock = std::make_shared<CallClock>();
    object.clock->handle = object.handle;
    if (remoteClient != nullptr) {
        object.remoteClient = *remoteClient = clientName(object.handle);
    }
    auto router = std::make_shared<FamilyRouter>(SimulatedVehicle::families(vehicle, object));
    h.objects[object.handle] = {router, vehicle};
    return std::make_shared<EngineFront>(std::move(router), Script::global(),
                                         std::move(object.clock));
}

} // namespace

std::shared_ptr<SimulatedVehicle> vehicleByHandle(uint64_t handle) {
    auto& h = handles();
    std::pair<std::shared_ptr<FamilyRouter>, std::shared_ptr<SimulatedVehicle>> found;
    {
        const std::lock_guard lock(h.mutex);
        found = findLocked(h, handle);
    }
    return found.second;
}

std::shared_ptr<TarnApi> connectRemoteClient(const std::shared_ptr<SimulatedVehicle>& vehicle) {
    auto& h = handles();
    std::shared_ptr<EngineFront> created;
    std::wstring client;
    {
        const std::lock_guard lock(h.mutex);
        created = makeEngineLocked(h, vehicle, &client);
    }
    vehicle->servers.announce(*vehicle); // queued by the new object's Servers family
    return created;
}

void restartLocalEngine() {
    std::shared_ptr<EngineFront> dropped;
    {
        auto& h = handles();
        const std::lock_guard lock(h.mutex);
        dropped = std::move(h.keptLocal);
    }
    // `dropped` may be the last reference: the engine object goes outside the lock.
}

} // namespace Varno::Kel_cpp::Reference

namespace Varno::Kel_cpp {

// Every call hands out the same local engine. The engine holds it itself until
// restartLocalEngine(); after that it lives while anybody else holds it, and the next
// call once it is gone starts a fresh engine on a fresh vehicle.
std::shared_ptr<TarnApi> getTarnApi() {
    auto& h = Reference::handles();
    const std::lock_guard lock(h.mutex);
    if (auto existing = h.local.lock()) {
        return existing;
    }
    auto created = Reference::makeEngineLocked(h, Reference::SimulatedVehicle::create());
    h.local = created;
    h.keptLocal = created;
    return created;
}

// A second engine object on the vehicle of the object with `handle`, as a remote
// client's connection would be. While it lives, the same handle gives the same object.
// A new connection is announced to the vehicle's server handlers after the registry
// lock is let go, so that a handler may call back into the engine.
std::shared_ptr<TarnApi> getRemoteConnectionByHandle(uint64_t handle) {
    auto& h = Reference::handles();
    std::pair<std::shared_ptr<Reference::FamilyRouter>,
              std::shared_ptr<Reference::SimulatedVehicle>>
        target;
    std::shared_ptr<Reference::EngineFront> created;
    std::wstring client;
    {
        const std::lock_guard lock(h.mutex);
        target = Reference::findLocked(h, handle);
        if (!target.first) {
            throw TarnApiException(Reference::UnknownHandle, L"No engine object has this handle",
                                   L"handle " + std::to_wstring(handle));
        }
        if (auto existing = h.remotes[handle].lock()) {
            return existing;
        }
        created = Reference::makeEngineLocked(h, target.second, &client);
        h.remotes[handle] = created;
    }
    target.second->servers.announce(*target.second);
    return created;
}

} // namespace Varno::Kel_cpp
