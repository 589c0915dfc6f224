// Events: event channels, server handlers told about remote clients, and the
// connection callbacks.
#pragma once

#include "EventChannels.h"
#include "Families.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

class SimulatedVehicle;
struct EngineObject;

// The "events" section of the vehicle description.
struct EventsSettings {
    EventChannels::Limits limits;

    // Throws TarnApiException BadVehicleDescription.
    static EventsSettings parse(const nlohmann::json& section);
};

// Per vehicle. The channels have their own lock (the last in the lock order); the
// server handlers and the count of remote clients have another.
class EventsState {
public:
    void load(const EventsSettings& settings) { channels.setLimits(settings.limits); }
    // Keeps a handler once, however often it is registered.
    void addHandler(std::shared_ptr<ServerHandler> handler);
    // Counts a remote client in or out: the handlers to tell (a copy) and the clients now.
    // False, and nobody to tell, when nothing changes: a client counted in already, or
    // one that is gone already (a connection the server ended is destroyed later).
    bool countClient(const std::wstring& client, bool connected, int32_t& clients,
                     std::vector<std::shared_ptr<ServerHandler>>& handlers);

    EventChannels channels;

private:
    std::mutex handlersMutex_;
    std::vector<std::shared_ptr<ServerHandler>> handlers_;
    std::set<std::wstring> remoteClients_;
};

// Tells the vehicle's server handlers and event channels that a remote client came or
// went. The handlers are called outside every lock of the engine.
void clientConnected(SimulatedVehicle& vehicle, const std::wstring& client);
void clientDisconnected(SimulatedVehicle& vehicle, const std::wstring& client);

class Events final : public EventsFamily {
public:
    Events(std::shared_ptr<SimulatedVehicle> vehicle, const EngineObject& object);
    Events(const Events&) = delete;
    Events& operator=(const Events&) = delete;
    // A remote connection tells the vehicle's server handlers that its client left.
    ~Events() override;

    uint64_t openEventChannel() override;
    void closeEventChannel(uint64_t channel) override;
    std::shared_ptr<EventReport> getCurrentEvents(uint64_t channel, uint32_t limit) override;
    void registerServerHandler(std::shared_ptr<ServerHandler> handler) override;
    void onConnectionBroken() override;
    void onConnectionClosed() override;

private:
    std::shared_ptr<SimulatedVehicle> vehicle_;
    EventsState& state_;
    uint64_t handle_;
    std::wstring remoteClient_; // empty for the local engine object
};

} // namespace Varno::Kel_cpp::Reference
