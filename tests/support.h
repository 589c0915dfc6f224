// Shared pieces of the tests: a fixture that hands each test a fresh, initialised
// engine with nothing scripted, and small helpers for error records.
#pragma once

#include <Kel_cpp/Engine.h>
#include <kel_c.h>

#include <gtest/gtest.h>

#include <kel_sim.h>
#include <memory>
#include <string>

namespace kel_test {

// Owns a KelError* for the length of a test and frees it.
struct ErrorSlot {
    KelError* error = nullptr;
    ErrorSlot() = default;
    ErrorSlot(const ErrorSlot&) = delete;
    ErrorSlot& operator=(const ErrorSlot&) = delete;
    ~ErrorSlot() { release_KelError(error); }
    KelError** operator&() { return &error; } // NOLINT(google-runtime-operator)
    KelError* operator->() const { return error; }
    explicit operator bool() const { return error != nullptr; }
};

// Owns a result list handed out by an export for the length of a test.
template <class R, void (*Release)(R**, uint64_t)>
struct List {
    R** items = nullptr;
    uint32_t count = 0;
    List() = default;
    List(const List&) = delete;
    List& operator=(const List&) = delete;
    ~List() { Release(items, count); }
};

inline std::string lastArguments(const char* operation) {
    char buffer[4096];
    const int64_t length = kelsim_lastArguments(operation, buffer, sizeof buffer);
    return length < 0 ? std::string("<never called>") : std::string(buffer);
}

class EngineTest : public ::testing::Test {
protected:
    void SetUp() override {
        kelsim_reset();
        kelsim_restart(); // a fresh engine on a fresh vehicle for every test
        api = kel_getTarnApi();
        ASSERT_NE(api, nullptr);
        ErrorSlot error;
        kel_initialize(api, &error);
        ASSERT_FALSE(error);
    }
    void TearDown() override {
        releaseTarnApi(api);
        kelsim_reset();
    }
    TarnApi* api = nullptr;
};

} // namespace kel_test
