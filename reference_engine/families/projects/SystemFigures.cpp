#include "SystemFigures.h"

#include "DataRoot.h"
#include "Describe.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <system_error>
#include <thread>

#if defined(_WIN32)
#include <windows.h>
// windows.h first: these need its types.
#include <psapi.h>
#include <tlhelp32.h>
#else
#include <unistd.h>

#include <sys/utsname.h>
#endif

namespace Varno::Kel_cpp::Reference {

#if defined(_WIN32)

HostFigures hostFigures() {
    HostFigures host;
    SYSTEM_INFO info{};
    GetNativeSystemInfo(&info);
    host.processors = info.dwNumberOfProcessors;
    host.pageSize = info.dwPageSize;
    host.system = L"Windows";
    switch (info.wProcessorArchitecture) {
    case PROCESSOR_ARCHITECTURE_AMD64:
        host.architecture = L"x86_64";
        break;
    case PROCESSOR_ARCHITECTURE_ARM64:
        host.architecture = L"aarch64";
        break;
    case PROCESSOR_ARCHITECTURE_INTEL:
        host.architecture = L"x86";
        break;
    default:
        host.architecture = L"unknown";
    }
    // GetVersionEx answers with the version the program is manifested for; ntdll tells
    // the truth.
    using RtlGetVersionFunction = LONG(WINAPI*)(OSVERSIONINFOW*);
    if (HMODULE ntdll = GetModuleHandleW(L"ntdll.dll")) {
        // Through void (*)(), the one cast between function types that GCC takes as meant.
        auto rtlGetVersion = reinterpret_cast<RtlGetVersionFunction>(
            reinterpret_cast<void (*)()>(GetProcAddress(ntdll, "RtlGetVersion")));
        OSVERSIONINFOW version{};
        version.dwOSVersionInfoSize = sizeof version;
        if (rtlGetVersion != nullptr && rtlGetVersion(&version) == 0) {
            host.release = std::to_wstring(version.dwMajorVersion) + L"." +
                           std::to_wstring(version.dwMinorVersion) + L"." +
                           std::to_wstring(version.dwBuildNumber);
        }
    }
    wchar_t name[MAX_COMPUTERNAME_LENGTH + 1] = {};
    DWORD size = MAX_COMPUTERNAME_LENGTH + 1;
    if (GetComputerNameW(name, &size)) {
        host.hostName.assign(name, size);
    }
    return host;
}

ProcessFigures processFigures() {
    ProcessFigures process;
    process.id = GetCurrentProcessId();
    wchar_t path[MAX_PATH] = {};
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    process.executable.assign(path, length);
    HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    if (snapshot != INVALID_HANDLE_VALUE) {
        THREADENTRY32 entry{};
        entry.dwSize = sizeof entry;
        for (BOOL more = Thread32First(snapshot, &entry); more;
             more = Thread32Next(snapshot, &entry)) {
            if (entry.th32OwnerProcessID == process.id) {
                process.threads.push_back({entry.th32ThreadID, L""});
            }
        }
        CloseHandle(snapshot);
    }
    PROCESS_MEMORY_COUNTERS_EX counters{};
    counters.cb = sizeof counters;
    if (GetProcessMemoryInfo(GetCurrentProcess(),
                             reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters),
                             sizeof counters)) {
        process.residentBytes = counters.WorkingSetSize;
        process.peakResidentBytes = counters.PeakWorkingSetSize;
        process.virtualBytes = counters.PrivateUsage;
    }
    return process;
}

#else

namespace {

std::string firstLine(const std::filesystem::path& file) {
    std::ifstream in(file);
    std::string line;
    std::getline(in, line);
    return line;
}

// A "VmRSS:   1234 kB" line of /proc/self/status, in bytes.
uint64_t statusBytes(const std::string& status, const std::string& key) {
    const auto at = status.find("\n" + key + ":");
    if (at == std::string::npos) {
        return 0;
    }
    std::istringstream line(status.substr(at + key.size() + 2));
    uint64_t kilobytes = 0;
    line >> kilobytes;
    return kilobytes * 1024;
}

} // namespace

HostFigures hostFigures() {
    HostFigures host;
    host.processors = std::thread::hardware_concurrency();
    const long page = sysconf(_SC_PAGESIZE);
    host.pageSize = page > 0 ? static_cast<uint32_t>(page) : 0;
    utsname names{};
    if (uname(&names) == 0) {
        host.system = fromUtf8(names.sysname);
        host.release = fromUtf8(names.release);
        host.hostName = fromUtf8(names.nodename);
        host.architecture = fromUtf8(names.machine);
    }
    return host;
}

ProcessFigures processFigures() {
    ProcessFigures process;
    process.id = static_cast<uint32_t>(getpid());
    std::error_code error;
    process.executable = wideFromPath(std::filesystem::read_symlink("/proc/self/exe", error));
    for (const auto& task : std::filesystem::directory_iterator("/proc/self/task", error)) {
        ThreadFigure thread;
        thread.id = static_cast<uint32_t>(std::stoul(task.path().filename().string()));
        thread.name = fromUtf8(firstLine(task.path() / "comm"));
        process.threads.push_back(std::move(thread));
    }
    std::ifstream in("/proc/self/status");
    std::ostringstream status;
    status << "\n" << in.rdbuf();
    process.residentBytes = statusBytes(status.str(), "VmRSS");
    process.virtualBytes = statusBytes(status.str(), "VmSize");
    process.peakResidentBytes = statusBytes(status.str(), "VmHWM");
    return process;
}

#endif

} // namespace Varno::Kel_cpp::Reference
