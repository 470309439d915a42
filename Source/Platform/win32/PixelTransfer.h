// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Blocks of pixels from surface to surface. Internal to this folder.

#include "Platform/win32/Surface.h"

namespace vq::win32 {

/// A block of a surface, of any size and place that differences of two `int` have.
struct Block
{
    std::int64_t x;
    std::int64_t y;
    std::int64_t width;
    std::int64_t height;
};

/// Sets every pixel of the block that lies inside the surface.
void fillPixels(const Surface& surface, const Block& block, DWORD pixel);

/// Copies to `block` from the block of the same size at (sourceX, sourceY), as far as both lie inside their surfaces,
/// in any overlap as if the source had been put aside first. False when memory for that cannot be had.
bool copyPixels(const Surface& target, const Block& block, const Surface& source, int sourceX, int sourceY);

} // namespace vq::win32
