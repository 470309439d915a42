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

/// A pixel's colour.
inline constexpr Tint tintOf(Pixel pixel, std::int32_t weight)
{
    const auto channel = [pixel](int shift) { return static_cast<std::int32_t>(pixel >> shift & 0xFF); };
    return {channel(16), channel(8), channel(0), weight};
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

/// Alpha in the top byte, after a weight of any size was added: a sum of 256 and more is 255, of a negative one the low
/// 8 bits stay.
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
};

template <typename Word, typename Count>
bool hasAlpha(const Word* pixels, Count count)
{
    Word bits = 0;
    for (std::size_t i = 0; i < count; ++i)
        bits |= pixels[i];
    return (bits & kAlphaBits) != 0;
}

/// What a blend knows of a block beside the two pictures: a weight for the lower and for the upper channel of each
/// half, none for alpha, and what is added to alpha, in the top byte of each word.
template <typename Word>
struct BlockWeights
{
    Block<Word> lows;
    Block<Word> highs;
    Block<Word> alphas;

    /// weight: 0 .. 255
    void set(std::size_t i, Word weight)
    {
        lows.words[i] = weight | weight << 16;
        highs.words[i] = weight;
        alphas.words[i] = weight << 24;
    }
};

/// Each channel of d moves towards s by its weight: (s * w + d * (256 - w)) / 256 lies (s - d) * w / 256 from d, of
/// which bits 8 to 15 matter. Alphas add up to 255 at most. As a function of its own it would have its arguments in
/// memory.
template <typename Word, typename Count>
[[gnu::always_inline]] inline void moveBlock(Word* d, const Word* s, BlockWeights<Word>& weights, Count count)
{
    const Half* dHalves = reinterpret_cast<const Half*>(d);
    const Half* sHalves = reinterpret_cast<const Half*>(s);
    const Half* lowWeights = weights.lows.halves();
    const Half* highWeights = weights.highs.halves();
    Block<Word> moves;
    Half* halfMoves = moves.halves();
    for (std::size_t i = 0; i < 2 * count; ++i) {
        const auto lowGap = static_cast<std::uint16_t>((sHalves[i] & 0xFFu) - (dHalves[i] & 0xFFu));
        const auto highGap = static_cast<std::uint16_t>((sHalves[i] >> 8u) - (dHalves[i] >> 8u));
        const auto low = static_cast<std::uint16_t>(1u * lowGap * lowWeights[i]);
        const auto high = static_cast<std::uint16_t>(1u * highGap * highWeights[i]);
        halfMoves[i] = static_cast<std::uint16_t>(low >> 8 | (high & 0xFF00));
    }
    auto* bytes = reinterpret_cast<Channel*>(d);
    const Channel* move = moves.bytes();
    const Channel* alpha = weights.alphas.bytes();
    const std::size_t byteCount = 4 * count;
#pragma GCC ivdep // no longer reads s, which may overlap d
    for (std::size_t i = 0; i < byteCount; ++i)
        bytes[i] = static_cast<Channel>(bytes[i] + (move[i] | std::min<Channel>(alpha[i], 255 - bytes[i])));
}

/// Source over destination by the source's alpha. Where there is none, the destination is not even read.
template <typename Word, typename Count>
[[gnu::always_inline]] inline void pasteBlock(Word* d, const Word* s, Count count)
{
    if (!hasAlpha(s, count))
        return;
    BlockWeights<Word> weights;
    for (std::size_t i = 0; i < count; ++i)
        weights.set(i, s[i] >> 24);
    moveBlock(d, s, weights, count);
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

inline constexpr bool isByte(std::int32_t value)
{
    return value >= 0 && value <= 255;
}

template <typename Word>
BlockWeights<Word> sameWeights(std::int32_t weight)
{
    BlockWeights<Word> weights;
    for (std::size_t i = 0; i < kBlockPixels; ++i)
        weights.set(i, static_cast<Word>(weight));
    return weights;
}

/// src over dst, every pixel by the same weight. The same row, or rows that do not overlap.
template <typename Word>
void blendRow(std::span<Word> dst, const Word* src, std::int32_t weight)
{
    if (isByte(weight)) {
        forEachBlock(dst.size(), [=, weights = sameWeights<Word>(weight)](std::size_t begin, auto count) mutable {
            moveBlock(dst.data() + begin, src + begin, weights, count);
        });
        return;
    }
    for (std::size_t i = 0; i < dst.size(); ++i)
        dst[i] = tinted(dst[i], tintOf(src[i], weight));
}

/// Every pixel blended with a colour, as `tinted` does it.
template <typename Word>
void tintRow(std::span<Word> dst, const Tint& tint)
{
    if (isByte(tint.red) && isByte(tint.green) && isByte(tint.blue) && isByte(tint.weight)) {
        Block<Word> source;
        source.words.fill(
            argb(0, static_cast<Channel>(tint.red), static_cast<Channel>(tint.green), static_cast<Channel>(tint.blue)));
        forEachBlock(dst.size(), [=, weights = sameWeights<Word>(tint.weight)](std::size_t begin, auto count) mutable {
            moveBlock(dst.data() + begin, source.words.data(), weights, count);
        });
        return;
    }
    for (Word& pixel : dst)
        pixel = tinted(pixel, tint);
}

} // namespace vq
