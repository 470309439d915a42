// SPDX-License-Identifier: MIT
#include "DrawnImage.h"
#include "support/ImageAccess.h"

namespace vq::test {
namespace {

TEST(Pixel, OfFullAlphaStopsOneStepShortOfABrighterColour)
{
    HardImage image(3, 2, 0xFF000000);
    image.Pixel(1, 1, LONG{255}, LONG{0}, LONG{0}, LONG{255});
    EXPECT_TRUE(shows(image, {0xFF000000, 0xFF000000, 0xFF000000, 0xFF000000, 0xFFFE0000, 0xFF000000}));
}

TEST(Pixel, AddsItsAlphaToATransparentOne)
{
    HardImage image(1, 1);
    image.Pixel(0, 0, LONG{255}, LONG{0}, LONG{0}, LONG{255});
    EXPECT_EQ(at(image, 0, 0), 0xFFFE0000u);

    HardImage half(1, 1, 0x64000000);
    half.Pixel(0, 0, kRed, 100);
    EXPECT_EQ(at(half, 0, 0) >> 24, 200u);
    half.Pixel(0, 0, kRed, 100);
    EXPECT_EQ(at(half, 0, 0) >> 24, 255u) << "255 at most";
}

TEST(Pixel, OfAlphaZeroChangesNothing)
{
    HardImage image(1, 1, 0x12345678);
    image.Pixel(0, 0, LONG{255}, LONG{255}, LONG{255}, LONG{0});
    EXPECT_EQ(at(image, 0, 0), 0x12345678u);
}

/// Every channel and weight against ((c - old) * a + old * 256) >> 8, in whole numbers.
TEST(Pixel, BlendsEveryChannelByTheFormula)
{
    CVQDIB image(1, 1);
    for (int old = 0; old < 256; old += 3)
        for (int colour = 0; colour < 256; colour += 5)
            for (int alpha = 0; alpha < 256; ++alpha) {
                const auto value = static_cast<ULONG>(old);
                image(0, 0) = value << 24 | value * 0x010101;
                image.Pixel(0, 0, LONG{colour}, LONG{colour}, LONG{colour}, LONG{alpha});
                const auto blended = static_cast<ULONG>(((colour - old) * alpha + old * 256) >> 8);
                const auto sum = static_cast<ULONG>(std::min(old + alpha, 255));
                ASSERT_EQ(image(0, 0), sum << 24 | blended * 0x010101) << old << ' ' << colour << ' ' << alpha;
            }
}

TEST(Pixel, KeepsChannelsApart)
{
    HardImage image(2, 1, 0x10204080);
    image.Pixel(0, 0, LONG{200}, LONG{100}, LONG{50}, LONG{128});
    EXPECT_EQ(at(image, 0, 0), 0x90745259u); // the mean of 0x20 and 200, 0x40 and 100, 0x80 and 50, rounded down
    EXPECT_EQ(at(image, 1, 0), 0x10204080u);
}

TEST(Pixel, TakesTheLowBitsOfItsArguments)
{
    HardImage expected(1, 1, 0x10204080);
    expected.Pixel(0, 0, LONG{200}, LONG{100}, LONG{50}, LONG{128});
    HardImage image(1, 1, 0x10204080);
    image.Pixel(0, 0, LONG{200 - 256}, LONG{100 + 512}, LONG{50 + 0x7F00}, LONG{384});
    EXPECT_TRUE(showsTheSame(image, expected));
}

TEST(Pixel, TakesItsColourAsGdiDoesWithoutTheTopByte)
{
    HardImage expected(1, 1, 0x10204080);
    expected.Pixel(0, 0, LONG{200}, LONG{100}, LONG{50}, LONG{128});
    HardImage image(1, 1, 0x10204080);
    image.Pixel(0, 0, RGB(200, 100, 50) | 0xFF000000, 384);
    EXPECT_TRUE(showsTheSame(image, expected));
}

TEST(Pixel, OutsideTheImageChangesNothing)
{
    HardImage image(3, 2);
    for (const auto& [x, y] : {std::pair(3, 0), std::pair(0, 2), std::pair(-1, 0), std::pair(1, -1), std::pair(3, 2)}) {
        image.Pixel(x, y, kRed, 255);
        image.Pixel(x, y, LONG{1}, LONG{2}, LONG{3}, LONG{255});
    }
    EXPECT_EQ(findDrawn(image).count, 0);
}

TEST(Pixel, OfAnEmptyImageIsOutside)
{
    CVQDIB image(3, 2);
    VQTestAccess::destroy(image);
    image.Pixel(0, 0, kRed, 255);
    EXPECT_EQ(image.GetImageBuffer(), nullptr);
}

TEST(Pixel, NeedsNoGdiplus)
{
    CVQDIB image(3, 2);
    const HDC lent = image.GetGraphics()->GetHDC();
    image.Pixel(2, 1, kRed, 255);
    EXPECT_EQ(at(image, 2, 1), 0xFFFE0000u);
    image.GetGraphics()->ReleaseHDC(lent);
    EXPECT_EQ(image.GetGraphics()->GetLastStatus(), Gdiplus::Ok);
}

} // namespace
} // namespace vq::test
