// SPDX-License-Identifier: MIT
// Font, colours, shadow and cursor of an image's text.
#include "VQDraw/VQDIB.h"

#include "VQDraw/draw/Ink.h"
#include "VQDraw/image/ImageFlags.h"
#include "VQDraw/image/KeptFont.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace {

/// Null while GDI+ is not running.
Gdiplus::SolidBrush* makeBrush(Gdiplus::Color colour)
{
    auto brush = std::make_unique<Gdiplus::SolidBrush>(colour);
    return brush->GetLastStatus() == Gdiplus::Ok ? brush.release() : nullptr;
}

/// What is no font leaves the record as it is.
void readFont(HGDIOBJ object, LOGFONTW& record)
{
    LOGFONTW read{};
    if (GetObjectType(object) == OBJ_FONT && GetObjectW(object, sizeof read, &read) != 0)
        record = read;
}

} // namespace

void CVQDIB::SetFont(int stockObject)
{
    readFont(GetStockObject(stockObject), m_LogFont);
}

void CVQDIB::SetTextFont(LOGFONTW& font)
{
    m_LogFont = font;
}

void CVQDIB::SetTextFont(CFont* font)
{
    if (font)
        readFont(font->GetSafeHandle(), m_LogFont);
}

void CVQDIB::SetTextColor(COLORREF colour, BYTE alpha)
{
    constexpr BYTE kHighest = 254;
    const Gdiplus::Color colourWithAlpha = vq::colourOf(colour, std::min(alpha, kHighest));
    if (!m_pTextBrush || m_pTextBrush->SetColor(colourWithAlpha) != Gdiplus::Ok)
        delete std::exchange(m_pTextBrush, makeBrush(colourWithAlpha));
}

void CVQDIB::SetTextColor(COLORREF colour, ULONG, ULONG)
{
    SetTextColor(colour, BYTE{255});
}

COLORREF CVQDIB::GetTextColor() const
{
    Gdiplus::Color colour;
    if (!m_pTextBrush || m_pTextBrush->GetColor(&colour) != Gdiplus::Ok)
        return 0;
    return RGB(colour.GetR(), colour.GetG(), colour.GetB());
}

void CVQDIB::EnableTextShadow(bool on)
{
    m_uiFlags = on ? m_uiFlags | vq::kTextShadow : m_uiFlags & ~vq::kTextShadow;
}

void CVQDIB::SetTextColorShadow(COLORREF colour)
{
    m_uiShadowColor = colour;
    m_uiFlags &= ~vq::kAutomaticShadowColour;
}

void CVQDIB::SetTextShadowOffset(LONG x, LONG y)
{
    m_iShadowX = x;
    m_iShadowY = y;
}

void CVQDIB::GotoXY(int x, int y)
{
    m_iPrintX = x;
    m_iPrintY = y;
}

void CVQDIB::GetRenderingHint(Gdiplus::TextRenderingHint& hint)
{
    hint = m_RenderingHint;
}

Gdiplus::TextRenderingHint CVQDIB::SetRenderingHint(Gdiplus::TextRenderingHint hint)
{
    return std::exchange(m_RenderingHint, hint);
}

/// An image that is older than GDI+'s start has no brush yet.
Gdiplus::SolidBrush* CVQDIB::TextBrush()
{
    if (!m_pTextBrush)
        m_pTextBrush = makeBrush(Gdiplus::Color(Gdiplus::Color::White));
    return m_pTextBrush;
}

/// Null when GDI+ refuses the font, and then the text.
const Gdiplus::Font* CVQDIB::TextFont() const
{
    if (!m_pKeptFont)
        m_pKeptFont = new vq::KeptFont;
    return m_pKeptFont->of(m_LogFont);
}
