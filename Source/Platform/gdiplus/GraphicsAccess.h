// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The way from a Graphics to its state, for its own members. Not part of the interface.

#include "Platform/gdiplus/Graphics.h"
#include "Platform/gdiplus/GraphicsState.h"
#include "Platform/gdiplus/Started.h"

namespace Gdiplus {

/// Runs the work of a call, unless there is no surface or a device context is out.
template <typename Work>
Status Graphics::withState(Work work) const
{
    return setStatus(vq::gdiplus::guarded([&]() -> Status {
        if (!m_state)
            return InvalidParameter;
        if (m_state->isBusy())
            return ObjectBusy;
        return work(*m_state);
    }));
}

/// A property, or `fallback` when the call fails.
template <typename Value, typename Reader>
Value Graphics::read(Value fallback, Reader reader) const
{
    withState([&](const vq::gdiplus::GraphicsState& state) {
        fallback = reader(state);
        return Ok;
    });
    return fallback;
}

} // namespace Gdiplus
