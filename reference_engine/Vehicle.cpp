#include "Vehicle.h"

#include "Describe.h"

#include <Kel_cpp/TarnApiException.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

// The bundled default vehicle, reference_engine/vehicles/default.json, built in.
const char* const defaultVehicle =
#include "DefaultVehicle.inc"
    ;

struct Source {
    std::mutex mutex;
    std::string path; // empty: KEL_SIM_VEHICLE, else the default
    std::string json; // inline description; wins over the path
    std::vector<std::weak_ptr<VehicleModel>> models;
};

Source& source() {
    static Source instance;
    return instance;
}

std::string readDescription(std::wstring& origin) {
    auto& s = source();
    std::string path;
    {
        const std::lock_guard lock(s.mutex);
        if (!s.json.empty()) {
            origin = L"description set through kelsim_setVehicleJson";
            return s.json;
        }
        path = s.path;
    }
    if (path.empty()) {
        const char* env = std::getenv("KEL_SIM_VEHICLE");
        path = env != nullptr ? env : "";
    }
    if (path.empty()) {
        origin = L"the bundled default vehicle";
        return defaultVehicle;
    }
    origin = fromUtf8(path);
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description cannot be read",
                               L"cannot open " + origin);
    }
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::wstring wtext(const nlohmann::json& object, const char* key, const char* fallback = "") {
    const auto found = object.find(key);
    return fromUtf8(found != object.end() ? found->get<std::string>() : std::string(fallback));
}

std::vector<uint8_t> hexBytes(const std::string& hex) {
    if (hex.size() % 2 != 0) {
        throw std::invalid_argument("raw bytes need an even number of hex digits: " + hex);
    }
    std::vector<uint8_t> out;
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        out.push_back(static_cast<uint8_t>(std::stoul(hex.substr(i, 2), nullptr, 16)));
    }
    return out;
}

Parameter parseParameter(const nlohmann::json& j) {
    Parameter p;
    p.name = wtext(j, "name");
    p.label = wtext(j, "label");
    p.value = wtext(j, "value");
    p.unit = wtext(j, "unit");
    p.raw = hexBytes(j.value("raw", std::string()));
    for (const auto& child : j.value("children", nlohmann::json::array())) {
        p.children.push_back(parseParameter(child));
    }
    return p;
}

std::vector<Parameter> parseParameters(const nlohmann::json& j, const char* key) {
    std::vector<Parameter> out;
    for (const auto& item : j.value(key, nlohmann::json::array())) {
        out.push_back(parseParameter(item));
    }
    return out;
}

std::shared_ptr<KelError> error(int32_t code, std::wstring message, std::wstring details) {
    auto e = std::make_shared<KelError>();
    e->code = code;
    e->message = std::move(message);
    e->details = std::move(details);
    return e;
}

std::shared_ptr<KelError> silent(const Ecu& ecu) {
    auto e = error(EcuNotResponding, L"The control unit does not respond",
                   L"no response from " + ecu.name + L" within " +
                       std::to_wstring(ecu.responseTimeoutMs) + L" ms");
    e->mvciError = std::make_shared<MvciServerError>();
    e->mvciError->code = 0x0107;
    e->mvciError->codeText = L"PDU_ERR_EVT_NOT_RESPONDING";
    e->mvciError->extraText = ecu.bus;
    return e;
}

std::shared_ptr<KelError> unknown(const std::wstring& name) {
    return error(UnknownTarget, L"The vehicle has no such control unit", L"target " + name);
}

// One result per selected target: an unknown target and a control unit that does not
// respond get their per-target error (status 2 and 1); `answer` fills the result of a
// control unit that responds.
template <class R, class Answer>
std::vector<std::shared_ptr<R>>
perTarget(const std::vector<std::pair<std::wstring, Ecu*>>& selected, Answer&& answer) {
    std::vector<std::shared_ptr<R>> out;
    for (const auto& [name, ecu] : selected) {
        auto r = std::make_shared<R>();
        r->target = name;
        if (ecu == nullptr) {
            r->status = 2;
            r->error = unknown(name);
        } else if (!ecu->responds) {
            r->status = 1;
            r->error = silent(*ecu);
        } else {
            answer(*r, *ecu);
        }
        out.push_back(std::move(r));
    }
    return out;
}

std::shared_ptr<ParameterResult> parameterResult(const Parameter& p) {
    auto r = std::make_shared<ParameterResult>();
    r->itemText1 = p.name;
    r->itemText2 = p.label;
    r->text1 = p.value;
    r->text2 = p.unit;
    r->value1 = static_cast<int32_t>(p.children.size());
    for (const auto& child : p.children) {
        r->children.push_back(parameterResult(child));
    }
    r->data = p.raw;
    r->value3 = static_cast<uint32_t>(p.raw.size());
    return r;
}

std::vector<std::shared_ptr<ParameterResult>> parameterResults(const std::vector<Parameter>& list) {
    std::vector<std::shared_ptr<ParameterResult>> out;
    for (const auto& p : list) {
        out.push_back(parameterResult(p));
    }
    return out;
}

// An identification value as a parameter: name, identifier, text and its ASCII bytes.
std::shared_ptr<ParameterResult> identParameter(const IdentValue& v) {
    auto r = std::make_shared<ParameterResult>();
    r->itemText1 = v.name;
    r->itemText2 = v.id;
    r->text1 = v.value;
    const std::string bytes = toUtf8(v.value);
    r->data.assign(bytes.begin(), bytes.end());
    r->value3 = static_cast<uint32_t>(r->data.size());
    return r;
}

std::shared_ptr<DtcResult> dtcResult(const Ecu& ecu, const Dtc& d, const DtcReadConfig* config) {
    auto r = std::make_shared<DtcResult>();
    r->code = static_cast<int32_t>(d.code);
    r->text1 = d.display;
    r->text2 = d.text;
    r->value1 = d.status;
    const bool all = config == nullptr;
    if (all || config->flag1 != 0) {
        r->parameters1 = parameterResults(d.snapshot);
    }
    if (all || config->flag2 != 0) {
        r->parameters2 = parameterResults(d.extended);
    }
    r->text3 = ecu.name;
    r->text4 = d.symptom;
    if (all || config->flag3 != 0) {
        for (const auto& group : d.specialData) {
            auto g = std::make_shared<SpecialDataGroup>();
            for (const auto& item : group) {
                auto s = std::make_shared<SpecialData>();
                s->itemText1 = item.name;
                s->itemText2 = item.value;
                s->itemText3 = item.unit;
                g->items.push_back(std::move(s));
            }
            r->specialDataGroups.push_back(std::move(g));
        }
    }
    r->value2 = d.severity;
    return r;
}

// The status mask of a read: 0 (or no config) takes every DTC.
bool wanted(const Dtc& d, const DtcReadConfig* config) {
    const auto mask = config != nullptr ? static_cast<uint32_t>(config->value) : 0U;
    return mask == 0 || (d.status & mask) != 0;
}

const IdentValue* identValue(const Ecu& ecu, const std::wstring& key) {
    for (const auto& v : ecu.identification) {
        if (v.id == key || v.name == key) {
            return &v;
        }
    }
    return nullptr;
}

std::wstring identText(const Ecu& ecu, const wchar_t* id) {
    const auto* v = identValue(ecu, id);
    return v != nullptr ? v->value : L"";
}

// `*` matches any run of characters, `?` any one character.
bool matches(const wchar_t* pattern, const wchar_t* text) {
    if (*pattern == L'\0') {
        return *text == L'\0';
    }
    if (*pattern == L'*') {
        return matches(pattern + 1, text) || (*text != L'\0' && matches(pattern, text + 1));
    }
    return *text != L'\0' && (*pattern == L'?' || *pattern == *text) &&
           matches(pattern + 1, text + 1);
}

// Include filters (flag 0) admit the targets they match; when there is none, every
// target is admitted. Exclude filters (flag != 0) then remove what they match. A
// filter matches the target's name, or any of its aliases.
bool admitted(const Ecu& ecu, const std::vector<std::shared_ptr<TargetFilter>>& filters) {
    const auto hit = [&](const TargetFilter& f) {
        if (matches(f.pattern.c_str(), ecu.name.c_str())) {
            return true;
        }
        return std::any_of(ecu.aliases.begin(), ecu.aliases.end(), [&](const std::wstring& a) {
            return matches(f.pattern.c_str(), a.c_str());
        });
    };
    bool anyInclude = false;
    bool included = false;
    for (const auto& f : filters) {
        if (!f) {
            continue;
        }
        if (f->flag != 0) {
            if (hit(*f)) {
                return false;
            }
        } else {
            anyInclude = true;
            included = included || hit(*f);
        }
    }
    return !anyInclude || included;
}

std::shared_ptr<Target> target(const Ecu& ecu) {
    auto t = std::make_shared<Target>();
    t->itemText1 = ecu.name;
    t->itemText2 = ecu.description;
    t->itemText3 = ecu.variant;
    t->value1 = ecu.address;
    t->text1 = ecu.protocol;
    t->text2 = ecu.bus;
    for (const auto& v : ecu.identification) {
        auto item = std::make_shared<NamedItem>();
        item->itemText1 = v.name;
        item->itemText2 = v.id;
        t->items.push_back(std::move(item));
    }
    t->names = ecu.aliases;
    t->text3 = identText(ecu, L"F187");
    t->text4 = identText(ecu, L"F189");
    t->value2 = ecu.responds ? 1 : 0;
    t->text5 = identText(ecu, L"F191");
    return t;
}

std::shared_ptr<TargetFilter> copyFilter(const std::shared_ptr<TargetFilter>& f) {
    return f ? std::make_shared<TargetFilter>(*f) : nullptr;
}

} // namespace

void setVehicleSource(const std::string& path, const std::string& json) {
    auto& s = source();
    const std::lock_guard lock(s.mutex);
    s.path = path;
    s.json = json;
}

std::shared_ptr<VehicleModel> VehicleModel::create() {
    auto model = std::make_shared<VehicleModel>();
    model->load();
    auto& s = source();
    const std::lock_guard lock(s.mutex);
    std::erase_if(s.models, [](const auto& m) { return m.expired(); });
    s.models.push_back(model);
    return model;
}

void VehicleModel::reloadAll() {
    std::vector<std::shared_ptr<VehicleModel>> live;
    {
        auto& s = source();
        const std::lock_guard lock(s.mutex);
        for (const auto& m : s.models) {
            if (auto model = m.lock()) {
                live.push_back(std::move(model));
            }
        }
    }
    for (const auto& model : live) {
        model->load();
    }
}

void VehicleModel::load() {
    std::vector<Ecu> ecus;
    std::wstring problem;
    std::wstring origin;
    try {
        ecus = parse(readDescription(origin));
    } catch (const TarnApiException& e) {
        problem = e.details.empty() ? e.message : e.message + L": " + e.details;
    }
    const std::lock_guard lock(mutex_);
    ecus_ = std::move(ecus);
    loadError_ = problem.empty() ? L"" : problem + L" (" + origin + L")";
    sessionFilters_.clear();
}

void VehicleModel::requireLoaded() const {
    if (!loadError_.empty()) {
        throw TarnApiException(BadVehicleDescription,
                               L"The simulated vehicle has no valid description", loadError_);
    }
}

uint32_t VehicleModel::dtcNumber(const std::wstring& display, uint8_t failureType) {
    static const std::wstring letters = L"PCBU";
    const auto letter = display.empty() ? std::wstring::npos : letters.find(display[0]);
    if (letter == std::wstring::npos || display.size() != 5) {
        throw std::invalid_argument("a DTC is written as P, C, B or U and four hex digits: " +
                                    toUtf8(display));
    }
    const uint32_t digits =
        static_cast<uint32_t>(std::stoul(toUtf8(display.substr(1)), nullptr, 16));
    if (digits > 0x3FFF) {
        throw std::invalid_argument("the first digit of a DTC is 0 to 3: " + toUtf8(display));
    }
    return ((static_cast<uint32_t>(letter) << 14 | digits) << 8) | failureType;
}

std::vector<Ecu> VehicleModel::parse(const std::string& json) {
    try {
        const auto root = nlohmann::json::parse(json);
        std::vector<Ecu> ecus;
        for (const auto& j : root.at("ecus")) {
            Ecu ecu;
            ecu.name = fromUtf8(j.at("name").get<std::string>());
            ecu.description = wtext(j, "description");
            ecu.variant = wtext(j, "variant");
            ecu.protocol = wtext(j, "protocol");
            ecu.bus = wtext(j, "bus");
            ecu.address = j.value("address", 0);
            ecu.responds = j.value("responds", true);
            ecu.responseTimeoutMs = j.value("responseTimeoutMs", 1000U);
            for (const auto& a : j.value("aliases", nlohmann::json::array())) {
                ecu.aliases.push_back(fromUtf8(a.get<std::string>()));
            }
            for (const auto& v : j.value("identification", nlohmann::json::array())) {
                ecu.identification.push_back({wtext(v, "id"), wtext(v, "name"), wtext(v, "value")});
            }
            for (const auto& d : j.value("dtcs", nlohmann::json::array())) {
                Dtc dtc;
                dtc.display = fromUtf8(d.at("code").get<std::string>());
                dtc.code = dtcNumber(dtc.display, d.value("failureType", uint8_t{0}));
                dtc.status = d.value("status", uint8_t{0});
                dtc.text = wtext(d, "text");
                dtc.symptom = wtext(d, "symptom");
                dtc.severity = d.value("severity", 0);
                dtc.snapshot = parseParameters(d, "snapshot");
                dtc.extended = parseParameters(d, "extended");
                for (const auto& group : d.value("specialData", nlohmann::json::array())) {
                    std::vector<SpecialItem> items;
                    for (const auto& item : group) {
                        items.push_back(
                            {wtext(item, "name"), wtext(item, "value"), wtext(item, "unit")});
                    }
                    dtc.specialData.push_back(std::move(items));
                }
                dtc.stored = d.value("stored", true);
                ecu.dtcs.push_back(std::move(dtc));
            }
            ecus.push_back(std::move(ecu));
        }
        return ecus;
    } catch (const std::exception& e) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               fromUtf8(e.what()));
    }
}

std::vector<std::pair<std::wstring, Ecu*>>
VehicleModel::select(const std::vector<std::wstring>& names) {
    requireLoaded();
    std::vector<std::pair<std::wstring, Ecu*>> out;
    if (names.empty()) {
        for (auto& ecu : ecus_) {
            out.emplace_back(ecu.name, &ecu);
        }
        return out;
    }
    for (const auto& name : names) {
        const auto found =
            std::find_if(ecus_.begin(), ecus_.end(), [&](const Ecu& e) { return e.name == name; });
        out.emplace_back(name, found == ecus_.end() ? nullptr : &*found);
    }
    return out;
}

std::vector<std::shared_ptr<VariantIdentResult>>
VehicleModel::identify(const std::vector<std::wstring>& targets) {
    const std::lock_guard lock(mutex_);
    return perTarget<VariantIdentResult>(select(targets), [](VariantIdentResult& r, Ecu& ecu) {
        r.variant = ecu.variant;
        ecu.identified = true;
    });
}

std::shared_ptr<VariantIdentResult> VehicleModel::identifyOne(const std::wstring& target) {
    auto results = identify({target});
    // The vehicle has nothing to say about a name it does not know.
    return results.front()->status == 2 ? nullptr : results.front();
}

std::vector<std::shared_ptr<ReadDataResult>>
VehicleModel::identification(const std::vector<std::wstring>& targets) {
    const std::lock_guard lock(mutex_);
    return perTarget<ReadDataResult>(select(targets), [](ReadDataResult& r, const Ecu& ecu) {
        r.text = ecu.variant;
        for (const auto& v : ecu.identification) {
            r.parameters.push_back(identParameter(v));
        }
    });
}

std::vector<std::shared_ptr<ReadDataResult>>
VehicleModel::readData(const std::wstring& target, const std::vector<std::wstring>& ids) {
    const std::lock_guard lock(mutex_);
    return perTarget<ReadDataResult>(select({target}), [&](ReadDataResult& r, const Ecu& ecu) {
        r.text = ecu.variant;
        for (const auto& id : ids) {
            if (const auto* v = identValue(ecu, id)) {
                r.parameters.push_back(identParameter(*v));
            } else {
                auto p = std::make_shared<ParameterResult>();
                p->itemText2 = id;
                p->error = error(UnknownIdentifier, L"The control unit has no such identifier",
                                 L"identifier " + id + L" on " + target);
                r.parameters.push_back(std::move(p));
            }
        }
    });
}

namespace {

template <class R>
std::vector<std::shared_ptr<R>>
dtcResults(const std::vector<std::pair<std::wstring, Ecu*>>& selected, const DtcReadConfig* config,
           bool supported) {
    return perTarget<R>(selected, [&](R& r, const Ecu& ecu) {
        for (const auto& d : ecu.dtcs) {
            if ((supported || d.stored) && wanted(d, config)) {
                r.dtcs.push_back(dtcResult(ecu, d, config));
            }
        }
    });
}

} // namespace

std::vector<std::shared_ptr<ReadDtcResult>>
VehicleModel::readDtcs(const std::vector<std::wstring>& targets,
                       const std::shared_ptr<DtcReadConfig>& config) {
    const std::lock_guard lock(mutex_);
    auto out = dtcResults<ReadDtcResult>(select(targets), config.get(), false);
    for (auto& r : out) {
        r->value = static_cast<int32_t>(r->dtcs.size()); // DTCs stored now
    }
    return out;
}

std::vector<std::shared_ptr<SupportedDtcResult>>
VehicleModel::readSupportedDtcs(const std::vector<std::wstring>& targets,
                                const std::shared_ptr<DtcReadConfig>& config) {
    const std::lock_guard lock(mutex_);
    // Supported DTCs carry no status in this simulation's masks: the mask is ignored.
    std::shared_ptr<DtcReadConfig> unmasked;
    if (config) {
        unmasked = std::make_shared<DtcReadConfig>(*config);
        unmasked->value = 0;
    }
    return dtcResults<SupportedDtcResult>(select(targets), unmasked.get(), true);
}

std::vector<std::shared_ptr<ClearDtcResult>>
VehicleModel::clearAll(const std::vector<std::wstring>& targets, int32_t& cleared) {
    const std::lock_guard lock(mutex_);
    cleared = 0;
    return perTarget<ClearDtcResult>(select(targets), [&](ClearDtcResult& /*r*/, Ecu& ecu) {
        for (auto& d : ecu.dtcs) {
            d.stored = false;
            d.status = 0;
        }
        ++cleared;
    });
}

std::vector<std::shared_ptr<ClearDtcResult>>
VehicleModel::clearSpecific(const std::wstring& target, const std::vector<uint32_t>& codes,
                            int32_t& cleared) {
    const std::lock_guard lock(mutex_);
    cleared = 0;
    return perTarget<ClearDtcResult>(select({target}), [&](ClearDtcResult& /*r*/, Ecu& ecu) {
        for (auto& d : ecu.dtcs) {
            if (std::find(codes.begin(), codes.end(), d.code) != codes.end()) {
                d.stored = false;
                d.status = 0;
            }
        }
        cleared = 1;
    });
}

std::vector<std::shared_ptr<Target>>
VehicleModel::targets(const std::vector<std::shared_ptr<TargetFilter>>& filters) {
    const std::lock_guard lock(mutex_);
    requireLoaded();
    const auto& applied = filters.empty() ? sessionFilters_ : filters;
    std::vector<std::shared_ptr<Target>> out;
    for (const auto& ecu : ecus_) {
        if (admitted(ecu, applied)) {
            out.push_back(target(ecu));
        }
    }
    return out;
}

std::vector<std::shared_ptr<Target>> VehicleModel::allTargets() {
    const std::lock_guard lock(mutex_);
    requireLoaded();
    std::vector<std::shared_ptr<Target>> out;
    for (const auto& ecu : ecus_) {
        out.push_back(target(ecu));
    }
    return out;
}

std::vector<std::shared_ptr<TargetStatus>>
VehicleModel::status(const std::vector<std::wstring>& targets) {
    const std::lock_guard lock(mutex_);
    std::vector<std::shared_ptr<TargetStatus>> out;
    for (auto& [name, ecu] : select(targets)) {
        auto s = std::make_shared<TargetStatus>();
        s->target = name;
        if (ecu == nullptr) {
            s->text = L"unknown";
            s->error = unknown(name);
        } else {
            const auto stored = std::count_if(ecu->dtcs.begin(), ecu->dtcs.end(),
                                              [](const Dtc& d) { return d.stored; });
            s->text = ecu->responds ? L"responding" : L"not responding";
            if (!ecu->responds) {
                s->error = silent(*ecu);
            }
            s->values = {static_cast<uint32_t>(ecu->address), ecu->responds ? 1U : 0U,
                         ecu->identified ? 1U : 0U, static_cast<uint32_t>(stored),
                         static_cast<uint32_t>(ecu->dtcs.size())};
            s->text2 = ecu->variant;
        }
        out.push_back(std::move(s));
    }
    return out;
}

std::vector<std::shared_ptr<TargetFilter>> VehicleModel::sessionFilters() {
    const std::lock_guard lock(mutex_);
    std::vector<std::shared_ptr<TargetFilter>> out;
    for (const auto& f : sessionFilters_) {
        out.push_back(copyFilter(f));
    }
    return out;
}

void VehicleModel::setSessionFilters(const std::vector<std::shared_ptr<TargetFilter>>& filters) {
    const std::lock_guard lock(mutex_);
    sessionFilters_.clear();
    for (const auto& f : filters) {
        sessionFilters_.push_back(copyFilter(f));
    }
}

} // namespace Varno::Kel_cpp::Reference
