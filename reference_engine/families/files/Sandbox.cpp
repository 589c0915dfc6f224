#include "Sandbox.h"

#include "DataRoot.h"
#include "ErrorCodes.h"

#include <Kel_cpp/TarnApiException.h>

#include <algorithm>
#include <array>
#include <cwctype>
#include <system_error>

#if defined(_WIN32)
#include <windows.h>
#endif

namespace Varno::Kel_cpp::Reference {
namespace fs = std::filesystem;
namespace {

// The path as the error's details show it: control characters spelled out, long
// paths cut, so that a refused path cannot garble the record that reports it.
std::wstring shown(const std::wstring& path) {
    std::wstring out;
    for (const wchar_t c : path.substr(0, 160)) {
        if (c < 0x20 || c == 0x7F) {
            const wchar_t* digits = L"0123456789ABCDEF";
            out += L"\\x";
            out += digits[(c >> 4) & 0xF];
            out += digits[c & 0xF];
        } else {
            out += c;
        }
    }
    return path.size() > 160 ? out + L"..." : out;
}

[[noreturn]] void refuse(ErrorCode code, const wchar_t* message, const std::wstring& path) {
    throw TarnApiException(code, message, shown(path));
}

bool isSeparator(wchar_t c) { return c == L'/' || c == L'\\'; }

bool hasControl(const std::wstring& text) {
    return std::any_of(text.begin(), text.end(), [](wchar_t c) { return c < 0x20 || c == 0x7F; });
}

wchar_t upperAscii(wchar_t c) { return c >= L'a' && c <= L'z' ? c - L'a' + L'A' : c; }

// Windows reserves these names in every folder, with any extension.
bool isDeviceName(const std::wstring& name) {
    std::wstring base = name.substr(0, name.find(L'.'));
    while (!base.empty() && base.back() == L' ') {
        base.pop_back();
    }
    std::transform(base.begin(), base.end(), base.begin(), upperAscii);
    static const std::array<const wchar_t*, 4> plain{L"CON", L"PRN", L"AUX", L"NUL"};
    if (std::find_if(plain.begin(), plain.end(), [&](const wchar_t* d) { return base == d; }) !=
        plain.end()) {
        return true;
    }
    return base.size() == 4 && (base.starts_with(L"COM") || base.starts_with(L"LPT")) &&
           base[3] >= L'1' && base[3] <= L'9';
}

wchar_t foldCase(wchar_t c) {
#if defined(_WIN32)
    wchar_t buffer[1] = {c};
    CharUpperBuffW(buffer, 1);
    return buffer[0];
#else
    return c;
#endif
}

bool sameName(const fs::path& a, const fs::path& b) {
#if defined(_WIN32)
    const std::wstring x = a.native();
    const std::wstring y = b.native();
    return CompareStringOrdinal(x.c_str(), static_cast<int>(x.size()), y.c_str(),
                                static_cast<int>(y.size()), TRUE) == CSTR_EQUAL;
#else
    return a == b;
#endif
}

enum class Probe { Missing, Plain, Link };

// What `path` is, without following a link at its end.
Probe probe(const fs::path& path) {
#if defined(_WIN32)
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        return Probe::Missing;
    }
    return (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 ? Probe::Link : Probe::Plain;
#else
    std::error_code error;
    const auto status = fs::symlink_status(path, error);
    if (error || status.type() == fs::file_type::not_found) {
        return Probe::Missing;
    }
    return fs::is_symlink(status) ? Probe::Link : Probe::Plain;
#endif
}

// One step down from the real directory `current`: a link is followed and must stay
// inside `root`.
fs::path step(const fs::path& current, const std::wstring& name, const PublicDirectory& root,
              bool& exists, bool& link) {
    link = false;
    fs::path next = current / pathFromWide(name);
    switch (probe(next)) {
    case Probe::Missing:
        exists = false;
        return next;
    case Probe::Plain:
        exists = true;
        return next;
    case Probe::Link:
        break;
    }
    fs::path target = realPath(next);
    if (!within(target, root.folder)) {
        throw TarnApiException(OutsideSandbox, L"The path leads outside its public directory",
                               root.name + L": a link leads outside");
    }
    exists = true;
    link = true;
    return target;
}

// Throws EngineFolder when `real` reaches an engine area from outside it: only a root
// that is that area itself (the update store's own) may work in it.
void guardEngineAreas(const PublicDirectory& root, const fs::path& real) {
    if (root.dataRoot.empty()) {
        return;
    }
    const auto area = engineArea(root.dataRoot, real);
    if (area && !within(root.folder, *area)) {
        refuse(EngineFolder, L"The path reaches the engine's own files",
               root.name + L": " + wideFromPath(area->filename()) + L" is the engine's");
    }
}

} // namespace

namespace {
// Folders below the data root that are the engine's alone, and the files of the engine's
// configuration (with their temporary files, which share the name's start).
constexpr const char* engineFolders[] = {"users", "certificates", "interfaces", "updates"};
constexpr const char* engineConfiguration = "configuration";
constexpr const wchar_t* engineConfigurationFiles[] = {L"engine.json", L"mox.json"};

bool startsWithName(const std::wstring& name, const std::wstring& start) {
    return name.size() >= start.size() && samePublicName(name.substr(0, start.size()), start);
}
} // namespace

std::optional<fs::path> engineArea(const fs::path& dataRoot, const fs::path& real) {
    if (!within(real, dataRoot)) {
        return std::nullopt;
    }
    for (const char* folder : engineFolders) {
        if (within(real, dataRoot / folder)) {
            return dataRoot / folder;
        }
    }
    const fs::path configuration = dataRoot / engineConfiguration;
    if (!within(real, configuration) || within(configuration, real)) {
        return std::nullopt;
    }
    // The first name below the configuration folder.
    auto name = real.begin();
    for (auto c = configuration.begin(); c != configuration.end(); ++c) {
        if (!c->empty()) {
            ++name;
        }
    }
    const std::wstring first = wideFromPath(*name);
    for (const wchar_t* file : engineConfigurationFiles) {
        if (startsWithName(first, file)) {
            return configuration / *name;
        }
    }
    return std::nullopt;
}

bool holdsEngineArea(const fs::path& dataRoot, const fs::path& folder) {
    for (const char* name : engineFolders) {
        if (within(dataRoot / name, folder)) {
            return true;
        }
    }
    return within(dataRoot / engineConfiguration, folder);
}

bool samePublicName(const std::wstring& a, const std::wstring& b) {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](wchar_t x, wchar_t y) {
               return std::towlower(static_cast<wint_t>(x)) ==
                      std::towlower(static_cast<wint_t>(y));
           });
}

void checkName(const std::wstring& name) {
    if (name.empty()) {
        refuse(InvalidPath, L"An empty name", name);
    }
    if (hasControl(name)) {
        refuse(ControlCharacterInPath, L"The path holds a control character", name);
    }
    if (name.size() > maxNameLength) {
        refuse(PathTooLong, L"A name of the path is too long", name);
    }
    if (name == L"..") {
        refuse(ParentSegment, L"The path holds a .. segment", name);
    }
    if (name == L"." || name.find_first_of(L"/\\<>:\"|?*") != std::wstring::npos) {
        refuse(InvalidPath, L"The name is not a plain file name", name);
    }
    if (name.back() == L'.' || name.back() == L' ' || isDeviceName(name)) {
        refuse(InvalidPath, L"The name is reserved on Windows", name);
    }
}

std::vector<std::wstring> splitEnginePath(const std::wstring& path) {
    if (path.empty()) {
        refuse(InvalidPath, L"An empty path", path);
    }
    if (hasControl(path)) {
        refuse(ControlCharacterInPath, L"The path holds a control character", path);
    }
    if (path.size() > maxPathLength) {
        refuse(PathTooLong, L"The path is too long", path);
    }
    if (path.size() >= 2 && isSeparator(path[0]) && isSeparator(path[1])) {
        refuse(UncPath, L"A network (UNC) path is not a path of the engine", path);
    }
    if (isSeparator(path[0])) {
        refuse(AbsolutePath, L"An absolute path is not a path of the engine", path);
    }
    if (path.size() >= 2 && path[1] == L':' && upperAscii(path[0]) >= L'A' &&
        upperAscii(path[0]) <= L'Z') {
        refuse(DriveLetterPath, L"A path with a drive letter is not a path of the engine", path);
    }
    std::vector<std::wstring> names;
    std::size_t start = 0;
    while (start <= path.size()) {
        std::size_t end = start;
        while (end < path.size() && !isSeparator(path[end])) {
            ++end;
        }
        std::wstring name = path.substr(start, end - start);
        if (!name.empty() && name != L".") {
            if (name == L"..") {
                refuse(ParentSegment, L"The path holds a .. segment", path);
            }
            checkName(name);
            names.push_back(std::move(name));
        }
        start = end + 1;
    }
    if (names.empty()) {
        refuse(InvalidPath, L"The path names nothing", path);
    }
    return names;
}

bool globMatch(const std::wstring& pattern, const std::wstring& name) {
    std::size_t p = 0;
    std::size_t n = 0;
    std::size_t star = std::wstring::npos;
    std::size_t resume = 0;
    while (n < name.size()) {
        if (p < pattern.size() &&
            (pattern[p] == L'?' || foldCase(pattern[p]) == foldCase(name[n]))) {
            ++p;
            ++n;
        } else if (p < pattern.size() && pattern[p] == L'*') {
            star = p++;
            resume = n;
        } else if (star != std::wstring::npos) {
            p = star + 1;
            n = ++resume;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == L'*') {
        ++p;
    }
    return p == pattern.size();
}

fs::path realPath(const fs::path& path) {
#if defined(_WIN32)
    HANDLE handle =
        CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        throw TarnApiException(OutsideSandbox, L"A link of the path leads nowhere",
                               wideFromPath(path.filename()));
    }
    std::wstring buffer(1024, L'\0');
    DWORD length =
        GetFinalPathNameByHandleW(handle, buffer.data(), static_cast<DWORD>(buffer.size()),
                                  FILE_NAME_NORMALIZED | VOLUME_NAME_DOS);
    if (length >= buffer.size()) {
        buffer.resize(length + 1);
        length = GetFinalPathNameByHandleW(handle, buffer.data(), static_cast<DWORD>(buffer.size()),
                                           FILE_NAME_NORMALIZED | VOLUME_NAME_DOS);
    }
    CloseHandle(handle);
    if (length == 0 || length >= buffer.size()) {
        throw TarnApiException(FileIoFailed, L"The real path cannot be found",
                               wideFromPath(path.filename()));
    }
    buffer.resize(length);
    if (buffer.starts_with(L"\\\\?\\UNC\\")) {
        buffer = L"\\\\" + buffer.substr(8);
    } else if (buffer.starts_with(L"\\\\?\\")) {
        buffer = buffer.substr(4);
    }
    return fs::path(buffer);
#else
    std::error_code error;
    fs::path real = fs::canonical(path, error);
    if (error) {
        throw TarnApiException(OutsideSandbox, L"A link of the path leads nowhere",
                               wideFromPath(path.filename()));
    }
    return real;
#endif
}

bool within(const fs::path& inner, const fs::path& outer) {
    auto i = inner.begin();
    for (auto o = outer.begin(); o != outer.end(); ++o, ++i) {
        if (o->empty()) {
            continue; // the trailing empty name of "folder/"
        }
        if (i == inner.end() || !sameName(*i, *o)) {
            return false;
        }
    }
    return true;
}

bool Resolved::isRoot() const { return within(root->folder, real) && within(real, root->folder); }

Resolved Sandbox::resolve(const std::wstring& path) const {
    const auto names = splitEnginePath(path);
    auto root = find(names.front());
    if (!root) {
        refuse(UnknownPublicDirectory, L"No public directory has this name", names.front());
    }
    return walk(std::move(root), {names.begin() + 1, names.end()});
}

Resolved Sandbox::child(const Resolved& directory, const std::wstring& name) const {
    checkName(name);
    if (directory.enginePath.size() + 1 + name.size() > maxPathLength) {
        refuse(PathTooLong, L"The path is too long", directory.enginePath + L"/" + name);
    }
    bool exists = false;
    Resolved out;
    out.root = directory.root;
    out.real = step(directory.real, name, *directory.root, exists, out.viaLink);
    guardEngineAreas(*out.root, out.real);
    out.enginePath = enginePath(*out.root, out.real);
    return out;
}

Resolved Sandbox::resolveIn(std::shared_ptr<const PublicDirectory> root,
                            const std::wstring& relative) {
    return walk(std::move(root), splitEnginePath(relative));
}

Resolved Sandbox::walk(std::shared_ptr<const PublicDirectory> root,
                       const std::vector<std::wstring>& names) {
    fs::path current = root->folder;
    bool exists = true;
    bool link = false;
    for (const auto& name : names) {
        if (exists) {
            current = step(current, name, *root, exists, link);
        } else {
            current /= pathFromWide(name); // nothing exists below a missing name
        }
    }
#if defined(_WIN32)
    if (exists && !names.empty()) {
        current = realPath(current); // the names' own case, as the folder holds them
    }
#endif
    guardEngineAreas(*root, current);
    Resolved out;
    out.root = std::move(root);
    out.real = std::move(current);
    out.enginePath = enginePath(*out.root, out.real);
    out.viaLink = link;
    return out;
}

std::wstring Sandbox::enginePath(const PublicDirectory& root, const fs::path& real) {
    std::wstring out = root.name;
    auto r = real.begin();
    for (auto o = root.folder.begin(); o != root.folder.end() && r != real.end(); ++o) {
        if (!o->empty()) {
            ++r;
        }
    }
    for (; r != real.end(); ++r) {
        if (!r->empty()) {
            out += L"/" + wideFromPath(*r);
        }
    }
    return out;
}

std::vector<std::wstring> Sandbox::publishedAs(const fs::path& real) const {
    std::vector<std::wstring> out;
    for (const auto& d : directories_) {
        if (within(real, d->folder)) {
            out.push_back(enginePath(*d, real));
        }
    }
    std::sort(out.begin(), out.end());
    return out;
}

std::shared_ptr<const PublicDirectory> Sandbox::find(const std::wstring& name) const {
    for (const auto& d : directories_) {
        if (samePublicName(d->name, name)) {
            return d;
        }
    }
    return nullptr;
}

} // namespace Varno::Kel_cpp::Reference
