// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "vqGeometry/Export.h"

/// A colour of four bytes, in memory red, green, blue, alpha: the order that OpenGL takes.
class VQGEOMETRY_API CVQColor
{
public:
    BYTE r, g, b, a;

    /// Opaque black.
    constexpr CVQColor() : CVQColor(0, 0, 0) {}
    constexpr CVQColor(BYTE red, BYTE green, BYTE blue, BYTE alpha = 255) : r(red), g(green), b(blue), a(alpha) {}

    /// From a `COLORREF`. The top byte becomes the alpha when `withAlpha` is set; otherwise alpha is 255.
    void Set(COLORREF colour, bool withAlpha);
    /// Each value is clamped to 0 .. 255.
    void Set(int red, int green, int blue, int alpha);
    /// From red, green, blue in 0.0 .. 1.0; alpha becomes 255. A value is multiplied by 255 in single precision and
    /// truncated, then clamped to 0 .. 255; what is not a number is 0. A null pointer changes nothing.
    void Set3fv(const float* rgb);
    /// As `Set3fv`, with the alpha as fourth value.
    void Set4fv(const float* rgba);

    /// Alpha is dropped.
    COLORREF GetCOLORREF() const;
    /// Red in the low byte, alpha in the high byte.
    DWORD GetPacked() const;
    BYTE GetR() const { return r; }
    BYTE GetG() const { return g; }
    BYTE GetB() const { return b; }
    BYTE GetA() const { return a; }

    /// Red, green and blue are added, at most 255; alpha is that of the left colour.
    CVQColor operator+(const CVQColor& other) const;
    /// Red, green and blue are subtracted, at least 0; alpha is that of the left colour.
    CVQColor operator-(const CVQColor& other) const;
    bool operator==(const CVQColor& other) const = default;

    static const CVQColor Black;
    static const CVQColor White;
};

static_assert(sizeof(CVQColor) == 4, "stored in documents as four bytes");
