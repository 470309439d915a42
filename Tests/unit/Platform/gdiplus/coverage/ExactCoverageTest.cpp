// SPDX-License-Identifier: MIT
/// @file
/// The measure is measured first: shapes whose coverage is known by other means.
#include "unit/Platform/gdiplus/coverage/Outlines.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace vq::test::exactCoverageTests {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kTiny = 1e-9;

TEST(ExactCoverage, OfARectangleIsTheProductOfItsLengths)
{
    const CoverageMap map = exactCoverage({{rectangle(1.25, 2, 4.5, 3.75)}, {}}, 6, 6, 0);
    const double columns[] = {0, 0.75, 1, 1, 0.5, 0};
    const double rows[] = {0, 0, 1, 0.75, 0, 0};
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 6; ++x)
            EXPECT_NEAR(map.at(x, y), columns[x] * rows[y], kTiny) << x << ", " << y;
}

TEST(ExactCoverage, PixelsReachHalfAPixelToEitherSide)
{
    const CoverageMap map = exactCoverage({{rectangle(2, 3, 6, 8)}, {}}, 12, 12);
    EXPECT_NEAR(map.at(2, 3), 0.25, kTiny);
    EXPECT_NEAR(map.at(3, 3), 0.5, kTiny);
    EXPECT_NEAR(map.at(3, 4), 1, kTiny);
    EXPECT_NEAR(map.at(6, 8), 0.25, kTiny);
    EXPECT_NEAR(map.at(7, 8), 0, kTiny);
    EXPECT_NEAR(map.sum(), 20, kTiny);
}

TEST(ExactCoverage, OfATriangleIsHalfOnItsDiagonal)
{
    const Contour forth{{0, 0}, {4, 0}, {0, 4}};
    const Contour back{forth.rbegin(), forth.rend()};
    for (const Contour& triangle : {forth, back}) {
        const CoverageMap map = exactCoverage({{triangle}, {}}, 4, 4, 0);
        for (int y = 0; y < 4; ++y)
            for (int x = 0; x < 4; ++x)
                EXPECT_NEAR(map.at(x, y), x + y < 3 ? 1 : x + y == 3 ? 0.5 : 0, kTiny) << x << ", " << y;
    }
}

TEST(ExactCoverage, OfAConcaveShapeThatFallsApartInARow)
{
    // A comb with two teeth of 1 pixel: the row of the teeth has two separate parts.
    const Contour comb{{0, 0}, {1, 0}, {1, 2}, {2, 2}, {2, 0}, {3, 0}, {3, 3}, {0, 3}};
    const CoverageMap map = exactCoverage({{comb}, {}}, 4, 4, 0);
    const double expected[4][4] = {{1, 0, 1, 0}, {1, 0, 1, 0}, {1, 1, 1, 0}, {0, 0, 0, 0}};
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x)
            EXPECT_NEAR(map.at(x, y), expected[y][x], kTiny) << x << ", " << y;
}

TEST(ExactCoverage, LosesNothingOfAShapeInsideThePicture)
{
    for (unsigned seed = 1; seed <= 20; ++seed) {
        std::mt19937 random(seed);
        std::uniform_real_distribution<double> place(0, 30);
        const Contour triangle{
            {place(random), place(random)}, {place(random), place(random)}, {place(random), place(random)}};
        const CoverageMap map = exactCoverage({{triangle}, {}}, 32, 32);
        EXPECT_NEAR(map.sum(), std::abs(areaOf(triangle)), 1e-6) << seed;
    }
}

TEST(ExactCoverage, OfCirclesIsTheirArea)
{
    const auto curves = ellipseCurves({20, 21}, 15, 15);
    EXPECT_NEAR(exactCoverage({{pointsOn(curves)}, {}}, 40, 40).sum(), kPi * 225, 0.0005 * kPi * 225);
    const double ring = kPi * (16.5 * 16.5 - 13.5 * 13.5);
    EXPECT_NEAR(exactCoverage(strokeOfEllipse(curves, 3), 40, 40).sum(), ring, 0.0005 * ring);
}

TEST(Outlines, EllipsesAreWithinAThousandthOfTheTrueOnes)
{
    for (const Vertex point : pointsOn(ellipseCurves({3, 4}, 10, 5)))
        EXPECT_NEAR(std::hypot((point.x - 3) / 10, (point.y - 4) / 5), 1.00014, 0.00015);
}

TEST(Outlines, StrokeOfALineIsItsLengthTimesItsWidth)
{
    EXPECT_NEAR(std::abs(areaOf(strokeOfLine({3, 4}, {27, 36}, 5))), 40 * 5, kTiny);
}

TEST(Outlines, StrokeOfACornerIsMitred)
{
    const auto corner = strokeOfPolyline({{0, 0}, {20, 0}, {20, 30}}, 4);
    ASSERT_TRUE(corner);
    // Two legs of 20 + 2 and 30 - 2 long, 4 wide.
    EXPECT_NEAR(std::abs(areaOf(*corner)), 22 * 4 + 28 * 4, kTiny);
    EXPECT_NEAR((*corner)[1].x, 18, kTiny);
    EXPECT_NEAR((*corner)[4].x, 22, kTiny);
    EXPECT_NEAR((*corner)[4].y, -2, kTiny);
}

TEST(Outlines, StrokeOfARectangleIsARing)
{
    for (const Contour& corners : {rectangle(10, 10, 30, 40), Contour{{10, 10}, {10, 40}, {30, 40}, {30, 10}}}) {
        const auto ring = strokeOfPolygon(corners, 4);
        ASSERT_TRUE(ring);
        EXPECT_NEAR(std::abs(areaOf(ring->areas[0])), 24 * 34, kTiny);
        EXPECT_NEAR(std::abs(areaOf(ring->holes[0])), 16 * 26, kTiny);
    }
}

TEST(Outlines, RefuseWhatIsNotTheirShape)
{
    EXPECT_FALSE(strokeOfPolyline({{0, 0}, {3, 0}, {3, 3}, {0, 3}}, 8)) << "segments too short";
    EXPECT_FALSE(strokeOfPolyline({{0, 0}, {50, 0}, {0, 1}}, 2)) << "too sharp";
    EXPECT_FALSE(strokeOfPolyline({{0, 0}, {50, 0}, {50, 50}, {25, -40}}, 2)) << "crosses itself";
    EXPECT_FALSE(strokeOfPolygon(rectangle(0, 0, 10, 3), 4)) << "nothing left inside";
    EXPECT_TRUE(isSimple(rectangle(0, 0, 1, 1)));
    EXPECT_FALSE(isSimple({{0, 0}, {1, 1}, {1, 0}, {0, 1}}));
}

} // namespace
} // namespace vq::test::exactCoverageTests
