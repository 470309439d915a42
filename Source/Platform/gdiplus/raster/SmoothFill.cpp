// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/SmoothFill.h"

namespace vq::gdiplus {
namespace {

/// The rasteriser's pixel i covers [i, i + 1).
constexpr double kCentre = 0.5;

/// Widest and highest surface whose pixels the rasteriser's numbers, 24 bits and 8 of fraction, can reach.
constexpr int kReach = 1 << 22;

void paintScanline(const agg::scanline_p8& scanline, const Painter& painter)
{
    auto span = scanline.begin();
    for (unsigned i = 0; i < scanline.num_spans(); ++i, ++span) {
        if (span->len < 0)
            painter.run(span->x, scanline.y(), -span->len, *span->covers);
        else
            painter.run(span->x, scanline.y(), {span->covers, static_cast<std::size_t>(span->len)});
    }
}

} // namespace

void SmoothFill::fill(const Polylines& shape, FillRule rule, const Painter& painter)
{
    const PixelView& view = painter.canvas().view;
    m_rasteriser.clip_box(0, 0, std::min(view.width, kReach), std::min(view.height, kReach));
    m_rasteriser.filling_rule(rule == FillRule::Alternate ? agg::fill_even_odd : agg::fill_non_zero);
    for (const Polylines::Figure& figure : shape.figures()) {
        const auto points = shape.points(figure);
        m_rasteriser.move_to_d(points[0].x + kCentre, points[0].y + kCentre);
        for (const PointD& point : points.subspan(1))
            m_rasteriser.line_to_d(point.x + kCentre, point.y + kCentre);
    }
    if (!m_rasteriser.rewind_scanlines())
        return;
    m_scanline.reset(m_rasteriser.min_x(), m_rasteriser.max_x());
    while (m_rasteriser.sweep_scanline(m_scanline))
        paintScanline(m_scanline, painter);
}

} // namespace vq::gdiplus
