// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/GraphicsPathAccess.h"
#include "Platform/gdiplus/Pen.h"
#include "Platform/gdiplus/raster/HardFill.h"
#include "Platform/gdiplus/raster/Stroke.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace Gdiplus {

using vq::gdiplus::CurvePrecision;
using vq::gdiplus::guarded;
using vq::gdiplus::PathPoints;
using vq::gdiplus::Polylines;
using vq::gdiplus::toFloat;

namespace {

bool isFillMode(FillMode mode)
{
    return mode == FillModeAlternate || mode == FillModeWinding;
}

INT nearest(REAL value)
{
    constexpr double kMost = std::numeric_limits<INT>::max();
    return static_cast<INT>(std::clamp(std::floor(value + 0.5), -kMost, kMost));
}

/// Figures of edges as points of a path.
void assignTo(PathPoints& path, const Polylines& polylines)
{
    path.clear();
    for (const Polylines::Figure& figure : polylines.figures()) {
        path.startFigure();
        for (const vq::gdiplus::PointD& point : polylines.points(figure)) {
            const PointF added(static_cast<REAL>(point.x), static_cast<REAL>(point.y));
            path.addLines(std::span(&added, 1));
        }
        if (figure.closed)
            path.closeFigure();
    }
}

} // namespace

PathData::~PathData()
{
    delete[] Points;
    delete[] Types;
}

GraphicsPath::GraphicsPath(FillMode fillMode) : m_fillMode(fillMode), m_lastStatus(Ok)
{
    setStatus(guarded([&] {
        if (!isFillMode(fillMode))
            return InvalidParameter;
        m_points = std::make_unique<PathPoints>();
        return Ok;
    }));
}

GraphicsPath::GraphicsPath(const PointF* points, const BYTE* types, INT count, FillMode fillMode)
    : GraphicsPath(fillMode)
{
    assign(points, types, count);
}

GraphicsPath::GraphicsPath(const Point* points, const BYTE* types, INT count, FillMode fillMode)
    : GraphicsPath(fillMode)
{
    assign(points, types, count);
}

GraphicsPath::~GraphicsPath() = default;

template <typename PointType>
Status GraphicsPath::assign(const PointType* points, const BYTE* types, INT count)
{
    return withPoints([&](PathPoints& path) {
        if (!points || !types || count < 0)
            return InvalidParameter;
        const auto size = static_cast<std::size_t>(count);
        std::vector<PointF> converted(size);
        std::transform(points, points + size, converted.begin(), [](const PointType& point) { return toFloat(point); });
        return path.assign(converted, {types, size}) ? Ok : InvalidParameter;
    });
}

Status GraphicsPath::setStatus(Status status) const
{
    if (status != Ok)
        m_lastStatus = status;
    return status;
}

Status GraphicsPath::GetLastStatus() const
{
    return std::exchange(m_lastStatus, Ok);
}

GraphicsPath* GraphicsPath::Clone() const
{
    GraphicsPath* clone = nullptr;
    withPoints([&](const PathPoints& points) {
        auto copy = std::unique_ptr<GraphicsPath>(new GraphicsPath(m_fillMode));
        if (!copy || !copy->m_points)
            return OutOfMemory;
        *copy->m_points = points;
        clone = copy.release();
        return Ok;
    });
    return clone;
}

Status GraphicsPath::Reset()
{
    return withPoints([&](PathPoints& points) {
        points.clear();
        m_fillMode = FillModeAlternate;
        return Ok;
    });
}

FillMode GraphicsPath::GetFillMode() const
{
    return withPoints([](const PathPoints&) { return Ok; }) == Ok ? m_fillMode : FillModeAlternate;
}

Status GraphicsPath::SetFillMode(FillMode fillmode)
{
    return withPoints([&](const PathPoints&) {
        if (!isFillMode(fillmode))
            return InvalidParameter;
        m_fillMode = fillmode;
        return Ok;
    });
}

Status GraphicsPath::StartFigure()
{
    return withPoints([](PathPoints& points) {
        points.startFigure();
        return Ok;
    });
}

Status GraphicsPath::CloseFigure()
{
    return withPoints([](PathPoints& points) {
        points.closeFigure();
        return Ok;
    });
}

Status GraphicsPath::CloseAllFigures()
{
    return withPoints([](PathPoints& points) {
        points.closeAllFigures();
        return Ok;
    });
}

INT GraphicsPath::GetPointCount() const
{
    INT count = 0;
    withPoints([&](const PathPoints& points) {
        count = static_cast<INT>(points.points().size());
        return Ok;
    });
    return count;
}

template <typename PointType>
Status GraphicsPath::copyPoints(PointType* points, INT count) const
{
    return withPoints([&](const PathPoints& path) {
        if (!points)
            return InvalidParameter;
        if (count < static_cast<INT>(path.points().size()))
            return InsufficientBuffer;
        for (const PointF& point : path.points()) {
            if constexpr (std::is_same_v<PointType, Point>)
                *points++ = Point(nearest(point.X), nearest(point.Y));
            else
                *points++ = point;
        }
        return Ok;
    });
}

Status GraphicsPath::GetPathPoints(PointF* points, INT count) const
{
    return copyPoints(points, count);
}

Status GraphicsPath::GetPathPoints(Point* points, INT count) const
{
    return copyPoints(points, count);
}

Status GraphicsPath::GetPathTypes(BYTE* types, INT count) const
{
    return withPoints([&](const PathPoints& path) {
        if (!types)
            return InvalidParameter;
        if (count < static_cast<INT>(path.types().size()))
            return InsufficientBuffer;
        std::ranges::copy(path.types(), types);
        return Ok;
    });
}

Status GraphicsPath::GetPathData(PathData* pathData) const
{
    return withPoints([&](const PathPoints& path) {
        if (!pathData)
            return InvalidParameter;
        const std::size_t count = path.points().size();
        auto points = std::make_unique<PointF[]>(count);
        auto types = std::make_unique<BYTE[]>(count);
        std::ranges::copy(path.points(), points.get());
        std::ranges::copy(path.types(), types.get());
        delete[] std::exchange(pathData->Points, points.release());
        delete[] std::exchange(pathData->Types, types.release());
        pathData->Count = static_cast<INT>(count);
        return Ok;
    });
}

Status GraphicsPath::GetLastPoint(PointF* lastPoint) const
{
    return withPoints([&](const PathPoints& path) {
        if (!lastPoint || path.empty())
            return InvalidParameter;
        *lastPoint = path.points().back();
        return Ok;
    });
}

Status GraphicsPath::GetBounds(RectF* bounds, const Matrix* matrix, const Pen* pen) const
{
    return withPoints([&](const PathPoints& path) {
        if (!bounds)
            return InvalidParameter;
        if (matrix)
            return NotImplemented;
        *bounds = RectF();
        if (path.empty())
            return Ok;
        const auto [left, right] = std::ranges::minmax(path.points(), {}, &PointF::X);
        const auto [top, bottom] = std::ranges::minmax(path.points(), {}, &PointF::Y);
        *bounds = RectF(left.X, top.Y, right.X - left.X, bottom.Y - top.Y);
        const REAL half = pen ? std::max(pen->m_width, 1.0f) / 2 : 0;
        bounds->Inflate(half, half);
        return Ok;
    });
}

Status GraphicsPath::GetBounds(Rect* bounds, const Matrix* matrix, const Pen* pen) const
{
    RectF exact;
    const Status status = GetBounds(&exact, matrix, pen);
    if (status != Ok || !bounds)
        return status == Ok ? setStatus(InvalidParameter) : status;
    *bounds = Rect(nearest(exact.X), nearest(exact.Y), nearest(exact.Width), nearest(exact.Height));
    return Ok;
}

Status GraphicsPath::Flatten(const Matrix* matrix, REAL flatness)
{
    return withPoints([&](PathPoints& path) {
        if (matrix)
            return NotImplemented;
        if (!(flatness > 0))
            return InvalidParameter;
        Polylines flat;
        path.flatten({}, CurvePrecision::asGdiplus(flatness), flat);
        assignTo(path, flat);
        return Ok;
    });
}

Status GraphicsPath::Widen(const Pen* pen, const Matrix* matrix, REAL flatness)
{
    return withPoints([&](PathPoints& path) {
        if (!pen || !pen->m_isMade || !(flatness > 0))
            return InvalidParameter;
        if (matrix)
            return NotImplemented;
        if (path.points().size() < 2)
            return OutOfMemory; // GDI+'s answer to a path that has no stroke
        Polylines flat;
        Polylines outline;
        path.flatten({}, CurvePrecision::asGdiplus(flatness), flat);
        constexpr double kThinnest = 1.0 / 256; // an outline without any width would be no figure
        constexpr double kAll = std::numeric_limits<float>::max();
        vq::gdiplus::Stroker().stroke(flat, pen->style(1, kThinnest), {-kAll, -kAll, kAll, kAll}, outline);
        assignTo(path, outline);
        m_fillMode = FillModeWinding;
        return Ok;
    });
}

BOOL GraphicsPath::IsVisible(const PointF& point) const
{
    BOOL visible = FALSE;
    withPoints([&](const PathPoints& path) {
        Polylines flat; // moved so that the point is the centre of the one pixel that is asked for
        path.flatten({}, CurvePrecision::asGdiplus(), flat);
        const Polylines at = flat.movedBy({-static_cast<double>(point.X), -static_cast<double>(point.Y)});
        const auto rule =
            m_fillMode == FillModeWinding ? vq::gdiplus::FillRule::Winding : vq::gdiplus::FillRule::Alternate;
        if (at.finite())
            vq::gdiplus::HardFill().fill(at, rule, 1, 1, [&](int, int, int) { visible = TRUE; });
        return Ok;
    });
    return visible;
}

BOOL GraphicsPath::IsVisible(REAL x, REAL y) const
{
    return IsVisible(PointF(x, y));
}

BOOL GraphicsPath::IsVisible(const Point& point) const
{
    return IsVisible(toFloat(point));
}

BOOL GraphicsPath::IsVisible(INT x, INT y) const
{
    return IsVisible(Point(x, y));
}

} // namespace Gdiplus
