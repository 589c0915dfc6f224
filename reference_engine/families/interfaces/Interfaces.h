// Interfaces: the bench's diagnostic interfaces (configured and dynamic), their
// resources, vendor modules and physical links, interface providers, DoIP, socket
// bridges and the terminal. Diagnostic calls need a connected interface
// (InterfacesState::requireConnected).
#pragma once

#include "Families.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

class SimulatedVehicle;

// One interface of the bench. Records are kept by value, so nothing a caller holds is
// shared with the vehicle.
struct Interface {
    std::wstring name, longName, vendor, description, kind, address;
    std::wstring serialNumber, firmware, network;
    uint32_t vendorId = 0, productId = 0, port = 13400, ethernetPinState = 0;
    bool plugged = true; // reachable; a scan of one that is not reports an error
    bool connected = false;
    bool dynamic = false; // found on the network by detection, not configured
    bool enabled = true;  // connectInterfaces connects it
    bool exclusive = false;
    uint64_t handle = 0;
    std::vector<InterfaceInformationItem> vendorModules;
    std::vector<ResourceInformation> resources;
    std::vector<PhysicalLink> links;
    std::optional<WLanSignalData> wlan;
};

struct DoIPEntity {
    uint32_t logicalAddress = 0;
    std::wstring vin, entityId;
    bool inUse = false; // a diagnostic connection holds it: clearing the collection fails for it
};

// The "interfaces" section of the vehicle description.
struct InterfacesSettings {
    std::vector<Interface> interfaces; // without a section: one connected interface
    std::vector<InterfaceProvider> providers;
    std::vector<SupportedInterface> supported;
    DoIPParameter doip;
    std::vector<DoIPEntity> entities;

    InterfacesSettings();
    // Throws TarnApiException BadVehicleDescription.
    static InterfacesSettings parse(const nlohmann::json& section);
};

// Per vehicle, under its own lock. Held by a shared pointer so that an asynchronous
// scan or detection may outlive the vehicle's last engine object.
class InterfacesState {
public:
    // Reads the configuration saved in the data root, when there is one, in place of the
    // description's configured interfaces.
    void load(const InterfacesSettings& settings);
    // Throws NoInterfaceConnected unless an interface is connected.
    void requireConnected() const;

    std::vector<std::shared_ptr<ScanInterfaceResult>> scan(const std::vector<std::wstring>& names);
    std::vector<std::shared_ptr<ModuleDyn>> detect(uint32_t limit,
                                                   const DynInterfaceDetection* detection);

private:
    friend class Interfaces;
    Interface& find(const std::wstring& name); // throws UnknownInterface
    uint64_t nextHandle() { return 0x1F00000000000000ull + ++handles_; }
    void save() const;

    mutable std::mutex mutex_;
    std::vector<Interface> interfaces_;
    std::vector<InterfaceProvider> providers_;
    std::vector<SupportedInterface> supported_;
    DoIPParameter doip_;
    std::vector<DoIPEntity> entities_;
    std::vector<DoIPEntity> collection_; // filled by executeDoIPBroadcast
    struct Bridge {
        uint32_t port = 0;
        uint32_t logicalAddress = 0;
    };
    std::map<uint64_t, Bridge> bridges_;
    bool terminalOpen_ = false;
    uint64_t handles_ = 0;
};

class Interfaces final : public InterfacesFamily {
public:
    explicit Interfaces(std::shared_ptr<SimulatedVehicle> vehicle);

    void saveInterfaceConfiguration() override;
    std::vector<std::shared_ptr<ScanInterfaceResult>>
    scanInterfaceConnection(const std::vector<std::wstring>& interfaces) override;
    uint64_t scanInterfaceConnectionAsync(const std::vector<std::wstring>& interfaces,
                                          ScanInterfaceConnectionCallback* callback) override;
    std::wstring getInterfaceLongName(const std::wstring& name) override;
    void connectInterfaces() override;
    void disconnectInterfaces() override;
    void executeDoIPBroadcast() override;
    void releaseSocketBridge(uint64_t bridge) override;
    uint64_t createSocketBridge(uint32_t value1, uint32_t value2) override;
    void clearLinkCache() override;
    void addResource(const std::wstring& name, std::shared_ptr<ResourceInformation> resource,
                     uint16_t value) override;
    void removeInterface(const std::wstring& name) override;
    std::shared_ptr<InterfaceInformation>
    addInterface(std::shared_ptr<InterfaceInformation> interfaceInfo, const std::wstring& text1,
                 const std::wstring& text2, const std::wstring& text3) override;
    void removeResource(const std::wstring& name1, const std::wstring& name2) override;
    std::vector<std::wstring>
    getVendorModuleNames(std::shared_ptr<InterfaceInformation> interfaceInfo) override;
    std::vector<std::wstring> getVendorModuleNamesEx(const std::wstring& text) override;
    std::vector<std::shared_ptr<ModuleDyn>>
    detectDynInterfaces(uint32_t value, std::shared_ptr<DynInterfaceDetection> detection) override;
    uint64_t detectDynInterfacesAsync(uint32_t value,
                                      std::shared_ptr<DynInterfaceDetection> detection,
                                      DetectDynInterfacesCallback* callback) override;
    void connectDynInterface(const std::wstring& name, bool flag,
                             std::shared_ptr<DynInterfaceDetection> detection) override;
    void disconnectDynInterfaces(const std::vector<std::wstring>& names) override;
    void setEthernetPinState(uint8_t state, const std::vector<std::wstring>& interfaces) override;
    uint32_t getEthernetPinState(const std::wstring& interfaceName) override;
    std::vector<std::shared_ptr<ModuleDyn>> detectDynInterfacesEx(uint32_t value) override;
    uint64_t detectDynInterfacesExAsync(uint32_t value,
                                        DetectDynInterfacesExCallback* callback) override;
    void connectDynInterfaceEx(const std::wstring& name, bool flag) override;
    bool testSocketBridge(uint64_t bridge) override;
    std::vector<std::shared_ptr<DeviceInfo>> getRegisteredDevices() override;
    std::vector<std::shared_ptr<PhysicalLinksOnModule>>
    getPhysicalLinks(const std::vector<std::wstring>& modules) override;
    std::vector<std::shared_ptr<PhysicalLinksOnModule>>
    setPhysicalLinks(const std::vector<std::shared_ptr<PhysicalLinksOnModule>>& links) override;
    bool openTerminal() override;
    void closeTerminal() override;
    std::shared_ptr<WLanSignalData> getWLanSignalData(const std::wstring& interfaceName) override;
    std::vector<std::shared_ptr<KelError>> clearDoIPEcuCollection() override;
    std::shared_ptr<InterfaceConfiguration> getInterfaceConfiguration() override;
    void setInterfaceConfiguration(std::shared_ptr<InterfaceConfiguration> config) override;
    std::vector<std::shared_ptr<SupportedInterface>> getSupportedInterfaces() override;
    std::vector<std::shared_ptr<InterfaceProvider>> getInterfaceProviders() override;
    void setInterfaceProviders(
        const std::vector<std::shared_ptr<InterfaceProviderDyn>>& providers) override;
    std::shared_ptr<DoIPParameter> getDefaultDoIPParameter() override;

private:
    // Throws NotInitialized unless the engine is initialised; then holds the state's lock.
    std::unique_lock<std::mutex> ready() const;
    void connectDynamic(const std::wstring& name, bool exclusive,
                        const DynInterfaceDetection* detection);

    std::shared_ptr<SimulatedVehicle> vehicle_;
    std::shared_ptr<InterfacesState> state_;
};

} // namespace Varno::Kel_cpp::Reference
