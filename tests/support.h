// Shared pieces of the tests: a fixture that hands each test a fresh, initialised
// engine with nothing scripted, small helpers for error records, for calls that must
// succeed and for the reports of asynchronous calls.
#pragma once

#include <Kel_cpp/Engine.h>
#include <kel_c.h>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <functional>
#include <kel_sim.h>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

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

// Runs `call`, which reports into the error slot `slot` it names, and requires it to succeed.
#define ASSERT_SUCCEEDS(slot, call)                                                                \
    do {                                                                                           \
        ::kel_test::ErrorSlot slot;                                                                \
        call;                                                                                      \
        ASSERT_FALSE(slot) << #call << ": error " << (slot)->code;                                 \
    } while (false)

// The list that `call(&error, &items, &count)` hands out; the call must succeed.
template <class L, class Call>
std::unique_ptr<L> fetch(Call call) {
    auto out = std::make_unique<L>();
    ErrorSlot error;
    call(&error, &out->items, &out->count);
    EXPECT_FALSE(error) << "error " << (error ? error->code : 0);
    return out;
}

template <class R>
using Owned = std::unique_ptr<R, void (*)(R*)>;

// The record that `call(&error, &record)` hands out, freed by `release`; the call must succeed.
template <class R, class Call>
Owned<R> fetchRecord(void (*release)(R*), Call call) {
    R* out = nullptr;
    ErrorSlot error;
    call(&error, &out);
    EXPECT_FALSE(error) << "error " << (error ? error->code : 0);
    return {out, release};
}

// A path in the temporary folder that no other test uses, for a data root or scratch
// folder of its own; not created. Kept short: the sandbox tests nest deep paths in it.
inline std::filesystem::path freshTempPath(const std::string& prefix) {
    static std::atomic<int> counter{0};
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    return std::filesystem::temp_directory_path() /
           (prefix + "-" + std::to_string(now % 100000000) + "-" + std::to_string(counter++));
}

// What a test's watcher of an asynchronous call has in common: its callback records a
// report under `mutex`, releases it, then calls reported(), which cancels the call when
// the report asked for it and marks the final report for wait().
struct AsyncWatch {
    TarnApi* api = nullptr;
    std::mutex mutex;
    std::condition_variable changed;
    int32_t errorCode = 0; // of the last report that carried an error
    bool done = false;

    void reported(uint64_t callId, bool cancel, bool isFinal) {
        if (cancel) {
            KelError* ignored = nullptr;
            kel_cancelAsyncCalls(api, &callId, 1, &ignored);
            release_KelError(ignored);
        }
        const std::lock_guard lock(mutex);
        done = done || isFinal;
        changed.notify_all();
    }
    bool wait() {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, std::chrono::seconds(20), [&] { return done; });
    }
};

// The reports of one asynchronous call, each result reduced to a text by `describe`:
// the texts of each report, whether it was final, and the last error code reported.
template <class R, void (*Release)(R**, uint64_t)>
struct AsyncReports : AsyncWatch {
    explicit AsyncReports(std::function<std::wstring(const R&)> describe)
        : describe(std::move(describe)) {}
    std::function<std::wstring(const R&)> describe;
    std::vector<std::vector<std::wstring>> texts;
    std::vector<bool> finals;

    static void callback(R** results, uint32_t count, bool isFinal, uint64_t callId,
                         KelError* error, void* context) {
        auto& self = *static_cast<AsyncReports*>(context);
        {
            const std::lock_guard lock(self.mutex);
            self.texts.emplace_back();
            for (uint32_t i = 0; i < count; ++i) {
                self.texts.back().push_back(self.describe(*results[i]));
            }
            self.finals.push_back(isFinal);
            self.errorCode = error != nullptr ? error->code : self.errorCode;
        }
        Release(results, count);
        release_KelError(error);
        self.reported(callId, false, isFinal);
    }
    // Starts the call by `start(&error, callback, context)`, which must succeed, and waits
    // for its final report.
    template <class Start>
    void run(Start start) {
        ErrorSlot error;
        EXPECT_NE(start(&error, callback, this), 0U);
        ASSERT_FALSE(error) << error->code;
        ASSERT_TRUE(wait());
    }
    // Every report's texts, in order.
    std::vector<std::wstring> all() {
        const std::lock_guard lock(mutex);
        std::vector<std::wstring> out;
        for (const auto& report : texts) {
            out.insert(out.end(), report.begin(), report.end());
        }
        return out;
    }
};

// The handle of an engine object (kel_getHandle), 0 if it has none.
inline uint64_t handleOf(TarnApi* object) {
    ErrorSlot error;
    uint64_t handle = 0;
    kel_getHandle(object, &error, &handle);
    EXPECT_FALSE(error);
    return handle;
}

// The code of an error record, 0 for none.
inline int32_t codeIn(const KelError* error) { return error != nullptr ? error->code : 0; }

// The error code of `call(&error)`, 0 when it succeeded.
template <class Call>
int32_t errorCodeOf(Call call) {
    ErrorSlot error;
    call(&error);
    return error ? error->code : 0;
}

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
