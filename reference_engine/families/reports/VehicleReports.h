// Vehicle data, the selected vehicle and reports. What the vehicle is now is read from
// the units by UDS exchanges, as identification reads it, so monitors see the traffic and
// a flashed version or a cleared DTC shows at once. Reports are real files in the public
// directory "reports": an HTML page for a person and a JSON twin for machines, both made
// from one document, so that they cannot disagree (README.md, "Vehicle reports").
#pragma once

#include "Families.h"

#include <nlohmann/json.hpp>

#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

class SimulatedVehicle;

// The "vehicle" section of the vehicle description: the vehicle selected at start.
struct VehicleReportsSettings {
    VehicleInformation vehicle;

    // Throws TarnApiException BadVehicleDescription.
    static VehicleReportsSettings parse(const nlohmann::json& section);
};

// Throws InvalidVin or BadVehicleInformation unless `information` can be selected.
void checkVehicleInformation(const VehicleInformation& information);

// Per vehicle, under its own lock: the selected vehicle. Reports are named and written
// under a second lock of the state's, which nothing else is taken under.
class VehicleReportsState {
public:
    void load(VehicleReportsSettings settings);
    VehicleInformation selected() const;
    void select(VehicleInformation information);

    // Held while a report's name is chosen and its files are written.
    std::unique_lock<std::mutex> writing() { return std::unique_lock(writing_); }

private:
    mutable std::mutex mutex_;
    VehicleInformation selected_;
    std::mutex writing_;
};

class VehicleReports final : public VehicleReportsFamily {
public:
    explicit VehicleReports(std::shared_ptr<SimulatedVehicle> vehicle);

    std::wstring createVehicleReport(std::shared_ptr<VehicleReportConfig> config) override;
    std::vector<std::shared_ptr<VehicleData>> getVehicleData() override;
    std::wstring createVehicleUpdateReport(
        const std::vector<std::shared_ptr<VehicleUpdateResult>>& results) override;
    std::shared_ptr<VehicleInformation> getSelectedVehicleInformation() override;
    void setSelectedVehicleInformation(std::shared_ptr<VehicleInformation> information) override;

private:
    // Checks the engine and the interface.
    void connected() const;
    // Writes the document's two files under `name` (empty: `fallback` made unique);
    // returns the HTML file's engine path.
    std::wstring store(const nlohmann::ordered_json& document, const std::wstring& name,
                       const std::wstring& fallback);

    std::shared_ptr<SimulatedVehicle> vehicle_;
};

} // namespace Varno::Kel_cpp::Reference
