// SPDX-License-Identifier: MIT
#include "parity/KnownDifferences.h"
#include "parity/Pixels.h"

#include <array>

namespace vq::test {
namespace {

using namespace Gdiplus;
using Reals = std::vector<REAL>;

class GradientBlend : public testing::Test
{
protected:
    struct Blend
    {
        Reals factors, positions;
        friend bool operator==(const Blend&, const Blend&) = default;
    };

    Blend blend() const
    {
        const auto count = static_cast<std::size_t>(brush.GetBlendCount());
        Blend result{Reals(count), Reals(count)};
        EXPECT_EQ(brush.GetBlend(result.factors.data(), result.positions.data(), static_cast<INT>(count)), Ok);
        return result;
    }

    LinearGradientBrush brush{PointF(1, 1), PointF(100, 100), Color(0xFFFF0000), Color(0xFF0000FF)};
    const std::array<REAL, 5> factors{0, 0.1f, 0.5f, 0.9f, 1};
    const std::array<REAL, 5> positions{0, 0.2f, 0.5f, 0.8f, 1};
    const std::array<Color, 5> colours{Color(0xFF0000FF), Color(0xFF00FF00), Color(0xFF00FFFF), Color(0xFFFF0000),
                                       Color(0xFFFFFFFF)};
    std::array<REAL, 6> read{};
    std::array<REAL, 6> readPositions{};
    std::array<Color, 6> readColours;
};

TEST_F(GradientBlend, IsOneEntryOfOneAtFirst)
{
    EXPECT_EQ(brush.GetBlendCount(), 1);
    EXPECT_EQ(blend().factors, Reals{1});
    EXPECT_EQ(brush.GetBlend(read.data(), readPositions.data(), 2), Ok);
}

TEST_F(GradientBlend, IsReadBackAsItWasSet)
{
    ASSERT_EQ(brush.SetBlend(factors.data(), positions.data(), 5), Ok);
    EXPECT_EQ(blend(), (Blend{{factors.begin(), factors.end()}, {positions.begin(), positions.end()}}));
    EXPECT_EQ(brush.GetBlend(read.data(), readPositions.data(), 4), InsufficientBuffer);
    EXPECT_EQ(brush.GetBlend(read.data(), readPositions.data(), 6), Ok);
}

TEST_F(GradientBlend, RefusesMissingArraysAndEntries)
{
    EXPECT_EQ(brush.SetBlend(nullptr, positions.data(), 5), InvalidParameter);
    EXPECT_EQ(brush.SetBlend(factors.data(), nullptr, 5), InvalidParameter);
    for (const INT count : {0, -1}) {
        EXPECT_EQ(brush.SetBlend(factors.data(), positions.data(), count), InvalidParameter);
        EXPECT_EQ(brush.GetBlend(read.data(), readPositions.data(), count), InvalidParameter);
    }
    EXPECT_EQ(brush.GetBlend(nullptr, readPositions.data(), 1), InvalidParameter);
    EXPECT_EQ(brush.GetBlend(read.data(), nullptr, 1), InvalidParameter);
}

TEST_F(GradientBlend, HasToRunFromPosition0To1)
{
    EXPECT_EQ(brush.SetBlend(&factors[1], &positions[1], 4), InvalidParameter);
    EXPECT_EQ(brush.SetBlend(factors.data(), positions.data(), 4), InvalidParameter);
    EXPECT_EQ(brush.GetBlendCount(), 1);
}

TEST_F(GradientBlend, OfASingleEntryMayStandAnywhere)
{
    ASSERT_EQ(brush.SetBlend(factors.data(), positions.data(), 5), Ok);
    EXPECT_EQ(brush.SetBlend(&factors[1], &positions[2], 1), Ok);
    EXPECT_EQ(blend().factors, Reals{0.1f});
    const LinearGradientBrush plain{PointF(1, 1), PointF(100, 100), Color(0xFFFF0000), Color(0xFF0000FF)};
    TestPicture expected(32, 32);
    TestPicture picture(32, 32);
    expected.graphics.FillRectangle(&plain, 0, 0, 32, 32);
    picture.graphics.FillRectangle(&brush, 0, 0, 32, 32);
    EXPECT_EQ(picture.all(), expected.all());
}

TEST_F(GradientBlend, OfTriangularShapeRisesToTheFocusAndFalls)
{
    EXPECT_EQ(brush.SetBlendTriangularShape(0.6f, 0.8f), Ok);
    EXPECT_EQ(blend(), (Blend{{0, 0.8f, 0}, {0, 0.6f, 1}}));
    EXPECT_EQ(brush.SetBlendTriangularShape(0, 0.8f), Ok);
    EXPECT_EQ(blend(), (Blend{{0.8f, 0}, {0, 1}}));
    EXPECT_EQ(brush.SetBlendTriangularShape(1, 0.8f), Ok);
    EXPECT_EQ(blend(), (Blend{{0, 0.8f}, {0, 1}}));
    EXPECT_EQ(brush.SetBlendTriangularShape(0.5f), Ok);
    EXPECT_EQ(blend(), (Blend{{0, 1, 0}, {0, 0.5f, 1}}));
}

TEST_F(GradientBlend, OfBellShapeRisesToTheFocusAndFalls)
{
    ASSERT_EQ(brush.SetBlendBellShape(0.5f, 0.8f), Ok);
    const Blend bell = blend();
    const std::size_t peak = bell.factors.size() / 2;
    EXPECT_EQ(bell.factors.size() % 2, 1U);
    EXPECT_FLOAT_EQ(bell.factors[peak], 0.8f);
    EXPECT_FLOAT_EQ(bell.positions[peak], 0.5f);
    EXPECT_EQ(bell.factors.front(), 0);
    EXPECT_EQ(bell.factors.back(), 0);
    EXPECT_EQ(bell.positions.front(), 0);
    EXPECT_EQ(bell.positions.back(), 1);
    for (std::size_t i = 0; i < peak; ++i) {
        EXPECT_LT(bell.factors[i], bell.factors[i + 1]);
        EXPECT_NEAR(bell.factors[i], bell.factors[2 * peak - i], 1e-6);
    }
    // Half way up in the middle of the slope, as curves of this kind are. Which curve and how many entries Windows has,
    // only Windows could tell.
    EXPECT_FLOAT_EQ(bell.factors[peak / 2], 0.4f);
    EXPECT_FLOAT_EQ(bell.positions[peak / 2], 0.25f);
}

TEST_F(GradientBlend, OfBellShapeWithItsFocusAtAnEndIsHalfABell)
{
    ASSERT_EQ(brush.SetBlendBellShape(0), Ok);
    EXPECT_EQ(blend().factors.front(), 1);
    EXPECT_EQ(blend().factors.back(), 0);
    ASSERT_EQ(brush.SetBlendBellShape(1), Ok);
    EXPECT_EQ(blend().factors.front(), 0);
    EXPECT_EQ(blend().factors.back(), 1);
}

TEST_F(GradientBlend, ShapesOutsideTheUnitRangeAreRefused)
{
    for (const REAL bad :
         {-0.1f, 1.1f, std::numeric_limits<REAL>::infinity(), -std::numeric_limits<REAL>::infinity()}) {
        EXPECT_EQ(brush.SetBlendBellShape(bad), InvalidParameter);
        EXPECT_EQ(brush.SetBlendBellShape(0.1f, bad), InvalidParameter);
        if (differsHere("range of triangular shapes"))
            continue;
        EXPECT_EQ(brush.SetBlendTriangularShape(bad), InvalidParameter);
        EXPECT_EQ(brush.SetBlendTriangularShape(0.1f, bad), InvalidParameter);
    }
}

TEST_F(GradientBlend, InterpolationColoursAreNoneAtFirst)
{
    EXPECT_EQ(brush.GetInterpolationColorCount(), 0);
    EXPECT_EQ(brush.GetInterpolationColors(readColours.data(), readPositions.data(), 2), GenericError);
}

TEST_F(GradientBlend, InterpolationColoursAreReadBackAsTheyWereSet)
{
    ASSERT_EQ(brush.SetInterpolationColors(colours.data(), positions.data(), 5), Ok);
    EXPECT_EQ(brush.GetInterpolationColorCount(), 5);
    EXPECT_EQ(brush.GetInterpolationColors(readColours.data(), readPositions.data(), 4), InsufficientBuffer);
    ASSERT_EQ(brush.GetInterpolationColors(readColours.data(), readPositions.data(), 5), Ok);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(readColours[i].GetValue(), colours[i].GetValue());
        EXPECT_EQ(readPositions[i], positions[i]);
    }
}

TEST_F(GradientBlend, InterpolationColoursHaveToRunFromPosition0To1)
{
    EXPECT_EQ(brush.SetInterpolationColors(nullptr, positions.data(), 5), InvalidParameter);
    EXPECT_EQ(brush.SetInterpolationColors(colours.data(), nullptr, 5), InvalidParameter);
    for (const INT count : {-1, 0, 1, 4})
        EXPECT_EQ(brush.SetInterpolationColors(colours.data(), positions.data(), count), InvalidParameter) << count;
    EXPECT_EQ(brush.SetInterpolationColors(&colours[1], &positions[1], 4), InvalidParameter);
    EXPECT_EQ(brush.GetInterpolationColorCount(), 0);
}

TEST_F(GradientBlend, InterpolationColoursTakeThePlaceOfTheTwo)
{
    LinearGradientBrush across(PointF(0, 0), PointF(8, 0), Color(0xFFFF0000), Color(0xFF0000FF));
    const std::array<Color, 3> three{Color(0xFF000000), Color(0xFF00FF00), Color(0xFFFFFFFF)};
    const std::array<REAL, 3> places{0, 0.5f, 1};
    ASSERT_EQ(across.SetInterpolationColors(three.data(), places.data(), 3), Ok);
    TestPicture picture(8, 1);
    picture.graphics.FillRectangle(&across, 0, 0, 8, 1);
    EXPECT_EQ(picture.at(0, 0), Argb{0xFF000000});
    EXPECT_THAT(picture.at(1, 0), Near(0xFF004000, 2));
    EXPECT_THAT(picture.at(4, 0), Near(0xFF00FF00, 2));
    EXPECT_THAT(picture.at(6, 0), Near(0xFF80FF80, 2));
    EXPECT_THAT(picture.at(7, 0), Near(0xFFBFFFBF, 2));
}

} // namespace
} // namespace vq::test
