// The programming services of a flashable unit (ControlUnits.h, "programming"). Kept
// apart from the other services: only a unit with a "programming" member has them.
#include "ControlUnits.h"
#include "Describe.h"

#include <algorithm>
#include <stdexcept>

namespace Varno::Kel_cpp::Reference {
namespace {

using json = nlohmann::json;

ParameterSpec constantSpec(std::wstring name, Bytes bytes) {
    ParameterSpec p;
    p.kind = ParameterSpec::Kind::Constant;
    p.name = std::move(name);
    p.constant = std::move(bytes);
    return p;
}

ParameterSpec bytesSpec(std::wstring name, uint32_t length) {
    ParameterSpec p;
    p.name = std::move(name);
    p.codec.kind = Codec::Kind::Bytes;
    p.codec.length = length;
    return p;
}

Bytes twoBytes(uint16_t v) { return {static_cast<uint8_t>(v >> 8), static_cast<uint8_t>(v)}; }

uint64_t bigEndianValue(Bytes::const_iterator from, Bytes::const_iterator to) {
    uint64_t v = 0;
    for (auto i = from; i != to; ++i) {
        v = v << 8 | *i;
    }
    return v;
}

uint16_t hexWord(const json& j, const char* what) {
    const auto text = j.get<std::string>();
    std::size_t used = 0;
    const auto v = std::stoul(text, &used, 16);
    if (used != text.size() || v > 0xFFFF) {
        throw std::invalid_argument(std::string(what) + ": four hex digits, not " + text);
    }
    return static_cast<uint16_t>(v);
}

void addServices(Ecu& ecu) {
    const Programming& p = *ecu.programming;
    const Access access{{p.session}, p.level};
    const auto add = [&](std::wstring name, std::wstring description, uint8_t sid,
                         std::vector<ParameterSpec> request, std::vector<ParameterSpec> response) {
        ServiceSpec s;
        s.name = std::move(name);
        s.description = std::move(description);
        s.sid = sid;
        s.request = std::move(request);
        s.response = std::move(response);
        s.access = access;
        ecu.services.push_back(std::move(s));
    };
    const auto routine = [&](uint16_t id) {
        return std::vector<ParameterSpec>{constantSpec(L"RoutineControlType", {0x01}),
                                          constantSpec(L"RoutineIdentifier", twoBytes(id))};
    };
    auto erased = routine(eraseMemoryRoutine);
    erased.push_back(bytesSpec(L"RoutineStatus", 1));
    add(L"RoutineControl_" + hexId(eraseMemoryRoutine),
        L"Erases the software: an update is incomplete until a new image is checked", 0x31,
        routine(eraseMemoryRoutine), erased);
    auto check = routine(checkProgrammingRoutine);
    check.push_back(bytesSpec(L"Crc32", 4));
    auto checked = routine(checkProgrammingRoutine);
    checked.push_back(bytesSpec(L"RoutineStatus", 1));
    add(L"RoutineControl_" + hexId(checkProgrammingRoutine),
        L"Checks the downloaded image against its CRC-32 and runs it when they agree", 0x31, check,
        checked);
    add(L"RequestDownload", L"Announces an image of MemorySize bytes", 0x34,
        {bytesSpec(L"DataFormatIdentifier", 1), constantSpec(L"AddressAndLengthFormat", {0x44}),
         bytesSpec(L"MemoryAddress", 4), bytesSpec(L"MemorySize", 4)},
        {constantSpec(L"LengthFormatIdentifier", {0x20}), bytesSpec(L"MaxNumberOfBlockLength", 2)});
    add(L"TransferData", L"Sends the next block of the image", 0x36,
        {bytesSpec(L"BlockSequenceCounter", 1), bytesSpec(L"TransferRequestParameterRecord", 0)},
        {bytesSpec(L"BlockSequenceCounter", 1)});
    add(L"RequestTransferExit", L"Ends the download once the whole image arrived", 0x37, {}, {});
}

// The image is whole and its CRC-32 agrees: the unit runs it.
bool install(Ecu& ecu, Programming& p) {
    const auto end = std::find(p.header.begin(), p.header.end(), uint8_t{0});
    if (end == p.header.end()) {
        return false; // no version: not an image this unit runs
    }
    auto* version = const_cast<DataIdentifier*>(ecu.dataIdentifier(p.versionId));
    const Bytes text(p.header.begin(), end);
    if (!version->codec.accepts(text)) {
        return false;
    }
    version->bytes = text;
    p.incomplete = false;
    ecu.dtcs[p.dtc].stored = false;
    ecu.dtcs[p.dtc].status = 0;
    return true;
}

} // namespace

void addProgramming(const json& description, Ecu& ecu) {
    const auto found = description.find("programming");
    if (found == description.end()) {
        return;
    }
    const json& j = *found;
    Programming p;
    p.level = j.value("level", uint8_t{1});
    if (!ecu.securityLevel(p.level)) {
        throw std::invalid_argument("ECU " + toUtf8(ecu.name) +
                                    ": programming names no security level");
    }
    const auto session = j.value("session", std::string("Programming"));
    const auto named = std::find_if(ecu.sessions.begin(), ecu.sessions.end(),
                                    [&](const Session& s) { return toUtf8(s.name) == session; });
    if (named == ecu.sessions.end() || named->id == 1) {
        throw std::invalid_argument("ECU " + toUtf8(ecu.name) + ": programming session " + session +
                                    " is not a non-default session of the unit");
    }
    p.session = named->id;
    p.maxBlockLength = j.value("maxBlockLength", 1026U);
    if (p.maxBlockLength < 3 || p.maxBlockLength > 0xFFFF) {
        throw std::invalid_argument("ECU " + toUtf8(ecu.name) + ": maxBlockLength is 3 to 65535");
    }
    p.versionId = j.contains("versionIdentifier")
                      ? hexWord(j.at("versionIdentifier"), "versionIdentifier")
                      : uint16_t{0xF189};
    if (!ecu.dataIdentifier(p.versionId)) {
        throw std::invalid_argument("ECU " + toUtf8(ecu.name) + ": programming needs identifier " +
                                    toUtf8(hexId(p.versionId)));
    }
    const auto dtc = fromUtf8(j.value("dtc", std::string("P0602")));
    const auto number = ControlUnits::dtcNumber(dtc, 0);
    const auto known = std::find_if(ecu.dtcs.begin(), ecu.dtcs.end(),
                                    [&](const Dtc& d) { return d.code == number; });
    if (known == ecu.dtcs.end()) {
        Dtc d;
        d.display = dtc;
        d.code = number;
        d.text = L"Control module programming incomplete";
        d.symptom = L"The software was erased and no complete image was installed";
        d.severity = 3;
        d.stored = false;
        ecu.dtcs.push_back(std::move(d));
        p.dtc = ecu.dtcs.size() - 1;
    } else {
        p.dtc = static_cast<std::size_t>(known - ecu.dtcs.begin());
    }
    ecu.programming = p;
    addServices(ecu);
}

std::optional<Bytes> respondProgramming(Ecu& ecu, const Bytes& request) {
    if (!ecu.programming || request.empty()) {
        return std::nullopt;
    }
    Programming& p = *ecu.programming;
    const uint8_t sid = request[0];
    const auto negative = [sid](uint8_t nrc) { return Bytes{0x7F, sid, nrc}; };
    switch (sid) {
    case 0x10:
    case 0x11:
        // Leaving the session or resetting ends a download; what was erased stays erased.
        p.downloading = false;
        p.downloaded = false;
        return std::nullopt;
    case 0x31: {
        if (request.size() < 4) {
            return std::nullopt;
        }
        const auto routine = static_cast<uint16_t>(request[2] << 8 | request[3]);
        Bytes reply = {0x71, 0x01, request[2], request[3]};
        if (routine == eraseMemoryRoutine) {
            auto* version = const_cast<DataIdentifier*>(ecu.dataIdentifier(p.versionId));
            version->bytes.clear();
            p.incomplete = true;
            p.downloading = false;
            p.downloaded = false;
            auto& dtc = ecu.dtcs[p.dtc];
            dtc.stored = true;
            dtc.status = 0x09; // testFailed, confirmedDTC
            reply.push_back(0x00);
            return reply;
        }
        if (routine == checkProgrammingRoutine) {
            if (!p.downloaded) {
                return negative(RequestSequenceError);
            }
            p.downloaded = false;
            const auto sent =
                static_cast<uint32_t>(bigEndianValue(request.begin() + 4, request.end()));
            const bool ok = sent == p.crc.value() && install(ecu, p);
            reply.push_back(ok ? 0x00 : 0x01);
            return reply;
        }
        return std::nullopt;
    }
    case 0x34: {
        if (!p.incomplete) {
            return negative(ConditionsNotCorrect); // nothing erased to write into
        }
        const uint64_t size = bigEndianValue(request.begin() + 7, request.end());
        if (request[1] != 0x00 || size == 0) {
            return negative(RequestOutOfRange); // compressed or encrypted images, empty ones
        }
        p.downloading = true;
        p.downloaded = false;
        p.expected = size;
        p.received = 0;
        p.nextBlock = 1;
        p.crc = Crc32{};
        p.header.clear();
        const auto block = twoBytes(static_cast<uint16_t>(p.maxBlockLength));
        return Bytes{0x74, 0x20, block[0], block[1]};
    }
    case 0x36: {
        if (!p.downloading) {
            return negative(RequestSequenceError);
        }
        if (request[1] != p.nextBlock) {
            return negative(WrongBlockSequenceCounter);
        }
        if (request.size() > p.maxBlockLength) {
            return negative(IncorrectLength);
        }
        const std::span<const uint8_t> data(request.data() + 2, request.size() - 2);
        if (p.received + data.size() > p.expected) {
            return negative(TransferDataSuspended);
        }
        p.crc.update(data);
        for (std::size_t i = 0; i < data.size() && p.header.size() < imageHeaderLength; ++i) {
            p.header.push_back(data[i]);
        }
        p.received += data.size();
        ++p.nextBlock; // wraps from FF to 00
        return Bytes{0x76, request[1]};
    }
    case 0x37:
        if (!p.downloading || p.received != p.expected) {
            return negative(RequestSequenceError);
        }
        p.downloading = false;
        p.downloaded = true;
        return Bytes{0x77};
    default:
        return std::nullopt;
    }
}

} // namespace Varno::Kel_cpp::Reference
