// The engine's server: listens on loopback, and gives each accepted socket its own engine
// object on the vehicle (connectRemoteClient), on which every call of that socket runs,
// in order, on the connection's own worker thread. One I/O thread per server reads and
// writes every socket (Boost.Asio).
#pragma once

#include "Servers.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace Varno::Kel_cpp::Reference {

class SimulatedVehicle;

namespace Remote {

struct Core;

class RemoteServer {
public:
    // Listens on listenAddress(settings) and settings.port; throws NotLoopback, or
    // ServerRunning when the port is taken.
    RemoteServer(std::weak_ptr<SimulatedVehicle> vehicle, const ServersSettings& settings);
    RemoteServer(const RemoteServer&) = delete;
    RemoteServer& operator=(const RemoteServer&) = delete;
    ~RemoteServer(); // stops

    // "kel://127.0.0.1:<port>", the port the system gave.
    const std::wstring& address() const { return address_; }
    uint16_t port() const { return port_; }

    // The server ends every connection: each client hears a Goodbye, and its socket
    // closes. stop() also stops listening; it returns once nothing more connects.
    void endAll();
    void stop();

private:
    std::shared_ptr<Core> core_;
    std::wstring address_;
    uint16_t port_ = 0;
};

} // namespace Remote
} // namespace Varno::Kel_cpp::Reference
