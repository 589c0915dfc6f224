// Generated from the interface description by tools/generate.py. Do not edit.
// The C records as the conformance suite sees them: describe() renders a record as
// JSON (pointers that are NULL as null, each count after its list), build() fills
// one from JSON with the library's allocation exports.
#pragma once

#include "conformance_support.h"

namespace kel_conformance {

inline void describe(Out& o, const MvciServerError& r);
inline void build(const Json& j, MvciServerError& r);
inline void describe(Out& o, const NegativeResponse& r);
inline void build(const Json& j, NegativeResponse& r);
inline void describe(Out& o, const KelError& r);
inline void build(const Json& j, KelError& r);
inline void describe(Out& o, const NamedItem& r);
inline void build(const Json& j, NamedItem& r);
inline void describe(Out& o, const ParameterResult& r);
inline void build(const Json& j, ParameterResult& r);
inline void describe(Out& o, const ClearDtcResult& r);
inline void build(const Json& j, ClearDtcResult& r);
inline void describe(Out& o, const DtcReadConfig& r);
inline void build(const Json& j, DtcReadConfig& r);
inline void describe(Out& o, const ReadDtcResult& r);
inline void build(const Json& j, ReadDtcResult& r);
inline void describe(Out& o, const DtcResult& r);
inline void build(const Json& j, DtcResult& r);
inline void describe(Out& o, const SpecialDataGroup& r);
inline void build(const Json& j, SpecialDataGroup& r);
inline void describe(Out& o, const VariantIdentResult& r);
inline void build(const Json& j, VariantIdentResult& r);
inline void describe(Out& o, const ReadDataResult& r);
inline void build(const Json& j, ReadDataResult& r);
inline void describe(Out& o, const Target& r);
inline void build(const Json& j, Target& r);
inline void describe(Out& o, const TargetStatus& r);
inline void build(const Json& j, TargetStatus& r);
inline void describe(Out& o, const TargetFilter& r);
inline void build(const Json& j, TargetFilter& r);
inline void describe(Out& o, const ParameterInput& r);
inline void build(const Json& j, ParameterInput& r);
inline void describe(Out& o, const ServiceInput& r);
inline void build(const Json& j, ServiceInput& r);
inline void describe(Out& o, const ServiceResult& r);
inline void build(const Json& j, ServiceResult& r);
inline void describe(Out& o, const ResponseResult& r);
inline void build(const Json& j, ResponseResult& r);
inline void describe(Out& o, const RequestResult& r);
inline void build(const Json& j, RequestResult& r);
inline void describe(Out& o, const UnlockResult& r);
inline void build(const Json& j, UnlockResult& r);
inline void describe(Out& o, const ServiceInfo& r);
inline void build(const Json& j, ServiceInfo& r);
inline void describe(Out& o, const ResponseInfo& r);
inline void build(const Json& j, ResponseInfo& r);
inline void describe(Out& o, const ParameterInfo& r);
inline void build(const Json& j, ParameterInfo& r);
inline void describe(Out& o, const ConstraintInfo& r);
inline void build(const Json& j, ConstraintInfo& r);
inline void describe(Out& o, const ScaleConstraintInfo& r);
inline void build(const Json& j, ScaleConstraintInfo& r);
inline void describe(Out& o, const UnitInfo& r);
inline void build(const Json& j, UnitInfo& r);
inline void describe(Out& o, const ParameterInfoConfig& r);
inline void build(const Json& j, ParameterInfoConfig& r);
inline void describe(Out& o, const KelEvent& r);
inline void build(const Json& j, KelEvent& r);
inline void describe(Out& o, const EventReport& r);
inline void build(const Json& j, EventReport& r);
inline void describe(Out& o, const FileFilter& r);
inline void build(const Json& j, FileFilter& r);
inline void describe(Out& o, const TargetConfig& r);
inline void build(const Json& j, TargetConfig& r);
inline void describe(Out& o, const ProjectConfig& r);
inline void build(const Json& j, ProjectConfig& r);
inline void describe(Out& o, const ProjectDetails& r);
inline void build(const Json& j, ProjectDetails& r);
inline void describe(Out& o, const DbFileInfo& r);
inline void build(const Json& j, DbFileInfo& r);
inline void describe(Out& o, const SystemInfo& r);
inline void build(const Json& j, SystemInfo& r);
inline void describe(Out& o, const SystemProperty& r);
inline void build(const Json& j, SystemProperty& r);
inline void describe(Out& o, const TarnApiConfig& r);
inline void build(const Json& j, TarnApiConfig& r);
inline void describe(Out& o, const ServerConfig& r);
inline void build(const Json& j, ServerConfig& r);
inline void describe(Out& o, const Oauth2Config& r);
inline void build(const Json& j, Oauth2Config& r);
inline void describe(Out& o, const MoxConfig& r);
inline void build(const Json& j, MoxConfig& r);
inline void describe(Out& o, const TcpInfo& r);
inline void build(const Json& j, TcpInfo& r);
inline void describe(Out& o, const StatusInfo& r);
inline void build(const Json& j, StatusInfo& r);
inline void describe(Out& o, const TransmissionInfo& r);
inline void build(const Json& j, TransmissionInfo& r);
inline void describe(Out& o, const ProcessInfo& r);
inline void build(const Json& j, ProcessInfo& r);
inline void describe(Out& o, const ProcessEntry& r);
inline void build(const Json& j, ProcessEntry& r);
inline void describe(Out& o, const ProcessThread& r);
inline void build(const Json& j, ProcessThread& r);
inline void describe(Out& o, const ProcessMemory& r);
inline void build(const Json& j, ProcessMemory& r);
inline void describe(Out& o, const GlobalProtocolParameterSet& r);
inline void build(const Json& j, GlobalProtocolParameterSet& r);
inline void describe(Out& o, const GlobalProtocolParameter& r);
inline void build(const Json& j, GlobalProtocolParameter& r);
inline void describe(Out& o, const LoadDatabaseResult& r);
inline void build(const Json& j, LoadDatabaseResult& r);
inline void describe(Out& o, const InterfaceInformation& r);
inline void build(const Json& j, InterfaceInformation& r);
inline void describe(Out& o, const ResourceInformation& r);
inline void build(const Json& j, ResourceInformation& r);
inline void describe(Out& o, const InterfaceInformationItem& r);
inline void build(const Json& j, InterfaceInformationItem& r);
inline void describe(Out& o, const ScanInterfaceResult& r);
inline void build(const Json& j, ScanInterfaceResult& r);
inline void describe(Out& o, const DynInterfaceDetection& r);
inline void build(const Json& j, DynInterfaceDetection& r);
inline void describe(Out& o, const ModuleDyn& r);
inline void build(const Json& j, ModuleDyn& r);
inline void describe(Out& o, const DeviceInfo& r);
inline void build(const Json& j, DeviceInfo& r);
inline void describe(Out& o, const PhysicalLinksOnModule& r);
inline void build(const Json& j, PhysicalLinksOnModule& r);
inline void describe(Out& o, const PhysicalLink& r);
inline void build(const Json& j, PhysicalLink& r);
inline void describe(Out& o, const InterfaceConfiguration& r);
inline void build(const Json& j, InterfaceConfiguration& r);
inline void describe(Out& o, const InterfaceConfigurationEntry& r);
inline void build(const Json& j, InterfaceConfigurationEntry& r);
inline void describe(Out& o, const InterfaceProvider& r);
inline void build(const Json& j, InterfaceProvider& r);
inline void describe(Out& o, const DoIPParameter& r);
inline void build(const Json& j, DoIPParameter& r);
inline void describe(Out& o, const WLanSignalData& r);
inline void build(const Json& j, WLanSignalData& r);
inline void describe(Out& o, const SupportedInterface& r);
inline void build(const Json& j, SupportedInterface& r);
inline void describe(Out& o, const MonitoringItem& r);
inline void build(const Json& j, MonitoringItem& r);
inline void describe(Out& o, const MonitoringItemDetail& r);
inline void build(const Json& j, MonitoringItemDetail& r);
inline void describe(Out& o, const PduMonitoringItem& r);
inline void build(const Json& j, PduMonitoringItem& r);
inline void describe(Out& o, const PduMonitoringItemDetail& r);
inline void build(const Json& j, PduMonitoringItemDetail& r);
inline void describe(Out& o, const FileInfo& r);
inline void build(const Json& j, FileInfo& r);
inline void describe(Out& o, const DirectoryInfo& r);
inline void build(const Json& j, DirectoryInfo& r);
inline void describe(Out& o, const FileCopyResult& r);
inline void build(const Json& j, FileCopyResult& r);
inline void describe(Out& o, const DirectoryCopyResult& r);
inline void build(const Json& j, DirectoryCopyResult& r);
inline void describe(Out& o, const DirectoryCopyItem& r);
inline void build(const Json& j, DirectoryCopyItem& r);
inline void describe(Out& o, const PathCopyResult& r);
inline void build(const Json& j, PathCopyResult& r);
inline void describe(Out& o, const PathCopyItem& r);
inline void build(const Json& j, PathCopyItem& r);
inline void describe(Out& o, const FileReferenceResult& r);
inline void build(const Json& j, FileReferenceResult& r);
inline void describe(Out& o, const FileCopyConfig& r);
inline void build(const Json& j, FileCopyConfig& r);
inline void describe(Out& o, const DirectoryCopyConfig& r);
inline void build(const Json& j, DirectoryCopyConfig& r);
inline void describe(Out& o, const PathCopyConfig& r);
inline void build(const Json& j, PathCopyConfig& r);
inline void describe(Out& o, const UserInfo& r);
inline void build(const Json& j, UserInfo& r);
inline void describe(Out& o, const LogInOutConfig& r);
inline void build(const Json& j, LogInOutConfig& r);
inline void describe(Out& o, const TarnApiServerConfig& r);
inline void build(const Json& j, TarnApiServerConfig& r);
inline void describe(Out& o, const ServerSettings& r);
inline void build(const Json& j, ServerSettings& r);
inline void describe(Out& o, const FlashSessionInfo& r);
inline void build(const Json& j, FlashSessionInfo& r);
inline void describe(Out& o, const FlashSessionResult& r);
inline void build(const Json& j, FlashSessionResult& r);
inline void describe(Out& o, const FlashSessionsConfig& r);
inline void build(const Json& j, FlashSessionsConfig& r);
inline void describe(Out& o, const CodingStringResult& r);
inline void build(const Json& j, CodingStringResult& r);
inline void describe(Out& o, const CodingFileResult& r);
inline void build(const Json& j, CodingFileResult& r);
inline void describe(Out& o, const QuickTestResult& r);
inline void build(const Json& j, QuickTestResult& r);
inline void describe(Out& o, const EcuConfigurationResult& r);
inline void build(const Json& j, EcuConfigurationResult& r);
inline void describe(Out& o, const EcuOrderEntry& r);
inline void build(const Json& j, EcuOrderEntry& r);
inline void describe(Out& o, const VehicleUpdateConfig& r);
inline void build(const Json& j, VehicleUpdateConfig& r);
inline void describe(Out& o, const VehicleUpdateResult& r);
inline void build(const Json& j, VehicleUpdateResult& r);
inline void describe(Out& o, const UpdatePackageInfo& r);
inline void build(const Json& j, UpdatePackageInfo& r);
inline void describe(Out& o, const VehicleReportConfig& r);
inline void build(const Json& j, VehicleReportConfig& r);
inline void describe(Out& o, const VehicleData& r);
inline void build(const Json& j, VehicleData& r);
inline void describe(Out& o, const UploadReportConfiguration& r);
inline void build(const Json& j, UploadReportConfiguration& r);
inline void describe(Out& o, const VehicleInformation& r);
inline void build(const Json& j, VehicleInformation& r);

inline void describe(Out& o, const MvciServerError& r) {
    o.member("code", r.code);
    o.member("codeText", r.codeText);
    o.member("vendorCode", r.vendorCode);
    o.member("vendorCodeText", r.vendorCodeText);
    o.member("extraText", r.extraText);
    o.member("extraCode", r.extraCode);
    o.end();
}

inline void build(const Json& j, MvciServerError& r) {
    set(j.at("code"), r.code);
    set(j.at("codeText"), r.codeText);
    set(j.at("vendorCode"), r.vendorCode);
    set(j.at("vendorCodeText"), r.vendorCodeText);
    set(j.at("extraText"), r.extraText);
    set(j.at("extraCode"), r.extraCode);
}

inline void describe(Out& o, const NegativeResponse& r) {
    o.member("code", r.code);
    o.member("text", r.text);
    o.member("value1", r.value1);
    o.member("value2", r.value2);
    o.member("bytes", r.bytes, r.byteCount);
    o.member("byteCount", r.byteCount);
    o.end();
}

inline void build(const Json& j, NegativeResponse& r) {
    set(j.at("code"), r.code);
    set(j.at("text"), r.text);
    set(j.at("value1"), r.value1);
    set(j.at("value2"), r.value2);
    set(j.at("bytes"), r.bytes, r.byteCount);
}

inline void describe(Out& o, const KelError& r) {
    o.member("code", r.code);
    o.member("message", r.message);
    o.member("details", r.details);
    o.member("subCode", r.subCode);
    o.member("mvciError", r.mvciError);
    o.member("negativeResponse", r.negativeResponse);
    o.end();
}

inline void build(const Json& j, KelError& r) {
    set(j.at("code"), r.code);
    set(j.at("message"), r.message);
    set(j.at("details"), r.details);
    set(j.at("subCode"), r.subCode);
    set(j.at("mvciError"), r.mvciError);
    set(j.at("negativeResponse"), r.negativeResponse);
}

inline void describe(Out& o, const NamedItem& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.end();
}

inline void build(const Json& j, NamedItem& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
}

inline void describe(Out& o, const ParameterResult& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("value1", r.value1);
    o.member("children", r.children, r.childCount);
    o.member("childCount", r.childCount);
    o.member("text3", r.text3);
    o.member("error", r.error);
    o.member("text4", r.text4);
    o.member("value2", r.value2);
    o.member("data", r.data, r.dataLength);
    o.member("dataLength", r.dataLength);
    o.member("value3", r.value3);
    o.member("flag", r.flag);
    o.member("value4", r.value4);
    o.end();
}

inline void build(const Json& j, ParameterResult& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("value1"), r.value1);
    set(j.at("children"), r.children, r.childCount);
    set(j.at("text3"), r.text3);
    set(j.at("error"), r.error);
    set(j.at("text4"), r.text4);
    set(j.at("value2"), r.value2);
    set(j.at("data"), r.data, r.dataLength);
    set(j.at("value3"), r.value3);
    set(j.at("flag"), r.flag);
    set(j.at("value4"), r.value4);
}

inline void describe(Out& o, const ClearDtcResult& r) {
    o.member("status", r.status);
    o.member("target", r.target);
    o.member("error", r.error);
    o.end();
}

inline void build(const Json& j, ClearDtcResult& r) {
    set(j.at("status"), r.status);
    set(j.at("target"), r.target);
    set(j.at("error"), r.error);
}

inline void describe(Out& o, const DtcReadConfig& r) {
    o.member("value", r.value);
    o.member("flag1", r.flag1);
    o.member("flag2", r.flag2);
    o.member("flag3", r.flag3);
    o.end();
}

inline void build(const Json& j, DtcReadConfig& r) {
    set(j.at("value"), r.value);
    set(j.at("flag1"), r.flag1);
    set(j.at("flag2"), r.flag2);
    set(j.at("flag3"), r.flag3);
}

inline void describe(Out& o, const ReadDtcResult& r) {
    o.member("status", r.status);
    o.member("target", r.target);
    o.member("error", r.error);
    o.member("dtcs", r.dtcs, r.dtcCount);
    o.member("dtcCount", r.dtcCount);
    o.member("value", r.value);
    o.end();
}

inline void build(const Json& j, ReadDtcResult& r) {
    set(j.at("status"), r.status);
    set(j.at("target"), r.target);
    set(j.at("error"), r.error);
    set(j.at("dtcs"), r.dtcs, r.dtcCount);
    set(j.at("value"), r.value);
}

inline void describe(Out& o, const DtcResult& r) {
    o.member("code", r.code);
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("value1", r.value1);
    o.member("parameters1", r.parameters1, r.parameterCount1);
    o.member("parameterCount1", r.parameterCount1);
    o.member("parameters2", r.parameters2, r.parameterCount2);
    o.member("parameterCount2", r.parameterCount2);
    o.member("text3", r.text3);
    o.member("text4", r.text4);
    o.member("specialDataGroups", r.specialDataGroups, r.specialDataGroupCount);
    o.member("specialDataGroupCount", r.specialDataGroupCount);
    o.member("value2", r.value2);
    o.end();
}

inline void build(const Json& j, DtcResult& r) {
    set(j.at("code"), r.code);
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("value1"), r.value1);
    set(j.at("parameters1"), r.parameters1, r.parameterCount1);
    set(j.at("parameters2"), r.parameters2, r.parameterCount2);
    set(j.at("text3"), r.text3);
    set(j.at("text4"), r.text4);
    set(j.at("specialDataGroups"), r.specialDataGroups, r.specialDataGroupCount);
    set(j.at("value2"), r.value2);
}

inline void describe(Out& o, const SpecialDataGroup& r) {
    o.member("items", r.items, r.itemCount);
    o.member("itemCount", r.itemCount);
    o.end();
}

inline void build(const Json& j, SpecialDataGroup& r) { set(j.at("items"), r.items, r.itemCount); }

inline void describe(Out& o, const VariantIdentResult& r) {
    o.member("target", r.target);
    o.member("status", r.status);
    o.member("error", r.error);
    o.member("variant", r.variant);
    o.end();
}

inline void build(const Json& j, VariantIdentResult& r) {
    set(j.at("target"), r.target);
    set(j.at("status"), r.status);
    set(j.at("error"), r.error);
    set(j.at("variant"), r.variant);
}

inline void describe(Out& o, const ReadDataResult& r) {
    o.member("target", r.target);
    o.member("status", r.status);
    o.member("text", r.text);
    o.member("error", r.error);
    o.member("parameters", r.parameters, r.parameterCount);
    o.member("parameterCount", r.parameterCount);
    o.end();
}

inline void build(const Json& j, ReadDataResult& r) {
    set(j.at("target"), r.target);
    set(j.at("status"), r.status);
    set(j.at("text"), r.text);
    set(j.at("error"), r.error);
    set(j.at("parameters"), r.parameters, r.parameterCount);
}

inline void describe(Out& o, const Target& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.member("value1", r.value1);
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("items", r.items, r.itemCount);
    o.member("itemCount", r.itemCount);
    o.member("names", r.names, r.nameCount);
    o.member("nameCount", r.nameCount);
    o.member("text3", r.text3);
    o.member("text4", r.text4);
    o.member("value2", r.value2);
    o.member("text5", r.text5);
    o.end();
}

inline void build(const Json& j, Target& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
    set(j.at("value1"), r.value1);
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("items"), r.items, r.itemCount);
    set(j.at("names"), r.names, r.nameCount);
    set(j.at("text3"), r.text3);
    set(j.at("text4"), r.text4);
    set(j.at("value2"), r.value2);
    set(j.at("text5"), r.text5);
}

inline void describe(Out& o, const TargetStatus& r) {
    o.member("target", r.target);
    o.member("text", r.text);
    o.member("error", r.error);
    o.member("values", r.values);
    o.member("text2", r.text2);
    o.end();
}

inline void build(const Json& j, TargetStatus& r) {
    set(j.at("target"), r.target);
    set(j.at("text"), r.text);
    set(j.at("error"), r.error);
    set(j.at("values"), r.values);
    set(j.at("text2"), r.text2);
}

inline void describe(Out& o, const TargetFilter& r) {
    o.member("pattern", r.pattern);
    o.member("flag", r.flag);
    o.member("value", r.value);
    o.end();
}

inline void build(const Json& j, TargetFilter& r) {
    set(j.at("pattern"), r.pattern);
    set(j.at("flag"), r.flag);
    set(j.at("value"), r.value);
}

inline void describe(Out& o, const ParameterInput& r) {
    o.member("name", r.name);
    o.member("children", r.children, r.childCount);
    o.member("childCount", r.childCount);
    o.member("value", r.value);
    o.end();
}

inline void build(const Json& j, ParameterInput& r) {
    set(j.at("name"), r.name);
    set(j.at("children"), r.children, r.childCount);
    set(j.at("value"), r.value);
}

inline void describe(Out& o, const ServiceInput& r) {
    o.member("parameters", r.parameters, r.parameterCount);
    o.member("parameterCount", r.parameterCount);
    o.member("service", r.service);
    o.member("data", r.data, r.dataLength);
    o.member("dataLength", r.dataLength);
    o.member("value", r.value);
    o.end();
}

inline void build(const Json& j, ServiceInput& r) {
    set(j.at("parameters"), r.parameters, r.parameterCount);
    set(j.at("service"), r.service);
    set(j.at("data"), r.data, r.dataLength);
    set(j.at("value"), r.value);
}

inline void describe(Out& o, const ServiceResult& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.member("responses", r.responses, r.responseCount);
    o.member("responseCount", r.responseCount);
    o.member("status", r.status);
    o.member("text1", r.text1);
    o.member("error", r.error);
    o.member("request", r.request);
    o.member("value1", r.value1);
    o.end();
}

inline void build(const Json& j, ServiceResult& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
    set(j.at("responses"), r.responses, r.responseCount);
    set(j.at("status"), r.status);
    set(j.at("text1"), r.text1);
    set(j.at("error"), r.error);
    set(j.at("request"), r.request);
    set(j.at("value1"), r.value1);
}

inline void describe(Out& o, const ResponseResult& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.member("flag", r.flag);
    o.member("error", r.error);
    o.member("data", r.data, r.dataLength);
    o.member("dataLength", r.dataLength);
    o.member("value1", r.value1);
    o.member("value2", r.value2);
    o.member("parameters", r.parameters, r.parameterCount);
    o.member("parameterCount", r.parameterCount);
    o.end();
}

inline void build(const Json& j, ResponseResult& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
    set(j.at("flag"), r.flag);
    set(j.at("error"), r.error);
    set(j.at("data"), r.data, r.dataLength);
    set(j.at("value1"), r.value1);
    set(j.at("value2"), r.value2);
    set(j.at("parameters"), r.parameters, r.parameterCount);
}

inline void describe(Out& o, const RequestResult& r) {
    o.member("error", r.error);
    o.member("data", r.data, r.dataLength);
    o.member("dataLength", r.dataLength);
    o.member("value1", r.value1);
    o.member("value2", r.value2);
    o.member("parameters", r.parameters, r.parameterCount);
    o.member("parameterCount", r.parameterCount);
    o.end();
}

inline void build(const Json& j, RequestResult& r) {
    set(j.at("error"), r.error);
    set(j.at("data"), r.data, r.dataLength);
    set(j.at("value1"), r.value1);
    set(j.at("value2"), r.value2);
    set(j.at("parameters"), r.parameters, r.parameterCount);
}

inline void describe(Out& o, const UnlockResult& r) {
    o.member("value", r.value);
    o.member("services", r.services, r.serviceCount);
    o.member("serviceCount", r.serviceCount);
    o.end();
}

inline void build(const Json& j, UnlockResult& r) {
    set(j.at("value"), r.value);
    set(j.at("services"), r.services, r.serviceCount);
}

inline void describe(Out& o, const ServiceInfo& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.member("flag", r.flag);
    o.member("responses", r.responses, r.responseCount);
    o.member("responseCount", r.responseCount);
    o.member("parameters", r.parameters, r.parameterCount);
    o.member("parameterCount", r.parameterCount);
    o.member("text1", r.text1);
    o.member("items", r.items, r.itemCount);
    o.member("itemCount", r.itemCount);
    o.member("error", r.error);
    o.member("values", r.values);
    o.end();
}

inline void build(const Json& j, ServiceInfo& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
    set(j.at("flag"), r.flag);
    set(j.at("responses"), r.responses, r.responseCount);
    set(j.at("parameters"), r.parameters, r.parameterCount);
    set(j.at("text1"), r.text1);
    set(j.at("items"), r.items, r.itemCount);
    set(j.at("error"), r.error);
    set(j.at("values"), r.values);
}

inline void describe(Out& o, const ResponseInfo& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.member("status", r.status);
    o.member("parameters", r.parameters, r.parameterCount);
    o.member("parameterCount", r.parameterCount);
    o.end();
}

inline void build(const Json& j, ResponseInfo& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
    set(j.at("status"), r.status);
    set(j.at("parameters"), r.parameters, r.parameterCount);
}

inline void describe(Out& o, const ParameterInfo& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("text3", r.text3);
    o.member("value1", r.value1);
    o.member("text4", r.text4);
    o.member("children", r.children, r.childCount);
    o.member("childCount", r.childCount);
    o.member("text5", r.text5);
    o.member("names", r.names, r.nameCount);
    o.member("nameCount", r.nameCount);
    o.member("flag1", r.flag1);
    o.member("value2", r.value2);
    o.member("error", r.error);
    o.member("flag2", r.flag2);
    o.member("values", r.values);
    o.member("flag3", r.flag3);
    o.member("constraint1", r.constraint1);
    o.member("constraint2", r.constraint2);
    o.member("text6", r.text6);
    o.member("text7", r.text7);
    o.member("flag4", r.flag4);
    o.member("unit", r.unit);
    o.end();
}

inline void build(const Json& j, ParameterInfo& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("text3"), r.text3);
    set(j.at("value1"), r.value1);
    set(j.at("text4"), r.text4);
    set(j.at("children"), r.children, r.childCount);
    set(j.at("text5"), r.text5);
    set(j.at("names"), r.names, r.nameCount);
    set(j.at("flag1"), r.flag1);
    set(j.at("value2"), r.value2);
    set(j.at("error"), r.error);
    set(j.at("flag2"), r.flag2);
    set(j.at("values"), r.values);
    set(j.at("flag3"), r.flag3);
    set(j.at("constraint1"), r.constraint1);
    set(j.at("constraint2"), r.constraint2);
    set(j.at("text6"), r.text6);
    set(j.at("text7"), r.text7);
    set(j.at("flag4"), r.flag4);
    set(j.at("unit"), r.unit);
}

inline void describe(Out& o, const ConstraintInfo& r) {
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("flag", r.flag);
    o.member("scales", r.scales, r.scaleCount);
    o.member("scaleCount", r.scaleCount);
    o.end();
}

inline void build(const Json& j, ConstraintInfo& r) {
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("flag"), r.flag);
    set(j.at("scales"), r.scales, r.scaleCount);
}

inline void describe(Out& o, const ScaleConstraintInfo& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("flag", r.flag);
    o.member("value", r.value);
    o.end();
}

inline void build(const Json& j, ScaleConstraintInfo& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("flag"), r.flag);
    set(j.at("value"), r.value);
}

inline void describe(Out& o, const UnitInfo& r) {
    o.member("values", r.values);
    o.member("value1", r.value1);
    o.member("flag1", r.flag1);
    o.member("value2", r.value2);
    o.member("flag2", r.flag2);
    o.end();
}

inline void build(const Json& j, UnitInfo& r) {
    set(j.at("values"), r.values);
    set(j.at("value1"), r.value1);
    set(j.at("flag1"), r.flag1);
    set(j.at("value2"), r.value2);
    set(j.at("flag2"), r.flag2);
}

inline void describe(Out& o, const ParameterInfoConfig& r) {
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("value", r.value);
    o.member("text3", r.text3);
    o.member("text4", r.text4);
    o.end();
}

inline void build(const Json& j, ParameterInfoConfig& r) {
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("value"), r.value);
    set(j.at("text3"), r.text3);
    set(j.at("text4"), r.text4);
}

inline void describe(Out& o, const KelEvent& r) {
    o.member("name", r.name);
    o.member("kind", r.kind);
    o.member("code", r.code);
    o.member("text", r.text);
    o.member("error", r.error);
    o.member("detail", r.detail);
    o.end();
}

inline void build(const Json& j, KelEvent& r) {
    set(j.at("name"), r.name);
    set(j.at("kind"), r.kind);
    set(j.at("code"), r.code);
    set(j.at("text"), r.text);
    set(j.at("error"), r.error);
    set(j.at("detail"), r.detail);
}

inline void describe(Out& o, const EventReport& r) {
    o.member("events", r.events, r.eventCount);
    o.member("eventCount", r.eventCount);
    o.end();
}

inline void build(const Json& j, EventReport& r) { set(j.at("events"), r.events, r.eventCount); }

inline void describe(Out& o, const FileFilter& r) {
    o.member("pattern", r.pattern);
    o.member("flag", r.flag);
    o.member("value", r.value);
    o.end();
}

inline void build(const Json& j, FileFilter& r) {
    set(j.at("pattern"), r.pattern);
    set(j.at("flag"), r.flag);
    set(j.at("value"), r.value);
}

inline void describe(Out& o, const TargetConfig& r) {
    o.member("value", r.value);
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.end();
}

inline void build(const Json& j, TargetConfig& r) {
    set(j.at("value"), r.value);
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
}

inline void describe(Out& o, const ProjectConfig& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.member("filters1", r.filters1, r.filterCount1);
    o.member("filterCount1", r.filterCount1);
    o.member("value0", r.value0);
    o.member("targets", r.targets, r.targetCount);
    o.member("targetCount", r.targetCount);
    o.member("filters2", r.filters2, r.filterCount2);
    o.member("filterCount2", r.filterCount2);
    o.member("strings1", r.strings1, r.stringCount1);
    o.member("stringCount1", r.stringCount1);
    o.member("text1", r.text1);
    o.member("value1", r.value1);
    o.member("text2", r.text2);
    o.member("strings2", r.strings2, r.stringCount2);
    o.member("stringCount2", r.stringCount2);
    o.member("text3", r.text3);
    o.member("value2", r.value2);
    o.member("value3", r.value3);
    o.member("flags", r.flags);
    o.end();
}

inline void build(const Json& j, ProjectConfig& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
    set(j.at("filters1"), r.filters1, r.filterCount1);
    set(j.at("value0"), r.value0);
    set(j.at("targets"), r.targets, r.targetCount);
    set(j.at("filters2"), r.filters2, r.filterCount2);
    set(j.at("strings1"), r.strings1, r.stringCount1);
    set(j.at("text1"), r.text1);
    set(j.at("value1"), r.value1);
    set(j.at("text2"), r.text2);
    set(j.at("strings2"), r.strings2, r.stringCount2);
    set(j.at("text3"), r.text3);
    set(j.at("value2"), r.value2);
    set(j.at("value3"), r.value3);
    set(j.at("flags"), r.flags);
}

inline void describe(Out& o, const ProjectDetails& r) {
    o.member("dbFiles1", r.dbFiles1, r.dbFileCount1);
    o.member("dbFileCount1", r.dbFileCount1);
    o.member("dbFiles2", r.dbFiles2, r.dbFileCount2);
    o.member("dbFileCount2", r.dbFileCount2);
    o.member("text1", r.text1);
    o.member("value1", r.value1);
    o.member("text2", r.text2);
    o.member("value2", r.value2);
    o.member("users", r.users, r.userCount);
    o.member("userCount", r.userCount);
    o.end();
}

inline void build(const Json& j, ProjectDetails& r) {
    set(j.at("dbFiles1"), r.dbFiles1, r.dbFileCount1);
    set(j.at("dbFiles2"), r.dbFiles2, r.dbFileCount2);
    set(j.at("text1"), r.text1);
    set(j.at("value1"), r.value1);
    set(j.at("text2"), r.text2);
    set(j.at("value2"), r.value2);
    set(j.at("users"), r.users, r.userCount);
}

inline void describe(Out& o, const DbFileInfo& r) {
    o.member("name", r.name);
    o.member("path", r.path);
    o.member("size", r.size);
    o.member("loaded", r.loaded);
    o.member("error", r.error);
    o.end();
}

inline void build(const Json& j, DbFileInfo& r) {
    set(j.at("name"), r.name);
    set(j.at("path"), r.path);
    set(j.at("size"), r.size);
    set(j.at("loaded"), r.loaded);
    set(j.at("error"), r.error);
}

inline void describe(Out& o, const SystemInfo& r) {
    o.member("value1", r.value1);
    o.member("value2", r.value2);
    o.member("text1", r.text1);
    o.member("value3", r.value3);
    o.member("text2", r.text2);
    o.member("text3", r.text3);
    o.member("text4", r.text4);
    o.end();
}

inline void build(const Json& j, SystemInfo& r) {
    set(j.at("value1"), r.value1);
    set(j.at("value2"), r.value2);
    set(j.at("text1"), r.text1);
    set(j.at("value3"), r.value3);
    set(j.at("text2"), r.text2);
    set(j.at("text3"), r.text3);
    set(j.at("text4"), r.text4);
}

inline void describe(Out& o, const SystemProperty& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("value1", r.value1);
    o.member("children", r.children, r.childCount);
    o.member("childCount", r.childCount);
    o.member("text3", r.text3);
    o.member("error", r.error);
    o.member("text4", r.text4);
    o.member("value2", r.value2);
    o.member("data", r.data, r.dataLength);
    o.member("dataLength", r.dataLength);
    o.member("value3", r.value3);
    o.member("flag", r.flag);
    o.member("value4", r.value4);
    o.end();
}

inline void build(const Json& j, SystemProperty& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("value1"), r.value1);
    set(j.at("children"), r.children, r.childCount);
    set(j.at("text3"), r.text3);
    set(j.at("error"), r.error);
    set(j.at("text4"), r.text4);
    set(j.at("value2"), r.value2);
    set(j.at("data"), r.data, r.dataLength);
    set(j.at("value3"), r.value3);
    set(j.at("flag"), r.flag);
    set(j.at("value4"), r.value4);
}

inline void describe(Out& o, const TarnApiConfig& r) {
    o.member("value1", r.value1);
    o.member("flag1", r.flag1);
    o.member("flag2", r.flag2);
    o.member("value2", r.value2);
    o.member("server", r.server);
    o.member("value3", r.value3);
    o.member("value4", r.value4);
    o.member("value5", r.value5);
    o.member("flag3", r.flag3);
    o.member("value6", r.value6);
    o.member("value7", r.value7);
    o.member("oauth2Configs", r.oauth2Configs, r.oauth2ConfigCount);
    o.member("oauth2ConfigCount", r.oauth2ConfigCount);
    o.member("text", r.text);
    o.end();
}

inline void build(const Json& j, TarnApiConfig& r) {
    set(j.at("value1"), r.value1);
    set(j.at("flag1"), r.flag1);
    set(j.at("flag2"), r.flag2);
    set(j.at("value2"), r.value2);
    set(j.at("server"), r.server);
    set(j.at("value3"), r.value3);
    set(j.at("value4"), r.value4);
    set(j.at("value5"), r.value5);
    set(j.at("flag3"), r.flag3);
    set(j.at("value6"), r.value6);
    set(j.at("value7"), r.value7);
    set(j.at("oauth2Configs"), r.oauth2Configs, r.oauth2ConfigCount);
    set(j.at("text"), r.text);
}

inline void describe(Out& o, const ServerConfig& r) {
    o.member("address", r.address);
    o.member("port", r.port);
    o.member("enabled", r.enabled);
    o.member("name", r.name);
    o.end();
}

inline void build(const Json& j, ServerConfig& r) {
    set(j.at("address"), r.address);
    set(j.at("port"), r.port);
    set(j.at("enabled"), r.enabled);
    set(j.at("name"), r.name);
}

inline void describe(Out& o, const Oauth2Config& r) {
    o.member("issuer", r.issuer);
    o.member("clientId", r.clientId);
    o.member("scopes", r.scopes, r.scopeCount);
    o.member("scopeCount", r.scopeCount);
    o.member("redirectUrl", r.redirectUrl);
    o.end();
}

inline void build(const Json& j, Oauth2Config& r) {
    set(j.at("issuer"), r.issuer);
    set(j.at("clientId"), r.clientId);
    set(j.at("scopes"), r.scopes, r.scopeCount);
    set(j.at("redirectUrl"), r.redirectUrl);
}

inline void describe(Out& o, const MoxConfig& r) {
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("text3", r.text3);
    o.member("text4", r.text4);
    o.member("text5", r.text5);
    o.member("flag1", r.flag1);
    o.member("flag2", r.flag2);
    o.member("flag3", r.flag3);
    o.member("value", r.value);
    o.member("flag4", r.flag4);
    o.member("flag5", r.flag5);
    o.member("flag6", r.flag6);
    o.member("text6", r.text6);
    o.member("text7", r.text7);
    o.member("tcp", r.tcp);
    o.end();
}

inline void build(const Json& j, MoxConfig& r) {
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("text3"), r.text3);
    set(j.at("text4"), r.text4);
    set(j.at("text5"), r.text5);
    set(j.at("flag1"), r.flag1);
    set(j.at("flag2"), r.flag2);
    set(j.at("flag3"), r.flag3);
    set(j.at("value"), r.value);
    set(j.at("flag4"), r.flag4);
    set(j.at("flag5"), r.flag5);
    set(j.at("flag6"), r.flag6);
    set(j.at("text6"), r.text6);
    set(j.at("text7"), r.text7);
    set(j.at("tcp"), r.tcp);
}

inline void describe(Out& o, const TcpInfo& r) {
    o.member("value1", r.value1);
    o.member("value2", r.value2);
    o.member("value3", r.value3);
    o.member("value4", r.value4);
    o.member("value5", r.value5);
    o.member("value6", r.value6);
    o.end();
}

inline void build(const Json& j, TcpInfo& r) {
    set(j.at("value1"), r.value1);
    set(j.at("value2"), r.value2);
    set(j.at("value3"), r.value3);
    set(j.at("value4"), r.value4);
    set(j.at("value5"), r.value5);
    set(j.at("value6"), r.value6);
}

inline void describe(Out& o, const StatusInfo& r) {
    o.member("value1", r.value1);
    o.member("value2", r.value2);
    o.member("value3", r.value3);
    o.member("value4", r.value4);
    o.member("value5", r.value5);
    o.member("value6", r.value6);
    o.member("value7", r.value7);
    o.member("value8", r.value8);
    o.end();
}

inline void build(const Json& j, StatusInfo& r) {
    set(j.at("value1"), r.value1);
    set(j.at("value2"), r.value2);
    set(j.at("value3"), r.value3);
    set(j.at("value4"), r.value4);
    set(j.at("value5"), r.value5);
    set(j.at("value6"), r.value6);
    set(j.at("value7"), r.value7);
    set(j.at("value8"), r.value8);
}

inline void describe(Out& o, const TransmissionInfo& r) {
    o.member("value1", r.value1);
    o.member("value2", r.value2);
    o.member("value3", r.value3);
    o.member("value4", r.value4);
    o.end();
}

inline void build(const Json& j, TransmissionInfo& r) {
    set(j.at("value1"), r.value1);
    set(j.at("value2"), r.value2);
    set(j.at("value3"), r.value3);
    set(j.at("value4"), r.value4);
}

inline void describe(Out& o, const ProcessInfo& r) {
    o.member("processes", r.processes, r.processCount);
    o.member("processCount", r.processCount);
    o.member("flag1", r.flag1);
    o.member("flag2", r.flag2);
    o.member("text", r.text);
    o.end();
}

inline void build(const Json& j, ProcessInfo& r) {
    set(j.at("processes"), r.processes, r.processCount);
    set(j.at("flag1"), r.flag1);
    set(j.at("flag2"), r.flag2);
    set(j.at("text"), r.text);
}

inline void describe(Out& o, const ProcessEntry& r) {
    o.member("value", r.value);
    o.member("items1", r.items1, r.itemCount1);
    o.member("itemCount1", r.itemCount1);
    o.member("text", r.text);
    o.member("items2", r.items2, r.itemCount2);
    o.member("itemCount2", r.itemCount2);
    o.end();
}

inline void build(const Json& j, ProcessEntry& r) {
    set(j.at("value"), r.value);
    set(j.at("items1"), r.items1, r.itemCount1);
    set(j.at("text"), r.text);
    set(j.at("items2"), r.items2, r.itemCount2);
}

inline void describe(Out& o, const ProcessThread& r) {
    o.member("id", r.id);
    o.member("name", r.name);
    o.end();
}

inline void build(const Json& j, ProcessThread& r) {
    set(j.at("id"), r.id);
    set(j.at("name"), r.name);
}

inline void describe(Out& o, const ProcessMemory& r) {
    o.member("name", r.name);
    o.member("bytes", r.bytes);
    o.end();
}

inline void build(const Json& j, ProcessMemory& r) {
    set(j.at("name"), r.name);
    set(j.at("bytes"), r.bytes);
}

inline void describe(Out& o, const GlobalProtocolParameterSet& r) {
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("text3", r.text3);
    o.member("text4", r.text4);
    o.member("parameters", r.parameters, r.parameterCount);
    o.member("parameterCount", r.parameterCount);
    o.end();
}

inline void build(const Json& j, GlobalProtocolParameterSet& r) {
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("text3"), r.text3);
    set(j.at("text4"), r.text4);
    set(j.at("parameters"), r.parameters, r.parameterCount);
}

inline void describe(Out& o, const GlobalProtocolParameter& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.member("value", r.value);
    o.member("defaultValue", r.defaultValue);
    o.member("infos", r.infos, r.infoCount);
    o.member("infoCount", r.infoCount);
    o.member("choices", r.choices, r.choiceCount);
    o.member("choiceCount", r.choiceCount);
    o.member("error", r.error);
    o.member("constraints", r.constraints, r.constraintCount);
    o.member("constraintCount", r.constraintCount);
    o.member("tcp", r.tcp);
    o.member("value1", r.value1);
    o.member("flag", r.flag);
    o.end();
}

inline void build(const Json& j, GlobalProtocolParameter& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
    set(j.at("value"), r.value);
    set(j.at("defaultValue"), r.defaultValue);
    set(j.at("infos"), r.infos, r.infoCount);
    set(j.at("choices"), r.choices, r.choiceCount);
    set(j.at("error"), r.error);
    set(j.at("constraints"), r.constraints, r.constraintCount);
    set(j.at("tcp"), r.tcp);
    set(j.at("value1"), r.value1);
    set(j.at("flag"), r.flag);
}

inline void describe(Out& o, const LoadDatabaseResult& r) {
    o.member("text", r.text);
    o.member("flag", r.flag);
    o.member("error", r.error);
    o.end();
}

inline void build(const Json& j, LoadDatabaseResult& r) {
    set(j.at("text"), r.text);
    set(j.at("flag"), r.flag);
    set(j.at("error"), r.error);
}

inline void describe(Out& o, const InterfaceInformation& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.member("resources", r.resources, r.resourceCount);
    o.member("resourceCount", r.resourceCount);
    o.member("flag1", r.flag1);
    o.member("flag2", r.flag2);
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("flag3", r.flag3);
    o.member("items", r.items, r.itemCount);
    o.member("itemCount", r.itemCount);
    o.member("value", r.value);
    o.end();
}

inline void build(const Json& j, InterfaceInformation& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
    set(j.at("resources"), r.resources, r.resourceCount);
    set(j.at("flag1"), r.flag1);
    set(j.at("flag2"), r.flag2);
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("flag3"), r.flag3);
    set(j.at("items"), r.items, r.itemCount);
    set(j.at("value"), r.value);
}

inline void describe(Out& o, const ResourceInformation& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.member("id", r.id);
    o.member("pin", r.pin);
    o.member("inUse", r.inUse);
    o.end();
}

inline void build(const Json& j, ResourceInformation& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
    set(j.at("id"), r.id);
    set(j.at("pin"), r.pin);
    set(j.at("inUse"), r.inUse);
}

inline void describe(Out& o, const InterfaceInformationItem& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.end();
}

inline void build(const Json& j, InterfaceInformationItem& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
}

inline void describe(Out& o, const ScanInterfaceResult& r) {
    o.member("interfaceInfo", r.interfaceInfo);
    o.member("error", r.error);
    o.end();
}

inline void build(const Json& j, ScanInterfaceResult& r) {
    set(j.at("interfaceInfo"), r.interfaceInfo);
    set(j.at("error"), r.error);
}

inline void describe(Out& o, const DynInterfaceDetection& r) {
    o.member("namePattern", r.namePattern);
    o.member("kind", r.kind);
    o.member("onlyFree", r.onlyFree);
    o.end();
}

inline void build(const Json& j, DynInterfaceDetection& r) {
    set(j.at("namePattern"), r.namePattern);
    set(j.at("kind"), r.kind);
    set(j.at("onlyFree"), r.onlyFree);
}

inline void describe(Out& o, const ModuleDyn& r) {
    o.member("name", r.name);
    o.member("longName", r.longName);
    o.member("vendor", r.vendor);
    o.member("kind", r.kind);
    o.member("address", r.address);
    o.member("vendorModule", r.vendorModule);
    o.member("flag1", r.flag1);
    o.member("serialNumber", r.serialNumber);
    o.member("firmware", r.firmware);
    o.member("network", r.network);
    o.member("resources", r.resources, r.resourceCount);
    o.member("resourceCount", r.resourceCount);
    o.member("port", r.port);
    o.member("flag2", r.flag2);
    o.member("handle", r.handle);
    o.end();
}

inline void build(const Json& j, ModuleDyn& r) {
    set(j.at("name"), r.name);
    set(j.at("longName"), r.longName);
    set(j.at("vendor"), r.vendor);
    set(j.at("kind"), r.kind);
    set(j.at("address"), r.address);
    set(j.at("vendorModule"), r.vendorModule);
    set(j.at("flag1"), r.flag1);
    set(j.at("serialNumber"), r.serialNumber);
    set(j.at("firmware"), r.firmware);
    set(j.at("network"), r.network);
    set(j.at("resources"), r.resources, r.resourceCount);
    set(j.at("port"), r.port);
    set(j.at("flag2"), r.flag2);
    set(j.at("handle"), r.handle);
}

inline void describe(Out& o, const DeviceInfo& r) {
    o.member("text1", r.text1);
    o.member("value1", r.value1);
    o.member("value2", r.value2);
    o.member("text2", r.text2);
    o.member("text3", r.text3);
    o.member("value3", r.value3);
    o.member("text4", r.text4);
    o.member("text5", r.text5);
    o.member("value4", r.value4);
    o.member("value5", r.value5);
    o.member("text6", r.text6);
    o.member("protocols", r.protocols, r.protocolCount);
    o.member("protocolCount", r.protocolCount);
    o.member("text7", r.text7);
    o.member("modules", r.modules, r.moduleCount);
    o.member("moduleCount", r.moduleCount);
    o.member("text8", r.text8);
    o.member("flag", r.flag);
    o.member("handle", r.handle);
    o.member("value6", r.value6);
    o.member("value8", r.value8);
    o.member("value9", r.value9);
    o.member("value10", r.value10);
    o.end();
}

inline void build(const Json& j, DeviceInfo& r) {
    set(j.at("text1"), r.text1);
    set(j.at("value1"), r.value1);
    set(j.at("value2"), r.value2);
    set(j.at("text2"), r.text2);
    set(j.at("text3"), r.text3);
    set(j.at("value3"), r.value3);
    set(j.at("text4"), r.text4);
    set(j.at("text5"), r.text5);
    set(j.at("value4"), r.value4);
    set(j.at("value5"), r.value5);
    set(j.at("text6"), r.text6);
    set(j.at("protocols"), r.protocols, r.protocolCount);
    set(j.at("text7"), r.text7);
    set(j.at("modules"), r.modules, r.moduleCount);
    set(j.at("text8"), r.text8);
    set(j.at("flag"), r.flag);
    set(j.at("handle"), r.handle);
    set(j.at("value6"), r.value6);
    set(j.at("value8"), r.value8);
    set(j.at("value9"), r.value9);
    set(j.at("value10"), r.value10);
}

inline void describe(Out& o, const PhysicalLinksOnModule& r) {
    o.member("module", r.module);
    o.member("links", r.links, r.linkCount);
    o.member("linkCount", r.linkCount);
    o.end();
}

inline void build(const Json& j, PhysicalLinksOnModule& r) {
    set(j.at("module"), r.module);
    set(j.at("links"), r.links, r.linkCount);
}

inline void describe(Out& o, const PhysicalLink& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.member("baudrate", r.baudrate);
    o.member("enabled", r.enabled);
    o.end();
}

inline void build(const Json& j, PhysicalLink& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
    set(j.at("baudrate"), r.baudrate);
    set(j.at("enabled"), r.enabled);
}

inline void describe(Out& o, const InterfaceConfiguration& r) {
    o.member("entries", r.entries, r.entryCount);
    o.member("entryCount", r.entryCount);
    o.end();
}

inline void build(const Json& j, InterfaceConfiguration& r) {
    set(j.at("entries"), r.entries, r.entryCount);
}

inline void describe(Out& o, const InterfaceConfigurationEntry& r) {
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("text3", r.text3);
    o.member("text4", r.text4);
    o.member("text5", r.text5);
    o.member("value", r.value);
    o.member("flag", r.flag);
    o.member("items", r.items, r.itemCount);
    o.member("itemCount", r.itemCount);
    o.end();
}

inline void build(const Json& j, InterfaceConfigurationEntry& r) {
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("text3"), r.text3);
    set(j.at("text4"), r.text4);
    set(j.at("text5"), r.text5);
    set(j.at("value"), r.value);
    set(j.at("flag"), r.flag);
    set(j.at("items"), r.items, r.itemCount);
}

inline void describe(Out& o, const InterfaceProvider& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.member("text", r.text);
    o.member("value", r.value);
    o.member("flag", r.flag);
    o.end();
}

inline void build(const Json& j, InterfaceProvider& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
    set(j.at("text"), r.text);
    set(j.at("value"), r.value);
    set(j.at("flag"), r.flag);
}

inline void describe(Out& o, const DoIPParameter& r) {
    o.member("value1", r.value1);
    o.member("value2", r.value2);
    o.member("text", r.text);
    o.member("value3", r.value3);
    o.member("strings", r.strings, r.stringCount);
    o.member("stringCount", r.stringCount);
    o.end();
}

inline void build(const Json& j, DoIPParameter& r) {
    set(j.at("value1"), r.value1);
    set(j.at("value2"), r.value2);
    set(j.at("text"), r.text);
    set(j.at("value3"), r.value3);
    set(j.at("strings"), r.strings, r.stringCount);
}

inline void describe(Out& o, const WLanSignalData& r) {
    o.member("value1", r.value1);
    o.member("value2", r.value2);
    o.member("value3", r.value3);
    o.member("value4", r.value4);
    o.member("value5", r.value5);
    o.member("value6", r.value6);
    o.member("value7", r.value7);
    o.member("value8", r.value8);
    o.member("value9", r.value9);
    o.member("value10", r.value10);
    o.member("value11", r.value11);
    o.member("text", r.text);
    o.end();
}

inline void build(const Json& j, WLanSignalData& r) {
    set(j.at("value1"), r.value1);
    set(j.at("value2"), r.value2);
    set(j.at("value3"), r.value3);
    set(j.at("value4"), r.value4);
    set(j.at("value5"), r.value5);
    set(j.at("value6"), r.value6);
    set(j.at("value7"), r.value7);
    set(j.at("value8"), r.value8);
    set(j.at("value9"), r.value9);
    set(j.at("value10"), r.value10);
    set(j.at("value11"), r.value11);
    set(j.at("text"), r.text);
}

inline void describe(Out& o, const SupportedInterface& r) {
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("names", r.names, r.nameCount);
    o.member("nameCount", r.nameCount);
    o.member("value", r.value);
    o.member("text3", r.text3);
    o.end();
}

inline void build(const Json& j, SupportedInterface& r) {
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("names"), r.names, r.nameCount);
    set(j.at("value"), r.value);
    set(j.at("text3"), r.text3);
}

inline void describe(Out& o, const MonitoringItem& r) {
    o.member("text1", r.text1);
    o.member("data", r.data, r.dataLength);
    o.member("dataLength", r.dataLength);
    o.member("value1", r.value1);
    o.member("value2", r.value2);
    o.member("flag1", r.flag1);
    o.member("flag2", r.flag2);
    o.member("flag3", r.flag3);
    o.member("value3", r.value3);
    o.member("text2", r.text2);
    o.member("value4", r.value4);
    o.member("detail", r.detail);
    o.end();
}

inline void build(const Json& j, MonitoringItem& r) {
    set(j.at("text1"), r.text1);
    set(j.at("data"), r.data, r.dataLength);
    set(j.at("value1"), r.value1);
    set(j.at("value2"), r.value2);
    set(j.at("flag1"), r.flag1);
    set(j.at("flag2"), r.flag2);
    set(j.at("flag3"), r.flag3);
    set(j.at("value3"), r.value3);
    set(j.at("text2"), r.text2);
    set(j.at("value4"), r.value4);
    set(j.at("detail"), r.detail);
}

inline void describe(Out& o, const MonitoringItemDetail& r) {
    o.member("response", r.response, r.responseLength);
    o.member("responseLength", r.responseLength);
    o.member("text", r.text);
    o.end();
}

inline void build(const Json& j, MonitoringItemDetail& r) {
    set(j.at("response"), r.response, r.responseLength);
    set(j.at("text"), r.text);
}

inline void describe(Out& o, const PduMonitoringItem& r) {
    o.member("value1", r.value1);
    o.member("data", r.data, r.dataLength);
    o.member("dataLength", r.dataLength);
    o.member("detail", r.detail);
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("value2", r.value2);
    o.member("text3", r.text3);
    o.end();
}

inline void build(const Json& j, PduMonitoringItem& r) {
    set(j.at("value1"), r.value1);
    set(j.at("data"), r.data, r.dataLength);
    set(j.at("detail"), r.detail);
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("value2"), r.value2);
    set(j.at("text3"), r.text3);
}

inline void describe(Out& o, const PduMonitoringItemDetail& r) {
    o.member("sequence", r.sequence);
    o.member("exchange", r.exchange);
    o.end();
}

inline void build(const Json& j, PduMonitoringItemDetail& r) {
    set(j.at("sequence"), r.sequence);
    set(j.at("exchange"), r.exchange);
}

inline void describe(Out& o, const FileInfo& r) {
    o.member("name", r.name);
    o.member("error", r.error);
    o.member("flag", r.flag);
    o.member("value1", r.value1);
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("value2", r.value2);
    o.member("value3", r.value3);
    o.end();
}

inline void build(const Json& j, FileInfo& r) {
    set(j.at("name"), r.name);
    set(j.at("error"), r.error);
    set(j.at("flag"), r.flag);
    set(j.at("value1"), r.value1);
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("value2"), r.value2);
    set(j.at("value3"), r.value3);
}

inline void describe(Out& o, const DirectoryInfo& r) {
    o.member("name", r.name);
    o.member("error", r.error);
    o.member("flag", r.flag);
    o.member("value1", r.value1);
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("files", r.files, r.fileCount);
    o.member("fileCount", r.fileCount);
    o.member("directories", r.directories, r.directoryCount);
    o.member("directoryCount", r.directoryCount);
    o.member("flag2", r.flag2);
    o.end();
}

inline void build(const Json& j, DirectoryInfo& r) {
    set(j.at("name"), r.name);
    set(j.at("error"), r.error);
    set(j.at("flag"), r.flag);
    set(j.at("value1"), r.value1);
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("files"), r.files, r.fileCount);
    set(j.at("directories"), r.directories, r.directoryCount);
    set(j.at("flag2"), r.flag2);
}

inline void describe(Out& o, const FileCopyResult& r) {
    o.member("value1", r.value1);
    o.member("text", r.text);
    o.member("error", r.error);
    o.member("file", r.file);
    o.member("value2", r.value2);
    o.end();
}

inline void build(const Json& j, FileCopyResult& r) {
    set(j.at("value1"), r.value1);
    set(j.at("text"), r.text);
    set(j.at("error"), r.error);
    set(j.at("file"), r.file);
    set(j.at("value2"), r.value2);
}

inline void describe(Out& o, const DirectoryCopyResult& r) {
    o.member("value1", r.value1);
    o.member("text", r.text);
    o.member("error", r.error);
    o.member("directory", r.directory);
    o.end();
}

inline void build(const Json& j, DirectoryCopyResult& r) {
    set(j.at("value1"), r.value1);
    set(j.at("text"), r.text);
    set(j.at("error"), r.error);
    set(j.at("directory"), r.directory);
}

inline void describe(Out& o, const DirectoryCopyItem& r) {
    o.member("source", r.source);
    o.member("target", r.target);
    o.member("files", r.files);
    o.member("directories", r.directories);
    o.member("bytes", r.bytes);
    o.member("failures", r.failures, r.failureCount);
    o.member("failureCount", r.failureCount);
    o.end();
}

inline void build(const Json& j, DirectoryCopyItem& r) {
    set(j.at("source"), r.source);
    set(j.at("target"), r.target);
    set(j.at("files"), r.files);
    set(j.at("directories"), r.directories);
    set(j.at("bytes"), r.bytes);
    set(j.at("failures"), r.failures, r.failureCount);
}

inline void describe(Out& o, const PathCopyResult& r) {
    o.member("value1", r.value1);
    o.member("error", r.error);
    o.member("value2", r.value2);
    o.member("item", r.item);
    o.end();
}

inline void build(const Json& j, PathCopyResult& r) {
    set(j.at("value1"), r.value1);
    set(j.at("error"), r.error);
    set(j.at("value2"), r.value2);
    set(j.at("item"), r.item);
}

inline void describe(Out& o, const PathCopyItem& r) {
    o.member("source", r.source);
    o.member("target", r.target);
    o.member("size", r.size);
    o.end();
}

inline void build(const Json& j, PathCopyItem& r) {
    set(j.at("source"), r.source);
    set(j.at("target"), r.target);
    set(j.at("size"), r.size);
}

inline void describe(Out& o, const FileReferenceResult& r) {
    o.member("references", r.references, r.referenceCount);
    o.member("referenceCount", r.referenceCount);
    o.member("error", r.error);
    o.end();
}

inline void build(const Json& j, FileReferenceResult& r) {
    set(j.at("references"), r.references, r.referenceCount);
    set(j.at("error"), r.error);
}

inline void describe(Out& o, const FileCopyConfig& r) {
    o.member("files", r.files, r.fileCount);
    o.member("fileCount", r.fileCount);
    o.member("target", r.target);
    o.member("overwrite", r.overwrite);
    o.end();
}

inline void build(const Json& j, FileCopyConfig& r) {
    set(j.at("files"), r.files, r.fileCount);
    set(j.at("target"), r.target);
    set(j.at("overwrite"), r.overwrite);
}

inline void describe(Out& o, const DirectoryCopyConfig& r) {
    o.member("directories", r.directories, r.directoryCount);
    o.member("directoryCount", r.directoryCount);
    o.member("target", r.target);
    o.member("overwrite", r.overwrite);
    o.member("recursive", r.recursive);
    o.member("pattern", r.pattern);
    o.end();
}

inline void build(const Json& j, DirectoryCopyConfig& r) {
    set(j.at("directories"), r.directories, r.directoryCount);
    set(j.at("target"), r.target);
    set(j.at("overwrite"), r.overwrite);
    set(j.at("recursive"), r.recursive);
    set(j.at("pattern"), r.pattern);
}

inline void describe(Out& o, const PathCopyConfig& r) {
    o.member("source", r.source);
    o.member("target", r.target);
    o.member("overwrite", r.overwrite);
    o.end();
}

inline void build(const Json& j, PathCopyConfig& r) {
    set(j.at("source"), r.source);
    set(j.at("target"), r.target);
    set(j.at("overwrite"), r.overwrite);
}

inline void describe(Out& o, const UserInfo& r) {
    o.member("name", r.name);
    o.member("text", r.text);
    o.member("value", r.value);
    o.end();
}

inline void build(const Json& j, UserInfo& r) {
    set(j.at("name"), r.name);
    set(j.at("text"), r.text);
    set(j.at("value"), r.value);
}

inline void describe(Out& o, const LogInOutConfig& r) {
    o.member("user", r.user);
    o.member("password", r.password);
    o.end();
}

inline void build(const Json& j, LogInOutConfig& r) {
    set(j.at("user"), r.user);
    set(j.at("password"), r.password);
}

inline void describe(Out& o, const TarnApiServerConfig& r) {
    o.member("users", r.users, r.userCount);
    o.member("userCount", r.userCount);
    o.member("flag", r.flag);
    o.member("value1", r.value1);
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("filters", r.filters, r.filterCount);
    o.member("filterCount", r.filterCount);
    o.member("text3", r.text3);
    o.member("text4", r.text4);
    o.member("users2", r.users2, r.userCount2);
    o.member("userCount2", r.userCount2);
    o.member("value2", r.value2);
    o.end();
}

inline void build(const Json& j, TarnApiServerConfig& r) {
    set(j.at("users"), r.users, r.userCount);
    set(j.at("flag"), r.flag);
    set(j.at("value1"), r.value1);
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("filters"), r.filters, r.filterCount);
    set(j.at("text3"), r.text3);
    set(j.at("text4"), r.text4);
    set(j.at("users2"), r.users2, r.userCount2);
    set(j.at("value2"), r.value2);
}

inline void describe(Out& o, const ServerSettings& r) {
    o.member("flag", r.flag);
    o.member("value1", r.value1);
    o.member("value2", r.value2);
    o.member("value3", r.value3);
    o.end();
}

inline void build(const Json& j, ServerSettings& r) {
    set(j.at("flag"), r.flag);
    set(j.at("value1"), r.value1);
    set(j.at("value2"), r.value2);
    set(j.at("value3"), r.value3);
}

inline void describe(Out& o, const FlashSessionInfo& r) {
    o.member("name", r.name);
    o.member("target", r.target);
    o.member("description", r.description);
    o.member("version", r.version);
    o.member("size", r.size);
    o.member("duration", r.duration);
    o.member("level", r.level);
    o.end();
}

inline void build(const Json& j, FlashSessionInfo& r) {
    set(j.at("name"), r.name);
    set(j.at("target"), r.target);
    set(j.at("description"), r.description);
    set(j.at("version"), r.version);
    set(j.at("size"), r.size);
    set(j.at("duration"), r.duration);
    set(j.at("level"), r.level);
}

inline void describe(Out& o, const FlashSessionResult& r) {
    o.member("name", r.name);
    o.member("target", r.target);
    o.member("status", r.status);
    o.member("versionBefore", r.versionBefore);
    o.member("versionAfter", r.versionAfter);
    o.member("size", r.size);
    o.member("transferred", r.transferred);
    o.member("progress", r.progress);
    o.member("duration", r.duration);
    o.member("error", r.error);
    o.end();
}

inline void build(const Json& j, FlashSessionResult& r) {
    set(j.at("name"), r.name);
    set(j.at("target"), r.target);
    set(j.at("status"), r.status);
    set(j.at("versionBefore"), r.versionBefore);
    set(j.at("versionAfter"), r.versionAfter);
    set(j.at("size"), r.size);
    set(j.at("transferred"), r.transferred);
    set(j.at("progress"), r.progress);
    set(j.at("duration"), r.duration);
    set(j.at("error"), r.error);
}

inline void describe(Out& o, const FlashSessionsConfig& r) {
    o.member("target", r.target);
    o.member("sessions", r.sessions, r.sessionCount);
    o.member("sessionCount", r.sessionCount);
    o.member("blockLength", r.blockLength);
    o.member("stopOnError", r.stopOnError);
    o.end();
}

inline void build(const Json& j, FlashSessionsConfig& r) {
    set(j.at("target"), r.target);
    set(j.at("sessions"), r.sessions, r.sessionCount);
    set(j.at("blockLength"), r.blockLength);
    set(j.at("stopOnError"), r.stopOnError);
}

inline void describe(Out& o, const CodingStringResult& r) {
    o.member("target", r.target);
    o.member("status", r.status);
    o.member("identifier", r.identifier);
    o.member("coding", r.coding);
    o.member("data", r.data, r.dataLength);
    o.member("dataLength", r.dataLength);
    o.member("error", r.error);
    o.end();
}

inline void build(const Json& j, CodingStringResult& r) {
    set(j.at("target"), r.target);
    set(j.at("status"), r.status);
    set(j.at("identifier"), r.identifier);
    set(j.at("coding"), r.coding);
    set(j.at("data"), r.data, r.dataLength);
    set(j.at("error"), r.error);
}

inline void describe(Out& o, const CodingFileResult& r) {
    o.member("target", r.target);
    o.member("status", r.status);
    o.member("written", r.written);
    o.member("coding", r.coding);
    o.member("data", r.data, r.dataLength);
    o.member("dataLength", r.dataLength);
    o.member("verified", r.verified);
    o.member("error", r.error);
    o.end();
}

inline void build(const Json& j, CodingFileResult& r) {
    set(j.at("target"), r.target);
    set(j.at("status"), r.status);
    set(j.at("written"), r.written);
    set(j.at("coding"), r.coding);
    set(j.at("data"), r.data, r.dataLength);
    set(j.at("verified"), r.verified);
    set(j.at("error"), r.error);
}

inline void describe(Out& o, const QuickTestResult& r) {
    o.member("target", r.target);
    o.member("status", r.status);
    o.member("variant", r.variant);
    o.member("identified", r.identified);
    o.member("dtcs", r.dtcs, r.dtcCount);
    o.member("dtcCount", r.dtcCount);
    o.member("error", r.error);
    o.end();
}

inline void build(const Json& j, QuickTestResult& r) {
    set(j.at("target"), r.target);
    set(j.at("status"), r.status);
    set(j.at("variant"), r.variant);
    set(j.at("identified"), r.identified);
    set(j.at("dtcs"), r.dtcs, r.dtcCount);
    set(j.at("error"), r.error);
}

inline void describe(Out& o, const EcuConfigurationResult& r) {
    o.member("target", r.target);
    o.member("configuration", r.configuration);
    o.member("status", r.status);
    o.member("written", r.written);
    o.member("error", r.error);
    o.end();
}

inline void build(const Json& j, EcuConfigurationResult& r) {
    set(j.at("target"), r.target);
    set(j.at("configuration"), r.configuration);
    set(j.at("status"), r.status);
    set(j.at("written"), r.written);
    set(j.at("error"), r.error);
}

inline void describe(Out& o, const EcuOrderEntry& r) {
    o.member("target", r.target);
    o.member("bus", r.bus);
    o.member("address", r.address);
    o.member("gateway", r.gateway);
    o.member("optional", r.optional);
    o.end();
}

inline void build(const Json& j, EcuOrderEntry& r) {
    set(j.at("target"), r.target);
    set(j.at("bus"), r.bus);
    set(j.at("address"), r.address);
    set(j.at("gateway"), r.gateway);
    set(j.at("optional"), r.optional);
}

inline void describe(Out& o, const VehicleUpdateConfig& r) {
    o.member("targets", r.targets, r.targetCount);
    o.member("targetCount", r.targetCount);
    o.member("packages", r.packages, r.packageCount);
    o.member("packageCount", r.packageCount);
    o.member("stopOnError", r.stopOnError);
    o.member("force", r.force);
    o.member("blockLength", r.blockLength);
    o.end();
}

inline void build(const Json& j, VehicleUpdateConfig& r) {
    set(j.at("targets"), r.targets, r.targetCount);
    set(j.at("packages"), r.packages, r.packageCount);
    set(j.at("stopOnError"), r.stopOnError);
    set(j.at("force"), r.force);
    set(j.at("blockLength"), r.blockLength);
}

inline void describe(Out& o, const VehicleUpdateResult& r) {
    o.member("target", r.target);
    o.member("status", r.status);
    o.member("package", r.package);
    o.member("versionBefore", r.versionBefore);
    o.member("versionAfter", r.versionAfter);
    o.member("position", r.position);
    o.member("progress", r.progress);
    o.member("overallProgress", r.overallProgress);
    o.member("duration", r.duration);
    o.member("error", r.error);
    o.end();
}

inline void build(const Json& j, VehicleUpdateResult& r) {
    set(j.at("target"), r.target);
    set(j.at("status"), r.status);
    set(j.at("package"), r.package);
    set(j.at("versionBefore"), r.versionBefore);
    set(j.at("versionAfter"), r.versionAfter);
    set(j.at("position"), r.position);
    set(j.at("progress"), r.progress);
    set(j.at("overallProgress"), r.overallProgress);
    set(j.at("duration"), r.duration);
    set(j.at("error"), r.error);
}

inline void describe(Out& o, const UpdatePackageInfo& r) {
    o.member("name", r.name);
    o.member("version", r.version);
    o.member("description", r.description);
    o.member("kind", r.kind);
    o.member("targets", r.targets, r.targetCount);
    o.member("targetCount", r.targetCount);
    o.member("size", r.size);
    o.member("checksum", r.checksum);
    o.member("location", r.location);
    o.member("state", r.state);
    o.end();
}

inline void build(const Json& j, UpdatePackageInfo& r) {
    set(j.at("name"), r.name);
    set(j.at("version"), r.version);
    set(j.at("description"), r.description);
    set(j.at("kind"), r.kind);
    set(j.at("targets"), r.targets, r.targetCount);
    set(j.at("size"), r.size);
    set(j.at("checksum"), r.checksum);
    set(j.at("location"), r.location);
    set(j.at("state"), r.state);
}

inline void describe(Out& o, const VehicleReportConfig& r) {
    o.member("name", r.name);
    o.member("title", r.title);
    o.member("comment", r.comment);
    o.member("targets", r.targets, r.targetCount);
    o.member("targetCount", r.targetCount);
    o.member("identification", r.identification);
    o.member("dtcs", r.dtcs);
    o.end();
}

inline void build(const Json& j, VehicleReportConfig& r) {
    set(j.at("name"), r.name);
    set(j.at("title"), r.title);
    set(j.at("comment"), r.comment);
    set(j.at("targets"), r.targets, r.targetCount);
    set(j.at("identification"), r.identification);
    set(j.at("dtcs"), r.dtcs);
}

inline void describe(Out& o, const VehicleData& r) {
    o.member("vin", r.vin);
    o.member("model", r.model);
    o.member("target", r.target);
    o.member("variant", r.variant);
    o.member("softwareVersion", r.softwareVersion);
    o.member("bus", r.bus);
    o.member("address", r.address);
    o.member("status", r.status);
    o.member("dtcCount", r.dtcCount);
    o.end();
}

inline void build(const Json& j, VehicleData& r) {
    set(j.at("vin"), r.vin);
    set(j.at("model"), r.model);
    set(j.at("target"), r.target);
    set(j.at("variant"), r.variant);
    set(j.at("softwareVersion"), r.softwareVersion);
    set(j.at("bus"), r.bus);
    set(j.at("address"), r.address);
    set(j.at("status"), r.status);
    set(j.at("dtcCount"), r.dtcCount);
}

inline void describe(Out& o, const UploadReportConfiguration& r) {
    o.member("reportFile", r.reportFile);
    o.member("folder", r.folder);
    o.member("name", r.name);
    o.member("vin", r.vin);
    o.member("user", r.user);
    o.member("comment", r.comment);
    o.member("overwrite", r.overwrite);
    o.member("withTwin", r.withTwin);
    o.end();
}

inline void build(const Json& j, UploadReportConfiguration& r) {
    set(j.at("reportFile"), r.reportFile);
    set(j.at("folder"), r.folder);
    set(j.at("name"), r.name);
    set(j.at("vin"), r.vin);
    set(j.at("user"), r.user);
    set(j.at("comment"), r.comment);
    set(j.at("overwrite"), r.overwrite);
    set(j.at("withTwin"), r.withTwin);
}

inline void describe(Out& o, const VehicleInformation& r) {
    o.member("vin", r.vin);
    o.member("model", r.model);
    o.member("modelYear", r.modelYear);
    o.member("mileage", r.mileage);
    o.member("licensePlate", r.licensePlate);
    o.member("equipment", r.equipment, r.equipmentCount);
    o.member("equipmentCount", r.equipmentCount);
    o.end();
}

inline void build(const Json& j, VehicleInformation& r) {
    set(j.at("vin"), r.vin);
    set(j.at("model"), r.model);
    set(j.at("modelYear"), r.modelYear);
    set(j.at("mileage"), r.mileage);
    set(j.at("licensePlate"), r.licensePlate);
    set(j.at("equipment"), r.equipment, r.equipmentCount);
}

// The scripted engine failures and what each must give.
inline std::span<const Failure> scriptedFailures() {
    static const Failure list[] = {
        {"plain", -559038737, 2147483647, L"Z\U000000FCndung aus \U0001F697", L"", false, 0, L"", 0,
         L"", L"", 0,
         "{\"code\":-559038737,\"message\":\"Z\303\274ndung aus \360\237\232\227\",\"details\":\""
         "\",\"subCode\":2147483647,\"mvciError\":null,\"negativeResponse\":null}",
         "0001efbeadde110000005ac3bc6e64756e672061757320f09f9a9700000000ffffff7f0000",
         "01efbeadde110000005ac3bc6e64756e672061757320f09f9a9700000000ffffff7f0000"},
        {"mvci", -2147483648, -1, L"", L"D\U000000E9tails \"q\" \\ \U0001D11E", true, 2147483647,
         L"MVCI \U000026A1", -2147483648, L"", L"Extra \U000000E4\U0001F527", 305419896,
         "{\"code\":-2147483648,\"message\":\"\",\"details\":\"D\303\251tails \\\"q\\\" \\\\ \360"
         "\235\204\236\",\"subCode\":-1,\"mvciError\":{\"code\":2147483647,\"codeText\":\"MVCI "
         "\342\232\241\",\"vendorCode\":-2147483648,\"vendorCodeText\":\"\",\"extraText\":\"Extra "
         "\303\244\360\237\224\247\",\"extraCode\":305419896},\"negativeResponse\":null}",
         "000100000080000000001300000044c3a97461696c7320227122205c20f09d849effffffff01ffffff7f0800"
         "00004d56434920e29aa100000080000000000c000000457874726120c3a4f09f94a77856341200",
         "0100000080000000001300000044c3a97461696c7320227122205c20f09d849effffffff01ffffff7f080000"
         "004d56434920e29aa100000080000000000c000000457874726120c3a4f09f94a77856341200"},
    };
    return list;
}

// Every dispatcher number the description names.
inline std::span<const int32_t> namedNumbers() {
    static const int32_t list[] = {
        2,   3,   4,   5,   6,   7,   8,   9,   10,  11,  12,  13,  14,  15,  16,  17,  19,  21,
        22,  23,  25,  27,  29,  30,  32,  34,  36,  37,  38,  39,  40,  41,  42,  43,  44,  45,
        46,  47,  48,  49,  50,  51,  52,  53,  54,  55,  56,  57,  58,  59,  60,  61,  62,  63,
        64,  65,  66,  67,  68,  69,  70,  71,  73,  74,  75,  77,  78,  79,  80,  81,  82,  83,
        85,  86,  88,  89,  90,  91,  92,  93,  96,  97,  99,  100, 101, 102, 103, 104, 105, 106,
        107, 108, 109, 110, 111, 112, 113, 114, 115, 116, 117, 118, 119, 120, 121, 123, 125, 126,
        127, 128, 129, 130, 131, 132, 133, 134, 135, 136, 137, 138, 139, 140, 141, 142, 143, 144,
        145, 146, 147, 148, 149, 150, 151, 152, 153, 154, 155, 156, 157, 158, 159, 160, 161, 162,
        164, 165, 166, 169, 174, 175, 177, 178, 179, 180, 181, 182, 183, 184, 185, 186, 187, 188,
        189, 190, 191, 192, 193, 194, 195, 196, 198, 199, 201, 202, 203, 204, 206, 208, 209, 210,
        211, 213, 215, 216, 217, 218, 219, 220, 223, 224, 225, 226, 227, 228, 231, 232, 233, 234,
        235, 236, 237, 238, 244, 245, 246, 247, 248, 249, 250, 251, 253, 254, 255, 256, 257, 259,
        260, 261, 262, 264, 265, 267, 268, 280};
    return list;
}

} // namespace kel_conformance
