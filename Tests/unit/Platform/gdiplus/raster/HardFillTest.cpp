// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/HardFill.h"

#include "Platform/gdiplus/raster/RunSet.h"
#include "unit/Platform/gdiplus/raster/RasterSupport.h"

#include <gtest/gtest.h>

#include <set>

namespace vq::test {
namespace {

using PixelSet = std::set<std::pair<int, int>>;

/// All pixels of the runs; a pixel that comes twice, or out of order, is an error.
PixelSet fill(const Polylines& shape, FillRule rule, int width, int height)
{
    PixelSet pixels;
    std::pair<int, int> previous(-1, 0);
    HardFill().fill(shape, rule, width, height, [&](int y, int first, int end) {
        EXPECT_LT(first, end);
        EXPECT_TRUE(first >= 0 && end <= width && y >= 0 && y < height);
        EXPECT_GE(std::pair(y, first), previous);
        previous = {y, end};
        for (int x = first; x < end; ++x)
            pixels.insert({x, y});
    });
    return pixels;
}

/// Winding of integer polygons around a pixel's centre: an edge counts where it passes the centre's row at or left of
/// it, downwards with its upper end and without its lower one. In whole numbers.
int windingAround(const std::vector<std::pair<int, int>>& polygon, int x, int y)
{
    int winding = 0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        auto [x0, y0] = polygon[i];
        auto [x1, y1] = polygon[(i + 1) % polygon.size()];
        const int direction = y1 > y0 ? 1 : -1;
        if (y0 > y1) {
            std::swap(x0, x1);
            std::swap(y0, y1);
        }
        if (y0 <= y && y < y1 && (y - y0) * (x1 - x0) <= (x - x0) * (y1 - y0))
            winding += direction;
    }
    return winding;
}

TEST(HardFill, FollowsTheCentreRuleForRandomPolygonsOfWholeCoordinates)
{
    constexpr int kSize = 24;
    std::mt19937 random(7);
    std::uniform_int_distribution<int> coordinate(-6, kSize + 6);
    for (int round = 0; round < 400; ++round) {
        std::vector<std::pair<int, int>> polygon(3 + static_cast<std::size_t>(round % 9));
        Polylines shape;
        for (auto& [x, y] : polygon) {
            x = coordinate(random);
            y = coordinate(random);
            shape.add({static_cast<double>(x), static_cast<double>(y)});
        }
        shape.endFigure(true);
        PixelSet alternate;
        PixelSet winding;
        for (int y = 0; y < kSize; ++y)
            for (int x = 0; x < kSize; ++x) {
                const int turns = windingAround(polygon, x, y);
                if (turns % 2 != 0)
                    alternate.insert({x, y});
                if (turns != 0)
                    winding.insert({x, y});
            }
        ASSERT_EQ(fill(shape, FillRule::Alternate, kSize, kSize), alternate) << "round " << round;
        ASSERT_EQ(fill(shape, FillRule::Winding, kSize, kSize), winding) << "round " << round;
    }
}

TEST(HardFill, LeftAndUpperEdgesBelongToTheShape)
{
    const Polylines square = polylineOf({{1, 1}, {3, 1}, {3, 3}, {1, 3}}, true);

    EXPECT_EQ(fill(square, FillRule::Alternate, 5, 5), (PixelSet{{1, 1}, {2, 1}, {1, 2}, {2, 2}}));
}

TEST(HardFill, OpenFiguresAreClosed)
{
    const Polylines open = polylineOf({{0, 0}, {4, 0}, {0, 4}}, false);
    const Polylines closed = polylineOf({{0, 0}, {4, 0}, {0, 4}}, true);

    EXPECT_EQ(fill(open, FillRule::Alternate, 5, 5), fill(closed, FillRule::Alternate, 5, 5));
}

TEST(HardFill, CoordinatesFarBeyondTheSurfaceCoverIt)
{
    const Polylines huge = polylineOf({{-1e30, -1e30}, {1e30, -1e30}, {1e30, 1e30}, {-1e30, 1e30}}, true);

    EXPECT_EQ(fill(huge, FillRule::Alternate, 4, 3).size(), 12u);
}

TEST(RunSet, PaintsEveryPixelOnce)
{
    Surface surface(40, 10);
    const Shader half = SolidShader{0x80FF0000};
    std::mt19937 random(3);
    RunSet runs;
    std::vector<Pixel> expected(surface.pixels.size());
    for (int i = 0; i < 300; ++i) {
        const int y = static_cast<int>(random() % 10);
        const int first = static_cast<int>(random() % 40);
        const int end = std::min(first + 1 + static_cast<int>(random() % 5), 40);
        runs.add(y, first, end);
        for (int x = first; x < end; ++x)
            expected[static_cast<std::size_t>(y * 40 + x)] = 0x80FF0000;
    }

    runs.paint(Painter(surface.canvas, half));
    EXPECT_EQ(surface.pixels, expected);

    runs.paint(Painter(surface.canvas, half)); // empty now
    EXPECT_EQ(surface.pixels, expected);
}

} // namespace
} // namespace vq::test
