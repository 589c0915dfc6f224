// The simulated vehicle's events: what happens to a vehicle is posted once and queued
// on every event channel that is open on it at that moment. Each channel is read by
// getCurrentEvents, oldest first, and forgets what it hands out.
//
// Posting is thread-safe and takes only the channels' lock, the last in the lock order,
// so it may be called with any other lock of the engine held. Event records are shared
// between channels and never changed after posting.
#pragma once

#include <Kel_cpp/Records.h>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace Varno::Kel_cpp::Reference {

// KelEvent::kind. The numbers are part of what callers see; only ever add to the end.
// KelEvent::code is kind-specific, 0 unless stated.
enum class EventKind : int32_t {
    EngineInitialized = 1,
    EngineEnded = 2,
    LockTaken = 3,           // detail: "lock id <n>"
    LockReleased = 4,        // detail: "lock id <n>"
    LockBroken = 5,          // detail: "lock id <n>" of the lock that was broken
    DtcsCleared = 6,         // code: number of targets cleared
    AsyncProgress = 7,       // code: percent done; detail: the operation and call id
    AsyncCompleted = 8,      // code: 0, or the error code (then error is set)
    ConnectionBroken = 9,    // detail: "engine <handle>"; error: code ConnectionLost
    ConnectionClosed = 10,   // detail: "engine <handle>" of the object told
    ClientConnected = 11,    // code: remote clients connected now; detail: the client
    ClientDisconnected = 12, // code: remote clients connected now; detail: the client
    EventsLost = 13,         // code: events dropped because the channel was full
    StatusText = 14,         // text: the engine's new status text (setStatusText)
    ServerStarted = 30,      // detail: where the server listens
    ServerStopped = 31,      // code: remote connections ended; detail: the reason given
    SovdServerStarted = 32,  // detail: where the SOVD server listens
    SovdServerStopped = 33,
    UserLoggedIn = 34,  // code: the user's role; detail: the user
    UserLoggedOut = 35, // code: the user's role; detail: the user
    LoginFailed = 36,   // code: failures of this user in a row; detail: the user name given
    SequenceStep = 50,  // code: the service's status; text: the service; detail: run and step
    SequenceEnded = 51, // code: 0 done, 1 stopped by a failed service, 2 cancelled; detail: run
    UpdatePackageSkipped = 60, // code: why (error); detail: the package's folder and reason
    Scripted = 100,            // posted by tests through kelsim_postEvent (any kind >= 100)
};

// The event's name (KelEvent::name), e.g. L"LockTaken"; L"Event<n>" for other numbers.
std::wstring eventName(int32_t kind);

// The event channels of one vehicle.
class EventChannels {
public:
    struct Limits {
        // Events a channel holds before the oldest are dropped (and an EventsLost event
        // reports how many at the next read).
        std::size_t capacity = 10000;
        // Channels open at once; one more is refused, so that channels opened and never
        // closed cannot take the engine's memory.
        std::size_t channels = 64;
    };
    // Applies to channels opened from now on and to the next posts.
    void setLimits(const Limits& limits);

    // A new channel id, unique in the process and never 0, so that an id of a closed
    // channel or of another vehicle is never mistaken for an open one. Throws
    // TarnApiException TooManyEventChannels when the limit is reached.
    uint64_t open();
    // Throws TarnApiException UnknownEventChannel for an unknown or closed channel.
    void close(uint64_t channel);
    // At most `limit` pending events, oldest first, removed from the channel; a limit
    // of 0 takes every pending event. Never null; empty when nothing is pending.
    std::shared_ptr<EventReport> take(uint64_t channel, uint32_t limit);
    // Queues an event on every open channel. The text is what a person reads, the
    // detail what a log would add (a lock id, a client, a call id).
    void post(int32_t kind, int32_t code, std::wstring text, std::wstring detail,
              std::shared_ptr<KelError> error = {});
    void post(EventKind kind, int32_t code, std::wstring text, std::wstring detail,
              std::shared_ptr<KelError> error = {}) {
        post(static_cast<int32_t>(kind), code, std::move(text), std::move(detail),
             std::move(error));
    }

private:
    struct Channel {
        std::deque<std::shared_ptr<KelEvent>> pending;
        int32_t dropped = 0;
    };
    mutable std::mutex mutex_;
    std::map<uint64_t, Channel> channels_;
    Limits limits_;
};

} // namespace Varno::Kel_cpp::Reference
