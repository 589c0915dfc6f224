// Encoding time per byte from 1 KB to 16 MB, without a benchmark library so that it runs
// on the Windows build under wine too. Each size is encoded repeatedly for at least
// 0.2 s; the table shows nanoseconds per byte, which stays flat when the buffer grows
// geometrically.
#include "../workloads.h"

#include <chrono>
#include <cstdio>

int main() {
    std::printf("%10s %12s %10s\n", "bytes", "ns/byte", "runs");
    for (std::size_t size = 1024; size <= (16U << 20); size *= 4) {
        const auto records = kel_bench::recordsFor(size);
        std::size_t bytes = 0;
        int runs = 0;
        const auto start = std::chrono::steady_clock::now();
        auto elapsed = std::chrono::steady_clock::duration{};
        while (elapsed < std::chrono::milliseconds(200)) {
            bytes += kel_bench::encode(records);
            ++runs;
            elapsed = std::chrono::steady_clock::now() - start;
        }
        const double ns = std::chrono::duration<double, std::nano>(elapsed).count();
        std::printf("%10zu %12.3f %10d\n", bytes / static_cast<std::size_t>(runs),
                    ns / static_cast<double>(bytes), runs);
    }
    return 0;
}
