// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Softening of a mask's edge. Standard library only.

#include "VQDraw/filters/BoxFormulas.h"
#include "VQDraw/image/PixelFormulas.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace vq {

/// The solid side keeps its edge.
inline constexpr auto softened = [](Channel own, Channel mean) { return own > 100 ? own : mean; };

/// Replaces alpha in a row. `own` is what it was, `sums` has the sums of five rows for `count` + 4 columns, of which
/// the first and the last two stand beside the row.
template <typename Pixel>
void softenRow(Pixel* row, const Channel* own, const std::uint16_t* sums, std::size_t count)
{
    constexpr std::size_t kBlock = 256;
    std::array<Channel, kBlock> alpha;
    for (std::size_t begin = 0; begin < count; begin += kBlock) {
        const std::size_t length = std::min(count - begin, kBlock);
        const std::uint16_t* sum = sums + begin;
        for (std::size_t i = 0; i < length; ++i) {
            const auto sumOfBox =
                static_cast<std::uint16_t>(sum[i] + sum[i + 1] + sum[i + 2] + sum[i + 3] + sum[i + 4]);
            alpha[i] = softened(own[begin + i], twentyFifth(sumOfBox));
        }
        for (std::size_t i = 0; i < length; ++i)
            row[begin + i] = withAlpha(row[begin + i], alpha[i]);
    }
}

} // namespace vq
