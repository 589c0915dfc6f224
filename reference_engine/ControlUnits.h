// The simulated UDS control units of a vehicle, read from the JSON vehicle description
// (README.md), with a fault memory that reads and clears like a real one.
#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace Varno::Kel_cpp::Reference {

struct Parameter {
    std::wstring name;
    std::wstring label;
    std::wstring value;
    std::wstring unit;
    std::vector<uint8_t> raw;
    std::vector<Parameter> children;
};

struct SpecialItem {
    std::wstring name;
    std::wstring value;
    std::wstring unit;
};

struct Dtc {
    std::wstring display; // "P0301"
    uint32_t code = 0;    // the 2-byte SAE code followed by the failure type byte
    uint8_t status = 0;   // ISO 14229 status byte
    std::wstring text;
    std::wstring symptom;
    int32_t severity = 0;
    std::vector<Parameter> snapshot;
    std::vector<Parameter> extended;
    std::vector<std::vector<SpecialItem>> specialData;
    bool stored = true; // in the fault memory now
};

struct IdentValue {
    std::wstring id; // "F190"
    std::wstring name;
    std::wstring value;
};

struct Ecu {
    std::wstring name;
    std::wstring description;
    std::wstring variant;
    std::wstring protocol;
    std::wstring bus;
    int32_t address = 0;
    bool responds = true;
    uint32_t responseTimeoutMs = 1000;
    std::vector<std::wstring> aliases;
    std::vector<IdentValue> identification;
    std::vector<Dtc> dtcs;
    bool identified = false;
};

// What the simulated bus has carried since the vehicle started: every request sent to a
// unit and every response it gave, with their bytes.
struct BusTraffic {
    uint64_t requests = 0;
    uint64_t responses = 0;
    uint64_t bytesSent = 0;     // request bytes
    uint64_t bytesReceived = 0; // response bytes
};

// The vehicle's control units, shared by every family: identification, DTCs and
// later services and measurements all see the same units. Holds its own lock; a
// family reaches the units only through read and update, whose function runs under
// that lock and must not call out (no handler, no callback, no other family's lock).
class ControlUnits {
public:
    // The ECUs of a description's "ecus"; throws TarnApiException BadVehicleDescription.
    static std::vector<Ecu> parse(const nlohmann::json& root);
    // "P0301" with failure type 0x1B gives 0x03011B.
    static uint32_t dtcNumber(const std::wstring& display, uint8_t failureType);

    // Back to these units with their initial fault memory. With a `problem`, every read
    // and update throws BadVehicleDescription with it.
    void load(std::vector<Ecu> ecus, std::wstring problem);

    template <class Use>
    decltype(auto) read(Use&& use) const {
        const std::lock_guard lock(mutex_);
        requireLoaded();
        return std::forward<Use>(use)(std::as_const(ecus_));
    }
    template <class Use>
    decltype(auto) update(Use&& use) {
        const std::lock_guard lock(mutex_);
        requireLoaded();
        return std::forward<Use>(use)(ecus_);
    }

    // Counts one request of `requestBytes` and, unless the unit stayed silent
    // (`responseBytes` 0), its response. Every exchange with a unit goes through here,
    // so that transmission figures and monitors see the same traffic.
    void countExchange(size_t requestBytes, size_t responseBytes);
    BusTraffic traffic() const;

private:
    void requireLoaded() const;

    mutable std::mutex mutex_;
    std::vector<Ecu> ecus_;
    std::wstring problem_;
    BusTraffic traffic_; // under mutex_
};

} // namespace Varno::Kel_cpp::Reference
