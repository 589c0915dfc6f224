// Obtaining and releasing engine objects: shared counts, remote connections, threads.
#include "support.h"

#include <atomic>
#include <thread>
#include <vector>

namespace {

using namespace kel_test;

// The engine object currently behind kel_getTarnApi, observed without keeping it alive.
// The engine also keeps its local object itself; that hold is let go here, so that
// the object's life shows what the registry does.
std::weak_ptr<Varno::Kel_cpp::TarnApi> observeLocalEngine() {
    std::weak_ptr<Varno::Kel_cpp::TarnApi> engine = Varno::Kel_cpp::getTarnApi();
    kelsim_restart();
    return engine;
}

TEST(Registry, SameObjectTwiceIsCountedTwiceAndUnknownOrSurplusReleasesAreIgnored) {
    TarnApi* first = kel_getTarnApi();
    TarnApi* second = kel_getTarnApi();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first, second);
    const auto engine = observeLocalEngine();
    ASSERT_EQ(engine.lock().get(), first);

    releaseTarnApi(nullptr);
    int notAnEngine = 0;
    releaseTarnApi(reinterpret_cast<TarnApi*>(&notAnEngine));
    releaseTarnApi(first);
    EXPECT_FALSE(engine.expired()) << "one use is still registered";
    releaseTarnApi(second);
    EXPECT_TRUE(engine.expired()) << "the last release drops the registry's reference";
    releaseTarnApi(second); // surplus: no entry any more, no effect
}

TEST(Registry, RemoteConnectionsLiveBesideTheLocalEngine) {
    TarnApi* local = kel_getTarnApi();
    const uint64_t handle = handleOf(local);
    ASSERT_NE(handle, 0U);
    // A rejected handle gives NULL and an error, and registers nothing (the local
    // engine's last release below ends it).
    ErrorSlot rejected;
    EXPECT_EQ(kel_getRemoteConnectionByHandle(0xDEADBEEFULL, &rejected), nullptr);
    ASSERT_TRUE(rejected);
    EXPECT_EQ(rejected->code, 1005);
    EXPECT_NE(std::wstring(rejected->message).find(L"handle"), std::wstring::npos);

    ErrorSlot error;
    TarnApi* remote = kel_getRemoteConnectionByHandle(handle, &error);
    ASSERT_FALSE(error);
    ASSERT_NE(remote, nullptr);
    EXPECT_NE(remote, local);
    EXPECT_EQ(kel_getRemoteConnectionByHandle(handle, &error), remote)
        << "same connection, second use";

    EXPECT_NE(handleOf(remote), handle);

    // The remote connection shares the vehicle: what the local engine does shows there.
    kel_initialize(local, &error);
    int32_t state = -1;
    kel_getState(remote, &error, &state);
    EXPECT_EQ(state, 1);

    const auto localEngine = observeLocalEngine();
    releaseTarnApi(local);
    EXPECT_TRUE(localEngine.expired()) << "each object has its own count";
    kel_getState(remote, &error, &state);
    EXPECT_FALSE(error) << "the remote connection outlives the local object";
    releaseTarnApi(remote);
    releaseTarnApi(remote);
}

// A destructor that runs on the last release may call back into the binding.
struct ReentrantHandler final : Varno::Kel_cpp::ServerHandler {
    void onClientConnected(const std::wstring& /*client*/) override {}
    void onClientDisconnected(const std::wstring& /*client*/) override {
        releaseTarnApi(kel_getTarnApi());
        ++calls;
    }
    int calls = 0;
};

TEST(Registry, LastReleaseMayReenterTheRegistry) {
    TarnApi* local = kel_getTarnApi();
    ReentrantHandler handler;
    ErrorSlot error;
    kel_registerServerHandler(reinterpret_cast<uintptr_t>(local), &handler, &error);
    TarnApi* remote = kel_getRemoteConnectionByHandle(handleOf(local), &error);
    ASSERT_NE(remote, nullptr);
    releaseTarnApi(remote); // the connection ends here and tells the handler
    EXPECT_EQ(handler.calls, 1);
    EXPECT_FALSE(error);
    kelsim_restart(); // the vehicle, which keeps the handler, goes with the engine
    releaseTarnApi(local);
}

TEST(RegistryConcurrency, ManyThreadsShareAndReleaseEngineObjects) {
    TarnApi* local = kel_getTarnApi(); // held throughout, so every thread sees this object
    const uint64_t handle = handleOf(local);

    constexpr int threads = 8;
    constexpr int rounds = 400;
    std::atomic<int> mismatches{0};
    std::atomic<int> failures{0};
    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t) {
        workers.emplace_back([&] {
            for (int i = 0; i < rounds; ++i) {
                TarnApi* api = kel_getTarnApi();
                mismatches += api != local ? 1 : 0;
                KelError* e = nullptr;
                TarnApi* remote = kel_getRemoteConnectionByHandle(handle, &e);
                int32_t state = -1;
                if (remote != nullptr) {
                    kel_getState(remote, &e, &state);
                }
                failures += e != nullptr || remote == nullptr ? 1 : 0;
                release_KelError(e);
                releaseTarnApi(remote);
                releaseTarnApi(api);
            }
        });
    }
    for (auto& w : workers) {
        w.join();
    }
    EXPECT_EQ(mismatches.load(), 0);
    EXPECT_EQ(failures.load(), 0);

    const auto engine = observeLocalEngine();
    releaseTarnApi(local);
    EXPECT_TRUE(engine.expired()) << "every use was given back";
}

} // namespace
