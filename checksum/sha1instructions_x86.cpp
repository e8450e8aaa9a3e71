#include "checksum/sha1instructions.h"

#include <cpuid.h>
#include <immintrin.h>

// Only these functions may hold the instructions; they are called after the processor has been asked.
#define WITH_SHA_INSTRUCTIONS __attribute__((target("sha,sse4.1")))

namespace {

// Sixteen bytes of the message as four words, the first in the highest place, where the instructions want it.
WITH_SHA_INSTRUCTIONS inline __m128i read(const std::uint8_t *bytes)
{
    const __m128i lastByteFirst = _mm_set_epi64x(0x0001020304050607, 0x08090a0b0c0d0e0f);
    return _mm_shuffle_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i *>(bytes)), lastByteFirst);
}

// The next four words of the message schedule (FIPS 180-1, section 7 b) after the sixteen in w0 to w3; they take the
// place of the first four.
WITH_SHA_INSTRUCTIONS inline __m128i expand(__m128i &w0, __m128i w1, __m128i w2, __m128i w3)
{
    w0 = _mm_sha1msg2_epu32(_mm_xor_si128(_mm_sha1msg1_epu32(w0, w1), w2), w3);
    return w0;
}

// Four steps (section 7 d) with the function and the constant of that quarter. `previous` is what A to D were four
// steps ago: the A of that time, rotated, is the E of now.
template<int quarter>
WITH_SHA_INSTRUCTIONS inline void steps(__m128i &abcd, __m128i &previous, __m128i words)
{
    const __m128i e = _mm_sha1nexte_epu32(previous, words);
    previous = abcd;
    abcd = _mm_sha1rnds4_epu32(abcd, e, quarter);
}

} // namespace

bool hasSha1Instructions()
{
    unsigned a = 0;
    unsigned b = 0;
    unsigned c = 0;
    unsigned d = 0;
    if (__get_cpuid(1, &a, &b, &c, &d) == 0 || (c & bit_SSSE3) == 0 || (c & bit_SSE4_1) == 0)
        return false;
    return __get_cpuid_count(7, 0, &a, &b, &c, &d) != 0 && (b & bit_SHA) != 0;
}

WITH_SHA_INSTRUCTIONS void sha1BlocksByInstructions(std::uint32_t *state, const std::uint8_t *blocks, std::size_t count)
{
    auto *const firstFour = reinterpret_cast<__m128i *>(state);
    __m128i abcd = _mm_shuffle_epi32(_mm_loadu_si128(firstFour), _MM_SHUFFLE(0, 1, 2, 3));
    __m128i e = _mm_set_epi32(static_cast<int>(state[4]), 0, 0, 0);

    for (; count > 0; --count, blocks += 64) {
        const __m128i abcdBefore = abcd;
        const __m128i eBefore = e;
        __m128i w0 = read(blocks);
        __m128i w1 = read(blocks + 16);
        __m128i w2 = read(blocks + 32);
        __m128i w3 = read(blocks + 48);

        // E itself stands in the state, so there is nothing to rotate before the first four steps.
        __m128i previous = abcd;
        abcd = _mm_sha1rnds4_epu32(abcd, _mm_add_epi32(e, w0), 0);
        steps<0>(abcd, previous, w1);
        steps<0>(abcd, previous, w2);
        steps<0>(abcd, previous, w3);
        steps<0>(abcd, previous, expand(w0, w1, w2, w3));
        steps<1>(abcd, previous, expand(w1, w2, w3, w0));
        steps<1>(abcd, previous, expand(w2, w3, w0, w1));
        steps<1>(abcd, previous, expand(w3, w0, w1, w2));
        steps<1>(abcd, previous, expand(w0, w1, w2, w3));
        steps<1>(abcd, previous, expand(w1, w2, w3, w0));
        steps<2>(abcd, previous, expand(w2, w3, w0, w1));
        steps<2>(abcd, previous, expand(w3, w0, w1, w2));
        steps<2>(abcd, previous, expand(w0, w1, w2, w3));
        steps<2>(abcd, previous, expand(w1, w2, w3, w0));
        steps<2>(abcd, previous, expand(w2, w3, w0, w1));
        steps<3>(abcd, previous, expand(w3, w0, w1, w2));
        steps<3>(abcd, previous, expand(w0, w1, w2, w3));
        steps<3>(abcd, previous, expand(w1, w2, w3, w0));
        steps<3>(abcd, previous, expand(w2, w3, w0, w1));
        steps<3>(abcd, previous, expand(w3, w0, w1, w2));

        e = _mm_sha1nexte_epu32(previous, eBefore);
        abcd = _mm_add_epi32(abcd, abcdBefore);
    }

    _mm_storeu_si128(firstFour, _mm_shuffle_epi32(abcd, _MM_SHUFFLE(0, 1, 2, 3)));
    state[4] = static_cast<std::uint32_t>(_mm_extract_epi32(e, 3));
}
