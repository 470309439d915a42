// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/Conversions.h"
#include "Platform/gdiplus/Enums.h"
#include "Platform/gdiplus/raster/Flatten.h"

#include <span>
#include <vector>

namespace vq::gdiplus {

/// From world units to pixels with whole centres.
struct ToPixels
{
    double across = 1;
    double down = 1;
    double offset = 0;

    PointD operator()(const Gdiplus::PointF& point) const
    {
        return {static_cast<double>(point.X) * across + offset, static_cast<double>(point.Y) * down + offset};
    }
};

/// Whether a box is one that arcs, pies and rectangles can be added in.
inline bool hasArea(const Gdiplus::RectF& box)
{
    return box.Width > 0 && box.Height > 0;
}

/// Points and what each of them is, as GDI+ keeps a path. What is added joins the figure that is open, if one is.
class PathPoints
{
public:
    std::span<const Gdiplus::PointF> points() const { return m_points; }
    std::span<const BYTE> types() const { return m_types; }
    bool empty() const { return m_points.empty(); }

    void clear();
    /// Takes points of a path; false, and nothing is changed, when their types make no figures.
    bool assign(std::span<const Gdiplus::PointF> points, std::span<const BYTE> types);

    /// What comes next begins a figure of its own.
    void startFigure() { m_startsFigure = true; }
    void closeFigure();
    void closeAllFigures();

    template <typename PointType>
    void addLines(std::span<const PointType> points)
    {
        append(points, Gdiplus::PathPointTypeLine);
    }
    /// 1 + 3 n points.
    template <typename PointType>
    void addBeziers(std::span<const PointType> points)
    {
        append(points, Gdiplus::PathPointTypeBezier);
    }
    /// Degrees, clockwise on the screen from the right; a turn at most. Width and height are above 0.
    void addArc(const Gdiplus::RectF& box, float startAngle, float sweepAngle);
    /// A closed figure of at least three points.
    template <typename PointType>
    void addPolygon(std::span<const PointType> points)
    {
        startFigure();
        addLines(points);
        closeFigure();
    }
    /// Width and height are above 0.
    void addRectangle(const Gdiplus::RectF& rectangle);
    void addEllipse(const Gdiplus::RectF& box);
    void addPie(const Gdiplus::RectF& box, float startAngle, float sweepAngle);
    void add(const PathPoints& path, bool connect);

    /// Adds the figures with their curves made edges.
    void flatten(const ToPixels& toPixels, CurvePrecision precision, Polylines& polylines) const;

private:
    void append(const Gdiplus::PointF& point, BYTE type);
    void appendFirst(const Gdiplus::PointF& point);
    template <typename PointType>
    void append(std::span<const PointType> points, BYTE type)
    {
        appendFirst(toFloat(points.front()));
        for (const PointType& point : points.subspan(1))
            append(toFloat(point), type);
    }

    std::vector<Gdiplus::PointF> m_points;
    std::vector<BYTE> m_types;
    bool m_startsFigure = true;
};

} // namespace vq::gdiplus
