// SPDX-License-Identifier: MIT
// Single strings and their shadows.
#include "VQDraw/VQDIB.h"

#include "VQDraw/draw/Ink.h"
#include "VQDraw/draw/TextArguments.h"
#include "VQDraw/image/ImageFlags.h"

namespace {

constexpr BYTE kShadowAlpha = 32;
constexpr BYTE kSecondTextAlpha = 128;

struct Offset
{
    Gdiplus::REAL x, y;
};

/// Around the shadow's place, each one pixel from the one before.
constexpr Offset kShadowOffsets[] = {{-1, -1}, {0, -1}, {1, -1}, {1, 0}, {0, 0}, {-1, 0}, {-1, 1}, {0, 1}, {1, 1}};

} // namespace

void CVQDIB::TextOutW(LONG x, LONG y, CString& text)
{
    TextOutW(x, y, text.GetString());
}

void CVQDIB::TextOutW(LONG x, LONG y, const wchar_t* text)
{
    if (!m_pGraphics || vq::isEmptyText(text))
        return;
    const Gdiplus::PointF origin(static_cast<Gdiplus::REAL>(x), static_cast<Gdiplus::REAL>(y));
    DrawString(TextFont(), Gdiplus::RectF(origin, Gdiplus::SizeF()), nullptr, text);
}

/// The shadow if there is to be one, the text with the text brush, and smoothed text once more.
void CVQDIB::DrawString(const Gdiplus::Font* font, const Gdiplus::RectF& layout, const Gdiplus::StringFormat* format,
                        const wchar_t* text)
{
    const Gdiplus::SolidBrush* const brush = TextBrush();
    m_pGraphics->SetTextRenderingHint(m_RenderingHint);
    if (m_uiFlags & vq::kTextShadow)
        DropShadow(font, layout, format, text);
    m_pGraphics->DrawString(text, -1, font, layout, format, brush);
    if (m_RenderingHint != Gdiplus::TextRenderingHintAntiAlias)
        return;
    const Gdiplus::SolidBrush second(vq::colourOf(GetTextColor(), kSecondTextAlpha));
    m_pGraphics->DrawString(text, -1, font, layout, format, &second);
}

COLORREF CVQDIB::ShadowColour() const
{
    if (!(m_uiFlags & vq::kAutomaticShadowColour) || !m_pTextBrush)
        return m_uiShadowColor;
    constexpr WORD kLight = 61; // the lowest luminance, of 240, that has a black shadow
    WORD hue = 0;
    WORD luminance = 0;
    WORD saturation = 0;
    ColorRGBToHLS(GetTextColor(), &hue, &luminance, &saturation);
    return luminance < kLight ? RGB(255, 255, 255) : RGB(0, 0, 0);
}

void CVQDIB::DropShadow(const Gdiplus::Font* font, const Gdiplus::RectF& layout, const Gdiplus::StringFormat* format,
                        const wchar_t* text)
{
    if (!m_pGraphics || vq::isEmptyText(text))
        return;
    const Gdiplus::SolidBrush brush(vq::colourOf(ShadowColour(), kShadowAlpha));
    const Gdiplus::REAL x = layout.X + static_cast<Gdiplus::REAL>(m_iShadowX);
    const Gdiplus::REAL y = layout.Y + static_cast<Gdiplus::REAL>(m_iShadowY);
    for (const Offset& offset : kShadowOffsets) {
        const Gdiplus::RectF moved(x + offset.x, y + offset.y, layout.Width, layout.Height);
        m_pGraphics->DrawString(text, -1, font, moved, format, &brush);
    }
}

void CVQDIB::DropTextShadow(const Gdiplus::Font& font, Gdiplus::PointF origin, const wchar_t* text)
{
    DropShadow(&font, Gdiplus::RectF(origin, Gdiplus::SizeF()), nullptr, text);
}

void CVQDIB::DropTextShadow(const Gdiplus::Font& font, Gdiplus::RectF layout, const Gdiplus::StringFormat& format,
                            const wchar_t* text)
{
    DropShadow(&font, layout, &format, text);
}
