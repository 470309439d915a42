// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The way from a path to its points, for its own members. Not part of the interface.

#include "Platform/gdiplus/GraphicsPath.h"
#include "Platform/gdiplus/PathPoints.h"
#include "Platform/gdiplus/Started.h"

namespace Gdiplus {

/// Runs the work of a call on the points; `InvalidParameter` for a path that could not be made.
template <typename Work>
Status GraphicsPath::withPoints(Work work) const
{
    return setStatus(vq::gdiplus::guarded([&]() -> Status {
        if (!m_points)
            return InvalidParameter;
        return work(*m_points);
    }));
}

} // namespace Gdiplus
