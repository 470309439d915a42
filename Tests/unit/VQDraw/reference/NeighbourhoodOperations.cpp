// SPDX-License-Identifier: MIT
#include "NeighbourhoodReference.h"
#include "Operations.h"

namespace vq::reference {
namespace {

/// Hosts see what became of their rectangle.
void medianInRectangle(Call& c)
{
    const auto& a = c.argument;
    CRect area(a[0], a[1], a[2], a[3]);
    c.image.Median(&area);
    c.results = {area.left, area.top, area.right, area.bottom};
}

void medianInRectangle(Model& m)
{
    const auto& a = m.argument;
    Rectangle area{a[0], a[1], a[2], a[3]};
    median(m.image, area);
    m.results = {area.left, area.top, area.right, area.bottom};
}

/// Sizes of blocks: mostly such that some fit.
Number blockSize(Dice& dice, const Trial& trial)
{
    return dice.oneIn(5) ? choose::any(dice, trial) : dice.between(0, std::min(trial.width, trial.height) + 2);
}

Number channelNumber(Dice& dice, const Trial& trial)
{
    return dice.oneIn(4) ? choose::any(dice, trial) : dice.between(-4, 7);
}

} // namespace

std::vector<Operation> smoothOperations()
{
    return {
        {"Smooth2x2",
         [](Model& m) { smooth2x2(m.image); },
         {{"Smooth2x2()", [](Call& c) { c.image.Smooth2x2(); }}},
         {}},
        {"Smooth3x3",
         [](Model& m) { smooth3x3(m.image); },
         {{"Smooth3x3()", [](Call& c) { c.image.Smooth3x3(); }}},
         {}},
        {"Smooth3x3OfColumns",
         [](Model& m) { smooth3x3(m.image, m.argument[0], m.argument[1]); },
         {{"Smooth3x3(x1, x2)", [](Call& c) { c.image.Smooth3x3(c.argument[0], c.argument[1]); }}},
         {choose::column, choose::column}},
        {"Smooth3x3OfARectangle",
         [](Model& m) { smooth3x3(m.image, m.argument[0], m.argument[1], m.argument[2], m.argument[3]); },
         {{"Smooth3x3(x1, y1, x2, y2)",
           [](Call& c) { c.image.Smooth3x3(c.argument[0], c.argument[1], c.argument[2], c.argument[3]); }},
          {"Smooth3x3(CRect)",
           [](Call& c) { c.image.Smooth3x3(CRect(c.argument[0], c.argument[1], c.argument[2], c.argument[3])); }}},
         {choose::column, choose::row, choose::column, choose::row}},
        {"Smooth",
         [](Model& m) { smooth(m.image, static_cast<Word>(m.argument[0])); },
         {{"Smooth(n)", [](Call& c) { c.image.Smooth(static_cast<ULONG>(c.argument[0])); }}},
         {choose::radius}},
        {"AlphaSmooth3x3",
         [](Model& m) { alphaSmooth3x3(m.image); },
         {{"AlphaSmooth3x3()", [](Call& c) { c.image.AlphaSmooth3x3(); }}},
         {}},
    };
}

std::vector<Operation> neighbourhoodOperations()
{
    return {
        {"MedianOfTheInterior",
         [](Model& m) { median(m.image); },
         {{"Median(nullptr)", [](Call& c) { c.image.Median(nullptr); }}},
         {}},
        {"MedianOfARectangle",
         [](Model& m) { medianInRectangle(m); },
         {{"Median(CRect*)", [](Call& c) { medianInRectangle(c); }}},
         {choose::column, choose::row, choose::column, choose::row}},
        {"Laplacian",
         [](Model& m) { laplacian(m.image, m.argument[0]); },
         {{"Laplacian(ch)", [](Call& c) { c.image.Laplacian(c.argument[0]); }}},
         {channelNumber}},
        {"Mosaic",
         [](Model& m) { mosaic(m.image, m.argument[0]); },
         {{"Mosaic(n)", [](Call& c) { c.image.Mosaic(c.argument[0]); }}},
         {blockSize}},
    };
}

} // namespace vq::reference
