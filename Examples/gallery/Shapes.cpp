// SPDX-License-Identifier: MIT
#include "gallery/Sheet.h"
#include "gallery/Sheets.h"

#include <array>
#include <cmath>
#include <numbers>

namespace {

using namespace Gdiplus;

const Color kInk(24, 60, 120);
const Color kFill(255, 236, 190, 90);
const Color kGlass(128, 40, 140, 90);

void drawRectangles(const Cell& cell)
{
    const SolidBrush brush(kFill);
    cell.graphics.FillRectangle(&brush, cell.rect());
    float width = 1;
    for (const int inset : {0, 12, 26}) {
        const Pen pen(kInk, width);
        cell.graphics.DrawRectangle(&pen, cell.left + inset, cell.top + inset, cell.width - 2 * inset,
                                    cell.height - 2 * inset);
        width += 2;
    }
}

/// Pens of width 7 on and inside the edge of a filled rectangle.
void drawAlignments(const Cell& cell)
{
    const SolidBrush brush(kFill);
    int left = cell.left + 4;
    for (const PenAlignment alignment : {PenAlignmentCenter, PenAlignmentInset}) {
        const Rect rect(left, cell.top + 8, cell.width / 2 - 16, cell.height - 16);
        cell.graphics.FillRectangle(&brush, rect);
        Pen pen(kGlass, 7);
        pen.SetAlignment(alignment);
        cell.graphics.DrawRectangle(&pen, rect);
        left += cell.width / 2 + 4;
    }
}

void drawEllipses(const Cell& cell)
{
    const SolidBrush brush(kFill);
    const SolidBrush glass(kGlass);
    const Pen pen(kInk, 1);
    cell.graphics.FillEllipse(&brush, cell.left, cell.top, cell.width * 2 / 3, cell.height);
    cell.graphics.FillEllipse(&glass, cell.left + cell.width / 3, cell.top + 10, cell.width * 2 / 3, cell.height - 20);
    for (int inset = 0; inset < cell.height / 2; inset += 6)
        cell.graphics.DrawEllipse(&pen, cell.left + inset, cell.top + inset, cell.width - 2 * inset,
                                  cell.height - 2 * inset);
}

void drawArcs(const Cell& cell)
{
    Pen pen(kInk, 3);
    float sweep = 30;
    for (int inset = 0; inset < cell.height / 2 - 4; inset += 7) {
        GraphicsPath path;
        path.AddArc(cell.left + inset, cell.top + inset, cell.width - 2 * inset, cell.height - 2 * inset, -90, sweep);
        cell.graphics.DrawPath(&pen, &path);
        sweep += 45;
    }
}

void drawRoundBoxes(const Cell& cell)
{
    int left = cell.left;
    for (const int corner : {8, 24, 48}) {
        const int right = left + cell.width / 3 - 10 - corner;
        const int bottom = cell.bottom() - corner;
        GraphicsPath path;
        path.AddArc(left, cell.top, corner, corner, 180, 90);
        path.AddArc(right, cell.top, corner, corner, 270, 90);
        path.AddArc(right, bottom, corner, corner, 0, 90);
        path.AddArc(left, bottom, corner, corner, 90, 90);
        path.CloseFigure();
        const SolidBrush brush(kFill);
        cell.graphics.FillPath(&brush, &path);
        const Pen pen(kInk, 2);
        cell.graphics.DrawPath(&pen, &path);
        left += cell.width / 3 + 3;
    }
}

/// The two fill modes of a figure that crosses itself.
void drawStars(const Cell& cell)
{
    double centre = 0.25;
    for (const FillMode mode : {FillModeAlternate, FillModeWinding}) {
        std::array<PointF, 7> points;
        for (std::size_t i = 0; i < points.size(); ++i) {
            const double angle = 2 * std::numbers::pi * 3 * static_cast<double>(i) / 7;
            const double share = 0.48 * cell.height / cell.width;
            points[i] = cell.at(centre + share * std::sin(angle), 0.5 - 0.48 * std::cos(angle));
        }
        GraphicsPath path(mode);
        path.AddPolygon(points.data(), static_cast<INT>(points.size()));
        const SolidBrush brush(kFill);
        cell.graphics.FillPath(&brush, &path);
        const Pen pen(kInk, 1);
        cell.graphics.DrawPath(&pen, &path);
        centre += 0.5;
    }
}

void drawCurves(const Cell& cell)
{
    const Pen pen(kInk, 2);
    const Pen thin(Color(180, 180, 180), 1);
    for (const double pull : {0.3, 0.7, 1.0}) {
        const PointF points[] = {cell.at(0, 1), cell.at(pull, 0), cell.at(1 - pull, 0.2), cell.at(1, 0.9)};
        cell.graphics.DrawLines(&thin, points, 4);
        cell.graphics.DrawBezier(&pen, points[0], points[1], points[2], points[3]);
    }
}

/// Two figures of one path: the inner one is a hole.
void drawHole(const Cell& cell)
{
    GraphicsPath path;
    path.AddEllipse(cell.rect());
    path.AddRectangle(Rect(cell.centreX() - 20, cell.centreY() - 15, 40, 30));
    const SolidBrush brush(kGlass);
    cell.graphics.FillPath(&brush, &path);
    Pen pen(kInk, 4);
    pen.SetLineJoin(LineJoinRound);
    cell.graphics.DrawPath(&pen, &path);
}

struct Shape
{
    std::wstring name;
    void (*draw)(const Cell&);
};
const Shape kShapes[] = {{L"rectangles, width 1, 3, 5", drawRectangles},
                         {L"alignment Center, Inset", drawAlignments},
                         {L"ellipses", drawEllipses},
                         {L"arcs", drawArcs},
                         {L"round boxes, corner 8, 24, 48", drawRoundBoxes},
                         {L"fill mode Alternate, Winding", drawStars},
                         {L"B\u00E9zier curves", drawCurves},
                         {L"a path of two figures", drawHole}};

} // namespace

bool addShapes(Gallery& gallery)
{
    return addSheetOfBoth(gallery, {"30-shapes", "Shapes, without smoothing and with it", 4, 210, 140}, kShapes,
                          [](const Cell& cell, const Shape& shape) { shape.draw(cell); });
}
