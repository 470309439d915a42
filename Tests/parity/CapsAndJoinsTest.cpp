// SPDX-License-Identifier: MIT
#include "parity/Drawn.h"
#include "parity/KnownDifferences.h"

namespace vq::test {
namespace {

using namespace Gdiplus;

TEST(ArrowAnchor, EndsTheLineWithATriangle)
{
    Pen pen{Color(kRed), 3};
    pen.SetEndCap(LineCapArrowAnchor);
    TestPicture picture(30, 16);
    EXPECT_EQ(picture.graphics.DrawLine(&pen, 3, 8, 25, 8), Ok);
    EXPECT_EQ(picture.at(3, 8), Argb{kRed});
    EXPECT_EQ(picture.at(19, 8), Argb{kRed});
    EXPECT_LE(picture.find(kRed).right, 25);
    // The half base of 3 narrows to 0 along 5.196 pixels: 2.89 are left in column 20.
    const Places rows = rowsDrawn(picture, 20);
    ASSERT_FALSE(rows.empty());
    EXPECT_NEAR(rows.front(), 6, 1);
    EXPECT_NEAR(rows.back(), 10, 1);
    expectOnly(picture, kRed);
}

TEST(ArrowAnchor, OfAThinPenIsMadeForAWidthOfTwo)
{
    if (differsHere("anchors of thin pens"))
        return;
    Pen pen{Color(kRed)};
    pen.SetEndCap(LineCapArrowAnchor);
    TestPicture picture(30, 16);
    picture.graphics.DrawLine(&pen, 3, 8, 25, 8);
    // Half base 2, length 3.46: 1.73 to either side in column 22, 1.15 in column 23.
    EXPECT_EQ(rowsDrawn(picture, 22), fromTo(7, 9)) << drawn(picture);
    EXPECT_EQ(rowsDrawn(picture, 23), fromTo(7, 9)) << drawn(picture);
    for (int x = 3; x <= 19; ++x)
        EXPECT_EQ(rowsDrawn(picture, x), Places{8}) << x;
    EXPECT_LE(picture.find(kRed).right, 25);
}

TEST(ArrowAnchor, OfATranslucentPenPaintsEveryPixelOnce)
{
    Pen pen{Color(0x80FF0000), 4};
    pen.SetLineCap(LineCapArrowAnchor, LineCapRoundAnchor, DashCapFlat);
    TestPicture picture(40, 40);
    picture.graphics.DrawLine(&pen, 8, 8, 30, 26);
    expectOnly(picture, 0x80FF0000);
}

TEST(Caps, OfLinesReachAsFarAsTheyShould)
{
    const struct
    {
        LineCap cap;
        Found extent;
    } caps[] = {
        {LineCapFlat, {10, 10, 49, 19, 400}},
        {LineCapSquare, {5, 10, 54, 19, 500}},
    };
    for (const auto& [cap, extent] : caps) {
        Pen pen{Color(kRed), 10};
        pen.SetLineCap(cap, cap, DashCapFlat);
        TestPicture picture(60, 30);
        picture.graphics.DrawLine(&pen, 10, 15, 50, 15);
        EXPECT_EQ(picture.find(kRed), extent) << cap;
    }
}

TEST(Caps, RoundCapIsAHalfCircleAndTriangleCapATriangle)
{
    Pen pen{Color(kRed), 10};
    pen.SetEndCap(LineCapRound);
    TestPicture round(60, 30);
    round.graphics.DrawLine(&pen, 10, 15, 40, 15);
    EXPECT_EQ(round.at(44, 15), Argb{kRed});
    EXPECT_EQ(round.at(43, 12), Argb{kRed}); // 4.2 from the end
    EXPECT_EQ(round.at(44, 11), Argb{0});    // 5.7
    EXPECT_EQ(round.at(46, 15), Argb{0});
    pen.SetEndCap(LineCapTriangle);
    TestPicture triangle(60, 30);
    triangle.graphics.DrawLine(&pen, 10, 15, 40, 15);
    EXPECT_EQ(triangle.at(44, 15), Argb{kRed});
    EXPECT_EQ(triangle.at(42, 13), Argb{kRed});
    EXPECT_EQ(triangle.at(43, 12), Argb{0});
    EXPECT_EQ(triangle.at(46, 15), Argb{0});
}

TEST(Caps, AreNotForClosedFigures)
{
    const Point corners[] = {{8, 8}, {40, 12}, {30, 36}};
    const Pen plain{Color(kRed), 4};
    Pen capped{Color(kRed), 4};
    capped.SetLineCap(LineCapArrowAnchor, LineCapRoundAnchor, DashCapFlat);
    TestPicture expected(50, 50);
    expected.graphics.DrawPolygon(&plain, corners, 3);
    TestPicture picture(50, 50);
    picture.graphics.DrawPolygon(&capped, corners, 3);
    EXPECT_EQ(drawn(picture), drawn(expected));
}

/// A corner to the right and down at (30, 20), twenty pixels wide.
void drawCorner(TestPicture& picture, LineJoin join, REAL limit = 10)
{
    Pen pen{Color(kRed), 20};
    pen.SetLineJoin(join);
    pen.SetMiterLimit(limit);
    const Point points[] = {{5, 20}, {30, 20}, {30, 45}};
    EXPECT_EQ(picture.graphics.DrawLines(&pen, points, 3), Ok);
}

// Of the square outside the corner, (30, 10) to (40, 20): (39, 10) lies in the tip of a mitre, (36, 14) within a radius
// of 8.5 in a round corner too, and (33, 16) is left even by a bevel.
TEST(Joins, MitreIsSharp)
{
    TestPicture picture(50, 50);
    drawCorner(picture, LineJoinMiter);
    EXPECT_EQ(picture.at(39, 10), Argb{kRed});
    EXPECT_EQ(picture.at(36, 14), Argb{kRed});
    EXPECT_EQ(picture.at(40, 9), Argb{0});
    TestPicture clipped(50, 50);
    drawCorner(clipped, LineJoinMiterClipped);
    EXPECT_EQ(drawn(clipped), drawn(picture));
}

TEST(Joins, RoundIsRound)
{
    if (differsHere("round joins"))
        return;
    TestPicture picture(50, 50);
    drawCorner(picture, LineJoinRound);
    EXPECT_EQ(picture.at(38, 12), Argb{0}) << drawn(picture); // 11.3 from the corner
    EXPECT_EQ(picture.at(36, 14), Argb{kRed}) << drawn(picture);
    EXPECT_EQ(picture.at(33, 16), Argb{kRed});
}

TEST(Joins, BevelIsCut)
{
    TestPicture picture(50, 50);
    drawCorner(picture, LineJoinBevel);
    EXPECT_EQ(picture.at(39, 10), Argb{0});
    EXPECT_EQ(picture.at(36, 14), Argb{0});
    EXPECT_EQ(picture.at(33, 16), Argb{kRed});
}

TEST(Joins, ClippedMitreBeyondItsLimitIsABevel)
{
    TestPicture bevel(50, 50);
    drawCorner(bevel, LineJoinBevel);
    TestPicture clipped(50, 50);
    drawCorner(clipped, LineJoinMiterClipped, 1.2f); // a right angle's mitre is 1.414 widths long
    EXPECT_EQ(drawn(clipped), drawn(bevel));
    TestPicture sharp(50, 50);
    drawCorner(sharp, LineJoinMiterClipped, 1.5f);
    EXPECT_EQ(sharp.at(39, 10), Argb{kRed});
}

} // namespace
} // namespace vq::test
