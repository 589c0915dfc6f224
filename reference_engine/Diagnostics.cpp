// Targets, identification and DTCs of the simulated vehicle: the synchronous operations
// answer from the vehicle model at once; the asynchronous ones compute the same answer
// on the engine's workers (AsyncCalls).
#include "SimulatedVehicle.h"

namespace Varno::Kel_cpp::Reference {
namespace {

void requireInitialized(VehicleState& vehicle) {
    const std::lock_guard lock(vehicle.mutex);
    if (vehicle.state != Initialized) {
        throw TarnApiException(NotInitialized, L"The engine is not initialized",
                               L"call initialize before this operation");
    }
}

void postCleared(VehicleState& vehicle, int32_t cleared) {
    if (cleared > 0) {
        post(vehicle, EventKind::DtcsCleared, cleared, L"Diagnostic trouble codes were cleared",
             std::to_wstring(cleared) + L" target(s)");
    }
}

} // namespace

std::vector<std::shared_ptr<VariantIdentResult>> SimulatedVehicle::identifyAllTargets() {
    requireInitialized(*vehicle_);
    return vehicle_->model->identify({});
}

uint64_t SimulatedVehicle::identifyAllTargetsAsync(IdentifyAllTargetsCallback* callback) {
    requireInitialized(*vehicle_);
    return vehicle_->async.start("identifyAllTargetsAsync", callback,
                                 [model = vehicle_->model] { return model->identify({}); });
}

std::vector<std::shared_ptr<ReadDataResult>>
SimulatedVehicle::readIdentificationValues(const std::vector<std::wstring>& targets) {
    requireInitialized(*vehicle_);
    return vehicle_->model->identification(targets);
}

uint64_t
SimulatedVehicle::readIdentificationValuesAsync(const std::vector<std::wstring>& targets,
                                                ReadIdentificationValuesCallback* callback) {
    requireInitialized(*vehicle_);
    return vehicle_->async.start(
        "readIdentificationValuesAsync", callback,
        [model = vehicle_->model, targets] { return model->identification(targets); });
}

std::vector<std::shared_ptr<ReadDataResult>>
SimulatedVehicle::readDataByIdentifiers(const std::wstring& target,
                                        const std::vector<std::wstring>& identifiers) {
    requireInitialized(*vehicle_);
    return vehicle_->model->readData(target, identifiers);
}

std::shared_ptr<VariantIdentResult> SimulatedVehicle::identifyTarget(const std::wstring& target) {
    requireInitialized(*vehicle_);
    return vehicle_->model->identifyOne(target);
}

std::vector<std::shared_ptr<ReadDtcResult>>
SimulatedVehicle::readDtcs(const std::vector<std::wstring>& targets,
                           std::shared_ptr<DtcReadConfig> config) {
    requireInitialized(*vehicle_);
    return vehicle_->model->readDtcs(targets, config);
}

uint64_t SimulatedVehicle::readDtcsAsync(const std::vector<std::wstring>& targets,
                                         std::shared_ptr<DtcReadConfig> config,
                                         ReadDtcsCallback* callback) {
    requireInitialized(*vehicle_);
    return vehicle_->async.start(
        "readDtcsAsync", callback,
        [model = vehicle_->model, targets, config] { return model->readDtcs(targets, config); });
}

std::vector<std::shared_ptr<SupportedDtcResult>>
SimulatedVehicle::readSupportedDtcs(const std::vector<std::wstring>& targets,
                                    std::shared_ptr<DtcReadConfig> config) {
    requireInitialized(*vehicle_);
    return vehicle_->model->readSupportedDtcs(targets, config);
}

uint64_t SimulatedVehicle::readSupportedDtcsAsync(const std::vector<std::wstring>& targets,
                                                  std::shared_ptr<DtcReadConfig> config,
                                                  ReadSupportedDtcsCallback* callback) {
    requireInitialized(*vehicle_);
    return vehicle_->async.start("readSupportedDtcsAsync", callback,
                                 [model = vehicle_->model, targets, config] {
                                     return model->readSupportedDtcs(targets, config);
                                 });
}

std::vector<std::shared_ptr<ClearDtcResult>>
SimulatedVehicle::clearAllDtcs(const std::vector<std::wstring>& targets) {
    requireInitialized(*vehicle_);
    int32_t cleared = 0;
    auto results = vehicle_->model->clearAll(targets, cleared);
    postCleared(*vehicle_, cleared);
    return results;
}

// The asynchronous clears post no DtcsCleared event: their completion event says it,
// and a worker must not reach the vehicle after the engine may have ended.
uint64_t SimulatedVehicle::clearAllDtcsAsync(const std::vector<std::wstring>& targets,
                                             ClearAllDtcsCallback* callback) {
    requireInitialized(*vehicle_);
    return vehicle_->async.start("clearAllDtcsAsync", callback, [model = vehicle_->model, targets] {
        int32_t cleared = 0;
        return model->clearAll(targets, cleared);
    });
}

void SimulatedVehicle::cancelAllAsyncCalls() { vehicle_->async.cancelAll(); }

std::vector<std::shared_ptr<VariantIdentResult>>
SimulatedVehicle::identifyTargets(const std::vector<std::wstring>& targets) {
    requireInitialized(*vehicle_);
    return vehicle_->model->identify(targets);
}

uint64_t SimulatedVehicle::identifyTargetsAsync(const std::vector<std::wstring>& targets,
                                                IdentifyTargetsCallback* callback) {
    requireInitialized(*vehicle_);
    return vehicle_->async.start(
        "identifyTargetsAsync", callback,
        [model = vehicle_->model, targets] { return model->identify(targets); });
}

std::vector<std::shared_ptr<Target>>
SimulatedVehicle::getFilteredTargets(const std::vector<std::shared_ptr<TargetFilter>>& filters) {
    requireInitialized(*vehicle_);
    return vehicle_->model->targets(filters);
}

void SimulatedVehicle::cancelAsyncCalls(const std::vector<uint64_t>& callIds) {
    vehicle_->async.cancel(callIds, true);
}

std::vector<std::shared_ptr<TargetStatus>>
SimulatedVehicle::getTargetStatus(const std::vector<std::wstring>& targets) {
    requireInitialized(*vehicle_);
    return vehicle_->model->status(targets);
}

void SimulatedVehicle::triggerAsyncCancels(const std::vector<uint64_t>& callIds) {
    vehicle_->async.cancel(callIds, false);
}

std::vector<std::shared_ptr<ClearDtcResult>>
SimulatedVehicle::clearSpecificDtcs(const std::wstring& target,
                                    const std::vector<uint32_t>& dtcCodes) {
    requireInitialized(*vehicle_);
    int32_t cleared = 0;
    auto results = vehicle_->model->clearSpecific(target, dtcCodes, cleared);
    postCleared(*vehicle_, cleared);
    return results;
}

uint64_t SimulatedVehicle::clearSpecificDtcsAsync(const std::wstring& target,
                                                  const std::vector<uint32_t>& dtcCodes,
                                                  ClearSpecificDtcsCallback* callback) {
    requireInitialized(*vehicle_);
    return vehicle_->async.start("clearSpecificDtcsAsync", callback,
                                 [model = vehicle_->model, target, dtcCodes] {
                                     int32_t cleared = 0;
                                     return model->clearSpecific(target, dtcCodes, cleared);
                                 });
}

std::vector<std::shared_ptr<Target>> SimulatedVehicle::getTargets() {
    requireInitialized(*vehicle_);
    return vehicle_->model->allTargets();
}

std::vector<std::shared_ptr<TargetFilter>> SimulatedVehicle::getSessionTargetFilters() {
    requireInitialized(*vehicle_);
    return vehicle_->model->sessionFilters();
}

void SimulatedVehicle::setSessionTargetFilters(
    const std::vector<std::shared_ptr<TargetFilter>>& filters) {
    requireInitialized(*vehicle_);
    vehicle_->model->setSessionFilters(filters);
}

} // namespace Varno::Kel_cpp::Reference
