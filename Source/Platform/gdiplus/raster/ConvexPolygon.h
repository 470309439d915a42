// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/raster/Polylines.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vq::gdiplus {

/// A small convex shape that is cut along the axes, piece by piece.
class ConvexPolygon
{
public:
    explicit ConvexPolygon(const std::array<PointD, 4>& corners)
    {
        for (const PointD& corner : corners)
            add(corner);
    }

    bool empty() const { return m_count < 3; }

    /// The least and the largest y; of a shape that is not empty.
    std::pair<double, double> rows() const
    {
        double least = m_points[0].y;
        double most = least;
        for (std::size_t i = 1; i < m_count; ++i) {
            least = std::min(least, m_points[i].y);
            most = std::max(most, m_points[i].y);
        }
        return {least, most};
    }

    /// Takes away, and gives, what lies at x <= bound, and at y <= bound.
    ConvexPolygon takeColumnsUpTo(double bound) { return take<&PointD::x>(bound); }
    ConvexPolygon takeRowsUpTo(double bound) { return take<&PointD::y>(bound); }

    double area() const
    {
        double twice = 0;
        for (std::size_t i = 2; i < m_count; ++i) {
            const PointD a = m_points[i - 1] - m_points[0];
            const PointD b = m_points[i] - m_points[0];
            twice += a.x * b.y - b.x * a.y;
        }
        return std::abs(twice) / 2;
    }

private:
    ConvexPolygon() {} // not `= default`, which would set all points to zero

    /// Of parallel cuts each but the first replaces the two corners of the one before: four corners become six by
    /// columns and eight by rows.
    static constexpr std::size_t kMostPoints = 10;

    void add(PointD point)
    {
        if (m_count < kMostPoints)
            m_points[m_count++] = point;
    }

    template <double PointD::*coordinate>
    ConvexPolygon take(double bound)
    {
        ConvexPolygon taken;
        ConvexPolygon rest;
        for (std::size_t i = 0; i < m_count; ++i) {
            const PointD& a = m_points[i];
            const PointD& b = m_points[i + 1 == m_count ? 0 : i + 1];
            const double beyondA = a.*coordinate - bound;
            const double beyondB = b.*coordinate - bound;
            if (beyondA <= 0)
                taken.add(a);
            if (beyondA >= 0)
                rest.add(a);
            if ((beyondA < 0 && beyondB > 0) || (beyondA > 0 && beyondB < 0)) {
                const PointD between = a + (b - a) * (beyondA / (beyondA - beyondB));
                taken.add(between);
                rest.add(between);
            }
        }
        *this = rest;
        return taken;
    }

    std::array<PointD, kMostPoints> m_points;
    std::size_t m_count = 0;
};

} // namespace vq::gdiplus
