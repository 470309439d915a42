// SPDX-License-Identifier: MIT
#include "vqGeometry/meshes/DrawMesh.h"

#include "Platform/Platform.h"

#include <cmath>

namespace vq {
namespace {

/// What drawing a mesh changes: the matrix mode, normalising, culling, the current normal and the vertex arrays.
class SavedState
{
public:
    SavedState()
    {
        glPushAttrib(GL_TRANSFORM_BIT | GL_POLYGON_BIT | GL_ENABLE_BIT | GL_CURRENT_BIT);
        glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
        glMatrixMode(GL_MODELVIEW);
        glPushMatrix();
    }
    ~SavedState()
    {
        glPopMatrix(); // before the matrix mode changes back
        glPopClientAttrib();
        glPopAttrib();
    }
    SavedState(const SavedState&) = delete;
    SavedState& operator=(const SavedState&) = delete;
};

void drawTriangles(const Mesh& mesh)
{
    glDrawElements(GL_TRIANGLES, static_cast<GLsizei>(mesh.triangles.size()), GL_UNSIGNED_INT, mesh.triangles.data());
}

} // namespace

void drawMesh(const Mesh& mesh, float radius, const CVQPoint* centre, bool backToFront)
{
    if (!std::isfinite(radius) || !(radius > 0))
        return;
    const SavedState saved;
    if (centre)
        glTranslated(centre->x, centre->y, centre->z);
    glScalef(radius, radius, radius);
    glEnable(GL_NORMALIZE); // scaling takes the normals along
    glInterleavedArrays(GL_N3F_V3F, 0, mesh.vertices.data());
    if (!backToFront)
        return drawTriangles(mesh);
    glEnable(GL_CULL_FACE);
    for (const GLenum culled : {GL_FRONT, GL_BACK}) {
        glCullFace(culled);
        drawTriangles(mesh);
    }
}

} // namespace vq
