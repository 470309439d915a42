// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What a view shows in front of points. Standard library only.

#include "vqSelection/outline/Outline.h"

#include <algorithm>
#include <cmath>
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

    /// Pixels of the viewport; counted from the left and from below.
    struct Region
    {
        int column, row, columns, rows;

        double pixels() const { return static_cast<double>(columns) * rows; }
    };

    /// Those that an area of the screen touches, and one more on every side, since what ends an area may be rounded.
    Region regionOf(const Area& area) const;

    /// From here on `find` and `shows` may be called: the farthest of the 3 x 3 pixels around each is sought once.
    /// @return false, and nothing has changed, where numbers of pixels would not fit in 32 bits.
    bool mapFarthest(const Region& region);

    /// The pixels that positions on the screen, y downwards, are in. What is outside the region, or no number, is in
    /// one of the pixels around it.
    void find(const double* x, const double* y, std::size_t count, std::int32_t* pixels) const;

    /// Whether nothing hides a point at all of the pixels around it. Outside the region everything is hidden.
    bool shows(std::int32_t pixel, double depth) const
    {
        return depth <= double{m_farthest[static_cast<std::size_t>(pixel)]} + m_tolerance;
    }

    /// The same, without the map, for a position. Outside the viewport everything is hidden.
    bool shows(double x, double y, double depth) const;

private:
    static constexpr float kNearest = -std::numeric_limits<float>::infinity();

    /// What is no number is never the farther one.
    static float farther(float depth, float other) { return other > depth ? other : depth; }

    const float* m_depths;
    double m_left, m_bottom;
    int m_width, m_height;
    double m_tolerance;
    Region m_region{};             // of the map
    std::vector<float> m_farthest; // with a pixel more on every side
};

inline DepthBuffer::Region DepthBuffer::regionOf(const Area& area) const
{
    const auto within = [](double place, int size) {
        return static_cast<int>(std::clamp(place, 0.0, static_cast<double>(size)));
    };
    const int column = within(std::floor(area.left - m_left) - 1, m_width);
    const int row = within(std::floor(m_bottom - area.bottom) - 1, m_height);
    const int endColumn = within(std::floor(area.right - m_left) + 2, m_width);
    const int endRow = within(std::floor(m_bottom - area.top) + 2, m_height);
    return {column, row, endColumn - column, endRow - row};
}

inline bool DepthBuffer::mapFarthest(const Region& region)
{
    const auto width = static_cast<std::size_t>(region.columns);
    const std::size_t stride = width + 2;
    const std::size_t pixels = stride * (static_cast<std::size_t>(region.rows) + 2);
    if (pixels > std::numeric_limits<std::int32_t>::max())
        return false;
    m_region = region;
    m_farthest.assign(pixels, kNearest);
    std::vector<float> column(stride, kNearest);         // the farthest of three rows, and nothing beyond the viewport
    const std::size_t first = region.column > 0 ? 0 : 1; // neighbours beyond the region count
    const std::size_t end = region.column + region.columns < m_width ? stride : stride - 1;
    for (int row = 0; row < region.rows; ++row) {
        const int fromBelow = region.row + row;
        const float* middle = m_depths + std::ptrdiff_t{fromBelow} * m_width + region.column;
        const float* below = fromBelow > 0 ? middle - m_width : middle;
        const float* above = fromBelow < m_height - 1 ? middle + m_width : middle;
        for (std::size_t x = first; x < end; ++x) {
            const std::ptrdiff_t pixel = static_cast<std::ptrdiff_t>(x) - 1;
            column[x] = farther(farther(farther(kNearest, below[pixel]), middle[pixel]), above[pixel]);
        }
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
    const double firstColumn = m_region.column;
    const double firstRow = m_region.row;
    const double lastColumn = m_region.columns + 1.0;
    const double lastRow = m_region.rows + 1.0;
    const std::int32_t stride = m_region.columns + 2;
    for (std::size_t i = 0; i < count; ++i) {
        double column = x[i] - left;
        double row = bottom - y[i];
        column = column >= 0 ? column + 1 : 0; // also what is no number
        row = row >= 0 ? row + 1 : 0;
        column = column > firstColumn ? column - firstColumn : 0; // last, so that no region rounds otherwise
        row = row > firstRow ? row - firstRow : 0;
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
