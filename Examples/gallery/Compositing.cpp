// SPDX-License-Identifier: MIT
#include "gallery/Sheet.h"
#include "gallery/Sheets.h"

#include <algorithm>

namespace {

using namespace Gdiplus;

Color redOf(BYTE alpha)
{
    return {alpha, 220, 40, 40};
}

Color greenOf(BYTE alpha)
{
    return {alpha, 30, 150, 60};
}

void drawSteps(const Cell& cell)
{
    constexpr int kSteps = 8;
    for (int i = 0; i < kSteps; ++i) {
        const SolidBrush brush(redOf(static_cast<BYTE>(255 * (i + 1) / kSteps)));
        const int left = cell.left + cell.width * i / kSteps;
        const int right = cell.left + cell.width * (i + 1) / kSteps;
        cell.graphics.FillRectangle(&brush, left, cell.top, right - left, cell.height);
    }
}

void drawTwoDiscs(const Cell& cell)
{
    const SolidBrush red(redOf(128));
    const SolidBrush green(greenOf(128));
    const int size = cell.height;
    cell.graphics.FillEllipse(&red, cell.left, cell.top, size, size);
    cell.graphics.FillEllipse(&green, cell.left + size / 2, cell.top, size, size);
}

/// What is drawn takes the place of what was there: holes in the picture.
void drawCopies(const Cell& cell)
{
    cell.graphics.SetCompositingMode(CompositingModeSourceCopy);
    drawTwoDiscs(cell);
    const SolidBrush nothing(Color(0, 0, 0, 0));
    cell.graphics.FillRectangle(&nothing, cell.left + cell.height * 3 / 2 + 8, cell.top, 24, cell.height);
    cell.graphics.SetCompositingMode(CompositingModeSourceOver);
}

void drawQualities(const Cell& cell)
{
    int top = cell.top;
    for (const CompositingQuality quality : {CompositingQualityDefault, CompositingQualityHighQuality}) {
        const SolidBrush red(redOf(255));
        cell.graphics.FillRectangle(&red, cell.left, top, cell.width, cell.height / 2);
        LinearGradientBrush green(Point(cell.left, 0), Point(cell.right(), 0), greenOf(0), greenOf(255));
        cell.graphics.SetCompositingQuality(quality);
        cell.graphics.FillRectangle(&green, cell.left, top, cell.width, cell.height / 2);
        top += cell.height / 2;
    }
    cell.graphics.SetCompositingQuality(CompositingQualityDefault);
}

/// One call: where the line crosses itself it is no darker. Two calls: it is.
void drawCrossings(const Cell& cell)
{
    Pen pen(greenOf(128), 12);
    const PointF once[] = {cell.at(0.05, 0.1), cell.at(0.4, 0.9), cell.at(0.4, 0.1), cell.at(0.05, 0.9)};
    cell.graphics.DrawLines(&pen, once, 4);
    cell.graphics.DrawLine(&pen, cell.at(0.6, 0.1), cell.at(0.95, 0.9));
    cell.graphics.DrawLine(&pen, cell.at(0.95, 0.1), cell.at(0.6, 0.9));
}

void drawTranslucentText(const Cell& cell)
{
    const auto font = makeFont({30, FW_BOLD});
    float top = static_cast<float>(cell.top);
    for (const BYTE alpha : {BYTE{255}, BYTE{96}}) {
        const SolidBrush brush(redOf(alpha));
        drawText(cell.graphics, L"12.345", *font, static_cast<float>(cell.left), top, brush);
        top += 38;
    }
}

/// A picture with alpha of its own, in its size and enlarged.
void drawPicture(const Cell& cell)
{
    Bitmap picture(32, 32, PixelFormat32bppARGB);
    Graphics graphics(&picture);
    graphics.SetSmoothingMode(SmoothingModeAntiAlias);
    const SolidBrush red(redOf(160));
    graphics.FillEllipse(&red, 1, 1, 30, 30);
    const Pen pen(greenOf(255), 3);
    graphics.DrawLine(&pen, 4, 28, 28, 4);
    cell.graphics.DrawImage(&picture, Rect(cell.left, cell.top, 32, 32));
    cell.graphics.DrawImage(&picture, Rect(cell.left + 40, cell.top, cell.height, cell.height));
}

void drawOutline(const Cell& cell)
{
    const SolidBrush brush(greenOf(100));
    const Pen pen(redOf(100), 16);
    const Rect rect(cell.left + 10, cell.top + 10, cell.width - 20, cell.height - 20);
    cell.graphics.FillEllipse(&brush, rect);
    cell.graphics.DrawEllipse(&pen, rect);
}

struct Work
{
    std::wstring name;
    void (*draw)(const Cell&);
};
const Work kWorks[] = {{L"alpha 31 .. 255", drawSteps},
                       {L"CompositingModeSourceOver", drawTwoDiscs},
                       {L"CompositingModeSourceCopy", drawCopies},
                       {L"quality Default, HighQuality", drawQualities},
                       {L"one call, two calls", drawCrossings},
                       {L"text of alpha 255, 96", drawTranslucentText},
                       {L"a picture with alpha", drawPicture},
                       {L"fill and outline overlap", drawOutline}};

void draw(const Cell& cell, const Work& work)
{
    work.draw(cell);
}

} // namespace

bool addCompositing(Gallery& gallery)
{
    const bool written =
        addSheet(gallery, {"50-compositing", "Compositing on an opaque picture", 4, 200, 130, Backdrop::Chequered},
                 kWorks, draw);
    return addSheet(gallery,
                    {"51-transparent",
                     "The same on a transparent picture: straight alpha, shown by the page on chequers of its own", 4,
                     200, 130, Backdrop::Transparent},
                    kWorks, draw) &&
           written;
}
