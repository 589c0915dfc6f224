// The control units read from the description's "ecus": their data identifiers, fault
// memory, sessions, security levels, measurement values and service catalogue.
#include "ControlUnits.h"
#include "Describe.h"
#include "ErrorCodes.h"
#include "UnitBytes.h"
#include "VehicleClock.h"
#include "VehicleDescription.h"

#include <Kel_cpp/TarnApiException.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <numbers>
#include <stdexcept>

namespace Varno::Kel_cpp::Reference {
namespace {

using json = nlohmann::json;
using UnitBytes::hexBytes;

std::wstring wtext(const json& object, const char* key, const char* fallback = "") {
    const auto found = object.find(key);
    return fromUtf8(found != object.end() ? found->get<std::string>() : std::string(fallback));
}

Bytes hexBytes(const std::string& hex) { return hexBytes(fromUtf8(hex)); }

// A number written in JSON, or as a hex string ("F190", "0x22").
uint32_t hexNumber(const json& j, uint32_t limit) {
    uint32_t value = 0;
    if (j.is_string()) {
        auto text = j.get<std::string>();
        if (text.rfind("0x", 0) == 0 || text.rfind("0X", 0) == 0) {
            text = text.substr(2);
        }
        const auto bytes = hexBytes(text);
        if (bytes.empty() || bytes.size() > 4) {
            throw std::invalid_argument("expected 1 to 4 bytes in hex: " + j.get<std::string>());
        }
        for (const auto b : bytes) {
            value = value << 8 | b;
        }
    } else {
        value = j.get<uint32_t>();
    }
    if (value > limit) {
        throw std::invalid_argument("value " + std::to_string(value) + " above " +
                                    std::to_string(limit));
    }
    return value;
}

Parameter parseParameter(const json& j) {
    Parameter p;
    p.name = wtext(j, "name");
    p.label = wtext(j, "label");
    p.value = wtext(j, "value");
    p.unit = wtext(j, "unit");
    p.raw = hexBytes(j.value("raw", std::string()));
    for (const auto& child : arrayMember(j, "children")) {
        p.children.push_back(parseParameter(child));
    }
    return p;
}

std::vector<Parameter> parseParameters(const json& j, const char* key) {
    std::vector<Parameter> out;
    for (const auto& item : j.value(key, json::array())) {
        out.push_back(parseParameter(item));
    }
    return out;
}

Codec parseCodec(const json& j, const char* fallback) {
    Codec c;
    const auto kind = j.value("codec", std::string(fallback));
    if (kind == "ascii") {
        c.kind = Codec::Kind::Ascii;
    } else if (kind == "unsigned") {
        c.kind = Codec::Kind::Unsigned;
        c.length = 1;
    } else if (kind == "enumeration") {
        c.kind = Codec::Kind::Enumeration;
        c.length = 1;
    } else if (kind == "bytes") {
        c.kind = Codec::Kind::Bytes;
    } else {
        throw std::invalid_argument("unknown codec \"" + kind +
                                    "\" (ascii, unsigned, enumeration or bytes)");
    }
    c.length = j.value("length", c.length);
    if ((c.kind == Codec::Kind::Unsigned || c.kind == Codec::Kind::Enumeration) &&
        (c.length < 1 || c.length > 4)) {
        throw std::invalid_argument("unsigned and enumeration values take 1 to 4 bytes");
    }
    c.scale = j.value("scale", 1.0);
    if (c.scale == 0) {
        throw std::invalid_argument("a scale of 0");
    }
    c.offset = j.value("offset", 0.0);
    c.unit = wtext(j, "unit");
    if (j.contains("min")) {
        c.min = j.at("min").get<double>();
    }
    if (j.contains("max")) {
        c.max = j.at("max").get<double>();
    }
    for (const auto& v : arrayMember(j, "values")) {
        c.names.emplace_back(v.at("value").get<uint32_t>(),
                             fromUtf8(v.at("name").get<std::string>()));
    }
    if (c.kind == Codec::Kind::Enumeration && c.names.empty()) {
        throw std::invalid_argument("an enumeration needs its values");
    }
    return c;
}

std::vector<uint8_t> sessionIds(const json& list, const std::vector<Session>& sessions) {
    std::vector<uint8_t> out;
    for (const auto& s : list) {
        if (s.is_number()) {
            out.push_back(s.get<uint8_t>());
            continue;
        }
        const auto name = fromUtf8(s.get<std::string>());
        const auto found = std::find_if(sessions.begin(), sessions.end(),
                                        [&](const Session& x) { return x.name == name; });
        if (found == sessions.end()) {
            throw std::invalid_argument("no session named " + s.get<std::string>());
        }
        out.push_back(found->id);
    }
    return out;
}

Access parseAccess(const json& j, const std::vector<Session>& sessions) {
    Access a;
    a.sessions = sessionIds(arrayMember(j, "sessions"), sessions);
    a.level = j.value("level", uint8_t{0});
    return a;
}

ParameterSpec constant(std::wstring name, Bytes bytes) {
    ParameterSpec p;
    p.kind = ParameterSpec::Kind::Constant;
    p.name = std::move(name);
    p.constant = std::move(bytes);
    return p;
}

ParameterSpec value(std::wstring name, Codec codec, std::wstring label = L"") {
    ParameterSpec p;
    p.name = std::move(name);
    p.label = std::move(label);
    p.codec = std::move(codec);
    return p;
}

Codec unsignedCodec(uint32_t length, std::wstring unit = L"", double scale = 1) {
    Codec c;
    c.kind = Codec::Kind::Unsigned;
    c.length = length;
    c.unit = std::move(unit);
    c.scale = scale;
    return c;
}

Codec bytesCodec(uint32_t length) {
    Codec c;
    c.kind = Codec::Kind::Bytes;
    c.length = length;
    return c;
}

ParameterSpec parseSpec(const json& j) {
    ParameterSpec p;
    p.name = fromUtf8(j.at("name").get<std::string>());
    p.label = wtext(j, "label");
    if (j.contains("const")) {
        p.kind = ParameterSpec::Kind::Constant;
        p.constant = hexBytes(j.at("const").get<std::string>());
    } else if (j.contains("children")) {
        p.kind = ParameterSpec::Kind::Structure;
        for (const auto& child : arrayMember(j, "children", true)) {
            p.children.push_back(parseSpec(child));
        }
        p.repeated = j.value("repeated", false);
    } else {
        p.codec = parseCodec(j, "unsigned");
        p.defaultValue = wtext(j, "default");
    }
    return p;
}

std::vector<ParameterSpec> parseSpecs(const json& j, const char* key) {
    std::vector<ParameterSpec> out;
    for (const auto& item : j.value(key, json::array())) {
        out.push_back(parseSpec(item));
    }
    return out;
}

// A variable-length value may only stand last, where the message's end ends it.
void checkLayout(const std::vector<ParameterSpec>& layout, const std::wstring& service) {
    for (std::size_t i = 0; i < layout.size(); ++i) {
        if (!layout[i].fixedLength() && i + 1 != layout.size()) {
            throw std::invalid_argument("service " + toUtf8(service) + ": parameter " +
                                        toUtf8(layout[i].name) +
                                        " has no fixed length and is not the last");
        }
        checkLayout(layout[i].children, service);
    }
}

DataIdentifier parseDataIdentifier(const json& j, bool identification,
                                   const std::vector<Session>& sessions) {
    DataIdentifier d;
    d.id = static_cast<uint16_t>(hexNumber(j.at("id"), 0xFFFF));
    d.name = wtext(j, "name");
    d.codec = parseCodec(j, "ascii");
    d.identification = j.value("identification", identification);
    try {
        d.bytes = d.codec.encode(wtext(j, "value"));
    } catch (const std::invalid_argument& e) {
        throw std::invalid_argument("identifier " + toUtf8(hexId(d.id)) + ": " + e.what());
    }
    if (j.contains("write")) {
        d.write = parseAccess(j.at("write"), sessions);
    }
    return d;
}

const std::vector<std::pair<uint32_t, std::wstring>> resetTypes = {
    {1, L"HardReset"}, {2, L"KeyOffOnReset"}, {3, L"SoftReset"}};

Codec enumeration(std::vector<std::pair<uint32_t, std::wstring>> names) {
    Codec c;
    c.kind = Codec::Kind::Enumeration;
    c.length = 1;
    c.names = std::move(names);
    return c;
}

ParameterSpec dtcRecords() {
    ParameterSpec record;
    record.kind = ParameterSpec::Kind::Structure;
    record.name = L"DTCAndStatusRecord";
    record.repeated = true;
    record.children = {value(L"DTC", bytesCodec(3)), value(L"StatusOfDTC", unsignedCodec(1))};
    return record;
}

// The standard services every unit offers, from its sessions, security levels and
// data identifiers.
std::vector<ServiceSpec> standardServices(const Ecu& ecu) {
    std::vector<ServiceSpec> out;
    const auto add = [&](std::wstring name, std::wstring description, uint8_t sid,
                         std::vector<ParameterSpec> request, std::vector<ParameterSpec> response,
                         Access access = {}) {
        ServiceSpec s;
        s.name = std::move(name);
        s.description = std::move(description);
        s.sid = sid;
        s.request = std::move(request);
        s.response = std::move(response);
        s.access = std::move(access);
        out.push_back(std::move(s));
    };
    std::vector<std::pair<uint32_t, std::wstring>> sessionNames;
    for (const auto& s : ecu.sessions) {
        sessionNames.emplace_back(s.id, s.name);
    }
    add(L"DiagnosticSessionControl", L"Enters a diagnostic session", 0x10,
        {value(L"Session", enumeration(sessionNames))},
        {value(L"Session", enumeration(sessionNames)), value(L"P2", unsignedCodec(2, L"ms")),
         value(L"P2Star", unsignedCodec(2, L"ms", 10))});
    add(L"EcuReset", L"Resets the control unit; it starts again in the default session", 0x11,
        {value(L"ResetType", enumeration(resetTypes))},
        {value(L"ResetType", enumeration(resetTypes))});
    add(L"TesterPresent", L"Keeps a non-default session open", 0x3E,
        {constant(L"SubFunction", {0x00})}, {constant(L"SubFunction", {0x00})});
    for (const auto& level : ecu.security) {
        const auto n = std::to_wstring(level.level);
        const auto seedType = static_cast<uint8_t>(2 * level.level - 1);
        const Access access{level.sessions, 0};
        add(L"SecurityAccess_RequestSeed_Level" + n, L"Asks for the seed of security level " + n,
            0x27, {constant(L"SecurityAccessType", {seedType})},
            {constant(L"SecurityAccessType", {seedType}), value(L"Seed", bytesCodec(4))}, access);
        add(L"SecurityAccess_SendKey_Level" + n, L"Sends the key of security level " + n, 0x27,
            {constant(L"SecurityAccessType", {static_cast<uint8_t>(seedType + 1)}),
             value(L"Key", bytesCodec(4))},
            {constant(L"SecurityAccessType", {static_cast<uint8_t>(seedType + 1)})}, access);
    }
    for (const auto& d : ecu.data) {
        const Bytes id = {static_cast<uint8_t>(d.id >> 8), static_cast<uint8_t>(d.id)};
        const auto name = d.name.empty() ? L"DataRecord" : d.name;
        add(L"ReadDataByIdentifier_" + hexId(d.id), L"Reads " + name, 0x22,
            {constant(L"Identifier", id)}, {constant(L"Identifier", id), value(name, d.codec)});
        if (d.write) {
            add(L"WriteDataByIdentifier_" + hexId(d.id), L"Writes " + name, 0x2E,
                {constant(L"Identifier", id), value(name, d.codec)}, {constant(L"Identifier", id)},
                *d.write);
        }
    }
    add(L"ReadDTCInformation_ReportDTCByStatusMask",
        L"Reports the stored DTCs whose status shares a bit with the mask", 0x19,
        {constant(L"ReportType", {0x02}), value(L"StatusMask", bytesCodec(1))},
        {constant(L"ReportType", {0x02}), value(L"StatusAvailabilityMask", bytesCodec(1)),
         dtcRecords()});
    add(L"ReadDTCInformation_ReportSupportedDTC", L"Reports every DTC the unit supports", 0x19,
        {constant(L"ReportType", {0x0A})},
        {constant(L"ReportType", {0x0A}), value(L"StatusAvailabilityMask", bytesCodec(1)),
         dtcRecords()});
    auto group = value(L"GroupOfDTC", bytesCodec(3));
    group.defaultValue = L"FFFFFF";
    add(L"ClearDiagnosticInformation", L"Clears one DTC, or every DTC with FFFFFF", 0x14, {group},
        {});
    return out;
}

ServiceSpec parseRoutine(const json& j, const std::vector<Session>& sessions) {
    ServiceSpec s;
    const auto id = static_cast<uint16_t>(hexNumber(j.at("id"), 0xFFFF));
    const Bytes rid = {static_cast<uint8_t>(id >> 8), static_cast<uint8_t>(id)};
    s.name = L"RoutineControl_" + hexId(id);
    s.description = wtext(j, "description", "");
    if (s.description.empty()) {
        s.description = wtext(j, "name");
    }
    s.sid = 0x31;
    s.request = {constant(L"RoutineControlType", {0x01}), constant(L"RoutineIdentifier", rid)};
    s.response = s.request;
    const auto options = parseSpecs(j, "options");
    s.request.insert(s.request.end(), options.begin(), options.end());
    // Without an answer of its own a routine reports back the options it ran with.
    if (j.contains("answer")) {
        s.answer = rid;
        s.answer->insert(s.answer->begin(), 0x01);
        const auto answer = hexBytes(j.at("answer").get<std::string>());
        s.answer->insert(s.answer->end(), answer.begin(), answer.end());
        const auto results = parseSpecs(j, "results");
        s.response.insert(s.response.end(), results.begin(), results.end());
    } else {
        s.response.insert(s.response.end(), options.begin(), options.end());
    }
    s.access = parseAccess(j, sessions);
    s.actuator = j.value("actuator", false);
    return s;
}

ServiceSpec parseService(const json& j, const std::vector<Session>& sessions) {
    ServiceSpec s;
    s.name = fromUtf8(j.at("name").get<std::string>());
    s.description = wtext(j, "description");
    s.sid = static_cast<uint8_t>(hexNumber(j.at("sid"), 0xFF));
    if (s.sid == 0x7F || (s.sid & 0x40) != 0) {
        throw std::invalid_argument("service " + toUtf8(s.name) +
                                    ": 7F and ids with bit 6 set are responses");
    }
    s.request = parseSpecs(j, "request");
    s.response = parseSpecs(j, "response");
    s.access = parseAccess(j, sessions);
    s.actuator = j.value("actuator", false);
    if (j.contains("answer")) {
        s.answer = hexBytes(j.at("answer").get<std::string>());
    }
    static const Bytes builtIn = {0x10, 0x11, 0x14, 0x19, 0x22, 0x27, 0x2E, 0x31, 0x3E};
    if (!s.answer && std::find(builtIn.begin(), builtIn.end(), s.sid) == builtIn.end()) {
        throw std::invalid_argument("service " + toUtf8(s.name) +
                                    ": the unit has no behaviour of its own for this id; "
                                    "give its \"answer\"");
    }
    return s;
}

// ---- measurement values ----------------------------------------------------------------

Motion parseMotion(const json& j, const std::vector<MeasurementValue>& earlier, const Ecu& ecu) {
    Motion m;
    const auto kind = j.value("kind", std::string("constant"));
    if (kind == "constant") {
        m.value = j.value("value", 0.0);
    } else if (kind == "ramp") {
        m.kind = Motion::Kind::Ramp;
        m.value = j.value("from", 0.0);
        m.rate = j.at("perSecond").get<double>();
    } else if (kind == "sine") {
        m.kind = Motion::Kind::Sine;
        m.value = j.value("mean", 0.0);
        m.amplitude = j.at("amplitude").get<double>();
        m.periodMs = j.at("periodMs").get<double>();
        m.phase = j.value("phase", 0.0);
        if (!(m.periodMs > 0)) {
            throw std::invalid_argument("a sine needs a period above 0");
        }
    } else if (kind == "randomWalk") {
        m.kind = Motion::Kind::RandomWalk;
        m.value = j.value("start", 0.0);
        m.step = j.at("step").get<double>();
        m.seed = j.value("seed", 1U);
    } else if (kind == "derived") {
        m.kind = Motion::Kind::Derived;
        const auto source = fromUtf8(j.at("source").get<std::string>());
        const auto found = std::find_if(earlier.begin(), earlier.end(), [&](const auto& v) {
            return ecu.dataIdentifier(v.id)->name == source;
        });
        if (found == earlier.end()) {
            throw std::invalid_argument("a derived value's source is a value listed before it: " +
                                        toUtf8(source));
        }
        m.source = static_cast<std::size_t>(found - earlier.begin());
        m.factor = j.value("factor", 1.0);
        m.offset = j.value("offset", 0.0);
    } else {
        throw std::invalid_argument("unknown motion \"" + kind +
                                    "\" (constant, ramp, sine, randomWalk or derived)");
    }
    return m;
}

// A unit's "measurements": data identifiers whose value the unit computes at each read.
void parseMeasurements(const json& j, Ecu& ecu) {
    for (const auto& v : arrayMember(j, "measurements")) {
        DataIdentifier d;
        d.id = static_cast<uint16_t>(hexNumber(v.at("id"), 0xFFFF));
        d.name = fromUtf8(v.at("name").get<std::string>());
        const auto where = "measurement " + toUtf8(d.name) + ": ";
        try {
            d.codec = parseCodec(v, "unsigned");
            if (d.codec.kind != Codec::Kind::Unsigned || !d.codec.min || !d.codec.max ||
                !(*d.codec.min < *d.codec.max)) {
                throw std::invalid_argument("an unsigned value with a range (min below max)");
            }
            // Both ends must be writable, so every value in the range is.
            d.codec.encode(fromUtf8(std::to_string(*d.codec.min)));
            d.codec.encode(fromUtf8(std::to_string(*d.codec.max)));
            MeasurementValue m;
            m.id = d.id;
            m.sampleMs = static_cast<uint32_t>(wholeNumber(v, "sampleMs", 100, 1, 86400000));
            ecu.data.push_back(d);
            m.motion = parseMotion(v.value("motion", json::object()), ecu.measurements, ecu);
            ecu.measurements.push_back(m);
        } catch (const std::exception& e) {
            throw std::invalid_argument(where + e.what());
        }
    }
}

Ecu parseEcu(const json& j) {
    Ecu ecu;
    ecu.name = fromUtf8(j.at("name").get<std::string>());
    ecu.description = wtext(j, "description");
    ecu.variant = wtext(j, "variant");
    ecu.protocol = wtext(j, "protocol");
    ecu.bus = wtext(j, "bus");
    ecu.address = j.value("address", 0);
    ecu.responds = j.value("responds", true);
    ecu.responseTimeoutMs = j.value("responseTimeoutMs", 1000U);
    for (const auto& a : arrayMember(j, "aliases")) {
        ecu.aliases.push_back(fromUtf8(a.get<std::string>()));
    }
    if (j.contains("sessions")) {
        for (const auto& s : arrayMember(j, "sessions", true)) {
            ecu.sessions.push_back(
                {s.at("id").get<uint8_t>(), fromUtf8(s.at("name").get<std::string>())});
        }
        if (!ecu.session(1)) {
            throw std::invalid_argument("ECU " + toUtf8(ecu.name) +
                                        ": session 1 (default) missing");
        }
    } else {
        ecu.sessions = {{1, L"Default"}, {2, L"Programming"}, {3, L"Extended"}};
    }
    ecu.sessionTimeoutMs = j.value("sessionTimeoutMs", 5000U);
    if (j.contains("security")) {
        for (const auto& s : arrayMember(j, "security", true)) {
            SecurityLevel level;
            level.level = s.value("level", uint8_t{1});
            if (level.level < 1 || level.level > 0x3F) {
                throw std::invalid_argument("security levels are 1 to 63");
            }
            level.keyMask = hexNumber(s.at("keyMask"), 0xFFFFFFFF);
            level.sessions = sessionIds(arrayMember(s, "sessions"), ecu.sessions);
            level.attempts = std::max(1U, s.value("attempts", 3U));
            level.lockoutMs = s.value("lockoutMs", 10000U);
            ecu.security.push_back(level);
        }
    } else {
        SecurityLevel level;
        level.keyMask = 0x5A3C96E1;
        level.sessions = {3};
        ecu.security.push_back(level);
    }
    for (const auto& v : arrayMember(j, "identification")) {
        ecu.data.push_back(parseDataIdentifier(v, true, ecu.sessions));
    }
    for (const auto& v : arrayMember(j, "dataIdentifiers")) {
        ecu.data.push_back(parseDataIdentifier(v, false, ecu.sessions));
    }
    parseMeasurements(j, ecu);
    // Variant identification reads the unit's variant from F19E.
    if (!ecu.dataIdentifier(0xF19E)) {
        DataIdentifier variant;
        variant.id = 0xF19E;
        variant.name = L"Variant";
        variant.bytes = variant.codec.encode(ecu.variant);
        ecu.data.push_back(std::move(variant));
    }
    for (std::size_t i = 0; i < ecu.data.size(); ++i) {
        for (std::size_t k = 0; k < i; ++k) {
            if (ecu.data[i].id == ecu.data[k].id) {
                throw std::invalid_argument("ECU " + toUtf8(ecu.name) + ": identifier " +
                                            toUtf8(hexId(ecu.data[i].id)) + " twice");
            }
        }
    }
    for (const auto& d : arrayMember(j, "dtcs")) {
        Dtc dtc;
        dtc.display = fromUtf8(d.at("code").get<std::string>());
        dtc.code = ControlUnits::dtcNumber(dtc.display, d.value("failureType", uint8_t{0}));
        dtc.status = d.value("status", uint8_t{0});
        dtc.text = wtext(d, "text");
        dtc.symptom = wtext(d, "symptom");
        dtc.severity = d.value("severity", 0);
        dtc.snapshot = parseParameters(d, "snapshot");
        dtc.extended = parseParameters(d, "extended");
        for (const auto& group : arrayMember(d, "specialData")) {
            std::vector<SpecialItem> items;
            for (const auto& item : group) {
                items.push_back({wtext(item, "name"), wtext(item, "value"), wtext(item, "unit")});
            }
            dtc.specialData.push_back(std::move(items));
        }
        dtc.stored = d.value("stored", true);
        ecu.dtcs.push_back(std::move(dtc));
    }
    ecu.services = standardServices(ecu);
    addProgramming(j, ecu);
    for (const auto& r : arrayMember(j, "routines")) {
        ecu.services.push_back(parseRoutine(r, ecu.sessions));
    }
    for (const auto& s : arrayMember(j, "services")) {
        ecu.services.push_back(parseService(s, ecu.sessions));
    }
    for (std::size_t i = 0; i < ecu.services.size(); ++i) {
        checkLayout(ecu.services[i].request, ecu.services[i].name);
        checkLayout(ecu.services[i].response, ecu.services[i].name);
        for (std::size_t k = 0; k < i; ++k) {
            if (ecu.services[i].name == ecu.services[k].name) {
                throw std::invalid_argument("ECU " + toUtf8(ecu.name) + ": service " +
                                            toUtf8(ecu.services[i].name) + " twice");
            }
        }
    }
    if (j.contains("unlock")) {
        const auto& u = j.at("unlock");
        ecu.unlockSession = sessionIds(json::array({u.at("session")}), ecu.sessions).front();
        ecu.unlockLevel = u.value("level", uint8_t{1});
    } else {
        ecu.unlockLevel = ecu.security.front().level;
        const auto& sessions = ecu.security.front().sessions;
        ecu.unlockSession = sessions.empty() ? 1 : sessions.front();
    }
    if (!ecu.securityLevel(ecu.unlockLevel)) {
        throw std::invalid_argument("ECU " + toUtf8(ecu.name) + ": unlock names no security level");
    }
    ecu.state.seedState = static_cast<uint32_t>(ecu.address) * 2654435761U + 0x9E3779B9U;
    return ecu;
}

} // namespace

// ---- the units from the description ---------------------------------------------------

uint32_t ControlUnits::dtcNumber(const std::wstring& display, uint8_t failureType) {
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

std::vector<Ecu> ControlUnits::parse(const nlohmann::json& root) {
    try {
        std::vector<Ecu> ecus;
        for (const auto& j : arrayMember(root, "ecus", true)) {
            ecus.push_back(parseEcu(j));
        }
        return ecus;
    } catch (const std::exception& e) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               fromUtf8(e.what()));
    }
}

} // namespace Varno::Kel_cpp::Reference
