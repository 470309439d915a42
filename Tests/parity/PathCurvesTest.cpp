// SPDX-License-Identifier: MIT
#include "parity/KnownDifferences.h"
#include "parity/Paths.h"

#include <memory>

namespace vq::test {
namespace {

using namespace Gdiplus;

constexpr REAL kKappa = 0.5522847f; // control length of a quarter circle of radius 1

TEST(PathEllipse, IsFourBeziersFromTheRight)
{
    GraphicsPath path;
    EXPECT_EQ(path.AddEllipse(10, 20, 100, 60), Ok);
    const REAL x = 50 * kKappa;
    const REAL y = 30 * kKappa;
    const PathPoints expected = {
        {110, 50, kStart},           {110, 50 + y, kBezier}, {60 + x, 80, kBezier}, {60, 80, kBezier},
        {60 - x, 80, kBezier},       {10, 50 + y, kBezier},  {10, 50, kBezier},     {10, 50 - y, kBezier},
        {60 - x, 20, kBezier},       {60, 20, kBezier},      {60 + x, 20, kBezier}, {110, 50 - y, kBezier},
        {110, 50, kBezier | kClose},
    };
    expectPoints(path, expected);
    GraphicsPath real;
    EXPECT_EQ(real.AddEllipse(10.0f, 20.0f, 100.0f, 60.0f), Ok);
    expectPoints(real, expected);
    GraphicsPath whole;
    EXPECT_EQ(whole.AddEllipse(Rect(10, 20, 100, 60)), Ok);
    expectPoints(whole, expected);
    GraphicsPath wholeReal;
    EXPECT_EQ(wholeReal.AddEllipse(RectF(10, 20, 100, 60)), Ok);
    expectPoints(wholeReal, expected);
    whole.AddLine(1, 1, 2, 2);
    EXPECT_EQ(pointsOf(whole)[13].type, kStart);
}

TEST(PathArc, OfAQuarterGoesClockwise)
{
    GraphicsPath path;
    EXPECT_EQ(path.AddArc(100, 100, 500, 700, 0.0f, 90.0f), Ok);
    expectPoints(path, {{600, 450, kStart},
                        {600, 450 + 350 * kKappa, kBezier},
                        {350 + 250 * kKappa, 800, kBezier},
                        {350, 800, kBezier}});
}

TEST(PathArc, GoesBackwardsForNegativeAngles)
{
    GraphicsPath path;
    EXPECT_EQ(path.AddArc(RectF(-10, -10, 20, 20), 0, -90), Ok);
    const REAL k = 10 * kKappa;
    expectPoints(path, {{10, 0, kStart}, {10, -k, kBezier}, {k, -10, kBezier}, {0, -10, kBezier}});
}

TEST(PathArc, IsCutIntoQuartersAndTheRest)
{
    GraphicsPath path;
    EXPECT_EQ(path.AddArc(Rect(-10, -10, 20, 20), 0, 120), Ok);
    const PathPoints points = pointsOf(path);
    ASSERT_EQ(points.size(), 7u);
    EXPECT_TRUE(isNear(points[3], {0, 10}, 1e-3));
    EXPECT_TRUE(isNear(points[6], {-5, 8.660254f}, 1e-3));
    for (std::size_t i = 1; i < 7; ++i)
        EXPECT_EQ(points[i].type, kBezier);
    for (const auto& [sweep, count] : {std::pair{45.0f, 4u},
                                       {90.0f, 4u},
                                       {91.0f, 7u},
                                       {180.0f, 7u},
                                       {270.0f, 10u},
                                       {300.0f, 13u},
                                       {-300.0f, 13u},
                                       {-10.0f, 4u}}) {
        GraphicsPath arc;
        arc.AddArc(0, 0, 20, 20, 30.0f, sweep);
        EXPECT_EQ(pointsOf(arc).size(), count) << sweep;
    }
}

TEST(PathArc, OfAFullTurnOrMoreIsAnEllipse)
{
    for (const REAL sweep : {360.0f, 400.0f, 1000.0f, -360.0f, -500.0f}) {
        GraphicsPath path;
        EXPECT_EQ(path.AddArc(10, 20, 100, 60, 0.0f, sweep), Ok);
        const PathPoints points = pointsOf(path);
        ASSERT_EQ(points.size(), 13u) << sweep;
        EXPECT_TRUE(isNear(points[0], {110, 50}, 1e-3)) << sweep;
        EXPECT_TRUE(isNear(points[12], {110, 50}, 1e-3)) << sweep;
        EXPECT_TRUE(isNear(points[6], {10, 50}, 1e-3)) << sweep;
        EXPECT_TRUE(isNear(points[3], {60, sweep > 0 ? 80.0f : 20.0f}, 1e-3)) << sweep;
    }
}

TEST(PathArc, IsJoinedToTheCurrentPointByALine)
{
    GraphicsPath path;
    path.AddArc(100, 100, 500, 700, 0.0f, 90.0f);
    path.AddArc(100, 100, 500, 700, 0.0f, 90.0f);
    const PathPoints points = pointsOf(path);
    ASSERT_EQ(points.size(), 8u);
    EXPECT_EQ(points[0].type, kStart);
    EXPECT_EQ(points[4].type, kLine);
    EXPECT_TRUE(isNear(points[4], {600, 450}, 1e-3));
    EXPECT_EQ(points[5].type, kBezier);

    GraphicsPath apart;
    apart.AddArc(0, 0, 10, 10, 0.0f, 90.0f);
    apart.StartFigure();
    apart.AddArc(0, 0, 10, 10, 180.0f, 90.0f);
    EXPECT_EQ(pointsOf(apart)[4].type, kStart);
}

TEST(PathArc, AnglesOfAnEllipseAreThoseOnTheScreen)
{
    // At 45 degrees the ray from the centre meets the ellipse where x equals y.
    GraphicsPath path;
    path.AddArc(-200, -100, 400, 200, 45.0f, 45.0f);
    const PathPoints points = pointsOf(path);
    ASSERT_EQ(points.size(), 4u);
    const REAL place = 200 / std::sqrt(5.0f);
    EXPECT_TRUE(isNear(points[0], {place, place}, 0.05)) << testing::PrintToString(points[0]);
    EXPECT_TRUE(isNear(points[3], {0, 100}, 0.05)) << testing::PrintToString(points[3]);
}

TEST(PathArc, OfNoSizeIsInvalid)
{
    if (differsHere("arcs of no size"))
        return;
    GraphicsPath path;
    EXPECT_EQ(path.AddArc(1, 1, 0, 0, 180.0f, 90.0f), InvalidParameter);
    EXPECT_EQ(path.AddArc(1, 1, 5, 0, 180.0f, 90.0f), InvalidParameter);
    EXPECT_EQ(path.AddArc(1, 1, 0, 5, 180.0f, 90.0f), InvalidParameter);
    EXPECT_EQ(path.AddArc(1.0f, 1.0f, -5.0f, 5.0f, 180.0f, 90.0f), InvalidParameter);
    EXPECT_EQ(path.AddArc(1.0f, 1.0f, 5.0f, -5.0f, 180.0f, 90.0f), InvalidParameter);
    EXPECT_EQ(path.GetLastStatus(), InvalidParameter);
    EXPECT_EQ(path.GetPointCount(), 0);
}

/// Straight pieces only, and how many.
int segmentsOf(const GraphicsPath& path)
{
    const PathPoints points = pointsOf(path);
    for (std::size_t i = 1; i < points.size(); ++i)
        EXPECT_EQ(points[i].type & ~kClose, kLine) << i;
    return static_cast<int>(points.size()) - 1;
}

TEST(PathFlatten, CutsAQuarterOfACircleIntoEight)
{
    GraphicsPath path;
    path.AddArc(0, 0, 100, 100, 0.0f, 90.0f);
    EXPECT_EQ(path.Flatten(nullptr, 1.0f), Ok);
    EXPECT_EQ(segmentsOf(path), 8);
    const PathPoints points = pointsOf(path);
    EXPECT_TRUE(isNear(points.front(), {100, 50}, 1e-3));
    EXPECT_TRUE(isNear(points.back(), {50, 100}, 1e-3));
    for (const PathPoint& point : points)
        EXPECT_NEAR(std::hypot(point.x - 50, point.y - 50), 50, 0.1) << testing::PrintToString(point);
}

TEST(PathFlatten, StepsUniformlyAlongTheCurve)
{
    GraphicsPath path;
    path.AddBezier(0, 0, 0, 40, 40, 80, 120, 80);
    path.Flatten(nullptr, 1.0f);
    const PathPoints points = pointsOf(path);
    ASSERT_GE(points.size(), 2u);
    const REAL steps = static_cast<REAL>(points.size() - 1);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const REAL t = static_cast<REAL>(i) / steps;
        const REAL x = 3 * t * t * (1 - t) * 40 + t * t * t * 120;
        const REAL y = 3 * t * (1 - t) * (1 - t) * 40 + 3 * t * t * (1 - t) * 80 + t * t * t * 80;
        EXPECT_TRUE(isNear(points[i], {x, y}, 0.1)) << i << ' ' << testing::PrintToString(points[i]);
    }
}

TEST(PathFlatten, IsFinerForASmallerTolerance)
{
    int last = 0;
    for (const REAL flatness : {25.0f, 1.0f, 0.25f, 0.01f}) {
        GraphicsPath path;
        path.AddArc(0, 0, 100, 100, 0.0f, 90.0f);
        path.Flatten(nullptr, flatness);
        EXPECT_GT(segmentsOf(path), last) << flatness;
        last = segmentsOf(path);
    }
    GraphicsPath byDefault;
    byDefault.AddArc(0, 0, 100, 100, 0.0f, 90.0f);
    const std::unique_ptr<GraphicsPath> quarter(byDefault.Clone());
    byDefault.Flatten();
    quarter->Flatten(nullptr, 0.25f);
    EXPECT_EQ(segmentsOf(byDefault), segmentsOf(*quarter));
    EXPECT_EQ(segmentsOf(byDefault), 16);
}

TEST(PathFlatten, LeavesStraightFiguresAlone)
{
    GraphicsPath path;
    path.AddRectangle(Rect(1, 2, 3, 4));
    path.AddLine(7, 8, 9, 10);
    const PathPoints before = pointsOf(path);
    EXPECT_EQ(path.Flatten(), Ok);
    expectPoints(path, before);
    GraphicsPath empty;
    EXPECT_EQ(empty.Flatten(), Ok);
    EXPECT_EQ(empty.GetPointCount(), 0);
}

TEST(PathFlatten, KeepsFiguresApartAndClosed)
{
    GraphicsPath path;
    path.AddLine(0, 0, 5, 0);
    path.AddEllipse(10, 10, 40, 40);
    path.AddEllipse(100, 10, 40, 40);
    EXPECT_EQ(path.Flatten(), Ok);
    const std::vector<PathPoints> figures = figuresOf(path);
    ASSERT_EQ(figures.size(), 3u);
    EXPECT_EQ(figures[0].size(), 2u);
    EXPECT_EQ(figures[1].back().type, kLine | kClose);
    EXPECT_EQ(figures[2].back().type, kLine | kClose);
    EXPECT_TRUE(extentOf(figures[1]).isNear({10, 10, 50, 50}, 1e-3)) << testing::PrintToString(extentOf(figures[1]));
    EXPECT_TRUE(extentOf(figures[2]).isNear({100, 10, 140, 50}, 1e-3)) << testing::PrintToString(extentOf(figures[2]));
}

} // namespace
} // namespace vq::test
