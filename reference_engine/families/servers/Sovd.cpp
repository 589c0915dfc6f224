// The SOVD server. One thread serves every connection, one request at a time: each
// request runs as a fresh remote client's engine object of the vehicle (logged in as the
// token's user, if any), so the control units are reached only through the engine's own
// operations, which the monitors record and ServersState::admit admits.
#include "Sovd.h"

#include "Describe.h"
#include "ErrorCodes.h"
#include "Net.h"
#include "PasswordHash.h"
#include "Servers.h"
#include "SimulatedVehicle.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <map>
#include <optional>
#include <random>
#include <string_view>
#include <utility>
#include <vector>

#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>

namespace Varno::Kel_cpp::Reference {
namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
using tcp = asio::ip::tcp;
using Json = nlohmann::json;
using Request = http::request<http::string_body>;
using Response = http::response<http::string_body>;

constexpr std::size_t maxConnections = 16;
constexpr std::uint32_t headerLimit = 8 * 1024;
constexpr std::uint64_t bodyLimit = 16 * 1024;
constexpr auto idleTimeout = std::chrono::seconds(10);    // wall time: reading or writing
constexpr auto tokenLifetime = std::chrono::seconds(300); // login clock
constexpr std::size_t maxTokens = 1024;
constexpr std::string_view prefix = "/sovd/v1";
constexpr const char* realm = "Bearer realm=\"kel-sim\"";

// Any answer but a success; it becomes a problem document.
struct Problem {
    unsigned status = 500;
    std::string title;
    std::string detail;
    int32_t code = 0;         // the engine's error code, when the engine refused
    std::string authenticate; // WWW-Authenticate
    std::string allow;        // Allow, for 405
};

// The one place where engine error codes become HTTP statuses.
unsigned httpStatus(int32_t code) {
    switch (code) {
    case UnknownTarget:
    case UnknownIdentifier:
        return 404;
    case NotLoggedIn:
    case LoginFailed:
        return 401;
    case NeedsAdministrator:
        return 403;
    case LoginThrottled:
        return 429;
    case BadServersArgument:
    case BadParameterValue:
        return 400;
    case NotSupported:
        return 501;
    case NegativeResponseReceived:
        return 502; // the control unit refused
    case NotInitialized:
    case ConnectionEnded:
    case NoInterfaceConnected:
    case CallCancelled:
        return 503;
    case EcuNotResponding:
        return 504;
    case InternalError:
    case DataRootUnavailable:
    case UsersUnreadable:
        return 500;
    default:
        return 409; // refused in the engine's present state
    }
}

Problem engineProblem(int32_t code, const std::wstring& message, const std::wstring& details) {
    Problem problem{httpStatus(code), toUtf8(message), toUtf8(details), code, {}, {}};
    if (problem.status == 401) {
        problem.authenticate = realm;
    }
    return problem;
}

Problem invalidToken(std::string detail) {
    return {401,
            "The access token is not valid",
            std::move(detail),
            0,
            std::string(realm) + ", error=\"invalid_token\"",
            {}};
}

Response jsonResponse(http::status status, const Json& body) {
    Response response{status, 11};
    response.set(http::field::content_type, "application/json");
    response.body() = body.dump(-1, ' ', false, Json::error_handler_t::replace);
    return response;
}

Response problemResponse(const Problem& problem) {
    Json body{{"type", "about:blank"},
              {"status", problem.status},
              {"title", problem.title},
              {"detail", problem.detail}};
    if (problem.code != 0) {
        body["code"] = problem.code;
    }
    Response response = jsonResponse(static_cast<http::status>(problem.status), body);
    response.set(http::field::content_type, "application/problem+json");
    if (!problem.authenticate.empty()) {
        response.set(http::field::www_authenticate, problem.authenticate);
    }
    if (!problem.allow.empty()) {
        response.set(http::field::allow, problem.allow);
    }
    return response;
}

// The path below /sovd/v1, one decoded segment each; the query is ignored.
std::vector<std::string> segments(std::string_view target) {
    target = target.substr(0, target.find('?'));
    if (target.substr(0, prefix.size()) != prefix ||
        (target.size() > prefix.size() && target[prefix.size()] != '/')) {
        throw Problem{404, "There is no such resource", std::string(target), 0, {}, {}};
    }
    target.remove_prefix(prefix.size());
    if (!target.empty() && target.back() == '/') {
        target.remove_suffix(1);
    }
    std::vector<std::string> out;
    while (!target.empty()) {
        target.remove_prefix(1); // the '/'
        const auto end = std::min(target.find('/'), target.size());
        std::string segment;
        for (std::size_t i = 0; i < end; ++i) {
            if (target[i] != '%') {
                segment += target[i];
                continue;
            }
            const auto digit = [](char c) {
                return c >= '0' && c <= '9'   ? c - '0'
                       : c >= 'a' && c <= 'f' ? c - 'a' + 10
                       : c >= 'A' && c <= 'F' ? c - 'A' + 10
                                              : -1;
            };
            const int high = i + 2 < end ? digit(target[i + 1]) : -1;
            const int low = i + 2 < end ? digit(target[i + 2]) : -1;
            if (high < 0 || low < 0) {
                throw Problem{
                    400, "The path is malformed", "a % is not followed by two hex digits", 0, {},
                    {}};
            }
            segment += static_cast<char>(high * 16 + low);
            i += 2;
        }
        out.push_back(std::move(segment));
        target.remove_prefix(end);
    }
    return out;
}

std::string utf8(const std::wstring& text) { return toUtf8(text); }

Json errorJson(const KelError& error) {
    return {{"code", error.code}, {"title", utf8(error.message)}, {"detail", utf8(error.details)}};
}

// A data identifier's value (`idKey` "id": its number) or a snapshot or extended data
// value (`idKey` "label"), with the values it is made of.
Json parameterJson(const ParameterResult& p, const char* idKey) {
    Json j{{idKey, utf8(p.itemText2)}, {"name", utf8(p.itemText1)}};
    if (p.error) {
        j["error"] = errorJson(*p.error);
        return j;
    }
    j["value"] = utf8(p.text1);
    if (!p.text2.empty()) {
        j["unit"] = utf8(p.text2);
    }
    j["raw"] = toHex(p.data);
    if (!p.children.empty()) {
        Json children = Json::array();
        for (const auto& child : p.children) {
            if (child) {
                children.push_back(parameterJson(*child, "label"));
            }
        }
        j["children"] = std::move(children);
    }
    return j;
}

Json parametersJson(const std::vector<std::shared_ptr<ParameterResult>>& parameters,
                    const char* idKey) {
    Json out = Json::array();
    for (const auto& p : parameters) {
        if (p) {
            out.push_back(parameterJson(*p, idKey));
        }
    }
    return out;
}

// The bits of a DTC's status byte (ISO 14229-1), lowest first.
constexpr std::array<const char*, 8> statusBits{
    "testFailed",
    "testFailedThisOperationCycle",
    "pendingDtc",
    "confirmedDtc",
    "testNotCompletedSinceLastClear",
    "testFailedSinceLastClear",
    "testNotCompletedThisOperationCycle",
    "warningIndicatorRequested",
};

Json faultJson(const DtcResult& d) {
    Json status{{"mask", d.value1 & 0xFF}};
    for (std::size_t bit = 0; bit < statusBits.size(); ++bit) {
        status[statusBits[bit]] = ((d.value1 >> bit) & 1) != 0;
    }
    Json j{{"code", utf8(d.text1)},
           {"number", d.code},
           {"description", utf8(d.text2)},
           {"status", status},
           {"severity", d.value2},
           {"snapshot", parametersJson(d.parameters1, "label")},
           {"extendedData", parametersJson(d.parameters2, "label")}};
    if (!d.text4.empty()) {
        j["symptom"] = utf8(d.text4);
    }
    Json groups = Json::array();
    for (const auto& group : d.specialDataGroups) {
        if (!group) {
            continue;
        }
        Json items = Json::array();
        for (const auto& item : group->items) {
            if (item) {
                items.push_back({{"name", utf8(item->itemText1)},
                                 {"value", utf8(item->itemText2)},
                                 {"unit", utf8(item->itemText3)}});
            }
        }
        groups.push_back(std::move(items));
    }
    if (!groups.empty()) {
        j["specialData"] = std::move(groups);
    }
    return j;
}

std::string componentHref(const std::string& id) {
    std::string out(prefix);
    out += "/components/";
    for (const unsigned char c : id) {
        const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                           (c >= '0' && c <= '9') || c == '-' || c == '_' || c == '.' || c == '~';
        if (plain) {
            out += static_cast<char>(c);
        } else {
            out += '%';
            out += "0123456789ABCDEF"[c >> 4];
            out += "0123456789ABCDEF"[c & 0xF];
        }
    }
    return out;
}

Json componentJson(const Target& t) {
    const std::string id = utf8(t.itemText1);
    Json aliases = Json::array();
    for (const auto& alias : t.names) {
        aliases.push_back(utf8(alias));
    }
    return {{"id", id},
            {"name", utf8(t.itemText2.empty() ? t.itemText1 : t.itemText2)},
            {"variant", utf8(t.itemText3)},
            {"address", t.value1},
            {"protocol", utf8(t.text1)},
            {"bus", utf8(t.text2)},
            {"aliases", std::move(aliases)},
            {"href", componentHref(id)}};
}

// The one result of a call for one target; its per-target error is the answer's.
template <class Result>
std::shared_ptr<Result> onlyResult(const std::vector<std::shared_ptr<Result>>& results) {
    if (results.size() != 1 || !results.front()) {
        throw Problem{500, "The engine gave no result for the component", {}, InternalError, {},
                      {}};
    }
    const auto& result = results.front();
    if (result->error) {
        throw engineProblem(result->error->code, result->error->message, result->error->details);
    }
    return result;
}

std::string lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) {
        return static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    });
    return text;
}

// "030100": a DTC's number as six hex digits.
std::string dtcNumber(int32_t code) {
    const auto bits = static_cast<uint32_t>(code);
    return toHex(std::array<uint8_t, 3>{static_cast<uint8_t>(bits >> 16),
                                        static_cast<uint8_t>(bits >> 8),
                                        static_cast<uint8_t>(bits)});
}

std::string randomToken() {
    std::random_device device;
    std::array<uint8_t, 32> bytes{};
    for (std::size_t i = 0; i < bytes.size(); i += 4) {
        const auto word = device();
        for (std::size_t k = 0; k < 4; ++k) {
            bytes[i + k] = static_cast<uint8_t>(word >> (8 * k));
        }
    }
    return toHex(bytes);
}

// What a token is kept as: its SHA-256.
std::string tokenKey(std::string_view token) {
    return toHex(sha256({reinterpret_cast<const uint8_t*>(token.data()), token.size()}));
}

// The engine object a request runs as; it goes before the vehicle reference does.
struct Caller {
    std::shared_ptr<SimulatedVehicle> vehicle;
    std::shared_ptr<TarnApi> api;
    Caller() = default;
    Caller(const Caller&) = delete;
    Caller& operator=(const Caller&) = delete;
    Caller(Caller&&) = default;
    Caller& operator=(Caller&&) = default;
    ~Caller() { api.reset(); }
};

} // namespace

struct SovdServer::Impl {
    struct Token {
        std::wstring user;
        std::chrono::steady_clock::time_point expires;
    };

    // Declared before the io context, whose handlers (and their sessions) use them while
    // it goes.
    std::weak_ptr<SimulatedVehicle> vehicle;
    std::atomic<std::size_t> connections{0};
    std::map<std::string, Token> tokens; // by tokenKey; the serving thread's only
    asio::io_context io{1};
    tcp::acceptor acceptor{io};

    class Session;

    void accept();
    void run();
    Response serve(const Request& request);

private:
    Response route(const Request& request);
    Response authorize(const Request& request);
    std::optional<std::wstring> tokenUser(const Request& request);
    Caller caller(const Request& request);
};

class SovdServer::Impl::Session : public std::enable_shared_from_this<Session> {
public:
    Session(tcp::socket socket, SovdServer::Impl& server)
        : stream_(std::move(socket)), server_(server) {
        ++server_.connections;
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session() { --server_.connections; }

    void read() {
        parser_.emplace();
        parser_->header_limit(headerLimit);
        parser_->body_limit(bodyLimit);
        stream_.expires_after(idleTimeout);
        http::async_read(stream_, buffer_, *parser_,
                         [self = shared_from_this()](beast::error_code error, std::size_t) {
                             self->onRead(error);
                         });
    }

private:
    void onRead(beast::error_code error) {
        if (error == http::error::end_of_stream || error == http::error::partial_message) {
            close();
            return;
        }
        if (error &&
            error.category() == http::make_error_code(http::error::bad_target).category()) {
            // Malformed: one answer, and the connection closes, as what follows cannot be
            // trusted to start a request.
            const unsigned status = error == http::error::body_limit     ? 413
                                    : error == http::error::header_limit ? 431
                                                                         : 400;
            Response response =
                problemResponse({status, "The request is malformed", error.message(), 0, {}, {}});
            response.keep_alive(false);
            response.prepare_payload();
            write(std::move(response));
            return;
        }
        if (error) { // timeout, reset, the server stopping
            close();
            return;
        }
        write(server_.serve(parser_->get()));
    }

    void write(Response response) {
        response_ = std::move(response);
        stream_.expires_after(idleTimeout);
        http::async_write(stream_, response_,
                          [self = shared_from_this()](beast::error_code error, std::size_t) {
                              if (error || !self->response_.keep_alive()) {
                                  self->close();
                                  return;
                              }
                              self->read();
                          });
    }

    void close() {
        beast::error_code ignored;
        stream_.socket().shutdown(tcp::socket::shutdown_both, ignored);
        stream_.socket().close(ignored);
    }

    beast::tcp_stream stream_;
    SovdServer::Impl& server_;
    beast::flat_buffer buffer_;
    std::optional<http::request_parser<http::string_body>> parser_;
    Response response_;
};

void SovdServer::Impl::accept() {
    acceptor.async_accept([this](beast::error_code error, tcp::socket socket) {
        if (error == asio::error::operation_aborted) {
            return;
        }
        if (!error) {
            if (connections >= maxConnections) {
                socket.close(error); // refused: closed at once
            } else {
                std::make_shared<Session>(std::move(socket), *this)->read();
            }
        }
        accept();
    });
}

void SovdServer::Impl::run() {
    for (;;) {
        try {
            io.run();
            return;
        } catch (...) { // NOLINT(bugprone-empty-catch): one connection's fault ends only it
        }
    }
}

Response SovdServer::Impl::serve(const Request& request) {
    Response response;
    try {
        response = route(request);
    } catch (const Problem& problem) {
        response = problemResponse(problem);
    } catch (const TarnApiException& e) {
        response = problemResponse(engineProblem(e.code, e.message, e.details));
    } catch (const std::exception& e) {
        response = problemResponse({500, "The engine failed", e.what(), InternalError, {}, {}});
    }
    response.version(request.version());
    response.keep_alive(request.keep_alive());
    response.set(http::field::server, "kel-sim SOVD");
    response.set(http::field::cache_control, "no-store");
    response.prepare_payload();
    return response;
}

// Without an Authorization header the request runs not logged in (the admission table
// then decides); a token that is unknown, expired or malformed is refused at once.
std::optional<std::wstring> SovdServer::Impl::tokenUser(const Request& request) {
    const auto header = request.find(http::field::authorization);
    if (header == request.end()) {
        return std::nullopt;
    }
    const std::string_view value = header->value();
    const std::string_view scheme = "bearer ";
    if (value.size() <= scheme.size() || lower(std::string(value.substr(0, 7))) != scheme) {
        throw invalidToken("the Authorization header is not \"Bearer <token>\"");
    }
    const auto found = tokens.find(tokenKey(value.substr(scheme.size())));
    if (found == tokens.end()) {
        throw invalidToken("the token is unknown");
    }
    if (found->second.expires <= loginClock()) {
        tokens.erase(found);
        throw invalidToken("the token has expired");
    }
    return found->second.user;
}

Caller SovdServer::Impl::caller(const Request& request) {
    Caller out;
    out.vehicle = vehicle.lock();
    if (!out.vehicle) {
        throw Problem{503, "The vehicle has ended", {}, 0, {}, {}};
    }
    const auto user = tokenUser(request);
    out.api = connectRemoteClient(out.vehicle);
    if (user && !out.vehicle->servers.actAs(out.api->getHandle(), *user)) {
        throw invalidToken("its user is no longer one of the server's users");
    }
    return out;
}

Response SovdServer::Impl::authorize(const Request& request) {
    const Json body = Json::parse(request.body(), nullptr, false);
    if (body.is_discarded() || !body.is_object() || !body.contains("user") ||
        !body.contains("password") || !body["user"].is_string() || !body["password"].is_string()) {
        throw Problem{400,
                      "The request is malformed",
                      "the body is a JSON object with the strings \"user\" and \"password\"",
                      0,
                      {},
                      {}};
    }
    Caller c;
    c.vehicle = vehicle.lock();
    if (!c.vehicle) {
        throw Problem{503, "The vehicle has ended", {}, 0, {}, {}};
    }
    c.api = connectRemoteClient(c.vehicle);
    // The engine's own login, with its throttle and its events.
    auto login = std::make_shared<LogInOutConfig>();
    login->user = fromUtf8(body["user"].get<std::string>());
    login->password = fromUtf8(body["password"].get<std::string>());
    c.api->logIn(login);

    const auto now = loginClock();
    std::erase_if(tokens, [now](const auto& entry) { return entry.second.expires <= now; });
    if (tokens.size() >= maxTokens) { // the one closest to its end goes
        tokens.erase(
            std::min_element(tokens.begin(), tokens.end(), [](const auto& a, const auto& b) {
                return a.second.expires < b.second.expires;
            }));
    }
    const std::string token = randomToken();
    tokens[tokenKey(token)] = {login->user, now + tokenLifetime};
    return jsonResponse(http::status::ok,
                        {{"access_token", token},
                         {"token_type", "Bearer"},
                         {"expires_in", std::chrono::seconds(tokenLifetime).count()}});
}

Response SovdServer::Impl::route(const Request& request) {
    const auto path = segments(request.target());
    const auto method = request.method();
    const auto only = [&](std::initializer_list<http::verb> verbs, const char* allow) {
        if (std::find(verbs.begin(), verbs.end(), method) == verbs.end()) {
            throw Problem{405,
                          "The resource does not allow this method",
                          std::string(request.method_string()),
                          0,
                          {},
                          allow};
        }
    };
    const auto notFound = [&] {
        return Problem{404, "There is no such resource", std::string(request.target()), 0, {}, {}};
    };
    const std::size_t n = path.size();
    if (n == 1 && path[0] == "authorize") {
        only({http::verb::post}, "POST");
        return authorize(request);
    }
    if (n == 1 && path[0] == "users") {
        only({http::verb::get}, "GET");
        const Caller c = caller(request);
        Json items = Json::array();
        for (const auto& user : c.api->getUsers()) {
            if (user) {
                items.push_back({{"name", utf8(user->name)}, {"role", utf8(user->text)}});
            }
        }
        return jsonResponse(http::status::ok, {{"items", std::move(items)}});
    }
    if (n == 0 || path[0] != "components" || n > 4 ||
        (n >= 3 && path[2] != "faults" && path[2] != "data")) {
        throw notFound();
    }
    if (n == 3 && path[2] == "faults") {
        only({http::verb::get, http::verb::delete_}, "GET, DELETE");
    } else {
        only({http::verb::get}, "GET");
    }

    const Caller c = caller(request);
    if (n == 1) {
        Json items = Json::array();
        for (const auto& target : c.api->getTargets()) {
            if (target) {
                items.push_back(componentJson(*target));
            }
        }
        return jsonResponse(http::status::ok, {{"items", std::move(items)}});
    }
    const std::wstring id = fromUtf8(path[1]);
    if (n == 2) {
        for (const auto& target : c.api->getTargets()) {
            if (target && target->itemText1 == id) {
                Json j = componentJson(*target);
                j["partNumber"] = utf8(target->text3);
                j["softwareVersion"] = utf8(target->text4);
                j["hardwareVersion"] = utf8(target->text5);
                // The variant as the unit answers it now (22 F19E), over the bus.
                const auto identified = c.api->identifyTarget(id);
                Json identification = Json::object();
                if (identified && identified->error) {
                    identification["error"] = errorJson(*identified->error);
                } else if (identified) {
                    identification["variant"] = utf8(identified->variant);
                }
                j["identification"] = std::move(identification);
                j["faults"] = componentHref(path[1]) + "/faults";
                j["data"] = componentHref(path[1]) + "/data";
                return jsonResponse(http::status::ok, j);
            }
        }
        throw Problem{404, "There is no such component", path[1], UnknownTarget, {}, {}};
    }
    if (path[2] == "faults") {
        if (method == http::verb::delete_) {
            onlyResult(c.api->clearAllDtcs({id}));
            return Response{http::status::no_content, 11};
        }
        auto config = std::make_shared<DtcReadConfig>();
        config->flag1 = 1; // snapshot data
        config->flag2 = 1; // extended data
        config->flag3 = n == 4 ? 1 : 0;
        const auto read = onlyResult(c.api->readDtcs({id}, config));
        if (n == 3) {
            Json items = Json::array();
            for (const auto& dtc : read->dtcs) {
                if (dtc) {
                    items.push_back(faultJson(*dtc));
                }
            }
            return jsonResponse(http::status::ok, {{"items", std::move(items)}});
        }
        // By its display code or by its number in hex (as clearSpecificDtcs takes it).
        const std::string wanted = lower(path[3]);
        for (const auto& dtc : read->dtcs) {
            if (dtc && (lower(utf8(dtc->text1)) == wanted || dtcNumber(dtc->code) == wanted)) {
                return jsonResponse(http::status::ok, faultJson(*dtc));
            }
        }
        throw Problem{404, "The component has no such fault stored", path[3], 0, {}, {}};
    }
    if (n == 3) { // the identification values, each read with 22
        const auto read = onlyResult(c.api->readIdentificationValues({id}));
        return jsonResponse(http::status::ok, {{"items", parametersJson(read->parameters, "id")}});
    }
    const auto read = onlyResult(c.api->readDataByIdentifiers(id, {fromUtf8(path[3])}));
    if (read->parameters.size() != 1 || !read->parameters.front()) {
        throw Problem{500, "The engine gave no value", path[3], InternalError, {}, {}};
    }
    const auto& value = *read->parameters.front();
    if (value.error) {
        throw engineProblem(value.error->code, value.error->message, value.error->details);
    }
    return jsonResponse(http::status::ok, parameterJson(value, "id"));
}

SovdServer::SovdServer(std::weak_ptr<SimulatedVehicle> vehicle, const ServersSettings& settings)
    : impl_(std::make_shared<Impl>()) {
    const std::string host = listenAddress(settings);
    impl_->vehicle = std::move(vehicle);
    beast::error_code error;
    const auto address = asio::ip::make_address(host, error);
    if (error) {
        throw TarnApiException(NotLoopback, L"The servers listen on the loopback interface only",
                               L"listenAddress " + fromUtf8(host) + L" is not an address");
    }
    const tcp::endpoint endpoint{address, settings.sovdPort};
    auto& acceptor = impl_->acceptor;
    acceptor.open(endpoint.protocol(), error);
#ifdef _WIN32
    // No other socket may take the port over while the server listens.
    if (!error) {
        acceptor.set_option(
            asio::detail::socket_option::boolean<SOL_SOCKET, SO_EXCLUSIVEADDRUSE>(true), error);
    }
#else
    // Lets a fixed port be used again while old connections wait out TIME_WAIT (Windows'
    // SO_REUSEADDR would let a second server take it).
    if (!error) {
        acceptor.set_option(asio::socket_base::reuse_address(true), error);
    }
#endif
    if (!error) {
        acceptor.bind(endpoint, error);
    }
    if (!error) {
        acceptor.listen(asio::socket_base::max_listen_connections, error);
    }
    if (!error) {
        port_ = acceptor.local_endpoint(error).port();
    }
    if (error == asio::error::address_in_use) {
        throw TarnApiException(ServerRunning, L"Another server listens at this address",
                               fromUtf8(host) + L" port " + std::to_wstring(settings.sovdPort));
    }
    if (error) {
        throw TarnApiException(InternalError, L"The SOVD server cannot listen",
                               fromUtf8(host + ": " + error.message()));
    }
    address_ = L"http://" + fromUtf8(address.is_v6() ? "[" + host + "]" : host) + L":" +
               std::to_wstring(port_);
    impl_->accept();
    thread_ = std::thread([impl = impl_] { impl->run(); });
}

SovdServer::~SovdServer() {
    impl_->io.stop();
    if (thread_.get_id() == std::this_thread::get_id()) {
        // The vehicle ended on the serving thread (its request held the last reference):
        // the thread returns from the stopped context right after, holding what it uses.
        thread_.detach();
    } else if (thread_.joinable()) {
        thread_.join();
    }
}

} // namespace Varno::Kel_cpp::Reference
