// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/codecs/FileBytes.h"
#include "Platform/gdiplus/codecs/Picture.h"

#include <cstdint>
#include <optional>
#include <span>

namespace vq::gdiplus {

bool isGif(std::span<const std::uint8_t> file);

/// The first frame, interlaced or not, at its place on the logical screen; what it leaves free is transparent. A screen
/// that is too small for the frame grows. Pixels of the transparent index keep the colour of the palette with alpha 0;
/// without a palette index 1 is white and all others are black. An animation has the format `Argb32`. Empty when the
/// first frame is damaged, incomplete or too large; what follows it may be anything.
std::optional<Picture> decodeGif(std::span<const std::uint8_t> file);

/// One frame of 8 bits per pixel in the palette of Halftone.h, whatever the picture's own colours are. The file holds
/// no resolution. Empty when width or height is below 1 or above 65535, or memory cannot be had.
std::optional<FileBytes> encodeGif(ConstPixelView pixels);

} // namespace vq::gdiplus
