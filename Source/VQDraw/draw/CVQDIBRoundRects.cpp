// SPDX-License-Identifier: MIT
// Rectangles with round corners.
#include "VQDraw/VQDIB.h"

#include "VQDraw/draw/Ink.h"

namespace {

/// Four quarters of circles, which GDI+ joins; it refuses those of no size.
void addRoundCorners(Gdiplus::GraphicsPath& path, const CRect& rect, int corner)
{
    const auto diameter = static_cast<float>(corner);
    const auto left = static_cast<float>(rect.left);
    const auto top = static_cast<float>(rect.top);
    const auto right = static_cast<float>(static_cast<double>(rect.right) - corner);
    const auto bottom = static_cast<float>(static_cast<double>(rect.bottom) - corner);
    path.AddArc(left, top, diameter, diameter, 180, 90);
    path.AddArc(right, top, diameter, diameter, 270, 90);
    path.AddArc(right, bottom, diameter, diameter, 0, 90);
    path.AddArc(left, bottom, diameter, diameter, 90, 90);
}

} // namespace

void CVQDIB::AddRoundRect(Gdiplus::GraphicsPath& path, CRect rect, int corner) const
{
    rect.NormalizeRect();
    if (corner > 0)
        addRoundCorners(path, rect, corner);
    else if (corner == 0)
        path.AddRectangle(Reachable(rect));
}

void CVQDIB::DrawRoundRect(CRect rect, int corner, int width, COLORREF colour, BYTE alpha)
{
    vq::drawWithPen(m_pGraphics, vq::colourOf(colour, alpha), width,
                    [&](Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen) {
                        Gdiplus::GraphicsPath path;
                        AddRoundRect(path, rect, corner);
                        path.CloseFigure();
                        graphics.DrawPath(&pen, &path);
                    });
}

void CVQDIB::FillRoundRect(CRect rect, int corner, COLORREF colour, BYTE alpha)
{
    vq::fillWithColour(m_pGraphics, vq::colourOf(colour, alpha), [&](Gdiplus::Graphics& graphics, const auto& brush) {
        Gdiplus::GraphicsPath path;
        AddRoundRect(path, rect, corner);
        graphics.FillPath(&brush, &path);
    });
}

void CVQDIB::DrawFilledRoundRect(CRect rect, int corner, int width, COLORREF fill, BYTE fillAlpha, COLORREF outline,
                                 BYTE outlineAlpha)
{
    FillRoundRect(rect, corner, fill, fillAlpha);
    DrawRoundRect(rect, corner, width, outline, outlineAlpha);
}
