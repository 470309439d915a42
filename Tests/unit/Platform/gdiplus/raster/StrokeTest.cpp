// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/Stroke.h"

#include "unit/Platform/gdiplus/raster/RasterSupport.h"

#include <gtest/gtest.h>

#include <numbers>

namespace vq::test::strokeTests {
namespace {

constexpr Bounds kEverywhere{-1e9, -1e9, 1e9, 1e9};

Polylines stroke(const Polylines& lines, const StrokeStyle& style)
{
    Polylines outline;
    Stroker().stroke(lines, style, kEverywhere, outline);
    return outline;
}

StrokeStyle styleOf(double width)
{
    StrokeStyle style;
    style.width = width;
    return style;
}

TEST(Stroke, AStraightLineIsItsRectangle)
{
    const Polylines outline = stroke(polylineOf({{5, 5}, {35, 5}}, false), styleOf(10));

    EXPECT_DOUBLE_EQ(signedArea(outline), 300);
    const Bounds bounds = outline.bounds();
    EXPECT_EQ(bounds.left, 5);
    EXPECT_EQ(bounds.right, 35);
    EXPECT_EQ(bounds.top, 0);
    EXPECT_EQ(bounds.bottom, 10);
}

TEST(Stroke, AClosedSquareIsARing)
{
    for (const bool clockwise : {false, true}) {
        const Polylines square = clockwise ? polylineOf({{0, 0}, {20, 0}, {20, 20}, {0, 20}}, true)
                                           : polylineOf({{0, 0}, {0, 20}, {20, 20}, {20, 0}}, true);
        EXPECT_NEAR(signedArea(stroke(square, styleOf(4))), 24 * 24 - 16 * 16, 1e-9);
    }
}

TEST(Stroke, AMitredCornerIsPointedUpToTheLimitAndCutThere)
{
    const Polylines corner = polylineOf({{0, 0}, {20, 0}, {20, 20}}, false);
    EXPECT_NEAR(stroke(corner, styleOf(4)).bounds().right, 22, 1e-9);
    EXPECT_NEAR(stroke(corner, styleOf(4)).bounds().top, -2, 1e-9);
    EXPECT_NEAR(signedArea(stroke(corner, styleOf(4))), 160, 1e-9); // 80 + 80 and two squares that overlap by two

    // Two degrees: the point would be 57 widths long.
    const Polylines sharp = polylineOf({{0, 0}, {100, 0}, {0, 100 * std::tan(2 * std::numbers::pi / 180)}}, false);
    EXPECT_NEAR(stroke(sharp, styleOf(2)).bounds().right, 110, 0.1);
    StrokeStyle bevelled = styleOf(2);
    bevelled.corner = Corner::MiterOrBevel;
    EXPECT_LT(stroke(sharp, bevelled).bounds().right, 101);
    bevelled.corner = Corner::Bevel;
    EXPECT_LT(stroke(corner, bevelled).bounds().right, 21.01);
}

TEST(Stroke, ALineThatTurnsBackHasNoPoint)
{
    const Bounds bounds = stroke(polylineOf({{0, 0}, {20, 0}, {5, 0}}, false), styleOf(4)).bounds();

    EXPECT_NEAR(bounds.right, 20, 1e-9);
    EXPECT_NEAR(bounds.left, 0, 1e-9);
}

TEST(Stroke, RoundCornersAndEndsAreCircles)
{
    StrokeStyle style = styleOf(10);
    style.start = style.end = LineEnd::Round;
    style.corner = Corner::Round;

    EXPECT_NEAR(signedArea(stroke(polylineOf({{0, 0}, {30, 0}}, false), style)), 300 + 25 * std::numbers::pi, 0.1);
    EXPECT_NEAR(stroke(polylineOf({{0, 0}, {30, 0}, {30, 30}}, false), style).bounds().right, 35, 0.01);
}

TEST(Stroke, SquareEndsReachHalfAWidthBeyondTheLine)
{
    StrokeStyle style = styleOf(10);
    style.start = LineEnd::Square;
    style.end = LineEnd::Triangle;
    const Polylines outline = stroke(polylineOf({{0, 0}, {30, 0}}, false), style);

    EXPECT_DOUBLE_EQ(outline.bounds().left, -5);
    EXPECT_DOUBLE_EQ(outline.bounds().right, 35);
    EXPECT_DOUBLE_EQ(signedArea(outline), 300 + 50 + 25);
}

TEST(Stroke, AnArrowIsEquilateralAndItsBodyEndsAWidthBeforeTheTip)
{
    StrokeStyle style = styleOf(10);
    style.end = LineEnd::ArrowAnchor;
    const Polylines outline = stroke(polylineOf({{5, 10}, {50, 10}}, false), style);

    ASSERT_EQ(outline.figures().size(), 2u);
    EXPECT_NEAR(signedArea(outline.points(outline.figures()[0])), 35 * 10, 1e-9);
    const auto arrow = outline.points(outline.figures()[1]);
    ASSERT_EQ(arrow.size(), 3u);
    EXPECT_EQ(arrow[1], (PointD{50, 10}));
    EXPECT_NEAR(arrow[0].x, 32.6795, 1e-4);
    EXPECT_NEAR(arrow[2].x, 32.6795, 1e-4);
    EXPECT_NEAR(std::abs(arrow[0].y - arrow[2].y), 20, 1e-9);
    EXPECT_GT(signedArea(arrow), 0); // turns as the body does
}

TEST(Stroke, AnchorsAreTwoPixelsWideAtLeast)
{
    StrokeStyle style = styleOf(1);
    style.end = LineEnd::ArrowAnchor;
    Polylines anchors;
    Stroker().addAnchors(polylineOf({{0, 0}, {20, 0}}, false), style, anchors);

    EXPECT_NEAR(anchors.bounds().left, 20 - 3.4641, 1e-4);
    EXPECT_NEAR(anchors.bounds().bottom, 2, 1e-9);
}

TEST(Stroke, OtherAnchorsHaveTheirMeasures)
{
    const auto areaOf = [](LineEnd end) {
        StrokeStyle style = styleOf(6);
        style.start = end;
        Polylines anchors;
        Stroker().addAnchors(polylineOf({{0, 0}, {20, 0}}, false), style, anchors);
        return anchors.empty() ? 0 : signedArea(anchors);
    };

    EXPECT_NEAR(areaOf(LineEnd::SquareAnchor), 72, 1e-9);  // half side 6 / sqrt(2)
    EXPECT_NEAR(areaOf(LineEnd::DiamondAnchor), 72, 1e-9); // half diagonal 6
    EXPECT_NEAR(areaOf(LineEnd::RoundAnchor), 36 * std::numbers::pi, 0.2);
    EXPECT_EQ(areaOf(LineEnd::NoAnchor), 0);
}

TEST(Stroke, DashesKeepTheirLengthWithTheirEnds)
{
    const float dots[] = {1, 1};
    StrokeStyle style = styleOf(10);
    style.dashes = DashPattern(dots, 0, style.width);
    style.dashEnd = LineEnd::Round;
    const Polylines outline = stroke(polylineOf({{0, 0}, {90, 0}}, false), style);

    ASSERT_EQ(outline.figures().size(), 5u);
    for (std::size_t i = 0; i < 5; ++i) { // circles of the pen's width
        const auto dot = outline.points(outline.figures()[i]);
        EXPECT_NEAR(signedArea(dot), 25 * std::numbers::pi, 0.1);
        const auto [left, right] = std::ranges::minmax(dot, {}, &PointD::x);
        EXPECT_NEAR(left.x, 20.0 * static_cast<double>(i), 0.01);
        EXPECT_NEAR(right.x, 20.0 * static_cast<double>(i) + 10, 0.01);
    }
}

TEST(Stroke, PointsThatCoincideAreOne)
{
    const Polylines outline = stroke(polylineOf({{0, 0}, {0, 0}, {10, 0}, {10, 0}}, false), styleOf(2));

    EXPECT_DOUBLE_EQ(signedArea(outline), 20);
    EXPECT_TRUE(stroke(polylineOf({{3, 3}, {3, 3}}, false), styleOf(2)).empty());
    EXPECT_TRUE(stroke(polylineOf({{3, 3}, {3, 3}, {3, 3}}, true), styleOf(2)).empty());
}

TEST(Stroke, InsetMovesTheEdgesOfClosedFiguresInwards)
{
    for (const bool clockwise : {false, true}) {
        const Polylines square = clockwise ? polylineOf({{0, 0}, {20, 0}, {20, 20}, {0, 20}}, true)
                                           : polylineOf({{0, 0}, {0, 20}, {20, 20}, {20, 0}}, true);
        Polylines inside;
        Stroker().inset(square, 2, inside);
        EXPECT_NEAR(inside.bounds().left, 2, 1e-9);
        EXPECT_NEAR(inside.bounds().bottom, 18, 1e-9);
    }
    Polylines open;
    Stroker().inset(polylineOf({{0, 0}, {20, 0}}, false), 2, open);
    EXPECT_EQ(open.bounds().bottom, 0);
}

} // namespace
} // namespace vq::test::strokeTests
