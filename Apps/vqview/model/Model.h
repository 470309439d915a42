// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace vqview {

/// Three floats side by side, as OpenGL takes them from memory: a position in units of the file, or a direction.
struct Point3
{
    float x = 0, y = 0, z = 0;

    friend bool operator==(const Point3&, const Point3&) = default;
};

/// The smallest box around points. Of no points it is empty: `least` is beyond `most`.
struct Bounds
{
    Point3 least, most;

    bool isEmpty() const { return !(least.x <= most.x); }
    Point3 centre() const;
    /// Half the diagonal; 0 of an empty box.
    float radius() const;
    /// Neither empty, nor of numbers that are not finite, nor too large for OpenGL's matrices in single precision.
    bool isShowable() const;
};

Bounds boundsOf(const std::vector<Point3>& positions);

/// A scan in memory: a mesh, or a cloud of points, which has no triangles. Nobody changes it once it is shown.
struct Model
{
    std::string title;                                   ///< the file's name without its folder, UTF-8
    std::vector<Point3> positions;                       ///< each once: equal corners are one
    std::vector<Point3> normals;                         ///< of unit length, one a position; of a cloud maybe none
    std::vector<std::array<std::uint32_t, 3>> triangles; ///< indices of positions, counterclockwise from outside
    std::vector<std::array<std::uint32_t, 2>> edges;     ///< each side of a triangle once, smaller index first
    Bounds bounds;

    bool isCloud() const { return triangles.empty(); }
};

} // namespace vqview
