// SPDX-License-Identifier: MIT
#include "support/Pictures.h"

#include <limits>

namespace vq::test {
namespace {

TEST(CVQDIBMosaic, FillsWholeBlocksAndLeavesNarrowerStrips)
{
    CVQDIB image(10, 10);
    fillRandom(image, 1);
    const Pixels before = pixels(image);
    Pixels expected = before;
    for (std::size_t y = 0; y < 8; ++y)
        for (std::size_t x = 0; x < 8; ++x)
            expected[y * 10 + x] = before[y / 4 * 40 + x / 4 * 4];

    image.Mosaic(4);

    EXPECT_TRUE(shows(image, expected));
}

TEST(CVQDIBMosaic, DoesNothingUnlessABlockIsSmallerThanTheImageAndLargerThanAPixel)
{
    constexpr LONG kMax = std::numeric_limits<LONG>::max();
    constexpr LONG kMin = std::numeric_limits<LONG>::min();
    CVQDIB image(12, 10);
    fillRandom(image, 2);
    const Pixels before = pixels(image);
    for (const LONG size : {kMin, LONG{-2}, LONG{0}, LONG{1}, LONG{10}, LONG{11}, LONG{12}, kMax}) {
        image.Mosaic(size);

        EXPECT_TRUE(shows(image, before)) << size;
    }
}

TEST(CVQDIBMosaic, DoesNothingInASingleRowOrColumn)
{
    for (const CSize& size : {CSize(9, 1), CSize(1, 9)}) {
        CVQDIB image(size.cx, size.cy);
        fillRandom(image, 3);
        const Pixels before = pixels(image);

        image.Mosaic(2);

        EXPECT_TRUE(shows(image, before));
    }
}

} // namespace
} // namespace vq::test
