// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Which points of a scan lie where on the screen, by arithmetic of the tests' own: nothing of the program but the
/// matrices of its view goes in.

#include "vqview/model/Model.h"

#include <VQDraw/VQDraw.h>

#include <cstdint>
#include <functional>
#include <vector>

namespace vqview::test {

/// Points and triangles of an OBJ file of triangles; each point once, by the first line that names it.
struct ScanOfFile
{
    std::vector<Point3> points;
    std::vector<std::array<std::uint32_t, 3>> triangles;
};
ScanOfFile scanOfFile(const char* path);

/// A place on the screen, y downwards, and its window depth.
struct Place
{
    double x = 0, y = 0, depth = 0;
};
Place placeOf(const SVQGLVariables& view, const Point3& point);

/// How far within an area a place is, in pixels; negative outside.
using Area = std::function<double(double x, double y)>;
Area boxArea(CPoint corner, CPoint opposite);
Area circleArea(CPoint centre, CPoint rim);
Area polygonArea(std::vector<std::array<double, 2>> corners);
Area polygonArea(const std::vector<CPoint>& corners);
inline Area areaOf(const std::vector<CPoint>& corners)
{
    return polygonArea(corners);
}
Area bandArea(CPoint from, CPoint to, double halfWidth);

struct Found
{
    std::vector<std::uint32_t> points; ///< indices, ascending
    std::size_t atBorder = 0;          ///< nearer to it than rounding can tell
};
Found pointsIn(const Area& area, const SVQGLVariables& view, const std::vector<Point3>& points);

/// Which of all points a shape has, by the sets before.
std::vector<std::uint32_t> added(const std::vector<std::uint32_t>& before, const std::vector<std::uint32_t>& shape);
std::vector<std::uint32_t> taken(const std::vector<std::uint32_t>& before, const std::vector<std::uint32_t>& shape);
std::vector<std::uint32_t> toggled(const std::vector<std::uint32_t>& before, const std::vector<std::uint32_t>& shape);

/// The nearest surface at each pixel, in double precision.
class DepthOfSurface
{
public:
    /// Seen at the centres of pixels, moved by a part of a pixel.
    DepthOfSurface(const SVQGLVariables& view, const ScanOfFile& scan, double dx, double dy);
    /// Of the pixels around a place, that whose surface lies farthest; 1 where there is none.
    double farthestAround(double x, double y) const;

private:
    void add(const std::array<Place, 3>& corners, double dx, double dy);

    int m_width, m_height;
    std::vector<double> m_depth; // rows from the top
};

} // namespace vqview::test
