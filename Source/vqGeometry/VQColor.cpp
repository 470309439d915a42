// SPDX-License-Identifier: MIT
#include "vqGeometry/VQColor.h"

#include <algorithm>

namespace {

constexpr BYTE clampToByte(int value)
{
    return static_cast<BYTE>(std::clamp(value, 0, 255));
}

/// Written so that what is not a number fails the first comparison.
BYTE byteFromUnit(float value)
{
    const float scaled = value * 255.0f;
    if (!(scaled > 0.0f))
        return 0;
    return scaled >= 255.0f ? BYTE{255} : static_cast<BYTE>(scaled);
}

} // namespace

constinit const CVQColor CVQColor::Black{0, 0, 0};
constinit const CVQColor CVQColor::White{255, 255, 255};

void CVQColor::Set(COLORREF colour, bool withAlpha)
{
    *this = CVQColor(GetRValue(colour), GetGValue(colour), GetBValue(colour),
                     withAlpha ? static_cast<BYTE>(colour >> 24) : BYTE{255});
}

void CVQColor::Set(int red, int green, int blue, int alpha)
{
    *this = CVQColor(clampToByte(red), clampToByte(green), clampToByte(blue), clampToByte(alpha));
}

void CVQColor::Set3fv(const float* rgb)
{
    if (rgb)
        *this = CVQColor(byteFromUnit(rgb[0]), byteFromUnit(rgb[1]), byteFromUnit(rgb[2]));
}

void CVQColor::Set4fv(const float* rgba)
{
    if (rgba)
        *this = CVQColor(byteFromUnit(rgba[0]), byteFromUnit(rgba[1]), byteFromUnit(rgba[2]), byteFromUnit(rgba[3]));
}

COLORREF CVQColor::GetCOLORREF() const
{
    return RGB(r, g, b);
}

DWORD CVQColor::GetPacked() const
{
    return GetCOLORREF() | static_cast<DWORD>(a) << 24;
}

CVQColor CVQColor::operator+(const CVQColor& other) const
{
    return {clampToByte(r + other.r), clampToByte(g + other.g), clampToByte(b + other.b), a};
}

CVQColor CVQColor::operator-(const CVQColor& other) const
{
    return {clampToByte(r - other.r), clampToByte(g - other.g), clampToByte(b - other.b), a};
}
