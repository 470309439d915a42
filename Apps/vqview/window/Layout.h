// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

namespace vqview {

/// Where things stand in the window: the tool bar over its whole width, the panel at its right side, and the view in
/// what they leave, so that they never cover it. The view keeps the lower left corner, from which OpenGL counts.
///
/// Sizes are in pixels of the framebuffer, unless it is said otherwise.
struct Layout
{
    int width = 1, height = 1;
    float pixelsPerUnitX = 1, pixelsPerUnitY = 1; ///< of the window system's own coordinates, in which the mouse moves
    float scale = 1;                              ///< how much larger things are drawn than at 96 dots per inch
    int barHeight = 0;
    int panelWidth = 0; ///< 0 while it is hidden
    CRect covered{};      ///< what stands over the view, in its pixels; empty when nothing does

    friend bool operator==(const Layout&, const Layout&) = default;

    /// From 1 on, however small the window is.
    int viewWidth() const;
    int viewHeight() const;

    /// From the window system's coordinates to the view's pixels. Outside of the view they are negative or beyond it.
    CPoint toView(double x, double y) const;
    bool isInView(CPoint at) const;
};

} // namespace vqview
