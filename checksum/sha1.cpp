#include "checksum/sha1.h"

#include "checksum/wordbytes.h"

#include <cstddef>
#include <cstring>

namespace {

// The functions of FIPS 180-1, section 5. The first and the third are written with fewer operations than there.
constexpr std::uint32_t chooseByX(std::uint32_t x, std::uint32_t y, std::uint32_t z)
{
    return z ^ (x & (y ^ z));
}
constexpr std::uint32_t parity(std::uint32_t x, std::uint32_t y, std::uint32_t z)
{
    return x ^ y ^ z;
}
constexpr std::uint32_t majority(std::uint32_t x, std::uint32_t y, std::uint32_t z)
{
    return (x & y) | (z & (x | y));
}

// One step of section 7. Where the standard passes the five words on, the caller names them in turned order instead.
template<std::uint32_t (*function)(std::uint32_t, std::uint32_t, std::uint32_t)>
inline void step(std::uint32_t a, std::uint32_t &b, std::uint32_t c, std::uint32_t d, std::uint32_t &e,
                 std::uint32_t word, std::uint32_t constant)
{
    e += rotateLeft(a, 5) + function(b, c, d) + word + constant;
    b = rotateLeft(b, 30);
}

// The message schedule in 16 words instead of 80 (section 8): word t takes the place of word t - 16.
inline std::uint32_t expand(std::uint32_t *w, int t)
{
    std::uint32_t &word = w[t & 15];
    word = rotateLeft(w[(t - 3) & 15] ^ w[(t - 8) & 15] ^ w[(t - 14) & 15] ^ word, 1);
    return word;
}

} // namespace

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
    for (; rest >= 64; rest -= 64, input += 64)
        sha1Process(context, input);
    if (rest > 0)
        std::memcpy(context->buffer + left, input, rest);
}

// clang-format off
void sha1Process(Sha1Context *context, const std::uint8_t *block)
{
    std::uint32_t w[16];
    for (std::size_t i = 0; i < 16; ++i)
        w[i] = loadBigEndian(block + 4 * i);

    std::uint32_t a = context->state[0];
    std::uint32_t b = context->state[1];
    std::uint32_t c = context->state[2];
    std::uint32_t d = context->state[3];
    std::uint32_t e = context->state[4];

    // Steps 0 to 19
    step<chooseByX>(a, b, c, d, e, w[ 0], 0x5a827999u);
    step<chooseByX>(e, a, b, c, d, w[ 1], 0x5a827999u);
    step<chooseByX>(d, e, a, b, c, w[ 2], 0x5a827999u);
    step<chooseByX>(c, d, e, a, b, w[ 3], 0x5a827999u);
    step<chooseByX>(b, c, d, e, a, w[ 4], 0x5a827999u);
    step<chooseByX>(a, b, c, d, e, w[ 5], 0x5a827999u);
    step<chooseByX>(e, a, b, c, d, w[ 6], 0x5a827999u);
    step<chooseByX>(d, e, a, b, c, w[ 7], 0x5a827999u);
    step<chooseByX>(c, d, e, a, b, w[ 8], 0x5a827999u);
    step<chooseByX>(b, c, d, e, a, w[ 9], 0x5a827999u);
    step<chooseByX>(a, b, c, d, e, w[10], 0x5a827999u);
    step<chooseByX>(e, a, b, c, d, w[11], 0x5a827999u);
    step<chooseByX>(d, e, a, b, c, w[12], 0x5a827999u);
    step<chooseByX>(c, d, e, a, b, w[13], 0x5a827999u);
    step<chooseByX>(b, c, d, e, a, w[14], 0x5a827999u);
    step<chooseByX>(a, b, c, d, e, w[15], 0x5a827999u);
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

    context->state[0] += a;
    context->state[1] += b;
    context->state[2] += c;
    context->state[3] += d;
    context->state[4] += e;
}
// clang-format on

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
