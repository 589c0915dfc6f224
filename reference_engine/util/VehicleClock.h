// Vehicle time: the steady clock plus whatever tests have moved it on by. Every timeout
// of the simulated vehicle (a diagnostic session falling back to default, a security
// lockout, later flash and measurement timing) reads this clock, so that a test scripts
// the passing of time with kelsim_advanceClock instead of sleeping.
//
// One clock for the process, monotonic: advancing never goes back, and kelsim_reset
// leaves it where it is (a unit's deadline taken before a reset stays a deadline).
#pragma once

#include <cstdint>

namespace Varno::Kel_cpp::Reference::VehicleClock {

// Milliseconds since the clock was first read in this process.
int64_t nowMs();

// Moves vehicle time on by `milliseconds` at once.
void advance(uint64_t milliseconds);

// True once vehicle time has reached `deadlineMs` (a value of nowMs() plus a delay).
inline bool reached(int64_t deadlineMs) { return nowMs() >= deadlineMs; }

} // namespace Varno::Kel_cpp::Reference::VehicleClock
