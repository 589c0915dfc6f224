// Generated from the interface description by tools/generate.py. Do not edit.
// Field tables of the C records: each pairs a C member with its engine member, in
// record order. Conversion, release and streaming walk these tables.
#pragma once

#include "record_fields.h"

namespace kel {

template <>
struct Record<::MvciServerError> {
    using Engine = Varno::Kel_cpp::MvciServerError;
    static constexpr const char* name = "MvciServerError";
    static constexpr auto fields =
        std::make_tuple(field(&::MvciServerError::code, &Engine::code),
                        field(&::MvciServerError::codeText, &Engine::codeText),
                        field(&::MvciServerError::vendorCode, &Engine::vendorCode),
                        field(&::MvciServerError::vendorCodeText, &Engine::vendorCodeText),
                        field(&::MvciServerError::extraText, &Engine::extraText),
                        field(&::MvciServerError::extraCode, &Engine::extraCode));
};

template <>
struct Record<::NegativeResponse> {
    using Engine = Varno::Kel_cpp::NegativeResponse;
    static constexpr const char* name = "NegativeResponse";
    static constexpr auto fields = std::make_tuple(
        field(&::NegativeResponse::code, &Engine::code),
        field(&::NegativeResponse::text, &Engine::text),
        field(&::NegativeResponse::value1, &Engine::value1),
        field(&::NegativeResponse::value2, &Engine::value2),
        field(&::NegativeResponse::bytes, &::NegativeResponse::byteCount, &Engine::bytes));
};

template <>
struct Record<::KelError> {
    using Engine = Varno::Kel_cpp::KelError;
    static constexpr const char* name = "KelError";
    static constexpr auto fields = std::make_tuple(
        field(&::KelError::code, &Engine::code), field(&::KelError::message, &Engine::message),
        field(&::KelError::details, &Engine::details),
        field(&::KelError::subCode, &Engine::subCode),
        field(&::KelError::mvciError, &Engine::mvciError),
        field(&::KelError::negativeResponse, &Engine::negativeResponse));
};

template <>
struct Record<::NamedItem> {
    using Engine = Varno::Kel_cpp::NamedItem;
    static constexpr const char* name = "NamedItem";
    static constexpr auto fields =
        std::make_tuple(field(&::NamedItem::itemText1, &Engine::itemText1),
                        field(&::NamedItem::itemText2, &Engine::itemText2),
                        field(&::NamedItem::itemText3, &Engine::itemText3),
                        field(&::NamedItem::itemText4, &Engine::itemText4));
};

template <>
struct Record<::ParameterResult> {
    using Engine = Varno::Kel_cpp::ParameterResult;
    static constexpr const char* name = "ParameterResult";
    static constexpr auto fields = std::make_tuple(
        field(&::ParameterResult::itemText1, &Engine::itemText1),
        field(&::ParameterResult::itemText2, &Engine::itemText2),
        field(&::ParameterResult::itemText3, &Engine::itemText3),
        field(&::ParameterResult::itemText4, &Engine::itemText4),
        field(&::ParameterResult::text1, &Engine::text1),
        field(&::ParameterResult::text2, &Engine::text2),
        field(&::ParameterResult::value1, &Engine::value1),
        field(&::ParameterResult::children, &::ParameterResult::childCount, &Engine::children),
        field(&::ParameterResult::text3, &Engine::text3),
        field(&::ParameterResult::error, &Engine::error),
        field(&::ParameterResult::text4, &Engine::text4),
        field(&::ParameterResult::value2, &Engine::value2),
        field(&::ParameterResult::data, &::ParameterResult::dataLength, &Engine::data),
        field(&::ParameterResult::value3, &Engine::value3),
        field(&::ParameterResult::flag, &Engine::flag),
        field(&::ParameterResult::value4, &Engine::value4));
};

template <>
struct Record<::ClearDtcResult> {
    using Engine = Varno::Kel_cpp::ClearDtcResult;
    static constexpr const char* name = "ClearDtcResult";
    static constexpr auto fields =
        std::make_tuple(field(&::ClearDtcResult::status, &Engine::status),
                        field(&::ClearDtcResult::target, &Engine::target),
                        field(&::ClearDtcResult::error, &Engine::error));
};

template <>
struct Record<::DtcReadConfig> {
    using Engine = Varno::Kel_cpp::DtcReadConfig;
    static constexpr const char* name = "DtcReadConfig";
    static constexpr auto fields = std::make_tuple(field(&::DtcReadConfig::value, &Engine::value),
                                                   field(&::DtcReadConfig::flag1, &Engine::flag1),
                                                   field(&::DtcReadConfig::flag2, &Engine::flag2),
                                                   field(&::DtcReadConfig::flag3, &Engine::flag3));
};

template <>
struct Record<::ReadDtcResult> {
    using Engine = Varno::Kel_cpp::ReadDtcResult;
    static constexpr const char* name = "ReadDtcResult";
    static constexpr auto fields =
        std::make_tuple(field(&::ReadDtcResult::status, &Engine::status),
                        field(&::ReadDtcResult::target, &Engine::target),
                        field(&::ReadDtcResult::error, &Engine::error),
                        field(&::ReadDtcResult::dtcs, &::ReadDtcResult::dtcCount, &Engine::dtcs),
                        field(&::ReadDtcResult::value, &Engine::value));
};

template <>
struct Record<::DtcResult> {
    using Engine = Varno::Kel_cpp::DtcResult;
    static constexpr const char* name = "DtcResult";
    static constexpr auto fields = std::make_tuple(
        field(&::DtcResult::code, &Engine::code), field(&::DtcResult::text1, &Engine::text1),
        field(&::DtcResult::text2, &Engine::text2), field(&::DtcResult::value1, &Engine::value1),
        field(&::DtcResult::parameters1, &::DtcResult::parameterCount1, &Engine::parameters1),
        field(&::DtcResult::parameters2, &::DtcResult::parameterCount2, &Engine::parameters2),
        field(&::DtcResult::text3, &Engine::text3), field(&::DtcResult::text4, &Engine::text4),
        field(&::DtcResult::specialDataGroups, &::DtcResult::specialDataGroupCount,
              &Engine::specialDataGroups),
        field(&::DtcResult::value2, &Engine::value2));
};

template <>
struct Record<::SpecialDataGroup> {
    using Engine = Varno::Kel_cpp::SpecialDataGroup;
    static constexpr const char* name = "SpecialDataGroup";
    static constexpr auto fields = std::make_tuple(
        field(&::SpecialDataGroup::items, &::SpecialDataGroup::itemCount, &Engine::items));
};

template <>
struct Record<::VariantIdentResult> {
    using Engine = Varno::Kel_cpp::VariantIdentResult;
    static constexpr const char* name = "VariantIdentResult";
    static constexpr auto fields =
        std::make_tuple(field(&::VariantIdentResult::target, &Engine::target),
                        field(&::VariantIdentResult::status, &Engine::status),
                        field(&::VariantIdentResult::error, &Engine::error),
                        field(&::VariantIdentResult::variant, &Engine::variant));
};

template <>
struct Record<::ReadDataResult> {
    using Engine = Varno::Kel_cpp::ReadDataResult;
    static constexpr const char* name = "ReadDataResult";
    static constexpr auto fields =
        std::make_tuple(field(&::ReadDataResult::target, &Engine::target),
                        field(&::ReadDataResult::status, &Engine::status),
                        field(&::ReadDataResult::text, &Engine::text),
                        field(&::ReadDataResult::error, &Engine::error),
                        field(&::ReadDataResult::parameters, &::ReadDataResult::parameterCount,
                              &Engine::parameters));
};

template <>
struct Record<::Target> {
    using Engine = Varno::Kel_cpp::Target;
    static constexpr const char* name = "Target";
    static constexpr auto fields = std::make_tuple(
        field(&::Target::itemText1, &Engine::itemText1),
        field(&::Target::itemText2, &Engine::itemText2),
        field(&::Target::itemText3, &Engine::itemText3),
        field(&::Target::itemText4, &Engine::itemText4), field(&::Target::value1, &Engine::value1),
        field(&::Target::text1, &Engine::text1), field(&::Target::text2, &Engine::text2),
        field(&::Target::items, &::Target::itemCount, &Engine::items),
        field(&::Target::names, &::Target::nameCount, &Engine::names, always),
        field(&::Target::text3, &Engine::text3), field(&::Target::text4, &Engine::text4),
        field(&::Target::value2, &Engine::value2), field(&::Target::text5, &Engine::text5));
};

template <>
struct Record<::TargetStatus> {
    using Engine = Varno::Kel_cpp::TargetStatus;
    static constexpr const char* name = "TargetStatus";
    static constexpr auto fields = std::make_tuple(field(&::TargetStatus::target, &Engine::target),
                                                   field(&::TargetStatus::text, &Engine::text),
                                                   field(&::TargetStatus::error, &Engine::error),
                                                   field(&::TargetStatus::values, &Engine::values),
                                                   field(&::TargetStatus::text2, &Engine::text2));
};

template <>
struct Record<::TargetFilter> {
    using Engine = Varno::Kel_cpp::TargetFilter;
    static constexpr const char* name = "TargetFilter";
    static constexpr auto fields = std::make_tuple(
        field(&::TargetFilter::pattern, &Engine::pattern),
        field(&::TargetFilter::flag, &Engine::flag), field(&::TargetFilter::value, &Engine::value));
};

template <>
struct Record<::ParameterInput> {
    using Engine = Varno::Kel_cpp::ParameterInput;
    static constexpr const char* name = "ParameterInput";
    static constexpr auto fields = std::make_tuple(
        field(&::ParameterInput::name, &Engine::name),
        field(&::ParameterInput::children, &::ParameterInput::childCount, &Engine::children),
        field(&::ParameterInput::value, &Engine::value));
};

template <>
struct Record<::ServiceInput> {
    using Engine = Varno::Kel_cpp::ServiceInput;
    static constexpr const char* name = "ServiceInput";
    static constexpr auto fields = std::make_tuple(
        field(&::ServiceInput::parameters, &::ServiceInput::parameterCount, &Engine::parameters),
        field(&::ServiceInput::service, &Engine::service),
        field(&::ServiceInput::data, &::ServiceInput::dataLength, &Engine::data),
        field(&::ServiceInput::value, &Engine::value));
};

template <>
struct Record<::ServiceResult> {
    using Engine = Varno::Kel_cpp::ServiceResult;
    static constexpr const char* name = "ServiceResult";
    static constexpr auto fields = std::make_tuple(
        field(&::ServiceResult::itemText1, &Engine::itemText1),
        field(&::ServiceResult::itemText2, &Engine::itemText2),
        field(&::ServiceResult::itemText3, &Engine::itemText3),
        field(&::ServiceResult::itemText4, &Engine::itemText4),
        field(&::ServiceResult::responses, &::ServiceResult::responseCount, &Engine::responses),
        field(&::ServiceResult::status, &Engine::status),
        field(&::ServiceResult::text1, &Engine::text1),
        field(&::ServiceResult::error, &Engine::error),
        field(&::ServiceResult::request, &Engine::request),
        field(&::ServiceResult::value1, &Engine::value1));
};

template <>
struct Record<::ResponseResult> {
    using Engine = Varno::Kel_cpp::ResponseResult;
    static constexpr const char* name = "ResponseResult";
    static constexpr auto fields = std::make_tuple(
        field(&::ResponseResult::itemText1, &Engine::itemText1),
        field(&::ResponseResult::itemText2, &Engine::itemText2),
        field(&::ResponseResult::itemText3, &Engine::itemText3),
        field(&::ResponseResult::itemText4, &Engine::itemText4),
        field(&::ResponseResult::flag, &Engine::flag),
        field(&::ResponseResult::error, &Engine::error),
        field(&::ResponseResult::data, &::ResponseResult::dataLength, &Engine::data),
        field(&::ResponseResult::value1, &Engine::value1),
        field(&::ResponseResult::value2, &Engine::value2),
        field(&::ResponseResult::parameters, &::ResponseResult::parameterCount,
              &Engine::parameters));
};

template <>
struct Record<::RequestResult> {
    using Engine = Varno::Kel_cpp::RequestResult;
    static constexpr const char* name = "RequestResult";
    static constexpr auto fields = std::make_tuple(
        field(&::RequestResult::error, &Engine::error),
        field(&::RequestResult::data, &::RequestResult::dataLength, &Engine::data),
        field(&::RequestResult::value1, &Engine::value1),
        field(&::RequestResult::value2, &Engine::value2),
        field(&::RequestResult::parameters, &::RequestResult::parameterCount, &Engine::parameters));
};

template <>
struct Record<::UnlockResult> {
    using Engine = Varno::Kel_cpp::UnlockResult;
    static constexpr const char* name = "UnlockResult";
    static constexpr auto fields = std::make_tuple(
        field(&::UnlockResult::value, &Engine::value),
        field(&::UnlockResult::services, &::UnlockResult::serviceCount, &Engine::services));
};

template <>
struct Record<::ServiceInfo> {
    using Engine = Varno::Kel_cpp::ServiceInfo;
    static constexpr const char* name = "ServiceInfo";
    static constexpr auto fields = std::make_tuple(
        field(&::ServiceInfo::itemText1, &Engine::itemText1),
        field(&::ServiceInfo::itemText2, &Engine::itemText2),
        field(&::ServiceInfo::itemText3, &Engine::itemText3),
        field(&::ServiceInfo::itemText4, &Engine::itemText4),
        field(&::ServiceInfo::flag, &Engine::flag),
        field(&::ServiceInfo::responses, &::ServiceInfo::responseCount, &Engine::responses),
        field(&::ServiceInfo::parameters, &::ServiceInfo::parameterCount, &Engine::parameters),
        field(&::ServiceInfo::text1, &Engine::text1),
        field(&::ServiceInfo::items, &::ServiceInfo::itemCount, &Engine::items),
        field(&::ServiceInfo::error, &Engine::error),
        field(&::ServiceInfo::values, &Engine::values));
};

template <>
struct Record<::ResponseInfo> {
    using Engine = Varno::Kel_cpp::ResponseInfo;
    static constexpr const char* name = "ResponseInfo";
    static constexpr auto fields = std::make_tuple(
        field(&::ResponseInfo::itemText1, &Engine::itemText1),
        field(&::ResponseInfo::itemText2, &Engine::itemText2),
        field(&::ResponseInfo::itemText3, &Engine::itemText3),
        field(&::ResponseInfo::itemText4, &Engine::itemText4),
        field(&::ResponseInfo::status, &Engine::status),
        field(&::ResponseInfo::parameters, &::ResponseInfo::parameterCount, &Engine::parameters));
};

template <>
struct Record<::ParameterInfo> {
    using Engine = Varno::Kel_cpp::ParameterInfo;
    static constexpr const char* name = "ParameterInfo";
    static constexpr auto fields = std::make_tuple(
        field(&::ParameterInfo::itemText1, &Engine::itemText1),
        field(&::ParameterInfo::itemText2, &Engine::itemText2),
        field(&::ParameterInfo::itemText3, &Engine::itemText3),
        field(&::ParameterInfo::itemText4, &Engine::itemText4),
        field(&::ParameterInfo::text1, &Engine::text1),
        field(&::ParameterInfo::text2, &Engine::text2),
        field(&::ParameterInfo::text3, &Engine::text3),
        field(&::ParameterInfo::value1, &Engine::value1),
        field(&::ParameterInfo::text4, &Engine::text4),
        field(&::ParameterInfo::children, &::ParameterInfo::childCount, &Engine::children),
        field(&::ParameterInfo::text5, &Engine::text5),
        field(&::ParameterInfo::names, &::ParameterInfo::nameCount, &Engine::names, always),
        field(&::ParameterInfo::flag1, &Engine::flag1),
        field(&::ParameterInfo::value2, &Engine::value2),
        field(&::ParameterInfo::error, &Engine::error),
        field(&::ParameterInfo::flag2, &Engine::flag2),
        field(&::ParameterInfo::values, &Engine::values),
        field(&::ParameterInfo::flag3, &Engine::flag3),
        field(&::ParameterInfo::constraint1, &Engine::constraint1),
        field(&::ParameterInfo::constraint2, &Engine::constraint2),
        field(&::ParameterInfo::text6, &Engine::text6),
        field(&::ParameterInfo::text7, &Engine::text7),
        field(&::ParameterInfo::flag4, &Engine::flag4),
        field(&::ParameterInfo::unit, &Engine::unit));
};

template <>
struct Record<::ConstraintInfo> {
    using Engine = Varno::Kel_cpp::ConstraintInfo;
    static constexpr const char* name = "ConstraintInfo";
    static constexpr auto fields = std::make_tuple(
        field(&::ConstraintInfo::text1, &Engine::text1),
        field(&::ConstraintInfo::text2, &Engine::text2),
        field(&::ConstraintInfo::flag, &Engine::flag),
        field(&::ConstraintInfo::scales, &::ConstraintInfo::scaleCount, &Engine::scales));
};

template <>
struct Record<::ScaleConstraintInfo> {
    using Engine = Varno::Kel_cpp::ScaleConstraintInfo;
    static constexpr const char* name = "ScaleConstraintInfo";
    static constexpr auto fields =
        std::make_tuple(field(&::ScaleConstraintInfo::itemText1, &Engine::itemText1),
                        field(&::ScaleConstraintInfo::itemText2, &Engine::itemText2),
                        field(&::ScaleConstraintInfo::itemText3, &Engine::itemText3),
                        field(&::ScaleConstraintInfo::itemText4, &Engine::itemText4),
                        field(&::ScaleConstraintInfo::text1, &Engine::text1),
                        field(&::ScaleConstraintInfo::text2, &Engine::text2),
                        field(&::ScaleConstraintInfo::flag, &Engine::flag),
                        field(&::ScaleConstraintInfo::value, &Engine::value));
};

template <>
struct Record<::UnitInfo> {
    using Engine = Varno::Kel_cpp::UnitInfo;
    static constexpr const char* name = "UnitInfo";
    static constexpr auto fields = std::make_tuple(
        field(&::UnitInfo::values, &Engine::values), field(&::UnitInfo::value1, &Engine::value1),
        field(&::UnitInfo::flag1, &Engine::flag1), field(&::UnitInfo::value2, &Engine::value2),
        field(&::UnitInfo::flag2, &Engine::flag2));
};

template <>
struct Record<::ParameterInfoConfig> {
    using Engine = Varno::Kel_cpp::ParameterInfoConfig;
    static constexpr const char* name = "ParameterInfoConfig";
    static constexpr auto fields =
        std::make_tuple(field(&::ParameterInfoConfig::text1, &Engine::text1),
                        field(&::ParameterInfoConfig::text2, &Engine::text2),
                        field(&::ParameterInfoConfig::value, &Engine::value),
                        field(&::ParameterInfoConfig::text3, &Engine::text3),
                        field(&::ParameterInfoConfig::text4, &Engine::text4));
};

template <>
struct Record<::KelEvent> {
    using Engine = Varno::Kel_cpp::KelEvent;
    static constexpr const char* name = "KelEvent";
    static constexpr auto fields = std::make_tuple(
        field(&::KelEvent::name, &Engine::name), field(&::KelEvent::kind, &Engine::kind),
        field(&::KelEvent::code, &Engine::code), field(&::KelEvent::text, &Engine::text),
        field(&::KelEvent::error, &Engine::error), field(&::KelEvent::detail, &Engine::detail));
};

template <>
struct Record<::EventReport> {
    using Engine = Varno::Kel_cpp::EventReport;
    static constexpr const char* name = "EventReport";
    static constexpr auto fields =
        std::make_tuple(field(&::EventReport::events, &::EventReport::eventCount, &Engine::events));
};

template <>
struct Record<::FileFilter> {
    using Engine = Varno::Kel_cpp::FileFilter;
    static constexpr const char* name = "FileFilter";
    static constexpr auto fields = std::make_tuple(field(&::FileFilter::pattern, &Engine::pattern),
                                                   field(&::FileFilter::flag, &Engine::flag),
                                                   field(&::FileFilter::value, &Engine::value));
};

template <>
struct Record<::TargetConfig> {
    using Engine = Varno::Kel_cpp::TargetConfig;
    static constexpr const char* name = "TargetConfig";
    static constexpr auto fields = std::make_tuple(field(&::TargetConfig::value, &Engine::value),
                                                   field(&::TargetConfig::text1, &Engine::text1),
                                                   field(&::TargetConfig::text2, &Engine::text2));
};

template <>
struct Record<::ProjectConfig> {
    using Engine = Varno::Kel_cpp::ProjectConfig;
    static constexpr const char* name = "ProjectConfig";
    static constexpr auto fields = std::make_tuple(
        field(&::ProjectConfig::itemText1, &Engine::itemText1),
        field(&::ProjectConfig::itemText2, &Engine::itemText2),
        field(&::ProjectConfig::itemText3, &Engine::itemText3),
        field(&::ProjectConfig::itemText4, &Engine::itemText4),
        field(&::ProjectConfig::filters1, &::ProjectConfig::filterCount1, &Engine::filters1),
        field(&::ProjectConfig::value0, &Engine::value0),
        field(&::ProjectConfig::targets, &::ProjectConfig::targetCount, &Engine::targets),
        field(&::ProjectConfig::filters2, &::ProjectConfig::filterCount2, &Engine::filters2),
        field(&::ProjectConfig::strings1, &::ProjectConfig::stringCount1, &Engine::strings1,
              always),
        field(&::ProjectConfig::text1, &Engine::text1),
        field(&::ProjectConfig::value1, &Engine::value1),
        field(&::ProjectConfig::text2, &Engine::text2),
        field(&::ProjectConfig::strings2, &::ProjectConfig::stringCount2, &Engine::strings2,
              always),
        field(&::ProjectConfig::text3, &Engine::text3),
        field(&::ProjectConfig::value2, &Engine::value2),
        field(&::ProjectConfig::value3, &Engine::value3),
        field(&::ProjectConfig::flags, &Engine::flags));
};

template <>
struct Record<::ProjectDetails> {
    using Engine = Varno::Kel_cpp::ProjectDetails;
    static constexpr const char* name = "ProjectDetails";
    static constexpr auto fields = std::make_tuple(
        field(&::ProjectDetails::dbFiles1, &::ProjectDetails::dbFileCount1, &Engine::dbFiles1),
        field(&::ProjectDetails::dbFiles2, &::ProjectDetails::dbFileCount2, &Engine::dbFiles2),
        field(&::ProjectDetails::text1, &Engine::text1),
        field(&::ProjectDetails::value1, &Engine::value1),
        field(&::ProjectDetails::text2, &Engine::text2),
        field(&::ProjectDetails::value2, &Engine::value2),
        field(&::ProjectDetails::users, &::ProjectDetails::userCount, &Engine::users));
};

template <>
struct Record<::DbFileInfo> {
    using Engine = Varno::Kel_cpp::DbFileInfo;
    static constexpr const char* name = "DbFileInfo";
    static constexpr auto fields = std::make_tuple(
        field(&::DbFileInfo::name, &Engine::name), field(&::DbFileInfo::path, &Engine::path),
        field(&::DbFileInfo::size, &Engine::size), field(&::DbFileInfo::loaded, &Engine::loaded),
        field(&::DbFileInfo::error, &Engine::error));
};

template <>
struct Record<::SystemInfo> {
    using Engine = Varno::Kel_cpp::SystemInfo;
    static constexpr const char* name = "SystemInfo";
    static constexpr auto fields = std::make_tuple(
        field(&::SystemInfo::value1, &Engine::value1),
        field(&::SystemInfo::value2, &Engine::value2), field(&::SystemInfo::text1, &Engine::text1),
        field(&::SystemInfo::value3, &Engine::value3), field(&::SystemInfo::text2, &Engine::text2),
        field(&::SystemInfo::text3, &Engine::text3), field(&::SystemInfo::text4, &Engine::text4));
};

template <>
struct Record<::SystemProperty> {
    using Engine = Varno::Kel_cpp::SystemProperty;
    static constexpr const char* name = "SystemProperty";
    static constexpr auto fields = std::make_tuple(
        field(&::SystemProperty::itemText1, &Engine::itemText1),
        field(&::SystemProperty::itemText2, &Engine::itemText2),
        field(&::SystemProperty::itemText3, &Engine::itemText3),
        field(&::SystemProperty::itemText4, &Engine::itemText4),
        field(&::SystemProperty::text1, &Engine::text1),
        field(&::SystemProperty::text2, &Engine::text2),
        field(&::SystemProperty::value1, &Engine::value1),
        field(&::SystemProperty::children, &::SystemProperty::childCount, &Engine::children),
        field(&::SystemProperty::text3, &Engine::text3),
        field(&::SystemProperty::error, &Engine::error),
        field(&::SystemProperty::text4, &Engine::text4),
        field(&::SystemProperty::value2, &Engine::value2),
        field(&::SystemProperty::data, &::SystemProperty::dataLength, &Engine::data),
        field(&::SystemProperty::value3, &Engine::value3),
        field(&::SystemProperty::flag, &Engine::flag),
        field(&::SystemProperty::value4, &Engine::value4));
};

template <>
struct Record<::TarnApiConfig> {
    using Engine = Varno::Kel_cpp::TarnApiConfig;
    static constexpr const char* name = "TarnApiConfig";
    static constexpr auto fields =
        std::make_tuple(field(&::TarnApiConfig::value1, &Engine::value1),
                        field(&::TarnApiConfig::flag1, &Engine::flag1),
                        field(&::TarnApiConfig::flag2, &Engine::flag2),
                        field(&::TarnApiConfig::value2, &Engine::value2),
                        field(&::TarnApiConfig::server, &Engine::server),
                        field(&::TarnApiConfig::value3, &Engine::value3),
                        field(&::TarnApiConfig::value4, &Engine::value4),
                        field(&::TarnApiConfig::value5, &Engine::value5),
                        field(&::TarnApiConfig::flag3, &Engine::flag3),
                        field(&::TarnApiConfig::value6, &Engine::value6),
                        field(&::TarnApiConfig::value7, &Engine::value7),
                        field(&::TarnApiConfig::oauth2Configs, &::TarnApiConfig::oauth2ConfigCount,
                              &Engine::oauth2Configs),
                        field(&::TarnApiConfig::text, &Engine::text));
};

template <>
struct Record<::ServerConfig> {
    using Engine = Varno::Kel_cpp::ServerConfig;
    static constexpr const char* name = "ServerConfig";
    static constexpr auto fields =
        std::make_tuple(field(&::ServerConfig::address, &Engine::address),
                        field(&::ServerConfig::port, &Engine::port),
                        field(&::ServerConfig::enabled, &Engine::enabled),
                        field(&::ServerConfig::name, &Engine::name));
};

template <>
struct Record<::Oauth2Config> {
    using Engine = Varno::Kel_cpp::Oauth2Config;
    static constexpr const char* name = "Oauth2Config";
    static constexpr auto fields = std::make_tuple(
        field(&::Oauth2Config::issuer, &Engine::issuer),
        field(&::Oauth2Config::clientId, &Engine::clientId),
        field(&::Oauth2Config::scopes, &::Oauth2Config::scopeCount, &Engine::scopes),
        field(&::Oauth2Config::redirectUrl, &Engine::redirectUrl));
};

template <>
struct Record<::MoxConfig> {
    using Engine = Varno::Kel_cpp::MoxConfig;
    static constexpr const char* name = "MoxConfig";
    static constexpr auto fields = std::make_tuple(
        field(&::MoxConfig::text1, &Engine::text1), field(&::MoxConfig::text2, &Engine::text2),
        field(&::MoxConfig::text3, &Engine::text3), field(&::MoxConfig::text4, &Engine::text4),
        field(&::MoxConfig::text5, &Engine::text5), field(&::MoxConfig::flag1, &Engine::flag1),
        field(&::MoxConfig::flag2, &Engine::flag2), field(&::MoxConfig::flag3, &Engine::flag3),
        field(&::MoxConfig::value, &Engine::value), field(&::MoxConfig::flag4, &Engine::flag4),
        field(&::MoxConfig::flag5, &Engine::flag5), field(&::MoxConfig::flag6, &Engine::flag6),
        field(&::MoxConfig::text6, &Engine::text6), field(&::MoxConfig::text7, &Engine::text7),
        field(&::MoxConfig::tcp, &Engine::tcp));
};

template <>
struct Record<::TcpInfo> {
    using Engine = Varno::Kel_cpp::TcpInfo;
    static constexpr const char* name = "TcpInfo";
    static constexpr auto fields = std::make_tuple(
        field(&::TcpInfo::value1, &Engine::value1), field(&::TcpInfo::value2, &Engine::value2),
        field(&::TcpInfo::value3, &Engine::value3), field(&::TcpInfo::value4, &Engine::value4),
        field(&::TcpInfo::value5, &Engine::value5), field(&::TcpInfo::value6, &Engine::value6));
};

template <>
struct Record<::StatusInfo> {
    using Engine = Varno::Kel_cpp::StatusInfo;
    static constexpr const char* name = "StatusInfo";
    static constexpr auto fields = std::make_tuple(field(&::StatusInfo::value1, &Engine::value1),
                                                   field(&::StatusInfo::value2, &Engine::value2),
                                                   field(&::StatusInfo::value3, &Engine::value3),
                                                   field(&::StatusInfo::value4, &Engine::value4),
                                                   field(&::StatusInfo::value5, &Engine::value5),
                                                   field(&::StatusInfo::value6, &Engine::value6),
                                                   field(&::StatusInfo::value7, &Engine::value7),
                                                   field(&::StatusInfo::value8, &Engine::value8));
};

template <>
struct Record<::TransmissionInfo> {
    using Engine = Varno::Kel_cpp::TransmissionInfo;
    static constexpr const char* name = "TransmissionInfo";
    static constexpr auto fields =
        std::make_tuple(field(&::TransmissionInfo::value1, &Engine::value1),
                        field(&::TransmissionInfo::value2, &Engine::value2),
                        field(&::TransmissionInfo::value3, &Engine::value3),
                        field(&::TransmissionInfo::value4, &Engine::value4));
};

template <>
struct Record<::ProcessInfo> {
    using Engine = Varno::Kel_cpp::ProcessInfo;
    static constexpr const char* name = "ProcessInfo";
    static constexpr auto fields = std::make_tuple(
        field(&::ProcessInfo::processes, &::ProcessInfo::processCount, &Engine::processes),
        field(&::ProcessInfo::flag1, &Engine::flag1), field(&::ProcessInfo::flag2, &Engine::flag2),
        field(&::ProcessInfo::text, &Engine::text));
};

template <>
struct Record<::ProcessEntry> {
    using Engine = Varno::Kel_cpp::ProcessEntry;
    static constexpr const char* name = "ProcessEntry";
    static constexpr auto fields = std::make_tuple(
        field(&::ProcessEntry::value, &Engine::value),
        field(&::ProcessEntry::items1, &::ProcessEntry::itemCount1, &Engine::items1),
        field(&::ProcessEntry::text, &Engine::text),
        field(&::ProcessEntry::items2, &::ProcessEntry::itemCount2, &Engine::items2));
};

template <>
struct Record<::ProcessThread> {
    using Engine = Varno::Kel_cpp::ProcessThread;
    static constexpr const char* name = "ProcessThread";
    static constexpr auto fields = std::make_tuple(field(&::ProcessThread::id, &Engine::id),
                                                   field(&::ProcessThread::name, &Engine::name));
};

template <>
struct Record<::ProcessMemory> {
    using Engine = Varno::Kel_cpp::ProcessMemory;
    static constexpr const char* name = "ProcessMemory";
    static constexpr auto fields = std::make_tuple(field(&::ProcessMemory::name, &Engine::name),
                                                   field(&::ProcessMemory::bytes, &Engine::bytes));
};

template <>
struct Record<::GlobalProtocolParameterSet> {
    using Engine = Varno::Kel_cpp::GlobalProtocolParameterSet;
    static constexpr const char* name = "GlobalProtocolParameterSet";
    static constexpr auto fields =
        std::make_tuple(field(&::GlobalProtocolParameterSet::text1, &Engine::text1),
                        field(&::GlobalProtocolParameterSet::text2, &Engine::text2),
                        field(&::GlobalProtocolParameterSet::text3, &Engine::text3),
                        field(&::GlobalProtocolParameterSet::text4, &Engine::text4),
                        field(&::GlobalProtocolParameterSet::parameters,
                              &::GlobalProtocolParameterSet::parameterCount, &Engine::parameters));
};

template <>
struct Record<::GlobalProtocolParameter> {
    using Engine = Varno::Kel_cpp::GlobalProtocolParameter;
    static constexpr const char* name = "GlobalProtocolParameter";
    static constexpr auto fields =
        std::make_tuple(field(&::GlobalProtocolParameter::itemText1, &Engine::itemText1),
                        field(&::GlobalProtocolParameter::itemText2, &Engine::itemText2),
                        field(&::GlobalProtocolParameter::itemText3, &Engine::itemText3),
                        field(&::GlobalProtocolParameter::itemText4, &Engine::itemText4),
                        field(&::GlobalProtocolParameter::value, &Engine::value),
                        field(&::GlobalProtocolParameter::defaultValue, &Engine::defaultValue),
                        field(&::GlobalProtocolParameter::infos,
                              &::GlobalProtocolParameter::infoCount, &Engine::infos),
                        field(&::GlobalProtocolParameter::choices,
                              &::GlobalProtocolParameter::choiceCount, &Engine::choices, always),
                        field(&::GlobalProtocolParameter::error, &Engine::error),
                        field(&::GlobalProtocolParameter::constraints,
                              &::GlobalProtocolParameter::constraintCount, &Engine::constraints),
                        field(&::GlobalProtocolParameter::tcp, &Engine::tcp),
                        field(&::GlobalProtocolParameter::value1, &Engine::value1),
                        field(&::GlobalProtocolParameter::flag, &Engine::flag));
};

template <>
struct Record<::LoadDatabaseResult> {
    using Engine = Varno::Kel_cpp::LoadDatabaseResult;
    static constexpr const char* name = "LoadDatabaseResult";
    static constexpr auto fields =
        std::make_tuple(field(&::LoadDatabaseResult::text, &Engine::text),
                        field(&::LoadDatabaseResult::flag, &Engine::flag),
                        field(&::LoadDatabaseResult::error, &Engine::error));
};

template <>
struct Record<::InterfaceInformation> {
    using Engine = Varno::Kel_cpp::InterfaceInformation;
    static constexpr const char* name = "InterfaceInformation";
    static constexpr auto fields = std::make_tuple(
        field(&::InterfaceInformation::itemText1, &Engine::itemText1),
        field(&::InterfaceInformation::itemText2, &Engine::itemText2),
        field(&::InterfaceInformation::itemText3, &Engine::itemText3),
        field(&::InterfaceInformation::itemText4, &Engine::itemText4),
        field(&::InterfaceInformation::resources, &::InterfaceInformation::resourceCount,
              &Engine::resources),
        field(&::InterfaceInformation::flag1, &Engine::flag1),
        field(&::InterfaceInformation::flag2, &Engine::flag2),
        field(&::InterfaceInformation::text1, &Engine::text1),
        field(&::InterfaceInformation::text2, &Engine::text2),
        field(&::InterfaceInformation::flag3, &Engine::flag3),
        field(&::InterfaceInformation::items, &::InterfaceInformation::itemCount, &Engine::items),
        field(&::InterfaceInformation::value, &Engine::value));
};

template <>
struct Record<::ResourceInformation> {
    using Engine = Varno::Kel_cpp::ResourceInformation;
    static constexpr const char* name = "ResourceInformation";
    static constexpr auto fields =
        std::make_tuple(field(&::ResourceInformation::itemText1, &Engine::itemText1),
                        field(&::ResourceInformation::itemText2, &Engine::itemText2),
                        field(&::ResourceInformation::itemText3, &Engine::itemText3),
                        field(&::ResourceInformation::itemText4, &Engine::itemText4),
                        field(&::ResourceInformation::id, &Engine::id),
                        field(&::ResourceInformation::pin, &Engine::pin),
                        field(&::ResourceInformation::inUse, &Engine::inUse));
};

template <>
struct Record<::InterfaceInformationItem> {
    using Engine = Varno::Kel_cpp::InterfaceInformationItem;
    static constexpr const char* name = "InterfaceInformationItem";
    static constexpr auto fields =
        std::make_tuple(field(&::InterfaceInformationItem::itemText1, &Engine::itemText1),
                        field(&::InterfaceInformationItem::itemText2, &Engine::itemText2),
                        field(&::InterfaceInformationItem::itemText3, &Engine::itemText3),
                        field(&::InterfaceInformationItem::itemText4, &Engine::itemText4));
};

template <>
struct Record<::ScanInterfaceResult> {
    using Engine = Varno::Kel_cpp::ScanInterfaceResult;
    static constexpr const char* name = "ScanInterfaceResult";
    static constexpr auto fields =
        std::make_tuple(field(&::ScanInterfaceResult::interfaceInfo, &Engine::interfaceInfo),
                        field(&::ScanInterfaceResult::error, &Engine::error));
};

template <>
struct Record<::DynInterfaceDetection> {
    using Engine = Varno::Kel_cpp::DynInterfaceDetection;
    static constexpr const char* name = "DynInterfaceDetection";
    static constexpr auto fields =
        std::make_tuple(field(&::DynInterfaceDetection::namePattern, &Engine::namePattern),
                        field(&::DynInterfaceDetection::kind, &Engine::kind),
                        field(&::DynInterfaceDetection::onlyFree, &Engine::onlyFree));
};

template <>
struct Record<::ModuleDyn> {
    using Engine = Varno::Kel_cpp::ModuleDyn;
    static constexpr const char* name = "ModuleDyn";
    static constexpr auto fields = std::make_tuple(
        field(&::ModuleDyn::name, &Engine::name), field(&::ModuleDyn::longName, &Engine::longName),
        field(&::ModuleDyn::vendor, &Engine::vendor), field(&::ModuleDyn::kind, &Engine::kind),
        field(&::ModuleDyn::address, &Engine::address),
        field(&::ModuleDyn::vendorModule, &Engine::vendorModule),
        field(&::ModuleDyn::flag1, &Engine::flag1),
        field(&::ModuleDyn::serialNumber, &Engine::serialNumber),
        field(&::ModuleDyn::firmware, &Engine::firmware),
        field(&::ModuleDyn::network, &Engine::network),
        field(&::ModuleDyn::resources, &::ModuleDyn::resourceCount, &Engine::resources),
        field(&::ModuleDyn::port, &Engine::port), field(&::ModuleDyn::flag2, &Engine::flag2),
        field(&::ModuleDyn::handle, &Engine::handle));
};

template <>
struct Record<::DeviceInfo> {
    using Engine = Varno::Kel_cpp::DeviceInfo;
    static constexpr const char* name = "DeviceInfo";
    static constexpr auto fields = std::make_tuple(
        field(&::DeviceInfo::text1, &Engine::text1), field(&::DeviceInfo::value1, &Engine::value1),
        field(&::DeviceInfo::value2, &Engine::value2), field(&::DeviceInfo::text2, &Engine::text2),
        field(&::DeviceInfo::text3, &Engine::text3), field(&::DeviceInfo::value3, &Engine::value3),
        field(&::DeviceInfo::text4, &Engine::text4), field(&::DeviceInfo::text5, &Engine::text5),
        field(&::DeviceInfo::value4, &Engine::value4),
        field(&::DeviceInfo::value5, &Engine::value5), field(&::DeviceInfo::text6, &Engine::text6),
        field(&::DeviceInfo::protocols, &::DeviceInfo::protocolCount, &Engine::protocols),
        field(&::DeviceInfo::text7, &Engine::text7),
        field(&::DeviceInfo::modules, &::DeviceInfo::moduleCount, &Engine::modules),
        field(&::DeviceInfo::text8, &Engine::text8), field(&::DeviceInfo::flag, &Engine::flag),
        field(&::DeviceInfo::handle, &Engine::handle),
        field(&::DeviceInfo::value6, &Engine::value6),
        field(&::DeviceInfo::value8, &Engine::value8),
        field(&::DeviceInfo::value9, &Engine::value9),
        field(&::DeviceInfo::value10, &Engine::value10));
};

template <>
struct Record<::PhysicalLinksOnModule> {
    using Engine = Varno::Kel_cpp::PhysicalLinksOnModule;
    static constexpr const char* name = "PhysicalLinksOnModule";
    static constexpr auto fields =
        std::make_tuple(field(&::PhysicalLinksOnModule::module, &Engine::module),
                        field(&::PhysicalLinksOnModule::links, &::PhysicalLinksOnModule::linkCount,
                              &Engine::links));
};

template <>
struct Record<::PhysicalLink> {
    using Engine = Varno::Kel_cpp::PhysicalLink;
    static constexpr const char* name = "PhysicalLink";
    static constexpr auto fields =
        std::make_tuple(field(&::PhysicalLink::itemText1, &Engine::itemText1),
                        field(&::PhysicalLink::itemText2, &Engine::itemText2),
                        field(&::PhysicalLink::itemText3, &Engine::itemText3),
                        field(&::PhysicalLink::itemText4, &Engine::itemText4),
                        field(&::PhysicalLink::baudrate, &Engine::baudrate),
                        field(&::PhysicalLink::enabled, &Engine::enabled));
};

template <>
struct Record<::InterfaceConfiguration> {
    using Engine = Varno::Kel_cpp::InterfaceConfiguration;
    static constexpr const char* name = "InterfaceConfiguration";
    static constexpr auto fields =
        std::make_tuple(field(&::InterfaceConfiguration::entries,
                              &::InterfaceConfiguration::entryCount, &Engine::entries));
};

template <>
struct Record<::InterfaceConfigurationEntry> {
    using Engine = Varno::Kel_cpp::InterfaceConfigurationEntry;
    static constexpr const char* name = "InterfaceConfigurationEntry";
    static constexpr auto fields =
        std::make_tuple(field(&::InterfaceConfigurationEntry::text1, &Engine::text1),
                        field(&::InterfaceConfigurationEntry::text2, &Engine::text2),
                        field(&::InterfaceConfigurationEntry::text3, &Engine::text3),
                        field(&::InterfaceConfigurationEntry::text4, &Engine::text4),
                        field(&::InterfaceConfigurationEntry::text5, &Engine::text5),
                        field(&::InterfaceConfigurationEntry::value, &Engine::value),
                        field(&::InterfaceConfigurationEntry::flag, &Engine::flag),
                        field(&::InterfaceConfigurationEntry::items,
                              &::InterfaceConfigurationEntry::itemCount, &Engine::items));
};

template <>
struct Record<::InterfaceProvider> {
    using Engine = Varno::Kel_cpp::InterfaceProvider;
    static constexpr const char* name = "InterfaceProvider";
    static constexpr auto fields =
        std::make_tuple(field(&::InterfaceProvider::itemText1, &Engine::itemText1),
                        field(&::InterfaceProvider::itemText2, &Engine::itemText2),
                        field(&::InterfaceProvider::itemText3, &Engine::itemText3),
                        field(&::InterfaceProvider::itemText4, &Engine::itemText4),
                        field(&::InterfaceProvider::text, &Engine::text),
                        field(&::InterfaceProvider::value, &Engine::value),
                        field(&::InterfaceProvider::flag, &Engine::flag));
};

template <>
struct Record<::DoIPParameter> {
    using Engine = Varno::Kel_cpp::DoIPParameter;
    static constexpr const char* name = "DoIPParameter";
    static constexpr auto fields = std::make_tuple(
        field(&::DoIPParameter::value1, &Engine::value1),
        field(&::DoIPParameter::value2, &Engine::value2),
        field(&::DoIPParameter::text, &Engine::text),
        field(&::DoIPParameter::value3, &Engine::value3),
        field(&::DoIPParameter::strings, &::DoIPParameter::stringCount, &Engine::strings));
};

template <>
struct Record<::WLanSignalData> {
    using Engine = Varno::Kel_cpp::WLanSignalData;
    static constexpr const char* name = "WLanSignalData";
    static constexpr auto fields =
        std::make_tuple(field(&::WLanSignalData::value1, &Engine::value1),
                        field(&::WLanSignalData::value2, &Engine::value2),
                        field(&::WLanSignalData::value3, &Engine::value3),
                        field(&::WLanSignalData::value4, &Engine::value4),
                        field(&::WLanSignalData::value5, &Engine::value5),
                        field(&::WLanSignalData::value6, &Engine::value6),
                        field(&::WLanSignalData::value7, &Engine::value7),
                        field(&::WLanSignalData::value8, &Engine::value8),
                        field(&::WLanSignalData::value9, &Engine::value9),
                        field(&::WLanSignalData::value10, &Engine::value10),
                        field(&::WLanSignalData::value11, &Engine::value11),
                        field(&::WLanSignalData::text, &Engine::text));
};

template <>
struct Record<::SupportedInterface> {
    using Engine = Varno::Kel_cpp::SupportedInterface;
    static constexpr const char* name = "SupportedInterface";
    static constexpr auto fields = std::make_tuple(
        field(&::SupportedInterface::text1, &Engine::text1),
        field(&::SupportedInterface::text2, &Engine::text2),
        field(&::SupportedInterface::names, &::SupportedInterface::nameCount, &Engine::names),
        field(&::SupportedInterface::value, &Engine::value),
        field(&::SupportedInterface::text3, &Engine::text3));
};

template <>
struct Record<::MonitoringItem> {
    using Engine = Varno::Kel_cpp::MonitoringItem;
    static constexpr const char* name = "MonitoringItem";
    static constexpr auto fields = std::make_tuple(
        field(&::MonitoringItem::text1, &Engine::text1),
        field(&::MonitoringItem::data, &::MonitoringItem::dataLength, &Engine::data),
        field(&::MonitoringItem::value1, &Engine::value1),
        field(&::MonitoringItem::value2, &Engine::value2),
        field(&::MonitoringItem::flag1, &Engine::flag1),
        field(&::MonitoringItem::flag2, &Engine::flag2),
        field(&::MonitoringItem::flag3, &Engine::flag3),
        field(&::MonitoringItem::value3, &Engine::value3),
        field(&::MonitoringItem::text2, &Engine::text2),
        field(&::MonitoringItem::value4, &Engine::value4),
        field(&::MonitoringItem::detail, &Engine::detail));
};

template <>
struct Record<::MonitoringItemDetail> {
    using Engine = Varno::Kel_cpp::MonitoringItemDetail;
    static constexpr const char* name = "MonitoringItemDetail";
    static constexpr auto fields =
        std::make_tuple(field(&::MonitoringItemDetail::response,
                              &::MonitoringItemDetail::responseLength, &Engine::response),
                        field(&::MonitoringItemDetail::text, &Engine::text));
};

template <>
struct Record<::PduMonitoringItem> {
    using Engine = Varno::Kel_cpp::PduMonitoringItem;
    static constexpr const char* name = "PduMonitoringItem";
    static constexpr auto fields = std::make_tuple(
        field(&::PduMonitoringItem::value1, &Engine::value1),
        field(&::PduMonitoringItem::data, &::PduMonitoringItem::dataLength, &Engine::data),
        field(&::PduMonitoringItem::detail, &Engine::detail),
        field(&::PduMonitoringItem::text1, &Engine::text1),
        field(&::PduMonitoringItem::text2, &Engine::text2),
        field(&::PduMonitoringItem::value2, &Engine::value2),
        field(&::PduMonitoringItem::text3, &Engine::text3));
};

template <>
struct Record<::PduMonitoringItemDetail> {
    using Engine = Varno::Kel_cpp::PduMonitoringItemDetail;
    static constexpr const char* name = "PduMonitoringItemDetail";
    static constexpr auto fields =
        std::make_tuple(field(&::PduMonitoringItemDetail::sequence, &Engine::sequence),
                        field(&::PduMonitoringItemDetail::exchange, &Engine::exchange));
};

template <>
struct Record<::FileInfo> {
    using Engine = Varno::Kel_cpp::FileInfo;
    static constexpr const char* name = "FileInfo";
    static constexpr auto fields = std::make_tuple(
        field(&::FileInfo::name, &Engine::name), field(&::FileInfo::error, &Engine::error),
        field(&::FileInfo::flag, &Engine::flag), field(&::FileInfo::value1, &Engine::value1),
        field(&::FileInfo::text1, &Engine::text1), field(&::FileInfo::text2, &Engine::text2),
        field(&::FileInfo::value2, &Engine::value2), field(&::FileInfo::value3, &Engine::value3));
};

template <>
struct Record<::DirectoryInfo> {
    using Engine = Varno::Kel_cpp::DirectoryInfo;
    static constexpr const char* name = "DirectoryInfo";
    static constexpr auto fields =
        std::make_tuple(field(&::DirectoryInfo::name, &Engine::name),
                        field(&::DirectoryInfo::error, &Engine::error),
                        field(&::DirectoryInfo::flag, &Engine::flag),
                        field(&::DirectoryInfo::value1, &Engine::value1),
                        field(&::DirectoryInfo::text1, &Engine::text1),
                        field(&::DirectoryInfo::text2, &Engine::text2),
                        field(&::DirectoryInfo::files, &::DirectoryInfo::fileCount, &Engine::files),
                        outOnly(field(&::DirectoryInfo::directories,
                                      &::DirectoryInfo::directoryCount, &Engine::directories)),
                        outOnly(field(&::DirectoryInfo::flag2, &Engine::flag2)));
};

template <>
struct Record<::FileCopyResult> {
    using Engine = Varno::Kel_cpp::FileCopyResult;
    static constexpr const char* name = "FileCopyResult";
    static constexpr auto fields =
        std::make_tuple(field(&::FileCopyResult::value1, &Engine::value1),
                        field(&::FileCopyResult::text, &Engine::text),
                        field(&::FileCopyResult::error, &Engine::error),
                        field(&::FileCopyResult::file, &Engine::file),
                        field(&::FileCopyResult::value2, &Engine::value2));
};

template <>
struct Record<::DirectoryCopyResult> {
    using Engine = Varno::Kel_cpp::DirectoryCopyResult;
    static constexpr const char* name = "DirectoryCopyResult";
    static constexpr auto fields =
        std::make_tuple(field(&::DirectoryCopyResult::value1, &Engine::value1),
                        field(&::DirectoryCopyResult::text, &Engine::text),
                        field(&::DirectoryCopyResult::error, &Engine::error),
                        field(&::DirectoryCopyResult::directory, &Engine::directory));
};

template <>
struct Record<::DirectoryCopyItem> {
    using Engine = Varno::Kel_cpp::DirectoryCopyItem;
    static constexpr const char* name = "DirectoryCopyItem";
    static constexpr auto fields =
        std::make_tuple(field(&::DirectoryCopyItem::source, &Engine::source),
                        field(&::DirectoryCopyItem::target, &Engine::target),
                        field(&::DirectoryCopyItem::files, &Engine::files),
                        field(&::DirectoryCopyItem::directories, &Engine::directories),
                        field(&::DirectoryCopyItem::bytes, &Engine::bytes),
                        field(&::DirectoryCopyItem::failures, &::DirectoryCopyItem::failureCount,
                              &Engine::failures));
};

template <>
struct Record<::PathCopyResult> {
    using Engine = Varno::Kel_cpp::PathCopyResult;
    static constexpr const char* name = "PathCopyResult";
    static constexpr auto fields =
        std::make_tuple(field(&::PathCopyResult::value1, &Engine::value1),
                        field(&::PathCopyResult::error, &Engine::error),
                        field(&::PathCopyResult::value2, &Engine::value2),
                        field(&::PathCopyResult::item, &Engine::item));
};

template <>
struct Record<::PathCopyItem> {
    using Engine = Varno::Kel_cpp::PathCopyItem;
    static constexpr const char* name = "PathCopyItem";
    static constexpr auto fields = std::make_tuple(field(&::PathCopyItem::source, &Engine::source),
                                                   field(&::PathCopyItem::target, &Engine::target),
                                                   field(&::PathCopyItem::size, &Engine::size));
};

template <>
struct Record<::FileReferenceResult> {
    using Engine = Varno::Kel_cpp::FileReferenceResult;
    static constexpr const char* name = "FileReferenceResult";
    static constexpr auto fields =
        std::make_tuple(field(&::FileReferenceResult::references,
                              &::FileReferenceResult::referenceCount, &Engine::references),
                        field(&::FileReferenceResult::error, &Engine::error));
};

template <>
struct Record<::FileCopyConfig> {
    using Engine = Varno::Kel_cpp::FileCopyConfig;
    static constexpr const char* name = "FileCopyConfig";
    static constexpr auto fields = std::make_tuple(
        field(&::FileCopyConfig::files, &::FileCopyConfig::fileCount, &Engine::files),
        field(&::FileCopyConfig::target, &Engine::target),
        field(&::FileCopyConfig::overwrite, &Engine::overwrite));
};

template <>
struct Record<::DirectoryCopyConfig> {
    using Engine = Varno::Kel_cpp::DirectoryCopyConfig;
    static constexpr const char* name = "DirectoryCopyConfig";
    static constexpr auto fields =
        std::make_tuple(field(&::DirectoryCopyConfig::directories,
                              &::DirectoryCopyConfig::directoryCount, &Engine::directories),
                        field(&::DirectoryCopyConfig::target, &Engine::target),
                        field(&::DirectoryCopyConfig::overwrite, &Engine::overwrite),
                        field(&::DirectoryCopyConfig::recursive, &Engine::recursive),
                        field(&::DirectoryCopyConfig::pattern, &Engine::pattern));
};

template <>
struct Record<::PathCopyConfig> {
    using Engine = Varno::Kel_cpp::PathCopyConfig;
    static constexpr const char* name = "PathCopyConfig";
    static constexpr auto fields =
        std::make_tuple(field(&::PathCopyConfig::source, &Engine::source),
                        field(&::PathCopyConfig::target, &Engine::target),
                        field(&::PathCopyConfig::overwrite, &Engine::overwrite));
};

template <>
struct Record<::UserInfo> {
    using Engine = Varno::Kel_cpp::UserInfo;
    static constexpr const char* name = "UserInfo";
    static constexpr auto fields = std::make_tuple(field(&::UserInfo::name, &Engine::name),
                                                   field(&::UserInfo::text, &Engine::text),
                                                   field(&::UserInfo::value, &Engine::value));
};

template <>
struct Record<::LogInOutConfig> {
    using Engine = Varno::Kel_cpp::LogInOutConfig;
    static constexpr const char* name = "LogInOutConfig";
    static constexpr auto fields =
        std::make_tuple(field(&::LogInOutConfig::user, &Engine::user),
                        field(&::LogInOutConfig::password, &Engine::password));
};

template <>
struct Record<::TarnApiServerConfig> {
    using Engine = Varno::Kel_cpp::TarnApiServerConfig;
    static constexpr const char* name = "TarnApiServerConfig";
    static constexpr auto fields = std::make_tuple(
        field(&::TarnApiServerConfig::users, &::TarnApiServerConfig::userCount, &Engine::users),
        field(&::TarnApiServerConfig::flag, &Engine::flag),
        field(&::TarnApiServerConfig::value1, &Engine::value1),
        field(&::TarnApiServerConfig::text1, &Engine::text1),
        field(&::TarnApiServerConfig::text2, &Engine::text2),
        field(&::TarnApiServerConfig::filters, &::TarnApiServerConfig::filterCount,
              &Engine::filters),
        field(&::TarnApiServerConfig::text3, &Engine::text3),
        field(&::TarnApiServerConfig::text4, &Engine::text4),
        field(&::TarnApiServerConfig::users2, &::TarnApiServerConfig::userCount2, &Engine::users2),
        field(&::TarnApiServerConfig::value2, &Engine::value2));
};

template <>
struct Record<::ServerSettings> {
    using Engine = Varno::Kel_cpp::ServerSettings;
    static constexpr const char* name = "ServerSettings";
    static constexpr auto fields =
        std::make_tuple(field(&::ServerSettings::flag, &Engine::flag),
                        field(&::ServerSettings::value1, &Engine::value1),
                        field(&::ServerSettings::value2, &Engine::value2),
                        field(&::ServerSettings::value3, &Engine::value3));
};

template <>
struct Record<::FlashSessionInfo> {
    using Engine = Varno::Kel_cpp::FlashSessionInfo;
    static constexpr const char* name = "FlashSessionInfo";
    static constexpr auto fields =
        std::make_tuple(field(&::FlashSessionInfo::name, &Engine::name),
                        field(&::FlashSessionInfo::target, &Engine::target),
                        field(&::FlashSessionInfo::description, &Engine::description),
                        field(&::FlashSessionInfo::version, &Engine::version),
                        field(&::FlashSessionInfo::size, &Engine::size),
                        field(&::FlashSessionInfo::duration, &Engine::duration),
                        field(&::FlashSessionInfo::level, &Engine::level));
};

template <>
struct Record<::FlashSessionResult> {
    using Engine = Varno::Kel_cpp::FlashSessionResult;
    static constexpr const char* name = "FlashSessionResult";
    static constexpr auto fields =
        std::make_tuple(field(&::FlashSessionResult::name, &Engine::name),
                        field(&::FlashSessionResult::target, &Engine::target),
                        field(&::FlashSessionResult::status, &Engine::status),
                        field(&::FlashSessionResult::versionBefore, &Engine::versionBefore),
                        field(&::FlashSessionResult::versionAfter, &Engine::versionAfter),
                        field(&::FlashSessionResult::size, &Engine::size),
                        field(&::FlashSessionResult::transferred, &Engine::transferred),
                        field(&::FlashSessionResult::progress, &Engine::progress),
                        field(&::FlashSessionResult::duration, &Engine::duration),
                        field(&::FlashSessionResult::error, &Engine::error));
};

template <>
struct Record<::FlashSessionsConfig> {
    using Engine = Varno::Kel_cpp::FlashSessionsConfig;
    static constexpr const char* name = "FlashSessionsConfig";
    static constexpr auto fields =
        std::make_tuple(field(&::FlashSessionsConfig::target, &Engine::target),
                        field(&::FlashSessionsConfig::sessions,
                              &::FlashSessionsConfig::sessionCount, &Engine::sessions),
                        field(&::FlashSessionsConfig::blockLength, &Engine::blockLength),
                        field(&::FlashSessionsConfig::stopOnError, &Engine::stopOnError));
};

template <>
struct Record<::CodingStringResult> {
    using Engine = Varno::Kel_cpp::CodingStringResult;
    static constexpr const char* name = "CodingStringResult";
    static constexpr auto fields = std::make_tuple(
        field(&::CodingStringResult::target, &Engine::target),
        field(&::CodingStringResult::status, &Engine::status),
        field(&::CodingStringResult::identifier, &Engine::identifier),
        field(&::CodingStringResult::coding, &Engine::coding),
        field(&::CodingStringResult::data, &::CodingStringResult::dataLength, &Engine::data),
        field(&::CodingStringResult::error, &Engine::error));
};

template <>
struct Record<::CodingFileResult> {
    using Engine = Varno::Kel_cpp::CodingFileResult;
    static constexpr const char* name = "CodingFileResult";
    static constexpr auto fields = std::make_tuple(
        field(&::CodingFileResult::target, &Engine::target),
        field(&::CodingFileResult::status, &Engine::status),
        field(&::CodingFileResult::written, &Engine::written),
        field(&::CodingFileResult::coding, &Engine::coding),
        field(&::CodingFileResult::data, &::CodingFileResult::dataLength, &Engine::data),
        field(&::CodingFileResult::verified, &Engine::verified),
        field(&::CodingFileResult::error, &Engine::error));
};

template <>
struct Record<::QuickTestResult> {
    using Engine = Varno::Kel_cpp::QuickTestResult;
    static constexpr const char* name = "QuickTestResult";
    static constexpr auto fields = std::make_tuple(
        field(&::QuickTestResult::target, &Engine::target),
        field(&::QuickTestResult::status, &Engine::status),
        field(&::QuickTestResult::variant, &Engine::variant),
        field(&::QuickTestResult::identified, &Engine::identified),
        field(&::QuickTestResult::dtcs, &::QuickTestResult::dtcCount, &Engine::dtcs),
        field(&::QuickTestResult::error, &Engine::error));
};

template <>
struct Record<::EcuConfigurationResult> {
    using Engine = Varno::Kel_cpp::EcuConfigurationResult;
    static constexpr const char* name = "EcuConfigurationResult";
    static constexpr auto fields =
        std::make_tuple(field(&::EcuConfigurationResult::target, &Engine::target),
                        field(&::EcuConfigurationResult::configuration, &Engine::configuration),
                        field(&::EcuConfigurationResult::status, &Engine::status),
                        field(&::EcuConfigurationResult::written, &Engine::written),
                        field(&::EcuConfigurationResult::error, &Engine::error));
};

template <>
struct Record<::EcuOrderEntry> {
    using Engine = Varno::Kel_cpp::EcuOrderEntry;
    static constexpr const char* name = "EcuOrderEntry";
    static constexpr auto fields =
        std::make_tuple(field(&::EcuOrderEntry::target, &Engine::target),
                        field(&::EcuOrderEntry::bus, &Engine::bus),
                        field(&::EcuOrderEntry::address, &Engine::address),
                        field(&::EcuOrderEntry::gateway, &Engine::gateway),
                        field(&::EcuOrderEntry::optional, &Engine::optional));
};

template <>
struct Record<::VehicleUpdateConfig> {
    using Engine = Varno::Kel_cpp::VehicleUpdateConfig;
    static constexpr const char* name = "VehicleUpdateConfig";
    static constexpr auto fields =
        std::make_tuple(field(&::VehicleUpdateConfig::targets, &::VehicleUpdateConfig::targetCount,
                              &Engine::targets),
                        field(&::VehicleUpdateConfig::packages,
                              &::VehicleUpdateConfig::packageCount, &Engine::packages),
                        field(&::VehicleUpdateConfig::stopOnError, &Engine::stopOnError),
                        field(&::VehicleUpdateConfig::force, &Engine::force),
                        field(&::VehicleUpdateConfig::blockLength, &Engine::blockLength));
};

template <>
struct Record<::VehicleUpdateResult> {
    using Engine = Varno::Kel_cpp::VehicleUpdateResult;
    static constexpr const char* name = "VehicleUpdateResult";
    static constexpr auto fields =
        std::make_tuple(field(&::VehicleUpdateResult::target, &Engine::target),
                        field(&::VehicleUpdateResult::status, &Engine::status),
                        field(&::VehicleUpdateResult::package, &Engine::package),
                        field(&::VehicleUpdateResult::versionBefore, &Engine::versionBefore),
                        field(&::VehicleUpdateResult::versionAfter, &Engine::versionAfter),
                        field(&::VehicleUpdateResult::position, &Engine::position),
                        field(&::VehicleUpdateResult::progress, &Engine::progress),
                        field(&::VehicleUpdateResult::overallProgress, &Engine::overallProgress),
                        field(&::VehicleUpdateResult::duration, &Engine::duration),
                        field(&::VehicleUpdateResult::error, &Engine::error));
};

template <>
struct Record<::UpdatePackageInfo> {
    using Engine = Varno::Kel_cpp::UpdatePackageInfo;
    static constexpr const char* name = "UpdatePackageInfo";
    static constexpr auto fields = std::make_tuple(
        field(&::UpdatePackageInfo::name, &Engine::name),
        field(&::UpdatePackageInfo::version, &Engine::version),
        field(&::UpdatePackageInfo::description, &Engine::description),
        field(&::UpdatePackageInfo::kind, &Engine::kind),
        field(&::UpdatePackageInfo::targets, &::UpdatePackageInfo::targetCount, &Engine::targets),
        field(&::UpdatePackageInfo::size, &Engine::size),
        field(&::UpdatePackageInfo::checksum, &Engine::checksum),
        field(&::UpdatePackageInfo::location, &Engine::location),
        field(&::UpdatePackageInfo::state, &Engine::state));
};

template <>
struct Record<::VehicleReportConfig> {
    using Engine = Varno::Kel_cpp::VehicleReportConfig;
    static constexpr const char* name = "VehicleReportConfig";
    static constexpr auto fields =
        std::make_tuple(field(&::VehicleReportConfig::name, &Engine::name),
                        field(&::VehicleReportConfig::title, &Engine::title),
                        field(&::VehicleReportConfig::comment, &Engine::comment),
                        field(&::VehicleReportConfig::targets, &::VehicleReportConfig::targetCount,
                              &Engine::targets),
                        field(&::VehicleReportConfig::identification, &Engine::identification),
                        field(&::VehicleReportConfig::dtcs, &Engine::dtcs));
};

template <>
struct Record<::VehicleData> {
    using Engine = Varno::Kel_cpp::VehicleData;
    static constexpr const char* name = "VehicleData";
    static constexpr auto fields = std::make_tuple(
        field(&::VehicleData::vin, &Engine::vin), field(&::VehicleData::model, &Engine::model),
        field(&::VehicleData::target, &Engine::target),
        field(&::VehicleData::variant, &Engine::variant),
        field(&::VehicleData::softwareVersion, &Engine::softwareVersion),
        field(&::VehicleData::bus, &Engine::bus), field(&::VehicleData::address, &Engine::address),
        field(&::VehicleData::status, &Engine::status),
        field(&::VehicleData::dtcCount, &Engine::dtcCount));
};

template <>
struct Record<::UploadReportConfiguration> {
    using Engine = Varno::Kel_cpp::UploadReportConfiguration;
    static constexpr const char* name = "UploadReportConfiguration";
    static constexpr auto fields =
        std::make_tuple(field(&::UploadReportConfiguration::reportFile, &Engine::reportFile),
                        field(&::UploadReportConfiguration::folder, &Engine::folder),
                        field(&::UploadReportConfiguration::name, &Engine::name),
                        field(&::UploadReportConfiguration::vin, &Engine::vin),
                        field(&::UploadReportConfiguration::user, &Engine::user),
                        field(&::UploadReportConfiguration::comment, &Engine::comment),
                        field(&::UploadReportConfiguration::overwrite, &Engine::overwrite),
                        field(&::UploadReportConfiguration::withTwin, &Engine::withTwin));
};

template <>
struct Record<::VehicleInformation> {
    using Engine = Varno::Kel_cpp::VehicleInformation;
    static constexpr const char* name = "VehicleInformation";
    static constexpr auto fields =
        std::make_tuple(field(&::VehicleInformation::vin, &Engine::vin),
                        field(&::VehicleInformation::model, &Engine::model),
                        field(&::VehicleInformation::modelYear, &Engine::modelYear),
                        field(&::VehicleInformation::mileage, &Engine::mileage),
                        field(&::VehicleInformation::licensePlate, &Engine::licensePlate),
                        field(&::VehicleInformation::equipment,
                              &::VehicleInformation::equipmentCount, &Engine::equipment));
};

template <>
struct Alias<::ReadDtcResult, Varno::Kel_cpp::SupportedDtcResult> {
    using Engine = Varno::Kel_cpp::SupportedDtcResult;
    static constexpr auto fields =
        std::make_tuple(field(&::ReadDtcResult::status, &Engine::status),
                        field(&::ReadDtcResult::target, &Engine::target),
                        field(&::ReadDtcResult::error, &Engine::error),
                        field(&::ReadDtcResult::dtcs, &::ReadDtcResult::dtcCount, &Engine::dtcs));
};

template <>
struct Alias<::NamedItem, Varno::Kel_cpp::SpecialData> {
    using Engine = Varno::Kel_cpp::SpecialData;
    static constexpr auto fields =
        std::make_tuple(field(&::NamedItem::itemText1, &Engine::itemText1),
                        field(&::NamedItem::itemText2, &Engine::itemText2),
                        field(&::NamedItem::itemText3, &Engine::itemText3),
                        field(&::NamedItem::itemText4, &Engine::itemText4));
};

template <>
struct Alias<::FileFilter, Varno::Kel_cpp::FilterPattern> {
    using Engine = Varno::Kel_cpp::FilterPattern;
    static constexpr auto fields = std::make_tuple(field(&::FileFilter::pattern, &Engine::pattern),
                                                   field(&::FileFilter::flag, &Engine::flag));
};

template <>
struct Alias<::InterfaceProvider, Varno::Kel_cpp::InterfaceProviderDyn> {
    using Engine = Varno::Kel_cpp::InterfaceProviderDyn;
    static constexpr auto fields =
        std::make_tuple(field(&::InterfaceProvider::itemText1, &Engine::itemText1),
                        field(&::InterfaceProvider::itemText2, &Engine::itemText2),
                        field(&::InterfaceProvider::itemText3, &Engine::itemText3),
                        field(&::InterfaceProvider::itemText4, &Engine::itemText4),
                        field(&::InterfaceProvider::text, &Engine::text),
                        field(&::InterfaceProvider::value, &Engine::value),
                        field(&::InterfaceProvider::flag, &Engine::flag));
};

} // namespace kel
