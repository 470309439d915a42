// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Lists of OpenGL calls as a test of shapes writes them down.

#include "VQDraw/VQDragObject.h"
#include "support/GLRecorder.h"

#include <gtest/gtest.h>

namespace vq::test {

/// `content` between the calls that keep the host's attributes: all twenty groups of OpenGL 1.1.
template <typename... Lists>
GLCalls kept(const Lists&... content)
{
    return inOrder(GLCalls{call("glPushAttrib", 0x000FFFFF)}, content..., GLCalls{call("glPopAttrib")});
}

/// What a view of that height makes of a shape.
template <typename Shape>
GLCalls drawnOver(Shape& shape, int height = 100)
{
    SVQGLVariables view{};
    view.m_iViewport[0] = 7; // only the height counts
    view.m_iViewport[1] = 9;
    view.m_iViewport[2] = 640;
    view.m_iViewport[3] = height;
    takeGLCalls();
    CVQDragObject& object = shape;
    object.Draw(view);
    return takeGLCalls();
}

} // namespace vq::test
