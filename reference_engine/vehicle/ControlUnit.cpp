// One control unit at work: lookups in its catalogue, its measurement values, the key it
// expects, and its answer to request bytes (Ecu::respond).
#include "ControlUnits.h"
#include "Describe.h"
#include "ErrorCodes.h"
#include "UnitBytes.h"
#include "VehicleClock.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <stdexcept>

namespace Varno::Kel_cpp::Reference {
namespace {

using UnitBytes::bigEndian;

// A measurement value's data identifier holds the unit's current sample.
void refreshMeasurement(Ecu& ecu, uint16_t id, int64_t nowMs) {
    for (std::size_t i = 0; i < ecu.measurements.size(); ++i) {
        if (ecu.measurements[i].id != id) {
            continue;
        }
        const double physical = ecu.measured(i, nowMs);
        auto* d = const_cast<DataIdentifier*>(ecu.dataIdentifier(id));
        const double top = std::ldexp(1.0, static_cast<int>(8 * d->codec.length)) - 1;
        const double raw =
            std::clamp(std::round((physical - d->codec.offset) / d->codec.scale), 0.0, top);
        d->bytes = bigEndian(static_cast<uint64_t>(raw), d->codec.length);
        return;
    }
}

} // namespace

Bytes securityKey(const Bytes& seed, uint32_t keyMask) {
    const uint32_t x = bigEndian(seed) ^ keyMask;
    return bigEndian((x << 3) | (x >> 29), 4);
}

const wchar_t* nrcText(uint8_t code) {
    switch (code) {
    case GeneralReject:
        return L"generalReject";
    case ServiceNotSupported:
        return L"serviceNotSupported";
    case SubFunctionNotSupported:
        return L"subFunctionNotSupported";
    case IncorrectLength:
        return L"incorrectMessageLengthOrInvalidFormat";
    case ConditionsNotCorrect:
        return L"conditionsNotCorrect";
    case RequestSequenceError:
        return L"requestSequenceError";
    case RequestOutOfRange:
        return L"requestOutOfRange";
    case SecurityAccessDenied:
        return L"securityAccessDenied";
    case InvalidKey:
        return L"invalidKey";
    case ExceededNumberOfAttempts:
        return L"exceededNumberOfAttempts";
    case RequiredTimeDelayNotExpired:
        return L"requiredTimeDelayNotExpired";
    case UploadDownloadNotAccepted:
        return L"uploadDownloadNotAccepted";
    case TransferDataSuspended:
        return L"transferDataSuspended";
    case WrongBlockSequenceCounter:
        return L"wrongBlockSequenceCounter";
    case ServiceNotSupportedInActiveSession:
        return L"serviceNotSupportedInActiveSession";
    default:
        return L"negative response";
    }
}
// ---- the unit -------------------------------------------------------------------------

const DataIdentifier* Ecu::dataIdentifier(uint16_t id) const {
    for (const auto& d : data) {
        if (d.id == id) {
            return &d;
        }
    }
    return nullptr;
}

const DataIdentifier* Ecu::dataIdentifier(const std::wstring& key) const {
    for (const auto& d : data) {
        if (d.name == key || hexId(d.id) == key) {
            return &d;
        }
    }
    return nullptr;
}

const ServiceSpec* Ecu::service(const std::wstring& name) const {
    for (const auto& s : services) {
        if (s.name == name) {
            return &s;
        }
    }
    return nullptr;
}

const ServiceSpec* Ecu::serviceFor(const Bytes& request) const {
    const ServiceSpec* best = nullptr;
    std::size_t bestKey = 0;
    for (const auto& s : services) {
        if (request.empty() || s.sid != request[0]) {
            continue;
        }
        const auto key = s.key();
        if (request.size() - 1 >= key.size() &&
            std::equal(key.begin(), key.end(), request.begin() + 1) &&
            (best == nullptr || key.size() > bestKey)) {
            best = &s;
            bestKey = key.size();
        }
    }
    return best;
}

const Session* Ecu::session(uint8_t id) const {
    for (const auto& s : sessions) {
        if (s.id == id) {
            return &s;
        }
    }
    return nullptr;
}

const SecurityLevel* Ecu::securityLevel(uint8_t level) const {
    for (const auto& s : security) {
        if (s.level == level) {
            return &s;
        }
    }
    return nullptr;
}

uint8_t Ecu::currentSession(int64_t nowMs) const {
    const bool expired = state.keepAlive == 0 &&
                         nowMs - state.lastRequestMs > static_cast<int64_t>(sessionTimeoutMs);
    return expired ? uint8_t{1} : state.session;
}

// ---- measurement values ----------------------------------------------------------------

const MeasurementValue* Ecu::measurement(uint16_t id) const {
    for (const auto& m : measurements) {
        if (m.id == id) {
            return &m;
        }
    }
    return nullptr;
}

double Ecu::measured(std::size_t index, int64_t nowMs) {
    auto& m = measurements[index];
    const auto& codec = dataIdentifier(m.id)->codec;
    const double low = *codec.min;
    const double high = *codec.max;
    const int64_t sample = std::max<int64_t>(nowMs, 0) / m.sampleMs;
    const double t = static_cast<double>(sample) * m.sampleMs; // ms
    const auto& motion = m.motion;
    double v = motion.value;
    switch (motion.kind) {
    case Motion::Kind::Constant:
        break;
    case Motion::Kind::Ramp: {
        const double span = high - low;
        const double x = motion.value - low + motion.rate * t / 1000;
        v = low + (x - std::floor(x / span) * span);
        break;
    }
    case Motion::Kind::Sine:
        v = motion.value + motion.amplitude * std::sin(2 * std::numbers::pi * t / motion.periodMs +
                                                       motion.phase * std::numbers::pi / 180);
        break;
    case Motion::Kind::RandomWalk:
        // Walked on from the last sample reached (the clock never goes back); from the
        // start again after a reload, to the same values.
        if (m.walkState == 0 || sample < m.walkedSample) {
            m.walkedSample = 0;
            m.walked = std::clamp(motion.value, low, high);
            m.walkState = motion.seed != 0 ? motion.seed : 1;
        }
        for (; m.walkedSample < sample; ++m.walkedSample) {
            auto& x = m.walkState;
            x ^= x << 13;
            x ^= x >> 17;
            x ^= x << 5;
            const double unit = static_cast<double>(x) / 4294967296.0 * 2 - 1; // [-1, 1)
            m.walked = std::clamp(m.walked + motion.step * unit, low, high);
        }
        v = m.walked;
        break;
    case Motion::Kind::Derived:
        v = motion.factor * measured(motion.source, nowMs) + motion.offset;
        break;
    }
    return std::clamp(v, low, high);
}

Bytes Ecu::respond(const Bytes& request, int64_t nowMs) {
    if (currentSession(nowMs) != state.session) {
        state.session = 1;
        state.unlockedLevel = 0;
        state.seedLevel = 0;
    }
    state.lastRequestMs = nowMs;
    if (request.empty()) {
        return {0x7F, 0x00, IncorrectLength};
    }
    const uint8_t sid = request[0];
    const auto negative = [sid](uint8_t nrc) { return Bytes{0x7F, sid, nrc}; };
    const bool known = std::any_of(services.begin(), services.end(),
                                   [sid](const ServiceSpec& s) { return s.sid == sid; });
    if (!known) {
        return negative(ServiceNotSupported);
    }
    const ServiceSpec* described = serviceFor(request);
    if (described == nullptr) {
        // Shorter than every request of this service id: the length is wrong, not the id.
        std::size_t shortest = SIZE_MAX;
        for (const auto& s : services) {
            if (s.sid == sid) {
                shortest = std::min(shortest, std::max<std::size_t>(s.key().size(), 1));
            }
        }
        const bool subFunction =
            sid == 0x10 || sid == 0x11 || sid == 0x19 || sid == 0x27 || sid == 0x3E;
        return negative(request.size() - 1 < shortest ? IncorrectLength
                        : subFunction                 ? SubFunctionNotSupported
                                                      : RequestOutOfRange);
    }
    if (!described->access.allowsSession(state.session)) {
        return negative(ServiceNotSupportedInActiveSession);
    }
    std::optional<std::size_t> expected = 0;
    for (const auto& p : described->request) {
        const auto n = p.fixedLength();
        expected = expected && n ? std::optional<std::size_t>(*expected + *n) : std::nullopt;
    }
    if (expected ? request.size() - 1 != *expected
                 : request.size() - 1 <= described->key().size()) {
        return negative(IncorrectLength);
    }
    if (described->access.level != 0 && state.unlockedLevel != described->access.level) {
        return negative(SecurityAccessDenied);
    }
    Bytes positive = {static_cast<uint8_t>(sid + 0x40)};
    const auto reply = [&](const Bytes& rest) {
        positive.insert(positive.end(), rest.begin(), rest.end());
        return positive;
    };
    if (described->answer) {
        return reply(*described->answer);
    }
    if (auto programmed = respondProgramming(*this, request)) {
        return *programmed;
    }
    switch (sid) {
    case 0x10: {
        const uint8_t next = request[1];
        if (!session(next)) {
            return negative(SubFunctionNotSupported);
        }
        if (next != state.session) {
            state.unlockedLevel = 0; // a new session starts locked
            state.seedLevel = 0;
        }
        state.session = next;
        return reply({next, 0x00, 0x32, 0x01, 0xF4});
    }
    case 0x11: {
        const uint8_t type = request[1];
        if (type < 1 || type > 3) {
            return negative(SubFunctionNotSupported);
        }
        state.session = 1;
        state.unlockedLevel = 0;
        state.seedLevel = 0;
        return reply({type});
    }
    case 0x3E:
        return reply({0x00});
    case 0x27: {
        const uint8_t type = request[1];
        const auto levelNumber = static_cast<uint8_t>((type + 1) / 2);
        auto* level = const_cast<SecurityLevel*>(securityLevel(levelNumber));
        if ((type & 1) != 0) {
            if (nowMs < level->lockedUntilMs) {
                return negative(RequiredTimeDelayNotExpired);
            }
            if (state.unlockedLevel == levelNumber) {
                return reply({type, 0, 0, 0, 0}); // already unlocked: the zero seed
            }
            do {
                auto& x = state.seedState;
                x ^= x << 13;
                x ^= x >> 17;
                x ^= x << 5;
            } while (state.seedState == 0);
            state.seed = bigEndian(state.seedState, 4);
            state.seedLevel = levelNumber;
            Bytes rest = {type};
            rest.insert(rest.end(), state.seed.begin(), state.seed.end());
            return reply(rest);
        }
        if (state.seedLevel != levelNumber) {
            return negative(RequestSequenceError);
        }
        state.seedLevel = 0;
        const Bytes key(request.begin() + 2, request.end());
        if (key == securityKey(state.seed, level->keyMask)) {
            state.unlockedLevel = levelNumber;
            level->failed = 0;
            return reply({type});
        }
        if (++level->failed >= level->attempts) {
            level->failed = 0;
            level->lockedUntilMs = nowMs + level->lockoutMs;
            return negative(ExceededNumberOfAttempts);
        }
        return negative(InvalidKey);
    }
    case 0x22: {
        const auto id = static_cast<uint16_t>(request[1] << 8 | request[2]);
        refreshMeasurement(*this, id, nowMs);
        const auto* d = dataIdentifier(id);
        Bytes rest = {request[1], request[2]};
        rest.insert(rest.end(), d->bytes.begin(), d->bytes.end());
        return reply(rest);
    }
    case 0x2E: {
        auto* d = const_cast<DataIdentifier*>(
            dataIdentifier(static_cast<uint16_t>(request[1] << 8 | request[2])));
        const Bytes written(request.begin() + 3, request.end());
        if (!d->codec.accepts(written)) {
            return negative(RequestOutOfRange);
        }
        d->bytes = written;
        return reply({request[1], request[2]});
    }
    case 0x19: {
        const bool supported = request[1] == 0x0A;
        const uint8_t mask = supported ? 0xFF : request[2];
        Bytes rest = {request[1], 0xFF};
        for (const auto& d : dtcs) {
            // Mask FF reports every stored DTC, also one whose status is 0.
            if (supported || (d.stored && (mask == 0xFF || (d.status & mask) != 0))) {
                const auto number = bigEndian(d.code, 3);
                rest.insert(rest.end(), number.begin(), number.end());
                rest.push_back(d.status);
            }
        }
        return reply(rest);
    }
    case 0x14: {
        const uint32_t group = bigEndian(std::span(request).subspan(1));
        bool found = false;
        for (auto& d : dtcs) {
            if (group == 0xFFFFFF || d.code == group) {
                d.stored = false;
                d.status = 0;
                found = true;
            }
        }
        return found || group == 0xFFFFFF ? reply({}) : negative(RequestOutOfRange);
    }
    case 0x31:
        return reply(Bytes(request.begin() + 1, request.end())); // reports its options back
    default:
        return negative(ServiceNotSupported);
    }
}

} // namespace Varno::Kel_cpp::Reference
