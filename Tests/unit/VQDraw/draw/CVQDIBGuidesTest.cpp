// SPDX-License-Identifier: MIT
// Lines across the whole image.
#include "DrawnImage.h"
#include "parity/KnownDifferences.h"

namespace vq::test {
namespace {

TEST(Guides, ReachFromEdgeToEdge)
{
    HardImage image(7, 5);
    image.LineH(3, kRed, 255, 1);
    EXPECT_EQ(drawn(image), rows({".......", ".......", ".......", "#######", "......."}));
    image.LineV(1, kBlue, 255, 1);
    EXPECT_EQ(find(image, kBluePixel), (Found{1, 0, 1, 4, 5}));
}

TEST(Guides, HaveAWidth)
{
    HardImage image(9, 9);
    image.LineH(4, kRed, 255, 3);
    EXPECT_EQ(find(image, kRedPixel), (Found{0, 3, 8, 5, 27}));

    HardImage upright(9, 9);
    upright.LineV(4, kRed, 255, 2);
    EXPECT_EQ(find(upright, kRedPixel), (Found{3, 0, 4, 8, 18}));
}

TEST(Guides, OutsideTheImageDrawNothing)
{
    HardImage image(7, 5);
    image.LineH(-2, kRed, 255, 1);
    image.LineH(5, kRed, 255, 1);
    image.LineV(7, kRed, 255, 1);
    image.LineVStipple(-1, kRed, 255);
    EXPECT_EQ(findDrawn(image).count, 0);
}

TEST(Guides, AreBlendedByAlpha)
{
    HardImage image(7, 5);
    image.LineH(2, kRed, 32, 1);
    image.LineV(3, kRed, 32, 1);
    EXPECT_EQ(find(image, 0x20FF0000).count, 10);
    EXPECT_EQ(at(image, 3, 2) & 0xFFFFFF, 0xFF0000u);
    EXPECT_NEAR(static_cast<int>(at(image, 3, 2) >> 24), 60, 1); // 32 + 32 * (255 - 32) / 255
}

/// From 0 to the width: the first half pixel of the image lies before the line, its end in the middle of a pixel
/// beyond.
TEST(Guides, OfASmoothImageBeginInTheMiddleOfAPixel)
{
    if (differsHere("smoothed outlines"))
        return;
    SmoothImage image(7, 5);
    image.LineH(3, kRed, 255, 1);
    EXPECT_TRUE(isNear(at(image, 0, 3), 0x80FF0000, 2));
    for (LONG x = 1; x < 7; ++x)
        EXPECT_EQ(at(image, x, 3), kRedPixel);
    EXPECT_EQ(findDrawn(image).count, 7);
}

TEST(DashedGuides, BeginAtTheirFirstEdge)
{
    HardImage image(24, 18);
    image.LineHStipple(3, kRed, 255);
    for (LONG x = 0; x < 23; ++x)
        EXPECT_EQ(at(image, x, 3), x % 4 != 3 ? kRedPixel : 0) << x;

    HardImage upright(24, 18);
    upright.LineVStipple(3, kRed, 255);
    for (LONG y = 0; y < 17; ++y)
        EXPECT_EQ(at(upright, 3, y), y % 4 != 3 ? kRedPixel : 0) << y;
}

TEST(Border, OfOnePixelIsTheOutermostOnes)
{
    HardImage image(6, 4);
    image.DrawBorder(kRed, 255, 1);
    EXPECT_EQ(drawn(image), rows({"######", "#....#", "#....#", "######"}));
    EXPECT_EQ(find(image, kRedPixel).count, 16);
}

/// Half of a wide pen lies outside: of three pixels two are seen.
TEST(Border, OfThreePixelsShowsTwo)
{
    HardImage image(9, 8);
    image.DrawBorder(kRed, 255, 3);
    EXPECT_EQ(drawn(image), rows({"#########", "#########", "##.....##", "##.....##", "##.....##", "##.....##",
                                  "#########", "#########"}));
}

TEST(Border, MeetsItselfInTheCorners)
{
    HardImage image(6, 4);
    image.DrawBorder(kRed, 128, 1);
    EXPECT_EQ(find(image, 0x80FF0000).count, 16 - 4);
    for (const LONG x : {LONG{0}, LONG{5}})
        for (const LONG y : {LONG{0}, LONG{3}})
            EXPECT_NEAR(static_cast<int>(at(image, x, y) >> 24), 192, 1); // two lines over each other
}

TEST(Border, OfASinglePixelIsThatPixel)
{
    HardImage image(1, 1);
    image.DrawBorder(kRed, 255, 1);
    EXPECT_EQ(at(image, 0, 0), kRedPixel);
}

} // namespace
} // namespace vq::test
