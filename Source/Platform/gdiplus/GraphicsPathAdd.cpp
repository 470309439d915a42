// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/GraphicsPathAccess.h"

namespace Gdiplus {

using vq::gdiplus::hasArea;
using vq::gdiplus::PathPoints;
using vq::gdiplus::toFloat;

template <typename PointType, typename Add>
Status GraphicsPath::addPoints(const PointType* points, INT count, INT least, Add add)
{
    return withPoints([&](PathPoints& path) {
        if (!points || count < least)
            return InvalidParameter;
        add(path, std::span(points, static_cast<std::size_t>(count)));
        return Ok;
    });
}

Status GraphicsPath::AddLine(const PointF& pt1, const PointF& pt2)
{
    const PointF points[] = {pt1, pt2};
    return AddLines(points, 2);
}

Status GraphicsPath::AddLine(REAL x1, REAL y1, REAL x2, REAL y2)
{
    return AddLine(PointF(x1, y1), PointF(x2, y2));
}

Status GraphicsPath::AddLine(const Point& pt1, const Point& pt2)
{
    return AddLine(toFloat(pt1), toFloat(pt2));
}

Status GraphicsPath::AddLine(INT x1, INT y1, INT x2, INT y2)
{
    return AddLine(Point(x1, y1), Point(x2, y2));
}

Status GraphicsPath::AddLines(const PointF* points, INT count)
{
    return addPoints(points, count, 1, [](PathPoints& path, std::span<const PointF> added) { path.addLines(added); });
}

Status GraphicsPath::AddLines(const Point* points, INT count)
{
    return addPoints(points, count, 1, [](PathPoints& path, std::span<const Point> added) { path.addLines(added); });
}

Status GraphicsPath::AddArc(const RectF& rect, REAL startAngle, REAL sweepAngle)
{
    return withPoints([&](PathPoints& path) {
        if (!hasArea(rect))
            return InvalidParameter;
        path.addArc(rect, startAngle, sweepAngle);
        return Ok;
    });
}

Status GraphicsPath::AddArc(REAL x, REAL y, REAL width, REAL height, REAL startAngle, REAL sweepAngle)
{
    return AddArc(RectF(x, y, width, height), startAngle, sweepAngle);
}

Status GraphicsPath::AddArc(const Rect& rect, REAL startAngle, REAL sweepAngle)
{
    return AddArc(toFloat(rect), startAngle, sweepAngle);
}

Status GraphicsPath::AddArc(INT x, INT y, INT width, INT height, REAL startAngle, REAL sweepAngle)
{
    return AddArc(Rect(x, y, width, height), startAngle, sweepAngle);
}

Status GraphicsPath::AddBezier(const PointF& pt1, const PointF& pt2, const PointF& pt3, const PointF& pt4)
{
    const PointF points[] = {pt1, pt2, pt3, pt4};
    return AddBeziers(points, 4);
}

Status GraphicsPath::AddBezier(REAL x1, REAL y1, REAL x2, REAL y2, REAL x3, REAL y3, REAL x4, REAL y4)
{
    return AddBezier(PointF(x1, y1), PointF(x2, y2), PointF(x3, y3), PointF(x4, y4));
}

Status GraphicsPath::AddBezier(const Point& pt1, const Point& pt2, const Point& pt3, const Point& pt4)
{
    return AddBezier(toFloat(pt1), toFloat(pt2), toFloat(pt3), toFloat(pt4));
}

Status GraphicsPath::AddBezier(INT x1, INT y1, INT x2, INT y2, INT x3, INT y3, INT x4, INT y4)
{
    return AddBezier(Point(x1, y1), Point(x2, y2), Point(x3, y3), Point(x4, y4));
}

Status GraphicsPath::AddBeziers(const PointF* points, INT count)
{
    if (count % 3 != 1)
        count = 0; // refused
    return addPoints(points, count, 4, [](PathPoints& path, std::span<const PointF> added) { path.addBeziers(added); });
}

Status GraphicsPath::AddBeziers(const Point* points, INT count)
{
    if (count % 3 != 1)
        count = 0; // refused
    return addPoints(points, count, 4, [](PathPoints& path, std::span<const Point> added) { path.addBeziers(added); });
}

template <typename Rectangle>
Status GraphicsPath::addRectangles(const Rectangle* rects, INT count)
{
    return withPoints([&](PathPoints& path) {
        if (!rects || count < 1)
            return InvalidParameter;
        for (const Rectangle& rect : std::span(rects, static_cast<std::size_t>(count)))
            if (const RectF exact = toFloat(rect); hasArea(exact))
                path.addRectangle(exact);
        return Ok;
    });
}

Status GraphicsPath::AddRectangle(const RectF& rect)
{
    return addRectangles(&rect, 1);
}

Status GraphicsPath::AddRectangle(const Rect& rect)
{
    return addRectangles(&rect, 1);
}

Status GraphicsPath::AddRectangles(const RectF* rects, INT count)
{
    return addRectangles(rects, count);
}

Status GraphicsPath::AddRectangles(const Rect* rects, INT count)
{
    return addRectangles(rects, count);
}

Status GraphicsPath::AddEllipse(const RectF& rect)
{
    return withPoints([&](PathPoints& path) {
        path.addEllipse(rect);
        return Ok;
    });
}

Status GraphicsPath::AddEllipse(REAL x, REAL y, REAL width, REAL height)
{
    return AddEllipse(RectF(x, y, width, height));
}

Status GraphicsPath::AddEllipse(const Rect& rect)
{
    return AddEllipse(toFloat(rect));
}

Status GraphicsPath::AddEllipse(INT x, INT y, INT width, INT height)
{
    return AddEllipse(Rect(x, y, width, height));
}

Status GraphicsPath::AddPie(const RectF& rect, REAL startAngle, REAL sweepAngle)
{
    return withPoints([&](PathPoints& path) {
        if (!hasArea(rect))
            return InvalidParameter;
        path.addPie(rect, startAngle, sweepAngle);
        return Ok;
    });
}

Status GraphicsPath::AddPie(REAL x, REAL y, REAL width, REAL height, REAL startAngle, REAL sweepAngle)
{
    return AddPie(RectF(x, y, width, height), startAngle, sweepAngle);
}

Status GraphicsPath::AddPie(const Rect& rect, REAL startAngle, REAL sweepAngle)
{
    return AddPie(toFloat(rect), startAngle, sweepAngle);
}

Status GraphicsPath::AddPie(INT x, INT y, INT width, INT height, REAL startAngle, REAL sweepAngle)
{
    return AddPie(Rect(x, y, width, height), startAngle, sweepAngle);
}

Status GraphicsPath::AddPolygon(const PointF* points, INT count)
{
    return addPoints(points, count, 3, [](PathPoints& path, std::span<const PointF> added) { path.addPolygon(added); });
}

Status GraphicsPath::AddPolygon(const Point* points, INT count)
{
    return addPoints(points, count, 3, [](PathPoints& path, std::span<const Point> added) { path.addPolygon(added); });
}

Status GraphicsPath::AddPath(const GraphicsPath* addingPath, BOOL connect)
{
    return withPoints([&](PathPoints& path) {
        if (!addingPath || !addingPath->m_points)
            return InvalidParameter;
        path.add(*addingPath->m_points, connect != FALSE);
        return Ok;
    });
}

} // namespace Gdiplus
