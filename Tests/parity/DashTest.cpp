// SPDX-License-Identifier: MIT
#include "parity/Drawn.h"
#include "parity/KnownDifferences.h"

namespace vq::test {
namespace {

using namespace Gdiplus;

/// The columns from 2 to 35 that a pattern lights, from its lengths in pixels: on, off, on, off ...
Places litColumns(const std::vector<int>& pattern)
{
    Places columns;
    bool isOn = true;
    std::size_t next = 0;
    for (int x = 2; x <= 35;) {
        for (int i = 0; i < pattern[next % pattern.size()]; ++i, ++x)
            if (isOn && x <= 35)
                columns.push_back(x);
        ++next;
        isOn = !isOn;
    }
    return columns;
}

/// A dashed line from column 2 to 36 without its last pixel, which systems end differently.
Places dashedColumns(const Pen& pen)
{
    TestPicture picture(40, 12);
    EXPECT_EQ(picture.graphics.DrawLine(&pen, 2, 5, 36, 5), Ok);
    EXPECT_TRUE(columnsDrawn(picture, 4).empty());
    EXPECT_TRUE(columnsDrawn(picture, 6).empty());
    Places columns = columnsDrawn(picture, 5);
    std::erase(columns, 36);
    return columns;
}

TEST(ThinDashes, FollowTheirStyle)
{
    Pen pen{Color(kRed)};
    EXPECT_EQ(dashedColumns(pen), fromTo(2, 35));
    pen.SetDashStyle(DashStyleDash);
    EXPECT_EQ(dashedColumns(pen), litColumns({3, 1}));
    pen.SetDashStyle(DashStyleDot);
    EXPECT_EQ(dashedColumns(pen), litColumns({1, 1}));
    pen.SetDashStyle(DashStyleDashDot);
    EXPECT_EQ(dashedColumns(pen), litColumns({3, 1, 1, 1}));
    pen.SetDashStyle(DashStyleDashDotDot);
    EXPECT_EQ(dashedColumns(pen), litColumns({3, 1, 1, 1, 1, 1}));
}

TEST(ThinDashes, FollowAnArray)
{
    Pen pen{Color(kRed)};
    const REAL dashes[] = {2, 3, 5, 1};
    pen.SetDashPattern(dashes, 2);
    EXPECT_EQ(dashedColumns(pen), litColumns({2, 3}));
    pen.SetDashPattern(dashes, 4);
    EXPECT_EQ(dashedColumns(pen), litColumns({2, 3, 5, 1}));
}

TEST(ThinDashes, ArePixelsLongForPensBelowOne)
{
    Pen pen{Color(kRed), 0.5f};
    pen.SetDashStyle(DashStyleDash);
    EXPECT_EQ(dashedColumns(pen), litColumns({3, 1}));
}

TEST(ThinDashes, StartAtTheFirstPoint)
{
    Pen pen{Color(kRed)};
    const REAL dashes[] = {2, 3};
    pen.SetDashPattern(dashes, 2);
    TestPicture picture(40, 12);
    picture.graphics.DrawLine(&pen, 36, 5, 2, 5);
    for (int x = 36; x > 2; --x)
        EXPECT_EQ(picture.at(x, 5), Argb{(36 - x) % 5 < 2 ? kRed : 0}) << x;
}

TEST(ThinDashes, GoOnRoundACorner)
{
    Pen pen{Color(kRed)};
    const REAL dashes[] = {4, 3};
    pen.SetDashPattern(dashes, 2);
    const Point points[] = {{2, 2}, {12, 2}, {12, 14}};
    TestPicture picture(16, 16);
    EXPECT_EQ(picture.graphics.DrawLines(&pen, points, 3), Ok);
    for (int x = 2; x <= 12; ++x)
        EXPECT_EQ(picture.at(x, 2), Argb{(x - 2) % 7 < 4 ? kRed : 0}) << x;
    for (int y = 3; y < 14; ++y)
        EXPECT_EQ(picture.at(12, y), Argb{(10 + y - 2) % 7 < 4 ? kRed : 0}) << y;
}

TEST(ThinDashes, OfAFigureStartAtItsFirstPoint)
{
    Pen pen{Color(kRed)};
    pen.SetDashStyle(DashStyleDot);
    TestPicture rectangle(16, 14);
    EXPECT_EQ(rectangle.graphics.DrawRectangle(&pen, 2, 2, 10, 8), Ok);
    EXPECT_EQ(drawn(rectangle), rows({
                                    "................",
                                    "................",
                                    "..#.#.#.#.#.#...",
                                    "................",
                                    "..#.........#...",
                                    "................",
                                    "..#.........#...",
                                    "................",
                                    "..#.........#...",
                                    "................",
                                    "..#.#.#.#.#.#...",
                                    "................",
                                    "................",
                                    "................",
                                }));
}

TEST(ThinDashes, OfEveryFigureStartAnew)
{
    if (differsHere("thin dashes of a second figure"))
        return;
    Pen pen{Color(kRed)};
    const REAL dashes[] = {3, 4};
    pen.SetDashPattern(dashes, 2);
    GraphicsPath path;
    path.AddLine(1, 1, 13, 1);
    path.StartFigure();
    path.AddLine(1, 3, 13, 3);
    TestPicture picture(16, 5);
    picture.graphics.DrawPath(&pen, &path);
    for (const int y : {1, 3})
        for (int x = 1; x < 13; ++x)
            EXPECT_EQ(picture.at(x, y), Argb{(x - 1) % 7 < 3 ? kRed : 0}) << x << ", " << y;
}

TEST(ThinDashes, OfAnEllipseStartAtTheRightAndGoDown)
{
    Pen pen{Color(kRed)};
    const REAL dashes[] = {20, 200};
    pen.SetDashPattern(dashes, 2);
    TestPicture picture(50, 50);
    EXPECT_EQ(picture.graphics.DrawEllipse(&pen, 5, 5, 40, 40), Ok);
    // One radian of a circle of radius 20 around (25, 25): from (45, 25) to (35.8, 41.8).
    const Found found = picture.find(kRed);
    const int slack = differsHere("thin curves") ? 2 : 1;
    EXPECT_NEAR(found.left, 36, slack);
    EXPECT_EQ(found.right, 45);
    EXPECT_EQ(found.top, 25);
    EXPECT_NEAR(found.bottom, 42, slack);
}

TEST(WideDashes, AreAsLongAsThePenIsWide)
{
    Pen pen{Color(kRed), 10};
    pen.SetDashStyle(DashStyleDash);
    TestPicture picture(60, 30);
    EXPECT_EQ(picture.graphics.DrawLine(&pen, 5, 15, 50, 15), Ok);
    Places expected = fromTo(5, 34);
    for (const int x : fromTo(45, 49))
        expected.push_back(x);
    for (int y = 0; y < 30; ++y)
        EXPECT_EQ(columnsDrawn(picture, y), y >= 10 && y < 20 ? expected : Places{}) << y;
}

TEST(WideDashes, OfAnArrayAreMultiplesOfTheWidth)
{
    Pen pen{Color(kRed), 4};
    const REAL dashes[] = {2, 1, 0.5f, 1};
    pen.SetDashPattern(dashes, 4);
    TestPicture picture(60, 12);
    picture.graphics.DrawLine(&pen, 3, 6, 43, 6);
    // On 8, off 4, on 2, off 4: a period of 18.
    for (int x = 0; x < 60; ++x) {
        const int along = (x - 3) % 18;
        const bool isOn = x >= 3 && x < 43 && (along < 8 || (along >= 12 && along < 14));
        EXPECT_EQ(rowsDrawn(picture, x), isOn ? fromTo(4, 7) : Places{}) << x;
    }
}

TEST(WideDashes, GoOnRoundACorner)
{
    Pen pen{Color(kRed), 4};
    const REAL dashes[] = {2, 1};
    pen.SetDashPattern(dashes, 2);
    const Point points[] = {{4, 6}, {34, 6}, {34, 40}};
    TestPicture picture(44, 44);
    picture.graphics.DrawLines(&pen, points, 3);
    // On 8, off 4: the corner lies 30 along, 6 into a dash; the next one goes from 36 to 44.
    for (int x = 4; x < 32; ++x)
        EXPECT_EQ(rowsDrawn(picture, x), (x - 4) % 12 < 8 ? fromTo(4, 7) : Places{}) << x;
    for (int y = 8; y < 38; ++y)
        EXPECT_EQ(columnsDrawn(picture, y), (30 + y - 6) % 12 < 8 ? fromTo(32, 35) : Places{}) << y;
}

TEST(WideDashes, OfEveryFigureStartAnew)
{
    Pen pen{Color(kRed), 2};
    const REAL dashes[] = {3, 4};
    pen.SetDashPattern(dashes, 2);
    GraphicsPath path;
    path.AddLine(1, 2, 25, 2);
    path.StartFigure();
    path.AddLine(1, 6, 25, 6);
    TestPicture picture(30, 9);
    picture.graphics.DrawPath(&pen, &path);
    for (const int y : {1, 2, 5, 6})
        for (int x = 1; x < 25; ++x)
            EXPECT_EQ(picture.at(x, y), Argb{(x - 1) % 14 < 6 ? kRed : 0}) << x << ", " << y;
}

TEST(WideDashes, WithRoundCapsKeepTheirLength)
{
    if (differsHere("dash caps"))
        return;
    Pen pen{Color(kRed), 10};
    pen.SetDashStyle(DashStyleDot);
    pen.SetDashCap(DashCapRound);
    TestPicture picture(65, 30);
    picture.graphics.DrawLine(&pen, 5, 15, 55, 15);
    // Circles of radius 5 around 10, 30 and 50.
    constexpr double kSlack = 0.25;
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 65; ++x) {
            double away = 1000;
            for (const int centre : {10, 30, 50})
                away = std::min(away, std::hypot(x - centre, y - 15));
            if (picture.at(x, y).value != 0)
                EXPECT_LE(away, 5 + kSlack) << x << ", " << y;
            else
                EXPECT_GE(away, 5 - kSlack) << x << ", " << y;
        }
}

// That an offset leads into the pattern, and not away from it, only Windows could confirm.
TEST(ThinDashes, BeginAtTheirOffset)
{
    if (differsHere("offset of dashes"))
        return;
    Pen pen{Color(kRed)};
    const REAL dashes[] = {2, 3};
    pen.SetDashPattern(dashes, 2);
    pen.SetDashOffset(1);
    Places expected = {2};
    for (int x = 6; x <= 35; ++x)
        if ((x - 6) % 5 < 2)
            expected.push_back(x);
    EXPECT_EQ(dashedColumns(pen), expected);
}

TEST(WideDashes, BeginAtTheirOffset)
{
    if (differsHere("offset of dashes"))
        return;
    Pen pen{Color(kRed), 2};
    const REAL dashes[] = {3, 4};
    pen.SetDashPattern(dashes, 2);
    pen.SetDashOffset(1);
    TestPicture picture(40, 8);
    picture.graphics.DrawLine(&pen, 2, 4, 36, 4);
    for (int x = 2; x < 36; ++x)
        EXPECT_EQ(rowsDrawn(picture, x), (x - 2 + 2) % 14 < 6 ? fromTo(3, 4) : Places{}) << x;
}

} // namespace
} // namespace vq::test
