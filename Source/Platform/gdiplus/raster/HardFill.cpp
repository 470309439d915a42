// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/HardFill.h"

namespace vq::gdiplus {
namespace {

/// Rows of 0 .. height - 1 whose centres lie in [low, high).
struct Rows
{
    int first;
    int end;
};

Rows rowsBetween(double low, double high, int height)
{
    const auto rowFrom = [height](double y) {
        return static_cast<int>(std::ceil(std::clamp(y, 0.0, static_cast<double>(height))));
    };
    return {rowFrom(low), rowFrom(high)};
}

/// Calls `edge(from, to, rows)` for the edges that pass rows' centres.
template <typename Edge>
void forEachEdge(const Polylines& shape, int height, Edge edge)
{
    for (const Polylines::Figure& figure : shape.figures()) {
        const auto points = shape.points(figure);
        PointD from = points.back();
        for (const PointD& to : points) {
            const Rows rows = rowsBetween(std::min(from.y, to.y), std::max(from.y, to.y), height);
            if (rows.first < rows.end)
                edge(from, to, rows);
            from = to;
        }
    }
}

} // namespace

bool HardFill::findCrossings(const Polylines& shape, int height)
{
    const Bounds bounds = shape.bounds();
    const Rows all = rowsBetween(bounds.top, bounds.bottom, height);
    if (all.first >= all.end)
        return false;
    m_firstRow = all.first;
    m_endRow = all.end;
    m_ends.assign(static_cast<std::size_t>(all.end - all.first) + 1, 0);
    const auto indexOf = [&](int row) { return static_cast<std::size_t>(row - m_firstRow); };
    forEachEdge(shape, height, [&](PointD, PointD, Rows rows) {
        for (int row = rows.first; row < rows.end; ++row)
            ++m_ends[indexOf(row) + 1];
    });
    for (std::size_t i = 1; i < m_ends.size(); ++i)
        m_ends[i] += m_ends[i - 1];
    m_crossings.resize(m_ends.back());
    // Each entry is the beginning of its row now; storing moves it to the end, where the next row begins.
    forEachEdge(shape, height, [&](PointD from, PointD to, Rows rows) {
        const double across = to.x - from.x;
        const double down = to.y - from.y;
        for (int row = rows.first; row < rows.end; ++row)
            m_crossings[m_ends[indexOf(row)]++] = {from.x + (row - from.y) * across / down, down > 0 ? 1 : -1};
    });
    return true;
}

/// A row of most shapes has two crossings, and rows of busy polygons are nearly in order: insertion is quick for both.
std::span<const HardFill::Crossing> HardFill::sortedCrossings(int row)
{
    const auto index = static_cast<std::size_t>(row - m_firstRow);
    const std::size_t first = index == 0 ? 0 : m_ends[index - 1];
    const std::span<Crossing> crossings(m_crossings.data() + first, m_ends[index] - first);
    constexpr std::size_t kFew = 32;
    if (crossings.size() > kFew) {
        std::ranges::sort(crossings, {}, &Crossing::x);
        return crossings;
    }
    for (std::size_t i = 1; i < crossings.size(); ++i) {
        const Crossing moved = crossings[i];
        std::size_t place = i;
        for (; place > 0 && moved.x < crossings[place - 1].x; --place)
            crossings[place] = crossings[place - 1];
        crossings[place] = moved;
    }
    return crossings;
}

} // namespace vq::gdiplus
