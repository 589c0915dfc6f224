// The reference engine's behaviour: a simulated vehicle behind the TarnApi interface.
//
// One VehicleState is shared by the local engine object and every remote connection
// to it; each engine object (a SimulatedVehicle behind an EngineFront) has its own
// handle and call clock.
#pragma once

#include "EngineFront.h"
#include "Script.h"

#include <cstdint>
#include <memory>
#include <mutex>

namespace Varno::Kel_cpp::Reference {

// Values of getState().
enum EngineState : int32_t {
    Created = 0,
    Initialized = 1,
    Ended = 2,
};

struct VehicleState {
    std::mutex mutex;
    int32_t state = Created;
    uint64_t lockId = 0; // 0: not locked
    uint64_t nextLockId = 0x10C4;
};

class SimulatedVehicle : public UnsupportedTarnApi {
public:
    SimulatedVehicle(std::shared_ptr<VehicleState> vehicle, std::shared_ptr<CallClock> clock, uint64_t handle);

    void initialize() override;
    void end() override;
    uint64_t lock() override;
    void unlock(uint64_t lockId) override;
    bool isLocked() override;
    void breakLock() override;
    int32_t getState() override;
    uint64_t getHandle() override;
    uint64_t getCallDuration() override;

    const std::shared_ptr<VehicleState>& state() const { return vehicle_; }

private:
    std::shared_ptr<VehicleState> vehicle_;
    std::shared_ptr<CallClock> clock_;
    uint64_t handle_;
};

// A new engine object on `vehicle`: the EngineFront callers see, over a SimulatedVehicle.
std::shared_ptr<EngineFront> makeEngine(const std::shared_ptr<VehicleState>& vehicle);

} // namespace Varno::Kel_cpp::Reference
