// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Pictures into pictures, with GDI+'s rules for position, scale and edges.

#include "Platform/gdiplus/compositor/Blend.h"
#include "Platform/gdiplus/compositor/PixelView.h"

namespace vq::gdiplus {

class StripMemory;

enum class Sampling { Nearest, Bilinear };

struct FloatRect
{
    float x;
    float y;
    float width;
    float height;
};

/// Draws the part `source` of `image` into the rectangle `target` of `canvas`, in pixels of each.
///
/// Target pixel i takes the source position u = source.x + (i - target.x) * source.width / target.width, where source
/// pixel k has its centre at u = k; the pixels target.x <= i < target.x + target.width are drawn, and rows likewise.
/// What lies outside the image is transparent. So an enlarged picture is shifted up and left by half a source pixel and
/// fades out at its right and bottom edges: that is what Windows draws. With `halfPixelOffset` (PixelOffsetModeHalf and
/// HighQuality) pixels of both grids have their centres half a pixel further on: nothing is shifted, all edges fade.
///
/// `Bilinear` interpolates premultiplied values between the two nearest columns and rows, without averaging when it
/// shrinks, and reaches pixels beside `source` that the image has (measured on Wine 8.0). Each channel is within 1 of
/// the exact value, halves go down as on Windows; opaque pictures stay opaque and constant ones constant, up to the
/// fading edges; positions on pixel centres are exact. `Nearest` takes the pixel at u + 1/2, rounded down. Under
/// `SourceCopy` transparent places are written as 00000000 (measured on Wine 8.0 for both).
///
/// A negative width or height mirrors (measured on Wine 8.0). A rectangle without width or height, or with a number
/// that is not finite, draws nothing; any other is clipped to the canvas, whatever its size. The pictures must not
/// overlap in memory, except that an image may be drawn onto itself unscaled in its place. To clip, pass a part of the
/// canvas as the view and move `target` by its corner. False, with nothing drawn, when memory for two rows, which may
/// be `kept` from call to call, cannot be had.
bool drawImage(PixelView canvas, FloatRect target, ConstPixelView image, FloatRect source, Sampling sampling,
               Blend blend, bool halfPixelOffset, StripMemory* kept = nullptr);

} // namespace vq::gdiplus
