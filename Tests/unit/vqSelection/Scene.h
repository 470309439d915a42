// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Views whose projection is plain arithmetic, and what a shape selects in them.

#include "vqSelection/VQSelection.h"

#include <vector>

namespace vq::test {

constexpr int kSize = 256; // pixels; a power of two, so that the projection is exact

/// Looks at a square of `kSize` units along z, one unit a pixel, the origin at the lower left, depth 0 .. 1 from z = 0
/// to z = -1.
SVQGLVariables pixelView();

/// The eye at the origin looks along -z, near plane at 1, far plane at 3; at z = -1 the square view is 2 units wide.
SVQGLVariables perspectiveView();

/// Points on the screen, x and y downwards, half way between the near and the far plane of `pixelView`.
class ScreenPoints
{
public:
    ScreenPoints() = default;
    ScreenPoints(std::initializer_list<std::pair<double, double>> places)
    {
        for (const auto& [x, y] : places)
            add(x, y);
    }

    void add(double x, double y, double depth = 0.5)
    {
        m_coordinates.insert(m_coordinates.end(),
                             {static_cast<float>(x), static_cast<float>(kSize - y), static_cast<float>(-depth)});
    }
    SVQSelectionPoints points() const { return {m_coordinates.data(), m_coordinates.size() / 3}; }

private:
    std::vector<float> m_coordinates;
};

/// What becomes selected of points of which none was.
std::vector<std::uint32_t> selectedOf(const CVQSelectionShape& shape, const ScreenPoints& points,
                                      const SVQSelectionView& view = SVQSelectionView::Of(pixelView()));

std::vector<std::uint32_t> indicesOf(const CVQSelectionSet& set);

CVQSelectionSet setOf(std::size_t size, std::initializer_list<std::size_t> selected);

} // namespace vq::test
