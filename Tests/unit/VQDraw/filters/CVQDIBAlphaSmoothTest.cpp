// SPDX-License-Identifier: MIT
#include "support/Pictures.h"

namespace vq::test {
namespace {

TEST(CVQDIBAlphaSmooth, DoesNothingBelowSixRowsOrColumns)
{
    for (const CSize& size : {CSize(5, 100), CSize(100, 5), CSize(5, 5), CSize(1, 1)}) {
        CVQDIB image(size.cx, size.cy);
        fillRandom(image, 1);
        const Pixels before = pixels(image);

        image.AlphaSmooth3x3();

        EXPECT_TRUE(shows(image, before)) << size.cx << " x " << size.cy;
    }
}

TEST(CVQDIBAlphaSmooth, SpreadsAlphaOverTwentyFivePixelsRoundTheEdges)
{
    CVQDIB image(6, 6);
    Pixels dot(36, 0x00123456);
    dot[0] = 0xFF654321;
    paint(image, dot);

    image.AlphaSmooth3x3();

    Pixels expected(36, 0x0A123456); // 255 / 25
    for (std::size_t i = 0; i < 6; ++i)
        expected[3 * 6 + i] = expected[i * 6 + 3] = 0x00123456;
    expected[0] = 0xFF654321;
    EXPECT_TRUE(shows(image, expected));
}

TEST(CVQDIBAlphaSmooth, ChangesAlphaUpToOneHundredOnly)
{
    CVQDIB image(6, 6);
    Pixels content(36, 0xC8000000); // 200
    content[7] = 0x64112233;        // 100
    content[28] = 0x65112233;       // 101, three rows and three columns away
    paint(image, content);

    image.AlphaSmooth3x3();

    content[7] = 0xC4112233; // (24 * 200 + 100) / 25
    EXPECT_TRUE(shows(image, content));
}

TEST(CVQDIBAlphaSmooth, KeepsColours)
{
    CVQDIB image(19, 8);
    fillRandom(image, 2);
    Pixels before = pixels(image);

    image.AlphaSmooth3x3();

    Pixels after = pixels(image);
    for (Pixels* colours : {&before, &after})
        for (ULONG& pixel : *colours)
            pixel &= 0x00FFFFFF;
    EXPECT_EQ(after, before);
}

} // namespace
} // namespace vq::test
