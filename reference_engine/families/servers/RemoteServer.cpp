#include "RemoteServer.h"

#include "Describe.h"
#include "EngineFront.h"
#include "ErrorCodes.h"
#include "Frames.h"
#include "Net.h"
#include "RemoteCalls.h"
#include "Scram.h"
#include "SimulatedVehicle.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <condition_variable>
#include <cstring>
#include <deque>
#include <future>
#include <map>
#include <optional>
#include <set>
#include <thread>
#include <variant>

namespace Varno::Kel_cpp::Reference::Remote {

namespace asio = boost::asio;
using asio::ip::tcp;

namespace {

std::vector<uint8_t> errorAnswer(const TarnApiException& exception) {
    Writer out;
    out.write(uint8_t{0});
    out.write(errorOf(exception));
    return bytesOf(out);
}

// How a connection ended, which decides what its engine object hears.
enum class Ending {
    Broken,      // the socket broke, or the client broke the protocol: onConnectionBroken
    Closed,      // the client said goodbye: onConnectionClosed
    ServerEnded, // the server ended it (stop, restart, disconnectAllClients, idle)
};

} // namespace

struct Connection;

struct Core {
    Core(std::weak_ptr<SimulatedVehicle> vehicle, const ServersSettings& settings)
        : vehicle(std::move(vehicle)), settings(settings), acceptor(io),
          work(asio::make_work_guard(io)) {
        limits.maxMessage = settings.maxMessageBytes;
    }

    const std::weak_ptr<SimulatedVehicle> vehicle;
    const ServersSettings settings;
    Wire::Limits limits;
    asio::io_context io;
    tcp::acceptor acceptor;
    asio::executor_work_guard<asio::io_context::executor_type> work;
    // The I/O thread's: the live connections.
    std::set<std::shared_ptr<Connection>> connections;
    bool stopped = false;
};

struct Connection final : Reporter, std::enable_shared_from_this<Connection> {
    Connection(std::shared_ptr<Core> core, tcp::socket socket)
        : core(std::move(core)), socket(std::move(socket)), timer(this->core->io),
          assembler(this->core->limits) {}

    // ---- the I/O thread ----
    void start() { read(); }

    void read() {
        armTimer();
        socket.async_read_some(
            asio::buffer(buffer),
            [self = shared_from_this()](boost::system::error_code error, std::size_t count) {
                self->received(error, count);
            });
    }

    void armTimer() {
        const uint32_t ms = assembler.midMessage() || !greeted ? core->settings.readTimeoutMs
                                                               : core->settings.idleTimeoutMs;
        timer.expires_after(std::chrono::milliseconds(ms));
        timer.async_wait([weak = weak_from_this()](boost::system::error_code error) {
            const auto self = weak.lock();
            if (!error && self && !self->closing) {
                // Idle: the server ends it; a message left half sent: it broke.
                self->end(self->assembler.midMessage() || !self->greeted ? Ending::Broken
                                                                         : Ending::ServerEnded);
            }
        });
    }

    void received(boost::system::error_code error, std::size_t count) {
        if (closing) {
            return;
        }
        if (error) {
            end(Ending::Broken);
            return;
        }
        std::size_t offset = 0;
        while (offset < count && !closing) {
            std::size_t used = 0;
            Wire::Assembler::Message message;
            const auto status =
                assembler.feed(buffer.data() + offset, count - offset, used, message);
            offset += used;
            if (status == Wire::Assembler::Status::Malformed) {
                end(Ending::Broken);
                return;
            }
            if (status == Wire::Assembler::Status::Complete) {
                take(std::move(message));
            }
        }
        if (!closing) {
            read();
        }
    }

    void take(Wire::Assembler::Message message) {
        if (!greeted) {
            if (message.header.kind != Wire::Kind::Hello) {
                end(Ending::Broken);
                return;
            }
            greeted = true;
            if (!Wire::acceptsHello(message.payload)) {
                refuse({ProtocolError, L"The server speaks another protocol version",
                        L"this server speaks version " + std::to_wstring(Wire::version)});
                return;
            }
            enqueue(std::move(message));
            return;
        }
        switch (message.header.kind) {
        case Wire::Kind::Call:
        case Wire::Kind::Login:
            if (pending.load() >= core->settings.maxPendingCalls) {
                answer(message.header,
                       errorAnswer({ServerBusy, L"Too many calls of this connection are pending",
                                    std::to_wstring(core->settings.maxPendingCalls) +
                                        L" may wait at a time"}));
                return;
            }
            ++pending;
            enqueue(std::move(message));
            return;
        case Wire::Kind::Goodbye:
            end(Ending::Closed);
            return;
        default:
            end(Ending::Broken);
        }
    }

    // A connection the server does not take: the client hears why, then it closes.
    void refuse(const TarnApiException& why) {
        Wire::Header header;
        header.kind = Wire::Kind::Result;
        const auto payload = errorAnswer(why);
        write(Wire::frames(header, payload.data(), payload.size(), core->limits));
        closing = true;
        closeAfterWrites = true;
        timer.cancel();
        enqueueEnd(Ending::ServerEnded);
    }

    // Ends the connection once: the worker finishes what is queued, then hears the end.
    void end(Ending how) {
        if (closing) {
            return;
        }
        closing = true;
        timer.cancel();
        enqueueEnd(how);
        if (how == Ending::ServerEnded) {
            Wire::Header header;
            header.kind = Wire::Kind::Goodbye;
            write(Wire::frames(header, nullptr, 0, core->limits));
            closeAfterWrites = true;
        } else {
            closeSocket();
        }
    }

    void closeSocket() {
        boost::system::error_code ignored;
        socket.shutdown(tcp::socket::shutdown_both, ignored);
        socket.close(ignored);
        core->connections.erase(shared_from_this());
    }

    void write(std::vector<uint8_t> bytes) {
        if (!socket.is_open()) {
            return;
        }
        writes.push_back(std::move(bytes));
        if (!writing) {
            writeNext();
        }
    }

    void writeNext() {
        if (writes.empty()) {
            writing = false;
            if (closeAfterWrites) {
                closeSocket();
            }
            return;
        }
        writing = true;
        asio::async_write(
            socket, asio::buffer(writes.front()),
            [self = shared_from_this()](boost::system::error_code error, std::size_t) {
                self->writes.pop_front();
                if (error) {
                    self->writes.clear();
                    self->writing = false;
                    self->end(Ending::Broken);
                    if (self->closeAfterWrites) {
                        self->closeSocket();
                    }
                    return;
                }
                self->writeNext();
            });
    }

    void answer(const Wire::Header& call, const std::vector<uint8_t>& payload) {
        Wire::Header header;
        header.kind = Wire::Kind::Result;
        header.operation = call.operation;
        header.callId = call.callId;
        write(Wire::frames(header, payload.data(), payload.size(), core->limits));
    }

    // From any thread. A connection already gone has nothing left to write.
    void post(std::function<void(Connection&)> work) {
        asio::post(core->io, [weak = weak_from_this(), work = std::move(work)] {
            if (const auto self = weak.lock()) {
                work(*self);
            }
        });
    }

    void report(uint16_t operation, uint64_t callId, std::vector<uint8_t> payload) override {
        post([operation, callId, payload = std::move(payload)](Connection& self) {
            Wire::Header header;
            header.kind = Wire::Kind::Report;
            header.operation = operation;
            header.callId = callId;
            self.write(Wire::frames(header, payload.data(), payload.size(), self.core->limits));
        });
    }

    // ---- the worker ----
    using Work = std::variant<Wire::Assembler::Message, Ending>;

    void enqueue(Wire::Assembler::Message message) {
        {
            const std::lock_guard lock(mutex);
            queue.emplace_back(std::move(message));
        }
        changed.notify_one();
    }
    void enqueueEnd(Ending how) {
        {
            const std::lock_guard lock(mutex);
            queue.emplace_back(how);
        }
        changed.notify_one();
    }

    void work() {
        std::shared_ptr<TarnApi> engine;
        std::optional<Scram::Server> scram; // a login under way
        uint32_t attempt = 0;
        for (;;) {
            Work next;
            {
                std::unique_lock lock(mutex);
                changed.wait(lock, [&] { return !queue.empty(); });
                next = std::move(queue.front());
                queue.pop_front();
            }
            if (const auto* how = std::get_if<Ending>(&next)) {
                finish(engine, *how);
                return;
            }
            auto& message = std::get<Wire::Assembler::Message>(next);
            if (message.header.kind == Wire::Kind::Hello) {
                engine = welcome();
                continue;
            }
            auto payload = message.header.kind == Wire::Kind::Login
                               ? logIn(engine, message, scram, attempt)
                               : call(engine, message);
            --pending;
            post([header = message.header, payload = std::move(payload)](Connection& self) {
                self.answer(header, payload);
            });
        }
    }

    std::shared_ptr<TarnApi> welcome() {
        const auto vehicle = core->vehicle.lock();
        if (!vehicle) {
            post([](Connection& self) {
                self.refuse({ServerNotRunning, L"The server's engine has ended"});
            });
            return nullptr;
        }
        auto engine = connectRemoteClient(vehicle);
        handle = engine->getHandle();
        std::vector<uint8_t> payload = Wire::helloPayload();
        payload.resize(payload.size() + 8);
        std::memcpy(payload.data() + payload.size() - 8, &handle, 8);
        post([payload = std::move(payload)](Connection& self) {
            Wire::Header header;
            header.kind = Wire::Kind::Welcome;
            self.write(Wire::frames(header, payload.data(), payload.size(), self.core->limits));
        });
        return engine;
    }

    std::vector<uint8_t> call(const std::shared_ptr<TarnApi>& engine,
                              const Wire::Assembler::Message& message) {
        const Serve serve = served(message.header.operation);
        try {
            if (!engine) {
                throw TarnApiException(ConnectionEnded, L"This remote connection has ended");
            }
            if (serve == nullptr) {
                throw TarnApiException(NotRemotable, L"The server does not serve this operation",
                                       L"position " + std::to_wstring(message.header.operation));
            }
            Reader in(message.payload);
            Writer out;
            out.write(uint8_t{1});
            serve(*engine, in, out, shared_from_this());
            return bytesOf(out);
        } catch (const TarnApiException& e) {
            return errorAnswer(e);
        } catch (const kel::MalformedInput& e) {
            return errorAnswer(
                {ProtocolError, L"The call's arguments are malformed", fromUtf8(e.what())});
        } catch (const std::exception& e) {
            return errorAnswer(
                {ProtocolError, L"The call failed on the server", fromUtf8(e.what())});
        }
    }

    // SCRAM-SHA-256: the password never travels, and a proof is good for its own
    // exchange only (the server's nonce is new each time).
    std::vector<uint8_t> logIn(const std::shared_ptr<TarnApi>& engine,
                               const Wire::Assembler::Message& message,
                               std::optional<Scram::Server>& scram, uint32_t& attempt) {
        const std::string text(message.payload.begin(), message.payload.end());
        try {
            const auto vehicle = core->vehicle.lock();
            if (!engine || !vehicle) {
                throw TarnApiException(ConnectionEnded, L"This remote connection has ended");
            }
            vehicle->lifecycle.requireInitialized();
            std::string answer;
            if (message.header.operation == 1) {
                scram.emplace();
                answer = scram->first(text, [&](const std::wstring& user) {
                    return vehicle->servers.scramKeys(user, attempt);
                });
            } else if (message.header.operation == 2 && scram) {
                auto proved = scram->final(text);
                const std::wstring user = scram->user();
                scram.reset();
                vehicle->servers.scramOutcome(*vehicle, handle.load(), user, proved.has_value(),
                                              attempt);
                answer = std::move(*proved);
            } else {
                throw TarnApiException(ProtocolError, L"A login message out of turn");
            }
            Writer out;
            out.write(uint8_t{1});
            out.put(answer.data(), answer.size());
            return bytesOf(out);
        } catch (const TarnApiException& e) {
            scram.reset();
            return errorAnswer(e);
        } catch (const Scram::Malformed& e) {
            scram.reset();
            return errorAnswer({ProtocolError, L"A malformed login message", fromUtf8(e.what())});
        }
    }

    // The engine object hears how its client went, then goes (and with it the client,
    // announced to the server handlers unless the server ended it already).
    void finish(std::shared_ptr<TarnApi>& engine, Ending how) {
        if (const auto* front = dynamic_cast<EngineFront*>(engine.get())) {
            try {
                if (how == Ending::Broken) {
                    front->vehicle()->onConnectionBroken();
                } else if (how == Ending::Closed) {
                    front->vehicle()->onConnectionClosed();
                }
            } catch (const TarnApiException&) { // NOLINT(bugprone-empty-catch): the engine ended
            }
        }
        engine.reset();
        post([](Connection& self) { self.timer.cancel(); });
    }

    const std::shared_ptr<Core> core;
    tcp::socket socket;
    asio::steady_timer timer;
    Wire::Assembler assembler;
    std::array<uint8_t, 65536> buffer{};
    bool greeted = false;
    bool closing = false;
    bool closeAfterWrites = false;
    bool writing = false;
    std::deque<std::vector<uint8_t>> writes;

    std::atomic<uint64_t> handle{0};
    std::atomic<uint32_t> pending{0};
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Work> queue;
};

namespace {

void accept(const std::shared_ptr<Core>& core) {
    core->acceptor.async_accept([core](boost::system::error_code error, tcp::socket socket) {
        if (core->stopped) {
            return;
        }
        if (!error) {
            boost::system::error_code ignored;
            socket.set_option(tcp::no_delay(true), ignored);
            auto connection = std::make_shared<Connection>(core, std::move(socket));
            // The worker owns the connection's engine object and ends with it.
            std::thread([connection] { connection->work(); }).detach();
            if (core->connections.size() >= core->settings.maxConnections) {
                connection->refuse(
                    {ServerBusy, L"The server takes no more connections",
                     std::to_wstring(core->settings.maxConnections) + L" are connected"});
            } else {
                core->connections.insert(connection);
                connection->start();
            }
        }
        accept(core);
    });
}

} // namespace

RemoteServer::RemoteServer(std::weak_ptr<SimulatedVehicle> vehicle, const ServersSettings& settings)
    : core_(std::make_shared<Core>(std::move(vehicle), settings)) {
    const std::string host = listenAddress(settings);
    boost::system::error_code error;
    const tcp::endpoint endpoint(asio::ip::make_address(host), settings.port);
    core_->acceptor.open(endpoint.protocol(), error);
#if !defined(_WIN32)
    // A port of a server just stopped is free again at once (on Windows the option would
    // let another program take a port in use instead).
    if (!error) {
        core_->acceptor.set_option(tcp::acceptor::reuse_address(true), error);
    }
#endif
    if (!error) {
        core_->acceptor.bind(endpoint, error);
    }
    if (!error) {
        core_->acceptor.listen(asio::socket_base::max_listen_connections, error);
    }
    if (error) {
        throw TarnApiException(ServerRunning, L"The server cannot listen on this port",
                               fromUtf8(host) + L":" + std::to_wstring(settings.port) + L": " +
                                   fromUtf8(error.message()));
    }
    port_ = core_->acceptor.local_endpoint().port();
    const uint16_t port = port_;
    address_ =
        L"kel://" +
        (host.find(':') != std::string::npos ? L"[" + fromUtf8(host) + L"]" : fromUtf8(host)) +
        L":" + std::to_wstring(port);
    accept(core_);
    // Detached: it may outlive this object until its last socket is closed.
    std::thread([core = core_] { core->io.run(); }).detach();
}

RemoteServer::~RemoteServer() {
    stop();
    core_->work.reset();
}

void RemoteServer::endAll() {
    std::promise<void> done;
    asio::post(core_->io, [&] {
        const auto connections = core_->connections; // end() erases
        for (const auto& connection : connections) {
            connection->end(Ending::ServerEnded);
        }
        done.set_value();
    });
    done.get_future().wait();
}

void RemoteServer::stop() {
    std::promise<void> done;
    asio::post(core_->io, [&] {
        if (!core_->stopped) {
            core_->stopped = true;
            boost::system::error_code ignored;
            core_->acceptor.close(ignored);
        }
        done.set_value();
    });
    done.get_future().wait();
    endAll();
}

} // namespace Varno::Kel_cpp::Reference::Remote
