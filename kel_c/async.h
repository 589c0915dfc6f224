// Asynchronous calls: the export hands the engine a handler that wraps the caller's C
// function and context; the engine reports through the handler's onCompleted, once or
// several times, from a thread of its own.
//
// Each asynchronous operation has its own handler class (beside its export, in
// generated/exports_<k>.cpp), because
// each derives from its own engine callback class. What a report does depends only on
// the C record and the engine class of the results, so handlers that convert the same
// way share one Completion<C, E> instantiation.
#pragma once

#include "frame.h"

#include <Kel_cpp/TarnApi.h>
#include <kel_c.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace kel {

template <class C, class E>
class Completion {
public:
    using Callback = void (*)(C** results, uint32_t resultCount, bool isFinal, uint64_t callId,
                              KelError* error, void* context);

    Completion(Callback function, void* data) : callback(function), context(data) {}

    Callback callback;
    void* context;

protected:
    // Converts one report as the synchronous export would and hands it to the C function,
    // which owns the list and the error from then on. Returns isFinal: the handler then
    // deletes itself.
    bool report(const std::vector<std::shared_ptr<E>>& results, uint64_t callId,
                const std::shared_ptr<engine_ns::KelError>& error, bool isFinal) const {
        C** block = nullptr;
        uint32_t count = 0;
        listToC<C>(results, block, count);
        KelError* cError = toC<KelError>(error.get());
        callback(block, count, isFinal, callId, cError, context);
        return isFinal;
    }
};

// What every handler class does, written once: each generated handler class derives
// from Handler with its own engine callback class and names nothing else. `Derived` is
// the handler class itself, so that the final report deletes the complete object.
template <class Derived, class Callback, class C, class E, class F>
class Handler : public Callback, public Completion<C, E> {
public:
    using Function = F;
    Handler(Function callback, void* context) : Completion<C, E>(callback, context) {}

    void onCompleted(std::vector<std::shared_ptr<E>> results, uint64_t callId,
                     std::shared_ptr<engine_ns::KelError> error, bool isFinal) override {
        if (this->report(results, callId, error, isFinal)) {
            delete static_cast<Derived*>(this); // the final report ends the call
        }
    }
};

// The frame of an asynchronous export. Inputs are converted inside `call` (a consumed
// record is therefore released even when the engine refuses the call); `call` receives
// the handler and returns the engine's call id.
//
// When the engine throws from the starting operation itself, no call id exists and the
// engine has not taken the handler, so the handler is deleted here and the callback is
// never called; the export returns 0. (An engine that reported through a handler and
// then still threw would break every caller's bookkeeping; it is not supported.)
template <class Handler, class Call>
uint64_t start(KelError** error, typename Handler::Function callback, void* context, Call&& call) {
    auto handler = std::make_unique<Handler>(callback, context);
    try {
        const uint64_t id = call(handler.get());
        // From here the engine owns it: it may already have reported and deleted it.
        static_cast<void>(handler.release());
        return id;
    } catch (
        engine_ns::TarnApiException exception) { // NOLINT(misc-throw-by-value-catch-by-reference)
        capture(error, exception);
        return 0;
    }
}

} // namespace kel
