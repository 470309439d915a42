// SPDX-License-Identifier: MIT
#include "DrawnImage.h"
#include "parity/KnownDifferences.h"

namespace vq::test {
namespace {

/// The four ways to name a rectangle by its corners.
std::vector<CRect> orders(const CRect& rect)
{
    return {rect, CRect(rect.right, rect.top, rect.left, rect.bottom),
            CRect(rect.left, rect.bottom, rect.right, rect.top), CRect(rect.right, rect.bottom, rect.left, rect.top)};
}

TEST(DrawRect, IsOnePixelLargerThanItsRectangle)
{
    for (const bool smooth : {false, true}) { // at whole pixels a smooth outline is crisp
        HardImage image(12, 12);
        image.EnableAntialias(smooth);
        CRect rect(2, 3, 6, 8);
        image.DrawRect(rect, kRed, 255);
        EXPECT_EQ(find(image, kRedPixel), (Found{2, 3, 6, 8, 18}));
        EXPECT_EQ(findDrawn(image).count, 18);
    }
}

TEST(DrawRect, PutsItsRectangleInOrder)
{
    for (CRect rect : orders(CRect(2, 3, 6, 8))) {
        HardImage image(12, 12);
        image.DrawRect(rect, kRed, 255);
        EXPECT_EQ(rect, CRect(2, 3, 6, 8));
        EXPECT_EQ(find(image, kRedPixel), (Found{2, 3, 6, 8, 18}));
    }
}

TEST(DrawRect, WithoutWidthOrHeightDrawsNothing)
{
    HardImage image(12, 12);
    for (CRect rect : {CRect(3, 3, 3, 8), CRect(3, 3, 8, 3), CRect(3, 3, 3, 3)})
        image.DrawRect(rect, kRed, 255);
    EXPECT_EQ(findDrawn(image).count, 0);
}

TEST(DrawRect, DoesNotDarkenItsCorners)
{
    HardImage image(12, 12);
    CRect rect(2, 3, 6, 8);
    image.DrawRect(rect, kRed, 128);
    EXPECT_EQ(find(image, 0x80FF0000).count, 18);
}

TEST(DrawRect, OfANullRectangleOnTheImagesEdgeIsCutToIt)
{
    HardImage image(5, 4);
    CRect rect(-3, -3, 4, 3);
    image.DrawRect(rect, kRed, 255);
    EXPECT_EQ(drawn(image), rows({"....#", "....#", "....#", "#####"}));
}

/// The dots go clockwise from the top left corner, without losing their step in the other ones.
TEST(DrawStippleRect, DotsEveryOtherPixel)
{
    HardImage image(16, 14);
    CRect rect(2, 2, 12, 10);
    image.DrawStippleRect(rect, kRed, 255);
    for (LONG y = 0; y < 14; ++y)
        for (LONG x = 0; x < 16; ++x) {
            const bool onEdge = x >= 2 && x <= 12 && y >= 2 && y <= 10 && (x == 2 || x == 12 || y == 2 || y == 10);
            EXPECT_EQ(at(image, x, y), onEdge && (x + y) % 2 == 0 ? kRedPixel : 0) << x << ", " << y;
        }
}

TEST(DrawStippleRect, PutsItsRectangleInOrder)
{
    HardImage expected(16, 14);
    CRect ordered(2, 2, 12, 10);
    expected.DrawStippleRect(ordered, kRed, 255);
    for (CRect rect : orders(ordered)) {
        HardImage image(16, 14);
        image.DrawStippleRect(rect, kRed, 255);
        EXPECT_EQ(rect, ordered);
        EXPECT_TRUE(showsTheSame(image, expected));
    }
}

TEST(Draw3DRect, DrawsBottomAndRightOverTopAndLeft)
{
    for (CRect rect : orders(CRect(2, 2, 8, 6))) {
        HardImage image(12, 10);
        image.Draw3DRect(rect, kRed, kBlue, 255, 1);
        EXPECT_EQ(rect, CRect(2, 2, 8, 6));
        EXPECT_EQ(find(image, kRedPixel), (Found{2, 2, 7, 5, 6 + 3}));
        EXPECT_EQ(find(image, kBluePixel), (Found{2, 2, 8, 6, 7 + 4}));
        EXPECT_EQ(at(image, 2, 2), kRedPixel);
        EXPECT_EQ(at(image, 8, 2), kBluePixel);
        EXPECT_EQ(at(image, 2, 6), kBluePixel);
        EXPECT_EQ(at(image, 8, 6), kBluePixel);
    }
}

TEST(Draw3DRect, HasAWidth)
{
    HardImage image(20, 20);
    CRect rect(4, 4, 14, 14);
    image.Draw3DRect(rect, kRed, kBlue, 255, 3);
    EXPECT_EQ(rowsDrawn(image, 9), (Places{3, 4, 5, 13, 14, 15}));
    EXPECT_EQ(columnsDrawn(image, 9), (Places{3, 4, 5, 13, 14, 15}));
}

TEST(Draw3DRect, OfTwoColoursTakesOneAlpha)
{
    HardImage image(12, 10);
    CRect rect(2, 2, 8, 6);
    image.Draw3DRect(rect, kRed, kBlue, 128, 1);
    EXPECT_EQ(at(image, 4, 2), 0x80FF0000u);
    EXPECT_EQ(at(image, 4, 6), 0x800000FFu);
}

TEST(FillRect, HasHardEdgesWhateverTheAntialiasing)
{
    for (const bool smooth : {false, true})
        for (const CRect& rect : orders(CRect(2, 3, 6, 8))) {
            HardImage image(12, 12);
            image.EnableAntialias(smooth);
            image.FillRect(rect, kRed, LONG{255});
            EXPECT_EQ(find(image, kRedPixel), (Found{2, 3, 5, 7, 20}));
            EXPECT_EQ(findDrawn(image).count, 20);
            EXPECT_EQ(image.IsEnableAntialias(), smooth);
        }
}

TEST(FillRect, LeavesSmoothEdgesToWhatFollows)
{
    if (differsHere("smoothed outlines"))
        return;
    SmoothImage image(12, 12);
    image.FillRect(CRect(8, 8, 10, 10), kRed, LONG{255});
    image.Line(2, 3, 5, 3, kRed, 255, 1, false);
    EXPECT_TRUE(isNear(at(image, 2, 3), 0x80FF0000, 2));
}

TEST(FillRect, IsCutToTheImage)
{
    HardImage image(5, 4);
    image.FillRect(CRect(-9, 2, 99, 99), kRed, LONG{255});
    EXPECT_EQ(find(image, kRedPixel), (Found{0, 2, 4, 3, 10}));
    image.FillRect(CRect(5, 0, 9, 4), kBlue, LONG{255});
    image.FillRect(CRect(2, 2, 2, 4), kBlue, LONG{255});
    EXPECT_EQ(find(image, kBluePixel).count, 0);
}

TEST(FillRect, TakesAGradientOfTheCaller)
{
    for (const bool smooth : {false, true})
        for (const CRect& rect : orders(CRect(1, 1, 10, 3))) {
            HardImage image(12, 4);
            image.EnableAntialias(smooth);
            Gdiplus::LinearGradientBrush brush(Gdiplus::PointF(0, 0), Gdiplus::PointF(20, 0), Gdiplus::Color(kRedPixel),
                                               Gdiplus::Color(kBluePixel));
            image.FillRect(rect, brush);
            EXPECT_EQ(findDrawn(image), (Found{1, 1, 9, 2, 18}));
            for (LONG x = 1; x < 10; ++x) {
                const auto share = static_cast<ULONG>(x * 255 / 20);
                EXPECT_TRUE(isNear(at(image, x, 2), kRedPixel - (share << 16) + share, 2)) << x;
            }
            image.FillRect(CRect(0, 3, 2, 4), brush);
            EXPECT_TRUE(isNear(at(image, 0, 3), kRedPixel, 2)) << "the brush is still there";
            EXPECT_EQ(image.IsEnableAntialias(), smooth);
        }
}

TEST(FillHatchRect, KeepsToTheGridOfTheImage)
{
    HardImage image(20, 20);
    image.FillHatchRect(CRect(3, 2, 19, 18), kRed, 255, Gdiplus::HatchStyleCross);
    for (LONG y = 0; y < 20; ++y)
        for (LONG x = 0; x < 20; ++x) {
            const bool inside = x >= 3 && x < 19 && y >= 2 && y < 18;
            EXPECT_EQ(at(image, x, y), inside && (x % 8 == 0 || y % 8 == 0) ? kRedPixel : 0) << x << ", " << y;
        }
}

TEST(FillHatchRect, LeavesThePictureBetweenItsLines)
{
    HardImage image(12, 6, 0xFF123456);
    image.FillHatchRect(CRect(3, 1, 10, 4), kRed, 255, Gdiplus::HatchStyleVertical);
    EXPECT_EQ(find(image, kRedPixel), (Found{8, 1, 8, 3, 3}));
    EXPECT_EQ(find(image, 0xFF123456).count, 12 * 6 - 3);
}

TEST(FillHatchRect, BlendsItsLinesByTheLowBitsOfAlpha)
{
    HardImage image(12, 6);
    image.FillHatchRect(CRect(3, 1, 10, 4), kInk | 0xFF000000, 384, Gdiplus::HatchStyleVertical);
    EXPECT_EQ(find(image, 0x80102030), (Found{8, 1, 8, 3, 3}));
    EXPECT_EQ(findDrawn(image).count, 3);
}

TEST(FillHatchRect, OfAReversedRectangleFillsNothing)
{
    HardImage image(20, 20);
    image.FillHatchRect(CRect(18, 2, 2, 18), kRed, 255, Gdiplus::HatchStyle50Percent);
    image.FillHatchRect(CRect(2, 18, 18, 2), kRed, 255, Gdiplus::HatchStyle50Percent);
    image.FillHatchRect(CRect(18, 18, 2, 2), kRed, 255, Gdiplus::HatchStyle50Percent);
    EXPECT_EQ(findDrawn(image).count, 0);
}

TEST(FillHatchRect, OfAStyleThatIsNoneLeavesItsStatusAndLetsDrawingGoOn)
{
    HardImage image(20, 20);
    image.FillHatchRect(CRect(2, 2, 18, 18), kRed, 255, static_cast<Gdiplus::HatchStyle>(53));
    EXPECT_EQ(findDrawn(image).count, 0);
    image.FillRect(CRect(2, 2, 4, 4), kRed, LONG{255});
    EXPECT_EQ(find(image, kRedPixel).count, 4);
    EXPECT_EQ(image.GetGraphics()->GetLastStatus(), Gdiplus::InvalidParameter);
    EXPECT_EQ(image.GetGraphics()->GetLastStatus(), Gdiplus::Ok) << "asking forgets it";
}

void fillGradient(CVQDIB& image, const CRect& rect, int corner, Gdiplus::PointF p1, Gdiplus::PointF p2)
{
    image.FillGradientRoundRect(rect, corner, p1, p2, kRed, kBlue, BYTE{255}, BYTE{255});
}

TEST(FillGradientRoundRect, HoldsItsFirstColourForFourFifths)
{
    HardImage image(120, 3);
    fillGradient(image, CRect(0, 0, 100, 3), 0, {0, 0}, {100, 0});
    for (LONG x = 1; x <= 80; ++x)
        EXPECT_TRUE(isNear(at(image, x, 1), kRedPixel, 2)) << x;
    for (LONG x = 81; x < 100; ++x) {
        const auto share = static_cast<ULONG>((x - 80) * 255 / 20);
        EXPECT_TRUE(isNear(at(image, x, 1), kRedPixel - (share << 16) + share, 2)) << x;
    }
    EXPECT_EQ(findDrawn(image).right, 99);
}

TEST(FillGradientRoundRect, RepeatsBeyondItsPoints)
{
    HardImage image(64, 3);
    fillGradient(image, CRect(0, 0, 64, 3), 0, {20, 0}, {40, 0});
    for (const LONG x : {LONG{5}, LONG{25}, LONG{45}})
        EXPECT_TRUE(isNear(at(image, x, 1), kRedPixel, 2)) << x;
    for (const LONG x : {LONG{18}, LONG{38}, LONG{58}})
        EXPECT_TRUE(isNear(at(image, x, 1), 0xFF80007F, 2)) << x;
}

TEST(FillGradientRoundRect, RunsFromPointToPoint)
{
    HardImage image(3, 120);
    fillGradient(image, CRect(0, 0, 3, 100), 0, {0, 100}, {0, 0});
    EXPECT_TRUE(isNear(at(image, 1, 50), kRedPixel, 2));
    EXPECT_TRUE(isNear(at(image, 1, 10), 0xFF80007F, 2));
}

TEST(FillGradientRoundRect, HasPlainCornersWhateverItsCorner)
{
    HardImage expected(30, 20);
    fillGradient(expected, CRect(2, 3, 22, 17), 0, {0, 0}, {20, 0});
    EXPECT_EQ(findDrawn(expected), (Found{2, 3, 21, 16, 280}));
    for (const int corner : {-5, 1, 6, 14, 1000})
        for (const CRect& rect : orders(CRect(2, 3, 22, 17))) {
            HardImage image(30, 20);
            fillGradient(image, rect, corner, {0, 0}, {20, 0});
            EXPECT_TRUE(showsTheSame(image, expected)) << corner;
        }
}

TEST(FillGradientRoundRect, TakesAnAlphaForEachEnd)
{
    HardImage image(120, 3);
    image.FillGradientRoundRect(CRect(0, 0, 100, 3), 0, {0, 0}, {100, 0}, kRed, kRed, BYTE{64}, BYTE{192});
    EXPECT_TRUE(isNear(at(image, 40, 1), 0x40FF0000, 3));
    EXPECT_NEAR(static_cast<int>(at(image, 90, 1) >> 24), 128, 3);
}

TEST(FillGradientRoundRect, FromAPointToItselfLeavesItsStatusAndDrawsNothing)
{
    HardImage image(30, 20);
    fillGradient(image, CRect(2, 3, 22, 17), 0, {5, 5}, {5, 5});
    EXPECT_EQ(findDrawn(image).count, 0);
    EXPECT_EQ(image.GetGraphics()->GetLastStatus(), Gdiplus::InvalidParameter);
    fillGradient(image, CRect(2, 3, 22, 17), 0, {0, 0}, {20, 0});
    EXPECT_EQ(findDrawn(image).count, 280);
}

} // namespace
} // namespace vq::test
