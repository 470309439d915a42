// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What a view shows in front of points. Standard library only.

#include <algorithm>
#include <cstddef>
#include <cstdint>

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

    /// The pixels that positions on the screen, y downwards, are in: numbers of the buffer's rows one after the other,
    /// or -1 outside. Apart from what follows, so that it becomes vectors and the buffer is read for many at a time.
    void find(const double* x, const double* y, std::size_t count, double* pixels) const
    {
        const double left = m_left;
        const double bottom = m_bottom;
        const double width = m_width;
        const double height = m_height;
        for (std::size_t i = 0; i < count; ++i) {
            const double right = x[i] - left;
            const double up = bottom - y[i];
            double column = right >= 0 ? right : kOutside; // one after the other: so the compiler makes vectors of it
            column = right < width ? column : kOutside;
            column = up >= 0 ? column : kOutside;
            column = up < height ? column : kOutside;
            const double row = column >= 0 ? up : 0.0;
            const double pixel = static_cast<int>(row) * width + static_cast<int>(column);
            pixels[i] = column >= 0 ? pixel : kOutside;
        }
    }

    /// Whether a pixel is in the viewport and nothing hides a point there at all of the pixels around it.
    bool shows(double pixel, double depth) const
    {
        if (pixel < 0)
            return false;
        const auto index = static_cast<std::int64_t>(pixel);
        return isBefore(index, depth) || isBeforeNeighbour(index, depth);
    }

private:
    static constexpr double kOutside = -1;

    bool isBefore(std::int64_t pixel, double depth) const { return depth <= double{m_depths[pixel]} + m_tolerance; }

    bool isBeforeNeighbour(std::int64_t pixel, double depth) const
    {
        const std::int64_t column = pixel % m_width;
        const std::int64_t row = pixel / m_width;
        const std::int64_t lastColumn = std::min<std::int64_t>(column + 1, m_width - 1);
        const std::int64_t lastRow = std::min<std::int64_t>(row + 1, m_height - 1);
        for (auto y = std::max<std::int64_t>(row - 1, 0); y <= lastRow; ++y)
            for (auto x = std::max<std::int64_t>(column - 1, 0); x <= lastColumn; ++x)
                if (isBefore(y * m_width + x, depth))
                    return true;
        return false;
    }

    const float* m_depths;
    double m_left, m_bottom;
    int m_width, m_height;
    double m_tolerance;
};

} // namespace vq
