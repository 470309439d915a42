// SPDX-License-Identifier: MIT
// Exchange of colours and the fractal map: values typed by hand.
#include "support/ImageAccess.h"
#include "support/Pictures.h"

#include <cstdlib>

namespace vq::test {
namespace {

using Colours = CArray<ULONG, const ULONG&>;

void set(Colours& list, std::initializer_list<ULONG> colours)
{
    for (const ULONG colour : colours)
        list.Add(colour);
}

TEST(CVQDIBExchangeColorEdges, FromAndToHaveTheirBytesInDifferentOrders)
{
    CVQDIB image(4, 1);
    paint(image, {0xFFFF0000, 0x80FF0000, 0xFF0000FF, 0xFFFF0001});

    EXPECT_EQ(image.ExchangeColor(0x00FF0000, 0x00FF0000, 255), 1);

    EXPECT_TRUE(shows(image, {0xFF0000FE, 0x80FF0000, 0xFF0000FF, 0xFFFF0001}));
}

TEST(CVQDIBExchangeColorEdges, AnswersOneAlsoWhenNothingMatches)
{
    CVQDIB image(3, 1);
    paint(image, {1, 2, 3});

    EXPECT_EQ(image.ExchangeColor(0, 0xFFFFFF, 255), 1);

    EXPECT_TRUE(shows(image, {1, 2, 3}));
}

TEST(CVQDIBExchangeColorEdges, TheTopByteOfToJoinsTheWeight)
{
    CVQDIB image(1, 1);
    paint(image, {0xFF000000});

    EXPECT_EQ(image.ExchangeColor(0, 0x800000FF, 0x100), 1);

    EXPECT_TRUE(shows(image, {0xFF7F0000}));
}

TEST(CVQDIBExchangeColorEdges, EveryPixelOfEverySizeIsVisited)
{
    for (const int width : {1, 2, 15, 16, 17, 63, 64, 65, 130})
        for (const int height : {1, 2, 5}) {
            CVQDIB image(width, height);
            image.Clear(COLORREF{0});

            image.ExchangeColor(0, 0xFFFFFF, 255);

            EXPECT_TRUE(shows(image, Pixels(static_cast<std::size_t>(width * height), 0xFFFEFEFE))) << width;
        }
}

TEST(CVQDIBExchangeColorsEdges, ListsOfDifferentSizesChangeNothing)
{
    CVQDIB image(1, 1);
    paint(image, {0xFF000000});
    Colours from;
    Colours to;
    set(from, {0});

    EXPECT_EQ(image.ExchangeColors(from, to, 255), 0);
    EXPECT_TRUE(shows(image, {0xFF000000}));
    EXPECT_EQ(image.ExchangeColors(to, from, 255), 0);
    EXPECT_TRUE(shows(image, {0xFF000000}));
}

TEST(CVQDIBExchangeColorsEdges, EmptyListsChangeNothingAndAnswerOne)
{
    CVQDIB image(1, 1);
    paint(image, {0xFF000000});
    const Colours none;

    EXPECT_EQ(image.ExchangeColors(none, none, 255), 1);

    EXPECT_TRUE(shows(image, {0xFF000000}));
}

TEST(CVQDIBExchangeColorsEdges, APixelIsComparedAsItWasBefore)
{
    CVQDIB image(2, 1);
    paint(image, {0xFF000000, 0xFF0000FE});
    Colours from;
    Colours to;
    set(from, {0x000000, 0x0000FE});
    set(to, {0xFF0000, 0x000000}); // black to blue 254, which is then no black any more and not taken for blue 254

    EXPECT_EQ(image.ExchangeColors(from, to, 255), 1);

    EXPECT_TRUE(shows(image, {0xFF0000FE, 0xFF000000}));
}

TEST(CVQDIBExchangeColorsEdges, ARepeatedEntryBlendsAgain)
{
    CVQDIB image(1, 1);
    paint(image, {0xFF000000});
    Colours from;
    Colours to;
    set(from, {0, 0});
    set(to, {0x0000FF, 0x0000FF});

    image.ExchangeColors(from, to, 128);

    EXPECT_TRUE(shows(image, {0xFFBF0000})); // 127, then 127 + 128 / 2
}

Pixels fractal(unsigned seed, int width, int height, LONG alpha)
{
    CVQDIB image(width, height);
    fillRandom(image, 3);
    std::srand(seed);
    image.BuildFractalMap(10, 20, 30, alpha);
    return pixels(image);
}

TEST(CVQDIBBuildFractalMapEdges, TheSameSeedGivesTheSameImage)
{
    EXPECT_EQ(fractal(7, 65, 33, 200), fractal(7, 65, 33, 200));
    EXPECT_NE(fractal(7, 65, 33, 200), fractal(8, 65, 33, 200));
}

TEST(CVQDIBBuildFractalMapEdges, WeightZeroDrawsNumbersAndChangesNothing)
{
    CVQDIB image(9, 9);
    fillRandom(image, 1);
    const Pixels before = pixels(image);
    std::srand(5);
    const int first = std::rand();
    std::srand(5);

    image.BuildFractalMap(0, 0, 0, 0);

    EXPECT_TRUE(shows(image, before));
    EXPECT_NE(std::rand(), first);
}

TEST(CVQDIBBuildFractalMapEdges, ASinglePixelIsBlendedOnceAndThenOnlyWhereAPointFallsOnIt)
{
    CVQDIB image(1, 1);
    paint(image, {0xFF000000});

    image.BuildFractalMap(255, 0, 0, 0);

    EXPECT_TRUE(shows(image, {0xFF000000}));
}

} // namespace
} // namespace vq::test
