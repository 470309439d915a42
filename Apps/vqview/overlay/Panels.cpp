// SPDX-License-Identifier: MIT
#include "vqview/overlay/Panels.h"

#include <algorithm>
#include <cmath>

namespace vqview {

namespace {

constexpr int kSmallestSize = 7; // of fonts, at 96 dots per inch
constexpr int kLargestSize = 40;
constexpr int kUsualSize = 12;
constexpr LONG kEmsBeside = 6; // a sixth of an em on either side belongs to a text's measured width

LONG sideOf(const LOGFONTW& font)
{
    return std::abs(font.lfHeight) / kEmsBeside;
}

int boundedSize(int nominalSize)
{
    return nominalSize == 0 ? kUsualSize : std::clamp(std::abs(nominalSize), kSmallestSize, kLargestSize);
}

Gdiplus::Color gdiColour(const CVQColor& colour)
{
    return {colour.a, colour.r, colour.g, colour.b};
}

/// Clockwise from the upper left; plain corners have a radius of 0.
void addRounded(Gdiplus::GraphicsPath& path, const Gdiplus::RectF& box, float radius, Corners corners)
{
    const float upper = corners == Corners::Bottom ? 0 : radius;
    const float lower = corners == Corners::Top ? 0 : radius;
    const auto corner = [&path](float x, float y, float size, float fromRight, float fromBottom, float angle) {
        if (size > 0)
            path.AddArc(x - fromRight * 2 * size, y - fromBottom * 2 * size, 2 * size, 2 * size, angle, 90);
        else
            path.AddLine(x, y, x, y);
    };
    corner(box.X, box.Y, upper, 0, 0, 180);
    corner(box.X + box.Width, box.Y, upper, 1, 0, 270);
    corner(box.X + box.Width, box.Y + box.Height, lower, 1, 1, 0);
    corner(box.X, box.Y + box.Height, lower, 0, 1, 90);
    path.CloseFigure();
}

} // namespace

LONG pixels(float units, float scale)
{
    return static_cast<LONG>(std::lround(units * scale));
}

LONG TextStyle::lineHeight() const
{
    return CVQDIB::GetTextSize(font, L"Ag").cy;
}

LONG TextStyle::widthOf(const CString& text) const
{
    return text.IsEmpty() ? 0 : std::max<LONG>(CVQDIB::GetTextSize(font, text).cx - 2 * sideOf(font), 0);
}

CString TextStyle::fitted(const CString& text, LONG width) const
{
    if (widthOf(text) <= width)
        return text;
    const CString ellipsis(L"\x2026");
    int fits = 0;
    int tooMany = text.GetLength();
    while (tooMany - fits > 1) {
        const int middle = (fits + tooMany) / 2;
        (widthOf(text.Left(middle) + ellipsis) <= width ? fits : tooMany) = middle;
    }
    return fits > 0 ? text.Left(fits) + ellipsis : CString();
}

TextStyle styleOf(eDrawPropertyFont font, float scale)
{
    const CVQFont stored = CVQDrawProperty::GetFont(font);
    TextStyle style{stored.m_LogFont, stored.m_uiColor, stored.m_bShadow};
    style.font.lfHeight = -std::max<LONG>(pixels(static_cast<float>(boundedSize(stored.m_iNominalSize)), scale), 1);
    style.font.lfWidth = 0;
    style.font.lfEscapement = 0;
    style.font.lfOrientation = 0;
    return style;
}

void drawLine(CVQDIB& image, const TextStyle& style, const CString& text, LONG left, LONG right, LONG y, Align align)
{
    LOGFONTW font = style.font;
    image.SetTextFont(font);
    image.SetTextColor(style.colour, 255);
    image.EnableTextShadow(style.hasShadow);
    const LONG room = right - left - style.widthOf(text);
    const LONG shift = align == Align::Left ? 0 : align == Align::Right ? room : room / 2;
    image.TextOutW(left + shift - sideOf(font), y, text.GetString());
}

void fillRounded(CVQDIB& image, const CRect& box, LONG radius, Corners corners, const PanelFill& fill)
{
    Gdiplus::Graphics* const graphics = image.GetGraphics();
    if (!graphics || box.Width() < 1 || box.Height() < 1)
        return;
    // Pixel centres lie at whole numbers: edges half a pixel before them cover pixels in full.
    const Gdiplus::RectF edges(static_cast<float>(box.left) - 0.5F, static_cast<float>(box.top) - 0.5F,
                               static_cast<float>(box.Width()), static_cast<float>(box.Height()));
    Gdiplus::GraphicsPath path;
    addRounded(path, edges, static_cast<float>(std::min<LONG>({radius, box.Width() / 2, box.Height() / 2})), corners);
    // A pixel more at both ends: there the brush begins anew.
    const Gdiplus::LinearGradientBrush brush(Gdiplus::PointF(0, edges.Y - 1),
                                             Gdiplus::PointF(0, edges.Y + edges.Height + 1), gdiColour(fill.top),
                                             gdiColour(fill.bottom));
    graphics->FillPath(&brush, &path);
}

void dropShadow(CVQDIB& image, const CRect& box, LONG radius, float scale)
{
    const LONG blur = std::max<LONG>(pixels(4, scale), 1);
    const LONG room = 3 * blur; // two passes reach twice the radius
    const LONG drop = pixels(2, scale);
    CVQDIB shadow(box.Width() + 2 * room, box.Height() + 2 * room);
    if (!shadow.GetImageBuffer())
        return;
    const CVQColor ink(0, 0, 0, 96);
    fillRounded(shadow, {room, room, room + box.Width(), room + box.Height()}, radius, Corners::All, {ink, ink});
    shadow.Smooth(static_cast<ULONG>(blur));
    shadow.Smooth(static_cast<ULONG>(blur));
    image.Paste(shadow, box.left - room, box.top - room + drop);
}

CVQColor withAlpha(CVQColor colour, int alpha)
{
    colour.a = static_cast<BYTE>(std::clamp(alpha, 0, 255));
    return colour;
}

CVQColor mixed(const CVQColor& first, const CVQColor& second, float share)
{
    const auto channel = [share](BYTE from, BYTE to) {
        return static_cast<BYTE>(std::lround(static_cast<float>(from) + static_cast<float>(to - from) * share));
    };
    return {channel(first.r, second.r), channel(first.g, second.g), channel(first.b, second.b), first.a};
}

float brightnessOf(const CVQColor& colour)
{
    constexpr float kWhite = 255;
    return (0.299F * colour.r + 0.587F * colour.g + 0.114F * colour.b) / kWhite;
}

} // namespace vqview
