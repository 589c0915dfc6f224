// Generated from the interface description by tools/generate.py. Do not edit.

#include "Families.h"

#include <utility>

namespace Varno::Kel_cpp::Reference {

void LifecycleFamily::initialize() { throw unsupported("initialize"); }
void LifecycleFamily::end() { throw unsupported("end"); }
void LifecycleFamily::cancelAllAsyncCalls() { throw unsupported("cancelAllAsyncCalls"); }
void LifecycleFamily::cancelAsyncCalls(const std::vector<uint64_t>&) {
    throw unsupported("cancelAsyncCalls");
}
uint64_t LifecycleFamily::lock() { throw unsupported("lock"); }
void LifecycleFamily::unlock(uint64_t) { throw unsupported("unlock"); }
bool LifecycleFamily::isLocked() { throw unsupported("isLocked"); }
void LifecycleFamily::breakLock() { throw unsupported("breakLock"); }
void LifecycleFamily::triggerAsyncCancels(const std::vector<uint64_t>&) {
    throw unsupported("triggerAsyncCancels");
}
int32_t LifecycleFamily::getState() { throw unsupported("getState"); }
uint64_t LifecycleFamily::getHandle() { throw unsupported("getHandle"); }
uint64_t LifecycleFamily::getCallDuration() { throw unsupported("getCallDuration"); }

uint64_t EventsFamily::openEventChannel() { throw unsupported("openEventChannel"); }
void EventsFamily::closeEventChannel(uint64_t) { throw unsupported("closeEventChannel"); }
std::shared_ptr<EventReport> EventsFamily::getCurrentEvents(uint64_t, uint32_t) {
    throw unsupported("getCurrentEvents");
}
void EventsFamily::registerServerHandler(std::shared_ptr<ServerHandler>) {
    throw unsupported("registerServerHandler");
}
void EventsFamily::onConnectionBroken() { throw unsupported("onConnectionBroken"); }
void EventsFamily::onConnectionClosed() { throw unsupported("onConnectionClosed"); }

std::vector<std::shared_ptr<VariantIdentResult>> DiagnosticsFamily::identifyAllTargets() {
    throw unsupported("identifyAllTargets");
}
uint64_t DiagnosticsFamily::identifyAllTargetsAsync(IdentifyAllTargetsCallback*) {
    throw unsupported("identifyAllTargetsAsync");
}
std::vector<std::shared_ptr<ReadDataResult>>
DiagnosticsFamily::readIdentificationValues(const std::vector<std::wstring>&) {
    throw unsupported("readIdentificationValues");
}
uint64_t DiagnosticsFamily::readIdentificationValuesAsync(const std::vector<std::wstring>&,
                                                          ReadIdentificationValuesCallback*) {
    throw unsupported("readIdentificationValuesAsync");
}
std::vector<std::shared_ptr<ReadDataResult>>
DiagnosticsFamily::readDataByIdentifiers(const std::wstring&, const std::vector<std::wstring>&) {
    throw unsupported("readDataByIdentifiers");
}
std::shared_ptr<VariantIdentResult> DiagnosticsFamily::identifyTarget(const std::wstring&) {
    throw unsupported("identifyTarget");
}
std::vector<std::shared_ptr<ReadDtcResult>>
DiagnosticsFamily::readDtcs(const std::vector<std::wstring>&, std::shared_ptr<DtcReadConfig>) {
    throw unsupported("readDtcs");
}
uint64_t DiagnosticsFamily::readDtcsAsync(const std::vector<std::wstring>&,
                                          std::shared_ptr<DtcReadConfig>, ReadDtcsCallback*) {
    throw unsupported("readDtcsAsync");
}
std::vector<std::shared_ptr<SupportedDtcResult>>
DiagnosticsFamily::readSupportedDtcs(const std::vector<std::wstring>&,
                                     std::shared_ptr<DtcReadConfig>) {
    throw unsupported("readSupportedDtcs");
}
uint64_t DiagnosticsFamily::readSupportedDtcsAsync(const std::vector<std::wstring>&,
                                                   std::shared_ptr<DtcReadConfig>,
                                                   ReadSupportedDtcsCallback*) {
    throw unsupported("readSupportedDtcsAsync");
}
std::vector<std::shared_ptr<ClearDtcResult>>
DiagnosticsFamily::clearAllDtcs(const std::vector<std::wstring>&) {
    throw unsupported("clearAllDtcs");
}
uint64_t DiagnosticsFamily::clearAllDtcsAsync(const std::vector<std::wstring>&,
                                              ClearAllDtcsCallback*) {
    throw unsupported("clearAllDtcsAsync");
}
std::vector<std::shared_ptr<QuickTestResult>>
DiagnosticsFamily::performQuickTest(const std::vector<std::wstring>&,
                                    std::shared_ptr<DtcReadConfig>) {
    throw unsupported("performQuickTest");
}
uint64_t DiagnosticsFamily::performQuickTestAsync(const std::vector<std::wstring>&,
                                                  std::shared_ptr<DtcReadConfig>,
                                                  PerformQuickTestCallback*) {
    throw unsupported("performQuickTestAsync");
}
std::vector<std::shared_ptr<VariantIdentResult>>
DiagnosticsFamily::identifyTargets(const std::vector<std::wstring>&) {
    throw unsupported("identifyTargets");
}
uint64_t DiagnosticsFamily::identifyTargetsAsync(const std::vector<std::wstring>&,
                                                 IdentifyTargetsCallback*) {
    throw unsupported("identifyTargetsAsync");
}
std::vector<std::shared_ptr<Target>>
DiagnosticsFamily::getFilteredTargets(const std::vector<std::shared_ptr<TargetFilter>>&) {
    throw unsupported("getFilteredTargets");
}
std::vector<std::shared_ptr<TargetStatus>>
DiagnosticsFamily::getTargetStatus(const std::vector<std::wstring>&) {
    throw unsupported("getTargetStatus");
}
std::vector<std::shared_ptr<ClearDtcResult>>
DiagnosticsFamily::clearSpecificDtcs(const std::wstring&, const std::vector<uint32_t>&) {
    throw unsupported("clearSpecificDtcs");
}
uint64_t DiagnosticsFamily::clearSpecificDtcsAsync(const std::wstring&,
                                                   const std::vector<uint32_t>&,
                                                   ClearSpecificDtcsCallback*) {
    throw unsupported("clearSpecificDtcsAsync");
}
std::vector<std::shared_ptr<Target>> DiagnosticsFamily::getTargets() {
    throw unsupported("getTargets");
}
std::vector<std::shared_ptr<TargetFilter>> DiagnosticsFamily::getSessionTargetFilters() {
    throw unsupported("getSessionTargetFilters");
}
void DiagnosticsFamily::setSessionTargetFilters(const std::vector<std::shared_ptr<TargetFilter>>&) {
    throw unsupported("setSessionTargetFilters");
}

std::vector<std::shared_ptr<ServiceInfo>>
ServicesFamily::getServiceInfos(const std::wstring&, const std::wstring&,
                                const std::vector<std::wstring>&, int32_t) {
    throw unsupported("getServiceInfos");
}
std::vector<std::shared_ptr<ParameterInfo>>
ServicesFamily::getIdentificationValueInfos(const std::wstring&) {
    throw unsupported("getIdentificationValueInfos");
}
std::vector<uint8_t> ServicesFamily::createSeed(uint32_t, uint32_t) {
    throw unsupported("createSeed");
}
void ServicesFamily::sendKey(const std::vector<uint8_t>&) { throw unsupported("sendKey"); }
std::vector<std::shared_ptr<ParameterInfo>>
ServicesFamily::getActuatorServiceInfos(const std::wstring&, const std::wstring&) {
    throw unsupported("getActuatorServiceInfos");
}
uint64_t ServicesFamily::startCyclicServices(const std::wstring&,
                                             const std::vector<std::shared_ptr<ServiceInput>>&,
                                             uint32_t) {
    throw unsupported("startCyclicServices");
}
std::vector<std::shared_ptr<ServiceResult>> ServicesFamily::getCyclicResults(uint64_t) {
    throw unsupported("getCyclicResults");
}
void ServicesFamily::stopCyclicServices(uint64_t) { throw unsupported("stopCyclicServices"); }
std::vector<std::shared_ptr<ServiceResult>>
ServicesFamily::executeService(const std::wstring&,
                               const std::vector<std::shared_ptr<ServiceInput>>&) {
    throw unsupported("executeService");
}
uint64_t ServicesFamily::executeServiceAsync(const std::wstring&,
                                             const std::vector<std::shared_ptr<ServiceInput>>&,
                                             ExecuteServiceCallback*) {
    throw unsupported("executeServiceAsync");
}
void ServicesFamily::updateCyclicServices(uint64_t,
                                          const std::vector<std::shared_ptr<ServiceInput>>&) {
    throw unsupported("updateCyclicServices");
}
std::shared_ptr<UnlockResult>
ServicesFamily::unlockVehicle(const std::wstring&,
                              const std::vector<std::shared_ptr<ServiceInput>>&) {
    throw unsupported("unlockVehicle");
}
uint64_t ServicesFamily::releaseVehicleUnlock(uint64_t) {
    throw unsupported("releaseVehicleUnlock");
}
std::vector<std::shared_ptr<ServiceResult>>
ServicesFamily::executeServiceInDefaultSession(const std::wstring&,
                                               const std::vector<std::shared_ptr<ServiceInput>>&) {
    throw unsupported("executeServiceInDefaultSession");
}
uint64_t ServicesFamily::executeServiceInDefaultSessionAsync(
    const std::wstring&, const std::vector<std::shared_ptr<ServiceInput>>&,
    ExecuteServiceInDefaultSessionCallback*) {
    throw unsupported("executeServiceInDefaultSessionAsync");
}
std::shared_ptr<ParameterInfo>
ServicesFamily::getParameterInfo(std::shared_ptr<ParameterInfoConfig>) {
    throw unsupported("getParameterInfo");
}

std::shared_ptr<ProjectConfig> ProjectsFamily::getProjectConfiguration(const std::wstring&) {
    throw unsupported("getProjectConfiguration");
}
void ProjectsFamily::setProjectConfiguration(const std::wstring&, std::shared_ptr<ProjectConfig>) {
    throw unsupported("setProjectConfiguration");
}
void ProjectsFamily::saveProjectConfiguration(const std::wstring&) {
    throw unsupported("saveProjectConfiguration");
}
void ProjectsFamily::saveConfiguration() { throw unsupported("saveConfiguration"); }
void ProjectsFamily::refreshProjectList() { throw unsupported("refreshProjectList"); }
bool ProjectsFamily::isProjectConversionRequired(const std::wstring&) {
    throw unsupported("isProjectConversionRequired");
}
void ProjectsFamily::convertProject(const std::wstring&) { throw unsupported("convertProject"); }
void ProjectsFamily::saveMoxConfiguration() { throw unsupported("saveMoxConfiguration"); }
std::shared_ptr<ProjectDetails> ProjectsFamily::getProjectDetails() {
    throw unsupported("getProjectDetails");
}
std::shared_ptr<SystemProperty> ProjectsFamily::getSystemProperty(const std::wstring&) {
    throw unsupported("getSystemProperty");
}
void ProjectsFamily::resetSystemProperty(const std::wstring&) {
    throw unsupported("resetSystemProperty");
}
void ProjectsFamily::setSystemProperty(std::shared_ptr<SystemProperty>) {
    throw unsupported("setSystemProperty");
}
std::shared_ptr<SystemInfo> ProjectsFamily::getSystemInfo() { throw unsupported("getSystemInfo"); }
std::vector<std::shared_ptr<LoadDatabaseResult>>
ProjectsFamily::loadDatabaseFile(const std::vector<std::wstring>&) {
    throw unsupported("loadDatabaseFile");
}
std::vector<std::shared_ptr<LoadDatabaseResult>>
ProjectsFamily::unloadDatabaseFile(const std::vector<std::wstring>&) {
    throw unsupported("unloadDatabaseFile");
}
std::vector<std::shared_ptr<ProjectDetails>>
ProjectsFamily::getProjectsDetails(const std::vector<std::wstring>&) {
    throw unsupported("getProjectsDetails");
}
void ProjectsFamily::selectDynamicProject(const std::wstring&, const std::vector<std::wstring>&) {
    throw unsupported("selectDynamicProject");
}
std::vector<std::shared_ptr<ProjectConfig>> ProjectsFamily::getProjectConfigurations() {
    throw unsupported("getProjectConfigurations");
}
std::wstring ProjectsFamily::getVersion() { throw unsupported("getVersion"); }
std::wstring ProjectsFamily::getSelectedProject() { throw unsupported("getSelectedProject"); }
void ProjectsFamily::setSelectedProject(const std::wstring&) {
    throw unsupported("setSelectedProject");
}
std::shared_ptr<TarnApiConfig> ProjectsFamily::getConfiguration() {
    throw unsupported("getConfiguration");
}
void ProjectsFamily::setConfiguration(std::shared_ptr<TarnApiConfig>) {
    throw unsupported("setConfiguration");
}
std::shared_ptr<ProcessInfo> ProjectsFamily::getProcessInfo() {
    throw unsupported("getProcessInfo");
}
std::shared_ptr<TransmissionInfo> ProjectsFamily::getTransmissionInfo() {
    throw unsupported("getTransmissionInfo");
}
std::shared_ptr<MoxConfig> ProjectsFamily::getMoxConfiguration() {
    throw unsupported("getMoxConfiguration");
}
void ProjectsFamily::setMoxConfiguration(std::shared_ptr<MoxConfig>) {
    throw unsupported("setMoxConfiguration");
}
std::vector<std::shared_ptr<GlobalProtocolParameterSet>>
ProjectsFamily::getGlobalProtocolParameterSets() {
    throw unsupported("getGlobalProtocolParameterSets");
}
void ProjectsFamily::setGlobalProtocolParameterSets(
    const std::vector<std::shared_ptr<GlobalProtocolParameterSet>>&) {
    throw unsupported("setGlobalProtocolParameterSets");
}
std::shared_ptr<StatusInfo> ProjectsFamily::getStatusInfo() { throw unsupported("getStatusInfo"); }
std::wstring ProjectsFamily::getCurrentDebugTraceDirectory() {
    throw unsupported("getCurrentDebugTraceDirectory");
}
void ProjectsFamily::setStatusText(const std::wstring&) { throw unsupported("setStatusText"); }

std::wstring ServersFamily::startServer(const std::wstring&) { throw unsupported("startServer"); }
void ServersFamily::stopServer(const std::wstring&) { throw unsupported("stopServer"); }
void ServersFamily::restartServer(int32_t) { throw unsupported("restartServer"); }
std::shared_ptr<TarnApi> ServersFamily::connectRemoteServer(const std::wstring&) {
    throw unsupported("connectRemoteServer");
}
void ServersFamily::disconnect() { throw unsupported("disconnect"); }
void ServersFamily::addUser(const std::wstring&, const std::wstring&, uint32_t) {
    throw unsupported("addUser");
}
void ServersFamily::removeUser(const std::wstring&) { throw unsupported("removeUser"); }
std::vector<std::shared_ptr<UserInfo>> ServersFamily::getUsers() { throw unsupported("getUsers"); }
void ServersFamily::logOut(std::shared_ptr<LogInOutConfig>) { throw unsupported("logOut"); }
void ServersFamily::updateUser(const std::wstring&, const std::wstring&, const std::wstring&,
                               uint32_t) {
    throw unsupported("updateUser");
}
bool ServersFamily::getServerUserManagement() { throw unsupported("getServerUserManagement"); }
void ServersFamily::setServerUserManagement(bool) { throw unsupported("setServerUserManagement"); }
void ServersFamily::disconnectAllClients() { throw unsupported("disconnectAllClients"); }
bool ServersFamily::reconnectRemoteServer(uint64_t) { throw unsupported("reconnectRemoteServer"); }
bool ServersFamily::thirdPartyLogin(const std::wstring&) { throw unsupported("thirdPartyLogin"); }
std::wstring ServersFamily::getThirdPartyLoginUrl(const std::wstring&) {
    throw unsupported("getThirdPartyLoginUrl");
}
std::wstring ServersFamily::getCertificateByPublicKey(const std::wstring&, const std::wstring&,
                                                      const std::wstring&, const std::wstring&) {
    throw unsupported("getCertificateByPublicKey");
}
std::wstring ServersFamily::createCertificateFromCSR(const std::wstring&, const std::wstring&,
                                                     const std::wstring&, const std::wstring&,
                                                     const std::wstring&, const std::wstring&) {
    throw unsupported("createCertificateFromCSR");
}
std::vector<std::wstring> ServersFamily::getCertificateChainById(const std::wstring&,
                                                                 const std::wstring&,
                                                                 const std::wstring&) {
    throw unsupported("getCertificateChainById");
}
void ServersFamily::startSOVDServer() { throw unsupported("startSOVDServer"); }
void ServersFamily::stopSOVDServer() { throw unsupported("stopSOVDServer"); }
void ServersFamily::logIn(std::shared_ptr<LogInOutConfig>) { throw unsupported("logIn"); }
std::shared_ptr<ServerSettings> ServersFamily::getServerSettings() {
    throw unsupported("getServerSettings");
}
std::shared_ptr<TarnApiServerConfig> ServersFamily::getServerConfiguration() {
    throw unsupported("getServerConfiguration");
}

void InterfacesFamily::saveInterfaceConfiguration() {
    throw unsupported("saveInterfaceConfiguration");
}
std::vector<std::shared_ptr<ScanInterfaceResult>>
InterfacesFamily::scanInterfaceConnection(const std::vector<std::wstring>&) {
    throw unsupported("scanInterfaceConnection");
}
uint64_t InterfacesFamily::scanInterfaceConnectionAsync(const std::vector<std::wstring>&,
                                                        ScanInterfaceConnectionCallback*) {
    throw unsupported("scanInterfaceConnectionAsync");
}
std::wstring InterfacesFamily::getInterfaceLongName(const std::wstring&) {
    throw unsupported("getInterfaceLongName");
}
void InterfacesFamily::connectInterfaces() { throw unsupported("connectInterfaces"); }
void InterfacesFamily::disconnectInterfaces() { throw unsupported("disconnectInterfaces"); }
void InterfacesFamily::executeDoIPBroadcast() { throw unsupported("executeDoIPBroadcast"); }
void InterfacesFamily::releaseSocketBridge(uint64_t) { throw unsupported("releaseSocketBridge"); }
uint64_t InterfacesFamily::createSocketBridge(uint32_t, uint32_t) {
    throw unsupported("createSocketBridge");
}
void InterfacesFamily::clearLinkCache() { throw unsupported("clearLinkCache"); }
void InterfacesFamily::addResource(const std::wstring&, std::shared_ptr<ResourceInformation>,
                                   uint16_t) {
    throw unsupported("addResource");
}
void InterfacesFamily::removeInterface(const std::wstring&) {
    throw unsupported("removeInterface");
}
std::shared_ptr<InterfaceInformation>
InterfacesFamily::addInterface(std::shared_ptr<InterfaceInformation>, const std::wstring&,
                               const std::wstring&, const std::wstring&) {
    throw unsupported("addInterface");
}
void InterfacesFamily::removeResource(const std::wstring&, const std::wstring&) {
    throw unsupported("removeResource");
}
std::vector<std::wstring>
InterfacesFamily::getVendorModuleNames(std::shared_ptr<InterfaceInformation>) {
    throw unsupported("getVendorModuleNames");
}
std::vector<std::wstring> InterfacesFamily::getVendorModuleNamesEx(const std::wstring&) {
    throw unsupported("getVendorModuleNamesEx");
}
std::vector<std::shared_ptr<ModuleDyn>>
InterfacesFamily::detectDynInterfaces(uint32_t, std::shared_ptr<DynInterfaceDetection>) {
    throw unsupported("detectDynInterfaces");
}
uint64_t InterfacesFamily::detectDynInterfacesAsync(uint32_t,
                                                    std::shared_ptr<DynInterfaceDetection>,
                                                    DetectDynInterfacesCallback*) {
    throw unsupported("detectDynInterfacesAsync");
}
void InterfacesFamily::connectDynInterface(const std::wstring&, bool,
                                           std::shared_ptr<DynInterfaceDetection>) {
    throw unsupported("connectDynInterface");
}
void InterfacesFamily::disconnectDynInterfaces(const std::vector<std::wstring>&) {
    throw unsupported("disconnectDynInterfaces");
}
void InterfacesFamily::setEthernetPinState(uint8_t, const std::vector<std::wstring>&) {
    throw unsupported("setEthernetPinState");
}
uint32_t InterfacesFamily::getEthernetPinState(const std::wstring&) {
    throw unsupported("getEthernetPinState");
}
std::vector<std::shared_ptr<ModuleDyn>> InterfacesFamily::detectDynInterfacesEx(uint32_t) {
    throw unsupported("detectDynInterfacesEx");
}
uint64_t InterfacesFamily::detectDynInterfacesExAsync(uint32_t, DetectDynInterfacesExCallback*) {
    throw unsupported("detectDynInterfacesExAsync");
}
void InterfacesFamily::connectDynInterfaceEx(const std::wstring&, bool) {
    throw unsupported("connectDynInterfaceEx");
}
bool InterfacesFamily::testSocketBridge(uint64_t) { throw unsupported("testSocketBridge"); }
std::vector<std::shared_ptr<DeviceInfo>> InterfacesFamily::getRegisteredDevices() {
    throw unsupported("getRegisteredDevices");
}
std::vector<std::shared_ptr<PhysicalLinksOnModule>>
InterfacesFamily::getPhysicalLinks(const std::vector<std::wstring>&) {
    throw unsupported("getPhysicalLinks");
}
std::vector<std::shared_ptr<PhysicalLinksOnModule>>
InterfacesFamily::setPhysicalLinks(const std::vector<std::shared_ptr<PhysicalLinksOnModule>>&) {
    throw unsupported("setPhysicalLinks");
}
bool InterfacesFamily::openTerminal() { throw unsupported("openTerminal"); }
void InterfacesFamily::closeTerminal() { throw unsupported("closeTerminal"); }
std::shared_ptr<WLanSignalData> InterfacesFamily::getWLanSignalData(const std::wstring&) {
    throw unsupported("getWLanSignalData");
}
std::vector<std::shared_ptr<KelError>> InterfacesFamily::clearDoIPEcuCollection() {
    throw unsupported("clearDoIPEcuCollection");
}
std::shared_ptr<InterfaceConfiguration> InterfacesFamily::getInterfaceConfiguration() {
    throw unsupported("getInterfaceConfiguration");
}
void InterfacesFamily::setInterfaceConfiguration(std::shared_ptr<InterfaceConfiguration>) {
    throw unsupported("setInterfaceConfiguration");
}
std::vector<std::shared_ptr<SupportedInterface>> InterfacesFamily::getSupportedInterfaces() {
    throw unsupported("getSupportedInterfaces");
}
std::vector<std::shared_ptr<InterfaceProvider>> InterfacesFamily::getInterfaceProviders() {
    throw unsupported("getInterfaceProviders");
}
void InterfacesFamily::setInterfaceProviders(
    const std::vector<std::shared_ptr<InterfaceProviderDyn>>&) {
    throw unsupported("setInterfaceProviders");
}
std::shared_ptr<DoIPParameter> InterfacesFamily::getDefaultDoIPParameter() {
    throw unsupported("getDefaultDoIPParameter");
}

uint64_t MonitoringFamily::createMonitoringLink(const std::wstring&) {
    throw unsupported("createMonitoringLink");
}
std::vector<std::shared_ptr<MonitoringItem>>
MonitoringFamily::getMonitoringItems(uint64_t, uint32_t, int32_t) {
    throw unsupported("getMonitoringItems");
}
void MonitoringFamily::releaseMonitoringLink(uint64_t) {
    throw unsupported("releaseMonitoringLink");
}
std::vector<std::shared_ptr<PduMonitoringItem>>
MonitoringFamily::getPduMonitoringItems(uint64_t, uint32_t, int32_t) {
    throw unsupported("getPduMonitoringItems");
}
uint64_t MonitoringFamily::createPduMonitor() { throw unsupported("createPduMonitor"); }
void MonitoringFamily::releasePduMonitor(uint64_t) { throw unsupported("releasePduMonitor"); }
void MonitoringFamily::openTraceFileMonitoringLink(uint64_t, const std::wstring&) {
    throw unsupported("openTraceFileMonitoringLink");
}
void MonitoringFamily::startTraceFileMonitoringLink(uint64_t) {
    throw unsupported("startTraceFileMonitoringLink");
}
void MonitoringFamily::stopTraceFileMonitoringLink(uint64_t) {
    throw unsupported("stopTraceFileMonitoringLink");
}
void MonitoringFamily::closeTraceFileMonitoringLink(uint64_t) {
    throw unsupported("closeTraceFileMonitoringLink");
}
uint64_t MonitoringFamily::createApiTraceMonitor() { throw unsupported("createApiTraceMonitor"); }
std::vector<uint8_t> MonitoringFamily::getApiTraceContent(uint64_t, uint32_t, int32_t) {
    throw unsupported("getApiTraceContent");
}
void MonitoringFamily::releaseApiTraceMonitor(uint64_t) {
    throw unsupported("releaseApiTraceMonitor");
}
std::vector<std::wstring> MonitoringFamily::getMonitoringLinks() {
    throw unsupported("getMonitoringLinks");
}

std::vector<uint8_t> FilesFamily::readFile(const std::wstring&, uint64_t, uint32_t, bool) {
    throw unsupported("readFile");
}
std::shared_ptr<DirectoryInfo> FilesFamily::getProjectDirectory(bool) {
    throw unsupported("getProjectDirectory");
}
std::shared_ptr<DirectoryInfo> FilesFamily::getSelectedProjectDirectory(bool) {
    throw unsupported("getSelectedProjectDirectory");
}
uint32_t FilesFamily::writeFile(const std::wstring&, const std::vector<uint8_t>&, uint32_t, bool) {
    throw unsupported("writeFile");
}
std::shared_ptr<KelError> FilesFamily::deleteFiles(const std::vector<std::shared_ptr<FileInfo>>&) {
    throw unsupported("deleteFiles");
}
std::vector<std::shared_ptr<DirectoryInfo>>
FilesFamily::findDirectories(std::shared_ptr<DirectoryInfo>, const std::wstring&, bool) {
    throw unsupported("findDirectories");
}
std::vector<std::shared_ptr<FileInfo>> FilesFamily::findFiles(const std::wstring&,
                                                              const std::wstring&, bool) {
    throw unsupported("findFiles");
}
std::shared_ptr<DirectoryInfo>
FilesFamily::initializeDirectoryElements(std::shared_ptr<DirectoryInfo>, bool) {
    throw unsupported("initializeDirectoryElements");
}
std::shared_ptr<FileInfo> FilesFamily::createFile(std::shared_ptr<DirectoryInfo>,
                                                  const std::wstring&) {
    throw unsupported("createFile");
}
std::shared_ptr<DirectoryInfo> FilesFamily::createDirectory(std::shared_ptr<DirectoryInfo>,
                                                            const std::wstring&) {
    throw unsupported("createDirectory");
}
std::shared_ptr<KelError> FilesFamily::deleteDirectory(const std::wstring&) {
    throw unsupported("deleteDirectory");
}
std::shared_ptr<DirectoryInfo> FilesFamily::getTraceDirectory(bool) {
    throw unsupported("getTraceDirectory");
}
std::vector<std::shared_ptr<FileCopyResult>>
FilesFamily::copyFiles(std::shared_ptr<FileCopyConfig>) {
    throw unsupported("copyFiles");
}
uint64_t FilesFamily::copyFilesAsync(std::shared_ptr<FileCopyConfig>, CopyFilesCallback*) {
    throw unsupported("copyFilesAsync");
}
std::vector<std::shared_ptr<DirectoryCopyResult>>
FilesFamily::copyDirectories(std::shared_ptr<DirectoryCopyConfig>) {
    throw unsupported("copyDirectories");
}
uint64_t FilesFamily::copyDirectoriesAsync(std::shared_ptr<DirectoryCopyConfig>,
                                           CopyDirectoriesCallback*) {
    throw unsupported("copyDirectoriesAsync");
}
void FilesFamily::renameFile(const std::wstring&, const std::wstring&) {
    throw unsupported("renameFile");
}
std::shared_ptr<DirectoryInfo> FilesFamily::getConfigDirectory(bool) {
    throw unsupported("getConfigDirectory");
}
std::vector<std::shared_ptr<FileInfo>>
FilesFamily::copyProjectWithFilters(const std::vector<std::shared_ptr<FileFilter>>&, bool,
                                    std::shared_ptr<FileCopyConfig>, const std::wstring&) {
    throw unsupported("copyProjectWithFilters");
}
std::vector<std::wstring> FilesFamily::filterFiles(const std::vector<std::shared_ptr<FileFilter>>&,
                                                   const std::wstring&) {
    throw unsupported("filterFiles");
}
std::vector<std::shared_ptr<DirectoryInfo>> FilesFamily::getPublicDirectories() {
    throw unsupported("getPublicDirectories");
}
bool FilesFamily::moveFile(const std::wstring&, const std::wstring&) {
    throw unsupported("moveFile");
}
bool FilesFamily::moveDirectory(const std::wstring&, const std::wstring&) {
    throw unsupported("moveDirectory");
}
bool FilesFamily::pathExists(const std::wstring&) { throw unsupported("pathExists"); }
std::wstring FilesFamily::resolvePath(const std::wstring&) { throw unsupported("resolvePath"); }
std::vector<std::shared_ptr<FileReferenceResult>>
FilesFamily::getFileReferences(const std::vector<std::wstring>&) {
    throw unsupported("getFileReferences");
}
bool FilesFamily::isDirectory(const std::wstring&) { throw unsupported("isDirectory"); }
std::shared_ptr<DirectoryInfo> FilesFamily::getDirectoryInfo(const std::wstring&, bool) {
    throw unsupported("getDirectoryInfo");
}
std::shared_ptr<FileInfo> FilesFamily::getFileInfo(const std::wstring&) {
    throw unsupported("getFileInfo");
}
bool FilesFamily::isFile(const std::wstring&) { throw unsupported("isFile"); }
std::vector<std::shared_ptr<PathCopyResult>>
FilesFamily::copyPath(std::shared_ptr<PathCopyConfig>) {
    throw unsupported("copyPath");
}
uint64_t FilesFamily::copyPathAsync(std::shared_ptr<PathCopyConfig>, CopyPathCallback*) {
    throw unsupported("copyPathAsync");
}
void FilesFamily::addPublicDirectory(const std::wstring&, const std::wstring&) {
    throw unsupported("addPublicDirectory");
}

std::vector<std::shared_ptr<FlashSessionInfo>>
FlashFamily::getFlashSessionInfos(const std::wstring&) {
    throw unsupported("getFlashSessionInfos");
}
std::vector<std::shared_ptr<FlashSessionResult>>
FlashFamily::executeFlashSessions(const std::wstring&, const std::vector<std::wstring>&) {
    throw unsupported("executeFlashSessions");
}
uint64_t FlashFamily::executeFlashSessionsAsync(const std::wstring&,
                                                const std::vector<std::wstring>&,
                                                ExecuteFlashSessionsCallback*) {
    throw unsupported("executeFlashSessionsAsync");
}
std::vector<std::shared_ptr<FlashSessionResult>>
FlashFamily::executeFlashSessionsConfig(std::shared_ptr<FlashSessionsConfig>) {
    throw unsupported("executeFlashSessionsConfig");
}
uint64_t FlashFamily::executeFlashSessionsConfigAsync(std::shared_ptr<FlashSessionsConfig>,
                                                      ExecuteFlashSessionsConfigCallback*) {
    throw unsupported("executeFlashSessionsConfigAsync");
}

std::vector<std::shared_ptr<CodingStringResult>>
CodingFamily::readCodingStrings(const std::vector<std::wstring>&) {
    throw unsupported("readCodingStrings");
}
uint64_t CodingFamily::readCodingStringsAsync(const std::vector<std::wstring>&,
                                              ReadCodingStringsCallback*) {
    throw unsupported("readCodingStringsAsync");
}
std::wstring CodingFamily::calculateChecksum(const std::wstring&, int32_t) {
    throw unsupported("calculateChecksum");
}
std::vector<std::shared_ptr<CodingFileResult>>
CodingFamily::writeCodingFile(const std::wstring&, const std::vector<std::wstring>&) {
    throw unsupported("writeCodingFile");
}
uint64_t CodingFamily::writeCodingFileAsync(const std::wstring&, const std::vector<std::wstring>&,
                                            WriteCodingFileCallback*) {
    throw unsupported("writeCodingFileAsync");
}
std::vector<std::shared_ptr<EcuConfigurationResult>>
CodingFamily::performEcuConfiguration(const std::vector<std::wstring>&, const std::wstring&) {
    throw unsupported("performEcuConfiguration");
}
uint64_t CodingFamily::performEcuConfigurationAsync(const std::vector<std::wstring>&,
                                                    const std::wstring&,
                                                    PerformEcuConfigurationCallback*) {
    throw unsupported("performEcuConfigurationAsync");
}

std::vector<std::shared_ptr<ParameterInfo>>
MeasurementFamily::getMeasurementValueInfos(const std::wstring&) {
    throw unsupported("getMeasurementValueInfos");
}
uint64_t MeasurementFamily::registerMeasurementValues(const std::wstring&,
                                                      const std::vector<std::wstring>&) {
    throw unsupported("registerMeasurementValues");
}
std::vector<std::shared_ptr<ReadDataResult>> MeasurementFamily::getMeasurementValues(uint64_t) {
    throw unsupported("getMeasurementValues");
}
void MeasurementFamily::unregisterMeasurementValues(uint64_t) {
    throw unsupported("unregisterMeasurementValues");
}
std::vector<std::shared_ptr<ReadDataResult>>
MeasurementFamily::readMeasurementValues(const std::wstring&, const std::vector<std::wstring>&) {
    throw unsupported("readMeasurementValues");
}
uint64_t MeasurementFamily::readMeasurementValuesAsync(const std::wstring&,
                                                       const std::vector<std::wstring>&,
                                                       ReadMeasurementValuesCallback*) {
    throw unsupported("readMeasurementValuesAsync");
}
std::vector<std::shared_ptr<ParameterInfo>>
MeasurementFamily::getSingleMeasurementValueInfos(const std::wstring&,
                                                  const std::vector<std::wstring>&) {
    throw unsupported("getSingleMeasurementValueInfos");
}

uint64_t SequencesFamily::runSequence(const std::wstring&, const std::vector<std::wstring>&) {
    throw unsupported("runSequence");
}
void SequencesFamily::cancelSequence(uint64_t) { throw unsupported("cancelSequence"); }
std::vector<std::shared_ptr<ServiceResult>>
SequencesFamily::executeSequence(const std::wstring&, const std::wstring&,
                                 const std::vector<std::shared_ptr<ParameterInput>>&) {
    throw unsupported("executeSequence");
}
uint64_t SequencesFamily::executeSequenceAsync(const std::wstring&, const std::wstring&,
                                               const std::vector<std::shared_ptr<ParameterInput>>&,
                                               ExecuteSequenceCallback*) {
    throw unsupported("executeSequenceAsync");
}

std::vector<std::shared_ptr<EcuOrderEntry>> EcuOrderFamily::readEcuOrder(const std::wstring&) {
    throw unsupported("readEcuOrder");
}
std::vector<std::shared_ptr<EcuOrderEntry>>
EcuOrderFamily::filterEcuOrder(const std::vector<std::shared_ptr<EcuOrderEntry>>&,
                               const std::vector<std::wstring>&) {
    throw unsupported("filterEcuOrder");
}
std::vector<std::shared_ptr<EcuOrderEntry>>
EcuOrderFamily::addMissingTargetsToEcuOrder(const std::vector<std::shared_ptr<EcuOrderEntry>>&) {
    throw unsupported("addMissingTargetsToEcuOrder");
}
std::vector<std::shared_ptr<EcuOrderEntry>> EcuOrderFamily::createDefaultECUOrder() {
    throw unsupported("createDefaultECUOrder");
}
void EcuOrderFamily::writeEcuOrder(const std::wstring&,
                                   const std::vector<std::shared_ptr<EcuOrderEntry>>&) {
    throw unsupported("writeEcuOrder");
}
std::wstring EcuOrderFamily::getEcuOrderFilePath() { throw unsupported("getEcuOrderFilePath"); }

std::wstring VehicleReportsFamily::createVehicleReport(std::shared_ptr<VehicleReportConfig>) {
    throw unsupported("createVehicleReport");
}
std::vector<std::shared_ptr<VehicleData>> VehicleReportsFamily::getVehicleData() {
    throw unsupported("getVehicleData");
}
std::wstring VehicleReportsFamily::createVehicleUpdateReport(
    const std::vector<std::shared_ptr<VehicleUpdateResult>>&) {
    throw unsupported("createVehicleUpdateReport");
}
std::shared_ptr<VehicleInformation> VehicleReportsFamily::getSelectedVehicleInformation() {
    throw unsupported("getSelectedVehicleInformation");
}
void VehicleReportsFamily::setSelectedVehicleInformation(std::shared_ptr<VehicleInformation>) {
    throw unsupported("setSelectedVehicleInformation");
}

void VehicleUpdateFamily::applyUpdatePackage(const std::wstring&) {
    throw unsupported("applyUpdatePackage");
}
std::vector<std::shared_ptr<UpdatePackageInfo>> VehicleUpdateFamily::getUpdatePackages() {
    throw unsupported("getUpdatePackages");
}
std::vector<std::shared_ptr<UpdatePackageInfo>> VehicleUpdateFamily::getPackagesFromBroker() {
    throw unsupported("getPackagesFromBroker");
}
bool VehicleUpdateFamily::checkUpdatesOnBroker() { throw unsupported("checkUpdatesOnBroker"); }
bool VehicleUpdateFamily::autoUpdate() { throw unsupported("autoUpdate"); }
std::vector<std::shared_ptr<NamedItem>> VehicleUpdateFamily::getCurrentVersions() {
    throw unsupported("getCurrentVersions");
}
bool VehicleUpdateFamily::checkUpdateSuccess() { throw unsupported("checkUpdateSuccess"); }
void VehicleUpdateFamily::cleanUpdateTmp() { throw unsupported("cleanUpdateTmp"); }
std::vector<std::shared_ptr<VehicleUpdateResult>>
VehicleUpdateFamily::updateVehicle(std::shared_ptr<VehicleUpdateConfig>) {
    throw unsupported("updateVehicle");
}
uint64_t VehicleUpdateFamily::updateVehicleAsync(std::shared_ptr<VehicleUpdateConfig>,
                                                 UpdateVehicleCallback*) {
    throw unsupported("updateVehicleAsync");
}
void VehicleUpdateFamily::uploadReport(std::shared_ptr<UploadReportConfiguration>) {
    throw unsupported("uploadReport");
}
void VehicleUpdateFamily::setBrokerUrl(const std::wstring&) { throw unsupported("setBrokerUrl"); }
void VehicleUpdateFamily::clearUpdatePackages() { throw unsupported("clearUpdatePackages"); }
std::vector<std::shared_ptr<VehicleUpdateResult>>
VehicleUpdateFamily::performVehicleUpdate(const std::vector<std::shared_ptr<EcuOrderEntry>>&,
                                          std::shared_ptr<VehicleUpdateConfig>) {
    throw unsupported("performVehicleUpdate");
}
uint64_t
VehicleUpdateFamily::performVehicleUpdateAsync(const std::vector<std::shared_ptr<EcuOrderEntry>>&,
                                               std::shared_ptr<VehicleUpdateConfig>,
                                               PerformVehicleUpdateCallback*) {
    throw unsupported("performVehicleUpdateAsync");
}
std::shared_ptr<VehicleUpdateConfig>
VehicleUpdateFamily::createVehicleUpdateConfig(const std::vector<std::wstring>&) {
    throw unsupported("createVehicleUpdateConfig");
}

void FamilyRouter::initialize() { return families_.lifecycle->initialize(); }
void FamilyRouter::end() { return families_.lifecycle->end(); }
std::wstring FamilyRouter::startServer(const std::wstring& name) {
    return families_.servers->startServer(name);
}
void FamilyRouter::stopServer(const std::wstring& reason) {
    return families_.servers->stopServer(reason);
}
void FamilyRouter::restartServer(int32_t endClients) {
    return families_.servers->restartServer(endClients);
}
std::shared_ptr<ProjectConfig>
FamilyRouter::getProjectConfiguration(const std::wstring& projectName) {
    return families_.projects->getProjectConfiguration(projectName);
}
void FamilyRouter::setProjectConfiguration(const std::wstring& projectName,
                                           std::shared_ptr<ProjectConfig> config) {
    return families_.projects->setProjectConfiguration(projectName, std::move(config));
}
void FamilyRouter::saveProjectConfiguration(const std::wstring& projectName) {
    return families_.projects->saveProjectConfiguration(projectName);
}
uint64_t FamilyRouter::createMonitoringLink(const std::wstring& name) {
    return families_.monitoring->createMonitoringLink(name);
}
std::vector<std::shared_ptr<MonitoringItem>>
FamilyRouter::getMonitoringItems(uint64_t handle, uint32_t value1, int32_t value2) {
    return families_.monitoring->getMonitoringItems(handle, value1, value2);
}
void FamilyRouter::releaseMonitoringLink(uint64_t handle) {
    return families_.monitoring->releaseMonitoringLink(handle);
}
std::vector<std::shared_ptr<PduMonitoringItem>>
FamilyRouter::getPduMonitoringItems(uint64_t handle, uint32_t value1, int32_t value2) {
    return families_.monitoring->getPduMonitoringItems(handle, value1, value2);
}
uint64_t FamilyRouter::createPduMonitor() { return families_.monitoring->createPduMonitor(); }
void FamilyRouter::saveConfiguration() { return families_.projects->saveConfiguration(); }
void FamilyRouter::releasePduMonitor(uint64_t handle) {
    return families_.monitoring->releasePduMonitor(handle);
}
std::vector<std::shared_ptr<VariantIdentResult>> FamilyRouter::identifyAllTargets() {
    return families_.diagnostics->identifyAllTargets();
}
uint64_t FamilyRouter::identifyAllTargetsAsync(IdentifyAllTargetsCallback* callback) {
    return families_.diagnostics->identifyAllTargetsAsync(callback);
}
std::vector<std::shared_ptr<ReadDataResult>>
FamilyRouter::readIdentificationValues(const std::vector<std::wstring>& targets) {
    return families_.diagnostics->readIdentificationValues(targets);
}
uint64_t FamilyRouter::readIdentificationValuesAsync(const std::vector<std::wstring>& targets,
                                                     ReadIdentificationValuesCallback* callback) {
    return families_.diagnostics->readIdentificationValuesAsync(targets, callback);
}
std::vector<std::shared_ptr<ReadDataResult>>
FamilyRouter::readDataByIdentifiers(const std::wstring& target,
                                    const std::vector<std::wstring>& identifiers) {
    return families_.diagnostics->readDataByIdentifiers(target, identifiers);
}
std::shared_ptr<VariantIdentResult> FamilyRouter::identifyTarget(const std::wstring& target) {
    return families_.diagnostics->identifyTarget(target);
}
std::vector<std::shared_ptr<ReadDtcResult>>
FamilyRouter::readDtcs(const std::vector<std::wstring>& targets,
                       std::shared_ptr<DtcReadConfig> config) {
    return families_.diagnostics->readDtcs(targets, std::move(config));
}
uint64_t FamilyRouter::readDtcsAsync(const std::vector<std::wstring>& targets,
                                     std::shared_ptr<DtcReadConfig> config,
                                     ReadDtcsCallback* callback) {
    return families_.diagnostics->readDtcsAsync(targets, std::move(config), callback);
}
std::vector<std::shared_ptr<SupportedDtcResult>>
FamilyRouter::readSupportedDtcs(const std::vector<std::wstring>& targets,
                                std::shared_ptr<DtcReadConfig> config) {
    return families_.diagnostics->readSupportedDtcs(targets, std::move(config));
}
uint64_t FamilyRouter::readSupportedDtcsAsync(const std::vector<std::wstring>& targets,
                                              std::shared_ptr<DtcReadConfig> config,
                                              ReadSupportedDtcsCallback* callback) {
    return families_.diagnostics->readSupportedDtcsAsync(targets, std::move(config), callback);
}
std::vector<std::shared_ptr<ClearDtcResult>>
FamilyRouter::clearAllDtcs(const std::vector<std::wstring>& targets) {
    return families_.diagnostics->clearAllDtcs(targets);
}
uint64_t FamilyRouter::clearAllDtcsAsync(const std::vector<std::wstring>& targets,
                                         ClearAllDtcsCallback* callback) {
    return families_.diagnostics->clearAllDtcsAsync(targets, callback);
}
std::vector<std::shared_ptr<ServiceInfo>>
FamilyRouter::getServiceInfos(const std::wstring& text1, const std::wstring& text2,
                              const std::vector<std::wstring>& names, int32_t value) {
    return families_.services->getServiceInfos(text1, text2, names, value);
}
std::vector<std::shared_ptr<FlashSessionInfo>>
FamilyRouter::getFlashSessionInfos(const std::wstring& target) {
    return families_.flash->getFlashSessionInfos(target);
}
std::vector<std::shared_ptr<FlashSessionResult>>
FamilyRouter::executeFlashSessions(const std::wstring& target,
                                   const std::vector<std::wstring>& sessions) {
    return families_.flash->executeFlashSessions(target, sessions);
}
uint64_t FamilyRouter::executeFlashSessionsAsync(const std::wstring& target,
                                                 const std::vector<std::wstring>& sessions,
                                                 ExecuteFlashSessionsCallback* callback) {
    return families_.flash->executeFlashSessionsAsync(target, sessions, callback);
}
std::vector<std::shared_ptr<CodingStringResult>>
FamilyRouter::readCodingStrings(const std::vector<std::wstring>& targets) {
    return families_.coding->readCodingStrings(targets);
}
uint64_t FamilyRouter::readCodingStringsAsync(const std::vector<std::wstring>& targets,
                                              ReadCodingStringsCallback* callback) {
    return families_.coding->readCodingStringsAsync(targets, callback);
}
std::vector<std::shared_ptr<QuickTestResult>>
FamilyRouter::performQuickTest(const std::vector<std::wstring>& targets,
                               std::shared_ptr<DtcReadConfig> config) {
    return families_.diagnostics->performQuickTest(targets, std::move(config));
}
uint64_t FamilyRouter::performQuickTestAsync(const std::vector<std::wstring>& targets,
                                             std::shared_ptr<DtcReadConfig> config,
                                             PerformQuickTestCallback* callback) {
    return families_.diagnostics->performQuickTestAsync(targets, std::move(config), callback);
}
std::shared_ptr<TarnApi> FamilyRouter::connectRemoteServer(const std::wstring& address) {
    return families_.servers->connectRemoteServer(address);
}
std::vector<std::shared_ptr<ParameterInfo>>
FamilyRouter::getMeasurementValueInfos(const std::wstring& target) {
    return families_.measurement->getMeasurementValueInfos(target);
}
uint64_t FamilyRouter::registerMeasurementValues(const std::wstring& target,
                                                 const std::vector<std::wstring>& names) {
    return families_.measurement->registerMeasurementValues(target, names);
}
std::vector<std::shared_ptr<ReadDataResult>>
FamilyRouter::getMeasurementValues(uint64_t registration) {
    return families_.measurement->getMeasurementValues(registration);
}
void FamilyRouter::unregisterMeasurementValues(uint64_t registration) {
    return families_.measurement->unregisterMeasurementValues(registration);
}
std::vector<std::shared_ptr<ParameterInfo>>
FamilyRouter::getIdentificationValueInfos(const std::wstring& target) {
    return families_.services->getIdentificationValueInfos(target);
}
void FamilyRouter::cancelAllAsyncCalls() { return families_.lifecycle->cancelAllAsyncCalls(); }
std::vector<uint8_t> FamilyRouter::createSeed(uint32_t value1, uint32_t value2) {
    return families_.services->createSeed(value1, value2);
}
void FamilyRouter::sendKey(const std::vector<uint8_t>& key) {
    return families_.services->sendKey(key);
}
uint64_t FamilyRouter::openEventChannel() { return families_.events->openEventChannel(); }
void FamilyRouter::closeEventChannel(uint64_t channel) {
    return families_.events->closeEventChannel(channel);
}
std::shared_ptr<EventReport> FamilyRouter::getCurrentEvents(uint64_t channel, uint32_t limit) {
    return families_.events->getCurrentEvents(channel, limit);
}
void FamilyRouter::openTraceFileMonitoringLink(uint64_t handle, const std::wstring& traceFile) {
    return families_.monitoring->openTraceFileMonitoringLink(handle, traceFile);
}
void FamilyRouter::startTraceFileMonitoringLink(uint64_t handle) {
    return families_.monitoring->startTraceFileMonitoringLink(handle);
}
void FamilyRouter::stopTraceFileMonitoringLink(uint64_t handle) {
    return families_.monitoring->stopTraceFileMonitoringLink(handle);
}
void FamilyRouter::closeTraceFileMonitoringLink(uint64_t handle) {
    return families_.monitoring->closeTraceFileMonitoringLink(handle);
}
void FamilyRouter::saveInterfaceConfiguration() {
    return families_.interfaces->saveInterfaceConfiguration();
}
std::vector<std::shared_ptr<ScanInterfaceResult>>
FamilyRouter::scanInterfaceConnection(const std::vector<std::wstring>& interfaces) {
    return families_.interfaces->scanInterfaceConnection(interfaces);
}
uint64_t FamilyRouter::scanInterfaceConnectionAsync(const std::vector<std::wstring>& interfaces,
                                                    ScanInterfaceConnectionCallback* callback) {
    return families_.interfaces->scanInterfaceConnectionAsync(interfaces, callback);
}
void FamilyRouter::disconnect() { return families_.servers->disconnect(); }
std::wstring FamilyRouter::getInterfaceLongName(const std::wstring& name) {
    return families_.interfaces->getInterfaceLongName(name);
}
std::vector<std::shared_ptr<ReadDataResult>>
FamilyRouter::readMeasurementValues(const std::wstring& target,
                                    const std::vector<std::wstring>& names) {
    return families_.measurement->readMeasurementValues(target, names);
}
uint64_t FamilyRouter::readMeasurementValuesAsync(const std::wstring& target,
                                                  const std::vector<std::wstring>& names,
                                                  ReadMeasurementValuesCallback* callback) {
    return families_.measurement->readMeasurementValuesAsync(target, names, callback);
}
std::vector<uint8_t> FamilyRouter::readFile(const std::wstring& path, uint64_t value1,
                                            uint32_t value2, bool flag) {
    return families_.files->readFile(path, value1, value2, flag);
}
void FamilyRouter::connectInterfaces() { return families_.interfaces->connectInterfaces(); }
void FamilyRouter::disconnectInterfaces() { return families_.interfaces->disconnectInterfaces(); }
void FamilyRouter::executeDoIPBroadcast() { return families_.interfaces->executeDoIPBroadcast(); }
void FamilyRouter::refreshProjectList() { return families_.projects->refreshProjectList(); }
std::vector<std::shared_ptr<VariantIdentResult>>
FamilyRouter::identifyTargets(const std::vector<std::wstring>& targets) {
    return families_.diagnostics->identifyTargets(targets);
}
uint64_t FamilyRouter::identifyTargetsAsync(const std::vector<std::wstring>& targets,
                                            IdentifyTargetsCallback* callback) {
    return families_.diagnostics->identifyTargetsAsync(targets, callback);
}
std::vector<std::shared_ptr<ParameterInfo>>
FamilyRouter::getActuatorServiceInfos(const std::wstring& text1, const std::wstring& text2) {
    return families_.services->getActuatorServiceInfos(text1, text2);
}
void FamilyRouter::releaseSocketBridge(uint64_t bridge) {
    return families_.interfaces->releaseSocketBridge(bridge);
}
uint64_t FamilyRouter::createSocketBridge(uint32_t value1, uint32_t value2) {
    return families_.interfaces->createSocketBridge(value1, value2);
}
void FamilyRouter::reserved70() { throw unsupported("reserved70"); }
void FamilyRouter::reserved71() { throw unsupported("reserved71"); }
void FamilyRouter::reserved72() { throw unsupported("reserved72"); }
std::vector<std::shared_ptr<ParameterInfo>>
FamilyRouter::getSingleMeasurementValueInfos(const std::wstring& target,
                                             const std::vector<std::wstring>& names) {
    return families_.measurement->getSingleMeasurementValueInfos(target, names);
}
std::vector<std::shared_ptr<Target>>
FamilyRouter::getFilteredTargets(const std::vector<std::shared_ptr<TargetFilter>>& filters) {
    return families_.diagnostics->getFilteredTargets(filters);
}
bool FamilyRouter::isProjectConversionRequired(const std::wstring& projectPath) {
    return families_.projects->isProjectConversionRequired(projectPath);
}
void FamilyRouter::convertProject(const std::wstring& projectPath) {
    return families_.projects->convertProject(projectPath);
}
void FamilyRouter::saveMoxConfiguration() { return families_.projects->saveMoxConfiguration(); }
uint64_t
FamilyRouter::startCyclicServices(const std::wstring& target,
                                  const std::vector<std::shared_ptr<ServiceInput>>& services,
                                  uint32_t cycleTime) {
    return families_.services->startCyclicServices(target, services, cycleTime);
}
std::vector<std::shared_ptr<ServiceResult>> FamilyRouter::getCyclicResults(uint64_t cyclic) {
    return families_.services->getCyclicResults(cyclic);
}
void FamilyRouter::stopCyclicServices(uint64_t cyclic) {
    return families_.services->stopCyclicServices(cyclic);
}
std::shared_ptr<ProjectDetails> FamilyRouter::getProjectDetails() {
    return families_.projects->getProjectDetails();
}
void FamilyRouter::clearLinkCache() { return families_.interfaces->clearLinkCache(); }
void FamilyRouter::addResource(const std::wstring& name,
                               std::shared_ptr<ResourceInformation> resource, uint16_t value) {
    return families_.interfaces->addResource(name, std::move(resource), value);
}
void FamilyRouter::removeInterface(const std::wstring& name) {
    return families_.interfaces->removeInterface(name);
}
std::shared_ptr<InterfaceInformation>
FamilyRouter::addInterface(std::shared_ptr<InterfaceInformation> interfaceInfo,
                           const std::wstring& text1, const std::wstring& text2,
                           const std::wstring& text3) {
    return families_.interfaces->addInterface(std::move(interfaceInfo), text1, text2, text3);
}
void FamilyRouter::removeResource(const std::wstring& name1, const std::wstring& name2) {
    return families_.interfaces->removeResource(name1, name2);
}
std::shared_ptr<SystemProperty> FamilyRouter::getSystemProperty(const std::wstring& name) {
    return families_.projects->getSystemProperty(name);
}
void FamilyRouter::resetSystemProperty(const std::wstring& name) {
    return families_.projects->resetSystemProperty(name);
}
void FamilyRouter::setSystemProperty(std::shared_ptr<SystemProperty> property) {
    return families_.projects->setSystemProperty(std::move(property));
}
std::vector<std::wstring>
FamilyRouter::getVendorModuleNames(std::shared_ptr<InterfaceInformation> interfaceInfo) {
    return families_.interfaces->getVendorModuleNames(std::move(interfaceInfo));
}
std::vector<std::wstring> FamilyRouter::getVendorModuleNamesEx(const std::wstring& text) {
    return families_.interfaces->getVendorModuleNamesEx(text);
}
std::vector<std::shared_ptr<ServiceResult>>
FamilyRouter::executeService(const std::wstring& target,
                             const std::vector<std::shared_ptr<ServiceInput>>& services) {
    return families_.services->executeService(target, services);
}
uint64_t
FamilyRouter::executeServiceAsync(const std::wstring& target,
                                  const std::vector<std::shared_ptr<ServiceInput>>& services,
                                  ExecuteServiceCallback* callback) {
    return families_.services->executeServiceAsync(target, services, callback);
}
std::vector<std::shared_ptr<ModuleDyn>>
FamilyRouter::detectDynInterfaces(uint32_t value,
                                  std::shared_ptr<DynInterfaceDetection> detection) {
    return families_.interfaces->detectDynInterfaces(value, std::move(detection));
}
uint64_t FamilyRouter::detectDynInterfacesAsync(uint32_t value,
                                                std::shared_ptr<DynInterfaceDetection> detection,
                                                DetectDynInterfacesCallback* callback) {
    return families_.interfaces->detectDynInterfacesAsync(value, std::move(detection), callback);
}
void FamilyRouter::connectDynInterface(const std::wstring& name, bool flag,
                                       std::shared_ptr<DynInterfaceDetection> detection) {
    return families_.interfaces->connectDynInterface(name, flag, std::move(detection));
}
void FamilyRouter::disconnectDynInterfaces(const std::vector<std::wstring>& names) {
    return families_.interfaces->disconnectDynInterfaces(names);
}
void FamilyRouter::updateCyclicServices(
    uint64_t cyclic, const std::vector<std::shared_ptr<ServiceInput>>& services) {
    return families_.services->updateCyclicServices(cyclic, services);
}
void FamilyRouter::cancelAsyncCalls(const std::vector<uint64_t>& callIds) {
    return families_.lifecycle->cancelAsyncCalls(callIds);
}
std::shared_ptr<DirectoryInfo> FamilyRouter::getProjectDirectory(bool flag) {
    return families_.files->getProjectDirectory(flag);
}
std::shared_ptr<DirectoryInfo> FamilyRouter::getSelectedProjectDirectory(bool flag) {
    return families_.files->getSelectedProjectDirectory(flag);
}
uint32_t FamilyRouter::writeFile(const std::wstring& path, const std::vector<uint8_t>& data,
                                 uint32_t value, bool flag) {
    return families_.files->writeFile(path, data, value, flag);
}
std::shared_ptr<KelError>
FamilyRouter::deleteFiles(const std::vector<std::shared_ptr<FileInfo>>& files) {
    return families_.files->deleteFiles(files);
}
std::vector<std::shared_ptr<DirectoryInfo>>
FamilyRouter::findDirectories(std::shared_ptr<DirectoryInfo> directory, const std::wstring& pattern,
                              bool flag) {
    return families_.files->findDirectories(std::move(directory), pattern, flag);
}
std::vector<std::shared_ptr<FileInfo>>
FamilyRouter::findFiles(const std::wstring& directory, const std::wstring& pattern, bool flag) {
    return families_.files->findFiles(directory, pattern, flag);
}
std::shared_ptr<DirectoryInfo>
FamilyRouter::initializeDirectoryElements(std::shared_ptr<DirectoryInfo> directory, bool flag) {
    return families_.files->initializeDirectoryElements(std::move(directory), flag);
}
std::shared_ptr<FileInfo> FamilyRouter::createFile(std::shared_ptr<DirectoryInfo> parent,
                                                   const std::wstring& name) {
    return families_.files->createFile(std::move(parent), name);
}
std::shared_ptr<DirectoryInfo> FamilyRouter::createDirectory(std::shared_ptr<DirectoryInfo> parent,
                                                             const std::wstring& name) {
    return families_.files->createDirectory(std::move(parent), name);
}
std::shared_ptr<KelError> FamilyRouter::deleteDirectory(const std::wstring& path) {
    return families_.files->deleteDirectory(path);
}
std::shared_ptr<DirectoryInfo> FamilyRouter::getTraceDirectory(bool flag) {
    return families_.files->getTraceDirectory(flag);
}
std::wstring FamilyRouter::createVehicleReport(std::shared_ptr<VehicleReportConfig> config) {
    return families_.vehicleReports->createVehicleReport(std::move(config));
}
std::vector<std::shared_ptr<EcuOrderEntry>> FamilyRouter::readEcuOrder(const std::wstring& path) {
    return families_.ecuOrder->readEcuOrder(path);
}
std::vector<std::shared_ptr<EcuOrderEntry>>
FamilyRouter::filterEcuOrder(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                             const std::vector<std::wstring>& targets) {
    return families_.ecuOrder->filterEcuOrder(entries, targets);
}
std::vector<std::shared_ptr<EcuOrderEntry>> FamilyRouter::addMissingTargetsToEcuOrder(
    const std::vector<std::shared_ptr<EcuOrderEntry>>& entries) {
    return families_.ecuOrder->addMissingTargetsToEcuOrder(entries);
}
uint64_t FamilyRouter::lock() { return families_.lifecycle->lock(); }
void FamilyRouter::unlock(uint64_t lockId) { return families_.lifecycle->unlock(lockId); }
bool FamilyRouter::isLocked() { return families_.lifecycle->isLocked(); }
void FamilyRouter::breakLock() { return families_.lifecycle->breakLock(); }
void FamilyRouter::setEthernetPinState(uint8_t state, const std::vector<std::wstring>& interfaces) {
    return families_.interfaces->setEthernetPinState(state, interfaces);
}
uint32_t FamilyRouter::getEthernetPinState(const std::wstring& interfaceName) {
    return families_.interfaces->getEthernetPinState(interfaceName);
}
std::vector<std::shared_ptr<ModuleDyn>> FamilyRouter::detectDynInterfacesEx(uint32_t value) {
    return families_.interfaces->detectDynInterfacesEx(value);
}
uint64_t FamilyRouter::detectDynInterfacesExAsync(uint32_t value,
                                                  DetectDynInterfacesExCallback* callback) {
    return families_.interfaces->detectDynInterfacesExAsync(value, callback);
}
void FamilyRouter::connectDynInterfaceEx(const std::wstring& name, bool flag) {
    return families_.interfaces->connectDynInterfaceEx(name, flag);
}
void FamilyRouter::addUser(const std::wstring& name, const std::wstring& password, uint32_t role) {
    return families_.servers->addUser(name, password, role);
}
void FamilyRouter::removeUser(const std::wstring& name) {
    return families_.servers->removeUser(name);
}
std::vector<std::shared_ptr<UserInfo>> FamilyRouter::getUsers() {
    return families_.servers->getUsers();
}
void FamilyRouter::logOut(std::shared_ptr<LogInOutConfig> config) {
    return families_.servers->logOut(std::move(config));
}
void FamilyRouter::updateUser(const std::wstring& name, const std::wstring& newName,
                              const std::wstring& newPassword, uint32_t role) {
    return families_.servers->updateUser(name, newName, newPassword, role);
}
bool FamilyRouter::getServerUserManagement() {
    return families_.servers->getServerUserManagement();
}
void FamilyRouter::setServerUserManagement(bool enabled) {
    return families_.servers->setServerUserManagement(enabled);
}
void FamilyRouter::registerServerHandler(std::shared_ptr<ServerHandler> handler) {
    return families_.events->registerServerHandler(std::move(handler));
}
void FamilyRouter::reserved132() { throw unsupported("reserved132"); }
void FamilyRouter::disconnectAllClients() { return families_.servers->disconnectAllClients(); }
bool FamilyRouter::testSocketBridge(uint64_t bridge) {
    return families_.interfaces->testSocketBridge(bridge);
}
void FamilyRouter::reserved135() { throw unsupported("reserved135"); }
std::vector<std::shared_ptr<FileCopyResult>>
FamilyRouter::copyFiles(std::shared_ptr<FileCopyConfig> config) {
    return families_.files->copyFiles(std::move(config));
}
uint64_t FamilyRouter::copyFilesAsync(std::shared_ptr<FileCopyConfig> config,
                                      CopyFilesCallback* callback) {
    return families_.files->copyFilesAsync(std::move(config), callback);
}
std::vector<std::shared_ptr<DirectoryCopyResult>>
FamilyRouter::copyDirectories(std::shared_ptr<DirectoryCopyConfig> config) {
    return families_.files->copyDirectories(std::move(config));
}
uint64_t FamilyRouter::copyDirectoriesAsync(std::shared_ptr<DirectoryCopyConfig> config,
                                            CopyDirectoriesCallback* callback) {
    return families_.files->copyDirectoriesAsync(std::move(config), callback);
}
std::wstring FamilyRouter::calculateChecksum(const std::wstring& path, int32_t algorithm) {
    return families_.coding->calculateChecksum(path, algorithm);
}
void FamilyRouter::reserved141() { throw unsupported("reserved141"); }
void FamilyRouter::reserved142() { throw unsupported("reserved142"); }
void FamilyRouter::reserved143() { throw unsupported("reserved143"); }
void FamilyRouter::reserved144() { throw unsupported("reserved144"); }
uint64_t FamilyRouter::runSequence(const std::wstring& sequence,
                                   const std::vector<std::wstring>& arguments) {
    return families_.sequences->runSequence(sequence, arguments);
}
std::shared_ptr<UnlockResult>
FamilyRouter::unlockVehicle(const std::wstring& target,
                            const std::vector<std::shared_ptr<ServiceInput>>& services) {
    return families_.services->unlockVehicle(target, services);
}
uint64_t FamilyRouter::releaseVehicleUnlock(uint64_t value) {
    return families_.services->releaseVehicleUnlock(value);
}
void FamilyRouter::cancelSequence(uint64_t run) { return families_.sequences->cancelSequence(run); }
std::vector<std::shared_ptr<DeviceInfo>> FamilyRouter::getRegisteredDevices() {
    return families_.interfaces->getRegisteredDevices();
}
std::shared_ptr<SystemInfo> FamilyRouter::getSystemInfo() {
    return families_.projects->getSystemInfo();
}
void FamilyRouter::applyUpdatePackage(const std::wstring& package) {
    return families_.vehicleUpdate->applyUpdatePackage(package);
}
void FamilyRouter::renameFile(const std::wstring& path, const std::wstring& newName) {
    return families_.files->renameFile(path, newName);
}
void FamilyRouter::onConnectionBroken() { return families_.events->onConnectionBroken(); }
std::vector<std::shared_ptr<UpdatePackageInfo>> FamilyRouter::getUpdatePackages() {
    return families_.vehicleUpdate->getUpdatePackages();
}
std::vector<std::shared_ptr<UpdatePackageInfo>> FamilyRouter::getPackagesFromBroker() {
    return families_.vehicleUpdate->getPackagesFromBroker();
}
bool FamilyRouter::checkUpdatesOnBroker() {
    return families_.vehicleUpdate->checkUpdatesOnBroker();
}
bool FamilyRouter::autoUpdate() { return families_.vehicleUpdate->autoUpdate(); }
std::shared_ptr<DirectoryInfo> FamilyRouter::getConfigDirectory(bool flag) {
    return families_.files->getConfigDirectory(flag);
}
void FamilyRouter::reserved159() { throw unsupported("reserved159"); }
uint64_t FamilyRouter::createApiTraceMonitor() {
    return families_.monitoring->createApiTraceMonitor();
}
std::vector<uint8_t> FamilyRouter::getApiTraceContent(uint64_t handle, uint32_t value1,
                                                      int32_t value2) {
    return families_.monitoring->getApiTraceContent(handle, value1, value2);
}
void FamilyRouter::releaseApiTraceMonitor(uint64_t handle) {
    return families_.monitoring->releaseApiTraceMonitor(handle);
}
std::vector<std::shared_ptr<NamedItem>> FamilyRouter::getCurrentVersions() {
    return families_.vehicleUpdate->getCurrentVersions();
}
bool FamilyRouter::checkUpdateSuccess() { return families_.vehicleUpdate->checkUpdateSuccess(); }
void FamilyRouter::cleanUpdateTmp() { return families_.vehicleUpdate->cleanUpdateTmp(); }
std::vector<std::shared_ptr<FlashSessionResult>>
FamilyRouter::executeFlashSessionsConfig(std::shared_ptr<FlashSessionsConfig> config) {
    return families_.flash->executeFlashSessionsConfig(std::move(config));
}
uint64_t
FamilyRouter::executeFlashSessionsConfigAsync(std::shared_ptr<FlashSessionsConfig> config,
                                              ExecuteFlashSessionsConfigCallback* callback) {
    return families_.flash->executeFlashSessionsConfigAsync(std::move(config), callback);
}
std::vector<std::shared_ptr<LoadDatabaseResult>>
FamilyRouter::loadDatabaseFile(const std::vector<std::wstring>& files) {
    return families_.projects->loadDatabaseFile(files);
}
std::vector<std::shared_ptr<FileInfo>>
FamilyRouter::copyProjectWithFilters(const std::vector<std::shared_ptr<FileFilter>>& filters,
                                     bool flag, std::shared_ptr<FileCopyConfig> config,
                                     const std::wstring& text) {
    return families_.files->copyProjectWithFilters(filters, flag, std::move(config), text);
}
void FamilyRouter::reserved170() { throw unsupported("reserved170"); }
void FamilyRouter::reserved171() { throw unsupported("reserved171"); }
bool FamilyRouter::reconnectRemoteServer(uint64_t handle) {
    return families_.servers->reconnectRemoteServer(handle);
}
std::vector<std::wstring>
FamilyRouter::filterFiles(const std::vector<std::shared_ptr<FileFilter>>& filters,
                          const std::wstring& text) {
    return families_.files->filterFiles(filters, text);
}
void FamilyRouter::reserved174() { throw unsupported("reserved174"); }
std::vector<std::shared_ptr<LoadDatabaseResult>>
FamilyRouter::unloadDatabaseFile(const std::vector<std::wstring>& files) {
    return families_.projects->unloadDatabaseFile(files);
}
std::vector<std::shared_ptr<DirectoryInfo>> FamilyRouter::getPublicDirectories() {
    return families_.files->getPublicDirectories();
}
std::vector<std::shared_ptr<VehicleUpdateResult>>
FamilyRouter::updateVehicle(std::shared_ptr<VehicleUpdateConfig> config) {
    return families_.vehicleUpdate->updateVehicle(std::move(config));
}
uint64_t FamilyRouter::updateVehicleAsync(std::shared_ptr<VehicleUpdateConfig> config,
                                          UpdateVehicleCallback* callback) {
    return families_.vehicleUpdate->updateVehicleAsync(std::move(config), callback);
}
std::vector<std::shared_ptr<ServiceResult>> FamilyRouter::executeServiceInDefaultSession(
    const std::wstring& target, const std::vector<std::shared_ptr<ServiceInput>>& services) {
    return families_.services->executeServiceInDefaultSession(target, services);
}
uint64_t FamilyRouter::executeServiceInDefaultSessionAsync(
    const std::wstring& target, const std::vector<std::shared_ptr<ServiceInput>>& services,
    ExecuteServiceInDefaultSessionCallback* callback) {
    return families_.services->executeServiceInDefaultSessionAsync(target, services, callback);
}
std::vector<std::shared_ptr<TargetStatus>>
FamilyRouter::getTargetStatus(const std::vector<std::wstring>& targets) {
    return families_.diagnostics->getTargetStatus(targets);
}
std::vector<std::shared_ptr<PhysicalLinksOnModule>>
FamilyRouter::getPhysicalLinks(const std::vector<std::wstring>& modules) {
    return families_.interfaces->getPhysicalLinks(modules);
}
std::vector<std::shared_ptr<PhysicalLinksOnModule>>
FamilyRouter::setPhysicalLinks(const std::vector<std::shared_ptr<PhysicalLinksOnModule>>& links) {
    return families_.interfaces->setPhysicalLinks(links);
}
bool FamilyRouter::moveFile(const std::wstring& source, const std::wstring& target) {
    return families_.files->moveFile(source, target);
}
bool FamilyRouter::moveDirectory(const std::wstring& source, const std::wstring& target) {
    return families_.files->moveDirectory(source, target);
}
bool FamilyRouter::pathExists(const std::wstring& path) {
    return families_.files->pathExists(path);
}
void FamilyRouter::reserved187() { throw unsupported("reserved187"); }
std::wstring FamilyRouter::resolvePath(const std::wstring& path) {
    return families_.files->resolvePath(path);
}
void FamilyRouter::reserved189() { throw unsupported("reserved189"); }
void FamilyRouter::reserved190() { throw unsupported("reserved190"); }
std::vector<std::shared_ptr<VehicleData>> FamilyRouter::getVehicleData() {
    return families_.vehicleReports->getVehicleData();
}
std::vector<std::shared_ptr<ProjectDetails>>
FamilyRouter::getProjectsDetails(const std::vector<std::wstring>& projectNames) {
    return families_.projects->getProjectsDetails(projectNames);
}
void FamilyRouter::uploadReport(std::shared_ptr<UploadReportConfiguration> config) {
    return families_.vehicleUpdate->uploadReport(std::move(config));
}
std::vector<std::shared_ptr<FileReferenceResult>>
FamilyRouter::getFileReferences(const std::vector<std::wstring>& files) {
    return families_.files->getFileReferences(files);
}
void FamilyRouter::onConnectionClosed() { return families_.events->onConnectionClosed(); }
bool FamilyRouter::openTerminal() { return families_.interfaces->openTerminal(); }
void FamilyRouter::closeTerminal() { return families_.interfaces->closeTerminal(); }
void FamilyRouter::reserved198() { throw unsupported("reserved198"); }
void FamilyRouter::reserved199() { throw unsupported("reserved199"); }
bool FamilyRouter::isDirectory(const std::wstring& path) {
    return families_.files->isDirectory(path);
}
std::shared_ptr<DirectoryInfo> FamilyRouter::getDirectoryInfo(const std::wstring& path, bool flag) {
    return families_.files->getDirectoryInfo(path, flag);
}
std::shared_ptr<FileInfo> FamilyRouter::getFileInfo(const std::wstring& path) {
    return families_.files->getFileInfo(path);
}
bool FamilyRouter::isFile(const std::wstring& path) { return families_.files->isFile(path); }
std::shared_ptr<WLanSignalData> FamilyRouter::getWLanSignalData(const std::wstring& interfaceName) {
    return families_.interfaces->getWLanSignalData(interfaceName);
}
std::vector<std::shared_ptr<KelError>> FamilyRouter::clearDoIPEcuCollection() {
    return families_.interfaces->clearDoIPEcuCollection();
}
void FamilyRouter::setBrokerUrl(const std::wstring& url) {
    return families_.vehicleUpdate->setBrokerUrl(url);
}
std::vector<std::shared_ptr<PathCopyResult>>
FamilyRouter::copyPath(std::shared_ptr<PathCopyConfig> config) {
    return families_.files->copyPath(std::move(config));
}
uint64_t FamilyRouter::copyPathAsync(std::shared_ptr<PathCopyConfig> config,
                                     CopyPathCallback* callback) {
    return families_.files->copyPathAsync(std::move(config), callback);
}
void FamilyRouter::reserved209() { throw unsupported("reserved209"); }
void FamilyRouter::reserved210() { throw unsupported("reserved210"); }
void FamilyRouter::reserved211() { throw unsupported("reserved211"); }
void FamilyRouter::reserved212() { throw unsupported("reserved212"); }
bool FamilyRouter::thirdPartyLogin(const std::wstring& code) {
    return families_.servers->thirdPartyLogin(code);
}
void FamilyRouter::clearUpdatePackages() { return families_.vehicleUpdate->clearUpdatePackages(); }
std::wstring FamilyRouter::getThirdPartyLoginUrl(const std::wstring& provider) {
    return families_.servers->getThirdPartyLoginUrl(provider);
}
void FamilyRouter::selectDynamicProject(const std::wstring& projectName,
                                        const std::vector<std::wstring>& items) {
    return families_.projects->selectDynamicProject(projectName, items);
}
std::wstring FamilyRouter::getCertificateByPublicKey(const std::wstring& publicKey,
                                                     const std::wstring& text2,
                                                     const std::wstring& text3,
                                                     const std::wstring& text4) {
    return families_.servers->getCertificateByPublicKey(publicKey, text2, text3, text4);
}
std::wstring
FamilyRouter::createCertificateFromCSR(const std::wstring& text1, const std::wstring& text2,
                                       const std::wstring& text3, const std::wstring& text4,
                                       const std::wstring& text5, const std::wstring& text6) {
    return families_.servers->createCertificateFromCSR(text1, text2, text3, text4, text5, text6);
}
std::vector<std::wstring> FamilyRouter::getCertificateChainById(const std::wstring& id,
                                                                const std::wstring& text2,
                                                                const std::wstring& text3) {
    return families_.servers->getCertificateChainById(id, text2, text3);
}
std::vector<std::shared_ptr<EcuOrderEntry>> FamilyRouter::createDefaultECUOrder() {
    return families_.ecuOrder->createDefaultECUOrder();
}
std::vector<std::shared_ptr<CodingFileResult>>
FamilyRouter::writeCodingFile(const std::wstring& codingFile,
                              const std::vector<std::wstring>& targets) {
    return families_.coding->writeCodingFile(codingFile, targets);
}
uint64_t FamilyRouter::writeCodingFileAsync(const std::wstring& codingFile,
                                            const std::vector<std::wstring>& targets,
                                            WriteCodingFileCallback* callback) {
    return families_.coding->writeCodingFileAsync(codingFile, targets, callback);
}
void FamilyRouter::writeEcuOrder(const std::wstring& path,
                                 const std::vector<std::shared_ptr<EcuOrderEntry>>& entries) {
    return families_.ecuOrder->writeEcuOrder(path, entries);
}
std::wstring FamilyRouter::getEcuOrderFilePath() {
    return families_.ecuOrder->getEcuOrderFilePath();
}
std::vector<std::shared_ptr<VehicleUpdateResult>>
FamilyRouter::performVehicleUpdate(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                                   std::shared_ptr<VehicleUpdateConfig> config) {
    return families_.vehicleUpdate->performVehicleUpdate(entries, std::move(config));
}
uint64_t
FamilyRouter::performVehicleUpdateAsync(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                                        std::shared_ptr<VehicleUpdateConfig> config,
                                        PerformVehicleUpdateCallback* callback) {
    return families_.vehicleUpdate->performVehicleUpdateAsync(entries, std::move(config), callback);
}
void FamilyRouter::triggerAsyncCancels(const std::vector<uint64_t>& callIds) {
    return families_.lifecycle->triggerAsyncCancels(callIds);
}
std::vector<std::shared_ptr<ServiceResult>>
FamilyRouter::executeSequence(const std::wstring& target, const std::wstring& sequence,
                              const std::vector<std::shared_ptr<ParameterInput>>& parameters) {
    return families_.sequences->executeSequence(target, sequence, parameters);
}
uint64_t
FamilyRouter::executeSequenceAsync(const std::wstring& target, const std::wstring& sequence,
                                   const std::vector<std::shared_ptr<ParameterInput>>& parameters,
                                   ExecuteSequenceCallback* callback) {
    return families_.sequences->executeSequenceAsync(target, sequence, parameters, callback);
}
void FamilyRouter::addPublicDirectory(const std::wstring& name, const std::wstring& path) {
    return families_.files->addPublicDirectory(name, path);
}
std::wstring FamilyRouter::createVehicleUpdateReport(
    const std::vector<std::shared_ptr<VehicleUpdateResult>>& results) {
    return families_.vehicleReports->createVehicleUpdateReport(results);
}
std::shared_ptr<ParameterInfo>
FamilyRouter::getParameterInfo(std::shared_ptr<ParameterInfoConfig> config) {
    return families_.services->getParameterInfo(std::move(config));
}
std::vector<std::shared_ptr<EcuConfigurationResult>>
FamilyRouter::performEcuConfiguration(const std::vector<std::wstring>& targets,
                                      const std::wstring& configuration) {
    return families_.coding->performEcuConfiguration(targets, configuration);
}
uint64_t FamilyRouter::performEcuConfigurationAsync(const std::vector<std::wstring>& targets,
                                                    const std::wstring& configuration,
                                                    PerformEcuConfigurationCallback* callback) {
    return families_.coding->performEcuConfigurationAsync(targets, configuration, callback);
}
std::vector<std::shared_ptr<ClearDtcResult>>
FamilyRouter::clearSpecificDtcs(const std::wstring& target, const std::vector<uint32_t>& dtcCodes) {
    return families_.diagnostics->clearSpecificDtcs(target, dtcCodes);
}
uint64_t FamilyRouter::clearSpecificDtcsAsync(const std::wstring& target,
                                              const std::vector<uint32_t>& dtcCodes,
                                              ClearSpecificDtcsCallback* callback) {
    return families_.diagnostics->clearSpecificDtcsAsync(target, dtcCodes, callback);
}
void FamilyRouter::startSOVDServer() { return families_.servers->startSOVDServer(); }
void FamilyRouter::stopSOVDServer() { return families_.servers->stopSOVDServer(); }
void FamilyRouter::logIn(std::shared_ptr<LogInOutConfig> config) {
    return families_.servers->logIn(std::move(config));
}
std::shared_ptr<VehicleUpdateConfig>
FamilyRouter::createVehicleUpdateConfig(const std::vector<std::wstring>& targets) {
    return families_.vehicleUpdate->createVehicleUpdateConfig(targets);
}
std::vector<std::shared_ptr<ProjectConfig>> FamilyRouter::getProjectConfigurations() {
    return families_.projects->getProjectConfigurations();
}
int32_t FamilyRouter::getState() { return families_.lifecycle->getState(); }
std::wstring FamilyRouter::getVersion() { return families_.projects->getVersion(); }
std::wstring FamilyRouter::getSelectedProject() { return families_.projects->getSelectedProject(); }
void FamilyRouter::setSelectedProject(const std::wstring& projectName) {
    return families_.projects->setSelectedProject(projectName);
}
std::shared_ptr<TarnApiConfig> FamilyRouter::getConfiguration() {
    return families_.projects->getConfiguration();
}
void FamilyRouter::setConfiguration(std::shared_ptr<TarnApiConfig> config) {
    return families_.projects->setConfiguration(std::move(config));
}
std::shared_ptr<ServerSettings> FamilyRouter::getServerSettings() {
    return families_.servers->getServerSettings();
}
std::shared_ptr<VehicleInformation> FamilyRouter::getSelectedVehicleInformation() {
    return families_.vehicleReports->getSelectedVehicleInformation();
}
void FamilyRouter::setSelectedVehicleInformation(std::shared_ptr<VehicleInformation> information) {
    return families_.vehicleReports->setSelectedVehicleInformation(std::move(information));
}
std::vector<std::shared_ptr<Target>> FamilyRouter::getTargets() {
    return families_.diagnostics->getTargets();
}
std::shared_ptr<ProcessInfo> FamilyRouter::getProcessInfo() {
    return families_.projects->getProcessInfo();
}
std::shared_ptr<TransmissionInfo> FamilyRouter::getTransmissionInfo() {
    return families_.projects->getTransmissionInfo();
}
uint64_t FamilyRouter::getHandle() { return families_.lifecycle->getHandle(); }
std::shared_ptr<MoxConfig> FamilyRouter::getMoxConfiguration() {
    return families_.projects->getMoxConfiguration();
}
void FamilyRouter::setMoxConfiguration(std::shared_ptr<MoxConfig> config) {
    return families_.projects->setMoxConfiguration(std::move(config));
}
std::shared_ptr<InterfaceConfiguration> FamilyRouter::getInterfaceConfiguration() {
    return families_.interfaces->getInterfaceConfiguration();
}
void FamilyRouter::setInterfaceConfiguration(std::shared_ptr<InterfaceConfiguration> config) {
    return families_.interfaces->setInterfaceConfiguration(std::move(config));
}
std::vector<std::wstring> FamilyRouter::getMonitoringLinks() {
    return families_.monitoring->getMonitoringLinks();
}
std::vector<std::shared_ptr<GlobalProtocolParameterSet>>
FamilyRouter::getGlobalProtocolParameterSets() {
    return families_.projects->getGlobalProtocolParameterSets();
}
void FamilyRouter::setGlobalProtocolParameterSets(
    const std::vector<std::shared_ptr<GlobalProtocolParameterSet>>& sets) {
    return families_.projects->setGlobalProtocolParameterSets(sets);
}
std::shared_ptr<StatusInfo> FamilyRouter::getStatusInfo() {
    return families_.projects->getStatusInfo();
}
std::vector<std::shared_ptr<TargetFilter>> FamilyRouter::getSessionTargetFilters() {
    return families_.diagnostics->getSessionTargetFilters();
}
void FamilyRouter::setSessionTargetFilters(
    const std::vector<std::shared_ptr<TargetFilter>>& filters) {
    return families_.diagnostics->setSessionTargetFilters(filters);
}
std::vector<std::shared_ptr<SupportedInterface>> FamilyRouter::getSupportedInterfaces() {
    return families_.interfaces->getSupportedInterfaces();
}
std::vector<std::shared_ptr<InterfaceProvider>> FamilyRouter::getInterfaceProviders() {
    return families_.interfaces->getInterfaceProviders();
}
void FamilyRouter::setInterfaceProviders(
    const std::vector<std::shared_ptr<InterfaceProviderDyn>>& providers) {
    return families_.interfaces->setInterfaceProviders(providers);
}
std::wstring FamilyRouter::getCurrentDebugTraceDirectory() {
    return families_.projects->getCurrentDebugTraceDirectory();
}
std::shared_ptr<TarnApiServerConfig> FamilyRouter::getServerConfiguration() {
    return families_.servers->getServerConfiguration();
}
uint64_t FamilyRouter::getCallDuration() { return families_.lifecycle->getCallDuration(); }
void FamilyRouter::setStatusText(const std::wstring& text) {
    return families_.projects->setStatusText(text);
}
std::shared_ptr<DoIPParameter> FamilyRouter::getDefaultDoIPParameter() {
    return families_.interfaces->getDefaultDoIPParameter();
}

} // namespace Varno::Kel_cpp::Reference
