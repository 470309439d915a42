// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/Rect.h"

namespace vq::gdiplus {

inline Gdiplus::PointF toFloat(const Gdiplus::PointF& point)
{
    return point;
}

inline Gdiplus::PointF toFloat(const Gdiplus::Point& point)
{
    return Gdiplus::PointF(static_cast<Gdiplus::REAL>(point.X), static_cast<Gdiplus::REAL>(point.Y));
}

inline Gdiplus::RectF toFloat(const Gdiplus::RectF& rect)
{
    return rect;
}

inline Gdiplus::RectF toFloat(const Gdiplus::Rect& rect)
{
    return Gdiplus::RectF(static_cast<Gdiplus::REAL>(rect.X), static_cast<Gdiplus::REAL>(rect.Y),
                          static_cast<Gdiplus::REAL>(rect.Width), static_cast<Gdiplus::REAL>(rect.Height));
}

} // namespace vq::gdiplus
