// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vq::bench {

inline constexpr int kSize = 512; ///< of the pictures, in pixels, both ways
inline constexpr int kCalls = 1000;

/// What one call of each kind draws, ten pixels from a place: times of `kCalls` in milliseconds are those of one call
/// in microseconds.
struct Call
{
    int x, y;
    int toX, toY;       ///< of a line of ten pixels
    std::uint32_t argb; ///< straight alpha
};
using Calls = std::vector<Call>;

/// Adds the benchmarks of a library.
void addOurs(const Calls& calls, const std::string& kind);
void addCairo(const Calls& calls, const std::string& kind);
void addQt(const Calls& calls, const std::string& kind);

} // namespace vq::bench
