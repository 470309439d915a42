// SPDX-License-Identifier: MIT
// The selection that a rectangle makes.
#include "VQDraw/VQDIB.h"

#include "VQDraw/draw/TextArguments.h"

#include <cstdint>
#include <string>

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);

} // namespace

void CVQDIB::DrawSelection(CPoint& p1, CPoint& p2, COLORREF colour, LONG alpha, bool guides)
{
    if (!m_pGraphics)
        return;
    CRect selection(p1, p2);
    selection.NormalizeRect();
    const auto [left, top, right, bottom] = static_cast<const RECT&>(selection);
    DrawSizeLabels(selection);
    FillRect(selection, colour, alpha);
    if (guides) {
        constexpr LONG kGuideAlpha = 32;
        LineH(0, m_iWidth, top, kWhite, kGuideAlpha);
        LineV(0, m_iHeight, left, kWhite, kGuideAlpha);
        LineH(0, m_iWidth, bottom, kWhite, kGuideAlpha);
        LineV(0, m_iHeight, right, kWhite, kGuideAlpha);
    }
    constexpr LONG kOutlineAlpha = 128;
    LineHStipple(left, right, top, kWhite, kOutlineAlpha);
    LineHStipple(left, right, bottom, kWhite, kOutlineAlpha);
    LineVStipple(top, bottom, left, kWhite, kOutlineAlpha);
    LineVStipple(top, bottom, right, kWhite, kOutlineAlpha);
    DrawCornerTicks(selection);
}

/// The width above the selection or just inside it, the height at its right or just inside it.
void CVQDIB::DrawSizeLabels(const CRect& selection)
{
    const std::int64_t left = selection.left;
    const std::int64_t top = selection.top;
    const std::int64_t right = selection.right;
    const std::int64_t width = right - left;
    const std::int64_t height = selection.bottom - top;
    const std::wstring widthText = std::to_wstring(width);
    const std::wstring heightText = std::to_wstring(height);
    const CSize widthSize = GetTextSize(widthText.c_str());
    const CSize heightSize = GetTextSize(heightText.c_str());
    if (widthSize.cx < width) {
        const std::int64_t above = top - widthSize.cy - 2;
        TextOutW(vq::toCoordinate(left + ((width - widthSize.cx) >> 1)), vq::toCoordinate(above < 0 ? top + 4 : above),
                 widthText.c_str());
    }
    if (heightSize.cy < height) {
        const bool fitsBeside = right + 2 + heightSize.cx < m_iWidth;
        TextOutW(vq::toCoordinate(fitsBeside ? right + 2 : right - heightSize.cx - 2),
                 vq::toCoordinate(top + ((height - heightSize.cy) >> 1)), heightText.c_str());
    }
}

void CVQDIB::DrawCornerTicks(const CRect& selection)
{
    constexpr std::int64_t kTick = 5;
    const auto [left, top, right, bottom] = static_cast<const RECT&>(selection);
    const LONG fromLeft = vq::toCoordinate(left + kTick);
    const LONG fromTop = vq::toCoordinate(top + kTick);
    const LONG fromRight = vq::toCoordinate(right - kTick);
    const LONG fromBottom = vq::toCoordinate(bottom - kTick);
    LineV(top, fromTop, left, kWhite, 255);
    LineH(left, fromLeft, top, kWhite, 255);
    LineH(fromRight, right, top, kWhite, 255);
    LineV(top, fromTop, right, kWhite, 255);
    LineV(fromBottom, bottom, left, kWhite, 255);
    LineH(left, fromLeft, bottom, kWhite, 255);
    LineH(fromRight, right, bottom, kWhite, 255);
    LineV(fromBottom, bottom, right, kWhite, 255);
}
