// Sequences: named lists of services from the vehicle description, run on one target
// with the caller's parameter values, service after service, each exchanged on the bus
// as executeService does. A run started without waiting goes on the family's own
// worker and reports each service and its end as events.
#pragma once

#include "Families.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace Varno::Kel_cpp::Reference {

class ControlUnits;
class EventChannels;
class SimulatedVehicle;

struct SequenceStep {
    std::shared_ptr<ServiceInput> service; // values "$Name" take the sequence's parameter
    bool continueOnError = false;
    uint32_t waitMs = 0; // vehicle time to let pass before the service
};

struct Sequence {
    std::wstring name;
    std::wstring target; // where runSequence runs it; empty: only executeSequence
    std::vector<std::pair<std::wstring, std::optional<std::wstring>>> parameters; // default
    std::vector<SequenceStep> steps;
};

// The description's "sequences" section: sequences by name.
struct SequencesSettings {
    std::map<std::wstring, Sequence> sequences;
    // Throws TarnApiException BadVehicleDescription.
    static SequencesSettings parse(const nlohmann::json& section);
};

// The services of one sequence on one target with its values bound, run a step at a
// time. After a service that fails (not a positive response) and may not be passed
// over, the rest are not sent: their results say so (SequenceStopped).
class SequenceWork {
public:
    SequenceWork(std::shared_ptr<ControlUnits> units, std::wstring target,
                 std::vector<SequenceStep> steps);
    std::size_t size() const { return steps_.size(); }
    // Waits out the step's vehicle time (unless stopped), then runs it.
    std::shared_ptr<ServiceResult> step(std::size_t index);
    bool stopped() const { return stopped_; }
    // Vehicle time at which step `index` may run.
    int64_t dueMs(std::size_t index) const;

private:
    std::shared_ptr<ControlUnits> units_;
    std::wstring target_;
    std::vector<SequenceStep> steps_;
    bool stopped_ = false;
    int64_t lastMs_;
};

// Per vehicle, under its own lock (taken alone): the sequences and the runs in flight.
class SequencesState {
public:
    SequencesState(std::shared_ptr<ControlUnits> units, EventChannels& events);
    SequencesState(const SequencesState&) = delete;
    SequencesState& operator=(const SequencesState&) = delete;
    // Cancels every run and joins the worker.
    ~SequencesState();

    // A reload cancels the runs.
    void load(SequencesSettings settings);
    // The sequence `name` with `values` bound to its parameters, as steps to run.
    // Throws UnknownSequence, BadSequenceArgument.
    std::vector<SequenceStep> bind(const std::wstring& name,
                                   const std::vector<std::shared_ptr<ParameterInput>>& values,
                                   std::wstring* target = nullptr) const;
    // Throws UnknownSequence.
    std::vector<std::wstring> parameterNames(const std::wstring& name) const;
    uint64_t run(std::wstring target, std::vector<SequenceStep> steps);
    // Throws UnknownSequenceRun. Once it returns, the run sends nothing more.
    void cancel(uint64_t id);

private:
    struct Run {
        std::shared_ptr<SequenceWork> work;
        std::size_t next = 0;
    };
    void work();
    const Sequence& find(const std::wstring& name) const; // under the lock

    const std::shared_ptr<ControlUnits> units_;
    EventChannels& events_;
    mutable std::mutex mutex_;
    std::condition_variable wake_;
    std::map<std::wstring, Sequence> sequences_;
    std::map<uint64_t, Run> runs_;
    uint64_t nextRun_ = 1;
    uint64_t busy_ = 0;
    bool closing_ = false;
    std::thread worker_; // started with the first run
};

class Sequences final : public SequencesFamily {
public:
    explicit Sequences(std::shared_ptr<SimulatedVehicle> vehicle);

    std::vector<std::shared_ptr<ServiceResult>>
    executeSequence(const std::wstring& target, const std::wstring& sequence,
                    const std::vector<std::shared_ptr<ParameterInput>>& parameters) override;
    uint64_t executeSequenceAsync(const std::wstring& target, const std::wstring& sequence,
                                  const std::vector<std::shared_ptr<ParameterInput>>& parameters,
                                  ExecuteSequenceCallback* callback) override;
    uint64_t runSequence(const std::wstring& sequence,
                         const std::vector<std::wstring>& arguments) override;
    void cancelSequence(uint64_t run) override;

private:
    void ready(const std::wstring& target) const;

    std::shared_ptr<SimulatedVehicle> vehicle_;
};

} // namespace Varno::Kel_cpp::Reference
