// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/text/ShapedText.h"
#include "Platform/gdiplus/text/Typeface.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include <fribidi.h>
#include <hb.h>

namespace vq::gdiplus {

/// Turns wide characters into code points, one entry of `characters` each: pairs of surrogates become one, what is no
/// code point U+FFFD. Spaces, tabs, line breaks and the places where a line may end are marked.
void readCharacters(std::wstring_view text, std::vector<char32_t>& codePoints, std::vector<Character>& characters);

/// A stretch of a paragraph that is shaped in one go. Offsets are counted in the paragraph.
struct Item
{
    std::size_t first;
    std::size_t end;
    std::uint8_t level;
    hb_script_t script;
    Typeface::Choice font;
};

/// Divides paragraphs (texts without line breaks) into items by direction, script and font. Keeps its memory.
class Itemiser
{
public:
    void itemise(std::span<const char32_t> paragraph, bool rightToLeft, Typeface& typeface, std::vector<Item>& items);

private:
    void findLevels(std::span<const char32_t> paragraph, bool rightToLeft);
    void findScripts(std::span<const char32_t> paragraph);
    void findFonts(std::span<const char32_t> paragraph, Typeface& typeface);

    std::vector<FriBidiLevel> m_levels;
    std::vector<FriBidiCharType> m_types;
    std::vector<FriBidiBracketType> m_brackets;
    std::vector<hb_script_t> m_scripts;
    std::vector<Typeface::Choice> m_fonts;
};

} // namespace vq::gdiplus
