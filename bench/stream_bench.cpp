// The call stream, each path against a baseline measured in the same run:
// stream writes and reads against memcpy of the same bytes, strings on the stream against
// iconv converting the same text (the dispatchers are in dispatch_bench.cpp).
#include "workloads.h"

#include <benchmark/benchmark.h>

#include <OTXStream.h>
#include <cstdlib>
#include <cstring>
#include <iconv.h>
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

const std::wstring& shortText = kel_bench::sampleTexts()[0].second; // 34 code units
const std::wstring& longAscii = kel_bench::sampleTexts()[1].second; // 1 Mi characters
const std::wstring& longMixed = kel_bench::sampleTexts()[2].second;

// A string written to a stream, as a result's texts are: length prefix, then UTF-8.
void StreamWriteText(benchmark::State& state, const std::wstring& text) {
    for (auto _ : state) {
        kel::OTXStream out(true, false, true);
        out.write(text);
        benchmark::DoNotOptimize(out.buffer);
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

void StreamReadText(benchmark::State& state, const std::wstring& text) {
    kel::OTXStream written(true, false, true);
    written.write(text);
    const std::string bytes = kel::utf8::encode(text);
    for (auto _ : state) {
        kel::OTXStream in(written.buffer, true, false, true);
        std::wstring back;
        in.read(back);
        benchmark::DoNotOptimize(back.data());
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

BENCHMARK_CAPTURE(StreamWriteText, short_string, shortText);
BENCHMARK_CAPTURE(IconvEncode, short_string, shortText);
BENCHMARK_CAPTURE(StreamReadText, short_string, shortText);
BENCHMARK_CAPTURE(IconvDecode, short_string, shortText);
BENCHMARK_CAPTURE(StreamWriteText, long_ascii, longAscii);
BENCHMARK_CAPTURE(IconvEncode, long_ascii, longAscii);
BENCHMARK_CAPTURE(StreamReadText, long_ascii, longAscii);
BENCHMARK_CAPTURE(IconvDecode, long_ascii, longAscii);
BENCHMARK_CAPTURE(StreamWriteText, long_non_ascii, longMixed);
BENCHMARK_CAPTURE(IconvEncode, long_non_ascii, longMixed);
BENCHMARK_CAPTURE(StreamReadText, long_non_ascii, longMixed);
BENCHMARK_CAPTURE(IconvDecode, long_non_ascii, longMixed);

} // namespace
