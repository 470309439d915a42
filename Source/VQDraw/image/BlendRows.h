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

/// A block of pixels, seen as words, as halves or as bytes.
template <typename Word>
struct Block
{
    static_assert(sizeof(Word) == sizeof(Pixel));
    std::array<Word, kBlockPixels> words;

    Half* halves() { return reinterpret_cast<Half*>(words.data()); }
    Channel* bytes() { return reinterpret_cast<Channel*>(words.data()); }
    /// Both halves of pixel i.
    void setBoth(std::size_t i, Word half) { words[i] = half | half << 16; }
};

template <typename Word, typename Count>
bool hasAlpha(const Word* pixels, Count count)
{
    Word bits = 0;
    for (std::size_t i = 0; i < count; ++i)
        bits |= pixels[i];
    return (bits & kAlphaBits) != 0;
}

/// moves[i] = what is to be added to the channels of d[i], byte by byte: (s * w + d * (256 - w)) / 256 lies
/// (s - d) * w / 256 from d, of which bits 8 to 15 matter. `lows` and `highs` have the weights for the lower and the
/// upper channel of each half.
template <typename Word, typename Count>
void findMoves(Block<Word>& moves, const Word* d, const Word* s, Block<Word>& lows, Block<Word>& highs, Count count)
{
    const Half* dHalves = reinterpret_cast<const Half*>(d);
    const Half* sHalves = reinterpret_cast<const Half*>(s);
    const Half* lowWeights = lows.halves();
    const Half* highWeights = highs.halves();
    Half* result = moves.halves();
    for (std::size_t i = 0; i < 2 * count; ++i) {
        const auto lowGap = static_cast<std::uint16_t>((sHalves[i] & 0xFFu) - (dHalves[i] & 0xFFu));
        const auto highGap = static_cast<std::uint16_t>((sHalves[i] >> 8u) - (dHalves[i] >> 8u));
        const auto low = static_cast<std::uint16_t>(1u * lowGap * lowWeights[i]);
        const auto high = static_cast<std::uint16_t>(1u * highGap * highWeights[i]);
        result[i] = static_cast<std::uint16_t>(low >> 8 | (high & 0xFF00));
    }
}

/// Source over destination by the source's alpha; alphas add up to 255 at most. Where there is no alpha, the
/// destination is not even read.
template <typename Word, typename Count>
void pasteBlock(Word* d, const Word* s, Count count)
{
    if (!hasAlpha(s, count))
        return;
    Block<Word> lows;
    Block<Word> highs;
    for (std::size_t i = 0; i < count; ++i) {
        highs.words[i] = s[i] >> 24; // none for alpha
        lows.setBoth(i, s[i] >> 24);
    }
    Block<Word> moves;
    findMoves(moves, d, s, lows, highs, count);
    Block<Word> alphas;
    for (std::size_t i = 0; i < count; ++i)
        alphas.words[i] = s[i] & kAlphaBits;
    auto* bytes = reinterpret_cast<Channel*>(d);
    const Channel* move = moves.bytes();
    const Channel* alpha = alphas.bytes();
    for (std::size_t i = 0; i < 4 * count; ++i) // no longer reads s, which may overlap d
        bytes[i] = static_cast<Channel>(bytes[i] + (move[i] | std::min<Channel>(alpha[i], 255 - bytes[i])));
}

/// `pasteBlock` along a row. The rows do not overlap.
template <typename Word>
void pasteRow(std::span<Word> dst, const Word* src)
{
    forEachBlock(dst.size(),
                 [=](std::size_t begin, auto count) { pasteBlock(dst.data() + begin, src + begin, count); });
}

/// As `pasteRow` for rows that overlap with dst starting to the left of src, or at the same place.
template <typename Word>
void pasteRowFromTheLeft(std::span<Word> dst, const Word* src)
{
    forEachBlockFromTheLeft(dst.size(),
                            [=](std::size_t begin, auto count) { pasteBlock(dst.data() + begin, src + begin, count); });
}

/// As `pasteRow` for rows that overlap with dst starting to the right of src.
template <typename Word>
void pasteRowFromTheRight(std::span<Word> dst, const Word* src)
{
    forEachBlockFromTheRight(
        dst.size(), [=](std::size_t begin, auto count) { pasteBlock(dst.data() + begin, src + begin, count); });
}

/// Every pixel by the same weight, which is given for each half, too.
template <typename Word, typename Count>
void blendBlock(Word* d, const Word* s, Block<Word>& weights, std::int32_t weight, Count count)
{
    Block<Word> sums;
    findMoves(sums, d, s, weights, weights, count);
    const auto* dBytes = reinterpret_cast<const Channel*>(d);
    Channel* bytes = sums.bytes();
    for (std::size_t i = 0; i < 4 * count; ++i)
        bytes[i] = static_cast<Channel>(bytes[i] + dBytes[i]);
    for (std::size_t i = 0; i < count; ++i)
        d[i] = (sums.words[i] & kColourBits) | alphaPlusWeight(d[i] >> 24, weight);
}

/// src over dst, every pixel by the same weight. The same row, or rows that do not overlap.
template <typename Word>
void blendRow(std::span<Word> dst, const Word* src, std::int32_t weight)
{
    Block<Word> weights;
    for (std::size_t i = 0; i < kBlockPixels; ++i)
        weights.setBoth(i, static_cast<std::uint16_t>(weight));
    forEachBlock(dst.size(), [=](std::size_t begin, auto count) mutable {
        blendBlock(dst.data() + begin, src + begin, weights, weight, count);
    });
}

/// Both channels of each half times `rest`, plus `lows` and `high`; alpha as in `tinted`.
template <typename Word, typename Count>
void tintBlock(Word* d, Block<Word>& lows, std::uint16_t high, std::uint16_t rest, std::int32_t weight, Count count)
{
    Block<Word> mixed;
    const Half* dHalves = reinterpret_cast<const Half*>(d);
    const Half* low = lows.halves();
    Half* result = mixed.halves();
    for (std::size_t i = 0; i < 2 * count; ++i)
        result[i] = mixedHalf(dHalves[i], rest, low[i], high);
    for (std::size_t i = 0; i < count; ++i)
        d[i] = (mixed.words[i] & kColourBits) | alphaPlusWeight(d[i] >> 24, weight);
}

/// Every pixel blended with a colour, as `tinted` does it.
template <typename Word>
void tintRow(std::span<Word> dst, const Tint& tint)
{
    const std::int32_t weight = tint.weight;
    const auto rest = static_cast<std::uint16_t>(256u - static_cast<std::uint32_t>(weight));
    const std::uint16_t green = weighted(tint.green, weight);
    Block<Word> lows;
    for (Word& low : lows.words)
        low = static_cast<Word>(weighted(tint.red, weight)) << 16 | weighted(tint.blue, weight);
    forEachBlock(dst.size(), [=](std::size_t begin, auto count) mutable {
        tintBlock(dst.data() + begin, lows, green, rest, weight, count);
    });
}

} // namespace vq
