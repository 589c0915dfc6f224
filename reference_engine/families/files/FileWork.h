// The real file work behind the Files family: records of real entries, directory
// listings and trees, reads and writes in bounded memory, and copies that put a file in
// place only once it is whole. Everything here takes paths the sandbox resolved.
#pragma once

#include "Sandbox.h"

#include <Kel_cpp/Records.h>
#include <Kel_cpp/TarnApiException.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

// FileSystemEntry.value1: the entry's attributes.
enum EntryAttribute : uint32_t {
    ReadOnlyEntry = 0x01,
    HiddenEntry = 0x02, // the name begins with a dot
    DirectoryEntry = 0x10,
    LinkEntry = 0x400, // reached through a link
};

// Levels of a tree read in one call; deeper directories come unread (flag2 false).
inline constexpr int maxTreeDepth = 64;

std::shared_ptr<KelError> errorRecord(int32_t code, std::wstring message, std::wstring details);

std::shared_ptr<FileInfo> describeFile(const Resolved& file);
// A directory; its contents when `contents` (and, when `recursive`, theirs, down to
// maxTreeDepth levels).
std::shared_ptr<DirectoryInfo> describeDirectory(const Sandbox& sandbox, const Resolved& directory,
                                                 bool contents, bool recursive, int depth = 0);

// The entries of a directory, by name. An entry the sandbox refuses (a link leading
// out, a name no engine path may hold) is listed in `refused` with its error.
struct Listing {
    std::vector<Resolved> files;
    std::vector<Resolved> directories; // links to directories are listed, never entered
    std::vector<std::shared_ptr<FileInfo>> refused;
};
Listing list(const Sandbox& sandbox, const Resolved& directory);

// Throws PathNotFound / WrongKind unless the entry is a file (a directory).
void requireFile(const Resolved& entry);
void requireDirectory(const Resolved& entry);
bool isLink(const Resolved& entry);

std::vector<uint8_t> readRange(const std::filesystem::path& file, uint64_t offset, uint32_t length,
                               bool exact);

// writeFile's modes.
enum WriteMode : uint32_t { ReplaceFile = 0, AppendToFile = 1, CreateNewFile = 2 };
void writeData(const std::filesystem::path& file, const std::vector<uint8_t>& data, uint32_t mode);

// Copies a file through a hidden part file beside the target, renamed into place when
// whole: the target is the old file or the whole new one, never part of one.
void copyWhole(const std::filesystem::path& from, const std::filesystem::path& to, bool overwrite);

} // namespace Varno::Kel_cpp::Reference
