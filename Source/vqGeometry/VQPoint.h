// SPDX-License-Identifier: MIT
#pragma once

#include "vqGeometry/Export.h"

/// A point or vector in model coordinates.
class VQGEOMETRY_API CVQPoint
{
public:
    double x, y, z;

    /// The origin.
    constexpr CVQPoint() : CVQPoint(0, 0, 0) {}
    constexpr CVQPoint(double px, double py, double pz) : x(px), y(py), z(pz) {}
};
