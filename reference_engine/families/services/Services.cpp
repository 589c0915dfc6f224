// Every operation reaches a unit by exchanging bytes with it (ControlUnits::talk), as a
// tester on the bus would; descriptions only read the catalogue. The asynchronous
// forms keep the control units, not the vehicle, as the diagnostic ones do.
#include "Services.h"

#include "Describe.h"
#include "ErrorCodes.h"
#include "Messages.h"
#include "SimulatedVehicle.h"
#include "VehicleClock.h"
#include "families/diagnostics/Answers.h"

#include <algorithm>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

using Inputs = std::vector<std::shared_ptr<ServiceInput>>;

[[noreturn]] void fail(const KelError& e) {
    throw TarnApiException(e.code, e.message, e.details, e.subCode, e.mvciError);
}

[[noreturn]] void unknownTarget(const std::wstring& target) {
    throw TarnApiException(UnknownTarget, L"The vehicle has no such control unit",
                           L"target " + target);
}

template <class Units>
auto* find(Units& ecus, const std::wstring& target) {
    const auto found =
        std::find_if(ecus.begin(), ecus.end(), [&](const Ecu& e) { return e.name == target; });
    if (found == ecus.end()) {
        unknownTarget(target);
    }
    return &*found;
}

// A failed security access step: silent, or the unit's negative response.
[[noreturn]] void refused(const Ecu& ecu, const Bytes& response) {
    if (response.empty()) {
        fail(*Answers::silent(ecu));
    }
    fail(*Answers::negative(response, NegativeResponseReceived));
}

std::vector<std::shared_ptr<ServiceResult>> run(Bus& bus, const std::wstring& target,
                                                const Inputs& services, bool inDefaultSession) {
    auto* ecu = find(bus.ecus, target);
    if (inDefaultSession) {
        bus.exchange(*ecu, {0x10, 0x01});
    }
    std::vector<std::shared_ptr<ServiceResult>> out;
    for (const auto& input : services) {
        out.push_back(Messages::execute(bus, *ecu, input ? *input : ServiceInput{}));
    }
    return out;
}

// The description's unlock: its session, a seed, and the key computed from it.
void standardUnlock(Bus& bus, Ecu& ecu, UnlockResult& result) {
    const auto step = [&](Bytes request) {
        ServiceInput input;
        input.data = std::move(request);
        result.services.push_back(Messages::execute(bus, ecu, input));
        return result.services.back();
    };
    if (step({0x10, ecu.unlockSession})->status != 0) {
        return;
    }
    const auto seedType = static_cast<uint8_t>(2 * ecu.unlockLevel - 1);
    const auto seed = step({0x27, seedType});
    if (seed->status != 0) {
        return;
    }
    const auto& response = seed->responses.front()->data;
    const Bytes seedBytes(response.begin() + 2, response.end());
    if (std::all_of(seedBytes.begin(), seedBytes.end(), [](uint8_t b) { return b == 0; })) {
        return; // already unlocked
    }
    Bytes key = {0x27, static_cast<uint8_t>(seedType + 1)};
    const auto computed = securityKey(seedBytes, ecu.securityLevel(ecu.unlockLevel)->keyMask);
    key.insert(key.end(), computed.begin(), computed.end());
    step(std::move(key));
}

} // namespace

void ServicesState::load() {
    const std::lock_guard lock(mutex_);
    seed_.reset();
    unlocks_.clear();
}

void ServicesState::seedAsked(SeedAsked seed) {
    const std::lock_guard lock(mutex_);
    seed_ = std::move(seed);
}

std::optional<ServicesState::SeedAsked> ServicesState::takeSeed() {
    const std::lock_guard lock(mutex_);
    return std::exchange(seed_, std::nullopt);
}

uint64_t ServicesState::addUnlock(std::wstring target) {
    const std::lock_guard lock(mutex_);
    const auto id = nextUnlock_++;
    unlocks_.emplace(id, std::move(target));
    return id;
}

std::optional<std::wstring> ServicesState::removeUnlock(uint64_t id) {
    const std::lock_guard lock(mutex_);
    const auto found = unlocks_.find(id);
    if (found == unlocks_.end()) {
        return std::nullopt;
    }
    auto target = std::move(found->second);
    unlocks_.erase(found);
    return target;
}

Services::Services(std::shared_ptr<SimulatedVehicle> vehicle) : vehicle_(std::move(vehicle)) {}

const std::shared_ptr<ControlUnits>& Services::ready(const std::wstring& target) const {
    vehicle_->lifecycle.requireInitialized();
    vehicle_->interfaces->requireConnected();
    vehicle_->units->read([&](const std::vector<Ecu>& ecus) { find(ecus, target); });
    return vehicle_->units;
}

std::vector<std::shared_ptr<ServiceResult>> Services::executeService(const std::wstring& target,
                                                                     const Inputs& services) {
    return ready(target)->talk([&](Bus& bus) { return run(bus, target, services, false); });
}

uint64_t Services::executeServiceAsync(const std::wstring& target, const Inputs& services,
                                       ExecuteServiceCallback* callback) {
    return vehicle_->async.start(
        "executeServiceAsync", callback, [units = ready(target), target, services] {
            return units->talk([&](Bus& bus) { return run(bus, target, services, false); });
        });
}

std::vector<std::shared_ptr<ServiceResult>>
Services::executeServiceInDefaultSession(const std::wstring& target, const Inputs& services) {
    return ready(target)->talk([&](Bus& bus) { return run(bus, target, services, true); });
}

uint64_t
Services::executeServiceInDefaultSessionAsync(const std::wstring& target, const Inputs& services,
                                              ExecuteServiceInDefaultSessionCallback* callback) {
    return vehicle_->async.start(
        "executeServiceInDefaultSessionAsync", callback, [units = ready(target), target, services] {
            return units->talk([&](Bus& bus) { return run(bus, target, services, true); });
        });
}

// value1: the unit's diagnostic address (Target.value1); value2: the security level.
std::vector<uint8_t> Services::createSeed(uint32_t value1, uint32_t value2) {
    vehicle_->lifecycle.requireInitialized();
    vehicle_->interfaces->requireConnected();
    if (value2 < 1 || value2 > 0x3F) {
        throw TarnApiException(BadParameterValue, L"Security levels are 1 to 63",
                               L"level " + std::to_wstring(value2));
    }
    const auto seedType = static_cast<uint8_t>(2 * value2 - 1);
    auto [target, response] = vehicle_->units->talk([&](Bus& bus) {
        const auto found = std::find_if(bus.ecus.begin(), bus.ecus.end(), [&](const Ecu& e) {
            return static_cast<uint32_t>(e.address) == value1;
        });
        if (found == bus.ecus.end()) {
            throw TarnApiException(UnknownTarget, L"The vehicle has no such control unit",
                                   L"address " + std::to_wstring(value1));
        }
        auto answer = bus.exchange(*found, {0x27, seedType});
        if (answer.empty() || answer[0] != 0x67) {
            refused(*found, answer);
        }
        return std::make_pair(found->name, std::move(answer));
    });
    Bytes seed(response.begin() + 2, response.end());
    if (std::any_of(seed.begin(), seed.end(), [](uint8_t b) { return b != 0; })) {
        vehicle_->services.seedAsked({target, static_cast<uint8_t>(value2)});
    }
    return seed;
}

void Services::sendKey(const std::vector<uint8_t>& key) {
    vehicle_->lifecycle.requireInitialized();
    vehicle_->interfaces->requireConnected();
    const auto seed = vehicle_->services.takeSeed();
    if (!seed) {
        throw TarnApiException(NoSeedRequested, L"No seed was asked for",
                               L"createSeed comes before sendKey");
    }
    vehicle_->units->talk([&](Bus& bus) {
        auto* ecu = find(bus.ecus, seed->target);
        Bytes request = {0x27, static_cast<uint8_t>(2 * seed->level)};
        request.insert(request.end(), key.begin(), key.end());
        const auto answer = bus.exchange(*ecu, request);
        if (answer.empty() || answer[0] != 0x67) {
            refused(*ecu, answer);
        }
    });
}

std::shared_ptr<UnlockResult> Services::unlockVehicle(const std::wstring& target,
                                                      const Inputs& services) {
    auto [result, unlocked] = ready(target)->talk([&](Bus& bus) {
        auto* ecu = find(bus.ecus, target);
        auto r = std::make_shared<UnlockResult>();
        if (services.empty()) {
            standardUnlock(bus, *ecu, *r);
        } else {
            r->services = run(bus, target, services, false);
        }
        const bool ok = std::all_of(r->services.begin(), r->services.end(),
                                    [](const auto& s) { return s->status == 0; });
        if (ok) {
            ++ecu->state.keepAlive; // the unlock holds the session open
        }
        return std::make_pair(r, ok);
    });
    if (unlocked) {
        result->value = vehicle_->services.addUnlock(target);
    }
    return result;
}

// Ends the unlock; the last one of a unit returns it to the default session, which
// locks its security levels again.
uint64_t Services::releaseVehicleUnlock(uint64_t value) {
    vehicle_->lifecycle.requireInitialized();
    const auto target = vehicle_->services.removeUnlock(value);
    if (!target) {
        throw TarnApiException(UnknownUnlock, L"No vehicle unlock has this value",
                               L"value " + std::to_wstring(value));
    }
    vehicle_->units->talk([&](Bus& bus) {
        auto* ecu = find(bus.ecus, *target);
        if (ecu->state.keepAlive > 0 && --ecu->state.keepAlive == 0) {
            bus.exchange(*ecu, {0x10, 0x01});
        }
    });
    return value;
}

// text1: the target; text2: a pattern over service names (* and ?; empty: every
// service); names: only these services (a name the unit lacks gives an info with error
// 1100); value: only services with this service id (0: any).
std::vector<std::shared_ptr<ServiceInfo>>
Services::getServiceInfos(const std::wstring& text1, const std::wstring& text2,
                          const std::vector<std::wstring>& names, int32_t value) {
    const auto now = VehicleClock::nowMs();
    return ready(text1)->read([&](const std::vector<Ecu>& ecus) {
        const auto* ecu = find(ecus, text1);
        std::vector<std::shared_ptr<ServiceInfo>> out;
        for (const auto& s : ecu->services) {
            if ((text2.empty() || Answers::matchesPattern(text2, s.name)) &&
                (names.empty() || std::find(names.begin(), names.end(), s.name) != names.end()) &&
                (value == 0 || s.sid == value)) {
                out.push_back(Messages::serviceInfo(*ecu, s, now));
            }
        }
        for (const auto& name : names) {
            if (ecu->service(name) == nullptr) {
                auto missing = std::make_shared<ServiceInfo>();
                missing->itemText1 = name;
                missing->itemText4 = ecu->name;
                missing->error = std::make_shared<KelError>();
                missing->error->code = UnknownService;
                missing->error->message = L"The control unit has no such service";
                missing->error->details = L"service " + name + L" on " + ecu->name;
                out.push_back(std::move(missing));
            }
        }
        return out;
    });
}

std::vector<std::shared_ptr<ParameterInfo>>
Services::getIdentificationValueInfos(const std::wstring& target) {
    return ready(target)->read([&](const std::vector<Ecu>& ecus) {
        std::vector<std::shared_ptr<ParameterInfo>> out;
        for (const auto& d : find(ecus, target)->data) {
            if (d.identification) {
                out.push_back(Messages::dataInfo(d));
            }
        }
        return out;
    });
}

// text1: the target; text2: a pattern over the actuator services' names (empty: all).
std::vector<std::shared_ptr<ParameterInfo>>
Services::getActuatorServiceInfos(const std::wstring& text1, const std::wstring& text2) {
    return ready(text1)->read([&](const std::vector<Ecu>& ecus) {
        std::vector<std::shared_ptr<ParameterInfo>> out;
        for (const auto& s : find(ecus, text1)->services) {
            if (s.actuator && (text2.empty() || Answers::matchesPattern(text2, s.name))) {
                out.push_back(Messages::actuatorInfo(s));
            }
        }
        return out;
    });
}

// text1: the target; text2: the service; value: 0 a request parameter, 1 one of the
// positive response; text3: the parameter's path ("Settings.Channel.Id").
std::shared_ptr<ParameterInfo>
Services::getParameterInfo(std::shared_ptr<ParameterInfoConfig> config) {
    vehicle_->lifecycle.requireInitialized();
    if (!config) {
        throw TarnApiException(BadParameterValue, L"getParameterInfo needs its config",
                               L"text1 the target, text2 the service, text3 the parameter");
    }
    return ready(config->text1)->read([&](const std::vector<Ecu>& ecus) {
        const auto* ecu = find(ecus, config->text1);
        const auto* service = ecu->service(config->text2);
        if (service == nullptr) {
            throw TarnApiException(UnknownService, L"The control unit has no such service",
                                   L"service " + config->text2 + L" on " + ecu->name);
        }
        auto info = Messages::findParameter(
            config->value == 0 ? service->request : service->response, config->text3);
        if (!info) {
            throw TarnApiException(UnknownParameter, L"The service has no such parameter",
                                   config->text2 + L": " + config->text3);
        }
        return info;
    });
}

// ---- cyclic services --------------------------------------------------------------------

namespace {

// The job keeps its own copies: the caller's records may change after the call.
Inputs cyclicCopies(const Inputs& services) {
    if (services.empty()) {
        throw TarnApiException(BadParameterValue, L"A cyclic job needs at least one service",
                               L"no services given");
    }
    Inputs out;
    for (const auto& s : services) {
        out.push_back(std::make_shared<ServiceInput>(s ? *s : ServiceInput{}));
    }
    return out;
}

} // namespace

// cycleTime: milliseconds of real time from the start of one cycle to the next.
uint64_t Services::startCyclicServices(const std::wstring& target, const Inputs& services,
                                       uint32_t cycleTime) {
    ready(target);
    if (cycleTime == 0) {
        throw TarnApiException(BadParameterValue, L"A cycle takes at least 1 ms", L"cycleTime 0");
    }
    return vehicle_->cyclic.start(target, cyclicCopies(services),
                                  std::chrono::milliseconds(cycleTime));
}

std::vector<std::shared_ptr<ServiceResult>> Services::getCyclicResults(uint64_t cyclic) {
    vehicle_->lifecycle.requireInitialized();
    return vehicle_->cyclic.take(cyclic);
}

void Services::stopCyclicServices(uint64_t cyclic) {
    vehicle_->lifecycle.requireInitialized();
    vehicle_->cyclic.stop(cyclic);
}

void Services::updateCyclicServices(uint64_t cyclic, const Inputs& services) {
    vehicle_->lifecycle.requireInitialized();
    vehicle_->cyclic.update(cyclic, cyclicCopies(services));
}

} // namespace Varno::Kel_cpp::Reference
