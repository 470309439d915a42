// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/Characters.h"
#include "Platform/gdiplus/text/Paragraph.h"

#include <algorithm>
#include <string>

extern "C" {
#include <linebreak.h>
}

namespace vq::gdiplus {
namespace {

constexpr char32_t kLastCodePoint = 0x10FFFF;
constexpr char32_t kNoCharacter = 0xFFFF;

bool isHighSurrogate(char32_t c)
{
    return isBetween(c, 0xD800, 0xDBFF);
}
bool isLowSurrogate(char32_t c)
{
    return isBetween(c, 0xDC00, 0xDFFF);
}

char32_t joined(char32_t high, char32_t low)
{
    return 0x10000 + ((high & 0x3FF) << 10) + (low & 0x3FF);
}

std::uint8_t flagsOf(char32_t c)
{
    if (isLineBreak(c))
        return Character::kLineBreak;
    if (!isHangingSpace(c))
        return 0;
    return c == '\t' ? Character::kSpace | Character::kTab : Character::kSpace;
}

/// GDI+ breaks lines at spaces, and East Asian writing between most of its characters. Of the places that the Unicode
/// algorithm allows, those behind hyphens and the like in other scripts are therefore left out.
bool mayEndLine(char32_t before, char32_t after)
{
    return isHangingSpace(before) || before == 0x200B || isEastAsian(before) || isEastAsian(after);
}

/// libunibreak 1.1 aborts the process at a regional indicator (an assertion that forgets their class) and takes U+FFFF
/// for the end of the text. The former break like letters here; the latter never gets this far.
utf32_t asBroken(char32_t c)
{
    return isRegionalIndicator(c) ? U'a' : c;
}

/// Most labels are one word: they need not be looked through.
bool mayHaveBreaks(const std::vector<char32_t>& codePoints)
{
    const auto next = std::ranges::adjacent_find(codePoints, mayEndLine);
    return next != codePoints.end();
}

void markBreaks(const std::vector<char32_t>& codePoints, std::vector<Character>& characters)
{
    if (!mayHaveBreaks(codePoints))
        return;
    std::vector<utf32_t> text(codePoints.size());
    std::ranges::transform(codePoints, text.begin(), asBroken);
    std::string breaks(codePoints.size(), LINEBREAK_NOBREAK);
    [[maybe_unused]] static const bool isReady = (init_linebreak(), true); // the same tables at every call
    set_linebreaks_utf32(text.data(), text.size(), nullptr, breaks.data());
    for (std::size_t i = 0; i + 1 < codePoints.size(); ++i)
        if (breaks[i] == LINEBREAK_ALLOWBREAK && mayEndLine(codePoints[i], codePoints[i + 1]))
            characters[i].flags |= Character::kBreakAfter;
}

} // namespace

void readCharacters(std::wstring_view text, std::vector<char32_t>& codePoints, std::vector<Character>& characters)
{
    codePoints.clear();
    characters.clear();
    codePoints.reserve(text.size());
    characters.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        auto c = static_cast<char32_t>(text[i]);
        Character character;
        if (isHighSurrogate(c) && i + 1 < text.size() && isLowSurrogate(static_cast<char32_t>(text[i + 1]))) {
            c = joined(c, static_cast<char32_t>(text[++i]));
            character.flags = Character::kPair;
        } else if (isHighSurrogate(c) || isLowSurrogate(c) || c == kNoCharacter || c > kLastCodePoint) {
            c = kReplacement;
        }
        character.flags |= flagsOf(c);
        if (c == '\n' && !codePoints.empty() && codePoints.back() == '\r')
            character.flags |= Character::kContinues;
        codePoints.push_back(c);
        characters.push_back(character);
    }
    markBreaks(codePoints, characters);
}

} // namespace vq::gdiplus
