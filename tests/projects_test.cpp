// Projects, configuration and system information against the simulated engine. Each test
// runs on a fresh data root of its own, so what one saves never reaches another.
#include "support.h"
#include "uds.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#if defined(_WIN32)
#include <windows.h>

#include <process.h>
#else
#include <unistd.h>

#include <sys/syscall.h>
#endif

namespace {

using namespace kel_test;

// Replaces a string member of a record the library handed out.
void replace(wchar_t*& member, const wchar_t* text) {
    release_Memory(member);
    member = duplicate_WString(text);
}

void writeFile(const std::filesystem::path& file, const std::string& text) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
}

const std::string database = R"({"kind": "kel_sim database", "format": 1})";

uint32_t currentThreadId() {
#if defined(_WIN32)
    return GetCurrentThreadId();
#else
    return static_cast<uint32_t>(syscall(SYS_gettid));
#endif
}

uint32_t processId() {
#if defined(_WIN32)
    return static_cast<uint32_t>(_getpid());
#else
    return static_cast<uint32_t>(getpid());
#endif
}

using Texts = std::vector<std::wstring>;
using Loads = List<LoadDatabaseResult, release_LoadDatabaseResult_array>;

// Each database file's result as "<file> <loaded> <error code>".
Texts outcomes(const Loads& list) {
    Texts out;
    for (uint32_t i = 0; i < list.count; ++i) {
        const auto& r = *list.items[i];
        out.push_back(std::wstring(r.text) + L" " + std::to_wstring(r.flag) + L" " +
                      std::to_wstring(codeIn(r.error)));
    }
    return out;
}

class ProjectsTest : public ::testing::Test {
protected:
    void SetUp() override {
        root = kel_test::freshTempPath("kel_projects_test");
        kelsim_reset();
        kelsim_setDataRoot(root.wstring().c_str());
        start();
    }
    void TearDown() override {
        stop();
        kelsim_setDataRoot(nullptr);
        kelsim_reset();
        std::error_code ignored;
        std::filesystem::remove_all(root, ignored);
    }

    // A fresh engine on the same data root, as after a restart of the process.
    void restart() {
        stop();
        start();
    }

    std::wstring selected() {
        ErrorSlot error;
        wchar_t* name = nullptr;
        kel_getSelectedProject(api, &error, &name);
        EXPECT_FALSE(error);
        std::wstring copy = name != nullptr ? name : L"<null>";
        release_Memory(name);
        return copy;
    }

    ProjectConfig* configuration(const wchar_t* project) {
        ErrorSlot error;
        ProjectConfig* config = nullptr;
        kel_getProjectConfiguration(api, project, &error, &config);
        EXPECT_FALSE(error);
        return config;
    }

    int32_t selectionError(const wchar_t* project) {
        ErrorSlot error;
        kel_setSelectedProject(api, &error, project);
        return error ? error->code : 0;
    }

    SystemProperty* property(const wchar_t* name) {
        ErrorSlot error;
        SystemProperty* p = nullptr;
        kel_getSystemProperty(api, name, &error, &p);
        EXPECT_FALSE(error) << std::filesystem::path(name).string();
        return p;
    }
    // A property's value and whether it was changed, as "<value> <changed>".
    std::wstring valueOf(const wchar_t* name) {
        SystemProperty* p = property(name);
        const std::wstring out =
            p == nullptr ? L"<none>" : p->text1 + (L" " + std::to_wstring(p->flag));
        release_SystemProperty(p);
        return out;
    }

    std::filesystem::path projects() const { return root / "projects"; }

    kel_test::Owned<ProjectDetails> projectDetails() {
        return fetchRecord(release_ProjectDetails,
                           [&](auto... out) { kel_getProjectDetails(api, out...); });
    }
    kel_test::Owned<StatusInfo> statusInfo() {
        return fetchRecord(release_StatusInfo,
                           [&](auto... out) { kel_getStatusInfo(api, out...); });
    }
    kel_test::Owned<ProcessInfo> processInfo() {
        return fetchRecord(release_ProcessInfo,
                           [&](auto... out) { kel_getProcessInfo(api, out...); });
    }

    std::filesystem::path root;
    TarnApi* api = nullptr;

private:
    void start() {
        kelsim_restart();
        api = kel_getTarnApi();
        ASSERT_NE(api, nullptr);
        ErrorSlot error;
        kel_initialize(api, &error);
        ASSERT_FALSE(error);
    }
    void stop() {
        if (api != nullptr) {
            releaseTarnApi(api);
            api = nullptr;
        }
    }
};

TEST_F(ProjectsTest, TheDefaultProjectIsMadeAndSelectingAnUnknownOneKeepsIt) {
    EXPECT_EQ(selected(), L"Default");
    EXPECT_TRUE(std::filesystem::exists(root / "projects" / "Default" / "project.json"));
    EXPECT_TRUE(std::filesystem::exists(root / "projects" / "Default" / "vehicle.kdb"));
    for (const wchar_t* name : {L"Nowhere", L"", L"../Default", L"Default/.."}) {
        SCOPED_TRACE(std::filesystem::path(name).string());
        EXPECT_ENGINE_ERROR(error, 1200, kel_setSelectedProject(api, &error, name));
    }
    EXPECT_EQ(selected(), L"Default");
}

TEST_F(ProjectsTest, ASavedProjectConfigurationOutlivesARestartAndAnUnsavedOneDoesNot) {
    const wchar_t* description = L"Werkstatt S\u00fcd \u2713";
    auto change = [&] {
        ProjectConfig* config = configuration(L"Default");
        ASSERT_NE(config, nullptr);
        replace(config->itemText2, description);
        config->value0 = -5;
        config->value3 = 77;
        config->flags[2] = true;
        ErrorSlot error;
        kel_setProjectConfiguration(api, L"Default", config, &error);
        ASSERT_FALSE(error);
    };
    auto check = [&](const wchar_t* expected, int32_t value0) {
        ProjectConfig* config = configuration(L"Default");
        ASSERT_NE(config, nullptr);
        EXPECT_EQ(std::wstring(config->itemText1), L"Default");
        EXPECT_EQ(std::wstring(config->itemText2), expected);
        EXPECT_EQ(config->value0, value0);
        EXPECT_EQ(config->flags[2], value0 != 0);
        release_ProjectConfig(config);
    };

    change();
    check(description, -5);
    restart();
    check(L"Simulated vehicle project", 0);

    change();
    ASSERT_SUCCEEDS(ok, kel_saveProjectConfiguration(api, L"Default", &ok));
    restart();
    check(description, -5);

    const auto all = fetch<List<ProjectConfig, release_ProjectConfig_array>>(
        [&](auto... out) { kel_getProjectConfigurations(api, out...); });
    ASSERT_EQ(all->count, 1u);
    EXPECT_EQ(all->items[0]->value3, 77u);

    EXPECT_EQ(configuration(L"Nowhere"), nullptr); // no record and no error
    EXPECT_ENGINE_ERROR(null, 1207, kel_setProjectConfiguration(api, L"Default", nullptr, &null));
    EXPECT_ENGINE_ERROR(unknown, 1200, kel_saveProjectConfiguration(api, L"Nowhere", &unknown));
}

TEST_F(ProjectsTest, TheEngineConfigurationOutlivesARestartOnlyWhenSaved) {
    std::filesystem::copy(projects() / "Default", projects() / "Second");
    ASSERT_SUCCEEDS(ok, kel_refreshProjectList(api, &ok));
    ASSERT_EQ(selectionError(L"Second"), 0);

    TarnApiConfig* config = nullptr;
    ASSERT_SUCCEEDS(ok, kel_getConfiguration(api, &ok, &config));
    ASSERT_NE(config, nullptr);
    ASSERT_NE(config->server, nullptr);
    config->value1 = 42;
    config->value7 = 0xBEEF;
    config->server->port = 7000;
    ASSERT_SUCCEEDS(ok, kel_setConfiguration(api, &ok, config));

    MoxConfig* mox = nullptr;
    ASSERT_SUCCEEDS(ok, kel_getMoxConfiguration(api, &ok, &mox));
    ASSERT_NE(mox, nullptr);
    replace(mox->text1, L"mox \u00fc");
    ASSERT_SUCCEEDS(ok, kel_setMoxConfiguration(api, &ok, mox));

    SystemProperty* language = property(L"Engine.Language");
    ASSERT_NE(language, nullptr);
    replace(language->text1, L"de");
    ASSERT_SUCCEEDS(ok, kel_setSystemProperty(api, language, &ok));

    // The Mox configuration is not saved with it.
    ASSERT_SUCCEEDS(ok, kel_saveConfiguration(api, &ok));
    restart();

    EXPECT_EQ(selected(), L"Second");
    ASSERT_SUCCEEDS(ok, kel_getConfiguration(api, &ok, &config));
    EXPECT_EQ(config->value1, 42);
    EXPECT_EQ(config->value7, 0xBEEF);
    EXPECT_EQ(config->server->port, 7000u);
    EXPECT_EQ(std::wstring(config->server->address), L"127.0.0.1");
    release_TarnApiConfig(config);
    EXPECT_EQ(valueOf(L"Engine.Language"), L"de 1");
    ASSERT_SUCCEEDS(ok, kel_getMoxConfiguration(api, &ok, &mox));
    EXPECT_EQ(std::wstring(mox->text1), L"");
    replace(mox->text1, L"mox \u00fc");
    ASSERT_SUCCEEDS(ok, kel_setMoxConfiguration(api, &ok, mox));
    ASSERT_SUCCEEDS(ok, kel_saveMoxConfiguration(api, &ok));
    restart();
    ASSERT_SUCCEEDS(ok, kel_getMoxConfiguration(api, &ok, &mox));
    EXPECT_EQ(std::wstring(mox->text1), L"mox \u00fc");
    release_MoxConfig(mox);
}

TEST_F(ProjectsTest, ASavedConfigurationThatCannotBeReadIsReportedUntilReplaced) {
    writeFile(root / "configuration" / "engine.json", "{\"format\": 1");
    restart();
    TarnApiConfig* config = nullptr;
    EXPECT_ENGINE_ERROR(error, 1209, kel_getConfiguration(api, &error, &config));
    EXPECT_EQ(selected(), L"Default");

    config = zeroed<TarnApiConfig>();
    config->value1 = 9;
    config->text = duplicate_WString(L"");
    ASSERT_SUCCEEDS(ok, kel_setConfiguration(api, &ok, config));
    ASSERT_SUCCEEDS(ok, kel_saveConfiguration(api, &ok));
    restart();
    ASSERT_SUCCEEDS(ok, kel_getConfiguration(api, &ok, &config));
    EXPECT_EQ(config->value1, 9);
    EXPECT_EQ(config->server, nullptr);
    release_TarnApiConfig(config);
}

TEST_F(ProjectsTest, DatabaseFilesLoadAndUnloadWithAnErrorPerFile) {
    writeFile(projects() / "Default" / "second.kdb", database);
    writeFile(projects() / "Default" / "notes.kdb", "not a database");
    writeFile(root / "outside.kdb", database);
    ErrorSlot error;
    wchar_t* files[] = {const_cast<wchar_t*>(L"second.kdb"), const_cast<wchar_t*>(L"missing.kdb"),
                        const_cast<wchar_t*>(L"../../outside.kdb"),
                        const_cast<wchar_t*>(L"notes.kdb"), const_cast<wchar_t*>(L"vehicle.kdb")};
    Loads loaded;
    ASSERT_SUCCEEDS(ok, kel_loadDatabaseFile(api, files, 5, &ok, &loaded.items, &loaded.count));
    EXPECT_EQ(outcomes(loaded),
              (Texts{L"second.kdb 1 0", L"missing.kdb 0 1203", L"../../outside.kdb 0 1206",
                     L"notes.kdb 0 1204", L"vehicle.kdb 1 0"}));

    auto details = projectDetails();
    ASSERT_NE(details, nullptr);
    EXPECT_EQ(std::wstring(details->text1), L"Default");
    ASSERT_EQ(details->dbFileCount2, 2u); // the project's own database, then the new one
    EXPECT_EQ(std::wstring(details->dbFiles2[0]->name), L"vehicle.kdb");
    EXPECT_EQ(std::wstring(details->dbFiles2[1]->name), L"second.kdb");
    ASSERT_EQ(details->dbFileCount1, 3u); // every database file in the folder, by name
    EXPECT_EQ(std::wstring(details->dbFiles1[0]->name), L"notes.kdb");
    ASSERT_EQ(codeIn(details->dbFiles1[0]->error), 1204);
    EXPECT_EQ(details->dbFiles1[0]->loaded, 0);
    EXPECT_EQ(details->dbFiles1[1]->loaded, 1);
    EXPECT_EQ(details->dbFiles1[1]->size, database.size());

    wchar_t* unload[] = {const_cast<wchar_t*>(L"second.kdb"), const_cast<wchar_t*>(L"second.kdb")};
    const auto unloaded =
        fetch<Loads>([&](auto... out) { kel_unloadDatabaseFile(api, unload, 2, out...); });
    EXPECT_EQ(outcomes(*unloaded), (Texts{L"second.kdb 0 0", L"second.kdb 0 1205"}));
    EXPECT_EQ(statusInfo()->value5, 1u);
}

TEST_F(ProjectsTest, AnOlderProjectMustBeConvertedBeforeItCanBeSelected) {
    writeFile(projects() / "Old" / "project.json", R"({"format": 1, "databases": ["old.kdb"]})");
    writeFile(projects() / "Old" / "old.kdb", database);
    writeFile(projects() / "Broken" / "project.json", "{not json");
    ASSERT_SUCCEEDS(ok, kel_refreshProjectList(api, &ok));

    auto required = [&](const std::wstring& path) -> int {
        ErrorSlot e;
        uint8_t answer = 7;
        kel_isProjectConversionRequired(api, path.c_str(), &e, &answer);
        return e ? -e->code : answer;
    };
    EXPECT_EQ(required(L"Old"), 1);
    EXPECT_EQ(required((projects() / "Old").wstring()), 1);
    EXPECT_EQ(required(L"Default"), 0);
    EXPECT_EQ(required(L"Broken"), -1201);
    EXPECT_EQ(required(L"Nowhere"), -1200);
    EXPECT_EQ(required(root.wstring()), -1200);
    EXPECT_EQ(selectionError(L"Old"), 1202);
    EXPECT_EQ(selectionError(L"Broken"), 1201);
    EXPECT_EQ(configuration(L"Old"), nullptr);

    ASSERT_SUCCEEDS(ok, kel_convertProject(api, L"Old", &ok));
    EXPECT_EQ(required(L"Old"), 0);
    restart();
    EXPECT_EQ(required(L"Old"), 0);
    ASSERT_EQ(selectionError(L"Old"), 0);
    const auto details = projectDetails();
    ASSERT_EQ(details->dbFileCount2, 1u); // its database files are kept and load
    EXPECT_EQ(std::wstring(details->dbFiles2[0]->name), L"old.kdb");
    EXPECT_EQ(details->value1, 2u);
    ProjectConfig* config = configuration(L"Old");
    ASSERT_NE(config, nullptr);
    EXPECT_EQ(std::wstring(config->itemText1), L"Old");
    release_ProjectConfig(config);
}

TEST_F(ProjectsTest, SystemPropertiesFormATreeAndAResetRestoresTheDefaults) {
    SystemProperty* engine = property(L"Engine");
    ASSERT_NE(engine, nullptr);
    ASSERT_EQ(engine->childCount, 3u);
    EXPECT_EQ(std::wstring(engine->children[0]->itemText1), L"Engine.Language");
    EXPECT_EQ(std::wstring(engine->children[0]->text1), L"en");
    EXPECT_EQ(engine->children[0]->flag, 0);
    replace(engine->children[1]->text1, L"3");
    ASSERT_SUCCEEDS(ok, kel_setSystemProperty(api, engine, &ok)); // and the children given
    EXPECT_EQ(valueOf(L"Engine.TraceLevel"), L"3 1");

    // One unknown name refuses the whole change.
    engine = property(L"Engine");
    replace(engine->children[0]->text1, L"fr");
    replace(engine->children[2]->itemText1, L"Engine.Nothing");
    EXPECT_ENGINE_ERROR(unknown, 1208, kel_setSystemProperty(api, engine, &unknown));
    EXPECT_EQ(valueOf(L"Engine.Language"), L"en 0");

    ASSERT_SUCCEEDS(ok, kel_resetSystemProperty(api, L"Engine", &ok));
    EXPECT_EQ(valueOf(L"Engine.TraceLevel"), L"0 0");

    SystemProperty* none = nullptr;
    EXPECT_ENGINE_ERROR(unknown, 1208, kel_getSystemProperty(api, L"Nothing", &unknown, &none));
}

TEST_F(ProjectsTest, ProcessAndSystemInformationAreTheRealFigures) {
    const auto info = processInfo();
    ASSERT_NE(info, nullptr);
    ASSERT_EQ(info->processCount, 1u);
    const ProcessEntry* process = info->processes[0];
    EXPECT_EQ(process->value, processId());
    EXPECT_NE(std::wstring(process->text), L"");
    std::vector<uint32_t> threads;
    for (uint32_t i = 0; i < process->itemCount1; ++i) {
        threads.push_back(process->items1[i]->id);
    }
    EXPECT_NE(std::find(threads.begin(), threads.end(), currentThreadId()), threads.end());
    ASSERT_EQ(process->itemCount2, 3u);
    EXPECT_EQ(std::wstring(process->items2[0]->name), L"resident");
    EXPECT_GT(process->items2[0]->bytes, 0u);
    EXPECT_GE(process->items2[2]->bytes, process->items2[0]->bytes); // the peak
    EXPECT_EQ(info->flag1, sizeof(void*) == 8 ? 1 : 0);
    EXPECT_EQ(info->flag2, 1); // initialized

    const auto system =
        fetchRecord(release_SystemInfo, [&](auto... out) { kel_getSystemInfo(api, out...); });
    EXPECT_EQ(system->value1, std::thread::hardware_concurrency());
    EXPECT_EQ(system->value3, sizeof(void*) * 8);
    EXPECT_GT(system->value2, 0u);
#if defined(_WIN32)
    EXPECT_EQ(std::wstring(system->text1), L"Windows");
#else
    EXPECT_EQ(std::wstring(system->text1), L"Linux");
#endif
    EXPECT_NE(std::wstring(system->text3), L"");
}

TEST_F(ProjectsTest, TheStatusTextIsReportedAndPostedAsAnEvent) {
    uint64_t channel = 0;
    ASSERT_SUCCEEDS(ok, kel_openEventChannel(api, &ok, &channel));
    const wchar_t* text = L"Flashing ECM \u2713";
    ASSERT_SUCCEEDS(ok, kel_setStatusText(api, &ok, text));

    const auto report = fetchRecord(
        release_EventReport, [&](auto... out) { kel_getCurrentEvents(api, channel, 0, out...); });
    ASSERT_EQ(report->eventCount, 1u);
    EXPECT_EQ(report->events[0]->kind, 14);
    EXPECT_EQ(std::wstring(report->events[0]->name), L"StatusText");
    EXPECT_EQ(std::wstring(report->events[0]->text), text);
    EXPECT_EQ(std::wstring(processInfo()->text), text);
    EXPECT_EQ(statusInfo()->value7, 1u);
}

TEST_F(ProjectsTest, StatusInfoCountsTheCallsOfTheEngineObject) {
    const auto before = statusInfo();
    EXPECT_GT(before->value8, 0u);
    EXPECT_EQ(selected(), L"Default");
    EXPECT_EQ(selectionError(L"Nowhere"), 1200);
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    const auto after = statusInfo();
    EXPECT_EQ(after->value1, before->value1 + 3); // the first getStatusInfo and two calls
    EXPECT_EQ(after->value2, before->value2 + 1);
    EXPECT_GE(after->value3, before->value3 + 20);
    EXPECT_EQ(after->value8, before->value8);
    EXPECT_EQ(after->value6, 1u);
}

TEST_F(ProjectsTest, TransmissionInfoIsWhatTheBusCarried) {
    const auto transmission = [&] {
        return fetchRecord(release_TransmissionInfo,
                           [&](auto... out) { kel_getTransmissionInfo(api, out...); });
    };
    const auto fresh = transmission(); // a fresh vehicle has sent nothing
    EXPECT_EQ(std::vector<uint64_t>({fresh->value1, fresh->value2, fresh->value3, fresh->value4}),
              std::vector<uint64_t>(4, 0));
    wchar_t* targets[] = {const_cast<wchar_t*>(L"ECM"), const_cast<wchar_t*>(L"ACC")};
    fetch<List<ReadDtcResult, release_ReadDtcResult_array>>(
        [&](auto... out) { kel_readDtcs(api, targets, 2, nullptr, out...); });
    const auto info = transmission();
    EXPECT_LE(info->value2, info->value1); // the silent ACC answers nothing
    EXPECT_GE(info->value3, info->value1); // every request has a byte at least
    EXPECT_GE(info->value4, info->value2);
}

TEST_F(ProjectsTest, ProjectsWithNonAsciiNamesAreFoundAndSelected) {
    const std::wstring name = L"Pr\u00fcfstand \u6e2c\u8a66";
    const auto folder = projects() / std::filesystem::path(u8"Pr\u00fcfstand \u6e2c\u8a66");
    std::filesystem::copy(projects() / "Default", folder);
    ASSERT_SUCCEEDS(ok, kel_refreshProjectList(api, &ok));
    ASSERT_EQ(selectionError(name.c_str()), 0);
    EXPECT_EQ(selected(), name);
    ASSERT_SUCCEEDS(ok, kel_saveConfiguration(api, &ok));
    restart();
    EXPECT_EQ(selected(), name);
    const auto details = projectDetails();
    EXPECT_EQ(std::wstring(details->text1), name);
    ASSERT_EQ(details->dbFileCount2, 1u);
    EXPECT_TRUE(std::filesystem::exists(folder / "vehicle.kdb"));
    EXPECT_NE(std::wstring(details->dbFiles2[0]->path).find(name), std::wstring::npos);

    wchar_t* trace = nullptr;
    ASSERT_SUCCEEDS(ok, kel_getCurrentDebugTraceDirectory(api, &ok, &trace));
    EXPECT_TRUE(std::filesystem::is_directory(root / "traces" / "debug"));
    release_Memory(trace);
}

} // namespace
