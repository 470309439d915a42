// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/text/ShapedText.h"
#include "Platform/gdiplus/text/TextFormat.h"

#include <cstddef>
#include <span>
#include <vector>

namespace vq::gdiplus {

/// Characters that stand on one line. Hanging spaces and the line break lie between `end` and `next`.
struct TextLine
{
    std::size_t first;
    std::size_t end;
    std::size_t next;
    double width; ///< pixels, without margins
};

/// What a layout rectangle and a format allow.
struct LineLimits
{
    double em;         ///< pixels; tab stops are measured in it
    double margins;    ///< both together, pixels
    float width;       ///< margins included; infinite when there is no limit
    std::size_t lines; ///< how many there may be
    bool wraps;
    bool countsTrailingSpaces;
    TextTrimming trimming;
};

/// Where a tab that begins `place` pixels into a line ends.
double nextTabStop(double place, double em);

/// Divides characters into lines. Lines end at line breaks; where the width is limited, at the last allowed place that
/// fits, and when there is none between clusters, one at least on every line. A text that ends with a line break has no
/// empty line behind it. With `wraps` false the first line that has to be cut is the last.
void breakLines(std::span<const Character> characters, const LineLimits& limits, std::vector<TextLine>& lines);

} // namespace vq::gdiplus
