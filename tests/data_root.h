// Shared by the tests that work on real files: a fresh data root per test with a folder
// beside it that nothing may reach, and the few file helpers they all need.
#pragma once

#include "support.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace kel_test {

inline std::string contents(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void put(const std::filesystem::path& file, const std::string& text) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
}

// Every entry below `folder`, relative, with the contents of the files: a snapshot that
// shows any change.
inline std::vector<std::string> snapshot(const std::filesystem::path& folder) {
    std::vector<std::string> out;
    for (const auto& e : std::filesystem::recursive_directory_iterator(folder)) {
        const auto relative = e.path().lexically_relative(folder).generic_u8string();
        out.push_back(std::string(relative.begin(), relative.end()) + "=" +
                      (e.is_regular_file() ? contents(e.path()) : "<dir>"));
    }
    std::sort(out.begin(), out.end());
    return out;
}

// Texts on the library's heap, as a caller hands a list in.
inline wchar_t** texts(const std::vector<std::wstring>& values) {
    auto** out = static_cast<wchar_t**>(allocate_Memory(sizeof(wchar_t*) * (values.size() + 1)));
    for (std::size_t i = 0; i < values.size(); ++i) {
        out[i] = duplicate_WString(values[i].c_str());
    }
    return out;
}

// An initialised engine on a fresh data root, and a folder beside it that nothing may
// reach: the "outside" a sandbox escape would read or change, compared after each test.
class DataRootTest : public EngineTest {
protected:
    void SetUp() override {
        base = freshTempPath("kel_root");
        root = base / "root";
        outside = base / "outside";
        std::filesystem::create_directories(root);
        put(outside / "secret.txt", "outside secret");
        before = snapshot(outside);
        EngineTest::SetUp();
        kelsim_setDataRoot(root.wstring().c_str());
        restart();
    }
    void TearDown() override {
        EXPECT_EQ(snapshot(outside), before) << "something outside the data root changed";
        EngineTest::TearDown();
        kelsim_restart();
        std::error_code ignored;
        std::filesystem::remove_all(base, ignored);
    }
    // A new engine on the same data root and vehicle.
    void restart() {
        releaseTarnApi(api);
        kelsim_restart();
        api = kel_getTarnApi();
        ErrorSlot error;
        kel_initialize(api, &error);
        ASSERT_FALSE(error);
    }

    std::filesystem::path base, root, outside;
    std::vector<std::string> before;
};

} // namespace kel_test
