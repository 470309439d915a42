// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/SmoothFill.h"

#include "Platform/gdiplus/raster/ConvexPolygon.h"
#include "Platform/gdiplus/raster/ShapeRenderer.h"
#include "unit/Platform/gdiplus/raster/RasterSupport.h"

#include <gtest/gtest.h>

namespace vq::test::smoothFillTests {
namespace {

constexpr int kSize = 40;

TEST(SmoothFill, CoversRandomTrianglesByTheirExactArea)
{
    std::mt19937 random(41);
    std::uniform_real_distribution<double> coordinate(-20, kSize + 20);
    SmoothFill fill;
    for (int round = 0; round < 200; ++round) {
        const std::vector<PointD> corners{{coordinate(random), coordinate(random)},
                                          {coordinate(random), coordinate(random)},
                                          {coordinate(random), coordinate(random)}};
        Surface surface(kSize, kSize);
        fill.fill(polylineOf({corners[0], corners[1], corners[2]}, true),
                  round % 2 == 0 ? FillRule::Alternate : FillRule::Winding, Painter(surface.canvas, surface.black));
        for (int y = 0; y < kSize; ++y)
            for (int x = 0; x < kSize; ++x)
                ASSERT_NEAR(surface.coverage(x, y), 255 * areaInPixel(corners, x, y), 2)
                    << round << ": " << x << ", " << y;
    }
}

TEST(SmoothFill, HalfAndQuarterPixelsAreRoundedHalfUp)
{
    Surface surface(6, 6);
    SmoothFill().fill(polylineOf({{1, 1}, {4, 1}, {4, 4}, {1, 4}}, true), FillRule::Winding,
                      Painter(surface.canvas, surface.black));

    EXPECT_EQ(surface.coverage(1, 1), 64);
    EXPECT_EQ(surface.coverage(2, 1), 128);
    EXPECT_EQ(surface.coverage(2, 2), 255);
    EXPECT_EQ(surface.coverage(5, 5), 0);
}

TEST(SmoothFill, WhatIsCoveredTwiceIsAHoleOrFullByTheRule)
{
    Polylines twice = polylineOf({{1, 1}, {9, 1}, {9, 9}, {1, 9}}, true);
    for (const PointD& point : {PointD{3, 3}, {7, 3}, {7, 7}, {3, 7}})
        twice.add(point);
    twice.endFigure(true);
    Surface alternate(11, 11);
    Surface winding(11, 11);
    SmoothFill().fill(twice, FillRule::Alternate, Painter(alternate.canvas, alternate.black));
    SmoothFill().fill(twice, FillRule::Winding, Painter(winding.canvas, winding.black));

    EXPECT_EQ(alternate.coverage(5, 5), 0);
    EXPECT_EQ(alternate.coverage(3, 5), 128);
    EXPECT_EQ(winding.coverage(5, 5), 255);
    EXPECT_EQ(winding.coverage(3, 5), 255);
}

TEST(SmoothFill, ShapesFarBeyondTheSurfaceAreCutToIt)
{
    Surface surface(5, 4);
    SmoothFill().fill(polylineOf({{-1e12, -1e12}, {1e12, -1e12}, {1e12, 1e12}, {-1e12, 1e12}}, true), FillRule::Winding,
                      Painter(surface.canvas, surface.black));

    EXPECT_EQ(surface.picture(), std::vector<std::string>(4, "#####"));
}

TEST(SmoothFill, ComesOutTheSameWhereRunsArePainted)
{
    Surface direct(kSize, kSize);
    Surface painted(kSize, kSize);
    std::ranges::fill(direct.pixels, 0xFF204060);
    std::ranges::fill(painted.pixels, 0xFF204060);
    painted.canvas.alpha = SurfaceAlpha::Opaque; // not a plain surface: the way through runs
    const Shader colour = SolidShader{0xB0FF8000};
    std::mt19937 random(43);
    std::uniform_real_distribution<double> coordinate(-5, kSize + 5);
    SmoothFill fill;
    for (int round = 0; round < 60; ++round) {
        Polylines shape;
        for (int i = 0; i < 7; ++i)
            shape.add({coordinate(random), coordinate(random)});
        shape.endFigure(true);
        fill.fill(shape, FillRule::Alternate, Painter(direct.canvas, colour));
        fill.fill(shape, FillRule::Alternate, Painter(painted.canvas, colour));
    }
    EXPECT_EQ(direct.pixels, painted.pixels);
}

TEST(ConvexPolygon, IsCutPieceByPiece)
{
    ConvexPolygon square({PointD{0, 0}, PointD{4, 0}, PointD{4, 4}, PointD{0, 4}});
    EXPECT_EQ(square.area(), 16);

    EXPECT_EQ(square.takeColumnsUpTo(1).area(), 4);
    ConvexPolygon column = square.takeColumnsUpTo(2);
    EXPECT_EQ(column.area(), 4);
    EXPECT_TRUE(column.takeRowsUpTo(-1).empty());
    EXPECT_EQ(column.takeRowsUpTo(3).area(), 3);
    EXPECT_EQ(column.takeRowsUpTo(9).area(), 1);
    EXPECT_TRUE(column.empty());
    EXPECT_EQ(square.area(), 8);
}

TEST(ConvexPolygon, KeepsItsAreaInAllItsPieces)
{
    ConvexPolygon rest({PointD{0.3, 5.1}, PointD{7.2, 0.4}, PointD{7.9, 1.6}, PointD{1.0, 6.3}});
    const double whole = rest.area();
    double sum = 0;
    for (int x = 0; x <= 8; ++x) {
        ConvexPolygon column = rest.takeColumnsUpTo(x + 0.5);
        for (int y = 0; y <= 7; ++y) {
            const double area = column.takeRowsUpTo(y + 0.5).area();
            EXPECT_LE(area, 1 + 1e-12);
            sum += area;
        }
    }
    EXPECT_NEAR(sum, whole, 1e-12);
}

TEST(ShapeRenderer, PaintsEachPixelOfAStrokeOnce)
{
    for (const bool smooth : {false, true})
        for (const double width : {1.0, 2.0, 5.0}) {
            Surface surface(kSize, kSize);
            surface.canvas.smooth = smooth;
            const Shader half = SolidShader{0x80FFFFFF};
            const Polylines crossing = polylineOf({{5, 5}, {35, 35}, {35, 5}, {5, 35}, {5, 5}, {35, 35}}, false);
            StrokeStyle style;
            style.width = width;
            ShapeRenderer().stroke(Painter(surface.canvas, half), crossing, style);
            for (const Pixel pixel : surface.pixels)
                ASSERT_LE(pixel >> 24, 0x80u) << width;
            EXPECT_EQ(surface.coverage(20, 20), 0x80);
        }
}

TEST(ShapeRenderer, StrokesInsideSmallFiguresFillThem)
{
    Surface surface(12, 12);
    StrokeStyle style;
    style.width = 4;
    ShapeRenderer().strokeInside(Painter(surface.canvas, surface.black),
                                 polylineOf({{2, 2}, {8, 2}, {8, 8}, {2, 8}}, true), style);

    EXPECT_EQ(std::ranges::count(surface.pixels, 0xFF000000), 36);
    EXPECT_EQ(surface.coverage(2, 2), 255);
    EXPECT_EQ(surface.coverage(8, 8), 0);
}

TEST(ShapeRenderer, TakesNothingFromAnEmptyShapeOrOneOutside)
{
    Surface surface(8, 8);
    ShapeRenderer renderer;
    const Painter painter(surface.canvas, surface.black);
    renderer.fill(painter, Polylines(), FillRule::Winding);
    renderer.stroke(painter, Polylines(), {});
    renderer.strokeInside(painter, Polylines(), {});
    renderer.stroke(painter, polylineOf({{500, 500}, {600, 600}}, false), {});
    renderer.fill(painter, polylineOf({{-50, -50}, {-20, -50}, {-20, -20}}, true), FillRule::Winding);

    EXPECT_EQ(std::ranges::count(surface.pixels, 0u), 64);
}

} // namespace
} // namespace vq::test::smoothFillTests
