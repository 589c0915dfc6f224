// The wall clock in UTC, for what a person or another program reads: file times, report
// and upload stamps. Timing inside the simulated vehicle reads VehicleClock instead.
#pragma once

#include <chrono>
#include <string>

namespace Varno::Kel_cpp::Reference {

// "2026-11-22T14:45:04Z" (iso) and "20261122T144504" (compact, for file names).
struct UtcTime {
    std::string iso;
    std::string compact;
    static UtcTime at(std::chrono::system_clock::time_point t);
    static UtcTime now() { return at(std::chrono::system_clock::now()); }
};

} // namespace Varno::Kel_cpp::Reference
