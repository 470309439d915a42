// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// A camera's matrices, looked through by GLU.

#include "vqview/view/Camera.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace vqview::test {

/// In pixels from the upper left corner, y downwards; the depth is that of the depth buffer.
struct Seen
{
    double x = 0, y = 0, depth = 0;
};

inline Seen project(const Camera& camera, double x, double y, double z)
{
    const SVQGLVariables view = camera.variables();
    Seen seen;
    EXPECT_EQ(
        gluProject(x, y, z, view.m_dModelView, view.m_dProjection, view.m_iViewport, &seen.x, &seen.y, &seen.depth),
        GL_TRUE);
    seen.y = view.m_iViewport[3] - seen.y;
    return seen;
}

inline Seen project(const Camera& camera, const Point3& point)
{
    return project(camera, point.x, point.y, point.z);
}

/// The point of the scene that is seen there.
inline std::array<double, 3> unproject(const Camera& camera, const Seen& seen)
{
    const SVQGLVariables view = camera.variables();
    std::array<double, 3> point{};
    EXPECT_EQ(gluUnProject(seen.x, view.m_iViewport[3] - seen.y, seen.depth, view.m_dModelView, view.m_dProjection,
                           view.m_iViewport, &point[0], &point[1], &point[2]),
              GL_TRUE);
    return point;
}

inline std::array<Point3, 8> cornersOf(const Bounds& bounds)
{
    std::array<Point3, 8> corners;
    for (int corner = 0; corner < 8; ++corner)
        corners[static_cast<std::size_t>(corner)] = {(corner & 1 ? bounds.most : bounds.least).x,
                                                     (corner & 2 ? bounds.most : bounds.least).y,
                                                     (corner & 4 ? bounds.most : bounds.least).z};
    return corners;
}

/// How far out a point is, 0 in the middle of the window .. 1 at an edge of it.
inline double reach(const Camera& camera, const Point3& point)
{
    const SVQGLVariables view = camera.variables();
    const Seen seen = project(camera, point);
    return std::max(std::fabs(2 * seen.x / view.m_iViewport[2] - 1), std::fabs(2 * seen.y / view.m_iViewport[3] - 1));
}

inline bool isFinite(const SVQGLVariables& view)
{
    const auto finite = [](double number) { return std::isfinite(number) && std::fabs(number) < 1e38; };
    return std::ranges::all_of(view.m_dModelView, finite) && std::ranges::all_of(view.m_dProjection, finite);
}

constexpr Bounds kBox{{-1, 2, -3}, {5, 4, 7}};
constexpr Point3 kBoxCentre{2, 3, 2};

} // namespace vqview::test
