// Every operation checks the lifecycle first (its lock, let go again), then works under
// the interfaces' lock; the lifecycle is never asked with that lock held.
#include "Interfaces.h"

#include "DataRoot.h"
#include "Describe.h"
#include "ErrorCodes.h"
#include "SafeFiles.h"
#include "SimulatedVehicle.h"
#include "families/diagnostics/Answers.h"

#include <algorithm>
#include <fstream>
#include <set>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

using Json = nlohmann::json;

[[noreturn]] void fail(int32_t code, std::wstring message, std::wstring details) {
    throw TarnApiException(code, std::move(message), std::move(details));
}

std::shared_ptr<KelError> error(int32_t code, std::wstring message, std::wstring details) {
    auto e = std::make_shared<KelError>();
    e->code = code;
    e->message = std::move(message);
    e->details = std::move(details);
    return e;
}

std::wstring text(const Json& j, const char* key, const std::string& fallback = "") {
    return fromUtf8(j.value(key, fallback));
}

void setNames(NamedItem& item, const Json& j, const char* k1, const char* k2, const char* k3,
              const char* k4) {
    item.itemText1 = fromUtf8(j.at(k1).get<std::string>());
    item.itemText2 = text(j, k2);
    item.itemText3 = text(j, k3);
    item.itemText4 = text(j, k4);
}

InterfaceInformationItem parseModule(const Json& j) {
    InterfaceInformationItem m;
    setNames(m, j, "name", "vendor", "version", "description");
    return m;
}

ResourceInformation parseResource(const Json& j, uint32_t id) {
    ResourceInformation r;
    setNames(r, j, "name", "description", "protocol", "link");
    r.id = id;
    r.pin = static_cast<uint32_t>(wholeNumber(j, "pin", 0, 0, 0xFFFF));
    r.inUse = j.value("inUse", false);
    return r;
}

PhysicalLink parseLink(const Json& j) {
    PhysicalLink l;
    setNames(l, j, "name", "type", "pins", "description");
    l.baudrate = static_cast<uint32_t>(wholeNumber(j, "baudrate", 500000, 0, 0xFFFFFFFF));
    l.enabled = j.value("enabled", true);
    return l;
}

uint32_t u32(const Json& j, const char* key) {
    return static_cast<uint32_t>(wholeNumber(j, key, 0, 0, 0xFFFFFFFF));
}

WLanSignalData parseWLan(const Json& j) {
    WLanSignalData w;
    w.value1 = u32(j, "quality");
    w.value2 = u32(j, "signalDbmBelowZero");
    w.value3 = u32(j, "noiseDbmBelowZero");
    w.value4 = u32(j, "channel");
    w.value5 = u32(j, "frequencyMHz");
    w.value6 = wholeNumber(j, "bytesReceived", 0, 0, UINT64_MAX);
    w.value7 = u32(j, "transmitMbits");
    w.value8 = u32(j, "receiveMbits");
    w.value9 = u32(j, "retransmissions");
    w.value10 = u32(j, "lostBeacons");
    w.value11 = static_cast<uint16_t>(wholeNumber(j, "channelWidthMHz", 20, 0, 0xFFFF));
    w.text = text(j, "ssid");
    return w;
}

Interface parseInterface(const Json& j) {
    Interface i;
    i.name = fromUtf8(j.at("name").get<std::string>());
    if (i.name.empty()) {
        throw std::invalid_argument("an interface needs a name");
    }
    i.longName = text(j, "longName", j.at("name").get<std::string>());
    i.vendor = text(j, "vendor");
    i.description = text(j, "description");
    i.kind = text(j, "kind", "D-PDU");
    i.address = text(j, "address");
    i.serialNumber = text(j, "serialNumber");
    i.firmware = text(j, "firmware");
    i.network = text(j, "network");
    i.vendorId = static_cast<uint32_t>(wholeNumber(j, "vendorId", 0, 0, 0xFFFFFFFF));
    i.productId = static_cast<uint32_t>(wholeNumber(j, "productId", 0, 0, 0xFFFFFFFF));
    i.port = static_cast<uint32_t>(wholeNumber(j, "port", 13400, 0, 0xFFFF));
    i.ethernetPinState =
        static_cast<uint32_t>(wholeNumber(j, "ethernetPinState", 0, 0, 0xFFFFFFFF));
    i.plugged = j.value("plugged", true);
    i.connected = j.value("connected", false);
    i.dynamic = j.value("dynamic", false);
    i.enabled = j.value("enabled", true);
    for (const auto& m : arrayMember(j, "vendorModules")) {
        i.vendorModules.push_back(parseModule(m));
    }
    uint32_t id = 0;
    for (const auto& r : arrayMember(j, "resources")) {
        i.resources.push_back(parseResource(r, ++id));
    }
    for (const auto& l : arrayMember(j, "links")) {
        i.links.push_back(parseLink(l));
    }
    if (j.contains("wlan")) {
        i.wlan = parseWLan(j.at("wlan"));
    }
    if (i.connected && !i.plugged) {
        throw std::invalid_argument("interface " + toUtf8(i.name) +
                                    ": an unplugged interface cannot be connected");
    }
    return i;
}

// What saveInterfaceConfiguration writes: the form the description's interfaces take,
// without the connection.
Json writeInterface(const Interface& i) {
    auto names = [](const NamedItem& n, const char* k1, const char* k2, const char* k3,
                    const char* k4) {
        return Json{{k1, toUtf8(n.itemText1)},
                    {k2, toUtf8(n.itemText2)},
                    {k3, toUtf8(n.itemText3)},
                    {k4, toUtf8(n.itemText4)}};
    };
    Json j{{"name", toUtf8(i.name)},
           {"longName", toUtf8(i.longName)},
           {"vendor", toUtf8(i.vendor)},
           {"description", toUtf8(i.description)},
           {"kind", toUtf8(i.kind)},
           {"address", toUtf8(i.address)},
           {"serialNumber", toUtf8(i.serialNumber)},
           {"firmware", toUtf8(i.firmware)},
           {"network", toUtf8(i.network)},
           {"vendorId", i.vendorId},
           {"productId", i.productId},
           {"port", i.port},
           {"ethernetPinState", i.ethernetPinState},
           {"plugged", i.plugged},
           {"dynamic", i.dynamic},
           {"enabled", i.enabled},
           {"vendorModules", Json::array()},
           {"resources", Json::array()},
           {"links", Json::array()}};
    for (const auto& m : i.vendorModules) {
        j["vendorModules"].push_back(names(m, "name", "vendor", "version", "description"));
    }
    for (const auto& r : i.resources) {
        auto o = names(r, "name", "description", "protocol", "link");
        o["pin"] = r.pin;
        o["inUse"] = r.inUse;
        j["resources"].push_back(std::move(o));
    }
    for (const auto& l : i.links) {
        auto o = names(l, "name", "type", "pins", "description");
        o["baudrate"] = l.baudrate;
        o["enabled"] = l.enabled;
        j["links"].push_back(std::move(o));
    }
    if (i.wlan) {
        const auto& w = *i.wlan;
        j["wlan"] = Json{{"quality", w.value1},           {"signalDbmBelowZero", w.value2},
                         {"noiseDbmBelowZero", w.value3}, {"channel", w.value4},
                         {"frequencyMHz", w.value5},      {"bytesReceived", w.value6},
                         {"transmitMbits", w.value7},     {"receiveMbits", w.value8},
                         {"retransmissions", w.value9},   {"lostBeacons", w.value10},
                         {"channelWidthMHz", w.value11},  {"ssid", toUtf8(w.text)}};
    }
    return j;
}

std::vector<Interface> parseInterfaces(const Json& list) {
    std::vector<Interface> out;
    std::set<std::wstring> names;
    for (const auto& j : list) {
        out.push_back(parseInterface(j));
        if (!names.insert(out.back().name).second) {
            throw std::invalid_argument("two interfaces are named " + toUtf8(out.back().name));
        }
    }
    return out;
}

std::filesystem::path savedConfiguration() {
    return dataFolder("interfaces") / "configuration.json";
}

std::shared_ptr<InterfaceInformation> information(const Interface& i) {
    auto r = std::make_shared<InterfaceInformation>();
    r->itemText1 = i.name;
    r->itemText2 = i.longName;
    r->itemText3 = i.vendor;
    r->itemText4 = i.description;
    for (const auto& res : i.resources) {
        r->resources.push_back(std::make_shared<ResourceInformation>(res));
    }
    r->flag1 = i.connected;
    r->flag2 = i.dynamic;
    r->text1 = i.kind;
    r->text2 = i.address;
    r->flag3 = i.plugged;
    for (const auto& m : i.vendorModules) {
        r->items.push_back(std::make_shared<InterfaceInformationItem>(m));
    }
    r->value = i.handle;
    return r;
}

std::shared_ptr<ModuleDyn> moduleDyn(const Interface& i) {
    auto m = std::make_shared<ModuleDyn>();
    m->name = i.name;
    m->longName = i.longName;
    m->vendor = i.vendor;
    m->kind = i.kind;
    m->address = i.address;
    if (!i.vendorModules.empty()) {
        m->vendorModule = std::make_shared<InterfaceInformationItem>(i.vendorModules.front());
    }
    m->flag1 = i.connected;
    m->serialNumber = i.serialNumber;
    m->firmware = i.firmware;
    m->network = i.network;
    for (const auto& res : i.resources) {
        m->resources.push_back(std::make_shared<ResourceInformation>(res));
    }
    m->port = i.port;
    m->flag2 = i.exclusive;
    m->handle = i.handle;
    return m;
}

bool matches(const Interface& i, const DynInterfaceDetection* d) {
    return d == nullptr ||
           ((d->namePattern.empty() || Answers::matchesPattern(d->namePattern, i.name)) &&
            (d->kind.empty() || d->kind == i.kind) && !(d->onlyFree && i.connected));
}

// At least four hex digits, as logical addresses are written.
std::wstring hex(uint32_t value) {
    std::wstring digits;
    do {
        digits.insert(digits.begin(), L"0123456789ABCDEF"[value & 0xF]);
        value >>= 4;
    } while (value != 0 || digits.size() < 4);
    return L"0x" + digits;
}

} // namespace

InterfacesSettings::InterfacesSettings() {
    Interface vci;
    vci.name = L"VCI1";
    vci.longName = L"Vehicle communication interface";
    vci.connected = true;
    interfaces.push_back(std::move(vci));
    doip.value1 = 13400;
    doip.value2 = 500;
    doip.text = L"255.255.255.255";
    doip.value3 = 13400;
}

InterfacesSettings InterfacesSettings::parse(const nlohmann::json& section) {
    try {
        InterfacesSettings s;
        if (section.contains("interfaces")) {
            s.interfaces = parseInterfaces(section.at("interfaces"));
        }
        for (const auto& p : arrayMember(section, "providers")) {
            InterfaceProvider provider;
            setNames(provider, p, "name", "description", "vendor", "version");
            provider.text = text(p, "library");
            provider.value = u32(p, "priority");
            provider.flag = p.value("enabled", true);
            s.providers.push_back(std::move(provider));
        }
        for (const auto& k : arrayMember(section, "supported")) {
            SupportedInterface kind;
            kind.text1 = fromUtf8(k.at("kind").get<std::string>());
            kind.text2 = text(k, "description");
            for (const auto& p : arrayMember(k, "protocols")) {
                kind.names.push_back(fromUtf8(p.get<std::string>()));
            }
            kind.value = static_cast<uint32_t>(wholeNumber(k, "maxInterfaces", 1, 0, 0xFFFFFFFF));
            kind.text3 = text(k, "vendorModule");
            s.supported.push_back(std::move(kind));
        }
        const auto doip = section.value("doip", Json::object());
        s.doip.value1 = static_cast<uint32_t>(wholeNumber(doip, "discoveryPort", 13400, 1, 0xFFFF));
        s.doip.value2 = static_cast<uint32_t>(wholeNumber(doip, "announceWaitMs", 500, 0, 60000));
        s.doip.text = text(doip, "broadcastAddress", "255.255.255.255");
        s.doip.value3 = static_cast<uint32_t>(wholeNumber(doip, "tcpPort", 13400, 1, 0xFFFF));
        for (const auto& a : arrayMember(doip, "adapters")) {
            s.doip.strings.push_back(fromUtf8(a.get<std::string>()));
        }
        for (const auto& e : arrayMember(doip, "entities")) {
            DoIPEntity entity;
            entity.logicalAddress =
                static_cast<uint32_t>(wholeNumber(e, "logicalAddress", 0, 0, 0xFFFF));
            entity.vin = fromUtf8(e.at("vin").get<std::string>());
            entity.entityId = text(e, "entityId");
            entity.inUse = e.value("inUse", false);
            s.entities.push_back(std::move(entity));
        }
        return s;
    } catch (const std::exception& e) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               L"interfaces: " + fromUtf8(e.what()));
    }
}

// A saved configuration that cannot be read is left alone: the description's holds.
void InterfacesState::load(const InterfacesSettings& settings) {
    auto interfaces = settings.interfaces;
    try {
        std::ifstream in(savedConfiguration());
        if (in) {
            interfaces = parseInterfaces(Json::parse(in).at("interfaces"));
        }
    } catch (const std::exception&) {
    }
    // A connection is not configuration: what the description connects at start is
    // connected, under the saved configuration too.
    for (auto& i : interfaces) {
        i.connected = std::any_of(
            settings.interfaces.begin(), settings.interfaces.end(),
            [&](const Interface& d) { return d.name == i.name && d.connected && i.plugged; });
    }
    const std::lock_guard lock(mutex_);
    interfaces_ = std::move(interfaces);
    for (auto& i : interfaces_) {
        i.handle = nextHandle();
    }
    providers_ = settings.providers;
    supported_ = settings.supported;
    doip_ = settings.doip;
    entities_ = settings.entities;
    collection_.clear();
    bridges_.clear();
    terminalOpen_ = false;
}

void InterfacesState::requireConnected() const {
    const std::lock_guard lock(mutex_);
    if (std::none_of(interfaces_.begin(), interfaces_.end(),
                     [](const Interface& i) { return i.connected; })) {
        fail(NoInterfaceConnected, L"No interface is connected",
             L"connect an interface (kel_connectInterfaces) before talking to the vehicle");
    }
}

Interface& InterfacesState::find(const std::wstring& name) {
    for (auto& i : interfaces_) {
        if (i.name == name) {
            return i;
        }
    }
    fail(UnknownInterface, L"The engine has no interface of that name", L"interface " + name);
}

void InterfacesState::save() const {
    Json j{{"interfaces", Json::array()}};
    for (const auto& i : interfaces_) {
        j["interfaces"].push_back(writeInterface(i));
    }
    const auto file = savedConfiguration();
    const std::error_code error = writeWhole(file, j.dump(2));
    if (error) {
        fail(ConfigurationUnsaved, L"The interface configuration cannot be saved",
             wideFromPath(file) + L": " + fromUtf8(error.message()));
    }
}

std::vector<std::shared_ptr<ScanInterfaceResult>>
InterfacesState::scan(const std::vector<std::wstring>& names) {
    const std::lock_guard lock(mutex_);
    std::vector<std::wstring> selected = names;
    if (selected.empty()) {
        for (const auto& i : interfaces_) {
            selected.push_back(i.name);
        }
    }
    std::vector<std::shared_ptr<ScanInterfaceResult>> out;
    for (const auto& name : selected) {
        auto r = std::make_shared<ScanInterfaceResult>();
        const auto it = std::find_if(interfaces_.begin(), interfaces_.end(),
                                     [&](const Interface& i) { return i.name == name; });
        if (it == interfaces_.end()) {
            r->error = error(UnknownInterface, L"The engine has no interface of that name",
                             L"interface " + name);
        } else {
            r->interfaceInfo = information(*it);
            if (!it->plugged) {
                r->error = error(InterfaceUnplugged, L"The interface is not plugged in",
                                 L"interface " + name + L" does not answer at " +
                                     (it->address.empty() ? L"its port" : it->address));
            }
        }
        out.push_back(std::move(r));
    }
    return out;
}

std::vector<std::shared_ptr<ModuleDyn>>
InterfacesState::detect(uint32_t limit, const DynInterfaceDetection* detection) {
    const std::lock_guard lock(mutex_);
    std::vector<std::shared_ptr<ModuleDyn>> out;
    for (const auto& i : interfaces_) {
        if (i.dynamic && i.plugged && matches(i, detection) && (limit == 0 || out.size() < limit)) {
            out.push_back(moduleDyn(i));
        }
    }
    return out;
}

Interfaces::Interfaces(std::shared_ptr<SimulatedVehicle> vehicle)
    : vehicle_(std::move(vehicle)), state_(vehicle_->interfaces) {}

std::unique_lock<std::mutex> Interfaces::ready() const {
    vehicle_->lifecycle.requireInitialized();
    return std::unique_lock(state_->mutex_);
}

void Interfaces::saveInterfaceConfiguration() {
    const auto lock = ready();
    state_->save();
}

std::vector<std::shared_ptr<ScanInterfaceResult>>
Interfaces::scanInterfaceConnection(const std::vector<std::wstring>& interfaces) {
    vehicle_->lifecycle.requireInitialized();
    return state_->scan(interfaces);
}

uint64_t Interfaces::scanInterfaceConnectionAsync(const std::vector<std::wstring>& interfaces,
                                                  ScanInterfaceConnectionCallback* callback) {
    vehicle_->lifecycle.requireInitialized();
    return vehicle_->async.start("scanInterfaceConnectionAsync", callback,
                                 [state = state_, interfaces] { return state->scan(interfaces); });
}

std::wstring Interfaces::getInterfaceLongName(const std::wstring& name) {
    const auto lock = ready();
    return state_->find(name).longName;
}

// Connects what can be connected; only when nothing can is it an error.
void Interfaces::connectInterfaces() {
    const auto lock = ready();
    std::wstring skipped;
    bool any = false;
    for (auto& i : state_->interfaces_) {
        if (i.dynamic || !i.enabled) {
            continue;
        }
        if (i.plugged) {
            i.connected = true;
        } else {
            skipped += (skipped.empty() ? L"" : L", ") + i.name + L" is not plugged in";
        }
        any = any || i.connected;
    }
    if (!any) {
        fail(NoInterfaceConnected, L"No interface could be connected",
             skipped.empty() ? L"no interface is configured and enabled" : skipped);
    }
}

void Interfaces::disconnectInterfaces() {
    const auto lock = ready();
    for (auto& i : state_->interfaces_) {
        i.connected = false;
        i.exclusive = false;
    }
}

void Interfaces::executeDoIPBroadcast() {
    const auto lock = ready();
    for (const auto& e : state_->entities_) {
        const bool known =
            std::any_of(state_->collection_.begin(), state_->collection_.end(),
                        [&](const DoIPEntity& c) { return c.logicalAddress == e.logicalAddress; });
        if (!known) {
            state_->collection_.push_back(e);
        }
    }
}

// The simulated bridge opens no socket: it is a handle to a DoIP entity of the
// collection, which testSocketBridge checks.
uint64_t Interfaces::createSocketBridge(uint32_t value1, uint32_t value2) {
    const auto lock = ready();
    if (value1 == 0 || value1 > 0xFFFF) {
        fail(BadInterfaceArgument, L"A socket bridge needs a TCP port from 1 to 65535",
             L"port " + std::to_wstring(value1));
    }
    const auto& c = state_->collection_;
    if (std::none_of(c.begin(), c.end(),
                     [&](const DoIPEntity& e) { return e.logicalAddress == value2; })) {
        fail(UnknownDoIPEntity, L"No DoIP entity of that logical address was found",
             L"logical address " + hex(value2) + L" (kel_executeDoIPBroadcast finds them)");
    }
    const auto handle = state_->nextHandle();
    state_->bridges_[handle] = {value1, value2};
    return handle;
}

void Interfaces::releaseSocketBridge(uint64_t bridge) {
    const auto lock = ready();
    if (state_->bridges_.erase(bridge) == 0) {
        fail(UnknownSocketBridge, L"The socket bridge is not open",
             L"bridge " + std::to_wstring(bridge));
    }
}

// A bridge works while its entity is still collected and an interface carries it.
bool Interfaces::testSocketBridge(uint64_t bridge) {
    const auto lock = ready();
    const auto it = state_->bridges_.find(bridge);
    if (it == state_->bridges_.end()) {
        fail(UnknownSocketBridge, L"The socket bridge is not open",
             L"bridge " + std::to_wstring(bridge));
    }
    const auto& c = state_->collection_;
    const auto& i = state_->interfaces_;
    return std::any_of(c.begin(), c.end(),
                       [&](const DoIPEntity& e) {
                           return e.logicalAddress == it->second.logicalAddress;
                       }) &&
           std::any_of(i.begin(), i.end(), [](const Interface& x) { return x.connected; });
}

// The simulated engine keeps no link cache: there is nothing to clear.
void Interfaces::clearLinkCache() { vehicle_->lifecycle.requireInitialized(); }

void Interfaces::addResource(const std::wstring& name,
                             std::shared_ptr<ResourceInformation> resource, uint16_t value) {
    const auto lock = ready();
    auto& i = state_->find(name);
    if (!resource || resource->itemText1.empty()) {
        fail(BadInterfaceArgument, L"A resource needs a name", L"interface " + name);
    }
    uint32_t id = 0;
    for (const auto& r : i.resources) {
        if (r.itemText1 == resource->itemText1) {
            fail(NameTaken, L"The interface has a resource of that name already",
                 L"resource " + r.itemText1 + L" on " + name);
        }
        id = std::max(id, r.id);
    }
    auto added = *resource;
    added.id = id + 1;
    added.pin = value;
    i.resources.push_back(std::move(added));
}

void Interfaces::removeResource(const std::wstring& name1, const std::wstring& name2) {
    const auto lock = ready();
    auto& i = state_->find(name1);
    if (std::erase_if(i.resources,
                      [&](const ResourceInformation& r) { return r.itemText1 == name2; }) == 0) {
        fail(UnknownResource, L"The interface has no resource of that name",
             L"resource " + name2 + L" on " + name1);
    }
}

void Interfaces::removeInterface(const std::wstring& name) {
    const auto lock = ready();
    state_->find(name);
    std::erase_if(state_->interfaces_, [&](const Interface& i) { return i.name == name; });
}

// text1 names a vendor module to drive it, text2 its kind and text3 its address; each
// may be empty. Whether it is plugged in is the caller's flag3: the engine has no way to
// look.
std::shared_ptr<InterfaceInformation>
Interfaces::addInterface(std::shared_ptr<InterfaceInformation> interfaceInfo,
                         const std::wstring& text1, const std::wstring& text2,
                         const std::wstring& text3) {
    const auto lock = ready();
    if (!interfaceInfo || interfaceInfo->itemText1.empty()) {
        fail(BadInterfaceArgument, L"An interface needs a name", L"");
    }
    const auto& info = *interfaceInfo;
    for (const auto& i : state_->interfaces_) {
        if (i.name == info.itemText1) {
            fail(NameTaken, L"The engine has an interface of that name already",
                 L"interface " + i.name);
        }
    }
    Interface added;
    added.name = info.itemText1;
    added.longName = info.itemText2.empty() ? info.itemText1 : info.itemText2;
    added.vendor = info.itemText3;
    added.description = info.itemText4;
    added.kind = text2.empty() ? (info.text1.empty() ? L"D-PDU" : info.text1) : text2;
    added.address = text3.empty() ? info.text2 : text3;
    added.plugged = info.flag3;
    uint32_t id = 0;
    for (const auto& r : info.resources) {
        if (r) {
            added.resources.push_back(*r);
            added.resources.back().id = ++id;
        }
    }
    for (const auto& m : info.items) {
        if (m) {
            added.vendorModules.push_back(*m);
        }
    }
    if (!text1.empty() &&
        std::none_of(added.vendorModules.begin(), added.vendorModules.end(),
                     [&](const InterfaceInformationItem& m) { return m.itemText1 == text1; })) {
        InterfaceInformationItem module;
        module.itemText1 = text1;
        added.vendorModules.push_back(std::move(module));
    }
    added.handle = state_->nextHandle();
    state_->interfaces_.push_back(std::move(added));
    return information(state_->interfaces_.back());
}

std::vector<std::wstring>
Interfaces::getVendorModuleNames(std::shared_ptr<InterfaceInformation> interfaceInfo) {
    const auto lock = ready();
    if (!interfaceInfo) {
        fail(BadInterfaceArgument, L"No interface was given", L"");
    }
    std::vector<std::wstring> names;
    for (const auto& m : state_->find(interfaceInfo->itemText1).vendorModules) {
        names.push_back(m.itemText1);
    }
    return names;
}

std::vector<std::wstring> Interfaces::getVendorModuleNamesEx(const std::wstring& text) {
    const auto lock = ready();
    std::vector<std::wstring> names;
    for (const auto& i : state_->interfaces_) {
        if (!text.empty() && !Answers::matchesPattern(text, i.name)) {
            continue;
        }
        for (const auto& m : i.vendorModules) {
            if (std::find(names.begin(), names.end(), m.itemText1) == names.end()) {
                names.push_back(m.itemText1);
            }
        }
    }
    return names;
}

std::vector<std::shared_ptr<ModuleDyn>>
Interfaces::detectDynInterfaces(uint32_t value, std::shared_ptr<DynInterfaceDetection> detection) {
    vehicle_->lifecycle.requireInitialized();
    return state_->detect(value, detection.get());
}

uint64_t Interfaces::detectDynInterfacesAsync(uint32_t value,
                                              std::shared_ptr<DynInterfaceDetection> detection,
                                              DetectDynInterfacesCallback* callback) {
    vehicle_->lifecycle.requireInitialized();
    return vehicle_->async.start(
        "detectDynInterfacesAsync", callback,
        [state = state_, value, detection] { return state->detect(value, detection.get()); });
}

std::vector<std::shared_ptr<ModuleDyn>> Interfaces::detectDynInterfacesEx(uint32_t value) {
    vehicle_->lifecycle.requireInitialized();
    return state_->detect(value, nullptr);
}

uint64_t Interfaces::detectDynInterfacesExAsync(uint32_t value,
                                                DetectDynInterfacesExCallback* callback) {
    vehicle_->lifecycle.requireInitialized();
    return vehicle_->async.start("detectDynInterfacesExAsync", callback,
                                 [state = state_, value] { return state->detect(value, nullptr); });
}

void Interfaces::connectDynamic(const std::wstring& name, bool exclusive,
                                const DynInterfaceDetection* detection) {
    const auto lock = ready();
    auto& i = state_->find(name);
    if (!i.dynamic) {
        fail(NotDynamicInterface, L"The interface is not a dynamic interface",
             L"interface " + name + L" is configured: kel_connectInterfaces connects it");
    }
    if (!matches(i, detection)) {
        fail(NotDynamicInterface, L"The detection given does not find the interface",
             L"interface " + name);
    }
    if (!i.plugged) {
        fail(InterfaceUnplugged, L"The interface is not plugged in", L"interface " + name);
    }
    i.connected = true;
    i.exclusive = exclusive;
}

void Interfaces::connectDynInterface(const std::wstring& name, bool flag,
                                     std::shared_ptr<DynInterfaceDetection> detection) {
    connectDynamic(name, flag, detection.get());
}

void Interfaces::connectDynInterfaceEx(const std::wstring& name, bool flag) {
    connectDynamic(name, flag, nullptr);
}

// All names are checked before any interface is disconnected.
void Interfaces::disconnectDynInterfaces(const std::vector<std::wstring>& names) {
    const auto lock = ready();
    std::vector<Interface*> selected;
    for (const auto& name : names) {
        auto& i = state_->find(name);
        if (!i.dynamic) {
            fail(NotDynamicInterface, L"The interface is not a dynamic interface",
                 L"interface " + name);
        }
        selected.push_back(&i);
    }
    for (auto* i : selected) {
        i->connected = false;
        i->exclusive = false;
    }
}

void Interfaces::setEthernetPinState(uint8_t state, const std::vector<std::wstring>& interfaces) {
    const auto lock = ready();
    std::vector<Interface*> selected;
    for (const auto& name : interfaces) {
        selected.push_back(&state_->find(name));
    }
    for (auto* i : selected) {
        i->ethernetPinState = state;
    }
}

uint32_t Interfaces::getEthernetPinState(const std::wstring& interfaceName) {
    const auto lock = ready();
    return state_->find(interfaceName).ethernetPinState;
}

std::vector<std::shared_ptr<DeviceInfo>> Interfaces::getRegisteredDevices() {
    const auto lock = ready();
    std::vector<std::shared_ptr<DeviceInfo>> out;
    for (const auto& i : state_->interfaces_) {
        auto d = std::make_shared<DeviceInfo>();
        d->text1 = i.name;
        d->value1 = i.vendorId;
        d->value2 = i.productId;
        d->text2 = i.vendor;
        d->text3 = i.serialNumber;
        d->value3 = static_cast<uint32_t>(i.resources.size());
        d->text4 = i.firmware;
        d->text5 = i.kind;
        d->value4 = i.ethernetPinState;
        d->value5 = static_cast<uint32_t>(i.links.size());
        d->text6 = i.address;
        for (const auto& r : i.resources) {
            if (std::find(d->protocols.begin(), d->protocols.end(), r.itemText3) ==
                d->protocols.end()) {
                d->protocols.push_back(r.itemText3);
            }
        }
        d->text7 = i.longName;
        for (const auto& m : i.vendorModules) {
            d->modules.push_back(m.itemText1);
        }
        d->text8 = i.description;
        d->flag = i.connected;
        d->handle = i.handle;
        d->value6 = i.dynamic ? 1 : 0;
        out.push_back(std::move(d));
    }
    return out;
}

std::vector<std::shared_ptr<PhysicalLinksOnModule>>
Interfaces::getPhysicalLinks(const std::vector<std::wstring>& modules) {
    const auto lock = ready();
    std::vector<std::wstring> selected = modules;
    if (selected.empty()) {
        for (const auto& i : state_->interfaces_) {
            selected.push_back(i.name);
        }
    }
    std::vector<std::shared_ptr<PhysicalLinksOnModule>> out;
    for (const auto& name : selected) {
        auto m = std::make_shared<PhysicalLinksOnModule>();
        m->module = name;
        for (const auto& l : state_->find(name).links) {
            m->links.push_back(std::make_shared<PhysicalLink>(l));
        }
        out.push_back(std::move(m));
    }
    return out;
}

// Each entry replaces the links of its module; every module is checked first.
std::vector<std::shared_ptr<PhysicalLinksOnModule>>
Interfaces::setPhysicalLinks(const std::vector<std::shared_ptr<PhysicalLinksOnModule>>& links) {
    const auto lock = ready();
    std::vector<std::pair<Interface*, std::vector<PhysicalLink>>> changes;
    for (const auto& entry : links) {
        if (!entry) {
            fail(BadInterfaceArgument, L"A list of physical links holds no module", L"");
        }
        std::vector<PhysicalLink> kept;
        for (const auto& l : entry->links) {
            if (!l || l->itemText1.empty()) {
                fail(BadInterfaceArgument, L"A physical link needs a name",
                     L"module " + entry->module);
            }
            kept.push_back(*l);
        }
        changes.emplace_back(&state_->find(entry->module), std::move(kept));
    }
    std::vector<std::shared_ptr<PhysicalLinksOnModule>> out;
    for (auto& [i, kept] : changes) {
        i->links = std::move(kept);
        auto m = std::make_shared<PhysicalLinksOnModule>();
        m->module = i->name;
        for (const auto& l : i->links) {
            m->links.push_back(std::make_shared<PhysicalLink>(l));
        }
        out.push_back(std::move(m));
    }
    return out;
}

// One terminal per vehicle: opening it again reports false and changes nothing.
bool Interfaces::openTerminal() {
    const auto lock = ready();
    return !std::exchange(state_->terminalOpen_, true);
}

void Interfaces::closeTerminal() {
    const auto lock = ready();
    if (!std::exchange(state_->terminalOpen_, false)) {
        fail(TerminalNotOpen, L"The terminal is not open", L"");
    }
}

std::shared_ptr<WLanSignalData> Interfaces::getWLanSignalData(const std::wstring& interfaceName) {
    const auto lock = ready();
    const auto& i = state_->find(interfaceName);
    if (!i.wlan) {
        fail(NoWLan, L"The interface has no WLAN", L"interface " + interfaceName);
    }
    return std::make_shared<WLanSignalData>(*i.wlan);
}

// An entity that a diagnostic connection holds stays collected, with its error.
std::vector<std::shared_ptr<KelError>> Interfaces::clearDoIPEcuCollection() {
    const auto lock = ready();
    std::vector<std::shared_ptr<KelError>> errors;
    for (const auto& e : state_->collection_) {
        if (e.inUse) {
            errors.push_back(error(DoIPEntityInUse,
                                   L"The DoIP entity is in use and stays collected",
                                   L"logical address " + hex(e.logicalAddress) + L", VIN " + e.vin +
                                       L", entity id " + e.entityId));
        }
    }
    std::erase_if(state_->collection_, [](const DoIPEntity& e) { return !e.inUse; });
    return errors;
}

std::shared_ptr<InterfaceConfiguration> Interfaces::getInterfaceConfiguration() {
    const auto lock = ready();
    auto config = std::make_shared<InterfaceConfiguration>();
    for (const auto& i : state_->interfaces_) {
        if (i.dynamic) {
            continue;
        }
        auto e = std::make_shared<InterfaceConfigurationEntry>();
        e->text1 = i.name;
        e->text2 = i.longName;
        e->text3 = i.vendor;
        e->text4 = i.kind;
        e->text5 = i.address;
        e->value = i.ethernetPinState;
        e->flag = i.enabled;
        for (const auto& r : i.resources) {
            e->items.push_back(std::make_shared<ResourceInformation>(r));
        }
        config->entries.push_back(std::move(e));
    }
    return config;
}

// The entries become the configured interfaces: one that keeps its name keeps its
// modules, links, WLAN and connection; the others are new, plugged and not connected.
// Dynamic interfaces are not configured and stay.
void Interfaces::setInterfaceConfiguration(std::shared_ptr<InterfaceConfiguration> config) {
    const auto lock = ready();
    if (!config) {
        fail(BadInterfaceArgument, L"No interface configuration was given", L"");
    }
    std::vector<Interface> configured;
    std::set<std::wstring> names;
    for (const auto& e : config->entries) {
        if (!e || e->text1.empty()) {
            fail(BadInterfaceArgument, L"An interface needs a name", L"");
        }
        if (!names.insert(e->text1).second) {
            fail(NameTaken, L"Two entries name the same interface", L"interface " + e->text1);
        }
        Interface i;
        const auto it = std::find_if(state_->interfaces_.begin(), state_->interfaces_.end(),
                                     [&](const Interface& x) { return x.name == e->text1; });
        if (it != state_->interfaces_.end() && !it->dynamic) {
            i = *it;
        } else if (it != state_->interfaces_.end()) {
            fail(NameTaken, L"A dynamic interface has that name", L"interface " + e->text1);
        } else {
            i.handle = state_->nextHandle();
        }
        i.name = e->text1;
        i.longName = e->text2.empty() ? e->text1 : e->text2;
        i.vendor = e->text3;
        i.kind = e->text4;
        i.address = e->text5;
        i.ethernetPinState = e->value;
        i.enabled = e->flag;
        i.resources.clear();
        uint32_t id = 0;
        for (const auto& r : e->items) {
            if (r) {
                i.resources.push_back(*r);
                i.resources.back().id = ++id;
            }
        }
        configured.push_back(std::move(i));
    }
    for (auto& i : state_->interfaces_) {
        if (i.dynamic) {
            configured.push_back(std::move(i));
        }
    }
    state_->interfaces_ = std::move(configured);
}

std::vector<std::shared_ptr<SupportedInterface>> Interfaces::getSupportedInterfaces() {
    const auto lock = ready();
    std::vector<std::shared_ptr<SupportedInterface>> out;
    for (const auto& s : state_->supported_) {
        out.push_back(std::make_shared<SupportedInterface>(s));
    }
    return out;
}

std::vector<std::shared_ptr<InterfaceProvider>> Interfaces::getInterfaceProviders() {
    const auto lock = ready();
    std::vector<std::shared_ptr<InterfaceProvider>> out;
    for (const auto& p : state_->providers_) {
        out.push_back(std::make_shared<InterfaceProvider>(p));
    }
    return out;
}

void Interfaces::setInterfaceProviders(
    const std::vector<std::shared_ptr<InterfaceProviderDyn>>& providers) {
    const auto lock = ready();
    std::vector<InterfaceProvider> kept;
    for (const auto& p : providers) {
        if (!p || p->itemText1.empty()) {
            fail(BadInterfaceArgument, L"An interface provider needs a name", L"");
        }
        InterfaceProvider provider;
        provider.itemText1 = p->itemText1;
        provider.itemText2 = p->itemText2;
        provider.itemText3 = p->itemText3;
        provider.itemText4 = p->itemText4;
        provider.text = p->text;
        provider.value = p->value;
        provider.flag = p->flag;
        kept.push_back(std::move(provider));
    }
    state_->providers_ = std::move(kept);
}

std::shared_ptr<DoIPParameter> Interfaces::getDefaultDoIPParameter() {
    const auto lock = ready();
    return std::make_shared<DoIPParameter>(state_->doip_);
}

} // namespace Varno::Kel_cpp::Reference
