// The ECU order: the order in which a vehicle update visits the control units. The
// default order is made from the units of the vehicle description (the gateway first,
// then by bus and address); orders are also read from and written to files in the
// sandbox (README.md, "The ECU order file").
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
    std::wstring gateway;                               // the gateway unit's name; empty: none
    std::wstring file = L"configuration/ecu-order.txt"; // the vehicle's order file

    // Throws TarnApiException BadVehicleDescription; `ecus` are the description's units.
    static EcuOrderSettings parse(const nlohmann::json& section, const std::vector<Ecu>& ecus);
};

// Per vehicle, under its own lock.
class EcuOrderState {
public:
    void load(EcuOrderSettings settings);

    // The default order of `ecus`: the gateway first, then by bus name, then by address
    // (a tie keeps the description's order). This state's lock is a leaf (nothing is
    // taken under it), so it may be called inside ControlUnits::read.
    EcuOrderEntries defaultOrder(const std::vector<Ecu>& ecus) const;
    std::wstring gateway() const;
    // The engine path of the vehicle's order file.
    std::wstring file() const;

private:
    mutable std::mutex mutex_;
    EcuOrderSettings settings_;
};

// The order file's text: what writeEcuOrder writes and readEcuOrder reads back.
std::string formatEcuOrder(const EcuOrderEntries& entries);
// Throws BadEcuOrderFile naming `where` and the line of the first mistake.
EcuOrderEntries parseEcuOrder(const std::string& text, const std::wstring& where);

// The order a vehicle update follows: the vehicle's order file while it exists, else the
// default order. Takes the ECU order's and the files' locks one after the other.
EcuOrderEntries vehicleEcuOrder(SimulatedVehicle& vehicle);

class EcuOrder final : public EcuOrderFamily {
public:
    explicit EcuOrder(std::shared_ptr<SimulatedVehicle> vehicle);

    EcuOrderEntries readEcuOrder(const std::wstring& path) override;
    EcuOrderEntries filterEcuOrder(const EcuOrderEntries& entries,
                                   const std::vector<std::wstring>& targets) override;
    EcuOrderEntries addMissingTargetsToEcuOrder(const EcuOrderEntries& entries) override;
    EcuOrderEntries createDefaultECUOrder() override;
    void writeEcuOrder(const std::wstring& path, const EcuOrderEntries& entries) override;
    std::wstring getEcuOrderFilePath() override;

private:
    std::shared_ptr<SimulatedVehicle> vehicle_;
};

} // namespace Varno::Kel_cpp::Reference
