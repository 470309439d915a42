// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/PixelMemory.h"
#include "Platform/System.h"

namespace vq::platform {

/// Pixels 0xAARRGGBB with straight alpha, rows from the top without gaps.
struct DecodedPixels
{
    PixelMemory<ULONG> words;
    bool mayBeTransparent = false; ///< otherwise every alpha is 255
};

/// Takes the pixels out of a bitmap that was read from a file, so that they need not be copied; the bitmap is broken
/// afterwards. No words, and the bitmap is as it was, where that cannot be done: it is drawn then.
#if defined(_WIN32)
inline DecodedPixels takePixels(Gdiplus::Bitmap&)
{
    return {};
}
#else
VQPLATFORM_API DecodedPixels takePixels(Gdiplus::Bitmap& bitmap);
#endif

} // namespace vq::platform
