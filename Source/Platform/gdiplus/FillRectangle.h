// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/Canvas.h"

namespace vq::gdiplus {

/// Fills [left, right) x [top, bottom) with one colour. Without smoothing a pixel is lit when its centre is inside;
/// with smoothing each pixel is covered by the exact area of the rectangle in it. Any numbers will do: what is empty,
/// upside down or no number fills nothing.
void fillRectangle(const Canvas& canvas, double left, double top, double right, double bottom, Pixel colour);

} // namespace vq::gdiplus
