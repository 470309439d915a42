// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace vq {

/// A null pointer is an empty text.
constexpr bool isEmptyText(const wchar_t* text)
{
    return !text || !*text;
}

/// The nearest coordinate that there is.
constexpr int toCoordinate(std::int64_t value)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

} // namespace vq
