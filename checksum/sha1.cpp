#include "checksum/sha1.h"

#include "checksum/sha1blocks.h"
#include "checksum/wordbytes.h"

#include <cstddef>
#include <cstring>

void sha1Starts(Sha1Context *context)
{
    *context = {{0, 0}, {0x67452301u, 0xefcdab89u, 0x98badcfeu, 0x10325476u, 0xc3d2e1f0u}, {}};
}

void sha1Update(Sha1Context *context, const std::uint8_t *input, std::int32_t length)
{
    if (length <= 0)
        return;
    auto rest = static_cast<std::uint32_t>(length);

    std::uint32_t left = context->total[0] & 63;
    const std::uint32_t fill = 64 - left;
    context->total[0] += rest;
    if (context->total[0] < rest)
        ++context->total[1];

    if (left != 0 && rest >= fill) {
        std::memcpy(context->buffer + left, input, fill);
        sha1Process(context, context->buffer);
        input += fill;
        rest -= fill;
        left = 0;
    }
    if (rest >= 64) {
        const std::uint32_t wholeBlocks = rest & ~63u;
        sha1Blocks(context->state, input, wholeBlocks / 64);
        input += wholeBlocks;
        rest -= wholeBlocks;
    }
    if (rest > 0)
        std::memcpy(context->buffer + left, input, rest);
}

void sha1Process(Sha1Context *context, const std::uint8_t *block)
{
    sha1Blocks(context->state, block, 1);
}

void sha1Finish(Sha1Context *context, std::uint8_t *output)
{
    // The length counts the message without its padding, so it is taken before the padding goes in.
    std::uint8_t bits[8];
    storeBigEndian(bits, context->total[0] >> 29 | context->total[1] << 3);
    storeBigEndian(bits + 4, context->total[0] << 3);

    const std::uint32_t last = context->total[0] & 63;
    sha1Update(context, digestPadding, static_cast<std::int32_t>(last < 56 ? 56 - last : 120 - last));
    sha1Update(context, bits, 8);

    for (std::size_t i = 0; i < 5; ++i)
        storeBigEndian(output + 4 * i, context->state[i]);
}
