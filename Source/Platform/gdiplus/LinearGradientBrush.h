// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Areas filled with colours that change along a line.

#include "Platform/gdiplus/Brush.h"
#include "Platform/gdiplus/Rect.h"

#include <memory>

namespace vq::gdiplus {
struct GradientAxis;
struct LinearGradient;
} // namespace vq::gdiplus

namespace Gdiplus {

/// The first colour stands on a line through the starting point, perpendicular to the way to the end, the second one on
/// the line through the end; positions between are 0 .. 1. Both lie in world units, and a pixel has the colour of its
/// centre. With WrapModeTile the gradient repeats: a pixel exactly at the end has the first colour again.
///
/// Colours are interpolated as if multiplied by alpha, so that a transparent end does not tint. A pixel's channels are
/// the nearest integers.
///
/// A brush whose creation failed fills nothing, and its members answer `InvalidParameter`. So does filling with a brush
/// whose place is not a number or infinite, although GDI+ lets it be created.
class VQPLATFORM_API LinearGradientBrush : public Brush
{
public:
    /// From point to point; equal points leave `OutOfMemory` in the status, as GDI+ answers.
    LinearGradientBrush(const PointF& point1, const PointF& point2, const Color& color1, const Color& color2);
    LinearGradientBrush(const Point& point1, const Point& point2, const Color& color1, const Color& color2);
    /// Across a rectangle. A diagonal gradient has the middle colour in both corners that it does not start or end in.
    /// `OutOfMemory` for a width or height of 0; a negative one turns the gradient round.
    LinearGradientBrush(const RectF& rect, const Color& color1, const Color& color2, LinearGradientMode mode);
    LinearGradientBrush(const Rect& rect, const Color& color1, const Color& color2, LinearGradientMode mode);
    /// In a direction of `angle` degrees, clockwise from the upper side, between the corners that lie first and last in
    /// it. A scalable angle is that in a square, which is then stretched to the rectangle.
    LinearGradientBrush(const RectF& rect, const Color& color1, const Color& color2, REAL angle,
                        BOOL isAngleScalable = FALSE);
    LinearGradientBrush(const Rect& rect, const Color& color1, const Color& color2, REAL angle,
                        BOOL isAngleScalable = FALSE);
    ~LinearGradientBrush() override;

    LinearGradientBrush* Clone() const override;

    /// The rectangle given at creation, or that around the two points; where they stand above or beside each other, a
    /// square between them. The whole-numbered form rounds, halves upwards.
    Status GetRectangle(RectF* rect) const;
    Status GetRectangle(Rect* rect) const;

    Status SetLinearColors(const Color& color1, const Color& color2);
    /// Writes two.
    Status GetLinearColors(Color* colors) const;

    /// Interpolates light instead of bytes, by the sRGB curve; off at first.
    Status SetGammaCorrection(BOOL useGammaCorrection);
    BOOL GetGammaCorrection() const;

    /// TileFlipX and TileFlipXY mirror every other repetition. TileFlipY repeats as Tile does: it mirrors across the
    /// gradient. Clamp and numbers outside the enumeration: `InvalidParameter`.
    Status SetWrapMode(WrapMode wrapMode);
    WrapMode GetWrapMode() const;

    /// A factor is the share of the second colour at its position. The first position is 0 and the last one 1, else
    /// `InvalidParameter`; one between that is out of order is passed over. Factors count as 0 .. 1. A single entry, of
    /// any content, stands for the plain gradient. Takes the place of `SetInterpolationColors`.
    Status SetBlend(const REAL* blendFactors, const REAL* blendPositions, INT count);
    INT GetBlendCount() const;
    /// `InsufficientBuffer` when there are more than `count`.
    Status GetBlend(REAL* blendFactors, REAL* blendPositions, INT count) const;
    /// From the first colour to the share `scale` of the second one at `focus`, and back; straight, or along the
    /// cumulated normal distribution within two standard deviations. Both numbers are 0 .. 1, else `InvalidParameter`.
    Status SetBlendTriangularShape(REAL focus, REAL scale = 1.0f);
    Status SetBlendBellShape(REAL focus, REAL scale = 1.0f);

    /// At least two colours, used instead of the linear ones and their blend. Positions as for `SetBlend`.
    Status SetInterpolationColors(const Color* presetColors, const REAL* blendPositions, INT count);
    /// 0 when none are set.
    INT GetInterpolationColorCount() const;
    /// `GenericError` when none are set, `InsufficientBuffer` when there are more than `count`.
    Status GetInterpolationColors(Color* presetColors, REAL* blendPositions, INT count) const;

private:
    using Gradient = std::unique_ptr<vq::gdiplus::LinearGradient>;

    explicit LinearGradientBrush(Gradient gradient);
    Status create(const vq::gdiplus::GradientAxis& axis, const RectF& rectangle, const Color& color1,
                  const Color& color2);
    template <typename Reader>
    Status read(Reader reader) const;
    template <typename Change>
    Status change(Change change);
    std::optional<vq::gdiplus::Shader> shader(const vq::gdiplus::ShadingSettings& settings) const override;

    Gradient m_gradient; ///< null when the creation failed
};

} // namespace Gdiplus
