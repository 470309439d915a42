// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/System.h"

/// @file
/// Points, sizes and rectangles of 32-bit integers. Sums beyond 32 bits wrap round.

class CPoint;
class CRect;

namespace vq::afx {

constexpr LONG wrappedSum(LONG a, LONG b) noexcept
{
    return static_cast<LONG>(static_cast<ULONG>(a) + static_cast<ULONG>(b));
}

constexpr LONG wrappedDifference(LONG a, LONG b) noexcept
{
    return static_cast<LONG>(static_cast<ULONG>(a) - static_cast<ULONG>(b));
}

} // namespace vq::afx

class CSize : public SIZE
{
public:
    constexpr CSize() noexcept : SIZE{0, 0} {}
    constexpr CSize(int width, int height) noexcept : SIZE{width, height} {}
    constexpr CSize(SIZE size) noexcept : SIZE(size) {}
    constexpr explicit CSize(POINT point) noexcept : SIZE{point.x, point.y} {}
    /// Width in the low 16 bits, height in the next 16, both signed.
    constexpr explicit CSize(DWORD packed) noexcept
        : SIZE{static_cast<SHORT>(packed & 0xFFFF), static_cast<SHORT>(packed >> 16)}
    {
    }

    constexpr void SetSize(int width, int height) noexcept { *this = CSize(width, height); }

    constexpr CSize& operator+=(SIZE size) noexcept
    {
        cx = vq::afx::wrappedSum(cx, size.cx);
        cy = vq::afx::wrappedSum(cy, size.cy);
        return *this;
    }
    constexpr CSize& operator-=(SIZE size) noexcept
    {
        cx = vq::afx::wrappedDifference(cx, size.cx);
        cy = vq::afx::wrappedDifference(cy, size.cy);
        return *this;
    }
    constexpr CSize operator+(SIZE size) const noexcept { return CSize(*this) += size; }
    constexpr CSize operator-(SIZE size) const noexcept { return CSize(*this) -= size; }
    constexpr CSize operator-() const noexcept { return CSize() - *this; }
    constexpr CPoint operator+(POINT point) const noexcept;
    constexpr CPoint operator-(POINT point) const noexcept;
    constexpr CRect operator+(const RECT* rect) const noexcept;
    constexpr CRect operator-(const RECT* rect) const noexcept;

    friend constexpr bool operator==(const CSize& a, const SIZE& b) noexcept { return a.cx == b.cx && a.cy == b.cy; }
    friend constexpr bool operator==(const CSize& a, const CSize& b) noexcept { return a.cx == b.cx && a.cy == b.cy; }
};

/// Marked as an alias because `CRect::TopLeft` hands out a corner of a rectangle as a point.
class __attribute__((may_alias)) CPoint : public POINT
{
public:
    constexpr CPoint() noexcept : POINT{0, 0} {}
    constexpr CPoint(int px, int py) noexcept : POINT{px, py} {}
    constexpr CPoint(POINT point) noexcept : POINT(point) {}
    constexpr explicit CPoint(SIZE size) noexcept : POINT{size.cx, size.cy} {}
    /// x in the low 16 bits, y in the next 16, both signed: the form of mouse messages.
    constexpr explicit CPoint(LPARAM packed) noexcept
        : POINT{static_cast<SHORT>(packed & 0xFFFF), static_cast<SHORT>(packed >> 16 & 0xFFFF)}
    {
    }

    constexpr void SetPoint(int px, int py) noexcept { *this = CPoint(px, py); }
    constexpr void Offset(int dx, int dy) noexcept
    {
        x = vq::afx::wrappedSum(x, dx);
        y = vq::afx::wrappedSum(y, dy);
    }
    constexpr void Offset(POINT by) noexcept { Offset(by.x, by.y); }
    constexpr void Offset(SIZE by) noexcept { Offset(by.cx, by.cy); }

    constexpr CPoint& operator+=(POINT by) noexcept
    {
        Offset(by);
        return *this;
    }
    constexpr CPoint& operator+=(SIZE by) noexcept
    {
        Offset(by);
        return *this;
    }
    constexpr CPoint& operator-=(POINT by) noexcept
    {
        x = vq::afx::wrappedDifference(x, by.x);
        y = vq::afx::wrappedDifference(y, by.y);
        return *this;
    }
    constexpr CPoint& operator-=(SIZE by) noexcept { return *this -= CPoint(by); }
    constexpr CPoint operator+(POINT by) const noexcept { return CPoint(*this) += by; }
    constexpr CPoint operator+(SIZE by) const noexcept { return CPoint(*this) += by; }
    constexpr CPoint operator-(SIZE by) const noexcept { return CPoint(*this) -= by; }
    /// From the other point to this one.
    constexpr CSize operator-(POINT from) const noexcept { return CSize(CPoint(*this) -= from); }
    constexpr CPoint operator-() const noexcept { return CPoint() -= *this; }
    constexpr CRect operator+(const RECT* rect) const noexcept;
    constexpr CRect operator-(const RECT* rect) const noexcept;

    friend constexpr bool operator==(const CPoint& a, const POINT& b) noexcept { return a.x == b.x && a.y == b.y; }
    friend constexpr bool operator==(const CPoint& a, const CPoint& b) noexcept { return a.x == b.x && a.y == b.y; }
};

constexpr CPoint CSize::operator+(POINT point) const noexcept
{
    return CPoint(point) += *this;
}

constexpr CPoint CSize::operator-(POINT point) const noexcept
{
    return CPoint(*this) -= point;
}
