// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/codecs/BmpHeader.h"

namespace vq::gdiplus::bmp {

/// Decodes run-length encoded pixels into a picture of the header's size. Pixels that the file skips take the first
/// palette entry; runs are cut at the end of their row. False when the data ends before the picture does.
bool decodeRunLength(const Header& header, PixelView target);

} // namespace vq::gdiplus::bmp
