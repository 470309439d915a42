// SPDX-License-Identifier: MIT
#include "support/Pictures.h"

namespace vq::test {
namespace {

using Colours = CArray<COLORREF, const COLORREF&>;

void fill(Colours& colours, std::initializer_list<COLORREF> values)
{
    for (const COLORREF value : values)
        colours.Add(value);
}

TEST(CVQDIBExchangeColor, ReadsItsTwoColoursInDifferentOrders)
{
    CVQDIB image(4, 1);
    paint(image, {0xFFFF0000, 0xFEFF0000, 0xFF0000FF, 0x00FF0000});

    EXPECT_EQ(image.ExchangeColor(0x00FF0000, 0x00FF0000, 255), 1);

    EXPECT_TRUE(shows(image, {0xFF0000FE, 0xFEFF0000, 0xFF0000FF, 0x00FF0000}));
}

TEST(CVQDIBExchangeColor, TakesTheLowByteOfAlphaAndTheTopByteOfTheColourAsWeight)
{
    CVQDIB image(1, 1);
    paint(image, {0xFF000000});
    image.ExchangeColor(0, 0x000000FF, 256 + 64);
    EXPECT_EQ(image[0], 0xFF3F0000u);

    paint(image, {0xFF000000});
    image.ExchangeColor(0, 0x400000FF, 0);
    EXPECT_EQ(image[0], 0xFF3F0000u);
}

TEST(CVQDIBExchangeColor, FindsEveryPixelOfAnImage)
{
    CVQDIB image(131, 7);
    image.Clear(COLORREF{0x00010203});

    EXPECT_EQ(image.ExchangeColor(0x030201, 0, 255), 1);
    EXPECT_TRUE(shows(image, Pixels(131 * 7, 0xFF000000)));
    EXPECT_EQ(image.ExchangeColor(0x123456, 0, 255), 1) << "also when nothing matched";
}

TEST(CVQDIBExchangeColor, AnEmptyImageGivesZero)
{
    CVQDIB empty(static_cast<CVQDIB*>(nullptr));
    Colours none;

    EXPECT_EQ(empty.ExchangeColor(0, 0, 255), 0);
    EXPECT_EQ(empty.ExchangeColors(none, none, 255), 0);
}

TEST(CVQDIBExchangeColors, ComparesThePixelAsItWasBefore)
{
    CVQDIB image(3, 1);
    paint(image, {0xFF000000, 0xFF0000FE, 0xFF123456});
    Colours from;
    Colours to;
    fill(from, {0x000000, 0x0000FE});
    fill(to, {0xFF0000, 0x00FF00});

    EXPECT_EQ(image.ExchangeColors(from, to, 255), 1);

    EXPECT_TRUE(shows(image, {0xFF0000FE, 0xFF00FE00, 0xFF123456}));
}

TEST(CVQDIBExchangeColors, AColourGivenTwiceBlendsTwice)
{
    CVQDIB image(1, 1);
    paint(image, {0xFF000000});
    Colours from;
    Colours to;
    fill(from, {0, 0});
    fill(to, {0x0000FF, 0x00FF00});

    image.ExchangeColors(from, to, 128);

    EXPECT_EQ(image[0], 0xFF3F7F00u);
}

TEST(CVQDIBExchangeColors, ArraysOfDifferentSizesGiveZeroAndEmptyOnesOne)
{
    CVQDIB image(2, 1);
    paint(image, {0xFF000000, 0xFFFFFFFF});
    Colours none;
    Colours one;
    fill(one, {0});

    EXPECT_EQ(image.ExchangeColors(one, none, 255), 0);
    EXPECT_EQ(image.ExchangeColors(none, one, 255), 0);
    EXPECT_EQ(image.ExchangeColors(none, none, 255), 1);

    EXPECT_TRUE(shows(image, {0xFF000000, 0xFFFFFFFF}));
}

} // namespace
} // namespace vq::test
