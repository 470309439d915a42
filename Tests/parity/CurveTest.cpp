// SPDX-License-Identifier: MIT
/// @file
/// Beziers and arcs of thin pens.
#include "parity/Drawn.h"
#include "parity/KnownDifferences.h"

namespace vq::test {
namespace {

using namespace Gdiplus;

// SHA-256 of 100 x 100 pixels as published for Windows.
constexpr auto kOneBezier = "0e9736258b2e3c21ae8ceb800ba1cd05d234cee57035c657ba16f2a3fd870fb5";
constexpr auto kTwoBeziers = "dcdbff367f0d84a374350a1e78ca7625db28ed6a323db8d4bf19a00f12b335a6";

TEST(DrawBezier, HasThePixelsThatWindowsDraws)
{
    if (differsHere("thin curves"))
        return;
    const Pen pen{Color(0xFFFFFFFF)};
    TestPicture whole(100, 100);
    EXPECT_EQ(whole.graphics.DrawBezier(&pen, 10, 10, 20, 1, 35, 5, 50, 10), Ok);
    EXPECT_EQ(digestOf(whole), kOneBezier) << drawn(whole);
    TestPicture real(100, 100);
    EXPECT_EQ(real.graphics.DrawBezier(&pen, 10.0f, 10.0f, 20.0f, 1.0f, 35.0f, 5.0f, 50.0f, 10.0f), Ok);
    EXPECT_EQ(digestOf(real), kOneBezier);
    TestPicture path(100, 100);
    GraphicsPath bezier;
    bezier.AddBezier(10, 10, 20, 1, 35, 5, 50, 10);
    EXPECT_EQ(path.graphics.DrawPath(&pen, &bezier), Ok);
    EXPECT_EQ(digestOf(path), kOneBezier);
}

TEST(DrawBeziers, HaveThePixelsThatWindowsDraws)
{
    if (differsHere("thin curves"))
        return;
    const Pen pen{Color(kRed)};
    const Point points[] = {{10, 10}, {20, 1}, {35, 5}, {50, 10}, {60, 15}, {65, 25}, {50, 30}};
    TestPicture whole(100, 100);
    EXPECT_EQ(whole.graphics.DrawBeziers(&pen, points, 7), Ok);
    EXPECT_EQ(digestOf(whole), kTwoBeziers) << drawn(whole);
    const PointF realPoints[] = {{10, 10}, {20, 1}, {35, 5}, {50, 10}, {60, 15}, {65, 25}, {50, 30}};
    TestPicture real(100, 100);
    EXPECT_EQ(real.graphics.DrawBeziers(&pen, realPoints, 7), Ok);
    EXPECT_EQ(digestOf(real), kTwoBeziers);
}

TEST(DrawBezier, IsTheSameInEveryFormOfTheCall)
{
    const Pen pen{Color(kRed), 2};
    TestPicture expected(30, 30);
    EXPECT_EQ(expected.graphics.DrawBezier(&pen, 3, 4, 10, 25, 20, 0, 26, 22), Ok);
    EXPECT_GT(pixelsDrawn(expected), 20);
    TestPicture points(30, 30);
    EXPECT_EQ(points.graphics.DrawBezier(&pen, Point(3, 4), Point(10, 25), Point(20, 0), Point(26, 22)), Ok);
    EXPECT_EQ(drawn(points), drawn(expected));
    TestPicture realPoints(30, 30);
    EXPECT_EQ(realPoints.graphics.DrawBezier(&pen, PointF(3, 4), PointF(10, 25), PointF(20, 0), PointF(26, 22)), Ok);
    EXPECT_EQ(drawn(realPoints), drawn(expected));
}

TEST(DrawBezier, ThatIsStraightIsALine)
{
    for (const REAL width : {1.0f, 3.0f}) {
        const Pen pen{Color(kRed), width};
        TestPicture line(40, 12);
        line.graphics.DrawLine(&pen, 3, 5, 33, 5);
        TestPicture bezier(40, 12);
        bezier.graphics.DrawBezier(&pen, 3, 5, 13, 5, 23, 5, 33, 5);
        EXPECT_EQ(drawn(bezier), drawn(line)) << width;
    }
}

TEST(DrawBeziers, NeedAPenAndOnePointMoreThanThrees)
{
    TestPicture picture(8, 8);
    const Pen pen{Color(kRed)};
    const Point points[] = {{0, 0}, {1, 5}, {3, 3}, {7, 7}, {6, 6}, {5, 1}, {0, 0}};
    const PointF realPoints[] = {{0, 0}, {1, 5}, {3, 3}, {7, 7}};
    EXPECT_EQ(picture.graphics.DrawBezier(nullptr, 0, 0, 1, 5, 3, 3, 7, 7), InvalidParameter);
    EXPECT_EQ(picture.graphics.DrawBeziers(nullptr, points, 7), InvalidParameter);
    EXPECT_EQ(picture.graphics.DrawBeziers(nullptr, realPoints, 4), InvalidParameter);
    EXPECT_EQ(picture.graphics.DrawBeziers(&pen, static_cast<const PointF*>(nullptr), 4), InvalidParameter);
    for (const INT count : {6, 5, 3, 2, 0, -1})
        EXPECT_EQ(picture.graphics.DrawBeziers(&pen, points, count), InvalidParameter) << count;
    EXPECT_EQ(pixelsDrawn(picture), 0);
}

TEST(DrawArc, OfAQuarterStaysInItsQuarter)
{
    const int slack = differsHere("thin curves") ? 1 : 0;
    const Pen pen{Color(kRed)};
    const struct
    {
        REAL start;
        int left, top, right, bottom;
    } quarters[] = {{0, 12, 12, 22, 22}, {90, 2, 12, 12, 22}, {180, 2, 2, 12, 12}, {270, 12, 2, 22, 12}};
    for (const auto& [start, left, top, right, bottom] : quarters) {
        TestPicture picture(26, 26);
        EXPECT_EQ(picture.graphics.DrawArc(&pen, 2, 2, 20, 20, start, 90.0f), Ok);
        const Found found = picture.find(kRed);
        EXPECT_NEAR(found.left, left, slack) << start;
        EXPECT_NEAR(found.top, top, slack) << start;
        EXPECT_NEAR(found.right, right, slack) << start;
        EXPECT_NEAR(found.bottom, bottom, slack) << start;
    }
}

TEST(DrawArc, IsTheSameInEveryFormOfTheCall)
{
    const Pen pen{Color(kRed), 2};
    TestPicture expected(26, 26);
    EXPECT_EQ(expected.graphics.DrawArc(&pen, 2, 3, 20, 18, 30.0f, 200.0f), Ok);
    EXPECT_GT(pixelsDrawn(expected), 20);
    TestPicture real(26, 26);
    EXPECT_EQ(real.graphics.DrawArc(&pen, 2.0f, 3.0f, 20.0f, 18.0f, 30.0f, 200.0f), Ok);
    EXPECT_EQ(drawn(real), drawn(expected));
    TestPicture whole(26, 26);
    EXPECT_EQ(whole.graphics.DrawArc(&pen, Rect(2, 3, 20, 18), 30, 200), Ok);
    EXPECT_EQ(drawn(whole), drawn(expected));
    TestPicture wholeReal(26, 26);
    EXPECT_EQ(wholeReal.graphics.DrawArc(&pen, RectF(2, 3, 20, 18), 30, 200), Ok);
    EXPECT_EQ(drawn(wholeReal), drawn(expected));
    TestPicture path(26, 26);
    GraphicsPath arc;
    arc.AddArc(2, 3, 20, 18, 30.0f, 200.0f);
    EXPECT_EQ(path.graphics.DrawPath(&pen, &arc), Ok);
    EXPECT_EQ(drawn(path), drawn(expected));
}

TEST(DrawArc, OfAFullTurnIsTheEllipse)
{
    const Pen pen{Color(kRed)};
    TestPicture ellipse(26, 26);
    ellipse.graphics.DrawEllipse(&pen, 2, 3, 20, 18);
    TestPicture arc(26, 26);
    EXPECT_EQ(arc.graphics.DrawArc(&pen, 2, 3, 20, 18, 0.0f, 360.0f), Ok);
    EXPECT_EQ(drawn(arc), drawn(ellipse));
}

TEST(DrawArc, NeedsAPen)
{
    TestPicture picture(8, 8);
    EXPECT_EQ(picture.graphics.DrawArc(nullptr, 1, 1, 5, 5, 0.0f, 90.0f), InvalidParameter);
    EXPECT_EQ(picture.graphics.DrawArc(nullptr, RectF(1, 1, 5, 5), 0, 90), InvalidParameter);
    EXPECT_EQ(picture.graphics.GetLastStatus(), InvalidParameter);
    EXPECT_EQ(pixelsDrawn(picture), 0);
}

} // namespace
} // namespace vq::test
