// kel-sim-server: the simulated vehicle in a process of its own, behind the engine's
// server, so that clients in other processes reach it through connectRemoteServer.
//
//   kel-sim-server [--port N] [--vehicle FILE] [--data-root DIR] [--until-stdin-closes]
//                  [--delay OPERATION=MS]...
//
// Prints the server's address on one line of stdout, then serves until SIGINT or SIGTERM
// (Windows: Ctrl-C, Ctrl-Break or the console closing) or, with --until-stdin-closes,
// until stdin reaches its end; then stops the server and ends the engine.
// Exit codes: 0 stopped cleanly, 1 an engine error (code and message on stderr), 2 a wrong
// command line (with the usage on stderr).
#include "Describe.h"

#include <Kel_cpp/Engine.h>
#include <Kel_cpp/TarnApiException.h>

#include <nlohmann/json.hpp>

#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <kel_sim.h>
#include <limits>
#include <optional>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#if defined(_WIN32)
#include <windows.h>

#include <condition_variable>
#include <mutex>
#include <shellapi.h>
#else
#include <csignal>
#include <pthread.h>
#include <unistd.h>
#endif

namespace {

using Varno::Kel_cpp::TarnApiException;

constexpr int Stopped = 0;
constexpr int EngineFailed = 1;
constexpr int BadArguments = 2;
// The engine's code for a description that cannot be read or is not valid.
constexpr int32_t BadVehicleDescription = 1013;

const char* const synopsis =
    "usage: kel-sim-server [--port N] [--vehicle FILE] [--data-root DIR]\n"
    "                      [--until-stdin-closes] [--delay OPERATION=MS]...\n";
const char* const usage =
    "\n"
    "Runs the simulated vehicle behind the engine's server on 127.0.0.1 and prints the\n"
    "server's address (kel://127.0.0.1:<port>) on one line.\n"
    "\n"
    "  --port N              the port to listen on, 0 to 65535 (default: the vehicle\n"
    "                        description's servers.port; 0 lets the system choose)\n"
    "  --vehicle FILE        the vehicle description (default: $KEL_SIM_VEHICLE, else the\n"
    "                        bundled vehicle)\n"
    "  --data-root DIR       the engine's data root (default: $KEL_SIM_DATA_ROOT, else a\n"
    "                        temporary folder removed at the end)\n"
    "  --until-stdin-closes  also stop when stdin reaches its end\n"
    "  --delay OPERATION=MS  every call of OPERATION (readDtcs) first waits MS\n"
    "                        milliseconds; repeatable; for tests that need a call in flight\n"
    "\n"
    "It stops on SIGINT or SIGTERM (Ctrl-C). Exit codes: 0 stopped cleanly, 1 an engine\n"
    "error (its code and message on stderr), 2 a wrong command line.\n";

// ---- text: the engine's own conversions (Describe.h), compiled into this program ----

using Varno::Kel_cpp::Reference::fromUtf8;
using Varno::Kel_cpp::Reference::pathFromWide;
using Varno::Kel_cpp::Reference::toUtf8;

// The command line in UTF-8: Windows hands main() the ANSI code page, so the wide
// command line is read instead.
std::vector<std::string> arguments(int argc, char** argv) {
    std::vector<std::string> out;
#if defined(_WIN32)
    (void)argc;
    (void)argv;
    int count = 0;
    LPWSTR* wide = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; wide != nullptr && i < count; ++i) {
        out.push_back(toUtf8(wide[i]));
    }
    LocalFree(wide);
#else
    for (int i = 1; i < argc; ++i) {
        out.emplace_back(argv[i]);
    }
#endif
    return out;
}

// ---- the command line ----

struct Options {
    std::optional<uint16_t> port;
    std::optional<std::wstring> vehicle;
    std::optional<std::wstring> dataRoot;
    bool untilStdinCloses = false;
    std::vector<std::pair<std::string, uint32_t>> delays;
    bool help = false;
};

struct UsageError {
    std::string what;
};

template <class T>
T number(const std::string& text, const std::string& option) {
    T value{};
    const auto* end = text.data() + text.size();
    const auto [at, failed] = std::from_chars(text.data(), end, value);
    if (text.empty() || failed != std::errc() || at != end) {
        throw UsageError{option + " takes a whole number from 0 to " +
                         std::to_string(std::numeric_limits<T>::max()) + ", not '" + text + "'"};
    }
    return value;
}

Options parse(const std::vector<std::string>& args) {
    Options options;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const auto& option = args[i];
        const auto value = [&]() -> const std::string& {
            if (i + 1 >= args.size()) {
                throw UsageError{option + " needs a value"};
            }
            return args[++i];
        };
        const auto wide = [&](const std::string& text) {
            if (text.empty()) {
                throw UsageError{option + " needs a name"};
            }
            return fromUtf8(text); // not UTF-8: U+FFFD stands in, as everywhere in the engine
        };
        if (option == "--port") {
            options.port = number<uint16_t>(value(), option);
        } else if (option == "--vehicle") {
            options.vehicle = wide(value());
        } else if (option == "--data-root") {
            options.dataRoot = wide(value());
        } else if (option == "--until-stdin-closes") {
            options.untilStdinCloses = true;
        } else if (option == "--delay") {
            const auto& text = value();
            const auto equals = text.find('=');
            if (equals == 0 || equals == std::string::npos) {
                throw UsageError{"--delay takes OPERATION=MS, not '" + text + "'"};
            }
            options.delays.emplace_back(text.substr(0, equals),
                                        number<uint32_t>(text.substr(equals + 1), option));
        } else if (option == "--help" || option == "-h") {
            options.help = true;
        } else {
            throw UsageError{"unknown argument '" + option + "'"};
        }
    }
    return options;
}

// ---- the vehicle ----

[[noreturn]] void descriptionFails(const std::wstring& message, const std::wstring& details) {
    throw TarnApiException(BadVehicleDescription, message, details);
}

// The description file, read here so that a name the ANSI code page cannot hold still
// opens on Windows; the engine checks it (kelsim_setVehicleJson).
void useVehicleFile(const std::wstring& file) {
    std::ifstream in(pathFromWide(file), std::ios::binary);
    std::ostringstream text;
    if (!in || !(text << in.rdbuf())) {
        descriptionFails(L"The vehicle description cannot be read", L"cannot open " + file);
    }
    if (kelsim_setVehicleJson(text.str().c_str()) != 0) {
        descriptionFails(L"The vehicle description is not valid", file);
    }
}

// The description in use with servers.port set: the server family reads its port there.
void usePort(uint16_t port) {
    const int64_t length = kelsim_vehicleJson(nullptr, 0);
    if (length < 0) {
        descriptionFails(L"The vehicle description cannot be read", L"");
    }
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    kelsim_vehicleJson(text.data(), text.size());
    text.resize(static_cast<std::size_t>(length));
    auto description = nlohmann::json::parse(text);
    auto& servers = description["servers"];
    if (!servers.is_null() && !servers.is_object()) {
        descriptionFails(L"The vehicle description is not valid", L"servers: expected an object");
    }
    servers["port"] = port;
    if (kelsim_setVehicleJson(description.dump().c_str()) != 0) {
        descriptionFails(L"The vehicle description is not valid", L"servers.port");
    }
}

// ---- waiting for the end ----

#if defined(_WIN32)
struct Stop {
    std::mutex mutex;
    std::condition_variable changed;
    bool requested = false;
    bool done = false;

    void request() {
        const std::lock_guard lock(mutex);
        requested = true;
        changed.notify_all();
    }
};
Stop& stop() {
    static Stop instance;
    return instance;
}

// The console's thread: the process ends when this returns, so it waits for the server
// to stop (Windows allows a closing console about five seconds).
BOOL WINAPI onConsole(DWORD /*event*/) {
    auto& s = stop();
    s.request();
    std::unique_lock lock(s.mutex);
    s.changed.wait_for(lock, std::chrono::seconds(4), [&] { return s.done; });
    return TRUE;
}

void startWatchingStdin() {
    std::thread([] {
        const HANDLE in = GetStdHandle(STD_INPUT_HANDLE);
        char buffer[256];
        DWORD read = 0;
        while (ReadFile(in, buffer, sizeof buffer, &read, nullptr) && read > 0) {
        }
        stop().request();
    }).detach();
}

void prepareSignals() { SetConsoleCtrlHandler(onConsole, TRUE); }

void waitForStop() {
    auto& s = stop();
    std::unique_lock lock(s.mutex);
    s.changed.wait(lock, [&] { return s.requested; });
}

void stopped() {
    auto& s = stop();
    const std::lock_guard lock(s.mutex);
    s.done = true;
    s.changed.notify_all();
}
#else
sigset_t stopSignals() {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGINT);
    sigaddset(&set, SIGTERM);
    return set;
}

// Blocked before the engine starts its threads, so that they inherit the mask and only
// sigwait below receives the signals.
void prepareSignals() {
    const auto set = stopSignals();
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    std::signal(SIGPIPE, SIG_IGN); // a client or reader gone is an error, not the end
}

// read(2) rather than stdio: the thread may still wait in it while the process exits.
void startWatchingStdin() {
    std::thread([] {
        char buffer[256];
        while (true) {
            const auto n = read(STDIN_FILENO, buffer, sizeof buffer);
            if (n == 0 || (n < 0 && errno != EINTR)) {
                break;
            }
        }
        kill(getpid(), SIGTERM);
    }).detach();
}

void waitForStop() {
    const auto set = stopSignals();
    int signal = 0;
    while (sigwait(&set, &signal) != 0) {
    }
}

void stopped() {}
#endif

int serve(const Options& options) {
    if (options.dataRoot) {
        kelsim_setDataRoot(options.dataRoot->c_str());
    }
    if (options.vehicle) {
        useVehicleFile(*options.vehicle);
    }
    if (options.port) {
        usePort(*options.port);
    }
    for (const auto& [operation, milliseconds] : options.delays) {
        kelsim_setDelay(operation.c_str(), milliseconds);
    }

    const auto engine = Varno::Kel_cpp::getTarnApi();
    engine->initialize();
    const auto address = engine->startServer(L"");
    std::cout << toUtf8(address) << std::endl; // flushed: the parent waits for this line

    if (options.untilStdinCloses) {
        startWatchingStdin();
    }
    waitForStop();
    engine->stopServer(L"kel-sim-server stopped");
    engine->end();
    stopped();
    return Stopped;
}

} // namespace

int main(int argc, char** argv) {
    Options options;
    try {
        options = parse(arguments(argc, argv));
    } catch (const UsageError& e) {
        std::cerr << "kel-sim-server: " << e.what << "\n" << synopsis << "(--help says more)\n";
        return BadArguments;
    }
    if (options.help) {
        std::cout << synopsis << usage;
        return Stopped;
    }
    prepareSignals();
    try {
        return serve(options);
    } catch (const TarnApiException& e) {
        std::cerr << "kel-sim-server: error " << e.code << ": " << toUtf8(e.message)
                  << (e.details.empty() ? "" : " (" + toUtf8(e.details) + ")") << "\n";
    } catch (const std::exception& e) {
        std::cerr << "kel-sim-server: error: " << e.what() << "\n";
    }
    stopped();
    return EngineFailed;
}
