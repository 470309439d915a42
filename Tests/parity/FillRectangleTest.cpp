// SPDX-License-Identifier: MIT
#include "parity/KnownDifferences.h"
#include "parity/Pixels.h"

namespace vq::test::fillRectangleTests {
namespace {

constexpr std::uint32_t kRed = 0xFFFF0000;
using Found = TestPicture::Found;

TEST(FillRectangle, IntegerRectangleLightsExactlyItsColumnsAndRows)
{
    TestPicture picture(12, 12);
    picture.fill(kRed, 2, 3, 4, 5);
    EXPECT_EQ(picture.find(kRed), (Found{2, 3, 5, 7, 20}));
    EXPECT_EQ(picture.find(0).count, 144 - 20);
}

TEST(FillRectangle, EveryWidthIsFilledFromEdgeToEdgeAndNoFurther)
{
    constexpr int kSize = 48;
    for (const std::uint32_t colour : {kRed, 0x80FF0000}) {
        for (int width = 1; width <= 40; ++width) {
            TestPicture picture(kSize, kSize);
            const int x = width % 7;
            picture.fill(colour, x, 3, width, 2);
            EXPECT_EQ(picture.find(0).count, kSize * kSize - 2 * width) << width;
            EXPECT_EQ(picture.find(picture.at(x, 3).value), (Found{x, 3, x + width - 1, 4, 2 * width})) << width;
        }
    }
}

TEST(FillRectangle, NegativeOrEmptySizesFillNothing)
{
    TestPicture picture(12, 12);
    const Gdiplus::SolidBrush brush{Gdiplus::Color(kRed)};
    EXPECT_EQ(picture.graphics.FillRectangle(&brush, 8, 8, -4, -5), Gdiplus::Ok);
    EXPECT_EQ(picture.graphics.FillRectangle(&brush, 2, 2, 0, 5), Gdiplus::Ok);
    EXPECT_EQ(picture.find(kRed).count, 0);
}

TEST(FillRectangle, FractionalRectangleLightsPixelsWhoseCentresAreInside)
{
    TestPicture halves(12, 12);
    const Gdiplus::SolidBrush brush{Gdiplus::Color(kRed)};
    halves.graphics.FillRectangle(&brush, 2.5f, 3.5f, 4.0f, 5.0f);
    EXPECT_EQ(halves.find(kRed), (Found{3, 4, 6, 8, 20}));

    if (differsHere("fractional rectangles"))
        return;
    TestPicture quarters(12, 12);
    quarters.graphics.FillRectangle(&brush, 2.25f, 3.25f, 4.0f, 5.0f);
    EXPECT_EQ(quarters.find(kRed), (Found{3, 4, 6, 8, 20}));
}

TEST(FillRectangle, RectangleAcrossTheEdgesIsClipped)
{
    TestPicture picture(4, 4);
    picture.fill(kRed, -10, -10, 12, 12);
    EXPECT_EQ(picture.find(kRed), (Found{0, 0, 1, 1, 4}));
    picture.fill(kRed, -1000000, -1000000, 2000000, 2000000);
    EXPECT_EQ(picture.find(kRed).count, 16);
}

TEST(FillRectangle, SmoothedIntegerRectangleHasHalfCoveredEdges)
{
    if (differsHere("smoothed rectangles"))
        return;
    TestPicture picture(12, 12);
    picture.graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    picture.fill(kRed, 2, 3, 4, 5);
    constexpr int kTolerance = 2;
    for (int y = 4; y <= 7; ++y) {
        for (int x = 3; x <= 5; ++x)
            EXPECT_EQ(picture.at(x, y), Argb{kRed}) << x << ", " << y;
        EXPECT_THAT(picture.at(2, y), Near(0x80FF0000, kTolerance));
        EXPECT_THAT(picture.at(6, y), Near(0x80FF0000, kTolerance));
    }
    for (int x = 3; x <= 5; ++x) {
        EXPECT_THAT(picture.at(x, 3), Near(0x80FF0000, kTolerance));
        EXPECT_THAT(picture.at(x, 8), Near(0x80FF0000, kTolerance));
    }
    EXPECT_THAT(picture.at(2, 3), Near(0x40FF0000, kTolerance));
    EXPECT_THAT(picture.at(6, 8), Near(0x40FF0000, kTolerance));
    EXPECT_EQ(picture.find(0).count, 144 - 5 * 6);
}

TEST(FillRectangle, NullBrushIsInvalid)
{
    TestPicture picture(2, 2);
    EXPECT_EQ(picture.graphics.FillRectangle(nullptr, 0, 0, 1, 1), Gdiplus::InvalidParameter);
    EXPECT_EQ(picture.graphics.GetLastStatus(), Gdiplus::InvalidParameter);
}

} // namespace
} // namespace vq::test::fillRectangleTests
