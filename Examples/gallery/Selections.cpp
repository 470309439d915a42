// SPDX-License-Identifier: MIT
// The overlays that an image shows while something is selected.
#include "gallery/Sheet.h"
#include "gallery/Sheets.h"

namespace {

constexpr COLORREF kBlue = RGB(60, 120, 255);

/// Something to select: dark, as scenes are.
void drawScene(CVQDIB& image)
{
    image.Clear(RGB(36, 40, 52));
    const int height = image.GetHeight();
    for (int i = 0; i < 9; ++i)
        image.DrawFilledCircle(CRect(20 + 26 * i, height / 2 - 40 + 9 * i, 60 + 26 * i, height / 2 + 9 * i),
                               RGB(220, 160, 90), RGB(150, 100, 50));
}

void select(CVQDIB& image, CPoint p1, CPoint p2, bool guides)
{
    drawScene(image);
    image.DrawSelection(p1, p2, kBlue, 60, guides);
}

void selectBox(CVQDIB& image)
{
    select(image, {60, 50}, {200, 150}, false);
}

void selectWithGuides(CVQDIB& image)
{
    select(image, {200, 150}, {60, 50}, true);
}

void selectAtEdges(CVQDIB& image)
{
    select(image, {120, 3}, {image.GetWidth() - 4, 100}, false);
}

void selectNarrow(CVQDIB& image)
{
    select(image, {120, 50}, {132, 150}, true);
}

void selectCircle(CVQDIB& image)
{
    drawScene(image);
    CVQDIB::DrawCircleSelection(&image, 130, 100, 190, 70, kBlue, 60);
}

void selectStrongCircle(CVQDIB& image)
{
    drawScene(image);
    CVQDIB::DrawCircleSelection(&image, 130, 100, 190, 70, kBlue, 223);
}

const ImageSample kSelections[] = {{L"DrawSelection", selectBox},
                                   {L"with guides, from the other corner", selectWithGuides},
                                   {L"at the edges of the image", selectAtEdges},
                                   {L"too narrow for a label", selectNarrow},
                                   {L"DrawCircleSelection, alpha 60", selectCircle},
                                   {L"alpha 223", selectStrongCircle}};

} // namespace

bool addSelections(Gallery& gallery)
{
    return addImageSheet(gallery, {"77-selections", "Selections in images", 2, 300, 230}, kSelections);
}
