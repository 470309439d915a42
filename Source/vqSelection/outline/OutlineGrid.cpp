// SPDX-License-Identifier: MIT
#include "vqSelection/outline/OutlineGrid.h"

#include <algorithm>
#include <cmath>

namespace vq {

namespace {

constexpr double kMostCells = 1 << 24;
constexpr double kMostNearSides = 1 << 24; // beside the few of every side, however large the cells are
constexpr double kMargin = 1.0 / 4096;     // of a cell

Area commonArea(const std::vector<Side>& sides, Area area)
{
    Area bounds{area.right, area.bottom, area.left, area.top};
    for (const Side& side : sides) {
        bounds.left = std::min(bounds.left, side.x1);
        bounds.top = std::min(bounds.top, side.y1);
        bounds.right = std::max(bounds.right, side.x1);
        bounds.bottom = std::max(bounds.bottom, side.y1);
    }
    return {std::max(area.left, bounds.left), std::max(area.top, bounds.top), std::min(area.right, bounds.right),
            std::min(area.bottom, bounds.bottom)};
}

/// How many cells of a row or column lie along what two ranges have in common, fractions too.
double cellsAlong(double from, double to, double least, double most, double cell)
{
    return std::max(0.0, (std::min(std::max(from, to), most) - std::max(std::min(from, to), least)) / cell);
}

/// At most how many pairs of a cell and a side near it there are, but for a few of every side.
double nearSidesIn(const std::vector<Side>& sides, const Area& area, double cell)
{
    double sum = 0;
    for (const Side& side : sides)
        sum += cellsAlong(side.x1, side.x2, area.left, area.right, cell) +
               cellsAlong(side.y1, side.y2, area.top, area.bottom, cell);
    return sum;
}

/// What a side near a cell counts for a position. @param middle x of the cell's centre
bool countOf(const Side& side, double middle, double x, double y)
{
    const bool first = side.x1 > middle && side.y1 > y;
    const bool second = side.x2 > middle && side.y2 > y;
    return (crosses(side, x, y) != first) != second;
}

} // namespace

/// Fills a grid row by row.
class OutlineGridBuilder
{
public:
    OutlineGridBuilder(OutlineGrid& grid, const Area& area) : m_grid(grid), m_sides(grid.m_sides)
    {
        chooseCells(area);
        const auto columns = static_cast<std::size_t>(grid.m_columns);
        const auto rows = static_cast<std::size_t>(grid.m_rows);
        grid.m_states.assign((columns + 2) * (rows + 2), OutlineGrid::kBeyond);
        grid.m_rowBegins.reserve(rows + 1);
        m_changes.resize(columns + 1);
        m_counts.resize(columns);
        m_sidesOfRow.resize(rows);
    }

    void build()
    {
        sortByFirstRow();
        for (std::int32_t row = 0; row < m_grid.m_rows; ++row) {
            takeSidesOf(row);
            collectRuns(row);
            m_grid.m_rowBegins.push_back(m_grid.m_nearCells.size());
            listNearSides(row);
            setStates(row);
        }
        m_grid.m_rowBegins.push_back(m_grid.m_nearCells.size());
        m_grid.m_nearCells.push_back({0, static_cast<std::uint32_t>(m_grid.m_nearSides.size())});
    }

private:
    /// A side near neighbouring cells of a row, both included.
    struct Run
    {
        std::uint32_t side;
        std::int32_t first, last;
    };
    struct Range
    {
        std::int32_t first, last;
    };

    void chooseCells(const Area& area)
    {
        m_grid.m_left = std::floor(area.left);
        m_grid.m_top = std::floor(area.top);
        const auto along = [this](double from, double to) { return std::floor((to - from) / m_grid.m_cell) + 1; };
        while (true) {
            const double columns = along(m_grid.m_left, area.right);
            const double rows = along(m_grid.m_top, area.bottom);
            const double nearSides = nearSidesIn(m_sides, area, m_grid.m_cell);
            const bool fits = columns * rows <= kMostCells && nearSides <= kMostNearSides;
            if (fits || columns * rows <= 1) {
                m_grid.m_columns = static_cast<std::int32_t>(columns);
                m_grid.m_rows = static_cast<std::int32_t>(rows);
                return;
            }
            m_grid.m_cell *= 2;
        }
    }

    /// The cells along one axis that are near a range of it; none when `first` is beyond `last`.
    Range cellsNear(double least, double most, double origin, std::int32_t count) const
    {
        const double margin = kMargin * m_grid.m_cell;
        const double first = std::floor((least - margin - origin) / m_grid.m_cell);
        const double last = std::floor((most + margin - origin) / m_grid.m_cell);
        return {static_cast<std::int32_t>(std::clamp(first, 0.0, static_cast<double>(count))),
                static_cast<std::int32_t>(std::clamp(last, -1.0, static_cast<double>(count - 1)))};
    }

    Range rowsOf(const Side& side) const
    {
        return cellsNear(std::min(side.y1, side.y2), std::max(side.y1, side.y2), m_grid.m_top, m_grid.m_rows);
    }

    void sortByFirstRow()
    {
        m_lastRows.reserve(m_sides.size());
        for (std::size_t i = 0; i < m_sides.size(); ++i) {
            const Range rows = rowsOf(m_sides[i]);
            m_lastRows.push_back(rows.last);
            if (rows.first <= rows.last)
                m_sidesOfRow[static_cast<std::size_t>(rows.first)].push_back(static_cast<std::uint32_t>(i));
        }
    }

    /// Sides that end above go, those that begin here come.
    void takeSidesOf(std::int32_t row)
    {
        std::erase_if(m_active, [&](std::uint32_t side) { return m_lastRows[side] < row; });
        const std::vector<std::uint32_t>& begun = m_sidesOfRow[static_cast<std::size_t>(row)];
        m_active.insert(m_active.end(), begun.begin(), begun.end());
    }

    double middleOfRow(std::int32_t row) const { return m_grid.m_top + (row + 0.5) * m_grid.m_cell; }
    double middleOfColumn(std::int32_t column) const { return m_grid.m_left + (column + 0.5) * m_grid.m_cell; }

    Range columnsOf(const Side& side, std::int32_t row) const
    {
        const double margin = kMargin * m_grid.m_cell;
        const double top = m_grid.m_top + row * m_grid.m_cell - margin;
        const double bottom = m_grid.m_top + (row + 1) * m_grid.m_cell + margin;
        double x1 = side.x1;
        double x2 = side.x2;
        if (side.y1 != side.y2) {
            x1 = crossingAt(side, std::clamp(side.y1, top, bottom));
            x2 = crossingAt(side, std::clamp(side.y2, top, bottom));
        }
        return cellsNear(std::min(x1, x2), std::max(x1, x2), m_grid.m_left, m_grid.m_columns);
    }

    /// The centres left of a crossing, which are those whose ray meets it, are the first ones.
    std::int32_t centresLeftOf(double crossing) const
    {
        const double guess = std::ceil((crossing - m_grid.m_left) / m_grid.m_cell - 0.5);
        auto count = static_cast<std::int32_t>(std::clamp(guess, 0.0, static_cast<double>(m_grid.m_columns)));
        while (count > 0 && middleOfColumn(count - 1) >= crossing)
            --count;
        while (count < m_grid.m_columns && middleOfColumn(count) < crossing)
            ++count;
        return count;
    }

    void collectRuns(std::int32_t row)
    {
        std::ranges::fill(m_changes, std::uint8_t{0});
        std::ranges::fill(m_counts, 0U);
        m_runs.clear();
        const double middle = middleOfRow(row);
        for (const std::uint32_t index : m_active) {
            const Side& side = m_sides[index];
            if (spans(side, middle))
                m_changes[static_cast<std::size_t>(centresLeftOf(crossingAt(side, middle)))] ^= 1;
            const Range columns = columnsOf(side, row);
            if (columns.first > columns.last)
                continue;
            m_runs.push_back({index, columns.first, columns.last});
            for (std::int32_t column = columns.first; column <= columns.last; ++column)
                ++m_counts[static_cast<std::size_t>(column)];
        }
    }

    std::int32_t cellAt(std::int32_t row, std::size_t column) const
    {
        return (row + 1) * (m_grid.m_columns + 2) + static_cast<std::int32_t>(column) + 1;
    }

    /// Turns the counts into places of the list, and fills these.
    void listNearSides(std::int32_t row)
    {
        auto place = static_cast<std::uint32_t>(m_grid.m_nearSides.size());
        for (std::size_t column = 0; column < m_counts.size(); ++column) {
            const std::uint32_t count = m_counts[column];
            if (count > 0)
                m_grid.m_nearCells.push_back({cellAt(row, column), place});
            m_counts[column] = place;
            place += count;
        }
        m_grid.m_nearSides.resize(place);
        for (const Run& run : m_runs)
            for (std::int32_t column = run.first; column <= run.last; ++column)
                m_grid.m_nearSides[m_counts[static_cast<std::size_t>(column)]++] = run.side;
    }

    /// From the right, where no ray crosses anything. A crossing is in a near cell, so that it changes nothing further
    /// than at the next centre on each side of one.
    void setStates(std::int32_t row)
    {
        const std::size_t firstNear = m_grid.m_rowBegins.back();
        std::size_t nearCell = m_grid.m_nearCells.size();
        m_grid.m_nearCells.push_back({0, static_cast<std::uint32_t>(m_grid.m_nearSides.size())});
        bool inside = false;
        std::int32_t end = m_grid.m_columns; // from here on it is done
        while (nearCell-- > firstNear) {
            const std::int32_t column = m_grid.m_nearCells[nearCell].cell - cellAt(row, 0);
            inside = setGap(row, column + 1, end, inside) != changesAt(column + 1);
            const bool counted = m_grid.countSides(nearCell, column, middleOfColumn(column), middleOfRow(row));
            stateAt(row, column) = OutlineGrid::kNearSides | (inside != counted ? OutlineGrid::kInside : 0);
            end = column;
        }
        setGap(row, 0, end, inside);
        m_grid.m_nearCells.pop_back();
    }

    /// Cells without near sides, all alike. @param inside what is right of them @return what they are
    bool setGap(std::int32_t row, std::int32_t first, std::int32_t end, bool inside)
    {
        if (first == end)
            return inside;
        const bool gap = inside != changesAt(end);
        std::fill_n(&stateAt(row, first), end - first, gap ? OutlineGrid::kInside : std::uint8_t{0});
        return gap;
    }

    bool changesAt(std::int32_t centres) const { return m_changes[static_cast<std::size_t>(centres)] != 0; }
    std::uint8_t& stateAt(std::int32_t row, std::int32_t column)
    {
        return m_grid.m_states[static_cast<std::size_t>(cellAt(row, static_cast<std::size_t>(column)))];
    }

    OutlineGrid& m_grid;
    const std::vector<Side>& m_sides;
    std::vector<std::vector<std::uint32_t>> m_sidesOfRow; // those that begin in it
    std::vector<std::int32_t> m_lastRows;
    std::vector<std::uint32_t> m_active;
    std::vector<Run> m_runs;
    std::vector<std::uint8_t> m_changes; // at a number of centres: whether an odd number of sides is right of these
    std::vector<std::uint32_t> m_counts; // of a column: its near sides, later the place of the next
};

OutlineGrid::OutlineGrid(const std::vector<Side>& sides, const Area& area, double finestCell)
    : m_sides(sides), m_cell(finestCell)
{
    const Area common = commonArea(sides, area);
    if (common.left <= common.right && common.top <= common.bottom)
        OutlineGridBuilder(*this, common).build();
}

void OutlineGrid::find(const double* x, const double* y, std::size_t count, std::int32_t* cells) const
{
    const double scale = 1 / m_cell;
    const double left = m_left;
    const double top = m_top;
    const double lastColumn = m_columns + 1;
    const double lastRow = m_rows + 1;
    const std::int32_t stride = m_columns + 2;
    for (std::size_t i = 0; i < count; ++i) {
        double column = (x[i] - left) * scale + 1;
        double row = (y[i] - top) * scale + 1;
        column = column > 0 ? column : 0; // also what is no number
        row = row > 0 ? row : 0;
        column = column < lastColumn ? column : lastColumn;
        row = row < lastRow ? row : lastRow;
        cells[i] = static_cast<std::int32_t>(row) * stride + static_cast<std::int32_t>(column);
    }
}

bool OutlineGrid::countNear(std::int32_t cell, double x, double y) const
{
    const std::int32_t stride = m_columns + 2;
    const auto row = static_cast<std::size_t>(cell / stride - 1);
    const auto first = m_nearCells.begin() + static_cast<std::ptrdiff_t>(m_rowBegins[row]);
    const auto last = m_nearCells.begin() + static_cast<std::ptrdiff_t>(m_rowBegins[row + 1]);
    const auto found = std::lower_bound(
        first, last, cell, [](const NearCell& candidate, std::int32_t wanted) { return candidate.cell < wanted; });
    return countSides(static_cast<std::size_t>(found - m_nearCells.begin()), cell % stride - 1, x, y);
}

bool OutlineGrid::countSides(std::size_t nearCell, std::int32_t column, double x, double y) const
{
    const double middle = m_left + (column + 0.5) * m_cell;
    bool odd = false;
    for (std::uint32_t i = m_nearCells[nearCell].firstSide; i < m_nearCells[nearCell + 1].firstSide; ++i)
        odd ^= countOf(m_sides[m_nearSides[i]], middle, x, y);
    return odd;
}

} // namespace vq
