// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/model/RawMesh.h"

namespace vqview {

/// What is computed of a mesh whose indices are all good.

/// One unit normal a position: the sum of its triangles' normals, each weighted by the triangle's angle there, so that
/// it does not depend on how a face is cut into triangles. Where that is nothing, it is (0, 0, 1).
std::vector<Point3> vertexNormals(const std::vector<Point3>& positions, const std::vector<Triangle>& triangles);

/// Given directions as unit normals; what has no direction becomes (0, 0, 1).
void makeUnit(std::vector<Point3>& directions);

/// Each side of a triangle once, smaller index first, in ascending order. Linear in time where no corner has very many.
std::vector<std::array<std::uint32_t, 2>> edgesOf(std::size_t positionCount, const std::vector<Triangle>& triangles);

} // namespace vqview
