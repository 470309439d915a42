// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The palette that pictures of 32 bits are reduced to, and the reduction.

#include "Platform/gdiplus/compositor/PixelView.h"

#include <array>
#include <cstdint>
#include <span>

namespace vq::gdiplus {

/// Index of transparent pixels in the palette below.
inline constexpr std::uint8_t kHalftoneTransparent = 224;

/// As the halftone palette of 216 colours of GDI+: six levels (multiples of 51) a channel, then the eight of the 16
/// system colours that are not among them, then transparency. How GDI+ orders them is not known. The rest is black.
const std::array<Pixel, 256>& halftonePalette();

/// Row `y` of a picture as indices into that palette, by ordered dithering with a pattern of 8 x 8: a colour of the
/// palette stays what it is, any other becomes a mixture of its neighbours. Alpha below 128 is transparent, the rest
/// opaque. Both rows have the same length.
void halftoneRow(std::span<const Pixel> row, int y, std::span<std::uint8_t> indices);

} // namespace vq::gdiplus
