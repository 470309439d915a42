// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Colours, and pens and brushes that live for one call. What GDI+ refuses to draw, it remembers as the last status of
/// the graphics; a setting that it refuses does not keep the rest from being drawn.

#include "Platform/Platform.h"
#include "VQDraw/image/PixelFormulas.h"

#include <cstdint>

namespace vq {

/// Of alpha the low 8 bits count; the top byte of the colour is ignored.
inline Gdiplus::Color colourOf(COLORREF colour, LONG alpha)
{
    return {pixelFromColorRef(colour, static_cast<std::uint8_t>(alpha))};
}

/// The low 8 bits of each count.
inline COLORREF colorRefOf(LONG r, LONG g, LONG b)
{
    return RGB(static_cast<BYTE>(r), static_cast<BYTE>(g), static_cast<BYTE>(b));
}

/// What a host gives as the width of a pen: GDI+ would take a negative one by its size.
inline float penWidth(double width)
{
    return width >= 0 ? static_cast<float>(width) : 1;
}

inline void leaveSolid(Gdiplus::Pen&) {}

/// Calls `draw(graphics, pen)` with a pen that `prepare(pen)` was called for. Without a graphics nothing is drawn.
template <typename Draw, typename Prepare = void (&)(Gdiplus::Pen&)>
void drawWithPen(Gdiplus::Graphics* graphics, Gdiplus::Color colour, double width, Draw draw,
                 Prepare prepare = leaveSolid)
{
    if (!graphics)
        return;
    Gdiplus::Pen pen(colour, penWidth(width));
    prepare(pen);
    draw(*graphics, pen);
}

/// Calls `fill(graphics, brush)`. Without a graphics nothing is drawn.
template <typename Fill>
void fillWithColour(Gdiplus::Graphics* graphics, Gdiplus::Color colour, Fill fill)
{
    if (!graphics)
        return;
    const Gdiplus::SolidBrush brush(colour);
    fill(*graphics, brush);
}

/// Dots of a pen's width, as far apart.
inline void makeRoundDots(Gdiplus::Pen& pen)
{
    pen.SetDashCap(Gdiplus::DashCapRound);
    pen.SetDashStyle(Gdiplus::DashStyleDot);
}

/// Fills have hard edges for as long as it lives, where they had smooth ones.
class HardEdges
{
public:
    HardEdges(Gdiplus::Graphics& graphics, bool smooth) : m_graphics(graphics), m_smooth(smooth)
    {
        if (m_smooth)
            m_graphics.SetSmoothingMode(Gdiplus::SmoothingModeNone);
    }
    ~HardEdges()
    {
        if (m_smooth)
            m_graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    }
    HardEdges(const HardEdges&) = delete;
    HardEdges& operator=(const HardEdges&) = delete;

private:
    Gdiplus::Graphics& m_graphics;
    bool m_smooth;
};

} // namespace vq
