// Measurement values: the live values a unit computes from vehicle time (ControlUnits,
// "measurements"), described from the unit's catalogue and read as a tester reads them,
// by ReadDataByIdentifier on the bus. A registration keeps a target and its value names
// so that later reads show the values moving.
#pragma once

#include "Families.h"

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

class SimulatedVehicle;

// Per vehicle, under its own lock (taken alone).
class MeasurementState {
public:
    struct Registration {
        std::wstring target;
        std::vector<std::wstring> names;
    };

    // A reload ends every registration: the values it named may be gone.
    void load();
    uint64_t add(Registration registration);
    std::optional<Registration> find(uint64_t id) const;
    bool remove(uint64_t id);

private:
    mutable std::mutex mutex_;
    std::map<uint64_t, Registration> registrations_;
    uint64_t next_ = 1;
};

class Measurement final : public MeasurementFamily {
public:
    explicit Measurement(std::shared_ptr<SimulatedVehicle> vehicle);

    std::vector<std::shared_ptr<ParameterInfo>>
    getMeasurementValueInfos(const std::wstring& target) override;
    std::vector<std::shared_ptr<ParameterInfo>>
    getSingleMeasurementValueInfos(const std::wstring& target,
                                   const std::vector<std::wstring>& names) override;
    uint64_t registerMeasurementValues(const std::wstring& target,
                                       const std::vector<std::wstring>& names) override;
    std::vector<std::shared_ptr<ReadDataResult>>
    getMeasurementValues(uint64_t registration) override;
    void unregisterMeasurementValues(uint64_t registration) override;
    std::vector<std::shared_ptr<ReadDataResult>>
    readMeasurementValues(const std::wstring& target,
                          const std::vector<std::wstring>& names) override;
    uint64_t readMeasurementValuesAsync(const std::wstring& target,
                                        const std::vector<std::wstring>& names,
                                        ReadMeasurementValuesCallback* callback) override;

private:
    // Throws NotInitialized and NoInterfaceConnected as the diagnostic calls do.
    void ready() const;

    std::shared_ptr<SimulatedVehicle> vehicle_;
};

} // namespace Varno::Kel_cpp::Reference
