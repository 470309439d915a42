// SPDX-License-Identifier: MIT
#include "support/Pictures.h"

#include <limits>

namespace vq::test::cvqdibSaturateAlphaTests {
namespace {

constexpr LONG kMax = std::numeric_limits<LONG>::max();
constexpr LONG kMin = std::numeric_limits<LONG>::min();

/// (alpha * (s + 1)) >> 8 in 32 bits that wrap round, cut to a byte; exact in 64 bits, as division that rounds down.
ULONG scaled(ULONG alpha, LONG s)
{
    constexpr std::int64_t kRange = std::int64_t{1} << 32;
    const std::int64_t product = (std::int64_t{alpha} * (std::int64_t{s} + 1)) % kRange;
    const std::int64_t wrapped = (product + kRange) % kRange;
    return static_cast<ULONG>(wrapped / 256 % 256);
}

Pixels everyAlpha(std::uint32_t seed)
{
    Pixels content = randomPixels(256, seed);
    for (ULONG alpha = 0; alpha < 256; ++alpha)
        content[alpha] = (content[alpha] & 0x00FFFFFF) | alpha << 24;
    return content;
}

Pixels scaledPixels(Pixels content, LONG s)
{
    for (ULONG& pixel : content)
        pixel = (pixel & 0x00FFFFFF) | scaled(pixel >> 24, s) << 24;
    return content;
}

std::vector<LONG> interestingFactors()
{
    std::vector<LONG> factors = {kMin, kMin + 1, kMax - 1, kMax, -65537, -65536, 65535, 65536, 0x00FFFFFF, 0x01000000};
    for (LONG s = -600; s <= 1100; ++s)
        factors.push_back(s);
    for (const ULONG value : randomPixels(300, 11))
        factors.push_back(static_cast<LONG>(value));
    return factors;
}

TEST(CVQDIBSaturateAlpha, TwoHundredFiftyFiveKeepsAlpha)
{
    CVQDIB image(16, 16);
    paint(image, everyAlpha(1));

    image.SaturateAlphaChannel(255);

    EXPECT_TRUE(shows(image, everyAlpha(1)));
}

TEST(CVQDIBSaturateAlpha, ScalesTruncatesAndKeepsTheLowByte)
{
    const struct
    {
        LONG factor;
        ULONG before, after;
    } cases[] = {{127, 200, 100}, {511, 200, 144}, {0, 255, 0},  {0, 200, 0},     {254, 255, 254},
                 {127, 201, 100}, {-1, 200, 0},    {-2, 1, 255}, {256, 255, 255}, {256, 1, 1}};
    CVQDIB image(1, 1);
    for (const auto& [factor, before, after] : cases) {
        paint(image, {before << 24 | 0xABCDEF});

        image.SaturateAlphaChannel(factor);

        EXPECT_TRUE(shows(image, {after << 24 | 0xABCDEF})) << before << " by " << factor;
    }
}

TEST(CVQDIBSaturateAlpha, FollowsTheFormulaForEveryAlphaAndManyFactors)
{
    CVQDIB image(16, 16);
    const Pixels content = everyAlpha(2);
    for (const LONG factor : interestingFactors()) {
        paint(image, content);

        image.SaturateAlphaChannel(factor);

        ASSERT_TRUE(shows(image, scaledPixels(content, factor))) << "factor " << factor;
    }
}

TEST(CVQDIBSaturateAlpha, TouchesEveryPixelOfOddSizes)
{
    for (const int width : {1, 2, 3, 5, 7, 15, 17, 31, 33, 65}) {
        CVQDIB image(width, 3);
        fillRandom(image, 3);
        const Pixels before = pixels(image);

        image.SaturateAlphaChannel(99);

        EXPECT_TRUE(shows(image, scaledPixels(before, 99))) << "width " << width;
    }
}

TEST(CVQDIBSaturateScanlineAlpha, ScalesOneRow)
{
    for (LONG row = 0; row < 3; ++row) {
        CVQDIB image(41, 3);
        fillRandom(image, 4);
        Pixels expected = pixels(image);
        for (std::size_t x = 0; x < 41; ++x) {
            ULONG& pixel = expected[static_cast<std::size_t>(row) * 41 + x];
            pixel = (pixel & 0x00FFFFFF) | scaled(pixel >> 24, 63) << 24;
        }

        image.SaturateScanlineAlpha(row, 63);

        EXPECT_TRUE(shows(image, expected)) << "row " << row;
    }
}

TEST(CVQDIBSaturateScanlineAlpha, FollowsTheFormulaForEveryAlphaAndManyFactors)
{
    CVQDIB image(256, 1);
    const Pixels content = everyAlpha(5);
    for (const LONG factor : interestingFactors()) {
        paint(image, content);

        image.SaturateScanlineAlpha(0, factor);

        ASSERT_TRUE(shows(image, scaledPixels(content, factor))) << "factor " << factor;
    }
}

TEST(CVQDIBSaturateScanlineAlpha, DoesNothingOutsideTheImage)
{
    CVQDIB image(3, 4);
    fillRandom(image, 6);
    const Pixels before = pixels(image);
    for (const LONG row : {LONG{-1}, LONG{4}, LONG{5}, kMin, kMax})
        image.SaturateScanlineAlpha(row, 0);

    EXPECT_TRUE(shows(image, before));
}

} // namespace
} // namespace vq::test::cvqdibSaturateAlphaTests
