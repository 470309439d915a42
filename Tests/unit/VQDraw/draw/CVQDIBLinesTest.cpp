// SPDX-License-Identifier: MIT
#include "DrawnImage.h"
#include "parity/KnownDifferences.h"

#include <functional>

namespace vq::test {
namespace {

TEST(Line, IncludesBothOfItsEnds)
{
    for (const bool turned : {false, true}) {
        HardImage image(12, 12);
        if (turned)
            image.Line(8, 3, 2, 3, kRed, 255, 1, false);
        else
            image.Line(2, 3, 8, 3, kRed, 255, 1, false);
        EXPECT_EQ(columnsDrawn(image, 3), fromTo(2, 8));
        EXPECT_EQ(find(image, kRedPixel).count, 7);
    }
}

TEST(Line, LightsTheNearestPixels)
{
    HardImage image(12, 12);
    image.Line(1, 1, 9, 4, kRed, 255, 1, false);
    const std::pair<LONG, LONG> lit[] = {{1, 1}, {2, 1}, {3, 2}, {4, 2}, {6, 3}, {7, 3}, {8, 4}, {9, 4}};
    for (const auto& [x, y] : lit) // column 5 lies halfway
        EXPECT_EQ(at(image, x, y), kRedPixel) << x << ", " << y;
    EXPECT_EQ(findDrawn(image).count, 9);
}

TEST(Line, OfWidthTwoAndThreeEndsSquareAtItsEnds)
{
    HardImage two(12, 12);
    two.Line(2, 5, 8, 5, kRed, 255, 2, false);
    EXPECT_EQ(find(two, kRedPixel), (Found{2, 4, 7, 5, 12}));

    HardImage three(12, 12);
    three.Line(2, 5, 8, 5, kRed, 255, 3, false);
    EXPECT_EQ(find(three, kRedPixel), (Found{2, 4, 7, 6, 18}));
}

TEST(Line, FromAPointToItselfIsNothing)
{
    HardImage image(12, 12);
    image.Line(5, 5, 5, 5, kRed, 255, 1, false);
    EXPECT_EQ(findDrawn(image).count, 0);
}

TEST(Line, TakesItsColourByChannels)
{
    HardImage image(12, 12);
    image.Line(2, 3, 8, 3, 0x10, 0x20, 0x30, 255, 1, false);
    EXPECT_EQ(find(image, kInkPixel).count, 7);

    image.Line(2, 5, 8, 5, 0x110, -0xE0, 0x230, 0x180, 1, false); // the low 8 bits of each
    EXPECT_EQ(find(image, 0x80102030).count, 7);
}

TEST(Line, TakesItsColourAsGdiDoes)
{
    HardImage image(12, 12);
    image.Line(2, 3, 8, 3, kInk, 255, 1, false);
    EXPECT_EQ(find(image, kInkPixel).count, 7);
}

TEST(Line, IsSmoothWhileAntialiasingIsOn)
{
    if (differsHere("smoothed outlines"))
        return;
    SmoothImage image(12, 12);
    image.Line(2, 3, 8, 3, kRed, 255, 1, false);
    for (LONG x = 3; x <= 7; ++x)
        EXPECT_EQ(at(image, x, 3), kRedPixel);
    EXPECT_TRUE(isNear(at(image, 2, 3), 0x80FF0000, 2)); // it ends in the middle of the pixel
    EXPECT_TRUE(isNear(at(image, 8, 3), 0x80FF0000, 2));
    EXPECT_EQ(findDrawn(image).count, 7);
}

TEST(Arrow, StandsAtTheSecondEndOnly)
{
    HardImage image(30, 16);
    image.Line(3, 8, 25, 8, kRed, 255, 3, true);
    EXPECT_EQ(at(image, 3, 8), kRedPixel);
    EXPECT_EQ(at(image, 19, 8), kRedPixel);
    EXPECT_LE(findDrawn(image).right, 25);
    for (LONG x = 4; x < 19; ++x)
        EXPECT_EQ(rowsDrawn(image, x), fromTo(7, 9)) << x;
    const Places head = rowsDrawn(image, 20); // as wide as 5.8 pixels
    EXPECT_NEAR(head.front(), 6, 1);
    EXPECT_NEAR(head.back(), 10, 1);
    EXPECT_LE(rowsDrawn(image, 24).size(), 2u);
}

TEST(Arrow, TurnsWithItsLine)
{
    HardImage right(30, 16);
    right.Line(3, 8, 25, 8, kRed, 255, 3, true);
    HardImage left(30, 16);
    left.Line(25, 8, 3, 8, kRed, 255, 3, true);
    EXPECT_EQ(rowsDrawn(left, 20), fromTo(7, 9));
    EXPECT_GT(rowsDrawn(left, 7).size(), 3u);
    EXPECT_GT(rowsDrawn(right, 21).size(), 3u);
}

TEST(Arrow, OfAThinLineHasTheSizeOfWidthTwo)
{
    if (differsHere("anchors of thin pens"))
        return;
    HardImage image(20, 11);
    image.Line(2, 5, 16, 5, kRed, 255, 1, true);
    EXPECT_EQ(rowsDrawn(image, 11), fromTo(5, 5));
    EXPECT_GE(rowsDrawn(image, 13).size(), 3u); // 3.46 long, 4 across at its base
    EXPECT_LE(findDrawn(image).bottom - findDrawn(image).top, 4);
    EXPECT_LE(findDrawn(image).right, 16);
}

TEST(LineH, LightsTheColumnsBetweenItsEnds)
{
    HardImage image(12, 12);
    image.LineH(8, 2, 3, kRed, 255);
    EXPECT_EQ(find(image, kRedPixel), (Found{2, 3, 8, 3, 7}));
}

TEST(LineV, LightsTheRowsBetweenItsEnds)
{
    HardImage image(12, 12);
    image.LineV(2, 8, 3, kRed, 255);
    EXPECT_EQ(find(image, kRedPixel), (Found{3, 2, 3, 8, 7}));
}

/// The dashes' last pixel may differ between systems.
TEST(LineHStipple, DrawsThreePixelsOfFour)
{
    HardImage image(40, 8);
    image.LineHStipple(2, 36, 5, kRed, 255);
    for (LONG x = 0; x < 36; ++x)
        EXPECT_EQ(at(image, x, 5), x >= 2 && (x - 2) % 4 != 3 ? kRedPixel : 0) << x;
    EXPECT_LE(findDrawn(image).right, 36);
    EXPECT_EQ(findDrawn(image).top, findDrawn(image).bottom);
}

TEST(LineVStipple, DrawsThreePixelsOfFour)
{
    HardImage image(8, 40);
    image.LineVStipple(2, 36, 5, kRed, 255);
    for (LONG y = 0; y < 36; ++y)
        EXPECT_EQ(at(image, 5, y), y >= 2 && (y - 2) % 4 != 3 ? kRedPixel : 0) << y;
}

TEST(LineHStipple, BeginsItsDashesAtItsFirstEnd)
{
    HardImage image(40, 8);
    image.LineHStipple(36, 2, 5, kRed, 255);
    for (LONG x = 36; x > 2; --x)
        EXPECT_EQ(at(image, x, 5), (36 - x) % 4 != 3 ? kRedPixel : 0) << x;
}

TEST(LineStipple, DrawsEveryOtherPixel)
{
    HardImage across(40, 8);
    across.LineStipple(2, 5, 36, 5, kRed, 255);
    HardImage down(8, 40);
    down.LineStipple(5, 2, 5, 36, kRed, 255);
    for (LONG i = 0; i < 36; ++i) {
        EXPECT_EQ(at(across, i, 5), i >= 2 && i % 2 == 0 ? kRedPixel : 0) << i;
        EXPECT_EQ(at(down, 5, i), i >= 2 && i % 2 == 0 ? kRedPixel : 0) << i;
    }
}

TEST(LineStipple, TakesItsColourByChannels)
{
    HardImage expected(40, 30);
    expected.LineStipple(2, 5, 36, 21, kInk, 200);
    HardImage image(40, 30);
    image.LineStipple(2, 5, 36, 21, 0x110, 0x20, -0xD0, 200 - 256);
    EXPECT_TRUE(showsTheSame(image, expected));
}

TEST(LineStipple2, DrawsEveryOtherPixel)
{
    HardImage image(40, 8);
    image.LineStipple2(2, 5, 36, 5, kRed, 255);
    for (LONG x = 0; x < 36; ++x)
        EXPECT_EQ(at(image, x, 5), x >= 2 && x % 2 == 0 ? kRedPixel : 0) << x;
}

/// How much of a row has been covered, in pixels.
double coveredIn(CVQDIB& image, LONG y)
{
    double sum = 0;
    for (LONG x = 0; x < image.GetWidth(); ++x)
        sum += at(image, x, y) >> 24;
    return sum / 255;
}

/// On a smooth line the ends of dashes lie in the middle of pixels; what they cover stays the same.
TEST(SmoothDashes, CoverTheirShareOfTheLine)
{
    if (differsHere("smoothed outlines"))
        return;
    SmoothImage image(50, 4);
    image.LineHStipple(4, 44, 1, kRed, 255);
    EXPECT_NEAR(coveredIn(image, 1), 30, 0.3);

    SmoothImage apart(50, 4);
    apart.LineStipple(4, 1, 44, 1, kRed, 255);
    EXPECT_NEAR(coveredIn(apart, 1), 20, 0.3);
    for (LONG x = 4; x < 44; ++x)
        EXPECT_TRUE(isNear(at(apart, x, 1), 0x80FF0000, 2)) << x;

    SmoothImage dots(50, 4);
    dots.LineStipple2(4, 1, 44, 1, kRed, 255);
    EXPECT_NEAR(coveredIn(dots, 1), 20 * 3.14159 / 4, 0.7); // circles one pixel wide
}

/// Every member that takes the width of a pen, drawing with it.
TEST(PenWidth, BelowZeroIsOne)
{
    using Draw = void (*)(CVQDIB&, int);
    constexpr Draw kDraws[] = {
        [](CVQDIB& image, int width) { image.Line(3, 4, 30, 17, kRed, 255, LONG{width}, false); },
        [](CVQDIB& image, int width) { image.Line(3, 4, 30, 17, 1, 2, 3, 255, LONG{width}, false); },
        [](CVQDIB& image, int width) { image.LineH(7, kRed, 255, static_cast<float>(width)); },
        [](CVQDIB& image, int width) { image.LineV(7, kRed, 255, static_cast<float>(width)); },
        [](CVQDIB& image, int width) { image.DrawBorder(kRed, 255, static_cast<float>(width)); },
        [](CVQDIB& image, int width) {
            CRect rect(3, 3, 20, 20);
            image.Draw3DRect(rect, kRed, kBlue, 255, LONG{width});
        },
        [](CVQDIB& image, int width) { image.DrawCircle(20, 20, LONG{9}, kRed, LONG{255}, LONG{width}); },
        [](CVQDIB& image, int width) { image.DrawCircle(CRect(3, 3, 20, 20), kRed, BYTE{255}, width, false); },
        [](CVQDIB& image, int width) { image.DrawRoundRect(CRect(3, 3, 20, 20), 5, width, kRed, BYTE{255}); },
        [](CVQDIB& image, int width) {
            CPoint points[] = {{3, 3}, {30, 5}, {9, 29}};
            image.DrawRgn(points, 3, width, kRed, 255);
        },
    };
    for (const Draw draw : kDraws) {
        for (const bool smooth : {false, true}) {
            HardImage expected(40, 40);
            expected.EnableAntialias(smooth);
            draw(expected, 1);
            for (const int width : {0, -1, -5, std::numeric_limits<int>::min()}) {
                HardImage image(40, 40);
                image.EnableAntialias(smooth);
                draw(image, width);
                EXPECT_TRUE(showsTheSame(image, expected)) << &draw - kDraws << ": " << width;
            }
        }
    }
}

} // namespace
} // namespace vq::test
