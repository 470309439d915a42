// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The edges of one channel as a grey picture. Standard library only.

#include "VQDraw/image/PixelFormulas.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace vq {

/// How far a pixel stands out from its eight neighbours: 8 * own - sum of the neighbours is 9 * own - sum of all nine,
/// within -2040 .. 2040. An eighth of that, rounded down, is brought to a byte whose middle is 127. Sixteen bits at
/// every step, for as many pixels at once.
inline constexpr auto edge = [](Channel own, std::int16_t sumOfNine) {
    const auto height = static_cast<std::int16_t>(9 * own - sumOfNine);
    const auto eighth = static_cast<std::int16_t>(height >> 3);
    return static_cast<Channel>(static_cast<std::int16_t>(eighth + 255) >> 1);
};

static_assert(edge(255, 255) == 255 && edge(0, 2040) == 0 && edge(77, 9 * 77) == 127);

/// All four channels alike.
template <typename Pixel>
constexpr Pixel grey(Channel value)
{
    const auto pair = static_cast<Pixel>(value | static_cast<Pixel>(value) << 8);
    return pair | pair << 16;
}

/// A row of edges from three rows of a channel, each with a margin of 1.
template <typename Pixel>
void edgeRow(const Channel* above, const Channel* own, const Channel* below, std::size_t count, Pixel* result)
{
    constexpr std::size_t kBlock = 256;
    std::array<std::int16_t, kBlock + 2> sums;
    std::array<Channel, kBlock> edges;
    for (std::size_t begin = 0; begin < count; begin += kBlock) {
        const std::size_t length = std::min(count - begin, kBlock);
        for (std::size_t i = 0; i < length + 2; ++i)
            sums[i] = static_cast<std::int16_t>(above[begin + i] + own[begin + i] + below[begin + i]);
        for (std::size_t i = 0; i < length; ++i)
            edges[i] = edge(own[begin + i + 1], static_cast<std::int16_t>(sums[i] + sums[i + 1] + sums[i + 2]));
        for (std::size_t i = 0; i < length; ++i)
            result[begin + i] = grey<Pixel>(edges[i]);
    }
}

} // namespace vq
