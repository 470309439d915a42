// SPDX-License-Identifier: MIT
// Scaled transfers of whole images, drawn by GDI+.
#include "VQDraw/VQDIB.h"

#include "VQDraw/image/GraphicsSettings.h"

namespace {

template <typename Rectangle>
void drawWhole(CVQDIB* source, Gdiplus::Graphics& graphics, const Rectangle& place)
{
    const vq::HighQuality quality(graphics);
    if (source && source->GetBitmap())
        graphics.DrawImage(source->GetBitmap(), place);
}

} // namespace

void CVQDIB::CopyWithScale(CVQDIB* source)
{
    CopyWithScale(source, 0, 0, m_iWidth, m_iHeight);
}

void CVQDIB::CopyWithScale(CVQDIB* source, LONG x, LONG y, LONG w, LONG h)
{
    const CSingleLock lock(&_critSect, TRUE);
    if (!m_pGraphics)
        return;
    const vq::SourceCopy mode(*m_pGraphics);
    drawWhole(source, *m_pGraphics, Gdiplus::Rect(x, y, w, h));
}

void CVQDIB::PasteWithScale(CVQDIB* source)
{
    PasteWithScale(source, 0, 0, m_iWidth, m_iHeight);
}

void CVQDIB::PasteWithScale(CVQDIB* source, LONG x, LONG y, LONG w, LONG h)
{
    const CSingleLock lock(&_critSect, TRUE);
    if (m_pGraphics)
        drawWhole(source, *m_pGraphics, Gdiplus::Rect(x, y, w, h));
}

void CVQDIB::PasteWithScaleFloat(CVQDIB* source, float x, float y, float w, float h)
{
    const CSingleLock lock(&_critSect, TRUE);
    if (m_pGraphics)
        drawWhole(source, *m_pGraphics, Gdiplus::RectF(x, y, w, h));
}
