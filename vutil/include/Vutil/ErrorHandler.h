// The process-wide trace gate: trace lines are produced only while at least one
// listener is registered and the debug trace level is 3 or more.
#pragma once

#include <Vutil/Export.h>

#include <atomic>
#include <memory>
#include <string>

namespace Vutil {

class TraceListener {
public:
    virtual ~TraceListener() = default;
    // source: the unit that traces ("kel_otx", "OTXStream", ...); line: the formatted text.
    virtual void onTrace(const std::string& source, const std::string& line) = 0;

protected:
    TraceListener() = default;
    TraceListener(const TraceListener&) = default;
    TraceListener& operator=(const TraceListener&) = default;
};

class VUTIL_API ErrorHandler {
public:
    // The gate, read without locking on every trace call: the number of registered
    // listeners and the debug trace level. A hot path tests s_listenerCount first, so
    // while nobody listens it pays one load.
    static std::atomic<int> s_listenerCount;
    static std::atomic<int> s_debugTraceLevel;

    static int listenerCount();
    static int debugTraceLevel();
    static void setDebugTraceLevel(int level);

    static void addListener(const std::shared_ptr<TraceListener>& listener);
    static void removeListener(const std::shared_ptr<TraceListener>& listener);

    // Delivers one line to every listener (TraceHelper calls this).
    static void dispatch(const std::string& source, const std::string& line);
};

} // namespace Vutil
