// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Two pictures combined channel by channel: the formulas first, then the one loop that applies them. Standard library
/// only.

#include "VQDraw/image/PixelBlocks.h"
#include "VQDraw/image/PixelFormulas.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>

namespace vq {

using Channel = std::uint8_t;

// d is the image that changes, s the one that is read. Products are divided by 256, not 255, so white times white is
// 254: hosts hold pictures made that way. No sum leaves a byte: that is worth a factor of two and more.
inline constexpr auto add = [](Channel d, Channel s) { return d + std::min<Channel>(s, 255 - d); };
inline constexpr auto subtract = [](Channel d, Channel s) { return d - std::min(d, s); };
inline constexpr auto multiply = [](Channel d, Channel s) { return d * s >> 8; };
inline constexpr auto screen = [](Channel d, Channel s) { return 255 - ((255 - d) * (255 - s) >> 8); };
inline constexpr auto lighten = [](Channel d, Channel s) { return std::max(d, s); };
inline constexpr auto darken = [](Channel d, Channel s) { return std::min(d, s); };
inline constexpr auto difference = [](Channel d, Channel s) { return std::max(d, s) - std::min(d, s); };

/// A channel times `factor`, divided by 256 and cut to a byte. Only the low 16 bits of the factor reach that byte.
inline constexpr Channel scaled(Channel channel, std::uint16_t factor)
{
    return static_cast<Channel>(static_cast<std::uint16_t>(channel * 1u * factor) >> 8);
}

/// The larger of d and the scaled s, which was cut to a byte before.
inline constexpr auto lightenBy(std::uint16_t factor)
{
    return [factor](Channel d, Channel s) { return std::max(d, scaled(s, factor)); };
}

/// Where s is below d, both scaled and cut to a byte, d moves towards s by factor / 256.
inline constexpr auto darkenBy(std::uint16_t factor)
{
    return [factor](Channel d, Channel s) {
        const auto moved = static_cast<std::uint16_t>((0u + s - d) * factor + d * 256u);
        return scaled(s, factor) < scaled(d, factor) ? static_cast<Channel>(moved >> 8) : d;
    };
}

/// Applies a channel formula to a block of pixels. Bits set in `kept` stay as they are in d.
template <Pixel kept, typename Word, typename Count, typename Formula>
void combineBlock(Word* d, const Word* s, Count count, Formula formula)
{
    const auto* sBytes = reinterpret_cast<const Channel*>(s);
    if constexpr (kept == 0) {
        auto* bytes = reinterpret_cast<Channel*>(d);
        const std::size_t byteCount = 4 * count;
#pragma GCC ivdep // the same pixels or others: no byte depends on another one
        for (std::size_t i = 0; i < byteCount; ++i)
            bytes[i] = static_cast<Channel>(formula(bytes[i], sBytes[i]));
        return;
    }
    std::array<Word, kBlockPixels> result; // all four bytes computed, kept ones put back: no test inside the loop
    const auto* dBytes = reinterpret_cast<const Channel*>(d);
    auto* bytes = reinterpret_cast<Channel*>(result.data());
    for (std::size_t i = 0; i < 4 * count; ++i)
        bytes[i] = static_cast<Channel>(formula(dBytes[i], sBytes[i]));
    for (std::size_t i = 0; i < count; ++i)
        d[i] = (d[i] & kept) | (result[i] & ~kept);
}

/// `combineBlock` along a row. dst and src have the same length, and are the same row or do not overlap.
template <Pixel kept, typename Word, typename Formula>
void combineRow(std::span<Word> dst, std::type_identity_t<std::span<const Word>> src, Formula formula)
{
    static_assert(sizeof(Word) == sizeof(Pixel));
    forEachBlock(dst.size(), [=](std::size_t begin, auto count) {
        combineBlock<kept>(dst.data() + begin, src.data() + begin, count, formula);
    });
}

/// Applies a channel formula to a row with the channels of one pixel for s.
template <typename Word, typename Formula>
void combineRowWith(std::span<Word> dst, Pixel constant, Formula formula)
{
    std::array<Word, kBlockPixels> source;
    source.fill(constant);
    forEachBlock(dst.size(), [=](std::size_t begin, auto count) {
        combineBlock<0>(dst.data() + begin, source.data(), count, formula);
    });
}

} // namespace vq
