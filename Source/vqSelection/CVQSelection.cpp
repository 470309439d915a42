// SPDX-License-Identifier: MIT
// Points go to the screen in blocks; there the shape, and then the depth buffer, say which of them count.
#include "vqSelection/VQSelection.h"
#include "vqSelection/outline/OutlineGrid.h"
#include "vqSelection/points/DepthBuffer.h"
#include "vqSelection/points/Projection.h"

#include <algorithm>
#include <array>
#include <bit>
#include <memory>
#include <optional>

namespace {

constexpr std::size_t kWordBits = 64;

/// A block's points, a bit each. Those beyond its end are 0.
using Bits = std::array<std::uint64_t, vq::PointBlock::kSize / kWordBits>;

/// One bit for each point that `has(index)` is true of.
template <typename Has>
void setBits(std::size_t count, Bits& bits, Has has)
{
    bits.fill(0);
    for (std::size_t first = 0; first < count; first += kWordBits) {
        const std::size_t length = std::min(kWordBits, count - first);
        std::uint64_t word = 0;
        for (std::size_t i = 0; i < length; ++i)
            word |= std::uint64_t{has(first + i)} << i;
        bits[first / kWordBits] = word;
    }
}

/// A polygon is looked up in the viewport; where it reaches beyond, in a second grid, whose cells are larger when it
/// reaches far.
class PolygonLookup
{
public:
    PolygonLookup(const std::vector<double>& vertices, const int (&viewport)[4], bool alsoOutside)
        : m_sides(vq::sidesOf(vertices)), m_view(m_sides, areaOf(viewport), kPixel)
    {
        if (alsoOutside && reachesBeyond(areaOf(viewport)))
            m_beyond.emplace(m_sides, vq::Area{-kEverything, -kEverything, kEverything, kEverything}, kCellBeyond);
    }
    PolygonLookup(const PolygonLookup&) = delete;
    PolygonLookup& operator=(const PolygonLookup&) = delete;

    void operator()(const vq::PointBlock& block, std::size_t count, Bits& bits) const
    {
        std::array<std::int32_t, vq::PointBlock::kSize> cells;
        m_view.find(block.x, block.y, count, cells.data());
        if (!m_beyond) {
            setBits(count, bits, [&](std::size_t i) { return m_view.isInside(cells[i], block.x[i], block.y[i]); });
            return;
        }
        std::array<std::int32_t, vq::PointBlock::kSize> cellsBeyond;
        m_beyond->find(block.x, block.y, count, cellsBeyond.data());
        setBits(count, bits, [&](std::size_t i) {
            return m_view.isBeyond(cells[i]) ? m_beyond->isInside(cellsBeyond[i], block.x[i], block.y[i])
                                             : m_view.isInside(cells[i], block.x[i], block.y[i]);
        });
    }

private:
    static constexpr double kPixel = 1;
    static constexpr double kCellBeyond = 8;    // where fewer points are
    static constexpr double kEverything = 1e10; // further than any vertex

    static vq::Area areaOf(const int (&viewport)[4])
    {
        const double top = -static_cast<double>(viewport[1]);
        return {static_cast<double>(viewport[0]), top, static_cast<double>(viewport[0]) + viewport[2],
                top + viewport[3]};
    }

    bool reachesBeyond(const vq::Area& area) const
    {
        return std::ranges::any_of(m_sides, [&area](const vq::Side& side) {
            return side.x1 < area.left || side.y1 < area.top || side.x1 > area.right || side.y1 > area.bottom;
        });
    }

    std::vector<vq::Side> m_sides;
    vq::OutlineGrid m_view;
    std::optional<vq::OutlineGrid> m_beyond;
};

/// Drops points of an area that something hides. For many of them what hides is looked up in a map, which costs as much
/// as the area is large in the viewport.
class Visibility
{
public:
    Visibility(const SVQSelectionView& view, std::size_t points, const vq::Area& area)
        : m_depth(view.m_pDepth, view.m_view.m_iViewport, view.m_dTolerance)
    {
        constexpr double kPixelsForAPoint = 16; // of a map, in the time in which nine are looked at
        const vq::DepthBuffer::Region region = m_depth.regionOf(area);
        m_hasMap = static_cast<double>(points) * kPixelsForAPoint >= region.pixels() && m_depth.mapFarthest(region);
    }

    void dropHidden(const vq::PointBlock& block, std::size_t count, Bits& bits) const
    {
        if (!m_hasMap) {
            keep(bits, [&](std::size_t i) { return m_depth.shows(block.x[i], block.y[i], block.depth[i]); });
            return;
        }
        std::array<std::int32_t, vq::PointBlock::kSize> pixels;
        m_depth.find(block.x, block.y, count, pixels.data());
        keep(bits, [&](std::size_t i) { return m_depth.shows(pixels[i], block.depth[i]); });
    }

private:
    template <typename Shows>
    static void keep(Bits& bits, Shows shows)
    {
        for (std::size_t word = 0; word < bits.size(); ++word) {
            std::uint64_t shown = 0;
            for (std::uint64_t rest = bits[word]; rest != 0; rest &= rest - 1) {
                const auto bit = static_cast<std::size_t>(std::countr_zero(rest));
                shown |= std::uint64_t{shows(word * kWordBits + bit)} << bit;
            }
            bits[word] = shown;
        }
    }

    vq::DepthBuffer m_depth;
    bool m_hasMap;
};

std::uint64_t combined(EVQSelectionMode mode, std::uint64_t before, std::uint64_t found)
{
    switch (mode) {
    case VQ_SELECT_ADD:
        return before | found;
    case VQ_SELECT_SUBTRACT:
        return before & ~found;
    case VQ_SELECT_TOGGLE:
        return before ^ found;
    case VQ_SELECT_REPLACE:
        break;
    }
    return found;
}

/// What a call of `Select` goes through its points with.
struct Pass
{
    const SVQSelectionView& view;
    const std::optional<Visibility>& visibility;
    const SVQSelectionPoints& points;
    EVQSelectionMode mode;
    std::uint64_t* words;

    /// @param mark sets the bits of a block's points that the shape has @return how many points were changed
    template <typename Mark>
    std::size_t run(const Mark& mark) const
    {
        const vq::Projection projection(view.m_view.m_dModelView, view.m_view.m_dProjection, view.m_view.m_iViewport);
        std::size_t changed = 0;
        vq::PointBlock block;
        Bits bits;
        for (std::size_t first = 0; first < points.m_nCount; first += vq::PointBlock::kSize) {
            const std::size_t count = std::min(vq::PointBlock::kSize, points.m_nCount - first);
            projection.project(points.m_pPoints + first * 3, count, block);
            mark(block, count, bits);
            if (visibility)
                visibility->dropHidden(block, count, bits);
            changed += store(bits, count, words + first / kWordBits);
        }
        return changed;
    }

    std::size_t store(const Bits& bits, std::size_t count, std::uint64_t* target) const
    {
        std::size_t changed = 0;
        for (std::size_t i = 0; i * kWordBits < count; ++i) {
            const std::uint64_t before = target[i];
            target[i] = combined(mode, before, bits[i]);
            changed += static_cast<std::size_t>(std::popcount(before ^ target[i]));
        }
        return changed;
    }
};

} // namespace

std::size_t CVQSelection::Select(const CVQSelectionShape& shape, const SVQSelectionView& view,
                                 const SVQSelectionPoints& points, EVQSelectionMode mode, CVQSelectionSet& set)
{
    using Kind = CVQSelectionShape::Kind;
    if (!points.m_pPoints && points.m_nCount > 0)
        return 0;
    const int(&viewport)[4] = view.m_view.m_iViewport;
    const bool showsNothing = viewport[2] <= 0 || viewport[3] <= 0;
    const Kind kind = showsNothing ? Kind::Empty : shape.m_kind;
    const auto bounds = [&shape] {
        if (shape.m_kind == Kind::Polygon)
            return vq::boundsOf(shape.m_vertices);
        if (shape.m_kind == Kind::Circle)
            return vq::boundsOf(shape.m_circle);
        return vq::Area{shape.m_box[0], shape.m_box[1], shape.m_box[2], shape.m_box[3]};
    };
    std::unique_ptr<const PolygonLookup> polygon; // these before anything changes, since memory may be short
    std::optional<Visibility> visibility;
    if (kind == Kind::Polygon)
        polygon = std::make_unique<const PolygonLookup>(shape.m_vertices, viewport, view.m_pDepth == nullptr);
    if (kind != Kind::Empty && view.m_pDepth)
        visibility.emplace(view, points.m_nCount, bounds());
    if (!set.Resize(points.m_nCount))
        return 0;

    const Pass pass{view, visibility, points, mode, set.m_words.data()};
    const auto markWhere = [&pass](auto has) {
        return pass.run([&has](const vq::PointBlock& block, std::size_t count, Bits& bits) {
            setBits(count, bits, [&](std::size_t i) { return has(block.x[i], block.y[i]); });
        });
    };
    switch (kind) {
    case Kind::Box:
        return markWhere([&shape](double x, double y) { return vq::isInBox(shape.m_box, x, y); });
    case Kind::Circle:
        return markWhere([&shape](double x, double y) { return vq::isInCircle(shape.m_circle, x, y); });
    case Kind::Polygon:
        return pass.run(*polygon);
    case Kind::Empty:
        break;
    }
    return markWhere([](double, double) { return false; });
}

bool CVQSelection::Project(const SVQSelectionView& view, const float* point, double* xyDepth)
{
    if (!point || !xyDepth)
        return false;
    const vq::Projection projection(view.m_view.m_dModelView, view.m_view.m_dProjection, view.m_view.m_iViewport);
    vq::ScreenPoint place{};
    if (!projection.project(point, place))
        return false;
    xyDepth[0] = place.x;
    xyDepth[1] = place.y;
    xyDepth[2] = place.depth;
    return true;
}
