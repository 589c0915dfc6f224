// Monitoring: what a user debugging a sequence looks at. Monitoring links (one item per
// exchange) and PDU monitors (one item per request and per response) record what the
// control units really exchanged, heard through ControlUnits::listen; a link can replay a
// saved trace file instead. API trace monitors record the calls made on the vehicle's
// engine objects, as the call recorder describes them (CallListener).
#pragma once

#include "ControlUnits.h"
#include "Families.h"
#include "Script.h"

#include <nlohmann/json.hpp>

#include <atomic>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

class SimulatedVehicle;
struct EngineObject;

// The "monitoring" section of the vehicle description: how much each monitor keeps.
struct MonitoringSettings {
    uint32_t maxItems = 10000;        // per link and per PDU monitor; the oldest go first
    uint32_t maxTraceBytes = 1 << 20; // per API trace monitor; the oldest lines go first
    // Throws TarnApiException BadVehicleDescription.
    static MonitoringSettings parse(const nlohmann::json& section);
};

// One request or response as a PDU monitor and a trace file keep it.
struct MonitoredPdu {
    uint64_t sequence = 0; // in its monitor, from 1
    uint64_t exchange = 0; // on the vehicle: a request and its response share it
    int64_t timeMs = 0;    // vehicle time of the exchange
    std::wstring unit;
    bool response = false;
    Bytes bytes;
};

// One exchange as a monitoring link keeps it.
struct MonitoredExchange {
    uint64_t sequence = 0; // in its link, from 1
    int64_t timeMs = 0;
    std::wstring unit;
    Bytes request;
    Bytes response; // empty: the unit stayed silent
    std::wstring source;
    bool replayed = false;
};

// Trace files (README.md, "Trace files"): JSON lines, a header and one line per PDU.
std::string writeTraceFile(const std::deque<MonitoredPdu>& pdus);
// The exchanges of a trace file; throws TarnApiException TraceFileUnreadable.
std::vector<MonitoredExchange> readTraceFile(const std::string& text, const std::wstring& source);

// Per vehicle, under its own lock. Held by a shared pointer: the units' listener and the
// engine objects' call clocks reach it without keeping the vehicle.
class MonitoringState final : public CallListener,
                              public std::enable_shared_from_this<MonitoringState> {
public:
    MonitoringState() = default;
    MonitoringState(const MonitoringState&) = delete;
    MonitoringState& operator=(const MonitoringState&) = delete;
    ~MonitoringState() override;

    void load(const MonitoringSettings& settings);

    uint64_t begin() override;
    void finished(uint64_t ticket, uint64_t caller, std::string_view operation,
                  const std::string& arguments, uint64_t micros, bool failed,
                  std::optional<int32_t> code) noexcept override;

    // Writes what the PDU monitor holds (it keeps it) to `traces/<name>`
    // (kelsim_savePduMonitor). Throws the sandbox's refusals, UnknownMonitor, FileIoFailed.
    void save(SimulatedVehicle& vehicle, uint64_t monitor, const std::wstring& name);

private:
    friend class Monitoring;

    struct Replay {
        std::wstring path;
        std::vector<MonitoredExchange> entries; // as recorded
        std::size_t played = 0;                 // entries handed to the link so far
        bool running = false;
        int64_t startedMs = 0;   // vehicle time of the last start
        int64_t startedAtMs = 0; // the recorded time that start resumed at
    };
    struct Link {
        std::wstring name;
        std::deque<MonitoredExchange> entries;
        uint64_t next = 1;
        std::optional<Replay> replay; // a trace file replaces the live traffic while open
    };
    struct PduMonitor {
        std::deque<MonitoredPdu> pdus;
        uint64_t next = 1;
    };
    struct ApiTrace {
        uint64_t since = 0;    // calls with a later ticket are recorded
        uint64_t owner = 0;    // the engine object that made it
        bool ownCalls = false; // only the owner's calls: made by a remote operator
        std::deque<std::string> lines;
        std::size_t bytes = 0;
        uint64_t next = 1;
    };

    void heard(const Exchange& exchange);
    // Starts hearing the units once, when the first link or PDU monitor is made.
    void listenTo(const std::shared_ptr<ControlUnits>& units);
    uint64_t newHandle() { return 0x4D4F4E0000000000ull + ++handles_; }
    Link& link(uint64_t handle); // throws UnknownMonitor
    static void keep(Link& link, MonitoredExchange entry, std::size_t most);
    void play(Link& link) const; // hands the replay's due entries to the link

    std::mutex mutex_;
    MonitoringSettings settings_;
    std::map<uint64_t, Link> links_; // by handle, so in the order they were made
    std::map<uint64_t, PduMonitor> pduMonitors_;
    std::map<uint64_t, ApiTrace> apiTraces_;
    uint64_t handles_ = 0;
    uint64_t exchanges_ = 0;
    std::atomic<uint32_t> apiTraceCount_{0};
    std::atomic<uint64_t> tickets_{0};

    std::mutex listeningMutex_; // taken alone
    std::weak_ptr<ControlUnits> units_;
    uint64_t listenerId_ = 0;
};

class Monitoring final : public MonitoringFamily {
public:
    Monitoring(std::shared_ptr<SimulatedVehicle> vehicle, const EngineObject& object);

    uint64_t createMonitoringLink(const std::wstring& name) override;
    std::vector<std::shared_ptr<MonitoringItem>>
    getMonitoringItems(uint64_t handle, uint32_t value1, int32_t value2) override;
    void releaseMonitoringLink(uint64_t handle) override;
    std::vector<std::shared_ptr<PduMonitoringItem>>
    getPduMonitoringItems(uint64_t handle, uint32_t value1, int32_t value2) override;
    uint64_t createPduMonitor() override;
    void releasePduMonitor(uint64_t handle) override;
    void openTraceFileMonitoringLink(uint64_t handle, const std::wstring& traceFile) override;
    void startTraceFileMonitoringLink(uint64_t handle) override;
    void stopTraceFileMonitoringLink(uint64_t handle) override;
    void closeTraceFileMonitoringLink(uint64_t handle) override;
    uint64_t createApiTraceMonitor() override;
    std::vector<uint8_t> getApiTraceContent(uint64_t handle, uint32_t value1,
                                            int32_t value2) override;
    void releaseApiTraceMonitor(uint64_t handle) override;
    std::vector<std::wstring> getMonitoringLinks() override;

private:
    // Throws NotInitialized unless the engine is initialised; then holds the state's lock.
    std::unique_lock<std::mutex> ready() const;
    // The API trace monitor `handle`, if this engine object may read it: its own, or any
    // when it administers the server. Callers hold the state's lock; `administers` was
    // asked before it was taken (never two family locks at once).
    MonitoringState::ApiTrace& trace(uint64_t handle, bool administers) const;

    std::shared_ptr<SimulatedVehicle> vehicle_;
    std::shared_ptr<MonitoringState> state_;
    uint64_t handle_;
};

} // namespace Varno::Kel_cpp::Reference
