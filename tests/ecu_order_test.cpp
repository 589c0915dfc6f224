// The ECU order of the default vehicle and of small made-up ones: the default order's
// rules, filtering and completing an order, and order files in the public directories
// (written, read back, refused when malformed or outside the sandbox).
#include "data_root.h"
#include "uds.h"

#include <cstring>
#include <string>
#include <vector>

namespace {

using namespace kel_test;

using Entries = List<EcuOrderEntry, release_EcuOrderEntry_array>;
using Names = std::vector<std::wstring>;

struct Entry {
    std::wstring target;
    std::wstring bus;
    uint32_t address = 0;
    bool gateway = false;
    bool optional = false;
    bool operator==(const Entry&) const = default;
};

std::vector<Entry> entriesOf(const Entries& list) {
    std::vector<Entry> out;
    for (uint32_t i = 0; i < list.count; ++i) {
        const EcuOrderEntry& e = *list.items[i];
        out.push_back({e.target, e.bus, e.address, e.gateway != 0, e.optional != 0});
    }
    return out;
}

// An order as C records, as a caller hands one in (the texts stay the caller's);
// `withNull` adds a NULL element at the end.
class COrder {
public:
    explicit COrder(const std::vector<Entry>& entries, bool withNull = false) : entries_(entries) {
        for (auto& e : entries_) {
            records_.push_back({e.target.data(), e.bus.data(), e.address, e.gateway, e.optional});
        }
        for (auto& record : records_) {
            items_.push_back(&record);
        }
        if (withNull) {
            items_.push_back(nullptr);
        }
    }
    EcuOrderEntry** items() { return items_.empty() ? nullptr : items_.data(); }
    uint32_t count() const { return static_cast<uint32_t>(items_.size()); }

private:
    std::vector<Entry> entries_;
    std::vector<EcuOrderEntry> records_;
    std::vector<EcuOrderEntry*> items_;
};

class EcuOrderTest : public kel_test::DataRootTest {
protected:
    std::vector<Entry> defaultOrder() {
        Entries out;
        EXPECT_ENGINE_ERROR(error, 0,
                            kel_createDefaultECUOrder(api, &error, &out.items, &out.count));
        return entriesOf(out);
    }
    // The call's error code, 0 on success; `out` receives the result.
    int32_t read(const wchar_t* path, std::vector<Entry>& out) {
        Entries list;
        const int32_t code = kel_test::errorCodeOf(
            [&](KelError** e) { kel_readEcuOrder(api, path, e, &list.items, &list.count); });
        out = entriesOf(list);
        return code;
    }
    int32_t write(const wchar_t* path, COrder& order) {
        return kel_test::errorCodeOf(
            [&](KelError** e) { kel_writeEcuOrder(api, path, order.items(), order.count(), e); });
    }
    int32_t filter(COrder& order, std::vector<const wchar_t*> targets, Names& out,
                   std::wstring* details = nullptr) {
        ErrorSlot error;
        Entries list;
        kel_filterEcuOrder(api, order.items(), order.count(), const_cast<wchar_t**>(targets.data()),
                           static_cast<uint32_t>(targets.size()), &error, &list.items, &list.count);
        out.clear();
        for (const auto& e : entriesOf(list)) {
            out.push_back(e.target);
        }
        if (details != nullptr && error) {
            *details = error->details;
        }
        return error ? error->code : 0;
    }
    int32_t addMissing(COrder& order, std::vector<Entry>& out) {
        Entries list;
        const int32_t code = kel_test::errorCodeOf([&](KelError** e) {
            kel_addMissingTargetsToEcuOrder(api, order.items(), order.count(), e, &list.items,
                                            &list.count);
        });
        out = entriesOf(list);
        return code;
    }
};

TEST_F(EcuOrderTest, TheDefaultOrderPutsTheGatewayFirstThenSortsByBusAndAddress) {
    // Units described out of order; two share a bus.
    ASSERT_EQ(kelsim_setVehicleJson(R"({"ecus": [
        {"name": "T2", "bus": "Body", "address": 32}, {"name": "T1", "bus": "Body", "address": 16},
        {"name": "A", "bus": "Axle", "address": 48}, {"name": "GW", "bus": "Zone", "address": 1}],
        "ecuOrder": {"gateway": "GW"}})"),
              0);
    EXPECT_EQ(defaultOrder(), (std::vector<Entry>{{L"GW", L"Zone", 1, true, false},
                                                  {L"A", L"Axle", 48, false, false},
                                                  {L"T1", L"Body", 16, false, false},
                                                  {L"T2", L"Body", 32, false, false}}));

    ASSERT_EQ(kelsim_setVehicleJson(R"({"ecus": [{"name": "B", "bus": "Y"}, {"name": "A",
        "bus": "X"}]})"),
              0);
    EXPECT_EQ(defaultOrder(),
              (std::vector<Entry>{{L"A", L"X", 0, false, false}, {L"B", L"Y", 0, false, false}}))
        << "no gateway: by bus alone";
    EXPECT_EQ(kelsim_setVehicleJson(R"({"ecus": [{"name": "A"}], "ecuOrder": {"gateway": "Z"}})"),
              -1)
        << "a gateway that is no unit";
    EXPECT_EQ(kelsim_setVehicleJson(R"({"ecus": [], "ecuOrder": {"file": "../order.txt"}})"), -1)
        << "an order file outside the sandbox";
}

TEST_F(EcuOrderTest, FilteringAndCompletingKeepTheOrdersOrderAndKnowAliases) {
    const auto order = defaultOrder();
    ASSERT_EQ(order.size(), 6U);
    COrder whole(order);
    Names kept;
    ASSERT_EQ(filter(whole, {L"TCM", L"Engine", L"GW", L"TCM"}, kept), 0);
    EXPECT_EQ(kept, (Names{L"GW", L"ECM", L"TCM"})) << "order's order, once each, alias Engine";

    ASSERT_EQ(filter(whole, {}, kept), 0);
    EXPECT_EQ(kept.size(), order.size()) << "no targets: the whole order";

    std::wstring details;
    EXPECT_EQ(filter(whole, {L"ECM", L"Ghost", L"Nope"}, kept, &details), 2102);
    EXPECT_NE(details.find(L"Ghost"), std::wstring::npos);
    EXPECT_NE(details.find(L"Nope"), std::wstring::npos);

    // An entry named by an alias is found by the unit's name too.
    const Entry byAlias{L"Gateway", L"Diagnostic CAN", 1808, true, false};
    COrder aliased({byAlias});
    ASSERT_EQ(filter(aliased, {L"GW"}, kept), 0);
    EXPECT_EQ(kept, (Names{L"Gateway"}));

    // Completing an order appends exactly the missing units, in default order.
    const std::vector<Entry> given = {{L"TCM", L"Own bus", 5, false, true},
                                      {L"Engine", L"", 0, false, false},
                                      {L"Retrofit", L"Aux CAN", 0x7A0, false, true}};
    COrder incomplete(given);
    std::vector<Entry> completed;
    ASSERT_EQ(addMissing(incomplete, completed), 0);
    ASSERT_EQ(completed.size(), 7U);
    EXPECT_EQ(std::vector<Entry>(completed.begin(), completed.begin() + 3), given)
        << "given entries stay as they are, also one the vehicle lacks";
    Names appended;
    for (auto it = completed.begin() + 3; it != completed.end(); ++it) {
        appended.push_back(it->target);
    }
    EXPECT_EQ(appended, (Names{L"GW", L"ESP", L"BCM", L"ACC"}))
        << "the default order without TCM and the ECM (named by its alias)";
    EXPECT_EQ(completed[3], (Entry{L"GW", L"Diagnostic CAN", 1808, true, false}));

    COrder empty(std::vector<Entry>{});
    ASSERT_EQ(addMissing(empty, completed), 0);
    EXPECT_EQ(completed, defaultOrder());
}

TEST_F(EcuOrderTest, AnOrderHandedInNamesEachTargetOnce) {
    const Entry ecm{L"ECM", L"Powertrain CAN", 0x7E0};
    const Entry unnamed{L"", L"Powertrain CAN", 0x7E1};
    COrder twice({ecm, ecm});
    COrder withNull({ecm}, true);
    COrder withEmpty({unnamed});
    for (COrder* order : {&twice, &withNull, &withEmpty}) {
        std::vector<Entry> out;
        Names kept;
        EXPECT_EQ(addMissing(*order, out), 2101);
        EXPECT_EQ(filter(*order, {L"ECM"}, kept), 2101);
        EXPECT_EQ(write(L"exchange/bad-order.txt", *order), 2101);
    }
    // What a line could not hold unchanged is refused before anything is written.
    for (const Entry& e : {Entry{L"ECM", L"Power\ttrain", 1}, Entry{L"ECM", L" Powertrain", 1},
                           Entry{L"#ECM", L"Powertrain", 1}, Entry{L"ECM\n", L"Powertrain", 1}}) {
        COrder order({e});
        EXPECT_EQ(write(L"exchange/unwritable.txt", order), 2101) << e.target << "/" << e.bus;
    }
    std::vector<Entry> out;
    EXPECT_EQ(read(L"exchange/unwritable.txt", out), 1609) << "nothing was written";
}

TEST_F(EcuOrderTest, AWrittenOrderReadsBackExactlyAndTheVehiclesStandsForTheDefault) {
    const std::vector<Entry> order = {
        {L"GW", L"Diagnostic CAN", 0x710, true, false},
        {L"ECM", L"Powertrain CAN", 0x7E0, false, false},
        {L"Türsteuergerät", L"Komfort CAN 2", 0xFFFFFFFF, false, true},
        {L"Retrofit", L"", 0, true, true}};
    COrder c(order);
    ASSERT_EQ(write(L"exchange/orders/workshop 1.txt", c), 0) << "directories are made";
    std::vector<Entry> back;
    ASSERT_EQ(read(L"exchange\\orders\\workshop 1.txt", back), 0);
    EXPECT_EQ(back, order);

    // The format other tools read: a header, then tab-separated columns.
    const auto text = kel_test::contents(root / "exchange/orders/workshop 1.txt");
    EXPECT_EQ(text.rfind("# kel ECU order 1\n", 0), 0U) << text;
    EXPECT_NE(text.find("\nGW\tDiagnostic CAN\t0x710\tgateway\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\nRetrofit\t\t0x0\tgateway\toptional\n"), std::string::npos) << text;

    // Writing again replaces the order.
    COrder shorter(std::vector<Entry>(order.begin() + 1, order.begin() + 2));
    ASSERT_EQ(write(L"exchange/orders/workshop 1.txt", shorter), 0);
    ASSERT_EQ(read(L"exchange/orders/workshop 1.txt", back), 0);
    EXPECT_EQ(back, (std::vector<Entry>{order[1]}));

    // Every way out of the sandbox is tried on both calls with the other file exports; a
    // public directory itself is no order file.
    EXPECT_EQ(read(L"exchange", back), 1611);
    EXPECT_EQ(write(L"exchange", shorter), 1613);

    // The vehicle's own order file stands for the default order until it is written.
    const auto orderFilePath = [&] {
        wchar_t* path = nullptr;
        EXPECT_ENGINE_ERROR(error, 0, kel_getEcuOrderFilePath(api, &error, &path));
        std::wstring text = path != nullptr ? path : L"<null>";
        release_Memory(path);
        return text;
    };
    EXPECT_EQ(orderFilePath(), L"configuration/ecu-order.txt");

    ASSERT_EQ(read(L"", back), 0);
    EXPECT_EQ(back, defaultOrder()) << "no order file yet";
    EXPECT_EQ(read(L"configuration/ecu-order.txt", back), 1609) << "a named file must exist";

    const std::vector<Entry> own = {{L"ECM", L"Powertrain CAN", 2016}, {L"GW", L"X", 1, true}};
    COrder vehicles(own);
    ASSERT_EQ(write(L"", vehicles), 0);
    ASSERT_EQ(read(L"", back), 0);
    EXPECT_EQ(back, own);
    ASSERT_EQ(read(L"configuration/ecu-order.txt", back), 0);
    EXPECT_EQ(back, own);

    ASSERT_EQ(kelsim_setVehicleJson(R"({"ecus": [{"name": "A"}],
        "ecuOrder": {"file": "exchange/vehicle order.txt"}})"),
              0);
    EXPECT_EQ(orderFilePath(), L"exchange/vehicle order.txt");
}

TEST_F(EcuOrderTest, MalformedOrderFilesAreRefusedNamingTheLine) {
    const std::string header = "# kel ECU order 1\n";
    struct Case {
        std::string text;
        const wchar_t* where;
    };
    const std::vector<Case> cases = {
        {"ECM\tPowertrain CAN\t0x7E0\n", L"line 1:"},
        {"# kel ECU order 2\n", L"line 1:"},
        {header + "\n# comment\nECM\tPowertrain CAN\n", L"line 4:"},
        {header + "ECM\tPowertrain CAN\t0x7G0\n", L"line 2:"},
        {header + "ECM\tPowertrain CAN\t2016\n", L"line 2:"},
        {header + "ECM\tPowertrain CAN\t0x123456789\n", L"line 2:"},
        {header + "ECM\tPowertrain CAN\t0x7E0\tfirst\n", L"line 2:"},
        {header + "\tPowertrain CAN\t0x7E0\n", L"line 2:"},
        {header + "ECM\tPower\x01train\t0x7E0\n", L"line 2:"},
        {header + "ECM\tA\t0x1\nTCM\tA\t0x2\nECM\tB\t0x3\n", L"line 4:"},
    };
    for (const auto& c : cases) {
        kel_test::put(root / "exchange/malformed.txt", c.text);
        ErrorSlot error;
        Entries out;
        kel_readEcuOrder(api, L"exchange/malformed.txt", &error, &out.items, &out.count);
        ASSERT_TRUE(error) << c.text;
        EXPECT_EQ(error->code, 2100) << c.text;
        EXPECT_NE(std::wstring(error->details).find(c.where), std::wstring::npos)
            << c.text << " gave " << error->details;
    }

    // What is not a mistake: a byte order mark, CRLF, blanks around columns, comments.
    kel_test::put(root / "exchange/lenient.txt",
                  "\xEF\xBB\xBF# kel ECU order 1\r\n"
                  "  # written by hand\r\n"
                  "\r\n"
                  "ECM \t Powertrain CAN \t 0X7e0 \t optional gateway\r\n");
    std::vector<Entry> back;
    ASSERT_EQ(read(L"exchange/lenient.txt", back), 0);
    EXPECT_EQ(back, (std::vector<Entry>{{L"ECM", L"Powertrain CAN", 0x7E0, true, true}}));

    std::string huge = header;
    while (huge.size() <= (1U << 20)) {
        huge += "# padding padding padding padding padding padding padding padding\n";
    }
    kel_test::put(root / "exchange/huge.txt", huge);
    EXPECT_EQ(read(L"exchange/huge.txt", back), 2100) << "over 1 MiB";
}

} // namespace
