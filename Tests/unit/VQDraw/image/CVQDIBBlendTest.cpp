// SPDX-License-Identifier: MIT
#include "support/Pictures.h"

#include <limits>

namespace vq::test {
namespace {

TEST(CVQDIBBlend, HalfRedOverBlackIs127)
{
    CVQDIB image(2, 1);
    paint(image, {0xFF000000, 0x00000000});

    image.Blend(COLORREF{RGB(255, 0, 0)}, 128);

    EXPECT_TRUE(shows(image, {0xFF7F0000, 0x807F0000}));
}

TEST(CVQDIBBlend, AColourGoesToItsOwnChannels)
{
    CVQDIB colour(1, 1);
    CVQDIB channels(1, 1);

    colour.Blend(COLORREF{RGB(64, 128, 192)}, 128);
    channels.Blend(64, 128, 192, 128);

    EXPECT_EQ(colour[0], 0x80204060u);
    EXPECT_EQ(channels[0], 0x80204060u);
}

TEST(CVQDIBBlend, TheWeightOfAColourIsAByteWithTheTopByteOfTheColour)
{
    CVQDIB image(1, 1);
    image.Blend(COLORREF{0x000000FF}, 256 + 128);
    EXPECT_EQ(image[0], 0x807F0000u);

    CVQDIB other(1, 1);
    other.Blend(COLORREF{0x800000FF}, 0);
    EXPECT_EQ(other[0], 0x807F0000u);
}

TEST(CVQDIBBlend, WeightsOutsideAByteAreCutWhereTheFormulaCuts)
{
    const auto blended = [](LONG weight) {
        CVQDIB image(1, 1);
        paint(image, {0x10204060});
        image.Blend(0, 0, 0, weight);
        return image[0];
    };
    EXPECT_EQ(blended(256), 0xFF000000u);                              // d * 0
    EXPECT_EQ(blended(512), 0xFFE0C0A0u);                              // -d
    EXPECT_EQ(blended(-256), 0x104080C0u);                             // 2 d; alpha 16 - 256 keeps its low bits
    EXPECT_EQ(blended(-16), 0x00224466u);                              // d * 272 / 256; alpha 0
    EXPECT_EQ(blended(std::numeric_limits<LONG>::min()), 0x10204060u); // a multiple of 2^16 moves nothing
    EXPECT_EQ(blended(std::numeric_limits<LONG>::max()) >> 24, 0x0Fu) << "the sum wraps round and is negative";
}

TEST(CVQDIBBlend, OneWeightForAnImageIgnoresTheSourcesAlpha)
{
    CVQDIB image(70, 1);
    CVQDIB source(70, 1);
    paint(image, Pixels(70, 0x20000000));
    paint(source, Pixels(70, 0x00FF8040));

    image.Blend(source, 64);
    EXPECT_TRUE(shows(image, Pixels(70, 0x603F2010)));
    image.Blend(&source, 0);
    EXPECT_TRUE(shows(image, Pixels(70, 0x603F2010)));
    image.Blend(&source, 255);
    EXPECT_EQ(image[0] >> 24, 255u);
}

TEST(CVQDIBBlend, BlendsByTheSourcesAlphaLikeAPaste)
{
    CVQDIB image(67, 3);
    CVQDIB pasted(67, 3);
    CVQDIB source(67, 3);
    fillRandom(image, 1);
    fillRandom(pasted, 1);
    fillRandom(source, 2);

    image.Blend(source);
    pasted.Paste(source);

    EXPECT_TRUE(shows(image, pixels(pasted)));
}

TEST(CVQDIBBlend, AnotherSizeANullOrAnEmptyImageChangesNothing)
{
    CVQDIB turned(4, 3);
    CVQDIB wide(4, 4);
    CVQDIB empty(static_cast<CVQDIB*>(nullptr));
    CVQDIB image(3, 4);
    fillRandom(turned, 1);
    fillRandom(wide, 1);
    fillRandom(image, 2);
    const Pixels before = pixels(image);
    for (const CVQDIB* source : {static_cast<const CVQDIB*>(nullptr), static_cast<const CVQDIB*>(&empty),
                                 static_cast<const CVQDIB*>(&turned), static_cast<const CVQDIB*>(&wide)}) {
        image.Blend(source);
        image.Blend(source, 100);
        if (source) {
            image.Blend(*source);
            image.Blend(*source, 100);
        }
    }
    empty.Blend(1, 2, 3, 4);
    empty.Blend(COLORREF{5}, 6);
    empty.Blend(empty);

    EXPECT_TRUE(shows(image, before));
}

} // namespace
} // namespace vq::test
