// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/LinearGradientBrush.h"

#include "Platform/gdiplus/LinearGradientAccess.h"
#include "Platform/gdiplus/Conversions.h"
#include "Platform/gdiplus/brushes/Shader.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Gdiplus {

using vq::gdiplus::guarded;
using vq::gdiplus::LinearGradient;
using vq::gdiplus::Repetition;
using vq::gdiplus::toFloat;

namespace {

/// Halves upwards; what no INT holds becomes the nearest, and what is no number 0.
INT rounded(REAL value)
{
    const double nearest = std::floor(double{value} + 0.5);
    if (std::isnan(nearest))
        return 0;
    return static_cast<INT>(
        std::clamp<double>(nearest, std::numeric_limits<INT>::min(), std::numeric_limits<INT>::max()));
}

/// The rectangle that GDI+ gives two points.
RectF rectangleAround(const PointF& first, const PointF& last)
{
    RectF rect(first.X < last.X ? first.X : last.X, first.Y < last.Y ? first.Y : last.Y, std::abs(first.X - last.X),
               std::abs(first.Y - last.Y));
    if (rect.Width == 0) {
        rect.X -= rect.Height / 2;
        rect.Width = rect.Height;
    } else if (rect.Height == 0) {
        rect.Y -= rect.Width / 2;
        rect.Height = rect.Width;
    }
    return rect;
}

bool isMode(LinearGradientMode mode)
{
    return LinearGradientModeHorizontal <= mode && mode <= LinearGradientModeBackwardDiagonal;
}

Repetition repetitionOf(WrapMode mode)
{
    return mode == WrapModeTileFlipX || mode == WrapModeTileFlipXY ? Repetition::Mirrored : Repetition::Same;
}

} // namespace

LinearGradientBrush::LinearGradientBrush(const PointF& point1, const PointF& point2, const Color& color1,
                                         const Color& color2)
    : Brush(BrushTypeLinearGradient, Ok)
{
    setStatus(guarded([&] {
        if (point1.Equals(point2))
            return OutOfMemory;
        return create(vq::gdiplus::axisBetween(point1, point2), rectangleAround(point1, point2), color1, color2);
    }));
}

LinearGradientBrush::LinearGradientBrush(const Point& point1, const Point& point2, const Color& color1,
                                         const Color& color2)
    : LinearGradientBrush(toFloat(point1), toFloat(point2), color1, color2)
{
}

LinearGradientBrush::LinearGradientBrush(const RectF& rect, const Color& color1, const Color& color2,
                                         LinearGradientMode mode)
    : Brush(BrushTypeLinearGradient, Ok)
{
    setStatus(guarded([&] {
        if (!isMode(mode))
            return InvalidParameter;
        return create(vq::gdiplus::axisAcross(rect, vq::gdiplus::directionOf(mode)), rect, color1, color2);
    }));
}

LinearGradientBrush::LinearGradientBrush(const Rect& rect, const Color& color1, const Color& color2,
                                         LinearGradientMode mode)
    : LinearGradientBrush(toFloat(rect), color1, color2, mode)
{
}

LinearGradientBrush::LinearGradientBrush(const RectF& rect, const Color& color1, const Color& color2, REAL angle,
                                         BOOL isAngleScalable)
    : Brush(BrushTypeLinearGradient, Ok)
{
    setStatus(guarded([&] {
        const auto direction = vq::gdiplus::directionOf(double{angle}, isAngleScalable != FALSE);
        return create(vq::gdiplus::axisAcross(rect, direction), rect, color1, color2);
    }));
}

LinearGradientBrush::LinearGradientBrush(const Rect& rect, const Color& color1, const Color& color2, REAL angle,
                                         BOOL isAngleScalable)
    : LinearGradientBrush(toFloat(rect), color1, color2, angle, isAngleScalable)
{
}

LinearGradientBrush::LinearGradientBrush(Gradient gradient)
    : Brush(BrushTypeLinearGradient, Ok), m_gradient(std::move(gradient))
{
}

LinearGradientBrush::~LinearGradientBrush() = default;

Status LinearGradientBrush::create(const vq::gdiplus::GradientAxis& axis, const RectF& rectangle, const Color& color1,
                                   const Color& color2)
{
    if (rectangle.Width == 0 || rectangle.Height == 0)
        return OutOfMemory;
    Gradient gradient(new LinearGradient{axis, rectangle, {color1.GetValue(), color2.GetValue()}});
    gradient->prepare();
    m_gradient = std::move(gradient);
    return Ok;
}

LinearGradientBrush* LinearGradientBrush::Clone() const
{
    LinearGradientBrush* clone = nullptr;
    read([&](const LinearGradient& gradient) {
        clone = new LinearGradientBrush(std::make_unique<LinearGradient>(gradient));
        return clone ? Ok : OutOfMemory;
    });
    return clone;
}

Status LinearGradientBrush::GetRectangle(RectF* rect) const
{
    return read([&](const LinearGradient& gradient) {
        if (!rect)
            return InvalidParameter;
        *rect = gradient.rectangle;
        return Ok;
    });
}

Status LinearGradientBrush::GetRectangle(Rect* rect) const
{
    return read([&](const LinearGradient& gradient) {
        if (!rect)
            return InvalidParameter;
        const RectF& own = gradient.rectangle;
        *rect = Rect(rounded(own.X), rounded(own.Y), rounded(own.Width), rounded(own.Height));
        return Ok;
    });
}

Status LinearGradientBrush::SetLinearColors(const Color& color1, const Color& color2)
{
    return change([&](LinearGradient& gradient) {
        gradient.colours = {color1.GetValue(), color2.GetValue()};
        return Ok;
    });
}

Status LinearGradientBrush::GetLinearColors(Color* colors) const
{
    return read([&](const LinearGradient& gradient) {
        if (!colors)
            return InvalidParameter;
        colors[0].SetValue(gradient.colours[0]);
        colors[1].SetValue(gradient.colours[1]);
        return Ok;
    });
}

Status LinearGradientBrush::SetGammaCorrection(BOOL useGammaCorrection)
{
    return change([&](LinearGradient& gradient) {
        gradient.isGammaCorrected = useGammaCorrection != FALSE;
        return Ok;
    });
}

BOOL LinearGradientBrush::GetGammaCorrection() const
{
    BOOL isCorrected = FALSE;
    read([&](const LinearGradient& gradient) {
        isCorrected = gradient.isGammaCorrected ? TRUE : FALSE;
        return Ok;
    });
    return isCorrected;
}

Status LinearGradientBrush::SetWrapMode(WrapMode wrapMode)
{
    return change([&](LinearGradient& gradient) {
        if (wrapMode < WrapModeTile || wrapMode > WrapModeTileFlipXY)
            return InvalidParameter;
        gradient.wrapMode = wrapMode;
        return Ok;
    });
}

WrapMode LinearGradientBrush::GetWrapMode() const
{
    WrapMode mode = WrapModeTile;
    read([&](const LinearGradient& gradient) {
        mode = gradient.wrapMode;
        return Ok;
    });
    return mode;
}

std::optional<vq::gdiplus::Shader> LinearGradientBrush::shader(const vq::gdiplus::ShadingSettings& settings) const
{
    if (!m_gradient)
        return std::nullopt;
    const auto axis = vq::gdiplus::onPixels(m_gradient->axis, settings);
    if (!axis.isUsable())
        return std::nullopt;
    return vq::gdiplus::GradientShader(axis, m_gradient->ramp, repetitionOf(m_gradient->wrapMode));
}

} // namespace Gdiplus
