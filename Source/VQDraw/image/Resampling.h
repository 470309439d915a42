// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Nearest-pixel resampling by accumulated steps. Standard library only.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace vq {

/// The old indices that the positions 0, 1, 2 ... of a resized row or column take: the whole part of a coordinate that
/// starts at 0 and grows by oldSize / newSize. Step and sum are single precision, so the error adds up along the way,
/// deliberately: hosts hold pictures made that way. What is pushed past the old size takes the last index.
class NearestSteps
{
public:
    NearestSteps(std::int32_t oldSize, std::int32_t newSize)
        : m_step(static_cast<float>(oldSize) / static_cast<float>(newSize)), m_last(std::int64_t{oldSize} - 1)
    {
    }

    std::int32_t next()
    {
        const auto index = static_cast<std::int64_t>(m_coordinate);
        m_coordinate += m_step;
        return static_cast<std::int32_t>(std::min(index, m_last));
    }

private:
    float m_step;
    std::int64_t m_last;
    float m_coordinate = 0;
};

/// to[i] = from[indices[i]].
template <typename Pixel>
void gather(std::span<Pixel> to, const std::int32_t* indices, const Pixel* from)
{
    for (std::size_t i = 0; i < to.size(); ++i)
        to[i] = from[indices[i]];
}

} // namespace vq
