#include "Events.h"

#include "Describe.h"
#include "SimulatedVehicle.h"
#include "VehicleDescription.h"

#include <algorithm>
#include <utility>

namespace Varno::Kel_cpp::Reference {

EventsSettings EventsSettings::parse(const nlohmann::json& section) {
    try {
        EventsSettings settings;
        auto& limits = settings.limits;
        limits.capacity = wholeNumber(section, "channelCapacity", limits.capacity, 1, 1000000);
        limits.channels = wholeNumber(section, "maxChannels", limits.channels, 1, 10000);
        return settings;
    } catch (const std::exception& e) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               fromUtf8(e.what()));
    }
}

Events::Events(std::shared_ptr<SimulatedVehicle> vehicle, const EngineObject& object)
    : vehicle_(std::move(vehicle)), state_(vehicle_->events), handle_(object.handle),
      remoteClient_(object.remoteClient) {}

Events::~Events() {
    if (!remoteClient_.empty()) {
        // Through the servers' queue, so that it cannot overtake an end or a renewal of
        // the same connection that another thread is announcing.
        vehicle_->servers.connectionGone(*vehicle_, remoteClient_);
    }
}

uint64_t Events::openEventChannel() { return state_.channels.open(); }

void Events::closeEventChannel(uint64_t channel) { state_.channels.close(channel); }

std::shared_ptr<EventReport> Events::getCurrentEvents(uint64_t channel, uint32_t limit) {
    return state_.channels.take(channel, limit);
}

// An empty handler (a caller's NULL, or the dispatchers, which cannot carry one) has
// nothing to hear and is not kept.
void Events::registerServerHandler(std::shared_ptr<ServerHandler> handler) {
    if (handler) {
        state_.addHandler(std::move(handler));
    }
}

void Events::onConnectionBroken() {
    auto error = std::make_shared<KelError>();
    error->code = ConnectionLost;
    error->message = L"The connection to the client broke";
    error->details = L"reported by the client";
    post(*vehicle_, EventKind::ConnectionBroken, 0, L"The client reported a broken connection",
         L"engine " + std::to_wstring(handle_), std::move(error));
}

void Events::onConnectionClosed() {
    post(*vehicle_, EventKind::ConnectionClosed, 0, L"The client closed its connection",
         L"engine " + std::to_wstring(handle_));
}

// Registering the same handler object again keeps one entry, so that it hears each
// client once; the vehicle holds the handlers until it goes away.
void EventsState::addHandler(std::shared_ptr<ServerHandler> handler) {
    const std::lock_guard lock(handlersMutex_);
    const auto same = std::find_if(handlers_.begin(), handlers_.end(),
                                   [&](const auto& kept) { return kept.get() == handler.get(); });
    if (same != handlers_.end()) {
        *same = std::move(handler);
    } else {
        handlers_.push_back(std::move(handler));
    }
}

bool EventsState::countClient(const std::wstring& client, bool connected, int32_t& clients,
                              std::vector<std::shared_ptr<ServerHandler>>& handlers) {
    const std::lock_guard lock(handlersMutex_);
    const bool changed =
        connected ? remoteClients_.insert(client).second : remoteClients_.erase(client) > 0;
    clients = static_cast<int32_t>(remoteClients_.size());
    if (changed) {
        handlers = handlers_;
    }
    return changed;
}

namespace {

// Handlers are called on a copy of the list, outside every lock, so that a handler may
// call the engine and register another one; what a handler throws is not the engine's
// business and is dropped.
template <class Notify>
void notifyHandlers(SimulatedVehicle& vehicle, const std::wstring& client, bool connected,
                    Notify notify) {
    int32_t clients = 0;
    std::vector<std::shared_ptr<ServerHandler>> handlers;
    if (!vehicle.events.countClient(client, connected, clients, handlers)) {
        return;
    }
    post(vehicle, connected ? EventKind::ClientConnected : EventKind::ClientDisconnected, clients,
         connected ? L"A remote client connected" : L"A remote client disconnected", client);
    for (const auto& handler : handlers) {
        try {
            notify(*handler);
        } catch (...) { // NOLINT(bugprone-empty-catch)
        }
    }
}

} // namespace

void clientConnected(SimulatedVehicle& vehicle, const std::wstring& client) {
    notifyHandlers(vehicle, client, true,
                   [&](ServerHandler& handler) { handler.onClientConnected(client); });
}

void clientDisconnected(SimulatedVehicle& vehicle, const std::wstring& client) {
    notifyHandlers(vehicle, client, false,
                   [&](ServerHandler& handler) { handler.onClientDisconnected(client); });
}

} // namespace Varno::Kel_cpp::Reference
