// Orders are plain lists of entries; the family checks them where a caller hands one in,
// so that a file it writes can always be read back, and names a unit by its name or by
// one of its aliases wherever it looks a target up.
#include "EcuOrder.h"

#include "ControlUnits.h"
#include "Describe.h"
#include "ErrorCodes.h"
#include "SimulatedVehicle.h"
#include "families/files/FileWork.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

constexpr uint64_t maxOrderFileBytes = 1 << 20;
constexpr const char* header = "# kel ECU order 1";

bool hasControl(const std::wstring& text) {
    return std::any_of(text.begin(), text.end(), [](wchar_t c) { return c < 0x20 || c == 0x7F; });
}

std::wstring trim(const std::wstring& text) {
    const auto first = text.find_first_not_of(L" \t\r");
    if (first == std::wstring::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(L" \t\r") - first + 1);
}

[[noreturn]] void badOrder(const std::wstring& why) {
    throw TarnApiException(BadEcuOrder, L"The ECU order is not valid", why);
}

std::wstring entryName(std::size_t index) { return L"entry " + std::to_wstring(index + 1); }

// What every order a caller hands in must be: entries that are there, each with a target
// of its own. Orders run to 100k entries, so the duplicate check is one hash lookup each.
void checkEntries(const EcuOrderEntries& entries) {
    std::unordered_set<std::wstring_view> seen;
    seen.reserve(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (!entries[i]) {
            badOrder(entryName(i) + L" is missing");
        }
        if (entries[i]->target.empty()) {
            badOrder(entryName(i) + L" names no target");
        }
        if (!seen.insert(entries[i]->target).second) {
            badOrder(entryName(i) + L" names " + entries[i]->target + L" again");
        }
    }
}

// What a file needs besides: names that a line holds unchanged.
void checkWritable(const EcuOrderEntries& entries) {
    checkEntries(entries);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        for (const auto* name : {&entries[i]->target, &entries[i]->bus}) {
            if (hasControl(*name)) {
                badOrder(entryName(i) + L": a name holds a control character");
            }
            if (!name->empty() && (name->front() == L' ' || name->back() == L' ')) {
                badOrder(entryName(i) + L": a name begins or ends with a blank");
            }
        }
        if (entries[i]->target.front() == L'#') {
            badOrder(entryName(i) + L": a target may not begin with #");
        }
    }
}

std::wstring hexAddress(uint32_t address) {
    static const wchar_t* const hex = L"0123456789ABCDEF";
    std::wstring digits;
    do {
        digits.insert(digits.begin(), hex[address & 0xF]);
        address >>= 4;
    } while (address != 0);
    return L"0x" + digits;
}

// "0x" and one to eight hex digits.
bool parseAddress(const std::wstring& text, uint32_t& address) {
    if (text.size() < 3 || text.size() > 10 || text[0] != L'0' ||
        (text[1] != L'x' && text[1] != L'X')) {
        return false;
    }
    address = 0;
    for (std::size_t i = 2; i < text.size(); ++i) {
        const wchar_t c = text[i];
        const int digit = c >= L'0' && c <= L'9'   ? c - L'0'
                          : c >= L'A' && c <= L'F' ? c - L'A' + 10
                          : c >= L'a' && c <= L'f' ? c - L'a' + 10
                                                   : -1;
        if (digit < 0) {
            return false;
        }
        address = address << 4 | static_cast<uint32_t>(digit);
    }
    return true;
}

std::vector<std::wstring> split(const std::wstring& text, const wchar_t* separators) {
    std::vector<std::wstring> parts;
    for (std::size_t at = 0; at <= text.size();) {
        const auto end = std::min(text.find_first_of(separators, at), text.size());
        parts.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return parts;
}

std::shared_ptr<EcuOrderEntry> copy(const EcuOrderEntry& entry) {
    return std::make_shared<EcuOrderEntry>(entry);
}

// A unit's names: its own and its aliases.
struct UnitNames {
    std::wstring name;
    std::vector<std::wstring> aliases;
    bool answersTo(const std::wstring& n) const {
        return n == name || std::find(aliases.begin(), aliases.end(), n) != aliases.end();
    }
};

std::vector<UnitNames> unitNames(const std::vector<Ecu>& ecus) {
    std::vector<UnitNames> out;
    for (const auto& ecu : ecus) {
        out.push_back({ecu.name, ecu.aliases});
    }
    return out;
}

// `a` and `b` name the same unit: equal, or two names of one unit of the vehicle.
bool sameUnit(const std::wstring& a, const std::wstring& b, const std::vector<UnitNames>& units) {
    return a == b || std::any_of(units.begin(), units.end(), [&](const UnitNames& u) {
               return u.answersTo(a) && u.answersTo(b);
           });
}

// The gateway first, then by bus name, then by address; a tie keeps the description's
// order.
EcuOrderEntries orderOf(const std::vector<Ecu>& ecus, const std::wstring& gateway) {
    EcuOrderEntries order;
    for (const auto& ecu : ecus) {
        auto entry = std::make_shared<EcuOrderEntry>();
        entry->target = ecu.name;
        entry->bus = ecu.bus;
        entry->address = static_cast<uint32_t>(ecu.address);
        entry->gateway = ecu.name == gateway;
        order.push_back(std::move(entry));
    }
    std::stable_sort(order.begin(), order.end(), [](const auto& a, const auto& b) {
        if (a->gateway != b->gateway) {
            return a->gateway;
        }
        if (a->bus != b->bus) {
            return a->bus < b->bus;
        }
        return a->address < b->address;
    });
    return order;
}

} // namespace

// ---- the description and the state ----------------------------------------------------------

EcuOrderSettings EcuOrderSettings::parse(const nlohmann::json& section,
                                         const std::vector<Ecu>& ecus) {
    EcuOrderSettings settings;
    try {
        settings.gateway = textMember(section, "gateway");
        settings.file = fromUtf8(section.value("file", toUtf8(settings.file)));
        splitEnginePath(settings.file);
    } catch (const TarnApiException& e) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               L"ecuOrder: file " + settings.file + L": " + e.message);
    } catch (const std::exception& e) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               fromUtf8(std::string("ecuOrder: ") + e.what()));
    }
    if (!settings.gateway.empty() && std::none_of(ecus.begin(), ecus.end(), [&](const Ecu& e) {
            return e.name == settings.gateway;
        })) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               L"ecuOrder: the gateway " + settings.gateway +
                                   L" is no unit of the vehicle");
    }
    return settings;
}

void EcuOrderState::load(EcuOrderSettings settings) {
    const std::lock_guard lock(mutex_);
    settings_ = std::move(settings);
}

std::wstring EcuOrderState::file() const {
    const std::lock_guard lock(mutex_);
    return settings_.file;
}

std::wstring EcuOrderState::gateway() const {
    const std::lock_guard lock(mutex_);
    return settings_.gateway;
}

EcuOrderEntries EcuOrderState::defaultOrder(const std::vector<Ecu>& ecus) const {
    return orderOf(ecus, gateway());
}

// ---- the order file -----------------------------------------------------------------------

std::string formatEcuOrder(const EcuOrderEntries& entries) {
    std::string text = std::string(header) + "\n# target\tbus\taddress\tflags\n";
    for (const auto& e : entries) {
        std::wstring line = e->target + L'\t' + e->bus + L'\t' + hexAddress(e->address);
        if (e->gateway) {
            line += L"\tgateway";
        }
        if (e->optional) {
            line += L"\toptional";
        }
        text += toUtf8(line) + "\n";
    }
    return text;
}

EcuOrderEntries parseEcuOrder(const std::string& bytes, const std::wstring& where) {
    const bool bom = bytes.rfind("\xEF\xBB\xBF", 0) == 0;
    const auto lines = split(fromUtf8(bom ? bytes.substr(3) : bytes), L"\n");
    const auto fail = [&](std::size_t number, const std::wstring& why) {
        throw TarnApiException(BadEcuOrderFile, L"The ECU order file is not valid",
                               where + L" line " + std::to_wstring(number) + L": " + why);
    };
    if (trim(lines.front()) != fromUtf8(header)) {
        fail(1, L"an ECU order file begins with \"" + fromUtf8(header) + L"\"");
    }
    EcuOrderEntries entries;
    std::unordered_map<std::wstring, std::size_t> lineOf; // each target's line
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const auto number = i + 1;
        if (trim(lines[i]).empty() || trim(lines[i]).front() == L'#') {
            continue;
        }
        // Not trimmed of tabs: a leading tab stands before an empty target.
        auto line = lines[i];
        line.erase(line.find_last_not_of(L" \r") + 1);
        if (std::any_of(line.begin(), line.end(),
                        [](wchar_t c) { return c != L'\t' && (c < 0x20 || c == 0x7F); })) {
            fail(number, L"a control character other than a tab");
        }
        auto columns = split(line, L"\t");
        if (columns.size() < 3) {
            fail(number, L"a line is <target> TAB <bus> TAB 0x<address> [TAB flags]");
        }
        auto entry = std::make_shared<EcuOrderEntry>();
        entry->target = trim(columns[0]);
        entry->bus = trim(columns[1]);
        if (entry->target.empty()) {
            fail(number, L"no target");
        }
        if (!parseAddress(trim(columns[2]), entry->address)) {
            fail(number, L"the address " + trim(columns[2]) + L" is not 0x and 1 to 8 hex digits");
        }
        for (std::size_t c = 3; c < columns.size(); ++c) {
            for (const auto& flag : split(columns[c], L" ")) {
                if (flag == L"gateway") {
                    entry->gateway = true;
                } else if (flag == L"optional") {
                    entry->optional = true;
                } else if (!flag.empty()) {
                    fail(number, L"unknown flag " + flag + L" (gateway, optional)");
                }
            }
        }
        const auto [earlier, added] = lineOf.emplace(entry->target, number);
        if (!added) {
            fail(number, entry->target + L" is named on line " + std::to_wstring(earlier->second) +
                             L" already");
        }
        entries.push_back(std::move(entry));
    }
    return entries;
}

namespace {

EcuOrderEntries readOrderFile(const Resolved& file) {
    requireFile(file);
    const auto bytes = readRange(file.real, 0, maxOrderFileBytes + 1, false);
    if (bytes.size() > maxOrderFileBytes) {
        throw TarnApiException(BadEcuOrderFile, L"The ECU order file is too large",
                               file.enginePath + L": at most 1 MiB");
    }
    return parseEcuOrder(std::string(bytes.begin(), bytes.end()), file.enginePath);
}

bool exists(const Resolved& file) {
    std::error_code e;
    return std::filesystem::exists(file.real, e);
}

} // namespace

EcuOrderEntries vehicleEcuOrder(SimulatedVehicle& vehicle) {
    const auto file = vehicle.files.sandbox().resolve(vehicle.ecuOrder.file());
    if (exists(file)) {
        return readOrderFile(file);
    }
    return vehicle.units->read(
        [gateway = vehicle.ecuOrder.gateway()](const std::vector<Ecu>& ecus) {
            return orderOf(ecus, gateway);
        });
}

// ---- the family ---------------------------------------------------------------------------

EcuOrder::EcuOrder(std::shared_ptr<SimulatedVehicle> vehicle) : vehicle_(std::move(vehicle)) {}

EcuOrderEntries EcuOrder::createDefaultECUOrder() {
    vehicle_->lifecycle.requireInitialized();
    return vehicle_->units->read(
        [gateway = vehicle_->ecuOrder.gateway()](const std::vector<Ecu>& ecus) {
            return orderOf(ecus, gateway);
        });
}

std::wstring EcuOrder::getEcuOrderFilePath() {
    vehicle_->lifecycle.requireInitialized();
    return vehicle_->ecuOrder.file();
}

// An empty path is the vehicle's own order file, which stands for the default order
// until one is written.
EcuOrderEntries EcuOrder::readEcuOrder(const std::wstring& path) {
    vehicle_->lifecycle.requireInitialized();
    if (path.empty()) {
        return vehicleEcuOrder(*vehicle_);
    }
    return readOrderFile(vehicle_->files.sandbox().resolve(path));
}

void EcuOrder::writeEcuOrder(const std::wstring& path, const EcuOrderEntries& entries) {
    vehicle_->lifecycle.requireInitialized();
    checkWritable(entries);
    const auto file =
        vehicle_->files.sandbox().resolve(path.empty() ? vehicle_->ecuOrder.file() : path);
    if (file.isRoot()) {
        throw TarnApiException(PublicDirectoryRoot, L"A public directory is not a file",
                               file.enginePath);
    }
    std::error_code e;
    std::filesystem::create_directories(file.real.parent_path(), e);
    const auto text = formatEcuOrder(entries);
    writeData(file.real, std::vector<uint8_t>(text.begin(), text.end()), ReplaceFile);
}

EcuOrderEntries EcuOrder::filterEcuOrder(const EcuOrderEntries& entries,
                                         const std::vector<std::wstring>& targets) {
    vehicle_->lifecycle.requireInitialized();
    checkEntries(entries);
    const auto units = vehicle_->units->read(unitNames);
    std::vector<std::wstring> missing;
    for (const auto& t : targets) {
        if (std::none_of(entries.begin(), entries.end(),
                         [&](const auto& e) { return sameUnit(e->target, t, units); })) {
            missing.push_back(t);
        }
    }
    if (!missing.empty()) {
        std::wstring names;
        for (const auto& m : missing) {
            names += (names.empty() ? L"" : L", ") + m;
        }
        throw TarnApiException(TargetNotInEcuOrder, L"The ECU order has no entry for the target",
                               names);
    }
    EcuOrderEntries kept;
    for (const auto& e : entries) {
        if (targets.empty() || std::any_of(targets.begin(), targets.end(), [&](const auto& t) {
                return sameUnit(e->target, t, units);
            })) {
            kept.push_back(copy(*e));
        }
    }
    return kept;
}

EcuOrderEntries EcuOrder::addMissingTargetsToEcuOrder(const EcuOrderEntries& entries) {
    vehicle_->lifecycle.requireInitialized();
    checkEntries(entries);
    EcuOrderEntries completed;
    for (const auto& e : entries) {
        completed.push_back(copy(*e));
    }
    const auto gateway = vehicle_->ecuOrder.gateway();
    vehicle_->units->read([&](const std::vector<Ecu>& ecus) {
        const auto units = unitNames(ecus);
        for (const auto& unit : orderOf(ecus, gateway)) {
            if (std::none_of(entries.begin(), entries.end(), [&](const auto& e) {
                    return sameUnit(e->target, unit->target, units);
                })) {
                completed.push_back(unit);
            }
        }
    });
    return completed;
}

} // namespace Varno::Kel_cpp::Reference
