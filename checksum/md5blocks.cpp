#include "checksum/md5blocks.h"

#include "checksum/orderedsum.h"
#include "checksum/wordbytes.h"

#include <algorithm>
#include <iterator>

// Each step needs the word that the step before it made, so MD5 is one chain of 64 links and nothing but the length of
// that chain counts. What does not wait for the newest word is therefore summed up first, and the newest word joins as
// late as the function allows: F and I take five operations from one word to the next, G and H four, 4.5 cycles a byte.

namespace {

// The auxiliary functions of RFC 1321, section 3.4, each added to a sum. x is the newest word.
struct F
{
    // (x and y) or (not x and z), with one operation less
    static std::uint32_t addedTo(std::uint32_t sum, std::uint32_t x, std::uint32_t y, std::uint32_t z)
    {
        return orderedSum(sum) + (z ^ (x & (y ^ z)));
    }
};
struct G
{
    // (x and z) or (y and not z): no bit is in both halves, so "or" may be "+", and the half without x goes first
    static std::uint32_t addedTo(std::uint32_t sum, std::uint32_t x, std::uint32_t y, std::uint32_t z)
    {
        return orderedSum(sum + (y & ~z)) + (x & z);
    }
};
struct H
{
    static std::uint32_t addedTo(std::uint32_t sum, std::uint32_t x, std::uint32_t y, std::uint32_t z)
    {
        return orderedSum(sum) + (x ^ (y ^ z));
    }
};
struct I
{
    static std::uint32_t addedTo(std::uint32_t sum, std::uint32_t x, std::uint32_t y, std::uint32_t z)
    {
        return orderedSum(sum) + (y ^ (x | ~z));
    }
};

template<typename Function>
inline void step(std::uint32_t &a, std::uint32_t b, std::uint32_t c, std::uint32_t d, std::uint32_t word, int bits,
                 std::uint32_t constant)
{
    a = b + rotateLeft(Function::addedTo(a + word + constant, b, c, d), bits);
}

inline void compress(std::uint32_t *state, const std::uint8_t *block)
{
    std::uint32_t x[16];
    for (std::size_t i = 0; i < 16; ++i)
        x[i] = loadLittleEndian(block + 4 * i);

    std::uint32_t a = state[0];
    std::uint32_t b = state[1];
    std::uint32_t c = state[2];
    std::uint32_t d = state[3];

    // clang-format off
    // Round 1
    step<F>(a, b, c, d, x[ 0],  7, 0xd76aa478u);
    step<F>(d, a, b, c, x[ 1], 12, 0xe8c7b756u);
    step<F>(c, d, a, b, x[ 2], 17, 0x242070dbu);
    step<F>(b, c, d, a, x[ 3], 22, 0xc1bdceeeu);
    step<F>(a, b, c, d, x[ 4],  7, 0xf57c0fafu);
    step<F>(d, a, b, c, x[ 5], 12, 0x4787c62au);
    step<F>(c, d, a, b, x[ 6], 17, 0xa8304613u);
    step<F>(b, c, d, a, x[ 7], 22, 0xfd469501u);
    step<F>(a, b, c, d, x[ 8],  7, 0x698098d8u);
    step<F>(d, a, b, c, x[ 9], 12, 0x8b44f7afu);
    step<F>(c, d, a, b, x[10], 17, 0xffff5bb1u);
    step<F>(b, c, d, a, x[11], 22, 0x895cd7beu);
    step<F>(a, b, c, d, x[12],  7, 0x6b901122u);
    step<F>(d, a, b, c, x[13], 12, 0xfd987193u);
    step<F>(c, d, a, b, x[14], 17, 0xa679438eu);
    step<F>(b, c, d, a, x[15], 22, 0x49b40821u);
    // Round 2
    step<G>(a, b, c, d, x[ 1],  5, 0xf61e2562u);
    step<G>(d, a, b, c, x[ 6],  9, 0xc040b340u);
    step<G>(c, d, a, b, x[11], 14, 0x265e5a51u);
    step<G>(b, c, d, a, x[ 0], 20, 0xe9b6c7aau);
    step<G>(a, b, c, d, x[ 5],  5, 0xd62f105du);
    step<G>(d, a, b, c, x[10],  9, 0x02441453u);
    step<G>(c, d, a, b, x[15], 14, 0xd8a1e681u);
    step<G>(b, c, d, a, x[ 4], 20, 0xe7d3fbc8u);
    step<G>(a, b, c, d, x[ 9],  5, 0x21e1cde6u);
    step<G>(d, a, b, c, x[14],  9, 0xc33707d6u);
    step<G>(c, d, a, b, x[ 3], 14, 0xf4d50d87u);
    step<G>(b, c, d, a, x[ 8], 20, 0x455a14edu);
    step<G>(a, b, c, d, x[13],  5, 0xa9e3e905u);
    step<G>(d, a, b, c, x[ 2],  9, 0xfcefa3f8u);
    step<G>(c, d, a, b, x[ 7], 14, 0x676f02d9u);
    step<G>(b, c, d, a, x[12], 20, 0x8d2a4c8au);
    // Round 3
    step<H>(a, b, c, d, x[ 5],  4, 0xfffa3942u);
    step<H>(d, a, b, c, x[ 8], 11, 0x8771f681u);
    step<H>(c, d, a, b, x[11], 16, 0x6d9d6122u);
    step<H>(b, c, d, a, x[14], 23, 0xfde5380cu);
    step<H>(a, b, c, d, x[ 1],  4, 0xa4beea44u);
    step<H>(d, a, b, c, x[ 4], 11, 0x4bdecfa9u);
    step<H>(c, d, a, b, x[ 7], 16, 0xf6bb4b60u);
    step<H>(b, c, d, a, x[10], 23, 0xbebfbc70u);
    step<H>(a, b, c, d, x[13],  4, 0x289b7ec6u);
    step<H>(d, a, b, c, x[ 0], 11, 0xeaa127fau);
    step<H>(c, d, a, b, x[ 3], 16, 0xd4ef3085u);
    step<H>(b, c, d, a, x[ 6], 23, 0x04881d05u);
    step<H>(a, b, c, d, x[ 9],  4, 0xd9d4d039u);
    step<H>(d, a, b, c, x[12], 11, 0xe6db99e5u);
    step<H>(c, d, a, b, x[15], 16, 0x1fa27cf8u);
    step<H>(b, c, d, a, x[ 2], 23, 0xc4ac5665u);
    // Round 4
    step<I>(a, b, c, d, x[ 0],  6, 0xf4292244u);
    step<I>(d, a, b, c, x[ 7], 10, 0x432aff97u);
    step<I>(c, d, a, b, x[14], 15, 0xab9423a7u);
    step<I>(b, c, d, a, x[ 5], 21, 0xfc93a039u);
    step<I>(a, b, c, d, x[12],  6, 0x655b59c3u);
    step<I>(d, a, b, c, x[ 3], 10, 0x8f0ccc92u);
    step<I>(c, d, a, b, x[10], 15, 0xffeff47du);
    step<I>(b, c, d, a, x[ 1], 21, 0x85845dd1u);
    step<I>(a, b, c, d, x[ 8],  6, 0x6fa87e4fu);
    step<I>(d, a, b, c, x[15], 10, 0xfe2ce6e0u);
    step<I>(c, d, a, b, x[ 6], 15, 0xa3014314u);
    step<I>(b, c, d, a, x[13], 21, 0x4e0811a1u);
    step<I>(a, b, c, d, x[ 4],  6, 0xf7537e82u);
    step<I>(d, a, b, c, x[11], 10, 0xbd3af235u);
    step<I>(c, d, a, b, x[ 2], 15, 0x2ad7d2bbu);
    step<I>(b, c, d, a, x[ 9], 21, 0xeb86d391u);
    // clang-format on

    state[0] += a;
    state[1] += b;
    state[2] += c;
    state[3] += d;
}

} // namespace

void md5Blocks(std::uint32_t *state, const std::uint8_t *blocks, std::size_t count)
{
    // In variables of its own, which cannot be what `blocks` points to, the state stays in registers.
    std::uint32_t own[4] = {state[0], state[1], state[2], state[3]};
    for (; count > 0; --count, blocks += 64)
        compress(own, blocks);
    std::copy(std::begin(own), std::end(own), state);
}
