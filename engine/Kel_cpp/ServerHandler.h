// The object a client registers to hear about remote clients of a serving engine.
#pragma once

#include <string>

namespace Varno::Kel_cpp {

class ServerHandler {
public:
    virtual ~ServerHandler() = default;
    // A remote client connected to, or disconnected from, this engine.
    virtual void onClientConnected(const std::wstring& client) = 0;
    virtual void onClientDisconnected(const std::wstring& client) = 0;

protected:
    ServerHandler() = default;
    ServerHandler(const ServerHandler&) = default;
    ServerHandler& operator=(const ServerHandler&) = default;
};

} // namespace Varno::Kel_cpp
