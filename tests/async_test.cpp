// Asynchronous calls end to end: the handlers the exports create, the reports the
// simulated vehicle's workers make, cancellation and failures. Named *Concurrency* so
// that they also run under ThreadSanitizer; under LeakSanitizer a handler that did not
// delete itself after its final report, or a report list nobody freed, is a failure.
#include "support.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace kel_test;
using namespace std::chrono_literals;

struct Report {
    uint64_t callId = 0;
    bool isFinal = false;
    bool nullList = false;
    int32_t errorCode = 0; // 0: no error
    std::vector<std::wstring> targets;
};

// Collects the reports of any number of calls; the C callback runs on engine threads.
template <class R, void (*Release)(R**, uint64_t)>
class Collector {
public:
    static void callback(R** results, uint32_t count, bool isFinal, uint64_t callId,
                         KelError* error, void* context) {
        auto* self = static_cast<Collector*>(context);
        Report report{callId, isFinal, results == nullptr, error != nullptr ? error->code : 0, {}};
        for (uint32_t i = 0; i < count; ++i) {
            report.targets.emplace_back(results[i]->target);
        }
        // The callee owns both.
        Release(results, count);
        release_KelError(error);
        // Notified under the lock: once the waiter sees the final report it may destroy
        // the collector.
        const std::lock_guard lock(self->mutex_);
        self->reports_.push_back(std::move(report));
        self->finals_ += isFinal ? 1 : 0;
        self->changed_.notify_all();
    }

    bool waitForFinals(int finals, std::chrono::milliseconds timeout = 10s) {
        std::unique_lock lock(mutex_);
        return changed_.wait_for(lock, timeout, [&] { return finals_ >= finals; });
    }
    std::vector<Report> reports() {
        const std::lock_guard lock(mutex_);
        return reports_;
    }
    std::vector<Report> reportsOf(uint64_t id) {
        std::vector<Report> out;
        for (auto& r : reports()) {
            if (r.callId == id) {
                out.push_back(r);
            }
        }
        return out;
    }

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<Report> reports_;
    int finals_ = 0;
};

using DtcCollector = Collector<ReadDtcResult, release_ReadDtcResult_array>;
using IdentCollector = Collector<VariantIdentResult, release_VariantIdentResult_array>;
using ClearCollector = Collector<ClearDtcResult, release_ClearDtcResult_array>;
using DataCollector = Collector<ReadDataResult, release_ReadDataResult_array>;

class AsyncConcurrency : public EngineTest {
protected:
    void TearDown() override {
        // Every call has ended before the engine goes: nothing may report into a
        // collector that no longer exists.
        for (int i = 0; i < 1000 && kelsim_runningAsyncCalls(handle()) > 0; ++i) {
            std::this_thread::sleep_for(5ms);
        }
        EXPECT_EQ(kelsim_runningAsyncCalls(handle()), 0);
        EngineTest::TearDown();
    }
    uint64_t handle() { return kel_test::handleOf(api); }
};

TEST_F(AsyncConcurrency, ReadDtcsReportsOnePerTargetThenFinal) {
    DtcCollector collector;
    ErrorSlot error;
    const uint64_t id =
        kel_readDtcsAsync(api, nullptr, 0, nullptr, &error, DtcCollector::callback, &collector);
    ASSERT_FALSE(error);
    ASSERT_NE(id, 0U);
    ASSERT_TRUE(collector.waitForFinals(1));
    const auto reports = collector.reports();
    ASSERT_EQ(reports.size(), 6U);
    std::vector<std::wstring> targets;
    for (std::size_t i = 0; i < reports.size(); ++i) {
        EXPECT_EQ(reports[i].callId, id);
        EXPECT_EQ(reports[i].isFinal, i + 1 == reports.size());
        EXPECT_EQ(reports[i].errorCode, 0);
        targets.insert(targets.end(), reports[i].targets.begin(), reports[i].targets.end());
    }
    EXPECT_EQ(targets, (std::vector<std::wstring>{L"ECM", L"TCM", L"ESP", L"BCM", L"GW", L"ACC"}));
}

TEST_F(AsyncConcurrency, ManyCallsFromManyThreads) {
    kelsim_setAsyncInterval("readDtcsAsync", 1);
    kelsim_setAsyncInterval("identifyAllTargetsAsync", 1);
    kelsim_setAsyncInterval("readIdentificationValuesAsync", 1);
    DtcCollector dtcs;
    IdentCollector idents;
    DataCollector data;
    constexpr int threads = 8;
    constexpr int callsPerThread = 6;
    std::vector<std::thread> starters;
    std::mutex idsMutex;
    std::vector<uint64_t> ids;
    for (int t = 0; t < threads; ++t) {
        starters.emplace_back([&] {
            for (int k = 0; k < callsPerThread; ++k) {
                KelError* error = nullptr;
                const wchar_t* names[] = {L"ECM", L"ESP"};
                uint64_t id = 0;
                switch (k % 3) {
                case 0:
                    id = kel_readDtcsAsync(api, const_cast<wchar_t**>(names), 2, nullptr, &error,
                                           DtcCollector::callback, &dtcs);
                    break;
                case 1:
                    id =
                        kel_identifyAllTargetsAsync(api, &error, IdentCollector::callback, &idents);
                    break;
                default:
                    id = kel_readIdentificationValuesAsync(api, const_cast<wchar_t**>(names), 2,
                                                           &error, DataCollector::callback, &data);
                }
                EXPECT_EQ(error, nullptr);
                release_KelError(error);
                const std::lock_guard lock(idsMutex);
                ids.push_back(id);
            }
        });
    }
    for (auto& t : starters) {
        t.join();
    }
    constexpr int each = threads * callsPerThread / 3;
    ASSERT_TRUE(dtcs.waitForFinals(each));
    ASSERT_TRUE(idents.waitForFinals(each));
    ASSERT_TRUE(data.waitForFinals(each));
    std::sort(ids.begin(), ids.end());
    EXPECT_EQ(std::unique(ids.begin(), ids.end()), ids.end()) << "every call has its own id";
    EXPECT_NE(ids.front(), 0U);
    for (const uint64_t id : ids) {
        const auto mine =
            dtcs.reportsOf(id).size() + idents.reportsOf(id).size() + data.reportsOf(id).size();
        EXPECT_GE(mine, 1U);
    }
    EXPECT_EQ(dtcs.reports().size(), static_cast<std::size_t>(each * 2));
    EXPECT_EQ(idents.reports().size(), static_cast<std::size_t>(each * 6));
}

TEST_F(AsyncConcurrency, CancelEndsARunningCallWithAFinalError) {
    kelsim_setAsyncReports("readDtcsAsync", 50);
    kelsim_setAsyncInterval("readDtcsAsync", 20);
    DtcCollector collector;
    ErrorSlot error;
    const uint64_t id =
        kel_readDtcsAsync(api, nullptr, 0, nullptr, &error, DtcCollector::callback, &collector);
    ASSERT_NE(id, 0U);
    std::this_thread::sleep_for(50ms);
    const uint64_t ids[] = {id, 12345};
    ASSERT_SUCCEEDS(ok, kel_cancelAsyncCalls(api, ids, 2, &ok));
    ASSERT_TRUE(collector.waitForFinals(1, 2s)) << "a cancelled call ends at once";
    const auto reports = collector.reports();
    ASSERT_LT(reports.size(), 50U);
    EXPECT_TRUE(reports.back().isFinal);
    EXPECT_EQ(reports.back().errorCode, 1012);
    EXPECT_TRUE(reports.back().nullList);
}

TEST_F(AsyncConcurrency, TriggeredCancelEndsAtTheNextReport) {
    kelsim_setAsyncReports("clearAllDtcsAsync", 3);
    // Reports far enough apart that a loaded machine still triggers the cancel before the first.
    kelsim_setAsyncInterval("clearAllDtcsAsync", 250);
    ClearCollector collector;
    ErrorSlot error;
    const uint64_t id =
        kel_clearAllDtcsAsync(api, nullptr, 0, &error, ClearCollector::callback, &collector);
    const uint64_t ids[] = {id};
    ASSERT_SUCCEEDS(ok, kel_triggerAsyncCancels(api, ids, 1, &ok));
    ASSERT_TRUE(collector.waitForFinals(1));
    const auto reports = collector.reports();
    ASSERT_EQ(reports.size(), 1U);
    EXPECT_EQ(reports[0].errorCode, 1012);
}

TEST_F(AsyncConcurrency, CancelAllEndsEveryCall) {
    kelsim_setAsyncInterval("readSupportedDtcsAsync", 200);
    DtcCollector collector;
    ErrorSlot error;
    for (int i = 0; i < 5; ++i) {
        kel_readSupportedDtcsAsync(api, nullptr, 0, nullptr, &error, DtcCollector::callback,
                                   &collector);
    }
    EXPECT_EQ(kelsim_runningAsyncCalls(handle()), 5);
    ASSERT_SUCCEEDS(ok, kel_cancelAllAsyncCalls(api, &ok));
    ASSERT_TRUE(collector.waitForFinals(5, 1s));
    for (const auto& r : collector.reports()) {
        EXPECT_TRUE(r.isFinal);
        EXPECT_EQ(r.errorCode, 1012);
    }
}

// A scripted failure, and a fault in the work (an exception that is no engine error,
// which ended the process), end only the next call, in its final report with no list.
TEST_F(AsyncConcurrency, AFailureOrAFaultInTheWorkEndsOnlyTheNextCall) {
    for (const int32_t code : {66, 2301}) {
        SCOPED_TRACE(code);
        if (code == 66) {
            kelsim_failAsync("identifyAllTargetsAsync", 1, code, L"bus off", L"scripted");
        } else {
            kelsim_throwAsync("identifyAllTargetsAsync", 1, "broken");
        }
        IdentCollector collector;
        ErrorSlot error;
        kel_identifyAllTargetsAsync(api, &error, IdentCollector::callback, &collector);
        kel_identifyAllTargetsAsync(api, &error, IdentCollector::callback, &collector);
        ASSERT_FALSE(error);
        ASSERT_TRUE(collector.waitForFinals(2));
        std::vector<int32_t> finals;
        for (const auto& r : collector.reports()) {
            EXPECT_TRUE(r.errorCode == 0 || (r.isFinal && r.nullList)) << r.errorCode;
            if (r.isFinal) {
                finals.push_back(r.errorCode);
            }
        }
        std::sort(finals.begin(), finals.end());
        EXPECT_EQ(finals, (std::vector<int32_t>{0, code}));
    }
}

TEST_F(AsyncConcurrency, AsyncClearsChangeTheFaultMemory) {
    ClearCollector collector;
    ErrorSlot error;
    const uint32_t codes[] = {0x030100};
    kel_clearSpecificDtcsAsync(api, L"ECM", codes, 1, &error, ClearCollector::callback, &collector);
    ASSERT_TRUE(collector.waitForFinals(1));
    EXPECT_EQ(collector.reports().back().targets, std::vector<std::wstring>{L"ECM"});

    wchar_t* names[] = {const_cast<wchar_t*>(L"ECM")};
    const auto after = kel_test::fetch<kel_test::List<ReadDtcResult, release_ReadDtcResult_array>>(
        [&](auto... out) { kel_readDtcs(api, names, 1, nullptr, out...); });
    ASSERT_EQ(after->count, 1U);
    ASSERT_EQ(after->items[0]->dtcCount, 1U);
    EXPECT_STREQ(after->items[0]->dtcs[0]->text1, L"P2463");
}

} // namespace
