// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/Polylines.h"

#include <algorithm>

namespace vq::gdiplus {

void Polylines::endFigure(bool closed, bool atStart, bool atEnd)
{
    if (openCount() > 0)
        m_figures.push_back({firstOpen(), m_points.size(), closed, atStart, atEnd});
}

Bounds Polylines::bounds() const
{
    Bounds bounds{m_points.front().x, m_points.front().y, m_points.front().x, m_points.front().y};
    for (const PointD& point : m_points) {
        bounds.left = std::min(bounds.left, point.x);
        bounds.top = std::min(bounds.top, point.y);
        bounds.right = std::max(bounds.right, point.x);
        bounds.bottom = std::max(bounds.bottom, point.y);
    }
    return bounds;
}

bool Polylines::finite() const
{
    double nothing = 0; // becomes no number by one that is none, or not finite
    for (const PointD& point : m_points)
        nothing += (point.x + point.y) * 0;
    return nothing == 0;
}

Polylines Polylines::movedBy(PointD distance) const
{
    Polylines moved = *this;
    for (PointD& point : moved.m_points)
        point = point + distance;
    return moved;
}

} // namespace vq::gdiplus
