#include "RemoteClient.h"

#include "Describe.h"
#include "ErrorCodes.h"
#include "Frames.h"
#include "Net.h"
#include "Scram.h"
#include "SimulatedVehicle.h"

#include <array>
#include <condition_variable>
#include <cstdio>
#include <cstring>
#include <deque>
#include <map>
#include <optional>
#include <thread>

namespace Varno::Kel_cpp::Reference::Remote {

namespace asio = boost::asio;
using asio::ip::tcp;

TarnApiException notRemotable(const char* operation, const wchar_t* why) {
    return {NotRemotable, L"This cannot be done over a remote connection",
            fromUtf8(operation) + L": " + why};
}

bool parseAddress(const std::wstring& address, Endpoint& endpoint) {
    const std::wstring scheme = L"kel://";
    if (address.compare(0, scheme.size(), scheme) != 0) {
        return false;
    }
    const std::string rest = toUtf8(address.substr(scheme.size()));
    const auto colon = rest.rfind(':');
    if (colon == std::string::npos || colon == 0 || colon + 1 == rest.size() ||
        rest.size() - colon > 6) {
        return false;
    }
    unsigned port = 0;
    for (std::size_t i = colon + 1; i < rest.size(); ++i) {
        if (rest[i] < '0' || rest[i] > '9') {
            return false;
        }
        port = port * 10 + static_cast<unsigned>(rest[i] - '0');
    }
    if (port == 0 || port > 65535) {
        return false;
    }
    endpoint.host = rest.substr(0, colon);
    if (endpoint.host.size() > 2 && endpoint.host.front() == '[' && endpoint.host.back() == ']') {
        endpoint.host = endpoint.host.substr(1, endpoint.host.size() - 2);
    }
    endpoint.port = static_cast<uint16_t>(port);
    return true;
}

namespace {

TarnApiException ended(const std::wstring& why) {
    return {ConnectionEnded, L"This remote connection has ended", why};
}

} // namespace

// One socket and its reader thread. Callers write their frames under writeMutex_ and
// wait for their answers; the reader hands each answer to its caller by call id.
class Link : public std::enable_shared_from_this<Link> {
public:
    // Connects and starts the reader, which keeps the link until its socket ends.
    static std::shared_ptr<Link> open(const std::wstring& address,
                                      std::weak_ptr<SimulatedVehicle> local) {
        auto link = std::make_shared<Link>(address, std::move(local));
        std::thread([link] { link->readLoop(); }).detach();
        return link;
    }

    Link(const std::wstring& address, std::weak_ptr<SimulatedVehicle> local)
        : address_(address), local_(std::move(local)), socket_(io_) {
        Endpoint endpoint;
        if (!parseAddress(address, endpoint)) {
            throw TarnApiException(ServerNotRunning, L"No server listens at this address",
                                   (address.empty() ? L"(empty address)" : address) +
                                       L"; an engine's server has the address kel://<host>:<port>");
        }
        boost::system::error_code error;
        const auto ip = asio::ip::make_address(endpoint.host, error);
        if (error || !ip.is_loopback()) {
            throw TarnApiException(
                NotLoopback, L"Remote connections go to the loopback interface only", address);
        }
        socket_.connect(tcp::endpoint(ip, endpoint.port), error);
        if (error) {
            throw TarnApiException(ServerNotRunning, L"No server listens at this address",
                                   address + L": " + fromUtf8(error.message()));
        }
        socket_.set_option(tcp::no_delay(true), error);
        send(Wire::Kind::Hello, 0, 0, Wire::helloPayload());
        // The answer to the handshake comes before the reader starts.
        Wire::Assembler::Message welcome;
        if (!receive(welcome)) {
            throw TarnApiException(ServerBusy, L"The server ended the connection at once",
                                   address + L" takes no more connections");
        }
        if (welcome.header.kind == Wire::Kind::Result) {
            throw answerError(welcome.payload);
        }
        if (welcome.header.kind == Wire::Kind::Goodbye) {
            throw ended(L"the server ended it before it began");
        }
        if (welcome.header.kind != Wire::Kind::Welcome || welcome.payload.size() != 14 ||
            !Wire::acceptsHello({welcome.payload.begin(), welcome.payload.begin() + 6})) {
            throw TarnApiException(ProtocolError, L"The server speaks another protocol", address);
        }
        std::memcpy(&handle_, welcome.payload.data() + 6, 8);
    }

    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;
    ~Link() = default;

    uint64_t handle() const { return handle_; }

    bool alive() {
        const std::lock_guard lock(mutex_);
        return !closed_;
    }

    std::vector<uint8_t> roundTrip(uint16_t operation, const std::vector<uint8_t>& arguments,
                                   std::shared_ptr<AsyncReceiver> async,
                                   Wire::Kind kind = Wire::Kind::Call) {
        uint64_t id = 0;
        {
            const std::lock_guard lock(mutex_);
            if (closed_) {
                throw ended(endedWhy_);
            }
            id = ++nextCall_;
            calls_[id].async = std::move(async);
        }
        try {
            send(kind, operation, id, arguments);
        } catch (...) {
            const std::lock_guard lock(mutex_);
            calls_.erase(id);
            throw;
        }
        std::unique_lock lock(mutex_);
        answered_.wait(lock, [&] { return calls_[id].answer.has_value() || closed_; });
        auto call = std::move(calls_[id]);
        calls_.erase(id);
        if (!call.answer) {
            throw ended(endedWhy_);
        }
        lock.unlock();
        auto& answer = *call.answer;
        if (answer.empty() || answer[0] != 1) {
            throw answerError(answer);
        }
        answer.erase(answer.begin());
        return std::move(answer);
    }

    // Ends the connection: with a Goodbye when `clean`. Pending calls fail with 1301.
    void close(bool clean) {
        {
            const std::lock_guard lock(mutex_);
            if (closed_) {
                return;
            }
            closed_ = true;
            closedHere_ = true;
            endedWhy_ = L"the client ended it";
        }
        if (clean) {
            try {
                send(Wire::Kind::Goodbye, 0, 0, {});
            } catch (const TarnApiException&) { // NOLINT(bugprone-empty-catch): gone already
            }
        }
        boost::system::error_code ignored;
        socket_.shutdown(tcp::socket::shutdown_both, ignored);
        answered_.notify_all();
    }

private:
    struct Pending {
        std::shared_ptr<AsyncReceiver> async;
        std::optional<std::vector<uint8_t>> answer;
    };

    static TarnApiException answerError(const std::vector<uint8_t>& answer) {
        std::shared_ptr<KelError> error;
        try {
            Reader in(answer, answer.empty() ? 0 : 1);
            in.read(error);
        } catch (const kel::MalformedInput&) { // NOLINT(bugprone-empty-catch): below
        }
        if (!error) {
            return {ProtocolError, L"The server's answer is malformed", L"no error record"};
        }
        return {error->code, error->message, error->details, error->subCode, error->mvciError};
    }

    void send(Wire::Kind kind, uint16_t operation, uint64_t callId,
              const std::vector<uint8_t>& payload) {
        Wire::Header header;
        header.kind = kind;
        header.operation = operation;
        header.callId = callId;
        const auto bytes = Wire::frames(header, payload.data(), payload.size(), limits_);
        const std::lock_guard lock(writeMutex_);
        boost::system::error_code error;
        asio::write(socket_, asio::buffer(bytes), error);
        if (error) {
            throw ended(L"the socket broke: " + fromUtf8(error.message()));
        }
    }

    // Blocks for the next whole message; false when the socket ends or breaks.
    bool receive(Wire::Assembler::Message& message) {
        for (;;) {
            if (offset_ < buffered_) {
                std::size_t used = 0;
                const auto status =
                    assembler_.feed(buffer_.data() + offset_, buffered_ - offset_, used, message);
                offset_ += used;
                if (status == Wire::Assembler::Status::Complete) {
                    return true;
                }
                if (status == Wire::Assembler::Status::Malformed) {
                    malformed_ = true;
                    return false;
                }
            }
            boost::system::error_code error;
            buffered_ = socket_.read_some(asio::buffer(buffer_), error);
            offset_ = 0;
            if (error) {
                return false;
            }
        }
    }

    void readLoop() {
        Wire::Assembler::Message message;
        bool goodbye = false;
        while (!goodbye && receive(message)) {
            switch (message.header.kind) {
            case Wire::Kind::Result:
                answer(message);
                break;
            case Wire::Kind::Report:
                report(message);
                break;
            case Wire::Kind::Goodbye:
                goodbye = true;
                break;
            default:
                malformed_ = true;
                goodbye = true;
            }
        }
        finish(goodbye && !malformed_);
    }

    void answer(Wire::Assembler::Message& message) {
        std::shared_ptr<AsyncReceiver> async;
        {
            const std::lock_guard lock(mutex_);
            const auto found = calls_.find(message.header.callId);
            if (found == calls_.end()) {
                return;
            }
            async = found->second.async;
        }
        // An asynchronous call's reports may come before its answer: they waited here.
        if (async && message.payload.size() == 9 && message.payload[0] == 1) {
            uint64_t id = 0;
            std::memcpy(&id, message.payload.data() + 1, 8);
            std::deque<std::vector<uint8_t>> early;
            {
                const std::lock_guard lock(mutex_);
                if (auto waiting = early_.extract(id)) {
                    early = std::move(waiting.mapped());
                }
                asyncCalls_[id] = async;
            }
            for (const auto& payload : early) {
                deliver(id, payload);
            }
        }
        {
            const std::lock_guard lock(mutex_);
            const auto found = calls_.find(message.header.callId);
            if (found != calls_.end()) {
                found->second.answer = std::move(message.payload);
            }
        }
        answered_.notify_all();
    }

    void report(Wire::Assembler::Message& message) {
        const uint64_t id = message.header.callId;
        {
            const std::lock_guard lock(mutex_);
            if (!asyncCalls_.contains(id)) {
                auto& waiting = early_[id];
                if (waiting.size() < maxEarlyReports) {
                    waiting.push_back(std::move(message.payload));
                }
                return;
            }
        }
        deliver(id, message.payload);
    }

    void deliver(uint64_t id, const std::vector<uint8_t>& payload) {
        std::shared_ptr<AsyncReceiver> receiver;
        {
            const std::lock_guard lock(mutex_);
            const auto found = asyncCalls_.find(id);
            if (found == asyncCalls_.end()) {
                return;
            }
            receiver = found->second;
        }
        bool isFinal = false;
        try {
            Reader in(payload);
            isFinal = receiver->deliver(in);
        } catch (const kel::MalformedInput&) {
            receiver->fail(id, errorOf({ProtocolError, L"The server's report is malformed"}));
            isFinal = true;
        }
        if (isFinal) {
            const std::lock_guard lock(mutex_);
            asyncCalls_.erase(id);
        }
    }

    // The socket is done: every waiting caller and asynchronous call hears 1301, and a
    // connection that broke (neither end said goodbye) is posted on the local engine.
    void finish(bool serverEnded) {
        bool broken = false;
        std::map<uint64_t, std::shared_ptr<AsyncReceiver>> orphans;
        {
            const std::lock_guard lock(mutex_);
            broken = !closedHere_ && !serverEnded;
            if (!closed_) {
                closed_ = true;
                endedWhy_ = serverEnded ? L"the server ended it"
                                        : L"the connection to " + address_ + L" broke";
            }
            orphans.swap(asyncCalls_);
            early_.clear();
        }
        answered_.notify_all();
        for (const auto& [id, receiver] : orphans) {
            receiver->fail(id, errorOf(ended(endedWhy_)));
        }
        if (broken) {
            if (const auto vehicle = local_.lock()) {
                auto error = std::make_shared<KelError>();
                error->code = ConnectionLost;
                error->message = L"The connection to the server broke";
                error->details = address_;
                post(*vehicle, EventKind::ConnectionBroken, 0,
                     L"The connection to the server broke", L"server " + address_,
                     std::move(error));
            }
        }
    }

    static constexpr std::size_t maxEarlyReports = 4096;

    const std::wstring address_;
    const std::weak_ptr<SimulatedVehicle> local_;
    asio::io_context io_;
    tcp::socket socket_;
    const Wire::Limits limits_;
    uint64_t handle_ = 0;

    std::mutex writeMutex_;
    // The reader's own (and the handshake's, before the reader starts).
    Wire::Assembler assembler_{limits_};
    std::array<uint8_t, 65536> buffer_{};
    std::size_t buffered_ = 0;
    std::size_t offset_ = 0;
    bool malformed_ = false;

    std::mutex mutex_;
    std::condition_variable answered_;
    bool closed_ = false;
    bool closedHere_ = false;
    std::wstring endedWhy_;
    uint64_t nextCall_ = 0;
    std::map<uint64_t, Pending> calls_;
    std::map<uint64_t, std::shared_ptr<AsyncReceiver>> asyncCalls_;
    std::map<uint64_t, std::deque<std::vector<uint8_t>>> early_;
};

RemoteClient::RemoteClient(const std::wstring& address, std::weak_ptr<SimulatedVehicle> local)
    : address_(address), local_(std::move(local)), link_(Link::open(address_, local_)) {
    handles_.insert(link_->handle());
}

// The reader goes once the server has closed the socket after the goodbye.
RemoteClient::~RemoteClient() { link_->close(true); }

std::shared_ptr<Link> RemoteClient::current() {
    const std::lock_guard lock(mutex_);
    return link_;
}

std::vector<uint8_t> RemoteClient::roundTrip(uint16_t operation, std::vector<uint8_t> arguments,
                                             std::shared_ptr<AsyncReceiver> async) {
    const auto link = current();
    if (!link) {
        throw ended(L"the client ended it");
    }
    return link->roundTrip(operation, arguments, std::move(async));
}

TarnApiException RemoteClient::malformedAnswer(const char* what) {
    return {ProtocolError, L"The server's answer is malformed", fromUtf8(what)};
}

// The connection renewed: a new socket to the same address, while the server runs. The
// server's engine object of a new socket is a new one; the user logs in again.
bool RemoteClient::reconnect(uint16_t position, uint64_t handle) {
    const std::lock_guard lock(mutex_);
    if (!handles_.contains(handle)) {
        throw TarnApiException(UnknownHandle, L"No remote connection has this handle",
                               L"handle " + std::to_wstring(handle));
    }
    if (link_ && link_->alive()) {
        try {
            return link_->roundTrip(position, reconnectArguments(link_->handle()), {}).at(0) != 0;
        } catch (const TarnApiException& e) {
            if (e.code != ConnectionEnded) {
                throw;
            }
        }
    }
    std::shared_ptr<Link> renewed;
    try {
        renewed = Link::open(address_, local_);
    } catch (const TarnApiException& e) {
        // Nothing listens, or the server ended the new socket at once: not now.
        if (e.code == ServerNotRunning || e.code == ConnectionEnded) {
            return false;
        }
        throw;
    }
    handles_.insert(renewed->handle());
    std::swap(link_, renewed);
    renewed->close(true); // ended already; its reader lets go of it
    return true;
}

std::vector<uint8_t> RemoteClient::reconnectArguments(uint64_t handle) {
    Writer out;
    out.write(handle);
    return bytesOf(out);
}

uint64_t RemoteClient::handle() {
    const std::lock_guard lock(mutex_);
    return link_->handle();
}

void RemoteClient::logIn(const std::shared_ptr<LogInOutConfig>& config) {
    if (!config || config->user.empty()) {
        throw TarnApiException(BadServersArgument, L"A login needs a user name");
    }
    const auto link = current();
    const auto step = [&](uint16_t number, const std::string& text) {
        const auto answer =
            link->roundTrip(number, {text.begin(), text.end()}, nullptr, Wire::Kind::Login);
        return std::string(answer.begin(), answer.end());
    };
    try {
        Scram::Client scram(config->user, config->password);
        const std::string serverFirst = step(1, scram.first());
        const std::string serverFinal = step(2, scram.final(serverFirst));
        if (!scram.verify(serverFinal)) {
            throw TarnApiException(ProtocolError,
                                   L"The server did not prove that it knows the user", address_);
        }
    } catch (const Scram::Malformed& e) {
        throw TarnApiException(ProtocolError, L"The server's login message is not acceptable",
                               fromUtf8(e.what()));
    }
}

void RemoteClient::disconnect(uint16_t position) {
    auto link = current();
    if (!link) {
        throw ended(L"the client ended it");
    }
    call<void>(position);
    link->close(true);
}

} // namespace Varno::Kel_cpp::Reference::Remote
