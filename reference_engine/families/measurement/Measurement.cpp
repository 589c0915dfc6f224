// Values are named as the description names them; an empty name list means every value
// of the target. Reads go over the bus one ReadDataByIdentifier per value, so the
// traffic figures and monitors see them.
#include "Measurement.h"

#include "Describe.h"
#include "ErrorCodes.h"
#include "SimulatedVehicle.h"
#include "families/diagnostics/Answers.h"
#include "families/services/Messages.h"

#include <algorithm>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

using Names = std::vector<std::wstring>;

std::shared_ptr<KelError> unknownValue(const std::wstring& name, const std::wstring& target) {
    auto e = std::make_shared<KelError>();
    e->code = UnknownMeasurementValue;
    e->message = L"The control unit has no such measurement value";
    e->details = L"value " + name + L" on " + target;
    return e;
}

const Ecu* findEcu(const std::vector<Ecu>& ecus, const std::wstring& target) {
    const auto found =
        std::find_if(ecus.begin(), ecus.end(), [&](const Ecu& e) { return e.name == target; });
    return found != ecus.end() ? &*found : nullptr;
}

const Ecu& requireEcu(const std::vector<Ecu>& ecus, const std::wstring& target) {
    const auto* ecu = findEcu(ecus, target);
    if (ecu == nullptr) {
        throw TarnApiException(UnknownTarget, L"The vehicle has no such control unit",
                               L"target " + target);
    }
    return *ecu;
}

// The measurement value named `name`, or null.
const DataIdentifier* valueNamed(const Ecu& ecu, const std::wstring& name) {
    for (const auto& m : ecu.measurements) {
        const auto* d = ecu.dataIdentifier(m.id);
        if (d->name == name) {
            return d;
        }
    }
    return nullptr;
}

Names everyValue(const Ecu& ecu) {
    Names out;
    for (const auto& m : ecu.measurements) {
        out.push_back(ecu.dataIdentifier(m.id)->name);
    }
    return out;
}

// One ReadDataResult for `target`, as readDataByIdentifiers gives: status 0, 1 for a
// silent unit, 2 for an unknown target; a value the unit lacks, or answers negatively,
// carries its error in its parameter.
std::vector<std::shared_ptr<ReadDataResult>> readValues(Bus& bus, const std::wstring& target,
                                                        const Names& names) {
    auto r = std::make_shared<ReadDataResult>();
    r->target = target;
    const auto found = std::find_if(bus.ecus.begin(), bus.ecus.end(),
                                    [&](const Ecu& e) { return e.name == target; });
    if (found == bus.ecus.end()) {
        r->status = 2;
        r->error = std::make_shared<KelError>();
        r->error->code = UnknownTarget;
        r->error->message = L"The vehicle has no such control unit";
        r->error->details = L"target " + target;
        return {r};
    }
    Ecu& ecu = *found;
    r->text = ecu.variant;
    for (const auto& name : names.empty() ? everyValue(ecu) : names) {
        const auto* d = valueNamed(ecu, name);
        if (d == nullptr) {
            auto p = std::make_shared<ParameterResult>();
            p->itemText1 = name;
            p->error = unknownValue(name, target);
            r->parameters.push_back(std::move(p));
            continue;
        }
        const auto id = d->id;
        const auto response =
            bus.exchange(ecu, {0x22, static_cast<uint8_t>(id >> 8), static_cast<uint8_t>(id)});
        if (response.empty()) {
            r->parameters.clear();
            r->status = 1;
            r->error = Answers::silent(ecu);
            return {r};
        }
        d = ecu.dataIdentifier(id);
        if (response[0] == 0x62) {
            r->parameters.push_back(
                Answers::dataParameter(*d, Bytes(response.begin() + 3, response.end())));
        } else {
            auto p = std::make_shared<ParameterResult>();
            p->itemText1 = name;
            p->itemText2 = hexId(id);
            p->error = Answers::negative(response, NegativeResponseReceived);
            r->parameters.push_back(std::move(p));
        }
    }
    return {r};
}

} // namespace

void MeasurementState::load() {
    const std::lock_guard lock(mutex_);
    registrations_.clear();
}

uint64_t MeasurementState::add(Registration registration) {
    const std::lock_guard lock(mutex_);
    const auto id = next_++;
    registrations_.emplace(id, std::move(registration));
    return id;
}

std::optional<MeasurementState::Registration> MeasurementState::find(uint64_t id) const {
    const std::lock_guard lock(mutex_);
    const auto found = registrations_.find(id);
    return found != registrations_.end() ? std::optional(found->second) : std::nullopt;
}

bool MeasurementState::remove(uint64_t id) {
    const std::lock_guard lock(mutex_);
    return registrations_.erase(id) > 0;
}

Measurement::Measurement(std::shared_ptr<SimulatedVehicle> vehicle)
    : vehicle_(std::move(vehicle)) {}

void Measurement::ready() const {
    vehicle_->lifecycle.requireInitialized();
    vehicle_->interfaces->requireConnected();
}

std::vector<std::shared_ptr<ParameterInfo>>
Measurement::getMeasurementValueInfos(const std::wstring& target) {
    return getSingleMeasurementValueInfos(target, {});
}

// A name the unit lacks gives an info that carries the error, as getServiceInfos does.
std::vector<std::shared_ptr<ParameterInfo>>
Measurement::getSingleMeasurementValueInfos(const std::wstring& target, const Names& names) {
    vehicle_->lifecycle.requireInitialized();
    return vehicle_->units->read([&](const std::vector<Ecu>& ecus) {
        const auto& ecu = requireEcu(ecus, target);
        std::vector<std::shared_ptr<ParameterInfo>> out;
        for (const auto& name : names.empty() ? everyValue(ecu) : names) {
            const auto* d = valueNamed(ecu, name);
            if (d == nullptr) {
                auto missing = std::make_shared<ParameterInfo>();
                missing->itemText1 = name;
                missing->error = unknownValue(name, target);
                out.push_back(std::move(missing));
                continue;
            }
            auto info = Messages::dataInfo(*d);
            info->values[5] = ecu.measurement(d->id)->sampleMs; // how often the value changes
            out.push_back(std::move(info));
        }
        return out;
    });
}

// Every name must be a value of the target: a registration is kept to be read often,
// so a mistake is better refused at once than reported at every read.
uint64_t Measurement::registerMeasurementValues(const std::wstring& target, const Names& names) {
    ready();
    auto kept = vehicle_->units->read([&](const std::vector<Ecu>& ecus) {
        const auto& ecu = requireEcu(ecus, target);
        for (const auto& name : names) {
            if (valueNamed(ecu, name) == nullptr) {
                const auto e = unknownValue(name, target);
                throw TarnApiException(e->code, e->message, e->details);
            }
        }
        return names.empty() ? everyValue(ecu) : names;
    });
    if (kept.empty()) {
        throw TarnApiException(UnknownMeasurementValue,
                               L"The control unit has no measurement values", L"target " + target);
    }
    return vehicle_->measurement.add({target, std::move(kept)});
}

std::vector<std::shared_ptr<ReadDataResult>>
Measurement::getMeasurementValues(uint64_t registration) {
    ready();
    const auto kept = vehicle_->measurement.find(registration);
    if (!kept) {
        throw TarnApiException(UnknownMeasurementRegistration,
                               L"No measurement registration has this handle",
                               L"registration " + std::to_wstring(registration));
    }
    return vehicle_->units->talk(
        [&](Bus& bus) { return readValues(bus, kept->target, kept->names); });
}

void Measurement::unregisterMeasurementValues(uint64_t registration) {
    vehicle_->lifecycle.requireInitialized();
    if (!vehicle_->measurement.remove(registration)) {
        throw TarnApiException(UnknownMeasurementRegistration,
                               L"No measurement registration has this handle",
                               L"registration " + std::to_wstring(registration));
    }
}

std::vector<std::shared_ptr<ReadDataResult>>
Measurement::readMeasurementValues(const std::wstring& target, const Names& names) {
    ready();
    return vehicle_->units->talk([&](Bus& bus) { return readValues(bus, target, names); });
}

uint64_t Measurement::readMeasurementValuesAsync(const std::wstring& target, const Names& names,
                                                 ReadMeasurementValuesCallback* callback) {
    ready();
    return vehicle_->async.start(
        "readMeasurementValuesAsync", callback, [units = vehicle_->units, target, names] {
            return units->talk([&](Bus& bus) { return readValues(bus, target, names); });
        });
}

} // namespace Varno::Kel_cpp::Reference
