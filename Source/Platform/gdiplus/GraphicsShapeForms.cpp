// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/Conversions.h"
#include "Platform/gdiplus/Graphics.h"

/// @file
/// The forms of the shape members that only name the same shape differently.

namespace Gdiplus {

using vq::gdiplus::toFloat;

Status Graphics::DrawRectangle(const Pen* pen, REAL x, REAL y, REAL width, REAL height)
{
    return DrawRectangle(pen, RectF(x, y, width, height));
}

Status Graphics::DrawRectangle(const Pen* pen, const Rect& rect)
{
    return DrawRectangle(pen, toFloat(rect));
}

Status Graphics::DrawRectangle(const Pen* pen, INT x, INT y, INT width, INT height)
{
    return DrawRectangle(pen, Rect(x, y, width, height));
}

Status Graphics::DrawEllipse(const Pen* pen, REAL x, REAL y, REAL width, REAL height)
{
    return DrawEllipse(pen, RectF(x, y, width, height));
}

Status Graphics::DrawEllipse(const Pen* pen, const Rect& rect)
{
    return DrawEllipse(pen, toFloat(rect));
}

Status Graphics::DrawEllipse(const Pen* pen, INT x, INT y, INT width, INT height)
{
    return DrawEllipse(pen, Rect(x, y, width, height));
}

Status Graphics::DrawArc(const Pen* pen, REAL x, REAL y, REAL width, REAL height, REAL startAngle, REAL sweepAngle)
{
    return DrawArc(pen, RectF(x, y, width, height), startAngle, sweepAngle);
}

Status Graphics::DrawArc(const Pen* pen, const Rect& rect, REAL startAngle, REAL sweepAngle)
{
    return DrawArc(pen, toFloat(rect), startAngle, sweepAngle);
}

Status Graphics::DrawArc(const Pen* pen, INT x, INT y, INT width, INT height, REAL startAngle, REAL sweepAngle)
{
    return DrawArc(pen, Rect(x, y, width, height), startAngle, sweepAngle);
}

Status Graphics::DrawPie(const Pen* pen, REAL x, REAL y, REAL width, REAL height, REAL startAngle, REAL sweepAngle)
{
    return DrawPie(pen, RectF(x, y, width, height), startAngle, sweepAngle);
}

Status Graphics::DrawPie(const Pen* pen, const Rect& rect, REAL startAngle, REAL sweepAngle)
{
    return DrawPie(pen, toFloat(rect), startAngle, sweepAngle);
}

Status Graphics::DrawPie(const Pen* pen, INT x, INT y, INT width, INT height, REAL startAngle, REAL sweepAngle)
{
    return DrawPie(pen, Rect(x, y, width, height), startAngle, sweepAngle);
}

Status Graphics::FillEllipse(const Brush* brush, REAL x, REAL y, REAL width, REAL height)
{
    return FillEllipse(brush, RectF(x, y, width, height));
}

Status Graphics::FillEllipse(const Brush* brush, const Rect& rect)
{
    return FillEllipse(brush, toFloat(rect));
}

Status Graphics::FillEllipse(const Brush* brush, INT x, INT y, INT width, INT height)
{
    return FillEllipse(brush, Rect(x, y, width, height));
}

Status Graphics::FillPie(const Brush* brush, REAL x, REAL y, REAL width, REAL height, REAL startAngle, REAL sweepAngle)
{
    return FillPie(brush, RectF(x, y, width, height), startAngle, sweepAngle);
}

Status Graphics::FillPie(const Brush* brush, const Rect& rect, REAL startAngle, REAL sweepAngle)
{
    return FillPie(brush, toFloat(rect), startAngle, sweepAngle);
}

Status Graphics::FillPie(const Brush* brush, INT x, INT y, INT width, INT height, REAL startAngle, REAL sweepAngle)
{
    return FillPie(brush, Rect(x, y, width, height), startAngle, sweepAngle);
}

Status Graphics::DrawLine(const Pen* pen, REAL x1, REAL y1, REAL x2, REAL y2)
{
    return DrawLine(pen, PointF(x1, y1), PointF(x2, y2));
}

Status Graphics::DrawLine(const Pen* pen, const Point& pt1, const Point& pt2)
{
    return DrawLine(pen, toFloat(pt1), toFloat(pt2));
}

Status Graphics::DrawLine(const Pen* pen, INT x1, INT y1, INT x2, INT y2)
{
    return DrawLine(pen, Point(x1, y1), Point(x2, y2));
}

Status Graphics::DrawBezier(const Pen* pen, REAL x1, REAL y1, REAL x2, REAL y2, REAL x3, REAL y3, REAL x4, REAL y4)
{
    return DrawBezier(pen, PointF(x1, y1), PointF(x2, y2), PointF(x3, y3), PointF(x4, y4));
}

Status Graphics::DrawBezier(const Pen* pen, const Point& pt1, const Point& pt2, const Point& pt3, const Point& pt4)
{
    return DrawBezier(pen, toFloat(pt1), toFloat(pt2), toFloat(pt3), toFloat(pt4));
}

Status Graphics::DrawBezier(const Pen* pen, INT x1, INT y1, INT x2, INT y2, INT x3, INT y3, INT x4, INT y4)
{
    return DrawBezier(pen, Point(x1, y1), Point(x2, y2), Point(x3, y3), Point(x4, y4));
}

} // namespace Gdiplus
