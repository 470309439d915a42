// SPDX-License-Identifier: MIT
#include "gl/GLState.h"

#include "Platform/Platform.h"

namespace vq::test {
namespace {

void setColoursAndLights()
{
    const GLfloat colour[]{0.11F, 0.23F, 0.37F, 0.53F};
    const GLfloat place[]{1, 2, 3, 0};
    for (const GLenum light : {GL_LIGHT0, GL_LIGHT1}) {
        glEnable(light);
        glLightfv(light, GL_AMBIENT, colour);
        glLightfv(light, GL_DIFFUSE, colour);
        glLightfv(light, GL_SPECULAR, colour);
        glLightfv(light, GL_POSITION, place);
        glLightf(light, GL_SPOT_CUTOFF, 45);
    }
    glLightModelfv(GL_LIGHT_MODEL_AMBIENT, colour);
    glLightModeli(GL_LIGHT_MODEL_TWO_SIDE, 1);
    for (const GLenum name : {GL_AMBIENT, GL_DIFFUSE, GL_SPECULAR, GL_EMISSION})
        glMaterialfv(GL_FRONT_AND_BACK, name, colour);
    glMaterialf(GL_FRONT, GL_SHININESS, 12);
    glColorMaterial(GL_BACK, GL_SPECULAR);
    glEnable(GL_LIGHTING);
    glShadeModel(GL_FLAT);
    glFogfv(GL_FOG_COLOR, colour);
    glFogf(GL_FOG_DENSITY, 0.25F);
    glClearColor(0.1F, 0.2F, 0.3F, 0.4F);
}

void setRaster()
{
    glPointSize(3);
    glEnable(GL_POINT_SMOOTH);
    glLineWidth(3);
    glLineStipple(3, 0x1234);
    glEnable(GL_CULL_FACE);
    glCullFace(GL_FRONT);
    glFrontFace(GL_CW);
    glPolygonMode(GL_FRONT, GL_POINT);
    glPolygonMode(GL_BACK, GL_LINE);
    glPolygonOffset(1.5F, 2.5F);
    glEnable(GL_POLYGON_OFFSET_FILL);
    GLubyte pattern[128];
    std::fill(std::begin(pattern), std::end(pattern), GLubyte{0x5A});
    glPolygonStipple(pattern);
    glEnable(GL_SCISSOR_TEST);
    glScissor(1, 2, 30, 40);
    glEnable(GL_ALPHA_TEST);
    glAlphaFunc(GL_GREATER, 0.25F);
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LEQUAL);
    glDepthMask(GL_FALSE);
    glColorMask(GL_TRUE, GL_FALSE, GL_TRUE, GL_FALSE);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE);
    glLogicOp(GL_XOR);
    glDisable(GL_DITHER);
    glStencilFunc(GL_EQUAL, 3, 0x0F);
    glStencilOp(GL_REPLACE, GL_INCR, GL_DECR);
    for (const GLenum hint : {GL_POINT_SMOOTH_HINT, GL_LINE_SMOOTH_HINT, GL_POLYGON_SMOOTH_HINT, GL_FOG_HINT})
        glHint(hint, GL_NICEST);
}

void setTextures()
{
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glEnable(GL_TEXTURE_1D);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_DECAL);
    glTexGeni(GL_S, GL_TEXTURE_GEN_MODE, GL_OBJECT_LINEAR);
    glEnable(GL_TEXTURE_GEN_T);
}

void setPixelTransfer()
{
    glPixelStorei(GL_PACK_ALIGNMENT, 2);
    glPixelStorei(GL_PACK_ROW_LENGTH, 77);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 8);
    glPixelStorei(GL_UNPACK_SKIP_ROWS, 3);
    glPixelTransferf(GL_RED_SCALE, 0.5F);
    glPixelZoom(2, -3);
}

void setTransformation()
{
    glViewport(3, 4, 50, 60);
    glDepthRange(0.25, 0.75);
    const GLdouble plane[]{1, 2, 3, 4};
    glClipPlane(GL_CLIP_PLANE2, plane);
    glEnable(GL_CLIP_PLANE3);
    for (const GLenum mode : {GL_MODELVIEW, GL_PROJECTION, GL_TEXTURE}) { // the last one stays chosen
        glMatrixMode(mode);
        glPushMatrix();
        glTranslated(0.5, 0.25, 0.125);
        glScaled(1.5, 2.5, 3.5);
    }
}

void setCurrentAndArrays()
{
    static const GLfloat kSomeVertices[24]{};
    glVertexPointer(3, GL_FLOAT, 8, kSomeVertices);
    glNormalPointer(GL_FLOAT, 16, kSomeVertices + 3);
    glColorPointer(4, GL_FLOAT, 4, kSomeVertices + 6);
    glEnableClientState(GL_COLOR_ARRAY);
    glRasterPos2f(0.1F, 0.2F);
    glColor4f(0.2F, 0.4F, 0.6F, 0.8F);
    glNormal3f(0.6F, 0, 0.8F);
    glTexCoord4f(0.1F, 0.2F, 0.3F, 0.4F);
    glEdgeFlag(GL_FALSE);
    glListBase(7);
}

} // namespace

void makeStateUnusual()
{
    glPushAttrib(GL_LINE_BIT);
    glPushAttrib(GL_POLYGON_BIT | GL_CURRENT_BIT);
    glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
    setColoursAndLights();
    setRaster();
    setTextures();
    setTransformation();
    setCurrentAndArrays();
    setPixelTransfer(); // after the polygon's pattern, which is unpacked
}

} // namespace vq::test
