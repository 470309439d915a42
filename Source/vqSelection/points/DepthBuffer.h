// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What a view shows in front of points. Standard library only.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace vq {

/// Depths a row after the other from the bottom up, as large as the viewport, neither side of which is 0.
class DepthBuffer
{
public:
    /// @param viewport x, y, width, height
    DepthBuffer(const float* depths, const int (&viewport)[4], double tolerance)
        : m_depths(depths), m_left(viewport[0]), m_bottom(static_cast<double>(viewport[3]) - viewport[1]),
          m_width(viewport[2]), m_height(viewport[3]), m_tolerance(tolerance)
    {
    }

    /// From here on `find` and `shows` may be called: the farthest of the 3 x 3 pixels around each is sought once.
    /// @return false, and nothing has changed, where numbers of pixels would not fit in 32 bits.
    bool mapFarthest();

    /// The pixels that positions on the screen, y downwards, are in. What is outside the viewport, or no number, is in
    /// one of the pixels around it.
    void find(const double* x, const double* y, std::size_t count, std::int32_t* pixels) const;

    /// Whether nothing hides a point at all of the pixels around it. Outside the viewport everything is hidden.
    bool shows(std::int32_t pixel, double depth) const
    {
        return depth <= double{m_farthest[static_cast<std::size_t>(pixel)]} + m_tolerance;
    }

    /// The same, without the map, for a position.
    bool shows(double x, double y, double depth) const;

private:
    static constexpr float kNearest = -std::numeric_limits<float>::infinity();

    /// What is no number is never the farther one.
    static float farther(float depth, float other) { return other > depth ? other : depth; }

    const float* m_depths;
    double m_left, m_bottom;
    int m_width, m_height;
    double m_tolerance;
    std::vector<float> m_farthest; // with a pixel more on every side
};

inline bool DepthBuffer::mapFarthest()
{
    const auto width = static_cast<std::size_t>(m_width);
    const std::size_t stride = width + 2;
    const std::size_t pixels = stride * (static_cast<std::size_t>(m_height) + 2);
    if (pixels > std::numeric_limits<std::int32_t>::max())
        return false;
    m_farthest.assign(pixels, kNearest);
    std::vector<float> column(stride, kNearest); // the farthest of three rows, and nothing at either end
    for (int row = 0; row < m_height; ++row) {
        const float* middle = m_depths + std::ptrdiff_t{row} * m_width;
        const float* below = row > 0 ? middle - m_width : middle;
        const float* above = row < m_height - 1 ? middle + m_width : middle;
        for (std::size_t x = 0; x < width; ++x)
            column[x + 1] = farther(farther(farther(kNearest, below[x]), middle[x]), above[x]);
        float* target = &m_farthest[(static_cast<std::size_t>(row) + 1) * stride + 1];
        for (std::size_t x = 0; x < width; ++x)
            target[x] = farther(farther(column[x], column[x + 1]), column[x + 2]);
    }
    return true;
}

inline void DepthBuffer::find(const double* x, const double* y, std::size_t count, std::int32_t* pixels) const
{
    const double left = m_left;
    const double bottom = m_bottom;
    const double lastColumn = m_width + 1.0;
    const double lastRow = m_height + 1.0;
    const std::int32_t stride = m_width + 2;
    for (std::size_t i = 0; i < count; ++i) {
        double column = x[i] - left;
        double row = bottom - y[i];
        column = column >= 0 ? column + 1 : 0; // also what is no number
        row = row >= 0 ? row + 1 : 0;
        column = column < lastColumn ? column : lastColumn;
        row = row < lastRow ? row : lastRow;
        pixels[i] = static_cast<std::int32_t>(row) * stride + static_cast<std::int32_t>(column);
    }
}

inline bool DepthBuffer::shows(double x, double y, double depth) const
{
    const double right = x - m_left;
    const double up = m_bottom - y;
    if (!(right >= 0 && right < m_width && up >= 0 && up < m_height))
        return false;
    const int column = static_cast<int>(right);
    const int row = static_cast<int>(up);
    float farthest = kNearest;
    for (int i = std::max(row - 1, 0); i <= row + (row < m_height - 1 ? 1 : 0); ++i)
        for (int j = std::max(column - 1, 0); j <= column + (column < m_width - 1 ? 1 : 0); ++j)
            farthest = farther(farthest, m_depths[std::ptrdiff_t{i} * m_width + j]);
    return depth <= double{farthest} + m_tolerance;
}

} // namespace vq
