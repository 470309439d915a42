// SPDX-License-Identifier: MIT
#include "vqview/view/SceneState.h"

namespace vqview {
namespace {

/// `GL_ALL_ATTRIB_BITS` of OpenGL 1.1. Under that name later headers set bits that it has no groups for.
constexpr GLbitfield kAllAttributes = 0x000FFFFF;

constexpr GLenum kSwitchedOff[]{
    GL_ALPHA_TEST,
    GL_AUTO_NORMAL,
    GL_BLEND,
    GL_CLIP_PLANE0,
    GL_CLIP_PLANE1,
    GL_CLIP_PLANE2,
    GL_CLIP_PLANE3,
    GL_CLIP_PLANE4,
    GL_CLIP_PLANE5,
    GL_COLOR_LOGIC_OP,
    GL_COLOR_MATERIAL,
    GL_CULL_FACE,
    GL_DITHER,
    GL_FOG,
    GL_LIGHTING,
    GL_LIGHT4,
    GL_LIGHT5,
    GL_LIGHT6,
    GL_LIGHT7,
    GL_LINE_SMOOTH,
    GL_LINE_STIPPLE,
    GL_NORMALIZE,
    GL_POINT_SMOOTH,
    GL_POLYGON_OFFSET_FILL,
    GL_POLYGON_OFFSET_LINE,
    GL_POLYGON_OFFSET_POINT,
    GL_POLYGON_SMOOTH,
    GL_POLYGON_STIPPLE,
    GL_STENCIL_TEST,
    GL_TEXTURE_1D,
    GL_TEXTURE_2D,
};

constexpr GLenum kArrays[]{GL_VERTEX_ARRAY, GL_NORMAL_ARRAY,        GL_COLOR_ARRAY,
                           GL_INDEX_ARRAY,  GL_TEXTURE_COORD_ARRAY, GL_EDGE_FLAG_ARRAY};

void switchOff()
{
    for (const GLenum capability : kSwitchedOff)
        glDisable(capability);
    for (const GLenum array : kArrays)
        glDisableClientState(array);
}

void drawPlainly()
{
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LESS);
    glDepthMask(GL_TRUE);
    glDepthRange(0, 1);
    glClearDepth(1);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    glShadeModel(GL_SMOOTH);
    glFrontFace(GL_CCW);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
}

/// Clearing and wide points stay within it too.
void confineTo(const int (&viewport)[4])
{
    glViewport(viewport[0], viewport[1], viewport[2], viewport[3]);
    glScissor(viewport[0], viewport[1], viewport[2], viewport[3]);
    glEnable(GL_SCISSOR_TEST);
}

void pushMatrix(GLenum mode, const double (&matrix)[16])
{
    glMatrixMode(mode);
    glPushMatrix();
    glLoadMatrixd(matrix);
}

} // namespace

SceneState::SceneState(const SVQGLVariables& view)
{
    glPushAttrib(kAllAttributes);
    glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
    switchOff();
    drawPlainly();
    confineTo(view.m_iViewport);
    pushMatrix(GL_PROJECTION, view.m_dProjection);
    pushMatrix(GL_MODELVIEW, view.m_dModelView);
}

SceneState::~SceneState()
{
    for (const GLenum mode : {GL_PROJECTION, GL_MODELVIEW}) {
        glMatrixMode(mode);
        glPopMatrix();
    }
    glPopClientAttrib();
    glPopAttrib();
}

PlainPixels::PlainPixels()
{
    glPushAttrib(GL_PIXEL_MODE_BIT);
    glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
    glPixelTransferf(GL_DEPTH_SCALE, 1);
    glPixelTransferf(GL_DEPTH_BIAS, 0);
    for (const GLenum layout : {GL_PACK_SWAP_BYTES, GL_PACK_ROW_LENGTH, GL_PACK_SKIP_ROWS, GL_PACK_SKIP_PIXELS})
        glPixelStorei(layout, 0);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
}

PlainPixels::~PlainPixels()
{
    glPopClientAttrib();
    glPopAttrib();
}

} // namespace vqview
