// Every value a report or the vehicle data shows is read from the units inside one
// ControlUnits::talk, with the diagnostics family's own readers (Answers), so it is what
// identification and readDtcs would show at that moment. Files are written after the
// units' lock is let go.
#include "VehicleReports.h"

#include "ControlUnits.h"
#include "Describe.h"
#include "ErrorCodes.h"
#include "ReportDocument.h"
#include "SimulatedVehicle.h"
#include "VehicleClock.h"
#include "VehicleDescription.h"
#include "families/diagnostics/Answers.h"
#include "families/files/FileWork.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

using Names = std::vector<std::wstring>;

// Default report names carry the time to the second; reports made within one second get
// "-2", "-3" ... up to this.
constexpr int maxSameNamed = 100;

bool hasControl(const std::wstring& text) {
    return std::any_of(text.begin(), text.end(), [](wchar_t c) { return c < 0x20 || c == 0x7F; });
}

// Digits and capital letters; I, O and Q never appear in a VIN (ISO 3779). Position 9 is
// not checked as a check digit: only North American VINs carry one.
bool validVin(const std::wstring& vin) {
    return vin.size() == 17 && std::all_of(vin.begin(), vin.end(), [](wchar_t c) {
               return (c >= L'0' && c <= L'9') ||
                      (c >= L'A' && c <= L'Z' && c != L'I' && c != L'O' && c != L'Q');
           });
}

[[noreturn]] void badInformation(const std::wstring& why) {
    throw TarnApiException(BadVehicleInformation, L"The vehicle information is not valid", why);
}

ReportJson errorJson(const std::shared_ptr<KelError>& e) {
    if (!e) {
        return nullptr;
    }
    return {{"code", e->code}, {"message", toUtf8(e->message)}, {"details", toUtf8(e->details)}};
}

ReportJson vehicleJson(const VehicleInformation& v) {
    ReportJson equipment = ReportJson::array();
    for (const auto& code : v.equipment) {
        equipment.push_back(toUtf8(code));
    }
    return {{"vin", toUtf8(v.vin)},
            {"model", toUtf8(v.model)},
            {"modelYear", v.modelYear},
            {"mileage", v.mileage},
            {"licensePlate", toUtf8(v.licensePlate)},
            {"equipment", std::move(equipment)}};
}

ReportJson document(const char* kind, const std::wstring& title, const std::wstring& comment,
                    const UtcTime& time, int64_t vehicleTimeMs, const VehicleInformation& v) {
    return {{"format", "kel report 1"},
            {"kind", kind},
            {"title", toUtf8(title)},
            {"comment", toUtf8(comment)},
            {"created", {{"utc", time.iso}, {"vehicleTimeMs", vehicleTimeMs}}},
            {"vehicle", vehicleJson(v)}};
}

// A data identifier's value as ReadDataByIdentifier gives it; empty when the unit is
// silent or refuses.
std::wstring readValue(Bus& bus, const Ecu& ecu, uint16_t id) {
    const auto read = Answers::readData(bus, ecu.name, {hexId(id)}).front();
    if (read->status != 0 || read->parameters.empty() || read->parameters[0]->error) {
        return {};
    }
    return read->parameters[0]->text1;
}

void markSilent(ReportJson& unit, const std::shared_ptr<KelError>& error) {
    unit["status"] = "silent";
    unit["error"] = errorJson(error);
    unit.erase("identification");
    unit.erase("dtcs");
}

// One unit of a vehicle report, read now.
ReportJson readUnit(Bus& bus, const Ecu& ecu, bool identification, bool dtcs) {
    ReportJson unit = {{"target", toUtf8(ecu.name)},
                       {"description", toUtf8(ecu.description)},
                       {"variant", ""},
                       {"bus", toUtf8(ecu.bus)},
                       {"address", ecu.address},
                       {"status", "answered"}};
    const auto variant = Answers::identify(bus, {ecu.name}).front();
    if (variant->status == 1) {
        markSilent(unit, variant->error);
        return unit;
    }
    unit["variant"] = toUtf8(variant->variant);
    if (identification) {
        const auto read = Answers::identification(bus, {ecu.name}).front();
        if (read->status == 1) {
            markSilent(unit, read->error);
            return unit;
        }
        auto& values = unit["identification"] = ReportJson::array();
        for (const auto& p : read->parameters) {
            const auto* d = ecu.dataIdentifier(p->itemText2);
            ReportJson value = {{"identifier", toUtf8(p->itemText2)},
                                {"name", toUtf8(d != nullptr ? d->name : p->itemText1)}};
            if (p->error) {
                value["error"] = errorJson(p->error);
            } else {
                value["value"] = toUtf8(p->text1);
                value["unit"] = toUtf8(p->text2);
            }
            values.push_back(std::move(value));
        }
    }
    if (dtcs) {
        const auto read = Answers::readDtcs(bus, {ecu.name}, nullptr).front();
        if (read->status == 1) {
            markSilent(unit, read->error);
            return unit;
        }
        if (read->error) {
            unit["dtcError"] = errorJson(read->error);
        }
        auto& list = unit["dtcs"] = ReportJson::array();
        for (const auto& d : read->dtcs) {
            const auto status = static_cast<uint32_t>(d->value1);
            list.push_back({{"code", toUtf8(d->text1)},
                            {"number", d->code},
                            {"text", toUtf8(d->text2)},
                            {"status", status},
                            {"statusText", dtcStatusWords(status)}});
        }
    }
    return unit;
}

const char* updateStatusText(int32_t status) {
    static const char* const words[] = {"updated", "running",    "failed",
                                        "not run", "up to date", "absent"};
    return status >= 0 && status <= 5 ? words[status] : "unknown";
}

ReportJson resultJson(const VehicleUpdateResult& r) {
    return {{"position", r.position},
            {"target", toUtf8(r.target)},
            {"status", r.status},
            {"statusText", updateStatusText(r.status)},
            {"package", toUtf8(r.package)},
            {"versionBefore", toUtf8(r.versionBefore)},
            {"versionAfter", toUtf8(r.versionAfter)},
            {"progress", r.progress},
            {"durationMs", r.duration},
            {"error", errorJson(r.error)}};
}

std::wstring defaultName(const wchar_t* prefix, const VehicleInformation& v, const UtcTime& t) {
    return prefix + (v.vin.empty() ? L"" : v.vin + L"-") + fromUtf8(t.compact);
}

bool exists(const Resolved& file) {
    std::error_code e;
    return std::filesystem::exists(std::filesystem::symlink_status(file.real, e));
}

void writeText(const Resolved& file, const std::string& text) {
    writeData(file.real, std::vector<uint8_t>(text.begin(), text.end()), CreateNewFile);
}

} // namespace

// ---- the description and the state ----------------------------------------------------------

void checkVehicleInformation(const VehicleInformation& v) {
    if (!validVin(v.vin)) {
        throw TarnApiException(InvalidVin, L"The VIN is not valid",
                               L"VIN \"" + v.vin +
                                   L"\": 17 digits and capital letters other than I, O and Q");
    }
    if (hasControl(v.model) || hasControl(v.licensePlate)) {
        badInformation(L"the model or the licence plate holds a control character");
    }
    if (v.modelYear != 0 && (v.modelYear < 1886 || v.modelYear > 2100)) {
        badInformation(L"model year " + std::to_wstring(v.modelYear) +
                       L": 0 (not known) or 1886 to 2100");
    }
    for (const auto& code : v.equipment) {
        if (code.empty() || hasControl(code)) {
            badInformation(L"an equipment code is empty or holds a control character");
        }
    }
}

VehicleReportsSettings VehicleReportsSettings::parse(const nlohmann::json& section) {
    VehicleReportsSettings settings;
    auto& v = settings.vehicle;
    try {
        v.vin = textMember(section, "vin");
        v.model = textMember(section, "model");
        v.modelYear = static_cast<uint32_t>(wholeNumber(section, "modelYear", 0, 0, 2100));
        v.mileage = static_cast<uint32_t>(wholeNumber(section, "mileage", 0, 0, 0xFFFFFFFFULL));
        v.licensePlate = textMember(section, "licensePlate");
        for (const auto& code : arrayMember(section, "equipment")) {
            v.equipment.push_back(fromUtf8(code.get<std::string>()));
        }
        // No VIN in the description: none is selected until a caller selects one.
        auto checked = v;
        if (checked.vin.empty()) {
            checked.vin = L"00000000000000000";
        }
        checkVehicleInformation(checked);
    } catch (const TarnApiException& e) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               L"vehicle: " + e.message + L": " + e.details);
    } catch (const std::exception& e) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               fromUtf8(std::string("vehicle: ") + e.what()));
    }
    return settings;
}

void VehicleReportsState::load(VehicleReportsSettings settings) {
    const std::lock_guard lock(mutex_);
    selected_ = std::move(settings.vehicle);
}

VehicleInformation VehicleReportsState::selected() const {
    const std::lock_guard lock(mutex_);
    return selected_;
}

void VehicleReportsState::select(VehicleInformation information) {
    const std::lock_guard lock(mutex_);
    selected_ = std::move(information);
}

// ---- the family ---------------------------------------------------------------------------

VehicleReports::VehicleReports(std::shared_ptr<SimulatedVehicle> vehicle)
    : vehicle_(std::move(vehicle)) {}

void VehicleReports::connected() const {
    vehicle_->lifecycle.requireInitialized();
    vehicle_->interfaces->requireConnected();
}

std::shared_ptr<VehicleInformation> VehicleReports::getSelectedVehicleInformation() {
    vehicle_->lifecycle.requireInitialized();
    return std::make_shared<VehicleInformation>(vehicle_->reports.selected());
}

void VehicleReports::setSelectedVehicleInformation(
    std::shared_ptr<VehicleInformation> information) {
    vehicle_->lifecycle.requireInitialized();
    if (!information) {
        badInformation(L"no vehicle information given");
    }
    checkVehicleInformation(*information);
    vehicle_->reports.select(*information);
}

std::vector<std::shared_ptr<VehicleData>> VehicleReports::getVehicleData() {
    connected();
    const auto model = vehicle_->reports.selected().model;
    return vehicle_->units->talk([&](Bus& bus) {
        std::vector<std::shared_ptr<VehicleData>> out;
        std::wstring vin;
        for (const auto& ecu : bus.ecus) {
            auto d = std::make_shared<VehicleData>();
            d->model = model;
            d->target = ecu.name;
            d->bus = ecu.bus;
            d->address = static_cast<uint32_t>(ecu.address);
            out.push_back(d);
            const auto variant = Answers::identify(bus, {ecu.name}).front();
            if (variant->status == 1) {
                d->status = 1;
                continue;
            }
            d->variant = variant->variant;
            d->softwareVersion =
                readValue(bus, ecu, ecu.programming ? ecu.programming->versionId : 0xF189);
            if (vin.empty()) {
                vin = readValue(bus, ecu, 0xF190);
            }
            d->dtcCount = static_cast<uint32_t>(
                Answers::readDtcs(bus, {ecu.name}, nullptr).front()->dtcs.size());
        }
        for (auto& d : out) {
            d->vin = vin;
        }
        return out;
    });
}

std::wstring VehicleReports::createVehicleReport(std::shared_ptr<VehicleReportConfig> config) {
    connected();
    VehicleReportConfig c;
    if (config) {
        c = *config;
    } else {
        c.identification = c.dtcs = true;
    }
    if (!c.name.empty()) {
        checkName(c.name);
        checkName(c.name + L".html");
    }
    const auto time = UtcTime::now();
    const auto vehicleTime = VehicleClock::nowMs();
    const auto selected = vehicle_->reports.selected();
    auto units = vehicle_->units->talk([&](Bus& bus) {
        Names targets;
        for (const auto& t : c.targets) {
            if (std::find(targets.begin(), targets.end(), t) == targets.end()) {
                targets.push_back(t);
            }
        }
        if (targets.empty()) {
            for (const auto& ecu : bus.ecus) {
                targets.push_back(ecu.name);
            }
        }
        for (const auto& t : targets) {
            if (std::none_of(bus.ecus.begin(), bus.ecus.end(),
                             [&](const Ecu& e) { return e.name == t; })) {
                throw TarnApiException(UnknownTarget, L"The vehicle has no such control unit",
                                       L"target " + t);
            }
        }
        ReportJson out = ReportJson::array();
        for (const auto& t : targets) {
            const auto& ecu = *std::find_if(bus.ecus.begin(), bus.ecus.end(),
                                            [&](const Ecu& e) { return e.name == t; });
            out.push_back(readUnit(bus, ecu, c.identification, c.dtcs));
        }
        return out;
    });
    auto report = document("vehicle", c.title.empty() ? L"Vehicle report" : c.title, c.comment,
                           time, vehicleTime, selected);
    report["units"] = std::move(units);
    return store(report, c.name, defaultName(L"vehicle-", selected, time));
}

std::wstring VehicleReports::createVehicleUpdateReport(
    const std::vector<std::shared_ptr<VehicleUpdateResult>>& results) {
    vehicle_->lifecycle.requireInitialized();
    ReportJson list = ReportJson::array();
    for (std::size_t i = 0; i < results.size(); ++i) {
        if (!results[i]) {
            throw TarnApiException(BadReportArgument, L"A vehicle update result is missing",
                                   L"result " + std::to_wstring(i + 1));
        }
        list.push_back(resultJson(*results[i]));
    }
    const auto time = UtcTime::now();
    const auto selected = vehicle_->reports.selected();
    auto report = document("vehicleUpdate", L"Vehicle update report", L"", time,
                           VehicleClock::nowMs(), selected);
    report["results"] = std::move(list);
    return store(report, L"", defaultName(L"vehicle-update-", selected, time));
}

std::wstring VehicleReports::store(const ReportJson& document, const std::wstring& name,
                                   const std::wstring& fallback) {
    const auto sandbox = vehicle_->files.sandbox();
    const auto directory = sandbox.resolve(L"reports");
    const auto json = renderJson(document);
    const auto html = renderHtml(document);
    const auto lock = vehicle_->reports.writing();
    Resolved htmlFile;
    Resolved jsonFile;
    for (int n = 1;; ++n) {
        const auto base = !name.empty() ? name
                          : n == 1      ? fallback
                                        : fallback + L"-" + std::to_wstring(n);
        htmlFile = sandbox.child(directory, base + L".html");
        jsonFile = sandbox.child(directory, base + L".json");
        if (!exists(htmlFile) && !exists(jsonFile)) {
            break;
        }
        if (!name.empty() || n == maxSameNamed) {
            throw TarnApiException(ReportExists, L"A report of this name exists",
                                   htmlFile.enginePath);
        }
    }
    writeText(jsonFile, json);
    try {
        writeText(htmlFile, html);
    } catch (...) {
        std::error_code e;
        std::filesystem::remove(jsonFile.real, e);
        throw;
    }
    return htmlFile.enginePath;
}

} // namespace Varno::Kel_cpp::Reference
