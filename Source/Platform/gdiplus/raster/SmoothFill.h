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
    /// Pixels first .. end - 1 of each axis.
    struct Box
    {
        int left, top, right, bottom;
    };

    void fillStrip(const Polylines& shape, FillRule rule, const Painter& painter);
    void addEdge(PointD from, PointD to, const PixelView& view);
    void addPart(PointD from, PointD to, double direction, const PixelView& view);
    void addAcrossRow(double xBegin, double xEnd, double height, std::size_t row);
    void add(std::size_t row, std::size_t column, double change);
    template <FillRule rule, typename Runs>
    void sweep(const Runs& runs);

    Box m_strip{};                        ///< of the surface, what is being filled
    std::size_t m_columns = 0;            ///< in the grid, two more than in the strip
    std::size_t m_words = 0;              ///< of bits in a row
    std::vector<float> m_changes;         ///< all 0 between strips
    std::vector<std::uint64_t> m_touched; ///< so are these
};

} // namespace vq::gdiplus
