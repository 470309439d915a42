// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"

namespace vq {

/// The class identifier of an encoder that is built into GDI+: {557CF4nn-1A04-11D3-9A73-0000F81EF32E}.
constexpr CLSID builtInEncoder(DWORD number)
{
    return {0x557CF400 + number, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
}

inline constexpr CLSID kBmpEncoder = builtInEncoder(0);
inline constexpr CLSID kJpegEncoder = builtInEncoder(1);
inline constexpr CLSID kGifEncoder = builtInEncoder(2);
inline constexpr CLSID kTiffEncoder = builtInEncoder(5);
inline constexpr CLSID kPngEncoder = builtInEncoder(6);

} // namespace vq
