#include "DataRoot.h"

#include "Describe.h"
#include "ErrorCodes.h"

#include <Kel_cpp/TarnApiException.h>

#include <cstdlib>
#include <mutex>
#include <string>
#include <system_error>

#if defined(_WIN32)
#include <process.h>
#define KEL_GETPID _getpid
#else
#include <unistd.h>
#define KEL_GETPID getpid
#endif

namespace Varno::Kel_cpp::Reference {
namespace {

// The per-process default folder, removed when the process ends. Only a folder this
// process made is removed: a root named by the caller is the caller's.
class ProcessFolder {
public:
    std::filesystem::path path() {
        const std::lock_guard lock(mutex_);
        if (path_.empty()) {
            std::error_code error;
            auto base = std::filesystem::temp_directory_path(error);
            if (error) {
                base = std::filesystem::current_path();
            }
            path_ = base / ("kel_sim-" + std::to_string(KEL_GETPID()));
        }
        return path_;
    }
    void created() {
        const std::lock_guard lock(mutex_);
        made_ = true;
    }
    ~ProcessFolder() {
        if (made_) {
            std::error_code ignored;
            std::filesystem::remove_all(path_, ignored);
        }
    }

private:
    std::mutex mutex_;
    std::filesystem::path path_;
    bool made_ = false;
};

struct RootSetting {
    std::mutex mutex;
    std::filesystem::path folder; // empty: KEL_SIM_DATA_ROOT, else the process folder
};

RootSetting& setting() {
    static RootSetting instance;
    return instance;
}

ProcessFolder& processFolder() {
    static ProcessFolder instance;
    return instance;
}

std::filesystem::path fromEnvironment() {
#if defined(_WIN32)
    const wchar_t* value = _wgetenv(L"KEL_SIM_DATA_ROOT");
#else
    const char* value = std::getenv("KEL_SIM_DATA_ROOT");
#endif
    return value != nullptr ? std::filesystem::path(value) : std::filesystem::path();
}

void create(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error || !std::filesystem::is_directory(folder, error)) {
        throw TarnApiException(DataRootUnavailable, L"The engine's data folder cannot be created",
                               wideFromPath(folder) + L": " + fromUtf8(error.message()));
    }
}

} // namespace

std::filesystem::path dataRoot() {
    std::filesystem::path folder;
    {
        const std::lock_guard lock(setting().mutex);
        folder = setting().folder;
    }
    if (folder.empty()) {
        folder = fromEnvironment();
    }
    if (!folder.empty()) {
        create(folder);
        return folder;
    }
    folder = processFolder().path();
    create(folder);
    processFolder().created();
    return folder;
}

std::filesystem::path dataFolder(std::string_view name) {
    auto folder = dataRoot() / std::filesystem::path(std::string(name));
    create(folder);
    return folder;
}

void setDataRoot(const std::filesystem::path& folder) {
    const std::lock_guard lock(setting().mutex);
    setting().folder = folder;
}

} // namespace Varno::Kel_cpp::Reference
