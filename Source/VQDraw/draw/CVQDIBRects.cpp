// SPDX-License-Identifier: MIT
// Rectangles with straight corners: outlined and filled.
#include "VQDraw/VQDIB.h"

#include "VQDraw/draw/Ink.h"

#include <algorithm>

namespace {

CRect normalised(CRect rect)
{
    rect.NormalizeRect();
    return rect;
}

} // namespace

/// The rectangle as GDI+ takes it. GDI+ counts in single precision, whose whole numbers end at 2^24: edges far out of
/// sight come nearer, so that those in sight stay where they are.
Gdiplus::Rect CVQDIB::Reachable(const CRect& rect) const
{
    constexpr LONG kFar = 1 << 22; // hosts that scale their graphics see a little beyond the image
    const auto place = [](LONG position, LONG size) {
        return static_cast<INT>(std::clamp(position, -kFar, size + kFar)); // sizes are below 2^29
    };
    const INT left = place(rect.left, m_iWidth);
    const INT top = place(rect.top, m_iHeight);
    return {left, top, place(rect.right, m_iWidth) - left, place(rect.bottom, m_iHeight) - top};
}

void CVQDIB::DrawRect(CRect& rect, COLORREF colour, LONG alpha)
{
    rect.NormalizeRect();
    vq::drawWithPen(
        m_pGraphics, vq::colourOf(colour, alpha), 1,
        [&](Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen) { graphics.DrawRectangle(&pen, Reachable(rect)); },
        [](Gdiplus::Pen& pen) { pen.SetAlignment(Gdiplus::PenAlignmentInset); });
}

void CVQDIB::DrawStippleRect(CRect& rect, COLORREF colour, LONG alpha)
{
    rect.NormalizeRect();
    vq::drawWithPen(
        m_pGraphics, vq::colourOf(colour, alpha), 1,
        [&](Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen) {
            Gdiplus::GraphicsPath path;
            path.AddRectangle(Reachable(rect));
            graphics.DrawPath(&pen, &path);
        },
        vq::makeRoundDots);
}

void CVQDIB::Draw3DRect(CRect& rect, COLORREF topLeft, COLORREF bottomRight, LONG alpha, LONG width)
{
    rect.NormalizeRect();
    Line(rect.left, rect.top, rect.right, rect.top, topLeft, alpha, width, false);
    Line(rect.left, rect.top, rect.left, rect.bottom, topLeft, alpha, width, false);
    Line(rect.left, rect.bottom, rect.right, rect.bottom, bottomRight, alpha, width, false);
    Line(rect.right, rect.bottom, rect.right, rect.top, bottomRight, alpha, width, false);
}

void CVQDIB::FillRect(CRect rect, COLORREF colour, LONG alpha)
{
    vq::fillWithColour(m_pGraphics, vq::colourOf(colour, alpha), [&](Gdiplus::Graphics& graphics, const auto& brush) {
        const vq::HardEdges hardEdges(graphics, IsEnableAntialias());
        graphics.FillRectangle(&brush, Reachable(normalised(rect)));
    });
}

void CVQDIB::FillRect(CRect rect, Gdiplus::LinearGradientBrush& brush)
{
    if (!m_pGraphics)
        return;
    const vq::HardEdges hardEdges(*m_pGraphics, IsEnableAntialias());
    m_pGraphics->FillRectangle(&brush, Reachable(normalised(rect)));
}

void CVQDIB::FillHatchRect(CRect rect, COLORREF colour, LONG alpha, Gdiplus::HatchStyle style)
{
    if (!m_pGraphics)
        return;
    const Gdiplus::HatchBrush brush(style, vq::colourOf(colour, alpha), Gdiplus::Color(0));
    m_pGraphics->FillRectangle(&brush, Reachable(rect));
}

void CVQDIB::FillGradientRoundRect(CRect rect, int, Gdiplus::PointF p1, Gdiplus::PointF p2, COLORREF c1, COLORREF c2,
                                   BYTE a1, BYTE a2)
{
    if (!m_pGraphics)
        return;
    Gdiplus::LinearGradientBrush brush(p1, p2, vq::colourOf(c1, a1), vq::colourOf(c2, a2)); // tiles by itself
    constexpr Gdiplus::REAL kSharesOfSecond[] = {0, 0, 1};
    constexpr Gdiplus::REAL kPositions[] = {0, 0.8F, 1};
    brush.SetBlend(kSharesOfSecond, kPositions, 3);
    m_pGraphics->FillRectangle(&brush, Reachable(normalised(rect)));
}
