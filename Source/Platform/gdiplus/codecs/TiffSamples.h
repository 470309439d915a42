// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/codecs/TiffLayout.h"

#include <span>

namespace vq::gdiplus::tiff {

/// Gives every pixel what no sample adds: full alpha where there is none in the file, else nothing.
void prepare(const Layout& layout, PixelView target);

/// How many planes have a meaning: one when the samples of a pixel lie together.
int planesToRead(const Layout& layout);

/// Bytes of a decoded row of a block.
std::int64_t rowBytes(const Layout& layout);

/// Adds the samples of a decoded row to as many pixels of a prepared picture; `plane` says which samples they are.
void addRow(const Layout& layout, int plane, const std::uint8_t* stored, std::span<Pixel> row);

} // namespace vq::gdiplus::tiff
