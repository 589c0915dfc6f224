// Coding: the coding of the control units (read and written through the data identifier
// each unit keeps it in), coding files from the public directories, the ECU
// configurations of the vehicle description, and checksums of files. Everything a unit
// gets is written by WriteDataByIdentifier, so the unit's own session and security rules
// decide, and a negative response reaches the caller in the per-target error.
#pragma once

#include "Families.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace Varno::Kel_cpp::Reference {

class ControlUnits;
struct Ecu;
class SimulatedVehicle;

// Where a unit keeps its coding.
struct CodingPlace {
    std::wstring target;
    uint16_t identifier = 0;
};

// One value an ECU configuration writes.
struct ConfigurationWrite {
    std::wstring target;
    uint16_t identifier = 0;
    std::wstring value; // as text, in the identifier's codec
};

struct EcuConfiguration {
    std::wstring name;
    std::wstring description;
    std::vector<ConfigurationWrite> writes; // in order
};

// The "coding" section of the vehicle description.
struct CodingSettings {
    std::vector<CodingPlace> codings;
    std::vector<EcuConfiguration> configurations;

    // Throws TarnApiException BadVehicleDescription; `ecus` are the description's units.
    static CodingSettings parse(const nlohmann::json& section, const std::vector<Ecu>& ecus);
};

// Per vehicle, under its own lock; handed out as copies.
class CodingState {
public:
    void load(CodingSettings settings);
    CodingSettings settings() const;

private:
    mutable std::mutex mutex_;
    CodingSettings settings_;
};

// calculateChecksum's algorithms.
enum ChecksumAlgorithm : int32_t {
    ChecksumCrc32 = 1,           // CRC-32/ISO-HDLC, 8 hex digits
    ChecksumCrc16CcittFalse = 2, // CRC-16/CCITT-FALSE, 4 hex digits
    ChecksumCrc16Xmodem = 3,     // CRC-16/XMODEM, 4 hex digits
    ChecksumAdler32 = 4,         // Adler-32, 8 hex digits
};

class Coding final : public CodingFamily {
public:
    explicit Coding(std::shared_ptr<SimulatedVehicle> vehicle);

    std::vector<std::shared_ptr<CodingStringResult>>
    readCodingStrings(const std::vector<std::wstring>& targets) override;
    uint64_t readCodingStringsAsync(const std::vector<std::wstring>& targets,
                                    ReadCodingStringsCallback* callback) override;
    std::wstring calculateChecksum(const std::wstring& path, int32_t algorithm) override;
    std::vector<std::shared_ptr<CodingFileResult>>
    writeCodingFile(const std::wstring& codingFile,
                    const std::vector<std::wstring>& targets) override;
    uint64_t writeCodingFileAsync(const std::wstring& codingFile,
                                  const std::vector<std::wstring>& targets,
                                  WriteCodingFileCallback* callback) override;
    std::vector<std::shared_ptr<EcuConfigurationResult>>
    performEcuConfiguration(const std::vector<std::wstring>& targets,
                            const std::wstring& configuration) override;
    uint64_t performEcuConfigurationAsync(const std::vector<std::wstring>& targets,
                                          const std::wstring& configuration,
                                          PerformEcuConfigurationCallback* callback) override;

private:
    // Checks the engine and the interface; returns the control units.
    const std::shared_ptr<ControlUnits>& connected() const;
    // The lines of a coding file in the public directories: target and coding text.
    std::vector<std::pair<std::wstring, std::wstring>>
    readCodingFile(const std::wstring& path) const;

    std::shared_ptr<SimulatedVehicle> vehicle_;
};

} // namespace Varno::Kel_cpp::Reference
