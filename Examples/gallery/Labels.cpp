// SPDX-License-Identifier: MIT
#include "gallery/Sheet.h"
#include "gallery/Sheets.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace {

constexpr COLORREF kInk = RGB(20, 20, 20);

void setFont(CVQDIB& image, LONG pixels)
{
    LOGFONTW font{};
    font.lfHeight = -pixels;
    const std::wstring_view face = kFace;
    std::copy(face.begin(), face.end(), font.lfFaceName);
    image.SetTextFont(font);
    image.SetTextColor(kInk, BYTE{255});
}

void fill(CVQDIB& image, const Cell& cell, COLORREF colour)
{
    image.FillRect(CRect(cell.left, cell.top, cell.right(), cell.bottom()), colour, 255);
}

void drawHint(CVQDIB& image, const Cell& cell, Gdiplus::TextRenderingHint hint)
{
    CVQDIB::SetRenderingHint(hint);
    LONG top = cell.top;
    for (const LONG pixels : {9, 11, 16, 24}) {
        image.SetFontSize(-pixels);
        image.TextOutW(cell.left, top, L"Distance 12.345");
        top += pixels * 4 / 3;
    }
}

void drawTwoLevels(CVQDIB& image, const Cell& cell)
{
    drawHint(image, cell, Gdiplus::TextRenderingHintSingleBitPerPixelGridFit);
}

void drawHinted(CVQDIB& image, const Cell& cell)
{
    drawHint(image, cell, Gdiplus::TextRenderingHintAntiAliasGridFit);
}

void drawSmooth(CVQDIB& image, const Cell& cell)
{
    drawHint(image, cell, Gdiplus::TextRenderingHintAntiAlias);
}

void drawShadowed(CVQDIB& image, const Cell& cell, COLORREF ground, COLORREF text, LONG x, LONG y)
{
    fill(image, cell, ground);
    image.EnableTextShadow(true);
    image.SetTextShadowOffset(x, y);
    setFont(image, 22);
    image.SetTextColor(text, BYTE{255});
    image.TextOutW(cell.left + 4, cell.top + 8, L"12.345 mm");
    image.EnableTextShadow(false);
}

void drawLightShadowed(CVQDIB& image, const Cell& cell)
{
    drawShadowed(image, cell, RGB(90, 150, 210), RGB(255, 255, 255), 1, 1);
}

void drawDarkShadowed(CVQDIB& image, const Cell& cell)
{
    drawShadowed(image, cell, RGB(90, 150, 210), RGB(0, 0, 60), 1, 1);
}

void drawFarShadow(CVQDIB& image, const Cell& cell)
{
    drawShadowed(image, cell, RGB(230, 230, 230), RGB(200, 40, 40), 5, 6);
}

void drawBoxes(CVQDIB& image, const Cell& cell)
{
    setFont(image, 12);
    const CRect first =
        image.TextBox(cell.left, cell.top, L"tight", RGB(255, 240, 180), 255, RGB(180, 120, 0), 1, 0, 0);
    const CRect second =
        image.TextBox(first.right + 8, cell.top, L"with margins", RGB(200, 230, 255), 255, RGB(0, 80, 160), 1, 10, 6);
    image.TextBox(cell.left, second.bottom + 8, L"wide outline, no fill", 0, 0, RGB(160, 0, 90), 3, 8, 5);
}

void drawCorners(CVQDIB& image, const Cell& cell)
{
    setFont(image, 12);
    RECT rect{cell.left, cell.top, cell.right() - 1, cell.bottom() - 1};
    fill(image, cell, RGB(232, 238, 248));
    constexpr UINT kAcross[] = {0, 1, 2};
    constexpr UINT kDown[] = {0, 4, 8};
    for (const UINT across : kAcross)
        for (const UINT down : kDown)
            image.DrawTextW(L"text", &rect, across | down);
}

void drawWrapped(CVQDIB& image, const Cell& cell)
{
    setFont(image, 12);
    fill(image, cell, RGB(232, 238, 248));
    RECT rect{cell.left, cell.top, cell.right() - 1, cell.bottom() - 1};
    image.DrawTextW(L"A sentence that is wrapped between its words and centred", &rect, 1 | 4);
}

void drawUnbroken(CVQDIB& image, const Cell& cell)
{
    setFont(image, 12);
    fill(image, cell, RGB(232, 238, 248));
    RECT rect{cell.left, cell.top, cell.right() - 1, cell.bottom() - 1};
    image.DrawTextW(L"A sentence that is not wrapped but cut\nand a second line", &rect, 32);
}

void drawLines(CVQDIB& image, const Cell& cell)
{
    setFont(image, 13);
    CArray<COLORREF, const COLORREF&> colours;
    for (const COLORREF colour : {RGB(120, 200, 120), RGB(250, 220, 110), COLORREF{0}, RGB(235, 120, 110)})
        colours.Add(colour);
    RECT rect{cell.left, cell.top, cell.right() - 1, cell.bottom()};
    image.DrawTextW(L"passed\nwarning\nwithout a colour\nfailed", &rect, 0, colours);
}

void drawPrinted(CVQDIB& image, const Cell& cell)
{
    setFont(image, 12);
    image.GotoXY(cell.left, cell.top);
    image.print(L"%d points", 1234);
    image.print(L"of %s\n", L"a scan");
    image.GotoX(cell.left);
    image.print(L"RMS %.4f\n", 0.0125);
    image.print(L"maximum %+.3f mm\n", 0.25);
}

struct Sample
{
    const wchar_t* name;
    void (*draw)(CVQDIB& image, const Cell& cell);
};
constexpr Sample kSamples[] = {
    {L"SingleBitPerPixelGridFit", drawTwoLevels},
    {L"AntiAliasGridFit", drawHinted},
    {L"AntiAlias, drawn twice", drawSmooth},
    {L"black shadow of light text", drawLightShadowed},
    {L"white shadow of dark text", drawDarkShadowed},
    {L"offset (5, 6)", drawFarShadow},
    {L"text boxes", drawBoxes},
    {L"nine alignments", drawCorners},
    {L"wrapped and centred", drawWrapped},
    {L"without breaks", drawUnbroken},
    {L"lines with backgrounds", drawLines},
    {L"printed", drawPrinted},
};

} // namespace

bool addLabels(Gallery& gallery)
{
    const SheetLook look{"67-labels", "Labels in images: text, shadows, boxes, alignments, printing", 3, 240, 120};
    Sheet sheet(look, static_cast<int>(std::size(kSamples)));
    Gdiplus::TextRenderingHint former{};
    CVQDIB::GetRenderingHint(former);
    CVQDIB::SetRenderingHint(Gdiplus::TextRenderingHintAntiAliasGridFit);
    for (const Sample& sample : kSamples) {
        const Cell cell = sheet.next(sample.name);
        setFont(sheet.picture(), 12);
        sample.draw(sheet.picture(), cell);
        CVQDIB::SetRenderingHint(Gdiplus::TextRenderingHintAntiAliasGridFit);
    }
    CVQDIB::SetRenderingHint(former);
    return gallery.add(sheet.picture(), look.name, look.caption);
}
