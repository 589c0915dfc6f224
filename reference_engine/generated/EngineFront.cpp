// Generated from the interface description by tools/generate.py. Do not edit.

#include "EngineFront.h"

#include <utility>

namespace Varno::Kel_cpp::Reference {

EngineFront::EngineFront(std::shared_ptr<TarnApi> vehicle, std::shared_ptr<Script> script,
                         std::shared_ptr<CallClock> clock)
    : vehicle_(std::move(vehicle)), script_(std::move(script)), clock_(std::move(clock)) {}

void EngineFront::initialize() {
    const auto call = script_->enter(*clock_, "initialize");
    if (script_->scriptedVoid("initialize")) {
        return;
    }
    return vehicle_->initialize();
}
void EngineFront::end() {
    const auto call = script_->enter(*clock_, "end");
    if (script_->scriptedVoid("end")) {
        return;
    }
    return vehicle_->end();
}
std::wstring EngineFront::startServer(const std::wstring& name) {
    const auto call = script_->enter(*clock_, "startServer", name);
    if (auto scripted = script_->scripted<std::wstring>("startServer")) {
        return std::move(*scripted);
    }
    return vehicle_->startServer(name);
}
void EngineFront::stopServer(const std::wstring& reason) {
    const auto call = script_->enter(*clock_, "stopServer", reason);
    if (script_->scriptedVoid("stopServer")) {
        return;
    }
    return vehicle_->stopServer(reason);
}
void EngineFront::restartServer(int32_t endClients) {
    const auto call = script_->enter(*clock_, "restartServer", endClients);
    if (script_->scriptedVoid("restartServer")) {
        return;
    }
    return vehicle_->restartServer(endClients);
}
std::shared_ptr<ProjectConfig>
EngineFront::getProjectConfiguration(const std::wstring& projectName) {
    const auto call = script_->enter(*clock_, "getProjectConfiguration", projectName);
    if (auto scripted =
            script_->scripted<std::shared_ptr<ProjectConfig>>("getProjectConfiguration")) {
        return std::move(*scripted);
    }
    return vehicle_->getProjectConfiguration(projectName);
}
void EngineFront::setProjectConfiguration(const std::wstring& projectName,
                                          std::shared_ptr<ProjectConfig> config) {
    const auto call = script_->enter(*clock_, "setProjectConfiguration", projectName, config);
    if (script_->scriptedVoid("setProjectConfiguration")) {
        return;
    }
    return vehicle_->setProjectConfiguration(projectName, config);
}
void EngineFront::saveProjectConfiguration(const std::wstring& projectName) {
    const auto call = script_->enter(*clock_, "saveProjectConfiguration", projectName);
    if (script_->scriptedVoid("saveProjectConfiguration")) {
        return;
    }
    return vehicle_->saveProjectConfiguration(projectName);
}
uint64_t EngineFront::createMonitoringLink(const std::wstring& name) {
    const auto call = script_->enter(*clock_, "createMonitoringLink", name);
    if (auto scripted = script_->scripted<uint64_t>("createMonitoringLink")) {
        return std::move(*scripted);
    }
    return vehicle_->createMonitoringLink(name);
}
std::vector<std::shared_ptr<MonitoringItem>>
EngineFront::getMonitoringItems(uint64_t handle, uint32_t value1, int32_t value2) {
    const auto call = script_->enter(*clock_, "getMonitoringItems", handle, value1, value2);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<MonitoringItem>>>("getMonitoringItems")) {
        return std::move(*scripted);
    }
    return vehicle_->getMonitoringItems(handle, value1, value2);
}
void EngineFront::releaseMonitoringLink(uint64_t handle) {
    const auto call = script_->enter(*clock_, "releaseMonitoringLink", handle);
    if (script_->scriptedVoid("releaseMonitoringLink")) {
        return;
    }
    return vehicle_->releaseMonitoringLink(handle);
}
std::vector<std::shared_ptr<PduMonitoringItem>>
EngineFront::getPduMonitoringItems(uint64_t handle, uint32_t value1, int32_t value2) {
    const auto call = script_->enter(*clock_, "getPduMonitoringItems", handle, value1, value2);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<PduMonitoringItem>>>(
            "getPduMonitoringItems")) {
        return std::move(*scripted);
    }
    return vehicle_->getPduMonitoringItems(handle, value1, value2);
}
uint64_t EngineFront::createPduMonitor() {
    const auto call = script_->enter(*clock_, "createPduMonitor");
    if (auto scripted = script_->scripted<uint64_t>("createPduMonitor")) {
        return std::move(*scripted);
    }
    return vehicle_->createPduMonitor();
}
void EngineFront::saveConfiguration() {
    const auto call = script_->enter(*clock_, "saveConfiguration");
    if (script_->scriptedVoid("saveConfiguration")) {
        return;
    }
    return vehicle_->saveConfiguration();
}
void EngineFront::releasePduMonitor(uint64_t handle) {
    const auto call = script_->enter(*clock_, "releasePduMonitor", handle);
    if (script_->scriptedVoid("releasePduMonitor")) {
        return;
    }
    return vehicle_->releasePduMonitor(handle);
}
std::vector<std::shared_ptr<VariantIdentResult>> EngineFront::identifyAllTargets() {
    const auto call = script_->enter(*clock_, "identifyAllTargets");
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<VariantIdentResult>>>(
            "identifyAllTargets")) {
        return std::move(*scripted);
    }
    return vehicle_->identifyAllTargets();
}
uint64_t EngineFront::identifyAllTargetsAsync(IdentifyAllTargetsCallback* callback) {
    const auto call = script_->enter(*clock_, "identifyAllTargetsAsync", callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<VariantIdentResult>>>(
            "identifyAllTargetsAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->identifyAllTargetsAsync(callback);
}
std::vector<std::shared_ptr<ReadDataResult>>
EngineFront::readIdentificationValues(const std::vector<std::wstring>& targets) {
    const auto call = script_->enter(*clock_, "readIdentificationValues", targets);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ReadDataResult>>>(
            "readIdentificationValues")) {
        return std::move(*scripted);
    }
    return vehicle_->readIdentificationValues(targets);
}
uint64_t EngineFront::readIdentificationValuesAsync(const std::vector<std::wstring>& targets,
                                                    ReadIdentificationValuesCallback* callback) {
    const auto call = script_->enter(*clock_, "readIdentificationValuesAsync", targets, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ReadDataResult>>>(
            "readIdentificationValuesAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->readIdentificationValuesAsync(targets, callback);
}
std::vector<std::shared_ptr<ReadDataResult>>
EngineFront::readDataByIdentifiers(const std::wstring& target,
                                   const std::vector<std::wstring>& identifiers) {
    const auto call = script_->enter(*clock_, "readDataByIdentifiers", target, identifiers);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ReadDataResult>>>(
            "readDataByIdentifiers")) {
        return std::move(*scripted);
    }
    return vehicle_->readDataByIdentifiers(target, identifiers);
}
std::shared_ptr<VariantIdentResult> EngineFront::identifyTarget(const std::wstring& target) {
    const auto call = script_->enter(*clock_, "identifyTarget", target);
    if (auto scripted = script_->scripted<std::shared_ptr<VariantIdentResult>>("identifyTarget")) {
        return std::move(*scripted);
    }
    return vehicle_->identifyTarget(target);
}
std::vector<std::shared_ptr<ReadDtcResult>>
EngineFront::readDtcs(const std::vector<std::wstring>& targets,
                      std::shared_ptr<DtcReadConfig> config) {
    const auto call = script_->enter(*clock_, "readDtcs", targets, config);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<ReadDtcResult>>>("readDtcs")) {
        return std::move(*scripted);
    }
    return vehicle_->readDtcs(targets, config);
}
uint64_t EngineFront::readDtcsAsync(const std::vector<std::wstring>& targets,
                                    std::shared_ptr<DtcReadConfig> config,
                                    ReadDtcsCallback* callback) {
    const auto call = script_->enter(*clock_, "readDtcsAsync", targets, config, callback);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<ReadDtcResult>>>("readDtcsAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->readDtcsAsync(targets, config, callback);
}
std::vector<std::shared_ptr<SupportedDtcResult>>
EngineFront::readSupportedDtcs(const std::vector<std::wstring>& targets,
                               std::shared_ptr<DtcReadConfig> config) {
    const auto call = script_->enter(*clock_, "readSupportedDtcs", targets, config);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<SupportedDtcResult>>>(
            "readSupportedDtcs")) {
        return std::move(*scripted);
    }
    return vehicle_->readSupportedDtcs(targets, config);
}
uint64_t EngineFront::readSupportedDtcsAsync(const std::vector<std::wstring>& targets,
                                             std::shared_ptr<DtcReadConfig> config,
                                             ReadSupportedDtcsCallback* callback) {
    const auto call = script_->enter(*clock_, "readSupportedDtcsAsync", targets, config, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<SupportedDtcResult>>>(
            "readSupportedDtcsAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->readSupportedDtcsAsync(targets, config, callback);
}
std::vector<std::shared_ptr<ClearDtcResult>>
EngineFront::clearAllDtcs(const std::vector<std::wstring>& targets) {
    const auto call = script_->enter(*clock_, "clearAllDtcs", targets);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<ClearDtcResult>>>("clearAllDtcs")) {
        return std::move(*scripted);
    }
    return vehicle_->clearAllDtcs(targets);
}
uint64_t EngineFront::clearAllDtcsAsync(const std::vector<std::wstring>& targets,
                                        ClearAllDtcsCallback* callback) {
    const auto call = script_->enter(*clock_, "clearAllDtcsAsync", targets, callback);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<ClearDtcResult>>>("clearAllDtcsAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->clearAllDtcsAsync(targets, callback);
}
std::vector<std::shared_ptr<ServiceInfo>>
EngineFront::getServiceInfos(const std::wstring& text1, const std::wstring& text2,
                             const std::vector<std::wstring>& names, int32_t value) {
    const auto call = script_->enter(*clock_, "getServiceInfos", text1, text2, names, value);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<ServiceInfo>>>("getServiceInfos")) {
        return std::move(*scripted);
    }
    return vehicle_->getServiceInfos(text1, text2, names, value);
}
std::vector<std::shared_ptr<FlashSessionInfo>>
EngineFront::getFlashSessionInfos(const std::wstring& target) {
    const auto call = script_->enter(*clock_, "getFlashSessionInfos", target);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<FlashSessionInfo>>>(
            "getFlashSessionInfos")) {
        return std::move(*scripted);
    }
    return vehicle_->getFlashSessionInfos(target);
}
std::vector<std::shared_ptr<FlashSessionResult>>
EngineFront::executeFlashSessions(const std::wstring& target,
                                  const std::vector<std::wstring>& sessions) {
    const auto call = script_->enter(*clock_, "executeFlashSessions", target, sessions);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<FlashSessionResult>>>(
            "executeFlashSessions")) {
        return std::move(*scripted);
    }
    return vehicle_->executeFlashSessions(target, sessions);
}
uint64_t EngineFront::executeFlashSessionsAsync(const std::wstring& target,
                                                const std::vector<std::wstring>& sessions,
                                                ExecuteFlashSessionsCallback* callback) {
    const auto call =
        script_->enter(*clock_, "executeFlashSessionsAsync", target, sessions, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<FlashSessionResult>>>(
            "executeFlashSessionsAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->executeFlashSessionsAsync(target, sessions, callback);
}
std::vector<std::shared_ptr<CodingStringResult>>
EngineFront::readCodingStrings(const std::vector<std::wstring>& targets) {
    const auto call = script_->enter(*clock_, "readCodingStrings", targets);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<CodingStringResult>>>(
            "readCodingStrings")) {
        return std::move(*scripted);
    }
    return vehicle_->readCodingStrings(targets);
}
uint64_t EngineFront::readCodingStringsAsync(const std::vector<std::wstring>& targets,
                                             ReadCodingStringsCallback* callback) {
    const auto call = script_->enter(*clock_, "readCodingStringsAsync", targets, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<CodingStringResult>>>(
            "readCodingStringsAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->readCodingStringsAsync(targets, callback);
}
std::vector<std::shared_ptr<QuickTestResult>>
EngineFront::performQuickTest(const std::vector<std::wstring>& targets,
                              std::shared_ptr<DtcReadConfig> config) {
    const auto call = script_->enter(*clock_, "performQuickTest", targets, config);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<QuickTestResult>>>("performQuickTest")) {
        return std::move(*scripted);
    }
    return vehicle_->performQuickTest(targets, config);
}
uint64_t EngineFront::performQuickTestAsync(const std::vector<std::wstring>& targets,
                                            std::shared_ptr<DtcReadConfig> config,
                                            PerformQuickTestCallback* callback) {
    const auto call = script_->enter(*clock_, "performQuickTestAsync", targets, config, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<QuickTestResult>>>(
            "performQuickTestAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->performQuickTestAsync(targets, config, callback);
}
std::shared_ptr<TarnApi> EngineFront::connectRemoteServer(const std::wstring& address) {
    const auto call = script_->enter(*clock_, "connectRemoteServer", address);
    return vehicle_->connectRemoteServer(address);
}
std::vector<std::shared_ptr<ParameterInfo>>
EngineFront::getMeasurementValueInfos(const std::wstring& target) {
    const auto call = script_->enter(*clock_, "getMeasurementValueInfos", target);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ParameterInfo>>>(
            "getMeasurementValueInfos")) {
        return std::move(*scripted);
    }
    return vehicle_->getMeasurementValueInfos(target);
}
uint64_t EngineFront::registerMeasurementValues(const std::wstring& target,
                                                const std::vector<std::wstring>& names) {
    const auto call = script_->enter(*clock_, "registerMeasurementValues", target, names);
    if (auto scripted = script_->scripted<uint64_t>("registerMeasurementValues")) {
        return std::move(*scripted);
    }
    return vehicle_->registerMeasurementValues(target, names);
}
std::vector<std::shared_ptr<ReadDataResult>>
EngineFront::getMeasurementValues(uint64_t registration) {
    const auto call = script_->enter(*clock_, "getMeasurementValues", registration);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ReadDataResult>>>(
            "getMeasurementValues")) {
        return std::move(*scripted);
    }
    return vehicle_->getMeasurementValues(registration);
}
void EngineFront::unregisterMeasurementValues(uint64_t registration) {
    const auto call = script_->enter(*clock_, "unregisterMeasurementValues", registration);
    if (script_->scriptedVoid("unregisterMeasurementValues")) {
        return;
    }
    return vehicle_->unregisterMeasurementValues(registration);
}
std::vector<std::shared_ptr<ParameterInfo>>
EngineFront::getIdentificationValueInfos(const std::wstring& target) {
    const auto call = script_->enter(*clock_, "getIdentificationValueInfos", target);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ParameterInfo>>>(
            "getIdentificationValueInfos")) {
        return std::move(*scripted);
    }
    return vehicle_->getIdentificationValueInfos(target);
}
void EngineFront::cancelAllAsyncCalls() {
    const auto call = script_->enter(*clock_, "cancelAllAsyncCalls");
    if (script_->scriptedVoid("cancelAllAsyncCalls")) {
        return;
    }
    return vehicle_->cancelAllAsyncCalls();
}
std::vector<uint8_t> EngineFront::createSeed(uint32_t value1, uint32_t value2) {
    const auto call = script_->enter(*clock_, "createSeed", value1, value2);
    if (auto scripted = script_->scripted<std::vector<uint8_t>>("createSeed")) {
        return std::move(*scripted);
    }
    return vehicle_->createSeed(value1, value2);
}
void EngineFront::sendKey(const std::vector<uint8_t>& key) {
    const auto call = script_->enter(*clock_, "sendKey", key);
    if (script_->scriptedVoid("sendKey")) {
        return;
    }
    return vehicle_->sendKey(key);
}
uint64_t EngineFront::openEventChannel() {
    const auto call = script_->enter(*clock_, "openEventChannel");
    if (auto scripted = script_->scripted<uint64_t>("openEventChannel")) {
        return std::move(*scripted);
    }
    return vehicle_->openEventChannel();
}
void EngineFront::closeEventChannel(uint64_t channel) {
    const auto call = script_->enter(*clock_, "closeEventChannel", channel);
    if (script_->scriptedVoid("closeEventChannel")) {
        return;
    }
    return vehicle_->closeEventChannel(channel);
}
std::shared_ptr<EventReport> EngineFront::getCurrentEvents(uint64_t channel, uint32_t limit) {
    const auto call = script_->enter(*clock_, "getCurrentEvents", channel, limit);
    if (auto scripted = script_->scripted<std::shared_ptr<EventReport>>("getCurrentEvents")) {
        return std::move(*scripted);
    }
    return vehicle_->getCurrentEvents(channel, limit);
}
void EngineFront::openTraceFileMonitoringLink(uint64_t handle, const std::wstring& traceFile) {
    const auto call = script_->enter(*clock_, "openTraceFileMonitoringLink", handle, traceFile);
    if (script_->scriptedVoid("openTraceFileMonitoringLink")) {
        return;
    }
    return vehicle_->openTraceFileMonitoringLink(handle, traceFile);
}
void EngineFront::startTraceFileMonitoringLink(uint64_t handle) {
    const auto call = script_->enter(*clock_, "startTraceFileMonitoringLink", handle);
    if (script_->scriptedVoid("startTraceFileMonitoringLink")) {
        return;
    }
    return vehicle_->startTraceFileMonitoringLink(handle);
}
void EngineFront::stopTraceFileMonitoringLink(uint64_t handle) {
    const auto call = script_->enter(*clock_, "stopTraceFileMonitoringLink", handle);
    if (script_->scriptedVoid("stopTraceFileMonitoringLink")) {
        return;
    }
    return vehicle_->stopTraceFileMonitoringLink(handle);
}
void EngineFront::closeTraceFileMonitoringLink(uint64_t handle) {
    const auto call = script_->enter(*clock_, "closeTraceFileMonitoringLink", handle);
    if (script_->scriptedVoid("closeTraceFileMonitoringLink")) {
        return;
    }
    return vehicle_->closeTraceFileMonitoringLink(handle);
}
void EngineFront::saveInterfaceConfiguration() {
    const auto call = script_->enter(*clock_, "saveInterfaceConfiguration");
    if (script_->scriptedVoid("saveInterfaceConfiguration")) {
        return;
    }
    return vehicle_->saveInterfaceConfiguration();
}
std::vector<std::shared_ptr<ScanInterfaceResult>>
EngineFront::scanInterfaceConnection(const std::vector<std::wstring>& interfaces) {
    const auto call = script_->enter(*clock_, "scanInterfaceConnection", interfaces);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ScanInterfaceResult>>>(
            "scanInterfaceConnection")) {
        return std::move(*scripted);
    }
    return vehicle_->scanInterfaceConnection(interfaces);
}
uint64_t EngineFront::scanInterfaceConnectionAsync(const std::vector<std::wstring>& interfaces,
                                                   ScanInterfaceConnectionCallback* callback) {
    const auto call = script_->enter(*clock_, "scanInterfaceConnectionAsync", interfaces, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ScanInterfaceResult>>>(
            "scanInterfaceConnectionAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->scanInterfaceConnectionAsync(interfaces, callback);
}
void EngineFront::disconnect() {
    const auto call = script_->enter(*clock_, "disconnect");
    if (script_->scriptedVoid("disconnect")) {
        return;
    }
    return vehicle_->disconnect();
}
std::wstring EngineFront::getInterfaceLongName(const std::wstring& name) {
    const auto call = script_->enter(*clock_, "getInterfaceLongName", name);
    if (auto scripted = script_->scripted<std::wstring>("getInterfaceLongName")) {
        return std::move(*scripted);
    }
    return vehicle_->getInterfaceLongName(name);
}
std::vector<std::shared_ptr<ReadDataResult>>
EngineFront::readMeasurementValues(const std::wstring& target,
                                   const std::vector<std::wstring>& names) {
    const auto call = script_->enter(*clock_, "readMeasurementValues", target, names);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ReadDataResult>>>(
            "readMeasurementValues")) {
        return std::move(*scripted);
    }
    return vehicle_->readMeasurementValues(target, names);
}
uint64_t EngineFront::readMeasurementValuesAsync(const std::wstring& target,
                                                 const std::vector<std::wstring>& names,
                                                 ReadMeasurementValuesCallback* callback) {
    const auto call =
        script_->enter(*clock_, "readMeasurementValuesAsync", target, names, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ReadDataResult>>>(
            "readMeasurementValuesAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->readMeasurementValuesAsync(target, names, callback);
}
std::vector<uint8_t> EngineFront::readFile(const std::wstring& path, uint64_t value1,
                                           uint32_t value2, bool flag) {
    const auto call = script_->enter(*clock_, "readFile", path, value1, value2, flag);
    if (auto scripted = script_->scripted<std::vector<uint8_t>>("readFile")) {
        return std::move(*scripted);
    }
    return vehicle_->readFile(path, value1, value2, flag);
}
void EngineFront::connectInterfaces() {
    const auto call = script_->enter(*clock_, "connectInterfaces");
    if (script_->scriptedVoid("connectInterfaces")) {
        return;
    }
    return vehicle_->connectInterfaces();
}
void EngineFront::disconnectInterfaces() {
    const auto call = script_->enter(*clock_, "disconnectInterfaces");
    if (script_->scriptedVoid("disconnectInterfaces")) {
        return;
    }
    return vehicle_->disconnectInterfaces();
}
void EngineFront::executeDoIPBroadcast() {
    const auto call = script_->enter(*clock_, "executeDoIPBroadcast");
    if (script_->scriptedVoid("executeDoIPBroadcast")) {
        return;
    }
    return vehicle_->executeDoIPBroadcast();
}
void EngineFront::refreshProjectList() {
    const auto call = script_->enter(*clock_, "refreshProjectList");
    if (script_->scriptedVoid("refreshProjectList")) {
        return;
    }
    return vehicle_->refreshProjectList();
}
std::vector<std::shared_ptr<VariantIdentResult>>
EngineFront::identifyTargets(const std::vector<std::wstring>& targets) {
    const auto call = script_->enter(*clock_, "identifyTargets", targets);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<VariantIdentResult>>>(
            "identifyTargets")) {
        return std::move(*scripted);
    }
    return vehicle_->identifyTargets(targets);
}
uint64_t EngineFront::identifyTargetsAsync(const std::vector<std::wstring>& targets,
                                           IdentifyTargetsCallback* callback) {
    const auto call = script_->enter(*clock_, "identifyTargetsAsync", targets, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<VariantIdentResult>>>(
            "identifyTargetsAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->identifyTargetsAsync(targets, callback);
}
std::vector<std::shared_ptr<ParameterInfo>>
EngineFront::getActuatorServiceInfos(const std::wstring& text1, const std::wstring& text2) {
    const auto call = script_->enter(*clock_, "getActuatorServiceInfos", text1, text2);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ParameterInfo>>>(
            "getActuatorServiceInfos")) {
        return std::move(*scripted);
    }
    return vehicle_->getActuatorServiceInfos(text1, text2);
}
void EngineFront::releaseSocketBridge(uint64_t bridge) {
    const auto call = script_->enter(*clock_, "releaseSocketBridge", bridge);
    if (script_->scriptedVoid("releaseSocketBridge")) {
        return;
    }
    return vehicle_->releaseSocketBridge(bridge);
}
uint64_t EngineFront::createSocketBridge(uint32_t value1, uint32_t value2) {
    const auto call = script_->enter(*clock_, "createSocketBridge", value1, value2);
    if (auto scripted = script_->scripted<uint64_t>("createSocketBridge")) {
        return std::move(*scripted);
    }
    return vehicle_->createSocketBridge(value1, value2);
}
void EngineFront::reserved70() {
    const auto call = script_->enter(*clock_, "reserved70");
    if (script_->scriptedVoid("reserved70")) {
        return;
    }
    return vehicle_->reserved70();
}
void EngineFront::reserved71() {
    const auto call = script_->enter(*clock_, "reserved71");
    if (script_->scriptedVoid("reserved71")) {
        return;
    }
    return vehicle_->reserved71();
}
void EngineFront::reserved72() {
    const auto call = script_->enter(*clock_, "reserved72");
    if (script_->scriptedVoid("reserved72")) {
        return;
    }
    return vehicle_->reserved72();
}
std::vector<std::shared_ptr<ParameterInfo>>
EngineFront::getSingleMeasurementValueInfos(const std::wstring& target,
                                            const std::vector<std::wstring>& names) {
    const auto call = script_->enter(*clock_, "getSingleMeasurementValueInfos", target, names);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ParameterInfo>>>(
            "getSingleMeasurementValueInfos")) {
        return std::move(*scripted);
    }
    return vehicle_->getSingleMeasurementValueInfos(target, names);
}
std::vector<std::shared_ptr<Target>>
EngineFront::getFilteredTargets(const std::vector<std::shared_ptr<TargetFilter>>& filters) {
    const auto call = script_->enter(*clock_, "getFilteredTargets", filters);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<Target>>>("getFilteredTargets")) {
        return std::move(*scripted);
    }
    return vehicle_->getFilteredTargets(filters);
}
bool EngineFront::isProjectConversionRequired(const std::wstring& projectPath) {
    const auto call = script_->enter(*clock_, "isProjectConversionRequired", projectPath);
    if (auto scripted = script_->scripted<bool>("isProjectConversionRequired")) {
        return std::move(*scripted);
    }
    return vehicle_->isProjectConversionRequired(projectPath);
}
void EngineFront::convertProject(const std::wstring& projectPath) {
    const auto call = script_->enter(*clock_, "convertProject", projectPath);
    if (script_->scriptedVoid("convertProject")) {
        return;
    }
    return vehicle_->convertProject(projectPath);
}
void EngineFront::saveMoxConfiguration() {
    const auto call = script_->enter(*clock_, "saveMoxConfiguration");
    if (script_->scriptedVoid("saveMoxConfiguration")) {
        return;
    }
    return vehicle_->saveMoxConfiguration();
}
uint64_t
EngineFront::startCyclicServices(const std::wstring& target,
                                 const std::vector<std::shared_ptr<ServiceInput>>& services,
                                 uint32_t cycleTime) {
    const auto call = script_->enter(*clock_, "startCyclicServices", target, services, cycleTime);
    if (auto scripted = script_->scripted<uint64_t>("startCyclicServices")) {
        return std::move(*scripted);
    }
    return vehicle_->startCyclicServices(target, services, cycleTime);
}
std::vector<std::shared_ptr<ServiceResult>> EngineFront::getCyclicResults(uint64_t cyclic) {
    const auto call = script_->enter(*clock_, "getCyclicResults", cyclic);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<ServiceResult>>>("getCyclicResults")) {
        return std::move(*scripted);
    }
    return vehicle_->getCyclicResults(cyclic);
}
void EngineFront::stopCyclicServices(uint64_t cyclic) {
    const auto call = script_->enter(*clock_, "stopCyclicServices", cyclic);
    if (script_->scriptedVoid("stopCyclicServices")) {
        return;
    }
    return vehicle_->stopCyclicServices(cyclic);
}
std::shared_ptr<ProjectDetails> EngineFront::getProjectDetails() {
    const auto call = script_->enter(*clock_, "getProjectDetails");
    if (auto scripted = script_->scripted<std::shared_ptr<ProjectDetails>>("getProjectDetails")) {
        return std::move(*scripted);
    }
    return vehicle_->getProjectDetails();
}
void EngineFront::clearLinkCache() {
    const auto call = script_->enter(*clock_, "clearLinkCache");
    if (script_->scriptedVoid("clearLinkCache")) {
        return;
    }
    return vehicle_->clearLinkCache();
}
void EngineFront::addResource(const std::wstring& name,
                              std::shared_ptr<ResourceInformation> resource, uint16_t value) {
    const auto call = script_->enter(*clock_, "addResource", name, resource, value);
    if (script_->scriptedVoid("addResource")) {
        return;
    }
    return vehicle_->addResource(name, resource, value);
}
void EngineFront::removeInterface(const std::wstring& name) {
    const auto call = script_->enter(*clock_, "removeInterface", name);
    if (script_->scriptedVoid("removeInterface")) {
        return;
    }
    return vehicle_->removeInterface(name);
}
std::shared_ptr<InterfaceInformation>
EngineFront::addInterface(std::shared_ptr<InterfaceInformation> interfaceInfo,
                          const std::wstring& text1, const std::wstring& text2,
                          const std::wstring& text3) {
    const auto call = script_->enter(*clock_, "addInterface", interfaceInfo, text1, text2, text3);
    if (auto scripted = script_->scripted<std::shared_ptr<InterfaceInformation>>("addInterface")) {
        return std::move(*scripted);
    }
    return vehicle_->addInterface(interfaceInfo, text1, text2, text3);
}
void EngineFront::removeResource(const std::wstring& name1, const std::wstring& name2) {
    const auto call = script_->enter(*clock_, "removeResource", name1, name2);
    if (script_->scriptedVoid("removeResource")) {
        return;
    }
    return vehicle_->removeResource(name1, name2);
}
std::shared_ptr<SystemProperty> EngineFront::getSystemProperty(const std::wstring& name) {
    const auto call = script_->enter(*clock_, "getSystemProperty", name);
    if (auto scripted = script_->scripted<std::shared_ptr<SystemProperty>>("getSystemProperty")) {
        return std::move(*scripted);
    }
    return vehicle_->getSystemProperty(name);
}
void EngineFront::resetSystemProperty(const std::wstring& name) {
    const auto call = script_->enter(*clock_, "resetSystemProperty", name);
    if (script_->scriptedVoid("resetSystemProperty")) {
        return;
    }
    return vehicle_->resetSystemProperty(name);
}
void EngineFront::setSystemProperty(std::shared_ptr<SystemProperty> property) {
    const auto call = script_->enter(*clock_, "setSystemProperty", property);
    if (script_->scriptedVoid("setSystemProperty")) {
        return;
    }
    return vehicle_->setSystemProperty(property);
}
std::vector<std::wstring>
EngineFront::getVendorModuleNames(std::shared_ptr<InterfaceInformation> interfaceInfo) {
    const auto call = script_->enter(*clock_, "getVendorModuleNames", interfaceInfo);
    if (auto scripted = script_->scripted<std::vector<std::wstring>>("getVendorModuleNames")) {
        return std::move(*scripted);
    }
    return vehicle_->getVendorModuleNames(interfaceInfo);
}
std::vector<std::wstring> EngineFront::getVendorModuleNamesEx(const std::wstring& text) {
    const auto call = script_->enter(*clock_, "getVendorModuleNamesEx", text);
    if (auto scripted = script_->scripted<std::vector<std::wstring>>("getVendorModuleNamesEx")) {
        return std::move(*scripted);
    }
    return vehicle_->getVendorModuleNamesEx(text);
}
std::vector<std::shared_ptr<ServiceResult>>
EngineFront::executeService(const std::wstring& target,
                            const std::vector<std::shared_ptr<ServiceInput>>& services) {
    const auto call = script_->enter(*clock_, "executeService", target, services);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<ServiceResult>>>("executeService")) {
        return std::move(*scripted);
    }
    return vehicle_->executeService(target, services);
}
uint64_t
EngineFront::executeServiceAsync(const std::wstring& target,
                                 const std::vector<std::shared_ptr<ServiceInput>>& services,
                                 ExecuteServiceCallback* callback) {
    const auto call = script_->enter(*clock_, "executeServiceAsync", target, services, callback);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<ServiceResult>>>("executeServiceAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->executeServiceAsync(target, services, callback);
}
std::vector<std::shared_ptr<ModuleDyn>>
EngineFront::detectDynInterfaces(uint32_t value, std::shared_ptr<DynInterfaceDetection> detection) {
    const auto call = script_->enter(*clock_, "detectDynInterfaces", value, detection);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<ModuleDyn>>>("detectDynInterfaces")) {
        return std::move(*scripted);
    }
    return vehicle_->detectDynInterfaces(value, detection);
}
uint64_t EngineFront::detectDynInterfacesAsync(uint32_t value,
                                               std::shared_ptr<DynInterfaceDetection> detection,
                                               DetectDynInterfacesCallback* callback) {
    const auto call =
        script_->enter(*clock_, "detectDynInterfacesAsync", value, detection, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ModuleDyn>>>(
            "detectDynInterfacesAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->detectDynInterfacesAsync(value, detection, callback);
}
void EngineFront::connectDynInterface(const std::wstring& name, bool flag,
                                      std::shared_ptr<DynInterfaceDetection> detection) {
    const auto call = script_->enter(*clock_, "connectDynInterface", name, flag, detection);
    if (script_->scriptedVoid("connectDynInterface")) {
        return;
    }
    return vehicle_->connectDynInterface(name, flag, detection);
}
void EngineFront::disconnectDynInterfaces(const std::vector<std::wstring>& names) {
    const auto call = script_->enter(*clock_, "disconnectDynInterfaces", names);
    if (script_->scriptedVoid("disconnectDynInterfaces")) {
        return;
    }
    return vehicle_->disconnectDynInterfaces(names);
}
void EngineFront::updateCyclicServices(uint64_t cyclic,
                                       const std::vector<std::shared_ptr<ServiceInput>>& services) {
    const auto call = script_->enter(*clock_, "updateCyclicServices", cyclic, services);
    if (script_->scriptedVoid("updateCyclicServices")) {
        return;
    }
    return vehicle_->updateCyclicServices(cyclic, services);
}
void EngineFront::cancelAsyncCalls(const std::vector<uint64_t>& callIds) {
    const auto call = script_->enter(*clock_, "cancelAsyncCalls", callIds);
    if (script_->scriptedVoid("cancelAsyncCalls")) {
        return;
    }
    return vehicle_->cancelAsyncCalls(callIds);
}
std::shared_ptr<DirectoryInfo> EngineFront::getProjectDirectory(bool flag) {
    const auto call = script_->enter(*clock_, "getProjectDirectory", flag);
    if (auto scripted = script_->scripted<std::shared_ptr<DirectoryInfo>>("getProjectDirectory")) {
        return std::move(*scripted);
    }
    return vehicle_->getProjectDirectory(flag);
}
std::shared_ptr<DirectoryInfo> EngineFront::getSelectedProjectDirectory(bool flag) {
    const auto call = script_->enter(*clock_, "getSelectedProjectDirectory", flag);
    if (auto scripted =
            script_->scripted<std::shared_ptr<DirectoryInfo>>("getSelectedProjectDirectory")) {
        return std::move(*scripted);
    }
    return vehicle_->getSelectedProjectDirectory(flag);
}
uint32_t EngineFront::writeFile(const std::wstring& path, const std::vector<uint8_t>& data,
                                uint32_t value, bool flag) {
    const auto call = script_->enter(*clock_, "writeFile", path, data, value, flag);
    if (auto scripted = script_->scripted<uint32_t>("writeFile")) {
        return std::move(*scripted);
    }
    return vehicle_->writeFile(path, data, value, flag);
}
std::shared_ptr<KelError>
EngineFront::deleteFiles(const std::vector<std::shared_ptr<FileInfo>>& files) {
    const auto call = script_->enter(*clock_, "deleteFiles", files);
    if (auto scripted = script_->scripted<std::shared_ptr<KelError>>("deleteFiles")) {
        return std::move(*scripted);
    }
    return vehicle_->deleteFiles(files);
}
std::vector<std::shared_ptr<DirectoryInfo>>
EngineFront::findDirectories(std::shared_ptr<DirectoryInfo> directory, const std::wstring& pattern,
                             bool flag) {
    const auto call = script_->enter(*clock_, "findDirectories", directory, pattern, flag);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<DirectoryInfo>>>("findDirectories")) {
        return std::move(*scripted);
    }
    return vehicle_->findDirectories(directory, pattern, flag);
}
std::vector<std::shared_ptr<FileInfo>>
EngineFront::findFiles(const std::wstring& directory, const std::wstring& pattern, bool flag) {
    const auto call = script_->enter(*clock_, "findFiles", directory, pattern, flag);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<FileInfo>>>("findFiles")) {
        return std::move(*scripted);
    }
    return vehicle_->findFiles(directory, pattern, flag);
}
std::shared_ptr<DirectoryInfo>
EngineFront::initializeDirectoryElements(std::shared_ptr<DirectoryInfo> directory, bool flag) {
    const auto call = script_->enter(*clock_, "initializeDirectoryElements", directory, flag);
    if (auto scripted =
            script_->scripted<std::shared_ptr<DirectoryInfo>>("initializeDirectoryElements")) {
        return std::move(*scripted);
    }
    return vehicle_->initializeDirectoryElements(directory, flag);
}
std::shared_ptr<FileInfo> EngineFront::createFile(std::shared_ptr<DirectoryInfo> parent,
                                                  const std::wstring& name) {
    const auto call = script_->enter(*clock_, "createFile", parent, name);
    if (auto scripted = script_->scripted<std::shared_ptr<FileInfo>>("createFile")) {
        return std::move(*scripted);
    }
    return vehicle_->createFile(parent, name);
}
std::shared_ptr<DirectoryInfo> EngineFront::createDirectory(std::shared_ptr<DirectoryInfo> parent,
                                                            const std::wstring& name) {
    const auto call = script_->enter(*clock_, "createDirectory", parent, name);
    if (auto scripted = script_->scripted<std::shared_ptr<DirectoryInfo>>("createDirectory")) {
        return std::move(*scripted);
    }
    return vehicle_->createDirectory(parent, name);
}
std::shared_ptr<KelError> EngineFront::deleteDirectory(const std::wstring& path) {
    const auto call = script_->enter(*clock_, "deleteDirectory", path);
    if (auto scripted = script_->scripted<std::shared_ptr<KelError>>("deleteDirectory")) {
        return std::move(*scripted);
    }
    return vehicle_->deleteDirectory(path);
}
std::shared_ptr<DirectoryInfo> EngineFront::getTraceDirectory(bool flag) {
    const auto call = script_->enter(*clock_, "getTraceDirectory", flag);
    if (auto scripted = script_->scripted<std::shared_ptr<DirectoryInfo>>("getTraceDirectory")) {
        return std::move(*scripted);
    }
    return vehicle_->getTraceDirectory(flag);
}
std::wstring EngineFront::createVehicleReport(std::shared_ptr<VehicleReportConfig> config) {
    const auto call = script_->enter(*clock_, "createVehicleReport", config);
    if (auto scripted = script_->scripted<std::wstring>("createVehicleReport")) {
        return std::move(*scripted);
    }
    return vehicle_->createVehicleReport(config);
}
std::vector<std::shared_ptr<EcuOrderEntry>> EngineFront::readEcuOrder(const std::wstring& path) {
    const auto call = script_->enter(*clock_, "readEcuOrder", path);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<EcuOrderEntry>>>("readEcuOrder")) {
        return std::move(*scripted);
    }
    return vehicle_->readEcuOrder(path);
}
std::vector<std::shared_ptr<EcuOrderEntry>>
EngineFront::filterEcuOrder(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                            const std::vector<std::wstring>& targets) {
    const auto call = script_->enter(*clock_, "filterEcuOrder", entries, targets);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<EcuOrderEntry>>>("filterEcuOrder")) {
        return std::move(*scripted);
    }
    return vehicle_->filterEcuOrder(entries, targets);
}
std::vector<std::shared_ptr<EcuOrderEntry>> EngineFront::addMissingTargetsToEcuOrder(
    const std::vector<std::shared_ptr<EcuOrderEntry>>& entries) {
    const auto call = script_->enter(*clock_, "addMissingTargetsToEcuOrder", entries);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<EcuOrderEntry>>>(
            "addMissingTargetsToEcuOrder")) {
        return std::move(*scripted);
    }
    return vehicle_->addMissingTargetsToEcuOrder(entries);
}
uint64_t EngineFront::lock() {
    const auto call = script_->enter(*clock_, "lock");
    if (auto scripted = script_->scripted<uint64_t>("lock")) {
        return std::move(*scripted);
    }
    return vehicle_->lock();
}
void EngineFront::unlock(uint64_t lockId) {
    const auto call = script_->enter(*clock_, "unlock", lockId);
    if (script_->scriptedVoid("unlock")) {
        return;
    }
    return vehicle_->unlock(lockId);
}
bool EngineFront::isLocked() {
    const auto call = script_->enter(*clock_, "isLocked");
    if (auto scripted = script_->scripted<bool>("isLocked")) {
        return std::move(*scripted);
    }
    return vehicle_->isLocked();
}
void EngineFront::breakLock() {
    const auto call = script_->enter(*clock_, "breakLock");
    if (script_->scriptedVoid("breakLock")) {
        return;
    }
    return vehicle_->breakLock();
}
void EngineFront::setEthernetPinState(uint8_t state, const std::vector<std::wstring>& interfaces) {
    const auto call = script_->enter(*clock_, "setEthernetPinState", state, interfaces);
    if (script_->scriptedVoid("setEthernetPinState")) {
        return;
    }
    return vehicle_->setEthernetPinState(state, interfaces);
}
uint32_t EngineFront::getEthernetPinState(const std::wstring& interfaceName) {
    const auto call = script_->enter(*clock_, "getEthernetPinState", interfaceName);
    if (auto scripted = script_->scripted<uint32_t>("getEthernetPinState")) {
        return std::move(*scripted);
    }
    return vehicle_->getEthernetPinState(interfaceName);
}
std::vector<std::shared_ptr<ModuleDyn>> EngineFront::detectDynInterfacesEx(uint32_t value) {
    const auto call = script_->enter(*clock_, "detectDynInterfacesEx", value);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<ModuleDyn>>>("detectDynInterfacesEx")) {
        return std::move(*scripted);
    }
    return vehicle_->detectDynInterfacesEx(value);
}
uint64_t EngineFront::detectDynInterfacesExAsync(uint32_t value,
                                                 DetectDynInterfacesExCallback* callback) {
    const auto call = script_->enter(*clock_, "detectDynInterfacesExAsync", value, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ModuleDyn>>>(
            "detectDynInterfacesExAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->detectDynInterfacesExAsync(value, callback);
}
void EngineFront::connectDynInterfaceEx(const std::wstring& name, bool flag) {
    const auto call = script_->enter(*clock_, "connectDynInterfaceEx", name, flag);
    if (script_->scriptedVoid("connectDynInterfaceEx")) {
        return;
    }
    return vehicle_->connectDynInterfaceEx(name, flag);
}
void EngineFront::addUser(const std::wstring& name, const std::wstring& password, uint32_t role) {
    const auto call = script_->enter(*clock_, "addUser", name, Secret{password}, role);
    if (script_->scriptedVoid("addUser")) {
        return;
    }
    return vehicle_->addUser(name, password, role);
}
void EngineFront::removeUser(const std::wstring& name) {
    const auto call = script_->enter(*clock_, "removeUser", name);
    if (script_->scriptedVoid("removeUser")) {
        return;
    }
    return vehicle_->removeUser(name);
}
std::vector<std::shared_ptr<UserInfo>> EngineFront::getUsers() {
    const auto call = script_->enter(*clock_, "getUsers");
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<UserInfo>>>("getUsers")) {
        return std::move(*scripted);
    }
    return vehicle_->getUsers();
}
void EngineFront::logOut(std::shared_ptr<LogInOutConfig> config) {
    const auto call = script_->enter(*clock_, "logOut", config);
    if (script_->scriptedVoid("logOut")) {
        return;
    }
    return vehicle_->logOut(config);
}
void EngineFront::updateUser(const std::wstring& name, const std::wstring& newName,
                             const std::wstring& newPassword, uint32_t role) {
    const auto call =
        script_->enter(*clock_, "updateUser", name, newName, Secret{newPassword}, role);
    if (script_->scriptedVoid("updateUser")) {
        return;
    }
    return vehicle_->updateUser(name, newName, newPassword, role);
}
bool EngineFront::getServerUserManagement() {
    const auto call = script_->enter(*clock_, "getServerUserManagement");
    if (auto scripted = script_->scripted<bool>("getServerUserManagement")) {
        return std::move(*scripted);
    }
    return vehicle_->getServerUserManagement();
}
void EngineFront::setServerUserManagement(bool enabled) {
    const auto call = script_->enter(*clock_, "setServerUserManagement", enabled);
    if (script_->scriptedVoid("setServerUserManagement")) {
        return;
    }
    return vehicle_->setServerUserManagement(enabled);
}
void EngineFront::registerServerHandler(std::shared_ptr<ServerHandler> handler) {
    const auto call = script_->enter(*clock_, "registerServerHandler", handler);
    if (script_->scriptedVoid("registerServerHandler")) {
        return;
    }
    return vehicle_->registerServerHandler(handler);
}
void EngineFront::reserved132() {
    const auto call = script_->enter(*clock_, "reserved132");
    if (script_->scriptedVoid("reserved132")) {
        return;
    }
    return vehicle_->reserved132();
}
void EngineFront::disconnectAllClients() {
    const auto call = script_->enter(*clock_, "disconnectAllClients");
    if (script_->scriptedVoid("disconnectAllClients")) {
        return;
    }
    return vehicle_->disconnectAllClients();
}
bool EngineFront::testSocketBridge(uint64_t bridge) {
    const auto call = script_->enter(*clock_, "testSocketBridge", bridge);
    if (auto scripted = script_->scripted<bool>("testSocketBridge")) {
        return std::move(*scripted);
    }
    return vehicle_->testSocketBridge(bridge);
}
void EngineFront::reserved135() {
    const auto call = script_->enter(*clock_, "reserved135");
    if (script_->scriptedVoid("reserved135")) {
        return;
    }
    return vehicle_->reserved135();
}
std::vector<std::shared_ptr<FileCopyResult>>
EngineFront::copyFiles(std::shared_ptr<FileCopyConfig> config) {
    const auto call = script_->enter(*clock_, "copyFiles", config);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<FileCopyResult>>>("copyFiles")) {
        return std::move(*scripted);
    }
    return vehicle_->copyFiles(config);
}
uint64_t EngineFront::copyFilesAsync(std::shared_ptr<FileCopyConfig> config,
                                     CopyFilesCallback* callback) {
    const auto call = script_->enter(*clock_, "copyFilesAsync", config, callback);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<FileCopyResult>>>("copyFilesAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->copyFilesAsync(config, callback);
}
std::vector<std::shared_ptr<DirectoryCopyResult>>
EngineFront::copyDirectories(std::shared_ptr<DirectoryCopyConfig> config) {
    const auto call = script_->enter(*clock_, "copyDirectories", config);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<DirectoryCopyResult>>>(
            "copyDirectories")) {
        return std::move(*scripted);
    }
    return vehicle_->copyDirectories(config);
}
uint64_t EngineFront::copyDirectoriesAsync(std::shared_ptr<DirectoryCopyConfig> config,
                                           CopyDirectoriesCallback* callback) {
    const auto call = script_->enter(*clock_, "copyDirectoriesAsync", config, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<DirectoryCopyResult>>>(
            "copyDirectoriesAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->copyDirectoriesAsync(config, callback);
}
std::wstring EngineFront::calculateChecksum(const std::wstring& path, int32_t algorithm) {
    const auto call = script_->enter(*clock_, "calculateChecksum", path, algorithm);
    if (auto scripted = script_->scripted<std::wstring>("calculateChecksum")) {
        return std::move(*scripted);
    }
    return vehicle_->calculateChecksum(path, algorithm);
}
void EngineFront::reserved141() {
    const auto call = script_->enter(*clock_, "reserved141");
    if (script_->scriptedVoid("reserved141")) {
        return;
    }
    return vehicle_->reserved141();
}
void EngineFront::reserved142() {
    const auto call = script_->enter(*clock_, "reserved142");
    if (script_->scriptedVoid("reserved142")) {
        return;
    }
    return vehicle_->reserved142();
}
void EngineFront::reserved143() {
    const auto call = script_->enter(*clock_, "reserved143");
    if (script_->scriptedVoid("reserved143")) {
        return;
    }
    return vehicle_->reserved143();
}
void EngineFront::reserved144() {
    const auto call = script_->enter(*clock_, "reserved144");
    if (script_->scriptedVoid("reserved144")) {
        return;
    }
    return vehicle_->reserved144();
}
uint64_t EngineFront::runSequence(const std::wstring& sequence,
                                  const std::vector<std::wstring>& arguments) {
    const auto call = script_->enter(*clock_, "runSequence", sequence, arguments);
    if (auto scripted = script_->scripted<uint64_t>("runSequence")) {
        return std::move(*scripted);
    }
    return vehicle_->runSequence(sequence, arguments);
}
std::shared_ptr<UnlockResult>
EngineFront::unlockVehicle(const std::wstring& target,
                           const std::vector<std::shared_ptr<ServiceInput>>& services) {
    const auto call = script_->enter(*clock_, "unlockVehicle", target, services);
    if (auto scripted = script_->scripted<std::shared_ptr<UnlockResult>>("unlockVehicle")) {
        return std::move(*scripted);
    }
    return vehicle_->unlockVehicle(target, services);
}
uint64_t EngineFront::releaseVehicleUnlock(uint64_t value) {
    const auto call = script_->enter(*clock_, "releaseVehicleUnlock", value);
    if (auto scripted = script_->scripted<uint64_t>("releaseVehicleUnlock")) {
        return std::move(*scripted);
    }
    return vehicle_->releaseVehicleUnlock(value);
}
void EngineFront::cancelSequence(uint64_t run) {
    const auto call = script_->enter(*clock_, "cancelSequence", run);
    if (script_->scriptedVoid("cancelSequence")) {
        return;
    }
    return vehicle_->cancelSequence(run);
}
std::vector<std::shared_ptr<DeviceInfo>> EngineFront::getRegisteredDevices() {
    const auto call = script_->enter(*clock_, "getRegisteredDevices");
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<DeviceInfo>>>("getRegisteredDevices")) {
        return std::move(*scripted);
    }
    return vehicle_->getRegisteredDevices();
}
std::shared_ptr<SystemInfo> EngineFront::getSystemInfo() {
    const auto call = script_->enter(*clock_, "getSystemInfo");
    if (auto scripted = script_->scripted<std::shared_ptr<SystemInfo>>("getSystemInfo")) {
        return std::move(*scripted);
    }
    return vehicle_->getSystemInfo();
}
void EngineFront::applyUpdatePackage(const std::wstring& package) {
    const auto call = script_->enter(*clock_, "applyUpdatePackage", package);
    if (script_->scriptedVoid("applyUpdatePackage")) {
        return;
    }
    return vehicle_->applyUpdatePackage(package);
}
void EngineFront::renameFile(const std::wstring& path, const std::wstring& newName) {
    const auto call = script_->enter(*clock_, "renameFile", path, newName);
    if (script_->scriptedVoid("renameFile")) {
        return;
    }
    return vehicle_->renameFile(path, newName);
}
void EngineFront::onConnectionBroken() {
    const auto call = script_->enter(*clock_, "onConnectionBroken");
    if (script_->scriptedVoid("onConnectionBroken")) {
        return;
    }
    return vehicle_->onConnectionBroken();
}
std::vector<std::shared_ptr<UpdatePackageInfo>> EngineFront::getUpdatePackages() {
    const auto call = script_->enter(*clock_, "getUpdatePackages");
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<UpdatePackageInfo>>>(
            "getUpdatePackages")) {
        return std::move(*scripted);
    }
    return vehicle_->getUpdatePackages();
}
std::vector<std::shared_ptr<UpdatePackageInfo>> EngineFront::getPackagesFromBroker() {
    const auto call = script_->enter(*clock_, "getPackagesFromBroker");
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<UpdatePackageInfo>>>(
            "getPackagesFromBroker")) {
        return std::move(*scripted);
    }
    return vehicle_->getPackagesFromBroker();
}
bool EngineFront::checkUpdatesOnBroker() {
    const auto call = script_->enter(*clock_, "checkUpdatesOnBroker");
    if (auto scripted = script_->scripted<bool>("checkUpdatesOnBroker")) {
        return std::move(*scripted);
    }
    return vehicle_->checkUpdatesOnBroker();
}
bool EngineFront::autoUpdate() {
    const auto call = script_->enter(*clock_, "autoUpdate");
    if (auto scripted = script_->scripted<bool>("autoUpdate")) {
        return std::move(*scripted);
    }
    return vehicle_->autoUpdate();
}
std::shared_ptr<DirectoryInfo> EngineFront::getConfigDirectory(bool flag) {
    const auto call = script_->enter(*clock_, "getConfigDirectory", flag);
    if (auto scripted = script_->scripted<std::shared_ptr<DirectoryInfo>>("getConfigDirectory")) {
        return std::move(*scripted);
    }
    return vehicle_->getConfigDirectory(flag);
}
void EngineFront::reserved159() {
    const auto call = script_->enter(*clock_, "reserved159");
    if (script_->scriptedVoid("reserved159")) {
        return;
    }
    return vehicle_->reserved159();
}
uint64_t EngineFront::createApiTraceMonitor() {
    const auto call = script_->enter(*clock_, "createApiTraceMonitor");
    if (auto scripted = script_->scripted<uint64_t>("createApiTraceMonitor")) {
        return std::move(*scripted);
    }
    return vehicle_->createApiTraceMonitor();
}
std::vector<uint8_t> EngineFront::getApiTraceContent(uint64_t handle, uint32_t value1,
                                                     int32_t value2) {
    const auto call = script_->enter(*clock_, "getApiTraceContent", handle, value1, value2);
    if (auto scripted = script_->scripted<std::vector<uint8_t>>("getApiTraceContent")) {
        return std::move(*scripted);
    }
    return vehicle_->getApiTraceContent(handle, value1, value2);
}
void EngineFront::releaseApiTraceMonitor(uint64_t handle) {
    const auto call = script_->enter(*clock_, "releaseApiTraceMonitor", handle);
    if (script_->scriptedVoid("releaseApiTraceMonitor")) {
        return;
    }
    return vehicle_->releaseApiTraceMonitor(handle);
}
std::vector<std::shared_ptr<NamedItem>> EngineFront::getCurrentVersions() {
    const auto call = script_->enter(*clock_, "getCurrentVersions");
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<NamedItem>>>("getCurrentVersions")) {
        return std::move(*scripted);
    }
    return vehicle_->getCurrentVersions();
}
bool EngineFront::checkUpdateSuccess() {
    const auto call = script_->enter(*clock_, "checkUpdateSuccess");
    if (auto scripted = script_->scripted<bool>("checkUpdateSuccess")) {
        return std::move(*scripted);
    }
    return vehicle_->checkUpdateSuccess();
}
void EngineFront::cleanUpdateTmp() {
    const auto call = script_->enter(*clock_, "cleanUpdateTmp");
    if (script_->scriptedVoid("cleanUpdateTmp")) {
        return;
    }
    return vehicle_->cleanUpdateTmp();
}
std::vector<std::shared_ptr<FlashSessionResult>>
EngineFront::executeFlashSessionsConfig(std::shared_ptr<FlashSessionsConfig> config) {
    const auto call = script_->enter(*clock_, "executeFlashSessionsConfig", config);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<FlashSessionResult>>>(
            "executeFlashSessionsConfig")) {
        return std::move(*scripted);
    }
    return vehicle_->executeFlashSessionsConfig(config);
}
uint64_t
EngineFront::executeFlashSessionsConfigAsync(std::shared_ptr<FlashSessionsConfig> config,
                                             ExecuteFlashSessionsConfigCallback* callback) {
    const auto call = script_->enter(*clock_, "executeFlashSessionsConfigAsync", config, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<FlashSessionResult>>>(
            "executeFlashSessionsConfigAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->executeFlashSessionsConfigAsync(config, callback);
}
std::vector<std::shared_ptr<LoadDatabaseResult>>
EngineFront::loadDatabaseFile(const std::vector<std::wstring>& files) {
    const auto call = script_->enter(*clock_, "loadDatabaseFile", files);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<LoadDatabaseResult>>>(
            "loadDatabaseFile")) {
        return std::move(*scripted);
    }
    return vehicle_->loadDatabaseFile(files);
}
std::vector<std::shared_ptr<FileInfo>>
EngineFront::copyProjectWithFilters(const std::vector<std::shared_ptr<FileFilter>>& filters,
                                    bool flag, std::shared_ptr<FileCopyConfig> config,
                                    const std::wstring& text) {
    const auto call =
        script_->enter(*clock_, "copyProjectWithFilters", filters, flag, config, text);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<FileInfo>>>("copyProjectWithFilters")) {
        return std::move(*scripted);
    }
    return vehicle_->copyProjectWithFilters(filters, flag, config, text);
}
void EngineFront::reserved170() {
    const auto call = script_->enter(*clock_, "reserved170");
    if (script_->scriptedVoid("reserved170")) {
        return;
    }
    return vehicle_->reserved170();
}
void EngineFront::reserved171() {
    const auto call = script_->enter(*clock_, "reserved171");
    if (script_->scriptedVoid("reserved171")) {
        return;
    }
    return vehicle_->reserved171();
}
bool EngineFront::reconnectRemoteServer(uint64_t handle) {
    const auto call = script_->enter(*clock_, "reconnectRemoteServer", handle);
    if (auto scripted = script_->scripted<bool>("reconnectRemoteServer")) {
        return std::move(*scripted);
    }
    return vehicle_->reconnectRemoteServer(handle);
}
std::vector<std::wstring>
EngineFront::filterFiles(const std::vector<std::shared_ptr<FileFilter>>& filters,
                         const std::wstring& text) {
    const auto call = script_->enter(*clock_, "filterFiles", filters, text);
    if (auto scripted = script_->scripted<std::vector<std::wstring>>("filterFiles")) {
        return std::move(*scripted);
    }
    return vehicle_->filterFiles(filters, text);
}
void EngineFront::reserved174() {
    const auto call = script_->enter(*clock_, "reserved174");
    if (script_->scriptedVoid("reserved174")) {
        return;
    }
    return vehicle_->reserved174();
}
std::vector<std::shared_ptr<LoadDatabaseResult>>
EngineFront::unloadDatabaseFile(const std::vector<std::wstring>& files) {
    const auto call = script_->enter(*clock_, "unloadDatabaseFile", files);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<LoadDatabaseResult>>>(
            "unloadDatabaseFile")) {
        return std::move(*scripted);
    }
    return vehicle_->unloadDatabaseFile(files);
}
std::vector<std::shared_ptr<DirectoryInfo>> EngineFront::getPublicDirectories() {
    const auto call = script_->enter(*clock_, "getPublicDirectories");
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<DirectoryInfo>>>(
            "getPublicDirectories")) {
        return std::move(*scripted);
    }
    return vehicle_->getPublicDirectories();
}
std::vector<std::shared_ptr<VehicleUpdateResult>>
EngineFront::updateVehicle(std::shared_ptr<VehicleUpdateConfig> config) {
    const auto call = script_->enter(*clock_, "updateVehicle", config);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<VehicleUpdateResult>>>("updateVehicle")) {
        return std::move(*scripted);
    }
    return vehicle_->updateVehicle(config);
}
uint64_t EngineFront::updateVehicleAsync(std::shared_ptr<VehicleUpdateConfig> config,
                                         UpdateVehicleCallback* callback) {
    const auto call = script_->enter(*clock_, "updateVehicleAsync", config, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<VehicleUpdateResult>>>(
            "updateVehicleAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->updateVehicleAsync(config, callback);
}
std::vector<std::shared_ptr<ServiceResult>> EngineFront::executeServiceInDefaultSession(
    const std::wstring& target, const std::vector<std::shared_ptr<ServiceInput>>& services) {
    const auto call = script_->enter(*clock_, "executeServiceInDefaultSession", target, services);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ServiceResult>>>(
            "executeServiceInDefaultSession")) {
        return std::move(*scripted);
    }
    return vehicle_->executeServiceInDefaultSession(target, services);
}
uint64_t EngineFront::executeServiceInDefaultSessionAsync(
    const std::wstring& target, const std::vector<std::shared_ptr<ServiceInput>>& services,
    ExecuteServiceInDefaultSessionCallback* callback) {
    const auto call =
        script_->enter(*clock_, "executeServiceInDefaultSessionAsync", target, services, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ServiceResult>>>(
            "executeServiceInDefaultSessionAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->executeServiceInDefaultSessionAsync(target, services, callback);
}
std::vector<std::shared_ptr<TargetStatus>>
EngineFront::getTargetStatus(const std::vector<std::wstring>& targets) {
    const auto call = script_->enter(*clock_, "getTargetStatus", targets);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<TargetStatus>>>("getTargetStatus")) {
        return std::move(*scripted);
    }
    return vehicle_->getTargetStatus(targets);
}
std::vector<std::shared_ptr<PhysicalLinksOnModule>>
EngineFront::getPhysicalLinks(const std::vector<std::wstring>& modules) {
    const auto call = script_->enter(*clock_, "getPhysicalLinks", modules);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<PhysicalLinksOnModule>>>(
            "getPhysicalLinks")) {
        return std::move(*scripted);
    }
    return vehicle_->getPhysicalLinks(modules);
}
std::vector<std::shared_ptr<PhysicalLinksOnModule>>
EngineFront::setPhysicalLinks(const std::vector<std::shared_ptr<PhysicalLinksOnModule>>& links) {
    const auto call = script_->enter(*clock_, "setPhysicalLinks", links);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<PhysicalLinksOnModule>>>(
            "setPhysicalLinks")) {
        return std::move(*scripted);
    }
    return vehicle_->setPhysicalLinks(links);
}
bool EngineFront::moveFile(const std::wstring& source, const std::wstring& target) {
    const auto call = script_->enter(*clock_, "moveFile", source, target);
    if (auto scripted = script_->scripted<bool>("moveFile")) {
        return std::move(*scripted);
    }
    return vehicle_->moveFile(source, target);
}
bool EngineFront::moveDirectory(const std::wstring& source, const std::wstring& target) {
    const auto call = script_->enter(*clock_, "moveDirectory", source, target);
    if (auto scripted = script_->scripted<bool>("moveDirectory")) {
        return std::move(*scripted);
    }
    return vehicle_->moveDirectory(source, target);
}
bool EngineFront::pathExists(const std::wstring& path) {
    const auto call = script_->enter(*clock_, "pathExists", path);
    if (auto scripted = script_->scripted<bool>("pathExists")) {
        return std::move(*scripted);
    }
    return vehicle_->pathExists(path);
}
void EngineFront::reserved187() {
    const auto call = script_->enter(*clock_, "reserved187");
    if (script_->scriptedVoid("reserved187")) {
        return;
    }
    return vehicle_->reserved187();
}
std::wstring EngineFront::resolvePath(const std::wstring& path) {
    const auto call = script_->enter(*clock_, "resolvePath", path);
    if (auto scripted = script_->scripted<std::wstring>("resolvePath")) {
        return std::move(*scripted);
    }
    return vehicle_->resolvePath(path);
}
void EngineFront::reserved189() {
    const auto call = script_->enter(*clock_, "reserved189");
    if (script_->scriptedVoid("reserved189")) {
        return;
    }
    return vehicle_->reserved189();
}
void EngineFront::reserved190() {
    const auto call = script_->enter(*clock_, "reserved190");
    if (script_->scriptedVoid("reserved190")) {
        return;
    }
    return vehicle_->reserved190();
}
std::vector<std::shared_ptr<VehicleData>> EngineFront::getVehicleData() {
    const auto call = script_->enter(*clock_, "getVehicleData");
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<VehicleData>>>("getVehicleData")) {
        return std::move(*scripted);
    }
    return vehicle_->getVehicleData();
}
std::vector<std::shared_ptr<ProjectDetails>>
EngineFront::getProjectsDetails(const std::vector<std::wstring>& projectNames) {
    const auto call = script_->enter(*clock_, "getProjectsDetails", projectNames);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<ProjectDetails>>>("getProjectsDetails")) {
        return std::move(*scripted);
    }
    return vehicle_->getProjectsDetails(projectNames);
}
void EngineFront::uploadReport(std::shared_ptr<UploadReportConfiguration> config) {
    const auto call = script_->enter(*clock_, "uploadReport", config);
    if (script_->scriptedVoid("uploadReport")) {
        return;
    }
    return vehicle_->uploadReport(config);
}
std::vector<std::shared_ptr<FileReferenceResult>>
EngineFront::getFileReferences(const std::vector<std::wstring>& files) {
    const auto call = script_->enter(*clock_, "getFileReferences", files);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<FileReferenceResult>>>(
            "getFileReferences")) {
        return std::move(*scripted);
    }
    return vehicle_->getFileReferences(files);
}
void EngineFront::onConnectionClosed() {
    const auto call = script_->enter(*clock_, "onConnectionClosed");
    if (script_->scriptedVoid("onConnectionClosed")) {
        return;
    }
    return vehicle_->onConnectionClosed();
}
bool EngineFront::openTerminal() {
    const auto call = script_->enter(*clock_, "openTerminal");
    if (auto scripted = script_->scripted<bool>("openTerminal")) {
        return std::move(*scripted);
    }
    return vehicle_->openTerminal();
}
void EngineFront::closeTerminal() {
    const auto call = script_->enter(*clock_, "closeTerminal");
    if (script_->scriptedVoid("closeTerminal")) {
        return;
    }
    return vehicle_->closeTerminal();
}
void EngineFront::reserved198() {
    const auto call = script_->enter(*clock_, "reserved198");
    if (script_->scriptedVoid("reserved198")) {
        return;
    }
    return vehicle_->reserved198();
}
void EngineFront::reserved199() {
    const auto call = script_->enter(*clock_, "reserved199");
    if (script_->scriptedVoid("reserved199")) {
        return;
    }
    return vehicle_->reserved199();
}
bool EngineFront::isDirectory(const std::wstring& path) {
    const auto call = script_->enter(*clock_, "isDirectory", path);
    if (auto scripted = script_->scripted<bool>("isDirectory")) {
        return std::move(*scripted);
    }
    return vehicle_->isDirectory(path);
}
std::shared_ptr<DirectoryInfo> EngineFront::getDirectoryInfo(const std::wstring& path, bool flag) {
    const auto call = script_->enter(*clock_, "getDirectoryInfo", path, flag);
    if (auto scripted = script_->scripted<std::shared_ptr<DirectoryInfo>>("getDirectoryInfo")) {
        return std::move(*scripted);
    }
    return vehicle_->getDirectoryInfo(path, flag);
}
std::shared_ptr<FileInfo> EngineFront::getFileInfo(const std::wstring& path) {
    const auto call = script_->enter(*clock_, "getFileInfo", path);
    if (auto scripted = script_->scripted<std::shared_ptr<FileInfo>>("getFileInfo")) {
        return std::move(*scripted);
    }
    return vehicle_->getFileInfo(path);
}
bool EngineFront::isFile(const std::wstring& path) {
    const auto call = script_->enter(*clock_, "isFile", path);
    if (auto scripted = script_->scripted<bool>("isFile")) {
        return std::move(*scripted);
    }
    return vehicle_->isFile(path);
}
std::shared_ptr<WLanSignalData> EngineFront::getWLanSignalData(const std::wstring& interfaceName) {
    const auto call = script_->enter(*clock_, "getWLanSignalData", interfaceName);
    if (auto scripted = script_->scripted<std::shared_ptr<WLanSignalData>>("getWLanSignalData")) {
        return std::move(*scripted);
    }
    return vehicle_->getWLanSignalData(interfaceName);
}
std::vector<std::shared_ptr<KelError>> EngineFront::clearDoIPEcuCollection() {
    const auto call = script_->enter(*clock_, "clearDoIPEcuCollection");
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<KelError>>>("clearDoIPEcuCollection")) {
        return std::move(*scripted);
    }
    return vehicle_->clearDoIPEcuCollection();
}
void EngineFront::setBrokerUrl(const std::wstring& url) {
    const auto call = script_->enter(*clock_, "setBrokerUrl", url);
    if (script_->scriptedVoid("setBrokerUrl")) {
        return;
    }
    return vehicle_->setBrokerUrl(url);
}
std::vector<std::shared_ptr<PathCopyResult>>
EngineFront::copyPath(std::shared_ptr<PathCopyConfig> config) {
    const auto call = script_->enter(*clock_, "copyPath", config);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<PathCopyResult>>>("copyPath")) {
        return std::move(*scripted);
    }
    return vehicle_->copyPath(config);
}
uint64_t EngineFront::copyPathAsync(std::shared_ptr<PathCopyConfig> config,
                                    CopyPathCallback* callback) {
    const auto call = script_->enter(*clock_, "copyPathAsync", config, callback);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<PathCopyResult>>>("copyPathAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->copyPathAsync(config, callback);
}
void EngineFront::reserved209() {
    const auto call = script_->enter(*clock_, "reserved209");
    if (script_->scriptedVoid("reserved209")) {
        return;
    }
    return vehicle_->reserved209();
}
void EngineFront::reserved210() {
    const auto call = script_->enter(*clock_, "reserved210");
    if (script_->scriptedVoid("reserved210")) {
        return;
    }
    return vehicle_->reserved210();
}
void EngineFront::reserved211() {
    const auto call = script_->enter(*clock_, "reserved211");
    if (script_->scriptedVoid("reserved211")) {
        return;
    }
    return vehicle_->reserved211();
}
void EngineFront::reserved212() {
    const auto call = script_->enter(*clock_, "reserved212");
    if (script_->scriptedVoid("reserved212")) {
        return;
    }
    return vehicle_->reserved212();
}
bool EngineFront::thirdPartyLogin(const std::wstring& code) {
    const auto call = script_->enter(*clock_, "thirdPartyLogin", Secret{code});
    if (auto scripted = script_->scripted<bool>("thirdPartyLogin")) {
        return std::move(*scripted);
    }
    return vehicle_->thirdPartyLogin(code);
}
void EngineFront::clearUpdatePackages() {
    const auto call = script_->enter(*clock_, "clearUpdatePackages");
    if (script_->scriptedVoid("clearUpdatePackages")) {
        return;
    }
    return vehicle_->clearUpdatePackages();
}
std::wstring EngineFront::getThirdPartyLoginUrl(const std::wstring& provider) {
    const auto call = script_->enter(*clock_, "getThirdPartyLoginUrl", provider);
    if (auto scripted = script_->scripted<std::wstring>("getThirdPartyLoginUrl")) {
        return std::move(*scripted);
    }
    return vehicle_->getThirdPartyLoginUrl(provider);
}
void EngineFront::selectDynamicProject(const std::wstring& projectName,
                                       const std::vector<std::wstring>& items) {
    const auto call = script_->enter(*clock_, "selectDynamicProject", projectName, items);
    if (script_->scriptedVoid("selectDynamicProject")) {
        return;
    }
    return vehicle_->selectDynamicProject(projectName, items);
}
std::wstring EngineFront::getCertificateByPublicKey(const std::wstring& publicKey,
                                                    const std::wstring& text2,
                                                    const std::wstring& text3,
                                                    const std::wstring& text4) {
    const auto call =
        script_->enter(*clock_, "getCertificateByPublicKey", publicKey, text2, text3, text4);
    if (auto scripted = script_->scripted<std::wstring>("getCertificateByPublicKey")) {
        return std::move(*scripted);
    }
    return vehicle_->getCertificateByPublicKey(publicKey, text2, text3, text4);
}
std::wstring
EngineFront::createCertificateFromCSR(const std::wstring& text1, const std::wstring& text2,
                                      const std::wstring& text3, const std::wstring& text4,
                                      const std::wstring& text5, const std::wstring& text6) {
    const auto call = script_->enter(*clock_, "createCertificateFromCSR", text1, text2, text3,
                                     text4, text5, text6);
    if (auto scripted = script_->scripted<std::wstring>("createCertificateFromCSR")) {
        return std::move(*scripted);
    }
    return vehicle_->createCertificateFromCSR(text1, text2, text3, text4, text5, text6);
}
std::vector<std::wstring> EngineFront::getCertificateChainById(const std::wstring& id,
                                                               const std::wstring& text2,
                                                               const std::wstring& text3) {
    const auto call = script_->enter(*clock_, "getCertificateChainById", id, text2, text3);
    if (auto scripted = script_->scripted<std::vector<std::wstring>>("getCertificateChainById")) {
        return std::move(*scripted);
    }
    return vehicle_->getCertificateChainById(id, text2, text3);
}
std::vector<std::shared_ptr<EcuOrderEntry>> EngineFront::createDefaultECUOrder() {
    const auto call = script_->enter(*clock_, "createDefaultECUOrder");
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<EcuOrderEntry>>>(
            "createDefaultECUOrder")) {
        return std::move(*scripted);
    }
    return vehicle_->createDefaultECUOrder();
}
std::vector<std::shared_ptr<CodingFileResult>>
EngineFront::writeCodingFile(const std::wstring& codingFile,
                             const std::vector<std::wstring>& targets) {
    const auto call = script_->enter(*clock_, "writeCodingFile", codingFile, targets);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<CodingFileResult>>>("writeCodingFile")) {
        return std::move(*scripted);
    }
    return vehicle_->writeCodingFile(codingFile, targets);
}
uint64_t EngineFront::writeCodingFileAsync(const std::wstring& codingFile,
                                           const std::vector<std::wstring>& targets,
                                           WriteCodingFileCallback* callback) {
    const auto call =
        script_->enter(*clock_, "writeCodingFileAsync", codingFile, targets, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<CodingFileResult>>>(
            "writeCodingFileAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->writeCodingFileAsync(codingFile, targets, callback);
}
void EngineFront::writeEcuOrder(const std::wstring& path,
                                const std::vector<std::shared_ptr<EcuOrderEntry>>& entries) {
    const auto call = script_->enter(*clock_, "writeEcuOrder", path, entries);
    if (script_->scriptedVoid("writeEcuOrder")) {
        return;
    }
    return vehicle_->writeEcuOrder(path, entries);
}
std::wstring EngineFront::getEcuOrderFilePath() {
    const auto call = script_->enter(*clock_, "getEcuOrderFilePath");
    if (auto scripted = script_->scripted<std::wstring>("getEcuOrderFilePath")) {
        return std::move(*scripted);
    }
    return vehicle_->getEcuOrderFilePath();
}
std::vector<std::shared_ptr<VehicleUpdateResult>>
EngineFront::performVehicleUpdate(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                                  std::shared_ptr<VehicleUpdateConfig> config) {
    const auto call = script_->enter(*clock_, "performVehicleUpdate", entries, config);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<VehicleUpdateResult>>>(
            "performVehicleUpdate")) {
        return std::move(*scripted);
    }
    return vehicle_->performVehicleUpdate(entries, config);
}
uint64_t
EngineFront::performVehicleUpdateAsync(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                                       std::shared_ptr<VehicleUpdateConfig> config,
                                       PerformVehicleUpdateCallback* callback) {
    const auto call =
        script_->enter(*clock_, "performVehicleUpdateAsync", entries, config, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<VehicleUpdateResult>>>(
            "performVehicleUpdateAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->performVehicleUpdateAsync(entries, config, callback);
}
void EngineFront::triggerAsyncCancels(const std::vector<uint64_t>& callIds) {
    const auto call = script_->enter(*clock_, "triggerAsyncCancels", callIds);
    if (script_->scriptedVoid("triggerAsyncCancels")) {
        return;
    }
    return vehicle_->triggerAsyncCancels(callIds);
}
std::vector<std::shared_ptr<ServiceResult>>
EngineFront::executeSequence(const std::wstring& target, const std::wstring& sequence,
                             const std::vector<std::shared_ptr<ParameterInput>>& parameters) {
    const auto call = script_->enter(*clock_, "executeSequence", target, sequence, parameters);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<ServiceResult>>>("executeSequence")) {
        return std::move(*scripted);
    }
    return vehicle_->executeSequence(target, sequence, parameters);
}
uint64_t
EngineFront::executeSequenceAsync(const std::wstring& target, const std::wstring& sequence,
                                  const std::vector<std::shared_ptr<ParameterInput>>& parameters,
                                  ExecuteSequenceCallback* callback) {
    const auto call =
        script_->enter(*clock_, "executeSequenceAsync", target, sequence, parameters, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ServiceResult>>>(
            "executeSequenceAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->executeSequenceAsync(target, sequence, parameters, callback);
}
void EngineFront::addPublicDirectory(const std::wstring& name, const std::wstring& path) {
    const auto call = script_->enter(*clock_, "addPublicDirectory", name, path);
    if (script_->scriptedVoid("addPublicDirectory")) {
        return;
    }
    return vehicle_->addPublicDirectory(name, path);
}
std::wstring EngineFront::createVehicleUpdateReport(
    const std::vector<std::shared_ptr<VehicleUpdateResult>>& results) {
    const auto call = script_->enter(*clock_, "createVehicleUpdateReport", results);
    if (auto scripted = script_->scripted<std::wstring>("createVehicleUpdateReport")) {
        return std::move(*scripted);
    }
    return vehicle_->createVehicleUpdateReport(results);
}
std::shared_ptr<ParameterInfo>
EngineFront::getParameterInfo(std::shared_ptr<ParameterInfoConfig> config) {
    const auto call = script_->enter(*clock_, "getParameterInfo", config);
    if (auto scripted = script_->scripted<std::shared_ptr<ParameterInfo>>("getParameterInfo")) {
        return std::move(*scripted);
    }
    return vehicle_->getParameterInfo(config);
}
std::vector<std::shared_ptr<EcuConfigurationResult>>
EngineFront::performEcuConfiguration(const std::vector<std::wstring>& targets,
                                     const std::wstring& configuration) {
    const auto call = script_->enter(*clock_, "performEcuConfiguration", targets, configuration);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<EcuConfigurationResult>>>(
            "performEcuConfiguration")) {
        return std::move(*scripted);
    }
    return vehicle_->performEcuConfiguration(targets, configuration);
}
uint64_t EngineFront::performEcuConfigurationAsync(const std::vector<std::wstring>& targets,
                                                   const std::wstring& configuration,
                                                   PerformEcuConfigurationCallback* callback) {
    const auto call =
        script_->enter(*clock_, "performEcuConfigurationAsync", targets, configuration, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<EcuConfigurationResult>>>(
            "performEcuConfigurationAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->performEcuConfigurationAsync(targets, configuration, callback);
}
std::vector<std::shared_ptr<ClearDtcResult>>
EngineFront::clearSpecificDtcs(const std::wstring& target, const std::vector<uint32_t>& dtcCodes) {
    const auto call = script_->enter(*clock_, "clearSpecificDtcs", target, dtcCodes);
    if (auto scripted =
            script_->scripted<std::vector<std::shared_ptr<ClearDtcResult>>>("clearSpecificDtcs")) {
        return std::move(*scripted);
    }
    return vehicle_->clearSpecificDtcs(target, dtcCodes);
}
uint64_t EngineFront::clearSpecificDtcsAsync(const std::wstring& target,
                                             const std::vector<uint32_t>& dtcCodes,
                                             ClearSpecificDtcsCallback* callback) {
    const auto call = script_->enter(*clock_, "clearSpecificDtcsAsync", target, dtcCodes, callback);
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ClearDtcResult>>>(
            "clearSpecificDtcsAsync")) {
        return script_->deliver(callback, std::move(*scripted));
    }
    return vehicle_->clearSpecificDtcsAsync(target, dtcCodes, callback);
}
void EngineFront::startSOVDServer() {
    const auto call = script_->enter(*clock_, "startSOVDServer");
    if (script_->scriptedVoid("startSOVDServer")) {
        return;
    }
    return vehicle_->startSOVDServer();
}
void EngineFront::stopSOVDServer() {
    const auto call = script_->enter(*clock_, "stopSOVDServer");
    if (script_->scriptedVoid("stopSOVDServer")) {
        return;
    }
    return vehicle_->stopSOVDServer();
}
void EngineFront::logIn(std::shared_ptr<LogInOutConfig> config) {
    const auto call = script_->enter(*clock_, "logIn", config);
    if (script_->scriptedVoid("logIn")) {
        return;
    }
    return vehicle_->logIn(config);
}
std::shared_ptr<VehicleUpdateConfig>
EngineFront::createVehicleUpdateConfig(const std::vector<std::wstring>& targets) {
    const auto call = script_->enter(*clock_, "createVehicleUpdateConfig", targets);
    if (auto scripted =
            script_->scripted<std::shared_ptr<VehicleUpdateConfig>>("createVehicleUpdateConfig")) {
        return std::move(*scripted);
    }
    return vehicle_->createVehicleUpdateConfig(targets);
}
std::vector<std::shared_ptr<ProjectConfig>> EngineFront::getProjectConfigurations() {
    const auto call = script_->enter(*clock_, "getProjectConfigurations");
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ProjectConfig>>>(
            "getProjectConfigurations")) {
        return std::move(*scripted);
    }
    return vehicle_->getProjectConfigurations();
}
int32_t EngineFront::getState() {
    const auto call = script_->enter(*clock_, "getState");
    if (auto scripted = script_->scripted<int32_t>("getState")) {
        return std::move(*scripted);
    }
    return vehicle_->getState();
}
std::wstring EngineFront::getVersion() {
    const auto call = script_->enter(*clock_, "getVersion");
    if (auto scripted = script_->scripted<std::wstring>("getVersion")) {
        return std::move(*scripted);
    }
    return vehicle_->getVersion();
}
std::wstring EngineFront::getSelectedProject() {
    const auto call = script_->enter(*clock_, "getSelectedProject");
    if (auto scripted = script_->scripted<std::wstring>("getSelectedProject")) {
        return std::move(*scripted);
    }
    return vehicle_->getSelectedProject();
}
void EngineFront::setSelectedProject(const std::wstring& projectName) {
    const auto call = script_->enter(*clock_, "setSelectedProject", projectName);
    if (script_->scriptedVoid("setSelectedProject")) {
        return;
    }
    return vehicle_->setSelectedProject(projectName);
}
std::shared_ptr<TarnApiConfig> EngineFront::getConfiguration() {
    const auto call = script_->enter(*clock_, "getConfiguration");
    if (auto scripted = script_->scripted<std::shared_ptr<TarnApiConfig>>("getConfiguration")) {
        return std::move(*scripted);
    }
    return vehicle_->getConfiguration();
}
void EngineFront::setConfiguration(std::shared_ptr<TarnApiConfig> config) {
    const auto call = script_->enter(*clock_, "setConfiguration", config);
    if (script_->scriptedVoid("setConfiguration")) {
        return;
    }
    return vehicle_->setConfiguration(config);
}
std::shared_ptr<ServerSettings> EngineFront::getServerSettings() {
    const auto call = script_->enter(*clock_, "getServerSettings");
    if (auto scripted = script_->scripted<std::shared_ptr<ServerSettings>>("getServerSettings")) {
        return std::move(*scripted);
    }
    return vehicle_->getServerSettings();
}
std::shared_ptr<VehicleInformation> EngineFront::getSelectedVehicleInformation() {
    const auto call = script_->enter(*clock_, "getSelectedVehicleInformation");
    if (auto scripted = script_->scripted<std::shared_ptr<VehicleInformation>>(
            "getSelectedVehicleInformation")) {
        return std::move(*scripted);
    }
    return vehicle_->getSelectedVehicleInformation();
}
void EngineFront::setSelectedVehicleInformation(std::shared_ptr<VehicleInformation> information) {
    const auto call = script_->enter(*clock_, "setSelectedVehicleInformation", information);
    if (script_->scriptedVoid("setSelectedVehicleInformation")) {
        return;
    }
    return vehicle_->setSelectedVehicleInformation(information);
}
std::vector<std::shared_ptr<Target>> EngineFront::getTargets() {
    const auto call = script_->enter(*clock_, "getTargets");
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<Target>>>("getTargets")) {
        return std::move(*scripted);
    }
    return vehicle_->getTargets();
}
std::shared_ptr<ProcessInfo> EngineFront::getProcessInfo() {
    const auto call = script_->enter(*clock_, "getProcessInfo");
    if (auto scripted = script_->scripted<std::shared_ptr<ProcessInfo>>("getProcessInfo")) {
        return std::move(*scripted);
    }
    return vehicle_->getProcessInfo();
}
std::shared_ptr<TransmissionInfo> EngineFront::getTransmissionInfo() {
    const auto call = script_->enter(*clock_, "getTransmissionInfo");
    if (auto scripted =
            script_->scripted<std::shared_ptr<TransmissionInfo>>("getTransmissionInfo")) {
        return std::move(*scripted);
    }
    return vehicle_->getTransmissionInfo();
}
uint64_t EngineFront::getHandle() {
    const auto call = script_->enter(*clock_, "getHandle");
    if (auto scripted = script_->scripted<uint64_t>("getHandle")) {
        return std::move(*scripted);
    }
    return vehicle_->getHandle();
}
std::shared_ptr<MoxConfig> EngineFront::getMoxConfiguration() {
    const auto call = script_->enter(*clock_, "getMoxConfiguration");
    if (auto scripted = script_->scripted<std::shared_ptr<MoxConfig>>("getMoxConfiguration")) {
        return std::move(*scripted);
    }
    return vehicle_->getMoxConfiguration();
}
void EngineFront::setMoxConfiguration(std::shared_ptr<MoxConfig> config) {
    const auto call = script_->enter(*clock_, "setMoxConfiguration", config);
    if (script_->scriptedVoid("setMoxConfiguration")) {
        return;
    }
    return vehicle_->setMoxConfiguration(config);
}
std::shared_ptr<InterfaceConfiguration> EngineFront::getInterfaceConfiguration() {
    const auto call = script_->enter(*clock_, "getInterfaceConfiguration");
    if (auto scripted = script_->scripted<std::shared_ptr<InterfaceConfiguration>>(
            "getInterfaceConfiguration")) {
        return std::move(*scripted);
    }
    return vehicle_->getInterfaceConfiguration();
}
void EngineFront::setInterfaceConfiguration(std::shared_ptr<InterfaceConfiguration> config) {
    const auto call = script_->enter(*clock_, "setInterfaceConfiguration", config);
    if (script_->scriptedVoid("setInterfaceConfiguration")) {
        return;
    }
    return vehicle_->setInterfaceConfiguration(config);
}
std::vector<std::wstring> EngineFront::getMonitoringLinks() {
    const auto call = script_->enter(*clock_, "getMonitoringLinks");
    if (auto scripted = script_->scripted<std::vector<std::wstring>>("getMonitoringLinks")) {
        return std::move(*scripted);
    }
    return vehicle_->getMonitoringLinks();
}
std::vector<std::shared_ptr<GlobalProtocolParameterSet>>
EngineFront::getGlobalProtocolParameterSets() {
    const auto call = script_->enter(*clock_, "getGlobalProtocolParameterSets");
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<GlobalProtocolParameterSet>>>(
            "getGlobalProtocolParameterSets")) {
        return std::move(*scripted);
    }
    return vehicle_->getGlobalProtocolParameterSets();
}
void EngineFront::setGlobalProtocolParameterSets(
    const std::vector<std::shared_ptr<GlobalProtocolParameterSet>>& sets) {
    const auto call = script_->enter(*clock_, "setGlobalProtocolParameterSets", sets);
    if (script_->scriptedVoid("setGlobalProtocolParameterSets")) {
        return;
    }
    return vehicle_->setGlobalProtocolParameterSets(sets);
}
std::shared_ptr<StatusInfo> EngineFront::getStatusInfo() {
    const auto call = script_->enter(*clock_, "getStatusInfo");
    if (auto scripted = script_->scripted<std::shared_ptr<StatusInfo>>("getStatusInfo")) {
        return std::move(*scripted);
    }
    return vehicle_->getStatusInfo();
}
std::vector<std::shared_ptr<TargetFilter>> EngineFront::getSessionTargetFilters() {
    const auto call = script_->enter(*clock_, "getSessionTargetFilters");
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<TargetFilter>>>(
            "getSessionTargetFilters")) {
        return std::move(*scripted);
    }
    return vehicle_->getSessionTargetFilters();
}
void EngineFront::setSessionTargetFilters(
    const std::vector<std::shared_ptr<TargetFilter>>& filters) {
    const auto call = script_->enter(*clock_, "setSessionTargetFilters", filters);
    if (script_->scriptedVoid("setSessionTargetFilters")) {
        return;
    }
    return vehicle_->setSessionTargetFilters(filters);
}
std::vector<std::shared_ptr<SupportedInterface>> EngineFront::getSupportedInterfaces() {
    const auto call = script_->enter(*clock_, "getSupportedInterfaces");
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<SupportedInterface>>>(
            "getSupportedInterfaces")) {
        return std::move(*scripted);
    }
    return vehicle_->getSupportedInterfaces();
}
std::vector<std::shared_ptr<InterfaceProvider>> EngineFront::getInterfaceProviders() {
    const auto call = script_->enter(*clock_, "getInterfaceProviders");
    if (auto scripted = script_->scripted<std::vector<std::shared_ptr<InterfaceProvider>>>(
            "getInterfaceProviders")) {
        return std::move(*scripted);
    }
    return vehicle_->getInterfaceProviders();
}
void EngineFront::setInterfaceProviders(
    const std::vector<std::shared_ptr<InterfaceProviderDyn>>& providers) {
    const auto call = script_->enter(*clock_, "setInterfaceProviders", providers);
    if (script_->scriptedVoid("setInterfaceProviders")) {
        return;
    }
    return vehicle_->setInterfaceProviders(providers);
}
std::wstring EngineFront::getCurrentDebugTraceDirectory() {
    const auto call = script_->enter(*clock_, "getCurrentDebugTraceDirectory");
    if (auto scripted = script_->scripted<std::wstring>("getCurrentDebugTraceDirectory")) {
        return std::move(*scripted);
    }
    return vehicle_->getCurrentDebugTraceDirectory();
}
std::shared_ptr<TarnApiServerConfig> EngineFront::getServerConfiguration() {
    const auto call = script_->enter(*clock_, "getServerConfiguration");
    if (auto scripted =
            script_->scripted<std::shared_ptr<TarnApiServerConfig>>("getServerConfiguration")) {
        return std::move(*scripted);
    }
    return vehicle_->getServerConfiguration();
}
uint64_t EngineFront::getCallDuration() {
    const auto call = script_->enter(*clock_, "getCallDuration");
    if (auto scripted = script_->scripted<uint64_t>("getCallDuration")) {
        return std::move(*scripted);
    }
    return vehicle_->getCallDuration();
}
void EngineFront::setStatusText(const std::wstring& text) {
    const auto call = script_->enter(*clock_, "setStatusText", text);
    if (script_->scriptedVoid("setStatusText")) {
        return;
    }
    return vehicle_->setStatusText(text);
}
std::shared_ptr<DoIPParameter> EngineFront::getDefaultDoIPParameter() {
    const auto call = script_->enter(*clock_, "getDefaultDoIPParameter");
    if (auto scripted =
            script_->scripted<std::shared_ptr<DoIPParameter>>("getDefaultDoIPParameter")) {
        return std::move(*scripted);
    }
    return vehicle_->getDefaultDoIPParameter();
}

} // namespace Varno::Kel_cpp::Reference
