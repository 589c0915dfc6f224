#include <Vutil/ErrorHandler.h>
#include <Vutil/Memory.h>
#include <Vutil/TraceHelper.h>
#include <Vutil/TraceRecorder.h>

#include <algorithm>
#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <vector>

namespace Vutil {
namespace {

struct Listeners {
    std::mutex mutex;
    std::vector<std::shared_ptr<TraceListener>> all;
};

Listeners& listeners() {
    static Listeners instance;
    return instance;
}

} // namespace

std::atomic<int> ErrorHandler::s_listenerCount{0};
std::atomic<int> ErrorHandler::s_debugTraceLevel{0};

int ErrorHandler::listenerCount() { return s_listenerCount.load(std::memory_order_relaxed); }
int ErrorHandler::debugTraceLevel() { return s_debugTraceLevel.load(std::memory_order_relaxed); }
void ErrorHandler::setDebugTraceLevel(int level) { s_debugTraceLevel.store(level); }

void ErrorHandler::addListener(const std::shared_ptr<TraceListener>& listener) {
    auto& l = listeners();
    const std::lock_guard lock(l.mutex);
    l.all.push_back(listener);
    s_listenerCount.store(static_cast<int>(l.all.size()));
}

void ErrorHandler::removeListener(const std::shared_ptr<TraceListener>& listener) {
    auto& l = listeners();
    const std::lock_guard lock(l.mutex);
    l.all.erase(std::remove(l.all.begin(), l.all.end(), listener), l.all.end());
    s_listenerCount.store(static_cast<int>(l.all.size()));
}

void ErrorHandler::dispatch(const std::string& source, const std::string& line) {
    std::vector<std::shared_ptr<TraceListener>> targets;
    {
        auto& l = listeners();
        const std::lock_guard lock(l.mutex);
        targets = l.all;
    }
    for (const auto& t : targets) {
        t->onTrace(source, line);
    }
}

bool TraceHelper::enabled(int level) {
    return ErrorHandler::listenerCount() > 0 && ErrorHandler::debugTraceLevel() >= level;
}

void TraceHelper::trace(const char* source, const char* format, ...) {
    va_list args;
    va_start(args, format);
    va_list again;
    va_copy(again, args);
    const int size = std::vsnprintf(nullptr, 0, format, args);
    va_end(args);
    std::string line(size > 0 ? static_cast<std::size_t>(size) : 0, '\0');
    if (size > 0) {
        std::vsnprintf(line.data(), line.size() + 1, format, again);
    }
    va_end(again);
    ErrorHandler::dispatch(source, line);
}

void TraceRecorder::onTrace(const std::string& source, const std::string& line) {
    const std::lock_guard lock(mutex_);
    lines_.push_back({source, line});
}

std::vector<TraceLine> TraceRecorder::lines() const {
    const std::lock_guard lock(mutex_);
    return lines_;
}

void TraceRecorder::clear() {
    const std::lock_guard lock(mutex_);
    lines_.clear();
}

} // namespace Vutil

void* f_malloc(std::size_t size) { return std::malloc(size); }
void f_free(void* block) { std::free(block); }
