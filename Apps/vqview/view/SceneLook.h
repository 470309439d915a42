// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

namespace vqview {

/// Fills the view with the background, in no depth.
void drawBackground();
/// The next is lit by the preferences' lights, and made of the body's material.
void useLights();
/// The next is in one colour, unlit.
void useColour(eDrawPropertyColor colour);
/// Pixels for OpenGL: at least 1, also where a preference is no size.
float pixels(eDrawPropertySize size, float scale);
/// What is drawn next lies nearer by that many pixels of the picture, and where it was in the picture: lines and
/// points, which do not lean as their surface does, stay before it.
void bringNearer(const SVQGLVariables& view, double pixels);

} // namespace vqview
