// Services: executing diagnostic services on the vehicle's control units, their
// descriptions, security access and vehicle unlock. The units (ControlUnits) hold what a
// unit knows and its session and security state; this family holds what belongs to the
// tester: the seed it asked for last and the vehicle unlocks it holds.
#pragma once

#include "Families.h"

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

class ControlUnits;
class SimulatedVehicle;

// Per vehicle, under its own lock (taken alone: never together with the units' lock).
class ServicesState {
public:
    struct SeedAsked {
        std::wstring target;
        uint8_t level = 0;
    };

    // A reload starts the units afresh: the unlocks and the seed asked for go with them.
    void load();
    void seedAsked(SeedAsked seed);
    // The seed asked for last, once: a key answers one seed.
    std::optional<SeedAsked> takeSeed();
    uint64_t addUnlock(std::wstring target);
    // The target of the unlock `id`, which ends; nothing for an unknown id.
    std::optional<std::wstring> removeUnlock(uint64_t id);

private:
    mutable std::mutex mutex_;
    std::optional<SeedAsked> seed_;
    std::map<uint64_t, std::wstring> unlocks_;
    uint64_t nextUnlock_ = 1;
};

class Services final : public ServicesFamily {
public:
    explicit Services(std::shared_ptr<SimulatedVehicle> vehicle);

    std::vector<std::shared_ptr<ServiceInfo>>
    getServiceInfos(const std::wstring& text1, const std::wstring& text2,
                    const std::vector<std::wstring>& names, int32_t value) override;
    std::vector<std::shared_ptr<ParameterInfo>>
    getIdentificationValueInfos(const std::wstring& target) override;
    std::vector<uint8_t> createSeed(uint32_t value1, uint32_t value2) override;
    void sendKey(const std::vector<uint8_t>& key) override;
    std::vector<std::shared_ptr<ParameterInfo>>
    getActuatorServiceInfos(const std::wstring& text1, const std::wstring& text2) override;
    std::vector<std::shared_ptr<ServiceResult>>
    executeService(const std::wstring& target,
                   const std::vector<std::shared_ptr<ServiceInput>>& services) override;
    uint64_t executeServiceAsync(const std::wstring& target,
                                 const std::vector<std::shared_ptr<ServiceInput>>& services,
                                 ExecuteServiceCallback* callback) override;
    std::shared_ptr<UnlockResult>
    unlockVehicle(const std::wstring& target,
                  const std::vector<std::shared_ptr<ServiceInput>>& services) override;
    uint64_t releaseVehicleUnlock(uint64_t value) override;
    std::vector<std::shared_ptr<ServiceResult>> executeServiceInDefaultSession(
        const std::wstring& target,
        const std::vector<std::shared_ptr<ServiceInput>>& services) override;
    uint64_t
    executeServiceInDefaultSessionAsync(const std::wstring& target,
                                        const std::vector<std::shared_ptr<ServiceInput>>& services,
                                        ExecuteServiceInDefaultSessionCallback* callback) override;
    std::shared_ptr<ParameterInfo>
    getParameterInfo(std::shared_ptr<ParameterInfoConfig> config) override;
    uint64_t startCyclicServices(const std::wstring& target,
                                 const std::vector<std::shared_ptr<ServiceInput>>& services,
                                 uint32_t cycleTime) override;
    std::vector<std::shared_ptr<ServiceResult>> getCyclicResults(uint64_t cyclic) override;
    void stopCyclicServices(uint64_t cyclic) override;
    void updateCyclicServices(uint64_t cyclic,
                              const std::vector<std::shared_ptr<ServiceInput>>& services) override;

private:
    // Throws NotInitialized unless the engine is initialised, and UnknownTarget when the
    // vehicle has no unit named `target`; returns the control units.
    const std::shared_ptr<ControlUnits>& ready(const std::wstring& target) const;

    std::shared_ptr<SimulatedVehicle> vehicle_;
};

} // namespace Varno::Kel_cpp::Reference
