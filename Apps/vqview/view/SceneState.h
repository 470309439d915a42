// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

namespace vqview {

/// OpenGL as a scene starts from: the view's viewport and matrices, depth tested and written, everything else that
/// could change a pixel switched off, whatever the host has left on. When it goes, everything is as it was.
class SceneState
{
public:
    explicit SceneState(const SVQGLVariables& view);
    ~SceneState();
    SceneState(const SceneState&) = delete;
    SceneState& operator=(const SceneState&) = delete;
};

/// Pixels come from and go to memory one behind the other and unchanged, until it goes.
class PlainPixels
{
public:
    PlainPixels();
    ~PlainPixels();
    PlainPixels(const PlainPixels&) = delete;
    PlainPixels& operator=(const PlainPixels&) = delete;
};

} // namespace vqview
