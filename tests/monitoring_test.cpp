// Monitoring through the C exports, as a user debugging a sequence sees it: PDU monitors
// and monitoring links show the bytes the simulated units really exchanged, in order;
// the API trace shows the calls with their secrets masked; a saved trace replays through
// a link on vehicle time. The expected bytes come from the calls' own results (a
// service's request and response, the DTCs and identification values read), never
// from a copy of the vehicle description. The default vehicle's ACC does not answer.
#include "support.h"
#include "uds.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

namespace {

using namespace kel_test;

using Bytes = std::vector<uint8_t>;
using PduItems = List<PduMonitoringItem, release_PduMonitoringItem_array>;
using LinkItems = List<MonitoringItem, release_MonitoringItem_array>;

constexpr int32_t UnknownMonitor = 1500;
constexpr int32_t LinkExists = 1501;
constexpr int32_t BadArgument = 1502;
constexpr int32_t Unreadable = 1503;
constexpr int32_t NoTraceFile = 1504;
constexpr int32_t TraceFileOpen = 1505;

Bytes bytesOf(const uint8_t* data, uint32_t length) {
    return data == nullptr ? Bytes{} : Bytes(data, data + length);
}

Bytes join(Bytes head, const Bytes& tail) {
    head.insert(head.end(), tail.begin(), tail.end());
    return head;
}

// One PDU as a test compares it.
struct Seen {
    std::wstring unit;
    bool response = false;
    Bytes bytes;
    bool operator==(const Seen&) const = default;
};

std::string hex(const Bytes& bytes) {
    std::ostringstream out;
    for (const auto b : bytes) {
        out << ' ' << std::hex << static_cast<int>(b);
    }
    return out.str();
}

std::string narrow(const wchar_t* text) {
    const std::wstring wide = text;
    return {wide.begin(), wide.end()};
}

std::ostream& operator<<(std::ostream& out, const Seen& s) {
    return out << narrow(s.unit.c_str()) << (s.response ? " <-" : " ->") << hex(s.bytes);
}

DtcReadConfig* allDtcs() {
    auto* c = zeroed<DtcReadConfig>();
    c->value = 0xFF;
    return c;
}

class Monitoring : public EngineTest {
protected:
    uint64_t pduMonitor() {
        ErrorSlot error;
        uint64_t handle = 0;
        kel_createPduMonitor(api, &error, &handle);
        EXPECT_FALSE(error);
        EXPECT_NE(handle, 0u);
        return handle;
    }
    uint64_t link(const wchar_t* name) {
        ErrorSlot error;
        uint64_t handle = 0;
        kel_createMonitoringLink(api, name, &error, &handle);
        EXPECT_FALSE(error) << (error ? error->code : 0);
        return handle;
    }
    // Runs one raw request on `target`; returns the request and the unit's response.
    std::pair<Bytes, Bytes> raw(const wchar_t* target, const Bytes& request) {
        return {request, kel_test::sendRaw(api, target, request)};
    }
    auto readAllDtcs(const wchar_t* target) {
        wchar_t* targets[] = {const_cast<wchar_t*>(target)};
        return fetch<List<ReadDtcResult, release_ReadDtcResult_array>>(
            [&](auto... out) { kel_readDtcs(api, targets, 1, allDtcs(), out...); });
    }
    std::unique_ptr<PduItems> pduItems(uint64_t monitor) {
        return fetch<PduItems>(
            [&](auto... out) { kel_getPduMonitoringItems(api, monitor, 0, 0, out...); });
    }
    std::unique_ptr<LinkItems> linkItems(uint64_t link) {
        return fetch<LinkItems>(
            [&](auto... out) { kel_getMonitoringItems(api, link, 0, 0, out...); });
    }
    std::vector<Seen> pdus(uint64_t monitor, uint32_t most = 0, int32_t keep = 0) {
        const auto items = fetch<PduItems>(
            [&](auto... o) { kel_getPduMonitoringItems(api, monitor, most, keep, o...); });
        std::vector<Seen> out;
        for (uint32_t i = 0; i < items->count; ++i) {
            const auto& p = *items->items[i];
            out.push_back({p.text1, p.value1 == 2, bytesOf(p.data, p.dataLength)});
        }
        return out;
    }
    int32_t errorOf(void (*call)(TarnApi*, uint64_t, KelError**), uint64_t handle) {
        ErrorSlot error;
        call(api, handle, &error);
        return error ? error->code : 0;
    }
    // The content of an API trace monitor, read through `from` (the engine by default).
    std::string apiTrace(uint64_t monitor, uint32_t most = 0, int32_t keep = 0,
                         TarnApi* from = nullptr) {
        ErrorSlot error;
        void* data = nullptr;
        uint32_t length = 0;
        kel_getApiTraceContent(from != nullptr ? from : api, monitor, most, keep, &error, &data,
                               &length);
        EXPECT_FALSE(error);
        EXPECT_NE(data, nullptr); // allocated also for 0 bytes
        std::string text(static_cast<const char*>(data), length);
        release_Memory(data);
        return text;
    }
};

TEST_F(Monitoring, PduMonitorShowsExactlyTheTrafficOfTheCallsInOrder) {
    raw(L"ECM", {0x3E, 0x00}); // before the monitor: not shown
    const uint64_t monitor = pduMonitor();
    std::vector<Seen> expected;

    // DTCs: 19 02 <mask>, answered by 59 02 FF and code (3 bytes) and status per DTC.
    const auto dtcs = readAllDtcs(L"ECM");
    ASSERT_EQ(dtcs->count, 1u);
    ASSERT_GT(dtcs->items[0]->dtcCount, 0u);
    Bytes answer = {0x59, 0x02, 0xFF};
    for (uint32_t i = 0; i < dtcs->items[0]->dtcCount; ++i) {
        const auto* d = dtcs->items[0]->dtcs[i];
        answer.insert(answer.end(),
                      {static_cast<uint8_t>(d->code >> 16), static_cast<uint8_t>(d->code >> 8),
                       static_cast<uint8_t>(d->code), static_cast<uint8_t>(d->value1)});
    }
    expected.push_back({L"ECM", false, {0x19, 0x02, 0xFF}});
    expected.push_back({L"ECM", true, answer});
    // Identification: one 22 <id> per value, answered by 62 <id> and the value's bytes.
    std::vector<Bytes> identification;
    wchar_t* tcm[] = {const_cast<wchar_t*>(L"TCM")};
    const auto values = fetch<List<ReadDataResult, release_ReadDataResult_array>>(
        [&](auto... out) { kel_readIdentificationValues(api, tcm, 1, out...); });
    ASSERT_EQ(values->count, 1u);
    ASSERT_GT(values->items[0]->parameterCount, 0u);
    for (uint32_t i = 0; i < values->items[0]->parameterCount; ++i) {
        const auto* p = values->items[0]->parameters[i];
        identification.push_back(bytesOf(p->data, p->dataLength));
    }
    // A service, and a unit that stays silent.
    const auto [request, response] = raw(L"ECM", {0x22, 0xF1, 0x90});
    readAllDtcs(L"ACC"); // the silent unit: a request, no answer

    const auto items = pduItems(monitor);
    std::vector<Seen> seen;
    for (uint32_t i = 0; i < items->count; ++i) {
        const auto& p = *items->items[i];
        seen.push_back({p.text1, p.value1 == 2, bytesOf(p.data, p.dataLength)});
        ASSERT_NE(p.detail, nullptr);
        EXPECT_EQ(p.detail->sequence, i + 1);
        EXPECT_EQ(std::wstring(p.text2), p.value1 == 2 ? L"response" : L"request");
        if (i > 0) {
            EXPECT_GE(p.value2, items->items[i - 1]->value2) << "time runs backwards at " << i;
            // A response shares its request's exchange; the next request starts a new one.
            EXPECT_EQ(p.detail->exchange, items->items[i - 1]->detail->exchange + (p.value1 == 1));
        }
    }
    // The identification requests lie between the DTC read and the service.
    ASSERT_EQ(seen.size(), 2 + 2 * identification.size() + 2 + 1);
    for (std::size_t i = 0; i < identification.size(); ++i) {
        const Seen& ask = seen[2 + 2 * i];
        ASSERT_EQ(ask.bytes.size(), 3u);
        EXPECT_EQ(ask.bytes[0], 0x22);
        expected.push_back({L"TCM", false, ask.bytes});
        expected.push_back(
            {L"TCM", true, join({0x62, ask.bytes[1], ask.bytes[2]}, identification[i])});
    }
    expected.push_back({L"ECM", false, request});
    expected.push_back({L"ECM", true, response});
    expected.push_back({L"ACC", false, {0x19, 0x02, 0xFF}});
    EXPECT_EQ(seen, expected);

    EXPECT_TRUE(pdus(monitor).empty()) << "reading removed them";
}

TEST_F(Monitoring, ValuesOfAFetchCountAndKeep) {
    const uint64_t monitor = pduMonitor();
    raw(L"ECM", {0x3E, 0x00});
    raw(L"ECM", {0x22, 0xF1, 0x90});
    const auto all = pdus(monitor, 0, 1); // 1: leave them
    ASSERT_EQ(all.size(), 4u);
    EXPECT_EQ(pdus(monitor, 0, 1), all);
    EXPECT_EQ(pdus(monitor, 3, 0), std::vector<Seen>(all.begin(), all.begin() + 3));
    EXPECT_EQ(pdus(monitor, 3, 0), std::vector<Seen>(all.begin() + 3, all.end()));
    PduItems items;
    EXPECT_ENGINE_ERROR(
        keep, BadArgument,
        kel_getPduMonitoringItems(api, monitor, 0, 2, &keep, &items.items, &items.count));
}

TEST_F(Monitoring, AFullMonitorDropsItsOldestItemsAndTheNumbersShowTheGap) {
    EXPECT_EQ(kelsim_setVehicleJson(R"({"ecus": [], "monitoring": {"maxItems": 0}})"), -1);
    ASSERT_EQ(
        kelsim_setVehicleJson(R"({"ecus": [{"name": "ECM"}], "monitoring": {"maxItems": 3}})"), 0);
    const uint64_t monitor = pduMonitor();
    raw(L"ECM", {0x3E, 0x00});
    const auto [request, response] = raw(L"ECM", {0x3E, 0x00});
    ASSERT_FALSE(response.empty());
    const auto items = pduItems(monitor);
    ASSERT_EQ(items->count, 3u);
    EXPECT_EQ(items->items[0]->detail->sequence, 2u); // the first request went
    EXPECT_EQ(bytesOf(items->items[1]->data, items->items[1]->dataLength), request);
    EXPECT_EQ(bytesOf(items->items[2]->data, items->items[2]->dataLength), response);
}

// A link item as "<unit> #<number> <flags> <nrc> <sid> <request> -> <response> <text>";
// where it came from (its link or file, live or replayed) and its time are left out.
std::string describe(const MonitoringItem& m) {
    std::ostringstream out;
    out << narrow(m.text1) << " #" << m.value2 << " " << int{m.flag1} << int{m.flag2} << " "
        << m.value3 << " " << m.value4 << hex(bytesOf(m.data, m.dataLength));
    if (m.detail != nullptr) {
        out << " ->" << hex(bytesOf(m.detail->response, m.detail->responseLength)) << " "
            << narrow(m.detail->text);
    }
    return out.str();
}

TEST_F(Monitoring, ALinkGivesOneItemPerExchangeWithItsAnswer) {
    const uint64_t bench = link(L"bench");
    const auto [request, positive] = raw(L"ECM", {0x22, 0xF1, 0x90});
    const auto [refused, negative] = raw(L"ECM", {0x22, 0xFF, 0xFF});
    readAllDtcs(L"ACC"); // the silent unit: a request, no answer

    const auto items = linkItems(bench);
    std::vector<std::string> seen;
    for (uint32_t i = 0; i < items->count; ++i) {
        seen.push_back(describe(*items->items[i]));
        EXPECT_EQ(std::wstring(items->items[i]->text2), L"bench");
        EXPECT_EQ(items->items[i]->flag3, 0) << "live";
    }
    EXPECT_EQ(seen,
              (std::vector<std::string>{"ECM #1 11 0 34" + hex(request) + " ->" + hex(positive) +
                                            " positive response",
                                        "ECM #2 10 49 34" + hex(refused) + " ->" + hex(negative) +
                                            " negative response 0x31: requestOutOfRange",
                                        "ACC #3 00 0 25 19 2 ff"}));
    EXPECT_EQ(linkItems(bench)->count, 0u) << "reading removed them";
}

TEST_F(Monitoring, LinksAreListedByNameUntilReleased) {
    const uint64_t first = link(L"bench");
    link(L"Prüfstand 2");
    uint64_t handle = 0;
    EXPECT_ENGINE_ERROR(taken, LinkExists,
                        kel_createMonitoringLink(api, L"bench", &taken, &handle));
    EXPECT_ENGINE_ERROR(unnamed, BadArgument,
                        kel_createMonitoringLink(api, L"", &unnamed, &handle));

    const auto names = [&] {
        ErrorSlot error;
        wchar_t** list = nullptr;
        uint32_t count = 0;
        kel_getMonitoringLinks(api, &error, &list, &count);
        EXPECT_FALSE(error);
        std::vector<std::wstring> out(list, list + count);
        release_StringArray(list, count);
        return out;
    };
    EXPECT_EQ(names(), (std::vector<std::wstring>{L"bench", L"Prüfstand 2"}));
    EXPECT_EQ(errorOf(kel_releaseMonitoringLink, first), 0);
    EXPECT_EQ(names(), (std::vector<std::wstring>{L"Prüfstand 2"}));
}

TEST_F(Monitoring, ReleasedUnknownAndForeignHandlesAreEngineErrors) {
    const uint64_t monitor = pduMonitor();
    const uint64_t bench = link(L"bench");
    uint64_t trace = 0;
    ASSERT_SUCCEEDS(ok, kel_createApiTraceMonitor(api, &ok, &trace));
    EXPECT_NE(monitor, bench);
    EXPECT_NE(bench, trace);

    // A handle of another kind is not one of this kind; released twice, the second is the
    // engine's error, and the handle is gone for reads.
    using Release = void (*)(TarnApi*, uint64_t, KelError**);
    const std::vector<std::tuple<Release, uint64_t, int32_t>> cases = {
        {kel_releasePduMonitor, bench, UnknownMonitor},
        {kel_releaseMonitoringLink, trace, UnknownMonitor},
        {kel_releaseApiTraceMonitor, monitor, UnknownMonitor},
        {kel_releasePduMonitor, 12345, UnknownMonitor},
        {kel_releasePduMonitor, monitor, 0},
        {kel_releasePduMonitor, monitor, UnknownMonitor},
        {kel_releaseMonitoringLink, bench, 0},
        {kel_releaseMonitoringLink, bench, UnknownMonitor},
        {kel_releaseApiTraceMonitor, trace, 0},
        {kel_releaseApiTraceMonitor, trace, UnknownMonitor},
        {kel_startTraceFileMonitoringLink, bench, UnknownMonitor}};
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const auto& [call, handle, expected] = cases[i];
        EXPECT_EQ(errorOf(call, handle), expected) << "case " << i;
    }

    PduItems items;
    EXPECT_ENGINE_ERROR(
        read, UnknownMonitor,
        kel_getPduMonitoringItems(api, monitor, 0, 0, &read, &items.items, &items.count));
    void* data = nullptr;
    uint32_t length = 0;
    EXPECT_ENGINE_ERROR(readTrace, UnknownMonitor,
                        kel_getApiTraceContent(api, trace, 0, 0, &readTrace, &data, &length));

    // Monitors need an initialised engine, as every call on the vehicle does.
    ErrorSlot ended;
    kel_end(api, &ended);
    uint64_t none = 0;
    EXPECT_ENGINE_ERROR(create, 1001, kel_createPduMonitor(api, &create, &none));
}

// <number> <vehicle time ms> <operation> <duration>us <ok|failed> <arguments>
std::vector<std::vector<std::string>> traceLines(const std::string& text) {
    std::vector<std::vector<std::string>> lines;
    for (std::size_t at = 0; at < text.size();) {
        const auto end = text.find('\n', at);
        EXPECT_NE(end, std::string::npos) << "every line ends with a newline";
        const std::string line = text.substr(at, end - at);
        std::vector<std::string> fields;
        std::size_t from = 0;
        for (int i = 0; i < 5 && from <= line.size(); ++i) {
            const auto space = std::min(line.find(' ', from), line.size());
            fields.push_back(line.substr(from, space - from));
            from = space + 1;
        }
        fields.push_back(from < line.size() ? line.substr(from) : "");
        lines.push_back(fields);
        if (end == std::string::npos) {
            break;
        }
        at = end + 1;
    }
    return lines;
}

TEST_F(Monitoring, ApiTraceShowsTheCallsMadeWithSecretsMasked) {
    uint64_t trace = 0;
    ASSERT_SUCCEEDS(ok, kel_createApiTraceMonitor(api, &ok, &trace));
    // Its own creation is not shown; a call shows when it ends, so a read shows in the next.
    EXPECT_EQ(apiTrace(trace), "");

    ErrorSlot loginError;
    uint8_t loggedIn = 0;
    kel_thirdPartyLogin(api, L"Hunter2-Secret", &loginError, &loggedIn);
    kelsim_failNext("getState", 1, 77, 0, L"scripted", L"");
    ErrorSlot stateError;
    int32_t state = 0;
    kel_getState(api, &stateError, &state);
    ASSERT_TRUE(stateError);
    // A refusal of the vehicle itself, not a scripted one.
    EXPECT_EQ(errorOf(kel_releasePduMonitor, uint64_t{987654}), UnknownMonitor);

    const std::string text = apiTrace(trace);
    EXPECT_EQ(text.find("Hunter2-Secret"), std::string::npos) << text;
    const auto lines = traceLines(text);
    std::vector<std::string> seen; // each line's number, operation, outcome and arguments
    for (const auto& line : lines) {
        seen.push_back(line[0] + " " + line[2] + " " + line[4] + " " + line[5]);
        EXPECT_TRUE(line[3].ends_with("us")) << line[3];
    }
    const std::string login = loginError ? "failed:" + std::to_string(loginError->code) : "ok";
    EXPECT_EQ(seen,
              (std::vector<std::string>{
                  "1 getApiTraceContent ok [" + std::to_string(trace) + ",0,0]",
                  "2 thirdPartyLogin " + login + R"( ["***"])", "3 getState failed:77 []",
                  "4 releasePduMonitor failed:" + std::to_string(UnknownMonitor) + " [987654]"}));
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_LE(std::stoll(lines[0][1]), std::stoll(lines[2][1]));

    // Taken out: the next read has only the read before it, numbered on.
    const std::string next = apiTrace(trace, 0, 1);
    ASSERT_EQ(traceLines(next).size(), 1u) << next;
    EXPECT_EQ(traceLines(next)[0][0], "5");
    // value1 hands out whole lines, at least one; 1 left the line above, so it comes again.
    const std::string first = apiTrace(trace, 5, 0);
    EXPECT_EQ(first, next);
    // Now 6 and 7 are there; a limit that fits one line gives one.
    const std::string two = apiTrace(trace, 0, 1);
    ASSERT_EQ(traceLines(two).size(), 2u) << two;
    const auto firstLength = static_cast<uint32_t>(two.find('\n') + 1);
    EXPECT_EQ(apiTrace(trace, firstLength + 1, 1), two.substr(0, firstLength));
}

// What other clients pass (the bytes they write) is theirs: a remote operator's API
// trace shows its own calls, and another's monitor is unknown to it.
TEST_F(Monitoring, AnOperatorsApiTraceShowsOnlyItsOwnCalls) {
    const auto root = kel_test::freshTempPath("kel_monitoring_trace");
    ASSERT_EQ(kelsim_setVehicleJson(
                  R"({"ecus": [{"name": "ECM"}], "servers": {"passwordIterations": 1000}})"),
              0);
    kelsim_setDataRoot(root.wstring().c_str());
    releaseTarnApi(api);
    kelsim_restart();
    api = kel_getTarnApi();
    ErrorSlot error;
    kel_initialize(api, &error);
    kel_addUser(api, L"op", L"op-password", 1, &error);
    kel_setServerUserManagement(api, 1, &error);
    TarnApi* client = kel_getRemoteConnectionByHandle(kel_test::handleOf(api), &error);
    auto* login = static_cast<LogInOutConfig*>(allocate_Memory(sizeof(LogInOutConfig)));
    login->user = duplicate_WString(L"op");
    login->password = duplicate_WString(L"op-password");
    kel_logIn(client, login, &error);
    ASSERT_FALSE(error) << error->code;

    uint64_t own = 0;
    uint64_t all = 0;
    kel_createApiTraceMonitor(client, &error, &own);
    kel_createApiTraceMonitor(api, &error, &all);
    const std::string secret = "the server's own bytes";
    uint32_t written = 0;
    kel_writeFile(api, L"exchange/secret.txt", reinterpret_cast<const uint8_t*>(secret.data()),
                  static_cast<uint32_t>(secret.size()), 0, 1, &error, &written);
    int32_t state = 0;
    kel_getState(client, &error, &state);
    ASSERT_FALSE(error) << error->code;

    const std::string mine = apiTrace(own, 0, 0, client);
    const auto lines = traceLines(mine);
    ASSERT_EQ(lines.size(), 1u) << mine;
    EXPECT_EQ(lines[0][2], "getState");
    const std::string everything = apiTrace(all);
    EXPECT_NE(everything.find("writeFile"), std::string::npos) << everything;
    EXPECT_NE(everything.find("getState"), std::string::npos) << everything;

    void* data = nullptr;
    uint32_t length = 0;
    EXPECT_ENGINE_ERROR(unread, UnknownMonitor,
                        kel_getApiTraceContent(client, all, 0, 0, &unread, &data, &length));
    EXPECT_ENGINE_ERROR(unreleased, UnknownMonitor,
                        kel_releaseApiTraceMonitor(client, all, &unreleased));
    releaseTarnApi(client);
    releaseTarnApi(api);
    kelsim_reset();
    kelsim_restart();
    api = kel_getTarnApi();
    std::error_code ignored;
    std::filesystem::remove_all(root, ignored);
}

TEST_F(Monitoring, ASavedTraceReplaysItsItemsThroughALink) {
    const uint64_t monitor = pduMonitor();
    const uint64_t live = link(L"live");
    raw(L"ECM", {0x22, 0xF1, 0x90});
    raw(L"ECM", {0x22, 0xFF, 0xFF});
    readAllDtcs(L"ACC"); // the silent unit: a request, no answer
    const uint64_t engine = kel_test::handleOf(api);
    ASSERT_EQ(kelsim_savePduMonitor(engine, monitor, L"run.trc"), 0);
    EXPECT_EQ(kelsim_savePduMonitor(engine, monitor + 1000, L"x.trc"), UnknownMonitor);
    EXPECT_EQ(kelsim_savePduMonitor(engine, monitor, L"../escape.trc"), 1606);

    const auto recorded = linkItems(live);
    ASSERT_EQ(recorded->count, 3u);

    const uint64_t replay = link(L"replay");
    ErrorSlot open;
    kel_openTraceFileMonitoringLink(api, replay, L"traces/run.trc", &open);
    ASSERT_FALSE(open) << open->code;
    EXPECT_ENGINE_ERROR(twice, TraceFileOpen,
                        kel_openTraceFileMonitoringLink(api, replay, L"traces/run.trc", &twice));
    raw(L"ECM", {0x3E, 0x00}); // live traffic does not reach a link that replays
    EXPECT_EQ(errorOf(kel_startTraceFileMonitoringLink, replay), 0);
    kelsim_advanceClock(60000);

    const auto replayed = linkItems(replay);
    ASSERT_EQ(replayed->count, recorded->count);
    for (uint32_t i = 0; i < replayed->count; ++i) {
        const MonitoringItem& r = *replayed->items[i];
        EXPECT_EQ(describe(r), describe(*recorded->items[i]));
        EXPECT_EQ(r.value1, recorded->items[i]->value1) << "the recorded time";
        EXPECT_EQ(r.flag3, 1) << "replayed";
        EXPECT_EQ(std::wstring(r.text2), L"traces/run.trc");
    }
    EXPECT_EQ(errorOf(kel_stopTraceFileMonitoringLink, replay), 0);
    EXPECT_EQ(errorOf(kel_closeTraceFileMonitoringLink, replay), 0);
    EXPECT_EQ(errorOf(kel_closeTraceFileMonitoringLink, replay), NoTraceFile);
    // Closed, the link hears the vehicle again.
    raw(L"ECM", {0x3E, 0x00});
    const auto after = linkItems(replay);
    ASSERT_EQ(after->count, 1u);
    EXPECT_EQ(after->items[0]->flag3, 0);
}

// A trace file written by hand: the replay follows its recorded times on vehicle time,
// and stop holds it where it is.
TEST_F(Monitoring, ReplayFollowsTheRecordedTimesAndStopHoldsIt) {
    wchar_t root[1024];
    ASSERT_GT(kelsim_dataRoot(root, 1024), 0);
    std::filesystem::create_directories(std::filesystem::path(root) / "traces");
    std::ofstream(std::filesystem::path(root) / "traces" / "hand.trc")
        << "{\"format\":\"kel-trace\",\"version\":1}\n"
        << "{\"exchange\":1,\"timeMs\":1000,\"unit\":\"ECM\",\"direction\":\"request\",\"bytes\":"
           "\"3E 00\"}\n"
        << "{\"exchange\":1,\"timeMs\":1000,\"unit\":\"ECM\",\"direction\":\"response\",\"bytes\":"
           "\"7E 00\"}\n"
        << "{\"exchange\":2,\"timeMs\":3000,\"unit\":\"TCM\",\"direction\":\"request\",\"bytes\":"
           "\"22 F1 90\"}\n"
        << "{\"exchange\":4,\"timeMs\":3500,\"unit\":\"GW\",\"direction\":\"response\",\"bytes\":"
           "\"50 01\"}\n"
        << "{\"exchange\":5,\"timeMs\":9000,\"unit\":\"ESP\",\"direction\":\"request\",\"bytes\":"
           "\"\"}\n";
    std::ofstream(std::filesystem::path(root) / "traces" / "broken.trc")
        << "{\"format\":\"kel-trace\",\"version\":1}\n{\"exchange\":1,\"bytes\":\"3G\"}\n";

    const uint64_t replay = link(L"replay");
    const auto openError = [&](const wchar_t* path) {
        ErrorSlot error;
        kel_openTraceFileMonitoringLink(api, replay, path, &error);
        return error ? error->code : 0;
    };
    EXPECT_EQ(openError(L"traces/missing.trc"), 1609);
    EXPECT_EQ(openError(L"traces/../../outside.trc"), 1606);
    EXPECT_EQ(openError(L"traces/broken.trc"), Unreadable);
    EXPECT_EQ(errorOf(kel_startTraceFileMonitoringLink, replay), NoTraceFile);
    ASSERT_EQ(openError(L"traces/hand.trc"), 0);

    const auto units = [&] {
        const auto items = linkItems(replay);
        std::vector<std::wstring> out;
        for (uint32_t i = 0; i < items->count; ++i) {
            out.emplace_back(items->items[i]->text1);
        }
        return out;
    };
    EXPECT_EQ(units(), std::vector<std::wstring>{}); // opened, not started
    EXPECT_EQ(errorOf(kel_startTraceFileMonitoringLink, replay), 0);
    EXPECT_EQ(units(), std::vector<std::wstring>{L"ECM"});
    // Vehicle time also runs with the steady clock, so the check before TCM's time leaves
    // a second of margin for a slow (sanitized) run.
    kelsim_advanceClock(1000);
    EXPECT_EQ(units(), std::vector<std::wstring>{});
    kelsim_advanceClock(1000);
    // GW's response lost its request when the monitor overflowed: left out.
    EXPECT_EQ(units(), std::vector<std::wstring>{L"TCM"});
    EXPECT_EQ(errorOf(kel_stopTraceFileMonitoringLink, replay), 0);
    kelsim_advanceClock(10000);
    EXPECT_EQ(units(), std::vector<std::wstring>{});
    // Started again, it resumes with the next item at once.
    EXPECT_EQ(errorOf(kel_startTraceFileMonitoringLink, replay), 0);
    EXPECT_EQ(units(), std::vector<std::wstring>{L"ESP"});
}

// Exchanges made on several threads at once: none is lost, a request and its response
// stay side by side, and each thread's exchanges keep their order.
using MonitoringConcurrency = Monitoring;

TEST_F(MonitoringConcurrency, ExchangesFromSeveralThreadsAreAllSeenInPairs) {
    const uint64_t monitor = pduMonitor();
    constexpr int perThread = 40;
    const std::vector<const wchar_t*> units = {L"ECM", L"TCM", L"ESP"};
    std::vector<std::thread> threads;
    for (const wchar_t* unit : units) {
        threads.emplace_back([this, unit] {
            for (int i = 0; i < perThread; ++i) {
                raw(unit, {0x22, 0xF1, 0x90});
            }
        });
    }
    for (auto& t : threads) {
        t.join();
    }
    const auto items = pduItems(monitor);
    ASSERT_EQ(items->count, 2u * perThread * units.size());
    std::map<std::wstring, int> requests;
    for (uint32_t i = 0; i < items->count; i += 2) {
        const auto& ask = *items->items[i];
        const auto& answer = *items->items[i + 1];
        EXPECT_EQ(ask.value1, 1u);
        EXPECT_EQ(answer.value1, 2u);
        EXPECT_EQ(std::wstring(ask.text1), answer.text1);
        EXPECT_EQ(ask.detail->exchange, answer.detail->exchange);
        EXPECT_EQ(ask.detail->sequence, i + 1u);
        ++requests[ask.text1];
    }
    for (const wchar_t* unit : units) {
        EXPECT_EQ(requests[unit], perThread);
    }
}

} // namespace
