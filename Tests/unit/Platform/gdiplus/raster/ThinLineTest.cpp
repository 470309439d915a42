// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/ThinLine.h"
#include "unit/Platform/gdiplus/raster/RasterSupport.h"

#include <gtest/gtest.h>

#include <set>

namespace vq::test {
namespace {

using PixelSet = std::set<std::pair<int, int>>;

PixelSet thin(const Polylines& lines, int width = 64, int height = 64, const DashPattern& dashes = {})
{
    PixelSet pixels;
    drawThin(lines, dashes, width, height, [&](int y, int first, int end) {
        for (int x = first; x < end; ++x)
            pixels.insert({x, y});
    });
    return pixels;
}

TEST(ThinLine, LightsBothEndsAndTheNearestPixelBetween)
{
    const PixelSet pixels = thin(polylineOf({{1, 1}, {9, 4}}, false));

    // 1 + 3/8 (x - 1), halves upwards.
    EXPECT_EQ(pixels, (PixelSet{{1, 1}, {2, 1}, {3, 2}, {4, 2}, {5, 3}, {6, 3}, {7, 3}, {8, 4}, {9, 4}}));
}

TEST(ThinLine, IsTheSameFromBothEnds)
{
    std::mt19937 random(11);
    std::uniform_real_distribution<double> coordinate(-20, 80);
    for (int round = 0; round < 300; ++round) {
        PointD from{coordinate(random), coordinate(random)};
        PointD to{coordinate(random), coordinate(random)};
        if (round % 2 == 0) {
            from = {std::round(from.x), std::round(from.y)};
            to = {std::round(to.x), std::round(to.y)};
        }
        ASSERT_EQ(thin(polylineOf({from, to}, false)), thin(polylineOf({to, from}, false)));
    }
}

TEST(ThinLine, IsTheNearestPixelOfEveryPositionOfTheLongerAxis)
{
    std::mt19937 random(12);
    std::uniform_int_distribution<int> coordinate(0, 63);
    for (int round = 0; round < 300; ++round) {
        const int x0 = coordinate(random), y0 = coordinate(random), x1 = coordinate(random), y1 = coordinate(random);
        const int dx = x1 - x0, dy = y1 - y0;
        if (dx == 0 && dy == 0)
            continue;
        PixelSet expected;
        const auto nearest = [](int twiceNumerator, int denominator) { // of halves, upwards
            return static_cast<int>(std::floor((twiceNumerator / 2.0) / denominator + 0.5));
        };
        if (std::abs(dx) >= std::abs(dy))
            for (int x = std::min(x0, x1); x <= std::max(x0, x1); ++x)
                expected.insert({x, nearest(2 * (y0 * dx + (x - x0) * dy), dx)});
        else
            for (int y = std::min(y0, y1); y <= std::max(y0, y1); ++y)
                expected.insert({nearest(2 * (x0 * dy + (y - y0) * dx), dy), y});
        ASSERT_EQ(thin(polylineOf({{x0 + 0.0, y0 + 0.0}, {x1 + 0.0, y1 + 0.0}}, false)), expected);
    }
}

TEST(ThinLine, IsOnASmallSurfaceWhatItIsOnALargeOne)
{
    std::mt19937 random(13);
    std::uniform_real_distribution<double> coordinate(-100, 150);
    const float lengths[] = {3, 1.5f};
    for (int round = 0; round < 200; ++round) {
        const DashPattern dashes = round % 2 == 0 ? DashPattern() : DashPattern(lengths, 0, 1);
        const Polylines line = polylineOf(
            {{coordinate(random), coordinate(random)}, {coordinate(random), coordinate(random)}, {30, 30}}, true);
        PixelSet inside;
        for (const auto& [x, y] : thin(line.movedBy({200, 200}), 600, 600, dashes))
            if (x >= 200 && x < 240 && y >= 200 && y < 230)
                inside.insert({x - 200, y - 200});
        ASSERT_EQ(thin(line, 40, 30, dashes), inside) << "round " << round;
    }
}

TEST(ThinLine, APointIsNothing)
{
    EXPECT_TRUE(thin(polylineOf({{5, 5}, {5, 5}}, false)).empty());
    EXPECT_TRUE(thin(polylineOf({{5, 5}}, true)).empty());
}

TEST(ThinLine, AnEndlessLineCostsOnlyWhatIsSeen)
{
    EXPECT_EQ(thin(polylineOf({{-1e30, 7}, {1e30, 7}}, false), 10, 10).size(), 10u);
}

TEST(ThinLine, DashesBeginAtTheFirstPointAndCarryOnAroundCorners)
{
    const float lengths[] = {2, 3};
    const PixelSet pixels = thin(polylineOf({{0, 0}, {6, 0}, {6, 6}}, false), 10, 10, DashPattern(lengths, 0, 1));

    EXPECT_EQ(pixels, (PixelSet{{0, 0}, {1, 0}, {5, 0}, {6, 0}, {6, 4}, {6, 5}}));
}

} // namespace
} // namespace vq::test
