// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/HatchBrush.h"

#include "Platform/gdiplus/Started.h"
#include "Platform/gdiplus/brushes/Shader.h"

namespace Gdiplus {

using vq::gdiplus::guarded;

HatchBrush::HatchBrush(HatchStyle hatchStyle, const Color& foreColor, const Color& backColor)
    : Brush(BrushTypeHatchFill, Ok), m_style(hatchStyle), m_foreground(foreColor), m_background(backColor)
{
    setStatus(guarded([&] { return isValid() ? Ok : InvalidParameter; }));
}

bool HatchBrush::isValid() const
{
    return HatchStyleMin <= m_style && m_style <= HatchStyleMax;
}

HatchBrush* HatchBrush::Clone() const
{
    HatchBrush* clone = nullptr;
    setStatus(guarded([&] {
        if (!isValid())
            return InvalidParameter;
        clone = new HatchBrush(m_style, m_foreground, m_background);
        return clone ? Ok : OutOfMemory;
    }));
    return clone;
}

HatchStyle HatchBrush::GetHatchStyle() const
{
    const Status status = setStatus(guarded([&] { return isValid() ? Ok : InvalidParameter; }));
    return status == Ok ? m_style : HatchStyleMin;
}

Status HatchBrush::GetForegroundColor(Color* color) const
{
    return setStatus(guarded([&] {
        if (!color || !isValid())
            return InvalidParameter;
        *color = m_foreground;
        return Ok;
    }));
}

Status HatchBrush::GetBackgroundColor(Color* color) const
{
    return setStatus(guarded([&] {
        if (!color || !isValid())
            return InvalidParameter;
        *color = m_background;
        return Ok;
    }));
}

std::optional<vq::gdiplus::Shader> HatchBrush::shader(const vq::gdiplus::ShadingSettings& settings) const
{
    if (!isValid())
        return std::nullopt;
    return vq::gdiplus::HatchShader(m_style, m_foreground.GetValue(), m_background.GetValue(), settings.originX,
                                    settings.originY);
}

} // namespace Gdiplus
