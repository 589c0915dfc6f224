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
