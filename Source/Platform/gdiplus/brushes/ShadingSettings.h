// SPDX-License-Identifier: MIT
#pragma once

namespace vq::gdiplus {

/// What turns a brush, which lives in world units, into colours of pixels.
struct ShadingSettings
{
    int originX, originY; ///< the rendering origin, in pixels of the device
    double across, down;  ///< pixels per world unit
    bool halfPixelOffset; ///< pixel (i, j) has its centre at (i + 1/2, j + 1/2) and not at (i, j)
};

} // namespace vq::gdiplus
