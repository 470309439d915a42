// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/compositor/CompositingFormulas.h"

#include "CompositorPictures.h"

#include <cmath>

namespace vq::gdiplus {

namespace {

/// The nearest integer of a fraction, halves upwards.
std::int64_t rounded(std::int64_t numerator, std::int64_t denominator)
{
    return (2 * numerator + denominator) / (2 * denominator);
}

/// Source over in fractions: alpha N / 255, colour (s * 255 * S + d * D * (255 - S)) / N.
Pixel exactSourceOver(Pixel destination, Pixel source)
{
    const std::int64_t sourceAlpha = source >> 24;
    const std::int64_t kept = std::int64_t{destination >> 24} * (255 - sourceAlpha);
    const std::int64_t whole = 255 * sourceAlpha + kept;
    if (sourceAlpha == 0)
        return destination;
    Pixel result = static_cast<Pixel>(rounded(whole, 255)) << 24;
    for (int shift : {0, 8, 16}) {
        const std::int64_t mixed =
            test::channelOf(source, shift) * 255 * sourceAlpha + test::channelOf(destination, shift) * kept;
        result |= static_cast<Pixel>(rounded(mixed, whole)) << shift;
    }
    return result;
}

Pixel over(Pixel destination, Pixel source)
{
    return composite(destination, source, Blend::SourceOver);
}
Pixel overInLight(Pixel destination, Pixel source)
{
    return composite(destination, source, Blend::SourceOverLinearLight);
}
Pixel copied(Pixel destination, Pixel source)
{
    return composite(destination, source, Blend::SourceCopy);
}

} // namespace

TEST(DividedBy255, IsTheNearestIntegerOfEveryProductOfTwoBytes)
{
    for (std::uint32_t value = 0; value <= 255 * 255; ++value)
        ASSERT_EQ(dividedBy255(value), rounded(value, 255)) << value;
}

TEST(EffectiveAlpha, IsTheNearestIntegerOfAlphaTimesCoverage)
{
    for (std::uint32_t alpha = 0; alpha < 256; ++alpha)
        for (std::uint32_t coverage = 0; coverage < 256; ++coverage)
            ASSERT_EQ(effectiveAlpha(alpha, coverage), rounded(std::int64_t{alpha} * coverage, 255));
    EXPECT_EQ(withCoverage(0xFF123456, 77), 0x4D123456U);
    EXPECT_EQ(withCoverage(0x40123456, 255), 0x40123456U);
}

TEST(SourceOver, OfAlphaZeroLeavesEveryBit)
{
    EXPECT_EQ(over(0x40123456, 0x00FF00FF), 0x40123456U);
    EXPECT_EQ(over(0x00123456, 0x00FF00FF), 0x00123456U);
    EXPECT_EQ(overInLight(0x00123456, 0x00FF00FF), 0x00123456U);
}

TEST(SourceOver, OfFullAlphaOrOverNothingIsTheSource)
{
    for (const Pixel source : test::randomPixels(10000, 1)) {
        const Pixel destination = source * 2654435761U;
        const Pixel opaque = source | kAlphaBits;
        const Pixel visible = source | 0x01000000;
        ASSERT_EQ(over(destination, opaque), opaque);
        ASSERT_EQ(overInLight(destination, opaque), opaque);
        ASSERT_EQ(over(destination & ~kAlphaBits, visible), visible);
        ASSERT_EQ(overInLight(destination & ~kAlphaBits, visible), visible);
    }
}

TEST(SourceOver, GivesThePicturesThatWindowsGives)
{
    EXPECT_EQ(over(0xFF000000, 0x80FF0000), 0xFF800000U);
    EXPECT_EQ(over(0xFFFFFFFF, 0x80FF0000), 0xFFFF7F7FU);
    EXPECT_LE(test::distance(over(0xA0000000, 0xA0FFFFFF), 0xDCB9B9B9), 1);
}

TEST(SourceOver, IsTheNearestIntegerForEveryPairOfAlphas)
{
    std::mt19937 generator(3);
    for (Pixel sourceAlpha = 0; sourceAlpha < 256; ++sourceAlpha)
        for (Pixel destinationAlpha = 0; destinationAlpha < 256; ++destinationAlpha)
            for (int i = 0; i < 8; ++i) {
                const Pixel source = sourceAlpha << 24 | (static_cast<Pixel>(generator()) & 0xFFFFFF);
                const Pixel destination = destinationAlpha << 24 | (static_cast<Pixel>(generator()) & 0xFFFFFF);
                ASSERT_EQ(over(destination, source), exactSourceOver(destination, source))
                    << std::hex << source << " over " << destination;
            }
}

TEST(SourceOverInLinearLight, GivesThePicturesThatWindowsGives)
{
    EXPECT_LE(test::distance(overInLight(0x00000000, 0xA0000000), 0x9F000000), 1);
    EXPECT_LE(test::distance(overInLight(0x00000000, 0xA0FFFFFF), 0x9FFFFFFF), 1);
    EXPECT_LE(test::distance(overInLight(0xA0000000, 0xA0FFFFFF), 0xDBDEDEDE), 1);
    EXPECT_EQ(overInLight(0xA0000000, 0xA0FFFFFF) & 0xFFFFFF, 0xDEDEDEU);
}

TEST(SourceOverInLinearLight, IsWithinOneOfTheRealValuedCurve)
{
    const auto light = [](int code) {
        const double value = code / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    const auto code = [](double value) {
        return 255 * (value <= 0.0031308 ? value * 12.92 : 1.055 * std::pow(value, 1 / 2.4) - 0.055);
    };
    const test::Pixels sources = test::randomPixels(20000, 5);
    const test::Pixels destinations = test::randomPixels(20000, 6);
    for (std::size_t i = 0; i < sources.size(); ++i) {
        const Pixel source = sources[i] | 0x01000000;
        const double sourceAlpha = (source >> 24) / 255.0;
        const double kept = (destinations[i] >> 24) / 255.0 * (1 - sourceAlpha);
        const Pixel result = overInLight(destinations[i], source);
        ASSERT_NEAR(result >> 24, 255 * (sourceAlpha + kept), 0.5001);
        for (int shift : {0, 8, 16}) {
            const double mixed = (light(test::channelOf(source, shift)) * sourceAlpha +
                                  light(test::channelOf(destinations[i], shift)) * kept) /
                                 (sourceAlpha + kept);
            ASSERT_NEAR(test::channelOf(result, shift), code(mixed), 0.55)
                << std::hex << source << ' ' << destinations[i];
        }
    }
}

TEST(SourceCopy, WritesTheSourceAndNoColourAtAlphaZero)
{
    EXPECT_EQ(copied(0xA0000000, 0xA0FFFFFF), 0xA0FFFFFFU);
    EXPECT_EQ(copied(0xFF123456, 0x01123456), 0x01123456U);
    EXPECT_EQ(copied(0xFFFFFFFF, 0x00FF00FF), 0U);
}

TEST(SourceCopyUnderCoverage, GoesFromTheOldPixelToTheNew)
{
    for (const Pixel pixel : test::randomPixels(1000, 8)) {
        const Pixel other = pixel * 2654435761U;
        ASSERT_EQ(composite(pixel, other, 0, Blend::SourceCopy), pixel);
        ASSERT_EQ(composite(pixel, other, 255, Blend::SourceCopy), copied(pixel, other));
    }
    EXPECT_EQ(composite(0xFF000000, 0xFFFFFFFF, 51, Blend::SourceCopy), 0xFF333333U);
    EXPECT_EQ(composite(0xFF4080C0, 0x00FFFFFF, 51, Blend::SourceCopy), 0xCC4080C0U); // a fifth is taken away
    EXPECT_EQ(composite(0x00FFFFFF, 0xFF4080C0, 51, Blend::SourceCopy), 0x334080C0U);
    EXPECT_EQ(composite(0x00FFFFFF, 0x01FFFFFF, 1, Blend::SourceCopy), 0U);
}

TEST(CompositeUnderCoverage, IsTheSourceOfTheEffectiveAlpha)
{
    for (const Pixel pixel : test::randomPixels(1000, 9)) {
        const auto coverage = static_cast<Channel>(pixel);
        const Pixel destination = pixel * 2654435761U;
        const Pixel effective =
            static_cast<Pixel>(rounded(std::int64_t{pixel >> 24} * coverage, 255)) << 24 | (pixel & 0xFFFFFF);
        ASSERT_EQ(composite(destination, pixel, coverage, Blend::SourceOver), exactSourceOver(destination, effective));
    }
}

} // namespace vq::gdiplus
