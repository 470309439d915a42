// SPDX-License-Identifier: MIT
#include "vqGeometry/VQSphericalMesh.h"

#include "vqGeometry/meshes/DrawMesh.h"

CVQSphericalMesh::CVQSphericalMesh(int slices, int stacks)
    : m_mesh(std::make_unique<const vq::Mesh>(vq::sphereMesh(slices, stacks)))
{
}

CVQSphericalMesh::~CVQSphericalMesh() = default;

void CVQSphericalMesh::Draw(float radius, CVQPoint* centre, bool backToFront)
{
    vq::drawMesh(*m_mesh, radius, centre, backToFront);
}
