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

} // namespace

const nlohmann::json& VehicleDescription::section(const char* family) const {
    static const nlohmann::json empty = nlohmann::json::object();
    const auto found = root.find(family);
    return found != root.end() ? *found : empty;
}

uint64_t wholeNumber(const nlohmann::json& section, const char* key, uint64_t fallback,
                     uint64_t least, uint64_t most) {
    const auto found = section.find(key);
    if (found == section.end()) {
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
