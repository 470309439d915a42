// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <vector>

namespace vq::bench {

inline constexpr int kWidth = 1920;
inline constexpr int kHeight = 1080;
inline constexpr int kVertices = 100000;

struct Vertex
{
    int x, y;
};
using Lasso = std::vector<Vertex>; ///< where a mouse went within the picture, a few pixels at a time

/// What a selection is drawn with: straight alpha.
inline constexpr std::uint32_t kColour = 0xC8EE2438;

/// Adds the benchmarks of a library: every side of the lasso as a line of its own with a square of 4 pixels around both
/// its ends, as `CVQDragPolygon` does it.
void addCairo(const Lasso& lasso);
void addQt(const Lasso& lasso);

inline std::string nameOfDrawing(bool smooth, const std::string& who)
{
    return (smooth ? "Draw into an image, smooth/" : "Draw into an image, hard/") + who;
}

} // namespace vq::bench
