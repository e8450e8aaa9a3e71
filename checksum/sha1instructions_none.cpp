#include "checksum/sha1blocks.h"
#include "checksum/sha1instructions.h"

bool hasSha1Instructions()
{
    return false;
}

void sha1BlocksByInstructions(std::uint32_t *state, const std::uint8_t *blocks, std::size_t count)
{
    sha1BlocksPortable(state, blocks, count);
}
