// SPDX-License-Identifier: MIT
// The fonts that start-up makes.
#include "VQDraw/VQDrawProperty.h"

#include "VQDraw/preferences/Fonts.h"
#include "VQDraw/preferences/ScreenResolution.h"
#include "VQDraw/preferences/TableAccess.h"

#include <algorithm>

namespace {

constexpr wchar_t kFace[] = L"Segoe UI";
constexpr BYTE kSwiss = VARIABLE_PITCH | FF_SWISS;

/// All 0 when the system does not tell.
LOGFONTW systemFont()
{
    LOGFONTW font{};
    GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font);
    return font;
}

LONG heightOf(const vq::SegoeUi& font, int dotsPerInch)
{
    if (font.height == vq::HeightRule::Scaled)
        return MulDiv(font.nominalSize, dotsPerInch, vq::kStandardDotsPerInch);
    return -MulDiv(15, 72, dotsPerInch);
}

/// What no line names is that of the system's font.
void set(CVQFont& record, const vq::SegoeUi& font, int dotsPerInch)
{
    record.m_LogFont = systemFont();
    record.m_LogFont.lfHeight = heightOf(font, dotsPerInch);
    record.m_LogFont.lfWeight = font.weight;
    record.m_LogFont.lfItalic = FALSE;
    record.m_LogFont.lfCharSet = ANSI_CHARSET;
    record.m_LogFont.lfPitchAndFamily = kSwiss;
    vq::platform::setFaceName(record.m_LogFont, kFace);
    record.m_uiColor = font.colour;
    record.m_bShadow = false;
    record.m_iNominalSize = font.nominalSize;
}

void set(CVQFont& record, const vq::LikeControls& font)
{
    record = CVQDrawProperty::m_Font[DPF_UI_CTRL_FONT];
    record.m_LogFont.lfHeight = static_cast<LONG>(record.m_LogFont.lfHeight * font.scale);
    record.m_iNominalSize = static_cast<int>(record.m_iNominalSize * font.scale);
    record.m_uiColor = font.colour.value_or(record.m_uiColor);
    record.m_bShadow = font.shadow;
}

} // namespace

void vq::setPreferredFonts()
{
    const int dotsPerInch = screenDotsPerInch();
    for (const auto& [id, name, initial] : kFonts) {
        CVQFont& record = CVQDrawProperty::m_Font[id];
        if (const auto* const segoe = std::get_if<SegoeUi>(&initial))
            set(record, *segoe, dotsPerInch);
        else if (const auto* const copy = std::get_if<LikeControls>(&initial))
            set(record, *copy);
        else
            CVQDrawProperty::InitFontInfo(id);
    }
}

void CVQDrawProperty::InitFontInfo(eDrawPropertyFont index)
{
    CVQFont* const record = vq::rowAt(m_Font, index);
    if (!record)
        return;
    const LOGFONTW font = systemFont();
    record->m_LogFont.lfHeight = font.lfHeight;
    record->m_LogFont.lfWeight = font.lfWeight;
    record->m_LogFont.lfItalic = font.lfItalic;
    record->m_LogFont.lfCharSet = font.lfCharSet;
    record->m_LogFont.lfPitchAndFamily = font.lfPitchAndFamily;
    std::ranges::copy(font.lfFaceName, record->m_LogFont.lfFaceName);
    record->m_uiColor = index == DPF_MEASUREMENT_FONT ? GetDPCVQColor(DPC_CURSOR_TEXT).GetCOLORREF() : RGB(0, 0, 0);
    record->m_bShadow = false;
    record->m_iNominalSize = font.lfHeight;
}

void CVQDrawProperty::InitColorbarFont()
{
    InitFontInfo(DPF_COLORBAR_FONT);
}
