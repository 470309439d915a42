// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Areas filled with a small pattern in two colours.

#include "Platform/gdiplus/Brush.h"

namespace Gdiplus {

/// The pattern stands still on the surface: it starts at the rendering origin of the Graphics, not at the shape, and is
/// not scaled. The styles ForwardDiagonal, BackwardDiagonal and DiagonalCross have smoothed lines, whatever the
/// smoothing mode.
class VQPLATFORM_API HatchBrush : public Brush
{
public:
    /// A style outside the enumeration leaves `InvalidParameter` in the status; such a brush fills nothing and its
    /// members answer the same.
    HatchBrush(HatchStyle hatchStyle, const Color& foreColor, const Color& backColor = Color());

    HatchBrush* Clone() const override;
    HatchStyle GetHatchStyle() const;
    Status GetForegroundColor(Color* color) const;
    Status GetBackgroundColor(Color* color) const;

private:
    std::optional<vq::gdiplus::Shader> shader(const vq::gdiplus::ShadingSettings& settings) const override;
    bool isValid() const;

    HatchStyle m_style;
    Color m_foreground;
    Color m_background;
};

} // namespace Gdiplus
