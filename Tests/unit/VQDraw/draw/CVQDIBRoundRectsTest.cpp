// SPDX-License-Identifier: MIT
#include "DrawnImage.h"
#include "parity/KnownDifferences.h"

namespace vq::test {
namespace {

TEST(DrawRoundRect, LeavesItsCornersOut)
{
    HardImage image(16, 16);
    image.DrawRoundRect(CRect(1, 1, 13, 11), 6, 1, kRed, BYTE{255});
    for (LONG x = 4; x <= 10; ++x) {
        EXPECT_EQ(at(image, x, 1), kRedPixel) << x;
        EXPECT_EQ(at(image, x, 11), kRedPixel) << x;
    }
    for (LONG y = 4; y <= 8; ++y) {
        EXPECT_EQ(at(image, 1, y), kRedPixel) << y;
        EXPECT_EQ(at(image, 13, y), kRedPixel) << y;
    }
    for (const LONG x : {LONG{1}, LONG{13}})
        for (const LONG y : {LONG{1}, LONG{11}})
            EXPECT_EQ(at(image, x, y), 0u) << x << ", " << y;
    EXPECT_EQ(find(image, kRedPixel), findDrawn(image));
}

TEST(DrawRoundRect, IsClosed)
{
    SmoothImage image(30, 30);
    image.DrawRoundRect(CRect(2, 2, 26, 22), 8, 3, kRed, BYTE{255});
    for (LONG y = 7; y <= 17; ++y) // from the last corner to the first one
        EXPECT_EQ(at(image, 2, y), kRedPixel) << y;
}

TEST(DrawRoundRect, OfCornerZeroIsAPlainRectangle)
{
    HardImage image(16, 16);
    image.DrawRoundRect(CRect(2, 3, 6, 8), 0, 1, kRed, BYTE{255});
    EXPECT_EQ(find(image, kRedPixel), (Found{2, 3, 6, 8, 18}));
    EXPECT_EQ(findDrawn(image).count, 18);
}

TEST(DrawRoundRect, OfACornerAsLargeAsItselfIsAnEllipse)
{
    if (differsHere("smoothed outlines"))
        return;
    SmoothImage expected(30, 30);
    expected.DrawCircle(CRect(3, 4, 23, 24), kRed, BYTE{255}, 1, false);
    SmoothImage image(30, 30);
    image.DrawRoundRect(CRect(3, 4, 23, 24), 20, 1, kRed, BYTE{255});
    for (LONG y = 0; y < 30; ++y)
        for (LONG x = 0; x < 30; ++x)
            ASSERT_TRUE(isNear(image(x, y), expected(x, y), 4)) << x << ", " << y;
}

TEST(DrawRoundRect, IsTheSameMirroredInItself)
{
    SmoothImage image(31, 25);
    image.DrawRoundRect(CRect(3, 4, 27, 20), 9, 1, kRed, BYTE{255});
    if (differsHere("thin curves"))
        return;
    for (LONG y = 0; y < 25; ++y)
        for (LONG x = 0; x < 31; ++x) {
            ASSERT_TRUE(isNear(image(30 - x, y), image(x, y), 2)) << x << ", " << y;
            ASSERT_TRUE(isNear(image(x, 24 - y), image(x, y), 2)) << x << ", " << y;
        }
}

TEST(DrawRoundRect, HasAWidth)
{
    HardImage image(30, 30);
    image.DrawRoundRect(CRect(5, 5, 24, 24), 8, 3, kRed, BYTE{255});
    EXPECT_EQ(rowsDrawn(image, 14), (Places{4, 5, 6, 23, 24, 25}));
}

TEST(RoundRects, TakeARectangleByAnyTwoCorners)
{
    HardImage expected(30, 30);
    expected.DrawFilledRoundRect(CRect(3, 5, 23, 19), 6, 2, kInk, BYTE{128}, kRed, BYTE{200});
    for (const CRect& rect : {CRect(23, 5, 3, 19), CRect(3, 19, 23, 5), CRect(23, 19, 3, 5)}) {
        HardImage image(30, 30);
        image.DrawFilledRoundRect(rect, 6, 2, kInk, BYTE{128}, kRed, BYTE{200});
        EXPECT_TRUE(showsTheSame(image, expected));
    }
}

TEST(RoundRects, OfANegativeCornerAreNothing)
{
    HardImage image(16, 16);
    image.DrawRoundRect(CRect(2, 3, 6, 8), -1, 1, kRed, BYTE{255});
    image.FillRoundRect(CRect(2, 3, 6, 8), -6, kRed, BYTE{255});
    image.DrawFilledRoundRect(CRect(2, 3, 6, 8), -1000, 1, kRed, BYTE{255}, kBlue, BYTE{255});
    EXPECT_EQ(findDrawn(image).count, 0);
}

TEST(FillRoundRect, LeavesItsCornersOut)
{
    HardImage image(20, 20);
    image.FillRoundRect(CRect(2, 3, 16, 17), 8, kRed, BYTE{255});
    const int tolerance = differsHere("edges of curves") ? 1 : 0;
    EXPECT_EQ(columnsDrawn(image, 10), fromTo(2, 15));
    EXPECT_NEAR(static_cast<double>(columnsDrawn(image, 3).size()), 6, 2 + tolerance);
    for (const LONG x : {LONG{2}, LONG{15}})
        for (const LONG y : {LONG{3}, LONG{16}})
            EXPECT_EQ(at(image, x, y), 0u) << x << ", " << y;
    EXPECT_NEAR(find(image, kRedPixel).count, 14 * 14 - (4 - 3.14159) * 16, 8); // all but four corners
}

TEST(FillRoundRect, OfCornerZeroIsAPlainRectangle)
{
    HardImage image(16, 16);
    image.FillRoundRect(CRect(6, 3, 2, 8), 0, kRed, BYTE{128});
    EXPECT_EQ(find(image, 0x80FF0000), (Found{2, 3, 5, 7, 20}));
    EXPECT_EQ(findDrawn(image).count, 20);
}

TEST(DrawFilledRoundRect, DrawsItsOutlineOverItsFill)
{
    HardImage expected(30, 30);
    expected.FillRoundRect(CRect(3, 5, 23, 19), 6, kInk, BYTE{128});
    expected.DrawRoundRect(CRect(3, 5, 23, 19), 6, 2, kRed, BYTE{200});
    HardImage image(30, 30);
    image.DrawFilledRoundRect(CRect(3, 5, 23, 19), 6, 2, kInk, BYTE{128}, kRed, BYTE{200});
    EXPECT_TRUE(showsTheSame(image, expected));
    EXPECT_EQ(at(image, 12, 12), 0x80102030u);
    EXPECT_GT(at(image, 12, 5) >> 24, 0xC7u);
}

} // namespace
} // namespace vq::test
