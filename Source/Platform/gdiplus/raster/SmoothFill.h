// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/brushes/Painter.h"
#include "Platform/gdiplus/raster/HardFill.h"

#include <agg_rasterizer_scanline_aa.h>
#include <agg_scanline_p.h>

namespace vq::gdiplus {

/// Covers each pixel by the exact area of the shape in it, in 256 levels; vertices lie on a grid of 1/256 pixel.
/// Keeps its memory from shape to shape.
class SmoothFill
{
public:
    /// Open figures are closed. All coordinates are numbers.
    void fill(const Polylines& shape, FillRule rule, const Painter& painter);

private:
    agg::rasterizer_scanline_aa<agg::rasterizer_sl_clip_dbl> m_rasteriser;
    agg::scanline_p8 m_scanline;
};

} // namespace vq::gdiplus
