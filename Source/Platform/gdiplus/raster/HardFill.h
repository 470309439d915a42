// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/raster/Polylines.h"

#include <algorithm>
#include <cmath>

namespace vq::gdiplus {

enum class FillRule { Alternate, Winding };

/// Finds the pixels whose centre is inside a shape: left and upper edges belong to it, right and lower ones do not.
/// Keeps its memory from shape to shape.
class HardFill
{
public:
    /// Calls `run(y, first, end)`, in order and without overlap, for the pixels of 0 .. width - 1, 0 .. height - 1.
    /// Open figures are closed. All coordinates are numbers.
    template <typename Run>
    void fill(const Polylines& shape, FillRule rule, int width, int height, Run run)
    {
        if (shape.empty() || !findCrossings(shape, height))
            return;
        for (int row = m_firstRow; row < m_endRow; ++row) {
            const auto crossings = sortedCrossings(row);
            int winding = 0;
            for (std::size_t i = 0; i + 1 < crossings.size(); ++i) {
                winding += rule == FillRule::Alternate ? 1 : crossings[i].direction;
                const bool inside = rule == FillRule::Alternate ? winding % 2 != 0 : winding != 0;
                const int first = columnFrom(crossings[i].x, width);
                const int end = columnFrom(crossings[i + 1].x, width);
                if (inside && first < end)
                    run(row, first, end);
            }
        }
    }

private:
    /// Where an edge passes the centres of a row.
    struct Crossing
    {
        double x;
        int direction; ///< 1 downwards, -1 upwards
    };

    static int columnFrom(double x, int width)
    {
        return static_cast<int>(std::ceil(std::clamp(x, 0.0, static_cast<double>(width))));
    }

    bool findCrossings(const Polylines& shape, int height);
    std::span<const Crossing> sortedCrossings(int row);

    std::vector<std::size_t> m_ends; ///< of the crossings of each row from m_firstRow on
    std::vector<Crossing> m_crossings;
    int m_firstRow = 0;
    int m_endRow = 0;
};

} // namespace vq::gdiplus
