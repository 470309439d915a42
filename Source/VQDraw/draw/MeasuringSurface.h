// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "VQDraw/image/KeptFont.h"

#include <memory>

namespace vq {

/// A memory device context compatible with the screen, and GDI+ on it: text is measured there.
class MeasuringSurface
{
public:
    MeasuringSurface();

    /// The font of a record, until the next call; null when GDI+ refuses it.
    const Gdiplus::Font* font(const LOGFONTW& record) { return m_font.of(record, m_context.m_hDC); }

    /// What a text takes up in a layout rectangle; empty when GDI+ refuses, as it does a null font.
    Gdiplus::RectF measure(const wchar_t* text, const Gdiplus::Font* font, const Gdiplus::RectF& layout,
                           const Gdiplus::StringFormat* format, Gdiplus::TextRenderingHint hint);
    /// The size of a text in a font, rounded down.
    CSize size(const wchar_t* text, const Gdiplus::Font* font, Gdiplus::TextRenderingHint hint);
    /// In the font of an object, which is selected for the time.
    CSize size(const wchar_t* text, HFONT font, Gdiplus::TextRenderingHint hint);

private:
    struct Context : CDC
    {
        Context() { CreateCompatibleDC(nullptr); }
    };

    Context m_context;
    Gdiplus::Graphics m_graphics;
    KeptFont m_font;
};

/// The process's surface, for as long as it lives. Nobody waits for it: who finds it taken makes one of his own. It is
/// kept for the next user only while GDI+ is sure to go on, that is between `InitializeGDIPlus` and `ShutdownGDIPlus`.
class BorrowedSurface
{
public:
    explicit BorrowedSurface(bool keeps);
    ~BorrowedSurface();
    BorrowedSurface(const BorrowedSurface&) = delete;
    BorrowedSurface& operator=(const BorrowedSurface&) = delete;

    MeasuringSurface* operator->() const { return m_surface.get(); }

    /// Lets go of the surface that is kept.
    static void releaseKept();

private:
    std::unique_ptr<MeasuringSurface> m_surface;
    bool m_keeps;
};

} // namespace vq
