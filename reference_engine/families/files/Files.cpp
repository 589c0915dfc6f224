// Each operation resolves every path it is given through the sandbox before it touches
// a file, then works on real paths without any engine lock held. The copies are planned
// as steps, one per entry; the synchronous forms run them all, the asynchronous ones a
// slice per report, so that a cancel falls between two whole entries.
#include "Files.h"

#include "DataRoot.h"
#include "Describe.h"
#include "ErrorCodes.h"
#include "FileWork.h"
#include "SafeFiles.h"
#include "SimulatedVehicle.h"

#include <algorithm>
#include <functional>
#include <system_error>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace fs = std::filesystem;
namespace {

// The public directories every engine has, folders of the same names under the data root.
// Not the update store ("updates"): it is the engine's own (engineArea).
constexpr const char* standardDirectories[] = {"broker",   "configuration", "exchange",
                                               "projects", "reports",       "traces"};

template <class Result>
using Steps = std::vector<std::function<std::shared_ptr<Result>()>>;

std::wstring lastName(const std::wstring& enginePath) {
    return enginePath.substr(enginePath.rfind(L'/') + 1);
}

std::wstring parentOf(const std::wstring& enginePath) {
    return enginePath.substr(0, enginePath.rfind(L'/'));
}

bool present(const fs::path& path) {
    std::error_code e;
    return fs::exists(fs::symlink_status(path, e));
}

void makeDirectory(const fs::path& path) {
    std::error_code e;
    fs::create_directory(path, e);
    if (e || !fs::is_directory(path, e)) {
        throw TarnApiException(FileIoFailed, L"The directory cannot be made",
                               wideFromPath(path.filename()) +
                                   (e ? L": " + fromUtf8(e.message()) : L""));
    }
}

// Every file below `directory` (its sub-directories when `recursive`, never through a
// link), with its path relative to `directory`; refused entries are skipped.
void eachFile(const Sandbox& box, const Resolved& directory, bool recursive,
              const std::wstring& relative,
              const std::function<void(const Resolved&, const std::wstring&)>& visit) {
    const auto entries = list(box, directory);
    for (const auto& f : entries.files) {
        visit(f, relative + lastName(f.enginePath));
    }
    if (recursive) {
        for (const auto& d : entries.directories) {
            if (!d.viaLink) {
                eachFile(box, d, true, relative + lastName(d.enginePath) + L"/", visit);
            }
        }
    }
}

void eachDirectory(const Sandbox& box, const Resolved& directory, bool recursive,
                   const std::function<void(const Resolved&)>& visit) {
    for (const auto& d : list(box, directory).directories) {
        visit(d);
        if (recursive && !d.viaLink) {
            eachDirectory(box, d, true, visit);
        }
    }
}

// A filter with a slash in its pattern matches the path relative to the filtered
// directory, else the name. With no including filter (flag 0) every file is included;
// an excluding one (flag set) then removes.
bool passes(const std::vector<std::shared_ptr<FileFilter>>& filters, const std::wstring& relative) {
    bool anyInclude = false;
    bool included = false;
    for (const auto& f : filters) {
        if (!f) {
            continue;
        }
        std::wstring pattern = f->pattern;
        std::replace(pattern.begin(), pattern.end(), L'\\', L'/');
        const bool matches = pattern.find(L'/') != std::wstring::npos
                                 ? globMatch(pattern, relative)
                                 : globMatch(pattern, lastName(relative));
        if (f->flag) {
            if (matches) {
                return false;
            }
        } else {
            anyInclude = true;
            included = included || matches;
        }
    }
    return !anyInclude || included;
}

// --- copies -------------------------------------------------------------------------

Resolved targetDirectory(const Sandbox& box, const std::wstring& path) {
    Resolved target = box.resolve(path);
    requireDirectory(target);
    return target;
}

Steps<FileCopyResult> planFileCopy(const Sandbox& box, std::shared_ptr<FileCopyConfig> config) {
    if (!config) {
        throw TarnApiException(BadFileArgument, L"No copy configuration");
    }
    const Resolved target = targetDirectory(box, config->target);
    Steps<FileCopyResult> steps;
    for (std::size_t i = 0; i < config->files.size(); ++i) {
        steps.emplace_back(
            [box, target, source = config->files[i], overwrite = config->overwrite, i] {
                auto r = std::make_shared<FileCopyResult>();
                r->text = source;
                r->value2 = static_cast<int32_t>(i);
                try {
                    const Resolved from = box.resolve(source);
                    requireFile(from);
                    const Resolved to = box.child(target, lastName(from.enginePath));
                    copyWhole(from.real, to.real, overwrite);
                    r->file = describeFile(to);
                } catch (const TarnApiException& e) {
                    r->value1 = 1;
                    r->error = errorOf(e);
                }
                return r;
            });
    }
    return steps;
}

std::shared_ptr<FileCopyResult> failedFile(const std::wstring& source, const TarnApiException& e) {
    auto r = std::make_shared<FileCopyResult>();
    r->value1 = 1;
    r->text = source;
    r->error = errorOf(e);
    return r;
}

// Copies the tree `from` into the existing directory `to`; what fails is listed in
// `item.failures` and the rest goes on.
void copyTree(const Sandbox& box, const Resolved& from, const Resolved& to,
              const DirectoryCopyConfig& config, DirectoryCopyItem& item) {
    Listing entries;
    try {
        entries = list(box, from);
    } catch (const TarnApiException& e) {
        item.failures.push_back(failedFile(from.enginePath, e));
        return;
    }
    for (const auto& refused : entries.refused) {
        auto r = std::make_shared<FileCopyResult>();
        r->value1 = 1;
        r->text = refused->text1;
        r->error = refused->error;
        item.failures.push_back(std::move(r));
    }
    for (const auto& f : entries.files) {
        const std::wstring name = lastName(f.enginePath);
        if (!config.pattern.empty() && !globMatch(config.pattern, name)) {
            continue;
        }
        try {
            const Resolved copy = box.child(to, name);
            copyWhole(f.real, copy.real, config.overwrite);
            ++item.files;
            std::error_code e;
            item.bytes += fs::file_size(copy.real, e);
        } catch (const TarnApiException& e) {
            item.failures.push_back(failedFile(f.enginePath, e));
        }
    }
    if (!config.recursive) {
        return;
    }
    for (const auto& d : entries.directories) {
        if (d.viaLink) {
            continue; // a link is not followed into a second copy of what it shows
        }
        try {
            const Resolved copy = box.child(to, lastName(d.enginePath));
            if (!present(copy.real)) {
                makeDirectory(copy.real);
                ++item.directories;
            }
            requireDirectory(copy);
            copyTree(box, d, copy, config, item);
        } catch (const TarnApiException& e) {
            item.failures.push_back(failedFile(d.enginePath, e));
        }
    }
}

std::shared_ptr<KelError> summary(std::size_t failed, std::size_t total, const wchar_t* what,
                                  const std::vector<std::wstring>& lines) {
    std::wstring details;
    for (const auto& line : lines) {
        details += (details.empty() ? L"" : L"\n") + line;
    }
    auto e = errorRecord(SomeEntriesFailed,
                         std::to_wstring(failed) + L" of " + std::to_wstring(total) + what,
                         std::move(details));
    e->subCode = static_cast<int32_t>(failed);
    return e;
}

std::wstring entryLine(const std::wstring& path, const KelError& e) {
    return path + L": " + std::to_wstring(e.code) + L" " + e.message;
}

Steps<DirectoryCopyResult> planDirectoryCopy(const Sandbox& box,
                                             std::shared_ptr<DirectoryCopyConfig> config) {
    if (!config) {
        throw TarnApiException(BadFileArgument, L"No copy configuration");
    }
    const Resolved target = targetDirectory(box, config->target);
    Steps<DirectoryCopyResult> steps;
    for (const auto& source : config->directories) {
        steps.emplace_back([box, target, source, config] {
            auto r = std::make_shared<DirectoryCopyResult>();
            r->text = source;
            auto item = std::make_shared<DirectoryCopyItem>();
            item->source = source;
            try {
                const Resolved from = box.resolve(source);
                requireDirectory(from);
                const Resolved to = box.child(target, lastName(from.enginePath));
                item->source = from.enginePath;
                item->target = to.enginePath;
                if (within(to.real, from.real)) {
                    throw TarnApiException(TargetInsideSource,
                                           L"A directory cannot be copied into itself",
                                           to.enginePath);
                }
                if (!present(to.real)) {
                    makeDirectory(to.real);
                    ++item->directories;
                }
                requireDirectory(to);
                copyTree(box, from, to, *config, *item);
                if (!item->failures.empty()) {
                    std::vector<std::wstring> lines;
                    for (const auto& f : item->failures) {
                        lines.push_back(entryLine(f->text, *f->error));
                    }
                    r->value1 = 1;
                    r->error = summary(item->failures.size(), item->files + item->failures.size(),
                                       L" files were not copied", lines);
                }
            } catch (const TarnApiException& e) {
                r->value1 = 2;
                r->error = errorOf(e);
            }
            r->directory = std::move(item);
            return r;
        });
    }
    return steps;
}

// One entry of a path copy: a directory is made before anything goes into it.
struct PathEntry {
    Resolved from;
    Resolved to;
    bool directory = false;
    std::shared_ptr<KelError> refused; // an entry the sandbox refused: nothing to copy
};

void planTree(const Sandbox& box, const Resolved& from, const Resolved& to,
              std::vector<PathEntry>& out) {
    const auto entries = list(box, from);
    for (const auto& refused : entries.refused) {
        PathEntry e;
        e.from.enginePath = refused->text1;
        e.refused = refused->error;
        out.push_back(std::move(e));
    }
    for (const auto& f : entries.files) {
        out.push_back({f, box.child(to, lastName(f.enginePath)), false, nullptr});
    }
    for (const auto& d : entries.directories) {
        if (d.viaLink) {
            continue;
        }
        PathEntry e{d, box.child(to, lastName(d.enginePath)), true, nullptr};
        out.push_back(e);
        planTree(box, e.from, e.to, out);
    }
}

Steps<PathCopyResult> planPathCopy(const Sandbox& box, std::shared_ptr<PathCopyConfig> config) {
    if (!config) {
        throw TarnApiException(BadFileArgument, L"No copy configuration");
    }
    const Resolved from = box.resolve(config->source);
    const Resolved to = box.resolve(config->target);
    if (!present(from.real)) {
        throw TarnApiException(PathNotFound, L"No such file or directory", from.enginePath);
    }
    if (to.isRoot()) {
        throw TarnApiException(PublicDirectoryRoot, L"A public directory cannot be replaced",
                               to.enginePath);
    }
    std::error_code e;
    if (!fs::is_directory(to.real.parent_path(), e)) {
        throw TarnApiException(PathNotFound, L"The copy's directory does not exist",
                               parentOf(to.enginePath));
    }
    const bool directory = fs::is_directory(from.real, e);
    if (directory && within(to.real, from.real)) {
        throw TarnApiException(TargetInsideSource, L"A directory cannot be copied into itself",
                               to.enginePath);
    }
    if (present(to.real) && !config->overwrite) {
        throw TarnApiException(PathExists, L"The target exists", to.enginePath);
    }
    std::vector<PathEntry> entries{{from, to, directory, nullptr}};
    if (directory) {
        planTree(box, from, to, entries);
    }
    Steps<PathCopyResult> steps;
    for (auto& entry : entries) {
        steps.emplace_back([entry = std::move(entry), overwrite = config->overwrite] {
            auto r = std::make_shared<PathCopyResult>();
            r->value2 = entry.directory ? 1 : 0;
            auto item = std::make_shared<PathCopyItem>();
            item->source = entry.from.enginePath;
            item->target = entry.to.enginePath;
            try {
                if (entry.refused) {
                    r->value1 = 1;
                    r->error = entry.refused;
                } else if (entry.directory) {
                    if (!present(entry.to.real)) {
                        makeDirectory(entry.to.real);
                    }
                    requireDirectory(entry.to);
                } else {
                    copyWhole(entry.from.real, entry.to.real, overwrite);
                    std::error_code e;
                    item->size = fs::file_size(entry.to.real, e);
                }
            } catch (const TarnApiException& e) {
                r->value1 = 1;
                r->error = errorOf(e);
            }
            r->item = std::move(item);
            return r;
        });
    }
    return steps;
}

template <class Result>
std::vector<std::shared_ptr<Result>> runAll(const Steps<Result>& steps) {
    std::vector<std::shared_ptr<Result>> out;
    out.reserve(steps.size());
    for (const auto& step : steps) {
        out.push_back(step());
    }
    return out;
}

} // namespace

// --- state ----------------------------------------------------------------------------

void FilesState::ensureStandard() const {
    if (!directories_.empty()) {
        return;
    }
    const fs::path root = realPath(dataRoot());
    for (const char* name : standardDirectories) {
        auto d = std::make_shared<PublicDirectory>();
        d->name = fromUtf8(name);
        d->folder = realPath(dataFolder(name));
        d->dataRoot = root;
        directories_.push_back(std::move(d));
    }
}

Sandbox FilesState::sandbox() const {
    const std::lock_guard lock(mutex_);
    ensureStandard();
    return Sandbox(directories_);
}

void FilesState::add(const std::wstring& name, const std::wstring& relativeFolder) {
    checkName(name);
    auto root = std::make_shared<PublicDirectory>();
    root->folder = realPath(dataRoot());
    root->dataRoot = root->folder;
    const Resolved folder = Sandbox::resolveIn(root, relativeFolder); // refuses the engine's

    std::error_code e;
    fs::create_directories(folder.real, e);
    const fs::path real = realPath(folder.real);
    if (!fs::is_directory(real, e) || !within(real, root->folder)) {
        throw TarnApiException(WrongKind, L"The public directory's folder is not a directory",
                               relativeFolder);
    }
    if (holdsEngineArea(root->folder, real)) {
        throw TarnApiException(EngineFolder, L"The folder holds the engine's own files",
                               relativeFolder);
    }
    const std::lock_guard lock(mutex_);
    ensureStandard();
    for (const auto& d : directories_) {
        if (samePublicName(d->name, name)) {
            if (within(real, d->folder) && within(d->folder, real)) {
                return; // the same name for the same folder again
            }
            throw TarnApiException(PathExists, L"A public directory has this name", d->name);
        }
    }
    auto added = std::make_shared<PublicDirectory>();
    added->name = name;
    added->folder = real;
    added->dataRoot = root->folder;
    directories_.push_back(std::move(added));
}

Resolved FilesState::updateStore() {
    auto store = std::make_shared<PublicDirectory>();
    store->name = L"updates";
    store->folder = realPath(dataFolder("updates"));
    store->dataRoot = realPath(dataRoot());
    Resolved root;
    root.real = store->folder;
    root.enginePath = store->name;
    root.root = std::move(store);
    return root;
}

// --- the family -------------------------------------------------------------------------

Files::Files(std::shared_ptr<SimulatedVehicle> vehicle) : vehicle_(std::move(vehicle)) {}

Sandbox Files::ready() const {
    vehicle_->lifecycle.requireInitialized();
    return vehicle_->files.sandbox();
}

std::shared_ptr<DirectoryInfo> Files::tree(const std::wstring& path, bool recursive) {
    const Sandbox box = ready();
    const Resolved directory = box.resolve(path);
    requireDirectory(directory);
    return describeDirectory(box, directory, true, recursive);
}

std::vector<uint8_t> Files::readFile(const std::wstring& path, uint64_t value1, uint32_t value2,
                                     bool flag) {
    const Resolved file = ready().resolve(path);
    requireFile(file);
    return readRange(file.real, value1, value2, flag);
}

uint32_t Files::writeFile(const std::wstring& path, const std::vector<uint8_t>& data,
                          uint32_t value, bool flag) {
    const Resolved file = ready().resolve(path);
    if (file.isRoot()) {
        throw TarnApiException(PublicDirectoryRoot, L"A public directory is not a file",
                               file.enginePath);
    }
    std::error_code e;
    if (flag) {
        fs::create_directories(file.real.parent_path(), e);
    }
    if (!fs::is_directory(file.real.parent_path(), e)) {
        throw TarnApiException(PathNotFound, L"The file's directory does not exist",
                               parentOf(file.enginePath));
    }
    writeData(file.real, data, value);
    return static_cast<uint32_t>(data.size());
}

std::shared_ptr<DirectoryInfo> Files::getProjectDirectory(bool flag) {
    return tree(L"projects", flag);
}
std::shared_ptr<DirectoryInfo> Files::getTraceDirectory(bool flag) { return tree(L"traces", flag); }
std::shared_ptr<DirectoryInfo> Files::getConfigDirectory(bool flag) {
    return tree(L"configuration", flag);
}

// The Projects family knows which project is selected; it is asked without any lock of
// this family held.
Resolved Files::project(const Sandbox& box, const std::wstring& name) const {
    if (!name.empty()) {
        checkName(name);
        Resolved named = box.resolve(L"projects/" + name);
        requireDirectory(named);
        return named;
    }
    const fs::path folder = realPath(vehicle_->projects.selectedFolder());
    for (const auto& d : box.directories()) {
        if (d->name == L"projects" && within(folder, d->folder)) {
            return Resolved{d, folder, Sandbox::enginePath(*d, folder)};
        }
    }
    throw TarnApiException(OutsideSandbox,
                           L"The selected project lies outside the projects directory",
                           vehicle_->projects.selectedName());
}

std::shared_ptr<DirectoryInfo> Files::getSelectedProjectDirectory(bool flag) {
    const Sandbox box = ready();
    return describeDirectory(box, project(box, L""), true, flag);
}

std::shared_ptr<DirectoryInfo> Files::getDirectoryInfo(const std::wstring& path, bool flag) {
    return tree(path, flag);
}

std::shared_ptr<DirectoryInfo>
Files::initializeDirectoryElements(std::shared_ptr<DirectoryInfo> directory, bool flag) {
    if (!directory) {
        ready();
        throw TarnApiException(BadFileArgument, L"No directory given");
    }
    return tree(directory->text1, flag);
}

std::vector<std::shared_ptr<DirectoryInfo>> Files::getPublicDirectories() {
    const Sandbox box = ready();
    std::vector<std::shared_ptr<DirectoryInfo>> out;
    for (const auto& d : box.directories()) {
        Resolved root{d, d->folder, d->name};
        out.push_back(describeDirectory(box, root, false, false));
    }
    std::sort(out.begin(), out.end(),
              [](const auto& a, const auto& b) { return a->name < b->name; });
    return out;
}

std::shared_ptr<FileInfo> Files::getFileInfo(const std::wstring& path) {
    const Resolved file = ready().resolve(path);
    requireFile(file);
    return describeFile(file);
}

bool Files::pathExists(const std::wstring& path) { return present(ready().resolve(path).real); }

bool Files::isFile(const std::wstring& path) {
    std::error_code e;
    return fs::is_regular_file(ready().resolve(path).real, e);
}

bool Files::isDirectory(const std::wstring& path) {
    std::error_code e;
    return fs::is_directory(ready().resolve(path).real, e);
}

std::wstring Files::resolvePath(const std::wstring& path) {
    fs::path real = ready().resolve(path).real;
    return wideFromPath(real.make_preferred());
}

std::vector<std::shared_ptr<FileInfo>> Files::findFiles(const std::wstring& directory,
                                                        const std::wstring& pattern, bool flag) {
    const Sandbox box = ready();
    const Resolved start = box.resolve(directory);
    requireDirectory(start);
    std::vector<std::shared_ptr<FileInfo>> out;
    eachFile(box, start, flag, L"", [&](const Resolved& f, const std::wstring& relative) {
        if (pattern.empty() || globMatch(pattern, lastName(relative))) {
            out.push_back(describeFile(f));
        }
    });
    std::sort(out.begin(), out.end(),
              [](const auto& a, const auto& b) { return a->text1 < b->text1; });
    return out;
}

std::vector<std::shared_ptr<DirectoryInfo>>
Files::findDirectories(std::shared_ptr<DirectoryInfo> directory, const std::wstring& pattern,
                       bool flag) {
    const Sandbox box = ready();
    if (!directory) {
        throw TarnApiException(BadFileArgument, L"No directory given");
    }
    const Resolved start = box.resolve(directory->text1);
    requireDirectory(start);
    std::vector<std::shared_ptr<DirectoryInfo>> out;
    eachDirectory(box, start, flag, [&](const Resolved& d) {
        if (pattern.empty() || globMatch(pattern, lastName(d.enginePath))) {
            out.push_back(describeDirectory(box, d, false, false));
        }
    });
    return out;
}

std::vector<std::wstring>
Files::filterFiles(const std::vector<std::shared_ptr<FileFilter>>& filters,
                   const std::wstring& text) {
    const Sandbox box = ready();
    const Resolved start = box.resolve(text);
    requireDirectory(start);
    std::vector<std::wstring> out;
    eachFile(box, start, true, L"", [&](const Resolved& f, const std::wstring& relative) {
        if (passes(filters, relative)) {
            out.push_back(f.enginePath);
        }
    });
    std::sort(out.begin(), out.end());
    return out;
}

std::shared_ptr<FileInfo> Files::createFile(std::shared_ptr<DirectoryInfo> parent,
                                            const std::wstring& name) {
    const Sandbox box = ready();
    if (!parent) {
        throw TarnApiException(BadFileArgument, L"No directory given");
    }
    const Resolved directory = box.resolve(parent->text1);
    requireDirectory(directory);
    const Resolved file = box.child(directory, name);
    writeData(file.real, {}, CreateNewFile);
    return describeFile(file);
}

std::shared_ptr<DirectoryInfo> Files::createDirectory(std::shared_ptr<DirectoryInfo> parent,
                                                      const std::wstring& name) {
    const Sandbox box = ready();
    if (!parent) {
        throw TarnApiException(BadFileArgument, L"No directory given");
    }
    const Resolved directory = box.resolve(parent->text1);
    requireDirectory(directory);
    const Resolved made = box.child(directory, name);
    if (present(made.real)) {
        throw TarnApiException(PathExists, L"The directory exists", made.enginePath);
    }
    makeDirectory(made.real);
    return describeDirectory(box, made, true, false);
}

// Every file is tried; the outcome names each one that was not deleted.
std::shared_ptr<KelError> Files::deleteFiles(const std::vector<std::shared_ptr<FileInfo>>& files) {
    const Sandbox box = ready();
    std::vector<std::wstring> lines;
    for (const auto& f : files) {
        const std::wstring path = f ? f->text1 : std::wstring();
        try {
            if (!f) {
                throw TarnApiException(BadFileArgument, L"No file given");
            }
            const Resolved file = box.resolve(path);
            requireFile(file);
            std::error_code e;
            if (!fs::remove(file.real, e)) {
                throw TarnApiException(FileIoFailed, L"The file cannot be deleted",
                                       file.enginePath + L": " + fromUtf8(e.message()));
            }
        } catch (const TarnApiException& e) {
            lines.push_back(entryLine(path, *errorOf(e)));
        }
    }
    return lines.empty() ? nullptr
                         : summary(lines.size(), files.size(), L" files were not deleted", lines);
}

// The outcome, not an exception, says what went wrong with the path.
std::shared_ptr<KelError> Files::deleteDirectory(const std::wstring& path) {
    const Sandbox box = ready();
    try {
        const Resolved directory = box.resolve(path);
        if (directory.isRoot()) {
            throw TarnApiException(PublicDirectoryRoot, L"A public directory cannot be deleted",
                                   directory.enginePath);
        }
        requireDirectory(directory);
        std::error_code e;
        fs::remove_all(directory.real, e);
        if (e) {
            throw TarnApiException(FileIoFailed, L"The directory was not deleted whole",
                                   directory.enginePath + L": " + fromUtf8(e.message()));
        }
    } catch (const TarnApiException& e) {
        return errorOf(e);
    }
    return nullptr;
}

void Files::renameFile(const std::wstring& path, const std::wstring& newName) {
    const Sandbox box = ready();
    const Resolved from = box.resolve(path);
    if (from.isRoot()) {
        throw TarnApiException(PublicDirectoryRoot, L"A public directory cannot be renamed",
                               from.enginePath);
    }
    if (!present(from.real)) {
        throw TarnApiException(PathNotFound, L"No such file", from.enginePath);
    }
    checkName(newName);
    const Resolved to = box.resolve(parentOf(from.enginePath) + L"/" + newName);
    if (present(to.real)) {
        throw TarnApiException(PathExists, L"The new name is taken", to.enginePath);
    }
    // The check above names the common case; the rename itself refuses a name taken since.
    const std::error_code e = renameNoReplace(from.real, to.real);
    if (e == std::errc::file_exists) {
        throw TarnApiException(PathExists, L"The new name is taken", to.enginePath);
    }
    if (e) {
        throw TarnApiException(FileIoFailed, L"The file cannot be renamed", from.enginePath);
    }
}

namespace {

// A move that found no source or a taken target changes nothing and says so.
bool move(const Sandbox& box, const std::wstring& source, const std::wstring& target,
          bool directory) {
    const Resolved from = box.resolve(source);
    const Resolved to = box.resolve(target);
    if (from.isRoot() || to.isRoot()) {
        throw TarnApiException(PublicDirectoryRoot, L"A public directory cannot be moved",
                               from.enginePath);
    }
    if (!present(from.real) || present(to.real)) {
        return false;
    }
    if (directory) {
        requireDirectory(from);
        if (within(to.real, from.real)) {
            throw TarnApiException(TargetInsideSource, L"A directory cannot be moved into itself",
                                   to.enginePath);
        }
    } else {
        requireFile(from);
    }
    std::error_code e;
    fs::create_directories(to.real.parent_path(), e);
    e = renameNoReplace(from.real, to.real);
    if (e == std::errc::file_exists) {
        return false; // taken since the check
    }
    if (e) {
        throw TarnApiException(FileIoFailed, L"The entry cannot be moved",
                               from.enginePath + L": " + fromUtf8(e.message()));
    }
    return true;
}

} // namespace

bool Files::moveFile(const std::wstring& source, const std::wstring& target) {
    return move(ready(), source, target, false);
}

bool Files::moveDirectory(const std::wstring& source, const std::wstring& target) {
    return move(ready(), source, target, true);
}

std::vector<std::shared_ptr<FileReferenceResult>>
Files::getFileReferences(const std::vector<std::wstring>& files) {
    const Sandbox box = ready();
    std::vector<std::shared_ptr<FileReferenceResult>> out;
    for (const auto& path : files) {
        auto r = std::make_shared<FileReferenceResult>();
        try {
            const Resolved file = box.resolve(path);
            requireFile(file);
            r->references = box.publishedAs(file.real);
        } catch (const TarnApiException& e) {
            r->error = errorOf(e);
        }
        out.push_back(std::move(r));
    }
    return out;
}

void Files::addPublicDirectory(const std::wstring& name, const std::wstring& path) {
    vehicle_->lifecycle.requireInitialized();
    vehicle_->files.add(name, path);
}

std::vector<std::shared_ptr<FileCopyResult>>
Files::copyFiles(std::shared_ptr<FileCopyConfig> config) {
    return runAll(planFileCopy(ready(), std::move(config)));
}

uint64_t Files::copyFilesAsync(std::shared_ptr<FileCopyConfig> config,
                               CopyFilesCallback* callback) {
    return vehicle_->async.startSteps(
        "copyFilesAsync", callback,
        [box = ready(), config = std::move(config)] { return planFileCopy(box, config); });
}

std::vector<std::shared_ptr<DirectoryCopyResult>>
Files::copyDirectories(std::shared_ptr<DirectoryCopyConfig> config) {
    return runAll(planDirectoryCopy(ready(), std::move(config)));
}

uint64_t Files::copyDirectoriesAsync(std::shared_ptr<DirectoryCopyConfig> config,
                                     CopyDirectoriesCallback* callback) {
    return vehicle_->async.startSteps(
        "copyDirectoriesAsync", callback,
        [box = ready(), config = std::move(config)] { return planDirectoryCopy(box, config); });
}

std::vector<std::shared_ptr<PathCopyResult>>
Files::copyPath(std::shared_ptr<PathCopyConfig> config) {
    return runAll(planPathCopy(ready(), std::move(config)));
}

uint64_t Files::copyPathAsync(std::shared_ptr<PathCopyConfig> config, CopyPathCallback* callback) {
    return vehicle_->async.startSteps(
        "copyPathAsync", callback,
        [box = ready(), config = std::move(config)] { return planPathCopy(box, config); });
}

std::vector<std::shared_ptr<FileInfo>>
Files::copyProjectWithFilters(const std::vector<std::shared_ptr<FileFilter>>& filters, bool flag,
                              std::shared_ptr<FileCopyConfig> config, const std::wstring& text) {
    const Sandbox box = ready();
    if (!config) {
        throw TarnApiException(BadFileArgument, L"No copy configuration");
    }
    const Resolved project = this->project(box, text);
    const Resolved target = targetDirectory(box, config->target);
    if (within(target.real, project.real)) {
        throw TarnApiException(TargetInsideSource, L"A project cannot be copied into itself",
                               target.enginePath);
    }
    std::vector<std::shared_ptr<FileInfo>> out;
    eachFile(box, project, flag, L"", [&](const Resolved& f, const std::wstring& relative) {
        if (!passes(filters, relative)) {
            return;
        }
        try {
            Resolved to = target;
            std::wstring rest = relative;
            for (auto slash = rest.find(L'/'); slash != std::wstring::npos;
                 slash = rest.find(L'/')) {
                to = box.child(to, rest.substr(0, slash));
                if (!present(to.real)) {
                    makeDirectory(to.real);
                }
                rest = rest.substr(slash + 1);
            }
            to = box.child(to, rest);
            copyWhole(f.real, to.real, config->overwrite);
            out.push_back(describeFile(to));
        } catch (const TarnApiException& e) {
            auto failed = std::make_shared<FileInfo>();
            failed->name = lastName(relative);
            failed->text1 = f.enginePath;
            failed->error = errorOf(e);
            out.push_back(std::move(failed));
        }
    });
    return out;
}

} // namespace Varno::Kel_cpp::Reference
