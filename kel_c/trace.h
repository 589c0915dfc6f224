// The binding's trace gate: trace lines at level 3 are formatted only while it is open.
// It mirrors the utility library's gate (listeners registered and the debug level), kept
// current by that library, so that each hot path pays one load rather than a call.
#pragma once

#include <atomic>

namespace kel::trace {

extern std::atomic<int> gate; // the debug trace level while a listener is registered, else 0

inline bool enabled() { return gate.load(std::memory_order_relaxed) >= 3; }

} // namespace kel::trace
