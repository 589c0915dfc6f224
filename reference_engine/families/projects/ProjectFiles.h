// The files of the Projects family below the data root: project files, database files and
// the saved configuration. Records are kept in the JSON form the scripting interface
// reads and writes, so a record's fields are written down only in the interface
// description.
#pragma once

#include "Describe.h"
#include "Parse.h"

#include <filesystem>
#include <optional>
#include <string>

namespace Varno::Kel_cpp::Reference {

// The project file in each project's folder, and the format this engine writes.
inline constexpr const char* projectFileName = "project.json";
inline constexpr int currentProjectFormat = 2;

template <class T>
Json toJson(const T& value) {
    std::string out;
    describe(out, value);
    return Json::parse(out);
}

// Throws ScriptError naming `path` when the JSON does not describe a T.
template <class T>
T fromJson(const Json& json, const std::string& path) {
    T value{};
    parse(json, value, path);
    return value;
}

// A deep copy, so that the engine never shares a record with a caller.
template <class T>
T copyOf(const T& value) {
    return fromJson<T>(toJson(value), "copy");
}

// The JSON in `file`; nullopt when it does not exist. Throws std::runtime_error with the
// reason when it cannot be read or is not JSON.
std::optional<Json> readJsonFile(const std::filesystem::path& file);
// Writes `json` to `file` through a temporary file, so a crash never leaves half a file.
// Throws TarnApiException CannotWriteFile.
void writeJsonFile(const std::filesystem::path& file, const Json& json);

} // namespace Varno::Kel_cpp::Reference
