// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/codecs/FileBytes.h"
#include "Platform/gdiplus/codecs/Picture.h"

#include <cstdint>
#include <optional>
#include <span>

namespace vq::gdiplus {

bool isBmp(std::span<const std::uint8_t> file);

/// Palettes of 1, 4 and 8 bits, 16, 24 and 32 bits, channel masks, run-length encoding, rows from the bottom or the
/// top, every header from OS/2's on. The fourth byte of a 32-bit pixel is alpha only where the header has a mask for
/// it. Empty when the file is damaged, incomplete or too large; only the padding of the last row may be missing.
std::optional<Picture> decodeBmp(std::span<const std::uint8_t> file);

/// 32 bits per pixel, uncompressed, rows from the bottom; all four bytes of each pixel are kept, though readers take
/// the fourth for padding. Empty when width or height is below 1, the file would pass 4 GiB or memory cannot be had.
std::optional<FileBytes> encodeBmp(ConstPixelView pixels, double dpiX = kDefaultDpi, double dpiY = kDefaultDpi);

} // namespace vq::gdiplus
