// Generated from the interface description by tools/generate.py. Do not edit.
// Every engine record's fields by name, in record order: the one order in which
// a record is streamed and described.
#pragma once

#include <Kel_cpp/Records.h>

#include <tuple>

namespace Varno::Kel_cpp::Fields {

template <class C, class M, bool Bits = false, bool Secret = false>
struct Member {
    static constexpr bool bits = Bits;     // a bit set, streamed as a list of bits
    static constexpr bool secret = Secret; // a password: never described in clear
    const char* name;
    M C::*pointer;
};
template <class C, class M>
constexpr Member<C, M> member(const char* name, M C::*pointer) {
    return {name, pointer};
}
template <class C, class M>
constexpr Member<C, M, true> bitset(const char* name, M C::*pointer) {
    return {name, pointer};
}
template <class C, class M>
constexpr Member<C, M, false, true> secret(const char* name, M C::*pointer) {
    return {name, pointer};
}

// Specialised for every engine record class.
template <class E>
struct Of;

template <>
struct Of<MvciServerError> {
    static constexpr auto list = std::make_tuple(
        member("code", &MvciServerError::code), member("codeText", &MvciServerError::codeText),
        member("vendorCode", &MvciServerError::vendorCode),
        member("vendorCodeText", &MvciServerError::vendorCodeText),
        member("extraText", &MvciServerError::extraText),
        member("extraCode", &MvciServerError::extraCode));
};

template <>
struct Of<NegativeResponse> {
    static constexpr auto list = std::make_tuple(
        member("code", &NegativeResponse::code), member("text", &NegativeResponse::text),
        member("value1", &NegativeResponse::value1), member("value2", &NegativeResponse::value2),
        member("bytes", &NegativeResponse::bytes));
};

template <>
struct Of<KelError> {
    static constexpr auto list = std::make_tuple(
        member("code", &KelError::code), member("message", &KelError::message),
        member("details", &KelError::details), member("subCode", &KelError::subCode),
        member("mvciError", &KelError::mvciError),
        member("negativeResponse", &KelError::negativeResponse));
};

template <>
struct Of<NamedItem> {
    static constexpr auto list = std::make_tuple(
        member("itemText1", &NamedItem::itemText1), member("itemText2", &NamedItem::itemText2),
        member("itemText3", &NamedItem::itemText3), member("itemText4", &NamedItem::itemText4));
};

template <>
struct Of<ParameterResult> {
    static constexpr auto list = std::make_tuple(
        member("itemText1", &ParameterResult::itemText1),
        member("itemText2", &ParameterResult::itemText2),
        member("itemText3", &ParameterResult::itemText3),
        member("itemText4", &ParameterResult::itemText4), member("text1", &ParameterResult::text1),
        member("text2", &ParameterResult::text2), member("value1", &ParameterResult::value1),
        member("children", &ParameterResult::children), member("text3", &ParameterResult::text3),
        member("error", &ParameterResult::error), member("text4", &ParameterResult::text4),
        member("value2", &ParameterResult::value2), member("data", &ParameterResult::data),
        member("value3", &ParameterResult::value3), member("flag", &ParameterResult::flag),
        member("value4", &ParameterResult::value4));
};

template <>
struct Of<ClearDtcResult> {
    static constexpr auto list = std::make_tuple(member("status", &ClearDtcResult::status),
                                                 member("target", &ClearDtcResult::target),
                                                 member("error", &ClearDtcResult::error));
};

template <>
struct Of<DtcReadConfig> {
    static constexpr auto list = std::make_tuple(
        member("value", &DtcReadConfig::value), member("flag1", &DtcReadConfig::flag1),
        member("flag2", &DtcReadConfig::flag2), member("flag3", &DtcReadConfig::flag3));
};

template <>
struct Of<ReadDtcResult> {
    static constexpr auto list = std::make_tuple(
        member("status", &ReadDtcResult::status), member("target", &ReadDtcResult::target),
        member("error", &ReadDtcResult::error), member("dtcs", &ReadDtcResult::dtcs),
        member("value", &ReadDtcResult::value));
};

template <>
struct Of<SupportedDtcResult> {
    static constexpr auto list = std::make_tuple(member("status", &SupportedDtcResult::status),
                                                 member("target", &SupportedDtcResult::target),
                                                 member("error", &SupportedDtcResult::error),
                                                 member("dtcs", &SupportedDtcResult::dtcs));
};

template <>
struct Of<DtcResult> {
    static constexpr auto list =
        std::make_tuple(member("code", &DtcResult::code), member("text1", &DtcResult::text1),
                        member("text2", &DtcResult::text2), member("value1", &DtcResult::value1),
                        member("parameters1", &DtcResult::parameters1),
                        member("parameters2", &DtcResult::parameters2),
                        member("text3", &DtcResult::text3), member("text4", &DtcResult::text4),
                        member("specialDataGroups", &DtcResult::specialDataGroups),
                        member("value2", &DtcResult::value2));
};

template <>
struct Of<SpecialDataGroup> {
    static constexpr auto list = std::make_tuple(member("items", &SpecialDataGroup::items));
};

template <>
struct Of<SpecialData> {
    static constexpr auto list = std::make_tuple(
        member("itemText1", &SpecialData::itemText1), member("itemText2", &SpecialData::itemText2),
        member("itemText3", &SpecialData::itemText3), member("itemText4", &SpecialData::itemText4));
};

template <>
struct Of<VariantIdentResult> {
    static constexpr auto list = std::make_tuple(member("target", &VariantIdentResult::target),
                                                 member("status", &VariantIdentResult::status),
                                                 member("error", &VariantIdentResult::error),
                                                 member("variant", &VariantIdentResult::variant));
};

template <>
struct Of<ReadDataResult> {
    static constexpr auto list = std::make_tuple(
        member("target", &ReadDataResult::target), member("status", &ReadDataResult::status),
        member("text", &ReadDataResult::text), member("error", &ReadDataResult::error),
        member("parameters", &ReadDataResult::parameters));
};

template <>
struct Of<Target> {
    static constexpr auto list = std::make_tuple(
        member("itemText1", &Target::itemText1), member("itemText2", &Target::itemText2),
        member("itemText3", &Target::itemText3), member("itemText4", &Target::itemText4),
        member("value1", &Target::value1), member("text1", &Target::text1),
        member("text2", &Target::text2), member("items", &Target::items),
        member("names", &Target::names), member("text3", &Target::text3),
        member("text4", &Target::text4), member("value2", &Target::value2),
        member("text5", &Target::text5));
};

template <>
struct Of<TargetStatus> {
    static constexpr auto list = std::make_tuple(
        member("target", &TargetStatus::target), member("text", &TargetStatus::text),
        member("error", &TargetStatus::error), member("values", &TargetStatus::values),
        member("text2", &TargetStatus::text2));
};

template <>
struct Of<TargetFilter> {
    static constexpr auto list =
        std::make_tuple(member("pattern", &TargetFilter::pattern),
                        member("flag", &TargetFilter::flag), member("value", &TargetFilter::value));
};

template <>
struct Of<ParameterInput> {
    static constexpr auto list = std::make_tuple(member("name", &ParameterInput::name),
                                                 member("children", &ParameterInput::children),
                                                 member("value", &ParameterInput::value));
};

template <>
struct Of<ServiceInput> {
    static constexpr auto list = std::make_tuple(
        member("parameters", &ServiceInput::parameters), member("service", &ServiceInput::service),
        member("data", &ServiceInput::data), member("value", &ServiceInput::value));
};

template <>
struct Of<ServiceResult> {
    static constexpr auto list = std::make_tuple(
        member("itemText1", &ServiceResult::itemText1),
        member("itemText2", &ServiceResult::itemText2),
        member("itemText3", &ServiceResult::itemText3),
        member("itemText4", &ServiceResult::itemText4),
        member("responses", &ServiceResult::responses), member("status", &ServiceResult::status),
        member("text1", &ServiceResult::text1), member("error", &ServiceResult::error),
        member("request", &ServiceResult::request), member("value1", &ServiceResult::value1));
};

template <>
struct Of<ResponseResult> {
    static constexpr auto list = std::make_tuple(
        member("itemText1", &ResponseResult::itemText1),
        member("itemText2", &ResponseResult::itemText2),
        member("itemText3", &ResponseResult::itemText3),
        member("itemText4", &ResponseResult::itemText4), member("flag", &ResponseResult::flag),
        member("error", &ResponseResult::error), member("data", &ResponseResult::data),
        member("value1", &ResponseResult::value1), member("value2", &ResponseResult::value2),
        member("parameters", &ResponseResult::parameters));
};

template <>
struct Of<RequestResult> {
    static constexpr auto list = std::make_tuple(
        member("error", &RequestResult::error), member("data", &RequestResult::data),
        member("value1", &RequestResult::value1), member("value2", &RequestResult::value2),
        member("parameters", &RequestResult::parameters));
};

template <>
struct Of<UnlockResult> {
    static constexpr auto list = std::make_tuple(member("value", &UnlockResult::value),
                                                 member("services", &UnlockResult::services));
};

template <>
struct Of<ServiceInfo> {
    static constexpr auto list = std::make_tuple(
        member("itemText1", &ServiceInfo::itemText1), member("itemText2", &ServiceInfo::itemText2),
        member("itemText3", &ServiceInfo::itemText3), member("itemText4", &ServiceInfo::itemText4),
        member("flag", &ServiceInfo::flag), member("responses", &ServiceInfo::responses),
        member("parameters", &ServiceInfo::parameters), member("text1", &ServiceInfo::text1),
        member("items", &ServiceInfo::items), member("error", &ServiceInfo::error),
        member("values", &ServiceInfo::values));
};

template <>
struct Of<ResponseInfo> {
    static constexpr auto list = std::make_tuple(member("itemText1", &ResponseInfo::itemText1),
                                                 member("itemText2", &ResponseInfo::itemText2),
                                                 member("itemText3", &ResponseInfo::itemText3),
                                                 member("itemText4", &ResponseInfo::itemText4),
                                                 member("status", &ResponseInfo::status),
                                                 member("parameters", &ResponseInfo::parameters));
};

template <>
struct Of<ParameterInfo> {
    static constexpr auto list = std::make_tuple(
        member("itemText1", &ParameterInfo::itemText1),
        member("itemText2", &ParameterInfo::itemText2),
        member("itemText3", &ParameterInfo::itemText3),
        member("itemText4", &ParameterInfo::itemText4), member("text1", &ParameterInfo::text1),
        member("text2", &ParameterInfo::text2), member("text3", &ParameterInfo::text3),
        member("value1", &ParameterInfo::value1), member("text4", &ParameterInfo::text4),
        member("children", &ParameterInfo::children), member("text5", &ParameterInfo::text5),
        member("names", &ParameterInfo::names), member("flag1", &ParameterInfo::flag1),
        member("value2", &ParameterInfo::value2), member("error", &ParameterInfo::error),
        member("flag2", &ParameterInfo::flag2), member("values", &ParameterInfo::values),
        member("flag3", &ParameterInfo::flag3), member("constraint1", &ParameterInfo::constraint1),
        member("constraint2", &ParameterInfo::constraint2), member("text6", &ParameterInfo::text6),
        member("text7", &ParameterInfo::text7), member("flag4", &ParameterInfo::flag4),
        member("unit", &ParameterInfo::unit));
};

template <>
struct Of<ConstraintInfo> {
    static constexpr auto list = std::make_tuple(
        member("text1", &ConstraintInfo::text1), member("text2", &ConstraintInfo::text2),
        member("flag", &ConstraintInfo::flag), member("scales", &ConstraintInfo::scales));
};

template <>
struct Of<ScaleConstraintInfo> {
    static constexpr auto list = std::make_tuple(
        member("itemText1", &ScaleConstraintInfo::itemText1),
        member("itemText2", &ScaleConstraintInfo::itemText2),
        member("itemText3", &ScaleConstraintInfo::itemText3),
        member("itemText4", &ScaleConstraintInfo::itemText4),
        member("text1", &ScaleConstraintInfo::text1), member("text2", &ScaleConstraintInfo::text2),
        member("flag", &ScaleConstraintInfo::flag), member("value", &ScaleConstraintInfo::value));
};

template <>
struct Of<UnitInfo> {
    static constexpr auto list =
        std::make_tuple(member("values", &UnitInfo::values), member("value1", &UnitInfo::value1),
                        member("flag1", &UnitInfo::flag1), member("value2", &UnitInfo::value2),
                        member("flag2", &UnitInfo::flag2));
};

template <>
struct Of<ParameterInfoConfig> {
    static constexpr auto list = std::make_tuple(
        member("text1", &ParameterInfoConfig::text1), member("text2", &ParameterInfoConfig::text2),
        member("value", &ParameterInfoConfig::value), member("text3", &ParameterInfoConfig::text3),
        member("text4", &ParameterInfoConfig::text4));
};

template <>
struct Of<KelEvent> {
    static constexpr auto list =
        std::make_tuple(member("name", &KelEvent::name), member("kind", &KelEvent::kind),
                        member("code", &KelEvent::code), member("text", &KelEvent::text),
                        member("error", &KelEvent::error), member("detail", &KelEvent::detail));
};

template <>
struct Of<EventReport> {
    static constexpr auto list = std::make_tuple(member("events", &EventReport::events));
};

template <>
struct Of<FileFilter> {
    static constexpr auto list =
        std::make_tuple(member("pattern", &FileFilter::pattern), member("flag", &FileFilter::flag),
                        member("value", &FileFilter::value));
};

template <>
struct Of<FilterPattern> {
    static constexpr auto list = std::make_tuple(member("pattern", &FilterPattern::pattern),
                                                 member("flag", &FilterPattern::flag));
};

template <>
struct Of<TargetConfig> {
    static constexpr auto list = std::make_tuple(member("value", &TargetConfig::value),
                                                 member("text1", &TargetConfig::text1),
                                                 member("text2", &TargetConfig::text2));
};

template <>
struct Of<ProjectConfig> {
    static constexpr auto list = std::make_tuple(
        member("itemText1", &ProjectConfig::itemText1),
        member("itemText2", &ProjectConfig::itemText2),
        member("itemText3", &ProjectConfig::itemText3),
        member("itemText4", &ProjectConfig::itemText4),
        member("filters1", &ProjectConfig::filters1), member("value0", &ProjectConfig::value0),
        member("targets", &ProjectConfig::targets), member("filters2", &ProjectConfig::filters2),
        member("strings1", &ProjectConfig::strings1), member("text1", &ProjectConfig::text1),
        member("value1", &ProjectConfig::value1), member("text2", &ProjectConfig::text2),
        member("strings2", &ProjectConfig::strings2), member("text3", &ProjectConfig::text3),
        member("value2", &ProjectConfig::value2), member("value3", &ProjectConfig::value3),
        member("flags", &ProjectConfig::flags));
};

template <>
struct Of<ProjectDetails> {
    static constexpr auto list = std::make_tuple(
        member("dbFiles1", &ProjectDetails::dbFiles1),
        member("dbFiles2", &ProjectDetails::dbFiles2), member("text1", &ProjectDetails::text1),
        member("value1", &ProjectDetails::value1), member("text2", &ProjectDetails::text2),
        member("value2", &ProjectDetails::value2), member("users", &ProjectDetails::users));
};

template <>
struct Of<DbFileInfo> {
    static constexpr auto list =
        std::make_tuple(member("name", &DbFileInfo::name), member("path", &DbFileInfo::path),
                        member("size", &DbFileInfo::size), member("loaded", &DbFileInfo::loaded),
                        member("error", &DbFileInfo::error));
};

template <>
struct Of<SystemInfo> {
    static constexpr auto list =
        std::make_tuple(member("value1", &SystemInfo::value1),
                        member("value2", &SystemInfo::value2), member("text1", &SystemInfo::text1),
                        member("value3", &SystemInfo::value3), member("text2", &SystemInfo::text2),
                        member("text3", &SystemInfo::text3), member("text4", &SystemInfo::text4));
};

template <>
struct Of<SystemProperty> {
    static constexpr auto list = std::make_tuple(
        member("itemText1", &SystemProperty::itemText1),
        member("itemText2", &SystemProperty::itemText2),
        member("itemText3", &SystemProperty::itemText3),
        member("itemText4", &SystemProperty::itemText4), member("text1", &SystemProperty::text1),
        member("text2", &SystemProperty::text2), member("value1", &SystemProperty::value1),
        member("children", &SystemProperty::children), member("text3", &SystemProperty::text3),
        member("error", &SystemProperty::error), member("text4", &SystemProperty::text4),
        member("value2", &SystemProperty::value2), member("data", &SystemProperty::data),
        member("value3", &SystemProperty::value3), member("flag", &SystemProperty::flag),
        member("value4", &SystemProperty::value4));
};

template <>
struct Of<TarnApiConfig> {
    static constexpr auto list = std::make_tuple(
        member("value1", &TarnApiConfig::value1), member("flag1", &TarnApiConfig::flag1),
        member("flag2", &TarnApiConfig::flag2), member("value2", &TarnApiConfig::value2),
        member("server", &TarnApiConfig::server), member("value3", &TarnApiConfig::value3),
        member("value4", &TarnApiConfig::value4), member("value5", &TarnApiConfig::value5),
        member("flag3", &TarnApiConfig::flag3), member("value6", &TarnApiConfig::value6),
        member("value7", &TarnApiConfig::value7),
        member("oauth2Configs", &TarnApiConfig::oauth2Configs),
        member("text", &TarnApiConfig::text));
};

template <>
struct Of<ServerConfig> {
    static constexpr auto list = std::make_tuple(
        member("address", &ServerConfig::address), member("port", &ServerConfig::port),
        member("enabled", &ServerConfig::enabled), member("name", &ServerConfig::name));
};

template <>
struct Of<Oauth2Config> {
    static constexpr auto list = std::make_tuple(
        member("issuer", &Oauth2Config::issuer), member("clientId", &Oauth2Config::clientId),
        member("scopes", &Oauth2Config::scopes), member("redirectUrl", &Oauth2Config::redirectUrl));
};

template <>
struct Of<MoxConfig> {
    static constexpr auto list =
        std::make_tuple(member("text1", &MoxConfig::text1), member("text2", &MoxConfig::text2),
                        member("text3", &MoxConfig::text3), member("text4", &MoxConfig::text4),
                        member("text5", &MoxConfig::text5), member("flag1", &MoxConfig::flag1),
                        member("flag2", &MoxConfig::flag2), member("flag3", &MoxConfig::flag3),
                        member("value", &MoxConfig::value), member("flag4", &MoxConfig::flag4),
                        member("flag5", &MoxConfig::flag5), member("flag6", &MoxConfig::flag6),
                        member("text6", &MoxConfig::text6), member("text7", &MoxConfig::text7),
                        member("tcp", &MoxConfig::tcp));
};

template <>
struct Of<TcpInfo> {
    static constexpr auto list =
        std::make_tuple(member("value1", &TcpInfo::value1), member("value2", &TcpInfo::value2),
                        member("value3", &TcpInfo::value3), member("value4", &TcpInfo::value4),
                        member("value5", &TcpInfo::value5), member("value6", &TcpInfo::value6));
};

template <>
struct Of<StatusInfo> {
    static constexpr auto list = std::make_tuple(
        member("value1", &StatusInfo::value1), member("value2", &StatusInfo::value2),
        member("value3", &StatusInfo::value3), member("value4", &StatusInfo::value4),
        member("value5", &StatusInfo::value5), member("value6", &StatusInfo::value6),
        member("value7", &StatusInfo::value7), member("value8", &StatusInfo::value8));
};

template <>
struct Of<TransmissionInfo> {
    static constexpr auto list = std::make_tuple(
        member("value1", &TransmissionInfo::value1), member("value2", &TransmissionInfo::value2),
        member("value3", &TransmissionInfo::value3), member("value4", &TransmissionInfo::value4));
};

template <>
struct Of<ProcessInfo> {
    static constexpr auto list = std::make_tuple(
        member("processes", &ProcessInfo::processes), member("flag1", &ProcessInfo::flag1),
        member("flag2", &ProcessInfo::flag2), member("text", &ProcessInfo::text));
};

template <>
struct Of<ProcessEntry> {
    static constexpr auto list = std::make_tuple(
        member("value", &ProcessEntry::value), member("items1", &ProcessEntry::items1),
        member("text", &ProcessEntry::text), member("items2", &ProcessEntry::items2));
};

template <>
struct Of<ProcessThread> {
    static constexpr auto list =
        std::make_tuple(member("id", &ProcessThread::id), member("name", &ProcessThread::name));
};

template <>
struct Of<ProcessMemory> {
    static constexpr auto list = std::make_tuple(member("name", &ProcessMemory::name),
                                                 member("bytes", &ProcessMemory::bytes));
};

template <>
struct Of<GlobalProtocolParameterSet> {
    static constexpr auto list =
        std::make_tuple(member("text1", &GlobalProtocolParameterSet::text1),
                        member("text2", &GlobalProtocolParameterSet::text2),
                        member("text3", &GlobalProtocolParameterSet::text3),
                        member("text4", &GlobalProtocolParameterSet::text4),
                        member("parameters", &GlobalProtocolParameterSet::parameters));
};

template <>
struct Of<GlobalProtocolParameter> {
    static constexpr auto list =
        std::make_tuple(member("itemText1", &GlobalProtocolParameter::itemText1),
                        member("itemText2", &GlobalProtocolParameter::itemText2),
                        member("itemText3", &GlobalProtocolParameter::itemText3),
                        member("itemText4", &GlobalProtocolParameter::itemText4),
                        member("value", &GlobalProtocolParameter::value),
                        member("defaultValue", &GlobalProtocolParameter::defaultValue),
                        member("infos", &GlobalProtocolParameter::infos),
                        member("choices", &GlobalProtocolParameter::choices),
                        member("error", &GlobalProtocolParameter::error),
                        member("constraints", &GlobalProtocolParameter::constraints),
                        member("tcp", &GlobalProtocolParameter::tcp),
                        member("value1", &GlobalProtocolParameter::value1),
                        member("flag", &GlobalProtocolParameter::flag));
};

template <>
struct Of<LoadDatabaseResult> {
    static constexpr auto list = std::make_tuple(member("text", &LoadDatabaseResult::text),
                                                 member("flag", &LoadDatabaseResult::flag),
                                                 member("error", &LoadDatabaseResult::error));
};

template <>
struct Of<InterfaceInformation> {
    static constexpr auto list =
        std::make_tuple(member("itemText1", &InterfaceInformation::itemText1),
                        member("itemText2", &InterfaceInformation::itemText2),
                        member("itemText3", &InterfaceInformation::itemText3),
                        member("itemText4", &InterfaceInformation::itemText4),
                        member("resources", &InterfaceInformation::resources),
                        member("flag1", &InterfaceInformation::flag1),
                        member("flag2", &InterfaceInformation::flag2),
                        member("text1", &InterfaceInformation::text1),
                        member("text2", &InterfaceInformation::text2),
                        member("flag3", &InterfaceInformation::flag3),
                        member("items", &InterfaceInformation::items),
                        member("value", &InterfaceInformation::value));
};

template <>
struct Of<ResourceInformation> {
    static constexpr auto list = std::make_tuple(
        member("itemText1", &ResourceInformation::itemText1),
        member("itemText2", &ResourceInformation::itemText2),
        member("itemText3", &ResourceInformation::itemText3),
        member("itemText4", &ResourceInformation::itemText4),
        member("id", &ResourceInformation::id), member("pin", &ResourceInformation::pin),
        member("inUse", &ResourceInformation::inUse));
};

template <>
struct Of<InterfaceInformationItem> {
    static constexpr auto list =
        std::make_tuple(member("itemText1", &InterfaceInformationItem::itemText1),
                        member("itemText2", &InterfaceInformationItem::itemText2),
                        member("itemText3", &InterfaceInformationItem::itemText3),
                        member("itemText4", &InterfaceInformationItem::itemText4));
};

template <>
struct Of<ScanInterfaceResult> {
    static constexpr auto list =
        std::make_tuple(member("interfaceInfo", &ScanInterfaceResult::interfaceInfo),
                        member("error", &ScanInterfaceResult::error));
};

template <>
struct Of<DynInterfaceDetection> {
    static constexpr auto list =
        std::make_tuple(member("namePattern", &DynInterfaceDetection::namePattern),
                        member("kind", &DynInterfaceDetection::kind),
                        member("onlyFree", &DynInterfaceDetection::onlyFree));
};

template <>
struct Of<ModuleDyn> {
    static constexpr auto list = std::make_tuple(
        member("name", &ModuleDyn::name), member("longName", &ModuleDyn::longName),
        member("vendor", &ModuleDyn::vendor), member("kind", &ModuleDyn::kind),
        member("address", &ModuleDyn::address), member("vendorModule", &ModuleDyn::vendorModule),
        member("flag1", &ModuleDyn::flag1), member("serialNumber", &ModuleDyn::serialNumber),
        member("firmware", &ModuleDyn::firmware), member("network", &ModuleDyn::network),
        member("resources", &ModuleDyn::resources), member("port", &ModuleDyn::port),
        member("flag2", &ModuleDyn::flag2), member("handle", &ModuleDyn::handle));
};

template <>
struct Of<DeviceInfo> {
    static constexpr auto list = std::make_tuple(
        member("text1", &DeviceInfo::text1), member("value1", &DeviceInfo::value1),
        member("value2", &DeviceInfo::value2), member("text2", &DeviceInfo::text2),
        member("text3", &DeviceInfo::text3), member("value3", &DeviceInfo::value3),
        member("text4", &DeviceInfo::text4), member("text5", &DeviceInfo::text5),
        member("value4", &DeviceInfo::value4), member("value5", &DeviceInfo::value5),
        member("text6", &DeviceInfo::text6), member("protocols", &DeviceInfo::protocols),
        member("text7", &DeviceInfo::text7), member("modules", &DeviceInfo::modules),
        member("text8", &DeviceInfo::text8), member("flag", &DeviceInfo::flag),
        member("handle", &DeviceInfo::handle), member("value6", &DeviceInfo::value6),
        member("value8", &DeviceInfo::value8), member("value9", &DeviceInfo::value9),
        member("value10", &DeviceInfo::value10));
};

template <>
struct Of<PhysicalLinksOnModule> {
    static constexpr auto list = std::make_tuple(member("module", &PhysicalLinksOnModule::module),
                                                 member("links", &PhysicalLinksOnModule::links));
};

template <>
struct Of<PhysicalLink> {
    static constexpr auto list = std::make_tuple(member("itemText1", &PhysicalLink::itemText1),
                                                 member("itemText2", &PhysicalLink::itemText2),
                                                 member("itemText3", &PhysicalLink::itemText3),
                                                 member("itemText4", &PhysicalLink::itemText4),
                                                 member("baudrate", &PhysicalLink::baudrate),
                                                 member("enabled", &PhysicalLink::enabled));
};

template <>
struct Of<InterfaceConfiguration> {
    static constexpr auto list =
        std::make_tuple(member("entries", &InterfaceConfiguration::entries));
};

template <>
struct Of<InterfaceConfigurationEntry> {
    static constexpr auto list =
        std::make_tuple(member("text1", &InterfaceConfigurationEntry::text1),
                        member("text2", &InterfaceConfigurationEntry::text2),
                        member("text3", &InterfaceConfigurationEntry::text3),
                        member("text4", &InterfaceConfigurationEntry::text4),
                        member("text5", &InterfaceConfigurationEntry::text5),
                        member("value", &InterfaceConfigurationEntry::value),
                        member("flag", &InterfaceConfigurationEntry::flag),
                        member("items", &InterfaceConfigurationEntry::items));
};

template <>
struct Of<InterfaceProvider> {
    static constexpr auto list = std::make_tuple(member("itemText1", &InterfaceProvider::itemText1),
                                                 member("itemText2", &InterfaceProvider::itemText2),
                                                 member("itemText3", &InterfaceProvider::itemText3),
                                                 member("itemText4", &InterfaceProvider::itemText4),
                                                 member("text", &InterfaceProvider::text),
                                                 member("value", &InterfaceProvider::value),
                                                 member("flag", &InterfaceProvider::flag));
};

template <>
struct Of<InterfaceProviderDyn> {
    static constexpr auto list = std::make_tuple(
        member("itemText1", &InterfaceProviderDyn::itemText1),
        member("itemText2", &InterfaceProviderDyn::itemText2),
        member("itemText3", &InterfaceProviderDyn::itemText3),
        member("itemText4", &InterfaceProviderDyn::itemText4),
        member("text", &InterfaceProviderDyn::text), member("value", &InterfaceProviderDyn::value),
        member("flag", &InterfaceProviderDyn::flag));
};

template <>
struct Of<DoIPParameter> {
    static constexpr auto list = std::make_tuple(
        member("value1", &DoIPParameter::value1), member("value2", &DoIPParameter::value2),
        member("text", &DoIPParameter::text), member("value3", &DoIPParameter::value3),
        member("strings", &DoIPParameter::strings));
};

template <>
struct Of<WLanSignalData> {
    static constexpr auto list = std::make_tuple(
        member("value1", &WLanSignalData::value1), member("value2", &WLanSignalData::value2),
        member("value3", &WLanSignalData::value3), member("value4", &WLanSignalData::value4),
        member("value5", &WLanSignalData::value5), member("value6", &WLanSignalData::value6),
        member("value7", &WLanSignalData::value7), member("value8", &WLanSignalData::value8),
        member("value9", &WLanSignalData::value9), member("value10", &WLanSignalData::value10),
        member("value11", &WLanSignalData::value11), member("text", &WLanSignalData::text));
};

template <>
struct Of<SupportedInterface> {
    static constexpr auto list = std::make_tuple(
        member("text1", &SupportedInterface::text1), member("text2", &SupportedInterface::text2),
        member("names", &SupportedInterface::names), member("value", &SupportedInterface::value),
        member("text3", &SupportedInterface::text3));
};

template <>
struct Of<MonitoringItem> {
    static constexpr auto list = std::make_tuple(
        member("text1", &MonitoringItem::text1), member("data", &MonitoringItem::data),
        member("value1", &MonitoringItem::value1), member("value2", &MonitoringItem::value2),
        member("flag1", &MonitoringItem::flag1), member("flag2", &MonitoringItem::flag2),
        member("flag3", &MonitoringItem::flag3), member("value3", &MonitoringItem::value3),
        member("text2", &MonitoringItem::text2), member("value4", &MonitoringItem::value4),
        member("detail", &MonitoringItem::detail));
};

template <>
struct Of<MonitoringItemDetail> {
    static constexpr auto list =
        std::make_tuple(member("response", &MonitoringItemDetail::response),
                        member("text", &MonitoringItemDetail::text));
};

template <>
struct Of<PduMonitoringItem> {
    static constexpr auto list = std::make_tuple(
        member("value1", &PduMonitoringItem::value1), member("data", &PduMonitoringItem::data),
        member("detail", &PduMonitoringItem::detail), member("text1", &PduMonitoringItem::text1),
        member("text2", &PduMonitoringItem::text2), member("value2", &PduMonitoringItem::value2),
        member("text3", &PduMonitoringItem::text3));
};

template <>
struct Of<PduMonitoringItemDetail> {
    static constexpr auto list =
        std::make_tuple(member("sequence", &PduMonitoringItemDetail::sequence),
                        member("exchange", &PduMonitoringItemDetail::exchange));
};

template <>
struct Of<FileSystemEntry> {
    static constexpr auto list = std::make_tuple(
        member("name", &FileSystemEntry::name), member("error", &FileSystemEntry::error),
        member("flag", &FileSystemEntry::flag), member("value1", &FileSystemEntry::value1),
        member("text1", &FileSystemEntry::text1), member("text2", &FileSystemEntry::text2));
};

template <>
struct Of<FileInfo> {
    static constexpr auto list =
        std::make_tuple(member("name", &FileInfo::name), member("error", &FileInfo::error),
                        member("flag", &FileInfo::flag), member("value1", &FileInfo::value1),
                        member("text1", &FileInfo::text1), member("text2", &FileInfo::text2),
                        member("value2", &FileInfo::value2), member("value3", &FileInfo::value3));
};

template <>
struct Of<DirectoryInfo> {
    static constexpr auto list = std::make_tuple(
        member("name", &DirectoryInfo::name), member("error", &DirectoryInfo::error),
        member("flag", &DirectoryInfo::flag), member("value1", &DirectoryInfo::value1),
        member("text1", &DirectoryInfo::text1), member("text2", &DirectoryInfo::text2),
        member("files", &DirectoryInfo::files), member("directories", &DirectoryInfo::directories),
        member("flag2", &DirectoryInfo::flag2));
};

template <>
struct Of<FileCopyResult> {
    static constexpr auto list = std::make_tuple(
        member("value1", &FileCopyResult::value1), member("text", &FileCopyResult::text),
        member("error", &FileCopyResult::error), member("file", &FileCopyResult::file),
        member("value2", &FileCopyResult::value2));
};

template <>
struct Of<DirectoryCopyResult> {
    static constexpr auto list = std::make_tuple(
        member("value1", &DirectoryCopyResult::value1), member("text", &DirectoryCopyResult::text),
        member("error", &DirectoryCopyResult::error),
        member("directory", &DirectoryCopyResult::directory));
};

template <>
struct Of<DirectoryCopyItem> {
    static constexpr auto list = std::make_tuple(
        member("source", &DirectoryCopyItem::source), member("target", &DirectoryCopyItem::target),
        member("files", &DirectoryCopyItem::files),
        member("directories", &DirectoryCopyItem::directories),
        member("bytes", &DirectoryCopyItem::bytes),
        member("failures", &DirectoryCopyItem::failures));
};

template <>
struct Of<PathCopyResult> {
    static constexpr auto list = std::make_tuple(
        member("value1", &PathCopyResult::value1), member("error", &PathCopyResult::error),
        member("value2", &PathCopyResult::value2), member("item", &PathCopyResult::item));
};

template <>
struct Of<PathCopyItem> {
    static constexpr auto list = std::make_tuple(member("source", &PathCopyItem::source),
                                                 member("target", &PathCopyItem::target),
                                                 member("size", &PathCopyItem::size));
};

template <>
struct Of<FileReferenceResult> {
    static constexpr auto list =
        std::make_tuple(member("references", &FileReferenceResult::references),
                        member("error", &FileReferenceResult::error));
};

template <>
struct Of<FileCopyConfig> {
    static constexpr auto list = std::make_tuple(member("files", &FileCopyConfig::files),
                                                 member("target", &FileCopyConfig::target),
                                                 member("overwrite", &FileCopyConfig::overwrite));
};

template <>
struct Of<DirectoryCopyConfig> {
    static constexpr auto list =
        std::make_tuple(member("directories", &DirectoryCopyConfig::directories),
                        member("target", &DirectoryCopyConfig::target),
                        member("overwrite", &DirectoryCopyConfig::overwrite),
                        member("recursive", &DirectoryCopyConfig::recursive),
                        member("pattern", &DirectoryCopyConfig::pattern));
};

template <>
struct Of<PathCopyConfig> {
    static constexpr auto list = std::make_tuple(member("source", &PathCopyConfig::source),
                                                 member("target", &PathCopyConfig::target),
                                                 member("overwrite", &PathCopyConfig::overwrite));
};

template <>
struct Of<UserInfo> {
    static constexpr auto list =
        std::make_tuple(member("name", &UserInfo::name), member("text", &UserInfo::text),
                        member("value", &UserInfo::value));
};

template <>
struct Of<LogInOutConfig> {
    static constexpr auto list = std::make_tuple(member("user", &LogInOutConfig::user),
                                                 secret("password", &LogInOutConfig::password));
};

template <>
struct Of<TarnApiServerConfig> {
    static constexpr auto list = std::make_tuple(
        member("users", &TarnApiServerConfig::users), member("flag", &TarnApiServerConfig::flag),
        member("value1", &TarnApiServerConfig::value1),
        member("text1", &TarnApiServerConfig::text1), member("text2", &TarnApiServerConfig::text2),
        member("filters", &TarnApiServerConfig::filters),
        member("text3", &TarnApiServerConfig::text3), member("text4", &TarnApiServerConfig::text4),
        member("users2", &TarnApiServerConfig::users2),
        member("value2", &TarnApiServerConfig::value2));
};

template <>
struct Of<ServerSettings> {
    static constexpr auto list = std::make_tuple(
        member("flag", &ServerSettings::flag), member("value1", &ServerSettings::value1),
        member("value2", &ServerSettings::value2), member("value3", &ServerSettings::value3));
};

template <>
struct Of<FlashSessionInfo> {
    static constexpr auto list = std::make_tuple(
        member("name", &FlashSessionInfo::name), member("target", &FlashSessionInfo::target),
        member("description", &FlashSessionInfo::description),
        member("version", &FlashSessionInfo::version), member("size", &FlashSessionInfo::size),
        member("duration", &FlashSessionInfo::duration), member("level", &FlashSessionInfo::level));
};

template <>
struct Of<FlashSessionResult> {
    static constexpr auto list = std::make_tuple(
        member("name", &FlashSessionResult::name), member("target", &FlashSessionResult::target),
        member("status", &FlashSessionResult::status),
        member("versionBefore", &FlashSessionResult::versionBefore),
        member("versionAfter", &FlashSessionResult::versionAfter),
        member("size", &FlashSessionResult::size),
        member("transferred", &FlashSessionResult::transferred),
        member("progress", &FlashSessionResult::progress),
        member("duration", &FlashSessionResult::duration),
        member("error", &FlashSessionResult::error));
};

template <>
struct Of<FlashSessionsConfig> {
    static constexpr auto list =
        std::make_tuple(member("target", &FlashSessionsConfig::target),
                        member("sessions", &FlashSessionsConfig::sessions),
                        member("blockLength", &FlashSessionsConfig::blockLength),
                        member("stopOnError", &FlashSessionsConfig::stopOnError));
};

template <>
struct Of<CodingStringResult> {
    static constexpr auto list = std::make_tuple(
        member("target", &CodingStringResult::target),
        member("status", &CodingStringResult::status),
        member("identifier", &CodingStringResult::identifier),
        member("coding", &CodingStringResult::coding), member("data", &CodingStringResult::data),
        member("error", &CodingStringResult::error));
};

template <>
struct Of<CodingFileResult> {
    static constexpr auto list = std::make_tuple(
        member("target", &CodingFileResult::target), member("status", &CodingFileResult::status),
        member("written", &CodingFileResult::written), member("coding", &CodingFileResult::coding),
        member("data", &CodingFileResult::data), member("verified", &CodingFileResult::verified),
        member("error", &CodingFileResult::error));
};

template <>
struct Of<QuickTestResult> {
    static constexpr auto list = std::make_tuple(
        member("target", &QuickTestResult::target), member("status", &QuickTestResult::status),
        member("variant", &QuickTestResult::variant),
        member("identified", &QuickTestResult::identified), member("dtcs", &QuickTestResult::dtcs),
        member("error", &QuickTestResult::error));
};

template <>
struct Of<EcuConfigurationResult> {
    static constexpr auto list =
        std::make_tuple(member("target", &EcuConfigurationResult::target),
                        member("configuration", &EcuConfigurationResult::configuration),
                        member("status", &EcuConfigurationResult::status),
                        member("written", &EcuConfigurationResult::written),
                        member("error", &EcuConfigurationResult::error));
};

template <>
struct Of<EcuOrderEntry> {
    static constexpr auto list = std::make_tuple(
        member("target", &EcuOrderEntry::target), member("bus", &EcuOrderEntry::bus),
        member("address", &EcuOrderEntry::address), member("gateway", &EcuOrderEntry::gateway),
        member("optional", &EcuOrderEntry::optional));
};

template <>
struct Of<VehicleUpdateConfig> {
    static constexpr auto list =
        std::make_tuple(member("targets", &VehicleUpdateConfig::targets),
                        member("packages", &VehicleUpdateConfig::packages),
                        member("stopOnError", &VehicleUpdateConfig::stopOnError),
                        member("force", &VehicleUpdateConfig::force),
                        member("blockLength", &VehicleUpdateConfig::blockLength));
};

template <>
struct Of<VehicleUpdateResult> {
    static constexpr auto list =
        std::make_tuple(member("target", &VehicleUpdateResult::target),
                        member("status", &VehicleUpdateResult::status),
                        member("package", &VehicleUpdateResult::package),
                        member("versionBefore", &VehicleUpdateResult::versionBefore),
                        member("versionAfter", &VehicleUpdateResult::versionAfter),
                        member("position", &VehicleUpdateResult::position),
                        member("progress", &VehicleUpdateResult::progress),
                        member("overallProgress", &VehicleUpdateResult::overallProgress),
                        member("duration", &VehicleUpdateResult::duration),
                        member("error", &VehicleUpdateResult::error));
};

template <>
struct Of<UpdatePackageInfo> {
    static constexpr auto list = std::make_tuple(
        member("name", &UpdatePackageInfo::name), member("version", &UpdatePackageInfo::version),
        member("description", &UpdatePackageInfo::description),
        member("kind", &UpdatePackageInfo::kind), member("targets", &UpdatePackageInfo::targets),
        member("size", &UpdatePackageInfo::size), member("checksum", &UpdatePackageInfo::checksum),
        member("location", &UpdatePackageInfo::location),
        member("state", &UpdatePackageInfo::state));
};

template <>
struct Of<VehicleReportConfig> {
    static constexpr auto list = std::make_tuple(
        member("name", &VehicleReportConfig::name), member("title", &VehicleReportConfig::title),
        member("comment", &VehicleReportConfig::comment),
        member("targets", &VehicleReportConfig::targets),
        member("identification", &VehicleReportConfig::identification),
        member("dtcs", &VehicleReportConfig::dtcs));
};

template <>
struct Of<VehicleData> {
    static constexpr auto list = std::make_tuple(
        member("vin", &VehicleData::vin), member("model", &VehicleData::model),
        member("target", &VehicleData::target), member("variant", &VehicleData::variant),
        member("softwareVersion", &VehicleData::softwareVersion), member("bus", &VehicleData::bus),
        member("address", &VehicleData::address), member("status", &VehicleData::status),
        member("dtcCount", &VehicleData::dtcCount));
};

template <>
struct Of<UploadReportConfiguration> {
    static constexpr auto list =
        std::make_tuple(member("reportFile", &UploadReportConfiguration::reportFile),
                        member("folder", &UploadReportConfiguration::folder),
                        member("name", &UploadReportConfiguration::name),
                        member("vin", &UploadReportConfiguration::vin),
                        member("user", &UploadReportConfiguration::user),
                        member("comment", &UploadReportConfiguration::comment),
                        member("overwrite", &UploadReportConfiguration::overwrite),
                        member("withTwin", &UploadReportConfiguration::withTwin));
};

template <>
struct Of<VehicleInformation> {
    static constexpr auto list = std::make_tuple(
        member("vin", &VehicleInformation::vin), member("model", &VehicleInformation::model),
        member("modelYear", &VehicleInformation::modelYear),
        member("mileage", &VehicleInformation::mileage),
        member("licensePlate", &VehicleInformation::licensePlate),
        member("equipment", &VehicleInformation::equipment));
};

} // namespace Varno::Kel_cpp::Fields
