// A flash run is a list of steps (per session: start, ten slices of the download, the
// check; then one reset for the whole run), so that the asynchronous form reports
// progress between slices and a cancel leaves the unit exactly where the last slice
// left it: erased and half written, an update the unit knows is incomplete. Each step
// talks to the unit under the units' lock and lets it go, so other calls interleave.
#include "Flash.h"

#include "Checksums.h"
#include "ControlUnits.h"
#include "Describe.h"
#include "ErrorCodes.h"
#include "SimulatedVehicle.h"
#include "VehicleClock.h"
#include "families/diagnostics/Answers.h"

#include <algorithm>
#include <functional>
#include <stdexcept>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

// Vehicle time a unit may go without a request while it writes; longer writes are
// bridged with TesterPresent, as a tester keeps a session open.
constexpr uint64_t quietMs = 1000;

std::shared_ptr<KelError> error(int32_t code, std::wstring message, std::wstring details) {
    auto e = std::make_shared<KelError>();
    e->code = code;
    e->message = std::move(message);
    e->details = std::move(details);
    return e;
}

[[noreturn]] void badDescription(const std::string& why) {
    throw TarnApiException(BadVehicleDescription, L"The vehicle description is not valid",
                           fromUtf8("flash: " + why));
}

template <class Units>
auto& unit(Units& ecus, const std::wstring& target) {
    const auto found =
        std::find_if(ecus.begin(), ecus.end(), [&](const Ecu& e) { return e.name == target; });
    if (found == ecus.end()) {
        throw TarnApiException(UnknownTarget, L"The vehicle has no such control unit",
                               L"target " + target);
    }
    return *found;
}

// The image of a session: its version, a NUL byte, then bytes that depend on the
// session's name and their position, so that any byte can be made without the others.
class SessionImage final : public FlashImage {
public:
    explicit SessionImage(const FlashSession& session) : size_(session.size) {
        for (const wchar_t c : session.version) {
            header_.push_back(static_cast<uint8_t>(c));
        }
        header_.push_back(0);
        for (const wchar_t c : session.name) {
            seed_ = (seed_ ^ static_cast<uint64_t>(c)) * 0x100000001B3ULL;
        }
    }
    uint64_t size() const override { return size_; }
    uint8_t at(uint64_t i) const override {
        if (i < header_.size()) {
            return header_[i];
        }
        uint64_t x = seed_ ^ (i * 0x9E3779B97F4A7C15ULL);
        x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9ULL;
        x = (x ^ (x >> 27)) * 0x94D049BB133111EBULL;
        return static_cast<uint8_t>(x ^ (x >> 31));
    }

private:
    uint64_t size_;
    Bytes header_;
    uint64_t seed_ = 0xCBF29CE484222325ULL;
};

class PayloadImage final : public FlashImage {
public:
    explicit PayloadImage(Bytes bytes) : bytes_(std::move(bytes)) {}
    uint64_t size() const override { return bytes_.size(); }
    uint8_t at(uint64_t i) const override { return bytes_[i]; }

private:
    Bytes bytes_;
};

std::wstring decodeVersion(const Ecu& ecu, const Bytes& response) {
    const auto* d = ecu.dataIdentifier(ecu.programming->versionId);
    return d->codec.decode(Bytes(response.begin() + 3, response.end()));
}

} // namespace

// ---- the description --------------------------------------------------------------------

FlashSettings FlashSettings::parse(const nlohmann::json& section, const std::vector<Ecu>& ecus) {
    FlashSettings settings;
    try {
        for (const auto& j : arrayMember(section, "sessions")) {
            FlashSession s;
            s.name = fromUtf8(j.at("name").get<std::string>());
            s.target = fromUtf8(j.at("target").get<std::string>());
            s.description = textMember(j, "description");
            s.version = fromUtf8(j.at("version").get<std::string>());
            s.size = wholeNumber(j, "size", 65536, s.version.size() + 1, 0xFFFFFFFFULL);
            s.durationMs = static_cast<uint32_t>(wholeNumber(j, "durationMs", 30000, 0, 86400000));
            if (j.contains("checksum")) {
                s.checksum = static_cast<uint32_t>(
                    std::stoul(j.at("checksum").get<std::string>(), nullptr, 16));
            }
            const auto ecu = std::find_if(ecus.begin(), ecus.end(),
                                          [&](const Ecu& e) { return e.name == s.target; });
            if (ecu == ecus.end() || !ecu->programming) {
                badDescription("session " + toUtf8(s.name) + ": " + toUtf8(s.target) +
                               " is no unit that can be flashed (it needs \"programming\")");
            }
            const auto* version = ecu->dataIdentifier(ecu->programming->versionId);
            if (s.version.empty() || s.version.size() >= imageHeaderLength ||
                !version->codec.accepts(version->codec.encode(s.version))) {
                badDescription("session " + toUtf8(s.name) + ": version " + toUtf8(s.version) +
                               " is not one the unit can report");
            }
            for (const auto& other : settings.sessions) {
                if (other.name == s.name) {
                    badDescription("session " + toUtf8(s.name) + " twice");
                }
            }
            settings.sessions.push_back(std::move(s));
        }
    } catch (const TarnApiException&) {
        throw;
    } catch (const std::exception& e) {
        badDescription(e.what());
    }
    return settings;
}

void FlashState::load(FlashSettings settings) {
    const std::lock_guard lock(mutex_);
    sessions_ = std::move(settings.sessions);
}

std::vector<FlashSession> FlashState::sessions(const std::wstring& target) const {
    const std::lock_guard lock(mutex_);
    std::vector<FlashSession> out;
    std::copy_if(sessions_.begin(), sessions_.end(), std::back_inserter(out),
                 [&](const FlashSession& s) { return s.target == target; });
    return out;
}

// ---- one download ---------------------------------------------------------------------

std::shared_ptr<const FlashImage> sessionImage(const FlashSession& session) {
    return std::make_shared<SessionImage>(session);
}

std::shared_ptr<const FlashImage> payloadImage(std::vector<uint8_t> bytes) {
    return std::make_shared<PayloadImage>(std::move(bytes));
}

FlashDownload::FlashDownload(std::shared_ptr<ControlUnits> units,
                             std::shared_ptr<FlashSessionResult> result,
                             std::shared_ptr<const FlashImage> image, uint32_t durationMs,
                             std::optional<uint32_t> declaredCrc, uint32_t blockLength)
    : units_(std::move(units)), result_(std::move(result)), image_(std::move(image)),
      durationMs_(durationMs), declaredCrc_(declaredCrc), blockLength_(blockLength) {}

std::shared_ptr<FlashSessionResult> FlashDownload::snapshot() const {
    if (startMs_) {
        result_->duration = static_cast<uint32_t>(VehicleClock::nowMs() - *startMs_);
    }
    return std::make_shared<FlashSessionResult>(*result_);
}

void FlashDownload::fail(std::shared_ptr<KelError> e) {
    result_->status = 2;
    result_->error = std::move(e);
    over_ = true;
}

// Sends `request`; its positive response, or nothing once the download failed on it.
std::optional<Bytes> FlashDownload::send(Bus& bus, Ecu& ecu, const Bytes& request,
                                         const wchar_t* step) {
    auto response = bus.exchange(ecu, request);
    if (response.empty()) {
        fail(Answers::silent(ecu));
        return std::nullopt;
    }
    if (response[0] != request[0] + 0x40) {
        auto e = Answers::negative(response, FlashStepRefused);
        e->message = std::wstring(L"The control unit refused ") + step;
        e->details = ecu.name + L" answered " + hexText(response) + L" to " +
                     hexText(Bytes(request.begin(),
                                   request.begin() + std::min<std::size_t>(request.size(), 4)));
        fail(std::move(e));
        return std::nullopt;
    }
    return response;
}

namespace {
// The unit writes for `ms` of vehicle time; a tester keeps the session open meanwhile.
void spend(Bus& bus, Ecu& ecu, uint64_t ms) {
    while (ms > quietMs) {
        VehicleClock::advance(quietMs);
        ms -= quietMs;
        bus.exchange(ecu, {0x3E, 0x00});
    }
    VehicleClock::advance(ms);
}
} // namespace

bool FlashDownload::start() {
    if (over_) {
        return false;
    }
    auto& r = *result_;
    r.size = image_->size();
    r.status = 1;
    startMs_ = VehicleClock::nowMs();
    units_->talk([&](Bus& bus) {
        Ecu& ecu = unit(bus.ecus, r.target);
        touched_ = true;
        const auto id = ecu.programming->versionId;
        auto version =
            send(bus, ecu, {0x22, static_cast<uint8_t>(id >> 8), static_cast<uint8_t>(id)},
                 L"reading the software version");
        if (!version) {
            return;
        }
        r.versionBefore = decodeVersion(ecu, *version);
        if (!send(bus, ecu, {0x31, 0x01, 0xFF, 0x00}, L"erasing the memory")) {
            return;
        }
        Bytes download = {0x34, 0x00, 0x44, 0x00, 0x00, 0x00, 0x00};
        for (int shift = 24; shift >= 0; shift -= 8) {
            download.push_back(static_cast<uint8_t>(r.size >> shift));
        }
        const auto accepted = send(bus, ecu, download, L"the download");
        if (!accepted) {
            return;
        }
        const uint64_t unitBlock = ((*accepted)[2] << 8 | (*accepted)[3]) - 2U;
        block_ = blockLength_ == 0 ? unitBlock : std::min<uint64_t>(blockLength_, unitBlock);
    });
    return !over_;
}

bool FlashDownload::transfer(uint64_t slice) {
    if (over_) {
        return false;
    }
    auto& r = *result_;
    const uint64_t size = image_->size();
    // Rounded up, so that each slice ends at its whole tenth of the image or just past it.
    const uint64_t to = (size * slice + transferSlices - 1) / transferSlices;
    units_->talk([&](Bus& bus) {
        Ecu& ecu = unit(bus.ecus, r.target);
        while (r.transferred < to) {
            const uint64_t n = std::min(block_, to - r.transferred);
            Bytes request = {0x36, counter_};
            for (uint64_t i = 0; i < n; ++i) {
                request.push_back(image_->at(r.transferred + i));
            }
            if (!send(bus, ecu, request, L"a block of the download")) {
                return;
            }
            crc_.update(std::span<const uint8_t>(request.data() + 2, n));
            r.transferred += n;
            ++counter_;
            const uint64_t due = size == 0 ? 0 : durationMs_ * r.transferred / size;
            spend(bus, ecu, due - spentMs_);
            spentMs_ = due;
        }
    });
    if (!over_) {
        r.progress = static_cast<uint32_t>(r.transferred * 100 / size);
    }
    return !over_;
}

bool FlashDownload::finish() {
    if (over_) {
        return false;
    }
    auto& r = *result_;
    units_->talk([&](Bus& bus) {
        Ecu& ecu = unit(bus.ecus, r.target);
        if (!send(bus, ecu, {0x37}, L"the end of the download")) {
            return;
        }
        const uint32_t crc = declaredCrc_.value_or(crc_.value());
        Bytes check = {0x31, 0x01, 0xFF, 0x01};
        for (int shift = 24; shift >= 0; shift -= 8) {
            check.push_back(static_cast<uint8_t>(crc >> shift));
        }
        const auto checked = send(bus, ecu, check, L"the check of the software");
        if (!checked) {
            return;
        }
        const auto id = ecu.programming->versionId;
        const auto version =
            bus.exchange(ecu, {0x22, static_cast<uint8_t>(id >> 8), static_cast<uint8_t>(id)});
        if (version.size() >= 3 && version[0] == 0x62) {
            r.versionAfter = decodeVersion(ecu, version);
        }
        if (checked->back() != 0x00) {
            fail(error(FlashCheckFailed, L"The control unit rejected the downloaded software",
                       L"the CRC-32 does not match what " + ecu.name +
                           L" received, or the image names no version it can run; its update "
                           L"is incomplete"));
            return;
        }
        r.status = 0;
        r.progress = 100;
        over_ = true;
    });
    return r.status == 0;
}

void FlashDownload::reset(ControlUnits& units, const std::wstring& target) {
    units.talk([&](Bus& bus) { bus.exchange(unit(bus.ecus, target), {0x11, 0x01}); });
}

// ---- a run ---------------------------------------------------------------------------

class Flash::Run : public std::enable_shared_from_this<Flash::Run> {
public:
    using Report = std::optional<std::shared_ptr<FlashSessionResult>>;
    using Step = std::function<Report()>;

    Run(std::shared_ptr<ControlUnits> units, const FlashSessionsConfig& config,
        const std::vector<FlashSession>& offered)
        : units_(std::move(units)), target_(config.target), stopOnError_(config.stopOnError) {
        for (const auto& name : config.sessions) {
            auto result = std::make_shared<FlashSessionResult>();
            result->name = name;
            result->target = target_;
            const auto found = std::find_if(offered.begin(), offered.end(),
                                            [&](const FlashSession& s) { return s.name == name; });
            if (found == offered.end()) {
                items_.push_back(
                    std::make_unique<FlashDownload>(units_, result, nullptr, 0, std::nullopt, 0));
                known_.push_back(false);
                continue;
            }
            items_.push_back(std::make_unique<FlashDownload>(units_, result, sessionImage(*found),
                                                             found->durationMs, found->checksum,
                                                             config.blockLength));
            known_.push_back(true);
        }
    }

    std::vector<Step> steps() {
        std::vector<Step> out;
        auto self = shared_from_this();
        for (std::size_t i = 0; i < items_.size(); ++i) {
            out.emplace_back([self, i] { return self->start(i); });
            for (uint64_t k = 1; k <= FlashDownload::transferSlices; ++k) {
                out.emplace_back([self, i, k] { return self->transfer(i, k); });
            }
            out.emplace_back([self, i] { return self->finish(i); });
        }
        out.emplace_back([self] { return self->end(); });
        return out;
    }

    // The synchronous form: every step at once, one result per session.
    std::vector<std::shared_ptr<FlashSessionResult>> runAll() {
        std::vector<std::shared_ptr<FlashSessionResult>> out;
        for (const auto& step : steps()) {
            if (auto r = step(); r && (*r)->status != 1) {
                out.push_back(std::move(*r));
            }
        }
        return out;
    }

private:
    Report outcome(FlashDownload& d) {
        if (d.failed() && stopOnError_) {
            stopped_ = true;
        }
        return d.snapshot();
    }

    Report start(std::size_t i) {
        FlashDownload& d = *items_[i];
        if (stopped_) {
            auto r = d.snapshot();
            r->status = 3;
            r->error = error(FlashSessionNotRun, L"The flash session was not run",
                             L"an earlier session of the call failed");
            d.fail(nullptr); // its later steps report nothing
            return r;
        }
        if (!known_[i]) {
            const auto r = d.snapshot();
            d.fail(error(UnknownFlashSession, L"The target has no such flash session",
                         L"session " + r->name + L" on " + target_));
            return outcome(d);
        }
        touched_ = true;
        d.start();
        return outcome(d);
    }

    Report transfer(std::size_t i, uint64_t slice) {
        FlashDownload& d = *items_[i];
        if (d.over()) {
            return std::nullopt;
        }
        d.transfer(slice);
        return outcome(d);
    }

    Report finish(std::size_t i) {
        FlashDownload& d = *items_[i];
        if (d.over()) {
            return std::nullopt;
        }
        d.finish();
        return outcome(d);
    }

    // A reset ends the run: the unit leaves the programming session and starts the
    // software it has, the new one or none.
    Report end() {
        if (touched_) {
            FlashDownload::reset(*units_, target_);
        }
        return std::nullopt;
    }

    std::shared_ptr<ControlUnits> units_;
    std::wstring target_;
    bool stopOnError_ = true;
    std::vector<std::unique_ptr<FlashDownload>> items_;
    std::vector<bool> known_;
    bool stopped_ = false;
    bool touched_ = false; // a request reached the unit, so the run ends with a reset
};

// ---- the family ---------------------------------------------------------------------------

Flash::Flash(std::shared_ptr<SimulatedVehicle> vehicle) : vehicle_(std::move(vehicle)) {}

FlashSessionsConfig Flash::defaults(const std::wstring& target,
                                    const std::vector<std::wstring>& sessions) {
    FlashSessionsConfig config;
    config.target = target;
    config.sessions = sessions;
    config.stopOnError = true;
    return config;
}

std::shared_ptr<Flash::Run> Flash::prepare(const FlashSessionsConfig& config) const {
    vehicle_->lifecycle.requireInitialized();
    vehicle_->interfaces->requireConnected();
    if (config.sessions.empty()) {
        throw TarnApiException(BadFlashArgument, L"No flash session was given",
                               L"target " + config.target);
    }
    vehicle_->units->read([&](const std::vector<Ecu>& ecus) { unit(ecus, config.target); });
    return std::make_shared<Run>(vehicle_->units, config, vehicle_->flash.sessions(config.target));
}

std::vector<std::shared_ptr<FlashSessionInfo>>
Flash::getFlashSessionInfos(const std::wstring& target) {
    vehicle_->lifecycle.requireInitialized();
    const auto level = vehicle_->units->read([&](const std::vector<Ecu>& ecus) {
        const Ecu& ecu = unit(ecus, target);
        return ecu.programming ? ecu.programming->level : uint8_t{0};
    });
    std::vector<std::shared_ptr<FlashSessionInfo>> out;
    for (const auto& s : vehicle_->flash.sessions(target)) {
        auto info = std::make_shared<FlashSessionInfo>();
        info->name = s.name;
        info->target = s.target;
        info->description = s.description;
        info->version = s.version;
        info->size = s.size;
        info->duration = s.durationMs;
        info->level = level;
        out.push_back(std::move(info));
    }
    return out;
}

std::vector<std::shared_ptr<FlashSessionResult>>
Flash::executeFlashSessions(const std::wstring& target, const std::vector<std::wstring>& sessions) {
    return prepare(defaults(target, sessions))->runAll();
}

uint64_t Flash::executeFlashSessionsAsync(const std::wstring& target,
                                          const std::vector<std::wstring>& sessions,
                                          ExecuteFlashSessionsCallback* callback) {
    return vehicle_->async.startSteps(
        "executeFlashSessionsAsync", callback,
        [run = prepare(defaults(target, sessions))] { return run->steps(); });
}

namespace {
const FlashSessionsConfig& given(const std::shared_ptr<FlashSessionsConfig>& config) {
    if (!config) {
        throw TarnApiException(BadFlashArgument, L"executeFlashSessionsConfig needs its config",
                               L"the target and the sessions to run");
    }
    return *config;
}
} // namespace

std::vector<std::shared_ptr<FlashSessionResult>>
Flash::executeFlashSessionsConfig(std::shared_ptr<FlashSessionsConfig> config) {
    return prepare(given(config))->runAll();
}

uint64_t Flash::executeFlashSessionsConfigAsync(std::shared_ptr<FlashSessionsConfig> config,
                                                ExecuteFlashSessionsConfigCallback* callback) {
    return vehicle_->async.startSteps("executeFlashSessionsConfigAsync", callback,
                                      [run = prepare(given(config))] { return run->steps(); });
}

} // namespace Varno::Kel_cpp::Reference
