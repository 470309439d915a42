// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

namespace vqview {

/// Composes an image over the frame of the current OpenGL context, by its straight alpha, the upper left corner of the
/// one on that of the other's viewport; what reaches beyond the viewport is cut off. The frame's own alpha and depth
/// stay, and so does all state of OpenGL. Costs what is not transparent. No pixel buffer object and no program may be
/// bound.
void drawOver(CVQDIB& image, const SVQGLVariables& view);

/// Makes `image` the viewport's part of the frame, opaque, of its size. It is empty when memory is short, and stays as
/// it is when the viewport is empty.
void copyFrame(CVQDIB& image, const SVQGLVariables& view);

} // namespace vqview
