// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// How pixels lie in memory. A bitmap stores 24bppRGB, 32bppRGB, 32bppARGB and 32bppPARGB; the other formats are
/// known by name.

#include "Platform/gdiplus/Types.h"

// Outside the namespace, where the real headers have macros.
constexpr INT PixelFormatIndexed = 0x00010000;
constexpr INT PixelFormatGDI = 0x00020000;
constexpr INT PixelFormatAlpha = 0x00040000;
constexpr INT PixelFormatPAlpha = 0x00080000;
constexpr INT PixelFormatExtended = 0x00100000;
constexpr INT PixelFormatCanonical = 0x00200000;
constexpr INT PixelFormatUndefined = 0;
constexpr INT PixelFormatDontCare = 0;
constexpr INT PixelFormat1bppIndexed = 1 | 1 << 8 | PixelFormatIndexed | PixelFormatGDI;
constexpr INT PixelFormat4bppIndexed = 2 | 4 << 8 | PixelFormatIndexed | PixelFormatGDI;
constexpr INT PixelFormat8bppIndexed = 3 | 8 << 8 | PixelFormatIndexed | PixelFormatGDI;
constexpr INT PixelFormat16bppGrayScale = 4 | 16 << 8 | PixelFormatExtended;
constexpr INT PixelFormat16bppRGB555 = 5 | 16 << 8 | PixelFormatGDI;
constexpr INT PixelFormat16bppRGB565 = 6 | 16 << 8 | PixelFormatGDI;
constexpr INT PixelFormat16bppARGB1555 = 7 | 16 << 8 | PixelFormatAlpha | PixelFormatGDI;
constexpr INT PixelFormat24bppRGB = 8 | 24 << 8 | PixelFormatGDI;
constexpr INT PixelFormat32bppRGB = 9 | 32 << 8 | PixelFormatGDI;
constexpr INT PixelFormat32bppARGB = 10 | 32 << 8 | PixelFormatAlpha | PixelFormatGDI | PixelFormatCanonical;
constexpr INT PixelFormat32bppPARGB = 11 | 32 << 8 | PixelFormatAlpha | PixelFormatPAlpha | PixelFormatGDI;
constexpr INT PixelFormat48bppRGB = 12 | 48 << 8 | PixelFormatExtended;
constexpr INT PixelFormat64bppARGB = 13 | 64 << 8 | PixelFormatAlpha | PixelFormatCanonical | PixelFormatExtended;
constexpr INT PixelFormat64bppPARGB = 14 | 64 << 8 | PixelFormatAlpha | PixelFormatPAlpha | PixelFormatExtended;
constexpr INT PixelFormatMax = 15;

namespace Gdiplus {

/// A colour as a number: 0xAARRGGBB, in memory blue, green, red, alpha.
using ARGB = DWORD;
using PixelFormat = INT;

/// Bits a pixel takes.
constexpr UINT GetPixelFormatSize(PixelFormat pixfmt)
{
    return static_cast<UINT>(pixfmt) >> 8 & 0xFF;
}
constexpr BOOL IsIndexedPixelFormat(PixelFormat pixfmt)
{
    return (pixfmt & PixelFormatIndexed) != 0;
}
constexpr BOOL IsAlphaPixelFormat(PixelFormat pixfmt)
{
    return (pixfmt & PixelFormatAlpha) != 0;
}
constexpr BOOL IsExtendedPixelFormat(PixelFormat pixfmt)
{
    return (pixfmt & PixelFormatExtended) != 0;
}
constexpr BOOL IsCanonicalPixelFormat(PixelFormat pixfmt)
{
    return (pixfmt & PixelFormatCanonical) != 0;
}

} // namespace Gdiplus
