// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

namespace vq::bench {

/// A drawn scene: straight 0xAARRGGBB, row after row.
using Picture = std::vector<std::uint32_t>;

/// What was drawn on a background, summed up over squares of a few dozen pixels. Pictures whose pixels differ but which
/// cover the same areas have nearly the same sums.
using Ink = std::vector<double>;
Ink inkOf(const Picture& picture, std::uint32_t background);

/// How far a picture of a scene lies from another: the differences of their squares to the sum of the reference. 0 is
/// the same ink in the same places, 1 as much too little or too much as there is.
double distance(const Ink& ink, const Ink& reference);

/// Straight colours from premultiplied ones.
std::uint32_t unpremultiplied(std::uint32_t pixel);

/// @return false when the file could not be written.
bool savePng(const Picture& picture, const std::filesystem::path& file);

} // namespace vq::bench
