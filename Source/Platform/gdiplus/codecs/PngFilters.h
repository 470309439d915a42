// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The filters of PNG on pixels of four bytes in one word: what a filter does to a byte, it does to all four, and none
/// touches another. Standard library only, but for SSE2 where there is one.

#include <cstdint>
#include <cstdlib>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace vq::gdiplus::png {

using Word = std::uint32_t;

/// Red, green, blue, alpha in memory to blue, green, red, alpha, and back.
constexpr Word redAndBlueExchanged(Word pixel)
{
    return (pixel & 0xFF00FF00) | (pixel >> 16 & 0xFF) | (pixel & 0xFF) << 16;
}

/// Byte by byte, modulo 256: the top bits are seen to apart, so that no carry leaves its byte.
constexpr Word bytesAdded(Word first, Word second)
{
    constexpr Word kLow = 0x7F7F7F7F;
    return ((first & kLow) + (second & kLow)) ^ ((first ^ second) & ~kLow);
}

constexpr Word bytesSubtracted(Word first, Word second)
{
    constexpr Word kTop = 0x80808080;
    return ((first | kTop) - (second & ~kTop)) ^ ((first ^ ~second) & kTop);
}

/// Half the sum of two bytes, rounded down.
constexpr Word bytesAveraged(Word first, Word second)
{
    return (first & second) + (((first ^ second) & 0xFEFEFEFE) >> 1);
}

/// Of left, above and above left that which is nearest to left + above - above left; the first of them in a tie.
inline int paethOfByte(int left, int above, int aboveLeft)
{
    const int distanceToLeft = std::abs(above - aboveLeft);
    const int distanceToAbove = std::abs(left - aboveLeft);
    const int distanceToAboveLeft = std::abs(left + above - 2 * aboveLeft);
    if (distanceToLeft <= distanceToAbove && distanceToLeft <= distanceToAboveLeft)
        return left;
    return distanceToAbove <= distanceToAboveLeft ? above : aboveLeft;
}

inline Word paethPortable(Word left, Word above, Word aboveLeft)
{
    Word result = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        const auto byte = [shift](Word word) { return static_cast<int>(word >> shift & 0xFF); };
        result |= static_cast<Word>(paethOfByte(byte(left), byte(above), byte(aboveLeft))) << shift;
    }
    return result;
}

#if defined(__SSE2__)

/// A fifth of the portable form's time: the four bytes at once in 16 bits each.
inline Word paeth(Word left, Word above, Word aboveLeft)
{
    const __m128i zero = _mm_setzero_si128();
    const auto widened = [&](Word word) { return _mm_unpacklo_epi8(_mm_cvtsi32_si128(static_cast<int>(word)), zero); };
    const auto distance = [&](__m128i value) { return _mm_max_epi16(value, _mm_sub_epi16(zero, value)); };
    const auto chosen = [](__m128i mask, __m128i yes, __m128i no) {
        return _mm_or_si128(_mm_and_si128(mask, yes), _mm_andnot_si128(mask, no));
    };
    const __m128i a = widened(left);
    const __m128i b = widened(above);
    const __m128i c = widened(aboveLeft);
    const __m128i alongAbove = _mm_sub_epi16(b, c);
    const __m128i alongLeft = _mm_sub_epi16(a, c);
    const __m128i toLeft = distance(alongAbove);
    const __m128i toAbove = distance(alongLeft);
    const __m128i toAboveLeft = distance(_mm_add_epi16(alongAbove, alongLeft));
    const __m128i least = _mm_min_epi16(toAboveLeft, _mm_min_epi16(toLeft, toAbove));
    const __m128i aboveOrCorner = chosen(_mm_cmpeq_epi16(least, toAbove), b, c);
    const __m128i nearest = chosen(_mm_cmpeq_epi16(least, toLeft), a, aboveOrCorner);
    return static_cast<Word>(_mm_cvtsi128_si32(_mm_packus_epi16(nearest, nearest)));
}

#else

inline Word paeth(Word left, Word above, Word aboveLeft)
{
    return paethPortable(left, above, aboveLeft);
}

#endif

} // namespace vq::gdiplus::png
