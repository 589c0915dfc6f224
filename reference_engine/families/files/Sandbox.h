// The sandbox of the file operations: an engine path ("traces/2026/run.trc", either
// slash) names a public directory and a path inside it. Every path a caller gives goes
// through resolve(), which refuses anything that could reach outside (README.md, "The
// sandbox") before a file is touched, and compares real paths after following links.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

inline constexpr std::size_t maxPathLength = 1024; // characters of an engine path
inline constexpr std::size_t maxNameLength = 255;  // characters of one name in it

// Throws TarnApiException InvalidPath (or PathTooLong, ControlCharacterInPath) unless
// `name` is one plain name: no separators, nothing a file system of either platform
// refuses or aliases (reserved characters, device names, trailing dots or spaces).
void checkName(const std::wstring& name);

// Public directory names are the engine's, not the file system's: case-insensitive.
bool samePublicName(const std::wstring& a, const std::wstring& b);

// `name` matches `pattern` (* and ?); case-insensitive on Windows, as its file names are.
bool globMatch(const std::wstring& pattern, const std::wstring& name);

// The real path of an existing path, every link followed (throws OutsideSandbox when
// one leads nowhere).
std::filesystem::path realPath(const std::filesystem::path& path);

// `inner` is `outer` or lies below it (real paths; case-insensitive on Windows).
bool within(const std::filesystem::path& inner, const std::filesystem::path& outer);

struct PublicDirectory {
    std::wstring name;
    std::filesystem::path folder; // real path
    // The real data root it was made under: the engine's own files there are out of reach.
    std::filesystem::path dataRoot;
};

// The engine's own folders and files under the real data root `dataRoot` (the users, the
// certificates, the interfaces, the update store, the engine's configuration files): the
// one `real` lies in, if any.
std::optional<std::filesystem::path> engineArea(const std::filesystem::path& dataRoot,
                                                const std::filesystem::path& real);
// `folder` holds one of them (the data root itself, the configuration folder).
bool holdsEngineArea(const std::filesystem::path& dataRoot, const std::filesystem::path& folder);

struct Resolved {
    std::shared_ptr<const PublicDirectory> root;
    std::filesystem::path real; // inside root->folder; links in the existing part followed
    std::wstring enginePath;    // "<public name>/<names>", forward slashes
    bool viaLink = false;       // its last name is a link (followed into `real`)
    // The public directory itself, which no call may delete, move or rename.
    bool isRoot() const;
};

class Sandbox {
public:
    Sandbox() = default;
    explicit Sandbox(std::vector<std::shared_ptr<const PublicDirectory>> directories)
        : directories_(std::move(directories)) {}

    // Throws the Files refusals (1600-1608); never touches a file but to look.
    Resolved resolve(const std::wstring& path) const;
    // A path relative to `root` (not through the public directories: addPublicDirectory's
    // folders, relative to the data root), with the same checks as resolve.
    static Resolved resolveIn(std::shared_ptr<const PublicDirectory> root,
                              const std::wstring& relative);
    // `child` of a resolved directory (the name checked as checkName does).
    Resolved child(const Resolved& directory, const std::wstring& name) const;
    // The engine path of a real path inside `root`.
    static std::wstring enginePath(const PublicDirectory& root, const std::filesystem::path& real);
    // Every engine path under which the real path `real` is published.
    std::vector<std::wstring> publishedAs(const std::filesystem::path& real) const;

    const std::vector<std::shared_ptr<const PublicDirectory>>& directories() const {
        return directories_;
    }

private:
    std::shared_ptr<const PublicDirectory> find(const std::wstring& name) const;
    static Resolved walk(std::shared_ptr<const PublicDirectory> root,
                         const std::vector<std::wstring>& names);

    std::vector<std::shared_ptr<const PublicDirectory>> directories_;
};

// Splits an engine path into its names after the checks that need no file system.
std::vector<std::wstring> splitEnginePath(const std::wstring& path);

} // namespace Varno::Kel_cpp::Reference
