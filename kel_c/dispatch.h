// Calling an engine operation by number over the stream, shared by kel_call (kel_otx)
// and py_call (kel_py).
//
// Each dispatcher number maps to one TarnApi member function. `call<Member>` reads
// that function's parameters from the input stream in order, by their types, calls it,
// and writes its result in its stream form: everything is deduced from the member
// function's signature, so the table (generated/dispatch_table.h) only names them.
#pragma once

#include "OTXStream.h"
#include "registry.h"

#include <Kel_cpp/TarnApi.h>

#include <array>
#include <cstdint>
#include <memory>
#include <tuple>
#include <type_traits>

namespace kel::dispatch {

using Varno::Kel_cpp::TarnApi;

// Reads the arguments, calls the engine and writes the results. `returned`, when not
// null, receives a 32-bit result for the operations that return one (py_call). kel_call
// writes its status byte before, and rewrites the stream when the engine throws.
using Call = void (*)(TarnApi& api, OTXStream& in, OTXStream& out, int32_t* returned);

struct Operation {
    int32_t number = 0;
    const char* name = nullptr;
    Call call = nullptr;   // null: the operation's records are not built yet
    bool selected = false; // kel_call runs it on the engine that `handle` selects
    bool returnsValue = false;
};

template <class M>
struct Signature;
template <class R, class... A>
struct Signature<R (TarnApi::*)(A...)> {
    using ResultType = R;
    using Arguments = std::tuple<std::remove_cvref_t<A>...>;
};

template <class T>
void readArgument(OTXStream& in, T& value) {
    in.read(value);
}
// The server handler of a registration cannot travel on a stream: the engine gets
// an empty one.
inline void readArgument(OTXStream& /*in*/,
                         std::shared_ptr<Varno::Kel_cpp::ServerHandler>& /*handler*/) {}

template <class T>
void writeResult(OTXStream& out, const T& value) {
    out.write(value);
}
// An engine object handed out joins the registry; the stream carries its address.
inline void writeResult(OTXStream& out, const std::shared_ptr<TarnApi>& engine) {
    out.write(static_cast<uint64_t>(reinterpret_cast<uintptr_t>(registry().add(engine)))); // NOLINT
}

template <auto Member, bool Discard = false>
void call(TarnApi& api, OTXStream& in, OTXStream& out, int32_t* returned) {
    using S = Signature<decltype(Member)>;
    typename S::Arguments arguments;
    // A braced list reads in order; a function's argument list would not.
    std::apply([&](auto&... argument) { (readArgument(in, argument), ...); }, arguments);
    if constexpr (std::is_void_v<typename S::ResultType> || Discard) {
        std::apply([&](auto&... argument) { (api.*Member)(argument...); }, arguments);
    } else {
        const auto value =
            std::apply([&](auto&... argument) { return (api.*Member)(argument...); }, arguments);
        writeResult(out, value);
        if constexpr (std::is_integral_v<typename S::ResultType>) {
            if (returned != nullptr) {
                *returned = static_cast<int32_t>(value);
            }
        }
    }
}

// The dispatcher numbers run densely from 2 to highestNumber; byNumber holds each one's
// table entry, null for numbers that name no operation (dispatch.cpp checks the table).
inline constexpr int32_t highestNumber = 280;
extern const std::array<const Operation*, highestNumber + 1> byNumber;

// The operation behind a dispatcher number, or null for numbers that name none: one
// bounds check and one load, inline in both dispatchers.
inline const Operation* find(int32_t number) {
    const auto index = static_cast<uint32_t>(number);
    return index < byNumber.size() ? byNumber[index] : nullptr;
}

// The local engine for the length of one call. The engine hands out one local object for
// as long as that object lives and starts a new one only once it is gone, so the binding
// remembers the object it was given by a weak reference and asks the engine again only
// when the object has gone: a call then costs an increment of the object's use count
// instead of a trip through the engine's lock. The reference returned holds the object
// for the call, exactly as the engine's own would.
std::shared_ptr<TarnApi> localEngine();

// Writes the error record of a failed call: presence, code, message, details,
// subCode, the MVCI error and the negative response (always null from an exception).
void writeError(OTXStream& out, const Varno::Kel_cpp::TarnApiException& exception);

// Errors of the binding itself, reported in the same record.
enum BindingError : int32_t {
    MalformedInputError = -1001, // the checked entry points found the input short or malformed
    NotAvailableError = -1002,   // the operation's records are not built yet
};

Varno::Kel_cpp::TarnApiException notAvailable(const Operation& operation);
Varno::Kel_cpp::TarnApiException malformed(const Operation& operation,
                                           const MalformedInput& problem);

} // namespace kel::dispatch
