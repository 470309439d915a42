// SPDX-License-Identifier: MIT
#include "gallery/Sheet.h"
#include "gallery/Sheets.h"

namespace {

using namespace Gdiplus;

const Color kInk(20, 20, 20);

struct Hint
{
    std::wstring name;
    TextRenderingHint value;
};
const Hint kHints[] = {{L"SystemDefault", TextRenderingHintSystemDefault},
                       {L"SingleBitPerPixelGridFit", TextRenderingHintSingleBitPerPixelGridFit},
                       {L"SingleBitPerPixel", TextRenderingHintSingleBitPerPixel},
                       {L"AntiAliasGridFit", TextRenderingHintAntiAliasGridFit},
                       {L"AntiAlias", TextRenderingHintAntiAlias},
                       {L"ClearTypeGridFit", TextRenderingHintClearTypeGridFit}};

void drawSizes(const Cell& cell, const Hint& hint)
{
    const SolidBrush brush(kInk);
    cell.graphics.SetTextRenderingHint(hint.value);
    float top = static_cast<float>(cell.top);
    for (const int pixels : {8, 9, 11, 14, 20, 32}) {
        drawText(cell.graphics, L"Distance 12.345 mm", *makeFont({pixels}), static_cast<float>(cell.left), top, brush);
        top += static_cast<float>(pixels) * 1.25F;
    }
}

struct Style
{
    std::wstring name;
    TextStyle value;
};
const Style kStyles[] = {{L"regular", {22}},
                         {L"bold", {22, FW_BOLD}},
                         {L"italic", {22, FW_NORMAL, true}},
                         {L"bold and italic", {22, FW_BOLD, true}},
                         {L"underlined", {22, FW_NORMAL, false, true}},
                         {L"struck out", {22, FW_NORMAL, false, false, true}}};

/// With the rectangle that is measured.
void drawStyle(const Cell& cell, const Style& style)
{
    const std::wstring text = L"Diameter \u00D8 8.5";
    const auto font = makeFont(style.value);
    const PointF corner = cell.at(0, 0.1);
    RectF bounds;
    cell.graphics.MeasureString(text.c_str(), static_cast<INT>(text.size()), font.get(), corner, &bounds);
    const SolidBrush tint(Color(225, 235, 250));
    cell.graphics.FillRectangle(&tint, bounds);
    const SolidBrush brush(kInk);
    drawText(cell.graphics, text, *font, corner.X, corner.Y, brush);
}

void drawLarge(const Cell& cell, const Brush& brush)
{
    drawText(cell.graphics, L"\u00D8 8.5", *makeFont({56, FW_BOLD}), static_cast<float>(cell.left),
             static_cast<float>(cell.top), brush);
}

void drawContrasts(const Cell& cell)
{
    const UINT usual = cell.graphics.GetTextContrast();
    const SolidBrush brush(kInk);
    float top = static_cast<float>(cell.top);
    for (const UINT contrast : {0U, 4U, 12U}) {
        cell.graphics.SetTextContrast(contrast);
        drawText(cell.graphics, L"Contrast " + std::to_wstring(contrast), *makeFont({16}),
                 static_cast<float>(cell.left), top, brush);
        top += 20;
    }
    cell.graphics.SetTextContrast(usual);
}

void drawGradientText(const Cell& cell)
{
    drawLarge(cell, LinearGradientBrush(cell.at(0, 0), cell.at(1, 0), Color(220, 40, 40), Color(30, 60, 200)));
}

void drawHatchedText(const Cell& cell)
{
    drawLarge(cell, HatchBrush(HatchStyleSmallCheckerBoard, Color(120, 0, 60), Color(240, 200, 90)));
}

struct Brushed
{
    std::wstring name;
    void (*draw)(const Cell&);
};
const Brushed kBrushed[] = {
    {L"gradient", drawGradientText}, {L"hatch", drawHatchedText}, {L"text contrast", drawContrasts}};

} // namespace

bool addTexts(Gallery& gallery)
{
    bool written = addSheet(gallery, {"60-hints", "Text rendering hints", 3, 380, 160}, kHints, drawSizes);
    written = addSheet(gallery,
                       {"61-hints-transparent", "Text rendering hints on a transparent picture", 3, 380, 160,
                        Backdrop::Transparent},
                       kHints, drawSizes) &&
              written;
    written = addSheet(gallery, {"62-styles", "Font styles, over the rectangle that is measured", 3, 230, 80}, kStyles,
                       drawStyle) &&
              written;
    return addSheet(gallery, {"63-brushed-text", "Text by other brushes, and its contrast", 3, 230, 110}, kBrushed,
                    [](const Cell& cell, const Brushed& brushed) { brushed.draw(cell); }) &&
           written;
}
