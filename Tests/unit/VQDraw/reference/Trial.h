// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What a random comparison is made of: a trial says everything that an outcome depends on.

#include "Picture.h"

#include <array>
#include <iosfwd>
#include <random>
#include <string_view>

namespace vq::reference {

/// Random numbers that are the same on every system.
class Dice
{
public:
    explicit Dice(std::uint32_t seed) : m_generator(seed) {}

    Word word() { return static_cast<Word>(m_generator()); }
    /// 0 .. count - 1
    Number below(Number count) { return static_cast<Number>(word() % static_cast<Word>(count)); }
    Number between(Number first, Number last) { return first + below(last - first + 1); }
    bool oneIn(Number count) { return below(count) == 0; }

private:
    std::mt19937 m_generator;
};

/// What an image holds. Except for `Random` each has a reason: saturation, transparency, ties, ranges that collapse.
enum class Content {
    Random,
    AllEqual,
    Transparent, // alpha 0, random colours
    Opaque,
    AlphaGradient, // alpha 0 .. 255 from left to right
    Extremes,      // bytes 0, 1, 127, 128, 254 and 255 only
    FewColours,    // four colours, three of them opaque: see `kFewColours`
    GreyRamp,
    NarrowBlue, // blue within three levels
};
inline constexpr std::array kContents{Content::Random,        Content::AllEqual, Content::Transparent,
                                      Content::Opaque,        Content::Extremes, Content::FewColours,
                                      Content::AlphaGradient, Content::GreyRamp, Content::NarrowBlue};
inline constexpr std::array<Word, 4> kFewColours{0xFF102030, 0xFFFF0000, 0xFF0000FF, 0x80FF0000};

std::string_view nameOf(Content content);

/// A pixel depends on the seed and its place only, so that a smaller picture shows a part of the larger one.
Picture picture(Number width, Number height, Content content, std::uint32_t seed);

using Arguments = std::array<Number, 6>;

struct Trial
{
    std::uint32_t seed = 1;
    Number width = 1;
    Number height = 1;
    Number sourceWidth = 0; // 0 where no source is read
    Number sourceHeight = 0;
    bool sourceIsImage = false; // one image plays both parts
    bool simd = false;          // which switch ran last
    std::size_t way = 0;        // by which of an operation's ways in
    Content content = Content::Random;
    Content sourceContent = Content::Random;
    Arguments arguments{};
};

std::ostream& operator<<(std::ostream& out, const Trial& trial);

/// Chooses an argument for a trial whose sizes are set.
using Chooser = Number (*)(Dice& dice, const Trial& trial);

namespace choose {
/// Any 32-bit number, often one at an end of some range.
Number any(Dice& dice, const Trial& trial);
Number byte(Dice& dice, const Trial& trial);
/// Mostly 0 .. 255, also any other.
Number level(Dice& dice, const Trial& trial);
/// As `level`, so far from the ends of 32 bits that adding or subtracting a byte does not wrap round.
Number modestLevel(Dice& dice, const Trial& trial);
/// Mostly in and around the image, also any other.
Number column(Dice& dice, const Trial& trial);
Number row(Dice& dice, const Trial& trial);
/// 0x00BBGGRR or 0x00RRGGBB, often one of `kFewColours`.
Number colour(Dice& dice, const Trial& trial);
/// As `colour`, mostly with something in the top byte.
Number colourWithTopByte(Dice& dice, const Trial& trial);
/// 0 .. 9, mostly small.
Number radius(Dice& dice, const Trial& trial);
} // namespace choose

} // namespace vq::reference
