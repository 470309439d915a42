// SPDX-License-Identifier: MIT
#include "vqGeometry/VQColor.h"
#include "vqGeometry/VQPoint.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

namespace {

TEST(CVQColor, IsOpaqueBlackUnlessToldOtherwise)
{
    EXPECT_EQ(CVQColor(), CVQColor(0, 0, 0, 255));
    EXPECT_EQ(CVQColor(), CVQColor::Black);
    EXPECT_EQ(CVQColor(255, 255, 255), CVQColor::White);
}

TEST(CVQColor, LiesInMemoryAsRedGreenBlueAlpha)
{
    const CVQColor colour(1, 2, 3, 4);
    const BYTE expected[] = {1, 2, 3, 4};
    EXPECT_EQ(std::memcmp(&colour, expected, sizeof expected), 0);
    EXPECT_EQ(colour.GetR(), 1);
    EXPECT_EQ(colour.GetG(), 2);
    EXPECT_EQ(colour.GetB(), 3);
    EXPECT_EQ(colour.GetA(), 4);
}

TEST(CVQColor, PacksRedIntoTheLowByteAndAlphaIntoTheHighOne)
{
    const CVQColor colour(0x11, 0x22, 0x33, 0x44);
    EXPECT_EQ(colour.GetCOLORREF(), 0x00332211u);
    EXPECT_EQ(colour.GetPacked(), 0x44332211u);
}

TEST(CVQColor, TakesTheAlphaOfAPackedColourOnlyWhenAsked)
{
    CVQColor colour;
    colour.Set(0x44332211, false);
    EXPECT_EQ(colour, CVQColor(0x11, 0x22, 0x33, 255));
    colour.Set(0x44332211, true);
    EXPECT_EQ(colour, CVQColor(0x11, 0x22, 0x33, 0x44));
}

TEST(CVQColor, ClampsIntegers)
{
    CVQColor colour;
    colour.Set(-1, 256, 128, 100000);
    EXPECT_EQ(colour, CVQColor(0, 255, 128, 255));
}

TEST(CVQColor, TruncatesFloatsAndTakesWhatIsNoNumberForZero)
{
    CVQColor colour;
    const float values[] = {0.5f, 1.5f, -0.5f, std::nanf("")};
    colour.Set3fv(values);
    EXPECT_EQ(colour, CVQColor(127, 255, 0, 255)); // 0.5 * 255 = 127.5
    colour.Set4fv(values);
    EXPECT_EQ(colour, CVQColor(127, 255, 0, 0));
    colour.Set4fv(nullptr);
    colour.Set3fv(nullptr);
    EXPECT_EQ(colour, CVQColor(127, 255, 0, 0));
}

TEST(CVQColor, FloatsOfBytesReadBackToTheSameByteOrTheOneBelow)
{
    for (int byte = 0; byte < 256; ++byte) {
        const float value = static_cast<float>(byte) / 255.0f;
        const float values[] = {value, value, value, value};
        CVQColor colour;
        colour.Set4fv(values);
        EXPECT_EQ(colour.r, static_cast<int>(value * 255.0f)) << byte;
    }
}

TEST(CVQColor, AddsAndSubtractsWithoutWrappingAndKeepsTheLeftAlpha)
{
    EXPECT_EQ(CVQColor(200, 10, 0, 7) + CVQColor(100, 20, 0, 9), CVQColor(255, 30, 0, 7));
    EXPECT_EQ(CVQColor(200, 10, 0, 7) - CVQColor(100, 20, 0, 9), CVQColor(100, 0, 0, 7));
}

TEST(CVQPoint, StartsAtTheOrigin)
{
    const CVQPoint origin;
    const CVQPoint point(1, -2, 3.5);
    EXPECT_EQ(origin.x + origin.y + origin.z, 0.0);
    EXPECT_EQ(point.x, 1.0);
    EXPECT_EQ(point.y, -2.0);
    EXPECT_EQ(point.z, 3.5);
}

} // namespace
