// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/GraphicsState.h"

#include "Platform/gdiplus/DrawingMemory.h"
#include "Platform/win32/Surface.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace vq::gdiplus {
namespace {

/// The caller's memory without alpha holds anything there, as a device context does.
SurfaceAlpha alphaOf(const PixelStore& image)
{
    if (Gdiplus::IsAlphaPixelFormat(image.format))
        return SurfaceAlpha::Stored;
    return image.layout == Layout::Opaque && !image.memory ? SurfaceAlpha::Device : SurfaceAlpha::Opaque;
}

/// The bytes between which the pixels lie.
struct Extent
{
    const std::uint8_t* first;
    const std::uint8_t* last;
};

Extent extentOf(ConstPixelView view)
{
    const auto* top = reinterpret_cast<const std::uint8_t*>(view.row(0));
    const auto* bottom = reinterpret_cast<const std::uint8_t*>(view.row(view.height - 1));
    const std::size_t rowBytes = static_cast<std::size_t>(view.width) * sizeof(Pixel);
    return {std::min(top, bottom), std::max(top, bottom) + rowBytes};
}

} // namespace

float pixelsPer(Gdiplus::Unit unit, float dotsPerInch)
{
    switch (unit) {
    case Gdiplus::UnitPoint:
        return dotsPerInch / 72;
    case Gdiplus::UnitInch:
        return dotsPerInch;
    case Gdiplus::UnitDocument:
        return dotsPerInch / 300;
    case Gdiplus::UnitMillimeter:
        return dotsPerInch / 25.4f;
    default:
        return 1;
    }
}

Blend GraphicsSettings::blend() const
{
    if (compositingMode == Gdiplus::CompositingModeSourceCopy)
        return Blend::SourceCopy;
    const bool isLinear = compositingQuality == Gdiplus::CompositingQualityHighQuality ||
                          compositingQuality == Gdiplus::CompositingQualityGammaCorrected;
    return isLinear ? Blend::SourceOverLinearLight : Blend::SourceOver;
}

GraphicsState::GraphicsState(Pixels image) : m_image(std::move(image)) {}

GraphicsState::GraphicsState(HDC context) : m_context(context) {}

GraphicsState::~GraphicsState() = default;

DrawingMemory& GraphicsState::memory()
{
    if (!m_memory)
        m_memory = std::make_unique<DrawingMemory>();
    return *m_memory;
}

HDC GraphicsState::lend()
{
    m_lent = m_image ? m_borrowed.open(m_image->width, m_image->height) : m_context;
    return m_lent;
}

Gdiplus::Status GraphicsState::takeBack(HDC context)
{
    if (!context || context != m_lent)
        return Gdiplus::InvalidParameter;
    m_lent = nullptr;
    return m_image ? m_borrowed.close(*m_image) : Gdiplus::Ok;
}

Resolution GraphicsState::resolution() const
{
    if (m_image)
        return m_image->resolution;
    return {static_cast<Gdiplus::REAL>(GetDeviceCaps(m_context, LOGPIXELSX)),
            static_cast<Gdiplus::REAL>(GetDeviceCaps(m_context, LOGPIXELSY))};
}

Resolution GraphicsState::pageFactors() const
{
    const Resolution dots = resolution();
    return {settings.pageScale * pixelsPer(settings.pageUnit, dots.x),
            settings.pageScale * pixelsPer(settings.pageUnit, dots.y)};
}

ShadingSettings GraphicsState::shading() const
{
    const auto [across, down] = pageFactors();
    return {settings.renderingOrigin.X, settings.renderingOrigin.Y, across, down, settings.hasHalfPixelOffset()};
}

bool GraphicsState::overlaps(ConstPixelView view) const
{
    std::optional<PixelView> own;
    if (m_image) {
        if (m_image->isAlignedWords())
            own = m_image->words();
    } else if (const auto surface = win32::surfaceOf(m_context)) {
        own = PixelView{surface->top, surface->stride, surface->width, surface->height};
    }
    if (!own || own->width <= 0 || own->height <= 0)
        return false;
    const Extent target = extentOf(*own);
    const Extent source = extentOf(view);
    const std::less<const std::uint8_t*> before;
    return before(target.first, source.last) && before(source.first, target.last);
}

OpenCanvas::OpenCanvas(const GraphicsState& state, Blend blend) : m_state(state)
{
    const auto open = [&](PixelView view, SurfaceAlpha alpha) {
        m_canvas = Canvas{view, blend, alpha, state.settings.isSmooth(), state.settings.hasHalfPixelOffset()};
    };
    if (!state.m_image) {
        const auto surface = win32::surfaceOf(state.m_context);
        if (surface && surface->width > 0 && surface->height > 0)
            open({surface->top, surface->stride, surface->width, surface->height}, SurfaceAlpha::Device);
        return;
    }
    const PixelStore& image = *state.m_image;
    const SurfaceAlpha alpha = alphaOf(image);
    if (image.isAlignedWords() && image.layout != Layout::Premultiplied) {
        open(image.words(), alpha);
        return;
    }
    const auto format = alpha == SurfaceAlpha::Stored ? PixelFormat32bppARGB : PixelFormat32bppRGB;
    auto copy = copyPixels(image, image.bounds(), format);
    m_status = copy.status;
    m_copy = std::move(copy.pixels);
    if (m_copy)
        open(m_copy->words(), alpha);
}

void OpenCanvas::commit() const
{
    if (!m_copy)
        return;
    const PixelStore& image = *m_state.m_image;
    const PixelView view = m_copy->words();
    std::vector<Pixel> original(static_cast<std::size_t>(view.width));
    for (int y = 0; y < view.height; ++y) {
        readRow(image.layout, image.row(y), original);
        for (int x = 0; x < view.width; ++x)
            if (view.row(y)[x] != original[static_cast<std::size_t>(x)])
                writeRow(image.layout, {view.row(y) + x, 1}, image.at(x, y));
    }
}

} // namespace vq::gdiplus
