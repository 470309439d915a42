// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"

#include <limits>

namespace vq {

/// A channel in 0.0 .. 1.0 in 255ths, truncated, as files and selection shapes take it. Values outside are not limited
/// to 255: what is not a number is 0, and what an integer does not hold is the nearest that there is.
inline LONG in255ths(float channel)
{
    using Limits = std::numeric_limits<LONG>;
    constexpr float kBeyond = 2147483648.0F;
    const float scaled = channel * 255.0F;
    if (!(scaled < kBeyond)) // also what is not a number
        return scaled >= kBeyond ? Limits::max() : 0;
    return scaled <= -kBeyond ? Limits::min() : static_cast<LONG>(scaled);
}

} // namespace vq
