// The engine's configuration: the TarnApiConfig, the global protocol parameter sets, the
// system properties and the selected project go to `<data root>/configuration/engine.json`
// (saveConfiguration), the Mox configuration to `mox.json` (saveMoxConfiguration). Set
// operations change what the engine uses now; only a save makes it outlive the engine.
#include "DataRoot.h"
#include "ErrorCodes.h"
#include "ProjectFiles.h"
#include "Projects.h"

#include <Kel_cpp/TarnApiException.h>

#include <functional>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

constexpr int configurationFormat = 1;
constexpr const char* engineFile = "engine.json";
constexpr const char* moxFile = "mox.json";

std::shared_ptr<SystemProperty> property(std::wstring name, std::wstring label, std::wstring value,
                                         std::wstring unit = L"") {
    auto p = std::make_shared<SystemProperty>();
    p->itemText1 = std::move(name);
    p->itemText2 = std::move(label);
    p->itemText4 = std::move(unit);
    p->text1 = value;
    p->text2 = std::move(value);
    return p;
}

std::shared_ptr<SystemProperty> group(std::wstring name, std::wstring label,
                                      std::vector<std::shared_ptr<SystemProperty>> children) {
    auto p = property(std::move(name), std::move(label), L"");
    p->children = std::move(children);
    return p;
}

std::vector<std::shared_ptr<SystemProperty>> defaultProperties() {
    return {
        group(L"Engine", L"Engine",
              {property(L"Engine.Language", L"Language of the engine's texts", L"en"),
               property(L"Engine.TraceLevel", L"Debug trace level", L"0"),
               property(L"Engine.MaxParallelCalls", L"Asynchronous calls run at once", L"4")}),
        group(L"Communication", L"Communication",
              {property(L"Communication.ResponseTimeout", L"Response timeout", L"1000", L"ms"),
               property(L"Communication.TesterPresentInterval", L"Tester present interval", L"2000",
                        L"ms")}),
    };
}

std::shared_ptr<GlobalProtocolParameter> parameter(std::wstring name, std::wstring label,
                                                   std::wstring value, std::wstring unit,
                                                   std::vector<std::wstring> choices = {}) {
    auto p = std::make_shared<GlobalProtocolParameter>();
    p->itemText1 = std::move(name);
    p->itemText2 = std::move(label);
    p->itemText4 = std::move(unit);
    p->value = value;
    p->defaultValue = std::move(value);
    p->choices = std::move(choices);
    return p;
}

std::shared_ptr<SystemProperty>
findProperty(const std::vector<std::shared_ptr<SystemProperty>>& tree, const std::wstring& name) {
    for (const auto& p : tree) {
        if (!p) {
            continue;
        }
        if (p->itemText1 == name) {
            return p;
        }
        if (auto found = findProperty(p->children, name)) {
            return found;
        }
    }
    return nullptr;
}

void forEach(const std::shared_ptr<SystemProperty>& p,
             const std::function<void(SystemProperty&)>& visit) {
    if (p) {
        visit(*p);
        for (const auto& child : p->children) {
            forEach(child, visit);
        }
    }
}

[[noreturn]] void unknownProperty(const std::wstring& name) {
    throw TarnApiException(UnknownSystemProperty, L"There is no system property of this name",
                           name);
}

// flag: whether the value differs from the one a reset gives.
std::shared_ptr<SystemProperty> handedOut(const std::shared_ptr<SystemProperty>& p) {
    auto copy = copyOf(p);
    forEach(copy, [](SystemProperty& q) { q.flag = q.text1 != q.text2 || !q.data.empty(); });
    return copy;
}

// The values of the properties that differ from their defaults, by name.
Json changedProperties(const std::vector<std::shared_ptr<SystemProperty>>& tree) {
    Json changed = Json::array();
    for (const auto& root : tree) {
        forEach(root, [&](SystemProperty& p) {
            if (p.text1 != p.text2 || !p.data.empty()) {
                Json entry = Json::object();
                entry["name"] = toJson(p.itemText1);
                entry["value"] = toJson(p.text1);
                entry["data"] = toJson(p.data);
                changed.push_back(std::move(entry));
            }
        });
    }
    return changed;
}

void requireReadable(const std::wstring& problem) {
    if (!problem.empty()) {
        throw TarnApiException(ConfigurationUnreadable,
                               L"The saved configuration cannot be read; set it to replace it",
                               problem);
    }
}

std::filesystem::path configurationFile(const char* name) {
    return dataFolder("configuration") / name;
}

} // namespace

Configuration defaultConfiguration() {
    Configuration c;
    c.engine = std::make_shared<TarnApiConfig>();
    c.engine->server = std::make_shared<ServerConfig>();
    c.engine->server->address = L"127.0.0.1";
    c.engine->server->port = 13400;
    c.engine->server->name = L"kel_sim";
    c.engine->value7 = 13400;
    c.mox = std::make_shared<MoxConfig>();
    c.mox->tcp = std::make_shared<TcpInfo>();
    c.mox->tcp->value4 = 5000;
    auto uds = std::make_shared<GlobalProtocolParameterSet>();
    uds->text1 = L"UDS on CAN";
    uds->text2 = L"ISO 14229 on ISO 15765";
    uds->parameters = {
        parameter(L"P2Client", L"Response time of the ECU", L"50", L"ms"),
        parameter(L"P2StarClient", L"Extended response time", L"5000", L"ms"),
        parameter(L"TesterPresent", L"Send tester present", L"on", L"", {L"on", L"off"})};
    c.protocolSets = {uds};
    c.properties = defaultProperties();
    return c;
}

// What is not saved, or cannot be read, starts from the defaults; an unreadable file is
// reported by the operations that read its part, until it is set again.
void ProjectsState::readConfigurationLocked() {
    configuration_ = defaultConfiguration();
    try {
        if (auto file = readJsonFile(configurationFile(engineFile))) {
            try {
                auto engine = fromJson<std::shared_ptr<TarnApiConfig>>(file->at("configuration"),
                                                                       "configuration");
                auto sets = fromJson<std::vector<std::shared_ptr<GlobalProtocolParameterSet>>>(
                    file->at("globalProtocolParameterSets"), "globalProtocolParameterSets");
                auto properties = defaultProperties();
                for (const auto& changed : file->at("systemProperties")) {
                    const auto name = fromJson<std::wstring>(changed.at("name"), "name");
                    auto p = findProperty(properties, name);
                    if (!p) {
                        continue; // a property this engine no longer has
                    }
                    p->text1 = fromJson<std::wstring>(changed.at("value"), "value");
                    p->data = fromJson<std::vector<uint8_t>>(changed.at("data"), "data");
                }
                selected_ = fromJson<std::wstring>(file->at("selectedProject"), "selectedProject");
                configuration_.engine = std::move(engine);
                configuration_.protocolSets = std::move(sets);
                configuration_.properties = std::move(properties);
            } catch (const std::exception& e) {
                throw std::runtime_error(std::string("is not a saved configuration: ") + e.what());
            }
        }
    } catch (const TarnApiException&) {
        return; // the data root: the projects report it
    } catch (const std::exception& e) {
        configuration_.engineProblem =
            wideFromPath(configurationFile(engineFile)) + L" " + fromUtf8(e.what());
    }
    try {
        if (auto file = readJsonFile(configurationFile(moxFile))) {
            configuration_.mox = fromJson<std::shared_ptr<MoxConfig>>(*file, "mox");
        }
    } catch (const TarnApiException&) {
    } catch (const std::exception& e) {
        configuration_.moxProblem =
            wideFromPath(configurationFile(moxFile)) + L" " + fromUtf8(e.what());
    }
}

void Projects::saveConfiguration() {
    const std::lock_guard lock(state_.mutex_);
    const auto& c = state_.configuration_;
    requireReadable(c.engineProblem);
    Json file = Json::object();
    file["format"] = configurationFormat;
    file["selectedProject"] = toJson(state_.selected_);
    file["configuration"] = toJson(c.engine);
    file["globalProtocolParameterSets"] = toJson(c.protocolSets);
    file["systemProperties"] = changedProperties(c.properties);
    writeJsonFile(configurationFile(engineFile), file);
}

void Projects::saveMoxConfiguration() {
    const std::lock_guard lock(state_.mutex_);
    requireReadable(state_.configuration_.moxProblem);
    writeJsonFile(configurationFile(moxFile), toJson(state_.configuration_.mox));
}

// The property with its whole subtree.
std::shared_ptr<SystemProperty> Projects::getSystemProperty(const std::wstring& name) {
    const std::lock_guard lock(state_.mutex_);
    requireReadable(state_.configuration_.engineProblem);
    auto found = findProperty(state_.configuration_.properties, name);
    if (!found) {
        unknownProperty(name);
    }
    return handedOut(found);
}

void Projects::resetSystemProperty(const std::wstring& name) {
    const std::lock_guard lock(state_.mutex_);
    auto found = findProperty(state_.configuration_.properties, name);
    if (!found) {
        unknownProperty(name);
    }
    forEach(found, [](SystemProperty& p) {
        p.text1 = p.text2;
        p.data.clear();
    });
}

// Sets the value and bytes of the named property and of each child given with it, by
// name; the rest of a property (its label, its default) is the engine's. Every name is
// checked before anything changes.
void Projects::setSystemProperty(std::shared_ptr<SystemProperty> property) {
    if (!property) {
        throw TarnApiException(MissingInput, L"No system property was given");
    }
    const std::lock_guard lock(state_.mutex_);
    std::vector<std::pair<std::shared_ptr<SystemProperty>, const SystemProperty*>> changes;
    forEach(property, [&](SystemProperty& given) {
        auto target = findProperty(state_.configuration_.properties, given.itemText1);
        if (!target) {
            unknownProperty(given.itemText1);
        }
        changes.emplace_back(std::move(target), &given);
    });
    for (const auto& [target, given] : changes) {
        target->text1 = given->text1;
        target->data = given->data;
    }
}

std::shared_ptr<TarnApiConfig> Projects::getConfiguration() {
    const std::lock_guard lock(state_.mutex_);
    requireReadable(state_.configuration_.engineProblem);
    return copyOf(state_.configuration_.engine);
}

void Projects::setConfiguration(std::shared_ptr<TarnApiConfig> config) {
    if (!config) {
        throw TarnApiException(MissingInput, L"No engine configuration was given");
    }
    const std::lock_guard lock(state_.mutex_);
    state_.configuration_.engine = copyOf(config);
    state_.configuration_.engineProblem.clear();
}

std::shared_ptr<MoxConfig> Projects::getMoxConfiguration() {
    const std::lock_guard lock(state_.mutex_);
    requireReadable(state_.configuration_.moxProblem);
    return copyOf(state_.configuration_.mox);
}

void Projects::setMoxConfiguration(std::shared_ptr<MoxConfig> config) {
    if (!config) {
        throw TarnApiException(MissingInput, L"No Mox configuration was given");
    }
    const std::lock_guard lock(state_.mutex_);
    state_.configuration_.mox = copyOf(config);
    state_.configuration_.moxProblem.clear();
}

std::vector<std::shared_ptr<GlobalProtocolParameterSet>>
Projects::getGlobalProtocolParameterSets() {
    const std::lock_guard lock(state_.mutex_);
    requireReadable(state_.configuration_.engineProblem);
    return copyOf(state_.configuration_.protocolSets);
}

// The sets given replace every set; a null set is refused, so none is stored.
void Projects::setGlobalProtocolParameterSets(
    const std::vector<std::shared_ptr<GlobalProtocolParameterSet>>& sets) {
    for (const auto& set : sets) {
        if (!set) {
            throw TarnApiException(MissingInput, L"A global protocol parameter set is null");
        }
    }
    const std::lock_guard lock(state_.mutex_);
    requireReadable(state_.configuration_.engineProblem);
    state_.configuration_.protocolSets = copyOf(sets);
}

} // namespace Varno::Kel_cpp::Reference
