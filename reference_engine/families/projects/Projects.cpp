// Projects live in `<data root>/projects/<name>/`, each with its project file
// (project.json) and its database files. The state reads them when the vehicle starts;
// what an operation changes stays in memory until it is saved.
#include "Projects.h"

#include "DataRoot.h"
#include "ErrorCodes.h"
#include "ProjectFiles.h"
#include "SimulatedVehicle.h"

#include <Kel_cpp/TarnApiException.h>

#include <algorithm>
#include <system_error>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

constexpr const wchar_t* defaultProjectName = L"Default";
constexpr const wchar_t* defaultDatabase = L"vehicle.kdb";
constexpr const char* databaseKind = "kel_sim database";
constexpr const wchar_t* databaseExtension = L".kdb";

std::wstring what(const std::exception& e) { return fromUtf8(e.what()); }

std::shared_ptr<KelError> fileError(int32_t code, std::wstring message, std::wstring details) {
    auto error = std::make_shared<KelError>();
    error->code = code;
    error->message = std::move(message);
    error->details = std::move(details);
    return error;
}

// The configuration a new or converted project starts with.
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
    database["kind"] = databaseKind;
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
            throw std::runtime_error("is missing");
        }
        const auto format = file->value("format", Json());
        if (!format.is_number_integer() || format.get<int>() < 1 ||
            format.get<int>() > currentProjectFormat) {
            throw std::runtime_error("has no format this engine reads");
        }
        project.databases = fromJson<std::vector<std::wstring>>(
            file->value("databases", Json::array()), "databases");
        if (format.get<int>() == currentProjectFormat) {
            project.config = fromJson<std::shared_ptr<ProjectConfig>>(
                file->value("configuration", Json()), "configuration");
        }
        project.format = format.get<int>();
    } catch (const std::exception& e) {
        project.problem = wideFromPath(folder / projectFileName) + L" " + what(e);
    }
    return project;
}

void requireReadable(const Project& project) {
    if (project.format == 0) {
        throw TarnApiException(ProjectUnreadable, L"The project's file cannot be read",
                               project.problem);
    }
}

void requireConverted(const Project& project) {
    requireReadable(project);
    if (project.format < currentProjectFormat) {
        throw TarnApiException(ProjectNeedsConversion, L"The project must be converted first",
                               project.name);
    }
}

// A database file named relative to the project's folder: its normal form, or the error
// of a name that leaves the folder.
std::shared_ptr<KelError> databaseName(const std::wstring& file, std::wstring& normal) {
    const auto path = pathFromWide(file).lexically_normal();
    if (file.empty() || path.is_absolute() || path.has_root_name() || path.has_root_directory() ||
        path.empty() || *path.begin() == ".." || path == ".") {
        return fileError(PathOutsideProject, L"The path is not a file of the project", file);
    }
    normal = wideFromPath(path);
    return nullptr;
}

// Why `file` cannot be loaded as a database, or null.
std::shared_ptr<KelError> checkDatabase(const std::filesystem::path& file,
                                        const std::wstring& name) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error)) {
        return fileError(DatabaseFileMissing, L"The database file does not exist", name);
    }
    try {
        const auto json = readJsonFile(file);
        if (json && json->is_object() && json->value("kind", "") == databaseKind) {
            return nullptr;
        }
    } catch (const std::exception&) {
    }
    return fileError(NotADatabaseFile, L"The file is not a database file", name);
}

std::shared_ptr<DbFileInfo> dbFileInfo(const Project& project, const std::wstring& name,
                                       bool loaded) {
    auto info = std::make_shared<DbFileInfo>();
    const auto file = project.folder / pathFromWide(name);
    info->name = name;
    info->path = wideFromPath(file);
    std::error_code error;
    const auto size = std::filesystem::file_size(file, error);
    info->size = error ? 0 : size;
    info->loaded = loaded;
    info->error = checkDatabase(file, name);
    return info;
}

} // namespace

ProjectsState::ProjectsState() {
    const std::lock_guard lock(mutex_);
    readConfigurationLocked();
    scanLocked();
    selectLocked(selected_);
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
    const auto found = projects_.find(selected_);
    if (found == projects_.end() || found->second.format != currentProjectFormat) {
        selected_ = defaultProjectName;
        loaded_.clear();
    }
}

// Selecting a project loads the database files its project file lists, those that load.
void ProjectsState::selectLocked(const std::wstring& name) {
    const auto found = projects_.find(name);
    selected_ = found != projects_.end() && found->second.format == currentProjectFormat
                    ? name
                    : defaultProjectName;
    loaded_.clear();
    const auto project = projects_.find(selected_);
    if (project == projects_.end()) {
        return;
    }
    for (const auto& database : project->second.databases) {
        std::wstring normal;
        if (!databaseName(database, normal) &&
            !checkDatabase(project->second.folder / pathFromWide(normal), normal)) {
            loaded_.push_back(normal);
        }
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

Project& ProjectsState::requireProjectLocked(const std::wstring& name) {
    return const_cast<Project&>(std::as_const(*this).requireProjectLocked(name));
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

// An unknown project has no configuration: null, not an error.
std::shared_ptr<ProjectConfig> Projects::getProjectConfiguration(const std::wstring& projectName) {
    const std::lock_guard lock(state_.mutex_);
    state_.requireRootLocked();
    const auto found = state_.projects_.find(projectName);
    return found != state_.projects_.end() ? copyOf(found->second.config) : nullptr;
}

void Projects::setProjectConfiguration(const std::wstring& projectName,
                                       std::shared_ptr<ProjectConfig> config) {
    const std::lock_guard lock(state_.mutex_);
    auto& project = state_.requireProjectLocked(projectName);
    requireConverted(project);
    if (!config) {
        throw TarnApiException(MissingInput, L"No project configuration was given", projectName);
    }
    project.config = copyOf(config);
}

void Projects::saveProjectConfiguration(const std::wstring& projectName) {
    const std::lock_guard lock(state_.mutex_);
    const auto& project = state_.requireProjectLocked(projectName);
    requireConverted(project);
    writeJsonFile(project.folder / projectFileName, projectFile(project));
}

// The selection and its loaded database files stay while the project is still there.
void Projects::refreshProjectList() {
    const std::lock_guard lock(state_.mutex_);
    const auto selected = state_.selected_;
    state_.scanLocked();
    state_.requireRootLocked();
    if (state_.selected_ != selected) {
        state_.selectLocked(state_.selected_);
    }
}

namespace {

// The name of a project given by name or by the path of its folder, which must lie
// directly in the projects folder.
std::wstring projectAt(const std::map<std::wstring, Project>& projects,
                       const std::filesystem::path& folder, const std::wstring& projectPath) {
    if (projects.contains(projectPath)) {
        return projectPath;
    }
    std::error_code error;
    const auto path = std::filesystem::weakly_canonical(folder / pathFromWide(projectPath), error);
    const auto base = std::filesystem::weakly_canonical(folder, error);
    if (!error && !projectPath.empty() && path.parent_path() == base) {
        const auto name = wideFromPath(path.filename());
        if (projects.contains(name)) {
            return name;
        }
    }
    throw TarnApiException(UnknownProject, L"There is no project at this path", projectPath);
}

} // namespace

bool Projects::isProjectConversionRequired(const std::wstring& projectPath) {
    const std::lock_guard lock(state_.mutex_);
    state_.requireRootLocked();
    const auto& project =
        state_.projects_.at(projectAt(state_.projects_, state_.folder_, projectPath));
    requireReadable(project);
    return project.format < currentProjectFormat;
}

// Converting writes the project file in the current format, with the configuration a new
// project starts with; the database files are kept.
void Projects::convertProject(const std::wstring& projectPath) {
    const std::lock_guard lock(state_.mutex_);
    state_.requireRootLocked();
    auto& project = state_.projects_.at(projectAt(state_.projects_, state_.folder_, projectPath));
    requireReadable(project);
    if (project.format == currentProjectFormat) {
        return;
    }
    Project converted = project;
    converted.config = defaultConfig(project.name);
    converted.format = currentProjectFormat;
    writeJsonFile(project.folder / projectFileName, projectFile(converted));
    project = std::move(converted);
}

namespace {

std::shared_ptr<ProjectDetails> details(const Project& project, bool selected,
                                        const std::vector<std::wstring>& loaded) {
    auto record = std::make_shared<ProjectDetails>();
    std::vector<std::wstring> names = project.databases;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(project.folder, error)) {
        if (entry.is_regular_file(error) && entry.path().extension() == databaseExtension) {
            names.push_back(wideFromPath(entry.path().filename()));
        }
    }
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    for (const auto& name : names) {
        const bool isLoaded =
            selected && std::find(loaded.begin(), loaded.end(), name) != loaded.end();
        record->dbFiles1.push_back(dbFileInfo(project, name, isLoaded));
    }
    if (selected) {
        for (const auto& name : loaded) {
            record->dbFiles2.push_back(dbFileInfo(project, name, true));
        }
    }
    record->text1 = project.name;
    record->value1 = static_cast<uint32_t>(project.format);
    record->text2 = wideFromPath(project.folder);
    record->value2 = selected ? 1 : 0;
    return record;
}

} // namespace

std::shared_ptr<ProjectDetails> Projects::getProjectDetails() {
    const std::lock_guard lock(state_.mutex_);
    const auto& project = state_.requireProjectLocked(state_.selected_);
    return details(project, true, state_.loaded_);
}

// No names: every project, by name.
std::vector<std::shared_ptr<ProjectDetails>>
Projects::getProjectsDetails(const std::vector<std::wstring>& projectNames) {
    const std::lock_guard lock(state_.mutex_);
    state_.requireRootLocked();
    std::vector<std::wstring> names = projectNames;
    if (names.empty()) {
        for (const auto& entry : state_.projects_) {
            names.push_back(entry.first);
        }
    }
    std::vector<std::shared_ptr<ProjectDetails>> result;
    for (const auto& name : names) {
        const auto& project = state_.requireProjectLocked(name);
        result.push_back(details(project, name == state_.selected_, state_.loaded_));
    }
    return result;
}

// One result per file: what cannot be loaded is that file's error, not the call's.
std::vector<std::shared_ptr<LoadDatabaseResult>>
Projects::loadDatabaseFile(const std::vector<std::wstring>& files) {
    vehicle_->lifecycle.requireInitialized();
    const std::lock_guard lock(state_.mutex_);
    const auto& project = state_.requireProjectLocked(state_.selected_);
    std::vector<std::shared_ptr<LoadDatabaseResult>> results;
    for (const auto& file : files) {
        auto result = std::make_shared<LoadDatabaseResult>();
        result->text = file;
        std::wstring name;
        result->error = databaseName(file, name);
        if (!result->error) {
            result->error = checkDatabase(project.folder / pathFromWide(name), file);
        }
        if (!result->error) {
            if (std::find(state_.loaded_.begin(), state_.loaded_.end(), name) ==
                state_.loaded_.end()) {
                state_.loaded_.push_back(name);
            }
            result->flag = true;
        }
        results.push_back(std::move(result));
    }
    return results;
}

std::vector<std::shared_ptr<LoadDatabaseResult>>
Projects::unloadDatabaseFile(const std::vector<std::wstring>& files) {
    vehicle_->lifecycle.requireInitialized();
    const std::lock_guard lock(state_.mutex_);
    state_.requireProjectLocked(state_.selected_);
    std::vector<std::shared_ptr<LoadDatabaseResult>> results;
    for (const auto& file : files) {
        auto result = std::make_shared<LoadDatabaseResult>();
        result->text = file;
        std::wstring name;
        result->error = databaseName(file, name);
        if (!result->error) {
            const auto found = std::find(state_.loaded_.begin(), state_.loaded_.end(), name);
            if (found == state_.loaded_.end()) {
                result->error =
                    fileError(DatabaseFileNotLoaded, L"The database file is not loaded", file);
            } else {
                state_.loaded_.erase(found);
            }
        }
        results.push_back(std::move(result));
    }
    return results;
}

// The projects that need no conversion, by name.
std::vector<std::shared_ptr<ProjectConfig>> Projects::getProjectConfigurations() {
    const std::lock_guard lock(state_.mutex_);
    state_.requireRootLocked();
    std::vector<std::shared_ptr<ProjectConfig>> configs;
    for (const auto& entry : state_.projects_) {
        if (entry.second.format == currentProjectFormat) {
            configs.push_back(copyOf(entry.second.config));
        }
    }
    return configs;
}

std::wstring Projects::getSelectedProject() { return state_.selectedName(); }

void Projects::setSelectedProject(const std::wstring& projectName) {
    const std::lock_guard lock(state_.mutex_);
    requireConverted(state_.requireProjectLocked(projectName));
    state_.selectLocked(projectName);
}

} // namespace Varno::Kel_cpp::Reference
