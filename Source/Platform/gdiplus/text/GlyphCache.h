// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/text/LruCache.h"
#include "Platform/gdiplus/text/Text.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vq::gdiplus {

/// How a glyph is drawn, apart from where.
struct GlyphStyle
{
    float em;
    GlyphRendering rendering;
    unsigned contrast;
    bool colour;
    bool emboldened;
    bool slanted;
};

/// Positions are kept to a quarter of a pixel.
inline constexpr int kSubpixelBits = 2;
inline constexpr int kSubpixels = 1 << kSubpixelBits;

/// A glyph as pixels. `left` and `top` are counted from the pixel of its origin, rows downwards. One of the two blocks
/// holds width * height entries, the other none; both are empty for a glyph without a shape.
struct GlyphImage
{
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    std::vector<Channel> coverage;
    std::vector<Pixel> colours;

    std::size_t bytes() const { return sizeof(*this) + coverage.size() + colours.size() * sizeof(Pixel); }
};

/// Everything that a glyph's pixels depend on.
struct GlyphKey
{
    std::uint32_t face;
    std::uint32_t glyph;
    std::uint32_t em;    ///< the bits of the float
    std::uint32_t style; ///< the rest of the style and the position within the pixel

    bool operator==(const GlyphKey&) const = default;
};

struct GlyphView
{
    explicit GlyphView(const GlyphKey& glyph)
        : key(glyph), hash(spread((std::size_t{glyph.face} << 32 | glyph.glyph) * 0x9E3779B97F4A7C15U ^
                                  (std::size_t{glyph.em} << 32 | glyph.style)))
    {
    }
    bool operator==(const GlyphKey& other) const { return key == other; }

    GlyphKey key;
    std::size_t hash;
};

using GlyphCache = LruCache<GlyphKey, GlyphView, GlyphImage>;

} // namespace vq::gdiplus
