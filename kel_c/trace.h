// The binding's trace gate: trace lines at level 3 are formatted only while it is open,
// that is while the utility library's ErrorHandler has a listener and its debug trace
// level is at least 3. Both are statics of ErrorHandler, read here directly and without
// locking: while nobody listens, a hot path pays one load and no call.
#pragma once

#include <Vutil/ErrorHandler.h>

#include <atomic>

namespace kel::trace {

inline bool enabled() {
    return Vutil::ErrorHandler::s_listenerCount.load(std::memory_order_relaxed) > 0 &&
           Vutil::ErrorHandler::s_debugTraceLevel.load(std::memory_order_relaxed) >= 3;
}

} // namespace kel::trace
