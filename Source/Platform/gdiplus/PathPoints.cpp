// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/PathPoints.h"

#include <algorithm>
#include <numbers>

namespace vq::gdiplus {
namespace {

using Gdiplus::PathPointTypeBezier;
using Gdiplus::PathPointTypeCloseSubpath;
using Gdiplus::PathPointTypeLine;
using Gdiplus::PathPointTypePathTypeMask;
using Gdiplus::PathPointTypeStart;
using Gdiplus::PointF;

BYTE kindOf(BYTE type)
{
    return static_cast<BYTE>(type & PathPointTypePathTypeMask);
}

PointF pointF(double x, double y)
{
    return PointF(static_cast<Gdiplus::REAL>(x), static_cast<Gdiplus::REAL>(y));
}

/// The angle of the circle that an ellipse is stretched from, for an angle seen on the ellipse.
double onCircle(double degrees, double radiusX, double radiusY)
{
    const double radians = degrees * std::numbers::pi / 180;
    const double quarter = std::remainder(degrees, 90);
    if (std::abs(quarter) < 1e-9)
        return radians;
    const double stretched = std::atan2(std::sin(radians) / radiusY, std::cos(radians) / radiusX);
    return stretched + std::round((radians - stretched) / (2 * std::numbers::pi)) * 2 * std::numbers::pi;
}

/// The arc of an ellipse, one curve for each quarter that is begun.
struct Arc
{
    double centreX, centreY, radiusX, radiusY;

    explicit Arc(const Gdiplus::RectF& box)
        : centreX(box.X + box.Width / 2.0), centreY(box.Y + box.Height / 2.0), radiusX(box.Width / 2.0),
          radiusY(box.Height / 2.0)
    {
    }

    /// A point of the circle, and beside it along the tangent by `along` radii.
    PointF at(double angle, double along = 0) const
    {
        return pointF(centreX + radiusX * (std::cos(angle) - along * std::sin(angle)),
                      centreY + radiusY * (std::sin(angle) + along * std::cos(angle)));
    }

    /// Calls `curve(control, control, end)` for each piece, and before them `first(point)`.
    template <typename First, typename Curve>
    void forEachCurve(double startDegrees, double sweepDegrees, First first, Curve curve) const
    {
        const double sweep = std::clamp(sweepDegrees, -360.0, 360.0);
        const int pieces = std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / 90)));
        const double quarter = sweep < 0 ? -90.0 : 90.0;
        double from = onCircle(startDegrees, radiusX, radiusY);
        first(at(from));
        for (int i = 1; i <= pieces; ++i) {
            const double to = onCircle(startDegrees + (i == pieces ? sweep : i * quarter), radiusX, radiusY);
            const double along = 4.0 / 3.0 * std::tan((to - from) / 4);
            curve(at(from, along), at(to, -along), at(to));
            from = to;
        }
    }
};

} // namespace

void PathPoints::clear()
{
    m_points.clear();
    m_types.clear();
    m_startsFigure = true;
}

bool PathPoints::assign(std::span<const PointF> points, std::span<const BYTE> types)
{
    for (std::size_t i = 0; i < types.size(); ++i) {
        const BYTE kind = kindOf(types[i]);
        if (kind == PathPointTypeBezier) { // three in a row, after a point
            const auto isBezier = [&](std::size_t k) {
                return k < types.size() && kindOf(types[k]) == PathPointTypeBezier;
            };
            if (i == 0 || !isBezier(i + 1) || !isBezier(i + 2))
                return false;
            i += 2;
        } else if (kind > PathPointTypeLine || (i == 0 && kind != PathPointTypeStart)) {
            return false;
        }
    }
    m_points.assign(points.begin(), points.end());
    m_types.assign(types.begin(), types.end());
    m_startsFigure = m_types.empty() || (m_types.back() & PathPointTypeCloseSubpath) != 0;
    return true;
}

void PathPoints::closeFigure()
{
    if (!m_types.empty())
        m_types.back() |= PathPointTypeCloseSubpath;
    m_startsFigure = true;
}

void PathPoints::closeAllFigures()
{
    for (std::size_t i = 1; i < m_types.size(); ++i)
        if (m_types[i] == PathPointTypeStart)
            m_types[i - 1] |= PathPointTypeCloseSubpath;
    closeFigure();
}

void PathPoints::append(const PointF& point, BYTE type)
{
    m_points.push_back(point);
    m_types.push_back(type);
}

/// The first point of an addition: an edge leads to it when a figure is open, unless that has come there already.
void PathPoints::appendFirst(const PointF& point)
{
    if (m_startsFigure || !m_points.back().Equals(point))
        append(point, m_startsFigure ? PathPointTypeStart : PathPointTypeLine);
    m_startsFigure = false;
}

void PathPoints::addArc(const Gdiplus::RectF& box, float startAngle, float sweepAngle)
{
    Arc(box).forEachCurve(
        startAngle, sweepAngle, [this](const PointF& point) { appendFirst(point); },
        [this](const PointF& a, const PointF& b, const PointF& end) {
            append(a, PathPointTypeBezier);
            append(b, PathPointTypeBezier);
            append(end, PathPointTypeBezier);
        });
}

void PathPoints::addRectangle(const Gdiplus::RectF& rectangle)
{
    const float right = rectangle.X + rectangle.Width;
    const float bottom = rectangle.Y + rectangle.Height;
    const std::array corners{PointF(rectangle.X, rectangle.Y), PointF(right, rectangle.Y), PointF(right, bottom),
                             PointF(rectangle.X, bottom)};
    addPolygon(std::span<const PointF>(corners));
}

void PathPoints::addEllipse(const Gdiplus::RectF& box)
{
    startFigure();
    addArc(box, 0, 360);
    closeFigure();
}

void PathPoints::addPie(const Gdiplus::RectF& box, float startAngle, float sweepAngle)
{
    startFigure();
    appendFirst(pointF(box.X + box.Width / 2.0, box.Y + box.Height / 2.0));
    addArc(box, startAngle, sweepAngle);
    closeFigure();
}

void PathPoints::add(const PathPoints& path, bool connect)
{
    if (path.empty())
        return;
    const std::size_t first = m_points.size();
    const std::size_t count = path.m_points.size(); // which may be this path's own
    m_points.reserve(first + count);
    m_types.reserve(first + count);
    for (std::size_t i = 0; i < count; ++i)
        append(path.m_points[i], path.m_types[i]);
    if (connect && !m_startsFigure)
        m_types[first] = PathPointTypeLine;
    m_startsFigure = path.m_startsFigure;
}

void PathPoints::flatten(const ToPixels& toPixels, CurvePrecision precision, Polylines& polylines) const
{
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        const BYTE kind = kindOf(m_types[i]);
        if (kind == PathPointTypeStart)
            polylines.endFigure(false);
        if (kind == PathPointTypeBezier) {
            const Bezier curve{polylines.last(), toPixels(m_points[i]), toPixels(m_points[i + 1]),
                               toPixels(m_points[i + 2])};
            addBezier(polylines, curve, precision);
            i += 2;
        } else {
            polylines.add(toPixels(m_points[i]));
        }
        if ((m_types[i] & PathPointTypeCloseSubpath) != 0)
            polylines.endFigure(true);
    }
    polylines.endFigure(false);
}

} // namespace vq::gdiplus
