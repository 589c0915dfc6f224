// Checksums over bytes, each fed in pieces so that a file or a download never has to be
// held whole: the flash download's CRC-32 (the unit checks it) and calculateChecksum.
#pragma once

#include <cstdint>
#include <span>

namespace Varno::Kel_cpp::Reference {

// CRC-32/ISO-HDLC (zip, Ethernet): reflected, polynomial 04C11DB7, init and xorout
// FFFFFFFF. Check value of "123456789": CBF43926.
class Crc32 {
public:
    void update(std::span<const uint8_t> bytes);
    uint32_t value() const { return ~state_; }

private:
    uint32_t state_ = 0xFFFFFFFF;
};

// CRC-16 with polynomial 1021, not reflected, no xorout: the CCITT family's unreflected
// members. init FFFF is CRC-16/CCITT-FALSE (check 29B1), init 0 is CRC-16/XMODEM
// (check 31C3).
class Crc16Ccitt {
public:
    explicit Crc16Ccitt(uint16_t init) : state_(init) {}
    void update(std::span<const uint8_t> bytes);
    uint16_t value() const { return state_; }

private:
    uint16_t state_;
};

// Adler-32 (RFC 1950). Check value of "123456789": 091E01DE.
class Adler32 {
public:
    void update(std::span<const uint8_t> bytes);
    uint32_t value() const { return b_ << 16 | a_; }

private:
    uint32_t a_ = 1;
    uint32_t b_ = 0;
};

} // namespace Varno::Kel_cpp::Reference
