// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/raster/DashPattern.h"
#include "Platform/gdiplus/raster/Polylines.h"

namespace vq::gdiplus {

/// Adds the dashes of lines: open figures, each with the corners that it runs through. Every line begins the pattern
/// anew, a closed one at its first point. What lies outside `visible` may be left out.
void cutDashes(const Polylines& lines, const DashPattern& pattern, const Bounds& visible, Polylines& dashes);

} // namespace vq::gdiplus
