// SPDX-License-Identifier: MIT
/// @file
/// How what pens draw meets what was there before.
#include "parity/Drawn.h"
#include "parity/KnownDifferences.h"

namespace vq::test {
namespace {

using namespace Gdiplus;

TEST(TranslucentPen, PaintsEveryPixelOfACallOnce)
{
    constexpr std::uint32_t kHalfRed = 0x80FF0000;
    const Point corners[] = {{2, 2}, {17, 3}, {4, 9}, {16, 16}, {3, 15}};
    const Point crossing[] = {{2, 2}, {17, 17}, {17, 2}, {2, 17}};
    for (const REAL width : {1.0f, 2.0f, 3.0f}) {
        const Pen pen{Color(kHalfRed), width};
        TestPicture polyline(20, 20);
        polyline.graphics.DrawLines(&pen, corners, 5);
        expectOnly(polyline, kHalfRed);
        TestPicture closed(20, 20);
        closed.graphics.DrawPolygon(&pen, corners, 5);
        expectOnly(closed, kHalfRed);
        TestPicture overlapping(20, 20);
        overlapping.graphics.DrawPolygon(&pen, crossing, 4);
        expectOnly(overlapping, kHalfRed);
        TestPicture rectangle(20, 20);
        rectangle.graphics.DrawRectangle(&pen, 4, 4, 9, 9);
        expectOnly(rectangle, kHalfRed);
        TestPicture ellipse(20, 20);
        ellipse.graphics.DrawEllipse(&pen, 3, 3, 12, 10);
        expectOnly(ellipse, kHalfRed);
    }
}

TEST(TranslucentPen, OfTwoCallsBlendsTwiceWhereTheyMeet)
{
    const Pen pen{Color(0xA0FFFFFF)};
    TestPicture picture(5, 5, 0xFF000000);
    picture.graphics.DrawLine(&pen, 0, 2, 4, 2);
    picture.graphics.DrawLine(&pen, 2, 0, 2, 4);
    EXPECT_THAT(picture.at(0, 2), Near(0xFFA0A0A0, 1));
    EXPECT_THAT(picture.at(2, 0), Near(0xFFA0A0A0, 1));
    EXPECT_THAT(picture.at(2, 2), Near(0xFFDCDCDC, 2)); // 255 * (1 - (95/255)^2)
}

TEST(Pen, UnderSourceCopyReplacesColourAndAlpha)
{
    const Pen pen{Color(0x80FF0000)};
    TestPicture picture(5, 1, 0xFFFFFFFF);
    picture.graphics.SetCompositingMode(CompositingModeSourceCopy);
    picture.graphics.DrawLine(&pen, 1, 0, 3, 0);
    EXPECT_EQ(picture.row(0), row({0xFFFFFFFF, 0x80FF0000, 0x80FF0000, 0x80FF0000, 0xFFFFFFFF}));
}

TEST(TranslucentPen, BlendsOverOpaqueAndOverTransparentPixels)
{
    for (const REAL width : {1.0f, 4.0f}) {
        TestPicture picture(4, 1, {0xFF000000, 0x00000000, 0xFFFFFFFF, 0x00FFFFFF});
        const Pen pen{Color(0x80FF0000), width};
        picture.graphics.DrawLine(&pen, -5, 0, 9, 0);
        EXPECT_THAT(picture.at(0, 0), Near(0xFF800000, 1)) << width;
        EXPECT_EQ(picture.at(1, 0), Argb{0x80FF0000}) << width;
        EXPECT_THAT(picture.at(2, 0), Near(0xFFFF7F7F, 1)) << width;
        EXPECT_EQ(picture.at(3, 0), Argb{0x80FF0000}) << width;
    }
}

TEST(TransparentPen, ChangesNothing)
{
    for (const REAL width : {1.0f, 4.0f}) {
        TestPicture picture(3, 1, {0x40123456, 0xFF654321, 0x00FFFFFF});
        const Row before = picture.all();
        const Pen pen{Color(0x00FF00FF), width};
        EXPECT_EQ(picture.graphics.DrawLine(&pen, -5, 0, 9, 0), Ok);
        EXPECT_EQ(picture.graphics.DrawRectangle(&pen, 0, 0, 2, 2), Ok);
        EXPECT_EQ(picture.all(), before) << width;
    }
}

TEST(TransparentPen, UnderSourceCopyWritesZero)
{
    TestPicture picture(4, 1, 0xFFFFFFFF);
    picture.graphics.SetCompositingMode(CompositingModeSourceCopy);
    const Pen pen{Color(0x00FF00FF)};
    picture.graphics.DrawLine(&pen, 1, 0, 2, 0);
    EXPECT_EQ(picture.row(0), row({0xFFFFFFFF, 0, 0, 0xFFFFFFFF}));
}

TEST(Pen, UnderHighQualityBlendsInLinearLight)
{
    if (differsHere("linear light"))
        return;
    TestPicture picture(3, 3);
    picture.graphics.SetCompositingQuality(CompositingQualityHighQuality);
    const Pen dark{Color(0xA0000000)};
    const Pen light{Color(0xA0FFFFFF)};
    picture.graphics.DrawLine(&dark, 0, 1, 2, 1);
    picture.graphics.DrawLine(&light, 1, 0, 1, 2);
    // Windows gives 159, 219 and 159 for the alphas; 160 and 220 are the exact ones.
    EXPECT_THAT(picture.at(0, 1), Near(0x9F000000, 1));
    EXPECT_THAT(picture.at(1, 1), Near(0xDBDEDEDE, 1));
    EXPECT_THAT(picture.at(1, 0), Near(0x9FFFFFFF, 1));
}

TEST(Pen, OfAnyWidthLeavesTheRestOfThePictureAlone)
{
    for (const REAL width : {1.0f, 3.0f}) {
        TestPicture picture(9, 9, 0x00FFFFFF);
        const Pen pen{Color(kRed), width};
        picture.graphics.DrawLine(&pen, 0, 4, 9, 4);
        const int half = width == 1.0f ? 0 : 1;
        for (int y = 0; y < 9; ++y)
            for (int x = 0; x < 9; ++x)
                EXPECT_EQ(picture.at(x, y), Argb{std::abs(y - 4) <= half ? kRed : 0x00FFFFFFu}) << x << ", " << y;
    }
}

} // namespace
} // namespace vq::test
