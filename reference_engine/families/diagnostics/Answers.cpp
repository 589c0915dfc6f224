#include "Answers.h"

#include "Describe.h"
#include "ErrorCodes.h"

#include <algorithm>
#include <cwctype>
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

std::shared_ptr<KelError> unknown(const std::wstring& name) {
    return error(UnknownTarget, L"The vehicle has no such control unit", L"target " + name);
}

// One result per selected target: an unknown target gets its per-target error (status
// 2); `answer` fills the result of a known unit from its exchanges and returns false
// when the unit stayed silent (status 1).
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
        } else if (!answer(*r, *ecu)) {
            *r = R{};
            r->target = name;
            r->status = 1;
            r->error = silent(*ecu);
        }
        out.push_back(std::move(r));
    }
    return out;
}

Bytes didRequest(uint8_t sid, uint16_t id) {
    return {sid, static_cast<uint8_t>(id >> 8), static_cast<uint8_t>(id)};
}

// Reads one data identifier by ReadDataByIdentifier: its parameter, or one that carries
// the negative response; null when the unit stayed silent.
std::shared_ptr<ParameterResult> readIdentifier(Bus& bus, Ecu& ecu, uint16_t id,
                                                const std::wstring& asked) {
    const auto response = bus.exchange(ecu, didRequest(0x22, id));
    if (response.empty()) {
        return nullptr;
    }
    const auto* d = ecu.dataIdentifier(id);
    if (response[0] == 0x62 && d != nullptr) {
        return dataParameter(*d, Bytes(response.begin() + 3, response.end()));
    }
    auto p = std::make_shared<ParameterResult>();
    p->itemText2 = asked;
    const bool unknownId = response.size() == 3 && response[2] == RequestOutOfRange;
    p->error = negative(response, unknownId ? UnknownIdentifier : NegativeResponseReceived);
    if (unknownId) {
        p->error->message = L"The control unit has no such identifier";
        p->error->details = L"identifier " + asked + L" on " + ecu.name;
    }
    return p;
}

// The DTC records (3-byte number, status) of a positive ReadDTCInformation response.
std::vector<std::pair<uint32_t, uint8_t>> dtcRecords(const Bytes& response) {
    std::vector<std::pair<uint32_t, uint8_t>> out;
    if (response.size() < 3 || response[0] != 0x59) {
        return out;
    }
    for (std::size_t i = 3; i + 4 <= response.size(); i += 4) {
        out.emplace_back(
            static_cast<uint32_t>(response[i] << 16 | response[i + 1] << 8 | response[i + 2]),
            response[i + 3]);
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

std::shared_ptr<DtcResult> dtcResult(const Ecu& ecu, const Dtc& d, uint8_t status,
                                     const DtcReadConfig* config) {
    auto r = std::make_shared<DtcResult>();
    r->code = static_cast<int32_t>(d.code);
    r->text1 = d.display;
    r->text2 = d.text;
    r->value1 = status;
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

std::wstring dataText(const Ecu& ecu, uint16_t id) {
    const auto* d = ecu.dataIdentifier(id);
    return d != nullptr ? d->codec.decode(d->bytes) : L"";
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

// The DTCs the unit reports to ReadDTCInformation `request`, with the fault memory's
// data beside each.
template <class R>
std::vector<std::shared_ptr<R>> dtcResults(Bus& bus, const Names& targets, const Bytes& request,
                                           const DtcReadConfig* config) {
    return perTarget<R>(select(bus.ecus, targets), [&](R& r, Ecu& ecu) {
        const auto response = bus.exchange(ecu, request);
        if (response.empty()) {
            return false;
        }
        if (response[0] != 0x59) {
            r.error = negative(response, NegativeResponseReceived);
        }
        for (const auto& [number, status] : dtcRecords(response)) {
            for (const auto& d : ecu.dtcs) {
                if (d.code == number) {
                    r.dtcs.push_back(dtcResult(ecu, d, status, config));
                }
            }
        }
        return true;
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
    for (const auto& d : ecu.data) {
        if (d.identification) {
            auto item = std::make_shared<NamedItem>();
            item->itemText1 = d.name;
            item->itemText2 = hexId(d.id);
            t->items.push_back(std::move(item));
        }
    }
    t->names = ecu.aliases;
    t->text3 = dataText(ecu, 0xF187);
    t->text4 = dataText(ecu, 0xF189);
    t->value2 = ecu.responds ? 1 : 0;
    t->text5 = dataText(ecu, 0xF191);
    return t;
}

} // namespace

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

std::shared_ptr<KelError> negative(const Bytes& response, int32_t code) {
    const uint8_t nrc = response.size() >= 3 ? response[2] : 0;
    auto e = error(code, L"The control unit answered with a negative response",
                   hexText(response) + L": " + nrcText(nrc));
    e->subCode = nrc;
    e->negativeResponse = std::make_shared<NegativeResponse>();
    e->negativeResponse->code = nrc;
    e->negativeResponse->text = nrcText(nrc);
    e->negativeResponse->value1 = response.size() >= 2 ? response[1] : 0;
    e->negativeResponse->bytes = response;
    return e;
}

std::shared_ptr<ParameterResult> dataParameter(const DataIdentifier& d, const Bytes& bytes) {
    auto r = std::make_shared<ParameterResult>();
    r->itemText1 = d.name;
    r->itemText2 = hexId(d.id);
    r->text1 = d.codec.decode(bytes);
    r->text2 = d.codec.unit;
    r->data = bytes;
    r->value3 = static_cast<uint32_t>(bytes.size());
    return r;
}

std::vector<std::shared_ptr<VariantIdentResult>> identify(Bus& bus, const Names& targets) {
    return perTarget<VariantIdentResult>(
        select(bus.ecus, targets), [&](VariantIdentResult& r, Ecu& ecu) {
            const auto variant = readIdentifier(bus, ecu, 0xF19E, L"F19E");
            if (!variant) {
                return false;
            }
            r.variant = variant->text1;
            r.error = variant->error;
            ecu.identified = ecu.identified || !variant->error;
            return true;
        });
}

std::vector<std::shared_ptr<QuickTestResult>> quickTest(Bus& bus, const Names& targets,
                                                        const DtcReadConfig* config) {
    std::vector<std::shared_ptr<QuickTestResult>> out;
    for (const auto& [name, ecu] : select(bus.ecus, targets)) {
        auto r = std::make_shared<QuickTestResult>();
        r->target = name;
        const auto variant = identify(bus, {name}).front();
        r->status = variant->status;
        r->error = variant->error;
        r->variant = variant->variant;
        r->identified = variant->status == 0 && !variant->error;
        if (variant->status == 0) {
            const auto dtcs = readDtcs(bus, {name}, config).front();
            r->dtcs = dtcs->dtcs;
            if (dtcs->error) {
                r->status = dtcs->status != 0 ? dtcs->status : 3;
                r->error = dtcs->error;
            } else if (variant->error) {
                r->status = 3;
            }
        }
        out.push_back(std::move(r));
    }
    return out;
}

std::vector<std::shared_ptr<ReadDataResult>> identification(Bus& bus, const Names& targets) {
    return perTarget<ReadDataResult>(select(bus.ecus, targets), [&](ReadDataResult& r, Ecu& ecu) {
        r.text = ecu.variant;
        for (const auto& d : ecu.data) {
            if (!d.identification) {
                continue;
            }
            auto p = readIdentifier(bus, ecu, d.id, hexId(d.id));
            if (!p) {
                return false;
            }
            r.parameters.push_back(std::move(p));
        }
        return true;
    });
}

// Identifiers are given by number ("F187") or by name ("Part number").
std::vector<std::shared_ptr<ReadDataResult>> readData(Bus& bus, const std::wstring& target,
                                                      const Names& identifiers) {
    return perTarget<ReadDataResult>(
        select(bus.ecus, Names{target}), [&](ReadDataResult& r, Ecu& ecu) {
            r.text = ecu.variant;
            for (const auto& id : identifiers) {
                const auto* known = ecu.dataIdentifier(id);
                std::optional<uint16_t> number;
                if (known != nullptr) {
                    number = known->id;
                } else if (id.size() == 4 && std::all_of(id.begin(), id.end(), [](wchar_t c) {
                               return std::iswxdigit(static_cast<wint_t>(c)) != 0;
                           })) {
                    number = static_cast<uint16_t>(std::stoul(id, nullptr, 16));
                }
                if (!number) {
                    auto p = std::make_shared<ParameterResult>();
                    p->itemText2 = id;
                    p->error = error(UnknownIdentifier, L"The control unit has no such identifier",
                                     L"identifier " + id + L" on " + target);
                    r.parameters.push_back(std::move(p));
                    continue;
                }
                auto p = readIdentifier(bus, ecu, *number, id);
                if (!p) {
                    return false;
                }
                r.parameters.push_back(std::move(p));
            }
            return true;
        });
}

// A status mask of 0 (or no config) reads every stored DTC: the unit's mask FF.
std::vector<std::shared_ptr<ReadDtcResult>> readDtcs(Bus& bus, const Names& targets,
                                                     const DtcReadConfig* config) {
    const auto mask = config != nullptr && config->value != 0
                          ? static_cast<uint8_t>(config->value & 0xFF)
                          : uint8_t{0xFF};
    auto out = dtcResults<ReadDtcResult>(bus, targets, {0x19, 0x02, mask}, config);
    for (auto& r : out) {
        r->value = static_cast<int32_t>(r->dtcs.size()); // DTCs stored now
    }
    return out;
}

std::vector<std::shared_ptr<SupportedDtcResult>> readSupportedDtcs(Bus& bus, const Names& targets,
                                                                   const DtcReadConfig* config) {
    return dtcResults<SupportedDtcResult>(bus, targets, {0x19, 0x0A}, config);
}

std::vector<std::shared_ptr<ClearDtcResult>> clearAll(Bus& bus, const Names& targets,
                                                      int32_t& cleared) {
    cleared = 0;
    return perTarget<ClearDtcResult>(select(bus.ecus, targets), [&](ClearDtcResult& r, Ecu& ecu) {
        const auto response = bus.exchange(ecu, {0x14, 0xFF, 0xFF, 0xFF});
        if (response.empty()) {
            return false;
        }
        if (response[0] == 0x54) {
            ++cleared;
        } else {
            r.error = negative(response, NegativeResponseReceived);
        }
        return true;
    });
}

// One ClearDiagnosticInformation per number; the unit refuses numbers it does not
// know (requestOutOfRange), which the clear ignores.
std::vector<std::shared_ptr<ClearDtcResult>> clearSpecific(Bus& bus, const std::wstring& target,
                                                           const std::vector<uint32_t>& codes,
                                                           int32_t& cleared) {
    cleared = 0;
    return perTarget<ClearDtcResult>(
        select(bus.ecus, Names{target}), [&](ClearDtcResult& /*r*/, Ecu& ecu) {
            if (codes.empty() && bus.exchange(ecu, {0x3E, 0x00}).empty()) {
                return false;
            }
            for (const auto code : codes) {
                if (bus.exchange(ecu, {0x14, static_cast<uint8_t>(code >> 16),
                                       static_cast<uint8_t>(code >> 8), static_cast<uint8_t>(code)})
                        .empty()) {
                    return false;
                }
            }
            cleared = 1;
            return true;
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
