// SPDX-License-Identifier: MIT
// The members of an image that outline and fill shapes.
#include "gallery/Sheet.h"
#include "gallery/Sheets.h"

#include <cmath>
#include <numbers>
#include <vector>

namespace {

constexpr COLORREF kInk = RGB(24, 60, 120);
constexpr COLORREF kRed = RGB(200, 40, 40);
constexpr COLORREF kGreen = RGB(40, 140, 90);
constexpr COLORREF kSand = RGB(255, 220, 140);

/// The image without a margin.
CRect inner(const CVQDIB& image, int margin)
{
    return {margin, margin, image.GetWidth() - margin, image.GetHeight() - margin};
}

void drawOutlines(CVQDIB& image)
{
    CRect outer = inner(image, 6);
    image.DrawRect(outer, kInk, 255);
    CRect dotted = inner(image, 18);
    image.DrawStippleRect(dotted, kRed, 255);
    CRect hardDotted = inner(image, 30);
    image.EnableAntialias(false);
    image.DrawStippleRect(hardDotted, kRed, 255);
}

void draw3DRects(CVQDIB& image)
{
    image.Clear(RGB(192, 192, 192));
    CRect raised(12, 14, 80, 100);
    image.Draw3DRect(raised, RGB(255, 255, 255), RGB(90, 90, 90), 255, 2);
    CRect sunken(98, 14, 166, 100);
    image.Draw3DRect(sunken, RGB(90, 90, 90), RGB(255, 255, 255), 255, 2);
}

void fillRects(CVQDIB& image)
{
    image.FillRect(CRect(8, 8, 100, 70), kSand, LONG{255});
    image.FillRect(CRect(60, 30, 150, 100), kGreen, LONG{128});
    Gdiplus::LinearGradientBrush brush(Gdiplus::PointF(110, 0), Gdiplus::PointF(170, 0),
                                       Gdiplus::Color(255, 24, 60, 120), Gdiplus::Color(0, 24, 60, 120));
    image.FillRect(CRect(111, 8, 169, 24), brush);
}

void fillHatched(CVQDIB& image)
{
    int left = 8;
    for (const auto style : {Gdiplus::HatchStyleCross, Gdiplus::HatchStyleForwardDiagonal, Gdiplus::HatchStyleZigZag,
                             Gdiplus::HatchStyle25Percent}) {
        image.FillHatchRect(CRect(left, 8, left + 36, 104), kInk, 255, style);
        left += 42;
    }
}

void fillGradients(CVQDIB& image)
{
    image.FillGradientRoundRect(CRect(8, 8, 168, 50), 12, {8, 0}, {168, 0}, kSand, kRed, BYTE{255}, BYTE{255});
    image.FillGradientRoundRect(CRect(8, 60, 168, 104), 12, {8, 60}, {48, 100}, kInk, kSand, BYTE{255}, BYTE{255});
}

const ImageSample kRects[] = {{L"DrawRect, DrawStippleRect", drawOutlines},
                              {L"Draw3DRect", draw3DRects},
                              {L"FillRect, one of a brush", fillRects},
                              {L"FillHatchRect", fillHatched},
                              {L"FillGradientRoundRect", fillGradients}};

void drawCircles(CVQDIB& image)
{
    for (LONG radius = 4; radius < 50; radius += 6)
        image.DrawCircle(image.GetWidth() / 2, image.GetHeight() / 2, radius, kInk, LONG{255}, 1 + radius / 20);
    image.DrawCircle(30, 30, LONG{45}, LONG{22}, kRed, LONG{255});
    image.Line(30, 30, 45, 22, kRed, 255, 1, false);
}

void drawDashedCircles(CVQDIB& image)
{
    int width = 1;
    for (const int margin : {6, 16, 30}) {
        image.DrawCircle(inner(image, margin), kRed, BYTE{255}, width, true);
        width += 2;
    }
}

void fillCircles(CVQDIB& image)
{
    image.FillCircle(CRect(6, 6, 104, 104), kSand, BYTE{255});
    image.FillCircle(Gdiplus::Rect(60, 20, 108, 70), Gdiplus::Color(128, 40, 140, 90));
}

void drawFilledCircles(CVQDIB& image)
{
    for (int i = 0; i < 5; ++i)
        image.DrawFilledCircle(CRect(8 + 32 * i, 20 + 6 * i, 38 + 32 * i, 50 + 10 * i), kInk, kSand);
}

const ImageSample kCircles[] = {{L"DrawCircle", drawCircles},
                                {L"dashed, width 1, 3, 5", drawDashedCircles},
                                {L"FillCircle", fillCircles},
                                {L"DrawFilledCircle", drawFilledCircles}};

void drawRoundRects(CVQDIB& image)
{
    int corner = 0;
    for (const int margin : {5, 15, 25}) {
        image.DrawRoundRect(inner(image, margin), corner, 1 + corner / 12, kInk, BYTE{255});
        corner += 24;
    }
}

void fillRoundRects(CVQDIB& image)
{
    int left = 6;
    for (const int corner : {0, 16, 50}) {
        image.FillRoundRect(CRect(left, 10, left + 50, 100), corner, kGreen, BYTE{160});
        left += 58;
    }
}

void drawFilledRoundRects(CVQDIB& image)
{
    image.DrawFilledRoundRect(CRect(10, 10, 110, 70), 20, 3, kSand, BYTE{255}, kRed, BYTE{255});
    image.DrawFilledRoundRect(CRect(60, 40, 166, 102), 20, 5, kGreen, BYTE{128}, kInk, BYTE{128});
}

const ImageSample kRoundRects[] = {{L"DrawRoundRect, corner 0, 24, 48", drawRoundRects},
                                   {L"FillRoundRect, corner 0, 16, 50", fillRoundRects},
                                   {L"DrawFilledRoundRect", drawFilledRoundRects}};

std::vector<CPoint> star(const CVQDIB& image)
{
    std::vector<CPoint> points;
    const double radius = image.GetHeight() / 2 - 14;
    for (int i = 0; i < 7; ++i) {
        const double angle = 2 * std::numbers::pi * 3 * i / 7;
        points.emplace_back(image.GetWidth() / 2 + static_cast<int>(std::lround(radius * std::sin(angle))),
                            image.GetHeight() / 2 - static_cast<int>(std::lround(radius * std::cos(angle))));
    }
    return points;
}

void fillRegion(CVQDIB& image)
{
    image.FillRgn(star(image).data(), 7, kInk, 128);
}

void drawRegion(CVQDIB& image)
{
    image.FillRgn(star(image).data(), 7, kSand, 255);
    image.DrawRgn(star(image).data(), 7, 3, kRed, 128);
}

void clearRegion(CVQDIB& image)
{
    image.FillRect(inner(image, 4), kSand, LONG{255});
    image.ClearRgn(star(image).data(), 7, kInk, 0);
}

void clearRegionHalf(CVQDIB& image)
{
    image.FillRect(inner(image, 4), kSand, LONG{255});
    image.ClearRgnPath(star(image).data(), 7, 7, kRed, 100);
}

const ImageSample kRegions[] = {{L"FillRgn, alpha 128", fillRegion},
                                {L"FillRgn and DrawRgn", drawRegion},
                                {L"ClearRgn, alpha 0", clearRegion},
                                {L"ClearRgnPath, alpha 100", clearRegionHalf}};

} // namespace

bool addImageShapes(Gallery& gallery)
{
    return addImageSheet(gallery, {"73-image-rectangles", "Rectangles in images", 3, 196, 150}, kRects) &&
           addImageSheet(gallery, {"74-image-circles", "Circles in images", 2, 196, 150}, kCircles) &&
           addImageSheet(gallery, {"75-image-round-rectangles", "Round rectangles in images", 3, 196, 150},
                         kRoundRects) &&
           addImageSheet(gallery, {"76-image-regions", "Polygons in images: blended and written over", 2, 196, 150},
                         kRegions);
}
