// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Filters that read a pixel's neighbours, one pixel at a time.

#include "Picture.h"

namespace vq::reference {

void smooth2x2(Picture& picture);
void smooth3x3(Picture& picture);
void smooth3x3(Picture& picture, Number x1, Number x2);
void smooth3x3(Picture& picture, Number x1, Number y1, Number x2, Number y2);
/// Good for radius 0 to 127: beyond, a sum no longer fits a float and the order of the summands shows.
void smooth(Picture& picture, Word radius);
void alphaSmooth3x3(Picture& picture);
void median(Picture& picture);
/// The rectangle is changed as hosts see it afterwards.
void median(Picture& picture, Rectangle& area);
void laplacian(Picture& picture, Number channelNumber);
void mosaic(Picture& picture, Number size);

} // namespace vq::reference
