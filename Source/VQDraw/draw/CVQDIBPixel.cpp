// SPDX-License-Identifier: MIT
// Single pixels.
#include "VQDraw/VQDIB.h"

#include "VQDraw/image/BlendRows.h"

void CVQDIB::Pixel(int x, int y, LONG r, LONG g, LONG b, LONG a)
{
    if (x < 0 || x >= m_iWidth || y < 0 || y >= m_iHeight)
        return;
    ULONG& pixel = (*this)(x, y);
    pixel = vq::tinted(pixel, {r & 0xFF, g & 0xFF, b & 0xFF, a & 0xFF});
}

void CVQDIB::Pixel(int x, int y, COLORREF colour, LONG alpha)
{
    Pixel(x, y, GetRValue(colour), GetGValue(colour), GetBValue(colour), alpha);
}
