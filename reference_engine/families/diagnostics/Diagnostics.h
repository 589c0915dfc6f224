// Diagnostics: targets, identification and DTCs over the vehicle's control units, with
// the asynchronous forms running on the vehicle's asynchronous calls.
#pragma once

#include "Families.h"

#include <nlohmann/json.hpp>

#include <memory>
#include <mutex>
#include <vector>

namespace Varno::Kel_cpp::Reference {

class ControlUnits;
class SimulatedVehicle;

// The "diagnostics" section of the vehicle description.
struct DiagnosticsSettings {
    // The session's target filters when the vehicle starts or is reloaded.
    std::vector<std::shared_ptr<TargetFilter>> sessionFilters;

    // Throws TarnApiException BadVehicleDescription.
    static DiagnosticsSettings parse(const nlohmann::json& section);
};

// Per vehicle: the session's target filters, under their own lock. Filters are copied
// in and out, so a caller's record is never shared with the vehicle.
class DiagnosticsState {
public:
    void load(const DiagnosticsSettings& settings) { setSessionFilters(settings.sessionFilters); }
    std::vector<std::shared_ptr<TargetFilter>> sessionFilters() const;
    void setSessionFilters(const std::vector<std::shared_ptr<TargetFilter>>& filters);

private:
    mutable std::mutex mutex_;
    std::vector<std::shared_ptr<TargetFilter>> sessionFilters_;
};

class Diagnostics final : public DiagnosticsFamily {
public:
    explicit Diagnostics(std::shared_ptr<SimulatedVehicle> vehicle);

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
    std::vector<std::shared_ptr<VariantIdentResult>>
    identifyTargets(const std::vector<std::wstring>& targets) override;
    uint64_t identifyTargetsAsync(const std::vector<std::wstring>& targets,
                                  IdentifyTargetsCallback* callback) override;
    std::vector<std::shared_ptr<Target>>
    getFilteredTargets(const std::vector<std::shared_ptr<TargetFilter>>& filters) override;
    std::vector<std::shared_ptr<TargetStatus>>
    getTargetStatus(const std::vector<std::wstring>& targets) override;
    std::vector<std::shared_ptr<ClearDtcResult>>
    clearSpecificDtcs(const std::wstring& target, const std::vector<uint32_t>& dtcCodes) override;
    uint64_t clearSpecificDtcsAsync(const std::wstring& target,
                                    const std::vector<uint32_t>& dtcCodes,
                                    ClearSpecificDtcsCallback* callback) override;
    std::vector<std::shared_ptr<Target>> getTargets() override;
    std::vector<std::shared_ptr<QuickTestResult>>
    performQuickTest(const std::vector<std::wstring>& targets,
                     std::shared_ptr<DtcReadConfig> config) override;
    uint64_t performQuickTestAsync(const std::vector<std::wstring>& targets,
                                   std::shared_ptr<DtcReadConfig> config,
                                   PerformQuickTestCallback* callback) override;
    std::vector<std::shared_ptr<TargetFilter>> getSessionTargetFilters() override;
    void
    setSessionTargetFilters(const std::vector<std::shared_ptr<TargetFilter>>& filters) override;

private:
    // Throws NotInitialized unless the engine is initialised; returns the control units.
    const std::shared_ptr<ControlUnits>& ready() const;
    // ready(), and throws NoInterfaceConnected unless an interface carries the calls.
    const std::shared_ptr<ControlUnits>& connected() const;

    std::shared_ptr<SimulatedVehicle> vehicle_;
};

} // namespace Varno::Kel_cpp::Reference
