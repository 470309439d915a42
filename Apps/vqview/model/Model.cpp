// SPDX-License-Identifier: MIT
#include "vqview/model/Model.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vqview {

Point3 Bounds::centre() const
{
    return {(least.x + most.x) / 2, (least.y + most.y) / 2, (least.z + most.z) / 2};
}

float Bounds::radius() const
{
    return isEmpty() ? 0 : std::hypot(most.x - least.x, most.y - least.y, most.z - least.z) / 2;
}

bool Bounds::isShowable() const
{
    constexpr float kLargestRadius = 1e15F;
    return !isEmpty() && radius() <= kLargestRadius;
}

Bounds boundsOf(const std::vector<Point3>& positions)
{
    constexpr float kFar = std::numeric_limits<float>::infinity();
    Bounds bounds{{kFar, kFar, kFar}, {-kFar, -kFar, -kFar}};
    for (const Point3& point : positions) {
        bounds.least = {std::min(bounds.least.x, point.x), std::min(bounds.least.y, point.y),
                        std::min(bounds.least.z, point.z)};
        bounds.most = {std::max(bounds.most.x, point.x), std::max(bounds.most.y, point.y),
                       std::max(bounds.most.z, point.z)};
    }
    return bounds;
}

} // namespace vqview
