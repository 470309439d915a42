// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/compositor/DrawImage.h"

#include <cstddef>

namespace vq::gdiplus {

/// Near is left or top, far is right or bottom.
enum class TextAlignment : unsigned char { Near, Center, Far };

/// What happens to a line that may not be wrapped and does not fit.
enum class TextTrimming : unsigned char {
    None,      ///< it is laid out whole
    Character, ///< it ends before the first character that does not fit
    Word ///< it ends before the first word that does not fit, as with Character when that is the first of the line
};

/// How text lies in its rectangle. The default is GDI+'s: near, wrapped, clipped, trimmed at characters.
struct TextFormat
{
    TextAlignment alignment = TextAlignment::Near;
    TextAlignment lineAlignment = TextAlignment::Near;
    TextTrimming trimming = TextTrimming::Character;
    bool noWrap = false;               ///< lines end at line breaks only
    bool noClip = false;               ///< what leaves the rectangle is drawn, counted and measured
    bool margins = true;               ///< room is left beside and below the text
    bool wholeLines = false;           ///< a line that the lower edge would cut is left out, even the first
    bool countsTrailingSpaces = false; ///< spaces at the end of a line are part of it
    bool rightToLeft = false;          ///< paragraphs run to the left, and near is right
};

/// The space that GDI+ leaves before and after the text of a line, in ems, where there are margins.
inline constexpr double kMarginInEms = 1.0 / 6.0;

/// What a measured height is larger than the lines, in ems, where there are margins.
inline constexpr double kExtraHeightInEms = 1.0 / 8.0;

/// Distance of tab stops, in ems, from the beginning of the line.
inline constexpr double kTabStopInEms = 4.0;

struct TextMeasure
{
    FloatRect bounds;
    std::size_t charactersFitted; ///< wide characters, those of line breaks and hanging spaces included
    std::size_t linesFilled;
};

} // namespace vq::gdiplus
