// Generated from the interface description by tools/generate.py. Do not edit.
// The exports: each one line over the generic frame.

#include "frame.h"
#include "generated/handlers.h"

extern "C" {

void release_MvciServerError(MvciServerError* ptr) { kel::release(ptr); }
void release_MvciServerError_array(MvciServerError** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_NegativeResponse(NegativeResponse* ptr) { kel::release(ptr); }
void release_NegativeResponse_array(NegativeResponse** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_KelError(KelError* ptr) { kel::release(ptr); }
void release_KelError_array(KelError** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_NamedItem(NamedItem* ptr) { kel::release(ptr); }
void release_NamedItem_array(NamedItem** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_ParameterResult(ParameterResult* ptr) { kel::release(ptr); }
void release_ParameterResult_array(ParameterResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ClearDtcResult(ClearDtcResult* ptr) { kel::release(ptr); }
void release_ClearDtcResult_array(ClearDtcResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_DtcReadConfig(DtcReadConfig* ptr) { kel::release(ptr); }
void release_DtcReadConfig_array(DtcReadConfig** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ReadDtcResult(ReadDtcResult* ptr) { kel::release(ptr); }
void release_ReadDtcResult_array(ReadDtcResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_DtcResult(DtcResult* ptr) { kel::release(ptr); }
void release_DtcResult_array(DtcResult** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_SpecialDataGroup(SpecialDataGroup* ptr) { kel::release(ptr); }
void release_SpecialDataGroup_array(SpecialDataGroup** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_VariantIdentResult(VariantIdentResult* ptr) { kel::release(ptr); }
void release_VariantIdentResult_array(VariantIdentResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ReadDataResult(ReadDataResult* ptr) { kel::release(ptr); }
void release_ReadDataResult_array(ReadDataResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_Target(Target* ptr) { kel::release(ptr); }
void release_Target_array(Target** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_TargetStatus(TargetStatus* ptr) { kel::release(ptr); }
void release_TargetStatus_array(TargetStatus** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_TargetFilter(TargetFilter* ptr) { kel::release(ptr); }
void release_TargetFilter_array(TargetFilter** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ParameterInput(ParameterInput* ptr) { kel::release(ptr); }
void release_ParameterInput_array(ParameterInput** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ServiceInput(ServiceInput* ptr) { kel::release(ptr); }
void release_ServiceInput_array(ServiceInput** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ServiceResult(ServiceResult* ptr) { kel::release(ptr); }
void release_ServiceResult_array(ServiceResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ResponseResult(ResponseResult* ptr) { kel::release(ptr); }
void release_ResponseResult_array(ResponseResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_RequestResult(RequestResult* ptr) { kel::release(ptr); }
void release_RequestResult_array(RequestResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_UnlockResult(UnlockResult* ptr) { kel::release(ptr); }
void release_UnlockResult_array(UnlockResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ServiceInfo(ServiceInfo* ptr) { kel::release(ptr); }
void release_ServiceInfo_array(ServiceInfo** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_ResponseInfo(ResponseInfo* ptr) { kel::release(ptr); }
void release_ResponseInfo_array(ResponseInfo** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ParameterInfo(ParameterInfo* ptr) { kel::release(ptr); }
void release_ParameterInfo_array(ParameterInfo** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ConstraintInfo(ConstraintInfo* ptr) { kel::release(ptr); }
void release_ConstraintInfo_array(ConstraintInfo** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ScaleConstraintInfo(ScaleConstraintInfo* ptr) { kel::release(ptr); }
void release_ScaleConstraintInfo_array(ScaleConstraintInfo** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_UnitInfo(UnitInfo* ptr) { kel::release(ptr); }
void release_UnitInfo_array(UnitInfo** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_ParameterInfoConfig(ParameterInfoConfig* ptr) { kel::release(ptr); }
void release_ParameterInfoConfig_array(ParameterInfoConfig** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_KelEvent(KelEvent* ptr) { kel::release(ptr); }
void release_KelEvent_array(KelEvent** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_EventReport(EventReport* ptr) { kel::release(ptr); }
void release_EventReport_array(EventReport** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_FileFilter(FileFilter* ptr) { kel::release(ptr); }
void release_FileFilter_array(FileFilter** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_TargetConfig(TargetConfig* ptr) { kel::release(ptr); }
void release_TargetConfig_array(TargetConfig** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ProjectConfig(ProjectConfig* ptr) { kel::release(ptr); }
void release_ProjectConfig_array(ProjectConfig** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ProjectDetails(ProjectDetails* ptr) { kel::release(ptr); }
void release_ProjectDetails_array(ProjectDetails** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_DbFileInfo(DbFileInfo* ptr) { kel::release(ptr); }
void release_DbFileInfo_array(DbFileInfo** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_SystemInfo(SystemInfo* ptr) { kel::release(ptr); }
void release_SystemInfo_array(SystemInfo** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_SystemProperty(SystemProperty* ptr) { kel::release(ptr); }
void release_SystemProperty_array(SystemProperty** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_TarnApiConfig(TarnApiConfig* ptr) { kel::release(ptr); }
void release_TarnApiConfig_array(TarnApiConfig** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ServerConfig(ServerConfig* ptr) { kel::release(ptr); }
void release_ServerConfig_array(ServerConfig** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_Oauth2Config(Oauth2Config* ptr) { kel::release(ptr); }
void release_Oauth2Config_array(Oauth2Config** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_MoxConfig(MoxConfig* ptr) { kel::release(ptr); }
void release_MoxConfig_array(MoxConfig** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_TcpInfo(TcpInfo* ptr) { kel::release(ptr); }
void release_TcpInfo_array(TcpInfo** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_StatusInfo(StatusInfo* ptr) { kel::release(ptr); }
void release_StatusInfo_array(StatusInfo** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_TransmissionInfo(TransmissionInfo* ptr) { kel::release(ptr); }
void release_TransmissionInfo_array(TransmissionInfo** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ProcessInfo(ProcessInfo* ptr) { kel::release(ptr); }
void release_ProcessInfo_array(ProcessInfo** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_ProcessEntry(ProcessEntry* ptr) { kel::release(ptr); }
void release_ProcessEntry_array(ProcessEntry** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ProcessThread(ProcessThread* ptr) { kel::release(ptr); }
void release_ProcessThread_array(ProcessThread** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ProcessMemory(ProcessMemory* ptr) { kel::release(ptr); }
void release_ProcessMemory_array(ProcessMemory** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_GlobalProtocolParameterSet(GlobalProtocolParameterSet* ptr) { kel::release(ptr); }
void release_GlobalProtocolParameterSet_array(GlobalProtocolParameterSet** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_GlobalProtocolParameter(GlobalProtocolParameter* ptr) { kel::release(ptr); }
void release_GlobalProtocolParameter_array(GlobalProtocolParameter** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_LoadDatabaseResult(LoadDatabaseResult* ptr) { kel::release(ptr); }
void release_LoadDatabaseResult_array(LoadDatabaseResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_InterfaceInformation(InterfaceInformation* ptr) { kel::release(ptr); }
void release_InterfaceInformation_array(InterfaceInformation** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ResourceInformation(ResourceInformation* ptr) { kel::release(ptr); }
void release_ResourceInformation_array(ResourceInformation** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_InterfaceInformationItem(InterfaceInformationItem* ptr) { kel::release(ptr); }
void release_InterfaceInformationItem_array(InterfaceInformationItem** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ScanInterfaceResult(ScanInterfaceResult* ptr) { kel::release(ptr); }
void release_ScanInterfaceResult_array(ScanInterfaceResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_DynInterfaceDetection(DynInterfaceDetection* ptr) { kel::release(ptr); }
void release_DynInterfaceDetection_array(DynInterfaceDetection** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ModuleDyn(ModuleDyn* ptr) { kel::release(ptr); }
void release_ModuleDyn_array(ModuleDyn** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_DeviceInfo(DeviceInfo* ptr) { kel::release(ptr); }
void release_DeviceInfo_array(DeviceInfo** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_PhysicalLinksOnModule(PhysicalLinksOnModule* ptr) { kel::release(ptr); }
void release_PhysicalLinksOnModule_array(PhysicalLinksOnModule** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_PhysicalLink(PhysicalLink* ptr) { kel::release(ptr); }
void release_PhysicalLink_array(PhysicalLink** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_InterfaceConfiguration(InterfaceConfiguration* ptr) { kel::release(ptr); }
void release_InterfaceConfiguration_array(InterfaceConfiguration** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_InterfaceConfigurationEntry(InterfaceConfigurationEntry* ptr) { kel::release(ptr); }
void release_InterfaceConfigurationEntry_array(InterfaceConfigurationEntry** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_InterfaceProvider(InterfaceProvider* ptr) { kel::release(ptr); }
void release_InterfaceProvider_array(InterfaceProvider** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_DoIPParameter(DoIPParameter* ptr) { kel::release(ptr); }
void release_DoIPParameter_array(DoIPParameter** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_WLanSignalData(WLanSignalData* ptr) { kel::release(ptr); }
void release_WLanSignalData_array(WLanSignalData** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_SupportedInterface(SupportedInterface* ptr) { kel::release(ptr); }
void release_SupportedInterface_array(SupportedInterface** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_MonitoringItem(MonitoringItem* ptr) { kel::release(ptr); }
void release_MonitoringItem_array(MonitoringItem** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_MonitoringItemDetail(MonitoringItemDetail* ptr) { kel::release(ptr); }
void release_MonitoringItemDetail_array(MonitoringItemDetail** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_PduMonitoringItem(PduMonitoringItem* ptr) { kel::release(ptr); }
void release_PduMonitoringItem_array(PduMonitoringItem** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_PduMonitoringItemDetail(PduMonitoringItemDetail* ptr) { kel::release(ptr); }
void release_PduMonitoringItemDetail_array(PduMonitoringItemDetail** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_FileInfo(FileInfo* ptr) { kel::release(ptr); }
void release_FileInfo_array(FileInfo** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_DirectoryInfo(DirectoryInfo* ptr) { kel::release(ptr); }
void release_DirectoryInfo_array(DirectoryInfo** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_FileCopyResult(FileCopyResult* ptr) { kel::release(ptr); }
void release_FileCopyResult_array(FileCopyResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_DirectoryCopyResult(DirectoryCopyResult* ptr) { kel::release(ptr); }
void release_DirectoryCopyResult_array(DirectoryCopyResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_DirectoryCopyItem(DirectoryCopyItem* ptr) { kel::release(ptr); }
void release_DirectoryCopyItem_array(DirectoryCopyItem** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_PathCopyResult(PathCopyResult* ptr) { kel::release(ptr); }
void release_PathCopyResult_array(PathCopyResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_PathCopyItem(PathCopyItem* ptr) { kel::release(ptr); }
void release_PathCopyItem_array(PathCopyItem** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_FileReferenceResult(FileReferenceResult* ptr) { kel::release(ptr); }
void release_FileReferenceResult_array(FileReferenceResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_FileCopyConfig(FileCopyConfig* ptr) { kel::release(ptr); }
void release_FileCopyConfig_array(FileCopyConfig** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_DirectoryCopyConfig(DirectoryCopyConfig* ptr) { kel::release(ptr); }
void release_DirectoryCopyConfig_array(DirectoryCopyConfig** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_PathCopyConfig(PathCopyConfig* ptr) { kel::release(ptr); }
void release_PathCopyConfig_array(PathCopyConfig** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_UserInfo(UserInfo* ptr) { kel::release(ptr); }
void release_UserInfo_array(UserInfo** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_LogInOutConfig(LogInOutConfig* ptr) { kel::release(ptr); }
void release_LogInOutConfig_array(LogInOutConfig** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_TarnApiServerConfig(TarnApiServerConfig* ptr) { kel::release(ptr); }
void release_TarnApiServerConfig_array(TarnApiServerConfig** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ServerSettings(ServerSettings* ptr) { kel::release(ptr); }
void release_ServerSettings_array(ServerSettings** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_FlashSessionInfo(FlashSessionInfo* ptr) { kel::release(ptr); }
void release_FlashSessionInfo_array(FlashSessionInfo** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_FlashSessionResult(FlashSessionResult* ptr) { kel::release(ptr); }
void release_FlashSessionResult_array(FlashSessionResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_FlashSessionsConfig(FlashSessionsConfig* ptr) { kel::release(ptr); }
void release_FlashSessionsConfig_array(FlashSessionsConfig** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_CodingStringResult(CodingStringResult* ptr) { kel::release(ptr); }
void release_CodingStringResult_array(CodingStringResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_CodingFileResult(CodingFileResult* ptr) { kel::release(ptr); }
void release_CodingFileResult_array(CodingFileResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_QuickTestResult(QuickTestResult* ptr) { kel::release(ptr); }
void release_QuickTestResult_array(QuickTestResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_EcuConfigurationResult(EcuConfigurationResult* ptr) { kel::release(ptr); }
void release_EcuConfigurationResult_array(EcuConfigurationResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_EcuOrderEntry(EcuOrderEntry* ptr) { kel::release(ptr); }
void release_EcuOrderEntry_array(EcuOrderEntry** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_VehicleUpdateConfig(VehicleUpdateConfig* ptr) { kel::release(ptr); }
void release_VehicleUpdateConfig_array(VehicleUpdateConfig** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_VehicleUpdateResult(VehicleUpdateResult* ptr) { kel::release(ptr); }
void release_VehicleUpdateResult_array(VehicleUpdateResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_UpdatePackageInfo(UpdatePackageInfo* ptr) { kel::release(ptr); }
void release_UpdatePackageInfo_array(UpdatePackageInfo** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_VehicleReportConfig(VehicleReportConfig* ptr) { kel::release(ptr); }
void release_VehicleReportConfig_array(VehicleReportConfig** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
static_assert(offsetof(VehicleData, vin) == offsetof(ScaleConstraintInfo, itemText1));
static_assert(offsetof(VehicleData, model) == offsetof(ScaleConstraintInfo, itemText2));
static_assert(offsetof(VehicleData, target) == offsetof(ScaleConstraintInfo, itemText3));
static_assert(offsetof(VehicleData, variant) == offsetof(ScaleConstraintInfo, itemText4));
static_assert(offsetof(VehicleData, softwareVersion) == offsetof(ScaleConstraintInfo, text1));
static_assert(offsetof(VehicleData, bus) == offsetof(ScaleConstraintInfo, text2));
void release_VehicleData(VehicleData* ptr) {
    release_ScaleConstraintInfo(reinterpret_cast<ScaleConstraintInfo*>(ptr));
}
void release_VehicleData_array(VehicleData** ptr, uint64_t count) {
    release_ScaleConstraintInfo_array(reinterpret_cast<ScaleConstraintInfo**>(ptr), count);
}
static_assert(offsetof(UploadReportConfiguration, reportFile) ==
              offsetof(ScaleConstraintInfo, itemText1));
static_assert(offsetof(UploadReportConfiguration, folder) ==
              offsetof(ScaleConstraintInfo, itemText2));
static_assert(offsetof(UploadReportConfiguration, name) ==
              offsetof(ScaleConstraintInfo, itemText3));
static_assert(offsetof(UploadReportConfiguration, vin) == offsetof(ScaleConstraintInfo, itemText4));
static_assert(offsetof(UploadReportConfiguration, user) == offsetof(ScaleConstraintInfo, text1));
static_assert(offsetof(UploadReportConfiguration, comment) == offsetof(ScaleConstraintInfo, text2));
void release_UploadReportConfiguration(UploadReportConfiguration* ptr) {
    release_ScaleConstraintInfo(reinterpret_cast<ScaleConstraintInfo*>(ptr));
}
void release_UploadReportConfiguration_array(UploadReportConfiguration** ptr, uint64_t count) {
    release_ScaleConstraintInfo_array(reinterpret_cast<ScaleConstraintInfo**>(ptr), count);
}
void release_VehicleInformation(VehicleInformation* ptr) { kel::release(ptr); }
void release_VehicleInformation_array(VehicleInformation** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}

void kel_initialize(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->initialize(); });
}
void kel_end(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->end(); });
}
void kel_startServer(TarnApi* api, const wchar_t* name, KelError** error, wchar_t** address) {
    kel::invoke(
        error, [&] { return api->startServer(kel::in::text(name)); }, kel::out::text(address));
}
void kel_stopServer(TarnApi* api, const wchar_t* reason, KelError** error) {
    kel::invoke(error, [&] { api->stopServer(kel::in::text(reason)); });
}
void kel_restartServer(TarnApi* api, int32_t endClients, KelError** error) {
    kel::invoke(error, [&] { api->restartServer(endClients); });
}
void kel_getProjectConfiguration(TarnApi* api, const wchar_t* projectName, KelError** error,
                                 ProjectConfig** config) {
    kel::invoke(
        error, [&] { return api->getProjectConfiguration(kel::in::text(projectName)); },
        kel::out::record(config));
}
void kel_setProjectConfiguration(TarnApi* api, const wchar_t* projectName, ProjectConfig* config,
                                 KelError** error) {
    kel::invoke(error, [&] {
        api->setProjectConfiguration(kel::in::text(projectName), kel::in::record(config));
    });
}
void kel_saveProjectConfiguration(TarnApi* api, const wchar_t* projectName, KelError** error) {
    kel::invoke(error, [&] { api->saveProjectConfiguration(kel::in::text(projectName)); });
}
void kel_createMonitoringLink(TarnApi* api, const wchar_t* name, KelError** error,
                              uint64_t* handle) {
    kel::invoke(
        error, [&] { return api->createMonitoringLink(kel::in::text(name)); },
        kel::out::value(handle));
}
void kel_getMonitoringItems(TarnApi* api, uint64_t handle, uint32_t value1, int32_t value2,
                            KelError** error, MonitoringItem*** items, uint32_t* itemCount) {
    kel::invoke(
        error, [&] { return api->getMonitoringItems(handle, value1, value2); },
        kel::out::records(items, itemCount));
}
void kel_releaseMonitoringLink(TarnApi* api, uint64_t handle, KelError** error) {
    kel::invoke(error, [&] { api->releaseMonitoringLink(handle); });
}
void kel_getPduMonitoringItems(TarnApi* api, uint64_t handle, uint32_t value1, int32_t value2,
                               KelError** error, PduMonitoringItem*** items, uint32_t* itemCount) {
    kel::invoke(
        error, [&] { return api->getPduMonitoringItems(handle, value1, value2); },
        kel::out::records(items, itemCount));
}
void kel_createPduMonitor(TarnApi* api, KelError** error, uint64_t* handle) {
    kel::invoke(
        error, [&] { return api->createPduMonitor(); }, kel::out::value(handle));
}
void kel_saveConfiguration(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->saveConfiguration(); });
}
void kel_releasePduMonitor(TarnApi* api, uint64_t handle, KelError** error) {
    kel::invoke(error, [&] { api->releasePduMonitor(handle); });
}
void kel_identifyAllTargets(TarnApi* api, KelError** error, VariantIdentResult*** results,
                            uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->identifyAllTargets(); }, kel::out::records(results, resultCount));
}
uint64_t kel_identifyAllTargetsAsync(TarnApi* api, KelError** error,
                                     IdentifyAllTargetsCallbackFunction callback, void* context) {
    return kel::start<IdentifyAllTargetsCallbackHandler>(
        error, callback, context,
        [&](auto* handler) { return api->identifyAllTargetsAsync(handler); });
}
void kel_readIdentificationValues(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                  KelError** error, ReadDataResult*** results,
                                  uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->readIdentificationValues(kel::in::texts(targets, targetCount)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_readIdentificationValuesAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                           KelError** error,
                                           ReadIdentificationValuesCallbackFunction callback,
                                           void* context) {
    return kel::start<ReadIdentificationValuesCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->readIdentificationValuesAsync(kel::in::texts(targets, targetCount),
                                                      handler);
        });
}
void kel_readDataByIdentifiers(TarnApi* api, const wchar_t* target, wchar_t** identifiers,
                               uint32_t identifierCount, KelError** error,
                               ReadDataResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->readDataByIdentifiers(kel::in::text(target),
                                              kel::in::texts(identifiers, identifierCount));
        },
        kel::out::records(results, resultCount));
}
void kel_identifyTarget(TarnApi* api, const wchar_t* target, KelError** error,
                        VariantIdentResult** result) {
    kel::invoke(
        error, [&] { return api->identifyTarget(kel::in::text(target)); },
        kel::out::record(result));
}
void kel_readDtcs(TarnApi* api, wchar_t** targets, uint32_t targetCount, DtcReadConfig* config,
                  KelError** error, ReadDtcResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->readDtcs(kel::in::texts(targets, targetCount), kel::in::record(config));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_readDtcsAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                           DtcReadConfig* config, KelError** error,
                           ReadDtcsCallbackFunction callback, void* context) {
    return kel::start<ReadDtcsCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->readDtcsAsync(kel::in::texts(targets, targetCount), kel::in::record(config),
                                  handler);
    });
}
void kel_readSupportedDtcs(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                           DtcReadConfig* config, KelError** error, ReadDtcResult*** results,
                           uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->readSupportedDtcs(kel::in::texts(targets, targetCount),
                                          kel::in::record(config));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_readSupportedDtcsAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                    DtcReadConfig* config, KelError** error,
                                    ReadSupportedDtcsCallbackFunction callback, void* context) {
    return kel::start<ReadSupportedDtcsCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->readSupportedDtcsAsync(kel::in::texts(targets, targetCount),
                                               kel::in::record(config), handler);
        });
}
void kel_clearAllDtcs(TarnApi* api, wchar_t** targets, uint32_t targetCount, KelError** error,
                      ClearDtcResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->clearAllDtcs(kel::in::texts(targets, targetCount)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_clearAllDtcsAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                               KelError** error, ClearAllDtcsCallbackFunction callback,
                               void* context) {
    return kel::start<ClearAllDtcsCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->clearAllDtcsAsync(kel::in::texts(targets, targetCount), handler);
    });
}
void kel_getServiceInfos(TarnApi* api, const wchar_t* text1, const wchar_t* text2, wchar_t** names,
                         uint32_t nameCount, int32_t value, KelError** error,
                         ServiceInfo*** services, uint32_t* serviceCount) {
    kel::invoke(
        error,
        [&] {
            return api->getServiceInfos(kel::in::text(text1), kel::in::text(text2),
                                        kel::in::texts(names, nameCount), value);
        },
        kel::out::records(services, serviceCount));
}
void kel_getFlashSessionInfos(TarnApi* api, const wchar_t* target, KelError** error,
                              FlashSessionInfo*** sessions, uint32_t* sessionCount) {
    kel::invoke(
        error, [&] { return api->getFlashSessionInfos(kel::in::text(target)); },
        kel::out::records(sessions, sessionCount));
}
void kel_executeFlashSessions(TarnApi* api, const wchar_t* target, wchar_t** sessions,
                              uint32_t sessionCount, KelError** error,
                              FlashSessionResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->executeFlashSessions(kel::in::text(target),
                                             kel::in::texts(sessions, sessionCount));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_executeFlashSessionsAsync(TarnApi* api, const wchar_t* target, wchar_t** sessions,
                                       uint32_t sessionCount, KelError** error,
                                       ExecuteFlashSessionsCallbackFunction callback,
                                       void* context) {
    return kel::start<ExecuteFlashSessionsCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->executeFlashSessionsAsync(kel::in::text(target),
                                                  kel::in::texts(sessions, sessionCount), handler);
        });
}
void kel_readCodingStrings(TarnApi* api, wchar_t** targets, uint32_t targetCount, KelError** error,
                           CodingStringResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->readCodingStrings(kel::in::texts(targets, targetCount)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_readCodingStringsAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                    KelError** error, ReadCodingStringsCallbackFunction callback,
                                    void* context) {
    return kel::start<ReadCodingStringsCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->readCodingStringsAsync(kel::in::texts(targets, targetCount), handler);
        });
}
void kel_performQuickTest(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                          DtcReadConfig* config, KelError** error, QuickTestResult*** results,
                          uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->performQuickTest(kel::in::texts(targets, targetCount),
                                         kel::in::record(config));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_performQuickTestAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                   DtcReadConfig* config, KelError** error,
                                   PerformQuickTestCallbackFunction callback, void* context) {
    return kel::start<PerformQuickTestCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->performQuickTestAsync(kel::in::texts(targets, targetCount),
                                              kel::in::record(config), handler);
        });
}
void kel_connectRemoteServer(TarnApi* api, const wchar_t* address, KelError** error,
                             uint64_t* handle) {
    kel::invoke(
        error, [&] { return api->connectRemoteServer(kel::in::text(address)); },
        kel::out::engine(handle));
}
void kel_getMeasurementValueInfos(TarnApi* api, const wchar_t* target, KelError** error,
                                  ParameterInfo*** infos, uint32_t* infoCount) {
    kel::invoke(
        error, [&] { return api->getMeasurementValueInfos(kel::in::text(target)); },
        kel::out::records(infos, infoCount));
}
void kel_registerMeasurementValues(TarnApi* api, const wchar_t* target, wchar_t** names,
                                   uint32_t nameCount, KelError** error, uint64_t* registration) {
    kel::invoke(
        error,
        [&] {
            return api->registerMeasurementValues(kel::in::text(target),
                                                  kel::in::texts(names, nameCount));
        },
        kel::out::value(registration));
}
void kel_getMeasurementValues(TarnApi* api, uint64_t registration, KelError** error,
                              ReadDataResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->getMeasurementValues(registration); },
        kel::out::records(results, resultCount));
}
void kel_unregisterMeasurementValues(TarnApi* api, uint64_t registration, KelError** error) {
    kel::invoke(error, [&] { api->unregisterMeasurementValues(registration); });
}
void kel_getIdentificationValueInfos(TarnApi* api, const wchar_t* target, KelError** error,
                                     ParameterInfo*** infos, uint32_t* infoCount) {
    kel::invoke(
        error, [&] { return api->getIdentificationValueInfos(kel::in::text(target)); },
        kel::out::records(infos, infoCount));
}
void kel_cancelAllAsyncCalls(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->cancelAllAsyncCalls(); });
}
void kel_createSeed(TarnApi* api, uint32_t value1, uint32_t value2, KelError** error,
                    uint8_t** seed, uint32_t* seedLength) {
    kel::invoke(
        error, [&] { return api->createSeed(value1, value2); }, kel::out::buffer(seed, seedLength));
}
void kel_sendKey(TarnApi* api, const uint8_t* key, uint32_t keyLength, KelError** error) {
    kel::invoke(error, [&] { api->sendKey(kel::in::values(key, keyLength)); });
}
void kel_openEventChannel(TarnApi* api, KelError** error, uint64_t* channel) {
    kel::invoke(
        error, [&] { return api->openEventChannel(); }, kel::out::value(channel));
}
void kel_closeEventChannel(TarnApi* api, uint64_t channel, KelError** error) {
    kel::invoke(error, [&] { api->closeEventChannel(channel); });
}
void kel_getCurrentEvents(TarnApi* api, uint64_t channel, uint32_t limit, KelError** error,
                          EventReport** report) {
    kel::invoke(
        error, [&] { return api->getCurrentEvents(channel, limit); }, kel::out::record(report));
}
void kel_openTraceFileMonitoringLink(TarnApi* api, uint64_t handle, const wchar_t* traceFile,
                                     KelError** error) {
    kel::invoke(error, [&] { api->openTraceFileMonitoringLink(handle, kel::in::text(traceFile)); });
}
void kel_startTraceFileMonitoringLink(TarnApi* api, uint64_t handle, KelError** error) {
    kel::invoke(error, [&] { api->startTraceFileMonitoringLink(handle); });
}
void kel_stopTraceFileMonitoringLink(TarnApi* api, uint64_t handle, KelError** error) {
    kel::invoke(error, [&] { api->stopTraceFileMonitoringLink(handle); });
}
void kel_closeTraceFileMonitoringLink(TarnApi* api, uint64_t handle, KelError** error) {
    kel::invoke(error, [&] { api->closeTraceFileMonitoringLink(handle); });
}
void kel_saveInterfaceConfiguration(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->saveInterfaceConfiguration(); });
}
void kel_scanInterfaceConnection(TarnApi* api, wchar_t** interfaces, uint32_t interfaceCount,
                                 KelError** error, ScanInterfaceResult*** results,
                                 uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] { return api->scanInterfaceConnection(kel::in::texts(interfaces, interfaceCount)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_scanInterfaceConnectionAsync(TarnApi* api, wchar_t** interfaces,
                                          uint32_t interfaceCount, KelError** error,
                                          ScanInterfaceConnectionCallbackFunction callback,
                                          void* context) {
    return kel::start<ScanInterfaceConnectionCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->scanInterfaceConnectionAsync(kel::in::texts(interfaces, interfaceCount),
                                                     handler);
        });
}
void kel_disconnect(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->disconnect(); });
}
void kel_getInterfaceLongName(TarnApi* api, const wchar_t* name, KelError** error,
                              wchar_t** longName) {
    kel::invoke(
        error, [&] { return api->getInterfaceLongName(kel::in::text(name)); },
        kel::out::text(longName));
}
void kel_readMeasurementValues(TarnApi* api, const wchar_t* target, wchar_t** names,
                               uint32_t nameCount, KelError** error, ReadDataResult*** results,
                               uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->readMeasurementValues(kel::in::text(target),
                                              kel::in::texts(names, nameCount));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_readMeasurementValuesAsync(TarnApi* api, const wchar_t* target, wchar_t** names,
                                        uint32_t nameCount, KelError** error,
                                        ReadMeasurementValuesCallbackFunction callback,
                                        void* context) {
    return kel::start<ReadMeasurementValuesCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->readMeasurementValuesAsync(kel::in::text(target),
                                                   kel::in::texts(names, nameCount), handler);
        });
}
void kel_readFile(TarnApi* api, const wchar_t* path, uint64_t value1, uint32_t value2, uint8_t flag,
                  KelError** error, void** data, uint32_t* dataLength) {
    kel::invoke(
        error, [&] { return api->readFile(kel::in::text(path), value1, value2, flag != 0); },
        kel::out::buffer(data, dataLength));
}
void kel_connectInterfaces(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->connectInterfaces(); });
}
void kel_disconnectInterfaces(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->disconnectInterfaces(); });
}
void kel_executeDoIPBroadcast(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->executeDoIPBroadcast(); });
}
void kel_refreshProjectList(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->refreshProjectList(); });
}
void kel_identifyTargets(TarnApi* api, wchar_t** targets, uint32_t targetCount, KelError** error,
                         VariantIdentResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->identifyTargets(kel::in::texts(targets, targetCount)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_identifyTargetsAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                  KelError** error, IdentifyTargetsCallbackFunction callback,
                                  void* context) {
    return kel::start<IdentifyTargetsCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->identifyTargetsAsync(kel::in::texts(targets, targetCount), handler);
    });
}
void kel_getActuatorServiceInfos(TarnApi* api, const wchar_t* text1, const wchar_t* text2,
                                 KelError** error, ParameterInfo*** infos, uint32_t* infoCount) {
    kel::invoke(
        error,
        [&] { return api->getActuatorServiceInfos(kel::in::text(text1), kel::in::text(text2)); },
        kel::out::records(infos, infoCount));
}
void kel_releaseSocketBridge(TarnApi* api, uint64_t bridge, KelError** error) {
    kel::invoke(error, [&] { api->releaseSocketBridge(bridge); });
}
void kel_createSocketBridge(TarnApi* api, uint32_t value1, uint32_t value2, KelError** error,
                            uint64_t* bridge) {
    kel::invoke(
        error, [&] { return api->createSocketBridge(value1, value2); }, kel::out::value(bridge));
}
void kel_getSingleMeasurementValueInfos(TarnApi* api, const wchar_t* target, wchar_t** names,
                                        uint32_t nameCount, KelError** error,
                                        ParameterInfo*** infos, uint32_t* infoCount) {
    kel::invoke(
        error,
        [&] {
            return api->getSingleMeasurementValueInfos(kel::in::text(target),
                                                       kel::in::texts(names, nameCount));
        },
        kel::out::records(infos, infoCount));
}
void kel_getFilteredTargets(TarnApi* api, TargetFilter** filters, uint32_t filterCount,
                            KelError** error, Target*** targets, uint32_t* targetCount) {
    kel::invoke(
        error, [&] { return api->getFilteredTargets(kel::in::records(filters, filterCount)); },
        kel::out::records(targets, targetCount));
}
void kel_isProjectConversionRequired(TarnApi* api, const wchar_t* projectPath, KelError** error,
                                     uint8_t* required) {
    kel::invoke(
        error, [&] { return api->isProjectConversionRequired(kel::in::text(projectPath)); },
        kel::out::value(required));
}
void kel_convertProject(TarnApi* api, const wchar_t* projectPath, KelError** error) {
    kel::invoke(error, [&] { api->convertProject(kel::in::text(projectPath)); });
}
void kel_saveMoxConfiguration(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->saveMoxConfiguration(); });
}
void kel_startCyclicServices(TarnApi* api, const wchar_t* target, ServiceInput** services,
                             uint32_t serviceCount, uint32_t cycleTime, KelError** error,
                             uint64_t* cyclic) {
    kel::invoke(
        error,
        [&] {
            return api->startCyclicServices(kel::in::text(target),
                                            kel::in::records(services, serviceCount), cycleTime);
        },
        kel::out::value(cyclic));
}
void kel_getCyclicResults(TarnApi* api, uint64_t cyclic, KelError** error, ServiceResult*** results,
                          uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->getCyclicResults(cyclic); },
        kel::out::records(results, resultCount));
}
void kel_stopCyclicServices(TarnApi* api, uint64_t cyclic, KelError** error) {
    kel::invoke(error, [&] { api->stopCyclicServices(cyclic); });
}
void kel_getProjectDetails(TarnApi* api, KelError** error, ProjectDetails** details) {
    kel::invoke(
        error, [&] { return api->getProjectDetails(); }, kel::out::record(details));
}
void kel_clearLinkCache(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->clearLinkCache(); });
}
void kel_addResource(TarnApi* api, const wchar_t* name, ResourceInformation* resource,
                     uint16_t value, KelError** error) {
    kel::invoke(error,
                [&] { api->addResource(kel::in::text(name), kel::in::record(resource), value); });
}
void kel_removeInterface(TarnApi* api, const wchar_t* name, KelError** error) {
    kel::invoke(error, [&] { api->removeInterface(kel::in::text(name)); });
}
void kel_addInterface(TarnApi* api, InterfaceInformation* interfaceInfo, const wchar_t* text1,
                      const wchar_t* text2, const wchar_t* text3, KelError** error,
                      InterfaceInformation** result) {
    kel::invoke(
        error,
        [&] {
            return api->addInterface(kel::in::record(interfaceInfo), kel::in::text(text1),
                                     kel::in::text(text2), kel::in::text(text3));
        },
        kel::out::record(result));
}
void kel_removeResource(TarnApi* api, const wchar_t* name1, const wchar_t* name2,
                        KelError** error) {
    kel::invoke(error, [&] { api->removeResource(kel::in::text(name1), kel::in::text(name2)); });
}
void kel_getSystemProperty(TarnApi* api, const wchar_t* name, KelError** error,
                           SystemProperty** property) {
    kel::invoke(
        error, [&] { return api->getSystemProperty(kel::in::text(name)); },
        kel::out::record(property));
}
void kel_resetSystemProperty(TarnApi* api, const wchar_t* name, KelError** error) {
    kel::invoke(error, [&] { api->resetSystemProperty(kel::in::text(name)); });
}
void kel_setSystemProperty(TarnApi* api, SystemProperty* property, KelError** error) {
    kel::invoke(error, [&] { api->setSystemProperty(kel::in::record(property)); });
}
void kel_getVendorModuleNames(TarnApi* api, InterfaceInformation* interfaceInfo, KelError** error,
                              wchar_t*** names, uint32_t* nameCount) {
    kel::invoke(
        error, [&] { return api->getVendorModuleNames(kel::in::record(interfaceInfo)); },
        kel::out::texts(names, nameCount));
}
void kel_getVendorModuleNamesEx(TarnApi* api, const wchar_t* text, KelError** error,
                                wchar_t*** names, uint32_t* nameCount) {
    kel::invoke(
        error, [&] { return api->getVendorModuleNamesEx(kel::in::text(text)); },
        kel::out::texts(names, nameCount));
}
void kel_executeService(TarnApi* api, const wchar_t* target, ServiceInput** services,
                        uint32_t serviceCount, KelError** error, ServiceResult*** results,
                        uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->executeService(kel::in::text(target),
                                       kel::in::records(services, serviceCount));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_executeServiceAsync(TarnApi* api, const wchar_t* target, ServiceInput** services,
                                 uint32_t serviceCount, KelError** error,
                                 ExecuteServiceCallbackFunction callback, void* context) {
    return kel::start<ExecuteServiceCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->executeServiceAsync(kel::in::text(target),
                                        kel::in::records(services, serviceCount), handler);
    });
}
void kel_detectDynInterfaces(TarnApi* api, uint32_t value, DynInterfaceDetection* detection,
                             KelError** error, ModuleDyn*** modules, uint32_t* moduleCount) {
    kel::invoke(
        error, [&] { return api->detectDynInterfaces(value, kel::in::record(detection)); },
        kel::out::records(modules, moduleCount));
}
uint64_t kel_detectDynInterfacesAsync(TarnApi* api, uint32_t value,
                                      DynInterfaceDetection* detection, KelError** error,
                                      DetectDynInterfacesCallbackFunction callback, void* context) {
    return kel::start<DetectDynInterfacesCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->detectDynInterfacesAsync(value, kel::in::record(detection), handler);
        });
}
void kel_connectDynInterface(TarnApi* api, const wchar_t* name, uint8_t flag,
                             DynInterfaceDetection* detection, KelError** error) {
    kel::invoke(error, [&] {
        api->connectDynInterface(kel::in::text(name), flag != 0, kel::in::record(detection));
    });
}
void kel_disconnectDynInterfaces(TarnApi* api, wchar_t** names, uint32_t nameCount,
                                 KelError** error) {
    kel::invoke(error, [&] { api->disconnectDynInterfaces(kel::in::texts(names, nameCount)); });
}
void kel_updateCyclicServices(TarnApi* api, uint64_t cyclic, ServiceInput** services,
                              uint32_t serviceCount, KelError** error) {
    kel::invoke(error, [&] {
        api->updateCyclicServices(cyclic, kel::in::records(services, serviceCount));
    });
}
void kel_cancelAsyncCalls(TarnApi* api, const uint64_t* callIds, uint32_t callIdCount,
                          KelError** error) {
    kel::invoke(error, [&] { api->cancelAsyncCalls(kel::in::values(callIds, callIdCount)); });
}
void kel_getProjectDirectory(TarnApi* api, uint8_t flag, KelError** error,
                             DirectoryInfo** directory) {
    kel::invoke(
        error, [&] { return api->getProjectDirectory(flag != 0); }, kel::out::record(directory));
}
void kel_getSelectedProjectDirectory(TarnApi* api, uint8_t flag, KelError** error,
                                     DirectoryInfo** directory) {
    kel::invoke(
        error, [&] { return api->getSelectedProjectDirectory(flag != 0); },
        kel::out::record(directory));
}
void kel_writeFile(TarnApi* api, const wchar_t* path, const uint8_t* data, uint32_t dataLength,
                   uint32_t value, uint8_t flag, KelError** error, uint32_t* result) {
    kel::invoke(
        error,
        [&] {
            return api->writeFile(kel::in::text(path), kel::in::values(data, dataLength), value,
                                  flag != 0);
        },
        kel::out::value(result));
}
void kel_deleteFiles(TarnApi* api, FileInfo** files, uint32_t fileCount, KelError** error,
                     KelError** result) {
    kel::invoke(
        error, [&] { return api->deleteFiles(kel::in::records(files, fileCount)); },
        kel::out::record(result));
}
void kel_findDirectories(TarnApi* api, DirectoryInfo* directory, const wchar_t* pattern,
                         uint8_t flag, KelError** error, DirectoryInfo*** directories,
                         uint32_t* directoryCount) {
    kel::invoke(
        error,
        [&] {
            return api->findDirectories(kel::in::record(directory), kel::in::text(pattern),
                                        flag != 0);
        },
        kel::out::records(directories, directoryCount));
}
void kel_findFiles(TarnApi* api, const wchar_t* directory, const wchar_t* pattern, uint8_t flag,
                   KelError** error, FileInfo*** files, uint32_t* fileCount) {
    kel::invoke(
        error,
        [&] { return api->findFiles(kel::in::text(directory), kel::in::text(pattern), flag != 0); },
        kel::out::records(files, fileCount));
}
void kel_initializeDirectoryElements(TarnApi* api, DirectoryInfo* directory, uint8_t flag,
                                     KelError** error, DirectoryInfo** result) {
    kel::invoke(
        error,
        [&] { return api->initializeDirectoryElements(kel::in::record(directory), flag != 0); },
        kel::out::record(result));
}
void kel_createFile(TarnApi* api, DirectoryInfo* parent, const wchar_t* name, KelError** error,
                    FileInfo** file) {
    kel::invoke(
        error, [&] { return api->createFile(kel::in::record(parent), kel::in::text(name)); },
        kel::out::record(file));
}
void kel_createDirectory(TarnApi* api, DirectoryInfo* parent, const wchar_t* name, KelError** error,
                         DirectoryInfo** directory) {
    kel::invoke(
        error, [&] { return api->createDirectory(kel::in::record(parent), kel::in::text(name)); },
        kel::out::record(directory));
}
void kel_deleteDirectory(TarnApi* api, const wchar_t* path, KelError** error, KelError** result) {
    kel::invoke(
        error, [&] { return api->deleteDirectory(kel::in::text(path)); }, kel::out::record(result));
}
void kel_getTraceDirectory(TarnApi* api, uint8_t flag, KelError** error,
                           DirectoryInfo** directory) {
    kel::invoke(
        error, [&] { return api->getTraceDirectory(flag != 0); }, kel::out::record(directory));
}
void kel_createVehicleReport(TarnApi* api, VehicleReportConfig* config, KelError** error,
                             wchar_t** reportFile) {
    kel::invoke(
        error, [&] { return api->createVehicleReport(kel::in::record(config)); },
        kel::out::text(reportFile));
}
void kel_readEcuOrder(TarnApi* api, const wchar_t* path, KelError** error, EcuOrderEntry*** entries,
                      uint32_t* entryCount) {
    kel::invoke(
        error, [&] { return api->readEcuOrder(kel::in::text(path)); },
        kel::out::records(entries, entryCount));
}
void kel_filterEcuOrder(TarnApi* api, EcuOrderEntry** entries, uint32_t entryCount,
                        wchar_t** targets, uint32_t targetCount, KelError** error,
                        EcuOrderEntry*** filtered, uint32_t* filteredCount) {
    kel::invoke(
        error,
        [&] {
            return api->filterEcuOrder(kel::in::records(entries, entryCount),
                                       kel::in::texts(targets, targetCount));
        },
        kel::out::records(filtered, filteredCount));
}
void kel_addMissingTargetsToEcuOrder(TarnApi* api, EcuOrderEntry** entries, uint32_t entryCount,
                                     KelError** error, EcuOrderEntry*** completed,
                                     uint32_t* completedCount) {
    kel::invoke(
        error,
        [&] { return api->addMissingTargetsToEcuOrder(kel::in::records(entries, entryCount)); },
        kel::out::records(completed, completedCount));
}
void kel_lock(TarnApi* api, KelError** error, uint64_t* lockId) {
    kel::invoke(
        error, [&] { return api->lock(); }, kel::out::value(lockId));
}
void kel_unlock(TarnApi* api, uint64_t lockId, KelError** error) {
    kel::invoke(error, [&] { api->unlock(lockId); });
}
void kel_isLocked(TarnApi* api, KelError** error, bool* locked) {
    kel::invoke(
        error, [&] { return api->isLocked(); }, kel::out::value(locked));
}
void kel_breakLock(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->breakLock(); });
}
void kel_setEthernetPinState(TarnApi* api, uint8_t state, wchar_t** interfaces,
                             uint32_t interfaceCount, KelError** error) {
    kel::invoke(error, [&] {
        api->setEthernetPinState(state, kel::in::texts(interfaces, interfaceCount));
    });
}
void kel_getEthernetPinState(TarnApi* api, const wchar_t* interfaceName, KelError** error,
                             uint32_t* state) {
    kel::invoke(
        error, [&] { return api->getEthernetPinState(kel::in::text(interfaceName)); },
        kel::out::value(state));
}
void kel_detectDynInterfacesEx(TarnApi* api, uint32_t value, KelError** error, ModuleDyn*** modules,
                               uint32_t* moduleCount) {
    kel::invoke(
        error, [&] { return api->detectDynInterfacesEx(value); },
        kel::out::records(modules, moduleCount));
}
uint64_t kel_detectDynInterfacesExAsync(TarnApi* api, uint32_t value, KelError** error,
                                        DetectDynInterfacesExCallbackFunction callback,
                                        void* context) {
    return kel::start<DetectDynInterfacesExCallbackHandler>(
        error, callback, context,
        [&](auto* handler) { return api->detectDynInterfacesExAsync(value, handler); });
}
void kel_connectDynInterfaceEx(TarnApi* api, const wchar_t* name, uint8_t flag, KelError** error) {
    kel::invoke(error, [&] { api->connectDynInterfaceEx(kel::in::text(name), flag != 0); });
}
void kel_addUser(TarnApi* api, const wchar_t* name, const wchar_t* password, uint32_t role,
                 KelError** error) {
    kel::invoke(error, [&] { api->addUser(kel::in::text(name), kel::in::text(password), role); });
}
void kel_removeUser(TarnApi* api, const wchar_t* name, KelError** error) {
    kel::invoke(error, [&] { api->removeUser(kel::in::text(name)); });
}
void kel_getUsers(TarnApi* api, KelError** error, UserInfo*** users, uint32_t* userCount) {
    kel::invoke(
        error, [&] { return api->getUsers(); }, kel::out::records(users, userCount));
}
void kel_logOut(TarnApi* api, LogInOutConfig* config, KelError** error) {
    kel::invoke(error, [&] { api->logOut(kel::in::record(config)); });
}
void kel_updateUser(TarnApi* api, const wchar_t* name, const wchar_t* newName,
                    const wchar_t* newPassword, uint32_t role, KelError** error) {
    kel::invoke(error, [&] {
        api->updateUser(kel::in::text(name), kel::in::text(newName), kel::in::text(newPassword),
                        role);
    });
}
void kel_getServerUserManagement(TarnApi* api, KelError** error, uint8_t* enabled) {
    kel::invoke(
        error, [&] { return api->getServerUserManagement(); }, kel::out::value(enabled));
}
void kel_setServerUserManagement(TarnApi* api, uint8_t enabled, KelError** error) {
    kel::invoke(error, [&] { api->setServerUserManagement(enabled != 0); });
}
void kel_registerServerHandler(uint64_t api, void* handler, KelError** error) {
    kel::invoke(error, [&] { kel::engine(api)->registerServerHandler(kel::in::handler(handler)); });
}
void kel_disconnectAllClients(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->disconnectAllClients(); });
}
void kel_testSocketBridge(TarnApi* api, uint64_t bridge, KelError** error, uint8_t* result) {
    kel::invoke(
        error, [&] { return api->testSocketBridge(bridge); }, kel::out::value(result));
}
void kel_copyFiles(TarnApi* api, FileCopyConfig* config, KelError** error,
                   FileCopyResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->copyFiles(kel::in::record(config)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_copyFilesAsync(TarnApi* api, FileCopyConfig* config, KelError** error,
                            CopyFilesCallbackFunction callback, void* context) {
    return kel::start<CopyFilesCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->copyFilesAsync(kel::in::record(config), handler);
    });
}
void kel_copyDirectories(TarnApi* api, DirectoryCopyConfig* config, KelError** error,
                         DirectoryCopyResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->copyDirectories(kel::in::record(config)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_copyDirectoriesAsync(TarnApi* api, DirectoryCopyConfig* config, KelError** error,
                                  CopyDirectoriesCallbackFunction callback, void* context) {
    return kel::start<CopyDirectoriesCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->copyDirectoriesAsync(kel::in::record(config), handler);
    });
}
void kel_calculateChecksum(TarnApi* api, const wchar_t* path, int32_t algorithm, KelError** error,
                           wchar_t** checksum) {
    kel::invoke(
        error, [&] { return api->calculateChecksum(kel::in::text(path), algorithm); },
        kel::out::text(checksum));
}
void kel_runSequence(TarnApi* api, const wchar_t* sequence, wchar_t** arguments,
                     uint32_t argumentCount, KelError** error, uint64_t* run) {
    kel::invoke(
        error,
        [&] {
            return api->runSequence(kel::in::text(sequence),
                                    kel::in::texts(arguments, argumentCount));
        },
        kel::out::value(run));
}
void kel_unlockVehicle(TarnApi* api, const wchar_t* target, ServiceInput** services,
                       uint32_t serviceCount, KelError** error, UnlockResult** result) {
    kel::invoke(
        error,
        [&] {
            return api->unlockVehicle(kel::in::text(target),
                                      kel::in::records(services, serviceCount));
        },
        kel::out::record(result));
}
void kel_releaseVehicleUnlock(TarnApi* api, uint64_t value, KelError** error) {
    kel::invoke(error, [&] { api->releaseVehicleUnlock(value); });
}
void kel_cancelSequence(TarnApi* api, uint64_t run, KelError** error) {
    kel::invoke(error, [&] { api->cancelSequence(run); });
}
void kel_getRegisteredDevices(TarnApi* api, KelError** error, DeviceInfo*** devices,
                              uint32_t* deviceCount) {
    kel::invoke(
        error, [&] { return api->getRegisteredDevices(); },
        kel::out::records(devices, deviceCount));
}
void kel_getSystemInfo(TarnApi* api, KelError** error, SystemInfo** info) {
    kel::invoke(
        error, [&] { return api->getSystemInfo(); }, kel::out::record(info));
}
void kel_applyUpdatePackage(TarnApi* api, const wchar_t* package, KelError** error) {
    kel::invoke(error, [&] { api->applyUpdatePackage(kel::in::text(package)); });
}
void kel_renameFile(TarnApi* api, const wchar_t* path, const wchar_t* newName, KelError** error) {
    kel::invoke(error, [&] { api->renameFile(kel::in::text(path), kel::in::text(newName)); });
}
void kel_onConnectionBroken(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->onConnectionBroken(); });
}
void kel_getUpdatePackages(TarnApi* api, KelError** error, UpdatePackageInfo*** packages,
                           uint32_t* packageCount) {
    kel::invoke(
        error, [&] { return api->getUpdatePackages(); }, kel::out::records(packages, packageCount));
}
void kel_getPackagesFromBroker(TarnApi* api, KelError** error, UpdatePackageInfo*** packages,
                               uint32_t* packageCount) {
    kel::invoke(
        error, [&] { return api->getPackagesFromBroker(); },
        kel::out::records(packages, packageCount));
}
void kel_checkUpdatesOnBroker(TarnApi* api, KelError** error, bool* available) {
    kel::invoke(
        error, [&] { return api->checkUpdatesOnBroker(); }, kel::out::value(available));
}
void kel_autoUpdate(TarnApi* api, KelError** error, bool* updated) {
    kel::invoke(
        error, [&] { return api->autoUpdate(); }, kel::out::value(updated));
}
void kel_getConfigDirectory(TarnApi* api, uint8_t flag, KelError** error,
                            DirectoryInfo** directory) {
    kel::invoke(
        error, [&] { return api->getConfigDirectory(flag != 0); }, kel::out::record(directory));
}
void kel_createApiTraceMonitor(TarnApi* api, KelError** error, uint64_t* handle) {
    kel::invoke(
        error, [&] { return api->createApiTraceMonitor(); }, kel::out::value(handle));
}
void kel_getApiTraceContent(TarnApi* api, uint64_t handle, uint32_t value1, int32_t value2,
                            KelError** error, void** data, uint32_t* dataLength) {
    kel::invoke(
        error, [&] { return api->getApiTraceContent(handle, value1, value2); },
        kel::out::buffer(data, dataLength));
}
void kel_releaseApiTraceMonitor(TarnApi* api, uint64_t handle, KelError** error) {
    kel::invoke(error, [&] { api->releaseApiTraceMonitor(handle); });
}
void kel_getCurrentVersions(TarnApi* api, KelError** error, NamedItem*** versions,
                            uint32_t* versionCount) {
    kel::invoke(
        error, [&] { return api->getCurrentVersions(); },
        kel::out::records(versions, versionCount));
}
void kel_checkUpdateSuccess(TarnApi* api, KelError** error, bool* succeeded) {
    kel::invoke(
        error, [&] { return api->checkUpdateSuccess(); }, kel::out::value(succeeded));
}
void kel_cleanUpdateTmp(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->cleanUpdateTmp(); });
}
void kel_executeFlashSessionsConfig(TarnApi* api, FlashSessionsConfig* config, KelError** error,
                                    FlashSessionResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->executeFlashSessionsConfig(kel::in::record(config)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_executeFlashSessionsConfigAsync(TarnApi* api, FlashSessionsConfig* config,
                                             KelError** error,
                                             ExecuteFlashSessionsConfigCallbackFunction callback,
                                             void* context) {
    return kel::start<ExecuteFlashSessionsConfigCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->executeFlashSessionsConfigAsync(kel::in::record(config), handler);
        });
}
void kel_loadDatabaseFile(TarnApi* api, wchar_t** files, uint32_t fileCount, KelError** error,
                          LoadDatabaseResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->loadDatabaseFile(kel::in::texts(files, fileCount)); },
        kel::out::records(results, resultCount));
}
void kel_copyProjectWithFilters(TarnApi* api, FileFilter** filters, uint32_t filterCount,
                                uint8_t flag, FileCopyConfig* config, const wchar_t* text,
                                KelError** error, FileInfo*** files, uint32_t* fileCount) {
    kel::invoke(
        error,
        [&] {
            return api->copyProjectWithFilters(kel::in::records(filters, filterCount), flag != 0,
                                               kel::in::record(config), kel::in::text(text));
        },
        kel::out::records(files, fileCount));
}
void kel_reconnectRemoteServer(TarnApi* api, uint64_t handle, KelError** error,
                               uint8_t* reconnected) {
    kel::invoke(
        error, [&] { return api->reconnectRemoteServer(handle); }, kel::out::value(reconnected));
}
void kel_filterFiles(TarnApi* api, FileFilter** filters, uint32_t filterCount, const wchar_t* text,
                     KelError** error, wchar_t*** files, uint32_t* fileCount) {
    kel::invoke(
        error,
        [&] {
            return api->filterFiles(kel::in::records(filters, filterCount), kel::in::text(text));
        },
        kel::out::texts(files, fileCount));
}
void kel_unloadDatabaseFile(TarnApi* api, wchar_t** files, uint32_t fileCount, KelError** error,
                            LoadDatabaseResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->unloadDatabaseFile(kel::in::texts(files, fileCount)); },
        kel::out::records(results, resultCount));
}
void kel_getPublicDirectories(TarnApi* api, KelError** error, DirectoryInfo*** directories,
                              uint32_t* directoryCount) {
    kel::invoke(
        error, [&] { return api->getPublicDirectories(); },
        kel::out::records(directories, directoryCount));
}
void kel_updateVehicle(TarnApi* api, VehicleUpdateConfig* config, KelError** error,
                       VehicleUpdateResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->updateVehicle(kel::in::record(config)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_updateVehicleAsync(TarnApi* api, VehicleUpdateConfig* config, KelError** error,
                                UpdateVehicleCallbackFunction callback, void* context) {
    return kel::start<UpdateVehicleCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->updateVehicleAsync(kel::in::record(config), handler);
    });
}
void kel_executeServiceInDefaultSession(TarnApi* api, const wchar_t* target,
                                        ServiceInput** services, uint32_t serviceCount,
                                        KelError** error, ServiceResult*** results,
                                        uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->executeServiceInDefaultSession(kel::in::text(target),
                                                       kel::in::records(services, serviceCount));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_executeServiceInDefaultSessionAsync(
    TarnApi* api, const wchar_t* target, ServiceInput** services, uint32_t serviceCount,
    KelError** error, ExecuteServiceInDefaultSessionCallbackFunction callback, void* context) {
    return kel::start<ExecuteServiceInDefaultSessionCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->executeServiceInDefaultSessionAsync(
                kel::in::text(target), kel::in::records(services, serviceCount), handler);
        });
}
void kel_getTargetStatus(TarnApi* api, wchar_t** targets, uint32_t targetCount, KelError** error,
                         TargetStatus*** statuses, uint32_t* statusCount) {
    kel::invoke(
        error, [&] { return api->getTargetStatus(kel::in::texts(targets, targetCount)); },
        kel::out::records(statuses, statusCount));
}
void kel_getPhysicalLinks(TarnApi* api, wchar_t** modules, uint32_t moduleCount, KelError** error,
                          PhysicalLinksOnModule*** links, uint32_t* linkCount) {
    kel::invoke(
        error, [&] { return api->getPhysicalLinks(kel::in::texts(modules, moduleCount)); },
        kel::out::records(links, linkCount));
}
void kel_setPhysicalLinks(TarnApi* api, PhysicalLinksOnModule** links, uint32_t linkCount,
                          KelError** error, PhysicalLinksOnModule*** updated,
                          uint32_t* updatedCount) {
    kel::invoke(
        error, [&] { return api->setPhysicalLinks(kel::in::records(links, linkCount)); },
        kel::out::records(updated, updatedCount));
}
void kel_moveFile(TarnApi* api, const wchar_t* source, const wchar_t* target, KelError** error,
                  uint8_t* moved) {
    kel::invoke(
        error, [&] { return api->moveFile(kel::in::text(source), kel::in::text(target)); },
        kel::out::value(moved));
}
void kel_moveDirectory(TarnApi* api, const wchar_t* source, const wchar_t* target, KelError** error,
                       uint8_t* moved) {
    kel::invoke(
        error, [&] { return api->moveDirectory(kel::in::text(source), kel::in::text(target)); },
        kel::out::value(moved));
}
void kel_pathExists(TarnApi* api, const wchar_t* path, KelError** error, uint8_t* exists) {
    kel::invoke(
        error, [&] { return api->pathExists(kel::in::text(path)); }, kel::out::value(exists));
}
void kel_resolvePath(TarnApi* api, const wchar_t* path, KelError** error, wchar_t** resolved) {
    kel::invoke(
        error, [&] { return api->resolvePath(kel::in::text(path)); }, kel::out::text(resolved));
}
void kel_getVehicleData(TarnApi* api, KelError** error, VehicleData*** data, uint32_t* dataCount) {
    kel::invoke(
        error, [&] { return api->getVehicleData(); }, kel::out::records(data, dataCount));
}
void kel_getProjectsDetails(TarnApi* api, wchar_t** projectNames, uint32_t projectNameCount,
                            KelError** error, ProjectDetails*** details, uint32_t* detailCount) {
    kel::invoke(
        error,
        [&] { return api->getProjectsDetails(kel::in::texts(projectNames, projectNameCount)); },
        kel::out::records(details, detailCount));
}
void kel_uploadReport(TarnApi* api, UploadReportConfiguration* config, KelError** error) {
    kel::invoke(error, [&] { api->uploadReport(kel::in::record(config)); });
}
void kel_getFileReferences(TarnApi* api, wchar_t** files, uint32_t fileCount, KelError** error,
                           FileReferenceResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->getFileReferences(kel::in::texts(files, fileCount)); },
        kel::out::records(results, resultCount));
}
void kel_onConnectionClosed(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->onConnectionClosed(); });
}
void kel_openTerminal(TarnApi* api, KelError** error, uint8_t* opened) {
    kel::invoke(
        error, [&] { return api->openTerminal(); }, kel::out::value(opened));
}
void kel_closeTerminal(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->closeTerminal(); });
}
void kel_isDirectory(TarnApi* api, const wchar_t* path, KelError** error, uint8_t* result) {
    kel::invoke(
        error, [&] { return api->isDirectory(kel::in::text(path)); }, kel::out::value(result));
}
void kel_getDirectoryInfo(TarnApi* api, const wchar_t* path, uint8_t flag, KelError** error,
                          DirectoryInfo** directory) {
    kel::invoke(
        error, [&] { return api->getDirectoryInfo(kel::in::text(path), flag != 0); },
        kel::out::record(directory));
}
void kel_getFileInfo(TarnApi* api, const wchar_t* path, KelError** error, FileInfo** file) {
    kel::invoke(
        error, [&] { return api->getFileInfo(kel::in::text(path)); }, kel::out::record(file));
}
void kel_isFile(TarnApi* api, const wchar_t* path, KelError** error, uint8_t* result) {
    kel::invoke(
        error, [&] { return api->isFile(kel::in::text(path)); }, kel::out::value(result));
}
void kel_getWLanSignalData(TarnApi* api, const wchar_t* interfaceName, KelError** error,
                           WLanSignalData** data) {
    kel::invoke(
        error, [&] { return api->getWLanSignalData(kel::in::text(interfaceName)); },
        kel::out::record(data));
}
void kel_clearDoIPEcuCollection(TarnApi* api, KelError** error, KelError*** errors,
                                uint32_t* errorCount) {
    kel::invoke(
        error, [&] { return api->clearDoIPEcuCollection(); },
        kel::out::records(errors, errorCount));
}
void kel_setBrokerUrl(TarnApi* api, const wchar_t* url, KelError** error) {
    kel::invoke(error, [&] { api->setBrokerUrl(kel::in::text(url)); });
}
void kel_copyPath(TarnApi* api, PathCopyConfig* config, KelError** error, PathCopyResult*** results,
                  uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->copyPath(kel::in::record(config)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_copyPathAsync(TarnApi* api, PathCopyConfig* config, KelError** error,
                           CopyPathCallbackFunction callback, void* context) {
    return kel::start<CopyPathCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->copyPathAsync(kel::in::record(config), handler);
    });
}
void kel_thirdPartyLogin(TarnApi* api, const wchar_t* code, KelError** error, uint8_t* result) {
    kel::invoke(
        error, [&] { return api->thirdPartyLogin(kel::in::text(code)); }, kel::out::value(result));
}
void kel_clearUpdatePackages(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->clearUpdatePackages(); });
}
void kel_getThirdPartyLoginUrl(TarnApi* api, const wchar_t* provider, KelError** error,
                               wchar_t** url) {
    kel::invoke(
        error, [&] { return api->getThirdPartyLoginUrl(kel::in::text(provider)); },
        kel::out::text(url));
}
void kel_selectDynamicProject(TarnApi* api, const wchar_t* projectName, wchar_t** items,
                              uint32_t itemCount, KelError** error) {
    kel::invoke(error, [&] {
        api->selectDynamicProject(kel::in::text(projectName), kel::in::texts(items, itemCount));
    });
}
void kel_getCertificateByPublicKey(TarnApi* api, const wchar_t* publicKey, const wchar_t* text2,
                                   const wchar_t* text3, const wchar_t* text4, KelError** error,
                                   wchar_t** certificate) {
    kel::invoke(
        error,
        [&] {
            return api->getCertificateByPublicKey(kel::in::text(publicKey), kel::in::text(text2),
                                                  kel::in::text(text3), kel::in::text(text4));
        },
        kel::out::text(certificate));
}
void kel_createCertificateFromCSR(TarnApi* api, const wchar_t* text1, const wchar_t* text2,
                                  const wchar_t* text3, const wchar_t* text4, const wchar_t* text5,
                                  const wchar_t* text6, KelError** error, wchar_t** certificate) {
    kel::invoke(
        error,
        [&] {
            return api->createCertificateFromCSR(kel::in::text(text1), kel::in::text(text2),
                                                 kel::in::text(text3), kel::in::text(text4),
                                                 kel::in::text(text5), kel::in::text(text6));
        },
        kel::out::text(certificate));
}
void kel_getCertificateChainById(TarnApi* api, const wchar_t* id, const wchar_t* text2,
                                 const wchar_t* text3, KelError** error, wchar_t*** chain,
                                 uint32_t* chainCount) {
    kel::invoke(
        error,
        [&] {
            return api->getCertificateChainById(kel::in::text(id), kel::in::text(text2),
                                                kel::in::text(text3));
        },
        kel::out::texts(chain, chainCount));
}
void kel_createDefaultECUOrder(TarnApi* api, KelError** error, EcuOrderEntry*** entries,
                               uint32_t* entryCount) {
    kel::invoke(
        error, [&] { return api->createDefaultECUOrder(); },
        kel::out::records(entries, entryCount));
}
void kel_writeCodingFile(TarnApi* api, const wchar_t* codingFile, wchar_t** targets,
                         uint32_t targetCount, KelError** error, CodingFileResult*** results,
                         uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->writeCodingFile(kel::in::text(codingFile),
                                        kel::in::texts(targets, targetCount));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_writeCodingFileAsync(TarnApi* api, const wchar_t* codingFile, wchar_t** targets,
                                  uint32_t targetCount, KelError** error,
                                  WriteCodingFileCallbackFunction callback, void* context) {
    return kel::start<WriteCodingFileCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->writeCodingFileAsync(kel::in::text(codingFile),
                                         kel::in::texts(targets, targetCount), handler);
    });
}
void kel_writeEcuOrder(TarnApi* api, const wchar_t* path, EcuOrderEntry** entries,
                       uint32_t entryCount, KelError** error) {
    kel::invoke(error, [&] {
        api->writeEcuOrder(kel::in::text(path), kel::in::records(entries, entryCount));
    });
}
void kel_getEcuOrderFilePath(TarnApi* api, KelError** error, wchar_t** path) {
    kel::invoke(
        error, [&] { return api->getEcuOrderFilePath(); }, kel::out::text(path));
}
void kel_performVehicleUpdate(TarnApi* api, EcuOrderEntry** entries, uint32_t entryCount,
                              VehicleUpdateConfig* config, KelError** error,
                              VehicleUpdateResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->performVehicleUpdate(kel::in::records(entries, entryCount),
                                             kel::in::record(config));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_performVehicleUpdateAsync(TarnApi* api, EcuOrderEntry** entries, uint32_t entryCount,
                                       VehicleUpdateConfig* config, KelError** error,
                                       PerformVehicleUpdateCallbackFunction callback,
                                       void* context) {
    return kel::start<PerformVehicleUpdateCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->performVehicleUpdateAsync(kel::in::records(entries, entryCount),
                                                  kel::in::record(config), handler);
        });
}
void kel_triggerAsyncCancels(TarnApi* api, const uint64_t* callIds, uint32_t callIdCount,
                             KelError** error) {
    kel::invoke(error, [&] { api->triggerAsyncCancels(kel::in::values(callIds, callIdCount)); });
}
void kel_executeSequence(TarnApi* api, const wchar_t* target, const wchar_t* sequence,
                         ParameterInput** parameters, uint32_t parameterCount, KelError** error,
                         ServiceResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->executeSequence(kel::in::text(target), kel::in::text(sequence),
                                        kel::in::records(parameters, parameterCount));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_executeSequenceAsync(TarnApi* api, const wchar_t* target, const wchar_t* sequence,
                                  ParameterInput** parameters, uint32_t parameterCount,
                                  KelError** error, ExecuteSequenceCallbackFunction callback,
                                  void* context) {
    return kel::start<ExecuteSequenceCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->executeSequenceAsync(kel::in::text(target), kel::in::text(sequence),
                                         kel::in::records(parameters, parameterCount), handler);
    });
}
void kel_addPublicDirectory(TarnApi* api, const wchar_t* name, const wchar_t* path,
                            KelError** error) {
    kel::invoke(error, [&] { api->addPublicDirectory(kel::in::text(name), kel::in::text(path)); });
}
void kel_createVehicleUpdateReport(TarnApi* api, VehicleUpdateResult** results,
                                   uint32_t resultCount, KelError** error, wchar_t** reportFile) {
    kel::invoke(
        error,
        [&] { return api->createVehicleUpdateReport(kel::in::records(results, resultCount)); },
        kel::out::text(reportFile));
}
void kel_getParameterInfo(TarnApi* api, ParameterInfoConfig* config, KelError** error,
                          ParameterInfo** info) {
    kel::invoke(
        error, [&] { return api->getParameterInfo(kel::in::record(config)); },
        kel::out::record(info));
}
void kel_performEcuConfiguration(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                 const wchar_t* configuration, KelError** error,
                                 EcuConfigurationResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->performEcuConfiguration(kel::in::texts(targets, targetCount),
                                                kel::in::text(configuration));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_performEcuConfigurationAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                          const wchar_t* configuration, KelError** error,
                                          PerformEcuConfigurationCallbackFunction callback,
                                          void* context) {
    return kel::start<PerformEcuConfigurationCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->performEcuConfigurationAsync(kel::in::texts(targets, targetCount),
                                                     kel::in::text(configuration), handler);
        });
}
void kel_clearSpecificDtcs(TarnApi* api, const wchar_t* target, const uint32_t* dtcCodes,
                           uint32_t dtcCodeCount, KelError** error, ClearDtcResult*** results,
                           uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->clearSpecificDtcs(kel::in::text(target),
                                          kel::in::values(dtcCodes, dtcCodeCount));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_clearSpecificDtcsAsync(TarnApi* api, const wchar_t* target, const uint32_t* dtcCodes,
                                    uint32_t dtcCodeCount, KelError** error,
                                    ClearSpecificDtcsCallbackFunction callback, void* context) {
    return kel::start<ClearSpecificDtcsCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->clearSpecificDtcsAsync(kel::in::text(target),
                                               kel::in::values(dtcCodes, dtcCodeCount), handler);
        });
}
void kel_startSOVDServer(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->startSOVDServer(); });
}
void kel_stopSOVDServer(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->stopSOVDServer(); });
}
void kel_logIn(TarnApi* api, LogInOutConfig* config, KelError** error) {
    kel::invoke(error, [&] { api->logIn(kel::in::record(config)); });
}
void kel_createVehicleUpdateConfig(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                   KelError** error, VehicleUpdateConfig** config) {
    kel::invoke(
        error, [&] { return api->createVehicleUpdateConfig(kel::in::texts(targets, targetCount)); },
        kel::out::record(config));
}
void kel_getProjectConfigurations(TarnApi* api, KelError** error, ProjectConfig*** configs,
                                  uint32_t* configCount) {
    kel::invoke(
        error, [&] { return api->getProjectConfigurations(); },
        kel::out::records(configs, configCount));
}
void kel_getState(TarnApi* api, KelError** error, int32_t* state) {
    kel::invoke(
        error, [&] { return api->getState(); }, kel::out::value(state));
}
void kel_getVersion(TarnApi* api, KelError** error, wchar_t** version) {
    kel::invoke(
        error, [&] { return api->getVersion(); }, kel::out::text(version));
}
void kel_getSelectedProject(TarnApi* api, KelError** error, wchar_t** projectName) {
    kel::invoke(
        error, [&] { return api->getSelectedProject(); }, kel::out::text(projectName));
}
void kel_setSelectedProject(TarnApi* api, KelError** error, const wchar_t* projectName) {
    kel::invoke(error, [&] { api->setSelectedProject(kel::in::text(projectName)); });
}
void kel_getConfiguration(TarnApi* api, KelError** error, TarnApiConfig** config) {
    kel::invoke(
        error, [&] { return api->getConfiguration(); }, kel::out::record(config));
}
void kel_setConfiguration(TarnApi* api, KelError** error, TarnApiConfig* config) {
    kel::invoke(error, [&] { api->setConfiguration(kel::in::record(config)); });
}
void kel_getServerSettings(TarnApi* api, KelError** error, ServerSettings** settings) {
    kel::invoke(
        error, [&] { return api->getServerSettings(); }, kel::out::record(settings));
}
void kel_getSelectedVehicleInformation(TarnApi* api, KelError** error,
                                       VehicleInformation** information) {
    kel::invoke(
        error, [&] { return api->getSelectedVehicleInformation(); }, kel::out::record(information));
}
void kel_setSelectedVehicleInformation(TarnApi* api, KelError** error,
                                       VehicleInformation* information) {
    kel::invoke(error, [&] { api->setSelectedVehicleInformation(kel::in::record(information)); });
}
void kel_getTargets(TarnApi* api, KelError** error, Target*** targets, uint32_t* targetCount) {
    kel::invoke(
        error, [&] { return api->getTargets(); }, kel::out::records(targets, targetCount));
}
void kel_getProcessInfo(TarnApi* api, KelError** error, ProcessInfo** info) {
    kel::invoke(
        error, [&] { return api->getProcessInfo(); }, kel::out::record(info));
}
void kel_getTransmissionInfo(TarnApi* api, KelError** error, TransmissionInfo** info) {
    kel::invoke(
        error, [&] { return api->getTransmissionInfo(); }, kel::out::record(info));
}
void kel_getHandle(TarnApi* api, KelError** error, uint64_t* handle) {
    kel::invoke(
        error, [&] { return api->getHandle(); }, kel::out::value(handle));
}
void kel_getMoxConfiguration(TarnApi* api, KelError** error, MoxConfig** config) {
    kel::invoke(
        error, [&] { return api->getMoxConfiguration(); }, kel::out::record(config));
}
void kel_setMoxConfiguration(TarnApi* api, KelError** error, MoxConfig* config) {
    kel::invoke(error, [&] { api->setMoxConfiguration(kel::in::record(config)); });
}
void kel_getInterfaceConfiguration(TarnApi* api, KelError** error,
                                   InterfaceConfiguration** config) {
    kel::invoke(
        error, [&] { return api->getInterfaceConfiguration(); }, kel::out::record(config));
}
void kel_setInterfaceConfiguration(TarnApi* api, KelError** error, InterfaceConfiguration* config) {
    kel::invoke(error, [&] { api->setInterfaceConfiguration(kel::in::record(config)); });
}
void kel_getMonitoringLinks(TarnApi* api, KelError** error, wchar_t*** links, uint32_t* linkCount) {
    kel::invoke(
        error, [&] { return api->getMonitoringLinks(); }, kel::out::texts(links, linkCount));
}
void kel_getGlobalProtocolParameterSets(TarnApi* api, KelError** error,
                                        GlobalProtocolParameterSet*** sets, uint32_t* setCount) {
    kel::invoke(
        error, [&] { return api->getGlobalProtocolParameterSets(); },
        kel::out::records(sets, setCount));
}
void kel_setGlobalProtocolParameterSets(TarnApi* api, KelError** error,
                                        GlobalProtocolParameterSet** sets, uint32_t setCount) {
    kel::invoke(error,
                [&] { api->setGlobalProtocolParameterSets(kel::in::records(sets, setCount)); });
}
void kel_getStatusInfo(TarnApi* api, KelError** error, StatusInfo** info) {
    kel::invoke(
        error, [&] { return api->getStatusInfo(); }, kel::out::record(info));
}
void kel_getSessionTargetFilters(TarnApi* api, KelError** error, TargetFilter*** filters,
                                 uint32_t* filterCount) {
    kel::invoke(
        error, [&] { return api->getSessionTargetFilters(); },
        kel::out::records(filters, filterCount));
}
void kel_setSessionTargetFilters(TarnApi* api, KelError** error, TargetFilter** filters,
                                 uint32_t filterCount) {
    kel::invoke(error,
                [&] { api->setSessionTargetFilters(kel::in::records(filters, filterCount)); });
}
void kel_getSupportedInterfaces(TarnApi* api, KelError** error, SupportedInterface*** interfaces,
                                uint32_t* interfaceCount) {
    kel::invoke(
        error, [&] { return api->getSupportedInterfaces(); },
        kel::out::records(interfaces, interfaceCount));
}
void kel_getInterfaceProviders(TarnApi* api, KelError** error, InterfaceProvider*** providers,
                               uint32_t* providerCount) {
    kel::invoke(
        error, [&] { return api->getInterfaceProviders(); },
        kel::out::records(providers, providerCount));
}
void kel_setInterfaceProviders(TarnApi* api, KelError** error, InterfaceProvider** providers,
                               uint32_t providerCount) {
    kel::invoke(error, [&] {
        api->setInterfaceProviders(
            kel::in::records<::InterfaceProvider, Varno::Kel_cpp::InterfaceProviderDyn>(
                providers, providerCount));
    });
}
void kel_getCurrentDebugTraceDirectory(TarnApi* api, KelError** error, wchar_t** directory) {
    kel::invoke(
        error, [&] { return api->getCurrentDebugTraceDirectory(); }, kel::out::text(directory));
}
void kel_getServerConfiguration(TarnApi* api, KelError** error, TarnApiServerConfig** config) {
    kel::invoke(
        error, [&] { return api->getServerConfiguration(); }, kel::out::record(config));
}
void kel_getCallDuration(TarnApi* api, KelError** error, uint64_t* duration) {
    kel::invoke(
        error, [&] { return api->getCallDuration(); }, kel::out::value(duration));
}
void kel_setStatusText(TarnApi* api, KelError** error, const wchar_t* text) {
    kel::invoke(error, [&] { api->setStatusText(kel::in::text(text)); });
}
void kel_getDefaultDoIPParameter(TarnApi* api, KelError** error, DoIPParameter** parameter) {
    kel::invoke(
        error, [&] { return api->getDefaultDoIPParameter(); }, kel::out::record(parameter));
}

} // extern "C"
