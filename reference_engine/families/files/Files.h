// Files: real file work in the engine's public directories, folders under the data
// root. Every path a caller gives passes the sandbox first (Sandbox.h); the copies run
// entry by entry, so a failing entry has its own error and a cancelled asynchronous
// copy stops between two whole entries.
#pragma once

#include "Families.h"
#include "Sandbox.h"

#include <memory>
#include <mutex>
#include <vector>

namespace Varno::Kel_cpp::Reference {

class SimulatedVehicle;

// Per vehicle: the public directories, under their own lock. The standard ones are
// made under the data root on first use; addPublicDirectory adds further names.
class FilesState {
public:
    // A copy of the public directories, for a call to work on without the lock.
    Sandbox sandbox() const;
    void add(const std::wstring& name, const std::wstring& relativeFolder);
    // The engine's update store, which no public directory reaches: only the update
    // family works in it, through this root of its own.
    static Resolved updateStore();

private:
    void ensureStandard() const; // under mutex_
    mutable std::mutex mutex_;
    mutable std::vector<std::shared_ptr<const PublicDirectory>> directories_;
};

class Files final : public FilesFamily {
public:
    explicit Files(std::shared_ptr<SimulatedVehicle> vehicle);

    std::vector<uint8_t> readFile(const std::wstring& path, uint64_t value1, uint32_t value2,
                                  bool flag) override;
    std::shared_ptr<DirectoryInfo> getProjectDirectory(bool flag) override;
    std::shared_ptr<DirectoryInfo> getSelectedProjectDirectory(bool flag) override;
    uint32_t writeFile(const std::wstring& path, const std::vector<uint8_t>& data, uint32_t value,
                       bool flag) override;
    std::shared_ptr<KelError>
    deleteFiles(const std::vector<std::shared_ptr<FileInfo>>& files) override;
    std::vector<std::shared_ptr<DirectoryInfo>>
    findDirectories(std::shared_ptr<DirectoryInfo> directory, const std::wstring& pattern,
                    bool flag) override;
    std::vector<std::shared_ptr<FileInfo>>
    findFiles(const std::wstring& directory, const std::wstring& pattern, bool flag) override;
    std::shared_ptr<DirectoryInfo>
    initializeDirectoryElements(std::shared_ptr<DirectoryInfo> directory, bool flag) override;
    std::shared_ptr<FileInfo> createFile(std::shared_ptr<DirectoryInfo> parent,
                                         const std::wstring& name) override;
    std::shared_ptr<DirectoryInfo> createDirectory(std::shared_ptr<DirectoryInfo> parent,
                                                   const std::wstring& name) override;
    std::shared_ptr<KelError> deleteDirectory(const std::wstring& path) override;
    std::shared_ptr<DirectoryInfo> getTraceDirectory(bool flag) override;
    std::vector<std::shared_ptr<FileCopyResult>>
    copyFiles(std::shared_ptr<FileCopyConfig> config) override;
    uint64_t copyFilesAsync(std::shared_ptr<FileCopyConfig> config,
                            CopyFilesCallback* callback) override;
    std::vector<std::shared_ptr<DirectoryCopyResult>>
    copyDirectories(std::shared_ptr<DirectoryCopyConfig> config) override;
    uint64_t copyDirectoriesAsync(std::shared_ptr<DirectoryCopyConfig> config,
                                  CopyDirectoriesCallback* callback) override;
    void renameFile(const std::wstring& path, const std::wstring& newName) override;
    std::shared_ptr<DirectoryInfo> getConfigDirectory(bool flag) override;
    std::vector<std::shared_ptr<FileInfo>>
    copyProjectWithFilters(const std::vector<std::shared_ptr<FileFilter>>& filters, bool flag,
                           std::shared_ptr<FileCopyConfig> config,
                           const std::wstring& text) override;
    std::vector<std::wstring> filterFiles(const std::vector<std::shared_ptr<FileFilter>>& filters,
                                          const std::wstring& text) override;
    std::vector<std::shared_ptr<DirectoryInfo>> getPublicDirectories() override;
    bool moveFile(const std::wstring& source, const std::wstring& target) override;
    bool moveDirectory(const std::wstring& source, const std::wstring& target) override;
    bool pathExists(const std::wstring& path) override;
    std::wstring resolvePath(const std::wstring& path) override;
    std::vector<std::shared_ptr<FileReferenceResult>>
    getFileReferences(const std::vector<std::wstring>& files) override;
    bool isDirectory(const std::wstring& path) override;
    std::shared_ptr<DirectoryInfo> getDirectoryInfo(const std::wstring& path, bool flag) override;
    std::shared_ptr<FileInfo> getFileInfo(const std::wstring& path) override;
    bool isFile(const std::wstring& path) override;
    std::vector<std::shared_ptr<PathCopyResult>>
    copyPath(std::shared_ptr<PathCopyConfig> config) override;
    uint64_t copyPathAsync(std::shared_ptr<PathCopyConfig> config,
                           CopyPathCallback* callback) override;
    void addPublicDirectory(const std::wstring& name, const std::wstring& path) override;

private:
    // Throws NotInitialized unless the engine is initialised; returns the sandbox.
    Sandbox ready() const;
    std::shared_ptr<DirectoryInfo> tree(const std::wstring& path, bool recursive);
    // The project of this name, or the selected one for an empty name.
    Resolved project(const Sandbox& box, const std::wstring& name) const;

    std::shared_ptr<SimulatedVehicle> vehicle_;
};

} // namespace Varno::Kel_cpp::Reference
