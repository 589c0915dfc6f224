// The simulated vehicle's asynchronous calls: each runs on the engine's worker threads
// and reports through the caller's callback object, once or several times.
//
// A call computes its results at its first report and hands them out in slices: by
// default one report per result (one per target, as the ECUs answer), the last with
// isFinal set; a call without results reports once. Tests script the number of reports,
// the interval between them and failures (kel_sim.h). A cancelled call ends with one
// final report carrying a CallCancelled error and no results.
#pragma once

#include <Kel_cpp/TarnApi.h>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

namespace Varno::Kel_cpp::Reference {

// Hears each report as it is made: its progress in percent (isFinal false) or, at the
// end, the error code (0 when the call succeeded). The vehicle posts these as events; the
// calls know nothing of its event channels. Told with the calls' lock held.
using AsyncListener = std::function<void(bool isFinal, int32_t code, std::wstring text,
                                         std::wstring detail, std::shared_ptr<KelError> error)>;

// What tests script for the asynchronous form of an operation (by its name, for
// example "readDtcsAsync").
struct AsyncScript {
    uint32_t reports = 0;    // 0: one per result
    uint32_t intervalMs = 5; // before each report
    uint32_t failures = 0;   // the next calls end with `failure`
    std::shared_ptr<KelError> failure;
    uint32_t faults = 0; // the next calls' work throws a std::runtime_error with `fault`
    std::string fault;
};
void scriptAsyncReports(const std::string& operation, uint32_t reports);
void scriptAsyncInterval(const std::string& operation, uint32_t milliseconds);
void scriptAsyncFailure(const std::string& operation, uint32_t count,
                        std::shared_ptr<KelError> error);
void scriptAsyncFault(const std::string& operation, uint32_t count, std::string what);
void resetAsyncScripts();

class AsyncCalls {
public:
    // Tells `listener` of every report, until the calls end.
    explicit AsyncCalls(AsyncListener listener);
    AsyncCalls(const AsyncCalls&) = delete;
    AsyncCalls& operator=(const AsyncCalls&) = delete;
    // Ends every running call with a final CallCancelled report and lets the workers go.
    ~AsyncCalls();

    // Starts a call whose results `work` computes (on a worker thread, at the first
    // report; a TarnApiException from it becomes the final report's error). Returns the
    // call id, never 0.
    template <class Callback, class Work>
    uint64_t start(const char* operation, Callback* callback, Work work) {
        using Results = decltype(work());
        auto call = std::make_shared<Typed<Callback, Results>>();
        call->callback = callback;
        call->work = std::move(work);
        return enqueue(operation, std::move(call));
    }

    // Starts a call done in steps: `plan()` (on a worker, at the first report) returns
    // the steps, each a function giving one result (or a std::optional of one, empty
    // when the step has nothing to report, or a std::vector of any number); every report runs its
    // slice of the steps and hands out their results. A cancel ends the call before its next slice,
    // so each step is done whole or not at all (a copy leaves no half-copied entry).
    template <class Callback, class Plan>
    uint64_t startSteps(const char* operation, Callback* callback, Plan plan) {
        using Steps = decltype(plan());
        auto call = std::make_shared<Stepped<Callback, Steps>>();
        call->callback = callback;
        call->plan = std::move(plan);
        return enqueue(operation, std::move(call));
    }

    // As above; but a cancel that comes once the steps are planned ends the call with the
    // results `windUp()` gives (on the worker, with the CallCancelled error) instead of
    // none: a call that must not stop halfway finishes there what it has begun, and says
    // what it left undone.
    template <class Callback, class Plan, class WindUp>
    uint64_t startSteps(const char* operation, Callback* callback, Plan plan, WindUp windUp) {
        using Steps = decltype(plan());
        auto call = std::make_shared<Stepped<Callback, Steps>>();
        call->callback = callback;
        call->plan = std::move(plan);
        call->windUp = std::move(windUp);
        return enqueue(operation, std::move(call));
    }

    // Cancels the calls with these ids (unknown ids are ignored): `now` ends them at
    // once, otherwise at their next report. With `startedBy`, only the calls that engine
    // object started are cancelled; the others' ids count as unknown.
    void cancel(const std::vector<uint64_t>& ids, bool now,
                std::optional<uint64_t> startedBy = std::nullopt);
    void cancelAll();
    std::size_t running() const;

private:
    // A report is made in two halves, so that what the work throws is caught on the
    // worker before any callback runs: collect() runs the steps of results [from, to) (or
    // the wind-up of a call cancelled after it was prepared) and may throw; hand() gives
    // what was collected to the callback.
    struct Call {
        virtual ~Call() = default;
        // Runs the work; returns the number of results.
        virtual std::size_t prepare() = 0;
        virtual void collect(std::size_t from, std::size_t to, bool windUp) = 0;
        virtual void hand(bool isFinal, std::shared_ptr<KelError> error) = 0;

        uint64_t id = 0;
        uint64_t startedBy = 0; // the handle of the engine object whose call started it
        std::string operation;
        AsyncScript script;
        std::chrono::steady_clock::time_point due;
        bool busy = false;
        bool cancelled = false;
        bool prepared = false;
        std::size_t results = 0;
        uint32_t reports = 1;
        uint32_t next = 0; // the report to deliver next
    };

    template <class Callback, class Results>
    struct Typed : Call {
        Callback* callback = nullptr;
        std::function<Results()> work;
        Results values;
        Results slice;
        std::size_t prepare() override {
            values = work();
            return values.size();
        }
        void collect(std::size_t from, std::size_t to, bool /*windUp*/) override {
            slice.assign(values.begin() + static_cast<std::ptrdiff_t>(from),
                         values.begin() + static_cast<std::ptrdiff_t>(to));
        }
        void hand(bool isFinal, std::shared_ptr<KelError> error) override {
            callback->onCompleted(std::move(slice), id, std::move(error), isFinal);
            slice.clear();
        }
    };

    template <class T>
    struct IsOptional : std::false_type {};
    template <class T>
    struct IsOptional<std::optional<T>> : std::true_type {};
    template <class T>
    struct IsVector : std::false_type {};
    template <class T>
    struct IsVector<std::vector<T>> : std::true_type {};
    template <class T>
    struct UnwrapOptional {
        using type = T;
    };
    template <class T>
    struct UnwrapOptional<std::optional<T>> {
        using type = T;
    };

    template <class Callback, class Steps>
    struct Stepped : Call {
        Callback* callback = nullptr;
        std::function<Steps()> plan;
        Steps steps;
        std::size_t prepare() override {
            steps = plan();
            return steps.size();
        }
        using Result = decltype(std::declval<Steps&>().front()());
        using Wound = std::conditional_t<
            IsVector<Result>::value, Result,
            std::vector<std::conditional_t<IsOptional<Result>::value,
                                           typename UnwrapOptional<Result>::type, Result>>>;
        std::function<Wound()> windUp;
        Wound slice; // what a step that throws leaves here goes with the call's error
        void collect(std::size_t from, std::size_t to, bool cancelled) override {
            if (cancelled) {
                if (windUp) {
                    slice = windUp();
                }
                return;
            }
            for (std::size_t i = from; i < to; ++i) {
                if constexpr (IsOptional<Result>::value) {
                    // A step that has nothing to report (its work ended early) adds nothing.
                    if (auto result = steps[i]()) {
                        slice.push_back(std::move(*result));
                    }
                } else if constexpr (IsVector<Result>::value) {
                    // A step may report several results, or none.
                    for (auto& result : steps[i]()) {
                        slice.push_back(std::move(result));
                    }
                } else {
                    slice.push_back(steps[i]());
                }
            }
        }
        void hand(bool isFinal, std::shared_ptr<KelError> error) override {
            callback->onCompleted(std::move(slice), id, std::move(error), isFinal);
            slice.clear();
        }
    };

    // Shared with the workers, so that it outlives an engine released from a callback.
    struct State {
        std::mutex mutex;
        std::condition_variable wake;
        std::map<uint64_t, std::shared_ptr<Call>> calls;
        bool closing = false;
        AsyncListener listener; // empty once closing: nobody more is told
    };

    uint64_t enqueue(const char* operation, std::shared_ptr<Call> call);
    static void work(const std::shared_ptr<State>& state);
    static void step(State& state, Call& call, std::unique_lock<std::mutex>& lock);
    static void hand(Call& call, bool isFinal, std::shared_ptr<KelError> error);
    static void deliverFinal(Call& call, std::shared_ptr<KelError> error);

    std::shared_ptr<State> state_;
    std::vector<std::thread> workers_;
};

} // namespace Varno::Kel_cpp::Reference
