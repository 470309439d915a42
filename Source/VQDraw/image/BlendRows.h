// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Blending by weights, for a pixel and for rows. Standard library only.
///
/// A channel d moves towards s by a weight w in 1/256: (s * w + d * (256 - w)) / 256, rounded down. The divisor is 256
/// and never 255, so the full weight of 255 stops one step short of s: hosts hold pictures made that way. Only bits 8
/// to 15 of the sum are kept, which depend on the low 16 bits of every term: 16-bit lanes are exact for weights and
/// targets of any size.
///
/// Rows are words of 32 bits, whatever the name of their type. Both rows of a call have the same length.

#include "VQDraw/image/PixelBlocks.h"
#include "VQDraw/image/PixelFormulas.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>

namespace vq {

/// Two neighbouring channels of a pixel, seen in place: blue below green, or red below alpha. The attribute lets it
/// look at pixels; `auto` and template arguments lose it, so pointers to it are spelled out.
using Half [[gnu::may_alias]] = std::uint16_t;

/// A colour and the weight of its blend, taken as given.
struct Tint
{
    std::int32_t red;
    std::int32_t green;
    std::int32_t blue;
    std::int32_t weight;
};

/// A GDI colour, 0x00BBGGRR. The low 8 bits of alpha are the weight, and so are the bits of the colour's top byte.
inline constexpr Tint tintFromColorRef(std::uint32_t colour, std::int32_t alpha)
{
    const auto channel = [colour](int shift) { return static_cast<std::int32_t>(colour >> shift & 0xFF); };
    return {channel(0), channel(8), channel(16), (alpha & 0xFF) | channel(24)};
}

/// The part of (s * w + d * (256 - w)) that does not depend on d.
inline constexpr std::uint16_t weighted(std::int32_t channel, std::int32_t weight)
{
    return static_cast<std::uint16_t>(static_cast<std::uint32_t>(channel) * static_cast<std::uint32_t>(weight));
}

/// Both channels of a half times `rest` = 256 - w, plus what each is given, divided by 256.
inline constexpr std::uint16_t mixedHalf(std::uint16_t half, std::uint16_t rest, std::uint16_t low, std::uint16_t high)
{
    const auto lowSum = static_cast<std::uint16_t>((half & 0xFFu) * rest + low);
    const auto highSum = static_cast<std::uint16_t>((half >> 8u) * rest + high);
    return static_cast<std::uint16_t>(lowSum >> 8 | (highSum & 0xFF00));
}

/// Alpha in the top byte, after two alphas 0 .. 255 were added and limited to 255.
inline constexpr Pixel limitedAlphaSum(Pixel alpha, Pixel other)
{
    const Pixel sum = alpha + other;
    return (sum | (0u - (sum >> 8))) << 24;
}

/// As above for a weight of any size: a sum of 256 and more is 255, of a negative one the low 8 bits stay.
inline constexpr Pixel alphaPlusWeight(Pixel alpha, std::int32_t weight)
{
    const auto sum = static_cast<std::int32_t>(alpha + static_cast<std::uint32_t>(weight));
    return (static_cast<Pixel>(sum) | (0u - static_cast<Pixel>(sum > 255))) << 24;
}

/// One pixel, blended with a colour.
inline constexpr Pixel tinted(Pixel pixel, const Tint& tint)
{
    const auto rest = static_cast<std::uint16_t>(256u - static_cast<std::uint32_t>(tint.weight));
    const Pixel blueAndGreen = mixedHalf(static_cast<std::uint16_t>(pixel), rest, weighted(tint.blue, tint.weight),
                                         weighted(tint.green, tint.weight));
    const Pixel red = mixedHalf(pixel >> 16 & 0xFF, rest, weighted(tint.red, tint.weight), 0);
    return blueAndGreen | red << 16 | alphaPlusWeight(pixel >> 24, tint.weight);
}

/// A block of pixels by halves, and a weight for each half.
template <typename Word>
struct HalfBlock
{
    static_assert(sizeof(Word) == sizeof(Pixel));
    std::array<Word, kBlockPixels> words;

    Half* halves() { return reinterpret_cast<Half*>(words.data()); }
    /// Both halves of pixel i.
    void setBoth(std::size_t i, Word half) { words[i] = half | half << 16; }
};

template <typename Word>
bool hasAlpha(const Word* pixels, std::size_t count)
{
    Word bits = 0;
    for (std::size_t i = 0; i < count; ++i)
        bits |= pixels[i];
    return (bits & kAlphaBits) != 0;
}

/// mixed[i] = colours of d[i] and s[i] by the weight of each half; its alpha bytes mean nothing.
template <typename Word>
void mixBlock(HalfBlock<Word>& mixed, const Word* d, const Word* s, HalfBlock<Word>& weights, std::size_t count)
{
    const Half* dHalves = reinterpret_cast<const Half*>(d);
    const Half* sHalves = reinterpret_cast<const Half*>(s);
    const Half* weight = weights.halves();
    Half* result = mixed.halves();
    for (std::size_t i = 0; i < 2 * count; ++i) {
        const auto low = static_cast<std::uint16_t>((sHalves[i] & 0xFFu) * weight[i]);
        const auto high = static_cast<std::uint16_t>((sHalves[i] >> 8u) * weight[i]);
        result[i] = mixedHalf(dHalves[i], static_cast<std::uint16_t>(256u - weight[i]), low, high);
    }
}

/// Source over destination by the source's alpha; alphas add up to 255 at most. A block without alpha is only read.
template <typename Word>
void pasteBlock(Word* d, const Word* s, std::size_t count)
{
    if (!hasAlpha(s, count))
        return;
    HalfBlock<Word> weights;
    HalfBlock<Word> mixed;
    for (std::size_t i = 0; i < count; ++i)
        weights.setBoth(i, s[i] >> 24);
    mixBlock(mixed, d, s, weights, count);
    for (std::size_t i = 0; i < count; ++i) // no longer reads s, which may overlap d
        d[i] = (mixed.words[i] & kColourBits) | limitedAlphaSum(d[i] >> 24, weights.words[i] & 0xFF);
}

/// `pasteBlock` along a row. Rows that overlap: dst does not start to the right of src.
template <typename Word>
void pasteRow(std::span<Word> dst, const Word* src)
{
    forEachBlock(dst.size(), [&](std::size_t begin, auto count) { pasteBlock(&dst[begin], src + begin, count); });
}

/// As `pasteRow` for rows that overlap with dst starting to the right of src.
template <typename Word>
void pasteRowFromTheRight(std::span<Word> dst, const Word* src)
{
    forEachBlockFromTheRight(dst.size(),
                             [&](std::size_t begin, auto count) { pasteBlock(&dst[begin], src + begin, count); });
}

/// src over dst, every pixel by the same weight. The same row, or rows that do not overlap.
template <typename Word>
void blendRow(std::span<Word> dst, const Word* src, std::int32_t weight)
{
    HalfBlock<Word> weights;
    for (std::size_t i = 0; i < kBlockPixels; ++i)
        weights.setBoth(i, static_cast<std::uint16_t>(weight));
    forEachBlock(dst.size(), [&](std::size_t begin, auto count) {
        HalfBlock<Word> mixed;
        Word* d = &dst[begin];
        mixBlock(mixed, d, src + begin, weights, count);
        for (std::size_t i = 0; i < count; ++i)
            d[i] = (mixed.words[i] & kColourBits) | alphaPlusWeight(d[i] >> 24, weight);
    });
}

/// Every pixel blended with a colour, as `tinted` does it.
template <typename Word>
void tintRow(std::span<Word> dst, const Tint& tint)
{
    const auto rest = static_cast<std::uint16_t>(256u - static_cast<std::uint32_t>(tint.weight));
    const std::uint16_t green = weighted(tint.green, tint.weight);
    HalfBlock<Word> lows;
    for (Word& low : lows.words)
        low = static_cast<Word>(weighted(tint.red, tint.weight)) << 16 | weighted(tint.blue, tint.weight);
    forEachBlock(dst.size(), [&](std::size_t begin, auto count) {
        HalfBlock<Word> mixed;
        Word* d = &dst[begin];
        const Half* dHalves = reinterpret_cast<const Half*>(d);
        const Half* low = lows.halves();
        Half* result = mixed.halves();
        for (std::size_t i = 0; i < 2 * count; ++i)
            result[i] = mixedHalf(dHalves[i], rest, low[i], green);
        for (std::size_t i = 0; i < count; ++i)
            d[i] = (mixed.words[i] & kColourBits) | alphaPlusWeight(d[i] >> 24, tint.weight);
    });
}

} // namespace vq
