// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The way from a picture to its pixels, for its own members. Not part of the interface.

#include "Platform/gdiplus/Image.h"
#include "Platform/gdiplus/PixelStore.h"
#include "Platform/gdiplus/Started.h"

namespace Gdiplus {

/// Runs the work of a call on the pixels; `InvalidParameter` for a broken picture.
template <typename Work>
Status Image::withPixels(Work work) const
{
    return vq::gdiplus::guarded([&]() -> Status {
        if (!m_pixels)
            return InvalidParameter;
        return work(*m_pixels);
    });
}

/// A property of the pixels, or `fallback` when there are none.
template <typename Value, typename Reader>
Value Image::read(Value fallback, Reader reader) const
{
    setStatus(withPixels([&](const vq::gdiplus::PixelStore& pixels) {
        fallback = reader(pixels);
        return Ok;
    }));
    return fallback;
}

} // namespace Gdiplus
