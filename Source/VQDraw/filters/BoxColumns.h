// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Means over 3 x 3 pixels from sums of columns. Standard library only.

#include "VQDraw/filters/BoxFormulas.h"
#include "VQDraw/filters/Interior.h"
#include "VQDraw/image/PixelFormulas.h"

namespace vq {

/// For `filterInterior`: the mean of nine pixels under the pixel's own alpha.
class BoxColumns
{
public:
    void take(const Channel* above, const Channel* own, const Channel* below, std::size_t length, std::size_t place)
    {
        std::uint16_t* sums = m_sums.data() + 4 * place;
        for (std::size_t i = 0; i < 4 * length; ++i)
            sums[i] = static_cast<std::uint16_t>(above[i] + own[i] + below[i]);
    }

    void combine(Channel* results, std::size_t length) const
    {
        const std::uint16_t* sums = m_sums.data();
        for (std::size_t i = 0; i < 4 * length; ++i)
            results[i] = ninth(static_cast<std::uint16_t>(sums[i] + sums[i + 4] + sums[i + 8]));
    }

    void moveLastTwoToFront(std::size_t length) { std::copy_n(m_sums.data() + 4 * length, 8, m_sums.data()); }

    template <typename Word>
    static Word merged(Word own, Word result)
    {
        return (own & kAlphaBits) | (result & kColourBits);
    }

private:
    std::array<std::uint16_t, 4 * (kInteriorBlock + 2)> m_sums;
};

} // namespace vq
