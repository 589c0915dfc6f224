// Generated from the interface description by tools/generate.py. Do not edit.

#include "RemoteEngine.h"

namespace Varno::Kel_cpp::Reference {

void RemoteEngine::initialize() { return client_->call<void>(2); }
void RemoteEngine::end() { return client_->call<void>(3); }
std::wstring RemoteEngine::startServer(const std::wstring& name) {
    return client_->call<std::wstring>(4, name);
}
void RemoteEngine::stopServer(const std::wstring& reason) { return client_->call<void>(5, reason); }
void RemoteEngine::restartServer(int32_t endClients) { return client_->call<void>(6, endClients); }
std::shared_ptr<ProjectConfig>
RemoteEngine::getProjectConfiguration(const std::wstring& projectName) {
    return client_->call<std::shared_ptr<ProjectConfig>>(7, projectName);
}
void RemoteEngine::setProjectConfiguration(const std::wstring& projectName,
                                           std::shared_ptr<ProjectConfig> config) {
    return client_->call<void>(8, projectName, config);
}
void RemoteEngine::saveProjectConfiguration(const std::wstring& projectName) {
    return client_->call<void>(9, projectName);
}
uint64_t RemoteEngine::createMonitoringLink(const std::wstring& name) {
    return client_->call<uint64_t>(10, name);
}
std::vector<std::shared_ptr<MonitoringItem>>
RemoteEngine::getMonitoringItems(uint64_t handle, uint32_t value1, int32_t value2) {
    return client_->call<std::vector<std::shared_ptr<MonitoringItem>>>(11, handle, value1, value2);
}
void RemoteEngine::releaseMonitoringLink(uint64_t handle) {
    return client_->call<void>(12, handle);
}
std::vector<std::shared_ptr<PduMonitoringItem>>
RemoteEngine::getPduMonitoringItems(uint64_t handle, uint32_t value1, int32_t value2) {
    return client_->call<std::vector<std::shared_ptr<PduMonitoringItem>>>(13, handle, value1,
                                                                          value2);
}
uint64_t RemoteEngine::createPduMonitor() { return client_->call<uint64_t>(14); }
void RemoteEngine::saveConfiguration() { return client_->call<void>(15); }
void RemoteEngine::releasePduMonitor(uint64_t handle) { return client_->call<void>(16, handle); }
std::vector<std::shared_ptr<VariantIdentResult>> RemoteEngine::identifyAllTargets() {
    return client_->call<std::vector<std::shared_ptr<VariantIdentResult>>>(17);
}
uint64_t RemoteEngine::identifyAllTargetsAsync(IdentifyAllTargetsCallback* callback) {
    return client_->callAsync(18, callback);
}
std::vector<std::shared_ptr<ReadDataResult>>
RemoteEngine::readIdentificationValues(const std::vector<std::wstring>& targets) {
    return client_->call<std::vector<std::shared_ptr<ReadDataResult>>>(19, targets);
}
uint64_t RemoteEngine::readIdentificationValuesAsync(const std::vector<std::wstring>& targets,
                                                     ReadIdentificationValuesCallback* callback) {
    return client_->callAsync(20, callback, targets);
}
std::vector<std::shared_ptr<ReadDataResult>>
RemoteEngine::readDataByIdentifiers(const std::wstring& target,
                                    const std::vector<std::wstring>& identifiers) {
    return client_->call<std::vector<std::shared_ptr<ReadDataResult>>>(21, target, identifiers);
}
std::shared_ptr<VariantIdentResult> RemoteEngine::identifyTarget(const std::wstring& target) {
    return client_->call<std::shared_ptr<VariantIdentResult>>(22, target);
}
std::vector<std::shared_ptr<ReadDtcResult>>
RemoteEngine::readDtcs(const std::vector<std::wstring>& targets,
                       std::shared_ptr<DtcReadConfig> config) {
    return client_->call<std::vector<std::shared_ptr<ReadDtcResult>>>(23, targets, config);
}
uint64_t RemoteEngine::readDtcsAsync(const std::vector<std::wstring>& targets,
                                     std::shared_ptr<DtcReadConfig> config,
                                     ReadDtcsCallback* callback) {
    return client_->callAsync(24, callback, targets, config);
}
std::vector<std::shared_ptr<SupportedDtcResult>>
RemoteEngine::readSupportedDtcs(const std::vector<std::wstring>& targets,
                                std::shared_ptr<DtcReadConfig> config) {
    return client_->call<std::vector<std::shared_ptr<SupportedDtcResult>>>(25, targets, config);
}
uint64_t RemoteEngine::readSupportedDtcsAsync(const std::vector<std::wstring>& targets,
                                              std::shared_ptr<DtcReadConfig> config,
                                              ReadSupportedDtcsCallback* callback) {
    return client_->callAsync(26, callback, targets, config);
}
std::vector<std::shared_ptr<ClearDtcResult>>
RemoteEngine::clearAllDtcs(const std::vector<std::wstring>& targets) {
    return client_->call<std::vector<std::shared_ptr<ClearDtcResult>>>(27, targets);
}
uint64_t RemoteEngine::clearAllDtcsAsync(const std::vector<std::wstring>& targets,
                                         ClearAllDtcsCallback* callback) {
    return client_->callAsync(28, callback, targets);
}
std::vector<std::shared_ptr<ServiceInfo>>
RemoteEngine::getServiceInfos(const std::wstring& text1, const std::wstring& text2,
                              const std::vector<std::wstring>& names, int32_t value) {
    return client_->call<std::vector<std::shared_ptr<ServiceInfo>>>(29, text1, text2, names, value);
}
std::vector<std::shared_ptr<FlashSessionInfo>>
RemoteEngine::getFlashSessionInfos(const std::wstring& target) {
    return client_->call<std::vector<std::shared_ptr<FlashSessionInfo>>>(30, target);
}
std::vector<std::shared_ptr<FlashSessionResult>>
RemoteEngine::executeFlashSessions(const std::wstring& target,
                                   const std::vector<std::wstring>& sessions) {
    return client_->call<std::vector<std::shared_ptr<FlashSessionResult>>>(31, target, sessions);
}
uint64_t RemoteEngine::executeFlashSessionsAsync(const std::wstring& target,
                                                 const std::vector<std::wstring>& sessions,
                                                 ExecuteFlashSessionsCallback* callback) {
    return client_->callAsync(32, callback, target, sessions);
}
std::vector<std::shared_ptr<CodingStringResult>>
RemoteEngine::readCodingStrings(const std::vector<std::wstring>& targets) {
    return client_->call<std::vector<std::shared_ptr<CodingStringResult>>>(33, targets);
}
uint64_t RemoteEngine::readCodingStringsAsync(const std::vector<std::wstring>& targets,
                                              ReadCodingStringsCallback* callback) {
    return client_->callAsync(34, callback, targets);
}
std::vector<std::shared_ptr<QuickTestResult>>
RemoteEngine::performQuickTest(const std::vector<std::wstring>& targets,
                               std::shared_ptr<DtcReadConfig> config) {
    return client_->call<std::vector<std::shared_ptr<QuickTestResult>>>(35, targets, config);
}
uint64_t RemoteEngine::performQuickTestAsync(const std::vector<std::wstring>& targets,
                                             std::shared_ptr<DtcReadConfig> config,
                                             PerformQuickTestCallback* callback) {
    return client_->callAsync(36, callback, targets, config);
}
std::shared_ptr<TarnApi> RemoteEngine::connectRemoteServer(const std::wstring&) {
    throw Remote::notRemotable(
        "connectRemoteServer",
        L"an engine object cannot be handed over a connection: connect from the local engine");
}
std::vector<std::shared_ptr<ParameterInfo>>
RemoteEngine::getMeasurementValueInfos(const std::wstring& target) {
    return client_->call<std::vector<std::shared_ptr<ParameterInfo>>>(38, target);
}
uint64_t RemoteEngine::registerMeasurementValues(const std::wstring& target,
                                                 const std::vector<std::wstring>& names) {
    return client_->call<uint64_t>(39, target, names);
}
std::vector<std::shared_ptr<ReadDataResult>>
RemoteEngine::getMeasurementValues(uint64_t registration) {
    return client_->call<std::vector<std::shared_ptr<ReadDataResult>>>(40, registration);
}
void RemoteEngine::unregisterMeasurementValues(uint64_t registration) {
    return client_->call<void>(41, registration);
}
std::vector<std::shared_ptr<ParameterInfo>>
RemoteEngine::getIdentificationValueInfos(const std::wstring& target) {
    return client_->call<std::vector<std::shared_ptr<ParameterInfo>>>(42, target);
}
void RemoteEngine::cancelAllAsyncCalls() { return client_->call<void>(43); }
std::vector<uint8_t> RemoteEngine::createSeed(uint32_t value1, uint32_t value2) {
    return client_->call<std::vector<uint8_t>>(44, value1, value2);
}
void RemoteEngine::sendKey(const std::vector<uint8_t>& key) { return client_->call<void>(45, key); }
uint64_t RemoteEngine::openEventChannel() { return client_->call<uint64_t>(46); }
void RemoteEngine::closeEventChannel(uint64_t channel) { return client_->call<void>(47, channel); }
std::shared_ptr<EventReport> RemoteEngine::getCurrentEvents(uint64_t channel, uint32_t limit) {
    return client_->call<std::shared_ptr<EventReport>>(48, channel, limit);
}
void RemoteEngine::openTraceFileMonitoringLink(uint64_t handle, const std::wstring& traceFile) {
    return client_->call<void>(49, handle, traceFile);
}
void RemoteEngine::startTraceFileMonitoringLink(uint64_t handle) {
    return client_->call<void>(50, handle);
}
void RemoteEngine::stopTraceFileMonitoringLink(uint64_t handle) {
    return client_->call<void>(51, handle);
}
void RemoteEngine::closeTraceFileMonitoringLink(uint64_t handle) {
    return client_->call<void>(52, handle);
}
void RemoteEngine::saveInterfaceConfiguration() { return client_->call<void>(53); }
std::vector<std::shared_ptr<ScanInterfaceResult>>
RemoteEngine::scanInterfaceConnection(const std::vector<std::wstring>& interfaces) {
    return client_->call<std::vector<std::shared_ptr<ScanInterfaceResult>>>(54, interfaces);
}
uint64_t RemoteEngine::scanInterfaceConnectionAsync(const std::vector<std::wstring>& interfaces,
                                                    ScanInterfaceConnectionCallback* callback) {
    return client_->callAsync(55, callback, interfaces);
}
void RemoteEngine::disconnect() { client_->disconnect(56); }
std::wstring RemoteEngine::getInterfaceLongName(const std::wstring& name) {
    return client_->call<std::wstring>(57, name);
}
std::vector<std::shared_ptr<ReadDataResult>>
RemoteEngine::readMeasurementValues(const std::wstring& target,
                                    const std::vector<std::wstring>& names) {
    return client_->call<std::vector<std::shared_ptr<ReadDataResult>>>(58, target, names);
}
uint64_t RemoteEngine::readMeasurementValuesAsync(const std::wstring& target,
                                                  const std::vector<std::wstring>& names,
                                                  ReadMeasurementValuesCallback* callback) {
    return client_->callAsync(59, callback, target, names);
}
std::vector<uint8_t> RemoteEngine::readFile(const std::wstring& path, uint64_t value1,
                                            uint32_t value2, bool flag) {
    return client_->call<std::vector<uint8_t>>(60, path, value1, value2, flag);
}
void RemoteEngine::connectInterfaces() { return client_->call<void>(61); }
void RemoteEngine::disconnectInterfaces() { return client_->call<void>(62); }
void RemoteEngine::executeDoIPBroadcast() { return client_->call<void>(63); }
void RemoteEngine::refreshProjectList() { return client_->call<void>(64); }
std::vector<std::shared_ptr<VariantIdentResult>>
RemoteEngine::identifyTargets(const std::vector<std::wstring>& targets) {
    return client_->call<std::vector<std::shared_ptr<VariantIdentResult>>>(65, targets);
}
uint64_t RemoteEngine::identifyTargetsAsync(const std::vector<std::wstring>& targets,
                                            IdentifyTargetsCallback* callback) {
    return client_->callAsync(66, callback, targets);
}
std::vector<std::shared_ptr<ParameterInfo>>
RemoteEngine::getActuatorServiceInfos(const std::wstring& text1, const std::wstring& text2) {
    return client_->call<std::vector<std::shared_ptr<ParameterInfo>>>(67, text1, text2);
}
void RemoteEngine::releaseSocketBridge(uint64_t bridge) { return client_->call<void>(68, bridge); }
uint64_t RemoteEngine::createSocketBridge(uint32_t value1, uint32_t value2) {
    return client_->call<uint64_t>(69, value1, value2);
}
void RemoteEngine::reserved70() { return client_->call<void>(70); }
void RemoteEngine::reserved71() { return client_->call<void>(71); }
void RemoteEngine::reserved72() { return client_->call<void>(72); }
std::vector<std::shared_ptr<ParameterInfo>>
RemoteEngine::getSingleMeasurementValueInfos(const std::wstring& target,
                                             const std::vector<std::wstring>& names) {
    return client_->call<std::vector<std::shared_ptr<ParameterInfo>>>(73, target, names);
}
std::vector<std::shared_ptr<Target>>
RemoteEngine::getFilteredTargets(const std::vector<std::shared_ptr<TargetFilter>>& filters) {
    return client_->call<std::vector<std::shared_ptr<Target>>>(74, filters);
}
bool RemoteEngine::isProjectConversionRequired(const std::wstring& projectPath) {
    return client_->call<bool>(75, projectPath);
}
void RemoteEngine::convertProject(const std::wstring& projectPath) {
    return client_->call<void>(76, projectPath);
}
void RemoteEngine::saveMoxConfiguration() { return client_->call<void>(77); }
uint64_t
RemoteEngine::startCyclicServices(const std::wstring& target,
                                  const std::vector<std::shared_ptr<ServiceInput>>& services,
                                  uint32_t cycleTime) {
    return client_->call<uint64_t>(78, target, services, cycleTime);
}
std::vector<std::shared_ptr<ServiceResult>> RemoteEngine::getCyclicResults(uint64_t cyclic) {
    return client_->call<std::vector<std::shared_ptr<ServiceResult>>>(79, cyclic);
}
void RemoteEngine::stopCyclicServices(uint64_t cyclic) { return client_->call<void>(80, cyclic); }
std::shared_ptr<ProjectDetails> RemoteEngine::getProjectDetails() {
    return client_->call<std::shared_ptr<ProjectDetails>>(81);
}
void RemoteEngine::clearLinkCache() { return client_->call<void>(82); }
void RemoteEngine::addResource(const std::wstring& name,
                               std::shared_ptr<ResourceInformation> resource, uint16_t value) {
    return client_->call<void>(83, name, resource, value);
}
void RemoteEngine::removeInterface(const std::wstring& name) {
    return client_->call<void>(84, name);
}
std::shared_ptr<InterfaceInformation>
RemoteEngine::addInterface(std::shared_ptr<InterfaceInformation> interfaceInfo,
                           const std::wstring& text1, const std::wstring& text2,
                           const std::wstring& text3) {
    return client_->call<std::shared_ptr<InterfaceInformation>>(85, interfaceInfo, text1, text2,
                                                                text3);
}
void RemoteEngine::removeResource(const std::wstring& name1, const std::wstring& name2) {
    return client_->call<void>(86, name1, name2);
}
std::shared_ptr<SystemProperty> RemoteEngine::getSystemProperty(const std::wstring& name) {
    return client_->call<std::shared_ptr<SystemProperty>>(87, name);
}
void RemoteEngine::resetSystemProperty(const std::wstring& name) {
    return client_->call<void>(88, name);
}
void RemoteEngine::setSystemProperty(std::shared_ptr<SystemProperty> property) {
    return client_->call<void>(89, property);
}
std::vector<std::wstring>
RemoteEngine::getVendorModuleNames(std::shared_ptr<InterfaceInformation> interfaceInfo) {
    return client_->call<std::vector<std::wstring>>(90, interfaceInfo);
}
std::vector<std::wstring> RemoteEngine::getVendorModuleNamesEx(const std::wstring& text) {
    return client_->call<std::vector<std::wstring>>(91, text);
}
std::vector<std::shared_ptr<ServiceResult>>
RemoteEngine::executeService(const std::wstring& target,
                             const std::vector<std::shared_ptr<ServiceInput>>& services) {
    return client_->call<std::vector<std::shared_ptr<ServiceResult>>>(92, target, services);
}
uint64_t
RemoteEngine::executeServiceAsync(const std::wstring& target,
                                  const std::vector<std::shared_ptr<ServiceInput>>& services,
                                  ExecuteServiceCallback* callback) {
    return client_->callAsync(93, callback, target, services);
}
std::vector<std::shared_ptr<ModuleDyn>>
RemoteEngine::detectDynInterfaces(uint32_t value,
                                  std::shared_ptr<DynInterfaceDetection> detection) {
    return client_->call<std::vector<std::shared_ptr<ModuleDyn>>>(94, value, detection);
}
uint64_t RemoteEngine::detectDynInterfacesAsync(uint32_t value,
                                                std::shared_ptr<DynInterfaceDetection> detection,
                                                DetectDynInterfacesCallback* callback) {
    return client_->callAsync(95, callback, value, detection);
}
void RemoteEngine::connectDynInterface(const std::wstring& name, bool flag,
                                       std::shared_ptr<DynInterfaceDetection> detection) {
    return client_->call<void>(96, name, flag, detection);
}
void RemoteEngine::disconnectDynInterfaces(const std::vector<std::wstring>& names) {
    return client_->call<void>(97, names);
}
void RemoteEngine::updateCyclicServices(
    uint64_t cyclic, const std::vector<std::shared_ptr<ServiceInput>>& services) {
    return client_->call<void>(98, cyclic, services);
}
void RemoteEngine::cancelAsyncCalls(const std::vector<uint64_t>& callIds) {
    return client_->call<void>(99, callIds);
}
std::shared_ptr<DirectoryInfo> RemoteEngine::getProjectDirectory(bool flag) {
    return client_->call<std::shared_ptr<DirectoryInfo>>(100, flag);
}
std::shared_ptr<DirectoryInfo> RemoteEngine::getSelectedProjectDirectory(bool flag) {
    return client_->call<std::shared_ptr<DirectoryInfo>>(101, flag);
}
uint32_t RemoteEngine::writeFile(const std::wstring& path, const std::vector<uint8_t>& data,
                                 uint32_t value, bool flag) {
    return client_->call<uint32_t>(102, path, data, value, flag);
}
std::shared_ptr<KelError>
RemoteEngine::deleteFiles(const std::vector<std::shared_ptr<FileInfo>>& files) {
    return client_->call<std::shared_ptr<KelError>>(103, files);
}
std::vector<std::shared_ptr<DirectoryInfo>>
RemoteEngine::findDirectories(std::shared_ptr<DirectoryInfo> directory, const std::wstring& pattern,
                              bool flag) {
    return client_->call<std::vector<std::shared_ptr<DirectoryInfo>>>(104, directory, pattern,
                                                                      flag);
}
std::vector<std::shared_ptr<FileInfo>>
RemoteEngine::findFiles(const std::wstring& directory, const std::wstring& pattern, bool flag) {
    return client_->call<std::vector<std::shared_ptr<FileInfo>>>(105, directory, pattern, flag);
}
std::shared_ptr<DirectoryInfo>
RemoteEngine::initializeDirectoryElements(std::shared_ptr<DirectoryInfo> directory, bool flag) {
    return client_->call<std::shared_ptr<DirectoryInfo>>(106, directory, flag);
}
std::shared_ptr<FileInfo> RemoteEngine::createFile(std::shared_ptr<DirectoryInfo> parent,
                                                   const std::wstring& name) {
    return client_->call<std::shared_ptr<FileInfo>>(107, parent, name);
}
std::shared_ptr<DirectoryInfo> RemoteEngine::createDirectory(std::shared_ptr<DirectoryInfo> parent,
                                                             const std::wstring& name) {
    return client_->call<std::shared_ptr<DirectoryInfo>>(108, parent, name);
}
std::shared_ptr<KelError> RemoteEngine::deleteDirectory(const std::wstring& path) {
    return client_->call<std::shared_ptr<KelError>>(109, path);
}
std::shared_ptr<DirectoryInfo> RemoteEngine::getTraceDirectory(bool flag) {
    return client_->call<std::shared_ptr<DirectoryInfo>>(110, flag);
}
std::wstring RemoteEngine::createVehicleReport(std::shared_ptr<VehicleReportConfig> config) {
    return client_->call<std::wstring>(111, config);
}
std::vector<std::shared_ptr<EcuOrderEntry>> RemoteEngine::readEcuOrder(const std::wstring& path) {
    return client_->call<std::vector<std::shared_ptr<EcuOrderEntry>>>(112, path);
}
std::vector<std::shared_ptr<EcuOrderEntry>>
RemoteEngine::filterEcuOrder(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                             const std::vector<std::wstring>& targets) {
    return client_->call<std::vector<std::shared_ptr<EcuOrderEntry>>>(113, entries, targets);
}
std::vector<std::shared_ptr<EcuOrderEntry>> RemoteEngine::addMissingTargetsToEcuOrder(
    const std::vector<std::shared_ptr<EcuOrderEntry>>& entries) {
    return client_->call<std::vector<std::shared_ptr<EcuOrderEntry>>>(114, entries);
}
uint64_t RemoteEngine::lock() { return client_->call<uint64_t>(115); }
void RemoteEngine::unlock(uint64_t lockId) { return client_->call<void>(116, lockId); }
bool RemoteEngine::isLocked() { return client_->call<bool>(117); }
void RemoteEngine::breakLock() { return client_->call<void>(118); }
void RemoteEngine::setEthernetPinState(uint8_t state, const std::vector<std::wstring>& interfaces) {
    return client_->call<void>(119, state, interfaces);
}
uint32_t RemoteEngine::getEthernetPinState(const std::wstring& interfaceName) {
    return client_->call<uint32_t>(120, interfaceName);
}
std::vector<std::shared_ptr<ModuleDyn>> RemoteEngine::detectDynInterfacesEx(uint32_t value) {
    return client_->call<std::vector<std::shared_ptr<ModuleDyn>>>(121, value);
}
uint64_t RemoteEngine::detectDynInterfacesExAsync(uint32_t value,
                                                  DetectDynInterfacesExCallback* callback) {
    return client_->callAsync(122, callback, value);
}
void RemoteEngine::connectDynInterfaceEx(const std::wstring& name, bool flag) {
    return client_->call<void>(123, name, flag);
}
void RemoteEngine::addUser(const std::wstring& name, const std::wstring& password, uint32_t role) {
    return client_->call<void>(124, name, password, role);
}
void RemoteEngine::removeUser(const std::wstring& name) { return client_->call<void>(125, name); }
std::vector<std::shared_ptr<UserInfo>> RemoteEngine::getUsers() {
    return client_->call<std::vector<std::shared_ptr<UserInfo>>>(126);
}
void RemoteEngine::logOut(std::shared_ptr<LogInOutConfig> config) {
    return client_->call<void>(127, config);
}
void RemoteEngine::updateUser(const std::wstring& name, const std::wstring& newName,
                              const std::wstring& newPassword, uint32_t role) {
    return client_->call<void>(128, name, newName, newPassword, role);
}
bool RemoteEngine::getServerUserManagement() { return client_->call<bool>(129); }
void RemoteEngine::setServerUserManagement(bool enabled) {
    return client_->call<void>(130, enabled);
}
void RemoteEngine::registerServerHandler(std::shared_ptr<ServerHandler>) {
    throw Remote::notRemotable("registerServerHandler",
                               L"a server handler is an object of the caller's process: register "
                               L"it on the server's own engine");
}
void RemoteEngine::reserved132() { return client_->call<void>(132); }
void RemoteEngine::disconnectAllClients() { return client_->call<void>(133); }
bool RemoteEngine::testSocketBridge(uint64_t bridge) { return client_->call<bool>(134, bridge); }
void RemoteEngine::reserved135() { return client_->call<void>(135); }
std::vector<std::shared_ptr<FileCopyResult>>
RemoteEngine::copyFiles(std::shared_ptr<FileCopyConfig> config) {
    return client_->call<std::vector<std::shared_ptr<FileCopyResult>>>(136, config);
}
uint64_t RemoteEngine::copyFilesAsync(std::shared_ptr<FileCopyConfig> config,
                                      CopyFilesCallback* callback) {
    return client_->callAsync(137, callback, config);
}
std::vector<std::shared_ptr<DirectoryCopyResult>>
RemoteEngine::copyDirectories(std::shared_ptr<DirectoryCopyConfig> config) {
    return client_->call<std::vector<std::shared_ptr<DirectoryCopyResult>>>(138, config);
}
uint64_t RemoteEngine::copyDirectoriesAsync(std::shared_ptr<DirectoryCopyConfig> config,
                                            CopyDirectoriesCallback* callback) {
    return client_->callAsync(139, callback, config);
}
std::wstring RemoteEngine::calculateChecksum(const std::wstring& path, int32_t algorithm) {
    return client_->call<std::wstring>(140, path, algorithm);
}
void RemoteEngine::reserved141() { return client_->call<void>(141); }
void RemoteEngine::reserved142() { return client_->call<void>(142); }
void RemoteEngine::reserved143() { return client_->call<void>(143); }
void RemoteEngine::reserved144() { return client_->call<void>(144); }
uint64_t RemoteEngine::runSequence(const std::wstring& sequence,
                                   const std::vector<std::wstring>& arguments) {
    return client_->call<uint64_t>(145, sequence, arguments);
}
std::shared_ptr<UnlockResult>
RemoteEngine::unlockVehicle(const std::wstring& target,
                            const std::vector<std::shared_ptr<ServiceInput>>& services) {
    return client_->call<std::shared_ptr<UnlockResult>>(146, target, services);
}
uint64_t RemoteEngine::releaseVehicleUnlock(uint64_t value) {
    return client_->call<uint64_t>(147, value);
}
void RemoteEngine::cancelSequence(uint64_t run) { return client_->call<void>(148, run); }
std::vector<std::shared_ptr<DeviceInfo>> RemoteEngine::getRegisteredDevices() {
    return client_->call<std::vector<std::shared_ptr<DeviceInfo>>>(149);
}
std::shared_ptr<SystemInfo> RemoteEngine::getSystemInfo() {
    return client_->call<std::shared_ptr<SystemInfo>>(150);
}
void RemoteEngine::applyUpdatePackage(const std::wstring& package) {
    return client_->call<void>(151, package);
}
void RemoteEngine::renameFile(const std::wstring& path, const std::wstring& newName) {
    return client_->call<void>(152, path, newName);
}
void RemoteEngine::onConnectionBroken() { return client_->call<void>(153); }
std::vector<std::shared_ptr<UpdatePackageInfo>> RemoteEngine::getUpdatePackages() {
    return client_->call<std::vector<std::shared_ptr<UpdatePackageInfo>>>(154);
}
std::vector<std::shared_ptr<UpdatePackageInfo>> RemoteEngine::getPackagesFromBroker() {
    return client_->call<std::vector<std::shared_ptr<UpdatePackageInfo>>>(155);
}
bool RemoteEngine::checkUpdatesOnBroker() { return client_->call<bool>(156); }
bool RemoteEngine::autoUpdate() { return client_->call<bool>(157); }
std::shared_ptr<DirectoryInfo> RemoteEngine::getConfigDirectory(bool flag) {
    return client_->call<std::shared_ptr<DirectoryInfo>>(158, flag);
}
void RemoteEngine::reserved159() { return client_->call<void>(159); }
uint64_t RemoteEngine::createApiTraceMonitor() { return client_->call<uint64_t>(160); }
std::vector<uint8_t> RemoteEngine::getApiTraceContent(uint64_t handle, uint32_t value1,
                                                      int32_t value2) {
    return client_->call<std::vector<uint8_t>>(161, handle, value1, value2);
}
void RemoteEngine::releaseApiTraceMonitor(uint64_t handle) {
    return client_->call<void>(162, handle);
}
std::vector<std::shared_ptr<NamedItem>> RemoteEngine::getCurrentVersions() {
    return client_->call<std::vector<std::shared_ptr<NamedItem>>>(163);
}
bool RemoteEngine::checkUpdateSuccess() { return client_->call<bool>(164); }
void RemoteEngine::cleanUpdateTmp() { return client_->call<void>(165); }
std::vector<std::shared_ptr<FlashSessionResult>>
RemoteEngine::executeFlashSessionsConfig(std::shared_ptr<FlashSessionsConfig> config) {
    return client_->call<std::vector<std::shared_ptr<FlashSessionResult>>>(166, config);
}
uint64_t
RemoteEngine::executeFlashSessionsConfigAsync(std::shared_ptr<FlashSessionsConfig> config,
                                              ExecuteFlashSessionsConfigCallback* callback) {
    return client_->callAsync(167, callback, config);
}
std::vector<std::shared_ptr<LoadDatabaseResult>>
RemoteEngine::loadDatabaseFile(const std::vector<std::wstring>& files) {
    return client_->call<std::vector<std::shared_ptr<LoadDatabaseResult>>>(168, files);
}
std::vector<std::shared_ptr<FileInfo>>
RemoteEngine::copyProjectWithFilters(const std::vector<std::shared_ptr<FileFilter>>& filters,
                                     bool flag, std::shared_ptr<FileCopyConfig> config,
                                     const std::wstring& text) {
    return client_->call<std::vector<std::shared_ptr<FileInfo>>>(169, filters, flag, config, text);
}
void RemoteEngine::reserved170() { return client_->call<void>(170); }
void RemoteEngine::reserved171() { return client_->call<void>(171); }
bool RemoteEngine::reconnectRemoteServer(uint64_t handle) {
    return client_->reconnect(172, handle);
}
std::vector<std::wstring>
RemoteEngine::filterFiles(const std::vector<std::shared_ptr<FileFilter>>& filters,
                          const std::wstring& text) {
    return client_->call<std::vector<std::wstring>>(173, filters, text);
}
void RemoteEngine::reserved174() { return client_->call<void>(174); }
std::vector<std::shared_ptr<LoadDatabaseResult>>
RemoteEngine::unloadDatabaseFile(const std::vector<std::wstring>& files) {
    return client_->call<std::vector<std::shared_ptr<LoadDatabaseResult>>>(175, files);
}
std::vector<std::shared_ptr<DirectoryInfo>> RemoteEngine::getPublicDirectories() {
    return client_->call<std::vector<std::shared_ptr<DirectoryInfo>>>(176);
}
std::vector<std::shared_ptr<VehicleUpdateResult>>
RemoteEngine::updateVehicle(std::shared_ptr<VehicleUpdateConfig> config) {
    return client_->call<std::vector<std::shared_ptr<VehicleUpdateResult>>>(177, config);
}
uint64_t RemoteEngine::updateVehicleAsync(std::shared_ptr<VehicleUpdateConfig> config,
                                          UpdateVehicleCallback* callback) {
    return client_->callAsync(178, callback, config);
}
std::vector<std::shared_ptr<ServiceResult>> RemoteEngine::executeServiceInDefaultSession(
    const std::wstring& target, const std::vector<std::shared_ptr<ServiceInput>>& services) {
    return client_->call<std::vector<std::shared_ptr<ServiceResult>>>(179, target, services);
}
uint64_t RemoteEngine::executeServiceInDefaultSessionAsync(
    const std::wstring& target, const std::vector<std::shared_ptr<ServiceInput>>& services,
    ExecuteServiceInDefaultSessionCallback* callback) {
    return client_->callAsync(180, callback, target, services);
}
std::vector<std::shared_ptr<TargetStatus>>
RemoteEngine::getTargetStatus(const std::vector<std::wstring>& targets) {
    return client_->call<std::vector<std::shared_ptr<TargetStatus>>>(181, targets);
}
std::vector<std::shared_ptr<PhysicalLinksOnModule>>
RemoteEngine::getPhysicalLinks(const std::vector<std::wstring>& modules) {
    return client_->call<std::vector<std::shared_ptr<PhysicalLinksOnModule>>>(182, modules);
}
std::vector<std::shared_ptr<PhysicalLinksOnModule>>
RemoteEngine::setPhysicalLinks(const std::vector<std::shared_ptr<PhysicalLinksOnModule>>& links) {
    return client_->call<std::vector<std::shared_ptr<PhysicalLinksOnModule>>>(183, links);
}
bool RemoteEngine::moveFile(const std::wstring& source, const std::wstring& target) {
    return client_->call<bool>(184, source, target);
}
bool RemoteEngine::moveDirectory(const std::wstring& source, const std::wstring& target) {
    return client_->call<bool>(185, source, target);
}
bool RemoteEngine::pathExists(const std::wstring& path) { return client_->call<bool>(186, path); }
void RemoteEngine::reserved187() { return client_->call<void>(187); }
std::wstring RemoteEngine::resolvePath(const std::wstring& path) {
    return client_->call<std::wstring>(188, path);
}
void RemoteEngine::reserved189() { return client_->call<void>(189); }
void RemoteEngine::reserved190() { return client_->call<void>(190); }
std::vector<std::shared_ptr<VehicleData>> RemoteEngine::getVehicleData() {
    return client_->call<std::vector<std::shared_ptr<VehicleData>>>(191);
}
std::vector<std::shared_ptr<ProjectDetails>>
RemoteEngine::getProjectsDetails(const std::vector<std::wstring>& projectNames) {
    return client_->call<std::vector<std::shared_ptr<ProjectDetails>>>(192, projectNames);
}
void RemoteEngine::uploadReport(std::shared_ptr<UploadReportConfiguration> config) {
    return client_->call<void>(193, config);
}
std::vector<std::shared_ptr<FileReferenceResult>>
RemoteEngine::getFileReferences(const std::vector<std::wstring>& files) {
    return client_->call<std::vector<std::shared_ptr<FileReferenceResult>>>(194, files);
}
void RemoteEngine::onConnectionClosed() { return client_->call<void>(195); }
bool RemoteEngine::openTerminal() { return client_->call<bool>(196); }
void RemoteEngine::closeTerminal() { return client_->call<void>(197); }
void RemoteEngine::reserved198() { return client_->call<void>(198); }
void RemoteEngine::reserved199() { return client_->call<void>(199); }
bool RemoteEngine::isDirectory(const std::wstring& path) { return client_->call<bool>(200, path); }
std::shared_ptr<DirectoryInfo> RemoteEngine::getDirectoryInfo(const std::wstring& path, bool flag) {
    return client_->call<std::shared_ptr<DirectoryInfo>>(201, path, flag);
}
std::shared_ptr<FileInfo> RemoteEngine::getFileInfo(const std::wstring& path) {
    return client_->call<std::shared_ptr<FileInfo>>(202, path);
}
bool RemoteEngine::isFile(const std::wstring& path) { return client_->call<bool>(203, path); }
std::shared_ptr<WLanSignalData> RemoteEngine::getWLanSignalData(const std::wstring& interfaceName) {
    return client_->call<std::shared_ptr<WLanSignalData>>(204, interfaceName);
}
std::vector<std::shared_ptr<KelError>> RemoteEngine::clearDoIPEcuCollection() {
    return client_->call<std::vector<std::shared_ptr<KelError>>>(205);
}
void RemoteEngine::setBrokerUrl(const std::wstring& url) { return client_->call<void>(206, url); }
std::vector<std::shared_ptr<PathCopyResult>>
RemoteEngine::copyPath(std::shared_ptr<PathCopyConfig> config) {
    return client_->call<std::vector<std::shared_ptr<PathCopyResult>>>(207, config);
}
uint64_t RemoteEngine::copyPathAsync(std::shared_ptr<PathCopyConfig> config,
                                     CopyPathCallback* callback) {
    return client_->callAsync(208, callback, config);
}
void RemoteEngine::reserved209() { return client_->call<void>(209); }
void RemoteEngine::reserved210() { return client_->call<void>(210); }
void RemoteEngine::reserved211() { return client_->call<void>(211); }
void RemoteEngine::reserved212() { return client_->call<void>(212); }
bool RemoteEngine::thirdPartyLogin(const std::wstring& code) {
    return client_->call<bool>(213, code);
}
void RemoteEngine::clearUpdatePackages() { return client_->call<void>(214); }
std::wstring RemoteEngine::getThirdPartyLoginUrl(const std::wstring& provider) {
    return client_->call<std::wstring>(215, provider);
}
void RemoteEngine::selectDynamicProject(const std::wstring& projectName,
                                        const std::vector<std::wstring>& items) {
    return client_->call<void>(216, projectName, items);
}
std::wstring RemoteEngine::getCertificateByPublicKey(const std::wstring& publicKey,
                                                     const std::wstring& text2,
                                                     const std::wstring& text3,
                                                     const std::wstring& text4) {
    return client_->call<std::wstring>(217, publicKey, text2, text3, text4);
}
std::wstring
RemoteEngine::createCertificateFromCSR(const std::wstring& text1, const std::wstring& text2,
                                       const std::wstring& text3, const std::wstring& text4,
                                       const std::wstring& text5, const std::wstring& text6) {
    return client_->call<std::wstring>(218, text1, text2, text3, text4, text5, text6);
}
std::vector<std::wstring> RemoteEngine::getCertificateChainById(const std::wstring& id,
                                                                const std::wstring& text2,
                                                                const std::wstring& text3) {
    return client_->call<std::vector<std::wstring>>(219, id, text2, text3);
}
std::vector<std::shared_ptr<EcuOrderEntry>> RemoteEngine::createDefaultECUOrder() {
    return client_->call<std::vector<std::shared_ptr<EcuOrderEntry>>>(220);
}
std::vector<std::shared_ptr<CodingFileResult>>
RemoteEngine::writeCodingFile(const std::wstring& codingFile,
                              const std::vector<std::wstring>& targets) {
    return client_->call<std::vector<std::shared_ptr<CodingFileResult>>>(221, codingFile, targets);
}
uint64_t RemoteEngine::writeCodingFileAsync(const std::wstring& codingFile,
                                            const std::vector<std::wstring>& targets,
                                            WriteCodingFileCallback* callback) {
    return client_->callAsync(222, callback, codingFile, targets);
}
void RemoteEngine::writeEcuOrder(const std::wstring& path,
                                 const std::vector<std::shared_ptr<EcuOrderEntry>>& entries) {
    return client_->call<void>(223, path, entries);
}
std::wstring RemoteEngine::getEcuOrderFilePath() { return client_->call<std::wstring>(224); }
std::vector<std::shared_ptr<VehicleUpdateResult>>
RemoteEngine::performVehicleUpdate(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                                   std::shared_ptr<VehicleUpdateConfig> config) {
    return client_->call<std::vector<std::shared_ptr<VehicleUpdateResult>>>(225, entries, config);
}
uint64_t
RemoteEngine::performVehicleUpdateAsync(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                                        std::shared_ptr<VehicleUpdateConfig> config,
                                        PerformVehicleUpdateCallback* callback) {
    return client_->callAsync(226, callback, entries, config);
}
void RemoteEngine::triggerAsyncCancels(const std::vector<uint64_t>& callIds) {
    return client_->call<void>(227, callIds);
}
std::vector<std::shared_ptr<ServiceResult>>
RemoteEngine::executeSequence(const std::wstring& target, const std::wstring& sequence,
                              const std::vector<std::shared_ptr<ParameterInput>>& parameters) {
    return client_->call<std::vector<std::shared_ptr<ServiceResult>>>(228, target, sequence,
                                                                      parameters);
}
uint64_t
RemoteEngine::executeSequenceAsync(const std::wstring& target, const std::wstring& sequence,
                                   const std::vector<std::shared_ptr<ParameterInput>>& parameters,
                                   ExecuteSequenceCallback* callback) {
    return client_->callAsync(229, callback, target, sequence, parameters);
}
void RemoteEngine::addPublicDirectory(const std::wstring& name, const std::wstring& path) {
    return client_->call<void>(230, name, path);
}
std::wstring RemoteEngine::createVehicleUpdateReport(
    const std::vector<std::shared_ptr<VehicleUpdateResult>>& results) {
    return client_->call<std::wstring>(231, results);
}
std::shared_ptr<ParameterInfo>
RemoteEngine::getParameterInfo(std::shared_ptr<ParameterInfoConfig> config) {
    return client_->call<std::shared_ptr<ParameterInfo>>(232, config);
}
std::vector<std::shared_ptr<EcuConfigurationResult>>
RemoteEngine::performEcuConfiguration(const std::vector<std::wstring>& targets,
                                      const std::wstring& configuration) {
    return client_->call<std::vector<std::shared_ptr<EcuConfigurationResult>>>(233, targets,
                                                                               configuration);
}
uint64_t RemoteEngine::performEcuConfigurationAsync(const std::vector<std::wstring>& targets,
                                                    const std::wstring& configuration,
                                                    PerformEcuConfigurationCallback* callback) {
    return client_->callAsync(234, callback, targets, configuration);
}
std::vector<std::shared_ptr<ClearDtcResult>>
RemoteEngine::clearSpecificDtcs(const std::wstring& target, const std::vector<uint32_t>& dtcCodes) {
    return client_->call<std::vector<std::shared_ptr<ClearDtcResult>>>(235, target, dtcCodes);
}
uint64_t RemoteEngine::clearSpecificDtcsAsync(const std::wstring& target,
                                              const std::vector<uint32_t>& dtcCodes,
                                              ClearSpecificDtcsCallback* callback) {
    return client_->callAsync(236, callback, target, dtcCodes);
}
void RemoteEngine::startSOVDServer() { return client_->call<void>(237); }
void RemoteEngine::stopSOVDServer() { return client_->call<void>(238); }
void RemoteEngine::logIn(std::shared_ptr<LogInOutConfig> config) { client_->logIn(config); }
std::shared_ptr<VehicleUpdateConfig>
RemoteEngine::createVehicleUpdateConfig(const std::vector<std::wstring>& targets) {
    return client_->call<std::shared_ptr<VehicleUpdateConfig>>(240, targets);
}
std::vector<std::shared_ptr<ProjectConfig>> RemoteEngine::getProjectConfigurations() {
    return client_->call<std::vector<std::shared_ptr<ProjectConfig>>>(241);
}
int32_t RemoteEngine::getState() { return client_->call<int32_t>(242); }
std::wstring RemoteEngine::getVersion() { return client_->call<std::wstring>(243); }
std::wstring RemoteEngine::getSelectedProject() { return client_->call<std::wstring>(244); }
void RemoteEngine::setSelectedProject(const std::wstring& projectName) {
    return client_->call<void>(245, projectName);
}
std::shared_ptr<TarnApiConfig> RemoteEngine::getConfiguration() {
    return client_->call<std::shared_ptr<TarnApiConfig>>(246);
}
void RemoteEngine::setConfiguration(std::shared_ptr<TarnApiConfig> config) {
    return client_->call<void>(247, config);
}
std::shared_ptr<ServerSettings> RemoteEngine::getServerSettings() {
    return client_->call<std::shared_ptr<ServerSettings>>(248);
}
std::shared_ptr<VehicleInformation> RemoteEngine::getSelectedVehicleInformation() {
    return client_->call<std::shared_ptr<VehicleInformation>>(249);
}
void RemoteEngine::setSelectedVehicleInformation(std::shared_ptr<VehicleInformation> information) {
    return client_->call<void>(250, information);
}
std::vector<std::shared_ptr<Target>> RemoteEngine::getTargets() {
    return client_->call<std::vector<std::shared_ptr<Target>>>(251);
}
std::shared_ptr<ProcessInfo> RemoteEngine::getProcessInfo() {
    return client_->call<std::shared_ptr<ProcessInfo>>(252);
}
std::shared_ptr<TransmissionInfo> RemoteEngine::getTransmissionInfo() {
    return client_->call<std::shared_ptr<TransmissionInfo>>(253);
}
uint64_t RemoteEngine::getHandle() { return client_->handle(); }
std::shared_ptr<MoxConfig> RemoteEngine::getMoxConfiguration() {
    return client_->call<std::shared_ptr<MoxConfig>>(255);
}
void RemoteEngine::setMoxConfiguration(std::shared_ptr<MoxConfig> config) {
    return client_->call<void>(256, config);
}
std::shared_ptr<InterfaceConfiguration> RemoteEngine::getInterfaceConfiguration() {
    return client_->call<std::shared_ptr<InterfaceConfiguration>>(257);
}
void RemoteEngine::setInterfaceConfiguration(std::shared_ptr<InterfaceConfiguration> config) {
    return client_->call<void>(258, config);
}
std::vector<std::wstring> RemoteEngine::getMonitoringLinks() {
    return client_->call<std::vector<std::wstring>>(259);
}
std::vector<std::shared_ptr<GlobalProtocolParameterSet>>
RemoteEngine::getGlobalProtocolParameterSets() {
    return client_->call<std::vector<std::shared_ptr<GlobalProtocolParameterSet>>>(260);
}
void RemoteEngine::setGlobalProtocolParameterSets(
    const std::vector<std::shared_ptr<GlobalProtocolParameterSet>>& sets) {
    return client_->call<void>(261, sets);
}
std::shared_ptr<StatusInfo> RemoteEngine::getStatusInfo() {
    return client_->call<std::shared_ptr<StatusInfo>>(262);
}
std::vector<std::shared_ptr<TargetFilter>> RemoteEngine::getSessionTargetFilters() {
    return client_->call<std::vector<std::shared_ptr<TargetFilter>>>(263);
}
void RemoteEngine::setSessionTargetFilters(
    const std::vector<std::shared_ptr<TargetFilter>>& filters) {
    return client_->call<void>(264, filters);
}
std::vector<std::shared_ptr<SupportedInterface>> RemoteEngine::getSupportedInterfaces() {
    return client_->call<std::vector<std::shared_ptr<SupportedInterface>>>(265);
}
std::vector<std::shared_ptr<InterfaceProvider>> RemoteEngine::getInterfaceProviders() {
    return client_->call<std::vector<std::shared_ptr<InterfaceProvider>>>(266);
}
void RemoteEngine::setInterfaceProviders(
    const std::vector<std::shared_ptr<InterfaceProviderDyn>>& providers) {
    return client_->call<void>(267, providers);
}
std::wstring RemoteEngine::getCurrentDebugTraceDirectory() {
    return client_->call<std::wstring>(268);
}
std::shared_ptr<TarnApiServerConfig> RemoteEngine::getServerConfiguration() {
    return client_->call<std::shared_ptr<TarnApiServerConfig>>(269);
}
uint64_t RemoteEngine::getCallDuration() { return client_->call<uint64_t>(270); }
void RemoteEngine::setStatusText(const std::wstring& text) {
    return client_->call<void>(271, text);
}
std::shared_ptr<DoIPParameter> RemoteEngine::getDefaultDoIPParameter() {
    return client_->call<std::shared_ptr<DoIPParameter>>(272);
}

} // namespace Varno::Kel_cpp::Reference
