// SPDX-License-Identifier: MIT
#include "DrawnImage.h"
#include "parity/KnownDifferences.h"

#include <cmath>
#include <numbers>

namespace vq::test {
namespace {

constexpr double kPi = std::numbers::pi;

TEST(DrawCircle, OfARadiusIsTheCircleInItsBox)
{
    if (differsHere("thin curves"))
        return;
    HardImage image(12, 12);
    image.DrawCircle(6, 6, LONG{5}, kRed, LONG{255}, LONG{1});
    EXPECT_EQ(drawn(image), rows({"............", //
                                  "....#####...", //
                                  "...#.....#..", //
                                  "..#.......#.", //
                                  ".#.........#", //
                                  ".#.........#", //
                                  ".#.........#", //
                                  ".#.........#", //
                                  ".#.........#", //
                                  "..#.......#.", //
                                  "...#.....#..", //
                                  "....#####..."}));
}

TEST(DrawCircle, ThroughAPointRoundsItsRadiusDown)
{
    for (const auto& [x, y, radius] : {std::tuple(13, 14, 5), std::tuple(11, 11, 1), std::tuple(6, 7, 5),
                                       std::tuple(10, 4, 6), std::tuple(14, 15, 6), std::tuple(10, 10, 0)}) {
        HardImage expected(21, 21);
        expected.DrawCircle(10, 10, LONG{radius}, kRed, LONG{255}, LONG{1});
        HardImage image(21, 21);
        image.DrawCircle(10, 10, LONG{x}, LONG{y}, kRed, LONG{255});
        EXPECT_TRUE(showsTheSame(image, expected)) << x << ", " << y;
        if (radius > 1 && !differsHere("thin curves")) {
            EXPECT_EQ(findDrawn(image).right, 10 + radius);
        }
    }
}

TEST(DrawCircle, HasAWidth)
{
    HardImage image(41, 41);
    image.DrawCircle(20, 20, LONG{12}, kRed, LONG{255}, LONG{5});
    const int tolerance = differsHere("edges of curves") ? 1 : 0;
    EXPECT_NEAR(rowsDrawn(image, 20).front(), 20 - 14, tolerance);
    EXPECT_EQ(at(image, 20, 20 - 12), kRedPixel);
    EXPECT_EQ(at(image, 20, 20 - 9), 0u);
    EXPECT_EQ(at(image, 20, 20), 0u);
    EXPECT_NEAR(find(image, kRedPixel).count, 2 * kPi * 12 * 5, 25);
}

TEST(DrawCircle, TakesARectangleByAnyTwoCorners)
{
    HardImage expected(30, 30);
    expected.DrawCircle(Gdiplus::Rect(3, 5, 20, 14), Gdiplus::Color(0x80102030), 1, false);
    EXPECT_GT(find(expected, 0x80102030).count, 30);
    for (const CRect& rect : {CRect(3, 5, 23, 19), CRect(23, 5, 3, 19), CRect(23, 19, 3, 5)}) {
        HardImage image(30, 30);
        image.DrawCircle(rect, kInk, BYTE{128}, 1, false);
        EXPECT_TRUE(showsTheSame(image, expected));
    }
}

TEST(DrawCircle, KeepsToItsBox)
{
    SmoothImage image(30, 30);
    image.DrawCircle(CRect(3, 5, 23, 19), kRed, BYTE{255}, 1, false);
    const Found found = findDrawn(image);
    EXPECT_EQ(found.left, 3);
    EXPECT_EQ(found.top, 5);
    EXPECT_EQ(found.right, 23);
    EXPECT_EQ(found.bottom, 19);
}

double areaOf(CVQDIB& image)
{
    double sum = 0;
    for (const ULONG pixel : pixels(image))
        sum += pixel >> 24;
    return sum / 255;
}

/// How often a dash begins on the way round.
int dashesOn(CVQDIB& image, double centre, double radius)
{
    int dashes = 0;
    bool before = true;
    constexpr int kSteps = 1440;
    for (int i = 0; i <= kSteps; ++i) {
        const double angle = 2 * kPi * i / kSteps;
        const auto x = static_cast<LONG>(std::lround(centre + radius * std::cos(angle)));
        const auto y = static_cast<LONG>(std::lround(centre + radius * std::sin(angle)));
        const bool on = image(x, y) >> 24 > 96;
        dashes += on && !before;
        before = on;
    }
    return dashes;
}

TEST(DashedCircle, IsDrawnForTwoWidthsOfFive)
{
    if (differsHere("smoothed outlines"))
        return;
    SmoothImage solid(101, 101);
    solid.DrawCircle(CRect(10, 10, 90, 90), kRed, BYTE{255}, 3, false);
    EXPECT_NEAR(areaOf(solid), 2 * kPi * 40 * 3, 0.01 * 754);
    SmoothImage dashed(101, 101);
    dashed.DrawCircle(CRect(10, 10, 90, 90), kRed, BYTE{255}, 3, true);
    EXPECT_NEAR(areaOf(dashed), 0.4 * 754, 0.02 * 754);
    EXPECT_NEAR(dashesOn(dashed, 50, 40), 2 * kPi * 40 / 15, 1); // a dash and a gap are five widths
    EXPECT_GT(at(dashed, 90, 51) >> 24, 128u) << "dashes begin at the right, clockwise";
}

TEST(DashedCircle, WithoutSmoothingLightsTwoPixelsOfFive)
{
    HardImage solid(101, 101);
    solid.DrawCircle(Gdiplus::Rect(10, 10, 80, 80), Gdiplus::Color(kRedPixel), 1, false);
    HardImage dashed(101, 101);
    dashed.DrawCircle(Gdiplus::Rect(10, 10, 80, 80), Gdiplus::Color(kRedPixel), 1, true);
    const double share = static_cast<double>(findDrawn(dashed).count) / findDrawn(solid).count;
    EXPECT_NEAR(share, 0.4, 0.06);
}

TEST(FillCircle, CoversThePixelsInside)
{
    HardImage image(12, 12);
    image.FillCircle(Gdiplus::Rect(1, 1, 9, 9), Gdiplus::Color(kRedPixel));
    for (LONG y = 3; y <= 8; ++y) {
        const Places columns = columnsDrawn(image, y);
        EXPECT_NEAR(columns.front(), 2, 1) << y;
        EXPECT_NEAR(columns.back(), 9, 1) << y;
    }
    EXPECT_NEAR(find(image, kRedPixel).count, kPi * 4.5 * 4.5, 12);
}

TEST(FillCircle, OfASmoothImageCoversItsArea)
{
    if (differsHere("smoothed outlines"))
        return;
    SmoothImage image(60, 60);
    image.FillCircle(CRect(3, 5, 53, 41), kRed, BYTE{255});
    EXPECT_NEAR(areaOf(image), kPi * 25 * 18, 0.01 * kPi * 25 * 18);
}

TEST(FillCircle, TakesARectangleByAnyTwoCorners)
{
    HardImage expected(30, 30);
    expected.FillCircle(Gdiplus::Rect(3, 5, 20, 14), Gdiplus::Color(0x80102030));
    EXPECT_GT(find(expected, 0x80102030).count, 150);
    for (const CRect& rect : {CRect(3, 5, 23, 19), CRect(3, 19, 23, 5), CRect(23, 19, 3, 5)}) {
        HardImage image(30, 30);
        image.FillCircle(rect, kInk, BYTE{128});
        EXPECT_TRUE(showsTheSame(image, expected));
    }
}

TEST(DrawFilledCircle, IsOpaqueWhateverIsInTheTopBytes)
{
    HardImage image(30, 30, 0x40FFFFFF);
    image.DrawFilledCircle(CRect(23, 19, 3, 5), kRed | 0x22000000, kBlue | 0x33000000);
    EXPECT_EQ(at(image, 13, 12), kBluePixel);
    EXPECT_EQ(at(image, 3, 12), kRedPixel);
    EXPECT_EQ(at(image, 13, 5), kRedPixel);
    EXPECT_EQ(find(image, kRedPixel).count + find(image, kBluePixel).count + find(image, 0x40FFFFFF).count, 900);
}

} // namespace
} // namespace vq::test
