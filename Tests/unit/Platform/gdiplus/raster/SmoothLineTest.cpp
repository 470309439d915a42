// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/SmoothLine.h"
#include "unit/Platform/gdiplus/raster/RasterSupport.h"

#include <gtest/gtest.h>

namespace vq::test::smoothLineTests {
namespace {

constexpr int kSize = 48;

std::vector<PointD> bodyOf(PointD from, PointD to, double width)
{
    const PointD along = (to - from) * (1 / lengthOf(to - from));
    const PointD side = PointD{-along.y, along.x} * (width / 2);
    return {from + side, to + side, to - side, from - side};
}

void expectExact(PointD from, PointD to, double width, const std::string& what)
{
    Surface surface(kSize, kSize);
    SmoothLine().draw(from, to, width, Painter(surface.canvas, surface.black));
    const auto body = bodyOf(from, to, width);
    for (int y = 0; y < kSize; ++y)
        for (int x = 0; x < kSize; ++x)
            ASSERT_NEAR(surface.coverage(x, y), 255 * areaInPixel(body, x, y), 1.01)
                << what << ": (" << from.x << ", " << from.y << ") to (" << to.x << ", " << to.y << "), width " << width
                << ", pixel " << x << ", " << y;
}

TEST(SmoothLine, CoversTheExactAreaWithinALevelInRandomDirections)
{
    std::mt19937 random(31);
    std::uniform_real_distribution<double> coordinate(-15, kSize + 15);
    std::uniform_real_distribution<double> width(1, 2.5);
    for (int round = 0; round < 400 && !testing::Test::HasFatalFailure(); ++round)
        expectExact({coordinate(random), coordinate(random)}, {coordinate(random), coordinate(random)},
                    round % 2 == 0 ? 1 : width(random), "random");
}

TEST(SmoothLine, CoversTheExactAreaOfShortAndOfSpecialLines)
{
    std::mt19937 random(32);
    std::uniform_real_distribution<double> offset(-3, 3);
    std::uniform_real_distribution<double> place(10, 30);
    for (int round = 0; round < 300 && !testing::Test::HasFatalFailure(); ++round) {
        const PointD from{place(random), place(random)};
        expectExact(from, from + PointD{offset(random), offset(random)}, 1 + round % 3 * 0.7, "short");
    }
    for (const PointD& to : {PointD{40, 8}, {8, 40}, {40, 40}, {8, 8.001}, {40.5, 8.5}, {39, 8.01}})
        expectExact({8, 8}, to, 1, "special");
    expectExact({8, 40}, {40, 8}, 1, "diagonal");
}

TEST(SmoothLine, WritesNothingThatIsNotCovered)
{
    Surface surface(kSize, kSize);
    std::ranges::fill(surface.pixels, 0x00123456); // transparent, with colour bytes
    SmoothLine().draw({5, 5}, {40, 20}, 1, Painter(surface.canvas, surface.black));
    const auto body = bodyOf({5, 5}, {40, 20}, 1);
    for (int y = 0; y < kSize; ++y)
        for (int x = 0; x < kSize; ++x)
            if (areaInPixel(body, x, y) == 0) {
                ASSERT_EQ(surface.canvas.view.row(y)[x], 0x00123456u) << x << ", " << y;
            }
}

TEST(SmoothLine, ComesOutTheSameWhereRunsArePainted)
{
    Surface direct(kSize, kSize);
    Surface painted(kSize, kSize);
    std::ranges::fill(direct.pixels, 0xFF204060);
    painted.pixels = direct.pixels;
    painted.canvas.view.top = reinterpret_cast<std::uint8_t*>(painted.pixels.data());
    painted.canvas.alpha = SurfaceAlpha::Opaque; // not a plain surface: the way through runs
    const Shader colour = SolidShader{0xB0FF8000};
    std::mt19937 random(33);
    std::uniform_real_distribution<double> coordinate(-5, kSize + 5);
    SmoothLine line;
    for (int round = 0; round < 60; ++round) {
        const PointD from{coordinate(random), coordinate(random)};
        const PointD to{coordinate(random), coordinate(random)};
        line.draw(from, to, 1, Painter(direct.canvas, colour));
        line.draw(from, to, 1, Painter(painted.canvas, colour));
    }
    EXPECT_EQ(direct.pixels, painted.pixels);
}

TEST(SmoothLine, LeavesWideAndFarLinesToOutlines)
{
    EXPECT_TRUE(SmoothLine::canDraw({0, 0}, {1e7, 5}, 2.5));
    EXPECT_FALSE(SmoothLine::canDraw({0, 0}, {1e9, 5}, 1));
    EXPECT_FALSE(SmoothLine::canDraw({0, 0}, {10, 5}, 3));
}

} // namespace
} // namespace vq::test::smoothLineTests
