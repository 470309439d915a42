// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What areas are filled with.

#include "Platform/Export.h"
#include "Platform/gdiplus/Base.h"
#include "Platform/gdiplus/Color.h"
#include "Platform/gdiplus/Enums.h"

#include <optional>

namespace vq::gdiplus {
class Shader;
struct ShadingSettings;
} // namespace vq::gdiplus

namespace Gdiplus {

class VQPLATFORM_API Brush : public GdiplusBase
{
    friend class Graphics;
    friend class Pen;

public:
    virtual ~Brush();
    Brush(const Brush&) = delete;
    Brush& operator=(const Brush&) = delete;

    /// A copy that the caller deletes; null when it fails.
    virtual Brush* Clone() const;
    BrushType GetType() const;

    /// The last failure since this was asked before; asking forgets it.
    Status GetLastStatus() const;

protected:
    Brush(BrushType type, Status status);
    Status setStatus(Status status) const;

    mutable Status m_lastStatus;

private:
    /// The brush on a surface; none when there is nothing to fill with, as after a creation that failed.
    virtual std::optional<vq::gdiplus::Shader> shader(const vq::gdiplus::ShadingSettings& settings) const = 0;

    BrushType m_type;
};

class VQPLATFORM_API SolidBrush : public Brush
{
public:
    SolidBrush(const Color& color);

    SolidBrush* Clone() const override;
    Status GetColor(Color* color) const;
    Status SetColor(const Color& color);

private:
    std::optional<vq::gdiplus::Shader> shader(const vq::gdiplus::ShadingSettings& settings) const override;

    Color m_color;
};

} // namespace Gdiplus
