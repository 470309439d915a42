// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>

namespace vq {

/// Whether an image may have this size: its pixel count and the bytes of a row fit 31 bits, which GDI+ counts them in.
inline constexpr bool isRepresentable(std::int64_t width, std::int64_t height)
{
    constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
    return width * height <= kMost && width * 4 <= kMost;
}

} // namespace vq
