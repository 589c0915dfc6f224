#include "Answers.h"

#include "Describe.h"
#include "ErrorCodes.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace Varno::Kel_cpp::Reference::Answers {
namespace {

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
template <class R, class Unit, class Answer>
std::vector<std::shared_ptr<R>>
perTarget(const std::vector<std::pair<std::wstring, Unit*>>& selected, Answer&& answer) {
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

// The ECUs a request names, in request order; an empty list means every ECU. Unknown
// names give nullptr entries beside their names.
template <class Units>
auto select(Units& ecus, const Names& names) {
    std::vector<std::pair<std::wstring, decltype(&ecus.front())>> out;
    if (names.empty()) {
        for (auto& ecu : ecus) {
            out.emplace_back(ecu.name, &ecu);
        }
        return out;
    }
    for (const auto& name : names) {
        const auto found =
            std::find_if(ecus.begin(), ecus.end(), [&](const Ecu& e) { return e.name == name; });
        out.emplace_back(name, found == ecus.end() ? nullptr : &*found);
    }
    return out;
}

template <class R>
std::vector<std::shared_ptr<R>> dtcResults(const std::vector<Ecu>& ecus, const Names& targets,
                                           const DtcReadConfig* config, bool supported) {
    return perTarget<R>(select(ecus, targets), [&](R& r, const Ecu& ecu) {
        for (const auto& d : ecu.dtcs) {
            if ((supported || d.stored) && wanted(d, config)) {
                r.dtcs.push_back(dtcResult(ecu, d, config));
            }
        }
    });
}

// Include filters (flag 0) admit the targets they match; when there is none, every
// target is admitted. Exclude filters (flag != 0) then remove what they match. A
// filter matches the target's name, or any of its aliases.
bool admitted(const Ecu& ecu, const std::vector<std::shared_ptr<TargetFilter>>& filters) {
    const auto hit = [&](const TargetFilter& f) {
        if (matchesPattern(f.pattern, ecu.name)) {
            return true;
        }
        return std::any_of(ecu.aliases.begin(), ecu.aliases.end(),
                           [&](const std::wstring& a) { return matchesPattern(f.pattern, a); });
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

} // namespace

bool matchesPattern(std::wstring_view pattern, std::wstring_view text) {
    constexpr auto none = std::wstring_view::npos;
    std::size_t p = 0;
    std::size_t t = 0;
    std::size_t star = none; // the last `*` seen
    std::size_t resume = 0;  // where the text continues when that `*` takes one more
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == L'*') {
            star = p++;
            resume = t;
        } else if (p < pattern.size() && (pattern[p] == L'?' || pattern[p] == text[t])) {
            ++p;
            ++t;
        } else if (star != none) {
            // An earlier `*` never needs to take more: the last one can take it instead.
            p = star + 1;
            t = ++resume;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == L'*') {
        ++p;
    }
    return p == pattern.size();
}

std::vector<std::shared_ptr<VariantIdentResult>> identify(std::vector<Ecu>& ecus,
                                                          const Names& targets) {
    return perTarget<VariantIdentResult>(select(ecus, targets),
                                         [](VariantIdentResult& r, Ecu& ecu) {
                                             r.variant = ecu.variant;
                                             ecu.identified = true;
                                         });
}

std::vector<std::shared_ptr<ReadDataResult>> identification(const std::vector<Ecu>& ecus,
                                                            const Names& targets) {
    return perTarget<ReadDataResult>(select(ecus, targets), [](ReadDataResult& r, const Ecu& ecu) {
        r.text = ecu.variant;
        for (const auto& v : ecu.identification) {
            r.parameters.push_back(identParameter(v));
        }
    });
}

std::vector<std::shared_ptr<ReadDataResult>>
readData(const std::vector<Ecu>& ecus, const std::wstring& target, const Names& identifiers) {
    return perTarget<ReadDataResult>(
        select(ecus, Names{target}), [&](ReadDataResult& r, const Ecu& ecu) {
            r.text = ecu.variant;
            for (const auto& id : identifiers) {
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

std::vector<std::shared_ptr<ReadDtcResult>>
readDtcs(const std::vector<Ecu>& ecus, const Names& targets, const DtcReadConfig* config) {
    auto out = dtcResults<ReadDtcResult>(ecus, targets, config, false);
    for (auto& r : out) {
        r->value = static_cast<int32_t>(r->dtcs.size()); // DTCs stored now
    }
    return out;
}

std::vector<std::shared_ptr<SupportedDtcResult>>
readSupportedDtcs(const std::vector<Ecu>& ecus, const Names& targets, const DtcReadConfig* config) {
    // Supported DTCs carry no status in this simulation's masks: the mask is ignored.
    std::optional<DtcReadConfig> unmasked;
    if (config != nullptr) {
        unmasked = *config;
        unmasked->value = 0;
    }
    return dtcResults<SupportedDtcResult>(ecus, targets, unmasked ? &*unmasked : nullptr, true);
}

std::vector<std::shared_ptr<ClearDtcResult>> clearAll(std::vector<Ecu>& ecus, const Names& targets,
                                                      int32_t& cleared) {
    cleared = 0;
    return perTarget<ClearDtcResult>(select(ecus, targets), [&](ClearDtcResult& /*r*/, Ecu& ecu) {
        for (auto& d : ecu.dtcs) {
            d.stored = false;
            d.status = 0;
        }
        ++cleared;
    });
}

std::vector<std::shared_ptr<ClearDtcResult>> clearSpecific(std::vector<Ecu>& ecus,
                                                           const std::wstring& target,
                                                           const std::vector<uint32_t>& codes,
                                                           int32_t& cleared) {
    cleared = 0;
    return perTarget<ClearDtcResult>(
        select(ecus, Names{target}), [&](ClearDtcResult& /*r*/, Ecu& ecu) {
            for (auto& d : ecu.dtcs) {
                if (std::find(codes.begin(), codes.end(), d.code) != codes.end()) {
                    d.stored = false;
                    d.status = 0;
                }
            }
            cleared = 1;
        });
}

std::vector<std::shared_ptr<Target>> targets(const std::vector<Ecu>& ecus, const Filters& filters) {
    std::vector<std::shared_ptr<Target>> out;
    for (const auto& ecu : ecus) {
        if (admitted(ecu, filters)) {
            out.push_back(target(ecu));
        }
    }
    return out;
}

std::vector<std::shared_ptr<TargetStatus>> status(const std::vector<Ecu>& ecus,
                                                  const Names& targets) {
    std::vector<std::shared_ptr<TargetStatus>> out;
    for (const auto& [name, ecu] : select(ecus, targets)) {
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

} // namespace Varno::Kel_cpp::Reference::Answers
