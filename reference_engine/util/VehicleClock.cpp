#include "VehicleClock.h"

#include <atomic>
#include <chrono>
#include <kel_sim.h>

namespace Varno::Kel_cpp::Reference::VehicleClock {
namespace {

using Steady = std::chrono::steady_clock;

std::atomic<int64_t> advancedMs{0};

Steady::time_point start() {
    static const Steady::time_point first = Steady::now();
    return first;
}

} // namespace

int64_t nowMs() {
    const auto real =
        std::chrono::duration_cast<std::chrono::milliseconds>(Steady::now() - start()).count();
    return real + advancedMs.load();
}

void advance(uint64_t milliseconds) { advancedMs += static_cast<int64_t>(milliseconds); }

} // namespace Varno::Kel_cpp::Reference::VehicleClock

extern "C" {

void kelsim_advanceClock(uint64_t milliseconds) {
    Varno::Kel_cpp::Reference::VehicleClock::advance(milliseconds);
}

int64_t kelsim_clockMs(void) { return Varno::Kel_cpp::Reference::VehicleClock::nowMs(); }

} // extern "C"
