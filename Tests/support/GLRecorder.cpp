// SPDX-License-Identifier: MIT
#include "support/GLRecorder.h"

#include "Platform/Platform.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace {

/// Loaded libraries may call before this one's own objects are there.
struct Recorded
{
    vq::test::GLCalls calls;
    std::vector<vq::test::GLVertices> vertices;
    const float* arrays = nullptr;
};

Recorded& recorded()
{
    static Recorded recorded;
    return recorded;
}

template <typename... Arguments>
void record(const char* name, Arguments... arguments)
{
    recorded().calls.push_back(vq::test::call(name, arguments...));
}

} // namespace

vq::test::GLCalls vq::test::takeGLCalls()
{
    return std::exchange(recorded().calls, {});
}

std::vector<vq::test::GLVertices> vq::test::takeGLVertices()
{
    return std::exchange(recorded().vertices, {});
}

// Declared in the system's headers with C linkage and default visibility.

void glPushAttrib(GLbitfield mask)
{
    record("glPushAttrib", mask);
}

void glPopAttrib()
{
    record("glPopAttrib");
}

void glPushClientAttrib(GLbitfield mask)
{
    record("glPushClientAttrib", mask);
}

void glPopClientAttrib()
{
    record("glPopClientAttrib");
}

void glEnable(GLenum what)
{
    record("glEnable", what);
}

void glDisable(GLenum what)
{
    record("glDisable", what);
}

void glBlendFunc(GLenum source, GLenum destination)
{
    record("glBlendFunc", source, destination);
}

void glPolygonMode(GLenum face, GLenum mode)
{
    record("glPolygonMode", face, mode);
}

void glLineWidth(GLfloat width)
{
    record("glLineWidth", width);
}

void glPointSize(GLfloat size)
{
    record("glPointSize", size);
}

void glLineStipple(GLint factor, GLushort pattern)
{
    record("glLineStipple", factor, pattern);
}

void glColor4ub(GLubyte r, GLubyte g, GLubyte b, GLubyte a)
{
    record("glColor4ub", r, g, b, a);
}

void glColor4f(GLfloat r, GLfloat g, GLfloat b, GLfloat a)
{
    record("glColor4f", r, g, b, a);
}

void glColor4fv(const GLfloat* colour)
{
    record("glColor4fv", colour[0], colour[1], colour[2], colour[3]);
}

void glBegin(GLenum kind)
{
    record("glBegin", kind);
}

void glEnd()
{
    record("glEnd");
}

void glVertex2i(GLint x, GLint y)
{
    record("glVertex2i", x, y);
}

void glVertex2f(GLfloat x, GLfloat y)
{
    record("glVertex2f", x, y);
}

void glVertex2d(GLdouble x, GLdouble y)
{
    record("glVertex2d", x, y);
}

void glRecti(GLint x1, GLint y1, GLint x2, GLint y2)
{
    record("glRecti", x1, y1, x2, y2);
}

void glMatrixMode(GLenum mode)
{
    record("glMatrixMode", mode);
}

void glPushMatrix()
{
    record("glPushMatrix");
}

void glPopMatrix()
{
    record("glPopMatrix");
}

void glTranslated(GLdouble x, GLdouble y, GLdouble z)
{
    record("glTranslated", x, y, z);
}

void glScalef(GLfloat x, GLfloat y, GLfloat z)
{
    record("glScalef", x, y, z);
}

void glInterleavedArrays(GLenum format, GLsizei stride, const GLvoid* arrays)
{
    record("glInterleavedArrays", format, stride);
    recorded().arrays = static_cast<const float*>(arrays);
}

void glDrawElements(GLenum kind, GLsizei count, GLenum type, const GLvoid* indices)
{
    record("glDrawElements", kind, count, type);
    const auto* index = static_cast<const std::uint32_t*>(indices);
    auto& vertices = recorded().vertices.emplace_back(static_cast<std::size_t>(count));
    for (auto& vertex : vertices)
        std::copy_n(recorded().arrays + vertex.size() * *index++, vertex.size(), vertex.begin());
}

void glCullFace(GLenum face)
{
    record("glCullFace", face);
}

GLUquadric* gluNewQuadric()
{
    record("gluNewQuadric");
    static char quadric;
    return reinterpret_cast<GLUquadric*>(&quadric); // nothing looks into it
}

void gluDeleteQuadric(GLUquadric*)
{
    record("gluDeleteQuadric");
}

void gluQuadricDrawStyle(GLUquadric*, GLenum style)
{
    record("gluQuadricDrawStyle", style);
}

void gluQuadricNormals(GLUquadric*, GLenum normals)
{
    record("gluQuadricNormals", normals);
}
