// Lifecycle: the engine's state, its lock, the engine object's handle and call timing,
// and cancelling asynchronous calls.
#pragma once

#include "Families.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>

namespace Varno::Kel_cpp::Reference {

class SimulatedVehicle;
struct EngineObject;
class CallClock;

// Values of getState().
enum EngineState : int32_t {
    Created = 0,
    Initialized = 1,
    Ended = 2,
};

// The "lifecycle" section of the vehicle description.
struct LifecycleSettings {
    uint64_t firstLockId = 0x10C4; // the id the first lock gets

    // Throws TarnApiException BadVehicleDescription.
    static LifecycleSettings parse(const nlohmann::json& section);
};

// Per vehicle, under its own lock.
class LifecycleState {
public:
    // Throws NotInitialized unless the engine is initialised. Other families ask this
    // first; it takes the lock only for the look.
    void requireInitialized() const;
    // A reload starts the lock ids again from the description's first one.
    void load(const LifecycleSettings& settings);

private:
    friend class Lifecycle;
    mutable std::mutex mutex_;
    int32_t state_ = Created;
    uint64_t lockId_ = 0; // 0: not locked
    uint64_t nextLockId_ = LifecycleSettings{}.firstLockId;
};

class Lifecycle final : public LifecycleFamily {
public:
    Lifecycle(std::shared_ptr<SimulatedVehicle> vehicle, const EngineObject& object);

    void initialize() override;
    void end() override;
    uint64_t lock() override;
    void unlock(uint64_t lockId) override;
    bool isLocked() override;
    void breakLock() override;
    int32_t getState() override;
    uint64_t getHandle() override;
    uint64_t getCallDuration() override;
    void cancelAllAsyncCalls() override;
    void cancelAsyncCalls(const std::vector<uint64_t>& callIds) override;
    void triggerAsyncCancels(const std::vector<uint64_t>& callIds) override;

private:
    // Empty for an object that may cancel any call; this object's handle otherwise.
    std::optional<uint64_t> ownCallsOnly() const;

    std::shared_ptr<SimulatedVehicle> vehicle_;
    LifecycleState& state_;
    uint64_t handle_;
    std::shared_ptr<CallClock> clock_;
    bool remote_; // a remote client's connection
};

} // namespace Varno::Kel_cpp::Reference
