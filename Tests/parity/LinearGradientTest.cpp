// SPDX-License-Identifier: MIT
#include "parity/KnownDifferences.h"
#include "parity/Pixels.h"

#include <array>
#include <memory>

namespace vq::test::linearGradientTests {
namespace {

using namespace Gdiplus;

constexpr ARGB kRed = 0xFFFF0000;
constexpr ARGB kBlue = 0xFF0000FF;
constexpr ARGB kMiddle = 0xFF80007F;
constexpr int kTolerance = 2;

LinearGradientBrush redToBlue(float x1, float y1, float x2, float y2)
{
    return LinearGradientBrush(PointF(x1, y1), PointF(x2, y2), Color(kRed), Color(kBlue));
}

LinearGradientBrush redToBlue(const RectF& rect, LinearGradientMode mode)
{
    return LinearGradientBrush(rect, Color(kRed), Color(kBlue), mode);
}

/// The colour a share of the way from red to blue.
std::uint32_t between(double share)
{
    const auto blue = static_cast<std::uint32_t>(share * 255 + 0.5);
    return 0xFF000000 | (255 - blue) << 16 | blue;
}

/// What a brush fills an empty picture with.
struct Filled
{
    int width;
    Row pixels;

    Argb at(int x, int y) const { return pixels[static_cast<std::size_t>(y * width + x)]; }
};

Filled filled(const Brush& brush, int width, int height)
{
    TestPicture picture(width, height);
    EXPECT_EQ(picture.graphics.FillRectangle(&brush, 0, 0, width, height), Ok);
    return {width, picture.all()};
}

TEST(LinearGradient, GoesFromTheFirstColourToTheSecondByPixelCentres)
{
    const Filled picture = filled(redToBlue(0, 0, 10, 0), 10, 2);
    EXPECT_EQ(picture.at(0, 0), Argb{kRed});
    for (int x = 0; x < 10; ++x) {
        EXPECT_THAT(picture.at(x, 0), Near(between(x / 10.0), kTolerance)) << x;
        EXPECT_EQ(picture.at(x, 1), picture.at(x, 0));
    }
}

/// On Windows a pixel exactly on the boundary may have the colour of either end: those are left out here and below.
TEST(LinearGradient, TileStartsAgainAfterTheEndAndBeforeTheBeginning)
{
    const Filled picture = filled(redToBlue(8, 0, 12, 0), 20, 1);
    for (int x = 0; x < 20; ++x)
        if (x % 4 != 0) {
            EXPECT_THAT(picture.at(x, 0), Near(between(x % 4 / 4.0), kTolerance)) << x;
        }
}

TEST(LinearGradient, BlendGivesTheShareOfTheSecondColour)
{
    LinearGradientBrush brush = redToBlue(0, 0, 10, 0);
    const std::array<REAL, 3> factors{0, 0, 1};
    const std::array<REAL, 3> positions{0, 0.8f, 1};
    ASSERT_EQ(brush.SetBlend(factors.data(), positions.data(), 3), Ok);
    const Filled picture = filled(brush, 12, 3);
    for (int y = 0; y < 3; ++y) {
        for (int x = 1; x <= 8; ++x)
            EXPECT_THAT(picture.at(x, y), Near(kRed, kTolerance)) << x;
        EXPECT_THAT(picture.at(9, y), Near(kMiddle, kTolerance));
        EXPECT_THAT(picture.at(11, y), Near(kRed, kTolerance));
        for (const int boundary : {0, 10})
            EXPECT_THAT(picture.at(boundary, y), testing::AnyOf(Near(kRed, kTolerance), Near(kBlue, kTolerance)));
    }
}

TEST(LinearGradient, FlippedTilesAreMirrored)
{
    for (const WrapMode mode : {WrapModeTileFlipX, WrapModeTileFlipXY}) {
        LinearGradientBrush across = redToBlue(0, 0, 4, 0);
        LinearGradientBrush down = redToBlue(0, 0, 0, 4);
        EXPECT_EQ(across.SetWrapMode(mode), Ok);
        EXPECT_EQ(down.SetWrapMode(mode), Ok);
        EXPECT_EQ(across.GetWrapMode(), mode);
        const Filled wide = filled(across, 16, 1);
        const Filled high = filled(down, 1, 16);
        for (int i = 0; i < 16; ++i) {
            const double share = i % 8 <= 4 ? i % 8 / 4.0 : (8 - i % 8) / 4.0;
            EXPECT_THAT(wide.at(i, 0), Near(between(share), kTolerance)) << i;
            EXPECT_THAT(high.at(0, i), Near(between(share), kTolerance)) << i;
        }
    }
}

/// Windows' tests show the gradient along the X axis of its tile, whichever way it is turned. That a flip along Y is
/// therefore not seen, only Windows could confirm.
TEST(LinearGradient, FlipAcrossTheGradientIsNotSeen)
{
    if (differsHere("gradient tiles flipped across"))
        return;
    for (LinearGradientBrush& brush : std::array{redToBlue(0, 0, 4, 0), redToBlue(0, 0, 0, 4)}) {
        const Row plain = filled(brush, 16, 16).pixels;
        brush.SetWrapMode(WrapModeTileFlipY);
        EXPECT_EQ(filled(brush, 16, 16).pixels, plain);
    }
}

TEST(LinearGradient, ClampIsRefused)
{
    LinearGradientBrush brush = redToBlue(0, 0, 4, 0);
    EXPECT_EQ(brush.SetWrapMode(WrapModeClamp), InvalidParameter);
    EXPECT_EQ(brush.GetWrapMode(), WrapModeTile);
}

TEST(LinearGradient, ObliqueLineIsMeasuredAtRightAngles)
{
    const Filled picture = filled(redToBlue(0, 0, 6, 8), 12, 9);
    for (int y = 0; y < 9; ++y)
        for (int x = 0; x < 12; ++x) {
            const int hundredths = x * 6 + y * 8;
            if (hundredths % 100 != 0) {
                EXPECT_THAT(picture.at(x, y), Near(between(hundredths % 100 / 100.0), kTolerance)) << x << ", " << y;
            }
        }
}

TEST(LinearGradient, ModesRunAcrossTheRectangle)
{
    const RectF rect(0, 0, 8, 4);
    const Filled across = filled(redToBlue(rect, LinearGradientModeHorizontal), 8, 4);
    const Filled down = filled(redToBlue(rect, LinearGradientModeVertical), 8, 4);
    const Filled forward = filled(redToBlue(rect, LinearGradientModeForwardDiagonal), 8, 4);
    const Filled backward = filled(redToBlue(rect, LinearGradientModeBackwardDiagonal), 8, 4);
    for (int y = 1; y < 4; ++y)
        for (int x = 1; x < 8; ++x) {
            const double u = x / 8.0;
            const double v = y / 4.0;
            EXPECT_THAT(across.at(x, y), Near(between(u), kTolerance)) << x << ", " << y;
            EXPECT_THAT(down.at(x, y), Near(between(v), kTolerance)) << x << ", " << y;
            EXPECT_THAT(forward.at(x, y), Near(between((u + v) / 2), kTolerance)) << x << ", " << y;
            EXPECT_THAT(backward.at(x, y), Near(between((1 - u + v) / 2), kTolerance)) << x << ", " << y;
        }
}

TEST(LinearGradient, AngleRunsBetweenTheOutermostCorners)
{
    // 30 degrees: position (x cos + y sin) / (8 cos + 4 sin); scalable ones in the unit square.
    const double cosine = 0.8660254;
    const RectF rect(0, 0, 8, 4);
    const Filled fixed = filled(LinearGradientBrush(rect, Color(kRed), Color(kBlue), 30.0f), 8, 4);
    const Filled scaled = filled(LinearGradientBrush(rect, Color(kRed), Color(kBlue), 30.0f, TRUE), 8, 4);
    const Filled upwards = filled(LinearGradientBrush(rect, Color(kRed), Color(kBlue), -45.0f), 8, 4);
    for (int y = 1; y < 4; ++y)
        for (int x = 1; x < 8; ++x) {
            EXPECT_THAT(fixed.at(x, y), Near(between((x * cosine + y * 0.5) / (8 * cosine + 2)), kTolerance));
            EXPECT_THAT(scaled.at(x, y), Near(between((x / 8.0 * cosine + y / 8.0) / (cosine + 0.5)), kTolerance));
            EXPECT_THAT(upwards.at(x, y), Near(between((x + 4 - y) / 12.0), kTolerance)) << x << ", " << y;
        }
}

TEST(LinearGradient, NegativeWidthTurnsTheGradientRound)
{
    const Filled picture = filled(redToBlue(RectF(8, 4, -8, -4), LinearGradientModeHorizontal), 8, 1);
    for (int x = 1; x < 8; ++x)
        EXPECT_THAT(picture.at(x, 0), Near(between((8 - x) / 8.0), kTolerance)) << x;
}

TEST(LinearGradient, EndsOfTheSameAlphaKeepIt)
{
    const Filled picture =
        filled(LinearGradientBrush(Point(0, 0), Point(8, 0), Color(0x80FF0000), Color(0x800000FF)), 8, 1);
    for (int x = 0; x < 8; ++x)
        EXPECT_THAT(picture.at(x, 0), Near((between(x / 8.0) & 0xFFFFFF) | 0x80000000, kTolerance)) << x;
}

TEST(LinearGradient, EqualPointsAreRefusedAndFillNothing)
{
    const LinearGradientBrush brush = redToBlue(3, 3, 3, 3);
    EXPECT_EQ(brush.GetLastStatus(), OutOfMemory);
    EXPECT_EQ(brush.Clone(), nullptr);
    EXPECT_EQ(brush.GetBlendCount(), 0);
    EXPECT_EQ(brush.GetLastStatus(), InvalidParameter);
    TestPicture picture(4, 4);
    EXPECT_EQ(picture.graphics.FillRectangle(&brush, 0, 0, 4, 4), InvalidParameter);
    EXPECT_EQ(picture.find(0).count, 16);
}

TEST(LinearGradient, EmptyRectangleIsRefused)
{
    EXPECT_EQ(redToBlue(RectF(10, 10, 100, 0), LinearGradientModeVertical).GetLastStatus(), OutOfMemory);
    EXPECT_EQ(redToBlue(RectF(10, 10, 0, 100), LinearGradientModeHorizontal).GetLastStatus(), OutOfMemory);
}

TEST(LinearGradient, UnknownModeIsRefused)
{
    for (const int mode : {-1, 4})
        EXPECT_EQ(redToBlue(RectF(0, 0, 1, 1), static_cast<LinearGradientMode>(mode)).GetLastStatus(),
                  InvalidParameter);
}

TEST(LinearGradient, RectangleOfTwoPointsIsTheOneAroundThem)
{
    struct Case
    {
        PointF first, last;
        RectF rect;
    };
    for (const Case& each : std::array<Case, 6>{{{{1, 1}, {100, 100}, {1, 1, 99, 99}},
                                                 {{0, 0}, {0, 10}, {-5, 0, 10, 10}},
                                                 {{0, 0}, {10, 0}, {0, -5, 10, 10}},
                                                 {{0, 0}, {20, -20}, {0, -20, 20, 20}},
                                                 {{0, 0}, {100, 1}, {0, 0, 100, 1}},
                                                 {{10, 10}, {-90, 10}, {-90, -40, 100, 100}}}}) {
        RectF rect;
        const LinearGradientBrush brush(each.first, each.last, Color(kRed), Color(kBlue));
        EXPECT_EQ(brush.GetRectangle(&rect), Ok);
        EXPECT_TRUE(rect.Equals(each.rect)) << rect.X << ' ' << rect.Y << ' ' << rect.Width << ' ' << rect.Height;
    }
}

TEST(LinearGradient, RectangleIsTheOneGivenAlsoWhenItsSizeIsNegative)
{
    for (const RectF& given : {RectF(10, 10, -100, -100), RectF(10, -12, 100, 105)}) {
        RectF rect;
        EXPECT_EQ(redToBlue(given, LinearGradientModeVertical).GetRectangle(&rect), Ok);
        EXPECT_TRUE(rect.Equals(given));
        EXPECT_EQ(LinearGradientBrush(given, Color(kRed), Color(kBlue), 30.0f).GetRectangle(&rect), Ok);
        EXPECT_TRUE(rect.Equals(given));
    }
    Rect whole;
    EXPECT_EQ(redToBlue(RectF(1, 2, 3, 4), LinearGradientModeVertical).GetRectangle(&whole), Ok);
    EXPECT_TRUE(whole.Equals(Rect(1, 2, 3, 4)));
}

TEST(LinearGradient, TellsAndTakesItsColours)
{
    LinearGradientBrush brush = redToBlue(0, 0, 8, 0);
    EXPECT_EQ(brush.GetType(), BrushTypeLinearGradient);
    EXPECT_EQ(brush.SetLinearColors(Color(kBlue), Color(0xFF00FF00)), Ok);
    std::array<Color, 2> colours;
    EXPECT_EQ(brush.GetLinearColors(colours.data()), Ok);
    EXPECT_EQ(colours[0].GetValue(), kBlue);
    EXPECT_EQ(colours[1].GetValue(), 0xFF00FF00U);
    EXPECT_EQ(filled(brush, 1, 1).at(0, 0), Argb{kBlue});
    EXPECT_EQ(brush.GetLinearColors(nullptr), InvalidParameter);
}

TEST(LinearGradient, GammaCorrectionIsOffAtFirst)
{
    LinearGradientBrush brush = redToBlue(0, 0, 8, 0);
    EXPECT_EQ(brush.GetGammaCorrection(), FALSE);
    EXPECT_EQ(brush.SetGammaCorrection(TRUE), Ok);
    EXPECT_EQ(brush.GetGammaCorrection(), TRUE);
    if (differsHere("gamma of gradients"))
        return;
    // Half of the light is code 188 of the sRGB curve and 186 of a plain power of 2.2.
    EXPECT_THAT(filled(brush, 8, 1).at(4, 0), Near(0xFFBB00BB, kTolerance));
}

TEST(LinearGradient, CloneDrawsTheSame)
{
    LinearGradientBrush brush = redToBlue(1, 2, 9, 7);
    brush.SetBlendTriangularShape(0.25f, 0.75f);
    brush.SetWrapMode(WrapModeTileFlipX);
    const std::unique_ptr<LinearGradientBrush> clone(brush.Clone());
    EXPECT_EQ(filled(*clone, 16, 16).pixels, filled(brush, 16, 16).pixels);
    EXPECT_EQ(clone->GetBlendCount(), 3);
    EXPECT_EQ(clone->GetWrapMode(), WrapModeTileFlipX);
}

} // namespace
} // namespace vq::test::linearGradientTests
