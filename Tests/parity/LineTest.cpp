// SPDX-License-Identifier: MIT
#include "parity/Drawn.h"

namespace vq::test {
namespace {

using namespace Gdiplus;

TEST(ThinLine, IncludesBothOfItsEnds)
{
    const Pen pen{Color(kRed)};
    TestPicture forth(12, 12);
    EXPECT_EQ(forth.graphics.DrawLine(&pen, 2, 3, 8, 3), Ok);
    EXPECT_EQ(forth.find(kRed), (Found{2, 3, 8, 3, 7}));

    TestPicture back(12, 12);
    EXPECT_EQ(back.graphics.DrawLine(&pen, 8, 3, 2, 3), Ok);
    EXPECT_EQ(back.all(), forth.all());

    TestPicture upright(12, 12);
    upright.graphics.DrawLine(&pen, 3, 2, 3, 8);
    EXPECT_EQ(upright.find(kRed), (Found{3, 2, 3, 8, 7}));
}

TEST(ThinLine, IsTheSameInEveryFormOfTheCall)
{
    const Pen pen{Color(kRed)};
    TestPicture expected(12, 12);
    expected.graphics.DrawLine(&pen, 1, 2, 10, 8);

    TestPicture real(12, 12);
    EXPECT_EQ(real.graphics.DrawLine(&pen, 1.0f, 2.0f, 10.0f, 8.0f), Ok);
    EXPECT_EQ(real.all(), expected.all());
    TestPicture points(12, 12);
    EXPECT_EQ(points.graphics.DrawLine(&pen, Point(1, 2), Point(10, 8)), Ok);
    EXPECT_EQ(points.all(), expected.all());
    TestPicture realPoints(12, 12);
    EXPECT_EQ(realPoints.graphics.DrawLine(&pen, PointF(1, 2), PointF(10, 8)), Ok);
    EXPECT_EQ(realPoints.all(), expected.all());
    TestPicture lines(12, 12);
    const Point two[] = {{1, 2}, {10, 8}};
    EXPECT_EQ(lines.graphics.DrawLines(&pen, two, 2), Ok);
    EXPECT_EQ(lines.all(), expected.all());
}

TEST(ThinLine, OfAWidthBelowOneIsOnePixelWide)
{
    for (const REAL width : {0.0f, 0.1f, 0.5f, 1.0f}) {
        const Pen pen{Color(kRed), width};
        TestPicture picture(12, 12);
        EXPECT_EQ(picture.graphics.DrawLine(&pen, 2, 3, 8, 3), Ok);
        EXPECT_EQ(picture.find(kRed), (Found{2, 3, 8, 3, 7})) << width;
    }
}

TEST(ThinLine, TakesTheNearestPixelOfEveryColumn)
{
    const Pen pen{Color(kRed)};
    TestPicture picture(12, 12);
    picture.graphics.DrawLine(&pen, 1, 1, 9, 4);
    const Places nearest[] = {{}, {1}, {1}, {2}, {2}, {}, {3}, {3}, {4}, {4}, {}, {}};
    for (const int x : {0, 1, 2, 3, 4, 6, 7, 8, 9, 10, 11})
        EXPECT_EQ(rowsDrawn(picture, x), nearest[x]) << x;
    // Half way between rows 2 and 3: only Windows could say which of them.
    EXPECT_THAT(rowsDrawn(picture, 5), testing::AnyOf(Places{2}, Places{3}));
}

/// One pixel at every step of the longer axis, at most half a pixel from the true line.
void expectNearest(const TestPicture& picture, int x, int y, int dx, int dy)
{
    const int steps = std::max(std::abs(dx), std::abs(dy));
    const bool isFlat = std::abs(dx) == steps;
    EXPECT_EQ(pixelsDrawn(picture), steps + 1) << dx << ", " << dy;
    for (int i = 0; i <= steps; ++i) {
        const int along = isFlat ? x + i * dx / steps : y + i * dy / steps;
        const Places across = isFlat ? rowsDrawn(picture, along) : columnsDrawn(picture, along);
        const double exact = isFlat ? y + static_cast<double>(i * dy) / steps : x + static_cast<double>(i * dx) / steps;
        ASSERT_EQ(across.size(), 1u) << dx << ", " << dy << " at " << along << '\n' << drawn(picture);
        EXPECT_LE(std::abs(across[0] - exact), 0.5) << dx << ", " << dy << " at " << along;
    }
}

TEST(ThinLine, IsNearestToTheTrueLineInEveryDirection)
{
    const Pen pen{Color(kRed)};
    constexpr int kLongest = 12;
    for (int dy = -kLongest; dy <= kLongest; ++dy)
        for (int dx = -kLongest; dx <= kLongest; ++dx) {
            if (dx == 0 && dy == 0)
                continue;
            TestPicture picture(31, 31);
            picture.graphics.DrawLine(&pen, 15, 15, 15 + dx, 15 + dy);
            expectNearest(picture, 15, 15, dx, dy);
        }
}

TEST(ThinLine, IsClippedAtTheEdgesWithoutMoving)
{
    const Pen pen{Color(kRed)};
    TestPicture picture(8, 8);
    EXPECT_EQ(picture.graphics.DrawLine(&pen, -1000, 3, 1000, 3), Ok);
    EXPECT_EQ(picture.find(kRed), (Found{0, 3, 7, 3, 8}));
    TestPicture diagonal(8, 8);
    EXPECT_EQ(diagonal.graphics.DrawLine(&pen, -1000, -1000, 1000, 1000), Ok);
    EXPECT_EQ(diagonal.find(kRed).count, 8);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(diagonal.at(i, i), Argb{kRed});
    TestPicture outside(8, 8);
    EXPECT_EQ(outside.graphics.DrawLine(&pen, -10, -5, 20, -5), Ok);
    EXPECT_EQ(pixelsDrawn(outside), 0);
}

TEST(ThinLine, FromAPointToItselfIsNothing)
{
    for (const REAL width : {0.0f, 1.0f, 2.0f, 5.0f}) {
        const Pen pen{Color(kRed), width};
        TestPicture picture(12, 12);
        EXPECT_EQ(picture.graphics.DrawLine(&pen, 5, 5, 5, 5), Ok);
        EXPECT_EQ(pixelsDrawn(picture), 0) << width;
    }
}

TEST(Polyline, HasThePixelsThatWindowsDraws)
{
    // SHA-256 of the 100 x 100 pixels as published for Windows.
    constexpr auto kPublished = "6f7924aedab5f35a76a1c19f90b160146e122c9ed31acfac9762267a23945e78";
    const Pen pen{Color(0xFFFFFFFF)};
    const Point points[] = {{1, 1}, {1, 10}, {20, 5}, {25, 30}};

    TestPicture together(100, 100);
    EXPECT_EQ(together.graphics.DrawLines(&pen, points, 4), Ok);
    EXPECT_EQ(digestOf(together), kPublished);

    TestPicture apart(100, 100);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(apart.graphics.DrawLine(&pen, points[i], points[i + 1]), Ok);
    EXPECT_EQ(digestOf(apart), kPublished);

    TestPicture real(100, 100);
    const PointF realPoints[] = {{1, 1}, {1, 10}, {20, 5}, {25, 30}};
    EXPECT_EQ(real.graphics.DrawLines(&pen, realPoints, 4), Ok);
    EXPECT_EQ(digestOf(real), kPublished);
}

TEST(WideLine, IsARectangleWithoutItsLastColumn)
{
    const struct
    {
        REAL width;
        int top;
        int bottom;
    } lines[] = {{2, 4, 5}, {3, 4, 6}, {4, 3, 6}, {5, 3, 7}};
    for (const auto& [width, top, bottom] : lines) {
        const Pen pen{Color(kRed), width};
        TestPicture forth(12, 12);
        forth.graphics.DrawLine(&pen, 2, 5, 8, 5);
        EXPECT_EQ(forth.find(kRed), (Found{2, top, 7, bottom, 6 * (bottom - top + 1)})) << width;
        TestPicture back(12, 12);
        back.graphics.DrawLine(&pen, 8, 5, 2, 5);
        EXPECT_EQ(back.all(), forth.all()) << width;
        TestPicture upright(12, 12);
        upright.graphics.DrawLine(&pen, 5, 2, 5, 8);
        EXPECT_EQ(upright.find(kRed), (Found{top, 2, bottom, 7, 6 * (bottom - top + 1)})) << width;
    }
}

TEST(WideLine, GrowsWithThePageScale)
{
    TestPicture picture(24, 24);
    picture.graphics.SetPageUnit(UnitPixel);
    picture.graphics.SetPageScale(3);
    const Pen pen{Color(kRed), 2};
    picture.graphics.DrawLine(&pen, 1, 3, 6, 3);
    EXPECT_EQ(picture.find(kRed), (Found{3, 6, 17, 11, 15 * 6}));
}

TEST(Line, NeedsAPenAndPoints)
{
    TestPicture picture(4, 4);
    const Pen pen{Color(kRed)};
    const Pen* const none = nullptr;
    const Point points[] = {{0, 0}, {3, 3}};
    const PointF realPoints[] = {{0, 0}, {3, 3}};
    EXPECT_EQ(picture.graphics.DrawLine(none, 0, 0, 3, 3), InvalidParameter);
    EXPECT_EQ(picture.graphics.GetLastStatus(), InvalidParameter);
    EXPECT_EQ(picture.graphics.DrawLine(none, 0.0f, 0.0f, 3.0f, 3.0f), InvalidParameter);
    EXPECT_EQ(picture.graphics.DrawLines(none, points, 2), InvalidParameter);
    EXPECT_EQ(picture.graphics.DrawLines(none, realPoints, 2), InvalidParameter);
    EXPECT_EQ(picture.graphics.DrawLines(&pen, static_cast<const PointF*>(nullptr), 2), InvalidParameter);
    for (const INT count : {1, 0}) {
        EXPECT_EQ(picture.graphics.DrawLines(&pen, points, count), InvalidParameter) << count;
        EXPECT_EQ(picture.graphics.DrawLines(&pen, realPoints, count), InvalidParameter) << count;
    }
    EXPECT_EQ(pixelsDrawn(picture), 0);
}

TEST(Line, WaitsForALentContext)
{
    TestPicture picture(4, 4);
    const Pen pen{Color(kRed)};
    const SolidBrush brush{Color(kRed)};
    const Point points[] = {{0, 0}, {3, 0}, {3, 3}};
    const GraphicsPath path;
    const HDC context = picture.graphics.GetHDC();
    EXPECT_EQ(picture.graphics.DrawLine(&pen, 0, 0, 3, 3), ObjectBusy);
    EXPECT_EQ(picture.graphics.DrawLines(&pen, points, 3), ObjectBusy);
    EXPECT_EQ(picture.graphics.DrawRectangle(&pen, 0, 0, 3, 3), ObjectBusy);
    EXPECT_EQ(picture.graphics.DrawEllipse(&pen, 0, 0, 3, 3), ObjectBusy);
    EXPECT_EQ(picture.graphics.DrawPolygon(&pen, points, 3), ObjectBusy);
    EXPECT_EQ(picture.graphics.DrawPath(&pen, &path), ObjectBusy);
    EXPECT_EQ(picture.graphics.FillEllipse(&brush, 0, 0, 3, 3), ObjectBusy);
    EXPECT_EQ(picture.graphics.FillPolygon(&brush, points, 3), ObjectBusy);
    EXPECT_EQ(picture.graphics.FillPath(&brush, &path), ObjectBusy);
    picture.graphics.ReleaseHDC(context);
    EXPECT_EQ(pixelsDrawn(picture), 0);
    EXPECT_EQ(picture.graphics.DrawLine(&pen, 0, 0, 3, 3), Ok);
    EXPECT_EQ(pixelsDrawn(picture), 4);
}

} // namespace
} // namespace vq::test
