// The simulated vehicle: what the local engine object and every remote connection to it
// share. It holds the shared parts (the control units, the asynchronous calls) and one
// state per simulated family, each with its own lock (README.md, "Locks").
//
// Each engine object is a FamilyRouter over its own family objects, which keep the
// vehicle and what is particular to the object (its handle, its call clock, whether it
// is a remote client's connection).
#pragma once

#include "AsyncCalls.h"
#include "ControlUnits.h"
#include "Families.h"
#include "Script.h"
#include "VehicleDescription.h"
#include "families/coding/Coding.h"
#include "families/diagnostics/Diagnostics.h"
#include "families/ecuorder/EcuOrder.h"
#include "families/events/Events.h"
#include "families/files/Files.h"
#include "families/flash/Flash.h"
#include "families/interfaces/Interfaces.h"
#include "families/lifecycle/Lifecycle.h"
#include "families/measurement/Measurement.h"
#include "families/monitoring/Monitoring.h"
#include "families/projects/Projects.h"
#include "families/reports/VehicleReports.h"
#include "families/sequences/Sequences.h"
#include "families/servers/Servers.h"
#include "families/services/Cyclic.h"
#include "families/services/Services.h"
#include "families/update/VehicleUpdate.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Varno::Kel_cpp::Reference {

// What is particular to one engine object.
struct EngineObject {
    uint64_t handle = 0;
    std::shared_ptr<CallClock> clock;
    std::wstring remoteClient; // empty for the local engine object
};

class SimulatedVehicle {
public:
    // A vehicle from the current vehicle description.
    static std::shared_ptr<SimulatedVehicle> create();
    // Checks every part of a description (JSON text); throws TarnApiException
    // BadVehicleDescription.
    static void check(const std::string& json);
    // Reads the description again into every live vehicle (kelsim_setVehicleJson, ...).
    static void reloadAll();

    // The family objects of a new engine object on `vehicle`.
    static Families families(const std::shared_ptr<SimulatedVehicle>& vehicle,
                             const EngineObject& object);

    SimulatedVehicle() = default;
    SimulatedVehicle(const SimulatedVehicle&) = delete;
    SimulatedVehicle& operator=(const SimulatedVehicle&) = delete;
    ~SimulatedVehicle() = default;

    // Shared parts.
    const std::shared_ptr<ControlUnits> units = std::make_shared<ControlUnits>();

    // The families' states.
    LifecycleState lifecycle;
    EventsState events;
    DiagnosticsState diagnostics;
    FilesState files;
    ProjectsState projects;
    // Shared with the asynchronous scans and detections, which may outlive the vehicle.
    const std::shared_ptr<InterfacesState> interfaces = std::make_shared<InterfacesState>();
    ServicesState services;
    MeasurementState measurement;
    ServersState servers;
    // Shared with the units' listener and the engine objects' call clocks.
    const std::shared_ptr<MonitoringState> monitoring = std::make_shared<MonitoringState>();

    // Each runs on its own worker, which it joins when the vehicle ends.
    CyclicJobs cyclic{units};
    SequencesState sequences{units, events.channels};
    FlashState flash;
    CodingState coding;
    EcuOrderState ecuOrder;
    VehicleReportsState reports;
    VehicleUpdateState vehicleUpdate;

    // Stays the last member: it ends its calls while the rest still exists. Its reports
    // are the vehicle's events.
    AsyncCalls async{[&channels = events.channels](bool isFinal, int32_t code, std::wstring text,
                                                   std::wstring detail,
                                                   std::shared_ptr<KelError> error) {
        channels.post(isFinal ? EventKind::AsyncCompleted : EventKind::AsyncProgress, code,
                      std::move(text), std::move(detail), std::move(error));
    }};

private:
    void load(VehicleDescription description);
};

// Posts an event on `vehicle`'s open channels (EventChannels::post).
void post(SimulatedVehicle& vehicle, EventKind kind, int32_t code, std::wstring text,
          std::wstring detail, std::shared_ptr<KelError> error = {});
void post(SimulatedVehicle& vehicle, int32_t kind, int32_t code, std::wstring text,
          std::wstring detail, std::shared_ptr<KelError> error = {});

// The vehicle of the live engine object with `handle`, or null.
std::shared_ptr<SimulatedVehicle> vehicleByHandle(uint64_t handle);

// A new remote client's connection to `vehicle` (connectRemoteServer: each call makes
// one); the vehicle's server handlers hear of it.
std::shared_ptr<TarnApi> connectRemoteClient(const std::shared_ptr<SimulatedVehicle>& vehicle);

// Lets go of the engine's own reference to its local engine object: once nobody else
// holds it, the next getTarnApi() starts afresh on a fresh vehicle.
void restartLocalEngine();

// Back to KEL_SIM_VEHICLE or the default, and no scripted asynchronous behaviour.
void resetVehicleScripts();

} // namespace Varno::Kel_cpp::Reference
