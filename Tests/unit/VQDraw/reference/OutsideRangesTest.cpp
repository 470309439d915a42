// SPDX-License-Identifier: MIT
// Numbers far outside what a member is made for: its formula holds, in 32-bit arithmetic that wraps round.
#include "BlockReference.h"
#include "ColourExchangeReference.h"
#include "CompositingReference.h"
#include "Operations.h"
#include "support/Pictures.h"

#include <cstdlib>
#include <limits>

namespace vq::reference {
namespace {

using test::paint;
using test::pixels;
using test::shows;

constexpr LONG kMost = std::numeric_limits<LONG>::max();
constexpr LONG kLeast = std::numeric_limits<LONG>::min();

void expectAgreement(const Operation& operation)
{
    for (std::uint32_t seed = 1; seed <= 400; ++seed) {
        Dice dice(seed);
        ASSERT_TRUE(agrees(operation, randomTrial(operation, seed, dice.between(1, 40), dice.between(1, 5))));
    }
}

TEST(OutsideRanges, ColoursOfABlendAreTakenAsGiven)
{
    expectAgreement({"BlendWithAnyColour",
                     [](Model& m) { blendColour(m.image, m.argument[0], m.argument[1], m.argument[2], m.argument[3]); },
                     {{"Blend(r, g, b, a)",
                       [](Call& c) {
                           const auto& a = c.argument;
                           c.image.Blend(LONG{a[0]}, LONG{a[1]}, LONG{a[2]}, LONG{a[3]});
                       }}},
                     {choose::any, choose::any, choose::any, choose::modestLevel}});
}

TEST(OutsideRanges, ColoursAndAlphaOfAFractalMapAreTakenAsGiven)
{
    expectAgreement({"BuildFractalMap",
                     [](Model& m) {
                         const auto& a = m.argument;
                         buildFractalMap(m.image, a[0], a[1], a[2], a[3], std::rand);
                     },
                     {{"BuildFractalMap(r, g, b, alpha)",
                       [](Call& c) {
                           const auto& a = c.argument;
                           c.image.BuildFractalMap(a[0], a[1], a[2], a[3]);
                       }}},
                     {choose::any, choose::any, choose::any, choose::modestLevel}});
}

TEST(OutsideRanges, NegativeWeightsStoreTheLowByteOfAlpha)
{
    CVQDIB image(2, 1);
    paint(image, {0x10000000, 0xFF000000});

    image.Blend(LONG{0}, LONG{0}, LONG{0}, LONG{-32});

    EXPECT_TRUE(shows(image, {0xF0000000, 0xDF000000}));
}

/// 255 more than the largest number is a negative one, of which the low byte is stored.
TEST(OutsideRanges, TheLargestWeightsWrapRound)
{
    CVQDIB image(2, 1);
    CVQDIB source(2, 1);
    paint(image, {0x00000000, 0x10000000});
    source = image;

    image.Blend(source, kMost);
    EXPECT_TRUE(shows(image, {0xFF000000, 0x0F000000}));

    paint(image, {0x00000000, 0x10000000});
    image.Blend(LONG{0}, LONG{0}, LONG{0}, kMost);
    EXPECT_TRUE(shows(image, {0xFF000000, 0x0F000000}));
}

TEST(OutsideRanges, TheLeastLevelDarkensToBlack)
{
    CVQDIB image(3, 1);
    paint(image, {0x40000000, 0x40102030, 0x40FFFFFF});

    image.Darken(kLeast); // d - n is above 32 bits for each d and so a negative number

    EXPECT_TRUE(shows(image, {0x40000000, 0x40000000, 0x40000000}));
}

TEST(OutsideRanges, AColourTakenFromTheImageItselfIsTheOneItHadBefore)
{
    CVQDIB image(3, 1);
    paint(image, {0xFF112233, 0xFF112233, 0xFF445566});

    EXPECT_EQ(image.ExchangeColor(image(0, 0), 0x0000FF, 255), 1);

    EXPECT_TRUE(shows(image, {0xFFFE0000, 0xFFFE0000, 0xFF445566})); // 0x11 + (0xFF - 0x11) * 255 / 256
}

TEST(OutsideRanges, HugeRadiiReturnAndKeepAFlatImageFlat)
{
    CVQDIB image(5, 4);
    image.Clear(BYTE{80}, BYTE{80}, BYTE{80}, BYTE{80});

    image.Smooth(200);

    const auto result = pixels(image);
    EXPECT_EQ(result, test::Pixels(20, result.front()));
}

} // namespace
} // namespace vq::reference
