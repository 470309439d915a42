// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The pixels behind a device context, for the layer's own drawing code. Not part of the Win32 interface.

#include "Platform/win32/Types.h"

#include <optional>

namespace vq::win32 {

/// 32-bit pixels in memory: blue, green, red, alpha. `top` is the first byte of the topmost row; `stride` is the
/// distance in bytes from a row to the one below it and is negative for bottom-up bitmaps.
struct Surface
{
    BYTE* top;
    std::ptrdiff_t stride;
    LONG width;
    LONG height;

    BYTE* row(LONG y) const { return top + y * stride; }
};

/// What the context draws on: the selected bitmap, or the memory desktop for a context of the screen. Empty for a null
/// or released context. Throws std::bad_alloc for a lent context whose picture gets no memory.
VQPLATFORM_API std::optional<Surface> surfaceOf(HDC context);

/// A context over memory that somebody else owns and keeps alive until `DeleteDC`.
VQPLATFORM_API HDC createSurfaceContext(const Surface& surface);

/// The pixels of a bitmap; empty when the handle is not a live bitmap.
VQPLATFORM_API std::optional<Surface> surfaceOf(HBITMAP bitmap);

} // namespace vq::win32
