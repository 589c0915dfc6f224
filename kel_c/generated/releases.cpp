// Generated from the interface description by tools/generate.py. Do not edit.
// The release exports of the records.

#include "convert.h"

#include <kel_c.h>

#include <cstddef>

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

} // extern "C"
