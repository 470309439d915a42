// SPDX-License-Identifier: MIT
#include "Geometry.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <limits>
#include <map>
#include <sstream>

namespace vqview::test {

ScanOfFile scanOfFile(const char* path)
{
    std::ifstream file(path);
    std::map<std::array<float, 3>, std::uint32_t> places;
    std::vector<std::uint32_t> placeOfLine;
    ScanOfFile scan;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        std::string keyword;
        words >> keyword;
        if (keyword == "v") {
            std::array<float, 3> point{};
            words >> point[0] >> point[1] >> point[2];
            const auto next = static_cast<std::uint32_t>(scan.points.size());
            const auto [place, isNew] = places.try_emplace(point, next);
            if (isNew)
                scan.points.push_back({point[0], point[1], point[2]});
            placeOfLine.push_back(place->second);
        } else if (keyword == "f") {
            std::array<std::uint32_t, 3> corners{};
            for (std::uint32_t& corner : corners) {
                std::string word;
                words >> word;
                corner = placeOfLine.at(std::stoul(word) - 1);
            }
            scan.triangles.push_back(corners);
        }
    }
    return scan;
}

namespace {

using Vector4 = std::array<double, 4>;

/// A matrix column by column.
Vector4 times(const double (&matrix)[16], const Vector4& vector)
{
    Vector4 product{};
    for (std::size_t row = 0; row < 4; ++row)
        for (std::size_t column = 0; column < 4; ++column)
            product[row] += matrix[4 * column + row] * vector[column];
    return product;
}

} // namespace

Place placeOf(const SVQGLVariables& view, const Point3& point)
{
    const Vector4 clip = times(view.m_dProjection, times(view.m_dModelView, {point.x, point.y, point.z, 1}));
    const auto& [left, bottom, width, height] = view.m_iViewport;
    const double fromBottom = bottom + (clip[1] / clip[3] + 1) / 2 * height;
    return {left + (clip[0] / clip[3] + 1) / 2 * width, height - fromBottom, (clip[2] / clip[3] + 1) / 2};
}

Area boxArea(CPoint corner, CPoint opposite)
{
    const double left = std::min(corner.x, opposite.x), right = std::max(corner.x, opposite.x);
    const double top = std::min(corner.y, opposite.y), bottom = std::max(corner.y, opposite.y);
    return [=](double x, double y) { return std::min({x - left, right - x, y - top, bottom - y}); };
}

Area circleArea(CPoint centre, CPoint rim)
{
    const double radius = std::hypot(rim.x - centre.x, rim.y - centre.y);
    return [=](double x, double y) { return radius - std::hypot(x - centre.x, y - centre.y); };
}

Area polygonArea(std::vector<std::array<double, 2>> corners)
{
    return [corners = std::move(corners)](double x, double y) {
        bool isInside = false;
        double nearest = std::numeric_limits<double>::infinity(); // squared
        for (std::size_t corner = 0; corner < corners.size(); ++corner) {
            const auto& [x1, y1] = corners[corner];
            const auto& [x2, y2] = corners[(corner + 1) % corners.size()];
            const double dx = x2 - x1, dy = y2 - y1, square = dx * dx + dy * dy;
            const double along = square > 0 ? std::clamp(((x - x1) * dx + (y - y1) * dy) / square, 0.0, 1.0) : 0;
            const double awayX = x - x1 - along * dx, awayY = y - y1 - along * dy;
            nearest = std::min(nearest, awayX * awayX + awayY * awayY);
            if ((y1 > y) != (y2 > y) && x < x1 + (y - y1) / dy * dx)
                isInside = !isInside;
        }
        return isInside ? std::sqrt(nearest) : -std::sqrt(nearest);
    };
}

Area polygonArea(const std::vector<CPoint>& corners)
{
    std::vector<std::array<double, 2>> numbers;
    for (const CPoint& corner : corners)
        numbers.push_back({static_cast<double>(corner.x), static_cast<double>(corner.y)});
    return polygonArea(std::move(numbers));
}

Area bandArea(CPoint from, CPoint to, double halfWidth)
{
    const double dx = to.x - from.x, dy = to.y - from.y, length = std::hypot(dx, dy);
    return [=](double x, double y) {
        const double along = ((x - from.x) * dx + (y - from.y) * dy) / length;
        const double aside = std::fabs((x - from.x) * dy - (y - from.y) * dx) / length;
        return std::min({along, length - along, halfWidth - aside});
    };
}

Found pointsIn(const Area& area, const SVQGLVariables& view, const std::vector<Point3>& points)
{
    constexpr double kRounding = 1e-6; // pixels
    Found found;
    for (std::uint32_t index = 0; index < points.size(); ++index) {
        const Place place = placeOf(view, points[index]);
        if (!(place.depth >= 0 && place.depth <= 1))
            continue;
        const double within = area(place.x, place.y);
        if (within > 0)
            found.points.push_back(index);
        found.atBorder += std::fabs(within) < kRounding;
    }
    return found;
}

namespace {

using Indices = std::vector<std::uint32_t>;

} // namespace

Indices added(const Indices& before, const Indices& shape)
{
    Indices result;
    std::ranges::set_union(before, shape, std::back_inserter(result));
    return result;
}

Indices taken(const Indices& before, const Indices& shape)
{
    Indices result;
    std::ranges::set_difference(before, shape, std::back_inserter(result));
    return result;
}

Indices toggled(const Indices& before, const Indices& shape)
{
    Indices result;
    std::ranges::set_symmetric_difference(before, shape, std::back_inserter(result));
    return result;
}

DepthOfSurface::DepthOfSurface(const SVQGLVariables& view, const ScanOfFile& scan, double dx, double dy)
    : m_width(view.m_iViewport[2]), m_height(view.m_iViewport[3]),
      m_depth(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height), 1.0)
{
    std::vector<Place> places;
    for (const Point3& point : scan.points)
        places.push_back(placeOf(view, point));
    for (const auto& [a, b, c] : scan.triangles)
        add({places[a], places[b], places[c]}, dx, dy);
}

void DepthOfSurface::add(const std::array<Place, 3>& corners, double dx, double dy)
{
    const auto& [a, b, c] = corners;
    const double area = (b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y);
    const auto rounded = [](double pixel, int size) { return std::clamp(static_cast<int>(pixel), 0, size - 1); };
    const int left = rounded(std::min({a.x, b.x, c.x}) - 1, m_width);
    const int right = rounded(std::max({a.x, b.x, c.x}) + 1, m_width);
    const int top = rounded(std::min({a.y, b.y, c.y}) - 1, m_height);
    const int bottom = rounded(std::max({a.y, b.y, c.y}) + 1, m_height);
    for (int row = top; row <= bottom; ++row)
        for (int column = left; column <= right; ++column) {
            const double x = column + 0.5 + dx, y = row + 0.5 + dy;
            const double ofB = ((x - a.x) * (c.y - a.y) - (c.x - a.x) * (y - a.y)) / area;
            const double ofC = ((b.x - a.x) * (y - a.y) - (x - a.x) * (b.y - a.y)) / area;
            if (!(ofB >= 0 && ofC >= 0 && ofB + ofC <= 1))
                continue;
            const double depth = a.depth + ofB * (b.depth - a.depth) + ofC * (c.depth - a.depth);
            double& nearest = m_depth[static_cast<std::size_t>(row) * static_cast<std::size_t>(m_width) +
                                      static_cast<std::size_t>(column)];
            nearest = std::min(nearest, depth);
        }
}

double DepthOfSurface::farthestAround(double x, double y) const
{
    const int column = static_cast<int>(x), row = static_cast<int>(y);
    double farthest = 0;
    for (int beside = std::max(row - 1, 0); beside <= std::min(row + 1, m_height - 1); ++beside)
        for (int next = std::max(column - 1, 0); next <= std::min(column + 1, m_width - 1); ++next)
            farthest = std::max(farthest, m_depth[static_cast<std::size_t>(beside) * static_cast<std::size_t>(m_width) +
                                                  static_cast<std::size_t>(next)]);
    return farthest;
}

} // namespace vqview::test
