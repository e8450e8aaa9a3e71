#include "checksum/sha1blocks.h"

#include "checksum/orderedsum.h"
#include "checksum/sha1instructions.h"
#include "checksum/wordbytes.h"

#include <algorithm>
#include <iterator>

namespace {

// The functions of FIPS 180-1, section 5, with fewer operations than there.
constexpr std::uint32_t chooseByX(std::uint32_t x, std::uint32_t y, std::uint32_t z)
{
    return z ^ (x & (y ^ z));
}
constexpr std::uint32_t parity(std::uint32_t x, std::uint32_t y, std::uint32_t z)
{
    return x ^ y ^ z;
}
// Where y and z agree they decide, elsewhere x does: no bit is in both halves, so "or" may be "+".
constexpr std::uint32_t majority(std::uint32_t x, std::uint32_t y, std::uint32_t z)
{
    return (y & z) + (x & (y ^ z));
}

// One step of section 7. Where the standard passes the five words on, the caller names them in turned order instead.
template<std::uint32_t (*function)(std::uint32_t, std::uint32_t, std::uint32_t)>
inline void step(std::uint32_t a, std::uint32_t &b, std::uint32_t c, std::uint32_t d, std::uint32_t &e,
                 std::uint32_t word, std::uint32_t constant)
{
    e = orderedSum(e + word + constant + function(b, c, d)) + rotateLeft(a, 5);
    b = rotateLeft(b, 30);
}

// The words of the message are read where they are needed; in a loop before the steps, most would have to be put aside.
inline std::uint32_t read(std::uint32_t *w, const std::uint8_t *block, std::size_t t)
{
    return w[t] = loadBigEndian(block + 4 * t);
}

// The message schedule in 16 words instead of 80 (section 8): word t takes the place of word t - 16.
inline std::uint32_t expand(std::uint32_t *w, int t)
{
    std::uint32_t &word = w[t & 15];
    word = rotateLeft(w[(t - 3) & 15] ^ w[(t - 8) & 15] ^ w[(t - 14) & 15] ^ word, 1);
    return word;
}

inline void compress(std::uint32_t *state, const std::uint8_t *block)
{
    std::uint32_t w[16];
    std::uint32_t a = state[0];
    std::uint32_t b = state[1];
    std::uint32_t c = state[2];
    std::uint32_t d = state[3];
    std::uint32_t e = state[4];

    // clang-format off
    // Steps 0 to 19
    step<chooseByX>(a, b, c, d, e, read(w, block,  0), 0x5a827999u);
    step<chooseByX>(e, a, b, c, d, read(w, block,  1), 0x5a827999u);
    step<chooseByX>(d, e, a, b, c, read(w, block,  2), 0x5a827999u);
    step<chooseByX>(c, d, e, a, b, read(w, block,  3), 0x5a827999u);
    step<chooseByX>(b, c, d, e, a, read(w, block,  4), 0x5a827999u);
    step<chooseByX>(a, b, c, d, e, read(w, block,  5), 0x5a827999u);
    step<chooseByX>(e, a, b, c, d, read(w, block,  6), 0x5a827999u);
    step<chooseByX>(d, e, a, b, c, read(w, block,  7), 0x5a827999u);
    step<chooseByX>(c, d, e, a, b, read(w, block,  8), 0x5a827999u);
    step<chooseByX>(b, c, d, e, a, read(w, block,  9), 0x5a827999u);
    step<chooseByX>(a, b, c, d, e, read(w, block, 10), 0x5a827999u);
    step<chooseByX>(e, a, b, c, d, read(w, block, 11), 0x5a827999u);
    step<chooseByX>(d, e, a, b, c, read(w, block, 12), 0x5a827999u);
    step<chooseByX>(c, d, e, a, b, read(w, block, 13), 0x5a827999u);
    step<chooseByX>(b, c, d, e, a, read(w, block, 14), 0x5a827999u);
    step<chooseByX>(a, b, c, d, e, read(w, block, 15), 0x5a827999u);
    step<chooseByX>(e, a, b, c, d, expand(w, 16), 0x5a827999u);
    step<chooseByX>(d, e, a, b, c, expand(w, 17), 0x5a827999u);
    step<chooseByX>(c, d, e, a, b, expand(w, 18), 0x5a827999u);
    step<chooseByX>(b, c, d, e, a, expand(w, 19), 0x5a827999u);
    // Steps 20 to 39
    step<parity>(a, b, c, d, e, expand(w, 20), 0x6ed9eba1u);
    step<parity>(e, a, b, c, d, expand(w, 21), 0x6ed9eba1u);
    step<parity>(d, e, a, b, c, expand(w, 22), 0x6ed9eba1u);
    step<parity>(c, d, e, a, b, expand(w, 23), 0x6ed9eba1u);
    step<parity>(b, c, d, e, a, expand(w, 24), 0x6ed9eba1u);
    step<parity>(a, b, c, d, e, expand(w, 25), 0x6ed9eba1u);
    step<parity>(e, a, b, c, d, expand(w, 26), 0x6ed9eba1u);
    step<parity>(d, e, a, b, c, expand(w, 27), 0x6ed9eba1u);
    step<parity>(c, d, e, a, b, expand(w, 28), 0x6ed9eba1u);
    step<parity>(b, c, d, e, a, expand(w, 29), 0x6ed9eba1u);
    step<parity>(a, b, c, d, e, expand(w, 30), 0x6ed9eba1u);
    step<parity>(e, a, b, c, d, expand(w, 31), 0x6ed9eba1u);
    step<parity>(d, e, a, b, c, expand(w, 32), 0x6ed9eba1u);
    step<parity>(c, d, e, a, b, expand(w, 33), 0x6ed9eba1u);
    step<parity>(b, c, d, e, a, expand(w, 34), 0x6ed9eba1u);
    step<parity>(a, b, c, d, e, expand(w, 35), 0x6ed9eba1u);
    step<parity>(e, a, b, c, d, expand(w, 36), 0x6ed9eba1u);
    step<parity>(d, e, a, b, c, expand(w, 37), 0x6ed9eba1u);
    step<parity>(c, d, e, a, b, expand(w, 38), 0x6ed9eba1u);
    step<parity>(b, c, d, e, a, expand(w, 39), 0x6ed9eba1u);
    // Steps 40 to 59
    step<majority>(a, b, c, d, e, expand(w, 40), 0x8f1bbcdcu);
    step<majority>(e, a, b, c, d, expand(w, 41), 0x8f1bbcdcu);
    step<majority>(d, e, a, b, c, expand(w, 42), 0x8f1bbcdcu);
    step<majority>(c, d, e, a, b, expand(w, 43), 0x8f1bbcdcu);
    step<majority>(b, c, d, e, a, expand(w, 44), 0x8f1bbcdcu);
    step<majority>(a, b, c, d, e, expand(w, 45), 0x8f1bbcdcu);
    step<majority>(e, a, b, c, d, expand(w, 46), 0x8f1bbcdcu);
    step<majority>(d, e, a, b, c, expand(w, 47), 0x8f1bbcdcu);
    step<majority>(c, d, e, a, b, expand(w, 48), 0x8f1bbcdcu);
    step<majority>(b, c, d, e, a, expand(w, 49), 0x8f1bbcdcu);
    step<majority>(a, b, c, d, e, expand(w, 50), 0x8f1bbcdcu);
    step<majority>(e, a, b, c, d, expand(w, 51), 0x8f1bbcdcu);
    step<majority>(d, e, a, b, c, expand(w, 52), 0x8f1bbcdcu);
    step<majority>(c, d, e, a, b, expand(w, 53), 0x8f1bbcdcu);
    step<majority>(b, c, d, e, a, expand(w, 54), 0x8f1bbcdcu);
    step<majority>(a, b, c, d, e, expand(w, 55), 0x8f1bbcdcu);
    step<majority>(e, a, b, c, d, expand(w, 56), 0x8f1bbcdcu);
    step<majority>(d, e, a, b, c, expand(w, 57), 0x8f1bbcdcu);
    step<majority>(c, d, e, a, b, expand(w, 58), 0x8f1bbcdcu);
    step<majority>(b, c, d, e, a, expand(w, 59), 0x8f1bbcdcu);
    // Steps 60 to 79
    step<parity>(a, b, c, d, e, expand(w, 60), 0xca62c1d6u);
    step<parity>(e, a, b, c, d, expand(w, 61), 0xca62c1d6u);
    step<parity>(d, e, a, b, c, expand(w, 62), 0xca62c1d6u);
    step<parity>(c, d, e, a, b, expand(w, 63), 0xca62c1d6u);
    step<parity>(b, c, d, e, a, expand(w, 64), 0xca62c1d6u);
    step<parity>(a, b, c, d, e, expand(w, 65), 0xca62c1d6u);
    step<parity>(e, a, b, c, d, expand(w, 66), 0xca62c1d6u);
    step<parity>(d, e, a, b, c, expand(w, 67), 0xca62c1d6u);
    step<parity>(c, d, e, a, b, expand(w, 68), 0xca62c1d6u);
    step<parity>(b, c, d, e, a, expand(w, 69), 0xca62c1d6u);
    step<parity>(a, b, c, d, e, expand(w, 70), 0xca62c1d6u);
    step<parity>(e, a, b, c, d, expand(w, 71), 0xca62c1d6u);
    step<parity>(d, e, a, b, c, expand(w, 72), 0xca62c1d6u);
    step<parity>(c, d, e, a, b, expand(w, 73), 0xca62c1d6u);
    step<parity>(b, c, d, e, a, expand(w, 74), 0xca62c1d6u);
    step<parity>(a, b, c, d, e, expand(w, 75), 0xca62c1d6u);
    step<parity>(e, a, b, c, d, expand(w, 76), 0xca62c1d6u);
    step<parity>(d, e, a, b, c, expand(w, 77), 0xca62c1d6u);
    step<parity>(c, d, e, a, b, expand(w, 78), 0xca62c1d6u);
    step<parity>(b, c, d, e, a, expand(w, 79), 0xca62c1d6u);
    // clang-format on

    state[0] += a;
    state[1] += b;
    state[2] += c;
    state[3] += d;
    state[4] += e;
}

} // namespace

void sha1BlocksPortable(std::uint32_t *state, const std::uint8_t *blocks, std::size_t count)
{
    // In variables of its own, which cannot be what `blocks` points to, the state stays in registers.
    std::uint32_t own[5] = {state[0], state[1], state[2], state[3], state[4]};
    for (; count > 0; --count, blocks += 64)
        compress(own, blocks);
    std::copy(std::begin(own), std::end(own), state);
}

void sha1Blocks(std::uint32_t *state, const std::uint8_t *blocks, std::size_t count)
{
    static const auto fastest = hasSha1Instructions() ? sha1BlocksByInstructions : sha1BlocksPortable;
    fastest(state, blocks, count);
}
