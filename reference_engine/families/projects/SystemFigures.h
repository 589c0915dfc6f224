// What the host and the engine's own process report about themselves: real figures, read
// from the operating system each time they are asked for.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

struct HostFigures {
    uint32_t processors = 0;
    uint32_t pageSize = 0;
    std::wstring system;  // "Linux", "Windows"
    std::wstring release; // the kernel's or the system's version
    std::wstring hostName;
    std::wstring architecture;
};

struct ThreadFigure {
    uint32_t id = 0;
    std::wstring name; // empty where the system names none
};

struct ProcessFigures {
    uint32_t id = 0;
    std::wstring executable;
    std::vector<ThreadFigure> threads;
    uint64_t residentBytes = 0;
    uint64_t virtualBytes = 0;
    uint64_t peakResidentBytes = 0;
};

HostFigures hostFigures();
ProcessFigures processFigures();

} // namespace Varno::Kel_cpp::Reference
