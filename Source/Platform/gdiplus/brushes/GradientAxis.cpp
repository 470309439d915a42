// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/brushes/GradientAxis.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace vq::gdiplus {

bool GradientAxis::isUsable() const
{
    return std::isfinite(originX) && std::isfinite(originY) && std::isfinite(normalX) && std::isfinite(normalY) &&
           std::isfinite(length) && length > 0;
}

GradientAxis axisBetween(const Gdiplus::PointF& first, const Gdiplus::PointF& last)
{
    const double across = double{last.X} - double{first.X};
    const double down = double{last.Y} - double{first.Y};
    return {first.X, first.Y, across, down, across * across + down * down};
}

GradientDirection directionOf(Gdiplus::LinearGradientMode mode)
{
    switch (mode) {
    case Gdiplus::LinearGradientModeVertical:
        return {0, 1, true};
    case Gdiplus::LinearGradientModeForwardDiagonal:
        return {1, 1, true};
    case Gdiplus::LinearGradientModeBackwardDiagonal:
        return {-1, 1, true};
    default:
        return {1, 0, true};
    }
}

GradientDirection directionOf(double angle, bool scales)
{
    // Multiples of 45 degrees exactly: what ends at a whole number has to end there and not a rounding beside it.
    static constexpr std::array<GradientDirection, 8> kEighths{
        {{1, 0, {}}, {1, 1, {}}, {0, 1, {}}, {-1, 1, {}}, {-1, 0, {}}, {-1, -1, {}}, {0, -1, {}}, {1, -1, {}}}};
    const double turned = std::fmod(angle, 360);
    const double eighths = (turned < 0 ? turned + 360 : turned) / 45;
    for (std::size_t i = 0; i < kEighths.size(); ++i)
        if (eighths == static_cast<double>(i))
            return {kEighths[i].right, kEighths[i].down, scales};
    const double radians = turned * (std::numbers::pi / 180);
    return {std::cos(radians), std::sin(radians), scales};
}

GradientAxis axisAcross(const Gdiplus::RectF& rectangle, GradientDirection direction)
{
    const double width = rectangle.Width;
    const double height = rectangle.Height;
    const double right = direction.scales ? direction.right : direction.right * std::abs(width);
    const double down = direction.scales ? direction.down : direction.down * std::abs(height);
    GradientAxis axis{right < 0 ? rectangle.X + width : rectangle.X, down < 0 ? rectangle.Y + height : rectangle.Y, 0,
                      0, 0};
    if (down == 0) {
        axis.normalX = std::copysign(1.0, right) * std::copysign(1.0, width);
        axis.length = std::abs(width);
    } else if (right == 0) {
        axis.normalY = std::copysign(1.0, down) * std::copysign(1.0, height);
        axis.length = std::abs(height);
    } else {
        // right * (x - X) / width + down * (y - Y) / height, over its value at the opposite corner, times the area
        axis.normalX = right * height;
        axis.normalY = down * width;
        axis.length = (std::abs(right) + std::abs(down)) * width * height;
        if (axis.length < 0)
            axis = {axis.originX, axis.originY, -axis.normalX, -axis.normalY, -axis.length};
    }
    return axis;
}

GradientAxis onPixels(const GradientAxis& axis, const ShadingSettings& settings)
{
    const double centre = settings.halfPixelOffset ? 0.5 : 0;
    return {axis.originX * settings.across - centre, axis.originY * settings.down - centre,
            axis.normalX / settings.across, axis.normalY / settings.down, axis.length};
}

} // namespace vq::gdiplus
