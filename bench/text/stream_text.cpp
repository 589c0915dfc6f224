// Stream strings against the platform's own converter, without a benchmark library so
// that it runs on the Windows build under wine too (UTF-16 wchar_t): iconv on Linux,
// WideCharToMultiByte and MultiByteToWideChar (code page 65001) on Windows. Each path does
// what kel_bench's StreamWriteText, StreamReadText, IconvEncode and IconvDecode do. The
// four paths of a text run in alternating rounds; the table gives the best time of each
// stream path over the best of its anchor, so that the machine's load shifts both alike.
//
//   stream_text [rounds]      (default 5; under wine: WINEDEBUG=-all wine stream_text.exe)
#include "../workloads.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#if defined(_WIN32)
#include <windows.h>
#else
#include <iconv.h>
#endif

namespace {

std::size_t sink = 0; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

// Nanoseconds per call of `run`, over calls enough for 50 ms.
template <class F>
double perCall(F&& run) {
    const auto start = std::chrono::steady_clock::now();
    auto elapsed = std::chrono::steady_clock::duration{};
    long calls = 0;
    while (elapsed < std::chrono::milliseconds(50)) {
        run();
        ++calls;
        elapsed = std::chrono::steady_clock::now() - start;
    }
    return std::chrono::duration<double, std::nano>(elapsed).count() / static_cast<double>(calls);
}

#if defined(_WIN32)
const char* const anchorName = "WideCharToMultiByte / MultiByteToWideChar";

void anchorEncode(const std::wstring& text) {
    std::string out(text.size() * 3, '\0');
    const int n = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                      out.data(), static_cast<int>(out.size()), nullptr, nullptr);
    out.resize(static_cast<std::size_t>(n));
    sink += out.size();
}

void anchorDecode(const std::string& bytes) {
    std::wstring out(bytes.size() + 1, L'\0');
    const int n = MultiByteToWideChar(CP_UTF8, 0, bytes.data(), static_cast<int>(bytes.size()),
                                      out.data(), static_cast<int>(out.size()));
    out.resize(static_cast<std::size_t>(n));
    sink += out.size();
}
#else
const char* const anchorName = "iconv";

void anchorEncode(const std::wstring& text) {
    static iconv_t cd = iconv_open("UTF-8", "WCHAR_T");
    std::string out(text.size() * 4, '\0');
    char* in = reinterpret_cast<char*>(const_cast<wchar_t*>(text.data())); // NOLINT
    std::size_t inLeft = text.size() * sizeof(wchar_t);
    char* to = out.data();
    std::size_t outLeft = out.size();
    iconv(cd, &in, &inLeft, &to, &outLeft);
    out.resize(out.size() - outLeft);
    sink += out.size();
}

void anchorDecode(const std::string& bytes) {
    static iconv_t cd = iconv_open("WCHAR_T", "UTF-8");
    std::wstring out(bytes.size() + 1, L'\0');
    char* in = const_cast<char*>(bytes.data()); // NOLINT
    std::size_t inLeft = bytes.size();
    char* to = reinterpret_cast<char*>(out.data()); // NOLINT
    std::size_t outLeft = out.size() * sizeof(wchar_t);
    iconv(cd, &in, &inLeft, &to, &outLeft);
    out.resize(out.size() - outLeft / sizeof(wchar_t));
    sink += out.size();
}
#endif

} // namespace

int main(int argc, char** argv) {
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 5;
    std::printf("stream strings against %s, wchar_t of %zu bytes, best of %d rounds\n\n",
                anchorName, sizeof(wchar_t), rounds);
    std::printf("| %-24s | %11s | %10s |\n", "text", "write ratio", "read ratio");
    std::printf("|%s|%s|%s|\n", std::string(26, '-').c_str(), std::string(13, '-').c_str(),
                std::string(12, '-').c_str());
    for (const auto& [name, text] : kel_bench::sampleTexts()) {
        kel::OTXStream written(true, false, true);
        written.write(text);
        const std::string bytes(reinterpret_cast<const char*>(written.buffer) + 4, // NOLINT
                                written.position - 4);
        double best[4] = {1e300, 1e300, 1e300, 1e300};
        for (int round = 0; round < rounds; ++round) {
            const double times[4] = {
                perCall([&] {
                    kel::OTXStream out(true, false, true);
                    out.write(text);
                    sink += out.position;
                }),
                perCall([&] { anchorEncode(text); }),
                perCall([&] {
                    kel::OTXStream in(written.buffer, true, false, true);
                    std::wstring back;
                    in.read(back);
                    sink += back.size();
                }),
                perCall([&] { anchorDecode(bytes); }),
            };
            for (int k = 0; k < 4; ++k) {
                best[k] = std::min(best[k], times[k]);
            }
        }
        std::printf("| %-24s | %11.2f | %10.2f |\n", name, best[0] / best[1], best[2] / best[3]);
    }
    return sink == 0 ? 1 : 0;
}
