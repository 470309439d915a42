// SPDX-License-Identifier: MIT
#pragma once

#include "vqGeometry/VQPoint.h"
#include "vqGeometry/meshes/Mesh.h"

namespace vq {

/// Draws a mesh `radius` times as large as it is round `centre`, as `CVQSphericalMesh::Draw` promises.
void drawMesh(const Mesh& mesh, float radius, const CVQPoint* centre, bool backToFront);

} // namespace vq
