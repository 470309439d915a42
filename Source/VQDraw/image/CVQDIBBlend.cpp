// SPDX-License-Identifier: MIT
// Blending whole images with an image or a colour. No lock: an image is used by one thread at a time.
#include "VQDraw/VQDIB.h"

#include "VQDraw/image/BlendRows.h"

/// False when either is empty.
bool CVQDIB::HasSizeOf(const CVQDIB& other) const
{
    return m_iPixelCount > 0 && m_iWidth == other.m_iWidth && m_iHeight == other.m_iHeight;
}

void CVQDIB::Blend(const CVQDIB& source)
{
    if (HasSizeOf(source))
        vq::pasteRow(Pixels(), source.m_pImageBuffer);
}

void CVQDIB::Blend(const CVQDIB* source)
{
    if (source)
        Blend(*source);
}

void CVQDIB::Blend(const CVQDIB& source, LONG weight)
{
    if (HasSizeOf(source))
        vq::blendRow(Pixels(), source.m_pImageBuffer, weight);
}

void CVQDIB::Blend(const CVQDIB* source, LONG weight)
{
    if (source)
        Blend(*source, weight);
}

void CVQDIB::Blend(LONG r, LONG g, LONG b, LONG weight)
{
    vq::tintRow(Pixels(), {r, g, b, weight});
}

void CVQDIB::Blend(COLORREF colour, LONG weight)
{
    vq::tintRow(Pixels(), vq::tintFromColorRef(colour, weight));
}
