// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/ShapeRenderer.h"

#include "Platform/gdiplus/compositor/CompositePixel.h"
#include "Platform/gdiplus/raster/ThinLine.h"

namespace vq::gdiplus {
namespace {

/// The surface with the halves of pixels around their centres.
Bounds boundsOf(const PixelView& view)
{
    return {-0.5, -0.5, view.width - 0.5, view.height - 0.5};
}

/// The ends of a line that is one straight edge without anything on it; nothing for other shapes.
std::optional<std::array<PointD, 2>> plainLine(const Polylines& lines, const StrokeStyle& style)
{
    if (lines.figures().size() != 1 || style.start != LineEnd::Flat || style.end != LineEnd::Flat ||
        !style.dashes.solid())
        return std::nullopt;
    const auto points = lines.points(lines.figures()[0]);
    if (points.size() != 2 || lines.figures()[0].closed || points[0] == points[1])
        return std::nullopt;
    return std::array{points[0], points[1]};
}

/// How far a stroke may reach beyond its line: corners by their limit, anchors by an arrow's diagonal.
double reachOf(const StrokeStyle& style)
{
    constexpr double kAnchorReach = 2; // in widths, which are 2 pixels at least
    return 1 + std::max(style.width / 2 * std::max(style.miterLimit, 2.0), kAnchorReach * std::max(style.width, 2.0));
}

} // namespace

void ShapeRenderer::fill(const Painter& painter, const Polylines& shape, FillRule rule)
{
    const PixelView& view = painter.canvas().view;
    if (shape.empty() || !shape.bounds().overlaps(boundsOf(view)))
        return;
    if (painter.canvas().smooth)
        m_smooth.fill(shape, rule, painter);
    else
        m_hard.fill(shape, rule, view.width, view.height,
                    [&](int y, int first, int end) { painter.run(first, y, end - first); });
}

void ShapeRenderer::stroke(const Painter& painter, const Polylines& lines, const StrokeStyle& style)
{
    const Bounds visible = boundsOf(painter.canvas().view).grownBy(reachOf(style));
    if (lines.empty() || !lines.bounds().overlaps(visible))
        return;
    if (!painter.canvas().smooth && style.width <= 1)
        return strokeThin(painter, lines, style);
    if (const auto line = plainLine(lines, style);
        line && painter.canvas().smooth && SmoothLine::canDraw((*line)[0], (*line)[1], style.width))
        return m_line.draw((*line)[0], (*line)[1], style.width, painter);
    m_outline.clear();
    m_stroker.stroke(lines, style, visible, m_outline);
    fill(painter, m_outline, FillRule::Winding);
}

void ShapeRenderer::strokeInside(const Painter& painter, const Polylines& figures, const StrokeStyle& style)
{
    if (figures.empty())
        return;
    const Bounds bounds = figures.bounds();
    if (std::min(bounds.right - bounds.left, bounds.bottom - bounds.top) <= 2 * style.width)
        return fill(painter, figures, FillRule::Alternate);
    m_inside.clear();
    m_stroker.inset(figures, style.width / 2, m_inside);
    stroke(painter, m_inside, style);
}

void ShapeRenderer::strokeThin(const Painter& painter, const Polylines& lines, const StrokeStyle& style)
{
    const PixelView& view = painter.canvas().view;
    if (plainLine(lines, style) || painter.canRepeat()) { // no pixel comes twice, or it does not matter
        strokeThinNow(painter, lines, style);
        return;
    }
    m_runs.clear(); // what a shape left for which memory ran out
    const auto add = [this](int y, int first, int end) { m_runs.add(y, first, end); };
    drawThin(lines, style.dashes, view.width, view.height, add);
    m_outline.clear();
    m_stroker.addAnchors(lines, style, m_outline);
    m_hard.fill(m_outline, FillRule::Winding, view.width, view.height, add);
    m_runs.paint(painter);
}

void ShapeRenderer::strokeThinNow(const Painter& painter, const Polylines& lines, const StrokeStyle& style)
{
    const PixelView& view = painter.canvas().view;
    if (const auto colour = painter.plainColour())
        drawThin(lines, style.dashes, view.width, view.height, [=](int y, int first, int) {
            Pixel& pixel = view.row(y)[first];
            pixel = overPixel<StoredLight>(pixel, *colour);
        });
    else
        drawThin(lines, style.dashes, view.width, view.height,
                 [&](int y, int first, int end) { painter.run(first, y, end - first); });
    m_outline.clear();
    m_stroker.addAnchors(lines, style, m_outline);
    m_hard.fill(m_outline, FillRule::Winding, view.width, view.height,
                [&](int y, int first, int end) { painter.run(first, y, end - first); });
}

} // namespace vq::gdiplus
