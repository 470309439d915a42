// SPDX-License-Identifier: MIT
#include "vqview/session/Outline.h"

#include <cmath>
#include <numbers>

namespace vqview {

namespace {

CPoint rounded(double x, double y)
{
    return {static_cast<int>(std::lround(x)), static_cast<int>(std::lround(y))};
}

} // namespace

std::vector<CPoint> outlineOf(const CVQDragBox& box)
{
    const CRect rect = box.GetRect();
    if (rect.IsRectEmpty())
        return {};
    return {{rect.left, rect.top}, {rect.right, rect.top}, {rect.right, rect.bottom}, {rect.left, rect.bottom}};
}

std::vector<CPoint> outlineOf(const CVQDragCircle& circle)
{
    constexpr int kCorners = 72;
    const double radius = circle.GetRadius();
    if (!(radius > 0))
        return {};
    std::vector<CPoint> corners;
    for (int corner = 0; corner < kCorners; ++corner) {
        const double angle = 2 * std::numbers::pi * corner / kCorners;
        corners.push_back(
            rounded(circle.GetCenterX() + radius * std::cos(angle), circle.GetCenterY() + radius * std::sin(angle)));
    }
    return corners;
}

std::vector<CPoint> outlineOf(const CVQDragLine& band)
{
    const double dx = static_cast<double>(band.GetEndX()) - band.GetStartX();
    const double dy = static_cast<double>(band.GetEndY()) - band.GetStartY();
    const double length = std::hypot(dx, dy);
    if (band.GetWidth() <= 0 || length == 0)
        return {};
    const double nx = -dy / length * band.GetWidth(), ny = dx / length * band.GetWidth();
    const CPoint start = band.GetStart(), end = band.GetEnd();
    return {rounded(start.x + nx, start.y + ny), rounded(end.x + nx, end.y + ny), rounded(end.x - nx, end.y - ny),
            rounded(start.x - nx, start.y - ny)};
}

std::vector<CPoint> outlineOf(CVQDragPolygon& polygon)
{
    const auto& points = *polygon.GetPoints();
    std::vector<CPoint> corners;
    for (std::uint64_t index = 0; index < points.GetSize(); ++index)
        corners.push_back(points[index]);
    return corners.size() < 3 ? std::vector<CPoint>() : corners;
}

} // namespace vqview
