// Flash: reprogramming a control unit with the flash sessions of the vehicle
// description. A session is downloaded into the unit by UDS exchanges (erase, request
// download, transfer data, exit, check, reset), so the unit itself decides whether the
// new software runs; identification then reads the version the unit reports.
#pragma once

#include "Checksums.h"
#include "Families.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

class Bus;
class ControlUnits;
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

// The bytes of an image to download, by position: made on demand for a session of the
// description, held for a package's payload.
class FlashImage {
public:
    virtual ~FlashImage() = default;
    virtual uint64_t size() const = 0;
    virtual uint8_t at(uint64_t i) const = 0;
};
// The version, a NUL byte, then bytes that depend on the session's name.
std::shared_ptr<const FlashImage> sessionImage(const FlashSession& session);
std::shared_ptr<const FlashImage> payloadImage(std::vector<uint8_t> bytes);

// One image downloaded into one unit, in the steps a flash is made of: start (read the
// version, erase, announce), transferSlices slices of the transfer, finish (exit, check,
// read the version). Each step talks to the unit under the units' lock and lets it go,
// so that an asynchronous caller reports between them. The caller has entered the
// programming session and unlocked the level, and resets the unit at the end.
class FlashDownload {
public:
    static constexpr uint64_t transferSlices = 10;

    // `result` carries the outcome: status (1 running, 0 flashed, 2 failed), the
    // versions, size, transferred, progress, duration and error; its name and target are
    // the caller's. `declaredCrc` replaces the image's CRC-32 in the check.
    FlashDownload(std::shared_ptr<ControlUnits> units, std::shared_ptr<FlashSessionResult> result,
                  std::shared_ptr<const FlashImage> image, uint32_t durationMs,
                  std::optional<uint32_t> declaredCrc, uint32_t blockLength);

    // Each returns false once the download is over (failed, or finished before).
    bool start();
    bool transfer(uint64_t slice); // 1 to transferSlices
    bool finish();

    bool over() const { return over_; }
    bool failed() const { return over_ && result_->status == 2; }
    // A request reached the unit, so the caller ends with a reset.
    bool touched() const { return touched_; }
    // A copy of the result as it stands, with the vehicle time spent so far.
    std::shared_ptr<FlashSessionResult> snapshot() const;

    // Fails the download with `error` (also one found by the caller before it started).
    void fail(std::shared_ptr<KelError> error);

    // ECUReset: the unit leaves the programming session and runs what it has.
    static void reset(ControlUnits& units, const std::wstring& target);

private:
    std::optional<std::vector<uint8_t>>
    send(Bus& bus, Ecu& ecu, const std::vector<uint8_t>& request, const wchar_t* step);

    std::shared_ptr<ControlUnits> units_;
    std::shared_ptr<FlashSessionResult> result_;
    std::shared_ptr<const FlashImage> image_;
    uint32_t durationMs_ = 0;
    std::optional<uint32_t> declaredCrc_;
    uint32_t blockLength_ = 0;
    bool over_ = false;
    bool touched_ = false;
    std::optional<int64_t> startMs_; // vehicle time; set once the download starts
    uint64_t spentMs_ = 0;           // vehicle time the unit spent writing
    uint64_t block_ = 0;             // data bytes per TransferData
    uint8_t counter_ = 1;
    Crc32 crc_;
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
