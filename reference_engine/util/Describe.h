// Renders engine values as JSON text, so that tests can read back what arguments an
// operation received (through the scripting interface, from C or Python).
#pragma once

#include <Kel_cpp/TarnApi.h>

#include <EngineFields.h>
#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

namespace Varno::Kel_cpp::Reference {

std::string toUtf8(const std::wstring& text);
std::wstring fromUtf8(const std::string& text);

// The error record of an engine error: what an asynchronous report, a file operation's
// result or the server's answer carries instead of the exception.
std::shared_ptr<KelError> errorOf(const TarnApiException& exception);

// Wide text and paths. The engine's wide text is UTF-16 on Windows and UTF-32 elsewhere,
// while std::filesystem converts through the C locale on Linux (and fails on non-ASCII
// there): every conversion goes through these two, which use UTF-8 on Linux.
std::filesystem::path pathFromWide(const std::wstring& text);
std::wstring wideFromPath(const std::filesystem::path& path);

// A password among the arguments (`secret` in the interface description): recorded as
// "***", so that no password is ever kept or shown in clear.
struct Secret {
    const std::wstring& text;
};

void describe(std::string& out, const std::wstring& text);
void describe(std::string& out, const Secret& secret);
void describe(std::string& out, bool value);
void describe(std::string& out, const std::shared_ptr<ServerHandler>& handler);

// A byte buffer of more than this is recorded by its size alone, {"size":n}: a call that
// carries a large file must not cost the engine several times the file in text.
inline constexpr std::size_t maxDescribedBytes = 1 << 20;
void describe(std::string& out, const std::vector<uint8_t>& bytes);

template <class T>
void describe(std::string& out, const std::vector<T>& values);
template <class T, std::size_t N>
void describe(std::string& out, const std::array<T, N>& values);
template <class E>
void describe(std::string& out, const std::shared_ptr<E>& record);

template <class T>
requires std::is_integral_v<T>
void describe(std::string& out, T value) { out += std::to_string(value); }

// Callback objects of the asynchronous operations.
template <class T>
void describe(std::string& out, T* const& /*callback*/) {
    out += "\"callback\"";
}

template <class T>
void describe(std::string& out, const std::vector<T>& values) {
    out += '[';
    for (std::size_t i = 0; i < values.size(); ++i) {
        out += i == 0 ? "" : ",";
        describe(out, values[i]);
    }
    out += ']';
}

template <class T, std::size_t N>
void describe(std::string& out, const std::array<T, N>& values) {
    describe(out, std::vector<T>(values.begin(), values.end()));
}

template <class E>
void describe(std::string& out, const std::shared_ptr<E>& record) {
    if (!record) {
        out += "null";
        return;
    }
    out += '{';
    bool first = true;
    const auto member = [&](const auto& field) {
        out += first ? "\"" : ",\"";
        first = false;
        out += field.name;
        out += "\":";
        if constexpr (std::remove_cvref_t<decltype(field)>::secret) {
            describe(out, Secret{(*record).*(field.pointer)});
        } else {
            describe(out, (*record).*(field.pointer));
        }
    };
    std::apply([&](const auto&... field) { (member(field), ...); }, Fields::Of<E>::list);
    out += '}';
}

// The arguments of one call as a JSON array, in parameter order.
template <class... A>
std::string describeArguments(const A&... arguments) {
    std::string out = "[";
    bool first = true;
    ((out += first ? "" : ",", first = false, describe(out, arguments)), ...);
    out += ']';
    return out;
}

} // namespace Varno::Kel_cpp::Reference
