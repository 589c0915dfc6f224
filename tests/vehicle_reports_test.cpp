// Vehicle data, the selected vehicle and reports on the default vehicle: what the units
// report now (after a clear, a flash, with a silent unit), the selection and its VIN
// check, and the report files: the JSON twin parsed and compared with what the
// diagnostic exports read, the HTML page checked for escaped texts.
#include "Describe.h"
#include "support.h"
#include "uds.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <regex>
#include <string>
#include <vector>

namespace {

using namespace kel_test;
using Json = nlohmann::json;

using Data = List<VehicleData, release_VehicleData_array>;
using Bytes = std::vector<uint8_t>;

std::string utf8(const wchar_t* text) {
    return Varno::Kel_cpp::Reference::toUtf8(text != nullptr ? text : L"");
}

wchar_t* dup(const std::wstring& text) { return duplicate_WString(text.c_str()); }

// A block of `count` strings on the library's heap, as a record's string list.
wchar_t** dupAll(const std::vector<std::wstring>& texts) {
    if (texts.empty()) {
        return nullptr;
    }
    auto** block = static_cast<wchar_t**>(allocate_Memory(texts.size() * sizeof(wchar_t*)));
    for (std::size_t i = 0; i < texts.size(); ++i) {
        block[i] = dup(texts[i]);
    }
    return block;
}

struct Information {
    std::wstring vin;
    std::wstring model;
    uint32_t modelYear = 0;
    uint32_t mileage = 0;
    std::wstring licensePlate = {};
    std::vector<std::wstring> equipment = {};
    bool operator==(const Information&) const = default;
};

// The selection as a report's "vehicle" shows it.
Json asJson(const Information& i) {
    Json equipment = Json::array();
    for (const auto& item : i.equipment) {
        equipment.push_back(utf8(item.c_str()));
    }
    return {{"vin", utf8(i.vin.c_str())},
            {"model", utf8(i.model.c_str())},
            {"modelYear", i.modelYear},
            {"mileage", i.mileage},
            {"licensePlate", utf8(i.licensePlate.c_str())},
            {"equipment", equipment}};
}

// A unit's vehicle data as "vin|model|variant|software|bus|address|status|DTCs".
std::string describe(const VehicleData& d) {
    return utf8(d.vin) + "|" + utf8(d.model) + "|" + utf8(d.variant) + "|" +
           utf8(d.softwareVersion) + "|" + utf8(d.bus) + "|" + std::to_string(d.address) + "|" +
           std::to_string(d.status) + "|" + std::to_string(d.dtcCount);
}

VehicleInformation* cInformation(const Information& i) {
    auto* c = zeroed<VehicleInformation>();
    c->vin = dup(i.vin);
    c->model = dup(i.model);
    c->modelYear = i.modelYear;
    c->mileage = i.mileage;
    c->licensePlate = dup(i.licensePlate);
    c->equipment = dupAll(i.equipment);
    c->equipmentCount = static_cast<uint32_t>(i.equipment.size());
    return c;
}

class VehicleReportsTest : public EngineTest {
protected:
    void SetUp() override {
        EngineTest::SetUp();
        // The data root outlives a test: start with an empty reports directory.
        wchar_t root[4096];
        ASSERT_GT(kelsim_dataRoot(root, 4096), 0);
        std::error_code e;
        for (const auto& entry :
             std::filesystem::directory_iterator(std::filesystem::path(root) / "reports", e)) {
            std::filesystem::remove_all(entry.path(), e);
        }
    }

    Information selected() {
        ErrorSlot error;
        VehicleInformation* c = nullptr;
        kel_getSelectedVehicleInformation(api, &error, &c);
        EXPECT_FALSE(error);
        if (c == nullptr) {
            return {};
        }
        Information i{c->vin, c->model, c->modelYear, c->mileage, c->licensePlate, {}};
        for (uint32_t k = 0; k < c->equipmentCount; ++k) {
            i.equipment.emplace_back(c->equipment[k]);
        }
        release_VehicleInformation(c);
        return i;
    }
    int32_t select(VehicleInformation* information) {
        ErrorSlot error;
        kel_setSelectedVehicleInformation(api, &error, information);
        return error ? error->code : 0;
    }

    std::unique_ptr<Data> vehicleData() {
        auto out = std::make_unique<Data>();
        ErrorSlot error;
        kel_getVehicleData(api, &error, &out->items, &out->count);
        EXPECT_FALSE(error) << (error ? error->code : 0);
        return out;
    }
    static const VehicleData* unit(const Data& data, const wchar_t* target) {
        for (uint32_t i = 0; i < data.count; ++i) {
            if (std::wcscmp(data.items[i]->target, target) == 0) {
                return data.items[i];
            }
        }
        ADD_FAILURE() << "no vehicle data of " << utf8(target);
        static const VehicleData none{};
        return &none;
    }

    // The report's path, or the error code as text.
    std::wstring report(VehicleReportConfig* config, int32_t* code = nullptr) {
        ErrorSlot error;
        wchar_t* path = nullptr;
        kel_createVehicleReport(api, config, &error, &path);
        if (code != nullptr) {
            *code = error ? error->code : 0;
        } else {
            EXPECT_FALSE(error) << (error ? error->code : 0) << " "
                                << (error ? utf8(error->details) : "");
        }
        std::wstring out = path != nullptr ? path : L"";
        release_Memory(path);
        return out;
    }
    std::string readFile(const std::wstring& path) {
        ErrorSlot error;
        void* data = nullptr;
        uint32_t length = 0;
        kel_readFile(api, path.c_str(), 0, 0, 0, &error, &data, &length);
        EXPECT_FALSE(error) << utf8(path.c_str());
        std::string text(static_cast<const char*>(data), length);
        release_Memory(data);
        return text;
    }
    Json twin(const std::wstring& html) {
        EXPECT_EQ(html.substr(html.size() - 5), L".html");
        return Json::parse(readFile(html.substr(0, html.size() - 5) + L".json"));
    }
    auto readDtcs() {
        return fetch<List<ReadDtcResult, release_ReadDtcResult_array>>(
            [&](auto... out) { kel_readDtcs(api, ecmOnly, 1, nullptr, out...); });
    }
    void clearDtcs() {
        fetch<List<ClearDtcResult, release_ClearDtcResult_array>>(
            [&](auto... out) { kel_clearAllDtcs(api, ecmOnly, 1, out...); });
    }
    wchar_t* ecmOnly[1] = {const_cast<wchar_t*>(L"ECM")};

    bool exists(const std::wstring& path) {
        ErrorSlot error;
        uint8_t found = 0;
        kel_pathExists(api, path.c_str(), &error, &found);
        EXPECT_FALSE(error);
        return found != 0;
    }
};

VehicleReportConfig* reportConfig(const std::wstring& name, const std::wstring& title,
                                  const std::wstring& comment,
                                  const std::vector<std::wstring>& targets, bool identification,
                                  bool dtcs) {
    auto* c = zeroed<VehicleReportConfig>();
    c->name = dup(name);
    c->title = dup(title);
    c->comment = dup(comment);
    c->targets = dupAll(targets);
    c->targetCount = static_cast<uint32_t>(targets.size());
    c->identification = identification ? 1 : 0;
    c->dtcs = dtcs ? 1 : 0;
    return c;
}

TEST_F(VehicleReportsTest, TheSelectedVehicleRoundTripsAndStartsAsDescribed) {
    const Information described = selected();
    EXPECT_EQ(described.vin, L"WVWZZZ1KZ8W000417");
    EXPECT_EQ(described.modelYear, 2008U);
    EXPECT_EQ(described.equipment.size(), 3U);

    const Information other{L"1HGCM82633A004352", L"Coupé \"GT\"", 2003, 241000, L"",
                            {L"X1", L"Ä"}};
    ASSERT_EQ(select(cInformation(other)), 0);
    EXPECT_EQ(selected(), other);

    // Refusals keep the selection.
    const std::vector<std::pair<Information, int32_t>> refused = {
        {{L"1HGCM82633A00435", L"M"}, 2400},
        {{L"1HGCM82633A0043521", L"M"}, 2400},
        {{L"1HGCM82633A00435I", L"M"}, 2400},
        {{L"1HGCM82633A00435O", L"M"}, 2400},
        {{L"QHGCM82633A004352", L"M"}, 2400},
        {{L"1hgcm82633a004352", L"M"}, 2400},
        {{L"", L"M"}, 2400},
        {{L"1HGCM82633A00435\u0663", L"M"}, 2400},
        {{L"1HGCM82633A004352", L"M\n"}, 2401},
        {{L"1HGCM82633A004352", L"M", 1500}, 2401},
        {{L"1HGCM82633A004352", L"M", 0, 0, L"", {L""}}, 2401},
    };
    for (const auto& [information, code] : refused) {
        EXPECT_EQ(select(cInformation(information)), code) << utf8(information.vin.c_str());
    }
    EXPECT_EQ(select(nullptr), 2401);
    EXPECT_EQ(selected(), other);

    ASSERT_EQ(kelsim_setVehicleJson(R"({"ecus": [], "vehicle": {"vin": "WVWZZZ1KZ8W00041I"}})"), -1)
        << "the description's VIN is checked too";
}

TEST_F(VehicleReportsTest, VehicleDataDescribesEachUnitAsItIsNow) {
    auto before = vehicleData();
    ASSERT_EQ(before->count, 6U);
    // The DTC count is what readDtcs reads now; every entry carries the vehicle's VIN.
    const auto dtcs = readDtcs();
    EXPECT_GT(dtcs->items[0]->dtcCount, 0U);
    const std::string vehicle = "WVWZZZ1KZ8W000417|" + utf8(selected().model.c_str());
    EXPECT_EQ(describe(*unit(*before, L"ECM")),
              vehicle + "|ECM_EDC17_CR_2L0_V3|5428|Powertrain CAN|2016|0|" +
                  std::to_string(dtcs->items[0]->dtcCount));
    EXPECT_EQ(describe(*unit(*before, L"ACC")), vehicle + "|||Extended CAN|1879|1|0") << "silent";

    clearDtcs();
    auto after = vehicleData();
    EXPECT_EQ(unit(*after, L"ECM")->dtcCount, 0U);
    EXPECT_EQ(unit(*after, L"TCM")->dtcCount, unit(*before, L"TCM")->dtcCount);
    // An erased unit has no version and stores that its programming is incomplete.
    kel_test::enterEcmProgramming(api);
    ASSERT_EQ(kel_test::sendRaw(api, L"ECM", {0x31, 0x01, 0xFF, 0x00}).at(0), 0x71);
    auto erased = vehicleData();
    EXPECT_STREQ(unit(*erased, L"ECM")->softwareVersion, L"");
    EXPECT_EQ(unit(*erased, L"ECM")->dtcCount, 1U);

    // The VIN comes from the first unit that gives one; none gives an empty VIN.
    ASSERT_EQ(kelsim_setVehicleJson(R"({"ecus": [
        {"name": "Quiet", "responds": false, "identification": [
            {"id": "F190", "name": "VIN", "value": "AAAAAAAAAAAAAAAAA", "length": 17}]},
        {"name": "Plain"},
        {"name": "Body", "identification": [
            {"id": "F190", "name": "VIN", "value": "WBA00000000000001", "length": 17}]}]})"),
              0);
    auto made = vehicleData();
    ASSERT_EQ(made->count, 3U);
    EXPECT_STREQ(made->items[0]->vin, L"WBA00000000000001");
    EXPECT_EQ(made->items[0]->status, 1);
    EXPECT_STREQ(made->items[1]->softwareVersion, L"") << "Plain has no F189";
    ASSERT_EQ(kelsim_setVehicleJson(R"({"ecus": [{"name": "Plain"}]})"), 0);
    EXPECT_STREQ(vehicleData()->items[0]->vin, L"");
}

TEST_F(VehicleReportsTest, VehicleDataIsReadOverTheBus) {
    uint64_t monitor = 0;
    ASSERT_SUCCEEDS(ok, kel_createPduMonitor(api, &ok, &monitor));
    vehicleData();
    const auto items = fetch<List<PduMonitoringItem, release_PduMonitoringItem_array>>(
        [&](auto... out) { kel_getPduMonitoringItems(api, monitor, 0, 0, out...); });
    std::vector<std::string> ecmRequests;
    for (uint32_t i = 0; i < items->count; ++i) {
        const auto& item = *items->items[i];
        if (item.value1 == 1 && std::wcscmp(item.text1, L"ECM") == 0) {
            ecmRequests.push_back(utf8(item.text3));
        }
    }
    EXPECT_NE(std::find(ecmRequests.begin(), ecmRequests.end(), "22 F1 89"), ecmRequests.end());
    EXPECT_NE(std::find(ecmRequests.begin(), ecmRequests.end(), "19 02 FF"), ecmRequests.end());

    ASSERT_SUCCEEDS(ok, kel_disconnectInterfaces(api, &ok));
    Data none;
    EXPECT_ENGINE_ERROR(offline, 1404, kel_getVehicleData(api, &offline, &none.items, &none.count));
}

TEST_F(VehicleReportsTest, AReportHoldsWhatWasRead) {
    const auto path = report(reportConfig(L"", L"Check <1> & \"2\"", L"Tom's <b>note</b>\nline 2",
                                          {L"ECM", L"ACC"}, true, true));
    const std::wregex named(LR"(reports/vehicle-WVWZZZ1KZ8W000417-\d{8}T\d{6}\.html)");
    EXPECT_TRUE(std::regex_match(path, named)) << utf8(path.c_str());
    Json json = twin(path);
    EXPECT_TRUE(std::regex_match(json["created"]["utc"].get<std::string>(),
                                 std::regex(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ)")));
    json.erase("created");
    const Json units = json["units"];
    json.erase("units");
    Json head = Json::parse(R"({"format": "kel report 1", "kind": "vehicle",
        "title": "Check <1> & \"2\"", "comment": "Tom's <b>note</b>\nline 2"})");
    head["vehicle"] = asJson(selected());
    EXPECT_EQ(json, head);
    ASSERT_EQ(units.size(), 2U);

    // The ECM's values are what the diagnostic exports read.
    const Json& ecm = units[0];
    EXPECT_EQ(ecm["target"], "ECM");
    EXPECT_EQ(ecm["status"], "answered");
    EXPECT_EQ(ecm["variant"], "ECM_EDC17_CR_2L0_V3");
    const auto ident = fetch<List<ReadDataResult, release_ReadDataResult_array>>(
        [&](auto... out) { kel_readIdentificationValues(api, ecmOnly, 1, out...); });
    const ReadDataResult& values = *ident->items[0];
    ASSERT_EQ(ecm["identification"].size(), values.parameterCount);
    for (uint32_t i = 0; i < values.parameterCount; ++i) {
        EXPECT_EQ(ecm["identification"][i]["identifier"], utf8(values.parameters[i]->itemText2));
        EXPECT_EQ(ecm["identification"][i]["value"], utf8(values.parameters[i]->text1));
    }
    const auto dtcs = readDtcs();
    ASSERT_EQ(ecm["dtcs"].size(), dtcs->items[0]->dtcCount);
    for (uint32_t i = 0; i < dtcs->items[0]->dtcCount; ++i) {
        const DtcResult& d = *dtcs->items[0]->dtcs[i];
        EXPECT_EQ(ecm["dtcs"][i]["code"], utf8(d.text1));
        EXPECT_EQ(ecm["dtcs"][i]["text"], utf8(d.text2));
        EXPECT_EQ(ecm["dtcs"][i]["status"], d.value1);
    }
    const Json& acc = units[1];
    EXPECT_EQ(acc["status"], "silent");
    EXPECT_EQ(acc["error"]["code"], 1010);
    EXPECT_FALSE(acc.contains("identification"));

    // The page shows the same, every text escaped.
    const auto html = readFile(path);
    EXPECT_NE(html.find("<title>Check &lt;1&gt; &amp; &quot;2&quot;</title>"), std::string::npos);
    EXPECT_NE(html.find("Tom&#39;s &lt;b&gt;note&lt;/b&gt;"), std::string::npos);
    EXPECT_EQ(html.find("<b>note"), std::string::npos);
    EXPECT_NE(html.find("03L 906 018 JH"), std::string::npos) << "the ECM's part number";
    EXPECT_NE(html.find(ecm["dtcs"][0]["code"].get<std::string>()), std::string::npos);
    EXPECT_NE(html.find("silent"), std::string::npos);

    // A second report reads again: the cleared DTCs are gone, and the name stays unique.
    clearDtcs();
    const auto again = report(reportConfig(L"", L"", L"", {L"ECM"}, false, true));
    EXPECT_NE(again, path);
    const Json second = twin(again);
    EXPECT_EQ(second["title"], "Vehicle report");
    EXPECT_TRUE(second["units"][0]["dtcs"].empty());
    EXPECT_FALSE(second["units"][0].contains("identification"));
}

TEST_F(VehicleReportsTest, ReportNamesAreCheckedAndNeverOverwrite) {
    EXPECT_EQ(report(reportConfig(L"job 17", L"", L"", {}, false, false)), L"reports/job 17.html");
    EXPECT_TRUE(exists(L"reports/job 17.json"));
    const Json all = twin(L"reports/job 17.html");
    EXPECT_EQ(all["units"].size(), 6U) << "no targets: every unit";

    const std::vector<std::pair<std::wstring, int32_t>> refused = {{L"job 17", 2402},
                                                                   {L"../job", 1600},
                                                                   {L"sub/job", 1600},
                                                                   {L"a\\b", 1600},
                                                                   {L"..", 1606},
                                                                   {L"tab\there", 1602},
                                                                   {std::wstring(252, L'x'), 1601}};
    for (const auto& [name, expected] : refused) {
        int32_t code = 0;
        EXPECT_EQ(report(reportConfig(name, L"", L"", {}, false, false), &code), L"");
        EXPECT_EQ(code, expected) << utf8(name.c_str());
    }
    int32_t code = 0;
    report(reportConfig(L"unknown unit", L"", L"", {L"ECM", L"Ghost"}, true, true), &code);
    EXPECT_EQ(code, 1011);
    EXPECT_FALSE(exists(L"reports/unknown unit.html")) << "nothing written";

    // Without a config: every unit, identification and DTCs.
    const Json full = twin(report(nullptr));
    ASSERT_EQ(full["units"].size(), 6U);
    EXPECT_TRUE(full["units"][0].contains("identification"));
    EXPECT_TRUE(full["units"][0].contains("dtcs"));
}

TEST_F(VehicleReportsTest, AnUpdateReportListsEachResult) {
    const auto result = [](const wchar_t* target, int32_t status, uint32_t position,
                           const wchar_t* message) {
        auto* r = zeroed<VehicleUpdateResult>();
        r->target = dup(target);
        r->status = status;
        r->package = dup(L"ECM_SW_5430");
        r->versionBefore = dup(L"5428");
        r->versionAfter = dup(status == 0 ? L"5430" : L"");
        r->position = position;
        r->progress = 100;
        r->overallProgress = 100;
        r->duration = 45000;
        if (message != nullptr) {
            r->error = zeroed<KelError>();
            r->error->code = 1703;
            r->error->message = dup(message);
            r->error->details = dup(L"");
        }
        return r;
    };
    VehicleUpdateResult* results[] = {result(L"ECM", 0, 1, nullptr),
                                      result(L"TCM", 2, 2, L"Image <rejected> & kept"),
                                      result(L"ESP", 4, 3, nullptr)};
    ErrorSlot error;
    wchar_t* path = nullptr;
    kel_createVehicleUpdateReport(api, results, 3, &error, &path);
    ASSERT_FALSE(error) << error->code;
    const std::wstring html = path;
    release_Memory(path);
    EXPECT_TRUE(std::regex_match(
        html, std::wregex(LR"(reports/vehicle-update-WVWZZZ1KZ8W000417-\d{8}T\d{6}\.html)")));

    Json json = twin(html);
    json.erase("created");
    Json listed = Json::parse(R"([
        {"target": "ECM", "status": 0, "statusText": "updated", "versionAfter": "5430",
         "position": 1, "error": null},
        {"target": "TCM", "status": 2, "statusText": "failed", "versionAfter": "", "position": 2,
         "error": {"code": 1703, "message": "Image <rejected> & kept", "details": ""}},
        {"target": "ESP", "status": 4, "statusText": "up to date", "versionAfter": "",
         "position": 3, "error": null}])");
    for (auto& r : listed) {
        r.update({{"package", "ECM_SW_5430"},
                  {"versionBefore", "5428"},
                  {"progress", 100},
                  {"durationMs", 45000}});
    }
    Json head = Json::parse(R"({"format": "kel report 1", "kind": "vehicleUpdate",
        "title": "Vehicle update report", "comment": ""})");
    head["vehicle"] = asJson(selected());
    head["results"] = listed;
    EXPECT_EQ(json, head);
    const auto page = readFile(html);
    EXPECT_NE(page.find("Image &lt;rejected&gt; &amp; kept"), std::string::npos);

    VehicleUpdateResult* withNull[] = {results[0], nullptr};
    EXPECT_ENGINE_ERROR(null, 2403, kel_createVehicleUpdateReport(api, withNull, 2, &null, &path));
    for (auto* r : results) {
        release_VehicleUpdateResult(r);
    }
}

} // namespace
