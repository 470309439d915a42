// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/compositor/Premultiply.h"

#include "CompositorPictures.h"

#include <cmath>

namespace vq::gdiplus {

TEST(Premultiplied, GivesThePixelsThatWindowsGives)
{
    EXPECT_EQ(premultiplied(0x80332211), 0x801A1109U);
    EXPECT_EQ(premultiplied(0x00FFFFFF), 0U);
    EXPECT_EQ(straight(0x77997762), 0x77FFFED1U);
}

TEST(Premultiplied, IsTheNearestIntegerForEveryAlphaAndColour)
{
    for (Pixel alpha = 0; alpha < 256; ++alpha)
        for (Pixel colour = 0; colour < 256; ++colour) {
            const auto expected = static_cast<Pixel>(std::lround(alpha * colour / 255.0));
            ASSERT_EQ(premultiplied(alpha << 24 | colour << 16 | colour), alpha << 24 | expected << 16 | expected);
        }
}

TEST(Straight, IsWithinOneOfTheQuotientForEveryAlphaAndColour)
{
    for (Pixel alpha = 1; alpha < 256; ++alpha)
        for (Pixel colour = 0; colour < 256; ++colour) {
            const double exact = std::min(255.0, 255.0 * colour / alpha);
            ASSERT_NEAR(straight(alpha << 24 | colour << 8) >> 8 & 0xFF, exact, 1.01);
        }
    EXPECT_EQ(straight(0x00123456), 0U);
}

TEST(Straight, LeavesOpaquePixels)
{
    for (const Pixel pixel : test::opaquePixels(1000, 2))
        ASSERT_EQ(straight(premultiplied(pixel)), pixel);
}

TEST(PremultiplyRow, IsTheFormulaPixelByPixelAlsoInPlace)
{
    const test::Pixels source = test::randomPixels(100, 3);
    test::Pixels there(source.size());
    test::Pixels inPlace = source;
    premultiplyRow(there, source);
    premultiplyRow(inPlace, inPlace);
    EXPECT_EQ(there, inPlace);
    for (std::size_t i = 0; i < source.size(); ++i)
        ASSERT_EQ(there[i], premultiplied(source[i]));
    straightenRow(inPlace, inPlace);
    for (std::size_t i = 0; i < source.size(); ++i)
        ASSERT_EQ(inPlace[i], straight(there[i]));
}

} // namespace vq::gdiplus
