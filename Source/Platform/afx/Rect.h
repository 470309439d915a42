// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"
#include "Platform/afx/Geometry.h"

/// A rectangle whose right and bottom edges lie outside. Most members expect it normalised: left not beyond right, top
/// not beyond bottom. Sums beyond 32 bits wrap round.
class CRect : public RECT
{
public:
    constexpr CRect() noexcept : RECT{0, 0, 0, 0} {}
    constexpr CRect(int l, int t, int r, int b) noexcept : RECT{l, t, r, b} {}
    constexpr CRect(const RECT& rect) noexcept : RECT(rect) {}
    CRect(LPCRECT rect) noexcept : RECT(*rect) {}
    constexpr CRect(POINT topLeft, SIZE size) noexcept
        : RECT{topLeft.x, topLeft.y, vq::afx::wrappedSum(topLeft.x, size.cx), vq::afx::wrappedSum(topLeft.y, size.cy)}
    {
    }
    constexpr CRect(POINT topLeft, POINT bottomRight) noexcept
        : RECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y}
    {
    }

    constexpr int Width() const noexcept { return vq::afx::wrappedDifference(right, left); }
    constexpr int Height() const noexcept { return vq::afx::wrappedDifference(bottom, top); }
    constexpr CSize Size() const noexcept { return {Width(), Height()}; }
    CPoint& TopLeft() noexcept { return *reinterpret_cast<CPoint*>(&left); }
    const CPoint& TopLeft() const noexcept { return *reinterpret_cast<const CPoint*>(&left); }
    CPoint& BottomRight() noexcept { return *reinterpret_cast<CPoint*>(&right); }
    const CPoint& BottomRight() const noexcept { return *reinterpret_cast<const CPoint*>(&right); }
    /// Halves are cut towards zero.
    constexpr CPoint CenterPoint() const noexcept
    {
        return {vq::afx::wrappedSum(left, right) / 2, vq::afx::wrappedSum(top, bottom) / 2};
    }

    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }

    /// TRUE for a width or height of 0 or less.
    constexpr BOOL IsRectEmpty() const noexcept { return left >= right || top >= bottom; }
    constexpr BOOL IsRectNull() const noexcept { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    constexpr BOOL PtInRect(POINT point) const noexcept
    {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    BOOL EqualRect(LPCRECT other) const noexcept { return *this == *other; }

    constexpr void SetRect(int l, int t, int r, int b) noexcept { *this = CRect(l, t, r, b); }
    constexpr void SetRect(POINT topLeft, POINT bottomRight) noexcept { *this = CRect(topLeft, bottomRight); }
    constexpr void SetRectEmpty() noexcept { *this = CRect(); }
    void CopyRect(LPCRECT source) noexcept { *this = CRect(source); }
    constexpr void NormalizeRect() noexcept
    {
        *this = CRect(left < right ? left : right, top < bottom ? top : bottom, left < right ? right : left,
                      top < bottom ? bottom : top);
    }

    constexpr void InflateRect(int l, int t, int r, int b) noexcept
    {
        left = vq::afx::wrappedDifference(left, l);
        top = vq::afx::wrappedDifference(top, t);
        right = vq::afx::wrappedSum(right, r);
        bottom = vq::afx::wrappedSum(bottom, b);
    }
    constexpr void InflateRect(int dx, int dy) noexcept { InflateRect(dx, dy, dx, dy); }
    constexpr void InflateRect(SIZE by) noexcept { InflateRect(by.cx, by.cy); }
    void InflateRect(LPCRECT by) noexcept { InflateRect(by->left, by->top, by->right, by->bottom); }
    constexpr void DeflateRect(int l, int t, int r, int b) noexcept
    {
        left = vq::afx::wrappedSum(left, l);
        top = vq::afx::wrappedSum(top, t);
        right = vq::afx::wrappedDifference(right, r);
        bottom = vq::afx::wrappedDifference(bottom, b);
    }
    constexpr void DeflateRect(int dx, int dy) noexcept { DeflateRect(dx, dy, dx, dy); }
    constexpr void DeflateRect(SIZE by) noexcept { DeflateRect(by.cx, by.cy); }
    void DeflateRect(LPCRECT by) noexcept { DeflateRect(by->left, by->top, by->right, by->bottom); }
    constexpr void OffsetRect(int dx, int dy) noexcept
    {
        left = vq::afx::wrappedSum(left, dx);
        top = vq::afx::wrappedSum(top, dy);
        right = vq::afx::wrappedSum(right, dx);
        bottom = vq::afx::wrappedSum(bottom, dy);
    }
    constexpr void OffsetRect(POINT by) noexcept { OffsetRect(by.x, by.y); }
    constexpr void OffsetRect(SIZE by) noexcept { OffsetRect(by.cx, by.cy); }
    constexpr void MoveToX(int x) noexcept { OffsetRect(vq::afx::wrappedDifference(x, left), 0); }
    constexpr void MoveToY(int y) noexcept { OffsetRect(0, vq::afx::wrappedDifference(y, top)); }
    constexpr void MoveToXY(int x, int y) noexcept
    {
        MoveToX(x);
        MoveToY(y);
    }
    constexpr void MoveToXY(POINT topLeft) noexcept { MoveToXY(topLeft.x, topLeft.y); }

    /// Becomes the common part; empty, with FALSE, when there is none. This rectangle may be one of the arguments.
    BOOL IntersectRect(LPCRECT first, LPCRECT second) noexcept { return ::IntersectRect(this, first, second); }
    /// Becomes the smallest rectangle around both, where an empty one counts as nothing. FALSE when both are empty.
    BOOL UnionRect(LPCRECT first, LPCRECT second) noexcept { return ::UnionRect(this, first, second); }
    /// Becomes `first` without `second` where that is a rectangle, otherwise `first`.
    BOOL SubtractRect(LPCRECT first, LPCRECT second) noexcept { return ::SubtractRect(this, first, second); }

    /// Every coordinate times `multiplier` / `divisor`, rounded to the nearest; -1 where the system's `MulDiv` fails.
    CRect MulDiv(int multiplier, int divisor) const noexcept
    {
        return {::MulDiv(left, multiplier, divisor), ::MulDiv(top, multiplier, divisor),
                ::MulDiv(right, multiplier, divisor), ::MulDiv(bottom, multiplier, divisor)};
    }

    constexpr void operator+=(POINT by) noexcept { OffsetRect(by); }
    constexpr void operator+=(SIZE by) noexcept { OffsetRect(by); }
    /// Moves each edge outwards by the value of the same name.
    void operator+=(LPCRECT by) noexcept { InflateRect(by); }
    constexpr void operator-=(POINT by) noexcept { OffsetRect(-CPoint(by)); }
    constexpr void operator-=(SIZE by) noexcept { OffsetRect(-CSize(by)); }
    void operator-=(LPCRECT by) noexcept { DeflateRect(by); }
    void operator&=(const RECT& other) noexcept { IntersectRect(this, &other); }
    void operator|=(const RECT& other) noexcept { UnionRect(this, &other); }

    constexpr CRect operator+(POINT by) const noexcept { return changed(by, &CRect::OffsetRect); }
    constexpr CRect operator+(SIZE by) const noexcept { return changed(by, &CRect::OffsetRect); }
    CRect operator+(LPCRECT by) const noexcept { return changed(by, &CRect::InflateRect); }
    constexpr CRect operator-(POINT by) const noexcept { return *this + (-CPoint(by)); }
    constexpr CRect operator-(SIZE by) const noexcept { return *this + (-CSize(by)); }
    CRect operator-(LPCRECT by) const noexcept { return changed(by, &CRect::DeflateRect); }
    CRect operator&(const RECT& other) const noexcept
    {
        CRect result;
        result.IntersectRect(this, &other);
        return result;
    }
    CRect operator|(const RECT& other) const noexcept
    {
        CRect result;
        result.UnionRect(this, &other);
        return result;
    }

    friend constexpr bool operator==(const CRect& a, const RECT& b) noexcept
    {
        return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
    }
    friend constexpr bool operator==(const CRect& a, const CRect& b) noexcept
    {
        return a == static_cast<const RECT&>(b);
    }

private:
    template <typename Amount>
    constexpr CRect changed(Amount by, void (CRect::*change)(Amount) noexcept) const noexcept
    {
        CRect result(*this);
        (result.*change)(by);
        return result;
    }
};

constexpr CRect CPoint::operator+(const RECT* rect) const noexcept
{
    return CRect(*rect) + POINT(*this);
}

constexpr CRect CPoint::operator-(const RECT* rect) const noexcept
{
    return CRect(*rect) - POINT(*this);
}

constexpr CRect CSize::operator+(const RECT* rect) const noexcept
{
    return CRect(*rect) + SIZE(*this);
}

constexpr CRect CSize::operator-(const RECT* rect) const noexcept
{
    return CRect(*rect) - SIZE(*this);
}
