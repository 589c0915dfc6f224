// The ECU order: the order in which a vehicle update visits the control units. The
// default order is made from the units of the vehicle description (the gateway first,
// then by bus and address); orders are also read from and written to files in the
// sandbox.
#pragma once

#include "Families.h"

#include <nlohmann/json.hpp>

#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

struct Ecu;
class SimulatedVehicle;

using EcuOrderEntries = std::vector<std::shared_ptr<EcuOrderEntry>>;

// The "ecuOrder" section of the vehicle description.
struct EcuOrderSettings {
    std::wstring gateway; // the gateway unit's name; empty: the vehicle has none

    // Throws TarnApiException BadVehicleDescription; `ecus` are the description's units.
    static EcuOrderSettings parse(const nlohmann::json& section, const std::vector<Ecu>& ecus);
};

// Per vehicle, under its own lock.
class EcuOrderState {
public:
    void load(EcuOrderSettings settings);

    // The default order of `ecus`: the gateway first, then by bus name, then by address
    // (a tie keeps the description's order).
    EcuOrderEntries defaultOrder(const std::vector<Ecu>& ecus) const;

private:
    mutable std::mutex mutex_;
    EcuOrderSettings settings_;
};

class EcuOrder final : public EcuOrderFamily {
public:
    explicit EcuOrder(std::shared_ptr<SimulatedVehicle> vehicle);

    EcuOrderEntries createDefaultECUOrder() override;

private:
    std::shared_ptr<SimulatedVehicle> vehicle_;
};

} // namespace Varno::Kel_cpp::Reference
