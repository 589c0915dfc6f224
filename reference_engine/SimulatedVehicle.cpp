#include "SimulatedVehicle.h"

#include <Kel_cpp/Engine.h>

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
};

Handles& handles() {
    static Handles instance;
    return instance;
}

} // namespace

SimulatedVehicle::SimulatedVehicle(std::shared_ptr<VehicleState> vehicle, std::shared_ptr<CallClock> clock,
                                   uint64_t handle)
    : vehicle_(std::move(vehicle)), clock_(std::move(clock)), handle_(handle) {}

void SimulatedVehicle::initialize() {
    const std::lock_guard lock(vehicle_->mutex);
    vehicle_->state = Initialized;
}

void SimulatedVehicle::end() {
    const std::lock_guard lock(vehicle_->mutex);
    requireInitialized(*vehicle_);
    vehicle_->state = Ended;
    vehicle_->lockId = 0;
}

uint64_t SimulatedVehicle::lock() {
    const std::lock_guard lock(vehicle_->mutex);
    requireInitialized(*vehicle_);
    if (vehicle_->lockId != 0) {
        throw TarnApiException(AlreadyLocked, L"The engine is locked by another client",
                               L"unlock it or break the lock first");
    }
    vehicle_->lockId = vehicle_->nextLockId++;
    return vehicle_->lockId;
}

void SimulatedVehicle::unlock(uint64_t lockId) {
    const std::lock_guard lock(vehicle_->mutex);
    if (vehicle_->lockId == 0) {
        throw TarnApiException(NotLocked, L"The engine is not locked");
    }
    if (lockId != vehicle_->lockId) {
        throw TarnApiException(WrongLockId, L"The lock id does not match the current lock",
                               L"lock id " + std::to_wstring(lockId));
    }
    vehicle_->lockId = 0;
}

bool SimulatedVehicle::isLocked() {
    const std::lock_guard lock(vehicle_->mutex);
    return vehicle_->lockId != 0;
}

void SimulatedVehicle::breakLock() {
    const std::lock_guard lock(vehicle_->mutex);
    vehicle_->lockId = 0;
}

int32_t SimulatedVehicle::getState() {
    const std::lock_guard lock(vehicle_->mutex);
    return vehicle_->state;
}

uint64_t SimulatedVehicle::getHandle() { return handle_; }

uint64_t SimulatedVehicle::getCallDuration() { return clock_->previous(); }

// Callers hold h.mutex.
std::shared_ptr<EngineFront> makeEngineLocked(Handles& h, const std::shared_ptr<VehicleState>& vehicle) {
    std::erase_if(h.objects, [](const auto& entry) { return entry.second.expired(); });
    auto clock = std::make_shared<CallClock>();
    const uint64_t handle = newHandle();
    auto simulated = std::make_shared<SimulatedVehicle>(vehicle, clock, handle);
    h.objects[handle] = simulated;
    return std::make_shared<EngineFront>(std::move(simulated), Script::global(), std::move(clock));
}

std::shared_ptr<EngineFront> makeEngine(const std::shared_ptr<VehicleState>& vehicle) {
    auto& h = handles();
    const std::lock_guard lock(h.mutex);
    return makeEngineLocked(h, vehicle);
}

} // namespace Varno::Kel_cpp::Reference

namespace Varno::Kel_cpp {

// The local engine lives while anybody holds it, and every call meanwhile hands out
// the same object; the next call after that starts a fresh engine on a fresh vehicle.
std::shared_ptr<TarnApi> getTarnApi() {
    auto& h = Reference::handles();
    const std::lock_guard lock(h.mutex);
    if (auto existing = h.local.lock()) {
        return existing;
    }
    auto created = Reference::makeEngineLocked(h, std::make_shared<Reference::VehicleState>());
    h.local = created;
    return created;
}

// A second engine object on the vehicle of the object with `handle`, as a remote
// client's connection would be. While it lives, the same handle gives the same object.
std::shared_ptr<TarnApi> getRemoteConnectionByHandle(uint64_t handle) {
    auto& h = Reference::handles();
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
    auto created = Reference::makeEngineLocked(h, target->state());
    h.remotes[handle] = created;
    return created;
}

} // namespace Varno::Kel_cpp
