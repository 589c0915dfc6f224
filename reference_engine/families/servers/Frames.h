// The frames of the engine's server protocol: a fixed 16-byte header, then a payload in
// the binding's stream encoding (docs/architecture.md, "The engine's server protocol").
// Everything here works on bytes only, without sockets, so that it can be fuzzed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference::Wire {

inline constexpr uint16_t version = 1;
inline constexpr uint32_t magic = 0x574C454B; // "KELW", little-endian
inline constexpr std::size_t headerSize = 16;

enum class Kind : uint8_t {
    Hello = 1,   // client -> server: magic, version
    Welcome = 2, // server -> client: magic, version
    Call = 3,    // client -> server: the operation's arguments
    Result = 4,  // server -> client: status byte, then the result or the error record
    Report = 5,  // server -> client: one report of an asynchronous call
    Goodbye = 6, // either way: the sender ends the connection cleanly
    Login = 7,   // client -> server: a SCRAM-SHA-256 message (operation 1 first, 2 final)
};

enum Flags : uint8_t {
    More = 1, // the payload continues in the next frame of the same call
};

struct Header {
    uint32_t length = 0; // payload bytes of this frame
    Kind kind = Kind::Hello;
    uint8_t flags = 0;
    uint16_t operation = 0; // the operation's virtual-table position
    uint64_t callId = 0;    // Call/Result: the client's number; Report: the async call id
};

struct Limits {
    uint32_t maxPayload = 1U << 20;  // one frame
    uint32_t maxMessage = 64U << 20; // a payload in continuation parts, all told
};

// Reads a header from exactly headerSize bytes; empty when it is not one this version
// knows (an unknown kind or flag, or a payload above `limits.maxPayload`).
std::optional<Header> readHeader(const uint8_t* bytes, const Limits& limits);
void writeHeader(const Header& header, uint8_t* bytes);

// Frames of one message: the payload split at maxPayload, `More` on all but the last.
std::vector<uint8_t> frames(Header header, const uint8_t* payload, std::size_t size,
                            const Limits& limits);

// Joins continuation parts into messages. Feed it frames as they come; it never reads
// beyond what it is given.
class Assembler {
public:
    explicit Assembler(Limits limits) : limits_(limits) {}

    struct Message {
        Header header; // of the first part; length is the whole payload's
        std::vector<uint8_t> payload;
    };
    enum class Status { NeedMore, Complete, Malformed };

    // Takes bytes from a stream of frames; `used` receives how many it consumed. On
    // Complete, `out` holds the message and the rest of the bytes remain for next time.
    Status feed(const uint8_t* bytes, std::size_t size, std::size_t& used, Message& out);
    const std::string& problem() const { return problem_; }
    // True between the first byte of a message and its last.
    bool midMessage() const { return !pending_.empty() || partial_.has_value(); }

private:
    Status fail(std::string why) {
        problem_ = std::move(why);
        return Status::Malformed;
    }

    Limits limits_;
    std::vector<uint8_t> pending_; // an incomplete header or payload
    std::optional<Message> partial_;
    std::string problem_;
};

// The handshake payloads.
std::vector<uint8_t> helloPayload();
// True for a Hello or Welcome payload of this version.
bool acceptsHello(const std::vector<uint8_t>& payload);

} // namespace Varno::Kel_cpp::Reference::Wire
