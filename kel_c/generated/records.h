// Generated from the interface description by tools/generate.py. Do not edit.
// Field tables of the C records: each pairs a C member with its engine member, in
// record order. Conversion, release and streaming walk these tables.
#pragma once

#include "record_fields.h"

namespace kel {

template <class V>
struct Record<::MvciServerError, V> {
    using C = typename Deferred<V, ::MvciServerError>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::MvciServerError>::type;
    static constexpr const char* name = "MvciServerError";
    static constexpr auto fields = std::make_tuple(
        field(&C::code, &Engine::code), field(&C::codeText, &Engine::codeText),
        field(&C::vendorCode, &Engine::vendorCode),
        field(&C::vendorCodeText, &Engine::vendorCodeText),
        field(&C::extraText, &Engine::extraText), field(&C::extraCode, &Engine::extraCode));
};

template <class V>
struct Record<::NegativeResponse, V> {
    using C = typename Deferred<V, ::NegativeResponse>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::NegativeResponse>::type;
    static constexpr const char* name = "NegativeResponse";
    static constexpr auto fields =
        std::make_tuple(field(&C::code, &Engine::code), field(&C::text, &Engine::text),
                        field(&C::value1, &Engine::value1), field(&C::value2, &Engine::value2),
                        field(&C::bytes, &C::byteCount, &Engine::bytes));
};

template <class V>
struct Record<::KelError, V> {
    using C = typename Deferred<V, ::KelError>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::KelError>::type;
    static constexpr const char* name = "KelError";
    static constexpr auto fields =
        std::make_tuple(field(&C::code, &Engine::code), field(&C::message, &Engine::message),
                        field(&C::details, &Engine::details), field(&C::subCode, &Engine::subCode),
                        field(&C::mvciError, &Engine::mvciError),
                        field(&C::negativeResponse, &Engine::negativeResponse));
};

template <class V>
struct Record<::NamedItem, V> {
    using C = typename Deferred<V, ::NamedItem>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::NamedItem>::type;
    static constexpr const char* name = "NamedItem";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4));
};

template <class V>
struct Record<::ParameterResult, V> {
    using C = typename Deferred<V, ::ParameterResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ParameterResult>::type;
    static constexpr const char* name = "ParameterResult";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::text1, &Engine::text1), field(&C::text2, &Engine::text2),
        field(&C::value1, &Engine::value1), field(&C::children, &C::childCount, &Engine::children),
        field(&C::text3, &Engine::text3), field(&C::error, &Engine::error),
        field(&C::text4, &Engine::text4), field(&C::value2, &Engine::value2),
        field(&C::data, &C::dataLength, &Engine::data), field(&C::value3, &Engine::value3),
        field(&C::flag, &Engine::flag), field(&C::value4, &Engine::value4));
};

template <class V>
struct Record<::ClearDtcResult, V> {
    using C = typename Deferred<V, ::ClearDtcResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ClearDtcResult>::type;
    static constexpr const char* name = "ClearDtcResult";
    static constexpr auto fields =
        std::make_tuple(field(&C::status, &Engine::status), field(&C::target, &Engine::target),
                        field(&C::error, &Engine::error));
};

template <class V>
struct Record<::DtcReadConfig, V> {
    using C = typename Deferred<V, ::DtcReadConfig>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::DtcReadConfig>::type;
    static constexpr const char* name = "DtcReadConfig";
    static constexpr auto fields =
        std::make_tuple(field(&C::value, &Engine::value), field(&C::flag1, &Engine::flag1),
                        field(&C::flag2, &Engine::flag2), field(&C::flag3, &Engine::flag3));
};

template <class V>
struct Record<::ReadDtcResult, V> {
    using C = typename Deferred<V, ::ReadDtcResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ReadDtcResult>::type;
    static constexpr const char* name = "ReadDtcResult";
    static constexpr auto fields = std::make_tuple(
        field(&C::status, &Engine::status), field(&C::target, &Engine::target),
        field(&C::error, &Engine::error), field(&C::dtcs, &C::dtcCount, &Engine::dtcs),
        field(&C::value, &Engine::value));
};

template <class V>
struct Record<::DtcResult, V> {
    using C = typename Deferred<V, ::DtcResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::DtcResult>::type;
    static constexpr const char* name = "DtcResult";
    static constexpr auto fields = std::make_tuple(
        field(&C::code, &Engine::code), field(&C::text1, &Engine::text1),
        field(&C::text2, &Engine::text2), field(&C::value1, &Engine::value1),
        field(&C::parameters1, &C::parameterCount1, &Engine::parameters1),
        field(&C::parameters2, &C::parameterCount2, &Engine::parameters2),
        field(&C::text3, &Engine::text3), field(&C::text4, &Engine::text4),
        field(&C::specialDataGroups, &C::specialDataGroupCount, &Engine::specialDataGroups),
        field(&C::value2, &Engine::value2));
};

template <class V>
struct Record<::SpecialDataGroup, V> {
    using C = typename Deferred<V, ::SpecialDataGroup>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::SpecialDataGroup>::type;
    static constexpr const char* name = "SpecialDataGroup";
    static constexpr auto fields = std::make_tuple(field(&C::items, &C::itemCount, &Engine::items));
};

template <class V>
struct Record<::VariantIdentResult, V> {
    using C = typename Deferred<V, ::VariantIdentResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::VariantIdentResult>::type;
    static constexpr const char* name = "VariantIdentResult";
    static constexpr auto fields =
        std::make_tuple(field(&C::target, &Engine::target), field(&C::status, &Engine::status),
                        field(&C::error, &Engine::error), field(&C::variant, &Engine::variant));
};

template <class V>
struct Record<::ReadDataResult, V> {
    using C = typename Deferred<V, ::ReadDataResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ReadDataResult>::type;
    static constexpr const char* name = "ReadDataResult";
    static constexpr auto fields =
        std::make_tuple(field(&C::target, &Engine::target), field(&C::status, &Engine::status),
                        field(&C::text, &Engine::text), field(&C::error, &Engine::error),
                        field(&C::parameters, &C::parameterCount, &Engine::parameters));
};

template <class V>
struct Record<::Target, V> {
    using C = typename Deferred<V, ::Target>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::Target>::type;
    static constexpr const char* name = "Target";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::value1, &Engine::value1), field(&C::text1, &Engine::text1),
        field(&C::text2, &Engine::text2), field(&C::items, &C::itemCount, &Engine::items),
        field(&C::names, &C::nameCount, &Engine::names, always), field(&C::text3, &Engine::text3),
        field(&C::text4, &Engine::text4), field(&C::value2, &Engine::value2),
        field(&C::text5, &Engine::text5));
};

template <class V>
struct Record<::TargetStatus, V> {
    using C = typename Deferred<V, ::TargetStatus>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::TargetStatus>::type;
    static constexpr const char* name = "TargetStatus";
    static constexpr auto fields =
        std::make_tuple(field(&C::target, &Engine::target), field(&C::text, &Engine::text),
                        field(&C::error, &Engine::error), field(&C::values, &Engine::values),
                        field(&C::text2, &Engine::text2));
};

template <class V>
struct Record<::TargetFilter, V> {
    using C = typename Deferred<V, ::TargetFilter>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::TargetFilter>::type;
    static constexpr const char* name = "TargetFilter";
    static constexpr auto fields =
        std::make_tuple(field(&C::pattern, &Engine::pattern), field(&C::flag, &Engine::flag),
                        field(&C::value, &Engine::value));
};

template <class V>
struct Record<::ParameterInput, V> {
    using C = typename Deferred<V, ::ParameterInput>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ParameterInput>::type;
    static constexpr const char* name = "ParameterInput";
    static constexpr auto fields = std::make_tuple(
        field(&C::name, &Engine::name), field(&C::children, &C::childCount, &Engine::children),
        field(&C::value, &Engine::value));
};

template <class V>
struct Record<::ServiceInput, V> {
    using C = typename Deferred<V, ::ServiceInput>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ServiceInput>::type;
    static constexpr const char* name = "ServiceInput";
    static constexpr auto fields = std::make_tuple(
        field(&C::parameters, &C::parameterCount, &Engine::parameters),
        field(&C::service, &Engine::service), field(&C::data, &C::dataLength, &Engine::data),
        field(&C::value, &Engine::value));
};

template <class V>
struct Record<::ServiceResult, V> {
    using C = typename Deferred<V, ::ServiceResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ServiceResult>::type;
    static constexpr const char* name = "ServiceResult";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::responses, &C::responseCount, &Engine::responses),
        field(&C::status, &Engine::status), field(&C::text1, &Engine::text1),
        field(&C::error, &Engine::error), field(&C::request, &Engine::request),
        field(&C::value1, &Engine::value1));
};

template <class V>
struct Record<::ResponseResult, V> {
    using C = typename Deferred<V, ::ResponseResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ResponseResult>::type;
    static constexpr const char* name = "ResponseResult";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::flag, &Engine::flag), field(&C::error, &Engine::error),
        field(&C::data, &C::dataLength, &Engine::data), field(&C::value1, &Engine::value1),
        field(&C::value2, &Engine::value2),
        field(&C::parameters, &C::parameterCount, &Engine::parameters));
};

template <class V>
struct Record<::RequestResult, V> {
    using C = typename Deferred<V, ::RequestResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::RequestResult>::type;
    static constexpr const char* name = "RequestResult";
    static constexpr auto fields = std::make_tuple(
        field(&C::error, &Engine::error), field(&C::data, &C::dataLength, &Engine::data),
        field(&C::value1, &Engine::value1), field(&C::value2, &Engine::value2),
        field(&C::parameters, &C::parameterCount, &Engine::parameters));
};

template <class V>
struct Record<::UnlockResult, V> {
    using C = typename Deferred<V, ::UnlockResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::UnlockResult>::type;
    static constexpr const char* name = "UnlockResult";
    static constexpr auto fields = std::make_tuple(
        field(&C::value, &Engine::value), field(&C::services, &C::serviceCount, &Engine::services));
};

template <class V>
struct Record<::ServiceInfo, V> {
    using C = typename Deferred<V, ::ServiceInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ServiceInfo>::type;
    static constexpr const char* name = "ServiceInfo";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::flag, &Engine::flag), field(&C::responses, &C::responseCount, &Engine::responses),
        field(&C::parameters, &C::parameterCount, &Engine::parameters),
        field(&C::text1, &Engine::text1), field(&C::items, &C::itemCount, &Engine::items),
        field(&C::error, &Engine::error), field(&C::values, &Engine::values));
};

template <class V>
struct Record<::ResponseInfo, V> {
    using C = typename Deferred<V, ::ResponseInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ResponseInfo>::type;
    static constexpr const char* name = "ResponseInfo";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::status, &Engine::status),
        field(&C::parameters, &C::parameterCount, &Engine::parameters));
};

template <class V>
struct Record<::ParameterInfo, V> {
    using C = typename Deferred<V, ::ParameterInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ParameterInfo>::type;
    static constexpr const char* name = "ParameterInfo";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::text1, &Engine::text1), field(&C::text2, &Engine::text2),
        field(&C::text3, &Engine::text3), field(&C::value1, &Engine::value1),
        field(&C::text4, &Engine::text4), field(&C::children, &C::childCount, &Engine::children),
        field(&C::text5, &Engine::text5), field(&C::names, &C::nameCount, &Engine::names, always),
        field(&C::flag1, &Engine::flag1), field(&C::value2, &Engine::value2),
        field(&C::error, &Engine::error), field(&C::flag2, &Engine::flag2),
        field(&C::values, &Engine::values), field(&C::flag3, &Engine::flag3),
        field(&C::constraint1, &Engine::constraint1), field(&C::constraint2, &Engine::constraint2),
        field(&C::text6, &Engine::text6), field(&C::text7, &Engine::text7),
        field(&C::flag4, &Engine::flag4), field(&C::unit, &Engine::unit));
};

template <class V>
struct Record<::ConstraintInfo, V> {
    using C = typename Deferred<V, ::ConstraintInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ConstraintInfo>::type;
    static constexpr const char* name = "ConstraintInfo";
    static constexpr auto fields = std::make_tuple(
        field(&C::text1, &Engine::text1), field(&C::text2, &Engine::text2),
        field(&C::flag, &Engine::flag), field(&C::scales, &C::scaleCount, &Engine::scales));
};

template <class V>
struct Record<::ScaleConstraintInfo, V> {
    using C = typename Deferred<V, ::ScaleConstraintInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ScaleConstraintInfo>::type;
    static constexpr const char* name = "ScaleConstraintInfo";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::text1, &Engine::text1), field(&C::text2, &Engine::text2),
        field(&C::flag, &Engine::flag), field(&C::value, &Engine::value));
};

template <class V>
struct Record<::UnitInfo, V> {
    using C = typename Deferred<V, ::UnitInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::UnitInfo>::type;
    static constexpr const char* name = "UnitInfo";
    static constexpr auto fields =
        std::make_tuple(field(&C::values, &Engine::values), field(&C::value1, &Engine::value1),
                        field(&C::flag1, &Engine::flag1), field(&C::value2, &Engine::value2),
                        field(&C::flag2, &Engine::flag2));
};

template <class V>
struct Record<::ParameterInfoConfig, V> {
    using C = typename Deferred<V, ::ParameterInfoConfig>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ParameterInfoConfig>::type;
    static constexpr const char* name = "ParameterInfoConfig";
    static constexpr auto fields =
        std::make_tuple(field(&C::text1, &Engine::text1), field(&C::text2, &Engine::text2),
                        field(&C::value, &Engine::value), field(&C::text3, &Engine::text3),
                        field(&C::text4, &Engine::text4));
};

template <class V>
struct Record<::KelEvent, V> {
    using C = typename Deferred<V, ::KelEvent>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::KelEvent>::type;
    static constexpr const char* name = "KelEvent";
    static constexpr auto fields =
        std::make_tuple(field(&C::name, &Engine::name), field(&C::kind, &Engine::kind),
                        field(&C::code, &Engine::code), field(&C::text, &Engine::text),
                        field(&C::error, &Engine::error), field(&C::detail, &Engine::detail));
};

template <class V>
struct Record<::EventReport, V> {
    using C = typename Deferred<V, ::EventReport>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::EventReport>::type;
    static constexpr const char* name = "EventReport";
    static constexpr auto fields =
        std::make_tuple(field(&C::events, &C::eventCount, &Engine::events));
};

template <class V>
struct Record<::FileFilter, V> {
    using C = typename Deferred<V, ::FileFilter>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::FileFilter>::type;
    static constexpr const char* name = "FileFilter";
    static constexpr auto fields =
        std::make_tuple(field(&C::pattern, &Engine::pattern), field(&C::flag, &Engine::flag),
                        field(&C::value, &Engine::value));
};

template <class V>
struct Record<::TargetConfig, V> {
    using C = typename Deferred<V, ::TargetConfig>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::TargetConfig>::type;
    static constexpr const char* name = "TargetConfig";
    static constexpr auto fields =
        std::make_tuple(field(&C::value, &Engine::value), field(&C::text1, &Engine::text1),
                        field(&C::text2, &Engine::text2));
};

template <class V>
struct Record<::ProjectConfig, V> {
    using C = typename Deferred<V, ::ProjectConfig>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ProjectConfig>::type;
    static constexpr const char* name = "ProjectConfig";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::filters1, &C::filterCount1, &Engine::filters1),
        field(&C::value0, &Engine::value0), field(&C::targets, &C::targetCount, &Engine::targets),
        field(&C::filters2, &C::filterCount2, &Engine::filters2),
        field(&C::strings1, &C::stringCount1, &Engine::strings1, always),
        field(&C::text1, &Engine::text1), field(&C::value1, &Engine::value1),
        field(&C::text2, &Engine::text2),
        field(&C::strings2, &C::stringCount2, &Engine::strings2, always),
        field(&C::text3, &Engine::text3), field(&C::value2, &Engine::value2),
        field(&C::value3, &Engine::value3), field(&C::flags, &Engine::flags));
};

template <class V>
struct Record<::ProjectDetails, V> {
    using C = typename Deferred<V, ::ProjectDetails>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ProjectDetails>::type;
    static constexpr const char* name = "ProjectDetails";
    static constexpr auto fields = std::make_tuple(
        field(&C::dbFiles1, &C::dbFileCount1, &Engine::dbFiles1),
        field(&C::dbFiles2, &C::dbFileCount2, &Engine::dbFiles2), field(&C::text1, &Engine::text1),
        field(&C::value1, &Engine::value1), field(&C::text2, &Engine::text2),
        field(&C::value2, &Engine::value2), field(&C::users, &C::userCount, &Engine::users));
};

template <class V>
struct Record<::DbFileInfo, V> {
    using C = typename Deferred<V, ::DbFileInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::DbFileInfo>::type;
    static constexpr const char* name = "DbFileInfo";
    static constexpr auto fields =
        std::make_tuple(field(&C::name, &Engine::name), field(&C::path, &Engine::path),
                        field(&C::size, &Engine::size), field(&C::loaded, &Engine::loaded),
                        field(&C::error, &Engine::error));
};

template <class V>
struct Record<::SystemInfo, V> {
    using C = typename Deferred<V, ::SystemInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::SystemInfo>::type;
    static constexpr const char* name = "SystemInfo";
    static constexpr auto fields =
        std::make_tuple(field(&C::value1, &Engine::value1), field(&C::value2, &Engine::value2),
                        field(&C::text1, &Engine::text1), field(&C::value3, &Engine::value3),
                        field(&C::text2, &Engine::text2), field(&C::text3, &Engine::text3),
                        field(&C::text4, &Engine::text4));
};

template <class V>
struct Record<::SystemProperty, V> {
    using C = typename Deferred<V, ::SystemProperty>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::SystemProperty>::type;
    static constexpr const char* name = "SystemProperty";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::text1, &Engine::text1), field(&C::text2, &Engine::text2),
        field(&C::value1, &Engine::value1), field(&C::children, &C::childCount, &Engine::children),
        field(&C::text3, &Engine::text3), field(&C::error, &Engine::error),
        field(&C::text4, &Engine::text4), field(&C::value2, &Engine::value2),
        field(&C::data, &C::dataLength, &Engine::data), field(&C::value3, &Engine::value3),
        field(&C::flag, &Engine::flag), field(&C::value4, &Engine::value4));
};

template <class V>
struct Record<::TarnApiConfig, V> {
    using C = typename Deferred<V, ::TarnApiConfig>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::TarnApiConfig>::type;
    static constexpr const char* name = "TarnApiConfig";
    static constexpr auto fields =
        std::make_tuple(field(&C::value1, &Engine::value1), field(&C::flag1, &Engine::flag1),
                        field(&C::flag2, &Engine::flag2), field(&C::value2, &Engine::value2),
                        field(&C::server, &Engine::server), field(&C::value3, &Engine::value3),
                        field(&C::value4, &Engine::value4), field(&C::value5, &Engine::value5),
                        field(&C::flag3, &Engine::flag3), field(&C::value6, &Engine::value6),
                        field(&C::value7, &Engine::value7),
                        field(&C::oauth2Configs, &C::oauth2ConfigCount, &Engine::oauth2Configs),
                        field(&C::text, &Engine::text));
};

template <class V>
struct Record<::ServerConfig, V> {
    using C = typename Deferred<V, ::ServerConfig>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ServerConfig>::type;
    static constexpr const char* name = "ServerConfig";
    static constexpr auto fields =
        std::make_tuple(field(&C::address, &Engine::address), field(&C::port, &Engine::port),
                        field(&C::enabled, &Engine::enabled), field(&C::name, &Engine::name));
};

template <class V>
struct Record<::Oauth2Config, V> {
    using C = typename Deferred<V, ::Oauth2Config>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::Oauth2Config>::type;
    static constexpr const char* name = "Oauth2Config";
    static constexpr auto fields =
        std::make_tuple(field(&C::issuer, &Engine::issuer), field(&C::clientId, &Engine::clientId),
                        field(&C::scopes, &C::scopeCount, &Engine::scopes),
                        field(&C::redirectUrl, &Engine::redirectUrl));
};

template <class V>
struct Record<::MoxConfig, V> {
    using C = typename Deferred<V, ::MoxConfig>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::MoxConfig>::type;
    static constexpr const char* name = "MoxConfig";
    static constexpr auto fields =
        std::make_tuple(field(&C::text1, &Engine::text1), field(&C::text2, &Engine::text2),
                        field(&C::text3, &Engine::text3), field(&C::text4, &Engine::text4),
                        field(&C::text5, &Engine::text5), field(&C::flag1, &Engine::flag1),
                        field(&C::flag2, &Engine::flag2), field(&C::flag3, &Engine::flag3),
                        field(&C::value, &Engine::value), field(&C::flag4, &Engine::flag4),
                        field(&C::flag5, &Engine::flag5), field(&C::flag6, &Engine::flag6),
                        field(&C::text6, &Engine::text6), field(&C::text7, &Engine::text7),
                        field(&C::tcp, &Engine::tcp));
};

template <class V>
struct Record<::TcpInfo, V> {
    using C = typename Deferred<V, ::TcpInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::TcpInfo>::type;
    static constexpr const char* name = "TcpInfo";
    static constexpr auto fields =
        std::make_tuple(field(&C::value1, &Engine::value1), field(&C::value2, &Engine::value2),
                        field(&C::value3, &Engine::value3), field(&C::value4, &Engine::value4),
                        field(&C::value5, &Engine::value5), field(&C::value6, &Engine::value6));
};

template <class V>
struct Record<::StatusInfo, V> {
    using C = typename Deferred<V, ::StatusInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::StatusInfo>::type;
    static constexpr const char* name = "StatusInfo";
    static constexpr auto fields =
        std::make_tuple(field(&C::value1, &Engine::value1), field(&C::value2, &Engine::value2),
                        field(&C::value3, &Engine::value3), field(&C::value4, &Engine::value4),
                        field(&C::value5, &Engine::value5), field(&C::value6, &Engine::value6),
                        field(&C::value7, &Engine::value7), field(&C::value8, &Engine::value8));
};

template <class V>
struct Record<::TransmissionInfo, V> {
    using C = typename Deferred<V, ::TransmissionInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::TransmissionInfo>::type;
    static constexpr const char* name = "TransmissionInfo";
    static constexpr auto fields =
        std::make_tuple(field(&C::value1, &Engine::value1), field(&C::value2, &Engine::value2),
                        field(&C::value3, &Engine::value3), field(&C::value4, &Engine::value4));
};

template <class V>
struct Record<::ProcessInfo, V> {
    using C = typename Deferred<V, ::ProcessInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ProcessInfo>::type;
    static constexpr const char* name = "ProcessInfo";
    static constexpr auto fields =
        std::make_tuple(field(&C::processes, &C::processCount, &Engine::processes),
                        field(&C::flag1, &Engine::flag1), field(&C::flag2, &Engine::flag2),
                        field(&C::text, &Engine::text));
};

template <class V>
struct Record<::ProcessEntry, V> {
    using C = typename Deferred<V, ::ProcessEntry>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ProcessEntry>::type;
    static constexpr const char* name = "ProcessEntry";
    static constexpr auto fields = std::make_tuple(
        field(&C::value, &Engine::value), field(&C::items1, &C::itemCount1, &Engine::items1),
        field(&C::text, &Engine::text), field(&C::items2, &C::itemCount2, &Engine::items2));
};

template <class V>
struct Record<::ProcessThread, V> {
    using C = typename Deferred<V, ::ProcessThread>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ProcessThread>::type;
    static constexpr const char* name = "ProcessThread";
    static constexpr auto fields =
        std::make_tuple(field(&C::id, &Engine::id), field(&C::name, &Engine::name));
};

template <class V>
struct Record<::ProcessMemory, V> {
    using C = typename Deferred<V, ::ProcessMemory>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ProcessMemory>::type;
    static constexpr const char* name = "ProcessMemory";
    static constexpr auto fields =
        std::make_tuple(field(&C::name, &Engine::name), field(&C::bytes, &Engine::bytes));
};

template <class V>
struct Record<::GlobalProtocolParameterSet, V> {
    using C = typename Deferred<V, ::GlobalProtocolParameterSet>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::GlobalProtocolParameterSet>::type;
    static constexpr const char* name = "GlobalProtocolParameterSet";
    static constexpr auto fields =
        std::make_tuple(field(&C::text1, &Engine::text1), field(&C::text2, &Engine::text2),
                        field(&C::text3, &Engine::text3), field(&C::text4, &Engine::text4),
                        field(&C::parameters, &C::parameterCount, &Engine::parameters));
};

template <class V>
struct Record<::GlobalProtocolParameter, V> {
    using C = typename Deferred<V, ::GlobalProtocolParameter>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::GlobalProtocolParameter>::type;
    static constexpr const char* name = "GlobalProtocolParameter";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::value, &Engine::value), field(&C::defaultValue, &Engine::defaultValue),
        field(&C::infos, &C::infoCount, &Engine::infos),
        field(&C::choices, &C::choiceCount, &Engine::choices, always),
        field(&C::error, &Engine::error),
        field(&C::constraints, &C::constraintCount, &Engine::constraints),
        field(&C::tcp, &Engine::tcp), field(&C::value1, &Engine::value1),
        field(&C::flag, &Engine::flag));
};

template <class V>
struct Record<::LoadDatabaseResult, V> {
    using C = typename Deferred<V, ::LoadDatabaseResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::LoadDatabaseResult>::type;
    static constexpr const char* name = "LoadDatabaseResult";
    static constexpr auto fields =
        std::make_tuple(field(&C::text, &Engine::text), field(&C::flag, &Engine::flag),
                        field(&C::error, &Engine::error));
};

template <class V>
struct Record<::InterfaceInformation, V> {
    using C = typename Deferred<V, ::InterfaceInformation>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::InterfaceInformation>::type;
    static constexpr const char* name = "InterfaceInformation";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::resources, &C::resourceCount, &Engine::resources),
        field(&C::flag1, &Engine::flag1), field(&C::flag2, &Engine::flag2),
        field(&C::text1, &Engine::text1), field(&C::text2, &Engine::text2),
        field(&C::flag3, &Engine::flag3), field(&C::items, &C::itemCount, &Engine::items),
        field(&C::value, &Engine::value));
};

template <class V>
struct Record<::ResourceInformation, V> {
    using C = typename Deferred<V, ::ResourceInformation>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ResourceInformation>::type;
    static constexpr const char* name = "ResourceInformation";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::id, &Engine::id), field(&C::pin, &Engine::pin), field(&C::inUse, &Engine::inUse));
};

template <class V>
struct Record<::InterfaceInformationItem, V> {
    using C = typename Deferred<V, ::InterfaceInformationItem>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::InterfaceInformationItem>::type;
    static constexpr const char* name = "InterfaceInformationItem";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4));
};

template <class V>
struct Record<::ScanInterfaceResult, V> {
    using C = typename Deferred<V, ::ScanInterfaceResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ScanInterfaceResult>::type;
    static constexpr const char* name = "ScanInterfaceResult";
    static constexpr auto fields = std::make_tuple(field(&C::interfaceInfo, &Engine::interfaceInfo),
                                                   field(&C::error, &Engine::error));
};

template <class V>
struct Record<::DynInterfaceDetection, V> {
    using C = typename Deferred<V, ::DynInterfaceDetection>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::DynInterfaceDetection>::type;
    static constexpr const char* name = "DynInterfaceDetection";
    static constexpr auto fields =
        std::make_tuple(field(&C::namePattern, &Engine::namePattern),
                        field(&C::kind, &Engine::kind), field(&C::onlyFree, &Engine::onlyFree));
};

template <class V>
struct Record<::ModuleDyn, V> {
    using C = typename Deferred<V, ::ModuleDyn>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ModuleDyn>::type;
    static constexpr const char* name = "ModuleDyn";
    static constexpr auto fields = std::make_tuple(
        field(&C::name, &Engine::name), field(&C::longName, &Engine::longName),
        field(&C::vendor, &Engine::vendor), field(&C::kind, &Engine::kind),
        field(&C::address, &Engine::address), field(&C::vendorModule, &Engine::vendorModule),
        field(&C::flag1, &Engine::flag1), field(&C::serialNumber, &Engine::serialNumber),
        field(&C::firmware, &Engine::firmware), field(&C::network, &Engine::network),
        field(&C::resources, &C::resourceCount, &Engine::resources), field(&C::port, &Engine::port),
        field(&C::flag2, &Engine::flag2), field(&C::handle, &Engine::handle));
};

template <class V>
struct Record<::DeviceInfo, V> {
    using C = typename Deferred<V, ::DeviceInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::DeviceInfo>::type;
    static constexpr const char* name = "DeviceInfo";
    static constexpr auto fields = std::make_tuple(
        field(&C::text1, &Engine::text1), field(&C::value1, &Engine::value1),
        field(&C::value2, &Engine::value2), field(&C::text2, &Engine::text2),
        field(&C::text3, &Engine::text3), field(&C::value3, &Engine::value3),
        field(&C::text4, &Engine::text4), field(&C::text5, &Engine::text5),
        field(&C::value4, &Engine::value4), field(&C::value5, &Engine::value5),
        field(&C::text6, &Engine::text6),
        field(&C::protocols, &C::protocolCount, &Engine::protocols),
        field(&C::text7, &Engine::text7), field(&C::modules, &C::moduleCount, &Engine::modules),
        field(&C::text8, &Engine::text8), field(&C::flag, &Engine::flag),
        field(&C::handle, &Engine::handle), field(&C::value6, &Engine::value6),
        field(&C::value8, &Engine::value8), field(&C::value9, &Engine::value9),
        field(&C::value10, &Engine::value10));
};

template <class V>
struct Record<::PhysicalLinksOnModule, V> {
    using C = typename Deferred<V, ::PhysicalLinksOnModule>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::PhysicalLinksOnModule>::type;
    static constexpr const char* name = "PhysicalLinksOnModule";
    static constexpr auto fields = std::make_tuple(field(&C::module, &Engine::module),
                                                   field(&C::links, &C::linkCount, &Engine::links));
};

template <class V>
struct Record<::PhysicalLink, V> {
    using C = typename Deferred<V, ::PhysicalLink>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::PhysicalLink>::type;
    static constexpr const char* name = "PhysicalLink";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::baudrate, &Engine::baudrate), field(&C::enabled, &Engine::enabled));
};

template <class V>
struct Record<::InterfaceConfiguration, V> {
    using C = typename Deferred<V, ::InterfaceConfiguration>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::InterfaceConfiguration>::type;
    static constexpr const char* name = "InterfaceConfiguration";
    static constexpr auto fields =
        std::make_tuple(field(&C::entries, &C::entryCount, &Engine::entries));
};

template <class V>
struct Record<::InterfaceConfigurationEntry, V> {
    using C = typename Deferred<V, ::InterfaceConfigurationEntry>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::InterfaceConfigurationEntry>::type;
    static constexpr const char* name = "InterfaceConfigurationEntry";
    static constexpr auto fields = std::make_tuple(
        field(&C::text1, &Engine::text1), field(&C::text2, &Engine::text2),
        field(&C::text3, &Engine::text3), field(&C::text4, &Engine::text4),
        field(&C::text5, &Engine::text5), field(&C::value, &Engine::value),
        field(&C::flag, &Engine::flag), field(&C::items, &C::itemCount, &Engine::items));
};

template <class V>
struct Record<::InterfaceProvider, V> {
    using C = typename Deferred<V, ::InterfaceProvider>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::InterfaceProvider>::type;
    static constexpr const char* name = "InterfaceProvider";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::text, &Engine::text), field(&C::value, &Engine::value),
        field(&C::flag, &Engine::flag));
};

template <class V>
struct Record<::DoIPParameter, V> {
    using C = typename Deferred<V, ::DoIPParameter>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::DoIPParameter>::type;
    static constexpr const char* name = "DoIPParameter";
    static constexpr auto fields =
        std::make_tuple(field(&C::value1, &Engine::value1), field(&C::value2, &Engine::value2),
                        field(&C::text, &Engine::text), field(&C::value3, &Engine::value3),
                        field(&C::strings, &C::stringCount, &Engine::strings));
};

template <class V>
struct Record<::WLanSignalData, V> {
    using C = typename Deferred<V, ::WLanSignalData>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::WLanSignalData>::type;
    static constexpr const char* name = "WLanSignalData";
    static constexpr auto fields =
        std::make_tuple(field(&C::value1, &Engine::value1), field(&C::value2, &Engine::value2),
                        field(&C::value3, &Engine::value3), field(&C::value4, &Engine::value4),
                        field(&C::value5, &Engine::value5), field(&C::value6, &Engine::value6),
                        field(&C::value7, &Engine::value7), field(&C::value8, &Engine::value8),
                        field(&C::value9, &Engine::value9), field(&C::value10, &Engine::value10),
                        field(&C::value11, &Engine::value11), field(&C::text, &Engine::text));
};

template <class V>
struct Record<::SupportedInterface, V> {
    using C = typename Deferred<V, ::SupportedInterface>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::SupportedInterface>::type;
    static constexpr const char* name = "SupportedInterface";
    static constexpr auto fields =
        std::make_tuple(field(&C::text1, &Engine::text1), field(&C::text2, &Engine::text2),
                        field(&C::names, &C::nameCount, &Engine::names),
                        field(&C::value, &Engine::value), field(&C::text3, &Engine::text3));
};

template <class V>
struct Record<::MonitoringItem, V> {
    using C = typename Deferred<V, ::MonitoringItem>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::MonitoringItem>::type;
    static constexpr const char* name = "MonitoringItem";
    static constexpr auto fields = std::make_tuple(
        field(&C::text1, &Engine::text1), field(&C::data, &C::dataLength, &Engine::data),
        field(&C::value1, &Engine::value1), field(&C::value2, &Engine::value2),
        field(&C::flag1, &Engine::flag1), field(&C::flag2, &Engine::flag2),
        field(&C::flag3, &Engine::flag3), field(&C::value3, &Engine::value3),
        field(&C::text2, &Engine::text2), field(&C::value4, &Engine::value4),
        field(&C::detail, &Engine::detail));
};

template <class V>
struct Record<::MonitoringItemDetail, V> {
    using C = typename Deferred<V, ::MonitoringItemDetail>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::MonitoringItemDetail>::type;
    static constexpr const char* name = "MonitoringItemDetail";
    static constexpr auto fields = std::make_tuple(
        field(&C::response, &C::responseLength, &Engine::response), field(&C::text, &Engine::text));
};

template <class V>
struct Record<::PduMonitoringItem, V> {
    using C = typename Deferred<V, ::PduMonitoringItem>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::PduMonitoringItem>::type;
    static constexpr const char* name = "PduMonitoringItem";
    static constexpr auto fields = std::make_tuple(
        field(&C::value1, &Engine::value1), field(&C::data, &C::dataLength, &Engine::data),
        field(&C::detail, &Engine::detail), field(&C::text1, &Engine::text1),
        field(&C::text2, &Engine::text2), field(&C::value2, &Engine::value2),
        field(&C::text3, &Engine::text3));
};

template <class V>
struct Record<::PduMonitoringItemDetail, V> {
    using C = typename Deferred<V, ::PduMonitoringItemDetail>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::PduMonitoringItemDetail>::type;
    static constexpr const char* name = "PduMonitoringItemDetail";
    static constexpr auto fields = std::make_tuple(field(&C::sequence, &Engine::sequence),
                                                   field(&C::exchange, &Engine::exchange));
};

template <class V>
struct Record<::FileInfo, V> {
    using C = typename Deferred<V, ::FileInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::FileInfo>::type;
    static constexpr const char* name = "FileInfo";
    static constexpr auto fields =
        std::make_tuple(field(&C::name, &Engine::name), field(&C::error, &Engine::error),
                        field(&C::flag, &Engine::flag), field(&C::value1, &Engine::value1),
                        field(&C::text1, &Engine::text1), field(&C::text2, &Engine::text2),
                        field(&C::value2, &Engine::value2), field(&C::value3, &Engine::value3));
};

template <class V>
struct Record<::DirectoryInfo, V> {
    using C = typename Deferred<V, ::DirectoryInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::DirectoryInfo>::type;
    static constexpr const char* name = "DirectoryInfo";
    static constexpr auto fields =
        std::make_tuple(field(&C::name, &Engine::name), field(&C::error, &Engine::error),
                        field(&C::flag, &Engine::flag), field(&C::value1, &Engine::value1),
                        field(&C::text1, &Engine::text1), field(&C::text2, &Engine::text2),
                        field(&C::files, &C::fileCount, &Engine::files),
                        outOnly(field(&C::directories, &C::directoryCount, &Engine::directories)),
                        outOnly(field(&C::flag2, &Engine::flag2)));
};

template <class V>
struct Record<::FileCopyResult, V> {
    using C = typename Deferred<V, ::FileCopyResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::FileCopyResult>::type;
    static constexpr const char* name = "FileCopyResult";
    static constexpr auto fields =
        std::make_tuple(field(&C::value1, &Engine::value1), field(&C::text, &Engine::text),
                        field(&C::error, &Engine::error), field(&C::file, &Engine::file),
                        field(&C::value2, &Engine::value2));
};

template <class V>
struct Record<::DirectoryCopyResult, V> {
    using C = typename Deferred<V, ::DirectoryCopyResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::DirectoryCopyResult>::type;
    static constexpr const char* name = "DirectoryCopyResult";
    static constexpr auto fields =
        std::make_tuple(field(&C::value1, &Engine::value1), field(&C::text, &Engine::text),
                        field(&C::error, &Engine::error), field(&C::directory, &Engine::directory));
};

template <class V>
struct Record<::DirectoryCopyItem, V> {
    using C = typename Deferred<V, ::DirectoryCopyItem>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::DirectoryCopyItem>::type;
    static constexpr const char* name = "DirectoryCopyItem";
    static constexpr auto fields = std::make_tuple(
        field(&C::source, &Engine::source), field(&C::target, &Engine::target),
        field(&C::files, &Engine::files), field(&C::directories, &Engine::directories),
        field(&C::bytes, &Engine::bytes), field(&C::failures, &C::failureCount, &Engine::failures));
};

template <class V>
struct Record<::PathCopyResult, V> {
    using C = typename Deferred<V, ::PathCopyResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::PathCopyResult>::type;
    static constexpr const char* name = "PathCopyResult";
    static constexpr auto fields =
        std::make_tuple(field(&C::value1, &Engine::value1), field(&C::error, &Engine::error),
                        field(&C::value2, &Engine::value2), field(&C::item, &Engine::item));
};

template <class V>
struct Record<::PathCopyItem, V> {
    using C = typename Deferred<V, ::PathCopyItem>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::PathCopyItem>::type;
    static constexpr const char* name = "PathCopyItem";
    static constexpr auto fields =
        std::make_tuple(field(&C::source, &Engine::source), field(&C::target, &Engine::target),
                        field(&C::size, &Engine::size));
};

template <class V>
struct Record<::FileReferenceResult, V> {
    using C = typename Deferred<V, ::FileReferenceResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::FileReferenceResult>::type;
    static constexpr const char* name = "FileReferenceResult";
    static constexpr auto fields =
        std::make_tuple(field(&C::references, &C::referenceCount, &Engine::references),
                        field(&C::error, &Engine::error));
};

template <class V>
struct Record<::FileCopyConfig, V> {
    using C = typename Deferred<V, ::FileCopyConfig>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::FileCopyConfig>::type;
    static constexpr const char* name = "FileCopyConfig";
    static constexpr auto fields = std::make_tuple(field(&C::files, &C::fileCount, &Engine::files),
                                                   field(&C::target, &Engine::target),
                                                   field(&C::overwrite, &Engine::overwrite));
};

template <class V>
struct Record<::DirectoryCopyConfig, V> {
    using C = typename Deferred<V, ::DirectoryCopyConfig>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::DirectoryCopyConfig>::type;
    static constexpr const char* name = "DirectoryCopyConfig";
    static constexpr auto fields = std::make_tuple(
        field(&C::directories, &C::directoryCount, &Engine::directories),
        field(&C::target, &Engine::target), field(&C::overwrite, &Engine::overwrite),
        field(&C::recursive, &Engine::recursive), field(&C::pattern, &Engine::pattern));
};

template <class V>
struct Record<::PathCopyConfig, V> {
    using C = typename Deferred<V, ::PathCopyConfig>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::PathCopyConfig>::type;
    static constexpr const char* name = "PathCopyConfig";
    static constexpr auto fields =
        std::make_tuple(field(&C::source, &Engine::source), field(&C::target, &Engine::target),
                        field(&C::overwrite, &Engine::overwrite));
};

template <class V>
struct Record<::UserInfo, V> {
    using C = typename Deferred<V, ::UserInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::UserInfo>::type;
    static constexpr const char* name = "UserInfo";
    static constexpr auto fields =
        std::make_tuple(field(&C::name, &Engine::name), field(&C::text, &Engine::text),
                        field(&C::value, &Engine::value));
};

template <class V>
struct Record<::LogInOutConfig, V> {
    using C = typename Deferred<V, ::LogInOutConfig>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::LogInOutConfig>::type;
    static constexpr const char* name = "LogInOutConfig";
    static constexpr auto fields =
        std::make_tuple(field(&C::user, &Engine::user), field(&C::password, &Engine::password));
};

template <class V>
struct Record<::TarnApiServerConfig, V> {
    using C = typename Deferred<V, ::TarnApiServerConfig>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::TarnApiServerConfig>::type;
    static constexpr const char* name = "TarnApiServerConfig";
    static constexpr auto fields = std::make_tuple(
        field(&C::users, &C::userCount, &Engine::users), field(&C::flag, &Engine::flag),
        field(&C::value1, &Engine::value1), field(&C::text1, &Engine::text1),
        field(&C::text2, &Engine::text2), field(&C::filters, &C::filterCount, &Engine::filters),
        field(&C::text3, &Engine::text3), field(&C::text4, &Engine::text4),
        field(&C::users2, &C::userCount2, &Engine::users2), field(&C::value2, &Engine::value2));
};

template <class V>
struct Record<::ServerSettings, V> {
    using C = typename Deferred<V, ::ServerSettings>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::ServerSettings>::type;
    static constexpr const char* name = "ServerSettings";
    static constexpr auto fields =
        std::make_tuple(field(&C::flag, &Engine::flag), field(&C::value1, &Engine::value1),
                        field(&C::value2, &Engine::value2), field(&C::value3, &Engine::value3));
};

template <class V>
struct Record<::FlashSessionInfo, V> {
    using C = typename Deferred<V, ::FlashSessionInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::FlashSessionInfo>::type;
    static constexpr const char* name = "FlashSessionInfo";
    static constexpr auto fields =
        std::make_tuple(field(&C::name, &Engine::name), field(&C::target, &Engine::target),
                        field(&C::description, &Engine::description),
                        field(&C::version, &Engine::version), field(&C::size, &Engine::size),
                        field(&C::duration, &Engine::duration), field(&C::level, &Engine::level));
};

template <class V>
struct Record<::FlashSessionResult, V> {
    using C = typename Deferred<V, ::FlashSessionResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::FlashSessionResult>::type;
    static constexpr const char* name = "FlashSessionResult";
    static constexpr auto fields = std::make_tuple(
        field(&C::name, &Engine::name), field(&C::target, &Engine::target),
        field(&C::status, &Engine::status), field(&C::versionBefore, &Engine::versionBefore),
        field(&C::versionAfter, &Engine::versionAfter), field(&C::size, &Engine::size),
        field(&C::transferred, &Engine::transferred), field(&C::progress, &Engine::progress),
        field(&C::duration, &Engine::duration), field(&C::error, &Engine::error));
};

template <class V>
struct Record<::FlashSessionsConfig, V> {
    using C = typename Deferred<V, ::FlashSessionsConfig>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::FlashSessionsConfig>::type;
    static constexpr const char* name = "FlashSessionsConfig";
    static constexpr auto fields = std::make_tuple(
        field(&C::target, &Engine::target),
        field(&C::sessions, &C::sessionCount, &Engine::sessions),
        field(&C::blockLength, &Engine::blockLength), field(&C::stopOnError, &Engine::stopOnError));
};

template <class V>
struct Record<::CodingStringResult, V> {
    using C = typename Deferred<V, ::CodingStringResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::CodingStringResult>::type;
    static constexpr const char* name = "CodingStringResult";
    static constexpr auto fields = std::make_tuple(
        field(&C::target, &Engine::target), field(&C::status, &Engine::status),
        field(&C::identifier, &Engine::identifier), field(&C::coding, &Engine::coding),
        field(&C::data, &C::dataLength, &Engine::data), field(&C::error, &Engine::error));
};

template <class V>
struct Record<::CodingFileResult, V> {
    using C = typename Deferred<V, ::CodingFileResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::CodingFileResult>::type;
    static constexpr const char* name = "CodingFileResult";
    static constexpr auto fields =
        std::make_tuple(field(&C::target, &Engine::target), field(&C::status, &Engine::status),
                        field(&C::written, &Engine::written), field(&C::coding, &Engine::coding),
                        field(&C::data, &C::dataLength, &Engine::data),
                        field(&C::verified, &Engine::verified), field(&C::error, &Engine::error));
};

template <class V>
struct Record<::QuickTestResult, V> {
    using C = typename Deferred<V, ::QuickTestResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::QuickTestResult>::type;
    static constexpr const char* name = "QuickTestResult";
    static constexpr auto fields = std::make_tuple(
        field(&C::target, &Engine::target), field(&C::status, &Engine::status),
        field(&C::variant, &Engine::variant), field(&C::identified, &Engine::identified),
        field(&C::dtcs, &C::dtcCount, &Engine::dtcs), field(&C::error, &Engine::error));
};

template <class V>
struct Record<::EcuConfigurationResult, V> {
    using C = typename Deferred<V, ::EcuConfigurationResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::EcuConfigurationResult>::type;
    static constexpr const char* name = "EcuConfigurationResult";
    static constexpr auto fields = std::make_tuple(
        field(&C::target, &Engine::target), field(&C::configuration, &Engine::configuration),
        field(&C::status, &Engine::status), field(&C::written, &Engine::written),
        field(&C::error, &Engine::error));
};

template <class V>
struct Record<::EcuOrderEntry, V> {
    using C = typename Deferred<V, ::EcuOrderEntry>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::EcuOrderEntry>::type;
    static constexpr const char* name = "EcuOrderEntry";
    static constexpr auto fields =
        std::make_tuple(field(&C::target, &Engine::target), field(&C::bus, &Engine::bus),
                        field(&C::address, &Engine::address), field(&C::gateway, &Engine::gateway),
                        field(&C::optional, &Engine::optional));
};

template <class V>
struct Record<::VehicleUpdateConfig, V> {
    using C = typename Deferred<V, ::VehicleUpdateConfig>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::VehicleUpdateConfig>::type;
    static constexpr const char* name = "VehicleUpdateConfig";
    static constexpr auto fields = std::make_tuple(
        field(&C::targets, &C::targetCount, &Engine::targets),
        field(&C::packages, &C::packageCount, &Engine::packages),
        field(&C::stopOnError, &Engine::stopOnError), field(&C::force, &Engine::force),
        field(&C::blockLength, &Engine::blockLength));
};

template <class V>
struct Record<::VehicleUpdateResult, V> {
    using C = typename Deferred<V, ::VehicleUpdateResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::VehicleUpdateResult>::type;
    static constexpr const char* name = "VehicleUpdateResult";
    static constexpr auto fields = std::make_tuple(
        field(&C::target, &Engine::target), field(&C::status, &Engine::status),
        field(&C::package, &Engine::package), field(&C::versionBefore, &Engine::versionBefore),
        field(&C::versionAfter, &Engine::versionAfter), field(&C::position, &Engine::position),
        field(&C::progress, &Engine::progress),
        field(&C::overallProgress, &Engine::overallProgress),
        field(&C::duration, &Engine::duration), field(&C::error, &Engine::error));
};

template <class V>
struct Record<::UpdatePackageInfo, V> {
    using C = typename Deferred<V, ::UpdatePackageInfo>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::UpdatePackageInfo>::type;
    static constexpr const char* name = "UpdatePackageInfo";
    static constexpr auto fields = std::make_tuple(
        field(&C::name, &Engine::name), field(&C::version, &Engine::version),
        field(&C::description, &Engine::description), field(&C::kind, &Engine::kind),
        field(&C::targets, &C::targetCount, &Engine::targets), field(&C::size, &Engine::size),
        field(&C::checksum, &Engine::checksum), field(&C::location, &Engine::location),
        field(&C::state, &Engine::state));
};

template <class V>
struct Record<::VehicleReportConfig, V> {
    using C = typename Deferred<V, ::VehicleReportConfig>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::VehicleReportConfig>::type;
    static constexpr const char* name = "VehicleReportConfig";
    static constexpr auto fields = std::make_tuple(
        field(&C::name, &Engine::name), field(&C::title, &Engine::title),
        field(&C::comment, &Engine::comment), field(&C::targets, &C::targetCount, &Engine::targets),
        field(&C::identification, &Engine::identification), field(&C::dtcs, &Engine::dtcs));
};

template <class V>
struct Record<::VehicleData, V> {
    using C = typename Deferred<V, ::VehicleData>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::VehicleData>::type;
    static constexpr const char* name = "VehicleData";
    static constexpr auto fields =
        std::make_tuple(field(&C::vin, &Engine::vin), field(&C::model, &Engine::model),
                        field(&C::target, &Engine::target), field(&C::variant, &Engine::variant),
                        field(&C::softwareVersion, &Engine::softwareVersion),
                        field(&C::bus, &Engine::bus), field(&C::address, &Engine::address),
                        field(&C::status, &Engine::status), field(&C::dtcCount, &Engine::dtcCount));
};

template <class V>
struct Record<::UploadReportConfiguration, V> {
    using C = typename Deferred<V, ::UploadReportConfiguration>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::UploadReportConfiguration>::type;
    static constexpr const char* name = "UploadReportConfiguration";
    static constexpr auto fields = std::make_tuple(
        field(&C::reportFile, &Engine::reportFile), field(&C::folder, &Engine::folder),
        field(&C::name, &Engine::name), field(&C::vin, &Engine::vin),
        field(&C::user, &Engine::user), field(&C::comment, &Engine::comment),
        field(&C::overwrite, &Engine::overwrite), field(&C::withTwin, &Engine::withTwin));
};

template <class V>
struct Record<::VehicleInformation, V> {
    using C = typename Deferred<V, ::VehicleInformation>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::VehicleInformation>::type;
    static constexpr const char* name = "VehicleInformation";
    static constexpr auto fields = std::make_tuple(
        field(&C::vin, &Engine::vin), field(&C::model, &Engine::model),
        field(&C::modelYear, &Engine::modelYear), field(&C::mileage, &Engine::mileage),
        field(&C::licensePlate, &Engine::licensePlate),
        field(&C::equipment, &C::equipmentCount, &Engine::equipment));
};

template <class V>
struct Alias<::ReadDtcResult, Varno::Kel_cpp::SupportedDtcResult, V> {
    using C = typename Deferred<V, ::ReadDtcResult>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::SupportedDtcResult>::type;
    static constexpr auto fields = std::make_tuple(
        field(&C::status, &Engine::status), field(&C::target, &Engine::target),
        field(&C::error, &Engine::error), field(&C::dtcs, &C::dtcCount, &Engine::dtcs));
};

template <class V>
struct Alias<::NamedItem, Varno::Kel_cpp::SpecialData, V> {
    using C = typename Deferred<V, ::NamedItem>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::SpecialData>::type;
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4));
};

template <class V>
struct Alias<::FileFilter, Varno::Kel_cpp::FilterPattern, V> {
    using C = typename Deferred<V, ::FileFilter>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::FilterPattern>::type;
    static constexpr auto fields =
        std::make_tuple(field(&C::pattern, &Engine::pattern), field(&C::flag, &Engine::flag));
};

template <class V>
struct Alias<::InterfaceProvider, Varno::Kel_cpp::InterfaceProviderDyn, V> {
    using C = typename Deferred<V, ::InterfaceProvider>::type;
    using Engine = typename Deferred<V, Varno::Kel_cpp::InterfaceProviderDyn>::type;
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::text, &Engine::text), field(&C::value, &Engine::value),
        field(&C::flag, &Engine::flag));
};

} // namespace kel
