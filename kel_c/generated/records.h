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

} // namespace kel
