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
    // Read without locking on every trace call; set by configuration or tests.
    static int listenerCount();
    static int debugTraceLevel();
    static void setDebugTraceLevel(int level);

    static void addListener(const std::shared_ptr<TraceListener>& listener);
    static void removeListener(const std::shared_ptr<TraceListener>& listener);

    // A mirror of the gate for hot paths: *mirror holds the debug trace level while a
    // listener is registered and 0 otherwise, kept current on every change, so that a
    // caller tests it with one load instead of a call into this library. Remove it before
    // the variable goes away.
    static void addGateMirror(std::atomic<int>* mirror);
    static void removeGateMirror(std::atomic<int>* mirror);

    // Delivers one line to every listener (TraceHelper calls this).
    static void dispatch(const std::string& source, const std::string& line);
};

} // namespace Vutil
