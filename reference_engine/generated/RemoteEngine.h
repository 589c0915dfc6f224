// Generated from the interface description by tools/generate.py. Do not edit.
// The proxy of a remote connection: every operation travels to the server as a
// Call frame numbered by its virtual-table position (RemoteClient.h).
#pragma once

#include "families/servers/RemoteClient.h"

#include <Kel_cpp/TarnApi.h>

#include <memory>

namespace Varno::Kel_cpp::Reference {

class RemoteEngine final : public TarnApi {
public:
    explicit RemoteEngine(std::shared_ptr<Remote::RemoteClient> client)
        : client_(std::move(client)) {}

    void initialize() override;
    void end() override;
    std::wstring startServer(const std::wstring& name) override;
    void stopServer(const std::wstring& reason) override;
    void restartServer(int32_t endClients) override;
    std::shared_ptr<ProjectConfig>
    getProjectConfiguration(const std::wstring& projectName) override;
    void setProjectConfiguration(const std::wstring& projectName,
                                 std::shared_ptr<ProjectConfig> config) override;
    void saveProjectConfiguration(const std::wstring& projectName) override;
    uint64_t createMonitoringLink(const std::wstring& name) override;
    std::vector<std::shared_ptr<MonitoringItem>>
    getMonitoringItems(uint64_t handle, uint32_t value1, int32_t value2) override;
    void releaseMonitoringLink(uint64_t handle) override;
    std::vector<std::shared_ptr<PduMonitoringItem>>
    getPduMonitoringItems(uint64_t handle, uint32_t value1, int32_t value2) override;
    uint64_t createPduMonitor() override;
    void saveConfiguration() override;
    void releasePduMonitor(uint64_t handle) override;
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
    std::vector<std::shared_ptr<ServiceInfo>>
    getServiceInfos(const std::wstring& text1, const std::wstring& text2,
                    const std::vector<std::wstring>& names, int32_t value) override;
    std::vector<std::shared_ptr<FlashSessionInfo>>
    getFlashSessionInfos(const std::wstring& target) override;
    std::vector<std::shared_ptr<FlashSessionResult>>
    executeFlashSessions(const std::wstring& target,
                         const std::vector<std::wstring>& sessions) override;
    uint64_t executeFlashSessionsAsync(const std::wstring& target,
                                       const std::vector<std::wstring>& sessions,
                                       ExecuteFlashSessionsCallback* callback) override;
    std::vector<std::shared_ptr<CodingStringResult>>
    readCodingStrings(const std::vector<std::wstring>& targets) override;
    uint64_t readCodingStringsAsync(const std::vector<std::wstring>& targets,
                                    ReadCodingStringsCallback* callback) override;
    std::vector<std::shared_ptr<QuickTestResult>>
    performQuickTest(const std::vector<std::wstring>& targets,
                     std::shared_ptr<DtcReadConfig> config) override;
    uint64_t performQuickTestAsync(const std::vector<std::wstring>& targets,
                                   std::shared_ptr<DtcReadConfig> config,
                                   PerformQuickTestCallback* callback) override;
    std::shared_ptr<TarnApi> connectRemoteServer(const std::wstring& address) override;
    std::vector<std::shared_ptr<ParameterInfo>>
    getMeasurementValueInfos(const std::wstring& target) override;
    uint64_t registerMeasurementValues(const std::wstring& target,
                                       const std::vector<std::wstring>& names) override;
    std::vector<std::shared_ptr<ReadDataResult>>
    getMeasurementValues(uint64_t registration) override;
    void unregisterMeasurementValues(uint64_t registration) override;
    std::vector<std::shared_ptr<ParameterInfo>>
    getIdentificationValueInfos(const std::wstring& target) override;
    void cancelAllAsyncCalls() override;
    std::vector<uint8_t> createSeed(uint32_t value1, uint32_t value2) override;
    void sendKey(const std::vector<uint8_t>& key) override;
    uint64_t openEventChannel() override;
    void closeEventChannel(uint64_t channel) override;
    std::shared_ptr<EventReport> getCurrentEvents(uint64_t channel, uint32_t limit) override;
    void openTraceFileMonitoringLink(uint64_t handle, const std::wstring& traceFile) override;
    void startTraceFileMonitoringLink(uint64_t handle) override;
    void stopTraceFileMonitoringLink(uint64_t handle) override;
    void closeTraceFileMonitoringLink(uint64_t handle) override;
    void saveInterfaceConfiguration() override;
    std::vector<std::shared_ptr<ScanInterfaceResult>>
    scanInterfaceConnection(const std::vector<std::wstring>& interfaces) override;
    uint64_t scanInterfaceConnectionAsync(const std::vector<std::wstring>& interfaces,
                                          ScanInterfaceConnectionCallback* callback) override;
    void disconnect() override;
    std::wstring getInterfaceLongName(const std::wstring& name) override;
    std::vector<std::shared_ptr<ReadDataResult>>
    readMeasurementValues(const std::wstring& target,
                          const std::vector<std::wstring>& names) override;
    uint64_t readMeasurementValuesAsync(const std::wstring& target,
                                        const std::vector<std::wstring>& names,
                                        ReadMeasurementValuesCallback* callback) override;
    std::vector<uint8_t> readFile(const std::wstring& path, uint64_t value1, uint32_t value2,
                                  bool flag) override;
    void connectInterfaces() override;
    void disconnectInterfaces() override;
    void executeDoIPBroadcast() override;
    void refreshProjectList() override;
    std::vector<std::shared_ptr<VariantIdentResult>>
    identifyTargets(const std::vector<std::wstring>& targets) override;
    uint64_t identifyTargetsAsync(const std::vector<std::wstring>& targets,
                                  IdentifyTargetsCallback* callback) override;
    std::vector<std::shared_ptr<ParameterInfo>>
    getActuatorServiceInfos(const std::wstring& text1, const std::wstring& text2) override;
    void releaseSocketBridge(uint64_t bridge) override;
    uint64_t createSocketBridge(uint32_t value1, uint32_t value2) override;
    void reserved70() override;
    void reserved71() override;
    void reserved72() override;
    std::vector<std::shared_ptr<ParameterInfo>>
    getSingleMeasurementValueInfos(const std::wstring& target,
                                   const std::vector<std::wstring>& names) override;
    std::vector<std::shared_ptr<Target>>
    getFilteredTargets(const std::vector<std::shared_ptr<TargetFilter>>& filters) override;
    bool isProjectConversionRequired(const std::wstring& projectPath) override;
    void convertProject(const std::wstring& projectPath) override;
    void saveMoxConfiguration() override;
    uint64_t startCyclicServices(const std::wstring& target,
                                 const std::vector<std::shared_ptr<ServiceInput>>& services,
                                 uint32_t cycleTime) override;
    std::vector<std::shared_ptr<ServiceResult>> getCyclicResults(uint64_t cyclic) override;
    void stopCyclicServices(uint64_t cyclic) override;
    std::shared_ptr<ProjectDetails> getProjectDetails() override;
    void clearLinkCache() override;
    void addResource(const std::wstring& name, std::shared_ptr<ResourceInformation> resource,
                     uint16_t value) override;
    void removeInterface(const std::wstring& name) override;
    std::shared_ptr<InterfaceInformation>
    addInterface(std::shared_ptr<InterfaceInformation> interfaceInfo, const std::wstring& text1,
                 const std::wstring& text2, const std::wstring& text3) override;
    void removeResource(const std::wstring& name1, const std::wstring& name2) override;
    std::shared_ptr<SystemProperty> getSystemProperty(const std::wstring& name) override;
    void resetSystemProperty(const std::wstring& name) override;
    void setSystemProperty(std::shared_ptr<SystemProperty> property) override;
    std::vector<std::wstring>
    getVendorModuleNames(std::shared_ptr<InterfaceInformation> interfaceInfo) override;
    std::vector<std::wstring> getVendorModuleNamesEx(const std::wstring& text) override;
    std::vector<std::shared_ptr<ServiceResult>>
    executeService(const std::wstring& target,
                   const std::vector<std::shared_ptr<ServiceInput>>& services) override;
    uint64_t executeServiceAsync(const std::wstring& target,
                                 const std::vector<std::shared_ptr<ServiceInput>>& services,
                                 ExecuteServiceCallback* callback) override;
    std::vector<std::shared_ptr<ModuleDyn>>
    detectDynInterfaces(uint32_t value, std::shared_ptr<DynInterfaceDetection> detection) override;
    uint64_t detectDynInterfacesAsync(uint32_t value,
                                      std::shared_ptr<DynInterfaceDetection> detection,
                                      DetectDynInterfacesCallback* callback) override;
    void connectDynInterface(const std::wstring& name, bool flag,
                             std::shared_ptr<DynInterfaceDetection> detection) override;
    void disconnectDynInterfaces(const std::vector<std::wstring>& names) override;
    void updateCyclicServices(uint64_t cyclic,
                              const std::vector<std::shared_ptr<ServiceInput>>& services) override;
    void cancelAsyncCalls(const std::vector<uint64_t>& callIds) override;
    std::shared_ptr<DirectoryInfo> getProjectDirectory(bool flag) override;
    std::shared_ptr<DirectoryInfo> getSelectedProjectDirectory(bool flag) override;
    uint32_t writeFile(const std::wstring& path, const std::vector<uint8_t>& data, uint32_t value,
                       bool flag) override;
    std::shared_ptr<KelError>
    deleteFiles(const std::vector<std::shared_ptr<FileInfo>>& files) override;
    std::vector<std::shared_ptr<DirectoryInfo>>
    findDirectories(std::shared_ptr<DirectoryInfo> directory, const std::wstring& pattern,
                    bool flag) override;
    std::vector<std::shared_ptr<FileInfo>>
    findFiles(const std::wstring& directory, const std::wstring& pattern, bool flag) override;
    std::shared_ptr<DirectoryInfo>
    initializeDirectoryElements(std::shared_ptr<DirectoryInfo> directory, bool flag) override;
    std::shared_ptr<FileInfo> createFile(std::shared_ptr<DirectoryInfo> parent,
                                         const std::wstring& name) override;
    std::shared_ptr<DirectoryInfo> createDirectory(std::shared_ptr<DirectoryInfo> parent,
                                                   const std::wstring& name) override;
    std::shared_ptr<KelError> deleteDirectory(const std::wstring& path) override;
    std::shared_ptr<DirectoryInfo> getTraceDirectory(bool flag) override;
    std::wstring createVehicleReport(std::shared_ptr<VehicleReportConfig> config) override;
    std::vector<std::shared_ptr<EcuOrderEntry>> readEcuOrder(const std::wstring& path) override;
    std::vector<std::shared_ptr<EcuOrderEntry>>
    filterEcuOrder(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                   const std::vector<std::wstring>& targets) override;
    std::vector<std::shared_ptr<EcuOrderEntry>> addMissingTargetsToEcuOrder(
        const std::vector<std::shared_ptr<EcuOrderEntry>>& entries) override;
    uint64_t lock() override;
    void unlock(uint64_t lockId) override;
    bool isLocked() override;
    void breakLock() override;
    void setEthernetPinState(uint8_t state, const std::vector<std::wstring>& interfaces) override;
    uint32_t getEthernetPinState(const std::wstring& interfaceName) override;
    std::vector<std::shared_ptr<ModuleDyn>> detectDynInterfacesEx(uint32_t value) override;
    uint64_t detectDynInterfacesExAsync(uint32_t value,
                                        DetectDynInterfacesExCallback* callback) override;
    void connectDynInterfaceEx(const std::wstring& name, bool flag) override;
    void addUser(const std::wstring& name, const std::wstring& password, uint32_t role) override;
    void removeUser(const std::wstring& name) override;
    std::vector<std::shared_ptr<UserInfo>> getUsers() override;
    void logOut(std::shared_ptr<LogInOutConfig> config) override;
    void updateUser(const std::wstring& name, const std::wstring& newName,
                    const std::wstring& newPassword, uint32_t role) override;
    bool getServerUserManagement() override;
    void setServerUserManagement(bool enabled) override;
    void registerServerHandler(std::shared_ptr<ServerHandler> handler) override;
    void reserved132() override;
    void disconnectAllClients() override;
    bool testSocketBridge(uint64_t bridge) override;
    void reserved135() override;
    std::vector<std::shared_ptr<FileCopyResult>>
    copyFiles(std::shared_ptr<FileCopyConfig> config) override;
    uint64_t copyFilesAsync(std::shared_ptr<FileCopyConfig> config,
                            CopyFilesCallback* callback) override;
    std::vector<std::shared_ptr<DirectoryCopyResult>>
    copyDirectories(std::shared_ptr<DirectoryCopyConfig> config) override;
    uint64_t copyDirectoriesAsync(std::shared_ptr<DirectoryCopyConfig> config,
                                  CopyDirectoriesCallback* callback) override;
    std::wstring calculateChecksum(const std::wstring& path, int32_t algorithm) override;
    void reserved141() override;
    void reserved142() override;
    void reserved143() override;
    void reserved144() override;
    uint64_t runSequence(const std::wstring& sequence,
                         const std::vector<std::wstring>& arguments) override;
    std::shared_ptr<UnlockResult>
    unlockVehicle(const std::wstring& target,
                  const std::vector<std::shared_ptr<ServiceInput>>& services) override;
    uint64_t releaseVehicleUnlock(uint64_t value) override;
    void cancelSequence(uint64_t run) override;
    std::vector<std::shared_ptr<DeviceInfo>> getRegisteredDevices() override;
    std::shared_ptr<SystemInfo> getSystemInfo() override;
    void applyUpdatePackage(const std::wstring& package) override;
    void renameFile(const std::wstring& path, const std::wstring& newName) override;
    void onConnectionBroken() override;
    std::vector<std::shared_ptr<UpdatePackageInfo>> getUpdatePackages() override;
    std::vector<std::shared_ptr<UpdatePackageInfo>> getPackagesFromBroker() override;
    bool checkUpdatesOnBroker() override;
    bool autoUpdate() override;
    std::shared_ptr<DirectoryInfo> getConfigDirectory(bool flag) override;
    void reserved159() override;
    uint64_t createApiTraceMonitor() override;
    std::vector<uint8_t> getApiTraceContent(uint64_t handle, uint32_t value1,
                                            int32_t value2) override;
    void releaseApiTraceMonitor(uint64_t handle) override;
    std::vector<std::shared_ptr<NamedItem>> getCurrentVersions() override;
    bool checkUpdateSuccess() override;
    void cleanUpdateTmp() override;
    std::vector<std::shared_ptr<FlashSessionResult>>
    executeFlashSessionsConfig(std::shared_ptr<FlashSessionsConfig> config) override;
    uint64_t executeFlashSessionsConfigAsync(std::shared_ptr<FlashSessionsConfig> config,
                                             ExecuteFlashSessionsConfigCallback* callback) override;
    std::vector<std::shared_ptr<LoadDatabaseResult>>
    loadDatabaseFile(const std::vector<std::wstring>& files) override;
    std::vector<std::shared_ptr<FileInfo>>
    copyProjectWithFilters(const std::vector<std::shared_ptr<FileFilter>>& filters, bool flag,
                           std::shared_ptr<FileCopyConfig> config,
                           const std::wstring& text) override;
    void reserved170() override;
    void reserved171() override;
    bool reconnectRemoteServer(uint64_t handle) override;
    std::vector<std::wstring> filterFiles(const std::vector<std::shared_ptr<FileFilter>>& filters,
                                          const std::wstring& text) override;
    void reserved174() override;
    std::vector<std::shared_ptr<LoadDatabaseResult>>
    unloadDatabaseFile(const std::vector<std::wstring>& files) override;
    std::vector<std::shared_ptr<DirectoryInfo>> getPublicDirectories() override;
    std::vector<std::shared_ptr<VehicleUpdateResult>>
    updateVehicle(std::shared_ptr<VehicleUpdateConfig> config) override;
    uint64_t updateVehicleAsync(std::shared_ptr<VehicleUpdateConfig> config,
                                UpdateVehicleCallback* callback) override;
    std::vector<std::shared_ptr<ServiceResult>> executeServiceInDefaultSession(
        const std::wstring& target,
        const std::vector<std::shared_ptr<ServiceInput>>& services) override;
    uint64_t
    executeServiceInDefaultSessionAsync(const std::wstring& target,
                                        const std::vector<std::shared_ptr<ServiceInput>>& services,
                                        ExecuteServiceInDefaultSessionCallback* callback) override;
    std::vector<std::shared_ptr<TargetStatus>>
    getTargetStatus(const std::vector<std::wstring>& targets) override;
    std::vector<std::shared_ptr<PhysicalLinksOnModule>>
    getPhysicalLinks(const std::vector<std::wstring>& modules) override;
    std::vector<std::shared_ptr<PhysicalLinksOnModule>>
    setPhysicalLinks(const std::vector<std::shared_ptr<PhysicalLinksOnModule>>& links) override;
    bool moveFile(const std::wstring& source, const std::wstring& target) override;
    bool moveDirectory(const std::wstring& source, const std::wstring& target) override;
    bool pathExists(const std::wstring& path) override;
    void reserved187() override;
    std::wstring resolvePath(const std::wstring& path) override;
    void reserved189() override;
    void reserved190() override;
    std::vector<std::shared_ptr<VehicleData>> getVehicleData() override;
    std::vector<std::shared_ptr<ProjectDetails>>
    getProjectsDetails(const std::vector<std::wstring>& projectNames) override;
    void uploadReport(std::shared_ptr<UploadReportConfiguration> config) override;
    std::vector<std::shared_ptr<FileReferenceResult>>
    getFileReferences(const std::vector<std::wstring>& files) override;
    void onConnectionClosed() override;
    bool openTerminal() override;
    void closeTerminal() override;
    void reserved198() override;
    void reserved199() override;
    bool isDirectory(const std::wstring& path) override;
    std::shared_ptr<DirectoryInfo> getDirectoryInfo(const std::wstring& path, bool flag) override;
    std::shared_ptr<FileInfo> getFileInfo(const std::wstring& path) override;
    bool isFile(const std::wstring& path) override;
    std::shared_ptr<WLanSignalData> getWLanSignalData(const std::wstring& interfaceName) override;
    std::vector<std::shared_ptr<KelError>> clearDoIPEcuCollection() override;
    void setBrokerUrl(const std::wstring& url) override;
    std::vector<std::shared_ptr<PathCopyResult>>
    copyPath(std::shared_ptr<PathCopyConfig> config) override;
    uint64_t copyPathAsync(std::shared_ptr<PathCopyConfig> config,
                           CopyPathCallback* callback) override;
    void reserved209() override;
    void reserved210() override;
    void reserved211() override;
    void reserved212() override;
    bool thirdPartyLogin(const std::wstring& code) override;
    void clearUpdatePackages() override;
    std::wstring getThirdPartyLoginUrl(const std::wstring& provider) override;
    void selectDynamicProject(const std::wstring& projectName,
                              const std::vector<std::wstring>& items) override;
    std::wstring getCertificateByPublicKey(const std::wstring& publicKey, const std::wstring& text2,
                                           const std::wstring& text3,
                                           const std::wstring& text4) override;
    std::wstring createCertificateFromCSR(const std::wstring& text1, const std::wstring& text2,
                                          const std::wstring& text3, const std::wstring& text4,
                                          const std::wstring& text5,
                                          const std::wstring& text6) override;
    std::vector<std::wstring> getCertificateChainById(const std::wstring& id,
                                                      const std::wstring& text2,
                                                      const std::wstring& text3) override;
    std::vector<std::shared_ptr<EcuOrderEntry>> createDefaultECUOrder() override;
    std::vector<std::shared_ptr<CodingFileResult>>
    writeCodingFile(const std::wstring& codingFile,
                    const std::vector<std::wstring>& targets) override;
    uint64_t writeCodingFileAsync(const std::wstring& codingFile,
                                  const std::vector<std::wstring>& targets,
                                  WriteCodingFileCallback* callback) override;
    void writeEcuOrder(const std::wstring& path,
                       const std::vector<std::shared_ptr<EcuOrderEntry>>& entries) override;
    std::wstring getEcuOrderFilePath() override;
    std::vector<std::shared_ptr<VehicleUpdateResult>>
    performVehicleUpdate(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                         std::shared_ptr<VehicleUpdateConfig> config) override;
    uint64_t performVehicleUpdateAsync(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                                       std::shared_ptr<VehicleUpdateConfig> config,
                                       PerformVehicleUpdateCallback* callback) override;
    void triggerAsyncCancels(const std::vector<uint64_t>& callIds) override;
    std::vector<std::shared_ptr<ServiceResult>>
    executeSequence(const std::wstring& target, const std::wstring& sequence,
                    const std::vector<std::shared_ptr<ParameterInput>>& parameters) override;
    uint64_t executeSequenceAsync(const std::wstring& target, const std::wstring& sequence,
                                  const std::vector<std::shared_ptr<ParameterInput>>& parameters,
                                  ExecuteSequenceCallback* callback) override;
    void addPublicDirectory(const std::wstring& name, const std::wstring& path) override;
    std::wstring createVehicleUpdateReport(
        const std::vector<std::shared_ptr<VehicleUpdateResult>>& results) override;
    std::shared_ptr<ParameterInfo>
    getParameterInfo(std::shared_ptr<ParameterInfoConfig> config) override;
    std::vector<std::shared_ptr<EcuConfigurationResult>>
    performEcuConfiguration(const std::vector<std::wstring>& targets,
                            const std::wstring& configuration) override;
    uint64_t performEcuConfigurationAsync(const std::vector<std::wstring>& targets,
                                          const std::wstring& configuration,
                                          PerformEcuConfigurationCallback* callback) override;
    std::vector<std::shared_ptr<ClearDtcResult>>
    clearSpecificDtcs(const std::wstring& target, const std::vector<uint32_t>& dtcCodes) override;
    uint64_t clearSpecificDtcsAsync(const std::wstring& target,
                                    const std::vector<uint32_t>& dtcCodes,
                                    ClearSpecificDtcsCallback* callback) override;
    void startSOVDServer() override;
    void stopSOVDServer() override;
    void logIn(std::shared_ptr<LogInOutConfig> config) override;
    std::shared_ptr<VehicleUpdateConfig>
    createVehicleUpdateConfig(const std::vector<std::wstring>& targets) override;
    std::vector<std::shared_ptr<ProjectConfig>> getProjectConfigurations() override;
    int32_t getState() override;
    std::wstring getVersion() override;
    std::wstring getSelectedProject() override;
    void setSelectedProject(const std::wstring& projectName) override;
    std::shared_ptr<TarnApiConfig> getConfiguration() override;
    void setConfiguration(std::shared_ptr<TarnApiConfig> config) override;
    std::shared_ptr<ServerSettings> getServerSettings() override;
    std::shared_ptr<VehicleInformation> getSelectedVehicleInformation() override;
    void setSelectedVehicleInformation(std::shared_ptr<VehicleInformation> information) override;
    std::vector<std::shared_ptr<Target>> getTargets() override;
    std::shared_ptr<ProcessInfo> getProcessInfo() override;
    std::shared_ptr<TransmissionInfo> getTransmissionInfo() override;
    uint64_t getHandle() override;
    std::shared_ptr<MoxConfig> getMoxConfiguration() override;
    void setMoxConfiguration(std::shared_ptr<MoxConfig> config) override;
    std::shared_ptr<InterfaceConfiguration> getInterfaceConfiguration() override;
    void setInterfaceConfiguration(std::shared_ptr<InterfaceConfiguration> config) override;
    std::vector<std::wstring> getMonitoringLinks() override;
    std::vector<std::shared_ptr<GlobalProtocolParameterSet>>
    getGlobalProtocolParameterSets() override;
    void setGlobalProtocolParameterSets(
        const std::vector<std::shared_ptr<GlobalProtocolParameterSet>>& sets) override;
    std::shared_ptr<StatusInfo> getStatusInfo() override;
    std::vector<std::shared_ptr<TargetFilter>> getSessionTargetFilters() override;
    void
    setSessionTargetFilters(const std::vector<std::shared_ptr<TargetFilter>>& filters) override;
    std::vector<std::shared_ptr<SupportedInterface>> getSupportedInterfaces() override;
    std::vector<std::shared_ptr<InterfaceProvider>> getInterfaceProviders() override;
    void setInterfaceProviders(
        const std::vector<std::shared_ptr<InterfaceProviderDyn>>& providers) override;
    std::wstring getCurrentDebugTraceDirectory() override;
    std::shared_ptr<TarnApiServerConfig> getServerConfiguration() override;
    uint64_t getCallDuration() override;
    void setStatusText(const std::wstring& text) override;
    std::shared_ptr<DoIPParameter> getDefaultDoIPParameter() override;

private:
    std::shared_ptr<Remote::RemoteClient> client_;
};

} // namespace Varno::Kel_cpp::Reference
