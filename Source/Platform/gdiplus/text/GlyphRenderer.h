// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/text/Face.h"
#include "Platform/gdiplus/text/GlyphCache.h"

namespace vq::gdiplus {

/// Where in its pixel a glyph's origin lies, in quarters, right and down.
struct Subpixel
{
    int x = 0;
    int y = 0;
};

/// Draws one glyph, the part of it that lies in `region` (pixels around the pixel of its origin). What FreeType refuses
/// is empty. Throws std::bad_alloc.
GlyphImage renderGlyph(Face& face, std::uint32_t glyph, const GlyphStyle& style, Subpixel subpixel,
                       const PixelRect& region);

/// A picture of premultiplied pixels, blue, green, red, alpha in memory, rows `pitch` bytes apart.
struct PictureGlyph
{
    const std::uint8_t* pixels;
    std::ptrdiff_t pitch;
    int width;
    int height;
    int left; ///< of the origin, as FreeType counts: the picture's left edge
    int top;  ///< the picture's upper edge above the base line
};

/// A picture glyph scaled, each pixel the mean of what it covers. With `twoLevel` a pixel is opaque or not there.
GlyphImage scalePicture(const PictureGlyph& picture, double scale, bool twoLevel, const PixelRect& region);

} // namespace vq::gdiplus
