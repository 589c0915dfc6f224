// The simulated ECUs of a vehicle: loaded from a JSON vehicle description (see
// README.md), with a fault memory that reads, clears and reports like a real one.
//
// Every answer is a fresh engine record built from the description under the model's
// own lock, so results handed to callers never change afterwards.
#pragma once

#include <Kel_cpp/Records.h>

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

// Error codes carried by per-target errors (see also ErrorCode in Script.h).
enum VehicleError : int32_t {
    EcuNotResponding = 1010,
    UnknownTarget = 1011,
    CallCancelled = 1012,
    BadVehicleDescription = 1013,
    UnknownIdentifier = 1014,
};

struct Parameter {
    std::wstring name;
    std::wstring label;
    std::wstring value;
    std::wstring unit;
    std::vector<uint8_t> raw;
    std::vector<Parameter> children;
};

struct SpecialItem {
    std::wstring name;
    std::wstring value;
    std::wstring unit;
};

struct Dtc {
    std::wstring display; // "P0301"
    uint32_t code = 0;    // the 2-byte SAE code followed by the failure type byte
    uint8_t status = 0;   // ISO 14229 status byte
    std::wstring text;
    std::wstring symptom;
    int32_t severity = 0;
    std::vector<Parameter> snapshot;
    std::vector<Parameter> extended;
    std::vector<std::vector<SpecialItem>> specialData;
    bool stored = true; // in the fault memory now
};

struct IdentValue {
    std::wstring id; // "F190"
    std::wstring name;
    std::wstring value;
};

struct Ecu {
    std::wstring name;
    std::wstring description;
    std::wstring variant;
    std::wstring protocol;
    std::wstring bus;
    int32_t address = 0;
    bool responds = true;
    uint32_t responseTimeoutMs = 1000;
    std::vector<std::wstring> aliases;
    std::vector<IdentValue> identification;
    std::vector<Dtc> dtcs;
    bool identified = false;
};

class VehicleModel {
public:
    // The description named by kelsim_setVehicleFile / kelsim_setVehicleJson, else by
    // the KEL_SIM_VEHICLE environment variable, else the bundled default vehicle. A
    // description that cannot be read leaves a model whose operations throw
    // BadVehicleDescription with the reason.
    static std::shared_ptr<VehicleModel> create();

    // Re-reads the description: every live model goes back to its initial fault memory
    // and forgets its session filters.
    static void reloadAll();

    std::vector<std::shared_ptr<VariantIdentResult>>
    identify(const std::vector<std::wstring>& targets);
    std::shared_ptr<VariantIdentResult> identifyOne(const std::wstring& target);
    std::vector<std::shared_ptr<ReadDataResult>>
    identification(const std::vector<std::wstring>& targets);
    std::vector<std::shared_ptr<ReadDataResult>> readData(const std::wstring& target,
                                                          const std::vector<std::wstring>& ids);
    std::vector<std::shared_ptr<ReadDtcResult>>
    readDtcs(const std::vector<std::wstring>& targets,
             const std::shared_ptr<DtcReadConfig>& config);
    std::vector<std::shared_ptr<SupportedDtcResult>>
    readSupportedDtcs(const std::vector<std::wstring>& targets,
                      const std::shared_ptr<DtcReadConfig>& config);
    // Also returns how many targets were cleared (for the DtcsCleared event).
    std::vector<std::shared_ptr<ClearDtcResult>> clearAll(const std::vector<std::wstring>& targets,
                                                          int32_t& cleared);
    std::vector<std::shared_ptr<ClearDtcResult>>
    clearSpecific(const std::wstring& target, const std::vector<uint32_t>& codes, int32_t& cleared);
    std::vector<std::shared_ptr<Target>>
    targets(const std::vector<std::shared_ptr<TargetFilter>>& filters);
    std::vector<std::shared_ptr<Target>> allTargets();
    std::vector<std::shared_ptr<TargetStatus>> status(const std::vector<std::wstring>& targets);
    std::vector<std::shared_ptr<TargetFilter>> sessionFilters();
    void setSessionFilters(const std::vector<std::shared_ptr<TargetFilter>>& filters);

    // Parses a description; throws TarnApiException BadVehicleDescription.
    static std::vector<Ecu> parse(const std::string& json);
    // "P0301" with failure type 0x1B gives 0x03011B.
    static uint32_t dtcNumber(const std::wstring& display, uint8_t failureType);

private:
    void load();
    void requireLoaded() const;
    // The ECUs a request names, in request order; an empty list means every ECU. Unknown
    // names give nullptr entries beside their names.
    std::vector<std::pair<std::wstring, Ecu*>> select(const std::vector<std::wstring>& names);

    std::mutex mutex_;
    std::vector<Ecu> ecus_;
    std::wstring loadError_;
    std::vector<std::shared_ptr<TargetFilter>> sessionFilters_;
};

// Where new vehicles read their description (set through kel_sim.h).
void setVehicleSource(const std::string& path, const std::string& json);
// Back to KEL_SIM_VEHICLE or the default, and no scripted asynchronous behaviour.
void resetVehicleScripts();

} // namespace Varno::Kel_cpp::Reference
