#include "SafeFiles.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>

#if defined(_WIN32)
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>

#include <sys/stat.h>
#endif

namespace Varno::Kel_cpp::Reference {
namespace fs = std::filesystem;
namespace {

std::error_code lastError() {
#if defined(_WIN32)
    const DWORD code = GetLastError();
    if (code == ERROR_ALREADY_EXISTS || code == ERROR_FILE_EXISTS) {
        return std::make_error_code(std::errc::file_exists);
    }
    if (code == 0) {
        return std::make_error_code(std::errc::io_error);
    }
    return {static_cast<int>(code), std::system_category()};
#else
    return {errno != 0 ? errno : EIO, std::generic_category()}; // never "no error"
#endif
}

struct FileCloser {
    void operator()(std::FILE* f) const { std::fclose(f); }
};

} // namespace

fs::path partFileBeside(const fs::path& target) {
    static std::atomic<uint64_t> counter{0};
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    return target.parent_path() /
           (".kel-part-" + std::to_string(now % 1000000007) + "-" + std::to_string(counter++));
}

std::error_code renameOver(const fs::path& from, const fs::path& to) {
#if defined(_WIN32)
    // A reader that opened the target without FILE_SHARE_DELETE (any CRT stream does) keeps
    // it from being replaced for as long as it holds it open. Readers hold it briefly, so the
    // rename is retried for up to about two seconds before the save is reported as failed.
    for (int attempt = 0;; ++attempt) {
        if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING) != 0) {
            return {};
        }
        const DWORD code = GetLastError();
        const bool held = code == ERROR_ACCESS_DENIED || code == ERROR_SHARING_VIOLATION ||
                          code == ERROR_LOCK_VIOLATION;
        if (!held || attempt == 200) {
            SetLastError(code);
            return lastError();
        }
        Sleep(attempt < 10 ? 0 : 10);
    }
#else
    std::error_code e;
    fs::rename(from, to, e);
    return e;
#endif
}

std::error_code renameNoReplace(const fs::path& from, const fs::path& to) {
#if defined(_WIN32)
    // Without MOVEFILE_REPLACE_EXISTING the move fails on an existing target.
    if (MoveFileExW(from.c_str(), to.c_str(), 0) == 0) {
        return lastError();
    }
    return {};
#else
#if defined(__linux__)
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return {};
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return lastError();
    }
#endif
    // A file system without the no-replace rename: a hard link fails on a taken name, and
    // so does making a directory, which an atomic rename then replaces while it is empty.
    struct stat status {};
    if (::lstat(from.c_str(), &status) != 0) {
        return lastError();
    }
    if (S_ISDIR(status.st_mode)) {
        if (::mkdir(to.c_str(), 0700) != 0) {
            return lastError();
        }
        if (::rename(from.c_str(), to.c_str()) != 0) {
            const auto e = lastError();
            ::rmdir(to.c_str());
            return e;
        }
        return {};
    }
    if (::link(from.c_str(), to.c_str()) != 0) {
        return lastError();
    }
    ::unlink(from.c_str());
    return {};
#endif
}

std::error_code writeWhole(const fs::path& target, std::string_view bytes, bool replace) {
    const fs::path part = partFileBeside(target);
    std::error_code e;
    {
#if defined(_WIN32)
        std::unique_ptr<std::FILE, FileCloser> f(_wfopen(part.c_str(), L"wb"));
#else
        std::unique_ptr<std::FILE, FileCloser> f(std::fopen(part.c_str(), "wb"));
#endif
        if (!f) {
            return lastError();
        }
        if (std::fwrite(bytes.data(), 1, bytes.size(), f.get()) != bytes.size() ||
            std::fflush(f.get()) != 0) {
            e = lastError();
        }
        if (std::fclose(f.release()) != 0 && !e) {
            e = lastError();
        }
    }
    if (!e) {
        e = replace ? renameOver(part, target) : renameNoReplace(part, target);
    }
    if (e) {
        std::error_code ignored;
        fs::remove(part, ignored);
    }
    return e;
}

} // namespace Varno::Kel_cpp::Reference
