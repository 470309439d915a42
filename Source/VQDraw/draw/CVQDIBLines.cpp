// SPDX-License-Identifier: MIT
// Straight lines: solid, with an arrow head, dashed, dotted.
#include "VQDraw/VQDIB.h"

#include "VQDraw/draw/Ink.h"

#include <array>

namespace {

struct Segment
{
    LONG x1, y1, x2, y2;
};

template <typename Prepare = void (&)(Gdiplus::Pen&)>
void drawLine(Gdiplus::Graphics* graphics, const Segment& line, Gdiplus::Color colour, double width,
              Prepare prepare = vq::leaveSolid)
{
    vq::drawWithPen(
        graphics, colour, width,
        [&](Gdiplus::Graphics& target, const Gdiplus::Pen& pen) {
            target.DrawLine(&pen, static_cast<INT>(line.x1), static_cast<INT>(line.y1), static_cast<INT>(line.x2),
                            static_cast<INT>(line.y2));
        },
        prepare);
}

void endInArrow(Gdiplus::Pen& pen)
{
    pen.SetEndCap(Gdiplus::LineCapArrowAnchor);
}

void makeDashes(Gdiplus::Pen& pen)
{
    pen.SetDashStyle(Gdiplus::DashStyleDash);
}

void makePixelsApart(Gdiplus::Pen& pen)
{
    constexpr std::array<Gdiplus::REAL, 2> kOnAndOff{1, 1};
    pen.SetDashPattern(kOnAndOff.data(), kOnAndOff.size());
}

} // namespace

void CVQDIB::Line(LONG x1, LONG y1, LONG x2, LONG y2, LONG r, LONG g, LONG b, LONG a, LONG width, bool arrow)
{
    Line(x1, y1, x2, y2, vq::colorRefOf(r, g, b), a, width, arrow);
}

void CVQDIB::Line(LONG x1, LONG y1, LONG x2, LONG y2, COLORREF colour, LONG alpha, LONG width, bool arrow)
{
    drawLine(m_pGraphics, {x1, y1, x2, y2}, vq::colourOf(colour, alpha), width, arrow ? endInArrow : vq::leaveSolid);
}

void CVQDIB::LineH(LONG x1, LONG x2, LONG y, COLORREF colour, LONG alpha)
{
    drawLine(m_pGraphics, {x1, y, x2, y}, vq::colourOf(colour, alpha), 1);
}

void CVQDIB::LineV(LONG y1, LONG y2, LONG x, COLORREF colour, LONG alpha)
{
    drawLine(m_pGraphics, {x, y1, x, y2}, vq::colourOf(colour, alpha), 1);
}

void CVQDIB::LineH(LONG y, COLORREF colour, LONG alpha, float width)
{
    drawLine(m_pGraphics, {0, y, m_iWidth, y}, vq::colourOf(colour, alpha), width);
}

void CVQDIB::LineV(LONG x, COLORREF colour, LONG alpha, float width)
{
    drawLine(m_pGraphics, {x, 0, x, m_iHeight}, vq::colourOf(colour, alpha), width);
}

void CVQDIB::LineHStipple(LONG x1, LONG x2, LONG y, COLORREF colour, LONG alpha)
{
    drawLine(m_pGraphics, {x1, y, x2, y}, vq::colourOf(colour, alpha), 1, makeDashes);
}

void CVQDIB::LineVStipple(LONG y1, LONG y2, LONG x, COLORREF colour, LONG alpha)
{
    drawLine(m_pGraphics, {x, y1, x, y2}, vq::colourOf(colour, alpha), 1, makeDashes);
}

void CVQDIB::LineHStipple(LONG y, COLORREF colour, LONG alpha)
{
    LineHStipple(0, m_iWidth, y, colour, alpha);
}

void CVQDIB::LineVStipple(LONG x, COLORREF colour, LONG alpha)
{
    LineVStipple(0, m_iHeight, x, colour, alpha);
}

void CVQDIB::LineStipple(LONG x1, LONG y1, LONG x2, LONG y2, COLORREF colour, LONG alpha)
{
    drawLine(m_pGraphics, {x1, y1, x2, y2}, vq::colourOf(colour, alpha), 1, makePixelsApart);
}

void CVQDIB::LineStipple(LONG x1, LONG y1, LONG x2, LONG y2, LONG r, LONG g, LONG b, LONG a)
{
    LineStipple(x1, y1, x2, y2, vq::colorRefOf(r, g, b), a);
}

void CVQDIB::LineStipple2(LONG x1, LONG y1, LONG x2, LONG y2, COLORREF colour, LONG alpha)
{
    drawLine(m_pGraphics, {x1, y1, x2, y2}, vq::colourOf(colour, alpha), 1, vq::makeRoundDots);
}

void CVQDIB::DrawBorder(COLORREF colour, LONG alpha, float width)
{
    LineV(m_iWidth - 1, colour, alpha, width);
    LineV(0, colour, alpha, width);
    LineH(m_iHeight - 1, colour, alpha, width);
    LineH(0, colour, alpha, width);
}
