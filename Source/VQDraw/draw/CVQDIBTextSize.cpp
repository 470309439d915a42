// SPDX-License-Identifier: MIT
// Measuring text.
#include "VQDraw/VQDIB.h"

#include "VQDraw/draw/MeasuringSurface.h"
#include "VQDraw/draw/TextArguments.h"

void CVQDIB::ReleaseMeasuring()
{
    vq::BorrowedSurface::releaseKept();
}

CSize CVQDIB::GetTextSize(CString& text) const
{
    return GetTextSize(text.GetString());
}

CSize CVQDIB::GetTextSize(const wchar_t* text) const
{
    if (vq::isEmptyText(text))
        return CSize(0, 0);
    return vq::BorrowedSurface(m_gdiplusToken != 0)->size(text, TextFont(), m_RenderingHint);
}

CSize CVQDIB::GetTextSize(const LOGFONTW& font, const CString& text)
{
    return GetTextSize(font, text.GetString());
}

CSize CVQDIB::GetTextSize(const LOGFONTW& font, const wchar_t* text)
{
    if (vq::isEmptyText(text))
        return CSize(0, 0);
    const vq::BorrowedSurface surface(m_gdiplusToken != 0);
    return surface->size(text, surface->font(font), m_RenderingHint);
}

CSize CVQDIB::GetTextSize(const CFont& font, const CString& text)
{
    return GetTextSize(font, text.GetString());
}

CSize CVQDIB::GetTextSize(const CFont& font, const wchar_t* text)
{
    if (vq::isEmptyText(text))
        return CSize(0, 0);
    return vq::BorrowedSurface(m_gdiplusToken != 0)->size(text, static_cast<HFONT>(font), m_RenderingHint);
}
