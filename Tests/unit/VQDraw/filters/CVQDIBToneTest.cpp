// SPDX-License-Identifier: MIT
#include "support/Pictures.h"

#include <functional>
#include <limits>

namespace vq::test {
namespace {

ULONG toned(ULONG old, const std::function<void(CVQDIB&)>& operation)
{
    CVQDIB image(1, 1);
    paint(image, {old});
    operation(image);
    return image[0];
}

TEST(CVQDIBDarkenLevel, StopsAtZeroAndKeepsAlpha)
{
    CVQDIB image(65, 1);
    paint(image, Pixels(65, 0x141EC828));

    image.Darken(40);

    EXPECT_TRUE(shows(image, Pixels(65, 0x1400A000)));
}

TEST(CVQDIBDarkenLevel, ANegativeLevelBrightensAndWrapsRound)
{
    EXPECT_EQ(toned(0x14C81E00, [](CVQDIB& image) { image.Darken(-100); }), 0x142C8264u);
    EXPECT_EQ(toned(0x14C81E00, [](CVQDIB& image) { image.Darken(-256); }), 0x14C81E00u);
}

TEST(CVQDIBDarkenLevel, TakesAnyLevel)
{
    constexpr LONG kMax = std::numeric_limits<LONG>::max();
    EXPECT_EQ(toned(0x14FFFEFD, [](CVQDIB& image) { image.Darken(0); }), 0x14FFFEFDu);
    EXPECT_EQ(toned(0x14FFFEFD, [](CVQDIB& image) { image.Darken(254); }), 0x14010000u);
    EXPECT_EQ(toned(0x14FFFEFD, [](CVQDIB& image) { image.Darken(300); }), 0x14000000u);
    EXPECT_EQ(toned(0x14FFFEFD, [](CVQDIB& image) { image.Darken(kMax); }), 0x14000000u);
    EXPECT_EQ(toned(0x14FF0001, [](CVQDIB& image) { image.Darken(-kMax); }), 0x1400FF00u) << "sums beyond 32 bits";
    EXPECT_EQ(toned(0x14FF0001, [](CVQDIB& image) { image.Darken(-kMax - 1); }), 0x14000000u);
}

TEST(CVQDIBQuantize, ClearsTheLowBitsOfAllFourBytes)
{
    EXPECT_EQ(toned(0xFFFFFFFF, [](CVQDIB& image) { image.Quantize(3); }), 0xF8F8F8F8u);
    EXPECT_EQ(toned(0xFF7F8001, [](CVQDIB& image) { image.Quantize(7); }), 0x80008000u);
}

TEST(CVQDIBQuantize, OnlyThreeBitsOfTheArgumentCount)
{
    for (const LONG n : {0, 8, 16, -8})
        EXPECT_EQ(toned(0x12345679, [n](CVQDIB& image) { image.Quantize(n); }), 0x12345679u) << n;
    EXPECT_EQ(toned(0xFFFFFFFF, [](CVQDIB& image) { image.Quantize(-1); }), 0x80808080u);
}

TEST(CVQDIBInvert, TwiceInvertedIsUnchangedAndAlphaStays)
{
    CVQDIB image(67, 3);
    fillRandom(image, 1);
    const Pixels before = pixels(image);

    image.Invert();
    for (std::size_t i = 0; i < before.size(); ++i)
        ASSERT_EQ(image[static_cast<std::int64_t>(i)], before[i] ^ 0x00FFFFFF);
    image.Invert();

    EXPECT_TRUE(shows(image, before));
}

TEST(CVQDIBConvertToGray, WeighsTheColours)
{
    CVQDIB image(5, 1);
    paint(image, {0x11FF0000, 0x2200FF00, 0x330000FF, 0x44FFFFFF, 0x55000000});

    image.ConvertToGray();

    EXPECT_TRUE(shows(image, {0x114C4C4C, 0x22959595, 0x331D1D1D, 0x44FFFFFF, 0x55000000}));
}

TEST(CVQDIBConvertToGray, EqualsTheSumsInTheirOrder)
{
    CVQDIB image(1031, 61);
    fillRandom(image, 5);
    const Pixels before = pixels(image);

    image.ConvertToGray();

    for (std::size_t i = 0; i < before.size(); ++i) {
        const auto channel = [&](int shift) { return static_cast<float>(before[i] >> shift & 0xFF); };
        const float greenAndBlue = channel(8) * 0.587f + channel(0) * 0.114f;
        const auto grey = static_cast<ULONG>(greenAndBlue + channel(16) * 0.299f);
        ASSERT_EQ(image[static_cast<std::int64_t>(i)], (before[i] & 0xFF000000) | grey * 0x010101) << i;
    }
}

TEST(CVQDIBConvertToGrayRect, TakesThePlainMeanBetweenBothEdges)
{
    CVQDIB image(8, 8);
    paint(image, Pixels(64, 0x40FF0102));

    image.ConvertToGray(CRect(5, 5, 2, 2));

    for (LONG y = 0; y < 8; ++y) {
        for (LONG x = 0; x < 8; ++x) {
            const bool inside = x >= 2 && x <= 5 && y >= 2 && y <= 5;
            ASSERT_EQ(image(x, y), inside ? 0x40565656u : 0x40FF0102u) << x << ", " << y;
        }
    }
}

TEST(CVQDIBConvertToGrayRect, IsCutToTheImage)
{
    CVQDIB image(4, 4);
    paint(image, Pixels(16, 0x40FF0102));
    const Pixels before = pixels(image);
    for (const CRect& rect : {CRect(-5, 0, -1, 3), CRect(0, -5, 3, -1), CRect(4, 0, 9, 9), CRect(0, 4, 9, 9)})
        image.ConvertToGray(rect);
    EXPECT_TRUE(shows(image, before));

    image.ConvertToGray(CRect(3, -9, 20, 0));

    EXPECT_EQ(image(3, 0), 0x40565656u);
    EXPECT_EQ(image(2, 0), 0x40FF0102u);
    EXPECT_EQ(image(3, 1), 0x40FF0102u);
}

TEST(CVQDIBEqualize, LeavesAnImageOfOneBlueAlone)
{
    CVQDIB image(70, 2);
    fillRandom(image, 1);
    for (std::int64_t i = 0; i < image.GetSize(); ++i)
        image[i] = (image[i] & 0xFFFFFF00) | 77;
    const Pixels before = pixels(image);

    image.Equalize();

    EXPECT_TRUE(shows(image, before));
}

TEST(CVQDIBEqualize, StretchesEveryRangeOfBlueExactly)
{
    for (ULONG low = 0; low < 255; low += 7) {
        for (ULONG high = low + 1; high < 256; ++high) {
            CVQDIB image(static_cast<int>(high - low + 1), 1);
            for (ULONG blue = low; blue <= high; ++blue)
                image[blue - low] = 0x40AB0000 | (255 - blue) << 8 | blue;

            image.Equalize();

            for (ULONG blue = low; blue <= high; ++blue)
                ASSERT_EQ(image[blue - low], 0x40000000 | (blue - low) * 255 / (high - low) * 0x010101)
                    << low << " .. " << high << " at " << blue;
        }
    }
}

TEST(CVQDIBEqualize, FindsTheRangeWhereverItStands)
{
    for (const std::int64_t place : {0, 1, 4095, 4096, 4097, 9999}) {
        CVQDIB image(10000, 1);
        paint(image, Pixels(10000, 0x40FFFF80));
        image[place] = 0x4000007F;

        image.Equalize();

        ASSERT_EQ(image[place], 0x40000000u);
        ASSERT_EQ(image[place == 5 ? 6 : 5], 0x40FFFFFFu);
    }
}

} // namespace
} // namespace vq::test
