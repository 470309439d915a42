// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Means of small boxes, and Smooth2x2. Standard library only.

#include "VQDraw/image/PixelFormulas.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace vq {

/// The whole part of sum / 4.
inline constexpr auto fourth = [](std::uint16_t sum) { return static_cast<Channel>(sum >> 2); };

/// The whole part of sum / 9, for sums of nine bytes.
inline constexpr auto ninth = [](std::uint16_t sum) { return static_cast<Channel>(std::uint32_t{sum} * 7282 >> 16); };

/// The whole part of sum / 25, for sums of twenty-five bytes.
inline constexpr auto twentyFifth = [](std::uint16_t sum) {
    return static_cast<Channel>(static_cast<std::uint16_t>(std::uint32_t{sum} * 20972 >> 16) >> 3);
};

/// Whether `quotient` is the whole part of sum / divisor for every sum of `divisor` bytes.
template <typename Quotient>
consteval bool divides(Quotient quotient, unsigned divisor)
{
    for (unsigned sum = 0; sum <= 255 * divisor; ++sum)
        if (quotient(static_cast<std::uint16_t>(sum)) != sum / divisor)
            return false;
    return true;
}

static_assert(divides(fourth, 4));
static_assert(divides(ninth, 9));
static_assert(divides(twentyFifth, 25));

/// Every byte from `first` up to but excluding `end` becomes the mean of itself, the one four before it, and the two
/// that stand `stride` bytes before those; all four as they were. 4 + stride <= first.
inline void smoothBackwards(Channel* bytes, std::size_t first, std::size_t end, std::size_t stride)
{
    constexpr std::size_t kBlock = 1024;
    std::array<std::uint16_t, kBlock + 4> pairs;
    while (first < end) {
        const std::size_t count = std::min(end - first, kBlock);
        end -= count;
        const Channel* lower = bytes + end - 4;
        const Channel* upper = lower - stride;
        for (std::size_t i = 0; i < count + 4; ++i)
            pairs[i] = static_cast<std::uint16_t>(lower[i] + upper[i]);
        for (std::size_t i = 0; i < count; ++i)
            bytes[end + i] = fourth(static_cast<std::uint16_t>(pairs[i] + pairs[i + 4]));
    }
}

} // namespace vq
