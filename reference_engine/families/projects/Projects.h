// Projects: the diagnostic projects in the data root, the engine's configuration, system
// properties, database files, and what the engine reports about itself and its host.
#pragma once

#include "Families.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

class SimulatedVehicle;
struct EngineObject;
class CallClock;

// One project: a folder below the projects folder with its project file.
struct Project {
    std::wstring name; // the folder's name
    std::filesystem::path folder;
    int format = 0;                        // the project file's format; 0 when it cannot be read
    std::wstring problem;                  // why the project file cannot be read, else empty
    std::shared_ptr<ProjectConfig> config; // as set; saveProjectConfiguration writes it
    std::vector<std::wstring> databases;   // loaded when the project is selected
};

// Per vehicle, under its own lock. The projects are read from the data root when the
// vehicle starts and again by refreshProjectList, so a restarted engine finds what was
// saved.
class ProjectsState {
public:
    ProjectsState();

    // `<data root>/projects`, made if missing.
    std::filesystem::path projectsFolder() const;
    // The selected project's name and folder. Every vehicle has a selected project: the
    // saved selection, else the default project (made in the data root when missing).
    std::wstring selectedName() const;
    std::filesystem::path selectedFolder() const;

private:
    friend class Projects;

    // Callers hold mutex_.
    void scanLocked();
    void requireRootLocked() const;
    const Project& requireProjectLocked(const std::wstring& name) const;

    mutable std::mutex mutex_;
    std::filesystem::path folder_; // the projects folder; empty when it cannot be made
    std::wstring rootProblem_;     // why, else empty
    std::map<std::wstring, Project> projects_;
    std::wstring selected_;
};

class Projects final : public ProjectsFamily {
public:
    Projects(std::shared_ptr<SimulatedVehicle> vehicle, const EngineObject& object);

    void refreshProjectList() override;
    std::wstring getVersion() override;
    std::wstring getSelectedProject() override;
    void setSelectedProject(const std::wstring& projectName) override;

private:
    std::shared_ptr<SimulatedVehicle> vehicle_;
    ProjectsState& state_;
    std::shared_ptr<CallClock> clock_;
};

} // namespace Varno::Kel_cpp::Reference
