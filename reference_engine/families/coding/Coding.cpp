// Reads and writes go over the bus (22 and 2E on the coding's identifier), so coding
// and configuration obey the unit's access rules and are seen by identification and
// monitors. The asynchronous forms keep the control units, not the vehicle, and report
// one target at a time.
#include "Coding.h"

#include "Checksums.h"
#include "ControlUnits.h"
#include "Describe.h"
#include "ErrorCodes.h"
#include "SimulatedVehicle.h"
#include "families/diagnostics/Answers.h"
#include "families/files/FileWork.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

namespace Varno::Kel_cpp::Reference {
namespace {

using Names = std::vector<std::wstring>;
using Lines = std::vector<std::pair<std::wstring, std::wstring>>;

constexpr uint64_t maxCodingFileBytes = 1 << 20;
constexpr uint32_t checksumChunk = 1 << 16;

std::shared_ptr<KelError> error(int32_t code, std::wstring message, std::wstring details) {
    auto e = std::make_shared<KelError>();
    e->code = code;
    e->message = std::move(message);
    e->details = std::move(details);
    return e;
}

[[noreturn]] void badDescription(const std::string& why) {
    throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                           fromUtf8("coding: " + why));
}

uint16_t identifierOf(const nlohmann::json& j) {
    const auto text = j.at("identifier").get<std::string>();
    std::size_t used = 0;
    const auto v = std::stoul(text, &used, 16);
    if (used != text.size() || v > 0xFFFF) {
        throw std::invalid_argument("identifier " + text + ": four hex digits");
    }
    return static_cast<uint16_t>(v);
}

// The unit `target` of the description and its writable identifier `id`.
const DataIdentifier& writable(const std::vector<Ecu>& ecus, const std::wstring& target,
                               uint16_t id) {
    const auto ecu =
        std::find_if(ecus.begin(), ecus.end(), [&](const Ecu& e) { return e.name == target; });
    if (ecu == ecus.end()) {
        badDescription("no unit " + toUtf8(target));
    }
    const auto* d = ecu->dataIdentifier(id);
    if (d == nullptr || !d->write) {
        badDescription(toUtf8(target) + " has no writable identifier " + toUtf8(hexId(id)));
    }
    return *d;
}

Ecu* find(std::vector<Ecu>& ecus, const std::wstring& target) {
    const auto found =
        std::find_if(ecus.begin(), ecus.end(), [&](const Ecu& e) { return e.name == target; });
    return found == ecus.end() ? nullptr : &*found;
}

Bytes didRequest(uint8_t sid, uint16_t id, const Bytes& data = {}) {
    Bytes request(3 + data.size());
    request[0] = sid;
    request[1] = static_cast<uint8_t>(id >> 8);
    request[2] = static_cast<uint8_t>(id);
    std::copy(data.begin(), data.end(), request.begin() + 3);
    return request;
}

// Fills the per-target outcome of a failed exchange: status 1 and the silent unit's
// error, or status 3 and the negative response. True when the response was positive.
template <class R>
bool answered(R& r, const Ecu& ecu, const Bytes& response, uint8_t sid) {
    if (response.empty()) {
        r.status = 1;
        r.error = Answers::silent(ecu);
        return false;
    }
    if (response[0] != sid + 0x40) {
        r.status = 3;
        r.error = Answers::negative(response, CodingRefused);
        r.error->message = L"The control unit refused the coding";
        r.error->details = ecu.name + L" answered " + hexText(response);
        return false;
    }
    return true;
}

template <class R>
std::shared_ptr<R> unknownTarget(const std::wstring& name) {
    auto r = std::make_shared<R>();
    r->target = name;
    r->status = 2;
    r->error = error(UnknownTarget, L"The vehicle has no such control unit", L"target " + name);
    return r;
}

const CodingPlace* placeOf(const CodingSettings& settings, const std::wstring& target) {
    const auto found = std::find_if(settings.codings.begin(), settings.codings.end(),
                                    [&](const CodingPlace& p) { return p.target == target; });
    return found == settings.codings.end() ? nullptr : &*found;
}

std::shared_ptr<KelError> notCoded(const std::wstring& target) {
    return error(NotCoded, L"The control unit keeps no coding", L"target " + target);
}

std::vector<std::shared_ptr<CodingStringResult>>
readCodings(Bus& bus, const CodingSettings& settings, Names targets) {
    if (targets.empty()) {
        for (const auto& p : settings.codings) {
            targets.push_back(p.target);
        }
    }
    std::vector<std::shared_ptr<CodingStringResult>> out;
    for (const auto& name : targets) {
        Ecu* ecu = find(bus.ecus, name);
        if (ecu == nullptr) {
            out.push_back(unknownTarget<CodingStringResult>(name));
            continue;
        }
        auto r = std::make_shared<CodingStringResult>();
        r->target = name;
        const auto* place = placeOf(settings, name);
        if (place == nullptr) {
            r->status = 3;
            r->error = notCoded(name);
        } else {
            r->identifier = hexId(place->identifier);
            const auto response = bus.exchange(*ecu, didRequest(0x22, place->identifier));
            if (answered(*r, *ecu, response, 0x22)) {
                r->data.assign(response.begin() + 3, response.end());
                r->coding = ecu->dataIdentifier(place->identifier)->codec.decode(r->data);
            }
        }
        out.push_back(std::move(r));
    }
    return out;
}

std::vector<std::shared_ptr<CodingFileResult>>
writeCodings(Bus& bus, const CodingSettings& settings, const Lines& lines, Names targets) {
    if (targets.empty()) {
        for (const auto& line : lines) {
            targets.push_back(line.first);
        }
    }
    std::vector<std::shared_ptr<CodingFileResult>> out;
    for (const auto& name : targets) {
        Ecu* ecu = find(bus.ecus, name);
        if (ecu == nullptr) {
            out.push_back(unknownTarget<CodingFileResult>(name));
            continue;
        }
        auto r = std::make_shared<CodingFileResult>();
        r->target = name;
        out.push_back(r);
        const auto line = std::find_if(lines.begin(), lines.end(),
                                       [&](const auto& l) { return l.first == name; });
        const auto* place = placeOf(settings, name);
        if (line == lines.end()) {
            r->status = 3;
            r->error = error(NotInCodingFile, L"The coding file has no coding for the target",
                             L"target " + name);
            continue;
        }
        r->written = line->second;
        if (place == nullptr) {
            r->status = 3;
            r->error = notCoded(name);
            continue;
        }
        Bytes bytes;
        try {
            bytes = ecu->dataIdentifier(place->identifier)->codec.encode(line->second);
        } catch (const std::invalid_argument& e) {
            r->status = 3;
            r->error = error(BadCodingValue, L"The coding cannot be written in the unit's bytes",
                             name + L": " + fromUtf8(e.what()));
            continue;
        }
        if (!answered(*r, *ecu, bus.exchange(*ecu, didRequest(0x2E, place->identifier, bytes)),
                      0x2E)) {
            continue;
        }
        const auto back = bus.exchange(*ecu, didRequest(0x22, place->identifier));
        if (answered(*r, *ecu, back, 0x22)) {
            r->data.assign(back.begin() + 3, back.end());
            r->coding = ecu->dataIdentifier(place->identifier)->codec.decode(r->data);
            r->verified = r->data == bytes;
        }
    }
    return out;
}

std::vector<std::shared_ptr<EcuConfigurationResult>>
configure(Bus& bus, const EcuConfiguration& configuration, Names targets) {
    if (targets.empty()) {
        for (const auto& w : configuration.writes) {
            if (std::find(targets.begin(), targets.end(), w.target) == targets.end()) {
                targets.push_back(w.target);
            }
        }
    }
    std::vector<std::shared_ptr<EcuConfigurationResult>> out;
    for (const auto& name : targets) {
        Ecu* ecu = find(bus.ecus, name);
        if (ecu == nullptr) {
            auto r = unknownTarget<EcuConfigurationResult>(name);
            r->configuration = configuration.name;
            out.push_back(std::move(r));
            continue;
        }
        auto r = std::make_shared<EcuConfigurationResult>();
        r->target = name;
        r->configuration = configuration.name;
        out.push_back(r);
        bool any = false;
        for (const auto& w : configuration.writes) {
            if (w.target != name) {
                continue;
            }
            any = true;
            const auto bytes = ecu->dataIdentifier(w.identifier)->codec.encode(w.value);
            if (!answered(*r, *ecu, bus.exchange(*ecu, didRequest(0x2E, w.identifier, bytes)),
                          0x2E)) {
                break; // the rest would be refused alike; what was written stays
            }
            ++r->written;
        }
        if (!any) {
            r->status = 3;
            r->error =
                error(NotInEcuConfiguration, L"The configuration writes nothing to the target",
                      configuration.name + L" on " + name);
        }
    }
    return out;
}

std::wstring trim(const std::wstring& text) {
    const auto first = text.find_first_not_of(L" \t\r");
    if (first == std::wstring::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(L" \t\r") - first + 1);
}

std::wstring hexDigits(uint32_t value, int digits) {
    static const wchar_t* const hex = L"0123456789ABCDEF";
    std::wstring out;
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
        out += hex[(value >> shift) & 0xF];
    }
    return out;
}

} // namespace

// ---- the description ---------------------------------------------------------------------

CodingSettings CodingSettings::parse(const nlohmann::json& section, const std::vector<Ecu>& ecus) {
    CodingSettings settings;
    try {
        for (const auto& j : arrayMember(section, "codings")) {
            CodingPlace place{fromUtf8(j.at("target").get<std::string>()), identifierOf(j)};
            writable(ecus, place.target, place.identifier);
            if (placeOf(settings, place.target) != nullptr) {
                badDescription(toUtf8(place.target) + " has two codings");
            }
            settings.codings.push_back(std::move(place));
        }
        for (const auto& j : arrayMember(section, "configurations")) {
            EcuConfiguration c;
            c.name = fromUtf8(j.at("name").get<std::string>());
            c.description = textMember(j, "description");
            for (const auto& w : arrayMember(j, "writes", true)) {
                ConfigurationWrite write{fromUtf8(w.at("target").get<std::string>()),
                                         identifierOf(w),
                                         fromUtf8(w.at("value").get<std::string>())};
                // A value the identifier cannot hold at all is the description's fault;
                // one outside its limits is the unit's to refuse.
                writable(ecus, write.target, write.identifier).codec.encode(write.value);
                c.writes.push_back(std::move(write));
            }
            for (const auto& other : settings.configurations) {
                if (other.name == c.name) {
                    badDescription("configuration " + toUtf8(c.name) + " twice");
                }
            }
            settings.configurations.push_back(std::move(c));
        }
    } catch (const TarnApiException&) {
        throw;
    } catch (const std::exception& e) {
        badDescription(e.what());
    }
    return settings;
}

void CodingState::load(CodingSettings settings) {
    const std::lock_guard lock(mutex_);
    settings_ = std::move(settings);
}

CodingSettings CodingState::settings() const {
    const std::lock_guard lock(mutex_);
    return settings_;
}

// ---- the family ---------------------------------------------------------------------------

Coding::Coding(std::shared_ptr<SimulatedVehicle> vehicle) : vehicle_(std::move(vehicle)) {}

const std::shared_ptr<ControlUnits>& Coding::connected() const {
    vehicle_->lifecycle.requireInitialized();
    vehicle_->interfaces->requireConnected();
    return vehicle_->units;
}

std::vector<std::shared_ptr<CodingStringResult>>
Coding::readCodingStrings(const std::vector<std::wstring>& targets) {
    const auto settings = vehicle_->coding.settings();
    return connected()->talk([&](Bus& bus) { return readCodings(bus, settings, targets); });
}

uint64_t Coding::readCodingStringsAsync(const std::vector<std::wstring>& targets,
                                        ReadCodingStringsCallback* callback) {
    return vehicle_->async.start(
        "readCodingStringsAsync", callback,
        [units = connected(), settings = vehicle_->coding.settings(), targets] {
            return units->talk([&](Bus& bus) { return readCodings(bus, settings, targets); });
        });
}

// A coding file is UTF-8 text, one target a line: "<target> = <coding>", the coding
// written as the unit's coding identifier reads it (hex digits for bytes). Blank lines
// and lines beginning with # are skipped.
Lines Coding::readCodingFile(const std::wstring& path) const {
    const Resolved file = vehicle_->files.sandbox().resolve(path);
    requireFile(file);
    std::error_code e;
    const auto size = std::filesystem::file_size(file.real, e);
    if (e || size > maxCodingFileBytes) {
        throw TarnApiException(BadCodingFile, L"The coding file is too large",
                               file.enginePath + L": at most 1 MiB");
    }
    const auto bytes = readRange(file.real, 0, 0, false);
    const auto text = fromUtf8(std::string(bytes.begin(), bytes.end()));
    Lines lines;
    std::size_t number = 0;
    for (std::size_t at = 0; at <= text.size();) {
        const auto end = std::min(text.find(L'\n', at), text.size());
        const auto line = trim(text.substr(at, end - at));
        at = end + 1;
        ++number;
        if (line.empty() || line[0] == L'#') {
            continue;
        }
        const auto equals = line.find(L'=');
        const auto target = equals == std::wstring::npos ? L"" : trim(line.substr(0, equals));
        const auto where = file.enginePath + L" line " + std::to_wstring(number);
        if (target.empty()) {
            throw TarnApiException(BadCodingFile, L"A coding file line is <target> = <coding>",
                                   where);
        }
        if (std::any_of(lines.begin(), lines.end(),
                        [&](const auto& l) { return l.first == target; })) {
            throw TarnApiException(BadCodingFile, L"The coding file codes a target twice",
                                   where + L": " + target);
        }
        lines.emplace_back(target, trim(line.substr(equals + 1)));
    }
    return lines;
}

std::vector<std::shared_ptr<CodingFileResult>>
Coding::writeCodingFile(const std::wstring& codingFile, const std::vector<std::wstring>& targets) {
    const auto& units = connected();
    const auto lines = readCodingFile(codingFile);
    const auto settings = vehicle_->coding.settings();
    return units->talk([&](Bus& bus) { return writeCodings(bus, settings, lines, targets); });
}

uint64_t Coding::writeCodingFileAsync(const std::wstring& codingFile,
                                      const std::vector<std::wstring>& targets,
                                      WriteCodingFileCallback* callback) {
    const auto& units = connected();
    return vehicle_->async.start("writeCodingFileAsync", callback,
                                 [units, lines = readCodingFile(codingFile),
                                  settings = vehicle_->coding.settings(), targets] {
                                     return units->talk([&](Bus& bus) {
                                         return writeCodings(bus, settings, lines, targets);
                                     });
                                 });
}

namespace {
EcuConfiguration configurationNamed(const CodingSettings& settings, const std::wstring& name) {
    for (const auto& c : settings.configurations) {
        if (c.name == name) {
            return c;
        }
    }
    throw TarnApiException(UnknownEcuConfiguration, L"The vehicle has no such ECU configuration",
                           L"configuration " + name);
}
} // namespace

std::vector<std::shared_ptr<EcuConfigurationResult>>
Coding::performEcuConfiguration(const std::vector<std::wstring>& targets,
                                const std::wstring& configuration) {
    const auto& units = connected();
    const auto chosen = configurationNamed(vehicle_->coding.settings(), configuration);
    return units->talk([&](Bus& bus) { return configure(bus, chosen, targets); });
}

uint64_t Coding::performEcuConfigurationAsync(const std::vector<std::wstring>& targets,
                                              const std::wstring& configuration,
                                              PerformEcuConfigurationCallback* callback) {
    const auto& units = connected();
    return vehicle_->async.start(
        "performEcuConfigurationAsync", callback,
        [units, chosen = configurationNamed(vehicle_->coding.settings(), configuration), targets] {
            return units->talk([&](Bus& bus) { return configure(bus, chosen, targets); });
        });
}

std::wstring Coding::calculateChecksum(const std::wstring& path, int32_t algorithm) {
    vehicle_->lifecycle.requireInitialized();
    if (algorithm < ChecksumCrc32 || algorithm > ChecksumAdler32) {
        throw TarnApiException(
            UnknownChecksumAlgorithm, L"No such checksum algorithm",
            L"algorithm " + std::to_wstring(algorithm) +
                L"; 1 CRC-32, 2 CRC-16/CCITT-FALSE, 3 CRC-16/XMODEM, 4 Adler-32");
    }
    const Resolved file = vehicle_->files.sandbox().resolve(path);
    requireFile(file);
    std::error_code e;
    const uint64_t size = std::filesystem::file_size(file.real, e);
    if (e) {
        throw TarnApiException(FileIoFailed, L"The file cannot be read", file.enginePath);
    }
    Crc32 crc32;
    Crc16Ccitt ccittFalse(0xFFFF);
    Crc16Ccitt xmodem(0x0000);
    Adler32 adler;
    for (uint64_t offset = 0; offset < size; offset += checksumChunk) {
        const auto chunk = readRange(file.real, offset, checksumChunk, false);
        switch (algorithm) {
        case ChecksumCrc32:
            crc32.update(chunk);
            break;
        case ChecksumCrc16CcittFalse:
            ccittFalse.update(chunk);
            break;
        case ChecksumCrc16Xmodem:
            xmodem.update(chunk);
            break;
        default:
            adler.update(chunk);
            break;
        }
    }
    switch (algorithm) {
    case ChecksumCrc32:
        return hexDigits(crc32.value(), 8);
    case ChecksumCrc16CcittFalse:
        return hexDigits(ccittFalse.value(), 4);
    case ChecksumCrc16Xmodem:
        return hexDigits(xmodem.value(), 4);
    default:
        return hexDigits(adler.value(), 8);
    }
}

} // namespace Varno::Kel_cpp::Reference
