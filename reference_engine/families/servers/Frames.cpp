#include "Frames.h"

#include <algorithm>
#include <cstring>

namespace Varno::Kel_cpp::Reference::Wire {
namespace {

template <class T>
T load(const uint8_t* bytes) {
    T value{};
    std::memcpy(&value, bytes, sizeof value); // the targets are little-endian
    return value;
}

template <class T>
void store(uint8_t* bytes, T value) {
    std::memcpy(bytes, &value, sizeof value);
}

} // namespace

std::optional<Header> readHeader(const uint8_t* bytes, const Limits& limits) {
    Header header;
    header.length = load<uint32_t>(bytes);
    const uint8_t kind = bytes[4];
    header.flags = bytes[5];
    header.operation = load<uint16_t>(bytes + 6);
    header.callId = load<uint64_t>(bytes + 8);
    if (kind < static_cast<uint8_t>(Kind::Hello) || kind > static_cast<uint8_t>(Kind::Login) ||
        (header.flags & ~More) != 0 || header.length > limits.maxPayload) {
        return std::nullopt;
    }
    header.kind = static_cast<Kind>(kind);
    return header;
}

void writeHeader(const Header& header, uint8_t* bytes) {
    store(bytes, header.length);
    bytes[4] = static_cast<uint8_t>(header.kind);
    bytes[5] = header.flags;
    store(bytes + 6, header.operation);
    store(bytes + 8, header.callId);
}

std::vector<uint8_t> frames(Header header, const uint8_t* payload, std::size_t size,
                            const Limits& limits) {
    std::vector<uint8_t> out;
    const std::size_t parts = size == 0 ? 1 : (size + limits.maxPayload - 1) / limits.maxPayload;
    out.reserve(size + parts * headerSize);
    std::size_t offset = 0;
    do {
        const std::size_t part = std::min<std::size_t>(size - offset, limits.maxPayload);
        header.length = static_cast<uint32_t>(part);
        header.flags = offset + part < size ? More : 0;
        const std::size_t at = out.size();
        out.resize(at + headerSize + part);
        writeHeader(header, out.data() + at);
        if (part != 0) {
            std::memcpy(out.data() + at + headerSize, payload + offset, part);
        }
        offset += part;
    } while (offset < size);
    return out;
}

Assembler::Status Assembler::feed(const uint8_t* bytes, std::size_t size, std::size_t& used,
                                  Message& out) {
    used = 0;
    while (used < size) {
        // The header first, then the payload its length gives.
        if (pending_.size() < headerSize) {
            const std::size_t take = std::min(headerSize - pending_.size(), size - used);
            pending_.insert(pending_.end(), bytes + used, bytes + used + take);
            used += take;
            if (pending_.size() < headerSize) {
                return Status::NeedMore;
            }
            if (!readHeader(pending_.data(), limits_)) {
                return fail("a frame header this protocol version does not know");
            }
        }
        const Header header = *readHeader(pending_.data(), limits_);
        const std::size_t want = headerSize + header.length;
        const std::size_t take = std::min(want - pending_.size(), size - used);
        pending_.insert(pending_.end(), bytes + used, bytes + used + take);
        used += take;
        if (pending_.size() < want) {
            return Status::NeedMore;
        }
        if (partial_ && (partial_->header.kind != header.kind ||
                         partial_->header.operation != header.operation ||
                         partial_->header.callId != header.callId)) {
            return fail("a continuation part of another message");
        }
        if (!partial_) {
            partial_ = Message{header, {}};
        }
        if (partial_->payload.size() + header.length > limits_.maxMessage) {
            return fail("a message longer than " + std::to_string(limits_.maxMessage) + " bytes");
        }
        partial_->payload.insert(partial_->payload.end(), pending_.begin() + headerSize,
                                 pending_.end());
        pending_.clear();
        if ((header.flags & More) == 0) {
            out = std::move(*partial_);
            out.header.length = static_cast<uint32_t>(out.payload.size());
            out.header.flags = 0;
            partial_.reset();
            return Status::Complete;
        }
    }
    return Status::NeedMore;
}

std::vector<uint8_t> helloPayload() {
    std::vector<uint8_t> payload(6);
    store(payload.data(), magic);
    store(payload.data() + 4, version);
    return payload;
}

bool acceptsHello(const std::vector<uint8_t>& payload) {
    return payload.size() == 6 && load<uint32_t>(payload.data()) == magic &&
           load<uint16_t>(payload.data() + 4) == version;
}

} // namespace Varno::Kel_cpp::Reference::Wire
