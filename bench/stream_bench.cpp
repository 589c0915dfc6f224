// The call stream and the dispatchers, each against a baseline measured in the same run:
// stream writes and reads against memcpy of the same bytes, UTF-8 conversion against
// iconv, and a kel_call round trip against the direct export.
#include "workloads.h"

#include <kel_c.h>

#include <benchmark/benchmark.h>

#include <OTXStream.h>
#include <cstdlib>
#include <cstring>
#include <iconv.h>
#include <kel_sim.h>
#include <string>
#include <utf8.h>
#include <vector>

namespace {

void StreamWriteBlob(benchmark::State& state) {
    const std::vector<uint8_t> blob(static_cast<std::size_t>(state.range(0)), 0x5A);
    for (auto _ : state) {
        kel::OTXStream out(true, false, true);
        out.write(blob);
        benchmark::DoNotOptimize(out.buffer);
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(StreamWriteBlob)->Range(1 << 10, 16 << 20);

void StreamReadBlob(benchmark::State& state) {
    kel::OTXStream in(true, false, true);
    in.write(std::vector<uint8_t>(static_cast<std::size_t>(state.range(0)), 0x5A));
    for (auto _ : state) {
        kel::OTXStream reader(in.buffer, true, false, true);
        std::vector<uint8_t> blob;
        reader.read(blob);
        benchmark::DoNotOptimize(blob.data());
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(StreamReadBlob)->Range(1 << 10, 16 << 20);

// The baseline of both: one allocation and a copy of the same bytes.
void MemcpyBlob(benchmark::State& state) {
    const std::vector<uint8_t> blob(static_cast<std::size_t>(state.range(0)), 0x5A);
    for (auto _ : state) {
        void* copy = std::malloc(blob.size());
        std::memcpy(copy, blob.data(), blob.size());
        benchmark::DoNotOptimize(copy);
        std::free(copy);
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(MemcpyBlob)->Range(1 << 10, 16 << 20);

// Records with strings, 1 KB to 16 MB of stream: time per byte stays flat.
void StreamWriteRecords(benchmark::State& state) {
    const auto records = kel_bench::recordsFor(static_cast<std::size_t>(state.range(0)));
    std::size_t bytes = 0;
    for (auto _ : state) {
        bytes = kel_bench::encode(records);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(bytes));
}
BENCHMARK(StreamWriteRecords)->Range(1 << 10, 16 << 20);

void StreamReadRecords(benchmark::State& state) {
    const auto records = kel_bench::recordsFor(static_cast<std::size_t>(state.range(0)));
    kel::OTXStream in(true, false, true);
    in.write(records);
    for (auto _ : state) {
        // Written records carry presence bytes: read them back with that flag set.
        kel::OTXStream reader(in.buffer, true, true, true);
        std::vector<std::shared_ptr<Varno::Kel_cpp::KelError>> back;
        reader.read(back);
        benchmark::DoNotOptimize(back.data());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(in.position));
}
BENCHMARK(StreamReadRecords)->Range(1 << 10, 16 << 20);

// The baseline for records: memcpy of as many bytes as their stream has.
void MemcpyRecordBytes(benchmark::State& state) {
    const auto records = kel_bench::recordsFor(static_cast<std::size_t>(state.range(0)));
    kel::OTXStream in(true, false, true);
    in.write(records);
    for (auto _ : state) {
        void* copy = std::malloc(in.position);
        std::memcpy(copy, in.buffer, in.position);
        benchmark::DoNotOptimize(copy);
        std::free(copy);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(in.position));
}
BENCHMARK(MemcpyRecordBytes)->Range(1 << 10, 16 << 20);

// ---- UTF-8: short strings (ns per string) and long text, against iconv ----

const std::wstring shortText = L"Motorsteuergerät ECM 0x7E0 Zündung"; // 34 code units
const std::wstring longAscii(1 << 20, L'x');                          // 1 Mi characters
const std::wstring longMixed = [] {
    std::wstring text;
    while (text.size() < (1U << 20)) {
        text += L"Grüße aus Köln – \U0001F697 ";
    }
    return text;
}();

void Utf8Encode(benchmark::State& state, const std::wstring& text) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(kel::utf8::encode(text));
    }
    state.SetBytesProcessed(state.iterations() *
                            static_cast<int64_t>(text.size() * sizeof(wchar_t)));
}

void IconvEncode(benchmark::State& state, const std::wstring& text) {
    iconv_t cd = iconv_open("UTF-8", "WCHAR_T");
    for (auto _ : state) {
        std::string out(text.size() * 4, '\0');
        char* in = reinterpret_cast<char*>(const_cast<wchar_t*>(text.data()));
        std::size_t inLeft = text.size() * sizeof(wchar_t);
        char* to = out.data();
        std::size_t outLeft = out.size();
        iconv(cd, &in, &inLeft, &to, &outLeft);
        out.resize(out.size() - outLeft);
        benchmark::DoNotOptimize(out);
    }
    iconv_close(cd);
    state.SetBytesProcessed(state.iterations() *
                            static_cast<int64_t>(text.size() * sizeof(wchar_t)));
}

void Utf8Decode(benchmark::State& state, const std::wstring& text) {
    const std::string bytes = kel::utf8::encode(text);
    for (auto _ : state) {
        benchmark::DoNotOptimize(kel::utf8::decode(bytes));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(bytes.size()));
}

void IconvDecode(benchmark::State& state, const std::wstring& text) {
    const std::string bytes = kel::utf8::encode(text);
    iconv_t cd = iconv_open("WCHAR_T", "UTF-8");
    for (auto _ : state) {
        std::wstring out(bytes.size() + 1, L'\0');
        char* in = const_cast<char*>(bytes.data());
        std::size_t inLeft = bytes.size();
        char* to = reinterpret_cast<char*>(out.data());
        std::size_t outLeft = out.size() * sizeof(wchar_t);
        iconv(cd, &in, &inLeft, &to, &outLeft);
        out.resize(out.size() - outLeft / sizeof(wchar_t));
        benchmark::DoNotOptimize(out);
    }
    iconv_close(cd);
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(bytes.size()));
}

BENCHMARK_CAPTURE(Utf8Encode, short_string, shortText);
BENCHMARK_CAPTURE(IconvEncode, short_string, shortText);
BENCHMARK_CAPTURE(Utf8Decode, short_string, shortText);
BENCHMARK_CAPTURE(IconvDecode, short_string, shortText);
BENCHMARK_CAPTURE(Utf8Encode, long_ascii, longAscii);
BENCHMARK_CAPTURE(IconvEncode, long_ascii, longAscii);
BENCHMARK_CAPTURE(Utf8Decode, long_ascii, longAscii);
BENCHMARK_CAPTURE(IconvDecode, long_ascii, longAscii);
BENCHMARK_CAPTURE(Utf8Encode, long_non_ascii, longMixed);
BENCHMARK_CAPTURE(IconvEncode, long_non_ascii, longMixed);
BENCHMARK_CAPTURE(Utf8Decode, long_non_ascii, longMixed);
BENCHMARK_CAPTURE(IconvDecode, long_non_ascii, longMixed);

// ---- kel_call round trip against the direct export ----

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
BENCHMARK(KelCallGetState);

void DirectGetState(benchmark::State& state) {
    const Engine engine;
    for (auto _ : state) {
        KelError* error = nullptr;
        int32_t value = 0;
        kel_getState(engine.api, &error, &value);
        benchmark::DoNotOptimize(value);
    }
}
BENCHMARK(DirectGetState);

} // namespace
