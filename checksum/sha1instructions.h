#pragma once

#include <cstddef>
#include <cstdint>

/// Whether this processor has instructions for SHA-1, and this program knows them. Only x86's are known.
bool hasSha1Instructions();

/// What sha1Blocks() does, by these instructions. Only to be called where there are any.
void sha1BlocksByInstructions(std::uint32_t *state, const std::uint8_t *blocks, std::size_t count);
