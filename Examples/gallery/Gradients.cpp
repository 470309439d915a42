// SPDX-License-Identifier: MIT
#include "gallery/Sheet.h"
#include "gallery/Sheets.h"

#include <vector>

namespace {

using namespace Gdiplus;

struct Gradient
{
    std::wstring name;
    PointF from, to; ///< in shares of the cell
    Color begin, end;
    std::vector<REAL> factors, positions; ///< empty: evenly
};

const Color kRed(220, 40, 40);
const Color kBlue(30, 60, 200);
const Gradient kGradients[] = {
    {L"across", {0, 0}, {1, 0}, kRed, kBlue, {}, {}},
    {L"down", {0, 0}, {0, 1}, kRed, kBlue, {}, {}},
    {L"aslant", {0, 0}, {1, 1}, kRed, kBlue, {}, {}},
    {L"repeated: a quarter of the way", {0, 0}, {0.25F, 0}, kRed, kBlue, {}, {}},
    {L"blend 0 0 1 at 0 0.8 1", {0, 0}, {1, 0}, kRed, kBlue, {0, 0, 1}, {0, 0.8F, 1}},
    {L"blend 0 1 0 at 0 0.5 1", {0, 0}, {1, 0}, kRed, kBlue, {0, 1, 0}, {0, 0.5F, 1}},
    {L"blend in steps", {0, 0}, {1, 0}, kRed, kBlue, {0, 0, 0.5F, 0.5F, 1, 1}, {0, 0.33F, 0.34F, 0.66F, 0.67F, 1}},
    {L"to transparent", {0, 0}, {1, 0}, kRed, Color(0, 220, 40, 40), {}, {}},
};

void drawGradient(const Cell& cell, const Gradient& gradient)
{
    LinearGradientBrush brush(cell.at(gradient.from.X, gradient.from.Y), cell.at(gradient.to.X, gradient.to.Y),
                              gradient.begin, gradient.end);
    if (!gradient.factors.empty())
        brush.SetBlend(gradient.factors.data(), gradient.positions.data(), static_cast<INT>(gradient.factors.size()));
    cell.graphics.FillRectangle(&brush, cell.left, cell.top, cell.width, cell.height / 2);
    cell.graphics.FillEllipse(&brush, cell.left, cell.centreY() + 4, cell.width, cell.height / 2 - 4);
}

} // namespace

bool addGradients(Gallery& gallery)
{
    return addSheet(gallery,
                    {"41-gradients", "Linear gradients on rectangles and ellipses", 4, 200, 140, Backdrop::Chequered},
                    kGradients, drawGradient);
}
