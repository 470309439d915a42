// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/brushes/Painter.h"
#include "Platform/gdiplus/raster/HardFill.h"

#include <agg_rasterizer_scanline_aa_nogamma.h>

namespace vq::gdiplus {

/// Covers each pixel by the exact area of the shape in it, in 256 levels; vertices lie on a grid of 1/256 pixel.
/// Keeps its memory from shape to shape.
class SmoothFill
{
public:
    /// Open figures are closed. All coordinates are numbers.
    void fill(const Polylines& shape, FillRule rule, const Painter& painter);

private:
    using Cells = agg::rasterizer_cells_aa<agg::cell_aa>;

    void addEdges(const Polylines& shape, const PixelView& view);
    template <FillRule rule, typename Runs>
    void sweep(const Runs& runs);

    Cells m_cells;
    agg::rasterizer_sl_clip_dbl m_clip;
};

} // namespace vq::gdiplus
