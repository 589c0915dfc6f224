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

} // namespace kel
