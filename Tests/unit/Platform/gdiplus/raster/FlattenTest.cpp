// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/Flatten.h"
#include "unit/Platform/gdiplus/raster/RasterSupport.h"

#include <gtest/gtest.h>

namespace vq::test {
namespace {

constexpr double kKappa = 0.5522847498;

Bezier quarterCircle(double radius)
{
    return {PointD{radius, 0}, PointD{radius, kKappa * radius}, PointD{kKappa * radius, radius}, PointD{0, radius}};
}

TEST(Flatten, AQuarterCircleOfRadius50HasEightEdgesAtFlatness1AsOnWindows)
{
    EXPECT_EQ(bezierSteps(quarterCircle(50), CurvePrecision::asGdiplus(1.0)), 8);
}

TEST(Flatten, AStraightCurveIsOneEdge)
{
    const Bezier straight{PointD{0, 0}, PointD{1, 1}, PointD{2, 2}, PointD{3, 3}};

    EXPECT_EQ(bezierSteps(straight, CurvePrecision::asGdiplus()), 1);
    EXPECT_EQ(bezierSteps(straight, CurvePrecision::fine()), 1);
}

TEST(Flatten, GdiplusTakesPowersOfTwo)
{
    for (double radius = 1; radius < 5000; radius *= 1.7) {
        const int steps = bezierSteps(quarterCircle(radius), CurvePrecision::asGdiplus());
        EXPECT_EQ(steps & (steps - 1), 0) << radius;
    }
}

TEST(Flatten, EnormousCurvesHaveABoundedNumberOfEdges)
{
    EXPECT_EQ(bezierSteps(quarterCircle(1e18), CurvePrecision::fine()), 16384);
    EXPECT_EQ(bezierSteps(quarterCircle(std::numeric_limits<double>::infinity()), CurvePrecision::fine()), 16384);
}

TEST(Flatten, EdgesStayWithinTheFlatnessOfTheCurve)
{
    std::mt19937 random(20);
    std::uniform_real_distribution<double> coordinate(-200, 200);
    for (int round = 0; round < 200; ++round) {
        Bezier curve;
        for (PointD& point : curve)
            point = {coordinate(random), coordinate(random)};
        const CurvePrecision precision{round % 2 == 0 ? 0.25 : 1.0 / 256, round % 4 < 2};
        Polylines lines;
        lines.add(curve[0]);
        addBezier(lines, curve, precision);
        lines.endFigure(false);
        const auto points = lines.points(lines.figures()[0]);
        ASSERT_EQ(points.size(), static_cast<std::size_t>(bezierSteps(curve, precision)) + 1);
        EXPECT_EQ(points.back(), curve[3]);
        // The curve is farthest from an edge near the middle of the edge's part of the parameter.
        for (std::size_t i = 0; i + 1 < points.size(); ++i) {
            const double t = (static_cast<double>(i) + 0.5) / static_cast<double>(points.size() - 1);
            const double u = 1 - t;
            const PointD on = curve[0] * (u * u * u) + curve[1] * (3 * u * u * t) + curve[2] * (3 * u * t * t) +
                              curve[3] * (t * t * t);
            const PointD middle = (points[i] + points[i + 1]) * 0.5;
            // The bound is on each axis.
            ASSERT_LE(std::max(std::abs(on.x - middle.x), std::abs(on.y - middle.y)), precision.flatness * 1.0001);
        }
    }
}

} // namespace
} // namespace vq::test
