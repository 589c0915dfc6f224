// The synchronous operations answer from the control units at once; the asynchronous
// ones compute the same answer on the vehicle's asynchronous calls. The work of an
// asynchronous call keeps the control units, not the vehicle, so that it may outlive
// the vehicle's last engine object.
#include "Diagnostics.h"

#include "Answers.h"
#include "Describe.h"
#include "SimulatedVehicle.h"

#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

using Units = std::vector<Ecu>;

std::shared_ptr<TargetFilter> copyFilter(const std::shared_ptr<TargetFilter>& f) {
    return f ? std::make_shared<TargetFilter>(*f) : nullptr;
}

void postCleared(SimulatedVehicle& vehicle, int32_t cleared) {
    if (cleared > 0) {
        post(vehicle, EventKind::DtcsCleared, cleared, L"Diagnostic trouble codes were cleared",
             std::to_wstring(cleared) + L" target(s)");
    }
}

} // namespace

DiagnosticsSettings DiagnosticsSettings::parse(const nlohmann::json& section) {
    try {
        DiagnosticsSettings settings;
        for (const auto& f : arrayMember(section, "sessionFilters")) {
            auto filter = std::make_shared<TargetFilter>();
            filter->pattern = fromUtf8(f.at("pattern").get<std::string>());
            filter->flag = f.value("flag", uint8_t{0});
            filter->value = f.value("value", 0);
            settings.sessionFilters.push_back(std::move(filter));
        }
        return settings;
    } catch (const std::exception& e) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               fromUtf8(e.what()));
    }
}

std::vector<std::shared_ptr<TargetFilter>> DiagnosticsState::sessionFilters() const {
    const std::lock_guard lock(mutex_);
    std::vector<std::shared_ptr<TargetFilter>> out;
    for (const auto& f : sessionFilters_) {
        out.push_back(copyFilter(f));
    }
    return out;
}

void DiagnosticsState::setSessionFilters(
    const std::vector<std::shared_ptr<TargetFilter>>& filters) {
    std::vector<std::shared_ptr<TargetFilter>> copies;
    for (const auto& f : filters) {
        copies.push_back(copyFilter(f));
    }
    const std::lock_guard lock(mutex_);
    sessionFilters_ = std::move(copies);
}

Diagnostics::Diagnostics(std::shared_ptr<SimulatedVehicle> vehicle)
    : vehicle_(std::move(vehicle)) {}

const std::shared_ptr<ControlUnits>& Diagnostics::ready() const {
    vehicle_->lifecycle.requireInitialized();
    return vehicle_->units;
}

const std::shared_ptr<ControlUnits>& Diagnostics::connected() const {
    const auto& units = ready();
    vehicle_->interfaces->requireConnected();
    return units;
}

std::vector<std::shared_ptr<VariantIdentResult>> Diagnostics::identifyAllTargets() {
    return connected()->talk([](Bus& bus) { return Answers::identify(bus, {}); });
}

uint64_t Diagnostics::identifyAllTargetsAsync(IdentifyAllTargetsCallback* callback) {
    return vehicle_->async.start("identifyAllTargetsAsync", callback, [units = connected()] {
        return units->talk([](Bus& bus) { return Answers::identify(bus, {}); });
    });
}

std::vector<std::shared_ptr<ReadDataResult>>
Diagnostics::readIdentificationValues(const std::vector<std::wstring>& targets) {
    return connected()->talk([&](Bus& bus) { return Answers::identification(bus, targets); });
}

uint64_t Diagnostics::readIdentificationValuesAsync(const std::vector<std::wstring>& targets,
                                                    ReadIdentificationValuesCallback* callback) {
    return vehicle_->async.start(
        "readIdentificationValuesAsync", callback, [units = connected(), targets] {
            return units->talk([&](Bus& bus) { return Answers::identification(bus, targets); });
        });
}

std::vector<std::shared_ptr<ReadDataResult>>
Diagnostics::readDataByIdentifiers(const std::wstring& target,
                                   const std::vector<std::wstring>& identifiers) {
    return connected()->talk([&](Bus& bus) { return Answers::readData(bus, target, identifiers); });
}

// The vehicle has nothing to say about a name it does not know.
std::shared_ptr<VariantIdentResult> Diagnostics::identifyTarget(const std::wstring& target) {
    auto results = connected()->talk([&](Bus& bus) { return Answers::identify(bus, {target}); });
    return results.front()->status == 2 ? nullptr : results.front();
}

std::vector<std::shared_ptr<ReadDtcResult>>
Diagnostics::readDtcs(const std::vector<std::wstring>& targets,
                      std::shared_ptr<DtcReadConfig> config) {
    return connected()->talk(
        [&](Bus& bus) { return Answers::readDtcs(bus, targets, config.get()); });
}

uint64_t Diagnostics::readDtcsAsync(const std::vector<std::wstring>& targets,
                                    std::shared_ptr<DtcReadConfig> config,
                                    ReadDtcsCallback* callback) {
    return vehicle_->async.start("readDtcsAsync", callback,
                                 [units = connected(), targets, config = std::move(config)] {
                                     return units->talk([&](Bus& bus) {
                                         return Answers::readDtcs(bus, targets, config.get());
                                     });
                                 });
}

std::vector<std::shared_ptr<SupportedDtcResult>>
Diagnostics::readSupportedDtcs(const std::vector<std::wstring>& targets,
                               std::shared_ptr<DtcReadConfig> config) {
    return connected()->talk(
        [&](Bus& bus) { return Answers::readSupportedDtcs(bus, targets, config.get()); });
}

uint64_t Diagnostics::readSupportedDtcsAsync(const std::vector<std::wstring>& targets,
                                             std::shared_ptr<DtcReadConfig> config,
                                             ReadSupportedDtcsCallback* callback) {
    return vehicle_->async.start("readSupportedDtcsAsync", callback,
                                 [units = connected(), targets, config = std::move(config)] {
                                     return units->talk([&](Bus& bus) {
                                         return Answers::readSupportedDtcs(bus, targets,
                                                                           config.get());
                                     });
                                 });
}

std::vector<std::shared_ptr<ClearDtcResult>>
Diagnostics::clearAllDtcs(const std::vector<std::wstring>& targets) {
    int32_t cleared = 0;
    auto results =
        connected()->talk([&](Bus& bus) { return Answers::clearAll(bus, targets, cleared); });
    postCleared(*vehicle_, cleared);
    return results;
}

// The asynchronous clears post no DtcsCleared event: their completion event says it,
// and a worker must not reach the vehicle after the engine may have ended.
uint64_t Diagnostics::clearAllDtcsAsync(const std::vector<std::wstring>& targets,
                                        ClearAllDtcsCallback* callback) {
    return vehicle_->async.start("clearAllDtcsAsync", callback, [units = connected(), targets] {
        int32_t cleared = 0;
        return units->talk([&](Bus& bus) { return Answers::clearAll(bus, targets, cleared); });
    });
}

std::vector<std::shared_ptr<QuickTestResult>>
Diagnostics::performQuickTest(const std::vector<std::wstring>& targets,
                              std::shared_ptr<DtcReadConfig> config) {
    return connected()->talk(
        [&](Bus& bus) { return Answers::quickTest(bus, targets, config.get()); });
}

uint64_t Diagnostics::performQuickTestAsync(const std::vector<std::wstring>& targets,
                                            std::shared_ptr<DtcReadConfig> config,
                                            PerformQuickTestCallback* callback) {
    return vehicle_->async.start("performQuickTestAsync", callback,
                                 [units = connected(), targets, config] {
                                     return units->talk([&](Bus& bus) {
                                         return Answers::quickTest(bus, targets, config.get());
                                     });
                                 });
}

std::vector<std::shared_ptr<VariantIdentResult>>
Diagnostics::identifyTargets(const std::vector<std::wstring>& targets) {
    return connected()->talk([&](Bus& bus) { return Answers::identify(bus, targets); });
}

uint64_t Diagnostics::identifyTargetsAsync(const std::vector<std::wstring>& targets,
                                           IdentifyTargetsCallback* callback) {
    return vehicle_->async.start("identifyTargetsAsync", callback, [units = connected(), targets] {
        return units->talk([&](Bus& bus) { return Answers::identify(bus, targets); });
    });
}

// No filters given: the session's apply. They are copied out first, so that the
// diagnostics lock and the control units' lock are never held together.
std::vector<std::shared_ptr<Target>>
Diagnostics::getFilteredTargets(const std::vector<std::shared_ptr<TargetFilter>>& filters) {
    const auto& units = connected();
    const auto session = filters.empty() ? vehicle_->diagnostics.sessionFilters()
                                         : std::vector<std::shared_ptr<TargetFilter>>{};
    const auto& applied = filters.empty() ? session : filters;
    return units->read([&](const Units& ecus) { return Answers::targets(ecus, applied); });
}

std::vector<std::shared_ptr<TargetStatus>>
Diagnostics::getTargetStatus(const std::vector<std::wstring>& targets) {
    return ready()->read([&](const Units& ecus) { return Answers::status(ecus, targets); });
}

std::vector<std::shared_ptr<ClearDtcResult>>
Diagnostics::clearSpecificDtcs(const std::wstring& target, const std::vector<uint32_t>& dtcCodes) {
    int32_t cleared = 0;
    auto results = connected()->talk(
        [&](Bus& bus) { return Answers::clearSpecific(bus, target, dtcCodes, cleared); });
    postCleared(*vehicle_, cleared);
    return results;
}

uint64_t Diagnostics::clearSpecificDtcsAsync(const std::wstring& target,
                                             const std::vector<uint32_t>& dtcCodes,
                                             ClearSpecificDtcsCallback* callback) {
    return vehicle_->async.start(
        "clearSpecificDtcsAsync", callback, [units = connected(), target, dtcCodes] {
            int32_t cleared = 0;
            return units->talk(
                [&](Bus& bus) { return Answers::clearSpecific(bus, target, dtcCodes, cleared); });
        });
}

std::vector<std::shared_ptr<Target>> Diagnostics::getTargets() {
    return ready()->read([](const Units& ecus) { return Answers::targets(ecus, {}); });
}

std::vector<std::shared_ptr<TargetFilter>> Diagnostics::getSessionTargetFilters() {
    vehicle_->lifecycle.requireInitialized();
    return vehicle_->diagnostics.sessionFilters();
}

void Diagnostics::setSessionTargetFilters(
    const std::vector<std::shared_ptr<TargetFilter>>& filters) {
    vehicle_->lifecycle.requireInitialized();
    vehicle_->diagnostics.setSessionFilters(filters);
}

} // namespace Varno::Kel_cpp::Reference
