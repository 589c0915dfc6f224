#include "SimulatedVehicle.h"

#include <Kel_cpp/Engine.h>

#include <algorithm>
#include <atomic>
#include <map>
#include <string>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

void requireInitialized(const VehicleState& vehicle) {
    if (vehicle.state != Initialized) {
        throw TarnApiException(NotInitialized, L"The engine is not initialized",
                               L"call initialize before this operation");
    }
}

// Handles are stable for an object's life and never 0, which callers use for "local".
std::wstring lockDetail(uint64_t lockId) { return L"lock id " + std::to_wstring(lockId); }

uint64_t newHandle() {
    static std::atomic<uint64_t> next{0x4B454C0000000001ULL};
    return next++;
}

// Every live engine object by handle, so that remote connections can find them.
struct Handles {
    std::mutex mutex;
    std::map<uint64_t, std::weak_ptr<SimulatedVehicle>> objects;
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

} // namespace

SimulatedVehicle::SimulatedVehicle(std::shared_ptr<VehicleState> vehicle,
                                   std::shared_ptr<CallClock> clock, uint64_t handle)
    : vehicle_(std::move(vehicle)), clock_(std::move(clock)), handle_(handle) {}

void SimulatedVehicle::initialize() {
    const std::lock_guard lock(vehicle_->mutex);
    vehicle_->state = Initialized;
    post(*vehicle_, EventKind::EngineInitialized, 0, L"The engine is initialized", L"");
}

void SimulatedVehicle::end() {
    const std::lock_guard lock(vehicle_->mutex);
    requireInitialized(*vehicle_);
    vehicle_->state = Ended;
    if (vehicle_->lockId != 0) {
        post(*vehicle_, EventKind::LockReleased, 0,
             L"The lock was released because the engine ended", lockDetail(vehicle_->lockId));
    }
    vehicle_->lockId = 0;
    post(*vehicle_, EventKind::EngineEnded, 0, L"The engine has ended", L"");
}

uint64_t SimulatedVehicle::lock() {
    const std::lock_guard lock(vehicle_->mutex);
    requireInitialized(*vehicle_);
    if (vehicle_->lockId != 0) {
        throw TarnApiException(AlreadyLocked, L"The engine is locked by another client",
                               L"unlock it or break the lock first");
    }
    vehicle_->lockId = vehicle_->nextLockId++;
    post(*vehicle_, EventKind::LockTaken, 0, L"The engine was locked",
         lockDetail(vehicle_->lockId));
    return vehicle_->lockId;
}

void SimulatedVehicle::unlock(uint64_t lockId) {
    const std::lock_guard lock(vehicle_->mutex);
    if (vehicle_->lockId == 0) {
        throw TarnApiException(NotLocked, L"The engine is not locked");
    }
    if (lockId != vehicle_->lockId) {
        throw TarnApiException(WrongLockId, L"The lock id does not match the current lock",
                               lockDetail(lockId));
    }
    vehicle_->lockId = 0;
    post(*vehicle_, EventKind::LockReleased, 0, L"The engine was unlocked", lockDetail(lockId));
}

bool SimulatedVehicle::isLocked() {
    const std::lock_guard lock(vehicle_->mutex);
    return vehicle_->lockId != 0;
}

void SimulatedVehicle::breakLock() {
    const std::lock_guard lock(vehicle_->mutex);
    if (vehicle_->lockId != 0) {
        post(*vehicle_, EventKind::LockBroken, 0, L"The lock was broken",
             lockDetail(vehicle_->lockId));
    }
    vehicle_->lockId = 0;
}

int32_t SimulatedVehicle::getState() {
    const std::lock_guard lock(vehicle_->mutex);
    return vehicle_->state;
}

uint64_t SimulatedVehicle::getHandle() { return handle_; }

uint64_t SimulatedVehicle::getCallDuration() { return clock_->previous(); }

uint64_t SimulatedVehicle::openEventChannel() { return vehicle_->events.open(); }

void SimulatedVehicle::closeEventChannel(uint64_t channel) { vehicle_->events.close(channel); }

std::shared_ptr<EventReport> SimulatedVehicle::getCurrentEvents(uint64_t channel, uint32_t limit) {
    return vehicle_->events.take(channel, limit);
}

// Registering the same handler object again keeps one entry, so that it hears each
// client once; the vehicle holds the handlers until it goes away.
void SimulatedVehicle::registerServerHandler(std::shared_ptr<ServerHandler> handler) {
    const std::lock_guard lock(vehicle_->handlersMutex);
    auto& handlers = vehicle_->handlers;
    const auto same = std::find_if(handlers.begin(), handlers.end(),
                                   [&](const auto& kept) { return kept.get() == handler.get(); });
    if (same != handlers.end()) {
        *same = std::move(handler);
    } else {
        handlers.push_back(std::move(handler));
    }
}

void SimulatedVehicle::onConnectionBroken() {
    auto error = std::make_shared<KelError>();
    error->code = ConnectionLost;
    error->message = L"The connection to the client broke";
    error->details = L"reported by the client";
    post(*vehicle_, EventKind::ConnectionBroken, 0, L"The client reported a broken connection",
         L"engine " + std::to_wstring(handle_), std::move(error));
}

void SimulatedVehicle::onConnectionClosed() {
    post(*vehicle_, EventKind::ConnectionClosed, 0, L"The client closed its connection",
         L"engine " + std::to_wstring(handle_));
}

SimulatedVehicle::~SimulatedVehicle() {
    if (!remoteClient_.empty()) {
        clientDisconnected(*vehicle_, remoteClient_);
    }
}

namespace {

// Handlers are called on copies taken under the lock, so that a handler may register
// another one; what a handler throws is not the engine's business and is dropped.
template <class Notify>
void notifyHandlers(VehicleState& vehicle, const std::wstring& client, bool connected,
                    Notify notify) {
    std::vector<std::shared_ptr<ServerHandler>> handlers;
    int32_t clients = 0;
    {
        const std::lock_guard lock(vehicle.handlersMutex);
        vehicle.remoteClients += connected ? 1 : -1;
        clients = vehicle.remoteClients;
        handlers = vehicle.handlers;
    }
    post(vehicle, connected ? EventKind::ClientConnected : EventKind::ClientDisconnected, clients,
         connected ? L"A remote client connected" : L"A remote client disconnected", client);
    for (const auto& handler : handlers) {
        try {
            notify(*handler);
        } catch (...) { // NOLINT(bugprone-empty-catch)
        }
    }
}

// "remote 4B454C0000000003": the client by the handle of its connection.
std::wstring clientName(uint64_t handle) {
    std::wstring text = L"remote ";
    for (int shift = 60; shift >= 0; shift -= 4) {
        text += L"0123456789ABCDEF"[(handle >> shift) & 0xF];
    }
    return text;
}

} // namespace

void clientConnected(VehicleState& vehicle, const std::wstring& client) {
    notifyHandlers(vehicle, client, true,
                   [&](ServerHandler& handler) { handler.onClientConnected(client); });
}

void clientDisconnected(VehicleState& vehicle, const std::wstring& client) {
    notifyHandlers(vehicle, client, false,
                   [&](ServerHandler& handler) { handler.onClientDisconnected(client); });
}

std::shared_ptr<VehicleState> vehicleByHandle(uint64_t handle) {
    auto& h = handles();
    const std::lock_guard lock(h.mutex);
    const auto found = h.objects.find(handle);
    const auto object = found == h.objects.end() ? nullptr : found->second.lock();
    return object ? object->state() : nullptr;
}

// Callers hold h.mutex. With `remoteClient`, the object is a remote client's connection
// and the client's name is stored there.
std::shared_ptr<EngineFront> makeEngineLocked(Handles& h,
                                              const std::shared_ptr<VehicleState>& vehicle,
                                              std::wstring* remoteClient = nullptr) {
    std::erase_if(h.objects, [](const auto& entry) { return entry.second.expired(); });
    auto clock = std::make_shared<CallClock>();
    const uint64_t handle = newHandle();
    auto simulated = std::make_shared<SimulatedVehicle>(vehicle, clock, handle);
    if (remoteClient != nullptr) {
        *remoteClient = clientName(handle);
        simulated->setRemoteClient(*remoteClient);
    }
    h.objects[handle] = simulated;
    return std::make_shared<EngineFront>(std::move(simulated), Script::global(), std::move(clock));
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

std::shared_ptr<EngineFront> makeEngine(const std::shared_ptr<VehicleState>& vehicle) {
    auto& h = handles();
    const std::lock_guard lock(h.mutex);
    return makeEngineLocked(h, vehicle);
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
    auto created = Reference::makeEngineLocked(h, std::make_shared<Reference::VehicleState>());
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
    std::shared_ptr<Reference::EngineFront> created;
    std::shared_ptr<Reference::VehicleState> vehicle;
    std::wstring client;
    {
        const std::lock_guard lock(h.mutex);
        const auto found = h.objects.find(handle);
        const auto target = found == h.objects.end() ? nullptr : found->second.lock();
        if (!target) {
            throw TarnApiException(Reference::UnknownHandle, L"No engine object has this handle",
                                   L"handle " + std::to_wstring(handle));
        }
        if (auto existing = h.remotes[handle].lock()) {
            return existing;
        }
        vehicle = target->state();
        created = Reference::makeEngineLocked(h, vehicle, &client);
        h.remotes[handle] = created;
    }
    Reference::clientConnected(*vehicle, client);
    return created;
}

} // namespace Varno::Kel_cpp
