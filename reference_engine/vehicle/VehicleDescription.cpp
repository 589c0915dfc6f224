#include "VehicleDescription.h"

#include "Describe.h"
#include "ErrorCodes.h"

#include <Kel_cpp/TarnApiException.h>

#include <cstdlib>
#include <fstream>
#include <mutex>
#include <sstream>
#include <stdexcept>

namespace Varno::Kel_cpp::Reference {
namespace {

// The bundled default vehicle, reference_engine/vehicles/default.json, built in.
const char* const defaultVehicle =
#include "DefaultVehicle.inc"
    ;

struct Source {
    std::mutex mutex;
    std::string path; // empty: KEL_SIM_VEHICLE, else the default
    std::string json; // inline description; wins over the path
};

Source& source() {
    static Source instance;
    return instance;
}

std::string readText(std::wstring& origin) {
    auto& s = source();
    std::string path;
    {
        const std::lock_guard lock(s.mutex);
        if (!s.json.empty()) {
            origin = L"description set through kelsim_setVehicleJson";
            return s.json;
        }
        path = s.path;
    }
    if (path.empty()) {
        const char* env = std::getenv("KEL_SIM_VEHICLE");
        path = env != nullptr ? env : "";
    }
    if (path.empty()) {
        origin = L"the bundled default vehicle";
        return defaultVehicle;
    }
    origin = fromUtf8(path);
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description cannot be read",
                               L"cannot open " + origin);
    }
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// A value as a message shows it: short, one line.
std::string shortDump(const nlohmann::json& value) {
    auto text = value.dump(-1, ' ', true, nlohmann::json::error_handler_t::replace);
    return text.size() > 40 ? text.substr(0, 37) + "..." : text;
}

// No text of the description may hold a NUL: names and texts end at one in C.
void refuseNul(const nlohmann::json& value, const std::string& path) {
    const auto holdsNul = [](const std::string& s) { return s.find('\0') != std::string::npos; };
    if (value.is_string() && holdsNul(value.get_ref<const std::string&>())) {
        throw std::invalid_argument(path + ": a string holds a NUL character");
    }
    if (value.is_array()) {
        for (std::size_t i = 0; i < value.size(); ++i) {
            refuseNul(value[i], path + "[" + std::to_string(i) + "]");
        }
    }
    if (value.is_object()) {
        for (const auto& [key, child] : value.items()) {
            const auto at = path.empty() ? key : path + "." + key;
            if (holdsNul(key)) {
                throw std::invalid_argument(at + ": a member name holds a NUL character");
            }
            refuseNul(child, at);
        }
    }
}

// The object whose members are read, and the member `key` of it if it is there.
const nlohmann::json* member(const nlohmann::json& object, const char* key) {
    if (!object.is_object()) {
        throw std::invalid_argument("expected an object with \"" + std::string(key) + "\", got " +
                                    shortDump(object));
    }
    const auto found = object.find(key);
    return found != object.end() ? &*found : nullptr;
}

} // namespace

const nlohmann::json& VehicleDescription::section(const char* family) const {
    static const nlohmann::json empty = nlohmann::json::object();
    const auto found = root.find(family);
    if (found == root.end()) {
        return empty;
    }
    if (!found->is_object()) {
        throw TarnApiException(
            BadVehicleDescription, L"The vehicle description is not valid",
            fromUtf8(std::string(family) + ": expected an object, got " + shortDump(*found)));
    }
    return *found;
}

const nlohmann::json& arrayMember(const nlohmann::json& object, const char* key, bool required) {
    static const nlohmann::json empty = nlohmann::json::array();
    const auto* found = member(object, key);
    if (found == nullptr) {
        if (required) {
            throw std::invalid_argument(std::string(key) + ": missing");
        }
        return empty;
    }
    if (!found->is_array()) {
        throw std::invalid_argument(std::string(key) + ": expected an array, got " +
                                    shortDump(*found));
    }
    return *found;
}

std::wstring textMember(const nlohmann::json& object, const char* key,
                        const std::wstring& fallback) {
    const auto* found = member(object, key);
    if (found == nullptr) {
        return fallback;
    }
    if (!found->is_string()) {
        throw std::invalid_argument(std::string(key) + ": expected a string, got " +
                                    shortDump(*found));
    }
    return fromUtf8(found->get<std::string>());
}

uint64_t wholeNumber(const nlohmann::json& object, const char* key, uint64_t fallback,
                     uint64_t least, uint64_t most) {
    const auto* found = member(object, key);
    if (found == nullptr) {
        return fallback;
    }
    // JSON's negative numbers are not unsigned, and would wrap if taken as such.
    if (!found->is_number_unsigned() || found->get<uint64_t>() < least ||
        found->get<uint64_t>() > most) {
        throw std::invalid_argument(std::string(key) + " is a whole number from " +
                                    std::to_string(least) + " to " + std::to_string(most));
    }
    return found->get<uint64_t>();
}

nlohmann::json parseVehicleJson(const std::string& text) {
    try {
        auto root = nlohmann::json::parse(text);
        if (!root.is_object()) {
            throw std::invalid_argument("a vehicle description is a JSON object");
        }
        refuseNul(root, "");
        return root;
    } catch (const std::exception& e) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               fromUtf8(e.what()));
    }
}

void VehicleDescription::reject(const TarnApiException& e) {
    root = nlohmann::json::object();
    problem =
        (e.details.empty() ? e.message : e.message + L": " + e.details) + L" (" + origin + L")";
}

VehicleDescription readVehicleDescription() {
    VehicleDescription description;
    try {
        description.root = parseVehicleJson(readText(description.origin));
    } catch (const TarnApiException& e) {
        description.reject(e);
    }
    return description;
}

void setVehicleSource(const std::string& path, const std::string& json) {
    auto& s = source();
    const std::lock_guard lock(s.mutex);
    s.path = path;
    s.json = json;
}

} // namespace Varno::Kel_cpp::Reference
