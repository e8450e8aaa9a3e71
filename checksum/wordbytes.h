#pragma once

#include <cstdint>

/// The only places where the digests turn bytes into words and back. MD5 is little-endian (RFC 1321, section 2), SHA-1
/// big-endian (FIPS 180-1, section 2c). Written with shifts, so they hold on every machine; compilers turn each into
/// one instruction.

inline std::uint32_t loadLittleEndian(const std::uint8_t *bytes)
{
    return static_cast<std::uint32_t>(bytes[0]) | static_cast<std::uint32_t>(bytes[1]) << 8 |
           static_cast<std::uint32_t>(bytes[2]) << 16 | static_cast<std::uint32_t>(bytes[3]) << 24;
}

inline std::uint32_t loadBigEndian(const std::uint8_t *bytes)
{
    return static_cast<std::uint32_t>(bytes[0]) << 24 | static_cast<std::uint32_t>(bytes[1]) << 16 |
           static_cast<std::uint32_t>(bytes[2]) << 8 | static_cast<std::uint32_t>(bytes[3]);
}

inline void storeLittleEndian(std::uint8_t *bytes, std::uint32_t word)
{
    bytes[0] = static_cast<std::uint8_t>(word);
    bytes[1] = static_cast<std::uint8_t>(word >> 8);
    bytes[2] = static_cast<std::uint8_t>(word >> 16);
    bytes[3] = static_cast<std::uint8_t>(word >> 24);
}

inline void storeBigEndian(std::uint8_t *bytes, std::uint32_t word)
{
    bytes[0] = static_cast<std::uint8_t>(word >> 24);
    bytes[1] = static_cast<std::uint8_t>(word >> 16);
    bytes[2] = static_cast<std::uint8_t>(word >> 8);
    bytes[3] = static_cast<std::uint8_t>(word);
}

inline std::uint32_t rotateLeft(std::uint32_t word, int bits)
{
    return word << bits | word >> (32 - bits);
}

/// What a message is padded with: a set bit, then zeros (RFC 1321, section 3.1; FIPS 180-1, section 4).
inline constexpr std::uint8_t digestPadding[64] = {0x80};
