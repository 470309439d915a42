// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Shapes made of lines and curves.

#include "Platform/Export.h"
#include "Platform/gdiplus/Base.h"
#include "Platform/gdiplus/Enums.h"
#include "Platform/gdiplus/Rect.h"

#include <memory>

namespace vq::gdiplus {
class PathPoints;
}

namespace Gdiplus {

class Matrix;
class Pen;

/// How far, in units of the path, edges may stand off the curves that they replace.
inline constexpr REAL FlatnessDefault = 0.25f;

/// A copy of a path's points and their types; owns both arrays.
class VQPLATFORM_API PathData
{
public:
    PathData() = default;
    ~PathData();
    PathData(const PathData&) = delete;
    PathData& operator=(const PathData&) = delete;

    INT Count = 0;
    PointF* Points = nullptr;
    BYTE* Types = nullptr;
};

/// Figures in world units. Lines and curves that are added are joined to the open figure by a straight edge;
/// rectangles, ellipses, pies and polygons are closed figures of their own. What cannot be added is answered with a
/// status and changes nothing. Matrices are null.
class VQPLATFORM_API GraphicsPath : public GdiplusBase
{
    friend class Graphics;

public:
    GraphicsPath(FillMode fillMode = FillModeAlternate);
    /// `InvalidParameter`, and an empty path, when points and types make no figures.
    GraphicsPath(const PointF* points, const BYTE* types, INT count, FillMode fillMode = FillModeAlternate);
    GraphicsPath(const Point* points, const BYTE* types, INT count, FillMode fillMode = FillModeAlternate);
    ~GraphicsPath();
    GraphicsPath(const GraphicsPath&) = delete;
    GraphicsPath& operator=(const GraphicsPath&) = delete;

    /// A copy that the caller deletes; null when it fails.
    GraphicsPath* Clone() const;

    /// Empties the path and makes its fill mode Alternate.
    Status Reset();
    FillMode GetFillMode() const;
    Status SetFillMode(FillMode fillmode);

    Status StartFigure();
    Status CloseFigure();
    Status CloseAllFigures();

    Status AddLine(const PointF& pt1, const PointF& pt2);
    Status AddLine(REAL x1, REAL y1, REAL x2, REAL y2);
    Status AddLine(const Point& pt1, const Point& pt2);
    Status AddLine(INT x1, INT y1, INT x2, INT y2);
    /// At least one point.
    Status AddLines(const PointF* points, INT count);
    Status AddLines(const Point* points, INT count);
    /// Degrees, clockwise on the screen from the right. A width or height of 0 or less: `InvalidParameter`, so a round
    /// rectangle without corners has to be added as a rectangle.
    Status AddArc(const RectF& rect, REAL startAngle, REAL sweepAngle);
    Status AddArc(REAL x, REAL y, REAL width, REAL height, REAL startAngle, REAL sweepAngle);
    Status AddArc(const Rect& rect, REAL startAngle, REAL sweepAngle);
    Status AddArc(INT x, INT y, INT width, INT height, REAL startAngle, REAL sweepAngle);
    Status AddBezier(const PointF& pt1, const PointF& pt2, const PointF& pt3, const PointF& pt4);
    Status AddBezier(REAL x1, REAL y1, REAL x2, REAL y2, REAL x3, REAL y3, REAL x4, REAL y4);
    Status AddBezier(const Point& pt1, const Point& pt2, const Point& pt3, const Point& pt4);
    Status AddBezier(INT x1, INT y1, INT x2, INT y2, INT x3, INT y3, INT x4, INT y4);
    /// 4, 7, 10 .. points.
    Status AddBeziers(const PointF* points, INT count);
    Status AddBeziers(const Point* points, INT count);
    /// A width or height of 0 adds nothing.
    Status AddRectangle(const RectF& rect);
    Status AddRectangle(const Rect& rect);
    Status AddRectangles(const RectF* rects, INT count);
    Status AddRectangles(const Rect* rects, INT count);
    Status AddEllipse(const RectF& rect);
    Status AddEllipse(REAL x, REAL y, REAL width, REAL height);
    Status AddEllipse(const Rect& rect);
    Status AddEllipse(INT x, INT y, INT width, INT height);
    Status AddPie(const RectF& rect, REAL startAngle, REAL sweepAngle);
    Status AddPie(REAL x, REAL y, REAL width, REAL height, REAL startAngle, REAL sweepAngle);
    Status AddPie(const Rect& rect, REAL startAngle, REAL sweepAngle);
    Status AddPie(INT x, INT y, INT width, INT height, REAL startAngle, REAL sweepAngle);
    /// At least three points.
    Status AddPolygon(const PointF* points, INT count);
    Status AddPolygon(const Point* points, INT count);
    Status AddPath(const GraphicsPath* addingPath, BOOL connect);

    INT GetPointCount() const;
    /// `count` is the path's, or more; `InsufficientBuffer` for less.
    Status GetPathPoints(PointF* points, INT count) const;
    Status GetPathPoints(Point* points, INT count) const;
    Status GetPathTypes(BYTE* types, INT count) const;
    Status GetPathData(PathData* pathData) const;
    Status GetLastPoint(PointF* lastPoint) const;
    /// Around all points, those that only guide curves included; with a pen, larger by half its width.
    Status GetBounds(RectF* bounds, const Matrix* matrix = nullptr, const Pen* pen = nullptr) const;
    Status GetBounds(Rect* bounds, const Matrix* matrix = nullptr, const Pen* pen = nullptr) const;

    /// Curves become edges: equal steps of the parameter, their number a power of two.
    Status Flatten(const Matrix* matrix = nullptr, REAL flatness = FlatnessDefault);
    /// The path becomes the outline of its stroke, to be filled by winding.
    Status Widen(const Pen* pen, const Matrix* matrix = nullptr, REAL flatness = FlatnessDefault);

    BOOL IsVisible(const PointF& point) const;
    BOOL IsVisible(REAL x, REAL y) const;
    BOOL IsVisible(const Point& point) const;
    BOOL IsVisible(INT x, INT y) const;

    /// The last failure since this was asked before; asking forgets it.
    Status GetLastStatus() const;

private:
    Status setStatus(Status status) const;
    template <typename Work>
    Status withPoints(Work work) const;
    template <typename PointType>
    Status assign(const PointType* points, const BYTE* types, INT count);
    template <typename PointType, typename Add>
    Status addPoints(const PointType* points, INT count, INT least, Add add);
    template <typename Rectangle>
    Status addRectangles(const Rectangle* rects, INT count);
    template <typename PointType>
    Status copyPoints(PointType* points, INT count) const;

    std::unique_ptr<vq::gdiplus::PathPoints> m_points;
    FillMode m_fillMode;
    mutable Status m_lastStatus;
};

} // namespace Gdiplus
