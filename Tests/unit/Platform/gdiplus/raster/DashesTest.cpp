// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/CutDashes.h"
#include "unit/Platform/gdiplus/raster/RasterSupport.h"

#include <gtest/gtest.h>

namespace vq::test::dashesTests {
namespace {

constexpr Bounds kEverywhere{-1e9, -1e9, 1e9, 1e9};
constexpr float kDash[] = {3, 1};

double lengthOfFigure(std::span<const PointD> points)
{
    double length = 0;
    for (std::size_t i = 1; i < points.size(); ++i)
        length += lengthOf(points[i] - points[i - 1]);
    return length;
}

std::vector<std::pair<double, double>> dashesOf(const Polylines& line, const DashPattern& pattern, const Bounds& seen)
{
    Polylines dashes;
    cutDashes(line, pattern, seen, dashes);
    std::vector<std::pair<double, double>> result;
    for (const auto& figure : dashes.figures())
        result.emplace_back(dashes.points(figure).front().x, dashes.points(figure).back().x);
    return result;
}

TEST(DashPattern, CountsInUnits)
{
    const DashPattern pattern(kDash, 0, 10);

    EXPECT_TRUE(pattern.at(0).on);
    EXPECT_EQ(pattern.at(0).left, 30);
    EXPECT_FALSE(pattern.at(30).on);
    EXPECT_TRUE(pattern.at(40).on);
}

TEST(DashPattern, AnOddCountExchangesOnAndOff)
{
    const float lengths[] = {1, 2, 3};
    const DashPattern pattern(lengths, 0, 1);

    const std::string on = "100111011000"; // 1 on, 2 off, 3 on, 1 off, 2 on, 3 off
    for (std::size_t i = 0; i < 24; ++i)
        EXPECT_EQ(pattern.at(static_cast<double>(i) + 0.5).on, on[i % 12] == '1') << i;
}

TEST(DashPattern, AnOffsetBeginsWithinThePatternAlsoBackwards)
{
    EXPECT_FALSE(DashPattern(kDash, 3, 1).at(0.5).on);
    EXPECT_FALSE(DashPattern(kDash, -1, 1).at(0.5).on);
    EXPECT_TRUE(DashPattern(kDash, -1, 1).at(1.5).on);
}

TEST(DashPattern, DashesThatNobodyCanSeeAreASolidLine)
{
    const float tiny[] = {1e-6f, 1e-6f};
    const float endless[] = {std::numeric_limits<float>::infinity(), 1};

    EXPECT_TRUE(DashPattern(tiny, 0, 1).solid());
    EXPECT_TRUE(DashPattern(endless, 0, 1).solid());
    EXPECT_FALSE(DashPattern(kDash, 0, 1).solid());
}

TEST(CutDashes, DashOfWidth10OnALineOf45IsThirtyOnTenOffFiveOn)
{
    const auto dashes = dashesOf(polylineOf({{5, 5}, {50, 5}}, false), DashPattern(kDash, 0, 10), kEverywhere);

    EXPECT_EQ(dashes, (std::vector<std::pair<double, double>>{{5, 35}, {45, 50}}));
}

TEST(CutDashes, WhatIsOutsideTheVisiblePartIsLeftOutAndThePhaseKept)
{
    const Polylines line = polylineOf({{0, 0}, {1e9, 0}}, false);
    const auto all = dashesOf(polylineOf({{0, 0}, {400, 0}}, false), DashPattern(kDash, 0, 1), kEverywhere);

    const auto seen = dashesOf(line, DashPattern(kDash, 0, 1), {99, -5, 111, 5});

    ASSERT_LE(seen.size(), 4u);
    for (const auto& [first, last] : seen) {
        EXPECT_TRUE(std::ranges::any_of(
            all, [&](const auto& dash) { return dash.first <= first + 1e-9 && last <= dash.second + 1e-9; }))
            << first << " .. " << last;
    }
}

TEST(CutDashes, AClosedFigureCarriesThePatternThroughItsCorners)
{
    const Polylines square = polylineOf({{0, 0}, {10, 0}, {10, 10}, {0, 10}}, true);
    Polylines dashes;
    cutDashes(square, DashPattern(kDash, 0, 2), kEverywhere, dashes); // 6 on, 2 off: five times round 40

    ASSERT_EQ(dashes.figures().size(), 5u);
    for (const auto& figure : dashes.figures()) {
        EXPECT_FALSE(figure.closed);
        EXPECT_NEAR(lengthOfFigure(dashes.points(figure)), 6, 1e-9);
    }
    const auto second = dashes.points(dashes.figures()[1]); // from (8, 0) round the corner to (10, 4)
    ASSERT_EQ(second.size(), 3u);
    EXPECT_EQ(second[1], (PointD{10, 0}));
}

TEST(CutDashes, OnlyTheFirstAndTheLastDashTouchTheEndsOfTheLine)
{
    Polylines dashes;
    cutDashes(polylineOf({{0, 0}, {11, 0}}, false), DashPattern(kDash, 0, 1), kEverywhere, dashes);

    ASSERT_EQ(dashes.figures().size(), 3u);
    EXPECT_TRUE(dashes.figures()[0].atStart && !dashes.figures()[0].atEnd);
    EXPECT_TRUE(!dashes.figures()[1].atStart && !dashes.figures()[1].atEnd);
}

} // namespace
} // namespace vq::test::dashesTests
