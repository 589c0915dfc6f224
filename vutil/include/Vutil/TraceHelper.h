// printf-style trace lines, delivered to the ErrorHandler's listeners.
#pragma once

#include <Vutil/ErrorHandler.h>
#include <Vutil/Export.h>

namespace Vutil {

class VUTIL_API TraceHelper {
public:
    // True when a line at `level` would reach anyone; callers test it before they
    // spend time formatting.
    static bool enabled(int level = 3);

#if defined(__GNUC__)
    __attribute__((format(printf, 2, 3)))
#endif
    static void
    trace(const char* source, const char* format, ...);
};

} // namespace Vutil
