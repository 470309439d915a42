// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/codecs/FileBytes.h"
#include "Platform/gdiplus/codecs/Picture.h"

#include <cstdint>
#include <optional>
#include <span>

namespace vq::gdiplus {

/// What GDI+ takes when the caller states no quality.
inline constexpr int kDefaultJpegQuality = 75;

bool isJpeg(std::span<const std::uint8_t> file);

/// Grey, YCbCr, RGB, CMYK and YCCK; sequential and progressive. The orientation that a camera noted is ignored, as GDI+
/// does. A file that ends early is accepted once its header is complete: what is missing comes out grey.
std::optional<Picture> decodeJpeg(std::span<const std::uint8_t> file);

/// Stores the colour bytes as they are and drops alpha: a transparent 00000000 is black. Chroma is halved both ways at
/// every quality. `quality` is clamped to 1 .. 100, the resolution to whole dots per inch. Empty when width or height
/// is below 1 or above 65500, or memory cannot be had.
std::optional<FileBytes> encodeJpeg(ConstPixelView pixels, int quality = kDefaultJpegQuality, double dpiX = kDefaultDpi,
                                    double dpiY = kDefaultDpi);

} // namespace vq::gdiplus
