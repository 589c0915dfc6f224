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

// Makes a table's members name the record through V, so that the compiler builds
// a table only for the records a translation unit uses: built eagerly, the tables
// cost every includer about 2 s and 450 MB.
template <class V, class T>
struct Deferred {
    using type = T;
};

// Specialised for every engine record class.
template <class E, class = void>
struct Of;

template <class V>
struct Of<MvciServerError, V> {
    using E = typename Deferred<V, MvciServerError>::type;
    static constexpr auto list = std::make_tuple(
        member("code", &E::code), member("codeText", &E::codeText),
        member("vendorCode", &E::vendorCode), member("vendorCodeText", &E::vendorCodeText),
        member("extraText", &E::extraText), member("extraCode", &E::extraCode));
};

template <class V>
struct Of<NegativeResponse, V> {
    using E = typename Deferred<V, NegativeResponse>::type;
    static constexpr auto list = std::make_tuple(
        member("code", &E::code), member("text", &E::text), member("value1", &E::value1),
        member("value2", &E::value2), member("bytes", &E::bytes));
};

template <class V>
struct Of<KelError, V> {
    using E = typename Deferred<V, KelError>::type;
    static constexpr auto list = std::make_tuple(
        member("code", &E::code), member("message", &E::message), member("details", &E::details),
        member("subCode", &E::subCode), member("mvciError", &E::mvciError),
        member("negativeResponse", &E::negativeResponse));
};

template <class V>
struct Of<NamedItem, V> {
    using E = typename Deferred<V, NamedItem>::type;
    static constexpr auto list =
        std::make_tuple(member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
                        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4));
};

template <class V>
struct Of<ParameterResult, V> {
    using E = typename Deferred<V, ParameterResult>::type;
    static constexpr auto list = std::make_tuple(
        member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
        member("text1", &E::text1), member("text2", &E::text2), member("value1", &E::value1),
        member("children", &E::children), member("text3", &E::text3), member("error", &E::error),
        member("text4", &E::text4), member("value2", &E::value2), member("data", &E::data),
        member("value3", &E::value3), member("flag", &E::flag), member("value4", &E::value4));
};

template <class V>
struct Of<ClearDtcResult, V> {
    using E = typename Deferred<V, ClearDtcResult>::type;
    static constexpr auto list = std::make_tuple(
        member("status", &E::status), member("target", &E::target), member("error", &E::error));
};

template <class V>
struct Of<DtcReadConfig, V> {
    using E = typename Deferred<V, DtcReadConfig>::type;
    static constexpr auto list =
        std::make_tuple(member("value", &E::value), member("flag1", &E::flag1),
                        member("flag2", &E::flag2), member("flag3", &E::flag3));
};

template <class V>
struct Of<ReadDtcResult, V> {
    using E = typename Deferred<V, ReadDtcResult>::type;
    static constexpr auto list = std::make_tuple(
        member("status", &E::status), member("target", &E::target), member("error", &E::error),
        member("dtcs", &E::dtcs), member("value", &E::value));
};

template <class V>
struct Of<SupportedDtcResult, V> {
    using E = typename Deferred<V, SupportedDtcResult>::type;
    static constexpr auto list =
        std::make_tuple(member("status", &E::status), member("target", &E::target),
                        member("error", &E::error), member("dtcs", &E::dtcs));
};

template <class V>
struct Of<DtcResult, V> {
    using E = typename Deferred<V, DtcResult>::type;
    static constexpr auto list = std::make_tuple(
        member("code", &E::code), member("text1", &E::text1), member("text2", &E::text2),
        member("value1", &E::value1), member("parameters1", &E::parameters1),
        member("parameters2", &E::parameters2), member("text3", &E::text3),
        member("text4", &E::text4), member("specialDataGroups", &E::specialDataGroups),
        member("value2", &E::value2));
};

template <class V>
struct Of<SpecialDataGroup, V> {
    using E = typename Deferred<V, SpecialDataGroup>::type;
    static constexpr auto list = std::make_tuple(member("items", &E::items));
};

template <class V>
struct Of<SpecialData, V> {
    using E = typename Deferred<V, SpecialData>::type;
    static constexpr auto list =
        std::make_tuple(member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
                        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4));
};

template <class V>
struct Of<VariantIdentResult, V> {
    using E = typename Deferred<V, VariantIdentResult>::type;
    static constexpr auto list =
        std::make_tuple(member("target", &E::target), member("status", &E::status),
                        member("error", &E::error), member("variant", &E::variant));
};

template <class V>
struct Of<ReadDataResult, V> {
    using E = typename Deferred<V, ReadDataResult>::type;
    static constexpr auto list = std::make_tuple(
        member("target", &E::target), member("status", &E::status), member("text", &E::text),
        member("error", &E::error), member("parameters", &E::parameters));
};

template <class V>
struct Of<Target, V> {
    using E = typename Deferred<V, Target>::type;
    static constexpr auto list = std::make_tuple(
        member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
        member("value1", &E::value1), member("text1", &E::text1), member("text2", &E::text2),
        member("items", &E::items), member("names", &E::names), member("text3", &E::text3),
        member("text4", &E::text4), member("value2", &E::value2), member("text5", &E::text5));
};

template <class V>
struct Of<TargetStatus, V> {
    using E = typename Deferred<V, TargetStatus>::type;
    static constexpr auto list = std::make_tuple(
        member("target", &E::target), member("text", &E::text), member("error", &E::error),
        member("values", &E::values), member("text2", &E::text2));
};

template <class V>
struct Of<TargetFilter, V> {
    using E = typename Deferred<V, TargetFilter>::type;
    static constexpr auto list = std::make_tuple(
        member("pattern", &E::pattern), member("flag", &E::flag), member("value", &E::value));
};

template <class V>
struct Of<ParameterInput, V> {
    using E = typename Deferred<V, ParameterInput>::type;
    static constexpr auto list = std::make_tuple(
        member("name", &E::name), member("children", &E::children), member("value", &E::value));
};

template <class V>
struct Of<ServiceInput, V> {
    using E = typename Deferred<V, ServiceInput>::type;
    static constexpr auto list =
        std::make_tuple(member("parameters", &E::parameters), member("service", &E::service),
                        member("data", &E::data), member("value", &E::value));
};

template <class V>
struct Of<ServiceResult, V> {
    using E = typename Deferred<V, ServiceResult>::type;
    static constexpr auto list =
        std::make_tuple(member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
                        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
                        member("responses", &E::responses), member("status", &E::status),
                        member("text1", &E::text1), member("error", &E::error),
                        member("request", &E::request), member("value1", &E::value1));
};

template <class V>
struct Of<ResponseResult, V> {
    using E = typename Deferred<V, ResponseResult>::type;
    static constexpr auto list =
        std::make_tuple(member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
                        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
                        member("flag", &E::flag), member("error", &E::error),
                        member("data", &E::data), member("value1", &E::value1),
                        member("value2", &E::value2), member("parameters", &E::parameters));
};

template <class V>
struct Of<RequestResult, V> {
    using E = typename Deferred<V, RequestResult>::type;
    static constexpr auto list = std::make_tuple(
        member("error", &E::error), member("data", &E::data), member("value1", &E::value1),
        member("value2", &E::value2), member("parameters", &E::parameters));
};

template <class V>
struct Of<UnlockResult, V> {
    using E = typename Deferred<V, UnlockResult>::type;
    static constexpr auto list =
        std::make_tuple(member("value", &E::value), member("services", &E::services));
};

template <class V>
struct Of<ServiceInfo, V> {
    using E = typename Deferred<V, ServiceInfo>::type;
    static constexpr auto list = std::make_tuple(
        member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
        member("flag", &E::flag), member("responses", &E::responses),
        member("parameters", &E::parameters), member("text1", &E::text1),
        member("items", &E::items), member("error", &E::error), member("values", &E::values));
};

template <class V>
struct Of<ResponseInfo, V> {
    using E = typename Deferred<V, ResponseInfo>::type;
    static constexpr auto list =
        std::make_tuple(member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
                        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
                        member("status", &E::status), member("parameters", &E::parameters));
};

template <class V>
struct Of<ParameterInfo, V> {
    using E = typename Deferred<V, ParameterInfo>::type;
    static constexpr auto list = std::make_tuple(
        member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
        member("text1", &E::text1), member("text2", &E::text2), member("text3", &E::text3),
        member("value1", &E::value1), member("text4", &E::text4), member("children", &E::children),
        member("text5", &E::text5), member("names", &E::names), member("flag1", &E::flag1),
        member("value2", &E::value2), member("error", &E::error), member("flag2", &E::flag2),
        member("values", &E::values), member("flag3", &E::flag3),
        member("constraint1", &E::constraint1), member("constraint2", &E::constraint2),
        member("text6", &E::text6), member("text7", &E::text7), member("flag4", &E::flag4),
        member("unit", &E::unit));
};

template <class V>
struct Of<ConstraintInfo, V> {
    using E = typename Deferred<V, ConstraintInfo>::type;
    static constexpr auto list =
        std::make_tuple(member("text1", &E::text1), member("text2", &E::text2),
                        member("flag", &E::flag), member("scales", &E::scales));
};

template <class V>
struct Of<ScaleConstraintInfo, V> {
    using E = typename Deferred<V, ScaleConstraintInfo>::type;
    static constexpr auto list =
        std::make_tuple(member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
                        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
                        member("text1", &E::text1), member("text2", &E::text2),
                        member("flag", &E::flag), member("value", &E::value));
};

template <class V>
struct Of<UnitInfo, V> {
    using E = typename Deferred<V, UnitInfo>::type;
    static constexpr auto list = std::make_tuple(
        member("values", &E::values), member("value1", &E::value1), member("flag1", &E::flag1),
        member("value2", &E::value2), member("flag2", &E::flag2));
};

template <class V>
struct Of<ParameterInfoConfig, V> {
    using E = typename Deferred<V, ParameterInfoConfig>::type;
    static constexpr auto list = std::make_tuple(
        member("text1", &E::text1), member("text2", &E::text2), member("value", &E::value),
        member("text3", &E::text3), member("text4", &E::text4));
};

template <class V>
struct Of<KelEvent, V> {
    using E = typename Deferred<V, KelEvent>::type;
    static constexpr auto list = std::make_tuple(
        member("name", &E::name), member("kind", &E::kind), member("code", &E::code),
        member("text", &E::text), member("error", &E::error), member("detail", &E::detail));
};

template <class V>
struct Of<EventReport, V> {
    using E = typename Deferred<V, EventReport>::type;
    static constexpr auto list = std::make_tuple(member("events", &E::events));
};

template <class V>
struct Of<FileFilter, V> {
    using E = typename Deferred<V, FileFilter>::type;
    static constexpr auto list = std::make_tuple(
        member("pattern", &E::pattern), member("flag", &E::flag), member("value", &E::value));
};

template <class V>
struct Of<FilterPattern, V> {
    using E = typename Deferred<V, FilterPattern>::type;
    static constexpr auto list =
        std::make_tuple(member("pattern", &E::pattern), member("flag", &E::flag));
};

template <class V>
struct Of<TargetConfig, V> {
    using E = typename Deferred<V, TargetConfig>::type;
    static constexpr auto list = std::make_tuple(
        member("value", &E::value), member("text1", &E::text1), member("text2", &E::text2));
};

template <class V>
struct Of<ProjectConfig, V> {
    using E = typename Deferred<V, ProjectConfig>::type;
    static constexpr auto list = std::make_tuple(
        member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
        member("filters1", &E::filters1), member("value0", &E::value0),
        member("targets", &E::targets), member("filters2", &E::filters2),
        member("strings1", &E::strings1), member("text1", &E::text1), member("value1", &E::value1),
        member("text2", &E::text2), member("strings2", &E::strings2), member("text3", &E::text3),
        member("value2", &E::value2), member("value3", &E::value3), member("flags", &E::flags));
};

template <class V>
struct Of<ProjectDetails, V> {
    using E = typename Deferred<V, ProjectDetails>::type;
    static constexpr auto list = std::make_tuple(
        member("dbFiles1", &E::dbFiles1), member("dbFiles2", &E::dbFiles2),
        member("text1", &E::text1), member("value1", &E::value1), member("text2", &E::text2),
        member("value2", &E::value2), member("users", &E::users));
};

template <class V>
struct Of<DbFileInfo, V> {
    using E = typename Deferred<V, DbFileInfo>::type;
    static constexpr auto list = std::make_tuple(
        member("name", &E::name), member("path", &E::path), member("size", &E::size),
        member("loaded", &E::loaded), member("error", &E::error));
};

template <class V>
struct Of<SystemInfo, V> {
    using E = typename Deferred<V, SystemInfo>::type;
    static constexpr auto list = std::make_tuple(
        member("value1", &E::value1), member("value2", &E::value2), member("text1", &E::text1),
        member("value3", &E::value3), member("text2", &E::text2), member("text3", &E::text3),
        member("text4", &E::text4));
};

template <class V>
struct Of<SystemProperty, V> {
    using E = typename Deferred<V, SystemProperty>::type;
    static constexpr auto list = std::make_tuple(
        member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
        member("text1", &E::text1), member("text2", &E::text2), member("value1", &E::value1),
        member("children", &E::children), member("text3", &E::text3), member("error", &E::error),
        member("text4", &E::text4), member("value2", &E::value2), member("data", &E::data),
        member("value3", &E::value3), member("flag", &E::flag), member("value4", &E::value4));
};

template <class V>
struct Of<TarnApiConfig, V> {
    using E = typename Deferred<V, TarnApiConfig>::type;
    static constexpr auto list = std::make_tuple(
        member("value1", &E::value1), member("flag1", &E::flag1), member("flag2", &E::flag2),
        member("value2", &E::value2), member("server", &E::server), member("value3", &E::value3),
        member("value4", &E::value4), member("value5", &E::value5), member("flag3", &E::flag3),
        member("value6", &E::value6), member("value7", &E::value7),
        member("oauth2Configs", &E::oauth2Configs), member("text", &E::text));
};

template <class V>
struct Of<ServerConfig, V> {
    using E = typename Deferred<V, ServerConfig>::type;
    static constexpr auto list =
        std::make_tuple(member("address", &E::address), member("port", &E::port),
                        member("enabled", &E::enabled), member("name", &E::name));
};

template <class V>
struct Of<Oauth2Config, V> {
    using E = typename Deferred<V, Oauth2Config>::type;
    static constexpr auto list =
        std::make_tuple(member("issuer", &E::issuer), member("clientId", &E::clientId),
                        member("scopes", &E::scopes), member("redirectUrl", &E::redirectUrl));
};

template <class V>
struct Of<MoxConfig, V> {
    using E = typename Deferred<V, MoxConfig>::type;
    static constexpr auto list = std::make_tuple(
        member("text1", &E::text1), member("text2", &E::text2), member("text3", &E::text3),
        member("text4", &E::text4), member("text5", &E::text5), member("flag1", &E::flag1),
        member("flag2", &E::flag2), member("flag3", &E::flag3), member("value", &E::value),
        member("flag4", &E::flag4), member("flag5", &E::flag5), member("flag6", &E::flag6),
        member("text6", &E::text6), member("text7", &E::text7), member("tcp", &E::tcp));
};

template <class V>
struct Of<TcpInfo, V> {
    using E = typename Deferred<V, TcpInfo>::type;
    static constexpr auto list = std::make_tuple(
        member("value1", &E::value1), member("value2", &E::value2), member("value3", &E::value3),
        member("value4", &E::value4), member("value5", &E::value5), member("value6", &E::value6));
};

template <class V>
struct Of<StatusInfo, V> {
    using E = typename Deferred<V, StatusInfo>::type;
    static constexpr auto list = std::make_tuple(
        member("value1", &E::value1), member("value2", &E::value2), member("value3", &E::value3),
        member("value4", &E::value4), member("value5", &E::value5), member("value6", &E::value6),
        member("value7", &E::value7), member("value8", &E::value8));
};

template <class V>
struct Of<TransmissionInfo, V> {
    using E = typename Deferred<V, TransmissionInfo>::type;
    static constexpr auto list =
        std::make_tuple(member("value1", &E::value1), member("value2", &E::value2),
                        member("value3", &E::value3), member("value4", &E::value4));
};

template <class V>
struct Of<ProcessInfo, V> {
    using E = typename Deferred<V, ProcessInfo>::type;
    static constexpr auto list =
        std::make_tuple(member("processes", &E::processes), member("flag1", &E::flag1),
                        member("flag2", &E::flag2), member("text", &E::text));
};

template <class V>
struct Of<ProcessEntry, V> {
    using E = typename Deferred<V, ProcessEntry>::type;
    static constexpr auto list =
        std::make_tuple(member("value", &E::value), member("items1", &E::items1),
                        member("text", &E::text), member("items2", &E::items2));
};

template <class V>
struct Of<ProcessThread, V> {
    using E = typename Deferred<V, ProcessThread>::type;
    static constexpr auto list = std::make_tuple(member("id", &E::id), member("name", &E::name));
};

template <class V>
struct Of<ProcessMemory, V> {
    using E = typename Deferred<V, ProcessMemory>::type;
    static constexpr auto list =
        std::make_tuple(member("name", &E::name), member("bytes", &E::bytes));
};

template <class V>
struct Of<GlobalProtocolParameterSet, V> {
    using E = typename Deferred<V, GlobalProtocolParameterSet>::type;
    static constexpr auto list = std::make_tuple(
        member("text1", &E::text1), member("text2", &E::text2), member("text3", &E::text3),
        member("text4", &E::text4), member("parameters", &E::parameters));
};

template <class V>
struct Of<GlobalProtocolParameter, V> {
    using E = typename Deferred<V, GlobalProtocolParameter>::type;
    static constexpr auto list = std::make_tuple(
        member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
        member("value", &E::value), member("defaultValue", &E::defaultValue),
        member("infos", &E::infos), member("choices", &E::choices), member("error", &E::error),
        member("constraints", &E::constraints), member("tcp", &E::tcp),
        member("value1", &E::value1), member("flag", &E::flag));
};

template <class V>
struct Of<LoadDatabaseResult, V> {
    using E = typename Deferred<V, LoadDatabaseResult>::type;
    static constexpr auto list = std::make_tuple(member("text", &E::text), member("flag", &E::flag),
                                                 member("error", &E::error));
};

template <class V>
struct Of<InterfaceInformation, V> {
    using E = typename Deferred<V, InterfaceInformation>::type;
    static constexpr auto list = std::make_tuple(
        member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
        member("resources", &E::resources), member("flag1", &E::flag1), member("flag2", &E::flag2),
        member("text1", &E::text1), member("text2", &E::text2), member("flag3", &E::flag3),
        member("items", &E::items), member("value", &E::value));
};

template <class V>
struct Of<ResourceInformation, V> {
    using E = typename Deferred<V, ResourceInformation>::type;
    static constexpr auto list =
        std::make_tuple(member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
                        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
                        member("id", &E::id), member("pin", &E::pin), member("inUse", &E::inUse));
};

template <class V>
struct Of<InterfaceInformationItem, V> {
    using E = typename Deferred<V, InterfaceInformationItem>::type;
    static constexpr auto list =
        std::make_tuple(member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
                        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4));
};

template <class V>
struct Of<ScanInterfaceResult, V> {
    using E = typename Deferred<V, ScanInterfaceResult>::type;
    static constexpr auto list =
        std::make_tuple(member("interfaceInfo", &E::interfaceInfo), member("error", &E::error));
};

template <class V>
struct Of<DynInterfaceDetection, V> {
    using E = typename Deferred<V, DynInterfaceDetection>::type;
    static constexpr auto list =
        std::make_tuple(member("namePattern", &E::namePattern), member("kind", &E::kind),
                        member("onlyFree", &E::onlyFree));
};

template <class V>
struct Of<ModuleDyn, V> {
    using E = typename Deferred<V, ModuleDyn>::type;
    static constexpr auto list = std::make_tuple(
        member("name", &E::name), member("longName", &E::longName), member("vendor", &E::vendor),
        member("kind", &E::kind), member("address", &E::address),
        member("vendorModule", &E::vendorModule), member("flag1", &E::flag1),
        member("serialNumber", &E::serialNumber), member("firmware", &E::firmware),
        member("network", &E::network), member("resources", &E::resources),
        member("port", &E::port), member("flag2", &E::flag2), member("handle", &E::handle));
};

template <class V>
struct Of<DeviceInfo, V> {
    using E = typename Deferred<V, DeviceInfo>::type;
    static constexpr auto list = std::make_tuple(
        member("text1", &E::text1), member("value1", &E::value1), member("value2", &E::value2),
        member("text2", &E::text2), member("text3", &E::text3), member("value3", &E::value3),
        member("text4", &E::text4), member("text5", &E::text5), member("value4", &E::value4),
        member("value5", &E::value5), member("text6", &E::text6),
        member("protocols", &E::protocols), member("text7", &E::text7),
        member("modules", &E::modules), member("text8", &E::text8), member("flag", &E::flag),
        member("handle", &E::handle), member("value6", &E::value6), member("value8", &E::value8),
        member("value9", &E::value9), member("value10", &E::value10));
};

template <class V>
struct Of<PhysicalLinksOnModule, V> {
    using E = typename Deferred<V, PhysicalLinksOnModule>::type;
    static constexpr auto list =
        std::make_tuple(member("module", &E::module), member("links", &E::links));
};

template <class V>
struct Of<PhysicalLink, V> {
    using E = typename Deferred<V, PhysicalLink>::type;
    static constexpr auto list =
        std::make_tuple(member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
                        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
                        member("baudrate", &E::baudrate), member("enabled", &E::enabled));
};

template <class V>
struct Of<InterfaceConfiguration, V> {
    using E = typename Deferred<V, InterfaceConfiguration>::type;
    static constexpr auto list = std::make_tuple(member("entries", &E::entries));
};

template <class V>
struct Of<InterfaceConfigurationEntry, V> {
    using E = typename Deferred<V, InterfaceConfigurationEntry>::type;
    static constexpr auto list = std::make_tuple(
        member("text1", &E::text1), member("text2", &E::text2), member("text3", &E::text3),
        member("text4", &E::text4), member("text5", &E::text5), member("value", &E::value),
        member("flag", &E::flag), member("items", &E::items));
};

template <class V>
struct Of<InterfaceProvider, V> {
    using E = typename Deferred<V, InterfaceProvider>::type;
    static constexpr auto list = std::make_tuple(
        member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
        member("text", &E::text), member("value", &E::value), member("flag", &E::flag));
};

template <class V>
struct Of<InterfaceProviderDyn, V> {
    using E = typename Deferred<V, InterfaceProviderDyn>::type;
    static constexpr auto list = std::make_tuple(
        member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
        member("text", &E::text), member("value", &E::value), member("flag", &E::flag));
};

template <class V>
struct Of<DoIPParameter, V> {
    using E = typename Deferred<V, DoIPParameter>::type;
    static constexpr auto list = std::make_tuple(
        member("value1", &E::value1), member("value2", &E::value2), member("text", &E::text),
        member("value3", &E::value3), member("strings", &E::strings));
};

template <class V>
struct Of<WLanSignalData, V> {
    using E = typename Deferred<V, WLanSignalData>::type;
    static constexpr auto list = std::make_tuple(
        member("value1", &E::value1), member("value2", &E::value2), member("value3", &E::value3),
        member("value4", &E::value4), member("value5", &E::value5), member("value6", &E::value6),
        member("value7", &E::value7), member("value8", &E::value8), member("value9", &E::value9),
        member("value10", &E::value10), member("value11", &E::value11), member("text", &E::text));
};

template <class V>
struct Of<SupportedInterface, V> {
    using E = typename Deferred<V, SupportedInterface>::type;
    static constexpr auto list = std::make_tuple(
        member("text1", &E::text1), member("text2", &E::text2), member("names", &E::names),
        member("value", &E::value), member("text3", &E::text3));
};

template <class V>
struct Of<MonitoringItem, V> {
    using E = typename Deferred<V, MonitoringItem>::type;
    static constexpr auto list = std::make_tuple(
        member("text1", &E::text1), member("data", &E::data), member("value1", &E::value1),
        member("value2", &E::value2), member("flag1", &E::flag1), member("flag2", &E::flag2),
        member("flag3", &E::flag3), member("value3", &E::value3), member("text2", &E::text2),
        member("value4", &E::value4), member("detail", &E::detail));
};

template <class V>
struct Of<MonitoringItemDetail, V> {
    using E = typename Deferred<V, MonitoringItemDetail>::type;
    static constexpr auto list =
        std::make_tuple(member("response", &E::response), member("text", &E::text));
};

template <class V>
struct Of<PduMonitoringItem, V> {
    using E = typename Deferred<V, PduMonitoringItem>::type;
    static constexpr auto list = std::make_tuple(
        member("value1", &E::value1), member("data", &E::data), member("detail", &E::detail),
        member("text1", &E::text1), member("text2", &E::text2), member("value2", &E::value2),
        member("text3", &E::text3));
};

template <class V>
struct Of<PduMonitoringItemDetail, V> {
    using E = typename Deferred<V, PduMonitoringItemDetail>::type;
    static constexpr auto list =
        std::make_tuple(member("sequence", &E::sequence), member("exchange", &E::exchange));
};

template <class V>
struct Of<FileSystemEntry, V> {
    using E = typename Deferred<V, FileSystemEntry>::type;
    static constexpr auto list = std::make_tuple(
        member("name", &E::name), member("error", &E::error), member("flag", &E::flag),
        member("value1", &E::value1), member("text1", &E::text1), member("text2", &E::text2));
};

template <class V>
struct Of<FileInfo, V> {
    using E = typename Deferred<V, FileInfo>::type;
    static constexpr auto list = std::make_tuple(
        member("name", &E::name), member("error", &E::error), member("flag", &E::flag),
        member("value1", &E::value1), member("text1", &E::text1), member("text2", &E::text2),
        member("value2", &E::value2), member("value3", &E::value3));
};

template <class V>
struct Of<DirectoryInfo, V> {
    using E = typename Deferred<V, DirectoryInfo>::type;
    static constexpr auto list = std::make_tuple(
        member("name", &E::name), member("error", &E::error), member("flag", &E::flag),
        member("value1", &E::value1), member("text1", &E::text1), member("text2", &E::text2),
        member("files", &E::files), member("directories", &E::directories),
        member("flag2", &E::flag2));
};

template <class V>
struct Of<FileCopyResult, V> {
    using E = typename Deferred<V, FileCopyResult>::type;
    static constexpr auto list = std::make_tuple(
        member("value1", &E::value1), member("text", &E::text), member("error", &E::error),
        member("file", &E::file), member("value2", &E::value2));
};

template <class V>
struct Of<DirectoryCopyResult, V> {
    using E = typename Deferred<V, DirectoryCopyResult>::type;
    static constexpr auto list =
        std::make_tuple(member("value1", &E::value1), member("text", &E::text),
                        member("error", &E::error), member("directory", &E::directory));
};

template <class V>
struct Of<DirectoryCopyItem, V> {
    using E = typename Deferred<V, DirectoryCopyItem>::type;
    static constexpr auto list =
        std::make_tuple(member("source", &E::source), member("target", &E::target),
                        member("files", &E::files), member("directories", &E::directories),
                        member("bytes", &E::bytes), member("failures", &E::failures));
};

template <class V>
struct Of<PathCopyResult, V> {
    using E = typename Deferred<V, PathCopyResult>::type;
    static constexpr auto list =
        std::make_tuple(member("value1", &E::value1), member("error", &E::error),
                        member("value2", &E::value2), member("item", &E::item));
};

template <class V>
struct Of<PathCopyItem, V> {
    using E = typename Deferred<V, PathCopyItem>::type;
    static constexpr auto list = std::make_tuple(
        member("source", &E::source), member("target", &E::target), member("size", &E::size));
};

template <class V>
struct Of<FileReferenceResult, V> {
    using E = typename Deferred<V, FileReferenceResult>::type;
    static constexpr auto list =
        std::make_tuple(member("references", &E::references), member("error", &E::error));
};

template <class V>
struct Of<FileCopyConfig, V> {
    using E = typename Deferred<V, FileCopyConfig>::type;
    static constexpr auto list =
        std::make_tuple(member("files", &E::files), member("target", &E::target),
                        member("overwrite", &E::overwrite));
};

template <class V>
struct Of<DirectoryCopyConfig, V> {
    using E = typename Deferred<V, DirectoryCopyConfig>::type;
    static constexpr auto list =
        std::make_tuple(member("directories", &E::directories), member("target", &E::target),
                        member("overwrite", &E::overwrite), member("recursive", &E::recursive),
                        member("pattern", &E::pattern));
};

template <class V>
struct Of<PathCopyConfig, V> {
    using E = typename Deferred<V, PathCopyConfig>::type;
    static constexpr auto list =
        std::make_tuple(member("source", &E::source), member("target", &E::target),
                        member("overwrite", &E::overwrite));
};

template <class V>
struct Of<UserInfo, V> {
    using E = typename Deferred<V, UserInfo>::type;
    static constexpr auto list = std::make_tuple(member("name", &E::name), member("text", &E::text),
                                                 member("value", &E::value));
};

template <class V>
struct Of<LogInOutConfig, V> {
    using E = typename Deferred<V, LogInOutConfig>::type;
    static constexpr auto list =
        std::make_tuple(member("user", &E::user), secret("password", &E::password));
};

template <class V>
struct Of<TarnApiServerConfig, V> {
    using E = typename Deferred<V, TarnApiServerConfig>::type;
    static constexpr auto list = std::make_tuple(
        member("users", &E::users), member("flag", &E::flag), member("value1", &E::value1),
        member("text1", &E::text1), member("text2", &E::text2), member("filters", &E::filters),
        member("text3", &E::text3), member("text4", &E::text4), member("users2", &E::users2),
        member("value2", &E::value2));
};

template <class V>
struct Of<ServerSettings, V> {
    using E = typename Deferred<V, ServerSettings>::type;
    static constexpr auto list =
        std::make_tuple(member("flag", &E::flag), member("value1", &E::value1),
                        member("value2", &E::value2), member("value3", &E::value3));
};

template <class V>
struct Of<FlashSessionInfo, V> {
    using E = typename Deferred<V, FlashSessionInfo>::type;
    static constexpr auto list = std::make_tuple(
        member("name", &E::name), member("target", &E::target),
        member("description", &E::description), member("version", &E::version),
        member("size", &E::size), member("duration", &E::duration), member("level", &E::level));
};

template <class V>
struct Of<FlashSessionResult, V> {
    using E = typename Deferred<V, FlashSessionResult>::type;
    static constexpr auto list =
        std::make_tuple(member("name", &E::name), member("target", &E::target),
                        member("status", &E::status), member("versionBefore", &E::versionBefore),
                        member("versionAfter", &E::versionAfter), member("size", &E::size),
                        member("transferred", &E::transferred), member("progress", &E::progress),
                        member("duration", &E::duration), member("error", &E::error));
};

template <class V>
struct Of<FlashSessionsConfig, V> {
    using E = typename Deferred<V, FlashSessionsConfig>::type;
    static constexpr auto list = std::make_tuple(
        member("target", &E::target), member("sessions", &E::sessions),
        member("blockLength", &E::blockLength), member("stopOnError", &E::stopOnError));
};

template <class V>
struct Of<CodingStringResult, V> {
    using E = typename Deferred<V, CodingStringResult>::type;
    static constexpr auto list =
        std::make_tuple(member("target", &E::target), member("status", &E::status),
                        member("identifier", &E::identifier), member("coding", &E::coding),
                        member("data", &E::data), member("error", &E::error));
};

template <class V>
struct Of<CodingFileResult, V> {
    using E = typename Deferred<V, CodingFileResult>::type;
    static constexpr auto list = std::make_tuple(
        member("target", &E::target), member("status", &E::status), member("written", &E::written),
        member("coding", &E::coding), member("data", &E::data), member("verified", &E::verified),
        member("error", &E::error));
};

template <class V>
struct Of<QuickTestResult, V> {
    using E = typename Deferred<V, QuickTestResult>::type;
    static constexpr auto list = std::make_tuple(
        member("target", &E::target), member("status", &E::status), member("variant", &E::variant),
        member("identified", &E::identified), member("dtcs", &E::dtcs), member("error", &E::error));
};

template <class V>
struct Of<EcuConfigurationResult, V> {
    using E = typename Deferred<V, EcuConfigurationResult>::type;
    static constexpr auto list = std::make_tuple(
        member("target", &E::target), member("configuration", &E::configuration),
        member("status", &E::status), member("written", &E::written), member("error", &E::error));
};

template <class V>
struct Of<EcuOrderEntry, V> {
    using E = typename Deferred<V, EcuOrderEntry>::type;
    static constexpr auto list = std::make_tuple(
        member("target", &E::target), member("bus", &E::bus), member("address", &E::address),
        member("gateway", &E::gateway), member("optional", &E::optional));
};

template <class V>
struct Of<VehicleUpdateConfig, V> {
    using E = typename Deferred<V, VehicleUpdateConfig>::type;
    static constexpr auto list =
        std::make_tuple(member("targets", &E::targets), member("packages", &E::packages),
                        member("stopOnError", &E::stopOnError), member("force", &E::force),
                        member("blockLength", &E::blockLength));
};

template <class V>
struct Of<VehicleUpdateResult, V> {
    using E = typename Deferred<V, VehicleUpdateResult>::type;
    static constexpr auto list = std::make_tuple(
        member("target", &E::target), member("status", &E::status), member("package", &E::package),
        member("versionBefore", &E::versionBefore), member("versionAfter", &E::versionAfter),
        member("position", &E::position), member("progress", &E::progress),
        member("overallProgress", &E::overallProgress), member("duration", &E::duration),
        member("error", &E::error));
};

template <class V>
struct Of<UpdatePackageInfo, V> {
    using E = typename Deferred<V, UpdatePackageInfo>::type;
    static constexpr auto list = std::make_tuple(
        member("name", &E::name), member("version", &E::version),
        member("description", &E::description), member("kind", &E::kind),
        member("targets", &E::targets), member("size", &E::size), member("checksum", &E::checksum),
        member("location", &E::location), member("state", &E::state));
};

template <class V>
struct Of<VehicleReportConfig, V> {
    using E = typename Deferred<V, VehicleReportConfig>::type;
    static constexpr auto list =
        std::make_tuple(member("name", &E::name), member("title", &E::title),
                        member("comment", &E::comment), member("targets", &E::targets),
                        member("identification", &E::identification), member("dtcs", &E::dtcs));
};

template <class V>
struct Of<VehicleData, V> {
    using E = typename Deferred<V, VehicleData>::type;
    static constexpr auto list = std::make_tuple(
        member("vin", &E::vin), member("model", &E::model), member("target", &E::target),
        member("variant", &E::variant), member("softwareVersion", &E::softwareVersion),
        member("bus", &E::bus), member("address", &E::address), member("status", &E::status),
        member("dtcCount", &E::dtcCount));
};

template <class V>
struct Of<UploadReportConfiguration, V> {
    using E = typename Deferred<V, UploadReportConfiguration>::type;
    static constexpr auto list =
        std::make_tuple(member("reportFile", &E::reportFile), member("folder", &E::folder),
                        member("name", &E::name), member("vin", &E::vin), member("user", &E::user),
                        member("comment", &E::comment), member("overwrite", &E::overwrite),
                        member("withTwin", &E::withTwin));
};

template <class V>
struct Of<VehicleInformation, V> {
    using E = typename Deferred<V, VehicleInformation>::type;
    static constexpr auto list = std::make_tuple(
        member("vin", &E::vin), member("model", &E::model), member("modelYear", &E::modelYear),
        member("mileage", &E::mileage), member("licensePlate", &E::licensePlate),
        member("equipment", &E::equipment));
};

} // namespace Varno::Kel_cpp::Fields
