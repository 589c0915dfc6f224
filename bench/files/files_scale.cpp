// The file family at scale, through the C exports: a 256 MiB file written and read (in
// 16 MiB parts and in one call) and a directory of 10,000 files found and copied. One
// scenario per process, because peak memory only grows: scripts/files-scale.sh runs
// each in a process of its own and prints the table.
//
//   files_scale <scenario> <empty folder for the data root>
//
// Prints: scenario, seconds, peak resident memory before the measured part and after
// it (MiB). Linux only (getrusage).
#include <kel_c.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <kel_sim.h>
#include <string>
#include <vector>

#include <sys/resource.h>

namespace {

namespace fs = std::filesystem;
// The measured sizes; `smoke` after the folder shrinks them, so that CI checks that every
// scenario still runs without paying for a measurement.
uint64_t fileSize = 256ULL << 20;
uint32_t part = 16U << 20;
int fileCount = 10000;

double peakMiB() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

void check(KelError*& error, const char* what) {
    if (error != nullptr) {
        std::fprintf(stderr, "%s failed: %d\n", what, error->code);
        std::exit(1);
    }
}

// Made without the engine, so that only the measured part shows in its figures.
void makeBigFile(const fs::path& file) {
    std::ofstream out(file, std::ios::binary);
    const std::vector<char> block(1 << 20, 'k');
    for (uint64_t done = 0; done < fileSize; done += block.size()) {
        out.write(block.data(), static_cast<std::streamsize>(block.size()));
    }
}

void makeManyFiles(const fs::path& folder) {
    for (int i = 0; i < fileCount; ++i) {
        const fs::path dir = folder / ("d" + std::to_string(i / 1000));
        if (i % 1000 == 0) {
            fs::create_directories(dir);
        }
        std::ofstream(dir / ("file" + std::to_string(i) + ".dat"), std::ios::binary)
            << "entry " << i;
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3 && !(argc == 4 && std::string(argv[3]) == "smoke")) {
        std::fprintf(
            stderr,
            "usage: files_scale write|write-whole|read|read-whole|find|copy <folder> [smoke]\n");
        return 2;
    }
    if (argc == 4) {
        fileSize = 4ULL << 20;
        part = 1U << 20;
        fileCount = 100;
    }
    const std::string scenario = argv[1];
    const fs::path root = argv[2];
    kelsim_setDataRoot(root.wstring().c_str());
    kelsim_restart();
    TarnApi* api = kel_getTarnApi();
    KelError* error = nullptr;
    kel_initialize(api, &error);
    check(error, "initialize");
    fs::create_directories(root / "exchange");

    double before = 0;
    const auto start = [&] {
        before = peakMiB();
        return std::chrono::steady_clock::now();
    };
    std::chrono::steady_clock::time_point began;
    uint64_t amount = 0;
    if (scenario == "write" || scenario == "write-whole") {
        const uint32_t size = scenario == "write" ? part : static_cast<uint32_t>(fileSize);
        std::vector<uint8_t> data(size, 'w');
        began = start();
        for (uint64_t done = 0; done < fileSize; done += size) {
            uint32_t written = 0;
            kel_writeFile(api, L"exchange/big.bin", data.data(), size, done == 0 ? 0 : 1, 0, &error,
                          &written);
            check(error, "writeFile");
        }
        amount = fs::file_size(root / "exchange/big.bin");
    } else if (scenario == "read" || scenario == "read-whole") {
        makeBigFile(root / "exchange/big.bin");
        const uint32_t size = scenario == "read" ? part : 0;
        began = start();
        for (uint64_t done = 0; done < fileSize;) {
            void* data = nullptr;
            uint32_t length = 0;
            kel_readFile(api, L"exchange/big.bin", done, size, 0, &error, &data, &length);
            check(error, "readFile");
            done += length;
            amount += length;
            release_Memory(data);
        }
    } else if (scenario == "find") {
        makeManyFiles(root / "exchange/many");
        began = start();
        FileInfo** files = nullptr;
        uint32_t count = 0;
        kel_findFiles(api, L"exchange/many", L"*.dat", 1, &error, &files, &count);
        check(error, "findFiles");
        amount = count;
        release_FileInfo_array(files, count);
    } else if (scenario == "copy") {
        makeManyFiles(root / "exchange/many");
        auto* config = static_cast<PathCopyConfig*>(allocate_Memory(sizeof(PathCopyConfig)));
        config->source = duplicate_WString(L"exchange/many");
        config->target = duplicate_WString(L"exchange/copy");
        config->overwrite = 0;
        began = start();
        PathCopyResult** results = nullptr;
        uint32_t count = 0;
        kel_copyPath(api, config, &error, &results, &count);
        check(error, "copyPath");
        for (uint32_t i = 0; i < count; ++i) {
            amount += results[i]->error == nullptr && results[i]->value2 == 0 ? 1 : 0;
        }
        release_PathCopyResult_array(results, count);
    } else {
        std::fprintf(stderr, "unknown scenario %s\n", scenario.c_str());
        return 2;
    }
    const double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
    std::printf("%-12s %9.3f s %10.1f MiB %10.1f MiB  (%llu %s)\n", scenario.c_str(), seconds,
                before, peakMiB(), static_cast<unsigned long long>(amount),
                scenario == "find" || scenario == "copy" ? "files" : "bytes");
    kel_end(api, &error);
    releaseTarnApi(api);
    return 0;
}
