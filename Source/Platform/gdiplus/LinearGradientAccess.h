// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The way from a LinearGradientBrush to its gradient, for its own members. Not part of the interface.

#include "Platform/gdiplus/LinearGradientBrush.h"
#include "Platform/gdiplus/Started.h"
#include "Platform/gdiplus/brushes/LinearGradient.h"

#include <utility>

namespace Gdiplus {

template <typename Reader>
Status LinearGradientBrush::read(Reader reader) const
{
    return setStatus(vq::gdiplus::guarded([&]() -> Status {
        if (!m_gradient)
            return InvalidParameter;
        return reader(std::as_const(*m_gradient));
    }));
}

/// Works on a copy, which takes the gradient's place when all went well.
template <typename Change>
Status LinearGradientBrush::change(Change change)
{
    return read([&](const vq::gdiplus::LinearGradient& gradient) {
        auto changed = std::make_unique<vq::gdiplus::LinearGradient>(gradient);
        const Status status = change(*changed);
        if (status != Ok)
            return status;
        changed->prepare();
        m_gradient = std::move(changed);
        return Ok;
    });
}

} // namespace Gdiplus
