// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/Brush.h"

#include "Platform/gdiplus/Started.h"
#include "Platform/gdiplus/brushes/Shader.h"

#include <utility>

namespace Gdiplus {

Brush::Brush(BrushType type, Status status) : m_lastStatus(status), m_type(type) {}

Brush::~Brush() = default;

Brush* Brush::Clone() const
{
    setStatus(NotImplemented);
    return nullptr;
}

BrushType Brush::GetType() const
{
    return m_type;
}

Status Brush::GetLastStatus() const
{
    return std::exchange(m_lastStatus, Ok);
}

Status Brush::setStatus(Status status) const
{
    if (status != Ok)
        m_lastStatus = status;
    return status;
}

SolidBrush::SolidBrush(const Color& color)
    : Brush(BrushTypeSolidColor, vq::gdiplus::isStarted() ? Ok : GdiplusNotInitialized), m_color(color)
{
}

SolidBrush* SolidBrush::Clone() const
{
    if (!vq::gdiplus::isStarted()) {
        setStatus(GdiplusNotInitialized);
        return nullptr;
    }
    auto* clone = new SolidBrush(m_color);
    setStatus(clone ? Ok : OutOfMemory);
    return clone;
}

Status SolidBrush::GetColor(Color* color) const
{
    return setStatus(vq::gdiplus::guarded([&] {
        if (!color)
            return InvalidParameter;
        *color = m_color;
        return Ok;
    }));
}

Status SolidBrush::SetColor(const Color& color)
{
    return setStatus(vq::gdiplus::guarded([&] {
        m_color = color;
        return Ok;
    }));
}

std::optional<vq::gdiplus::Shader> SolidBrush::shader(const vq::gdiplus::ShadingSettings&) const
{
    return vq::gdiplus::SolidShader{m_color.GetValue()};
}

} // namespace Gdiplus
