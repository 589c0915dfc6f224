#include "Lifecycle.h"

#include "Describe.h"
#include "SimulatedVehicle.h"
#include "VehicleDescription.h"

#include <cstdint>
#include <string>

namespace Varno::Kel_cpp::Reference {
namespace {

std::wstring lockDetail(uint64_t lockId) { return L"lock id " + std::to_wstring(lockId); }

void requireInitialized(int32_t state) {
    if (state != Initialized) {
        throw TarnApiException(NotInitialized, L"The engine is not initialized",
                               L"call initialize before this operation");
    }
}

} // namespace

LifecycleSettings LifecycleSettings::parse(const nlohmann::json& section) {
    try {
        LifecycleSettings settings;
        // Not 0, which means "not locked"; room above it, so that the ids never wrap to 0.
        settings.firstLockId =
            wholeNumber(section, "firstLockId", settings.firstLockId, 1, UINT64_MAX / 2);
        return settings;
    } catch (const std::exception& e) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               fromUtf8(e.what()));
    }
}

void LifecycleState::requireInitialized() const {
    const std::lock_guard lock(mutex_);
    Reference::requireInitialized(state_);
}

void LifecycleState::load(const LifecycleSettings& settings) {
    const std::lock_guard lock(mutex_);
    nextLockId_ = settings.firstLockId;
}

Lifecycle::Lifecycle(std::shared_ptr<SimulatedVehicle> vehicle, const EngineObject& object)
    : vehicle_(std::move(vehicle)), state_(vehicle_->lifecycle), handle_(object.handle),
      clock_(object.clock), remote_(!object.remoteClient.empty()) {}

// Events are posted with the lifecycle lock held, so that they keep the order of the
// changes they report; the channels have their own lock.
void Lifecycle::initialize() {
    const std::lock_guard lock(state_.mutex_);
    state_.state_ = Initialized;
    post(*vehicle_, EventKind::EngineInitialized, 0, L"The engine is initialized", L"");
}

void Lifecycle::end() {
    if (remote_) { // a client ends its own session, never the server's engine
        vehicle_->servers.endSession(*vehicle_, handle_);
        return;
    }
    const std::lock_guard lock(state_.mutex_);
    requireInitialized(state_.state_);
    state_.state_ = Ended;
    if (state_.lockId_ != 0) {
        post(*vehicle_, EventKind::LockReleased, 0,
             L"The lock was released because the engine ended", lockDetail(state_.lockId_));
    }
    state_.lockId_ = 0;
    post(*vehicle_, EventKind::EngineEnded, 0, L"The engine has ended", L"");
}

uint64_t Lifecycle::lock() {
    const std::lock_guard lock(state_.mutex_);
    requireInitialized(state_.state_);
    if (state_.lockId_ != 0) {
        throw TarnApiException(AlreadyLocked, L"The engine is locked by another client",
                               L"unlock it or break the lock first");
    }
    state_.lockId_ = state_.nextLockId_++;
    post(*vehicle_, EventKind::LockTaken, 0, L"The engine was locked", lockDetail(state_.lockId_));
    return state_.lockId_;
}

void Lifecycle::unlock(uint64_t lockId) {
    const std::lock_guard lock(state_.mutex_);
    if (state_.lockId_ == 0) {
        throw TarnApiException(NotLocked, L"The engine is not locked");
    }
    if (lockId != state_.lockId_) {
        throw TarnApiException(WrongLockId, L"The lock id does not match the current lock",
                               lockDetail(lockId));
    }
    state_.lockId_ = 0;
    post(*vehicle_, EventKind::LockReleased, 0, L"The engine was unlocked", lockDetail(lockId));
}

bool Lifecycle::isLocked() {
    const std::lock_guard lock(state_.mutex_);
    return state_.lockId_ != 0;
}

void Lifecycle::breakLock() {
    const std::lock_guard lock(state_.mutex_);
    if (state_.lockId_ != 0) {
        post(*vehicle_, EventKind::LockBroken, 0, L"The lock was broken",
             lockDetail(state_.lockId_));
    }
    state_.lockId_ = 0;
}

int32_t Lifecycle::getState() {
    const std::lock_guard lock(state_.mutex_);
    return state_.state_;
}

uint64_t Lifecycle::getHandle() { return handle_; }

uint64_t Lifecycle::getCallDuration() { return clock_->previous(); }

void Lifecycle::cancelAllAsyncCalls() { vehicle_->async.cancelAll(); }

// An operator cancels the calls its own connection started; other clients' calls are
// theirs, so their ids are ignored as unknown ones are.
void Lifecycle::cancelAsyncCalls(const std::vector<uint64_t>& callIds) {
    vehicle_->async.cancel(callIds, true, ownCallsOnly());
}

void Lifecycle::triggerAsyncCancels(const std::vector<uint64_t>& callIds) {
    vehicle_->async.cancel(callIds, false, ownCallsOnly());
}

std::optional<uint64_t> Lifecycle::ownCallsOnly() const {
    if (vehicle_->servers.administers(handle_)) {
        return std::nullopt;
    }
    return handle_;
}

} // namespace Varno::Kel_cpp::Reference
