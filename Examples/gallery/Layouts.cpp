// SPDX-License-Identifier: MIT
#include "gallery/Sheet.h"
#include "gallery/Sheets.h"

#include <vector>

namespace {

using namespace Gdiplus;

const Color kInk(20, 20, 20);
const Color kFrame(160, 190, 230);

/// Text in the cell's rectangle, whose outline is shown.
void drawInRectangle(const Cell& cell, const std::wstring& text, const StringFormat& format)
{
    const Pen pen(kFrame, 1);
    const SmoothingMode smoothing = cell.graphics.GetSmoothingMode();
    cell.graphics.SetSmoothingMode(SmoothingModeNone);
    cell.graphics.DrawRectangle(&pen, cell.rect());
    cell.graphics.SetSmoothingMode(smoothing);
    const SolidBrush brush(kInk);
    const auto font = makeFont({12});
    cell.graphics.DrawString(text.c_str(), static_cast<INT>(text.size()), font.get(), cell.rectF(), &format, &brush);
}

struct Alignment
{
    std::wstring name;
    StringAlignment across, down;
};

std::vector<Alignment> alignments()
{
    constexpr StringAlignment kValues[] = {StringAlignmentNear, StringAlignmentCenter, StringAlignmentFar};
    constexpr const wchar_t* kNames[] = {L"Near", L"Center", L"Far"};
    std::vector<Alignment> all;
    for (int down = 0; down < 3; ++down)
        for (int across = 0; across < 3; ++across)
            all.push_back({std::wstring(kNames[across]) + L" / " + kNames[down], kValues[across], kValues[down]});
    return all;
}

void drawAlignment(const Cell& cell, const Alignment& alignment)
{
    StringFormat format;
    format.SetAlignment(alignment.across);
    format.SetLineAlignment(alignment.down);
    drawInRectangle(cell, L"Deviation\n+0.125 mm", format);
}

struct Wrapping
{
    std::wstring name;
    INT flags;
    StringTrimming trimming;
};
const Wrapping kWrappings[] = {
    {L"wrapped", 0, StringTrimmingCharacter},
    {L"LineLimit", StringFormatFlagsLineLimit, StringTrimmingCharacter},
    {L"NoClip", StringFormatFlagsNoClip, StringTrimmingCharacter},
    {L"NoWrap", StringFormatFlagsNoWrap, StringTrimmingCharacter},
    {L"NoWrap, NoClip", StringFormatFlagsNoWrap | StringFormatFlagsNoClip, StringTrimmingNone},
    {L"NoWrap, EllipsisCharacter", StringFormatFlagsNoWrap, StringTrimmingEllipsisCharacter},
};

void drawWrapping(const Cell& cell, const Wrapping& wrapping)
{
    StringFormat format(wrapping.flags);
    format.SetTrimming(wrapping.trimming);
    const Cell narrow{cell.graphics, cell.left, cell.top, cell.width - 50, cell.height};
    drawInRectangle(narrow, L"The greatest deviation of all measured points lies near the left edge of the part.",
                    format);
}

} // namespace

bool addLayouts(Gallery& gallery)
{
    const bool written = addSheet(gallery, {"64-alignment", "Text in a rectangle: alignment across / down", 3, 190, 96},
                                  alignments(), drawAlignment);
    return addSheet(gallery, {"65-wrapping", "Text in a rectangle: wrapping, clipping, trimming", 3, 240, 90},
                    kWrappings, drawWrapping) &&
           written;
}
