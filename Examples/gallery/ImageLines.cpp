// SPDX-License-Identifier: MIT
// The members of an image that draw lines, dashes, guides and pixels.
#include "gallery/Sheet.h"
#include "gallery/Sheets.h"

#include <cmath>
#include <numbers>

namespace {

constexpr COLORREF kInk = RGB(24, 60, 120);
constexpr COLORREF kRed = RGB(200, 40, 40);

/// Calls `line(x1, y1, x2, y2)` for lines from the middle outwards.
template <typename Line>
void fan(CVQDIB& image, int lines, Line line)
{
    const LONG x = image.GetWidth() / 2;
    const LONG y = image.GetHeight() / 2;
    const double radius = y - 6;
    for (int i = 0; i < lines; ++i) {
        const double angle = 2 * std::numbers::pi * i / lines;
        line(x + std::lround(radius * 0.3 * std::cos(angle)), y + std::lround(radius * 0.3 * std::sin(angle)),
             x + std::lround(radius * std::cos(angle)), y + std::lround(radius * std::sin(angle)));
    }
}

template <LONG width, bool arrow>
void drawFan(CVQDIB& image)
{
    fan(image, arrow ? 12 : 24, [&](auto x1, auto y1, auto x2, auto y2) {
        image.Line(static_cast<LONG>(x1), static_cast<LONG>(y1), static_cast<LONG>(x2), static_cast<LONG>(y2), kInk,
                   255, width, arrow);
    });
}

void drawHardFan(CVQDIB& image)
{
    image.EnableAntialias(false);
    drawFan<1, false>(image);
}

void drawAlphas(CVQDIB& image)
{
    image.FillRect(CRect(60, 0, 110, image.GetHeight()), RGB(255, 214, 120), LONG{255});
    for (LONG i = 0; i < 8; ++i)
        image.Line(8, 10 + 13 * i, image.GetWidth() - 8, 10 + 13 * i, kRed, 255 - 32 * i, 6, false);
}

const ImageSample kLines[] = {{L"width 1", drawFan<1, false>},          {L"width 1, no smoothing", drawHardFan},
                              {L"width 4", drawFan<4, false>},          {L"arrows of width 1", drawFan<1, true>},
                              {L"arrows of width 3", drawFan<3, true>}, {L"alpha 255 down to 31", drawAlphas}};

using DrawDashes = void(CVQDIB& image, LONG x1, LONG y1, LONG x2, LONG y2);

void stippleAcross(CVQDIB& image, LONG x1, LONG y1, LONG x2, LONG)
{
    image.LineHStipple(x1, x2, y1, kInk, 255);
}

void stippleDown(CVQDIB& image, LONG x1, LONG y1, LONG, LONG)
{
    image.LineVStipple(8, 88 + x1 % 7, x1 + y1 - 8, kInk, 255);
}

void stippleApart(CVQDIB& image, LONG x1, LONG y1, LONG x2, LONG y2)
{
    image.LineStipple(x1, y1, x2, y2, kInk, 255);
}

void stippleRound(CVQDIB& image, LONG x1, LONG y1, LONG x2, LONG y2)
{
    image.LineStipple2(x1, y1, x2, y2, kInk, 255);
}

/// Lines without smoothing beside lines with it, ever more slanted.
template <DrawDashes* draw>
void drawDashes(CVQDIB& image)
{
    for (const bool smooth : {false, true}) {
        image.EnableAntialias(smooth);
        const LONG left = smooth ? image.GetWidth() / 2 + 4 : 4;
        for (LONG i = 0; i < 6; ++i)
            draw(image, left + 3 * i, 8 + 12 * i, left + 70 + 3 * i, 8 + 12 * i + 6 * i);
    }
}

const ImageSample kDashes[] = {{L"LineHStipple, hard and smooth", drawDashes<stippleAcross>},
                               {L"LineVStipple", drawDashes<stippleDown>},
                               {L"LineStipple", drawDashes<stippleApart>},
                               {L"LineStipple2", drawDashes<stippleRound>}};

void drawGuides(CVQDIB& image)
{
    float width = 1;
    for (const LONG place : {LONG{20}, LONG{50}, LONG{85}}) {
        image.LineH(place, kInk, 160, width);
        image.LineV(place + 20, kRed, 160, width);
        width += 2;
    }
}

void drawDashedGuides(CVQDIB& image)
{
    image.EnableAntialias(false);
    for (const LONG place : {LONG{20}, LONG{50}, LONG{85}}) {
        image.LineHStipple(place, kInk, 255);
        image.LineVStipple(place + 20, kRed, 255);
    }
}

void drawBorders(CVQDIB& image)
{
    image.DrawBorder(RGB(255, 200, 90), 255, 13);
    image.DrawBorder(kInk, 255, 1);
}

void drawPixels(CVQDIB& image)
{
    const int width = image.GetWidth();
    for (int y = 0; y < image.GetHeight(); ++y)
        for (int x = 0; x < width; ++x)
            if ((x * 7 + y * 3) % 5 < 2)
                image.Pixel(x, y, LONG{x * 255 / width}, LONG{40}, LONG{y * 2}, LONG{255 * x / width});
}

const ImageSample kGuides[] = {{L"guides of width 1, 3, 5", drawGuides},
                               {L"dashed guides", drawDashedGuides},
                               {L"borders of width 13 and 1", drawBorders},
                               {L"pixels", drawPixels}};

} // namespace

bool addImageLines(Gallery& gallery)
{
    return addImageSheet(gallery, {"70-image-lines", "Lines in images", 3, 190, 150}, kLines) &&
           addImageSheet(gallery, {"71-image-dashes", "Dashes in images", 2, 230, 150}, kDashes) &&
           addImageSheet(gallery, {"72-image-guides", "Guides, borders and pixels in images", 2, 230, 150}, kGuides);
}
