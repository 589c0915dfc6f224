// The monitors hear the units after the units' lock is let go and take only their own
// lock; every operation checks the lifecycle and reads the files' sandbox before it takes
// that lock, so no other family's lock is ever held with it.
#include "Monitoring.h"

#include "Describe.h"
#include "ErrorCodes.h"
#include "SafeFiles.h"
#include "SimulatedVehicle.h"
#include "VehicleClock.h"
#include "VehicleDescription.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using OrderedJson = nlohmann::ordered_json; // trace lines keep their fields in order

constexpr std::size_t maxTraceFileBytes = 16u << 20;
constexpr std::size_t maxTracedArguments = 4096; // bytes of one API trace line's arguments

[[noreturn]] void fail(int32_t code, std::wstring message, std::wstring details) {
    throw TarnApiException(code, std::move(message), std::move(details));
}

std::wstring handleText(uint64_t handle) {
    std::wostringstream text;
    text << L"handle 0x" << std::hex << std::uppercase << handle;
    return text.str();
}

template <class Map>
auto& find(Map& map, uint64_t handle, const wchar_t* what) {
    const auto found = map.find(handle);
    if (found == map.end()) {
        fail(UnknownMonitor, std::wstring(L"No open ") + what + L" has this handle",
             handleText(handle));
    }
    return found->second;
}

// value1 of a fetch: the most items (0: all); value2: 0 takes them, 1 leaves them.
bool keepsItems(int32_t value2) {
    if (value2 != 0 && value2 != 1) {
        fail(BadMonitoringArgument, L"The second value of a fetch is 0 (take) or 1 (leave)",
             L"value2 " + std::to_wstring(value2));
    }
    return value2 == 1;
}

template <class T, class Convert>
auto fetch(std::deque<T>& items, uint32_t most, bool keep, Convert convert) {
    const std::size_t n = most == 0 ? items.size() : std::min<std::size_t>(most, items.size());
    std::vector<decltype(convert(items.front()))> out;
    out.reserve(n);
    for (std::size_t i = 0; i < n; ++i) {
        out.push_back(convert(items[i]));
    }
    if (!keep) {
        items.erase(items.begin(), items.begin() + static_cast<std::ptrdiff_t>(n));
    }
    return out;
}

std::wstring answerText(const Bytes& request, const Bytes& response) {
    if (response.size() >= 3 && response[0] == 0x7F) {
        std::wostringstream text;
        text << L"negative response 0x" << std::hex << std::uppercase
             << static_cast<unsigned>(response[2]) << L": " << nrcText(response[2]);
        return text.str();
    }
    if (!request.empty() && response[0] == static_cast<uint8_t>(request[0] + 0x40)) {
        return L"positive response";
    }
    return L"unexpected response";
}

std::shared_ptr<MonitoringItem> item(const MonitoredExchange& e) {
    auto r = std::make_shared<MonitoringItem>();
    r->text1 = e.unit;
    r->data = e.request;
    r->value1 = static_cast<uint64_t>(e.timeMs);
    r->value2 = static_cast<uint32_t>(e.sequence);
    r->flag1 = !e.response.empty();
    r->flag2 = !e.request.empty() && !e.response.empty() &&
               e.response[0] == static_cast<uint8_t>(e.request[0] + 0x40);
    r->flag3 = e.replayed;
    r->value3 = e.response.size() >= 3 && e.response[0] == 0x7F ? e.response[2] : 0;
    r->text2 = e.source;
    r->value4 = e.request.empty() ? 0 : e.request[0];
    if (!e.response.empty()) {
        r->detail = std::make_shared<MonitoringItemDetail>();
        r->detail->response = e.response;
        r->detail->text = answerText(e.request, e.response);
    }
    return r;
}

std::shared_ptr<PduMonitoringItem> item(const MonitoredPdu& p) {
    auto r = std::make_shared<PduMonitoringItem>();
    r->value1 = p.response ? 2 : 1;
    r->data = p.bytes;
    r->detail = std::make_shared<PduMonitoringItemDetail>();
    r->detail->sequence = p.sequence;
    r->detail->exchange = p.exchange;
    r->text1 = p.unit;
    r->text2 = p.response ? L"response" : L"request";
    r->value2 = static_cast<uint64_t>(p.timeMs);
    r->text3 = hexText(p.bytes);
    return r;
}

Bytes parseHex(const std::string& text) {
    Bytes out;
    std::istringstream in(text);
    std::string pair;
    while (in >> pair) {
        if (pair.size() != 2 || !std::isxdigit(static_cast<unsigned char>(pair[0])) ||
            !std::isxdigit(static_cast<unsigned char>(pair[1]))) {
            throw std::invalid_argument("bytes are pairs of hex digits: \"" + pair + "\"");
        }
        out.push_back(static_cast<uint8_t>(std::stoul(pair, nullptr, 16)));
    }
    return out;
}

// A UTF-8 text cut to at most `most` bytes without splitting a character.
std::string cut(const std::string& text, std::size_t most) {
    if (text.size() <= most) {
        return text;
    }
    std::size_t end = most;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) {
        --end;
    }
    return text.substr(0, end) + "...";
}

} // namespace

// ---- the description's section ---------------------------------------------------------

MonitoringSettings MonitoringSettings::parse(const nlohmann::json& section) {
    try {
        MonitoringSettings s;
        s.maxItems =
            static_cast<uint32_t>(wholeNumber(section, "maxItems", s.maxItems, 1, 1000000));
        s.maxTraceBytes = static_cast<uint32_t>(
            wholeNumber(section, "maxTraceBytes", s.maxTraceBytes, 8192, 64u << 20));
        return s;
    } catch (const std::exception& e) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               L"monitoring: " + fromUtf8(e.what()));
    }
}

// ---- trace files ----------------------------------------------------------------------

std::string writeTraceFile(const std::deque<MonitoredPdu>& pdus) {
    std::string out = OrderedJson{{"format", "kel-trace"}, {"version", 1}}.dump() + "\n";
    for (const auto& p : pdus) {
        out += OrderedJson{{"item", p.sequence},
                           {"exchange", p.exchange},
                           {"timeMs", p.timeMs},
                           {"unit", toUtf8(p.unit)},
                           {"direction", p.response ? "response" : "request"},
                           {"bytes", toUtf8(hexText(p.bytes))}}
                   .dump();
        out += "\n";
    }
    return out;
}

std::vector<MonitoredExchange> readTraceFile(const std::string& text, const std::wstring& source) {
    std::vector<MonitoredExchange> entries;
    std::istringstream in(text);
    std::string line;
    std::size_t number = 0;
    bool header = false;
    // The exchange of the last request, until its response; 0 while none is open (exchange
    // numbers start at 1).
    uint64_t open = 0;
    try {
        while (std::getline(in, line)) {
            ++number;
            if (!line.empty() && line.back() == '\r') {
                line.pop_back();
            }
            if (line.empty()) {
                continue;
            }
            const auto j = Json::parse(line);
            if (!header) {
                if (!j.is_object() || j.value("format", "") != "kel-trace" ||
                    j.value("version", 0) != 1) {
                    throw std::invalid_argument(
                        "the first line is not a kel-trace version 1 header");
                }
                header = true;
                continue;
            }
            const auto exchange = wholeNumber(j, "exchange", 0, 1, UINT64_MAX);
            const auto direction = j.at("direction").get<std::string>();
            const Bytes bytes = parseHex(j.at("bytes").get<std::string>());
            if (direction == "request") {
                MonitoredExchange e;
                e.timeMs = static_cast<int64_t>(wholeNumber(j, "timeMs", 0, 0, INT64_MAX));
                e.unit = fromUtf8(j.at("unit").get<std::string>());
                e.request = bytes;
                e.source = source;
                e.replayed = true;
                entries.push_back(std::move(e));
                open = exchange;
            } else if (direction == "response") {
                // A response whose request the monitor had dropped is left out.
                if (open == exchange) {
                    entries.back().response = bytes;
                }
                open = 0;
            } else {
                throw std::invalid_argument("direction is \"request\" or \"response\"");
            }
        }
    } catch (const std::exception& e) {
        fail(TraceFileUnreadable, L"The file is not a trace file",
             source + L", line " + std::to_wstring(number) + L": " + fromUtf8(e.what()));
    }
    if (!header) {
        fail(TraceFileUnreadable, L"The file is not a trace file", source + L": it is empty");
    }
    return entries;
}

// ---- the state ------------------------------------------------------------------------

MonitoringState::~MonitoringState() {
    if (const auto units = units_.lock()) {
        units->stopListening(listenerId_);
    }
}

void MonitoringState::load(const MonitoringSettings& settings) {
    const std::lock_guard lock(mutex_);
    settings_ = settings;
}

void MonitoringState::listenTo(const std::shared_ptr<ControlUnits>& units) {
    const std::lock_guard lock(listeningMutex_);
    if (listenerId_ != 0) {
        return;
    }
    units_ = units;
    listenerId_ = units->listen([state = weak_from_this()](const Exchange& exchange) {
        if (const auto live = state.lock()) {
            live->heard(exchange);
        }
    });
}

void MonitoringState::heard(const Exchange& exchange) {
    const std::lock_guard lock(mutex_);
    if (links_.empty() && pduMonitors_.empty()) {
        return;
    }
    const uint64_t number = ++exchanges_;
    const std::size_t most = settings_.maxItems;
    for (auto& [handle, monitor] : pduMonitors_) {
        monitor.pdus.push_back(
            {monitor.next++, number, exchange.timeMs, exchange.target, false, exchange.request});
        if (!exchange.response.empty()) {
            monitor.pdus.push_back({monitor.next++, number, exchange.timeMs, exchange.target, true,
                                    exchange.response});
        }
        while (monitor.pdus.size() > most) {
            monitor.pdus.pop_front();
        }
    }
    for (auto& [handle, link] : links_) {
        if (!link.replay) {
            keep(link,
                 {0, exchange.timeMs, exchange.target, exchange.request, exchange.response,
                  link.name, false},
                 most);
        }
    }
}

void MonitoringState::keep(Link& link, MonitoredExchange entry, std::size_t most) {
    entry.sequence = link.next++;
    link.entries.push_back(std::move(entry));
    while (link.entries.size() > most) {
        link.entries.pop_front();
    }
}

void MonitoringState::play(Link& link) const {
    if (!link.replay || !link.replay->running) {
        return;
    }
    auto& replay = *link.replay;
    const int64_t elapsed = VehicleClock::nowMs() - replay.startedMs;
    while (replay.played < replay.entries.size() &&
           replay.entries[replay.played].timeMs - replay.startedAtMs <= elapsed) {
        keep(link, replay.entries[replay.played++], settings_.maxItems);
    }
}

MonitoringState::Link& MonitoringState::link(uint64_t handle) {
    return find(links_, handle, L"monitoring link");
}

uint64_t MonitoringState::begin() { return apiTraceCount_.load() == 0 ? 0 : ++tickets_; }

void MonitoringState::finished(uint64_t ticket, uint64_t caller, std::string_view operation,
                               const std::string& arguments, uint64_t micros, bool failed,
                               std::optional<int32_t> code) noexcept {
    try {
        std::string tail = " " + std::to_string(VehicleClock::nowMs()) + " ";
        tail.append(operation);
        tail += " " + std::to_string(micros) + "us ";
        if (!failed) {
            tail += "ok ";
        } else if (code) {
            tail += "failed:" + std::to_string(*code) + " ";
        } else {
            tail += "failed ";
        }
        tail += cut(arguments, maxTracedArguments) + "\n";
        const std::lock_guard lock(mutex_);
        for (auto& [handle, trace] : apiTraces_) {
            if (ticket <= trace.since || (trace.ownCalls && caller != trace.owner)) {
                continue;
            }
            std::string line = std::to_string(trace.next++) + tail;
            trace.bytes += line.size();
            trace.lines.push_back(std::move(line));
            while (trace.bytes > settings_.maxTraceBytes && !trace.lines.empty()) {
                trace.bytes -= trace.lines.front().size();
                trace.lines.pop_front();
            }
        }
    } catch (...) { // NOLINT(bugprone-empty-catch): tracing cannot fail the call it traces
    }
}

void MonitoringState::save(SimulatedVehicle& vehicle, uint64_t monitor, const std::wstring& name) {
    const Resolved target = vehicle.files.sandbox().resolve(L"traces/" + name);
    std::deque<MonitoredPdu> pdus;
    {
        const std::lock_guard lock(mutex_);
        pdus = find(pduMonitors_, monitor, L"PDU monitor").pdus;
    }
    if (writeWhole(target.real, writeTraceFile(pdus))) {
        fail(FileIoFailed, L"The trace file cannot be written", target.enginePath);
    }
}

// ---- the family -----------------------------------------------------------------------

Monitoring::Monitoring(std::shared_ptr<SimulatedVehicle> vehicle, const EngineObject& object)
    : vehicle_(std::move(vehicle)), state_(vehicle_->monitoring), handle_(object.handle) {
    object.clock->listener = state_;
}

std::unique_lock<std::mutex> Monitoring::ready() const {
    vehicle_->lifecycle.requireInitialized();
    return std::unique_lock(state_->mutex_);
}

uint64_t Monitoring::createMonitoringLink(const std::wstring& name) {
    vehicle_->lifecycle.requireInitialized();
    state_->listenTo(vehicle_->units);
    const auto lock = ready();
    if (name.empty()) {
        fail(BadMonitoringArgument, L"A monitoring link needs a name", L"");
    }
    for (const auto& [handle, link] : state_->links_) {
        if (link.name == name) {
            fail(MonitoringLinkExists, L"A monitoring link of this name is open", name);
        }
    }
    const uint64_t handle = state_->newHandle();
    state_->links_[handle].name = name;
    return handle;
}

std::vector<std::shared_ptr<MonitoringItem>>
Monitoring::getMonitoringItems(uint64_t handle, uint32_t value1, int32_t value2) {
    const auto lock = ready();
    auto& link = state_->link(handle);
    const bool keep = keepsItems(value2);
    state_->play(link);
    return fetch(link.entries, value1, keep, [](const MonitoredExchange& e) { return item(e); });
}

void Monitoring::releaseMonitoringLink(uint64_t handle) {
    const auto lock = ready();
    state_->link(handle);
    state_->links_.erase(handle);
}

std::vector<std::shared_ptr<PduMonitoringItem>>
Monitoring::getPduMonitoringItems(uint64_t handle, uint32_t value1, int32_t value2) {
    const auto lock = ready();
    auto& monitor = find(state_->pduMonitors_, handle, L"PDU monitor");
    const bool keep = keepsItems(value2);
    return fetch(monitor.pdus, value1, keep, [](const MonitoredPdu& p) { return item(p); });
}

uint64_t Monitoring::createPduMonitor() {
    vehicle_->lifecycle.requireInitialized();
    state_->listenTo(vehicle_->units);
    const auto lock = ready();
    const uint64_t handle = state_->newHandle();
    state_->pduMonitors_[handle];
    return handle;
}

void Monitoring::releasePduMonitor(uint64_t handle) {
    const auto lock = ready();
    find(state_->pduMonitors_, handle, L"PDU monitor");
    state_->pduMonitors_.erase(handle);
}

void Monitoring::openTraceFileMonitoringLink(uint64_t handle, const std::wstring& traceFile) {
    {
        const auto lock = ready();
        if (state_->link(handle).replay) {
            fail(TraceFileOpen, L"The monitoring link has a trace file open", handleText(handle));
        }
    }
    const Resolved source = vehicle_->files.sandbox().resolve(traceFile);
    std::error_code e;
    if (!fs::exists(source.real, e)) {
        fail(PathNotFound, L"No such file", source.enginePath);
    }
    if (!fs::is_regular_file(source.real, e)) {
        fail(WrongKind, L"A trace file is a file", source.enginePath);
    }
    if (fs::file_size(source.real, e) > maxTraceFileBytes) {
        fail(TraceFileUnreadable, L"The trace file is too large",
             source.enginePath + L": more than 16 MiB");
    }
    std::ifstream in(source.real, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (in.bad() || !in.is_open()) {
        fail(FileIoFailed, L"The trace file cannot be read", source.enginePath);
    }
    auto entries = readTraceFile(text, source.enginePath);

    const auto lock = ready();
    auto& link = state_->link(handle);
    if (link.replay) {
        fail(TraceFileOpen, L"The monitoring link has a trace file open", handleText(handle));
    }
    // Built whole and moved in: clang cannot default-construct a nested struct with
    // member initialisers through std::optional::emplace inside its enclosing class.
    MonitoringState::Replay replay;
    replay.path = source.enginePath;
    replay.entries = std::move(entries);
    link.replay = std::move(replay);
}

void Monitoring::startTraceFileMonitoringLink(uint64_t handle) {
    const auto lock = ready();
    auto& link = state_->link(handle);
    if (!link.replay) {
        fail(TraceFileNotOpen, L"The monitoring link has no trace file open", handleText(handle));
    }
    auto& replay = *link.replay;
    if (replay.running) {
        return;
    }
    replay.running = true;
    replay.startedMs = VehicleClock::nowMs();
    replay.startedAtMs =
        replay.played < replay.entries.size() ? replay.entries[replay.played].timeMs : 0;
    state_->play(link);
}

void Monitoring::stopTraceFileMonitoringLink(uint64_t handle) {
    const auto lock = ready();
    auto& link = state_->link(handle);
    if (!link.replay) {
        fail(TraceFileNotOpen, L"The monitoring link has no trace file open", handleText(handle));
    }
    state_->play(link);
    link.replay->running = false;
}

void Monitoring::closeTraceFileMonitoringLink(uint64_t handle) {
    const auto lock = ready();
    auto& link = state_->link(handle);
    if (!link.replay) {
        fail(TraceFileNotOpen, L"The monitoring link has no trace file open", handleText(handle));
    }
    link.replay.reset();
}

MonitoringState::ApiTrace& Monitoring::trace(uint64_t handle, bool administers) const {
    auto& trace = find(state_->apiTraces_, handle, L"API trace monitor");
    if (trace.owner != handle_ && !administers) { // as if it did not exist
        fail(UnknownMonitor, L"No open API trace monitor has this handle", handleText(handle));
    }
    return trace;
}

uint64_t Monitoring::createApiTraceMonitor() {
    // An operator's trace shows its own calls: other clients' arguments are theirs.
    const bool all = vehicle_->servers.administers(handle_);
    const auto lock = ready();
    const uint64_t handle = state_->newHandle();
    auto& trace = state_->apiTraces_[handle];
    // Calls that began before now have their tickets already.
    trace.since = state_->tickets_.load();
    trace.owner = handle_;
    trace.ownCalls = !all;
    ++state_->apiTraceCount_;
    return handle;
}

std::vector<uint8_t> Monitoring::getApiTraceContent(uint64_t handle, uint32_t value1,
                                                    int32_t value2) {
    const bool administers = vehicle_->servers.administers(handle_);
    const auto lock = ready();
    auto& trace = this->trace(handle, administers);
    const bool keep = keepsItems(value2);
    // Whole lines, as many as fit in value1 bytes (0: all), at least one.
    std::size_t lines = 0;
    std::size_t bytes = 0;
    for (const auto& line : trace.lines) {
        if (value1 != 0 && lines > 0 && bytes + line.size() > value1) {
            break;
        }
        bytes += line.size();
        ++lines;
    }
    std::vector<uint8_t> out;
    out.reserve(bytes);
    for (std::size_t i = 0; i < lines; ++i) {
        out.insert(out.end(), trace.lines[i].begin(), trace.lines[i].end());
    }
    if (!keep) {
        trace.lines.erase(trace.lines.begin(),
                          trace.lines.begin() + static_cast<std::ptrdiff_t>(lines));
        trace.bytes -= bytes;
    }
    return out;
}

void Monitoring::releaseApiTraceMonitor(uint64_t handle) {
    const bool administers = vehicle_->servers.administers(handle_);
    const auto lock = ready();
    trace(handle, administers);
    state_->apiTraces_.erase(handle);
    --state_->apiTraceCount_;
}

std::vector<std::wstring> Monitoring::getMonitoringLinks() {
    const auto lock = ready();
    std::vector<std::wstring> names;
    for (const auto& [handle, link] : state_->links_) {
        names.push_back(link.name);
    }
    return names;
}

} // namespace Varno::Kel_cpp::Reference
