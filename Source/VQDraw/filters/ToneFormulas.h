// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Tones of one picture: formulas for a pixel, and the range of a channel. Standard library
/// only.

#include "VQDraw/image/PixelBlocks.h"
#include "VQDraw/image/PixelFormulas.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace vq {

/// A pixel's alpha with the same byte in blue, green and red.
inline constexpr Pixel asGrey(Pixel pixel, std::int32_t grey)
{
    const auto byte = static_cast<Pixel>(grey);
    return (pixel & kAlphaBits) | byte << 16 | byte << 8 | byte; // shifts: SSE2 has no product of 32-bit lanes
}

inline constexpr std::int32_t blueOf(Pixel pixel)
{
    return static_cast<std::int32_t>(pixel & 0xFF);
}
inline constexpr std::int32_t greenOf(Pixel pixel)
{
    return static_cast<std::int32_t>(pixel >> 8 & 0xFF);
}
inline constexpr std::int32_t redOf(Pixel pixel)
{
    return static_cast<std::int32_t>(pixel >> 16 & 0xFF);
}

/// Brightness by the weights of television, green first: the order of single-precision sums decides the last bit.
inline constexpr auto weightedGrey = [](Pixel pixel) {
    float grey = static_cast<float>(greenOf(pixel)) * 0.587f + static_cast<float>(blueOf(pixel)) * 0.114f;
    grey = grey + static_cast<float>(redOf(pixel)) * 0.299f;
    return asGrey(pixel, static_cast<std::int32_t>(grey));
};

inline constexpr auto meanGrey = [](Pixel pixel) {
    const auto sum = static_cast<std::uint32_t>(blueOf(pixel) + greenOf(pixel) + redOf(pixel));
    return asGrey(pixel, static_cast<std::int32_t>(sum / 3));
};

inline constexpr auto inverted = [](Pixel pixel) { return pixel ^ kColourBits; };

/// Subtracts a negative level from a channel: the low 8 bits of the sum; 0 where it leaves 32 bits.
inline constexpr Pixel brightenedChannel(std::int32_t channel, std::int32_t level)
{
    const auto sum = static_cast<std::int32_t>(static_cast<std::uint32_t>(channel) - static_cast<std::uint32_t>(level));
    return static_cast<Pixel>(std::max(sum, 0)) & 0xFF;
}

inline constexpr auto brightened(std::int32_t level)
{
    return [level](Pixel pixel) {
        return (pixel & kAlphaBits) | brightenedChannel(redOf(pixel), level) << 16 |
               brightenedChannel(greenOf(pixel), level) << 8 | brightenedChannel(blueOf(pixel), level);
    };
}

/// Takes the low 0 .. 7 bits from all four bytes.
inline constexpr auto quantized(unsigned bits)
{
    const Pixel byte = 0xFFu >> bits << bits;
    return [mask = byte | byte << 8 | byte << 16 | byte << 24](Pixel pixel) { return pixel & mask; };
}

/// The lowest and highest blue byte; low > high when there are no pixels.
struct ChannelRange
{
    std::int32_t low = 0xFFFFFF;
    std::int32_t high = 0;

    bool isFull() const { return low == 0 && high == 255; }
};

/// The lowest and highest bytes seen, each in its place within a block: bytes take a quarter of the steps that pixels
/// take.
class ByteRanges
{
public:
    ByteRanges()
    {
        m_lows.fill(255);
        m_highs.fill(0);
    }

    template <typename Count>
    void take(const Channel* bytes, Count pixelCount)
    {
        for (std::size_t i = 0; i < 4 * pixelCount; ++i)
            m_lows[i] = smaller(m_lows[i], bytes[i]);
        for (std::size_t i = 0; i < 4 * pixelCount; ++i)
            m_highs[i] = larger(m_highs[i], bytes[i]);
    }

    ChannelRange blue() const
    {
        ChannelRange range;
        for (std::size_t i = 0; i < m_lows.size(); i += 4) {
            range.low = std::min<std::int32_t>(range.low, m_lows[i]);
            range.high = std::max<std::int32_t>(range.high, m_highs[i]);
        }
        return range;
    }

private:
    std::array<Channel, 4 * kBlockPixels> m_lows;
    std::array<Channel, 4 * kBlockPixels> m_highs;
};

template <typename Word>
ChannelRange blueRange(std::span<const Word> pixels)
{
    if (pixels.empty())
        return {};
    ByteRanges ranges;
    const auto take = [&](std::size_t begin, auto count) {
        fetchAhead(pixels.data() + begin);
        ranges.take(reinterpret_cast<const Channel*>(pixels.data() + begin), count);
    };
    for (; pixels.size() >= kFourPages; pixels = pixels.subspan(kFourPages)) {
        forEachBlockOfFourPages(0, take);
        if (ranges.blue().isFull()) // pictures mostly show the full range soon: the rest need not be read
            return ranges.blue();
    }
    forEachBlock(pixels.size(), take);
    return ranges.blue();
}

/// The pixel as the grey (blue - low) * 255 / (high - low), rounded down; low < high.
/// By one product in single precision: a quotient that is no whole number lies at least 1/255 below the next one. Half
/// of that, added, outweighs the product's error of less than 1/10000 and never reaches the next whole number.
inline constexpr auto stretched(ChannelRange range)
{
    const float scale = 255.0f / static_cast<float>(range.high - range.low);
    return [low = range.low, scale](Pixel pixel) {
        const float value = static_cast<float>(blueOf(pixel) - low) * scale + 1.0f / 510;
        return asGrey(pixel, static_cast<std::int32_t>(value));
    };
}

} // namespace vq
