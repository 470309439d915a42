// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Points of a scene brought to the screen, many at a time. Standard library only.

#include <cmath>
#include <cstddef>
#include <limits>

namespace vq {

/// Where a point is on the screen: y downwards, depth from 0 to 1.
struct ScreenPoint
{
    double x, y, depth;
};

/// Positions of some points on the screen, coordinate by coordinate. x and y of what cannot be selected are no numbers.
struct PointBlock
{
    static constexpr std::size_t kSize = 512;

    double x[kSize];
    double y[kSize];
    double depth[kSize];
};

/// Model-view matrix, projection and viewport in one: rows that give x, y and depth, each times w, and w.
class Projection
{
public:
    /// Matrices column by column; viewport x, y, width, height.
    Projection(const double (&modelView)[16], const double (&projection)[16], const int (&viewport)[4])
    {
        double clip[4][4];
        for (int row = 0; row < 4; ++row)
            for (int column = 0; column < 4; ++column)
                clip[row][column] = element(projection, modelView, row, column);
        const double halfWidth = viewport[2] * 0.5;
        const double halfHeight = viewport[3] * 0.5;
        for (int column = 0; column < 4; ++column) {
            const double w = clip[3][column];
            m_x[column] = clip[0][column] * halfWidth + w * (halfWidth + viewport[0]);
            m_y[column] = w * (halfHeight - viewport[1]) - clip[1][column] * halfHeight; // downwards
            m_depth[column] = (clip[2][column] + w) * 0.5;
            m_w[column] = w;
        }
    }

    /// @return false for what is at or behind the eye or not finite.
    bool project(const float* point, ScreenPoint& place) const
    {
        const double x = point[0];
        const double y = point[1];
        const double z = point[2];
        const double w = along(m_w, x, y, z);
        if (!(w > 0))
            return false;
        place = placeOf(x, y, z, w);
        return std::isfinite(place.x) && std::isfinite(place.y) && std::isfinite(place.depth);
    }

    /// At most `PointBlock::kSize` points. What cannot be selected is at or behind the eye, before the near or behind
    /// the far plane, or not finite.
    void project(const float* points, std::size_t count, PointBlock& block) const;

private:
    using Row = double[4];

    static double element(const double (&left)[16], const double (&right)[16], int row, int column)
    {
        double sum = 0;
        for (int i = 0; i < 4; ++i)
            sum += left[i * 4 + row] * right[column * 4 + i];
        return sum;
    }

    static double along(const Row& row, double x, double y, double z)
    {
        return row[0] * x + row[1] * y + row[2] * z + row[3];
    }

    ScreenPoint placeOf(double x, double y, double z, double w) const
    {
        const double scale = 1 / w;
        return {along(m_x, x, y, z) * scale, along(m_y, x, y, z) * scale, along(m_depth, x, y, z) * scale};
    }

    Row m_x, m_y, m_depth, m_w;
};

inline void Projection::project(const float* points, std::size_t count, PointBlock& block) const
{
    constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();
    for (std::size_t i = 0; i < count; ++i) {
        block.x[i] = points[3 * i];
        block.y[i] = points[3 * i + 1];
        block.depth[i] = points[3 * i + 2];
    }
    const Projection rows = *this; // a copy that nobody else can change: the loop keeps it in registers
    for (std::size_t i = 0; i < count; ++i) {
        const double x = block.x[i];
        const double y = block.y[i];
        const double z = block.depth[i];
        const double w = along(rows.m_w, x, y, z);
        const ScreenPoint place = rows.placeOf(x, y, z, w);
        double seen = w > 0 ? 0.0 : kNowhere; // one after the other: so the compiler makes vectors of it
        seen = place.depth >= 0 ? seen : kNowhere;
        seen = place.depth <= 1 ? seen : kNowhere;
        block.x[i] = place.x + seen;
        block.y[i] = place.y + seen;
        block.depth[i] = place.depth;
    }
}

} // namespace vq
