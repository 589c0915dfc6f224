// The dispatchers and the stream paths of a large result, each next to its anchor in the
// same binary, so that scripts/bench-ratios.sh reads a ratio out of one run:
//   - a trivial operation (getState) by py_call and by kel_call against the C export;
//   - readDtcs of one result of 10,000 DTCs by py_call, by kel_call and by the export with
//     its release (the engine's own records are built before each call, off the clock);
//   - DTC records and 64-byte byte vectors written to and read from the stream against
//     memcpy of the same bytes.
// With KEL_BENCH_ITERATIONS set, the counted benchmarks run exactly that many iterations,
// for the instruction counts of scripts/bench-ratios.sh (callgrind --toggle-collect).
#include <kel_c.h>

#include <benchmark/benchmark.h>

#include <OTXStream.h>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <kel_sim.h>
#include <memory>
#include <string>
#include <vector>

namespace {

namespace E = Varno::Kel_cpp;

void counted(benchmark::internal::Benchmark* b) {
    if (const char* n = std::getenv("KEL_BENCH_ITERATIONS")) {
        b->Iterations(std::atoll(n));
    }
}

struct Engine {
    Engine() {
        api = kel_getTarnApi();
        KelError* error = nullptr;
        kel_initialize(api, &error);
        release_KelError(error);
    }
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;
    ~Engine() { releaseTarnApi(api); }
    TarnApi* api = nullptr;
};

// ---- a trivial operation ----

void DirectGetState(benchmark::State& state) {
    const Engine engine;
    for (auto _ : state) {
        KelError* error = nullptr;
        int32_t value = 0;
        kel_getState(engine.api, &error, &value);
        benchmark::DoNotOptimize(value);
    }
}

void PyCallGetState(benchmark::State& state) {
    const Engine engine;
    for (auto _ : state) {
        uint32_t size = 0;
        void* buffer = nullptr;
        const int32_t value = py_call(engine.api, 49, 0, nullptr, &size, &buffer);
        uint8_t result[8];
        py_result(result, static_cast<int32_t>(size), buffer);
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(result[0]);
    }
}

void KelCallGetState(benchmark::State& state) {
    const Engine engine;
    for (auto _ : state) {
        void* stream = nullptr;
        uint64_t size = 0;
        kel_call(0, 49, nullptr, &stream, &size);
        uint8_t result[8];
        kel_call_result(stream, result);
        benchmark::DoNotOptimize(result[1]);
    }
}

BENCHMARK(DirectGetState)->Apply(counted);
BENCHMARK(PyCallGetState)->Apply(counted);
BENCHMARK(KelCallGetState)->Apply(counted);

// ---- readDtcs: one result of 10,000 DTCs ----

constexpr int dtcCount = 10000;

// The scripted result names every member, in the order of the field table.
std::string parameterJson(const char* name, const char* value, const char* unit) {
    return std::string(R"({"itemText1":")") + name +
           R"(","itemText2":"","itemText3":"","itemText4":"","text1":")" + value +
           R"(","text2":")" + unit +
           R"(","value1":0,"children":[],"text3":"","error":null,"text4":"","value2":0,)"
           R"("data":[18,52],"value3":2,"flag":0,"value4":0})";
}

const std::string& dtcResultJson() {
    static const std::string json = [] {
        std::string out = R"([{"status":0,"target":"ECM","error":null,"dtcs":[)";
        for (int i = 0; i < dtcCount; ++i) {
            char code[8];
            std::snprintf(code, sizeof code, "P%04d", i % 10000);
            out += i == 0 ? "" : ",";
            out += R"({"code":)" + std::to_string(0x030100 + i) + R"(,"text1":")" + code +
                   R"(","text2":"Cylinder 1 misfire detected 01","value1":47,"parameters1":[)" +
                   parameterJson("Engine speed", "812", "1/min") + "," +
                   parameterJson("Coolant temperature", "87", "\u00b0C") +
                   R"(],"parameters2":[],"text3":"ECM","text4":"","specialDataGroups":[],)"
                   R"("value2":2})";
        }
        out += R"(],"value":10000}])";
        return out;
    }();
    return json;
}

bool script(benchmark::State& state) {
    state.PauseTiming();
    const bool scripted = kelsim_scriptResult("readDtcs", dtcResultJson().c_str()) == 0;
    state.ResumeTiming();
    if (!scripted) {
        char reason[256] = {};
        kelsim_lastScriptError(reason, sizeof reason);
        state.SkipWithError(reason);
    }
    return scripted;
}

void ExportReadDtcs(benchmark::State& state) {
    const Engine engine;
    wchar_t target[] = L"ECM";
    wchar_t* targets[] = {target};
    for (auto _ : state) {
        if (!script(state)) {
            break;
        }
        KelError* error = nullptr;
        ReadDtcResult** results = nullptr;
        uint32_t count = 0;
        auto* config = static_cast<DtcReadConfig*>(allocate_Memory(sizeof(DtcReadConfig)));
        std::memset(config, 0, sizeof(DtcReadConfig));
        kel_readDtcs(engine.api, targets, 1, config, &error, &results, &count);
        benchmark::DoNotOptimize(results);
        release_ReadDtcResult_array(results, count);
        release_KelError(error);
    }
    state.SetItemsProcessed(state.iterations() * dtcCount);
}

void PyCallReadDtcs(benchmark::State& state) {
    const Engine engine;
    // One target "ECM" (NUL-terminated), no configuration record.
    const uint8_t input[] = {1, 0, 0, 0, 'E', 'C', 'M', 0, 0};
    std::vector<uint8_t> result;
    for (auto _ : state) {
        if (!script(state)) {
            break;
        }
        uint32_t size = 0;
        void* buffer = nullptr;
        py_call(engine.api, 23, 0, input, &size, &buffer);
        result.resize(size);
        py_result(result.data(), static_cast<int32_t>(size), buffer);
        benchmark::DoNotOptimize(result.data());
    }
    state.SetItemsProcessed(state.iterations() * dtcCount);
}

void KelCallReadDtcs(benchmark::State& state) {
    const Engine engine;
    // One target "ECM" (length-prefixed), then the configuration's fields.
    const uint8_t input[] = {1, 0, 0, 0, 3, 0, 0, 0, 'E', 'C', 'M', 0, 0, 0, 0, 0, 0, 0};
    std::vector<uint8_t> result;
    for (auto _ : state) {
        if (!script(state)) {
            break;
        }
        void* stream = nullptr;
        uint64_t size = 0;
        kel_call(0, 23, input, &stream, &size);
        result.resize(size);
        kel_call_result(stream, result.data());
        benchmark::DoNotOptimize(result.data());
    }
    state.SetItemsProcessed(state.iterations() * dtcCount);
}

BENCHMARK(ExportReadDtcs)->Apply(counted)->Unit(benchmark::kMillisecond);
BENCHMARK(PyCallReadDtcs)->Apply(counted)->Unit(benchmark::kMillisecond);
BENCHMARK(KelCallReadDtcs)->Apply(counted)->Unit(benchmark::kMillisecond);

// ---- DTC records and small byte vectors on the stream, against memcpy ----

std::shared_ptr<E::ParameterResult> parameter(const wchar_t* name, const wchar_t* value,
                                              const wchar_t* unit) {
    auto p = std::make_shared<E::ParameterResult>();
    p->itemText1 = name;
    p->text1 = value;
    p->text2 = unit;
    p->data = {0x12, 0x34};
    return p;
}

const std::vector<std::shared_ptr<E::DtcResult>>& dtcs() {
    static const auto list = [] {
        std::vector<std::shared_ptr<E::DtcResult>> out;
        for (int i = 0; i < 100000; ++i) {
            auto d = std::make_shared<E::DtcResult>();
            d->code = 0x030100 + i;
            d->text1 = L"P" + std::to_wstring(1000 + i % 9000);
            d->text2 = L"Cylinder 1 misfire detected 01";
            d->value1 = 0x2F;
            d->parameters1 = {parameter(L"Engine speed", L"812", L"1/min"),
                              parameter(L"Coolant temperature", L"87", L"\u00b0C")};
            out.push_back(std::move(d));
        }
        return out;
    }();
    return list;
}

const std::vector<uint8_t>& dtcBytes() {
    static const auto bytes = [] {
        kel::OTXStream out(true, false, false);
        out.write(dtcs());
        return std::vector<uint8_t>(out.buffer, out.buffer + out.position);
    }();
    return bytes;
}

void StreamWriteDtcs(benchmark::State& state) {
    for (auto _ : state) {
        kel::OTXStream out(true, false, false);
        out.write(dtcs());
        benchmark::DoNotOptimize(out.buffer);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(dtcBytes().size()));
}

void StreamReadDtcs(benchmark::State& state) {
    for (auto _ : state) {
        kel::OTXStream in(dtcBytes().data(), true, true, false);
        std::vector<std::shared_ptr<E::DtcResult>> back;
        in.read(back);
        benchmark::DoNotOptimize(back.data());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(dtcBytes().size()));
}

void MemcpyDtcBytes(benchmark::State& state) {
    const auto& bytes = dtcBytes();
    for (auto _ : state) {
        void* copy = std::malloc(bytes.size());
        std::memcpy(copy, bytes.data(), bytes.size());
        benchmark::DoNotOptimize(copy);
        std::free(copy);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(dtcBytes().size()));
}

BENCHMARK(StreamWriteDtcs)->Unit(benchmark::kMillisecond);
BENCHMARK(StreamReadDtcs)->Unit(benchmark::kMillisecond);
BENCHMARK(MemcpyDtcBytes)->Unit(benchmark::kMillisecond);

// 1,000 vectors of 64 bytes each, one after another.
constexpr int vectorCount = 1000;

void StreamWriteBytes64(benchmark::State& state) {
    const std::vector<uint8_t> vector(64, 0x5A);
    for (auto _ : state) {
        kel::OTXStream out(true, false, false);
        for (int i = 0; i < vectorCount; ++i) {
            out.write(vector);
        }
        benchmark::DoNotOptimize(out.buffer);
    }
}

void StreamReadBytes64(benchmark::State& state) {
    kel::OTXStream written(true, false, false);
    for (int i = 0; i < vectorCount; ++i) {
        written.write(std::vector<uint8_t>(64, 0x5A));
    }
    for (auto _ : state) {
        kel::OTXStream in(written.buffer, true, true, false);
        std::vector<std::vector<uint8_t>> back(vectorCount);
        for (auto& vector : back) {
            in.read(vector);
        }
        benchmark::DoNotOptimize(back.data());
    }
}

// The anchor of both: the same bytes copied into one block, 64 bytes at a time.
void MemcpyBytes64(benchmark::State& state) {
    const std::vector<uint8_t> vector(64, 0x5A);
    for (auto _ : state) {
        auto* copy = static_cast<uint8_t*>(std::malloc(vectorCount * 68));
        for (int i = 0; i < vectorCount; ++i) {
            std::memcpy(copy + i * 68, vector.data(), 64);
            benchmark::ClobberMemory();
        }
        benchmark::DoNotOptimize(copy);
        std::free(copy);
    }
}

BENCHMARK(StreamWriteBytes64);
BENCHMARK(StreamReadBytes64);
BENCHMARK(MemcpyBytes64);

} // namespace
