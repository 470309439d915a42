// SPDX-License-Identifier: MIT
// Filling with colours and alpha.
#include "VQDraw/VQDIB.h"

#include "VQDraw/image/FillSse2.h"
#include "VQDraw/image/PixelBlocks.h"
#include "VQDraw/image/PixelFormulas.h"

#include <algorithm>
#include <span>

void CVQDIB::Clear(BYTE r, BYTE g, BYTE b, BYTE a)
{
    vq::fillPicture(Pixels(), vq::argb(a, r, g, b));
}

void CVQDIB::Clear(COLORREF colour)
{
    Clear(colour, BYTE{255});
}

void CVQDIB::Clear(COLORREF colour, BYTE alpha)
{
    vq::fillPicture(Pixels(), vq::pixelFromColorRef(colour, alpha));
}

void CVQDIB::Clear(Gdiplus::Color colour)
{
    vq::fillPicture(Pixels(), colour.GetValue());
}

/// The part of the rectangle inside the image, both edges included; empty when left > right or top > bottom.
CRect CVQDIB::ClipInclusive(CRect rect) const
{
    rect.NormalizeRect();
    return {std::max<LONG>(rect.left, 0), std::max<LONG>(rect.top, 0), std::min(rect.right, m_iWidth - 1),
            std::min(rect.bottom, m_iHeight - 1)};
}

void CVQDIB::Clear(CRect rect, COLORREF colour, LONG alpha)
{
    const ULONG pixel = vq::pixelFromColorRef(colour, static_cast<BYTE>(std::clamp<LONG>(alpha, 0, 255)));
    rect = ClipInclusive(rect);
    if (rect.left > rect.right)
        return;
    for (LONG y = rect.top; y <= rect.bottom; ++y)
        std::fill(GetImageBuffer(rect.left, y), GetImageBuffer(rect.right, y) + 1, pixel);
}

void CVQDIB::ClearAlpha(BYTE alpha)
{
    vq::transformRow(Pixels(),
              [alpha](ULONG pixel) { return vq::withAlpha(pixel, alpha); });
}

void CVQDIB::ClearAlpha(CRect rect, ULONG alpha)
{
    const auto limited = static_cast<BYTE>(std::min<ULONG>(alpha, 255));
    rect = ClipInclusive(rect);
    if (rect.left > rect.right)
        return;
    for (LONG y = rect.top; y <= rect.bottom; ++y)
        vq::transformRow(std::span{GetImageBuffer(rect.left, y), GetImageBuffer(rect.right, y) + 1},
                  [limited](ULONG pixel) { return vq::withAlpha(pixel, limited); });
}

void CVQDIB::ClearScanlineAlpha(LONG y, BYTE alpha)
{
    if (HasRow(y))
        vq::transformRow(std::span{GetImageBuffer(0, y), static_cast<std::size_t>(m_iWidth)},
                  [alpha](ULONG pixel) { return vq::withAlpha(pixel, alpha); });
}

void CVQDIB::SaturateAlphaChannel(LONG s)
{
    const auto factor = static_cast<std::uint16_t>(static_cast<std::uint32_t>(s) + 1);
    vq::transformRow(Pixels(),
              [factor](ULONG pixel) { return vq::withScaledAlpha(pixel, factor); });
}

void CVQDIB::SaturateScanlineAlpha(LONG y, LONG s)
{
    const auto factor = static_cast<std::uint16_t>(static_cast<std::uint32_t>(s) + 1);
    if (HasRow(y))
        vq::transformRow(std::span{GetImageBuffer(0, y), static_cast<std::size_t>(m_iWidth)},
                  [factor](ULONG pixel) { return vq::withScaledAlpha(pixel, factor); });
}

void CVQDIB::ExchangeRB()
{
    vq::transformRow(Pixels(),
              [](ULONG pixel) { return vq::redAndBlueExchanged(pixel); });
}
