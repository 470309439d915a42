// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What lines are drawn with.

#include "Platform/gdiplus/Brush.h"

#include <memory>
#include <vector>

namespace vq::gdiplus {
struct StrokeStyle;
}

namespace Gdiplus {

/// A width in world units, one pixel at least, with a colour or a brush. A fresh pen has flat ends, mitred corners up
/// to ten widths, no dashes, and its line in the middle.
class VQPLATFORM_API Pen : public GdiplusBase
{
    friend class Graphics;
    friend class GraphicsPath;

public:
    Pen(const Color& color, REAL width = 1.0f);
    /// `InvalidParameter` for null.
    Pen(const Brush* brush, REAL width = 1.0f);
    ~Pen();
    Pen(const Pen&) = delete;
    Pen& operator=(const Pen&) = delete;

    /// A copy that the caller deletes; null when it fails.
    Pen* Clone() const;

    Status SetWidth(REAL width);
    REAL GetWidth() const;

    Status SetLineCap(LineCap startCap, LineCap endCap, DashCap dashCap);
    Status SetStartCap(LineCap startCap);
    Status SetEndCap(LineCap endCap);
    /// A dash keeps its length, caps included.
    Status SetDashCap(DashCap dashCap);
    LineCap GetStartCap() const;
    LineCap GetEndCap() const;
    DashCap GetDashCap() const;

    Status SetLineJoin(LineJoin lineJoin);
    LineJoin GetLineJoin() const;
    /// The longest corner, from inside to outside, in widths; below 1 it is 1.
    Status SetMiterLimit(REAL miterLimit);
    REAL GetMiterLimit() const;

    /// Inset draws closed figures inside their edges; it matters from a width of 2 on.
    Status SetAlignment(PenAlignment penAlignment);
    PenAlignment GetAlignment() const;

    PenType GetPenType() const;
    Status SetColor(const Color& color);
    /// `InvalidParameter` when the pen has a brush that is not of one colour.
    Status GetColor(Color* color) const;
    Status SetBrush(const Brush* brush);
    /// A brush that the caller deletes; null when it fails.
    Brush* GetBrush() const;

    /// Custom without a pattern is one width on, one off.
    Status SetDashStyle(DashStyle dashStyle);
    DashStyle GetDashStyle() const;
    /// Lengths in widths, or in units for a pen below 1, on and off in turn, above 0. The style becomes Custom. Without
    /// entries `OutOfMemory`, as GDI+ answers.
    Status SetDashPattern(const REAL* dashArray, INT count);
    /// 0 for the styles that are not Custom.
    INT GetDashPatternCount() const;
    Status GetDashPattern(REAL* dashArray, INT count) const;
    /// In widths.
    Status SetDashOffset(REAL dashOffset);
    REAL GetDashOffset() const;

    /// The last failure since this was asked before; asking forgets it.
    Status GetLastStatus() const;

private:
    Status setStatus(Status status) const;
    /// Runs the work of a call; `InvalidParameter` for a pen that could not be made.
    template <typename Work>
    Status whenMade(Work work) const;
    template <typename Value>
    Status set(Value& setting, Value value);
    template <typename Value>
    Value get(Value setting) const;

    std::optional<vq::gdiplus::Shader> shader(const vq::gdiplus::ShadingSettings& settings) const;
    /// Lends the pattern. `scale` is pixels per world unit; a thinner pen is `least` pixels wide.
    vq::gdiplus::StrokeStyle style(double scale, double least = 1) const;
    bool drawsInside(double scale) const;

    bool m_isMade = false;
    Color m_color;
    std::unique_ptr<Brush> m_brush; ///< none: the colour
    REAL m_width;
    LineCap m_startCap = LineCapFlat;
    LineCap m_endCap = LineCapFlat;
    DashCap m_dashCap = DashCapFlat;
    LineJoin m_lineJoin = LineJoinMiter;
    REAL m_miterLimit = 10;
    PenAlignment m_alignment = PenAlignmentCenter;
    DashStyle m_dashStyle = DashStyleSolid;
    std::vector<REAL> m_dashPattern; ///< of Custom
    REAL m_dashOffset = 0;
    mutable Status m_lastStatus;
};

} // namespace Gdiplus
