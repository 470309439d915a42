// SPDX-License-Identifier: MIT
#include "vqSelection/outline/Outline.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vq {

Area boundsOf(const double (&circle)[3])
{
    constexpr double kMostExact = 8589934592.0; // 2^33: beyond, what `isInCircle` rounds may be more than a pixel
    constexpr double kEverything = std::numeric_limits<double>::max();
    const auto& [x, y, radius] = circle;
    if (std::max({std::abs(x), std::abs(y), radius}) > kMostExact)
        return {-kEverything, -kEverything, kEverything, kEverything};
    return {x - radius, y - radius, x + radius, y + radius};
}

Area boundsOf(const std::vector<double>& vertices)
{
    constexpr double kNone = std::numeric_limits<double>::infinity();
    Area bounds{kNone, kNone, -kNone, -kNone};
    for (std::size_t i = 0; i + 1 < vertices.size(); i += 2) {
        bounds.left = std::min(bounds.left, vertices[i]);
        bounds.top = std::min(bounds.top, vertices[i + 1]);
        bounds.right = std::max(bounds.right, vertices[i]);
        bounds.bottom = std::max(bounds.bottom, vertices[i + 1]);
    }
    return bounds;
}

std::vector<Side> sidesOf(const std::vector<double>& vertices)
{
    std::vector<Side> sides;
    sides.reserve(vertices.size() / 2);
    for (std::size_t i = 0; i + 1 < vertices.size(); i += 2) {
        const std::size_t next = i + 3 < vertices.size() ? i + 2 : 0;
        sides.push_back({vertices[i], vertices[i + 1], vertices[next], vertices[next + 1]});
    }
    return sides;
}

bool isInside(const std::vector<Side>& sides, double x, double y)
{
    bool inside = false;
    for (const Side& side : sides)
        inside ^= crosses(side, x, y);
    return inside;
}

} // namespace vq
