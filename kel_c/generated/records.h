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

} // namespace kel
