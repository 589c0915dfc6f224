#include "Sequences.h"

#include "ControlUnits.h"
#include "Describe.h"
#include "ErrorCodes.h"
#include "SimulatedVehicle.h"
#include "VehicleClock.h"
#include "families/services/Messages.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

using Values = std::vector<std::shared_ptr<ParameterInput>>;
using json = nlohmann::json;

std::wstring text(const json& j, const char* key) {
    return j.contains(key) ? fromUtf8(j.at(key).get<std::string>()) : std::wstring();
}

bool placeholder(const std::wstring& value) { return value.size() > 1 && value[0] == L'$'; }

std::shared_ptr<ParameterInput> parseValue(const json& j, const Sequence& sequence) {
    auto p = std::make_shared<ParameterInput>();
    p->name = text(j, "name");
    p->value = text(j, "value");
    if (placeholder(p->value) &&
        std::none_of(sequence.parameters.begin(), sequence.parameters.end(),
                     [&](const auto& d) { return d.first == p->value.substr(1); })) {
        throw std::invalid_argument("the sequence has no parameter " + toUtf8(p->value));
    }
    for (const auto& child : arrayMember(j, "children")) {
        p->children.push_back(parseValue(child, sequence));
    }
    return p;
}

Sequence parseSequence(const std::string& name, const json& j) {
    Sequence s;
    s.name = fromUtf8(name);
    s.target = text(j, "target");
    for (const auto& p : arrayMember(j, "parameters")) {
        std::optional<std::wstring> fallback;
        if (p.contains("default")) {
            fallback = text(p, "default");
        }
        s.parameters.emplace_back(text(p, "name"), std::move(fallback));
    }
    for (const auto& j2 : arrayMember(j, "steps", true)) {
        SequenceStep step;
        step.service = std::make_shared<ServiceInput>();
        step.service->service = text(j2, "service");
        if (j2.contains("request")) {
            const auto bytes = text(j2, "request");
            Codec raw;
            raw.kind = Codec::Kind::Bytes;
            step.service->data = raw.encode(bytes);
        }
        if (step.service->service.empty() == step.service->data.empty()) {
            throw std::invalid_argument("a step gives its \"service\" or its \"request\" bytes");
        }
        for (const auto& v : arrayMember(j2, "parameters")) {
            step.service->parameters.push_back(parseValue(v, s));
        }
        step.continueOnError = j2.value("continueOnError", false);
        step.waitMs = static_cast<uint32_t>(wholeNumber(j2, "waitMs", 0, 0, 86400000));
        s.steps.push_back(std::move(step));
    }
    return s;
}

std::shared_ptr<ParameterInput> bound(const ParameterInput& p,
                                      const std::map<std::wstring, std::wstring>& values) {
    auto out = std::make_shared<ParameterInput>(p);
    if (placeholder(p.value)) {
        out->value = values.at(p.value.substr(1));
    }
    out->children.clear();
    for (const auto& c : p.children) {
        out->children.push_back(bound(*c, values));
    }
    return out;
}

[[noreturn]] void badArgument(std::wstring message, std::wstring details) {
    throw TarnApiException(BadSequenceArgument, std::move(message), std::move(details));
}

} // namespace

SequencesSettings SequencesSettings::parse(const json& section) {
    SequencesSettings settings;
    for (const auto& [name, j] : section.items()) {
        try {
            settings.sequences.emplace(fromUtf8(name), parseSequence(name, j));
        } catch (const std::exception& e) {
            throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                                   L"sequence " + fromUtf8(name) + L": " + fromUtf8(e.what()));
        }
    }
    return settings;
}

// ---- the work of one sequence -------------------------------------------------------------

SequenceWork::SequenceWork(std::shared_ptr<ControlUnits> units, std::wstring target,
                           std::vector<SequenceStep> steps)
    : units_(std::move(units)), target_(std::move(target)), steps_(std::move(steps)),
      lastMs_(VehicleClock::nowMs()) {}

int64_t SequenceWork::dueMs(std::size_t index) const {
    return stopped_ ? 0 : lastMs_ + steps_[index].waitMs;
}

std::shared_ptr<ServiceResult> SequenceWork::step(std::size_t index) {
    const auto& s = steps_[index];
    if (stopped_) {
        auto r = std::make_shared<ServiceResult>();
        r->itemText1 = s.service->service;
        r->itemText2 = target_;
        r->status = 3;
        r->text1 = L"not sent";
        r->error = std::make_shared<KelError>();
        r->error->code = SequenceStopped;
        r->error->message = L"Not sent: an earlier service of the sequence failed";
        r->error->details = L"step " + std::to_wstring(index + 1);
        return r;
    }
    // A wait in the sequence passes in vehicle time, which a test moves on.
    while (!VehicleClock::reached(dueMs(index))) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    auto result = units_->talk([&](Bus& bus) {
        const auto ecu = std::find_if(bus.ecus.begin(), bus.ecus.end(),
                                      [&](const Ecu& e) { return e.name == target_; });
        if (ecu == bus.ecus.end()) {
            throw TarnApiException(UnknownTarget, L"The vehicle has no such control unit",
                                   L"target " + target_);
        }
        return Messages::execute(bus, *ecu, *s.service);
    });
    lastMs_ = VehicleClock::nowMs();
    stopped_ = result->status != 0 && !s.continueOnError;
    return result;
}

// ---- the runs -------------------------------------------------------------------------------

SequencesState::SequencesState(std::shared_ptr<ControlUnits> units, EventChannels& events)
    : units_(std::move(units)), events_(events) {}

SequencesState::~SequencesState() {
    {
        std::unique_lock lock(mutex_);
        closing_ = true;
        runs_.clear();
    }
    wake_.notify_all();
    if (worker_.joinable()) {
        worker_.join();
    }
}

void SequencesState::load(SequencesSettings settings) {
    std::unique_lock lock(mutex_);
    sequences_ = std::move(settings.sequences);
    runs_.clear();
    wake_.wait(lock, [&] { return busy_ == 0; });
}

const Sequence& SequencesState::find(const std::wstring& name) const {
    const auto found = sequences_.find(name);
    if (found == sequences_.end()) {
        throw TarnApiException(UnknownSequence, L"The vehicle has no such sequence",
                               L"sequence " + name);
    }
    return found->second;
}

std::vector<std::wstring> SequencesState::parameterNames(const std::wstring& name) const {
    const std::lock_guard lock(mutex_);
    std::vector<std::wstring> out;
    for (const auto& p : find(name).parameters) {
        out.push_back(p.first);
    }
    return out;
}

std::vector<SequenceStep> SequencesState::bind(const std::wstring& name, const Values& values,
                                               std::wstring* target) const {
    const std::lock_guard lock(mutex_);
    const auto& sequence = find(name);
    std::map<std::wstring, std::wstring> given;
    for (const auto& v : values) {
        if (!v) {
            continue;
        }
        if (std::none_of(sequence.parameters.begin(), sequence.parameters.end(),
                         [&](const auto& d) { return d.first == v->name; })) {
            badArgument(L"The sequence has no such parameter", name + L": " + v->name);
        }
        given[v->name] = v->value;
    }
    for (const auto& [parameter, fallback] : sequence.parameters) {
        if (given.count(parameter) == 0) {
            if (!fallback) {
                badArgument(L"The sequence needs a value for this parameter",
                            name + L": " + parameter);
            }
            given[parameter] = *fallback;
        }
    }
    std::vector<SequenceStep> steps;
    for (const auto& s : sequence.steps) {
        auto step = s;
        step.service = std::make_shared<ServiceInput>(*s.service);
        step.service->parameters.clear();
        for (const auto& p : s.service->parameters) {
            step.service->parameters.push_back(bound(*p, given));
        }
        steps.push_back(std::move(step));
    }
    if (target != nullptr) {
        *target = sequence.target;
    }
    return steps;
}

uint64_t SequencesState::run(std::wstring target, std::vector<SequenceStep> steps) {
    const std::lock_guard lock(mutex_);
    const auto id = nextRun_++;
    runs_.emplace(id,
                  Run{std::make_shared<SequenceWork>(units_, std::move(target), std::move(steps))});
    if (!worker_.joinable()) {
        worker_ = std::thread([this] { work(); });
    }
    wake_.notify_all();
    return id;
}

void SequencesState::cancel(uint64_t id) {
    std::unique_lock lock(mutex_);
    if (runs_.erase(id) == 0) {
        throw TarnApiException(UnknownSequenceRun, L"No sequence run has this handle",
                               L"run " + std::to_wstring(id) + L" (never started, or ended)");
    }
    wake_.wait(lock, [&] { return busy_ != id; });
    lock.unlock();
    events_.post(EventKind::SequenceEnded, 2, L"Sequence cancelled", L"run " + std::to_wstring(id));
}

// One service of one run at a time, the oldest ready run first; a run whose next service
// waits for vehicle time is looked at again shortly, as the clock may be moved on.
void SequencesState::work() {
    std::unique_lock lock(mutex_);
    while (!closing_) {
        auto ready = std::find_if(runs_.begin(), runs_.end(), [](const auto& r) {
            return VehicleClock::reached(r.second.work->dueMs(r.second.next));
        });
        if (ready == runs_.end()) {
            if (runs_.empty()) {
                wake_.wait(lock);
            } else {
                wake_.wait_for(lock, std::chrono::milliseconds(2));
            }
            continue;
        }
        const auto id = ready->first;
        const auto work = ready->second.work;
        const auto index = ready->second.next++;
        busy_ = id;
        lock.unlock();
        std::shared_ptr<ServiceResult> result;
        try {
            result = work->step(index);
        } catch (...) {
            // The units cannot be used, or the target is gone; a fault ends the run too,
            // rather than the process from this thread.
            result = nullptr;
        }
        const auto run = L"run " + std::to_wstring(id);
        if (result) {
            events_.post(EventKind::SequenceStep, result->status, result->itemText1,
                         run + L" step " + std::to_wstring(index + 1) + L"/" +
                             std::to_wstring(work->size()),
                         result->error);
        }
        const bool last = !result || index + 1 == work->size();
        lock.lock();
        busy_ = 0;
        const bool still = runs_.count(id) > 0;
        if (still && last) {
            runs_.erase(id);
        }
        lock.unlock();
        wake_.notify_all();
        if (still && last) {
            events_.post(EventKind::SequenceEnded, work->stopped() || !result ? 1 : 0,
                         work->stopped() || !result ? L"Sequence stopped" : L"Sequence done", run);
        }
        lock.lock();
    }
}

// ---- the family -----------------------------------------------------------------------------

Sequences::Sequences(std::shared_ptr<SimulatedVehicle> vehicle) : vehicle_(std::move(vehicle)) {}

void Sequences::ready(const std::wstring& target) const {
    vehicle_->lifecycle.requireInitialized();
    vehicle_->interfaces->requireConnected();
    vehicle_->units->read([&](const std::vector<Ecu>& ecus) {
        if (std::none_of(ecus.begin(), ecus.end(),
                         [&](const Ecu& e) { return e.name == target; })) {
            throw TarnApiException(UnknownTarget, L"The vehicle has no such control unit",
                                   L"target " + target);
        }
    });
}

std::vector<std::shared_ptr<ServiceResult>> Sequences::executeSequence(const std::wstring& target,
                                                                       const std::wstring& sequence,
                                                                       const Values& parameters) {
    ready(target);
    SequenceWork work(vehicle_->units, target, vehicle_->sequences.bind(sequence, parameters));
    std::vector<std::shared_ptr<ServiceResult>> out;
    for (std::size_t i = 0; i < work.size(); ++i) {
        out.push_back(work.step(i));
    }
    return out;
}

// One report per service, as the services are run; a cancel ends the call between two.
uint64_t Sequences::executeSequenceAsync(const std::wstring& target, const std::wstring& sequence,
                                         const Values& parameters,
                                         ExecuteSequenceCallback* callback) {
    ready(target);
    auto work = std::make_shared<SequenceWork>(vehicle_->units, target,
                                               vehicle_->sequences.bind(sequence, parameters));
    return vehicle_->async.startSteps("executeSequenceAsync", callback, [work] {
        std::vector<std::function<std::shared_ptr<ServiceResult>()>> steps;
        for (std::size_t i = 0; i < work->size(); ++i) {
            steps.emplace_back([work, i] { return work->step(i); });
        }
        return steps;
    });
}

// The arguments are the values of the sequence's parameters, in their order.
uint64_t Sequences::runSequence(const std::wstring& sequence,
                                const std::vector<std::wstring>& arguments) {
    vehicle_->lifecycle.requireInitialized();
    vehicle_->interfaces->requireConnected();
    const auto names = vehicle_->sequences.parameterNames(sequence);
    if (arguments.size() > names.size()) {
        badArgument(L"More arguments than the sequence has parameters",
                    sequence + L": " + std::to_wstring(names.size()) + L" parameter(s)");
    }
    Values values;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        auto v = std::make_shared<ParameterInput>();
        v->name = names[i];
        v->value = arguments[i];
        values.push_back(std::move(v));
    }
    std::wstring target;
    auto steps = vehicle_->sequences.bind(sequence, values, &target);
    if (target.empty()) {
        throw TarnApiException(SequenceNeedsTarget, L"The sequence names no target to run on",
                               L"sequence " + sequence + L": executeSequence names one");
    }
    ready(target);
    return vehicle_->sequences.run(target, std::move(steps));
}

void Sequences::cancelSequence(uint64_t run) {
    vehicle_->lifecycle.requireInitialized();
    vehicle_->sequences.cancel(run);
}

} // namespace Varno::Kel_cpp::Reference
