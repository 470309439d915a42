// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Rectangles: the left and top edges belong to them, the right and bottom ones do not.

#include "Platform/gdiplus/Types.h"

namespace Gdiplus {

/// What `Rect` and `RectF` share.
template <typename Derived, typename Number, typename PointType, typename SizeType>
class RectangleOf
{
public:
    Number X = 0;
    Number Y = 0;
    Number Width = 0;
    Number Height = 0;

    constexpr RectangleOf() = default;
    constexpr RectangleOf(Number x, Number y, Number width, Number height) : X(x), Y(y), Width(width), Height(height) {}
    constexpr RectangleOf(const PointType& location, const SizeType& size)
        : X(location.X), Y(location.Y), Width(size.Width), Height(size.Height)
    {
    }

    /// A copy that the caller deletes.
    Derived* Clone() const { return new Derived(X, Y, Width, Height); }

    constexpr VOID GetLocation(PointType* point) const { *point = PointType(X, Y); }
    constexpr VOID GetSize(SizeType* size) const { *size = SizeType(Width, Height); }
    constexpr VOID GetBounds(Derived* rect) const { *rect = Derived(X, Y, Width, Height); }

    constexpr Number GetLeft() const { return X; }
    constexpr Number GetTop() const { return Y; }
    constexpr Number GetRight() const { return X + Width; }
    constexpr Number GetBottom() const { return Y + Height; }

    constexpr BOOL Equals(const Derived& rect) const
    {
        return X == rect.X && Y == rect.Y && Width == rect.Width && Height == rect.Height;
    }

    constexpr BOOL Contains(Number x, Number y) const { return x >= X && x < GetRight() && y >= Y && y < GetBottom(); }
    constexpr BOOL Contains(const PointType& point) const { return Contains(point.X, point.Y); }
    constexpr BOOL Contains(const Derived& rect) const
    {
        return X <= rect.X && rect.GetRight() <= GetRight() && Y <= rect.Y && rect.GetBottom() <= GetBottom();
    }

    /// Moves each edge outward by the amount given, inward when it is negative.
    constexpr VOID Inflate(Number dx, Number dy)
    {
        X -= dx;
        Y -= dy;
        Width += 2 * dx;
        Height += 2 * dy;
    }
    constexpr VOID Inflate(const PointType& point) { Inflate(point.X, point.Y); }

    constexpr VOID Offset(Number dx, Number dy)
    {
        X += dx;
        Y += dy;
    }
    constexpr VOID Offset(const PointType& point) { Offset(point.X, point.Y); }

    /// `c` becomes what `a` and `b` have in common; FALSE when that is nothing (`c` then has a size of 0 or less).
    static constexpr BOOL Intersect(Derived& c, const Derived& a, const Derived& b)
    {
        return c.setEdges(larger(a.X, b.X), larger(a.Y, b.Y), smaller(a.GetRight(), b.GetRight()),
                          smaller(a.GetBottom(), b.GetBottom()));
    }
    constexpr BOOL Intersect(const Derived& rect) { return Intersect(self(), self(), rect); }

    /// `c` becomes the smallest rectangle around `a` and `b`; FALSE when that is empty.
    static constexpr BOOL Union(Derived& c, const Derived& a, const Derived& b)
    {
        return c.setEdges(smaller(a.X, b.X), smaller(a.Y, b.Y), larger(a.GetRight(), b.GetRight()),
                          larger(a.GetBottom(), b.GetBottom()));
    }

    constexpr BOOL IntersectsWith(const Derived& rect) const
    {
        return GetLeft() < rect.GetRight() && GetTop() < rect.GetBottom() && GetRight() > rect.GetLeft() &&
               GetBottom() > rect.GetTop();
    }

private:
    static constexpr Number smaller(Number a, Number b) { return b < a ? b : a; }
    static constexpr Number larger(Number a, Number b) { return a < b ? b : a; }
    constexpr Derived& self() { return static_cast<Derived&>(*this); }

    constexpr BOOL setEdges(Number left, Number top, Number right, Number bottom)
    {
        X = left;
        Y = top;
        Width = right - left;
        Height = bottom - top;
        return self().IsEmptyArea() ? FALSE : TRUE;
    }
};

class RectF : public RectangleOf<RectF, REAL, PointF, SizeF>
{
public:
    using RectangleOf::RectangleOf;

    constexpr BOOL IsEmptyArea() const { return Width <= 0.0f || Height <= 0.0f; }
};

class Rect : public RectangleOf<Rect, INT, Point, Size>
{
public:
    using RectangleOf::RectangleOf;

    constexpr BOOL IsEmptyArea() const { return Width <= 0 || Height <= 0; }
};

} // namespace Gdiplus
