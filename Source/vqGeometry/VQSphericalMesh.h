// SPDX-License-Identifier: MIT
#pragma once

#include "vqGeometry/Export.h"
#include "vqGeometry/VQPoint.h"

#include <memory>

namespace vq {
struct Mesh;
}

/// A sphere of triangles that OpenGL draws, with one normal a vertex, so that lighting makes it smooth.
///
/// Its vertices lie in memory of the process: no OpenGL object is made, and none is needed when it is destroyed.
class VQGEOMETRY_API CVQSphericalMesh
{
public:
    /// @param slices parts round the z axis, 3 .. 1024
    /// @param stacks parts from pole to pole, 2 .. 1024
    ///
    /// Numbers beyond their range are the nearest in it. The mesh is closed and has 2 * slices * (stacks - 1)
    /// triangles.
    CVQSphericalMesh(int slices, int stacks);
    ~CVQSphericalMesh();
    CVQSphericalMesh(const CVQSphericalMesh&) = delete;
    CVQSphericalMesh& operator=(const CVQSphericalMesh&) = delete;

    /// Draws a sphere round `centre` (model coordinates; null: the origin) with the current colour, material and
    /// lights, in the current context. Faces are counterclockwise seen from outside. A radius that is not finite or not
    /// above 0 draws nothing.
    ///
    /// All OpenGL state is afterwards as it was. The matrix stack of the model view needs one free place, and no buffer
    /// object may be bound: vertices are read from memory.
    ///
    /// @param backToFront draws the faces that look away first and those that look at the viewer after them, each once:
    /// what a translucent sphere needs. Otherwise all in one pass, culled as the caller has it.
    void Draw(float radius, CVQPoint* centre, bool backToFront);

private:
    std::unique_ptr<const vq::Mesh> m_mesh;
};
