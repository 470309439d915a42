// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/raster/Polylines.h"

#include <array>

namespace vq::gdiplus {

/// A small convex shape and what half-planes along the axes leave of it.
class ConvexPolygon
{
public:
    explicit ConvexPolygon(const std::array<PointD, 4>& corners) : m_count(corners.size())
    {
        for (std::size_t i = 0; i < corners.size(); ++i)
            m_points[i] = corners[i];
    }

    bool empty() const { return m_count < 3; }

    /// What lies at low <= x <= high, and at low <= y <= high.
    ConvexPolygon betweenColumns(double low, double high) const
    {
        return cut<&PointD::x>(low, 1).template cut<&PointD::x>(-high, -1);
    }
    ConvexPolygon betweenRows(double low, double high) const
    {
        return cut<&PointD::y>(low, 1).template cut<&PointD::y>(-high, -1);
    }

    double area() const
    {
        double twice = 0;
        for (std::size_t i = 0; i < m_count; ++i) {
            const PointD& a = m_points[i];
            const PointD& b = m_points[i + 1 == m_count ? 0 : i + 1];
            twice += (a.x - m_points[0].x) * (b.y - m_points[0].y) - (b.x - m_points[0].x) * (a.y - m_points[0].y);
        }
        return std::abs(twice) / 2;
    }

private:
    ConvexPolygon() = default;

    /// Each of four cuts adds a corner at most; one has room for two to come.
    static constexpr std::size_t kMostPoints = 10;

    /// Keeps the points whose coordinate, times `sign`, is `bound` at least.
    template <double PointD::*coordinate>
    ConvexPolygon cut(double bound, double sign) const
    {
        ConvexPolygon rest;
        const auto add = [&](PointD point) { rest.m_points[rest.m_count++] = point; };
        for (std::size_t i = 0; i < m_count && rest.m_count + 2 <= kMostPoints; ++i) {
            const PointD& a = m_points[i];
            const PointD& b = m_points[i + 1 == m_count ? 0 : i + 1];
            const double insideA = a.*coordinate * sign - bound;
            const double insideB = b.*coordinate * sign - bound;
            if (insideA >= 0)
                add(a);
            if ((insideA >= 0) != (insideB >= 0))
                add(a + (b - a) * (insideA / (insideA - insideB)));
        }
        return rest;
    }

    std::array<PointD, kMostPoints> m_points;
    std::size_t m_count = 0;
};

} // namespace vq::gdiplus
