// SPDX-License-Identifier: MIT
// Text in rectangles.
#include "VQDraw/VQDIB.h"

#include "VQDraw/draw/Ink.h"
#include "VQDraw/draw/MeasuringSurface.h"
#include "VQDraw/draw/TextArguments.h"

#include <cmath>

namespace {

using Gdiplus::REAL;

constexpr UINT kCentred = 1;
constexpr UINT kRight = 2;
constexpr UINT kMiddle = 4;
constexpr UINT kBottom = 8;
constexpr UINT kUnbroken = 32;

Gdiplus::StringAlignment alignmentOf(bool centred, bool atTheEnd)
{
    if (atTheEnd)
        return Gdiplus::StringAlignmentFar;
    return centred ? Gdiplus::StringAlignmentCenter : Gdiplus::StringAlignmentNear;
}

/// Both edges belong to the rectangle.
Gdiplus::RectF layoutOf(const RECT& rect)
{
    const std::int64_t width = std::int64_t{rect.right} - rect.left + 1;
    const std::int64_t height = std::int64_t{rect.bottom} - rect.top + 1;
    return Gdiplus::RectF(static_cast<REAL>(rect.left), static_cast<REAL>(rect.top), static_cast<REAL>(width),
                          static_cast<REAL>(height));
}

/// In the middle, from a whole pixel on, as hinted glyphs stand.
Gdiplus::RectF inTheMiddle(const Gdiplus::RectF& layout, REAL height)
{
    return Gdiplus::RectF(layout.X, std::trunc(layout.Y + (layout.Height - height) * 0.5F), layout.Width, height);
}

constexpr POINT kFirstLineOffset{1, 2};

CRect lineFrom(const CRect& above, LONG top, LONG height)
{
    return CRect(above.left, top, above.right, vq::toCoordinate(std::int64_t{top} + height));
}

CRect moved(const CRect& rect, POINT offset)
{
    return CRect(
        vq::toCoordinate(std::int64_t{rect.left} + offset.x), vq::toCoordinate(std::int64_t{rect.top} + offset.y),
        vq::toCoordinate(std::int64_t{rect.right} + offset.x), vq::toCoordinate(std::int64_t{rect.bottom} + offset.y));
}

} // namespace

void CVQDIB::DrawTextW(const CString& text, RECT* rect, UINT format)
{
    if (!m_pGraphics || !rect || vq::isEmptyText(text))
        return;
    const Gdiplus::Font* const font = TextFont();
    Gdiplus::RectF layout = layoutOf(*rect);
    Gdiplus::StringFormat stringFormat(format & kUnbroken ? Gdiplus::StringFormatFlagsNoWrap : 0);
    stringFormat.SetAlignment(alignmentOf(format & kCentred, format & kRight));
    stringFormat.SetLineAlignment(alignmentOf(format & kMiddle, format & kBottom));
    if (m_RenderingHint == Gdiplus::TextRenderingHintAntiAliasGridFit && format & kMiddle) {
        const vq::BorrowedSurface surface(m_gdiplusToken != 0);
        layout = inTheMiddle(layout, surface->measure(text, font, layout, &stringFormat, m_RenderingHint).Height);
        stringFormat.SetLineAlignment(Gdiplus::StringAlignmentNear);
    }
    DrawString(font, layout, &stringFormat, text);
}

void CVQDIB::DrawTextW(const CString& text, RECT* rect, UINT format, const CArray<COLORREF, const COLORREF&>& colours)
{
    if (!m_pGraphics || !rect)
        return;
    CRect area = *rect;
    int start = 0;
    INT_PTR number = 0;
    for (CString line = text.Tokenize(L"\n", start); !line.IsEmpty(); line = text.Tokenize(L"\n", start), ++number) {
        const LONG height = GetTextSize(line).cy;
        area = number == 0 ? moved(lineFrom(area, area.top, height), kFirstLineOffset)
                           : lineFrom(area, area.bottom, height);
        const COLORREF background = colours.IsEmpty() ? 0 : colours[number];
        if (background != 0 && number == 0)
            FillRect(area, background, 255);
        else if (background != 0)
            FillLine(area, background);
        DrawTextW(line, &area, format);
    }
}

/// The lines after the first are filled as their rectangle stands: one from right to left has no background.
void CVQDIB::FillLine(const CRect& line, COLORREF colour)
{
    vq::fillWithColour(m_pGraphics, vq::colourOf(colour, 255), [&](Gdiplus::Graphics& graphics, const auto& brush) {
        const vq::HardEdges hardEdges(graphics, IsEnableAntialias());
        graphics.FillRectangle(&brush, Reachable(line));
    });
}
