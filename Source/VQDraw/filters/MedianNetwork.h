// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The median of 3 x 3 pixels by minima and maxima alone. Standard library only.

#include "VQDraw/filters/Interior.h"
#include "VQDraw/image/PixelFormulas.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace vq {

inline constexpr auto middle = [](Channel a, Channel b, Channel c) {
    return larger(smaller(a, b), smaller(larger(a, b), c));
};

/// For `filterInterior`: the median of each colour, with red and blue exchanged (deliberately: hosts hold pictures made
/// that way), under the pixel's own alpha.
///
/// Each column of three is sorted once, for the three pixels that it belongs to. The fifth of nine values is the middle
/// one of the largest minimum, the middle of the middles and the smallest maximum: 6 steps a column and 12 a pixel.
class MedianColumns
{
public:
    void take(const Channel* above, const Channel* own, const Channel* below, std::size_t length, std::size_t place)
    {
        Channel* low = m_low.data() + 4 * place;
        Channel* mid = m_mid.data() + 4 * place;
        Channel* high = m_high.data() + 4 * place;
        for (std::size_t i = 0; i < 4 * length; ++i) {
            const Channel lowOfTwo = smaller(above[i], own[i]);
            const Channel highOfTwo = larger(above[i], own[i]);
            const Channel rest = smaller(highOfTwo, below[i]);
            high[i] = larger(highOfTwo, below[i]);
            mid[i] = larger(lowOfTwo, rest);
            low[i] = smaller(lowOfTwo, rest);
        }
    }

    void combine(Channel* results, std::size_t length) const
    {
        const Channel* low = m_low.data();
        const Channel* mid = m_mid.data();
        const Channel* high = m_high.data();
        for (std::size_t i = 0; i < 4 * length; ++i)
            results[i] = middle(larger(larger(low[i], low[i + 4]), low[i + 8]), middle(mid[i], mid[i + 4], mid[i + 8]),
                                smaller(smaller(high[i], high[i + 4]), high[i + 8]));
    }

    void moveLastTwoToFront(std::size_t length)
    {
        for (Bytes* bytes : {&m_low, &m_mid, &m_high})
            std::copy_n(bytes->data() + 4 * length, 8, bytes->data());
    }

    template <typename Word>
    static Word merged(Word own, Word result)
    {
        return (own & kAlphaBits) | (redAndBlueExchanged(result) & kColourBits);
    }

private:
    using Bytes = std::array<Channel, 4 * (kInteriorBlock + 2)>;

    Bytes m_low;
    Bytes m_mid;
    Bytes m_high;
};

} // namespace vq
