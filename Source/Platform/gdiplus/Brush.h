// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What areas are filled with.

#include "Platform/Export.h"
#include "Platform/gdiplus/Base.h"
#include "Platform/gdiplus/Color.h"
#include "Platform/gdiplus/Enums.h"

namespace Gdiplus {

class VQPLATFORM_API Brush : public GdiplusBase
{
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
    Color m_color;
};

} // namespace Gdiplus
