// SPDX-License-Identifier: MIT
#include "vqSelection/outline/Outline.h"

namespace vq {

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
