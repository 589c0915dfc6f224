// Projects, configuration and system information against the simulated engine. Each test
// runs on a fresh data root of its own, so what one saves never reaches another.
#include "support.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

using kel_test::ErrorSlot;

class ProjectsTest : public ::testing::Test {
protected:
    void SetUp() override {
        static std::atomic<int> counter{0};
        root = std::filesystem::temp_directory_path() /
               ("kel_projects_test-" +
                std::to_string(std::chrono::steady_clock::now().time_since_epoch().count()) + "-" +
                std::to_string(counter++));
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

TEST_F(ProjectsTest, TheDefaultProjectIsMadeInTheDataRootAndSelected) {
    EXPECT_EQ(selected(), L"Default");
    EXPECT_TRUE(std::filesystem::exists(root / "projects" / "Default" / "project.json"));
    EXPECT_TRUE(std::filesystem::exists(root / "projects" / "Default" / "vehicle.kdb"));
}

TEST_F(ProjectsTest, SelectingAnUnknownProjectIsAnErrorAndKeepsTheSelection) {
    for (const wchar_t* name : {L"Nowhere", L"", L"../Default", L"Default/.."}) {
        ErrorSlot error;
        kel_setSelectedProject(api, &error, name);
        ASSERT_TRUE(error) << "selected " << std::filesystem::path(name).string();
        EXPECT_EQ(error->code, 1200);
    }
    EXPECT_EQ(selected(), L"Default");
}

} // namespace
