// SPDX-License-Identifier: MIT
// Scaled transfers of whole images, drawn by GDI+.
#include "VQDraw/VQDIB.h"

#include "VQDraw/image/GraphicsSettings.h"

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
    const vq::HighQuality quality(*m_pGraphics);
    if (source && source->m_pBitmap)
        m_pGraphics->DrawImage(source->m_pBitmap, Gdiplus::Rect(x, y, w, h));
}

void CVQDIB::PasteWithScale(CVQDIB* source)
{
    PasteWithScale(source, 0, 0, m_iWidth, m_iHeight);
}

void CVQDIB::PasteWithScale(CVQDIB* source, LONG x, LONG y, LONG w, LONG h)
{
    const CSingleLock lock(&_critSect, TRUE);
    if (!m_pGraphics)
        return;
    const vq::HighQuality quality(*m_pGraphics);
    if (source && source->m_pBitmap)
        m_pGraphics->DrawImage(source->m_pBitmap, Gdiplus::Rect(x, y, w, h));
}

void CVQDIB::PasteWithScaleFloat(CVQDIB* source, float x, float y, float w, float h)
{
    const CSingleLock lock(&_critSect, TRUE);
    if (!m_pGraphics)
        return;
    const vq::HighQuality quality(*m_pGraphics);
    if (source && source->m_pBitmap)
        m_pGraphics->DrawImage(source->m_pBitmap, Gdiplus::RectF(x, y, w, h));
}
