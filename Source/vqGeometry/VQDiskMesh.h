// SPDX-License-Identifier: MIT
#pragma once

#include "vqGeometry/Export.h"
#include "vqGeometry/VQPoint.h"

#include <memory>

namespace vq {
struct Mesh;
}

/// A flat disk of triangles that OpenGL draws, lying parallel to the x-y plane and facing along z.
///
/// Its vertices lie in memory of the process: no OpenGL object is made, and none is needed when it is destroyed.
class VQGEOMETRY_API CVQDiskMesh
{
public:
    /// @param slices number of triangles round the centre, 3 .. 1024; numbers beyond are the nearest in that range.
    explicit CVQDiskMesh(int slices);
    ~CVQDiskMesh();
    CVQDiskMesh(const CVQDiskMesh&) = delete;
    CVQDiskMesh& operator=(const CVQDiskMesh&) = delete;

    /// As `CVQSphericalMesh::Draw`; faces are counterclockwise seen from the end of the z axis. The caller's model view
    /// turns it.
    void Draw(float radius, CVQPoint* centre, bool backToFront);

private:
    std::unique_ptr<const vq::Mesh> m_mesh;
};
