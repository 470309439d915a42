// SPDX-License-Identifier: MIT
#include "preferences/Sheets.h"

namespace {

constexpr LONG kWidth = 560;
constexpr LONG kRowHeight = 34;
constexpr LONG kMargin = 8;

CString describe(const CVQFont& font)
{
    CString size;
    size.Format(L"   0.125 mm   %d px", -font.m_LogFont.lfHeight);
    return size;
}

} // namespace

bool addFonts(Gallery& gallery)
{
    CVQDIB sheet(kWidth, kRowHeight * DPF_END);
    sheet.Clear(RGB(128, 136, 148));
    for (int i = 0; i < DPF_END; ++i) {
        CVQFont font = CVQDrawProperty::GetFont(static_cast<eDrawPropertyFont>(i));
        sheet.SetTextFont(font.m_LogFont);
        sheet.SetTextColor(font.m_uiColor, 255);
        sheet.EnableTextShadow(font.m_bShadow);
        CString line = CVQDrawProperty::GetDPFEnumNoToEnumString(i) + describe(font);
        sheet.TextOutW(kMargin, i * kRowHeight + kMargin, line);
    }
    return gallery.add(sheet, "5-fonts", "<code>GetFont</code>: every font, at this screen's size");
}
