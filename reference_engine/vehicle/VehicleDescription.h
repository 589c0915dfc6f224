// The JSON vehicle description a vehicle starts from (README.md, "The vehicle
// description"): the control units under "ecus", and one optional section per simulated
// family under the family's name ("lifecycle", "events", "diagnostics").
#pragma once

#include <Kel_cpp/TarnApiException.h>

#include <nlohmann/json.hpp>

#include <cstdint>
#include <string>

namespace Varno::Kel_cpp::Reference {

struct VehicleDescription {
    nlohmann::json root = nlohmann::json::object();
    std::wstring origin; // where it came from, for messages
    // Why the description cannot be used, with its origin; empty when it can.
    std::wstring problem;

    // Marks the description unusable for the reason `e` gives (a part that is not valid):
    // every part then starts from its defaults.
    void reject(const TarnApiException& e);

    // The family's section, or an empty object when the description has none. Throws
    // TarnApiException BadVehicleDescription when the section is there but no object.
    const nlohmann::json& section(const char* family) const;
};

// The description named by kelsim_setVehicleFile / kelsim_setVehicleJson, else by the
// KEL_SIM_VEHICLE environment variable, else the bundled default vehicle, parsed as
// JSON. Checking its parts is the vehicle's business.
VehicleDescription readVehicleDescription();

// Members of a section (or of an object within one), read with their types checked: a
// member of the wrong type is refused, not read as its default or as a one-element list.
// Each throws std::invalid_argument naming the member; the section's reader adds the
// section. `object` itself must be an object.
//
// The whole number `key`, `fallback` when it is absent, else a number from least to most.
uint64_t wholeNumber(const nlohmann::json& object, const char* key, uint64_t fallback,
                     uint64_t least, uint64_t most);
// The array `key`; an empty array when it is absent and not `required`.
const nlohmann::json& arrayMember(const nlohmann::json& object, const char* key,
                                  bool required = false);
// The string `key`; `fallback` when it is absent.
std::wstring textMember(const nlohmann::json& object, const char* key,
                        const std::wstring& fallback = {});

// JSON text as a description; throws TarnApiException BadVehicleDescription.
nlohmann::json parseVehicleJson(const std::string& text);

// Where new vehicles read their description (set through kel_sim.h). Empty both: back
// to KEL_SIM_VEHICLE or the default.
void setVehicleSource(const std::string& path, const std::string& json);

} // namespace Varno::Kel_cpp::Reference
