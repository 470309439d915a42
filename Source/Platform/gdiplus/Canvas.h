// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What a renderer is handed for one drawing call: pixels and how to composite on them. Renderers of shapes, pens and
/// text know this and no Graphics.

#include "Platform/gdiplus/compositor/CompositeRow.h"
#include "Platform/gdiplus/compositor/PixelView.h"

#include <span>

namespace vq::gdiplus {

/// What the fourth byte of the surface's pixels is.
enum class SurfaceAlpha {
    Stored, ///< the pixel's alpha
    Opaque, ///< always 255: a picture without alpha
    Device  ///< nothing: pixels of a device context count as opaque and have 255 there once they were drawn on; only a
            ///< picture copied there keeps its alpha
};

struct Canvas
{
    PixelView view;
    Blend blend;
    SurfaceAlpha alpha;
    bool smooth;          ///< edges are smoothed
    bool halfPixelOffset; ///< pixel (i, j) has its centre at (i + 1/2, j + 1/2) and not at (i, j)

    /// A run of pixels inside the surface.
    std::span<Pixel> run(int x, int y, int length) const { return {view.row(y) + x, static_cast<std::size_t>(length)}; }

    /// Where a coordinate stands when the centres of pixels are at whole numbers.
    double toCentred(double coordinate) const { return halfPixelOffset ? coordinate - 0.5 : coordinate; }
};

/// Composites onto a run of a surface: `composite` is given the run, and what alpha means there is seen to.
template <typename Composite>
void onRun(const Canvas& canvas, std::span<Pixel> run, Composite composite)
{
    const auto makeOpaque = [run] {
        for (Pixel& pixel : run)
            pixel |= kAlphaBits;
    };
    if (canvas.alpha == SurfaceAlpha::Stored) {
        composite(run);
        return;
    }
    if (canvas.alpha == SurfaceAlpha::Device)
        makeOpaque();
    composite(run);
    makeOpaque();
}

} // namespace vq::gdiplus
