// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The colours along a gradient, prepared for shading.

#include "Platform/gdiplus/compositor/PixelView.h"

#include <array>
#include <span>
#include <vector>

namespace vq::gdiplus {

/// A colour at a position of a gradient: the share `factor` of `second` (0 .. 1, what is beyond counts as the nearest
/// of them) and the rest of `first`.
struct GradientStop
{
    double position;
    Pixel first;
    Pixel second;
    double factor;
};

/// Alpha, red, green and blue as amounts that change linearly.
using Amounts = std::array<double, 4>;

/// A stretch between two stops: `begin` of it has the amounts `start`, and each unit of position adds `slope`.
struct GradientPiece
{
    double begin, end;
    Amounts start, slope;
};

/// Colours are interpolated as if they were multiplied by their alpha, so that a transparent end does not tint: from
/// opaque red to transparent black all is red. Where every stop has the same alpha that is interpolation of the plain
/// colours, and done so.
struct GradientRamp
{
    std::vector<GradientPiece> pieces; ///< from position 0 to 1 without gaps; at least one
    bool isMultiplied;                 ///< colour amounts are multiplied by alpha
    bool isLight;                      ///< colour amounts are light, 0 .. 65535, and not bytes
};

/// The first stop counts as standing at 0. One that is out of order or not within 0 .. 1 is passed over; of several at
/// one position the last one counts from there on.
GradientRamp makeRamp(std::span<const GradientStop> stops, bool inLinearLight);

} // namespace vq::gdiplus
