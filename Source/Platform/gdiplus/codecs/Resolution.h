// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/codecs/Picture.h"

#include <cmath>
#include <cstdint>

namespace vq::gdiplus {

inline constexpr double kInchesPerMetre = 1 / 0.0254;
inline constexpr double kInchesPerCentimetre = 1 / 2.54;

/// Dots per inch; a file that says 0 says nothing.
constexpr double dpiFromPixelsPerMetre(std::uint32_t pixels)
{
    return pixels == 0 ? kDefaultDpi : pixels / kInchesPerMetre;
}

/// A resolution that is one: what is out of all proportion (a pixel of a yard, or of the size of an atom), not positive
/// or not a number counts as the default.
constexpr double usableResolution(double dpi)
{
    constexpr double kLeast = 0.02; // a pixel a metre is 0.0254
    constexpr double kMost = 1e7;
    return dpi >= kLeast && dpi <= kMost ? dpi : kDefaultDpi;
}

/// Rounds a resolution to a whole number in 1 .. `most`, as files hold it: 96 dpi are 3780 pixels per metre. What is no
/// resolution (not positive, not a number) counts as the default one.
inline std::uint32_t wholeResolution(double dpi, double inchesPerUnit, std::uint32_t most)
{
    const double usable = dpi > 0 ? dpi : kDefaultDpi;
    const double rounded = std::floor(usable * inchesPerUnit + 0.5);
    if (rounded < 1)
        return 1;
    return rounded < most ? static_cast<std::uint32_t>(rounded) : most;
}

} // namespace vq::gdiplus
