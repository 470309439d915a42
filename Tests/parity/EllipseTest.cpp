// SPDX-License-Identifier: MIT
#include "parity/Drawn.h"
#include "parity/KnownDifferences.h"

#include <cmath>

namespace vq::test {
namespace {

using namespace Gdiplus;

TEST(DrawEllipse, TakesThePixelsNearestToItsCurve)
{
    if (differsHere("thin curves"))
        return;
    const Pen pen{Color(kRed)};
    TestPicture large(13, 13);
    EXPECT_EQ(large.graphics.DrawEllipse(&pen, 1, 1, 10, 10), Ok);
    EXPECT_EQ(drawn(large), rows({
                                ".............",
                                "....#####....",
                                "...#.....#...",
                                "..#.......#..",
                                ".#.........#.",
                                ".#.........#.",
                                ".#.........#.",
                                ".#.........#.",
                                ".#.........#.",
                                "..#.......#..",
                                "...#.....#...",
                                "....#####....",
                                ".............",
                            }));
    TestPicture small(12, 12);
    small.graphics.DrawEllipse(&pen, 3, 3, 4, 4);
    EXPECT_EQ(drawn(small), rows({
                                "............",
                                "............",
                                "............",
                                "....###.....",
                                "...#...#....",
                                "...#...#....",
                                "...#...#....",
                                "....###.....",
                                "............",
                                "............",
                                "............",
                                "............",
                            }));
}

TEST(DrawEllipse, IsTheSameInEveryFormOfTheCall)
{
    for (const REAL width : {1.0f, 3.0f}) {
        const Pen pen{Color(kRed), width};
        TestPicture expected(20, 16);
        EXPECT_EQ(expected.graphics.DrawEllipse(&pen, 3, 2, 13, 10), Ok);
        EXPECT_GT(pixelsDrawn(expected), 0);
        TestPicture real(20, 16);
        EXPECT_EQ(real.graphics.DrawEllipse(&pen, 3.0f, 2.0f, 13.0f, 10.0f), Ok);
        EXPECT_EQ(drawn(real), drawn(expected));
        TestPicture whole(20, 16);
        EXPECT_EQ(whole.graphics.DrawEllipse(&pen, Rect(3, 2, 13, 10)), Ok);
        EXPECT_EQ(drawn(whole), drawn(expected));
        TestPicture wholeReal(20, 16);
        EXPECT_EQ(wholeReal.graphics.DrawEllipse(&pen, RectF(3, 2, 13, 10)), Ok);
        EXPECT_EQ(drawn(wholeReal), drawn(expected));
        TestPicture path(20, 16);
        GraphicsPath ellipse;
        ellipse.AddEllipse(3, 2, 13, 10);
        EXPECT_EQ(path.graphics.DrawPath(&pen, &ellipse), Ok);
        EXPECT_EQ(drawn(path), drawn(expected));
    }
}

TEST(DrawEllipse, TouchesTheFourSidesOfItsBox)
{
    const Pen pen{Color(kRed)};
    TestPicture picture(40, 30);
    picture.graphics.DrawEllipse(&pen, 3, 4, 30, 20);
    EXPECT_EQ(picture.at(3, 14), Argb{kRed});
    EXPECT_EQ(picture.at(33, 14), Argb{kRed});
    EXPECT_EQ(picture.at(18, 4), Argb{kRed});
    EXPECT_EQ(picture.at(18, 24), Argb{kRed});
    const Found found = picture.find(kRed);
    EXPECT_EQ((Found{found.left, found.top, found.right, found.bottom, 0}), (Found{3, 4, 33, 24, 0}));
}

/// Every set pixel's centre lies in a ring around the circle and every pixel whose centre does is set, both with a
/// slack.
void expectRing(const TestPicture& picture, double centre, double radius, double width, double slack)
{
    for (int y = 0; y < heightOf(picture); ++y)
        for (int x = 0; x < widthOf(picture); ++x) {
            const double away = std::abs(std::hypot(x - centre, y - centre) - radius);
            if (picture.at(x, y).value != 0)
                EXPECT_LE(away, width / 2 + slack) << x << ", " << y;
            else
                EXPECT_GE(away, width / 2 - slack) << x << ", " << y;
        }
}

TEST(DrawEllipse, OfAWidePenIsARing)
{
    const double slack = differsHere("edges of curves") ? 1 : 0.25; // chords of the flattened curve
    for (const REAL width : {2.0f, 4.0f, 7.0f}) {
        const Pen pen{Color(kRed), width};
        TestPicture picture(50, 50);
        picture.graphics.DrawEllipse(&pen, 6, 6, 36, 36);
        expectRing(picture, 24, 18, static_cast<double>(width), slack);
        expectOnly(picture, kRed);
    }
}

TEST(FillEllipse, LightsThePixelsWhoseCentresAreInside)
{
    const int slack = differsHere("edges of curves") ? 1 : 0;
    const SolidBrush brush{Color(kRed)};
    TestPicture picture(12, 12);
    EXPECT_EQ(picture.graphics.FillEllipse(&brush, 1, 1, 9, 9), Ok);
    // The centre is at 5.5 and the radius 4.5: row 2 reaches 2.83 to either side, row 3 3.74 and rows 4 and 5 more
    // than 4.
    for (int y = 2; y <= 9; ++y) {
        const int first = y == 2 || y == 9 ? 3 : 2;
        const Places columns = columnsDrawn(picture, y);
        ASSERT_FALSE(columns.empty()) << y;
        EXPECT_EQ(columns, fromTo(columns.front(), columns.back())) << y;
        EXPECT_NEAR(columns.front(), first, slack) << y;
        EXPECT_NEAR(columns.back(), 11 - first, slack) << y;
    }
    for (const int y : {0, 11})
        EXPECT_EQ(columnsDrawn(picture, y), Places{}) << y;
    if (slack == 0) {
        EXPECT_EQ(picture.find(kRed), (Found{2, 2, 9, 9, 60}));
    }
}

TEST(FillEllipse, FollowsItsCurveAtAnySizeAndPlace)
{
    const double slack = differsHere("edges of curves") ? 1.01 : 0.25; // chords of the flattened curve
    const SolidBrush brush{Color(kRed)};
    for (const RectF& box : {RectF(3.25f, 5.5f, 40, 30), RectF(-10, 20, 60.5f, 12), RectF(20, -30, 17.75f, 90)}) {
        TestPicture picture(60, 50);
        EXPECT_EQ(picture.graphics.FillEllipse(&brush, box), Ok);
        const double a = double{box.Width} / 2;
        const double b = double{box.Height} / 2;
        for (int y = 0; y < 50; ++y)
            for (int x = 0; x < 60; ++x) {
                const double dx = x - double{box.X} - a;
                const double dy = y - double{box.Y} - b;
                const double larger = std::hypot(dx / (a + slack), dy / (b + slack));
                const double smaller = std::hypot(dx / (a - slack), dy / (b - slack));
                if (picture.at(x, y).value != 0)
                    EXPECT_LE(larger, 1) << x << ", " << y;
                else
                    EXPECT_GE(smaller, 1) << x << ", " << y;
            }
    }
}

TEST(FillEllipse, IsTheSameInEveryFormOfTheCall)
{
    const SolidBrush brush{Color(kRed)};
    TestPicture expected(20, 16);
    EXPECT_EQ(expected.graphics.FillEllipse(&brush, 3, 2, 13, 10), Ok);
    EXPECT_GT(pixelsDrawn(expected), 0);
    TestPicture real(20, 16);
    EXPECT_EQ(real.graphics.FillEllipse(&brush, 3.0f, 2.0f, 13.0f, 10.0f), Ok);
    EXPECT_EQ(drawn(real), drawn(expected));
    TestPicture whole(20, 16);
    EXPECT_EQ(whole.graphics.FillEllipse(&brush, Rect(3, 2, 13, 10)), Ok);
    EXPECT_EQ(drawn(whole), drawn(expected));
    TestPicture wholeReal(20, 16);
    EXPECT_EQ(wholeReal.graphics.FillEllipse(&brush, RectF(3, 2, 13, 10)), Ok);
    EXPECT_EQ(drawn(wholeReal), drawn(expected));
    TestPicture path(20, 16);
    GraphicsPath ellipse;
    ellipse.AddEllipse(3, 2, 13, 10);
    EXPECT_EQ(path.graphics.FillPath(&brush, &ellipse), Ok);
    EXPECT_EQ(drawn(path), drawn(expected));
}

TEST(Ellipse, NeedsAPenOrABrush)
{
    TestPicture picture(4, 4);
    EXPECT_EQ(picture.graphics.DrawEllipse(nullptr, 0, 0, 3, 3), InvalidParameter);
    EXPECT_EQ(picture.graphics.DrawEllipse(nullptr, 0.0f, 0.0f, 3.0f, 3.0f), InvalidParameter);
    EXPECT_EQ(picture.graphics.FillEllipse(nullptr, 0, 0, 3, 3), InvalidParameter);
    EXPECT_EQ(picture.graphics.FillEllipse(nullptr, 0.0f, 0.0f, 3.0f, 3.0f), InvalidParameter);
    EXPECT_EQ(picture.graphics.GetLastStatus(), InvalidParameter);
    EXPECT_EQ(pixelsDrawn(picture), 0);
}

} // namespace
} // namespace vq::test
