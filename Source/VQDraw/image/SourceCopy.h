// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"

namespace vq {

/// What is drawn replaces pixels, alpha included, for as long as this lives; afterwards it is composited.
class SourceCopy
{
public:
    explicit SourceCopy(Gdiplus::Graphics& graphics) : m_graphics(graphics)
    {
        m_graphics.SetCompositingMode(Gdiplus::CompositingModeSourceCopy);
    }
    ~SourceCopy() { m_graphics.SetCompositingMode(Gdiplus::CompositingModeSourceOver); }
    SourceCopy(const SourceCopy&) = delete;
    SourceCopy& operator=(const SourceCopy&) = delete;

private:
    Gdiplus::Graphics& m_graphics;
};

} // namespace vq
