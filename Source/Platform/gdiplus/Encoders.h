// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/PixelStore.h"
#include "Platform/gdiplus/codecs/FileBytes.h"

namespace vq::gdiplus {

struct Encoded
{
    FileBytes file;
    Gdiplus::Status status;
};

/// The picture as the bytes of a file. `UnknownImageFormat` for an unknown encoder.
Encoded encode(const PixelStore& store, const CLSID& encoder, const Gdiplus::EncoderParameters* parameters);

} // namespace vq::gdiplus
