// What the engine reports about itself: real figures of the host, of its process, of the
// simulated bus and of its own calls.
#include "DataRoot.h"
#include "Describe.h"
#include "ErrorCodes.h"
#include "Projects.h"
#include "SimulatedVehicle.h"
#include "SystemFigures.h"

#include <chrono>
#include <filesystem>
#include <system_error>
#include <utility>

namespace Varno::Kel_cpp::Reference {

std::wstring Projects::getVersion() {
    return std::wstring(L"kel_cpp ") + engineVersion + L" (simulated vehicle)";
}

std::shared_ptr<SystemInfo> Projects::getSystemInfo() {
    const auto host = hostFigures();
    auto info = std::make_shared<SystemInfo>();
    info->value1 = host.processors;
    info->value2 = host.pageSize;
    info->text1 = host.system;
    info->value3 = static_cast<uint32_t>(sizeof(void*) * 8);
    info->text2 = host.release;
    info->text3 = host.hostName;
    info->text4 = host.architecture;
    return info;
}

std::shared_ptr<ProcessInfo> Projects::getProcessInfo() {
    const auto figures = processFigures();
    auto process = std::make_shared<ProcessEntry>();
    process->value = figures.id;
    process->text = figures.executable;
    for (const auto& t : figures.threads) {
        auto thread = std::make_shared<ProcessThread>();
        thread->id = t.id;
        thread->name = t.name;
        process->items1.push_back(std::move(thread));
    }
    for (const auto& [name, bytes] : {std::pair{L"resident", figures.residentBytes},
                                      std::pair{L"virtual", figures.virtualBytes},
                                      std::pair{L"peak resident", figures.peakResidentBytes}}) {
        auto memory = std::make_shared<ProcessMemory>();
        memory->name = name;
        memory->bytes = bytes;
        process->items2.push_back(std::move(memory));
    }
    auto info = std::make_shared<ProcessInfo>();
    info->processes.push_back(std::move(process));
    info->flag1 = sizeof(void*) == 8;
    try {
        vehicle_->lifecycle.requireInitialized();
        info->flag2 = true;
    } catch (const TarnApiException&) {
        info->flag2 = false;
    }
    const std::lock_guard lock(state_.mutex_);
    info->text = state_.statusText_;
    return info;
}

std::shared_ptr<TransmissionInfo> Projects::getTransmissionInfo() {
    const auto traffic = vehicle_->units->traffic();
    auto info = std::make_shared<TransmissionInfo>();
    info->value1 = traffic.requests;
    info->value2 = traffic.responses;
    info->value3 = traffic.bytesSent;
    info->value4 = traffic.bytesReceived;
    return info;
}

std::shared_ptr<StatusInfo> Projects::getStatusInfo() {
    using std::chrono::duration_cast;
    using std::chrono::milliseconds;
    auto info = std::make_shared<StatusInfo>();
    info->value1 = clock_->calls();
    info->value2 = clock_->failed();
    info->value4 = clock_->totalMicros();
    const std::lock_guard lock(state_.mutex_);
    info->value3 = static_cast<uint64_t>(
        duration_cast<milliseconds>(std::chrono::steady_clock::now() - state_.started_).count());
    info->value5 = state_.loaded_.size();
    info->value6 = static_cast<uint32_t>(state_.projects_.size());
    info->value7 = state_.statusTextChanges_;
    info->value8 = static_cast<uint64_t>(
        duration_cast<milliseconds>(state_.startedAt_.time_since_epoch()).count());
    return info;
}

// The folder is made on first use, so a caller may write there at once.
std::wstring Projects::getCurrentDebugTraceDirectory() {
    const auto folder = dataFolder("traces") / "debug";
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) {
        throw TarnApiException(DataRootUnavailable, L"The debug trace folder cannot be made",
                               wideFromPath(folder) + L": " + fromUtf8(error.message()));
    }
    return wideFromPath(folder);
}

// Posted under the state's lock, so that the events keep the order of the changes.
void Projects::setStatusText(const std::wstring& text) {
    const std::lock_guard lock(state_.mutex_);
    state_.statusText_ = text;
    ++state_.statusTextChanges_;
    post(*vehicle_, EventKind::StatusText, 0, text, L"");
}

} // namespace Varno::Kel_cpp::Reference
