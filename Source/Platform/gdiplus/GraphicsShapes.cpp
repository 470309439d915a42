// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/DrawingMemory.h"
#include "Platform/gdiplus/GraphicsAccess.h"
#include "Platform/gdiplus/GraphicsPath.h"
#include "Platform/gdiplus/Pen.h"

namespace Gdiplus {

using vq::gdiplus::Canvas;
using vq::gdiplus::CurvePrecision;
using vq::gdiplus::FillRule;
using vq::gdiplus::GraphicsState;
using vq::gdiplus::hasArea;
using vq::gdiplus::Painter;
using vq::gdiplus::PathPoints;
using vq::gdiplus::Polylines;
using vq::gdiplus::toFloat;
using vq::gdiplus::ToPixels;

namespace {

FillRule ruleOf(FillMode mode)
{
    return mode == FillModeWinding ? FillRule::Winding : FillRule::Alternate;
}

/// World units to pixels with whole centres.
ToPixels toPixelsOf(const GraphicsState& state)
{
    const auto [across, down] = state.pageFactors();
    return {across, down, state.settings.hasHalfPixelOffset() ? -0.5 : 0};
}

/// `reach`: half the width, in pixels, of the pen that will go along the shape.
void flatten(const GraphicsState& state, const PathPoints& path, double reach, Polylines& shape)
{
    const bool smooth = state.settings.isSmooth();
    path.flatten(toPixelsOf(state), smooth ? CurvePrecision::fine(reach) : CurvePrecision::asGdiplus(), shape);
}

/// A shape made of a path that `add(path)` fills.
template <typename Add>
auto pathShape(Add add)
{
    return [add](GraphicsState& state, double reach, Polylines& shape) {
        PathPoints& path = state.memory().path;
        path.clear();
        add(path);
        flatten(state, path, reach, shape);
    };
}

} // namespace

/// `makeShape(state, reach, shape)` fills a shape, in pixels, for a pen that reaches so far from its line.
template <typename MakeShape>
Status Graphics::strokeShape(const Pen* pen, MakeShape makeShape)
{
    return withState([&](GraphicsState& state) {
        const auto shader = pen ? pen->shader(state.shading()) : std::nullopt;
        if (!shader)
            return InvalidParameter;
        vq::gdiplus::ShapeRenderer& renderer = state.memory().shapes;
        Polylines& shape = renderer.newShape();
        const double scale = state.pageFactors().x;
        const vq::gdiplus::StrokeStyle style = pen->style(scale);
        makeShape(state, style.width / 2, shape);
        if (!shape.finite())
            return ValueOverflow;
        return state.draw([&](const Canvas& canvas) {
            const Painter painter(canvas, *shader);
            if (pen->drawsInside(scale))
                renderer.strokeInside(painter, shape, style);
            else
                renderer.stroke(painter, shape, style);
            return Ok;
        });
    });
}

template <typename MakeShape>
Status Graphics::fillShape(const Brush* brush, FillRule rule, MakeShape makeShape)
{
    return withState([&](GraphicsState& state) {
        const auto shader = brush ? brush->shader(state.shading()) : std::nullopt;
        if (!shader)
            return InvalidParameter;
        vq::gdiplus::ShapeRenderer& renderer = state.memory().shapes;
        Polylines& shape = renderer.newShape();
        makeShape(state, 0, shape);
        if (!shape.finite())
            return ValueOverflow;
        return state.draw([&](const Canvas& canvas) {
            renderer.fill(Painter(canvas, *shader), shape, rule);
            return Ok;
        });
    });
}

/// Points of one figure, of lines or of curves.
template <typename PointType>
Status Graphics::drawPoints(const Pen* pen, const PointType* points, INT count, INT least, BYTE type, bool close)
{
    if (!points || count < least)
        return withState([](const GraphicsState&) { return InvalidParameter; });
    return strokeShape(pen, pathShape([=](PathPoints& path) {
                           const std::span added(points, static_cast<std::size_t>(count));
                           if (type == PathPointTypeBezier)
                               path.addBeziers(added);
                           else
                               path.addLines(added);
                           if (close)
                               path.closeFigure();
                       }));
}

template <typename PointType>
Status Graphics::fillPoints(const Brush* brush, const PointType* points, INT count, FillMode fillMode)
{
    if (!points || count < 3)
        return withState([](const GraphicsState&) { return InvalidParameter; });
    return fillShape(brush, ruleOf(fillMode), pathShape([=](PathPoints& path) {
                         path.addPolygon(std::span(points, static_cast<std::size_t>(count)));
                     }));
}

Status Graphics::DrawLine(const Pen* pen, const PointF& pt1, const PointF& pt2)
{
    return strokeShape(pen, [&](const GraphicsState& state, double, Polylines& shape) {
        const ToPixels toPixels = toPixelsOf(state);
        shape.add(toPixels(pt1));
        shape.add(toPixels(pt2));
        shape.endFigure(false);
    });
}

Status Graphics::DrawLines(const Pen* pen, const PointF* points, INT count)
{
    return drawPoints(pen, points, count, 2, PathPointTypeLine, false);
}

Status Graphics::DrawLines(const Pen* pen, const Point* points, INT count)
{
    return drawPoints(pen, points, count, 2, PathPointTypeLine, false);
}

Status Graphics::DrawBezier(const Pen* pen, const PointF& pt1, const PointF& pt2, const PointF& pt3, const PointF& pt4)
{
    const PointF points[] = {pt1, pt2, pt3, pt4};
    return DrawBeziers(pen, points, 4);
}

Status Graphics::DrawBeziers(const Pen* pen, const PointF* points, INT count)
{
    return drawPoints(pen, points, count % 3 == 1 ? count : 0, 4, PathPointTypeBezier, false);
}

Status Graphics::DrawBeziers(const Pen* pen, const Point* points, INT count)
{
    return drawPoints(pen, points, count % 3 == 1 ? count : 0, 4, PathPointTypeBezier, false);
}

Status Graphics::DrawArc(const Pen* pen, const RectF& rect, REAL startAngle, REAL sweepAngle)
{
    return strokeShape(pen, pathShape([&](PathPoints& path) {
                           if (hasArea(rect))
                               path.addArc(rect, startAngle, sweepAngle);
                       }));
}

Status Graphics::DrawPie(const Pen* pen, const RectF& rect, REAL startAngle, REAL sweepAngle)
{
    return strokeShape(pen, pathShape([&](PathPoints& path) {
                           if (hasArea(rect))
                               path.addPie(rect, startAngle, sweepAngle);
                       }));
}

Status Graphics::DrawRectangle(const Pen* pen, const RectF& rect)
{
    return strokeShape(pen, pathShape([&](PathPoints& path) {
                           if (hasArea(rect))
                               path.addRectangle(rect);
                       }));
}

Status Graphics::DrawRectangles(const Pen* pen, const RectF* rects, INT count)
{
    Status status = rects && count > 0 ? Ok : withState([](const GraphicsState&) { return InvalidParameter; });
    for (INT i = 0; status == Ok && i < count; ++i)
        status = DrawRectangle(pen, rects[i]);
    return status;
}

Status Graphics::DrawRectangles(const Pen* pen, const Rect* rects, INT count)
{
    Status status = rects && count > 0 ? Ok : withState([](const GraphicsState&) { return InvalidParameter; });
    for (INT i = 0; status == Ok && i < count; ++i)
        status = DrawRectangle(pen, rects[i]);
    return status;
}

Status Graphics::DrawEllipse(const Pen* pen, const RectF& rect)
{
    return strokeShape(pen, pathShape([&](PathPoints& path) { path.addEllipse(rect); }));
}

Status Graphics::DrawPolygon(const Pen* pen, const PointF* points, INT count)
{
    return drawPoints(pen, points, count, 3, PathPointTypeLine, true);
}

Status Graphics::DrawPolygon(const Pen* pen, const Point* points, INT count)
{
    return drawPoints(pen, points, count, 3, PathPointTypeLine, true);
}

Status Graphics::DrawPath(const Pen* pen, const GraphicsPath* path)
{
    if (!path || !path->m_points)
        return withState([](const GraphicsState&) { return InvalidParameter; });
    return strokeShape(pen, [&](const GraphicsState& state, double reach, Polylines& shape) {
        flatten(state, *path->m_points, reach, shape);
    });
}

Status Graphics::FillEllipse(const Brush* brush, const RectF& rect)
{
    return fillShape(brush, FillRule::Alternate, pathShape([&](PathPoints& path) { path.addEllipse(rect); }));
}

Status Graphics::FillPie(const Brush* brush, const RectF& rect, REAL startAngle, REAL sweepAngle)
{
    return fillShape(brush, FillRule::Alternate, pathShape([&](PathPoints& path) {
                         if (hasArea(rect))
                             path.addPie(rect, startAngle, sweepAngle);
                     }));
}

Status Graphics::FillPolygon(const Brush* brush, const PointF* points, INT count)
{
    return fillPoints(brush, points, count, FillModeAlternate);
}

Status Graphics::FillPolygon(const Brush* brush, const PointF* points, INT count, FillMode fillMode)
{
    return fillPoints(brush, points, count, fillMode);
}

Status Graphics::FillPolygon(const Brush* brush, const Point* points, INT count)
{
    return fillPoints(brush, points, count, FillModeAlternate);
}

Status Graphics::FillPolygon(const Brush* brush, const Point* points, INT count, FillMode fillMode)
{
    return fillPoints(brush, points, count, fillMode);
}

Status Graphics::FillPath(const Brush* brush, const GraphicsPath* path)
{
    if (!path || !path->m_points)
        return withState([](const GraphicsState&) { return InvalidParameter; });
    return fillShape(brush, ruleOf(path->m_fillMode), [&](const GraphicsState& state, double reach, Polylines& shape) {
        flatten(state, *path->m_points, reach, shape);
    });
}

Status Graphics::FillRectangles(const Brush* brush, const RectF* rects, INT count)
{
    Status status = rects && count > 0 ? Ok : withState([](const GraphicsState&) { return InvalidParameter; });
    for (INT i = 0; status == Ok && i < count; ++i)
        status = FillRectangle(brush, rects[i]);
    return status;
}

Status Graphics::FillRectangles(const Brush* brush, const Rect* rects, INT count)
{
    Status status = rects && count > 0 ? Ok : withState([](const GraphicsState&) { return InvalidParameter; });
    for (INT i = 0; status == Ok && i < count; ++i)
        status = FillRectangle(brush, rects[i]);
    return status;
}

} // namespace Gdiplus
