// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// A polygon as cells of a grid: what a position costs does not depend on the number of sides.
///
/// A cell that no side comes near is inside or outside as a whole. In any other, a position P is compared with the
/// cell's centre C, of which it is known whether it is inside. Between the two heights the number of sides that cross
/// the ray changes for two reasons only: sides near the cell, and pairs of sides that meet at a vertex in between,
/// which cancel out unless one of the pair is near the cell. So it is enough to look at the sides near the cell: each
/// counts when it crosses the ray from P, once more for each of its ends that is below P and to the right of C, and
/// what that sum is at C is subtracted. The result is that of `isInside`, bit by bit: a side counts as near within a
/// margin that is far above the rounding of `crossingAt`.
///
/// Standard library only.

#include "vqSelection/outline/Outline.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vq {

class OutlineGrid
{
public:
    /// Covers what the area and the polygon's bounds have in common with square cells, `finestCell` wide, a power of
    /// two. With more than 2^24 of them, or more than that many sides near them beside a few of every side, they are
    /// larger. The sides stay the caller's.
    OutlineGrid(const std::vector<Side>& sides, const Area& area, double finestCell);

    /// The cells that positions are in. What is beyond the grid, or no number, is in one of the cells around it.
    void find(const double* x, const double* y, std::size_t count, std::int32_t* cells) const;

    bool isBeyond(std::int32_t cell) const { return m_states[static_cast<std::size_t>(cell)] == kBeyond; }

    /// Whether a position in a cell is inside. Beyond the grid none is.
    bool isInside(std::int32_t cell, double x, double y) const
    {
        const std::uint8_t state = m_states[static_cast<std::size_t>(cell)];
        return (state & kNearSides) == 0 ? state == kInside : ((state & kInside) != 0) != countNear(cell, x, y);
    }

private:
    friend class OutlineGridBuilder;

    static constexpr std::uint8_t kInside = 1; // the cell; of one with near sides, what its sum is to be compared with
    static constexpr std::uint8_t kNearSides = 2; // there are some
    static constexpr std::uint8_t kBeyond = 4;    // the grid

    /// Its sides end where those of the next one begin.
    struct NearCell
    {
        std::int32_t cell;
        std::uint32_t firstSide;
    };

    bool countNear(std::int32_t cell, double x, double y) const;
    bool countSides(std::size_t nearCell, std::int32_t column, double x, double y) const;

    const std::vector<Side>& m_sides;
    double m_left = 0, m_top = 0, m_cell;
    std::int32_t m_columns = 0, m_rows = 0;
    std::vector<std::uint8_t> m_states = std::vector<std::uint8_t>(4, kBeyond); // row by row, and of the cells around
    std::vector<NearCell> m_nearCells;    // in the order of the cells, and one behind them
    std::vector<std::size_t> m_rowBegins; // of each row the first near cell, and one behind them
    std::vector<std::uint32_t> m_nearSides;
};

} // namespace vq
