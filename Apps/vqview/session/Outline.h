// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <vector>

namespace vqview {

/// Corners of what a selection shape encloses, in window pixels; a circle is one of 72 corners. Empty when the shape
/// has no inside.
std::vector<CPoint> outlineOf(const CVQDragBox& box);
std::vector<CPoint> outlineOf(const CVQDragCircle& circle);
std::vector<CPoint> outlineOf(const CVQDragLine& band);
std::vector<CPoint> outlineOf(CVQDragPolygon& polygon);

} // namespace vqview
