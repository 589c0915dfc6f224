// Projects: the diagnostic projects in the data root, the engine's configuration, system
// properties, database files, and what the engine reports about itself and its host.
#pragma once

#include "Families.h"

#include <chrono>
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

// The engine's configuration: what saveConfiguration and saveMoxConfiguration write to
// `<data root>/configuration`.
struct Configuration {
    std::shared_ptr<TarnApiConfig> engine;
    std::shared_ptr<MoxConfig> mox;
    std::vector<std::shared_ptr<GlobalProtocolParameterSet>> protocolSets;
    std::vector<std::shared_ptr<SystemProperty>> properties; // the roots of the tree
    std::wstring engineProblem; // why the saved engine.json cannot be read, else empty
    std::wstring moxProblem;    // the same for mox.json
};

// Per vehicle, under its own lock. The projects and the saved configuration are read from
// the data root when the vehicle starts (and the projects again by refreshProjectList),
// so a restarted engine finds what was saved.
class ProjectsState {
public:
    ProjectsState();

    // `<data root>/projects`. Throws DataRootUnavailable when it could not be made.
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
    Project& requireProjectLocked(const std::wstring& name);
    void selectLocked(const std::wstring& name);
    void readConfigurationLocked();

    mutable std::mutex mutex_;
    std::filesystem::path folder_; // the projects folder; empty when it cannot be made
    std::wstring rootProblem_;     // why, else empty
    std::map<std::wstring, Project> projects_;
    std::wstring selected_;
    std::vector<std::wstring> loaded_; // database files of the selected project, as loaded
    Configuration configuration_;
    std::wstring statusText_;
    uint64_t statusTextChanges_ = 0;
    const std::chrono::steady_clock::time_point started_ = std::chrono::steady_clock::now();
    const std::chrono::system_clock::time_point startedAt_ = std::chrono::system_clock::now();
};

class Projects final : public ProjectsFamily {
public:
    Projects(std::shared_ptr<SimulatedVehicle> vehicle, const EngineObject& object);

    // Projects and database files (Projects.cpp).
    std::shared_ptr<ProjectConfig>
    getProjectConfiguration(const std::wstring& projectName) override;
    void setProjectConfiguration(const std::wstring& projectName,
                                 std::shared_ptr<ProjectConfig> config) override;
    void saveProjectConfiguration(const std::wstring& projectName) override;
    void refreshProjectList() override;
    bool isProjectConversionRequired(const std::wstring& projectPath) override;
    void convertProject(const std::wstring& projectPath) override;
    std::shared_ptr<ProjectDetails> getProjectDetails() override;
    std::vector<std::shared_ptr<ProjectDetails>>
    getProjectsDetails(const std::vector<std::wstring>& projectNames) override;
    std::vector<std::shared_ptr<LoadDatabaseResult>>
    loadDatabaseFile(const std::vector<std::wstring>& files) override;
    std::vector<std::shared_ptr<LoadDatabaseResult>>
    unloadDatabaseFile(const std::vector<std::wstring>& files) override;
    std::vector<std::shared_ptr<ProjectConfig>> getProjectConfigurations() override;
    std::wstring getSelectedProject() override;
    void setSelectedProject(const std::wstring& projectName) override;

    // Configuration and system properties (Configuration.cpp).
    void saveConfiguration() override;
    void saveMoxConfiguration() override;
    std::shared_ptr<SystemProperty> getSystemProperty(const std::wstring& name) override;
    void resetSystemProperty(const std::wstring& name) override;
    void setSystemProperty(std::shared_ptr<SystemProperty> property) override;
    std::shared_ptr<TarnApiConfig> getConfiguration() override;
    void setConfiguration(std::shared_ptr<TarnApiConfig> config) override;
    std::shared_ptr<MoxConfig> getMoxConfiguration() override;
    void setMoxConfiguration(std::shared_ptr<MoxConfig> config) override;
    std::vector<std::shared_ptr<GlobalProtocolParameterSet>>
    getGlobalProtocolParameterSets() override;
    void setGlobalProtocolParameterSets(
        const std::vector<std::shared_ptr<GlobalProtocolParameterSet>>& sets) override;

    // What the engine reports about itself (Information.cpp).
    std::wstring getVersion() override;
    std::shared_ptr<SystemInfo> getSystemInfo() override;
    std::shared_ptr<ProcessInfo> getProcessInfo() override;
    std::shared_ptr<TransmissionInfo> getTransmissionInfo() override;
    std::shared_ptr<StatusInfo> getStatusInfo() override;
    std::wstring getCurrentDebugTraceDirectory() override;
    void setStatusText(const std::wstring& text) override;

private:
    std::shared_ptr<SimulatedVehicle> vehicle_;
    ProjectsState& state_;
    std::shared_ptr<CallClock> clock_;
};

// The defaults a vehicle starts from when nothing is saved (Configuration.cpp).
Configuration defaultConfiguration();

} // namespace Varno::Kel_cpp::Reference
