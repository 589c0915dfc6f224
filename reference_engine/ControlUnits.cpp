#include "ControlUnits.h"

#include "Describe.h"
#include "ErrorCodes.h"

#include <Kel_cpp/TarnApiException.h>

#include <stdexcept>

namespace Varno::Kel_cpp::Reference {
namespace {

std::wstring wtext(const nlohmann::json& object, const char* key, const char* fallback = "") {
    const auto found = object.find(key);
    return fromUtf8(found != object.end() ? found->get<std::string>() : std::string(fallback));
}

std::vector<uint8_t> hexBytes(const std::string& hex) {
    if (hex.size() % 2 != 0) {
        throw std::invalid_argument("raw bytes need an even number of hex digits: " + hex);
    }
    std::vector<uint8_t> out;
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        out.push_back(static_cast<uint8_t>(std::stoul(hex.substr(i, 2), nullptr, 16)));
    }
    return out;
}

Parameter parseParameter(const nlohmann::json& j) {
    Parameter p;
    p.name = wtext(j, "name");
    p.label = wtext(j, "label");
    p.value = wtext(j, "value");
    p.unit = wtext(j, "unit");
    p.raw = hexBytes(j.value("raw", std::string()));
    for (const auto& child : j.value("children", nlohmann::json::array())) {
        p.children.push_back(parseParameter(child));
    }
    return p;
}

std::vector<Parameter> parseParameters(const nlohmann::json& j, const char* key) {
    std::vector<Parameter> out;
    for (const auto& item : j.value(key, nlohmann::json::array())) {
        out.push_back(parseParameter(item));
    }
    return out;
}

} // namespace

uint32_t ControlUnits::dtcNumber(const std::wstring& display, uint8_t failureType) {
    static const std::wstring letters = L"PCBU";
    const auto letter = display.empty() ? std::wstring::npos : letters.find(display[0]);
    if (letter == std::wstring::npos || display.size() != 5) {
        throw std::invalid_argument("a DTC is written as P, C, B or U and four hex digits: " +
                                    toUtf8(display));
    }
    const uint32_t digits =
        static_cast<uint32_t>(std::stoul(toUtf8(display.substr(1)), nullptr, 16));
    if (digits > 0x3FFF) {
        throw std::invalid_argument("the first digit of a DTC is 0 to 3: " + toUtf8(display));
    }
    return ((static_cast<uint32_t>(letter) << 14 | digits) << 8) | failureType;
}

std::vector<Ecu> ControlUnits::parse(const nlohmann::json& root) {
    try {
        std::vector<Ecu> ecus;
        for (const auto& j : root.at("ecus")) {
            Ecu ecu;
            ecu.name = fromUtf8(j.at("name").get<std::string>());
            ecu.description = wtext(j, "description");
            ecu.variant = wtext(j, "variant");
            ecu.protocol = wtext(j, "protocol");
            ecu.bus = wtext(j, "bus");
            ecu.address = j.value("address", 0);
            ecu.responds = j.value("responds", true);
            ecu.responseTimeoutMs = j.value("responseTimeoutMs", 1000U);
            for (const auto& a : j.value("aliases", nlohmann::json::array())) {
                ecu.aliases.push_back(fromUtf8(a.get<std::string>()));
            }
            for (const auto& v : j.value("identification", nlohmann::json::array())) {
                ecu.identification.push_back({wtext(v, "id"), wtext(v, "name"), wtext(v, "value")});
            }
            for (const auto& d : j.value("dtcs", nlohmann::json::array())) {
                Dtc dtc;
                dtc.display = fromUtf8(d.at("code").get<std::string>());
                dtc.code = dtcNumber(dtc.display, d.value("failureType", uint8_t{0}));
                dtc.status = d.value("status", uint8_t{0});
                dtc.text = wtext(d, "text");
                dtc.symptom = wtext(d, "symptom");
                dtc.severity = d.value("severity", 0);
                dtc.snapshot = parseParameters(d, "snapshot");
                dtc.extended = parseParameters(d, "extended");
                for (const auto& group : d.value("specialData", nlohmann::json::array())) {
                    std::vector<SpecialItem> items;
                    for (const auto& item : group) {
                        items.push_back(
                            {wtext(item, "name"), wtext(item, "value"), wtext(item, "unit")});
                    }
                    dtc.specialData.push_back(std::move(items));
                }
                dtc.stored = d.value("stored", true);
                ecu.dtcs.push_back(std::move(dtc));
            }
            ecus.push_back(std::move(ecu));
        }
        return ecus;
    } catch (const std::exception& e) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               fromUtf8(e.what()));
    }
}

void ControlUnits::load(std::vector<Ecu> ecus, std::wstring problem) {
    const std::lock_guard lock(mutex_);
    ecus_ = std::move(ecus);
    problem_ = std::move(problem);
}

void ControlUnits::requireLoaded() const {
    if (!problem_.empty()) {
        throw TarnApiException(BadVehicleDescription,
                               L"The simulated vehicle has no valid description", problem_);
    }
}

void ControlUnits::countExchange(size_t requestBytes, size_t responseBytes) {
    const std::lock_guard lock(mutex_);
    ++traffic_.requests;
    traffic_.bytesSent += requestBytes;
    if (responseBytes > 0) {
        ++traffic_.responses;
        traffic_.bytesReceived += responseBytes;
    }
}

BusTraffic ControlUnits::traffic() const {
    const std::lock_guard lock(mutex_);
    return traffic_;
}

} // namespace Varno::Kel_cpp::Reference
