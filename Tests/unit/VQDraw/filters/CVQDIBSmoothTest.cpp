// SPDX-License-Identifier: MIT
#include "support/Pictures.h"

#include <algorithm>
#include <limits>

namespace vq::test::cvqdibSmoothTests {
namespace {

constexpr LONG kMax = std::numeric_limits<LONG>::max();
constexpr LONG kMin = std::numeric_limits<LONG>::min();

TEST(CVQDIBSmooth2x2, LeavesTheFirstRowAndThePixelBelowItsFirst)
{
    CVQDIB image(5, 4);
    fillRandom(image, 1);
    const Pixels before = pixels(image);

    image.Smooth2x2();

    const Pixels after = pixels(image);
    EXPECT_EQ(Pixels(after.begin(), after.begin() + 6), Pixels(before.begin(), before.begin() + 6));
}

TEST(CVQDIBSmooth2x2, TakesTheMeanOfPixelsThatAreNotChangedYet)
{
    CVQDIB image(2, 3);
    paint(image, {0x10000004, 0x20000008, //
                  0x30000010, 0x40000020, //
                  0x50000041, 0x00000000});

    image.Smooth2x2();

    // Left of column 0 stands the end of the row above; only blue of the last pixel is reached.
    EXPECT_TRUE(shows(image, {0x10000004, 0x20000008, //
                              0x30000010, 0x2800000F, // 0x40 + 0x30 + 0x20 + 0x10; 32 + 16 + 8 + 4
                              0x3800001E, 0x0000001C} // 0x50 + 0x40 + 0x30 + 0x20; 65 + 32 + 16 + 8
                      ));
}

TEST(CVQDIBSmooth2x2, ChangesAlpha)
{
    CVQDIB image(3, 2);
    paint(image, {0x00FFFFFF, 0x00FFFFFF, 0x00FFFFFF, //
                  0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF});

    image.Smooth2x2();

    EXPECT_EQ(image.GetA(1, 1), 127);
}

TEST(CVQDIBSmooth2x2, LeavesASingleRow)
{
    CVQDIB image(9, 1);
    fillRandom(image, 2);
    const Pixels before = pixels(image);

    image.Smooth2x2();

    EXPECT_TRUE(shows(image, before));
}

TEST(CVQDIBSmooth3x3, DoesNothingBelowThreeRowsOrColumns)
{
    for (const CSize& size : {CSize(1, 1), CSize(2, 2), CSize(9, 2), CSize(2, 9), CSize(9, 1)}) {
        CVQDIB image(size.cx, size.cy);
        fillRandom(image, 3);
        const Pixels before = pixels(image);

        image.Smooth3x3();
        image.Smooth3x3(kMin, kMax);
        image.Smooth3x3(kMin, kMin, kMax, kMax);

        EXPECT_TRUE(shows(image, before)) << size.cx << " x " << size.cy;
    }
}

TEST(CVQDIBSmooth3x3, DividesTheSumOfNineByNineRoundingDown)
{
    CVQDIB image(3, 3);
    paint(image, Pixels(9, 0x55FFFFFF));
    image.Smooth3x3();
    EXPECT_EQ(image.GetColor(1, 1), 0x55FFFFFFu); // 2295 / 9

    Pixels seventeen(9, 0);
    seventeen[0] = 0x00110908;
    seventeen[8] = 0x00000809;
    paint(image, seventeen);
    image.Smooth3x3();
    EXPECT_EQ(image.GetColor(1, 1), 0x00010101u); // 17 / 9
}

TEST(CVQDIBSmooth3x3, KeepsTheFrameAndAlpha)
{
    CVQDIB image(7, 5);
    fillRandom(image, 4);
    const Pixels before = pixels(image);

    image.Smooth3x3(kMin, kMin, kMax, kMax);

    for (LONG y = 0; y < 5; ++y)
        for (LONG x = 0; x < 7; ++x) {
            const ULONG old = before[static_cast<std::size_t>(y * 7 + x)];
            const bool isFrame = x == 0 || y == 0 || x == 6 || y == 4;
            EXPECT_EQ(image.GetA(x, y), old >> 24);
            EXPECT_TRUE(!isFrame || image.GetColor(x, y) == old) << x << ", " << y;
        }
}

/// A picture of zeros with a pixel of 9 in every channel at (2, 2): nine pixels become 1 where they are smoothed.
Pixels smoothedDot(const CRect& area)
{
    Pixels expected(25, 0);
    expected[12] = 0x09090909;
    for (LONG y = std::max<LONG>(area.top, 1); y < std::min<LONG>(area.bottom, 4); ++y)
        for (LONG x = std::max<LONG>(area.left, 1); x < std::min<LONG>(area.right, 4); ++x) {
            ULONG& pixel = expected[static_cast<std::size_t>(y * 5 + x)];
            pixel = (pixel & 0xFF000000) | 0x010101;
        }
    return expected;
}

TEST(CVQDIBSmooth3x3, ExcludesTheLastColumnAndRowOfItsArea)
{
    CVQDIB image(5, 5);
    for (const CRect& area : {CRect(1, 1, 2, 2), CRect(2, 1, 4, 3), CRect(-9, 3, 9, 9), CRect(0, 0, 5, 5)}) {
        paint(image, smoothedDot(CRect(0, 0, 0, 0)));
        image.Smooth3x3(area.left, area.top, area.right, area.bottom);
        EXPECT_TRUE(shows(image, smoothedDot(area)));

        paint(image, smoothedDot(CRect(0, 0, 0, 0)));
        image.Smooth3x3(area);
        EXPECT_TRUE(shows(image, smoothedDot(area)));

        paint(image, smoothedDot(CRect(0, 0, 0, 0)));
        image.Smooth3x3(area.left, area.right);
        EXPECT_TRUE(shows(image, smoothedDot(CRect(area.left, 1, area.right, 4))));
    }
}

TEST(CVQDIBSmooth3x3, TakesAReversedRectangleAsEmpty)
{
    CVQDIB image(5, 5);
    for (const CRect& area : {CRect(4, 1, 1, 4), CRect(1, 4, 4, 1), CRect(2, 2, 2, 2), CRect(kMax, kMax, kMin, kMin)}) {
        paint(image, smoothedDot(CRect(0, 0, 0, 0)));

        image.Smooth3x3(area);

        EXPECT_TRUE(shows(image, smoothedDot(CRect(0, 0, 0, 0))));
    }
}

TEST(CVQDIBSmooth, OfRadiusZeroLeavesTheImage)
{
    CVQDIB image(7, 3);
    fillRandom(image, 5);
    const Pixels before = pixels(image);

    image.Smooth(0);

    EXPECT_TRUE(shows(image, before));
}

TEST(CVQDIBSmooth, OfRadiusOneLeavesASinglePixel)
{
    CVQDIB image(1, 1);
    paint(image, {0x7F20FF01});

    image.Smooth(1);

    EXPECT_TRUE(shows(image, {0x7F20FF01}));
}

TEST(CVQDIBSmooth, TakesTheMeanOfAllFourChannelsRoundTheEdges)
{
    CVQDIB image(4, 4);
    Pixels dot(16, 0);
    dot[0] = 0x12095A2D; // 18, 9, 90, 45
    paint(image, dot);

    image.Smooth(1);

    constexpr ULONG kMean = 0x02010A05;
    EXPECT_TRUE(shows(image, {kMean, kMean, 0, kMean, //
                              kMean, kMean, 0, kMean, //
                              0, 0, 0, 0,             //
                              kMean, kMean, 0, kMean}));
}

TEST(CVQDIBSmooth, CountsPixelsAsOftenAsAWindowLargerThanTheImageMeetsThem)
{
    CVQDIB image(2, 1);
    paint(image, {0x00000000, 0xFFFFFFFF});

    image.Smooth(1); // around column 0: columns 1, 0, 1; three times the one row

    EXPECT_TRUE(shows(image, {0xAAAAAAAA, 0x55555555})); // 255 * 2 / 3 and 255 / 3
}

TEST(CVQDIBSmooth, ApproachesTheMeanOfTheImageWhateverTheRadius)
{
    for (const ULONG radius : {127u, 128u, 1450u, 1451u, 70001u, 0x07FFFFFFu, 0x08000000u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        CVQDIB image(2, 2);
        paint(image, {0x00000000, 0x40404040, 0x80808080, 0xC0C0C0C0});

        image.Smooth(radius);

        for (const ULONG pixel : pixels(image))
            for (const int shift : {0, 8, 16, 24})
                EXPECT_NEAR(static_cast<int>(pixel >> shift & 0xFF), 0x60, 1) << "radius " << radius;
    }
}

} // namespace
} // namespace vq::test::cvqdibSmoothTests
