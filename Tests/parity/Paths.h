// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The points of a path, in forms that a test can write down.

#include "Platform/Platform.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <vector>

namespace vq::test {

constexpr int kStart = 0;
constexpr int kLine = 1;
constexpr int kBezier = 3;
constexpr int kClose = 0x80;

/// One point of a path and what it is.
struct PathPoint
{
    Gdiplus::REAL x = 0;
    Gdiplus::REAL y = 0;
    int type = 0;

    friend void PrintTo(const PathPoint& point, std::ostream* out)
    {
        *out << '(' << point.x << ", " << point.y << ", " << point.type << ')';
    }
};
using PathPoints = std::vector<PathPoint>;

inline PathPoints pointsOf(const Gdiplus::GraphicsPath& path)
{
    const auto count = static_cast<std::size_t>(path.GetPointCount());
    std::vector<Gdiplus::PointF> points(count);
    std::vector<BYTE> types(count);
    PathPoints result;
    if (count == 0)
        return result;
    EXPECT_EQ(path.GetPathPoints(points.data(), static_cast<INT>(count)), Gdiplus::Ok);
    EXPECT_EQ(path.GetPathTypes(types.data(), static_cast<INT>(count)), Gdiplus::Ok);
    for (std::size_t i = 0; i < count; ++i)
        result.push_back({points[i].X, points[i].Y, types[i]});
    return result;
}

inline bool isNear(const PathPoint& point, const PathPoint& expected, double tolerance)
{
    return std::abs(point.x - expected.x) <= tolerance && std::abs(point.y - expected.y) <= tolerance;
}

/// The points are these, each coordinate within the tolerance.
inline void expectPoints(const Gdiplus::GraphicsPath& path, const PathPoints& expected, double tolerance = 1e-3)
{
    const PathPoints points = pointsOf(path);
    ASSERT_EQ(points.size(), expected.size()) << testing::PrintToString(points);
    for (std::size_t i = 0; i < points.size(); ++i) {
        EXPECT_TRUE(isNear(points[i], expected[i], tolerance))
            << i << ": " << testing::PrintToString(points[i]) << " instead of " << testing::PrintToString(expected[i]);
        EXPECT_EQ(points[i].type, expected[i].type) << i;
    }
}

/// The path cut into its figures.
inline std::vector<PathPoints> figuresOf(const Gdiplus::GraphicsPath& path)
{
    std::vector<PathPoints> figures;
    for (const PathPoint& point : pointsOf(path)) {
        if (point.type == kStart)
            figures.emplace_back();
        figures.back().push_back(point);
    }
    return figures;
}

/// The smallest rectangle around points.
struct Extent
{
    Gdiplus::REAL left, top, right, bottom;

    bool isNear(const Extent& other, double tolerance) const
    {
        return std::abs(left - other.left) <= tolerance && std::abs(top - other.top) <= tolerance &&
               std::abs(right - other.right) <= tolerance && std::abs(bottom - other.bottom) <= tolerance;
    }
    friend void PrintTo(const Extent& extent, std::ostream* out)
    {
        *out << extent.left << " .. " << extent.right << " by " << extent.top << " .. " << extent.bottom;
    }
};

inline Extent extentOf(const PathPoints& points)
{
    Extent extent{points.at(0).x, points.at(0).y, points.at(0).x, points.at(0).y};
    for (const PathPoint& point : points)
        extent = {std::min(extent.left, point.x), std::min(extent.top, point.y), std::max(extent.right, point.x),
                  std::max(extent.bottom, point.y)};
    return extent;
}

} // namespace vq::test
