// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/PixelMemory.h"
#include "Platform/gdiplus/codecs/Escape.h"

#include <png.h>

/// @file
/// What reader and writer of PNG files hand to libpng: memory that may fail, errors that come back, no messages.

namespace vq::gdiplus::png {

[[noreturn]] inline void leave(png_structp png, png_const_charp)
{
    std::longjmp(static_cast<Escape*>(png_get_error_ptr(png))->target, 1);
}

inline png_voidp allocate(png_structp, png_alloc_size_t bytes)
{
    return platform::allocateRaw(bytes);
}

inline void release(png_structp, png_voidp memory)
{
    platform::release(memory);
}

} // namespace vq::gdiplus::png
