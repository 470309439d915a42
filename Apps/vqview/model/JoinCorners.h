// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/model/Model.h"

namespace vqview {

/// What joining makes of positions.
struct JoinedCorners
{
    std::vector<std::uint32_t> kept;  ///< which positions stay, ascending: the first of each kind
    std::vector<std::uint32_t> place; ///< of every position its place among those that stay, or kNoIndex
};

/// Finds positions that are equal, coordinate by coordinate: 0 equals -0, and nothing else is near enough. Those with a
/// coordinate that is not finite have no place. Linear in time.
JoinedCorners joinCorners(const std::vector<Point3>& positions);

} // namespace vqview
