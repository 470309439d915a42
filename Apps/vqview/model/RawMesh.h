// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/model/Model.h"

#include <limits>
#include <span>

namespace vqview {

/// Indices of positions. Those that a file names and that cannot be are kNoIndex.
using Triangle = std::array<std::uint32_t, 3>;

inline constexpr std::uint32_t kNoIndex = std::numeric_limits<std::uint32_t>::max();

/// A scan as a file has it: corners may repeat, indices lead nowhere, coordinates be no numbers.
struct RawMesh
{
    std::vector<Point3> positions;
    std::vector<Point3> normals; ///< one a position, or none
    std::vector<Triangle> triangles;
};

/// An index from a file, which counts from `first`.
inline std::uint32_t indexFrom(double value, double first)
{
    const double index = value - first;
    return index >= 0 && index < kNoIndex && index == static_cast<double>(static_cast<std::uint32_t>(index))
               ? static_cast<std::uint32_t>(index)
               : kNoIndex;
}

/// A polygon as a fan around its first corner; fewer than three corners are none.
inline void appendFan(std::vector<Triangle>& triangles, std::span<const std::uint32_t> corners)
{
    for (std::size_t i = 2; i < corners.size(); ++i)
        triangles.push_back({corners[0], corners[i - 1], corners[i]});
}

} // namespace vqview
