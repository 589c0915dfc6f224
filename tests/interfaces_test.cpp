// The bench's interfaces through the C exports, as a user sets up the path to the vehicle:
// connecting and what it allows, scans, resources, physical links, dynamic detection
// (also asynchronous, with cancel), DoIP, socket bridges, the terminal and the saved
// configuration. The default vehicle has VCI1 (connected), VCI2 (unplugged) and two
// dynamic interfaces, WVCI-7 and WVCI-9. Named *Concurrency* where threads are involved,
// so that they also run under ThreadSanitizer.
#include "support.h"
#include "uds.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace kel_test;
using namespace std::chrono_literals;

using Interfaces = EngineTest;
using InterfacesConcurrency = EngineTest;
using Strings = List<wchar_t, release_StringArray>;
using Links = List<PhysicalLinksOnModule, release_PhysicalLinksOnModule_array>;
using Modules = List<ModuleDyn, release_ModuleDyn_array>;

wchar_t* dup(const wchar_t* text) { return duplicate_WString(text); }

ResourceInformation* resource(const wchar_t* name) {
    auto* r = zeroed<ResourceInformation>();
    r->itemText1 = dup(name);
    r->itemText2 = dup(L"added by the test");
    r->itemText3 = dup(L"ISO_15765_3_on_ISO_15765_2");
    r->itemText4 = dup(L"HS-CAN");
    r->pin = 1; // the 16-bit value of kel_addResource wins
    return r;
}

int32_t readDtcsError(TarnApi* api) {
    ErrorSlot error;
    List<ReadDtcResult, release_ReadDtcResult_array> results;
    kel_readDtcs(api, nullptr, 0, nullptr, &error, &results.items, &results.count);
    return error ? error->code : 0;
}

using Texts = std::vector<std::wstring>;

// Each scanned interface as "<name> <connected> <error code>:<resource>,...".
Texts scan(TarnApi* api, std::vector<const wchar_t*> names) {
    List<ScanInterfaceResult, release_ScanInterfaceResult_array> results;
    ErrorSlot error;
    kel_scanInterfaceConnection(api, const_cast<wchar_t**>(names.data()),
                                static_cast<uint32_t>(names.size()), &error, &results.items,
                                &results.count);
    EXPECT_FALSE(error);
    Texts out;
    for (uint32_t i = 0; i < results.count; ++i) {
        const auto* info = results.items[i]->interfaceInfo;
        std::wstring s = info != nullptr ? info->itemText1 : L"";
        s += L" " + std::to_wstring(info != nullptr ? info->flag1 : 0) + L" " +
             std::to_wstring(kel_test::codeIn(results.items[i]->error)) + L":";
        for (uint32_t k = 0; info != nullptr && k < info->resourceCount; ++k) {
            s += (k == 0 ? L"" : L",") + std::wstring(info->resources[k]->itemText1);
        }
        out.push_back(s);
    }
    return out;
}

std::vector<std::wstring> names(ModuleDyn** modules, uint32_t count) {
    std::vector<std::wstring> out;
    for (uint32_t i = 0; i < count; ++i) {
        out.emplace_back(modules[i]->name);
    }
    return out;
}

// An interface record as a caller hands one in: a name, every other text empty.
InterfaceInformation* interfaceNamed(const std::wstring& name) {
    auto* info = zeroed<InterfaceInformation>();
    for (wchar_t** text : {&info->itemText1, &info->itemText2, &info->itemText3, &info->itemText4,
                           &info->text1, &info->text2}) {
        *text = dup(text == &info->itemText1 ? name.c_str() : L"");
    }
    return info;
}

DynInterfaceDetection* detection(const wchar_t* pattern, bool onlyFree) {
    auto* d = zeroed<DynInterfaceDetection>();
    d->namePattern = dup(pattern);
    d->kind = dup(L"");
    d->onlyFree = onlyFree ? 1 : 0;
    return d;
}

TEST_F(Interfaces, DisconnectedInterfacesStopDiagnosticCallsUntilConnectedAgain) {
    ASSERT_EQ(readDtcsError(api), 0);

    ErrorSlot error;
    ASSERT_SUCCEEDS(ok, kel_disconnectInterfaces(api, &ok));
    EXPECT_EQ(readDtcsError(api), 1404);
    EXPECT_ENGINE_ERROR(
        async, 1404,
        EXPECT_EQ(kel_readDtcsAsync(api, nullptr, 0, nullptr, &async, nullptr, nullptr), 0u));
    // Reading the project's targets needs no communication.
    fetch<List<Target, release_Target_array>>([&](auto... out) { kel_getTargets(api, out...); });

    EXPECT_EQ(scan(api, {L"VCI1"}), Texts{L"VCI1 0 0:UDS_CAN_HS,KWP_KLINE"});
    ASSERT_SUCCEEDS(ok, kel_connectInterfaces(api, &ok));
    EXPECT_EQ(scan(api, {L"VCI1", L"VCI2"}),
              (Texts{L"VCI1 1 0:UDS_CAN_HS,KWP_KLINE", L"VCI2 0 1403:"}))
        << "VCI2 is not plugged in";
    EXPECT_EQ(readDtcsError(api), 0);

    // Connecting fails when no configured interface is plugged in.
    ASSERT_SUCCEEDS(ok, kel_removeInterface(api, L"VCI1", &ok));
    EXPECT_EQ(readDtcsError(api), 1404) << "the connected interface went with it";
    kel_connectInterfaces(api, &error);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code, 1404);
    EXPECT_NE(std::wstring(error->details).find(L"VCI2 is not plugged in"), std::wstring::npos);
}

TEST_F(Interfaces, ScanReportsEachInterfaceWithItsOwnError) {
    const auto results = scan(api, {L"VCI1", L"VCI2", L"NOPE"});
    EXPECT_EQ(results, (Texts{L"VCI1 1 0:UDS_CAN_HS,KWP_KLINE", L"VCI2 0 1403:", L" 0 1400:"}));
    EXPECT_EQ(scan(api, {}), (Texts{L"VCI1 1 0:UDS_CAN_HS,KWP_KLINE", L"VCI2 0 1403:",
                                    L"WVCI-7 0 0:UDS_DOIP", L"WVCI-9 0 0:"}));
}

TEST_F(Interfaces, ResourcesAreAddedWithTheirPinAndRemovedByName) {
    ASSERT_SUCCEEDS(ok, kel_addResource(api, L"VCI1", resource(L"UDS_CAN_MS"), 0xABCD, &ok));
    const auto devices = fetch<List<DeviceInfo, release_DeviceInfo_array>>(
        [&](auto... out) { kel_getRegisteredDevices(api, out...); });
    ASSERT_EQ(devices->count, 4u);
    EXPECT_EQ(devices->items[0]->value3, 3u) << "VCI1 now has three resources";
    // The u32 after the 64-bit handle tells a dynamic interface from a configured one.
    EXPECT_EQ(devices->items[0]->value6, 0u) << "VCI1 is configured";
    EXPECT_EQ(devices->items[3]->value6, 1u) << "WVCI-9 is dynamic";
    EXPECT_NE(devices->items[3]->handle, devices->items[0]->handle);

    wchar_t* vci1[] = {const_cast<wchar_t*>(L"VCI1")};
    const auto results = fetch<List<ScanInterfaceResult, release_ScanInterfaceResult_array>>(
        [&](auto... out) { kel_scanInterfaceConnection(api, vci1, 1, out...); });
    ASSERT_EQ(results->count, 1u);
    const auto* info = results->items[0]->interfaceInfo;
    ASSERT_EQ(info->resourceCount, 3u);
    EXPECT_STREQ(info->resources[2]->itemText1, L"UDS_CAN_MS");
    EXPECT_EQ(info->resources[2]->pin, 0xABCDu);
    EXPECT_EQ(info->resources[2]->id, 3u);

    EXPECT_ENGINE_ERROR(duplicate, 1402,
                        kel_addResource(api, L"VCI1", resource(L"UDS_CAN_MS"), 1, &duplicate));
    EXPECT_ENGINE_ERROR(unknownInterface, 1400,
                        kel_addResource(api, L"NOPE", resource(L"X"), 1, &unknownInterface));

    EXPECT_ENGINE_ERROR(removed, 0, kel_removeResource(api, L"VCI1", L"UDS_CAN_MS", &removed));
    EXPECT_EQ(scan(api, {L"VCI1"}), Texts{L"VCI1 1 0:UDS_CAN_HS,KWP_KLINE"});
    EXPECT_ENGINE_ERROR(again, 1401, kel_removeResource(api, L"VCI1", L"UDS_CAN_MS", &again));
}

TEST_F(Interfaces, AddedInterfaceIsCompletedAndCarriesItsVendorModule) {
    auto* info = interfaceNamed(L"VCI3");
    info->flag3 = 1;
    InterfaceInformation* added = nullptr;
    ASSERT_SUCCEEDS(ok,
                    kel_addInterface(api, info, L"BENCH_DPDU", L"", L"192.168.10.30", &ok, &added));
    ASSERT_NE(added, nullptr);
    EXPECT_STREQ(added->itemText2, L"VCI3") << "the long name defaults to the name";
    EXPECT_STREQ(added->text2, L"192.168.10.30");
    EXPECT_NE(added->value, 0u);
    EXPECT_EQ(added->flag1, 0) << "added, not connected";
    ASSERT_EQ(added->itemCount, 1u);
    EXPECT_STREQ(added->items[0]->itemText1, L"BENCH_DPDU");

    const auto texts = [](const Strings& list) {
        return std::vector<std::wstring>(list.items, list.items + list.count);
    };
    EXPECT_EQ(texts(*fetch<Strings>([&](auto... out) {
                  kel_getVendorModuleNames(api, interfaceNamed(L"VCI3"), out...);
              })),
              std::vector<std::wstring>{L"BENCH_DPDU"});
    // Every interface's modules, each once; a pattern selects interfaces by name.
    const auto modules = [&](const wchar_t* pattern) {
        return texts(*fetch<Strings>(
            [&](auto... out) { kel_getVendorModuleNamesEx(api, pattern, out...); }));
    };
    EXPECT_EQ(modules(L""),
              (std::vector<std::wstring>{L"SIM_VCI_DPDU", L"SIM_WVCI_DOIP", L"BENCH_DPDU"}));
    EXPECT_EQ(modules(L"WVCI-?"), std::vector<std::wstring>{L"SIM_WVCI_DOIP"});

    InterfaceInformation* again = nullptr;
    EXPECT_ENGINE_ERROR(
        twice, 1402, kel_addInterface(api, interfaceNamed(L"VCI3"), L"", L"", L"", &twice, &again));

    EXPECT_ENGINE_ERROR(removed, 0, kel_removeInterface(api, L"VCI3", &removed));
    wchar_t* longName = nullptr;
    EXPECT_ENGINE_ERROR(longNameError, 1400,
                        kel_getInterfaceLongName(api, L"VCI3", &longNameError, &longName));
    release_InterfaceInformation(added);
}

TEST_F(Interfaces, PhysicalLinksAreReplacedWholeOrNotAtAll) {
    wchar_t* vci1[] = {const_cast<wchar_t*>(L"VCI1")};
    const auto links = [&] {
        return fetch<Links>([&](auto... out) { kel_getPhysicalLinks(api, vci1, 1, out...); });
    };
    const auto currentLinks = links();
    Links& current = *currentLinks;
    ASSERT_EQ(current.count, 1u);
    ASSERT_EQ(current.items[0]->linkCount, 2u);
    EXPECT_STREQ(current.items[0]->links[1]->itemText1, L"K-Line");

    // Drop the K-line and slow the CAN down.
    auto* entry = current.items[0];
    release_PhysicalLink(entry->links[1]);
    entry->linkCount = 1;
    entry->links[0]->baudrate = 250000;
    EXPECT_EQ(fetch<Links>([&](auto... out) {
                  kel_setPhysicalLinks(api, current.items, current.count, out...);
              })->count,
              1u);
    const auto again = links();
    ASSERT_EQ(again->count, 1u);
    ASSERT_EQ(again->items[0]->linkCount, 1u);
    EXPECT_STREQ(again->items[0]->links[0]->itemText1, L"HS-CAN");
    EXPECT_EQ(again->items[0]->links[0]->baudrate, 250000u);

    // One unknown module: nothing changes.
    std::wstring unknown = L"NOPE";
    auto* saved = current.items[0]->module;
    current.items[0]->module = unknown.data();
    Links none;
    EXPECT_ENGINE_ERROR(unknownModule, 1400,
                        kel_setPhysicalLinks(api, current.items, current.count, &unknownModule,
                                             &none.items, &none.count));
    current.items[0]->module = saved;
}

TEST_F(Interfaces, DetectionFindsTheDynamicInterfacesAndConnectsThem) {
    const auto detectEx = [&](uint32_t most) {
        return fetch<Modules>([&](auto... out) { kel_detectDynInterfacesEx(api, most, out...); });
    };
    const auto detect = [&](const wchar_t* pattern, bool onlyFree) {
        const auto found = fetch<Modules>([&](auto... out) {
            kel_detectDynInterfaces(api, 0, detection(pattern, onlyFree), out...);
        });
        return names(found->items, found->count);
    };
    const auto all = detectEx(0);
    EXPECT_EQ(names(all->items, all->count), (std::vector<std::wstring>{L"WVCI-7", L"WVCI-9"}));
    ASSERT_NE(all->items[0]->vendorModule, nullptr);
    EXPECT_STREQ(all->items[0]->vendorModule->itemText1, L"SIM_WVCI_DOIP");
    EXPECT_EQ(detect(L"*7", false), (std::vector<std::wstring>{L"WVCI-7"}));
    EXPECT_EQ(detectEx(1)->count, 1u);

    ErrorSlot error;
    ASSERT_SUCCEEDS(ok,
                    kel_connectDynInterface(api, L"WVCI-7", 1, detection(L"WVCI-*", false), &ok));
    EXPECT_EQ(detect(L"", true), (std::vector<std::wstring>{L"WVCI-9"}));
    const auto again = detectEx(0);
    EXPECT_EQ(again->items[0]->flag1, 1) << "connected";
    EXPECT_EQ(again->items[0]->flag2, 1) << "for exclusive use";

    // The dynamic interface alone carries diagnostic calls.
    kel_disconnectInterfaces(api, &error);
    ASSERT_SUCCEEDS(ok, kel_connectDynInterfaceEx(api, L"WVCI-9", 0, &ok));
    EXPECT_EQ(readDtcsError(api), 0);
    const wchar_t* dynamic[] = {L"WVCI-9"};
    ASSERT_SUCCEEDS(ok, kel_disconnectDynInterfaces(api, const_cast<wchar_t**>(dynamic), 1, &ok));
    EXPECT_EQ(readDtcsError(api), 1404);

    EXPECT_ENGINE_ERROR(configured, 1411, kel_connectDynInterfaceEx(api, L"VCI1", 0, &configured));
    EXPECT_ENGINE_ERROR(
        notFound, 1411,
        kel_connectDynInterface(api, L"WVCI-9", 0, detection(L"*7", false), &notFound));
}

TEST_F(InterfacesConcurrency, AsynchronousDetectionAndScanReportAsTheirSynchronousForms) {
    kel_test::AsyncReports<ModuleDyn, release_ModuleDyn_array> found(
        [](const ModuleDyn& m) { return std::wstring(m.name); });
    found.run([&](auto... call) {
        return kel_detectDynInterfacesAsync(api, 0, detection(L"", false), call...);
    });
    EXPECT_EQ(found.texts, (std::vector<std::vector<std::wstring>>{{L"WVCI-7"}, {L"WVCI-9"}}))
        << "each module as it is found";
    EXPECT_EQ(found.finals, (std::vector<bool>{false, true}));
    EXPECT_EQ(found.errorCode, 0);

    kel_test::AsyncReports<ScanInterfaceResult, release_ScanInterfaceResult_array> scanned(
        [](const ScanInterfaceResult& r) {
            return std::to_wstring(r.error != nullptr ? r.error->code : 0);
        });
    const wchar_t* selected[] = {L"VCI2", L"VCI1"};
    scanned.run([&](auto... call) {
        return kel_scanInterfaceConnectionAsync(api, const_cast<wchar_t**>(selected), 2, call...);
    });
    EXPECT_EQ(scanned.all(), (std::vector<std::wstring>{L"1403", L"0"}));
}

std::vector<std::wstring> clearCollection(TarnApi* api) {
    const auto errors = fetch<List<KelError, release_KelError_array>>(
        [&](auto... out) { kel_clearDoIPEcuCollection(api, out...); });
    std::vector<std::wstring> out;
    for (uint32_t i = 0; i < errors->count; ++i) {
        EXPECT_EQ(errors->items[i]->code, 1407);
        out.emplace_back(errors->items[i]->details);
    }
    return out;
}

TEST_F(Interfaces, DoIPCollectionKeepsTheEntityInUseWithItsError) {
    EXPECT_TRUE(clearCollection(api).empty()) << "nothing collected before a broadcast";
    ErrorSlot error;
    ASSERT_SUCCEEDS(ok, kel_executeDoIPBroadcast(api, &ok));
    const auto first = clearCollection(api);
    ASSERT_EQ(first.size(), 1u);
    EXPECT_NE(first[0].find(L"0x1010"), std::wstring::npos);
    EXPECT_NE(first[0].find(L"WVWZZZ1KZ8W000417"), std::wstring::npos);
    EXPECT_EQ(clearCollection(api), first) << "the entity in use stays collected";

    // A bridge reaches only a collected entity.
    uint64_t bridge = 0;
    EXPECT_ENGINE_ERROR(cleared, 1409,
                        kel_createSocketBridge(api, 13400, 0x1000, &cleared, &bridge));
    EXPECT_EQ(bridge, 0u);
    ASSERT_SUCCEEDS(ok, kel_createSocketBridge(api, 13400, 0x1010, &ok, &bridge));
    ASSERT_NE(bridge, 0u);

    uint8_t works = 0xAA;
    kel_testSocketBridge(api, bridge, &error, &works);
    EXPECT_EQ(works, 1);
    kel_disconnectInterfaces(api, &error);
    kel_testSocketBridge(api, bridge, &error, &works);
    EXPECT_EQ(works, 0) << "no interface carries it";

    ASSERT_SUCCEEDS(ok, kel_releaseSocketBridge(api, bridge, &ok));
    EXPECT_ENGINE_ERROR(twice, 1406, kel_releaseSocketBridge(api, bridge, &twice));
    EXPECT_ENGINE_ERROR(released, 1406, kel_testSocketBridge(api, bridge, &released, &works));

    EXPECT_ENGINE_ERROR(badPort, 1408,
                        kel_createSocketBridge(api, 70000, 0x1010, &badPort, &bridge));
}

TEST_F(Interfaces, TerminalOpensOnceAndClosesOnce) {
    ErrorSlot error;
    uint8_t opened = 0xAA;
    kel_openTerminal(api, &error, &opened);
    EXPECT_EQ(opened, 1);
    kel_openTerminal(api, &error, &opened);
    EXPECT_EQ(opened, 0) << "already open";
    ASSERT_SUCCEEDS(ok, kel_closeTerminal(api, &ok));
    EXPECT_ENGINE_ERROR(twice, 1410, kel_closeTerminal(api, &twice));
}

TEST_F(Interfaces, PinStateAndWLanBelongToTheirInterface) {
    const wchar_t* both[] = {L"VCI1", L"WVCI-7"};
    ErrorSlot error;
    ASSERT_SUCCEEDS(ok, kel_setEthernetPinState(api, 3, const_cast<wchar_t**>(both), 2, &ok));
    uint32_t state = 0;
    kel_getEthernetPinState(api, L"WVCI-7", &error, &state);
    EXPECT_EQ(state, 3u);
    // One unknown name: no interface changes.
    const wchar_t* withUnknown[] = {L"VCI1", L"NOPE"};
    ErrorSlot unknown;
    kel_setEthernetPinState(api, 5, const_cast<wchar_t**>(withUnknown), 2, &unknown);
    ASSERT_TRUE(unknown);
    kel_getEthernetPinState(api, L"VCI1", &error, &state);
    EXPECT_EQ(state, 3u);

    const auto wlan = kel_test::fetchRecord(release_WLanSignalData, [&](auto... out) {
        kel_getWLanSignalData(api, L"WVCI-7", out...);
    });
    ASSERT_NE(wlan.get(), nullptr);
    EXPECT_EQ(wlan->value11, 80);
    EXPECT_STREQ(wlan->text, L"Workshop-Diag");
    WLanSignalData* none = nullptr;
    EXPECT_ENGINE_ERROR(noWLan, 1405, kel_getWLanSignalData(api, L"VCI1", &noWLan, &none));
}

TEST_F(Interfaces, ConfigurationAndProvidersAreReplacedAsGiven) {
    ErrorSlot error;
    InterfaceConfiguration* config = nullptr;
    kel_getInterfaceConfiguration(api, &error, &config);
    ASSERT_NE(config, nullptr);
    ASSERT_EQ(config->entryCount, 2u) << "the configured interfaces, not the dynamic ones";
    // Keep VCI1 only, under a new long name.
    release_Memory(config->entries[0]->text2);
    config->entries[0]->text2 = dup(L"Renamed");
    release_InterfaceConfigurationEntry(config->entries[1]);
    config->entryCount = 1;
    ASSERT_SUCCEEDS(ok, kel_setInterfaceConfiguration(api, &ok, config));
    EXPECT_EQ(scan(api, {}),
              (Texts{L"VCI1 1 0:UDS_CAN_HS,KWP_KLINE", L"WVCI-7 0 0:UDS_DOIP", L"WVCI-9 0 0:"}))
        << "a kept interface keeps its connection";
    wchar_t* longName = nullptr;
    kel_getInterfaceLongName(api, L"VCI1", &error, &longName);
    ASSERT_NE(longName, nullptr);
    EXPECT_STREQ(longName, L"Renamed");
    release_Memory(longName);

    using Providers = List<InterfaceProvider, release_InterfaceProvider_array>;
    const auto providers = [&] {
        return fetch<Providers>([&](auto... out) { kel_getInterfaceProviders(api, out...); });
    };
    const auto both = providers();
    ASSERT_EQ(both->count, 2u);
    both->items[1]->value = 0;
    ASSERT_SUCCEEDS(ok, kel_setInterfaceProviders(api, &ok, both->items + 1, 1));
    const auto after = providers();
    ASSERT_EQ(after->count, 1u);
    EXPECT_STREQ(after->items[0]->itemText1, L"SimDoIP");
    EXPECT_EQ(after->items[0]->value, 0u);
}

// A saved configuration is what the next engine starts with. Saves are written beside and
// renamed over: a reader never finds the file empty or cut short, even while saves follow
// each other. A name with no UTF-8 form is saved with
// U+FFFD in its place (writing it cut the file to 0 bytes and ended the process).
TEST_F(InterfacesConcurrency, SavedConfigurationIsAlwaysWholeAndKeepsReplacedText) {
    const auto root = freshTempPath("kel_interfaces_test");
    kelsim_setDataRoot(root.wstring().c_str());
    const std::wstring name{L'V', L'C', L'I', static_cast<wchar_t>(0xD800)};
    ErrorSlot error;
    InterfaceInformation* added = nullptr;
    ASSERT_SUCCEEDS(ok, kel_addInterface(api, interfaceNamed(name), L"", L"", L"", &ok, &added));
    release_InterfaceInformation(added);
    kel_removeInterface(api, L"VCI2", &error);

    const auto file = root / "interfaces" / "configuration.json";
    std::atomic<bool> saving{true};
    std::atomic<int> reads{0};
    std::atomic<int> partial{0};
    ASSERT_SUCCEEDS(ok, kel_saveInterfaceConfiguration(api, &ok));
    std::thread reader([&] {
        while (saving) {
            std::ifstream in(file, std::ios::binary);
            if (in) { // Windows refuses an open while the name is being replaced
                const std::string text((std::istreambuf_iterator<char>(in)), {});
                partial += text.empty() || text.back() != '}' ? 1 : 0;
                ++reads;
            }
            in.close();
#if defined(_WIN32)
            // A reader that opens the file again at once keeps Windows from ever replacing
            // it (a C runtime stream denies deletion while open); real readers pause.
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
#endif
        }
    });
    for (int i = 0; i < 200; ++i) {
        ErrorSlot again;
        kel_saveInterfaceConfiguration(api, &again);
        EXPECT_FALSE(again);
    }
    saving = false;
    reader.join();
    EXPECT_EQ(partial, 0) << "of " << reads << " reads";

    releaseTarnApi(api);
    kelsim_restart();
    api = kel_getTarnApi();
    kel_initialize(api, &error);
    EXPECT_EQ(scan(api, {}), (Texts{L"VCI1 1 0:UDS_CAN_HS,KWP_KLINE", L"WVCI-7 0 0:UDS_DOIP",
                                    L"WVCI-9 0 0:", L"VCI\uFFFD 0 1403:"}))
        << "VCI2 stays removed";
    kelsim_setDataRoot(L"");
    std::filesystem::remove_all(root);
}

} // namespace
