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
    std::span<const Point3> picked; ///< each gets its number, and the distance to the next beside the line between them
    Bounds bounds;                  ///< its sizes, outside of the middles of three edges; none when empty
    std::size_t selectedCount = 0;  ///< at the centre of what is selected; none when 0
    Point3 selectedCentre;
};

/// Adds labels for one frame to `CVQDrawingAPI::Text()`. What is behind the eye gets none, and neither does an edge of
/// the bounds that is seen from its end. Text that is centred on a place, or stands beside it, does so in
/// `DPF_MEASUREMENT_FONT` as `drawLabels` scales it.
void addLabels(const LabelContent& content, const SVQGLVariables& view, float scale);

enum class DragShapes { Drawn, LeftOut };

/// Draws the labels of `CVQDrawingAPI::Text()` into an image of the view's size, in `DPF_MEASUREMENT_FONT` and its
/// colour, on tags that make them readable over any scan, and takes out those for one frame. With `DragShapes::Drawn`
/// the shapes that are selecting are drawn as well. Font, colour and shadow of the image are changed.
void drawLabels(CVQDIB& image, const SVQGLVariables& view, float scale, DragShapes shapes);

} // namespace vqview
