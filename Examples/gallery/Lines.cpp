// SPDX-License-Identifier: MIT
#include "gallery/Sheet.h"
#include "gallery/Sheets.h"

#include <cmath>
#include <numbers>

namespace {

using namespace Gdiplus;

const Color kInk(24, 60, 120);
const Color kGlass(128, 200, 40, 40);

struct Fan
{
    std::wstring name;
    float width;
};
const Fan kFans[] = {{L"width 0.5", 0.5F}, {L"width 1", 1}, {L"width 2", 2}, {L"width 3.5", 3.5F}, {L"width 6", 6}};

void drawFan(const Cell& cell, const Fan& fan)
{
    constexpr int kLines = 24;
    const Pen pen(kInk, fan.width);
    const PointF centre = cell.at(0.5, 0.5);
    const float radius = static_cast<float>(cell.height) / 2;
    for (int i = 0; i < kLines; ++i) {
        const float angle = 2 * std::numbers::pi_v<float> * static_cast<float>(i) / kLines;
        const PointF direction(std::cos(angle), std::sin(angle));
        cell.graphics.DrawLine(&pen, centre.X + direction.X * radius * 0.3F, centre.Y + direction.Y * radius * 0.3F,
                               centre.X + direction.X * radius, centre.Y + direction.Y * radius);
    }
}

struct Join
{
    std::wstring name;
    LineJoin value;
};
const Join kJoins[] = {{L"LineJoinMiter", LineJoinMiter},
                       {L"LineJoinBevel", LineJoinBevel},
                       {L"LineJoinRound", LineJoinRound},
                       {L"LineJoinMiterClipped", LineJoinMiterClipped}};

/// Translucent, to show that a line is stroked as one shape; with its points on top.
void drawJoin(const Cell& cell, const Join& join)
{
    const PointF points[] = {cell.at(0.05, 0.8), cell.at(0.3, 0.2),   cell.at(0.45, 0.8),
                             cell.at(0.55, 0.3), cell.at(0.86, 0.35), cell.at(0.7, 0.7)};
    Pen pen(kGlass, 14);
    pen.SetLineJoin(join.value);
    cell.graphics.DrawLines(&pen, points, static_cast<INT>(std::size(points)));
    const Pen thin(kInk, 1);
    cell.graphics.DrawLines(&thin, points, static_cast<INT>(std::size(points)));
}

struct Cap
{
    std::wstring name;
    LineCap value;
};
const Cap kCaps[] = {{L"LineCapFlat", LineCapFlat},
                     {L"LineCapSquare", LineCapSquare},
                     {L"LineCapRound", LineCapRound},
                     {L"LineCapTriangle", LineCapTriangle},
                     {L"LineCapSquareAnchor", LineCapSquareAnchor},
                     {L"LineCapRoundAnchor", LineCapRoundAnchor},
                     {L"LineCapDiamondAnchor", LineCapDiamondAnchor},
                     {L"LineCapArrowAnchor", LineCapArrowAnchor}};

/// The cap at three widths; the thin lines show where each line ends.
void drawCap(const Cell& cell, const Cap& cap)
{
    const Pen mark(Color(200, 60, 60), 1);
    const PointF left = cell.at(0.2, 0);
    const PointF right = cell.at(0.8, 1);
    cell.graphics.DrawLine(&mark, left.X, left.Y, left.X, right.Y);
    cell.graphics.DrawLine(&mark, right.X, left.Y, right.X, right.Y);
    double height = 0.12;
    for (const float width : {1.0F, 4.0F, 10.0F}) {
        Pen pen(kInk, width);
        pen.SetStartCap(cap.value);
        pen.SetEndCap(cap.value);
        cell.graphics.DrawLine(&pen, cell.at(0.2, height), cell.at(0.8, height));
        height += 0.28;
    }
}

} // namespace

bool addLines(Gallery& gallery)
{
    bool written = addSheetOfBoth(
        gallery, {"10-lines", "Lines of several widths, without smoothing and with it", 5, 150, 160}, kFans, drawFan);
    written = addSheetOfBoth(
                  gallery, {"11-joins", "Line joins of a translucent pen: a line is stroked as one shape", 4, 190, 130},
                  kJoins, drawJoin) &&
              written;
    return addSheetOfBoth(gallery, {"12-caps", "Line caps and anchors of pens of width 1, 4 and 10", 4, 190, 120},
                          kCaps, drawCap) &&
           written;
}
