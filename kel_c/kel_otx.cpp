// kel_call / kel_call_result: engine operations by number for OTX runtimes.
//
// The stream pointer handed out is a ticket for the result, not an address: its low 32
// bits name a slot, its high 32 bits the slot's generation. The slot holds the result's
// one block (the written stream's buffer) and its size until kel_call_result claims it
// with one compare-and-swap, copies the bytes out and frees the block (a small one is kept
// for the next result instead, see OTXStream::release). So a runtime that fetches every
// result leaks nothing, and a ticket fetched already, or never issued, finds no live slot
// of its generation and copies nothing. Slots are reused, never freed, so even a stale
// ticket reads valid memory; no lock and no search on either side.
#include "dispatch.h"
#include "trace.h"

#include <Kel_cpp/Engine.h>
#include <Vutil/TraceHelper.h>
#include <kel_c.h>

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <new>
#include <optional>

namespace {

using kel::OTXStream;
using Varno::Kel_cpp::TarnApi;
using Varno::Kel_cpp::TarnApiException;

struct Slot {
    std::atomic<uint64_t> state{0};    // generation << 1 | 1 while a result waits in it
    std::atomic<uint32_t> nextFree{0}; // the free list's next slot + 1, 0 at its end
    uint8_t* block = nullptr;
    uint64_t size = 0;
    bool small = false; // the block is a small one (OTXStream::inSmallBlock)
};

// Slots in chunks that are allocated on demand and never freed; a free list (a lock-free
// stack whose head carries a tag against reuse races) hands them out again.
class Tickets {
public:
    void* issue(uint8_t* block, uint64_t size, bool small) {
        const uint32_t index = take();
        Slot& s = slot(index);
        const uint64_t generation = (s.state.load(std::memory_order_relaxed) >> 1) & 0xFFFFFFFFU;
        s.block = block;
        s.size = size;
        s.small = small;
        s.state.store(generation << 1 | 1U, std::memory_order_release);
        return reinterpret_cast<void*>(generation << 32 | (uint64_t{index} + 1)); // NOLINT
    }

    // Copies the ticket's result to destination and frees it, once; false when the ticket
    // names no waiting result.
    bool redeem(const void* ticket, void* destination) {
        const auto value = reinterpret_cast<uint64_t>(ticket); // NOLINT
        const auto index = static_cast<uint32_t>(value) - 1;
        if (static_cast<uint32_t>(value) == 0 || index >> chunkBits >= chunkCount) {
            return false;
        }
        Slot* chunk = chunks_[index >> chunkBits].load(std::memory_order_acquire);
        if (chunk == nullptr) {
            return false;
        }
        Slot& s = chunk[index & (chunkSize - 1)];
        const uint64_t generation = value >> 32;
        uint64_t expected = generation << 1 | 1U;
        if (!s.state.compare_exchange_strong(expected, ((generation + 1) & 0xFFFFFFFFU) << 1,
                                             std::memory_order_acq_rel)) {
            return false;
        }
        uint8_t* block = s.block;
        const uint64_t size = s.size;
        const bool small = s.small;
        s.block = nullptr;
        give(index);
        OTXStream::copyOut(destination, block, size);
        OTXStream::release(block, small);
        return true;
    }

private:
    static constexpr uint32_t chunkBits = 10;
    static constexpr uint32_t chunkSize = 1U << chunkBits;
    static constexpr uint32_t chunkCount = 1U << 16;

    Slot& slot(uint32_t index) {
        return chunks_[index >> chunkBits].load(std::memory_order_acquire)[index & (chunkSize - 1)];
    }

    uint32_t take() {
        uint64_t head = free_.load(std::memory_order_acquire);
        while (static_cast<uint32_t>(head) != 0) {
            const uint32_t index = static_cast<uint32_t>(head) - 1;
            const uint64_t next =
                ((head >> 32) + 1) << 32 | slot(index).nextFree.load(std::memory_order_relaxed);
            if (free_.compare_exchange_weak(head, next, std::memory_order_acq_rel)) {
                return index;
            }
        }
        const uint32_t index = creating_.fetch_add(1, std::memory_order_relaxed);
        if (index >= chunkSize * chunkCount) {
            throw std::bad_alloc(); // 64 Mi results waiting at once
        }
        auto& chunk = chunks_[index >> chunkBits];
        if (chunk.load(std::memory_order_acquire) == nullptr) {
            auto* fresh = new Slot[chunkSize];
            Slot* none = nullptr;
            if (!chunk.compare_exchange_strong(none, fresh, std::memory_order_acq_rel)) {
                delete[] fresh;
            }
        }
        return index;
    }

    void give(uint32_t index) {
        uint64_t head = free_.load(std::memory_order_relaxed);
        do {
            slot(index).nextFree.store(static_cast<uint32_t>(head), std::memory_order_relaxed);
        } while (!free_.compare_exchange_weak(
            head, ((head >> 32) + 1) << 32 | (uint64_t{index} + 1), std::memory_order_acq_rel));
    }

    std::atomic<Slot*> chunks_[chunkCount] = {}; // NOLINT(cppcoreguidelines-avoid-c-arrays)
    std::atomic<uint32_t> creating_{0};
    std::atomic<uint64_t> free_{0}; // tag << 32 | first free slot + 1
};

Tickets tickets; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void call(uint64_t handle, int32_t number, const void* input, const uint64_t* inputSize,
          void** outStream, uint64_t* outSize) {
    // The selected engine is held for the whole call. A handle the engine rejects
    // does not end the call: every recognised operation then answers with that error.
    std::shared_ptr<TarnApi> selected;
    std::optional<TarnApiException> rejected;
    try {
        selected = handle == 0 ? kel::dispatch::localEngine()
                               : Varno::Kel_cpp::getRemoteConnectionByHandle(handle);
    } catch (TarnApiException exception) { // NOLINT(misc-throw-by-value-catch-by-reference)
        rejected = std::move(exception);
    }
    if (kel::trace::enabled()) {
        Vutil::TraceHelper::trace("kel_otx", "kel_call operation %d", number);
    }
    OTXStream in(input, true, false, true);
    if (inputSize != nullptr) {
        in.bounded = true;
        in.size = static_cast<uint32_t>(std::min<uint64_t>(*inputSize, UINT32_MAX));
    }
    const kel::dispatch::Operation* operation = kel::dispatch::find(number);
    if (operation == nullptr) {
        return;
    }
    OTXStream out(true, false, true);
    out.startInKeptBlock();
    out.write(uint8_t{1}); // the status; the error path below starts the stream afresh
    try {
        try {
            if (rejected) {
                throw *rejected;
            }
            if (operation->call == nullptr) {
                throw kel::dispatch::notAvailable(*operation);
            }
            // Operations not served by the selected engine use the local one: the one
            // held already for handle 0, else the local engine held for this call.
            std::shared_ptr<TarnApi> local;
            TarnApi* engine = selected.get();
            if (!operation->selected && handle != 0) {
                local = kel::dispatch::localEngine();
                engine = local.get();
            }
            operation->call(*engine, in, out, nullptr);
        } catch (const kel::MalformedInput& problem) {
            throw kel::dispatch::malformed(*operation, problem);
        }
    } catch (TarnApiException exception) { // NOLINT(misc-throw-by-value-catch-by-reference)
        out.position = 0;
        out.write(uint8_t{0});
        kel::dispatch::writeError(out, exception);
    }
    *outStream = tickets.issue(out.buffer, out.position, out.inSmallBlock());
    *outSize = out.position;
    out.detach();
}

} // namespace

extern "C" {

void kel_call(uint64_t handle, int32_t operation, const void* input, void** outStream,
              uint64_t* outSize) {
    call(handle, operation, input, nullptr, outStream, outSize);
}

void kel_call_checked(uint64_t handle, int32_t operation, const void* input, uint64_t inputSize,
                      void** outStream, uint64_t* outSize) {
    call(handle, operation, input, &inputSize, outStream, outSize);
}

void* kel_call_result(void* stream, void* destination) {
    tickets.redeem(stream, destination);
    return destination;
}

} // extern "C"
