#include "EventChannels.h"

#include "ErrorCodes.h"

#include <Kel_cpp/TarnApiException.h>

#include <algorithm>
#include <atomic>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace {

uint64_t newChannelId() {
    static std::atomic<uint64_t> next{1};
    return next++;
}

TarnApiException unknownChannel(uint64_t channel) {
    return TarnApiException(UnknownEventChannel, L"The event channel is not open",
                            L"channel " + std::to_wstring(channel) +
                                L" was never opened or is closed");
}

std::shared_ptr<KelEvent> makeEvent(int32_t kind, int32_t code, std::wstring text,
                                    std::wstring detail, std::shared_ptr<KelError> error) {
    auto event = std::make_shared<KelEvent>();
    event->name = eventName(kind);
    event->kind = kind;
    event->code = code;
    event->text = std::move(text);
    event->error = std::move(error);
    event->detail = std::move(detail);
    return event;
}

} // namespace

std::wstring eventName(int32_t kind) {
    switch (static_cast<EventKind>(kind)) {
    case EventKind::EngineInitialized:
        return L"EngineInitialized";
    case EventKind::EngineEnded:
        return L"EngineEnded";
    case EventKind::LockTaken:
        return L"LockTaken";
    case EventKind::LockReleased:
        return L"LockReleased";
    case EventKind::LockBroken:
        return L"LockBroken";
    case EventKind::DtcsCleared:
        return L"DtcsCleared";
    case EventKind::AsyncProgress:
        return L"AsyncProgress";
    case EventKind::AsyncCompleted:
        return L"AsyncCompleted";
    case EventKind::ConnectionBroken:
        return L"ConnectionBroken";
    case EventKind::ConnectionClosed:
        return L"ConnectionClosed";
    case EventKind::ClientConnected:
        return L"ClientConnected";
    case EventKind::ClientDisconnected:
        return L"ClientDisconnected";
    case EventKind::EventsLost:
        return L"EventsLost";
    case EventKind::StatusText:
        return L"StatusText";
    case EventKind::ServerStarted:
        return L"ServerStarted";
    case EventKind::ServerStopped:
        return L"ServerStopped";
    case EventKind::SovdServerStarted:
        return L"SovdServerStarted";
    case EventKind::SovdServerStopped:
        return L"SovdServerStopped";
    case EventKind::UserLoggedIn:
        return L"UserLoggedIn";
    case EventKind::UserLoggedOut:
        return L"UserLoggedOut";
    case EventKind::LoginFailed:
        return L"LoginFailed";
    case EventKind::SequenceStep:
        return L"SequenceStep";
    case EventKind::SequenceEnded:
        return L"SequenceEnded";
    case EventKind::UpdatePackageSkipped:
        return L"UpdatePackageSkipped";
    case EventKind::Scripted:
        return L"Scripted";
    }
    return L"Event" + std::to_wstring(kind);
}

void EventChannels::setLimits(const Limits& limits) {
    const std::lock_guard lock(mutex_);
    limits_ = limits;
}

uint64_t EventChannels::open() {
    const std::lock_guard lock(mutex_);
    if (channels_.size() >= limits_.channels) {
        throw TarnApiException(TooManyEventChannels, L"Too many event channels are open",
                               std::to_wstring(channels_.size()) +
                                   L" channels are open on this vehicle, the most it allows; "
                                   L"close one first");
    }
    const uint64_t id = newChannelId();
    channels_.emplace(id, Channel{});
    return id;
}

void EventChannels::close(uint64_t channel) {
    const std::lock_guard lock(mutex_);
    if (channels_.erase(channel) == 0) {
        throw unknownChannel(channel);
    }
}

std::shared_ptr<EventReport> EventChannels::take(uint64_t channel, uint32_t limit) {
    auto report = std::make_shared<EventReport>();
    const std::lock_guard lock(mutex_);
    const auto found = channels_.find(channel);
    if (found == channels_.end()) {
        throw unknownChannel(channel);
    }
    Channel& queue = found->second;
    const std::size_t wanted = limit == 0 ? queue.pending.size() + 1 : limit;
    // The loss is reported where it happened: before the oldest event still held.
    if (queue.dropped > 0 && wanted > 0) {
        report->events.push_back(makeEvent(static_cast<int32_t>(EventKind::EventsLost),
                                           queue.dropped, L"Events were lost: the channel was full",
                                           L"capacity " + std::to_wstring(limits_.capacity), {}));
        queue.dropped = 0;
    }
    const std::size_t n = std::min(queue.pending.size(), wanted - report->events.size());
    report->events.insert(report->events.end(), queue.pending.begin(),
                          queue.pending.begin() + static_cast<std::ptrdiff_t>(n));
    queue.pending.erase(queue.pending.begin(),
                        queue.pending.begin() + static_cast<std::ptrdiff_t>(n));
    return report;
}

void EventChannels::post(int32_t kind, int32_t code, std::wstring text, std::wstring detail,
                         std::shared_ptr<KelError> error) {
    const auto event = makeEvent(kind, code, std::move(text), std::move(detail), std::move(error));
    const std::lock_guard lock(mutex_);
    for (auto& [id, queue] : channels_) {
        while (!queue.pending.empty() && queue.pending.size() >= limits_.capacity) {
            queue.pending.pop_front();
            ++queue.dropped;
        }
        queue.pending.push_back(event);
    }
}

} // namespace Varno::Kel_cpp::Reference
