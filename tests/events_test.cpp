// Event channels, connection callbacks and server handlers through the C exports,
// against the simulated vehicle: events come from what the engine does.
#include "support.h"
#include "uds.h"

#include <atomic>
#include <chrono>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace kel_test;

// The vehicle's event kinds, as the reference engine numbers them.
enum : int32_t {
    EngineEnded = 2,
    LockTaken = 3,
    LockReleased = 4,
    LockBroken = 5,
    ConnectionBroken = 9,
    ConnectionClosed = 10,
    ClientConnected = 11,
    ClientDisconnected = 12,
    EventsLost = 13,
};

struct Event {
    std::wstring name;
    int32_t kind = 0;
    int32_t code = 0;
    std::wstring text;
    std::wstring detail;
    bool hasError = false;
    int32_t errorCode = 0;
    std::wstring errorMessage;
    bool operator==(const Event&) const = default;
};

std::wstring copy(const wchar_t* text) { return text != nullptr ? text : L"<null>"; }

// Copies a report into plain values and releases it.
std::vector<Event> consume(EventReport* report) {
    std::vector<Event> events;
    for (uint32_t i = 0; i < report->eventCount; ++i) {
        const KelEvent* e = report->events[i];
        Event event{copy(e->name),       e->kind, e->code, copy(e->text), copy(e->detail),
                    e->error != nullptr, 0,       {}};
        if (e->error != nullptr) {
            event.errorCode = e->error->code;
            event.errorMessage = copy(e->error->message);
        }
        events.push_back(std::move(event));
    }
    release_EventReport(report);
    return events;
}

// The events' kinds, or another of their numbers.
std::vector<int32_t> kinds(const std::vector<Event>& events, int32_t Event::*field = &Event::kind) {
    std::vector<int32_t> result;
    for (const auto& e : events) {
        result.push_back(e.*field);
    }
    return result;
}

std::vector<int32_t> codes(const std::vector<Event>& events) { return kinds(events, &Event::code); }

std::wstring lockDetail(uint64_t lockId) { return L"lock id " + std::to_wstring(lockId); }

TarnApi* remoteOf(TarnApi* api) {
    ErrorSlot error;
    TarnApi* remote = kel_getRemoteConnectionByHandle(handleOf(api), &error);
    EXPECT_NE(remote, nullptr);
    return remote;
}

// How events and handlers name a remote client: by its handle in hex.
std::wstring clientName(TarnApi* remote) {
    const uint64_t handle = handleOf(remote);
    std::wstring name = L"remote ";
    for (int shift = 60; shift >= 0; shift -= 4) {
        name += L"0123456789ABCDEF"[(handle >> shift) & 0xF];
    }
    return name;
}

class Events : public EngineTest {
protected:
    uint64_t open(TarnApi* on = nullptr) {
        ErrorSlot error;
        uint64_t channel = 0;
        kel_openEventChannel(on != nullptr ? on : api, &error, &channel);
        EXPECT_FALSE(error);
        EXPECT_NE(channel, 0U);
        return channel;
    }
    std::vector<Event> read(uint64_t channel, uint32_t limit = 0) {
        auto report = kel_test::fetchRecord(release_EventReport, [&](auto... out) {
            kel_getCurrentEvents(api, channel, limit, out...);
        });
        EXPECT_NE(report, nullptr);
        return report ? consume(report.release()) : std::vector<Event>{};
    }
    // The engine going away drops the vehicle and every handler it kept.
    void restartEngine() {
        releaseTarnApi(api);
        kelsim_restart();
        api = kel_getTarnApi();
    }
    // Scripted events of kind 100 with codes 0 to count - 1.
    void post(int32_t count) {
        for (int32_t i = 0; i < count; ++i) {
            ASSERT_EQ(kelsim_postEvent(handleOf(api), 100, i, nullptr, nullptr, 0, nullptr), 0);
        }
    }
};

// Each channel has its own queue from when it opened.
TEST_F(Events, EngineActionsComeBackOldestFirstWithTheirDetails) {
    const uint64_t channel = open();
    ErrorSlot error;
    uint64_t first = 0;
    uint64_t second = 0;
    kel_lock(api, &error, &first);
    const uint64_t late = open();
    EXPECT_NE(late, channel);
    kel_unlock(api, first, &error);
    kel_lock(api, &error, &second);
    kel_breakLock(api, &error);
    kel_breakLock(api, &error); // nothing to break: no event
    kel_end(api, &error);
    ASSERT_FALSE(error);

    const auto events = read(channel);
    ASSERT_EQ(kinds(events),
              (std::vector<int32_t>{LockTaken, LockReleased, LockTaken, LockBroken, EngineEnded}));
    // An empty engine text arrives as an empty string.
    const std::pair<const wchar_t*, std::wstring> expected[] = {
        {L"LockTaken", lockDetail(first)},
        {L"LockReleased", lockDetail(first)},
        {L"LockTaken", lockDetail(second)},
        {L"LockBroken", lockDetail(second)},
        {L"EngineEnded", L""}};
    for (std::size_t i = 0; i < events.size(); ++i) {
        EXPECT_EQ(events[i].name, expected[i].first) << i;
        EXPECT_EQ(events[i].detail, expected[i].second) << i;
        EXPECT_FALSE(events[i].text.empty());
        EXPECT_FALSE(events[i].hasError);
    }
    EXPECT_TRUE(read(channel).empty());
    EXPECT_EQ(kinds(read(late)),
              (std::vector<int32_t>{LockReleased, LockTaken, LockBroken, EngineEnded}))
        << "reading one channel leaves the other";
}

TEST_F(Events, ScriptedEventsKeepEveryFieldAndReadsTakeAtMostTheirLimit) {
    const uint64_t channel = open();
    ASSERT_EQ(
        kelsim_postEvent(handleOf(api), 321, -7, L"t\u00e9xt", L"d\u00e9tail", 55, L"m\u00e9ssage"),
        0);
    ASSERT_EQ(kelsim_postEvent(handleOf(api), 100, 0, nullptr, nullptr, 0, nullptr), 0);
    EXPECT_EQ(kelsim_postEvent(0, 100, 0, nullptr, nullptr, 0, nullptr), -1);
    EXPECT_EQ(read(channel), (std::vector<Event>{{L"Event321", 321, -7, L"t\u00e9xt",
                                                  L"d\u00e9tail", true, 55, L"m\u00e9ssage"},
                                                 {L"Scripted", 100, 0, L"", L"", false, 0, L""}}));

    // What is read is gone.
    post(5);
    EXPECT_EQ(codes(read(channel, 2)), (std::vector<int32_t>{0, 1}));
    EXPECT_EQ(codes(read(channel, 1)), (std::vector<int32_t>{2}));
    EXPECT_EQ(codes(read(channel, 10)), (std::vector<int32_t>{3, 4}));
    EXPECT_TRUE(read(channel, 10).empty());
    post(3);
    EXPECT_EQ(codes(read(channel, 0)), (std::vector<int32_t>{0, 1, 2}))
        << "limit 0 takes everything";
}

TEST_F(Events, UnknownOrClosedChannelIsAnError) {
    const uint64_t channel = open();
    ErrorSlot closeError;
    kel_closeEventChannel(api, channel, &closeError);
    ASSERT_FALSE(closeError);

    for (const uint64_t bad : {channel, uint64_t{0}, ~uint64_t{0}}) {
        ErrorSlot error;
        EventReport* report = nullptr;
        kel_getCurrentEvents(api, bad, 0, &error, &report);
        ASSERT_TRUE(error) << bad;
        EXPECT_EQ(error->code, 1006);
        EXPECT_EQ(copy(error->details),
                  L"channel " + std::to_wstring(bad) + L" was never opened or is closed");
    }
    // A channel closes once.
    EXPECT_ENGINE_ERROR(again, 1006, kel_closeEventChannel(api, channel, &again));
}

TEST_F(Events, ConnectionReportsBecomeEventsAndABrokenOneCarriesAnError) {
    const uint64_t channel = open();
    ErrorSlot error;
    kel_onConnectionBroken(api, &error);
    kel_onConnectionClosed(api, &error);
    ASSERT_FALSE(error);

    const auto events = read(channel);
    ASSERT_EQ(kinds(events), (std::vector<int32_t>{ConnectionBroken, ConnectionClosed}));
    EXPECT_TRUE(events[0].hasError);
    EXPECT_EQ(events[0].errorCode, 1007);
    EXPECT_EQ(events[0].errorMessage, L"The connection to the client broke");
    EXPECT_FALSE(events[1].hasError);
}

// A full channel drops the oldest and says how many; the description sets the capacity.
TEST_F(Events, AFullChannelDropsTheOldestAndSaysHowMany) {
    const uint64_t channel = open();
    constexpr int32_t capacity = 10000;
    post(capacity + 5);
    const auto head = read(channel, 2);
    ASSERT_EQ(head.size(), 2U);
    EXPECT_EQ(head[0].kind, EventsLost);
    EXPECT_EQ(head[0].code, 5);
    EXPECT_EQ(head[1].code, 5) << "the oldest five were dropped";
    const auto rest = read(channel);
    ASSERT_EQ(rest.size(), static_cast<size_t>(capacity - 1));
    EXPECT_EQ(rest.back().code, capacity + 4);

    ASSERT_EQ(kelsim_setVehicleJson(R"({"ecus": [], "events": {"channelCapacity": 3}})"), 0);
    const uint64_t small = open();
    post(5);
    const auto events = read(small);
    ASSERT_EQ(kinds(events), (std::vector<int32_t>{EventsLost, 100, 100, 100}));
    EXPECT_EQ(events[0].code, 2);
    EXPECT_EQ(events[0].detail, L"capacity 3");
    EXPECT_EQ(events[1].code, 2) << "the oldest two were dropped";
}

// Channels opened and never closed must not take the engine's memory: the vehicle
// refuses more than its limit, counted over every engine object on it.
TEST_F(Events, OpeningChannelsWithoutEndIsRefusedWithAnError) {
    ErrorSlot error;
    std::vector<uint64_t> channels;
    for (int i = 0; i < 100000 && !error; ++i) {
        uint64_t channel = 0;
        kel_openEventChannel(api, &error, &channel);
        if (!error) {
            channels.push_back(channel);
        }
    }
    ASSERT_TRUE(error) << "opened " << channels.size() << " channels without an error";
    EXPECT_EQ(channels.size(), 64U) << "the default limit";
    EXPECT_EQ(error->code, 1008);
    EXPECT_STREQ(error->message, L"Too many event channels are open");

    EXPECT_ENGINE_ERROR(closed, 0, kel_closeEventChannel(api, channels.back(), &closed));
    EXPECT_NE(open(), channels.back()) << "ids are never reused";
}

// An events section that is not valid refuses the description and leaves the limit as it
// was.
TEST_F(Events, TheChannelLimitComesFromTheDescriptionAndCoversRemoteConnections) {
    ASSERT_EQ(kelsim_setVehicleJson(R"({"ecus": [], "events": {"maxChannels": 2}})"), 0);
    EXPECT_EQ(kelsim_setVehicleJson(R"({"ecus": [], "events": {"maxChannels": 0}})"), -1);
    EXPECT_EQ(kelsim_setVehicleJson(R"({"ecus": [], "events": {"maxChannels": "many"}})"), -1);
    EXPECT_EQ(kelsim_setVehicleJson(R"({"ecus": [], "events": {"channelCapacity": -1}})"), -1);
    TarnApi* remote = remoteOf(api);
    ASSERT_NE(remote, nullptr);
    const uint64_t first = open();
    open(remote);
    uint64_t third = 0;
    EXPECT_ENGINE_ERROR(full, 1008, kel_openEventChannel(remote, &full, &third));
    EXPECT_ENGINE_ERROR(closed, 0, kel_closeEventChannel(api, first, &closed));
    EXPECT_NE(open(remote), 0U) << "closing one makes room";
    releaseTarnApi(remote);
}

TEST_F(Events, RemoteClientsComingAndGoingAreEvents) {
    const uint64_t channel = open();
    TarnApi* remote = remoteOf(api);
    ASSERT_NE(remote, nullptr);
    const std::wstring name = clientName(remote);
    uint64_t lockId = 0;
    EXPECT_ENGINE_ERROR(error, 0, kel_lock(remote, &error, &lockId));
    releaseTarnApi(remote);

    const auto events = read(channel);
    ASSERT_EQ(kinds(events),
              (std::vector<int32_t>{ClientConnected, LockTaken, ClientDisconnected}));
    EXPECT_EQ(events[0].code, 1) << "one remote client now";
    EXPECT_EQ(events[2].code, 0);
    EXPECT_EQ(events[0].detail, name);
    EXPECT_EQ(events[2].detail, name);
}

// A client's handler: records what it hears and says when it is destroyed.
class RecordingHandler : public Varno::Kel_cpp::ServerHandler {
public:
    explicit RecordingHandler(bool& destroyed) : destroyed_(destroyed) {}
    RecordingHandler(const RecordingHandler&) = delete;
    RecordingHandler& operator=(const RecordingHandler&) = delete;
    ~RecordingHandler() override { destroyed_ = true; }
    void onClientConnected(const std::wstring& client) override { hear(L"+" + client); }
    void onClientDisconnected(const std::wstring& client) override { hear(L"-" + client); }
    std::vector<std::wstring> heard() const {
        const std::lock_guard lock(mutex_);
        return heard_;
    }

private:
    void hear(std::wstring what) {
        const std::lock_guard lock(mutex_);
        heard_.push_back(std::move(what));
    }
    bool& destroyed_;
    mutable std::mutex mutex_;
    std::vector<std::wstring> heard_;
};

void registerHandler(TarnApi* api, Varno::Kel_cpp::ServerHandler* handler) {
    ErrorSlot error;
    kel_registerServerHandler(reinterpret_cast<uint64_t>(api), static_cast<void*>(handler), &error);
    ASSERT_FALSE(error);
}

using ServerHandlers = Events;

TEST_F(ServerHandlers, HearRemoteClientsAndAreNeverDeletedByTheEngine) {
    bool destroyed = false;
    auto handler = std::make_unique<RecordingHandler>(destroyed);
    registerHandler(api, handler.get());
    registerHandler(api, handler.get()); // twice: still told once per client
    TarnApi* remote = remoteOf(api);
    ASSERT_NE(remote, nullptr);
    const std::wstring name = clientName(remote);
    EXPECT_EQ(handler->heard(), std::vector<std::wstring>{L"+" + name});
    releaseTarnApi(remote);
    EXPECT_EQ(handler->heard(), (std::vector<std::wstring>{L"+" + name, L"-" + name}));

    restartEngine();
    EXPECT_FALSE(destroyed) << "the engine deleted the caller's handler";
    handler.reset();
    EXPECT_TRUE(destroyed);
}

TEST_F(ServerHandlers, ARemoteConnectionOutlivingTheLocalEngineStillReachesTheHandler) {
    bool destroyed = false;
    RecordingHandler handler(destroyed);
    TarnApi* remote = remoteOf(api);
    ASSERT_NE(remote, nullptr);
    registerHandler(remote, &handler); // registered through the remote object: same vehicle
    restartEngine();
    EXPECT_TRUE(handler.heard().empty()) << "connected before the handler was registered";
    const std::wstring name = clientName(remote);
    releaseTarnApi(remote);
    EXPECT_EQ(handler.heard(), std::vector<std::wstring>{L"-" + name});
    EXPECT_FALSE(destroyed);
}

// A NULL handler from a C caller, and the empty one number 254 hands the engine (a
// stream cannot carry a handler), have nothing to hear: the next remote client must
// not reach them, and a real handler beside them still hears it.
TEST_F(ServerHandlers, AnEmptyHandlerIsHarmlessThroughTheExportAndTheDispatcher) {
    EXPECT_ENGINE_ERROR(
        error, 0, kel_registerServerHandler(reinterpret_cast<uint64_t>(api), nullptr, &error));
    void* stream = nullptr;
    uint64_t size = 0;
    kel_call_checked(0, 254, nullptr, 0, &stream, &size);
    std::vector<uint8_t> status(size);
    kel_call_result(stream, status.data());
    ASSERT_EQ(status, std::vector<uint8_t>{1});
    EXPECT_EQ(kelsim_callCount("registerServerHandler"), 2U) << "both reached the engine";

    bool destroyed = false;
    RecordingHandler handler(destroyed);
    registerHandler(api, &handler);
    TarnApi* remote = remoteOf(api);
    const std::wstring name = clientName(remote);
    releaseTarnApi(remote);
    EXPECT_EQ(handler.heard(), (std::vector<std::wstring>{L"+" + name, L"-" + name}));
}

using EventsConcurrency = Events;

// Producers: scripted posts from several threads and lock traffic from a remote
// connection; one consumer per channel. Each producer's events must arrive exactly once
// and in its own order on every channel.
TEST_F(EventsConcurrency, ProducersAndOneConsumerPerChannelLoseAndRepeatNothing) {
    constexpr int32_t producers = 3;
    constexpr int32_t perProducer = 400;
    constexpr int32_t lockRounds = 150;
    constexpr size_t expected = producers * perProducer + 2 * lockRounds;

    const uint64_t self = handleOf(api);
    TarnApi* remote = remoteOf(api);
    ASSERT_NE(remote, nullptr);
    const std::vector<uint64_t> channels{open(), open()};

    std::atomic<int> failures{0};
    std::vector<std::thread> threads;
    for (int32_t p = 0; p < producers; ++p) {
        threads.emplace_back([&, p] {
            for (int32_t i = 0; i < perProducer; ++i) {
                const int32_t posted =
                    kelsim_postEvent(self, 100 + p, i, L"scripted", L"", 0, nullptr);
                failures += posted != 0 ? 1 : 0;
            }
        });
    }
    threads.emplace_back([&] {
        for (int32_t i = 0; i < lockRounds; ++i) {
            uint64_t lockId = 0;
            if (errorCodeOf([&](KelError** e) { kel_lock(remote, e, &lockId); }) != 0 ||
                errorCodeOf([&](KelError** e) { kel_unlock(remote, lockId, e); }) != 0) {
                ++failures;
            }
        }
    });

    std::vector<std::vector<Event>> received(channels.size());
    for (size_t c = 0; c < channels.size(); ++c) {
        threads.emplace_back([&, c] {
            const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
            while (received[c].size() < expected && std::chrono::steady_clock::now() < deadline) {
                KelError* e = nullptr;
                EventReport* report = nullptr;
                kel_getCurrentEvents(api, channels[c], 7, &e, &report);
                if (e != nullptr || report == nullptr) {
                    ++failures;
                    release_KelError(e);
                    return;
                }
                failures += report->eventCount > 7 ? 1 : 0;
                const auto events = consume(report);
                received[c].insert(received[c].end(), events.begin(), events.end());
                std::this_thread::yield();
            }
        });
    }
    for (auto& t : threads) {
        t.join();
    }
    releaseTarnApi(remote);
    ASSERT_EQ(failures.load(), 0);

    for (size_t c = 0; c < channels.size(); ++c) {
        const auto& events = received[c];
        EXPECT_EQ(events.size(), expected) << "channel " << c;
        std::map<int32_t, int32_t> next; // per producer: the code it must post next
        int32_t taken = 0;
        int32_t released = 0;
        for (const auto& e : events) {
            if (e.kind >= 100) {
                EXPECT_EQ(e.code, next[e.kind]++)
                    << "producer " << e.kind - 100 << " on channel " << c;
            } else if (e.kind == LockTaken) {
                ++taken;
                EXPECT_EQ(taken, released + 1) << "a release came before its lock";
            } else if (e.kind == LockReleased) {
                ++released;
            } else {
                ADD_FAILURE() << "unexpected kind " << e.kind;
            }
        }
        for (int32_t p = 0; p < producers; ++p) {
            EXPECT_EQ(next[100 + p], perProducer);
        }
        EXPECT_EQ(taken, lockRounds);
        EXPECT_EQ(released, lockRounds);
    }
}

} // namespace
