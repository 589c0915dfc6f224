// The units of a vehicle together: loading them, the bus every exchange goes over, its
// traffic, and the listeners that hear each exchange.
#include "ControlUnits.h"
#include "ErrorCodes.h"
#include "VehicleClock.h"

#include <Kel_cpp/TarnApiException.h>

#include <mutex>
#include <utility>

namespace Varno::Kel_cpp::Reference {

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

Bytes Bus::exchange(Ecu& ecu, const Bytes& request) {
    const auto now = VehicleClock::nowMs();
    Bytes response = ecu.responds ? ecu.respond(request, now) : Bytes{};
    units_.countExchange(request.size(), response.size());
    heard_.push_back({ecu.name, request, response, now});
    return response;
}

void ControlUnits::countExchange(size_t requestBytes, size_t responseBytes) {
    const std::lock_guard lock(trafficMutex_);
    ++traffic_.requests;
    traffic_.bytesSent += requestBytes;
    if (responseBytes > 0) {
        ++traffic_.responses;
        traffic_.bytesReceived += responseBytes;
    }
}

BusTraffic ControlUnits::traffic() const {
    const std::lock_guard lock(trafficMutex_);
    return traffic_;
}

uint64_t ControlUnits::listen(Listener listener) {
    const std::lock_guard lock(listenersMutex_);
    const auto id = nextListener_++;
    listeners_.emplace(id, std::move(listener));
    return id;
}

void ControlUnits::stopListening(uint64_t id) {
    const std::lock_guard lock(listenersMutex_);
    listeners_.erase(id);
}

void ControlUnits::tell(const std::vector<Exchange>& heard) const {
    if (heard.empty()) {
        return;
    }
    std::vector<Listener> listeners;
    {
        const std::lock_guard lock(listenersMutex_);
        for (const auto& [id, l] : listeners_) {
            listeners.push_back(l);
        }
    }
    for (const auto& exchange : heard) {
        for (const auto& l : listeners) {
            try {
                l(exchange);
            } catch (...) { // NOLINT(bugprone-empty-catch): a listener cannot fail a call
            }
        }
    }
}

} // namespace Varno::Kel_cpp::Reference
