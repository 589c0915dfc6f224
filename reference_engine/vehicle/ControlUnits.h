// The simulated UDS (ISO 14229) control units of a vehicle, read from the JSON vehicle
// description (README.md, "The control units").
//
// A unit holds raw data: data identifiers whose bytes a codec turns into text, a fault
// memory, its diagnostic session and security state. It answers request bytes with
// response bytes as a real unit does (Ecu::respond), following a catalogue of services
// that says which requests it knows, how their parameters are laid out, and in which
// sessions and at which security level each is allowed. Every family reaches a unit
// through the same exchange of bytes (Bus::exchange), so identification, DTCs, services
// and monitors all see one unit, and the bus traffic is counted in one place.
#pragma once

#include "Checksums.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Varno::Kel_cpp::Reference {

using Bytes = std::vector<uint8_t>;

// ---- the fault memory -----------------------------------------------------------------

struct Parameter {
    std::wstring name;
    std::wstring label;
    std::wstring value;
    std::wstring unit;
    Bytes raw;
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

// ---- values and their encoding --------------------------------------------------------

// How a value is written in bytes, and the limits a unit checks when it is written.
struct Codec {
    enum class Kind { Ascii, Unsigned, Enumeration, Bytes };
    Kind kind = Kind::Ascii;
    uint32_t length = 0; // bytes; 0: the rest of the message (ASCII and bytes only)
    double scale = 1;    // unsigned: physical value = raw * scale + offset
    double offset = 0;
    std::wstring unit;
    std::optional<double> min; // physical limits, inclusive
    std::optional<double> max;
    std::vector<std::pair<uint32_t, std::wstring>> names; // enumeration: raw value, name

    // The bytes of a value given as text: a number for unsigned values, a name (or a
    // number) for enumerations, hex digits for bytes. Throws std::invalid_argument when
    // the text cannot be written in this codec's bytes at all; limits are the unit's
    // to check (accepts).
    Bytes encode(const std::wstring& text) const;
    std::wstring decode(const Bytes& bytes) const;
    // The length fits and the value lies within the limits (a named enumeration value).
    bool accepts(const Bytes& bytes) const;
    const wchar_t* kindName() const;
};

// Who may use a service or a data identifier: the sessions (by id; empty: every
// session) and the security level that must be unlocked (0: none).
struct Access {
    std::vector<uint8_t> sessions;
    uint8_t level = 0;
    bool allowsSession(uint8_t session) const;
};

struct DataIdentifier {
    uint16_t id = 0;
    std::wstring name;
    Codec codec;
    Bytes bytes;                 // what the unit holds now
    bool identification = false; // one of the unit's identification values
    std::optional<Access> write; // writable, and by whom
};

// One parameter of a service's request or response, in message order.
struct ParameterSpec {
    enum class Kind { Constant, Value, Structure };
    Kind kind = Kind::Value;
    std::wstring name;
    std::wstring label;
    Bytes constant;                      // Constant: these bytes
    Codec codec;                         // Value
    std::wstring defaultValue;           // Value: sent when the caller gives none (empty: required)
    std::vector<ParameterSpec> children; // Structure: its members
    bool repeated = false;               // Structure: repeats until the message ends

    // Bytes the parameter takes, or nothing when that depends on the message.
    std::optional<std::size_t> fixedLength() const;
};

struct ServiceSpec {
    std::wstring name;
    std::wstring description;
    uint8_t sid = 0;
    std::vector<ParameterSpec> request;  // after the service id
    std::vector<ParameterSpec> response; // after the positive response id (sid + 0x40)
    Access access;
    bool actuator = false;
    std::optional<Bytes> answer; // a service the unit has no built-in behaviour for

    // The constant bytes the request starts with after the service id: what tells the
    // services with one service id apart.
    Bytes key() const;
};

struct Session {
    uint8_t id = 0;
    std::wstring name;
};

struct SecurityLevel {
    uint8_t level = 1;             // requestSeed is sub-function 2 * level - 1, sendKey 2 * level
    uint32_t keyMask = 0;          // key = rotate_left_32(seed XOR keyMask, 3)
    std::vector<uint8_t> sessions; // where it may be unlocked; empty: every session
    uint32_t attempts = 3;         // wrong keys before the lockout
    uint32_t lockoutMs = 10000;
    // State.
    uint32_t failed = 0;
    int64_t lockedUntilMs = 0; // vehicle time (VehicleClock)
};

// The key a unit expects for `seed` (4 bytes, big-endian) with `keyMask`.
Bytes securityKey(const Bytes& seed, uint32_t keyMask);

// What a unit remembers between requests.
struct UnitState {
    uint8_t session = 1;
    uint8_t unlockedLevel = 0;
    int64_t lastRequestMs = 0;
    uint8_t seedLevel = 0; // the level whose seed is waiting for its key
    Bytes seed;
    uint32_t seedState = 0; // the seed generator
    uint32_t keepAlive = 0; // vehicle unlocks that hold the session open
};

// Negative response codes the units give (ISO 14229-1).
enum Nrc : uint8_t {
    GeneralReject = 0x10,
    ServiceNotSupported = 0x11,
    SubFunctionNotSupported = 0x12,
    IncorrectLength = 0x13,
    ConditionsNotCorrect = 0x22,
    RequestSequenceError = 0x24,
    RequestOutOfRange = 0x31,
    SecurityAccessDenied = 0x33,
    InvalidKey = 0x35,
    ExceededNumberOfAttempts = 0x36,
    RequiredTimeDelayNotExpired = 0x37,
    UploadDownloadNotAccepted = 0x70,
    TransferDataSuspended = 0x71,
    WrongBlockSequenceCounter = 0x73,
    ServiceNotSupportedInActiveSession = 0x7F,
};
const wchar_t* nrcText(uint8_t code);

// ---- measurement values ---------------------------------------------------------------

// How a measurement value moves with vehicle time. A unit takes a new sample every
// sampleMs, and a sample is a function of the vehicle time it starts at alone, so
// every read within one sample gives the same value, and a test that knows the clock
// knows the value.
struct Motion {
    enum class Kind { Constant, Ramp, Sine, RandomWalk, Derived };
    Kind kind = Kind::Constant;
    double value = 0;     // constant: the value; ramp: at time 0; sine: the mean; walk: the start
    double rate = 0;      // ramp: change per second, wrapping round the range
    double amplitude = 0; // sine
    double periodMs = 1000;
    double phase = 0;       // sine: degrees
    double step = 0;        // random walk: the largest change per sample
    uint32_t seed = 1;      // random walk
    std::size_t source = 0; // derived: the index of an earlier value of the unit
    double factor = 1;      // derived: factor * source + offset
    double offset = 0;
};

struct MeasurementValue {
    uint16_t id = 0; // its data identifier, which holds name, unit, range and codec
    uint32_t sampleMs = 100;
    Motion motion;
    // Random walk: the last sample walked to, and the generator there.
    int64_t walkedSample = 0;
    double walked = 0;
    uint32_t walkState = 0;
};

// ---- programming: what a flashable unit does with a download ---------------------------

// A unit with a "programming" member can be flashed: in the programming session, with
// its programming level unlocked, EraseMemory (31 01 FF00) drops the software (an update
// is incomplete from then on: the version identifier reads empty and `dtc` is stored),
// RequestDownload (34), TransferData (36) and RequestTransferExit (37) take the new
// image, and CheckProgrammingDependencies (31 01 FF01 <CRC-32>) compares the image's
// CRC-32 with the one the tester sends. When they agree the unit runs the new software:
// the version the image begins with (ASCII up to a NUL byte) becomes the version
// identifier's value and the DTC is no longer stored.
inline constexpr uint16_t eraseMemoryRoutine = 0xFF00;
inline constexpr uint16_t checkProgrammingRoutine = 0xFF01;
inline constexpr std::size_t imageHeaderLength = 64; // where an image's version may stand

struct Programming {
    uint8_t level = 1;              // the security level every programming service needs
    uint8_t session = 2;            // the session they need
    uint32_t maxBlockLength = 1026; // a TransferData request's bytes, 36 and counter included
    uint16_t versionId = 0xF189;    // the data identifier that reports the software version
    std::size_t dtc = 0;            // Ecu::dtcs index of "programming incomplete"
    // Where an update stands.
    bool incomplete = false;  // erased and not yet checked
    bool downloading = false; // between RequestDownload and RequestTransferExit
    bool downloaded = false;  // a whole image arrived and waits for its check
    uint64_t expected = 0;
    uint64_t received = 0;
    uint8_t nextBlock = 1;
    Crc32 crc;    // of what arrived
    Bytes header; // the image's first imageHeaderLength bytes
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
    std::vector<DataIdentifier> data;
    std::vector<Dtc> dtcs;
    std::vector<Session> sessions;
    std::vector<SecurityLevel> security;
    std::vector<ServiceSpec> services;
    uint32_t sessionTimeoutMs = 5000;
    uint8_t unlockSession = 3; // what unlockVehicle enters without services
    uint8_t unlockLevel = 1;
    UnitState state;
    bool identified = false;
    std::vector<MeasurementValue> measurements;
    std::optional<Programming> programming; // set for a unit that can be flashed

    const DataIdentifier* dataIdentifier(uint16_t id) const;
    // By identifier ("F190") or name ("VIN").
    const DataIdentifier* dataIdentifier(const std::wstring& key) const;
    const ServiceSpec* service(const std::wstring& name) const;
    // The catalogue's service a request is for: the one with its service id whose key
    // the request starts with (the longest such key), or null.
    const ServiceSpec* serviceFor(const Bytes& request) const;
    const Session* session(uint8_t id) const;
    const SecurityLevel* securityLevel(uint8_t level) const;

    // The session the unit is in at vehicle time `nowMs`: a non-default session ends
    // when nothing kept it alive for the session timeout.
    uint8_t currentSession(int64_t nowMs) const;

    const MeasurementValue* measurement(uint16_t id) const;
    // The physical value of measurements[index] at vehicle time `nowMs`, within its range.
    double measured(std::size_t index, int64_t nowMs);

    // The unit's answer to `request` at vehicle time `nowMs`: positive, or 7F, the
    // service id and a negative response code.
    Bytes respond(const Bytes& request, int64_t nowMs);
};

// Reads the ECU description's "programming" member into `ecu.programming` and adds the
// programming services to its catalogue (throws std::invalid_argument).
void addProgramming(const nlohmann::json& description, Ecu& ecu);
// The unit's answer to a programming request it accepted by session and level, or
// nothing when the request is none of the programming services.
std::optional<Bytes> respondProgramming(Ecu& ecu, const Bytes& request);

// "F190"
std::wstring hexId(uint16_t id);
// "7F 2E 33"
std::wstring hexText(const Bytes& bytes, bool spaced = true);

// ---- the bus --------------------------------------------------------------------------

// What the simulated bus has carried since the vehicle started: every request sent to a
// unit and every response it gave, with their bytes.
struct BusTraffic {
    uint64_t requests = 0;
    uint64_t responses = 0;
    uint64_t bytesSent = 0;     // request bytes
    uint64_t bytesReceived = 0; // response bytes
};

// One request to a unit and its response (empty: the unit stayed silent).
struct Exchange {
    std::wstring target;
    Bytes request;
    Bytes response;
    int64_t timeMs = 0; // vehicle time of the request
};

class ControlUnits;

// The units as a family's function sees them under the units' lock, with the one way
// to talk to them.
class Bus {
public:
    std::vector<Ecu>& ecus;

    // Sends `request` to `ecu` and returns its response, empty when it stays silent.
    // Counted (ControlUnits::countExchange) and heard by the listeners.
    Bytes exchange(Ecu& ecu, const Bytes& request);

private:
    friend class ControlUnits;
    Bus(ControlUnits& units, std::vector<Ecu>& e) : ecus(e), units_(units) {}
    ControlUnits& units_;
    std::vector<Exchange> heard_;
};

// The vehicle's control units, shared by every family. Holds its own lock; a family
// reaches the units only through read (descriptions: nothing goes over the bus) and
// talk (exchanges with the units), whose function runs under that lock and must not
// call out (no handler, no callback, no other family's lock). Listeners hear the
// exchanges after the lock is let go, in the order they happened.
class ControlUnits {
public:
    // The ECUs of a description's "ecus"; throws TarnApiException BadVehicleDescription.
    static std::vector<Ecu> parse(const nlohmann::json& root);
    // "P0301" with failure type 0x1B gives 0x03011B.
    static uint32_t dtcNumber(const std::wstring& display, uint8_t failureType);

    // Back to these units in their initial state. With a `problem`, every read and talk
    // throws BadVehicleDescription with it.
    void load(std::vector<Ecu> ecus, std::wstring problem);

    template <class Use>
    decltype(auto) read(Use&& use) const {
        const std::lock_guard lock(mutex_);
        requireLoaded();
        return std::forward<Use>(use)(std::as_const(ecus_));
    }

    // Changes the units without anything going over the bus (what a tester would send
    // goes through talk instead, so that it is counted and heard).
    template <class Use>
    decltype(auto) update(Use&& use) {
        const std::lock_guard lock(mutex_);
        requireLoaded();
        return std::forward<Use>(use)(ecus_);
    }

    template <class Use>
    auto talk(Use&& use) {
        std::unique_lock lock(mutex_);
        requireLoaded();
        Bus bus(*this, ecus_);
        // Listeners hear what went over the bus also when the function throws.
        struct Teller {
            const ControlUnits& units;
            Bus& bus;
            std::unique_lock<std::mutex>& lock;
            ~Teller() {
                lock.unlock();
                units.tell(bus.heard_);
            }
        } teller{*this, bus, lock};
        return std::forward<Use>(use)(bus);
    }

    // Counts one request of `requestBytes` and, unless the unit stayed silent
    // (`responseBytes` 0), its response. Every exchange with a unit goes through here,
    // so that transmission figures and monitors see the same traffic. Takes only the
    // traffic's own lock, so it may be called with the units' lock held.
    void countExchange(size_t requestBytes, size_t responseBytes);
    BusTraffic traffic() const;

    // `listener` hears every later exchange, outside every lock of the units, on the
    // thread that made it; what it throws is dropped. Returns an id for stopListening
    // (never 0).
    using Listener = std::function<void(const Exchange&)>;
    uint64_t listen(Listener listener);
    void stopListening(uint64_t id);

private:
    void requireLoaded() const;
    void tell(const std::vector<Exchange>& heard) const;

    mutable std::mutex mutex_;
    std::vector<Ecu> ecus_;
    std::wstring problem_;

    mutable std::mutex trafficMutex_; // taken alone or under mutex_
    BusTraffic traffic_;

    mutable std::mutex listenersMutex_; // taken alone
    std::map<uint64_t, Listener> listeners_;
    uint64_t nextListener_ = 1;
};

} // namespace Varno::Kel_cpp::Reference
