#include "EcuOrder.h"

#include "ControlUnits.h"
#include "Describe.h"
#include "ErrorCodes.h"
#include "SimulatedVehicle.h"

#include <algorithm>
#include <utility>

namespace Varno::Kel_cpp::Reference {

EcuOrderSettings EcuOrderSettings::parse(const nlohmann::json& section,
                                         const std::vector<Ecu>& ecus) {
    EcuOrderSettings settings;
    try {
        settings.gateway = fromUtf8(section.value("gateway", std::string()));
    } catch (const std::exception& e) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               fromUtf8(std::string("ecuOrder: ") + e.what()));
    }
    if (!settings.gateway.empty() && std::none_of(ecus.begin(), ecus.end(), [&](const Ecu& e) {
            return e.name == settings.gateway;
        })) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               L"ecuOrder: the gateway " + settings.gateway +
                                   L" is no unit of the vehicle");
    }
    return settings;
}

void EcuOrderState::load(EcuOrderSettings settings) {
    const std::lock_guard lock(mutex_);
    settings_ = std::move(settings);
}

EcuOrderEntries EcuOrderState::defaultOrder(const std::vector<Ecu>& ecus) const {
    std::wstring gateway;
    {
        const std::lock_guard lock(mutex_);
        gateway = settings_.gateway;
    }
    EcuOrderEntries order;
    for (const auto& ecu : ecus) {
        auto entry = std::make_shared<EcuOrderEntry>();
        entry->target = ecu.name;
        entry->bus = ecu.bus;
        entry->address = static_cast<uint32_t>(ecu.address);
        entry->gateway = ecu.name == gateway;
        order.push_back(std::move(entry));
    }
    std::stable_sort(order.begin(), order.end(), [](const auto& a, const auto& b) {
        if (a->gateway != b->gateway) {
            return a->gateway;
        }
        if (a->bus != b->bus) {
            return a->bus < b->bus;
        }
        return a->address < b->address;
    });
    return order;
}

EcuOrder::EcuOrder(std::shared_ptr<SimulatedVehicle> vehicle) : vehicle_(std::move(vehicle)) {}

EcuOrderEntries EcuOrder::createDefaultECUOrder() {
    return vehicle_->units->read(
        [&](const std::vector<Ecu>& ecus) { return vehicle_->ecuOrder.defaultOrder(ecus); });
}

} // namespace Varno::Kel_cpp::Reference
