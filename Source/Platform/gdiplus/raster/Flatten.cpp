// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/Flatten.h"

#include <algorithm>

namespace vq::gdiplus {
namespace {

/// Curves that would need more are so large that their single-precision coordinates are coarser than these edges.
constexpr double kMostSteps = 16384;

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

/// A third of the derivative.
PointD tangentAt(const Bezier& curve, double t)
{
    const double u = 1 - t;
    return (curve[1] - curve[0]) * (u * u) + (curve[2] - curve[1]) * (2 * u * t) + (curve[3] - curve[2]) * (t * t);
}

/// The largest angle by which a curve turns within one of `steps`; seen at some of them.
double largestTurn(const Bezier& curve, int steps)
{
    constexpr int kMostSamples = 24;
    const int samples = std::min(steps, kMostSamples);
    double largest = 0;
    PointD before = tangentAt(curve, 0);
    for (int i = 1; i <= samples; ++i) {
        const PointD tangent = tangentAt(curve, static_cast<double>(i) / samples);
        const double turn =
            std::atan2(before.x * tangent.y - before.y * tangent.x, before.x * tangent.x + before.y * tangent.y);
        largest = std::max(largest, std::abs(turn));
        before = tangent;
    }
    return largest * samples / steps;
}

int stepsForParallels(const Bezier& curve, CurvePrecision precision, int steps)
{
    constexpr double kMostFiner = 32; // at a point where a curve turns back no number would do
    const double allowed = std::sqrt(8 * precision.flatness / precision.reach);
    const double finer = std::clamp(largestTurn(curve, steps) / allowed, 1.0, kMostFiner);
    return static_cast<int>(std::min(std::ceil(steps * finer), kMostSteps));
}

} // namespace

int bezierSteps(const Bezier& curve, CurvePrecision precision)
{
    const double difference =
        std::max(secondDifference(curve[0], curve[1], curve[2]), secondDifference(curve[1], curve[2], curve[3]));
    const double needed = std::sqrt(0.75 * difference / precision.flatness);
    if (!(needed < kMostSteps))
        return static_cast<int>(kMostSteps);
    if (!precision.powersOfTwo) {
        const int fewest = std::max(1, static_cast<int>(std::ceil(needed)));
        return precision.reach > 0 ? stepsForParallels(curve, precision, fewest) : fewest;
    }
    int steps = 1;
    while (steps < needed)
        steps *= 2;
    return steps;
}

void addBezier(Polylines& polylines, const Bezier& curve, CurvePrecision precision)
{
    const int steps = bezierSteps(curve, precision);
    const auto addAt = [&](double step) { polylines.add(pointAt(curve, step / steps)); };
    // A pen's ends and corners take their direction from the outermost edges, which therefore are short.
    constexpr double kOutermost = 1.0 / 4;
    const bool isStroked = precision.reach > 0 && steps > 1;
    if (isStroked)
        addAt(kOutermost);
    for (int i = 1; i < steps; ++i)
        addAt(i);
    if (isStroked)
        addAt(steps - kOutermost);
    polylines.add(curve[3]);
}

} // namespace vq::gdiplus
