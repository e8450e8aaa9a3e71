#include "checksum/md5digest.h"

#include "checksum/md5blocks.h"
#include "checksum/wordbytes.h"

#include <cstddef>
#include <cstring>

void Md5Digest::update(const std::uint8_t *input, std::uint32_t length)
{
    std::uint32_t index = (count[0] >> 3) & 63;

    const std::uint32_t lowBits = length << 3;
    count[0] += lowBits;
    if (count[0] < lowBits)
        ++count[1];
    count[1] += length >> 29;

    const std::uint32_t partLength = 64 - index;
    std::uint32_t offset = 0;
    if (length >= partLength) {
        if (index != 0) {
            std::memcpy(buffer + index, input, partLength);
            transform(buffer);
            offset = partLength;
            index = 0;
        }
        const std::uint32_t wholeBlocks = (length - offset) & ~63u;
        md5Blocks(state, input + offset, wholeBlocks / 64);
        offset += wholeBlocks;
    }
    if (offset < length)
        std::memcpy(buffer + index, input + offset, length - offset);
}

void Md5Digest::transform(const std::uint8_t *block)
{
    md5Blocks(state, block, 1);
}

std::string Md5Digest::hexDigest(std::int32_t *status)
{
    std::uint8_t bits[8];
    storeLittleEndian(bits, count[0]);
    storeLittleEndian(bits + 4, count[1]);

    const std::uint32_t index = (count[0] >> 3) & 63;
    update(digestPadding, index < 56 ? 56 - index : 120 - index);
    update(bits, 8);

    std::uint8_t digest[16];
    for (std::size_t i = 0; i < 4; ++i)
        storeLittleEndian(digest + 4 * i, state[i]);

    static constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : digest) {
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    if (text.size() != 32)
        *status = -21;
    return text;
}
