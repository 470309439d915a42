// SPDX-License-Identifier: MIT
#include "support/Pictures.h"

#include <cstdlib>

namespace vq::test {
namespace {

Pixels coloursOf(Pixels content)
{
    for (ULONG& pixel : content)
        pixel &= 0x00FFFFFF;
    return content;
}

TEST(CVQDIBFractal, TheSameSeedAndImageGiveTheSamePicture)
{
    CVQDIB first(70, 45);
    CVQDIB second(70, 45);
    fillRandom(first, 1);
    fillRandom(second, 1);

    std::srand(7);
    first.BuildFractalMap(100, 150, 200, 200);
    std::srand(7);
    second.BuildFractalMap(100, 150, 200, 200);

    EXPECT_TRUE(shows(second, pixels(first)));
}

TEST(CVQDIBFractal, WeightZeroChangesNothingButDraws)
{
    CVQDIB image(8, 8);
    fillRandom(image, 1);
    const Pixels before = pixels(image);
    std::srand(7);
    const int untouched = std::rand();

    std::srand(7);
    image.BuildFractalMap(0, 0, 0, 0);
    const int next = std::rand();

    EXPECT_TRUE(shows(image, before));
    EXPECT_NE(next, untouched);
}

TEST(CVQDIBFractal, FillsEveryPixelOfALargeImage)
{
    CVQDIB image(300, 200);

    std::srand(7);
    image.BuildFractalMap(10, 20, 30, 255);

    for (std::int64_t i = 0; i < image.GetSize(); ++i)
        ASSERT_EQ(image[i] >> 24, 255u) << i;
}

TEST(CVQDIBFractal, ASinglePixelTakesTheColourFirst)
{
    CVQDIB image(1, 1);
    paint(image, {0});

    image.BuildFractalMap(64, 128, 192, 0);
    EXPECT_EQ(coloursOf(pixels(image)), coloursOf({0}));
    for (const auto& [width, height] : {std::pair(1, 1), std::pair(1, 9), std::pair(9, 1), std::pair(2, 3)}) {
        CVQDIB small(width, height);
        small.BuildFractalMap(1, 2, 3, 100); // nothing outside is read or written
    }
    CVQDIB empty(static_cast<CVQDIB*>(nullptr));
    empty.BuildFractalMap(1, 2, 3, 4);
    EXPECT_EQ(empty.GetImageBuffer(), nullptr);
}

} // namespace
} // namespace vq::test
