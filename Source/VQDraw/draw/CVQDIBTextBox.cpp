// SPDX-License-Identifier: MIT
// Text in a box of its own size.
#include "VQDraw/VQDIB.h"

#include "VQDraw/draw/TextArguments.h"

#include <cstdlib>

namespace {

constexpr int kCorner = 3;
constexpr BYTE kOpaque = 255;
constexpr LONG kAlphaBits = 0xFF;

/// Where a text begins that is centred in a side of its box, one pixel further on.
int centredStart(int boxStart, int boxEnd, LONG textSize)
{
    const std::int64_t free = std::abs(std::int64_t{boxEnd} - boxStart - textSize);
    return vq::toCoordinate(boxStart + free / 2 + 1);
}

int boxEnd(LONG start, LONG textSize, LONG margin)
{
    return vq::toCoordinate(std::int64_t{start} + textSize + 2 * std::int64_t{margin});
}

} // namespace

CRect CVQDIB::TextBox(LONG x, LONG y, const wchar_t* text, COLORREF fillColour, LONG fillAlpha, COLORREF borderColour,
                      LONG borderAlpha, LONG marginX, LONG marginY)
{
    if (!m_pGraphics)
        return CRect(0, 0, 0, 0);
    const CSize size = GetTextSize(text);
    if (size.cx == 0 || size.cy == 0)
        return CRect(0, 0, 0, 0);
    const CRect box(x, y, boxEnd(x, size.cx, marginX), boxEnd(y, size.cy, marginY));
    FillRoundRect(box, kCorner, fillColour, static_cast<BYTE>(fillAlpha));
    DrawRoundRect(box, kCorner, borderAlpha & kAlphaBits, borderColour, kOpaque);
    TextOutW(centredStart(box.left, box.right, size.cx), centredStart(box.top, box.bottom, size.cy), text);
    return box;
}
