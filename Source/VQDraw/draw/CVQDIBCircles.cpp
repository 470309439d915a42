// SPDX-License-Identifier: MIT
// Circles and ellipses: outlined, dashed and filled. And the selection that a circle makes.
#include "VQDraw/VQDIB.h"

#include "VQDraw/draw/Ink.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// GDI+ turns whole numbers into single precision by itself, where sums that leave 32 bits still have a value.
Gdiplus::RectF box(double left, double top, double width, double height)
{
    return {static_cast<float>(left), static_cast<float>(top), static_cast<float>(width), static_cast<float>(height)};
}

Gdiplus::RectF boxOf(const Gdiplus::Rect& rect)
{
    return box(rect.X, rect.Y, rect.Width, rect.Height);
}

Gdiplus::RectF normalisedBoxOf(CRect rect)
{
    rect.NormalizeRect();
    return box(rect.left, rect.top, static_cast<double>(rect.right) - rect.left,
               static_cast<double>(rect.bottom) - rect.top);
}

Gdiplus::RectF boxAround(LONG cx, LONG cy, double radius)
{
    return box(cx - radius, cy - radius, 2 * radius, 2 * radius);
}

double wholeDistance(LONG x1, LONG y1, LONG x2, LONG y2)
{
    const double across = static_cast<double>(x1) - x2;
    const double down = static_cast<double>(y1) - y2;
    return std::trunc(std::sqrt(down * down + across * across));
}

/// Two pixels to each side, as far as coordinates go.
CRect handleAround(CPoint point)
{
    constexpr LONG kReach = 2;
    constexpr LONG kLeast = std::numeric_limits<LONG>::min() + kReach;
    constexpr LONG kMost = std::numeric_limits<LONG>::max() - kReach;
    return {std::max(point.x, kLeast) - kReach, std::max(point.y, kLeast) - kReach, std::min(point.x, kMost) + kReach,
            std::min(point.y, kMost) + kReach};
}

void makeDashes(Gdiplus::Pen& pen)
{
    constexpr Gdiplus::REAL kOnAndOff[] = {2, 3};
    pen.SetDashPattern(kOnAndOff, 2);
}

void drawEllipse(Gdiplus::Graphics* graphics, const Gdiplus::RectF& rect, Gdiplus::Color colour, double width,
                 bool dashed = false)
{
    vq::drawWithPen(
        graphics, colour, width,
        [&](Gdiplus::Graphics& target, const Gdiplus::Pen& pen) { target.DrawEllipse(&pen, rect); },
        dashed ? makeDashes : vq::leaveSolid);
}

void fillEllipse(Gdiplus::Graphics* graphics, const Gdiplus::RectF& rect, Gdiplus::Color colour)
{
    vq::fillWithColour(graphics, colour,
                       [&](Gdiplus::Graphics& target, const auto& brush) { target.FillEllipse(&brush, rect); });
}

} // namespace

void CVQDIB::DrawCircle(LONG cx, LONG cy, LONG radius, COLORREF colour, LONG alpha, LONG width)
{
    drawEllipse(m_pGraphics, boxAround(cx, cy, radius), vq::colourOf(colour, alpha), width);
}

void CVQDIB::DrawCircle(LONG cx, LONG cy, LONG px, LONG py, COLORREF colour, LONG alpha)
{
    drawEllipse(m_pGraphics, boxAround(cx, cy, wholeDistance(cx, cy, px, py)), vq::colourOf(colour, alpha), 1);
}

void CVQDIB::DrawCircle(Gdiplus::Rect rect, Gdiplus::Color colour, double width, bool dashed)
{
    drawEllipse(m_pGraphics, boxOf(rect), colour, width, dashed);
}

void CVQDIB::DrawCircle(CRect rect, COLORREF colour, BYTE alpha, double width, bool dashed)
{
    drawEllipse(m_pGraphics, normalisedBoxOf(rect), vq::colourOf(colour, alpha), width, dashed);
}

void CVQDIB::FillCircle(Gdiplus::Rect rect, Gdiplus::Color colour)
{
    fillEllipse(m_pGraphics, boxOf(rect), colour);
}

void CVQDIB::FillCircle(CRect rect, COLORREF colour, BYTE alpha)
{
    fillEllipse(m_pGraphics, normalisedBoxOf(rect), vq::colourOf(colour, alpha));
}

void CVQDIB::DrawFilledCircle(CRect rect, COLORREF outline, COLORREF fill)
{
    FillCircle(rect, fill, 255);
    DrawCircle(rect, outline, 255, 1, false);
}

void CVQDIB::DrawCircleSelectionDefault(CVQDIB* image, LONG cx, LONG cy, LONG px, LONG py, COLORREF colour, LONG alpha)
{
    if (!image)
        return;
    constexpr COLORREF kWhite = RGB(255, 255, 255);
    const LONG lineAlpha = std::clamp<LONG>(alpha, -32, 255 - 32) + 32;
    const Gdiplus::RectF around = boxAround(cx, cy, wholeDistance(cx, cy, px, py));
    fillEllipse(image->m_pGraphics, around, vq::colourOf(colour, alpha));
    drawEllipse(image->m_pGraphics, around, vq::colourOf(kWhite, lineAlpha), 1, true);
    for (const CPoint end : {CPoint(cx, cy), CPoint(px, py)}) {
        CRect handle = handleAround(end);
        image->DrawRect(handle, kWhite, lineAlpha);
    }
    image->Line(cx, cy, px, py, kWhite, lineAlpha, 1, false);
}
