// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace vq::test::numbersTests {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

TEST(MulDiv, RoundsHalvesAwayFromZero)
{
    EXPECT_EQ(MulDiv(5, 1, 2), 3);
    EXPECT_EQ(MulDiv(-5, 1, 2), -3);
    EXPECT_EQ(MulDiv(5, 1, -2), -3);
    EXPECT_EQ(MulDiv(-5, -1, 2), 3);
    EXPECT_EQ(MulDiv(4, 1, 3), 1);
    EXPECT_EQ(MulDiv(-4, 1, 3), -1);
}

TEST(MulDiv, GivesTheHeightsOfFonts)
{
    EXPECT_EQ(MulDiv(-11, 96, 96), -11);
    EXPECT_EQ(MulDiv(-11, 144, 96), -17); // 16.5
    EXPECT_EQ(MulDiv(15, 72, 96), 11);    // 11.25
}

TEST(MulDiv, IsExactWhereTheProductNeeds64Bits)
{
    EXPECT_EQ(MulDiv(kMost, kMost, kMost), kMost);
    EXPECT_EQ(MulDiv(kLeast, 1, 2), kLeast / 2);
    EXPECT_EQ(MulDiv(2'000'000'000, 3, 6), 1'000'000'000);
}

TEST(MulDiv, ReturnsMinusOneForZeroAndForWhatDoesNotFit)
{
    EXPECT_EQ(MulDiv(7, 1, 0), -1);
    EXPECT_EQ(MulDiv(kMost, 2, 1), -1);
    EXPECT_EQ(MulDiv(kLeast, -1, 1), -1);
    EXPECT_EQ(MulDiv(kLeast, 1, 1), -1); // the magnitude counts
    EXPECT_EQ(MulDiv(1, 1, kLeast), 0);
}

TEST(MulDiv, AgreesWithExtendedPrecision)
{
    std::mt19937 random(20240611);
    std::uniform_int_distribution<int> numbers(-1'000'000, 1'000'000);
    for (int round = 0; round < 10'000; ++round) {
        const int number = numbers(random);
        const int numerator = numbers(random);
        const int denominator = numbers(random);
        if (denominator == 0)
            continue;
        const long double exact = static_cast<long double>(number) * numerator / denominator;
        const long double rounded = std::round(exact);
        const int expected = std::abs(rounded) > kMost ? -1 : static_cast<int>(rounded);
        ASSERT_EQ(MulDiv(number, numerator, denominator), expected)
            << number << " * " << numerator << " / " << denominator;
    }
}

TEST(ColorRGBToHLS, GivesThePublishedValues)
{
    struct Case
    {
        COLORREF colour;
        int hue;
        int luminance;
        int saturation;
    };
    constexpr Case kCases[]{
        {0x000000, 160, 0, 0},     {0x0000FF, 0, 120, 240},  {0x00FF00, 80, 120, 240},
        {0xFF0000, 160, 120, 240}, {0x414141, 160, 61, 0},   {0x3F3F3F, 160, 59, 0},
        {0x102030, 20, 30, 120},   {0x1E140A, 140, 19, 120}, {0xFFFFFF, 160, 240, 0},
    };
    for (const Case& c : kCases) {
        WORD hue = 999;
        WORD luminance = 999;
        WORD saturation = 999;
        ColorRGBToHLS(c.colour, &hue, &luminance, &saturation);
        EXPECT_EQ(hue, c.hue) << std::hex << c.colour;
        EXPECT_EQ(luminance, c.luminance) << std::hex << c.colour;
        EXPECT_EQ(saturation, c.saturation) << std::hex << c.colour;
    }
}

TEST(ColorRGBToHLS, StaysInItsRangesForAllColours)
{
    for (COLORREF colour = 0; colour < 0x1000000; colour += 0x000331) {
        WORD hue = 0;
        WORD luminance = 0;
        WORD saturation = 0;
        ColorRGBToHLS(colour, &hue, &luminance, &saturation);
        ASSERT_LE(hue, 240);
        ASSERT_LE(luminance, 240);
        ASSERT_LE(saturation, 240);
    }
}

} // namespace
} // namespace vq::test::numbersTests
