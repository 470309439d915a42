// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// How far along a linear gradient a point is.

#include "Platform/gdiplus/Enums.h"
#include "Platform/gdiplus/Rect.h"
#include "Platform/gdiplus/brushes/ShadingSettings.h"

namespace vq::gdiplus {

/// The position of a point is ((x - originX) * normalX + (y - originY) * normalY) / length: 0 on the line where a
/// gradient starts, 1 on the line where it ends. It is kept as this fraction because for whole numbers all of it but
/// the division is exact.
struct GradientAxis
{
    double originX, originY;
    double normalX, normalY;
    double length;

    /// Positions are numbers, and the two lines differ.
    bool isUsable() const;
};

/// From one point to another; the lines stand perpendicular on the way.
GradientAxis axisBetween(const Gdiplus::PointF& first, const Gdiplus::PointF& last);

/// A direction across a rectangle, clockwise from its upper side.
struct GradientDirection
{
    double right, down;
    bool scales; ///< the direction is that in a square, which is then stretched to the rectangle
};

/// The direction of one of the four modes.
GradientDirection directionOf(Gdiplus::LinearGradientMode mode);
/// `angle` in degrees.
GradientDirection directionOf(double angle, bool scales);

/// Between the corners of a rectangle that lie first and last in a direction. A rectangle of negative width or height
/// counts its own way: its left or upper side is the one at its X or Y.
GradientAxis axisAcross(const Gdiplus::RectF& rectangle, GradientDirection direction);

/// The same axis where coordinates are those of pixels.
GradientAxis onPixels(const GradientAxis& axis, const ShadingSettings& settings);

} // namespace vq::gdiplus
