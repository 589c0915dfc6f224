// Cyclic services: jobs that run a list of services on one target every cycle, on one
// worker thread of the vehicle, keeping what they gave until the caller fetches it.
//
// The cycle runs on real time (the tester's own timer), while the units answer on
// vehicle time as always. A job's results are kept up to a bound; past it the oldest
// go, and each result carries its cycle's number, so a gap shows what was dropped.
#pragma once

#include <Kel_cpp/Records.h>

#include <nlohmann/json.hpp>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace Varno::Kel_cpp::Reference {

class ControlUnits;

// "cyclicResults" of the description's "services" section.
struct CyclicSettings {
    std::size_t maxResults = 1000; // per job
    // Throws TarnApiException BadVehicleDescription.
    static CyclicSettings parse(const nlohmann::json& section);
};

class CyclicJobs {
public:
    using Inputs = std::vector<std::shared_ptr<ServiceInput>>;
    using Results = std::vector<std::shared_ptr<ServiceResult>>;

    explicit CyclicJobs(std::shared_ptr<ControlUnits> units);
    CyclicJobs(const CyclicJobs&) = delete;
    CyclicJobs& operator=(const CyclicJobs&) = delete;
    // Ends every job and joins the worker.
    ~CyclicJobs();

    // A reload ends every job: the units it talked to start afresh.
    void load(const CyclicSettings& settings);
    // The first cycle runs at once. Returns the job's handle, never 0.
    uint64_t start(std::wstring target, Inputs services, std::chrono::milliseconds cycle);
    // What the job gave since the last take, oldest first. Throws UnknownCyclicJob.
    Results take(uint64_t id);
    // From the next cycle on. Throws UnknownCyclicJob.
    void update(uint64_t id, Inputs services);
    // Once it returns, the job sends nothing more. Throws UnknownCyclicJob.
    void stop(uint64_t id);

private:
    struct Job {
        std::wstring target;
        Inputs services;
        std::chrono::milliseconds cycle{};
        std::chrono::steady_clock::time_point due;
        uint64_t cycles = 0;
        std::deque<std::shared_ptr<ServiceResult>> results;
    };

    void run();
    Job& find(uint64_t id);
    void keep(Job& job, Results results);

    const std::shared_ptr<ControlUnits> units_;
    std::mutex mutex_;
    std::condition_variable wake_;
    std::map<uint64_t, Job> jobs_;
    uint64_t next_ = 1;
    uint64_t busy_ = 0; // the job in a cycle now, outside the lock
    bool closing_ = false;
    std::size_t maxResults_ = CyclicSettings{}.maxResults;
    std::thread worker_; // started with the first job
};

} // namespace Varno::Kel_cpp::Reference
