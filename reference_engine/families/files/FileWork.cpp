#include "FileWork.h"

#include "DataRoot.h"
#include "Describe.h"
#include "ErrorCodes.h"
#include "SafeFiles.h"
#include "WallClock.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <system_error>

namespace Varno::Kel_cpp::Reference {
namespace fs = std::filesystem;
namespace {

constexpr std::size_t chunkSize = 1 << 20; // what one read or write moves at most

[[noreturn]] void ioFailed(const wchar_t* what, const fs::path& path, const std::error_code& e) {
    throw TarnApiException(FileIoFailed, what,
                           wideFromPath(path.filename()) +
                               (e ? L": " + fromUtf8(e.message()) : L""));
}

struct FileCloser {
    void operator()(std::FILE* f) const { std::fclose(f); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

File open(const fs::path& path, const char* mode) {
#if defined(_WIN32)
    const std::wstring wideMode(mode, mode + std::char_traits<char>::length(mode));
    return File(_wfopen(path.c_str(), wideMode.c_str()));
#else
    return File(std::fopen(path.c_str(), mode));
#endif
}

bool seek(std::FILE* f, uint64_t offset) {
#if defined(_WIN32)
    return _fseeki64(f, static_cast<long long>(offset), SEEK_SET) == 0;
#else
    return fseeko(f, static_cast<off_t>(offset), SEEK_SET) == 0;
#endif
}

void writeAll(std::FILE* f, const std::vector<uint8_t>& data, const fs::path& path) {
    for (std::size_t done = 0; done < data.size();) {
        const std::size_t n = std::min(chunkSize, data.size() - done);
        if (std::fwrite(data.data() + done, 1, n, f) != n) {
            ioFailed(L"The file cannot be written", path, {});
        }
        done += n;
    }
}

// The part file goes whatever happens, unless it was renamed into place.
struct PartFile {
    fs::path path;
    ~PartFile() {
        if (!path.empty()) {
            std::error_code ignored;
            fs::remove(path, ignored);
        }
    }
    // Over an existing file when `replace`; else only where none is, in one step, so
    // that of two callers creating one file exactly one succeeds.
    void placeAs(const fs::path& target, bool replace) {
        const std::error_code e =
            replace ? renameOver(path, target) : renameNoReplace(path, target);
        if (e == std::errc::file_exists) {
            throw TarnApiException(PathExists, L"The file exists", wideFromPath(target.filename()));
        }
        if (e) {
            ioFailed(L"The file cannot be put in place", target, e);
        }
        path.clear();
    }
};

std::wstring isoTime(std::chrono::system_clock::time_point t) {
    return fromUtf8(UtcTime::at(t).iso);
}

// What files and directories share: name, attributes, engine path, modification time.
template <class Entry>
void describeEntry(Entry& out, const Resolved& entry, bool directory,
                   std::chrono::milliseconds* ms) {
    std::error_code e;
    const std::wstring path = entry.enginePath;
    out.name = path.substr(path.rfind(L'/') + 1);
    out.text1 = path;
    const auto status = fs::status(entry.real, e);
    const bool readOnly = !e && (status.permissions() & fs::perms::owner_write) == fs::perms::none;
    out.flag = readOnly;
    out.value1 = (readOnly ? ReadOnlyEntry : 0U) | (out.name.starts_with(L'.') ? HiddenEntry : 0U) |
                 (directory ? DirectoryEntry : 0U) | (isLink(entry) ? LinkEntry : 0U);
    const auto written = fs::last_write_time(entry.real, e);
    if (!e) {
        const auto system = std::chrono::file_clock::to_sys(written);
        out.text2 =
            isoTime(std::chrono::time_point_cast<std::chrono::system_clock::duration>(system));
        if (ms != nullptr) {
            *ms = std::chrono::duration_cast<std::chrono::milliseconds>(system.time_since_epoch());
        }
    }
}

} // namespace

std::shared_ptr<KelError> errorRecord(int32_t code, std::wstring message, std::wstring details) {
    auto e = std::make_shared<KelError>();
    e->code = code;
    e->message = std::move(message);
    e->details = std::move(details);
    return e;
}

bool isLink(const Resolved& entry) { return entry.viaLink; }

std::shared_ptr<FileInfo> describeFile(const Resolved& file) {
    auto out = std::make_shared<FileInfo>();
    std::chrono::milliseconds ms{0};
    describeEntry(*out, file, false, &ms);
    std::error_code e;
    const auto size = fs::file_size(file.real, e);
    out->value2 = e ? 0 : size;
    out->value3 = static_cast<uint64_t>(std::max<int64_t>(ms.count(), 0));
    return out;
}

std::shared_ptr<DirectoryInfo> describeDirectory(const Sandbox& sandbox, const Resolved& directory,
                                                 bool contents, bool recursive, int depth) {
    auto out = std::make_shared<DirectoryInfo>();
    describeEntry(*out, directory, true, nullptr);
    if (!contents || depth >= maxTreeDepth) {
        return out;
    }
    auto entries = list(sandbox, directory);
    for (const auto& f : entries.files) {
        out->files.push_back(describeFile(f));
    }
    for (auto& refused : entries.refused) {
        out->files.push_back(std::move(refused));
    }
    for (const auto& d : entries.directories) {
        out->directories.push_back(
            describeDirectory(sandbox, d, recursive && !isLink(d), recursive, depth + 1));
    }
    out->flag2 = true;
    return out;
}

Listing list(const Sandbox& sandbox, const Resolved& directory) {
    Listing out;
    std::error_code e;
    fs::directory_iterator it(directory.real, e);
    if (e) {
        ioFailed(L"The directory cannot be read", directory.real, e);
    }
    for (; it != fs::directory_iterator(); it.increment(e)) {
        const std::wstring name = wideFromPath(it->path().filename());
        try {
            Resolved entry = sandbox.child(directory, name);
            std::error_code kind;
            if (fs::is_directory(entry.real, kind)) {
                out.directories.push_back(std::move(entry));
            } else if (fs::is_regular_file(entry.real, kind)) {
                out.files.push_back(std::move(entry));
            }
        } catch (const TarnApiException& refusal) {
            auto info = std::make_shared<FileInfo>();
            info->name = name;
            info->text1 = directory.enginePath + L"/" + info->name;
            info->error = errorOf(refusal);
            out.refused.push_back(std::move(info));
        }
    }
    if (e) {
        ioFailed(L"The directory cannot be read", directory.real, e);
    }
    const auto byPath = [](const Resolved& a, const Resolved& b) {
        return a.enginePath < b.enginePath;
    };
    std::sort(out.files.begin(), out.files.end(), byPath);
    std::sort(out.directories.begin(), out.directories.end(), byPath);
    return out;
}

void requireFile(const Resolved& entry) {
    std::error_code e;
    const auto status = fs::status(entry.real, e);
    if (!fs::exists(status)) {
        throw TarnApiException(PathNotFound, L"No such file", entry.enginePath);
    }
    if (!fs::is_regular_file(status)) {
        throw TarnApiException(WrongKind, L"The path is not a file", entry.enginePath);
    }
}

void requireDirectory(const Resolved& entry) {
    std::error_code e;
    const auto status = fs::status(entry.real, e);
    if (!fs::exists(status)) {
        throw TarnApiException(PathNotFound, L"No such directory", entry.enginePath);
    }
    if (!fs::is_directory(status)) {
        throw TarnApiException(WrongKind, L"The path is not a directory", entry.enginePath);
    }
}

std::vector<uint8_t> readRange(const fs::path& file, uint64_t offset, uint32_t length, bool exact) {
    std::error_code e;
    const uint64_t size = fs::file_size(file, e);
    if (e) {
        ioFailed(L"The file cannot be read", file, e);
    }
    if (offset > size || (exact && length > size - offset)) {
        throw TarnApiException(BadFileArgument, L"The file holds fewer bytes than asked for",
                               std::to_wstring(size) + L" bytes");
    }
    const uint64_t available = size - offset;
    if (length == 0 && available > UINT32_MAX) {
        throw TarnApiException(FileTooLarge,
                               L"More than 4 GiB - 1 bytes in one read; read in parts",
                               std::to_wstring(available) + L" bytes");
    }
    const std::size_t wanted = length == 0 ? available : std::min<uint64_t>(length, available);
    std::vector<uint8_t> data(wanted);
    const File f = open(file, "rb");
    if (!f || !seek(f.get(), offset)) {
        ioFailed(L"The file cannot be read", file, {});
    }
    for (std::size_t done = 0; done < wanted;) {
        const std::size_t n =
            std::fread(data.data() + done, 1, std::min(chunkSize, wanted - done), f.get());
        if (n == 0) {
            ioFailed(L"The file cannot be read", file, {});
        }
        done += n;
    }
    return data;
}

void writeData(const fs::path& file, const std::vector<uint8_t>& data, uint32_t mode) {
    std::error_code e;
    const auto status = fs::status(file, e);
    if (fs::is_directory(status)) {
        throw TarnApiException(WrongKind, L"The path is a directory",
                               wideFromPath(file.filename()));
    }
    if (mode == CreateNewFile && fs::exists(status)) {
        throw TarnApiException(PathExists, L"The file exists", wideFromPath(file.filename()));
    }
    if (mode == AppendToFile) {
        const File f = open(file, "ab");
        if (!f) {
            ioFailed(L"The file cannot be written", file, {});
        }
        writeAll(f.get(), data, file);
        if (std::fflush(f.get()) != 0) {
            ioFailed(L"The file cannot be written", file, {});
        }
        return;
    }
    if (mode != ReplaceFile && mode != CreateNewFile) {
        throw TarnApiException(BadFileArgument,
                               L"Unknown write mode; 0 replaces, 1 appends, 2 creates",
                               std::to_wstring(mode));
    }
    PartFile part{partFileBeside(file)};
    {
        const File f = open(part.path, "wb");
        if (!f) {
            ioFailed(L"The file cannot be written", file, {});
        }
        writeAll(f.get(), data, file);
        if (std::fflush(f.get()) != 0) {
            ioFailed(L"The file cannot be written", file, {});
        }
    }
    part.placeAs(file, mode == ReplaceFile);
}

void copyWhole(const fs::path& from, const fs::path& to, bool overwrite) {
    std::error_code e;
    const auto status = fs::status(to, e);
    if (fs::is_directory(status)) {
        throw TarnApiException(WrongKind, L"A directory stands where the copy goes",
                               wideFromPath(to.filename()));
    }
    if (fs::exists(status) && !overwrite) {
        throw TarnApiException(PathExists, L"The target exists", wideFromPath(to.filename()));
    }
    PartFile part{partFileBeside(to)};
    fs::copy_file(from, part.path, fs::copy_options::overwrite_existing, e);
    if (e) {
        ioFailed(L"The file cannot be copied", from, e);
    }
    part.placeAs(to, overwrite);
}

} // namespace Varno::Kel_cpp::Reference
