// The client's end of a remote connection: a socket to an engine's server, on which the
// generated proxy (generated/RemoteEngine.*) sends each call as a frame and waits for
// its answer. One reader thread per socket takes the answers and the asynchronous
// reports; the callers' threads write their calls themselves.
#pragma once

#include "RemoteCalls.h"

#include <Kel_cpp/TarnApi.h>

#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

namespace Varno::Kel_cpp::Reference {

class SimulatedVehicle;

namespace Remote {

// Receives the reports of one asynchronous call on the reader thread.
class AsyncReceiver {
public:
    virtual ~AsyncReceiver() = default;
    // One Report frame's payload; returns isFinal.
    virtual bool deliver(kel::OTXStream& in) = 0;
    // The connection ended before the final report: a final one with this error.
    virtual void fail(uint64_t callId, std::shared_ptr<KelError> error) = 0;
};

template <class Callback>
class CallbackReceiver final : public AsyncReceiver {
public:
    explicit CallbackReceiver(Callback* callback) : callback_(callback) {}
    bool deliver(kel::OTXStream& in) override {
        std::vector<std::shared_ptr<typename ReportOf<decltype(&Callback::onCompleted)>::Element>>
            results;
        uint64_t callId = 0;
        std::shared_ptr<KelError> error;
        bool isFinal = false;
        in.read(results);
        in.read(callId);
        in.read(error);
        in.read(isFinal);
        callback_->onCompleted(std::move(results), callId, std::move(error), isFinal);
        return isFinal;
    }
    void fail(uint64_t callId, std::shared_ptr<KelError> error) override {
        callback_->onCompleted({}, callId, std::move(error), true);
    }

private:
    Callback* callback_;
};

class Link;

class RemoteClient {
public:
    // Connects to "kel://<loopback address>:<port>" and shakes hands. Throws
    // ServerNotRunning when nothing listens there, ProtocolError for another protocol.
    // A socket that breaks posts ConnectionBroken on `local`'s channels.
    RemoteClient(const std::wstring& address, std::weak_ptr<SimulatedVehicle> local);
    RemoteClient(const RemoteClient&) = delete;
    RemoteClient& operator=(const RemoteClient&) = delete;
    ~RemoteClient(); // ends the connection cleanly

    template <class R, class... A>
    R call(uint16_t operation, const A&... arguments) {
        Writer out;
        (out.write(arguments), ...);
        const auto answer = roundTrip(operation, bytesOf(out), nullptr);
        if constexpr (!std::is_void_v<R>) {
            Reader in(answer);
            R value{};
            read(in, value);
            return value;
        }
    }

    // Returns the server's call id; `callback` hears each report on the reader thread.
    template <class Callback, class... A>
    uint64_t callAsync(uint16_t operation, Callback* callback, const A&... arguments) {
        Writer out;
        (out.write(arguments), ...);
        const auto answer = roundTrip(operation, bytesOf(out),
                                      std::make_shared<CallbackReceiver<Callback>>(callback));
        Reader in(answer);
        uint64_t id = 0;
        read(in, id);
        return id;
    }

    // Local handling (the generated proxy sends these here).
    bool reconnect(uint16_t position, uint64_t handle);
    void disconnect(uint16_t position);
    uint64_t handle();
    // SCRAM-SHA-256 in Login frames: the password stays here.
    void logIn(const std::shared_ptr<LogInOutConfig>& config);

private:
    template <class T>
    static void read(kel::OTXStream& in, T& value) {
        try {
            in.read(value);
        } catch (const kel::MalformedInput& problem) {
            throw malformedAnswer(problem.what());
        }
    }
    static TarnApiException malformedAnswer(const char* what);
    std::vector<uint8_t> roundTrip(uint16_t operation, std::vector<uint8_t> arguments,
                                   std::shared_ptr<AsyncReceiver> async);
    std::shared_ptr<Link> current();
    static std::vector<uint8_t> reconnectArguments(uint64_t handle);

    const std::wstring address_;
    const std::weak_ptr<SimulatedVehicle> local_;
    std::mutex mutex_;
    std::shared_ptr<Link> link_;
    std::set<uint64_t> handles_; // the server's engine handles this proxy has had
};

// "kel://127.0.0.1:4242" -> host and port; empty for anything else.
struct Endpoint {
    std::string host;
    uint16_t port = 0;
};
bool parseAddress(const std::wstring& address, Endpoint& endpoint);

} // namespace Remote
} // namespace Varno::Kel_cpp::Reference
