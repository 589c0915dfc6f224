// The SOVD server: a REST endpoint over HTTP/1.1 on the loopback interface, whose
// resources are served by the engine's own operations on a remote client's engine object
// of the vehicle, so that they go over the simulated bus and through the admission table
// like any other remote call. Boost.Beast stays inside Sovd.cpp.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <thread>

namespace Varno::Kel_cpp::Reference {

class SimulatedVehicle;
struct ServersSettings;

class SovdServer {
public:
    // Listens on listenAddress(settings) and settings.sovdPort (0: the system chooses) and
    // serves on a thread of its own. Throws TarnApiException: NotLoopback, ServerRunning
    // when the port is taken, InternalError when no socket can be opened.
    SovdServer(std::weak_ptr<SimulatedVehicle> vehicle, const ServersSettings& settings);
    SovdServer(const SovdServer&) = delete;
    SovdServer& operator=(const SovdServer&) = delete;
    // A request being served is finished first; then every connection is closed and the
    // thread joined.
    ~SovdServer();

    // "http://127.0.0.1:<port>" ("http://[::1]:<port>").
    const std::wstring& address() const { return address_; }
    uint16_t port() const { return port_; }

private:
    struct Impl;
    std::shared_ptr<Impl> impl_; // shared with the thread, which may outlive this object
    std::thread thread_;
    std::wstring address_;
    uint16_t port_ = 0;
};

} // namespace Varno::Kel_cpp::Reference
