// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Means of boxes that stand beside each other in a row, from the sums of their columns. Standard library only.

#include "VQDraw/image/PixelFormulas.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace vq {

/// Boxes of sides up to 255: a column of 255 bytes sums up within 16 bits, and the whole box within 24, which is all
/// that single precision counts exactly. Until there, a sum of integers equals the sum of the same bytes in single
/// precision, in any order.
struct SmallSums
{
    using Column = std::uint16_t;
    using Window = std::uint32_t;

    static constexpr std::int64_t kMostRadius = 127;

    /// Through signed integers, which processors convert in one step.
    static float inFloat(Window sum) { return static_cast<float>(static_cast<std::int32_t>(sum)); }
};

/// Larger boxes: the exact sum is rounded to single precision once. Here it fits 31 bits.
struct MediumSums
{
    using Column = std::uint32_t;
    using Window = std::uint32_t;

    static constexpr std::int64_t kMostRadius = 1450;

    static float inFloat(Window sum) { return static_cast<float>(static_cast<std::int32_t>(sum)); }
};

/// And here 64 bits.
struct LargeSums
{
    using Column = std::uint64_t;
    using Window = std::uint64_t;

    static constexpr std::int64_t kMostRadius = (1 << 27) - 1;

    static float inFloat(Window sum) { return static_cast<float>(sum); }
};

inline constexpr std::uint64_t mostInColumn(std::int64_t radius)
{
    return 255 * static_cast<std::uint64_t>(2 * radius + 1);
}

inline constexpr std::uint64_t mostInWindow(std::int64_t radius)
{
    return mostInColumn(radius) * static_cast<std::uint64_t>(2 * radius + 1);
}

static_assert(mostInColumn(SmallSums::kMostRadius) <= 0xFFFF);
static_assert(mostInWindow(SmallSums::kMostRadius) < 1 << 24);
static_assert(mostInWindow(SmallSums::kMostRadius + 1) >= 1 << 24);
static_assert(mostInWindow(MediumSums::kMostRadius) <= 0x7FFFFFFF);
static_assert(mostInWindow(LargeSums::kMostRadius) / mostInColumn(LargeSums::kMostRadius) ==
              mostInColumn(LargeSums::kMostRadius) / 255);

/// Writes the mean of `pixelCount` windows and moves the sum of the window on: with each pixel `entering` is added and
/// `leaving` subtracted, four channels at a time. The mean is the sum times `factor`, cut to an integer.
template <typename Sums>
void meansOfRunPortable(const typename Sums::Column* entering, const typename Sums::Column* leaving,
                        std::size_t pixelCount, std::array<typename Sums::Window, 4>& window, float factor,
                        Channel* means)
{
    using Window = typename Sums::Window;
    constexpr std::size_t kBlock = 256;
    std::array<Window, kBlock> steps;
    std::array<Window, kBlock> sums;
    for (std::size_t begin = 0, end = 4 * pixelCount; begin < end; begin += kBlock) {
        const std::size_t count = std::min(end - begin, kBlock);
        for (std::size_t i = 0; i < count; ++i)
            steps[i] = static_cast<Window>(entering[begin + i]) - static_cast<Window>(leaving[begin + i]);
        for (std::size_t i = 0; i < count; i += 4) // only here one pixel waits for the one before
            for (std::size_t channel = 0; channel < 4; ++channel) {
                sums[i + channel] = window[channel];
                window[channel] += steps[i + channel];
            }
        for (std::size_t i = 0; i < count; ++i)
            means[begin + i] = static_cast<Channel>(static_cast<std::int32_t>(Sums::inFloat(sums[i]) * factor));
    }
}

} // namespace vq
