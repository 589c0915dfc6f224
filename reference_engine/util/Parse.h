// Reads engine values back from the JSON that describe() writes, so tests can script the
// result of an operation in the form they already read arguments in. Exact: every
// record member must be there, in field order, with a value of its field's type; extra
// members, integers out of range and floats are refused with the path of the mistake.
#pragma once

#include "Describe.h"

#include <nlohmann/json.hpp>

#include <any>
#include <array>
#include <cstdint>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

namespace Varno::Kel_cpp::Reference {

using Json = nlohmann::ordered_json; // keeps the members in the order written

// Why a JSON text does not describe a value of the expected type.
struct ScriptError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

[[noreturn]] inline void refuse(const std::string& path, const std::string& expected,
                                const Json& json) {
    throw ScriptError(path + ": expected " + expected + ", got " + json.dump());
}

inline void parse(const Json& json, std::wstring& out, const std::string& path) {
    if (!json.is_string()) {
        refuse(path, "a string", json);
    }
    out = fromUtf8(json.get_ref<const std::string&>());
}

inline void parse(const Json& json, bool& out, const std::string& path) {
    if (!json.is_boolean()) {
        refuse(path, "true or false", json);
    }
    out = json.get<bool>();
}

template <class T>
requires std::is_integral_v<T>
void parse(const Json& json, T& out, const std::string& path) {
    using Limits = std::numeric_limits<T>;
    const auto range = [&] {
        return "an integer from " + std::to_string(Limits::min()) + " to " +
               std::to_string(Limits::max());
    };
    if (json.is_number_unsigned()) { // every integer >= 0 parses as unsigned
        const auto value = json.get<uint64_t>();
        if (value > static_cast<uint64_t>(Limits::max())) {
            refuse(path, range(), json);
        }
        out = static_cast<T>(value);
    } else if (json.is_number_integer()) {
        const auto value = json.get<int64_t>();
        if constexpr (std::is_unsigned_v<T>) {
            refuse(path, range(), json);
        } else {
            if (value < static_cast<int64_t>(Limits::min())) {
                refuse(path, range(), json);
            }
            out = static_cast<T>(value);
        }
    } else {
        refuse(path, range(), json);
    }
}

template <class T>
void parse(const Json& json, std::vector<T>& out, const std::string& path);
template <class T, std::size_t N>
void parse(const Json& json, std::array<T, N>& out, const std::string& path);
template <class E>
void parse(const Json& json, std::shared_ptr<E>& out, const std::string& path);

template <class T>
void parse(const Json& json, std::vector<T>& out, const std::string& path) {
    if (!json.is_array()) {
        refuse(path, "an array", json);
    }
    out.clear();
    out.resize(json.size());
    for (std::size_t i = 0; i < json.size(); ++i) {
        parse(json[i], out[i], path + "[" + std::to_string(i) + "]");
    }
}

template <class T, std::size_t N>
void parse(const Json& json, std::array<T, N>& out, const std::string& path) {
    if (!json.is_array() || json.size() != N) {
        refuse(path, "an array of " + std::to_string(N), json);
    }
    for (std::size_t i = 0; i < N; ++i) {
        parse(json[i], out[i], path + "[" + std::to_string(i) + "]");
    }
}

// A record: null, or an object with exactly the record's fields in field order.
template <class E>
void parse(const Json& json, std::shared_ptr<E>& out, const std::string& path) {
    if (json.is_null()) {
        out.reset();
        return;
    }
    if (!json.is_object()) {
        refuse(path, "an object or null", json);
    }
    auto record = std::make_shared<E>();
    auto member = json.items().begin();
    const auto end = json.items().end();
    std::apply(
        [&](const auto&... field) {
            (
                [&] {
                    if (member == end) {
                        throw ScriptError(path + ": member \"" + field.name + "\" is missing");
                    }
                    if (member.key() != field.name) {
                        throw ScriptError(path + ": member \"" + member.key() + "\" where \"" +
                                          field.name + "\" belongs");
                    }
                    parse(member.value(), (*record).*(field.pointer), path + "." + field.name);
                    ++member;
                }(),
                ...);
        },
        Fields::Of<E>::list);
    if (member != end) {
        throw ScriptError(path + ": member \"" + member.key() + "\" is not a field of the record");
    }
    out = std::move(record);
}

// The value of type T that `text` describes, or ScriptError.
template <class T>
T parseText(std::string_view text, const std::string& path) {
    Json json;
    try {
        json = Json::parse(text);
    } catch (const Json::parse_error& e) {
        throw ScriptError(std::string("not valid JSON: ") + e.what());
    }
    T value{};
    parse(json, value, path);
    return value;
}

// What a scripted result of an operation returning T holds; null for a void operation.
template <class T>
std::any parseResult(std::string_view text) {
    return parseText<T>(text, "result");
}

template <>
inline std::any parseResult<void>(std::string_view text) {
    Json json;
    try {
        json = Json::parse(text);
    } catch (const Json::parse_error& e) {
        throw ScriptError(std::string("not valid JSON: ") + e.what());
    }
    if (!json.is_null()) {
        refuse("result", "null (the operation returns nothing)", json);
    }
    return {};
}

} // namespace Varno::Kel_cpp::Reference
