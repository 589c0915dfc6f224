// Generated from the interface description by tools/generate.py. Do not edit.
// The engine interface. Operations stand at fixed virtual-table positions: on the
// Itanium C++ ABI the virtual destructor fills positions 0 and 1, and every
// operation below sits at the position given beside it.
#pragma once

#include <Kel_cpp/Records.h>
#include <Kel_cpp/ServerHandler.h>
#include <Kel_cpp/TarnApiException.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Varno::Kel_cpp {

class TarnApi {
public:
    // Completion callbacks of the asynchronous operations. The engine calls
    // onCompleted once or several times; isFinal marks the last report.
    class IdentifyAllTargetsCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<VariantIdentResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        IdentifyAllTargetsCallback() = default;
        IdentifyAllTargetsCallback(const IdentifyAllTargetsCallback&) = default;
        IdentifyAllTargetsCallback& operator=(const IdentifyAllTargetsCallback&) = default;
        ~IdentifyAllTargetsCallback() = default;
    };

    class ReadIdentificationValuesCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<ReadDataResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        ReadIdentificationValuesCallback() = default;
        ReadIdentificationValuesCallback(const ReadIdentificationValuesCallback&) = default;
        ReadIdentificationValuesCallback&
        operator=(const ReadIdentificationValuesCallback&) = default;
        ~ReadIdentificationValuesCallback() = default;
    };

    class ReadDtcsCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<ReadDtcResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        ReadDtcsCallback() = default;
        ReadDtcsCallback(const ReadDtcsCallback&) = default;
        ReadDtcsCallback& operator=(const ReadDtcsCallback&) = default;
        ~ReadDtcsCallback() = default;
    };

    class ReadSupportedDtcsCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<SupportedDtcResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        ReadSupportedDtcsCallback() = default;
        ReadSupportedDtcsCallback(const ReadSupportedDtcsCallback&) = default;
        ReadSupportedDtcsCallback& operator=(const ReadSupportedDtcsCallback&) = default;
        ~ReadSupportedDtcsCallback() = default;
    };

    class ClearAllDtcsCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<ClearDtcResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        ClearAllDtcsCallback() = default;
        ClearAllDtcsCallback(const ClearAllDtcsCallback&) = default;
        ClearAllDtcsCallback& operator=(const ClearAllDtcsCallback&) = default;
        ~ClearAllDtcsCallback() = default;
    };

    class ExecuteFlashSessionsCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<FlashSessionResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        ExecuteFlashSessionsCallback() = default;
        ExecuteFlashSessionsCallback(const ExecuteFlashSessionsCallback&) = default;
        ExecuteFlashSessionsCallback& operator=(const ExecuteFlashSessionsCallback&) = default;
        ~ExecuteFlashSessionsCallback() = default;
    };

    class ReadCodingStringsCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<CodingStringResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        ReadCodingStringsCallback() = default;
        ReadCodingStringsCallback(const ReadCodingStringsCallback&) = default;
        ReadCodingStringsCallback& operator=(const ReadCodingStringsCallback&) = default;
        ~ReadCodingStringsCallback() = default;
    };

    class PerformQuickTestCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<QuickTestResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        PerformQuickTestCallback() = default;
        PerformQuickTestCallback(const PerformQuickTestCallback&) = default;
        PerformQuickTestCallback& operator=(const PerformQuickTestCallback&) = default;
        ~PerformQuickTestCallback() = default;
    };

    class ScanInterfaceConnectionCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<ScanInterfaceResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        ScanInterfaceConnectionCallback() = default;
        ScanInterfaceConnectionCallback(const ScanInterfaceConnectionCallback&) = default;
        ScanInterfaceConnectionCallback&
        operator=(const ScanInterfaceConnectionCallback&) = default;
        ~ScanInterfaceConnectionCallback() = default;
    };

    class ReadMeasurementValuesCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<ReadDataResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        ReadMeasurementValuesCallback() = default;
        ReadMeasurementValuesCallback(const ReadMeasurementValuesCallback&) = default;
        ReadMeasurementValuesCallback& operator=(const ReadMeasurementValuesCallback&) = default;
        ~ReadMeasurementValuesCallback() = default;
    };

    class IdentifyTargetsCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<VariantIdentResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        IdentifyTargetsCallback() = default;
        IdentifyTargetsCallback(const IdentifyTargetsCallback&) = default;
        IdentifyTargetsCallback& operator=(const IdentifyTargetsCallback&) = default;
        ~IdentifyTargetsCallback() = default;
    };

    class ExecuteServiceCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<ServiceResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        ExecuteServiceCallback() = default;
        ExecuteServiceCallback(const ExecuteServiceCallback&) = default;
        ExecuteServiceCallback& operator=(const ExecuteServiceCallback&) = default;
        ~ExecuteServiceCallback() = default;
    };

    class DetectDynInterfacesCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<ModuleDyn>> results, uint64_t callId,
                                 std::shared_ptr<KelError> error, bool isFinal) = 0;

    protected:
        DetectDynInterfacesCallback() = default;
        DetectDynInterfacesCallback(const DetectDynInterfacesCallback&) = default;
        DetectDynInterfacesCallback& operator=(const DetectDynInterfacesCallback&) = default;
        ~DetectDynInterfacesCallback() = default;
    };

    class DetectDynInterfacesExCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<ModuleDyn>> results, uint64_t callId,
                                 std::shared_ptr<KelError> error, bool isFinal) = 0;

    protected:
        DetectDynInterfacesExCallback() = default;
        DetectDynInterfacesExCallback(const DetectDynInterfacesExCallback&) = default;
        DetectDynInterfacesExCallback& operator=(const DetectDynInterfacesExCallback&) = default;
        ~DetectDynInterfacesExCallback() = default;
    };

    class CopyFilesCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<FileCopyResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        CopyFilesCallback() = default;
        CopyFilesCallback(const CopyFilesCallback&) = default;
        CopyFilesCallback& operator=(const CopyFilesCallback&) = default;
        ~CopyFilesCallback() = default;
    };

    class CopyDirectoriesCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<DirectoryCopyResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        CopyDirectoriesCallback() = default;
        CopyDirectoriesCallback(const CopyDirectoriesCallback&) = default;
        CopyDirectoriesCallback& operator=(const CopyDirectoriesCallback&) = default;
        ~CopyDirectoriesCallback() = default;
    };

    class ExecuteFlashSessionsConfigCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<FlashSessionResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        ExecuteFlashSessionsConfigCallback() = default;
        ExecuteFlashSessionsConfigCallback(const ExecuteFlashSessionsConfigCallback&) = default;
        ExecuteFlashSessionsConfigCallback&
        operator=(const ExecuteFlashSessionsConfigCallback&) = default;
        ~ExecuteFlashSessionsConfigCallback() = default;
    };

    class UpdateVehicleCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<VehicleUpdateResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        UpdateVehicleCallback() = default;
        UpdateVehicleCallback(const UpdateVehicleCallback&) = default;
        UpdateVehicleCallback& operator=(const UpdateVehicleCallback&) = default;
        ~UpdateVehicleCallback() = default;
    };

    class ExecuteServiceInDefaultSessionCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<ServiceResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        ExecuteServiceInDefaultSessionCallback() = default;
        ExecuteServiceInDefaultSessionCallback(const ExecuteServiceInDefaultSessionCallback&) =
            default;
        ExecuteServiceInDefaultSessionCallback&
        operator=(const ExecuteServiceInDefaultSessionCallback&) = default;
        ~ExecuteServiceInDefaultSessionCallback() = default;
    };

    class CopyPathCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<PathCopyResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        CopyPathCallback() = default;
        CopyPathCallback(const CopyPathCallback&) = default;
        CopyPathCallback& operator=(const CopyPathCallback&) = default;
        ~CopyPathCallback() = default;
    };

    class WriteCodingFileCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<CodingFileResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        WriteCodingFileCallback() = default;
        WriteCodingFileCallback(const WriteCodingFileCallback&) = default;
        WriteCodingFileCallback& operator=(const WriteCodingFileCallback&) = default;
        ~WriteCodingFileCallback() = default;
    };

    class PerformVehicleUpdateCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<VehicleUpdateResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        PerformVehicleUpdateCallback() = default;
        PerformVehicleUpdateCallback(const PerformVehicleUpdateCallback&) = default;
        PerformVehicleUpdateCallback& operator=(const PerformVehicleUpdateCallback&) = default;
        ~PerformVehicleUpdateCallback() = default;
    };

    class ExecuteSequenceCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<ServiceResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        ExecuteSequenceCallback() = default;
        ExecuteSequenceCallback(const ExecuteSequenceCallback&) = default;
        ExecuteSequenceCallback& operator=(const ExecuteSequenceCallback&) = default;
        ~ExecuteSequenceCallback() = default;
    };

    class PerformEcuConfigurationCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<EcuConfigurationResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        PerformEcuConfigurationCallback() = default;
        PerformEcuConfigurationCallback(const PerformEcuConfigurationCallback&) = default;
        PerformEcuConfigurationCallback&
        operator=(const PerformEcuConfigurationCallback&) = default;
        ~PerformEcuConfigurationCallback() = default;
    };

    class ClearSpecificDtcsCallback {
    public:
        virtual void onCompleted(std::vector<std::shared_ptr<ClearDtcResult>> results,
                                 uint64_t callId, std::shared_ptr<KelError> error,
                                 bool isFinal) = 0;

    protected:
        ClearSpecificDtcsCallback() = default;
        ClearSpecificDtcsCallback(const ClearSpecificDtcsCallback&) = default;
        ClearSpecificDtcsCallback& operator=(const ClearSpecificDtcsCallback&) = default;
        ~ClearSpecificDtcsCallback() = default;
    };

    virtual ~TarnApi() = default; // positions 0 and 1
#if defined(_MSC_VER)
    // MSVC gives the destructor one slot; this keeps every later position.
    virtual void reserved1() = 0;
#endif

    virtual void initialize() = 0;                                  // 2
    virtual void end() = 0;                                         // 3
    virtual std::wstring startServer(const std::wstring& name) = 0; // 4
    virtual void stopServer(const std::wstring& reason) = 0;        // 5
    virtual void restartServer(int32_t endClients) = 0;             // 6
    virtual std::shared_ptr<ProjectConfig>
    getProjectConfiguration(const std::wstring& projectName) = 0; // 7
    virtual void setProjectConfiguration(const std::wstring& projectName,
                                         std::shared_ptr<ProjectConfig> config) = 0; // 8
    virtual void saveProjectConfiguration(const std::wstring& projectName) = 0;      // 9
    virtual uint64_t createMonitoringLink(const std::wstring& name) = 0;             // 10
    virtual std::vector<std::shared_ptr<MonitoringItem>>
    getMonitoringItems(uint64_t handle, uint32_t value1, int32_t value2) = 0; // 11
    virtual void releaseMonitoringLink(uint64_t handle) = 0;                  // 12
    virtual std::vector<std::shared_ptr<PduMonitoringItem>>
    getPduMonitoringItems(uint64_t handle, uint32_t value1, int32_t value2) = 0;        // 13
    virtual uint64_t createPduMonitor() = 0;                                            // 14
    virtual void saveConfiguration() = 0;                                               // 15
    virtual void releasePduMonitor(uint64_t handle) = 0;                                // 16
    virtual std::vector<std::shared_ptr<VariantIdentResult>> identifyAllTargets() = 0;  // 17
    virtual uint64_t identifyAllTargetsAsync(IdentifyAllTargetsCallback* callback) = 0; // 18
    virtual std::vector<std::shared_ptr<ReadDataResult>>
    readIdentificationValues(const std::vector<std::wstring>& targets) = 0; // 19
    virtual uint64_t
    readIdentificationValuesAsync(const std::vector<std::wstring>& targets,
                                  ReadIdentificationValuesCallback* callback) = 0; // 20
    virtual std::vector<std::shared_ptr<ReadDataResult>>
    readDataByIdentifiers(const std::wstring& target,
                          const std::vector<std::wstring>& identifiers) = 0; // 21
    virtual std::shared_ptr<VariantIdentResult>
    identifyTarget(const std::wstring& target) = 0; // 22
    virtual std::vector<std::shared_ptr<ReadDtcResult>>
    readDtcs(const std::vector<std::wstring>& targets,
             std::shared_ptr<DtcReadConfig> config) = 0; // 23
    virtual uint64_t readDtcsAsync(const std::vector<std::wstring>& targets,
                                   std::shared_ptr<DtcReadConfig> config,
                                   ReadDtcsCallback* callback) = 0; // 24
    virtual std::vector<std::shared_ptr<SupportedDtcResult>>
    readSupportedDtcs(const std::vector<std::wstring>& targets,
                      std::shared_ptr<DtcReadConfig> config) = 0; // 25
    virtual uint64_t readSupportedDtcsAsync(const std::vector<std::wstring>& targets,
                                            std::shared_ptr<DtcReadConfig> config,
                                            ReadSupportedDtcsCallback* callback) = 0; // 26
    virtual std::vector<std::shared_ptr<ClearDtcResult>>
    clearAllDtcs(const std::vector<std::wstring>& targets) = 0; // 27
    virtual uint64_t clearAllDtcsAsync(const std::vector<std::wstring>& targets,
                                       ClearAllDtcsCallback* callback) = 0; // 28
    virtual std::vector<std::shared_ptr<ServiceInfo>>
    getServiceInfos(const std::wstring& text1, const std::wstring& text2,
                    const std::vector<std::wstring>& names, int32_t value) = 0; // 29
    virtual std::vector<std::shared_ptr<FlashSessionInfo>>
    getFlashSessionInfos(const std::wstring& target) = 0; // 30
    virtual std::vector<std::shared_ptr<FlashSessionResult>>
    executeFlashSessions(const std::wstring& target,
                         const std::vector<std::wstring>& sessions) = 0; // 31
    virtual uint64_t executeFlashSessionsAsync(const std::wstring& target,
                                               const std::vector<std::wstring>& sessions,
                                               ExecuteFlashSessionsCallback* callback) = 0; // 32
    virtual std::vector<std::shared_ptr<CodingStringResult>>
    readCodingStrings(const std::vector<std::wstring>& targets) = 0; // 33
    virtual uint64_t readCodingStringsAsync(const std::vector<std::wstring>& targets,
                                            ReadCodingStringsCallback* callback) = 0; // 34
    virtual std::vector<std::shared_ptr<QuickTestResult>>
    performQuickTest(const std::vector<std::wstring>& targets,
                     std::shared_ptr<DtcReadConfig> config) = 0; // 35
    virtual uint64_t performQuickTestAsync(const std::vector<std::wstring>& targets,
                                           std::shared_ptr<DtcReadConfig> config,
                                           PerformQuickTestCallback* callback) = 0;        // 36
    virtual std::shared_ptr<TarnApi> connectRemoteServer(const std::wstring& address) = 0; // 37
    virtual std::vector<std::shared_ptr<ParameterInfo>>
    getMeasurementValueInfos(const std::wstring& target) = 0; // 38
    virtual uint64_t registerMeasurementValues(const std::wstring& target,
                                               const std::vector<std::wstring>& names) = 0; // 39
    virtual std::vector<std::shared_ptr<ReadDataResult>>
    getMeasurementValues(uint64_t registration) = 0;                     // 40
    virtual void unregisterMeasurementValues(uint64_t registration) = 0; // 41
    virtual std::vector<std::shared_ptr<ParameterInfo>>
    getIdentificationValueInfos(const std::wstring& target) = 0;                   // 42
    virtual void cancelAllAsyncCalls() = 0;                                        // 43
    virtual std::vector<uint8_t> createSeed(uint32_t value1, uint32_t value2) = 0; // 44
    virtual void sendKey(const std::vector<uint8_t>& key) = 0;                     // 45
    virtual uint64_t openEventChannel() = 0;                                       // 46
    virtual void closeEventChannel(uint64_t channel) = 0;                          // 47
    virtual std::shared_ptr<EventReport> getCurrentEvents(uint64_t channel,
                                                          uint32_t limit) = 0; // 48
    virtual void openTraceFileMonitoringLink(uint64_t handle,
                                             const std::wstring& traceFile) = 0; // 49
    virtual void startTraceFileMonitoringLink(uint64_t handle) = 0;              // 50
    virtual void stopTraceFileMonitoringLink(uint64_t handle) = 0;               // 51
    virtual void closeTraceFileMonitoringLink(uint64_t handle) = 0;              // 52
    virtual void saveInterfaceConfiguration() = 0;                               // 53
    virtual std::vector<std::shared_ptr<ScanInterfaceResult>>
    scanInterfaceConnection(const std::vector<std::wstring>& interfaces) = 0; // 54
    virtual uint64_t
    scanInterfaceConnectionAsync(const std::vector<std::wstring>& interfaces,
                                 ScanInterfaceConnectionCallback* callback) = 0; // 55
    virtual void disconnect() = 0;                                               // 56
    virtual std::wstring getInterfaceLongName(const std::wstring& name) = 0;     // 57
    virtual std::vector<std::shared_ptr<ReadDataResult>>
    readMeasurementValues(const std::wstring& target,
                          const std::vector<std::wstring>& names) = 0; // 58
    virtual uint64_t readMeasurementValuesAsync(const std::wstring& target,
                                                const std::vector<std::wstring>& names,
                                                ReadMeasurementValuesCallback* callback) = 0; // 59
    virtual std::vector<uint8_t> readFile(const std::wstring& path, uint64_t value1,
                                          uint32_t value2, bool flag) = 0; // 60
    virtual void connectInterfaces() = 0;                                  // 61
    virtual void disconnectInterfaces() = 0;                               // 62
    virtual void executeDoIPBroadcast() = 0;                               // 63
    virtual void refreshProjectList() = 0;                                 // 64
    virtual std::vector<std::shared_ptr<VariantIdentResult>>
    identifyTargets(const std::vector<std::wstring>& targets) = 0; // 65
    virtual uint64_t identifyTargetsAsync(const std::vector<std::wstring>& targets,
                                          IdentifyTargetsCallback* callback) = 0; // 66
    virtual std::vector<std::shared_ptr<ParameterInfo>>
    getActuatorServiceInfos(const std::wstring& text1, const std::wstring& text2) = 0; // 67
    virtual void releaseSocketBridge(uint64_t bridge) = 0;                             // 68
    virtual uint64_t createSocketBridge(uint32_t value1, uint32_t value2) = 0;         // 69
    virtual void reserved70() = 0;                                                     // 70
    virtual void reserved71() = 0;                                                     // 71
    virtual void reserved72() = 0;                                                     // 72
    virtual std::vector<std::shared_ptr<ParameterInfo>>
    getSingleMeasurementValueInfos(const std::wstring& target,
                                   const std::vector<std::wstring>& names) = 0; // 73
    virtual std::vector<std::shared_ptr<Target>>
    getFilteredTargets(const std::vector<std::shared_ptr<TargetFilter>>& filters) = 0; // 74
    virtual bool isProjectConversionRequired(const std::wstring& projectPath) = 0;     // 75
    virtual void convertProject(const std::wstring& projectPath) = 0;                  // 76
    virtual void saveMoxConfiguration() = 0;                                           // 77
    virtual uint64_t startCyclicServices(const std::wstring& target,
                                         const std::vector<std::shared_ptr<ServiceInput>>& services,
                                         uint32_t cycleTime) = 0;                              // 78
    virtual std::vector<std::shared_ptr<ServiceResult>> getCyclicResults(uint64_t cyclic) = 0; // 79
    virtual void stopCyclicServices(uint64_t cyclic) = 0;                                      // 80
    virtual std::shared_ptr<ProjectDetails> getProjectDetails() = 0;                           // 81
    virtual void clearLinkCache() = 0;                                                         // 82
    virtual void addResource(const std::wstring& name,
                             std::shared_ptr<ResourceInformation> resource,
                             uint16_t value) = 0;               // 83
    virtual void removeInterface(const std::wstring& name) = 0; // 84
    virtual std::shared_ptr<InterfaceInformation>
    addInterface(std::shared_ptr<InterfaceInformation> interfaceInfo, const std::wstring& text1,
                 const std::wstring& text2, const std::wstring& text3) = 0;                  // 85
    virtual void removeResource(const std::wstring& name1, const std::wstring& name2) = 0;   // 86
    virtual std::shared_ptr<SystemProperty> getSystemProperty(const std::wstring& name) = 0; // 87
    virtual void resetSystemProperty(const std::wstring& name) = 0;                          // 88
    virtual void setSystemProperty(std::shared_ptr<SystemProperty> property) = 0;            // 89
    virtual std::vector<std::wstring>
    getVendorModuleNames(std::shared_ptr<InterfaceInformation> interfaceInfo) = 0;          // 90
    virtual std::vector<std::wstring> getVendorModuleNamesEx(const std::wstring& text) = 0; // 91
    virtual std::vector<std::shared_ptr<ServiceResult>>
    executeService(const std::wstring& target,
                   const std::vector<std::shared_ptr<ServiceInput>>& services) = 0; // 92
    virtual uint64_t executeServiceAsync(const std::wstring& target,
                                         const std::vector<std::shared_ptr<ServiceInput>>& services,
                                         ExecuteServiceCallback* callback) = 0; // 93
    virtual std::vector<std::shared_ptr<ModuleDyn>>
    detectDynInterfaces(uint32_t value, std::shared_ptr<DynInterfaceDetection> detection) = 0; // 94
    virtual uint64_t detectDynInterfacesAsync(uint32_t value,
                                              std::shared_ptr<DynInterfaceDetection> detection,
                                              DetectDynInterfacesCallback* callback) = 0; // 95
    virtual void connectDynInterface(const std::wstring& name, bool flag,
                                     std::shared_ptr<DynInterfaceDetection> detection) = 0; // 96
    virtual void disconnectDynInterfaces(const std::vector<std::wstring>& names) = 0;       // 97
    virtual void
    updateCyclicServices(uint64_t cyclic,
                         const std::vector<std::shared_ptr<ServiceInput>>& services) = 0; // 98
    virtual void cancelAsyncCalls(const std::vector<uint64_t>& callIds) = 0;              // 99
    virtual std::shared_ptr<DirectoryInfo> getProjectDirectory(bool flag) = 0;            // 100
    virtual std::shared_ptr<DirectoryInfo> getSelectedProjectDirectory(bool flag) = 0;    // 101
    virtual uint32_t writeFile(const std::wstring& path, const std::vector<uint8_t>& data,
                               uint32_t value, bool flag) = 0; // 102
    virtual std::shared_ptr<KelError>
    deleteFiles(const std::vector<std::shared_ptr<FileInfo>>& files) = 0; // 103
    virtual std::vector<std::shared_ptr<DirectoryInfo>>
    findDirectories(std::shared_ptr<DirectoryInfo> directory, const std::wstring& pattern,
                    bool flag) = 0; // 104
    virtual std::vector<std::shared_ptr<FileInfo>>
    findFiles(const std::wstring& directory, const std::wstring& pattern, bool flag) = 0; // 105
    virtual std::shared_ptr<DirectoryInfo>
    initializeDirectoryElements(std::shared_ptr<DirectoryInfo> directory, bool flag) = 0; // 106
    virtual std::shared_ptr<FileInfo> createFile(std::shared_ptr<DirectoryInfo> parent,
                                                 const std::wstring& name) = 0; // 107
    virtual std::shared_ptr<DirectoryInfo> createDirectory(std::shared_ptr<DirectoryInfo> parent,
                                                           const std::wstring& name) = 0; // 108
    virtual std::shared_ptr<KelError> deleteDirectory(const std::wstring& path) = 0;      // 109
    virtual std::shared_ptr<DirectoryInfo> getTraceDirectory(bool flag) = 0;              // 110
    virtual std::wstring
    createVehicleReport(std::shared_ptr<VehicleReportConfig> config) = 0; // 111
    virtual std::vector<std::shared_ptr<EcuOrderEntry>>
    readEcuOrder(const std::wstring& path) = 0; // 112
    virtual std::vector<std::shared_ptr<EcuOrderEntry>>
    filterEcuOrder(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                   const std::vector<std::wstring>& targets) = 0; // 113
    virtual std::vector<std::shared_ptr<EcuOrderEntry>> addMissingTargetsToEcuOrder(
        const std::vector<std::shared_ptr<EcuOrderEntry>>& entries) = 0; // 114
    virtual uint64_t lock() = 0;                                         // 115
    virtual void unlock(uint64_t lockId) = 0;                            // 116
    virtual bool isLocked() = 0;                                         // 117
    virtual void breakLock() = 0;                                        // 118
    virtual void setEthernetPinState(uint8_t state,
                                     const std::vector<std::wstring>& interfaces) = 0; // 119
    virtual uint32_t getEthernetPinState(const std::wstring& interfaceName) = 0;       // 120
    virtual std::vector<std::shared_ptr<ModuleDyn>>
    detectDynInterfacesEx(uint32_t value) = 0; // 121
    virtual uint64_t detectDynInterfacesExAsync(uint32_t value,
                                                DetectDynInterfacesExCallback* callback) = 0; // 122
    virtual void connectDynInterfaceEx(const std::wstring& name, bool flag) = 0;              // 123
    virtual void addUser(const std::wstring& name, const std::wstring& password,
                         uint32_t role) = 0;                         // 124
    virtual void removeUser(const std::wstring& name) = 0;           // 125
    virtual std::vector<std::shared_ptr<UserInfo>> getUsers() = 0;   // 126
    virtual void logOut(std::shared_ptr<LogInOutConfig> config) = 0; // 127
    virtual void updateUser(const std::wstring& name, const std::wstring& newName,
                            const std::wstring& newPassword, uint32_t role) = 0;    // 128
    virtual bool getServerUserManagement() = 0;                                     // 129
    virtual void setServerUserManagement(bool enabled) = 0;                         // 130
    virtual void registerServerHandler(std::shared_ptr<ServerHandler> handler) = 0; // 131
    virtual void reserved132() = 0;                                                 // 132
    virtual void disconnectAllClients() = 0;                                        // 133
    virtual bool testSocketBridge(uint64_t bridge) = 0;                             // 134
    virtual void reserved135() = 0;                                                 // 135
    virtual std::vector<std::shared_ptr<FileCopyResult>>
    copyFiles(std::shared_ptr<FileCopyConfig> config) = 0; // 136
    virtual uint64_t copyFilesAsync(std::shared_ptr<FileCopyConfig> config,
                                    CopyFilesCallback* callback) = 0; // 137
    virtual std::vector<std::shared_ptr<DirectoryCopyResult>>
    copyDirectories(std::shared_ptr<DirectoryCopyConfig> config) = 0; // 138
    virtual uint64_t copyDirectoriesAsync(std::shared_ptr<DirectoryCopyConfig> config,
                                          CopyDirectoriesCallback* callback) = 0;            // 139
    virtual std::wstring calculateChecksum(const std::wstring& path, int32_t algorithm) = 0; // 140
    virtual void reserved141() = 0;                                                          // 141
    virtual void reserved142() = 0;                                                          // 142
    virtual void reserved143() = 0;                                                          // 143
    virtual void reserved144() = 0;                                                          // 144
    virtual uint64_t runSequence(const std::wstring& sequence,
                                 const std::vector<std::wstring>& arguments) = 0; // 145
    virtual std::shared_ptr<UnlockResult>
    unlockVehicle(const std::wstring& target,
                  const std::vector<std::shared_ptr<ServiceInput>>& services) = 0;       // 146
    virtual uint64_t releaseVehicleUnlock(uint64_t value) = 0;                           // 147
    virtual void cancelSequence(uint64_t run) = 0;                                       // 148
    virtual std::vector<std::shared_ptr<DeviceInfo>> getRegisteredDevices() = 0;         // 149
    virtual std::shared_ptr<SystemInfo> getSystemInfo() = 0;                             // 150
    virtual void applyUpdatePackage(const std::wstring& package) = 0;                    // 151
    virtual void renameFile(const std::wstring& path, const std::wstring& newName) = 0;  // 152
    virtual void onConnectionBroken() = 0;                                               // 153
    virtual std::vector<std::shared_ptr<UpdatePackageInfo>> getUpdatePackages() = 0;     // 154
    virtual std::vector<std::shared_ptr<UpdatePackageInfo>> getPackagesFromBroker() = 0; // 155
    virtual bool checkUpdatesOnBroker() = 0;                                             // 156
    virtual bool autoUpdate() = 0;                                                       // 157
    virtual std::shared_ptr<DirectoryInfo> getConfigDirectory(bool flag) = 0;            // 158
    virtual void reserved159() = 0;                                                      // 159
    virtual uint64_t createApiTraceMonitor() = 0;                                        // 160
    virtual std::vector<uint8_t> getApiTraceContent(uint64_t handle, uint32_t value1,
                                                    int32_t value2) = 0;      // 161
    virtual void releaseApiTraceMonitor(uint64_t handle) = 0;                 // 162
    virtual std::vector<std::shared_ptr<NamedItem>> getCurrentVersions() = 0; // 163
    virtual bool checkUpdateSuccess() = 0;                                    // 164
    virtual void cleanUpdateTmp() = 0;                                        // 165
    virtual std::vector<std::shared_ptr<FlashSessionResult>>
    executeFlashSessionsConfig(std::shared_ptr<FlashSessionsConfig> config) = 0; // 166
    virtual uint64_t
    executeFlashSessionsConfigAsync(std::shared_ptr<FlashSessionsConfig> config,
                                    ExecuteFlashSessionsConfigCallback* callback) = 0; // 167
    virtual std::vector<std::shared_ptr<LoadDatabaseResult>>
    loadDatabaseFile(const std::vector<std::wstring>& files) = 0; // 168
    virtual std::vector<std::shared_ptr<FileInfo>>
    copyProjectWithFilters(const std::vector<std::shared_ptr<FileFilter>>& filters, bool flag,
                           std::shared_ptr<FileCopyConfig> config,
                           const std::wstring& text) = 0;    // 169
    virtual void reserved170() = 0;                          // 170
    virtual void reserved171() = 0;                          // 171
    virtual bool reconnectRemoteServer(uint64_t handle) = 0; // 172
    virtual std::vector<std::wstring>
    filterFiles(const std::vector<std::shared_ptr<FileFilter>>& filters,
                const std::wstring& text) = 0; // 173
    virtual void reserved174() = 0;            // 174
    virtual std::vector<std::shared_ptr<LoadDatabaseResult>>
    unloadDatabaseFile(const std::vector<std::wstring>& files) = 0;                 // 175
    virtual std::vector<std::shared_ptr<DirectoryInfo>> getPublicDirectories() = 0; // 176
    virtual std::vector<std::shared_ptr<VehicleUpdateResult>>
    updateVehicle(std::shared_ptr<VehicleUpdateConfig> config) = 0; // 177
    virtual uint64_t updateVehicleAsync(std::shared_ptr<VehicleUpdateConfig> config,
                                        UpdateVehicleCallback* callback) = 0; // 178
    virtual std::vector<std::shared_ptr<ServiceResult>> executeServiceInDefaultSession(
        const std::wstring& target,
        const std::vector<std::shared_ptr<ServiceInput>>& services) = 0; // 179
    virtual uint64_t executeServiceInDefaultSessionAsync(
        const std::wstring& target, const std::vector<std::shared_ptr<ServiceInput>>& services,
        ExecuteServiceInDefaultSessionCallback* callback) = 0; // 180
    virtual std::vector<std::shared_ptr<TargetStatus>>
    getTargetStatus(const std::vector<std::wstring>& targets) = 0; // 181
    virtual std::vector<std::shared_ptr<PhysicalLinksOnModule>>
    getPhysicalLinks(const std::vector<std::wstring>& modules) = 0; // 182
    virtual std::vector<std::shared_ptr<PhysicalLinksOnModule>>
    setPhysicalLinks(const std::vector<std::shared_ptr<PhysicalLinksOnModule>>& links) = 0; // 183
    virtual bool moveFile(const std::wstring& source, const std::wstring& target) = 0;      // 184
    virtual bool moveDirectory(const std::wstring& source, const std::wstring& target) = 0; // 185
    virtual bool pathExists(const std::wstring& path) = 0;                                  // 186
    virtual void reserved187() = 0;                                                         // 187
    virtual std::wstring resolvePath(const std::wstring& path) = 0;                         // 188
    virtual void reserved189() = 0;                                                         // 189
    virtual void reserved190() = 0;                                                         // 190
    virtual std::vector<std::shared_ptr<VehicleData>> getVehicleData() = 0;                 // 191
    virtual std::vector<std::shared_ptr<ProjectDetails>>
    getProjectsDetails(const std::vector<std::wstring>& projectNames) = 0;            // 192
    virtual void uploadReport(std::shared_ptr<UploadReportConfiguration> config) = 0; // 193
    virtual std::vector<std::shared_ptr<FileReferenceResult>>
    getFileReferences(const std::vector<std::wstring>& files) = 0; // 194
    virtual void onConnectionClosed() = 0;                         // 195
    virtual bool openTerminal() = 0;                               // 196
    virtual void closeTerminal() = 0;                              // 197
    virtual void reserved198() = 0;                                // 198
    virtual void reserved199() = 0;                                // 199
    virtual bool isDirectory(const std::wstring& path) = 0;        // 200
    virtual std::shared_ptr<DirectoryInfo> getDirectoryInfo(const std::wstring& path,
                                                            bool flag) = 0;      // 201
    virtual std::shared_ptr<FileInfo> getFileInfo(const std::wstring& path) = 0; // 202
    virtual bool isFile(const std::wstring& path) = 0;                           // 203
    virtual std::shared_ptr<WLanSignalData>
    getWLanSignalData(const std::wstring& interfaceName) = 0;                    // 204
    virtual std::vector<std::shared_ptr<KelError>> clearDoIPEcuCollection() = 0; // 205
    virtual void setBrokerUrl(const std::wstring& url) = 0;                      // 206
    virtual std::vector<std::shared_ptr<PathCopyResult>>
    copyPath(std::shared_ptr<PathCopyConfig> config) = 0; // 207
    virtual uint64_t copyPathAsync(std::shared_ptr<PathCopyConfig> config,
                                   CopyPathCallback* callback) = 0;               // 208
    virtual void reserved209() = 0;                                               // 209
    virtual void reserved210() = 0;                                               // 210
    virtual void reserved211() = 0;                                               // 211
    virtual void reserved212() = 0;                                               // 212
    virtual bool thirdPartyLogin(const std::wstring& code) = 0;                   // 213
    virtual void clearUpdatePackages() = 0;                                       // 214
    virtual std::wstring getThirdPartyLoginUrl(const std::wstring& provider) = 0; // 215
    virtual void selectDynamicProject(const std::wstring& projectName,
                                      const std::vector<std::wstring>& items) = 0; // 216
    virtual std::wstring getCertificateByPublicKey(const std::wstring& publicKey,
                                                   const std::wstring& text2,
                                                   const std::wstring& text3,
                                                   const std::wstring& text4) = 0; // 217
    virtual std::wstring
    createCertificateFromCSR(const std::wstring& text1, const std::wstring& text2,
                             const std::wstring& text3, const std::wstring& text4,
                             const std::wstring& text5, const std::wstring& text6) = 0; // 218
    virtual std::vector<std::wstring> getCertificateChainById(const std::wstring& id,
                                                              const std::wstring& text2,
                                                              const std::wstring& text3) = 0; // 219
    virtual std::vector<std::shared_ptr<EcuOrderEntry>> createDefaultECUOrder() = 0;          // 220
    virtual std::vector<std::shared_ptr<CodingFileResult>>
    writeCodingFile(const std::wstring& codingFile,
                    const std::vector<std::wstring>& targets) = 0; // 221
    virtual uint64_t writeCodingFileAsync(const std::wstring& codingFile,
                                          const std::vector<std::wstring>& targets,
                                          WriteCodingFileCallback* callback) = 0; // 222
    virtual void
    writeEcuOrder(const std::wstring& path,
                  const std::vector<std::shared_ptr<EcuOrderEntry>>& entries) = 0; // 223
    virtual std::wstring getEcuOrderFilePath() = 0;                                // 224
    virtual std::vector<std::shared_ptr<VehicleUpdateResult>>
    performVehicleUpdate(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                         std::shared_ptr<VehicleUpdateConfig> config) = 0; // 225
    virtual uint64_t
    performVehicleUpdateAsync(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                              std::shared_ptr<VehicleUpdateConfig> config,
                              PerformVehicleUpdateCallback* callback) = 0;      // 226
    virtual void triggerAsyncCancels(const std::vector<uint64_t>& callIds) = 0; // 227
    virtual std::vector<std::shared_ptr<ServiceResult>>
    executeSequence(const std::wstring& target, const std::wstring& sequence,
                    const std::vector<std::shared_ptr<ParameterInput>>& parameters) = 0; // 228
    virtual uint64_t
    executeSequenceAsync(const std::wstring& target, const std::wstring& sequence,
                         const std::vector<std::shared_ptr<ParameterInput>>& parameters,
                         ExecuteSequenceCallback* callback) = 0;                             // 229
    virtual void addPublicDirectory(const std::wstring& name, const std::wstring& path) = 0; // 230
    virtual std::wstring createVehicleUpdateReport(
        const std::vector<std::shared_ptr<VehicleUpdateResult>>& results) = 0; // 231
    virtual std::shared_ptr<ParameterInfo>
    getParameterInfo(std::shared_ptr<ParameterInfoConfig> config) = 0; // 232
    virtual std::vector<std::shared_ptr<EcuConfigurationResult>>
    performEcuConfiguration(const std::vector<std::wstring>& targets,
                            const std::wstring& configuration) = 0; // 233
    virtual uint64_t
    performEcuConfigurationAsync(const std::vector<std::wstring>& targets,
                                 const std::wstring& configuration,
                                 PerformEcuConfigurationCallback* callback) = 0; // 234
    virtual std::vector<std::shared_ptr<ClearDtcResult>>
    clearSpecificDtcs(const std::wstring& target, const std::vector<uint32_t>& dtcCodes) = 0; // 235
    virtual uint64_t clearSpecificDtcsAsync(const std::wstring& target,
                                            const std::vector<uint32_t>& dtcCodes,
                                            ClearSpecificDtcsCallback* callback) = 0; // 236
    virtual void startSOVDServer() = 0;                                               // 237
    virtual void stopSOVDServer() = 0;                                                // 238
    virtual void logIn(std::shared_ptr<LogInOutConfig> config) = 0;                   // 239
    virtual std::shared_ptr<VehicleUpdateConfig>
    createVehicleUpdateConfig(const std::vector<std::wstring>& targets) = 0;            // 240
    virtual std::vector<std::shared_ptr<ProjectConfig>> getProjectConfigurations() = 0; // 241
    virtual int32_t getState() = 0;                                                     // 242
    virtual std::wstring getVersion() = 0;                                              // 243
    virtual std::wstring getSelectedProject() = 0;                                      // 244
    virtual void setSelectedProject(const std::wstring& projectName) = 0;               // 245
    virtual std::shared_ptr<TarnApiConfig> getConfiguration() = 0;                      // 246
    virtual void setConfiguration(std::shared_ptr<TarnApiConfig> config) = 0;           // 247
    virtual std::shared_ptr<ServerSettings> getServerSettings() = 0;                    // 248
    virtual std::shared_ptr<VehicleInformation> getSelectedVehicleInformation() = 0;    // 249
    virtual void
    setSelectedVehicleInformation(std::shared_ptr<VehicleInformation> information) = 0; // 250
    virtual std::vector<std::shared_ptr<Target>> getTargets() = 0;                      // 251
    virtual std::shared_ptr<ProcessInfo> getProcessInfo() = 0;                          // 252
    virtual std::shared_ptr<TransmissionInfo> getTransmissionInfo() = 0;                // 253
    virtual uint64_t getHandle() = 0;                                                   // 254
    virtual std::shared_ptr<MoxConfig> getMoxConfiguration() = 0;                       // 255
    virtual void setMoxConfiguration(std::shared_ptr<MoxConfig> config) = 0;            // 256
    virtual std::shared_ptr<InterfaceConfiguration> getInterfaceConfiguration() = 0;    // 257
    virtual void
    setInterfaceConfiguration(std::shared_ptr<InterfaceConfiguration> config) = 0; // 258
    virtual std::vector<std::wstring> getMonitoringLinks() = 0;                    // 259
    virtual std::vector<std::shared_ptr<GlobalProtocolParameterSet>>
    getGlobalProtocolParameterSets() = 0; // 260
    virtual void setGlobalProtocolParameterSets(
        const std::vector<std::shared_ptr<GlobalProtocolParameterSet>>& sets) = 0;    // 261
    virtual std::shared_ptr<StatusInfo> getStatusInfo() = 0;                          // 262
    virtual std::vector<std::shared_ptr<TargetFilter>> getSessionTargetFilters() = 0; // 263
    virtual void
    setSessionTargetFilters(const std::vector<std::shared_ptr<TargetFilter>>& filters) = 0; // 264
    virtual std::vector<std::shared_ptr<SupportedInterface>> getSupportedInterfaces() = 0;  // 265
    virtual std::vector<std::shared_ptr<InterfaceProvider>> getInterfaceProviders() = 0;    // 266
    virtual void setInterfaceProviders(
        const std::vector<std::shared_ptr<InterfaceProviderDyn>>& providers) = 0; // 267
    virtual std::wstring getCurrentDebugTraceDirectory() = 0;                     // 268
    virtual std::shared_ptr<TarnApiServerConfig> getServerConfiguration() = 0;    // 269
    virtual uint64_t getCallDuration() = 0;                                       // 270
    virtual void setStatusText(const std::wstring& text) = 0;                     // 271
    virtual std::shared_ptr<DoIPParameter> getDefaultDoIPParameter() = 0;         // 272
};

} // namespace Varno::Kel_cpp
