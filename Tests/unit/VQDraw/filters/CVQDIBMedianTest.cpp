// SPDX-License-Identifier: MIT
#include "support/Pictures.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace vq::test::cvqdibMedianTests {
namespace {

constexpr LONG kMax = std::numeric_limits<LONG>::max();
constexpr LONG kMin = std::numeric_limits<LONG>::min();

TEST(CVQDIBMedian, TurnsRedIntoBlueAndBlueIntoRed)
{
    CVQDIB image(3, 3);
    image.Clear(Gdiplus::Color(0x80FF0000));
    image.Median(nullptr);
    EXPECT_EQ(image.GetColor(1, 1), 0x800000FFu);
    EXPECT_EQ(image.GetColor(0, 0), 0x80FF0000u);

    image.Clear(Gdiplus::Color(0x800000FF));
    image.Median(nullptr);
    EXPECT_EQ(image.GetColor(1, 1), 0x80FF0000u);
}

TEST(CVQDIBMedian, LeavesGrey)
{
    CVQDIB image(9, 7);
    image.Clear(Gdiplus::Color(0xFF808080));

    image.Median(nullptr);

    EXPECT_TRUE(shows(image, Pixels(63, 0xFF808080)));
}

TEST(CVQDIBMedian, TakesTheFifthOfNineValuesWhereverTheyStand)
{
    CVQDIB image(3, 3);
    ULONG values[] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    do {
        for (std::size_t i = 0; i < 9; ++i)
            image[static_cast<std::int64_t>(i)] = values[i] << 16 | (10 * values[i]) << 8 | (100 + values[i]);

        image.Median(nullptr);

        ASSERT_EQ(image.GetColor(1, 1), 0x00693205u); // 105, 50, 5
    } while (std::next_permutation(std::begin(values), std::end(values)));
}

TEST(CVQDIBMedian, KeepsTheFrameAndAlpha)
{
    CVQDIB image(6, 5);
    fillRandom(image, 1);
    const Pixels before = pixels(image);
    CRect rect(kMin, kMin, kMax, kMax);

    image.Median(&rect);

    for (LONG y = 0; y < 5; ++y)
        for (LONG x = 0; x < 6; ++x) {
            const ULONG old = before[static_cast<std::size_t>(y * 6 + x)];
            const bool isFrame = x == 0 || y == 0 || x == 5 || y == 4;
            EXPECT_EQ(image.GetA(x, y), old >> 24);
            EXPECT_TRUE(!isFrame || image.GetColor(x, y) == old) << x << ", " << y;
        }
}

TEST(CVQDIBMedian, WritesTheClampedRectangleBack)
{
    const struct
    {
        CRect before, after;
    } cases[] = {
        {{2, 3, 5, 4}, {2, 3, 5, 4}},
        {{5, 4, 2, 3}, {2, 3, 5, 4}},             // normalised
        {{0, 0, 0, 0}, {1, 1, 1, 1}},             // the bottom is raised to the top
        {{-9, -9, 99, 2}, {1, 1, 8, 2}},          //
        {{3, 99, 4, 99}, {3, 4, 4, 4}},           // below: height - 2
        {{3, 2, 4, 7}, {3, 2, 4, 7}},             // a bottom within the width stays, although it is outside
        {{3, 2, 4, 9}, {3, 2, 4, 4}},             // beyond width - 2
        {{kMin, kMin, kMax, kMax}, {1, 1, 8, 4}}, //
        {{kMax, kMax, kMax, kMax}, {8, 4, 8, 4}}, //
        {{kMin, kMin, kMin, kMin}, {1, 1, 1, 1}}, //
    };
    CVQDIB image(10, 6);
    for (const auto& [before, after] : cases) {
        CRect rect = before;
        image.Median(&rect);
        EXPECT_EQ(rect, after) << before.left << ' ' << before.top << ' ' << before.right << ' ' << before.bottom;
    }
}

TEST(CVQDIBMedian, OfANarrowImageReachesFurtherDownThanAsked)
{
    CVQDIB image(3, 9);
    CRect rect(1, 1, 1, 2);

    image.Median(&rect);

    EXPECT_EQ(rect, CRect(1, 1, 1, 7));
}

TEST(CVQDIBMedian, IncludesBothEdgesOfTheRectangle)
{
    CVQDIB image(6, 6);
    image.Clear(Gdiplus::Color(0xFFFF0000));
    CRect rect(2, 2, 3, 4);

    image.Median(&rect);

    Pixels expected(36, 0xFFFF0000);
    for (const std::size_t index : {14u, 15u, 20u, 21u, 26u, 27u})
        expected[index] = 0xFF0000FF;
    EXPECT_TRUE(shows(image, expected));
}

TEST(CVQDIBMedian, DoesNothingBelowThreeRowsOrColumns)
{
    for (const CSize& size : {CSize(2, 9), CSize(9, 2), CSize(1, 1)}) {
        CVQDIB image(size.cx, size.cy);
        fillRandom(image, 2);
        const Pixels before = pixels(image);
        CRect rect(7, 7, -7, -7);

        image.Median(&rect);
        image.Median(nullptr);

        EXPECT_TRUE(shows(image, before));
        EXPECT_EQ(rect, CRect(7, 7, -7, -7));
    }
}

} // namespace
} // namespace vq::test::cvqdibMedianTests
