// ECU order files through kel_writeEcuOrder and kel_readEcuOrder, from 1,000 entries to the
// about 115,000 a 1 MiB file holds. Both check that no target is named twice; a check that
// compares each entry with the ones before it grows with the square of the count, so the
// time per entry must stay flat across the sizes (the fitted complexity is reported).
#include <kel_c.h>

#include <benchmark/benchmark.h>

#include <kel_sim.h>
#include <string>
#include <vector>

namespace {

struct Order {
    std::vector<std::wstring> names;
    std::vector<EcuOrderEntry> entries;
    std::vector<EcuOrderEntry*> pointers;
    explicit Order(std::size_t count) : names(count), entries(count), pointers(count) {
        for (std::size_t i = 0; i < count; ++i) {
            names[i] = L"U" + std::to_wstring(i);
            entries[i] = {names[i].data(), const_cast<wchar_t*>(L"CAN1"),
                          static_cast<uint32_t>(0x700 + i), 0, 1};
            pointers[i] = &entries[i];
        }
    }
};

void ecuOrderFile(benchmark::State& state, bool read) {
    const auto count = static_cast<std::size_t>(state.range(0));
    kelsim_reset();
    kelsim_restart();
    TarnApi* api = kel_getTarnApi();
    KelError* error = nullptr;
    kel_initialize(api, &error);
    Order order(count);
    const wchar_t* path = L"exchange/bench-order.txt";
    kel_writeEcuOrder(api, path, order.pointers.data(), static_cast<uint32_t>(count), &error);
    for (auto _ : state) {
        if (read) {
            EcuOrderEntry** entries = nullptr;
            uint32_t got = 0;
            kel_readEcuOrder(api, path, &error, &entries, &got);
            release_EcuOrderEntry_array(entries, got);
            if (got != count) {
                state.SkipWithError("the order read back has another length");
            }
        } else {
            kel_writeEcuOrder(api, path, order.pointers.data(), static_cast<uint32_t>(count),
                              &error);
        }
        if (error != nullptr) {
            state.SkipWithError("the call failed");
            break;
        }
    }
    state.SetComplexityN(state.range(0));
    release_KelError(error);
    releaseTarnApi(api);
    kelsim_reset();
}

void writeEcuOrder(benchmark::State& state) { ecuOrderFile(state, false); }
void readEcuOrder(benchmark::State& state) { ecuOrderFile(state, true); }

BENCHMARK(writeEcuOrder)
    ->RangeMultiplier(4)
    ->Range(1 << 10, 115000)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(readEcuOrder)
    ->RangeMultiplier(4)
    ->Range(1 << 10, 115000)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);

} // namespace
