// SPDX-License-Identifier: MIT
#include "Trial.h"

#include <algorithm>
#include <limits>
#include <ostream>

namespace vq::reference {
namespace {

/// Mixes all bits into all bits (the finaliser of MurmurHash3).
constexpr Word mixed(Word value)
{
    value ^= value >> 16;
    value *= 0x85EBCA6B;
    value ^= value >> 13;
    value *= 0xC2B2AE35;
    return value ^ value >> 16;
}

constexpr Word randomAt(Number x, Number y, std::uint32_t seed)
{
    return mixed(mixed(mixed(seed + 1) ^ static_cast<Word>(x)) + 0x9E3779B9 * static_cast<Word>(y + 1));
}

constexpr Word withAlpha(Word pixel, Word alpha)
{
    return (pixel & 0x00FFFFFF) | alpha << 24;
}

constexpr Word fromExtremes(Word random)
{
    constexpr std::array<Word, 8> kBytes{0, 1, 127, 128, 254, 255, 0, 255};
    Word pixel = 0;
    for (int i = 0; i < 4; ++i)
        pixel = pixel << 8 | kBytes[random >> (8 * i) & 7];
    return pixel;
}

Word pixelAt(Number x, Number y, Number width, Content content, std::uint32_t seed)
{
    const Word random = randomAt(x, y, seed);
    switch (content) {
    case Content::Random:
        return random;
    case Content::AllEqual:
        return mixed(seed);
    case Content::Transparent:
        return withAlpha(random, 0);
    case Content::Opaque:
        return withAlpha(random, 255);
    case Content::AlphaGradient:
        return withAlpha(random, static_cast<Word>(width == 1 ? y % 256 : x * 255 / (width - 1)));
    case Content::Extremes:
        return fromExtremes(random);
    case Content::FewColours:
        return kFewColours[random % kFewColours.size()];
    case Content::GreyRamp:
        return withAlpha(static_cast<Word>((x + y) % 256) * 0x010101, random >> 24);
    case Content::NarrowBlue:
        return (random & 0xFFFFFF00) | (100 + random % 3);
    }
    return random;
}

constexpr Number kLeast = std::numeric_limits<Number>::min();
constexpr Number kMost = std::numeric_limits<Number>::max();
constexpr std::array kEnds{0,     1,      2,         -1,         -2,      127,       128,   254,      255,
                           256,   257,    -127,      -128,       -255,    -256,      -257,  511,      512,
                           32767, 32768,  65535,     65536,      -32768,  -65536,    65537, 16777215, 16777216,
                           kMost, kLeast, kMost - 1, kLeast + 1, 1 << 30, -(1 << 30)};

} // namespace

std::string_view nameOf(Content content)
{
    constexpr std::array<std::string_view, kContents.size()> kNames{"random",      "all equal",      "transparent",
                                                                    "opaque",      "alpha gradient", "extremes",
                                                                    "few colours", "grey ramp",      "narrow blue"};
    return kNames.at(static_cast<std::size_t>(content));
}

Picture picture(Number width, Number height, Content content, std::uint32_t seed)
{
    Picture result(width, height);
    for (Number y = 0; y < height; ++y)
        for (Number x = 0; x < width; ++x)
            result.at(x, y) = pixelAt(x, y, width, content, seed);
    return result;
}

std::ostream& operator<<(std::ostream& out, const Trial& trial)
{
    out << "seed " << trial.seed << ", " << trial.width << " x " << trial.height << " (" << nameOf(trial.content)
        << ")";
    if (trial.sourceIsImage)
        out << " with itself";
    else if (trial.sourceWidth > 0)
        out << ", source " << trial.sourceWidth << " x " << trial.sourceHeight << " (" << nameOf(trial.sourceContent)
            << ")";
    out << ", arguments";
    for (const Number argument : trial.arguments)
        out << ' ' << argument;
    return out << ", after " << (trial.simd ? "EnableSIMD" : "DisableSIMD");
}

namespace choose {

Number any(Dice& dice, const Trial&)
{
    return dice.oneIn(2) ? static_cast<Number>(dice.word()) : kEnds[static_cast<std::size_t>(dice.below(kEnds.size()))];
}

Number byte(Dice& dice, const Trial&)
{
    constexpr std::array kOften{0, 1, 127, 128, 254, 255};
    return dice.oneIn(3) ? kOften[static_cast<std::size_t>(dice.below(kOften.size()))] : dice.below(256);
}

Number level(Dice& dice, const Trial& trial)
{
    return dice.oneIn(3) ? any(dice, trial) : byte(dice, trial);
}

Number modestLevel(Dice& dice, const Trial& trial)
{
    return std::clamp(level(dice, trial), kLeast + 256, kMost - 256);
}

namespace {
Number coordinate(Dice& dice, const Trial& trial, Number size)
{
    return dice.oneIn(6) ? any(dice, trial) : dice.between(-size / 2 - 3, size + size / 2 + 3);
}
} // namespace

Number column(Dice& dice, const Trial& trial)
{
    return coordinate(dice, trial, std::max(trial.width, trial.sourceWidth));
}

Number row(Dice& dice, const Trial& trial)
{
    return coordinate(dice, trial, std::max(trial.height, trial.sourceHeight));
}

Number colour(Dice& dice, const Trial&)
{
    const Word word = dice.oneIn(3) ? dice.word() : kFewColours[static_cast<std::size_t>(dice.below(4))];
    return static_cast<Number>(word & 0x00FFFFFF);
}

Number colourWithTopByte(Dice& dice, const Trial& trial)
{
    const Word top = dice.oneIn(2) ? dice.word() & 0xFF000000 : 0;
    return static_cast<Number>(top | static_cast<Word>(colour(dice, trial)));
}

Number radius(Dice& dice, const Trial&)
{
    return dice.below(1 + dice.below(1 + dice.below(10)));
}

} // namespace choose
} // namespace vq::reference
