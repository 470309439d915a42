// SPDX-License-Identifier: MIT
#include "parity/Pixels.h"
#include "unit/Platform/gdiplus/GdiplusSession.h"

#include <array>
#include <limits>
#include <memory>

namespace vq::test {
namespace {

using namespace Gdiplus;
class Brushes : public GdiplusTest
{
};

constexpr REAL kNoNumber = std::numeric_limits<REAL>::quiet_NaN();
constexpr REAL kInfinite = std::numeric_limits<REAL>::infinity();

LinearGradientBrush redToBlue()
{
    return LinearGradientBrush(PointF(0, 0), PointF(8, 0), Color(0xFFFF0000), Color(0xFF0000FF));
}

Row rowOf(const Brush& brush)
{
    TestPicture picture(8, 1);
    EXPECT_EQ(picture.graphics.FillRectangle(&brush, 0, 0, 8, 1), Ok);
    return picture.all();
}

TEST_F(Brushes, HatchIsTheSameWhereverARowStarts)
{
    const HatchBrush brush(HatchStyleWave, Color(0xFF102030), Color(0xFF80FF00));
    TestPicture whole(40, 8);
    whole.graphics.FillRectangle(&brush, 0, 0, 40, 8);
    for (int left = 0; left < 20; ++left)
        for (int width = 1; width < 20; ++width) {
            TestPicture part(40, 8);
            part.graphics.FillRectangle(&brush, left, 0, width, 8);
            for (int y = 0; y < 8; ++y)
                for (int x = left; x < left + width; ++x)
                    ASSERT_EQ(part.at(x, y), whole.at(x, y)) << left << ", " << width;
            ASSERT_EQ(part.find(0).count, 8 * (40 - width));
        }
}

TEST_F(Brushes, HatchTakesEveryRenderingOrigin)
{
    const HatchBrush brush(HatchStyleCross, Color(0xFF000000), Color(0xFFFFFFFF));
    for (const INT origin : {std::numeric_limits<INT>::min(), std::numeric_limits<INT>::max() - 7}) {
        TestPicture picture(9, 9);
        picture.graphics.SetRenderingOrigin(origin, origin);
        picture.graphics.FillRectangle(&brush, 0, 0, 9, 9);
        EXPECT_EQ(picture.find(0xFF000000).count, 4 * 9 - 4) << origin;
    }
}

TEST_F(Brushes, TranslucentHatchIsMixedAsPremultipliedColours)
{
    const HatchBrush brush(HatchStyleForwardDiagonal, Color(0x80FF8040), Color(0x4000FF80));
    TestPicture picture(8, 1);
    picture.graphics.FillRectangle(&brush, 0, 0, 8, 1);
    // Alpha (128 * 234 + 64 * 21) / 255 = 122.7; red 255 * 128 * 234 / (128 * 234 + 64 * 21) = 244.05 and so on.
    EXPECT_EQ(picture.at(0, 0), Argb{0x7BF48543});
    EXPECT_EQ(picture.at(2, 0), Argb{0x4000FF80});
}

TEST(BrushesBeforeStartUp, AreNotMade)
{
    EXPECT_EQ(HatchBrush(HatchStyleCross, Color()).GetLastStatus(), GdiplusNotInitialized);
    EXPECT_EQ(redToBlue().GetLastStatus(), GdiplusNotInitialized);
}

TEST_F(Brushes, GradientWithoutAPlaceFillsNothing)
{
    for (const PointF& point : {PointF(kNoNumber, 0), PointF(0, kInfinite), PointF(kNoNumber, kInfinite)}) {
        const LinearGradientBrush brush(point, PointF(3, 4), Color(0xFFFF0000), Color(0xFF0000FF));
        EXPECT_EQ(brush.GetLastStatus(), Ok);
        TestPicture picture(4, 4);
        EXPECT_EQ(picture.graphics.FillRectangle(&brush, 0, 0, 4, 4), InvalidParameter);
        EXPECT_EQ(picture.find(0).count, 16);
    }
    const LinearGradientBrush turned(RectF(0, 0, 8, 8), Color(), Color(), kInfinite);
    TestPicture picture(4, 4);
    EXPECT_EQ(picture.graphics.FillRectangle(&turned, 0, 0, 4, 4), InvalidParameter);
}

TEST_F(Brushes, RectangleOfAGradientIsRoundedToWholeNumbersHalvesUpwards)
{
    const LinearGradientBrush brush(PointF(0.6f, 1.5f), PointF(10.5f, -3.5f), Color(), Color());
    Rect rect;
    EXPECT_EQ(brush.GetRectangle(&rect), Ok);
    EXPECT_TRUE(rect.Equals(Rect(1, -3, 10, 5)));
    const LinearGradientBrush far(PointF(-1e30f, kNoNumber), PointF(1e30f, 0), Color(), Color());
    EXPECT_EQ(far.GetRectangle(&rect), Ok);
    EXPECT_EQ(rect.X, std::numeric_limits<INT>::min());
    EXPECT_EQ(rect.Width, std::numeric_limits<INT>::max());
    EXPECT_EQ(rect.Height, 0);
    EXPECT_EQ(brush.GetRectangle(static_cast<Rect*>(nullptr)), InvalidParameter);
    EXPECT_EQ(brush.GetRectangle(static_cast<RectF*>(nullptr)), InvalidParameter);
}

TEST_F(Brushes, RefusedBlendLeavesTheGradientAsItWas)
{
    LinearGradientBrush brush = redToBlue();
    brush.SetBlendTriangularShape(0.5f);
    const Row before = rowOf(brush);
    const std::array<REAL, 2> half{0, 0.5f};
    const std::array<Color, 2> colours;
    EXPECT_EQ(brush.SetBlend(half.data(), half.data(), 2), InvalidParameter);
    EXPECT_EQ(brush.SetInterpolationColors(colours.data(), half.data(), 2), InvalidParameter);
    EXPECT_EQ(brush.SetWrapMode(WrapModeClamp), InvalidParameter);
    EXPECT_EQ(rowOf(brush), before);
    EXPECT_EQ(brush.GetBlendCount(), 3);
}

TEST_F(Brushes, BlendTakesThePlaceOfInterpolationColours)
{
    LinearGradientBrush brush = redToBlue();
    const Row plain = rowOf(brush);
    const std::array<REAL, 2> unit{0, 1};
    const std::array<Color, 2> colours{Color(0xFF00FF00), Color(0xFFFFFFFF)};
    EXPECT_EQ(brush.SetInterpolationColors(colours.data(), unit.data(), 2), Ok);
    EXPECT_NE(rowOf(brush), plain);
    EXPECT_EQ(brush.SetBlend(unit.data(), unit.data(), 2), Ok);
    EXPECT_EQ(rowOf(brush), plain);
    EXPECT_EQ(brush.GetInterpolationColorCount(), 0);
}

/// GDI+ takes any position between the ends.
TEST_F(Brushes, StopsOutOfOrderArePassedOver)
{
    LinearGradientBrush brush = redToBlue();
    const Row plain = rowOf(brush);
    for (const REAL place : {-1.0f, 10.0f, kNoNumber, kInfinite, -kInfinite}) {
        const std::array<REAL, 3> positions{0, place, 1};
        const std::array<REAL, 3> factors{0, 0.9f, 1};
        EXPECT_EQ(brush.SetBlend(factors.data(), positions.data(), 3), Ok);
        EXPECT_EQ(rowOf(brush), plain) << place;
    }
}

TEST_F(Brushes, FactorsBeyondTheUnitRangeCountAsItsEnds)
{
    LinearGradientBrush brush = redToBlue();
    const std::array<REAL, 4> positions{0, 0.25f, 0.5f, 1};
    const std::array<REAL, 4> wild{kNoNumber, 1e30f, -5, kInfinite};
    const std::array<REAL, 4> tame{0, 1, 0, 1};
    EXPECT_EQ(brush.SetBlend(wild.data(), positions.data(), 4), Ok);
    const Row found = rowOf(brush);
    EXPECT_EQ(brush.SetBlend(tame.data(), positions.data(), 4), Ok);
    EXPECT_EQ(found, rowOf(brush));
}

/// GDI+ lets a shape pass whose focus is no number.
TEST_F(Brushes, ShapeWithoutAFocusIsNotSeen)
{
    LinearGradientBrush brush = redToBlue();
    EXPECT_EQ(brush.SetBlendBellShape(kNoNumber), Ok);
    EXPECT_EQ(rowOf(brush), Row(8, Argb{0xFFFF0000}));
}

TEST_F(Brushes, StepsInAGradientAreSharp)
{
    LinearGradientBrush brush = redToBlue();
    const std::array<REAL, 4> positions{0, 0.5f, 0.5f, 1};
    const std::array<REAL, 4> factors{0, 0, 1, 1};
    brush.SetBlend(factors.data(), positions.data(), 4);
    const Argb red{0xFFFF0000};
    const Argb blue{0xFF0000FF};
    EXPECT_EQ(rowOf(brush), (Row{red, red, red, red, blue, blue, blue, blue}));
}

TEST_F(Brushes, UnknownWrapModesAreRefused)
{
    LinearGradientBrush brush = redToBlue();
    for (const int mode : {-1, 4, 5})
        EXPECT_EQ(brush.SetWrapMode(static_cast<WrapMode>(mode)), InvalidParameter) << mode;
}

TEST_F(Brushes, BellFollowsTheCumulatedNormalDistribution)
{
    LinearGradientBrush brush = redToBlue();
    ASSERT_EQ(brush.SetBlendBellShape(1), Ok);
    std::array<REAL, 17> factors;
    std::array<REAL, 17> positions;
    ASSERT_EQ(brush.GetBlend(factors.data(), positions.data(), 17), Ok);
    // Tables of the distribution: 0.0228 below two standard deviations, 0.1587 below one; the range between two on
    // either side is stretched to 0 .. 1.
    EXPECT_NEAR(factors[4], (0.158655 - 0.022750) / 0.954500, 1e-5);
    EXPECT_NEAR(factors[8], 0.5, 1e-6);
    EXPECT_NEAR(factors[12], (0.841345 - 0.022750) / 0.954500, 1e-5);
}

} // namespace
} // namespace vq::test
