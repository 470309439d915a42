// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/text/Face.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace vq::gdiplus {

/// What is known of a character before it is put into a line. `width` is that of the whole cluster (characters that
/// cannot be told apart, as a letter and its accents), in pixels; the other characters of the cluster have none.
struct Character
{
    static constexpr std::uint8_t kContinues = 1;   ///< belongs to the cluster of the character before it
    static constexpr std::uint8_t kSpace = 2;       ///< hangs at the end of a line
    static constexpr std::uint8_t kTab = 4;         ///< reaches to the next tab stop
    static constexpr std::uint8_t kLineBreak = 8;   ///< ends its line
    static constexpr std::uint8_t kBreakAfter = 16; ///< a line may end behind it
    static constexpr std::uint8_t kPair = 32;       ///< two wide characters, a pair of surrogates

    float width = 0;
    std::uint8_t flags = 0;

    bool is(std::uint8_t flag) const { return (flags & flag) != 0; }
};

/// A glyph of a run, in design units of its face.
struct ShapedGlyph
{
    std::uint32_t glyph;
    std::uint32_t character; ///< the first of its cluster
    std::int32_t advance;
    std::int32_t right; ///< from the place where it would stand
    std::int32_t up;
};

/// Characters of one face, script and direction, and their glyphs from left to right.
struct ShapedRun
{
    std::shared_ptr<Face> face;
    bool colour;
    bool emboldened;
    bool slanted;
    std::uint8_t level; ///< of the bidirectional algorithm; odd ones run to the left
    std::uint32_t firstCharacter, endCharacter;
    std::uint32_t firstGlyph, endGlyph;

    bool runsLeft() const { return level % 2 != 0; }
};

/// A text with the glyphs that show it, before it is divided into lines. Runs lie in the order of the characters.
struct ShapedText
{
    std::vector<Character> characters;
    std::vector<ShapedGlyph> glyphs;
    std::vector<ShapedRun> runs;

    std::size_t bytes() const
    {
        return sizeof(*this) + characters.size() * sizeof(Character) + glyphs.size() * sizeof(ShapedGlyph) +
               runs.size() * sizeof(ShapedRun);
    }
};

} // namespace vq::gdiplus
