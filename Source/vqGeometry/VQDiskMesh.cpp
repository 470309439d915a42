// SPDX-License-Identifier: MIT
#include "vqGeometry/VQDiskMesh.h"

#include "vqGeometry/meshes/DrawMesh.h"

CVQDiskMesh::CVQDiskMesh(int slices) : m_mesh(std::make_unique<const vq::Mesh>(vq::diskMesh(slices))) {}

CVQDiskMesh::~CVQDiskMesh() = default;

void CVQDiskMesh::Draw(float radius, CVQPoint* centre, bool backToFront)
{
    vq::drawMesh(*m_mesh, radius, centre, backToFront);
}
