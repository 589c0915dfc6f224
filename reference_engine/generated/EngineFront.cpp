// Generated from the interface description by tools/generate.py. Do not edit.

#include "EngineFront.h"

#include <utility>

namespace Varno::Kel_cpp::Reference {

EngineFront::EngineFront(std::shared_ptr<TarnApi> vehicle, std::shared_ptr<Script> script,
                         std::shared_ptr<CallClock> clock)
    : vehicle_(std::move(vehicle)), script_(std::move(script)), clock_(std::move(clock)) {}

void EngineFront::initialize() {
    auto call = script_->enter(*clock_, "initialize");
    try {
        if (script_->scriptedVoid("initialize")) {
            return;
        }
        return vehicle_->initialize();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::end() {
    auto call = script_->enter(*clock_, "end");
    try {
        if (script_->scriptedVoid("end")) {
            return;
        }
        return vehicle_->end();
    } catch (...) {
        call.rethrow();
    }
}
std::wstring EngineFront::startServer(const std::wstring& name) {
    auto call = script_->enter(*clock_, "startServer", name);
    try {
        if (auto scripted = script_->scripted<std::wstring>("startServer")) {
            return std::move(*scripted);
        }
        return vehicle_->startServer(name);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::stopServer(const std::wstring& reason) {
    auto call = script_->enter(*clock_, "stopServer", reason);
    try {
        if (script_->scriptedVoid("stopServer")) {
            return;
        }
        return vehicle_->stopServer(reason);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::restartServer(int32_t endClients) {
    auto call = script_->enter(*clock_, "restartServer", endClients);
    try {
        if (script_->scriptedVoid("restartServer")) {
            return;
        }
        return vehicle_->restartServer(endClients);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<ProjectConfig>
EngineFront::getProjectConfiguration(const std::wstring& projectName) {
    auto call = script_->enter(*clock_, "getProjectConfiguration", projectName);
    try {
        if (auto scripted =
                script_->scripted<std::shared_ptr<ProjectConfig>>("getProjectConfiguration")) {
            return std::move(*scripted);
        }
        return vehicle_->getProjectConfiguration(projectName);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::setProjectConfiguration(const std::wstring& projectName,
                                          std::shared_ptr<ProjectConfig> config) {
    auto call = script_->enter(*clock_, "setProjectConfiguration", projectName, config);
    try {
        if (script_->scriptedVoid("setProjectConfiguration")) {
            return;
        }
        return vehicle_->setProjectConfiguration(projectName, config);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::saveProjectConfiguration(const std::wstring& projectName) {
    auto call = script_->enter(*clock_, "saveProjectConfiguration", projectName);
    try {
        if (script_->scriptedVoid("saveProjectConfiguration")) {
            return;
        }
        return vehicle_->saveProjectConfiguration(projectName);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::createMonitoringLink(const std::wstring& name) {
    auto call = script_->enter(*clock_, "createMonitoringLink", name);
    try {
        if (auto scripted = script_->scripted<uint64_t>("createMonitoringLink")) {
            return std::move(*scripted);
        }
        return vehicle_->createMonitoringLink(name);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<MonitoringItem>>
EngineFront::getMonitoringItems(uint64_t handle, uint32_t value1, int32_t value2) {
    auto call = script_->enter(*clock_, "getMonitoringItems", handle, value1, value2);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<MonitoringItem>>>(
                "getMonitoringItems")) {
            return std::move(*scripted);
        }
        return vehicle_->getMonitoringItems(handle, value1, value2);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::releaseMonitoringLink(uint64_t handle) {
    auto call = script_->enter(*clock_, "releaseMonitoringLink", handle);
    try {
        if (script_->scriptedVoid("releaseMonitoringLink")) {
            return;
        }
        return vehicle_->releaseMonitoringLink(handle);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<PduMonitoringItem>>
EngineFront::getPduMonitoringItems(uint64_t handle, uint32_t value1, int32_t value2) {
    auto call = script_->enter(*clock_, "getPduMonitoringItems", handle, value1, value2);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<PduMonitoringItem>>>(
                "getPduMonitoringItems")) {
            return std::move(*scripted);
        }
        return vehicle_->getPduMonitoringItems(handle, value1, value2);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::createPduMonitor() {
    auto call = script_->enter(*clock_, "createPduMonitor");
    try {
        if (auto scripted = script_->scripted<uint64_t>("createPduMonitor")) {
            return std::move(*scripted);
        }
        return vehicle_->createPduMonitor();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::saveConfiguration() {
    auto call = script_->enter(*clock_, "saveConfiguration");
    try {
        if (script_->scriptedVoid("saveConfiguration")) {
            return;
        }
        return vehicle_->saveConfiguration();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::releasePduMonitor(uint64_t handle) {
    auto call = script_->enter(*clock_, "releasePduMonitor", handle);
    try {
        if (script_->scriptedVoid("releasePduMonitor")) {
            return;
        }
        return vehicle_->releasePduMonitor(handle);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<VariantIdentResult>> EngineFront::identifyAllTargets() {
    auto call = script_->enter(*clock_, "identifyAllTargets");
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<VariantIdentResult>>>(
                "identifyAllTargets")) {
            return std::move(*scripted);
        }
        return vehicle_->identifyAllTargets();
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::identifyAllTargetsAsync(IdentifyAllTargetsCallback* callback) {
    auto call = script_->enter(*clock_, "identifyAllTargetsAsync", callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<VariantIdentResult>>>(
                "identifyAllTargetsAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->identifyAllTargetsAsync(callback);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ReadDataResult>>
EngineFront::readIdentificationValues(const std::vector<std::wstring>& targets) {
    auto call = script_->enter(*clock_, "readIdentificationValues", targets);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ReadDataResult>>>(
                "readIdentificationValues")) {
            return std::move(*scripted);
        }
        return vehicle_->readIdentificationValues(targets);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::readIdentificationValuesAsync(const std::vector<std::wstring>& targets,
                                                    ReadIdentificationValuesCallback* callback) {
    auto call = script_->enter(*clock_, "readIdentificationValuesAsync", targets, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ReadDataResult>>>(
                "readIdentificationValuesAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->readIdentificationValuesAsync(targets, callback);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ReadDataResult>>
EngineFront::readDataByIdentifiers(const std::wstring& target,
                                   const std::vector<std::wstring>& identifiers) {
    auto call = script_->enter(*clock_, "readDataByIdentifiers", target, identifiers);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ReadDataResult>>>(
                "readDataByIdentifiers")) {
            return std::move(*scripted);
        }
        return vehicle_->readDataByIdentifiers(target, identifiers);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<VariantIdentResult> EngineFront::identifyTarget(const std::wstring& target) {
    auto call = script_->enter(*clock_, "identifyTarget", target);
    try {
        if (auto scripted =
                script_->scripted<std::shared_ptr<VariantIdentResult>>("identifyTarget")) {
            return std::move(*scripted);
        }
        return vehicle_->identifyTarget(target);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ReadDtcResult>>
EngineFront::readDtcs(const std::vector<std::wstring>& targets,
                      std::shared_ptr<DtcReadConfig> config) {
    auto call = script_->enter(*clock_, "readDtcs", targets, config);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<ReadDtcResult>>>("readDtcs")) {
            return std::move(*scripted);
        }
        return vehicle_->readDtcs(targets, config);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::readDtcsAsync(const std::vector<std::wstring>& targets,
                                    std::shared_ptr<DtcReadConfig> config,
                                    ReadDtcsCallback* callback) {
    auto call = script_->enter(*clock_, "readDtcsAsync", targets, config, callback);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<ReadDtcResult>>>("readDtcsAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->readDtcsAsync(targets, config, callback);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<SupportedDtcResult>>
EngineFront::readSupportedDtcs(const std::vector<std::wstring>& targets,
                               std::shared_ptr<DtcReadConfig> config) {
    auto call = script_->enter(*clock_, "readSupportedDtcs", targets, config);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<SupportedDtcResult>>>(
                "readSupportedDtcs")) {
            return std::move(*scripted);
        }
        return vehicle_->readSupportedDtcs(targets, config);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::readSupportedDtcsAsync(const std::vector<std::wstring>& targets,
                                             std::shared_ptr<DtcReadConfig> config,
                                             ReadSupportedDtcsCallback* callback) {
    auto call = script_->enter(*clock_, "readSupportedDtcsAsync", targets, config, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<SupportedDtcResult>>>(
                "readSupportedDtcsAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->readSupportedDtcsAsync(targets, config, callback);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ClearDtcResult>>
EngineFront::clearAllDtcs(const std::vector<std::wstring>& targets) {
    auto call = script_->enter(*clock_, "clearAllDtcs", targets);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<ClearDtcResult>>>("clearAllDtcs")) {
            return std::move(*scripted);
        }
        return vehicle_->clearAllDtcs(targets);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::clearAllDtcsAsync(const std::vector<std::wstring>& targets,
                                        ClearAllDtcsCallback* callback) {
    auto call = script_->enter(*clock_, "clearAllDtcsAsync", targets, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ClearDtcResult>>>(
                "clearAllDtcsAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->clearAllDtcsAsync(targets, callback);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ServiceInfo>>
EngineFront::getServiceInfos(const std::wstring& text1, const std::wstring& text2,
                             const std::vector<std::wstring>& names, int32_t value) {
    auto call = script_->enter(*clock_, "getServiceInfos", text1, text2, names, value);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<ServiceInfo>>>("getServiceInfos")) {
            return std::move(*scripted);
        }
        return vehicle_->getServiceInfos(text1, text2, names, value);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<FlashSessionInfo>>
EngineFront::getFlashSessionInfos(const std::wstring& target) {
    auto call = script_->enter(*clock_, "getFlashSessionInfos", target);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<FlashSessionInfo>>>(
                "getFlashSessionInfos")) {
            return std::move(*scripted);
        }
        return vehicle_->getFlashSessionInfos(target);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<FlashSessionResult>>
EngineFront::executeFlashSessions(const std::wstring& target,
                                  const std::vector<std::wstring>& sessions) {
    auto call = script_->enter(*clock_, "executeFlashSessions", target, sessions);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<FlashSessionResult>>>(
                "executeFlashSessions")) {
            return std::move(*scripted);
        }
        return vehicle_->executeFlashSessions(target, sessions);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::executeFlashSessionsAsync(const std::wstring& target,
                                                const std::vector<std::wstring>& sessions,
                                                ExecuteFlashSessionsCallback* callback) {
    auto call = script_->enter(*clock_, "executeFlashSessionsAsync", target, sessions, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<FlashSessionResult>>>(
                "executeFlashSessionsAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->executeFlashSessionsAsync(target, sessions, callback);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<CodingStringResult>>
EngineFront::readCodingStrings(const std::vector<std::wstring>& targets) {
    auto call = script_->enter(*clock_, "readCodingStrings", targets);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<CodingStringResult>>>(
                "readCodingStrings")) {
            return std::move(*scripted);
        }
        return vehicle_->readCodingStrings(targets);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::readCodingStringsAsync(const std::vector<std::wstring>& targets,
                                             ReadCodingStringsCallback* callback) {
    auto call = script_->enter(*clock_, "readCodingStringsAsync", targets, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<CodingStringResult>>>(
                "readCodingStringsAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->readCodingStringsAsync(targets, callback);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<QuickTestResult>>
EngineFront::performQuickTest(const std::vector<std::wstring>& targets,
                              std::shared_ptr<DtcReadConfig> config) {
    auto call = script_->enter(*clock_, "performQuickTest", targets, config);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<QuickTestResult>>>(
                "performQuickTest")) {
            return std::move(*scripted);
        }
        return vehicle_->performQuickTest(targets, config);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::performQuickTestAsync(const std::vector<std::wstring>& targets,
                                            std::shared_ptr<DtcReadConfig> config,
                                            PerformQuickTestCallback* callback) {
    auto call = script_->enter(*clock_, "performQuickTestAsync", targets, config, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<QuickTestResult>>>(
                "performQuickTestAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->performQuickTestAsync(targets, config, callback);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<TarnApi> EngineFront::connectRemoteServer(const std::wstring& address) {
    auto call = script_->enter(*clock_, "connectRemoteServer", address);
    try {
        return vehicle_->connectRemoteServer(address);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ParameterInfo>>
EngineFront::getMeasurementValueInfos(const std::wstring& target) {
    auto call = script_->enter(*clock_, "getMeasurementValueInfos", target);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ParameterInfo>>>(
                "getMeasurementValueInfos")) {
            return std::move(*scripted);
        }
        return vehicle_->getMeasurementValueInfos(target);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::registerMeasurementValues(const std::wstring& target,
                                                const std::vector<std::wstring>& names) {
    auto call = script_->enter(*clock_, "registerMeasurementValues", target, names);
    try {
        if (auto scripted = script_->scripted<uint64_t>("registerMeasurementValues")) {
            return std::move(*scripted);
        }
        return vehicle_->registerMeasurementValues(target, names);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ReadDataResult>>
EngineFront::getMeasurementValues(uint64_t registration) {
    auto call = script_->enter(*clock_, "getMeasurementValues", registration);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ReadDataResult>>>(
                "getMeasurementValues")) {
            return std::move(*scripted);
        }
        return vehicle_->getMeasurementValues(registration);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::unregisterMeasurementValues(uint64_t registration) {
    auto call = script_->enter(*clock_, "unregisterMeasurementValues", registration);
    try {
        if (script_->scriptedVoid("unregisterMeasurementValues")) {
            return;
        }
        return vehicle_->unregisterMeasurementValues(registration);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ParameterInfo>>
EngineFront::getIdentificationValueInfos(const std::wstring& target) {
    auto call = script_->enter(*clock_, "getIdentificationValueInfos", target);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ParameterInfo>>>(
                "getIdentificationValueInfos")) {
            return std::move(*scripted);
        }
        return vehicle_->getIdentificationValueInfos(target);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::cancelAllAsyncCalls() {
    auto call = script_->enter(*clock_, "cancelAllAsyncCalls");
    try {
        if (script_->scriptedVoid("cancelAllAsyncCalls")) {
            return;
        }
        return vehicle_->cancelAllAsyncCalls();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<uint8_t> EngineFront::createSeed(uint32_t value1, uint32_t value2) {
    auto call = script_->enter(*clock_, "createSeed", value1, value2);
    try {
        if (auto scripted = script_->scripted<std::vector<uint8_t>>("createSeed")) {
            return std::move(*scripted);
        }
        return vehicle_->createSeed(value1, value2);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::sendKey(const std::vector<uint8_t>& key) {
    auto call = script_->enter(*clock_, "sendKey", key);
    try {
        if (script_->scriptedVoid("sendKey")) {
            return;
        }
        return vehicle_->sendKey(key);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::openEventChannel() {
    auto call = script_->enter(*clock_, "openEventChannel");
    try {
        if (auto scripted = script_->scripted<uint64_t>("openEventChannel")) {
            return std::move(*scripted);
        }
        return vehicle_->openEventChannel();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::closeEventChannel(uint64_t channel) {
    auto call = script_->enter(*clock_, "closeEventChannel", channel);
    try {
        if (script_->scriptedVoid("closeEventChannel")) {
            return;
        }
        return vehicle_->closeEventChannel(channel);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<EventReport> EngineFront::getCurrentEvents(uint64_t channel, uint32_t limit) {
    auto call = script_->enter(*clock_, "getCurrentEvents", channel, limit);
    try {
        if (auto scripted = script_->scripted<std::shared_ptr<EventReport>>("getCurrentEvents")) {
            return std::move(*scripted);
        }
        return vehicle_->getCurrentEvents(channel, limit);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::openTraceFileMonitoringLink(uint64_t handle, const std::wstring& traceFile) {
    auto call = script_->enter(*clock_, "openTraceFileMonitoringLink", handle, traceFile);
    try {
        if (script_->scriptedVoid("openTraceFileMonitoringLink")) {
            return;
        }
        return vehicle_->openTraceFileMonitoringLink(handle, traceFile);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::startTraceFileMonitoringLink(uint64_t handle) {
    auto call = script_->enter(*clock_, "startTraceFileMonitoringLink", handle);
    try {
        if (script_->scriptedVoid("startTraceFileMonitoringLink")) {
            return;
        }
        return vehicle_->startTraceFileMonitoringLink(handle);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::stopTraceFileMonitoringLink(uint64_t handle) {
    auto call = script_->enter(*clock_, "stopTraceFileMonitoringLink", handle);
    try {
        if (script_->scriptedVoid("stopTraceFileMonitoringLink")) {
            return;
        }
        return vehicle_->stopTraceFileMonitoringLink(handle);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::closeTraceFileMonitoringLink(uint64_t handle) {
    auto call = script_->enter(*clock_, "closeTraceFileMonitoringLink", handle);
    try {
        if (script_->scriptedVoid("closeTraceFileMonitoringLink")) {
            return;
        }
        return vehicle_->closeTraceFileMonitoringLink(handle);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::saveInterfaceConfiguration() {
    auto call = script_->enter(*clock_, "saveInterfaceConfiguration");
    try {
        if (script_->scriptedVoid("saveInterfaceConfiguration")) {
            return;
        }
        return vehicle_->saveInterfaceConfiguration();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ScanInterfaceResult>>
EngineFront::scanInterfaceConnection(const std::vector<std::wstring>& interfaces) {
    auto call = script_->enter(*clock_, "scanInterfaceConnection", interfaces);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ScanInterfaceResult>>>(
                "scanInterfaceConnection")) {
            return std::move(*scripted);
        }
        return vehicle_->scanInterfaceConnection(interfaces);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::scanInterfaceConnectionAsync(const std::vector<std::wstring>& interfaces,
                                                   ScanInterfaceConnectionCallback* callback) {
    auto call = script_->enter(*clock_, "scanInterfaceConnectionAsync", interfaces, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ScanInterfaceResult>>>(
                "scanInterfaceConnectionAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->scanInterfaceConnectionAsync(interfaces, callback);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::disconnect() {
    auto call = script_->enter(*clock_, "disconnect");
    try {
        if (script_->scriptedVoid("disconnect")) {
            return;
        }
        return vehicle_->disconnect();
    } catch (...) {
        call.rethrow();
    }
}
std::wstring EngineFront::getInterfaceLongName(const std::wstring& name) {
    auto call = script_->enter(*clock_, "getInterfaceLongName", name);
    try {
        if (auto scripted = script_->scripted<std::wstring>("getInterfaceLongName")) {
            return std::move(*scripted);
        }
        return vehicle_->getInterfaceLongName(name);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ReadDataResult>>
EngineFront::readMeasurementValues(const std::wstring& target,
                                   const std::vector<std::wstring>& names) {
    auto call = script_->enter(*clock_, "readMeasurementValues", target, names);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ReadDataResult>>>(
                "readMeasurementValues")) {
            return std::move(*scripted);
        }
        return vehicle_->readMeasurementValues(target, names);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::readMeasurementValuesAsync(const std::wstring& target,
                                                 const std::vector<std::wstring>& names,
                                                 ReadMeasurementValuesCallback* callback) {
    auto call = script_->enter(*clock_, "readMeasurementValuesAsync", target, names, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ReadDataResult>>>(
                "readMeasurementValuesAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->readMeasurementValuesAsync(target, names, callback);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<uint8_t> EngineFront::readFile(const std::wstring& path, uint64_t value1,
                                           uint32_t value2, bool flag) {
    auto call = script_->enter(*clock_, "readFile", path, value1, value2, flag);
    try {
        if (auto scripted = script_->scripted<std::vector<uint8_t>>("readFile")) {
            return std::move(*scripted);
        }
        return vehicle_->readFile(path, value1, value2, flag);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::connectInterfaces() {
    auto call = script_->enter(*clock_, "connectInterfaces");
    try {
        if (script_->scriptedVoid("connectInterfaces")) {
            return;
        }
        return vehicle_->connectInterfaces();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::disconnectInterfaces() {
    auto call = script_->enter(*clock_, "disconnectInterfaces");
    try {
        if (script_->scriptedVoid("disconnectInterfaces")) {
            return;
        }
        return vehicle_->disconnectInterfaces();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::executeDoIPBroadcast() {
    auto call = script_->enter(*clock_, "executeDoIPBroadcast");
    try {
        if (script_->scriptedVoid("executeDoIPBroadcast")) {
            return;
        }
        return vehicle_->executeDoIPBroadcast();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::refreshProjectList() {
    auto call = script_->enter(*clock_, "refreshProjectList");
    try {
        if (script_->scriptedVoid("refreshProjectList")) {
            return;
        }
        return vehicle_->refreshProjectList();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<VariantIdentResult>>
EngineFront::identifyTargets(const std::vector<std::wstring>& targets) {
    auto call = script_->enter(*clock_, "identifyTargets", targets);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<VariantIdentResult>>>(
                "identifyTargets")) {
            return std::move(*scripted);
        }
        return vehicle_->identifyTargets(targets);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::identifyTargetsAsync(const std::vector<std::wstring>& targets,
                                           IdentifyTargetsCallback* callback) {
    auto call = script_->enter(*clock_, "identifyTargetsAsync", targets, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<VariantIdentResult>>>(
                "identifyTargetsAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->identifyTargetsAsync(targets, callback);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ParameterInfo>>
EngineFront::getActuatorServiceInfos(const std::wstring& text1, const std::wstring& text2) {
    auto call = script_->enter(*clock_, "getActuatorServiceInfos", text1, text2);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ParameterInfo>>>(
                "getActuatorServiceInfos")) {
            return std::move(*scripted);
        }
        return vehicle_->getActuatorServiceInfos(text1, text2);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::releaseSocketBridge(uint64_t bridge) {
    auto call = script_->enter(*clock_, "releaseSocketBridge", bridge);
    try {
        if (script_->scriptedVoid("releaseSocketBridge")) {
            return;
        }
        return vehicle_->releaseSocketBridge(bridge);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::createSocketBridge(uint32_t value1, uint32_t value2) {
    auto call = script_->enter(*clock_, "createSocketBridge", value1, value2);
    try {
        if (auto scripted = script_->scripted<uint64_t>("createSocketBridge")) {
            return std::move(*scripted);
        }
        return vehicle_->createSocketBridge(value1, value2);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved70() {
    auto call = script_->enter(*clock_, "reserved70");
    try {
        if (script_->scriptedVoid("reserved70")) {
            return;
        }
        return vehicle_->reserved70();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved71() {
    auto call = script_->enter(*clock_, "reserved71");
    try {
        if (script_->scriptedVoid("reserved71")) {
            return;
        }
        return vehicle_->reserved71();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved72() {
    auto call = script_->enter(*clock_, "reserved72");
    try {
        if (script_->scriptedVoid("reserved72")) {
            return;
        }
        return vehicle_->reserved72();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ParameterInfo>>
EngineFront::getSingleMeasurementValueInfos(const std::wstring& target,
                                            const std::vector<std::wstring>& names) {
    auto call = script_->enter(*clock_, "getSingleMeasurementValueInfos", target, names);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ParameterInfo>>>(
                "getSingleMeasurementValueInfos")) {
            return std::move(*scripted);
        }
        return vehicle_->getSingleMeasurementValueInfos(target, names);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<Target>>
EngineFront::getFilteredTargets(const std::vector<std::shared_ptr<TargetFilter>>& filters) {
    auto call = script_->enter(*clock_, "getFilteredTargets", filters);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<Target>>>("getFilteredTargets")) {
            return std::move(*scripted);
        }
        return vehicle_->getFilteredTargets(filters);
    } catch (...) {
        call.rethrow();
    }
}
bool EngineFront::isProjectConversionRequired(const std::wstring& projectPath) {
    auto call = script_->enter(*clock_, "isProjectConversionRequired", projectPath);
    try {
        if (auto scripted = script_->scripted<bool>("isProjectConversionRequired")) {
            return std::move(*scripted);
        }
        return vehicle_->isProjectConversionRequired(projectPath);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::convertProject(const std::wstring& projectPath) {
    auto call = script_->enter(*clock_, "convertProject", projectPath);
    try {
        if (script_->scriptedVoid("convertProject")) {
            return;
        }
        return vehicle_->convertProject(projectPath);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::saveMoxConfiguration() {
    auto call = script_->enter(*clock_, "saveMoxConfiguration");
    try {
        if (script_->scriptedVoid("saveMoxConfiguration")) {
            return;
        }
        return vehicle_->saveMoxConfiguration();
    } catch (...) {
        call.rethrow();
    }
}
uint64_t
EngineFront::startCyclicServices(const std::wstring& target,
                                 const std::vector<std::shared_ptr<ServiceInput>>& services,
                                 uint32_t cycleTime) {
    auto call = script_->enter(*clock_, "startCyclicServices", target, services, cycleTime);
    try {
        if (auto scripted = script_->scripted<uint64_t>("startCyclicServices")) {
            return std::move(*scripted);
        }
        return vehicle_->startCyclicServices(target, services, cycleTime);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ServiceResult>> EngineFront::getCyclicResults(uint64_t cyclic) {
    auto call = script_->enter(*clock_, "getCyclicResults", cyclic);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ServiceResult>>>(
                "getCyclicResults")) {
            return std::move(*scripted);
        }
        return vehicle_->getCyclicResults(cyclic);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::stopCyclicServices(uint64_t cyclic) {
    auto call = script_->enter(*clock_, "stopCyclicServices", cyclic);
    try {
        if (script_->scriptedVoid("stopCyclicServices")) {
            return;
        }
        return vehicle_->stopCyclicServices(cyclic);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<ProjectDetails> EngineFront::getProjectDetails() {
    auto call = script_->enter(*clock_, "getProjectDetails");
    try {
        if (auto scripted =
                script_->scripted<std::shared_ptr<ProjectDetails>>("getProjectDetails")) {
            return std::move(*scripted);
        }
        return vehicle_->getProjectDetails();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::clearLinkCache() {
    auto call = script_->enter(*clock_, "clearLinkCache");
    try {
        if (script_->scriptedVoid("clearLinkCache")) {
            return;
        }
        return vehicle_->clearLinkCache();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::addResource(const std::wstring& name,
                              std::shared_ptr<ResourceInformation> resource, uint16_t value) {
    auto call = script_->enter(*clock_, "addResource", name, resource, value);
    try {
        if (script_->scriptedVoid("addResource")) {
            return;
        }
        return vehicle_->addResource(name, resource, value);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::removeInterface(const std::wstring& name) {
    auto call = script_->enter(*clock_, "removeInterface", name);
    try {
        if (script_->scriptedVoid("removeInterface")) {
            return;
        }
        return vehicle_->removeInterface(name);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<InterfaceInformation>
EngineFront::addInterface(std::shared_ptr<InterfaceInformation> interfaceInfo,
                          const std::wstring& text1, const std::wstring& text2,
                          const std::wstring& text3) {
    auto call = script_->enter(*clock_, "addInterface", interfaceInfo, text1, text2, text3);
    try {
        if (auto scripted =
                script_->scripted<std::shared_ptr<InterfaceInformation>>("addInterface")) {
            return std::move(*scripted);
        }
        return vehicle_->addInterface(interfaceInfo, text1, text2, text3);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::removeResource(const std::wstring& name1, const std::wstring& name2) {
    auto call = script_->enter(*clock_, "removeResource", name1, name2);
    try {
        if (script_->scriptedVoid("removeResource")) {
            return;
        }
        return vehicle_->removeResource(name1, name2);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<SystemProperty> EngineFront::getSystemProperty(const std::wstring& name) {
    auto call = script_->enter(*clock_, "getSystemProperty", name);
    try {
        if (auto scripted =
                script_->scripted<std::shared_ptr<SystemProperty>>("getSystemProperty")) {
            return std::move(*scripted);
        }
        return vehicle_->getSystemProperty(name);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::resetSystemProperty(const std::wstring& name) {
    auto call = script_->enter(*clock_, "resetSystemProperty", name);
    try {
        if (script_->scriptedVoid("resetSystemProperty")) {
            return;
        }
        return vehicle_->resetSystemProperty(name);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::setSystemProperty(std::shared_ptr<SystemProperty> property) {
    auto call = script_->enter(*clock_, "setSystemProperty", property);
    try {
        if (script_->scriptedVoid("setSystemProperty")) {
            return;
        }
        return vehicle_->setSystemProperty(property);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::wstring>
EngineFront::getVendorModuleNames(std::shared_ptr<InterfaceInformation> interfaceInfo) {
    auto call = script_->enter(*clock_, "getVendorModuleNames", interfaceInfo);
    try {
        if (auto scripted = script_->scripted<std::vector<std::wstring>>("getVendorModuleNames")) {
            return std::move(*scripted);
        }
        return vehicle_->getVendorModuleNames(interfaceInfo);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::wstring> EngineFront::getVendorModuleNamesEx(const std::wstring& text) {
    auto call = script_->enter(*clock_, "getVendorModuleNamesEx", text);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::wstring>>("getVendorModuleNamesEx")) {
            return std::move(*scripted);
        }
        return vehicle_->getVendorModuleNamesEx(text);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ServiceResult>>
EngineFront::executeService(const std::wstring& target,
                            const std::vector<std::shared_ptr<ServiceInput>>& services) {
    auto call = script_->enter(*clock_, "executeService", target, services);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<ServiceResult>>>("executeService")) {
            return std::move(*scripted);
        }
        return vehicle_->executeService(target, services);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t
EngineFront::executeServiceAsync(const std::wstring& target,
                                 const std::vector<std::shared_ptr<ServiceInput>>& services,
                                 ExecuteServiceCallback* callback) {
    auto call = script_->enter(*clock_, "executeServiceAsync", target, services, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ServiceResult>>>(
                "executeServiceAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->executeServiceAsync(target, services, callback);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ModuleDyn>>
EngineFront::detectDynInterfaces(uint32_t value, std::shared_ptr<DynInterfaceDetection> detection) {
    auto call = script_->enter(*clock_, "detectDynInterfaces", value, detection);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<ModuleDyn>>>("detectDynInterfaces")) {
            return std::move(*scripted);
        }
        return vehicle_->detectDynInterfaces(value, detection);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::detectDynInterfacesAsync(uint32_t value,
                                               std::shared_ptr<DynInterfaceDetection> detection,
                                               DetectDynInterfacesCallback* callback) {
    auto call = script_->enter(*clock_, "detectDynInterfacesAsync", value, detection, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ModuleDyn>>>(
                "detectDynInterfacesAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->detectDynInterfacesAsync(value, detection, callback);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::connectDynInterface(const std::wstring& name, bool flag,
                                      std::shared_ptr<DynInterfaceDetection> detection) {
    auto call = script_->enter(*clock_, "connectDynInterface", name, flag, detection);
    try {
        if (script_->scriptedVoid("connectDynInterface")) {
            return;
        }
        return vehicle_->connectDynInterface(name, flag, detection);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::disconnectDynInterfaces(const std::vector<std::wstring>& names) {
    auto call = script_->enter(*clock_, "disconnectDynInterfaces", names);
    try {
        if (script_->scriptedVoid("disconnectDynInterfaces")) {
            return;
        }
        return vehicle_->disconnectDynInterfaces(names);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::updateCyclicServices(uint64_t cyclic,
                                       const std::vector<std::shared_ptr<ServiceInput>>& services) {
    auto call = script_->enter(*clock_, "updateCyclicServices", cyclic, services);
    try {
        if (script_->scriptedVoid("updateCyclicServices")) {
            return;
        }
        return vehicle_->updateCyclicServices(cyclic, services);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::cancelAsyncCalls(const std::vector<uint64_t>& callIds) {
    auto call = script_->enter(*clock_, "cancelAsyncCalls", callIds);
    try {
        if (script_->scriptedVoid("cancelAsyncCalls")) {
            return;
        }
        return vehicle_->cancelAsyncCalls(callIds);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<DirectoryInfo> EngineFront::getProjectDirectory(bool flag) {
    auto call = script_->enter(*clock_, "getProjectDirectory", flag);
    try {
        if (auto scripted =
                script_->scripted<std::shared_ptr<DirectoryInfo>>("getProjectDirectory")) {
            return std::move(*scripted);
        }
        return vehicle_->getProjectDirectory(flag);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<DirectoryInfo> EngineFront::getSelectedProjectDirectory(bool flag) {
    auto call = script_->enter(*clock_, "getSelectedProjectDirectory", flag);
    try {
        if (auto scripted =
                script_->scripted<std::shared_ptr<DirectoryInfo>>("getSelectedProjectDirectory")) {
            return std::move(*scripted);
        }
        return vehicle_->getSelectedProjectDirectory(flag);
    } catch (...) {
        call.rethrow();
    }
}
uint32_t EngineFront::writeFile(const std::wstring& path, const std::vector<uint8_t>& data,
                                uint32_t value, bool flag) {
    auto call = script_->enter(*clock_, "writeFile", path, data, value, flag);
    try {
        if (auto scripted = script_->scripted<uint32_t>("writeFile")) {
            return std::move(*scripted);
        }
        return vehicle_->writeFile(path, data, value, flag);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<KelError>
EngineFront::deleteFiles(const std::vector<std::shared_ptr<FileInfo>>& files) {
    auto call = script_->enter(*clock_, "deleteFiles", files);
    try {
        if (auto scripted = script_->scripted<std::shared_ptr<KelError>>("deleteFiles")) {
            return std::move(*scripted);
        }
        return vehicle_->deleteFiles(files);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<DirectoryInfo>>
EngineFront::findDirectories(std::shared_ptr<DirectoryInfo> directory, const std::wstring& pattern,
                             bool flag) {
    auto call = script_->enter(*clock_, "findDirectories", directory, pattern, flag);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<DirectoryInfo>>>("findDirectories")) {
            return std::move(*scripted);
        }
        return vehicle_->findDirectories(directory, pattern, flag);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<FileInfo>>
EngineFront::findFiles(const std::wstring& directory, const std::wstring& pattern, bool flag) {
    auto call = script_->enter(*clock_, "findFiles", directory, pattern, flag);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<FileInfo>>>("findFiles")) {
            return std::move(*scripted);
        }
        return vehicle_->findFiles(directory, pattern, flag);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<DirectoryInfo>
EngineFront::initializeDirectoryElements(std::shared_ptr<DirectoryInfo> directory, bool flag) {
    auto call = script_->enter(*clock_, "initializeDirectoryElements", directory, flag);
    try {
        if (auto scripted =
                script_->scripted<std::shared_ptr<DirectoryInfo>>("initializeDirectoryElements")) {
            return std::move(*scripted);
        }
        return vehicle_->initializeDirectoryElements(directory, flag);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<FileInfo> EngineFront::createFile(std::shared_ptr<DirectoryInfo> parent,
                                                  const std::wstring& name) {
    auto call = script_->enter(*clock_, "createFile", parent, name);
    try {
        if (auto scripted = script_->scripted<std::shared_ptr<FileInfo>>("createFile")) {
            return std::move(*scripted);
        }
        return vehicle_->createFile(parent, name);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<DirectoryInfo> EngineFront::createDirectory(std::shared_ptr<DirectoryInfo> parent,
                                                            const std::wstring& name) {
    auto call = script_->enter(*clock_, "createDirectory", parent, name);
    try {
        if (auto scripted = script_->scripted<std::shared_ptr<DirectoryInfo>>("createDirectory")) {
            return std::move(*scripted);
        }
        return vehicle_->createDirectory(parent, name);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<KelError> EngineFront::deleteDirectory(const std::wstring& path) {
    auto call = script_->enter(*clock_, "deleteDirectory", path);
    try {
        if (auto scripted = script_->scripted<std::shared_ptr<KelError>>("deleteDirectory")) {
            return std::move(*scripted);
        }
        return vehicle_->deleteDirectory(path);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<DirectoryInfo> EngineFront::getTraceDirectory(bool flag) {
    auto call = script_->enter(*clock_, "getTraceDirectory", flag);
    try {
        if (auto scripted =
                script_->scripted<std::shared_ptr<DirectoryInfo>>("getTraceDirectory")) {
            return std::move(*scripted);
        }
        return vehicle_->getTraceDirectory(flag);
    } catch (...) {
        call.rethrow();
    }
}
std::wstring EngineFront::createVehicleReport(std::shared_ptr<VehicleReportConfig> config) {
    auto call = script_->enter(*clock_, "createVehicleReport", config);
    try {
        if (auto scripted = script_->scripted<std::wstring>("createVehicleReport")) {
            return std::move(*scripted);
        }
        return vehicle_->createVehicleReport(config);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<EcuOrderEntry>> EngineFront::readEcuOrder(const std::wstring& path) {
    auto call = script_->enter(*clock_, "readEcuOrder", path);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<EcuOrderEntry>>>("readEcuOrder")) {
            return std::move(*scripted);
        }
        return vehicle_->readEcuOrder(path);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<EcuOrderEntry>>
EngineFront::filterEcuOrder(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                            const std::vector<std::wstring>& targets) {
    auto call = script_->enter(*clock_, "filterEcuOrder", entries, targets);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<EcuOrderEntry>>>("filterEcuOrder")) {
            return std::move(*scripted);
        }
        return vehicle_->filterEcuOrder(entries, targets);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<EcuOrderEntry>> EngineFront::addMissingTargetsToEcuOrder(
    const std::vector<std::shared_ptr<EcuOrderEntry>>& entries) {
    auto call = script_->enter(*clock_, "addMissingTargetsToEcuOrder", entries);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<EcuOrderEntry>>>(
                "addMissingTargetsToEcuOrder")) {
            return std::move(*scripted);
        }
        return vehicle_->addMissingTargetsToEcuOrder(entries);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::lock() {
    auto call = script_->enter(*clock_, "lock");
    try {
        if (auto scripted = script_->scripted<uint64_t>("lock")) {
            return std::move(*scripted);
        }
        return vehicle_->lock();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::unlock(uint64_t lockId) {
    auto call = script_->enter(*clock_, "unlock", lockId);
    try {
        if (script_->scriptedVoid("unlock")) {
            return;
        }
        return vehicle_->unlock(lockId);
    } catch (...) {
        call.rethrow();
    }
}
bool EngineFront::isLocked() {
    auto call = script_->enter(*clock_, "isLocked");
    try {
        if (auto scripted = script_->scripted<bool>("isLocked")) {
            return std::move(*scripted);
        }
        return vehicle_->isLocked();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::breakLock() {
    auto call = script_->enter(*clock_, "breakLock");
    try {
        if (script_->scriptedVoid("breakLock")) {
            return;
        }
        return vehicle_->breakLock();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::setEthernetPinState(uint8_t state, const std::vector<std::wstring>& interfaces) {
    auto call = script_->enter(*clock_, "setEthernetPinState", state, interfaces);
    try {
        if (script_->scriptedVoid("setEthernetPinState")) {
            return;
        }
        return vehicle_->setEthernetPinState(state, interfaces);
    } catch (...) {
        call.rethrow();
    }
}
uint32_t EngineFront::getEthernetPinState(const std::wstring& interfaceName) {
    auto call = script_->enter(*clock_, "getEthernetPinState", interfaceName);
    try {
        if (auto scripted = script_->scripted<uint32_t>("getEthernetPinState")) {
            return std::move(*scripted);
        }
        return vehicle_->getEthernetPinState(interfaceName);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ModuleDyn>> EngineFront::detectDynInterfacesEx(uint32_t value) {
    auto call = script_->enter(*clock_, "detectDynInterfacesEx", value);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ModuleDyn>>>(
                "detectDynInterfacesEx")) {
            return std::move(*scripted);
        }
        return vehicle_->detectDynInterfacesEx(value);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::detectDynInterfacesExAsync(uint32_t value,
                                                 DetectDynInterfacesExCallback* callback) {
    auto call = script_->enter(*clock_, "detectDynInterfacesExAsync", value, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ModuleDyn>>>(
                "detectDynInterfacesExAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->detectDynInterfacesExAsync(value, callback);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::connectDynInterfaceEx(const std::wstring& name, bool flag) {
    auto call = script_->enter(*clock_, "connectDynInterfaceEx", name, flag);
    try {
        if (script_->scriptedVoid("connectDynInterfaceEx")) {
            return;
        }
        return vehicle_->connectDynInterfaceEx(name, flag);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::addUser(const std::wstring& name, const std::wstring& password, uint32_t role) {
    auto call = script_->enter(*clock_, "addUser", name, Secret{password}, role);
    try {
        if (script_->scriptedVoid("addUser")) {
            return;
        }
        return vehicle_->addUser(name, password, role);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::removeUser(const std::wstring& name) {
    auto call = script_->enter(*clock_, "removeUser", name);
    try {
        if (script_->scriptedVoid("removeUser")) {
            return;
        }
        return vehicle_->removeUser(name);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<UserInfo>> EngineFront::getUsers() {
    auto call = script_->enter(*clock_, "getUsers");
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<UserInfo>>>("getUsers")) {
            return std::move(*scripted);
        }
        return vehicle_->getUsers();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::logOut(std::shared_ptr<LogInOutConfig> config) {
    auto call = script_->enter(*clock_, "logOut", config);
    try {
        if (script_->scriptedVoid("logOut")) {
            return;
        }
        return vehicle_->logOut(config);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::updateUser(const std::wstring& name, const std::wstring& newName,
                             const std::wstring& newPassword, uint32_t role) {
    auto call = script_->enter(*clock_, "updateUser", name, newName, Secret{newPassword}, role);
    try {
        if (script_->scriptedVoid("updateUser")) {
            return;
        }
        return vehicle_->updateUser(name, newName, newPassword, role);
    } catch (...) {
        call.rethrow();
    }
}
bool EngineFront::getServerUserManagement() {
    auto call = script_->enter(*clock_, "getServerUserManagement");
    try {
        if (auto scripted = script_->scripted<bool>("getServerUserManagement")) {
            return std::move(*scripted);
        }
        return vehicle_->getServerUserManagement();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::setServerUserManagement(bool enabled) {
    auto call = script_->enter(*clock_, "setServerUserManagement", enabled);
    try {
        if (script_->scriptedVoid("setServerUserManagement")) {
            return;
        }
        return vehicle_->setServerUserManagement(enabled);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::registerServerHandler(std::shared_ptr<ServerHandler> handler) {
    auto call = script_->enter(*clock_, "registerServerHandler", handler);
    try {
        if (script_->scriptedVoid("registerServerHandler")) {
            return;
        }
        return vehicle_->registerServerHandler(handler);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved132() {
    auto call = script_->enter(*clock_, "reserved132");
    try {
        if (script_->scriptedVoid("reserved132")) {
            return;
        }
        return vehicle_->reserved132();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::disconnectAllClients() {
    auto call = script_->enter(*clock_, "disconnectAllClients");
    try {
        if (script_->scriptedVoid("disconnectAllClients")) {
            return;
        }
        return vehicle_->disconnectAllClients();
    } catch (...) {
        call.rethrow();
    }
}
bool EngineFront::testSocketBridge(uint64_t bridge) {
    auto call = script_->enter(*clock_, "testSocketBridge", bridge);
    try {
        if (auto scripted = script_->scripted<bool>("testSocketBridge")) {
            return std::move(*scripted);
        }
        return vehicle_->testSocketBridge(bridge);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved135() {
    auto call = script_->enter(*clock_, "reserved135");
    try {
        if (script_->scriptedVoid("reserved135")) {
            return;
        }
        return vehicle_->reserved135();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<FileCopyResult>>
EngineFront::copyFiles(std::shared_ptr<FileCopyConfig> config) {
    auto call = script_->enter(*clock_, "copyFiles", config);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<FileCopyResult>>>("copyFiles")) {
            return std::move(*scripted);
        }
        return vehicle_->copyFiles(config);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::copyFilesAsync(std::shared_ptr<FileCopyConfig> config,
                                     CopyFilesCallback* callback) {
    auto call = script_->enter(*clock_, "copyFilesAsync", config, callback);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<FileCopyResult>>>("copyFilesAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->copyFilesAsync(config, callback);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<DirectoryCopyResult>>
EngineFront::copyDirectories(std::shared_ptr<DirectoryCopyConfig> config) {
    auto call = script_->enter(*clock_, "copyDirectories", config);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<DirectoryCopyResult>>>(
                "copyDirectories")) {
            return std::move(*scripted);
        }
        return vehicle_->copyDirectories(config);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::copyDirectoriesAsync(std::shared_ptr<DirectoryCopyConfig> config,
                                           CopyDirectoriesCallback* callback) {
    auto call = script_->enter(*clock_, "copyDirectoriesAsync", config, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<DirectoryCopyResult>>>(
                "copyDirectoriesAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->copyDirectoriesAsync(config, callback);
    } catch (...) {
        call.rethrow();
    }
}
std::wstring EngineFront::calculateChecksum(const std::wstring& path, int32_t algorithm) {
    auto call = script_->enter(*clock_, "calculateChecksum", path, algorithm);
    try {
        if (auto scripted = script_->scripted<std::wstring>("calculateChecksum")) {
            return std::move(*scripted);
        }
        return vehicle_->calculateChecksum(path, algorithm);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved141() {
    auto call = script_->enter(*clock_, "reserved141");
    try {
        if (script_->scriptedVoid("reserved141")) {
            return;
        }
        return vehicle_->reserved141();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved142() {
    auto call = script_->enter(*clock_, "reserved142");
    try {
        if (script_->scriptedVoid("reserved142")) {
            return;
        }
        return vehicle_->reserved142();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved143() {
    auto call = script_->enter(*clock_, "reserved143");
    try {
        if (script_->scriptedVoid("reserved143")) {
            return;
        }
        return vehicle_->reserved143();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved144() {
    auto call = script_->enter(*clock_, "reserved144");
    try {
        if (script_->scriptedVoid("reserved144")) {
            return;
        }
        return vehicle_->reserved144();
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::runSequence(const std::wstring& sequence,
                                  const std::vector<std::wstring>& arguments) {
    auto call = script_->enter(*clock_, "runSequence", sequence, arguments);
    try {
        if (auto scripted = script_->scripted<uint64_t>("runSequence")) {
            return std::move(*scripted);
        }
        return vehicle_->runSequence(sequence, arguments);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<UnlockResult>
EngineFront::unlockVehicle(const std::wstring& target,
                           const std::vector<std::shared_ptr<ServiceInput>>& services) {
    auto call = script_->enter(*clock_, "unlockVehicle", target, services);
    try {
        if (auto scripted = script_->scripted<std::shared_ptr<UnlockResult>>("unlockVehicle")) {
            return std::move(*scripted);
        }
        return vehicle_->unlockVehicle(target, services);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::releaseVehicleUnlock(uint64_t value) {
    auto call = script_->enter(*clock_, "releaseVehicleUnlock", value);
    try {
        if (auto scripted = script_->scripted<uint64_t>("releaseVehicleUnlock")) {
            return std::move(*scripted);
        }
        return vehicle_->releaseVehicleUnlock(value);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::cancelSequence(uint64_t run) {
    auto call = script_->enter(*clock_, "cancelSequence", run);
    try {
        if (script_->scriptedVoid("cancelSequence")) {
            return;
        }
        return vehicle_->cancelSequence(run);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<DeviceInfo>> EngineFront::getRegisteredDevices() {
    auto call = script_->enter(*clock_, "getRegisteredDevices");
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<DeviceInfo>>>(
                "getRegisteredDevices")) {
            return std::move(*scripted);
        }
        return vehicle_->getRegisteredDevices();
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<SystemInfo> EngineFront::getSystemInfo() {
    auto call = script_->enter(*clock_, "getSystemInfo");
    try {
        if (auto scripted = script_->scripted<std::shared_ptr<SystemInfo>>("getSystemInfo")) {
            return std::move(*scripted);
        }
        return vehicle_->getSystemInfo();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::applyUpdatePackage(const std::wstring& package) {
    auto call = script_->enter(*clock_, "applyUpdatePackage", package);
    try {
        if (script_->scriptedVoid("applyUpdatePackage")) {
            return;
        }
        return vehicle_->applyUpdatePackage(package);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::renameFile(const std::wstring& path, const std::wstring& newName) {
    auto call = script_->enter(*clock_, "renameFile", path, newName);
    try {
        if (script_->scriptedVoid("renameFile")) {
            return;
        }
        return vehicle_->renameFile(path, newName);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::onConnectionBroken() {
    auto call = script_->enter(*clock_, "onConnectionBroken");
    try {
        if (script_->scriptedVoid("onConnectionBroken")) {
            return;
        }
        return vehicle_->onConnectionBroken();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<UpdatePackageInfo>> EngineFront::getUpdatePackages() {
    auto call = script_->enter(*clock_, "getUpdatePackages");
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<UpdatePackageInfo>>>(
                "getUpdatePackages")) {
            return std::move(*scripted);
        }
        return vehicle_->getUpdatePackages();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<UpdatePackageInfo>> EngineFront::getPackagesFromBroker() {
    auto call = script_->enter(*clock_, "getPackagesFromBroker");
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<UpdatePackageInfo>>>(
                "getPackagesFromBroker")) {
            return std::move(*scripted);
        }
        return vehicle_->getPackagesFromBroker();
    } catch (...) {
        call.rethrow();
    }
}
bool EngineFront::checkUpdatesOnBroker() {
    auto call = script_->enter(*clock_, "checkUpdatesOnBroker");
    try {
        if (auto scripted = script_->scripted<bool>("checkUpdatesOnBroker")) {
            return std::move(*scripted);
        }
        return vehicle_->checkUpdatesOnBroker();
    } catch (...) {
        call.rethrow();
    }
}
bool EngineFront::autoUpdate() {
    auto call = script_->enter(*clock_, "autoUpdate");
    try {
        if (auto scripted = script_->scripted<bool>("autoUpdate")) {
            return std::move(*scripted);
        }
        return vehicle_->autoUpdate();
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<DirectoryInfo> EngineFront::getConfigDirectory(bool flag) {
    auto call = script_->enter(*clock_, "getConfigDirectory", flag);
    try {
        if (auto scripted =
                script_->scripted<std::shared_ptr<DirectoryInfo>>("getConfigDirectory")) {
            return std::move(*scripted);
        }
        return vehicle_->getConfigDirectory(flag);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved159() {
    auto call = script_->enter(*clock_, "reserved159");
    try {
        if (script_->scriptedVoid("reserved159")) {
            return;
        }
        return vehicle_->reserved159();
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::createApiTraceMonitor() {
    auto call = script_->enter(*clock_, "createApiTraceMonitor");
    try {
        if (auto scripted = script_->scripted<uint64_t>("createApiTraceMonitor")) {
            return std::move(*scripted);
        }
        return vehicle_->createApiTraceMonitor();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<uint8_t> EngineFront::getApiTraceContent(uint64_t handle, uint32_t value1,
                                                     int32_t value2) {
    auto call = script_->enter(*clock_, "getApiTraceContent", handle, value1, value2);
    try {
        if (auto scripted = script_->scripted<std::vector<uint8_t>>("getApiTraceContent")) {
            return std::move(*scripted);
        }
        return vehicle_->getApiTraceContent(handle, value1, value2);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::releaseApiTraceMonitor(uint64_t handle) {
    auto call = script_->enter(*clock_, "releaseApiTraceMonitor", handle);
    try {
        if (script_->scriptedVoid("releaseApiTraceMonitor")) {
            return;
        }
        return vehicle_->releaseApiTraceMonitor(handle);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<NamedItem>> EngineFront::getCurrentVersions() {
    auto call = script_->enter(*clock_, "getCurrentVersions");
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<NamedItem>>>("getCurrentVersions")) {
            return std::move(*scripted);
        }
        return vehicle_->getCurrentVersions();
    } catch (...) {
        call.rethrow();
    }
}
bool EngineFront::checkUpdateSuccess() {
    auto call = script_->enter(*clock_, "checkUpdateSuccess");
    try {
        if (auto scripted = script_->scripted<bool>("checkUpdateSuccess")) {
            return std::move(*scripted);
        }
        return vehicle_->checkUpdateSuccess();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::cleanUpdateTmp() {
    auto call = script_->enter(*clock_, "cleanUpdateTmp");
    try {
        if (script_->scriptedVoid("cleanUpdateTmp")) {
            return;
        }
        return vehicle_->cleanUpdateTmp();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<FlashSessionResult>>
EngineFront::executeFlashSessionsConfig(std::shared_ptr<FlashSessionsConfig> config) {
    auto call = script_->enter(*clock_, "executeFlashSessionsConfig", config);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<FlashSessionResult>>>(
                "executeFlashSessionsConfig")) {
            return std::move(*scripted);
        }
        return vehicle_->executeFlashSessionsConfig(config);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t
EngineFront::executeFlashSessionsConfigAsync(std::shared_ptr<FlashSessionsConfig> config,
                                             ExecuteFlashSessionsConfigCallback* callback) {
    auto call = script_->enter(*clock_, "executeFlashSessionsConfigAsync", config, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<FlashSessionResult>>>(
                "executeFlashSessionsConfigAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->executeFlashSessionsConfigAsync(config, callback);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<LoadDatabaseResult>>
EngineFront::loadDatabaseFile(const std::vector<std::wstring>& files) {
    auto call = script_->enter(*clock_, "loadDatabaseFile", files);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<LoadDatabaseResult>>>(
                "loadDatabaseFile")) {
            return std::move(*scripted);
        }
        return vehicle_->loadDatabaseFile(files);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<FileInfo>>
EngineFront::copyProjectWithFilters(const std::vector<std::shared_ptr<FileFilter>>& filters,
                                    bool flag, std::shared_ptr<FileCopyConfig> config,
                                    const std::wstring& text) {
    auto call = script_->enter(*clock_, "copyProjectWithFilters", filters, flag, config, text);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<FileInfo>>>(
                "copyProjectWithFilters")) {
            return std::move(*scripted);
        }
        return vehicle_->copyProjectWithFilters(filters, flag, config, text);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved170() {
    auto call = script_->enter(*clock_, "reserved170");
    try {
        if (script_->scriptedVoid("reserved170")) {
            return;
        }
        return vehicle_->reserved170();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved171() {
    auto call = script_->enter(*clock_, "reserved171");
    try {
        if (script_->scriptedVoid("reserved171")) {
            return;
        }
        return vehicle_->reserved171();
    } catch (...) {
        call.rethrow();
    }
}
bool EngineFront::reconnectRemoteServer(uint64_t handle) {
    auto call = script_->enter(*clock_, "reconnectRemoteServer", handle);
    try {
        if (auto scripted = script_->scripted<bool>("reconnectRemoteServer")) {
            return std::move(*scripted);
        }
        return vehicle_->reconnectRemoteServer(handle);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::wstring>
EngineFront::filterFiles(const std::vector<std::shared_ptr<FileFilter>>& filters,
                         const std::wstring& text) {
    auto call = script_->enter(*clock_, "filterFiles", filters, text);
    try {
        if (auto scripted = script_->scripted<std::vector<std::wstring>>("filterFiles")) {
            return std::move(*scripted);
        }
        return vehicle_->filterFiles(filters, text);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved174() {
    auto call = script_->enter(*clock_, "reserved174");
    try {
        if (script_->scriptedVoid("reserved174")) {
            return;
        }
        return vehicle_->reserved174();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<LoadDatabaseResult>>
EngineFront::unloadDatabaseFile(const std::vector<std::wstring>& files) {
    auto call = script_->enter(*clock_, "unloadDatabaseFile", files);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<LoadDatabaseResult>>>(
                "unloadDatabaseFile")) {
            return std::move(*scripted);
        }
        return vehicle_->unloadDatabaseFile(files);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<DirectoryInfo>> EngineFront::getPublicDirectories() {
    auto call = script_->enter(*clock_, "getPublicDirectories");
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<DirectoryInfo>>>(
                "getPublicDirectories")) {
            return std::move(*scripted);
        }
        return vehicle_->getPublicDirectories();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<VehicleUpdateResult>>
EngineFront::updateVehicle(std::shared_ptr<VehicleUpdateConfig> config) {
    auto call = script_->enter(*clock_, "updateVehicle", config);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<VehicleUpdateResult>>>(
                "updateVehicle")) {
            return std::move(*scripted);
        }
        return vehicle_->updateVehicle(config);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::updateVehicleAsync(std::shared_ptr<VehicleUpdateConfig> config,
                                         UpdateVehicleCallback* callback) {
    auto call = script_->enter(*clock_, "updateVehicleAsync", config, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<VehicleUpdateResult>>>(
                "updateVehicleAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->updateVehicleAsync(config, callback);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ServiceResult>> EngineFront::executeServiceInDefaultSession(
    const std::wstring& target, const std::vector<std::shared_ptr<ServiceInput>>& services) {
    auto call = script_->enter(*clock_, "executeServiceInDefaultSession", target, services);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ServiceResult>>>(
                "executeServiceInDefaultSession")) {
            return std::move(*scripted);
        }
        return vehicle_->executeServiceInDefaultSession(target, services);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::executeServiceInDefaultSessionAsync(
    const std::wstring& target, const std::vector<std::shared_ptr<ServiceInput>>& services,
    ExecuteServiceInDefaultSessionCallback* callback) {
    auto call =
        script_->enter(*clock_, "executeServiceInDefaultSessionAsync", target, services, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ServiceResult>>>(
                "executeServiceInDefaultSessionAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->executeServiceInDefaultSessionAsync(target, services, callback);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<TargetStatus>>
EngineFront::getTargetStatus(const std::vector<std::wstring>& targets) {
    auto call = script_->enter(*clock_, "getTargetStatus", targets);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<TargetStatus>>>("getTargetStatus")) {
            return std::move(*scripted);
        }
        return vehicle_->getTargetStatus(targets);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<PhysicalLinksOnModule>>
EngineFront::getPhysicalLinks(const std::vector<std::wstring>& modules) {
    auto call = script_->enter(*clock_, "getPhysicalLinks", modules);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<PhysicalLinksOnModule>>>(
                "getPhysicalLinks")) {
            return std::move(*scripted);
        }
        return vehicle_->getPhysicalLinks(modules);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<PhysicalLinksOnModule>>
EngineFront::setPhysicalLinks(const std::vector<std::shared_ptr<PhysicalLinksOnModule>>& links) {
    auto call = script_->enter(*clock_, "setPhysicalLinks", links);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<PhysicalLinksOnModule>>>(
                "setPhysicalLinks")) {
            return std::move(*scripted);
        }
        return vehicle_->setPhysicalLinks(links);
    } catch (...) {
        call.rethrow();
    }
}
bool EngineFront::moveFile(const std::wstring& source, const std::wstring& target) {
    auto call = script_->enter(*clock_, "moveFile", source, target);
    try {
        if (auto scripted = script_->scripted<bool>("moveFile")) {
            return std::move(*scripted);
        }
        return vehicle_->moveFile(source, target);
    } catch (...) {
        call.rethrow();
    }
}
bool EngineFront::moveDirectory(const std::wstring& source, const std::wstring& target) {
    auto call = script_->enter(*clock_, "moveDirectory", source, target);
    try {
        if (auto scripted = script_->scripted<bool>("moveDirectory")) {
            return std::move(*scripted);
        }
        return vehicle_->moveDirectory(source, target);
    } catch (...) {
        call.rethrow();
    }
}
bool EngineFront::pathExists(const std::wstring& path) {
    auto call = script_->enter(*clock_, "pathExists", path);
    try {
        if (auto scripted = script_->scripted<bool>("pathExists")) {
            return std::move(*scripted);
        }
        return vehicle_->pathExists(path);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved187() {
    auto call = script_->enter(*clock_, "reserved187");
    try {
        if (script_->scriptedVoid("reserved187")) {
            return;
        }
        return vehicle_->reserved187();
    } catch (...) {
        call.rethrow();
    }
}
std::wstring EngineFront::resolvePath(const std::wstring& path) {
    auto call = script_->enter(*clock_, "resolvePath", path);
    try {
        if (auto scripted = script_->scripted<std::wstring>("resolvePath")) {
            return std::move(*scripted);
        }
        return vehicle_->resolvePath(path);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved189() {
    auto call = script_->enter(*clock_, "reserved189");
    try {
        if (script_->scriptedVoid("reserved189")) {
            return;
        }
        return vehicle_->reserved189();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved190() {
    auto call = script_->enter(*clock_, "reserved190");
    try {
        if (script_->scriptedVoid("reserved190")) {
            return;
        }
        return vehicle_->reserved190();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<VehicleData>> EngineFront::getVehicleData() {
    auto call = script_->enter(*clock_, "getVehicleData");
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<VehicleData>>>("getVehicleData")) {
            return std::move(*scripted);
        }
        return vehicle_->getVehicleData();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ProjectDetails>>
EngineFront::getProjectsDetails(const std::vector<std::wstring>& projectNames) {
    auto call = script_->enter(*clock_, "getProjectsDetails", projectNames);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ProjectDetails>>>(
                "getProjectsDetails")) {
            return std::move(*scripted);
        }
        return vehicle_->getProjectsDetails(projectNames);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::uploadReport(std::shared_ptr<UploadReportConfiguration> config) {
    auto call = script_->enter(*clock_, "uploadReport", config);
    try {
        if (script_->scriptedVoid("uploadReport")) {
            return;
        }
        return vehicle_->uploadReport(config);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<FileReferenceResult>>
EngineFront::getFileReferences(const std::vector<std::wstring>& files) {
    auto call = script_->enter(*clock_, "getFileReferences", files);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<FileReferenceResult>>>(
                "getFileReferences")) {
            return std::move(*scripted);
        }
        return vehicle_->getFileReferences(files);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::onConnectionClosed() {
    auto call = script_->enter(*clock_, "onConnectionClosed");
    try {
        if (script_->scriptedVoid("onConnectionClosed")) {
            return;
        }
        return vehicle_->onConnectionClosed();
    } catch (...) {
        call.rethrow();
    }
}
bool EngineFront::openTerminal() {
    auto call = script_->enter(*clock_, "openTerminal");
    try {
        if (auto scripted = script_->scripted<bool>("openTerminal")) {
            return std::move(*scripted);
        }
        return vehicle_->openTerminal();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::closeTerminal() {
    auto call = script_->enter(*clock_, "closeTerminal");
    try {
        if (script_->scriptedVoid("closeTerminal")) {
            return;
        }
        return vehicle_->closeTerminal();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved198() {
    auto call = script_->enter(*clock_, "reserved198");
    try {
        if (script_->scriptedVoid("reserved198")) {
            return;
        }
        return vehicle_->reserved198();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved199() {
    auto call = script_->enter(*clock_, "reserved199");
    try {
        if (script_->scriptedVoid("reserved199")) {
            return;
        }
        return vehicle_->reserved199();
    } catch (...) {
        call.rethrow();
    }
}
bool EngineFront::isDirectory(const std::wstring& path) {
    auto call = script_->enter(*clock_, "isDirectory", path);
    try {
        if (auto scripted = script_->scripted<bool>("isDirectory")) {
            return std::move(*scripted);
        }
        return vehicle_->isDirectory(path);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<DirectoryInfo> EngineFront::getDirectoryInfo(const std::wstring& path, bool flag) {
    auto call = script_->enter(*clock_, "getDirectoryInfo", path, flag);
    try {
        if (auto scripted = script_->scripted<std::shared_ptr<DirectoryInfo>>("getDirectoryInfo")) {
            return std::move(*scripted);
        }
        return vehicle_->getDirectoryInfo(path, flag);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<FileInfo> EngineFront::getFileInfo(const std::wstring& path) {
    auto call = script_->enter(*clock_, "getFileInfo", path);
    try {
        if (auto scripted = script_->scripted<std::shared_ptr<FileInfo>>("getFileInfo")) {
            return std::move(*scripted);
        }
        return vehicle_->getFileInfo(path);
    } catch (...) {
        call.rethrow();
    }
}
bool EngineFront::isFile(const std::wstring& path) {
    auto call = script_->enter(*clock_, "isFile", path);
    try {
        if (auto scripted = script_->scripted<bool>("isFile")) {
            return std::move(*scripted);
        }
        return vehicle_->isFile(path);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<WLanSignalData> EngineFront::getWLanSignalData(const std::wstring& interfaceName) {
    auto call = script_->enter(*clock_, "getWLanSignalData", interfaceName);
    try {
        if (auto scripted =
                script_->scripted<std::shared_ptr<WLanSignalData>>("getWLanSignalData")) {
            return std::move(*scripted);
        }
        return vehicle_->getWLanSignalData(interfaceName);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<KelError>> EngineFront::clearDoIPEcuCollection() {
    auto call = script_->enter(*clock_, "clearDoIPEcuCollection");
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<KelError>>>(
                "clearDoIPEcuCollection")) {
            return std::move(*scripted);
        }
        return vehicle_->clearDoIPEcuCollection();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::setBrokerUrl(const std::wstring& url) {
    auto call = script_->enter(*clock_, "setBrokerUrl", url);
    try {
        if (script_->scriptedVoid("setBrokerUrl")) {
            return;
        }
        return vehicle_->setBrokerUrl(url);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<PathCopyResult>>
EngineFront::copyPath(std::shared_ptr<PathCopyConfig> config) {
    auto call = script_->enter(*clock_, "copyPath", config);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<PathCopyResult>>>("copyPath")) {
            return std::move(*scripted);
        }
        return vehicle_->copyPath(config);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::copyPathAsync(std::shared_ptr<PathCopyConfig> config,
                                    CopyPathCallback* callback) {
    auto call = script_->enter(*clock_, "copyPathAsync", config, callback);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<PathCopyResult>>>("copyPathAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->copyPathAsync(config, callback);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved209() {
    auto call = script_->enter(*clock_, "reserved209");
    try {
        if (script_->scriptedVoid("reserved209")) {
            return;
        }
        return vehicle_->reserved209();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved210() {
    auto call = script_->enter(*clock_, "reserved210");
    try {
        if (script_->scriptedVoid("reserved210")) {
            return;
        }
        return vehicle_->reserved210();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved211() {
    auto call = script_->enter(*clock_, "reserved211");
    try {
        if (script_->scriptedVoid("reserved211")) {
            return;
        }
        return vehicle_->reserved211();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::reserved212() {
    auto call = script_->enter(*clock_, "reserved212");
    try {
        if (script_->scriptedVoid("reserved212")) {
            return;
        }
        return vehicle_->reserved212();
    } catch (...) {
        call.rethrow();
    }
}
bool EngineFront::thirdPartyLogin(const std::wstring& code) {
    auto call = script_->enter(*clock_, "thirdPartyLogin", Secret{code});
    try {
        if (auto scripted = script_->scripted<bool>("thirdPartyLogin")) {
            return std::move(*scripted);
        }
        return vehicle_->thirdPartyLogin(code);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::clearUpdatePackages() {
    auto call = script_->enter(*clock_, "clearUpdatePackages");
    try {
        if (script_->scriptedVoid("clearUpdatePackages")) {
            return;
        }
        return vehicle_->clearUpdatePackages();
    } catch (...) {
        call.rethrow();
    }
}
std::wstring EngineFront::getThirdPartyLoginUrl(const std::wstring& provider) {
    auto call = script_->enter(*clock_, "getThirdPartyLoginUrl", provider);
    try {
        if (auto scripted = script_->scripted<std::wstring>("getThirdPartyLoginUrl")) {
            return std::move(*scripted);
        }
        return vehicle_->getThirdPartyLoginUrl(provider);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::selectDynamicProject(const std::wstring& projectName,
                                       const std::vector<std::wstring>& items) {
    auto call = script_->enter(*clock_, "selectDynamicProject", projectName, items);
    try {
        if (script_->scriptedVoid("selectDynamicProject")) {
            return;
        }
        return vehicle_->selectDynamicProject(projectName, items);
    } catch (...) {
        call.rethrow();
    }
}
std::wstring EngineFront::getCertificateByPublicKey(const std::wstring& publicKey,
                                                    const std::wstring& text2,
                                                    const std::wstring& text3,
                                                    const std::wstring& text4) {
    auto call =
        script_->enter(*clock_, "getCertificateByPublicKey", publicKey, text2, text3, text4);
    try {
        if (auto scripted = script_->scripted<std::wstring>("getCertificateByPublicKey")) {
            return std::move(*scripted);
        }
        return vehicle_->getCertificateByPublicKey(publicKey, text2, text3, text4);
    } catch (...) {
        call.rethrow();
    }
}
std::wstring
EngineFront::createCertificateFromCSR(const std::wstring& text1, const std::wstring& text2,
                                      const std::wstring& text3, const std::wstring& text4,
                                      const std::wstring& text5, const std::wstring& text6) {
    auto call = script_->enter(*clock_, "createCertificateFromCSR", text1, text2, text3, text4,
                               text5, text6);
    try {
        if (auto scripted = script_->scripted<std::wstring>("createCertificateFromCSR")) {
            return std::move(*scripted);
        }
        return vehicle_->createCertificateFromCSR(text1, text2, text3, text4, text5, text6);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::wstring> EngineFront::getCertificateChainById(const std::wstring& id,
                                                               const std::wstring& text2,
                                                               const std::wstring& text3) {
    auto call = script_->enter(*clock_, "getCertificateChainById", id, text2, text3);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::wstring>>("getCertificateChainById")) {
            return std::move(*scripted);
        }
        return vehicle_->getCertificateChainById(id, text2, text3);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<EcuOrderEntry>> EngineFront::createDefaultECUOrder() {
    auto call = script_->enter(*clock_, "createDefaultECUOrder");
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<EcuOrderEntry>>>(
                "createDefaultECUOrder")) {
            return std::move(*scripted);
        }
        return vehicle_->createDefaultECUOrder();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<CodingFileResult>>
EngineFront::writeCodingFile(const std::wstring& codingFile,
                             const std::vector<std::wstring>& targets) {
    auto call = script_->enter(*clock_, "writeCodingFile", codingFile, targets);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<CodingFileResult>>>(
                "writeCodingFile")) {
            return std::move(*scripted);
        }
        return vehicle_->writeCodingFile(codingFile, targets);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::writeCodingFileAsync(const std::wstring& codingFile,
                                           const std::vector<std::wstring>& targets,
                                           WriteCodingFileCallback* callback) {
    auto call = script_->enter(*clock_, "writeCodingFileAsync", codingFile, targets, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<CodingFileResult>>>(
                "writeCodingFileAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->writeCodingFileAsync(codingFile, targets, callback);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::writeEcuOrder(const std::wstring& path,
                                const std::vector<std::shared_ptr<EcuOrderEntry>>& entries) {
    auto call = script_->enter(*clock_, "writeEcuOrder", path, entries);
    try {
        if (script_->scriptedVoid("writeEcuOrder")) {
            return;
        }
        return vehicle_->writeEcuOrder(path, entries);
    } catch (...) {
        call.rethrow();
    }
}
std::wstring EngineFront::getEcuOrderFilePath() {
    auto call = script_->enter(*clock_, "getEcuOrderFilePath");
    try {
        if (auto scripted = script_->scripted<std::wstring>("getEcuOrderFilePath")) {
            return std::move(*scripted);
        }
        return vehicle_->getEcuOrderFilePath();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<VehicleUpdateResult>>
EngineFront::performVehicleUpdate(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                                  std::shared_ptr<VehicleUpdateConfig> config) {
    auto call = script_->enter(*clock_, "performVehicleUpdate", entries, config);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<VehicleUpdateResult>>>(
                "performVehicleUpdate")) {
            return std::move(*scripted);
        }
        return vehicle_->performVehicleUpdate(entries, config);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t
EngineFront::performVehicleUpdateAsync(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                                       std::shared_ptr<VehicleUpdateConfig> config,
                                       PerformVehicleUpdateCallback* callback) {
    auto call = script_->enter(*clock_, "performVehicleUpdateAsync", entries, config, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<VehicleUpdateResult>>>(
                "performVehicleUpdateAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->performVehicleUpdateAsync(entries, config, callback);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::triggerAsyncCancels(const std::vector<uint64_t>& callIds) {
    auto call = script_->enter(*clock_, "triggerAsyncCancels", callIds);
    try {
        if (script_->scriptedVoid("triggerAsyncCancels")) {
            return;
        }
        return vehicle_->triggerAsyncCancels(callIds);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ServiceResult>>
EngineFront::executeSequence(const std::wstring& target, const std::wstring& sequence,
                             const std::vector<std::shared_ptr<ParameterInput>>& parameters) {
    auto call = script_->enter(*clock_, "executeSequence", target, sequence, parameters);
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<ServiceResult>>>("executeSequence")) {
            return std::move(*scripted);
        }
        return vehicle_->executeSequence(target, sequence, parameters);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t
EngineFront::executeSequenceAsync(const std::wstring& target, const std::wstring& sequence,
                                  const std::vector<std::shared_ptr<ParameterInput>>& parameters,
                                  ExecuteSequenceCallback* callback) {
    auto call =
        script_->enter(*clock_, "executeSequenceAsync", target, sequence, parameters, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ServiceResult>>>(
                "executeSequenceAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->executeSequenceAsync(target, sequence, parameters, callback);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::addPublicDirectory(const std::wstring& name, const std::wstring& path) {
    auto call = script_->enter(*clock_, "addPublicDirectory", name, path);
    try {
        if (script_->scriptedVoid("addPublicDirectory")) {
            return;
        }
        return vehicle_->addPublicDirectory(name, path);
    } catch (...) {
        call.rethrow();
    }
}
std::wstring EngineFront::createVehicleUpdateReport(
    const std::vector<std::shared_ptr<VehicleUpdateResult>>& results) {
    auto call = script_->enter(*clock_, "createVehicleUpdateReport", results);
    try {
        if (auto scripted = script_->scripted<std::wstring>("createVehicleUpdateReport")) {
            return std::move(*scripted);
        }
        return vehicle_->createVehicleUpdateReport(results);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<ParameterInfo>
EngineFront::getParameterInfo(std::shared_ptr<ParameterInfoConfig> config) {
    auto call = script_->enter(*clock_, "getParameterInfo", config);
    try {
        if (auto scripted = script_->scripted<std::shared_ptr<ParameterInfo>>("getParameterInfo")) {
            return std::move(*scripted);
        }
        return vehicle_->getParameterInfo(config);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<EcuConfigurationResult>>
EngineFront::performEcuConfiguration(const std::vector<std::wstring>& targets,
                                     const std::wstring& configuration) {
    auto call = script_->enter(*clock_, "performEcuConfiguration", targets, configuration);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<EcuConfigurationResult>>>(
                "performEcuConfiguration")) {
            return std::move(*scripted);
        }
        return vehicle_->performEcuConfiguration(targets, configuration);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::performEcuConfigurationAsync(const std::vector<std::wstring>& targets,
                                                   const std::wstring& configuration,
                                                   PerformEcuConfigurationCallback* callback) {
    auto call =
        script_->enter(*clock_, "performEcuConfigurationAsync", targets, configuration, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<EcuConfigurationResult>>>(
                "performEcuConfigurationAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->performEcuConfigurationAsync(targets, configuration, callback);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ClearDtcResult>>
EngineFront::clearSpecificDtcs(const std::wstring& target, const std::vector<uint32_t>& dtcCodes) {
    auto call = script_->enter(*clock_, "clearSpecificDtcs", target, dtcCodes);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ClearDtcResult>>>(
                "clearSpecificDtcs")) {
            return std::move(*scripted);
        }
        return vehicle_->clearSpecificDtcs(target, dtcCodes);
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::clearSpecificDtcsAsync(const std::wstring& target,
                                             const std::vector<uint32_t>& dtcCodes,
                                             ClearSpecificDtcsCallback* callback) {
    auto call = script_->enter(*clock_, "clearSpecificDtcsAsync", target, dtcCodes, callback);
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ClearDtcResult>>>(
                "clearSpecificDtcsAsync")) {
            return script_->deliver(callback, std::move(*scripted));
        }
        return vehicle_->clearSpecificDtcsAsync(target, dtcCodes, callback);
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::startSOVDServer() {
    auto call = script_->enter(*clock_, "startSOVDServer");
    try {
        if (script_->scriptedVoid("startSOVDServer")) {
            return;
        }
        return vehicle_->startSOVDServer();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::stopSOVDServer() {
    auto call = script_->enter(*clock_, "stopSOVDServer");
    try {
        if (script_->scriptedVoid("stopSOVDServer")) {
            return;
        }
        return vehicle_->stopSOVDServer();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::logIn(std::shared_ptr<LogInOutConfig> config) {
    auto call = script_->enter(*clock_, "logIn", config);
    try {
        if (script_->scriptedVoid("logIn")) {
            return;
        }
        return vehicle_->logIn(config);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<VehicleUpdateConfig>
EngineFront::createVehicleUpdateConfig(const std::vector<std::wstring>& targets) {
    auto call = script_->enter(*clock_, "createVehicleUpdateConfig", targets);
    try {
        if (auto scripted = script_->scripted<std::shared_ptr<VehicleUpdateConfig>>(
                "createVehicleUpdateConfig")) {
            return std::move(*scripted);
        }
        return vehicle_->createVehicleUpdateConfig(targets);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<ProjectConfig>> EngineFront::getProjectConfigurations() {
    auto call = script_->enter(*clock_, "getProjectConfigurations");
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<ProjectConfig>>>(
                "getProjectConfigurations")) {
            return std::move(*scripted);
        }
        return vehicle_->getProjectConfigurations();
    } catch (...) {
        call.rethrow();
    }
}
int32_t EngineFront::getState() {
    auto call = script_->enter(*clock_, "getState");
    try {
        if (auto scripted = script_->scripted<int32_t>("getState")) {
            return std::move(*scripted);
        }
        return vehicle_->getState();
    } catch (...) {
        call.rethrow();
    }
}
std::wstring EngineFront::getVersion() {
    auto call = script_->enter(*clock_, "getVersion");
    try {
        if (auto scripted = script_->scripted<std::wstring>("getVersion")) {
            return std::move(*scripted);
        }
        return vehicle_->getVersion();
    } catch (...) {
        call.rethrow();
    }
}
std::wstring EngineFront::getSelectedProject() {
    auto call = script_->enter(*clock_, "getSelectedProject");
    try {
        if (auto scripted = script_->scripted<std::wstring>("getSelectedProject")) {
            return std::move(*scripted);
        }
        return vehicle_->getSelectedProject();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::setSelectedProject(const std::wstring& projectName) {
    auto call = script_->enter(*clock_, "setSelectedProject", projectName);
    try {
        if (script_->scriptedVoid("setSelectedProject")) {
            return;
        }
        return vehicle_->setSelectedProject(projectName);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<TarnApiConfig> EngineFront::getConfiguration() {
    auto call = script_->enter(*clock_, "getConfiguration");
    try {
        if (auto scripted = script_->scripted<std::shared_ptr<TarnApiConfig>>("getConfiguration")) {
            return std::move(*scripted);
        }
        return vehicle_->getConfiguration();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::setConfiguration(std::shared_ptr<TarnApiConfig> config) {
    auto call = script_->enter(*clock_, "setConfiguration", config);
    try {
        if (script_->scriptedVoid("setConfiguration")) {
            return;
        }
        return vehicle_->setConfiguration(config);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<ServerSettings> EngineFront::getServerSettings() {
    auto call = script_->enter(*clock_, "getServerSettings");
    try {
        if (auto scripted =
                script_->scripted<std::shared_ptr<ServerSettings>>("getServerSettings")) {
            return std::move(*scripted);
        }
        return vehicle_->getServerSettings();
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<VehicleInformation> EngineFront::getSelectedVehicleInformation() {
    auto call = script_->enter(*clock_, "getSelectedVehicleInformation");
    try {
        if (auto scripted = script_->scripted<std::shared_ptr<VehicleInformation>>(
                "getSelectedVehicleInformation")) {
            return std::move(*scripted);
        }
        return vehicle_->getSelectedVehicleInformation();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::setSelectedVehicleInformation(std::shared_ptr<VehicleInformation> information) {
    auto call = script_->enter(*clock_, "setSelectedVehicleInformation", information);
    try {
        if (script_->scriptedVoid("setSelectedVehicleInformation")) {
            return;
        }
        return vehicle_->setSelectedVehicleInformation(information);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<Target>> EngineFront::getTargets() {
    auto call = script_->enter(*clock_, "getTargets");
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<Target>>>("getTargets")) {
            return std::move(*scripted);
        }
        return vehicle_->getTargets();
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<ProcessInfo> EngineFront::getProcessInfo() {
    auto call = script_->enter(*clock_, "getProcessInfo");
    try {
        if (auto scripted = script_->scripted<std::shared_ptr<ProcessInfo>>("getProcessInfo")) {
            return std::move(*scripted);
        }
        return vehicle_->getProcessInfo();
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<TransmissionInfo> EngineFront::getTransmissionInfo() {
    auto call = script_->enter(*clock_, "getTransmissionInfo");
    try {
        if (auto scripted =
                script_->scripted<std::shared_ptr<TransmissionInfo>>("getTransmissionInfo")) {
            return std::move(*scripted);
        }
        return vehicle_->getTransmissionInfo();
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::getHandle() {
    auto call = script_->enter(*clock_, "getHandle");
    try {
        if (auto scripted = script_->scripted<uint64_t>("getHandle")) {
            return std::move(*scripted);
        }
        return vehicle_->getHandle();
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<MoxConfig> EngineFront::getMoxConfiguration() {
    auto call = script_->enter(*clock_, "getMoxConfiguration");
    try {
        if (auto scripted = script_->scripted<std::shared_ptr<MoxConfig>>("getMoxConfiguration")) {
            return std::move(*scripted);
        }
        return vehicle_->getMoxConfiguration();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::setMoxConfiguration(std::shared_ptr<MoxConfig> config) {
    auto call = script_->enter(*clock_, "setMoxConfiguration", config);
    try {
        if (script_->scriptedVoid("setMoxConfiguration")) {
            return;
        }
        return vehicle_->setMoxConfiguration(config);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<InterfaceConfiguration> EngineFront::getInterfaceConfiguration() {
    auto call = script_->enter(*clock_, "getInterfaceConfiguration");
    try {
        if (auto scripted = script_->scripted<std::shared_ptr<InterfaceConfiguration>>(
                "getInterfaceConfiguration")) {
            return std::move(*scripted);
        }
        return vehicle_->getInterfaceConfiguration();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::setInterfaceConfiguration(std::shared_ptr<InterfaceConfiguration> config) {
    auto call = script_->enter(*clock_, "setInterfaceConfiguration", config);
    try {
        if (script_->scriptedVoid("setInterfaceConfiguration")) {
            return;
        }
        return vehicle_->setInterfaceConfiguration(config);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::wstring> EngineFront::getMonitoringLinks() {
    auto call = script_->enter(*clock_, "getMonitoringLinks");
    try {
        if (auto scripted = script_->scripted<std::vector<std::wstring>>("getMonitoringLinks")) {
            return std::move(*scripted);
        }
        return vehicle_->getMonitoringLinks();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<GlobalProtocolParameterSet>>
EngineFront::getGlobalProtocolParameterSets() {
    auto call = script_->enter(*clock_, "getGlobalProtocolParameterSets");
    try {
        if (auto scripted =
                script_->scripted<std::vector<std::shared_ptr<GlobalProtocolParameterSet>>>(
                    "getGlobalProtocolParameterSets")) {
            return std::move(*scripted);
        }
        return vehicle_->getGlobalProtocolParameterSets();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::setGlobalProtocolParameterSets(
    const std::vector<std::shared_ptr<GlobalProtocolParameterSet>>& sets) {
    auto call = script_->enter(*clock_, "setGlobalProtocolParameterSets", sets);
    try {
        if (script_->scriptedVoid("setGlobalProtocolParameterSets")) {
            return;
        }
        return vehicle_->setGlobalProtocolParameterSets(sets);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<StatusInfo> EngineFront::getStatusInfo() {
    auto call = script_->enter(*clock_, "getStatusInfo");
    try {
        if (auto scripted = script_->scripted<std::shared_ptr<StatusInfo>>("getStatusInfo")) {
            return std::move(*scripted);
        }
        return vehicle_->getStatusInfo();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<TargetFilter>> EngineFront::getSessionTargetFilters() {
    auto call = script_->enter(*clock_, "getSessionTargetFilters");
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<TargetFilter>>>(
                "getSessionTargetFilters")) {
            return std::move(*scripted);
        }
        return vehicle_->getSessionTargetFilters();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::setSessionTargetFilters(
    const std::vector<std::shared_ptr<TargetFilter>>& filters) {
    auto call = script_->enter(*clock_, "setSessionTargetFilters", filters);
    try {
        if (script_->scriptedVoid("setSessionTargetFilters")) {
            return;
        }
        return vehicle_->setSessionTargetFilters(filters);
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<SupportedInterface>> EngineFront::getSupportedInterfaces() {
    auto call = script_->enter(*clock_, "getSupportedInterfaces");
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<SupportedInterface>>>(
                "getSupportedInterfaces")) {
            return std::move(*scripted);
        }
        return vehicle_->getSupportedInterfaces();
    } catch (...) {
        call.rethrow();
    }
}
std::vector<std::shared_ptr<InterfaceProvider>> EngineFront::getInterfaceProviders() {
    auto call = script_->enter(*clock_, "getInterfaceProviders");
    try {
        if (auto scripted = script_->scripted<std::vector<std::shared_ptr<InterfaceProvider>>>(
                "getInterfaceProviders")) {
            return std::move(*scripted);
        }
        return vehicle_->getInterfaceProviders();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::setInterfaceProviders(
    const std::vector<std::shared_ptr<InterfaceProviderDyn>>& providers) {
    auto call = script_->enter(*clock_, "setInterfaceProviders", providers);
    try {
        if (script_->scriptedVoid("setInterfaceProviders")) {
            return;
        }
        return vehicle_->setInterfaceProviders(providers);
    } catch (...) {
        call.rethrow();
    }
}
std::wstring EngineFront::getCurrentDebugTraceDirectory() {
    auto call = script_->enter(*clock_, "getCurrentDebugTraceDirectory");
    try {
        if (auto scripted = script_->scripted<std::wstring>("getCurrentDebugTraceDirectory")) {
            return std::move(*scripted);
        }
        return vehicle_->getCurrentDebugTraceDirectory();
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<TarnApiServerConfig> EngineFront::getServerConfiguration() {
    auto call = script_->enter(*clock_, "getServerConfiguration");
    try {
        if (auto scripted =
                script_->scripted<std::shared_ptr<TarnApiServerConfig>>("getServerConfiguration")) {
            return std::move(*scripted);
        }
        return vehicle_->getServerConfiguration();
    } catch (...) {
        call.rethrow();
    }
}
uint64_t EngineFront::getCallDuration() {
    auto call = script_->enter(*clock_, "getCallDuration");
    try {
        if (auto scripted = script_->scripted<uint64_t>("getCallDuration")) {
            return std::move(*scripted);
        }
        return vehicle_->getCallDuration();
    } catch (...) {
        call.rethrow();
    }
}
void EngineFront::setStatusText(const std::wstring& text) {
    auto call = script_->enter(*clock_, "setStatusText", text);
    try {
        if (script_->scriptedVoid("setStatusText")) {
            return;
        }
        return vehicle_->setStatusText(text);
    } catch (...) {
        call.rethrow();
    }
}
std::shared_ptr<DoIPParameter> EngineFront::getDefaultDoIPParameter() {
    auto call = script_->enter(*clock_, "getDefaultDoIPParameter");
    try {
        if (auto scripted =
                script_->scripted<std::shared_ptr<DoIPParameter>>("getDefaultDoIPParameter")) {
            return std::move(*scripted);
        }
        return vehicle_->getDefaultDoIPParameter();
    } catch (...) {
        call.rethrow();
    }
}

} // namespace Varno::Kel_cpp::Reference
