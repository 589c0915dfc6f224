// kel_sim.h: the vehicle description and the asynchronous calls.
#include "Script.h"
#include "SimulatedVehicle.h"

#include <fstream>
#include <kel_sim.h>
#include <sstream>

using namespace Varno::Kel_cpp::Reference;

namespace {

// Checks a description before it is used, so that the caller hears about a bad one.
int32_t useSource(const char* path, const char* json) {
    try {
        std::string text = json != nullptr ? json : "";
        if (path != nullptr && *path != '\0') {
            std::ifstream in(path, std::ios::binary);
            if (!in) {
                return -1;
            }
            std::ostringstream content;
            content << in.rdbuf();
            SimulatedVehicle::check(content.str());
        } else if (!text.empty()) {
            SimulatedVehicle::check(text);
        }
    } catch (const Varno::Kel_cpp::TarnApiException&) {
        return -1;
    }
    setVehicleSource(path != nullptr ? path : "", json != nullptr ? json : "");
    SimulatedVehicle::reloadAll();
    return 0;
}

} // namespace

extern "C" {

int32_t kelsim_setVehicleFile(const char* path) { return useSource(path, nullptr); }

int32_t kelsim_setVehicleJson(const char* json) { return useSource(nullptr, json); }

void kelsim_reloadVehicle(void) { SimulatedVehicle::reloadAll(); }

int64_t kelsim_vehicleJson(char* buffer, size_t size) {
    try {
        const auto description = readVehicleDescription();
        if (!description.problem.empty()) {
            return -1;
        }
        return copyOut(description.root.dump(), buffer, size);
    } catch (const std::exception&) {
        return -1; // nothing may leave a C hook
    }
}

void kelsim_setAsyncReports(const char* operation, uint32_t reports) {
    scriptAsyncReports(operation, reports);
}

void kelsim_setAsyncInterval(const char* operation, uint32_t milliseconds) {
    scriptAsyncInterval(operation, milliseconds);
}

void kelsim_failAsync(const char* operation, uint32_t count, int32_t code, const wchar_t* message,
                      const wchar_t* details) {
    auto error = std::make_shared<Varno::Kel_cpp::KelError>();
    error->code = code;
    error->message = message != nullptr ? message : L"";
    error->details = details != nullptr ? details : L"";
    scriptAsyncFailure(operation, count, std::move(error));
}

void kelsim_throwAsync(const char* operation, uint32_t count, const char* what) {
    scriptAsyncFault(operation, count, what != nullptr ? what : "");
}

int64_t kelsim_runningAsyncCalls(uint64_t handle) {
    const auto vehicle = vehicleByHandle(handle);
    return vehicle ? static_cast<int64_t>(vehicle->async.running()) : -1;
}

} // extern "C"

void Varno::Kel_cpp::Reference::resetVehicleScripts() {
    resetAsyncScripts();
    setVehicleSource("", "");
}
