// SPDX-License-Identifier: MIT
#include "VQDraw/draw/MeasuringSurface.h"

#include <algorithm>
#include <atomic>

namespace vq {
namespace {

// No destructor: the library may be unloaded at any time, and GDI+ must still run when the surface goes.
constinit std::atomic<MeasuringSurface*> keptSurface = nullptr;

LONG roundedDown(Gdiplus::REAL length)
{
    constexpr Gdiplus::REAL kLongest = 0x40000000; // an exact number of pixels far beyond all pictures
    return static_cast<LONG>(std::clamp(length, -kLongest, kLongest));
}

} // namespace

MeasuringSurface::MeasuringSurface() : m_graphics(m_context.m_hDC) {}

Gdiplus::RectF MeasuringSurface::measure(const wchar_t* text, const Gdiplus::Font* font, const Gdiplus::RectF& layout,
                                         const Gdiplus::StringFormat* format, Gdiplus::TextRenderingHint hint)
{
    Gdiplus::RectF bounds;
    m_graphics.SetTextRenderingHint(hint);
    m_graphics.MeasureString(text, -1, font, layout, format, &bounds);
    return bounds;
}

CSize MeasuringSurface::size(const wchar_t* text, const Gdiplus::Font* font, Gdiplus::TextRenderingHint hint)
{
    const Gdiplus::RectF bounds = measure(text, font, Gdiplus::RectF(), nullptr, hint);
    return CSize(roundedDown(bounds.Width), roundedDown(bounds.Height));
}

CSize MeasuringSurface::size(const wchar_t* text, HFONT font, Gdiplus::TextRenderingHint hint)
{
    const HGDIOBJ former = m_context.SelectObject(static_cast<HGDIOBJ>(font));
    const Gdiplus::Font selected(m_context.m_hDC);
    const CSize result = size(text, KeptFont::usable(selected), hint);
    if (former)
        m_context.SelectObject(former);
    return result;
}

BorrowedSurface::BorrowedSurface(bool keeps) : m_surface(keptSurface.exchange(nullptr)), m_keeps(keeps)
{
    if (!m_surface)
        m_surface = std::make_unique<MeasuringSurface>();
}

BorrowedSurface::~BorrowedSurface()
{
    if (m_keeps)
        m_surface.reset(keptSurface.exchange(m_surface.release()));
}

void BorrowedSurface::releaseKept()
{
    delete keptSurface.exchange(nullptr);
}

} // namespace vq
