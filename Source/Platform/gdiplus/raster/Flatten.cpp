// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/Flatten.h"

#include <algorithm>

namespace vq::gdiplus {
namespace {

constexpr double kMostSteps = 65536;

/// The larger component of a - 2b + c.
double secondDifference(PointD a, PointD b, PointD c)
{
    return std::max(std::abs(a.x - 2 * b.x + c.x), std::abs(a.y - 2 * b.y + c.y));
}

PointD pointAt(const Bezier& curve, double t)
{
    const double u = 1 - t;
    return curve[0] * (u * u * u) + curve[1] * (3 * u * u * t) + curve[2] * (3 * u * t * t) + curve[3] * (t * t * t);
}

} // namespace

int bezierSteps(const Bezier& curve, CurvePrecision precision)
{
    const double difference =
        std::max(secondDifference(curve[0], curve[1], curve[2]), secondDifference(curve[1], curve[2], curve[3]));
    const double needed = std::sqrt(0.75 * difference / precision.flatness);
    if (!(needed < kMostSteps))
        return static_cast<int>(kMostSteps);
    if (!precision.powersOfTwo)
        return std::max(1, static_cast<int>(std::ceil(needed)));
    int steps = 1;
    while (steps < needed)
        steps *= 2;
    return steps;
}

void addBezier(Polylines& polylines, const Bezier& curve, CurvePrecision precision)
{
    const int steps = bezierSteps(curve, precision);
    for (int i = 1; i < steps; ++i)
        polylines.add(pointAt(curve, static_cast<double>(i) / steps));
    polylines.add(curve[3]);
}

} // namespace vq::gdiplus
