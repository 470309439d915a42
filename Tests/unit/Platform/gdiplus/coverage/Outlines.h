// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The outlines of shapes and of strokes with butt ends and mitred corners, from geometry alone.

#include "unit/Platform/gdiplus/coverage/ExactCoverage.h"

#include <array>
#include <optional>

namespace vq::test {

/// Start, two controls and end of a cubic curve.
using Bezier = std::array<Vertex, 4>;

/// The curves from the right over the bottom that stand for an ellipse.
std::array<Bezier, 4> ellipseCurves(Vertex centre, double radiusX, double radiusY);

/// Both ends and points of the curve between, so many that no chord is 0.0001 away from curves of this subject's size.
Contour pointsOn(const Bezier& curve);

/// A closed row of curves.
Contour pointsOn(const std::array<Bezier, 4>& curves);

Contour rectangle(double left, double top, double right, double bottom);

/// A straight stroke.
Contour strokeOfLine(Vertex from, Vertex to, double width);

/// The stroke of an open polyline. Nothing when a segment is too short for the corners at its ends, when a corner is so
/// sharp that its mitre is cut, or when the stroke overlaps itself.
std::optional<Contour> strokeOfPolyline(const Contour& points, double width);

/// The stroke of a closed polygon, under the same conditions.
std::optional<Outline> strokeOfPolygon(const Contour& corners, double width);

/// The stroke of a curve that is nowhere bent more than its half width allows.
Contour strokeOfCurve(const Bezier& curve, double width);

/// The stroke of an ellipse whose smallest radius of curvature is larger than half the width.
Outline strokeOfEllipse(const std::array<Bezier, 4>& curves, double width);

} // namespace vq::test
