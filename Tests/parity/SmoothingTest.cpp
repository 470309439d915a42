// SPDX-License-Identifier: MIT
/// @file
/// Smoothed shapes where every system must agree: edges on pixel edges and in pixel middles, and areas. How exact our
/// own layer is elsewhere is the subject of the coverage tests.
#include "parity/Drawn.h"
#include "parity/KnownDifferences.h"

#include <numbers>

namespace vq::test::smoothingTests {
namespace {

using namespace Gdiplus;

constexpr int kTolerance = 2;
constexpr std::uint32_t kHalfCovered = 0x80FF0000;
constexpr std::uint32_t kQuarterCovered = 0x40FF0000;

struct SmoothPicture : TestPicture
{
    SmoothPicture(int width, int height) : TestPicture(width, height)
    {
        graphics.SetSmoothingMode(SmoothingModeAntiAlias);
    }
};

TEST(SmoothedOutline, OfARectangleAtWholePixelsIsCrisp)
{
    const Pen pen{Color(kRed)};
    SmoothPicture picture(12, 12);
    EXPECT_EQ(picture.graphics.DrawRectangle(&pen, 2, 3, 4, 5), Ok);
    EXPECT_EQ(picture.find(kRed), (Found{2, 3, 6, 8, 18}));
    EXPECT_EQ(picture.find(0).count, 144 - 18);
}

TEST(SmoothedOutline, OfWidthTwoHasHalfCoveredEdges)
{
    if (differsHere("smoothed outlines"))
        return;
    const Pen pen{Color(kRed), 2};
    SmoothPicture picture(20, 20);
    picture.graphics.DrawRectangle(&pen, 5, 5, 10, 10);
    const int y = 10;
    for (const int x : {5, 15})
        EXPECT_THAT(picture.at(x, y), Near(kRed, kTolerance)) << x;
    for (const int x : {4, 6, 14, 16})
        EXPECT_THAT(picture.at(x, y), Near(kHalfCovered, kTolerance)) << x;
    for (const int x : {3, 7, 13, 17})
        EXPECT_EQ(picture.at(x, y), Argb{0}) << x;
    EXPECT_THAT(picture.at(4, 4), Near(kQuarterCovered, kTolerance));
    EXPECT_THAT(picture.at(5, 5), Near(kRed, kTolerance));
    EXPECT_THAT(picture.at(6, 6), Near(0xC0FF0000, kTolerance)); // all but a quarter
}

TEST(SmoothedLine, EndsInTheMiddleOfPixels)
{
    if (differsHere("smoothed outlines"))
        return;
    const Pen pen{Color(kRed)};
    SmoothPicture picture(12, 12);
    picture.graphics.DrawLine(&pen, 2, 3, 8, 3);
    EXPECT_EQ(columnsDrawn(picture, 3), fromTo(2, 8));
    EXPECT_EQ(pixelsDrawn(picture), 7);
    EXPECT_THAT(picture.at(2, 3), Near(kHalfCovered, kTolerance));
    EXPECT_THAT(picture.at(8, 3), Near(kHalfCovered, kTolerance));
    for (int x = 3; x <= 7; ++x)
        EXPECT_EQ(picture.at(x, 3), Argb{kRed}) << x;
}

TEST(SmoothedLine, HalfWayBetweenRowsCoversHalfOfBoth)
{
    if (differsHere("smoothed outlines"))
        return;
    const Pen pen{Color(kRed)};
    SmoothPicture picture(12, 12);
    picture.graphics.DrawLine(&pen, 1.5f, 3.5f, 8.5f, 3.5f);
    for (const int y : {3, 4}) {
        EXPECT_EQ(columnsDrawn(picture, y), fromTo(2, 8)) << y;
        for (int x = 2; x <= 8; ++x)
            EXPECT_THAT(picture.at(x, y), Near(kHalfCovered, kTolerance)) << x << ", " << y;
    }
    EXPECT_EQ(pixelsDrawn(picture), 14);
}

TEST(SmoothedDashes, OfOnePixelAreAnEvenLineOfHalfCoverage)
{
    if (differsHere("smoothed outlines"))
        return;
    const REAL ones[] = {1, 1};
    Pen array{Color(kRed)};
    array.SetDashPattern(ones, 2);
    Pen dot{Color(kRed)};
    dot.SetDashStyle(DashStyleDot);
    for (const Pen* pen : {&array, &dot}) {
        SmoothPicture picture(14, 12);
        picture.graphics.DrawLine(pen, 2, 3, 10, 3);
        EXPECT_EQ(columnsDrawn(picture, 3), fromTo(2, 9));
        for (int x = 2; x <= 9; ++x)
            EXPECT_THAT(picture.at(x, 3), Near(kHalfCovered, kTolerance)) << x;
        EXPECT_EQ(pixelsDrawn(picture), 8);
    }
}

TEST(SmoothedDashes, OfTwoAndThreeAreHalfFullHalf)
{
    if (differsHere("smoothed outlines"))
        return;
    const REAL dashes[] = {2, 3};
    Pen pen{Color(kRed)};
    pen.SetDashPattern(dashes, 2);
    SmoothPicture picture(24, 8);
    picture.graphics.DrawLine(&pen, 2, 3, 17, 3);
    const std::uint32_t period[] = {kHalfCovered, kRed, kHalfCovered, 0, 0};
    for (int x = 2; x < 17; ++x)
        EXPECT_THAT(picture.at(x, 3), Near(period[(x - 2) % 5], kTolerance)) << x;
}

TEST(SmoothedFill, OfAPolygonCoversLikeARectangle)
{
    if (differsHere("smoothed outlines"))
        return;
    const SolidBrush brush{Color(kRed)};
    SmoothPicture expected(12, 12);
    expected.graphics.FillRectangle(&brush, 2, 3, 4, 5);
    EXPECT_THAT(expected.at(2, 3), Near(kQuarterCovered, kTolerance));
    const Point corners[] = {{2, 3}, {6, 3}, {6, 8}, {2, 8}};
    SmoothPicture polygon(12, 12);
    EXPECT_EQ(polygon.graphics.FillPolygon(&brush, corners, 4), Ok);
    GraphicsPath path;
    path.AddRectangle(Rect(2, 3, 4, 5));
    SmoothPicture filled(12, 12);
    EXPECT_EQ(filled.graphics.FillPath(&brush, &path), Ok);
    for (int y = 0; y < 12; ++y)
        for (int x = 0; x < 12; ++x) {
            EXPECT_THAT(polygon.at(x, y), Near(expected.at(x, y).value, kTolerance)) << x << ", " << y;
            EXPECT_THAT(filled.at(x, y), Near(expected.at(x, y).value, kTolerance)) << x << ", " << y;
        }
}

/// The sum of all coverages in pixels.
double areaOf(const TestPicture& picture)
{
    double sum = 0;
    for (const Argb pixel : picture.all())
        sum += pixel.value >> 24;
    return sum / 255;
}

TEST(SmoothedShapes, CoverTheirArea)
{
    if (differsHere("smoothed outlines"))
        return;
    constexpr double kPi = std::numbers::pi;
    const SolidBrush brush{Color(kRed)};
    SmoothPicture ellipse(60, 60);
    ellipse.graphics.FillEllipse(&brush, 3.25f, 5.5f, 50.0f, 36.0f);
    EXPECT_NEAR(areaOf(ellipse), kPi * 25 * 18, 0.01 * kPi * 25 * 18);

    const Pen pen{Color(kRed), 6};
    SmoothPicture ring(60, 60);
    ring.graphics.DrawEllipse(&pen, 6, 6, 40, 40);
    EXPECT_NEAR(areaOf(ring), 2 * kPi * 20 * 6, 0.01 * 2 * kPi * 20 * 6);

    const Point corners[] = {{3, 4}, {50, 11}, {20, 55}};
    SmoothPicture triangle(60, 60);
    triangle.graphics.FillPolygon(&brush, corners, 3);
    EXPECT_NEAR(areaOf(triangle), 1139, 0.01 * 1139); // (47 * 51 - 17 * 7) / 2

    SmoothPicture line(60, 60);
    line.graphics.DrawLine(&pen, 10, 12, 40, 52);
    EXPECT_NEAR(areaOf(line), 50 * 6, 0.01 * 50 * 6);
}

TEST(SmoothedShapes, OfATranslucentColourNeverExceedIt)
{
    const Pen pen{Color(0x80FF0000), 2};
    const Point corners[] = {{3, 4}, {50, 11}, {20, 55}, {40, 3}};
    SmoothPicture picture(60, 60);
    picture.graphics.DrawPolygon(&pen, corners, 4);
    for (const Argb pixel : picture.all())
        EXPECT_LE(pixel.value >> 24, 0x80u);
    EXPECT_GT(picture.find(0x80FF0000).count, 0);
}

TEST(SmoothedShapes, AreTheSameUnderHighQuality)
{
    const SolidBrush brush{Color(kRed)};
    const Pen pen{Color(kRed), 3};
    SmoothPicture expected(40, 40);
    TestPicture picture(40, 40);
    picture.graphics.SetSmoothingMode(SmoothingModeHighQuality);
    for (TestPicture* each : {static_cast<TestPicture*>(&expected), &picture}) {
        each->graphics.FillEllipse(&brush, 3, 4, 20, 13);
        each->graphics.DrawLine(&pen, 5, 30, 36, 22);
    }
    EXPECT_EQ(picture.all(), expected.all());
}

TEST(Smoothing, OffDrawsWholePixelsOnly)
{
    const SolidBrush brush{Color(kRed)};
    const Pen pen{Color(kRed), 2.7f};
    for (const auto mode : {SmoothingModeNone, SmoothingModeDefault, SmoothingModeHighSpeed}) {
        TestPicture picture(40, 40);
        picture.graphics.SetSmoothingMode(mode);
        picture.graphics.FillEllipse(&brush, 3.3f, 4.6f, 20.1f, 13.2f);
        picture.graphics.DrawLine(&pen, 5.2f, 30.7f, 36.1f, 22.4f);
        expectOnly(picture, kRed);
    }
}

TEST(PixelOffset, OfHalfAPixelMakesSmoothedFillsCrisp)
{
    if (differsHere("smoothed outlines"))
        return;
    const SolidBrush brush{Color(kRed)};
    const Point corners[] = {{2, 3}, {6, 3}, {6, 8}, {2, 8}};
    for (const auto mode : {PixelOffsetModeHalf, PixelOffsetModeHighQuality}) {
        SmoothPicture picture(12, 12);
        picture.graphics.SetPixelOffsetMode(mode);
        picture.graphics.FillPolygon(&brush, corners, 4);
        EXPECT_EQ(picture.find(kRed), (Found{2, 3, 5, 7, 20})) << mode;
        EXPECT_EQ(pixelsDrawn(picture), 20) << mode;
    }
}

} // namespace
} // namespace vq::test::smoothingTests
