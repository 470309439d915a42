// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/compositor/CompositeRow.h"

#include "CompositorPictures.h"
#include "Platform/gdiplus/compositor/CompositingFormulas.h"

#include <array>

namespace vq::gdiplus::compositeRowTests {

namespace {

constexpr std::array kBlends{Blend::SourceCopy, Blend::SourceOver, Blend::SourceOverLinearLight};
constexpr std::array<std::size_t, 17> kLengths{0, 1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 63, 64, 65, 127, 128, 200};
constexpr std::size_t kGuard = 16;

using Coverage = std::vector<Channel>;

/// Coverage as a rasteriser makes it: gaps, full runs and anything.
Coverage randomCoverage(std::size_t count, std::uint32_t seed)
{
    Coverage coverage;
    for (const Pixel pixel : test::overlayPixels(count, seed))
        coverage.push_back(static_cast<Channel>(pixel >> 24));
    return coverage;
}

test::Pixels destinationPixels(std::size_t count, std::uint32_t seed)
{
    return seed % 2 == 0 ? test::overlayPixels(count, seed) : test::opaquePixels(count, seed);
}

/// Runs `row(span)` on a part of guarded memory for every length, start and blend, and compares all of the memory with
/// what `pixel(old, index)` makes of the part.
template <typename Row, typename OnePixel>
void expectEqualsOnePixelAtATime(Row row, OnePixel pixel)
{
    for (const Blend blend : kBlends)
        for (const std::size_t length : kLengths)
            for (std::size_t start = 0; start < kGuard; ++start) {
                const auto seed = static_cast<std::uint32_t>(length * 100 + start);
                test::Pixels memory = destinationPixels(start + length + kGuard, seed);
                test::Pixels expected = memory;
                for (std::size_t i = 0; i < length; ++i)
                    expected[start + i] = pixel(expected[start + i], i, blend);

                row(std::span(memory).subspan(start, length), blend);

                ASSERT_EQ(memory, expected)
                    << "length " << length << ", start " << start << ", blend " << static_cast<int>(blend);
            }
}

/// `SourceCopy` under coverage, in fractions: alpha N / 255 of N = s * C + d * (255 - C), colours weighted by its
/// terms.
Pixel exactCopy(Pixel destination, Pixel source, std::uint32_t coverage)
{
    if (coverage == 0)
        return destination;
    const std::uint32_t added = (source >> 24) * coverage;
    const std::uint32_t kept = (destination >> 24) * (255 - coverage);
    const std::uint32_t whole = added + kept;
    const std::uint32_t alpha = (2 * whole + 255) / 510;
    if (alpha == 0)
        return 0;
    Pixel result = alpha << 24;
    for (int shift : {0, 8, 16}) {
        const std::uint32_t mixed = (source >> shift & 0xFF) * added + (destination >> shift & 0xFF) * kept;
        result |= (2 * mixed + whole) / (2 * whole) << shift;
    }
    return result;
}

} // namespace

TEST(CompositeRow, EqualsOnePixelAtATimeAndWritesNothingBesideTheRow)
{
    const test::Pixels source = test::overlayPixels(200, 11);
    expectEqualsOnePixelAtATime(
        [&](std::span<Pixel> row, Blend blend) { compositeRow(row, std::span(source).first(row.size()), blend); },
        [&](Pixel old, std::size_t i, Blend blend) { return composite(old, source[i], blend); });
}

TEST(CompositeRow, UnderCoverageEqualsOnePixelAtATime)
{
    const test::Pixels source = test::overlayPixels(200, 12);
    const Coverage coverage = randomCoverage(200, 13);
    expectEqualsOnePixelAtATime(
        [&](std::span<Pixel> row, Blend blend) {
            compositeRow(row, std::span(source).first(row.size()), std::span(coverage).first(row.size()), blend);
        },
        [&](Pixel old, std::size_t i, Blend blend) { return composite(old, source[i], coverage[i], blend); });
}

TEST(CompositeRow, OntoItselfEqualsOnePixelAtATime)
{
    expectEqualsOnePixelAtATime([](std::span<Pixel> row, Blend blend) { compositeRow(row, row, blend); },
                                [](Pixel old, std::size_t, Blend blend) { return composite(old, old, blend); });
}

TEST(CompositeColour, EqualsOnePixelAtATime)
{
    for (const Pixel colour : {0x00FF00FFU, 0x01123456U, 0x80FF0000U, 0xFE102030U, 0xFF4080C0U})
        expectEqualsOnePixelAtATime([=](std::span<Pixel> row, Blend blend) { compositeColour(row, colour, blend); },
                                    [=](Pixel old, std::size_t, Blend blend) { return composite(old, colour, blend); });
}

TEST(CompositeColour, UnderARowOfCoverageEqualsOnePixelAtATime)
{
    const Coverage coverage = randomCoverage(200, 14);
    for (const Pixel colour : {0x00FF00FFU, 0x80FF0000U, 0xFF4080C0U})
        expectEqualsOnePixelAtATime(
            [&](std::span<Pixel> row, Blend blend) {
                compositeColour(row, colour, std::span(coverage).first(row.size()), blend);
            },
            [&](Pixel old, std::size_t i, Blend blend) { return composite(old, colour, coverage[i], blend); });
}

TEST(CompositeColour, UnderOneCoverageEqualsOnePixelAtATime)
{
    for (const Channel coverage : {Channel{0}, Channel{1}, Channel{128}, Channel{255}})
        for (const Pixel colour : {0x00FF00FFU, 0x80FF0000U, 0xFF4080C0U})
            expectEqualsOnePixelAtATime(
                [=](std::span<Pixel> row, Blend blend) { compositeColour(row, colour, coverage, blend); },
                [=](Pixel old, std::size_t, Blend blend) { return composite(old, colour, coverage, blend); });
}

/// On opaque pixels: 256 values of the source by 256 of the destination by 256 alphas, each against the fraction. Rows
/// hold every source value, with another in each channel.
TEST(CompositeRow, IsExactForEverySourceValueDestinationValueAndAlpha)
{
    for (std::uint32_t alpha = 0; alpha < 256; ++alpha) {
        test::Pixels source;
        for (std::uint32_t value = 0; value < 256; ++value)
            source.push_back(packed(alpha, value, 255 - value, value ^ 0x55));
        for (std::uint32_t destination = 0; destination < 256; ++destination) {
            const auto exact = [=](std::uint32_t value) {
                return (2 * (value * alpha + destination * (255 - alpha)) + 255) / 510;
            };
            test::Pixels row(256, packed(255, destination, destination, destination));
            compositeRow(row, source, Blend::SourceOver);
            for (std::uint32_t value = 0; value < 256; ++value)
                ASSERT_EQ(row[value], packed(255, exact(value), exact(255 - value), exact(value ^ 0x55)))
                    << value << " of alpha " << alpha << " over " << destination;
        }
    }
}

TEST(CompositeColour, IsExactForEverySourceValueDestinationValueAndEffectiveAlpha)
{
    const Coverage full(256, 255);
    test::Pixels destinations;
    for (std::uint32_t value = 0; value < 256; ++value)
        destinations.push_back(packed(255, value, 255 - value, value ^ 0x55));
    for (std::uint32_t alpha = 0; alpha < 256; ++alpha)
        for (std::uint32_t source = 0; source < 256; ++source) {
            const auto exact = [=](std::uint32_t destination) {
                return (2 * (source * alpha + destination * (255 - alpha)) + 255) / 510;
            };
            const Coverage coverage(256, static_cast<Channel>(alpha));
            test::Pixels run = destinations;
            test::Pixels covered = destinations;
            test::Pixels copied = destinations;
            compositeColour(run, packed(alpha, source, source, source), Blend::SourceOver);
            compositeColour(covered, packed(255, source, source, source), coverage, Blend::SourceOver);
            compositeColour(copied, packed(255, source, source, source), coverage, Blend::SourceCopy);
            ASSERT_EQ(run, covered);
            ASSERT_EQ(run, copied); // between opaque pixels coverage does what alpha does
            for (std::uint32_t value = 0; value < 256; ++value)
                ASSERT_EQ(run[value], packed(255, exact(value), exact(255 - value), exact(value ^ 0x55)))
                    << source << " of alpha " << alpha << " over " << value;
        }
}

/// Single precision carries the division over transparent destinations: every pair of alphas, among other pixels that
/// keep the row off the short ways.
TEST(CompositeRow, IsExactForEveryPairOfAlphas)
{
    std::mt19937 generator(20);
    test::Pixels source(256);
    test::Pixels row(256);
    for (std::uint32_t alpha = 0; alpha < 256; ++alpha)
        for (int round = 0; round < 16; ++round) {
            for (std::uint32_t i = 0; i < 256; ++i) {
                source[i] = alpha << 24 | (static_cast<Pixel>(generator()) & 0xFFFFFF);
                row[i] = i << 24 | (static_cast<Pixel>(generator()) & 0xFFFFFF);
            }
            test::Pixels expected = row;
            for (std::size_t i = 0; i < row.size(); ++i)
                expected[i] = composite(row[i], source[i], Blend::SourceOver);
            compositeRow(row, source, Blend::SourceOver);
            ASSERT_EQ(row, expected) << "alpha " << alpha;
        }
}

/// 256 alphas of the source by 256 of the destination by 256 coverages, colours at random.
TEST(CompositeRow, CopyUnderCoverageIsExactForEveryPairOfAlphas)
{
    std::mt19937 generator(21);
    test::Pixels colours(512);
    for (Pixel& colour : colours)
        colour = static_cast<Pixel>(generator()) & 0xFFFFFF;
    test::Pixels source(256);
    test::Pixels row(256);
    for (std::uint32_t covered = 0; covered < 256; ++covered) {
        const Coverage coverage(256, static_cast<Channel>(covered));
        for (std::uint32_t alpha = 0; alpha < 256; ++alpha) {
            for (std::uint32_t i = 0; i < 256; ++i) {
                source[i] = alpha << 24 | colours[(i + alpha) % colours.size()];
                row[i] = i << 24 | colours[(i * 3 + covered) % colours.size()];
            }
            test::Pixels expected = row;
            for (std::size_t i = 0; i < row.size(); ++i)
                expected[i] = exactCopy(row[i], source[i], covered);
            compositeRow(row, source, coverage, Blend::SourceCopy);
            ASSERT_EQ(row, expected) << "alpha " << alpha << " under " << covered;
        }
    }
}

} // namespace vq::gdiplus::compositeRowTests
