// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/raster/RunSet.h"
#include "Platform/gdiplus/raster/SmoothFill.h"
#include "Platform/gdiplus/raster/SmoothLine.h"
#include "Platform/gdiplus/raster/Stroke.h"

namespace vq::gdiplus {

/// Fills and strokes shapes on a surface, smoothed or not as the canvas says, each pixel of a shape once. Keeps all
/// memory that shapes take, so that a scene that is drawn again takes none. Shapes are in pixels with whole centres.
class ShapeRenderer
{
public:
    /// For a caller to put a shape in; the last one is forgotten.
    Polylines& newShape()
    {
        m_shape.clear();
        return m_shape;
    }

    void fill(const Painter& painter, const Polylines& shape, FillRule rule);

    /// Without smoothing, strokes of one pixel or less are lines of single pixels.
    void stroke(const Painter& painter, const Polylines& lines, const StrokeStyle& style);

    /// The stroke inside closed figures, which a figure that is smaller than the stroke is filled by.
    void strokeInside(const Painter& painter, const Polylines& figures, const StrokeStyle& style);

private:
    void strokeThin(const Painter& painter, const Polylines& lines, const StrokeStyle& style);
    void strokeThinNow(const Painter& painter, const Polylines& lines, const StrokeStyle& style);

    Polylines m_shape;
    Polylines m_outline;
    Polylines m_inside;
    Stroker m_stroker;
    HardFill m_hard;
    SmoothFill m_smooth;
    SmoothLine m_line;
    RunSet m_runs;
};

} // namespace vq::gdiplus
