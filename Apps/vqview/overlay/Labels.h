// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/model/Model.h"

#include <VQDraw/VQDraw.h>

#include <cstddef>
#include <span>

namespace vqview {

/// What labels name in a frame.
struct LabelContent
{
    std::span<const Point3> picked; ///< each gets its number, and the distance to the next at the middle between them
    Bounds bounds;                  ///< its sizes at the middles of three edges, the outermost ones; none when empty
    std::size_t selectedCount = 0;  ///< at the centre of what is selected; none when 0
    Point3 selectedCentre;
};

/// Adds labels for one frame to `CVQDrawingAPI::Text()`, so that each stands beside (number), or centred on (all else)
/// its place in the view. What lies behind the eye gets none.
void addLabels(const LabelContent& content, const SVQGLVariables& view, float scale);

enum class DragShapes { Drawn, LeftOut };

/// Draws the labels of `CVQDrawingAPI::Text()` into an image of the view's size, in `DPF_MEASUREMENT_FONT` and its
/// colour with a shadow, and takes out those for one frame. With `DragShapes::Drawn` the shapes that are selecting are
/// drawn as well. Font, colour and shadow of the image are changed.
void drawLabels(CVQDIB& image, const SVQGLVariables& view, float scale, DragShapes shapes);

} // namespace vqview
