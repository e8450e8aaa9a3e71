#pragma once

#include <cstddef>
#include <cstdint>

/// Compresses `count` blocks of 64 bytes each, one after the other, into the four words of `state` (RFC 1321, section
/// 3.4).
void md5Blocks(std::uint32_t *state, const std::uint8_t *blocks, std::size_t count);
