// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Shapes as straight edges, in pixels, with the centres of pixels at whole numbers.

#include <cmath>
#include <cstddef>
#include <span>
#include <vector>

namespace vq::gdiplus {

struct PointD
{
    double x;
    double y;

    friend constexpr bool operator==(const PointD&, const PointD&) = default;
    friend constexpr PointD operator+(PointD a, PointD b) { return {a.x + b.x, a.y + b.y}; }
    friend constexpr PointD operator-(PointD a, PointD b) { return {a.x - b.x, a.y - b.y}; }
    friend constexpr PointD operator*(PointD a, double factor) { return {a.x * factor, a.y * factor}; }
};

inline double lengthOf(PointD vector)
{
    return std::sqrt(vector.x * vector.x + vector.y * vector.y);
}

/// A rectangle of the plane; empty when an edge is beyond its opposite.
struct Bounds
{
    double left;
    double top;
    double right;
    double bottom;

    constexpr Bounds grownBy(double distance) const
    {
        return {left - distance, top - distance, right + distance, bottom + distance};
    }
    constexpr bool overlaps(const Bounds& other) const
    {
        return left <= other.right && other.left <= right && top <= other.bottom && other.top <= bottom;
    }
};

/// Figures of points joined by straight edges. Cleared and filled again it takes no memory.
class Polylines
{
public:
    struct Figure
    {
        std::size_t first;
        std::size_t end;
        bool closed;  ///< an edge leads from the last point to the first
        bool atStart; ///< begins where the line that it was cut from begins
        bool atEnd;   ///< ends where that line ends
    };

    void clear()
    {
        m_points.clear();
        m_figures.clear();
    }
    bool empty() const { return m_figures.empty(); }

    /// Points up to `endFigure` belong to one figure.
    void add(PointD point) { m_points.push_back(point); }
    void endFigure(bool closed, bool atStart = true, bool atEnd = true);

    /// The points of the figure that is not ended yet.
    std::size_t openCount() const { return m_points.size() - firstOpen(); }
    PointD last() const { return m_points.back(); }

    std::span<const Figure> figures() const { return m_figures; }
    std::span<const PointD> points(const Figure& figure) const
    {
        return std::span(m_points).subspan(figure.first, figure.end - figure.first);
    }

    /// The smallest rectangle around all points, which are at least one.
    Bounds bounds() const;
    /// Whether every coordinate is a number.
    bool finite() const;

    Polylines movedBy(PointD distance) const;

private:
    std::size_t firstOpen() const { return m_figures.empty() ? 0 : m_figures.back().end; }

    std::vector<PointD> m_points;
    std::vector<Figure> m_figures;
};

} // namespace vq::gdiplus
