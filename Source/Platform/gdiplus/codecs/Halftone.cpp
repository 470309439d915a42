// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Halftone.h"

#include "Platform/gdiplus/compositor/CompositingFormulas.h"

#include <algorithm>

namespace vq::gdiplus {
namespace {

constexpr unsigned kLevels = 6;
constexpr unsigned kStep = 51;
constexpr std::uint8_t kFirstSystemColour = kLevels * kLevels * kLevels;
constexpr Pixel kSystemColours[] = {0xFFC0C0C0, 0xFF808080, 0xFF800000, 0xFF008000,
                                    0xFF000080, 0xFF808000, 0xFF800080, 0xFF008080};
static_assert(kFirstSystemColour + std::size(kSystemColours) == kHalftoneTransparent);

constexpr int kPatternSide = 8;
constexpr unsigned kPatternSize = 64;

constexpr auto makePalette()
{
    std::array<Pixel, 256> palette;
    palette.fill(kAlphaBits);
    for (unsigned i = 0; i < kFirstSystemColour; ++i)
        palette[i] = packed(255, i / (kLevels * kLevels) * kStep, i / kLevels % kLevels * kStep, i % kLevels * kStep);
    std::ranges::copy(kSystemColours, palette.begin() + kFirstSystemColour);
    palette[kHalftoneTransparent] = 0;
    return palette;
}

constexpr std::array<Pixel, 256> kPalette = makePalette();

/// Bayer's ordering of 0 .. 63: neighbours in number lie far from each other.
constexpr auto makePattern()
{
    std::array<std::array<std::uint8_t, kPatternSide>, kPatternSide> pattern{};
    for (unsigned y = 0; y < kPatternSide; ++y)
        for (unsigned x = 0; x < kPatternSide; ++x) {
            unsigned rank = 0;
            for (unsigned bit = 0; bit < 3; ++bit)
                rank = rank << 2 | ((x ^ y) >> bit & 1) << 1 | (y >> bit & 1);
            pattern[y][x] = static_cast<std::uint8_t>(rank);
        }
    return pattern;
}

constexpr auto kPattern = makePattern();

/// A channel's level and how many of 64 pixels take the next one instead.
struct Shade
{
    std::uint8_t level;
    std::uint8_t share;
};

constexpr auto makeShades()
{
    std::array<Shade, 256> shades{};
    for (unsigned value = 0; value < shades.size(); ++value)
        shades[value] = {static_cast<std::uint8_t>(value / kStep),
                         static_cast<std::uint8_t>((value % kStep * kPatternSize + kStep / 2) / kStep)};
    return shades;
}

constexpr std::array<Shade, 256> kShades = makeShades();

constexpr unsigned levelOf(std::uint32_t value, unsigned rank)
{
    const Shade shade = kShades[value];
    return shade.level + (shade.share > rank ? 1u : 0u);
}

std::uint8_t indexOf(Pixel pixel, unsigned rank)
{
    if (alphaOf(pixel) < 128)
        return kHalftoneTransparent;
    const auto* system = std::ranges::find(kSystemColours, pixel | kAlphaBits);
    if (system != std::end(kSystemColours))
        return static_cast<std::uint8_t>(kFirstSystemColour + (system - kSystemColours));
    const unsigned red = levelOf(redOf(pixel), rank);
    const unsigned green = levelOf(greenOf(pixel), rank);
    return static_cast<std::uint8_t>((red * kLevels + green) * kLevels + levelOf(blueOf(pixel), rank));
}

} // namespace

const std::array<Pixel, 256>& halftonePalette()
{
    return kPalette;
}

void halftoneRow(std::span<const Pixel> row, int y, std::span<std::uint8_t> indices)
{
    const auto& ranks = kPattern[static_cast<std::size_t>(y % kPatternSide)];
    for (std::size_t x = 0; x < row.size(); ++x)
        indices[x] = indexOf(row[x], ranks[x % kPatternSide]);
}

} // namespace vq::gdiplus
