// SPDX-License-Identifier: MIT
// Pasting blocks of pixels by their alpha.
#include "VQDraw/VQDIB.h"

#include "VQDraw/image/BlendRows.h"

void CVQDIB::PasteDefault(CVQDIB* dst, CVQDIB* src, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h)
{
    if (!dst || !src)
        return;
    const CSingleLock lock(&_critSect, TRUE);
    if (!RectangularRegionClip(*dst, dx, dy, *src, sx, sy, w, h) || w <= 0 || h <= 0)
        return;
    const auto width = static_cast<std::size_t>(w);
    if (dst != src && w == dst->m_iWidth && w == src->m_iWidth) { // one row
        const std::span target(dst->GetImageBuffer(0, dy), width * static_cast<std::size_t>(h));
        vq::pasteRow<ULONG>(target, src->GetImageBuffer(0, sy));
        return;
    }
    const bool movesRightInItsOwnRows = dst == src && dy == sy && dx > sx;
    for (LONG row = 0; row < h; ++row) {
        const std::span target(dst->GetImageBuffer(dx, dy + row), width);
        const ULONG* source = src->GetImageBuffer(sx, sy + row);
        if (movesRightInItsOwnRows)
            vq::pasteRowFromTheRight(target, source);
        else
            vq::pasteRowFromTheLeft(target, source);
    }
}

void CVQDIB::Paste(CVQDIB& source)
{
    Paste(source, 0, 0);
}

void CVQDIB::Paste(CVQDIB* source)
{
    Paste(source, 0, 0);
}

void CVQDIB::Paste(CVQDIB& source, LONG x, LONG y)
{
    Paste(source, x, y, 0, 0, source.m_iWidth, source.m_iHeight);
}

void CVQDIB::Paste(CVQDIB* source, LONG x, LONG y)
{
    if (source)
        Paste(*source, x, y);
}

void CVQDIB::Paste(CVQDIB& source, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h)
{
    pfPaste(this, &source, dx, dy, sx, sy, w, h);
}

void CVQDIB::Paste(CVQDIB* source, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h)
{
    if (source)
        Paste(*source, dx, dy, sx, sy, w, h);
}
