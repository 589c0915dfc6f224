// Targets, variant identification, identification values and target filters through
// the exports.
#include "support.h"
#include "uds.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace kel_test;

using Idents = List<VariantIdentResult, release_VariantIdentResult_array>;
using Data = List<ReadDataResult, release_ReadDataResult_array>;
using Targets = List<Target, release_Target_array>;
using Statuses = List<TargetStatus, release_TargetStatus_array>;
using Filters = List<TargetFilter, release_TargetFilter_array>;

// A caller-built filter list: the export does not consume it.
struct FilterInput {
    std::vector<TargetFilter*> items;
    void add(const wchar_t* pattern, bool exclude, int32_t value = 0) {
        auto* f = static_cast<TargetFilter*>(allocate_Memory(sizeof(TargetFilter)));
        f->pattern = duplicate_WString(pattern);
        f->flag = exclude ? 1 : 0;
        f->value = value;
        items.push_back(f);
    }
    ~FilterInput() {
        for (auto* f : items) {
            release_TargetFilter(f);
        }
    }
};

std::vector<std::wstring> namesOf(const Targets& t) {
    std::vector<std::wstring> out;
    for (uint32_t i = 0; i < t.count; ++i) {
        out.emplace_back(t.items[i]->itemText1);
    }
    return out;
}

using TargetsFamily = EngineTest;

std::unique_ptr<Targets> targets(TarnApi* api) {
    return fetch<Targets>([&](auto... out) { kel_getTargets(api, out...); });
}

std::unique_ptr<Targets> filtered(TarnApi* api, std::vector<TargetFilter*> filters = {}) {
    return fetch<Targets>([&](auto... out) {
        kel_getFilteredTargets(api, filters.data(), static_cast<uint32_t>(filters.size()), out...);
    });
}

// The session's filters, each as "<pattern> <exclude> <value>".
std::vector<std::wstring> sessionFilters(TarnApi* api) {
    const auto stored =
        fetch<Filters>([&](auto... out) { kel_getSessionTargetFilters(api, out...); });
    std::vector<std::wstring> out;
    for (uint32_t i = 0; i < stored->count; ++i) {
        const TargetFilter& f = *stored->items[i];
        out.push_back(std::wstring(f.pattern) + L" " + std::to_wstring(f.flag) + L" " +
                      std::to_wstring(f.value));
    }
    return out;
}

TEST_F(TargetsFamily, IdentificationGivesVariantsValuesAndAnErrorPerUnit) {
    const auto all = fetch<Idents>([&](auto... out) { kel_identifyAllTargets(api, out...); });
    ASSERT_EQ(all->count, 6U);
    EXPECT_STREQ(all->items[0]->target, L"ECM");
    EXPECT_STREQ(all->items[0]->variant, L"ECM_EDC17_CR_2L0_V3");
    EXPECT_EQ(all->items[0]->status, 0);
    EXPECT_STREQ(all->items[5]->target, L"ACC");
    EXPECT_STREQ(all->items[5]->variant, L"");
    ASSERT_EQ(codeIn(all->items[5]->error), 1010);

    const wchar_t* names[] = {L"TCM", L"Nope"};
    const auto out = fetch<Idents>(
        [&](auto... o) { kel_identifyTargets(api, const_cast<wchar_t**>(names), 2, o...); });
    ASSERT_EQ(out->count, 2U);
    EXPECT_STREQ(out->items[0]->variant, L"TCM_DQ250_6F_V2");
    ASSERT_EQ(codeIn(out->items[1]->error), 1011);

    const auto one = kel_test::fetchRecord(
        release_VariantIdentResult, [&](auto... o) { kel_identifyTarget(api, L"ESP", o...); });
    ASSERT_NE(one.get(), nullptr);
    EXPECT_STREQ(one->variant, L"ESP_MK60EC1_V4");
    EXPECT_EQ(kel_test::fetchRecord(release_VariantIdentResult,
                                    [&](auto... o) { kel_identifyTarget(api, L"Nope", o...); })
                  .get(),
              nullptr)
        << "an unknown target has no result";

    const wchar_t* bcmOnly[] = {L"BCM"};
    const auto values = fetch<Data>([&](auto... o) {
        kel_readIdentificationValues(api, const_cast<wchar_t**>(bcmOnly), 1, o...);
    });
    ASSERT_EQ(values->count, 1U);
    const ReadDataResult& bcm = *values->items[0];
    EXPECT_STREQ(bcm.text, L"BCM_PQ35_HIGH_V1");
    ASSERT_EQ(bcm.parameterCount, 4U);
    EXPECT_STREQ(bcm.parameters[0]->itemText2, L"F190");
    EXPECT_STREQ(bcm.parameters[0]->text1, L"WVWZZZ1KZ8W000417");
    EXPECT_EQ(bcm.parameters[0]->dataLength, 17U) << "the raw bytes of the value";

    const wchar_t* ids[] = {L"F187", L"F1FF"};
    const auto read = fetch<Data>([&](auto... o) {
        kel_readDataByIdentifiers(api, L"ECM", const_cast<wchar_t**>(ids), 2, o...);
    });
    ASSERT_EQ(read->count, 1U);
    ASSERT_EQ(read->items[0]->parameterCount, 2U);
    EXPECT_STREQ(read->items[0]->parameters[0]->text1, L"03L 906 018 JH");
    ASSERT_EQ(codeIn(read->items[0]->parameters[1]->error), 1014) << "per-parameter error";
}

TEST_F(TargetsFamily, TargetsCarryTheirAliasesAndIdentification) {
    ASSERT_EQ(kelsim_setVehicleJson(R"({"ecus": [
        {"name": "A", "address": 1, "aliases": ["first", "alpha"],
         "identification": [{"id": "F187", "name": "Part number", "value": "P-1"}]},
        {"name": "B", "variant": "B1"}]})"),
              0);
    const auto out = targets(api);
    ASSERT_EQ(out->count, 2U);
    const Target& a = *out->items[0];
    EXPECT_EQ(a.value1, 1);
    ASSERT_EQ(a.nameCount, 2U);
    EXPECT_STREQ(a.names[1], L"alpha");
    ASSERT_EQ(a.itemCount, 1U);
    EXPECT_STREQ(a.items[0]->itemText1, L"Part number");
    EXPECT_STREQ(a.text3, L"P-1");
    EXPECT_STREQ(out->items[1]->itemText3, L"B1");
}

// A member of the wrong type in a known section is refused, not taken for its default
// (or a string for a one-element list). A description from KEL_SIM_VEHICLE is not checked
// first, so the units' answer shows the reason.
TEST_F(TargetsFamily, WrongTypesRefuseTheDescriptionNamingWhere) {
    const auto file = kel_test::freshTempPath("vehicle") += ".json";
    const auto useEnvironment = [&](const char* value) {
#ifdef _WIN32
        _putenv_s("KEL_SIM_VEHICLE", value);
#else
        value[0] != '\0' ? setenv("KEL_SIM_VEHICLE", value, 1) : unsetenv("KEL_SIM_VEHICLE");
#endif
        kelsim_setVehicleJson(nullptr);
    };
    const std::vector<std::pair<std::string, std::wstring>> cases = {
        {R"({"ecus": [], "lifecycle": []})", L"lifecycle: expected an object"},
        {R"({"ecus": [], "lifecycle": null})", L"lifecycle: expected an object"},
        {R"({"ecus": [], "vehicle": {"equipment": "DSG"}})",
         L"vehicle: equipment: expected an array"},
        {R"({"ecus": [], "version": 5})", L"version: expected a string"},
        {R"({"ecus": [{"name": "A"}, {"name": "E\u0000CM"}]})",
         L"ecus[1].name: a string holds a NUL"},
        {R"({"ecus": {"name": "A"}})", L"ecus: expected an array"},
    };
    // A refused description keeps the vehicle.
    EXPECT_EQ(kelsim_setVehicleJson(R"({"ecus": [{"name": "X", "dtcs": [{"code": "Q1234"}]}]})"),
              -1);
    EXPECT_EQ(kelsim_setVehicleFile("/nonexistent/vehicle.json"), -1);
    EXPECT_EQ(targets(api)->count, 6U);
    for (const auto& [text, where] : cases) {
        EXPECT_EQ(kelsim_setVehicleJson(text.c_str()), -1) << text;
        std::ofstream(file, std::ios::binary) << text;
        useEnvironment(file.string().c_str());
        ErrorSlot error;
        Targets out;
        kel_getTargets(api, &error, &out.items, &out.count);
        ASSERT_EQ(codeIn(error.error), 1013) << text;
        EXPECT_NE(std::wstring(error->details).find(where), std::wstring::npos) << error->details;
    }
    useEnvironment("");
    std::filesystem::remove(file);
}

// Which targets of the vehicle one include filter admits.
std::vector<std::wstring> admittedBy(TarnApi* api, const std::wstring& pattern) {
    FilterInput filter;
    filter.add(pattern.c_str(), false);
    return namesOf(*filtered(api, filter.items));
}

std::wstring repeat(const std::wstring& part, int times) {
    std::wstring out;
    for (int i = 0; i < times; ++i) {
        out += part;
    }
    return out;
}

TEST_F(TargetsFamily, PatternsMatchWholeNamesAndBacktrackWhereTheyMust) {
    ASSERT_EQ(kelsim_setVehicleJson(R"({"ecus": [
        {"name": "mississippi"},
        {"name": "abc", "aliases": ["x*y"]},
        {"name": "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"},
        {"name": "ab"}]})"),
              0);
    const std::wstring forty(40, L'a');
    const std::vector<std::pair<std::wstring, std::vector<std::wstring>>> cases = {
        {L"*", {L"mississippi", L"abc", forty, L"ab"}},
        {L"", {}},
        {L"*?", {L"mississippi", L"abc", forty, L"ab"}},
        {L"??", {L"ab"}},
        {L"a*", {L"abc", forty, L"ab"}},
        {L"*c", {L"abc"}},
        {L"a**c", {L"abc"}},
        {L"*a*", {L"abc", forty, L"ab"}},
        {L"?b*", {L"abc", L"ab"}},
        {L"mississipp", {}},
        {L"mississippi*", {L"mississippi"}},
        {L"*mississippi", {L"mississippi"}},
        {L"m*ss*pi", {L"mississippi"}},
        {L"*ss*ssi?pi", {L"mississippi"}},
        {L"*issipp?", {L"mississippi"}},
        {L"*issip", {}},
        {L"x?y", {L"abc"}}, // `?` takes the alias's literal `*`
        {L"a*a*a*b", {}},
        {repeat(L"a*", 20), {forty}},
        {repeat(L"a*", 41), {}},
        {std::wstring(40, L'*') + L"b", {L"ab"}},
        // Many stars that match nothing took time exponential in the stars.
        {std::wstring(40, L'*') + L"x", {}},
        {repeat(L"*a", 40) + L"b", {}},
        {repeat(L"*?", 41), {}},
    };
    for (const auto& [pattern, expected] : cases) {
        EXPECT_EQ(admittedBy(api, pattern), expected)
            << "pattern \"" << std::string(pattern.begin(), pattern.end()) << "\"";
    }
}

TEST_F(TargetsFamily, TheDescriptionGivesTheSessionItsFirstFilters) {
    ASSERT_EQ(kelsim_setVehicleJson(R"({"ecus": [{"name": "ECM"}, {"name": "TCM"}, {"name": "ABS"}],
        "diagnostics": {"sessionFilters": [{"pattern": "?CM"}, {"pattern": "T*", "flag": 1, "value": 7}]}})"),
              0);
    EXPECT_EQ(sessionFilters(api), (std::vector<std::wstring>{L"?CM 0 0", L"T* 1 7"}));
    EXPECT_EQ(namesOf(*filtered(api)), std::vector<std::wstring>{L"ECM"});

    EXPECT_EQ(
        kelsim_setVehicleJson(R"({"ecus": [], "diagnostics": {"sessionFilters": [{"flag": 1}]}})"),
        -1)
        << "a filter needs its pattern";
}

TEST_F(TargetsFamily, GivenAndSessionFiltersAreApplied) {
    FilterInput given;
    given.add(L"?CM", false, 5);
    given.add(L"Trans*", true);
    EXPECT_EQ(namesOf(*filtered(api, given.items)), (std::vector<std::wstring>{L"ECM", L"BCM"}))
        << "TCM is excluded through its alias";

    FilterInput filters;
    filters.add(L"A*", true, -3);
    ErrorSlot error;
    ASSERT_SUCCEEDS(ok, kel_setSessionTargetFilters(api, &ok, filters.items.data(), 1));
    EXPECT_EQ(sessionFilters(api), std::vector<std::wstring>{L"A* 1 -3"});
    EXPECT_EQ(namesOf(*filtered(api)),
              (std::vector<std::wstring>{L"ECM", L"TCM", L"ESP", L"BCM", L"GW"}))
        << "no filters given: the session's apply";
    EXPECT_EQ(targets(api)->count, 6U);

    kel_setSessionTargetFilters(api, &error, nullptr, 0);
    EXPECT_TRUE(sessionFilters(api).empty());
}

TEST_F(TargetsFamily, StatusReportsEachTarget) {
    const wchar_t* names[] = {L"ECM", L"ACC", L"TCM"};
    fetch<Idents>(
        [&](auto... o) { kel_identifyTargets(api, const_cast<wchar_t**>(names), 1, o...); });
    const auto out = fetch<Statuses>(
        [&](auto... o) { kel_getTargetStatus(api, const_cast<wchar_t**>(names), 3, o...); });
    ASSERT_EQ(out->count, 3U);
    const TargetStatus& s = *out->items[0];
    EXPECT_STREQ(s.target, L"ECM");
    EXPECT_STREQ(s.text, L"responding");
    EXPECT_STREQ(s.text2, L"ECM_EDC17_CR_2L0_V3");
    EXPECT_EQ(s.error, nullptr);
    // Address, responds, identified, stored DTCs, supported DTCs: four of the description
    // and the programming DTC.
    EXPECT_EQ(std::vector<uint32_t>(s.values, s.values + 5),
              (std::vector<uint32_t>{2016, 1, 1, 2, 5}));
    EXPECT_EQ(out->items[2]->values[2], 0U) << "TCM was not identified";
    ASSERT_NE(out->items[1]->error, nullptr);
    EXPECT_STREQ(out->items[1]->text, L"not responding");

    // Operations need an initialized engine.
    ASSERT_SUCCEEDS(ok, kel_end(api, &ok));
    Idents none;
    EXPECT_ENGINE_ERROR(ended, 1001, kel_identifyAllTargets(api, &ended, &none.items, &none.count));
}

} // namespace
