// Generated from the interface description by tools/generate.py. Do not edit.
// Engine record classes. Each is polymorphic and handed around by std::shared_ptr;
// records with the NamedItem base inherit it virtually.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Varno::Kel_cpp {

class MvciServerError;
class NegativeResponse;
class KelError;
class NamedItem;
class ParameterResult;
class ClearDtcResult;
class DtcReadConfig;
class ReadDtcResult;
class SupportedDtcResult;
class DtcResult;
class SpecialDataGroup;
class SpecialData;
class VariantIdentResult;
class ReadDataResult;
class Target;
class TargetStatus;
class TargetFilter;
class ParameterInput;
class ServiceInput;
class ServiceResult;
class ResponseResult;
class RequestResult;
class UnlockResult;
class ServiceInfo;
class ResponseInfo;
class ParameterInfo;
class ConstraintInfo;
class ScaleConstraintInfo;
class UnitInfo;
class ParameterInfoConfig;
class KelEvent;
class EventReport;
class FileFilter;
class FilterPattern;
class TargetConfig;
class ProjectConfig;
class ProjectDetails;
class DbFileInfo;
class SystemInfo;
class SystemProperty;
class TarnApiConfig;
class ServerConfig;
class Oauth2Config;
class MoxConfig;
class TcpInfo;
class StatusInfo;
class TransmissionInfo;
class ProcessInfo;
class ProcessEntry;
class ProcessThread;
class ProcessMemory;
class GlobalProtocolParameterSet;
class GlobalProtocolParameter;
class LoadDatabaseResult;
class InterfaceInformation;
class ResourceInformation;
class InterfaceInformationItem;
class ScanInterfaceResult;
class DynInterfaceDetection;
class ModuleDyn;
class DeviceInfo;
class PhysicalLinksOnModule;
class PhysicalLink;
class InterfaceConfiguration;
class InterfaceConfigurationEntry;
class InterfaceProvider;
class InterfaceProviderDyn;
class DoIPParameter;
class WLanSignalData;
class SupportedInterface;
class MonitoringItem;
class MonitoringItemDetail;
class PduMonitoringItem;
class PduMonitoringItemDetail;
class FileSystemEntry;
class FileInfo;
class DirectoryInfo;
class FileCopyResult;
class DirectoryCopyResult;
class DirectoryCopyItem;
class PathCopyResult;
class PathCopyItem;
class FileReferenceResult;
class FileCopyConfig;
class DirectoryCopyConfig;
class PathCopyConfig;
class UserInfo;
class LogInOutConfig;
class TarnApiServerConfig;
class ServerSettings;
class FlashSessionInfo;
class FlashSessionResult;
class FlashSessionsConfig;
class CodingStringResult;
class CodingFileResult;
class QuickTestResult;
class EcuConfigurationResult;
class EcuOrderEntry;
class VehicleUpdateConfig;
class VehicleUpdateResult;
class UpdatePackageInfo;
class VehicleReportConfig;
class VehicleData;
class UploadReportConfiguration;
class VehicleInformation;

class MvciServerError {
public:
    virtual ~MvciServerError() = default;
    int32_t code = 0;
    std::wstring codeText;
    int32_t vendorCode = 0;
    std::wstring vendorCodeText;
    std::wstring extraText;
    int32_t extraCode = 0;
};

class NegativeResponse {
public:
    virtual ~NegativeResponse() = default;
    int32_t code = 0;
    std::wstring text;
    uint64_t value1 = 0;
    uint64_t value2 = 0;
    std::vector<uint8_t> bytes;
};

class KelError {
public:
    virtual ~KelError() = default;
    int32_t code = 0;
    std::wstring message;
    std::wstring details;
    int32_t subCode = 0;
    std::shared_ptr<MvciServerError> mvciError;
    std::shared_ptr<NegativeResponse> negativeResponse;
};

class NamedItem {
public:
    virtual ~NamedItem() = default;
    std::wstring itemText1;
    std::wstring itemText2;
    std::wstring itemText3;
    std::wstring itemText4;
};

class ParameterResult : public virtual NamedItem {
public:
    ~ParameterResult() override = default;
    std::wstring text1;
    std::wstring text2;
    int32_t value1 = 0;
    std::vector<std::shared_ptr<ParameterResult>> children;
    std::wstring text3;
    std::shared_ptr<KelError> error;
    std::wstring text4;
    int32_t value2 = 0;
    std::vector<uint8_t> data;
    uint32_t value3 = 0;
    uint8_t flag = 0;
    int32_t value4 = 0;
};

class ClearDtcResult {
public:
    virtual ~ClearDtcResult() = default;
    int32_t status = 0;
    std::wstring target;
    std::shared_ptr<KelError> error;
};

class DtcReadConfig {
public:
    virtual ~DtcReadConfig() = default;
    int32_t value = 0;
    uint8_t flag1 = 0;
    uint8_t flag2 = 0;
    uint8_t flag3 = 0;
};

class ReadDtcResult {
public:
    virtual ~ReadDtcResult() = default;
    int32_t status = 0;
    std::wstring target;
    std::shared_ptr<KelError> error;
    std::vector<std::shared_ptr<DtcResult>> dtcs;
    int32_t value = 0;
};

class SupportedDtcResult {
public:
    virtual ~SupportedDtcResult() = default;
    int32_t status = 0;
    std::wstring target;
    std::shared_ptr<KelError> error;
    std::vector<std::shared_ptr<DtcResult>> dtcs;
};

class DtcResult {
public:
    virtual ~DtcResult() = default;
    int32_t code = 0;
    std::wstring text1;
    std::wstring text2;
    int32_t value1 = 0;
    std::vector<std::shared_ptr<ParameterResult>> parameters1;
    std::vector<std::shared_ptr<ParameterResult>> parameters2;
    std::wstring text3;
    std::wstring text4;
    std::vector<std::shared_ptr<SpecialDataGroup>> specialDataGroups;
    int32_t value2 = 0;
};

class SpecialDataGroup {
public:
    virtual ~SpecialDataGroup() = default;
    std::vector<std::shared_ptr<SpecialData>> items;
};

class SpecialData : public virtual NamedItem {
public:
    ~SpecialData() override = default;
};

class VariantIdentResult {
public:
    virtual ~VariantIdentResult() = default;
    std::wstring target;
    int32_t status = 0;
    std::shared_ptr<KelError> error;
    std::wstring variant;
};

class ReadDataResult {
public:
    virtual ~ReadDataResult() = default;
    std::wstring target;
    int32_t status = 0;
    std::wstring text;
    std::shared_ptr<KelError> error;
    std::vector<std::shared_ptr<ParameterResult>> parameters;
};

class Target : public virtual NamedItem {
public:
    ~Target() override = default;
    int32_t value1 = 0;
    std::wstring text1;
    std::wstring text2;
    std::vector<std::shared_ptr<NamedItem>> items;
    std::vector<std::wstring> names;
    std::wstring text3;
    std::wstring text4;
    int32_t value2 = 0;
    std::wstring text5;
};

class TargetStatus {
public:
    virtual ~TargetStatus() = default;
    std::wstring target;
    std::wstring text;
    std::shared_ptr<KelError> error;
    std::array<uint32_t, 5> values{};
    std::wstring text2;
};

class TargetFilter {
public:
    virtual ~TargetFilter() = default;
    std::wstring pattern;
    uint8_t flag = 0;
    int32_t value = 0;
};

class ParameterInput {
public:
    virtual ~ParameterInput() = default;
    std::wstring name;
    std::vector<std::shared_ptr<ParameterInput>> children;
    std::wstring value;
};

class ServiceInput {
public:
    virtual ~ServiceInput() = default;
    std::vector<std::shared_ptr<ParameterInput>> parameters;
    std::wstring service;
    std::vector<uint8_t> data;
    uint64_t value = 0;
};

class ServiceResult : public virtual NamedItem {
public:
    ~ServiceResult() override = default;
    std::vector<std::shared_ptr<ResponseResult>> responses;
    int32_t status = 0;
    std::wstring text1;
    std::shared_ptr<KelError> error;
    std::shared_ptr<RequestResult> request;
    int32_t value1 = 0;
};

class ResponseResult : public virtual NamedItem {
public:
    ~ResponseResult() override = default;
    bool flag = false;
    std::shared_ptr<KelError> error;
    std::vector<uint8_t> data;
    uint64_t value1 = 0;
    uint64_t value2 = 0;
    std::vector<std::shared_ptr<ParameterResult>> parameters;
};

class RequestResult {
public:
    virtual ~RequestResult() = default;
    std::shared_ptr<KelError> error;
    std::vector<uint8_t> data;
    uint64_t value1 = 0;
    uint64_t value2 = 0;
    std::vector<std::shared_ptr<ParameterResult>> parameters;
};

class UnlockResult {
public:
    virtual ~UnlockResult() = default;
    uint64_t value = 0;
    std::vector<std::shared_ptr<ServiceResult>> services;
};

class ServiceInfo : public virtual NamedItem {
public:
    ~ServiceInfo() override = default;
    bool flag = false;
    std::vector<std::shared_ptr<ResponseInfo>> responses;
    std::vector<std::shared_ptr<ParameterInfo>> parameters;
    std::wstring text1;
    std::vector<std::shared_ptr<NamedItem>> items;
    std::shared_ptr<KelError> error;
    std::array<uint32_t, 5> values{};
};

class ResponseInfo : public virtual NamedItem {
public:
    ~ResponseInfo() override = default;
    int32_t status = 0;
    std::vector<std::shared_ptr<ParameterInfo>> parameters;
};

class ParameterInfo : public virtual NamedItem {
public:
    ~ParameterInfo() override = default;
    std::wstring text1;
    std::wstring text2;
    std::wstring text3;
    int32_t value1 = 0;
    std::wstring text4;
    std::vector<std::shared_ptr<ParameterInfo>> children;
    std::wstring text5;
    std::vector<std::wstring> names;
    bool flag1 = false;
    int32_t value2 = 0;
    std::shared_ptr<KelError> error;
    bool flag2 = false;
    std::array<uint32_t, 8> values{};
    bool flag3 = false;
    std::shared_ptr<ConstraintInfo> constraint1;
    std::shared_ptr<ConstraintInfo> constraint2;
    std::wstring text6;
    std::wstring text7;
    bool flag4 = false;
    std::shared_ptr<UnitInfo> unit;
};

class ConstraintInfo {
public:
    virtual ~ConstraintInfo() = default;
    std::wstring text1;
    std::wstring text2;
    bool flag = false;
    std::vector<std::shared_ptr<ScaleConstraintInfo>> scales;
};

class ScaleConstraintInfo : public virtual NamedItem {
public:
    ~ScaleConstraintInfo() override = default;
    std::wstring text1;
    std::wstring text2;
    bool flag = false;
    int32_t value = 0;
};

class UnitInfo {
public:
    virtual ~UnitInfo() = default;
    std::array<uint32_t, 7> values{};
    uint64_t value1 = 0;
    bool flag1 = false;
    uint64_t value2 = 0;
    bool flag2 = false;
};

class ParameterInfoConfig {
public:
    virtual ~ParameterInfoConfig() = default;
    std::wstring text1;
    std::wstring text2;
    int32_t value = 0;
    std::wstring text3;
    std::wstring text4;
};

class KelEvent {
public:
    virtual ~KelEvent() = default;
    std::wstring name;
    int32_t kind = 0;
    int32_t code = 0;
    std::wstring text;
    std::shared_ptr<KelError> error;
    std::wstring detail;
};

class EventReport {
public:
    virtual ~EventReport() = default;
    std::vector<std::shared_ptr<KelEvent>> events;
};

class FileFilter {
public:
    virtual ~FileFilter() = default;
    std::wstring pattern;
    bool flag = false;
    uint32_t value = 0;
};

class FilterPattern {
public:
    virtual ~FilterPattern() = default;
    std::wstring pattern;
    bool flag = false;
};

class TargetConfig {
public:
    virtual ~TargetConfig() = default;
    int32_t value = 0;
    std::wstring text1;
    std::wstring text2;
};

class ProjectConfig : public virtual NamedItem {
public:
    ~ProjectConfig() override = default;
    std::vector<std::shared_ptr<FileFilter>> filters1;
    int32_t value0 = 0;
    std::vector<std::shared_ptr<TargetConfig>> targets;
    std::vector<std::shared_ptr<FilterPattern>> filters2;
    std::vector<std::wstring> strings1;
    std::wstring text1;
    uint32_t value1 = 0;
    std::wstring text2;
    std::vector<std::wstring> strings2;
    std::wstring text3;
    uint32_t value2 = 0;
    uint32_t value3 = 0;
    std::array<bool, 4> flags{};
};

class ProjectDetails {
public:
    virtual ~ProjectDetails() = default;
    std::vector<std::shared_ptr<DbFileInfo>> dbFiles1;
    std::vector<std::shared_ptr<DbFileInfo>> dbFiles2;
    std::wstring text1;
    uint32_t value1 = 0;
    std::wstring text2;
    uint32_t value2 = 0;
    std::vector<std::shared_ptr<UserInfo>> users;
};

class DbFileInfo {
public:
    virtual ~DbFileInfo() = default;
    std::wstring name;
    std::wstring path;
    uint64_t size = 0;
    bool loaded = false;
    std::shared_ptr<KelError> error;
};

class SystemInfo {
public:
    virtual ~SystemInfo() = default;
    uint32_t value1 = 0;
    uint32_t value2 = 0;
    std::wstring text1;
    uint32_t value3 = 0;
    std::wstring text2;
    std::wstring text3;
    std::wstring text4;
};

class SystemProperty : public virtual NamedItem {
public:
    ~SystemProperty() override = default;
    std::wstring text1;
    std::wstring text2;
    uint32_t value1 = 0;
    std::vector<std::shared_ptr<SystemProperty>> children;
    std::wstring text3;
    std::shared_ptr<KelError> error;
    std::wstring text4;
    uint32_t value2 = 0;
    std::vector<uint8_t> data;
    uint32_t value3 = 0;
    bool flag = false;
    uint32_t value4 = 0;
};

class TarnApiConfig {
public:
    virtual ~TarnApiConfig() = default;
    int32_t value1 = 0;
    bool flag1 = false;
    bool flag2 = false;
    int32_t value2 = 0;
    std::shared_ptr<ServerConfig> server;
    uint32_t value3 = 0;
    uint32_t value4 = 0;
    uint32_t value5 = 0;
    bool flag3 = false;
    uint32_t value6 = 0;
    uint16_t value7 = 0;
    std::vector<std::shared_ptr<Oauth2Config>> oauth2Configs;
    std::wstring text;
};

class ServerConfig {
public:
    virtual ~ServerConfig() = default;
    std::wstring address;
    uint32_t port = 0;
    bool enabled = false;
    std::wstring name;
};

class Oauth2Config {
public:
    virtual ~Oauth2Config() = default;
    std::wstring issuer;
    std::wstring clientId;
    std::vector<std::wstring> scopes;
    std::wstring redirectUrl;
};

class MoxConfig {
public:
    virtual ~MoxConfig() = default;
    std::wstring text1;
    std::wstring text2;
    std::wstring text3;
    std::wstring text4;
    std::wstring text5;
    bool flag1 = false;
    bool flag2 = false;
    bool flag3 = false;
    uint32_t value = 0;
    bool flag4 = false;
    bool flag5 = false;
    bool flag6 = false;
    std::wstring text6;
    std::wstring text7;
    std::shared_ptr<TcpInfo> tcp;
};

class TcpInfo {
public:
    virtual ~TcpInfo() = default;
    uint8_t value1 = 0;
    uint8_t value2 = 0;
    uint8_t value3 = 0;
    uint32_t value4 = 0;
    uint32_t value5 = 0;
    uint32_t value6 = 0;
};

class StatusInfo {
public:
    virtual ~StatusInfo() = default;
    uint64_t value1 = 0;
    uint64_t value2 = 0;
    uint64_t value3 = 0;
    uint64_t value4 = 0;
    uint64_t value5 = 0;
    uint32_t value6 = 0;
    uint64_t value7 = 0;
    uint64_t value8 = 0;
};

class TransmissionInfo {
public:
    virtual ~TransmissionInfo() = default;
    uint64_t value1 = 0;
    uint64_t value2 = 0;
    uint64_t value3 = 0;
    uint64_t value4 = 0;
};

class ProcessInfo {
public:
    virtual ~ProcessInfo() = default;
    std::vector<std::shared_ptr<ProcessEntry>> processes;
    bool flag1 = false;
    bool flag2 = false;
    std::wstring text;
};

class ProcessEntry {
public:
    virtual ~ProcessEntry() = default;
    uint32_t value = 0;
    std::vector<std::shared_ptr<ProcessThread>> items1;
    std::wstring text;
    std::vector<std::shared_ptr<ProcessMemory>> items2;
};

class ProcessThread {
public:
    virtual ~ProcessThread() = default;
    uint32_t id = 0;
    std::wstring name;
};

class ProcessMemory {
public:
    virtual ~ProcessMemory() = default;
    std::wstring name;
    uint64_t bytes = 0;
};

class GlobalProtocolParameterSet {
public:
    virtual ~GlobalProtocolParameterSet() = default;
    std::wstring text1;
    std::wstring text2;
    std::wstring text3;
    std::wstring text4;
    std::vector<std::shared_ptr<GlobalProtocolParameter>> parameters;
};

class GlobalProtocolParameter : public virtual NamedItem {
public:
    ~GlobalProtocolParameter() override = default;
    std::wstring value;
    std::wstring defaultValue;
    std::vector<std::shared_ptr<ParameterInfo>> infos;
    std::vector<std::wstring> choices;
    std::shared_ptr<KelError> error;
    std::vector<std::shared_ptr<ConstraintInfo>> constraints;
    std::shared_ptr<TcpInfo> tcp;
    uint32_t value1 = 0;
    bool flag = false;
};

class LoadDatabaseResult {
public:
    virtual ~LoadDatabaseResult() = default;
    std::wstring text;
    bool flag = false;
    std::shared_ptr<KelError> error;
};

class InterfaceInformation : public virtual NamedItem {
public:
    ~InterfaceInformation() override = default;
    std::vector<std::shared_ptr<ResourceInformation>> resources;
    bool flag1 = false;
    bool flag2 = false;
    std::wstring text1;
    std::wstring text2;
    bool flag3 = false;
    std::vector<std::shared_ptr<InterfaceInformationItem>> items;
    uint64_t value = 0;
};

class ResourceInformation : public virtual NamedItem {
public:
    ~ResourceInformation() override = default;
    uint32_t id = 0;
    uint32_t pin = 0;
    bool inUse = false;
};

class InterfaceInformationItem : public virtual NamedItem {
public:
    ~InterfaceInformationItem() override = default;
};

class ScanInterfaceResult {
public:
    virtual ~ScanInterfaceResult() = default;
    std::shared_ptr<InterfaceInformation> interfaceInfo;
    std::shared_ptr<KelError> error;
};

class DynInterfaceDetection {
public:
    virtual ~DynInterfaceDetection() = default;
    std::wstring namePattern;
    std::wstring kind;
    bool onlyFree = false;
};

class ModuleDyn {
public:
    virtual ~ModuleDyn() = default;
    std::wstring name;
    std::wstring longName;
    std::wstring vendor;
    std::wstring kind;
    std::wstring address;
    std::shared_ptr<InterfaceInformationItem> vendorModule;
    bool flag1 = false;
    std::wstring serialNumber;
    std::wstring firmware;
    std::wstring network;
    std::vector<std::shared_ptr<ResourceInformation>> resources;
    uint32_t port = 0;
    bool flag2 = false;
    uint64_t handle = 0;
};

class DeviceInfo {
public:
    virtual ~DeviceInfo() = default;
    std::wstring text1;
    uint32_t value1 = 0;
    uint32_t value2 = 0;
    std::wstring text2;
    std::wstring text3;
    uint32_t value3 = 0;
    std::wstring text4;
    std::wstring text5;
    uint32_t value4 = 0;
    uint32_t value5 = 0;
    std::wstring text6;
    std::vector<std::wstring> protocols;
    std::wstring text7;
    std::vector<std::wstring> modules;
    std::wstring text8;
    bool flag = false;
    uint64_t handle = 0;
    uint32_t value6 = 0;
    uint64_t value8 = 0;
    uint64_t value9 = 0;
    uint64_t value10 = 0;
};

class PhysicalLinksOnModule {
public:
    virtual ~PhysicalLinksOnModule() = default;
    std::wstring module;
    std::vector<std::shared_ptr<PhysicalLink>> links;
};

class PhysicalLink : public virtual NamedItem {
public:
    ~PhysicalLink() override = default;
    uint32_t baudrate = 0;
    bool enabled = false;
};

class InterfaceConfiguration {
public:
    virtual ~InterfaceConfiguration() = default;
    std::vector<std::shared_ptr<InterfaceConfigurationEntry>> entries;
};

class InterfaceConfigurationEntry {
public:
    virtual ~InterfaceConfigurationEntry() = default;
    std::wstring text1;
    std::wstring text2;
    std::wstring text3;
    std::wstring text4;
    std::wstring text5;
    uint32_t value = 0;
    bool flag = false;
    std::vector<std::shared_ptr<ResourceInformation>> items;
};

class InterfaceProvider : public virtual NamedItem {
public:
    ~InterfaceProvider() override = default;
    std::wstring text;
    uint32_t value = 0;
    bool flag = false;
};

class InterfaceProviderDyn : public virtual NamedItem {
public:
    ~InterfaceProviderDyn() override = default;
    std::wstring text;
    uint32_t value = 0;
    bool flag = false;
};

class DoIPParameter {
public:
    virtual ~DoIPParameter() = default;
    uint32_t value1 = 0;
    uint32_t value2 = 0;
    std::wstring text;
    uint32_t value3 = 0;
    std::vector<std::wstring> strings;
};

class WLanSignalData {
public:
    virtual ~WLanSignalData() = default;
    uint32_t value1 = 0;
    uint32_t value2 = 0;
    uint32_t value3 = 0;
    uint32_t value4 = 0;
    uint32_t value5 = 0;
    uint64_t value6 = 0;
    uint32_t value7 = 0;
    uint32_t value8 = 0;
    uint32_t value9 = 0;
    uint32_t value10 = 0;
    uint16_t value11 = 0;
    std::wstring text;
};

class SupportedInterface {
public:
    virtual ~SupportedInterface() = default;
    std::wstring text1;
    std::wstring text2;
    std::vector<std::wstring> names;
    uint32_t value = 0;
    std::wstring text3;
};

class MonitoringItem {
public:
    virtual ~MonitoringItem() = default;
    std::wstring text1;
    std::vector<uint8_t> data;
    uint64_t value1 = 0;
    uint32_t value2 = 0;
    bool flag1 = false;
    bool flag2 = false;
    bool flag3 = false;
    uint32_t value3 = 0;
    std::wstring text2;
    uint32_t value4 = 0;
    std::shared_ptr<MonitoringItemDetail> detail;
};

class MonitoringItemDetail {
public:
    virtual ~MonitoringItemDetail() = default;
    std::vector<uint8_t> response;
    std::wstring text;
};

class PduMonitoringItem {
public:
    virtual ~PduMonitoringItem() = default;
    uint32_t value1 = 0;
    std::vector<uint8_t> data;
    std::shared_ptr<PduMonitoringItemDetail> detail;
    std::wstring text1;
    std::wstring text2;
    uint64_t value2 = 0;
    std::wstring text3;
};

class PduMonitoringItemDetail {
public:
    virtual ~PduMonitoringItemDetail() = default;
    uint64_t sequence = 0;
    uint64_t exchange = 0;
};

class FileSystemEntry {
public:
    virtual ~FileSystemEntry() = default;
    std::wstring name;
    std::shared_ptr<KelError> error;
    bool flag = false;
    uint32_t value1 = 0;
    std::wstring text1;
    std::wstring text2;
};

class FileInfo : public virtual FileSystemEntry {
public:
    ~FileInfo() override = default;
    uint64_t value2 = 0;
    uint64_t value3 = 0;
};

class DirectoryInfo : public virtual FileSystemEntry {
public:
    ~DirectoryInfo() override = default;
    std::vector<std::shared_ptr<FileInfo>> files;
    std::vector<std::shared_ptr<DirectoryInfo>> directories;
    bool flag2 = false;
};

class FileCopyResult {
public:
    virtual ~FileCopyResult() = default;
    int32_t value1 = 0;
    std::wstring text;
    std::shared_ptr<KelError> error;
    std::shared_ptr<FileInfo> file;
    int32_t value2 = 0;
};

class DirectoryCopyResult {
public:
    virtual ~DirectoryCopyResult() = default;
    int32_t value1 = 0;
    std::wstring text;
    std::shared_ptr<KelError> error;
    std::shared_ptr<DirectoryCopyItem> directory;
};

class DirectoryCopyItem {
public:
    virtual ~DirectoryCopyItem() = default;
    std::wstring source;
    std::wstring target;
    uint32_t files = 0;
    uint32_t directories = 0;
    uint64_t bytes = 0;
    std::vector<std::shared_ptr<FileCopyResult>> failures;
};

class PathCopyResult {
public:
    virtual ~PathCopyResult() = default;
    int32_t value1 = 0;
    std::shared_ptr<KelError> error;
    int32_t value2 = 0;
    std::shared_ptr<PathCopyItem> item;
};

class PathCopyItem {
public:
    virtual ~PathCopyItem() = default;
    std::wstring source;
    std::wstring target;
    uint64_t size = 0;
};

class FileReferenceResult {
public:
    virtual ~FileReferenceResult() = default;
    std::vector<std::wstring> references;
    std::shared_ptr<KelError> error;
};

class FileCopyConfig {
public:
    virtual ~FileCopyConfig() = default;
    std::vector<std::wstring> files;
    std::wstring target;
    bool overwrite = false;
};

class DirectoryCopyConfig {
public:
    virtual ~DirectoryCopyConfig() = default;
    std::vector<std::wstring> directories;
    std::wstring target;
    bool overwrite = false;
    bool recursive = false;
    std::wstring pattern;
};

class PathCopyConfig {
public:
    virtual ~PathCopyConfig() = default;
    std::wstring source;
    std::wstring target;
    bool overwrite = false;
};

class UserInfo {
public:
    virtual ~UserInfo() = default;
    std::wstring name;
    std::wstring text;
    uint32_t value = 0;
};

class LogInOutConfig {
public:
    virtual ~LogInOutConfig() = default;
    std::wstring user;
    std::wstring password;
};

class TarnApiServerConfig {
public:
    virtual ~TarnApiServerConfig() = default;
    std::vector<std::shared_ptr<UserInfo>> users;
    bool flag = false;
    uint32_t value1 = 0;
    std::wstring text1;
    std::wstring text2;
    std::vector<std::shared_ptr<FileFilter>> filters;
    std::wstring text3;
    std::wstring text4;
    std::vector<std::shared_ptr<UserInfo>> users2;
    uint16_t value2 = 0;
};

class ServerSettings {
public:
    virtual ~ServerSettings() = default;
    bool flag = false;
    uint32_t value1 = 0;
    uint32_t value2 = 0;
    uint32_t value3 = 0;
};

class FlashSessionInfo {
public:
    virtual ~FlashSessionInfo() = default;
    std::wstring name;
    std::wstring target;
    std::wstring description;
    std::wstring version;
    uint64_t size = 0;
    uint32_t duration = 0;
    uint32_t level = 0;
};

class FlashSessionResult {
public:
    virtual ~FlashSessionResult() = default;
    std::wstring name;
    std::wstring target;
    int32_t status = 0;
    std::wstring versionBefore;
    std::wstring versionAfter;
    uint64_t size = 0;
    uint64_t transferred = 0;
    uint32_t progress = 0;
    uint32_t duration = 0;
    std::shared_ptr<KelError> error;
};

class FlashSessionsConfig {
public:
    virtual ~FlashSessionsConfig() = default;
    std::wstring target;
    std::vector<std::wstring> sessions;
    uint32_t blockLength = 0;
    bool stopOnError = false;
};

class CodingStringResult {
public:
    virtual ~CodingStringResult() = default;
    std::wstring target;
    int32_t status = 0;
    std::wstring identifier;
    std::wstring coding;
    std::vector<uint8_t> data;
    std::shared_ptr<KelError> error;
};

class CodingFileResult {
public:
    virtual ~CodingFileResult() = default;
    std::wstring target;
    int32_t status = 0;
    std::wstring written;
    std::wstring coding;
    std::vector<uint8_t> data;
    bool verified = false;
    std::shared_ptr<KelError> error;
};

class QuickTestResult {
public:
    virtual ~QuickTestResult() = default;
    std::wstring target;
    int32_t status = 0;
    std::wstring variant;
    bool identified = false;
    std::vector<std::shared_ptr<DtcResult>> dtcs;
    std::shared_ptr<KelError> error;
};

class EcuConfigurationResult {
public:
    virtual ~EcuConfigurationResult() = default;
    std::wstring target;
    std::wstring configuration;
    int32_t status = 0;
    uint32_t written = 0;
    std::shared_ptr<KelError> error;
};

class EcuOrderEntry {
public:
    virtual ~EcuOrderEntry() = default;
    std::wstring target;
    std::wstring bus;
    uint32_t address = 0;
    bool gateway = false;
    bool optional = false;
};

class VehicleUpdateConfig {
public:
    virtual ~VehicleUpdateConfig() = default;
    std::vector<std::wstring> targets;
    std::vector<std::shared_ptr<UpdatePackageInfo>> packages;
    bool stopOnError = false;
    bool force = false;
    uint32_t blockLength = 0;
};

class VehicleUpdateResult {
public:
    virtual ~VehicleUpdateResult() = default;
    std::wstring target;
    int32_t status = 0;
    std::wstring package;
    std::wstring versionBefore;
    std::wstring versionAfter;
    uint32_t position = 0;
    uint32_t progress = 0;
    uint32_t overallProgress = 0;
    uint32_t duration = 0;
    std::shared_ptr<KelError> error;
};

class UpdatePackageInfo {
public:
    virtual ~UpdatePackageInfo() = default;
    std::wstring name;
    std::wstring version;
    std::wstring description;
    uint32_t kind = 0;
    std::vector<std::wstring> targets;
    uint64_t size = 0;
    std::wstring checksum;
    std::wstring location;
    int32_t state = 0;
};

class VehicleReportConfig {
public:
    virtual ~VehicleReportConfig() = default;
    std::wstring name;
    std::wstring title;
    std::wstring comment;
    std::vector<std::wstring> targets;
    bool identification = false;
    bool dtcs = false;
};

class VehicleData {
public:
    virtual ~VehicleData() = default;
    std::wstring vin;
    std::wstring model;
    std::wstring target;
    std::wstring variant;
    std::wstring softwareVersion;
    std::wstring bus;
    uint32_t address = 0;
    int32_t status = 0;
    uint32_t dtcCount = 0;
};

class UploadReportConfiguration {
public:
    virtual ~UploadReportConfiguration() = default;
    std::wstring reportFile;
    std::wstring folder;
    std::wstring name;
    std::wstring vin;
    std::wstring user;
    std::wstring comment;
    bool overwrite = false;
    bool withTwin = false;
};

class VehicleInformation {
public:
    virtual ~VehicleInformation() = default;
    std::wstring vin;
    std::wstring model;
    uint32_t modelYear = 0;
    uint32_t mileage = 0;
    std::wstring licensePlate;
    std::vector<std::wstring> equipment;
};

} // namespace Varno::Kel_cpp
