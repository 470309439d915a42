// SPDX-License-Identifier: MIT
// Areas of the screen, from drag objects and from numbers.
#include "vqSelection/VQSelection.h"
#include "vqSelection/outline/Outline.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kMostOfOutline = 8589934592.0; // 2^33

bool areFinite(std::initializer_list<double> numbers)
{
    return std::ranges::all_of(numbers, [](double number) { return std::isfinite(number); });
}

} // namespace

CVQSelectionShape::CVQSelectionShape() = default;

CVQSelectionShape CVQSelectionShape::Of(const CVQDragBox& box)
{
    const CPoint start = box.GetStart();
    const CPoint end = box.GetEnd();
    return Box(start.x, start.y, end.x, end.y);
}

CVQSelectionShape CVQSelectionShape::Of(const CVQDragCircle& circle)
{
    const CPoint centre = circle.GetCenter();
    return Circle(centre.x, centre.y, circle.GetRadius());
}

CVQSelectionShape CVQSelectionShape::Of(const CVQDragLine& line)
{
    const CPoint start = line.GetStart();
    const CPoint end = line.GetEnd();
    return Band(start.x, start.y, end.x, end.y, line.GetWidth());
}

CVQSelectionShape CVQSelectionShape::Of(const CVQDragPolygon& polygon)
{
    CVQDragPolygon copy(polygon); // which alone hands out its vertices
    const CVQDragPolygon::Points& points = *copy.GetPoints();
    std::vector<double> vertices;
    vertices.reserve(static_cast<std::size_t>(points.GetSize()) * 2);
    for (std::uint64_t i = 0; i < points.GetSize(); ++i) {
        vertices.push_back(points[i].x);
        vertices.push_back(points[i].y);
    }
    return Polygon(vertices.data(), vertices.size() / 2);
}

CVQSelectionShape CVQSelectionShape::Box(double x1, double y1, double x2, double y2)
{
    CVQSelectionShape shape;
    if (!areFinite({x1, y1, x2, y2}) || x1 == x2 || y1 == y2)
        return shape;
    shape.m_kind = Kind::Box;
    shape.m_box[0] = std::min(x1, x2);
    shape.m_box[1] = std::min(y1, y2);
    shape.m_box[2] = std::max(x1, x2);
    shape.m_box[3] = std::max(y1, y2);
    return shape;
}

CVQSelectionShape CVQSelectionShape::Circle(double centreX, double centreY, double radius)
{
    CVQSelectionShape shape;
    if (!areFinite({centreX, centreY, radius}) || radius <= 0)
        return shape;
    shape.m_kind = Kind::Circle;
    shape.m_circle[0] = centreX;
    shape.m_circle[1] = centreY;
    shape.m_circle[2] = radius;
    return shape;
}

CVQSelectionShape CVQSelectionShape::Band(double x1, double y1, double x2, double y2, double width)
{
    if (!(width > 0))
        return {};
    const double dx = x2 - x1;
    const double dy = y2 - y1;
    const double length = std::sqrt(static_cast<float>(dx * dx + dy * dy)); // as the band is drawn
    const double normalX = -dy / length * width;
    const double normalY = dx / length * width;
    const double corners[] = {x1 + normalX, y1 + normalY, x2 + normalX, y2 + normalY,
                              x2 - normalX, y2 - normalY, x1 - normalX, y1 - normalY};
    return Polygon(corners, std::size(corners) / 2);
}

CVQSelectionShape CVQSelectionShape::Polygon(const double* vertices, std::size_t count)
{
    constexpr std::size_t kLeast = 3;
    CVQSelectionShape shape;
    if (!vertices || count < kLeast)
        return shape;
    const bool isWithin =
        std::all_of(vertices, vertices + count * 2, [](double number) { return std::abs(number) <= kMostOfOutline; });
    if (!isWithin) // also when it is no number
        return shape;
    shape.m_kind = Kind::Polygon;
    shape.m_vertices.assign(vertices, vertices + count * 2);
    return shape;
}

bool CVQSelectionShape::Contains(double x, double y) const
{
    switch (m_kind) {
    case Kind::Box:
        return vq::isInBox(m_box, x, y);
    case Kind::Circle:
        return vq::isInCircle(m_circle, x, y);
    case Kind::Polygon:
        return vq::isInside(vq::sidesOf(m_vertices), x, y);
    case Kind::Empty:
        break;
    }
    return false;
}
