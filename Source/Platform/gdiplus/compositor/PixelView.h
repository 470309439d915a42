// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Rectangles of pixels in memory that somebody else owns.

#include <cstddef>
#include <cstdint>

namespace vq::gdiplus {

using Channel = std::uint8_t;
using Pixel = std::uint32_t; ///< 0xAARRGGBB, straight alpha; in memory blue, green, red, alpha

constexpr Pixel kAlphaBits = 0xFF000000;

/// Pixels that may be written. `top` is the first byte of the topmost row; `stride` is the distance in bytes from a row
/// to the one below it, a multiple of 4, negative for bottom-up bitmaps.
struct PixelView
{
    std::uint8_t* top;
    std::ptrdiff_t stride;
    int width;
    int height;

    Pixel* row(int y) const { return reinterpret_cast<Pixel*>(top + y * stride); }
};

/// Pixels that are only read.
struct ConstPixelView
{
    const std::uint8_t* top;
    std::ptrdiff_t stride;
    int width;
    int height;

    constexpr ConstPixelView(const std::uint8_t* topRow, std::ptrdiff_t rowStride, int columns, int rows)
        : top(topRow), stride(rowStride), width(columns), height(rows)
    {
    }
    constexpr ConstPixelView(const PixelView& view) : ConstPixelView(view.top, view.stride, view.width, view.height) {}

    const Pixel* row(int y) const { return reinterpret_cast<const Pixel*>(top + y * stride); }
};

} // namespace vq::gdiplus
