// SPDX-License-Identifier: MIT
#include "parity/Drawn.h"
#include "parity/KnownDifferences.h"

namespace vq::test::rectangleOutlineTests {
namespace {

using namespace Gdiplus;

constexpr std::uint32_t kGreen = 0xFF008000;
constexpr std::uint32_t kBlue = 0xFF0000FF;

const std::string kThinRing = rows({
    "............",
    "............",
    "............",
    "..#####.....",
    "..#...#.....",
    "..#...#.....",
    "..#...#.....",
    "..#...#.....",
    "..#####.....",
    "............",
    "............",
    "............",
});

TEST(DrawRectangle, OutlineIsOnePixelLargerThanItsSize)
{
    const Pen pen{Color(kRed)};
    TestPicture picture(12, 12);
    EXPECT_EQ(picture.graphics.DrawRectangle(&pen, 2, 3, 4, 5), Ok);
    EXPECT_EQ(drawn(picture), kThinRing);
    EXPECT_EQ(picture.find(kRed), (Found{2, 3, 6, 8, 18}));
}

TEST(DrawRectangle, IsTheSameInEveryFormOfTheCall)
{
    const Pen pen{Color(kRed)};
    TestPicture real(12, 12);
    EXPECT_EQ(real.graphics.DrawRectangle(&pen, 2.0f, 3.0f, 4.0f, 5.0f), Ok);
    EXPECT_EQ(drawn(real), kThinRing);
    TestPicture whole(12, 12);
    EXPECT_EQ(whole.graphics.DrawRectangle(&pen, Rect(2, 3, 4, 5)), Ok);
    EXPECT_EQ(drawn(whole), kThinRing);
    TestPicture wholeReal(12, 12);
    EXPECT_EQ(wholeReal.graphics.DrawRectangle(&pen, RectF(2, 3, 4, 5)), Ok);
    EXPECT_EQ(drawn(wholeReal), kThinRing);
    TestPicture path(12, 12);
    GraphicsPath rectangle;
    rectangle.AddRectangle(Rect(2, 3, 4, 5));
    EXPECT_EQ(path.graphics.DrawPath(&pen, &rectangle), Ok);
    EXPECT_EQ(drawn(path), kThinRing);
}

TEST(DrawRectangle, OfAnInsetPenOfWidthOneIsTheSame)
{
    Pen pen{Color(kRed)};
    pen.SetAlignment(PenAlignmentInset);
    TestPicture picture(12, 12);
    picture.graphics.DrawRectangle(&pen, 2, 3, 4, 5);
    EXPECT_EQ(drawn(picture), kThinRing);
}

TEST(DrawRectangle, OfAWideInsetPenStaysInside)
{
    if (differsHere("wide inset pens"))
        return;
    Pen pen{Color(kRed), 2};
    pen.SetAlignment(PenAlignmentInset);
    TestPicture picture(16, 16);
    picture.graphics.DrawRectangle(&pen, 4, 4, 6, 6);
    EXPECT_EQ(picture.find(kRed), (Found{4, 4, 9, 9, 36 - 4}));
    for (int y = 6; y <= 7; ++y)
        for (int x = 6; x <= 7; ++x)
            EXPECT_EQ(picture.at(x, y), Argb{0}) << x << ", " << y;
    expectOnly(picture, kRed);

    pen.SetWidth(3);
    TestPicture wider(16, 16);
    wider.graphics.DrawRectangle(&pen, 2, 3, 10, 9);
    EXPECT_EQ(wider.find(kRed), (Found{2, 3, 11, 11, 10 * 9 - 4 * 3}));
    EXPECT_EQ(columnsDrawn(wider, 7), (Places{2, 3, 4, 9, 10, 11}));
    EXPECT_EQ(rowsDrawn(wider, 7), (Places{3, 4, 5, 9, 10, 11}));
}

/// Along the middle row and column of a square of 20 pixels: red outside, blue ring, green inside.
void expectRing(const TestPicture& picture, int firstLeft, int lastLeft, int firstRight, int lastRight)
{
    const int middle = 10;
    for (int i = 0; i < 20; ++i) {
        const bool isRing = (i >= firstLeft && i <= lastLeft) || (i >= firstRight && i <= lastRight);
        const bool isInside = i > lastLeft && i < firstRight;
        const Argb expected{isRing ? kBlue : isInside ? kGreen : kRed};
        EXPECT_EQ(picture.at(i, middle), expected) << "column " << i;
        EXPECT_EQ(picture.at(middle, i), expected) << "row " << i;
    }
}

TEST(DrawRectangle, WideOutlineLiesHalfOnEitherSide)
{
    const struct
    {
        REAL width;
        int firstLeft, lastLeft, firstRight, lastRight;
    } rings[] = {{1, 5, 5, 15, 15}, {2, 4, 5, 14, 15}, {3, 4, 6, 14, 16}};
    for (const auto& [width, firstLeft, lastLeft, firstRight, lastRight] : rings) {
        SCOPED_TRACE(width);
        TestPicture picture(20, 20, kRed);
        picture.fill(kGreen, 5, 5, 10, 10);
        const Pen pen{Color(kBlue), width};
        EXPECT_EQ(picture.graphics.DrawRectangle(&pen, 5, 5, 10, 10), Ok);
        expectRing(picture, firstLeft, lastLeft, firstRight, lastRight);
        const int outer = lastRight - firstLeft + 1;
        const int inner = firstRight - lastLeft - 1;
        EXPECT_EQ(picture.find(kBlue),
                  (Found{firstLeft, firstLeft, lastRight, lastRight, outer * outer - inner * inner}));
    }
}

TEST(DrawRectangle, FilledAfterwardsKeepsItsOutlineAtTheRightAndTheBottom)
{
    TestPicture picture(20, 20, kRed);
    const Pen pen{Color(kBlue)};
    picture.graphics.DrawRectangle(&pen, 5, 5, 10, 10);
    picture.fill(kGreen, 5, 5, 10, 10);
    EXPECT_EQ(picture.find(kBlue), (Found{5, 5, 15, 15, 21}));
    EXPECT_EQ(picture.find(kGreen), (Found{5, 5, 14, 14, 100}));
}

TEST(DrawRectangle, OfNegativeOrEmptySizesIsNothing)
{
    const Pen pen{Color(kRed)};
    const Pen wide{Color(kRed), 3};
    TestPicture picture(12, 12);
    for (const Pen* each : {&pen, &wide}) {
        EXPECT_EQ(picture.graphics.DrawRectangle(each, 8, 8, -3, -3), Ok);
        EXPECT_EQ(picture.graphics.DrawRectangle(each, 8, 8, 3, -3), Ok);
        EXPECT_EQ(picture.graphics.DrawRectangle(each, 2, 2, 0, 5), Ok);
        EXPECT_EQ(picture.graphics.DrawRectangle(each, 2, 2, 5, 0), Ok);
        EXPECT_EQ(picture.graphics.DrawRectangle(each, 2.0f, 2.0f, 0.0f, 0.0f), Ok);
    }
    EXPECT_EQ(pixelsDrawn(picture), 0);
}

TEST(DrawRectangle, IsClippedAtTheEdges)
{
    const Pen pen{Color(kRed)};
    TestPicture picture(6, 6);
    EXPECT_EQ(picture.graphics.DrawRectangle(&pen, -100, 2, 103, 100), Ok);
    EXPECT_EQ(drawn(picture), rows({
                                  "......",
                                  "......",
                                  "####..",
                                  "...#..",
                                  "...#..",
                                  "...#..",
                              }));
}

TEST(DrawRectangle, NeedsAPen)
{
    TestPicture picture(4, 4);
    EXPECT_EQ(picture.graphics.DrawRectangle(nullptr, 0, 0, 2, 2), InvalidParameter);
    EXPECT_EQ(picture.graphics.DrawRectangle(nullptr, 0.0f, 0.0f, 2.0f, 2.0f), InvalidParameter);
    EXPECT_EQ(picture.graphics.GetLastStatus(), InvalidParameter);
    EXPECT_EQ(pixelsDrawn(picture), 0);
}

} // namespace
} // namespace vq::test::rectangleOutlineTests
