// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The quick way through a PNG file: 8 bits a sample, colours with or without alpha, not interlaced, nothing unusual.

#include "Platform/gdiplus/codecs/Picture.h"

#include <cstdint>
#include <span>

namespace vq::gdiplus::png {

enum class Samples { Rgb, Rgba };

/// Decodes the pixels into a picture of the size that the file's header says. `chunks` begins with the first chunk that
/// holds pixels and goes on to the end of the file. False when anything is not as it should be, or memory cannot be
/// had; the picture then holds anything. That does not say that a more patient reader will not make something of the
/// file.
[[nodiscard]] bool readPlainPixels(std::span<const std::uint8_t> chunks, Samples samples, PixelView target);

} // namespace vq::gdiplus::png
