// SPDX-License-Identifier: MIT
// Polygons: outlined, filled, and written over what is there.
#include "VQDraw/VQDIB.h"

#include "VQDraw/draw/Ink.h"
#include "VQDraw/image/GraphicsSettings.h"

#include <algorithm>
#include <memory>
#include <new>

namespace {

/// GDI+ refuses polygons below three points. A polygon for which memory is missing is not drawn.
void addPolygon(Gdiplus::GraphicsPath& path, const CPoint* points, int count)
{
    if (!points || count <= 0)
        return;
    const std::unique_ptr<Gdiplus::Point[]> copies(new (std::nothrow) Gdiplus::Point[static_cast<std::size_t>(count)]);
    if (!copies)
        return;
    std::transform(points, points + count, copies.get(), [](const CPoint& point) {
        return Gdiplus::Point(static_cast<INT>(point.x), static_cast<INT>(point.y));
    });
    path.AddPolygon(copies.get(), count);
}

} // namespace

void CVQDIB::FillRgn(CPoint* points, int count, COLORREF colour, LONG alpha)
{
    vq::fillWithColour(m_pGraphics, vq::colourOf(colour, alpha), [&](Gdiplus::Graphics& graphics, const auto& brush) {
        Gdiplus::GraphicsPath path;
        addPolygon(path, points, count);
        graphics.FillPath(&brush, &path);
    });
}

void CVQDIB::DrawRgn(CPoint* points, int count, int width, COLORREF colour, LONG alpha)
{
    vq::drawWithPen(m_pGraphics, vq::colourOf(colour, alpha), width,
                    [&](Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen) {
                        Gdiplus::GraphicsPath path;
                        addPolygon(path, points, count);
                        graphics.DrawPath(&pen, &path);
                    });
}

void CVQDIB::ClearRgn(CPoint* points, int count, COLORREF colour, LONG alpha)
{
    if (!m_pGraphics)
        return;
    const vq::SourceCopy mode(*m_pGraphics);
    FillRgn(points, count, colour, alpha);
}

void CVQDIB::ClearRgnPath(CPoint* points, int count, int width, COLORREF colour, LONG alpha)
{
    if (!m_pGraphics)
        return;
    const vq::SourceCopy mode(*m_pGraphics);
    DrawRgn(points, count, width, colour, alpha);
}
