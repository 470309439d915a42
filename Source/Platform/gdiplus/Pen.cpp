// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/Pen.h"

#include "Platform/gdiplus/Started.h"
#include "Platform/gdiplus/brushes/Shader.h"
#include "Platform/gdiplus/raster/StrokeStyle.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace Gdiplus {

using vq::gdiplus::Corner;
using vq::gdiplus::DashPattern;
using vq::gdiplus::guarded;
using vq::gdiplus::LineEnd;
using vq::gdiplus::StrokeStyle;

namespace {

constexpr std::array kDash{3.0f, 1.0f};
constexpr std::array kDot{1.0f, 1.0f};
constexpr std::array kDashDot{3.0f, 1.0f, 1.0f, 1.0f};
constexpr std::array kDashDotDot{3.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f};

/// In the order of DashStyle.
constexpr std::array<std::span<const float>, 5> kPatterns{std::span<const float>{}, kDash, kDot, kDashDot, kDashDotDot};

LineEnd endOf(LineCap cap)
{
    switch (cap) {
    case LineCapSquare:
        return LineEnd::Square;
    case LineCapRound:
        return LineEnd::Round;
    case LineCapTriangle:
        return LineEnd::Triangle;
    case LineCapNoAnchor:
        return LineEnd::NoAnchor;
    case LineCapSquareAnchor:
        return LineEnd::SquareAnchor;
    case LineCapRoundAnchor:
        return LineEnd::RoundAnchor;
    case LineCapDiamondAnchor:
        return LineEnd::DiamondAnchor;
    case LineCapArrowAnchor:
        return LineEnd::ArrowAnchor;
    default:
        return LineEnd::Flat;
    }
}

LineEnd endOf(DashCap cap)
{
    switch (cap) {
    case DashCapRound:
        return LineEnd::Round;
    case DashCapTriangle:
        return LineEnd::Triangle;
    default:
        return LineEnd::Flat;
    }
}

Corner cornerOf(LineJoin join)
{
    switch (join) {
    case LineJoinBevel:
        return Corner::Bevel;
    case LineJoinRound:
        return Corner::Round;
    case LineJoinMiterClipped:
        return Corner::MiterOrBevel;
    default:
        return Corner::Miter;
    }
}

} // namespace

Pen::Pen(const Color& color, REAL width)
    : m_isMade(vq::gdiplus::isStarted()), m_color(color), m_width(width),
      m_lastStatus(m_isMade ? Ok : GdiplusNotInitialized)
{
}

Pen::Pen(const Brush* brush, REAL width) : m_isMade(vq::gdiplus::isStarted()), m_width(width), m_lastStatus(Ok)
{
    m_isMade = SetBrush(brush) == Ok;
}

Pen::~Pen() = default;

Pen* Pen::Clone() const
{
    Pen* clone = nullptr;
    whenMade([&] {
        auto copy = std::unique_ptr<Pen>(new Pen(m_color, m_width));
        if (!copy)
            return OutOfMemory;
        if (m_brush) {
            const Status status = copy->SetBrush(m_brush.get());
            if (status != Ok)
                return status;
        }
        copy->m_startCap = m_startCap;
        copy->m_endCap = m_endCap;
        copy->m_dashCap = m_dashCap;
        copy->m_lineJoin = m_lineJoin;
        copy->m_miterLimit = m_miterLimit;
        copy->m_alignment = m_alignment;
        copy->m_dashStyle = m_dashStyle;
        copy->m_dashPattern = m_dashPattern;
        copy->m_dashOffset = m_dashOffset;
        clone = copy.release();
        return Ok;
    });
    return clone;
}

Status Pen::GetLastStatus() const
{
    return std::exchange(m_lastStatus, Ok);
}

Status Pen::setStatus(Status status) const
{
    if (status != Ok)
        m_lastStatus = status;
    return status;
}

template <typename Work>
Status Pen::whenMade(Work work) const
{
    return setStatus(guarded([&]() -> Status {
        if (!m_isMade)
            return InvalidParameter;
        return work();
    }));
}

template <typename Value>
Status Pen::set(Value& setting, Value value)
{
    return whenMade([&] {
        setting = value;
        return Ok;
    });
}

template <typename Value>
Value Pen::get(Value setting) const
{
    return whenMade([] { return Ok; }) == Ok ? setting : Value{};
}

Status Pen::SetWidth(REAL width)
{
    return set(m_width, width);
}

REAL Pen::GetWidth() const
{
    return get(m_width);
}

Status Pen::SetLineCap(LineCap startCap, LineCap endCap, DashCap dashCap)
{
    set(m_startCap, startCap);
    set(m_endCap, endCap);
    return set(m_dashCap, dashCap);
}

Status Pen::SetStartCap(LineCap startCap)
{
    return set(m_startCap, startCap);
}

Status Pen::SetEndCap(LineCap endCap)
{
    return set(m_endCap, endCap);
}

Status Pen::SetDashCap(DashCap dashCap)
{
    return set(m_dashCap, dashCap);
}

LineCap Pen::GetStartCap() const
{
    return get(m_startCap);
}

LineCap Pen::GetEndCap() const
{
    return get(m_endCap);
}

DashCap Pen::GetDashCap() const
{
    return get(m_dashCap);
}

Status Pen::SetLineJoin(LineJoin lineJoin)
{
    return set(m_lineJoin, lineJoin);
}

LineJoin Pen::GetLineJoin() const
{
    return get(m_lineJoin);
}

Status Pen::SetMiterLimit(REAL miterLimit)
{
    return set(m_miterLimit, std::max(miterLimit, 1.0f));
}

REAL Pen::GetMiterLimit() const
{
    return get(m_miterLimit);
}

Status Pen::SetAlignment(PenAlignment penAlignment)
{
    return set(m_alignment, penAlignment);
}

PenAlignment Pen::GetAlignment() const
{
    return get(m_alignment);
}

PenType Pen::GetPenType() const
{
    return static_cast<PenType>(m_brush ? m_brush->GetType() : BrushTypeSolidColor);
}

Status Pen::SetColor(const Color& color)
{
    return whenMade([&] {
        m_color = color;
        m_brush.reset();
        return Ok;
    });
}

Status Pen::GetColor(Color* color) const
{
    return whenMade([&] {
        if (!color || m_brush)
            return InvalidParameter;
        *color = m_color;
        return Ok;
    });
}

Status Pen::SetBrush(const Brush* brush)
{
    return whenMade([&] {
        if (!brush)
            return InvalidParameter;
        if (brush->GetType() == BrushTypeSolidColor)
            return static_cast<const SolidBrush*>(brush)->GetColor(&m_color) == Ok ? (m_brush.reset(), Ok)
                                                                                   : GenericError;
        std::unique_ptr<Brush> clone(brush->Clone());
        if (!clone)
            return OutOfMemory;
        m_brush = std::move(clone);
        return Ok;
    });
}

Brush* Pen::GetBrush() const
{
    Brush* brush = nullptr;
    whenMade([&] {
        brush = m_brush ? m_brush->Clone() : new SolidBrush(m_color);
        return brush ? Ok : OutOfMemory;
    });
    return brush;
}

Status Pen::SetDashStyle(DashStyle dashStyle)
{
    return whenMade([&] {
        if (dashStyle < DashStyleSolid || dashStyle > DashStyleCustom)
            return InvalidParameter;
        if (dashStyle != DashStyleCustom)
            m_dashPattern.clear();
        else if (m_dashPattern.empty())
            m_dashPattern.assign(1, 1.0f);
        m_dashStyle = dashStyle;
        return Ok;
    });
}

DashStyle Pen::GetDashStyle() const
{
    return get(m_dashStyle);
}

Status Pen::SetDashPattern(const REAL* dashArray, INT count)
{
    return whenMade([&] {
        if (!dashArray)
            return InvalidParameter;
        if (count <= 0)
            return OutOfMemory;
        const std::span dashes(dashArray, static_cast<std::size_t>(count));
        if (!std::ranges::all_of(dashes, [](REAL length) { return length > 0; }))
            return InvalidParameter;
        m_dashPattern.assign(dashes.begin(), dashes.end());
        m_dashStyle = DashStyleCustom;
        return Ok;
    });
}

INT Pen::GetDashPatternCount() const
{
    return get(static_cast<INT>(m_dashPattern.size()));
}

Status Pen::GetDashPattern(REAL* dashArray, INT count) const
{
    return whenMade([&] {
        if (!dashArray || count <= 0 || static_cast<std::size_t>(count) > m_dashPattern.size())
            return InvalidParameter;
        std::copy_n(m_dashPattern.begin(), count, dashArray);
        return Ok;
    });
}

Status Pen::SetDashOffset(REAL dashOffset)
{
    return set(m_dashOffset, dashOffset);
}

REAL Pen::GetDashOffset() const
{
    return get(m_dashOffset);
}

std::optional<vq::gdiplus::Shader> Pen::shader(const vq::gdiplus::ShadingSettings& settings) const
{
    if (!m_isMade)
        return std::nullopt;
    if (m_brush)
        return m_brush->shader(settings);
    return vq::gdiplus::SolidShader{m_color.GetValue()};
}

StrokeStyle Pen::style(double scale, double least) const
{
    const double width = std::isfinite(m_width) ? std::max(std::abs(m_width) * scale, least) : 1.0;
    const auto lengths = m_dashStyle == DashStyleCustom ? std::span<const float>(m_dashPattern)
                                                        : kPatterns[static_cast<std::size_t>(m_dashStyle)];
    const double offset = std::isfinite(m_dashOffset) ? m_dashOffset : 0;
    StrokeStyle style;
    style.width = width;
    style.start = endOf(m_startCap);
    style.end = endOf(m_endCap);
    style.corner = cornerOf(m_lineJoin);
    style.miterLimit = std::isfinite(m_miterLimit) ? m_miterLimit : 1;
    style.dashes = DashPattern(lengths, offset, std::max(width, 1.0));
    style.dashEnd = endOf(m_dashCap);
    return style;
}

bool Pen::drawsInside(double scale) const
{
    return m_alignment == PenAlignmentInset && m_width * scale >= 2;
}

} // namespace Gdiplus
