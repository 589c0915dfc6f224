#include "Messages.h"

#include "Describe.h"
#include "ErrorCodes.h"
#include "VehicleClock.h"
#include "families/diagnostics/Answers.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <stdexcept>

namespace Varno::Kel_cpp::Reference::Messages {
namespace {

std::shared_ptr<KelError> error(int32_t code, std::wstring message, std::wstring details) {
    auto e = std::make_shared<KelError>();
    e->code = code;
    e->message = std::move(message);
    e->details = std::move(details);
    return e;
}

const ParameterInput* given(const Values& values, const std::wstring& name) {
    for (const auto& v : values) {
        if (v && v->name == name) {
            return v.get();
        }
    }
    return nullptr;
}

void encodeInto(Bytes& out, const std::vector<ParameterSpec>& layout, const Values& values,
                const std::wstring& path) {
    for (const auto& v : values) {
        const bool known = v && std::any_of(layout.begin(), layout.end(), [&](const auto& p) {
                               return p.kind != ParameterSpec::Kind::Constant && p.name == v->name;
                           });
        if (v && !known) {
            throw std::invalid_argument("the service has no parameter " + toUtf8(path + v->name));
        }
    }
    for (const auto& p : layout) {
        const auto* v = given(values, p.name);
        switch (p.kind) {
        case ParameterSpec::Kind::Constant:
            out.insert(out.end(), p.constant.begin(), p.constant.end());
            break;
        case ParameterSpec::Kind::Structure:
            encodeInto(out, p.children, v != nullptr ? v->children : Values{},
                       path + p.name + L".");
            break;
        case ParameterSpec::Kind::Value: {
            if (v != nullptr && !v->children.empty()) {
                throw std::invalid_argument(toUtf8(path + p.name) + " is not structured");
            }
            if (v == nullptr && p.defaultValue.empty()) {
                throw std::invalid_argument(toUtf8(path + p.name) + " needs a value");
            }
            try {
                const auto bytes = p.codec.encode(v != nullptr ? v->value : p.defaultValue);
                out.insert(out.end(), bytes.begin(), bytes.end());
            } catch (const std::invalid_argument& e) {
                throw std::invalid_argument(toUtf8(path + p.name) + ": " + e.what());
            }
            break;
        }
        }
    }
}

const wchar_t* kindName(const ParameterSpec& p) {
    switch (p.kind) {
    case ParameterSpec::Kind::Constant:
        return L"constant";
    case ParameterSpec::Kind::Structure:
        return L"structure";
    case ParameterSpec::Kind::Value:
        return p.codec.kindName();
    }
    return L"";
}

std::shared_ptr<ParameterResult> decodeOne(const ParameterSpec& p, const Bytes& message,
                                           std::size_t& at) {
    auto r = std::make_shared<ParameterResult>();
    r->itemText1 = p.name;
    r->itemText2 = p.label;
    r->itemText3 = kindName(p);
    r->value2 = static_cast<int32_t>(at);
    const std::size_t start = at;
    if (p.kind == ParameterSpec::Kind::Structure) {
        for (const auto& c : p.children) {
            r->children.push_back(decodeOne(c, message, at));
        }
        r->value1 = static_cast<int32_t>(r->children.size());
    } else {
        const auto left = message.size() - std::min(at, message.size());
        const std::size_t n = p.fixedLength().value_or(left);
        if (n > left) {
            r->error = error(BadParameterValue, L"The message ends inside this parameter",
                             p.name + L": " + std::to_wstring(n) + L" byte(s) expected, " +
                                 std::to_wstring(left) + L" left");
            at = message.size();
            return r;
        }
        const Bytes bytes(message.begin() + static_cast<std::ptrdiff_t>(at),
                          message.begin() + static_cast<std::ptrdiff_t>(at + n));
        at += n;
        if (p.kind == ParameterSpec::Kind::Constant) {
            r->text1 = hexText(bytes, false);
        } else {
            r->text1 = p.codec.decode(bytes);
            r->text2 = p.codec.unit;
        }
    }
    r->data.assign(message.begin() + static_cast<std::ptrdiff_t>(start),
                   message.begin() + static_cast<std::ptrdiff_t>(at));
    r->value3 = static_cast<uint32_t>(r->data.size());
    return r;
}

std::wstring number(double v) {
    char text[64];
    std::snprintf(text, sizeof text, "%.10g", v);
    return fromUtf8(text);
}

std::shared_ptr<ScaleConstraintInfo> interval(std::wstring name, std::wstring lower,
                                              std::wstring upper, int32_t value) {
    auto s = std::make_shared<ScaleConstraintInfo>();
    s->itemText1 = std::move(name);
    s->text1 = std::move(lower);
    s->text2 = std::move(upper);
    s->flag = true; // both limits inclusive
    s->value = value;
    return s;
}

// The values a unit accepts: the physical interval, or the enumeration's values.
std::shared_ptr<ConstraintInfo> validValues(const Codec& c) {
    auto k = std::make_shared<ConstraintInfo>();
    k->text1 = L"valid";
    k->flag = true;
    if (c.kind == Codec::Kind::Enumeration) {
        k->text2 = L"enumeration";
        for (const auto& [raw, name] : c.names) {
            k->scales.push_back(interval(name, std::to_wstring(raw), std::to_wstring(raw),
                                         static_cast<int32_t>(raw)));
        }
        return k;
    }
    if (c.kind != Codec::Kind::Unsigned || (!c.min && !c.max)) {
        return nullptr;
    }
    k->text2 = L"physical";
    k->scales.push_back(
        interval(L"range", c.min ? number(*c.min) : L"", c.max ? number(*c.max) : L"", 0));
    return k;
}

// What the bytes can hold at all.
std::shared_ptr<ConstraintInfo> rawValues(const Codec& c) {
    if (c.kind != Codec::Kind::Unsigned && c.kind != Codec::Kind::Enumeration) {
        return nullptr;
    }
    auto k = std::make_shared<ConstraintInfo>();
    k->text1 = L"raw";
    k->text2 = L"bytes";
    const double top = std::ldexp(1.0, static_cast<int>(8 * c.length)) - 1;
    k->scales.push_back(interval(L"raw", L"0", number(top), 0));
    if (c.kind == Codec::Kind::Unsigned) {
        k->scales.push_back(
            interval(L"physical", number(c.offset), number(top * c.scale + c.offset), 0));
    }
    return k;
}

const wchar_t* dataType(const ParameterSpec& p) {
    if (p.kind == ParameterSpec::Kind::Structure) {
        return L"A_STRUCTURE";
    }
    if (p.kind == ParameterSpec::Kind::Constant) {
        return L"A_BYTEFIELD";
    }
    switch (p.codec.kind) {
    case Codec::Kind::Ascii:
        return L"A_ASCIISTRING";
    case Codec::Kind::Unsigned:
        return p.codec.scale == 1 && p.codec.offset == 0 ? L"A_UINT32" : L"A_FLOAT64";
    case Codec::Kind::Enumeration:
        return L"A_UNICODE2STRING";
    case Codec::Kind::Bytes:
        return L"A_BYTEFIELD";
    }
    return L"";
}

const wchar_t* serviceKind(uint8_t sid) {
    switch (sid) {
    case 0x10:
        return L"DiagnosticSessionControl";
    case 0x11:
        return L"EcuReset";
    case 0x14:
        return L"ClearDiagnosticInformation";
    case 0x19:
        return L"ReadDTCInformation";
    case 0x22:
        return L"ReadDataByIdentifier";
    case 0x27:
        return L"SecurityAccess";
    case 0x2E:
        return L"WriteDataByIdentifier";
    case 0x31:
        return L"RoutineControl";
    case 0x3E:
        return L"TesterPresent";
    default:
        return L"";
    }
}

std::vector<std::shared_ptr<ParameterInfo>> parameterInfos(const std::vector<ParameterSpec>& layout,
                                                           std::size_t position,
                                                           const std::wstring& path) {
    std::vector<std::shared_ptr<ParameterInfo>> out;
    for (const auto& p : layout) {
        out.push_back(parameterInfo(p, position, path));
        position += p.fixedLength().value_or(0);
    }
    return out;
}

} // namespace

Bytes encodeRequest(const ServiceSpec& service, const Values& values) {
    Bytes out = {service.sid};
    encodeInto(out, service.request, values, L"");
    return out;
}

std::vector<std::shared_ptr<ParameterResult>> decode(const std::vector<ParameterSpec>& layout,
                                                     const Bytes& message, std::size_t from) {
    std::vector<std::shared_ptr<ParameterResult>> out;
    std::size_t at = from;
    for (const auto& p : layout) {
        if (p.repeated) {
            while (at < message.size()) {
                out.push_back(decodeOne(p, message, at));
            }
        } else {
            out.push_back(decodeOne(p, message, at));
        }
    }
    if (at < message.size()) {
        ParameterSpec rest;
        rest.name = L"UnexpectedData";
        rest.codec.kind = Codec::Kind::Bytes;
        out.push_back(decodeOne(rest, message, at));
    }
    return out;
}

std::shared_ptr<ServiceResult> execute(Bus& bus, Ecu& ecu, const ServiceInput& input) {
    auto r = std::make_shared<ServiceResult>();
    r->itemText1 = input.service;
    r->itemText2 = ecu.name;
    const auto notSent = [&](std::shared_ptr<KelError> e) {
        r->status = 3;
        r->text1 = L"not sent";
        r->error = std::move(e);
        return r;
    };
    const ServiceSpec* described = nullptr;
    Bytes request;
    if (!input.data.empty()) {
        request = input.data;
        described = ecu.serviceFor(request);
    } else if (input.service.empty()) {
        return notSent(error(BadParameterValue, L"A service needs its name or its request bytes",
                             L"on " + ecu.name));
    } else {
        described = ecu.service(input.service);
        if (described == nullptr) {
            return notSent(error(UnknownService, L"The control unit has no such service",
                                 L"service " + input.service + L" on " + ecu.name));
        }
        try {
            request = encodeRequest(*described, input.parameters);
        } catch (const std::invalid_argument& e) {
            return notSent(error(BadParameterValue,
                                 L"The request cannot be written from these values",
                                 input.service + L": " + fromUtf8(e.what())));
        }
    }
    if (described != nullptr) {
        r->itemText1 = described->name;
        r->itemText3 = described->description;
    }
    r->value1 = request[0];
    r->request = std::make_shared<RequestResult>();
    r->request->data = request;
    r->request->value1 = static_cast<uint64_t>(VehicleClock::nowMs());
    if (described != nullptr) {
        r->request->parameters = decode(described->request, request, 1);
    }
    const auto response = bus.exchange(ecu, request);
    const auto* session = ecu.session(ecu.state.session);
    r->itemText4 = session != nullptr ? session->name : L"";
    if (response.empty()) {
        r->status = 2;
        r->text1 = L"no response";
        r->error = Answers::silent(ecu);
        return r;
    }
    auto answer = std::make_shared<ResponseResult>();
    answer->itemText2 = ecu.name;
    answer->data = response;
    answer->value1 = static_cast<uint64_t>(VehicleClock::nowMs());
    if (response[0] == 0x7F) {
        const uint8_t nrc = response.size() >= 3 ? response[2] : 0;
        answer->itemText1 = L"NegativeResponse";
        answer->error = Answers::negative(response, NegativeResponseReceived);
        answer->value2 = nrc;
        ParameterSpec sid;
        sid.name = L"SIDRQ";
        sid.codec.kind = Codec::Kind::Bytes;
        sid.codec.length = 1;
        ParameterSpec code;
        code.name = L"NRC";
        code.codec.kind = Codec::Kind::Enumeration;
        code.codec.length = 1;
        code.codec.names = {{nrc, nrcText(nrc)}};
        answer->parameters = decode({sid, code}, response, 1);
        r->status = 1;
        r->text1 = nrcText(nrc);
        r->error = answer->error;
    } else {
        answer->itemText1 = L"PositiveResponse";
        answer->flag = true;
        if (described != nullptr) {
            answer->parameters = decode(described->response, response, 1);
        } else {
            answer->parameters = decode({}, response, 1);
        }
        r->text1 = L"positive response";
    }
    r->responses.push_back(std::move(answer));
    return r;
}

std::shared_ptr<ParameterInfo> parameterInfo(const ParameterSpec& p, std::size_t position,
                                             const std::wstring& path) {
    auto i = std::make_shared<ParameterInfo>();
    i->itemText1 = p.name;
    i->itemText2 = p.label;
    i->itemText3 = kindName(p);
    i->text1 =
        p.kind == ParameterSpec::Kind::Constant ? hexText(p.constant, false) : p.defaultValue;
    i->text2 = p.codec.unit;
    i->text3 = dataType(p);
    i->value1 = static_cast<int32_t>(position);
    i->text4 = path + p.name;
    i->children = parameterInfos(p.children, position, path + p.name + L".");
    if (p.kind == ParameterSpec::Kind::Value && p.codec.kind == Codec::Kind::Unsigned) {
        i->text5 = L"physical = raw * " + number(p.codec.scale) + L" + " + number(p.codec.offset);
    }
    if (p.kind == ParameterSpec::Kind::Value) {
        for (const auto& [raw, name] : p.codec.names) {
            i->names.push_back(name);
        }
    }
    i->flag1 = p.kind == ParameterSpec::Kind::Constant;
    const auto length = p.fixedLength();
    i->value2 = static_cast<int32_t>(length.value_or(0));
    i->flag2 = p.kind == ParameterSpec::Kind::Value && p.defaultValue.empty();
    i->values = {static_cast<uint32_t>(position),
                 static_cast<uint32_t>(length.value_or(0)),
                 static_cast<uint32_t>(i->names.size()),
                 static_cast<uint32_t>(p.children.size()),
                 p.repeated ? 1U : 0U,
                 0,
                 0,
                 0};
    i->flag3 = p.kind == ParameterSpec::Kind::Structure;
    if (p.kind == ParameterSpec::Kind::Value) {
        i->constraint1 = validValues(p.codec);
        i->constraint2 = rawValues(p.codec);
        i->text6 = p.codec.min ? number(*p.codec.min) : L"";
        i->text7 = p.codec.max ? number(*p.codec.max) : L"";
        i->unit = unitInfo(p.codec.unit);
    }
    i->flag4 = p.repeated;
    return i;
}

std::shared_ptr<ServiceInfo> serviceInfo(const Ecu& ecu, const ServiceSpec& s, int64_t nowMs) {
    auto i = std::make_shared<ServiceInfo>();
    i->itemText1 = s.name;
    i->itemText2 = s.description;
    i->itemText3 = hexText({s.sid});
    i->itemText4 = ecu.name;
    const uint8_t session = ecu.currentSession(nowMs);
    const uint8_t unlocked = session == ecu.state.session ? ecu.state.unlockedLevel : 0;
    i->flag =
        s.access.allowsSession(session) && (s.access.level == 0 || unlocked == s.access.level);
    auto positive = std::make_shared<ResponseInfo>();
    positive->itemText1 = L"PositiveResponse";
    positive->itemText2 = hexText({static_cast<uint8_t>(s.sid + 0x40)});
    positive->status = 0;
    positive->parameters = parameterInfos(s.response, 1, L"");
    auto negativeInfo = std::make_shared<ResponseInfo>();
    negativeInfo->itemText1 = L"NegativeResponse";
    negativeInfo->itemText2 = L"7F";
    negativeInfo->status = 1;
    ParameterSpec sid;
    sid.kind = ParameterSpec::Kind::Constant;
    sid.name = L"SIDRQ";
    sid.constant = {s.sid};
    ParameterSpec nrc;
    nrc.name = L"NRC";
    nrc.codec.kind = Codec::Kind::Enumeration;
    nrc.codec.length = 1;
    for (const uint8_t code : {0x11, 0x12, 0x13, 0x22, 0x24, 0x31, 0x33, 0x35, 0x36, 0x37, 0x7F}) {
        nrc.codec.names.emplace_back(code, nrcText(code));
    }
    negativeInfo->parameters = parameterInfos({sid, nrc}, 1, L"");
    i->responses = {positive, negativeInfo};
    i->parameters = parameterInfos(s.request, 1, L"");
    i->text1 = serviceKind(s.sid);
    uint32_t sessionMask = 0;
    for (const auto& x : ecu.sessions) {
        if (s.access.allowsSession(x.id)) {
            auto item = std::make_shared<NamedItem>();
            item->itemText1 = x.name;
            item->itemText2 = hexText({x.id});
            item->itemText3 = L"session";
            i->items.push_back(std::move(item));
            sessionMask |= x.id < 32 ? 1U << x.id : 0U;
        }
    }
    uint32_t requestLength = 1;
    for (const auto& p : s.request) {
        const auto n = p.fixedLength();
        requestLength = n && requestLength != 0 ? requestLength + static_cast<uint32_t>(*n) : 0;
    }
    i->values = {s.sid, s.access.level, sessionMask, s.actuator ? 1U : 0U, requestLength};
    return i;
}

std::shared_ptr<ParameterInfo> dataInfo(const DataIdentifier& d) {
    ParameterSpec p;
    p.name = d.name;
    p.label = hexId(d.id);
    p.codec = d.codec;
    auto i = parameterInfo(p, 3, L"");
    i->flag2 = d.write.has_value(); // writable
    return i;
}

std::shared_ptr<ParameterInfo> actuatorInfo(const ServiceSpec& service) {
    ParameterSpec p;
    p.kind = ParameterSpec::Kind::Structure;
    p.name = service.name;
    p.label = service.description;
    p.children = service.request;
    return parameterInfo(p, 1, L"");
}

std::shared_ptr<ParameterInfo> findParameter(const std::vector<ParameterSpec>& layout,
                                             const std::wstring& path) {
    const std::vector<ParameterSpec>* level = &layout;
    std::size_t position = 1;
    std::size_t from = 0;
    while (true) {
        const auto dot = path.find(L'.', from);
        const auto name = path.substr(from, dot == std::wstring::npos ? dot : dot - from);
        const ParameterSpec* found = nullptr;
        for (const auto& p : *level) {
            if (p.name == name) {
                found = &p;
                break;
            }
            position += p.fixedLength().value_or(0);
        }
        if (found == nullptr) {
            return nullptr;
        }
        if (dot == std::wstring::npos) {
            return parameterInfo(*found, position, path.substr(0, from));
        }
        level = &found->children;
        from = dot + 1;
    }
}

std::shared_ptr<UnitInfo> unitInfo(const std::wstring& symbol) {
    if (symbol.empty()) {
        return nullptr;
    }
    struct Known {
        const wchar_t* symbol;
        std::array<int32_t, 7> exponents; // m, kg, s, A, K, mol, cd
        double factor;
        double offset;
    };
    static const Known known[] = {
        {L"m", {1, 0, 0, 0, 0, 0, 0}, 1, 0},
        {L"km", {1, 0, 0, 0, 0, 0, 0}, 1000, 0},
        {L"g", {0, 1, 0, 0, 0, 0, 0}, 0.001, 0},
        {L"kg", {0, 1, 0, 0, 0, 0, 0}, 1, 0},
        {L"s", {0, 0, 1, 0, 0, 0, 0}, 1, 0},
        {L"ms", {0, 0, 1, 0, 0, 0, 0}, 0.001, 0},
        {L"A", {0, 0, 0, 1, 0, 0, 0}, 1, 0},
        {L"K", {0, 0, 0, 0, 1, 0, 0}, 1, 0},
        {L"degC", {0, 0, 0, 0, 1, 0, 0}, 1, 273.15},
        {L"1/min", {0, 0, -1, 0, 0, 0, 0}, 1.0 / 60, 0},
        {L"km/h", {1, 0, -1, 0, 0, 0, 0}, 1 / 3.6, 0},
        {L"V", {2, 1, -3, -1, 0, 0, 0}, 1, 0},
        {L"bar", {-1, 1, -2, 0, 0, 0, 0}, 1e5, 0},
        {L"Nm", {2, 1, -2, 0, 0, 0, 0}, 1, 0},
        {L"%", {0, 0, 0, 0, 0, 0, 0}, 0.01, 0},
    };
    auto u = std::make_shared<UnitInfo>();
    for (const auto& k : known) {
        if (symbol == k.symbol) {
            for (std::size_t n = 0; n < 7; ++n) {
                u->values[n] = static_cast<uint32_t>(k.exponents[n]);
            }
            u->value1 = std::bit_cast<uint64_t>(k.factor);
            u->flag1 = true;
            u->value2 = std::bit_cast<uint64_t>(k.offset);
            u->flag2 = k.offset != 0;
        }
    }
    return u; // a symbol the engine does not know: no dimensions (flag1 clear)
}

} // namespace Varno::Kel_cpp::Reference::Messages
