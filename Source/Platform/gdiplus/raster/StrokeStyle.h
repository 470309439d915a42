// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/raster/DashPattern.h"

namespace vq::gdiplus {

/// How a line ends. Anchors are drawn at the ends of the whole line, with a width of 2 pixels at least.
enum class LineEnd { Flat, Square, Round, Triangle, NoAnchor, SquareAnchor, RoundAnchor, DiamondAnchor, ArrowAnchor };

enum class Corner {
    Miter, ///< pointed, cut off at the limit
    Bevel,
    Round,
    MiterOrBevel ///< pointed up to the limit, else bevelled
};

struct StrokeStyle
{
    double width = 1; ///< pixels, above 0
    LineEnd start = LineEnd::Flat;
    LineEnd end = LineEnd::Flat;
    Corner corner = Corner::Miter;
    double miterLimit = 10; ///< the longest corner, from inside to outside, in widths
    DashPattern dashes;
    LineEnd dashEnd = LineEnd::Flat; ///< Flat, Round or Triangle; the dash keeps its length, its ends included
};

} // namespace vq::gdiplus
