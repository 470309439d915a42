// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/compositor/PixelView.h"

#include <algorithm>
#include <cstddef>

namespace vq::gdiplus {

/// Pixels left <= x < right, top <= y < bottom.
struct PixelRect
{
    int left;
    int top;
    int right;
    int bottom;

    constexpr bool empty() const { return left >= right || top >= bottom; }
};

/// The pixels that both hold; empty when there are none.
constexpr PixelRect commonPart(const PixelRect& a, const PixelRect& b)
{
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right), std::min(a.bottom, b.bottom)};
}

/// All pixels that text is ever drawn to: sums of such coordinates and glyph sizes fit an int.
inline constexpr PixelRect kEverywhere{-(1 << 28), -(1 << 28), 1 << 28, 1 << 28};

/// Where the shape of one glyph covers pixels. Rows lie `stride` bytes apart.
struct GlyphCoverage
{
    int x; ///< of the leftmost column
    int y; ///< of the topmost row
    int width;
    int height;
    std::ptrdiff_t stride;
    const Channel* coverage;

    const Channel* row(int line) const { return coverage + line * stride; }
};

/// Takes a text glyph by glyph. Everything lies inside the visible rectangle of the call, and no pixel is given twice
/// within one glyph. Memory is lent for the call. The engine's lock is held: no member calls the engine or throws.
class GlyphSink
{
public:
    /// A guess, before the text is shaped, where most of its pixels will be: time to fetch them from memory.
    virtual void expect([[maybe_unused]] const PixelRect& rectangle) noexcept {}

    /// The brush through a coverage; never empty.
    virtual void glyph(const GlyphCoverage& glyph) noexcept = 0;

    /// A glyph with colours of its own, straight alpha, its corner at (x, y); what the brush adds is its alpha.
    virtual void colourGlyph(int x, int y, const ConstPixelView& pixels) noexcept = 0;

    /// An underline or a strike-out: the brush over whole pixels.
    virtual void rectangle(const PixelRect& rectangle) noexcept = 0;

protected:
    ~GlyphSink() = default;
};

} // namespace vq::gdiplus
