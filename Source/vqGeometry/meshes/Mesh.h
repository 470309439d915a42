// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The geometry of the meshes, apart from their drawing. Standard library only.

#include <cstdint>
#include <vector>

namespace vq {

/// A vertex with its normal, of length 1, in the layout that OpenGL calls GL_N3F_V3F.
struct MeshVertex
{
    float normal[3];
    float position[3];
};

/// Triangles as three indices each, counterclockwise seen from the side that the normals point to.
struct Mesh
{
    std::vector<MeshVertex> vertices;
    std::vector<std::uint32_t> triangles;
};

/// A closed sphere of radius 1 round the origin: both poles, on the z axis, and `stacks` - 1 rings of `slices`
/// vertices. Slices are limited to 3 .. 1024, stacks to 2 .. 1024.
Mesh sphereMesh(int slices, int stacks);

/// A disk of radius 1 round the origin in the x-y plane with the normal 0, 0, 1: the centre and a rim of `slices`
/// vertices, limited to 3 .. 1024.
Mesh diskMesh(int slices);

} // namespace vq
