// SPDX-License-Identifier: MIT
// Scaled transfers of whole images, drawn by GDI+.
#include "VQDraw/VQDIB.h"

#include "VQDraw/image/SourceCopy.h"

namespace {

/// High compositing quality for as long as it lives, then the default one.
class HighQuality
{
public:
    explicit HighQuality(Gdiplus::Graphics& graphics) : m_graphics(graphics)
    {
        m_graphics.SetCompositingQuality(Gdiplus::CompositingQualityHighQuality);
    }
    ~HighQuality() { m_graphics.SetCompositingQuality(Gdiplus::CompositingQualityDefault); }
    HighQuality(const HighQuality&) = delete;
    HighQuality& operator=(const HighQuality&) = delete;

private:
    Gdiplus::Graphics& m_graphics;
};

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
    const HighQuality quality(*m_pGraphics);
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
    const HighQuality quality(*m_pGraphics);
    if (source && source->m_pBitmap)
        m_pGraphics->DrawImage(source->m_pBitmap, Gdiplus::Rect(x, y, w, h));
}

void CVQDIB::PasteWithScaleFloat(CVQDIB* source, float x, float y, float w, float h)
{
    const CSingleLock lock(&_critSect, TRUE);
    if (!m_pGraphics)
        return;
    const HighQuality quality(*m_pGraphics);
    if (source && source->m_pBitmap)
        m_pGraphics->DrawImage(source->m_pBitmap, Gdiplus::RectF(x, y, w, h));
}
