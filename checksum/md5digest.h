#pragma once

#include <cstdint>
#include <string>

/// The MD5 message digest of RFC 1321.
///
/// Feed the message with update() in pieces of any size, then call hexDigest() once. The object is not cleared by
/// that: one object, one message. MD5 tells a damaged file from a whole one; it does not stop a forger.
class Md5Digest
{
public:
    Md5Digest() = default;
    virtual ~Md5Digest() = default;

    /// Absorbs `length` bytes. Whole blocks are compressed where they stand, without a copy.
    void update(const std::uint8_t *input, std::uint32_t length);

    /// Compresses one block of 64 bytes into the state (RFC 1321, section 3.4).
    void transform(const std::uint8_t *block);

    /// Finishes the message and returns its digest as 32 lower-case hexadecimal digits. `status` must point to a
    /// value; it is set to -21 if the text came out at any other length, and otherwise left as it is.
    std::string hexDigest(std::int32_t *status);

private:
    std::uint8_t buffer[64] = {};                                                  ///< block being filled
    std::uint32_t count[2] = {0, 0};                                               ///< bits, low word first
    std::uint32_t state[4] = {0x67452301u, 0xefcdab89u, 0x98badcfeu, 0x10325476u}; ///< A, B, C, D
};
