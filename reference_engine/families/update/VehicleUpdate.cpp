// Every operation resolves the broker and the store through the files family's sandbox
// first, so nothing a caller or a broker names reaches outside the public directories.
// A vehicle update is planned as steps, per unit: the start (package, version, session,
// security access, erase), ten slices of the transfer, the end (check, reset); then one
// step with every unit's result. The synchronous forms run them all; the asynchronous
// ones a slice per report, and a cancel finishes the unit being written before it ends.
#include "VehicleUpdate.h"

#include "ControlUnits.h"
#include "Describe.h"
#include "ErrorCodes.h"
#include "SafeFiles.h"
#include "SimulatedVehicle.h"
#include "VehicleClock.h"
#include "WallClock.h"
#include "families/diagnostics/Answers.h"
#include "families/files/FileWork.h"
#include "families/flash/Flash.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

using Results = std::vector<std::shared_ptr<VehicleUpdateResult>>;

template <class Units>
auto* findUnit(Units& ecus, const std::wstring& target) {
    const auto found =
        std::find_if(ecus.begin(), ecus.end(), [&](const Ecu& e) { return e.name == target; });
    return found == ecus.end() ? nullptr : &*found;
}

// The version the unit reports by ReadDataByIdentifier of its version identifier (F189);
// nothing when it stays silent, refuses or cannot be programmed.
std::optional<std::wstring> readVersion(Bus& bus, Ecu& ecu) {
    if (!ecu.programming) {
        return std::nullopt;
    }
    const auto id = ecu.programming->versionId;
    const auto response =
        bus.exchange(ecu, {0x22, static_cast<uint8_t>(id >> 8), static_cast<uint8_t>(id)});
    if (response.size() < 3 || response[0] != 0x62) {
        return std::nullopt;
    }
    return ecu.dataIdentifier(id)->codec.decode(Bytes(response.begin() + 3, response.end()));
}

// What each named unit that can be flashed reports now (nothing for a silent one).
std::map<std::wstring, std::optional<std::wstring>>
unitVersions(ControlUnits& units, const std::vector<std::wstring>& names) {
    return units.talk([&](Bus& bus) {
        std::map<std::wstring, std::optional<std::wstring>> out;
        for (const auto& name : names) {
            if (out.count(name) != 0) {
                continue;
            }
            Ecu* ecu = findUnit(bus.ecus, name);
            out[name] = ecu == nullptr ? std::nullopt : readVersion(bus, *ecu);
        }
        return out;
    });
}

// The newest of `packages` (a downloaded one before an offered one of the same version).
const Package* newest(const std::vector<const Package*>& packages) {
    const Package* best = nullptr;
    for (const auto* p : packages) {
        if (best == nullptr) {
            best = p;
            continue;
        }
        const int c = compareVersions(p->version, best->version);
        if (c > 0 || (c == 0 && p->downloaded && !best->downloaded)) {
            best = p;
        }
    }
    return best;
}

std::wstring utcNow() { return fromUtf8(UtcTime::now().iso); }

std::wstring lastName(const std::wstring& enginePath) {
    return enginePath.substr(enginePath.rfind(L'/') + 1);
}

std::wstring stem(const std::wstring& name) {
    const auto dot = name.rfind(L'.');
    return dot == std::wstring::npos || dot == 0 ? name : name.substr(0, dot);
}

// The broker's log of uploads, in its root folder.
const std::wstring uploadLogName = L"uploads.jsonl";

// Windows finds a file whatever the case of its name.
bool sameNameIgnoringCase(const std::wstring& a, const std::wstring& b) {
    const auto lower = [](wchar_t c) { return c >= L'A' && c <= L'Z' ? c - L'A' + L'a' : c; };
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(),
                      [&](wchar_t x, wchar_t y) { return lower(x) == lower(y); });
}

// The copies of one upload, undone unless kept: a new file goes again, a replaced one
// comes back from the copy kept aside beside it.
class UploadCopies {
public:
    UploadCopies() = default;
    UploadCopies(const UploadCopies&) = delete;
    UploadCopies& operator=(const UploadCopies&) = delete;
    ~UploadCopies() {
        for (auto it = placed_.rbegin(); it != placed_.rend(); ++it) {
            std::error_code ignored;
            if (it->aside.empty()) {
                std::filesystem::remove(it->target, ignored);
            } else if (renameOver(it->aside, it->target)) {
                std::filesystem::remove(it->aside, ignored);
            }
        }
    }

    void put(const std::filesystem::path& from, const std::filesystem::path& to, bool overwrite) {
        Placed placed{to, {}};
        std::error_code e;
        if (overwrite && std::filesystem::is_regular_file(to, e)) {
            placed.aside = partFileBeside(to);
            std::filesystem::copy_file(to, placed.aside, e);
            if (e) {
                std::filesystem::remove(placed.aside, e);
                throw TarnApiException(FileIoFailed, L"The report it replaces cannot be kept aside",
                                       wideFromPath(to.filename()));
            }
        }
        try {
            copyWhole(from, to, overwrite);
        } catch (...) {
            if (!placed.aside.empty()) {
                std::filesystem::remove(placed.aside, e);
            }
            throw;
        }
        placed_.push_back(std::move(placed));
    }

    void keep() {
        for (const auto& placed : placed_) {
            std::error_code ignored;
            if (!placed.aside.empty()) {
                std::filesystem::remove(placed.aside, ignored);
            }
        }
        placed_.clear();
    }

private:
    struct Placed {
        std::filesystem::path target;
        std::filesystem::path aside; // the replaced file's copy; empty: the file is new
    };
    std::vector<Placed> placed_;
};

} // namespace

// ---- settings and state -----------------------------------------------------------------

VehicleUpdateSettings VehicleUpdateSettings::parse(const nlohmann::json& section,
                                                   const nlohmann::json& root) {
    VehicleUpdateSettings settings;
    // "name" and "version" stand at the top of the description, the rest in the section.
    const char* where = "";
    try {
        settings.vehicleName = textMember(root, "name");
        settings.vehicleVersion = textMember(root, "version", settings.vehicleVersion);
        where = "vehicleUpdate: ";
        settings.bytesPerSecond =
            static_cast<uint32_t>(wholeNumber(section, "bytesPerSecond", 4096, 1, 100000000));
    } catch (const std::exception& e) {
        throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                               fromUtf8(where + std::string(e.what())));
    }
    return settings;
}

void VehicleUpdateState::load(VehicleUpdateSettings settings) {
    const std::lock_guard lock(mutex_);
    settings_ = std::move(settings);
}

VehicleUpdateSettings VehicleUpdateState::settings() const {
    const std::lock_guard lock(mutex_);
    return settings_;
}

std::wstring VehicleUpdateState::broker() const {
    const std::lock_guard lock(mutex_);
    return broker_;
}

void VehicleUpdateState::setBroker(std::wstring enginePath) {
    const std::lock_guard lock(mutex_);
    broker_ = std::move(enginePath);
}

// ---- what an operation works with ---------------------------------------------------------

struct VehicleUpdate::Context {
    Sandbox box;
    Broker broker;
    UpdateStore store;
    std::shared_ptr<std::mutex> storeMutex;
    Skipped skipped;

    template <class Work>
    decltype(auto) withStore(Work&& work) const {
        const std::lock_guard lock(*storeMutex);
        return std::forward<Work>(work)();
    }
    std::vector<Package> offered() const { return broker.packages(box, skipped); }
    std::vector<Package> downloaded() const { return store.packages(box, skipped); }
    // The stored copy of `p`, downloaded from the broker first when it is only there.
    // Under the store's lock.
    Package local(const Package& p) const {
        if (p.downloaded) {
            verifyPayload(p);
            return p;
        }
        return store.download(p);
    }
    // The package of that name and version, in the store or on the broker.
    std::optional<Package> find(const std::wstring& name, const std::wstring& version) const {
        for (auto& p : downloaded()) {
            if (p.name == name && p.version == version) {
                return p;
            }
        }
        for (auto& p : offered()) {
            if (p.name == name && p.version == version) {
                return p;
            }
        }
        return std::nullopt;
    }
};

VehicleUpdate::Context VehicleUpdate::ready() const {
    vehicle_->lifecycle.requireInitialized();
    Sandbox box = vehicle_->files.sandbox();
    Broker broker = Broker::open(box, vehicle_->vehicleUpdate.broker());
    UpdateStore store(FilesState::updateStore());
    // Weak: an asynchronous update's run keeps this, and must not keep the vehicle whose
    // calls it belongs to.
    std::weak_ptr<SimulatedVehicle> weak = vehicle_;
    Skipped skipped = [weak](const std::wstring& folder, const TarnApiException& why) {
        if (const auto vehicle = weak.lock()) {
            post(*vehicle, EventKind::UpdatePackageSkipped, why.code,
                 L"An update package was skipped: " + why.message, folder + L": " + why.details,
                 errorOf(why));
        }
    };
    return Context{std::move(box), std::move(broker), std::move(store),
                   vehicle_->vehicleUpdate.storeMutex(), std::move(skipped)};
}

// ---- a vehicle update ------------------------------------------------------------------------

class VehicleUpdate::Run : public std::enable_shared_from_this<VehicleUpdate::Run> {
public:
    using Step = std::function<Results()>;

    struct Unit {
        std::shared_ptr<VehicleUpdateResult> result;
        bool optional = false;
        std::shared_ptr<UpdatePackageInfo> package; // as the config names it
        std::shared_ptr<FlashSessionResult> flash;
        std::unique_ptr<FlashDownload> download;
        std::optional<Package> local;
        std::optional<int64_t> startMs;
        uint64_t slicesDone = 0;
        bool sessionEntered = false; // so the unit is reset when its update ends
        bool started = false;
        bool over = false;
    };

    Run(Context context, std::shared_ptr<ControlUnits> units, VehicleUpdateSettings settings,
        std::vector<Unit> visit, const VehicleUpdateConfig& config, std::wstring operation)
        : context_(std::move(context)), units_(std::move(units)), settings_(std::move(settings)),
          visit_(std::move(visit)), stopOnError_(config.stopOnError), force_(config.force),
          blockLength_(config.blockLength), operation_(std::move(operation)) {}

    std::vector<Step> steps() {
        std::vector<Step> out;
        auto self = shared_from_this();
        for (std::size_t i = 0; i < visit_.size(); ++i) {
            out.emplace_back([self, i] { return self->start(self->visit_[i]); });
            for (uint64_t k = 1; k <= FlashDownload::transferSlices; ++k) {
                out.emplace_back([self, i, k] { return self->transfer(self->visit_[i], k); });
            }
            out.emplace_back([self, i] { return self->finish(self->visit_[i]); });
        }
        out.emplace_back([self] { return self->end(); });
        return out;
    }

    // The synchronous form: every step at once; the last gives every unit's result.
    Results runAll() {
        Results last;
        for (const auto& step : steps()) {
            last = step();
        }
        return last;
    }

    // A cancel: the unit being written is finished, the units after it are not touched.
    Results windUp() {
        for (auto& u : visit_) {
            if (u.started && !u.over) {
                for (uint64_t k = u.slicesDone + 1; k <= FlashDownload::transferSlices; ++k) {
                    transfer(u, k);
                }
                finish(u);
            } else if (!u.started) {
                u.started = true;
                u.over = true;
                u.result->status = 3;
                u.result->error = errorRecord(CallCancelled, L"The update was cancelled",
                                              L"cancelled before " + u.result->target);
            }
        }
        return end();
    }

private:
    uint32_t overall() const {
        if (visit_.empty()) {
            return 100;
        }
        uint64_t sum = 0;
        for (const auto& u : visit_) {
            sum += u.over ? 100 : u.result->progress;
        }
        return static_cast<uint32_t>(sum / visit_.size());
    }

    Results snapshot(Unit& u) {
        if (u.startMs) {
            u.result->duration = static_cast<uint32_t>(VehicleClock::nowMs() - *u.startMs);
        }
        u.result->overallProgress = overall();
        return {std::make_shared<VehicleUpdateResult>(*u.result)};
    }

    Results over(Unit& u, int32_t status, std::shared_ptr<KelError> error = nullptr) {
        u.result->status = status;
        u.result->error = std::move(error);
        u.over = true;
        if (status == 2 && stopOnError_) {
            stopped_ = true;
        }
        if (u.sessionEntered) {
            FlashDownload::reset(*units_, u.result->target);
        }
        if (status == 2) {
            u.result->progress = u.flash ? u.flash->progress : 0;
        }
        return snapshot(u);
    }

    // The unit in its programming session with the level unlocked, as the tester does it.
    std::shared_ptr<KelError> enterProgramming(Bus& bus, Ecu& ecu) {
        const Programming& p = *ecu.programming;
        const auto refused = [&](const Bytes& response, const wchar_t* what) {
            if (response.empty()) {
                return Answers::silent(ecu);
            }
            auto e = Answers::negative(response, UnitRefusedProgramming);
            e->message = std::wstring(L"The control unit refused ") + what;
            e->details = ecu.name + L" answered " + hexText(response);
            return e;
        };
        const auto session = bus.exchange(ecu, {0x10, p.session});
        if (session.empty() || session[0] != 0x50) {
            return refused(session, L"the programming session");
        }
        const auto seed = bus.exchange(ecu, {0x27, static_cast<uint8_t>(2 * p.level - 1)});
        if (seed.size() < 3 || seed[0] != 0x67) {
            return refused(seed, L"security access");
        }
        const Bytes seedBytes(seed.begin() + 2, seed.end());
        if (std::all_of(seedBytes.begin(), seedBytes.end(), [](uint8_t b) { return b == 0; })) {
            return nullptr; // unlocked already
        }
        Bytes key = {0x27, static_cast<uint8_t>(2 * p.level)};
        const auto computed = securityKey(seedBytes, ecu.securityLevel(p.level)->keyMask);
        key.insert(key.end(), computed.begin(), computed.end());
        const auto accepted = bus.exchange(ecu, key);
        if (accepted.empty() || accepted[0] != 0x67) {
            return refused(accepted, L"the key");
        }
        return nullptr;
    }

    Results start(Unit& u) {
        auto& r = *u.result;
        u.started = true;
        if (stopped_) {
            return over(u, 3,
                        errorRecord(UnitNotUpdated, L"The unit was not updated",
                                    L"an earlier unit of the update failed"));
        }
        if (!u.package) {
            return over(u, 4);
        }
        const bool present = units_->read(
            [&](const std::vector<Ecu>& ecus) { return findUnit(ecus, r.target) != nullptr; });
        if (!present) {
            if (u.optional) {
                return over(u, 5);
            }
            return over(u, 2,
                        errorRecord(UnitNotInVehicle, L"The vehicle has no such control unit",
                                    r.target + L" is in the ECU order and not optional"));
        }
        r.package = u.package->name;
        u.startMs = VehicleClock::nowMs();
        Bytes payload;
        try {
            u.local = context_.withStore([&] {
                auto found = context_.find(u.package->name, u.package->version);
                if (!found) {
                    throw TarnApiException(UnknownUpdatePackage,
                                           L"The package is neither downloaded nor on the broker",
                                           u.package->name + L" " + u.package->version);
                }
                return context_.local(*found);
            });
            if (u.local->kind != PackageKind::Ecu || !u.local->isFor(r.target)) {
                throw TarnApiException(UnitNotProgrammable, L"The package is not for this unit",
                                       u.local->name + L" " + u.local->version + L" and " +
                                           r.target);
            }
            payload = readPayload(*u.local);
        } catch (const TarnApiException& e) {
            return over(u, 2, errorOf(e));
        }
        bool upToDate = false;
        const auto refused = units_->talk([&](Bus& bus) -> std::shared_ptr<KelError> {
            Ecu& ecu = *findUnit(bus.ecus, r.target);
            if (!ecu.programming) {
                return errorRecord(UnitNotProgrammable, L"The control unit cannot be programmed",
                                   r.target);
            }
            const auto version = readVersion(bus, ecu);
            if (!version) {
                return ecu.responds
                           ? errorRecord(UnitNotProgrammable,
                                         L"The control unit did not report its version", r.target)
                           : Answers::silent(ecu);
            }
            r.versionBefore = *version;
            if (*version == u.local->version && !force_) {
                upToDate = true;
                return nullptr;
            }
            u.sessionEntered = true;
            return enterProgramming(bus, ecu);
        });
        if (refused) {
            return over(u, 2, refused);
        }
        if (upToDate) {
            r.versionAfter = r.versionBefore;
            return over(u, 4);
        }
        u.flash = std::make_shared<FlashSessionResult>();
        u.flash->name = u.local->name;
        u.flash->target = r.target;
        const uint64_t durationMs = payload.size() * 1000 / settings_.bytesPerSecond;
        u.download = std::make_unique<FlashDownload>(
            units_, u.flash, payloadImage(std::move(payload)),
            static_cast<uint32_t>(std::min<uint64_t>(durationMs, 0xFFFFFFFFULL)), std::nullopt,
            blockLength_);
        r.status = 1;
        if (!u.download->start()) {
            return over(u, 2, u.flash->error);
        }
        return snapshot(u);
    }

    Results transfer(Unit& u, uint64_t slice) {
        if (u.over || !u.download) {
            return {};
        }
        u.slicesDone = slice;
        if (!u.download->transfer(slice)) {
            return over(u, 2, u.flash->error);
        }
        u.result->progress = u.flash->progress;
        return snapshot(u);
    }

    Results finish(Unit& u) {
        if (u.over || !u.download) {
            return {};
        }
        const bool done = u.download->finish();
        u.result->versionAfter = u.flash->versionAfter;
        if (!done) {
            return over(u, 2, u.flash->error);
        }
        u.result->progress = 100;
        try {
            context_.withStore([&] { context_.store.markInstalled(*u.local); });
        } catch (const TarnApiException&) {
            // The unit runs the software; only the store's note of it is missing.
        }
        return over(u, 0);
    }

    // Succeeded fully when every unit is done or needed nothing; a cancel that came after
    // the last unit changed nothing.
    Results end() {
        bool succeeded = true;
        Results all;
        for (auto& u : visit_) {
            succeeded = succeeded && u.result->status != 2 && u.result->status != 3;
            u.result->overallProgress = overall();
            all.push_back(std::make_shared<VehicleUpdateResult>(*u.result));
        }
        try {
            context_.withStore([&] { context_.store.recordOutcome(operation_, succeeded); });
        } catch (const TarnApiException&) {
            // The results say what happened; the next checkUpdateSuccess reports the store.
        }
        return all;
    }

    Context context_;
    std::shared_ptr<ControlUnits> units_;
    VehicleUpdateSettings settings_;
    std::vector<Unit> visit_;
    bool stopOnError_ = true;
    bool force_ = false;
    uint32_t blockLength_ = 0;
    std::wstring operation_;
    bool stopped_ = false;
};

// ---- the family ---------------------------------------------------------------------------

VehicleUpdate::VehicleUpdate(std::shared_ptr<SimulatedVehicle> vehicle)
    : vehicle_(std::move(vehicle)) {}

void VehicleUpdate::applyUpdatePackage(const std::wstring& package) {
    const Context c = ready();
    c.withStore([&] {
        auto stored = c.downloaded();
        auto offered = c.offered();
        std::vector<const Package*> named;
        for (const auto* list : {&stored, &offered}) {
            for (const auto& p : *list) {
                if (p.name == package) {
                    named.push_back(&p);
                }
            }
        }
        const Package* chosen = newest(named);
        if (chosen == nullptr) {
            throw TarnApiException(UnknownUpdatePackage,
                                   L"No package of that name is downloaded or on the broker",
                                   package);
        }
        if (chosen->kind == PackageKind::Ecu) {
            throw TarnApiException(PackageForVehicleUpdate,
                                   L"Control-unit software is installed by a vehicle update",
                                   package + L" is for " + chosen->targets.front() +
                                       L": use createVehicleUpdateConfig and updateVehicle");
        }
        try {
            c.store.installComponent(c.local(*chosen));
        } catch (const TarnApiException&) {
            c.store.recordOutcome(L"applyUpdatePackage", false);
            throw;
        }
        c.store.recordOutcome(L"applyUpdatePackage", true);
    });
}

std::vector<std::shared_ptr<UpdatePackageInfo>> VehicleUpdate::getUpdatePackages() {
    const Context c = ready();
    std::vector<std::shared_ptr<UpdatePackageInfo>> out;
    for (const auto& p : c.withStore([&] { return c.downloaded(); })) {
        out.push_back(p.info());
    }
    return out;
}

std::vector<std::shared_ptr<UpdatePackageInfo>> VehicleUpdate::getPackagesFromBroker() {
    const Context c = ready();
    std::vector<std::shared_ptr<UpdatePackageInfo>> out;
    for (const auto& p : c.offered()) {
        out.push_back(p.info());
    }
    return out;
}

bool VehicleUpdate::checkUpdatesOnBroker() {
    const Context c = ready();
    const auto offered = c.offered();
    const auto components = c.withStore([&] { return c.store.components(); });
    bool needUnits = false;
    for (const auto& p : offered) {
        if (p.kind == PackageKind::Engine) {
            const auto installed =
                std::find_if(components.begin(), components.end(),
                             [&](const auto& k) { return k.name == p.targets[0]; });
            if (installed == components.end() ||
                compareVersions(p.version, installed->version) > 0) {
                return true;
            }
        } else {
            needUnits = true;
        }
    }
    if (!needUnits) {
        return false;
    }
    vehicle_->interfaces->requireConnected();
    std::vector<std::wstring> names;
    for (const auto& p : offered) {
        if (p.kind == PackageKind::Ecu) {
            names.insert(names.end(), p.targets.begin(), p.targets.end());
        }
    }
    const auto running = unitVersions(*vehicle_->units, names);
    return std::any_of(offered.begin(), offered.end(), [&](const Package& p) {
        return p.kind == PackageKind::Ecu &&
               std::any_of(p.targets.begin(), p.targets.end(), [&](const std::wstring& t) {
                   const auto v = running.find(t);
                   return v != running.end() && v->second &&
                          compareVersions(p.version, *v->second) > 0;
               });
    });
}

bool VehicleUpdate::autoUpdate() {
    const Context c = ready();
    return c.withStore([&] {
        const auto components = c.store.components();
        std::map<std::wstring, std::vector<const Package*>> byComponent;
        const auto offered = c.offered();
        for (const auto& p : offered) {
            if (p.kind == PackageKind::Engine) {
                byComponent[p.targets[0]].push_back(&p);
            }
        }
        bool changed = false;
        bool attempted = false;
        bool failed = false;
        for (const auto& [name, packages] : byComponent) {
            const Package* best = newest(packages);
            const std::wstring& component = name; // a lambda cannot capture a binding
            const auto installed = std::find_if(components.begin(), components.end(),
                                                [&](const auto& k) { return k.name == component; });
            if (installed != components.end() &&
                compareVersions(best->version, installed->version) <= 0) {
                continue;
            }
            attempted = true;
            try {
                c.store.installComponent(c.local(*best));
                changed = true;
            } catch (const TarnApiException& e) {
                // One bad package does not keep the others back; the event says which.
                failed = true;
                c.skipped(best->location, e);
            }
        }
        if (attempted) {
            c.store.recordOutcome(L"autoUpdate", !failed);
        }
        return changed;
    });
}

std::vector<std::shared_ptr<NamedItem>> VehicleUpdate::getCurrentVersions() {
    const Context c = ready();
    const auto settings = vehicle_->vehicleUpdate.settings();
    const auto item = [](std::wstring name, std::wstring version, std::wstring what,
                         std::wstring package) {
        auto i = std::make_shared<NamedItem>();
        i->itemText1 = std::move(name);
        i->itemText2 = std::move(version);
        i->itemText3 = std::move(what);
        i->itemText4 = std::move(package);
        return i;
    };
    std::vector<std::shared_ptr<NamedItem>> out;
    out.push_back(item(engineComponent, engineVersion, L"the engine", L""));
    out.push_back(item(vehicleComponent, settings.vehicleVersion, settings.vehicleName, L""));
    for (const auto& k : c.withStore([&] { return c.store.components(); })) {
        out.push_back(item(k.name, k.version, L"an engine component", k.package));
    }
    return out;
}

bool VehicleUpdate::checkUpdateSuccess() {
    const Context c = ready();
    // No update yet: nothing failed, nothing is left half done.
    return c.withStore([&] { return c.store.lastOutcome(); }).value_or(true);
}

void VehicleUpdate::cleanUpdateTmp() {
    const Context c = ready();
    c.withStore([&] { c.store.cleanTmp(); });
}

void VehicleUpdate::clearUpdatePackages() {
    const Context c = ready();
    c.withStore([&] { c.store.clearPackages(); });
}

void VehicleUpdate::setBrokerUrl(const std::wstring& url) {
    vehicle_->lifecycle.requireInitialized();
    const auto path = Broker::enginePath(url);
    Broker::open(vehicle_->files.sandbox(), path);
    vehicle_->vehicleUpdate.setBroker(path);
}

std::shared_ptr<VehicleUpdateConfig>
VehicleUpdate::createVehicleUpdateConfig(const std::vector<std::wstring>& targets) {
    vehicle_->lifecycle.requireInitialized();
    vehicle_->interfaces->requireConnected();
    auto names = targets;
    vehicle_->units->read([&](const std::vector<Ecu>& ecus) {
        if (names.empty()) {
            for (const auto& e : ecus) {
                names.push_back(e.name);
            }
        }
        for (const auto& n : names) {
            if (findUnit(ecus, n) == nullptr) {
                throw TarnApiException(UnknownTarget, L"The vehicle has no such control unit",
                                       L"target " + n);
            }
        }
    });
    const Context c = ready();
    auto candidates = c.withStore([&] { return c.downloaded(); });
    for (auto& p : c.offered()) {
        candidates.push_back(std::move(p));
    }
    const auto running = unitVersions(*vehicle_->units, names);
    auto config = std::make_shared<VehicleUpdateConfig>();
    config->stopOnError = true;
    for (const auto& name : names) {
        if (std::find(config->targets.begin(), config->targets.end(), name) !=
            config->targets.end()) {
            continue;
        }
        config->targets.push_back(name);
        const auto version = running.at(name);
        if (!version) {
            continue; // silent, or no unit that can be flashed: nothing to compare with
        }
        std::vector<const Package*> newer;
        for (const auto& p : candidates) {
            if (p.kind == PackageKind::Ecu && p.isFor(name) &&
                compareVersions(p.version, *version) > 0) {
                newer.push_back(&p);
            }
        }
        const Package* best = newest(newer);
        if (best == nullptr) {
            continue;
        }
        const bool listed =
            std::any_of(config->packages.begin(), config->packages.end(), [&](const auto& q) {
                return q->name == best->name && q->version == best->version;
            });
        if (!listed) {
            config->packages.push_back(best->info());
        }
    }
    return config;
}

// The workshop's order file when the vehicle has one, else the default order.
std::vector<std::shared_ptr<EcuOrderEntry>> VehicleUpdate::vehicleOrder() const {
    return vehicleEcuOrder(*vehicle_);
}

std::shared_ptr<VehicleUpdate::Run>
VehicleUpdate::prepare(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                       const std::shared_ptr<VehicleUpdateConfig>& config,
                       const wchar_t* operation) const {
    if (!config) {
        throw TarnApiException(BadUpdateArgument, L"A vehicle update needs its config",
                               L"createVehicleUpdateConfig makes one");
    }
    vehicle_->lifecycle.requireInitialized();
    vehicle_->interfaces->requireConnected();
    const auto covers = [&](const std::wstring& target) {
        return config->targets.empty() || std::find(config->targets.begin(), config->targets.end(),
                                                    target) != config->targets.end();
    };
    std::vector<Run::Unit> visit;
    std::set<std::wstring> seen;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto& entry = entries[i];
        if (!entry || !covers(entry->target) || !seen.insert(entry->target).second) {
            continue;
        }
        Run::Unit u;
        u.result = std::make_shared<VehicleUpdateResult>();
        u.result->target = entry->target;
        u.result->position = static_cast<uint32_t>(i + 1);
        u.optional = entry->optional;
        for (const auto& p : config->packages) {
            if (p && std::find(p->targets.begin(), p->targets.end(), entry->target) !=
                         p->targets.end()) {
                u.package = p;
                break;
            }
        }
        visit.push_back(std::move(u));
    }
    return std::make_shared<Run>(ready(), vehicle_->units, vehicle_->vehicleUpdate.settings(),
                                 std::move(visit), *config, operation);
}

std::vector<std::shared_ptr<VehicleUpdateResult>>
VehicleUpdate::performVehicleUpdate(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                                    std::shared_ptr<VehicleUpdateConfig> config) {
    return prepare(entries, config, L"performVehicleUpdate")->runAll();
}

uint64_t
VehicleUpdate::performVehicleUpdateAsync(const std::vector<std::shared_ptr<EcuOrderEntry>>& entries,
                                         std::shared_ptr<VehicleUpdateConfig> config,
                                         PerformVehicleUpdateCallback* callback) {
    auto run = prepare(entries, config, L"performVehicleUpdate");
    return vehicle_->async.startSteps(
        "performVehicleUpdateAsync", callback, [run] { return run->steps(); },
        [run] { return run->windUp(); });
}

std::vector<std::shared_ptr<VehicleUpdateResult>>
VehicleUpdate::updateVehicle(std::shared_ptr<VehicleUpdateConfig> config) {
    return prepare(vehicleOrder(), config, L"updateVehicle")->runAll();
}

uint64_t VehicleUpdate::updateVehicleAsync(std::shared_ptr<VehicleUpdateConfig> config,
                                           UpdateVehicleCallback* callback) {
    auto run = prepare(vehicleOrder(), config, L"updateVehicle");
    return vehicle_->async.startSteps(
        "updateVehicleAsync", callback, [run] { return run->steps(); },
        [run] { return run->windUp(); });
}

// ---- reports to the broker -----------------------------------------------------------------

void VehicleUpdate::uploadReport(std::shared_ptr<UploadReportConfiguration> config) {
    if (!config) {
        throw TarnApiException(BadUpdateArgument, L"uploadReport needs its config",
                               L"the report file and where it goes");
    }
    const Context c = ready();
    const Resolved report = c.box.resolve(config->reportFile);
    requireFile(report);
    const std::wstring reportName = lastName(report.enginePath);
    const std::wstring name = config->name.empty() ? reportName : config->name;
    checkName(name);
    std::optional<Resolved> twin;
    if (config->withTwin) {
        const auto parent =
            c.box.resolve(report.enginePath.substr(0, report.enginePath.rfind(L'/')));
        twin = c.box.child(parent, stem(reportName) + L".json");
        std::error_code e;
        if (twin->enginePath == report.enginePath ||
            !std::filesystem::is_regular_file(twin->real, e)) {
            throw TarnApiException(ReportTwinMissing, L"The report has no JSON twin beside it",
                                   stem(reportName) + L".json");
        }
    }
    const std::wstring folder = config->folder.empty() ? std::wstring(L"reports") : config->folder;
    if (sameNameIgnoringCase(name, uploadLogName)) {
        throw TarnApiException(BadUpdateArgument, L"A report cannot take the upload log's name",
                               name);
    }
    std::wstring vin = config->vin;
    if (vin.empty() && twin) {
        try {
            const auto bytes = readRange(twin->real, 0, 1024 * 1024, false);
            const auto j = nlohmann::json::parse(bytes.begin(), bytes.end());
            // The reports' JSON form: {"format": "kel report 1", "vehicle": {"vin": ...}}.
            vin = fromUtf8(j.at("vehicle").value("vin", std::string()));
        } catch (const std::exception&) {
            // A twin that names no VIN leaves the log's empty.
        }
    }
    c.withStore([&] {
        const Resolved directory = c.broker.directory(c.box, folder);
        const auto place = [&](const std::wstring& file) {
            Resolved to = c.box.child(directory, file);
            std::error_code e;
            if (std::filesystem::exists(to.real, e) && !config->overwrite) {
                throw TarnApiException(UploadExists, L"The broker has a report of that name",
                                       to.enginePath + L"; overwrite replaces it");
            }
            return to;
        };
        const Resolved to = place(name);
        std::optional<Resolved> twinTo;
        if (twin) {
            twinTo = place(stem(name) + L".json");
        }
        // The log line is made before anything is copied (of the report, which the copy
        // equals): what can fail then is the file system alone, and that undoes the copies.
        uint64_t size = 0;
        const nlohmann::json line = {
            {"time", toUtf8(utcNow())},
            {"vin", toUtf8(vin)},
            {"user", toUtf8(config->user)},
            {"comment", toUtf8(config->comment)},
            {"file", toUtf8(folder + L"/" + name)},
            {"twin", twinTo ? nlohmann::json(toUtf8(folder + L"/" + stem(name) + L".json"))
                            : nlohmann::json()},
            {"checksum", toUtf8(fileChecksum(report.real, size))},
            {"size", size}};
        const auto text = line.dump() + "\n";
        const Resolved log = c.box.child(c.broker.folder, uploadLogName);
        // Both checked before either is copied: an upload is whole or not at all. Each copy
        // is put in place whole; a replaced report is kept aside until the line is written.
        UploadCopies copies;
        copies.put(report.real, to.real, config->overwrite);
        if (twin) {
            copies.put(twin->real, twinTo->real, config->overwrite);
        }
        writeData(log.real, std::vector<uint8_t>(text.begin(), text.end()), AppendToFile);
        copies.keep();
    });
}

} // namespace Varno::Kel_cpp::Reference
