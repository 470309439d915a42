// SPDX-License-Identifier: MIT
#include "gallery/Sheet.h"
#include "gallery/Sheets.h"

#include <vector>

namespace {

using namespace Gdiplus;

/// In the order of the numbers of HatchStyle.
constexpr const wchar_t* kNames[] = {L"Horizontal",
                                     L"Vertical",
                                     L"ForwardDiagonal",
                                     L"BackwardDiagonal",
                                     L"Cross",
                                     L"DiagonalCross",
                                     L"05Percent",
                                     L"10Percent",
                                     L"20Percent",
                                     L"25Percent",
                                     L"30Percent",
                                     L"40Percent",
                                     L"50Percent",
                                     L"60Percent",
                                     L"70Percent",
                                     L"75Percent",
                                     L"80Percent",
                                     L"90Percent",
                                     L"LightDownwardDiagonal",
                                     L"LightUpwardDiagonal",
                                     L"DarkDownwardDiagonal",
                                     L"DarkUpwardDiagonal",
                                     L"WideDownwardDiagonal",
                                     L"WideUpwardDiagonal",
                                     L"LightVertical",
                                     L"LightHorizontal",
                                     L"NarrowVertical",
                                     L"NarrowHorizontal",
                                     L"DarkVertical",
                                     L"DarkHorizontal",
                                     L"DashedDownwardDiagonal",
                                     L"DashedUpwardDiagonal",
                                     L"DashedHorizontal",
                                     L"DashedVertical",
                                     L"SmallConfetti",
                                     L"LargeConfetti",
                                     L"ZigZag",
                                     L"Wave",
                                     L"DiagonalBrick",
                                     L"HorizontalBrick",
                                     L"Weave",
                                     L"Plaid",
                                     L"Divot",
                                     L"DottedGrid",
                                     L"DottedDiamond",
                                     L"Shingle",
                                     L"Trellis",
                                     L"Sphere",
                                     L"SmallGrid",
                                     L"SmallCheckerBoard",
                                     L"LargeCheckerBoard",
                                     L"OutlinedDiamond",
                                     L"SolidDiamond"};
static_assert(std::size(kNames) == HatchStyleMax + 1);

struct Hatch
{
    std::wstring name;
    HatchStyle style;
};

std::vector<Hatch> hatches()
{
    std::vector<Hatch> all;
    for (int style = 0; style <= HatchStyleMax; ++style)
        all.push_back({std::to_wstring(style) + L" " + kNames[style], static_cast<HatchStyle>(style)});
    return all;
}

/// On the left over a background of its own, on the right over none.
void drawHatch(const Cell& cell, const Hatch& hatch)
{
    const Color ink(120, 0, 60);
    const HatchBrush filled(hatch.style, ink, Color(255, 240, 205));
    const HatchBrush open(hatch.style, ink, Color(0, 0, 0, 0));
    cell.graphics.FillRectangle(&filled, cell.left, cell.top, cell.width / 2, cell.height);
    cell.graphics.FillEllipse(&open, cell.centreX() + 4, cell.top, cell.width / 2 - 4, cell.height);
}

} // namespace

bool addHatches(Gallery& gallery)
{
    return addSheet(gallery, {"40-hatches", "All hatch styles, with a background and without", 6, 160, 84}, hatches(),
                    drawHatch);
}
