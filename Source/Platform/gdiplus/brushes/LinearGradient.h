// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/brushes/GradientShader.h"

#include <array>
#include <vector>

namespace vq::gdiplus {

/// The share of the second colour at a position.
struct BlendEntry
{
    float factor;
    float position;
};

struct ColourEntry
{
    Pixel colour;
    float position;
};

/// What a linear gradient brush is made of. Fresh values are GDI+'s.
struct LinearGradient
{
    GradientAxis axis;
    Gdiplus::RectF rectangle;
    std::array<Pixel, 2> colours;
    Gdiplus::WrapMode wrapMode = Gdiplus::WrapModeTile;
    bool isGammaCorrected = false;
    std::vector<BlendEntry> blend{{1, 1}}; ///< one entry stands for the plain way from colour to colour
    std::vector<ColourEntry> presets{};    ///< colours that are used instead, when there are any
    GradientRamp ramp{};                   ///< made of all this by `prepare`

    /// To be called after each change.
    void prepare();
};

} // namespace vq::gdiplus
