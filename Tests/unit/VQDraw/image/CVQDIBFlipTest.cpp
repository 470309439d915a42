// SPDX-License-Identifier: MIT
#include "support/Pictures.h"

#include <utility>

namespace vq::test::cvqdibFlipTests {
namespace {

constexpr std::pair<int, int> kSizes[] = {{1, 1}, {5, 1},  {1, 2},  {1, 7},   {2, 2},   {3, 3},
                                          {7, 4}, {16, 5}, {17, 8}, {63, 65}, {129, 3}, {1000, 11}};

TEST(CVQDIBFlipVertical, MirrorsTopToBottom)
{
    CVQDIB image(3, 2);
    paint(image, {0, 1, 2, //
                  3, 4, 5});

    image.FlipVertical();

    EXPECT_TRUE(shows(image, {3, 4, 5, //
                              0, 1, 2}));
}

TEST(CVQDIBFlipVertical, LeavesTheMiddleRowOfAnOddHeight)
{
    CVQDIB image(2, 3);
    paint(image, {0, 1, //
                  2, 3, //
                  4, 5});

    image.FlipVertical();

    EXPECT_TRUE(shows(image, {4, 5, //
                              2, 3, //
                              0, 1}));
}

TEST(CVQDIBFlipVertical, LeavesASingleRow)
{
    CVQDIB image(9, 1);
    fillRandom(image, 1);
    const Pixels before = pixels(image);

    image.FlipVertical();

    EXPECT_TRUE(shows(image, before));
}

TEST(CVQDIBFlipVertical, PutsEveryRowAtItsMirrorPlace)
{
    for (const auto& [width, height] : kSizes) {
        CVQDIB image(width, height);
        fillRandom(image, 2);
        const Pixels before = pixels(image);
        Pixels expected;
        for (int row = height - 1; row >= 0; --row)
            expected.insert(expected.end(), before.begin() + row * width, before.begin() + (row + 1) * width);

        image.FlipVertical();

        EXPECT_TRUE(shows(image, expected)) << width << " x " << height;
    }
}

TEST(CVQDIBFlipVertical, TwiceChangesNothing)
{
    CVQDIB image(31, 17);
    fillRandom(image, 3);
    const Pixels before = pixels(image);

    image.FlipVertical();
    image.FlipVertical();

    EXPECT_TRUE(shows(image, before));
}

TEST(CVQDIBFlipVertical, KeepsBufferAndSize)
{
    CVQDIB image(5, 4);
    const ULONG* buffer = image.GetImageBuffer();

    image.FlipVertical();

    EXPECT_EQ(image.GetImageBuffer(), buffer);
    EXPECT_EQ(image.GetWidth(), 5);
    EXPECT_EQ(image.GetHeight(), 4);
}

TEST(CVQDIBExchangeRB, ExchangesTheFirstAndTheThirdByte)
{
    CVQDIB image(2, 1);
    paint(image, {0xAA112233, 0x00FF00FE});

    image.ExchangeRB();

    EXPECT_TRUE(shows(image, {0xAA332211, 0x00FE00FF}));
}

TEST(CVQDIBExchangeRB, EqualsAByteSwapOnePixelAtATime)
{
    for (const auto& [width, height] : kSizes) {
        CVQDIB image(width, height);
        fillRandom(image, 4);
        Pixels expected = pixels(image);
        for (ULONG& pixel : expected)
            pixel = (pixel & 0xFF00FF00) | (pixel & 0xFF) << 16 | (pixel >> 16 & 0xFF);

        image.ExchangeRB();

        EXPECT_TRUE(shows(image, expected)) << width << " x " << height;
    }
}

TEST(CVQDIBExchangeRB, TwiceChangesNothing)
{
    CVQDIB image(33, 7);
    fillRandom(image, 5);
    const Pixels before = pixels(image);

    image.ExchangeRB();
    image.ExchangeRB();

    EXPECT_TRUE(shows(image, before));
}

} // namespace
} // namespace vq::test::cvqdibFlipTests
