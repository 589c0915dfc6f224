// The data root: the one real folder under which the engine keeps its files (projects,
// configuration, users, traces, reports, ...). Every family that persists something
// keeps it in a folder of its own below the root (dataFolder), so that a restarted
// engine on the same root finds it again.
//
// Which folder: the one set through kelsim_setDataRoot, else the one named by the
// environment variable KEL_SIM_DATA_ROOT, else a folder the engine creates per process
// in the system's temporary folder ("kel_sim-<process id>") and removes when the process
// ends. Families that read state from files do so when their vehicle starts, so a test
// that changes the root restarts the engine (kelsim_restart) to see the new one.
#pragma once

#include "Describe.h" // pathFromWide, wideFromPath

#include <filesystem>
#include <string>
#include <string_view>

namespace Varno::Kel_cpp::Reference {

// The current root, created if it does not exist yet. Throws TarnApiException
// DataRootUnavailable when it cannot be created.
std::filesystem::path dataRoot();

// `<root>/<name>`, created if it does not exist yet (same error as dataRoot).
std::filesystem::path dataFolder(std::string_view name);

// Makes `folder` the root; an empty path goes back to KEL_SIM_DATA_ROOT or the
// per-process default. The folder is created on first use, not here.
void setDataRoot(const std::filesystem::path& folder);

} // namespace Varno::Kel_cpp::Reference
