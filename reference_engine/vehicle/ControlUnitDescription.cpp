#include "ControlUnits.h"

#include "Describe.h"
#include "ErrorCodes.h"
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

std::wstring wtext(const json& object, const char* key, const char* fallback = "") {
    const auto found = object.find(key);
    return fromUtf8(found != object.end() ? found->get<std::string>() : std::string(fallback));
}

int hexDigit(wchar_t c) {
    if (c >= L'0' && c <= L'9') {
        return c - L'0';
    }
    if (c >= L'a' && c <= L'f') {
        return c - L'a' + 10;
    }
    if (c >= L'A' && c <= L'F') {
        return c - L'A' + 10;
    }
    return -1;
}

// Hex digits, spaces between bytes allowed: "0A0B", "0A 0B".
Bytes hexBytes(const std::wstring& hex) {
    std::wstring digits;
    for (const wchar_t c : hex) {
        if (c == L' ') {
            continue;
        }
        if (hexDigit(c) < 0) {
            throw std::invalid_argument("not a hex digit in \"" + toUtf8(hex) + "\"");
        }
        digits += c;
    }
    if (digits.size() % 2 != 0) {
        throw std::invalid_argument("bytes need an even number of hex digits: " + toUtf8(hex));
    }
    Bytes out;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        out.push_back(static_cast<uint8_t>(hexDigit(digits[i]) * 16 + hexDigit(digits[i + 1])));
    }
    return out;
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

uint32_t bigEndian(const Bytes& bytes) {
    uint32_t v = 0;
    for (const auto b : bytes) {
        v = v << 8 | b;
    }
    return v;
}

Bytes bigEndian(uint64_t v, uint32_t length) {
    Bytes out(length);
    for (uint32_t i = 0; i < length; ++i) {
        out[length - 1 - i] = static_cast<uint8_t>(v >> (8 * i));
    }
    return out;
}

std::string narrow(const std::wstring& text) {
    std::string out;
    for (const wchar_t c : text) {
        if (c < 0x20 || c > 0x7E) {
            throw std::invalid_argument("only printable ASCII characters: \"" + toUtf8(text) +
                                        "\"");
        }
        out += static_cast<char>(c);
    }
    return out;
}

std::optional<double> number(const std::wstring& text) {
    try {
        std::size_t used = 0;
        const auto s = narrow(text);
        const double v = std::stod(s, &used);
        return used == s.size() ? std::optional<double>(v) : std::nullopt;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

// A measurement value's data identifier holds the unit's current sample.
void refreshMeasurement(Ecu& ecu, uint16_t id, int64_t nowMs) {
    for (std::size_t i = 0; i < ecu.measurements.size(); ++i) {
        if (ecu.measurements[i].id != id) {
            continue;
        }
        const double physical = ecu.measured(i, nowMs);
        auto* d = const_cast<DataIdentifier*>(ecu.dataIdentifier(id));
        const double top = std::ldexp(1.0, static_cast<int>(8 * d->codec.length)) - 1;
        const double raw =
            std::clamp(std::round((physical - d->codec.offset) / d->codec.scale), 0.0, top);
        d->bytes = bigEndian(static_cast<uint64_t>(raw), d->codec.length);
        return;
    }
}

} // namespace

// ---- codecs ---------------------------------------------------------------------------

Bytes Codec::encode(const std::wstring& text) const {
    switch (kind) {
    case Kind::Ascii: {
        const auto s = narrow(text);
        if (length != 0 && s.size() != length) {
            throw std::invalid_argument("needs " + std::to_string(length) + " characters: \"" + s +
                                        "\"");
        }
        return {s.begin(), s.end()};
    }
    case Kind::Bytes: {
        auto bytes = hexBytes(text);
        if (length != 0 && bytes.size() != length) {
            throw std::invalid_argument("needs " + std::to_string(length) +
                                        " bytes: " + toUtf8(text));
        }
        return bytes;
    }
    case Kind::Enumeration:
        for (const auto& [raw, name] : names) {
            if (name == text) {
                return bigEndian(raw, length);
            }
        }
        [[fallthrough]];
    case Kind::Unsigned: {
        const auto physical = number(text);
        if (!physical) {
            throw std::invalid_argument(kind == Kind::Enumeration
                                            ? "not one of the enumeration's names: " + toUtf8(text)
                                            : "not a number: " + toUtf8(text));
        }
        const double raw = kind == Kind::Unsigned ? (*physical - offset) / scale : *physical;
        const double top = std::ldexp(1.0, static_cast<int>(8 * length)) - 1;
        if (!(raw >= -0.5 && raw <= top + 0.5)) {
            throw std::invalid_argument(toUtf8(text) + " does not fit in " +
                                        std::to_string(length) + " byte(s)");
        }
        return bigEndian(static_cast<uint64_t>(std::llround(raw)), length);
    }
    }
    return {};
}

std::wstring Codec::decode(const Bytes& bytes) const {
    switch (kind) {
    case Kind::Ascii:
        return {bytes.begin(), bytes.end()};
    case Kind::Bytes:
        return hexText(bytes, false);
    case Kind::Enumeration:
        for (const auto& [raw, name] : names) {
            if (raw == bigEndian(bytes)) {
                return name;
            }
        }
        return std::to_wstring(bigEndian(bytes));
    case Kind::Unsigned: {
        char text[64];
        std::snprintf(text, sizeof text, "%.10g", bigEndian(bytes) * scale + offset);
        return fromUtf8(text);
    }
    }
    return {};
}

bool Codec::accepts(const Bytes& bytes) const {
    if (length != 0 ? bytes.size() != length : bytes.empty()) {
        return false;
    }
    switch (kind) {
    case Kind::Ascii:
        return std::all_of(bytes.begin(), bytes.end(),
                           [](uint8_t b) { return b >= 0x20 && b <= 0x7E; });
    case Kind::Bytes:
        return true;
    case Kind::Enumeration:
        return std::any_of(names.begin(), names.end(),
                           [&](const auto& n) { return n.first == bigEndian(bytes); });
    case Kind::Unsigned: {
        const double physical = bigEndian(bytes) * scale + offset;
        return (!min || physical >= *min) && (!max || physical <= *max);
    }
    }
    return false;
}

const wchar_t* Codec::kindName() const {
    switch (kind) {
    case Kind::Ascii:
        return L"ascii";
    case Kind::Unsigned:
        return L"unsigned";
    case Kind::Enumeration:
        return L"enumeration";
    case Kind::Bytes:
        return L"bytes";
    }
    return L"";
}

bool Access::allowsSession(uint8_t session) const {
    return sessions.empty() ||
           std::find(sessions.begin(), sessions.end(), session) != sessions.end();
}

std::optional<std::size_t> ParameterSpec::fixedLength() const {
    switch (kind) {
    case Kind::Constant:
        return constant.size();
    case Kind::Value:
        return codec.length != 0 ? std::optional<std::size_t>(codec.length) : std::nullopt;
    case Kind::Structure: {
        if (repeated) {
            return std::nullopt;
        }
        std::size_t total = 0;
        for (const auto& c : children) {
            const auto n = c.fixedLength();
            if (!n) {
                return std::nullopt;
            }
            total += *n;
        }
        return total;
    }
    }
    return std::nullopt;
}

Bytes ServiceSpec::key() const {
    Bytes out;
    for (const auto& p : request) {
        if (p.kind != ParameterSpec::Kind::Constant) {
            break;
        }
        out.insert(out.end(), p.constant.begin(), p.constant.end());
    }
    return out;
}

Bytes securityKey(const Bytes& seed, uint32_t keyMask) {
    const uint32_t x = bigEndian(seed) ^ keyMask;
    return bigEndian((x << 3) | (x >> 29), 4);
}

const wchar_t* nrcText(uint8_t code) {
    switch (code) {
    case GeneralReject:
        return L"generalReject";
    case ServiceNotSupported:
        return L"serviceNotSupported";
    case SubFunctionNotSupported:
        return L"subFunctionNotSupported";
    case IncorrectLength:
        return L"incorrectMessageLengthOrInvalidFormat";
    case ConditionsNotCorrect:
        return L"conditionsNotCorrect";
    case RequestSequenceError:
        return L"requestSequenceError";
    case RequestOutOfRange:
        return L"requestOutOfRange";
    case SecurityAccessDenied:
        return L"securityAccessDenied";
    case InvalidKey:
        return L"invalidKey";
    case ExceededNumberOfAttempts:
        return L"exceededNumberOfAttempts";
    case RequiredTimeDelayNotExpired:
        return L"requiredTimeDelayNotExpired";
    case UploadDownloadNotAccepted:
        return L"uploadDownloadNotAccepted";
    case TransferDataSuspended:
        return L"transferDataSuspended";
    case WrongBlockSequenceCounter:
        return L"wrongBlockSequenceCounter";
    case ServiceNotSupportedInActiveSession:
        return L"serviceNotSupportedInActiveSession";
    default:
        return L"negative response";
    }
}

std::wstring hexId(uint16_t id) { return hexText(bigEndian(id, 2), false); }

std::wstring hexText(const Bytes& bytes, bool spaced) {
    static const wchar_t digits[] = L"0123456789ABCDEF";
    std::wstring out;
    for (const auto b : bytes) {
        if (spaced && !out.empty()) {
            out += L' ';
        }
        out += digits[b >> 4];
        out += digits[b & 0xF];
    }
    return out;
}

// ---- the unit -------------------------------------------------------------------------

const DataIdentifier* Ecu::dataIdentifier(uint16_t id) const {
    for (const auto& d : data) {
        if (d.id == id) {
            return &d;
        }
    }
    return nullptr;
}

const DataIdentifier* Ecu::dataIdentifier(const std::wstring& key) const {
    for (const auto& d : data) {
        if (d.name == key || hexId(d.id) == key) {
            return &d;
        }
    }
    return nullptr;
}

const ServiceSpec* Ecu::service(const std::wstring& name) const {
    for (const auto& s : services) {
        if (s.name == name) {
            return &s;
        }
    }
    return nullptr;
}

const ServiceSpec* Ecu::serviceFor(const Bytes& request) const {
    const ServiceSpec* best = nullptr;
    std::size_t bestKey = 0;
    for (const auto& s : services) {
        if (request.empty() || s.sid != request[0]) {
            continue;
        }
        const auto key = s.key();
        if (request.size() - 1 >= key.size() &&
            std::equal(key.begin(), key.end(), request.begin() + 1) &&
            (best == nullptr || key.size() > bestKey)) {
            best = &s;
            bestKey = key.size();
        }
    }
    return best;
}

const Session* Ecu::session(uint8_t id) const {
    for (const auto& s : sessions) {
        if (s.id == id) {
            return &s;
        }
    }
    return nullptr;
}

const SecurityLevel* Ecu::securityLevel(uint8_t level) const {
    for (const auto& s : security) {
        if (s.level == level) {
            return &s;
        }
    }
    return nullptr;
}

uint8_t Ecu::currentSession(int64_t nowMs) const {
    const bool expired = state.keepAlive == 0 &&
                         nowMs - state.lastRequestMs > static_cast<int64_t>(sessionTimeoutMs);
    return expired ? uint8_t{1} : state.session;
}

// ---- measurement values ----------------------------------------------------------------

const MeasurementValue* Ecu::measurement(uint16_t id) const {
    for (const auto& m : measurements) {
        if (m.id == id) {
            return &m;
        }
    }
    return nullptr;
}

double Ecu::measured(std::size_t index, int64_t nowMs) {
    auto& m = measurements[index];
    const auto& codec = dataIdentifier(m.id)->codec;
    const double low = *codec.min;
    const double high = *codec.max;
    const int64_t sample = std::max<int64_t>(nowMs, 0) / m.sampleMs;
    const double t = static_cast<double>(sample) * m.sampleMs; // ms
    const auto& motion = m.motion;
    double v = motion.value;
    switch (motion.kind) {
    case Motion::Kind::Constant:
        break;
    case Motion::Kind::Ramp: {
        const double span = high - low;
        const double x = motion.value - low + motion.rate * t / 1000;
        v = low + (x - std::floor(x / span) * span);
        break;
    }
    case Motion::Kind::Sine:
        v = motion.value + motion.amplitude * std::sin(2 * std::numbers::pi * t / motion.periodMs +
                                                       motion.phase * std::numbers::pi / 180);
        break;
    case Motion::Kind::RandomWalk:
        // Walked on from the last sample reached (the clock never goes back); from the
        // start again after a reload, to the same values.
        if (m.walkState == 0 || sample < m.walkedSample) {
            m.walkedSample = 0;
            m.walked = std::clamp(motion.value, low, high);
            m.walkState = motion.seed != 0 ? motion.seed : 1;
        }
        for (; m.walkedSample < sample; ++m.walkedSample) {
            auto& x = m.walkState;
            x ^= x << 13;
            x ^= x >> 17;
            x ^= x << 5;
            const double unit = static_cast<double>(x) / 4294967296.0 * 2 - 1; // [-1, 1)
            m.walked = std::clamp(m.walked + motion.step * unit, low, high);
        }
        v = m.walked;
        break;
    case Motion::Kind::Derived:
        v = motion.factor * measured(motion.source, nowMs) + motion.offset;
        break;
    }
    return std::clamp(v, low, high);
}

Bytes Ecu::respond(const Bytes& request, int64_t nowMs) {
    if (currentSession(nowMs) != state.session) {
        state.session = 1;
        state.unlockedLevel = 0;
        state.seedLevel = 0;
    }
    state.lastRequestMs = nowMs;
    if (request.empty()) {
        return {0x7F, 0x00, IncorrectLength};
    }
    const uint8_t sid = request[0];
    const auto negative = [sid](uint8_t nrc) { return Bytes{0x7F, sid, nrc}; };
    const bool known = std::any_of(services.begin(), services.end(),
                                   [sid](const ServiceSpec& s) { return s.sid == sid; });
    if (!known) {
        return negative(ServiceNotSupported);
    }
    const ServiceSpec* described = serviceFor(request);
    if (described == nullptr) {
        // Shorter than every request of this service id: the length is wrong, not the id.
        std::size_t shortest = SIZE_MAX;
        for (const auto& s : services) {
            if (s.sid == sid) {
                shortest = std::min(shortest, std::max<std::size_t>(s.key().size(), 1));
            }
        }
        const bool subFunction =
            sid == 0x10 || sid == 0x11 || sid == 0x19 || sid == 0x27 || sid == 0x3E;
        return negative(request.size() - 1 < shortest ? IncorrectLength
                        : subFunction                 ? SubFunctionNotSupported
                                                      : RequestOutOfRange);
    }
    if (!described->access.allowsSession(state.session)) {
        return negative(ServiceNotSupportedInActiveSession);
    }
    std::optional<std::size_t> expected = 0;
    for (const auto& p : described->request) {
        const auto n = p.fixedLength();
        expected = expected && n ? std::optional<std::size_t>(*expected + *n) : std::nullopt;
    }
    if (expected ? request.size() - 1 != *expected
                 : request.size() - 1 <= described->key().size()) {
        return negative(IncorrectLength);
    }
    if (described->access.level != 0 && state.unlockedLevel != described->access.level) {
        return negative(SecurityAccessDenied);
    }
    Bytes positive = {static_cast<uint8_t>(sid + 0x40)};
    const auto reply = [&](const Bytes& rest) {
        positive.insert(positive.end(), rest.begin(), rest.end());
        return positive;
    };
    if (described->answer) {
        return reply(*described->answer);
    }
    if (auto programmed = respondProgramming(*this, request)) {
        return *programmed;
    }
    switch (sid) {
    case 0x10: {
        const uint8_t next = request[1];
        if (!session(next)) {
            return negative(SubFunctionNotSupported);
        }
        if (next != state.session) {
            state.unlockedLevel = 0; // a new session starts locked
            state.seedLevel = 0;
        }
        state.session = next;
        return reply({next, 0x00, 0x32, 0x01, 0xF4});
    }
    case 0x11: {
        const uint8_t type = request[1];
        if (type < 1 || type > 3) {
            return negative(SubFunctionNotSupported);
        }
        state.session = 1;
        state.unlockedLevel = 0;
        state.seedLevel = 0;
        return reply({type});
    }
    case 0x3E:
        return reply({0x00});
    case 0x27: {
        const uint8_t type = request[1];
        const auto levelNumber = static_cast<uint8_t>((type + 1) / 2);
        auto* level = const_cast<SecurityLevel*>(securityLevel(levelNumber));
        if ((type & 1) != 0) {
            if (nowMs < level->lockedUntilMs) {
                return negative(RequiredTimeDelayNotExpired);
            }
            if (state.unlockedLevel == levelNumber) {
                return reply({type, 0, 0, 0, 0}); // already unlocked: the zero seed
            }
            do {
                auto& x = state.seedState;
                x ^= x << 13;
                x ^= x >> 17;
                x ^= x << 5;
            } while (state.seedState == 0);
            state.seed = bigEndian(state.seedState, 4);
            state.seedLevel = levelNumber;
            Bytes rest = {type};
            rest.insert(rest.end(), state.seed.begin(), state.seed.end());
            return reply(rest);
        }
        if (state.seedLevel != levelNumber) {
            return negative(RequestSequenceError);
        }
        state.seedLevel = 0;
        const Bytes key(request.begin() + 2, request.end());
        if (key == securityKey(state.seed, level->keyMask)) {
            state.unlockedLevel = levelNumber;
            level->failed = 0;
            return reply({type});
        }
        if (++level->failed >= level->attempts) {
            level->failed = 0;
            level->lockedUntilMs = nowMs + level->lockoutMs;
            return negative(ExceededNumberOfAttempts);
        }
        return negative(InvalidKey);
    }
    case 0x22: {
        const auto id = static_cast<uint16_t>(request[1] << 8 | request[2]);
        refreshMeasurement(*this, id, nowMs);
        const auto* d = dataIdentifier(id);
        Bytes rest = {request[1], request[2]};
        rest.insert(rest.end(), d->bytes.begin(), d->bytes.end());
        return reply(rest);
    }
    case 0x2E: {
        auto* d = const_cast<DataIdentifier*>(
            dataIdentifier(static_cast<uint16_t>(request[1] << 8 | request[2])));
        const Bytes written(request.begin() + 3, request.end());
        if (!d->codec.accepts(written)) {
            return negative(RequestOutOfRange);
        }
        d->bytes = written;
        return reply({request[1], request[2]});
    }
    case 0x19: {
        const bool supported = request[1] == 0x0A;
        const uint8_t mask = supported ? 0xFF : request[2];
        Bytes rest = {request[1], 0xFF};
        for (const auto& d : dtcs) {
            // Mask FF reports every stored DTC, also one whose status is 0.
            if (supported || (d.stored && (mask == 0xFF || (d.status & mask) != 0))) {
                const auto number = bigEndian(d.code, 3);
                rest.insert(rest.end(), number.begin(), number.end());
                rest.push_back(d.status);
            }
        }
        return reply(rest);
    }
    case 0x14: {
        const uint32_t group = bigEndian(Bytes(request.begin() + 1, request.end()));
        bool found = false;
        for (auto& d : dtcs) {
            if (group == 0xFFFFFF || d.code == group) {
                d.stored = false;
                d.status = 0;
                found = true;
            }
        }
        return found || group == 0xFFFFFF ? reply({}) : negative(RequestOutOfRange);
    }
    case 0x31:
        return reply(Bytes(request.begin() + 1, request.end())); // reports its options back
    default:
        return negative(ServiceNotSupported);
    }
}

// ---- the units ------------------------------------------------------------------------

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

void ControlUnits::load(std::vector<Ecu> ecus, std::wstring problem) {
    const std::lock_guard lock(mutex_);
    ecus_ = std::move(ecus);
    problem_ = std::move(problem);
}

void ControlUnits::requireLoaded() const {
    if (!problem_.empty()) {
        throw TarnApiException(BadVehicleDescription,
                               L"The simulated vehicle has no valid description", problem_);
    }
}

Bytes Bus::exchange(Ecu& ecu, const Bytes& request) {
    const auto now = VehicleClock::nowMs();
    Bytes response = ecu.responds ? ecu.respond(request, now) : Bytes{};
    units_.countExchange(request.size(), response.size());
    heard_.push_back({ecu.name, request, response, now});
    return response;
}

void ControlUnits::countExchange(size_t requestBytes, size_t responseBytes) {
    const std::lock_guard lock(trafficMutex_);
    ++traffic_.requests;
    traffic_.bytesSent += requestBytes;
    if (responseBytes > 0) {
        ++traffic_.responses;
        traffic_.bytesReceived += responseBytes;
    }
}

BusTraffic ControlUnits::traffic() const {
    const std::lock_guard lock(trafficMutex_);
    return traffic_;
}

uint64_t ControlUnits::listen(Listener listener) {
    const std::lock_guard lock(listenersMutex_);
    const auto id = nextListener_++;
    listeners_.emplace(id, std::move(listener));
    return id;
}

void ControlUnits::stopListening(uint64_t id) {
    const std::lock_guard lock(listenersMutex_);
    listeners_.erase(id);
}

void ControlUnits::tell(const std::vector<Exchange>& heard) const {
    if (heard.empty()) {
        return;
    }
    std::vector<Listener> listeners;
    {
        const std::lock_guard lock(listenersMutex_);
        for (const auto& [id, l] : listeners_) {
            listeners.push_back(l);
        }
    }
    for (const auto& exchange : heard) {
        for (const auto& l : listeners) {
            try {
                l(exchange);
            } catch (...) { // NOLINT(bugprone-empty-catch): a listener cannot fail a call
            }
        }
    }
}

} // namespace Varno::Kel_cpp::Reference
