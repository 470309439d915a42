// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What the engine asks of single characters.

namespace vq::gdiplus {

inline constexpr char32_t kReplacement = 0xFFFD;
inline constexpr char32_t kWordJoiner = 0x2060; ///< takes no room and has no shape
inline constexpr char32_t kJoiner = 0x200D;     ///< ZERO WIDTH JOINER
inline constexpr char32_t kTextStyle = 0xFE0E;  ///< VARIATION SELECTOR-15: the character before it is not a picture
inline constexpr char32_t kEmojiStyle = 0xFE0F; ///< VARIATION SELECTOR-16: it is one

constexpr bool isBetween(char32_t character, char32_t first, char32_t last)
{
    return character >= first && character <= last;
}

/// Line feed, line tabulation, form feed, carriage return, next line, line and paragraph separator: the characters that
/// must break a line (Unicode Standard Annex 14).
constexpr bool isLineBreak(char32_t c)
{
    return isBetween(c, 0x0A, 0x0D) || c == 0x85 || c == 0x2028 || c == 0x2029;
}

/// Spaces that hang at the end of a line; those that do not break are none.
constexpr bool isHangingSpace(char32_t c)
{
    return c == ' ' || c == '\t' || c == 0x1680 || (isBetween(c, 0x2000, 0x200A) && c != 0x2007) || c == 0x205F ||
           c == 0x3000;
}

constexpr bool isControl(char32_t c) { return c < 0x20 || isBetween(c, 0x7F, 0x9F); }

/// Characters for which no font has to have a glyph: controls, joiners, marks of direction, selectors, tags.
constexpr bool needsNoGlyph(char32_t c)
{
    return isControl(c) || c == 0xAD || c == 0x034F || c == 0x061C || isBetween(c, 0x180B, 0x180F) ||
           isBetween(c, 0x200B, 0x200F) || isBetween(c, 0x2028, 0x202E) || isBetween(c, 0x2060, 0x206F) ||
           isBetween(c, 0xFE00, 0xFE0F) || c == 0xFEFF || isBetween(c, 0xE0000, 0xE0FFF);
}

/// Whether the order of a paragraph that holds the character has to be worked out: scripts that run to the left and the
/// marks that change direction.
constexpr bool affectsDirection(char32_t c)
{
    return isBetween(c, 0x0590, 0x08FF) || isBetween(c, 0xFB1D, 0xFDFF) || isBetween(c, 0xFE70, 0xFEFC) ||
           isBetween(c, 0x10800, 0x10FFF) || isBetween(c, 0x1E800, 0x1EFFF) || c == 0x200E || c == 0x200F ||
           isBetween(c, 0x202A, 0x202E) || isBetween(c, 0x2066, 0x2069);
}

/// Characters between which lines may break without a space: those of Chinese, Japanese and Korean writing.
constexpr bool isEastAsian(char32_t c)
{
    return isBetween(c, 0x1100, 0x11FF) || isBetween(c, 0x2E80, 0xA4CF) || isBetween(c, 0xA960, 0xA97F) ||
           isBetween(c, 0xAC00, 0xD7FF) || isBetween(c, 0xF900, 0xFAFF) || isBetween(c, 0xFE30, 0xFE4F) ||
           isBetween(c, 0xFF00, 0xFFEF) || isBetween(c, 0x20000, 0x3FFFF);
}

constexpr bool isRegionalIndicator(char32_t c) { return isBetween(c, 0x1F1E6, 0x1F1FF); }

/// Skin tones and the tags of flags, which belong to the emoji before them.
constexpr bool isEmojiModifier(char32_t c) { return isBetween(c, 0x1F3FB, 0x1F3FF) || isBetween(c, 0xE0020, 0xE007F); }

/// Characters that a joiner may tie to the emoji before it.
constexpr bool mayBePictograph(char32_t c) { return isBetween(c, 0x2190, 0x2BFF) || isBetween(c, 0x1F000, 0x1FAFF); }

/// Whether a character is shown as a picture when nothing else is said: Emoji_Presentation of Unicode's emoji data 14.
bool hasEmojiPresentation(char32_t character);

} // namespace vq::gdiplus
