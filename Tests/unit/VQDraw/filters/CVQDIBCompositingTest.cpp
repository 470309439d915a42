// SPDX-License-Identifier: MIT
#include "support/Pictures.h"

#include <functional>
#include <limits>

namespace vq::test {
namespace {

/// One pixel after an operation with one source pixel.
ULONG combined(ULONG old, ULONG source, const std::function<void(CVQDIB&, CVQDIB&)>& operation)
{
    CVQDIB image(1, 1);
    CVQDIB other(1, 1);
    paint(image, {old});
    paint(other, {source});
    operation(image, other);
    return image[0];
}

TEST(CVQDIBAdd, DoublesAnImageAddedToItself)
{
    CVQDIB image(70, 1);
    paint(image, Pixels(70, 0x80C0FF40));

    image.Add();

    EXPECT_TRUE(shows(image, Pixels(70, 0xFFFFFF80)));
}

TEST(CVQDIBAdd, LimitsEachChannelTo255)
{
    EXPECT_EQ(combined(0x01FE8010, 0x01028010, [](CVQDIB& a, CVQDIB& b) { a.Add(b); }), 0x02FFFF20u);
}

TEST(CVQDIBSubtract, StopsAtZeroAndClearsAlphaByAnOpaqueSource)
{
    EXPECT_EQ(combined(0xFF10FF20, 0xFF201020, [](CVQDIB& a, CVQDIB& b) { a.Subtract(&b); }), 0x0000EF00u);
}

TEST(CVQDIBMultiply, WhiteTimesWhiteIsOneStepDarker)
{
    CVQDIB image(65, 1);
    paint(image, Pixels(65, 0xFFFFFFFF));

    image.Multiply();

    EXPECT_TRUE(shows(image, Pixels(65, 0xFEFEFEFE)));
}

TEST(CVQDIBMultiply, WhiteSourceDarkensEveryChannelByOneStep)
{
    EXPECT_EQ(combined(0x80C0FF40, 0xFFFFFFFF, [](CVQDIB& a, CVQDIB& b) { a.Multiply(b); }), 0x7FBFFE3Fu);
    EXPECT_EQ(combined(0x00000001, 0xFFFFFFFF, [](CVQDIB& a, CVQDIB& b) { a.Multiply(&b); }), 0u);
}

TEST(CVQDIBScreen, BlackOnBlackIsOneAndWhiteStaysWhite)
{
    const auto screen = [](CVQDIB& a, CVQDIB& b) { a.Screen(b); };
    EXPECT_EQ(combined(0x12000000, 0x34000000, screen), 0x12010101u);
    EXPECT_EQ(combined(0x12FFFFFF, 0x34ABCDEF, screen), 0x12FFFFFFu);
    EXPECT_EQ(combined(0x12ABCDEF, 0x34FFFFFF, screen), 0x12FFFFFFu);
}

TEST(CVQDIBLighten, At255TakesTheLargerChannel)
{
    const auto lighten = [](CVQDIB& a, CVQDIB& b) { a.Lighten(b, 255); };
    EXPECT_EQ(combined(0x10802040, 0xFF408040, lighten), 0x10808040u);
}

TEST(CVQDIBLighten, ScalesTheSourceOnlyAndCutsItToAByte)
{
    EXPECT_EQ(combined(0x10802010, 0xFFFF4040, [](CVQDIB& a, CVQDIB& b) { a.Lighten(&b, 127); }), 0x10802020u);
    EXPECT_EQ(combined(0x10000000, 0xFFFFFFFF, [](CVQDIB& a, CVQDIB& b) { a.Lighten(b, 0); }), 0x10000000u);
    EXPECT_EQ(combined(0x10000000, 0xFFFF8040, [](CVQDIB& a, CVQDIB& b) { a.Lighten(b, 511); }), 0x10FE0080u);
    EXPECT_EQ(combined(0x10000000, 0xFFFF8040, [](CVQDIB& a, CVQDIB& b) { a.Lighten(b, -1); }), 0x10000000u);
}

TEST(CVQDIBDarken, At255TakesTheSmallerChannel)
{
    EXPECT_EQ(combined(0x10802040, 0xFF408040, [](CVQDIB& a, CVQDIB& b) { a.Darken(b, 255); }), 0x10402040u);
}

TEST(CVQDIBDarken, At127MovesHalfWayWhereTheHalvedSourceIsDarker)
{
    const auto darken = [](CVQDIB& a, CVQDIB& b) { a.Darken(&b, 127); };
    // 0x41 and 0x40 are the same halved, so nothing moves there
    EXPECT_EQ(combined(0x10804120, 0xFF404080, darken), 0x10604120u);
}

TEST(CVQDIBDarken, ABlendByMoreThanTheWholeWayWrapsRound)
{
    // factor 512: 0x40 and 0x60 become 0x80 and 0xC0; d moves by twice the distance
    EXPECT_EQ(combined(0x10606060, 0xFF404040, [](CVQDIB& a, CVQDIB& b) { a.Darken(b, 511); }), 0x10202020u);
    // 0x10 below 0x60, doubled as well: 0x60 - 2 * 0x50 = -0x40
    EXPECT_EQ(combined(0x10606060, 0xFF101010, [](CVQDIB& a, CVQDIB& b) { a.Darken(b, 511); }), 0x10C0C0C0u);
}

TEST(CVQDIBDifference, IsTheDistanceOfColours)
{
    EXPECT_EQ(combined(0x1080FF00, 0xFFFF80FF, [](CVQDIB& a, CVQDIB& b) { a.Difference(b); }), 0x107F7FFFu);
    EXPECT_EQ(combined(0x10FF80FF, 0x0080FF00, [](CVQDIB& a, CVQDIB& b) { a.Difference(&b); }), 0x107F7FFFu);
}

/// Every operation that combines two images, in both forms.
const std::function<void(CVQDIB&, CVQDIB*)> kPointerForms[] = {
    [](CVQDIB& a, CVQDIB* b) { a.Add(b); },          [](CVQDIB& a, CVQDIB* b) { a.Subtract(b); },
    [](CVQDIB& a, CVQDIB* b) { a.Multiply(b); },     [](CVQDIB& a, CVQDIB* b) { a.Screen(b); },
    [](CVQDIB& a, CVQDIB* b) { a.Lighten(b, 255); }, [](CVQDIB& a, CVQDIB* b) { a.Lighten(b, 100); },
    [](CVQDIB& a, CVQDIB* b) { a.Darken(b, 255); },  [](CVQDIB& a, CVQDIB* b) { a.Darken(b, 100); },
    [](CVQDIB& a, CVQDIB* b) { a.Difference(b); },
};

TEST(CVQDIBCompositing, ANullAnEmptyOrASmallerSourceChangesNothing)
{
    CVQDIB empty(static_cast<CVQDIB*>(nullptr));
    CVQDIB smaller(5, 5);
    fillRandom(smaller, 1);
    CVQDIB image(13, 2);
    fillRandom(image, 2);
    const Pixels before = pixels(image);
    for (const auto& operation : kPointerForms) {
        for (CVQDIB* source : {static_cast<CVQDIB*>(nullptr), &empty, &smaller})
            operation(image, source);
        operation(empty, &image);
        operation(empty, &empty);
    }

    EXPECT_TRUE(shows(image, before));
    EXPECT_EQ(empty.GetImageBuffer(), nullptr);
}

TEST(CVQDIBCompositing, OfALargerSourceTheFirstPixelsCount)
{
    CVQDIB larger(10, 30);
    fillRandom(larger, 1);
    CVQDIB same(67, 3);
    for (std::int64_t i = 0; i < same.GetSize(); ++i)
        same[i] = larger[i];
    for (const auto& operation : kPointerForms) {
        CVQDIB image(67, 3);
        CVQDIB expected(67, 3);
        fillRandom(image, 2);
        fillRandom(expected, 2);

        operation(image, &larger);
        operation(expected, &same);

        EXPECT_TRUE(shows(image, pixels(expected)));
    }
}

TEST(CVQDIBCompositing, AnImageMayBeItsOwnSource)
{
    for (const auto& operation : kPointerForms) {
        CVQDIB image(67, 3);
        CVQDIB expected(67, 3);
        CVQDIB twin(67, 3);
        fillRandom(image, 2);
        fillRandom(expected, 2);
        fillRandom(twin, 2);

        operation(image, &image);
        operation(expected, &twin);

        EXPECT_TRUE(shows(image, pixels(expected)));
    }
}

} // namespace
} // namespace vq::test
