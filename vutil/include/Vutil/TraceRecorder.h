// A listener that keeps every line it hears, for tests and diagnostics.
#pragma once

#include <Vutil/ErrorHandler.h>
#include <Vutil/Export.h>

#include <mutex>
#include <string>
#include <vector>

namespace Vutil {

struct TraceLine {
    std::string source;
    std::string text;
};

class VUTIL_API TraceRecorder final : public TraceListener {
public:
    void onTrace(const std::string& source, const std::string& line) override;
    std::vector<TraceLine> lines() const;
    void clear();

private:
    mutable std::mutex mutex_;
    std::vector<TraceLine> lines_;
};

} // namespace Vutil
