// SPDX-License-Identifier: MIT
#include "gallery/Sheet.h"
#include "gallery/Sheets.h"

#include <vector>

namespace {

using namespace Gdiplus;

const Color kInk(24, 60, 120);

struct Dashes
{
    std::wstring name;
    DashStyle style;
    std::vector<REAL> pattern; ///< of the custom style
};
const Dashes kDashes[] = {
    {L"DashStyleDash", DashStyleDash, {}},       {L"DashStyleDot", DashStyleDot, {}},
    {L"DashStyleDashDot", DashStyleDashDot, {}}, {L"DashStyleDashDotDot", DashStyleDashDotDot, {}},
    {L"custom 2, 3", DashStyleCustom, {2, 3}},   {L"custom 5, 1, 1, 1", DashStyleCustom, {5, 1, 1, 1}}};

void set(Pen& pen, const Dashes& dashes)
{
    if (dashes.pattern.empty())
        pen.SetDashStyle(dashes.style);
    else
        pen.SetDashPattern(dashes.pattern.data(), static_cast<INT>(dashes.pattern.size()));
}

/// Pens of width 1, 3 and 8, and a slanted one of width 1.
void drawWidths(const Cell& cell, const Dashes& dashes)
{
    double height = 0.1;
    for (const float width : {1.0F, 3.0F, 8.0F}) {
        Pen pen(kInk, width);
        set(pen, dashes);
        cell.graphics.DrawLine(&pen, cell.at(0, height), cell.at(1, height));
        height += 0.25;
    }
    Pen pen(kInk, 1);
    set(pen, dashes);
    cell.graphics.DrawLine(&pen, cell.at(0, 1), cell.at(1, 0.75));
}

struct Cap
{
    std::wstring name;
    DashCap value;
};
const Cap kCaps[] = {
    {L"DashCapFlat", DashCapFlat}, {L"DashCapRound", DashCapRound}, {L"DashCapTriangle", DashCapTriangle}};

void drawCap(const Cell& cell, const Cap& cap)
{
    double height = 0.1;
    for (const Dashes& dashes : kDashes) {
        Pen pen(kInk, 8);
        set(pen, dashes);
        pen.SetDashCap(cap.value);
        cell.graphics.DrawLine(&pen, cell.at(0, height), cell.at(1, height));
        height += 0.16;
    }
}

/// Dashes run on through the corners of a figure.
void drawFigures(const Cell& cell, const Dashes& dashes)
{
    Pen pen(kInk, 3);
    set(pen, dashes);
    const int size = cell.height;
    cell.graphics.DrawEllipse(&pen, cell.left, cell.top, size, size);
    GraphicsPath path;
    path.AddRectangle(Rect(cell.right() - size, cell.top, size, size));
    cell.graphics.DrawPath(&pen, &path);
}

} // namespace

bool addDashes(Gallery& gallery)
{
    bool written = addSheetOfBoth(
        gallery, {"20-dashes", "Dash styles of pens of width 1, 3 and 8, without smoothing and with it", 3, 220, 110},
        kDashes, drawWidths);
    written =
        addSheetOfBoth(gallery, {"21-dash-caps", "Dash caps: a dash keeps its length, its caps included", 3, 220, 130},
                       kCaps, drawCap) &&
        written;
    return addSheet(gallery, {"22-dashed-figures", "Dashed circles and boxes", 3, 220, 120}, kDashes, drawFigures) &&
           written;
}
