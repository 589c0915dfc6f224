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

#include <cstdint>
#include <memory>
#include <tuple>
#include <type_traits>

namespace kel::dispatch {

using Varno::Kel_cpp::TarnApi;

struct Result {
    bool writeStatus;  // kel_call: a status byte 1 precedes the results
    int32_t* returned; // py_call: receives a 32-bit result for the operations that return one
};

using Call = void (*)(TarnApi& api, OTXStream& in, OTXStream& out, const Result& result);

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
void call(TarnApi& api, OTXStream& in, OTXStream& out, const Result& result) {
    using S = Signature<decltype(Member)>;
    typename S::Arguments arguments;
    // A braced list reads in order; a function's argument list would not.
    std::apply([&](auto&... argument) { (readArgument(in, argument), ...); }, arguments);
    if constexpr (std::is_void_v<typename S::ResultType> || Discard) {
        std::apply([&](auto&... argument) { (api.*Member)(argument...); }, arguments);
        if (result.writeStatus) {
            out.write(uint8_t{1});
        }
    } else {
        const auto value =
            std::apply([&](auto&... argument) { return (api.*Member)(argument...); }, arguments);
        if (result.writeStatus) {
            out.write(uint8_t{1});
        }
        writeResult(out, value);
        if constexpr (std::is_integral_v<typename S::ResultType>) {
            if (result.returned != nullptr) {
                *result.returned = static_cast<int32_t>(value);
            }
        }
    }
}

// The operation behind a dispatcher number, or null for numbers that name none.
const Operation* find(int32_t number);

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
