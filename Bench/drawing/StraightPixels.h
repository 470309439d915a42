// SPDX-License-Identifier: MIT
#pragma once

#include "drawing/Picture.h"
#include "drawing/Scene.h"

#include <agg_color_rgba.h>

#include <algorithm>

namespace vq::bench {

/// The plainest compositing of coverage on straight alpha, for AGG to draw with: one pixel after the other.
class StraightPixels
{
public:
    using color_type = agg::rgba8; // AGG asks for this name

    void clear(Argb colour) { std::fill(m_pixels.begin(), m_pixels.end(), colour); }
    const Picture& picture() const { return m_pixels; }

    void blendPixel(int x, int y, const agg::rgba8& colour, unsigned coverage)
    {
        if (isInside(x, y))
            blend(*at(x, y), colour, coverage);
    }

    /// A run inside the picture.
    void blendRun(int x, int y, int length, const agg::rgba8& colour, const agg::cover_type* coverage)
    {
        Argb* pixel = at(x, y);
        for (int i = 0; i < length; ++i)
            blend(pixel[i], colour, coverage[i]);
    }
    void blendRun(int x, int y, int length, const agg::rgba8& colour)
    {
        Argb* pixel = at(x, y);
        for (int i = 0; i < length; ++i)
            blend(pixel[i], colour, agg::cover_full);
    }

    /// What AGG's outline renderer draws with: short pieces across a line.
    void blend_solid_hspan(int x, int y, unsigned length, const agg::rgba8& colour, const agg::cover_type* coverage)
    {
        for (int i = 0; i < static_cast<int>(length); ++i)
            blendPixel(x + i, y, colour, coverage[i]);
    }
    void blend_solid_vspan(int x, int y, unsigned length, const agg::rgba8& colour, const agg::cover_type* coverage)
    {
        for (int i = 0; i < static_cast<int>(length); ++i)
            blendPixel(x, y + i, colour, coverage[i]);
    }

private:
    static bool isInside(int x, int y) { return x >= 0 && y >= 0 && x < kWidth && y < kHeight; }
    Argb* at(int x, int y) { return m_pixels.data() + static_cast<std::size_t>(y) * kWidth + x; }

    static unsigned divided(unsigned product) { return (product + 128 + ((product + 128) >> 8)) >> 8; } // by 255

    static void blend(Argb& pixel, const agg::rgba8& colour, unsigned coverage)
    {
        const Argb above = static_cast<Argb>(colour.r << 16 | colour.g << 8 | colour.b);
        const unsigned alpha = divided(colour.a * coverage);
        const unsigned below = pixel >> 24;
        if (alpha == 0)
            return;
        if (alpha == 255 || below == 0)
            pixel = alpha << 24 | above;
        else if (below == 255)
            pixel = 0xFF000000 | mixed(pixel, above, alpha);
        else {
            const unsigned united = alpha + below - divided(alpha * below);
            pixel = united << 24 | mixed(pixel, above, (alpha * 255 + united / 2) / united);
        }
    }

    /// Colours with `share` 255ths of the one above; red and blue at once, since their products leave room.
    static Argb mixed(Argb below, Argb above, unsigned share)
    {
        const auto channels = [=](Argb mask, int shift) {
            const Argb products =
                (below >> shift & mask) * (255 - share) + (above >> shift & mask) * share + (mask & 0x00800080);
            return ((products + (products >> 8 & mask)) >> 8 & mask) << shift;
        };
        return channels(0x00FF00FF, 0) | channels(0x000000FF, 8);
    }

    Picture m_pixels = Picture(static_cast<std::size_t>(kWidth) * kHeight);
};

} // namespace vq::bench
