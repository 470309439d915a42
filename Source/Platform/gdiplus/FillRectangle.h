// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/Canvas.h"
#include "Platform/gdiplus/brushes/Shader.h"

namespace vq::gdiplus {

/// Fills [left, right) x [top, bottom). Without smoothing a pixel is lit when its centre is inside;
/// with smoothing each pixel is covered by the exact area of the rectangle in it. Any numbers will do: what is empty,
/// upside down or no number fills nothing.
void fillRectangle(const Canvas& canvas, const Shader& shader, double left, double top, double right, double bottom);

} // namespace vq::gdiplus
