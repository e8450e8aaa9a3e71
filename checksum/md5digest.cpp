#include "checksum/md5digest.h"

#include "checksum/wordbytes.h"

#include <cstddef>
#include <cstring>

namespace {

// The four auxiliary functions of RFC 1321, section 3.4: F, G, H and I. F and G are written with one operation less
// than the RFC does; each picks, bit by bit, between two words.
constexpr std::uint32_t chooseByX(std::uint32_t x, std::uint32_t y, std::uint32_t z)
{
    return z ^ (x & (y ^ z));
}
constexpr std::uint32_t chooseByZ(std::uint32_t x, std::uint32_t y, std::uint32_t z)
{
    return (x & z) + (y & ~z);
}
constexpr std::uint32_t parity(std::uint32_t x, std::uint32_t y, std::uint32_t z)
{
    return x ^ y ^ z;
}
constexpr std::uint32_t mix(std::uint32_t x, std::uint32_t y, std::uint32_t z)
{
    return y ^ (x | ~z);
}

template<std::uint32_t (*function)(std::uint32_t, std::uint32_t, std::uint32_t)>
inline void step(std::uint32_t &a, std::uint32_t b, std::uint32_t c, std::uint32_t d, std::uint32_t word, int bits,
                 std::uint32_t constant)
{
    a = b + rotateLeft(a + function(b, c, d) + word + constant, bits);
}

} // namespace

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
        std::memcpy(buffer + index, input, partLength);
        transform(buffer);
        // Counted by what is left, since offset + 63 could wrap for a length close to 4 GiB.
        for (offset = partLength; length - offset >= 64; offset += 64)
            transform(input + offset);
        index = 0;
    }
    if (offset < length)
        std::memcpy(buffer + index, input + offset, length - offset);
}

// clang-format off
void Md5Digest::transform(const std::uint8_t *block)
{
    std::uint32_t x[16];
    for (std::size_t i = 0; i < 16; ++i)
        x[i] = loadLittleEndian(block + 4 * i);

    std::uint32_t a = state[0];
    std::uint32_t b = state[1];
    std::uint32_t c = state[2];
    std::uint32_t d = state[3];

    // Round 1
    step<chooseByX>(a, b, c, d, x[ 0],  7, 0xd76aa478u);
    step<chooseByX>(d, a, b, c, x[ 1], 12, 0xe8c7b756u);
    step<chooseByX>(c, d, a, b, x[ 2], 17, 0x242070dbu);
    step<chooseByX>(b, c, d, a, x[ 3], 22, 0xc1bdceeeu);
    step<chooseByX>(a, b, c, d, x[ 4],  7, 0xf57c0fafu);
    step<chooseByX>(d, a, b, c, x[ 5], 12, 0x4787c62au);
    step<chooseByX>(c, d, a, b, x[ 6], 17, 0xa8304613u);
    step<chooseByX>(b, c, d, a, x[ 7], 22, 0xfd469501u);
    step<chooseByX>(a, b, c, d, x[ 8],  7, 0x698098d8u);
    step<chooseByX>(d, a, b, c, x[ 9], 12, 0x8b44f7afu);
    step<chooseByX>(c, d, a, b, x[10], 17, 0xffff5bb1u);
    step<chooseByX>(b, c, d, a, x[11], 22, 0x895cd7beu);
    step<chooseByX>(a, b, c, d, x[12],  7, 0x6b901122u);
    step<chooseByX>(d, a, b, c, x[13], 12, 0xfd987193u);
    step<chooseByX>(c, d, a, b, x[14], 17, 0xa679438eu);
    step<chooseByX>(b, c, d, a, x[15], 22, 0x49b40821u);
    // Round 2
    step<chooseByZ>(a, b, c, d, x[ 1],  5, 0xf61e2562u);
    step<chooseByZ>(d, a, b, c, x[ 6],  9, 0xc040b340u);
    step<chooseByZ>(c, d, a, b, x[11], 14, 0x265e5a51u);
    step<chooseByZ>(b, c, d, a, x[ 0], 20, 0xe9b6c7aau);
    step<chooseByZ>(a, b, c, d, x[ 5],  5, 0xd62f105du);
    step<chooseByZ>(d, a, b, c, x[10],  9, 0x02441453u);
    step<chooseByZ>(c, d, a, b, x[15], 14, 0xd8a1e681u);
    step<chooseByZ>(b, c, d, a, x[ 4], 20, 0xe7d3fbc8u);
    step<chooseByZ>(a, b, c, d, x[ 9],  5, 0x21e1cde6u);
    step<chooseByZ>(d, a, b, c, x[14],  9, 0xc33707d6u);
    step<chooseByZ>(c, d, a, b, x[ 3], 14, 0xf4d50d87u);
    step<chooseByZ>(b, c, d, a, x[ 8], 20, 0x455a14edu);
    step<chooseByZ>(a, b, c, d, x[13],  5, 0xa9e3e905u);
    step<chooseByZ>(d, a, b, c, x[ 2],  9, 0xfcefa3f8u);
    step<chooseByZ>(c, d, a, b, x[ 7], 14, 0x676f02d9u);
    step<chooseByZ>(b, c, d, a, x[12], 20, 0x8d2a4c8au);
    // Round 3
    step<parity>(a, b, c, d, x[ 5],  4, 0xfffa3942u);
    step<parity>(d, a, b, c, x[ 8], 11, 0x8771f681u);
    step<parity>(c, d, a, b, x[11], 16, 0x6d9d6122u);
    step<parity>(b, c, d, a, x[14], 23, 0xfde5380cu);
    step<parity>(a, b, c, d, x[ 1],  4, 0xa4beea44u);
    step<parity>(d, a, b, c, x[ 4], 11, 0x4bdecfa9u);
    step<parity>(c, d, a, b, x[ 7], 16, 0xf6bb4b60u);
    step<parity>(b, c, d, a, x[10], 23, 0xbebfbc70u);
    step<parity>(a, b, c, d, x[13],  4, 0x289b7ec6u);
    step<parity>(d, a, b, c, x[ 0], 11, 0xeaa127fau);
    step<parity>(c, d, a, b, x[ 3], 16, 0xd4ef3085u);
    step<parity>(b, c, d, a, x[ 6], 23, 0x04881d05u);
    step<parity>(a, b, c, d, x[ 9],  4, 0xd9d4d039u);
    step<parity>(d, a, b, c, x[12], 11, 0xe6db99e5u);
    step<parity>(c, d, a, b, x[15], 16, 0x1fa27cf8u);
    step<parity>(b, c, d, a, x[ 2], 23, 0xc4ac5665u);
    // Round 4
    step<mix>(a, b, c, d, x[ 0],  6, 0xf4292244u);
    step<mix>(d, a, b, c, x[ 7], 10, 0x432aff97u);
    step<mix>(c, d, a, b, x[14], 15, 0xab9423a7u);
    step<mix>(b, c, d, a, x[ 5], 21, 0xfc93a039u);
    step<mix>(a, b, c, d, x[12],  6, 0x655b59c3u);
    step<mix>(d, a, b, c, x[ 3], 10, 0x8f0ccc92u);
    step<mix>(c, d, a, b, x[10], 15, 0xffeff47du);
    step<mix>(b, c, d, a, x[ 1], 21, 0x85845dd1u);
    step<mix>(a, b, c, d, x[ 8],  6, 0x6fa87e4fu);
    step<mix>(d, a, b, c, x[15], 10, 0xfe2ce6e0u);
    step<mix>(c, d, a, b, x[ 6], 15, 0xa3014314u);
    step<mix>(b, c, d, a, x[13], 21, 0x4e0811a1u);
    step<mix>(a, b, c, d, x[ 4],  6, 0xf7537e82u);
    step<mix>(d, a, b, c, x[11], 10, 0xbd3af235u);
    step<mix>(c, d, a, b, x[ 2], 15, 0x2ad7d2bbu);
    step<mix>(b, c, d, a, x[ 9], 21, 0xeb86d391u);

    state[0] += a;
    state[1] += b;
    state[2] += c;
    state[3] += d;
}
// clang-format on

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
