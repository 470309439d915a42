// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// How shapes look over a scene: OpenGL state that is put back, colours, stippled outlines.

#include "Platform/Platform.h"
#include "VQDraw/VQDragObject.h"
#include "vqCommonBase/VQDisplayAPI.h"

namespace vq {

/// The host's attributes are as before when it goes.
class KeptAttributes
{
public:
    KeptAttributes() { glPushAttrib(kAllAttributes); }
    ~KeptAttributes() { glPopAttrib(); }
    KeptAttributes(const KeptAttributes&) = delete;
    KeptAttributes& operator=(const KeptAttributes&) = delete;

private:
    /// `GL_ALL_ATTRIB_BITS` of OpenGL 1.1. Under that name later headers set bits that it has no groups for.
    static constexpr GLbitfield kAllAttributes = 0x000FFFFF;
};

/// Between `glBegin` and `glEnd`.
class Primitive
{
public:
    explicit Primitive(GLenum kind) { glBegin(kind); }
    ~Primitive() { glEnd(); }
    Primitive(const Primitive&) = delete;
    Primitive& operator=(const Primitive&) = delete;
};

/// Unlit, in front of the scene, blended.
inline void drawOverScene()
{
    glDisable(GL_LIGHTING);
    glDisable(GL_DEPTH_TEST);
    glEnable(GL_BLEND);
}

/// Whichever way round, since the user may drag in any direction.
inline void fillBothSides()
{
    glDisable(GL_CULL_FACE);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
}

/// Of alpha the low 8 bits count.
inline void useColour(COLORREF colour, LONG alpha)
{
    glColor4ub(static_cast<GLubyte>(colour), static_cast<GLubyte>(colour >> 8), static_cast<GLubyte>(colour >> 16),
               static_cast<GLubyte>(alpha));
}

inline void useFillColour(COLORREF colour, LONG alpha)
{
    useColour(colour, alpha / 4);
}

inline void useOutlineWidth()
{
    glLineWidth(CVQDisplayAPI::GetScaleFactor() * 2.0F);
}

/// Four pixels on, four off.
inline void useStipple()
{
    constexpr GLushort kFourOnFourOff = 0x0F0F;
    glEnable(GL_LINE_STIPPLE);
    glLineStipple(1, kFourOnFourOff);
}

/// The viewport's height, from which window coordinates count upwards.
inline int heightOf(const SVQGLVariables& view)
{
    return view.m_iViewport[3];
}

/// From the bottom up; beyond 32 bits it wraps round.
inline int flipped(const SVQGLVariables& view, LONG y)
{
    return afx::wrappedDifference(heightOf(view), y);
}

} // namespace vq
