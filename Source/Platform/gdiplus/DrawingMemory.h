// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/PathPoints.h"
#include "Platform/gdiplus/compositor/StripMemory.h"
#include "Platform/gdiplus/raster/ShapeRenderer.h"

namespace vq::gdiplus {

/// What drawing calls on one Graphics take memory for, kept from call to call.
struct DrawingMemory
{
    PathPoints path; ///< of a call that is given coordinates
    ShapeRenderer shapes;
    StripMemory strips; ///< of scaled pictures
};

} // namespace vq::gdiplus
