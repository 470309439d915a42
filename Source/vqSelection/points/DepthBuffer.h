// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What a view shows in front of points. Standard library only.

#include <algorithm>
#include <cstddef>

namespace vq {

class DepthBuffer
{
public:
    /// @param depths a row after the other from the bottom up, as large as the viewport (x, y, width, height)
    DepthBuffer(const float* depths, const int (&viewport)[4], double tolerance)
        : m_depths(depths), m_left(viewport[0]), m_bottom(static_cast<double>(viewport[3]) - viewport[1]),
          m_width(viewport[2]), m_height(viewport[3]), m_tolerance(tolerance)
    {
    }

    /// Whether a position on the screen, y downwards, lies in the viewport and nothing hides it at all of the pixels
    /// around it.
    bool shows(double x, double y, double depth) const
    {
        const double right = x - m_left;
        const double up = m_bottom - y;
        if (!(right >= 0 && right < m_width && up >= 0 && up < m_height))
            return false;
        const auto column = static_cast<int>(right);
        const auto row = static_cast<int>(up);
        return isBefore(column, row, depth) || isBeforeNeighbour(column, row, depth);
    }

private:
    bool isBefore(int column, int row, double depth) const
    {
        return depth <= double{m_depths[std::ptrdiff_t{row} * m_width + column]} + m_tolerance;
    }

    bool isBeforeNeighbour(int column, int row, double depth) const
    {
        for (auto y = std::max(row - 1, 0); y <= std::min(row + 1, m_height - 1); ++y)
            for (auto x = std::max(column - 1, 0); x <= std::min(column + 1, m_width - 1); ++x)
                if (isBefore(x, y, depth))
                    return true;
        return false;
    }

    const float* m_depths;
    double m_left, m_bottom;
    int m_width, m_height;
    double m_tolerance;
};

} // namespace vq
