// SPDX-License-Identifier: MIT
#include "vqview/model/Surface.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vqview {

namespace {

/// In double: squares and products of finite floats neither overflow nor vanish.
struct Vector
{
    double x = 0, y = 0, z = 0;

    Vector& operator+=(const Vector& other)
    {
        x += other.x;
        y += other.y;
        z += other.z;
        return *this;
    }
    friend Vector operator*(const Vector& vector, double factor)
    {
        return {vector.x * factor, vector.y * factor, vector.z * factor};
    }
};

Vector between(const Point3& from, const Point3& to)
{
    return {double{to.x} - from.x, double{to.y} - from.y, double{to.z} - from.z};
}

double dot(const Vector& a, const Vector& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Vector cross(const Vector& a, const Vector& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

Point3 unit(const Vector& vector)
{
    const double length = std::hypot(vector.x, vector.y, vector.z);
    if (!(length > 0) || !std::isfinite(length))
        return {0, 0, 1};
    return {static_cast<float>(vector.x / length), static_cast<float>(vector.y / length),
            static_cast<float>(vector.z / length)};
}

void addNormals(const Triangle& triangle, const std::vector<Point3>& positions, std::vector<Vector>& sums)
{
    const std::array<Vector, 3> side{between(positions[triangle[0]], positions[triangle[1]]),
                                     between(positions[triangle[1]], positions[triangle[2]]),
                                     between(positions[triangle[2]], positions[triangle[0]])};
    const Vector normal = cross(side[0], side[1]);
    const double length = std::sqrt(dot(normal, normal));
    if (!(length > 0))
        return;
    // All three corners span the same parallelogram: `length` is the sine's part of each angle.
    for (std::size_t i = 0; i < 3; ++i)
        sums[triangle[i]] += normal * (std::atan2(length, -dot(side[i], side[(i + 2) % 3])) / length);
}

} // namespace

std::vector<Point3> vertexNormals(const std::vector<Point3>& positions, const std::vector<Triangle>& triangles)
{
    std::vector<Vector> sums(positions.size());
    for (const Triangle& triangle : triangles)
        addNormals(triangle, positions, sums);
    std::vector<Point3> normals(positions.size());
    std::ranges::transform(sums, normals.begin(), unit);
    return normals;
}

void makeUnit(std::vector<Point3>& directions)
{
    for (Point3& direction : directions)
        direction = unit({direction.x, direction.y, direction.z});
}

std::vector<std::array<std::uint32_t, 2>> edgesOf(std::size_t positionCount, const std::vector<Triangle>& triangles)
{
    constexpr std::array<std::pair<int, int>, 3> kSides{{{0, 1}, {1, 2}, {2, 0}}};
    // Sorted into one row for each smaller index; a row is short.
    std::vector<std::size_t> rowEnd(positionCount + 1);
    for (const Triangle& triangle : triangles)
        for (const auto& [a, b] : kSides)
            ++rowEnd[std::min(triangle[a], triangle[b]) + 1];
    for (std::size_t i = 1; i < rowEnd.size(); ++i)
        rowEnd[i] += rowEnd[i - 1];

    std::vector<std::uint32_t> larger(3 * triangles.size());
    for (const Triangle& triangle : triangles)
        for (const auto& [a, b] : kSides)
            larger[rowEnd[std::min(triangle[a], triangle[b])]++] = std::max(triangle[a], triangle[b]);

    std::vector<std::array<std::uint32_t, 2>> edges;
    edges.reserve(larger.size() / 2 + 16); // a closed surface has half as many
    auto row = larger.begin();
    for (std::size_t i = 0; i < positionCount; ++i) {
        const auto rowEndNow = larger.begin() + static_cast<std::ptrdiff_t>(rowEnd[i]);
        std::sort(row, rowEndNow);
        for (const auto end = std::unique(row, rowEndNow); row != end; ++row)
            edges.push_back({static_cast<std::uint32_t>(i), *row});
        row = rowEndNow;
    }
    return edges;
}

} // namespace vqview
