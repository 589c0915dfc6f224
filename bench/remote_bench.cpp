// A trivial call (getState) on a remote engine object over a loopback socket, against the
// same call in the process; and remote calls per second with several clients, each on a
// socket of its own.
#include <kel_c.h>

#include <benchmark/benchmark.h>

#include <mutex>
#include <string>
#include <vector>

namespace {

TarnApi* localEngine() {
    static TarnApi* const api = [] {
        TarnApi* local = kel_getTarnApi();
        KelError* error = nullptr;
        kel_initialize(local, &error);
        release_KelError(error);
        return local;
    }();
    return api;
}

// One server for the run; each caller gets a connection of its own.
TarnApi* newConnection() {
    static const std::wstring address = [] {
        KelError* error = nullptr;
        wchar_t* where = nullptr;
        kel_startServer(localEngine(), L"bench", &error, &where);
        release_KelError(error);
        std::wstring text = where != nullptr ? where : L"";
        release_Memory(where);
        return text;
    }();
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    KelError* error = nullptr;
    uint64_t registered = 0;
    kel_connectRemoteServer(localEngine(), address.c_str(), &error, &registered);
    release_KelError(error);
    return reinterpret_cast<TarnApi*>(registered); // NOLINT(performance-no-int-to-ptr)
}

void getState(benchmark::State& state, TarnApi* api) {
    if (api == nullptr) {
        state.SkipWithError("no engine object");
        return;
    }
    for (auto _ : state) {
        KelError* error = nullptr;
        int32_t value = 0;
        kel_getState(api, &error, &value);
        benchmark::DoNotOptimize(value);
        release_KelError(error);
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_GetStateInProcess(benchmark::State& state) { getState(state, localEngine()); }
BENCHMARK(BM_GetStateInProcess);

void BM_GetStateRemote(benchmark::State& state) {
    static TarnApi* const connection = newConnection();
    getState(state, connection);
}
BENCHMARK(BM_GetStateRemote);

// Calls per second of all threads together (items_per_second), a socket per thread.
void BM_GetStateRemoteClients(benchmark::State& state) {
    static std::vector<TarnApi*> connections = [] {
        std::vector<TarnApi*> made;
        for (int i = 0; i < 8; ++i) {
            made.push_back(newConnection());
        }
        return made;
    }();
    getState(state, connections[static_cast<std::size_t>(state.thread_index()) % 8]);
}
BENCHMARK(BM_GetStateRemoteClients)->Threads(1)->Threads(4)->Threads(8)->UseRealTime();

} // namespace
