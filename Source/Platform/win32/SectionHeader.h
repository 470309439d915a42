// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What a host says about pixels of its own. Internal to this folder.

#include "Platform/win32/Gdi.h"

#include <optional>

namespace vq::win32 {

/// Pixels of 32 bits in the order blue, green, red, alpha.
struct PixelLayout
{
    LONG width;
    LONG height;
    bool topDown;
    DWORD masks[3]; // all 0 for BI_RGB
};

/// Empty for a header that is not valid or says something else. Larger headers than BITMAPINFOHEADER are read as far as
/// that goes: where they keep the masks, BI_BITFIELDS has them too.
std::optional<PixelLayout> layoutOf(const BITMAPINFO& info);

/// Stores what the masks of BI_BITFIELDS are, behind the header.
void storeMasks(BITMAPINFO& info);

} // namespace vq::win32
