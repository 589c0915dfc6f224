// Projects live in `<data root>/projects/<name>/`, each with its project file
// (project.json) and its database files. The state reads them when the vehicle starts;
// what an operation changes stays in memory until it is saved.
#include "Projects.h"

#include "DataRoot.h"
#include "ErrorCodes.h"
#include "ProjectFiles.h"
#include "SimulatedVehicle.h"

#include <Kel_cpp/TarnApiException.h>

#include <system_error>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

constexpr const wchar_t* defaultProjectName = L"Default";
constexpr const wchar_t* defaultDatabase = L"vehicle.kdb";

std::wstring what(const std::exception& e) { return fromUtf8(e.what()); }

// The default project's configuration, also what a conversion starts from.
std::shared_ptr<ProjectConfig> defaultConfig(const std::wstring& name) {
    auto config = std::make_shared<ProjectConfig>();
    config->itemText1 = name;
    config->itemText2 = L"Simulated vehicle project";
    config->text1 = L"ISO 14229 on ISO 15765";
    config->value1 = currentProjectFormat;
    return config;
}

Json projectFile(const Project& project) {
    Json file = Json::object();
    file["format"] = currentProjectFormat;
    file["configuration"] = toJson(project.config);
    file["databases"] = toJson(project.databases);
    return file;
}

// The bundled default vehicle's project, made where it is missing.
void makeDefaultProject(const std::filesystem::path& projects) {
    const auto folder = projects / pathFromWide(defaultProjectName);
    std::error_code error;
    if (std::filesystem::exists(folder / projectFileName, error)) {
        return;
    }
    std::filesystem::create_directories(folder, error);
    Project project;
    project.name = defaultProjectName;
    project.config = defaultConfig(project.name);
    project.databases = {defaultDatabase};
    writeJsonFile(folder / projectFileName, projectFile(project));
    Json database = Json::object();
    database["kind"] = "kel_sim database";
    database["format"] = 1;
    writeJsonFile(folder / pathFromWide(defaultDatabase), database);
}

// Reads one project folder; what cannot be read is kept as the project's problem.
Project readProject(const std::filesystem::path& folder) {
    Project project;
    project.name = wideFromPath(folder.filename());
    project.folder = folder;
    try {
        auto file = readJsonFile(folder / projectFileName);
        if (!file) {
            throw std::runtime_error("has no project file");
        }
        project.format = static_cast<int>(file->value("format", 0));
        if (project.format < 1 || project.format > currentProjectFormat) {
            throw std::runtime_error("has a project file of an unknown format");
        }
        project.databases = fromJson<std::vector<std::wstring>>(
            file->value("databases", Json::array()), "databases");
        if (project.format == currentProjectFormat) {
            project.config = fromJson<std::shared_ptr<ProjectConfig>>(
                file->value("configuration", Json()), "configuration");
        }
    } catch (const std::exception& e) {
        project.format = 0;
        project.problem = wideFromPath(folder / projectFileName) + L": " + what(e);
    }
    return project;
}

} // namespace

ProjectsState::ProjectsState() {
    const std::lock_guard lock(mutex_);
    scanLocked();
}

void ProjectsState::scanLocked() {
    projects_.clear();
    try {
        folder_ = dataFolder("projects");
        rootProblem_.clear();
        makeDefaultProject(folder_);
    } catch (const TarnApiException& e) {
        rootProblem_ = e.message + L" (" + e.details + L")";
        return;
    }
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder_, error)) {
        if (entry.is_directory(error)) {
            auto project = readProject(entry.path());
            projects_.emplace(project.name, std::move(project));
        }
    }
    if (!projects_.contains(selected_)) {
        selected_ = defaultProjectName;
    }
}

void ProjectsState::requireRootLocked() const {
    if (!rootProblem_.empty()) {
        throw TarnApiException(DataRootUnavailable, L"The engine's data folder cannot be used",
                               rootProblem_);
    }
}

const Project& ProjectsState::requireProjectLocked(const std::wstring& name) const {
    requireRootLocked();
    const auto found = projects_.find(name);
    if (found == projects_.end()) {
        throw TarnApiException(UnknownProject, L"There is no project of this name", name);
    }
    return found->second;
}

std::filesystem::path ProjectsState::projectsFolder() const {
    const std::lock_guard lock(mutex_);
    requireRootLocked();
    return folder_;
}

std::wstring ProjectsState::selectedName() const {
    const std::lock_guard lock(mutex_);
    requireRootLocked();
    return selected_;
}

std::filesystem::path ProjectsState::selectedFolder() const {
    const std::lock_guard lock(mutex_);
    return requireProjectLocked(selected_).folder;
}

Projects::Projects(std::shared_ptr<SimulatedVehicle> vehicle, const EngineObject& object)
    : vehicle_(std::move(vehicle)), state_(vehicle_->projects), clock_(object.clock) {}

void Projects::refreshProjectList() {
    const std::lock_guard lock(state_.mutex_);
    state_.scanLocked();
    state_.requireRootLocked();
}

std::wstring Projects::getVersion() { return L"kel_cpp 0.1.0 (simulated vehicle)"; }

std::wstring Projects::getSelectedProject() { return state_.selectedName(); }

void Projects::setSelectedProject(const std::wstring& projectName) {
    const std::lock_guard lock(state_.mutex_);
    const auto& project = state_.requireProjectLocked(projectName);
    if (project.format == 0) {
        throw TarnApiException(ProjectUnreadable, L"The project cannot be read", project.problem);
    }
    if (project.format < currentProjectFormat) {
        throw TarnApiException(ProjectNeedsConversion, L"The project must be converted first",
                               projectName);
    }
    state_.selected_ = projectName;
}

} // namespace Varno::Kel_cpp::Reference
