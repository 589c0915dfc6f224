// Calendar arithmetic rather than gmtime: the same on every platform, and any time point
// (also one before 1970, which a file may carry) has a date.
#include "WallClock.h"

#include <cstdio>

namespace Varno::Kel_cpp::Reference {

UtcTime UtcTime::at(std::chrono::system_clock::time_point t) {
    using namespace std::chrono;
    const auto seconds = floor<std::chrono::seconds>(t);
    const auto day = floor<days>(seconds);
    const year_month_day date{day};
    const hh_mm_ss time{seconds - day};
    const int y = static_cast<int>(date.year());
    const auto m = static_cast<unsigned>(date.month());
    const auto d = static_cast<unsigned>(date.day());
    const auto h = static_cast<int>(time.hours().count());
    const auto min = static_cast<int>(time.minutes().count());
    const auto s = static_cast<int>(time.seconds().count());
    char iso[40];
    char compact[40];
    std::snprintf(iso, sizeof iso, "%04d-%02u-%02uT%02d:%02d:%02dZ", y, m, d, h, min, s);
    std::snprintf(compact, sizeof compact, "%04d%02u%02uT%02d%02d%02d", y, m, d, h, min, s);
    return {iso, compact};
}

} // namespace Varno::Kel_cpp::Reference
