// SPDX-License-Identifier: MIT
#include "preferences/Sheets.h"

#include <functional>

namespace {

constexpr LONG kRowHeight = 20;
constexpr LONG kColumnWidth = 340;
constexpr LONG kSwatchWidth = 44;
constexpr LONG kMargin = 3;
constexpr LONG kSquare = 7; ///< of the ground below translucent colours

struct NamedColour
{
    CString name;
    CVQColor colour;
};

/// Grey squares, which show through what is not opaque.
void layGround(CVQDIB& sheet, const CRect& area)
{
    sheet.FillRect(area, RGB(255, 255, 255), 255);
    for (LONG y = area.top; y < area.bottom; y += kSquare)
        for (LONG x = area.left + (y - area.top) % (2 * kSquare); x < area.right; x += 2 * kSquare)
            sheet.FillRect(CRect(x, y, std::min(x + kSquare, area.right), std::min(y + kSquare, area.bottom)),
                           RGB(160, 160, 160), 255);
}

void drawRow(CVQDIB& sheet, LONG x, LONG y, const NamedColour& row)
{
    CRect swatch(x + kMargin, y + kMargin, x + kMargin + kSwatchWidth, y + kRowHeight - kMargin);
    layGround(sheet, swatch);
    sheet.FillRect(swatch, row.colour.GetCOLORREF(), row.colour.GetA());
    sheet.DrawRect(swatch, RGB(96, 96, 96), 255);
    sheet.TextOutW(swatch.right + 2 * kMargin, y + kMargin, row.name);
}

bool addSheet(Gallery& gallery, const std::string& name, const std::string& caption, int count, int columns,
              const std::function<NamedColour(int)>& colourOf)
{
    const int rows = (count + columns - 1) / columns;
    CVQDIB sheet(kColumnWidth * columns, kRowHeight * rows);
    sheet.Clear(RGB(255, 255, 255));
    sheet.SetTextColor(RGB(32, 32, 32), 255);
    sheet.SetFontSize(-11);
    for (int i = 0; i < count; ++i)
        drawRow(sheet, i / rows * kColumnWidth, i % rows * kRowHeight, colourOf(i));
    return gallery.add(sheet, name, caption);
}

} // namespace

bool addColours(Gallery& gallery)
{
    using Store = CVQDrawProperty;
    const bool scene = addSheet(gallery, "1-scene", "<code>CVQDrawProperty::GetDPCVQColor</code>: every scene colour",
                                DPC_END, 4, [](int i) {
                                    return NamedColour{Store::GetDPCEnumNoToEnumString(i),
                                                       Store::GetDPCVQColor(static_cast<eDrawPropertyColor>(i))};
                                });
    const bool controls =
        addSheet(gallery, "2-controls", "<code>GetVQColor</code>: controls and texts", DPC_UI_COLOR_END, 2, [](int i) {
            return NamedColour{Store::GetUICtrlDPCEnumNoToEnumString(i),
                               Store::GetVQColor(static_cast<eControlDrawPropertyColor>(i))};
        });
    const bool reports =
        addSheet(gallery, "3-reports", "<code>GetReportColor</code>: reports", DPC_REPORT_COLOR_END, 1, [](int i) {
            return NamedColour{Store::GetReportDPCEnumNoToEnumString(i),
                               Store::GetReportColor(static_cast<eDrawPropertyReportColor>(i))};
        });
    return scene && controls && reports;
}
