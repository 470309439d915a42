// SPDX-License-Identifier: MIT
#include "vqview/window/Layout.h"

#include <algorithm>
#include <cmath>

namespace vqview {

namespace {

/// Far more than a display has, and within LONG on either side.
constexpr double kFarthestPixel = 1e9;

LONG pixelOf(double position, float pixelsPerUnit)
{
    const double pixel = std::floor(position * static_cast<double>(pixelsPerUnit));
    return static_cast<LONG>(std::clamp(pixel, -kFarthestPixel, kFarthestPixel));
}

} // namespace

int Layout::viewWidth() const
{
    return std::max(1, width - panelWidth);
}

int Layout::viewHeight() const
{
    return std::max(1, height - barHeight);
}

CPoint Layout::toView(double x, double y) const
{
    return {pixelOf(x, pixelsPerUnitX), pixelOf(y, pixelsPerUnitY) - barHeight};
}

bool Layout::isInView(CPoint at) const
{
    return at.x >= 0 && at.x < viewWidth() && at.y >= 0 && at.y < viewHeight();
}

} // namespace vqview
