// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/SmoothFill.h"

#include "Platform/gdiplus/compositor/CompositePixel.h"

namespace vq::gdiplus {
namespace {

/// The rasteriser's pixel i covers [i, i + 1).
constexpr double kCentre = 0.5;

/// Widest and highest surface whose pixels the rasteriser's numbers, 24 bits and 8 of fraction, can reach.
constexpr int kReach = 1 << 22;

/// A pixel's area in the rasteriser's unit, half a square of its grid.
constexpr int kWholeArea = 2 << (2 * agg::poly_subpixel_shift);

/// Winding counts areas up and down; a pixel that is covered more than once is full.
template <FillRule rule>
constexpr Channel toCoverage(int area)
{
    int covered = area < 0 ? -area : area;
    if constexpr (rule == FillRule::Alternate) {
        covered &= 2 * kWholeArea - 1;
        covered = std::min(covered, 2 * kWholeArea - covered);
    }
    return static_cast<Channel>((std::min(covered, kWholeArea) * 255 + kWholeArea / 2) / kWholeArea);
}

/// Runs up to this length, which the edges of shapes are made of, are composited without the way through a row.
constexpr int kShortRun = 8;

/// One colour over pixels with alpha.
struct PlainRuns
{
    const Painter& painter;
    Pixel colour;

    void pixel(int x, int y, Channel coverage) const
    {
        Pixel& pixel = painter.canvas().view.row(y)[x];
        pixel = overPixel<StoredLight>(pixel, withCoverage(colour, coverage));
    }

    void run(int x, int y, int length, Channel coverage) const
    {
        if (length > kShortRun)
            return painter.run(x, y, length, coverage);
        const Pixel source = withCoverage(colour, coverage);
        for (Pixel& pixel : painter.canvas().run(x, y, length))
            pixel = overPixel<StoredLight>(pixel, source);
    }

    /// What is drawn a few rows later lies in memory that the processor does not foresee.
    void expect(int x, int y) const { __builtin_prefetch(painter.canvas().view.row(y) + x, 1); }
};

struct AnyRuns
{
    const Painter& painter;

    void pixel(int x, int y, Channel coverage) const { painter.run(x, y, 1, coverage); }
    void run(int x, int y, int length, Channel coverage) const { painter.run(x, y, length, coverage); }
    void expect(int, int) const {}
};

} // namespace

void SmoothFill::addEdges(const Polylines& shape, const PixelView& view)
{
    m_cells.reset();
    m_clip.clip_box(0, 0, std::min(view.width, kReach), std::min(view.height, kReach));
    for (const Polylines::Figure& figure : shape.figures()) {
        const auto points = shape.points(figure);
        m_clip.move_to(points[0].x + kCentre, points[0].y + kCentre);
        for (const PointD& point : points.subspan(1))
            m_clip.line_to(m_cells, point.x + kCentre, point.y + kCentre);
        m_clip.line_to(m_cells, points[0].x + kCentre, points[0].y + kCentre);
    }
    m_cells.sort_cells();
}

template <FillRule rule, typename Runs>
void SmoothFill::sweep(const Runs& runs)
{
    constexpr int kRowsAhead = 6;
    for (int y = m_cells.min_y(); y <= m_cells.max_y(); ++y) {
        if (y + kRowsAhead <= m_cells.max_y()) {
            const auto ahead = static_cast<unsigned>(y + kRowsAhead);
            for (unsigned i = 0; i < m_cells.scanline_num_cells(ahead); ++i)
                runs.expect(m_cells.scanline_cells(ahead)[i]->x, y + kRowsAhead);
        }
        const agg::cell_aa* const* cell = m_cells.scanline_cells(static_cast<unsigned>(y));
        const agg::cell_aa* const* const end = cell + m_cells.scanline_num_cells(static_cast<unsigned>(y));
        int cover = 0;
        while (cell != end) {
            const int x = (*cell)->x;
            int area = 0;
            for (; cell != end && (*cell)->x == x; ++cell) {
                area += (*cell)->area;
                cover += (*cell)->cover;
            }
            const int beyond = cover * 2 * agg::poly_subpixel_scale;
            const int first = area == 0 ? x : x + 1;
            if (area != 0)
                if (const Channel coverage = toCoverage<rule>(beyond - area))
                    runs.pixel(x, y, coverage);
            if (cell != end && (*cell)->x > first)
                if (const Channel coverage = toCoverage<rule>(beyond))
                    runs.run(first, y, (*cell)->x - first, coverage);
        }
    }
}

void SmoothFill::fill(const Polylines& shape, FillRule rule, const Painter& painter)
{
    addEdges(shape, painter.canvas().view);
    if (m_cells.total_cells() == 0)
        return;
    const auto sweepWith = [&](const auto& runs) {
        if (rule == FillRule::Alternate)
            sweep<FillRule::Alternate>(runs);
        else
            sweep<FillRule::Winding>(runs);
    };
    if (const auto colour = painter.plainColour())
        sweepWith(PlainRuns{painter, *colour});
    else
        sweepWith(AnyRuns{painter});
}

} // namespace vq::gdiplus
