// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Numbers, status values, points, sizes and rectangles.

#include "Platform/win32/Win32.h"

namespace Gdiplus {

using REAL = float;
using ::INT16;
using ::UINT16;

/// What every call answers. Kept as a plain 32-bit number, so that any value can be cast to it.
enum Status : INT {
    Ok = 0,
    GenericError = 1,
    InvalidParameter = 2,
    OutOfMemory = 3,
    ObjectBusy = 4,
    InsufficientBuffer = 5,
    NotImplemented = 6,
    Win32Error = 7,
    WrongState = 8,
    Aborted = 9,
    FileNotFound = 10,
    ValueOverflow = 11,
    AccessDenied = 12,
    UnknownImageFormat = 13,
    FontFamilyNotFound = 14,
    FontStyleNotFound = 15,
    NotTrueTypeFont = 16,
    UnsupportedGdiplusVersion = 17,
    GdiplusNotInitialized = 18,
    PropertyNotFound = 19,
    PropertyNotSupported = 20,
    ProfileNotFound = 21
};
using GpStatus = Status;

class Size
{
public:
    INT Width = 0;
    INT Height = 0;

    constexpr Size() = default;
    constexpr Size(INT width, INT height) : Width(width), Height(height) {}

    constexpr BOOL Empty() const { return Width == 0 && Height == 0; }
    constexpr BOOL Equals(const Size& size) const { return Width == size.Width && Height == size.Height; }
    constexpr Size operator+(const Size& size) const { return Size(Width + size.Width, Height + size.Height); }
    constexpr Size operator-(const Size& size) const { return Size(Width - size.Width, Height - size.Height); }
};

class SizeF
{
public:
    REAL Width = 0;
    REAL Height = 0;

    constexpr SizeF() = default;
    constexpr SizeF(REAL width, REAL height) : Width(width), Height(height) {}

    constexpr BOOL Empty() const { return Width == 0.0f && Height == 0.0f; }
    constexpr BOOL Equals(const SizeF& size) const { return Width == size.Width && Height == size.Height; }
    constexpr SizeF operator+(const SizeF& size) const { return SizeF(Width + size.Width, Height + size.Height); }
    constexpr SizeF operator-(const SizeF& size) const { return SizeF(Width - size.Width, Height - size.Height); }
};

class Point
{
public:
    INT X = 0;
    INT Y = 0;

    constexpr Point() = default;
    constexpr Point(INT x, INT y) : X(x), Y(y) {}
    constexpr Point(const Size& size) : X(size.Width), Y(size.Height) {}

    constexpr BOOL Equals(const Point& point) const { return X == point.X && Y == point.Y; }
    constexpr Point operator+(const Point& point) const { return Point(X + point.X, Y + point.Y); }
    constexpr Point operator-(const Point& point) const { return Point(X - point.X, Y - point.Y); }
};

class PointF
{
public:
    REAL X = 0;
    REAL Y = 0;

    constexpr PointF() = default;
    constexpr PointF(REAL x, REAL y) : X(x), Y(y) {}
    constexpr PointF(const SizeF& size) : X(size.Width), Y(size.Height) {}

    constexpr BOOL Equals(const PointF& point) const { return X == point.X && Y == point.Y; }
    constexpr PointF operator+(const PointF& point) const { return PointF(X + point.X, Y + point.Y); }
    constexpr PointF operator-(const PointF& point) const { return PointF(X - point.X, Y - point.Y); }
};

} // namespace Gdiplus
