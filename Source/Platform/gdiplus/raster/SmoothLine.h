// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/brushes/Painter.h"
#include "Platform/gdiplus/raster/Polylines.h"

#include <array>

namespace vq::gdiplus {

/// Narrow straight lines with flat ends, smoothed: each pixel is covered by the exact area of the line in it, to a
/// level, at a few nanoseconds a pixel. For lines of more than one edge an outline is filled.
class SmoothLine
{
public:
    SmoothLine();

    /// Whether a line is narrow, and near enough for fixed-point numbers.
    static bool canDraw(PointD from, PointD to, double width);

    /// Both ends differ.
    void draw(PointD from, PointD to, double width, const Painter& painter);

private:
    static int shareAtStep(int step, double halfSlope);
    void tabulate(double slope);
    template <typename Plot>
    void drawTurned(PointD from, PointD to, double width, int columns, int rows, const Plot& plot);
    template <typename Plot, typename ShareAt>
    static void drawSteps(double firstCentre, double slope, double halfHeight, int first, int last, int rows,
                          const Plot& plot, ShareAt shareAt);

    /// Steps of a pixel, and how many pixels the table reaches to each side.
    static constexpr int kSteps = 256;
    static constexpr int kReach = 7;
    static constexpr int kOrigin = kReach * kSteps; ///< where an edge passes through the upper side's middle

    /// The share, of kWhole, of a pixel that lies above an edge of the slope tabulated last, by how far below the
    /// pixel's upper side, in steps, the edge passes its middle; kReach pixels to each side.
    std::array<std::uint16_t, std::size_t{2} * kReach * kSteps> m_shares;
    double m_slope = -1;
};

} // namespace vq::gdiplus
