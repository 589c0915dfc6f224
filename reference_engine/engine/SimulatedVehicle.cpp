#include "SimulatedVehicle.h"

#include <mutex>
#include <utility>
#include <vector>

namespace Varno::Kel_cpp::Reference {
namespace {

// The settings of every part of a description. Parsing them all first means a
// description is used whole or not at all.
struct Parts {
    std::vector<Ecu> ecus;
    LifecycleSettings lifecycle;
    EventsSettings events;
    DiagnosticsSettings diagnostics;
    InterfacesSettings interfaces;
    ServersSettings servers;
    MonitoringSettings monitoring;
    CyclicSettings cyclic;
    SequencesSettings sequences;
    FlashSettings flash;
    CodingSettings coding;
    EcuOrderSettings ecuOrder;
    VehicleReportsSettings reports;
    VehicleUpdateSettings vehicleUpdate;
};

Parts parseParts(const VehicleDescription& description) {
    Parts parts;
    parts.ecus = ControlUnits::parse(description.root);
    parts.lifecycle = LifecycleSettings::parse(description.section("lifecycle"));
    parts.events = EventsSettings::parse(description.section("events"));
    parts.diagnostics = DiagnosticsSettings::parse(description.section("diagnostics"));
    parts.interfaces = InterfacesSettings::parse(description.section("interfaces"));
    parts.servers = ServersSettings::parse(description.section("servers"));
    parts.monitoring = MonitoringSettings::parse(description.section("monitoring"));
    parts.cyclic = CyclicSettings::parse(description.section("services"));
    parts.sequences = SequencesSettings::parse(description.section("sequences"));
    parts.flash = FlashSettings::parse(description.section("flash"), parts.ecus);
    parts.coding = CodingSettings::parse(description.section("coding"), parts.ecus);
    parts.ecuOrder = EcuOrderSettings::parse(description.section("ecuOrder"), parts.ecus);
    parts.reports = VehicleReportsSettings::parse(description.section("vehicle"));
    parts.vehicleUpdate =
        VehicleUpdateSettings::parse(description.section("vehicleUpdate"), description.root);
    return parts;
}

// Every live vehicle, so that a new description reaches them all.
struct LiveVehicles {
    std::mutex mutex;
    std::vector<std::weak_ptr<SimulatedVehicle>> vehicles;
};

LiveVehicles& live() {
    static LiveVehicles instance;
    return instance;
}

} // namespace

std::shared_ptr<SimulatedVehicle> SimulatedVehicle::create() {
    auto vehicle = std::make_shared<SimulatedVehicle>();
    vehicle->load(readVehicleDescription());
    auto& l = live();
    const std::lock_guard lock(l.mutex);
    std::erase_if(l.vehicles, [](const auto& v) { return v.expired(); });
    l.vehicles.push_back(vehicle);
    return vehicle;
}

void SimulatedVehicle::check(const std::string& json) {
    VehicleDescription description;
    description.root = parseVehicleJson(json);
    parseParts(description);
}

void SimulatedVehicle::reloadAll() {
    std::vector<std::shared_ptr<SimulatedVehicle>> vehicles;
    {
        auto& l = live();
        const std::lock_guard lock(l.mutex);
        for (const auto& v : l.vehicles) {
            if (auto vehicle = v.lock()) {
                vehicles.push_back(std::move(vehicle));
            }
        }
    }
    // The last reference to a vehicle may go here: outside the lock.
    for (const auto& vehicle : vehicles) {
        vehicle->load(readVehicleDescription());
    }
}

// A description that cannot be used leaves every family with its defaults and the
// control units refusing with the reason.
void SimulatedVehicle::load(VehicleDescription description) {
    Parts parts;
    if (description.problem.empty()) {
        try {
            parts = parseParts(description);
        } catch (const TarnApiException& e) {
            description.reject(e);
        }
    }
    units->load(std::move(parts.ecus), description.problem);
    lifecycle.load(parts.lifecycle);
    events.load(parts.events);
    diagnostics.load(parts.diagnostics);
    interfaces->load(parts.interfaces);
    services.load();
    measurement.load();
    cyclic.load(parts.cyclic);
    sequences.load(std::move(parts.sequences));
    servers.load(parts.servers);
    monitoring->load(parts.monitoring);
    flash.load(std::move(parts.flash));
    coding.load(std::move(parts.coding));
    ecuOrder.load(std::move(parts.ecuOrder));
    reports.load(std::move(parts.reports));
    vehicleUpdate.load(std::move(parts.vehicleUpdate));
}

Families SimulatedVehicle::families(const std::shared_ptr<SimulatedVehicle>& vehicle,
                                    const EngineObject& object) {
    Families families;
    families.lifecycle = std::make_shared<Lifecycle>(vehicle, object);
    families.events = std::make_shared<Events>(vehicle, object);
    families.diagnostics = std::make_shared<Diagnostics>(vehicle);
    families.files = std::make_shared<Files>(vehicle);
    families.projects = std::make_shared<Projects>(vehicle, object);
    families.interfaces = std::make_shared<Interfaces>(vehicle);
    families.services = std::make_shared<Services>(vehicle);
    families.measurement = std::make_shared<Measurement>(vehicle);
    families.sequences = std::make_shared<Sequences>(vehicle);
    families.servers = std::make_shared<Servers>(vehicle, object);
    families.monitoring = std::make_shared<Monitoring>(vehicle, object);
    families.flash = std::make_shared<Flash>(vehicle);
    families.coding = std::make_shared<Coding>(vehicle);
    families.ecuOrder = std::make_shared<EcuOrder>(vehicle);
    families.vehicleReports = std::make_shared<VehicleReports>(vehicle);
    families.vehicleUpdate = std::make_shared<VehicleUpdate>(vehicle);
    return families;
}

void post(SimulatedVehicle& vehicle, EventKind kind, int32_t code, std::wstring text,
          std::wstring detail, std::shared_ptr<KelError> error) {
    vehicle.events.channels.post(kind, code, std::move(text), std::move(detail), std::move(error));
}

void post(SimulatedVehicle& vehicle, int32_t kind, int32_t code, std::wstring text,
          std::wstring detail, std::shared_ptr<KelError> error) {
    vehicle.events.channels.post(kind, code, std::move(text), std::move(detail), std::move(error));
}

} // namespace Varno::Kel_cpp::Reference
