// Update packages on a broker folder and vehicle updates, as a workshop relies on them: a
// corrupt package changes nothing, an update flashes exactly the units that need it and
// in ECU order, a cancel leaves no unit half written, the broker cannot be pointed
// outside the engine's folders, and engine components stay updated across a restart.
#include "data_root.h"
#include "uds.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace kel_test;
using namespace std::chrono_literals;

using Bytes = std::vector<uint8_t>;
using Packages = List<UpdatePackageInfo, release_UpdatePackageInfo_array>;
using Results = List<VehicleUpdateResult, release_VehicleUpdateResult_array>;
using Items = List<NamedItem, release_NamedItem_array>;

// Five units: three that can be flashed on two buses, a gateway, one that cannot, and
// one whose security level cannot be unlocked in its programming session.
constexpr const char* updateVehicle = R"({"name": "Update test car", "version": "7",
  "ecus": [
    {"name": "ECM", "address": 16, "bus": "Powertrain",
     "identification": [{"id": "F189", "name": "Software version", "value": "5428"}],
     "security": [{"level": 2, "keyMask": "C3A5179E", "sessions": ["Programming"]}],
     "programming": {"level": 2}},
    {"name": "TCM", "address": 17, "bus": "Powertrain",
     "identification": [{"id": "F189", "name": "Software version", "value": "0830"}],
     "security": [{"level": 1, "keyMask": "11111111", "sessions": ["Programming"]}],
     "programming": {"level": 1}},
    {"name": "BCM", "address": 32, "bus": "Comfort",
     "identification": [{"id": "F189", "name": "Software version", "value": "0455"}],
     "security": [{"level": 1, "keyMask": "22222222", "sessions": ["Programming"]}],
     "programming": {"level": 1}},
    {"name": "DASH", "address": 40, "bus": "Comfort",
     "identification": [{"id": "F189", "name": "Software version", "value": "12"}]},
    {"name": "GW", "address": 48, "bus": "Gateway",
     "identification": [{"id": "F189", "name": "Software version", "value": "0100"}],
     "security": [{"level": 1, "keyMask": "33333333", "sessions": ["Extended"]}],
     "programming": {"level": 1}}],
  "ecuOrder": {"gateway": "GW"},
  "vehicleUpdate": {"bytesPerSecond": 1000}})";

// The default order of that vehicle: the gateway, then by bus and address.
const std::vector<std::wstring> defaultOrder = {L"GW", L"BCM", L"DASH", L"ECM", L"TCM"};

// CRC-32 as zip computes it, written out again so that the engine's is checked.
uint32_t crc32(const Bytes& bytes) {
    uint32_t crc = 0xFFFFFFFF;
    for (const uint8_t b : bytes) {
        crc ^= b;
        for (int k = 0; k < 8; ++k) {
            crc = (crc >> 1) ^ (0xEDB88320U & (0U - (crc & 1U)));
        }
    }
    return ~crc;
}

std::string crcText(uint32_t crc) {
    char text[16];
    std::snprintf(text, sizeof text, "crc32:%08X", crc);
    return text;
}

// What a unit runs: its version in ASCII, a NUL, then bytes.
Bytes ecuImage(const std::string& version, std::size_t size) {
    Bytes b(version.begin(), version.end());
    b.push_back(0);
    for (std::size_t i = b.size(); i < size; ++i) {
        b.push_back(static_cast<uint8_t>(i * 7 + 3));
    }
    return b;
}

std::string manifest(const std::string& name, const std::string& version, const std::string& kind,
                     const std::string& target, const std::string& payload, std::size_t size,
                     const std::string& checksum) {
    return R"({"format": "kel-package", "version": 1, "name": ")" + name +
           R"(", "packageVersion": ")" + version + R"(", "kind": ")" + kind +
           R"(", "targets": [")" + target + R"("], "description": "test package", "payload": ")" +
           payload + R"(", "size": )" + std::to_string(size) + R"(, "checksum": ")" + checksum +
           R"("})";
}

std::wstring wide(const std::string& s) { return std::wstring(s.begin(), s.end()); }

wchar_t* dup(const std::wstring& s) { return duplicate_WString(s.c_str()); }

struct Wanted {
    std::wstring name;
    std::wstring version;
    std::wstring target;
};

// A config as a caller builds one by hand.
VehicleUpdateConfig* config(const std::vector<std::wstring>& targets,
                            const std::vector<Wanted>& packages, bool stopOnError = true,
                            bool force = false) {
    auto* c = zeroed<VehicleUpdateConfig>();
    c->targets = texts(targets);
    c->targetCount = static_cast<uint32_t>(targets.size());
    c->packages = static_cast<UpdatePackageInfo**>(
        allocate_Memory(sizeof(UpdatePackageInfo*) * (packages.size() + 1)));
    for (std::size_t i = 0; i < packages.size(); ++i) {
        auto* p = zeroed<UpdatePackageInfo>();
        p->name = dup(packages[i].name);
        p->version = dup(packages[i].version);
        p->description = dup(L"");
        p->checksum = dup(L"");
        p->location = dup(L"");
        p->kind = 1;
        p->targets = texts({packages[i].target});
        p->targetCount = 1;
        c->packages[i] = p;
    }
    c->packageCount = static_cast<uint32_t>(packages.size());
    c->stopOnError = stopOnError ? 1 : 0;
    c->force = force ? 1 : 0;
    return c;
}

// ECU order entries as a caller hands them in (the texts stay the caller's), the
// `optional` ones marked so.
struct Order {
    std::vector<EcuOrderEntry> records;
    std::vector<EcuOrderEntry*> entries;
    explicit Order(const std::vector<const wchar_t*>& targets,
                   const std::set<std::wstring>& optional = {}) {
        for (const wchar_t* target : targets) {
            records.push_back({const_cast<wchar_t*>(target), const_cast<wchar_t*>(L""), 0, 0,
                               static_cast<uint8_t>(optional.count(target))});
        }
        for (auto& record : records) {
            entries.push_back(&record);
        }
    }
};

// What an asynchronous update reports, and the cancel it may trigger.
struct UpdateWatch : AsyncWatch {
    std::wstring cancelOn; // cancel once this unit reports this much progress
    uint32_t cancelAt = 101;
    std::vector<std::pair<std::wstring, uint32_t>> running; // unit and progress
    std::vector<uint32_t> overall;
    std::vector<std::wstring> final; // target:status of the final report, and :code of an error

    static void callback(VehicleUpdateResult** results, uint32_t count, bool isFinal,
                         uint64_t callId, KelError* error, void* context) {
        auto* self = static_cast<UpdateWatch*>(context);
        bool cancel = false;
        {
            const std::lock_guard lock(self->mutex);
            for (uint32_t i = 0; i < count; ++i) {
                const VehicleUpdateResult& r = *results[i];
                if (isFinal) {
                    self->final.push_back(
                        std::wstring(r.target) + L":" + std::to_wstring(r.status) +
                        (r.error != nullptr ? L":" + std::to_wstring(r.error->code) : L""));
                    continue;
                }
                self->overall.push_back(r.overallProgress);
                if (r.status == 1) {
                    self->running.emplace_back(r.target, r.progress);
                    cancel = cancel || (r.target == self->cancelOn && r.progress >= self->cancelAt);
                }
            }
            self->errorCode = error != nullptr ? error->code : self->errorCode;
        }
        release_VehicleUpdateResult_array(results, count);
        release_KelError(error);
        self->reported(callId, cancel, isFinal);
    }
};

const std::vector<Wanted> ecmAndBcm = {{L"ECM_SW", L"5432", L"ECM"}, {L"BCM_SW", L"0460", L"BCM"}};

class VehicleUpdateTest : public kel_test::DataRootTest {
protected:
    void SetUp() override {
        DataRootTest::SetUp();
        ASSERT_EQ(kelsim_setVehicleJson(updateVehicle), 0);
        restart();
    }

    // The output of a call that must succeed.
    template <class T, class... Args>
    T ok(void (*call)(TarnApi*, Args..., KelError**, T*), Args... args) {
        ErrorSlot error;
        T out{};
        call(api, args..., &error, &out);
        EXPECT_FALSE(error) << (error ? error->code : 0);
        return out;
    }

    // Puts a package on the broker (or in `packagesFolder`); a `declared` checksum other
    // than the payload's makes it corrupt.
    fs::path publish(const std::string& name, const std::string& version, const std::string& kind,
                     const std::string& target, const Bytes& payload, uint32_t declared = 0,
                     const fs::path& packagesFolder = {}) {
        const fs::path folder =
            (packagesFolder.empty() ? root / "broker" / "packages" : packagesFolder) /
            (name + "-" + version);
        const std::string file = name + "_" + version + ".bin";
        put(folder / file, std::string(payload.begin(), payload.end()));
        put(folder / "manifest.json", manifest(name, version, kind, target, file, payload.size(),
                                               crcText(declared != 0 ? declared : crc32(payload))));
        return folder;
    }
    void publishEcu(const std::string& target, const std::string& version,
                    std::size_t size = 3000) {
        publish(target + "_SW", version, "ecu", target, ecuImage(version, size));
    }

    // The software version a unit reports (ReadDataByIdentifier F189).
    std::wstring version(const wchar_t* target) {
        const Bytes response = kel_test::sendRaw(api, target, {0x22, 0xF1, 0x89});
        return response.size() > 3 ? std::wstring(response.begin() + 3, response.end()) : L"?";
    }

    std::map<std::wstring, std::wstring> versions() {
        const auto items = fetch<Items>([&](auto... out) { kel_getCurrentVersions(api, out...); });
        std::map<std::wstring, std::wstring> out;
        for (uint32_t i = 0; i < items->count; ++i) {
            out[items->items[i]->itemText1] = items->items[i]->itemText2;
        }
        return out;
    }

    // name-version:state of each package listed.
    std::vector<std::wstring> listed(void (*list)(TarnApi*, KelError**, UpdatePackageInfo***,
                                                  uint32_t*)) {
        const auto out = fetch<Packages>([&](auto... result) { list(api, result...); });
        std::vector<std::wstring> names;
        for (uint32_t i = 0; i < out->count; ++i) {
            const UpdatePackageInfo& p = *out->items[i];
            names.push_back(std::wstring(p.name) + L"-" + p.version + L":" +
                            std::to_wstring(p.state));
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    int32_t setBroker(const wchar_t* url) {
        return kel_test::errorCodeOf([&](KelError** e) { kel_setBrokerUrl(api, url, e); });
    }
    bool updatesOnBroker() { return ok(kel_checkUpdatesOnBroker); }
    bool autoUpdate() { return ok(kel_autoUpdate); } // whether it installed something
    bool lastUpdateSucceeded() { return ok(kel_checkUpdateSuccess); }
    uint64_t pduMonitor() { return ok(kel_createPduMonitor); }
    // The units that requests went to, in the order they first appear, and how many; and
    // the largest TransferData request.
    std::vector<std::wstring> unitsTalkedTo(uint64_t monitor, std::map<std::wstring, int>* counts,
                                            uint32_t* largestTransfer = nullptr) {
        const auto items = fetch<List<PduMonitoringItem, release_PduMonitoringItem_array>>(
            [&](auto... out) { kel_getPduMonitoringItems(api, monitor, 0, 0, out...); });
        std::vector<std::wstring> order;
        for (uint32_t i = 0; i < items->count; ++i) {
            const PduMonitoringItem& item = *items->items[i];
            const std::wstring unit = item.text1;
            if (item.value1 == 1) {
                ++(*counts)[unit];
                if (largestTransfer != nullptr && item.dataLength > 0 && item.data[0] == 0x36) {
                    *largestTransfer = std::max(*largestTransfer, item.dataLength);
                }
            }
            if (order.empty() || order.back() != unit) {
                order.push_back(unit);
            }
        }
        return order;
    }

    // The engine's own config for `targets`, none for every unit.
    VehicleUpdateConfig* madeConfig(std::vector<const wchar_t*> targets = {}) {
        VehicleUpdateConfig* out = nullptr;
        EXPECT_ENGINE_ERROR(
            e, 0,
            kel_createVehicleUpdateConfig(api, const_cast<wchar_t**>(targets.data()),
                                          static_cast<uint32_t>(targets.size()), &e, &out));
        return out;
    }
    std::unique_ptr<Results> update(VehicleUpdateConfig* c) {
        return fetch<Results>([&](auto... out) { kel_updateVehicle(api, c, out...); });
    }

    // Updates the ECM and the BCM asynchronously, reported to `watch`; whether it ended.
    bool updateAsync(UpdateWatch& watch) {
        kelsim_setAsyncInterval("updateVehicleAsync", 0);
        publishEcu("ECM", "5432");
        publishEcu("BCM", "0460");
        watch.api = api;
        ErrorSlot error;
        const uint64_t id = kel_updateVehicleAsync(api, config({}, ecmAndBcm), &error,
                                                   UpdateWatch::callback, &watch);
        EXPECT_FALSE(error);
        EXPECT_NE(id, 0U);
        return id != 0 && watch.wait();
    }
};

std::vector<std::wstring> statuses(const Results& r) {
    std::vector<std::wstring> out;
    for (uint32_t i = 0; i < r.count; ++i) {
        out.push_back(std::wstring(r.items[i]->target) + L":" +
                      std::to_wstring(r.items[i]->status));
    }
    return out;
}

TEST_F(VehicleUpdateTest, TheBrokerOffersItsValidPackagesAndSkipsTheOthersWithAnEvent) {
    const uint64_t channel = ok(kel_openEventChannel);
    publishEcu("ECM", "5432");
    publish("tool", "1.9", "engine", "tool", Bytes(100, 7));
    const fs::path packages = root / "broker" / "packages";
    put(packages / "notjson" / "manifest.json", "{nope");
    put(packages / "nomanifest" / "payload.bin", "x");
    put(packages / "escape" / "manifest.json",
        manifest("E", "1", "ecu", "ECM", "../../exchange/x.bin", 1, "crc32:00000000"));
    put(packages / "self" / "manifest.json",
        manifest("S", "1", "engine", "kel_cpp", "p.bin", 1, "crc32:00000000"));
    put(packages / "badsum" / "manifest.json",
        manifest("B", "1", "ecu", "ECM", "p.bin", 1, "crc32:12345"));

    const auto offered =
        fetch<Packages>([&](auto... out) { kel_getPackagesFromBroker(api, out...); });
    ASSERT_EQ(offered->count, 2U);
    const UpdatePackageInfo& ecm = *offered->items[0];
    EXPECT_STREQ(ecm.name, L"ECM_SW");
    EXPECT_STREQ(ecm.version, L"5432");
    EXPECT_EQ(ecm.kind, 1U);
    ASSERT_EQ(ecm.targetCount, 1U);
    EXPECT_STREQ(ecm.targets[0], L"ECM");
    EXPECT_EQ(ecm.size, 3000U);
    EXPECT_EQ(ecm.checksum, wide(crcText(crc32(ecuImage("5432", 3000)))));
    EXPECT_STREQ(ecm.location, L"broker/packages/ECM_SW-5432");
    EXPECT_EQ(ecm.state, 0);
    EXPECT_STREQ(offered->items[1]->name, L"tool");
    EXPECT_EQ(offered->items[1]->kind, 2U);

    const auto report = fetchRecord(
        release_EventReport, [&](auto... out) { kel_getCurrentEvents(api, channel, 100, out...); });
    ASSERT_NE(report, nullptr);
    std::set<std::wstring> skipped;
    for (uint32_t i = 0; i < report->eventCount; ++i) {
        const std::wstring detail = report->events[i]->detail;
        if (report->events[i]->kind == 60) {
            EXPECT_EQ(report->events[i]->code, 2204) << detail;
            skipped.insert(detail.substr(0, detail.find(L':')));
        }
    }
    EXPECT_EQ(skipped,
              (std::set<std::wstring>{L"badsum", L"escape", L"nomanifest", L"notjson", L"self"}));
    EXPECT_TRUE(listed(kel_getUpdatePackages).empty()) << "listing downloads nothing";
}

TEST_F(VehicleUpdateTest, TheBrokerUrlCannotReachOutsideThePublicDirectories) {
    publishEcu("ECM", "5432");
    // Refused by the sandbox, by the URL rules, or as another scheme; nothing is made.
    const std::pair<int32_t, std::vector<std::wstring>> refused[] = {
        {1606,
         {L"file:../outside", L"file:exchange/../../outside",
          L"file:exchange/%2e%2e/%2E%2E/outside"}},
        {1607, {L"file:///etc/passwd", L"file:/tmp"}},
        {1605, {L"file:C:/Windows"}},
        {1602, {L"file:exchange/a%00b"}},
        {2200,
         {L"file://server/share/broker", L"file:exchange/b?x=1", L"file:exchange/%zz", L"file:",
          L"exchange/broker"}},
        {2201,
         {L"http://broker.example/updates", L"HTTPS://broker.example/updates",
          L"ftp://broker.example/"}},
    };
    for (const auto& [code, urls] : refused) {
        for (const auto& url : urls) {
            EXPECT_EQ(setBroker(url.c_str()), code) << url;
        }
    }
    std::error_code noLinks;
    fs::create_directory_symlink(outside, root / "exchange" / "out", noLinks);
    if (!noLinks) {
        EXPECT_EQ(setBroker(L"file:exchange/out"), 1608);
        EXPECT_EQ(setBroker(L"file:exchange/out/deeper"), 1608);
        // Inside the public directory but outside the broker folder: a package folder
        // and a manifest that are links there are not offered.
        const fs::path elsewhere = root / "exchange" / "elsewhere";
        publish("P", "1", "ecu", "ECM", ecuImage("1", 10), 0, elsewhere);
        publish("Q", "1", "ecu", "ECM", ecuImage("1", 10), 0, elsewhere);
        const fs::path linked = root / "exchange" / "linked" / "packages";
        fs::create_directories(linked / "Q-1");
        fs::create_directory_symlink(elsewhere / "P-1", linked / "P-1");
        fs::create_symlink(elsewhere / "Q-1" / "manifest.json", linked / "Q-1" / "manifest.json");
        fs::copy_file(elsewhere / "Q-1" / "Q_1.bin", linked / "Q-1" / "Q_1.bin");
        EXPECT_EQ(setBroker(L"file:exchange/linked"), 0);
        EXPECT_TRUE(listed(kel_getPackagesFromBroker).empty());
        EXPECT_EQ(setBroker(L"file:exchange/elsewhere/.."), 1606);
        EXPECT_EQ(setBroker(L""), 0);
    }
    EXPECT_EQ(listed(kel_getPackagesFromBroker), std::vector<std::wstring>{L"ECM_SW-5432:0"})
        << "a refused URL keeps the broker there was";

    EXPECT_EQ(setBroker(L"file:exchange/mybroker"), 0);
    EXPECT_TRUE(fs::is_directory(root / "exchange" / "mybroker")) << "made when missing";
    EXPECT_TRUE(listed(kel_getPackagesFromBroker).empty());
    publish("X", "1", "ecu", "ECM", ecuImage("1", 100), 0, root / "exchange" / "b2" / "packages");
    EXPECT_EQ(setBroker(L"file:///exchange/b2"), 0);
    EXPECT_EQ(listed(kel_getPackagesFromBroker), std::vector<std::wstring>{L"X-1:0"});
    EXPECT_EQ(setBroker(L"file://localhost/exchange/b2"), 0);
    EXPECT_EQ(setBroker(L""), 0);
    EXPECT_EQ(listed(kel_getPackagesFromBroker), std::vector<std::wstring>{L"ECM_SW-5432:0"});
}

TEST_F(VehicleUpdateTest, AutoUpdateInstallsNewerEngineComponentsAndARestartKeepsThem) {
    auto before = versions();
    EXPECT_EQ(before[L"kel_cpp"], L"0.1.0");
    EXPECT_EQ(before[L"vehicle"], L"7");
    EXPECT_EQ(before.count(L"tool"), 0U);
    EXPECT_TRUE(lastUpdateSucceeded()) << "no update yet: nothing failed";

    publish("tool", "1.9", "engine", "tool", Bytes(100, 1));
    EXPECT_TRUE(updatesOnBroker());
    EXPECT_TRUE(autoUpdate());
    EXPECT_EQ(versions()[L"tool"], L"1.9");
    EXPECT_FALSE(updatesOnBroker());
    EXPECT_FALSE(autoUpdate()) << "nothing newer";

    // 1.10 is newer than 1.9; an older one beside it is not chosen.
    publish("tool", "1.10", "engine", "tool", Bytes(200, 2));
    publish("tool", "1.8", "engine", "tool", Bytes(50, 3));
    EXPECT_TRUE(updatesOnBroker());
    EXPECT_TRUE(autoUpdate());
    EXPECT_EQ(contents(root / "updates" / "components" / "tool" / "tool_1.10.bin"),
              std::string(200, '\2'));
    EXPECT_EQ(listed(kel_getUpdatePackages),
              (std::vector<std::wstring>{L"tool-1.10:2", L"tool-1.9:1"}));

    restart();
    EXPECT_EQ(versions()[L"tool"], L"1.10");
    EXPECT_TRUE(lastUpdateSucceeded());
    EXPECT_FALSE(updatesOnBroker());

    EXPECT_ENGINE_ERROR(error, 0, kel_clearUpdatePackages(api, &error));
    EXPECT_TRUE(listed(kel_getUpdatePackages).empty());
    EXPECT_EQ(versions()[L"tool"], L"1.10") << "clearing downloads uninstalls nothing";

    // Installed packages are kept by whole name: installing tool leaves tool-extra installed.
    publish("tool-extra", "1", "engine", "extra", Bytes(10, 4));
    EXPECT_ENGINE_ERROR(error, 0, kel_applyUpdatePackage(api, L"tool-extra", &error));
    publish("tool", "1.11", "engine", "tool", Bytes(10, 5));
    EXPECT_ENGINE_ERROR(error, 0, kel_applyUpdatePackage(api, L"tool", &error));
    EXPECT_EQ(listed(kel_getUpdatePackages),
              (std::vector<std::wstring>{L"tool-1.11:2", L"tool-extra-1:2"}));
    // A store that listed "<name>-<version>" texts is read through the packages' manifests.
    put(root / "updates" / "installed.json",
        R"({"format": "kel-update-store", "version": 1, "packages": ["tool-extra-1"]})");
    EXPECT_EQ(listed(kel_getUpdatePackages),
              (std::vector<std::wstring>{L"tool-1.11:1", L"tool-extra-1:2"}));
}

TEST_F(VehicleUpdateTest, ACorruptPackageIsRefusedAndNothingChanges) {
    publish("tool", "2", "engine", "tool", Bytes(100, 1));
    EXPECT_ENGINE_ERROR(error, 0, kel_applyUpdatePackage(api, L"tool", &error));
    EXPECT_TRUE(lastUpdateSucceeded());
    const auto store = snapshot(root / "updates");
    const auto known = versions();

    // On the broker: its payload does not have the checksum its manifest gives.
    publish("tool", "3", "engine", "tool", Bytes(100, 9), 0x1A2B3C4D);
    ErrorSlot corrupt;
    kel_applyUpdatePackage(api, L"tool", &corrupt);
    ASSERT_TRUE(corrupt);
    EXPECT_EQ(corrupt->code, 2203);
    EXPECT_NE(std::wstring(corrupt->details).find(L"crc32:1A2B3C4D"), std::wstring::npos);
    EXPECT_FALSE(autoUpdate());
    EXPECT_FALSE(lastUpdateSucceeded());
    EXPECT_EQ(versions(), known);
    EXPECT_EQ(listed(kel_getUpdatePackages), std::vector<std::wstring>{L"tool-2:2"});

    // The failed downloads stay in tmp/ until cleaned; nothing else in the store moved.
    const auto lasting = [](std::vector<std::string> entries) {
        std::erase_if(entries, [](const std::string& e) {
            return e.starts_with("tmp") || e.starts_with("last-update.json=");
        });
        return entries;
    };
    EXPECT_EQ(lasting(snapshot(root / "updates")), lasting(store));
    EXPECT_FALSE(fs::is_empty(root / "updates" / "tmp"));
    EXPECT_ENGINE_ERROR(error, 0, kel_cleanUpdateTmp(api, &error));
    EXPECT_FALSE(fs::exists(root / "updates" / "tmp") && !fs::is_empty(root / "updates" / "tmp"));

    // A downloaded copy damaged afterwards is refused as well.
    fs::remove_all(root / "broker" / "packages" / "tool-3");
    publish("tool", "4", "engine", "tool", Bytes(10, 4), 0, root / "updates" / "packages");
    put(root / "updates" / "packages" / "tool-4" / "tool_4.bin", std::string(10, '\5'));
    EXPECT_ENGINE_ERROR(damaged, 2203, kel_applyUpdatePackage(api, L"tool", &damaged));
    EXPECT_EQ(versions(), known);

    // Unknown names and control-unit software are not for applyUpdatePackage.
    EXPECT_ENGINE_ERROR(unknown, 2202, kel_applyUpdatePackage(api, L"nothing", &unknown));
    publishEcu("ECM", "5432");
    EXPECT_ENGINE_ERROR(ecu, 2205, kel_applyUpdatePackage(api, L"ECM_SW", &ecu));
    EXPECT_EQ(version(L"ECM"), L"5428");
}

TEST_F(VehicleUpdateTest, AnUpdateFlashesExactlyTheUnitsThatNeedItInEcuOrder) {
    publishEcu("ECM", "5432");
    publishEcu("ECM", "5440");
    publishEcu("ECM", "999");  // older by number, though "9" sorts after "5"
    publishEcu("TCM", "0830"); // what it runs already
    publishEcu("BCM", "0460", 5000);
    EXPECT_TRUE(updatesOnBroker());

    VehicleUpdateConfig* made = madeConfig();
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->targetCount, 5U) << "no targets: every unit";
    EXPECT_EQ(made->stopOnError, 1);
    std::set<std::wstring> chosen;
    for (uint32_t i = 0; i < made->packageCount; ++i) {
        chosen.insert(std::wstring(made->packages[i]->name) + L"-" + made->packages[i]->version);
    }
    EXPECT_EQ(chosen, (std::set<std::wstring>{L"BCM_SW-0460", L"ECM_SW-5440"}));

    made->blockLength = 500;
    const uint64_t monitor = pduMonitor();
    const int64_t start = kelsim_clockMs();
    auto out = update(made);
    ASSERT_EQ(out->count, 5U);
    for (uint32_t i = 0; i < out->count; ++i) {
        EXPECT_EQ(out->items[i]->target, defaultOrder[i]);
        EXPECT_EQ(out->items[i]->position, i + 1);
        EXPECT_EQ(out->items[i]->overallProgress, 100U);
    }
    EXPECT_EQ(statuses(*out),
              (std::vector<std::wstring>{L"GW:4", L"BCM:0", L"DASH:4", L"ECM:0", L"TCM:4"}));
    const VehicleUpdateResult& bcm = *out->items[1];
    EXPECT_STREQ(bcm.package, L"BCM_SW");
    EXPECT_STREQ(bcm.versionBefore, L"0455");
    EXPECT_STREQ(bcm.versionAfter, L"0460");
    EXPECT_EQ(bcm.progress, 100U);
    EXPECT_EQ(bcm.error, nullptr);
    EXPECT_GE(bcm.duration, 5000U) << "5000 bytes at 1000 bytes per second of vehicle time";
    EXPECT_STREQ(out->items[3]->versionAfter, L"5440");
    EXPECT_GE(kelsim_clockMs() - start, 8000);

    // Only the two units heard anything, the BCM before the ECM.
    std::map<std::wstring, int> counts;
    uint32_t largest = 0;
    const auto order = unitsTalkedTo(monitor, &counts, &largest);
    EXPECT_EQ(order, (std::vector<std::wstring>{L"BCM", L"ECM"}));
    EXPECT_EQ(largest, 502U) << "blocks of 500 bytes after 36 and the counter";

    EXPECT_EQ(version(L"ECM"), L"5440");
    EXPECT_EQ(version(L"BCM"), L"0460");
    EXPECT_EQ(version(L"TCM"), L"0830");
    EXPECT_TRUE(lastUpdateSucceeded());
    EXPECT_EQ(listed(kel_getUpdatePackages),
              (std::vector<std::wstring>{L"BCM_SW-0460:2", L"ECM_SW-5440:2"}));

    // Done: a new config finds nothing newer.
    EXPECT_FALSE(updatesOnBroker());
    VehicleUpdateConfig* again = madeConfig({L"ECM"});
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(again->targetCount, 1U);
    EXPECT_EQ(again->packageCount, 0U);
    release_VehicleUpdateConfig(again);
}

TEST_F(VehicleUpdateTest, ACorruptUnitPackageFailsThatUnitAloneAndItStaysUntouched) {
    publish("ECM_SW", "5432", "ecu", "ECM", ecuImage("5432", 3000), 0xDEADBEEF);
    publishEcu("BCM", "0460");
    const uint64_t monitor = pduMonitor();
    auto out = update(config({}, ecmAndBcm, /*stopOnError=*/false));
    EXPECT_EQ(statuses(*out),
              (std::vector<std::wstring>{L"GW:4", L"BCM:0", L"DASH:4", L"ECM:2", L"TCM:4"}));
    EXPECT_EQ(kel_test::codeIn(out->items[3]->error), 2203);
    std::map<std::wstring, int> counts;
    unitsTalkedTo(monitor, &counts);
    EXPECT_EQ(counts.count(L"ECM"), 0U) << "a package that fails its check never reaches the unit";
    EXPECT_EQ(version(L"ECM"), L"5428");
    EXPECT_EQ(version(L"BCM"), L"0460");
    EXPECT_FALSE(lastUpdateSucceeded());
}

TEST_F(VehicleUpdateTest, AGivenOrderIsFollowedWithOptionalMissingAndRefusingUnits) {
    publishEcu("ECM", "5432");
    publishEcu("BCM", "0460");
    publishEcu("GW", "0200");
    publishEcu("TCM", "0830");
    Order order({L"ECM", L"TRAILER", L"TCM", L"GW", L"ROOF", L"BCM"}, {L"TRAILER"});
    const auto perform = [&](VehicleUpdateConfig* c) {
        return fetch<Results>([&](auto... out) {
            kel_performVehicleUpdate(api, order.entries.data(), 6, c, out...);
        });
    };
    const std::vector<Wanted> wanted = {{L"ECM_SW", L"5432", L"ECM"}, {L"X", L"1", L"TRAILER"},
                                        {L"TCM_SW", L"0830", L"TCM"}, {L"GW_SW", L"0200", L"GW"},
                                        {L"Y", L"1", L"ROOF"},        {L"BCM_SW", L"0460", L"BCM"}};
    // Only the covered units, in the order given; TCM already runs its package; the GW
    // refuses security access in its programming session; ROOF is missing.
    auto out = perform(config({L"BCM", L"GW", L"TRAILER", L"ROOF", L"ECM", L"TCM"}, wanted,
                              /*stopOnError=*/false));
    EXPECT_EQ(statuses(*out), (std::vector<std::wstring>{L"ECM:0", L"TRAILER:5", L"TCM:4", L"GW:2",
                                                         L"ROOF:2", L"BCM:0"}));
    EXPECT_EQ(out->items[2]->position, 3U);
    EXPECT_STREQ(out->items[2]->versionBefore, L"0830");
    ASSERT_EQ(kel_test::codeIn(out->items[3]->error), 2210);
    EXPECT_NE(out->items[3]->error->negativeResponse, nullptr);
    EXPECT_EQ(kel_test::codeIn(out->items[4]->error), 2207);
    EXPECT_EQ(version(L"GW"), L"0100") << "the refusing unit keeps its software";

    // force flashes the TCM again; a failure with stopOnError leaves the rest alone.
    const int64_t before = kelsim_clockMs();
    auto forced = perform(config({L"TCM", L"GW", L"ROOF", L"BCM"}, wanted, true, true));
    EXPECT_EQ(statuses(*forced),
              (std::vector<std::wstring>{L"TCM:0", L"GW:2", L"ROOF:3", L"BCM:3"}));
    EXPECT_GE(kelsim_clockMs() - before, 3000) << "the TCM was written";
    EXPECT_EQ(forced->items[3]->error->code, 2208);
}

TEST_F(VehicleUpdateTest, UpdateVehicleFollowsTheOrderFileAndRefusesWhatCannotStart) {
    const auto updateAll = [&] { return statuses(*update(madeConfig())); };
    // Nothing on the broker: every unit is up to date, visited in the default order.
    EXPECT_EQ(updateAll(),
              (std::vector<std::wstring>{L"GW:4", L"BCM:4", L"DASH:4", L"ECM:4", L"TCM:4"}));

    Order order({L"TCM", L"ECM", L"GW", L"DASH", L"BCM"});
    EXPECT_ENGINE_ERROR(error, 0, kel_writeEcuOrder(api, L"", order.entries.data(), 5, &error));
    EXPECT_EQ(updateAll(),
              (std::vector<std::wstring>{L"TCM:4", L"ECM:4", L"GW:4", L"DASH:4", L"BCM:4"}));

    // Calls that cannot start are refused whole.
    Results out;
    EXPECT_ENGINE_ERROR(noConfig, 2211,
                        kel_updateVehicle(api, nullptr, &noConfig, &out.items, &out.count));
    EXPECT_ENGINE_ERROR(noUpload, 2211, kel_uploadReport(api, nullptr, &noUpload));
    VehicleUpdateConfig* c = nullptr;
    const wchar_t* names[] = {L"ECM", L"NOPE"};
    EXPECT_ENGINE_ERROR(
        unknown, 1011,
        kel_createVehicleUpdateConfig(api, const_cast<wchar_t**>(names), 2, &unknown, &c));
}

TEST_F(VehicleUpdateTest, ConcurrencyAsynchronousUpdateReportsEachUnitAndTheWholeThenTheList) {
    UpdateWatch watch;
    ASSERT_TRUE(updateAsync(watch));
    const std::lock_guard lock(watch.mutex);
    EXPECT_EQ(watch.errorCode, 0);
    EXPECT_EQ(watch.final,
              (std::vector<std::wstring>{L"GW:4", L"BCM:0", L"DASH:4", L"ECM:0", L"TCM:4"}));
    std::vector<std::pair<std::wstring, uint32_t>> expected;
    for (const wchar_t* unit : {L"BCM", L"ECM"}) {
        for (uint32_t p = 0; p <= 100; p += 10) {
            expected.emplace_back(unit, p);
        }
    }
    EXPECT_EQ(watch.running, expected) << "per unit: 0 after the erase, then each tenth";
    EXPECT_TRUE(std::is_sorted(watch.overall.begin(), watch.overall.end()));
    EXPECT_EQ(watch.overall.back(), 100U);
}

TEST_F(VehicleUpdateTest, ConcurrencyACancelFinishesTheUnitBeingWrittenAndLeavesTheRest) {
    UpdateWatch watch;
    watch.cancelOn = L"BCM";
    watch.cancelAt = 30;
    ASSERT_TRUE(updateAsync(watch));
    {
        const std::lock_guard lock(watch.mutex);
        EXPECT_EQ(watch.errorCode, 1012);
        EXPECT_EQ(watch.final, (std::vector<std::wstring>{L"GW:4", L"BCM:0", L"DASH:3:1012",
                                                          L"ECM:3:1012", L"TCM:3:1012"}));
        EXPECT_EQ(watch.running.back(), (std::pair<std::wstring, uint32_t>{L"BCM", 30}));
    }
    EXPECT_EQ(version(L"BCM"), L"0460") << "finished, not left erased";
    EXPECT_EQ(version(L"ECM"), L"5428") << "never started";
    EXPECT_FALSE(lastUpdateSucceeded()) << "cancelled: not all was done";
}

TEST_F(VehicleUpdateTest, AnUploadCopiesTheReportAndItsTwinAndLogsIt) {
    put(root / "reports" / "r1.html", "<html>report</html>");
    put(root / "reports" / "r1.json",
        R"({"format": "kel report 1", "vehicle": {"vin": "WVWZZZ1KZ8W000417"}, "units": []})");
    put(root / "reports" / "lonely.html", "<html>no twin</html>");
    std::wstring details; // of the last refusal
    std::wstring comment = L"after the update";
    const auto upload = [&](const wchar_t* file, const wchar_t* folder, const wchar_t* name,
                            bool overwrite, bool twin) {
        auto* c = zeroed<UploadReportConfiguration>();
        c->reportFile = dup(file);
        c->folder = dup(folder);
        c->name = dup(name);
        c->vin = dup(L"");
        c->user = dup(L"meister");
        c->comment = dup(comment.c_str());
        c->overwrite = overwrite ? 1 : 0;
        c->withTwin = twin ? 1 : 0;
        ErrorSlot error;
        kel_uploadReport(api, c, &error);
        details = error ? error->details : L"";
        return error ? error->code : 0;
    };
    ASSERT_EQ(upload(L"reports/r1.html", L"", L"", false, true), 0);
    EXPECT_EQ(contents(root / "broker" / "reports" / "r1.html"), "<html>report</html>");
    EXPECT_EQ(contents(root / "broker" / "reports" / "r1.json"),
              contents(root / "reports" / "r1.json"));
    const std::string log = contents(root / "broker" / "uploads.jsonl");
    EXPECT_NE(log.find(R"("vin":"WVWZZZ1KZ8W000417")"), std::string::npos) << log;
    EXPECT_NE(log.find(R"("user":"meister")"), std::string::npos);
    EXPECT_NE(log.find(R"("file":"reports/r1.html")"), std::string::npos);
    const std::string html = "<html>report</html>";
    EXPECT_NE(log.find(crcText(crc32(Bytes(html.begin(), html.end())))), std::string::npos);

    // The same name again: refused unless it may overwrite, and nothing changed.
    put(root / "reports" / "r1.html", "<html>second</html>");
    EXPECT_EQ(upload(L"reports/r1.html", L"", L"", false, false), 2212);
    EXPECT_EQ(contents(root / "broker" / "reports" / "r1.html"), "<html>report</html>");
    EXPECT_EQ(upload(L"reports/r1.html", L"", L"", true, false), 0);
    EXPECT_EQ(contents(root / "broker" / "reports" / "r1.html"), "<html>second</html>");
    const std::string twoLines = contents(root / "broker" / "uploads.jsonl");
    EXPECT_EQ(std::count(twoLines.begin(), twoLines.end(), '\n'), 2);

    // Another folder and name; then what may not be: a missing twin, a way out.
    EXPECT_EQ(upload(L"reports/r1.html", L"workshop/2026", L"car.html", false, true), 0);
    EXPECT_TRUE(fs::exists(root / "broker" / "workshop" / "2026" / "car.json"));
    EXPECT_EQ(upload(L"reports/lonely.html", L"", L"", false, true), 2213);
    EXPECT_FALSE(fs::exists(root / "broker" / "reports" / "lonely.html"));
    EXPECT_EQ(upload(L"reports/r1.html", L"../exchange", L"", false, false), 1606);
    EXPECT_EQ(details, L"../exchange") << "the folder as given, no stand-in of the engine's";
    EXPECT_EQ(upload(L"reports/r1.html", L"", L"../x.html", false, false), 1600);
    EXPECT_EQ(upload(L"../outside/secret.txt", L"", L"", false, false), 1606);
    EXPECT_EQ(upload(L"reports/none.html", L"", L"", false, false), 1609);

    // The broker's own files are no reports: its root is not a report folder, nor is the
    // log's name a report's (an upload there replaced the log).
    const std::string logBefore = contents(root / "broker" / "uploads.jsonl");
    EXPECT_EQ(upload(L"reports/r1.html", L".", L"uploads.jsonl", true, false), 2211);
    EXPECT_EQ(upload(L"reports/r1.html", L"./", L"r2.html", true, false), 2211);
    EXPECT_EQ(upload(L"reports/r1.html", L"reports", L"uploads.jsonl", true, false), 2211);
    EXPECT_EQ(contents(root / "broker" / "uploads.jsonl"), logBefore);

    // Text with no UTF-8 form is logged with U+FFFD (it ended the process, the report
    // copied and its line unwritten).
    comment = std::wstring{L'n', static_cast<wchar_t>(0xDC00)};
    EXPECT_EQ(upload(L"reports/r1.html", L"", L"r3.html", false, false), 0);
    EXPECT_NE(contents(root / "broker" / "uploads.jsonl").find("\"comment\":\"n\xEF\xBF\xBD\""),
              std::string::npos);

    // A line that cannot be written undoes the upload: a new report goes again, a
    // replaced one comes back, and nothing is left beside them.
    fs::remove(root / "broker" / "uploads.jsonl");
    fs::create_directory(root / "broker" / "uploads.jsonl");
    put(root / "reports" / "r1.html", "<html>third</html>");
    EXPECT_EQ(upload(L"reports/r1.html", L"", L"r4.html", false, false), 1611);
    EXPECT_EQ(upload(L"reports/r1.html", L"", L"r3.html", true, false), 1611);
    EXPECT_FALSE(fs::exists(root / "broker" / "reports" / "r4.html"));
    EXPECT_EQ(contents(root / "broker" / "reports" / "r3.html"), "<html>second</html>");
    EXPECT_EQ(std::distance(fs::directory_iterator(root / "broker" / "reports"), {}), 3);
}

} // namespace
