// SPDX-License-Identifier: MIT
// OpenGL's entry points in this program stand before the system's. They count and keep nothing.
#include "unit/VQDraw/overlay/memory/SilentScene.h"

#include "Platform/Platform.h"

#include <utility>

namespace {

int g_vertices = 0;

} // namespace

int vq::test::takeSceneVertices()
{
    return std::exchange(g_vertices, 0);
}

void glPushAttrib(GLbitfield) {}
void glPopAttrib() {}
void glPushClientAttrib(GLbitfield) {}
void glPopClientAttrib() {}
void glMatrixMode(GLenum) {}
void glPushMatrix() {}
void glPopMatrix() {}
void glTranslated(GLdouble, GLdouble, GLdouble) {}
void glScalef(GLfloat, GLfloat, GLfloat) {}
void glCullFace(GLenum) {}
void glInterleavedArrays(GLenum, GLsizei, const GLvoid*) {}
void glEnable(GLenum) {}
void glDisable(GLenum) {}
void glPolygonMode(GLenum, GLenum) {}
void glLineWidth(GLfloat) {}
void glPointSize(GLfloat) {}
void glLineStipple(GLint, GLushort) {}
void glColor4ub(GLubyte, GLubyte, GLubyte, GLubyte) {}
void glBegin(GLenum) {}
void glEnd() {}

void glVertex2i(GLint, GLint)
{
    ++g_vertices;
}

void glVertex2f(GLfloat, GLfloat)
{
    ++g_vertices;
}

void glRecti(GLint, GLint, GLint, GLint)
{
    g_vertices += 4;
}

void glDrawElements(GLenum, GLsizei count, GLenum, const GLvoid*)
{
    g_vertices += count;
}
