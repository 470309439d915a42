// SPDX-License-Identifier: MIT
#include "unit/Platform/gdiplus/coverage/Outlines.h"

#include <algorithm>
#include <cmath>

namespace vq::test {

namespace {

constexpr int kSteps = 512; // of a curve
constexpr double kKappa = 0.5522847;

/// The largest length of a mitre in widths. Pens have 10; the margin is for the rounding of corners.
constexpr double kMiterLimit = 9;

double lengthOf(Vertex vector)
{
    return std::hypot(vector.x, vector.y);
}

Vertex unit(Vertex vector)
{
    return (1 / lengthOf(vector)) * vector;
}

/// A quarter turn from x to y.
Vertex turned(Vertex vector)
{
    return {-vector.y, vector.x};
}

double dot(Vertex a, Vertex b)
{
    return a.x * b.x + a.y * b.y;
}

Vertex pointAt(const Bezier& curve, double t)
{
    const double s = 1 - t;
    return (s * s * s) * curve[0] + (3 * s * s * t) * curve[1] + (3 * s * t * t) * curve[2] + (t * t * t) * curve[3];
}

Vertex directionAt(const Bezier& curve, double t)
{
    const double s = 1 - t;
    return unit((s * s) * (curve[1] - curve[0]) + (2 * s * t) * (curve[2] - curve[1]) +
                (t * t) * (curve[3] - curve[2]));
}

/// The points of a curve, each moved to its side.
Contour offsetOf(const Bezier& curve, double distance)
{
    Contour points;
    for (int i = 0; i <= kSteps; ++i) {
        const double t = static_cast<double>(i) / kSteps;
        points.push_back(pointAt(curve, t) + distance * turned(directionAt(curve, t)));
    }
    return points;
}

/// A corner of a polyline: where the sides of the strokes of its two segments meet.
struct Corner
{
    Corner(Vertex before, Vertex place, Vertex after, double halfWidth)
    {
        const Vertex first = unit(place - before);
        const Vertex second = unit(after - place);
        const double cosine = std::clamp(dot(first, second), -1.0, 1.0);
        offset = (halfWidth / (1 + cosine)) * (turned(first) + turned(second));
        const double tangent = std::sqrt((1 - cosine) / (1 + cosine)); // of half the turn
        reach = halfWidth * tangent;
        miterLength = std::sqrt(1 + tangent * tangent);
    }
    Vertex offset;      ///< of the corner on the turned side; the other one lies opposite
    double reach;       ///< how much of the segments the inner side takes
    double miterLength; ///< in widths
};

/// Whether the corners at both ends of a segment leave something of it.
bool hasRoom(Vertex from, Vertex to, double reaches)
{
    return lengthOf(to - from) > reaches;
}

} // namespace

std::array<Bezier, 4> ellipseCurves(Vertex centre, double radiusX, double radiusY)
{
    const auto at = [&](double x, double y) { return centre + Vertex{x * radiusX, y * radiusY}; };
    return {Bezier{at(1, 0), at(1, kKappa), at(kKappa, 1), at(0, 1)},
            Bezier{at(0, 1), at(-kKappa, 1), at(-1, kKappa), at(-1, 0)},
            Bezier{at(-1, 0), at(-1, -kKappa), at(-kKappa, -1), at(0, -1)},
            Bezier{at(0, -1), at(kKappa, -1), at(1, -kKappa), at(1, 0)}};
}

Contour pointsOn(const Bezier& curve)
{
    return offsetOf(curve, 0);
}

Contour pointsOn(const std::array<Bezier, 4>& curves)
{
    Contour all;
    for (const Bezier& curve : curves) {
        const Contour points = pointsOn(curve);
        all.insert(all.end(), points.begin(), points.end() - 1);
    }
    return all;
}

Contour rectangle(double left, double top, double right, double bottom)
{
    return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

Contour strokeOfLine(Vertex from, Vertex to, double width)
{
    const Vertex side = (width / 2) * turned(unit(to - from));
    return {from + side, to + side, to - side, from - side};
}

std::optional<Contour> strokeOfPolyline(const Contour& points, double width)
{
    Contour left;
    Contour right;
    double reachBefore = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const bool isFirst = i == 0;
        const bool isLast = i + 1 == points.size();
        const Vertex before = isFirst ? points[i] - (points[i + 1] - points[i]) : points[i - 1];
        const Vertex after = isLast ? points[i] + (points[i] - points[i - 1]) : points[i + 1];
        const Corner corner(before, points[i], after, width / 2);
        if (corner.miterLength > kMiterLimit || (!isFirst && !hasRoom(before, points[i], reachBefore + corner.reach)))
            return std::nullopt;
        left.push_back(points[i] + corner.offset);
        right.push_back(points[i] - corner.offset);
        reachBefore = corner.reach;
    }
    left.insert(left.end(), right.rbegin(), right.rend());
    if (!isSimple(left))
        return std::nullopt;
    return left;
}

std::optional<Outline> strokeOfPolygon(const Contour& corners, double width)
{
    Outline stroke{{{}}, {{}}};
    const double outside = areaOf(corners) > 0 ? -1 : 1; // the turned side of a figure that turns from x to y is inside
    const std::size_t count = corners.size();
    double reachBefore = Corner(corners[count - 2], corners[count - 1], corners[0], width / 2).reach;
    for (std::size_t i = 0; i < count; ++i) {
        const Vertex before = corners[(i + count - 1) % count];
        const Corner corner(before, corners[i], corners[(i + 1) % count], width / 2);
        if (corner.miterLength > kMiterLimit || !hasRoom(before, corners[i], reachBefore + corner.reach))
            return std::nullopt;
        stroke.areas[0].push_back(corners[i] + outside * corner.offset);
        stroke.holes[0].push_back(corners[i] - outside * corner.offset);
        reachBefore = corner.reach;
    }
    if (!isSimple(stroke.areas[0]) || !isSimple(stroke.holes[0]))
        return std::nullopt;
    return stroke;
}

Contour strokeOfCurve(const Bezier& curve, double width)
{
    Contour outline = offsetOf(curve, width / 2);
    const Contour back = offsetOf(curve, -width / 2);
    outline.insert(outline.end(), back.rbegin(), back.rend());
    return outline;
}

Outline strokeOfEllipse(const std::array<Bezier, 4>& curves, double width)
{
    Outline stroke{{{}}, {{}}};
    for (const Bezier& curve : curves) { // clockwise on the screen: the turned side is inside
        const Contour outer = offsetOf(curve, -width / 2);
        const Contour inner = offsetOf(curve, width / 2);
        stroke.areas[0].insert(stroke.areas[0].end(), outer.begin(), outer.end());
        stroke.holes[0].insert(stroke.holes[0].end(), inner.begin(), inner.end());
    }
    return stroke;
}

} // namespace vq::test
