// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"

namespace vq {

/// High compositing quality for as long as it lives, then the default one.
class HighQuality
{
public:
    explicit HighQuality(Gdiplus::Graphics& graphics) : m_graphics(graphics)
    {
        m_graphics.SetCompositingQuality(Gdiplus::CompositingQualityHighQuality);
    }
    ~HighQuality() { m_graphics.SetCompositingQuality(Gdiplus::CompositingQualityDefault); }
    HighQuality(const HighQuality&) = delete;
    HighQuality& operator=(const HighQuality&) = delete;

private:
    Gdiplus::Graphics& m_graphics;
};

/// Replaces pixels for as long as it lives, then composites.
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
