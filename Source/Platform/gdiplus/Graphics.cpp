// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/Graphics.h"

#include "Platform/gdiplus/GraphicsAccess.h"
#include "Platform/gdiplus/ImageAccess.h"

#include <cmath>
#include <utility>

namespace Gdiplus {

using vq::gdiplus::GraphicsState;
using vq::gdiplus::guarded;

namespace {

template <typename Value>
Status setIf(bool isValid, Value& setting, Value value)
{
    if (!isValid)
        return InvalidParameter;
    setting = value;
    return Ok;
}

template <typename Value>
bool isBetween(Value low, Value value, Value high)
{
    return low <= value && value <= high;
}

} // namespace

Graphics::Graphics(Image* image) : m_lastStatus(Ok)
{
    m_lastStatus = guarded([&] {
        if (!image || !image->m_pixels)
            return InvalidParameter;
        if (IsIndexedPixelFormat(image->m_pixels->format))
            return OutOfMemory;
        m_state = std::make_unique<GraphicsState>(image->m_pixels);
        return Ok;
    });
}

Graphics::Graphics(HDC hdc) : m_lastStatus(Ok)
{
    m_lastStatus = guarded([&] {
        const DWORD kind = GetObjectType(hdc);
        if (kind != OBJ_DC && kind != OBJ_MEMDC)
            return OutOfMemory;
        m_state = std::make_unique<GraphicsState>(hdc);
        return Ok;
    });
}

Graphics::~Graphics() = default;

Graphics* Graphics::FromImage(Image* image)
{
    return new Graphics(image);
}

Graphics* Graphics::FromHDC(HDC hdc)
{
    return new Graphics(hdc);
}

VOID Graphics::Flush(FlushIntention)
{
    withState([](const GraphicsState&) { return Ok; });
}

HDC Graphics::GetHDC()
{
    HDC context = nullptr;
    withState([&](GraphicsState& state) {
        context = state.lend();
        return context ? Ok : OutOfMemory;
    });
    return context;
}

VOID Graphics::ReleaseHDC(HDC hdc)
{
    setStatus(guarded([&] { return m_state ? m_state->takeBack(hdc) : InvalidParameter; }));
}

Status Graphics::SetRenderingOrigin(INT x, INT y)
{
    return withState([&](GraphicsState& state) {
        state.settings.renderingOrigin = Point(x, y);
        return Ok;
    });
}

Status Graphics::GetRenderingOrigin(INT* x, INT* y) const
{
    return withState([&](const GraphicsState& state) {
        if (!x || !y)
            return InvalidParameter;
        *x = state.settings.renderingOrigin.X;
        *y = state.settings.renderingOrigin.Y;
        return Ok;
    });
}

Status Graphics::SetCompositingMode(CompositingMode compositingMode)
{
    return withState([&](GraphicsState& state) {
        return setIf(isBetween(CompositingModeSourceOver, compositingMode, CompositingModeSourceCopy),
                     state.settings.compositingMode, compositingMode);
    });
}

CompositingMode Graphics::GetCompositingMode() const
{
    return read(CompositingModeSourceOver, [](const auto& state) { return state.settings.compositingMode; });
}

Status Graphics::SetCompositingQuality(CompositingQuality compositingQuality)
{
    return withState([&](GraphicsState& state) {
        // GDI+ takes the value called Invalid.
        return setIf(isBetween(CompositingQualityInvalid, compositingQuality, CompositingQualityAssumeLinear),
                     state.settings.compositingQuality, compositingQuality);
    });
}

CompositingQuality Graphics::GetCompositingQuality() const
{
    return read(CompositingQualityDefault, [](const auto& state) { return state.settings.compositingQuality; });
}

Status Graphics::SetSmoothingMode(SmoothingMode smoothingMode)
{
    return withState([&](GraphicsState& state) {
        if (smoothingMode == SmoothingModeDefault || smoothingMode == SmoothingModeHighSpeed)
            smoothingMode = SmoothingModeNone;
        if (smoothingMode == SmoothingModeHighQuality)
            smoothingMode = SmoothingModeAntiAlias;
        return setIf(isBetween(SmoothingModeNone, smoothingMode, SmoothingModeAntiAlias8x8),
                     state.settings.smoothingMode, smoothingMode);
    });
}

SmoothingMode Graphics::GetSmoothingMode() const
{
    return read(SmoothingModeDefault, [](const auto& state) { return state.settings.smoothingMode; });
}

Status Graphics::SetInterpolationMode(InterpolationMode interpolationMode)
{
    return withState([&](GraphicsState& state) {
        if (interpolationMode == InterpolationModeDefault || interpolationMode == InterpolationModeLowQuality)
            interpolationMode = InterpolationModeBilinear;
        if (interpolationMode == InterpolationModeHighQuality)
            interpolationMode = InterpolationModeHighQualityBicubic;
        return setIf(isBetween(InterpolationModeBilinear, interpolationMode, InterpolationModeHighQualityBicubic),
                     state.settings.interpolationMode, interpolationMode);
    });
}

InterpolationMode Graphics::GetInterpolationMode() const
{
    return read(InterpolationModeDefault, [](const auto& state) { return state.settings.interpolationMode; });
}

Status Graphics::SetPixelOffsetMode(PixelOffsetMode pixelOffsetMode)
{
    return withState([&](GraphicsState& state) {
        return setIf(isBetween(PixelOffsetModeDefault, pixelOffsetMode, PixelOffsetModeHalf),
                     state.settings.pixelOffsetMode, pixelOffsetMode);
    });
}

PixelOffsetMode Graphics::GetPixelOffsetMode() const
{
    return read(PixelOffsetModeDefault, [](const auto& state) { return state.settings.pixelOffsetMode; });
}

Status Graphics::SetTextRenderingHint(TextRenderingHint newMode)
{
    return withState([&](GraphicsState& state) {
        return setIf(isBetween(TextRenderingHintSystemDefault, newMode, TextRenderingHintClearTypeGridFit),
                     state.settings.textRenderingHint, newMode);
    });
}

TextRenderingHint Graphics::GetTextRenderingHint() const
{
    return read(TextRenderingHintSystemDefault, [](const auto& state) { return state.settings.textRenderingHint; });
}

Status Graphics::SetTextContrast(UINT contrast)
{
    constexpr UINT kHighest = 12;
    return withState(
        [&](GraphicsState& state) { return setIf(contrast <= kHighest, state.settings.textContrast, contrast); });
}

UINT Graphics::GetTextContrast() const
{
    return read(UINT{0}, [](const auto& state) { return state.settings.textContrast; });
}

Status Graphics::SetPageUnit(Unit unit)
{
    return withState([&](GraphicsState& state) {
        return setIf(isBetween(UnitDisplay, unit, UnitMillimeter), state.settings.pageUnit, unit);
    });
}

Unit Graphics::GetPageUnit() const
{
    return read(UnitWorld, [](const auto& state) { return state.settings.pageUnit; });
}

Status Graphics::SetPageScale(REAL scale)
{
    constexpr REAL kHighest = 1e9f;
    return withState([&](GraphicsState& state) {
        return setIf(std::isnan(scale) || (scale > 0 && scale <= kHighest), state.settings.pageScale, scale);
    });
}

REAL Graphics::GetPageScale() const
{
    return read(REAL{0}, [](const auto& state) { return state.settings.pageScale; });
}

REAL Graphics::GetDpiX() const
{
    return read(REAL{0}, [](const auto& state) { return state.resolution().x; });
}

REAL Graphics::GetDpiY() const
{
    return read(REAL{0}, [](const auto& state) { return state.resolution().y; });
}

Status Graphics::GetLastStatus() const
{
    return std::exchange(m_lastStatus, Ok);
}

Status Graphics::setStatus(Status status) const
{
    if (status != Ok)
        m_lastStatus = status;
    return status;
}

} // namespace Gdiplus
