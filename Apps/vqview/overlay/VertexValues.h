// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace vqview {

struct Model;

/// What can be told of each point of a scan.
enum class VertexValue {
    Height,    ///< y
    Distance,  ///< from the centre of the bounds
    Curvature, ///< mean normal curvature along the edges at the point; positive where the surface bulges outwards
    End
};

struct VertexValueRow
{
    VertexValue id;
    const char* name; ///< UTF-8
    const char* unit; ///< UTF-8
};

inline constexpr std::array<VertexValueRow, static_cast<std::size_t>(VertexValue::End)> kVertexValues{{
    {VertexValue::Height, "Height", "mm"},
    {VertexValue::Distance, "Distance from centre", "mm"},
    {VertexValue::Curvature, "Curvature", "1/mm"},
}};

constexpr const VertexValueRow& rowOf(VertexValue value)
{
    return kVertexValues[static_cast<std::size_t>(value)];
}

/// Makes `values` one number a position, in their order. What cannot be told is not a number: a curvature without
/// normals, or at a point without edges, as all of a cloud are.
void valuesOf(const Model& model, VertexValue value, std::vector<float>& values);

} // namespace vqview
