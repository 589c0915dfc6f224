// Flash: reprogramming a control unit with the flash sessions of the vehicle
// description. A session is downloaded into the unit by UDS exchanges (erase, request
// download, transfer data, exit, check, reset), so the unit itself decides whether the
// new software runs; identification then reads the version the unit reports.
#pragma once

#include "Families.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

struct Ecu;
class SimulatedVehicle;

// One flash session of the description: what it installs on which unit.
struct FlashSession {
    std::wstring name;
    std::wstring target;
    std::wstring description;
    std::wstring version;             // what the image carries: the unit reports it once checked
    uint64_t size = 0;                // the image's bytes
    uint32_t durationMs = 0;          // the vehicle time the download takes
    std::optional<uint32_t> checksum; // the CRC-32 the session declares; unset: the image's
};

// The "flash" section of the vehicle description.
struct FlashSettings {
    std::vector<FlashSession> sessions;

    // Throws TarnApiException BadVehicleDescription; `ecus` are the description's units
    // (each session's target must be one that can be flashed).
    static FlashSettings parse(const nlohmann::json& section, const std::vector<Ecu>& ecus);
};

// Per vehicle, under its own lock: the sessions of the description.
class FlashState {
public:
    void load(FlashSettings settings);
    std::vector<FlashSession> sessions(const std::wstring& target) const;

private:
    mutable std::mutex mutex_;
    std::vector<FlashSession> sessions_;
};

class Flash final : public FlashFamily {
public:
    explicit Flash(std::shared_ptr<SimulatedVehicle> vehicle);

    std::vector<std::shared_ptr<FlashSessionInfo>>
    getFlashSessionInfos(const std::wstring& target) override;
    std::vector<std::shared_ptr<FlashSessionResult>>
    executeFlashSessions(const std::wstring& target,
                         const std::vector<std::wstring>& sessions) override;
    uint64_t executeFlashSessionsAsync(const std::wstring& target,
                                       const std::vector<std::wstring>& sessions,
                                       ExecuteFlashSessionsCallback* callback) override;
    std::vector<std::shared_ptr<FlashSessionResult>>
    executeFlashSessionsConfig(std::shared_ptr<FlashSessionsConfig> config) override;
    uint64_t executeFlashSessionsConfigAsync(std::shared_ptr<FlashSessionsConfig> config,
                                             ExecuteFlashSessionsConfigCallback* callback) override;

private:
    class Run;
    // Checks the engine, the interface and the target; the run of `config`'s sessions.
    std::shared_ptr<Run> prepare(const FlashSessionsConfig& config) const;
    static FlashSessionsConfig defaults(const std::wstring& target,
                                        const std::vector<std::wstring>& sessions);

    std::shared_ptr<SimulatedVehicle> vehicle_;
};

} // namespace Varno::Kel_cpp::Reference
