// VehicleUpdate: update packages on a broker folder, the engine's store of downloaded and
// installed ones, the engine's own component updates, and vehicle updates that flash
// control units with packages through the flash family's download, in ECU order.
#pragma once

#include "Families.h"
#include "Packages.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

class SimulatedVehicle;

// The "vehicleUpdate" section of the vehicle description, and what getCurrentVersions
// tells of the description itself.
struct VehicleUpdateSettings {
    // How fast the vehicle takes a package's payload, in vehicle time.
    uint32_t bytesPerSecond = 4096;
    std::wstring vehicleName;           // the description's "name"
    std::wstring vehicleVersion = L"1"; // the description's "version"

    // Throws TarnApiException BadVehicleDescription.
    static VehicleUpdateSettings parse(const nlohmann::json& section, const nlohmann::json& root);
};

// Per vehicle: the settings and the broker's engine path, under their own lock; and the
// store's lock, which serialises every change of the update store (a download, a
// clean-up and an install never interleave). The store's lock is taken alone, with no
// other family's lock held (file work happens under it); the units are talked to
// outside it.
class VehicleUpdateState {
public:
    void load(VehicleUpdateSettings settings);
    VehicleUpdateSettings settings() const;
    std::wstring broker() const;
    void setBroker(std::wstring enginePath);
    // Shared with the runs of asynchronous updates, which may outlive the vehicle.
    std::shared_ptr<std::mutex> storeMutex() const { return storeMutex_; }

private:
    mutable std::mutex mutex_;
    VehicleUpdateSettings settings_;
    std::wstring broker_ = L"broker";
    const std::shared_ptr<std::mutex> storeMutex_ = std::make_shared<std::mutex>();
};

class VehicleUpdate final : public VehicleUpdateFamily {
public:
    explicit VehicleUpdate(std::shared_ptr<SimulatedVehicle> vehicle);

    void applyUpdatePackage(const std::wstring& package) override;
    std::vector<std::shared_ptr<UpdatePackageInfo>> getUpdatePackages() override;
    std::vector<std::shared_ptr<UpdatePackageInfo>> getPackagesFromBroker() override;
    bool checkUpdatesOnBroker() override;
    bool autoUpdate() override;
    std::vector<std::shared_ptr<NamedItem>> getCurrentVersions() override;
    bool checkUpdateSuccess() override;
    void cleanUpdateTmp() override;
    std::vector<std::shared_ptr<VehicleUpdateResult>>
    updateVehicle(std::shared_ptr<VehicleUpdateConfig> config) override;
    uint64_t updateVehicleAsync(std::shared_ptr<VehicleUpdateConfig> config,
                                UpdateVehicleCallback* callback) override;
    void uploadReport(std::shared_ptr<UploadReportConfiguration> config) override;
    void setBrokerUrl(const std::wstring& url) override;
    void clearUpdatePackages() override;
    std::vector<std::shared_ptr<VehicleUpdateResult>>
    performVehicleUpdate(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                         std::shared_ptr<VehicleUpdateConfig> config) override;
    uint64_t performVehicleUpdateAsync(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                                       std::shared_ptr<VehicleUpdateConfig> config,
                                       PerformVehicleUpdateCallback* callback) override;
    std::shared_ptr<VehicleUpdateConfig>
    createVehicleUpdateConfig(const std::vector<std::wstring>& targets) override;

    class Run;

private:
    struct Context; // what an operation works with: sandbox, broker, store
    Context ready() const;
    std::shared_ptr<Run> prepare(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                                 const std::shared_ptr<VehicleUpdateConfig>& config,
                                 const wchar_t* operation) const;
    std::vector<std::shared_ptr<EcuOrderEntry>> vehicleOrder() const;

    std::shared_ptr<SimulatedVehicle> vehicle_;
};

} // namespace Varno::Kel_cpp::Reference
