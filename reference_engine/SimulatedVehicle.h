// The reference engine's behaviour: a simulated vehicle behind the TarnApi interface.
//
// One VehicleState is shared by the local engine object and every remote connection
// to it; each engine object (a SimulatedVehicle behind an EngineFront) has its own
// handle and call clock.
#pragma once

#include "AsyncCalls.h"
#include "EngineFront.h"
#include "Events.h"
#include "Script.h"
#include "Vehicle.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

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
    EventChannels events; // has its own lock: post with or without `mutex` held

    // Server handlers registered on any engine object of this vehicle, told about remote
    // clients. Called outside every lock of the engine.
    std::mutex handlersMutex;
    std::vector<std::shared_ptr<ServerHandler>> handlers;
    int32_t remoteClients = 0; // guarded by handlersMutex

    // The ECUs and their fault memory (own lock), and the running asynchronous calls.
    // `async` stays the last member: it ends its calls while the rest still exists.
    std::shared_ptr<VehicleModel> model = VehicleModel::create();
    AsyncCalls async{*this};
};

// Tells the vehicle's server handlers and event channels that a remote client came or went.
void clientConnected(VehicleState& vehicle, const std::wstring& client);
void clientDisconnected(VehicleState& vehicle, const std::wstring& client);

// The vehicle of the live engine object with `handle`, or null.
std::shared_ptr<VehicleState> vehicleByHandle(uint64_t handle);

class SimulatedVehicle : public UnsupportedTarnApi {
public:
    SimulatedVehicle(std::shared_ptr<VehicleState> vehicle, std::shared_ptr<CallClock> clock,
                     uint64_t handle);

    void initialize() override;
    void end() override;
    uint64_t lock() override;
    void unlock(uint64_t lockId) override;
    bool isLocked() override;
    void breakLock() override;
    int32_t getState() override;
    uint64_t getHandle() override;
    uint64_t getCallDuration() override;
    uint64_t openEventChannel() override;
    void closeEventChannel(uint64_t channel) override;
    std::shared_ptr<EventReport> getCurrentEvents(uint64_t channel, uint32_t limit) override;
    void registerServerHandler(std::shared_ptr<ServerHandler> handler) override;
    void onConnectionBroken() override;
    void onConnectionClosed() override;

    // Targets, identification and DTCs (Diagnostics.cpp).
    std::vector<std::shared_ptr<VariantIdentResult>> identifyAllTargets() override;
    uint64_t identifyAllTargetsAsync(IdentifyAllTargetsCallback* callback) override;
    std::vector<std::shared_ptr<ReadDataResult>>
    readIdentificationValues(const std::vector<std::wstring>& targets) override;
    uint64_t readIdentificationValuesAsync(const std::vector<std::wstring>& targets,
                                           ReadIdentificationValuesCallback* callback) override;
    std::vector<std::shared_ptr<ReadDataResult>>
    readDataByIdentifiers(const std::wstring& target,
                          const std::vector<std::wstring>& identifiers) override;
    std::shared_ptr<VariantIdentResult> identifyTarget(const std::wstring& target) override;
    std::vector<std::shared_ptr<ReadDtcResult>>
    readDtcs(const std::vector<std::wstring>& targets,
             std::shared_ptr<DtcReadConfig> config) override;
    uint64_t readDtcsAsync(const std::vector<std::wstring>& targets,
                           std::shared_ptr<DtcReadConfig> config,
                           ReadDtcsCallback* callback) override;
    std::vector<std::shared_ptr<SupportedDtcResult>>
    readSupportedDtcs(const std::vector<std::wstring>& targets,
                      std::shared_ptr<DtcReadConfig> config) override;
    uint64_t readSupportedDtcsAsync(const std::vector<std::wstring>& targets,
                                    std::shared_ptr<DtcReadConfig> config,
                                    ReadSupportedDtcsCallback* callback) override;
    std::vector<std::shared_ptr<ClearDtcResult>>
    clearAllDtcs(const std::vector<std::wstring>& targets) override;
    uint64_t clearAllDtcsAsync(const std::vector<std::wstring>& targets,
                               ClearAllDtcsCallback* callback) override;
    void cancelAllAsyncCalls() override;
    std::vector<std::shared_ptr<VariantIdentResult>>
    identifyTargets(const std::vector<std::wstring>& targets) override;
    uint64_t identifyTargetsAsync(const std::vector<std::wstring>& targets,
                                  IdentifyTargetsCallback* callback) override;
    std::vector<std::shared_ptr<Target>>
    getFilteredTargets(const std::vector<std::shared_ptr<TargetFilter>>& filters) override;
    void cancelAsyncCalls(const std::vector<uint64_t>& callIds) override;
    std::vector<std::shared_ptr<TargetStatus>>
    getTargetStatus(const std::vector<std::wstring>& targets) override;
    void triggerAsyncCancels(const std::vector<uint64_t>& callIds) override;
    std::vector<std::shared_ptr<ClearDtcResult>>
    clearSpecificDtcs(const std::wstring& target, const std::vector<uint32_t>& dtcCodes) override;
    uint64_t clearSpecificDtcsAsync(const std::wstring& target,
                                    const std::vector<uint32_t>& dtcCodes,
                                    ClearSpecificDtcsCallback* callback) override;
    std::vector<std::shared_ptr<Target>> getTargets() override;
    std::vector<std::shared_ptr<TargetFilter>> getSessionTargetFilters() override;
    void
    setSessionTargetFilters(const std::vector<std::shared_ptr<TargetFilter>>& filters) override;

    SimulatedVehicle(const SimulatedVehicle&) = delete;
    SimulatedVehicle& operator=(const SimulatedVehicle&) = delete;
    // A remote connection tells the vehicle's server handlers that its client left.
    ~SimulatedVehicle() override;
    // Marks this object as a remote client's connection, named `client`.
    void setRemoteClient(std::wstring client) { remoteClient_ = std::move(client); }

    const std::shared_ptr<VehicleState>& state() const { return vehicle_; }

private:
    std::shared_ptr<VehicleState> vehicle_;
    std::shared_ptr<CallClock> clock_;
    uint64_t handle_;
    std::wstring remoteClient_; // empty for the local engine object
};

// Lets go of the engine's own reference to its local engine object: once nobody else
// holds it, the next getTarnApi() starts afresh on a fresh vehicle.
void restartLocalEngine();

// A new engine object on `vehicle`: the EngineFront callers see, over a SimulatedVehicle.
std::shared_ptr<EngineFront> makeEngine(const std::shared_ptr<VehicleState>& vehicle);

} // namespace Varno::Kel_cpp::Reference
