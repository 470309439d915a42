// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Which positions are inside of a box, a circle, the sides of a polygon. Standard library only.

#include <cstddef>
#include <vector>

namespace vq {

struct Area
{
    double left, top, right, bottom;
};

/// @param box left, top, right, bottom, all included
inline bool isInBox(const double (&box)[4], double x, double y)
{
    return (x >= box[0]) & (x <= box[2]) & (y >= box[1]) & (y <= box[3]);
}

/// @param circle x and y of the centre, radius; the rim is included
inline bool isInCircle(const double (&circle)[3], double x, double y)
{
    const double dx = x - circle[0];
    const double dy = y - circle[1];
    return dx * dx + dy * dy <= circle[2] * circle[2];
}

/// From one vertex to the next. Coordinates are at most 2^33, so that a crossing is within 2^-16 of its true place.
struct Side
{
    double x1, y1, x2, y2;
};

/// Beyond an area, less than a pixel further, is nothing of which `isInCircle` is true.
Area boundsOf(const double (&circle)[3]);

/// The same of `isInside`, from x, y of the vertices.
Area boundsOf(const std::vector<double>& vertices);

/// Whether the line at this height meets the side: at its upper end it does, at its lower end it does not (y
/// downwards).
inline bool spans(const Side& side, double y)
{
    return (side.y1 > y) != (side.y2 > y);
}

/// Where the line at this height, which is within the side's, meets it.
inline double crossingAt(const Side& side, double y)
{
    return (side.x2 - side.x1) * (y - side.y1) / (side.y2 - side.y1) + side.x1;
}

/// Whether the ray from a position to the right crosses the side.
inline bool crosses(const Side& side, double x, double y)
{
    return spans(side, y) && x < crossingAt(side, y);
}

/// The sides of a closed polygon, from x, y of its vertices.
std::vector<Side> sidesOf(const std::vector<double>& vertices);

/// By the alternate rule.
bool isInside(const std::vector<Side>& sides, double x, double y);

} // namespace vq
