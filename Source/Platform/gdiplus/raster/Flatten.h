// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/raster/Polylines.h"

#include <array>

namespace vq::gdiplus {

/// How finely curves become edges.
struct CurvePrecision
{
    double flatness;  ///< the largest distance, in pixels, between a curve and its edges
    bool powersOfTwo; ///< the number of edges is one: GDI+'s rule
    double reach = 0; ///< how far from the curve, in pixels, a parallel curve is to be as exact: half a pen's width

    /// Windows' pictures of curves without smoothing are reproduced exactly by this.
    static constexpr CurvePrecision asGdiplus(double flatness = 0.25) { return {flatness, true}; }
    /// With smoothing the edges of a curve, and those of a parallel curve, stay within one and a half levels of
    /// coverage of it. Parallels within a pixel are as exact as the curve.
    static constexpr CurvePrecision fine(double reach = 0)
    {
        return reach > 1 ? CurvePrecision{1.0 / 256, false, reach} : CurvePrecision{1.0 / 180, false};
    }
};

using Bezier = std::array<PointD, 4>;

/// The number of edges, equal steps of the parameter, that a curve becomes: 1 .. 16384. For n steps the distance is
/// 3/4 D / n^2 at most, D the larger second difference of the control points. A parallel curve at distance r adds
/// r a^2 / 8 to it where the curve turns by the angle a within a step.
int bezierSteps(const Bezier& curve, CurvePrecision precision);

/// Adds the curve's edges; its first point is there already.
void addBezier(Polylines& polylines, const Bezier& curve, CurvePrecision precision);

} // namespace vq::gdiplus
