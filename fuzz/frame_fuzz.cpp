// libFuzzer target for the engine's server protocol: the frame parser and the reassembly
// of continuation parts, and the client's reading of an answer's error record.
//
// Input: byte 0 sets the size of the pieces the bytes arrive in (1 to 256, as a socket
// may deliver them), the rest is what a peer sent. Whatever the bytes, the assembler must
// report messages, ask for more or call the input malformed, without reading outside
// what it is given and within its bounds.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include <families/servers/Frames.h>
#include <families/servers/RemoteCalls.h>

namespace wire = Varno::Kel_cpp::Reference::Wire;
namespace remote = Varno::Kel_cpp::Reference::Remote;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 1) {
        return 0;
    }
    const std::size_t piece = std::size_t{data[0]} + 1;
    wire::Limits limits;
    limits.maxPayload = 4096; // small bounds, so that the fuzzer reaches them
    limits.maxMessage = 16384;
    wire::Assembler assembler(limits);
    std::size_t offset = 1;
    while (offset < size) {
        // Each piece in a buffer of its own, so that the sanitizer sees a read past it.
        const std::size_t length = std::min(piece, size - offset);
        const std::vector<uint8_t> bytes(data + offset, data + offset + length);
        offset += length;
        std::size_t at = 0;
        while (at < bytes.size()) {
            std::size_t used = 0;
            wire::Assembler::Message message;
            const auto status = assembler.feed(bytes.data() + at, bytes.size() - at, used, message);
            at += used;
            if (status == wire::Assembler::Status::Malformed) {
                return 0;
            }
            if (status == wire::Assembler::Status::NeedMore) {
                break;
            }
            if (message.payload.size() > limits.maxMessage) {
                std::abort();
            }
            if (message.header.kind == wire::Kind::Result && !message.payload.empty()) {
                std::shared_ptr<Varno::Kel_cpp::KelError> error;
                try {
                    remote::Reader in(message.payload, 1);
                    in.read(error);
                } catch (const kel::MalformedInput&) { // NOLINT(bugprone-empty-catch)
                }
            }
        }
    }
    return 0;
}
