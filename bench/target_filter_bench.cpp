// Target filters through kel_getFilteredTargets: a pattern of N stars followed by a
// character no name has, against names of 40 and 400 characters. Each star could take
// any run of the name, so a matcher that tries the splits one by one grows
// exponentially with N; this one should grow with pattern times name length.
#include <kel_c.h>

#include <benchmark/benchmark.h>

#include <kel_sim.h>
#include <string>

namespace {

void starsThatMatchNothing(benchmark::State& state) {
    const auto stars = static_cast<std::size_t>(state.range(0));
    const std::string name(static_cast<std::size_t>(state.range(1)), 'a');
    kelsim_reset();
    kelsim_restart();
    if (kelsim_setVehicleJson(("{\"ecus\": [{\"name\": \"" + name + "\"}]}").c_str()) != 0) {
        state.SkipWithError("vehicle description refused");
        return;
    }
    TarnApi* api = kel_getTarnApi();
    KelError* error = nullptr;
    kel_initialize(api, &error);
    const std::wstring pattern = std::wstring(stars, L'*') + L"x";
    TargetFilter filter{};
    filter.pattern = const_cast<wchar_t*>(pattern.c_str());
    TargetFilter* filters[] = {&filter};
    for (auto _ : state) {
        Target** targets = nullptr;
        uint32_t count = 0;
        kel_getFilteredTargets(api, filters, 1, &error, &targets, &count);
        if (error != nullptr || count != 0) {
            state.SkipWithError("the pattern matched, or the call failed");
            break;
        }
    }
    release_KelError(error);
    releaseTarnApi(api);
    kelsim_reset();
}

BENCHMARK(starsThatMatchNothing)
    ->ArgsProduct({{8, 16, 24, 40, 200}, {40, 400}})
    ->Unit(benchmark::kMicrosecond);

} // namespace
