#pragma once

#include <cstddef>
#include <cstdint>

/// Compresses `count` blocks of 64 bytes each, one after the other, into the five words of `state` (FIPS 180-1, section
/// 7), the fastest way that this processor has. Which one that is is found out at the first call.
void sha1Blocks(std::uint32_t *state, const std::uint8_t *blocks, std::size_t count);

/// The same in standard C++: the reference for every other way, and what processors without SHA instructions use.
void sha1BlocksPortable(std::uint32_t *state, const std::uint8_t *blocks, std::size_t count);
