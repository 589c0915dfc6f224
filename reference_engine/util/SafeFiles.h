// How the engine puts a file in place. A file is written beside its target under a
// hidden name and renamed over it once whole and flushed: a failed or interrupted save
// leaves the previous file whole, and a reader never sees half of one. A file that must
// not replace anything (create-only writes, copies and uploads without overwrite) is
// published by a rename that refuses an existing target, so that of two writers racing
// for one name exactly one creates it; a check before the rename would let both in.
#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace Varno::Kel_cpp::Reference {

// A hidden name beside `target` that no other writer of this process uses.
std::filesystem::path partFileBeside(const std::filesystem::path& target);

// Renames `from` over `to` (replacing a file there).
std::error_code renameOver(const std::filesystem::path& from, const std::filesystem::path& to);

// Renames `from` to `to` unless something exists at `to` (std::errc::file_exists then),
// in one step: nothing can come between a check and the rename.
std::error_code renameNoReplace(const std::filesystem::path& from, const std::filesystem::path& to);

// Writes `bytes` to a part file beside `target`, flushes it and renames it into place:
// over an existing file when `replace`, else only where none is (std::errc::file_exists).
// The part file is gone afterwards, whatever happened.
std::error_code writeWhole(const std::filesystem::path& target, std::string_view bytes,
                           bool replace = true);

} // namespace Varno::Kel_cpp::Reference
