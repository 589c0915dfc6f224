#include "Cyclic.h"

#include "ControlUnits.h"
#include "Describe.h"
#include "ErrorCodes.h"
#include "Messages.h"
#include "VehicleDescription.h"

#include <Kel_cpp/TarnApiException.h>

#include <algorithm>
#include <utility>

namespace Varno::Kel_cpp::Reference {

CyclicSettings CyclicSettings::parse(const nlohmann::json& section) {
    try {
        CyclicSettings s;
        s.maxResults = wholeNumber(section, "cyclicResults", s.maxResults, 1, 1000000);
        return s;
    } catch (const std::exception& e) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               L"services: " + fromUtf8(e.what()));
    }
}

CyclicJobs::CyclicJobs(std::shared_ptr<ControlUnits> units) : units_(std::move(units)) {}

CyclicJobs::~CyclicJobs() {
    {
        const std::lock_guard lock(mutex_);
        closing_ = true;
        jobs_.clear();
    }
    wake_.notify_all();
    if (worker_.joinable()) {
        worker_.join();
    }
}

void CyclicJobs::load(const CyclicSettings& settings) {
    std::unique_lock lock(mutex_);
    maxResults_ = settings.maxResults;
    jobs_.clear();
    wake_.wait(lock, [&] { return busy_ == 0; });
}

uint64_t CyclicJobs::start(std::wstring target, Inputs services, std::chrono::milliseconds cycle) {
    const std::lock_guard lock(mutex_);
    const auto id = next_++;
    Job job;
    job.target = std::move(target);
    job.services = std::move(services);
    job.cycle = cycle;
    job.due = std::chrono::steady_clock::now();
    jobs_.emplace(id, std::move(job));
    if (!worker_.joinable()) {
        worker_ = std::thread([this] { run(); });
    }
    wake_.notify_all();
    return id;
}

CyclicJobs::Job& CyclicJobs::find(uint64_t id) {
    const auto found = jobs_.find(id);
    if (found == jobs_.end()) {
        throw TarnApiException(UnknownCyclicJob, L"No cyclic job has this handle",
                               L"cyclic " + std::to_wstring(id));
    }
    return found->second;
}

CyclicJobs::Results CyclicJobs::take(uint64_t id) {
    const std::lock_guard lock(mutex_);
    auto& job = find(id);
    Results out(job.results.begin(), job.results.end());
    job.results.clear();
    return out;
}

void CyclicJobs::update(uint64_t id, Inputs services) {
    const std::lock_guard lock(mutex_);
    find(id).services = std::move(services);
}

void CyclicJobs::stop(uint64_t id) {
    std::unique_lock lock(mutex_);
    find(id);
    jobs_.erase(id);
    wake_.wait(lock, [&] { return busy_ != id; });
}

// Past the bound the oldest results go first: the newest say how the unit is now.
void CyclicJobs::keep(Job& job, Results results) {
    for (auto& r : results) {
        job.results.push_back(std::move(r));
    }
    while (job.results.size() > maxResults_) {
        job.results.pop_front();
    }
}

void CyclicJobs::run() {
    std::unique_lock lock(mutex_);
    while (!closing_) {
        const auto now = std::chrono::steady_clock::now();
        auto due = jobs_.end();
        for (auto j = jobs_.begin(); j != jobs_.end(); ++j) {
            if (due == jobs_.end() || j->second.due < due->second.due) {
                due = j;
            }
        }
        if (due == jobs_.end()) {
            wake_.wait(lock);
            continue;
        }
        if (due->second.due > now) {
            // A copy: the job may be stopped, and its time point gone, while this waits.
            const auto until = due->second.due;
            wake_.wait_until(lock, until);
            continue;
        }
        const auto id = due->first;
        auto& job = due->second;
        const auto cycle = ++job.cycles;
        // A late cycle is not made up for: the next one is a whole cycle away.
        job.due = std::max(job.due + job.cycle, now);
        const auto target = job.target;
        const auto services = job.services;
        busy_ = id;
        lock.unlock();
        Results results;
        try {
            results = units_->talk([&](Bus& bus) {
                Results out;
                const auto ecu = std::find_if(bus.ecus.begin(), bus.ecus.end(),
                                              [&](const Ecu& e) { return e.name == target; });
                for (const auto& input : services) {
                    if (ecu == bus.ecus.end()) {
                        break;
                    }
                    out.push_back(Messages::execute(bus, *ecu, input ? *input : ServiceInput{}));
                }
                return out;
            });
        } catch (...) { // NOLINT(bugprone-empty-catch)
            // The units cannot be used (a description that is not valid); a reload that
            // made them so also ends this job. Anything else thrown here would end the
            // process from this thread: the cycle just reports nothing.
        }
        for (auto& r : results) {
            if (!r->request) { // not sent: the request carries the cycle all the same
                r->request = std::make_shared<RequestResult>();
            }
            r->request->value2 = cycle;
        }
        lock.lock();
        busy_ = 0;
        const auto still = jobs_.find(id);
        if (still != jobs_.end()) {
            keep(still->second, std::move(results));
        }
        wake_.notify_all();
    }
}

} // namespace Varno::Kel_cpp::Reference
