// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/codecs/FileBytes.h"
#include "Platform/gdiplus/codecs/Picture.h"

#include <cstdint>
#include <optional>
#include <span>

namespace vq::gdiplus {

bool isPng(std::span<const std::uint8_t> file);

/// Every colour type and depth, interlaced or not; samples of 16 bits are rounded to 8. Gamma and colour profiles are
/// not applied. Empty when the file is damaged, incomplete or too large.
std::optional<Picture> decodePng(std::span<const std::uint8_t> file);

/// Stores all four bytes of each pixel exactly, as 8-bit RGBA, with the resolution in whole pixels per metre (96 dpi
/// becomes 3780). Empty when width or height is below 1 or memory cannot be had.
std::optional<FileBytes> encodePng(ConstPixelView pixels, double dpiX = kDefaultDpi, double dpiY = kDefaultDpi);

} // namespace vq::gdiplus
