// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/codecs/FileBytes.h"
#include "Platform/gdiplus/codecs/Picture.h"

#include <cstdint>
#include <optional>
#include <span>

namespace vq::gdiplus {

bool isTiff(std::span<const std::uint8_t> file);

/// The first picture of the file, in strips or tiles: grey, palette and RGB of 1 to 16 bits a sample, with or without
/// alpha, CMYK, YCbCr and CIELab of 8 bits; plain, PackBits, LZW, deflate, JPEG and fax compression. Samples of 16 bits
/// are rounded to 8, premultiplied alpha is made straight, the orientation that the file states is carried out. Empty
/// when the file is damaged, incomplete, too large or of another kind.
std::optional<Picture> decodeTiff(std::span<const std::uint8_t> file);

/// What is stored of each pixel.
enum class TiffSamples { Rgb, Rgba };

/// LZW, 8 bits a sample, exact; alpha is stored straight or dropped, as `samples` says. Resolution in dots per inch.
/// Empty when width or height is below 1, the file would pass 4 GiB or memory cannot be had.
std::optional<FileBytes> encodeTiff(ConstPixelView pixels, TiffSamples samples, double dpiX = kDefaultDpi,
                                    double dpiY = kDefaultDpi);

} // namespace vq::gdiplus
