// Calls over the engine's server protocol, deduced from the member functions' signatures
// as the binding's dispatcher does (kel_c/dispatch.h): the generated proxy
// (generated/RemoteEngine.*) and the server's table (generated/RemoteServe.cpp) only name
// the operations and their positions.
#pragma once

#include "OTXStream.h"

#include <Kel_cpp/TarnApi.h>
#include <Kel_cpp/TarnApiException.h>

#include <cstdint>
#include <memory>
#include <tuple>
#include <type_traits>
#include <vector>

namespace Varno::Kel_cpp::Reference::Remote {

// The stream form on the wire: strings with length prefixes, records with presence bytes.
// A bounds-checked reader of bytes[from..).
struct Reader : kel::OTXStream {
    explicit Reader(const std::vector<uint8_t>& bytes, std::size_t from = 0)
        : OTXStream(bytes.data() + from, true, true, false) {
        bounded = true;
        size = static_cast<uint32_t>(bytes.size() - from);
    }
};
struct Writer : kel::OTXStream {
    Writer() : OTXStream(true, true, false) {}
};
inline std::vector<uint8_t> bytesOf(const kel::OTXStream& out) {
    return {out.buffer, out.buffer + out.position};
}

TarnApiException notRemotable(const char* operation, const wchar_t* why);

// ---- the server's side ----

// Where a connection's asynchronous reports go; gone once the connection is.
class Reporter {
public:
    virtual ~Reporter() = default;
    virtual void report(uint16_t operation, uint64_t callId, std::vector<uint8_t> payload) = 0;
};

using Serve = void (*)(TarnApi& api, kel::OTXStream& in, kel::OTXStream& out,
                       const std::shared_ptr<Reporter>& reporter);

// The operation at a virtual-table position, null for a position the server does not
// serve (generated/RemoteServe.cpp).
Serve served(uint16_t position);

template <class M>
struct Signature;
template <class R, class... A>
struct Signature<R (TarnApi::*)(A...)> {
    using Result = R;
    using Arguments = std::tuple<std::remove_cvref_t<A>...>;
};

template <class C>
struct ReportOf;
template <class C, class E>
struct ReportOf<void (C::*)(std::vector<std::shared_ptr<E>>, uint64_t, std::shared_ptr<KelError>,
                            bool)> {
    using Element = E;
};

// The server's callback of one asynchronous call: each report travels as a Report frame
// tagged with the call's id; the final one ends it.
template <class Callback>
class ForwardingCallback final : public Callback {
public:
    using Element = typename ReportOf<decltype(&Callback::onCompleted)>::Element;
    ForwardingCallback(std::weak_ptr<Reporter> reporter, uint16_t operation)
        : reporter_(std::move(reporter)), operation_(operation) {}

    void onCompleted(std::vector<std::shared_ptr<Element>> results, uint64_t callId,
                     std::shared_ptr<KelError> error, bool isFinal) override {
        if (const auto reporter = reporter_.lock()) {
            Writer out;
            out.write(results);
            out.write(callId);
            out.write(error);
            out.write(isFinal);
            reporter->report(operation_, callId, bytesOf(out));
        }
        if (isFinal) {
            delete this; // NOLINT(cppcoreguidelines-owning-memory): the final report ends it
        }
    }

private:
    std::weak_ptr<Reporter> reporter_;
    uint16_t operation_;
};

template <auto Member>
void serve(TarnApi& api, kel::OTXStream& in, kel::OTXStream& out,
           const std::shared_ptr<Reporter>& /*reporter*/) {
    using S = Signature<decltype(Member)>;
    typename S::Arguments arguments;
    std::apply([&](auto&... argument) { (in.read(argument), ...); }, arguments);
    if constexpr (std::is_void_v<typename S::Result>) {
        std::apply([&](auto&... argument) { (api.*Member)(argument...); }, arguments);
    } else {
        out.write(
            std::apply([&](auto&... argument) { return (api.*Member)(argument...); }, arguments));
    }
}

// The arguments but the callback, which the server makes itself.
template <class T>
void readAll(kel::OTXStream& in, T& value) {
    if constexpr (!std::is_pointer_v<T>) {
        in.read(value);
    }
}

template <auto Member, uint16_t Position>
void serveAsync(TarnApi& api, kel::OTXStream& in, kel::OTXStream& out,
                const std::shared_ptr<Reporter>& reporter) {
    using S = Signature<decltype(Member)>;
    constexpr std::size_t count = std::tuple_size_v<typename S::Arguments>;
    using Callback = std::remove_pointer_t<std::tuple_element_t<count - 1, typename S::Arguments>>;
    typename S::Arguments arguments;
    std::apply([&](auto&... argument) { (readAll(in, argument), ...); }, arguments);
    auto* callback = new ForwardingCallback<Callback>(reporter, Position); // NOLINT
    std::get<count - 1>(arguments) = callback;
    uint64_t id = 0;
    try {
        id = std::apply([&](auto&... argument) { return (api.*Member)(argument...); }, arguments);
    } catch (...) {
        delete callback; // NOLINT: the engine did not take it
        throw;
    }
    out.write(id);
}

} // namespace Varno::Kel_cpp::Reference::Remote
