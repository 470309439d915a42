// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/brushes/Painter.h"
#include "Platform/gdiplus/raster/HardFill.h"

#include <cstdint>
#include <vector>

namespace vq::gdiplus {

/// Covers each pixel by the exact area of the shape in it, rounded to the nearest of 256 levels. Keeps its memory from
/// shape to shape: a strip of the shape's bounds, 256 KiB or sixteen rows.
///
/// Edges are added, in any order, to a grid that holds how the covered area changes from a pixel to the next; the grid
/// is summed up from left to right. A bit for each pixel says where something changes, so that what lies between,
/// inside and outside, costs nothing to find. Nothing is sorted.
class SmoothFill
{
public:
    /// Open figures are closed. All coordinates are numbers.
    void fill(const Polylines& shape, FillRule rule, const Painter& painter);

private:
    class Grid;

    void fillStrip(const Polylines& shape, FillRule rule, const Painter& painter, const Grid& grid);
    template <FillRule rule, typename Runs>
    void sweep(const Runs& runs, const Grid& grid);

    std::vector<float> m_changes;         ///< all 0 between strips
    std::vector<std::uint64_t> m_touched; ///< so are these
};

} // namespace vq::gdiplus
