// SPDX-License-Identifier: MIT
#include "support/Pictures.h"

namespace vq::test {
namespace {

TEST(CVQDIBLaplacian, OfAFlatImageIsTheMiddleInEveryByte)
{
    for (const CSize& size : {CSize(1, 1), CSize(2, 1), CSize(1, 2), CSize(3, 3), CSize(70, 5)}) {
        CVQDIB image(size.cx, size.cy);
        for (LONG channel = 0; channel < 4; ++channel) {
            image.Clear(Gdiplus::Color(0xFF123456));

            image.Laplacian(channel);

            EXPECT_TRUE(shows(image, Pixels(static_cast<std::size_t>(image.GetSize()), 0x7F7F7F7F)));
        }
    }
}

TEST(CVQDIBLaplacian, ShowsADotAndItsShadowRoundTheEdges)
{
    CVQDIB image(4, 4);
    Pixels dot(16, 0);
    dot[0] = 0x0000FF00;
    paint(image, dot);

    image.Laplacian(1);

    // The dot: 8 * 255 / 8 + 255 over 2. Around it: -255 / 8 is -32 rounded down, (-32 + 255) / 2 is 111.
    constexpr ULONG kDot = 0xFFFFFFFF;
    constexpr ULONG kShadow = 0x6F6F6F6F;
    constexpr ULONG kFlat = 0x7F7F7F7F;
    EXPECT_TRUE(shows(image, {kDot, kShadow, kFlat, kShadow,    //
                              kShadow, kShadow, kFlat, kShadow, //
                              kFlat, kFlat, kFlat, kFlat,       //
                              kShadow, kShadow, kFlat, kShadow}));
}

TEST(CVQDIBLaplacian, CountsANeighbourAsOftenAsTheWrapMeetsIt)
{
    CVQDIB image(2, 1);
    paint(image, {0x00000008, 0x00000000});

    image.Laplacian(0); // rows wrap to the same row: six times the other pixel, twice the own

    EXPECT_TRUE(shows(image, {0x82828282, 0x7C7C7C7C})); // (48 / 8 + 255) / 2, (-48 / 8 + 255) / 2
}

TEST(CVQDIBLaplacian, ReadsTheChannelOfTheTwoLowestBits)
{
    constexpr ULONG kBytes[] = {0x000000FF, 0x0000FF00, 0x00FF0000, 0xFF000000};
    for (LONG channel = -4; channel < 8; ++channel) {
        CVQDIB image(3, 3);
        Pixels dot(9, 0);
        dot[4] = kBytes[channel & 3];
        paint(image, dot);

        image.Laplacian(channel);

        EXPECT_EQ(image.GetColor(1, 1), 0xFFFFFFFFu) << channel;
        EXPECT_EQ(image.GetColor(0, 0), 0x6F6F6F6Fu) << channel;
    }
}

} // namespace
} // namespace vq::test
