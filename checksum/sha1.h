#pragma once

#include <cstdint>

/// The SHA-1 message digest of FIPS 180-1, as a record and four operations on it.
///
/// Call sha1Starts(), then sha1Update() with pieces of any size, then sha1Finish() once; a finished context must be
/// started again before further use. SHA-1 tells a damaged file from a whole one; it does not stop a forger.
struct Sha1Context
{
    std::uint32_t total[2];  ///< message length in bytes (not bits), low word first
    std::uint32_t state[5];  ///< H0 to H4
    std::uint8_t buffer[64]; ///< block being filled
};

void sha1Starts(Sha1Context *context);

/// Absorbs `length` bytes; none when it is 0 or less. Whole blocks are compressed where they stand, without a copy.
void sha1Update(Sha1Context *context, const std::uint8_t *input, std::int32_t length);

/// Compresses one block of 64 bytes into the state (FIPS 180-1, section 7).
void sha1Process(Sha1Context *context, const std::uint8_t *block);

/// Finishes the message and writes its digest: 20 raw bytes, each word big-endian.
void sha1Finish(Sha1Context *context, std::uint8_t *output);
