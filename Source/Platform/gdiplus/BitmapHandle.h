// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/PixelStore.h"

namespace vq::gdiplus {

/// A new 32-bit bottom-up bitmap with the pixels over a background colour; null when it cannot be had.
/// Each channel is the premultiplied one plus background * (255 - alpha) / 255, both rounded; alpha is kept.
HBITMAP createHandle(const PixelStore& store, Pixel background);

} // namespace vq::gdiplus
