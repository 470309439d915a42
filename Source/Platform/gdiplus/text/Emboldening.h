// SPDX-License-Identifier: MIT
#pragma once

namespace vq::gdiplus {

/// How much wider strokes and advances of a synthetic bold are, in the unit of `em`: a 24th of it, as FreeType's own.
template <typename Number>
constexpr Number emboldeningOf(Number em)
{
    return em / 24;
}

/// Tangent of the angle by which a synthetic italic leans: about 12 degrees, as FreeType's own.
inline constexpr double kSlant = 0.2126;

} // namespace vq::gdiplus
